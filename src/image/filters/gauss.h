// Gaussian smoothing of any size.
#pragma once

#include "core/shapes.h"

namespace orv {

// Sigma comes by its address: whoever passes it on must not load it into an x87 register, where a signalling NaN
// traps before the kernel has masked anything.
using SrcDstSizeSigma = Status(const float* src, int srcStep, float* dst, int dstStep, Size roi, int kernelSize,
                               const float* sigma);

#define KERNEL(name, ...) extern "C" ORV_INTERNAL const Operation<__VA_ARGS__> orv_##name;
#include "image/filters/gauss.inc"
#undef KERNEL

}  // namespace orv
