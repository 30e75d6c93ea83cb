// Pairs of 8- or 16-bit lanes: made of two rows, multiplied by a pair of weights, and added. And lanes of 32 bits, made
// of narrower ones in memory and packed again.
#pragma once

#include "simd/conversion.h"
#include "simd/reductions.h"
#include "simd/vec.h"

#if ORV_HAVE_VECTORS

namespace orv {
namespace simd {
inline namespace ORV_LEVEL {

// a0 b0 a1 b1 ... in memory order.
ORV_INLINE twice<vec<u8, 16>> zipped(vec<u8, 16> a, vec<u8, 16> b)
{
    return {{_mm_unpacklo_epi8(a.v, b.v)}, {_mm_unpackhi_epi8(a.v, b.v)}};
}
ORV_INLINE twice<vec<s16, 8>> zipped(vec<s16, 8> a, vec<s16, 8> b)
{
    return {{_mm_unpacklo_epi16(a.v, b.v)}, {_mm_unpackhi_epi16(a.v, b.v)}};
}
#if ORV_HAVE_INT256
ORV_INLINE twice<vec<u8, 32>> zipped(vec<u8, 32> a, vec<u8, 32> b)
{
    const __m256i c = _mm256_permute4x64_epi64(a.v, 0xD8), d = _mm256_permute4x64_epi64(b.v, 0xD8);
    return {{_mm256_unpacklo_epi8(c, d)}, {_mm256_unpackhi_epi8(c, d)}};
}
ORV_INLINE twice<vec<s16, 16>> zipped(vec<s16, 16> a, vec<s16, 16> b)
{
    const __m256i c = _mm256_permute4x64_epi64(a.v, 0xD8), d = _mm256_permute4x64_epi64(b.v, 0xD8);
    return {{_mm256_unpacklo_epi16(c, d)}, {_mm256_unpackhi_epi16(c, d)}};
}
#endif

// Of unsigned bytes and signed ones; the sum of a pair saturates.
#if ORV_HAVE_BYTE_SHUFFLE
ORV_INLINE vec<s16, 8> sum_of_products(vec<u8, 16> a, vec<s8, 16> b) { return {_mm_maddubs_epi16(a.v, b.v)}; }
#endif
#if ORV_HAVE_INT256
ORV_INLINE vec<s16, 16> sum_of_products(vec<u8, 32> a, vec<s8, 32> b) { return {_mm256_maddubs_epi16(a.v, b.v)}; }
#endif

// --- Lanes of 32 bits -----------------------------------------------------------------------------

template <>
struct load_as<vec<s32, 4>> {
    static ORV_INLINE __m128i eight(const void* p) { return _mm_loadl_epi64(static_cast<const __m128i*>(p)); }
    static ORV_INLINE vec<s32, 4> from(const u16* p) { return {_mm_unpacklo_epi16(eight(p), _mm_setzero_si128())}; }
    static ORV_INLINE vec<s32, 4> from(const s16* p)
    {
        const __m128i words = eight(p);
        return {_mm_srai_epi32(_mm_unpacklo_epi16(words, words), 16)};
    }
    static ORV_INLINE vec<s32, 4> from(const u8* p)
    {
        s32 four;
        std::memcpy(&four, p, sizeof(four));
        const __m128i none = _mm_setzero_si128();
        return {_mm_unpacklo_epi16(_mm_unpacklo_epi8(_mm_cvtsi32_si128(four), none), none)};
    }
};
#if ORV_HAVE_INT256
template <>
struct load_as<vec<s32, 8>> {
    static ORV_INLINE __m128i sixteen(const void* p) { return _mm_loadu_si128(static_cast<const __m128i*>(p)); }
    static ORV_INLINE vec<s32, 8> from(const u16* p) { return {_mm256_cvtepu16_epi32(sixteen(p))}; }
    static ORV_INLINE vec<s32, 8> from(const s16* p) { return {_mm256_cvtepi16_epi32(sixteen(p))}; }
    static ORV_INLINE vec<s32, 8> from(const u8* p)
    {
        return {_mm256_cvtepu8_epi32(_mm_loadl_epi64(reinterpret_cast<const __m128i*>(p)))};
    }
};
#endif

// Saturated, in memory order.
ORV_INLINE vec<s16, 8> pack_signed(vec<s32, 4> a, vec<s32, 4> b) { return {_mm_packs_epi32(a.v, b.v)}; }
ORV_INLINE vec<u8, 16> pack(vec<s16, 8> a, vec<s16, 8> b) { return {_mm_packus_epi16(a.v, b.v)}; }
#if ORV_HAVE_INT256
ORV_INLINE vec<s16, 16> pack_signed(vec<s32, 8> a, vec<s32, 8> b)
{
    return {_mm256_permute4x64_epi64(_mm256_packs_epi32(a.v, b.v), 0xD8)};
}
ORV_INLINE vec<u8, 32> pack(vec<s16, 16> a, vec<s16, 16> b)
{
    return {_mm256_permute4x64_epi64(_mm256_packus_epi16(a.v, b.v), 0xD8)};
}
#endif

}  // namespace ORV_LEVEL
}  // namespace simd
}  // namespace orv

#endif  // ORV_HAVE_VECTORS
