// The number types that the transforms are written over: one float, or a vector of them. Every
// arithmetic step is rounded to float, so the lanes of a vector have the bits of the single number.
// Without fused multiply-adds, that is, which would save 3 to 5 % of the transforms (measured from 2^10
// to 2^16).
#pragma once

#include "core/checks.h"
#include "core/float_control.h"
#include "simd/vec.h"

// Loops over the elements of a butterfly: unrolled, so that the elements live in registers.
#if defined(__clang__)
#define ORV_UNROLL _Pragma("unroll")
#else
#define ORV_UNROLL _Pragma("GCC unroll 8")
#endif

namespace orv {
inline namespace ORV_LEVEL {
namespace {

struct One {
    static constexpr int N = 1;
    float v;
};
ORV_INLINE One operator+(One a, One b) { return {rounded(a.v + b.v)}; }
ORV_INLINE One operator-(One a, One b) { return {rounded(a.v - b.v)}; }
ORV_INLINE One operator*(One a, One b) { return {rounded(a.v * b.v)}; }
ORV_INLINE One negated(One a) { return {-a.v}; }
ORV_INLINE One magnitude(One a) { return {__builtin_fabsf(a.v)}; }
// The second where the first is a NaN.
ORV_INLINE One larger(One a, One b) { return a.v > b.v ? a : b; }
ORV_INLINE bool any_reaches(One a, One limit) { return a.v >= limit.v; }
ORV_INLINE void store_lanes(float* p, One a) { put(p, a.v); }

#if ORV_HAVE_VECTORS
using Four = simd::vec<float, 4>;

ORV_INLINE void store_lanes(float* p, Four a) { simd::store(p, a); }
ORV_INLINE Four negated(Four a) { return {_mm_xor_ps(a.v, _mm_set1_ps(-0.0f))}; }
ORV_INLINE Four larger(Four a, Four b) { return simd::max(a, b); }
ORV_INLINE bool any_reaches(Four a, Four limit) { return simd::any(simd::greater_equal(a, limit)); }
#endif
#if ORV_HAVE_FLOAT256
using Eight = simd::vec<float, 8>;

ORV_INLINE void store_lanes(float* p, Eight a) { simd::store(p, a); }
ORV_INLINE Eight negated(Eight a) { return {_mm256_xor_ps(a.v, _mm256_set1_ps(-0.0f))}; }
ORV_INLINE Eight larger(Eight a, Eight b) { return simd::max(a, b); }
ORV_INLINE bool any_reaches(Eight a, Eight limit) { return simd::any(simd::greater_equal(a, limit)); }
#endif

template <class V> struct Lanes
#if ORV_HAVE_VECTORS
{
    static ORV_INLINE V load(const float* p) { return simd::load<V>(p); }
    static ORV_INLINE V splat(float value) { return simd::splat<V>(value); }
}
#endif
;
template <> struct Lanes<One> {
    static ORV_INLINE One load(const float* p) { return {get(p)}; }
    static ORV_INLINE One splat(float value) { return {value}; }
};

template <class V>
struct Complex {
    V re, im;
};
template <class V> ORV_INLINE Complex<V> operator+(Complex<V> a, Complex<V> b) { return {a.re + b.re, a.im + b.im}; }
template <class V> ORV_INLINE Complex<V> operator-(Complex<V> a, Complex<V> b) { return {a.re - b.re, a.im - b.im}; }
template <class V> ORV_INLINE Complex<V> operator*(Complex<V> a, Complex<V> b)
{
    return {a.re * b.re - a.im * b.im, a.re * b.im + a.im * b.re};
}
// a times the conjugate of b
template <class V> ORV_INLINE Complex<V> times_conj(Complex<V> a, Complex<V> b)
{
    return {a.re * b.re + a.im * b.im, a.im * b.re - a.re * b.im};
}
template <class V> ORV_INLINE Complex<V> scaled_by(Complex<V> a, V factor) { return {a.re * factor, a.im * factor}; }

// The lanes of a line from `lane` on.
template <class V> ORV_INLINE Complex<V> load_line(const float* line)
{
    return {Lanes<V>::load(line), Lanes<V>::load(line + 8)};
}
template <class V> ORV_INLINE void store_line(float* line, Complex<V> a)
{
    store_lanes(line, a.re);
    store_lanes(line + 8, a.im);
}
// A complex constant (re, im) in every lane.
template <class V> ORV_INLINE Complex<V> splat_complex(const float* w)
{
    return {Lanes<V>::splat(w[0]), Lanes<V>::splat(w[1])};
}

// V::N consecutive complex values of an interleaved array.
template <class V> struct Interleaved;

template <> struct Interleaved<One> {
    static ORV_INLINE Complex<One> load(const float* p) { return {{get(p)}, {get(p + 1)}}; }
    static ORV_INLINE void store(float* p, Complex<One> a)
    {
        put(p, a.re.v);
        put(p + 1, a.im.v);
    }
    // Conjugates in reversed order, the last one at p.
    static ORV_INLINE Complex<One> load_mirrored(const float* p) { return {{get(p)}, {-get(p + 1)}}; }
    static ORV_INLINE void store_mirrored(float* p, Complex<One> a)
    {
        put(p, a.re.v);
        put(p + 1, -a.im.v);
    }
};

#if ORV_HAVE_VECTORS
template <> struct Interleaved<Four> {
    static ORV_INLINE Complex<Four> load(const float* p)
    {
        const __m128 a = _mm_loadu_ps(p), b = _mm_loadu_ps(p + 4);
        return {{_mm_shuffle_ps(a, b, 0x88)}, {_mm_shuffle_ps(a, b, 0xDD)}};
    }
    static ORV_INLINE void store(float* p, Complex<Four> a)
    {
        _mm_storeu_ps(p, _mm_unpacklo_ps(a.re.v, a.im.v));
        _mm_storeu_ps(p + 4, _mm_unpackhi_ps(a.re.v, a.im.v));
    }
    static ORV_INLINE Complex<Four> load_mirrored(const float* p)
    {
        const __m128 a = _mm_loadu_ps(p - 6), b = _mm_loadu_ps(p - 2);
        return {{_mm_shuffle_ps(b, a, 0x22)}, negated({_mm_shuffle_ps(b, a, 0x77)})};
    }
    static ORV_INLINE void store_mirrored(float* p, Complex<Four> a)
    {
        const __m128 im = negated(a.im).v;
        const __m128 low = _mm_unpacklo_ps(a.re.v, im), high = _mm_unpackhi_ps(a.re.v, im);
        _mm_storeu_ps(p - 2, _mm_shuffle_ps(low, low, 0x4E));
        _mm_storeu_ps(p - 6, _mm_shuffle_ps(high, high, 0x4E));
    }
};
#endif

#if ORV_HAVE_FLOAT256
template <> struct Interleaved<Eight> {
    static ORV_INLINE __m256 halves(const float* low, const float* high)
    {
        return _mm256_insertf128_ps(_mm256_castps128_ps256(_mm_loadu_ps(low)), _mm_loadu_ps(high), 1);
    }
    static ORV_INLINE Complex<Eight> load(const float* p)
    {
        const __m256 a = halves(p, p + 8), b = halves(p + 4, p + 12);
        return {{_mm256_shuffle_ps(a, b, 0x88)}, {_mm256_shuffle_ps(a, b, 0xDD)}};
    }
    static ORV_INLINE void store(float* p, Complex<Eight> a)
    {
        const __m256 low = _mm256_unpacklo_ps(a.re.v, a.im.v), high = _mm256_unpackhi_ps(a.re.v, a.im.v);
        _mm256_storeu_ps(p, _mm256_permute2f128_ps(low, high, 0x20));
        _mm256_storeu_ps(p + 8, _mm256_permute2f128_ps(low, high, 0x31));
    }
    static ORV_INLINE Complex<Eight> load_mirrored(const float* p)
    {
        const __m256 a = halves(p - 6, p - 14), b = halves(p - 2, p - 10);
        return {{_mm256_shuffle_ps(b, a, 0x22)}, negated({_mm256_shuffle_ps(b, a, 0x77)})};
    }
    static ORV_INLINE void store_mirrored(float* p, Complex<Eight> a)
    {
        const __m256 im = negated(a.im).v;
        const __m256 low = _mm256_unpacklo_ps(a.re.v, im), high = _mm256_unpackhi_ps(a.re.v, im);
        const __m256 near = _mm256_permute_ps(_mm256_permute2f128_ps(low, high, 0x02), 0x4E);
        const __m256 far = _mm256_permute_ps(_mm256_permute2f128_ps(low, high, 0x13), 0x4E);
        _mm256_storeu_ps(p - 6, near);
        _mm256_storeu_ps(p - 14, far);
    }
};
#endif

#if ORV_HAVE_FLOAT256
using Widest = Eight;
#elif ORV_HAVE_VECTORS
using Widest = Four;
#else
using Widest = One;
#endif
#if ORV_HAVE_VECTORS
using Narrow = Four;
#else
using Narrow = One;
#endif

}  // namespace
}  // namespace ORV_LEVEL
}  // namespace orv
