// Gaussian smoothing of any size.
#include "ImageProcessingWrapper.h"
#include "image/filters/gauss.h"

using namespace orv;

bool ImageProcessingWrapper::FilterGaussBorder_32f_C1R(const float* src, int srcStep, float* dst, int dstStep,
                                                       int width, int height, int kernelSize, float sigma)
{
    return orv_FilterGaussBorder_32f_C1R(src, srcStep, dst, dstStep, {width, height}, kernelSize, &sigma) == StatusOk;
}
