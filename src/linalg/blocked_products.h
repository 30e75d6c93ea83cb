// c += alpha * a * b on column-major matrices, for LAPACK. Fused where the processor can: of all kernels
// these alone may give other bits on other processors, as LAPACK's results may.
#pragma once

#include "core/operation.h"

namespace orv {

// a is rows x inner, b inner x columns; ld* are leading dimensions in elements. StatusNoMemory, and nothing
// done, when the packed copy of a cannot be had.
template <class T>
using ProductUpdate = Status(int rows, int columns, int inner, T alpha, const T* a, int lda, const T* b, int ldb, T* c,
                             int ldc);

#define KERNEL(name, ...) extern "C" ORV_INTERNAL const Operation<__VA_ARGS__> orv_##name;
#include "linalg/blocked_products.inc"
#undef KERNEL

namespace blocked_products {
#define KERNEL(name, ...) __VA_ARGS__ name;
namespace px {
#include "linalg/blocked_products.inc"
}
namespace w7 {
#include "linalg/blocked_products.inc"
}
namespace g9 {
#include "linalg/blocked_products.inc"
}
namespace h9 {
#include "linalg/blocked_products.inc"
}
#undef KERNEL
namespace v8 = w7;
namespace s8 = w7;
namespace p8 = w7;
}  // namespace blocked_products

}  // namespace orv
