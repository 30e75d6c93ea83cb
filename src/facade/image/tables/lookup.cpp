// Lookup tables and palettes.
#include "ImageProcessingWrapper.h"
#include "image/tables/lookup.h"

using namespace orv;

#define SRC_TABLE_DST(name, From, To)                                                                   \
    bool ImageProcessingWrapper::name(const From* src, int srcStep, const To* table, To* dst, int dstStep, int width, \
                                      int height)                                                       \
    {                                                                                                   \
        return orv_##name(src, srcStep, table, dst, dstStep, {width, height}) == StatusOk;              \
    }

#define SRC_TABLES_DST(name)                                                                            \
    bool ImageProcessingWrapper::name(const unsigned char* src, int srcStep, const unsigned char* const* tables, \
                                      unsigned char* dst, int dstStep, int width, int height)           \
    {                                                                                                   \
        return orv_##name(src, srcStep, tables, dst, dstStep, {width, height}) == StatusOk;             \
    }

SRC_TABLE_DST(LUT_8u_C1, unsigned char, unsigned char)
SRC_TABLE_DST(LUT_8u16u_C1, unsigned char, unsigned short)
SRC_TABLE_DST(LUT_8u32f_C1, unsigned char, float)
SRC_TABLE_DST(LUT_16u_C1, unsigned short, unsigned short)
SRC_TABLE_DST(LUT_16u8u_C1, unsigned short, unsigned char)
SRC_TABLE_DST(LUT_16u32f_C1, unsigned short, float)
SRC_TABLES_DST(LUT_8u_C3)
SRC_TABLES_DST(LUT_8u_C4)

bool ImageProcessingWrapper::LUTPalette_16u32u_C1R(const unsigned short* src, int srcStep, const unsigned int* palette,
                                                   int paletteSize, unsigned int* dst, int dstStep, int width, int height)
{
    return orv_LUTPalette_16u32u_C1R(src, srcStep, palette, paletteSize, dst, dstStep, {width, height}) == StatusOk;
}

#undef SRC_TABLE_DST
#undef SRC_TABLES_DST
