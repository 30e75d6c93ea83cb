// Copies with a border.
#include "facade/forms.h"
#include "image/moving/border.h"

using namespace orv;

// (name, operation, T, ...): what follows is the value of a constant border.
#define COPY_BORDER(name, operation, ...)                                                                \
    bool ImageProcessingWrapper::name(const FIRST(__VA_ARGS__)* src, int srcStep, int srcWidth,          \
                                      int srcHeight, FIRST(__VA_ARGS__)* dst, int dstStep, int dstWidth, \
                                      int dstHeight, int top, int left PARAMETERS(__VA_ARGS__))          \
    {                                                                                                    \
        return call(operation, src, srcStep, Size{srcWidth, srcHeight}, dst, dstStep,                    \
                    Size{dstWidth, dstHeight}, top, left ARGUMENTS(__VA_ARGS__));                        \
    }

// The operation takes its temporary itself: only what it overwrites before it is read, a row at a time.
#define REPLICATE_BORDER_IN_PLACE(name, operation, T)                                                       \
    bool ImageProcessingWrapper::name(T* srcDst, int srcDstStep, int srcWidth, int srcHeight, int dstWidth, \
                                      int dstHeight, int top, int left)                                     \
    {                                                                                                       \
        return call(operation, srcDst, srcDstStep, Size{srcWidth, srcHeight}, srcDst, srcDstStep,           \
                    Size{dstWidth, dstHeight}, top, left);                                                  \
    }

COPY_BORDER(CopyConstBorder_8u_C1, orv_CopyConstBorder_8u_C1, unsigned char, unsigned char)
COPY_BORDER(CopyConstBorder_8u_C3, orv_CopyConstBorder_8u_C3, unsigned char, const unsigned char*)
COPY_BORDER(CopyConstBorder_8u_C4, orv_CopyConstBorder_8u_C4, unsigned char, const unsigned char*)
COPY_BORDER(CopyConstBorder_16u_C1, orv_CopyConstBorder_16u_C1, unsigned short, unsigned short)
COPY_BORDER(CopyConstBorder_32f_C1, orv_CopyConstBorder_32f_C1, float, float)
COPY_BORDER(CopyConstBorder_32f_C3, orv_CopyConstBorder_32f_C3, float, const float*)

COPY_BORDER(CopyReplicateBorder_8u_C1, orv_CopyReplicateBorder_8u_C1, unsigned char)
COPY_BORDER(CopyReplicateBorder_8u_C3, orv_CopyReplicateBorder_8u_C3, unsigned char)
COPY_BORDER(CopyReplicateBorder_8u_C4, orv_CopyReplicateBorder_8u_C4, unsigned char)
COPY_BORDER(CopyReplicateBorder_16u_C1, orv_CopyReplicateBorder_16u_C1, unsigned short)
COPY_BORDER(CopyReplicateBorder_32f_C1, orv_CopyReplicateBorder_32f_C1, float)
COPY_BORDER(CopyReplicateBorder_32f_C3, orv_CopyReplicateBorder_32f_C3, float)

REPLICATE_BORDER_IN_PLACE(CopyReplicateBorder_8u_C1I, orv_CopyReplicateBorder_8u_C1, unsigned char)
REPLICATE_BORDER_IN_PLACE(CopyReplicateBorder_16u_C1I, orv_CopyReplicateBorder_16u_C1, unsigned short)
REPLICATE_BORDER_IN_PLACE(CopyReplicateBorder_32f_C1I, orv_CopyReplicateBorder_32f_C1, float)

#undef COPY_BORDER
#undef REPLICATE_BORDER_IN_PLACE
