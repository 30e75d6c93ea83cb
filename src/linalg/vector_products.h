// Products of a matrix with a vector and of two vectors, four columns at a time.
#pragma once

#include "linalg/registers.h"

namespace orv {
inline namespace ORV_LEVEL {

// y += the sum of f[j] * column j, for Columns columns.
template <int Columns, class T>
ORV_INLINE void add_columns_to(std::ptrdiff_t rows, const T* a, std::ptrdiff_t lda, const T (&f)[4], T* y)
{
    using R = Register<T>;
    typename R::V factor[Columns];
    for (int j = 0; j < Columns; ++j) factor[j] = R::splat(f[j]);
    for (std::ptrdiff_t i = 0; i < rows; i += R::N) {
        typename R::V sum = load_until(y, i, rows);
        for (int j = 0; j < Columns; ++j) sum += factor[j] * load_until(a + j * lda, i, rows);
        store_until(y, i, rows, sum);
    }
}

template <class T>
ORV_INLINE void add_columns(std::ptrdiff_t rows, std::ptrdiff_t columns, T alpha, const T* a, std::ptrdiff_t lda,
                            const T* x, std::ptrdiff_t stride, T* y)
{
    std::ptrdiff_t j = 0;
    for (; j + 4 <= columns; j += 4) {
        const T f[4] = {alpha * x[j * stride], alpha * x[(j + 1) * stride], alpha * x[(j + 2) * stride],
                        alpha * x[(j + 3) * stride]};
        add_columns_to<4>(rows, a + j * lda, lda, f, y);
    }
    for (; j < columns; ++j) {
        const T f[4] = {alpha * x[j * stride]};
        add_columns_to<1>(rows, a + j * lda, lda, f, y);
    }
}

template <int Columns, class T>
ORV_INLINE void dot_products(std::ptrdiff_t rows, const T* a, std::ptrdiff_t lda, const T* x, T (&dot)[4])
{
    using R = Register<T>;
    typename R::V even[Columns] = {}, odd[Columns] = {};
    std::ptrdiff_t i = 0;
    for (; i + 2 * R::N <= rows; i += 2 * R::N) {
        const typename R::V x0 = R::load(x + i), x1 = R::load(x + i + R::N);
        for (int j = 0; j < Columns; ++j) {
            even[j] += R::load(a + j * lda + i) * x0;
            odd[j] += R::load(a + j * lda + i + R::N) * x1;
        }
    }
    for (; i < rows; i += R::N) {
        const typename R::V x0 = load_until(x, i, rows);
        for (int j = 0; j < Columns; ++j) even[j] += load_until(a + j * lda, i, rows) * x0;
    }
    for (int j = 0; j < Columns; ++j) {
        T lanes[R::N];
        R::store(lanes, even[j] + odd[j]);
        for (int width = R::N / 2; width > 0; width /= 2) {
            for (int r = 0; r < width; ++r) lanes[r] += lanes[r + width];
        }
        dot[j] = lanes[0];
    }
}

template <class T>
ORV_INLINE void add_dot_products(std::ptrdiff_t rows, std::ptrdiff_t columns, T alpha, const T* a, std::ptrdiff_t lda,
                                 const T* x, std::ptrdiff_t stride, T* y)
{
    T dot[4];
    std::ptrdiff_t j = 0;
    for (; j + 4 <= columns; j += 4) {
        dot_products<4>(rows, a + j * lda, lda, x, dot);
        for (int r = 0; r < 4; ++r) y[(j + r) * stride] += alpha * dot[r];
    }
    for (; j < columns; ++j) {
        dot_products<1>(rows, a + j * lda, lda, x, dot);
        y[j * stride] += alpha * dot[0];
    }
}

// Columns columns, each += f[j] * x.
template <int Columns, class T>
ORV_INLINE void add_multiples(std::ptrdiff_t rows, const T* x, const T (&f)[4], T* a, std::ptrdiff_t lda)
{
    using R = Register<T>;
    typename R::V factor[Columns];
    for (int j = 0; j < Columns; ++j) factor[j] = R::splat(f[j]);
    for (std::ptrdiff_t i = 0; i < rows; i += R::N) {
        const typename R::V v = load_until(x, i, rows);
        for (int j = 0; j < Columns; ++j) {
            T* const column = a + j * lda;
            store_until(column, i, rows, load_until(column, i, rows) + factor[j] * v);
        }
    }
}

template <class T>
ORV_INLINE void add_outer_product(std::ptrdiff_t rows, std::ptrdiff_t columns, T alpha, const T* x, const T* y,
                                  std::ptrdiff_t stride, T* a, std::ptrdiff_t lda)
{
    std::ptrdiff_t j = 0;
    for (; j + 4 <= columns; j += 4) {
        const T f[4] = {alpha * y[j * stride], alpha * y[(j + 1) * stride], alpha * y[(j + 2) * stride],
                        alpha * y[(j + 3) * stride]};
        add_multiples<4>(rows, x, f, a + j * lda, lda);
    }
    for (; j < columns; ++j) {
        const T f[4] = {alpha * y[j * stride]};
        add_multiples<1>(rows, x, f, a + j * lda, lda);
    }
}

}  // namespace ORV_LEVEL
}  // namespace orv
