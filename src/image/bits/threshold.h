// Thresholding: pixels on one side of a threshold, or beyond two of them, are replaced.
#pragma once

#include "image/bits/relations.h"
#include "core/shapes.h"

namespace orv {

// `relation` is a Relation, of which these operations take relation_less and relation_greater.
template <class T>
using ThresholdOne = Status(const T* src, int srcStep, T* dst, int dstStep, Size roi, int relation, T threshold);
template <class T>
using ThresholdEach = Status(const T* src, int srcStep, T* dst, int dstStep, Size roi, int relation,
                             const T* thresholds);
template <class T>
using ThresholdValue = Status(const T* src, int srcStep, T* dst, int dstStep, Size roi, int relation, T threshold,
                              T value);
template <class T>
using ThresholdBothOne = Status(const T* src, int srcStep, T* dst, int dstStep, Size roi, T thresholdLT, T valueLT,
                                T thresholdGT, T valueGT);
template <class T>
using ThresholdBothEach = Status(const T* src, int srcStep, T* dst, int dstStep, Size roi, const T* thresholdLT,
                                 const T* valueLT, const T* thresholdGT, const T* valueGT);

#define KERNEL(name, ...) extern "C" ORV_INTERNAL const Operation<__VA_ARGS__> orv_##name;
#include "image/bits/threshold.inc"
#undef KERNEL

}  // namespace orv
