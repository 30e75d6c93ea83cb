// Convolution with a kernel of the caller's.
#include "ImageProcessingWrapper.h"
#include "image/filters/convolution.h"

using namespace orv;

#define FILTER_INTEGER(name, From, To)                                                                              \
    bool ImageProcessingWrapper::name(const From* src, int srcStep, To* dst, int dstStep, int width, int height,    \
                                      const int* kernel, int kernelWidth, int kernelHeight, int anchorX,            \
                                      int anchorY, int divisor)                                                     \
    {                                                                                                               \
        return orv_##name(src, srcStep, dst, dstStep, {width, height}, kernel, kernelWidth, kernelHeight, anchorX,  \
                          anchorY, divisor) == StatusOk;                                                            \
    }

FILTER_INTEGER(Filter_8u_C1R, unsigned char, unsigned char)
FILTER_INTEGER(Filter_8u_C3R, unsigned char, unsigned char)
FILTER_INTEGER(Filter_8u_C4R, unsigned char, unsigned char)
FILTER_INTEGER(Filter_16u_C1R, unsigned short, unsigned short)
FILTER_INTEGER(Filter_16s_C1R, short, short)
FILTER_INTEGER(Filter_8u16s_C1R, unsigned char, short)

#undef FILTER_INTEGER

#define FILTER_FLOAT(name, From)                                                                                    \
    bool ImageProcessingWrapper::name(const From* src, int srcStep, float* dst, int dstStep, int width, int height, \
                                      const float* kernel, int kernelWidth, int kernelHeight, int anchorX,          \
                                      int anchorY)                                                                  \
    {                                                                                                               \
        return orv_##name(src, srcStep, dst, dstStep, {width, height}, kernel, kernelWidth, kernelHeight, anchorX,  \
                          anchorY) == StatusOk;                                                                     \
    }

FILTER_FLOAT(Filter_32f_C1R, float)
FILTER_FLOAT(Filter_32f_C3R, float)
FILTER_FLOAT(Filter_8u32f_C1R, unsigned char)
FILTER_FLOAT(Filter_16u32f_C1R, unsigned short)

#undef FILTER_FLOAT
