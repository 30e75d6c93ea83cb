// Steps on lanes that belong together two by two: an even lane and the odd one behind it. Complex numbers lie like
// that.
#pragma once

#include "simd/vec.h"

namespace orv {
namespace simd {
inline namespace ORV_LEVEL {

// Each even lane in the place of its neighbour, too; each odd one; and both in each other's place.
ORV_INLINE vec<double, 1> even_twice(vec<double, 1> a) { return a; }
ORV_INLINE vec<double, 1> odd_twice(vec<double, 1>) { return {0}; }
ORV_INLINE vec<double, 1> exchanged(vec<double, 1>) { return {0}; }
// The even lanes of a and b side by side; the odd ones.
ORV_INLINE vec<double, 1> even_of(vec<double, 1> a, vec<double, 1>) { return a; }
ORV_INLINE vec<double, 1> odd_of(vec<double, 1>, vec<double, 1>) { return {0}; }
// first, second, first, second ...
template <class V> ORV_INLINE V splat_two(typename V::lane first, typename V::lane second);
template <> ORV_INLINE vec<double, 1> splat_two(double first, double) { return {first}; }
// a b - c in even lanes and a b + c in odd ones, where the product is exact; and the reverse.
ORV_INLINE vec<double, 1> product_minus_plus(vec<double, 1> a, vec<double, 1> b, vec<double, 1> c) { return a * b - c; }
ORV_INLINE vec<double, 1> product_plus_minus(vec<double, 1> a, vec<double, 1> b, vec<double, 1> c) { return a * b + c; }

#if ORV_HAVE_VECTORS
ORV_INLINE vec<double, 2> even_twice(vec<double, 2> a) { return {_mm_unpacklo_pd(a.v, a.v)}; }
ORV_INLINE vec<double, 2> odd_twice(vec<double, 2> a) { return {_mm_unpackhi_pd(a.v, a.v)}; }
ORV_INLINE vec<double, 2> exchanged(vec<double, 2> a) { return {_mm_shuffle_pd(a.v, a.v, 1)}; }
ORV_INLINE vec<double, 2> even_of(vec<double, 2> a, vec<double, 2> b) { return {_mm_unpacklo_pd(a.v, b.v)}; }
ORV_INLINE vec<double, 2> odd_of(vec<double, 2> a, vec<double, 2> b) { return {_mm_unpackhi_pd(a.v, b.v)}; }
template <> ORV_INLINE vec<double, 2> splat_two(double first, double second) { return {_mm_setr_pd(first, second)}; }
#if ORV_HAVE_FLOAT256
ORV_INLINE vec<double, 4> even_twice(vec<double, 4> a) { return {_mm256_unpacklo_pd(a.v, a.v)}; }
ORV_INLINE vec<double, 4> odd_twice(vec<double, 4> a) { return {_mm256_unpackhi_pd(a.v, a.v)}; }
ORV_INLINE vec<double, 4> exchanged(vec<double, 4> a) { return {_mm256_permute_pd(a.v, 5)}; }
ORV_INLINE vec<double, 4> even_of(vec<double, 4> a, vec<double, 4> b) { return {_mm256_unpacklo_pd(a.v, b.v)}; }
ORV_INLINE vec<double, 4> odd_of(vec<double, 4> a, vec<double, 4> b) { return {_mm256_unpackhi_pd(a.v, b.v)}; }
// The sums of two neighbours: those of a in even lanes, those of b in odd ones. Of two NaNs the result is either.
ORV_INLINE vec<double, 4> neighbour_sums(vec<double, 4> a, vec<double, 4> b)
{
    return vec<double, 4>{_mm256_blend_pd(a.v, b.v, 0xA)} + vec<double, 4>{_mm256_shuffle_pd(a.v, b.v, 0x5)};
}
template <>
ORV_INLINE vec<double, 4> splat_two(double first, double second)
{
    const __m128d two = _mm_setr_pd(first, second);
    return {_mm256_insertf128_pd(_mm256_castpd128_pd256(two), two, 1)};
}
ORV_INLINE vec<double, 4> product_minus_plus(vec<double, 4> a, vec<double, 4> b, vec<double, 4> c)
{
    if constexpr (ORV_HAVE_FUSED) return {_mm256_fmaddsub_pd(a.v, b.v, c.v)};
    else return {_mm256_addsub_pd((a * b).v, c.v)};
}
ORV_INLINE vec<double, 4> product_plus_minus(vec<double, 4> a, vec<double, 4> b, vec<double, 4> c)
{
    if constexpr (ORV_HAVE_FUSED) return {_mm256_fmsubadd_pd(a.v, b.v, c.v)};
    else return product_minus_plus(a, b, c ^ splat<vec<double, 4>>(-0.0));
}
#else
ORV_INLINE vec<double, 2> product_minus_plus(vec<double, 2> a, vec<double, 2> b, vec<double, 2> c)
{
    return a * b + (c ^ splat_two<vec<double, 2>>(-0.0, 0.0));
}
ORV_INLINE vec<double, 2> product_plus_minus(vec<double, 2> a, vec<double, 2> b, vec<double, 2> c)
{
    return a * b + (c ^ splat_two<vec<double, 2>>(0.0, -0.0));
}
#endif
#endif

}  // namespace ORV_LEVEL
}  // namespace simd
}  // namespace orv
