// Cosine and sine of an angle in degrees, as multiples of 2^-32, and what a rotation does to points.
#pragma once

#include <cstdint>

#include "core/float_control.h"
#include "simd/number.h"

namespace orv {
inline namespace ORV_LEVEL {
namespace {

// sin x and cos x for |x| <= pi / 4 by their Taylor series: what is left out is below 2^-54.
struct OctantSeries {
    double cos, sin;
    explicit OctantSeries(double x)
    {
        const double z = x * x;
        double sine = 1, cosine = 1;
        for (int k = 16; k >= 2; k -= 2) {
            sine = 1 - sine * z / (k * (k + 1));
            cosine = 1 - cosine * z / (k * (k - 1));
        }
        sin = x * sine;
        cos = cosine;
    }
};

// A finite number of degrees as part of a turn: quarters of a turn and the rest, up to half a quarter, in
// degrees; exact, because all of it is in integers.
struct ReducedAngle {
    int quarter;
    bool mirrored;  // the rest is what is missing to the next quarter
    double rest;
    bool negative;

    explicit ReducedAngle(double degrees)
    {
        const std::uint64_t bits = bits_of(degrees);
        negative = (bits >> 63) != 0;
        const int field = static_cast<int>(bits >> 52 & 0x7FF);
        std::uint64_t mantissa = bits & 0xFFFFFFFFFFFFFu;
        if (field > 0) mantissa |= std::uint64_t{1} << 52;
        // The angle is mantissa 2^exponent degrees.
        int exponent = (field > 0 ? field : 1) - 1075;
        if (exponent > 0) {
            // The powers of 2 modulo 360 = 8 * 45 repeat after twelve, from the third on.
            mantissa = mantissa % 360 *
                       ((std::uint64_t{1} << (exponent < 15 ? exponent : 3 + (exponent - 3) % 12)) % 360);
            exponent = 0;
        }
        int places = -exponent;
        if (places > 56) {  // below 2^-3 degrees already
            quarter = 0;
            mirrored = false;
            rest = places > 200 ? 0 : static_cast<double>(static_cast<std::int64_t>(mantissa)) * power_of_two(-places);
            return;
        }
        const std::uint64_t right_angle = std::uint64_t{90} << places;
        quarter = static_cast<int>(mantissa / right_angle & 3);
        std::uint64_t part = mantissa % right_angle;
        mirrored = part > right_angle / 2;
        if (mirrored) part = right_angle - part;
        rest = static_cast<double>(static_cast<std::int64_t>(part)) * power_of_two(-places);
    }
};

// The nearest multiple of 2^-32, for |v| up to 1; zeros are positive. Few digits make products with
// coordinates exact, so that positions repeat and mirror exactly.
ORV_INLINE double on_grid(double v)
{
    ORV_ASSERT(FloatControl::holds() && v >= -1 && v <= 1);
    constexpr double digits = 0x1.8p20;
    return rounded(rounded(v + digits) - digits);
}

struct Turn {
    double c, s;

    explicit Turn(double degrees)
    {
        const ReducedAngle angle(degrees);
        const OctantSeries octant(angle.rest * (3.14159265358979323846 / 180));
        const double a = angle.mirrored ? octant.sin : octant.cos, b = angle.mirrored ? octant.cos : octant.sin;
        const double cosine = angle.quarter == 0 ? a : angle.quarter == 1 ? -b : angle.quarter == 2 ? -a : b;
        const double sine = angle.quarter == 0 ? b : angle.quarter == 1 ? a : angle.quarter == 2 ? -b : -a;
        c = on_grid(cosine);
        s = on_grid(angle.negative ? -sine : sine);
    }
    // Where a point lands before it is shifted.
    ORV_INLINE double x(double px, double py) const { return rounded(rounded(c * px) + rounded(s * py)); }
    ORV_INLINE double y(double px, double py) const { return rounded(rounded(c * py) - rounded(s * px)); }
};

}  // namespace
}  // namespace ORV_LEVEL
}  // namespace orv
