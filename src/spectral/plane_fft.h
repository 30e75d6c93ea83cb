// Transforms of W x H real images, to and from RCPack2D.
//
// Rows are real transforms, those of narrow images eight at a time. Their W/2 - 1 complex columns are gathered eight at a time into columns of
// lines (line_fft.h), so that the column transforms are vertical in every respect. Columns 0 and W/2
// of the row spectra are real: they travel as real and imaginary part of one complex column, lane 0 of
// the first column of lines, and are taken apart at the end.
#pragma once

#include "spectral/layouts.h"
#include "spectral/narrow_rows.h"
#include "spectral/real_fft.h"

namespace orv {
inline namespace ORV_LEVEL {
namespace {

class Plane {
public:
    Plane(const Fft2Spec& spec, unsigned char* memory)
        : rows_(spec.rows), columns_(spec.columns), width_(1 << spec.rows.order), height_(1 << spec.columns.order),
          columns_of_lines_(static_cast<int>(columns_of_lines(spec.rows.order))), lines_(at_boundary<float>(memory)),
          row_(lines_ + columns_of_lines_ * column_floats()),
          work_(row_ + kRows * row_floats())
    {
    }

    void forward(const float* src, int srcStep, float* dst, int dstStep, float factor) const
    {
        if (is_narrow()) {
            NarrowRows rows(rows_);
            for (int y = 0; y < height_; y += kLanes) {
                rows.forward(row_at(src, srcStep, y), srcStep, rows_from(y), [=](int c, int r) { return line(c, y + r); });
            }
            factor *= 0.5f;
        } else {
            forward_rows(src, srcStep);
        }
        for (int first = 0; first < columns_of_lines_; first += kBlock) {
            const int end = first + kBlock < columns_of_lines_ ? first + kBlock : columns_of_lines_;
            for (int c = first; c < end; ++c) transform_lines<false>(columns_, line(c, 0), line(c, 0));
            const V factors = Lanes<V>::splat(factor);
            for (int v = 0; v < height_; ++v) {
                float* const row = row_at(dst, dstStep, v);
                for (int c = first; c < end; ++c) store_packed(row, c, line(c, columns_.position[v]), factors);
            }
        }
        for (int v = 0; v <= height_ / 2; ++v) store_real_columns(dst, dstStep, v, factor);
    }

    void inverse(const float* src, int srcStep, float* dst, int dstStep, float factor) const
    {
        for (int first = 0; first < columns_of_lines_; first += kBlock) {
            const int end = first + kBlock < columns_of_lines_ ? first + kBlock : columns_of_lines_;
            for (int v = 0; v < height_; ++v) {
                const float* const row = row_at(src, srcStep, v);
                for (int c = first; c < end; ++c) load_packed(row, c, line(c, v));
            }
            if (first == 0) {
                for (int v = 0; v <= height_ / 2; ++v) load_real_columns(src, srcStep, v);
            }
            for (int c = first; c < end; ++c) transform_lines<true>(columns_, line(c, 0), line(c, 0));
        }
        if (is_narrow()) {
            NarrowRows rows(rows_);
            for (int y = 0; y < height_; y += kLanes) {
                rows.inverse([=](int c, int r) { return line(c, columns_.position[y + r]); }, row_at(dst, dstStep, y), dstStep,
                             rows_from(y), factor);
            }
        } else {
            inverse_rows(dst, dstStep, factor);
        }
    }

private:
    using V = Widest;
    static constexpr int kBlock = 4;  // columns of lines that are packed together: whole cache lines

    std::ptrdiff_t row_floats() const
    {
        return static_cast<std::ptrdiff_t>(row_bytes_ccs(rows_.order)) / static_cast<int>(sizeof(float));
    }
    bool is_narrow() const { return rows_.order <= kNarrowOrder; }
    int rows_from(int y) const { return height_ - y < kLanes ? height_ - y : kLanes; }

    // Wide rows: each by itself, then into the columns several at a time, which stay on a page longer.
    void forward_rows(const float* src, int srcStep) const
    {
        for (int y = 0; y < height_; y += kRows) {
            const int rows = height_ - y < kRows ? height_ - y : kRows;
            for (int r = 0; r < rows; ++r) {
                float* const row = row_ + r * row_floats();
                forward_real(rows_, row_at(src, srcStep, y + r), row, work_);
                row[1] = row[width_];
            }
            for (int c = 0; c < columns_of_lines_; ++c) {
                for (int r = 0; r < rows; ++r) load_complex(line(c, y + r), row_ + r * row_floats() + c * kLineFloats);
            }
        }
    }
    void inverse_rows(float* dst, int dstStep, float factor) const
    {
        for (int y = 0; y < height_; ++y) {
            const int at = columns_.position[y];
            for (int c = 0; c < columns_of_lines_; ++c) store_complex(row_ + c * kLineFloats, line(c, at));
            row_[width_] = row_[1];
            row_[1] = row_[width_ + 1] = 0.0f;
            inverse_real(rows_, row_, row_at(dst, dstStep, y), work_, factor);
        }
    }

    std::ptrdiff_t column_floats() const { return (std::ptrdiff_t{height_} + 1) * kLineFloats; }
    float* line(int column, int y) const { return lines_ + column * column_floats() + std::ptrdiff_t{y} * kLineFloats; }

    // Between a line and eight interleaved values.
    static ORV_INLINE void load_complex(float* to, const float* from)
    {
        for (int i = 0; i < kLanes; i += V::N) store_line(to + i, Interleaved<V>::load(from + 2 * i));
    }
    static ORV_INLINE void store_complex(float* to, const float* from)
    {
        for (int i = 0; i < kLanes; i += V::N) Interleaved<V>::store(to + 2 * i, load_line<V>(from + i));
    }
    static ORV_INLINE void store_complex(float* to, const float* from, V factor)
    {
        for (int i = 0; i < kLanes; i += V::N) {
            Interleaved<V>::store(to + 2 * i, scaled_by(load_line<V>(from + i), factor));
        }
    }

    // Between a line and its place in a row of RCPack2D, one float further left than in CCS. Lane 0 of
    // the first line is not there: its neighbours in memory come or go in its place, until the real
    // columns do.
    ORV_INLINE void store_packed(float* row, int c, const float* from, V factor) const
    {
        if (c > 0) return store_complex(row + c * kLineFloats - 1, from, factor);
        if (width_ < kLineFloats) return store_narrow(row, from, factor);
        for (int i = 0; i < kLanes; i += V::N) {
            const Complex<V> shifted = {Lanes<V>::load(from + kLanes + i), Lanes<V>::load(from + 1 + i)};
            Interleaved<V>::store(row + 2 * i, scaled_by(shifted, factor));
        }
    }
    ORV_INLINE void load_packed(const float* row, int c, float* to) const
    {
        if (c > 0) return load_complex(to, row + c * kLineFloats - 1);
        if (width_ < kLineFloats) return load_narrow(row, to);
        Complex<V> shifted[kLanes / V::N];
        for (int i = 0; i < kLanes; i += V::N) {
            shifted[i / V::N] = Interleaved<V>::load(row + 2 * i);
            store_lanes(to + 1 + i, shifted[i / V::N].im);
        }
        for (int i = 0; i < kLanes; i += V::N) store_lanes(to + kLanes + i, shifted[i / V::N].re);
    }

    // Images of width 2, 4 and 8.
    std::size_t narrow_bytes() const { return (static_cast<std::size_t>(width_) - 2) * sizeof(float); }
    void store_narrow(float* row, const float* from, V factor) const
    {
        float values[kLineFloats];
        store_complex(values, from, factor);
        __builtin_memcpy(row + 1, values + 2, narrow_bytes());
    }
    void load_narrow(const float* row, float* to) const
    {
        float values[kLineFloats] = {};
        __builtin_memcpy(values + 2, row + 1, narrow_bytes());
        load_complex(to, values);
    }

    Complex<One> lane0(int v) const
    {
        const float* const from = line(0, columns_.position[v]);
        return {{from[0]}, {from[kLanes]}};
    }

    // Frequencies v and H - v of the columns 0 and W/2, from v = 0 to H/2.
    void store_real_columns(float* dst, int dstStep, int v, float factor) const
    {
        const One scale = {factor};
        const int last = width_ - 1;
        if (v == 0 || v == height_ / 2) {
            float* const row = row_at(dst, dstStep, pack_position(v));
            const Complex<One> z = scaled_by(lane0(v), scale);
            put(row, z.re.v);
            put(row + last, z.im.v);
            return;
        }
        const One half = {0.5f};
        const Complex<One> a = lane0(v), b = lane0(height_ - v);
        const Complex<One> first = {a.re + b.re, a.im - b.im}, second = {a.im + b.im, b.re - a.re};
        const Complex<One> f = scaled_by(scaled_by(first, half), scale), s = scaled_by(scaled_by(second, half), scale);
        float* const re = row_at(dst, dstStep, pack_position(v));
        float* const im = row_at(dst, dstStep, pack_position(v) + 1);
        put(re, f.re.v);
        put(im, f.im.v);
        put(re + last, s.re.v);
        put(im + last, s.im.v);
    }
    void load_real_columns(const float* src, int srcStep, int v) const
    {
        const int last = width_ - 1;
        float* const to = line(0, v);
        if (v == 0 || v == height_ / 2) {
            const float* const row = row_at(src, srcStep, pack_position(v));
            to[0] = get(row);
            to[kLanes] = get(row + last);
            return;
        }
        const float* const re = row_at(src, srcStep, pack_position(v));
        const float* const im = row_at(src, srcStep, pack_position(v) + 1);
        const Complex<One> f = {{get(re)}, {get(im)}}, s = {{get(re + last)}, {get(im + last)}};
        float* const mirrored = line(0, height_ - v);
        to[0] = (f.re - s.im).v;
        to[kLanes] = (f.im + s.re).v;
        mirrored[0] = (f.re + s.im).v;
        mirrored[kLanes] = (s.re - f.im).v;
    }

    const RealPlan& rows_;
    const LinePlan& columns_;
    int width_, height_, columns_of_lines_;
    float* lines_;  // columns of height + 1 lines
    float* row_;    // the spectra of kRows rows
    float* work_;   // of the row transforms
};

}  // namespace
}  // namespace ORV_LEVEL
}  // namespace orv
