// Resampling with any number of taps per axis, in double: for each destination row first the weighted sum of
// source rows, then that of its columns, each from the first tap to the last.
#pragma once

#include <cstdint>

#include "core/checks.h"
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
    ORV_INLINE const T* top_of(int y) const { return row_at(src, srcStep, rows.first[y]) + std::ptrdiff_t{first_column} * Channels; }

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
            for (int k = 1; k < down; ++k) column += static_cast<double>(get(row_at(top, srcStep, k) + std::ptrdiff_t{i} * Channels)) * wy[k];
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
            __m256d low, high;
            load(top + i, low, high);
            __m256d factor = _mm256_broadcast_sd(w);
            __m256d a = _mm256_mul_pd(low, factor), b = _mm256_mul_pd(high, factor);
            for (int k = 1; k < taps; ++k) {
                load(row_at(top, srcStep, k) + i, low, high);
                factor = _mm256_broadcast_sd(w + k);
                a = _mm256_add_pd(a, _mm256_mul_pd(low, factor));
                b = _mm256_add_pd(b, _mm256_mul_pd(high, factor));
            }
            _mm256_storeu_pd(sums + i, a);
            _mm256_storeu_pd(sums + i + 4, b);
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
            const __m256d r0 = _mm256_loadu_pd(rows_of_sums + i), r1 = _mm256_loadu_pd(rows_of_sums + stride + i);
            const __m256d r2 = _mm256_loadu_pd(rows_of_sums + 2 * stride + i), r3 = _mm256_loadu_pd(rows_of_sums + 3 * stride + i);
            const __m256d a = _mm256_unpacklo_pd(r0, r1), b = _mm256_unpackhi_pd(r0, r1), c = _mm256_unpacklo_pd(r2, r3), d = _mm256_unpackhi_pd(r2, r3);
            _mm256_storeu_pd(quads + 4 * i, _mm256_permute2f128_pd(a, c, 0x20));
            _mm256_storeu_pd(quads + 4 * i + 4, _mm256_permute2f128_pd(b, d, 0x20));
            _mm256_storeu_pd(quads + 4 * i + 8, _mm256_permute2f128_pd(a, c, 0x31));
            _mm256_storeu_pd(quads + 4 * i + 12, _mm256_permute2f128_pd(b, d, 0x31));
        }
    }

    ORV_INLINE void sum_columns_of_four(const double* quads, T* const dst[4]) const
    {
        for (std::ptrdiff_t x = 0; x < width; ++x) {
            const double* const w = columns.weights + columns.start[x];
            const int taps = columns.start[x + 1] - columns.start[x];
            const double* const t = quads + 4 * (std::ptrdiff_t{columns.first[x]} - first_column);
            __m256d sum = _mm256_mul_pd(_mm256_loadu_pd(t), _mm256_broadcast_sd(w));
            for (int k = 1; k < taps; ++k) {
                sum = _mm256_add_pd(sum, _mm256_mul_pd(_mm256_loadu_pd(t + 4 * std::ptrdiff_t{k}), _mm256_broadcast_sd(w + k)));
            }
            T pixels[4];
            to_pixels(sum, pixels);
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
    static ORV_INLINE void pixel(const double* t, const double* w, int taps, T* dst)
    {
#if ORV_HAVE_INT256
        if constexpr (Channels > 1) {
            // Three channels read one more; there is room behind the sums.
            __m256d sum = _mm256_mul_pd(_mm256_loadu_pd(t), _mm256_broadcast_sd(w));
            for (int k = 1; k < taps; ++k) {
                sum = _mm256_add_pd(sum, _mm256_mul_pd(_mm256_loadu_pd(t + std::ptrdiff_t{k} * Channels), _mm256_broadcast_sd(w + k)));
            }
            T pixels[4];
            to_pixels(sum, pixels);
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

#if ORV_HAVE_INT256
    static ORV_INLINE void to_pixels(__m256d sum, std::uint8_t* pixels)
    {
        const __m128i integers = _mm256_cvtpd_epi32(sum);
        const int four = _mm_cvtsi128_si32(_mm_packus_epi16(_mm_packs_epi32(integers, integers), integers));
        __builtin_memcpy(pixels, &four, 4);
    }
    static ORV_INLINE void to_pixels(__m256d sum, std::uint16_t* pixels)
    {
        const __m128i integers = _mm256_cvtpd_epi32(sum);
        _mm_storel_epi64(reinterpret_cast<__m128i*>(pixels), _mm_packus_epi32(integers, integers));
    }
    static ORV_INLINE void to_pixels(__m256d sum, float* pixels)
    {
        const __m128 floats = _mm256_cvtpd_ps(sum);
        const __m128 nan = _mm_castsi128_ps(_mm_set1_epi32(0x7FC00000));
        _mm_storeu_ps(pixels, _mm_blendv_ps(floats, nan, _mm_cmpunord_ps(floats, floats)));
    }

    static ORV_INLINE void load(const std::uint8_t* p, __m256d& low, __m256d& high)
    {
        const __m256i words = _mm256_cvtepu8_epi32(_mm_loadl_epi64(reinterpret_cast<const __m128i*>(p)));
        low = _mm256_cvtepi32_pd(_mm256_castsi256_si128(words));
        high = _mm256_cvtepi32_pd(_mm256_extracti128_si256(words, 1));
    }
    static ORV_INLINE void load(const std::uint16_t* p, __m256d& low, __m256d& high)
    {
        const __m256i words = _mm256_cvtepu16_epi32(_mm_loadu_si128(reinterpret_cast<const __m128i*>(p)));
        low = _mm256_cvtepi32_pd(_mm256_castsi256_si128(words));
        high = _mm256_cvtepi32_pd(_mm256_extracti128_si256(words, 1));
    }
    static ORV_INLINE void load(const float* p, __m256d& low, __m256d& high)
    {
        low = _mm256_cvtps_pd(_mm_loadu_ps(p));
        high = _mm256_cvtps_pd(_mm_loadu_ps(p + 4));
    }
#endif
};

}  // namespace ORV_LEVEL
}  // namespace orv

#if ORV_HAVE_INT256
#include "image/resize/many_taps_wide.h"
#endif
