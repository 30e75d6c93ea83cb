// Formulas that are written once for a double and for vectors of them, and numbers by their bits.
#pragma once

#include <cstdint>

#include "core/level.h"
#include "simd/vec.h"

namespace orv {
inline namespace ORV_LEVEL {

using Doubles = simd::widest<double>;
template <class D>
ORV_INLINE D of(double value)
{
    return simd::splat<D>(value);
}
template <>
ORV_INLINE double of<double>(double value)
{
    return value;
}

ORV_INLINE std::uint64_t bits_of(double value)
{
    std::uint64_t bits;
    __builtin_memcpy(&bits, &value, sizeof(bits));
    return bits;
}
ORV_INLINE double from_bits_of(std::uint64_t bits)
{
    double value;
    __builtin_memcpy(&value, &bits, sizeof(bits));
    return value;
}
// For exponents of normal numbers.
ORV_INLINE double power_of_two(int exponent) { return from_bits_of(static_cast<std::uint64_t>(exponent + 1023) << 52); }

// Without an x87 register: that of a signalling NaN would not be the same any more.
ORV_INLINE bool is_finite_at(const double* p)
{
    std::uint64_t bits;
    __builtin_memcpy(&bits, p, sizeof(bits));
    return (bits >> 52 & 0x7FF) != 0x7FF;
}
ORV_INLINE bool is_finite_value(double value) { return is_finite_at(&value); }

}  // namespace ORV_LEVEL
}  // namespace orv
