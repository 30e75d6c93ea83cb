// Rows of pixels of 3 or 4 bytes, several at a time.
//
// An operation has
//     void one(const uint8_t* src, uint8_t* dst)    a pixel: its meaning, on scalars
// and where the level has byte shuffles
//     template <class From> Bytes many(Bytes pixels)   four pixels in each 16 bytes, which stand as From has it
//     static constexpr int place(int channel, int pixel)   where many() leaves them
#pragma once

#include <cstdint>

#include "elementwise/rows.h"
#include "simd/pixels.h"
#include "simd/reductions.h"

namespace orv {
inline namespace ORV_LEVEL {

#if ORV_HAVE_BYTE_SHUFFLE
using Bytes = simd::widest<std::uint8_t>;
using Words = simd::widest<std::int16_t>;
using UnsignedWords = simd::widest<std::uint16_t>;
using Ints = simd::widest<std::int32_t>;

// Which byte of 16 goes to each place; kNone for a zero.
constexpr int kNone = 0x80;
struct Picks {
    std::uint8_t from[16];
};
template <class Place>
constexpr Picks make_picks(Place place)
{
    Picks p = {};
    for (int b = 0; b < 16; ++b) p.from[b] = static_cast<std::uint8_t>(place(b));
    return p;
}
ORV_INLINE Bytes shuffled(Bytes a, const Picks& p)
{
    return simd::shuffle_bytes(a, simd::load_repeated<Bytes>(p.from));
}

// 32-bit lanes of three channels as bytes: four of the first, of the second, of the third.
ORV_INLINE Bytes packed_channels(Ints first, Ints second, Ints third)
{
    const Words low = simd::narrow(simd::pair<Ints>{first, second}),
                high = simd::narrow(simd::pair<Ints>{third, third});
    return simd::narrow(simd::pair<UnsignedWords>{simd::as<std::uint16_t>(low), simd::as<std::uint16_t>(high)});
}

// Pixels of `Stride` bytes from byte `First` on.
template <int Stride, int First>
struct Interleaved {
    static constexpr int at(int channel, int pixel) { return First + Stride * pixel + channel; }
};

// What many() left, as packed pixels of three channels with a gap of four bytes before byte 4 `Group`: so that groups
// of 12 bytes join by taking bytes from two of them.
template <class Op, int Group>
struct Packed {
    static constexpr int source(int b)
    {
        if (b >= 4 * Group && b < 4 * Group + 4) return kNone;
        const int byte = b < 4 * Group ? b : b - 4;
        return Op::place(byte % 3, byte / 3);
    }
    static constexpr Picks picks = make_picks(source);
};
// The same as pixels of four channels with nothing in the fourth.
template <class Op>
struct Spread {
    static constexpr int source(int b) { return b % 4 == 3 ? kNone : Op::place(b % 4, b / 4); }
    static constexpr Picks picks = make_picks(source);
};

// Sixteen pixels of three bytes in 48, as often as there are 16 bytes in a register. Groups of four pixels begin every
// 12 bytes; the last one is fetched with the four bytes before it, not behind it.
template <class Op>
ORV_INLINE void block_of(const Op& op, const std::uint8_t* src, std::uint8_t* dst, Interleaved<3, 0>)
{
    using simd::load_parts;
    const Bytes a = shuffled(op.template many<Interleaved<3, 0>>(load_parts<Bytes, 48>(src)), Packed<Op, 0>::picks);
    const Bytes b =
        shuffled(op.template many<Interleaved<3, 0>>(load_parts<Bytes, 48>(src + 12)), Packed<Op, 1>::picks);
    const Bytes c =
        shuffled(op.template many<Interleaved<3, 0>>(load_parts<Bytes, 48>(src + 24)), Packed<Op, 2>::picks);
    const Bytes d =
        shuffled(op.template many<Interleaved<3, 4>>(load_parts<Bytes, 48>(src + 32)), Packed<Op, 3>::picks);
    simd::store_parts<48>(dst, simd::joined<4>(a, b));
    simd::store_parts<48>(dst + 16, simd::joined<8>(b, c));
    simd::store_parts<48>(dst + 32, simd::joined<12>(c, d));
}
// Pixels of four bytes: the fourth one stays.
template <class Op>
ORV_INLINE void block_of(const Op& op, const std::uint8_t* src, std::uint8_t* dst, Interleaved<4, 0>)
{
    const Bytes result = shuffled(op.template many<Interleaved<4, 0>>(simd::load<Bytes>(src)), Spread<Op>::picks);
    const Bytes alpha = simd::as<std::uint8_t>(simd::splat<simd::widest<std::uint32_t>>(0xFF000000));
    simd::store(dst, result | (simd::load<Bytes>(dst) & alpha));
}
#endif

// block(from, to) for each N pixels, of From elements in the source and To in the destination. The rest is a block in
// small buffers, which hold the destination, too: a block may leave some of it.
template <int N, int From, int To, class S, class D, class Block>
ORV_INLINE void blocks_of_pixels(const S* src, D* dst, std::ptrdiff_t n, Block block)
{
    for (; n >= N; n -= N, src += N * From, dst += N * To) block(src, dst);
    if (n == 0) return;
    S in[N * From] = {};
    D out[N * To] = {};
    const std::size_t pixels = static_cast<std::size_t>(n), bytes = pixels * To * sizeof(D);
    __builtin_memcpy(in, src, pixels * From * sizeof(S));
    __builtin_memcpy(out, dst, bytes);
    block(in, out);
    __builtin_memcpy(dst, out, bytes);
}

template <int Channels, class Op>
ORV_INLINE void pixel_row(const std::uint8_t* src, std::uint8_t* dst, std::ptrdiff_t n, Op op)
{
#if ORV_HAVE_BYTE_SHUFFLE
    constexpr int N = Channels == 3 ? Bytes::N : Bytes::N / 4;
    blocks_of_pixels<N, Channels, Channels>(src, dst, n, [&](const std::uint8_t* from, std::uint8_t* to)
                                            __attribute__((always_inline)) {
        block_of(op, from, to, Interleaved<Channels, 0>());
    });
#else
    for (; n > 0; --n, src += Channels, dst += Channels) op.one(src, dst);
#endif
}

template <int Channels, class Op>
inline void pixel_plane(const std::uint8_t* src, int srcStep, std::uint8_t* dst, int dstStep, Size roi, Op op)
{
    const Rows rows(roi, Channels, 1, srcStep, dstStep);
    for (int y = 0; y < rows.count; ++y) {
        pixel_row<Channels>(row_at(src, srcStep, y), row_at(dst, dstStep, y), rows.n / Channels, op);
    }
}

}  // namespace ORV_LEVEL
}  // namespace orv
