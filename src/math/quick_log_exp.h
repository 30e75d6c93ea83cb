// Logarithm and exponential of floats from pairs of floats. All 2^32 floats have been compared with the
// formulas in double.
#pragma once

#include "math/pairs_of_floats.h"

namespace orv {
inline namespace ORV_LEVEL {

#if ORV_HAVE_FUSED
// exp(x) for |x| < 60. x = k ln2/8 + r with |r| <= ln2/16, so exp(x) = 2^(k/8) exp(r). The polynomials were
// fitted with Sollya's fpminimax.
ORV_INLINE Rounded2 quick_exp(floats2 x)
{
    // 2^(j/8), with j taken off the exponent's place: adding k there makes it 2^(k/8). And by how much of
    // itself each falls short.
    alignas(32) static const float power[8] = {0x1p+0f,         0x1.f72b84p-1f, 0x1.f06fep-1f,  0x1.ebfdaep-1f,
                                               0x1.ea09e6p-1f,  0x1.eace54p-1f, 0x1.ee89fap-1f, 0x1.f5818ep-1f};
    alignas(32) static const float short_by[8] = {0, -0x1.9c0c22p-27f, 0x1.125002p-25f, -0x1.0a355p-25f,
                                                  0x1.26055cp-26f, 0x1.67a1cap-28f, -0x1.f9c304p-27f, -0x1.a5217cp-28f};
    const floats2 shifted = fused(x, 0x1.715476p+3f, kRoundFloat);
    const floats2 k = shifted - kRoundFloat;
    // ln2/8 in two parts. What is left of x has the digits of the first one's last place: it is exact.
    const floats2 r = fused(k, -0x1.62e43p-4f, x);
    const floats2 rest = fused(k, 0x1.05c61p-32f, pick(short_by, bits(shifted)));
    // exp(r) (1 + rest) but for what is too small.
    const floats2 half = fused(rest, 0.5f, 0.5f);
    const floats2 p = fused(r, fused(r, fused(r, 0x1.10f94p-7f, 0x1.5559e4p-5f), 0x1.555556p-3f), half);
    const floats2 tail = fused(r, fused(r, p, rest), rest);
    const floats2 scale = from_bits(bits(pick(power, bits(shifted))) + shifted_left<20>(bits(shifted)));
    const floats2 high = fused(scale, r, scale);
    const floats2 low = fused(scale, tail, fused(scale, r, scale - high));
    return round_pair(high, low, 0x1p-32f);
}

// ln(x) for normal x. x = 2^k m, and with c = 1/m roughly, of few digits, r = c m - 1 is exact and below
// 1/16: ln(x) = k ln2 - ln(c) + ln(1 + r).
ORV_INLINE Rounded2 quick_ln(floats2 x)
{
    alignas(32) static const float c[8] = {1,         29 / 32.f, 26 / 32.f, 24 / 32.f,
                                           22 / 32.f, 20 / 32.f, 18 / 32.f, 17 / 32.f};
    // -ln(c): the digits down to 2^-16, and the rest.
    alignas(32) static const float high_part[8] = {0,           0x1.933p-4f,  0x1.a94p-3f,  0x1.2698p-2f,
                                                   0x1.7fbp-2f, 0x1.e148p-2f, 0x1.2696p-1f, 0x1.43dap-1f};
    alignas(32) static const float low_part[8] = {0, 0x1.797566p-18f, -0x1.2c3752p-19f, -0x1.deecb2p-18f,
                                                  -0x1.7109fap-20f, 0x1.4344e4p-19f, 0x1.089a6ep-20f, -0x1.a0db88p-26f};
    const std::uint32_t one = 0x3F800000, start = one - 0x000AAAAB;  // 1 stands in the middle of its interval
    const ints2 b = bits(x) - ints2(start);
    const ints2 interval = shifted_right<20>(b);
    const floats2 k = to_float_signed(shifted_right_signed<23>(b));
    const floats2 m = from_bits((b & ints2(0x007FFFFF)) + ints2(start));
    const floats2 r = fused(m, pick(c, interval), -1.0f);
    const floats2 whole = fused(k, 0x1.62e4p-1f, pick(high_part, interval));  // exact
    const floats2 small = fused(k, 0x1.7f7d1cp-20f, pick(low_part, interval));
    // r - r^2/2 in two parts, and the first one's sum with `whole` likewise.
    const floats2 minus_half = r * -0.5f;
    const floats2 s = fused(minus_half, r, r);
    const floats2 s_rest = fused(minus_half, r, r - s);
    const floats2 high = whole + s;
    const floats2 high_rest = s - (high - whole);
    const floats2 p = fused(r, fused(r, fused(r, fused(r, -0x1.2a342p-2f, 0x1.569662p-2f), -0x1.9993c6p-2f),
                                    0x1.ffffbp-2f), -0x1.555556p-1f);
    const floats2 low = fused(minus_half * r * r, p, (high_rest + s_rest) + small);
    return round_pair(high, low, 0x1p-33f);
}

// What is no positive normal number is not sure.
struct QuickLn {
    static constexpr int kSources = 1;
    static ORV_INLINE Rounded2 quick(const float* const* src)
    {
        const floats2 x = load_floats2(src[0]);
        const Rounded2 y = quick_ln(x);
        return {y.value, y.sure & between(x, 0x00800000, 0x7F800000)};
    }
};
// Nor are NaNs, and what is so far from zero that the exponential's parts need not be normal numbers.
struct QuickExp {
    static constexpr int kSources = 1;
    static ORV_INLINE Rounded2 quick(const float* const* src)
    {
        const floats2 x = load_floats2(src[0]);
        const Rounded2 y = quick_exp(x);
        return {y.value, y.sure & less(magnitude(x), 60.0f)};
    }
};
#else
struct QuickLn {};
struct QuickExp {};
#endif

}  // namespace ORV_LEVEL
}  // namespace orv
