// Steps on 8- and 16-bit lanes that only few families need: means, magnitudes, and shifts by a fixed number
// of bits, which take one operation where those by a register take two.
#pragma once

#include "simd/vec.h"

#if ORV_HAVE_VECTORS

namespace orv {
namespace simd {
inline namespace ORV_LEVEL {

// For operands of several operations that come from memory: compilers like to load them again for each.
template <class V>
ORV_INLINE V in_register(V a)
{
    __asm__("" : "+x"(a.v));
    return a;
}

// (a + b + 1) / 2, without overflow.
ORV_INLINE vec<u8, int128> average(vec<u8, int128> a, vec<u8, int128> b) { return {_mm_avg_epu8(a.v, b.v)}; }
ORV_INLINE vec<u16, int128> average(vec<u16, int128> a, vec<u16, int128> b) { return {_mm_avg_epu16(a.v, b.v)}; }
// That of the smallest value is it again, as an unsigned number.
#if ORV_HAVE_BYTE_SHUFFLE
ORV_INLINE vec<s16, int128> magnitude(vec<s16, int128> a) { return {_mm_abs_epi16(a.v)}; }
#else
ORV_INLINE vec<s16, int128> magnitude(vec<s16, int128> a) { return {_mm_max_epi16(a.v, _mm_sub_epi16(_mm_setzero_si128(), a.v))}; }
#endif
ORV_INLINE vec<u16, int128> halved(vec<u16, int128> a) { return {_mm_srli_epi16(a.v, 1)}; }
// The lower half of each lane in the place of the upper one.
ORV_INLINE vec<u16, int128> raised(vec<u16, int128> a) { return {_mm_slli_epi16(a.v, 8)}; }

#if ORV_HAVE_INT256
ORV_INLINE vec<u8, int256> average(vec<u8, int256> a, vec<u8, int256> b) { return {_mm256_avg_epu8(a.v, b.v)}; }
ORV_INLINE vec<u16, int256> average(vec<u16, int256> a, vec<u16, int256> b) { return {_mm256_avg_epu16(a.v, b.v)}; }
ORV_INLINE vec<s16, int256> magnitude(vec<s16, int256> a) { return {_mm256_abs_epi16(a.v)}; }
ORV_INLINE vec<u16, int256> halved(vec<u16, int256> a) { return {_mm256_srli_epi16(a.v, 1)}; }
ORV_INLINE vec<u16, int256> raised(vec<u16, int256> a) { return {_mm256_slli_epi16(a.v, 8)}; }
#endif

}  // namespace ORV_LEVEL
}  // namespace simd
}  // namespace orv

#endif  // ORV_HAVE_VECTORS
