// Thresholds of vectors: elements below a threshold, above one, or beyond two of them are replaced.
#pragma once

#include "core/shapes.h"

namespace orv {

template <class T>
using VecThreshold = Status(const T* src, T* dst, Length len, T threshold);
template <class T>
using VecThresholdValue = Status(const T* src, T* dst, Length len, T threshold, T value);
template <class T>
using VecThresholdBoth = Status(const T* src, T* dst, Length len, T thresholdLT, T valueLT, T thresholdGT, T valueGT);

#define KERNEL(name, ...) extern "C" ORV_INTERNAL const Operation<__VA_ARGS__> orv_##name;
#include "signal/thresholds.inc"
#undef KERNEL

}  // namespace orv
