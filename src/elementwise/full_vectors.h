// The loop over a row of at least one vector: full vectors from its start, and one that ends with the row.
//
// That last one overlaps its neighbour, so it is computed before anything is stored: a call whose source and
// destination are the same buffer must not see its own results.
#pragma once

#include <cstddef>

#include "core/assert.h"
#include "core/level.h"

namespace orv {
inline namespace ORV_LEVEL {

// at(i) computes what belongs at position i, N elements; store(i, value) puts it there. `others` does so for all
// vectors before the last one, and gets where that begins.
template <std::ptrdiff_t N, class At, class Store, class Others>
ORV_INLINE void full_vectors(std::ptrdiff_t n, At at, Store store, Others others)
{
    ORV_ASSERT(n >= N);
    const auto last = at(n - N);
    others(n - N);
    store(n - N, last);
}
template <std::ptrdiff_t N, class At, class Store>
ORV_INLINE void full_vectors(std::ptrdiff_t n, At at, Store store)
{
    full_vectors<N>(n, at, store, [=](std::ptrdiff_t end) __attribute__((always_inline)) {
        for (std::ptrdiff_t i = 0; i < end; i += N) store(i, at(i));
    });
}

// How many vectors an operation takes in a round of its loop. What is not kOne it says by a member kPace.
enum class Pace {
    kOne,
    kTwo,       // operations of one instruction: counting would cost them a quarter of their speed
    kTogether,  // two sources, and simd::twice<V> many(const V (&a)[2], const V (&b)[2]) sees two vectors of each
};
template <class Op, class = void>
constexpr Pace pace = Pace::kOne;
template <class Op>
constexpr Pace pace<Op, decltype(void(Op::kPace))> = Op::kPace;

}  // namespace ORV_LEVEL
}  // namespace orv
