// Memory with pages that cannot be touched. In fuzz targets AddressSanitizer guards them: it is much quicker.
#pragma once

#include <cstddef>
#include <cstdlib>

#if defined(ORVANE_FUZZ)
#include <sanitizer/asan_interface.h>
#elif defined(_WIN32)
#define WIN32_LEAN_AND_MEAN
#include <windows.h>
#undef far
#undef near
#else
#include <sys/mman.h>
#endif

namespace test {

#if defined(ORVANE_FUZZ)
inline unsigned char* reserve_pages(std::size_t bytes)
{
    void* const p = std::aligned_alloc(64, bytes);
    __asan_poison_memory_region(p, bytes);
    return static_cast<unsigned char*>(p);
}
inline void open_pages(unsigned char* p, std::size_t bytes) { __asan_unpoison_memory_region(p, bytes); }
inline void release_pages(unsigned char* p, std::size_t) { std::free(p); }
#else
// Address space without access, page by page.
inline unsigned char* reserve_pages(std::size_t bytes)
{
#if defined(_WIN32)
    void* const p = VirtualAlloc(nullptr, bytes, MEM_RESERVE, PAGE_NOACCESS);
    if (p == nullptr) std::abort();
#else
    void* const p = mmap(nullptr, bytes, PROT_NONE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
    if (p == MAP_FAILED) std::abort();
#endif
    return static_cast<unsigned char*>(p);
}

inline void open_pages(unsigned char* p, std::size_t bytes)
{
#if defined(_WIN32)
    if (VirtualAlloc(p, bytes, MEM_COMMIT, PAGE_READWRITE) == nullptr) std::abort();
#else
    if (mprotect(p, bytes, PROT_READ | PROT_WRITE) != 0) std::abort();
#endif
}

inline void release_pages(unsigned char* p, std::size_t bytes)
{
#if defined(_WIN32)
    static_cast<void>(bytes);
    VirtualFree(p, 0, MEM_RELEASE);
#else
    munmap(p, bytes);
#endif
}
#endif

}  // namespace test
