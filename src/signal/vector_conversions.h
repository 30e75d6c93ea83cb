// Vectors of one type of elements from another.
#pragma once

#include "core/shapes.h"

namespace orv {

#define KERNEL(name, ...) extern "C" ORV_INTERNAL const Operation<__VA_ARGS__> orv_##name;
#include "signal/vector_conversions.inc"
#undef KERNEL

}  // namespace orv
