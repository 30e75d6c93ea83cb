// Vectors sorted, with or without the places that their elements had.
#pragma once

#include "core/shapes.h"

namespace orv {

template <class T>
using VecIndexed = Status(T* srcDst, int* index, Length len);

#define KERNEL(name, ...) extern "C" ORV_INTERNAL const Operation<__VA_ARGS__> orv_##name;
#include "signal/sorting.inc"
#undef KERNEL

}  // namespace orv
