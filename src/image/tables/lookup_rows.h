// Rows of pixels through a table. Eight pixels are read before any is written, so that their loads need not wait for
// stores that might overlap.
#pragma once

#include <cstdint>

#include "core/checks.h"
#include "elementwise/rows.h"

namespace orv {
inline namespace ORV_LEVEL {

// Eight pixels as words of the processor.
template <class T>
struct EightPixels {
    static constexpr int kPerWord = 8 / static_cast<int>(sizeof(T));
    std::uint64_t word[sizeof(T)];

    ORV_INLINE explicit EightPixels(const T* p) { __builtin_memcpy(word, p, sizeof(word)); }
    ORV_INLINE std::size_t operator[](int i) const
    {
        constexpr int bits = 8 * static_cast<int>(sizeof(T));
        const std::uint64_t shifted = word[i / kPerWord] >> (bits * (i % kPerWord));
        return static_cast<std::size_t>(static_cast<T>(shifted));
    }
};

// Entry(i, pixel) is what the i-th of eight pixels becomes; i is a constant after unrolling.
template <class From, class To, class Entry>
ORV_INLINE void lookup_row(const From* src, To* dst, std::ptrdiff_t n, Entry entry)
{
    std::ptrdiff_t x = 0;
    for (; x + 8 <= n; x += 8) {
        const EightPixels<From> pixels(src + x);
        To out[8];
#pragma GCC unroll 8
        for (int i = 0; i < 8; ++i) out[i] = entry(i, pixels[i]);
#pragma GCC unroll 8
        for (int i = 0; i < 8; ++i) put(dst + x + i, out[i]);
    }
    for (int i = 0; x < n; ++x, ++i) put(dst + x, entry(i, static_cast<std::size_t>(get(src + x))));
}

template <class From, class To>
ORV_INLINE Rows rows_between(int srcStep, int dstStep, Size roi, int channels)
{
    Rows rows(roi, channels);
    const auto gapless = [&](int step, std::size_t size) { return step == rows.n * static_cast<std::ptrdiff_t>(size); };
    rows.merge(gapless(srcStep, sizeof(From)) && gapless(dstStep, sizeof(To)));
    return rows;
}

template <class From, class To>
inline void lookup_plane(const From* src, int srcStep, const To* table, To* dst, int dstStep, Size roi,
                         int channels = 1)
{
    const Rows rows = rows_between<From, To>(srcStep, dstStep, roi, channels);
    for (int y = 0; y < rows.count; ++y) {
        lookup_row(row_at(src, srcStep, y), row_at(dst, dstStep, y), rows.n,
                   [=](int, std::size_t pixel) { return get(table + pixel); });
    }
}

}  // namespace ORV_LEVEL
}  // namespace orv
