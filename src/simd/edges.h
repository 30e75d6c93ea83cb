// Neighbours of lanes: across the border of two vectors that lie side by side in a row, and at the row's ends.
#pragma once

#include "simd/vec.h"

#if ORV_HAVE_VECTORS

namespace orv {
namespace simd {
inline namespace ORV_LEVEL {

// What both directions need of two neighbours: of wide registers a half of each is enough.
template <std::size_t bytes> struct seam_of;
template <>
struct seam_of<16> {
    __m128i below, above;
    template <class V> ORV_INLINE seam_of(V low, V high) : below(low.v), above(high.v) {}
};
template <class V> using seam = seam_of<sizeof(V)>;

template <class V> constexpr int lane_bytes = static_cast<int>(sizeof(typename V::lane));

// The lanes of the upper neighbour, so many places up; below them the last ones of the lower neighbour.
template <int lanes, class V>
ORV_INLINE V moved_up(seam_of<16> s, V high)
{
    constexpr int bytes = lanes * lane_bytes<V>;
    if constexpr (ORV_HAVE_BYTE_SHUFFLE) return {_mm_alignr_epi8(high.v, s.below, 16 - bytes)};
    else return {_mm_or_si128(_mm_slli_si128(high.v, bytes), _mm_srli_si128(s.below, 16 - bytes))};
}
// The lanes of the lower neighbour, so many places down; above them the first ones of the upper neighbour.
template <int lanes, class V>
ORV_INLINE V moved_down(V low, seam_of<16> s)
{
    constexpr int bytes = lanes * lane_bytes<V>;
    if constexpr (ORV_HAVE_BYTE_SHUFFLE) return {_mm_alignr_epi8(s.above, low.v, bytes)};
    else return {_mm_or_si128(_mm_srli_si128(low.v, bytes), _mm_slli_si128(s.above, 16 - bytes))};
}

// The bytes in the first or the second part of a register of one or two parts.
ORV_INLINE void put_in_part(__m128i& r, __m128i v, int) { r = v; }

#if ORV_HAVE_INT256
template <>
struct seam_of<32> {
    __m256i middle;
    template <class V> ORV_INLINE seam_of(V low, V high) : middle(_mm256_permute2x128_si256(low.v, high.v, 0x21)) {}
};
template <int lanes, class V>
ORV_INLINE V moved_up(seam_of<32> s, V high)
{
    return {_mm256_alignr_epi8(high.v, s.middle, 16 - lanes * lane_bytes<V>)};
}
template <int lanes, class V>
ORV_INLINE V moved_down(V low, seam_of<32> s)
{
    return {_mm256_alignr_epi8(s.middle, low.v, lanes * lane_bytes<V>)};
}
ORV_INLINE void put_in_part(__m256i& r, __m128i v, int part)
{
    const __m256i none = _mm256_setzero_si256();
    r = part == 0 ? _mm256_inserti128_si256(none, v, 0) : _mm256_inserti128_si256(none, v, 1);
}
#endif

// All bits of the first and of the last lanes.
template <class V, int lanes>
ORV_INLINE V first_lanes()
{
    V r;
    put_in_part(r.v, _mm_srli_si128(_mm_set1_epi8(-1), 16 - lanes * lane_bytes<V>), 0);
    return r;
}
template <class V, int lanes>
ORV_INLINE V last_lanes()
{
    V r;
    put_in_part(r.v, _mm_slli_si128(_mm_set1_epi8(-1), 16 - lanes * lane_bytes<V>), 1);
    return r;
}

// Of the first and the last vector of a row: lanes that have no neighbour so far away keep their own.
template <int lanes, class V>
ORV_INLINE V from_below(V own)
{
    const V zeros = zero<V>();
    return moved_up<lanes>(seam<V>(zeros, own), own) | (own & first_lanes<V, lanes>());
}
template <int lanes, class V>
ORV_INLINE V from_above(V own)
{
    const V zeros = zero<V>();
    return moved_down<lanes>(own, seam<V>(own, zeros)) | (own & last_lanes<V, lanes>());
}

}  // namespace ORV_LEVEL
}  // namespace simd
}  // namespace orv

#endif
