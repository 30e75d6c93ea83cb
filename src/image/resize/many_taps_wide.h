// Any number of taps on bytes, with 256-bit vectors: in float, with fused multiplications, and once more in
// double where the result lies near the middle between two integers. The bits are those of the sums in double.
//
// Each weight, as a float, is off by 2^-24 of itself, and each of n fused multiplications by 2^-24 of the sum so
// far, which stays below 255 S with the weights' magnitudes adding up to S. Rows and columns together are
// off by less than (n_rows + n_columns + 2) 2^-24 255 S^2; S^2 is below 2.5 for every kernel here (the worst
// is the Lanczos kernel).
//
// Included by many_taps.h where there are 256-bit integers.
#pragma once

namespace orv {
inline namespace ORV_LEVEL {

template <int Channels>
class ManyTapsOfBytes {
public:
    using T = std::uint8_t;
    // Beyond that many taps of rows and columns too many pixels would need the second look.
    static constexpr int kMostTaps = 64;

    const ManyTaps<T, Channels>& exact;
    float* sums;    // of columns, with room for eight more
    float* pixels;  // a row of the destination before it is rounded, likewise
    // The weights as floats.
    float* column_weights;
    float* row_weights;

    ORV_INLINE void prepare(int height) const
    {
        const auto copy = [](const double* from, float* to, int count) {
            for (int i = 0; i < count; ++i) to[i] = static_cast<float>(from[i]);
        };
        copy(exact.columns.weights, column_weights, exact.columns.start[exact.width]);
        copy(exact.rows.weights, row_weights, exact.rows.start[height]);
    }

    ORV_INLINE void row(int y, T* dst) const
    {
        sum_rows(y);
        sum_columns();
        round_row(y, dst);
    }

private:
    ORV_INLINE void sum_rows(int y) const
    {
        const std::ptrdiff_t samples = exact.samples();
        const T* const top = exact.top_of(y);
        const float* const w = row_weights + exact.rows.start[y];
        const int taps = exact.rows.start[y + 1] - exact.rows.start[y];
        const auto values = [](const T* p) {
            return _mm256_cvtepi32_ps(_mm256_cvtepu8_epi32(_mm_loadl_epi64(reinterpret_cast<const __m128i*>(p))));
        };
        std::ptrdiff_t i = 0;
        for (; i + 16 <= samples; i += 16) {
            __m256 factor = _mm256_set1_ps(w[0]);
            __m256 a = _mm256_mul_ps(values(top + i), factor), b = _mm256_mul_ps(values(top + i + 8), factor);
            for (int k = 1; k < taps; ++k) {
                const T* const line = row_at(top, exact.srcStep, k) + i;
                factor = _mm256_set1_ps(w[k]);
                a = _mm256_fmadd_ps(values(line), factor, a);
                b = _mm256_fmadd_ps(values(line + 8), factor, b);
            }
            _mm256_storeu_ps(sums + i, a);
            _mm256_storeu_ps(sums + i + 8, b);
        }
        for (; i < samples; ++i) {
            float sum = 0;
            for (int k = 0; k < taps; ++k) sum += static_cast<float>(row_at(top, exact.srcStep, k)[i]) * w[k];
            sums[i] = sum;
        }
    }

    // The fourth lane of three channels is overwritten by the next pixel.
    ORV_INLINE void sum_columns() const
    {
        const Taps& columns = exact.columns;
        for (std::ptrdiff_t x = 0; x < exact.width; ++x) {
            const float* const w = column_weights + columns.start[x];
            const int taps = columns.start[x + 1] - columns.start[x];
            const float* const t = sums + std::ptrdiff_t{columns.first[x] - exact.first_column} * Channels;
            __m128 sum = _mm_mul_ps(_mm_loadu_ps(t), _mm_set1_ps(w[0]));
            for (int k = 1; k < taps; ++k) {
                sum = _mm_fmadd_ps(_mm_loadu_ps(t + std::ptrdiff_t{k} * Channels), _mm_set1_ps(w[k]), sum);
            }
            _mm_storeu_ps(pixels + x * Channels, sum);
        }
    }

    ORV_INLINE void round_row(int y, T* dst) const
    {
        const int taps = exact.rows.start[y + 1] - exact.rows.start[y] + exact.most_columns;
        const __m256 sure = _mm256_set1_ps(0.5f - 4e-5f * static_cast<float>(taps + 2));
        const std::ptrdiff_t samples = std::ptrdiff_t{exact.width} * Channels;
        std::ptrdiff_t i = 0;
        for (; i < samples; i += 8) {
            const __m256 v = _mm256_loadu_ps(pixels + i);
            const __m256i nearest = _mm256_cvtps_epi32(v);
            const __m256 off = _mm256_andnot_ps(_mm256_set1_ps(-0.f), _mm256_sub_ps(v, _mm256_cvtepi32_ps(nearest)));
            unsigned doubts = static_cast<unsigned>(_mm256_movemask_ps(_mm256_cmp_ps(off, sure, _CMP_NLT_UQ)));
            const __m128i words = _mm_packs_epi32(_mm256_castsi256_si128(nearest), _mm256_extracti128_si256(nearest, 1));
            T bytes[8];
            _mm_storel_epi64(reinterpret_cast<__m128i*>(bytes), _mm_packus_epi16(words, words));
            const std::ptrdiff_t left = samples - i;
            if (left < 8) doubts &= (1u << left) - 1;
            for (; __builtin_expect(doubts != 0, 0); doubts &= doubts - 1) {
                const int lane = __builtin_ctz(doubts);
                bytes[lane] = exact.sample(y, i + lane);
            }
            __builtin_memcpy(dst + i, bytes, left < 8 ? static_cast<std::size_t>(left) : 8);
        }
    }
};

}  // namespace ORV_LEVEL
}  // namespace orv
