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
#include <immintrin.h>  // takes the compiler half a second
#elif ORV_HAVE_VECTORS
#include <smmintrin.h>
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
#if ORV_HAVE_FLOAT256
template <int N> struct register_of<float, N, 32> { using type = __m256; };
template <int N> struct register_of<double, N, 32> { using type = __m256d; };
#if ORV_HAVE_INT256
template <class T, int N> struct register_of<T, N, 32> { using type = __m256i; };
#else
// Integers beside floats of 256 bits, where there are none so wide: in two halves. Formulas have them, loops do not.
struct split_register {
    __m128i lo, hi;
};
template <class T, int N> struct register_of<T, N, 32> { using type = split_register; };
#endif
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

#include "simd/one_lane.inc"

#if ORV_HAVE_VECTORS
// 128-bit integers; the gaps of SSE2 and SSSE3 are filled first.
#include "simd/gaps128.inc"

#define ORV_BYTES 16
#define ORV_FROM_SI(type) _mm_castsi128_##type
#define ORV_TO_SI(type) _mm_cast##type##_si128
#define ORV_I __m128i
#define ORV_MM(op) _mm_##op
#define ORV_SI(op) _mm_##op##_si128
#define ORV_GAP41(op) ORV_GAP41_128(op)
#define ORV_SHIFT_32(op, a, c) _mm_##op##_epi32(a.v, c.v)
#define ORV_COMPARED(type, a, b, op, predicate) _mm_cmp##op##_##type(a, b)
#include "simd/integer.inc"
#include "simd/floating.inc"
#include "simd/double.inc"
#undef ORV_GAP41_128
#include "simd/end_of_width.inc"
#endif

#if ORV_HAVE_FLOAT256
#define ORV_SIMD_WIDE
#define ORV_BYTES 32
#define ORV_FROM_SI(type) _mm256_castsi256_##type
#define ORV_TO_SI(type) _mm256_cast##type##_si256
#define ORV_MM(op) _mm256_##op
#define ORV_SI(op) _mm256_##op##_si256
#define ORV_GAP41(op) _mm256_##op
// By a count in every lane: one operation where the shift by a single count is two.
#define ORV_SHIFT_32(op, a, c) _mm256_##op##v_epi32(a.v, _mm256_broadcastd_epi32(c.v))
#define ORV_COMPARED(type, a, b, op, predicate) _mm256_cmp_##type(a, b, predicate)
#if ORV_HAVE_INT256
#define ORV_I __m256i
ORV_INLINE __m256i blend_by_sign(__m256i a, __m256i b, __m256i mask)
{
    return _mm256_castps_si256(
        _mm256_blendv_ps(_mm256_castsi256_ps(a), _mm256_castsi256_ps(b), _mm256_castsi256_ps(mask)));
}
#include "simd/integer.inc"
#else
#include "simd/split.inc"
#endif
#include "simd/floating.inc"
#include "simd/double.inc"
#undef ORV_SIMD_WIDE
#include "simd/end_of_width.inc"
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

}  // namespace ORV_LEVEL
}  // namespace simd
}  // namespace orv
