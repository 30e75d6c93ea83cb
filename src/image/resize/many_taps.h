// Resampling with any number of taps per axis, in double: for each destination row first the weighted sum of
// source rows, then that of its columns, each from the first tap to the last.
#pragma once

#include <cstdint>

#include "core/checks.h"
#include "simd/conversion.h"
#include "simd/partial.h"
#include "simd/shuffles.h"
#include "simd/vec.h"
#include "image/resize/pixel_rounding.h"
#include "image/resize/square_axis.h"

namespace orv {
inline namespace ORV_LEVEL {

template <class T, int Channels>
class ManyTaps {
public:
    const T* src;
    int srcStep;
    const Taps& columns;
    const Taps& rows;
    double* sums;  // of the columns from the first tap to the last
    int width;
    int first_column = 0, end_column = 0;
    int most_columns = 0, most_rows = 0;  // taps

    // A position on a pixel has one tap, its neighbours more: neither first taps nor last ones ascend.
    ORV_INLINE void find_extent(int height)
    {
        for (int y = 0; y < height; ++y) {
            const int taps = rows.start[y + 1] - rows.start[y];
            if (taps > most_rows) most_rows = taps;
        }
        first_column = columns.first[0];
        for (int x = 0; x < width; ++x) {
            const int taps = columns.start[x + 1] - columns.start[x];
            const int end = columns.first[x] + taps;
            if (taps > most_columns) most_columns = taps;
            if (columns.first[x] < first_column) first_column = columns.first[x];
            if (end > end_column) end_column = end;
        }
    }

    ORV_INLINE std::ptrdiff_t samples() const { return (std::ptrdiff_t{end_column} - first_column) * Channels; }
    ORV_INLINE const T* top_of(int y) const
    {
        return row_at(src, srcStep, rows.first[y]) + std::ptrdiff_t{first_column} * Channels;
    }

    // One sample of the destination, by the same sums.
    __attribute__((noinline)) T sample(int y, std::ptrdiff_t at) const
    {
        const std::ptrdiff_t x = at / Channels, c = at % Channels;
        const double* const wx = columns.weights + columns.start[x];
        const double* const wy = rows.weights + rows.start[y];
        const int across = columns.start[x + 1] - columns.start[x], down = rows.start[y + 1] - rows.start[y];
        const T* const top = top_of(y) + std::ptrdiff_t{columns.first[x] - first_column} * Channels + c;
        double sum = 0;
        for (int i = 0; i < across; ++i) {
            double column = static_cast<double>(get(top + std::ptrdiff_t{i} * Channels)) * wy[0];
            for (int k = 1; k < down; ++k)
                column += static_cast<double>(get(row_at(top, srcStep, k) + std::ptrdiff_t{i} * Channels)) * wy[k];
            sum = i == 0 ? column * wx[0] : sum + column * wx[i];
        }
        return to_pixel<T>(sum);
    }

    ORV_INLINE void sum_rows(int y)
    {
        const std::ptrdiff_t samples = this->samples();
        const T* const top = top_of(y);
        const double* const w = rows.weights + rows.start[y];
        const int taps = rows.start[y + 1] - rows.start[y];
        std::ptrdiff_t i = 0;
#if ORV_HAVE_INT256
        for (; i + 8 <= samples; i += 8) {
            using Eight = simd::twice<Four>;
            Eight sum = simd::load_as<Eight>::from(top + i) * simd::splat_at<Four>(w);
            for (int k = 1; k < taps; ++k) {
                sum = sum + simd::load_as<Eight>::from(row_at(top, srcStep, k) + i) * simd::splat_at<Four>(w + k);
            }
            simd::store(sums + i, sum);
        }
#endif
        for (; i < samples; ++i) {
            double sum = static_cast<double>(get(top + i)) * w[0];
            for (int k = 1; k < taps; ++k) sum += static_cast<double>(get(row_at(top, srcStep, k) + i)) * w[k];
            sums[i] = sum;
        }
    }

#if ORV_HAVE_INT256
    // One channel: four rows of sums side by side, so that four rows of the destination come from each tap.
    // `rows_of_sums` are `stride` apart; `quads` has room for four times as many.
    ORV_INLINE void interleave(const double* rows_of_sums, std::ptrdiff_t stride, double* quads) const
    {
        const std::ptrdiff_t samples = end_column - first_column;
        for (std::ptrdiff_t i = 0; i < samples; i += 4) {
            Four rows_of_four[4];
            for (int r = 0; r < 4; ++r) rows_of_four[r] = simd::load<Four>(rows_of_sums + r * stride + i);
            transpose(rows_of_four);
            for (int r = 0; r < 4; ++r) simd::store(quads + 4 * (i + r), rows_of_four[r]);
        }
    }

    ORV_INLINE void sum_columns_of_four(const double* quads, T* const dst[4]) const
    {
        for (std::ptrdiff_t x = 0; x < width; ++x) {
            const double* const w = columns.weights + columns.start[x];
            const int taps = columns.start[x + 1] - columns.start[x];
            const double* const t = quads + 4 * (std::ptrdiff_t{columns.first[x]} - first_column);
            T pixels[4];
            simd::store_as(pixels, sum_of_taps<4>(t, w, taps));
            for (int r = 0; r < 4; ++r) put(dst[r] + x, pixels[r]);
        }
    }
#endif

    ORV_INLINE void sum_columns(T* dst) const
    {
        for (std::ptrdiff_t x = 0; x < width; ++x) {
            const double* const w = columns.weights + columns.start[x];
            const int taps = columns.start[x + 1] - columns.start[x];
            const double* const t = sums + std::ptrdiff_t{columns.first[x] - first_column} * Channels;
            pixel(t, w, taps, dst + x * Channels);
        }
    }

private:
    using Four = simd::vec<double, 4>;
#if ORV_HAVE_INT256
    // Of four samples side by side.
    template <int distance>
    static ORV_INLINE Four sum_of_taps(const double* t, const double* w, int taps)
    {
        Four sum = simd::load<Four>(t) * simd::splat_at<Four>(w);
        for (int k = 1; k < taps; ++k) {
            sum = sum + simd::load<Four>(t + std::ptrdiff_t{k} * distance) * simd::splat_at<Four>(w + k);
        }
        return sum;
    }
#endif
    static ORV_INLINE void pixel(const double* t, const double* w, int taps, T* dst)
    {
#if ORV_HAVE_INT256
        if constexpr (Channels > 1) {
            // Three channels read one more; there is room behind the sums.
            T pixels[4];
            simd::store_as(pixels, sum_of_taps<Channels>(t, w, taps));
            __builtin_memcpy(dst, pixels, Channels);
            return;
        }
#endif
        for (int c = 0; c < Channels; ++c) {
            double sum = t[c] * w[0];
            for (int k = 1; k < taps; ++k) sum += t[k * Channels + c] * w[k];
            put(dst + c, to_pixel<T>(sum));
        }
    }

};

}  // namespace ORV_LEVEL
}  // namespace orv

#if ORV_HAVE_INT256
#include "image/resize/many_taps_wide.h"
#endif
