// Results as a sum of two floats, a whole register at once: what formulas in double give, for about half their
// time.
//
// The sum is off by less than some margin. Where adding the margin to it or taking it off makes no difference
// to the rounded sum, the formula in double, which lies closer to the exact value still, rounds to the same
// float. The rest, a few values in a thousand, is left to that formula.
//
// Pairs rely on fused multiply-add for exact products: elsewhere they would cost more than doubles, and everything
// is left to the formulas in double.
#pragma once

#include <type_traits>

#include "simd/lanes.h"

namespace orv {
inline namespace ORV_LEVEL {

#if ORV_HAVE_FUSED
template <class F, class Mask>
struct RoundedPair {
    F value;
    Mask sure;
};
using Rounded = RoundedPair<floats, mask32>;
using Rounded2 = RoundedPair<floats2, mask2>;

// lowest <= x < highest, two positive floats compared by their bits: signed integers from the smallest on.
template <class F>
ORV_INLINE auto between(F x, std::uint32_t lowest, std::uint32_t highest)
{
    using I = decltype(bits(x));
    const std::uint32_t smallest = 0x80000000;
    return less_signed(bits(x) - I(lowest - smallest), I(highest - lowest + smallest));
}

// high + low, rounded, and whether an error of `margin` times the sum leaves it so.
template <class F>
ORV_INLINE auto round_pair(F high, F low, float margin)
{
    const F value = high + fused(high, margin, low);
    const auto same = equal(value, high + fused(high, -margin, low));
    return RoundedPair<F, std::remove_const_t<decltype(same)>>{value, same};
}
#endif

// Steps for the loops of core/maps.h, with one test for two registers. A Formula has
//     static constexpr int kSources, static Rounded2 quick(const float* const* src)   at levels that fuse
//     void in_double(const float* const* src, int at, float* dst)  kDoubles values
#if ORV_HAVE_FUSED
template <class Formula>
struct QuickSteps : Formula {
    static constexpr int N = 2 * kFloats;

    ORV_INLINE void step(const float* const* src, float* const* dst)
    {
        const Rounded2 quick = Formula::quick(src);
        if (__builtin_expect(all(quick.sure), 1)) store(dst[0], quick.value);
        else in_double(src[0], src[Formula::kSources - 1], dst[0]);
    }

private:
    __attribute__((noinline)) void in_double(const float* src, const float* last, float* dst)
    {
        const float* const sources[] = {src, last};
        for (int at = 0; at < N; at += kDoubles) Formula::in_double(sources, at, dst + at);
    }
};
#else
template <class Formula>
struct QuickSteps : Formula {
    static constexpr int N = kFloats;

    ORV_INLINE void step(const float* const* src, float* const* dst)
    {
        for (int at = 0; at < N; at += kDoubles) Formula::in_double(src, at, dst[0] + at);
    }
};
#endif

}  // namespace ORV_LEVEL
}  // namespace orv
