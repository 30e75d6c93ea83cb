// Absolute values of complex numbers whose parts lie apart: sqrt(re re + im im) in double, rounded to float. Vectors
// and images compute with the same text.
#pragma once

#include "elementwise/complex_arithmetic.h"
#include "math/quick_hypotenuse.h"

namespace orv {
inline namespace ORV_LEVEL {

ORV_INLINE double root_of_squares(double re, double im)
{
    return __builtin_sqrt(rounded(rounded(re * re) + rounded(im * im)));
}

// For few values or, where there is no quicker way, for all.
#if ORV_HAVE_FUSED
inline __attribute__((noinline))
#else
ORV_INLINE
#endif
floats magnitude_in_double(const float* re, const float* im)
{
    simd::twice<simd::widest<double>> x, y;
    simd::load_to(x, re);
    simd::load_to(y, im);
    x.lo = simd::sqrt(simd::add_exact_product(x.lo, x.lo, y.lo * y.lo));
    x.hi = simd::sqrt(simd::add_exact_product(x.hi, x.hi, y.hi * y.hi));
    const floats result = simd::to_float(x);
    const mask32 nan = simd::unordered(result, result);
    if (__builtin_expect(!simd::any(nan), true)) return result;
    return simd::select(nan, simd::splat<floats>(value_of<float>(Bits<float>::kNan)), result);
}

ORV_INLINE floats magnitude(const float* re, const float* im)
{
    floats quick;
    if (quick_magnitude(re, im, &quick)) return quick;
    return magnitude_in_double(re, im);
}

// Of n numbers. The destination may be one of the sources.
ORV_INLINE void magnitudes(const float* re, const float* im, float* dst, std::ptrdiff_t n)
{
    std::ptrdiff_t i = 0;
    if constexpr (ORV_HAVE_VECTORS) {
        constexpr int N = floats::N;
        if (n >= N) {
            return full_vectors<N>(
                n, [=](std::ptrdiff_t k) { return magnitude(re + k, im + k); },
                [=](std::ptrdiff_t k, floats v) { simd::store(dst + k, v); });
        }
    }
    for (; i < n; ++i) {
        const double root = root_of_squares(static_cast<double>(get(re + i)), static_cast<double>(get(im + i)));
        put(reinterpret_cast<std::uint32_t*>(dst + i), stored(root));
    }
}

}  // namespace ORV_LEVEL
}  // namespace orv
