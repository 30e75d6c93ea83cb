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
//
// Many float images hold whole numbers. As long as a strip does, its sums are exact in single precision,
// which is less than half the work; from the first row that has anything else it goes on in double.
#pragma once

#include "image/filters_common.h"
#include "image/filters_lanes.h"

namespace orv {
inline namespace ORV_LEVEL {

// A filter is an object with
//     static constexpr int kRadius
//     static constexpr int kApart           how many elements neighbours are from each other: the channels
//     static constexpr int kWideRows        how many source rows, the last ones, it wants as doubles
//     void sum_row(const FilterRow& row)    forms the row sums of a source row; not called in single precision,
//                                           where sums of loaded floats are as good as sums in memory
//     template <class D> D add_row(const FilterRow& row, std::ptrdiff_t i, D (&pending)[2 * kRadius])
//         adds those of columns from i on, and returns the completed results
//     template <class D, class Element> D result(D sum, const Element* centre)

constexpr int kFloatStrip = 256;
using FloatStrips = Strips<kFloatStrip>;

struct FilterRow {
    const float* source;  // of the first column
    const double* wide;   // the same
    float* sums[2];
    std::ptrdiff_t columns;
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
ORV_INLINE void along_row_of_floats(std::ptrdiff_t n, Compute compute)
{
    along_row<Single, ManyFloats, kFloatLanes>(n, compute);
}

// What a strip is computed in: doubles, or floats as long as these lose nothing.
struct InDouble {
    using Element = double;
    template <class Compute>
    static ORV_INLINE void along(std::ptrdiff_t n, Compute compute)
    {
        along_row<double, ManyDoubles, kFloatLanes>(n, compute);
    }
};
#if ORV_HAVE_VECTORS
struct InSingle {
    using Element = float;
    template <class Compute>
    static ORV_INLINE void along(std::ptrdiff_t n, Compute compute)
    {
        along_row<WholeFloats, WholeFloats, kFloatLanes>(n, compute);
    }
};
#endif

ORV_INLINE void widen_row(const float* source, double* wide, std::ptrdiff_t n)
{
    InDouble::along(n, [=](std::ptrdiff_t i, auto lanes) {
        store(wide + i, doubles<decltype(lanes)>::widen(source + i));
    });
}

// The working memory of a strip. Every row in it is equally long, so that one address leads to all of them.
template <class Filter>
class FilterMemory {
public:
    static constexpr int kSums = 2 * Filter::kRadius;
    static constexpr int kStride = kFloatStrip + 16;  // a strip and the neighbours on both sides
    static constexpr int kBytes = kStride * ((2 * kSums + Filter::kWideRows) * static_cast<int>(sizeof(double)) +
                                             2 * static_cast<int>(sizeof(float)));

    double* before;
    double* after;

    ORV_INLINE explicit FilterMemory(void* memory)
        : before(static_cast<double*>(memory)), after(before + kSums * kStride), wide_(after + kSums * kStride),
          sums_(reinterpret_cast<float*>(wide_ + Filter::kWideRows * kStride))
    {
    }
    template <class Element>
    ORV_INLINE void clear(std::ptrdiff_t columns) const
    {
        Element* const sums = reinterpret_cast<Element*>(before);
        for (int j = 0; j < kSums; ++j) {
            for (std::ptrdiff_t i = 0; i < columns; ++i) sums[j * kStride + i] = 0;
        }
    }
    ORV_INLINE void next_row()
    {
        double* const swapped = before;
        before = after;
        after = swapped;
    }
    ORV_INLINE double* wide(std::ptrdiff_t y) const
    {
        return wide_ + kStride * static_cast<int>((y + Filter::kRadius) % (Filter::kWideRows < 1 ? 1 : Filter::kWideRows));
    }
    ORV_INLINE float* sums(int which) const { return sums_ + kStride * which; }

private:
    double* wide_;
    float* sums_;
};

template <class Numbers, bool writes, class Filter>
void add_row(Filter filter, const FilterRow& given, const FilterMemory<Filter>& memory,
             const typename Numbers::Element* centre, float* dst)
{
    using Element = typename Numbers::Element;
    const FilterRow row = given;
    const Element* const before = reinterpret_cast<const Element*>(memory.before);
    Element* const after = reinterpret_cast<Element*>(memory.after);
    constexpr int stride = FilterMemory<Filter>::kStride;
    Numbers::along(row.columns, [=](std::ptrdiff_t i, auto lanes) {
        using D = decltype(lanes);
        constexpr int n = 2 * Filter::kRadius;
        D pending[n];
        unrolled<n>([&](int j) __attribute__((always_inline)) { pending[j] = doubles<D>::load(before + stride * j + i); });
        const D sum = filter.add_row(row, i, pending);
        unrolled<n>([&](int j) __attribute__((always_inline)) { store(after + stride * j + i, pending[j]); });
        if (writes) store_result(dst + i, filter.template result<D>(sum, centre + i));
    });
}

// A strip from row to row. `rows(y, x, n)` gives the address of element x of source row y, from -kRadius
// to height + kRadius - 1; n elements from there on and c * kRadius on both sides can be read.
template <class Filter, class Rows>
class FilterStrip {
public:
    ORV_INLINE FilterStrip(Filter filter, const Rows& rows, std::ptrdiff_t x, std::ptrdiff_t n, FilterMemory<Filter> memory)
        : filter_(filter), rows_(rows), memory_(memory), x_(x), whole_(kFloatLanes > 1 && n >= kFloatLanes)
    {
        row_.wide = nullptr;
        row_.columns = n;
        row_.sums[0] = memory.sums(0);
        row_.sums[1] = memory.sums(1);
    }

    // Takes source row y, which completes row y - kRadius of the result; writes that unless dst is null.
    ORV_INLINE void add(int y, float* dst)
    {
        row_.source = rows_(y, x_, row_.columns);
#if ORV_HAVE_VECTORS
        if (whole_ && !all_whole(row_.source - kFrame, row_.columns + 2 * kFrame)) continue_in_double(y);
        if (whole_) {
            const float* const centre = dst != nullptr && kNeedsCentre ? rows_(y - radius, x_, row_.columns) : row_.source;
            add_as<InSingle>(y, centre, dst);
            return;
        }
#endif
        if (Filter::kWideRows > 0) widen(y);
        filter_.sum_row(row_);
        add_as<InDouble>(y, memory_.wide(y - radius) + kFrame, dst);
    }

private:
    static constexpr int radius = Filter::kRadius;
    static constexpr int kFrame = radius * Filter::kApart;
    static constexpr bool kNeedsCentre = Filter::kWideRows > 1;

    ORV_INLINE void widen(int y)
    {
        double* const wide = memory_.wide(y);
        widen_row(row_.source - kFrame, wide, row_.columns + 2 * kFrame);
        row_.wide = wide + kFrame;
    }

    template <class Numbers>
    ORV_INLINE void add_as(int y, const typename Numbers::Element* centre, float* dst)
    {
        if (y == -radius) memory_.template clear<typename Numbers::Element>(row_.columns);
        if (dst != nullptr) add_row<Numbers, true>(filter_, row_, memory_, centre, dst);
        else add_row<Numbers, false>(filter_, row_, memory_, centre, dst);
        memory_.next_row();
    }

#if ORV_HAVE_VECTORS
    // Everything so far was exact, so it is the same in double.
    void continue_in_double(int y)
    {
        whole_ = false;
        const float* const before = reinterpret_cast<const float*>(memory_.before);
        for (int j = 0; j < 2 * radius; ++j) {
            const int at = FilterMemory<Filter>::kStride * j;
            for (std::ptrdiff_t i = 0; i < row_.columns; ++i) memory_.after[at + i] = static_cast<double>(before[at + i]);
        }
        memory_.next_row();
        if (!kNeedsCentre) return;
        for (int above = y > 0 ? y - radius : -radius; above < y; ++above) {
            row_.source = rows_(above, x_, row_.columns);
            widen(above);
        }
        row_.source = rows_(y, x_, row_.columns);
    }
#endif

    Filter filter_;
    const Rows& rows_;
    FilterMemory<Filter> memory_;
    FilterRow row_;
    std::ptrdiff_t x_;
    bool whole_;
};

// `memory` has room for a strip.
template <class Filter, class Rows>
ORV_INLINE void filter_strips(Filter filter, const Rows& rows, float* dst, int dstStep, Size roi, void* memory)
{
    constexpr int radius = Filter::kRadius;
    const FloatStrips strips(std::ptrdiff_t{roi.width} * Filter::kApart);
    for (std::ptrdiff_t x = 0; x < strips.total; x += strips.width) {
        FilterStrip<Filter, Rows> strip(filter, rows, x, strips.columns_at(x), FilterMemory<Filter>(memory));
        for (int y = -radius; y < radius; ++y) strip.add(y, nullptr);
        for (int y = radius; y < roi.height + radius; ++y) strip.add(y, row_at(dst, dstStep, y - radius) + x);
    }
}

// --- The box filter -------------------------------------------------------------------------------

// The row sum, from left to right, and the sum of these.
template <int Radius, int Channels, int WideRows>
struct Box {
    static constexpr int kRadius = Radius;
    static constexpr int kApart = Channels;
    static constexpr int kWideRows = WideRows;

    template <class D, class Element>
    static ORV_INLINE D sum_around(const Element* p)
    {
        D sum = doubles<D>::load(p - Radius * Channels);
        unrolled<2 * Radius>([&](int k) __attribute__((always_inline)) {
            sum = sum + doubles<D>::load(p + (k + 1 - Radius) * Channels);
        });
        return sum;
    }
    ORV_INLINE void sum_row(const FilterRow& given) const
    {
        const FilterRow row = given;
        InDouble::along(row.columns, [=](std::ptrdiff_t i, auto lanes) {
            store_single(row.sums[0] + i, sum_around<decltype(lanes)>(row.wide + i));
        });
    }
    template <class D> static ORV_INLINE D row_sum(const FilterRow& row, std::ptrdiff_t i, D)
    {
        return doubles<D>::widen(row.sums[0] + i);
    }
#if ORV_HAVE_VECTORS
    static ORV_INLINE WholeFloats row_sum(const FilterRow& row, std::ptrdiff_t i, WholeFloats)
    {
        return sum_around<WholeFloats>(row.source + i);
    }
#endif
    template <class D> ORV_INLINE D add_row(const FilterRow& row, std::ptrdiff_t i, D (&pending)[2 * Radius]) const
    {
        const D sum = row_sum(row, i, D());
        const D complete = pending[2 * Radius - 1] + sum;
        unrolled<2 * Radius - 1>([&](int j) __attribute__((always_inline)) {
            const int later = 2 * Radius - 1 - j;
            pending[later] = pending[later - 1] + sum;
        });
        pending[0] = sum;
        return complete;
    }
};

template <int Radius, int Channels>
struct Lowpass : Box<Radius, Channels, 1> {
    // Not a division by 9 or 25: hosts compare results with those of this factor.
    template <class D, class Element> ORV_INLINE D result(D sum, const Element*) const
    {
        return sum * static_cast<double>(Radius == 1 ? 0.1111111f : 0.04f);
    }
};

}  // namespace ORV_LEVEL
}  // namespace orv
