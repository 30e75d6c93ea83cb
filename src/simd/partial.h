// Less than a vector from memory and back, vectors in parts that lie apart, and single numbers into every lane.
//
// A part is what 16 bytes of a register hold: a vector of 16 bytes is one, one of 32 bytes has a lower and an upper
// one.
#pragma once

#include "simd/vec.h"

namespace orv {
namespace simd {
inline namespace ORV_LEVEL {

// The first n lanes, 0 < n < N, and zeros. There is no part of a lone lane.
template <class T> ORV_INLINE void load_part_to(vec<T, 1>& r, const T* p, int) { load_to(r, p); }
template <class T> ORV_INLINE void store_part(T* p, vec<T, 1> a, int) { store(p, a); }

// Left to themselves compilers load one number and shuffle it.
template <class T> ORV_INLINE void splat_from(vec<T, 1>& r, const T* p) { load_to(r, p); }

template <class T> ORV_INLINE void repeat_to(vec<T, 1>& r, const T* p) { load_to(r, p); }
template <int distance> ORV_INLINE void load_parts_to(vec<u8, 1>& r, const u8* p) { load_to(r, p); }
template <int distance> ORV_INLINE void store_parts(u8* p, vec<u8, 1> v) { store(p, v); }
ORV_INLINE void load_parts_to(vec<float, 1>& r, const float* first, const float*) { load_to(r, first); }

// The first and the last `Bytes` (8 or 4) of a row of n lanes, side by side in one vector of 16 bytes; whatever
// is above holds copies. Every lane is live, so a division sees no made-up zeros.
template <class V, int Bytes> V load_ends(const typename V::lane* p, std::ptrdiff_t n);
template <class V, int Bytes> void store_ends(typename V::lane* p, std::ptrdiff_t n, V value);

#if ORV_HAVE_VECTORS
// A 128-bit register of any kind as bits, and back.
ORV_INLINE __m128i to_bits(__m128i v) { return v; }
ORV_INLINE __m128i to_bits(__m128 v) { return _mm_castps_si128(v); }
ORV_INLINE __m128i to_bits(__m128d v) { return _mm_castpd_si128(v); }
ORV_INLINE void set_bits(__m128i& r, __m128i v) { r = v; }
ORV_INLINE void set_bits(__m128& r, __m128i v) { r = _mm_castsi128_ps(v); }
ORV_INLINE void set_bits(__m128d& r, __m128i v) { r = _mm_castsi128_pd(v); }

template <class V, int Bytes>
ORV_INLINE V load_ends(const typename V::lane* p, std::ptrdiff_t n)
{
    const typename V::lane* const last = p + n - Bytes / static_cast<int>(sizeof(typename V::lane));
    V r;
    if (Bytes == 8) {
        set_bits(r.v, _mm_unpacklo_epi64(_mm_loadl_epi64(reinterpret_cast<const __m128i*>(p)),
                                         _mm_loadl_epi64(reinterpret_cast<const __m128i*>(last))));
    } else {
        s32 first_word, last_word;
        std::memcpy(&first_word, p, 4);
        std::memcpy(&last_word, last, 4);
        const __m128i both = _mm_unpacklo_epi32(_mm_cvtsi32_si128(first_word),
                                                _mm_cvtsi32_si128(last_word));
        set_bits(r.v, _mm_unpacklo_epi64(both, both));
    }
    return r;
}

template <class V, int Bytes>
ORV_INLINE void store_ends(typename V::lane* p, std::ptrdiff_t n, V value)
{
    typename V::lane* const last = p + n - Bytes / static_cast<int>(sizeof(typename V::lane));
    const __m128i bits = to_bits(value.v);
    if (Bytes == 8) {
        _mm_storel_epi64(reinterpret_cast<__m128i*>(p), bits);
        _mm_storel_epi64(reinterpret_cast<__m128i*>(last), _mm_unpackhi_epi64(bits, bits));
    } else {
        const s32 first_word = _mm_cvtsi128_si32(bits);
        const s32 last_word = _mm_cvtsi128_si32(_mm_shuffle_epi32(bits, 1));
        std::memcpy(p, &first_word, 4);
        std::memcpy(last, &last_word, 4);
    }
}

// The lower half of a register, zeros above; the first or the last bytes of a register: 4 or 8, the first ones also 12
// or 16.
template <class V>
ORV_INLINE V load_lower(const typename V::lane* p)
{
    V r;
    set_bits(r.v, _mm_loadl_epi64(reinterpret_cast<const __m128i*>(p)));
    return r;
}
ORV_INLINE vec<u32, 4> of_lanes(u32 a, u32 b, u32 c, u32 d)
{
    return {_mm_setr_epi32(static_cast<int>(a), static_cast<int>(b), static_cast<int>(c), static_cast<int>(d))};
}
ORV_INLINE u32 first_lane(vec<u32, 4> a) { return static_cast<u32>(_mm_cvtsi128_si32(a.v)); }
ORV_INLINE s32 first_lane(vec<s32, 4> a) { return _mm_cvtsi128_si32(a.v); }
ORV_INLINE void store_dword(void* p, int dword) { std::memcpy(p, &dword, sizeof(dword)); }
ORV_INLINE int third_dword(__m128i v)
{
    if constexpr (ORV_HAVE_SSE41) return _mm_extract_epi32(v, 2);
    else return _mm_cvtsi128_si32(_mm_unpackhi_epi64(v, v));
}
template <int bytes, class V>
ORV_INLINE void store_first(typename V::lane* p, V a)
{
    const __m128i v = to_bits(a.v);
    if constexpr (bytes == 4) store_dword(p, _mm_cvtsi128_si32(v));
    else if constexpr (bytes == 16) _mm_storeu_si128(reinterpret_cast<__m128i*>(p), v);
    else _mm_storel_epi64(reinterpret_cast<__m128i*>(p), v);
    if constexpr (bytes == 12) store_dword(reinterpret_cast<char*>(p) + 8, third_dword(v));
}
template <int bytes, class V>
ORV_INLINE void store_last(typename V::lane* p, V a)
{
    const __m128i v = to_bits(a.v);
    if constexpr (bytes == 4) store_dword(p, _mm_cvtsi128_si32(_mm_shuffle_epi32(v, 3)));
    else _mm_storel_epi64(reinterpret_cast<__m128i*>(p), _mm_unpackhi_epi64(v, v));
}

ORV_INLINE void load_part_to(vec<float, 4>& r, const float* p, int n)
{
    const __m128 low = n == 1 ? _mm_setzero_ps() : _mm_castpd_ps(_mm_load_sd(reinterpret_cast<const double*>(p)));
    if (n == 2) {
        r.v = low;
        return;
    }
    const __m128 last = _mm_load_ss(p + n - 1);
    r.v = n == 1 ? last : _mm_movelh_ps(low, last);
}
ORV_INLINE void store_part(float* p, vec<float, 4> a, int n)
{
    if (n != 1) _mm_store_sd(reinterpret_cast<double*>(p), _mm_castps_pd(a.v));
    if (n != 2) _mm_store_ss(p + n - 1, n == 1 ? a.v : _mm_movehl_ps(a.v, a.v));
}
ORV_INLINE void load_part_to(vec<double, 2>& r, const double* p, int) { r.v = _mm_load_sd(p); }
ORV_INLINE void store_part(double* p, vec<double, 2> a, int) { _mm_store_sd(p, a.v); }

ORV_INLINE void splat_from(vec<double, 2>& r, const double* p) { splat_to(r, *p); }
// 16 bytes from p in every part.
template <class T> ORV_INLINE void repeat_to(vec<T, 16 / sizeof(T)>& r, const T* p) { load_to(r, p); }
// 16 bytes from p and, where the register has two parts, 16 from p + distance.
template <int distance> ORV_INLINE void load_parts_to(vec<u8, 16>& r, const u8* p) { load_to(r, p); }
template <int distance> ORV_INLINE void store_parts(u8* p, vec<u8, 16> v) { store(p, v); }
ORV_INLINE void load_parts_to(vec<float, 4>& r, const float* first, const float*) { load_to(r, first); }

#if ORV_HAVE_FLOAT256
ORV_INLINE void splat_from(vec<float, 4>& r, const float* p) { r.v = _mm_broadcast_ss(p); }
// All ones in the first n lanes of 4 bytes.
ORV_INLINE __m256i lanes_mask(int n)
{
    static const int window[16] = {-1, -1, -1, -1, -1, -1, -1, -1};
    return _mm256_loadu_si256(reinterpret_cast<const __m256i*>(window + 8 - n));
}
ORV_INLINE void load_part_to(vec<float, 8>& r, const float* p, int n) { r.v = _mm256_maskload_ps(p, lanes_mask(n)); }
ORV_INLINE void store_part(float* p, vec<float, 8> a, int n) { _mm256_maskstore_ps(p, lanes_mask(n), a.v); }
ORV_INLINE void load_part_to(vec<double, 4>& r, const double* p, int n)
{
    r.v = _mm256_maskload_pd(p, lanes_mask(2 * n));
}
ORV_INLINE void store_part(double* p, vec<double, 4> a, int n) { _mm256_maskstore_pd(p, lanes_mask(2 * n), a.v); }

ORV_INLINE void splat_from(vec<float, 8>& r, const float* p) { r.v = _mm256_broadcast_ss(p); }
ORV_INLINE void splat_from(vec<double, 4>& r, const double* p) { r.v = _mm256_broadcast_sd(p); }

// A vector of two parts, from memory or from vectors, and each of them.
ORV_INLINE vec<float, 8> load_halves(const float* low, const float* high)
{
    return _mm256_insertf128_ps(_mm256_castps128_ps256(_mm_loadu_ps(low)), _mm_loadu_ps(high), 1);
}
ORV_INLINE vec<double, 4> load_halves(const double* low, const double* high)
{
    return _mm256_insertf128_pd(_mm256_castpd128_pd256(_mm_loadu_pd(low)), _mm_loadu_pd(high), 1);
}
ORV_INLINE void store_halves(float* low, float* high, vec<float, 8> a)
{
    _mm_storeu_ps(low, _mm256_castps256_ps128(a.v));
    _mm_storeu_ps(high, _mm256_extractf128_ps(a.v, 1));
}
ORV_INLINE vec<double, 4> of_parts(vec<double, 2> low, vec<double, 2> high)
{
    return _mm256_insertf128_pd(_mm256_castpd128_pd256(low.v), high.v, 1);
}
ORV_INLINE vec<double, 2> lower_part(vec<double, 4> a) { return _mm256_castpd256_pd128(a.v); }
ORV_INLINE vec<double, 2> upper_part(vec<double, 4> a) { return _mm256_extractf128_pd(a.v, 1); }
ORV_INLINE void load_parts_to(vec<float, 8>& r, const float* first, const float* second)
{
    r = load_halves(first, second);
}
ORV_INLINE void repeat_to(vec<float, 8>& r, const float* p)
{
    r.v = _mm256_broadcast_ps(reinterpret_cast<const __m128*>(p));
}
#else
ORV_INLINE void splat_from(vec<float, 4>& r, const float* p) { splat_to(r, *p); }
ORV_INLINE twice<vec<double, 2>> of_parts(vec<double, 2> low, vec<double, 2> high) { return {low, high}; }
#endif
#endif

#if ORV_HAVE_INT256
ORV_INLINE s32 first_lane(vec<s32, 8> a) { return _mm_cvtsi128_si32(_mm256_castsi256_si128(a.v)); }
template <class T>
ORV_INLINE void repeat_to(vec<T, 32 / sizeof(T)>& r, const T* p)
{
    r.v = _mm256_broadcastsi128_si256(_mm_loadu_si128(reinterpret_cast<const __m128i*>(p)));
}
template <int distance>
ORV_INLINE void load_parts_to(vec<u8, 32>& r, const u8* p)
{
    const __m128i lower = _mm_loadu_si128(reinterpret_cast<const __m128i*>(p));
    const __m128i upper = _mm_loadu_si128(reinterpret_cast<const __m128i*>(p + distance));
    r.v = _mm256_inserti128_si256(_mm256_castsi128_si256(lower), upper, 1);
}
template <int distance>
ORV_INLINE void store_parts(u8* p, vec<u8, 32> v)
{
    _mm_storeu_si128(reinterpret_cast<__m128i*>(p), _mm256_castsi256_si128(v.v));
    _mm_storeu_si128(reinterpret_cast<__m128i*>(p + distance), _mm256_extracti128_si256(v.v, 1));
}
#endif

template <class V>
ORV_INLINE V load_part(const typename V::lane* p, int n)
{
    V r;
    load_part_to(r, p, n);
    return r;
}
template <class V>
ORV_INLINE V splat_at(const typename V::lane* p)
{
    V r;
    splat_from(r, p);
    return r;
}

template <class V>
ORV_INLINE V load_repeated(const typename V::lane* p)
{
    V r;
    repeat_to(r, p);
    return r;
}

// 0, 1, 2 ... in the lanes.
template <class V>
ORV_INLINE V ascending()
{
    using T = typename V::lane;
    static const T numbers[8] = {0, 1, 2, 3, 4, 5, 6, 7};
    static_assert(V::N <= 8, "as many numbers as lanes");
    return load<V>(numbers);
}

// The parts from two places.
template <class V>
ORV_INLINE V load_parts(const typename V::lane* first, const typename V::lane* second)
{
    V r;
    load_parts_to(r, first, second);
    return r;
}
template <class V, int distance>
ORV_INLINE V load_parts(const u8* p)
{
    V r;
    load_parts_to<distance>(r, p);
    return r;
}

}  // namespace ORV_LEVEL
}  // namespace simd
}  // namespace orv
