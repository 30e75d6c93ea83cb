// Matrices as base pointer and byte strides, and the checks that all matrix kernels share.
#pragma once

#include <cstdint>

#include "core/checks.h"
#include "core/memory.h"
#include "core/sizes.h"

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

template <class T>
ORV_INLINE std::uint64_t first_byte(View<T> v)
{
    return reinterpret_cast<std::size_t>(v.base);
}

// The bytes from the first to the last, at most 2^63: sizes and strides are positive ints. In 64 bits everywhere, as
// sizes may be too large for the memory that there is.
template <class T>
ORV_INLINE std::uint64_t extent(View<T> v, std::ptrdiff_t rows, std::ptrdiff_t columns)
{
    const auto bytes = [](std::ptrdiff_t count, std::ptrdiff_t stride) {
        return static_cast<std::uint64_t>(count) * static_cast<std::uint64_t>(stride);
    };
    return bytes(rows - 1, v.row) + bytes(columns - 1, v.column) + sizeof(T);
}

// May the bytes of the two lie among each other? Interleaved matrices count as overlapping.
template <class T, class U>
ORV_INLINE bool overlap(View<T> a, std::ptrdiff_t a_rows, std::ptrdiff_t a_columns, View<U> b, std::ptrdiff_t b_rows,
                        std::ptrdiff_t b_columns)
{
    const auto begin_a = first_byte(a), begin_b = first_byte(b);
    return begin_a < begin_b + extent(b, b_rows, b_columns) && begin_b < begin_a + extent(a, a_rows, a_columns);
}

// A dense matrix that stands in for a destination among the sources: on the stack while it is small.
template <class T>
class Substitute {
public:
    ORV_INLINE Substitute(std::ptrdiff_t rows, std::ptrdiff_t columns) : columns_(columns)
    {
        const bool small = size_product(rows, columns) <= kSmall;
        if (!small) heap_ = orv_allocate_checked(size_product(rows, columns, sizeof(T)));
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
