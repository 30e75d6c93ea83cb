// The registers of LAPACK's kernels: the widest of the level, or single numbers where it has none.
#pragma once

#include "linalg/packs.h"

namespace orv {
inline namespace ORV_LEVEL {

#if ORV_HAVE_VECTORS
template <class T> using Register = WidePack<T>;
#else
template <class T>
struct Register {
    static constexpr int N = 1;
    using V = T;
    static ORV_INLINE V load(const T* p) { return get(p); }
    static ORV_INLINE void store(T* p, V v) { put(p, v); }
    static ORV_INLINE V splat(T value) { return value; }
};
// There is no part of a single number.
template <class T> ORV_INLINE T load_part(Register<T>, const T* p, int) { return get(p); }
template <class T> ORV_INLINE void store_part(Register<T>, T* p, T v, int) { put(p, v); }
template <class T> ORV_INLINE void transpose(Register<T>, T (&)[1]) {}
#endif

// The register at p + i of a column that ends at p + n, zeros behind it.
template <class T>
ORV_INLINE typename Register<T>::V load_until(const T* p, std::ptrdiff_t i, std::ptrdiff_t n)
{
    using R = Register<T>;
    return i + R::N <= n ? R::load(p + i) : load_part(R(), p + i, static_cast<int>(n - i));
}
template <class T>
ORV_INLINE void store_until(T* p, std::ptrdiff_t i, std::ptrdiff_t n, typename Register<T>::V v)
{
    using R = Register<T>;
    if (i + R::N <= n) R::store(p + i, v);
    else store_part(R(), p + i, v, static_cast<int>(n - i));
}

}  // namespace ORV_LEVEL
}  // namespace orv
