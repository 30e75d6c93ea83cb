#include "image/arithmetic/float_arithmetic.h"

#include <cstdint>

#include "core/checks.h"
#include "elementwise/float_arithmetic.h"
#include "core/float_control.h"
#include "core/overlap.h"
#include "elementwise/forms.h"
#include "elementwise/rows.h"
#include "simd/conversion.h"
#include "simd/lanes.h"
#include "simd/partial.h"

namespace orv {
namespace float_arithmetic {
namespace ORV_LEVEL {
namespace {

using std::uint16_t;
using std::uint32_t;

// --- Loops ----------------------------------------------------------------------------------------

template <class Op, class Self>
ORV_INLINE Status two_images(Self self, const float* src1, int src1Step, const float* src2, int src2Step, float* dst,
                             int dstStep, Size roi, int channels)
{
    if (const Status bad = check_image(roi, src1, src2, dst)) return bad;
    if (may_overlap<kReadAtOnce>(roi, channels, src1, src1Step, src2, src2Step, dst, dstStep)) {
        return by_rows(self, channels, src1, src1Step, src2, src2Step, dst, dstStep, roi);
    }
    const FloatControl control;
    Op op;
    plane(lanes(src1), src1Step, lanes(src2), src2Step, lanes(dst), dstStep, roi, channels, op);
    return StatusOk;
}

template <class Self>
ORV_INLINE Status division(Self self, const float* src1, int src1Step, const float* src2, int src2Step, float* dst,
                           int dstStep, Size roi, int channels)
{
    if (const Status bad = check_image(roi, src1, src2, dst)) return bad;
    if (any_below_one(src1Step, src2Step, dstStep)) return StatusBadStep;
    if (may_overlap<kReadAtOnce>(roi, channels, src1, src1Step, src2, src2Step, dst, dstStep)) {
        return by_rows(self, channels, src1, src1Step, src2, src2Step, dst, dstStep, roi);
    }
    const FloatControl control;
    FloatQuotient<float> op;
    plane(lanes(src1), src1Step, lanes(src2), src2Step, lanes(dst), dstStep, roi, channels, op);
    return op.zeros ? StatusDivideByZero : StatusOk;
}

template <class Op, class Self>
ORV_INLINE Status constant(Self self, const float* src, int srcStep, const float* values, float* dst, int dstStep,
                           Size roi, int channels)
{
    if (const Status bad = check_image(roi, src, values, dst)) return bad;
    if (may_overlap<kReadAtOnce>(roi, channels, src, srcStep, dst, dstStep)) {
        return by_rows(self, channels, src, srcStep, values, dst, dstStep, roi);
    }
    const FloatControl control;
    Op op;
    constant_plane(lanes(values), lanes(src), srcStep, lanes(dst), dstStep, roi, channels, op);
    return StatusOk;
}

template <class Self>
ORV_INLINE Status division_by_constant(Self self, const float* src, int srcStep, const float* values, float* dst,
                                       int dstStep, Size roi, int channels)
{
    if (const Status bad = check_image(roi, src, values, dst)) return bad;
    if (any_below_one(srcStep, dstStep)) return StatusBadStep;
    if (may_overlap<kReadAtOnce>(roi, channels, src, srcStep, dst, dstStep)) {
        return by_rows(self, channels, src, srcStep, values, dst, dstStep, roi);
    }
    const FloatControl control;
    float reciprocals[3];
    for (int c = 0; c < channels; ++c) {
        const float value = get(values + c);
        if (value == 0) return StatusDivideByZeroError;
        reciprocals[c] = reciprocal(value);
    }
    FloatProduct<float> op;
    constant_plane(lanes(reciprocals), lanes(src), srcStep, lanes(dst), dstStep, roi, channels, op);
    return StatusOk;
}

// Bits are cleared, nothing is computed: the floating-point environment does not matter.
template <class Self>
ORV_INLINE Status absolute(Self self, const float* src, int srcStep, float* dst, int dstStep, Size roi, int channels)
{
    if (const Status bad = check_image(roi, src, dst)) return bad;
    if (may_overlap<kReadAtOnce>(roi, channels, src, srcStep, dst, dstStep)) {
        return by_rows(self, channels, src, srcStep, dst, dstStep, roi);
    }
    plane(lanes(src), srcStep, lanes(dst), dstStep, roi, channels, WithoutSign<float>{});
    return StatusOk;
}

template <class Op, class Self>
ORV_INLINE Status extreme(Self self, const float* src, int srcStep, float* srcDst, int srcDstStep, Size roi)
{
    if (const Status bad = check_image(roi, src, srcDst)) return bad;
    if (any_below_one(srcStep, srcDstStep)) return StatusBadStep;
    if (may_overlap<kReadAtOnce>(roi, 1, src, srcStep, srcDst, srcDstStep))
        return by_rows(self, 1, src, srcStep, srcDst, srcDstStep, roi);
    const FloatControl control;  // subnormals must not be taken for zeros
    Op op;
    plane(lanes(src), srcStep, lanes<float>(srcDst), srcDstStep, lanes(srcDst), srcDstStep, roi, 1, op);
    return StatusOk;
}

Status square_roots(const float* src, int srcStep, float* dst, int dstStep, Size roi)
{
    if (may_overlap<kReadAtOnce>(roi, 1, src, srcStep, dst, dstStep))
        return by_rows(square_roots, 1, src, srcStep, dst, dstStep, roi);
    const FloatControl control;
    const auto op = plane(lanes(src), srcStep, lanes(dst), dstStep, roi, 1, SquareRoot<float>{});
    return op.negatives ? StatusSqrtOfNegative : StatusOk;
}

// --- Accumulated products of 16-bit pixels ----------------------------------------------------------
//
// The product and the sum in double, rounded to float once. A NaN in the image stays as it is, made quiet.

ORV_INLINE uint32_t accumulated(uint16_t a, uint16_t b, uint32_t sum)
{
    if (is_nan_bits<float>(sum)) return sum | Bits<float>::kQuiet;
    const double product = static_cast<double>(static_cast<uint32_t>(a) * b);
    return bits_of<float>(rounded(static_cast<float>(rounded(static_cast<double>(value_of<float>(sum)) + product))));
}

#if ORV_HAVE_VECTORS
using Four = simd::half<float>;
// Four accumulated products.
ORV_INLINE Four accumulated(const uint16_t* a, const uint16_t* b, const float* sum)
{
    using Values = simd::half<uint16_t>;
    const Values x = simd::load_lower<Values>(a), y = simd::load_lower<Values>(b);
    const simd::half<uint32_t> products = interleave(simd::mul_low(x, y), simd::mul_high(x, y)).lo;
    return to_float(simd::load_as<simd::four_doubles>::from(sum) + simd::to_four_doubles(products));
}
#endif

#if ORV_HAVE_FUSED
// Eight of them. The sum in double is exact where the one so far is 0 or from 4 to below 2^51, since the product is an
// integer below 2^32: no bit of either lies below 2^-21 or above 2^52, or they lie nearer together. A fused step in
// float rounds the same number then.
ORV_INLINE floats accumulated_fused(const uint16_t* a, const uint16_t* b, const float* sum)
{
    const floats so_far = load_floats(sum), size = magnitude(so_far);
    const mask32 exact = (greater_equal(size, 4.0f) & less(size, 0x1p51f)) | equal(size, 0.0f);
    if (__builtin_expect(all(exact), true)) {
        return fused(simd::load_as<floats>::from(a), simd::load_as<floats>::from(b), so_far);
    }
    alignas(32) float eight[kFloats];
    for (int i = 0; i < kFloats; i += 4) simd::store(eight + i, accumulated(a + i, b + i, sum + i));
    return load_floats(eight);
}
#endif

ORV_INLINE void accumulate_row(const uint16_t* a, const uint16_t* b, float* sum, std::ptrdiff_t n)
{
    std::ptrdiff_t i = 0;
#if ORV_HAVE_FUSED
    const auto eight_at = [=](std::ptrdiff_t k) { return accumulated_fused(a + k, b + k, sum + k); };
    if (n >= kFloats) {
        return full_vectors<kFloats>(n, eight_at, [=](std::ptrdiff_t k, floats v) { simd::store(sum + k, v); });
    }
#endif
#if ORV_HAVE_VECTORS
    const auto at = [=](std::ptrdiff_t k) { return accumulated(a + k, b + k, sum + k); };
    if (n >= 4) return full_vectors<4>(n, at, [=](std::ptrdiff_t k, Four v) { simd::store(sum + k, v); });
#endif
    uint32_t* const bits = reinterpret_cast<uint32_t*>(sum);
    for (; i < n; ++i) put(bits + i, accumulated(get(a + i), get(b + i), get(bits + i)));
}

}  // namespace

Status AddProduct_16u32f_C1(const uint16_t* src1, int src1Step, const uint16_t* src2, int src2Step,
                            float* srcDst, int srcDstStep, Size roi)
{
    if (const Status bad = check_image(roi, src1, src2, srcDst)) return bad;
    const std::int64_t pairs = std::int64_t{2} * roi.width;
    if (src1Step < pairs || src2Step < pairs || srcDstStep < 2 * pairs) return StatusBadStep;
    if ((src1Step | src2Step) % 2 != 0 || srcDstStep % 4 != 0) return StatusUnevenStep;
    if (may_overlap(roi, 1, src1, src1Step, src2, src2Step, srcDst, srcDstStep)) {
        return by_rows(AddProduct_16u32f_C1, 1, src1, src1Step, src2, src2Step, srcDst, srcDstStep, roi);
    }
    const FloatControl control;
    Rows rows(roi, 1);
    rows.merge(src1Step == pairs && src2Step == pairs && srcDstStep == 2 * pairs);
    for (int y = 0; y < rows.count; ++y) {
        accumulate_row(row_at(src1, src1Step, y), row_at(src2, src2Step, y), row_at(srcDst, srcDstStep, y), rows.n);
    }
    return StatusOk;
}

// The steps are rounded down to whole elements, on purpose: rows of an image with an odd step start up to
// three bytes before the place that the step gives.
Status Sqrt_32f_C1(const float* src, int srcStep, float* dst, int dstStep, Size roi)
{
    if (const Status bad = check_images(src, srcStep, dst, dstStep, roi)) return bad;
    return square_roots(src, srcStep & ~3, dst, dstStep & ~3, roi);
}

// --- Kernels --------------------------------------------------------------------------------------

TWO_IMAGES(Add_32f_C1, two_images<FloatSum<float>>, float, float, 1)
TWO_IMAGES(Add_32f_C3, two_images<FloatSum<float>>, float, float, 3)
TWO_IMAGES(Sub_32f_C1, two_images<FloatDifference<float>>, float, float, 1)
TWO_IMAGES(Sub_32f_C3, two_images<FloatDifference<float>>, float, float, 3)
TWO_IMAGES(Mul_32f_C1, two_images<FloatProduct<float>>, float, float, 1)
TWO_IMAGES(Mul_32f_C3, two_images<FloatProduct<float>>, float, float, 3)
TWO_IMAGES(Div_32f_C1, division, float, float, 1)
TWO_IMAGES(Div_32f_C3, division, float, float, 3)

ONE_CONSTANT(AddC_32f_C1, constant<FloatSum<float>>, float, float, float, 1)
CONSTANT_PER_CHANNEL(AddC_32f_C3, constant<FloatSum<float>>, float, float, float, 3)
ONE_CONSTANT(SubC_32f_C1, constant<FloatDifference<float>>, float, float, float, 1)
CONSTANT_PER_CHANNEL(SubC_32f_C3, constant<FloatDifference<float>>, float, float, float, 3)
ONE_CONSTANT(MulC_32f_C1, constant<FloatProduct<float>>, float, float, float, 1)
CONSTANT_PER_CHANNEL(MulC_32f_C3, constant<FloatProduct<float>>, float, float, float, 3)
ONE_CONSTANT(DivC_32f_C1, division_by_constant, float, float, float, 1)
CONSTANT_PER_CHANNEL(DivC_32f_C3, division_by_constant, float, float, float, 3)

ONE_IMAGE(Abs_32f_C1, absolute, float, float, 1)
ONE_IMAGE(Abs_32f_C3, absolute, float, float, 3)

Status MaxEvery_32f_C1(const float* src, int srcStep, float* srcDst, int srcDstStep, Size roi)
{
    return extreme<Larger>(MaxEvery_32f_C1, src, srcStep, srcDst, srcDstStep, roi);
}
Status MinEvery_32f_C1(const float* src, int srcStep, float* srcDst, int srcDstStep, Size roi)
{
    return extreme<Smaller>(MinEvery_32f_C1, src, srcStep, srcDst, srcDstStep, roi);
}

}  // namespace ORV_LEVEL
}  // namespace float_arithmetic
}  // namespace orv
