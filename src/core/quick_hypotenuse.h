// Roots of sums of two squares, a whole register of floats at once: the bits of the formula in double. See
// core/pairs_of_floats.h.
#pragma once

#include "core/pairs_of_floats.h"

namespace orv {
inline namespace ORV_LEVEL {

// All lanes, or false.
#if ORV_HAVE_FUSED
// The root of the rounded sum, and a step of Newton's from what is left of the exact sum. Its error is
// below 2^-46 of the result.
ORV_INLINE bool quick_hypotenuse(floats a, floats b, floats* result)
{
    const floats aa = a * a, bb = b * b;
    const floats rests = fused(a, a, floats(0.0f) - aa) + fused(b, b, floats(0.0f) - bb);
    // A NaN becomes one of these two: the result is not sure then.
    const floats most = larger(aa, bb), least = smaller(bb, aa);
    const floats root = sqrt(most + least);
    const floats square = root * root;
    // Both differences are exact, but for a `least` that is too small to matter.
    const floats left = ((most - square) + least) + (rests - fused(root, root, floats(0.0f) - square));
    const floats correction = left * (floats(0.5f) / larger(root, 0x1p-60f));
    const Rounded sum = round_pair(root, correction, 0x1p-44f);
    const mask32 in_range = less_equal(0x1p-60f, most) & less_equal(most, 0x1p120f);
    const mask32 zeros = equal(from_bits(bits(a) | bits(b)), 0.0f);
    *result = sum.value;
    return __builtin_expect(all_of(sum.sure & (in_range | zeros)), 1);
}
#else
ORV_INLINE bool quick_hypotenuse(floats, floats, floats*) { return false; }
#endif

}  // namespace ORV_LEVEL
}  // namespace orv
