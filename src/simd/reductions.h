// What loops need that bring many lanes down to one: sums that widen, and the halves of a register.
#pragma once

#include "simd/vec.h"

#if ORV_HAVE_VECTORS

namespace orv {
namespace simd {
inline namespace ORV_LEVEL {

// The sums of eight bytes side by side.
ORV_INLINE vec<u64, int128> sum_of_bytes(vec<u8, int128> a) { return {_mm_sad_epu8(a.v, _mm_setzero_si128())}; }
// a b of two lanes side by side, added.
ORV_INLINE vec<s32, int128> sum_of_products(vec<s16, int128> a, vec<s16, int128> b) { return {_mm_madd_epi16(a.v, b.v)}; }
ORV_INLINE vec<u64, int128> add_wide(vec<u64, int128> a, vec<u64, int128> b) { return {_mm_add_epi64(a.v, b.v)}; }
// The upper half of each lane. (Shifts by a constant take one operation, those by a register two.)
ORV_INLINE vec<u16, int128> upper(vec<u16, int128> a) { return {_mm_srli_epi16(a.v, 8)}; }
ORV_INLINE vec<u32, int128> upper(vec<u32, int128> a) { return {_mm_srli_epi32(a.v, 16)}; }
ORV_INLINE vec<u64, int128> upper(vec<u64, int128> a) { return {_mm_srli_epi64(a.v, 32)}; }
ORV_INLINE unsigned mask_of_bytes(vec<u8, int128> a) { return static_cast<unsigned>(_mm_movemask_epi8(a.v)); }

#if ORV_HAVE_INT256
ORV_INLINE vec<u64, int256> sum_of_bytes(vec<u8, int256> a) { return {_mm256_sad_epu8(a.v, _mm256_setzero_si256())}; }
ORV_INLINE vec<s32, int256> sum_of_products(vec<s16, int256> a, vec<s16, int256> b) { return {_mm256_madd_epi16(a.v, b.v)}; }
ORV_INLINE vec<u64, int256> add_wide(vec<u64, int256> a, vec<u64, int256> b) { return {_mm256_add_epi64(a.v, b.v)}; }
ORV_INLINE vec<u16, int256> upper(vec<u16, int256> a) { return {_mm256_srli_epi16(a.v, 8)}; }
ORV_INLINE vec<u32, int256> upper(vec<u32, int256> a) { return {_mm256_srli_epi32(a.v, 16)}; }
ORV_INLINE vec<u64, int256> upper(vec<u64, int256> a) { return {_mm256_srli_epi64(a.v, 32)}; }
ORV_INLINE unsigned mask_of_bytes(vec<u8, int256> a) { return static_cast<unsigned>(_mm256_movemask_epi8(a.v)); }
#endif

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
template <class T, class R>
ORV_INLINE unsigned equal_bytes(vec<T, R> a, vec<T, R> b)
{
    return mask_of_bytes(as<u8>(equal(a, b)));
}
// All bits set: a mask of every byte of the register.
template <class R>
constexpr unsigned all_bytes = sizeof(typename R::type) == 32 ? 0xFFFFFFFFu : 0xFFFFu;

}  // namespace ORV_LEVEL
}  // namespace simd
}  // namespace orv

#endif  // ORV_HAVE_VECTORS
