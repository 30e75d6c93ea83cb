// Sorting of vectors: ascending and descending, with and without places.
#include "signal/sorting.h"

#include <cstdint>

#include "core/checks.h"
#include "signal/sort_elements.h"
#include "signal/sort_places.h"

namespace orv {
namespace sorting {
namespace ORV_LEVEL {
namespace {

template <bool falling, class T>
Status sort_vector(T* srcDst, Length len)
{
    if (const Status bad = check_vector(len, srcDst)) return bad;
    sort_elements<falling>(srcDst, len.count);
    return StatusOk;
}

template <bool falling, class T>
Status sort_indexed(T* srcDst, int* index, Length len)
{
    if (const Status bad = check_vector(len, srcDst, index)) return bad;
    return sort_with_places<falling>(srcDst, index, len.count);
}

}  // namespace

// --- Kernels --------------------------------------------------------------------------------------

#define SORT(type, T)                                                                                             \
    Status SortAscend_##type##_I(T* srcDst, Length len) { return sort_vector<false>(srcDst, len); }               \
    Status SortDescend_##type##_I(T* srcDst, Length len) { return sort_vector<true>(srcDst, len); }               \
    Status SortIndxAscend_##type##_I(T* p, int* index, Length len) { return sort_indexed<false>(p, index, len); } \
    Status SortIndxDescend_##type##_I(T* p, int* index, Length len) { return sort_indexed<true>(p, index, len); }

SORT(8u, std::uint8_t)
SORT(16u, std::uint16_t)
SORT(32s, int)
SORT(32f, float)
SORT(64f, double)
#undef SORT

}  // namespace ORV_LEVEL
}  // namespace sorting
}  // namespace orv
