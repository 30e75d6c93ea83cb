#include "linalg/lapack_kernels.h"

#include "core/assert.h"
#include "linalg/packed_product.h"
#include "linalg/plane_rotations.h"
#include "linalg/vector_products.h"

namespace orv {
namespace lapack_kernels {
namespace ORV_LEVEL {
namespace {

using std::ptrdiff_t;

template <class T>
Status product(int rows, int columns, int inner, T alpha, const T* a, int aRow, int aColumn, const T* b, int bRow,
               int bColumn, T* c, int ldc)
{
    ORV_ASSERT(rows > 0 && columns > 0 && inner > 0 && a != nullptr && b != nullptr && c != nullptr);
    PackedProduct<T> p;
    p.a = a;
    p.b = b;
    p.c = c;
    p.a_row = aRow;
    p.a_column = aColumn;
    p.b_row = bRow;
    p.b_column = bColumn;
    p.ldc = ldc;
    p.alpha = alpha;
    return p.run(rows, columns, inner);
}

// --- Triangular systems ---------------------------------------------------------------------------

// A register of columns at a time, row by row: each row loses its multiples of the rows above it.
template <class T>
ORV_INLINE void solve_block(const T* l, ptrdiff_t ldl, T* b, ptrdiff_t ldb, ptrdiff_t j, ptrdiff_t columns)
{
    using R = Register<T>;
    using V = typename R::V;
    constexpr int n = kTriangle;
    T* column[R::N];
    for (int i = 0; i < R::N; ++i) column[i] = b + (j + i < columns ? j + i : columns - 1) * ldb;
    V row[n];
    for (int top = 0; top < n; top += R::N) {
        V part[R::N];
        for (int i = 0; i < R::N; ++i) part[i] = R::load(column[i] + top);
        transpose(part);
        for (int i = 0; i < R::N; ++i) row[top + i] = part[i];
    }
    for (int k = 0; k < n; ++k) {
        for (int i = k + 1; i < n; ++i) row[i] -= R::splat(l[i + k * ldl]) * row[k];
    }
    for (int top = 0; top < n; top += R::N) {
        V part[R::N];
        for (int i = 0; i < R::N; ++i) part[i] = row[top + i];
        transpose(part);
        for (int i = 0; i < R::N; ++i) R::store(column[i] + top, part[i]);
    }
}

// --- Panels ---------------------------------------------------------------------------------------

template <class T>
ORV_INLINE T absolute(T x)
{
    return x < 0 ? -x : x;
}

// The first of the elements of largest absolute value. As in the reference's search, a NaN in the first place is
// never surpassed, and NaNs anywhere else do not count.
template <class T>
ORV_INLINE ptrdiff_t largest(const T* x, ptrdiff_t n)
{
    using R = Register<T>;
    using V = typename R::V;
    if (x[0] != x[0]) return 0;
    V best[4] = {};
    ptrdiff_t i = 0;
    for (; i + 4 * R::N <= n; i += 4 * R::N) {
        for (int r = 0; r < 4; ++r) {
            best[r] = R::larger(best[r], R::load(x + i + r * R::N));
        }
    }
    T lanes[4 * R::N], most = 0;
    for (int r = 0; r < 4; ++r) R::store(lanes + r * R::N, best[r]);
    for (int r = 0; r < 4 * R::N; ++r) most = lanes[r] > most ? lanes[r] : most;
    for (; i < n; ++i) most = absolute(x[i]) > most ? absolute(x[i]) : most;
    for (i = 0; i < n; ++i) {
        if (absolute(x[i]) == most) return i;
    }
    return 0;
}

template <class T>
ORV_INLINE void factor_panel(ptrdiff_t rows, ptrdiff_t columns, T* a, ptrdiff_t lda, int* pivotRow, int* firstZero)
{
    constexpr T kSafe = static_cast<T>(1.17549435e-38);  // its reciprocal is finite
    ORV_ASSERT(rows > 0 && columns > 0 && columns <= kPanelColumns && lda >= rows);
    *firstZero = 0;
    for (ptrdiff_t k = 0; k < rows && k < columns; ++k) {
        T* const column = a + k * lda;
        const ptrdiff_t p = k + largest(column + k, rows - k);
        pivotRow[k] = static_cast<int>(p) + 1;
        const T pivot = column[p];
        if (pivot == 0) {
            if (*firstZero == 0) *firstZero = static_cast<int>(k) + 1;
        } else {
            if (p != k) {
                for (ptrdiff_t j = 0; j < columns; ++j) {
                    const T kept = a[k + j * lda];
                    a[k + j * lda] = a[p + j * lda];
                    a[p + j * lda] = kept;
                }
            }
            const bool safe = absolute(pivot) >= kSafe;
            const T reciprocal = safe ? 1 / pivot : 1;
            for (ptrdiff_t i = k + 1; i < rows; ++i) column[i] = safe ? column[i] * reciprocal : column[i] / pivot;
        }
        if (k + 1 < rows) {
            add_outer_product(rows - k - 1, columns - k - 1, T{-1}, column + k + 1, column + lda + k, lda,
                              column + lda + k + 1, lda);
        }
    }
}

}  // namespace

// --- Kernels --------------------------------------------------------------------------------------

#define ORV_KERNELS(T, type) \
    Status add_product_##type(int rows, int columns, int inner, T alpha, const T* a, int aRow, int aColumn, \
                              const T* b, int bRow, int bColumn, T* c, int ldc) \
    { \
        return product(rows, columns, inner, alpha, a, aRow, aColumn, b, bRow, bColumn, c, ldc); \
    } \
    Status add_columns_##type(int rows, int columns, T alpha, const T* a, int lda, const T* x, int stride, T* y) \
    { \
        ORV_ASSERT(rows > 0 && columns > 0 && lda >= rows); \
        add_columns(rows, columns, alpha, a, lda, x, stride, y); \
        return StatusOk; \
    } \
    Status add_dot_products_##type(int rows, int columns, T alpha, const T* a, int lda, const T* x, int stride, T* y) \
    { \
        ORV_ASSERT(rows > 0 && columns > 0 && lda >= rows); \
        add_dot_products(rows, columns, alpha, a, lda, x, stride, y); \
        return StatusOk; \
    } \
    Status add_outer_product_##type(int rows, int columns, T alpha, const T* x, const T* y, int stride, T* a, int lda) \
    { \
        ORV_ASSERT(rows > 0 && columns > 0 && lda >= rows); \
        add_outer_product(rows, columns, alpha, x, y, stride, a, lda); \
        return StatusOk; \
    } \
    Status rotate_columns_##type(int rows, int columns, bool backward, const T* c, const T* s, T* a, int lda) \
    { \
        ORV_ASSERT(rows > 0 && columns > 1 && lda >= rows); \
        rotate_columns(rows, columns, backward, c, s, a, lda); \
        return StatusOk; \
    } \
    Status rotate_rows_##type(int rows, int columns, bool backward, const T* c, const T* s, T* a, int lda) \
    { \
        ORV_ASSERT(columns > 0 && lda >= rows); \
        rotate_rows(rows, columns, backward, c, s, a, lda); \
        return StatusOk; \
    }
ORV_KERNELS(float, 32f)
ORV_KERNELS(double, 64f)
#undef ORV_KERNELS

Status factor_panel_32f(int rows, int columns, float* a, int lda, int* pivotRow, int* firstZero)
{
    factor_panel(rows, columns, a, lda, pivotRow, firstZero);
    return StatusOk;
}

Status solve_unit_lower_32f(int columns, const float* l, int ldl, float* b, int ldb)
{
    ORV_ASSERT(columns > 0 && ldl >= kTriangle && ldb >= kTriangle);
    for (ptrdiff_t j = 0; j < columns; j += Register<float>::N) solve_block(l, ldl, b, ldb, j, columns);
    return StatusOk;
}

}  // namespace ORV_LEVEL
}  // namespace lapack_kernels
}  // namespace orv
