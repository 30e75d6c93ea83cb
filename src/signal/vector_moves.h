// Vectors cleared and moved as they are. The C library's copy and fill choose by the processor themselves: one
// variant serves all levels.
#pragma once

#include "Complex32f.h"
#include "core/shapes.h"

namespace orv {

#define KERNEL(name, ...) extern "C" ORV_INTERNAL const Operation<__VA_ARGS__> orv_##name;
#include "signal/vector_moves.inc"
#undef KERNEL

}  // namespace orv
