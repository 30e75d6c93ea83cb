// The six weights of Lanczos' window of three lobes, sinc(d) sinc(d / 3), at the distances f + 2 - k.
//
// sin(pi d) is the same for all of them but for its sign, and what is left, sin(pi d / 3) / d^2, are three sines
// that hang together: with B = sin(pi f / 3) and A = sin(pi (1 - f) / 3) the weights are proportional to
//
//     A / (2 + f)^2    -(A + B) / (1 + f)^2    B / f^2    A / (1 - f)^2    -(A + B) / (2 - f)^2    B / (3 - f)^2
//
// They are divided by their sum, so common factors do not matter: neither that of the sines nor the product of all
// six squares, with which only one division is left.
#pragma once

#include "simd/number.h"

namespace orv {
inline namespace ORV_LEVEL {
namespace {

// sin(pi f / 3) times 3 / pi, for 0 <= f <= 1: the Taylor series up to the 17th power, which leaves 2^-55.
template <class D>
ORV_INLINE D sine_of_third(D f)
{
    constexpr double q = (3.14159265358979323846 / 3) * (3.14159265358979323846 / 3);
    constexpr double c1 = -q / 6, c2 = -c1 * q / 20, c3 = -c2 * q / 42, c4 = -c3 * q / 72, c5 = -c4 * q / 110,
                     c6 = -c5 * q / 156, c7 = -c6 * q / 210, c8 = -c7 * q / 272;
    const D z = f * f;
    D sum = of<D>(c8);
    sum = sum * z + of<D>(c7);
    sum = sum * z + of<D>(c6);
    sum = sum * z + of<D>(c5);
    sum = sum * z + of<D>(c4);
    sum = sum * z + of<D>(c3);
    sum = sum * z + of<D>(c2);
    sum = sum * z + of<D>(c1);
    return f + f * (z * sum);
}

// For 0 < f < 1.
template <class D>
ORV_INLINE void lanczos_weights(D f, D* w)
{
    const D g = of<D>(1) - f;
    const D B = sine_of_third(f), A = sine_of_third(g), C = of<D>(0) - (A + B);
    const D f1 = f + of<D>(1), f2 = f + of<D>(2), g1 = g + of<D>(1), g2 = g + of<D>(2);
    const D a0 = f2 * f2, a1 = f1 * f1, a2 = f * f, a3 = g * g, a4 = g1 * g1, a5 = g2 * g2;
    const D a01 = a0 * a1, a23 = a2 * a3, a45 = a4 * a5;
    const D left = a23 * a45, middle = a01 * a45, right = a01 * a23;
    w[0] = A * a1 * left;
    w[1] = C * a0 * left;
    w[2] = B * a3 * middle;
    w[3] = A * a2 * middle;
    w[4] = C * a5 * right;
    w[5] = B * a4 * right;
    const D sum = ((w[0] + w[1]) + (w[4] + w[5])) + (w[2] + w[3]);
    const D scale = of<D>(1) / sum;
    for (int k = 0; k < 6; ++k) w[k] = w[k] * scale;
}

}  // namespace
}  // namespace ORV_LEVEL
}  // namespace orv
