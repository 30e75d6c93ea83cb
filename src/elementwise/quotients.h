// Quotients of integers under the scaling rule: their meaning, on scalars and on vectors. Images and
// signal vectors compute with the same text.
#pragma once

#include <cstdint>
#include <type_traits>

#include "core/float_control.h"
#include "elementwise/full_vectors.h"
#include "elementwise/scaled_arithmetic.h"
#include "simd/halves.h"
#include "simd/reductions.h"

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

// Quotients of magnitudes in 16-bit lanes: whole part and rest exactly, everything after that in
// integers.
//
// The float reciprocal of the divisor is off by less than 2^-21, also under another rounding mode. The
// whole part of a / b is the whole part of (a + 1/2) / b, which lies at least 1/(2b) from every integer:
// for a below 2^19 farther than the error of (a + 1/2) times the reciprocal.
template <class V>
struct Division {
    using Ints = decltype(simd::widen(V{}).lo);
    using F = simd::floats_of<V>;

    V divisor;  // nowhere 0
    simd::twice<F> reciprocal;
    V whole;
    V rest;

    static ORV_INLINE simd::twice<F> floats(V v)
    {
        const auto w = simd::widen(v);
        return {simd::to_float(simd::as<std::int32_t>(w.lo)), simd::to_float(simd::as<std::int32_t>(w.hi))};
    }

    // The whole part of n divided by the divisor, n below 2^19.
    ORV_INLINE V whole_part(simd::twice<F> n) const
    {
        const F half = simd::splat<F>(0.5f);
        const auto lo = simd::truncate((n.lo + half) * reciprocal.lo);
        const auto hi = simd::truncate((n.hi + half) * reciprocal.hi);
        return simd::narrow(simd::twice<Ints>{simd::as<std::uint32_t>(lo), simd::as<std::uint32_t>(hi)});
    }

    ORV_INLINE Division(V dividend, V by) : divisor(by)
    {
        ORV_ASSERT(!simd::any(simd::equal(by, simd::zero<V>())));
        // One division serves two vectors: 1 / (b0 b1), times b1 and times b0.
        const simd::twice<F> b = floats(divisor);
        const F both = simd::splat<F>(1.f) / (b.lo * b.hi);
        reciprocal = {both * b.hi, both * b.lo};
        whole = whole_part(floats(dividend));
        rest = dividend - simd::mul_low(whole, divisor);
    }

    // Long division: `bits` more bits of the quotient become part of `whole`, which stays at 65535 once
    // it no longer fits. The rest, below 2^16, times 2^bits must lie below 2^19.
    ORV_INLINE void continue_by(int bits)
    {
        ORV_ASSERT(bits >= 0 && bits <= 3);
        const F factor = simd::splat<F>(static_cast<float>(1 << bits));
        const simd::twice<F> r = floats(rest);
        const V digits = whole_part({r.lo * factor, r.hi * factor});
        const simd::count by(bits);
        const simd::mask_of<V> fits = simd::equal(simd::sub_saturate(whole, simd::splat<V>(static_cast<std::uint16_t>(65535 >> bits))), simd::zero<V>());
        rest = (rest << by) - simd::mul_low(digits, divisor);
        whole = simd::select(fits, (whole << by) + digits, simd::splat<V>(65535));
    }
};

// Rounded quotients, ties to even, straight from floats: t = 2^-scaleFactor b / a.
//
// One division serves two vectors: 1 / (a0 a1), times a1 and times a0. With the product that follows that
// makes four roundings, so t is off by less than 2^-21.9 t, and `factor`, which carries a little more than
// 2^-scaleFactor, puts it above the exact quotient by up to 2^-20 of it. A quotient of 16-bit integers that is
// no tie lies at least 2^-17 t from every tie, and a tie has few digits: cutting t off after 19 bits restores
// ties and takes nothing else across one. Quotients scaled up keep that distance as long as b 2^-scaleFactor
// stays below 2^16 wherever the result has not saturated: those of 8 bits do.
ORV_INLINE float quotient_factor(int scaleFactor)
{
    // From 18 down nothing reaches one half; from 16 up everything but 0 leaves 8 bits.
    const int exponent = scaleFactor > 18 ? 18 : scaleFactor < -16 ? -16 : scaleFactor;
    const std::int32_t bits = ((127 - exponent) << 23) + 4;  // 1 + 2^-21
    float factor;
    std::memcpy(&factor, &bits, sizeof(factor));
    return factor;
}

