// Least and greatest pixels of a region, and where they are.
#pragma once

#include "core/shapes.h"

namespace orv {

#define KERNEL(name, ...) extern "C" ORV_INTERNAL const Operation<__VA_ARGS__> orv_##name;
#include "image/statistics/extremes.inc"
#undef KERNEL

}  // namespace orv
