// Rows of many elements are done in strips of about equal width, so that what is kept of the rows above
// stays in the nearest cache.
#pragma once

#include <cstddef>

#include "core/level.h"

namespace orv {
inline namespace ORV_LEVEL {

struct Strips {
    std::ptrdiff_t total, width;

    // Of `most` elements or a little more; a multiple of `unit`, a power of two.
    ORV_INLINE Strips(std::ptrdiff_t elements, std::ptrdiff_t most, std::ptrdiff_t unit = 16) : total(elements)
    {
        const std::ptrdiff_t count = (elements - 1) / most + 1;
        width = ((elements - 1) / count + unit) & ~(unit - 1);
    }
    ORV_INLINE std::ptrdiff_t columns_at(std::ptrdiff_t x) const { return total - x < width ? total - x : width; }
};

}  // namespace ORV_LEVEL
}  // namespace orv
