// The angle of (x, y): atan2 of floats, computed in double.
#pragma once

#include "core/nan.h"
#include "math/quick_arctangent.h"

namespace orv {
inline namespace ORV_LEVEL {

// atan2(y, x) in double. The octant's middle is taken off first: with t = (y - x) / (y + x), or y / x, or
// -x / y, only |t| <= tan(pi/8) is left to the polynomial, which is off by 2^-35.
ORV_INLINE doubles arctangent(doubles y, doubles x)
{
    const doubles size_y = magnitude(y), size_x = magnitude(x);
    const mask64 middle = less(size_x * 0x1.a827999fcef32p-2, size_y);  // tan(pi/8)
    const mask64 steep = less(size_x * 0x1.3504f333f9de6p+1, size_y);   // tan(3 pi/8)
    const doubles t = (and_not(steep, size_y) - (middle & size_x)) / (and_not(steep, size_x) + (middle & size_y));
    const doubles z = t * t, w = z * z;
    const doubles odd = (w * -0x1.5b1439a926e9p-4 + -0x1.247e9937b1665p-3) * w + -0x1.555554c102b22p-2;
    const doubles even = ((w * 0x1.8437ba9d75736p-5 + 0x1.c45e744371cebp-4) * w + 0x1.999915eb610b5p-3) * w;
    const doubles taken = (middle & doubles(0x1.921fb54442d18p-1)) + (steep & doubles(0x1.921fb54442d18p-1));
    const doubles angle = taken + (t + t * (odd * z + even));
    // The left half plane, and the sign of y.
    const doubles left = has_sign(x) & doubles(0x1.921fb54442d18p+1);
    const doubles flip = from_bits(bits(x) & words(0x8000000000000000));
    return from_bits(bits(left + (angle ^ flip)) | (bits(y) & words(0x8000000000000000)));
}

struct Atan2OfFloat : QuickArctangent {
    static ORV_INLINE void in_double(const float* const* src, int at, float* dst)
    {
        const doubles y = load_doubles(src[0] + at), x = load_doubles(src[1] + at);
        // Infinities and two zeros would divide into NaNs.
        const doubles larger = magnitude(y) + magnitude(x);
        const mask64 ordinary = less(0.0, larger) & less(larger, __builtin_inf());
        if (__builtin_expect(all(ordinary), 1)) store(dst, arctangent(y, x));
        else store(dst, anywhere(y, x));
    }

private:
    // As C has it: zeros and infinities stand for their limits, a NaN gives the quiet NaN.
    static doubles anywhere(doubles y, doubles x)
    {
        const mask64 nan = unordered(y) | unordered(x);
        const doubles infinity = __builtin_inf();
        const words sign(0x8000000000000000);
        const mask64 infinite_y = equal(magnitude(y), infinity), infinite_x = equal(magnitude(x), infinity);
        const mask64 infinite = infinite_y | infinite_x;
        // Beside an infinity everything finite is zero, and all infinities are equal.
        doubles size_y = select(infinite, infinite_y & doubles(1.0), magnitude(y));
        doubles size_x = select(infinite, infinite_x & doubles(1.0), magnitude(x));
        // Two zeros: as if x were any other number of its sign.
        const mask64 zeros = equal(size_y, 0.0) & equal(size_x, 0.0);
        size_x = select(zeros | nan, 1.0, size_x);
        size_y = and_not(nan, size_y);
        const doubles result =
            arctangent(from_bits(bits(size_y) | (bits(y) & sign)), from_bits(bits(size_x) | (bits(x) & sign)));
        return select(nan, from_bits(words(kPlainNan64)), result);
    }
};

using Atan2OfFloats = QuickSteps<Atan2OfFloat>;

}  // namespace ORV_LEVEL
}  // namespace orv
