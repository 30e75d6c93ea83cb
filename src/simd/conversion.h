// Conversions between lane types in memory order, for loops whose source and destination differ in
// width. (widen() and narrow() are cheaper but keep the order only in pairs.)
//
// load_as<V>::from(p) widens what lies at p. store_as(p, v) narrows: to integers saturated, to floats rounded.
#pragma once

#include "core/nan.h"
#include "simd/partial.h"
#include "simd/vec.h"

namespace orv {
namespace simd {
inline namespace ORV_LEVEL {

// One vector V from as many narrower lanes in memory.
template <class V> struct load_as;

template <>
struct load_as<vec<double, 1>> {
    static ORV_INLINE vec<double, 1> from(const float* p)
    {
        vec<float, 1> one;
        load_to(one, p);
        return {static_cast<double>(one.v)};
    }
};
ORV_INLINE void store(float* p, vec<double, 1> a)
{
    const float rounded_once = static_cast<float>(a.v);
    __builtin_memcpy(p, &rounded_once, sizeof(float));
}

#if ORV_HAVE_VECTORS
// 4 or 8 bytes in the lowest lanes of a register.
ORV_INLINE __m128i load_32(const void* p)
{
    s32 four;
    std::memcpy(&four, p, sizeof(four));
    return _mm_cvtsi32_si128(four);
}
ORV_INLINE __m128i load_64(const void* p) { return _mm_loadl_epi64(static_cast<const __m128i*>(p)); }

template <>
struct load_as<vec<double, 2>> {
    static ORV_INLINE vec<double, 2> from(const float* p) { return {_mm_cvtps_pd(_mm_castsi128_ps(load_64(p)))}; }
};
template <>
struct load_as<twice<vec<double, 2>>> {
    static ORV_INLINE twice<vec<double, 2>> from(const float* p)
    {
        twice<vec<double, 2>> r;
        load_to(r, p);
        return r;
    }
};
template <>
struct load_as<vec<u16, 8>> {
    static ORV_INLINE vec<u16, 8> from(const u8* p) { return {_mm_unpacklo_epi8(load_64(p), _mm_setzero_si128())}; }
};
template <>
struct load_as<vec<s32, 4>> {
    static ORV_INLINE vec<s32, 4> from(const u8* p)
    {
        const __m128i none = _mm_setzero_si128(), words = _mm_unpacklo_epi8(load_32(p), none);
        return {_mm_unpacklo_epi16(words, none)};
    }
    static ORV_INLINE vec<s32, 4> from(const u16* p) { return {_mm_unpacklo_epi16(load_64(p), _mm_setzero_si128())}; }
    static ORV_INLINE vec<s32, 4> from(const s16* p)
    {
        const __m128i words = load_64(p);
        return {_mm_srai_epi32(_mm_unpacklo_epi16(words, words), 16)};
    }
};
template <>
struct load_as<vec<float, 4>> {
    template <class T> static ORV_INLINE vec<float, 4> from(const T* p)
    {
        return to_float(load_as<vec<s32, 4>>::from(p));
    }
};

// Rounded to float.
ORV_INLINE void store(float* p, vec<double, 2> a)
{
    _mm_storel_epi64(reinterpret_cast<__m128i*>(p), _mm_castps_si128(_mm_cvtpd_ps(a.v)));
}

// Bytes that two narrow()s have made of four vectors, in memory order.
ORV_INLINE vec<u8, 16> narrowed_twice(vec<u8, 16> a) { return a; }

// 32-bit lanes from 0 to the most of the narrower type, packed in memory order.
ORV_INLINE vec<u16, 8> pack(vec<s32, 4> a, vec<s32, 4> b)
{
    return narrow(pair<vec<u32, 4>>{{a.v}, {b.v}});
}
template <int N>
ORV_INLINE vec<u8, 4 * N> pack(vec<s32, N> a, vec<s32, N> b, vec<s32, N> c, vec<s32, N> d)
{
    using Words = vec<s16, 2 * N>;
    const Words low = narrow(pair<vec<s32, N>>{a, b}), high = narrow(pair<vec<s32, N>>{c, d});
    return narrowed_twice(narrow(pair<vec<u16, 2 * N>>{{low.v}, {high.v}}));
}

// Signed words, saturated; bytes of words below 2^15, likewise.
ORV_INLINE vec<s16, 8> pack_words(vec<s32, 4> a, vec<s32, 4> b) { return narrow(pair<vec<s32, 4>>{a, b}); }
ORV_INLINE vec<u8, 16> pack_bytes(vec<u16, 8> a, vec<u16, 8> b) { return narrow(pair<vec<u16, 8>>{a, b}); }

// Lanes of all ones and all zeros as bytes, in memory order.
template <class T>
ORV_INLINE vec<u8, 16> pack_masks(vec<T, 16 / sizeof(T)> a, vec<T, 16 / sizeof(T)> b)
{
    static_assert(sizeof(T) == 2, "words");
    return {_mm_packs_epi16(a.v, b.v)};
}
ORV_INLINE vec<u8, 16> pack_masks(vec<s32, 4> a, vec<s32, 4> b, vec<s32, 4> c, vec<s32, 4> d)
{
    return {_mm_packs_epi16(_mm_packs_epi32(a.v, b.v), _mm_packs_epi32(c.v, d.v))};
}

// Toward minus infinity; NaNs become quiet.
ORV_INLINE vec<float, 4> floor(vec<float, 4> a)
{
    using V = vec<float, 4>;
    const V toward_zero = to_float(truncate(a));
    const V below = toward_zero - (less(a, toward_zero) & V(1.0f));
    const V sign = from_bits(bits(a) & vec<u32, 4>(0x80000000));
    const V small = less(magnitude(a), 0x1p23f);  // from 2^23 on: an integer already
    return select(small, from_bits(bits(below) | bits(sign)), a + V(0.0f));
}

#if ORV_HAVE_FLOAT256
using four_doubles = vec<double, 4>;
template <>
struct load_as<vec<double, 4>> {
    static ORV_INLINE vec<double, 4> from(const float* p) { return {_mm256_cvtps_pd(_mm_loadu_ps(p))}; }
    static ORV_INLINE vec<double, 4> from(const u8* p) { return {_mm256_cvtepi32_pd(_mm_cvtepu8_epi32(load_32(p)))}; }
    static ORV_INLINE vec<double, 4> from(const u16* p) { return {_mm256_cvtepi32_pd(_mm_cvtepu16_epi32(load_64(p)))}; }
};
ORV_INLINE vec<float, 4> to_float(vec<double, 4> a) { return {_mm256_cvtpd_ps(a.v)}; }
// Rounded to the digits and the range of floats.
ORV_INLINE vec<double, 4> to_single(vec<double, 4> a) { return {_mm256_cvtps_pd(_mm256_cvtpd_ps(a.v))}; }
ORV_INLINE void store(float* p, vec<double, 4> a) { _mm_storeu_ps(p, _mm256_cvtpd_ps(a.v)); }
ORV_INLINE vec<float, 8> floor(vec<float, 8> a)
{
    return {_mm256_round_ps(a.v, _MM_FROUND_TO_NEG_INF | _MM_FROUND_NO_EXC)};
}
#else
using four_doubles = twice<vec<double, 2>>;
#endif
// 2^52 + n has the integer n in its lower half.
ORV_INLINE four_doubles to_four_doubles(vec<u32, 4> a)
{
    const auto raised = from_bits(interleave(a, vec<u32, 4>(0x43300000)));
    return of_parts(raised.lo, raised.hi) - four_doubles(0x1p52);
}
#endif

#if ORV_HAVE_INT256
template <>
struct load_as<vec<u16, 16>> {
    static ORV_INLINE vec<u16, 16> from(const u8* p)
    {
        return {_mm256_cvtepu8_epi16(_mm_loadu_si128(reinterpret_cast<const __m128i*>(p)))};
    }
};
template <>
struct load_as<vec<s32, 8>> {
    static ORV_INLINE vec<s32, 8> from(const u8* p) { return {_mm256_cvtepu8_epi32(load_64(p))}; }
    static ORV_INLINE vec<s32, 8> from(const u16* p)
    {
        return {_mm256_cvtepu16_epi32(_mm_loadu_si128(reinterpret_cast<const __m128i*>(p)))};
    }
    static ORV_INLINE vec<s32, 8> from(const s16* p)
    {
        return {_mm256_cvtepi16_epi32(_mm_loadu_si128(reinterpret_cast<const __m128i*>(p)))};
    }
};
template <>
struct load_as<vec<float, 8>> {
    template <class T> static ORV_INLINE vec<float, 8> from(const T* p)
    {
        return to_float(load_as<vec<s32, 8>>::from(p));
    }
};
template <>
struct load_as<twice<vec<double, 4>>> {
    template <class T> static ORV_INLINE twice<vec<double, 4>> from(const T* p)
    {
        return to_double(load_as<vec<s32, 8>>::from(p));
    }
    static ORV_INLINE twice<vec<double, 4>> from(const float* p)
    {
        twice<vec<double, 4>> r;
        load_to(r, p);
        return r;
    }
};

ORV_INLINE twice<vec<double, 4>> to_double(vec<s32, 8> a)
{
    return {{_mm256_cvtepi32_pd(_mm256_castsi256_si128(a.v))}, {_mm256_cvtepi32_pd(_mm256_extracti128_si256(a.v, 1))}};
}
ORV_INLINE vec<s32, 8> round_to_int(twice<vec<double, 4>> a)
{
    const __m256i low = _mm256_castsi128_si256(_mm256_cvtpd_epi32(a.lo.v));
    return {_mm256_inserti128_si256(low, _mm256_cvtpd_epi32(a.hi.v), 1)};
}

ORV_INLINE vec<u8, 32> narrowed_twice(vec<u8, 32> a)
{
    return {_mm256_permutevar8x32_epi32(a.v, _mm256_setr_epi32(0, 4, 1, 5, 2, 6, 3, 7))};
}
ORV_INLINE vec<u16, 16> pack(vec<s32, 8> a, vec<s32, 8> b)
{
    return {_mm256_permute4x64_epi64(_mm256_packus_epi32(a.v, b.v), 0xD8)};
}
ORV_INLINE vec<s16, 16> pack_words(vec<s32, 8> a, vec<s32, 8> b)
{
    return {_mm256_permute4x64_epi64(_mm256_packs_epi32(a.v, b.v), 0xD8)};
}
ORV_INLINE vec<u8, 32> pack_bytes(vec<u16, 16> a, vec<u16, 16> b)
{
    return {_mm256_permute4x64_epi64(_mm256_packus_epi16(a.v, b.v), 0xD8)};
}
template <class T>
ORV_INLINE vec<u8, 32> pack_masks(vec<T, 32 / sizeof(T)> a, vec<T, 32 / sizeof(T)> b)
{
    static_assert(sizeof(T) == 2, "words");
    return {_mm256_permute4x64_epi64(_mm256_packs_epi16(a.v, b.v), 0xD8)};
}
ORV_INLINE vec<u8, 32> pack_masks(vec<s32, 8> a, vec<s32, 8> b, vec<s32, 8> c, vec<s32, 8> d)
{
    const vec<u8, 32> packed = {_mm256_packs_epi16(_mm256_packs_epi32(a.v, b.v), _mm256_packs_epi32(c.v, d.v))};
    return narrowed_twice(packed);
}

// --- Results ----------------------------------------------------------------------------------------

// One NaN for all.
ORV_INLINE vec<float, 8> with_one_nan(vec<float, 8> a)
{
    return {_mm256_blendv_ps(a.v, _mm256_castsi256_ps(_mm256_set1_epi32(kPlainNan)), unordered(a).v)};
}
ORV_INLINE vec<float, 4> with_one_nan(vec<float, 4> a)
{
    return {_mm_blendv_ps(a.v, _mm_castsi128_ps(_mm_set1_epi32(kPlainNan)), unordered(a).v)};
}

// In one register, in memory order.
ORV_INLINE vec<u8, 16> narrowed(vec<u16, 16> a)
{
    return {_mm_packus_epi16(_mm256_castsi256_si128(a.v), _mm256_extracti128_si256(a.v, 1))};
}
ORV_INLINE void store_as(u8* p, vec<s32, 8> a)
{
    const __m128i words = _mm_packs_epi32(_mm256_castsi256_si128(a.v), _mm256_extracti128_si256(a.v, 1));
    _mm_storel_epi64(reinterpret_cast<__m128i*>(p), _mm_packus_epi16(words, words));
}
ORV_INLINE void store_as(u16* p, vec<s32, 8> a)
{
    _mm_storeu_si128(reinterpret_cast<__m128i*>(p),
                     _mm_packus_epi32(_mm256_castsi256_si128(a.v), _mm256_extracti128_si256(a.v, 1)));
}
// To the nearest integers, ties to even under FloatControl; as floats, one NaN for all.
ORV_INLINE void store_as(u8* p, vec<double, 4> a)
{
    const __m128i integers = _mm256_cvtpd_epi32(a.v);
    const s32 four = _mm_cvtsi128_si32(_mm_packus_epi16(_mm_packs_epi32(integers, integers), integers));
    std::memcpy(p, &four, sizeof(four));
}
ORV_INLINE void store_as(u16* p, vec<double, 4> a)
{
    const __m128i integers = _mm256_cvtpd_epi32(a.v);
    _mm_storel_epi64(reinterpret_cast<__m128i*>(p), _mm_packus_epi32(integers, integers));
}
ORV_INLINE void store_as(float* p, vec<double, 4> a) { store(p, with_one_nan(to_float(a))); }
ORV_INLINE void store_as(u16* p, twice<vec<double, 4>> a)
{
    const __m128i packed = _mm_packus_epi32(_mm256_cvtpd_epi32(a.lo.v), _mm256_cvtpd_epi32(a.hi.v));
    _mm_storeu_si128(reinterpret_cast<__m128i*>(p), packed);
}
ORV_INLINE void store_as(float* p, twice<vec<double, 4>> a) { store(p, with_one_nan(to_float(a))); }
#endif

}  // namespace ORV_LEVEL
}  // namespace simd
}  // namespace orv
