#include "signal/spectra.h"

#include <cstdint>

#include "core/checks.h"
#include "core/float_control.h"
#include "elementwise/complex_arithmetic.h"
#include "elementwise/float_arithmetic.h"
#include "elementwise/magnitudes.h"
#include "elementwise/windows.h"
#include "simd/interleaved.h"

namespace orv {
namespace spectra {
namespace ORV_LEVEL {
namespace {

using std::uint32_t;

// --- Products of packed spectra -------------------------------------------------------------------
//
// n reals hold a spectrum: Re X[0], then Re and Im of X[1], X[2], ..., and for even n Re X[n/2] at the end.

template <class Op>
void multiply_packed(const float* a, const float* b, float* dst, std::ptrdiff_t n)
{
    const FloatControl control;
    Op op;
    multiply_reals(a, b, dst);
    if (n % 2 == 0) multiply_reals(a + n - 1, b + n - 1, dst + n - 1);
    complex_row(ComplexVector{a + 1}, ComplexVector{b + 1}, dst + 1, (n - 1) / 2, op);
}

// --- Hamming window ---------------------------------------------------------------------------------

// The middle one of an odd number of elements has the weight 1: its bits are copied.
void hamming(const float* src, float* dst, std::ptrdiff_t n)
{
    for_hamming_weights(static_cast<int>(n), [=](int k, double weight) {
        const std::ptrdiff_t twin = n - 1 - k;
        if (k == twin)
            return put(reinterpret_cast<std::uint32_t*>(dst + k), get(reinterpret_cast<const std::uint32_t*>(src + k)));
        weigh(src + k, dst + k, weight);
        weigh(src + twin, dst + twin, weight);
    });
}

}  // namespace

// --- Kernels --------------------------------------------------------------------------------------

Status MulPack_32f(const float* src1, const float* src2, float* dst, Length len)
{
    if (const Status bad = check_vector(len, src1, src2, dst)) return bad;
    multiply_packed<ComplexProduct>(src1, src2, dst, len.count);
    return StatusOk;
}

// src times the conjugate of srcDst: of the operand that is updated, not of the other one.
Status MulPackConj_32f(const float* src, float* srcDst, Length len)
{
    if (const Status bad = check_vector(len, src, srcDst)) return bad;
    multiply_packed<ComplexProductConjugate>(src, srcDst, srcDst, len.count);
    return StatusOk;
}

Status Magnitude_32f(const float* re, const float* im, float* dst, Length len)
{
    if (const Status bad = check_vector(len, re, im, dst)) return bad;
    const FloatControl control;
    magnitudes(re, im, dst, len.count);
    return StatusOk;
}

// Either part may be missing, and is 0 then. Bits are moved as they are.
Status RealToCplx_32f(const float* re, const float* im, Complex32f* dst, Length len)
{
    if ((re == nullptr && im == nullptr) || dst == nullptr) return StatusNullPointer;
    if (len.count < 1) return StatusBadSize;
    const std::ptrdiff_t n = len.count;
    const uint32_t* const real = reinterpret_cast<const uint32_t*>(re);
    const uint32_t* const imaginary = reinterpret_cast<const uint32_t*>(im);
    uint32_t* const parts = reinterpret_cast<uint32_t*>(dst);
    std::ptrdiff_t i = 0;
    if constexpr (ORV_HAVE_VECTORS) {
        using V = simd::widest<float>;
        const auto load = [](const float* p, std::ptrdiff_t k) {
            return p != nullptr ? simd::load<V>(p + k) : simd::zero<V>();
        };
        float* const to = reinterpret_cast<float*>(dst);
        for (; i + V::N <= n; i += V::N) {
            simd::interleaved<V>::store(to + 2 * i, {load(re, i), load(im, i)});
        }
    }
    for (; i < n; ++i) {
        put(parts + 2 * i, real != nullptr ? get(real + i) : 0);
        put(parts + 2 * i + 1, imaginary != nullptr ? get(imaginary + i) : 0);
    }
    return StatusOk;
}

Status WinHamming_32f(const float* src, float* dst, Length len)
{
    if (any_null(src, dst)) return StatusNullPointer;
    if (len.count < 3) return StatusBadSize;
    const FloatControl control;
    hamming(src, dst, len.count);
    return StatusOk;
}

}  // namespace ORV_LEVEL
}  // namespace spectra
}  // namespace orv
