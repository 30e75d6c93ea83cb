// Pairs of 8- or 16-bit lanes, made of two rows to be multiplied by a pair of weights and added; and lanes of 32 bits,
// packed again.
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

// Saturated, in memory order.
ORV_INLINE vec<s16, 8> pack_signed(vec<s32, 4> a, vec<s32, 4> b) { return {_mm_packs_epi32(a.v, b.v)}; }
ORV_INLINE vec<u8, 16> pack(vec<s16, 8> a, vec<s16, 8> b) { return {_mm_packus_epi16(a.v, b.v)}; }

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
