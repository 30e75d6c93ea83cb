// What LAPACK's kernels hold in registers: vectors of the level, or bare numbers where it has none. (Not the
// vocabulary's lone lanes: those are rounded after each step, which LAPACK's sums need not be.)
#pragma once

#include "core/checks.h"
#include "simd/partial.h"
#include "simd/shuffles.h"

namespace orv {
inline namespace ORV_LEVEL {

#if ORV_HAVE_VECTORS
template <class T>
struct Register {
    using V = simd::widest<T>;
    static constexpr int N = V::N;
    static ORV_INLINE V load(const T* p) { return simd::load<V>(p); }
    static ORV_INLINE void store(T* p, V v) { simd::store(p, v); }
    static ORV_INLINE V splat(T value) { return simd::splat<V>(value); }
    static ORV_INLINE V load_part(const T* p, int n) { return simd::load_part<V>(p, n); }
    static ORV_INLINE void store_part(T* p, V v, int n) { simd::store_part(p, v, n); }
    static ORV_INLINE V larger(V best, V v) { return max(magnitude(v), best); }
};
#else
template <class T>
struct Register {
    static constexpr int N = 1;
    using V = T;
    static ORV_INLINE V load(const T* p) { return get(p); }
    static ORV_INLINE void store(T* p, V v) { put(p, v); }
    static ORV_INLINE V splat(T value) { return value; }
    // There is no part of a single number.
    static ORV_INLINE V load_part(const T* p, int) { return get(p); }
    static ORV_INLINE void store_part(T* p, V v, int) { put(p, v); }
    static ORV_INLINE V larger(V best, V v)
    {
        const V magnitude = v < 0 ? -v : v;
        return magnitude > best ? magnitude : best;
    }
};
template <class T> ORV_INLINE void transpose(T (&)[1]) {}
#endif

// The register at p + i of a column that ends at p + n, zeros behind it.
template <class T>
ORV_INLINE typename Register<T>::V load_until(const T* p, std::ptrdiff_t i, std::ptrdiff_t n)
{
    using R = Register<T>;
    return i + R::N <= n ? R::load(p + i) : R::load_part(p + i, static_cast<int>(n - i));
}
template <class T>
ORV_INLINE void store_until(T* p, std::ptrdiff_t i, std::ptrdiff_t n, typename Register<T>::V v)
{
    using R = Register<T>;
    if (i + R::N <= n) R::store(p + i, v);
    else R::store_part(p + i, v, static_cast<int>(n - i));
}

}  // namespace ORV_LEVEL
}  // namespace orv
