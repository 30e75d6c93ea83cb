// Vectors filled with a value.
#pragma once

#include "Complex32f.h"
#include "core/shapes.h"

namespace orv {

// The value by its address: see facade/in_memory.h.
template <class T>
using VecSet = Status(const T& value, T* dst, Length len);

#define KERNEL(name, ...) extern "C" ORV_INTERNAL const Operation<__VA_ARGS__> orv_##name;
#include "signal/vector_fill.inc"
#undef KERNEL

}  // namespace orv
