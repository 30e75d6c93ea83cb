// Numbers as the float filters want them: floats, one or a vector of them, and as many doubles, widened
// from floats and rounded back to them. The same names serve one and many: a filter is written once.
#pragma once

#include <cstdint>

#include "core/checks.h"
#include "core/float_control.h"
#include "core/simd/vec.h"

namespace orv {
inline namespace ORV_LEVEL {

// --- One ------------------------------------------------------------------------------------------

template <class D> struct doubles;  // how a D is loaded

template <>
struct doubles<double> {
    static constexpr int N = 1;
    static ORV_INLINE double widen(const float* p) { return static_cast<double>(get(p)); }
    static ORV_INLINE double load(const double* p) { return *p; }
    // The sum and the difference of two floats as a float. Rounding them to double first would not change
    // it: a double has more than twice the bits and two more.
    static ORV_INLINE double float_sum(const float* a, const float* b)
    {
        return static_cast<double>(rounded(get(a) + get(b)));
    }
};
ORV_INLINE void store(double* p, double a) { *p = a; }
ORV_INLINE double to_single(double a) { return static_cast<double>(rounded(static_cast<float>(a))); }

// Which of several NaNs survives an addition is a matter of the operands' order, which compilers choose
// freely. A result that is a NaN is therefore the one with all bits set.
ORV_INLINE void store_result(float* p, float value)
{
    std::uint32_t bits;
    __builtin_memcpy(&bits, &value, sizeof(bits));
    if ((bits & 0x7FFFFFFFu) > 0x7F800000u) bits = 0xFFFFFFFFu;
    __builtin_memcpy(p, &bits, sizeof(bits));
}
ORV_INLINE void store_result(float* p, double value) { store_result(p, rounded(static_cast<float>(value))); }

// One float, with the operators of a vector; on the x87 they round.
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
#if ORV_HAVE_FLOAT256
#define ORV_PD(op) _mm256_##op
using DoubleRegister = simd::double256;
#else
#define ORV_PD(op) _mm_##op
using DoubleRegister = simd::double128;
#endif
using Floats = simd::widest<float>;

ORV_INLINE void store_result(float* p, Floats r)
{
#if ORV_HAVE_FLOAT256
    const Floats is_nan = {_mm256_cmp_ps(r.v, r.v, _CMP_UNORD_Q)};
#else
    const Floats is_nan = {_mm_cmpunord_ps(r.v, r.v)};
#endif
    simd::store(p, r | is_nan);
}

ORV_INLINE void store_floats(float* p, Floats a) { simd::store(p, a); }
template <>
struct floats<Floats> {
    static ORV_INLINE Floats load(const float* p) { return simd::load<Floats>(p); }
};

struct Doubles {
    DoubleRegister::type lo, hi;
};
ORV_INLINE Doubles operator+(Doubles a, Doubles b) { return {ORV_PD(add_pd)(a.lo, b.lo), ORV_PD(add_pd)(a.hi, b.hi)}; }
ORV_INLINE Doubles operator-(Doubles a, Doubles b) { return {ORV_PD(sub_pd)(a.lo, b.lo), ORV_PD(sub_pd)(a.hi, b.hi)}; }
ORV_INLINE Doubles operator*(Doubles a, double b)
{
    const DoubleRegister::type factor = ORV_PD(set1_pd)(b);
    return {ORV_PD(mul_pd)(a.lo, factor), ORV_PD(mul_pd)(a.hi, factor)};
}

#if ORV_HAVE_FLOAT256
ORV_INLINE Doubles widen(Floats a)
{
    return {_mm256_cvtps_pd(_mm256_castps256_ps128(a.v)), _mm256_cvtps_pd(_mm256_extractf128_ps(a.v, 1))};
}
ORV_INLINE Floats narrow(Doubles a)
{
    return {_mm256_insertf128_ps(_mm256_castps128_ps256(_mm256_cvtpd_ps(a.lo)), _mm256_cvtpd_ps(a.hi), 1)};
}
// Narrowing and widening again keeps each half where it is.
ORV_INLINE Doubles to_single(Doubles a)
{
    return {_mm256_cvtps_pd(_mm256_cvtpd_ps(a.lo)), _mm256_cvtps_pd(_mm256_cvtpd_ps(a.hi))};
}
#else
ORV_INLINE Doubles widen(Floats a) { return {_mm_cvtps_pd(a.v), _mm_cvtps_pd(_mm_movehl_ps(a.v, a.v))}; }
ORV_INLINE Floats narrow(Doubles a) { return {_mm_movelh_ps(_mm_cvtpd_ps(a.lo), _mm_cvtpd_ps(a.hi))}; }
ORV_INLINE Doubles to_single(Doubles a)
{
    return {_mm_cvtps_pd(_mm_cvtpd_ps(a.lo)), _mm_cvtps_pd(_mm_cvtpd_ps(a.hi))};
}
#endif

template <>
struct doubles<Doubles> {
    static constexpr int N = Floats::N;
    static ORV_INLINE Doubles widen(const float* p)
    {
#if ORV_HAVE_FLOAT256
        return {_mm256_cvtps_pd(_mm_loadu_ps(p)), _mm256_cvtps_pd(_mm_loadu_ps(p + 4))};
#else
        return ORV_LEVEL::widen(simd::load<Floats>(p));
#endif
    }
    static ORV_INLINE Doubles load(const double* p)
    {
        return {ORV_PD(loadu_pd)(p), ORV_PD(loadu_pd)(p + N / 2)};
    }
    static ORV_INLINE Doubles float_sum(const float* a, const float* b)
    {
        return ORV_LEVEL::widen(simd::load<Floats>(a) + simd::load<Floats>(b));
    }
};
ORV_INLINE void store(double* p, Doubles a)
{
    ORV_PD(storeu_pd)(p, a.lo);
    ORV_PD(storeu_pd)(p + doubles<Doubles>::N / 2, a.hi);
}
ORV_INLINE void store_result(float* p, Doubles a) { store_result(p, narrow(a)); }
#undef ORV_PD
#endif

}  // namespace ORV_LEVEL
}  // namespace orv
