// The cubics of two parameters. D. P. Mitchell and A. N. Netravali, "Reconstruction filters in computer
// graphics", SIGGRAPH 1988, formula (8). (0, 1/2) is Catmull-Rom, (1, 0) the B-spline.
#pragma once

#include "core/float_control.h"
#include "simd/number.h"
#include "image/interpolation.h"

namespace orv {
inline namespace ORV_LEVEL {

class CubicFamily {
public:
    ORV_INLINE CubicFamily(double B, double C)
        : near3_((12 - 9 * B - 6 * C) / 6),
          near2_((-18 + 12 * B + 6 * C) / 6),
          near0_((6 - 2 * B) / 6),
          far3_((-B - 6 * C) / 6),
          far2_((6 * B + 30 * C) / 6),
          far1_((-12 * B - 48 * C) / 6),
          far0_((8 * B + 24 * C) / 6)
    {
    }
    // For the taps at the distances 1 + f, f, 1 - f, 2 - f; 0 <= f <= 1.
    ORV_INLINE void weights(double f, float* w) const
    {
        double exact[4];
        weights_in_double(f, exact);
        for (int k = 0; k < 4; ++k) w[k] = rounded(static_cast<float>(exact[k]));
    }
    template <class D>
    ORV_INLINE void weights_in_double(D f, D* w) const
    {
        w[0] = far(of<D>(1) + f);
        w[1] = near(f);
        w[2] = near(of<D>(1) - f);
        w[3] = far(of<D>(2) - f);
    }
    // The coefficients of the four weights as polynomials in f, those of the highest power first: for estimates.
    ORV_INLINE void polynomials(float (*c)[4]) const
    {
        const double all[4][4] = {
            {far3_, 3 * far3_ + far2_, 3 * far3_ + 2 * far2_ + far1_, far3_ + far2_ + far1_ + far0_},
            {near3_, near2_, 0, near0_},
            {-near3_, 3 * near3_ + near2_, -3 * near3_ - 2 * near2_, near3_ + near2_ + near0_},
            {-far3_, 6 * far3_ + far2_, -12 * far3_ - 4 * far2_ - far1_, 8 * far3_ + 4 * far2_ + 2 * far1_ + far0_}};
        for (int k = 0; k < 4; ++k) {
            for (int power = 0; power < 4; ++power) c[k][power] = static_cast<float>(all[k][power]);
        }
    }

private:
    // Term by term, as the formula is written: sums that ought to meet a tie hang on the last bit.
    template <class D>
    ORV_INLINE D near(D d) const
    {
        return of<D>(near3_) * d * d * d + of<D>(near2_) * d * d + of<D>(near0_);
    }
    template <class D>
    ORV_INLINE D far(D d) const
    {
        return of<D>(far3_) * d * d * d + of<D>(far2_) * d * d + of<D>(far1_) * d + of<D>(far0_);
    }
    double near3_, near2_, near0_, far3_, far2_, far1_, far0_;
};

ORV_INLINE bool is_cubic(int code) { return code >= kCubic && code <= kCubicB05C03; }

ORV_INLINE CubicFamily family_of(int code)
{
    switch (code) {
        case kBSpline:
            return CubicFamily(1, 0);
        case kCubicB05C03:
            return CubicFamily(0.5, 0.3);
        default:
            return CubicFamily(0, 0.5);
    }
}

}  // namespace ORV_LEVEL
}  // namespace orv
