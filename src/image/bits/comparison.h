// Comparison of two images, and of an image with constants, to masks of 0 and 255.
#pragma once

#include "image/bits/relations.h"
#include "core/shapes.h"

namespace orv {

// `relation` is a Relation. Codes beyond the last one write nothing and are no error.
template <class T>
using Comparison = Status(const T* src1, int src1Step, const T* src2, int src2Step, unsigned char* dst, int dstStep,
                          Size roi, int relation);
template <class T>
using ComparisonWithValue = Status(const T* src, int srcStep, T value, unsigned char* dst, int dstStep, Size roi,
                                   int relation);
template <class T>
using ComparisonWithValues = Status(const T* src, int srcStep, const T* values, unsigned char* dst, int dstStep,
                                    Size roi, int relation);

#define KERNEL(name, ...) extern "C" ORV_INTERNAL const Operation<__VA_ARGS__> orv_##name;
#include "image/bits/comparison.inc"
#undef KERNEL

}  // namespace orv
