// Sums, differences, products and quotients of floats and doubles: their meaning, on scalars and on
// vectors. Images and signal vectors compute with the same text.
//
// Results are those of IEEE arithmetic, one rounding each. Of two NaNs the left operand's is the
// result, made quiet; one NaN is the result itself, made quiet; operations that have no result (infinity
// minus infinity) give the NaN with the sign bit set. The instructions do all that on vectors, but the
// x87 has other rules, so on scalars it is spelled out.
//
// one() takes and gives bit patterns: a float that passes through the x87 would not keep them. a is the
// first source or the constant, b the second source or the image, as everywhere: b is the left operand.
#pragma once

#include <cstdint>
#include <cstring>

#include "core/float_control.h"
#include "core/nan.h"
#include "elementwise/full_vectors.h"
#include "simd/vec.h"

namespace orv {
inline namespace ORV_LEVEL {

template <class F> struct word_of;
template <> struct word_of<float> { using type = std::uint32_t; };
template <> struct word_of<double> { using type = std::uint64_t; };
template <class F> using Word = typename word_of<F>::type;

// The element type that the loops see: values where there are vectors, bit patterns where one() runs.
#if ORV_HAVE_VECTORS
template <class F> using Lane = F;
#else
template <class F> using Lane = Word<F>;
#endif
template <class F> ORV_INLINE const Lane<F>* lanes(const F* p) { return reinterpret_cast<const Lane<F>*>(p); }
template <class F> ORV_INLINE Lane<F>* lanes(F* p) { return reinterpret_cast<Lane<F>*>(p); }

template <class F>
struct Bits {
    static constexpr int kFraction = sizeof(F) == 4 ? 23 : 52;
    static constexpr Word<F> kSign = Word<F>{1} << (8 * sizeof(F) - 1);
    static constexpr Word<F> kInfinity = (kSign - 1) - ((Word<F>{1} << kFraction) - 1);
    static constexpr Word<F> kQuiet = Word<F>{1} << (kFraction - 1);
    static constexpr Word<F> kNan = sizeof(F) == 4 ? kInvalidNan : static_cast<Word<F>>(kInvalidNan64);
};

template <class F>
ORV_INLINE F value_of(Word<F> bits)
{
    F value;
    std::memcpy(&value, &bits, sizeof(F));
    return value;
}
template <class F>
ORV_INLINE Word<F> bits_of(F value)
{
    Word<F> bits;
    std::memcpy(&bits, &value, sizeof(F));
    return bits;
}
template <class F>
ORV_INLINE bool is_nan_bits(Word<F> bits)
{
    return (bits & ~Bits<F>::kSign) > Bits<F>::kInfinity;
}
template <class F>
ORV_INLINE bool is_zero_bits(Word<F> bits)
{
    return (bits & ~Bits<F>::kSign) == 0;
}

// The x87 rounds doubles to 53 bits, but to its own, wider range of exponents. A tiny result would be
// rounded again when it is stored; so it is formed where the x87's range ends, at the same number of
// bits, and raised from there, exactly.
#if defined(__SSE2__)
ORV_INLINE double product_of(double a, double b) { return a * b; }
ORV_INLINE double quotient_of(double dividend, double divisor) { return dividend / divisor; }
#else
constexpr double kTiny = 0x1p-1000;
ORV_INLINE double product_of(double a, double b)
{
    const double plain = rounded(a * b);
    if (!(plain < kTiny && plain > -kTiny)) return plain;
    const long double lowered = static_cast<long double>(a) * 0x1p-15360L;
    return rounded(static_cast<double>(lowered * b * 0x1p15360L));
}
ORV_INLINE double quotient_of(double dividend, double divisor)
{
    const double plain = rounded(dividend / divisor);
    if (!(plain < kTiny && plain > -kTiny)) return plain;
    const long double lowered = static_cast<long double>(dividend) * 0x1p-15360L;
    return rounded(static_cast<double>(lowered / divisor * 0x1p15360L));
}
#endif
// Two roundings, to 53 bits and to 24, are one for these.
ORV_INLINE float product_of(float a, float b) { return rounded(a * b); }
ORV_INLINE float quotient_of(float dividend, float divisor) { return rounded(dividend / divisor); }

// The result of an operation on the left and the right operand; `operate` sees no NaN.
template <class F, class Operate>
ORV_INLINE Word<F> with_nans(Word<F> left, Word<F> right, Operate operate)
{
    if (is_nan_bits<F>(left)) return left | Bits<F>::kQuiet;
    if (is_nan_bits<F>(right)) return right | Bits<F>::kQuiet;
    return bits_of<F>(rounded(operate(value_of<F>(left), value_of<F>(right))));
}

template <class F>
struct FloatSum {
    static constexpr Pace kPace = Pace::kTwo;
    static Word<F> one(Word<F> a, Word<F> b)
    {
        return with_nans<F>(b, a, [](F left, F right) { return left + right; });
    }
    template <class V> static ORV_INLINE V many(V a, V b) { return simd::add_ordered(b, a); }
};

template <class F>
struct FloatDifference {
    static constexpr Pace kPace = Pace::kTwo;
    static Word<F> one(Word<F> a, Word<F> b)
    {
        return with_nans<F>(b, a, [](F left, F right) { return left - right; });
    }
    template <class V> static ORV_INLINE V many(V a, V b) { return b - a; }
};

template <class F>
struct FloatProduct {
    static constexpr Pace kPace = Pace::kTwo;
    static Word<F> one(Word<F> a, Word<F> b)
    {
        return with_nans<F>(b, a, [](F left, F right) { return product_of(left, right); });
    }
    template <class V> static ORV_INLINE V many(V a, V b) { return simd::mul_ordered(b, a); }
};

// Over a zero of either sign: infinity with the sign of the dividend, and the NaN for 0 and for a NaN.
template <class F>
struct FloatQuotient {
    bool zeros = false;  // a divisor was 0

    static Word<F> by_zero(Word<F> dividend)
    {
        if (is_zero_bits<F>(dividend) || is_nan_bits<F>(dividend)) return Bits<F>::kNan;
        return (dividend & Bits<F>::kSign) | Bits<F>::kInfinity;
    }
    Word<F> one(Word<F> a, Word<F> b)
    {
        if (is_zero_bits<F>(a)) {
            zeros = true;
            return by_zero(b);
        }
        return with_nans<F>(b, a, [](F dividend, F divisor) { return quotient_of(dividend, divisor); });
    }
    template <class V> ORV_INLINE V many(V a, V b)
    {
        const V none = simd::zero<V>();
        const simd::mask_of<V> no_divisor = simd::equal(a, none);
        if (__builtin_expect(!simd::any(no_divisor), true)) return b / a;
        zeros = true;
        const V sign = simd::splat<V>(-F{0}), infinity = simd::splat<V>(value_of<F>(Bits<F>::kInfinity));
        const V nan = simd::splat<V>(value_of<F>(Bits<F>::kNan));
        const simd::mask_of<V> has_sign = simd::greater(b, none) | simd::greater(none, b);
        const V special = simd::select(has_sign, (b & sign) | infinity, nan);
        return simd::select(no_divisor, special, b / simd::select(no_divisor, simd::splat<V>(1), a));
    }
};

// Division by a constant is multiplication by its reciprocal, formed in double and rounded once: results
// may differ from a true division in the last place, on purpose. The constant is neither 0 nor -0.
ORV_INLINE float reciprocal(float value)
{
    if (is_nan_bits<float>(bits_of(value))) return value;
    return rounded(static_cast<float>(rounded(1.0 / static_cast<double>(value))));
}
ORV_INLINE double reciprocal(double value)
{
    if (is_nan_bits<double>(bits_of(value))) return value;
    return quotient_of(1.0, value);
}

// Without the sign bit, NaNs included.
template <class F>
struct WithoutSign {
    static constexpr Pace kPace = Pace::kTwo;
    static Word<F> one(Word<F> a) { return a & ~Bits<F>::kSign; }
    template <class V> static ORV_INLINE V many(V a) { return simd::and_not(simd::splat<V>(-F{0}), a); }
};

// The root of what is not below 0, -0 included; the NaN for the rest and for NaNs.
template <class F>
struct SquareRoot {
    bool negatives = false;  // met a value without a root

    Word<F> one(Word<F> a)
    {
        if (is_nan_bits<F>(a) || (a > Bits<F>::kSign)) {
            negatives = true;
            return Bits<F>::kNan;
        }
        return bits_of<F>(rounded(root(value_of<F>(a))));
    }
    static ORV_INLINE float root(float x) { return __builtin_sqrtf(x); }
    static ORV_INLINE double root(double x) { return __builtin_sqrt(x); }
    template <class V> ORV_INLINE V many(V a)
    {
        const V roots = simd::sqrt(a);
        const simd::mask_of<V> no_root = simd::unordered(roots, roots);
        if (__builtin_expect(!simd::any(no_root), true)) return roots;
        negatives = true;
        return simd::select(no_root, simd::splat<V>(value_of<F>(Bits<F>::kNan)), roots);
    }
};

// The larger and the smaller of two, bits unchanged. Where neither is larger (equal values, zeros of either
// sign, a NaN on either side) it is b.
struct Larger {
    static constexpr Pace kPace = Pace::kTwo;
    static std::uint32_t one(std::uint32_t a, std::uint32_t b)
    {
        return value_of<float>(a) > value_of<float>(b) ? a : b;
    }
    template <class V> static ORV_INLINE V many(V a, V b) { return simd::max(a, b); }
};
struct Smaller {
    static constexpr Pace kPace = Pace::kTwo;
    static std::uint32_t one(std::uint32_t a, std::uint32_t b)
    {
        return value_of<float>(a) < value_of<float>(b) ? a : b;
    }
    template <class V> static ORV_INLINE V many(V a, V b) { return simd::min(a, b); }
};

}  // namespace ORV_LEVEL
}  // namespace orv
