// Quotients of sums by a divisor of the call: to the nearest integer, ties to even, saturated.
//
// On vectors they are products with a reciprocal of p = 24 or 53 binary digits that is too large by 2^(2 - p): the
// product, rounded once more, is then above the exact quotient, by less than 1.5 * 2^(2 - p) of it. A quotient of
// integers that is no tie is farther from the next one, 1 / (2 s) of it for a sum s, and ties have few digits: so
// cutting the last three off leaves ties exactly, and takes nothing else across one, as long as s is at most
// 2^(p - 5).
#pragma once

#include <cstdint>

#include "core/checks.h"
#include "core/float_control.h"
#include "simd/pair_products.h"

namespace orv {
inline namespace ORV_LEVEL {

template <class T> constexpr int kLeast = T(-1) < T(0) ? -(1 << (8 * sizeof(T) - 1)) : 0;
template <class T> constexpr int kMost = T(-1) < T(0) ? -1 - kLeast<T> : (1 << (8 * sizeof(T))) - 1;

template <class To>
To nearest_quotient(std::int64_t sum, int divisor)
{
    const auto magnitude = [](std::int64_t x) {
        return x < 0 ? 0 - static_cast<std::uint64_t>(x) : static_cast<std::uint64_t>(x);
    };
    const std::uint64_t numerator = magnitude(sum), denominator = magnitude(divisor);
    std::uint64_t quotient = numerator / denominator;
    const std::uint64_t twice_rest = 2 * (numerator - quotient * denominator);
    if (twice_rest + (quotient & 1) > denominator) ++quotient;
    const bool negative = (sum < 0) != (divisor < 0);
    const auto bound = static_cast<std::uint64_t>(negative ? -std::int64_t{kLeast<To>} : std::int64_t{kMost<To>});
    const int saturated = static_cast<int>(quotient < bound ? quotient : bound);
    return static_cast<To>(negative ? -saturated : saturated);
}

#if ORV_HAVE_VECTORS

using SumLanes = simd::widest<std::int32_t>;

constexpr std::uint64_t kMostForFloats = std::uint64_t{1} << 19;
constexpr std::uint64_t kMostForDoubles = std::uint64_t{1} << 48;

// A divisor of 1.
struct NoQuotients {
    static constexpr bool kNone = true;
    ORV_INLINE SumLanes many(SumLanes sums) const { return sums; }
};

// Sums up to kMostForFloats.
struct FloatQuotients {
    using Floats = simd::vec<float, SumLanes::N>;
    static constexpr bool kNone = false;
    Floats factor;

    // Under FloatControl.
    ORV_INLINE explicit FloatQuotients(int divisor) : factor(static_cast<float>((1 + 0x1p-22) / divisor)) {}
    ORV_INLINE SumLanes many(SumLanes sums) const
    {
        const auto bits = simd::bits(simd::to_float(sums) * factor);
        return simd::round_to_int(simd::from_bits(bits & simd::splat<decltype(simd::bits(factor))>(~7u)));
    }
};

using QuotientLanes = simd::twice<simd::vec<double, SumLanes::N / 2>>;
ORV_INLINE double double_factor(int divisor) { return (1 + 0x1p-51) / divisor; }
ORV_INLINE QuotientLanes cut_off(QuotientLanes t)
{
    using Bits = decltype(simd::bits(t.lo));
    const Bits kept = simd::splat<Bits>(~std::uint64_t{7});
    return {simd::from_bits(simd::bits(t.lo) & kept), simd::from_bits(simd::bits(t.hi) & kept)};
}

// Sums of 32 bits, divisors other than 1: no quotient is out of their range.
struct WideQuotients {
    static constexpr bool kNone = false;
    simd::vec<double, SumLanes::N / 2> factor;

    ORV_INLINE explicit WideQuotients(int divisor) : factor(double_factor(divisor)) {}
    ORV_INLINE SumLanes many(SumLanes sums) const
    {
        return simd::round_to_int(cut_off(simd::to_double(sums) * factor));
    }
};

// Sums that are doubles, up to kMostForDoubles.
template <class To>
struct DoubleQuotients {
    simd::vec<double, SumLanes::N / 2> factor, least, most;

    ORV_INLINE explicit DoubleQuotients(int divisor)
        : factor(double_factor(divisor)), least(kLeast<To>), most(kMost<To>)
    {
    }
    ORV_INLINE SumLanes many(QuotientLanes sums) const
    {
        const QuotientLanes t = cut_off(sums * factor);
        return simd::round_to_int(
            QuotientLanes{simd::min(simd::max(t.lo, least), most), simd::min(simd::max(t.hi, least), most)});
    }
};

// --- Results in memory order, saturated -----------------------------------------------------------

template <int n>
ORV_INLINE void store_packed(std::uint8_t* p, const SumLanes (&a)[n])
{
    static_assert(n == 4, "a vector of bytes");
    simd::store(p, simd::pack(a[0], a[1], a[2], a[3]));
}
template <int n>
ORV_INLINE void store_packed(std::int16_t* p, const SumLanes (&a)[n])
{
#pragma GCC unroll 2
    for (int k = 0; k < n; k += 2) simd::store(p + k * SumLanes::N, simd::pack_signed(a[k], a[k + 1]));
}
template <int n>
ORV_INLINE void store_packed(std::uint16_t* p, const SumLanes (&a)[n])
{
#pragma GCC unroll 2
    for (int k = 0; k < n; k += 2) simd::store(p + k * SumLanes::N, simd::pack(a[k], a[k + 1]));
}
using HalfSumLanes = simd::widest<std::int16_t>;
ORV_INLINE void store_packed(std::uint8_t* p, const HalfSumLanes (&a)[2]) { simd::store(p, simd::pack(a[0], a[1])); }
ORV_INLINE void store_packed(std::int16_t* p, const HalfSumLanes (&a)[2])
{
    simd::store(p, a[0]);
    simd::store(p + HalfSumLanes::N, a[1]);
}

#endif

}  // namespace ORV_LEVEL
}  // namespace orv
