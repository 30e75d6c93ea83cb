// Float vectors: 32f, 64f.
#pragma once

#include "core/shapes.h"

namespace orv {

#define KERNEL(name, ...) extern "C" ORV_INTERNAL const Operation<__VA_ARGS__> orv_##name;
#include "signal/float_vectors.inc"
#undef KERNEL

}  // namespace orv
