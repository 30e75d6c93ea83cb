// Sums and means of float images.
#pragma once

#include "core/shapes.h"

namespace orv {

// What callers may ask for. Both get the same sums: one order of additions serves all.
constexpr int kHintFast = 1;
constexpr int kHintAccurate = 2;

#define KERNEL(name, ...) extern "C" ORV_INTERNAL const Operation<__VA_ARGS__> orv_##name;
#include "image/statistics/float_sums.inc"
#undef KERNEL

}  // namespace orv
