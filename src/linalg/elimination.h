// Gaussian elimination over byte strides: LU decomposition, substitution, inversion.
#pragma once

#include "core/operation.h"

namespace orv {

template <class T>
using Decomposition = Status(const T* src, int srcStride1, int srcStride2, int* dstIndex, T* dst, int dstStride1,
                             int dstStride2, int widthHeight);
template <class T>
using Substitution = Status(const T* srcLU, int srcLUStride1, int srcLUStride2, const int* srcIndex, const T* srcB,
                            int srcBStride2, T* dstX, int dstXStride2, int widthHeight);
// `buffer` has widthHeight * (widthHeight + 1) elements.
template <class T>
using Inversion = Status(const T* src, int srcStride1, int srcStride2, T* buffer, T* dst, int dstStride1,
                         int dstStride2, int widthHeight);

#define KERNEL(name, ...) extern "C" ORV_INTERNAL const Operation<__VA_ARGS__> orv_##name;
#include "linalg/elimination.inc"
#undef KERNEL

}  // namespace orv
