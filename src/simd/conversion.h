// Conversions between lane types in memory order, for loops whose source and destination differ in
// width. (widen() and narrow() of the vector layer are cheaper but keep the order only in pairs.)
#pragma once

#include "simd/vec.h"

#if ORV_HAVE_VECTORS

namespace orv {
namespace simd {
inline namespace ORV_LEVEL {

// One vector V from as many narrower lanes in memory.
template <class V> struct load_as;

template <>
struct load_as<vec<u16, int128>> {
    static ORV_INLINE vec<u16, int128> from(const u8* p)
    {
        return {_mm_unpacklo_epi8(_mm_loadl_epi64(reinterpret_cast<const __m128i*>(p)), _mm_setzero_si128())};
    }
};

template <>
struct load_as<vec<float, float128>> {
    static ORV_INLINE vec<float, float128> from(const u8* p)
    {
        s32 four;
        std::memcpy(&four, p, sizeof(four));
        const __m128i none = _mm_setzero_si128();
        const __m128i words = _mm_unpacklo_epi8(_mm_cvtsi32_si128(four), none);
        return {_mm_cvtepi32_ps(_mm_unpacklo_epi16(words, none))};
    }
    static ORV_INLINE vec<float, float128> from(const u16* p)
    {
        const __m128i words = _mm_loadl_epi64(reinterpret_cast<const __m128i*>(p));
        return {_mm_cvtepi32_ps(_mm_unpacklo_epi16(words, _mm_setzero_si128()))};
    }
};

#if ORV_HAVE_INT256
template <>
struct load_as<vec<u16, int256>> {
    static ORV_INLINE vec<u16, int256> from(const u8* p)
    {
        return {_mm256_cvtepu8_epi16(_mm_loadu_si128(reinterpret_cast<const __m128i*>(p)))};
    }
};

template <>
struct load_as<vec<float, float256>> {
    static ORV_INLINE vec<float, float256> from(const u8* p)
    {
        return {_mm256_cvtepi32_ps(_mm256_cvtepu8_epi32(_mm_loadl_epi64(reinterpret_cast<const __m128i*>(p))))};
    }
    static ORV_INLINE vec<float, float256> from(const u16* p)
    {
        return {_mm256_cvtepi32_ps(_mm256_cvtepu16_epi32(_mm_loadu_si128(reinterpret_cast<const __m128i*>(p))))};
    }
};
#endif

// 32-bit lanes from 0 to the most of the narrower type, packed in memory order.
ORV_INLINE vec<u16, int128> pack(vec<s32, int128> a, vec<s32, int128> b)
{
    return narrow(pair<vec<u32, int128>>{{a.v}, {b.v}});
}
ORV_INLINE vec<u8, int128> pack(vec<s32, int128> a, vec<s32, int128> b, vec<s32, int128> c, vec<s32, int128> d)
{
    return {_mm_packus_epi16(_mm_packs_epi32(a.v, b.v), _mm_packs_epi32(c.v, d.v))};
}
#if ORV_HAVE_INT256
ORV_INLINE vec<u16, int256> pack(vec<s32, int256> a, vec<s32, int256> b)
{
    return {_mm256_permute4x64_epi64(_mm256_packus_epi32(a.v, b.v), 0xD8)};
}
ORV_INLINE vec<u8, int256> pack(vec<s32, int256> a, vec<s32, int256> b, vec<s32, int256> c, vec<s32, int256> d)
{
    const __m256i packed = _mm256_packus_epi16(_mm256_packs_epi32(a.v, b.v), _mm256_packs_epi32(c.v, d.v));
    return {_mm256_permutevar8x32_epi32(packed, _mm256_setr_epi32(0, 4, 1, 5, 2, 6, 3, 7))};
}
#endif

// Lanes of all ones and all zeros as bytes, in memory order.
template <class T>
ORV_INLINE vec<u8, int128> pack_masks(vec<T, int128> a, vec<T, int128> b)
{
    static_assert(sizeof(T) == 2, "words");
    return {_mm_packs_epi16(a.v, b.v)};
}
ORV_INLINE vec<u8, int128> pack_masks(vec<s32, int128> a, vec<s32, int128> b, vec<s32, int128> c, vec<s32, int128> d)
{
    return {_mm_packs_epi16(_mm_packs_epi32(a.v, b.v), _mm_packs_epi32(c.v, d.v))};
}
#if ORV_HAVE_INT256
template <class T>
ORV_INLINE vec<u8, int256> pack_masks(vec<T, int256> a, vec<T, int256> b)
{
    static_assert(sizeof(T) == 2, "words");
    return {_mm256_permute4x64_epi64(_mm256_packs_epi16(a.v, b.v), 0xD8)};
}
ORV_INLINE vec<u8, int256> pack_masks(vec<s32, int256> a, vec<s32, int256> b, vec<s32, int256> c, vec<s32, int256> d)
{
    const __m256i packed = _mm256_packs_epi16(_mm256_packs_epi32(a.v, b.v), _mm256_packs_epi32(c.v, d.v));
    return {_mm256_permutevar8x32_epi32(packed, _mm256_setr_epi32(0, 4, 1, 5, 2, 6, 3, 7))};
}
#endif

}  // namespace ORV_LEVEL
}  // namespace simd
}  // namespace orv

#endif  // ORV_HAVE_VECTORS
