// Matrices as base pointer and byte strides, and the checks that all matrix kernels share.
#pragma once

#include <cstdint>

#include "core/checks.h"
#include "core/memory.h"

namespace orv {
inline namespace ORV_LEVEL {

// A stride below 1, or one that is not a multiple of the element size (a power of two).
template <class... Strides>
ORV_INLINE bool any_bad_stride(unsigned element_bytes, Strides... strides)
{
    // A stride of zero or below shows in the top bit of itself or of its predecessor.
    const unsigned all = (static_cast<unsigned>(strides) | ...);
    const unsigned below = ((static_cast<unsigned>(strides) - 1) | ...);
    return (((all | below) >> 31) | (all & (element_bytes - 1))) != 0;
}

// Element (i, j) lies i * row + j * column bytes behind the base.
template <class T>
struct View {
    T* base;
    std::ptrdiff_t row, column;

    ORV_INLINE T* at(std::ptrdiff_t i, std::ptrdiff_t j) const
    {
        using Address = std::size_t;
        return reinterpret_cast<T*>(reinterpret_cast<Address>(base) + static_cast<Address>(i * row + j * column));
    }
    ORV_INLINE bool has_dense_rows() const { return column == sizeof(T); }
    ORV_INLINE bool has_dense_columns() const { return row == sizeof(T); }
    ORV_INLINE View transposed() const { return {base, column, row}; }
};

// May the bytes of the two lie among each other? Interleaved matrices count as overlapping.
template <class T, class U>
ORV_INLINE bool overlap(View<T> a, std::ptrdiff_t a_rows, std::ptrdiff_t a_columns, View<U> b, std::ptrdiff_t b_rows,
                        std::ptrdiff_t b_columns)
{
    const auto begin_a = reinterpret_cast<std::size_t>(a.base), begin_b = reinterpret_cast<std::size_t>(b.base);
    const auto last_a = reinterpret_cast<std::size_t>(a.at(a_rows - 1, a_columns - 1));
    const auto last_b = reinterpret_cast<std::size_t>(b.at(b_rows - 1, b_columns - 1));
    return begin_a < last_b + sizeof(U) && begin_b < last_a + sizeof(T);
}

// A dense matrix that stands in for a destination among the sources: on the stack while it is small.
template <class T>
class Substitute {
public:
    ORV_INLINE Substitute(std::ptrdiff_t rows, std::ptrdiff_t columns) : columns_(columns)
    {
        const bool small = std::int64_t{rows} * columns <= kSmall;
        const bool large = std::int64_t{rows} * columns > 0x7FFFFFFF / static_cast<int>(sizeof(T));
        if (!small && !large) heap_ = orv_allocate_checked(std::int64_t{rows} * columns * static_cast<int>(sizeof(T)));
        memory_ = small ? local_ : static_cast<T*>(heap_);
    }
    ORV_INLINE ~Substitute()
    {
        if (heap_ != nullptr) orv_release(heap_);
    }
    Substitute(const Substitute&) = delete;
    Substitute& operator=(const Substitute&) = delete;
    // The base is null when memory has run out.
    ORV_INLINE View<T> view() { return {memory_, columns_ * static_cast<std::ptrdiff_t>(sizeof(T)), sizeof(T)}; }

private:
    static constexpr int kSmall = 1024;
    alignas(32) T local_[kSmall];
    void* heap_ = nullptr;
    T* memory_;
    std::ptrdiff_t columns_;
};

}  // namespace ORV_LEVEL
}  // namespace orv
