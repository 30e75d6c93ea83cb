// What sorting does with lanes: exchanges among those of a vector, a square of them turned into a column, and the ones
// above a pivot taken apart from the others.
#pragma once

#include "simd/shuffles.h"
#include "simd/vec.h"

#if ORV_HAVE_INT256

namespace orv {
namespace simd {
inline namespace ORV_LEVEL {

// Lane i takes lane i xor d.
template <int d>
ORV_INLINE vec<s32, 8> across(vec<s32, 8> a)
{
    if constexpr (d < 4) return permuted<0 ^ d, 1 ^ d, 2 ^ d, 3 ^ d>(a);
    else if constexpr (d == 4) return exchanged_parts(a);
    else return permuted(a, {_mm256_setr_epi32(0 ^ d, 1 ^ d, 2 ^ d, 3 ^ d, 4 ^ d, 5 ^ d, 6 ^ d, 7 ^ d)});
}
template <int d>
ORV_INLINE vec<double, 4> across(vec<double, 4> a)
{
    if constexpr (d == 1) return {_mm256_permute_pd(a.v, 5)};
    else return {_mm256_permute4x64_pd(a.v, order_of(0 ^ d, 1 ^ d, 2 ^ d, 3 ^ d))};
}

// Lane i of a where i has not the bit d, else of b.
template <int d>
ORV_INLINE vec<s32, 8> lanes_by_bit(vec<s32, 8> a, vec<s32, 8> b)
{
    return {_mm256_blend_epi32(a.v, b.v, d == 1 ? 0xAA : d == 2 ? 0xCC : 0xF0)};
}
template <int d>
ORV_INLINE vec<double, 4> lanes_by_bit(vec<double, 4> a, vec<double, 4> b)
{
    return {_mm256_blend_pd(a.v, b.v, d == 1 ? 0xA : 0xC)};
}

// A square of vectors as rows becomes its columns, one behind the other at p, `apart` elements from each other.
ORV_INLINE void store_columns(s32* p, std::ptrdiff_t apart, const vec<s32, 8>* rows)
{
    vec<float, 8> columns[8];
    for (int i = 0; i < 8; ++i) columns[i].v = _mm256_castsi256_ps(rows[i].v);
    transpose(columns);
    for (int i = 0; i < 8; ++i) store(p + i * apart, vec<s32, 8>{_mm256_castps_si256(columns[i].v)});
}
ORV_INLINE void store_columns(double* p, std::ptrdiff_t apart, const vec<double, 4>* rows)
{
    vec<double, 4> columns[4] = {rows[0], rows[1], rows[2], rows[3]};
    transpose(columns);
    for (int i = 0; i < 4; ++i) store(p + i * apart, columns[i]);
}

// For each set of lanes, four bits a lane, lowest first: the lanes outside the set, then those in it.
struct LaneOrders {
    u32 of[256];

    constexpr LaneOrders() : of()
    {
        for (unsigned set = 0; set < 256; ++set) {
            int to = 0;
            for (unsigned in = 0; in < 2; ++in) {
                for (unsigned lane = 0; lane < 8; ++lane) {
                    if ((set >> lane & 1) == in) of[set] |= lane << (4 * to++);
                }
            }
        }
    }
};
static constexpr LaneOrders kLaneOrders;

// Doubles are pairs of lanes: both go where the pair goes.
struct PairOrders {
    s32 of[16][8];

    constexpr PairOrders() : of()
    {
        for (unsigned set = 0; set < 16; ++set) {
            int to = 0;
            for (unsigned in = 0; in < 2; ++in) {
                for (int lane = 0; lane < 4; ++lane) {
                    if ((set >> lane & 1) != in) continue;
                    of[set][to++] = 2 * lane;
                    of[set][to++] = 2 * lane + 1;
                }
            }
        }
    }
};
static constexpr PairOrders kPairOrders;

// The lanes outside a set, then those in it, each in their order. A lane's bit in the set is that of lanes_of().
ORV_INLINE vec<s32, 8> taken_apart(vec<s32, 8> a, unsigned set)
{
    // The permutation looks at three bits of an index: what stands above them need not go.
    const __m256i orders = _mm256_set1_epi32(static_cast<int>(kLaneOrders.of[set]));
    return permuted(a, {_mm256_srlv_epi32(orders, _mm256_setr_epi32(0, 4, 8, 12, 16, 20, 24, 28))});
}
ORV_INLINE vec<double, 4> taken_apart(vec<double, 4> a, unsigned set)
{
    return permuted(a, load<vec<s32, 8>>(kPairOrders.of[set]));
}

}  // namespace ORV_LEVEL
}  // namespace simd
}  // namespace orv

#endif  // ORV_HAVE_INT256
