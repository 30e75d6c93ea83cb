// What loops need that bring many lanes down to one: sums that widen, and the halves of a register.
#pragma once

#include "simd/vec.h"

namespace orv {
namespace simd {
inline namespace ORV_LEVEL {

// A lone lane.
ORV_INLINE vec<u64, 1> sum_of_bytes(vec<u8, 1> a) { return {a.v}; }
ORV_INLINE vec<s32, 1> sum_of_products(vec<s16, 1> a, vec<s16, 1> b) { return {a.v * b.v}; }
ORV_INLINE vec<u64, 1> add_wide(vec<u64, 1> a, vec<u64, 1> b) { return a + b; }
template <class T> ORV_INLINE vec<T, 1> upper(vec<T, 1> a) { return {static_cast<T>(a.v >> (4 * sizeof(T)))}; }
ORV_INLINE unsigned mask_of_bytes(vec<u8, 1> a) { return a.v >> 7; }

#if ORV_HAVE_VECTORS

// The sums of eight bytes side by side.
ORV_INLINE vec<u64, 2> sum_of_bytes(vec<u8, 16> a) { return {_mm_sad_epu8(a.v, _mm_setzero_si128())}; }
// a b of two lanes side by side, added.
ORV_INLINE vec<s32, 4> sum_of_products(vec<s16, 8> a, vec<s16, 8> b) { return {_mm_madd_epi16(a.v, b.v)}; }
ORV_INLINE vec<u64, 2> add_wide(vec<u64, 2> a, vec<u64, 2> b) { return {_mm_add_epi64(a.v, b.v)}; }
// The upper half of each lane. (Shifts by a constant take one operation, those by a register two.)
ORV_INLINE vec<u16, 8> upper(vec<u16, 8> a) { return {_mm_srli_epi16(a.v, 8)}; }
ORV_INLINE vec<u32, 4> upper(vec<u32, 4> a) { return {_mm_srli_epi32(a.v, 16)}; }
ORV_INLINE vec<u64, 2> upper(vec<u64, 2> a) { return {_mm_srli_epi64(a.v, 32)}; }
ORV_INLINE unsigned mask_of_bytes(vec<u8, 16> a) { return static_cast<unsigned>(_mm_movemask_epi8(a.v)); }
#endif

#if ORV_HAVE_INT256
ORV_INLINE vec<u64, 4> sum_of_bytes(vec<u8, 32> a) { return {_mm256_sad_epu8(a.v, _mm256_setzero_si256())}; }
ORV_INLINE vec<s32, 8> sum_of_products(vec<s16, 16> a, vec<s16, 16> b) { return {_mm256_madd_epi16(a.v, b.v)}; }
ORV_INLINE vec<u64, 4> add_wide(vec<u64, 4> a, vec<u64, 4> b) { return {_mm256_add_epi64(a.v, b.v)}; }
ORV_INLINE vec<u16, 16> upper(vec<u16, 16> a) { return {_mm256_srli_epi16(a.v, 8)}; }
ORV_INLINE vec<u32, 8> upper(vec<u32, 8> a) { return {_mm256_srli_epi32(a.v, 16)}; }
ORV_INLINE vec<u64, 4> upper(vec<u64, 4> a) { return {_mm256_srli_epi64(a.v, 32)}; }
ORV_INLINE unsigned mask_of_bytes(vec<u8, 32> a) { return static_cast<unsigned>(_mm256_movemask_epi8(a.v)); }
#endif

#if ORV_HAVE_VECTORS
// Sixteen bytes, as often as they fit.
template <class V>
ORV_INLINE V load_repeated(const typename V::lane* p)
{
    const __m128i v = _mm_loadu_si128(reinterpret_cast<const __m128i*>(p));
#if ORV_HAVE_INT256
    return {_mm256_broadcastsi128_si256(v)};
#else
    return {v};
#endif
}

// Bytes of all lanes equal to those of b, one bit each.
template <class V>
ORV_INLINE unsigned equal_bytes(V a, V b)
{
    return mask_of_bytes(as<u8>(equal(a, b)));
}
// All bits set: a mask of every byte of the register.
template <class V>
constexpr unsigned all_bytes = sizeof(V) == 32 ? 0xFFFFFFFFu : 0xFFFFu;
#endif

}  // namespace ORV_LEVEL
}  // namespace simd
}  // namespace orv
