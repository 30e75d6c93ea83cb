// What loops need that bring many lanes down to one: sums that widen, and the halves of a register.
#pragma once

#include "simd/halves.h"
#include "simd/partial.h"
#include "simd/vec.h"

namespace orv {
namespace simd {
inline namespace ORV_LEVEL {

// A lone lane.
ORV_INLINE vec<u64, 1> sum_of_bytes(vec<u8, 1> a) { return {a.v}; }
ORV_INLINE vec<s32, 1> sum_of_products(vec<s16, 1> a, vec<s16, 1> b) { return {a.v * b.v}; }
template <class V> ORV_INLINE V add_wide(V a, V b) { return a + b; }
ORV_INLINE unsigned mask_of_bytes(vec<u8, 1> a) { return a.v >> 7; }

#if ORV_HAVE_VECTORS

// The sums of eight bytes side by side.
ORV_INLINE vec<u64, 2> sum_of_bytes(vec<u8, 16> a) { return {_mm_sad_epu8(a.v, _mm_setzero_si128())}; }
// a b of two lanes side by side, added.
ORV_INLINE vec<s32, 4> sum_of_products(vec<s16, 8> a, vec<s16, 8> b) { return {_mm_madd_epi16(a.v, b.v)}; }
// Of two bytes side by side; the second factors are signed, the sums saturated. For levels that shuffle bytes.
ORV_INLINE vec<s16, 8> sum_of_products(vec<u8, 16> a, vec<s8, 16> b) { return {_mm_maddubs_epi16(a.v, b.v)}; }
ORV_INLINE unsigned mask_of_bytes(vec<u8, 16> a) { return static_cast<unsigned>(_mm_movemask_epi8(a.v)); }
#endif

#if ORV_HAVE_INT256
ORV_INLINE vec<u64, 4> sum_of_bytes(vec<u8, 32> a) { return {_mm256_sad_epu8(a.v, _mm256_setzero_si256())}; }
ORV_INLINE vec<s32, 8> sum_of_products(vec<s16, 16> a, vec<s16, 16> b) { return {_mm256_madd_epi16(a.v, b.v)}; }
ORV_INLINE vec<s16, 16> sum_of_products(vec<u8, 32> a, vec<s8, 32> b) { return {_mm256_maddubs_epi16(a.v, b.v)}; }
ORV_INLINE unsigned mask_of_bytes(vec<u8, 32> a) { return static_cast<unsigned>(_mm256_movemask_epi8(a.v)); }
#endif

// Bytes of all lanes equal to those of b, one bit each.
template <class V>
ORV_INLINE unsigned equal_bytes(V a, V b)
{
    return mask_of_bytes(as<u8>(equal(a, b)));
}
// All bits set: a mask of every byte of the register.
template <class V>
constexpr unsigned all_bytes = sizeof(V) == 32 ? 0xFFFFFFFFu : 0xFFFFu;

}  // namespace ORV_LEVEL
}  // namespace simd
}  // namespace orv
