// Statistics of vectors: sums, means, deviations, products, extremes and where they are.
#pragma once

#include "core/shapes.h"

namespace orv {

template <class T, class R>
using VecResult = Status(const T* src, Length len, R* result);

template <class T, class R>
using VecVecResult = Status(const T* src1, const T* src2, Length len, R* result);

template <class T, class R>
using VecTwoResults = Status(const T* src, Length len, R* first, R* second);

template <class T>
using VecPosition = Status(const T* src, Length len, T* value, int* index);

#define KERNEL(name, ...) extern "C" ORV_INTERNAL const Operation<__VA_ARGS__> orv_##name;
#include "signal/statistics.inc"
#undef KERNEL

}  // namespace orv
