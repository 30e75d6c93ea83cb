// Sorts that need no memory: by insertion for a few elements, by a heap where time must be bounded and nothing else
// is to be had. Elements are moved as they are; `less` is their order.
#pragma once

#include "core/checks.h"

namespace orv {
inline namespace ORV_LEVEL {

constexpr std::ptrdiff_t kFew = 16;

// Stable.
template <class T, class Less>
ORV_INLINE void sort_by_insertion(T* p, std::ptrdiff_t n, Less less)
{
    for (std::ptrdiff_t i = 1; i < n; ++i) {
        const T moving = get(p + i);
        std::ptrdiff_t at = i;
        for (; at > 0 && less(moving, get(p + at - 1)); --at) put(p + at, get(p + at - 1));
        put(p + at, moving);
    }
}

// Moves down from `at` until neither child is greater.
template <class T, class Less>
ORV_INLINE void sift(T* p, std::ptrdiff_t n, std::ptrdiff_t at, T moving, Less less)
{
    for (;;) {
        std::ptrdiff_t child = 2 * at + 1;
        if (child >= n) break;
        if (child + 1 < n && less(get(p + child), get(p + child + 1))) ++child;
        if (!less(moving, get(p + child))) break;
        put(p + at, get(p + child));
        at = child;
    }
    put(p + at, moving);
}

// R. W. Floyd, Treesort 3 (1964).
template <class T, class Less>
void sort_by_heap(T* p, std::ptrdiff_t n, Less less)
{
    for (std::ptrdiff_t i = n / 2 - 1; i >= 0; --i) sift(p, n, i, get(p + i), less);
    for (std::ptrdiff_t last = n - 1; last > 0; --last) {
        const T moving = get(p + last);
        put(p + last, get(p));
        sift(p, last, std::ptrdiff_t{0}, moving, less);
    }
}

}  // namespace ORV_LEVEL
}  // namespace orv
