// atan2 of floats, a whole register of them at once: the bits of the formula in double, from pairs of floats.
// See core/pairs_of_floats.h.
#pragma once

#include "math/pairs_of_floats.h"

namespace orv {
inline namespace ORV_LEVEL {

#if ORV_HAVE_FUSED
// The smaller of the two sizes over the larger one, u, lies near a multiple c of 1/8, and
//     atan(u) = atan(c) + atan(v),   v = (smaller - c larger) / (larger + c smaller),
// whose numerator is exact, and |v| < 1/14. Octants follow from a quarter or a half turn.
//
// The estimate of a reciprocal, which is not the same on processors of different makers, only chooses c; it is lowered
// by more than its error, because below 1/16 the numerator for c = 1/8 would have a digit too many.
//
// The error of a result is below 2^-31.5 |v|, from three roundings of v^3/3 and one of its sum with the rest
// of v, and below 2^-36 of the result elsewhere; the formula in double errs by 2^-35 of the result.
ORV_INLINE Rounded2 quick_arctangent(floats2 y, floats2 x)
{
    alignas(32) static const float eighths[8] = {0, 1 / 8.f, 2 / 8.f, 3 / 8.f, 4 / 8.f, 5 / 8.f, 6 / 8.f, 7 / 8.f};
    alignas(32) static const float angle_high[8] = {0, 0x1.fd5baap-4f, 0x1.f5b76p-3f, 0x1.6f6194p-2f, 0x1.dac67p-2f,
                                                    0x1.1e00bap-1f, 0x1.4978fap-1f, 0x1.700a7cp-1f};
    alignas(32) static const float angle_low[8] = {0, -0x1.54f424p-30f, -0x1.b4dfc8p-29f, 0x1.e4defp-30f,
                                                   0x1.586ed4p-28f, 0x1.7bdfd6p-26f, 0x1.934f7p-28f, 0x1.5e118cp-27f};
    // By the octant: for y smaller than x and x positive, negative; for y larger and x negative, positive.
    alignas(16) static const float turn_high[4] = {0, 0x1.921fb6p+1f, 0x1.921fb6p+0f, 0x1.921fb6p+0f};
    alignas(16) static const float turn_low[4] = {0, -0x1.777a5cp-24f, -0x1.777a5cp-25f, -0x1.777a5cp-25f};
    const floats2 size_y = magnitude(y), size_x = magnitude(x);
    // A NaN of either becomes one of these two: the result is not sure then.
    const floats2 most = max(size_x, size_y), least = min(size_y, size_x);
    const ints2 octant = shifted_right<31>(bits(x)) ^ bits(less(size_x, size_y));

    // c in eighths, as an integer in the low bits: its place in the tables.
    const ints2 eighth = bits(fused(min(least * reciprocal_estimate(most), 7.25f / 8), 8.0f - 0x1p-8f, kRoundFloat));
    const floats2 c = pick(eighths, eighth);
    const floats2 numerator = minus_product(least, c, most);
    const floats2 denominator = fused(c, least, most);
    const floats2 denominator_rest = fused(c, least, most - denominator);
    // v, and what a division in single precision leaves of it.
    const floats2 inverse = floats2(1.0f) / denominator;
    const floats2 v = numerator * inverse;
    const floats2 v_rest = minus_product(minus_product(numerator, v, denominator), v, denominator_rest) * inverse;
    // atan(v) = v + tail.
    const floats2 z = v * v;
    const floats2 p = fused(fused(z, -0x1.25921ap-3f, 0x1.999d1ep-3f), z, -0x1.555556p-2f);
    const floats2 tail = fused(z * v, p, minus_product(v_rest, z, v_rest));

    // Sums of three parts: what the rounded sum leaves of the smaller one joins the rest.
    const floats2 c_angle = pick(angle_high, eighth);
    const floats2 angle = c_angle + v;
    const floats2 angle_rest = (v - (angle - c_angle)) + (pick(angle_low, eighth) + tail);

    const floats2 flip = from_bits(sign_if<0>(octant));
    const floats2 turn = pick_of_four(turn_high, octant);
    const floats2 flipped = angle ^ flip;
    const floats2 sum = turn + flipped;
    const floats2 sum_rest = (flipped - (sum - turn)) + ((angle_rest ^ flip) + pick_of_four(turn_low, octant));

    // Results below 2^-66 other than zero are never sure: their parts need not be normal numbers.
    const floats2 margin = fused(magnitude(v), 0x1.8p-32f, fused(sum, 0x1p-34f, min(least, 0x1p-90f)));
    const floats2 value = sum + (sum_rest + margin);
    const mask2 sure = equal(value, sum + (sum_rest - margin));
    const mask2 in_range = between(most, 0x35800000, 0x5D800000);  // 2^-20 to 2^60
    return {from_bits(bits(value) | (bits(y) & ints2(0x80000000))), sure & in_range};
}

struct QuickArctangent {
    static constexpr int kSources = 2;
    static ORV_INLINE Rounded2 quick(const float* const* src)
    {
        return quick_arctangent(load_floats2(src[0]), load_floats2(src[1]));
    }
};
#else
struct QuickArctangent {};
#endif

}  // namespace ORV_LEVEL
}  // namespace orv
