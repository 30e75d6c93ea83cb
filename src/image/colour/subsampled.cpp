#include "image/colour/subsampled.h"

#include "image/colour/standard_lanes.h"

namespace orv {
namespace subsampled {
namespace ORV_LEVEL {
namespace {

using std::ptrdiff_t;
using std::uint16_t;
using std::uint8_t;

// --- Scalars --------------------------------------------------------------------------------------

#if !ORV_HAVE_BYTE_SHUFFLE
struct ToPairs {
    FromRgb m;
    explicit ToPairs(int standard) : m(kFromRgb[standard]) {}

    void pair(const uint8_t* first, const uint8_t* second, uint8_t* dst) const
    {
        const int red = first[0] + second[0], green = first[1] + second[1], blue = first[2] + second[2];
        dst[0] = luma_of(m, first);
        dst[1] = quantised(weighted(m.cb, red, green, blue), 16, 128);
        dst[2] = luma_of(m, second);
        dst[3] = quantised(weighted(m.cr, red, green, blue), 16, 128);
    }
    // The last pixel of an odd row stands for both of its pair.
    void row(const uint8_t* src, uint8_t* dst, ptrdiff_t n) const
    {
        for (; n >= 2; n -= 2, src += 6, dst += 4) pair(src, src + 3, dst);
        if (n == 1) pair(src, src, dst);
    }
};

struct FromShared {
    ToRgb m;
    explicit FromShared(int standard) : m(kToRgb[standard]) {}

    // Y0 Cb Y1 Cr.
    void packed_row(const uint8_t* src, uint8_t* dst, ptrdiff_t n) const
    {
        for (; n >= 1; n -= 2, src += 4, dst += 6) {
            const SharedChroma chroma(m, src[1], src[3]);
            chroma.put_pixel(m, src[0], dst);
            if (n >= 2) chroma.put_pixel(m, src[2], dst + 3);
        }
    }
    void planar_row(const uint8_t* y, const uint8_t* u, const uint8_t* v, uint8_t* dst, ptrdiff_t n) const
    {
        for (; n >= 1; n -= 2, y += 2, ++u, ++v, dst += 6) {
            const SharedChroma chroma(m, *u, *v);
            chroma.put_pixel(m, y[0], dst);
            if (n >= 2) chroma.put_pixel(m, y[1], dst + 3);
        }
    }
    void planar_rows(const uint8_t* const (&y)[2], const uint8_t* u, const uint8_t* v, uint8_t* const (&dst)[2],
                     ptrdiff_t n) const
    {
        planar_row(y[0], u, v, dst[0], n);
        planar_row(y[1], u, v, dst[1], n);
    }
};
#endif

// --- Vectors --------------------------------------------------------------------------------------

#if ORV_HAVE_BYTE_SHUFFLE
ORV_INLINE void copy_bytes(uint8_t* to, const uint8_t* from, ptrdiff_t n)
{
    __builtin_memcpy(to, from, static_cast<std::size_t>(n));
}

struct ToPairs {
    FromRgbLanes lanes;
    explicit ToPairs(int standard) : lanes(kFromRgb[standard]) {}

    static constexpr int N = Bytes::N / 2;  // pixels of a block

