// Rows of pixels of 3 or 4 bytes, several at a time.
//
// An operation has
//     void one(const uint8_t* src, uint8_t* dst)    a pixel: its meaning, on scalars
// and where the level has byte shuffles
//     static constexpr int kPixels                  how many block() takes
//     void block(const uint8_t* src, uint8_t* dst)  as many pixels; reads all of them before it writes
// The rest of a row is done as a block in small buffers.
#pragma once

#include <cstdint>

#include "core/rows.h"
#include "core/simd/vec.h"

namespace orv {
inline namespace ORV_LEVEL {

template <int From, int To, class Op>
ORV_INLINE void pixel_row(const std::uint8_t* src, std::uint8_t* dst, std::ptrdiff_t n, const Op& op)
{
#if 0
    constexpr int N = Op::kPixels;
    for (; n >= N; n -= N, src += N * From, dst += N * To) op.block(src, dst);
    if (n == 0) return;
    std::uint8_t in[N * From], out[N * To];
    __builtin_memcpy(in, src, static_cast<std::size_t>(n * From));
    __builtin_memcpy(out, dst, static_cast<std::size_t>(n * To));  // of four channels one may stay
    op.block(in, out);
    __builtin_memcpy(dst, out, static_cast<std::size_t>(n * To));
#else
    for (; n > 0; --n, src += From, dst += To) op.one(src, dst);
#endif
}

// Source and destination with as many channels.
template <int Channels, class Op>
inline void pixel_plane(const std::uint8_t* src, int srcStep, std::uint8_t* dst, int dstStep, Size roi, const Op& op)
{
    const Rows rows(roi, Channels, 1, srcStep, dstStep);
    for (int y = 0; y < rows.count; ++y) {
        pixel_row<Channels, Channels>(row_at(src, srcStep, y), row_at(dst, dstStep, y), rows.n / Channels, op);
    }
}

}  // namespace ORV_LEVEL
}  // namespace orv
