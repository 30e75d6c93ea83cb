#include "image/arithmetic/complex_arithmetic.h"

#include "core/checks.h"
#include "core/float_control.h"
#include "core/overlap.h"
#include "elementwise/complex_arithmetic.h"
#include "elementwise/forms.h"
#include "elementwise/rows.h"

namespace orv {
namespace complex_arithmetic {
namespace ORV_LEVEL {
namespace {

// Sums and differences are those of the parts: of a float image with two channels.
template <class T> const float* parts(const T* p) { return reinterpret_cast<const float*>(p); }
template <class T> float* parts(T* p) { return reinterpret_cast<float*>(p); }

template <class Op, class Self>
ORV_INLINE Status by_parts(Self self, const Complex32f* src1, int src1Step, const Complex32f* src2, int src2Step,
                           Complex32f* dst, int dstStep, Size roi, int)
{
    if (const Status bad = check_image(roi, src1, src2, dst)) return bad;
    if (may_overlap<kReadAtOnce>(roi, 1, src1, src1Step, src2, src2Step, dst, dstStep)) {
        return by_rows(self, 1, src1, src1Step, src2, src2Step, dst, dstStep, roi);
    }
    const FloatControl control;
    Op op;
    plane(lanes(parts(src1)), src1Step, lanes(parts(src2)), src2Step, lanes(parts(dst)), dstStep, roi, 2, op);
    return StatusOk;
}

template <class Op, class Self>
ORV_INLINE Status constant_by_parts(Self self, const Complex32f* src, int srcStep, const Complex32f* value,
                                    Complex32f* dst, int dstStep, Size roi, int)
{
    if (const Status bad = check_image(roi, src, dst)) return bad;
    if (may_overlap<kReadAtOnce>(roi, 1, src, srcStep, dst, dstStep)) {
        return by_rows(self, 1, src, srcStep, value, dst, dstStep, roi);
    }
    const FloatControl control;
    Op op;
    constant_plane(lanes(parts(value)), lanes(parts(src)), srcStep, lanes(parts(dst)), dstStep, roi, 2, op);
    return StatusOk;
}

template <class Op>
void complex_plane(const Complex32f* src1, int src1Step, const Complex32f* src2, int src2Step, Complex32f* dst,
                   int dstStep, Size roi, Op& op)
{
    const Rows rows(roi, 1, sizeof(Complex32f), src1Step, src2Step, dstStep);
    Op local = op;
    for (int y = 0; y < rows.count; ++y) {
        complex_row(ComplexVector{parts(row_at(src1, src1Step, y))}, ComplexVector{parts(row_at(src2, src2Step, y))},
                    parts(row_at(dst, dstStep, y)), rows.n, local);
    }
    op = local;
}

ORV_INLINE Status status_of(const ComplexProduct&) { return StatusOk; }
ORV_INLINE Status status_of(const ComplexQuotient& op) { return op.zeros ? StatusDivideByZero : StatusOk; }

template <class Op, class Self>
ORV_INLINE Status by_values(Self self, const Complex32f* src1, int src1Step, const Complex32f* src2, int src2Step,
                            Complex32f* dst, int dstStep, Size roi, int)
{
    if (const Status bad = check_image(roi, src1, src2, dst)) return bad;
    if (may_overlap(roi, 1, src1, src1Step, src2, src2Step, dst, dstStep)) {
        return by_rows(self, 1, src1, src1Step, src2, src2Step, dst, dstStep, roi);
    }
    const FloatControl control;
    Op op;
    complex_plane(src1, src1Step, src2, src2Step, dst, dstStep, roi, op);
    return status_of(op);
}

void multiply(const Complex32f* src, int srcStep, Complex32f value, Complex32f* dst, int dstStep, Size roi)
{
    const Rows rows(roi, 1, sizeof(Complex32f), srcStep, dstStep);
    const ComplexConstant factor = {{static_cast<double>(value.re), static_cast<double>(value.im)}};
    ComplexProduct op;
    for (int y = 0; y < rows.count; ++y) {
        complex_row(factor, ComplexVector{parts(row_at(src, srcStep, y))}, parts(row_at(dst, dstStep, y)), rows.n, op);
    }
}

}  // namespace

TWO_IMAGES(Add_32fc_C1, by_parts<FloatSum<float>>, Complex32f, Complex32f, 1)
TWO_IMAGES(Sub_32fc_C1, by_parts<FloatDifference<float>>, Complex32f, Complex32f, 1)
ONE_CONSTANT(AddC_32fc_C1, constant_by_parts<FloatSum<float>>, Complex32f, Complex32f, Complex32f, 1)
ONE_CONSTANT(SubC_32fc_C1, constant_by_parts<FloatDifference<float>>, Complex32f, Complex32f, Complex32f, 1)

TWO_IMAGES(Mul_32fc_C1, by_values<ComplexProduct>, Complex32f, Complex32f, 1)
TWO_IMAGES(Div_32fc_C1, by_values<ComplexQuotient>, Complex32f, Complex32f, 1)

Status MulC_32fc_C1(const Complex32f* src, int srcStep, Complex32f value, Complex32f* dst, int dstStep, Size roi)
{
    if (const Status bad = check_image(roi, src, dst)) return bad;
    if (may_overlap(roi, 1, src, srcStep, dst, dstStep)) {
        return by_rows(MulC_32fc_C1, 1, src, srcStep, value, dst, dstStep, roi);
    }
    const FloatControl control;
    multiply(src, srcStep, value, dst, dstStep, roi);
    return StatusOk;
}

// Multiplication by the reciprocal of the value, itself rounded to float.
Status DivC_32fc_C1(const Complex32f* src, int srcStep, Complex32f value, Complex32f* dst, int dstStep, Size roi)
{
    if (const Status bad = check_image(roi, src, dst)) return bad;
    if (may_overlap(roi, 1, src, srcStep, dst, dstStep)) {
        return by_rows(DivC_32fc_C1, 1, src, srcStep, value, dst, dstStep, roi);
    }
    const FloatControl control;
    const double p = static_cast<double>(value.re), q = static_cast<double>(value.im);
    const double m = rounded(rounded(p * p) + rounded(q * q));
    if (m == 0) return StatusDivideByZeroError;
    const double r = rounded(1.0 / m);
    const Complex32f inverse = {rounded(static_cast<float>(rounded(p * r))),
                                rounded(static_cast<float>(rounded(-q * r)))};
    multiply(src, srcStep, inverse, dst, dstStep, roi);
    return StatusOk;
}

}  // namespace ORV_LEVEL
}  // namespace complex_arithmetic
}  // namespace orv
