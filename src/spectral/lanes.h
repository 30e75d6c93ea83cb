// The number types that the transforms are written over: one float, or a vector of them. Every
// arithmetic step is rounded to float, so the lanes of a vector have the bits of the single number.
// Without fused multiply-adds, that is, which would save 3 to 5 % of the transforms (measured from 2^10
// to 2^16).
#pragma once

#include "core/checks.h"
#include "core/float_control.h"
#include "core/unroll.h"
#include "simd/interleaved.h"
#include "simd/vec.h"

namespace orv {
inline namespace ORV_LEVEL {
namespace {

using One = simd::vec<float, 1>;
using Narrow = simd::half<float>;
using Widest = simd::widest<float>;

template <class V> ORV_INLINE V negated(V a) { return a ^ simd::splat<V>(-0.0f); }
ORV_INLINE One negated(One a) { return {-a.v}; }

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
    return {simd::load<V>(line), simd::load<V>(line + 8)};
}
template <class V> ORV_INLINE void store_line(float* line, Complex<V> a)
{
    simd::store(line, a.re);
    simd::store(line + 8, a.im);
}
// A complex constant (re, im) in every lane.
template <class V> ORV_INLINE Complex<V> splat_complex(const float* w)
{
    return {simd::splat<V>(w[0]), simd::splat<V>(w[1])};
}

// V::N consecutive complex values of an interleaved array; mirrored: conjugates in reversed order, the last one at p.
template <class V>
struct Interleaved {
    using Parts = simd::interleaved<V>;
    static ORV_INLINE Complex<V> load(const float* p)
    {
        const simd::twice<V> parts = Parts::load(p);
        return {parts.lo, parts.hi};
    }
    static ORV_INLINE void store(float* p, Complex<V> a) { Parts::store(p, {a.re, a.im}); }
    static ORV_INLINE Complex<V> load_mirrored(const float* p)
    {
        const simd::twice<V> parts = Parts::load_mirrored(p);
        return {parts.lo, negated(parts.hi)};
    }
    static ORV_INLINE void store_mirrored(float* p, Complex<V> a) { Parts::store_mirrored(p, {a.re, negated(a.im)}); }
};

}  // namespace
}  // namespace ORV_LEVEL
}  // namespace orv
