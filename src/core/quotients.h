// Quotients of integers under the scaling rule: their meaning, on scalars and on vectors. Images and
// signal vectors compute with the same text.
#pragma once

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
// Quotients of magnitudes below 2^16, held as floats, without ever needing an exact division.
//
// One division serves two vectors: 1 / (b0 b1), times b1 and times b0, gives both reciprocals. Such a
// reciprocal is off by less than 2^-21, also under another rounding mode. The whole part of a / b is
// the whole part of (a + 1/2) / b, and that lies at least 1/(2b) from every integer: for a below 2^19
// far more than the error of (a + 1/2) times the reciprocal. From there on, all is exact: whole
// parts, rests and their doubles are integers below 2^24.
template <class F>
struct Division {
    F divisor;
    F reciprocal;
    F whole;
    F rest;

    static ORV_INLINE F floor_of(F v) { return simd::to_float(simd::truncate(v)); }

    ORV_INLINE void start(F dividend)
    {
        whole = floor_of((dividend + simd::splat<F>(0.5f)) * reciprocal);
        rest = dividend - whole * divisor;
    }

    // Long division: `factor`, a power of two, brings that many more bits into the whole part. What
    // exceeds `limit` need not be told apart.
    ORV_INLINE void continue_by(float factor, float limit)
    {
        const F raised = rest * simd::splat<F>(factor);
        const F digits = floor_of((raised + simd::splat<F>(0.5f)) * reciprocal);
        rest = raised - digits * divisor;
        whole = simd::min(whole * simd::splat<F>(factor) + digits, simd::splat<F>(limit));
    }
};

enum class Direction { none, up, down };

template <class T, Rounding rounding, Direction direction>
struct QuotientSteps {
    // Digits per step of the long division, so that the raised rest stays below 2^19.
    static constexpr int kDigitBits = sizeof(T) == 1 ? 11 : 3;
    static constexpr float kLimit = sizeof(T) == 1 ? 1024.f : 65536.f;

    int bits;  // by how many bits up or down

    template <class F>
    ORV_INLINE auto finish(Division<F> d) const
    {
        using Int = simd::ints_of<F>;
        if constexpr (direction == Direction::up) {
            d.continue_by(static_cast<float>(1 << bits % kDigitBits), kLimit);
            for (int i = 0; i < bits / kDigitBits; ++i) d.continue_by(float{1 << kDigitBits}, kLimit);
        }
        const Int whole = simd::truncate(d.whole);
        if constexpr (direction == Direction::down && rounding == Rounding::half_even) {
            // Twice the quotient with its lowest bit set when anything lies below: rounds as the
            // exact quotient does.
            const Int some_rest = simd::bits(simd::greater(d.rest, simd::zero<F>()));
            return ScaleDown<T, std::int32_t>{bits + 1}((whole + whole) - some_rest);
        } else if constexpr (direction == Direction::down) {
            Division<F> fraction = d;
            fraction.whole = simd::zero<F>();
            for (int i = 0; i < 5; ++i) fraction.continue_by(8.f, 65536.f);
            fraction.continue_by(2.f, 65536.f);
            using Word = simd::vec<std::uint32_t, typename Int::reg>;
            const Int q16 = (whole << simd::count(16)) | simd::truncate(fraction.whole);
            const Word q = simd::as<std::uint32_t>(q16) >> simd::count(bits);
            const Word odd_twice = (q >> simd::count(15)) & simd::splat<Word>(2);
            return simd::as<std::int32_t>((q + simd::splat<Word>(32767) + odd_twice) >> simd::count(16));
        } else {
            const Int odd = whole & simd::splat<Int>(1);
            const F twice_rest = d.rest + d.rest;
            if constexpr (rounding == Rounding::half_even) {
                const F up = simd::greater(twice_rest + simd::to_float(odd), d.divisor);
                return whole - simd::bits(up);
            } else {
                // 65536 rest >= (32769 - 2 odd) divisor, in integers.
                const F excess = twice_rest - d.divisor;
                const F half = simd::splat<F>(32768.f), one = simd::splat<F>(1.f);
                const F even_bound = simd::greater(d.divisor, half) & one;
                const F odd_bound = simd::splat<F>(-1.f) - (simd::greater_equal(d.divisor, half) & one);
                const F is_odd = simd::from_bits(simd::equal(odd, simd::splat<Int>(1)));
                return whole - simd::bits(simd::greater(excess, simd::select(is_odd, odd_bound, even_bound)));
            }
        }
    }

    // Quotients of two vectors of 32-bit lanes. Zero divisors set `zeros`.
    template <class Int>
    ORV_INLINE simd::pair<Int> quotients(Int a0, Int b0, Int a1, Int b1, bool& zeros) const
    {
        using F = simd::floats_of<Int>;
        const Int none = simd::zero<Int>();
        const F one = simd::splat<F>(1.f);
        const auto sign_of = [](Int v) { return v >> simd::count(31); };
        const auto magnitude = [&](Int v) {
            if constexpr (!is_signed<T>) return v;
            const Int sign = sign_of(v);
            return (v ^ sign) - sign;
        };
        const F divisor0 = simd::to_float(magnitude(a0)), divisor1 = simd::to_float(magnitude(a1));
        const F zero0 = simd::from_bits(simd::equal(a0, none)), zero1 = simd::from_bits(simd::equal(a1, none));
        // Lanes without a divisor divide by 1: hosts may have the exception for zero unmasked.
        Division<F> d0, d1;
        d0.divisor = divisor0 + (zero0 & one);
        d1.divisor = divisor1 + (zero1 & one);
        const F both = one / (d0.divisor * d1.divisor);
        d0.reciprocal = both * d1.divisor;
        d1.reciprocal = both * d0.divisor;
        d0.start(simd::to_float(magnitude(b0)));
        d1.start(simd::to_float(magnitude(b1)));
        zeros = zeros || simd::any(zero0 | zero1);

        const auto close = [&](Division<F> d, F zero, Int a, Int b) {
            // Over zero everything but 0 saturates.
            const Int by_zero = and_not(simd::equal(b, none), simd::splat<Int>(1 << 17));
            const Int q = simd::select(simd::bits(zero), by_zero, finish(d));
            if constexpr (!is_signed<T>) return q;
            const Int sign = sign_of(a ^ b);
            return (q ^ sign) - sign;
        };
        return {close(d0, zero0, a0, b0), close(d1, zero1, a1, b1)};
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
        const auto wa = simd::widen(a), wb = simd::widen(b);
        if constexpr (sizeof(T) == 1) {
            return simd::narrow(simd::pair<decltype(wa.lo)>{many16(wa.lo, wb.lo), many16(wa.hi, wb.hi)});
        } else {
            const auto q = steps.quotients(simd::as<std::int32_t>(wa.lo), simd::as<std::int32_t>(wb.lo),
                                           simd::as<std::int32_t>(wa.hi), simd::as<std::int32_t>(wb.hi), zeros);
            using W = decltype(wa.lo);
            return simd::narrow(simd::pair<W>{simd::as<wider_t<T>>(q.lo), simd::as<wider_t<T>>(q.hi)});
        }
    }
    template <class V> ORV_INLINE V many16(V a, V b)
    {
        const auto wa = simd::widen(a), wb = simd::widen(b);
        const auto q = steps.quotients(simd::as<std::int32_t>(wa.lo), simd::as<std::int32_t>(wb.lo),
                                       simd::as<std::int32_t>(wa.hi), simd::as<std::int32_t>(wb.hi), zeros);
        return simd::as<std::uint16_t>(simd::narrow(q));
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
