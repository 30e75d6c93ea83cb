#include "image/colour/ycbcr.h"

#include "image/colour/standard_lanes.h"

namespace orv {
namespace ycbcr {
namespace ORV_LEVEL {
namespace {

using std::uint8_t;

struct FromRgbPixels {
    FromRgb m;
#if ORV_HAVE_BYTE_SHUFFLE
    FromRgbLanes lanes;
    explicit FromRgbPixels(int standard) : m(kFromRgb[standard]), lanes(m) {}

    static constexpr int place(int channel, int pixel) { return 4 * channel + pixel; }
    template <class From>
    ORV_INLINE Bytes many(Bytes rgb) const
    {
        const FromRgbLanes::Pixels p = FromRgbLanes::pixels<From>(rgb);
        const auto value = [&](const FromRgbLanes::Row& row) {
            return simd::shifted_right<15>(row.sum(p.red_green, p.blue));
        };
        return packed_channels(value(lanes.luma), value(lanes.cb), value(lanes.cr));
    }
#else
    explicit FromRgbPixels(int standard) : m(kFromRgb[standard]) {}
#endif
    void one(const uint8_t* rgb, uint8_t* ycc) const
    {
        const uint8_t luma = luma_of(m, rgb);
        const uint8_t cb = quantised(weighted(m.cb, rgb[0], rgb[1], rgb[2]), 15, 128);
        const uint8_t cr = quantised(weighted(m.cr, rgb[0], rgb[1], rgb[2]), 15, 128);
        ycc[0] = luma;
        ycc[1] = cb;
        ycc[2] = cr;
    }
};

#if ORV_HAVE_BYTE_SHUFFLE
// Two lanes per pixel, in their upper bytes: luma twice, and Cr with Cb.
template <class From>
struct LumaTwice {
    static constexpr int source(int b) { return b % 2 == 0 ? kNone : From::at(0, b / 4); }
    static constexpr Picks picks = make_picks(source);
};
template <class From>
struct CrAndCb {
    static constexpr int source(int b) { return b % 2 == 0 ? kNone : From::at(b % 4 == 1 ? 2 : 1, b / 4); }
    static constexpr Picks picks = make_picks(source);
};
#endif

struct ToRgbPixels {
    ToRgb m;
#if ORV_HAVE_BYTE_SHUFFLE
    ToRgbLanes lanes;
    Words red_blue, green;

    explicit ToRgbPixels(int standard)
        : m(kToRgb[standard]),
          lanes(m),
          red_blue(repeated(m.red_of_v, m.half_blue_of_u)),
          green(repeated(m.green_of_v, m.green_of_u))
    {
    }

    // Red and blue side by side in the first eight bytes, green in every second of the others.
    static constexpr int place(int channel, int pixel)
    {
        return channel == 1 ? 8 + 2 * pixel : 2 * pixel + channel / 2;
    }
    template <class From>
    ORV_INLINE Bytes many(Bytes ycc) const
    {
        const Words y = lanes.luma_of(simd::as<std::uint16_t>(shuffled(ycc, LumaTwice<From>::picks)));
        const Words vu256 = ToRgbLanes::signed_chroma(simd::as<std::uint16_t>(shuffled(ycc, CrAndCb<From>::picks)));
        const Words vu128 = simd::shifted_right<1>(vu256);
        const Words rb = simd::mul_rounded(simd::alternate(vu128, vu256), red_blue);
        // The sum of both lanes stands in the lower one.
        const Ints g = simd::sum_of_products(simd::mul_rounded(vu128, green), simd::splat<Words>(1));
        return simd::narrow(
            simd::pair<UnsignedWords>{ToRgbLanes::whole(y, rb), ToRgbLanes::whole(y, simd::as<std::int16_t>(g))});
    }
#else
    explicit ToRgbPixels(int standard) : m(kToRgb[standard]) {}
#endif
    void one(const uint8_t* ycc, uint8_t* rgb) const
    {
        const int luma = ycc[0];
        SharedChroma(m, ycc[1], ycc[2]).put_pixel(m, luma, rgb);
    }
};

// --- Luma alone -----------------------------------------------------------------------------------

#if ORV_HAVE_BYTE_SHUFFLE
struct ToLuma {
    static constexpr int N = Bytes::N;  // pixels of a block
    FromRgbLanes::Row luma;
    explicit ToLuma(int standard) : luma(FromRgbLanes(kFromRgb[standard]).luma) {}

