// Products and quotients of complex vectors: their meaning, on scalars and on vectors, and their row.
// Complex images and packed spectra compute with the same text.
//
// Parts are formed in double from the floats, where products of two floats are exact, and rounded to
// float once more at the end. A part that is a NaN is always the same one: which of up to four operands'
// NaNs the instructions pass on depends on their order, which is not ours.
#pragma once

#include <cstdint>

#include "core/checks.h"
#include "elementwise/float_arithmetic.h"

namespace orv {
inline namespace ORV_LEVEL {

// One complex value in double.
struct ComplexDouble {
    double re, im;
};

// A part as it is stored.
ORV_INLINE std::uint32_t stored(double part)
{
    const std::uint32_t bits = bits_of<float>(rounded(static_cast<float>(rounded(part))));
    return is_nan_bits<float>(bits) ? Bits<float>::kNan : bits;
}

#if ORV_HAVE_VECTORS
#if ORV_HAVE_FLOAT256
using Doubles = __m256d;
#define ORV_PD(op) _mm256_##op##_pd
#else
using Doubles = __m128d;
#define ORV_PD(op) _mm_##op##_pd
#endif

// As many complex values as a widest float vector has, in double: the values of `lo` come first.
struct Complexes {
    static constexpr int kCount = static_cast<int>(sizeof(Doubles)) / 8;
    Doubles lo, hi;
};

ORV_INLINE Doubles load_as_double(const float* p)
{
#if ORV_HAVE_FLOAT256
    return _mm256_cvtps_pd(_mm_loadu_ps(p));
#else
    return _mm_cvtps_pd(_mm_castsi128_ps(_mm_loadl_epi64(reinterpret_cast<const __m128i*>(p))));
#endif
}

ORV_INLINE Doubles all_re(Doubles x) { return ORV_PD(unpacklo)(x, x); }
ORV_INLINE Doubles all_im(Doubles x) { return ORV_PD(unpackhi)(x, x); }
#if ORV_HAVE_FLOAT256
ORV_INLINE Doubles exchanged(Doubles x) { return _mm256_permute_pd(x, 5); }
ORV_INLINE Doubles im_negated(Doubles x) { return _mm256_xor_pd(x, _mm256_setr_pd(0.0, -0.0, 0.0, -0.0)); }
ORV_INLINE Doubles re_negated(Doubles x) { return _mm256_xor_pd(x, _mm256_setr_pd(-0.0, 0.0, -0.0, 0.0)); }
#else
ORV_INLINE Doubles exchanged(Doubles x) { return _mm_shuffle_pd(x, x, 1); }
ORV_INLINE Doubles im_negated(Doubles x) { return _mm_xor_pd(x, _mm_setr_pd(0.0, -0.0)); }
ORV_INLINE Doubles re_negated(Doubles x) { return _mm_xor_pd(x, _mm_setr_pd(-0.0, 0.0)); }
#endif

// (x.re re - x.im im, x.im re + x.re im): re and im hold one factor's parts, x the other one.
ORV_INLINE Doubles multiplied(Doubles re, Doubles im, Doubles x)
{
    const Doubles crossed = ORV_PD(mul)(im, exchanged(x));
#if ORV_HAVE_FUSED
    return _mm256_fmaddsub_pd(re, x, crossed);  // its product is exact: the fused form changes nothing
#elif ORV_HAVE_FLOAT256
    return _mm256_addsub_pd(_mm256_mul_pd(re, x), crossed);
#else
    return _mm_add_pd(_mm_mul_pd(re, x), re_negated(crossed));
#endif
}
// (x.re re + x.im im, x.im re - x.re im): the product with the conjugate of the factor.
ORV_INLINE Doubles multiplied_by_conjugate(Doubles re, Doubles im, Doubles x)
{
    const Doubles crossed = ORV_PD(mul)(im, exchanged(x));
#if ORV_HAVE_FUSED
    return _mm256_fmsubadd_pd(re, x, crossed);
#elif ORV_HAVE_FLOAT256
    return _mm256_addsub_pd(_mm256_mul_pd(re, x), im_negated(re_negated(crossed)));
#else
    return _mm_add_pd(_mm_mul_pd(re, x), im_negated(crossed));
#endif
}

ORV_INLINE simd::widest<float> to_floats(Complexes x)
{
    return simd::to_float(simd::twice<simd::widest<double>>{{x.lo}, {x.hi}});
}
#endif

// a times b.
struct ComplexProduct {
    static void met_nan(const ComplexDouble&) {}
    static ComplexDouble one(ComplexDouble a, ComplexDouble b)
    {
        return {rounded(a.re * b.re) - rounded(a.im * b.im), rounded(a.re * b.im) + rounded(a.im * b.re)};
    }
#if ORV_HAVE_VECTORS
    static ORV_INLINE Complexes many(Complexes a, Complexes b)
    {
        return {multiplied(all_re(a.lo), all_im(a.lo), b.lo), multiplied(all_re(a.hi), all_im(a.hi), b.hi)};
    }
#endif
};

// a times the conjugate of b.
struct ComplexProductConjugate {
    static void met_nan(const ComplexDouble&) {}
    static ComplexDouble one(ComplexDouble a, ComplexDouble b)
    {
        return {rounded(a.re * b.re) + rounded(a.im * b.im), rounded(a.im * b.re) - rounded(a.re * b.im)};
    }
#if ORV_HAVE_VECTORS
    static ORV_INLINE Complexes many(Complexes a, Complexes b)
    {
        return {multiplied_by_conjugate(all_re(b.lo), all_im(b.lo), a.lo),
                multiplied_by_conjugate(all_re(b.hi), all_im(b.hi), a.hi)};
    }
#endif
};

// b over a, by the reciprocal of |a|^2. Over 0 both parts are NaNs: 0 (or a NaN) times infinity.
struct ComplexQuotient {
    bool zeros = false;  // a divisor was 0; on vectors one finds out when the result is a NaN

    ComplexDouble one(ComplexDouble a, ComplexDouble b)
    {
        const double m = rounded(rounded(a.re * a.re) + rounded(a.im * a.im));
        if (m == 0) zeros = true;
        const double r = rounded(1.0 / m);
        return {rounded(rounded(a.re * b.re) + rounded(a.im * b.im)) * r,
                rounded(rounded(a.re * b.im) - rounded(a.im * b.re)) * r};
    }
#if ORV_HAVE_VECTORS
    ORV_INLINE Complexes many(Complexes a, Complexes b)
    {
        // The reciprocals of both vectors in one division.
        const Doubles lo2 = ORV_PD(mul)(a.lo, a.lo), hi2 = ORV_PD(mul)(a.hi, a.hi);
        const Doubles m = ORV_PD(add)(ORV_PD(unpacklo)(lo2, hi2), ORV_PD(unpackhi)(lo2, hi2));
        const Doubles r = ORV_PD(div)(ORV_PD(set1)(1.0), m);
        const Doubles lo = multiplied_by_conjugate(all_re(a.lo), all_im(a.lo), b.lo);
        const Doubles hi = multiplied_by_conjugate(all_re(a.hi), all_im(a.hi), b.hi);
        return {ORV_PD(mul)(lo, ORV_PD(unpacklo)(r, r)), ORV_PD(mul)(hi, ORV_PD(unpackhi)(r, r))};
    }
    void met_nan(const ComplexDouble& a) { zeros |= a.re == 0 && a.im == 0; }
#endif
};

// What stands at position i of a row of complex values, and a constant that stands everywhere.
struct ComplexVector {
    const float* p;
    ORV_INLINE ComplexDouble one(std::ptrdiff_t i) const
    {
        return {static_cast<double>(get(p + 2 * i)), static_cast<double>(get(p + 2 * i + 1))};
    }
#if ORV_HAVE_VECTORS
    ORV_INLINE Complexes many(std::ptrdiff_t i) const
    {
        return {load_as_double(p + 2 * i), load_as_double(p + 2 * i + Complexes::kCount)};
    }
#endif
};
struct ComplexConstant {
    ComplexDouble value;
    ORV_INLINE ComplexDouble one(std::ptrdiff_t) const { return value; }
#if ORV_HAVE_VECTORS
    ORV_INLINE Complexes many(std::ptrdiff_t) const
    {
        const __m128d pixel = _mm_setr_pd(value.re, value.im);
#if ORV_HAVE_FLOAT256
        const Doubles v = _mm256_insertf128_pd(_mm256_castpd128_pd256(pixel), pixel, 1);
#else
        const Doubles v = pixel;
#endif
        return {v, v};
    }
#endif
};

#if ORV_HAVE_VECTORS
// Puts the NaN in the place of NaNs and tells the operation of them. Not inlined: it is rare.
template <class A, class Op>
__attribute__((noinline)) simd::widest<float> with_one_nan(simd::widest<float> v, A a, std::ptrdiff_t i, Op& op)
{
    for (int k = 0; k < Complexes::kCount; ++k) op.met_nan(a.one(i + k));
    return simd::select(simd::unordered(v, v), simd::splat<simd::widest<float>>(value_of<float>(Bits<float>::kNan)), v);
}
#endif

// dst = op(a, b) on n complex values. The destination may be one of the sources: the last vectors, which
// overlap their neighbours, are computed before anything is stored.
template <class A, class Op>
ORV_INLINE void complex_row(A a, ComplexVector b, float* dst, std::ptrdiff_t n, Op& op)
{
    std::ptrdiff_t i = 0;
#if ORV_HAVE_VECTORS
    constexpr int N = Complexes::kCount;
    using F = simd::widest<float>;
    const auto at = [&](std::ptrdiff_t k) { return to_floats(op.many(a.many(k), b.many(k))); };
    const auto one_at = [&](std::ptrdiff_t k) {
        const F v = at(k);
        return __builtin_expect(simd::any(simd::unordered(v, v)), false) ? with_one_nan(v, a, k, op) : v;
    };
    if (n >= N) {
        const F last = one_at(n - N);
        for (; i < n - 2 * N; i += 2 * N) {
            F first = at(i), second = at(i + N);
            if (__builtin_expect(simd::any(simd::unordered(first, second)), false)) {
                first = with_one_nan(first, a, i, op);
                second = with_one_nan(second, a, i + N, op);
            }
            simd::store(dst + 2 * i, first);
            simd::store(dst + 2 * (i + N), second);
        }
        if (i < n - N) simd::store(dst + 2 * i, one_at(i));
        simd::store(dst + 2 * (n - N), last);
        return;
    }
#endif
    std::uint32_t* const bits = reinterpret_cast<std::uint32_t*>(dst);
    for (; i < n; ++i) {
        const ComplexDouble result = op.one(a.one(i), b.one(i));
        put(bits + 2 * i, stored(result.re));
        put(bits + 2 * i + 1, stored(result.im));
    }
}

#if ORV_HAVE_VECTORS
#undef ORV_PD
#endif

}  // namespace ORV_LEVEL
}  // namespace orv
