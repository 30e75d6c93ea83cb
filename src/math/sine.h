// Sine and cosine in double: reduction by multiples of pi/2, and the polynomials on what is left.
//
// Up to 2^17 in magnitude pi/2 is subtracted in three parts (Cody and Waite); beyond, huge_angle()
// multiplies by as many bits of 2/pi as the exponent asks for (Payne and Hanek), lane by lane. The
// polynomials were fitted with Sollya's fpminimax.
#pragma once

#include <cstdint>

#include "core/nan.h"
#include "simd/lanes.h"
#include "math/two_over_pi.h"

namespace orv {
inline namespace ORV_LEVEL {

constexpr double kOrdinaryAngle = 0x1p17;

// x = quadrant pi/2 + r, with the quadrant in the low bits. Angles are reduced without their sign.
struct Angle {
    words quadrant;
    doubles r;
};

// For 0 <= x <= kOrdinaryAngle.
ORV_INLINE Angle reduce(doubles x)
{
    const doubles shifted = x * 0x1.45f306dc9c883p-1 + kRoundDouble;
    const doubles k = shifted - kRoundDouble;
    // The first two parts have 36 bits: their products with k are exact.
    const doubles first = minus_exact(x, k, 0x1.921fb54440000p+0);
    const doubles second = minus_exact(first, k, 0x1.68c234c4cp-39);
    return {bits(shifted), second - k * 0x1.98a2e03707345p-77};
}

// A finite double above 2^17: the quadrant modulo 4, and what is left in [-pi/4, pi/4], off by
// 2^-51 of itself.
inline double huge_angle(double x, std::uint64_t* quadrant)
{
    // x = m 2^e. The words of 2/pi whose product with m 2^e is a multiple of 4 are passed over: from word
    // `first` on, x 2/pi = m 2^(2 + shift) 0.word word word ... modulo 4. Seven words leave an error of
    // 2^-138, and no double is closer than 2^-62 to a multiple of pi/2.
    const std::uint64_t b = bit_cast<std::uint64_t>(x);
    const std::uint64_t m = (b & 0x000FFFFFFFFFFFFF) | 0x0010000000000000;
    const int above = static_cast<int>(b >> 52 & 0x7FF) - 1075 - 2 + 64;
    const int first = above / 32, shift = above % 32;
    const std::uint64_t m_low = m & 0xFFFFFFFF, m_high = m >> 32;
    std::uint32_t product[9] = {};  // the most significant word first
    for (int j = 6; j >= 0; --j) {
        const std::uint64_t word = orv_two_over_pi[first + j];
        const std::uint64_t low = word * m_low + product[j + 2];
        product[j + 2] = static_cast<std::uint32_t>(low);
        const std::uint64_t high = word * m_high + product[j + 1] + (low >> 32);
        product[j + 1] = static_cast<std::uint32_t>(high);
        product[j] = static_cast<std::uint32_t>(high >> 32);
    }
    // Two bits of quadrant and 126 of fraction.
    std::uint64_t t[4];
    for (int i = 0; i < 4; ++i) {
        t[i] = (std::uint64_t{product[i + 2]} << 32 | product[i + 3]) << shift >> 32;
    }
    std::uint64_t high = t[0] << 34 | t[1] << 2 | t[2] >> 30;
    std::uint64_t low = t[2] << 34 | t[3] << 2;
    std::uint64_t turns = t[0] >> 30;
    const bool negative = high >> 63 != 0;  // nearer to the next multiple
    if (negative) {
        ++turns;
        high = ~high + (low == 0 ? 1 : 0);
        low = 0 - low;
    }
    *quadrant = turns;
    if (high == 0) return 0;
    const int zeros = __builtin_clzll(high);
    if (zeros > 0) high = high << zeros | low >> (64 - zeros);
    const double fraction = static_cast<double>(static_cast<std::int64_t>((high >> 11) + (high >> 10 & 1)));
    const std::uint64_t scale = static_cast<std::uint64_t>(1023 - 53 - zeros) << 52 | std::uint64_t{negative} << 63;
    // The fraction has 53 bits, so only the product with pi/2 rounds.
    return rounded(rounded(fraction * bit_cast<double>(scale)) * 0x1.921fb54442d18p+0);
}

// reduce() for any lanes without sign. Infinities and NaNs become the quiet NaN.
ORV_INLINE Angle reduce_anywhere(doubles x)
{
    Angle angle = reduce(x);
    double value[kDoubles], r[kDoubles];
    std::uint64_t quadrant[kDoubles];
    store(value, x);
    store(r, angle.r);
    store(quadrant, angle.quadrant);
    for (int lane = 0; lane < kDoubles; ++lane) {
        std::uint64_t size;  // as bits: these order as the numbers do
        __builtin_memcpy(&size, &value[lane], sizeof(size));
        if (size <= bit_cast<std::uint64_t>(kOrdinaryAngle)) continue;
        if (size < 0x7FF0000000000000) {
            r[lane] = huge_angle(value[lane], &quadrant[lane]);
        } else {
            r[lane] = bit_cast<double>(kPlainNan64);
            quadrant[lane] = 0;
        }
    }
    return {load_words(quadrant), load_doubles(r)};
}

// sin(r) - r, and sin(r), for |r| <= pi/4 and z = r^2.
ORV_INLINE doubles sine_tail(doubles r, doubles z)
{
    const doubles w = z * z;
    const doubles odd = (w * 0x1.5e1033fed3b73p-33 + 0x1.71de37ae58898p-19) * w + 0x1.1111111110c7ap-7;
    const doubles even = (w * -0x1.ae601d5079abfp-26 + -0x1.a01a019e9eaf2p-13) * w + -0x1.5555555555555p-3;
    return r * z * (odd * z + even);
}
ORV_INLINE doubles sine_polynomial(doubles r, doubles z) { return r + sine_tail(r, z); }
// (cos(r) - 1 + z/2) / w, with z = r^2 and w = z^2.
ORV_INLINE doubles cosine_tail(doubles z, doubles w)
{
    const doubles odd = (w * -0x1.90729f53673fdp-37 + -0x1.27e4fa01e48dfp-22) * w + -0x1.6c16c16c168c8p-10;
    const doubles even = (w * 0x1.1eeb56ab2f1a1p-29 + 0x1.a01a019f37922p-16) * w + 0x1.5555555555555p-5;
    return odd * z + even;
}
ORV_INLINE doubles cosine_polynomial(doubles z)
{
    const doubles w = z * z;
    return (doubles(1.0) - z * 0.5) + w * cosine_tail(z, w);
}

struct SineCosine {
    doubles sine, cosine;
};

// Of sign times the angle, where the sign is the sign bit of x.
ORV_INLINE SineCosine sine_and_cosine(Angle angle, doubles x)
{
    const doubles z = angle.r * angle.r;
    const doubles s = sine_polynomial(angle.r, z), c = cosine_polynomial(z);
    // Odd quadrants exchange the two; the second bit of the quadrant is the sign of the sine, that of the
    // next quadrant the sign of the cosine.
    const doubles exchange = has_sign(from_bits(shifted_left<63>(angle.quadrant))) & (s ^ c);
    const words sign(0x8000000000000000);
    const words sine_sign = (shifted_left<62>(angle.quadrant) & sign) ^ (bits(x) & sign);
    const words cosine_sign = shifted_left<62>(angle.quadrant + words(1)) & sign;
    return {(s ^ exchange) ^ from_bits(sine_sign), (c ^ exchange) ^ from_bits(cosine_sign)};
}

}  // namespace ORV_LEVEL
}  // namespace orv
