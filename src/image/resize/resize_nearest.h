// Nearest neighbour through a plan.
#pragma once

#include "image/resize/resize_plan.h"

namespace orv {

#define KERNEL(name, ...) extern "C" ORV_INTERNAL const Operation<__VA_ARGS__> orv_##name;
#include "image/resize/resize_nearest.inc"
#undef KERNEL

}  // namespace orv
