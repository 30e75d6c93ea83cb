// Luma and chroma that neighbours share.
#include "ImageProcessingWrapper.h"
#include "image/colour/subsampled.h"

using namespace orv;

#define SRC_DST_STANDARD(name)                                                                          \
    bool ImageProcessingWrapper::name(const unsigned char* src, int srcStep, unsigned char* dst, int dstStep, int width, \
                                      int height, int standard)                                         \
    {                                                                                                   \
        return orv_##name(src, srcStep, dst, dstStep, {width, height}, standard) == StatusOk;           \
    }

SRC_DST_STANDARD(RGBToYUV422_8u_C3C2R)
SRC_DST_STANDARD(YUV422ToRGB_8u_C2C3R)

bool ImageProcessingWrapper::YUV420ToRGB_8u_P3C3(const unsigned char* srcY, int srcYStep, const unsigned char* srcU, int srcUStep,
                                                 const unsigned char* srcV, int srcVStep, unsigned char* dst, int dstStep,
                                                 int width, int height, int standard)
{
    return orv_YUV420ToRGB_8u_P3C3(srcY, srcYStep, srcU, srcUStep, srcV, srcVStep, dst, dstStep, {width, height}, standard) == StatusOk;
}

#undef SRC_DST_STANDARD
