#include "signal/spectra.h"

#include <cstdint>

#include "core/checks.h"
#include "elementwise/complex_arithmetic.h"
#include "elementwise/float_arithmetic.h"
#include "core/float_control.h"
#include "math/quick_hypotenuse.h"

namespace orv {
namespace spectra {
namespace ORV_LEVEL {
namespace {

using std::uint32_t;

// --- Products of packed spectra -------------------------------------------------------------------
//
// n reals hold a spectrum: Re X[0], then Re and Im of X[1], X[2], ..., and for even n Re X[n/2] at the end.

ORV_INLINE void multiply_reals(const float* a, const float* b, float* dst)
{
    const double product = static_cast<double>(get(a)) * static_cast<double>(get(b));
    put(reinterpret_cast<uint32_t*>(dst), stored(product));
}

template <class Op>
void multiply_packed(const float* a, const float* b, float* dst, std::ptrdiff_t n)
{
    const FloatControl control;
    Op op;
    multiply_reals(a, b, dst);
    if (n % 2 == 0) multiply_reals(a + n - 1, b + n - 1, dst + n - 1);
    complex_row(ComplexVector{a + 1}, ComplexVector{b + 1}, dst + 1, (n - 1) / 2, op);
}

// --- Magnitude --------------------------------------------------------------------------------------

ORV_INLINE double root_of_squares(double re, double im)
{
    return __builtin_sqrt(rounded(rounded(re * re) + rounded(im * im)));
}

#if ORV_HAVE_VECTORS
using F = simd::widest<float>;

// For few values or, where there is no quicker way, for all.
#if ORV_HAVE_FUSED
__attribute__((noinline))
#else
ORV_INLINE
#endif
F magnitude_in_double(const float* re, const float* im)
{
    simd::twice<simd::widest<double>> x, y;
    simd::load_to(x, re);
    simd::load_to(y, im);
    x.lo = simd::sqrt(simd::add_exact_product(x.lo, x.lo, y.lo * y.lo));
    x.hi = simd::sqrt(simd::add_exact_product(x.hi, x.hi, y.hi * y.hi));
    const F result = simd::to_float(x);
    const simd::mask_of<F> nan = simd::unordered(result, result);
    if (__builtin_expect(!simd::any(nan), true)) return result;
    return simd::select(nan, simd::splat<F>(value_of<float>(Bits<float>::kNan)), result);
}

ORV_INLINE F magnitude(const float* re, const float* im)
{
    floats quick;
    if (quick_magnitude(re, im, &quick)) return {quick.v};
    return magnitude_in_double(re, im);
}
#endif

// --- Hamming window ---------------------------------------------------------------------------------

// cos(2 pi / n), n >= 2, correctly rounded but for a few cases in a thousand. From n = 9 on the angle is
// below pi/4: the Taylor polynomial of degree 16, with the square of the angle in two doubles (by splitting
// the angle in halves of 26 bits), so that only the last sum rounds.
double cosine_of_step(int n)
{
    static const double small[9] = {0, 0, -1, -0x1.ffffffffffffcp-2, 0x1.1a62633145c07p-54, 0x1.3c6ef372fe950p-2,
                                    0x1.0000000000001p-1, 0x1.3f3a0e28bedd2p-1, 0x1.6a09e667f3bcdp-1};
    if (n < 9) return small[n];
    const double x = rounded(6.283185307179586 / n);
    const double split = rounded(x * 134217729.0);
    const double high = rounded(split - rounded(split - x));
    const double low = rounded(x - high);
    const double square = rounded(x * x);
    const double square_low = rounded(rounded(rounded(rounded(high * high) - square) + rounded(2 * high * low)) + rounded(low * low));
    // cos x = 1 - x^2/2 + x^4 (1/4! - x^2/6! + ...)
    double tail = 1.0 / 20922789888000.0;
    static const double coefficients[] = {-1.0 / 87178291200.0, 1.0 / 479001600.0, -1.0 / 3628800.0,
                                          1.0 / 40320.0,        -1.0 / 720.0,      1.0 / 24.0};
    for (const double c : coefficients) tail = rounded(rounded(tail * square) + c);
    const double half = 0.5 * square;
    const double main = rounded(1.0 - half);
    const double lost = rounded(rounded(1.0 - main) - half);
    const double fourth = rounded(rounded(square * square) * tail);
    return rounded(main + rounded(rounded(lost - 0.5 * square_low) + fourth));
}

ORV_INLINE void weigh(const float* src, float* dst, double weight)
{
    // A NaN keeps its bits but becomes quiet.
    const uint32_t bits = get(reinterpret_cast<const uint32_t*>(src));
    uint32_t* const to = reinterpret_cast<uint32_t*>(dst);
    const float product = rounded(static_cast<float>(rounded(static_cast<double>(value_of<float>(bits)) * weight)));
    put(to, is_nan_bits<float>(bits) ? bits | Bits<float>::kQuiet : bits_of<float>(product));
}

// The cosines come from a rotation, each from the one before it; so does their rounding, and no other order
// of evaluation gives the same bits.
void hamming(const float* src, float* dst, std::ptrdiff_t n)
{
    const double c = cosine_of_step(static_cast<int>(n) - 1);
    const double s = rounded(__builtin_sqrt(rounded(1.0 - rounded(c * c))));
    double cosine = 1, sine = 0;
    std::ptrdiff_t k = 0;
    for (; k < (n - 1) / 2; ++k) {
        const double weight = rounded(0.54 - rounded(0.46 * cosine));
        weigh(src + k, dst + k, weight);
        weigh(src + n - 1 - k, dst + n - 1 - k, weight);
        const double next = rounded(rounded(c * cosine) - rounded(s * sine));
        sine = rounded(rounded(sine * c) + rounded(cosine * s));
        cosine = next;
    }
    if (n % 2 == 0) {
        const double weight = rounded(0.54 - rounded(0.46 * cosine));
        weigh(src + k, dst + k, weight);
        weigh(src + k + 1, dst + k + 1, weight);
    } else {
        put(reinterpret_cast<uint32_t*>(dst + k), get(reinterpret_cast<const uint32_t*>(src + k)));
    }
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
    const std::ptrdiff_t n = len.count;
    std::ptrdiff_t i = 0;
#if ORV_HAVE_VECTORS
    if (n >= F::N) {
        full_vectors<F::N>(
            n, [=](std::ptrdiff_t k) { return magnitude(re + k, im + k); },
            [=](std::ptrdiff_t k, F v) { simd::store(dst + k, v); });
        return StatusOk;
    }
#endif
    for (; i < n; ++i) {
        const double root = root_of_squares(static_cast<double>(get(re + i)), static_cast<double>(get(im + i)));
        put(reinterpret_cast<uint32_t*>(dst + i), stored(root));
    }
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
#if ORV_HAVE_VECTORS
    using V = simd::half<uint32_t>;
    const auto load = [](const uint32_t* p, std::ptrdiff_t k) { return p != nullptr ? simd::load<V>(p + k).v : _mm_setzero_si128(); };
    for (; i + V::N <= n; i += V::N) {
        const __m128i a = load(real, i), b = load(imaginary, i);
        simd::store(parts + 2 * i, V{_mm_unpacklo_epi32(a, b)});
        simd::store(parts + 2 * i + V::N, V{_mm_unpackhi_epi32(a, b)});
    }
#endif
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
