// A perspective map: its matrix, brought to one scale, and the inverse that leads from the destination to the
// source.
#pragma once

#include <cstdint>

#include "core/checks.h"
#include "core/float_control.h"
#include "image/interpolation.h"
#include "simd/number.h"

namespace orv {
inline namespace ORV_LEVEL {
namespace {

// A finite number's power of two: |value| = 2^exponent times 1 up to 2. Very low for 0.
ORV_INLINE int exponent_of(std::uint64_t bits)
{
    const int field = static_cast<int>(bits >> 52 & 0x7FF);
    if (field > 0) return field - 1023;
    const std::uint64_t mantissa = bits & 0xFFFFFFFFFFFFFu;
    return mantissa == 0 ? -100000 : -1011 - __builtin_clzll(mantissa);
}

// The rows of H times the power of two that brings the largest magnitude into [1, 2). What is then below 2^-300
// counts as 0: products of three elements stay normal numbers.
struct ScaledMatrix {
    double h[9];

    // Of finite coefficients.
    explicit ScaledMatrix(const double* coefficients)
    {
        std::uint64_t bits[9];
        int largest = -100000;
        for (int i = 0; i < 9; ++i) {
            __builtin_memcpy(&bits[i], coefficients + i, sizeof(bits[i]));
            const int exponent = exponent_of(bits[i]);
            if (exponent > largest) largest = exponent;
        }
        for (int i = 0; i < 9; ++i) h[i] = scaled(bits[i], largest);
    }
    bool is_zero() const
    {
        for (const double element : h) {
            if (element != 0) return false;
        }
        return true;
    }

private:
    static double scaled(std::uint64_t bits, int largest)
    {
        constexpr std::uint64_t fraction = (std::uint64_t{1} << 52) - 1;
        const int exponent = exponent_of(bits);
        if (exponent < -2000) return from_bits_of(bits);  // a zero
        if (exponent < largest - 300) return 0;
        std::uint64_t mantissa = bits & fraction;
        if (exponent < -1022) mantissa = mantissa << (-1022 - exponent) & fraction;
        return from_bits_of((bits & std::uint64_t{1} << 63) |
                            static_cast<std::uint64_t>(exponent - largest + 1023) << 52 | mantissa);
    }
};

struct Inverse {
    double m[9];
    bool exists, affine;

    // `source` is what counts of the source: points are in front of the horizon on the side of its centre.
    Inverse(const double* h, Rectangle source)
    {
        m[0] = h[4] * h[8] - h[5] * h[7];
        m[1] = h[2] * h[7] - h[1] * h[8];
        m[2] = h[1] * h[5] - h[2] * h[4];
        m[3] = h[5] * h[6] - h[3] * h[8];
        m[4] = h[0] * h[8] - h[2] * h[6];
        m[5] = h[2] * h[3] - h[0] * h[5];
        m[6] = h[3] * h[7] - h[4] * h[6];
        m[7] = h[1] * h[6] - h[0] * h[7];
        m[8] = h[0] * h[4] - h[1] * h[3];
        affine = h[6] == 0 && h[7] == 0;
        const double x = source.x + 0.5 * source.width, y = source.y + 0.5 * source.height;
        const double side = (h[6] * x + h[7] * y) + h[8];
        const double det = affine ? h[8] * m[8] : (h[0] * m[0] + h[1] * m[3]) + h[2] * m[6];
        exists = det != 0 && side != 0 && is_finite_value(det) && is_finite_value(side);
        if (!exists) return;
        if ((det < 0) != (side < 0)) {
            for (double& element : m) element = -element;
        }
        if (affine) {
            for (int i = 0; i < 6; ++i) m[i] = m[i] / m[8];
        }
    }
};

}  // namespace
}  // namespace ORV_LEVEL
}  // namespace orv
