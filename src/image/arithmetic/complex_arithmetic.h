// Complex arithmetic: 32fc with one channel.
#pragma once

#include "core/shapes.h"
#include "Complex32f.h"

namespace orv {

#define KERNEL(name, ...) extern "C" ORV_INTERNAL const Operation<__VA_ARGS__> orv_##name;
#include "image/arithmetic/complex_arithmetic.inc"
#undef KERNEL

}  // namespace orv
