// Copies of fewer bytes than a call is worth.
#pragma once

#include <cstdint>
#include <cstring>

#include "core/level.h"

namespace orv {
inline namespace ORV_LEVEL {

// n bytes, fewer than a vector or three. Floats are copied as bytes.
ORV_INLINE void copy_few(void* to, const void* from, std::ptrdiff_t n)
{
    auto* d = static_cast<std::uint8_t*>(to);
    const auto* s = static_cast<const std::uint8_t*>(from);
    for (; n >= 16; n -= 16, d += 16, s += 16) std::memcpy(d, s, 16);
    if ((n & 8) != 0) std::memcpy(d, s, 8), d += 8, s += 8;
    if ((n & 4) != 0) std::memcpy(d, s, 4), d += 4, s += 4;
    if ((n & 2) != 0) std::memcpy(d, s, 2), d += 2, s += 2;
    if ((n & 1) != 0) *d = *s;
}

}  // namespace ORV_LEVEL
}  // namespace orv
