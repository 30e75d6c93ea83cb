// Row transforms of images that are at most 64 wide, eight rows at a time: one row in each lane.
//
// A real transform of W samples is a complex one of the W/2 pairs (x[2n], x[2n+1]) and a split, the
// same as in real_fft.h with one lane for each row:
//   2 X[k] = E + W^k O,  2 X[W/2 - k] = conj (E - W^k O),  W = exp(-2 pi i / W).
// The line of pair n has the even samples of the rows as its real parts and the odd ones as its
// imaginary parts. Lanes and lines are exchanged on the way in and on the way out, where a line has
// eight frequencies of one row.
#pragma once

#include "spectral/real_fft.h"

namespace orv {
inline namespace ORV_LEVEL {
namespace {

class NarrowRows {
public:
    explicit NarrowRows(const RealPlan& plan) : plan_(plan), width_(1 << plan.order), half_(width_ / 2) {}

    // Rows of `src` times `factor` -> their spectra, doubled: X[0] and X[W/2] as the complex value u = 0, then the
    // others. line(c, r) is where the frequencies 8c to 8c + 7 of row r go; unused lanes are zero.
    template <class Line>
    void forward(const float* src, int step, int rows, float factor, Line line)
    {
        const float* at[kLanes];
        for (int r = 0; r < rows; ++r) at[r] = padded_row(src, step, r, factor);
        for (int r = rows; r < kLanes; ++r) at[r] = at[rows - 1];
        for (int x = 0; x < width_; x += kLanes) {
            for (int r = 0; r < kLanes; r += V::N) {
                V samples[kLanes];
                load_lanes_of(samples, at + r, x);
                ORV_UNROLL
                for (int i = 0; i < kLanes; ++i) simd::store(lines_[(x + i) / 2] + (i % 2) * kLanes + r, samples[i]);
            }
        }
        transform_lines<false>(plan_.lines, lines_[0], lines_[0]);
        split_ends(lines_[0]);
        for (int k = 1; 2 * k <= half_; ++k) split_pair(frequency(k), frequency(half_ - k), plan_.split + 2 * k);

        for (int k = half_; k < kLanes; ++k) __builtin_memset(lines_[k], 0, sizeof(lines_[k]));
        for (int u = 0; u < half_; u += kLanes) {
            for (int i = 0; i < kLanes; i += V::N) {
                const float* of[V::N];
                for (int j = 0; j < V::N; ++j) of[j] = u + i + j < half_ ? frequency(u + i + j) : lines_[u + i + j];
                for (int part = 0; part < kLineFloats; part += kLanes) {
                    V values[kLanes];
                    load_lanes_of(values, of, part);
                    for (int r = 0; r < rows; ++r) simd::store(line(u / kLanes, r) + part + i, values[r]);
                }
            }
        }
    }

    // Spectra, not doubled, in the same form -> `factor` times the unscaled inverse.
    template <class Line>
    void inverse(Line line, float* dst, int step, int rows, float factor)
    {
        for (int u = 0; u < half_; u += kLanes) {
            for (int r = 0; r < kLanes; r += V::N) {
                const float* of[V::N];
                for (int j = 0; j < V::N; ++j) of[j] = line(u / kLanes, r + j < rows ? r + j : rows - 1);
                for (int part = 0; part < kLineFloats; part += kLanes) {
                    V values[kLanes];
                    load_lanes_of(values, of, part);
                    for (int i = 0; i < kLanes && i < half_; ++i) simd::store(lines_[u + i] + part + r, values[i]);
                }
            }
        }
        unsplit_ends(lines_[0]);
        for (int k = 1; 2 * k <= half_; ++k) unsplit_pair(lines_[k], lines_[half_ - k], plan_.split + 2 * k);
        transform_lines<true>(plan_.lines, lines_[0], lines_[0]);

        const V scale = simd::splat<V>(factor);
        const bool direct = rows == kLanes && width_ >= kLanes;
        for (int x = 0; x < width_; x += kLanes) {
            for (int r = 0; r < kLanes; r += V::N) {
                V samples[kLanes];
                ORV_UNROLL
                for (int i = 0; i < kLanes; ++i) {
                    const int pair = (x + i) / 2 < half_ ? (x + i) / 2 : 0;
                    samples[i] = simd::load<V>(frequency(pair) + (i % 2) * kLanes + r) * scale;
                }
                float* to[V::N];
                for (int j = 0; j < V::N; ++j) to[j] = direct ? row_at(dst, step, r + j) : rows_[r + j];
                store_lanes_of(samples, to, x);
            }
        }
        if (direct) return;
        for (int r = 0; r < rows; ++r) {
            __builtin_memcpy(row_at(dst, step, r), rows_[r], static_cast<std::size_t>(width_) * sizeof(float));
        }
    }

private:
    using V = Widest;
    static constexpr int kMostLines = 32;

    float* frequency(int k) { return lines_[plan_.lines.position[k]]; }

    // A row times the factor, with at least eight samples to load.
    const float* padded_row(const float* src, int step, int r, float factor)
    {
        const float* const row = row_at(src, step, r);
        if (width_ >= kLanes && factor == 1.0f) return row;
        __builtin_memset(rows_[r], 0, kLanes * sizeof(float));
        __builtin_memcpy(rows_[r], row, static_cast<std::size_t>(width_) * sizeof(float));
        if (factor == 1.0f) return rows_[r];
        for (int x = 0; x < width_; ++x) simd::store(rows_[r] + x, simd::load<One>(rows_[r] + x) * One{factor});
        return rows_[r];
    }

    // Z[0] <-> 2 X[0] and 2 X[W/2] as one complex value; backwards without the factor.
    static ORV_INLINE void split_ends(float* line)
    {
        for (int lane = 0; lane < kLanes; lane += V::N) {
            const Complex<V> z = load_line<V>(line + lane);
            const V sum = z.re + z.im, difference = z.re - z.im;
            store_line(line + lane, Complex<V>{sum + sum, difference + difference});
        }
    }
    static ORV_INLINE void unsplit_ends(float* line)
    {
        for (int lane = 0; lane < kLanes; lane += V::N) {
            const Complex<V> x = load_line<V>(line + lane);
            store_line(line + lane, Complex<V>{x.re + x.im, x.re - x.im});
        }
    }

    const RealPlan& plan_;
    int width_, half_;
    alignas(64) float lines_[kMostLines][kLineFloats];
    alignas(64) float rows_[kLanes][2 * kMostLines];  // of images with fewer than eight rows or columns
};

}  // namespace
}  // namespace ORV_LEVEL
}  // namespace orv
