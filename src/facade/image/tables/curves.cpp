// Curves through points.
#include "ImageProcessingWrapper.h"
#include "image/tables/curves.h"

using namespace orv;

#define SRC_CURVE_DST(name, operation, From, To)                                                            \
    bool ImageProcessingWrapper::name(const From* src, int srcStep, const From* levels, const To* values,   \
                                      int levelCount, To* dst, int dstStep, int width, int height)          \
    {                                                                                                       \
        return operation(src, srcStep, levels, values, levelCount, dst, dstStep, {width, height}) == StatusOk;\
    }

SRC_CURVE_DST(LUT_Linear_8u_C1, orv_LUT_Linear_8u_C1, unsigned char, unsigned char)
SRC_CURVE_DST(LUT_Linear_16u_C1, orv_LUT_Linear_16u_C1, unsigned short, unsigned short)
SRC_CURVE_DST(LUT_Linear_16u8u_C1, orv_LUT_Linear_16u8u_C1, unsigned short, unsigned char)
SRC_CURVE_DST(LUT_Linear_32f_C1, orv_LUT_Linear_32f_C1, float, float)

#undef SRC_CURVE_DST
