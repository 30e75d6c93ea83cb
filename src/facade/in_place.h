// In-place forms made of out-of-place operations.
//
// Their contract is that of a call on a temporary copy of the image: a lack of memory is met before
// anything is written, and every pixel is computed from the image as it was. Element-wise operations may
// have one buffer as source and destination, so as long as no row overlaps another nothing needs to be
// copied; the block that is then asked for, and refused when there is none, is a small one.
#pragma once

#include "facade/temporary.h"
#include "image/moving/data_movement.h"

namespace orv {

// Source and destination of an in-place call: the caller's image or its copy, and the caller's image.
template <class T>
struct Tile {
    const T* src;
    int srcStep;
    T* dst;
    int dstStep;
    Size size;
};

inline bool rows_overlap(int step, int height, long long row_bytes)
{
    return height > 1 && (step < 0 ? -static_cast<long long>(step) : step) < row_bytes;
}

// Runs `operation` from srcDst, or a copy of it, into srcDst, whose pixels have `lanes` elements of T.
// `always_copy` is for operations that cannot have one buffer as source and destination.
template <class T, class Operation>
Status in_place(T* srcDst, int step, int width, int height, int lanes, Operation operation, bool always_copy = false)
{
    if (srcDst == nullptr) return StatusNullPointer;
    if (width < 1 || height < 1) return StatusBadSize;

    const long long pixel_bytes = static_cast<long long>(sizeof(T)) * lanes;
    const bool needs_copy = always_copy || rows_overlap(step, height, width * pixel_bytes);
    Tile<T> tile = {srcDst, step, srcDst, step, {width, height}};
    const long long copy_step = padded_to_lines(width * pixel_bytes);
    void* const memory = allocate_for_copy(needs_copy, size_product(copy_step, height));
    if (memory == nullptr) return StatusNoMemory;
    if (needs_copy) {
        tile.srcStep = static_cast<int>(copy_step);
        const Size bytes = {static_cast<int>(width * pixel_bytes), height};
        orv_Copy_8u_C1(reinterpret_cast<const unsigned char*>(srcDst), step, static_cast<unsigned char*>(memory),
                       tile.srcStep, bytes);
        tile.src = static_cast<const T*>(memory);
    }
    const Status status = operation(tile);
    orv_release(memory);
    return status;
}

// For operations that refuse steps below 1: the copy would follow such a step to rows that nobody meant.
template <class T, class Operation>
Status in_place_checked(T* srcDst, int step, int width, int height, int lanes, Operation operation)
{
    return step < 1 ? StatusBadStep : in_place(srcDst, step, width, height, lanes, operation);
}

}  // namespace orv