    template <class From>
    ORV_INLINE Ints four(Bytes bytes) const
    {
        const FromRgbLanes::Pixels p = FromRgbLanes::pixels<From>(bytes);
        return simd::shifted_right<15>(luma.sum(p.red_green, p.blue));
    }
    static ORV_INLINE Bytes packed(Ints a, Ints b, Ints c, Ints d)
    {
        const Words low = simd::narrow(simd::pair<Ints>{a, b}), high = simd::narrow(simd::pair<Ints>{c, d});
        return simd::narrow(simd::pair<UnsignedWords>{simd::as<std::uint16_t>(low), simd::as<std::uint16_t>(high)});
    }
    ORV_INLINE void block(const uint8_t* src, uint8_t* dst, Interleaved<3, 0> first) const
    {
        using First = decltype(first);
        using simd::load_parts;
        simd::store(dst, packed(four<First>(load_parts<Bytes, 48>(src)), four<First>(load_parts<Bytes, 48>(src + 12)),
                                four<First>(load_parts<Bytes, 48>(src + 24)),
                                four<Interleaved<3, 4>>(load_parts<Bytes, 48>(src + 32))));
    }
    ORV_INLINE void block(const uint8_t* src, uint8_t* dst, Interleaved<4, 0> first) const
    {
        using First = decltype(first);
        const auto at = [&](int k) { return four<First>(simd::load_parts<Bytes, 64>(src + 16 * k)); };
        simd::store(dst, packed(at(0), at(1), at(2), at(3)));
    }
};
#endif

template <int Channels>
void luma_row(const uint8_t* src, uint8_t* dst, std::ptrdiff_t n, int standard)
{
#if ORV_HAVE_BYTE_SHUFFLE
    const ToLuma op(standard);
    blocks_of_pixels<ToLuma::N, Channels, 1>(src, dst, n, [&](const uint8_t* from, uint8_t* to)
                                             __attribute__((always_inline)) {
        op.block(from, to, Interleaved<Channels, 0>());
    });
#else
    const FromRgb& m = kFromRgb[standard];
    for (; n > 0; --n, src += Channels, ++dst) *dst = luma_of(m, src);
#endif
}

template <int Channels>
Status to_luma(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, Size roi, int standard)
{
    if (const Status bad = check_conversion(roi, standard, src, dst)) return bad;
    for (int y = 0; y < roi.height; ++y)
        luma_row<Channels>(row_at(src, srcStep, y), row_at(dst, dstStep, y), roi.width, standard);
    return StatusOk;
}

template <class Op, int Channels>
Status convert(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, Size roi, int standard)
{
    if (const Status bad = check_conversion(roi, standard, src, dst)) return bad;
    pixel_plane<Channels>(src, srcStep, dst, dstStep, roi, Op(standard));
    return StatusOk;
}

}  // namespace

#define CONVERSION(name, ...)                                                                           \
    Status name(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, Size roi, int standard)     \
    {                                                                                                   \
        return __VA_ARGS__(src, srcStep, dst, dstStep, roi, standard);                                  \
    }
CONVERSION(RGBToYCbCr_8u_C3, convert<FromRgbPixels, 3>)
CONVERSION(RGBToYCbCr_8u_AC4, convert<FromRgbPixels, 4>)
CONVERSION(RGBToGray_8u_C3C1, to_luma<3>)
CONVERSION(RGBToGray_8u_AC4C1, to_luma<4>)
CONVERSION(YCbCrToRGB_8u_C3, convert<ToRgbPixels, 3>)
CONVERSION(YCbCrToRGB_8u_AC4, convert<ToRgbPixels, 4>)
#undef CONVERSION

}  // namespace ORV_LEVEL
}  // namespace ycbcr
}  // namespace orv
