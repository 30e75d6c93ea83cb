// The median of a rectangle around each pixel.
#pragma once

#include "core/shapes.h"

namespace orv {

template <class T>
using SrcDstSides = Status(const T* src, int srcStep, T* dst, int dstStep, Size roi, int maskWidth, int maskHeight);

#define KERNEL(name, ...) extern "C" ORV_INTERNAL const Operation<__VA_ARGS__> orv_##name;
#include "image/rank/median.inc"
#undef KERNEL

}  // namespace orv
