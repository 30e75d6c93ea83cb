// Transforms of W x H real images, to and from RCPack2D.
//
// Rows are real transforms, those of narrow images eight at a time. Their W/2 - 1 complex columns are
// gathered eight at a time into columns of lines (line_fft.h), so that the column transforms are vertical
// in every respect. Columns 0 and W/2
// of the row spectra are real: they travel as real and imaginary part of one complex column, lane 0 of
// the first column of lines, and are taken apart at the end.
#pragma once

#include "spectral/layouts.h"
#include "spectral/narrow_rows.h"
#include "spectral/overflow_watch.h"
#include "spectral/real_fft.h"

namespace orv {
inline namespace ORV_LEVEL {
namespace {

// Of many rows; NaNs do not count.
class LargestMagnitude {
public:
    LargestMagnitude()
    {
        for (V& v : largest_) v = simd::splat<V>(0.0f);
    }
    ORV_INLINE void add(const float* row, int width)
    {
        for (int x = 0; x < width; x += kTogether * V::N) {
            ORV_UNROLL
            for (int i = 0; i < kTogether; ++i) {
                largest_[i] = simd::max(simd::magnitude(simd::load<V>(row + x + i * V::N)), largest_[i]);
            }
        }
    }
    bool reaches(float limit) const
    {
        const V first = simd::max(largest_[0], largest_[1]), second = simd::max(largest_[2], largest_[3]);
        return simd::any(simd::greater_equal(simd::max(first, second), simd::splat<V>(limit)));
    }

private:
    using V = Widest;
    static constexpr int kTogether = 4;  // maxima that do not wait for each other
    V largest_[kTogether];
};

class Plane {
public:
    Plane(const Fft2Spec& spec, unsigned char* memory)
        : rows_(spec.rows), columns_(spec.columns), width_(1 << spec.rows.order), height_(1 << spec.columns.order),
          columns_of_lines_(static_cast<int>(columns_of_lines(spec.rows.order))), lines_(at_boundary<float>(memory)),
          row_(lines_ + columns_of_lines_ * column_floats()),
          work_(row_ + kept_rows(spec.rows.order) * row_floats())
    {
    }

    // Sums that overflow do so although their parts would come out as finite numbers. So where that may have
    // happened, all is done again with numbers so much smaller that no sum overflows, and the last factor makes
    // up for it.

    void forward(const float* src, int srcStep, float* dst, int dstStep, float factor) const
    {
        if (is_narrow()) forward_narrow(src, srcStep, dst, dstStep, factor * 0.5f);
        else forward_wide(src, srcStep, dst, dstStep, factor);
    }

    void inverse(const float* src, int srcStep, float* dst, int dstStep, float factor) const
    {
        OverflowWatch watch;
        inverse_columns(src, srcStep, false);
        const bool lessened = watch.seen();
        if (lessened) inverse_columns(src, srcStep, true);
        inverse_rows(dst, dstStep, lessened ? factor * more() : factor);
        if (lessened || !watch.seen()) return;
        lessen_lines(0, columns_of_lines_);
        inverse_rows(dst, dstStep, factor * more());
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

    int end_of_block(int first) const
    {
        return first + kBlock < columns_of_lines_ ? first + kBlock : columns_of_lines_;
    }

    // Multiplied by this, no sum of all numbers is above 2^126, and none of the few that are formed doubled or as a
    // real plus an imaginary part above 2^128.
    float less() const { return 1.0f / more(); }
    float more() const { return 4.0f * static_cast<float>(width_) * static_cast<float>(height_); }
    void lessen_lines(int first, int end) const
    {
        const V factor = simd::splat<V>(less());
        for (int c = first; c < end; ++c) {
            for (float* p = line(c, 0); p < line(c, height_); p += V::N) simd::store(p, simd::load<V>(p) * factor);
        }
    }

    void forward_narrow(const float* src, int srcStep, float* dst, int dstStep, float factor) const
    {
        OverflowWatch watch;
        forward_narrow_lines(src, srcStep, 1.0f);
        if (watch.seen()) {
            forward_narrow_lines(src, srcStep, less());
            factor *= more();
        }
        store_block(dst, dstStep, 0, columns_of_lines_, factor);
        store_real_columns(dst, dstStep, factor);
    }
    void forward_narrow_lines(const float* src, int srcStep, float factor) const
    {
        NarrowRows rows(rows_);
        for (int y = 0; y < height_; y += kLanes) {
            rows.forward(row_at(src, srcStep, y), srcStep, rows_from(y), factor,
                         [=](int c, int r) { return line(c, y + r); });
        }
        for (int c = 0; c < columns_of_lines_; ++c) transform_lines<false>(columns_, line(c, 0), line(c, 0));
        part_real_columns();
    }

    // Later blocks are transformed when earlier ones have replaced the source, perhaps: whether sums may overflow
    // must be known before.
    void forward_wide(const float* src, int srcStep, float* dst, int dstStep, float factor) const
    {
        if (forward_wide_rows<false>(src, srcStep)) {
            forward_wide_rows<true>(src, srcStep);
            factor *= more();
        }
        for (int first = 0; first < columns_of_lines_; first += kBlock) {
            const int end = end_of_block(first);
            for (int c = first; c < end; ++c) transform_lines<false>(columns_, line(c, 0), line(c, 0));
            store_block(dst, dstStep, first, end, factor);
        }
        part_real_columns();
        store_real_columns(dst, dstStep, factor);
    }
    // Each by itself, then into the columns several at a time, which stay on a page longer. True when sums
    // may overflow.
    template <bool lessened>
    bool forward_wide_rows(const float* src, int srcStep) const
    {
        const int together = kept_rows(rows_.order);
        LargestMagnitude largest;
        for (int y = 0; y < height_; y += together) {
            const int rows = height_ - y < together ? height_ - y : together;
            for (int r = 0; r < rows; ++r) {
                float* const row = row_ + r * row_floats();
                const float* from = row_at(src, srcStep, y + r);
                if (lessened) from = lessened_row(from, row);
                else largest.add(from, width_);
                forward_real(rows_, from, row, work_);
                row[1] = row[width_];
            }
            for (int c = 0; c < columns_of_lines_; ++c) {
                for (int r = 0; r < rows; ++r) load_complex(line(c, y + r), row_ + r * row_floats() + c * kLineFloats);
            }
        }
        return !lessened && largest.reaches(less() * 0x1p127f);
    }
    const float* lessened_row(const float* from, float* to) const
    {
        const V factor = simd::splat<V>(less());
        for (int x = 0; x < width_; x += V::N) simd::store(to + x, simd::load<V>(from + x) * factor);
        return to;
    }
    void store_block(float* dst, int dstStep, int first, int end, float factor) const
    {
        const V factors = simd::splat<V>(factor);
        for (int v = 0; v < height_; ++v) {
            float* const row = row_at(dst, dstStep, v);
            for (int c = first; c < end; ++c) store_packed(row, c, line(c, columns_.position[v]), factors);
        }
    }

    void inverse_columns(const float* src, int srcStep, bool lessened) const
    {
        for (int first = 0; first < columns_of_lines_; first += kBlock) {
            const int end = end_of_block(first);
            for (int v = 0; v < height_; ++v) {
                const float* const row = row_at(src, srcStep, v);
                for (int c = first; c < end; ++c) load_packed(row, c, line(c, v));
            }
            if (lessened) lessen_lines(first, end);
            if (first == 0) {
                const float factor = lessened ? less() : 1.0f;
                for (int v = 0; v <= height_ / 2; ++v) load_real_columns(src, srcStep, v, factor);
            }
            for (int c = first; c < end; ++c) transform_lines<true>(columns_, line(c, 0), line(c, 0));
        }
    }
    void inverse_rows(float* dst, int dstStep, float factor) const
    {
        if (!is_narrow()) return inverse_wide_rows(dst, dstStep, factor);
        NarrowRows rows(rows_);
        for (int y = 0; y < height_; y += kLanes) {
            rows.inverse([=](int c, int r) { return line(c, columns_.position[y + r]); }, row_at(dst, dstStep, y),
                         dstStep, rows_from(y), factor);
        }
    }
    void inverse_wide_rows(float* dst, int dstStep, float factor) const
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
            const Complex<V> shifted = {simd::load<V>(from + kLanes + i), simd::load<V>(from + 1 + i)};
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
            simd::store(to + 1 + i, shifted[i / V::N].im);
        }
        for (int i = 0; i < kLanes; i += V::N) simd::store(to + kLanes + i, shifted[i / V::N].re);
    }

    // Images of width 2, 4 and 8. Sizes that the compiler knows: a call would take longer than the copy.
    void store_narrow(float* row, const float* from, V factor) const
    {
        float values[kLineFloats];
        store_complex(values, from, factor);
        if (width_ == 8) __builtin_memcpy(row + 1, values + 2, 6 * sizeof(float));
        else if (width_ == 4) __builtin_memcpy(row + 1, values + 2, 2 * sizeof(float));
    }
    void load_narrow(const float* row, float* to) const
    {
        __builtin_memset(to, 0, kLineFloats * sizeof(float));
        for (int u = 1; u < width_ / 2; ++u) {
            to[u] = get(row + 2 * u - 1);
            to[kLanes + u] = get(row + 2 * u);
        }
    }

    Complex<One> lane0(int v) const
    {
        const float* const from = line(0, columns_.position[v]);
        return {{from[0]}, {from[kLanes]}};
    }
    void put_lane0(int v, Complex<One> value) const
    {
        float* const to = line(0, columns_.position[v]);
        simd::store(to, value.re);
        simd::store(to + kLanes, value.im);
    }

    // Takes apart what travelled as one complex column: lane 0 has F[v][0] at frequency v and F[v][W/2] at H - v.
    void part_real_columns() const
    {
        const One half = {0.5f};
        for (int v = 1; v < height_ / 2; ++v) {
            const Complex<One> a = lane0(v), b = lane0(height_ - v);
            const Complex<One> first = {a.re + b.re, a.im - b.im}, second = {a.im + b.im, b.re - a.re};
            put_lane0(v, scaled_by(first, half));
            put_lane0(height_ - v, scaled_by(second, half));
        }
    }
    void store_real_columns(float* dst, int dstStep, float factor) const
    {
        const One scale = {factor};
        const int last = width_ - 1;
        for (int v = 0; v <= height_ / 2; v += height_ / 2) {
            float* const row = row_at(dst, dstStep, pack_position(v));
            const Complex<One> z = scaled_by(lane0(v), scale);
            put(row, z.re.v);
            put(row + last, z.im.v);
        }
        for (int v = 1; v < height_ / 2; ++v) {
            const Complex<One> f = scaled_by(lane0(v), scale), s = scaled_by(lane0(height_ - v), scale);
            float* const re = row_at(dst, dstStep, pack_position(v));
            float* const im = row_at(dst, dstStep, pack_position(v) + 1);
            put(re, f.re.v);
            put(im, f.im.v);
            put(re + last, s.re.v);
            put(im + last, s.im.v);
        }
    }
    // Frequencies v and H - v of the columns 0 and W/2, from v = 0 to H/2.
    void load_real_columns(const float* src, int srcStep, int v, float factor) const
    {
        const One scale = {factor};
        const int last = width_ - 1;
        float* const to = line(0, v);
        if (v == 0 || v == height_ / 2) {
            const float* const row = row_at(src, srcStep, pack_position(v));
            simd::store(to, One{get(row)} * scale);
            simd::store(to + kLanes, One{get(row + last)} * scale);
            return;
        }
        const float* const re = row_at(src, srcStep, pack_position(v));
        const float* const im = row_at(src, srcStep, pack_position(v) + 1);
        const Complex<One> f = scaled_by(Complex<One>{{get(re)}, {get(im)}}, scale);
        const Complex<One> s = scaled_by(Complex<One>{{get(re + last)}, {get(im + last)}}, scale);
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
    float* row_;    // the spectra of some rows
    float* work_;   // of the row transforms
};

}  // namespace
}  // namespace ORV_LEVEL
}  // namespace orv
