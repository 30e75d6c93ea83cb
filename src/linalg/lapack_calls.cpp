// The calls of the LAPACK routines, in a floating-point environment of the library's choosing: nearest
// rounding, all exceptions masked and, on the x87, 53 bits, whatever the host has set.
#define ORV_LEVEL lapack_calls_px
#define ORV_LEVEL_IS_px 1
#include "core/float_control.h"
#include "linalg/lapack.h"

namespace orv {
namespace {

#if defined(__SSE__)
using Environment = FloatControl;
#else
// 32-bit code for every processor: the routines compute on the x87, but what they call of the C library may
// know better.
class Environment {
public:
    Environment()
    {
        if (!has_sse()) return;
        __asm__ volatile("stmxcsr %0" : "=m"(saved_));
        const unsigned masked = 0x1F80;
        __asm__ volatile("ldmxcsr %0" : : "m"(masked));
    }
    ~Environment()
    {
        if (has_sse()) __asm__ volatile("ldmxcsr %0" : : "m"(saved_));
    }
    Environment(const Environment&) = delete;
    Environment& operator=(const Environment&) = delete;

private:
    static bool has_sse() { return orv_variant_index >= level_w7; }

    FloatControl x87_;
    unsigned saved_ = 0;
};
#endif

}  // namespace

extern "C" {

void orv_sgesvd(const char* jobu, const char* jobvt, const int* m, const int* n, float* a, const int* lda, float* s,
                float* u, const int* ldu, float* vt, const int* ldvt, float* work, const int* lwork, int* info)
{
    const Environment environment;
    orv_lapack_sgesvd(jobu, jobvt, m, n, a, lda, s, u, ldu, vt, ldvt, work, lwork, info, 1, 1);
}

void orv_dgesvd(const char* jobu, const char* jobvt, const int* m, const int* n, double* a, const int* lda, double* s,
                double* u, const int* ldu, double* vt, const int* ldvt, double* work, const int* lwork, int* info)
{
    const Environment environment;
    orv_lapack_dgesvd(jobu, jobvt, m, n, a, lda, s, u, ldu, vt, ldvt, work, lwork, info, 1, 1);
}

void orv_sgetrf(const int* m, const int* n, float* a, const int* lda, int* ipiv, int* info)
{
    const Environment environment;
    orv_lapack_sgetrf(m, n, a, lda, ipiv, info);
}

void orv_sgetrs(const char* trans, const int* n, const int* nrhs, const float* a, const int* lda, const int* ipiv,
                float* b, const int* ldb, int* info)
{
    const Environment environment;
    orv_lapack_sgetrs(trans, n, nrhs, a, lda, ipiv, b, ldb, info, 1);
}

}  // extern "C"

}  // namespace orv
