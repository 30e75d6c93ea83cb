// Logarithm and exponential of float images.
#include "image/arithmetic/float_elementary.h"

#include "ImageProcessingWrapper.h"
#include "facade/in_place.h"

using namespace orv;

bool ImageProcessingWrapper::Exp_32f_C1(const float* src, int srcStep, float* dst, int dstStep, int width, int height)
{
    return orv_Exp_32f_C1(src, srcStep, dst, dstStep, {width, height}) == StatusOk;
}

bool ImageProcessingWrapper::Ln_32f_C1I(float* srcDst, int srcDstStep, int width, int height)
{
    return in_place_checked(srcDst, srcDstStep, width, height, 1, [=](const auto& tile) {
               return orv_Ln_32f_C1(tile.src, tile.srcStep, tile.dst, tile.dstStep, tile.size);
           }) == StatusOk;
}
