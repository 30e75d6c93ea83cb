#include "signal/integer_vectors.h"

#include <cstdint>

#include "core/checks.h"
#include "core/float_control.h"
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
    return with_quotient<T, Rounding::half_even, Divisors::constant>(scaleFactor, [&](auto& op) { run(src, value, dst, len, op); });
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

#define TWO_VECTORS(name, T, ...)                                                            \
    Status name(const T* src1, const T* src2, T* dst, Length len, int scaleFactor)           \
    {                                                                                        \
        return __VA_ARGS__(src1, src2, dst, len, scaleFactor);                               \
    }
#define CONSTANT(name, T, ...)                                                               \
    Status name(const T* src, T value, T* dst, Length len, int scaleFactor)                  \
    {                                                                                        \
        return __VA_ARGS__(src, value, dst, len, scaleFactor);                               \
    }

TWO_VECTORS(Add_8u, uint8_t, arithmetic<Sum>)
TWO_VECTORS(Sub_8u, uint8_t, arithmetic<Difference>)
TWO_VECTORS(Mul_8u, uint8_t, arithmetic<Product>)
TWO_VECTORS(Div_8u, uint8_t, division)
CONSTANT(AddC_8u, uint8_t, arithmetic_constant<Sum>)
CONSTANT(SubC_8u, uint8_t, arithmetic_constant<Difference>)
CONSTANT(SubCRev_8u, uint8_t, value_minus_vector)
CONSTANT(MulC_8u, uint8_t, arithmetic_constant<Product>)
CONSTANT(DivC_8u, uint8_t, division_by_constant)

TWO_VECTORS(Add_16u, uint16_t, arithmetic<Sum>)
TWO_VECTORS(Sub_16u, uint16_t, arithmetic<Difference>)
TWO_VECTORS(Mul_16u, uint16_t, arithmetic<Product>)
TWO_VECTORS(Div_16u, uint16_t, division)
CONSTANT(AddC_16u, uint16_t, arithmetic_constant<Sum>)
CONSTANT(SubC_16u, uint16_t, arithmetic_constant<Difference>)
CONSTANT(SubCRev_16u, uint16_t, value_minus_vector)
CONSTANT(MulC_16u, uint16_t, arithmetic_constant<Product>)
CONSTANT(DivC_16u, uint16_t, division_by_constant)

TWO_VECTORS(Add_32s, int32_t, arithmetic<Sum>)
TWO_VECTORS(Sub_32s, int32_t, arithmetic<Difference>)
TWO_VECTORS(Mul_32s, int32_t, arithmetic<Product>)
CONSTANT(AddC_32s, int32_t, arithmetic_constant<Sum>)
CONSTANT(SubC_32s, int32_t, arithmetic_constant<Difference>)
CONSTANT(SubCRev_32s, int32_t, value_minus_vector)
CONSTANT(MulC_32s, int32_t, arithmetic_constant<Product>)

}  // namespace ORV_LEVEL
}  // namespace integer_vectors
}  // namespace orv
