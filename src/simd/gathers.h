// Lanes fetched from tables in memory.
#pragma once

#include "simd/vec.h"

#if ORV_HAVE_INT256

namespace orv {
namespace simd {
inline namespace ORV_LEVEL {

// Under masks of ones, because compilers take the other form's source for uninitialised.
ORV_INLINE vec<float, 8> looked_up(const float* table, vec<s32, 8> index)
{
    const __m256 all = _mm256_castsi256_ps(_mm256_set1_epi32(-1));
    return {_mm256_mask_i32gather_ps(_mm256_setzero_ps(), table, index.v, all, 4)};
}
ORV_INLINE vec<double, 4> looked_up(const double* table, __m128i index)
{
    const __m256d all = _mm256_castsi256_pd(_mm256_set1_epi32(-1));
    return {_mm256_mask_i32gather_pd(_mm256_setzero_pd(), table, index, all, 8)};
}
// In memory order.
ORV_INLINE pair<vec<double, 4>> looked_up(const double* table, vec<s32, 8> index)
{
    return {looked_up(table, _mm256_castsi256_si128(index.v)), looked_up(table, _mm256_extracti128_si256(index.v, 1))};
}

}  // namespace ORV_LEVEL
}  // namespace simd
}  // namespace orv

#endif  // ORV_HAVE_INT256
