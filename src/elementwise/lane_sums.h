// Sums of doubles in one order for every width of vector: 32 running sums of every 32nd element, added pairwise in
// the end. They start as +0, so a sum is never -0. Its error is at most (n / 32 + 6) 2^-53 times the sum of the
// magnitudes.
#pragma once

#include "core/assert.h"
#include "core/float_control.h"
#include "core/unroll.h"
#include "simd/conversion.h"
#include "simd/vec.h"

namespace orv {
inline namespace ORV_LEVEL {

constexpr int kSums = 32;

// The sum of n terms under FloatControl. terms.add<D>(sum, i) adds those from i on to the lanes of a D, one term in
// each; a lane of its own stands for the plain level and for the end.
template <class Terms>
ORV_INLINE double sum_in_lanes(const Terms& terms, std::ptrdiff_t n)
{
    ORV_ASSERT(FloatControl::holds());
    using V = simd::widest<double>;
    alignas(64) double sums[kSums] = {};
    std::ptrdiff_t i = 0;
    if (V::N > 1) {
        V acc[kSums / V::N];
        ORV_UNROLL
        for (V& sum : acc) sum = simd::zero<V>();
        for (; i + kSums <= n; i += kSums) {
            ORV_UNROLL
            for (int j = 0; j < kSums / V::N; ++j) acc[j] = terms.template add<V>(acc[j], i + V::N * j);
        }
        ORV_UNROLL
        for (int j = 0; j < kSums / V::N; ++j) simd::store(sums + V::N * j, acc[j]);
    }
    for (; i < n; ++i) sums[i % kSums] = terms.template add<simd::vec<double, 1>>(sums[i % kSums], i).v;
    int width = kSums / 2;
    for (; V::N > 1 && width >= V::N; width /= 2) {
        for (int j = 0; j < width; j += V::N) {
            simd::store(sums + j, simd::load<V>(sums + j) + simd::load<V>(sums + j + width));
        }
    }
    for (; width > 0; width /= 2) {
        for (int j = 0; j < width; ++j) sums[j] = rounded(sums[j] + sums[j + width]);
    }
    return sums[0];
}

// Numbers from memory as doubles.
template <class D> ORV_INLINE D load_double(const float* p) { return simd::load_as<D>::from(p); }
template <class D> ORV_INLINE D load_double(const double* p) { return simd::load<D>(p); }

// The terms of a plain sum.
template <class T>
struct Elements {
    const T* p;
    template <class D> ORV_INLINE D add(D sum, std::ptrdiff_t i) const { return sum + load_double<D>(p + i); }
};

}  // namespace ORV_LEVEL
}  // namespace orv
