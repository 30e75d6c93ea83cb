#include "signal/float_vectors.h"

#include <cstdint>

#include "core/checks.h"
#include "elementwise/float_arithmetic.h"
#include "core/float_control.h"
#include "elementwise/forms.h"
#include "elementwise/rows.h"

namespace orv {
namespace float_vectors {
namespace ORV_LEVEL {
namespace {

// --- Loops ----------------------------------------------------------------------------------------
//
// A vector is an image of one row.

template <class F, class Op>
void run(const F* src1, const F* src2, F* dst, Length len, Op& op)
{
    plane(lanes(src1), 0, lanes(src2), 0, lanes(dst), 0, {len.count, 1}, 1, op);
}
template <class F, class Op>
void run(const F* src, F value, F* dst, Length len, Op& op)
{
    constant_plane(lanes<F>(static_cast<const F*>(&value)), lanes(src), 0, lanes(dst), 0, {len.count, 1}, 1, op);
}

template <class Op, class F>
Status two_vectors(const F* src1, const F* src2, F* dst, Length len)
{
    if (const Status bad = check_vector(len, src1, src2, dst)) return bad;
    const FloatControl control;
    Op op;
    run(src1, src2, dst, len, op);
    return StatusOk;
}

template <class F>
Status division(const F* src1, const F* src2, F* dst, Length len)
{
    if (const Status bad = check_vector(len, src1, src2, dst)) return bad;
    const FloatControl control;
    FloatQuotient<F> op;
    run(src1, src2, dst, len, op);
    return op.zeros ? StatusDivideByZero : StatusOk;
}

template <class Op, class F>
Status constant(const F* src, F value, F* dst, Length len)
{
    if (const Status bad = check_vector(len, src, dst)) return bad;
    const FloatControl control;
    Op op;
    run(src, value, dst, len, op);
    return StatusOk;
}

template <class F>
Status division_by_constant(const F* src, F value, F* dst, Length len)
{
    if (const Status bad = check_vector(len, src, dst)) return bad;
    const FloatControl control;
    if (value == 0) return StatusDivideByZeroError;
    FloatProduct<F> op;
    run(src, reciprocal(value), dst, len, op);
    return StatusOk;
}

struct Unchanged {
    template <class T> ORV_INLINE T one(T, T b) const { return b; }
    template <class V> ORV_INLINE V many(V, V b) const { return b; }
};

// --- srcDst + a b, the product and the sum in double, rounded once -----------------------------------
//
// NaNs are always the same one; see the complex products.

ORV_INLINE std::uint32_t accumulated(double a, double b, double sum)
{
    const float result = rounded(static_cast<float>(rounded(sum + rounded(a * b))));
    const std::uint32_t bits = bits_of<float>(result);
    return is_nan_bits<float>(bits) ? Bits<float>::kNan : bits;
}

using Floats = simd::widest<float>;
using Doubles = simd::twice<simd::widest<double>>;

ORV_INLINE Doubles load_doubles(const float* p)
{
    Doubles r;
    simd::load_to(r, p);
    return r;
}

ORV_INLINE Floats accumulated(Doubles a, Doubles b, Doubles sum)
{
    sum.lo = simd::add_exact_product(a.lo, b.lo, sum.lo);
    sum.hi = simd::add_exact_product(a.hi, b.hi, sum.hi);
    const Floats result = simd::to_float(sum);
    const simd::mask_of<Floats> nan = simd::unordered(result, result);
    if (__builtin_expect(!simd::any(nan), true)) return result;
    return simd::select(nan, simd::splat<Floats>(value_of<float>(Bits<float>::kNan)), result);
}

// The vector or the constant that the other one is multiplied with.
struct Elements {
    const float* p;
    ORV_INLINE double one(std::ptrdiff_t i) const { return static_cast<double>(get(p + i)); }
    ORV_INLINE Doubles many(std::ptrdiff_t i) const { return load_doubles(p + i); }
};
struct Everywhere {
    double value;
    ORV_INLINE double one(std::ptrdiff_t) const { return value; }
    ORV_INLINE Doubles many(std::ptrdiff_t) const
    {
        const auto v = simd::splat<simd::widest<double>>(value);
        return {v, v};
    }
};

template <class Factor>
void accumulate(const float* src, Factor factor, float* srcDst, std::ptrdiff_t n)
{
    const Elements other = {src};
    std::ptrdiff_t i = 0;
    constexpr int N = Floats::N;
    const auto at = [&](std::ptrdiff_t k) {
        return accumulated(other.many(k), factor.many(k), load_doubles(srcDst + k));
    };
    if (N > 1 && n >= N) return full_vectors<N>(n, at, [&](std::ptrdiff_t k, Floats v) { simd::store(srcDst + k, v); });
    std::uint32_t* const bits = reinterpret_cast<std::uint32_t*>(srcDst);
    for (; i < n; ++i) put(bits + i, accumulated(other.one(i), factor.one(i), static_cast<double>(get(srcDst + i))));
}

}  // namespace

Status AddProduct_32f(const float* src1, const float* src2, float* srcDst, Length len)
{
    if (const Status bad = check_vector(len, src1, src2, srcDst)) return bad;
    const FloatControl control;
    accumulate(src1, Elements{src2}, srcDst, len.count);
    return StatusOk;
}
Status AddProductC_32f(const float* src, float value, float* srcDst, Length len)
{
    if (const Status bad = check_vector(len, src, srcDst)) return bad;
    const FloatControl control;
    accumulate(src, Everywhere{static_cast<double>(value)}, srcDst, len.count);
    return StatusOk;
}

// A value of 0 copies, so that -0 stays -0.
Status AddC_64f(const double* src, double value, double* dst, Length len)
{
    if (const Status bad = check_vector(len, src, dst)) return bad;
    const FloatControl control;
    if (is_zero_bits<double>(bits_of(value))) {
        Unchanged op;
        run(src, value, dst, len, op);
        return StatusOk;
    }
    FloatSum<double> op;
    run(src, value, dst, len, op);
    return StatusOk;
}

// --- Kernels --------------------------------------------------------------------------------------

TWO_VECTORS(Add_32f, two_vectors<FloatSum<float>>, float)
TWO_VECTORS(Sub_32f, two_vectors<FloatDifference<float>>, float)
TWO_VECTORS(Mul_32f, two_vectors<FloatProduct<float>>, float)
TWO_VECTORS(Div_32f, division, float)
VECTOR_AND_CONSTANT(AddC_32f, constant<FloatSum<float>>, float)
VECTOR_AND_CONSTANT(SubC_32f, constant<FloatDifference<float>>, float)
VECTOR_AND_CONSTANT(SubCRev_32f, constant<Reversed<FloatDifference<float>>>, float)
VECTOR_AND_CONSTANT(MulC_32f, constant<FloatProduct<float>>, float)
VECTOR_AND_CONSTANT(DivC_32f, division_by_constant, float)

TWO_VECTORS(Add_64f, two_vectors<FloatSum<double>>, double)
TWO_VECTORS(Mul_64f, two_vectors<FloatProduct<double>>, double)
TWO_VECTORS(Div_64f, division, double)
VECTOR_AND_CONSTANT(MulC_64f, constant<FloatProduct<double>>, double)
VECTOR_AND_CONSTANT(DivC_64f, division_by_constant, double)

Status DivCRev_32f(const float* src, float value, float* dst, Length len)
{
    if (const Status bad = check_vector(len, src, dst)) return bad;
    const FloatControl control;
    Reversed<FloatQuotient<float>> op;
    run(src, value, dst, len, op);
    return op.zeros ? StatusDivideByZero : StatusOk;
}

}  // namespace ORV_LEVEL
}  // namespace float_vectors
}  // namespace orv
