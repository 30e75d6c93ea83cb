// Routines of BLAS and LAPACK that our own kernels do faster. The linker's --wrap leads the calls here;
// whatever is not the case that LAPACK's four routines live on, or too small to gain, goes on to the
// reference's routine.
#include <cstddef>
#include <cstring>

#include "linalg/lapack_kernels.h"

using std::ptrdiff_t;
using Length = std::size_t;  // of a character argument

#define ORV_GEMM_ARGUMENTS(T)                                                                                          \
    const char *transa, const char *transb, const int *m, const int *n, const int *k, const T *alpha, const T *a,      \
        const int *lda, const T *b, const int *ldb, const T *beta, T *c, const int *ldc, Length transa_length,         \
        Length transb_length
#define ORV_GEMV_ARGUMENTS(T)                                                                                          \
    const char *trans, const int *m, const int *n, const T *alpha, const T *a, const int *lda, const T *x,             \
        const int *incx, const T *beta, T *y, const int *incy, Length trans_length
#define ORV_GER_ARGUMENTS(T)                                                                                           \
    const int *m, const int *n, const T *alpha, const T *x, const int *incx, const T *y, const int *incy, T *a,        \
        const int *lda
#define ORV_LASR_ARGUMENTS(T)                                                                                          \
    const char *side, const char *pivot, const char *direct, const int *m, const int *n, const T *c, const T *s, T *a, \
        const int *lda, Length side_length, Length pivot_length, Length direct_length
#define ORV_TRSM_ARGUMENTS(T)                                                                                          \
    const char *side, const char *uplo, const char *trans, const char *diag, const int *m, const int *n,               \
        const T *alpha, const T *a, const int *lda, T *b, const int *ldb, Length side_length, Length uplo_length,      \
        Length trans_length, Length diag_length
#define ORV_LASWP_ARGUMENTS(T) \
    const int *n, T *a, const int *lda, const int *k1, const int *k2, const int *ipiv, const int *incx
#define ORV_GETRF_ARGUMENTS(T) const int *m, const int *n, T *a, const int *lda, int *ipiv, int *info
#define ORV_ILAENV_ARGUMENTS                                                                                           \
    const int *ispec, const char *name, const char *options, const int *n1, const int *n2, const int *n3,              \
        const int *n4, Length name_length, Length options_length

extern "C" {
#define ORV_DECLARE(T, p)                          \
    void __real_##p##gemm_(ORV_GEMM_ARGUMENTS(T)); \
    void __wrap_##p##gemm_(ORV_GEMM_ARGUMENTS(T)); \
    void __real_##p##gemv_(ORV_GEMV_ARGUMENTS(T)); \
    void __wrap_##p##gemv_(ORV_GEMV_ARGUMENTS(T)); \
    void __real_##p##ger_(ORV_GER_ARGUMENTS(T));   \
    void __wrap_##p##ger_(ORV_GER_ARGUMENTS(T));   \
    void __real_##p##lasr_(ORV_LASR_ARGUMENTS(T)); \
    void __wrap_##p##lasr_(ORV_LASR_ARGUMENTS(T));
ORV_DECLARE(float, s)
ORV_DECLARE(double, d)
#undef ORV_DECLARE
void __real_strsm_(ORV_TRSM_ARGUMENTS(float));
void __wrap_strsm_(ORV_TRSM_ARGUMENTS(float));
void __real_slaswp_(ORV_LASWP_ARGUMENTS(float));
void __wrap_slaswp_(ORV_LASWP_ARGUMENTS(float));
void __wrap_sgetrf2_(ORV_GETRF_ARGUMENTS(float));
int __real_ilaenv_(ORV_ILAENV_ARGUMENTS);
int __wrap_ilaenv_(ORV_ILAENV_ARGUMENTS);
}

