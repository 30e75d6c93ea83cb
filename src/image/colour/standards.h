// The colour standards in integers: ITU-R BT.601 and BT.709, each in video and in full range. Luma is
// Kr R + Kg G + Kb B with Kr = 0.299, Kb = 0.114 (601) or Kr = 0.2126, Kb = 0.0722 (709); chroma is the scaled
// difference of blue or red from it. Coefficients are these, times 2^15 from RGB and 2^14 to RGB, rounded so that the
// rows of chroma sum to 0 and the rows of luma to that of white.
#pragma once

#include <cstdint>

#include "core/checks.h"

namespace orv {
inline namespace ORV_LEVEL {

struct FromRgb {
    std::int16_t luma[3], cb[3], cr[3];
    std::int16_t black;
};
constexpr FromRgb kFromRgb[4] = {
    {{8415, 16519, 3208}, {-4857, -9535, 14392}, {14392, -12052, -2340}, 16},
    {{9798, 19235, 3735}, {-5529, -10855, 16384}, {16384, -13720, -2664}, 0},
    {{5983, 20127, 2032}, {-3298, -11094, 14392}, {14392, -13072, -1320}, 16},
    {{6966, 23436, 2366}, {-3754, -12630, 16384}, {16384, -14882, -1502}, 0},
};

// The factor of blue is twice what stands here: the whole one exceeds 16 bits.
struct ToRgb {
    std::int16_t luma, offset, red_of_v, green_of_u, green_of_v, half_blue_of_u;
};
constexpr ToRgb kToRgb[4] = {
    {19077, -1160, 26149, -6419, -13320, 33050 / 2},
    {16384, 32, 22970, -5638, -11700, 29032 / 2},
    {19077, -1160, 29372, -3494, -8731, 34610 / 2},
    {16384, 32, 25802, -3069, -7670, 30402 / 2},
};

ORV_INLINE bool is_standard(int standard) { return standard >= 0 && standard <= 3; }

template <class... Pointers>
ORV_INLINE Status check_conversion(Size roi, int standard, const Pointers*... pointers)
{
    if (const Status bad = check_image(roi, pointers...)) return bad;
    return is_standard(standard) ? StatusOk : StatusBadColorStandard;
}

ORV_INLINE std::uint8_t to_byte(int value)
{
    return static_cast<std::uint8_t>(value < 0 ? 0 : value > 255 ? 255 : value);
}

// A row of the matrix from RGB, without its rounding.
ORV_INLINE int weighted(const std::int16_t (&row)[3], int red, int green, int blue)
{
    return row[0] * red + row[1] * green + row[2] * blue;
}
// 2^bits times the value, rounded half up; `zero` is what 0 becomes.
ORV_INLINE std::uint8_t quantised(int scaled, int bits, int zero)
{
    return to_byte(((scaled + (1 << (bits - 1))) >> bits) + zero);
}

ORV_INLINE std::uint8_t luma_of(const FromRgb& m, const std::uint8_t* rgb)
{
    return quantised(weighted(m.luma, rgb[0], rgb[1], rgb[2]), 15, m.black);
}

// k x in 64ths, rounded; k is 2^14 times a factor.
ORV_INLINE int product_64(int k, int x) { return (k * x + 128) >> 8; }

// A pixel from its luma and the chroma that it may share.
struct SharedChroma {
    int red, green, blue;

    ORV_INLINE SharedChroma(const ToRgb& m, int cb, int cr)
        : red(product_64(m.red_of_v, cr - 128)),
          green(product_64(m.green_of_u, cb - 128) + product_64(m.green_of_v, cr - 128)),
          blue(product_64(m.half_blue_of_u, 2 * (cb - 128)))
    {
    }
    ORV_INLINE void put_pixel(const ToRgb& m, int luma, std::uint8_t* rgb) const
    {
        const int y = product_64(m.luma, luma) + m.offset;
        rgb[0] = to_byte((y + red) >> 6);
        rgb[1] = to_byte((y + green) >> 6);
        rgb[2] = to_byte((y + blue) >> 6);
    }
};

}  // namespace ORV_LEVEL
}  // namespace orv