// t, saved from its errors.
template <class F>
ORV_INLINE F restored(F t)
{
    using Int = decltype(simd::bits(t));
    return simd::from_bits(simd::bits(t) & simd::splat<Int>(~31u));
}
template <class F>
ORV_INLINE auto nearest_integer(F t)
{
    return simd::round_to_int(restored(t));
}

// The quotients t of 16-bit lanes. What depends on the divisors alone comes first: a loop with a constant
// divisor forms it once.
template <class V>
ORV_INLINE auto raw_quotients(V divisor, V dividend, float factor)
{
    const auto a = simd::widen(divisor), b = simd::widen(dividend);
    using F = simd::floats_of<V>;
    const F a0 = simd::to_float(simd::as<std::int32_t>(a.lo)), a1 = simd::to_float(simd::as<std::int32_t>(a.hi));
    const F b0 = simd::to_float(simd::as<std::int32_t>(b.lo)), b1 = simd::to_float(simd::as<std::int32_t>(b.hi));
    const F both = simd::splat<F>(factor) / (a0 * a1);
    return simd::twice<F>{b0 * (both * a1), b1 * (both * a0)};
}

// 32-bit results as 16-bit lanes of the type of V, saturating.
template <class V, class Ints>
ORV_INLINE V narrow_to(Ints lo, Ints hi)
{
    auto q = simd::widen(V{});
    using Lane = typename decltype(q.lo)::lane;
    q.lo = simd::as<Lane>(lo);
    q.hi = simd::as<Lane>(hi);
    return simd::narrow(q);
}

template <class V>
ORV_INLINE V nearest_quotients(V divisor, V dividend, float factor)
{
    const auto t = raw_quotients(divisor, dividend, factor);
    return narrow_to<V>(nearest_integer(t.lo), nearest_integer(t.hi));
}

// Bytes: up to 65535 in 16-bit lanes before they are narrowed, so quotients scaled up need a bound.
template <bool up, int N>
ORV_INLINE simd::vec<std::uint8_t, N> nearest_quotients_of_bytes(simd::vec<std::uint8_t, N> divisor,
                                                                 simd::vec<std::uint8_t, N> dividend, float factor)
{
    const auto a = simd::widen(divisor), b = simd::widen(dividend);
    auto q = a;
    q.lo = nearest_quotients(a.lo, b.lo, factor);
    q.hi = nearest_quotients(a.hi, b.hi, factor);
    if (up) {
        const auto most = simd::splat<decltype(q.lo)>(255);
        q.lo = simd::min(q.lo, most);
        q.hi = simd::min(q.hi, most);
    }
    return simd::narrow(q);
}

// The same where every divisor is another: with the products of neighbours formed in integers, exactly, a
// quotient is 1 / (a0 a1) times (b0 a1), and half of the conversions are saved.
template <bool up, int N>
ORV_INLINE simd::vec<std::uint8_t, N> quotients_of_bytes(simd::vec<std::uint8_t, N> divisor,
                                                         simd::vec<std::uint8_t, N> dividend, float factor)
{
    using V = simd::vec<std::uint8_t, N>;
    using Words = simd::recast<std::uint16_t, V>;
    using Ints = simd::recast<std::int32_t, V>;
    using F = simd::floats_of<Ints>;
    const auto floats = [](Words v) {
        const auto w = simd::widen(v);
        return simd::twice<F>{simd::to_float(simd::as<std::int32_t>(w.lo)), simd::to_float(simd::as<std::int32_t>(w.hi))};
    };
    const Words low = simd::splat<Words>(255);
    const Words a = simd::as<std::uint16_t>(divisor), b = simd::as<std::uint16_t>(dividend);
    const Words a0 = a & low, a1 = simd::upper(a);
    const simd::twice<F> products = floats(simd::mul_low(a0, a1));
    const simd::twice<F> both = {simd::splat<F>(factor) / products.lo, simd::splat<F>(factor) / products.hi};
    const auto quotients = [&](Words numerator) {
        const simd::twice<F> n = floats(numerator);
        const simd::twice<Ints> q = {nearest_integer(n.lo * both.lo), nearest_integer(n.hi * both.hi)};
        const Words w = simd::as<std::uint16_t>(simd::narrow(q));
        return up ? simd::min(w, low) : w;
    };
    const Words q0 = quotients(simd::mul_low(b & low, a1)), q1 = quotients(simd::mul_low(simd::upper(b), a0));
    return simd::as<std::uint8_t>(q0 | simd::raised(q1));
}

