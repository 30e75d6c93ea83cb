// The loop of the float filters: source rows from top to bottom, each once.
//
// Of every source row, row sums are formed and rounded to single precision. They are kept, as doubles, for
// the last 2r + 1 rows, r being the rows above and below a filter's centre: a new row completes the result
// r rows above it.
//
// Many float images hold whole numbers. As long as a strip does, its sums are exact in single precision,
// which is less than half the work; from the first row that has anything else it goes on in double.
#pragma once

#include "image/filters/filters_common.h"
#include "image/filters/filters_lanes.h"
#include "image/filters/strips.h"

namespace orv {
inline namespace ORV_LEVEL {

// A filter is an object with
//     static constexpr int kRadius
//     static constexpr int kApart           how many elements neighbours are from each other: the channels
//     static constexpr int kSums            how many sums it forms of each row, per column
//     static constexpr bool kUsesCentre     whether results need the source pixel once more
//     template <class D> void sum_row(const float* s, D (&sums)[kSums])
//         those of the columns from s on
//     template <class D> D result(const D (&sums)[2 * kRadius + 1][kSums], const float* centre)
//         from the sums of all rows, the top one first

constexpr int kFloatStrip = 256;

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

// The row sums of a strip, source row y in a place of its own among the last 2r + 1.
template <class Filter>
struct RowSums {
    static constexpr int kRows = 2 * Filter::kRadius + 1;
    static constexpr int kStride = kFloatStrip + 16;  // elements from a column's sum to its next one
    static constexpr int kBytes = kRows * Filter::kSums * kStride * static_cast<int>(sizeof(double));

    void* memory;

    template <class Element>
    ORV_INLINE Element* row(int y) const
    {
        return reinterpret_cast<Element*>(static_cast<double*>(memory) +
                                          (y + Filter::kRadius) % kRows * (Filter::kSums * kStride));
    }
};

// Forms the sums of source row y and writes the result row that they complete.
template <class Numbers, bool writes, class Filter>
void add_row(Filter filter, const RowSums<Filter>& memory, int y, std::ptrdiff_t columns, const float* source,
             const float* centre, float* dst)
{
    using Element = typename Numbers::Element;
    constexpr int count = RowSums<Filter>::kRows, stride = RowSums<Filter>::kStride, sums_of_row = Filter::kSums;
    Element* const own = memory.template row<Element>(y);
    const Element* rows[count];
    for (int j = 0; j < count; ++j) rows[j] = memory.template row<Element>(y + 1 + j);  // the same as y - 2r + j
    Numbers::along(columns, [=](std::ptrdiff_t i, auto lanes) __attribute__((always_inline)) {
        using D = decltype(lanes);
        D sums[count][sums_of_row];
        filter.sum_row(source + i, sums[count - 1]);
        unrolled<sums_of_row>([&](int k)
                                  __attribute__((always_inline)) { store(own + stride * k + i, sums[count - 1][k]); });
        if (!writes) return;
        unrolled<count - 1>([&](int j) __attribute__((always_inline)) {
            unrolled<sums_of_row>([&](int k) __attribute__((always_inline)) {
                sums[j][k] = doubles<D>::load(rows[j] + stride * k + i);
            });
        });
        store_result(dst + i, filter.template result<D>(sums, centre + i));
    });
}

// A strip from row to row. `rows(y, x, n)` gives the address of element x of source row y, from -kRadius
// to height + kRadius - 1; n elements from there on and c * kRadius on both sides can be read.
template <class Filter, class Rows>
class FilterStrip {
public:
    ORV_INLINE FilterStrip(Filter filter, const Rows& rows, std::ptrdiff_t x, std::ptrdiff_t n, RowSums<Filter> sums)
        : filter_(filter), rows_(rows), sums_(sums), x_(x), columns_(n), whole_(kFloatLanes > 1 && n >= kFloatLanes)
    {
    }

    // Takes source row y, which completes row y - kRadius of the result; writes that unless dst is null.
    ORV_INLINE void add(int y, float* dst)
    {
        const float* const source = rows_(y, x_, columns_);
        const float* const centre = Filter::kUsesCentre && dst != nullptr ? rows_(y - radius, x_, columns_) : source;
#if ORV_HAVE_VECTORS
        if (whole_ && !all_whole(source - kFrame, columns_ + 2 * kFrame)) continue_in_double(y);
        if (whole_) return add_as<InSingle>(y, source, centre, dst);
#endif
        add_as<InDouble>(y, source, centre, dst);
    }

private:
    static constexpr int radius = Filter::kRadius;
    static constexpr int kFrame = radius * Filter::kApart;

    template <class Numbers>
    ORV_INLINE void add_as(int y, const float* source, const float* centre, float* dst)
    {
        if (dst != nullptr) add_row<Numbers, true>(filter_, sums_, y, columns_, source, centre, dst);
        else add_row<Numbers, false>(filter_, sums_, y, columns_, source, centre, dst);
    }

#if ORV_HAVE_VECTORS
    // Everything before row y was exact, so it is the same in double. The doubles take the floats' place: from the
    // last one on, they overwrite none that is still needed.
    void continue_in_double(int y)
    {
        whole_ = false;
        for (int above = y > radius ? y - 2 * radius : -radius; above < y; ++above) {
            char* const row = sums_.template row<char>(above);
            for (int k = Filter::kSums; k-- > 0;) {
                const auto at = [=](std::ptrdiff_t i) { return RowSums<Filter>::kStride * k + i; };
                for (std::ptrdiff_t i = columns_; i-- > 0;) {
                    float single;
                    __builtin_memcpy(&single, row + at(i) * static_cast<std::ptrdiff_t>(sizeof(float)), sizeof(float));
                    const double wide = static_cast<double>(single);
                    __builtin_memcpy(row + at(i) * static_cast<std::ptrdiff_t>(sizeof(double)), &wide, sizeof(double));
                }
            }
        }
    }
#endif

    Filter filter_;
    const Rows& rows_;
    RowSums<Filter> sums_;
    std::ptrdiff_t x_, columns_;
    bool whole_;
};

// `memory` has RowSums<Filter>::kBytes.
template <class Filter, class Rows>
ORV_INLINE void filter_strips(Filter filter, const Rows& rows, float* dst, int dstStep, Size roi, void* memory)
{
    constexpr int radius = Filter::kRadius;
    const Strips strips(std::ptrdiff_t{roi.width} * Filter::kApart, kFloatStrip);
    for (std::ptrdiff_t x = 0; x < strips.total; x += strips.width) {
        FilterStrip<Filter, Rows> strip(filter, rows, x, strips.columns_at(x), RowSums<Filter>{memory});
        for (int y = -radius; y < radius; ++y) strip.add(y, nullptr);
        for (int y = radius; y < roi.height + radius; ++y) strip.add(y, row_at(dst, dstStep, y - radius) + x);
    }
}

// --- The box filter -------------------------------------------------------------------------------

// The row sum, from left to right, and the sum of these.
template <int Radius, int Channels>
struct Box {
    static constexpr int kRadius = Radius;
    static constexpr int kApart = Channels;
    static constexpr int kSums = 1;

    template <class D>
    ORV_INLINE void sum_row(const float* centre, D (&sums)[1]) const
    {
        const float* const s = centre - Radius * Channels;
        D sum = doubles<D>::widen(s);
        unrolled<2 * Radius>([&](int k) __attribute__((always_inline)) {
            sum = sum + doubles<D>::widen(s + (k + 1) * Channels);
        });
        sums[0] = to_single(sum);
    }
    template <class D>
    static ORV_INLINE D total(const D (&sums)[2 * Radius + 1][1])
    {
        D sum = sums[0][0];
        unrolled<2 * Radius>([&](int j) __attribute__((always_inline)) { sum = sum + sums[j + 1][0]; });
        return sum;
    }
};

template <int Radius, int Channels>
struct Lowpass : Box<Radius, Channels> {
    static constexpr bool kUsesCentre = false;
    // Not a division by 9 or 25: hosts compare results with those of this factor.
    template <class D>
    ORV_INLINE D result(const D (&sums)[2 * Radius + 1][1], const float*) const
    {
        return times(this->total(sums), static_cast<double>(Radius == 1 ? 0.1111111f : 0.04f));
    }
};

}  // namespace ORV_LEVEL
}  // namespace orv
