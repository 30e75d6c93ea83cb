// Luma and chroma.
#include "ImageProcessingWrapper.h"
#include "image/colour/ycbcr.h"

using namespace orv;

#define SRC_DST_STANDARD(name)                                                                          \
    bool ImageProcessingWrapper::name(const unsigned char* src, int srcStep, unsigned char* dst, int dstStep, int width, \
                                      int height, int standard)                                         \
    {                                                                                                   \
        return orv_##name(src, srcStep, dst, dstStep, {width, height}, standard) == StatusOk;           \
    }

SRC_DST_STANDARD(RGBToYCbCr_8u_C3)
SRC_DST_STANDARD(RGBToYCbCr_8u_AC4)
SRC_DST_STANDARD(YCbCrToRGB_8u_C3)
SRC_DST_STANDARD(YCbCrToRGB_8u_AC4)

#undef SRC_DST_STANDARD
