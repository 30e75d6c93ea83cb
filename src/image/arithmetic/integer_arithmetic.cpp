#include "image/arithmetic/integer_arithmetic.h"

#include <cstdint>

#include "core/checks.h"
#include "core/overlap.h"
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
ORV_INLINE Status arithmetic(Self self, const T* src1, int src1Step, const T* src2, int src2Step, T* dst, int dstStep, Size roi,
                  int scaleFactor, int channels)
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
ORV_INLINE Status arithmetic_constant(Self self, const T* src, int srcStep, const T* values, T* dst, int dstStep, Size roi,
                           int scaleFactor, int channels)
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

template <Rounding rounding, bool checks_steps, class T, class Self>
ORV_INLINE Status division(Self self, const T* src1, int src1Step, const T* src2, int src2Step, T* dst, int dstStep, Size roi,
                int scaleFactor, int channels)
{
    if (const Status bad = check_image(roi, src1, src2, dst)) return bad;
    if (checks_steps && any_below_one(src1Step, src2Step, dstStep)) return StatusBadStep;
    if (may_overlap<kReadAtOnce>(roi, channels, src1, src1Step, src2, src2Step, dst, dstStep)) {
        return by_rows(self, channels, src1, src1Step, src2, src2Step, dst, dstStep, roi, scaleFactor);
    }
    return with_quotient<T, rounding>(scaleFactor, [&](auto& op) {
        plane(src1, src1Step, src2, src2Step, dst, dstStep, roi, channels, op);
    });
}

template <class T, class Self>
ORV_INLINE Status division_constant(Self self, const T* src, int srcStep, const T* values, T* dst, int dstStep, Size roi,
                         int scaleFactor, int channels)
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

#define TWO_IMAGES(name, T, channels, ...)                                                              \
    Status name(const T* src1, int src1Step, const T* src2, int src2Step, T* dst, int dstStep, Size roi, \
                int scaleFactor)                                                                        \
    {                                                                                                   \
        return __VA_ARGS__(name, src1, src1Step, src2, src2Step, dst, dstStep, roi, scaleFactor, channels);   \
    }
#define ONE_CONSTANT(name, T, ...)                                                                      \
    Status name(const T* src, int srcStep, T value, T* dst, int dstStep, Size roi, int scaleFactor)     \
    {                                                                                                   \
        return __VA_ARGS__(name, src, srcStep, &value, dst, dstStep, roi, scaleFactor, 1);                    \
    }
#define CONSTANT_PER_CHANNEL(name, T, channels, ...)                                                    \
    Status name(const T* src, int srcStep, const T* values, T* dst, int dstStep, Size roi, int scaleFactor) \
    {                                                                                                   \
        return __VA_ARGS__(name, src, srcStep, values, dst, dstStep, roi, scaleFactor, channels);             \
    }

TWO_IMAGES(Add_8u_C1, uint8_t, 1, arithmetic<Sum>)
TWO_IMAGES(Add_8u_C3, uint8_t, 3, arithmetic<Sum>)
TWO_IMAGES(Add_8u_C4, uint8_t, 4, arithmetic<Sum>)
TWO_IMAGES(Add_16u_C1, uint16_t, 1, arithmetic<Sum>)
TWO_IMAGES(Add_16s_C1, int16_t, 1, arithmetic<Sum>)

TWO_IMAGES(Sub_8u_C1, uint8_t, 1, arithmetic<Difference>)
TWO_IMAGES(Sub_8u_C3, uint8_t, 3, arithmetic<Difference>)
TWO_IMAGES(Sub_8u_C4, uint8_t, 4, arithmetic<Difference>)
TWO_IMAGES(Sub_16u_C1, uint16_t, 1, arithmetic<Difference>)
TWO_IMAGES(Sub_16s_C1, int16_t, 1, arithmetic<Difference>)

TWO_IMAGES(Mul_8u_C1, uint8_t, 1, arithmetic<Product>)
TWO_IMAGES(Mul_8u_C3, uint8_t, 3, arithmetic<Product>)
TWO_IMAGES(Mul_8u_C4, uint8_t, 4, arithmetic<Product>)
TWO_IMAGES(Mul_16u_C1, uint16_t, 1, arithmetic<Product>)
TWO_IMAGES(Mul_16s_C1, int16_t, 1, arithmetic<Product>)

// Only these check their steps, and only 16u rounds its quotients in fixed point: both are promised.
TWO_IMAGES(Div_8u_C1, uint8_t, 1, division<Rounding::half_even, true>)
TWO_IMAGES(Div_8u_C3, uint8_t, 3, division<Rounding::half_even, true>)
TWO_IMAGES(Div_8u_C4, uint8_t, 4, division<Rounding::half_even, true>)
TWO_IMAGES(Div_16u_C1, uint16_t, 1, division<Rounding::fixed_point, false>)
TWO_IMAGES(Div_16s_C1, int16_t, 1, division<Rounding::half_even, true>)

ONE_CONSTANT(AddC_8u_C1, uint8_t, arithmetic_constant<Sum>)
CONSTANT_PER_CHANNEL(AddC_8u_C3, uint8_t, 3, arithmetic_constant<Sum>)
CONSTANT_PER_CHANNEL(AddC_8u_C4, uint8_t, 4, arithmetic_constant<Sum>)
ONE_CONSTANT(AddC_16u_C1, uint16_t, arithmetic_constant<Sum>)
ONE_CONSTANT(AddC_16s_C1, int16_t, arithmetic_constant<Sum>)

ONE_CONSTANT(SubC_8u_C1, uint8_t, arithmetic_constant<Difference>)
CONSTANT_PER_CHANNEL(SubC_8u_C3, uint8_t, 3, arithmetic_constant<Difference>)
CONSTANT_PER_CHANNEL(SubC_8u_C4, uint8_t, 4, arithmetic_constant<Difference>)
ONE_CONSTANT(SubC_16u_C1, uint16_t, arithmetic_constant<Difference>)
ONE_CONSTANT(SubC_16s_C1, int16_t, arithmetic_constant<Difference>)

ONE_CONSTANT(MulC_8u_C1, uint8_t, arithmetic_constant<Product>)
CONSTANT_PER_CHANNEL(MulC_8u_C3, uint8_t, 3, arithmetic_constant<Product>)
CONSTANT_PER_CHANNEL(MulC_8u_C4, uint8_t, 4, arithmetic_constant<Product>)
ONE_CONSTANT(MulC_16u_C1, uint16_t, arithmetic_constant<Product>)
ONE_CONSTANT(MulC_16s_C1, int16_t, arithmetic_constant<Product>)

ONE_CONSTANT(DivC_8u_C1, uint8_t, division_constant)
CONSTANT_PER_CHANNEL(DivC_8u_C3, uint8_t, 3, division_constant)
CONSTANT_PER_CHANNEL(DivC_8u_C4, uint8_t, 4, division_constant)
ONE_CONSTANT(DivC_16u_C1, uint16_t, division_constant)
ONE_CONSTANT(DivC_16s_C1, int16_t, division_constant)

}  // namespace ORV_LEVEL
}  // namespace integer_arithmetic
}  // namespace orv
