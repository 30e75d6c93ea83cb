// What the power spectrum does before and after its transform.
#pragma once

#include "elementwise/lane_sums.h"
#include "simd/conversion.h"
#include "simd/neighbours.h"
#include "simd/shuffles.h"
#include "spectral/lanes.h"

namespace orv {
inline namespace ORV_LEVEL {
namespace {

ORV_INLINE float mean_of(const float* x, std::ptrdiff_t n)
{
    const double sum = sum_in_lanes(Elements<float>{x}, n);
    return rounded(static_cast<float>(rounded(sum / static_cast<double>(n))));
}

// One NaN for all: of two that meet, compilers may take either.
template <class V>
ORV_INLINE V same_nan(V a)
{
    return select(unordered(a), simd::splat<V>(-__builtin_nanf("")), a);
}

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

// Of four values.
template <class D>
ORV_INLINE Narrow powers_of_four(const float* p)
{
    const auto squares = [p](int i) {
        const auto v = simd::load_as<D>::from(p + i);
        return v * v;
    };
    if constexpr (D::N == 4) {
        const D a = squares(0), b = squares(4);
        return simd::permuted<0, 2, 1, 3>(to_float(even_of(a, b) + odd_of(a, b)));
    } else {
        const D a = squares(0), b = squares(2), c = squares(4), d = squares(6);
        return to_float(simd::twice<D>{even_of(a, b) + odd_of(a, b), even_of(c, d) + odd_of(c, d)});
    }
}

// out[k] = |X[k]|^2 for all `count` bins of a spectrum of which the first half is given.
inline void mirrored_power(const float* spectrum, float* out, std::ptrdiff_t count)
{
    const std::ptrdiff_t half = count / 2;
    put(out, power_of(spectrum));
    std::ptrdiff_t k = 1;
    if constexpr (ORV_HAVE_VECTORS) {
        for (; k + 4 <= half; k += 4) {
            const Narrow powers = powers_of_four<simd::widest<double>>(spectrum + 2 * k);
            simd::store(out + k, powers);
            simd::store(out + count - k - 3, simd::permuted<3, 2, 1, 0>(powers));
        }
    }
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
