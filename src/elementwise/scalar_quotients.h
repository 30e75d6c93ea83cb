// Quotients of integers under the scaling rule: their meaning, on scalars.
#pragma once

#include <cstdint>

#include "elementwise/scaling.h"

namespace orv {
inline namespace ORV_LEVEL {

// How a quotient becomes an integer.
enum class Rounding {
    half_even,    // on the exact quotient
    fixed_point,  // on the quotient cut off after 16 fraction bits, with 32767 / 65536 added to it
};

template <class T>
T quotient_by_zero(T dividend)
{
    return dividend > 0 ? std::numeric_limits<T>::max() : dividend < 0 ? std::numeric_limits<T>::min() : T{0};
}

template <class T>
T quotient_half_even(T divisor, T dividend, int scaleFactor)
{
    const bool negative = (dividend < 0) != (divisor < 0);
    std::uint64_t numerator = static_cast<std::uint64_t>(dividend < 0 ? -int{dividend} : int{dividend});
    std::uint64_t denominator = static_cast<std::uint64_t>(divisor < 0 ? -int{divisor} : int{divisor});
    // 18 bits down nothing of 16 bits reaches one half; 32 bits up everything saturates.
    if (scaleFactor > 0) denominator <<= scaleFactor > 18 ? 18 : scaleFactor;
    if (scaleFactor < 0) numerator <<= scaleFactor < -32 ? 32 : -scaleFactor;
    std::uint64_t quotient = numerator / denominator;
    const std::uint64_t twice_rest = 2 * (numerator - quotient * denominator);
    if (twice_rest + (quotient & 1) > denominator) ++quotient;
    const auto magnitude = static_cast<std::int64_t>(quotient);
    return saturate<T>(negative ? -magnitude : magnitude);
}

inline std::uint16_t quotient_fixed_point(std::uint16_t divisor, std::uint16_t dividend, int scaleFactor)
{
    // 17 bits down the fraction is below one half; 32 bits up everything saturates.
    if (scaleFactor > 17) return 0;
    if (scaleFactor < -31) return dividend > 0 ? 65535 : 0;
    const std::uint64_t raised = std::uint64_t{dividend} << (scaleFactor < 0 ? 16 - scaleFactor : 16);
    const std::uint64_t q = raised / (std::uint64_t{divisor} << (scaleFactor > 0 ? scaleFactor : 0));
    const std::uint64_t odd = q >> 16 & 1;
    const std::uint64_t rounded = (q + 32767 + 2 * odd) >> 16;
    return static_cast<std::uint16_t>(rounded > 65535 ? 65535 : rounded);
}

}  // namespace ORV_LEVEL
}  // namespace orv
