// Bitwise operations of two images, and of an image with constants; shifts by constant counts.
#pragma once

#include "core/shapes.h"

namespace orv {

template <class T>
using SrcCountDst = Status(const T* src, int srcStep, unsigned count, T* dst, int dstStep, Size roi);
template <class T>
using SrcCountsDst = Status(const T* src, int srcStep, const unsigned* counts, T* dst, int dstStep, Size roi);

#define KERNEL(name, ...) extern "C" ORV_INTERNAL const Operation<__VA_ARGS__> orv_##name;
#include "image/bits/bitwise.inc"
#undef KERNEL

}  // namespace orv
