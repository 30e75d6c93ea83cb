// Sums of products in double: rows of the source are widened once, and a list of taps says which of their elements a
// result takes, with what weight, in which order.
#pragma once

#include "image/filters/convolution_job.h"
#include "simd/pair_products.h"

#if ORV_HAVE_VECTORS

namespace orv {
inline namespace ORV_LEVEL {

using DoubleLanes = simd::widest<double>;

struct DoubleTap {
    int row;
    int offset;  // in elements
    double weight;
};

struct DoubleTaps {
    DoubleTap* taps;
    int count = 0;

    ORV_INLINE void add(int row, std::ptrdiff_t offset, double weight) { taps[count++] = {row, static_cast<int>(offset), weight}; }
};

// Results that are computed together, each vector of them a chain of its own.
template <int vectors> using DoubleSums = DoubleLanes[vectors];

// In the order of the taps. A sum that starts as -0 is its first product exactly, signs of zeros included.
template <int vectors>
ORV_INLINE void sum_taps(const DoubleTaps& kernel, const double* const* rows, std::ptrdiff_t x, DoubleSums<vectors>& sums)
{
    const DoubleLanes start = simd::splat<DoubleLanes>(kernel.count == 0 ? 0.0 : -0.0);
#pragma GCC unroll 8
    for (int k = 0; k < vectors; ++k) sums[k] = start;
    const DoubleTap* const end = kernel.taps + kernel.count;
    for (const DoubleTap* tap = kernel.taps; tap != end; ++tap) {
        const double* const p = rows[tap->row] + (x + tap->offset);
        const DoubleLanes weight = simd::splat<DoubleLanes>(tap->weight);
#pragma GCC unroll 8
        for (int k = 0; k < vectors; ++k) {
            sums[k] = simd::add_exact_product(simd::load<DoubleLanes>(p + k * DoubleLanes::N), weight, sums[k]);
        }
    }
}

// --- Rows -----------------------------------------------------------------------------------------

// Elements of the source as doubles.
ORV_INLINE simd::twice<DoubleLanes> widened(const float* p)
{
    simd::twice<DoubleLanes> r;
    simd::load_to(r, p);
    return r;
}
template <class T>
ORV_INLINE auto widened(const T* p)
{
    return simd::to_double(simd::load_as<simd::widest<std::int32_t>>::from(p));
}
template <class T>
void widen_row(const T* s, double* d, std::ptrdiff_t n)
{
    constexpr int N = decltype(widened(s))::N;
    std::ptrdiff_t i = 0;
    for (; i + N <= n; i += N) simd::store(d + i, widened(s + i));
    for (; i < n; ++i) d[i] = static_cast<double>(get(s + i));
}

// The rows of doubles that a kernel spans, in a ring. A kernel of rank 1 has its sums of rows there, and `columns` puts
// those together; else `columns` is all of the kernel.
struct DoubleRows {
    DoubleTaps rows, columns;
    bool factored;
    std::ptrdiff_t span;
    std::ptrdiff_t stride;  // elements from one to the next
    double *ring, *single;
    const double** at;
};

constexpr int kDoubleSlack = 64;  // more than any block: blocks at the end compute what nobody takes

template <class From, class To, class Weight>
ORV_INLINE void lay_out(const Convolution<From, To, Weight>& job, DoubleRows& d, std::ptrdiff_t strip, WorkingMemory& memory)
{
    d.span = job.height;
    d.stride = (strip + (d.factored ? 0 : job.frame()) + kDoubleSlack + 7) & ~std::ptrdiff_t{7};
    d.columns.taps = memory.take<DoubleTap>(d.factored ? job.height : job.height * job.width);
    d.rows.taps = memory.take<DoubleTap>(d.factored ? job.width : 0);
    d.at = memory.take<const double*>(d.span);
    d.ring = memory.take<double>(d.span * d.stride);
    d.single = memory.take<double>(d.factored ? strip + job.frame() + kDoubleSlack : 0);
}

template <class From>
ORV_INLINE void fill_row(const DoubleRows& d, const From* source, std::ptrdiff_t n, std::ptrdiff_t frame, double* to)
{
    if (!d.factored) return widen_row(source, to, n + frame);
    constexpr int vectors = 4;
    widen_row(source, d.single, n + frame);
    const double* const rows[] = {d.single};
    for (std::ptrdiff_t x = 0; x < n; x += vectors * DoubleLanes::N) {
        DoubleSums<vectors> sums;
        sum_taps<vectors>(d.rows, rows, x, sums);
        for (int k = 0; k < vectors; ++k) simd::store(to + x + k * DoubleLanes::N, sums[k]);
    }
}

// Finish::store(dst, sums) makes results of Finish::kVectors vectors of sums.
template <class From, class To, class Weight, class Finish>
void convolve_strip(const Convolution<From, To, Weight>& job, const DoubleRows& d, std::ptrdiff_t x0, std::ptrdiff_t n,
                    const Finish& finish)
{
    std::ptrdiff_t filled = 0;
    for (std::ptrdiff_t y = 0; y < job.roi.height; ++y) {
        for (; filled < y + d.span; ++filled) {
            fill_row(d, job.source(filled) + x0, n, job.frame(), d.ring + filled % d.span * d.stride);
        }
        for (std::ptrdiff_t r = 0; r < d.span; ++r) d.at[r] = d.ring + (y + r) % d.span * d.stride;
        in_blocks<Finish::kVectors * DoubleLanes::N>(job.result(y) + x0, n, [&](std::ptrdiff_t x, To* to) {
            DoubleSums<Finish::kVectors> sums;
            sum_taps<Finish::kVectors>(d.columns, d.at, x, sums);
            finish.store(to, sums);
        });
    }
}

template <class From, class To, class Weight, class Finish>
ORV_INLINE void convolve_strips(const Convolution<From, To, Weight>& job, const DoubleRows& d,
                                const ConvolutionStrips& strips, const Finish& finish)
{
    for (std::ptrdiff_t x = 0; x < strips.total; x += strips.width) {
        convolve_strip(job, d, x, strips.columns_at(x), finish);
    }
}

}  // namespace ORV_LEVEL
}  // namespace orv

#endif  // ORV_HAVE_VECTORS
