#include "image/arithmetic/integer_arithmetic.h"

#include <cstdint>

#include "core/checks.h"
#include "core/overlap.h"
#include "elementwise/forms.h"
#include "elementwise/quotients.h"
#include "elementwise/rows.h"
#include "elementwise/scaled_arithmetic.h"

namespace orv {
namespace integer_arithmetic {
namespace ORV_LEVEL {
namespace {

using std::int16_t;
using std::uint16_t;
using std::uint8_t;

// --- Loops ----------------------------------------------------------------------------------------

template <template <class> class Kind, class T, class Self>
ORV_INLINE Status arithmetic(Self self, const T* src1, int src1Step, const T* src2, int src2Step, T* dst, int dstStep,
                             Size roi, int scaleFactor, int channels)
{
    if (const Status bad = check_image(roi, src1, src2, dst)) return bad;
    if (may_overlap<kReadAtOnce>(roi, channels, src1, src1Step, src2, src2Step, dst, dstStep)) {
        return by_rows(self, channels, src1, src1Step, src2, src2Step, dst, dstStep, roi, scaleFactor);
    }
    with_scaling<T, Kind<T>>(scaleFactor, [&](auto op) {
        plane(src1, src1Step, src2, src2Step, dst, dstStep, roi, channels, op);
    });
    return StatusOk;
}

template <template <class> class Kind, class T, class Self>
ORV_INLINE Status arithmetic_constant(Self self, const T* src, int srcStep, const T* values, T* dst, int dstStep,
                                      Size roi, int scaleFactor, int channels)
{
    if (const Status bad = check_image(roi, src, values, dst)) return bad;
    if (may_overlap<kReadAtOnce>(roi, channels, src, srcStep, dst, dstStep)) {
        return by_rows(self, channels, src, srcStep, values, dst, dstStep, roi, scaleFactor);
    }
    with_scaling<T, Kind<T>>(scaleFactor, [&](auto op) {
        constant_plane(values, src, srcStep, dst, dstStep, roi, channels, op);
    });
    return StatusOk;
}

// Only 16u rounds its quotients in fixed point, and it alone does not check its steps: both are promised.
template <Rounding rounding, class T, class Self>
ORV_INLINE Status division(Self self, const T* src1, int src1Step, const T* src2, int src2Step, T* dst, int dstStep,
                           Size roi, int scaleFactor, int channels)
{
    if (const Status bad = check_image(roi, src1, src2, dst)) return bad;
    if (rounding == Rounding::half_even && any_below_one(src1Step, src2Step, dstStep)) return StatusBadStep;
    if (may_overlap<kReadAtOnce>(roi, channels, src1, src1Step, src2, src2Step, dst, dstStep)) {
        return by_rows(self, channels, src1, src1Step, src2, src2Step, dst, dstStep, roi, scaleFactor);
    }
    return with_quotient<T, rounding>(scaleFactor, [&](auto& op) {
        plane(src1, src1Step, src2, src2Step, dst, dstStep, roi, channels, op);
    });
}

template <class T, class Self>
ORV_INLINE Status division_constant(Self self, const T* src, int srcStep, const T* values, T* dst, int dstStep,
                                    Size roi, int scaleFactor, int channels)
{
    if (const Status bad = check_image(roi, src, values, dst)) return bad;
    if (may_overlap<kReadAtOnce>(roi, channels, src, srcStep, dst, dstStep)) {
        return by_rows(self, channels, src, srcStep, values, dst, dstStep, roi, scaleFactor);
    }
    return with_quotient<T, Rounding::half_even, Divisors::constant>(scaleFactor, [&](auto& op) {
        constant_plane(values, src, srcStep, dst, dstStep, roi, channels, op);
    });
}

}  // namespace

// --- Kernels --------------------------------------------------------------------------------------

TWO_IMAGES(Add_8u_C1, arithmetic<Sum>, uint8_t, uint8_t, 1, int)
TWO_IMAGES(Add_8u_C3, arithmetic<Sum>, uint8_t, uint8_t, 3, int)
TWO_IMAGES(Add_8u_C4, arithmetic<Sum>, uint8_t, uint8_t, 4, int)
TWO_IMAGES(Add_16u_C1, arithmetic<Sum>, uint16_t, uint16_t, 1, int)
TWO_IMAGES(Add_16s_C1, arithmetic<Sum>, int16_t, int16_t, 1, int)

TWO_IMAGES(Sub_8u_C1, arithmetic<Difference>, uint8_t, uint8_t, 1, int)
TWO_IMAGES(Sub_8u_C3, arithmetic<Difference>, uint8_t, uint8_t, 3, int)
TWO_IMAGES(Sub_8u_C4, arithmetic<Difference>, uint8_t, uint8_t, 4, int)
TWO_IMAGES(Sub_16u_C1, arithmetic<Difference>, uint16_t, uint16_t, 1, int)
TWO_IMAGES(Sub_16s_C1, arithmetic<Difference>, int16_t, int16_t, 1, int)

TWO_IMAGES(Mul_8u_C1, arithmetic<Product>, uint8_t, uint8_t, 1, int)
TWO_IMAGES(Mul_8u_C3, arithmetic<Product>, uint8_t, uint8_t, 3, int)
TWO_IMAGES(Mul_8u_C4, arithmetic<Product>, uint8_t, uint8_t, 4, int)
TWO_IMAGES(Mul_16u_C1, arithmetic<Product>, uint16_t, uint16_t, 1, int)
TWO_IMAGES(Mul_16s_C1, arithmetic<Product>, int16_t, int16_t, 1, int)

TWO_IMAGES(Div_8u_C1, division<Rounding::half_even>, uint8_t, uint8_t, 1, int)
TWO_IMAGES(Div_8u_C3, division<Rounding::half_even>, uint8_t, uint8_t, 3, int)
TWO_IMAGES(Div_8u_C4, division<Rounding::half_even>, uint8_t, uint8_t, 4, int)
TWO_IMAGES(Div_16u_C1, division<Rounding::fixed_point>, uint16_t, uint16_t, 1, int)
TWO_IMAGES(Div_16s_C1, division<Rounding::half_even>, int16_t, int16_t, 1, int)

ONE_CONSTANT(AddC_8u_C1, arithmetic_constant<Sum>, uint8_t, uint8_t, uint8_t, 1, int)
CONSTANT_PER_CHANNEL(AddC_8u_C3, arithmetic_constant<Sum>, uint8_t, uint8_t, uint8_t, 3, int)
CONSTANT_PER_CHANNEL(AddC_8u_C4, arithmetic_constant<Sum>, uint8_t, uint8_t, uint8_t, 4, int)
ONE_CONSTANT(AddC_16u_C1, arithmetic_constant<Sum>, uint16_t, uint16_t, uint16_t, 1, int)
ONE_CONSTANT(AddC_16s_C1, arithmetic_constant<Sum>, int16_t, int16_t, int16_t, 1, int)

ONE_CONSTANT(SubC_8u_C1, arithmetic_constant<Difference>, uint8_t, uint8_t, uint8_t, 1, int)
CONSTANT_PER_CHANNEL(SubC_8u_C3, arithmetic_constant<Difference>, uint8_t, uint8_t, uint8_t, 3, int)
CONSTANT_PER_CHANNEL(SubC_8u_C4, arithmetic_constant<Difference>, uint8_t, uint8_t, uint8_t, 4, int)
ONE_CONSTANT(SubC_16u_C1, arithmetic_constant<Difference>, uint16_t, uint16_t, uint16_t, 1, int)
ONE_CONSTANT(SubC_16s_C1, arithmetic_constant<Difference>, int16_t, int16_t, int16_t, 1, int)

ONE_CONSTANT(MulC_8u_C1, arithmetic_constant<Product>, uint8_t, uint8_t, uint8_t, 1, int)
CONSTANT_PER_CHANNEL(MulC_8u_C3, arithmetic_constant<Product>, uint8_t, uint8_t, uint8_t, 3, int)
CONSTANT_PER_CHANNEL(MulC_8u_C4, arithmetic_constant<Product>, uint8_t, uint8_t, uint8_t, 4, int)
ONE_CONSTANT(MulC_16u_C1, arithmetic_constant<Product>, uint16_t, uint16_t, uint16_t, 1, int)
ONE_CONSTANT(MulC_16s_C1, arithmetic_constant<Product>, int16_t, int16_t, int16_t, 1, int)

ONE_CONSTANT(DivC_8u_C1, division_constant, uint8_t, uint8_t, uint8_t, 1, int)
CONSTANT_PER_CHANNEL(DivC_8u_C3, division_constant, uint8_t, uint8_t, uint8_t, 3, int)
CONSTANT_PER_CHANNEL(DivC_8u_C4, division_constant, uint8_t, uint8_t, uint8_t, 4, int)
ONE_CONSTANT(DivC_16u_C1, division_constant, uint16_t, uint16_t, uint16_t, 1, int)
ONE_CONSTANT(DivC_16s_C1, division_constant, int16_t, int16_t, int16_t, 1, int)

}  // namespace ORV_LEVEL
}  // namespace integer_arithmetic
}  // namespace orv
