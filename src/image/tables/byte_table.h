// Bytes through a table of 256 bytes, where registers are wide enough by shuffles: 32 at a time.
//
// A shuffle picks from 16 bytes by the low four bits of an index and gives 0 where its top bit is set. The table is
// kept as 16 such pieces, each but the first of either half combined (exclusive or) with the one before it. An index
// is lowered by 16 from one shuffle to the next, so it takes part in as many of them as its high digit says, and what
// it took combines to its own piece. Lowering saturates: an index of the other half stays where its top bit is set.
#pragma once

#include "image/tables/lookup_rows.h"
#include "simd/pixels.h"
#include "simd/reductions.h"

namespace orv {
inline namespace ORV_LEVEL {

#if ORV_HAVE_INT256
class ByteTable {
public:
    using V = simd::widest<std::uint8_t>;

    ORV_INLINE explicit ByteTable(const std::uint8_t* table)
    {
        for (int half = 0; half < 256; half += 128) {
            V before = simd::zero<V>();
            for (int k = half; k < half + 128; k += 16) {
                const V piece = simd::load_repeated<V>(table + k);
                simd::store(pieces_[k / 16], piece ^ before);
                before = piece;
            }
        }
    }
    // Two vectors, which share the loads of the pieces.
    ORV_INLINE simd::pair<V> at(simd::pair<V> x) const
    {
        using S = simd::widest<std::int8_t>;
        const V top = simd::splat<V>(0x80);
        const S less = simd::splat<S>(16);
        V low[2] = {x.lo, x.hi}, high[2] = {x.lo ^ top, x.hi ^ top}, found[2];
        for (int i = 0; i < 2; ++i)
            found[i] = simd::shuffle_bytes(piece(0), low[i]) ^ simd::shuffle_bytes(piece(8), high[i]);
#pragma GCC unroll 7
        for (int k = 1; k < 8; ++k) {
            for (int i = 0; i < 2; ++i) {
                low[i] = simd::as<std::uint8_t>(simd::sub_saturate(simd::as<std::int8_t>(low[i]), less));
                high[i] = simd::as<std::uint8_t>(simd::sub_saturate(simd::as<std::int8_t>(high[i]), less));
                found[i] =
                    found[i] ^ simd::shuffle_bytes(piece(k), low[i]) ^ simd::shuffle_bytes(piece(k + 8), high[i]);
            }
        }
        return {found[0], found[1]};
    }

private:
    ORV_INLINE V piece(int k) const { return simd::load<V>(pieces_[k]); }
    alignas(32) std::uint8_t pieces_[16][32];
};

ORV_INLINE simd::pair<ByteTable::V> load_both(const std::uint8_t* p)
{
    return {simd::load<ByteTable::V>(p), simd::load<ByteTable::V>(p + ByteTable::V::N)};
}
ORV_INLINE void store_both(std::uint8_t* p, simd::pair<ByteTable::V> v)
{
    simd::store(p, v.lo);
    simd::store(p + ByteTable::V::N, v.hi);
}
ORV_INLINE void byte_row(const ByteTable& table, const std::uint8_t* src, std::uint8_t* dst, std::ptrdiff_t n)
{
    full_vectors<2 * ByteTable::V::N>(
        n, [&](std::ptrdiff_t i) { return table.at(load_both(src + i)); },
        [=](std::ptrdiff_t i, simd::pair<ByteTable::V> v) { store_both(dst + i, v); });
}
#endif

inline void lookup_bytes(const std::uint8_t* src, int srcStep, const std::uint8_t* table, std::uint8_t* dst,
                         int dstStep, Size roi, int channels)
{
#if ORV_HAVE_INT256
    const Rows rows(roi, channels, 1, srcStep, dstStep);
    if (rows.n >= 2 * ByteTable::V::N) {
        const ByteTable pieces(table);
        for (int y = 0; y < rows.count; ++y) byte_row(pieces, row_at(src, srcStep, y), row_at(dst, dstStep, y), rows.n);
        return;
    }
#endif
    lookup_plane(src, srcStep, table, dst, dstStep, roi, channels);
}

}  // namespace ORV_LEVEL
}  // namespace orv
