// Colour matrices: every channel a weighted sum of all three.
#pragma once

#include "core/shapes.h"

namespace orv {

template <class T>
using SrcTwistDst = Status(const T* src, int srcStep, const float* twist, T* dst, int dstStep, Size roi);

#define KERNEL(name, ...) extern "C" ORV_INTERNAL const Operation<__VA_ARGS__> orv_##name;
#include "image/colour/twist.inc"
#undef KERNEL

}  // namespace orv
