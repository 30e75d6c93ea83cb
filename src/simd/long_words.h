// Comparisons of 64-bit lanes, which only the widest integers have an instruction for.
#pragma once

#include "simd/vec.h"

namespace orv {
namespace simd {
inline namespace ORV_LEVEL {

// As signed numbers.
ORV_INLINE one_mask<u64> greater_signed(vec<u64, 1> a, vec<u64, 1> b)
{
    return {static_cast<s64>(a.v) > static_cast<s64>(b.v)};
}

#if ORV_HAVE_VECTORS
ORV_INLINE vec<u64, 2> greater_signed(vec<u64, 2> a, vec<u64, 2> b)
{
#if ORV_HAVE_INT256
    return {_mm_cmpgt_epi64(a.v, b.v)};
#else
    // The sign of b - a is wrong where it overflows: where the signs of a and b differ, and it has not that of b.
    const vec<u64, 2> difference = b - a, sign = difference ^ ((a ^ b) & (difference ^ b));
    return {_mm_shuffle_epi32(_mm_srai_epi32(sign.v, 31), 0xF5)};
#endif
}
#endif

#if ORV_HAVE_INT256
ORV_INLINE vec<u64, 4> greater_signed(vec<u64, 4> a, vec<u64, 4> b) { return {_mm256_cmpgt_epi64(a.v, b.v)}; }
#endif

}  // namespace ORV_LEVEL
}  // namespace simd
}  // namespace orv
