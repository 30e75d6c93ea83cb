// The checks of rank filters: pointers, sizes, steps.
#pragma once

#include "core/checks.h"

namespace orv {
inline namespace ORV_LEVEL {

ORV_INLINE Status check_rank(const void* src, int srcStep, const void* dst, int dstStep, Size roi)
{
    if (const Status bad = check_image(roi, src, dst)) return bad;
    return any_below_one(srcStep, dstStep) ? StatusBadStep : StatusOk;
}

}  // namespace ORV_LEVEL
}  // namespace orv
