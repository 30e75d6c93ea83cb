// What is known of a kernel of integers before it is used: how large its sums can grow, and whether it is a column
// times a row.
#pragma once

#include <cstdint>

#include "image/filters/convolution_job.h"

namespace orv {
inline namespace ORV_LEVEL {

ORV_INLINE std::uint32_t magnitude_of(int weight)
{
    return weight < 0 ? 0u - static_cast<std::uint32_t>(weight) : static_cast<std::uint32_t>(weight);
}
// Every weight from least to most is a signed number of so many bits.
ORV_INLINE bool fits_bits(int least, int most, int bits)
{
    return least >= -(1 << (bits - 1)) && most < 1 << (bits - 1);
}

struct Weights {
    std::uint64_t magnitudes = 0;  // their sum
    std::int64_t sum = 0;
    int least = 0, most = 0;

    Weights(const int* kernel, int count)
    {
        for (int i = 0; i < count; ++i) {
            const int weight = get(kernel + i);
            magnitudes += magnitude_of(weight);
            sum += weight;
            if (weight < least) least = weight;
            if (weight > most) most = weight;
        }
    }
    ORV_INLINE bool fits(int bits) const { return fits_bits(least, most, bits); }
};

ORV_INLINE std::uint32_t greatest_common_divisor(std::uint32_t a, std::uint32_t b)
{
    while (b != 0) {
        const std::uint32_t rest = a % b;
        a = b;
        b = rest;
    }
    return a;
}

// weight(r, c) = column[r] * row[c], where the weights of `row` have no common divisor: every row of a kernel of rank 1
// is a whole multiple of it.
struct Factors {
    int row[kMostMaskSide], column[kMostMaskSide];
    std::uint64_t magnitudes = 0;  // the sum of those of the row
    int negative = 0;              // the sum of its negative weights, where `magnitudes` is small

    // False for a kernel that has no such form, or no weight but 0, or factors of more than 31 bits.
    template <class Job>
    bool find(const Job& job)
    {
        int pivot = 0, place = 0;
        for (; pivot < job.height; ++pivot) {
            for (place = 0; place < job.width && get(job.weight(pivot, place)) == 0;) ++place;
            if (place < job.width) break;
        }
        if (pivot == job.height || !take_row(job, pivot)) return false;
        for (int r = 0; r < job.height; ++r) {
            if (!is_multiple(job, r, place)) return false;
        }
        return true;
    }
    bool row_fits(int bits) const { return all_fit(row, width_, bits); }
    bool column_fits(int bits) const { return all_fit(column, height_, bits); }

private:
    int width_ = 0, height_ = 0;

    static bool all_fit(const int* weights, int count, int bits)
    {
        for (int i = 0; i < count; ++i) {
            if (!fits_bits(weights[i], weights[i], bits)) return false;
        }
        return true;
    }
    template <class Job>
    bool take_row(const Job& job, int pivot)
    {
        width_ = job.width;
        height_ = job.height;
        std::uint32_t divisor = 0;
        for (int c = 0; c < width_; ++c)
            divisor = greatest_common_divisor(divisor, magnitude_of(get(job.weight(pivot, c))));
        if (divisor > INT32_MAX) return false;
        for (int c = 0; c < width_; ++c) {
            row[c] = get(job.weight(pivot, c)) / static_cast<int>(divisor);
            magnitudes += magnitude_of(row[c]);
        }
        for (int c = 0; c < width_ && magnitudes < 65536; ++c) negative += row[c] < 0 ? row[c] : 0;
        return true;
    }
    template <class Job>
    bool is_multiple(const Job& job, int r, int place)
    {
        const std::int64_t multiple = std::int64_t{get(job.weight(r, place))} / row[place];
        if (multiple > INT32_MAX || multiple < INT32_MIN) return false;
        for (int c = 0; c < width_; ++c) {
            if (multiple * row[c] != get(job.weight(r, c))) return false;
        }
        column[r] = static_cast<int>(multiple);
        return true;
    }
};

}  // namespace ORV_LEVEL
}  // namespace orv
