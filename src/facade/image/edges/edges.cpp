// Edges and filled areas.
#include "ImageProcessingWrapper.h"
#include "image/edges/canny.h"
#include "image/edges/flood_fill.h"

using namespace orv;

bool ImageProcessingWrapper::Canny_32f8u_C1(const float* src, int srcStep, unsigned char* dst, int dstStep, int width,
                                            int height, float lowThreshold, float highThreshold)
{
    return orv_Canny_32f8u_C1(src, srcStep, dst, dstStep, {width, height}, &lowThreshold, &highThreshold) == StatusOk;
}

bool ImageProcessingWrapper::FloodFill_8Con_8u_C1IR(unsigned char* srcDst, int srcDstStep, int width, int height,
                                                    int seedX, int seedY, unsigned char value, int* count)
{
    return orv_FloodFill_8Con_8u_C1IR(srcDst, srcDstStep, {width, height}, seedX, seedY, value, count) == StatusOk;
}
