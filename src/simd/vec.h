// The vector layer: thin, typed names for the instructions that the kernels use.
//
// A vec<T, R> is a register R seen as lanes of T. The same function names serve every lane type and
// both register widths; what a level lacks is put together from what it has, with the same result.
// Which widths exist is a matter of the level: widest<T> is the one to loop with, half<T> the
// 128-bit one for what is shorter than that.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>

#include "core/level.h"

#if ORV_HAVE_VECTORS

#if ORV_HAVE_FLOAT256
#include <immintrin.h>
#elif ORV_HAVE_SSE41
#include <smmintrin.h>
#elif ORV_HAVE_BYTE_SHUFFLE
#include <tmmintrin.h>
#else
#include <emmintrin.h>
#endif

namespace orv {
namespace simd {
inline namespace ORV_LEVEL {

using u8 = std::uint8_t;
using s8 = std::int8_t;
using u16 = std::uint16_t;
using s16 = std::int16_t;
using u32 = std::uint32_t;
using s32 = std::int32_t;
using u64 = std::uint64_t;
using s64 = std::int64_t;

// The registers as tags: the intrinsic types carry attributes that templates ignore.
struct int128 { using type = __m128i; };
struct float128 { using type = __m128; };
struct double128 { using type = __m128d; };
#if ORV_HAVE_FLOAT256
struct float256 { using type = __m256; };
struct double256 { using type = __m256d; };
#endif
#if ORV_HAVE_INT256
struct int256 { using type = __m256i; };
#endif

template <class T, class R>
struct vec {
    using lane = T;
    using reg = R;
    static constexpr int N = static_cast<int>(sizeof(typename R::type) / sizeof(T));
    typename R::type v;
};

// Two vectors that together hold the lanes of one, widened. Their order is that of the unpack
// instructions (within each 128-bit half); only narrow() puts the lanes back into memory order.
template <class V>
struct pair {
    V lo, hi;
};

// A shift count in the register that the shift instructions want.
struct count {
    __m128i v;
    explicit ORV_INLINE count(int bits) : v(_mm_cvtsi32_si128(bits)) {}
};

// 128-bit integers; the gaps of SSE2 and SSSE3 are filled first.
#include "simd/gaps128.inc"

#define ORV_I int128
#define ORV_PRODUCTS products128
#define ORV_F float128
#define ORV_D double128
#define ORV_MM(op) _mm_##op
#define ORV_SI(op) _mm_##op##_si128
#define ORV_GAP41(op) ORV_GAP41_128(op)
#include "simd/integer.inc"
#include "simd/floating.inc"
#include "simd/double.inc"
#undef ORV_GAP41

#undef ORV_I
#undef ORV_PRODUCTS
#undef ORV_F
#undef ORV_D
#undef ORV_MM
#undef ORV_SI

#if ORV_HAVE_FLOAT256
#define ORV_F float256
#define ORV_D double256
#define ORV_MM(op) _mm256_##op
#define ORV_SI(op) _mm256_##op##_si256
#define ORV_GAP41(op) _mm256_##op
#define ORV_SIMD_WIDE
#if ORV_HAVE_INT256
#define ORV_I int256
#define ORV_PRODUCTS products256
#include "simd/integer.inc"
#endif
#include "simd/floating.inc"
#include "simd/double.inc"
#undef ORV_SIMD_WIDE
#undef ORV_I
#undef ORV_PRODUCTS
#undef ORV_F
#undef ORV_D
#undef ORV_MM
#undef ORV_SI
#undef ORV_GAP41
#endif

#undef ORV_GAP41_128

#if ORV_HAVE_INT256
using int_widest = int256;
#else
using int_widest = int128;
#endif
#if ORV_HAVE_FLOAT256
using float_widest = float256;
using double_widest = double256;
#else
using float_widest = float128;
using double_widest = double128;
#endif

// The float register with as many lanes as an integer register has 32-bit ones, and the reverse.
template <class R> struct companion { using type = float128; };
#if ORV_HAVE_INT256
template <> struct companion<int256> { using type = float256; };
#endif
template <> struct companion<float128> { using type = int128; };
#if ORV_HAVE_INT256
template <> struct companion<float256> { using type = int256; };
#endif
template <class V> using floats_of = vec<float, typename companion<typename V::reg>::type>;
template <class V> using ints_of = vec<s32, typename companion<typename V::reg>::type>;

template <class T> struct registers { using wide = int_widest; using narrow = int128; };
template <> struct registers<float> { using wide = float_widest; using narrow = float128; };
template <> struct registers<double> { using wide = double_widest; using narrow = double128; };

template <class T> using widest = vec<T, typename registers<T>::wide>;
template <class T> using half = vec<T, typename registers<T>::narrow>;

// The vector of T that is as wide as the integer register R.
template <class T, class R> struct as_wide_as { using type = vec<T, R>; };
template <class R> struct as_wide_as<float, R> { using type = vec<float, typename companion<R>::type>; };
template <class T, class R> using vec_of = typename as_wide_as<T, R>::type;

template <class V>
ORV_INLINE V load(const typename V::lane* p)
{
    V r;
    load_to(r, p);
    return r;
}
template <class V>
ORV_INLINE V splat(typename V::lane value)
{
    V r;
    splat_to(r, value);
    return r;
}
template <class V>
ORV_INLINE V zero()
{
    return splat<V>(0);
}

// A 128-bit register of any kind as bits, and back.
ORV_INLINE __m128i to_bits(__m128i v) { return v; }
ORV_INLINE __m128i to_bits(__m128 v) { return _mm_castps_si128(v); }
ORV_INLINE __m128i to_bits(__m128d v) { return _mm_castpd_si128(v); }
ORV_INLINE void set_bits(__m128i& r, __m128i v) { r = v; }
ORV_INLINE void set_bits(__m128& r, __m128i v) { r = _mm_castsi128_ps(v); }
ORV_INLINE void set_bits(__m128d& r, __m128i v) { r = _mm_castsi128_pd(v); }

// The first and the last `Bytes` (8 or 4) of a row of n lanes, side by side in one 128-bit vector;
// whatever is above holds copies. Every lane is live, so a division sees no made-up zeros.
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

}  // namespace ORV_LEVEL
}  // namespace simd
}  // namespace orv

#endif  // ORV_HAVE_VECTORS
