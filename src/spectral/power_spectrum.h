// What the power spectrum does before and after its transform.
#pragma once

#include "spectral/lanes.h"

namespace orv {
inline namespace ORV_LEVEL {
namespace {

// The mean, summed in double precision: 32 sums of every 32nd element, added pairwise. The same order
// for every width of vector.
constexpr int kSums = 32;

ORV_INLINE float mean_of(const float* x, std::ptrdiff_t n)
{
    alignas(64) double sums[kSums] = {};
    std::ptrdiff_t i = 0;
#if ORV_HAVE_FLOAT256
    __m256d acc[kSums / 4];
    ORV_UNROLL
    for (int j = 0; j < kSums / 4; ++j) acc[j] = _mm256_setzero_pd();
    for (; i + kSums <= n; i += kSums) {
        ORV_UNROLL
        for (int j = 0; j < kSums / 4; ++j) acc[j] = _mm256_add_pd(acc[j], _mm256_cvtps_pd(_mm_loadu_ps(x + i + 4 * j)));
    }
    ORV_UNROLL
    for (int j = 0; j < kSums / 4; ++j) _mm256_store_pd(sums + 4 * j, acc[j]);
#endif
    for (; i < n; ++i) sums[i % kSums] = rounded(sums[i % kSums] + static_cast<double>(get(x + i)));
    int width = kSums / 2;
#if ORV_HAVE_FLOAT256
    for (; width >= 4; width /= 2) {
        for (int j = 0; j < width; j += 4) {
            _mm256_store_pd(sums + j, _mm256_add_pd(_mm256_load_pd(sums + j), _mm256_load_pd(sums + j + width)));
        }
    }
#endif
    for (; width > 0; width /= 2) {
        for (int j = 0; j < width; ++j) sums[j] = rounded(sums[j] + sums[j + width]);
    }
    return rounded(static_cast<float>(rounded(sums[0] / static_cast<double>(n))));
}

// One NaN for all: of two that meet, compilers may take either.
ORV_INLINE One same_nan(One a) { return a.v == a.v ? a : One{-__builtin_nanf("")}; }
#if ORV_HAVE_VECTORS
template <class V>
ORV_INLINE V same_nan(V a)
{
    return simd::select(simd::unordered(a, a), simd::splat<V>(-__builtin_nanf("")), a);
}
#endif

template <class V>
ORV_INLINE void center_and_window_at(const float* signal, const float* window, float* windowed, float mean)
{
    const V centred = simd::load<V>(signal) - simd::splat<V>(mean);
    simd::store(windowed, same_nan(simd::load<V>(window) * centred));
}

inline void center_and_window(const float* signal, const float* window, float* windowed, std::ptrdiff_t n)
{
    const float mean = mean_of(signal, n);
    std::ptrdiff_t i = 0;
    for (; i + Widest::N <= n; i += Widest::N) center_and_window_at<Widest>(signal + i, window + i, windowed + i, mean);
    for (; i < n; ++i) center_and_window_at<One>(signal + i, window + i, windowed + i, mean);
}

// re^2 + im^2: both squares are exact in double precision, the sum is rounded there and then to float.
ORV_INLINE float power_of(const float* p)
{
    const double re = get(p), im = get(p + 1);
    return rounded(static_cast<float>(rounded(rounded(re * re) + rounded(im * im))));
}

#if ORV_HAVE_VECTORS
// Of four values.
ORV_INLINE __m128 powers_of_four(const float* p)
{
#if ORV_HAVE_FLOAT256
    const __m256d a = _mm256_cvtps_pd(_mm_loadu_ps(p)), b = _mm256_cvtps_pd(_mm_loadu_ps(p + 4));
    const __m256d aa = _mm256_mul_pd(a, a), bb = _mm256_mul_pd(b, b);
    const __m128 even_odd = _mm256_cvtpd_ps(_mm256_add_pd(_mm256_unpacklo_pd(aa, bb), _mm256_unpackhi_pd(aa, bb)));
    return _mm_shuffle_ps(even_odd, even_odd, 0xD8);  // 0 2 1 3 -> 0 1 2 3
#else
    const __m128 x = _mm_loadu_ps(p), y = _mm_loadu_ps(p + 4);
    __m128d a = _mm_cvtps_pd(x), b = _mm_cvtps_pd(_mm_movehl_ps(x, x));
    __m128d c = _mm_cvtps_pd(y), d = _mm_cvtps_pd(_mm_movehl_ps(y, y));
    a = _mm_mul_pd(a, a);
    b = _mm_mul_pd(b, b);
    c = _mm_mul_pd(c, c);
    d = _mm_mul_pd(d, d);
    const __m128 low = _mm_cvtpd_ps(_mm_add_pd(_mm_unpacklo_pd(a, b), _mm_unpackhi_pd(a, b)));
    const __m128 high = _mm_cvtpd_ps(_mm_add_pd(_mm_unpacklo_pd(c, d), _mm_unpackhi_pd(c, d)));
    return _mm_movelh_ps(low, high);
#endif
}
#endif

// out[k] = |X[k]|^2 for all `count` bins of a spectrum of which the first half is given.
inline void mirrored_power(const float* spectrum, float* out, std::ptrdiff_t count)
{
    const std::ptrdiff_t half = count / 2;
    put(out, power_of(spectrum));
    std::ptrdiff_t k = 1;
#if ORV_HAVE_VECTORS
    for (; k + 4 <= half; k += 4) {
        const __m128 powers = powers_of_four(spectrum + 2 * k);
        _mm_storeu_ps(out + k, powers);
        _mm_storeu_ps(out + count - k - 3, _mm_shuffle_ps(powers, powers, 0x1B));
    }
#endif
    for (; k < half; ++k) {
        const float power = power_of(spectrum + 2 * k);
        put(out + k, power);
        put(out + count - k, power);
    }
    if (half > 0) put(out + half, power_of(spectrum + 2 * half));
}

}  // namespace
}  // namespace ORV_LEVEL
}  // namespace orv
