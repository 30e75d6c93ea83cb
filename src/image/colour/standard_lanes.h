// The colour standards on vectors: the same integers as in standards.h, many pixels at a time.
#pragma once

#include "image/colour/pixel_rows.h"
#include "image/colour/standards.h"

#if ORV_HAVE_BYTE_SHUFFLE

namespace orv {
inline namespace ORV_LEVEL {

// The 16-bit lanes a, b, a, b, ...
ORV_INLINE Words repeated(int a, int b)
{
    const auto lanes = static_cast<std::uint32_t>(static_cast<std::uint16_t>(a)) | static_cast<std::uint32_t>(b) << 16;
    return simd::as<std::int16_t>(simd::splat<Ints>(static_cast<std::int32_t>(lanes)));
}

// --- From RGB -------------------------------------------------------------------------------------
//
// Pairs of 16-bit products are added to 32 bits: red with green, and blue with the lane 256, which brings in the
// rounding and the value of 0.

template <class From>
struct RedAndGreen {
    static constexpr int source(int b) { return b % 2 != 0 ? kNone : From::at(b % 4 / 2, b / 4); }
    static constexpr Picks picks = make_picks(source);
};
template <class From>
struct Blue {
    static constexpr int source(int b) { return b % 4 != 0 ? kNone : From::at(2, b / 4); }
    static constexpr Picks picks = make_picks(source);
};

struct FromRgbLanes {
    struct Row {
        Words red_green, blue;

        ORV_INLINE Row(const std::int16_t (&m)[3], int zero)
            : red_green(repeated(m[0], m[1])), blue(repeated(m[2], 64 + 128 * zero))
        {
        }
        ORV_INLINE Ints sum(Words rg, Words b) const
        {
            return simd::sum_of_products(rg, red_green) + simd::sum_of_products(b, blue);
        }
    };
    Row luma, cb, cr;

    explicit FromRgbLanes(const FromRgb& m) : luma(m.luma, m.black), cb(m.cb, 128), cr(m.cr, 128) {}

    // Four pixels in each 16 bytes, ready for sum(): 2^15 times a value, one half included.
    struct Pixels {
        Words red_green, blue;
    };
    template <class From>
    static ORV_INLINE Pixels pixels(Bytes bytes)
    {
        return {simd::as<std::int16_t>(shuffled(bytes, RedAndGreen<From>::picks)),
                simd::as<std::int16_t>(shuffled(bytes, Blue<From>::picks)) | repeated(0, 256)};
    }
};

// --- To RGB ---------------------------------------------------------------------------------------
//
// Components stand in the upper bytes of 16-bit lanes: 2^8 times their value, or 2^7 after a shift. A product with a
// coefficient, which is 2^14 times a factor, is then that of 64ths in the upper half of 32 bits.

struct ToRgbLanes {
    Words luma, offset, red_of_v, green_of_u, green_of_v, half_blue_of_u;

    explicit ToRgbLanes(const ToRgb& m)
        : luma(simd::splat<Words>(m.luma)),
          offset(simd::splat<Words>(m.offset)),
          red_of_v(simd::splat<Words>(m.red_of_v)),
          green_of_u(simd::splat<Words>(m.green_of_u)),
          green_of_v(simd::splat<Words>(m.green_of_v)),
          half_blue_of_u(simd::splat<Words>(m.half_blue_of_u))
    {
    }

    struct Channels {
        Words red, green, blue;
    };
    ORV_INLINE Channels chroma(UnsignedWords u, UnsignedWords v) const
    {
        const Words u256 = signed_chroma(u), v256 = signed_chroma(v);
        const Words u128 = simd::shifted_right<1>(u256), v128 = simd::shifted_right<1>(v256);
        return {simd::mul_rounded(v128, red_of_v),
                simd::mul_rounded(u128, green_of_u) + simd::mul_rounded(v128, green_of_v),
                simd::mul_rounded(u256, half_blue_of_u)};
    }
    ORV_INLINE Words luma_of(UnsignedWords y) const
    {
        return simd::mul_rounded(simd::as<std::int16_t>(simd::shifted_right<1>(y)), luma) + offset;
    }
    static ORV_INLINE Words signed_chroma(UnsignedWords raised)
    {
        return simd::as<std::int16_t>(raised ^ simd::splat<UnsignedWords>(0x8000));
    }
    // Sums that saturate are far above 255.
    static ORV_INLINE UnsignedWords whole(Words luma, Words chroma)
    {
        return simd::as<std::uint16_t>(simd::shifted_right<6>(simd::add_saturate(luma, chroma)));
    }
};

}  // namespace ORV_LEVEL
}  // namespace orv

#endif  // ORV_HAVE_BYTE_SHUFFLE
