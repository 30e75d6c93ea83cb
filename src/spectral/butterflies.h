// Transforms of two, four and eight values in natural order, over any number type. `inverse` takes the
// positive sign in the exponent.
#pragma once

#include "spectral/lanes.h"

namespace orv {
inline namespace ORV_LEVEL {
namespace {

// a + r b and a - r b with r = -i, or i for the inverse.
template <bool inverse, class V>
ORV_INLINE Complex<V> plus_quarter(Complex<V> a, Complex<V> b)
{
    if (inverse) return {a.re - b.im, a.im + b.re};
    return {a.re + b.im, a.im - b.re};
}
template <bool inverse, class V>
ORV_INLINE Complex<V> minus_quarter(Complex<V> a, Complex<V> b)
{
    return plus_quarter<!inverse>(a, b);
}

template <bool inverse, class V>
ORV_INLINE void butterfly2(Complex<V>* x)
{
    const Complex<V> a = x[0], b = x[1];
    x[0] = a + b;
    x[1] = a - b;
}

template <bool inverse, class V>
ORV_INLINE void butterfly4(Complex<V>& x0, Complex<V>& x1, Complex<V>& x2, Complex<V>& x3)
{
    const Complex<V> s = x0 + x2, d = x0 - x2, t = x1 + x3, u = x1 - x3;
    x0 = s + t;
    x2 = s - t;
    x1 = plus_quarter<inverse>(d, u);
    x3 = minus_quarter<inverse>(d, u);
}
template <bool inverse, class V>
ORV_INLINE void butterfly4(Complex<V>* x)
{
    butterfly4<inverse>(x[0], x[1], x[2], x[3]);
}

template <bool inverse, class V>
ORV_INLINE void butterfly8(Complex<V>* x)
{
    Complex<V> o0 = x[1], o1 = x[3], o2 = x[5], o3 = x[7];
    butterfly4<inverse>(o0, o1, o2, o3);
    // The odd half times the eighth root and its cube: (1 -+ i) / sqrt 2 and (-1 -+ i) / sqrt 2.
    const V h = simd::splat<V>(0.70710678118654752440f);
    const Complex<V> w1 = inverse ? Complex<V>{h * (o1.re - o1.im), h * (o1.re + o1.im)}
                                  : Complex<V>{h * (o1.re + o1.im), h * (o1.im - o1.re)};
    // Without its sign in front: minus this, for the real part too in the inverse.
    const V sum = h * (o3.re + o3.im), difference = h * (o3.im - o3.re);

    Complex<V> e0 = x[0], e1 = x[2], e2 = x[4], e3 = x[6];
    butterfly4<inverse>(e0, e1, e2, e3);
    x[0] = e0 + o0;
    x[4] = e0 - o0;
    x[1] = e1 + w1;
    x[5] = e1 - w1;
    x[2] = plus_quarter<inverse>(e2, o2);
    x[6] = minus_quarter<inverse>(e2, o2);
    if (inverse) {
        x[3] = {e3.re - sum, e3.im - difference};
        x[7] = {e3.re + sum, e3.im + difference};
    } else {
        x[3] = {e3.re + difference, e3.im - sum};
        x[7] = {e3.re - difference, e3.im + sum};
    }
}

template <int radix, bool inverse, class V>
ORV_INLINE void butterfly(Complex<V>* x)
{
    if (radix == 2) butterfly2<inverse>(x);
    else if (radix == 4) butterfly4<inverse>(x);
    else butterfly8<inverse>(x);
}

}  // namespace
}  // namespace ORV_LEVEL
}  // namespace orv
