// The numbers that the float filters compute with: floats, one or a vector of them, and as many doubles, widened
// from floats and rounded back to them. The same names serve one and many: a filter is written once.
#pragma once

#include <cstdint>

#include "core/checks.h"
#include "core/float_control.h"
#include "core/nan.h"
#include "simd/vec.h"

namespace orv {
inline namespace ORV_LEVEL {

// --- One ------------------------------------------------------------------------------------------

template <class D> struct doubles;  // how a D is loaded

template <>
struct doubles<double> {
    static ORV_INLINE double widen(const float* p) { return static_cast<double>(get(p)); }
    static ORV_INLINE double load(const double* p) { return *p; }
};
ORV_INLINE void store(double* p, double a) { *p = a; }
ORV_INLINE double to_single(double a) { return static_cast<double>(rounded(static_cast<float>(a))); }
ORV_INLINE double times(double a, double k) { return a * k; }

// a * k + b where the product has no rounding to lose: k is a small integer and a was a float, or a few
// of them.
ORV_INLINE double exact_product_plus(double a, double k, double b) { return a * k + b; }

// Which of several NaNs survives an addition is a matter of the operands' order, which compilers choose
// freely. A result that is a NaN is therefore the one with all bits set.
ORV_INLINE void store_result(float* p, float value)
{
    std::uint32_t bits;
    __builtin_memcpy(&bits, &value, sizeof(bits));
    if ((bits & 0x7FFFFFFFu) > 0x7F800000u) bits = kNanOfOnes;
    __builtin_memcpy(p, &bits, sizeof(bits));
}
ORV_INLINE void store_result(float* p, double value) { store_result(p, rounded(static_cast<float>(value))); }

// One float, with the operators of a vector; on the x87 they round. (That a double may come between
// the operation and the rounding does not matter: it has more than twice the digits.)
struct Single {
    float v;
};
ORV_INLINE Single operator+(Single a, Single b) { return {rounded(a.v + b.v)}; }
ORV_INLINE Single operator-(Single a, Single b) { return {rounded(a.v - b.v)}; }
ORV_INLINE void store_result(float* p, Single a) { store_result(p, a.v); }
ORV_INLINE void store_floats(float* p, Single a) { put(p, a.v); }

template <class F> struct floats;
template <>
struct floats<Single> {
    static ORV_INLINE Single load(const float* p) { return {get(p)}; }
};

// --- Many -----------------------------------------------------------------------------------------

#if ORV_HAVE_VECTORS
using Floats = simd::widest<float>;
using DoubleVector = simd::widest<double>;
using Doubles = simd::twice<DoubleVector>;

ORV_INLINE void store_result(float* p, Floats r) { simd::store(p, r | simd::unordered(r, r)); }
ORV_INLINE void store_floats(float* p, Floats a) { simd::store(p, a); }
template <>
struct floats<Floats> {
    static ORV_INLINE Floats load(const float* p) { return simd::load<Floats>(p); }
};

template <>
struct doubles<Doubles> {
    static ORV_INLINE Doubles widen(const float* p)
    {
        Doubles r;
        simd::load_to(r, p);
        return r;
    }
    static ORV_INLINE Doubles load(const double* p)
    {
        Doubles r;
        simd::load_to(r, p);
        return r;
    }
};
ORV_INLINE Doubles times(Doubles a, double k) { return a * simd::splat<DoubleVector>(k); }
ORV_INLINE Doubles exact_product_plus(Doubles a, double k, Doubles b)
{
    return simd::add_exact_product(a, simd::splat<DoubleVector>(k), b);
}
ORV_INLINE void store_result(float* p, Doubles a) { store_result(p, simd::to_float(a)); }

// In the place of doubles where every step is exact in single precision: floats that are whole numbers
// and small. The one rounding that is left, of the product with a single-precision factor, is the same.
struct WholeFloats {
    Floats v;
};
ORV_INLINE WholeFloats operator+(WholeFloats a, WholeFloats b) { return {a.v + b.v}; }
ORV_INLINE WholeFloats operator-(WholeFloats a, WholeFloats b) { return {a.v - b.v}; }
ORV_INLINE WholeFloats times(WholeFloats a, double k) { return {a.v * simd::splat<Floats>(static_cast<float>(k))}; }
ORV_INLINE WholeFloats exact_product_plus(WholeFloats a, double k, WholeFloats b) { return times(a, k) + b; }
ORV_INLINE WholeFloats to_single(WholeFloats a) { return a; }
template <>
struct doubles<WholeFloats> {
    static ORV_INLINE WholeFloats widen(const float* p) { return {simd::load<Floats>(p)}; }
    static ORV_INLINE WholeFloats load(const float* p) { return widen(p); }
};
ORV_INLINE void store(float* p, WholeFloats a) { simd::store(p, a.v); }
ORV_INLINE void store_result(float* p, WholeFloats a) { simd::store(p, a.v); }

// Are n floats, a vector or more, whole numbers from -2^17 to 2^17? That is what 16-bit images are, and 88 of
// them still have a sum below 2^24.
ORV_INLINE bool all_whole(const float* p, std::ptrdiff_t n)
{
    ORV_ASSERT(n >= Floats::N);
    const Floats unit = simd::splat<Floats>(12582912.0f);  // 1.5 * 2^23: sums with it have no fraction
    const Floats zero = simd::zero<Floats>();
    const simd::mask_of<Floats> all = simd::equal(zero, zero);
    simd::mask_of<Floats> whole = all;
    Floats most = zero, least = zero;
    for (std::ptrdiff_t i = 0;; i = i + 2 * Floats::N <= n ? i + Floats::N : n - Floats::N) {
        const Floats x = simd::load<Floats>(p + i);
        most = simd::max(x, most);
        least = simd::min(x, least);
        whole = whole & simd::equal((x + unit) - unit, x);  // false for a NaN
        if (i == n - Floats::N) break;
    }
    const Floats bound = simd::splat<Floats>(131072.0f);
    return !simd::any(simd::greater(most, bound) | simd::greater(zero - bound, least) | (whole ^ all));
}

using ManyFloats = Floats;
using ManyDoubles = Doubles;
constexpr int kFloatLanes = Floats::N;
#else
using ManyFloats = Single;
using ManyDoubles = double;
constexpr int kFloatLanes = 1;
#endif

}  // namespace ORV_LEVEL
}  // namespace orv
