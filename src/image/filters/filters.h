// Filters with built-in 3x3 and 5x5 kernels, and the form of the float box filter that makes its own
// border.
#pragma once

#include "core/shapes.h"

namespace orv {

// The codes of the two mask sizes.
enum MaskSize : int { mask_3x3 = 33, mask_5x5 = 55 };

// What the pixels outside the image are taken to be.
enum class FilterBorder : int { constant = 0, replicate = 1 };

template <class T>
using SrcDstMask = Status(const T* src, int srcStep, T* dst, int dstStep, Size roi, int mask);

using SrcDstMaskBorder = Status(const float* src, int srcStep, float* dst, int dstStep, Size roi, int mask,
                                FilterBorder border, float value, void* buffer);

using BufferSizeOfMask = Status(Size roi, int mask, int* bytes);

#define KERNEL(name, ...) extern "C" ORV_INTERNAL const Operation<__VA_ARGS__> orv_##name;
#include "image/filters/filters_float.inc"
#include "image/filters/filters_integer.inc"
#undef KERNEL

}  // namespace orv
