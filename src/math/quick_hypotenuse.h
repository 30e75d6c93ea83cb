// Roots of sums of two squares, a whole register of floats at once: the bits of the formula in double. See
// core/pairs_of_floats.h.
#pragma once

#include "math/pairs_of_floats.h"

namespace orv {
inline namespace ORV_LEVEL {

#if ORV_HAVE_FUSED
// The root of the rounded sum, and a step of Newton's from what is left of the exact sum. That step is below
// 2^-23 of the result, and off by what the estimate of 1 / root is: by less than 2^-34 of the result.
template <class F>
ORV_INLINE auto quick_hypotenuse(F a, F b)
{
    const F aa = a * a, bb = b * b;
    // A NaN becomes one of these two: the result is not sure then.
    const F most = max(aa, bb), least = min(bb, aa);
    const F sum = most + least, root = sqrt(sum);
    // All of these are exact but for digits below 2^-149, which is 2^-89 of the smallest sum in range.
    const F sum_rest = least - (sum - most);
    const F square_rests = product_minus(a, a, aa) + product_minus(b, b, bb);
    const F left = minus_product(sum, root, root) + (sum_rest + square_rests);
    auto result = round_pair(root, left * (reciprocal_root_estimate(max(sum, 0x1p-60f)) * 0.5f), 0x1p-34f);
    const auto in_range = between(most, 0x21800000, 0x7B800000);  // 2^-60 to 2^120
    const auto zeros = equal(from_bits(bits(a) | bits(b)), 0.0f);
    result.sure = result.sure & (in_range | zeros);
    return result;
}

struct QuickHypotenuse {
    static constexpr int kSources = 2;
    static ORV_INLINE Rounded2 quick(const float* const* src)
    {
        return quick_hypotenuse(load_floats2(src[0]), load_floats2(src[1]));
    }
};

// A register of them, if all lanes are sure.
ORV_INLINE bool quick_magnitude(const float* re, const float* im, floats* result)
{
    const Rounded quick = quick_hypotenuse(load_floats(re), load_floats(im));
    *result = quick.value;
    return __builtin_expect(all(quick.sure), 1);
}
#else
struct QuickHypotenuse {};
ORV_INLINE bool quick_magnitude(const float*, const float*, floats*) { return false; }
#endif

}  // namespace ORV_LEVEL
}  // namespace orv
