// Convolution with a kernel of the caller's.
#pragma once

#include "core/shapes.h"

namespace orv {

template <class From, class To>
using IntegerConvolution = Status(const From* src, int srcStep, To* dst, int dstStep, Size roi, const int* kernel,
                                  int kernelWidth, int kernelHeight, int anchorX, int anchorY, int divisor);

template <class From>
using FloatConvolution = Status(const From* src, int srcStep, float* dst, int dstStep, Size roi, const float* kernel,
                                int kernelWidth, int kernelHeight, int anchorX, int anchorY);

#define KERNEL(name, ...) extern "C" ORV_INTERNAL const Operation<__VA_ARGS__> orv_##name;
#include "image/filters/convolution_float.inc"
#include "image/filters/convolution_integer.inc"
#undef KERNEL

}  // namespace orv
