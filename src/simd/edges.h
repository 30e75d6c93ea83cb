// Vectors at the end of a row: every lane gets its neighbour `lanes` away, those that have none keep their own.
#pragma once

#include "simd/vec.h"

namespace orv {
namespace simd {
inline namespace ORV_LEVEL {

#if ORV_HAVE_VECTORS
template <int lanes, class T, int N>
ORV_INLINE vec<T, N> from_below(vec<T, N> a)
{
    constexpr int bytes = lanes * static_cast<int>(sizeof(T));
    const __m128i ones = _mm_set1_epi8(-1);
#if ORV_HAVE_INT256
    if constexpr (N * sizeof(T) == 32) {
        const __m256i own = _mm256_inserti128_si256(_mm256_setzero_si256(), _mm_srli_si128(ones, 16 - bytes), 0);
        const __m256i lower = _mm256_permute2x128_si256(a.v, a.v, 0x08);  // zeros, then the lower half
        return {_mm256_or_si256(_mm256_alignr_epi8(a.v, lower, 16 - bytes), _mm256_and_si256(a.v, own))};
    } else
#endif
    return {_mm_or_si128(_mm_slli_si128(a.v, bytes), _mm_and_si128(a.v, _mm_srli_si128(ones, 16 - bytes)))};
}
template <int lanes, class T, int N>
ORV_INLINE vec<T, N> from_above(vec<T, N> a)
{
    constexpr int bytes = lanes * static_cast<int>(sizeof(T));
    const __m128i ones = _mm_set1_epi8(-1);
#if ORV_HAVE_INT256
    if constexpr (N * sizeof(T) == 32) {
        const __m256i own = _mm256_inserti128_si256(_mm256_setzero_si256(), _mm_slli_si128(ones, 16 - bytes), 1);
        const __m256i upper = _mm256_permute2x128_si256(a.v, a.v, 0x81);  // the upper half, then zeros
        return {_mm256_or_si256(_mm256_alignr_epi8(upper, a.v, bytes), _mm256_and_si256(a.v, own))};
    } else
#endif
    return {_mm_or_si128(_mm_srli_si128(a.v, bytes), _mm_and_si128(a.v, _mm_slli_si128(ones, 16 - bytes)))};
}
#endif
// A lone lane has none.
template <int lanes, class T> ORV_INLINE vec<T, 1> from_below(vec<T, 1> a) { return a; }
template <int lanes, class T> ORV_INLINE vec<T, 1> from_above(vec<T, 1> a) { return a; }

}  // namespace ORV_LEVEL
}  // namespace simd
}  // namespace orv
