// Steps on 8- and 16-bit lanes that only few families need: means, magnitudes, and shifts by half a lane or one bit.
#pragma once

#include "simd/vec.h"

namespace orv {
namespace simd {
inline namespace ORV_LEVEL {

template <class V> ORV_INLINE V halved(V a) { return shifted_right<1>(a); }
// The lower half of each lane in the place of the upper one, and the reverse.
template <class V> ORV_INLINE V raised(V a) { return shifted_left<4 * sizeof(typename V::lane)>(a); }
template <class V> ORV_INLINE V upper(V a) { return shifted_right<4 * sizeof(typename V::lane)>(a); }

// (a + b + 1) / 2, without overflow.
ORV_INLINE vec<u8, 1> average(vec<u8, 1> a, vec<u8, 1> b) { return {static_cast<u8>((a.v + b.v + 1) >> 1)}; }
ORV_INLINE vec<u16, 1> average(vec<u16, 1> a, vec<u16, 1> b) { return {static_cast<u16>((a.v + b.v + 1) >> 1)}; }
// That of the smallest value is it again, as an unsigned number.
ORV_INLINE vec<s16, 1> magnitude(vec<s16, 1> a) { return {static_cast<s16>(a.v < 0 ? -a.v : a.v)}; }

#if ORV_HAVE_VECTORS
ORV_INLINE vec<u8, 16> average(vec<u8, 16> a, vec<u8, 16> b) { return {_mm_avg_epu8(a.v, b.v)}; }
ORV_INLINE vec<u16, 8> average(vec<u16, 8> a, vec<u16, 8> b) { return {_mm_avg_epu16(a.v, b.v)}; }
ORV_INLINE vec<s16, 8> magnitude(vec<s16, 8> a)
{
    if constexpr (ORV_HAVE_BYTE_SHUFFLE) return {_mm_abs_epi16(a.v)};
    else return {_mm_max_epi16(a.v, _mm_sub_epi16(_mm_setzero_si128(), a.v))};
}
#endif

#if ORV_HAVE_INT256
ORV_INLINE vec<u8, 32> average(vec<u8, 32> a, vec<u8, 32> b) { return {_mm256_avg_epu8(a.v, b.v)}; }
ORV_INLINE vec<u16, 16> average(vec<u16, 16> a, vec<u16, 16> b) { return {_mm256_avg_epu16(a.v, b.v)}; }
ORV_INLINE vec<s16, 16> magnitude(vec<s16, 16> a) { return {_mm256_abs_epi16(a.v)}; }
#endif

}  // namespace ORV_LEVEL
}  // namespace simd
}  // namespace orv
