// Fills the tables of the specification records.
#pragma once

#include <cstdint>

#include "spectral/fft_record.h"
#include "spectral/roots.h"

namespace orv {
inline namespace ORV_LEVEL {
namespace {

// Hands out the memory behind a record, part by part.
class Parts {
public:
    explicit Parts(unsigned char* next) : next_(next) {}
    template <class T>
    T* take(long long bytes)
    {
        T* const part = reinterpret_cast<T*>(next_);
        next_ += bytes;
        return part;
    }

private:
    unsigned char* next_;
};

// Where a transform of 2^order lines leaves X[k], from the digits of k, the lowest first.
inline int position_of(int k, int order)
{
    int position = 0;
    while (order > 3) {
        const int digit = radix_order(order);
        order -= digit;
        position += (k & ((1 << digit) - 1)) << order;
        k >>= digit;
    }
    return position + k;
}

inline LinePlan make_line_plan(int order, const Roots& roots, Parts& parts)
{
    float* const twiddles = parts.take<float>(line_twiddle_bytes(order));
    int* const position = parts.take<int>(line_position_bytes(order));
    float* w = twiddles;
    for (int n = order; n > 3; n -= radix_order(n)) {
        const std::uint64_t radix = std::uint64_t{1} << radix_order(n), count = (std::uint64_t{1} << n) / radix;
        for (std::uint64_t p = 0; p < count; ++p) {
            for (std::uint64_t j = 1; j < radix; ++j, w += 2) roots.get(j * p, n, 1.0, w, w + 1);
        }
    }
    for (int k = 0; k < 1 << order; ++k) position[k] = position_of(k, order);
    return {twiddles, position, order};
}

// W^k of a split of 2^order real values, k = 0 to a quarter of them.
inline float* make_split(int order, long long bytes, const Roots& roots, Parts& parts)
{
    float* const split = parts.take<float>(bytes);
    for (std::uint64_t k = 0; k <= (std::uint64_t{1} << order) / 4; ++k) {
        roots.get(k, order, 1.0, split + 2 * k, split + 2 * k + 1);
    }
    return split;
}

inline RealPlan make_real_plan(int order, const Roots& roots, Parts& parts)
{
    if (order <= kSmallOrder) return {{nullptr, nullptr, 0}, nullptr, nullptr, order};
    const int lines = line_order(order);
    const LinePlan plan = make_line_plan(lines, roots, parts);
    const float* const split = make_split(lines + 1, split_bytes(order), roots, parts);
    float* const join = parts.take<float>(join_bytes(order));
    float* w = join;
    for (int group = 0; group < join_groups(order); ++group) {
        for (unsigned l = 1; l < kLanes; ++l, w += kLineFloats) {
            for (int i = 0; i < kLanes; ++i) {
                const std::uint64_t k = static_cast<std::uint64_t>(group) * kLanes + static_cast<unsigned>(i);
                roots.get(l * k, order, 0.5, w + i, w + kLanes + i);
            }
        }
    }
    return {plan, split, join, order};
}

inline RealPlan make_row_plan(int order, const Roots& roots, Parts& parts)
{
    if (order > kNarrowOrder) return make_real_plan(order, roots, parts);
    const LinePlan plan = make_line_plan(order - 1, roots, parts);
    return {plan, make_split(order, row_plan_bytes(order) - line_plan_bytes(order - 1), roots, parts), nullptr, order};
}

// 1/N or 1/sqrt(N) for N = 2^order, by what the flag asks for.
template <class Spec>
inline void set_scaling(Spec* spec, int order, int flag)
{
    double scale = 1.0;
    const bool root = flag == kScaleBoth;
    for (int i = 0; i < (root ? order / 2 : order); ++i) scale *= 0.5;
    if (root && order % 2 != 0) scale *= 0.70710678118654752440;
    spec->scale = static_cast<float>(scale);
    spec->scales_forward = flag == kScaleForward || root;
    spec->scales_inverse = flag == kScaleInverse || root;
}

}  // namespace
}  // namespace ORV_LEVEL
}  // namespace orv