    // Pairs of the pixels in a and b: sums of components, as of the rounding that is among them.
    static ORV_INLINE Words pairs(Words a, Words b)
    {
        const Ints first = simd::as<std::int32_t>(a), second = simd::as<std::int32_t>(b);
        return simd::as<std::int16_t>(simd::even_lanes(first, second)) +
               simd::as<std::int16_t>(simd::odd_lanes(first, second));
    }
    // Eight pixels in 24 bytes become 16 bytes, as often as there are 16 bytes in a register. Chroma is 2^16 times
    // its value, so Cr is where it belongs, in the upper half of its lane.
    ORV_INLINE void block(const uint8_t* src, uint8_t* dst) const
    {
        const FromRgbLanes::Pixels a = FromRgbLanes::pixels<Interleaved<3, 0>>(simd::load_parts<Bytes, 24>(src));
        const FromRgbLanes::Pixels b = FromRgbLanes::pixels<Interleaved<3, 4>>(simd::load_parts<Bytes, 24>(src + 8));
        const auto luma = [&](const FromRgbLanes::Pixels& p) {
            return simd::shifted_right<15>(lanes.luma.sum(p.red_green, p.blue));
        };
        const Words y = simd::narrow(simd::pair<Ints>{luma(a), luma(b)});
        const Words red_green = pairs(a.red_green, b.red_green), blue = pairs(a.blue, b.blue);
        const Words cb = simd::as<std::int16_t>(simd::shifted_right<16>(lanes.cb.sum(red_green, blue)));
        const Words cr = simd::as<std::int16_t>(lanes.cr.sum(red_green, blue));
        const UnsignedWords chroma = simd::as<uint16_t>(simd::min(simd::alternate(cb, cr), simd::splat<Words>(255)));
        simd::store(dst, simd::as<uint8_t>(simd::as<uint16_t>(y) | simd::shifted_left<8>(chroma)));
    }
    ORV_INLINE void row(const uint8_t* src, uint8_t* dst, ptrdiff_t n) const
    {
        for (; n >= N; n -= N, src += 3 * N, dst += 2 * N) block(src, dst);
        if (n == 0) return;
        // The last pixel of an odd row stands for both of its pair.
        uint8_t in[3 * N] = {}, out[2 * N];
        copy_bytes(in, src, 3 * n);
        if (n % 2 != 0) copy_bytes(in + 3 * n, src + 3 * n - 3, 3);
        block(in, out);
        copy_bytes(dst, out, 4 * ((n + 1) / 2));
    }
};

// Four samples of each chroma from eight pixels: those of U as 16-bit lanes, then those of V.
constexpr int chroma_source(int b) { return b % 2 == 0 ? kNone : b < 8 ? 2 * b - 1 : 2 * (b - 8) + 1; }
constexpr Picks kChroma = make_picks(chroma_source);

// Bytes of packed pixels from eight pixels of red and green (red first), the eight behind them, and 16 of blue. Part 0,
// 1 or 2 is the first, second or third 16 of 48 bytes.
template <int Part, int Source>
struct PackedFrom {
    static constexpr int source(int b)
    {
        const int pixel = (16 * Part + b) / 3, channel = (16 * Part + b) % 3;
        if (channel == 2) return Source == 2 ? pixel : kNone;
        return Source == pixel / 8 ? 8 * channel + pixel % 8 : kNone;
    }
    static constexpr Picks picks = make_picks(source);
};
struct FromShared {
    ToRgbLanes lanes;
    explicit FromShared(int standard) : lanes(kToRgb[standard]) {}

    static constexpr int N = Bytes::N;  // pixels of a block

    struct Luma {
        UnsignedWords low, high;  // raised; the first eight pixels of each sixteen, and the others
    };
    struct Shared {
        ToRgbLanes::Channels low, high;
    };
    static ORV_INLINE simd::pair<Words> twice(Words c)
    {
        const simd::pair<Ints> both = simd::interleave(c, c);
        return {simd::as<std::int16_t>(both.lo), simd::as<std::int16_t>(both.hi)};
    }
    ORV_INLINE Shared shared(UnsignedWords u, UnsignedWords v) const
    {
        const ToRgbLanes::Channels c = lanes.chroma(u, v);
        const simd::pair<Words> red = twice(c.red), green = twice(c.green), blue = twice(c.blue);
        return {{red.lo, green.lo, blue.lo}, {red.hi, green.hi, blue.hi}};
    }
    ORV_INLINE void put_block(Luma raised, const Shared& chroma, uint8_t* dst) const
    {
        const auto bytes = [](UnsignedWords low, UnsignedWords high) {
            return simd::narrow(simd::pair<UnsignedWords>{low, high});
        };
        const Words low = lanes.luma_of(raised.low), high = lanes.luma_of(raised.high);
        const Bytes first = bytes(ToRgbLanes::whole(low, chroma.low.red), ToRgbLanes::whole(low, chroma.low.green));
        const Bytes second =
            bytes(ToRgbLanes::whole(high, chroma.high.red), ToRgbLanes::whole(high, chroma.high.green));
        const Bytes blue = bytes(ToRgbLanes::whole(low, chroma.low.blue), ToRgbLanes::whole(high, chroma.high.blue));
        simd::store_parts<48>(dst, shuffled(first, PackedFrom<0, 0>::picks) | shuffled(blue, PackedFrom<0, 2>::picks));
        simd::store_parts<48>(dst + 16, shuffled(first, PackedFrom<1, 0>::picks) |
                                            shuffled(second, PackedFrom<1, 1>::picks) |
                                            shuffled(blue, PackedFrom<1, 2>::picks));
        simd::store_parts<48>(dst + 32,
                              shuffled(second, PackedFrom<2, 1>::picks) | shuffled(blue, PackedFrom<2, 2>::picks));
    }

