// Numbers of two parts, which lie in another order in memory than in vectors.
#pragma once

#include "simd/partial.h"
#include "simd/shuffles.h"
#include "simd/vec.h"

namespace orv {
namespace simd {
inline namespace ORV_LEVEL {

// V::N numbers of two parts each, from and to p: the first parts in `lo`, the second ones in `hi`. Mirrored: in
// reversed order, the last one at p.
template <class V> struct interleaved;

template <> struct interleaved<vec<float, 1>> {
    using V = vec<float, 1>;
    static ORV_INLINE twice<V> load(const float* p) { return {simd::load<V>(p), simd::load<V>(p + 1)}; }
    static ORV_INLINE void store(float* p, twice<V> a) { simd::store(p, a); }
    static ORV_INLINE twice<V> load_mirrored(const float* p) { return load(p); }
    static ORV_INLINE void store_mirrored(float* p, twice<V> a) { store(p, a); }
};

#if ORV_HAVE_VECTORS
template <> struct interleaved<vec<float, 4>> {
    using V = vec<float, 4>;
    static ORV_INLINE twice<V> load(const float* p)
    {
        const __m128 a = _mm_loadu_ps(p), b = _mm_loadu_ps(p + 4);
        return {V(_mm_shuffle_ps(a, b, 0x88)), V(_mm_shuffle_ps(a, b, 0xDD))};
    }
    static ORV_INLINE void store(float* p, twice<V> a)
    {
        _mm_storeu_ps(p, _mm_unpacklo_ps(a.lo.v, a.hi.v));
        _mm_storeu_ps(p + 4, _mm_unpackhi_ps(a.lo.v, a.hi.v));
    }
    static ORV_INLINE twice<V> load_mirrored(const float* p)
    {
        const __m128 a = _mm_loadu_ps(p - 6), b = _mm_loadu_ps(p - 2);
        return {V(_mm_shuffle_ps(b, a, 0x22)), V(_mm_shuffle_ps(b, a, 0x77))};
    }
    static ORV_INLINE void store_mirrored(float* p, twice<V> a)
    {
        const __m128 low = _mm_unpacklo_ps(a.lo.v, a.hi.v), high = _mm_unpackhi_ps(a.lo.v, a.hi.v);
        _mm_storeu_ps(p - 2, _mm_shuffle_ps(low, low, 0x4E));
        _mm_storeu_ps(p - 6, _mm_shuffle_ps(high, high, 0x4E));
    }
};
#endif

#if ORV_HAVE_FLOAT256
template <> struct interleaved<vec<float, 8>> {
    using V = vec<float, 8>;
    static ORV_INLINE twice<V> load(const float* p)
    {
        const __m256 a = load_halves(p, p + 8).v, b = load_halves(p + 4, p + 12).v;
        return {V(_mm256_shuffle_ps(a, b, 0x88)), V(_mm256_shuffle_ps(a, b, 0xDD))};
    }
    static ORV_INLINE void store(float* p, twice<V> a)
    {
        const __m256 low = _mm256_unpacklo_ps(a.lo.v, a.hi.v), high = _mm256_unpackhi_ps(a.lo.v, a.hi.v);
        _mm256_storeu_ps(p, _mm256_permute2f128_ps(low, high, 0x20));
        _mm256_storeu_ps(p + 8, _mm256_permute2f128_ps(low, high, 0x31));
    }
    static ORV_INLINE twice<V> load_mirrored(const float* p)
    {
        const __m256 a = load_halves(p - 6, p - 14).v, b = load_halves(p - 2, p - 10).v;
        return {V(_mm256_shuffle_ps(b, a, 0x22)), V(_mm256_shuffle_ps(b, a, 0x77))};
    }
    static ORV_INLINE void store_mirrored(float* p, twice<V> a)
    {
        const __m256 low = _mm256_unpacklo_ps(a.lo.v, a.hi.v), high = _mm256_unpackhi_ps(a.lo.v, a.hi.v);
        _mm256_storeu_ps(p - 6, _mm256_permute_ps(_mm256_permute2f128_ps(low, high, 0x02), 0x4E));
        _mm256_storeu_ps(p - 14, _mm256_permute_ps(_mm256_permute2f128_ps(low, high, 0x13), 0x4E));
    }
};
#endif

}  // namespace ORV_LEVEL
}  // namespace simd
}  // namespace orv