// Two vectors of 16-bit quotients at once, all divisors other than 0. Both kinds wait for the divider less
// than for everything around it; its work is begun first, since the rest can run beside it.
//
// Signed: products of neighbours again, by the instruction that multiplies and adds pairs.
template <int N>
ORV_INLINE simd::twice<simd::vec<std::int16_t, N>> quotients_of_two(const simd::vec<std::int16_t, N> (&a)[2],
                                                                   const simd::vec<std::int16_t, N> (&b)[2], float factor)
{
    using V = simd::vec<std::int16_t, N>;
    using Words = V;
    using Ints = simd::recast<std::int32_t, V>;
    using F = simd::floats_of<Ints>;
    // The odd lanes in the even ones, with 0 above them: (x0 x1) (y1 0) makes x0 y1.
    const auto odd = [](Words v) { return simd::as<std::int16_t>(simd::upper(simd::as<std::uint32_t>(v))); };
    const Words a1_first = odd(a[0]), a1_second = odd(a[1]);
    const F f = simd::splat<F>(factor);
    const F both_first = f / simd::to_float(simd::sum_of_products(a[0], a1_first));
    const F both_second = f / simd::to_float(simd::sum_of_products(a[1], a1_second));
    const auto quotients = [](Words n, Words by, F both) {
        return nearest_integer(simd::to_float(simd::sum_of_products(n, by)) * both);
    };
    const simd::twice<Ints> even = {quotients(b[0], a1_first, both_first), quotients(b[1], a1_second, both_second)};
    const simd::twice<Ints> uneven = {quotients(a[0], odd(b[0]), both_first), quotients(a[1], odd(b[1]), both_second)};
    const simd::twice<Ints> mixed = simd::interleave(simd::narrow(even), simd::narrow(uneven));
    return {simd::as<std::int16_t>(mixed.lo), simd::as<std::int16_t>(mixed.hi)};
}

// Unsigned: one vector as above, the other by two divisions, which need no correction; so the divider and the
// multipliers have the same amount of work. `scaled` says whether there is a scale factor.
template <bool scaled, int N>
ORV_INLINE simd::twice<simd::vec<std::uint16_t, N>> quotients_of_two(const simd::vec<std::uint16_t, N> (&a)[2],
                                                                    const simd::vec<std::uint16_t, N> (&b)[2], float factor)
{
    using V = simd::vec<std::uint16_t, N>;
    using Ints = simd::recast<std::int32_t, V>;
    using F = simd::floats_of<Ints>;
    const auto floats = [](auto v) { return simd::to_float(simd::as<std::int32_t>(v)); };
    const auto second = simd::widen(b[1]), by = simd::widen(a[1]);
    F t0 = floats(second.lo) / floats(by.lo), t1 = floats(second.hi) / floats(by.hi);
    if (scaled) {
        // Exactly 2^-scaleFactor: correctly rounded quotients want no push.
        const F power = simd::from_bits(simd::bits(simd::splat<F>(factor)) & simd::splat<simd::recast<std::uint32_t, F>>(~31u));
        t0 = t0 * power;
        t1 = t1 * power;
    }
    return {nearest_quotients(a[0], b[0], factor), narrow_to<V>(simd::round_to_int(t0), simd::round_to_int(t1))};
}

// The same in fixed point with 16 fraction bits. The two agree unless a quotient lies within 2^-16 of a tie
// without being one, which takes a divisor with its top bit set. There the result is 0, 1 or 2: it goes up to
// 1 where 65536 b >= 32769 a, and to 2 where 65536 (b - a) >= 32767 a, solved for integers.
template <class V>
ORV_INLINE V fixed_point_quotients(V divisor, V dividend)
{
    const V q = nearest_quotients(divisor, dividend, quotient_factor(0));
    const V top = simd::as<std::uint16_t>(simd::as<std::int16_t>(divisor) >> simd::count(15));
    if (!simd::any(top)) return q;
    const V one = simd::splat<V>(1);
    const V half = divisor >> simd::count(1);
    const V first = simd::min(simd::sub_saturate(dividend, divisor - half), one);
    const V second = simd::min(simd::sub_saturate(simd::sub_saturate(dividend, divisor), half - one), one);
    return simd::select(top, first + second, q);
}

