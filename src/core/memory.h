// The aligned allocator behind the exported buffers and every temporary of the library.
#pragma once

namespace orv {

extern "C" {

// Where memory comes from. Initially the C runtime's functions; tests put failing ones in.
struct orv_MemoryFunctions {
    void* (*allocate)(decltype(sizeof(0)) bytes);
    void* (*allocate_zeroed)(decltype(sizeof(0)) count, decltype(sizeof(0)) bytes);
    void* (*resize)(void* block, decltype(sizeof(0)) bytes);
    void (*release)(void* block);
};
extern orv_MemoryFunctions orv_memory_functions;

// `bytes` on a 64-byte boundary, or null for a count below 1 or when memory runs out.
void* orv_allocate(int bytes);

// Releases what orv_allocate() returned; does nothing for null.
void orv_release(void* aligned);

// Rows of `width` pixels, each padded to a multiple of 64 bytes, which *step receives (0 for a size
// below 1). The products wrap in 32 bits, unchecked: the exported allocators promise that.
void* orv_allocate_image(int width, int height, int pixel_bytes, int* step);

// `length` elements; the product wraps in 32 bits, unchecked.
void* orv_allocate_vector(int length, int element_bytes);

// A size of the library's own making: null, too, when `bytes` is above what an int can hold.
void* orv_allocate_checked(long long bytes);

}  // extern "C"

}  // namespace orv
