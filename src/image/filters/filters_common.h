// What the fixed-kernel filters share: their checks, and loops without an index.
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

}  // namespace ORV_LEVEL
}  // namespace orv
