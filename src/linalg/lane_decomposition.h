// LU decomposition of matrices of up to eight rows whose columns stay in registers, one row in each lane.
//
// Rows do not move: a lane that has given a pivot is dead from then on, and where its row belongs is
// kept beside it. So the search for a pivot is a maximum over the lanes, and all factors of a step
// are one division.
#pragma once

#include "core/checks.h"
#include "simd/partial.h"
#include "simd/shuffles.h"

#if ORV_HAVE_INT256

namespace orv {
inline namespace ORV_LEVEL {

class LaneDecomposition {
    using Floats = simd::vec<float, 8>;
    using Ints = simd::vec<std::int32_t, 8>;

public:
    // Rows of eight floats each, zeros behind the n columns; `least` is the magnitude, as an integer, below
    // which a pivot ends the decomposition with false. The same results as from decompose(), in place; `order`, if
    // there is one, gets the former places of the n rows.
    static ORV_INLINE bool run(float* rows, int n, int* index, int least, int* order = nullptr)
    {
        LaneDecomposition d;
        for (int i = 0; i < 8; ++i) d.column_[i] = i < n ? simd::load<Floats>(rows + 8 * i) : simd::zero<Floats>();
        transpose(d.column_);
        d.live_ = as_mask(greater(simd::splat<Ints>(n), lanes()));
        const bool complete = n <= 4 ? d.steps<4, 0>(n, index, least) : d.steps<8, 0>(n, index, least);
        transpose(d.column_);
        for (int i = 0; i < n; ++i) {
            simd::store(rows + 8 * d.position_[i], d.column_[i]);
            if (order != nullptr) order[i] = d.lane_at_[i];
        }
        return complete;
    }

private:
    static ORV_INLINE Ints lanes() { return simd::ascending<Ints>(); }
    static ORV_INLINE Floats as_mask(Ints mask) { return from_bits(simd::as<std::uint32_t>(mask)); }
    static ORV_INLINE Ints as_ints(Floats mask) { return simd::as<std::int32_t>(bits(mask)); }

    // From step k on, for up to Columns columns.
    template <int Columns, int k>
    ORV_INLINE bool steps(int n, int* index, int least)
    {
        if constexpr (k < Columns) {
            if (k == n) return true;
            const Floats column = column_[k];
            // Dead lanes count as -1, below all magnitudes.
            const Ints all_ones = simd::splat<Ints>(-1);
            const Ints magnitudes = as_ints(magnitude(column)) | and_not(as_ints(live_), all_ones);
            const Ints largest = simd::largest_lane(magnitudes);
            const int lane = first_of(lanes_of(equal(magnitudes, largest)));
            put(index + k, position_[lane]);
            // The row that was at place k changes places with it.
            lane_at_[position_[lane]] = lane_at_[k];
            position_[lane_at_[k]] = position_[lane];
            position_[lane] = k;
            lane_at_[k] = lane;
            if (simd::first_lane(largest) < least) return false;

            const Ints at = simd::splat<Ints>(lane);
            live_ = and_not(as_mask(equal(lanes(), at)), live_);
            const Floats one = simd::splat<Floats>(1), pivot = permuted(column, at);
            const Floats factors = select(live_, column, one) / select(live_, pivot, one);
            column_[k] = select(live_, factors, column);
            subtract_from<Columns, k + 1>(factors, at);
            return steps<Columns, k + 1>(n, index, least);
        }
        return true;
    }

    // Columns from j on lose their products.
    template <int Columns, int j>
    ORV_INLINE void subtract_from(Floats factors, Ints pivot_lane)
    {
        if constexpr (j < Columns) {
            const Floats lost = factors * permuted(column_[j], pivot_lane);
            column_[j] = column_[j] - (live_ & lost);
            subtract_from<Columns, j + 1>(factors, pivot_lane);
        }
    }

    // Of the lanes in a mask the one whose row stands first.
    ORV_INLINE int first_of(unsigned mask) const
    {
        int lane = __builtin_ctz(mask);
        for (mask &= mask - 1; mask != 0; mask &= mask - 1) {
            const int other = __builtin_ctz(mask);
            if (position_[other] < position_[lane]) lane = other;
        }
        return lane;
    }

    Floats column_[8];
    Floats live_;
    int position_[8] = {0, 1, 2, 3, 4, 5, 6, 7};  // of the row in each lane
    int lane_at_[8] = {0, 1, 2, 3, 4, 5, 6, 7};
};

}  // namespace ORV_LEVEL
}  // namespace orv

#endif  // ORV_HAVE_INT256
