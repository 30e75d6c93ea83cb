// Steps that loops over pixels of several bytes need: parts of blocks side by side, fixed shifts, rounded products.
#pragma once

#include "simd/vec.h"

#if ORV_HAVE_VECTORS

namespace orv {
namespace simd {
inline namespace ORV_LEVEL {

// Shifts by a fixed number of bits, which take one operation where those by a register take two.
template <int bits> ORV_INLINE vec<u16, 8> shifted_left(vec<u16, 8> a) { return {_mm_slli_epi16(a.v, bits)}; }
template <int bits> ORV_INLINE vec<s32, 4> shifted_left(vec<s32, 4> a) { return {_mm_slli_epi32(a.v, bits)}; }
template <int bits> ORV_INLINE vec<u32, 4> shifted_left(vec<u32, 4> a) { return {_mm_slli_epi32(a.v, bits)}; }
template <int bits> ORV_INLINE vec<u16, 8> shifted_right(vec<u16, 8> a) { return {_mm_srli_epi16(a.v, bits)}; }
template <int bits> ORV_INLINE vec<s16, 8> shifted_right(vec<s16, 8> a) { return {_mm_srai_epi16(a.v, bits)}; }
template <int bits> ORV_INLINE vec<u32, 4> shifted_right(vec<u32, 4> a) { return {_mm_srli_epi32(a.v, bits)}; }
template <int bits> ORV_INLINE vec<s32, 4> shifted_right(vec<s32, 4> a) { return {_mm_srai_epi32(a.v, bits)}; }

// a0 + a1, b0 + b1, a2 + a3, b2 + b3 (within each 128-bit half).
ORV_INLINE vec<s32, 4> neighbours_added(vec<s32, 4> a, vec<s32, 4> b)
{
    const __m128i even = _mm_castps_si128(_mm_shuffle_ps(_mm_castsi128_ps(a.v), _mm_castsi128_ps(b.v), 0x88));
    const __m128i odd = _mm_castps_si128(_mm_shuffle_ps(_mm_castsi128_ps(a.v), _mm_castsi128_ps(b.v), 0xDD));
    return {_mm_shuffle_epi32(_mm_add_epi32(even, odd), 0xD8)};
}

// The even lanes of a and the odd ones of b.
ORV_INLINE vec<s16, 8> alternate(vec<s16, 8> a, vec<s16, 8> b)
{
#if ORV_HAVE_SSE41
    return {_mm_blend_epi16(a.v, b.v, 0xAA)};
#else
    return select(vec<s16, 8>{_mm_set1_epi32(0xFFFF)}, a, b);
#endif
}

#if ORV_HAVE_BYTE_SHUFFLE
// a b / 2^15, rounded half up.
ORV_INLINE vec<s16, 8> mul_rounded(vec<s16, 8> a, vec<s16, 8> b) { return {_mm_mulhrs_epi16(a.v, b.v)}; }
// The bytes from `skipped` on of low, then those of high (within each 128-bit half).
template <int skipped>
ORV_INLINE vec<u8, 16> joined(vec<u8, 16> low, vec<u8, 16> high) { return {_mm_alignr_epi8(high.v, low.v, skipped)}; }
#endif

// The lower and the upper halves of a and b (within each 128-bit half).
ORV_INLINE vec<u16, 8> lower_halves(vec<u16, 8> a, vec<u16, 8> b) { return {_mm_unpacklo_epi64(a.v, b.v)}; }
ORV_INLINE vec<u16, 8> upper_halves(vec<u16, 8> a, vec<u16, 8> b) { return {_mm_unpackhi_epi64(a.v, b.v)}; }

// Bytes as the upper halves of 16-bit lanes; eight from p for each 128 bits of the register, in order.
template <class V> ORV_INLINE V load_raised(const u8* p);
template <>
ORV_INLINE vec<u16, 8> load_raised(const u8* p)
{
    return {_mm_unpacklo_epi8(_mm_setzero_si128(), _mm_loadl_epi64(reinterpret_cast<const __m128i*>(p)))};
}

// 16 bytes from p and, where the register has two halves, 16 from p + distance.
template <class V, int distance> ORV_INLINE V load_parts(const u8* p);
template <int distance> ORV_INLINE void load_parts_to(vec<u8, 16>& r, const u8* p) { load_to(r, p); }
template <int distance> ORV_INLINE void store_parts(u8* p, vec<u8, 16> v) { store(p, v); }

#if ORV_HAVE_INT256
ORV_INLINE vec<s8, 32> sub_saturate(vec<s8, 32> a, vec<s8, 32> b) { return {_mm256_subs_epi8(a.v, b.v)}; }
template <int bits> ORV_INLINE vec<u16, 16> shifted_left(vec<u16, 16> a) { return {_mm256_slli_epi16(a.v, bits)}; }
template <int bits> ORV_INLINE vec<s32, 8> shifted_left(vec<s32, 8> a) { return {_mm256_slli_epi32(a.v, bits)}; }
template <int bits> ORV_INLINE vec<u32, 8> shifted_left(vec<u32, 8> a) { return {_mm256_slli_epi32(a.v, bits)}; }
template <int bits> ORV_INLINE vec<u16, 16> shifted_right(vec<u16, 16> a) { return {_mm256_srli_epi16(a.v, bits)}; }
template <int bits> ORV_INLINE vec<s16, 16> shifted_right(vec<s16, 16> a) { return {_mm256_srai_epi16(a.v, bits)}; }
template <int bits> ORV_INLINE vec<u32, 8> shifted_right(vec<u32, 8> a) { return {_mm256_srli_epi32(a.v, bits)}; }
template <int bits> ORV_INLINE vec<s32, 8> shifted_right(vec<s32, 8> a) { return {_mm256_srai_epi32(a.v, bits)}; }
ORV_INLINE vec<s32, 8> neighbours_added(vec<s32, 8> a, vec<s32, 8> b)
{
    const __m256i even = _mm256_castps_si256(_mm256_shuffle_ps(_mm256_castsi256_ps(a.v), _mm256_castsi256_ps(b.v), 0x88));
    const __m256i odd = _mm256_castps_si256(_mm256_shuffle_ps(_mm256_castsi256_ps(a.v), _mm256_castsi256_ps(b.v), 0xDD));
    return {_mm256_shuffle_epi32(_mm256_add_epi32(even, odd), 0xD8)};
}
ORV_INLINE vec<s16, 16> alternate(vec<s16, 16> a, vec<s16, 16> b) { return {_mm256_blend_epi16(a.v, b.v, 0xAA)}; }
ORV_INLINE vec<s16, 16> mul_rounded(vec<s16, 16> a, vec<s16, 16> b) { return {_mm256_mulhrs_epi16(a.v, b.v)}; }
template <int skipped>
ORV_INLINE vec<u8, 32> joined(vec<u8, 32> low, vec<u8, 32> high) { return {_mm256_alignr_epi8(high.v, low.v, skipped)}; }
ORV_INLINE vec<u16, 16> lower_halves(vec<u16, 16> a, vec<u16, 16> b) { return {_mm256_unpacklo_epi64(a.v, b.v)}; }
ORV_INLINE vec<u16, 16> upper_halves(vec<u16, 16> a, vec<u16, 16> b) { return {_mm256_unpackhi_epi64(a.v, b.v)}; }
template <>
ORV_INLINE vec<u16, 16> load_raised(const u8* p)
{
    return {_mm256_slli_epi16(_mm256_cvtepu8_epi16(_mm_loadu_si128(reinterpret_cast<const __m128i*>(p))), 8)};
}
template <int distance>
ORV_INLINE void load_parts_to(vec<u8, 32>& r, const u8* p)
{
    const __m128i lower = _mm_loadu_si128(reinterpret_cast<const __m128i*>(p));
    r.v = _mm256_inserti128_si256(_mm256_castsi128_si256(lower), _mm_loadu_si128(reinterpret_cast<const __m128i*>(p + distance)), 1);
}
template <int distance>
ORV_INLINE void store_parts(u8* p, vec<u8, 32> v)
{
    _mm_storeu_si128(reinterpret_cast<__m128i*>(p), _mm256_castsi256_si128(v.v));
    _mm_storeu_si128(reinterpret_cast<__m128i*>(p + distance), _mm256_extracti128_si256(v.v, 1));
}
#endif

template <class V, int distance>
ORV_INLINE V load_parts(const u8* p)
{
    V r;
    load_parts_to<distance>(r, p);
    return r;
}

// --- Floats of three channels ---------------------------------------------------------------------
//
// Pixels as they lie in memory: four in three vectors of 128 bits, and the four behind them in the other halves.

template <class V>
struct three {
    V a, b, c;
};

template <class V> ORV_INLINE three<V> load_three(const float* p);
template <>
ORV_INLINE three<vec<float, 4>> load_three(const float* p)
{
    return {{_mm_loadu_ps(p)}, {_mm_loadu_ps(p + 4)}, {_mm_loadu_ps(p + 8)}};
}
ORV_INLINE void store_three(float* p, three<vec<float, 4>> t)
{
    store(p, t.a);
    store(p + 4, t.b);
    store(p + 8, t.c);
}
#if ORV_HAVE_FLOAT256
ORV_INLINE __m256 load_four_and_four(const float* p)
{
    return _mm256_insertf128_ps(_mm256_castps128_ps256(_mm_loadu_ps(p)), _mm_loadu_ps(p + 12), 1);
}
ORV_INLINE void store_four_and_four(float* p, __m256 v)
{
    _mm_storeu_ps(p, _mm256_castps256_ps128(v));
    _mm_storeu_ps(p + 12, _mm256_extractf128_ps(v, 1));
}
template <>
ORV_INLINE three<vec<float, 8>> load_three(const float* p)
{
    return {{load_four_and_four(p)}, {load_four_and_four(p + 4)}, {load_four_and_four(p + 8)}};
}
ORV_INLINE void store_three(float* p, three<vec<float, 8>> t)
{
    store_four_and_four(p, t.a.v);
    store_four_and_four(p + 4, t.b.v);
    store_four_and_four(p + 8, t.c.v);
}
#endif

// Lanes i and j of a, then k and l of b (within each 128-bit half).
template <int i, int j, int k, int l>
ORV_INLINE vec<float, 4> lanes_of(vec<float, 4> a, vec<float, 4> b)
{
    return {_mm_shuffle_ps(a.v, b.v, _MM_SHUFFLE(l, k, j, i))};
}
#if ORV_HAVE_FLOAT256
template <int i, int j, int k, int l>
ORV_INLINE vec<float, 8> lanes_of(vec<float, 8> a, vec<float, 8> b)
{
    return {_mm256_shuffle_ps(a.v, b.v, _MM_SHUFFLE(l, k, j, i))};
}
#endif

// From pixels to channels.
template <class V>
ORV_INLINE three<V> separated(three<V> p)
{
    return {lanes_of<0, 3, 0, 2>(p.a, lanes_of<2, 2, 1, 1>(p.b, p.c)),
            lanes_of<0, 2, 0, 2>(lanes_of<1, 1, 0, 0>(p.a, p.b), lanes_of<3, 3, 2, 2>(p.b, p.c)),
            lanes_of<0, 2, 0, 3>(lanes_of<2, 2, 1, 1>(p.a, p.b), p.c)};
}
// And back.
template <class V>
ORV_INLINE three<V> side_by_side(three<V> c)
{
    return {lanes_of<0, 2, 0, 2>(lanes_of<0, 0, 0, 0>(c.a, c.b), lanes_of<0, 0, 1, 1>(c.c, c.a)),
            lanes_of<0, 2, 0, 2>(lanes_of<1, 1, 1, 1>(c.b, c.c), lanes_of<2, 2, 2, 2>(c.a, c.b)),
            lanes_of<0, 2, 0, 2>(lanes_of<2, 2, 3, 3>(c.c, c.a), lanes_of<3, 3, 3, 3>(c.b, c.c))};
}

}  // namespace ORV_LEVEL
}  // namespace simd
}  // namespace orv

#endif  // ORV_HAVE_VECTORS
