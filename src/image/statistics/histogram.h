// Histograms over evenly spaced levels. Counting is scalar work: one variant serves all levels.
#pragma once

#include "core/shapes.h"

namespace orv {

#define KERNEL(name, ...) extern "C" ORV_INTERNAL const Operation<__VA_ARGS__> orv_##name;
#include "image/statistics/histogram.inc"
#undef KERNEL

}  // namespace orv
