// Blocks of a few vectors, sorted without a branch: columns of eight or sixteen vectors by a network, then neighbouring
// columns merged two by two. A merge of two sorted columns compares one with the other back to front; what lies in
// either half then is sorted by exchanges over half the distance, a quarter and so on (K. E. Batcher, Sorting networks
// and their applications, 1968). A block's order runs down its columns, so exchanges within them move no lanes.
//
// The networks of 19 and 60 exchanges are those of D. E. Knuth, The Art of Computer Programming, volume 3, section
// 5.3.4; the latter is M. W. Green's.
#pragma once

#include <utility>

#include "math/order.h"
#include "simd/exchanges.h"

#if ORV_HAVE_INT256

namespace orv {
inline namespace ORV_LEVEL {

template <int value>
struct Number {
    static constexpr int v = value;
};
// do_at(Number<0>()), do_at(Number<1>()) ...: rows stay in registers only where their numbers are constants.
template <class Do, int... i>
ORV_INLINE void for_each_number(std::integer_sequence<int, i...>, Do do_at)
{
    (do_at(Number<i>()), ...);
}
template <int n, class Do>
ORV_INLINE void unrolled(Do do_at)
{
    for_each_number(std::make_integer_sequence<int, n>(), do_at);
}

template <int a, int b, int... others, class V, int rows>
ORV_INLINE void exchanges(V (&v)[rows])
{
    exchange(v[a], v[b]);
    if constexpr (sizeof...(others) > 0) exchanges<others...>(v);
}

template <class V>
ORV_INLINE void sort_columns(V (&v)[8])
{
    exchanges<0, 1, 2, 3, 4, 5, 6, 7, 0, 2, 1, 3, 4, 6, 5, 7, 1, 2, 5, 6, 0, 4, 3, 7>(v);
    exchanges<1, 5, 2, 6, 1, 4, 3, 6, 2, 4, 3, 5, 3, 4>(v);
}
template <class V>
ORV_INLINE void sort_columns(V (&v)[16])
{
    exchanges<0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15>(v);
    exchanges<0, 2, 4, 6, 8, 10, 12, 14, 1, 3, 5, 7, 9, 11, 13, 15>(v);
    exchanges<0, 4, 8, 12, 1, 5, 9, 13, 2, 6, 10, 14, 3, 7, 11, 15>(v);
    exchanges<0, 8, 1, 9, 2, 10, 3, 11, 4, 12, 5, 13, 6, 14, 7, 15>(v);
    exchanges<5, 10, 6, 9, 3, 12, 13, 14, 4, 8, 7, 11, 1, 2, 1, 4, 7, 13, 2, 8, 11, 14>(v);
    exchanges<2, 4, 5, 6, 9, 10, 11, 13, 3, 8, 7, 12, 6, 8, 10, 12, 3, 5, 7, 9>(v);
    exchanges<3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 6, 7, 8, 9>(v);
}

// Exchanges of lane i with lane i xor `reach`: the greater one goes where i has the bit.
template <int reach, int bit, class V>
ORV_INLINE V exchanged_lanes(V v)
{
    const V other = simd::across<reach>(v);
    return simd::lanes_by_bit<bit>(simd::min(v, other), simd::max(v, other));
}
template <int distance, class V>
ORV_INLINE V merged_lanes(V v)
{
    if constexpr (distance == 0) return v;
    else return merged_lanes<distance / 2>(exchanged_lanes<distance, distance>(v));
}

// Lane i of a with lane i xor `reach` of b.
template <int reach, int bit, class V>
ORV_INLINE void exchange_lanes(V& a, V& b)
{
    const V other = simd::across<reach>(b), least = simd::min(a, other), most = simd::max(a, other);
    a = simd::lanes_by_bit<bit>(least, most);
    b = simd::across<reach>(simd::lanes_by_bit<bit>(most, least));
}

template <int distance, class V, int rows>
ORV_INLINE void merge_rows(V (&v)[rows])
{
    if constexpr (distance > 0) {
        unrolled<rows / 2>([&](auto i) {
            constexpr int row = i.v / distance * 2 * distance + i.v % distance;
            exchange(v[row], v[row + distance]);
        });
        merge_rows<distance / 2>(v);
    }
}
// Sorted runs of lanes / 2 columns become sorted runs of `lanes`.
template <int lanes, class V, int rows>
ORV_INLINE void merge_columns(V (&v)[rows])
{
    if constexpr (lanes <= V::N) {
        unrolled<rows / 2>([&](auto i) { exchange_lanes<lanes - 1, lanes / 2>(v[i.v], v[rows - 1 - i.v]); });
        unrolled<rows>([&](auto i) { v[i.v] = merged_lanes<lanes / 4>(v[i.v]); });
        merge_rows<rows / 2>(v);
        merge_columns<2 * lanes>(v);
    }
}

// The lanes of one vector.
template <int lanes = 2, class V>
ORV_INLINE V sorted_lanes(V v)
{
    if constexpr (lanes > V::N) return v;
    else return sorted_lanes<2 * lanes>(merged_lanes<lanes / 4>(exchanged_lanes<lanes - 1, lanes / 2>(v)));
}

// `rows` vectors at p.
template <int rows, class V>
void sort_block(typename V::lane* p)
{
    V v[rows];
    unrolled<rows>([&](auto i) { v[i.v] = simd::load<V>(p + i.v * V::N); });
    sort_columns(v);
    merge_columns<2>(v);
    unrolled<rows / V::N>([&](auto i) { simd::store_columns(p + i.v * V::N, rows, v + i.v * V::N); });
}

template <class V> constexpr std::ptrdiff_t kBlock = 16 * V::N;

// From one place to another, whole vectors; the last ones may overlap. For n >= V::N.
template <class V>
ORV_INLINE void copy_vectors(typename V::lane* to, const typename V::lane* from, std::ptrdiff_t n)
{
    for (std::ptrdiff_t i = 0; i < n - V::N; i += V::N) simd::store(to + i, simd::load<V>(from + i));
    simd::store(to + n - V::N, simd::load<V>(from + n - V::N));
}

// V::N to kBlock elements, filled up with `highest`, above which none is.
template <class V>
void sort_few(typename V::lane* p, std::ptrdiff_t n, typename V::lane highest)
{
    using T = typename V::lane;
    ORV_ASSERT(n >= V::N && n <= kBlock<V>);
    if (n == kBlock<V>) return sort_block<16, V>(p);
    alignas(64) T block[kBlock<V> + V::N];
    const bool small = n <= kBlock<V> / 2;
    copy_vectors<V>(block, p, n);
    for (std::ptrdiff_t i = n; i < (small ? kBlock<V> / 2 : kBlock<V>); i += V::N) {
        simd::store(block + i, simd::splat<V>(highest));
    }
    if (small) sort_block<8, V>(block);
    else sort_block<16, V>(block);
    copy_vectors<V>(p, block, n);
}

}  // namespace ORV_LEVEL
}  // namespace orv

#endif  // ORV_HAVE_INT256
