// Lanes fetched from tables in memory.
#pragma once

#include "simd/vec.h"

#if ORV_HAVE_INT256

namespace orv {
namespace simd {
inline namespace ORV_LEVEL {

ORV_INLINE vec<float, 8> looked_up(const float* table, vec<s32, 8> index)
{
    return {_mm256_i32gather_ps(table, index.v, 4)};
}
// In memory order.
ORV_INLINE pair<vec<double, 4>> looked_up(const double* table, vec<s32, 8> index)
{
    return {{_mm256_i32gather_pd(table, _mm256_castsi256_si128(index.v), 8)},
            {_mm256_i32gather_pd(table, _mm256_extracti128_si256(index.v, 1), 8)}};
}

}  // namespace ORV_LEVEL
}  // namespace simd
}  // namespace orv

#endif  // ORV_HAVE_INT256
