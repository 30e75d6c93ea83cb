// Numbers for kernels whose meaning is a formula of many steps: written once, for one lane at the plain
// level and for as many as a register holds above it. Every operation rounds as IEEE arithmetic does,
// so all levels give the same bits.
//
//     doubles   double lanes           words   as many 64-bit integers        mask64  of their comparisons
//     floats    float lanes            ints    as many 32-bit integers        mask32  of their comparisons
//
// Unlike the vectors of vec.h, these integers and masks have as many lanes as the numbers they belong to at every
// level, also where only floats have registers of 256 bits: a formula takes bits apart without asking.
#pragma once

#include <cstddef>
#include <cstdint>

#include "core/checks.h"
#include "core/float_control.h"
#include "core/level.h"
#include "simd/vec.h"

namespace orv {
inline namespace ORV_LEVEL {

template <class To, class From>
ORV_INLINE To bit_cast(From from)
{
    static_assert(sizeof(To) == sizeof(From), "a cast of bits");
    To to;
    __builtin_memcpy(&to, &from, sizeof(To));
    return to;
}

}  // namespace ORV_LEVEL
}  // namespace orv

#if !ORV_HAVE_VECTORS
#include "simd/lanes_one.inc"
#elif !ORV_HAVE_FLOAT256
#include "simd/lanes_128.inc"
#else
#include "simd/lanes_256.inc"
#endif

namespace orv {
inline namespace ORV_LEVEL {

constexpr int kDoubles = doubles::N;
constexpr int kFloats = floats::N;

// Adding this to a double of magnitude below 2^50 rounds it to an integer, ties to even, which then
// stands in the low bits (as a two's complement); subtracting it again gives the integer as a double.
constexpr double kRoundDouble = 0x1.8p52;
// The same for floats of magnitude below 2^21.
constexpr float kRoundFloat = 0x1.8p23f;

ORV_INLINE bool all_of(mask64 m) { return lanes_of(m) == (1u << kDoubles) - 1; }
ORV_INLINE bool all_of(mask32 m) { return lanes_of(m) == (1u << kFloats) - 1; }

// The sign bit where this bit, 0 or 1, is set.
#if !ORV_HAVE_INT256
template <int bit> ORV_INLINE ints sign_if(ints a) { return shift_left<31 - bit>(a) & ints(0x80000000); }
#endif

ORV_INLINE doubles magnitude(doubles x) { return from_bits(bits(x) & words(0x7FFFFFFFFFFFFFFF)); }
ORV_INLINE floats magnitude(floats x) { return from_bits(bits(x) & ints(0x7FFFFFFF)); }

// Lanes of x whose sign bit is set, zeros and NaNs included.
ORV_INLINE mask64 has_sign(doubles x)
{
    const words one_with_sign = (bits(x) & words(0x8000000000000000)) | bits(doubles(1.0));
    return less(from_bits(one_with_sign), doubles(0.0));
}

}  // namespace ORV_LEVEL
}  // namespace orv
