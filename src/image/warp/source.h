// The rectangle of the source, and single pixels of it. The plain meaning of every interpolation: one pixel at a
// position, with taps beyond the rectangle taken from its edge.
#pragma once

#include <cstdint>

#include "core/checks.h"
#include "core/float_control.h"
#include "image/cubic_family.h"
#include "image/resize/pixel_rounding.h"
#include "image/warp/positions.h"
#include "image/warp/weights.h"

namespace orv {
inline namespace ORV_LEVEL {
namespace {

// The pixel at a column and row of an image, in the width of a pointer and without overflow.
template <class T>
ORV_INLINE T* pixel_at(T* image, int step, std::int64_t column, std::int64_t row, int pixel_bytes)
{
    const auto address = [](std::int64_t v) { return static_cast<std::size_t>(v); };
    return reinterpret_cast<T*>(reinterpret_cast<std::size_t>(image) + address(row) * address(step) +
                                address(column) * address(pixel_bytes));
}

template <class T, int Channels>
struct Source {
    static constexpr int kPixelBytes = Channels * static_cast<int>(sizeof(T));
    const T* image;
    int step;
    int left, top, right, bottom;  // columns and rows; all four belong to it

    ORV_INLINE int clamped_column(std::int64_t column) const
    {
        return static_cast<int>(column < left ? left : column > right ? right : column);
    }
    ORV_INLINE int clamped_row(std::int64_t row) const
    {
        return static_cast<int>(row < top ? top : row > bottom ? bottom : row);
    }
    ORV_INLINE Window shown() const { return {1.0 * left, 1.0 * top, right + 1.0, bottom + 1.0}; }
    // Indices whose taps, so many before and after, lie within. None in images whose offsets doubles could not hold.
    ORV_INLINE Window indices(int columns_before, int columns_after, int rows_before, int rows_after) const
    {
        if (is_huge()) return {1, 1, 0, 0};
        return {1.0 * left + columns_before, 1.0 * top + rows_before, right + 1.0 - columns_after,
                bottom + 1.0 - rows_after};
    }
    ORV_INLINE bool is_huge() const { return extent() > 0x1p51; }
    // The bytes from the first pixel of the image to the last one of the rectangle, or more.
    ORV_INLINE double extent() const
    {
        const double row_bytes = step < 0 ? -1.0 * step : step;
        return row_bytes * (bottom + 1.0) + kPixelBytes * (right + 1.0);
    }
};

// N x N taps, clamped to the rectangle.
template <class T, int Channels, int N>
struct Taps {
    const T* row[N];
    std::size_t column[N];  // in bytes

    ORV_INLINE Taps(const Source<T, Channels>& source, std::int64_t first_column, std::int64_t first_row)
    {
        for (int k = 0; k < N; ++k) {
            row[k] = pixel_at(source.image, source.step, 0, source.clamped_row(first_row + k), 0);
            column[k] = static_cast<std::size_t>(source.clamped_column(first_column + k)) *
                        static_cast<std::size_t>(Source<T, Channels>::kPixelBytes);
        }
    }
    ORV_INLINE T at(int k, int l, int channel) const
    {
        return get(reinterpret_cast<const T*>(reinterpret_cast<std::size_t>(row[l]) + column[k]) + channel);
    }
    ORV_INLINE double wide(int k, int l, int channel) const { return static_cast<double>(at(k, l, channel)); }
};

// An index on one axis: the pixel before it, and how far it is from there.
struct Place {
    int i;
    double f;
    ORV_INLINE explicit Place(double index) : i(floor_of(index)), f(rounded(index - i)) {}
};

// --- Nearest --------------------------------------------------------------------------------------

template <class T, int Channels>
struct Nearest {
    static constexpr bool kPoints = true;
    ORV_INLINE Window inner(const Source<T, Channels>& source) const { return source.indices(0, 0, 0, 0); }

    ORV_INLINE void one(const Source<T, Channels>& source, double x, double y, T* dst) const
    {
        // As bytes: floats would lose the bits of some NaNs in an x87 register.
        const T* const pixel = pixel_at(source.image, source.step, static_cast<int>(x), static_cast<int>(y),
                                        Source<T, Channels>::kPixelBytes);
        __builtin_memcpy(dst, pixel, Source<T, Channels>::kPixelBytes);
    }
};

// --- Linear ---------------------------------------------------------------------------------------

template <class T, int Channels>
struct Linear {
    static constexpr bool kPoints = false;
    // Bytes: fractions may round up to the next pixel, and loads of eight bytes, or of four, reach beyond a pair.
    static constexpr int kColumnsAfter = sizeof(T) > 1 ? 1 : Channels == 1 ? 4 : Channels == 3 ? 3 : 2;
    static constexpr int kRowsAfter = sizeof(T) > 1 ? 1 : 2;
    ORV_INLINE Window inner(const Source<T, Channels>& source) const
    {
        return source.indices(0, kColumnsAfter, 0, kRowsAfter);
    }

    ORV_INLINE void one(const Source<T, Channels>& source, double x, double y, T* dst) const
    {
        const Place column(x), row(y);
        const Taps<T, Channels, 2> taps(source, column.i, row.i);
        for (int c = 0; c < Channels; ++c) {
            put(dst + c,
                between(taps.at(0, 0, c), taps.at(1, 0, c), taps.at(0, 1, c), taps.at(1, 1, c), column.f, row.f));
        }
    }

private:
    // Bytes in steps of 1/16384 pixel, rounded to 1/128 between the columns.
    static ORV_INLINE unsigned char between(unsigned char a, unsigned char b, unsigned char c, unsigned char d,
                                            double f, double g)
    {
        const int F = nearest_integer(16384 * f), G = nearest_integer(16384 * g);
        const int top = ((16384 - F) * a + F * b + 64) >> 7, bottom = ((16384 - F) * c + F * d + 64) >> 7;
        const int sum = (16384 - G) * top + G * bottom;
        return static_cast<unsigned char>((sum + ((1 << 20) - 1) + (sum >> 21 & 1)) >> 21);
    }
    template <class N>
    static ORV_INLINE N between(N a, N b, N c, N d, double f, double g)
    {
        const float column = rounded(static_cast<float>(f)), row = rounded(static_cast<float>(g));
        return to_pixel<N>(mixed(mixed(a, b, column), mixed(c, d, column), row));
    }
    // What has no weight does not count: it may be anything.
    static ORV_INLINE float mixed(float a, float b, float part)
    {
        if (part == 0) return a;
        if (part == 1) return b;
        return rounded(a + rounded(rounded(b - a) * part));
    }
};

// --- Weighted sums --------------------------------------------------------------------------------

template <class T, int Channels>
struct Cubic {
    static constexpr bool kPoints = false;
    CubicFamily family;
    // Loads of 16 bytes reach beyond four pixels of three.
    ORV_INLINE Window inner(const Source<T, Channels>& source) const
    {
        return source.indices(1, Channels == 3 ? 4 : 2, 1, 2);
    }

    ORV_INLINE void one(const Source<T, Channels>& source, double x, double y, T* dst) const
    {
        const Place column(x), row(y);
        float w[4], v[4];
        weights(column.f, w);
        weights(row.f, v);
        const Taps<T, Channels, 4> taps(source, std::int64_t{column.i} - 1, std::int64_t{row.i} - 1);
        for (int c = 0; c < Channels; ++c) {
            double h[4];
            for (int l = 0; l < 4; ++l) {
                const double p[4] = {taps.wide(0, l, c), taps.wide(1, l, c), taps.wide(2, l, c), taps.wide(3, l, c)};
                h[l] = sum(w, p);
            }
            put(dst + c, to_pixel<T>(sum(v, h)));
        }
    }

    ORV_INLINE void weights(double f, float* w) const
    {
        family.weights(f, w);
        // The polynomials of the cubics with thirds leave some 2^-52.
        if (f == 0) w[3] = 0;
        if (f == 1) w[0] = 0;
    }

#if ORV_HAVE_INT256
    // Those of four pixels whose fractions are below 1.
    ORV_INLINE void four_weights(simd::doubles256 f, simd::doubles256* w) const
    {
        family.weights_in_double(f, w);
        for (int k = 0; k < 4; ++k) w[k] = simd::to_single(w[k]);
        w[3] = and_not(equal(f, simd::splat<simd::doubles256>(0)), w[3]);
    }
#endif

private:
    static ORV_INLINE double product(float weight, double value)
    {
        return weight == 0 ? 0 : static_cast<double>(weight) * value;
    }
    static ORV_INLINE double sum(const float* w, const double* p)
    {
        return (product(w[0], p[0]) + product(w[1], p[1])) + (product(w[2], p[2]) + product(w[3], p[3]));
    }
};

template <class T, int Channels>
struct Lanczos {
    static constexpr bool kPoints = false;
    // Loads of four bytes reach beyond a pixel of three.
    ORV_INLINE Window inner(const Source<T, Channels>& source) const
    {
        return source.indices(2, Channels == 3 ? 4 : 3, 2, 3);
    }

    ORV_INLINE void one(const Source<T, Channels>& source, double x, double y, T* dst) const
    {
        const Axis column(x), row(y);
        const Taps<T, Channels, 6> taps(source, column.i - 2, row.i - 2);
        for (int c = 0; c < Channels; ++c) {
            double sum = 0;
            for (int l = row.first; l < row.end; ++l) {
                const double h = row_sum(taps, column, l, c) * row.w[l];
                sum = l == row.first ? h : sum + h;
            }
            put(dst + c, to_pixel<T>(sum));
        }
    }

private:
    struct Axis {
        std::int64_t i;
        double w[6];
        int first, end;  // of the taps that count

        ORV_INLINE explicit Axis(double index)
        {
            const Place place(index);
            i = place.i;
            first = place.f == 0 ? 2 : place.f == 1 ? 3 : 0;
            end = first == 0 ? 6 : first + 1;
            if (first == 0)
                lanczos_weights(place.f, w);
            else
                w[first] = 1;
        }
    };

    static ORV_INLINE double row_sum(const Taps<T, Channels, 6>& taps, const Axis& column, int l, int c)
    {
        double sum = 0;
        for (int k = column.first; k < column.end; ++k) {
            const double term = taps.wide(k, l, c) * column.w[k];
            sum = k == column.first ? term : sum + term;
        }
        return sum;
    }
};

}  // namespace
}  // namespace ORV_LEVEL
}  // namespace orv
