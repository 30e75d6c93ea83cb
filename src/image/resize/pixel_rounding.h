// Computed pixels become stored ones: integers to the nearest, ties to even, clamped; floats as they are.
#pragma once

#include <cstdint>
#include <limits>

#include "core/checks.h"
#include "core/float_control.h"
#include "core/nan.h"

namespace orv {
inline namespace ORV_LEVEL {

// The sum with 1.5 * 2^52 has no fraction bits left: the addition itself rounds, and the integer stands in
// the low word.
ORV_INLINE std::int32_t nearest_integer(double value)
{
    ORV_ASSERT(FloatControl::holds() && value > -0x1p31 && value < 0x1p31);
    const double shifted = rounded(value + 6755399441055744.0);
    std::int64_t bits;
    __builtin_memcpy(&bits, &shifted, sizeof(bits));
    return static_cast<std::int32_t>(bits);
}

template <class T>
ORV_INLINE T to_pixel(double value)
{
    constexpr double most = std::numeric_limits<T>::max();
    // Clamped first: no integer is passed on the way.
    const double clamped = value < 0 ? 0 : value > most ? most : value;
    return static_cast<T>(nearest_integer(clamped));
}

// One NaN for all: which of two NaNs an addition keeps depends on the instruction set.
template <>
ORV_INLINE float to_pixel<float>(double value)
{
    float pixel = rounded(static_cast<float>(value));
    if (value != value) __builtin_memcpy(&pixel, &kPlainNan, sizeof(pixel));
    return pixel;
}

// The whole part, rounded down.
ORV_INLINE int floor_of(double value)
{
    ORV_ASSERT(value > -0x1p31 && value < 0x1p31);
    const int truncated = static_cast<int>(value);
    return truncated - (static_cast<double>(truncated) > value ? 1 : 0);
}

}  // namespace ORV_LEVEL
}  // namespace orv
