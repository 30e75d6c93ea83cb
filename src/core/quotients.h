// Quotients of integers under the scaling rule: their meaning, on scalars and on vectors. Images and
// signal vectors compute with the same text.
#pragma once

#include <cstdint>
#include <type_traits>

#include "core/float_control.h"
#include "core/scaled_arithmetic.h"

namespace orv {
inline namespace ORV_LEVEL {

// How a quotient becomes an integer.
enum class Rounding {
    half_even,    // on the exact quotient
    fixed_point,  // on the quotient cut off after 16 fraction bits, with 32767 / 65536 added to it
};

template <class T>
T quotient_by_zero(T dividend)
{
    return dividend > 0 ? std::numeric_limits<T>::max() : dividend < 0 ? std::numeric_limits<T>::min() : T{0};
}

template <class T>
T quotient_half_even(T divisor, T dividend, int scaleFactor)
{
    const bool negative = (dividend < 0) != (divisor < 0);
    std::uint64_t numerator = static_cast<std::uint64_t>(dividend < 0 ? -int{dividend} : int{dividend});
    std::uint64_t denominator = static_cast<std::uint64_t>(divisor < 0 ? -int{divisor} : int{divisor});
    // 18 bits down nothing of 16 bits reaches one half; 32 bits up everything saturates.
    if (scaleFactor > 0) denominator <<= scaleFactor > 18 ? 18 : scaleFactor;
    if (scaleFactor < 0) numerator <<= scaleFactor < -32 ? 32 : -scaleFactor;
    std::uint64_t quotient = numerator / denominator;
    const std::uint64_t twice_rest = 2 * (numerator - quotient * denominator);
    if (twice_rest + (quotient & 1) > denominator) ++quotient;
    const auto magnitude = static_cast<std::int64_t>(quotient);
    return saturate<T>(negative ? -magnitude : magnitude);
}

inline std::uint16_t quotient_fixed_point(std::uint16_t divisor, std::uint16_t dividend, int scaleFactor)
{
    // 17 bits down the fraction is below one half; 32 bits up everything saturates.
    if (scaleFactor > 17) return 0;
    if (scaleFactor < -31) return dividend > 0 ? 65535 : 0;
    const std::uint64_t raised = std::uint64_t{dividend} << (scaleFactor < 0 ? 16 - scaleFactor : 16);
    const std::uint64_t q = raised / (std::uint64_t{divisor} << (scaleFactor > 0 ? scaleFactor : 0));
    const std::uint64_t odd = q >> 16 & 1;
    const std::uint64_t rounded = (q + 32767 + 2 * odd) >> 16;
    return static_cast<std::uint16_t>(rounded > 65535 ? 65535 : rounded);
}

#if ORV_HAVE_VECTORS
// Quotients of magnitudes in 16-bit lanes: whole part and rest exactly, everything after that in
// integers.
//
// The float reciprocal of the divisor is off by less than 2^-21, also under another rounding mode. The
// whole part of a / b is the whole part of (a + 1/2) / b, which lies at least 1/(2b) from every integer:
// for a below 2^19 farther than the error of (a + 1/2) times the reciprocal.
template <class V>
struct Division {
    using Ints = decltype(simd::widen(V{}).lo);
    using F = simd::floats_of<simd::vec<std::int32_t, typename V::reg>>;

    V divisor;  // nowhere 0
    simd::pair<F> reciprocal;
    V whole;
    V rest;

    static ORV_INLINE simd::pair<F> floats(V v)
    {
        const auto w = simd::widen(v);
        return {simd::to_float(simd::as<std::int32_t>(w.lo)), simd::to_float(simd::as<std::int32_t>(w.hi))};
    }

    // The whole part of n divided by the divisor, n below 2^19.
    ORV_INLINE V whole_part(simd::pair<F> n) const
    {
        const F half = simd::splat<F>(0.5f);
        const auto lo = simd::truncate((n.lo + half) * reciprocal.lo);
        const auto hi = simd::truncate((n.hi + half) * reciprocal.hi);
        return simd::narrow(simd::pair<Ints>{simd::as<std::uint32_t>(lo), simd::as<std::uint32_t>(hi)});
    }

    ORV_INLINE Division(V dividend, V by) : divisor(by)
    {
        // One division serves two vectors: 1 / (b0 b1), times b1 and times b0.
        const simd::pair<F> b = floats(divisor);
        const F both = simd::splat<F>(1.f) / (b.lo * b.hi);
        reciprocal = {both * b.hi, both * b.lo};
        whole = whole_part(floats(dividend));
        rest = dividend - simd::mul_low(whole, divisor);
    }

    // Long division: `bits` more bits of the quotient become part of `whole`, which stays at 65535 once
    // it no longer fits. The rest times 2^bits must lie below 2^19.
    ORV_INLINE void continue_by(int bits)
    {
        const F factor = simd::splat<F>(static_cast<float>(1 << bits));
        const simd::pair<F> r = floats(rest);
        const V digits = whole_part({r.lo * factor, r.hi * factor});
        const simd::count by(bits);
        const V fits = simd::equal(simd::sub_saturate(whole, simd::splat<V>(static_cast<std::uint16_t>(65535 >> bits))), simd::zero<V>());
        rest = (rest << by) - simd::mul_low(digits, divisor);
        whole = simd::select(fits, (whole << by) + digits, simd::splat<V>(65535));
    }
};

// Rounded quotients, ties to even, straight from floats.
//
// One division serves two vectors: 1 / (b0 b1), times b1 and times b0. With the product that follows that
// makes four roundings, so the quotient t is off by less than 2^-21 t. A quotient of 16-bit integers that is
// no tie lies at least 2^-17 t from every tie, and a tie has few digits: rounding t to 19 bits restores ties
// and takes nothing else across one.
template <class V>
ORV_INLINE V nearest_quotients(V divisor, V dividend)
{
    if constexpr (sizeof(typename V::lane) == 1) {
        const auto a = simd::widen(divisor), b = simd::widen(dividend);
        auto q = a;
        q.lo = nearest_quotients(a.lo, b.lo);
        q.hi = nearest_quotients(a.hi, b.hi);
        return simd::narrow(q);
    } else {
        const auto a = simd::widen(divisor), b = simd::widen(dividend);
        using Int = simd::vec<std::int32_t, typename V::reg>;
        using F = simd::floats_of<Int>;
        const F a0 = simd::to_float(simd::as<std::int32_t>(a.lo)), a1 = simd::to_float(simd::as<std::int32_t>(a.hi));
        const F b0 = simd::to_float(simd::as<std::int32_t>(b.lo)), b1 = simd::to_float(simd::as<std::int32_t>(b.hi));
        const F both = simd::splat<F>(1.f) / (a0 * a1);
        const auto nearest = [](F t) {
            const Int shortened = (simd::bits(t) + simd::splat<Int>(16)) & simd::splat<Int>(~31);
            return simd::round_to_int(simd::from_bits(shortened));
        };
        auto q = a;
        q.lo = simd::as<typename decltype(q.lo)::lane>(nearest(b0 * (both * a1)));
        q.hi = simd::as<typename decltype(q.lo)::lane>(nearest(b1 * (both * a0)));
        return simd::narrow(q);
    }
}

// The same in fixed point with 16 fraction bits. The two agree unless a quotient lies within 2^-16 of a tie
// without being one, which takes a divisor with its top bit set. There the result is 0, 1 or 2: it goes up to
// 1 where 65536 b >= 32769 a, and to 2 where 65536 (b - a) >= 32767 a, solved for integers.
template <class V>
ORV_INLINE V fixed_point_quotients(V divisor, V dividend)
{
    const V q = nearest_quotients(divisor, dividend);
    const V top = simd::as<std::uint16_t>(simd::as<std::int16_t>(divisor) >> simd::count(15));
    if (!simd::any(top)) return q;
    const V one = simd::splat<V>(1);
    const V half = divisor >> simd::count(1);
    const V first = simd::min(simd::sub_saturate(dividend, divisor - half), one);
    const V second = simd::min(simd::sub_saturate(simd::sub_saturate(dividend, divisor), half - one), one);
    return simd::select(top, first + second, q);
}

enum class Direction { none, up, down };

// The rounded quotient in 16-bit lanes; up to 65535, where it may have saturated.
template <class T, Rounding rounding, Direction direction>
struct QuotientSteps {
    // Bits per step of the long division, so that the raised rest stays below 2^19.
    static constexpr int kStepBits = sizeof(T) == 1 ? 11 : 3;

    int bits;  // by how many bits up or down

    template <class V>
    ORV_INLINE V rounded(Division<V> d) const
    {
        const V none = simd::zero<V>(), one = simd::splat<V>(1);
        if constexpr (direction == Direction::up) {
            d.continue_by(bits % kStepBits);
            for (int i = 0; i < bits / kStepBits; ++i) d.continue_by(kStepBits);
        }
        // The rest against its complement tells which half of the unit it is in.
        const V complement = d.divisor - d.rest;
        if constexpr (direction == Direction::down) {
            return rounding == Rounding::half_even ? down_half_even(d) : down_fixed_point(d, complement);
        } else if constexpr (rounding == Rounding::half_even) {
            const V above = simd::sub_saturate(d.rest + (d.whole & one), complement);
            return increment_unless(simd::equal(above, none), d.whole);
        } else {
            // 65536 rest >= (32769 - 2 odd) divisor, solved for integers: the margin on either side
            // is one wider for divisors that have their top bit set.
            const V top = d.divisor >> simd::count(15);
            const V top_alone = simd::equal(d.divisor, simd::splat<V>(0x8000));
            const V odd = simd::equal(d.whole & one, one);
            const V above = simd::sub_saturate(simd::add_saturate(d.rest, odd & (top + one)),
                                               simd::add_saturate(complement, and_not(odd, top + top_alone)));
            return increment_unless(simd::equal(above, none), d.whole);
        }
    }

    // The mask is -1 where nothing is to be added.
    template <class V>
    static ORV_INLINE V increment_unless(V mask, V v)
    {
        if constexpr (sizeof(T) == 1 && direction == Direction::none) return v + (simd::splat<V>(1) + mask);
        return simd::add_saturate(v, simd::splat<V>(1) + mask);
    }

    // What is shifted out decides; a tie of it is none if there is a rest below.
    template <class V>
    ORV_INLINE V down_half_even(Division<V> d) const
    {
        const V one = simd::splat<V>(1);
        const V no_rest = simd::equal(d.rest, simd::zero<V>());
        const V odd = (d.whole >> simd::count(bits)) & one;
        const V addend = simd::splat<V>(static_cast<std::uint16_t>((1 << (bits - 1)) - 1)) + (odd | (one + no_rest));
        // Half the sum, without its carry.
        const V half_sum = (d.whole >> simd::count(1)) + (addend >> simd::count(1)) + (d.whole & addend & one);
        return half_sum >> simd::count(bits - 1);
    }

    // The quotient is cut off after 16 fraction bits before it is shifted, so what is shifted out and
    // the rest decide together: up from a half (even) or from just below it (odd).
    template <class V>
    ORV_INLINE V down_fixed_point(Division<V> d, V complement) const
    {
        if (bits > 16) return simd::zero<V>();
        const V none = simd::zero<V>(), one = simd::splat<V>(1);
        const V half = simd::splat<V>(static_cast<std::uint16_t>(1 << (bits - 1)));
        const simd::count left_over(16 - bits);
        const V shifted = d.whole >> simd::count(bits);
        const V out = d.whole & simd::splat<V>(static_cast<std::uint16_t>((1 << bits) - 1));
        const V odd = simd::equal(shifted & one, one);
        const V not_above = simd::equal(simd::sub_saturate(out, half), none);
        const V at_half = simd::equal(out, half);
        const V below_half = simd::equal(out, half - one);
        const V no_fraction = simd::equal(simd::sub_saturate(d.rest, (d.divisor - one) >> left_over), none);
        const V nearly_one = simd::equal(simd::sub_saturate(complement, d.divisor >> left_over), none);
        const V up_at_half = at_half & (odd | and_not(no_fraction, simd::splat<V>(65535)));
        const V up_below = below_half & odd & nearly_one;
        return shifted - (and_not(not_above, simd::splat<V>(65535)) | up_at_half | up_below);
    }
};
#endif

template <class T, Rounding rounding, class Steps>
struct Quotient {
    int scaleFactor;
    Steps steps;
    bool zeros;  // a divisor was 0

    T one(T a, T b)
    {
        if (a == 0) {
            zeros = true;
            return quotient_by_zero(b);
        }
        if constexpr (rounding == Rounding::fixed_point) return quotient_fixed_point(a, b, scaleFactor);
        return quotient_half_even(a, b, scaleFactor);
    }
#if ORV_HAVE_VECTORS
    template <class V> ORV_INLINE V many(V a, V b)
    {
        // Lanes without a divisor divide by 1: hosts may have the exception for zero unmasked.
        const V no_divisor = simd::equal(a, simd::zero<V>());
        if constexpr (std::is_same<Steps, QuotientSteps<T, rounding, Direction::none>>::value) {
            V q;
            if constexpr (rounding == Rounding::half_even) q = nearest_quotients(a - no_divisor, b);
            else q = fixed_point_quotients(a - no_divisor, b);
            if (!simd::any(no_divisor)) return q;
            zeros = true;
            V by_zero = simd::splat<V>(std::numeric_limits<T>::max());
            if constexpr (is_signed<T>) by_zero = by_zero ^ (b >> simd::count(15));
            return simd::select(no_divisor, and_not(simd::equal(b, simd::zero<V>()), by_zero), q);
        }
        zeros |= simd::any(no_divisor);
        const V by_zero = and_not(simd::equal(b, simd::zero<V>()), no_divisor);
        if constexpr (sizeof(T) == 1) {
            const auto divisor = simd::widen(a - no_divisor), dividend = simd::widen(b);
            auto q = divisor;
            q.lo = steps.rounded(Division<decltype(q.lo)>(dividend.lo, divisor.lo));
            q.hi = steps.rounded(Division<decltype(q.lo)>(dividend.hi, divisor.hi));
            if constexpr (std::is_same<Steps, QuotientSteps<T, rounding, Direction::up>>::value) {
                const auto most = simd::splat<decltype(q.lo)>(255);
                q.lo = simd::min(q.lo, most);
                q.hi = simd::min(q.hi, most);
            }
            return and_not(no_divisor, simd::narrow(q)) | by_zero;
        } else if constexpr (is_signed<T>) {
            using Magnitude = simd::vec<std::uint16_t, typename V::reg>;
            const V sign = (a ^ b) >> simd::count(15);
            const Division<Magnitude> d(magnitude(b), magnitude(a - no_divisor));
            const Magnitude q = and_not(simd::as<std::uint16_t>(no_divisor), steps.rounded(d)) | simd::as<std::uint16_t>(by_zero);
            const V bounded = simd::as<std::int16_t>(simd::min(q, simd::as<std::uint16_t>(simd::splat<V>(32767) - sign)));
            return (bounded ^ sign) - sign;
        } else {
            return and_not(no_divisor, steps.rounded(Division<V>(b, a - no_divisor))) | by_zero;
        }
    }
    template <class V> static ORV_INLINE auto magnitude(V v)
    {
        const V sign = v >> simd::count(15);
        return simd::as<std::uint16_t>((v ^ sign) - sign);
    }
#endif
};

template <class T, Rounding rounding, class Loop>
ORV_INLINE Status with_quotient(int scaleFactor, Loop loop)
{
    const auto run = [&](auto steps) {
        Quotient<T, rounding, decltype(steps)> op = {scaleFactor, steps, false};
        loop(op);
        return op.zeros ? StatusDivideByZero : StatusOk;
    };
#if ORV_HAVE_VECTORS
    // Quotients are rounded by the conversion to integers, and reciprocals are inexact: hosts may have that
    // exception unmasked.
    const FloatControl control;
    if (scaleFactor == 0) return run(QuotientSteps<T, rounding, Direction::none>{0});
    if (scaleFactor < 0) {
        return run(QuotientSteps<T, rounding, Direction::up>{scaleFactor < -32 ? 32 : -scaleFactor});
    }
    return run(QuotientSteps<T, rounding, Direction::down>{scaleFactor > 18 ? 18 : scaleFactor});
#else
    return run(0);
#endif
}

}  // namespace ORV_LEVEL
}  // namespace orv
