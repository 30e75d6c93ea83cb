// 32-bit integers under the scaling rule: sums, differences, products and quotients, on scalars and on
// vectors.
//
// Vectors scale sums down in 32-bit lanes and compute all else in double wherever double is exact: sums always,
// products as long as those beyond 2^53 saturate anyway, quotients as described below. The conversion back rounds to
// nearest, ties to even, and gives the smallest integer for whatever is below the range; only the upper bound needs
// a step of its own.
#pragma once

#include <cstdint>

#include "core/float_control.h"
#include "elementwise/full_vectors.h"
#include "elementwise/scaled_arithmetic.h"
#include "simd/conversion.h"

namespace orv {
inline namespace ORV_LEVEL {

using std::int32_t;

ORV_INLINE int bounded(int value, int low, int high) { return value < low ? low : value > high ? high : value; }

// 2^-scaleFactor; from 2^64 on everything but 0 has left the range, on either side.
ORV_INLINE double factor_of(int scaleFactor)
{
    const std::int64_t exponent = 1023 - bounded(scaleFactor, -64, 64);
    const std::int64_t bits = exponent << 52;
    double factor;
    std::memcpy(&factor, &bits, sizeof(factor));
    return factor;
}

template <class D>
ORV_INLINE D scaled_in_double(D exact, double factor)
{
    ORV_ASSERT(FloatControl::holds());
    return simd::min(exact * simd::splat<D>(factor), simd::splat<D>(2147483647.0));
}

template <class Kind>
struct ScaledInDouble {
    int scaleFactor;
    int32_t one(int32_t a, int32_t b) const { return scale<int32_t>(Kind::exact(a, b), scaleFactor); }
    double factor;
    template <class V> ORV_INLINE V many(V a, V b) const
    {
        auto x = simd::to_double(a);
        const auto y = simd::to_double(b);
        x.lo = scaled_in_double(Kind::in_double(x.lo, y.lo), factor);
        x.hi = scaled_in_double(Kind::in_double(x.hi, y.hi), factor);
        return simd::round_to_int(x);
    }
};

// Saturated without scaling. Overflow is rare: a branch, one for two vectors, leaves it to the longer way.
template <class V> ORV_INLINE bool any_sign(V v) { return lanes_of(v) != 0; }

// Sums and differences in 32-bit lanes: overflow() has the sign where wrapped() overflows.
template <class Kind> struct InWords;
template <>
struct InWords<Sum<int32_t>> {
    template <class V> static ORV_INLINE V wrapped(V a, V b) { return a + b; }
    template <class V> static ORV_INLINE V overflow(V a, V b, V sum)
    { return simd::greater(a, sum) ^ b; }  // below a only if b is negative
    template <class V> static ORV_INLINE V saturated(V a, V b) { return simd::add_saturate(a, b); }
    template <class V> static ORV_INLINE V halved(V a, V b) { return (a & b) + ((a ^ b) >> simd::count(1)); }
    // Half a sum is never rounded up from the largest integer.
    template <class V> static ORV_INLINE V unless_largest(V, V up) { return up; }
};
template <>
struct InWords<Difference<int32_t>> {
    template <class V> static ORV_INLINE V wrapped(V a, V b) { return b - a; }
    template <class V> static ORV_INLINE V overflow(V a, V b, V difference) { return simd::greater(difference, b) ^ a; }
    template <class V> static ORV_INLINE V saturated(V a, V b) { return simd::sub_saturate(b, a); }
    // b - a is b + ~a + 1.
    template <class V> static ORV_INLINE V halved(V a, V b) { return (b | ~a) - ((b ^ ~a) >> simd::count(1)); }
    template <class V> static ORV_INLINE V unless_largest(V half, V up)
    {
        return simd::and_not(simd::equal(half, simd::splat<V>(INT32_MAX)), up);
    }
};
template <class Kind>
struct SaturatedWords {
    using Form = InWords<Kind>;
    static constexpr Pace kPace = Pace::kTogether;
    int32_t one(int32_t a, int32_t b) const { return saturate<int32_t>(Kind::exact(a, b)); }
    template <class V> ORV_INLINE V many(V a, V b) const
    {
        const V result = Form::wrapped(a, b);
        if (__builtin_expect(any_sign(Form::overflow(a, b, result)), false)) return Form::saturated(a, b);
        return result;
    }
    template <class V> ORV_INLINE simd::twice<V> many(const V (&a)[2], const V (&b)[2]) const
    {
        const V first = Form::wrapped(a[0], b[0]), second = Form::wrapped(a[1], b[1]);
        const V any = Form::overflow(a[0], b[0], first) | Form::overflow(a[1], b[1], second);
        if (__builtin_expect(any_sign(any), false)) return {Form::saturated(a[0], b[0]), Form::saturated(a[1], b[1])};
        return {first, second};
    }
};
template <> struct Saturated<int32_t, Sum<int32_t>> : SaturatedWords<Sum<int32_t>> {};
template <> struct Saturated<int32_t, Difference<int32_t>> : SaturatedWords<Difference<int32_t>> {};

// Scaled down by 2 to 32 bits, in 32-bit lanes: half of the exact sum, rounded down, and the bit that this leaves
// over. That bit lifts what were a tie without it; where it is 0, a tie goes up if the result rounded down is odd, so
//     sum 2^-(bits+1) = (half + 2^(bits-1) - 1 + (left over or odd)) >> bits
// with the addition done on the digits below the last one, where it cannot overflow.
template <class Kind>
struct ScaledDownWords {
    using Form = InWords<Kind>;
    int scaleFactor;
    int32_t one(int32_t a, int32_t b) const { return scale<int32_t>(Kind::exact(a, b), scaleFactor); }
    simd::count bits{scaleFactor - 1};
    int32_t digits = static_cast<int32_t>((1u << (scaleFactor - 1)) - 1), nearly_half = digits >> 1;

    template <class V> ORV_INLINE V many(V a, V b) const
    {
        const V one = simd::splat<V>(1), half = Form::halved(a, b), floor = half >> bits;
        const V up = (half & simd::splat<V>(digits)) + simd::splat<V>(nearly_half) + (((a ^ b) | floor) & one);
        return floor + simd::as<int32_t>(simd::as<std::uint32_t>(up) >> bits);
    }
};
// By one bit, where no digits are left.
template <class Kind>
struct HalvedWords {
    using Form = InWords<Kind>;
    int32_t one(int32_t a, int32_t b) const { return scale<int32_t>(Kind::exact(a, b), 1); }
    template <class V> ORV_INLINE V many(V a, V b) const
    {
        const V half = Form::halved(a, b), up = (a ^ b) & half & simd::splat<V>(1);
        return half + Form::unless_largest(half, up);
    }
};

// Products in 64-bit lanes: saturated, and scaled down.
struct ProductSaturated {
    static constexpr Pace kPace = Pace::kTogether;
    int32_t one(int32_t a, int32_t b) const { return saturate<int32_t>(std::int64_t{a} * b); }
    template <class V> ORV_INLINE V many(V a, V b) const { return simd::narrow(simd::mul_wide(a, b)); }
    template <class V> ORV_INLINE simd::twice<V> many(const V (&a)[2], const V (&b)[2]) const
    {
        return {many(a[0], b[0]), many(a[1], b[1])};
    }
#if ORV_HAVE_INT256
    using Words = simd::widest<int32_t>;
    using Products = simd::products<Words::N>;
    ORV_INLINE Words many(Words a, Words b) const
    {
        const Products p = simd::mul_wide(a, b);
        return fit(simd::beyond_lanes(p)) ? simd::low_halves(p) : simd::narrow(p);
    }
    ORV_INLINE simd::twice<Words> many(const Words (&a)[2], const Words (&b)[2]) const
    {
        const Products p = simd::mul_wide(a[0], b[0]), q = simd::mul_wide(a[1], b[1]);
        if (fit(simd::beyond_lanes(p) | simd::beyond_lanes(q))) return {simd::low_halves(p), simd::low_halves(q)};
        return {simd::narrow(p), simd::narrow(q)};
    }

private:
    template <class V> static ORV_INLINE bool fit(V beyond) { return __builtin_expect(simd::all_fit(beyond), 1) != 0; }
#endif
};
struct ProductScaledDown {
    int scaleFactor;  // 1 to 62
    int32_t one(int32_t a, int32_t b) const { return scale<int32_t>(std::int64_t{a} * b, scaleFactor); }
    template <class V> ORV_INLINE V many(V a, V b) const
    {
        return simd::narrow(simd::scale_down(simd::mul_wide(a, b), scaleFactor));
    }
};

template <class Kind>
ORV_INLINE ScaledInDouble<Kind> scaled_in_double_by(int scaleFactor)
{
    return {scaleFactor, factor_of(scaleFactor)};
}

// Runs `loop` with a form of the sum or the difference that is exact for the scale factor.
template <class Kind, class Loop>
ORV_INLINE void with_scaled_words(int scaleFactor, Loop loop)
{
    if (scaleFactor == 0) {
        loop(Saturated<int32_t, Kind>{});
    } else if (scaleFactor > 32) {
        loop(Nothing<int32_t>{});
    } else if (scaleFactor == 1) {
        loop(HalvedWords<Kind>{});
    } else if (scaleFactor > 0) {
        loop(ScaledDownWords<Kind>{scaleFactor});
    } else {
        loop(scaled_in_double_by<Kind>(scaleFactor));
    }
}
// A product above 2^53 is not exact in double. Up to 21 bits down it saturates all the same.
template <class Loop>
ORV_INLINE void with_scaled_product(int scaleFactor, Loop loop)
{
    if (scaleFactor == 0) {
        loop(ProductSaturated{});
    } else if (scaleFactor > 62) {
        loop(Nothing<int32_t>{});
    } else if (scaleFactor > 21) {
        loop(ProductScaledDown{scaleFactor});
    } else {
        loop(scaled_in_double_by<Product<int32_t>>(scaleFactor));
    }
}

// --- Quotients ------------------------------------------------------------------------------------

inline int32_t word_quotient(int32_t divisor, int32_t dividend, int scaleFactor)
{
    if (scaleFactor > 32) return 0;  // at most one half, and the tie goes to 0
    const bool negative = (dividend < 0) != (divisor < 0);
    auto numerator = static_cast<std::uint64_t>(dividend < 0 ? -std::int64_t{dividend} : std::int64_t{dividend});
    auto denominator = static_cast<std::uint64_t>(divisor < 0 ? -std::int64_t{divisor} : std::int64_t{divisor});
    if (scaleFactor > 0) denominator <<= scaleFactor;
    // 62 bits up everything but 0 saturates. The product stays below 2^64 in two steps.
    const int up = scaleFactor < -62 ? 62 : scaleFactor < 0 ? -scaleFactor : 0;
    const int first = up < 32 ? up : 32;
    numerator <<= first;
    std::uint64_t quotient = numerator / denominator;
    std::uint64_t rest = numerator - quotient * denominator;
    if (up > 32) {
        if (quotient > 0x80000000u) quotient = 0x80000000u;  // far outside already
        rest <<= up - 32;
        const std::uint64_t more = rest / denominator;
        quotient = (quotient << (up - 32)) + more;
        rest -= more * denominator;
    }
    if (2 * rest + (quotient & 1) > denominator) ++quotient;
    if (quotient > 0x80000000u) quotient = 0x80000000u;
    const auto magnitude = static_cast<std::int64_t>(quotient);
    return saturate<int32_t>(negative ? -magnitude : magnitude);
}

// n 2^bits / d, where it is not halfway between two integers, lies at least 1 / (2d) from there. In double
// its error is at most n 2^bits / d times 2^-53: too little to matter as long as n 2^bits < 2^52, which is
// so up to 20 bits. (Scaled down, it lies farther from halves.) Beyond, long division on scalars. Floats do for
// numbers below 2^22 that are not scaled up, for the same reason, in a third of the time.
struct WordQuotient {
    static constexpr int kMostBitsUp = 20;
    static constexpr Pace kPace = Pace::kTogether;

    int scaleFactor;
    bool zeros = false;  // a divisor was 0
    double factor = factor_of(scaleFactor);

    explicit WordQuotient(int by) : scaleFactor(by) {}

    int32_t one(int32_t a, int32_t b)
    {
        if (a != 0) return word_quotient(a, b, scaleFactor);
        zeros = true;
        return b > 0 ? INT32_MAX : b < 0 ? INT32_MIN : 0;
    }
    template <class V> ORV_INLINE V many(V a, V b)
    {
        const simd::mask_of<V> no_divisor = simd::equal(a, simd::zero<V>());
        const V divisor = a - simd::ones_where<V>(no_divisor);  // 1 where there is none
        const V quotient =
            scaleFactor >= 0 && !simd::any(large(a, b)) ? float_quotient(divisor, b) : double_quotient(divisor, b);
        if (__builtin_expect(!simd::any(no_divisor), true)) return quotient;
        zeros = true;
        const simd::mask_of<V> zero_dividend = simd::equal(b, simd::zero<V>());
        const V bound = (b >> simd::count(31)) ^ simd::splat<V>(INT32_MAX);
        return simd::select(no_divisor, simd::and_not(zero_dividend, bound), quotient);
    }

    template <class V> ORV_INLINE simd::twice<V> many(const V (&a)[2], const V (&b)[2])
    {
        const simd::mask_of<V> no_divisor = simd::equal(a[0], simd::zero<V>()) | simd::equal(a[1], simd::zero<V>());
        const simd::mask_of<V> special = no_divisor | large(a[0], b[0]) | large(a[1], b[1]);
        if (scaleFactor < 0 || simd::any(special)) return {many(a[0], b[0]), many(a[1], b[1])};
        return {float_quotient(a[0], b[0]), float_quotient(a[1], b[1])};
    }

private:
    // Where floats do not.
    template <class V> static ORV_INLINE simd::mask_of<V> large(V a, V b)
    {
        const V limit = simd::splat<V>(1 << 22);
        const auto above = simd::as<std::uint32_t>((a + limit) | (b + limit)) >> simd::count(23);
        return simd::greater(simd::as<int32_t>(above), simd::zero<V>());
    }
    template <class V> ORV_INLINE V float_quotient(V divisor, V dividend) const
    {
        using F = simd::floats_of<V>;
        return simd::round_to_int(simd::to_float(dividend) / simd::to_float(divisor) *
                                  simd::splat<F>(static_cast<float>(factor)));
    }
    template <class V> ORV_INLINE V double_quotient(V divisor, V dividend) const
    {
        auto q = simd::to_double(dividend);
        const auto d = simd::to_double(divisor);
        q.lo = scaled_in_double(q.lo / d.lo, factor);
        q.hi = scaled_in_double(q.hi / d.hi, factor);
        return simd::round_to_int(q);
    }
};

}  // namespace ORV_LEVEL
}  // namespace orv
