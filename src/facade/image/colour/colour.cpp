// Luma and chroma, colour matrices, composition.
#include "ImageProcessingWrapper.h"
#include "image/colour/alpha.h"
#include "image/colour/subsampled.h"
#include "image/colour/twist.h"
#include "image/colour/ycbcr.h"

using namespace orv;

#define SRC_DST_STANDARD(name)                                                                          \
    bool ImageProcessingWrapper::name(const unsigned char* src, int srcStep, unsigned char* dst, int dstStep, int width, \
                                      int height, int standard)                                         \
    {                                                                                                   \
        return orv_##name(src, srcStep, dst, dstStep, {width, height}, standard) == StatusOk;           \
    }

#define SRC_TWIST_DST(name, T)                                                                          \
    bool ImageProcessingWrapper::name(const T* src, int srcStep, const float* twist, T* dst, int dstStep, int width, \
                                      int height)                                                       \
    {                                                                                                   \
        return orv_##name(src, srcStep, twist, dst, dstStep, {width, height}) == StatusOk;              \
    }

#define SRC_SRC_DST_PREMULTIPLIED(name)                                                                 \
    bool ImageProcessingWrapper::name(const unsigned char* src1, int src1Step, const unsigned char* src2, int src2Step, \
                                      unsigned char* dst, int dstStep, int width, int height, bool premultiplied) \
    {                                                                                                   \
        return orv_##name(src1, src1Step, src2, src2Step, dst, dstStep, {width, height}, premultiplied ? 1 : 0) == StatusOk; \
    }

SRC_DST_STANDARD(RGBToYCbCr_8u_C3)
SRC_DST_STANDARD(RGBToYCbCr_8u_AC4)
SRC_DST_STANDARD(YCbCrToRGB_8u_C3)
SRC_DST_STANDARD(YCbCrToRGB_8u_AC4)
SRC_DST_STANDARD(RGBToYUV422_8u_C3C2R)
SRC_DST_STANDARD(YUV422ToRGB_8u_C2C3R)

bool ImageProcessingWrapper::YUV420ToRGB_8u_P3C3(const unsigned char* srcY, int srcYStep, const unsigned char* srcU, int srcUStep,
                                                 const unsigned char* srcV, int srcVStep, unsigned char* dst, int dstStep,
                                                 int width, int height, int standard)
{
    return orv_YUV420ToRGB_8u_P3C3(srcY, srcYStep, srcU, srcUStep, srcV, srcVStep, dst, dstStep, {width, height}, standard) == StatusOk;
}

SRC_TWIST_DST(ColorTwist32f_8u_C3, unsigned char)
SRC_TWIST_DST(ColorTwist32f_8u_AC4, unsigned char)
SRC_TWIST_DST(ColorTwist32f_32f_C3, float)

SRC_SRC_DST_PREMULTIPLIED(AlphaComp_8u_AC4)
SRC_SRC_DST_PREMULTIPLIED(AlphaComp_8u_C4)

bool ImageProcessingWrapper::AlphaCompC_8u_C3R(const unsigned char* src1, int src1Step, const unsigned char* src2, int src2Step,
                                               unsigned char alpha, unsigned char* dst, int dstStep, int width, int height)
{
    return orv_AlphaCompC_8u_C3R(src1, src1Step, src2, src2Step, alpha, dst, dstStep, {width, height}) == StatusOk;
}

#undef SRC_DST_STANDARD
#undef SRC_TWIST_DST
#undef SRC_SRC_DST_PREMULTIPLIED
