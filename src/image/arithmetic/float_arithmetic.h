// Float arithmetic: 32f with one and three channels.
#pragma once

#include "core/shapes.h"

namespace orv {

#define KERNEL(name, ...) extern "C" ORV_INTERNAL const Operation<__VA_ARGS__> orv_##name;
#include "image/arithmetic/float_arithmetic.inc"
#undef KERNEL

}  // namespace orv
