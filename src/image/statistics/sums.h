// Sums, means and standard deviations of integer images.
#pragma once

#include "core/shapes.h"

namespace orv {

// Mean and standard deviation of so many pixels; either result may be null.
using DeviationOfSums = Status(unsigned long long pixels, unsigned long long sum, unsigned long long squares,
                               double* mean, double* deviation);

#define KERNEL(name, ...) extern "C" ORV_INTERNAL const Operation<__VA_ARGS__> orv_##name;
#include "image/statistics/sums.inc"
#undef KERNEL

}  // namespace orv
