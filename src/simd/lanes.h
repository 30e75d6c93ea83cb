// Names for kernels whose meaning is a formula of many steps: written once, for one lane at the plain level and for
// as many as a register holds above it. Every operation rounds as IEEE arithmetic does, so all levels give the same
// bits.
//
//     doubles   double lanes           words   as many 64-bit integers        mask64  of their comparisons
//     floats    float lanes            ints    as many 32-bit integers        mask32  of their comparisons
//
// The operations are those of the vocabulary (vec.h); here are those that only formulas need.
#pragma once

#include <cstddef>
#include <cstdint>

#include "core/checks.h"
#include "core/float_control.h"
#include "core/level.h"
#include "simd/conversion.h"
#include "simd/partial.h"
#include "simd/vec.h"

namespace orv {
inline namespace ORV_LEVEL {

using doubles = simd::widest<double>;
using floats = simd::widest<float>;
using words = simd::recast<std::uint64_t, doubles>;
using ints = simd::recast<std::uint32_t, floats>;
using mask64 = simd::mask_of<doubles>;
using mask32 = simd::mask_of<floats>;
using simd::bit_cast;
using simd::floor;
using simd::shifted_left;
using simd::shifted_right;
using simd::shifted_right_signed;

constexpr int kDoubles = doubles::N;
constexpr int kFloats = floats::N;

// Adding this to a double of magnitude below 2^50 rounds it to an integer, ties to even, which then
// stands in the low bits (as a two's complement); subtracting it again gives the integer as a double.
constexpr double kRoundDouble = 0x1.8p52;
// The same for floats of magnitude below 2^21.
constexpr float kRoundFloat = 0x1.8p23f;

ORV_INLINE doubles load_doubles(const double* p) { return simd::load<doubles>(p); }
ORV_INLINE doubles load_doubles(const float* p) { return simd::load_as<doubles>::from(p); }
ORV_INLINE floats load_floats(const float* p) { return simd::load<floats>(p); }
ORV_INLINE words load_words(const std::uint64_t* p) { return simd::load<words>(p); }
ORV_INLINE ints load_ints(const std::uint32_t* p) { return simd::load<ints>(p); }

// Lanes of x whose sign bit is set, zeros and NaNs included.
ORV_INLINE mask64 has_sign(doubles x)
{
    const words one_with_sign = (bits(x) & words(0x8000000000000000)) | bits(doubles(1.0));
    return less(from_bits(one_with_sign), doubles(0.0));
}

// --- Tables ---------------------------------------------------------------------------------------

#if ORV_HAVE_INT256
#if defined(__i386__)
// The index lies in register 0: QEMU 7.2 takes register 4 for no index at all and reads anywhere.
template <class T, class V>
ORV_INLINE V gathered(const T* table, __m256i index, V lanes)
{
    V all;
    __asm__("vpcmpeqd %0, %0, %0" : "=x"(all));
    __asm__("vpgatherqq %1, (%2,%3,8), %0"
            : "+&x"(lanes), "+&x"(all)
            : "r"(table), "Yz"(index), "m"(*reinterpret_cast<const T(*)[]>(table)));
    return lanes;
}
ORV_INLINE doubles lookup(const double* table, words index) { return gathered(table, index.v, _mm256_setzero_pd()); }
ORV_INLINE words lookup(const std::uint64_t* table, words index)
{
    return gathered(table, index.v, _mm256_setzero_si256());
}
#else
ORV_INLINE doubles lookup(const double* table, words index) { return _mm256_i64gather_pd(table, index.v, 8); }
ORV_INLINE words lookup(const std::uint64_t* table, words index)
{
    return _mm256_i64gather_epi64(reinterpret_cast<const long long*>(table), index.v, 8);
}
#endif
// The element that the low three bits of the index tell.
ORV_INLINE floats pick(const float (&table)[8], ints index)
{
    return _mm256_permutevar8x32_ps(_mm256_load_ps(table), index.v);
}
// The same by the low two bits.
ORV_INLINE floats pick_of_four(const float (&table)[4], ints index)
{
    return _mm256_permutevar_ps(_mm256_broadcast_ps(reinterpret_cast<const __m128*>(table)), index.v);
}
#elif ORV_HAVE_VECTORS
// Indices are below 2^31.
ORV_INLINE __m128d lookup_two(const double* table, __m128i index)
{
    const int first = _mm_cvtsi128_si32(index), second = simd::third_dword(index);
    return _mm_loadh_pd(_mm_load_sd(table + first), table + second);
}
#if ORV_HAVE_FLOAT256
ORV_INLINE doubles lookup(const double* table, words index)
{
    return _mm256_insertf128_pd(_mm256_castpd128_pd256(lookup_two(table, index.v.lo)), lookup_two(table, index.v.hi),
                                1);
}
ORV_INLINE words lookup(const std::uint64_t* table, words index)
{
    const double* const t = reinterpret_cast<const double*>(table);
    return simd::split_register{_mm_castpd_si128(lookup_two(t, index.v.lo)),
                                _mm_castpd_si128(lookup_two(t, index.v.hi))};
}
#else
ORV_INLINE doubles lookup(const double* table, words index) { return lookup_two(table, index.v); }
ORV_INLINE words lookup(const std::uint64_t* table, words index)
{
    return bits(lookup(reinterpret_cast<const double*>(table), index));
}
#endif
#else
ORV_INLINE words lookup(const std::uint64_t* table, words index) { return table[static_cast<std::size_t>(index.v)]; }
ORV_INLINE doubles lookup(const double* table, words index) { return table[static_cast<std::size_t>(index.v)]; }
#endif

// --- Bits -----------------------------------------------------------------------------------------

#if ORV_HAVE_INT256
ORV_INLINE mask32 less_signed(ints a, ints b)
{
    return from_bits(simd::as<std::uint32_t>(greater(simd::as<simd::s32>(b), simd::as<simd::s32>(a))));
}
// The sign bit where this bit, 0 or 1, is set. A shuffle by the low two bits: shifts would compete with multiplications
// for their ports.
template <int bit>
ORV_INLINE ints sign_if(ints a)
{
    alignas(16) static const float signs[4] = {0.0f, bit == 0 ? -0.0f : 0.0f, bit == 0 ? 0.0f : -0.0f, -0.0f};
    return bits(pick_of_four(signs, a));
}

// --- Two registers --------------------------------------------------------------------------------
//
// For long formulas: the processor looks only so many operations ahead, and where each waits for the one before, two
// values in step keep it busy.
using floats2 = simd::twice<floats>;
using ints2 = simd::twice<ints>;
using mask2 = simd::mask_of<floats2>;

ORV_INLINE floats2 load_floats2(const float* p) { return simd::load<floats2>(p); }
ORV_INLINE floats2 pick(const float (&table)[8], ints2 i) { return {pick(table, i.lo), pick(table, i.hi)}; }
ORV_INLINE floats2 pick_of_four(const float (&table)[4], ints2 i)
{
    return {pick_of_four(table, i.lo), pick_of_four(table, i.hi)};
}
ORV_INLINE mask2 less_signed(ints2 a, ints2 b) { return {less_signed(a.lo, b.lo), less_signed(a.hi, b.hi)}; }
template <int bit> ORV_INLINE ints2 sign_if(ints2 x) { return {sign_if<bit>(x.lo), sign_if<bit>(x.hi)}; }
#else
template <int bit> ORV_INLINE ints sign_if(ints a) { return shifted_left<31 - bit>(a) & ints(0x80000000); }
#endif

}  // namespace ORV_LEVEL
}  // namespace orv
