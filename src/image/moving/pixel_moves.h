// Rows of pixels picked from a source row by index: nearest neighbours.
#pragma once

#include <cstdint>

#include "core/checks.h"
#include "simd/shuffles.h"
#include "simd/vec.h"
#include "image/resize/resize_layout.h"

namespace orv {
inline namespace ORV_LEVEL {

// Picks pixel index[x] of the row for each x; the indices ascend. With byte shuffles, blocks of pixels that
// fill 16 bytes are picked from one window of 16 bytes of the source, or from two: that is enough until
// pixels are reduced to about a half.
template <class T, int Channels>
class PixelPicker {
public:
    static constexpr int kPixelBytes = Channels * static_cast<int>(sizeof(T));
    // Pixels of 32 bits come from windows of 256 bits where there are such.
    static constexpr bool kWords = ORV_HAVE_INT256 && kPixelBytes == 4;
    static constexpr int kWindow = kWords ? 32 : 16;       // bytes
    static constexpr int kBlock = kWindow / kPixelBytes;  // pixels
    static constexpr int kBlockBytes = kBlock * kPixelBytes;

    static constexpr std::int64_t block_count(std::int64_t width) { return (width + kBlock - 1) / kBlock; }

    struct Block {
        std::uint8_t from[2][16];  // per destination byte; 0x80 for none. Words: one index of 32 bits per pixel
        std::int64_t start[2];  // in bytes: no int counts those of the longest rows
    };

    ORV_INLINE PixelPicker(const int* index, int width, int source_width, Block* blocks)
        : index_(index), width_(width), blocks_(blocks)
    {
        windows_ = ORV_HAVE_BYTE_SHUFFLE ? make_blocks(std::int64_t{source_width} * kPixelBytes) : 0;
    }

    ORV_INLINE void pick(const T* src, T* dst) const
    {
        const char* const from = reinterpret_cast<const char*>(src);
        char* const to = reinterpret_cast<char*>(dst);
        if constexpr (kWords) {
            if (windows_ == 1) return pick_words<1>(from, to);
            if (windows_ == 2) return pick_words<2>(from, to);
        } else if constexpr (ORV_HAVE_BYTE_SHUFFLE) {
            if (windows_ == 1) return pick_blocks<1>(from, to);
            if (windows_ == 2) return pick_blocks<2>(from, to);
        }
        for (std::ptrdiff_t x = 0; x < width_; ++x) {
            __builtin_memcpy(to + x * kPixelBytes, from + std::ptrdiff_t{index_[x]} * kPixelBytes, kPixelBytes);
        }
    }

private:
    // The first pixel of a block: the last block ends with the row.
    ORV_INLINE int first_of(std::int64_t block) const
    {
        const std::int64_t first = block * kBlock;
        return static_cast<int>(first + kBlock <= width_ ? first : width_ - kBlock);
    }

    // How many windows the blocks need; 0 if two are not enough or a row has less than one.
    ORV_INLINE int make_blocks(std::int64_t row_bytes)
    {
        if (width_ < kBlock || row_bytes < kWindow) return 0;
        int windows = 1;
        for (std::int64_t b = 0; b < block_count(width_); ++b) {
            Block& block = blocks_[b];
            const int x = first_of(b);
            const std::int64_t last_start = row_bytes - kWindow;
            std::int64_t start = std::int64_t{index_[x]} * kPixelBytes;
            if (start > last_start) start = last_start;
            const std::int64_t next = start + kWindow > last_start ? last_start : start + kWindow;
            block.start[0] = start;
            block.start[1] = next;
            __builtin_memset(block.from, 0x80, sizeof(block.from));
            for (int i = 0; i < kBlock; ++i) {
                const std::int64_t at = std::int64_t{index_[x + i]} * kPixelBytes - start;
                if (at > 2 * kWindow - kPixelBytes) return 0;
                if (at > kWindow - kPixelBytes) windows = 2;
                if constexpr (kWords) {
                    // A permutation sees the low three bits; the top bit says which window it is.
                    const int word = static_cast<int>(at < kWindow ? at : start + at - next) / 4;
                    const unsigned entry = static_cast<unsigned>(word) | (at < kWindow ? 0 : 0x80000000u);
                    __builtin_memcpy(&block.from[0][0] + 4 * i, &entry, 4);
                    continue;
                }
                for (int k = 0; k < kPixelBytes; ++k) {
                    const int byte = static_cast<int>(at) + k;
                    if (byte < 16) block.from[0][i * kPixelBytes + k] = static_cast<std::uint8_t>(byte);
                    else block.from[1][i * kPixelBytes + k] = static_cast<std::uint8_t>(start + byte - next);
                }
            }
        }
        return windows;
    }

    template <int Windows>
    ORV_INLINE void pick_words(const char* from, char* to) const
    {
        const auto picked_words = [&](const Block& block) {
            using V = simd::widest<std::int32_t>;
            const auto load = [](const void* p) { return simd::load<V>(static_cast<const std::int32_t*>(p)); };
            const V index = load(block.from), first = permuted(load(from + block.start[0]), index);
            if constexpr (Windows == 1) return first;
            return select_by_sign(index, permuted(load(from + block.start[1]), index), first);
        };
        const auto store = [to](std::ptrdiff_t at, const auto& words) {
            simd::store(reinterpret_cast<std::int32_t*>(to + at), words);
        };
        const std::int64_t last = block_count(width_) - 1;
        const Block* const blocks = blocks_;
        for (std::int64_t b = 0; b < last; ++b) {
            store(static_cast<std::ptrdiff_t>(b) * kBlockBytes, picked_words(blocks[b]));
        }
        store(std::ptrdiff_t{first_of(last)} * kPixelBytes, picked_words(blocks[last]));
    }

    template <int Windows>
    static ORV_INLINE simd::half<std::uint8_t> picked(const Block& block, const char* from)
    {
        using V = simd::half<std::uint8_t>;
        const std::uint8_t* const bytes = reinterpret_cast<const std::uint8_t*>(from);
        const V first = simd::shuffle_bytes(simd::load<V>(bytes + block.start[0]), simd::load<V>(block.from[0]));
        if constexpr (Windows == 1) return first;
        return first | simd::shuffle_bytes(simd::load<V>(bytes + block.start[1]), simd::load<V>(block.from[1]));
    }

    // Blocks of 15 bytes are stored with one byte more, which the block after them sets right.
    template <int Windows>
    ORV_INLINE void pick_blocks(const char* from, char* to) const
    {
        const std::int64_t last = block_count(width_) - 1;
        const Block* const blocks = blocks_;
        std::ptrdiff_t at = 0;
        for (std::int64_t b = 0; b < last; ++b, at += kBlockBytes) {
            simd::store(reinterpret_cast<std::uint8_t*>(to + at), picked<Windows>(blocks[b], from));
        }
        std::uint8_t bytes[16];
        simd::store(bytes, picked<Windows>(blocks[last], from));
        __builtin_memcpy(to + std::ptrdiff_t{first_of(last)} * kPixelBytes, bytes, kBlockBytes);
    }

    const int* index_;
    int width_;
    Block* blocks_;
    int windows_;
};

// The work buffer for rows of `width` pixels of any supported type. Of those with one channel, the widest
// need the most blocks. Wider windows, where there are any, need fewer.
inline std::int64_t picker_bytes(std::int64_t width, int channels)
{
    using Single = PixelPicker<std::uint32_t, 1>;
    using Triple = PixelPicker<std::uint8_t, 3>;
    using Quadruple = PixelPicker<std::uint8_t, 4>;
    const std::int64_t blocks = channels == 1   ? Single::block_count(width)
                                : channels == 3 ? Triple::block_count(width)
                                                : Quadruple::block_count(width);
    Parts parts(nullptr);
    parts.take<Single::Block>(blocks);
    return parts.bytes();
}

}  // namespace ORV_LEVEL
}  // namespace orv
