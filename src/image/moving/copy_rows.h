// Rows of bytes moved as they are: a float that passed through the x87 would lose its signalling NaNs.
#pragma once

#include <cstdint>
#include <cstring>

#include "elementwise/rows.h"

namespace orv {
inline namespace ORV_LEVEL {

struct Same {
    std::uint8_t one(std::uint8_t a) const { return a; }
    template <class V> ORV_INLINE V many(V a) const { return a; }
};

ORV_INLINE void copy_row(const std::uint8_t* src, std::uint8_t* dst, std::ptrdiff_t bytes)
{
    Same same;
    if constexpr (ORV_HAVE_VECTORS) run_row(dst, bytes, FromOne<std::uint8_t, Same>{src, &same});
    else std::memmove(dst, src, static_cast<std::size_t>(bytes));
}

// The same for rows that start anywhere in a cache line, as those within a border do: all stores but the
// first and the last one are aligned.
ORV_INLINE void copy_row_anywhere(const std::uint8_t* src, std::uint8_t* dst, std::ptrdiff_t bytes)
{
    using V = simd::widest<std::uint8_t>;
    if (!ORV_HAVE_VECTORS || bytes < V::N) return copy_row(src, dst, bytes);
    const V first = simd::load<V>(src), last = simd::load<V>(src + bytes - V::N);
    simd::store(dst, first);
    std::ptrdiff_t i = V::N - static_cast<std::ptrdiff_t>(reinterpret_cast<std::size_t>(dst) % V::N);
    for (; i < bytes - V::N; i += V::N) simd::store(dst + i, simd::load<V>(src + i));
    simd::store(dst + bytes - V::N, last);
}

}  // namespace ORV_LEVEL
}  // namespace orv
