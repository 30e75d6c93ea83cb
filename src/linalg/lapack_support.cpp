// What the LAPACK routines expect around them, so that they need nothing but the C library.
#include <cmath>
#include <cstddef>
#include <cstring>

#include "linalg/blocked_products.h"

namespace {

// Does x * 0 + y * 0 ... stay 0? Then all are finite.
template <class T>
bool all_finite(const T* values, int count)
{
    T sum = 0;
    for (int i = 0; i < count; ++i) sum += values[i] * 0;
    return sum == 0;
}

// The diagonal and the superdiagonal of a bidiagonal matrix. If they are not finite, the singular values
// become NaNs, and none of the n - 1 superdiagonals counts as converged.
template <class T>
bool refuse_non_finite(int n, T* d, const T* e, int* info)
{
    if (n < 2 || (all_finite(d, n) && all_finite(e, n - 1))) return false;
    for (int i = 0; i < n; ++i) d[i] = static_cast<T>(NAN);
    *info = n - 1;
    return true;
}

}  // namespace

extern "C" {

// The iteration for the singular values of a bidiagonal matrix can run for ever when its convergence
// threshold is a NaN, which infinities or NaNs in the matrix make of it. Calls to it therefore come here
// first (the linker's --wrap).
#define ORV_GUARD(T, routine)                                                                              \
    void __real_##routine(const char* uplo, const int* n, const int* ncvt, const int* nru, const int* ncc, \
                          T* d, T* e, T* vt, const int* ldvt, T* u, const int* ldu, T* c, const int* ldc,  \
                          T* work, int* info, std::size_t uplo_length);                                    \
    void __wrap_##routine(const char* uplo, const int* n, const int* ncvt, const int* nru, const int* ncc, \
                          T* d, T* e, T* vt, const int* ldvt, T* u, const int* ldu, T* c, const int* ldc,  \
                          T* work, int* info, std::size_t uplo_length);                                    \
    void __wrap_##routine(const char* uplo, const int* n, const int* ncvt, const int* nru, const int* ncc, \
                          T* d, T* e, T* vt, const int* ldvt, T* u, const int* ldu, T* c, const int* ldc,  \
                          T* work, int* info, std::size_t uplo_length)                                     \
    {                                                                                                      \
        if (refuse_non_finite(*n, d, e, info)) return;                                                     \
        __real_##routine(uplo, n, ncvt, nru, ncc, d, e, vt, ldvt, u, ldu, c, ldc, work, info, uplo_length); \
    }
ORV_GUARD(float, sbdsqr_)
ORV_GUARD(double, dbdsqr_)
#undef ORV_GUARD

// The error handler. LAPACK's own one prints a message and ends the process; ours leaves the report to
// *info, which the routine has set, and lets the routine return to its caller.
void xerbla_(const char* routine, const int* argument, std::size_t routine_length);
void xerbla_(const char*, const int*, std::size_t) {}

// Fortran's a // b, cut off or padded with blanks to the length of the result: of all its run-time
// library the only function that the routines call.
void _gfortran_concat_string(std::size_t length, char* result, std::size_t a_length, const char* a,
                             std::size_t b_length, const char* b);
void _gfortran_concat_string(std::size_t length, char* result, std::size_t a_length, const char* a,
                             std::size_t b_length, const char* b)
{
    if (a_length > length) a_length = length;
    if (b_length > length - a_length) b_length = length - a_length;
    std::memcpy(result, a, a_length);
    std::memcpy(result + a_length, b, b_length);
    std::memset(result + a_length + b_length, ' ', length - a_length - b_length);
}

// The products that blocked factorisations spend their time in go to our own kernels (--wrap again): c += alpha *
// a * b without transposition, unless it is too small to gain.
void __real_sgemm_(const char* transa, const char* transb, const int* m, const int* n, const int* k, const float* alpha,
                   const float* a, const int* lda, const float* b, const int* ldb, const float* beta, float* c,
                   const int* ldc, std::size_t transa_length, std::size_t transb_length);
