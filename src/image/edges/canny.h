// Edges after J. Canny. The thresholds come by their addresses: whoever passes them on must not load them into an x87
// register, where a signalling NaN traps before a kernel has masked anything.
#pragma once

#include "core/shapes.h"

namespace orv {

using EdgesBetween = Status(const float* src, int srcStep, unsigned char* dst, int dstStep, Size roi,
                            const float* lowThreshold, const float* highThreshold);

#define KERNEL(name, ...) extern "C" ORV_INTERNAL const Operation<__VA_ARGS__> orv_##name;
#include "image/edges/canny.inc"
#undef KERNEL

}  // namespace orv
