// Quotients of 16-bit magnitudes by long division: exact at every scale factor and in both roundings, in more
// steps than float_quotients.h takes.
#pragma once

#include <cstdint>

#include "core/assert.h"
#include "elementwise/scalar_quotients.h"
#include "simd/halves.h"

namespace orv {
inline namespace ORV_LEVEL {

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
        const simd::mask_of<V> fits = simd::equal(
            simd::sub_saturate(whole, simd::splat<V>(static_cast<std::uint16_t>(65535 >> bits))), simd::zero<V>());
        rest = (rest << by) - simd::mul_low(digits, divisor);
        whole = simd::select(fits, (whole << by) + digits, simd::splat<V>(65535));
    }
};

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
        // The rest against its complement shows which half of the unit it is in.
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

}  // namespace ORV_LEVEL
}  // namespace orv
