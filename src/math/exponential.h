// The exponential in double, for float and for double results.
//
// x = k ln2/256 + r with |r| <= ln2/512, so exp(x) = 2^(k/256) exp(r): a table and a short polynomial
// (minimax, fitted with Sollya's fpminimax). The method is Tang's (ACM TOMS 15, 1989).
#pragma once

#include "core/nan.h"
#include "math/exponential_table.h"
#include "simd/lanes.h"

namespace orv {
inline namespace ORV_LEVEL {

constexpr double k256OverLn2 = 0x1.71547652b82fep+8;

// 2^(k/256) rounded, for k in the low bits of the argument.
ORV_INLINE doubles power_of_two_256th(words k)
{
    return from_bits(lookup(orv_exp2_scale, k & words(255)) + shifted_left<44>(k));
}

// For rounding to float: relative error below 3e-14 for |x| < 700, meaningless beyond.
ORV_INLINE doubles exp_for_float(doubles x)
{
    const doubles t = x * k256OverLn2;
    const doubles shifted = t + kRoundDouble;
    const doubles f = t - (shifted - kRoundDouble);
    const doubles p = ((f * 0x1.c6b085b33f6bcp-29 + 0x1.ebfbe412f07eep-19) * f + 0x1.62e42fefa3bdp-9) * f + 1.0;
    return power_of_two_256th(bits(shifted)) * p;
}

// As float lanes want it where |x| may be anything: overflow gives infinity and underflow zero when the
// result is rounded to float. NaNs give the quiet NaN.
ORV_INLINE doubles exp_for_float_anywhere(doubles x)
{
    const doubles low = select(less(x, -200.0), -200.0, x);
    const doubles y = exp_for_float(select(less(low, 200.0), low, 200.0));
    return select(unordered(x), from_bits(words(kPlainNan64)), y);
}

// exp(x) times 2^(steps / 256): below 0.51 ulp as long as the result is a normal number.
ORV_INLINE doubles exp_times(doubles x, words steps)
{
    const doubles shifted = x * k256OverLn2 + kRoundDouble;
    const doubles k = shifted - kRoundDouble;
    // ln2/256 in two parts; the product with the first, of 35 bits, is exact.
    const doubles r = minus_exact(x, k, 0x1.62e42fef8p-9) - k * 0x1.1cf79abc9e3b4p-44;
    const words index = bits(shifted);
    const doubles tail = lookup(orv_exp2_tail, index & words(255));
    const doubles rr = r * r;
    const doubles p = (r * 0x1.5555572084ad2p-3 + 0x1.00000000000d2p-1) + rr * 0x1.55554e5562558p-5;
    const doubles scale = power_of_two_256th(index + steps);
    return scale + scale * ((tail + rr * p) + r);
}

// From here on an intermediate product of exp_times(x, 0) might not be a normal number.
constexpr double kExpOrdinary = 670.0;

ORV_INLINE doubles exp(doubles x) { return exp_times(x, words(0)); }

// Any x: infinity above 709.78, subnormal results below -708.39, zero below -745.13.
ORV_INLINE doubles exp_anywhere(doubles x)
{
    const mask64 negative = less(x, 0.0);
    const doubles low = select(less(x, -800.0), -800.0, x);
    const doubles limited = select(less(low, 800.0), low, 800.0);
    // Aside by 2^512 and back: the last step alone overflows or underflows, and rounds once more only
    // where the result is subnormal.
    const words aside = bits(select(negative, from_bits(words(512 * 256)), from_bits(words(0) - words(512 * 256))));
    const doubles back = select(negative, doubles(0x1p-512), doubles(0x1p512));
    const doubles y = exp_times(limited, aside) * back;
    return select(unordered(x), from_bits(words(kPlainNan64)), y);
}

}  // namespace ORV_LEVEL
}  // namespace orv
