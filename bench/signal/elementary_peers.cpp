// Compiled with -O3 -ffast-math -mavx2 -mfma: GCC then calls glibc's vector functions.
#include "elementary_peers.h"

#include <immintrin.h>
#include <sleef.h>

#include <cmath>

namespace peers {

#define MVEC(name, T, f) \
    void name(const T* x, T* y, int n) { for (int i = 0; i < n; ++i) y[i] = f(x[i]); }
MVEC(mvec_expf, float, std::exp)
MVEC(mvec_logf, float, std::log)
MVEC(mvec_sinf, float, std::sin)
MVEC(mvec_cosf, float, std::cos)
MVEC(mvec_exp, double, std::exp)
MVEC(mvec_log, double, std::log)
MVEC(loop_sqrt, double, std::sqrt)
MVEC(loop_abs, float, std::fabs)
MVEC(loop_floor, float, std::floor)

// One loop for each: GCC would make a call of sincos() of both, which has no vector form.
void mvec_sincosf(const float* x, float* s, float* c, int n)
{
    mvec_sinf(x, s, n);
    mvec_cosf(x, c, n);
}
void mvec_sincos(const double* x, double* s, double* c, int n)
{
    for (int i = 0; i < n; ++i) s[i] = std::sin(x[i]);
    for (int i = 0; i < n; ++i) c[i] = std::cos(x[i]);
}
void mvec_atan2f(const float* y, float* x, float* r, int n)
{
    for (int i = 0; i < n; ++i) r[i] = std::atan2(y[i], x[i]);
}
void loop_hypot(const float* x, float* y, float* r, int n)
{
    for (int i = 0; i < n; ++i) r[i] = static_cast<float>(std::sqrt(double{x[i]} * x[i] + double{y[i]} * y[i]));
}

#define SLEEF_FLOAT(name, f) \
    void name(const float* x, float* y, int n) \
    { \
        for (int i = 0; i < n; i += 8) _mm256_storeu_ps(y + i, f(_mm256_loadu_ps(x + i))); \
    }
#define SLEEF_DOUBLE(name, f) \
    void name(const double* x, double* y, int n) \
    { \
        for (int i = 0; i < n; i += 4) _mm256_storeu_pd(y + i, f(_mm256_loadu_pd(x + i))); \
    }
SLEEF_FLOAT(sleef_expf, Sleef_expf8_u10avx2)
SLEEF_FLOAT(sleef_logf, Sleef_logf8_u10avx2)
SLEEF_FLOAT(sleef_logf_u35, Sleef_logf8_u35avx2)
SLEEF_FLOAT(sleef_sinf, Sleef_fastsinf8_u3500avx2)
SLEEF_FLOAT(sleef_cosf, Sleef_fastcosf8_u3500avx2)
SLEEF_DOUBLE(sleef_exp, Sleef_expd4_u10avx2)
SLEEF_DOUBLE(sleef_log, Sleef_logd4_u10avx2)

void sleef_sincosf(const float* x, float* s, float* c, int n)
{
    for (int i = 0; i < n; i += 8) {
        const Sleef___m256_2 both = Sleef_sincosf8_u35avx2(_mm256_loadu_ps(x + i));
        _mm256_storeu_ps(s + i, both.x);
        _mm256_storeu_ps(c + i, both.y);
    }
}
void sleef_sincos(const double* x, double* s, double* c, int n)
{
    for (int i = 0; i < n; i += 4) {
        const Sleef___m256d_2 both = Sleef_sincosd4_u10avx2(_mm256_loadu_pd(x + i));
        _mm256_storeu_pd(s + i, both.x);
        _mm256_storeu_pd(c + i, both.y);
    }
}
void sleef_atan2f(const float* y, float* x, float* r, int n)
{
    for (int i = 0; i < n; i += 8)
        _mm256_storeu_ps(r + i, Sleef_atan2f8_u10avx2(_mm256_loadu_ps(y + i), _mm256_loadu_ps(x + i)));
}

}  // namespace peers
