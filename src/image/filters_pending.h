// The loop of the float filters: source rows from top to bottom, each once.
//
// Of every source row, row sums are formed and rounded to single precision. A filter with r rows above
// and below its centre keeps, for every column, the 2r results that are not yet complete: pending
// sum j holds what the last j + 1 rows give to one of them. A new row completes the oldest and starts
// another, so a result grows from its top row downwards, in double.
//
// Source rows are widened to double once, in memory, where sums of neighbours are then loads that need
// no conversion. Pending sums are kept twice, before and after a row: that lets the last vector of a
// row overlap its neighbour.
#pragma once

#include "image/filters_common.h"
#include "image/filters_lanes.h"

namespace orv {
inline namespace ORV_LEVEL {

// A filter is an object with
//     static constexpr int kRadius
//     static constexpr int kWideRows        how many source rows, the last ones, it wants as doubles
//     void sum_row(const FilterRow& row)    forms the row sums of a source row
//     template <class D> D add_row(const FilterRow& row, std::ptrdiff_t i, D (&pending)[2 * kRadius])
//         adds those of columns from i on, and returns the completed results
//     template <class D> D result(D sum, const double* centre)

using FloatStrips = Strips<256>;

struct FilterRow {
    const float* source;  // of the first column; neighbours are `apart` elements from each other
    const double* wide;   // the same
    float* sums[2];
    std::ptrdiff_t apart, columns;
};

// compute(i, lanes) for i from 0 to n - 1, with a value of type Many for as many columns as that has
// lanes, some of them perhaps twice, or with one of type One.
template <class One, class Many, int lanes, class Compute>
ORV_INLINE void along_row(std::ptrdiff_t n, Compute compute)
{
    std::ptrdiff_t i = 0;
    if (lanes > 1 && n >= lanes) {
        for (; i < n - lanes; i += lanes) compute(i, Many());
        compute(n - lanes, Many());
        return;
    }
    for (; i < n; ++i) compute(i, One());
}
template <class Compute>
ORV_INLINE void along_row_of_doubles(std::ptrdiff_t n, Compute compute)
{
    along_row<double, ManyDoubles, kFloatLanes>(n, compute);
}
template <class Compute>
ORV_INLINE void along_row_of_floats(std::ptrdiff_t n, Compute compute)
{
    along_row<Single, ManyFloats, kFloatLanes>(n, compute);
}

ORV_INLINE void widen_row(const float* source, double* wide, std::ptrdiff_t n)
{
    along_row_of_doubles(n, [=](std::ptrdiff_t i, auto lanes) {
        store(wide + i, doubles<decltype(lanes)>::widen(source + i));
    });
}

// The working memory of a strip.
template <class Filter>
class FilterMemory {
public:
    static constexpr int kSums = 2 * Filter::kRadius;
    static constexpr int kFrame = 16;  // at least the neighbours on both sides
    static constexpr int bytes(std::ptrdiff_t columns)
    {
        constexpr int doubles_each = 2 * kSums + Filter::kWideRows;
        return static_cast<int>(columns + kFrame) * (doubles_each * static_cast<int>(sizeof(double)) + 2 * static_cast<int>(sizeof(float)));
    }

    double* before;
    double* after;
    std::ptrdiff_t stride;  // from one pending sum of a column to the next

    ORV_INLINE FilterMemory(void* memory, std::ptrdiff_t columns)
        : before(static_cast<double*>(memory)), after(before + kSums * (columns + kFrame)), stride(columns + kFrame),
          wide_(after + kSums * stride), sums_(reinterpret_cast<float*>(wide_ + Filter::kWideRows * stride))
    {
        for (std::ptrdiff_t i = 0; i < kSums * stride; ++i) before[i] = 0;
    }
    ORV_INLINE void next_row()
    {
        double* const swapped = before;
        before = after;
        after = swapped;
    }
    ORV_INLINE double* wide(std::ptrdiff_t y) const
    {
        return wide_ + stride * static_cast<int>((y + Filter::kRadius) % (Filter::kWideRows < 1 ? 1 : Filter::kWideRows));
    }
    ORV_INLINE float* sums(int which) const { return sums_ + stride * which; }

private:
    double* wide_;
    float* sums_;
};

template <bool writes, class Filter>
void add_row(Filter filter, const FilterRow& given, const FilterMemory<Filter>& given_memory, const double* centre, float* dst)
{
    const FilterRow row = given;
    const FilterMemory<Filter> memory = given_memory;
    along_row_of_doubles(row.columns, [=](std::ptrdiff_t i, auto lanes) {
        using D = decltype(lanes);
        constexpr int n = 2 * Filter::kRadius;
        D pending[n];
        unrolled<n>([&](int j) __attribute__((always_inline)) { pending[j] = doubles<D>::load(memory.before + memory.stride * j + i); });
        const D sum = filter.add_row(row, i, pending);
        unrolled<n>([&](int j) __attribute__((always_inline)) { store(memory.after + memory.stride * j + i, pending[j]); });
        if (writes) store_result(dst + i, filter.result(sum, centre + i));
    });
}

// `rows(y, x, n)` gives the address of element x of source row y, from -kRadius to height + kRadius - 1;
// n elements from there on and c * kRadius on both sides can be read. `memory` has room for a strip.
template <class Filter, class Rows>
ORV_INLINE void filter_strips(Filter filter, Rows rows, float* dst, int dstStep, Size roi, int channels, void* memory)
{
    constexpr int radius = Filter::kRadius;
    const std::ptrdiff_t frame = std::ptrdiff_t{radius} * channels;
    const FloatStrips strips(std::ptrdiff_t{roi.width} * channels);
    for (std::ptrdiff_t x = 0; x < strips.total; x += strips.width) {
        FilterMemory<Filter> strip(memory, strips.width);
        FilterRow row;
        row.apart = channels;
        row.columns = strips.columns_at(x);
        row.sums[0] = strip.sums(0);
        row.sums[1] = strip.sums(1);
        for (int y = -radius; y < roi.height + radius; ++y, strip.next_row()) {
            row.source = rows(y, x, row.columns);
            double* const wide = strip.wide(y);
            if (Filter::kWideRows > 0) widen_row(row.source - frame, wide, row.columns + 2 * frame);
            row.wide = wide + frame;
            filter.sum_row(row);
            if (y < radius) {
                add_row<false>(filter, row, strip, nullptr, nullptr);
            } else {
                add_row<true>(filter, row, strip, strip.wide(y - radius) + frame, row_at(dst, dstStep, y - radius) + x);
            }
        }
    }
}

// --- The box filter -------------------------------------------------------------------------------

// The row sum, from left to right, and the sum of these.
template <int Radius, int WideRows>
struct Box {
    static constexpr int kRadius = Radius;
    static constexpr int kWideRows = WideRows;

    ORV_INLINE void sum_row(const FilterRow& given) const
    {
        const FilterRow row = given;
        along_row_of_doubles(row.columns, [=](std::ptrdiff_t i, auto lanes) {
            using D = decltype(lanes);
            const double* const p = row.wide + i;
            D sum = doubles<D>::load(p - Radius * row.apart);
            unrolled<2 * Radius>([&](int k) __attribute__((always_inline)) {
                sum = sum + doubles<D>::load(p + (k + 1 - Radius) * row.apart);
            });
            store_single(row.sums[0] + i, sum);
        });
    }
    template <class D> ORV_INLINE D add_row(const FilterRow& row, std::ptrdiff_t i, D (&pending)[2 * Radius]) const
    {
        const D sum = doubles<D>::widen(row.sums[0] + i);
        const D complete = pending[2 * Radius - 1] + sum;
        unrolled<2 * Radius - 1>([&](int j) __attribute__((always_inline)) {
            const int later = 2 * Radius - 1 - j;
            pending[later] = pending[later - 1] + sum;
        });
        pending[0] = sum;
        return complete;
    }
};

template <int Radius>
struct Lowpass : Box<Radius, 1> {
    // Not a division by 9 or 25: hosts compare results with those of this factor.
    template <class D> ORV_INLINE D result(D sum, const double*) const
    {
        return sum * static_cast<double>(Radius == 1 ? 0.1111111f : 0.04f);
    }
};

}  // namespace ORV_LEVEL
}  // namespace orv
