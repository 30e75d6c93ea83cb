#include "image/colour/ycbcr.h"

#include "image/colour/pixel_rows.h"
#include "image/colour/standards.h"

namespace orv {
namespace ycbcr {
namespace ORV_LEVEL {
namespace {

using std::uint8_t;

struct FromRgbPixels {
    FromRgb m;

    explicit FromRgbPixels(int standard) : m(kFromRgb[standard]) {}
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

struct ToRgbPixels {
    ToRgb m;

    explicit ToRgbPixels(int standard) : m(kToRgb[standard]) {}
    void one(const uint8_t* ycc, uint8_t* rgb) const
    {
        const int luma = ycc[0];
        SharedChroma(m, ycc[1], ycc[2]).put_pixel(m, luma, rgb);
    }
};

template <class Op, int Channels>
Status convert(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, Size roi, int standard)
{
    if (const Status bad = check_conversion(roi, standard, src, dst)) return bad;
    pixel_plane<Channels>(src, srcStep, dst, dstStep, roi, Op(standard));
    return StatusOk;
}

}  // namespace

#define CONVERSION(name, Op, channels)                                                                  \
    Status name(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, Size roi, int standard)     \
    {                                                                                                   \
        return convert<Op, channels>(src, srcStep, dst, dstStep, roi, standard);                        \
    }
CONVERSION(RGBToYCbCr_8u_C3, FromRgbPixels, 3)
CONVERSION(RGBToYCbCr_8u_AC4, FromRgbPixels, 4)
CONVERSION(YCbCrToRGB_8u_C3, ToRgbPixels, 3)
CONVERSION(YCbCrToRGB_8u_AC4, ToRgbPixels, 4)
#undef CONVERSION

}  // namespace ORV_LEVEL
}  // namespace ycbcr
}  // namespace orv
