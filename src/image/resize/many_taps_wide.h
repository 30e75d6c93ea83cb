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

#include "simd/conversion.h"

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
    using V = simd::vec<float, 8>;
    using Pixel = simd::half<float>;

    ORV_INLINE void sum_rows(int y) const
    {
        const std::ptrdiff_t samples = exact.samples();
        const T* const top = exact.top_of(y);
        const float* const w = row_weights + exact.rows.start[y];
        const int taps = exact.rows.start[y + 1] - exact.rows.start[y];
        const auto values = [](const T* p) { return simd::load_as<V>::from(p); };
        std::ptrdiff_t i = 0;
        for (; i + 16 <= samples; i += 16) {
            V factor = w[0];
            V a = values(top + i) * factor, b = values(top + i + 8) * factor;
            for (int k = 1; k < taps; ++k) {
                const T* const line = row_at(top, exact.srcStep, k) + i;
                factor = w[k];
                a = fused(values(line), factor, a);
                b = fused(values(line + 8), factor, b);
            }
            simd::store(sums + i, a);
            simd::store(sums + i + 8, b);
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
            Pixel sum = simd::load<Pixel>(t) * w[0];
            for (int k = 1; k < taps; ++k) {
                sum = fused(simd::load<Pixel>(t + std::ptrdiff_t{k} * Channels), w[k], sum);
            }
            simd::store(pixels + x * Channels, sum);
        }
    }

    ORV_INLINE void round_row(int y, T* dst) const
    {
        const int taps = exact.rows.start[y + 1] - exact.rows.start[y] + exact.most_columns;
        const V sure = 0.5f - 4e-5f * static_cast<float>(taps + 2);
        const std::ptrdiff_t samples = std::ptrdiff_t{exact.width} * Channels;
        std::ptrdiff_t i = 0;
        for (; i < samples; i += 8) {
            const V v = simd::load<V>(pixels + i);
            const auto nearest = round_to_int(v);
            unsigned doubts = lanes_of(greater_equal(magnitude(v - to_float(nearest)), sure));
            T bytes[8];
            simd::store_as(bytes, nearest);
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
