// Filled areas of equal pixels.
#pragma once

#include "core/shapes.h"

namespace orv {

using FillFromSeed = Status(unsigned char* srcDst, int srcDstStep, Size roi, int seedX, int seedY, unsigned char value,
                            int* count);

#define KERNEL(name, ...) extern "C" ORV_INTERNAL const Operation<__VA_ARGS__> orv_##name;
#include "image/edges/flood_fill.inc"
#undef KERNEL

}  // namespace orv
