// The memory behind in-place forms that are made of out-of-place operations.
#pragma once

#include "core/assert.h"
#include "core/memory.h"
#include "core/sizes.h"

namespace orv {

// Room for a copy of `bytes`, or a token of it; null where the copy does not fit an int or memory has run out.
// Operations that need no copy ask for the token, so that hosts see one limit either way.
inline void* allocate_for_copy(bool whole, long long bytes)
{
    ORV_ASSERT(bytes >= 0);
    if (bytes >= kTooLarge) return nullptr;
    return orv_allocate(whole ? static_cast<int>(bytes) : 64);
}

}  // namespace orv
