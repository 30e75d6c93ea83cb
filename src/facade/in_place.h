// In-place forms made of out-of-place operations: copy the operand to a temporary, then run the
// operation from there into the caller's buffer.
//
// The temporary is one for the whole call, so that a lack of memory is met before anything is written,
// but only as large as a tile that stays in the nearest cache: a temporary of the whole image would
// cost more in page faults than most operations cost. Tiles give the same bytes as long as no row
// overlaps another one; where they do, the temporary holds everything.
#pragma once

#include "core/memory.h"
#include "image/data_movement.h"

namespace orv {

// A part of a region, and a copy of it.
struct Tile {
    void* copy;
    int copyStep;
    void* place;  // the part itself, in the caller's buffer
    int x, y;     // of its first pixel in the region
    Size size;

    // The part of another image of the call that lies below this tile.
    template <class T>
    const T* of(const T* image, int step) const
    {
        return of(const_cast<T*>(image), step);
    }
    template <class T>
    T* of(T* image, int step) const
    {
        // In integers: a null image must arrive as a null image.
        using Address = decltype(sizeof(0));
        if (image == nullptr) return nullptr;
        const Address row = static_cast<Address>(static_cast<long long>(step) * y);
        return reinterpret_cast<T*>(reinterpret_cast<Address>(image) + row) + static_cast<Address>(x) * lanes;
    }
    int lanes;  // elements of T in a pixel
};

// Runs `operation` on every tile. Its first status other than StatusOk is the result; an error ends
// the call. Width, height and step are those of srcDst, whose pixels have `lanes` elements of T.
template <class T, class Operation>
Status in_place(T* srcDst, int step, int width, int height, int lanes, Operation operation)
{
    if (srcDst == nullptr) return StatusNullPointer;
    if (width < 1 || height < 1) return StatusBadSize;

    const long long pixel_bytes = static_cast<long long>(sizeof(T)) * lanes;
    const long long row_bytes = width * pixel_bytes;
    // A temporary of the whole image would have to fit an int; hosts see the same limit either way.
    if ((row_bytes + 63) / 64 * 64 * height > 0x7FFFFFFF) return StatusNoMemory;

    constexpr int kTileBytes = 16384;
    Size tile_size = {width, height};
    const bool rows_overlap = (step < 0 ? -static_cast<long long>(step) : step) < row_bytes;
    if (!rows_overlap || height == 1) {
        const int most_columns = kTileBytes / static_cast<int>(pixel_bytes) & ~63;
        if (tile_size.width > most_columns) tile_size.width = most_columns;
        const int most_rows = kTileBytes / static_cast<int>(tile_size.width * pixel_bytes);
        if (tile_size.height > most_rows) tile_size.height = most_rows;
    }

    Tile tile = {};
    tile.lanes = lanes;
    tile.copy = orv_allocate_image(tile_size.width, tile_size.height, static_cast<int>(pixel_bytes), &tile.copyStep);
    if (tile.copy == nullptr) return StatusNoMemory;
    Status result = StatusOk;
    for (tile.y = 0; tile.y < height && result >= 0; tile.y += tile_size.height) {
        for (tile.x = 0; tile.x < width && result >= 0; tile.x += tile_size.width) {
            tile.size.width = width - tile.x < tile_size.width ? width - tile.x : tile_size.width;
            tile.size.height = height - tile.y < tile_size.height ? height - tile.y : tile_size.height;
            tile.place = tile.of(srcDst, step);
            const Size bytes = {static_cast<int>(tile.size.width * pixel_bytes), tile.size.height};
            orv_Copy_8u_C1(static_cast<const unsigned char*>(tile.place), step,
                           static_cast<unsigned char*>(tile.copy), tile.copyStep, bytes);
            const Status status = operation(tile);
            if (result == StatusOk || status < 0) result = status;
        }
    }
    orv_release(tile.copy);
    return result;
}

// For operations that refuse steps below 1: the copy would follow such a step to rows that nobody meant.
template <class T, class Operation>
Status in_place_checked(T* srcDst, int step, int width, int height, int lanes, Operation operation)
{
    return step < 1 ? StatusBadStep : in_place(srcDst, step, width, height, lanes, operation);
}

}  // namespace orv
