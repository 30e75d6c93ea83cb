// In-place forms of vector operations: a vector is an image of one row.
#pragma once

#include "facade/in_place.h"

namespace orv {

// Runs `operation(copy, place, length)`; `copy` holds what stands at `place`, or is that itself.
template <class T, class Operation>
Status in_place_vector(T* srcDst, int len, Operation operation)
{
    return in_place(srcDst, 0, len, 1, 1, [=](const auto& tile) {
        return operation(tile.src, srcDst, Length{len});
    });
}

}  // namespace orv