namespace {

// --- Products -------------------------------------------------------------------------------------

// y = beta * y, where zero makes zeros of anything.
template <class T>
void scale(int n, T beta, T* y, ptrdiff_t stride)
{
    if (beta == 1) return;
    for (ptrdiff_t i = 0; i < n; ++i) y[i * stride] = beta == 0 ? 0 : beta * y[i * stride];
}

template <class T, class Product>
bool product(ORV_GEMM_ARGUMENTS(T), Product add)
{
    static_cast<void>(transa_length), static_cast<void>(transb_length);
    const bool worth_packing = *m >= 8 && *n >= 4 && *k >= 4;
    if (*beta != 1 || !worth_packing) return false;
    const int a_row = *transa == 'N' ? 1 : *lda, a_column = *transa == 'N' ? *lda : 1;
    const int b_row = *transb == 'N' ? 1 : *ldb, b_column = *transb == 'N' ? *ldb : 1;
    return add(*m, *n, *k, *alpha, a, a_row, a_column, b, b_row, b_column, c, *ldc) == orv::StatusOk;
}

template <class T, class Kernel>
bool vector_product(ORV_GEMV_ARGUMENTS(T), Kernel add_columns, Kernel add_dot_products)
{
    static_cast<void>(trans_length);
    if (*m < 1 || *n < 1 || *incx < 1 || *incy < 1) return false;
    if (*trans == 'N') {
        if (*incy != 1) return false;
        scale(*m, *beta, y, 1);
        add_columns(*m, *n, *alpha, a, *lda, x, *incx, y);
    } else {
        if (*incx != 1) return false;
        scale(*n, *beta, y, *incy);
        add_dot_products(*m, *n, *alpha, a, *lda, x, *incy, y);
    }
    return true;
}

}  // namespace

