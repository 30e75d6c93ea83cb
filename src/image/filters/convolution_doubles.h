// Sums of products in double: rows of the source are widened once, and a list of taps says which of their elements a
// result takes, with what weight, in which order.
#pragma once

#include "image/filters/convolution_job.h"
#include "simd/pair_products.h"

#if ORV_HAVE_VECTORS

namespace orv {
inline namespace ORV_LEVEL {

using DoubleLanes = simd::widest<double>;

// An element of the source, and what it weighs in two results below each other. Each has an order of its own, from the
// source's top row down, and the list has both.
struct DoubleTap {
    const double* from;  // where its elements are for the rows at hand
    int row, offset;
    double upper, lower;
};
enum TapUse : int { used_above = 1, used_below = 2, used_twice = 3 };

// Taps as they come, in runs of one use.
struct DoubleTaps {
    struct Run {
        int use, end;
    };
    DoubleTap* taps;
    Run* runs;
    int count = 0, run_count = 0;

    ORV_INLINE void lay_out(std::ptrdiff_t most, WorkingMemory& memory)
    {
        taps = memory.take<DoubleTap>(most);
        runs = memory.take<Run>(most);
    }
    ORV_INLINE void add(int use, int row, std::ptrdiff_t offset, double upper, double lower)
    {
        if (use == 0) return;
        taps[count++] = {nullptr, row, static_cast<int>(offset), upper, lower};
        if (run_count == 0 || runs[run_count - 1].use != use) runs[run_count++] = {use, 0};
        runs[run_count - 1].end = count;
    }
    // row(r) is where row r of the source begins.
    template <class Row>
    ORV_INLINE void begin_at(Row row) const
    {
        for (int i = 0; i < count; ++i) taps[i].from = row(taps[i].row) + taps[i].offset;
    }
    // The first vectors of sums: one that starts as -0 is its first product exactly, signs of zeros included.
    ORV_INLINE DoubleLanes start() const { return simd::splat<DoubleLanes>(count == 0 ? 0.0 : -0.0); }
};

template <int vectors> using DoubleSums = DoubleLanes[vectors];

// As many sums of each of two rows as registers hold beside an element and its weights.
constexpr int kDoubleVectors = sizeof(void*) == 8 ? 6 : 2;

template <int use, int vectors>
ORV_INLINE void add_run(const DoubleTap* tap, const DoubleTap* end, std::ptrdiff_t x, DoubleSums<vectors>& upper,
                        DoubleSums<vectors>& lower)
{
    for (; tap != end; ++tap) {
        const double* const p = tap->from + x;
        const DoubleLanes above = simd::splat<DoubleLanes>(tap->upper), below = simd::splat<DoubleLanes>(tap->lower);
#pragma GCC unroll 8
        for (int k = 0; k < vectors; ++k) {
            const DoubleLanes element = simd::in_register(simd::load<DoubleLanes>(p + k * DoubleLanes::N));
            if (use & used_above) upper[k] = simd::add_exact_product(element, above, upper[k]);
            if (use & used_below) lower[k] = simd::add_exact_product(element, below, lower[k]);
        }
    }
}

template <int vectors>
ORV_INLINE void sum_taps(const DoubleTaps& kernel, std::ptrdiff_t x, DoubleSums<vectors>& upper,
                         DoubleSums<vectors>& lower)
{
#pragma GCC unroll 8
    for (int k = 0; k < vectors; ++k) upper[k] = lower[k] = kernel.start();
    const DoubleTap* tap = kernel.taps;
    for (int i = 0; i < kernel.run_count; ++i) {
        const DoubleTap* const end = kernel.taps + kernel.runs[i].end;
        if (kernel.runs[i].use == used_twice) add_run<used_twice, vectors>(tap, end, x, upper, lower);
        else if (kernel.runs[i].use == used_above) add_run<used_above, vectors>(tap, end, x, upper, lower);
        else add_run<used_below, vectors>(tap, end, x, upper, lower);
        tap = end;
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

// The rows of doubles that two results below each other span, in a ring. A kernel of rank 1 has its sums of rows there,
// and `columns` puts those together; else `columns` is all of the kernel.
struct DoubleRows {
    DoubleTaps rows, columns;
    bool factored;
    std::ptrdiff_t span;
    std::ptrdiff_t stride;  // elements from one to the next
    double *ring, *single;
};

constexpr int kDoubleSlack = 64;  // more than any block: blocks at the end compute what nobody takes

template <class From, class To, class Weight>
ORV_INLINE void lay_out(const Convolution<From, To, Weight>& job, DoubleRows& d, std::ptrdiff_t strip,
                        WorkingMemory& memory)
{
    d.span = job.height + 1;
    d.stride = (strip + (d.factored ? 0 : job.frame()) + kDoubleSlack + 7) & ~std::ptrdiff_t{7};
    d.columns.lay_out(d.span * (d.factored ? 1 : job.width), memory);
    d.rows.lay_out(d.factored ? job.width : 0, memory);
    d.ring = memory.take<double>(d.span * d.stride);
    d.single = memory.take<double>(d.factored ? strip + job.frame() + kDoubleSlack : 0);
}

template <class From>
ORV_INLINE void fill_row(const DoubleRows& d, const From* source, std::ptrdiff_t n, std::ptrdiff_t frame, double* to)
{
    if (!d.factored) return widen_row(source, to, n + frame);
    constexpr int vectors = sizeof(void*) == 8 ? 8 : 4;
    widen_row(source, d.single, n + frame);
    d.rows.begin_at([&](int) { return d.single; });
    for (std::ptrdiff_t x = 0; x < n; x += vectors * DoubleLanes::N) {
        DoubleSums<vectors> sums, none;
#pragma GCC unroll 8
        for (int k = 0; k < vectors; ++k) sums[k] = d.rows.start();
        add_run<used_above, vectors>(d.rows.taps, d.rows.taps + d.rows.count, x, sums, none);
#pragma GCC unroll 8
        for (int k = 0; k < vectors; ++k) simd::store(to + x + k * DoubleLanes::N, sums[k]);
    }
}

// Finish::store(dst, sums) makes results of Finish::kVectors vectors of sums, which are formed Finish::kTogether at a
// time.
template <class Finish, class To>
ORV_INLINE void double_results(const DoubleRows& d, std::ptrdiff_t x, To* above, To* below, const Finish& finish)
{
    DoubleSums<Finish::kVectors> upper, lower;
#pragma GCC unroll 4
    for (int k = 0; k < Finish::kVectors; k += Finish::kTogether) {
        DoubleSums<Finish::kTogether> first, second;
        sum_taps<Finish::kTogether>(d.columns, x + k * DoubleLanes::N, first, second);
#pragma GCC unroll 8
        for (int i = 0; i < Finish::kTogether; ++i) upper[k + i] = first[i], lower[k + i] = second[i];
    }
    finish.store(below, lower);
    finish.store(above, upper);
}

template <class From, class To, class Weight, class Finish>
void convolve_strip(const Convolution<From, To, Weight>& job, const DoubleRows& d, std::ptrdiff_t x0, std::ptrdiff_t n,
                    const Finish& finish)
{
    const std::ptrdiff_t last = job.last_row();
    std::ptrdiff_t filled = 0;
    for (std::ptrdiff_t y = 0; y < job.roi.height; y += 2) {
        for (; filled < y + d.span; ++filled) {
            double* const to = d.ring + filled % d.span * d.stride;
            fill_row(d, job.source(filled < last ? filled : last) + x0, n, job.frame(), to);
        }
        const std::ptrdiff_t first = y % d.span;
        d.columns.begin_at([&](int r) {
            const std::ptrdiff_t place = first + r;
            return d.ring + (place < d.span ? place : place - d.span) * d.stride;
        });
        const std::ptrdiff_t next = y + 1 < job.roi.height ? y + 1 : y;
        in_blocks<Finish::kVectors * DoubleLanes::N>(
            job.result(y) + x0, job.result(next) + x0, n,
            [&](std::ptrdiff_t x, To* above, To* below) { double_results(d, x, above, below, finish); });
    }
}

template <class From, class To, class Weight, class Finish>
ORV_INLINE void convolve_strips(const Convolution<From, To, Weight>& job, const DoubleRows& d,
                                const Strips& strips, const Finish& finish)
{
    for (std::ptrdiff_t x = 0; x < strips.total; x += strips.width) {
        convolve_strip(job, d, x, strips.columns_at(x), finish);
    }
}

}  // namespace ORV_LEVEL
}  // namespace orv

#endif  // ORV_HAVE_VECTORS
