// Integer arithmetic with scaling: 8u with one, three and four channels, 16u and 16s with one.
#pragma once

#include "core/shapes.h"

namespace orv {

#define KERNEL(name, ...) extern "C" ORV_INTERNAL const Operation<__VA_ARGS__> orv_##name;
#include "image/arithmetic/integer_arithmetic.inc"
#undef KERNEL

}  // namespace orv
