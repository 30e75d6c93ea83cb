// LU decomposition of matrices of up to eight rows whose columns stay in registers, one row in each lane.
//
// Rows do not move: a lane that has given a pivot is dead from then on, and where its row belongs is
// kept beside it. So the search for a pivot is a maximum over the lanes, and all factors of a step
// are one division.
#pragma once

#include "linalg/packs.h"

#if ORV_HAVE_INT256

namespace orv {
inline namespace ORV_LEVEL {

class LaneDecomposition {
public:
    // Rows of eight floats each, zeros behind the n columns; `least` is the magnitude, as an integer, below
    // which a pivot ends the decomposition with false. The same results as from decompose(), in place; `order`, if
    // there is one, gets the former places of the n rows.
    static ORV_INLINE bool run(float* rows, int n, int* index, int least, int* order = nullptr)
    {
        LaneDecomposition d;
        for (int i = 0; i < 8; ++i) d.column_[i] = i < n ? _mm256_loadu_ps(rows + 8 * i) : _mm256_setzero_ps();
        transpose(Pack<float, 32>(), d.column_);
        d.live_ = _mm256_castsi256_ps(_mm256_cmpgt_epi32(_mm256_set1_epi32(n), lanes()));
        const bool complete = n <= 4 ? d.steps<4, 0>(n, index, least) : d.steps<8, 0>(n, index, least);
        transpose(Pack<float, 32>(), d.column_);
        for (int i = 0; i < n; ++i) {
            _mm256_storeu_ps(rows + 8 * d.position_[i], d.column_[i]);
            if (order != nullptr) order[i] = d.lane_at_[i];
        }
        return complete;
    }

private:
    static ORV_INLINE __m256i lanes() { return _mm256_setr_epi32(0, 1, 2, 3, 4, 5, 6, 7); }
    static ORV_INLINE __m256 select(__m256 mask, __m256 a, __m256 b)
    {
        return _mm256_or_ps(_mm256_and_ps(mask, a), _mm256_andnot_ps(mask, b));
    }
    static ORV_INLINE __m256i largest_of(__m256i v)
    {
        v = _mm256_max_epi32(v, _mm256_permute2x128_si256(v, v, 1));
        v = _mm256_max_epi32(v, _mm256_shuffle_epi32(v, 0x4E));
        return _mm256_max_epi32(v, _mm256_shuffle_epi32(v, 0xB1));
    }

    // From step k on, for up to Columns columns.
    template <int Columns, int k>
    ORV_INLINE bool steps(int n, int* index, int least)
    {
        if constexpr (k < Columns) {
            if (k == n) return true;
            const __m256 column = column_[k];
            // Dead lanes count as -1, below all magnitudes.
            const __m256i magnitudes = _mm256_or_si256(
                _mm256_andnot_si256(_mm256_set1_epi32(-0x7FFFFFFF - 1), _mm256_castps_si256(column)),
                _mm256_andnot_si256(_mm256_castps_si256(live_), _mm256_set1_epi32(-1)));
            const __m256i largest = largest_of(magnitudes);
            const int lane = first_of(_mm256_movemask_ps(_mm256_castsi256_ps(_mm256_cmpeq_epi32(magnitudes, largest))));
            put(index + k, position_[lane]);
            // The row that was at place k changes places with it.
            lane_at_[position_[lane]] = lane_at_[k];
            position_[lane_at_[k]] = position_[lane];
            position_[lane] = k;
            lane_at_[k] = lane;
            if (_mm_cvtsi128_si32(_mm256_castsi256_si128(largest)) < least) return false;

            const __m256i at = _mm256_set1_epi32(lane);
            live_ = _mm256_andnot_ps(_mm256_castsi256_ps(_mm256_cmpeq_epi32(lanes(), at)), live_);
            const __m256 one = _mm256_set1_ps(1), pivot = _mm256_permutevar8x32_ps(column, at);
            const __m256 factors = _mm256_div_ps(select(live_, column, one), select(live_, pivot, one));
            column_[k] = select(live_, factors, column);
            subtract_from<Columns, k + 1>(factors, at);
            return steps<Columns, k + 1>(n, index, least);
        }
        return true;
    }

    // Columns from j on lose their products.
    template <int Columns, int j>
    ORV_INLINE void subtract_from(__m256 factors, __m256i pivot_lane)
    {
        if constexpr (j < Columns) {
            const __m256 lost = _mm256_mul_ps(factors, _mm256_permutevar8x32_ps(column_[j], pivot_lane));
            column_[j] = _mm256_sub_ps(column_[j], _mm256_and_ps(live_, lost));
            subtract_from<Columns, j + 1>(factors, pivot_lane);
        }
    }

    // Of the lanes in a mask the one whose row stands first.
    ORV_INLINE int first_of(int mask) const
    {
        int lane = __builtin_ctz(static_cast<unsigned>(mask));
        for (mask &= mask - 1; mask != 0; mask &= mask - 1) {
            const int other = __builtin_ctz(static_cast<unsigned>(mask));
            if (position_[other] < position_[lane]) lane = other;
        }
        return lane;
    }

    __m256 column_[8];
    __m256 live_;
    int position_[8] = {0, 1, 2, 3, 4, 5, 6, 7};  // of the row in each lane
    int lane_at_[8] = {0, 1, 2, 3, 4, 5, 6, 7};
};

}  // namespace ORV_LEVEL
}  // namespace orv

#endif  // ORV_HAVE_INT256
