// Luma and chroma that neighbours share.
#include "facade/forms.h"
#include "image/colour/subsampled.h"

using namespace orv;

SRC_DST(RGBToYUV422_8u_C3C2R, orv_RGBToYUV422_8u_C3C2R, unsigned char, unsigned char, int)
SRC_DST(YUV422ToRGB_8u_C2C3R, orv_YUV422ToRGB_8u_C2C3R, unsigned char, unsigned char, int)

bool ImageProcessingWrapper::YUV420ToRGB_8u_P3C3(const unsigned char* srcY, int srcYStep, const unsigned char* srcU,
                                                 int srcUStep, const unsigned char* srcV, int srcVStep,
                                                 unsigned char* dst, int dstStep, int width, int height, int standard)
{
    return orv_YUV420ToRGB_8u_P3C3(srcY, srcYStep, srcU, srcUStep, srcV, srcVStep, dst, dstStep, {width, height},
                                   standard) == StatusOk;
}
