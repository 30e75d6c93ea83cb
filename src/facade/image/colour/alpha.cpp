// One picture over another.
#include "ImageProcessingWrapper.h"
#include "image/colour/alpha.h"

using namespace orv;

#define SRC_SRC_DST_PREMULTIPLIED(name)                                                                 \
    bool ImageProcessingWrapper::name(const unsigned char* src1, int src1Step, const unsigned char* src2, int src2Step, \
                                      unsigned char* dst, int dstStep, int width, int height, bool premultiplied) \
    {                                                                                                   \
        return orv_##name(src1, src1Step, src2, src2Step, dst, dstStep, {width, height}, premultiplied ? 1 : 0) == StatusOk; \
    }

SRC_SRC_DST_PREMULTIPLIED(AlphaComp_8u_AC4)
SRC_SRC_DST_PREMULTIPLIED(AlphaComp_8u_C4)

bool ImageProcessingWrapper::AlphaCompC_8u_C3R(const unsigned char* src1, int src1Step, const unsigned char* src2, int src2Step,
                                               unsigned char alpha, unsigned char* dst, int dstStep, int width, int height)
{
    return orv_AlphaCompC_8u_C3R(src1, src1Step, src2, src2Step, alpha, dst, dstStep, {width, height}) == StatusOk;
}

#undef SRC_SRC_DST_PREMULTIPLIED
