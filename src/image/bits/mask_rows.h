// Loops from images of any pixel type to a mask of one byte per pixel.
//
// A test is an object without state that has
//     template <class T> bool one(T a, T b)      its meaning, on scalars
//     template <class V> V holds(V a, V b)       the same on vectors: lanes of ones where it holds
//     template <class V> V fails(V a, V b)       on bytes only: lanes other than 0 where it does not
// A pixel of the mask is 255 where the test holds in every channel, else 0.
//
// Operands are images, or one constant for each channel. The loops are those of rows.h: full vectors of
// the mask, and a last one that overlaps its neighbour and is computed before anything is stored.
#pragma once

#include <cstdint>

#include "elementwise/rows.h"
#include "simd/conversion.h"

namespace orv {
inline namespace ORV_LEVEL {

// --- Operands -------------------------------------------------------------------------------------

template <class T, int Channels>
struct ImageOperand {
    const T* p;
    int step;

    ORV_INLINE ImageOperand row(int y) const { return {row_at(p, step, y), step}; }
    ORV_INLINE bool without_gaps(std::ptrdiff_t width) const
    {
        return step == width * Channels * static_cast<int>(sizeof(T));
    }
    ORV_INLINE T one(std::ptrdiff_t pixel, int channel) const { return get(p + pixel * Channels + channel); }
    // The elements from the one with number `element` of a pixel on.
    template <class V> ORV_INLINE V at(std::ptrdiff_t pixel, int element) const
    {
        return simd::load<V>(p + pixel * Channels + element);
    }
    template <class V, int Bytes> ORV_INLINE V ends(std::ptrdiff_t n) const { return simd::load_ends<V, Bytes>(p, n); }
};

template <class T, int Channels>
struct ConstantOperand {
    const T* values;  // where there are vectors, the row of a Pattern

    ORV_INLINE ConstantOperand row(int) const { return *this; }
    ORV_INLINE bool without_gaps(std::ptrdiff_t) const { return true; }
    ORV_INLINE T one(std::ptrdiff_t, int channel) const { return get(values + channel); }
    template <class V> ORV_INLINE V at(std::ptrdiff_t, int element) const
    {
        return simd::load<V>(values + (Channels == 3 ? element % 3 : 0));
    }
    template <class V, int Bytes> ORV_INLINE V ends(std::ptrdiff_t n) const { return simd::load_ends<V, Bytes>(values, n); }
};

// --- From channels to pixels ----------------------------------------------------------------------
//
// Bytes that are 0 where a channel is fine, three or four vectors of them, become a mask of pixels.

#if ORV_HAVE_VECTORS
using Bytes128 = simd::half<std::uint8_t>;

// Four groups of three bytes, each at the bottom of a 32-bit lane of its own.
ORV_INLINE __m128i spread3(__m128i a)
{
#if ORV_HAVE_BYTE_SHUFFLE
    return _mm_shuffle_epi8(a, _mm_setr_epi8(0, 1, 2, -1, 3, 4, 5, -1, 6, 7, 8, -1, 9, 10, 11, -1));
#else
    const __m128i lane0 = _mm_setr_epi32(0xFFFFFF, 0, 0, 0), lane1 = _mm_slli_si128(lane0, 4);
    const __m128i lane2 = _mm_slli_si128(lane0, 8), lane3 = _mm_slli_si128(lane0, 12);
    const __m128i lower = _mm_or_si128(_mm_and_si128(a, lane0), _mm_and_si128(_mm_slli_si128(a, 1), lane1));
    const __m128i upper = _mm_or_si128(_mm_and_si128(_mm_slli_si128(a, 2), lane2), _mm_and_si128(_mm_slli_si128(a, 3), lane3));
    return _mm_or_si128(lower, upper);
#endif
}
// The 16 bytes that begin `skipped` bytes into a.
template <int skipped>
ORV_INLINE __m128i across(__m128i a, __m128i next)
{
#if ORV_HAVE_BYTE_SHUFFLE
    return _mm_alignr_epi8(next, a, skipped);
#else
    return _mm_or_si128(_mm_srli_si128(a, skipped), _mm_slli_si128(next, 16 - skipped));
#endif
}

// Lanes hold 24 bits, so narrowing may saturate them but never to 0.
ORV_INLINE Bytes128 fine_pixels3(Bytes128 f0, Bytes128 f1, Bytes128 f2)
{
    const __m128i a = spread3(f0.v), b = spread3(across<12>(f0.v, f1.v));
    const __m128i c = spread3(across<8>(f1.v, f2.v)), d = spread3(_mm_srli_si128(f2.v, 4));
    const __m128i failures = _mm_packus_epi16(_mm_packs_epi32(a, b), _mm_packs_epi32(c, d));
    return {_mm_cmpeq_epi8(failures, _mm_setzero_si128())};
}

#if ORV_HAVE_INT256
using Bytes256 = simd::widest<std::uint8_t>;

ORV_INLINE Bytes256 fine_pixels3(Bytes256 f0, Bytes256 f1, Bytes256 f2)
{
    // Sixteen pixels to each half.
    const __m256i x = _mm256_blend_epi32(f0.v, f1.v, 0xF0), y = _mm256_permute2x128_si256(f0.v, f2.v, 0x21);
    const __m256i z = _mm256_blend_epi32(f1.v, f2.v, 0xF0);
    const __m256i spread = _mm256_setr_epi8(0, 1, 2, -1, 3, 4, 5, -1, 6, 7, 8, -1, 9, 10, 11, -1,
                                            0, 1, 2, -1, 3, 4, 5, -1, 6, 7, 8, -1, 9, 10, 11, -1);
    const __m256i spread_upper = _mm256_add_epi8(spread, _mm256_set1_epi32(0x00040404));
    const __m256i a = _mm256_shuffle_epi8(x, spread), b = _mm256_shuffle_epi8(_mm256_alignr_epi8(y, x, 12), spread);
    const __m256i c = _mm256_shuffle_epi8(_mm256_alignr_epi8(z, y, 8), spread), d = _mm256_shuffle_epi8(z, spread_upper);
    const __m256i failures = _mm256_packus_epi16(_mm256_packs_epi32(a, b), _mm256_packs_epi32(c, d));
    return {_mm256_cmpeq_epi8(failures, _mm256_setzero_si256())};
}
#endif

template <class V>
ORV_INLINE V fine_pixels4(V f0, V f1, V f2, V f3)
{
    using Pixels = simd::recast<std::int32_t, V>;
    const Pixels none = simd::zero<Pixels>();
    return pack_masks(equal(simd::as<std::int32_t>(f0), none), equal(simd::as<std::int32_t>(f1), none),
                      equal(simd::as<std::int32_t>(f2), none), equal(simd::as<std::int32_t>(f3), none));
}
#endif

// --- Rows -----------------------------------------------------------------------------------------

template <class T, int Channels, class Test, class A, class B>
struct MaskOf {
    A a;
    B b;
    Test test;

    ORV_INLINE std::uint8_t one(std::ptrdiff_t pixel) const
    {
        bool all = true;
        for (int c = 0; c < Channels; ++c) all = all & test.one(a.one(pixel, c), b.one(pixel, c));
        return all ? 255 : 0;
    }
    // V: a vector of the mask.
    template <class V> ORV_INLINE V at(std::ptrdiff_t pixel) const
    {
        if constexpr (Channels == 1) {
            return holds<V>(pixel, 0);
        } else {
            // Written out: an array that a loop fills would go through memory.
            const V f0 = fails<V>(pixel, 0), f1 = fails<V>(pixel, V::N), f2 = fails<V>(pixel, 2 * V::N);
            if constexpr (Channels == 3) return fine_pixels3(f0, f1, f2);
            if constexpr (Channels == 4) return fine_pixels4(f0, f1, f2, fails<V>(pixel, 3 * V::N));
        }
    }
    template <class V, int Bytes> ORV_INLINE V ends(std::ptrdiff_t n) const
    {
        return test.holds(a.template ends<V, Bytes>(n), b.template ends<V, Bytes>(n));
    }

private:
    // V::N elements as bytes.
    template <class V> ORV_INLINE V holds(std::ptrdiff_t pixel, int element) const
    {
        using Source = simd::recast<T, V>;
        const auto part = [&](int i) {
            const int from = element + i * Source::N;
            return test.holds(a.template at<Source>(pixel, from), b.template at<Source>(pixel, from));
        };
        if constexpr (sizeof(T) == 1) return part(0);
        if constexpr (sizeof(T) == 2) return pack_masks(part(0), part(1));
        if constexpr (sizeof(T) == 4) {
            const auto words = [&](int i) { return simd::as<std::int32_t>(bits(part(i))); };
            return pack_masks(words(0), words(1), words(2), words(3));
        }
    }
    template <class V> ORV_INLINE V fails(std::ptrdiff_t pixel, int element) const
    {
        if constexpr (sizeof(T) == 1) {
            return test.fails(a.template at<V>(pixel, element), b.template at<V>(pixel, element));
        } else {
            return ~holds<V>(pixel, element);
        }
    }
};

template <class T, int Channels, class Test, class A, class B>
ORV_INLINE void mask_row(std::uint8_t* dst, std::ptrdiff_t n, MaskOf<T, Channels, Test, A, B> compute)
{
#if ORV_HAVE_VECTORS
    using Wide = simd::widest<std::uint8_t>;
    using Half = simd::half<std::uint8_t>;
    if (n >= Wide::N) return row_of_vectors<Wide, Pace::kOne>(dst, n, compute);
    if constexpr (sizeof(T) == 1 && Channels == 1) return short_row(dst, n, compute);
    if (n >= Half::N) return row_of_vectors<Half, Pace::kOne>(dst, n, compute);
#endif
    for (std::ptrdiff_t i = 0; i < n; ++i) dst[i] = compute.one(i);
}

template <class T, int Channels, class Test, class A, class B>
inline void mask_plane(Test test, A a, B b, std::uint8_t* dst, int dstStep, Size roi)
{
    Rows rows(roi, 1);
    rows.merge(a.without_gaps(rows.n) && b.without_gaps(rows.n) && dstStep == rows.n);
    for (int y = 0; y < rows.count; ++y) {
        mask_row(row_at(dst, dstStep, y), rows.n, MaskOf<T, Channels, Test, A, B>{a.row(y), b.row(y), test});
    }
}

}  // namespace ORV_LEVEL
}  // namespace orv
