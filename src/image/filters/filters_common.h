// What the fixed-kernel filters share: their checks, and the division of wide images.
#pragma once

#include "core/checks.h"
#include "image/filters/filters.h"

namespace orv {
inline namespace ORV_LEVEL {

// In this order: pointers, sizes, steps, the mask.
template <class T>
ORV_INLINE Status check_filter(const T* src, int srcStep, const T* dst, int dstStep, Size roi, int mask)
{
    if (const Status bad = check_images(src, srcStep, dst, dstStep, roi)) return bad;
    if (mask != mask_3x3 && mask != mask_5x5) return StatusBadMaskSize;
    return StatusOk;
}

// body(0) to body(n - 1), each a copy of its own: what is indexed by the argument stays in registers.
template <int n, class Body>
ORV_INLINE void unrolled(Body body)
{
    if constexpr (n > 1) unrolled<n - 1>(body);
    body(n - 1);
}

// Rows of many elements are done in strips of about equal width, so that what is kept of the rows above
// stays in the nearest cache.
template <int Most>
struct Strips {
    std::ptrdiff_t total, width;
    ORV_INLINE explicit Strips(std::ptrdiff_t elements) : total(elements)
    {
        const std::ptrdiff_t count = (elements - 1) / Most + 1;
        width = ((elements - 1) / count + 16) & ~std::ptrdiff_t{15};
    }
    ORV_INLINE std::ptrdiff_t columns_at(std::ptrdiff_t x) const { return total - x < width ? total - x : width; }
};

}  // namespace ORV_LEVEL
}  // namespace orv
