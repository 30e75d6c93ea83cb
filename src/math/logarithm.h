// The natural logarithm in double, for float and for double results.
//
// x = 2^k m with m in [sqrt(1/2), sqrt(2)), f = m - 1, s = f / (2 + f): ln m = 2 artanh(s), a series in s^2.
// The arrangement of the double form, which keeps its error below an ulp, is that of FDLIBM's e_log.c;
// the polynomials were fitted with Sollya's fpminimax.
#pragma once

#include <cstdint>

#include "core/nan.h"
#include "simd/lanes.h"

namespace orv {
inline namespace ORV_LEVEL {

struct LogParts {
    doubles k;  // the exponent
    doubles f;  // m - 1, exact
};

// For positive normal x.
ORV_INLINE LogParts split(doubles x)
{
    const std::uint64_t sqrt_half = 0x3FE6A09E667F3BCD, one = 0x3FF0000000000000;
    const words b = bits(x) + words(one - sqrt_half);
    // The biased exponent as the low bits of 2^52, which is an exact way from integer to double.
    const words exponent = shifted_right<52>(b) | words(0x4330000000000000);
    const words m = (b & words(0x000FFFFFFFFFFFFF)) + words(sqrt_half);
    return {from_bits(exponent) - (0x1p52 + 1023), from_bits(m) - 1.0};
}

// For rounding to float: relative error below 5e-12 for positive normal x.
ORV_INLINE doubles ln_for_float(doubles x)
{
    const LogParts parts = split(x);
    const doubles s = parts.f / (parts.f + 2.0);
    const doubles z = s * s;
    const doubles p = (((z * 0x1.e3b1f3ef6dfdap-3 + 0x1.2432b0f92b92ap-2) * z + 0x1.999a9ccdbfeafp-2) * z +
                       0x1.555554daaa158p-1) * z + 0x1.0000000004a38p+1;
    return parts.k * 0x1.62e42fefa39efp-1 + s * p;
}

// Error below 1 ulp for parts of a positive normal number.
ORV_INLINE doubles ln(LogParts parts)
{
    const doubles f = parts.f, k = parts.k;
    const doubles s = f / (f + 2.0);
    const doubles z = s * s, w = z * z;
    const doubles odd = ((w * 0x1.39fddafaa3781p-3 + 0x1.c71c62d7ca7ddp-3) * w + 0x1.99999999952c1p-2) * w;
    const doubles even = (((w * 0x1.2b5e9b5ad1692p-3 + 0x1.7462b8b3b0cc1p-3) * w + 0x1.2492492dfa853p-2) * w +
                          0x1.5555555555558p-1) * z;
    const doubles rest = odd + even;
    const doubles half_square = f * f * 0.5;
    // ln2 in two parts; the product with the first, of 42 bits, is exact.
    const doubles low = s * (half_square + rest) + k * 0x1.ef35793c7673p-45;
    return k * 0x1.62e42fefa38p-1 - ((half_square - low) - f);
}

// What becomes of a logarithm's special arguments; the warnings that they raise.
struct LogEvents {
    unsigned zeros;      // lanes that hold +0
    unsigned negatives;  // lanes whose sign bit is set: -0 and NaNs, too
};

// Puts the results of special lanes into y: -infinity for +0, the NaN with its sign bit set for anything
// with its sign bit set, +infinity for itself, the plain quiet NaN for NaNs.
ORV_INLINE doubles ln_of_specials(doubles x, doubles y, LogEvents* events)
{
    const mask64 negative = has_sign(x);
    const mask64 zero = equal(x, 0.0);
    const doubles infinity = from_bits(words(0x7FF0000000000000));
    y = select(equal(x, infinity), infinity, y);
    y = select(zero, from_bits(words(0xFFF0000000000000)), y);
    y = select(unordered(x), from_bits(words(kPlainNan64)), y);
    y = select(negative, from_bits(words(kInvalidNan64)), y);
    events->negatives = lanes_of(negative);
    events->zeros = lanes_of(zero) & ~events->negatives;
    return y;
}

// Any double: subnormal numbers are scaled first.
ORV_INLINE doubles ln_anywhere(doubles x, LogEvents* events)
{
    const mask64 subnormal = less(x, 0x1p-1022);
    LogParts parts = split(select(subnormal, x * 0x1p54, x));
    parts.k = parts.k - (subnormal & doubles(54.0));
    return ln_of_specials(x, ln(parts), events);
}

}  // namespace ORV_LEVEL
}  // namespace orv
