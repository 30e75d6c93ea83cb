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
#include "elementwise/full_vectors.h"
#include "simd/conversion.h"
#include "simd/neighbours.h"

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

// a b of reals, by the same rules.
ORV_INLINE void multiply_reals(const float* a, const float* b, float* dst)
{
    const double product = static_cast<double>(get(a)) * static_cast<double>(get(b));
    put(reinterpret_cast<std::uint32_t*>(dst), stored(product));
}

// As many complex values as a widest float vector has, in double: the values of `lo` come first.
using Doubles = simd::widest<double>;
using Complexes = simd::twice<Doubles>;
constexpr int kComplexes = Doubles::N;

// Products with one factor, whose parts stand in re and im: of x, and of its conjugate with x.
//     (x.re re - x.im im, x.im re + x.re im)
//     (x.re re + x.im im, x.im re - x.re im)
ORV_INLINE Doubles multiplied(Doubles re, Doubles im, Doubles x)
{
    return simd::product_minus_plus(re, x, im * simd::exchanged(x));
}
ORV_INLINE Doubles multiplied_by_conjugate(Doubles re, Doubles im, Doubles x)
{
    return simd::product_plus_minus(re, x, im * simd::exchanged(x));
}

// a times b.
struct ComplexProduct {
    static void met_nan(const ComplexDouble&) {}
    static ComplexDouble one(ComplexDouble a, ComplexDouble b)
    {
        return {rounded(a.re * b.re) - rounded(a.im * b.im), rounded(a.re * b.im) + rounded(a.im * b.re)};
    }
    static ORV_INLINE Complexes many(Complexes a, Complexes b)
    {
        return {multiplied(simd::even_twice(a.lo), simd::odd_twice(a.lo), b.lo),
                multiplied(simd::even_twice(a.hi), simd::odd_twice(a.hi), b.hi)};
    }
};

// a times the conjugate of b.
struct ComplexProductConjugate {
    static void met_nan(const ComplexDouble&) {}
    static ComplexDouble one(ComplexDouble a, ComplexDouble b)
    {
        return {rounded(a.re * b.re) + rounded(a.im * b.im), rounded(a.im * b.re) - rounded(a.re * b.im)};
    }
    static ORV_INLINE Complexes many(Complexes a, Complexes b)
    {
        return {multiplied_by_conjugate(simd::even_twice(b.lo), simd::odd_twice(b.lo), a.lo),
                multiplied_by_conjugate(simd::even_twice(b.hi), simd::odd_twice(b.hi), a.hi)};
    }
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
    ORV_INLINE Complexes many(Complexes a, Complexes b)
    {
        // The reciprocals of both vectors in one division.
        const Doubles lo2 = a.lo * a.lo, hi2 = a.hi * a.hi;
        const Doubles r = simd::splat<Doubles>(1.0) / (simd::even_of(lo2, hi2) + simd::odd_of(lo2, hi2));
        const Doubles lo = multiplied_by_conjugate(simd::even_twice(a.lo), simd::odd_twice(a.lo), b.lo);
        const Doubles hi = multiplied_by_conjugate(simd::even_twice(a.hi), simd::odd_twice(a.hi), b.hi);
        return {lo * simd::even_twice(r), hi * simd::odd_twice(r)};
    }
    void met_nan(const ComplexDouble& a) { zeros |= a.re == 0 && a.im == 0; }
};

// What stands at position i of a row of complex values, and a constant that stands everywhere.
struct ComplexVector {
    const float* p;
    ORV_INLINE ComplexDouble one(std::ptrdiff_t i) const
    {
        return {static_cast<double>(get(p + 2 * i)), static_cast<double>(get(p + 2 * i + 1))};
    }
    ORV_INLINE Complexes many(std::ptrdiff_t i) const
    {
        using simd::load_as;
        return {load_as<Doubles>::from(p + 2 * i), load_as<Doubles>::from(p + 2 * i + Doubles::N)};
    }
};
struct ComplexConstant {
    ComplexDouble value;
    ORV_INLINE ComplexDouble one(std::ptrdiff_t) const { return value; }
    ORV_INLINE Complexes many(std::ptrdiff_t) const
    {
        const Doubles v = simd::splat_two<Doubles>(value.re, value.im);
        return {v, v};
    }
};

// Puts the NaN in the place of NaNs and reports them to the operation. Not inlined: it is rare.
template <class A, class Op>
__attribute__((noinline)) simd::widest<float> with_one_nan(simd::widest<float> v, A a, std::ptrdiff_t i, Op& op)
{
    for (int k = 0; k < kComplexes; ++k) op.met_nan(a.one(i + k));
    return simd::select(simd::unordered(v, v), simd::splat<simd::widest<float>>(value_of<float>(Bits<float>::kNan)), v);
}

// dst = op(a, b) on n complex values. The destination may be one of the sources.
template <class A, class Op>
ORV_INLINE void complex_row(A a, ComplexVector b, float* dst, std::ptrdiff_t n, Op& op)
{
    std::ptrdiff_t i = 0;
    if constexpr (ORV_HAVE_VECTORS) {
        constexpr int N = kComplexes;
        using F = simd::widest<float>;
        const auto at = [&](std::ptrdiff_t k) { return simd::to_float(op.many(a.many(k), b.many(k))); };
        const auto one_at = [&](std::ptrdiff_t k) {
            const F v = at(k);
            return __builtin_expect(simd::any(simd::unordered(v, v)), false) ? with_one_nan(v, a, k, op) : v;
        };
        const auto store = [dst](std::ptrdiff_t k, F v) { simd::store(dst + 2 * k, v); };
        const auto others = [&](std::ptrdiff_t end) {
            for (; i < end - N; i += 2 * N) {
                F first = at(i), second = at(i + N);
                if (__builtin_expect(simd::any(simd::unordered(first, second)), false)) {
                    first = with_one_nan(first, a, i, op);
                    second = with_one_nan(second, a, i + N, op);
                }
                store(i, first);
                store(i + N, second);
            }
            if (i < end) store(i, one_at(i));
        };
        if (n >= N) return full_vectors<N>(n, one_at, store, others);
    }
    std::uint32_t* const bits = reinterpret_cast<std::uint32_t*>(dst);
    for (; i < n; ++i) {
        const ComplexDouble result = op.one(a.one(i), b.one(i));
        put(bits + 2 * i, stored(result.re));
        put(bits + 2 * i + 1, stored(result.im));
    }
}

}  // namespace ORV_LEVEL
}  // namespace orv
