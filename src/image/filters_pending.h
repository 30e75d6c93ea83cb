// The loop of the float filters: source rows from top to bottom, each once.
//
// A filter with r rows above and below its centre keeps, for every column, the 2r sums that are not yet
// complete: pending[j] holds what the last j + 1 rows give to one result. A new row completes
// the oldest sum and starts another. The sums of a result thus grow from its top row downwards, in
// double, out of row sums that were rounded to single precision.
//
// The sums are kept twice, before and after a row, so that the last vector of a row may overlap its
// neighbour.
#pragma once

#include "image/filters_common.h"
#include "image/filters_lanes.h"

namespace orv {
inline namespace ORV_LEVEL {

// A filter is an object with
//     static constexpr int kRadius
//     template <class D> D add_row(const float* s, std::ptrdiff_t c, D (&pending)[2 * kRadius])
//         takes the row whose neighbours are c elements apart at s, and returns the completed sum
//     template <class D> D result(D sum, const float* centre)

using FloatStrips = Strips<256>;

template <int Radius>
struct PendingSums {
    static constexpr int kSums = 2 * Radius;
    static constexpr int kBytes = 2 * kSums * static_cast<int>(sizeof(double));  // for one column

    double* before;
    double* after;
    std::ptrdiff_t stride;  // from one sum of a column to the next

    ORV_INLINE PendingSums(void* memory, std::ptrdiff_t columns)
        : before(static_cast<double*>(memory)), after(before + kSums * columns), stride(columns)
    {
    }
    ORV_INLINE void clear()
    {
        for (std::ptrdiff_t i = 0; i < kSums * stride; ++i) before[i] = 0;
    }
    ORV_INLINE void next_row()
    {
        double* const swapped = before;
        before = after;
        after = swapped;
    }
};

template <class D, bool writes, class Filter>
ORV_INLINE void filter_at(Filter filter, const float* s, const float* centre, std::ptrdiff_t c,
                          const PendingSums<Filter::kRadius>& sums, float* dst, std::ptrdiff_t i)
{
    constexpr int n = 2 * Filter::kRadius;
    D pending[n];
    unrolled<n>([&](int j) { pending[j] = doubles<D>::load(sums.before + sums.stride * j + i); });
    const D sum = filter.add_row(s + i, c, pending);
    unrolled<n>([&](int j) { store(sums.after + sums.stride * j + i, pending[j]); });
    if (writes) store_result(dst + i, filter.result(sum, centre + i));
}

// One row of n columns. Without `writes` the sums that it completes are not results yet.
template <bool writes, class Filter>
void filter_row(Filter filter, const float* s, const float* centre, std::ptrdiff_t c,
                const PendingSums<Filter::kRadius>& sums, float* dst, std::ptrdiff_t n)
{
    std::ptrdiff_t i = 0;
#if ORV_HAVE_VECTORS
    constexpr int lanes = doubles<Doubles>::N;
    if (n >= lanes) {
        for (; i < n - lanes; i += lanes) filter_at<Doubles, writes>(filter, s, centre, c, sums, dst, i);
        filter_at<Doubles, writes>(filter, s, centre, c, sums, dst, n - lanes);
        return;
    }
#endif
    for (; i < n; ++i) filter_at<double, writes>(filter, s, centre, c, sums, dst, i);
}

// `rows(y, x, n)` gives the address of element x of source row y, from -kRadius to height + kRadius - 1;
// n elements from there on and c * kRadius on both sides can be read. `memory` has room for the sums.
template <class Filter, class Rows>
ORV_INLINE void filter_strips(Filter filter, Rows rows, float* dst, int dstStep, Size roi, int channels, void* memory)
{
    constexpr int radius = Filter::kRadius;
    const FloatStrips strips(std::ptrdiff_t{roi.width} * channels);
    for (std::ptrdiff_t x = 0; x < strips.total; x += strips.width) {
        const std::ptrdiff_t n = strips.columns_at(x);
        PendingSums<radius> sums(memory, strips.width);
        sums.clear();
        int y = -radius;
        for (; y < radius; ++y, sums.next_row()) {
            filter_row<false>(filter, rows(y, x, n), nullptr, channels, sums, nullptr, n);
        }
        for (; y < roi.height + radius; ++y, sums.next_row()) {
            const float* const centre = Filter::kNeedsCentre ? rows(y - radius, x, n) : nullptr;
            filter_row<true>(filter, rows(y, x, n), centre, channels, sums, row_at(dst, dstStep, y - radius) + x, n);
        }
    }
}

// --- The box filter -------------------------------------------------------------------------------

// The row sum, from left to right.
template <class D, int Radius>
ORV_INLINE D box_row(const float* s, std::ptrdiff_t c)
{
    D sum = doubles<D>::widen(s - c * Radius);
    unrolled<2 * Radius>([&](int k) { sum = sum + doubles<D>::widen(s + c * (k + 1 - Radius)); });
    return to_single(sum);
}

template <class D, int Radius>
ORV_INLINE D add_box_row(const float* s, std::ptrdiff_t c, D (&pending)[2 * Radius])
{
    const D row = box_row<D, Radius>(s, c);
    const D complete = pending[2 * Radius - 1] + row;
    unrolled<2 * Radius - 1>([&](int j) {
        const int later = 2 * Radius - 1 - j;
        pending[later] = pending[later - 1] + row;
    });
    pending[0] = row;
    return complete;
}

template <int Radius>
struct Lowpass {
    static constexpr int kRadius = Radius;
    static constexpr bool kNeedsCentre = false;
    template <class D> ORV_INLINE D add_row(const float* s, std::ptrdiff_t c, D (&pending)[2 * Radius]) const
    {
        return add_box_row<D, Radius>(s, c, pending);
    }
    // Not a division by 9 or 25: hosts compare results with those of this factor.
    template <class D> ORV_INLINE D result(D sum, const float*) const
    {
        return sum * static_cast<double>(Radius == 1 ? 0.1111111f : 0.04f);
    }
};

}  // namespace ORV_LEVEL
}  // namespace orv
