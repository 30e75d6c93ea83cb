// Sums, products, transposition and filling of matrices over byte strides.
#pragma once

#include "core/operation.h"

namespace orv {

template <class T>
using MatrixMatrixDst = Status(const T* src1, int src1Stride1, int src1Stride2, const T* src2, int src2Stride1,
                               int src2Stride2, T* dst, int dstStride1, int dstStride2, int width, int height);
template <class T>
using MatrixValueDst = Status(const T* src, int srcStride1, int srcStride2, T value, T* dst, int dstStride1,
                              int dstStride2, int width, int height);
template <class T>
using MatrixProduct = Status(const T* src1, int src1Stride1, int src1Stride2, int src1Width, int src1Height,
                             const T* src2, int src2Stride1, int src2Stride2, int src2Width, int src2Height, T* dst,
                             int dstStride1, int dstStride2);
template <class T>
using MatrixVectorProduct = Status(const T* src1, int src1Stride1, int src1Stride2, int src1Width, int src1Height,
                                   const T* src2, int src2Stride2, int src2Len, T* dst, int dstStride2);
template <class T>
using MatrixDst = Status(const T* src, int srcStride1, int srcStride2, int width, int height, T* dst, int dstStride1,
                         int dstStride2);
template <class T>
using MatricesDst = Status(T* dst, int dstStride0, int dstStride1, int dstStride2, int width, int height, int count);
template <class T>
using MatricesSrcDst = Status(const T* src, int srcStride0, int srcStride1, int srcStride2, T* dst, int dstStride0,
                              int dstStride1, int dstStride2, int width, int height, int count);

#define KERNEL(name, ...) extern "C" ORV_INTERNAL const Operation<__VA_ARGS__> orv_##name;
#include "linalg/matrices.inc"
#undef KERNEL

}  // namespace orv
