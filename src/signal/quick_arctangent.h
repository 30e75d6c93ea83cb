// atan2 of floats, a whole register of them at once: the bits of the formula in double, from pairs of floats.
// See core/pairs_of_floats.h.
#pragma once

#include "core/pairs_of_floats.h"

namespace orv {
inline namespace ORV_LEVEL {

// All lanes, or false.
#if ORV_HAVE_FUSED
// The smaller of the two sizes over the larger one, u, lies near a multiple c of 1/8, and
//     atan(u) = atan(c) + atan(v),   v = (smaller - c larger) / (larger + c smaller),
// whose numerator is exact, and |v| < 1/14. Octants follow from a quarter or a half turn.
//
// The error of a result is below 2^-31.5 |v|, from three roundings of v^3/3 and one of its sum with the rest
// of v, and below 2^-36 of the result elsewhere; the formula in double errs by 2^-35 of the result.
ORV_INLINE bool quick_arctangent(floats y, floats x, floats* result)
{
    alignas(32) static const float eighths[8] = {0, 1 / 8.f, 2 / 8.f, 3 / 8.f, 4 / 8.f, 5 / 8.f, 6 / 8.f, 7 / 8.f};
    alignas(32) static const float angle_high[8] = {0, 0x1.fd5baap-4f, 0x1.f5b76p-3f, 0x1.6f6194p-2f, 0x1.dac67p-2f, 0x1.1e00bap-1f, 0x1.4978fap-1f, 0x1.700a7cp-1f};
    alignas(32) static const float angle_low[8] = {0, -0x1.54f424p-30f, -0x1.b4dfc8p-29f, 0x1.e4defp-30f, 0x1.586ed4p-28f, 0x1.7bdfd6p-26f, 0x1.934f7p-28f, 0x1.5e118cp-27f};
    // By the sign of x, and two further where y is larger.
    alignas(32) static const float turn_high[8] = {0, 0x1.921fb6p+1f, 0x1.921fb6p+0f, 0x1.921fb6p+0f};
    alignas(32) static const float turn_low[8] = {0, -0x1.777a5cp-24f, -0x1.777a5cp-25f, -0x1.777a5cp-25f};
    const floats size_y = magnitude(y), size_x = magnitude(x);
    // A NaN of either becomes one of these two: the result is not sure then.
    const floats most = larger(size_x, size_y), least = smaller(size_y, size_x);
    const mask32 steep = less(size_x, size_y);

    const ints eighth = bits(fused(smaller(least / most, 7.25f / 8), 8.0f, kRoundFloat));
    const floats c = pick(eighths, eighth);
    const floats numerator = fused(c, floats(0.0f) - most, least);
    const floats denominator = fused(c, least, most);
    const floats denominator_rest = fused(c, least, most - denominator);
    const floats inverse = floats(1.0f) / denominator;
    const floats v = numerator * inverse;
    const floats minus_v = floats(0.0f) - v;
    const floats v_rest = fused(minus_v, denominator_rest, fused(minus_v, denominator, numerator)) * inverse;
    const floats z = v * v;
    const floats p = fused(fused(z, -0x1.25921ap-3f, 0x1.999d1ep-3f), z, -0x1.555556p-2f);
    const floats tail = fused(z * v, p, fused(minus_v * v, v_rest, v_rest));

    const floats c_angle = pick(angle_high, eighth);
    const floats angle = c_angle + v;
    const floats angle_rest = (v - (angle - c_angle)) + (pick(angle_low, eighth) + tail);

    const ints steep_bits = bits(steep);
    const floats flip = from_bits((bits(x) ^ steep_bits) & ints(0x80000000));
    const ints octant = shift_right<31>(bits(x)) - (steep_bits + steep_bits);
    const floats turn = pick(turn_high, octant);
    const floats flipped = angle ^ flip;
    const floats sum = turn + flipped;
    const floats sum_rest = (flipped - (sum - turn)) + ((angle_rest ^ flip) + pick(turn_low, octant));

    const floats margin = fused(magnitude(v), 0x1.8p-32f, sum * 0x1p-34f);
    const floats value = sum + (sum_rest + margin);
    const mask32 sure = equal(value, sum + (sum_rest - margin));
    const mask32 in_range = less_equal(0x1p-40f, most) & less_equal(most, 0x1p40f) &
                            (less_equal(0x1p-60f, least) | equal(least, 0.0f));
    *result = from_bits(bits(value) | (bits(y) & ints(0x80000000)));
    return __builtin_expect(all_of(sure & in_range), 1);
}
#else
ORV_INLINE bool quick_arctangent(floats, floats, floats*) { return false; }
#endif

}  // namespace ORV_LEVEL
}  // namespace orv
