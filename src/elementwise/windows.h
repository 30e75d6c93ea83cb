// Weights of windows, for vectors and for the rows and columns of images.
#pragma once

#include "core/checks.h"
#include "elementwise/float_arithmetic.h"

namespace orv {
inline namespace ORV_LEVEL {

// cos(2 pi / n), n >= 2, correctly rounded but for a few cases in a thousand. From n = 9 on the angle is
// below pi/4: the Taylor polynomial of degree 16, with the square of the angle in two doubles (by splitting
// the angle in halves of 26 bits), so that only the last sum rounds.
inline double cosine_of_step(int n)
{
    static const double small[9] = {0, 0, -1, -0x1.ffffffffffffcp-2, 0x1.1a62633145c07p-54, 0x1.3c6ef372fe950p-2,
                                    0x1.0000000000001p-1, 0x1.3f3a0e28bedd2p-1, 0x1.6a09e667f3bcdp-1};
    if (n < 9) return small[n];
    const double x = rounded(6.283185307179586 / n);
    const double split = rounded(x * 134217729.0);
    const double high = rounded(split - rounded(split - x));
    const double low = rounded(x - high);
    const double square = rounded(x * x);
    const double high_rest = rounded(rounded(high * high) - square);
    const double square_low = rounded(rounded(high_rest + rounded(2 * high * low)) + rounded(low * low));
    // cos x = 1 - x^2/2 + x^4 (1/4! - x^2/6! + ...)
    double tail = 1.0 / 20922789888000.0;
    static const double coefficients[] = {-1.0 / 87178291200.0, 1.0 / 479001600.0, -1.0 / 3628800.0,
                                          1.0 / 40320.0,        -1.0 / 720.0,      1.0 / 24.0};
    for (const double c : coefficients) tail = rounded(rounded(tail * square) + c);
    const double half = 0.5 * square;
    const double main = rounded(1.0 - half);
    const double lost = rounded(rounded(1.0 - main) - half);
    const double fourth = rounded(rounded(square * square) * tail);
    return rounded(main + rounded(rounded(lost - 0.5 * square_low) + fourth));
}

// use(k, weight) for the weights of a Hamming window of n >= 3 elements from the first to the middle one (of an even
// number: to the last one of the first half); those behind are the same, mirrored.
//
// The cosines come from a rotation, each from the one before it; so does their rounding, and no other order
// of evaluation gives the same bits.
template <class Use>
ORV_INLINE void for_hamming_weights(int n, Use use)
{
    const double c = cosine_of_step(n - 1);
    const double s = rounded(__builtin_sqrt(rounded(1.0 - rounded(c * c))));
    double cosine = 1, sine = 0;
    const int half = (n - 1) / 2;
    for (int k = 0; k < half; ++k) {
        use(k, rounded(0.54 - rounded(0.46 * cosine)));
        const double next = rounded(rounded(c * cosine) - rounded(s * sine));
        sine = rounded(rounded(sine * c) + rounded(cosine * s));
        cosine = next;
    }
    use(half, n % 2 == 0 ? rounded(0.54 - rounded(0.46 * cosine)) : 1.0);
}

ORV_INLINE void weigh(const float* src, float* dst, double weight)
{
    // A NaN keeps its bits but becomes quiet.
    const std::uint32_t bits = get(reinterpret_cast<const std::uint32_t*>(src));
    std::uint32_t* const to = reinterpret_cast<std::uint32_t*>(dst);
    const float product = rounded(static_cast<float>(rounded(static_cast<double>(value_of<float>(bits)) * weight)));
    put(to, is_nan_bits<float>(bits) ? bits | Bits<float>::kQuiet : bits_of<float>(product));
}

}  // namespace ORV_LEVEL
}  // namespace orv
