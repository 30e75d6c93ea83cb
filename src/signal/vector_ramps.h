// Vectors that rise evenly, by a slope or between two ends.
#pragma once

#include "core/shapes.h"

namespace orv {

// Offset and slope, or first and last value, by their addresses: see facade/in_memory.h.
template <class T>
using VecLine = Status(const double& start, const double& other, T* dst, Length len);

#define KERNEL(name, ...) extern "C" ORV_INTERNAL const Operation<__VA_ARGS__> orv_##name;
#include "signal/vector_ramps.inc"
#undef KERNEL

}  // namespace orv
