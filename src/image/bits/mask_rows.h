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
#include "simd/pixels.h"

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
    template <class V, int Bytes> ORV_INLINE V ends(std::ptrdiff_t n) const
    {
        return simd::load_ends<V, Bytes>(values, n);
    }
};

// --- From channels to pixels ----------------------------------------------------------------------
//
// Bytes that are 0 where a channel is fine, three or four vectors of them, become a mask of pixels.

// Lanes hold 24 bits, so narrowing may saturate them but never to 0.
template <class V>
ORV_INLINE V fine_pixels3(V f0, V f1, V f2)
{
    using Pixels = simd::twice<simd::recast<std::int32_t, V>>;
    using Words = simd::twice<simd::recast<std::uint16_t, V>>;
    const auto in_words = [](V low, V high) {
        return simd::as<std::uint16_t>(narrow(Pixels{simd::as<std::int32_t>(low), simd::as<std::int32_t>(high)}));
    };
    const simd::three<V> f = in_parts(simd::three<V>{f0, f1, f2});
    const auto low = in_words(simd::spread_triples<0>(f.a), simd::spread_triples<0>(simd::joined<12>(f.a, f.b)));
    const auto high = in_words(simd::spread_triples<0>(simd::joined<8>(f.b, f.c)), simd::spread_triples<4>(f.c));
    return equal(narrow(Words{low, high}), simd::zero<V>());
}

template <class V>
ORV_INLINE V fine_pixels4(V f0, V f1, V f2, V f3)
{
    using Pixels = simd::recast<std::int32_t, V>;
    const Pixels none = simd::zero<Pixels>();
    return pack_masks(equal(simd::as<std::int32_t>(f0), none), equal(simd::as<std::int32_t>(f1), none),
                      equal(simd::as<std::int32_t>(f2), none), equal(simd::as<std::int32_t>(f3), none));
}

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
    if constexpr (ORV_HAVE_VECTORS) {
        using Wide = simd::widest<std::uint8_t>;
        using Half = simd::half<std::uint8_t>;
        if (n >= Wide::N) return row_of_vectors<Wide, Pace::kOne>(dst, n, compute);
        if constexpr (sizeof(T) == 1 && Channels == 1) return short_row(dst, n, compute);
        if (n >= Half::N) return row_of_vectors<Half, Pace::kOne>(dst, n, compute);
    }
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
