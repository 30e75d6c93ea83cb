// Registers of floats and doubles, whole or in part, as the matrix kernels hold them.
//
// The compiler's own vector types carry the arithmetic; what they lack is loading and storing the
// first few lanes of a register, which is what small matrices need most.
#pragma once

#include "core/checks.h"

#if ORV_HAVE_VECTORS

#if ORV_HAVE_FLOAT256
#include <immintrin.h>
#else
#include <emmintrin.h>
#endif

namespace orv {
inline namespace ORV_LEVEL {

template <class T, int Bytes>
struct Pack {
    static constexpr int N = Bytes / static_cast<int>(sizeof(T));
    typedef T V __attribute__((vector_size(Bytes)));

    static ORV_INLINE V load(const T* p)
    {
        V v;
        __builtin_memcpy(&v, p, sizeof(v));
        return v;
    }
    static ORV_INLINE void store(T* p, V v) { __builtin_memcpy(p, &v, sizeof(v)); }
    static ORV_INLINE V splat(T value) { return value - V{}; }  // x - 0 is x, and no instruction
    // Left to themselves compilers load one number and shuffle it.
    static ORV_INLINE V broadcast(const T* p)
    {
#if ORV_HAVE_FLOAT256
        if constexpr (sizeof(T) == 4 && Bytes == 32) return _mm256_broadcast_ss(p);
        else if constexpr (sizeof(T) == 4) return _mm_broadcast_ss(p);
        else if constexpr (Bytes == 32) return _mm256_broadcast_sd(p);
        else return splat(get(p));
#else
        return splat(get(p));
#endif
    }
};

// The first n lanes, 0 < n < N, and zeros.
ORV_INLINE Pack<float, 16>::V load_part(Pack<float, 16>, const float* p, int n)
{
    const __m128 low = n == 1 ? _mm_setzero_ps() : _mm_castpd_ps(_mm_load_sd(reinterpret_cast<const double*>(p)));
    if (n == 2) return low;
    const __m128 last = _mm_load_ss(p + n - 1);
    return n == 1 ? last : _mm_movelh_ps(low, last);
}
ORV_INLINE void store_part(Pack<float, 16>, float* p, Pack<float, 16>::V v, int n)
{
    if (n != 1) _mm_store_sd(reinterpret_cast<double*>(p), _mm_castps_pd(v));
    if (n != 2) _mm_store_ss(p + n - 1, n == 1 ? v : _mm_movehl_ps(v, v));
}
ORV_INLINE Pack<double, 16>::V load_part(Pack<double, 16>, const double* p, int) { return _mm_load_sd(p); }
ORV_INLINE void store_part(Pack<double, 16>, double* p, Pack<double, 16>::V v, int) { _mm_store_sd(p, v); }

// Register i gets lane i of all.
ORV_INLINE void transpose(Pack<float, 16>, Pack<float, 16>::V (&v)[4])
{
    _MM_TRANSPOSE4_PS(v[0], v[1], v[2], v[3]);
}
ORV_INLINE void transpose(Pack<double, 16>, Pack<double, 16>::V (&v)[2])
{
    const __m128d low = _mm_unpacklo_pd(v[0], v[1]), high = _mm_unpackhi_pd(v[0], v[1]);
    v[0] = low;
    v[1] = high;
}

#if ORV_HAVE_FLOAT256
ORV_INLINE void transpose(Pack<float, 32>, Pack<float, 32>::V (&v)[8])
{
    // Pairs, fours, then halves.
    const __m256 a0 = _mm256_unpacklo_ps(v[0], v[1]), a1 = _mm256_unpackhi_ps(v[0], v[1]);
    const __m256 a2 = _mm256_unpacklo_ps(v[2], v[3]), a3 = _mm256_unpackhi_ps(v[2], v[3]);
    const __m256 a4 = _mm256_unpacklo_ps(v[4], v[5]), a5 = _mm256_unpackhi_ps(v[4], v[5]);
    const __m256 a6 = _mm256_unpacklo_ps(v[6], v[7]), a7 = _mm256_unpackhi_ps(v[6], v[7]);
    const __m256 b0 = _mm256_shuffle_ps(a0, a2, 0x44), b1 = _mm256_shuffle_ps(a0, a2, 0xEE);
    const __m256 b2 = _mm256_shuffle_ps(a1, a3, 0x44), b3 = _mm256_shuffle_ps(a1, a3, 0xEE);
    const __m256 b4 = _mm256_shuffle_ps(a4, a6, 0x44), b5 = _mm256_shuffle_ps(a4, a6, 0xEE);
    const __m256 b6 = _mm256_shuffle_ps(a5, a7, 0x44), b7 = _mm256_shuffle_ps(a5, a7, 0xEE);
    v[0] = _mm256_permute2f128_ps(b0, b4, 0x20);
    v[1] = _mm256_permute2f128_ps(b1, b5, 0x20);
    v[2] = _mm256_permute2f128_ps(b2, b6, 0x20);
    v[3] = _mm256_permute2f128_ps(b3, b7, 0x20);
    v[4] = _mm256_permute2f128_ps(b0, b4, 0x31);
    v[5] = _mm256_permute2f128_ps(b1, b5, 0x31);
    v[6] = _mm256_permute2f128_ps(b2, b6, 0x31);
    v[7] = _mm256_permute2f128_ps(b3, b7, 0x31);
}
ORV_INLINE void transpose(Pack<double, 32>, Pack<double, 32>::V (&v)[4])
{
    const __m256d a0 = _mm256_unpacklo_pd(v[0], v[1]), a1 = _mm256_unpackhi_pd(v[0], v[1]);
    const __m256d a2 = _mm256_unpacklo_pd(v[2], v[3]), a3 = _mm256_unpackhi_pd(v[2], v[3]);
    v[0] = _mm256_permute2f128_pd(a0, a2, 0x20);
    v[1] = _mm256_permute2f128_pd(a1, a3, 0x20);
    v[2] = _mm256_permute2f128_pd(a0, a2, 0x31);
    v[3] = _mm256_permute2f128_pd(a1, a3, 0x31);
}

// All ones in the first n lanes of 4 bytes.
ORV_INLINE __m256i lanes_mask(int n)
{
    static const int window[16] = {-1, -1, -1, -1, -1, -1, -1, -1};
    return _mm256_loadu_si256(reinterpret_cast<const __m256i*>(window + 8 - n));
}
ORV_INLINE Pack<float, 32>::V load_part(Pack<float, 32>, const float* p, int n)
{
    return _mm256_maskload_ps(p, lanes_mask(n));
}
ORV_INLINE void store_part(Pack<float, 32>, float* p, Pack<float, 32>::V v, int n)
{
    _mm256_maskstore_ps(p, lanes_mask(n), v);
}
ORV_INLINE Pack<double, 32>::V load_part(Pack<double, 32>, const double* p, int n)
{
    return _mm256_maskload_pd(p, lanes_mask(2 * n));
}
ORV_INLINE void store_part(Pack<double, 32>, double* p, Pack<double, 32>::V v, int n)
{
    _mm256_maskstore_pd(p, lanes_mask(2 * n), v);
}
template <class T> using WidePack = Pack<T, 32>;
#else
template <class T> using WidePack = Pack<T, 16>;
#endif

// A row of n elements: whole registers, then the rest in part. compute(load) gives a register of
// results, where load(p) stands for the register's elements of a source whose row begins at p.
template <class T, class Compute>
ORV_INLINE void for_packs(std::ptrdiff_t n, T* dst, Compute compute)
{
    using P = WidePack<T>;
    std::ptrdiff_t i = 0;
    for (; i + P::N <= n; i += P::N) {
        P::store(dst + i, compute([i](const T* p) { return P::load(p + i); }));
    }
    const int rest = static_cast<int>(n - i);
    if (rest > 0) {
        store_part(P(), dst + i, compute([i, rest](const T* p) { return load_part(P(), p + i, rest); }), rest);
    }
}

}  // namespace ORV_LEVEL
}  // namespace orv

#endif  // ORV_HAVE_VECTORS
