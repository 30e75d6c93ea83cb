// Roots of sums of two squares, a whole register of floats at once: the bits of the formula in double. See
// core/pairs_of_floats.h.
#pragma once

#include "core/pairs_of_floats.h"

namespace orv {
inline namespace ORV_LEVEL {

// All lanes, or false.
#if ORV_HAVE_FUSED
// The root of the rounded sum, and a step of Newton's from what is left of the exact sum. That step is below
// 2^-23 of the result, and off by what the estimate of 1 / root is: by less than 2^-34 of the result.
ORV_INLINE bool quick_hypotenuse(floats a, floats b, floats* result)
{
    const floats aa = a * a, bb = b * b;
    // A NaN becomes one of these two: the result is not sure then.
    const floats most = larger(aa, bb), least = smaller(bb, aa);
    const floats sum = most + least, root = sqrt(sum);
    // All of these are exact, but for what is too small to matter.
    const floats sum_rest = least - (sum - most);
    const floats square_rests = fused_less(a, a, aa) + fused_less(b, b, bb);
    const floats left = fused_minus(sum, root, root) + (sum_rest + square_rests);
    const Rounded rounded = round_pair(root, left * (reciprocal_root_estimate(larger(sum, 0x1p-60f)) * 0.5f), 0x1p-34f);
    const ints smallest(0x80000000), lowest(0x21800000), highest(0x7B800000);  // of signed integers; 2^-60 and 2^120
    const mask32 in_range = less_signed(bits(most) - (lowest - smallest), highest - lowest + smallest);
    const mask32 zeros = equal(from_bits(bits(a) | bits(b)), 0.0f);
    *result = rounded.value;
    return __builtin_expect(all_of(rounded.sure & (in_range | zeros)), 1);
}
#else
ORV_INLINE bool quick_hypotenuse(floats, floats, floats*) { return false; }
#endif

}  // namespace ORV_LEVEL
}  // namespace orv
