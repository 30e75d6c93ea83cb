// A block of memory that ends, or starts, at a page that cannot be touched.
#pragma once

#include <cstddef>

#include "support/pages.h"

namespace test {

class GuardedBlock {
public:
    explicit GuardedBlock(std::size_t bytes, bool ends_at_guard = true)
    {
        constexpr std::size_t page = 4096;
        const std::size_t inner = (bytes + page - 1) / page * page;
        total_ = inner + 2 * page;
        base_ = reserve_pages(total_);
        if (inner > 0) open_pages(base_ + page, inner);
        data_ = base_ + page + (ends_at_guard ? inner - bytes : 0);
    }
    ~GuardedBlock() { release_pages(base_, total_); }
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
