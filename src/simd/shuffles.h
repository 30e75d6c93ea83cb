// Lanes in other places: within each part (16 bytes of a register), among the parts, and where an index says.
#pragma once

#include "simd/vec.h"

namespace orv {
namespace simd {
inline namespace ORV_LEVEL {

// Squares, as many vectors as they have lanes: rows become columns, vector i gets lane i of all.
template <class T> ORV_INLINE void transpose(vec<T, 1> (&)[1]) {}

// A lone lane has no other place.
template <class T> ORV_INLINE vec<T, 1> reversed(vec<T, 1> a) { return a; }
template <class T> ORV_INLINE vec<T, 1> reversed_pairs(vec<T, 1> a) { return a; }
template <class T> ORV_INLINE vec<T, 1> exchanged_parts(vec<T, 1> a) { return a; }
template <int a, int b, int c, int d, class T> ORV_INLINE vec<T, 1> permuted(vec<T, 1> x) { return x; }

#if ORV_HAVE_VECTORS
// Of four lanes (of each part) those with these numbers.
constexpr int order_of(int a, int b, int c, int d) { return a | b << 2 | c << 4 | d << 6; }
template <int a, int b, int c, int d>
ORV_INLINE vec<s32, 4> permuted(vec<s32, 4> x) { return {_mm_shuffle_epi32(x.v, order_of(a, b, c, d))}; }
template <int a, int b, int c, int d>
ORV_INLINE vec<u32, 4> permuted(vec<u32, 4> x) { return {_mm_shuffle_epi32(x.v, order_of(a, b, c, d))}; }
#if ORV_HAVE_FLOAT256
template <int a, int b, int c, int d>
ORV_INLINE vec<float, 4> permuted(vec<float, 4> x) { return {_mm_permute_ps(x.v, order_of(a, b, c, d))}; }
template <int a, int b, int c, int d>
ORV_INLINE vec<float, 8> permuted(vec<float, 8> x) { return {_mm256_permute_ps(x.v, order_of(a, b, c, d))}; }
template <int mask>
ORV_INLINE vec<float, 8> blended(vec<float, 8> a, vec<float, 8> b) { return {_mm256_blend_ps(a.v, b.v, mask)}; }
#else
template <int a, int b, int c, int d>
ORV_INLINE vec<float, 4> permuted(vec<float, 4> x) { return {_mm_shuffle_ps(x.v, x.v, order_of(a, b, c, d))}; }
#endif

// Lanes of b where the mask has a bit, else of a.
template <int mask>
ORV_INLINE vec<float, 4> blended(vec<float, 4> a, vec<float, 4> b)
{
    if constexpr (ORV_HAVE_SSE41) {
        return {_mm_blend_ps(a.v, b.v, mask)};
    } else {
        const __m128i bits = _mm_setr_epi32(-(mask & 1), -(mask >> 1 & 1), -(mask >> 2 & 1), -(mask >> 3 & 1));
        const __m128 m = _mm_castsi128_ps(bits);
        return {_mm_or_ps(_mm_and_ps(m, b.v), _mm_andnot_ps(m, a.v))};
    }
}

// All lanes, of 2 or 4 bytes, back to front.
template <class T>
ORV_INLINE vec<T, 16 / sizeof(T)> reversed(vec<T, 16 / sizeof(T)> a)
{
    static_assert(sizeof(T) == 2 || sizeof(T) == 4, "words");
    constexpr int backwards = order_of(3, 2, 1, 0);
    if constexpr (sizeof(T) == 4) {
        return {_mm_shuffle_epi32(a.v, backwards)};
    } else if constexpr (ORV_HAVE_BYTE_SHUFFLE) {
        return {_mm_shuffle_epi8(a.v, _mm_setr_epi8(14, 15, 12, 13, 10, 11, 8, 9, 6, 7, 4, 5, 2, 3, 0, 1))};
    } else {
        const __m128i halves = _mm_shufflehi_epi16(_mm_shufflelo_epi16(a.v, backwards), backwards);
        return {_mm_shuffle_epi32(halves, order_of(2, 3, 0, 1))};
    }
}

ORV_INLINE vec<float, 4> reversed(vec<float, 4> a) { return permuted<3, 2, 1, 0>(a); }
// Two by two, each pair as it is.
ORV_INLINE vec<float, 4> reversed_pairs(vec<float, 4> a) { return permuted<2, 3, 0, 1>(a); }

// The parts in each other's place.
template <class T> ORV_INLINE vec<T, 16 / sizeof(T)> exchanged_parts(vec<T, 16 / sizeof(T)> a) { return a; }

// Four vectors as the rows of a square become its columns (within each part).
ORV_INLINE void transpose(vec<float, 4>& a, vec<float, 4>& b, vec<float, 4>& c, vec<float, 4>& d)
{
    const __m128 t0 = _mm_unpacklo_ps(a.v, b.v), t1 = _mm_unpackhi_ps(a.v, b.v);
    const __m128 t2 = _mm_unpacklo_ps(c.v, d.v), t3 = _mm_unpackhi_ps(c.v, d.v);
    a.v = _mm_shuffle_ps(t0, t2, 0x44);
    b.v = _mm_shuffle_ps(t0, t2, 0xEE);
    c.v = _mm_shuffle_ps(t1, t3, 0x44);
    d.v = _mm_shuffle_ps(t1, t3, 0xEE);
}
ORV_INLINE void transpose(vec<float, 4> (&v)[4]) { transpose(v[0], v[1], v[2], v[3]); }
ORV_INLINE void transpose(vec<double, 2> (&v)[2])
{
    const __m128d low = _mm_unpacklo_pd(v[0].v, v[1].v), high = _mm_unpackhi_pd(v[0].v, v[1].v);
    v[0].v = low;
    v[1].v = high;
}
#endif

#if ORV_HAVE_FLOAT256
ORV_INLINE vec<float, 8> exchanged_parts(vec<float, 8> a) { return {_mm256_permute2f128_ps(a.v, a.v, 1)}; }
ORV_INLINE vec<float, 8> reversed(vec<float, 8> a) { return permuted<3, 2, 1, 0>(exchanged_parts(a)); }
ORV_INLINE vec<float, 8> reversed_pairs(vec<float, 8> a) { return permuted<2, 3, 0, 1>(exchanged_parts(a)); }
// The lower parts of a and b; the upper ones.
ORV_INLINE vec<float, 8> lower_parts(vec<float, 8> a, vec<float, 8> b)
{
    return {_mm256_permute2f128_ps(a.v, b.v, 0x20)};
}
ORV_INLINE vec<float, 8> upper_parts(vec<float, 8> a, vec<float, 8> b)
{
    return {_mm256_permute2f128_ps(a.v, b.v, 0x31)};
}
ORV_INLINE vec<double, 4> lower_parts(vec<double, 4> a, vec<double, 4> b)
{
    return {_mm256_permute2f128_pd(a.v, b.v, 0x20)};
}
ORV_INLINE vec<double, 4> upper_parts(vec<double, 4> a, vec<double, 4> b)
{
    return {_mm256_permute2f128_pd(a.v, b.v, 0x31)};
}
// The sums of the parts of a, then those of b.
ORV_INLINE vec<float, 8> sums_of_parts(vec<float, 8> a, vec<float, 8> b)
{
    return lower_parts(a, b) + upper_parts(a, b);
}
ORV_INLINE vec<double, 4> sums_of_parts(vec<double, 4> a, vec<double, 4> b)
{
    return vec<double, 4>{_mm256_blend_pd(a.v, b.v, 0xC)} + vec<double, 4>{_mm256_permute2f128_pd(a.v, b.v, 0x21)};
}

ORV_INLINE void transpose(vec<float, 8>& a, vec<float, 8>& b, vec<float, 8>& c, vec<float, 8>& d)
{
    const __m256 t0 = _mm256_unpacklo_ps(a.v, b.v), t1 = _mm256_unpackhi_ps(a.v, b.v);
    const __m256 t2 = _mm256_unpacklo_ps(c.v, d.v), t3 = _mm256_unpackhi_ps(c.v, d.v);
    a.v = _mm256_shuffle_ps(t0, t2, 0x44);
    b.v = _mm256_shuffle_ps(t0, t2, 0xEE);
    c.v = _mm256_shuffle_ps(t1, t3, 0x44);
    d.v = _mm256_shuffle_ps(t1, t3, 0xEE);
}
ORV_INLINE void exchange_parts(vec<float, 8>& a, vec<float, 8>& b)
{
    const vec<float, 8> upper = upper_parts(a, b);
    a = lower_parts(a, b);
    b = upper;
}
ORV_INLINE void transpose(vec<float, 8> (&v)[8])
{
    transpose(v[0], v[1], v[2], v[3]);
    transpose(v[4], v[5], v[6], v[7]);
    exchange_parts(v[0], v[4]);
    exchange_parts(v[1], v[5]);
    exchange_parts(v[2], v[6]);
    exchange_parts(v[3], v[7]);
}
ORV_INLINE void transpose(vec<double, 4> (&v)[4])
{
    const vec<double, 4> a0 = {_mm256_unpacklo_pd(v[0].v, v[1].v)}, a1 = {_mm256_unpackhi_pd(v[0].v, v[1].v)};
    const vec<double, 4> a2 = {_mm256_unpacklo_pd(v[2].v, v[3].v)}, a3 = {_mm256_unpackhi_pd(v[2].v, v[3].v)};
    v[0] = lower_parts(a0, a2);
    v[1] = lower_parts(a1, a3);
    v[2] = upper_parts(a0, a2);
    v[3] = upper_parts(a1, a3);
}
#endif

#if ORV_HAVE_INT256
// The largest of all lanes, in every lane; of floats that are no NaNs.
template <class V>
ORV_INLINE V largest_lane(V v)
{
    v = max(v, exchanged_parts(v));
    v = max(v, permuted<2, 3, 0, 1>(v));
    return max(v, permuted<1, 0, 3, 2>(v));
}

template <int a, int b, int c, int d>
ORV_INLINE vec<s32, 8> permuted(vec<s32, 8> x) { return {_mm256_shuffle_epi32(x.v, order_of(a, b, c, d))}; }
template <class T>
ORV_INLINE vec<T, 32 / sizeof(T)> reversed(vec<T, 32 / sizeof(T)> a)
{
    static_assert(sizeof(T) == 2 || sizeof(T) == 4, "words");
    if constexpr (sizeof(T) == 4) return {_mm256_permutevar8x32_epi32(a.v, _mm256_setr_epi32(7, 6, 5, 4, 3, 2, 1, 0))};
    const __m256i in_parts = _mm256_setr_epi8(14, 15, 12, 13, 10, 11, 8, 9, 6, 7, 4, 5, 2, 3, 0, 1, 14, 15, 12, 13, 10,
                                              11, 8, 9, 6, 7, 4, 5, 2, 3, 0, 1);
    return {_mm256_permute4x64_epi64(_mm256_shuffle_epi8(a.v, in_parts), order_of(2, 3, 0, 1))};
}
template <class T>
ORV_INLINE vec<T, 32 / sizeof(T)> exchanged_parts(vec<T, 32 / sizeof(T)> a)
{
    return {_mm256_permute2x128_si256(a.v, a.v, 1)};
}

// Lane i takes the lane with the number that the low bits of index i have; doubles in halves, each with an index.
ORV_INLINE vec<float, 8> permuted(vec<float, 8> a, vec<s32, 8> index)
{
    return {_mm256_permutevar8x32_ps(a.v, index.v)};
}
ORV_INLINE vec<s32, 8> permuted(vec<s32, 8> a, vec<s32, 8> index)
{
    return {_mm256_permutevar8x32_epi32(a.v, index.v)};
}
ORV_INLINE vec<double, 4> permuted(vec<double, 4> a, vec<s32, 8> index)
{
    return {_mm256_castsi256_pd(_mm256_permutevar8x32_epi32(_mm256_castpd_si256(a.v), index.v))};
}
#endif

}  // namespace ORV_LEVEL
}  // namespace simd
}  // namespace orv
