// Lookup tables: a value for every value of a pixel.
#pragma once

#include "core/shapes.h"

namespace orv {

template <class From, class To>
using SrcTableDst = Status(const From* src, int srcStep, const To* table, To* dst, int dstStep, Size roi);
using SrcTablesDst = Status(const unsigned char* src, int srcStep, const unsigned char* const* tables,
                            unsigned char* dst, int dstStep, Size roi);
using SrcPaletteDst = Status(const unsigned short* src, int srcStep, const unsigned* palette, int paletteSize,
                             unsigned* dst, int dstStep, Size roi);

#define KERNEL(name, ...) extern "C" ORV_INTERNAL const Operation<__VA_ARGS__> orv_##name;
#include "image/tables/lookup.inc"
#undef KERNEL

}  // namespace orv
