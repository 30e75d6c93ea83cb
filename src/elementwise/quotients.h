// Quotients of integers under the scaling rule, for images and signal vectors: which way serves which.
//
//     type   rounding      scaled up         not scaled        scaled down
//     8u     half even     QuotientOfBytes   QuotientOfBytes   QuotientOfBytes
//     16s    half even     QuotientInSteps   QuotientOfWords   QuotientOfWords
//     16u    half even     QuotientInSteps   QuotientOfWords   QuotientOfWords
//     16u    fixed point   QuotientInSteps   QuotientOfWords   QuotientInFixedPoint
//
// In steps: long_division.h. Of bytes and words: float_quotients.h. In fixed point: that one, and steps next to a tie.
// The plain level, and what the vectors leave over, runs QuotientOfScalars.
#pragma once

#include <cstdint>
#include <type_traits>

#include "core/float_control.h"
#include "elementwise/float_quotients.h"
#include "elementwise/full_vectors.h"
#include "elementwise/long_division.h"
#include "simd/conversion.h"

namespace orv {
inline namespace ORV_LEVEL {

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
        if constexpr (rounding == Rounding::fixed_point)
            special = special | near_tie(a[0], b[0]) | near_tie(a[1], b[1]);
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

// 16 bits scaled up, and where floats are not exact enough.
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
            const V bounded =
                simd::as<std::int16_t>(simd::min(m, simd::as<std::uint16_t>(simd::splat<V>(32767) - sign)));
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
struct QuotientInFixedPoint
    : QuotientInSteps<std::uint16_t, Rounding::fixed_point, QuotientSteps<Rounding::fixed_point, Direction::down>> {
    using InSteps =
        QuotientInSteps<std::uint16_t, Rounding::fixed_point, QuotientSteps<Rounding::fixed_point, Direction::down>>;
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
    if constexpr (!ORV_HAVE_VECTORS) return run(scalars);
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
}

}  // namespace ORV_LEVEL
}  // namespace orv
