// One picture over another.
#include "facade/forms.h"
#include "image/colour/alpha.h"

using namespace orv;

SRC_SRC_DST(AlphaComp_8u_AC4, orv_AlphaComp_8u_AC4, unsigned char, unsigned char, bool)
SRC_SRC_DST(AlphaComp_8u_C4, orv_AlphaComp_8u_C4, unsigned char, unsigned char, bool)

bool ImageProcessingWrapper::AlphaCompC_8u_C3R(const unsigned char* src1, int src1Step, const unsigned char* src2,
                                               int src2Step, unsigned char alpha, unsigned char* dst, int dstStep,
                                               int width, int height)
{
    return orv_AlphaCompC_8u_C3R(src1, src1Step, src2, src2Step, alpha, dst, dstStep, {width, height}) == StatusOk;
}