    // Y0 Cb Y1 Cr.
    ORV_INLINE void packed_block(const uint8_t* src, uint8_t* dst) const
    {
        const Bytes low = simd::load_parts<Bytes, 32>(src), high = simd::load_parts<Bytes, 32>(src + 16);
        const UnsignedWords low_chroma = simd::as<uint16_t>(shuffled(low, kChroma)),
                            high_chroma = simd::as<uint16_t>(shuffled(high, kChroma));
        const Luma luma = {simd::shifted_left<8>(simd::as<uint16_t>(low)),
                           simd::shifted_left<8>(simd::as<uint16_t>(high))};
        put_block(luma,
                  shared(simd::lower_halves(low_chroma, high_chroma), simd::upper_halves(low_chroma, high_chroma)),
                  dst);
    }
    ORV_INLINE void packed_row(const uint8_t* src, uint8_t* dst, ptrdiff_t n) const
    {
        for (; n >= N; n -= N, src += 2 * N, dst += 3 * N) packed_block(src, dst);
        if (n == 0) return;
        uint8_t in[2 * N] = {}, out[3 * N];
        copy_bytes(in, src, 4 * ((n + 1) / 2));
        packed_block(in, out);
        copy_bytes(dst, out, 3 * n);
    }

    static ORV_INLINE Luma raised_luma(const uint8_t* y)
    {
        const simd::pair<UnsignedWords> both = simd::interleave(simd::zero<Bytes>(), simd::load<Bytes>(y));
        return {both.lo, both.hi};
    }
    // Two rows with the same chroma.
    ORV_INLINE void planar_block(const uint8_t* const (&y)[2], const uint8_t* u, const uint8_t* v,
                                 uint8_t* const (&dst)[2], ptrdiff_t x) const
    {
        const Shared chroma =
            shared(simd::load_raised<UnsignedWords>(u + x / 2), simd::load_raised<UnsignedWords>(v + x / 2));
        put_block(raised_luma(y[0] + x), chroma, dst[0] + 3 * x);
        put_block(raised_luma(y[1] + x), chroma, dst[1] + 3 * x);
    }
    ORV_INLINE void planar_rows(const uint8_t* const (&y)[2], const uint8_t* u, const uint8_t* v,
                                uint8_t* const (&dst)[2], ptrdiff_t n) const
    {
        ptrdiff_t x = 0;
        for (; x <= n - N; x += N) planar_block(y, u, v, dst, x);
        if (x == n) return;
        uint8_t luma[2][N] = {}, cb[N / 2] = {}, cr[N / 2] = {}, out[2][3 * N];
        for (int k = 0; k < 2; ++k) copy_bytes(luma[k], y[k] + x, n - x);
        copy_bytes(cb, u + x / 2, (n - x + 1) / 2);
        copy_bytes(cr, v + x / 2, (n - x + 1) / 2);
        const uint8_t* const lumas[2] = {luma[0], luma[1]};
        uint8_t* const outs[2] = {out[0], out[1]};
        planar_block(lumas, cb, cr, outs, 0);
        for (int k = 0; k < 2; ++k) copy_bytes(dst[k] + 3 * x, out[k], 3 * (n - x));
    }
};
#endif

}  // namespace

// --- Kernels --------------------------------------------------------------------------------------

Status RGBToYUV422_8u_C3C2R(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, Size roi, int standard)
{
    if (const Status bad = check_conversion(roi, standard, src, dst)) return bad;
    const ToPairs op(standard);
    for (int y = 0; y < roi.height; ++y) op.row(row_at(src, srcStep, y), row_at(dst, dstStep, y), roi.width);
    return StatusOk;
}

Status YUV422ToRGB_8u_C2C3R(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, Size roi, int standard)
{
    if (const Status bad = check_conversion(roi, standard, src, dst)) return bad;
    const FromShared op(standard);
    for (int y = 0; y < roi.height; ++y) op.packed_row(row_at(src, srcStep, y), row_at(dst, dstStep, y), roi.width);
    return StatusOk;
}

// Rows by pairs; a last one alone is computed twice.
Status YUV420ToRGB_8u_P3C3(const uint8_t* srcY, int srcYStep, const uint8_t* srcU, int srcUStep, const uint8_t* srcV,
                           int srcVStep, uint8_t* dst, int dstStep, Size roi, int standard)
{
    if (const Status bad = check_conversion(roi, standard, srcY, srcU, srcV, dst)) return bad;
    const FromShared op(standard);
    for (ptrdiff_t y = 0; y < roi.height; y += 2) {
        const ptrdiff_t second = y + 1 < roi.height ? y + 1 : y;
        const uint8_t* const lumas[2] = {row_at(srcY, srcYStep, y), row_at(srcY, srcYStep, second)};
        uint8_t* const rows[2] = {row_at(dst, dstStep, y), row_at(dst, dstStep, second)};
        op.planar_rows(lumas, row_at(srcU, srcUStep, y / 2), row_at(srcV, srcVStep, y / 2), rows, roi.width);
    }
    return StatusOk;
}

}  // namespace ORV_LEVEL
}  // namespace subsampled
}  // namespace orv
