// Rows of bytes moved as they are: a float that passed through the x87 would lose its signalling NaNs.
#pragma once

#include <cstring>

#include "core/rows.h"

namespace orv {
inline namespace ORV_LEVEL {

struct Same {
    std::uint8_t one(std::uint8_t a) const { return a; }
#if ORV_HAVE_VECTORS
    template <class V> ORV_INLINE V many(V a) const { return a; }
#endif
};

ORV_INLINE void copy_row(const std::uint8_t* src, std::uint8_t* dst, std::ptrdiff_t bytes)
{
#if ORV_HAVE_VECTORS
    Same same;
    run_row(dst, bytes, FromOne<std::uint8_t, Same>{src, &same});
#else
    std::memmove(dst, src, static_cast<std::size_t>(bytes));
#endif
}

}  // namespace ORV_LEVEL
}  // namespace orv