enum class Direction { down, up };

// The rounded quotient of 16-bit magnitudes where floats would not do: up to 65535, where it may have
// saturated.
template <Rounding rounding, Direction direction>
struct QuotientSteps {
    // Bits per step of the long division, so that the raised rest stays below 2^19.
    static constexpr int kStepBits = 3;

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
            static_assert(rounding == Rounding::fixed_point, "the other kind is left to floats");
            return down_fixed_point(d, complement);
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
        return simd::add_saturate(v, simd::splat<V>(1) + mask);
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

// Whether a loop sees one divisor again and again (per channel), or every element has its own.
enum class Divisors { constant, varying };

// The meaning on scalars, and what the vector forms share: a divisor of 0.
template <class T, Rounding rounding>
struct QuotientOfScalars {
    int scaleFactor;
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
    // q, computed with 1 in place of no divisor, with the fixed values there.
    template <class V> ORV_INLINE V with_zeros(V no_divisor, V b, V q)
    {
        zeros = true;
        V by_zero = simd::splat<V>(std::numeric_limits<T>::max());
        if constexpr (is_signed<T>) by_zero = by_zero ^ (b >> simd::count(15));
        return simd::select(no_divisor, and_not(simd::equal(b, simd::zero<V>()), by_zero), q);
    }
};

// Lanes without a divisor divide by 1: hosts may have the exception for zero unmasked.
//
// Bytes, at any scale factor. Zeros are common in them, so they are not branched for.
template <Divisors divisors, bool up>
struct QuotientOfBytes : QuotientOfScalars<std::uint8_t, Rounding::half_even> {
    float factor;

    template <class V> ORV_INLINE V many(V a, V b)
    {
        const V no_divisor = simd::equal(a, simd::zero<V>());
        zeros |= simd::any(no_divisor);
        V q;
        if constexpr (divisors == Divisors::varying) q = quotients_of_bytes<up>(a - no_divisor, b, factor);
        else q = nearest_quotients_of_bytes<up>(a - no_divisor, b, factor);
        return and_not(no_divisor, q) | and_not(simd::equal(b, simd::zero<V>()), no_divisor);
    }
};

// 16 bits that are not scaled up, and in fixed point not scaled at all.
template <class T, Rounding rounding, bool scaled>
struct QuotientOfWords : QuotientOfScalars<T, rounding> {
    static constexpr Pace kPace = Pace::kTogether;
    float factor;

    template <class V> ORV_INLINE V many(V a, V b)
    {
        const V no_divisor = simd::equal(a, simd::zero<V>());
        V q;
        if constexpr (rounding == Rounding::half_even) q = nearest_quotients(a - no_divisor, b, factor);
        else q = fixed_point_quotients(a - no_divisor, b);
        if (!simd::any(no_divisor)) return q;
        return this->with_zeros(no_divisor, b, q);
    }

    template <class V> ORV_INLINE simd::twice<V> many(const V (&a)[2], const V (&b)[2])
    {
        using Unsigned = simd::recast<std::uint16_t, V>;
        const Unsigned a0 = simd::as<std::uint16_t>(a[0]), a1 = simd::as<std::uint16_t>(a[1]);
        Unsigned special = simd::equal(simd::min(a0, a1), simd::zero<Unsigned>());
        if constexpr (rounding == Rounding::fixed_point) special = special | near_tie(a[0], b[0]) | near_tie(a[1], b[1]);
        if (simd::any(special)) return {many(a[0], b[0]), many(a[1], b[1])};
        if constexpr (is_signed<T>) return quotients_of_two(a, b, factor);
        else return quotients_of_two<scaled>(a, b, factor);
    }

    // The quotients that fixed point rounds in another direction have 2 b = a + 1 or 3 a - 1, so |b - a| is half
    // of a; few others have.
    template <class V> static ORV_INLINE V near_tie(V a, V b)
    {
        return simd::equal(simd::as<std::uint16_t>(simd::magnitude(simd::as<std::int16_t>(b - a))), simd::halved(a));
    }
};

// 16 bits scaled up, and where floats cannot tell.
template <class T, Rounding rounding, class Steps>
struct QuotientInSteps : QuotientOfScalars<T, rounding> {
    Steps steps;

