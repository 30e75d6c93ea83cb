// RGB to luma and chroma and back, pixel by pixel.
#pragma once

#include "core/shapes.h"

namespace orv {

using SrcDstStandard = Status(const unsigned char* src, int srcStep, unsigned char* dst, int dstStep, Size roi,
                              int standard);

#define KERNEL(name, ...) extern "C" ORV_INTERNAL const Operation<__VA_ARGS__> orv_##name;
#include "image/colour/ycbcr.inc"
#undef KERNEL

}  // namespace orv