extern "C" {

#define ORV_DEFINE(T, p, type) \
    void __wrap_##p##gemm_(ORV_GEMM_ARGUMENTS(T)) \
    { \
        if (product(transa, transb, m, n, k, alpha, a, lda, b, ldb, beta, c, ldc, transa_length, transb_length, \
                    orv::orv_add_product_##type)) { \
            return; \
        } \
        __real_##p##gemm_(transa, transb, m, n, k, alpha, a, lda, b, ldb, beta, c, ldc, transa_length, transb_length); \
    } \
    void __wrap_##p##gemv_(ORV_GEMV_ARGUMENTS(T)) \
    { \
        if (vector_product(trans, m, n, alpha, a, lda, x, incx, beta, y, incy, trans_length, \
                           orv::orv_add_columns_##type, orv::orv_add_dot_products_##type)) { \
            return; \
        } \
        __real_##p##gemv_(trans, m, n, alpha, a, lda, x, incx, beta, y, incy, trans_length); \
    } \
    void __wrap_##p##ger_(ORV_GER_ARGUMENTS(T)) \
    { \
        if (*m < 1 || *n < 1 || *incx != 1 || *incy < 1) \
            return __real_##p##ger_(m, n, alpha, x, incx, y, incy, a, lda); \
        orv::orv_add_outer_product_##type(*m, *n, *alpha, x, y, *incy, a, *lda); \
    } \
    void __wrap_##p##lasr_(ORV_LASR_ARGUMENTS(T)) \
    { \
        if (*m < 1 || *n < 1 || *pivot != 'V') { \
            return __real_##p##lasr_(side, pivot, direct, m, n, c, s, a, lda, side_length, pivot_length, \
                                     direct_length); \
        } \
        if (*side == 'R') orv::orv_rotate_columns_##type(*m, *n, *direct == 'B', c, s, a, *lda); \
        else orv::orv_rotate_rows_##type(*m, *n, *direct == 'B', c, s, a, *lda); \
    }
ORV_DEFINE(float, s, 32f)
ORV_DEFINE(double, d, 64f)
#undef ORV_DEFINE

// Row exchanges, column by column: the routine's own order, row by row over 32 columns, meets the same
// few cache sets again and again when the leading dimension is a power of two.
void __wrap_slaswp_(ORV_LASWP_ARGUMENTS(float))
{
    if (*incx != 1) return __real_slaswp_(n, a, lda, k1, k2, ipiv, incx);
    for (ptrdiff_t j = 0; j < *n; ++j) {
        // Bits, not floats: signalling NaNs pass through as they are.
        unsigned* const column = reinterpret_cast<unsigned*>(a + j * *lda);
        for (int k = *k1 - 1; k < *k2; ++k) {
            unsigned here, there;
            std::memcpy(&here, column + k, 4);
            std::memcpy(&there, column + ipiv[k] - 1, 4);
            std::memcpy(column + k, &there, 4);
            std::memcpy(column + ipiv[k] - 1, &here, 4);
        }
    }
}

// The factorisation below blocks itself.
int __wrap_ilaenv_(ORV_ILAENV_ARGUMENTS)
{
    if (*ispec == 1 && name_length >= 6 && std::memcmp(name, "SGETRF", 6) == 0) return 1;
    return __real_ilaenv_(ispec, name, options, n1, n2, n3, n4, name_length, options_length);
}

}  // extern "C"

namespace {

// --- Triangular systems from the left -------------------------------------------------------------

struct Triangle {
    bool upper, transposed, unit;
    const float* a;
    ptrdiff_t lda;

    Triangle from(int row) const { return {upper, transposed, unit, a + row + row * lda, lda}; }
};

void solve(const Triangle& t, int rows, int columns, float* b, int ldb)
{
    const int lda = static_cast<int>(t.lda);
    if (rows == orv::kTriangle && columns >= 4 && !t.upper && !t.transposed && t.unit) {
        orv::orv_solve_unit_lower_32f(columns, t.a, lda, b, ldb);
        return;
    }
    if (rows <= orv::kTriangle) {
        const float one = 1;
        __real_strsm_("L", t.upper ? "U" : "L", t.transposed ? "T" : "N", t.unit ? "U" : "N", &rows, &columns, &one,
                      t.a, &lda, b, &ldb, 1, 1, 1, 1);
        return;
    }
    // Halves: one is solved, the other loses its product with that solution, then it is solved as well.
    const int split = (rows / 2 + orv::kTriangle - 1) / orv::kTriangle * orv::kTriangle, rest = rows - split;
    const bool bottom_first = t.upper != t.transposed;
    const int known_size = bottom_first ? rest : split, other_size = bottom_first ? split : rest;
    float* const known = bottom_first ? b + split : b;
    float* const other = bottom_first ? b : b + split;
    solve(bottom_first ? t.from(split) : t, known_size, columns, known, ldb);
    const float* const square = t.upper ? t.a + split * t.lda : t.a + split;
    const float minus_one = -1, one = 1;
    const int step = 1;
    if (columns >= 4) {
        __wrap_sgemm_(t.transposed ? "T" : "N", "N", &other_size, &columns, &known_size, &minus_one, square, &lda,
                      known, &ldb, &one, other, &ldb, 1, 1);
    } else {
        const int& height = t.transposed ? known_size : other_size;
        const int& width = t.transposed ? other_size : known_size;
        for (ptrdiff_t j = 0; j < columns; ++j) {
            __wrap_sgemv_(t.transposed ? "T" : "N", &height, &width, &minus_one, square, &lda, known + j * ldb, &step,
                          &one, other + j * ldb, &step, 1);
        }
    }
    solve(bottom_first ? t : t.from(split), other_size, columns, other, ldb);
}

// --- LU factorisation -----------------------------------------------------------------------------

void interchange(int columns, float* a, int lda, int first, int last, const int* ipiv)
{
    const int k1 = first + 1, step = 1;
    __wrap_slaswp_(&columns, a, &lda, &k1, &last, ipiv, &step);
}

// How the factorisation by halves of the columns goes on: down to panels of our own, or, where NaNs must spread as
// they do in the reference's routine, down to single columns and by the reference's own steps, which pass over
// zeros of the right-hand side where a product would make NaNs of them.
struct OurSteps {
    static constexpr int kPanel = orv::kPanelColumns;
    static void solve_unit_lower(int rows, int columns, const float* a, float* b, int lda)
    {
        solve({false, false, true, a, lda}, rows, columns, b, lda);
    }
    static constexpr auto multiply = __wrap_sgemm_;
};
struct ReferenceSteps {
    static constexpr int kPanel = 1;
    static void solve_unit_lower(int rows, int columns, const float* a, float* b, int lda)
    {
        const float one = 1;
        __real_strsm_("L", "L", "N", "U", &rows, &columns, &one, a, &lda, b, &lda, 1, 1, 1, 1);
    }
    static constexpr auto multiply = __real_sgemm_;
};

// Returns the number of the first pivot that is zero, or 0.
template <class Steps>
int factor(int m, int n, float* a, int lda, int* ipiv)
{
    if (n <= Steps::kPanel || m == 1) {
        int first_zero = 0;
        orv::orv_factor_panel_32f(m, m == 1 ? 1 : n, a, lda, ipiv, &first_zero);
        return first_zero;
    }
    const int least = m < n ? m : n;
    const int half = (least / 2 + Steps::kPanel - 1) / Steps::kPanel * Steps::kPanel;
    const int left = half < Steps::kPanel ? Steps::kPanel : half;
    const int right = n - left, done = m < left ? m : left;
    float* const beside = a + ptrdiff_t{left} * lda;
    const int upper_zero = factor<Steps>(m, left, a, lda, ipiv);
    interchange(right, beside, lda, 0, done, ipiv);
    Steps::solve_unit_lower(done, right, a, beside, lda);
    if (m <= left) return upper_zero;

    const int below = m - left;
    const float minus_one = -1, one = 1;
    Steps::multiply("N", "N", &below, &right, &left, &minus_one, a + left, &lda, beside, &lda, &one, beside + left,
                    &lda, 1, 1);
    const int lower_zero = factor<Steps>(below, right, beside + left, lda, ipiv + left);
    for (int i = left; i < least; ++i) ipiv[i] += left;
    interchange(left, a, lda, left, least, ipiv);
    return upper_zero != 0 ? upper_zero : lower_zero != 0 ? lower_zero + left : 0;
}

// The reference goes on by blocks of 64 columns where there are more.
int factor_as_reference(int m, int n, float* a, int lda, int* ipiv)
{
    constexpr int kBlock = 64;
    const int least = m < n ? m : n;
    if (least <= kBlock) return factor<ReferenceSteps>(m, n, a, lda, ipiv);
    int first_zero = 0;
    for (int j = 0, next = 0; j < least; j = next) {
        next = least - j < kBlock ? least : j + kBlock;
        const int columns = next - j, right = n - next, below = m - next;
        float* const corner = a + j + ptrdiff_t{j} * lda;
        float* const beside = corner + ptrdiff_t{columns} * lda;
        const int zero = factor<ReferenceSteps>(m - j, columns, corner, lda, ipiv + j);
        if (first_zero == 0 && zero != 0) first_zero = zero + j;
        for (int i = j; i < next; ++i) ipiv[i] += j;
        interchange(j, a, lda, j, next, ipiv);
        if (right < 1) continue;
        interchange(right, beside - j, lda, j, next, ipiv);
        ReferenceSteps::solve_unit_lower(columns, right, corner, beside, lda);
        if (below < 1) continue;
        const float minus_one = -1, one = 1;
        ReferenceSteps::multiply("N", "N", &below, &right, &columns, &minus_one, corner + columns, &lda, beside, &lda,
                                 &one, beside + columns, &lda, 1, 1);
    }
    return first_zero;
}

// Bits, not floats: the compiler may look at several of them at once.
bool all_finite(int m, int n, const float* a, ptrdiff_t lda)
{
    unsigned top = 0;
    for (ptrdiff_t j = 0; j < n; ++j) {
        for (ptrdiff_t i = 0; i < m; ++i) {
            unsigned bits;
            std::memcpy(&bits, a + i + j * lda, 4);
            top |= (bits & 0x7FFFFFFF) + 0x00800000;
        }
    }
    return (top >> 31) == 0;
}

}  // namespace

extern "C" {

void __wrap_strsm_(ORV_TRSM_ARGUMENTS(float))
{
    if (*side != 'L' || *alpha != 1 || *m < 1 || *n < 1) {
        return __real_strsm_(side, uplo, trans, diag, m, n, alpha, a, lda, b, ldb, side_length, uplo_length,
                             trans_length, diag_length);
    }
    solve({*uplo == 'U', *trans != 'N', *diag == 'U', a, *lda}, *m, *n, b, *ldb);
}

void __wrap_sgetrf2_(ORV_GETRF_ARGUMENTS(float))
{
    if (*m < 1 || *n < 1) *info = 0;
    else if (all_finite(*m, *n, a, *lda)) *info = factor<OurSteps>(*m, *n, a, *lda, ipiv);
    else *info = factor_as_reference(*m, *n, a, *lda, ipiv);
}

}  // extern "C"
