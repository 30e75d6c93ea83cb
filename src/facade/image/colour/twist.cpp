// Colour matrices.
#include "ImageProcessingWrapper.h"
#include "image/colour/twist.h"

using namespace orv;

#define SRC_TWIST_DST(name, T)                                                                          \
    bool ImageProcessingWrapper::name(const T* src, int srcStep, const float* twist, T* dst, int dstStep, int width, \
                                      int height)                                                       \
    {                                                                                                   \
        return orv_##name(src, srcStep, twist, dst, dstStep, {width, height}) == StatusOk;              \
    }

SRC_TWIST_DST(ColorTwist32f_8u_C3, unsigned char)
SRC_TWIST_DST(ColorTwist32f_8u_AC4, unsigned char)
SRC_TWIST_DST(ColorTwist32f_32f_C3, float)

#undef SRC_TWIST_DST
