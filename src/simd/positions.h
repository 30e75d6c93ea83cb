// What loops need that compute places in memory and fetch from them.
#pragma once

#include "simd/conversion.h"
#include "simd/partial.h"
#include "simd/pixels.h"
#include "simd/reductions.h"
#include "simd/shuffles.h"
#include "simd/vec.h"

#if ORV_HAVE_VECTORS

namespace orv {
namespace simd {
inline namespace ORV_LEVEL {

#if ORV_HAVE_INT256

using doubles256 = vec<double, 4>;
using floats256 = vec<float, 8>;
using words256 = vec<u64, 4>;

// --- Numbers ----------------------------------------------------------------------------------------

ORV_INLINE doubles256 whole_part(doubles256 a)
{
    return {_mm256_round_pd(a.v, _MM_FROUND_TO_ZERO | _MM_FROUND_NO_EXC)};
}
// a times a power of two as integers, to the nearest, ties to even; from 0 to 2^51.
ORV_INLINE words256 to_words(doubles256 a, double power)
{
    const __m256d shift = _mm256_set1_pd(0x1p52);
    const __m256d sum = add_exact_product(a, splat<doubles256>(power), doubles256{shift}).v;
    return {_mm256_xor_si256(_mm256_castpd_si256(sum), _mm256_castpd_si256(shift))};
}
// Whole numbers up to 2^51 in magnitude.
ORV_INLINE words256 to_signed_words(doubles256 whole)
{
    const __m256d shift = _mm256_set1_pd(0x1.8p52);
    return {_mm256_sub_epi64(_mm256_castpd_si256(_mm256_add_pd(whole.v, shift)), _mm256_castpd_si256(shift))};
}
// Products of the lower halves, signed.
ORV_INLINE words256 mul_lower(words256 a, words256 b) { return {_mm256_mul_epi32(a.v, b.v)}; }
// The lower halves of a, then those of b.
ORV_INLINE vec<s32, 8> lower_halves(words256 a, words256 b)
{
    const __m256 both = _mm256_shuffle_ps(_mm256_castsi256_ps(a.v), _mm256_castsi256_ps(b.v), 0x88);
    return {_mm256_permute4x64_epi64(_mm256_castps_si256(both), 0xD8)};
}

// Loads of single lanes from memory are free of the shuffles that compilers would rather take them out of registers by.
template <class T, std::size_t n>
ORV_INLINE void in_memory(T (&array)[n])
{
    __asm__("" : "+m"(array));
}

// --- Lanes from eight or four places ----------------------------------------------------------------

template <class T>
ORV_INLINE const T* displaced(const T* base, s64 bytes)
{
    return reinterpret_cast<const T*>(reinterpret_cast<std::size_t>(base) + static_cast<std::size_t>(bytes));
}
ORV_INLINE vec<s32, 4> four_dwords_at(const void* base, const s64* at)
{
    const char* const p = static_cast<const char*>(base);
    const __m128i low = _mm_unpacklo_epi32(load_32(displaced(p, at[0])), load_32(displaced(p, at[1])));
    const __m128i high = _mm_unpacklo_epi32(load_32(displaced(p, at[2])), load_32(displaced(p, at[3])));
    return {_mm_unpacklo_epi64(low, high)};
}
ORV_INLINE vec<s32, 8> dwords_at(const void* base, const s64* at)
{
    return {
        _mm256_inserti128_si256(_mm256_castsi128_si256(four_dwords_at(base, at).v), four_dwords_at(base, at + 4).v, 1)};
}
// Two bytes from each of eight places, as words. Reads four.
ORV_INLINE vec<s16, 16> pairs_of_bytes_at(const u8* base, const s64* at)
{
    const auto two = [&](int i, int j) {
        return _mm_unpacklo_epi16(load_32(displaced(base, at[i])), load_32(displaced(base, at[j])));
    };
    const __m128i low = _mm_unpacklo_epi32(two(0, 1), two(2, 3)), high = _mm_unpacklo_epi32(two(4, 5), two(6, 7));
    return {_mm256_cvtepu8_epi16(_mm_unpacklo_epi64(low, high))};
}
// Two floats from each of eight places: the first ones and the second ones.
ORV_INLINE twice<floats256> pairs_of_floats_at(const float* base, const s64* at)
{
    const auto two = [&](int i, int j) {
        return _mm_castsi128_ps(_mm_unpacklo_epi32(load_64(displaced(base, at[i])), load_64(displaced(base, at[j]))));
    };
    const auto four = [](__m128 low, __m128 high) {
        return _mm256_insertf128_ps(_mm256_castps128_ps256(low), high, 1);
    };
    const __m256 a = four(two(0, 1), two(4, 5)), b = four(two(2, 3), two(6, 7));
    const __m256d c = _mm256_castps_pd(a), d = _mm256_castps_pd(b);
    return {{_mm256_castpd_ps(_mm256_unpacklo_pd(c, d))}, {_mm256_castpd_ps(_mm256_unpackhi_pd(c, d))}};
}
// Eight bytes from each of two places, each at the start of a half.
ORV_INLINE vec<u8, 32> two_qwords(const void* first, const void* second)
{
    s64 high;
    std::memcpy(&high, second, sizeof(high));
    // A load into all quarters spares the shuffle that moves a half up.
    return {_mm256_blend_epi32(_mm256_castsi128_si256(load_64(first)), _mm256_set1_epi64x(high), 0xF0)};
}
// Four pixels of one channel in a row from each of four places: vectors of the first, the second ... pixels.
ORV_INLINE void four_in_a_row(const u8* base, const s64* at, doubles256* taps)
{
    const __m128i rows = four_dwords_at(base, at).v, byte = _mm_set1_epi32(0xFF);
    taps[0].v = _mm256_cvtepi32_pd(_mm_and_si128(rows, byte));
    taps[1].v = _mm256_cvtepi32_pd(_mm_and_si128(_mm_srli_epi32(rows, 8), byte));
    taps[2].v = _mm256_cvtepi32_pd(_mm_and_si128(_mm_srli_epi32(rows, 16), byte));
    taps[3].v = _mm256_cvtepi32_pd(_mm_srli_epi32(rows, 24));
}
ORV_INLINE void two_in_a_row(const u16* base, const s64* at, doubles256* taps)
{
    const __m128i rows = four_dwords_at(base, at).v;
    taps[0].v = _mm256_cvtepi32_pd(_mm_and_si128(rows, _mm_set1_epi32(0xFFFF)));
    taps[1].v = _mm256_cvtepi32_pd(_mm_srli_epi32(rows, 16));
}
ORV_INLINE void four_in_a_row(const u16* base, const s64* at, doubles256* taps)
{
    const auto row = [&](int i) { return load_64(displaced(base, at[i])); };
    const __m128i a = _mm_unpacklo_epi32(row(0), row(1)), b = _mm_unpacklo_epi32(row(2), row(3));
    const __m128i first = _mm_unpacklo_epi64(a, b), second = _mm_unpackhi_epi64(a, b), word = _mm_set1_epi32(0xFFFF);
    taps[0].v = _mm256_cvtepi32_pd(_mm_and_si128(first, word));
    taps[1].v = _mm256_cvtepi32_pd(_mm_srli_epi32(first, 16));
    taps[2].v = _mm256_cvtepi32_pd(_mm_and_si128(second, word));
    taps[3].v = _mm256_cvtepi32_pd(_mm_srli_epi32(second, 16));
}
ORV_INLINE void four_in_a_row(const float* base, const s64* at, doubles256* taps)
{
    const auto row = [&](int i) { return _mm_loadu_ps(displaced(base, at[i])); };
    const __m128 a = _mm_unpacklo_ps(row(0), row(1)), b = _mm_unpackhi_ps(row(0), row(1));
    const __m128 c = _mm_unpacklo_ps(row(2), row(3)), d = _mm_unpackhi_ps(row(2), row(3));
    taps[0].v = _mm256_cvtps_pd(_mm_movelh_ps(a, c));
    taps[1].v = _mm256_cvtps_pd(_mm_movehl_ps(c, a));
    taps[2].v = _mm256_cvtps_pd(_mm_movelh_ps(b, d));
    taps[3].v = _mm256_cvtps_pd(_mm_movehl_ps(d, b));
}
// In each half its own lane of a: those of lanes n and n + 1.
ORV_INLINE vec<s32, 8> splat_halves(vec<s32, 8> a, int n)
{
    return permuted(a, vec<s32, 8>{_mm256_setr_epi32(n, n, n, n, n + 1, n + 1, n + 1, n + 1)});
}
// Likewise from memory.
ORV_INLINE floats256 splat_halves(const float* p, const float* q)
{
    return {_mm256_blend_ps(_mm256_broadcast_ss(p), _mm256_broadcast_ss(q), 0xF0)};
}
// --- Pixels of four channels as floats ----------------------------------------------------------------

// Sixteen bytes as two vectors.
ORV_INLINE twice<floats256> to_floats(vec<u8, 16> a)
{
    return {{_mm256_cvtepi32_ps(_mm256_cvtepu8_epi32(a.v))},
            {_mm256_cvtepi32_ps(_mm256_cvtepu8_epi32(_mm_srli_si128(a.v, 8)))}};
}
// Four pixels of three or four channels in a row, each in four bytes. Reads 16 bytes.
template <int channels>
ORV_INLINE vec<u8, 16> four_pixels(const u8* p)
{
    const auto row = load<vec<u8, 16>>(p);
    return channels == 4 ? row : spread_triples<0>(row);
}
// --- Results ----------------------------------------------------------------------------------------

// Two quadruples of pixels of four bytes as six times four bytes: without their fourth ones.
ORV_INLINE void store_triples(u8* p, vec<u8, 32> a)
{
    const __m256i packed =
        _mm256_shuffle_epi8(a.v, _mm256_setr_epi8(0, 1, 2, 4, 5, 6, 8, 9, 10, 12, 13, 14, -1, -1, -1, -1, 0, 1, 2, 4, 5,
                                                  6, 8, 9, 10, 12, 13, 14, -1, -1, -1, -1));
    const __m128i high = _mm256_extracti128_si256(packed, 1);
    _mm_storeu_si128(reinterpret_cast<__m128i*>(p), _mm256_castsi256_si128(packed));
    _mm_storel_epi64(reinterpret_cast<__m128i*>(p + 12), high);
    const s32 last = _mm_extract_epi32(high, 2);
    std::memcpy(p + 20, &last, sizeof(last));
}
#endif

}  // namespace ORV_LEVEL
}  // namespace simd
}  // namespace orv

#endif  // ORV_HAVE_VECTORS
