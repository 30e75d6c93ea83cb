// Conversions between lane types in memory order, for loops whose source and destination differ in
// width. (widen() and narrow() of the vector layer are cheaper but keep the order only in pairs.)
#pragma once

#include "simd/vec.h"

namespace orv {
namespace simd {
inline namespace ORV_LEVEL {

// One vector V from as many narrower lanes in memory.
template <class V> struct load_as;

template <>
struct load_as<vec<double, 1>> {
    static ORV_INLINE vec<double, 1> from(const float* p)
    {
        vec<float, 1> one;
        load_to(one, p);
        return {static_cast<double>(one.v)};
    }
};
ORV_INLINE void store(float* p, vec<double, 1> a)
{
    const float rounded_once = static_cast<float>(a.v);
    __builtin_memcpy(p, &rounded_once, sizeof(float));
}

#if ORV_HAVE_VECTORS
template <>
struct load_as<vec<double, 2>> {
    static ORV_INLINE vec<double, 2> from(const float* p)
    {
        return {_mm_cvtps_pd(_mm_castsi128_ps(_mm_loadl_epi64(reinterpret_cast<const __m128i*>(p))))};
    }
};

template <>
struct load_as<vec<u16, 8>> {
    static ORV_INLINE vec<u16, 8> from(const u8* p)
    {
        return {_mm_unpacklo_epi8(_mm_loadl_epi64(reinterpret_cast<const __m128i*>(p)), _mm_setzero_si128())};
    }
};

template <>
struct load_as<vec<float, 4>> {
    static ORV_INLINE vec<float, 4> from(const u8* p)
    {
        s32 four;
        std::memcpy(&four, p, sizeof(four));
        const __m128i none = _mm_setzero_si128();
        const __m128i words = _mm_unpacklo_epi8(_mm_cvtsi32_si128(four), none);
        return {_mm_cvtepi32_ps(_mm_unpacklo_epi16(words, none))};
    }
    static ORV_INLINE vec<float, 4> from(const u16* p)
    {
        const __m128i words = _mm_loadl_epi64(reinterpret_cast<const __m128i*>(p));
        return {_mm_cvtepi32_ps(_mm_unpacklo_epi16(words, _mm_setzero_si128()))};
    }
};

#endif
#if ORV_HAVE_FLOAT256
template <>
struct load_as<vec<double, 4>> {
    static ORV_INLINE vec<double, 4> from(const float* p) { return {_mm256_cvtps_pd(_mm_loadu_ps(p))}; }
};

#endif
#if ORV_HAVE_INT256
template <>
struct load_as<vec<u16, 16>> {
    static ORV_INLINE vec<u16, 16> from(const u8* p)
    {
        return {_mm256_cvtepu8_epi16(_mm_loadu_si128(reinterpret_cast<const __m128i*>(p)))};
    }
};

template <>
struct load_as<vec<float, 8>> {
    static ORV_INLINE vec<float, 8> from(const u8* p)
    {
        return {_mm256_cvtepi32_ps(_mm256_cvtepu8_epi32(_mm_loadl_epi64(reinterpret_cast<const __m128i*>(p))))};
    }
    static ORV_INLINE vec<float, 8> from(const u16* p)
    {
        return {_mm256_cvtepi32_ps(_mm256_cvtepu16_epi32(_mm_loadu_si128(reinterpret_cast<const __m128i*>(p))))};
    }
};
#endif

#if ORV_HAVE_VECTORS
// Rounded to float.
ORV_INLINE void store(float* p, vec<double, 2> a)
{
    _mm_storel_epi64(reinterpret_cast<__m128i*>(p), _mm_castps_si128(_mm_cvtpd_ps(a.v)));
}
#if ORV_HAVE_FLOAT256
ORV_INLINE void store(float* p, vec<double, 4> a) { _mm_storeu_ps(p, _mm256_cvtpd_ps(a.v)); }
#endif

// 32-bit lanes from 0 to the most of the narrower type, packed in memory order.
ORV_INLINE vec<u16, 8> pack(vec<s32, 4> a, vec<s32, 4> b)
{
    return narrow(pair<vec<u32, 4>>{{a.v}, {b.v}});
}
ORV_INLINE vec<u8, 16> pack(vec<s32, 4> a, vec<s32, 4> b, vec<s32, 4> c, vec<s32, 4> d)
{
    return {_mm_packus_epi16(_mm_packs_epi32(a.v, b.v), _mm_packs_epi32(c.v, d.v))};
}
#if ORV_HAVE_INT256
ORV_INLINE vec<u16, 16> pack(vec<s32, 8> a, vec<s32, 8> b)
{
    return {_mm256_permute4x64_epi64(_mm256_packus_epi32(a.v, b.v), 0xD8)};
}
ORV_INLINE vec<u8, 32> pack(vec<s32, 8> a, vec<s32, 8> b, vec<s32, 8> c, vec<s32, 8> d)
{
    const __m256i packed = _mm256_packus_epi16(_mm256_packs_epi32(a.v, b.v), _mm256_packs_epi32(c.v, d.v));
    return {_mm256_permutevar8x32_epi32(packed, _mm256_setr_epi32(0, 4, 1, 5, 2, 6, 3, 7))};
}
#endif

// Lanes of all ones and all zeros as bytes, in memory order.
template <class T>
ORV_INLINE vec<u8, 16> pack_masks(vec<T, 16 / sizeof(T)> a, vec<T, 16 / sizeof(T)> b)
{
    static_assert(sizeof(T) == 2, "words");
    return {_mm_packs_epi16(a.v, b.v)};
}
ORV_INLINE vec<u8, 16> pack_masks(vec<s32, 4> a, vec<s32, 4> b, vec<s32, 4> c, vec<s32, 4> d)
{
    return {_mm_packs_epi16(_mm_packs_epi32(a.v, b.v), _mm_packs_epi32(c.v, d.v))};
}
#if ORV_HAVE_INT256
template <class T>
ORV_INLINE vec<u8, 32> pack_masks(vec<T, 32 / sizeof(T)> a, vec<T, 32 / sizeof(T)> b)
{
    static_assert(sizeof(T) == 2, "words");
    return {_mm256_permute4x64_epi64(_mm256_packs_epi16(a.v, b.v), 0xD8)};
}
ORV_INLINE vec<u8, 32> pack_masks(vec<s32, 8> a, vec<s32, 8> b, vec<s32, 8> c, vec<s32, 8> d)
{
    const __m256i packed = _mm256_packs_epi16(_mm256_packs_epi32(a.v, b.v), _mm256_packs_epi32(c.v, d.v));
    return {_mm256_permutevar8x32_epi32(packed, _mm256_setr_epi32(0, 4, 1, 5, 2, 6, 3, 7))};
}
#endif
#endif

}  // namespace ORV_LEVEL
}  // namespace simd
}  // namespace orv
