// Steps that loops over pixels of several bytes need: parts of blocks side by side, fixed shifts, rounded products.
#pragma once

#include "simd/partial.h"
#include "simd/reductions.h"
#include "simd/shuffles.h"
#include "simd/vec.h"

namespace orv {
namespace simd {
inline namespace ORV_LEVEL {

template <class V>
struct three {
    V a, b, c;
};

#if ORV_HAVE_VECTORS
// The even and the odd lanes of a, then those of b (within each 128-bit half).
ORV_INLINE vec<s32, 4> even_lanes(vec<s32, 4> a, vec<s32, 4> b)
{
    return {_mm_castps_si128(_mm_shuffle_ps(_mm_castsi128_ps(a.v), _mm_castsi128_ps(b.v), 0x88))};
}
ORV_INLINE vec<s32, 4> odd_lanes(vec<s32, 4> a, vec<s32, 4> b)
{
    return {_mm_castps_si128(_mm_shuffle_ps(_mm_castsi128_ps(a.v), _mm_castsi128_ps(b.v), 0xDD))};
}

// a b / 2^15, rounded half up. For levels that shuffle bytes.
ORV_INLINE vec<s16, 8> mul_rounded(vec<s16, 8> a, vec<s16, 8> b) { return {_mm_mulhrs_epi16(a.v, b.v)}; }
// The bytes from `skipped` on of low, then those of high (within each part).
template <int skipped>
ORV_INLINE vec<u8, 16> joined(vec<u8, 16> low, vec<u8, 16> high)
{
    if constexpr (ORV_HAVE_BYTE_SHUFFLE) return {_mm_alignr_epi8(high.v, low.v, skipped)};
    else return {_mm_or_si128(_mm_srli_si128(low.v, skipped), _mm_slli_si128(high.v, 16 - skipped))};
}

// Four groups of three bytes from the one with the number `first` on (of each part), each in four bytes, the last 0.
template <int first, class V>
ORV_INLINE V spread_triples(V all)
{
    if constexpr (ORV_HAVE_BYTE_SHUFFLE) {
        constexpr u8 n = first, none = 0x80;
        static const u8 from[16] = {n,     n + 1, n + 2, none, n + 3, n + 4,  n + 5,  none,
                                    n + 6, n + 7, n + 8, none, n + 9, n + 10, n + 11, none};
        return shuffle_bytes(all, load_repeated<V>(from));
    } else {
        const __m128i a = first == 0 ? all.v : _mm_srli_si128(all.v, first);
        const __m128i lane0 = _mm_setr_epi32(0xFFFFFF, 0, 0, 0), lane1 = _mm_slli_si128(lane0, 4);
        const __m128i lane2 = _mm_slli_si128(lane0, 8), lane3 = _mm_slli_si128(lane0, 12);
        const __m128i lower = _mm_or_si128(_mm_and_si128(a, lane0), _mm_and_si128(_mm_slli_si128(a, 1), lane1));
        const __m128i third = _mm_and_si128(_mm_slli_si128(a, 2), lane2),
                      fourth = _mm_and_si128(_mm_slli_si128(a, 3), lane3);
        const __m128i upper = _mm_or_si128(third, fourth);
        return {_mm_or_si128(lower, upper)};
    }
}

// The lower and the upper halves of a and b (within each 128-bit half).
ORV_INLINE vec<u16, 8> lower_halves(vec<u16, 8> a, vec<u16, 8> b) { return {_mm_unpacklo_epi64(a.v, b.v)}; }
ORV_INLINE vec<u16, 8> upper_halves(vec<u16, 8> a, vec<u16, 8> b) { return {_mm_unpackhi_epi64(a.v, b.v)}; }

// Bytes as the upper halves of 16-bit lanes; eight from p for each 128 bits of the register, in order.
template <class V> ORV_INLINE V load_raised(const u8* p);
template <>
ORV_INLINE vec<u16, 8> load_raised(const u8* p)
{
    return {_mm_unpacklo_epi8(_mm_setzero_si128(), _mm_loadl_epi64(reinterpret_cast<const __m128i*>(p)))};
}

// --- Floats of three channels ---------------------------------------------------------------------
//
// Three vectors of pixels as they lie in memory hold N of every channel, spread evenly: no place has the same channel
// in two of them. So a channel is blended from all three, in an order of pixels that differs from the other channels'
// by a rotation.

// The lanes that hold a channel in the vector with this number, one bit each.
template <int N>
constexpr int lanes_of_channel(int vector, int channel)
{
    int mask = 0;
    for (int lane = 0; lane < N; ++lane) mask |= (N * vector + lane) % 3 == channel ? 1 << lane : 0;
    return mask;
}

// Lane i takes what lane i + by holds.
template <int by>
ORV_INLINE vec<float, 4> rotated(vec<float, 4> a)
{
    return permuted<by % 4, (by + 1) % 4, (by + 2) % 4, (by + 3) % 4>(a);
}

// Three vectors in a row become three whose lower parts have the first half of the row, the upper ones the second.
ORV_INLINE three<vec<u8, 16>> in_parts(three<vec<u8, 16>> row) { return row; }

template <int channel, class V>
ORV_INLINE V channel_of(three<V> p)
{
    constexpr int N = V::N;
    return blended<lanes_of_channel<N>(2, channel)>(blended<lanes_of_channel<N>(1, channel)>(p.a, p.b), p.c);
}
template <int vector, class V>
ORV_INLINE V vector_of(three<V> c)
{
    constexpr int N = V::N;
    return blended<lanes_of_channel<N>(vector, 2)>(blended<lanes_of_channel<N>(vector, 1)>(c.a, c.b), c.c);
}
// From pixels to channels, and back.
template <class V>
ORV_INLINE three<V> separated(three<V> p)
{
    return {channel_of<0>(p), rotated<1>(channel_of<1>(p)), rotated<2>(channel_of<2>(p))};
}
template <class V>
ORV_INLINE three<V> side_by_side(three<V> c)
{
    const three<V> turned = {c.a, rotated<V::N - 1>(c.b), rotated<V::N - 2>(c.c)};
    return {vector_of<0>(turned), vector_of<1>(turned), vector_of<2>(turned)};
}

// --- The same on 32 bytes ---------------------------------------------------------------------------

#if ORV_HAVE_INT256
ORV_INLINE vec<s8, 32> sub_saturate(vec<s8, 32> a, vec<s8, 32> b) { return {_mm256_subs_epi8(a.v, b.v)}; }
ORV_INLINE vec<s32, 8> even_lanes(vec<s32, 8> a, vec<s32, 8> b)
{
    return {_mm256_castps_si256(_mm256_shuffle_ps(_mm256_castsi256_ps(a.v), _mm256_castsi256_ps(b.v), 0x88))};
}
ORV_INLINE vec<s32, 8> odd_lanes(vec<s32, 8> a, vec<s32, 8> b)
{
    return {_mm256_castps_si256(_mm256_shuffle_ps(_mm256_castsi256_ps(a.v), _mm256_castsi256_ps(b.v), 0xDD))};
}
ORV_INLINE vec<s16, 16> mul_rounded(vec<s16, 16> a, vec<s16, 16> b) { return {_mm256_mulhrs_epi16(a.v, b.v)}; }
template <int skipped> ORV_INLINE vec<u8, 32> joined(vec<u8, 32> low, vec<u8, 32> high)
{
    return {_mm256_alignr_epi8(high.v, low.v, skipped)};
}
ORV_INLINE vec<u16, 16> lower_halves(vec<u16, 16> a, vec<u16, 16> b) { return {_mm256_unpacklo_epi64(a.v, b.v)}; }
ORV_INLINE vec<u16, 16> upper_halves(vec<u16, 16> a, vec<u16, 16> b) { return {_mm256_unpackhi_epi64(a.v, b.v)}; }
template <>
ORV_INLINE vec<u16, 16> load_raised(const u8* p)
{
    return {_mm256_slli_epi16(_mm256_cvtepu8_epi16(_mm_loadu_si128(reinterpret_cast<const __m128i*>(p))), 8)};
}
template <int by>
ORV_INLINE vec<float, 8> rotated(vec<float, 8> a)
{
    const __m256i from = _mm256_setr_epi32(by % 8, (by + 1) % 8, (by + 2) % 8, (by + 3) % 8, (by + 4) % 8, (by + 5) % 8,
                                           (by + 6) % 8, (by + 7) % 8);
    return permuted(a, vec<s32, 8>{from});
}
ORV_INLINE three<vec<u8, 32>> in_parts(three<vec<u8, 32>> row)
{
    return {{_mm256_blend_epi32(row.a.v, row.b.v, 0xF0)},
            {_mm256_permute2x128_si256(row.a.v, row.c.v, 0x21)},
            {_mm256_blend_epi32(row.b.v, row.c.v, 0xF0)}};
}
#endif
#else
// Names for what the plain level compiles but does not run: a lone lane has no such places.
template <int skipped, class V> V joined(V low, V high);
template <int first, class V> V spread_triples(V all);
template <class V> V mul_rounded(V a, V b);
template <class V> three<V> in_parts(three<V> row);
template <class V> three<V> separated(three<V> p);
template <class V> three<V> side_by_side(three<V> c);
#endif

}  // namespace ORV_LEVEL
}  // namespace simd
}  // namespace orv
