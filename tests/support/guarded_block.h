// A block of memory that ends, or starts, at a page that cannot be touched.
#pragma once

#include <sys/mman.h>
#include <unistd.h>

#include <cstddef>
#include <cstdlib>

namespace test {

class GuardedBlock {
public:
    explicit GuardedBlock(std::size_t bytes, bool ends_at_guard = true)
    {
        const auto page = static_cast<std::size_t>(sysconf(_SC_PAGESIZE));
        const std::size_t inner = (bytes + page - 1) / page * page;
        total_ = inner + 2 * page;
        void* const p = mmap(nullptr, total_, PROT_NONE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
        if (p == MAP_FAILED) std::abort();
        base_ = static_cast<unsigned char*>(p);
        if (inner > 0 && mprotect(base_ + page, inner, PROT_READ | PROT_WRITE) != 0) std::abort();
        data_ = base_ + page + (ends_at_guard ? inner - bytes : 0);
    }
    ~GuardedBlock() { munmap(base_, total_); }
    GuardedBlock(const GuardedBlock&) = delete;
    GuardedBlock& operator=(const GuardedBlock&) = delete;

    template <class T = unsigned char>
    T* as() const { return reinterpret_cast<T*>(data_); }

private:
    unsigned char* base_;
    unsigned char* data_;
    std::size_t total_;
};

}  // namespace test
