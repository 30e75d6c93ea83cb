#include "signal/integer_vectors.h"

#include <cstdint>

#include "core/checks.h"
#include "core/float_control.h"
#include "elementwise/forms.h"
#include "elementwise/quotients.h"
#include "elementwise/rows.h"
#include "elementwise/scaled_arithmetic.h"
#include "signal/scaled_words.h"

namespace orv {
namespace integer_vectors {
namespace ORV_LEVEL {
namespace {

using std::int32_t;
using std::uint16_t;
using std::uint8_t;

// --- Loops ----------------------------------------------------------------------------------------
//
// A vector is an image of one row.

template <class T, class Op>
void run(const T* src1, const T* src2, T* dst, Length len, Op& op)
{
    plane(src1, 0, src2, 0, dst, 0, {len.count, 1}, 1, op);
}
template <class T, class Op>
void run(const T* src, T value, T* dst, Length len, Op& op)
{
    constant_plane(&value, src, 0, dst, 0, {len.count, 1}, 1, op);
}

template <template <class> class Kind, class T, class Loop>
void with_kind(int scaleFactor, Loop loop)
{
    if constexpr (sizeof(T) < 4) {
        with_scaling<T, Kind<T>>(scaleFactor, loop);
    } else if constexpr (std::is_same<Kind<T>, Product<T>>::value) {
        const FloatControl control;
        with_scaled_product(scaleFactor, loop);
    } else {
        const FloatControl control;
        with_scaled_words<Kind<T>>(scaleFactor, loop);
    }
}

template <template <class> class Kind, class T>
Status arithmetic(const T* src1, const T* src2, T* dst, Length len, int scaleFactor)
{
    if (const Status bad = check_vector(len, src1, src2, dst)) return bad;
    with_kind<Kind, T>(scaleFactor, [&](auto op) { run(src1, src2, dst, len, op); });
    return StatusOk;
}

template <template <class> class Kind, class T>
Status arithmetic_constant(const T* src, T value, T* dst, Length len, int scaleFactor)
{
    if (const Status bad = check_vector(len, src, dst)) return bad;
    with_kind<Kind, T>(scaleFactor, [&](auto op) { run(src, value, dst, len, op); });
    return StatusOk;
}

template <class T>
Status value_minus_vector(const T* src, T value, T* dst, Length len, int scaleFactor)
{
    if (const Status bad = check_vector(len, src, dst)) return bad;
    with_kind<Difference, T>(scaleFactor, [&](auto op) {
        Reversed<decltype(op)> reversed{op};
        run(src, value, dst, len, reversed);
    });
    return StatusOk;
}

template <class T>
Status division(const T* src1, const T* src2, T* dst, Length len, int scaleFactor)
{
    if (const Status bad = check_vector(len, src1, src2, dst)) return bad;
    return with_quotient<T, Rounding::half_even>(scaleFactor, [&](auto& op) { run(src1, src2, dst, len, op); });
}

template <class T>
Status division_by_constant(const T* src, T value, T* dst, Length len, int scaleFactor)
{
    if (const Status bad = check_vector(len, src, dst)) return bad;
    return with_quotient<T, Rounding::half_even, Divisors::constant>(scaleFactor,
                                                                     [&](auto& op) { run(src, value, dst, len, op); });
}

}  // namespace

Status Div_32s(const int32_t* src1, const int32_t* src2, int32_t* dst, Length len, int scaleFactor)
{
    if (const Status bad = check_vector(len, src1, src2, dst)) return bad;
    const FloatControl control;
    WordQuotient op(scaleFactor);
    if (scaleFactor >= -WordQuotient::kMostBitsUp) {
        run(src1, src2, dst, len, op);
    } else {
        for (int i = 0; i < len.count; ++i) put(dst + i, op.one(get(src1 + i), get(src2 + i)));
    }
    return op.zeros ? StatusDivideByZero : StatusOk;
}

// Alone among the vector divisions, this one rounds in fixed point and has no scale factor.
Status DivCRev_16u(const uint16_t* src, uint16_t value, uint16_t* dst, Length len)
{
    if (const Status bad = check_vector(len, src, dst)) return bad;
    Status status = StatusOk;
    with_quotient<uint16_t, Rounding::fixed_point>(0, [&](auto& op) {
        Reversed<typename std::remove_reference<decltype(op)>::type> reversed{op};
        run(src, value, dst, len, reversed);
        if (reversed.zeros) status = StatusDivideByZero;
    });
    return status;
}

// --- Kernels --------------------------------------------------------------------------------------

TWO_VECTORS(Add_8u, arithmetic<Sum>, uint8_t, int)
TWO_VECTORS(Sub_8u, arithmetic<Difference>, uint8_t, int)
TWO_VECTORS(Mul_8u, arithmetic<Product>, uint8_t, int)
TWO_VECTORS(Div_8u, division, uint8_t, int)
VECTOR_AND_CONSTANT(AddC_8u, arithmetic_constant<Sum>, uint8_t, int)
VECTOR_AND_CONSTANT(SubC_8u, arithmetic_constant<Difference>, uint8_t, int)
VECTOR_AND_CONSTANT(SubCRev_8u, value_minus_vector, uint8_t, int)
VECTOR_AND_CONSTANT(MulC_8u, arithmetic_constant<Product>, uint8_t, int)
VECTOR_AND_CONSTANT(DivC_8u, division_by_constant, uint8_t, int)

TWO_VECTORS(Add_16u, arithmetic<Sum>, uint16_t, int)
TWO_VECTORS(Sub_16u, arithmetic<Difference>, uint16_t, int)
TWO_VECTORS(Mul_16u, arithmetic<Product>, uint16_t, int)
TWO_VECTORS(Div_16u, division, uint16_t, int)
VECTOR_AND_CONSTANT(AddC_16u, arithmetic_constant<Sum>, uint16_t, int)
VECTOR_AND_CONSTANT(SubC_16u, arithmetic_constant<Difference>, uint16_t, int)
VECTOR_AND_CONSTANT(SubCRev_16u, value_minus_vector, uint16_t, int)
VECTOR_AND_CONSTANT(MulC_16u, arithmetic_constant<Product>, uint16_t, int)
VECTOR_AND_CONSTANT(DivC_16u, division_by_constant, uint16_t, int)

TWO_VECTORS(Add_32s, arithmetic<Sum>, int32_t, int)
TWO_VECTORS(Sub_32s, arithmetic<Difference>, int32_t, int)
TWO_VECTORS(Mul_32s, arithmetic<Product>, int32_t, int)
VECTOR_AND_CONSTANT(AddC_32s, arithmetic_constant<Sum>, int32_t, int)
VECTOR_AND_CONSTANT(SubC_32s, arithmetic_constant<Difference>, int32_t, int)
VECTOR_AND_CONSTANT(SubCRev_32s, value_minus_vector, int32_t, int)
VECTOR_AND_CONSTANT(MulC_32s, arithmetic_constant<Product>, int32_t, int)

}  // namespace ORV_LEVEL
}  // namespace integer_vectors
}  // namespace orv
