// What both convolutions share: checks, where the kernel meets the source, and the division of wide images.
#pragma once

#include "core/checks.h"
#include "core/memory.h"
#include "image/filters/strips.h"

namespace orv {
inline namespace ORV_LEVEL {

// In this order: pointers, sizes, steps, the kernel.
template <class From, class To, class Weight>
ORV_INLINE Status check_convolution(const From* src, int srcStep, const To* dst, int dstStep, Size roi,
                                    const Weight* kernel, int width, int height, int anchorX, int anchorY)
{
    if (any_null(kernel)) return StatusNullPointer;
    if (const Status bad = check_images(src, srcStep, dst, dstStep, roi)) return bad;
    if (width < 1 || width > kMostMaskSide || height < 1 || height > kMostMaskSide) return StatusBadMaskSize;
    if (anchorX < 0 || anchorX >= width || anchorY < 0 || anchorY >= height) return StatusBadMaskSize;
    return StatusOk;
}

// The kernel, turned by a half, meets the source from its frame's first pixel on: element i of row y of the result is
// the sum of weight(r, c) times element i + c * channels of row y + r.
template <class From, class To, class Weight>
struct Convolution {
    const From* first;
    int srcStep;
    To* dst;
    int dstStep;
    Size roi;
    int channels;
    const Weight* kernel;
    int width, height;  // of the kernel

    ORV_INLINE Convolution(const From* src, int srcRowStep, To* to, int dstRowStep, Size size, int pixel,
                           const Weight* weights, int columns, int rows, int anchorX, int anchorY)
        : first(row_at(src, srcRowStep, anchorY - (rows - 1)) + std::ptrdiff_t{anchorX - (columns - 1)} * pixel),
          srcStep(srcRowStep), dst(to), dstStep(dstRowStep), roi(size), channels(pixel), kernel(weights),
          width(columns), height(rows)
    {
    }
    ORV_INLINE const Weight* weight(int r, int c) const { return kernel + (width * height - 1 - (r * width + c)); }
    ORV_INLINE std::ptrdiff_t elements() const { return std::ptrdiff_t{roi.width} * channels; }
    ORV_INLINE std::ptrdiff_t frame() const { return std::ptrdiff_t{width - 1} * channels; }
    ORV_INLINE std::ptrdiff_t last_row() const { return std::ptrdiff_t{roi.height} + height - 2; }  // of the source
    ORV_INLINE const From* source(std::ptrdiff_t y) const { return row_at(first, srcStep, y); }
    ORV_INLINE To* result(std::ptrdiff_t y) const { return row_at(dst, dstStep, y); }
};

// All working memory of a call in one block: laid out once to learn its size and once more in place.
class WorkingMemory {
public:
    ORV_INLINE explicit WorkingMemory(void* block) : block_(static_cast<char*>(block)), used_(0) {}
    template <class T>
    ORV_INLINE T* take(std::ptrdiff_t count)
    {
        char* const place = block_ == nullptr ? nullptr : block_ + used_;
        used_ += (count * static_cast<std::ptrdiff_t>(sizeof(T)) + 63) / 64 * 64;
        return reinterpret_cast<T*>(place);
    }
    ORV_INLINE std::ptrdiff_t used() const { return used_; }

private:
    char* block_;
    std::ptrdiff_t used_;
};

// A block for everything that layout(memory) takes, then run().
template <class Layout, class Run>
ORV_INLINE Status with_memory(Layout layout, Run run)
{
    WorkingMemory measured(nullptr);
    layout(measured);
    void* const block = orv_allocate_checked(measured.used());
    if (block == nullptr) return StatusNoMemory;
    WorkingMemory memory(block);
    layout(memory);
    run();
    orv_release(block);
    return StatusOk;
}

// The rows that a kernel spans have so many bytes for each column.
ORV_INLINE Strips convolution_strips(std::ptrdiff_t elements, std::ptrdiff_t bytes_per_column)
{
    constexpr std::ptrdiff_t cache = 24576, least = 256, most = 4096;
    const std::ptrdiff_t fit = cache / bytes_per_column;
    return Strips(elements, fit < least ? least : fit > most ? most : fit, 64);
}

// block(x, above, below) makes `size` results in each of two rows; blocks cover n, the last one perhaps over its
// neighbour; fewer results go by way of a block of their own. Where there is only one row, both are it, and a block
// writes the upper one last.
template <int size, class To, class Block>
ORV_INLINE void in_blocks(To* above, To* below, std::ptrdiff_t n, Block block)
{
    if (n < size) {
        To all[2][size];
        block(std::ptrdiff_t{0}, all[0], all[1]);
        __builtin_memcpy(below, all[1], static_cast<std::size_t>(n) * sizeof(To));
        __builtin_memcpy(above, all[0], static_cast<std::size_t>(n) * sizeof(To));
        return;
    }
    std::ptrdiff_t x = 0;
    for (; x < n - size; x += size) block(x, above + x, below + x);
    block(n - size, above + (n - size), below + (n - size));
}

}  // namespace ORV_LEVEL
}  // namespace orv