void __wrap_sgemm_(const char* transa, const char* transb, const int* m, const int* n, const int* k, const float* alpha,
                   const float* a, const int* lda, const float* b, const int* ldb, const float* beta, float* c,
                   const int* ldc, std::size_t transa_length, std::size_t transb_length);
void __wrap_sgemm_(const char* transa, const char* transb, const int* m, const int* n, const int* k, const float* alpha,
                   const float* a, const int* lda, const float* b, const int* ldb, const float* beta, float* c,
                   const int* ldc, std::size_t transa_length, std::size_t transb_length)
{
    const bool plain = *transa == 'N' && *transb == 'N' && *beta == 1;
    if (plain && *m >= 16 && *n >= 4 && *k >= 4 &&
        orv::orv_add_product_32f(*m, *n, *k, *alpha, a, *lda, b, *ldb, c, *ldc) == orv::StatusOk) {
        return;
    }
    __real_sgemm_(transa, transb, m, n, k, alpha, a, lda, b, ldb, beta, c, ldc, transa_length, transb_length);
}

// Row exchanges, column by column: the routine's own order, row by row over 32 columns, meets the same
// few cache sets again and again when the leading dimension is a power of two.
void __real_slaswp_(const int* n, float* a, const int* lda, const int* k1, const int* k2, const int* ipiv, const int* incx);
void __wrap_slaswp_(const int* n, float* a, const int* lda, const int* k1, const int* k2, const int* ipiv, const int* incx);
void __wrap_slaswp_(const int* n, float* a, const int* lda, const int* k1, const int* k2, const int* ipiv, const int* incx)
{
    if (*incx != 1) return __real_slaswp_(n, a, lda, k1, k2, ipiv, incx);
    for (std::ptrdiff_t j = 0; j < *n; ++j) {
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

// Triangular systems L X = B with a unit diagonal: halves, of which the second loses its product with the
// solution of the first, down to the size where the routine itself is as good.
void __real_strsm_(const char* side, const char* uplo, const char* trans, const char* diag, const int* m, const int* n,
                   const float* alpha, const float* a, const int* lda, float* b, const int* ldb, std::size_t,
                   std::size_t, std::size_t, std::size_t);
void __wrap_strsm_(const char* side, const char* uplo, const char* trans, const char* diag, const int* m, const int* n,
                   const float* alpha, const float* a, const int* lda, float* b, const int* ldb, std::size_t,
                   std::size_t, std::size_t, std::size_t);
void __wrap_strsm_(const char* side, const char* uplo, const char* trans, const char* diag, const int* m, const int* n,
                   const float* alpha, const float* a, const int* lda, float* b, const int* ldb, std::size_t side_length,
                   std::size_t uplo_length, std::size_t trans_length, std::size_t diag_length)
{
    const bool ours = *side == 'L' && *uplo == 'L' && *trans == 'N' && *diag == 'U' && *alpha == 1;
    if (!ours || *m <= 8 || *n < 4) {
        __real_strsm_(side, uplo, trans, diag, m, n, alpha, a, lda, b, ldb, side_length, uplo_length, trans_length,
                      diag_length);
        return;
    }
    const int upper = (*m / 2 + 7) / 8 * 8, lower = *m - upper;
    const float minus_one = -1, one = 1;
    __wrap_strsm_(side, uplo, trans, diag, &upper, n, alpha, a, lda, b, ldb, 1, 1, 1, 1);
    __wrap_sgemm_("N", "N", &lower, n, &upper, &minus_one, a + upper, lda, b, ldb, &one, b + upper, ldb, 1, 1);
    __wrap_strsm_(side, uplo, trans, diag, &lower, n, alpha, a + upper + static_cast<std::ptrdiff_t>(upper) * *lda, lda,
                  b + upper, ldb, 1, 1, 1, 1);
}

}  // extern "C"
