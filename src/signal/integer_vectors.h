// Integer vectors under the scaling rule: 8u, 16u, 32s.
#pragma once

#include "core/shapes.h"

namespace orv {

#define KERNEL(name, ...) extern "C" ORV_INTERNAL const Operation<__VA_ARGS__> orv_##name;
#include "signal/integer_vectors.inc"
#undef KERNEL

}  // namespace orv
