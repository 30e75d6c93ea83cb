// Logarithm and exponential of floats from pairs of floats. All 2^32 floats have been compared with the
// formulas in double.
#pragma once

#include "core/pairs_of_floats.h"

namespace orv {
inline namespace ORV_LEVEL {

#if ORV_HAVE_FUSED
constexpr int kQuickStep = 2 * kFloats;  // one test for two registers

// exp(x) for |x| < 60. x = k ln2/8 + r with |r| <= ln2/16, so exp(x) = 2^(k/8) exp(r). The polynomials were
// fitted with Sollya's fpminimax.
ORV_INLINE Rounded quick_exp(floats x)
{
    // 2^(j/8), with j taken off the exponent's place: adding k there makes it 2^(k/8). And by how much of
    // itself each falls short.
    alignas(32) static const float power[8] = {0x1p+0f,         0x1.f72b84p-1f, 0x1.f06fep-1f,  0x1.ebfdaep-1f,
                                               0x1.ea09e6p-1f,  0x1.eace54p-1f, 0x1.ee89fap-1f, 0x1.f5818ep-1f};
    alignas(32) static const float short_by[8] = {0,               -0x1.9c0c22p-27f, 0x1.125002p-25f,  -0x1.0a355p-25f,
                                                  0x1.26055cp-26f, 0x1.67a1cap-28f,  -0x1.f9c304p-27f, -0x1.a5217cp-28f};
    const floats shifted = fused(x, 0x1.715476p+3f, kRoundFloat);
    const floats k = shifted - kRoundFloat;
    // ln2/8 in two parts. What is left of x has the digits of the first one's last place: it is exact.
    const floats r = fused(k, -0x1.62e43p-4f, x);
    const floats rest = fused(k, 0x1.05c61p-32f, pick(short_by, bits(shifted)));
    // exp(r) (1 + rest) but for what is too small.
    const floats half = fused(rest, 0.5f, 0.5f);
    const floats p = fused(r, fused(r, fused(r, 0x1.10f94p-7f, 0x1.5559e4p-5f), 0x1.555556p-3f), half);
    const floats tail = fused(r, fused(r, p, rest), rest);
    const floats scale = from_bits(bits(pick(power, bits(shifted))) + shift_left<20>(bits(shifted)));
    const floats high = fused(scale, r, scale);
    const floats low = fused(scale, tail, fused(scale, r, scale - high));
    return round_pair(high, low, 0x1p-32f);
}

// ln(x) for normal x. x = 2^k m, and with c = 1/m roughly, of few digits, r = c m - 1 is exact and below
// 1/16: ln(x) = k ln2 - ln(c) + ln(1 + r).
ORV_INLINE Rounded quick_ln(floats x)
{
    alignas(32) static const float c[8] = {1, 29 / 32.f, 26 / 32.f, 24 / 32.f, 22 / 32.f, 20 / 32.f, 18 / 32.f, 17 / 32.f};
    // -ln(c): the digits down to 2^-16, and the rest.
    alignas(32) static const float high_part[8] = {0,           0x1.933p-4f,  0x1.a94p-3f,  0x1.2698p-2f,
                                                   0x1.7fbp-2f, 0x1.e148p-2f, 0x1.2696p-1f, 0x1.43dap-1f};
    alignas(32) static const float low_part[8] = {0,                0x1.797566p-18f, -0x1.2c3752p-19f, -0x1.deecb2p-18f,
                                                  -0x1.7109fap-20f, 0x1.4344e4p-19f, 0x1.089a6ep-20f,  -0x1.a0db88p-26f};
    const std::uint32_t one = 0x3F800000, start = one - 0x000AAAAB;  // 1 stands in the middle of its interval
    const ints b = bits(x) - ints(start);
    const ints interval = shift_right<20>(b);
    const floats k = to_floats(shift_right_signed<23>(b));
    const floats m = from_bits((b & ints(0x007FFFFF)) + ints(start));
    const floats r = fused(m, pick(c, interval), -1.0f);
    const floats whole = fused(k, 0x1.62e4p-1f, pick(high_part, interval));  // exact
    const floats small = fused(k, 0x1.7f7d1cp-20f, pick(low_part, interval));
    // r - r^2/2 in two parts, and the first one's sum with `whole` likewise.
    const floats minus_half = r * -0.5f;
    const floats s = fused(minus_half, r, r);
    const floats s_rest = fused(minus_half, r, r - s);
    const floats high = whole + s;
    const floats high_rest = s - (high - whole);
    const floats p = fused(r, fused(r, fused(r, fused(r, -0x1.2a342p-2f, 0x1.569662p-2f), -0x1.9993c6p-2f),
                                    0x1.ffffbp-2f), -0x1.555556p-1f);
    const floats low = fused(minus_half * r * r, p, (high_rest + s_rest) + small);
    return round_pair(high, low, 0x1p-33f);
}

// Sixteen values, or nothing is written: where one is in doubt, is no positive normal number, or is too far
// from zero for the exponential's parts to be normal numbers.
ORV_INLINE bool quick_ln(const float* src, float* dst)
{
    const floats x0 = load_floats(src), x1 = load_floats(src + kFloats);
    const Rounded y0 = quick_ln(x0), y1 = quick_ln(x1);
    // Signed integers from the smallest on, as the floats from 2^-126 on.
    const ints smallest(0x80000000 + 0x00800000), infinity(0x7F800000);
    const ints last = larger_signed(bits(x0) - smallest, bits(x1) - smallest);
    if (__builtin_expect(!all_of(y0.sure & y1.sure & less_signed(last, infinity - smallest)), 0)) return false;
    store(dst, y0.value);
    store(dst + kFloats, y1.value);
    return true;
}
ORV_INLINE bool quick_exp(const float* src, float* dst)
{
    const floats x0 = load_floats(src), x1 = load_floats(src + kFloats);
    const Rounded y0 = quick_exp(x0), y1 = quick_exp(x1);  // of NaNs and infinities: not sure
    const mask32 near = less(larger(magnitude(x0), magnitude(x1)), 60.0f);
    if (__builtin_expect(!all_of(y0.sure & y1.sure & near), 0)) return false;
    store(dst, y0.value);
    store(dst + kFloats, y1.value);
    return true;
}
#else
constexpr int kQuickStep = kFloats;
ORV_INLINE bool quick_ln(const float*, float*) { return false; }
ORV_INLINE bool quick_exp(const float*, float*) { return false; }
#endif

}  // namespace ORV_LEVEL
}  // namespace orv
