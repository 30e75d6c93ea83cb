// What LAPACK's routines spend their time in, on column-major matrices. Products and sums are fused where
// the processor can: of all kernels these alone may give other bits on other processors, as LAPACK's
// results may.
//
// Sizes are at least 1 and pointers are not null: the callers see to that. ld* are leading dimensions, other
// distances are called strides; both count elements.
#pragma once

#include "core/operation.h"

namespace orv {

// c += alpha * a * b, where a is rows x inner and b inner x columns. Element (i, k) of a lies at
// i * aRow + k * aColumn, of b likewise: a transposed matrix has them the other way round. StatusNoMemory,
// and nothing done, when the packed copies of a and b cannot be had.
template <class T>
using ProductUpdate = Status(int rows, int columns, int inner, T alpha, const T* a, int aRow, int aColumn, const T* b,
                             int bRow, int bColumn, T* c, int ldc);

// y += alpha * a * x (add_columns: y is contiguous, `stride` is that of x) or
// y += alpha * a' * x (add_dot_products: x is contiguous, `stride` is that of y).
template <class T>
using VectorProductUpdate = Status(int rows, int columns, T alpha, const T* a, int lda, const T* x, int stride, T* y);

// a += alpha * x * y'; x is contiguous.
template <class T>
using OuterProductUpdate = Status(int rows, int columns, T alpha, const T* x, const T* y, int stride, T* a, int lda);

// Plane rotations of neighbouring columns or rows, one after the other from the first pair on, or from
// the last when `backward`: (u, v) of pair k become (c[k] u + s[k] v, c[k] v - s[k] u). There are columns - 1
// or rows - 1 pairs.
template <class T>
using Rotations = Status(int rows, int columns, bool backward, const T* c, const T* s, T* a, int lda);

// LU factors, by partial pivoting, of a matrix of at most kPanelColumns columns; pivot rows and *firstZero (a
// pivot that is zero; 0 when there is none) count from 1.
constexpr int kPanelColumns = 16;
template <class T>
using PanelFactors = Status(int rows, int columns, T* a, int lda, int* pivotRow, int* firstZero);

// b becomes the solution x of l x = b, where l is unit lower triangular, of kTriangle rows.
constexpr int kTriangle = 8;
template <class T>
using TriangleSolution = Status(int columns, const T* l, int ldl, T* b, int ldb);

#define KERNEL(name, ...) extern "C" ORV_INTERNAL const Operation<__VA_ARGS__> orv_##name;
#include "linalg/lapack_kernels.inc"
#undef KERNEL

}  // namespace orv
