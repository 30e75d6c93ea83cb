#include "core/memory.h"

#include <cstdint>
#include <cstdlib>

namespace orv {
namespace {

constexpr std::uintptr_t kAlignment = 64;
// The word below the aligned address keeps the address that the allocation returned.
constexpr std::uintptr_t kHeader = sizeof(void*);

constexpr int wrapped_product(int a, int b)
{
    return static_cast<int>(static_cast<unsigned>(a) * static_cast<unsigned>(b));
}

}  // namespace

extern "C" {

orv_MemoryFunctions orv_memory_functions = {std::malloc, std::calloc, std::realloc, std::free};

void* orv_allocate(int bytes)
{
    if (bytes < 1) return nullptr;
    const std::size_t request = static_cast<std::size_t>(bytes) + kHeader + kAlignment;
    void* const raw = orv_memory_functions.allocate(request);
    if (raw == nullptr) return nullptr;
    const std::uintptr_t address = reinterpret_cast<std::uintptr_t>(raw);
    const std::uintptr_t aligned = (address + kHeader + kAlignment - 1) & ~(kAlignment - 1);
    void** const block = reinterpret_cast<void**>(aligned);
    block[-1] = raw;
    return block;
}

void orv_release(void* aligned)
{
    if (aligned != nullptr) orv_memory_functions.release(static_cast<void**>(aligned)[-1]);
}

void* orv_allocate_image(int width, int height, int pixel_bytes, int* step)
{
    if (step == nullptr) return nullptr;
    if (width < 1 || height < 1) {
        *step = 0;
        return nullptr;
    }
    const unsigned row = static_cast<unsigned>(wrapped_product(width, pixel_bytes));
    *step = static_cast<int>((row + 63u) & ~63u);
    return orv_allocate(wrapped_product(height, *step));
}

void* orv_allocate_vector(int length, int element_bytes)
{
    if (length < 1) return nullptr;
    return orv_allocate(wrapped_product(length, element_bytes));
}

void* orv_allocate_checked(long long bytes)
{
    if (bytes > INT32_MAX) return nullptr;
    return orv_allocate(static_cast<int>(bytes));
}

}  // extern "C"

}  // namespace orv
