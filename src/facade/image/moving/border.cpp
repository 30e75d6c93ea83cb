// Copies with a border.
#include "image/moving/border.h"

#include "ImageProcessingWrapper.h"

using namespace orv;

// Value: T, or const T* for one value per channel.
#define CONST_BORDER(name, T, Value)                                                                                               \
    bool ImageProcessingWrapper::name(const T* src, int srcStep, int srcWidth, int srcHeight, T* dst, int dstStep,                 \
                                      int dstWidth, int dstHeight, int top, int left, Value value)                                 \
    {                                                                                                                              \
        return orv_##name(src, srcStep, {srcWidth, srcHeight}, dst, dstStep, {dstWidth, dstHeight}, top, left, value) == StatusOk; \
    }

#define REPLICATE_BORDER(name, T)                                                                                           \
    bool ImageProcessingWrapper::name(const T* src, int srcStep, int srcWidth, int srcHeight, T* dst, int dstStep,          \
                                      int dstWidth, int dstHeight, int top, int left)                                       \
    {                                                                                                                       \
        return orv_##name(src, srcStep, {srcWidth, srcHeight}, dst, dstStep, {dstWidth, dstHeight}, top, left) == StatusOk; \
    }

// The operation takes its temporary itself: only what it overwrites before it is read, a row at a time.
#define REPLICATE_BORDER_IN_PLACE(name, operation, T)                                                       \
    bool ImageProcessingWrapper::name(T* srcDst, int srcDstStep, int srcWidth, int srcHeight, int dstWidth, \
                                      int dstHeight, int top, int left)                                     \
    {                                                                                                       \
        return orv_##operation(srcDst, srcDstStep, {srcWidth, srcHeight}, srcDst, srcDstStep,               \
                               {dstWidth, dstHeight}, top, left) == StatusOk;                               \
    }

CONST_BORDER(CopyConstBorder_8u_C1, unsigned char, unsigned char)
CONST_BORDER(CopyConstBorder_8u_C3, unsigned char, const unsigned char*)
CONST_BORDER(CopyConstBorder_8u_C4, unsigned char, const unsigned char*)
CONST_BORDER(CopyConstBorder_16u_C1, unsigned short, unsigned short)
CONST_BORDER(CopyConstBorder_32f_C1, float, float)
CONST_BORDER(CopyConstBorder_32f_C3, float, const float*)

REPLICATE_BORDER(CopyReplicateBorder_8u_C1, unsigned char)
REPLICATE_BORDER(CopyReplicateBorder_8u_C3, unsigned char)
REPLICATE_BORDER(CopyReplicateBorder_8u_C4, unsigned char)
REPLICATE_BORDER(CopyReplicateBorder_16u_C1, unsigned short)
REPLICATE_BORDER(CopyReplicateBorder_32f_C1, float)
REPLICATE_BORDER(CopyReplicateBorder_32f_C3, float)

REPLICATE_BORDER_IN_PLACE(CopyReplicateBorder_8u_C1I, CopyReplicateBorder_8u_C1, unsigned char)
REPLICATE_BORDER_IN_PLACE(CopyReplicateBorder_16u_C1I, CopyReplicateBorder_16u_C1, unsigned short)
REPLICATE_BORDER_IN_PLACE(CopyReplicateBorder_32f_C1I, CopyReplicateBorder_32f_C1, float)

#undef CONST_BORDER
#undef REPLICATE_BORDER
#undef REPLICATE_BORDER_IN_PLACE
