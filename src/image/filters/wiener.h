// Smoothing by local means and variances.
#pragma once

#include "core/shapes.h"

namespace orv {

using SrcDstMaskNoise = Status(const float* src, int srcStep, float* dst, int dstStep, Size roi, int maskWidth,
                               int maskHeight, double* noise);

#define KERNEL(name, ...) extern "C" ORV_INTERNAL const Operation<__VA_ARGS__> orv_##name;
#include "image/filters/wiener.inc"
#undef KERNEL

}  // namespace orv
