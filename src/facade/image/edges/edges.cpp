// Edges and filled areas.
#include "facade/forms.h"
#include "image/edges/canny.h"
#include "image/edges/flood_fill.h"

using namespace orv;

SRC_DST(Canny_32f8u_C1, by_address(orv_Canny_32f8u_C1), float, unsigned char, float, float)

bool ImageProcessingWrapper::FloodFill_8Con_8u_C1IR(unsigned char* srcDst, int srcDstStep, int width, int height,
                                                    int seedX, int seedY, unsigned char value, int* count)
{
    return orv_FloodFill_8Con_8u_C1IR(srcDst, srcDstStep, {width, height}, seedX, seedY, value, count) == StatusOk;
}
