// Copies of an image into a larger one, with a border of a constant or of the nearest edge pixels.
#pragma once

#include "core/shapes.h"

namespace orv {

// Value: T, or const T* for one value per channel.
template <class T, class Value>
using ConstBorder = Status(const T* src, int srcStep, Size srcSize, T* dst, int dstStep, Size dstSize, int top,
                           int left, Value value);
template <class T>
using ReplicateBorder = Status(const T* src, int srcStep, Size srcSize, T* dst, int dstStep, Size dstSize, int top,
                               int left);

#define KERNEL(name, ...) extern "C" ORV_INTERNAL const Operation<__VA_ARGS__> orv_##name;
#include "image/moving/border.inc"
#undef KERNEL

}  // namespace orv
