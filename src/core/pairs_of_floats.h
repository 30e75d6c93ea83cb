// Results as a sum of two floats, a whole register at once: what formulas in double give, for about half their
// time.
//
// The sum is off by less than some margin. Where adding the margin to it or taking it off makes no difference
// to the rounded sum, the formula in double, which lies closer to the exact value still, rounds to the same
// float. The rest, a few values in a thousand, is left to that formula.
//
// Pairs rely on fused multiply-add for exact products: elsewhere they would cost more than doubles, and the
// quick_ functions made of them leave everything to the formulas in double.
#pragma once

#include "core/lanes.h"

// A formula in double that is for what a quick_ function leaves: few values, or all.
#if ORV_HAVE_FUSED
#define ORV_IN_DOUBLE __attribute__((noinline))
#else
#define ORV_IN_DOUBLE ORV_INLINE
#endif

#if ORV_HAVE_FUSED

namespace orv {
inline namespace ORV_LEVEL {

struct Rounded {
    floats value;
    mask32 sure;
};

// high + low, rounded, and whether an error of `margin` times the sum leaves it so.
ORV_INLINE Rounded round_pair(floats high, floats low, float margin)
{
    const floats value = high + fused(high, margin, low);
    return {value, equal(value, high + fused(high, -margin, low))};
}

}  // namespace ORV_LEVEL
}  // namespace orv

#endif  // ORV_HAVE_FUSED
