// Steps on 8- and 16-bit lanes that only few families need: means, magnitudes, and shifts by a fixed number
// of bits, which take one operation where those by a register take two.
#pragma once

#include "simd/vec.h"

namespace orv {
namespace simd {
inline namespace ORV_LEVEL {

// A lone lane.
ORV_INLINE vec<u8, 1> average(vec<u8, 1> a, vec<u8, 1> b) { return {static_cast<u8>((a.v + b.v + 1) >> 1)}; }
ORV_INLINE vec<u16, 1> average(vec<u16, 1> a, vec<u16, 1> b) { return {static_cast<u16>((a.v + b.v + 1) >> 1)}; }
ORV_INLINE vec<s16, 1> magnitude(vec<s16, 1> a) { return {static_cast<s16>(a.v < 0 ? -a.v : a.v)}; }
ORV_INLINE vec<u16, 1> halved(vec<u16, 1> a) { return {static_cast<u16>(a.v >> 1)}; }
ORV_INLINE vec<u16, 1> raised(vec<u16, 1> a) { return {static_cast<u16>(a.v << 8)}; }

#if ORV_HAVE_VECTORS
// (a + b + 1) / 2, without overflow.
ORV_INLINE vec<u8, 16> average(vec<u8, 16> a, vec<u8, 16> b) { return {_mm_avg_epu8(a.v, b.v)}; }
ORV_INLINE vec<u16, 8> average(vec<u16, 8> a, vec<u16, 8> b) { return {_mm_avg_epu16(a.v, b.v)}; }
// That of the smallest value is it again, as an unsigned number.
#if ORV_HAVE_BYTE_SHUFFLE
ORV_INLINE vec<s16, 8> magnitude(vec<s16, 8> a) { return {_mm_abs_epi16(a.v)}; }
#else
ORV_INLINE vec<s16, 8> magnitude(vec<s16, 8> a) { return {_mm_max_epi16(a.v, _mm_sub_epi16(_mm_setzero_si128(), a.v))}; }
#endif
ORV_INLINE vec<u16, 8> halved(vec<u16, 8> a) { return {_mm_srli_epi16(a.v, 1)}; }
// The lower half of each lane in the place of the upper one.
ORV_INLINE vec<u16, 8> raised(vec<u16, 8> a) { return {_mm_slli_epi16(a.v, 8)}; }
#endif

#if ORV_HAVE_INT256
ORV_INLINE vec<u8, 32> average(vec<u8, 32> a, vec<u8, 32> b) { return {_mm256_avg_epu8(a.v, b.v)}; }
ORV_INLINE vec<u16, 16> average(vec<u16, 16> a, vec<u16, 16> b) { return {_mm256_avg_epu16(a.v, b.v)}; }
ORV_INLINE vec<s16, 16> magnitude(vec<s16, 16> a) { return {_mm256_abs_epi16(a.v)}; }
ORV_INLINE vec<u16, 16> halved(vec<u16, 16> a) { return {_mm256_srli_epi16(a.v, 1)}; }
ORV_INLINE vec<u16, 16> raised(vec<u16, 16> a) { return {_mm256_slli_epi16(a.v, 8)}; }
#endif

}  // namespace ORV_LEVEL
}  // namespace simd
}  // namespace orv
