// Sums and means of float images.
#pragma once

#include "core/shapes.h"

namespace orv {

#define KERNEL(name, ...) extern "C" ORV_INTERNAL const Operation<__VA_ARGS__> orv_##name;
#include "image/statistics/float_sums.inc"
#undef KERNEL

}  // namespace orv
