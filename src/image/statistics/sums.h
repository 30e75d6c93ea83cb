// Sums, means and standard deviations of integer images.
#pragma once

#include "core/shapes.h"

namespace orv {

#define KERNEL(name, ...) extern "C" ORV_INTERNAL const Operation<__VA_ARGS__> orv_##name;
#include "image/statistics/sums.inc"
#undef KERNEL

}  // namespace orv