    template <class V> ORV_INLINE V many(V a, V b)
    {
        const V no_divisor = simd::equal(a, simd::zero<V>());
        V q;
        if constexpr (is_signed<T>) {
            using Magnitude = simd::recast<std::uint16_t, V>;
            const V sign = (a ^ b) >> simd::count(15);
            const auto magnitude = [](V v) { return simd::as<std::uint16_t>(simd::magnitude(v)); };
            const Magnitude m = steps.rounded(Division<Magnitude>(magnitude(b), magnitude(a - no_divisor)));
            const V bounded = simd::as<std::int16_t>(simd::min(m, simd::as<std::uint16_t>(simd::splat<V>(32767) - sign)));
            q = (bounded ^ sign) - sign;
        } else {
            q = steps.rounded(Division<V>(b, a - no_divisor));
        }
        if (!simd::any(no_divisor)) return q;
        return this->with_zeros(no_divisor, b, q);
    }
};

// Fixed point scaled down: as nearest quotients, unless one lies so close to a tie that the two may differ. That
// takes one below 2, so the distance is known well enough; ties themselves are the same in both.
struct QuotientInFixedPoint : QuotientInSteps<std::uint16_t, Rounding::fixed_point, QuotientSteps<Rounding::fixed_point, Direction::down>> {
    using InSteps = QuotientInSteps<std::uint16_t, Rounding::fixed_point, QuotientSteps<Rounding::fixed_point, Direction::down>>;
    float factor;

    template <class V> ORV_INLINE V many(V a, V b)
    {
        const V no_divisor = simd::equal(a, simd::zero<V>());
        const auto t = raw_quotients(a - no_divisor, b, factor);
        const auto t0 = restored(t.lo), t1 = restored(t.hi);
        const auto q0 = simd::round_to_int(t0), q1 = simd::round_to_int(t1);
        const auto doubtful = simd::bits(near_tie(t0, q0) | near_tie(t1, q1));
        if (simd::any(simd::as<std::uint16_t>(doubtful) | no_divisor)) return InSteps::many(a, b);
        return narrow_to<V>(q0, q1);
    }

    template <class F, class Ints> static ORV_INLINE simd::mask_of<F> near_tie(F t, Ints q)
    {
        const F away = t - simd::to_float(q);
        const F distance = simd::from_bits(simd::bits(away) & simd::splat<simd::recast<std::uint32_t, F>>(0x7FFFFFFF));
        const F half = simd::splat<F>(0.5f), nearly_half = simd::splat<F>(0.5f - 1.f / 16384);
        return simd::greater(distance, nearly_half) & simd::greater(half, distance);
    }
};

template <class T, Rounding rounding, Divisors divisors = Divisors::varying, class Loop>
ORV_INLINE Status with_quotient(int scaleFactor, Loop loop)
{
    const auto run = [&](auto op) {
        loop(op);
        return op.zeros ? StatusDivideByZero : StatusOk;
    };
    const QuotientOfScalars<T, rounding> scalars = {scaleFactor, false};
#if ORV_HAVE_VECTORS
    // Quotients are rounded by the conversion to integers, and reciprocals are inexact: hosts may have that
    // exception unmasked.
    const FloatControl control;
    const float factor = quotient_factor(scaleFactor);
    if constexpr (sizeof(T) == 1) {
        if (scaleFactor < 0) return run(QuotientOfBytes<divisors, true>{scalars, factor});
        return run(QuotientOfBytes<divisors, false>{scalars, factor});
    } else {
        if (scaleFactor == 0) return run(QuotientOfWords<T, rounding, false>{scalars, factor});
        if (scaleFactor < 0) {
            using Up = QuotientSteps<rounding, Direction::up>;
            return run(QuotientInSteps<T, rounding, Up>{scalars, Up{scaleFactor < -32 ? 32 : -scaleFactor}});
        }
        if constexpr (rounding == Rounding::half_even) {
            return run(QuotientOfWords<T, rounding, true>{scalars, factor});
        } else {
            using Down = QuotientSteps<rounding, Direction::down>;
            return run(QuotientInFixedPoint{{scalars, Down{scaleFactor > 18 ? 18 : scaleFactor}}, factor});
        }
    }
#else
    return run(scalars);
#endif
}

}  // namespace ORV_LEVEL
}  // namespace orv
