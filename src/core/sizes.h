// Products of sizes that callers chose. Two ints multiply to less than 2^62, but the bytes of a pixel on top
// of them, or the padding of a row, pass 2^63: a wrapped product then looks like a small buffer.
#pragma once

#include "core/assert.h"

namespace orv {

// What every size that is too large for a buffer counts as; orv_allocate_checked() refuses it.
static constexpr long long kTooLarge = 0x80000000LL;

// Functions of a translation unit's own: kernel sources must not share any, and these use no instruction
// that a level has or lacks.
#define ORV_SIZE static constexpr inline __attribute__((always_inline))

ORV_SIZE long long size_product(long long factor)
{
    ORV_ASSERT(factor >= 0);
    return factor < kTooLarge ? factor : kTooLarge;
}

// The product of factors that are not negative. Once it or a factor is too large for an int it is kTooLarge
// (0 where another factor is 0), so that no step of it can wrap.
template <class... Factors>
ORV_SIZE long long size_product(long long first, Factors... others)
{
    return size_product(size_product(first) * size_product(static_cast<long long>(others)...));
}

// `bytes`, padded to a multiple of the 64 bytes on which buffers and their rows begin.
ORV_SIZE long long padded_to_lines(long long bytes) { return size_product((size_product(bytes) + 63) / 64 * 64); }

#undef ORV_SIZE

}  // namespace orv
