// What the filters share that are written once, for one double and for vectors of them.
#pragma once

#include "image/filters/filters_common.h"
#include "simd/conversion.h"

namespace orv {
inline namespace ORV_LEVEL {

using OneDouble = simd::vec<double, 1>;
using ManyDoubles = simd::widest<double>;

template <int n>
struct Count {
    static constexpr int value = n;
};

// body(i, lanes, count) for i from 0 to n - 1, for `count` vectors of the type of `lanes` from i on: sums whose steps
// wait for each other leave room for those of others.
template <int together, class Body>
ORV_INLINE void along_doubles(std::ptrdiff_t n, Body body)
{
    constexpr int N = ManyDoubles::N;
    std::ptrdiff_t i = 0;
    for (; n - i >= together * N; i += together * N) body(i, ManyDoubles(), Count<together>());
    for (; n - i >= N; i += N) body(i, ManyDoubles(), Count<1>());
    for (; i < n; ++i) body(i, OneDouble(), Count<1>());
}

template <class V>
ORV_INLINE V widened(const float* p)
{
    return simd::load_as<V>::from(p);
}

// Rounded to the digits and the range of floats.
template <class V>
ORV_INLINE V to_single(V a)
{
    return to_single(simd::twice<V>(a, a)).lo;
}

// Stores a result rounded to float. Which of several NaNs survives is a matter of the operands' order, which
// compilers choose freely: a result that is a NaN is the one with all bits set.
template <class V>
ORV_INLINE void store_result(float* p, V a)
{
    store(p, a | simd::ones_where<V>(unordered(a)));
}

}  // namespace ORV_LEVEL
}  // namespace orv
