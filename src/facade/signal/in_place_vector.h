// In-place forms of vector operations: a vector is an image of one row.
#pragma once

#include "facade/in_place.h"

namespace orv {

// Runs `operation(copy, place, first, length)` on every part of the vector: `copy` holds what stood at `place`,
// which begins at element `first`.
template <class T, class Operation>
Status in_place_vector(T* srcDst, int len, Operation operation)
{
    return in_place(srcDst, 0, len, 1, 1, [=](const Tile& tile) {
        return operation(static_cast<const T*>(tile.copy), static_cast<T*>(tile.place), tile.x, Length{tile.size.width});
    });
}

// The part of another vector of the call; a null one stays null.
template <class T>
const T* part(const T* vector, int first)
{
    return vector == nullptr ? nullptr : vector + first;
}

}  // namespace orv
