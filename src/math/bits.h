// How many bits of an unsigned integer are set.
#pragma once

#include "core/level.h"

namespace orv {
inline namespace ORV_LEVEL {

template <class Word>
ORV_INLINE int bits_set(Word w)
{
#if defined(__POPCNT__)
    return sizeof(Word) == 8 ? __builtin_popcountll(w) : __builtin_popcount(static_cast<unsigned>(w));
#else
    constexpr Word all = ~Word{0};
    w -= w >> 1 & all / 3;
    w = (w & all / 5) + (w >> 2 & all / 5);
    return static_cast<int>(((w + (w >> 4)) & all / 17) * (all / 255) >> (8 * sizeof(Word) - 8));
#endif
}

}  // namespace ORV_LEVEL
}  // namespace orv
