// The vector vocabulary: one set of names for lanes of numbers, however many a register holds.
//
//     vec<T, N>      N lanes of T: a register of 16 or 32 bytes, or a lone lane (N = 1), which is the operations'
//                    meaning in plain C++ and all that the plain level has
//     widest<T>      the one to loop with: as many lanes as the level's registers hold
//     half<T>        16 bytes of them, for what is shorter than that
//     twice<V>       two vectors side by side under the same names: for results with wider lanes, and for
//                    formulas whose steps wait for each other
//     mask_of<V>     what comparisons of V give. For select(), any(), all(), & | ^ ~ and and_not(); a type of its
//                    own where the level has such registers, so its bits are no numbers: those are ones_where<V>()
//     recast<T, V>   the vector of T as wide as V
//
// The same names serve every lane type and every width; what a level lacks is put together from what it has, with
// the same result. The basics are here; conversion.h has loads and stores that change the lane type, partial.h those of
// less than a vector, shuffles.h moves lanes, halves.h has steps on 8 and 16 bits, reductions.h sums over lanes.
// Steps that mix neighbours work within each 16 bytes, as the instructions do, where they do not say otherwise;
// a lone lane has zeros for neighbours.
//
// Which to take: a kernel of single steps writes its meaning twice, on scalars (one) and on vectors (many), and
// the tests compare the two texts; a formula of many steps is written once, on widest<T> (math/).
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>

#include "core/assert.h"
#include "core/float_control.h"
#include "core/level.h"

#if ORV_HAVE_FLOAT256
#include <immintrin.h>
#elif ORV_HAVE_SSE41
#include <smmintrin.h>
#elif ORV_HAVE_BYTE_SHUFFLE
#include <tmmintrin.h>
#elif ORV_HAVE_VECTORS
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

// The register of N lanes. A member type: the intrinsic types carry attributes that templates ignore.
template <class T, int N, std::size_t bytes = N * sizeof(T)> struct register_of;
template <class T, std::size_t bytes> struct register_of<T, 1, bytes> { using type = T; };
#if ORV_HAVE_VECTORS
template <class T, int N> struct register_of<T, N, 16> { using type = __m128i; };
template <int N> struct register_of<float, N, 16> { using type = __m128; };
template <int N> struct register_of<double, N, 16> { using type = __m128d; };
#endif
#if ORV_HAVE_FLOAT256
template <int N> struct register_of<float, N, 32> { using type = __m256; };
template <int N> struct register_of<double, N, 32> { using type = __m256d; };
#endif
#if ORV_HAVE_INT256
template <class T, int N> struct register_of<T, N, 32> { using type = __m256i; };
#elif ORV_HAVE_FLOAT256
// Integers beside floats of 256 bits, where there are none so wide: in two halves. Formulas have them, loops do not.
struct split_register {
    __m128i lo, hi;
};
template <class T, int N> struct register_of<T, N, 32> { using type = split_register; };
#endif

template <class T, int lanes>
struct vec {
    using lane = T;
    static constexpr int N = lanes;
    typename register_of<T, N>::type v;
    vec() = default;
    ORV_INLINE vec(typename register_of<T, N>::type value) : v(value) {}
    ORV_INLINE vec(T value) { splat_to(*this, value); }  // in every lane
};
template <class T>
struct vec<T, 1> {
    using lane = T;
    static constexpr int N = 1;
    T v;
    vec() = default;
    ORV_INLINE vec(T value) : v(value) {}
};

template <class T> constexpr bool is_float = false;
template <> constexpr bool is_float<float> = true;
template <> constexpr bool is_float<double> = true;

// N lanes of T that fill so many bytes, one at least.
template <class T, std::size_t bytes>
using vec_in = vec<T, (bytes > sizeof(T) ? static_cast<int>(bytes / sizeof(T)) : 1)>;

constexpr std::size_t kHalfBytes = ORV_HAVE_VECTORS ? 16 : 0;
constexpr std::size_t kFloatBytes = ORV_HAVE_FLOAT256 ? 32 : kHalfBytes;
constexpr std::size_t kIntegerBytes = ORV_HAVE_INT256 ? 32 : kHalfBytes;

template <class T> using widest = vec_in<T, is_float<T> ? kFloatBytes : kIntegerBytes>;
template <class T> using half = vec_in<T, kHalfBytes>;

template <class T, class V> struct recast_to { using type = vec_in<T, V::N * sizeof(typename V::lane)>; };
template <class T, class U> struct recast_to<T, vec<U, 1>> { using type = vec<T, 1>; };
template <class T, class V> using recast = typename recast_to<T, V>::type;
template <class V> using floats_of = recast<float, V>;
template <class V> using ints_of = recast<s32, V>;

