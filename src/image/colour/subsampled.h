// RGB to luma and chroma that neighbours share, and back.
#pragma once

#include "core/shapes.h"

namespace orv {

using SrcDstStandard = Status(const unsigned char* src, int srcStep, unsigned char* dst, int dstStep, Size roi,
                              int standard);
using PlanesDstStandard = Status(const unsigned char* srcY, int srcYStep, const unsigned char* srcU, int srcUStep,
                                 const unsigned char* srcV, int srcVStep, unsigned char* dst, int dstStep, Size roi,
                                 int standard);

#define KERNEL(name, ...) extern "C" ORV_INTERNAL const Operation<__VA_ARGS__> orv_##name;
#include "image/colour/subsampled.inc"
#undef KERNEL

}  // namespace orv
