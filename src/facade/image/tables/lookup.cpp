// Lookup tables and palettes.
#include "facade/forms.h"
#include "image/tables/lookup.h"

using namespace orv;

SRC_VALUE_DST(LUT_8u_C1, orv_LUT_8u_C1, unsigned char, const unsigned char*, unsigned char)
SRC_VALUE_DST(LUT_8u16u_C1, orv_LUT_8u16u_C1, unsigned char, const unsigned short*, unsigned short)
SRC_VALUE_DST(LUT_8u32f_C1, orv_LUT_8u32f_C1, unsigned char, const float*, float)
SRC_VALUE_DST(LUT_16u_C1, orv_LUT_16u_C1, unsigned short, const unsigned short*, unsigned short)
SRC_VALUE_DST(LUT_16u8u_C1, orv_LUT_16u8u_C1, unsigned short, const unsigned char*, unsigned char)
SRC_VALUE_DST(LUT_16u32f_C1, orv_LUT_16u32f_C1, unsigned short, const float*, float)
SRC_VALUE_DST(LUT_8u_C3, orv_LUT_8u_C3, unsigned char, const unsigned char* const*, unsigned char)
SRC_VALUE_DST(LUT_8u_C4, orv_LUT_8u_C4, unsigned char, const unsigned char* const*, unsigned char)

bool ImageProcessingWrapper::LUTPalette_16u32u_C1R(const unsigned short* src, int srcStep, const unsigned int* palette,
                                                   int paletteSize, unsigned int* dst, int dstStep, int width,
                                                   int height)
{
    return orv_LUTPalette_16u32u_C1R(src, srcStep, palette, paletteSize, dst, dstStep, {width, height}) == StatusOk;
}