// A lone lane's condition is one bit.
template <class T>
struct one_mask {
    using lane = T;
    static constexpr int N = 1;
    bool v;
};
template <class V> struct mask_type { using type = V; };
template <class T> struct mask_type<vec<T, 1>> { using type = one_mask<T>; };
template <class V> using mask_of = typename mask_type<V>::type;

// Two vectors. The lanes of one, widened, are in the order of the unpack instructions (within each 16 bytes); only
// narrow() puts them back into memory order. All else is in memory order.
template <class V>
struct twice {
    using lane = typename V::lane;
    static constexpr int N = 2 * V::N;
    V lo, hi;
    twice() = default;
    ORV_INLINE twice(V low, V high) : lo(low), hi(high) {}
    ORV_INLINE twice(lane value) : lo(value), hi(value) {}  // in every lane

#include "simd/twice_friends.inc"
};
template <class V> using pair = twice<V>;
template <class V> struct mask_type<twice<V>> { using type = twice<mask_of<V>>; };

// The 64-bit products of the even 32-bit lanes and those of the odd ones.
template <int N>
struct products {
    typename register_of<s64, (N > 1 ? N / 2 : 1)>::type even, odd;
};

#if ORV_HAVE_VECTORS
// A shift count in the register that the shift instructions want.
struct count {
    __m128i v;
    explicit ORV_INLINE count(int bits) : v(_mm_cvtsi32_si128(bits)) {}
    ORV_INLINE int bits() const { return _mm_cvtsi128_si32(v); }
};
#else
struct count {
    int v;
    explicit ORV_INLINE count(int bits) : v(bits) {}
    ORV_INLINE int bits() const { return v; }
};
#endif

#include "simd/one_lane.inc"

#if ORV_HAVE_VECTORS
// 128-bit integers; the gaps of SSE2 and SSSE3 are filled first.
#include "simd/gaps128.inc"

#define ORV_BYTES 16
#define ORV_FROM_SI(type) _mm_castsi128_##type
#define ORV_I __m128i
#define ORV_MM(op) _mm_##op
#define ORV_SI(op) _mm_##op##_si128
#define ORV_GAP41(op) ORV_GAP41_128(op)
#include "simd/integer.inc"
#include "simd/floating.inc"
#include "simd/double.inc"
#undef ORV_BYTES
#undef ORV_FROM_SI
#undef ORV_I
#undef ORV_MM
#undef ORV_SI
#undef ORV_GAP41
#undef ORV_GAP41_128
#endif
#if ORV_HAVE_FLOAT256 && !ORV_HAVE_INT256
#include "simd/split.inc"
#endif

#if ORV_HAVE_FLOAT256
#define ORV_SIMD_WIDE
#define ORV_BYTES 32
#define ORV_FROM_SI(type) _mm256_castsi256_##type
#define ORV_MM(op) _mm256_##op
#define ORV_SI(op) _mm256_##op##_si256
#define ORV_GAP41(op) _mm256_##op
#if ORV_HAVE_INT256
#define ORV_I __m256i
#include "simd/integer.inc"
#endif
#include "simd/floating.inc"
#include "simd/double.inc"
#undef ORV_SIMD_WIDE
#undef ORV_BYTES
#undef ORV_FROM_SI
#undef ORV_I
#undef ORV_MM
#undef ORV_SI
#undef ORV_GAP41
#endif

#include "simd/twice.inc"

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
template <class T, int N> ORV_INLINE vec<T, N>& operator+=(vec<T, N>& a, vec<T, N> b) { return a = a + b; }
template <class T, int N> ORV_INLINE vec<T, N>& operator-=(vec<T, N>& a, vec<T, N> b) { return a = a - b; }
template <class T, int N> ORV_INLINE vec<T, N>& operator/=(vec<T, N>& a, vec<T, N> b) { return a = a / b; }
template <class V>
ORV_INLINE V zero()
{
    return splat<V>(0);
}
// All bits set where the mask holds, else none.
template <class V>
ORV_INLINE V ones_where(mask_of<V> mask)
{
    if constexpr (V::N == 1) return select(mask, ~zero<V>(), zero<V>());
    else return mask;
}

// For operands of several operations that come from memory: compilers like to load them again for each.
template <class V>
ORV_INLINE V in_register(V a)
{
    if constexpr (V::N > 1) __asm__("" : "+x"(a.v));
    return a;
}

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
#endif

}  // namespace ORV_LEVEL
}  // namespace simd
}  // namespace orv
