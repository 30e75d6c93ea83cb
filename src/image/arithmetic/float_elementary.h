// Logarithm and exponential of float images.
#pragma once

#include "core/shapes.h"

namespace orv {

#define KERNEL(name, ...) extern "C" ORV_INTERNAL const Operation<__VA_ARGS__> orv_##name;
#include "image/arithmetic/float_elementary.inc"
#undef KERNEL

}  // namespace orv
