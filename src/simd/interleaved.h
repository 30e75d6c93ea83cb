// Floats that lie in another order in memory than in vectors: numbers of two parts, and squares to be transposed.
#pragma once

#include "simd/vec.h"

namespace orv {
namespace simd {
inline namespace ORV_LEVEL {

// V::N numbers of two parts each, from and to p: the first parts in `lo`, the second ones in `hi`. Mirrored: in reversed
// order, the last one at p.
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

// The lanes in reversed order; and two by two, each pair as it is.
ORV_INLINE vec<float, 4> reversed(vec<float, 4> a) { return _mm_shuffle_ps(a.v, a.v, 0x1B); }
ORV_INLINE vec<float, 4> reversed_pairs(vec<float, 4> a) { return _mm_shuffle_ps(a.v, a.v, 0x4E); }

// Four vectors as the rows of a square become its columns (within each 16 bytes).
ORV_INLINE void transpose(vec<float, 4>& a, vec<float, 4>& b, vec<float, 4>& c, vec<float, 4>& d)
{
    const __m128 t0 = _mm_unpacklo_ps(a.v, b.v), t1 = _mm_unpackhi_ps(a.v, b.v);
    const __m128 t2 = _mm_unpacklo_ps(c.v, d.v), t3 = _mm_unpackhi_ps(c.v, d.v);
    a.v = _mm_shuffle_ps(t0, t2, 0x44);
    b.v = _mm_shuffle_ps(t0, t2, 0xEE);
    c.v = _mm_shuffle_ps(t1, t3, 0x44);
    d.v = _mm_shuffle_ps(t1, t3, 0xEE);
}
#endif

#if ORV_HAVE_FLOAT256
// A vector of two halves that lie apart.
ORV_INLINE vec<float, 8> load_halves(const float* low, const float* high)
{
    return _mm256_insertf128_ps(_mm256_castps128_ps256(_mm_loadu_ps(low)), _mm_loadu_ps(high), 1);
}
ORV_INLINE void store_halves(float* low, float* high, vec<float, 8> a)
{
    _mm_storeu_ps(low, _mm256_castps256_ps128(a.v));
    _mm_storeu_ps(high, _mm256_extractf128_ps(a.v, 1));
}

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

ORV_INLINE vec<float, 8> exchanged_halves(vec<float, 8> a) { return _mm256_permute2f128_ps(a.v, a.v, 1); }
ORV_INLINE vec<float, 8> reversed(vec<float, 8> a) { return _mm256_permute_ps(exchanged_halves(a).v, 0x1B); }
ORV_INLINE vec<float, 8> reversed_pairs(vec<float, 8> a) { return _mm256_permute_ps(exchanged_halves(a).v, 0x4E); }

ORV_INLINE void transpose(vec<float, 8>& a, vec<float, 8>& b, vec<float, 8>& c, vec<float, 8>& d)
{
    const __m256 t0 = _mm256_unpacklo_ps(a.v, b.v), t1 = _mm256_unpackhi_ps(a.v, b.v);
    const __m256 t2 = _mm256_unpacklo_ps(c.v, d.v), t3 = _mm256_unpackhi_ps(c.v, d.v);
    a.v = _mm256_shuffle_ps(t0, t2, 0x44);
    b.v = _mm256_shuffle_ps(t0, t2, 0xEE);
    c.v = _mm256_shuffle_ps(t1, t3, 0x44);
    d.v = _mm256_shuffle_ps(t1, t3, 0xEE);
}
#endif

}  // namespace ORV_LEVEL
}  // namespace simd
}  // namespace orv
