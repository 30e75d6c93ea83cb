// Complex transforms of 2^order lines: eight transforms side by side, one in each lane.
//
// Decimation in frequency: a pass of radix R makes of n lines R blocks of n / R, block j with the
// values X[k] with k = j mod R, then every block is transformed by itself. Doing one block to its end
// before the next is begun keeps it in the cache, whatever the size of the cache. The results stay
// where the last pass leaves them, in digit-reversed order: readers go through LinePlan::position,
// which costs nothing where whole cache lines are read.
//
// Orders up to three are one butterfly. Above, a pass has radix 8 where the order is a multiple of
// three and radix 4 elsewhere.
//
// Twiddles of a pass over n lines: for p = 0 to n/R - 1 the powers W^p, W^2p ... W^(R-1)p of
// W = exp(-2 pi i / n), each as (re, im). The passes follow each other, the longest first.
#pragma once

#include "spectral/butterflies.h"
#include "spectral/fft_record.h"

namespace orv {
inline namespace ORV_LEVEL {
namespace {

// One butterfly at `src` with lines `distance` floats apart to `dst` with lines `spread` floats apart.
template <int radix, bool inverse, bool twiddled>
ORV_INLINE void line_butterfly(const float* src, std::ptrdiff_t distance, float* dst, std::ptrdiff_t spread,
                               const float* w)
{
    using V = Widest;
    for (int lane = 0; lane < kLanes; lane += V::N) {
        Complex<V> x[radix];
        ORV_UNROLL
        for (int j = 0; j < radix; ++j) x[j] = load_line<V>(src + j * distance + lane);
        butterfly<radix, inverse>(x);
        store_line(dst + lane, x[0]);
        ORV_UNROLL
        for (int j = 1; j < radix; ++j) {
            if (twiddled) {
                const Complex<V> root = splat_complex<V>(w + 2 * (j - 1));
                x[j] = inverse ? times_conj(x[j], root) : x[j] * root;
            }
            store_line(dst + j * spread + lane, x[j]);
        }
    }
}

template <int radix, bool inverse>
void line_pass(const float* src, float* dst, std::ptrdiff_t count, const float* w)
{
    const std::ptrdiff_t distance = count * kLineFloats;
    line_butterfly<radix, inverse, false>(src, distance, dst, distance, w);  // W^0 is 1
    for (std::ptrdiff_t p = 1; p < count; ++p) {
        w += 2 * (radix - 1);
        line_butterfly<radix, inverse, true>(src + p * kLineFloats, distance, dst + p * kLineFloats, distance, w);
    }
}

template <bool inverse>
void line_transform(const float* src, float* dst, int order, const float* w)
{
    switch (order) {
        case 0: __builtin_memmove(dst, src, kLineFloats * sizeof(float)); return;
        case 1: line_butterfly<2, inverse, false>(src, kLineFloats, dst, kLineFloats, nullptr); return;
        case 2: line_butterfly<4, inverse, false>(src, kLineFloats, dst, kLineFloats, nullptr); return;
        case 3: line_butterfly<8, inverse, false>(src, kLineFloats, dst, kLineFloats, nullptr); return;
        default: break;
    }
    const int digit = radix_order(order), rest = order - digit;
    const std::ptrdiff_t count = std::ptrdiff_t{1} << rest;
    if (digit == 3) line_pass<8, inverse>(src, dst, count, w);
    else line_pass<4, inverse>(src, dst, count, w);
    w += pass_twiddle_floats(order);
    for (int j = 0; j < 1 << digit; ++j) {
        float* const block = dst + j * count * kLineFloats;
        line_transform<inverse>(block, block, rest, w);
    }
}

// src and dst may be the same.
template <bool inverse>
ORV_INLINE void transform_lines(const LinePlan& plan, const float* src, float* dst)
{
    line_transform<inverse>(src, dst, plan.order, plan.twiddles);
}

}  // namespace
}  // namespace ORV_LEVEL
}  // namespace orv
