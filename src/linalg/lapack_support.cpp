// What the LAPACK routines expect around them, so that they need nothing but the C library.
#include <cmath>
#include <cstddef>
#include <cstring>

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

}  // extern "C"
