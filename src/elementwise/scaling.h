// The one rule for scaled integer results: the exact result times 2^-scaleFactor, rounded half to
// even, saturated to the type. Its meaning on scalars, and its steps on widened vectors.
#pragma once

#include <cstdint>
#include <limits>

#include "core/level.h"
#include "simd/vec.h"

namespace orv {
inline namespace ORV_LEVEL {

// The type of twice the width.
template <class T> struct wider;
template <> struct wider<std::uint8_t> { using type = std::uint16_t; };
template <> struct wider<std::uint16_t> { using type = std::uint32_t; };
template <> struct wider<std::int16_t> { using type = std::int32_t; };
template <class T> using wider_t = typename wider<T>::type;

template <class T>
ORV_INLINE T saturate(std::int64_t value)
{
    constexpr std::int64_t low = std::numeric_limits<T>::min();
    constexpr std::int64_t high = std::numeric_limits<T>::max();
    return static_cast<T>(value < low ? low : value > high ? high : value);
}

// `exact` has a magnitude of at most 2^62; any scale factor will do.
template <class T>
ORV_INLINE T scale(std::int64_t exact, int scaleFactor)
{
    if (scaleFactor > 0) {
        if (scaleFactor > 62) return 0;  // at most one half, and the tie goes to 0
        const std::int64_t odd = exact >> scaleFactor & 1;
        const std::int64_t below_half = (std::int64_t{1} << (scaleFactor - 1)) - 1;
        return saturate<T>((exact + below_half + odd) >> scaleFactor);
    }
    constexpr std::int64_t low = std::numeric_limits<T>::min();
    constexpr std::int64_t high = std::numeric_limits<T>::max();
    // From 32 on, everything but 0 saturates in types of up to 32 bits.
    const int up = scaleFactor < -32 ? 32 : -scaleFactor;
    if (exact > high >> up) return static_cast<T>(high);
    if (exact < -(-low >> up)) return static_cast<T>(low);
    return static_cast<T>(exact * (std::int64_t{1} << up));
}

// The steps on lanes W twice as wide as the pixels T. Each leaves values that narrow() may saturate.

// scaleFactor > 0 where r + 2^(scaleFactor-1) cannot overflow the lane.
template <class T, class W>
struct ScaleDown {
    int bits;
    template <int N>
    ORV_INLINE simd::vec<W, N> operator()(simd::vec<W, N> r) const
    {
        using V = simd::vec<W, N>;
        const V below_half = simd::splat<V>(static_cast<W>((std::uint32_t{1} << (bits - 1)) - 1));
        const V lowest_kept = simd::splat<V>(static_cast<W>(std::uint32_t{1} << bits));
        const V odd = simd::ones_where<V>(simd::equal(r & lowest_kept, lowest_kept));  // -1 where it is
        const V sum = r + below_half - odd;
        // A shift by a register takes two operations, the multiplication that does the same one.
        if constexpr (sizeof(W) == 2) return simd::mul_high(sum, simd::splat<V>(static_cast<W>(65536 >> bits)));
        return sum >> simd::count(bits);
    }
};

// scaleFactor > 1 for unsigned lanes of any size: one half of the sum is formed without its carry.
template <class T, class W>
struct ScaleDownCarry {
    int bits;
    template <int N>
    ORV_INLINE simd::vec<W, N> operator()(simd::vec<W, N> r) const
    {
        using V = simd::vec<W, N>;
        const simd::count one_bit(1);
        const V one = simd::splat<V>(1);
        const V odd = (r >> simd::count(bits)) & one;
        const V addend = simd::splat<V>(static_cast<W>((std::uint32_t{1} << (bits - 1)) - 1)) + odd;
        const V half_sum = (r >> one_bit) + (addend >> one_bit) + (r & addend & one);
        return half_sum >> simd::count(bits - 1);
    }
};

// scaleFactor < 0: whatever would leave the type is first brought to just outside it.
template <class T, class W>
struct ScaleUp {
    int bits;  // at most the width of T
    template <int N>
    ORV_INLINE simd::vec<W, N> operator()(simd::vec<W, N> r) const
    {
        using V = simd::vec<W, N>;
        constexpr int high = std::numeric_limits<T>::max();
        constexpr int low = std::numeric_limits<T>::min();
        V clamped = simd::min(r, simd::splat<V>(static_cast<W>((high >> bits) + 1)));
        if constexpr (low < 0) clamped = simd::max(clamped, simd::splat<V>(static_cast<W>((low >> bits) - 1)));
        return clamped << simd::count(bits);
    }
};

}  // namespace ORV_LEVEL
}  // namespace orv
