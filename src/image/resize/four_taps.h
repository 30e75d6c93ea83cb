// Resampling with four taps per axis: the engine of every cubic.
//
// A destination pixel is computed from 4 x 4 source pixels: the four of a row are weighted with the
// column's weights and summed, then the four sums with the row's weights, all in double and in the order
// (t0 + t1) + (t2 + t3). Weights are floats. Taps outside the limits take the nearest pixel within.
#pragma once

#include <cstdint>

#include "core/checks.h"
#include "core/float_control.h"
#include "image/cubic_family.h"
#include "simd/conversion.h"
#include "simd/vec.h"
#include "image/resize/pixel_rounding.h"
#include "image/resize/resize_layout.h"

namespace orv {
inline namespace ORV_LEVEL {

struct TapLimits {
    int low, high;  // both are pixels
    // Taps may lie where no int counts, next to pixels that are counted last.
    ORV_INLINE int clamp(std::int64_t index) const
    {
        return index < low ? low : index > high ? high : static_cast<int>(index);
    }
};

// Positions of one axis: the index of the second tap, in ascending order, and the weights.
struct FourTaps {
    const int* index;
    const float* weights;
};

template <class T>
struct FourTapsJob {
    const T* src;
    int srcStep;
    TapLimits columns_within, rows_within;
    FourTaps columns, rows;
    T* dst;
    int dstStep;
    Size size;

    ORV_INLINE int first_column() const { return columns.index[0] - 1; }
    ORV_INLINE std::ptrdiff_t span() const
    {
        return std::ptrdiff_t{columns.index[size.width - 1]} + 3 - first_column();
    }
};

// The parts of a work buffer. Rows have room for a few elements more than they hold.
struct FourTapsBuffers {
    double* sums[4];  // weighted sums of source rows
    double* source;   // a source row, with what replicated borders add
    char* tables;     // of the level's own making: 40 bytes per sample of a row
    std::int64_t bytes;
    ORV_INLINE FourTapsBuffers(void* buffer, int width, std::int64_t span, int channels)
    {
        constexpr int spare = 32;
        Parts parts(buffer);
        const std::int64_t samples = std::int64_t{width} * channels;
        for (double*& row : sums) row = parts.take<double>(samples + spare);
        source = parts.take<double>(span * channels + spare);
        tables = parts.take<char>(40 * (samples + spare));
        bytes = parts.bytes();
    }
};

// The work buffer for rows of `width` pixels from up to `span` columns of the source.
inline std::int64_t four_taps_bytes(int width, std::int64_t span, int channels)
{
    return FourTapsBuffers(nullptr, width, span, channels).bytes;
}

// One source row, from the first tap of the first position to the last of the last one, as Reals.
template <class Real, class T, int Channels>
ORV_INLINE void fetch_row(const FourTapsJob<T>& job, int row, Real* out)
{
    const T* const line = row_at(job.src, job.srcStep, job.rows_within.clamp(row));
    std::int64_t x = job.first_column();
    const std::int64_t last = x + job.span() - 1;
    for (; x <= last && x < job.columns_within.low; ++x) {
        for (int c = 0; c < Channels; ++c)
            *out++ = static_cast<Real>(get(line + std::ptrdiff_t{job.columns_within.low} * Channels + c));
    }
    const std::int64_t inner_end = last < job.columns_within.high ? last : job.columns_within.high;
    const std::ptrdiff_t samples = inner_end < x ? 0 : static_cast<std::ptrdiff_t>((inner_end - x + 1) * Channels);
    const T* const from = line + static_cast<std::ptrdiff_t>(x) * Channels;
    std::ptrdiff_t i = 0;
#if ORV_HAVE_INT256
    if constexpr (sizeof(T) == 1 && sizeof(Real) == 4) {
        for (; i + 8 <= samples; i += 8) {
            simd::store(out + i, simd::load_as<simd::widest<Real>>::from(from + i));
        }
    } else if constexpr (sizeof(T) == 2) {
        for (; i + 4 <= samples; i += 4) {
            simd::store(out + i, simd::load_as<simd::widest<Real>>::from(from + i));
        }
    }
#endif
    for (; i < samples; ++i) out[i] = static_cast<Real>(get(from + i));
    out += samples;
    x += samples / Channels;
    for (; x <= last; ++x) {
        for (int c = 0; c < Channels; ++c)
            *out++ = static_cast<Real>(get(line + std::ptrdiff_t{job.columns_within.high} * Channels + c));
    }
}

// --- The meaning, in double -----------------------------------------------------------------------

ORV_INLINE double weighted(const double t0, const double t1, const double t2, const double t3, const float* w)
{
    return (t0 * static_cast<double>(w[0]) + t1 * static_cast<double>(w[1])) +
           (t2 * static_cast<double>(w[2]) + t3 * static_cast<double>(w[3]));
}

template <class T, int Channels>
struct FourTapsInDouble {
    const FourTapsJob<T>& job;
    FourTapsBuffers& buffers;

    ORV_INLINE void prepare() {}
    ORV_INLINE void sum_row(int row, double* sums)
    {
        fetch_row<double, T, Channels>(job, row, buffers.source);
        const int first = job.first_column();
        for (std::ptrdiff_t x = 0; x < job.size.width; ++x) {
            const double* const t = buffers.source + (std::ptrdiff_t{job.columns.index[x]} - 1 - first) * Channels;
            for (int c = 0; c < Channels; ++c) {
                sums[x * Channels + c] = weighted(t[c], t[c + Channels], t[c + 2 * Channels], t[c + 3 * Channels],
                                                  job.columns.weights + 4 * x);
            }
        }
    }
    ORV_INLINE void join_rows(const double* const sums[4], int y, T* dst)
    {
        const float* const w = job.rows.weights + 4 * std::ptrdiff_t{y};
        const double* const s0 = sums[0];
        const double* const s1 = sums[1];
        const double* const s2 = sums[2];
        const double* const s3 = sums[3];
        const std::ptrdiff_t samples = std::ptrdiff_t{job.size.width} * Channels;
        for (std::ptrdiff_t i = 0; i < samples; ++i) put(dst + i, to_pixel<T>(weighted(s0[i], s1[i], s2[i], s3[i], w)));
    }
};

// --- The loop over rows ---------------------------------------------------------------------------

// Keeps the weighted sums of the last four source rows.
template <class T, class Engine>
ORV_INLINE void run_four_taps(const FourTapsJob<T>& job, FourTapsBuffers& buffers, Engine engine)
{
    engine.prepare();
    int held[4] = {-1, -1, -1, -1};
    bool empty[4] = {true, true, true, true};
    for (int y = 0; y < job.size.height; ++y) {
        const double* sums[4];
        for (int k = 0; k < 4; ++k) {
            const int row = job.rows_within.clamp(std::int64_t{job.rows.index[y]} - 1 + k);
            const int slot = row & 3;
            if (empty[slot] || held[slot] != row) {
                engine.sum_row(row, buffers.sums[slot]);
                empty[slot] = false;
                held[slot] = row;
            }
            sums[k] = buffers.sums[slot];
        }
        engine.join_rows(sums, y, row_at(job.dst, job.dstStep, y));
    }
}

}  // namespace ORV_LEVEL
}  // namespace orv

#if ORV_HAVE_INT256
#include "image/resize/four_taps_wide.h"
#endif

namespace orv {
inline namespace ORV_LEVEL {

// The buffer has four_taps_bytes().
template <int Channels, class T>
void four_taps(const FourTapsJob<T>& job, void* buffer)
{
    ORV_ASSERT(buffer != nullptr && FloatControl::holds());
    FourTapsBuffers buffers(buffer, job.size.width, job.span(), Channels);
#if ORV_HAVE_INT256
    if constexpr (sizeof(T) == 1) {
        run_four_taps(job, buffers, FourTapsOfBytes<T, Channels>{job, buffers});
    } else {
        static_assert(Channels == 1, "rows of doubles are summed one channel at a time");
        run_four_taps(job, buffers, FourTapsOfDoubles<T>{job, buffers});
    }
#else
    run_four_taps(job, buffers, FourTapsInDouble<T, Channels>{job, buffers});
#endif
}

}  // namespace ORV_LEVEL
}  // namespace orv
