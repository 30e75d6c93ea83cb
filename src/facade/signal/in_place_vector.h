// In-place forms of vector operations: see in_place.h. A copy of a vector is as long as the vector, without padding.
#pragma once

#include "core/operation.h"
#include "facade/temporary.h"

namespace orv {

// Runs `operation(copy, place, length)`; `copy` holds what stands at `place`, or is that itself.
// `always_copy` is for operations whose elements depend on others.
template <class T, class Operation>
Status in_place_vector(T* srcDst, int len, Operation operation, bool always_copy = false)
{
    if (srcDst == nullptr) return StatusNullPointer;
    if (len < 1) return StatusBadSize;

    const long long bytes = size_product(len, sizeof(T));
    void* const memory = allocate_for_copy(always_copy, bytes);
    if (memory == nullptr) return StatusNoMemory;
    if (always_copy) __builtin_memcpy(memory, srcDst, static_cast<decltype(sizeof(0))>(bytes));
    const T* const copy = always_copy ? static_cast<const T*>(memory) : srcDst;
    const Status status = operation(copy, srcDst, Length{len});
    orv_release(memory);
    return status;
}

}  // namespace orv
