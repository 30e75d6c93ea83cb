#include "image/colour/subsampled.h"

#include "image/colour/pixel_rows.h"
#include "image/colour/standards.h"

namespace orv {
namespace subsampled {
namespace ORV_LEVEL {
namespace {

using std::ptrdiff_t;
using std::uint8_t;

// --- 4:2:2: Y0 Cb Y1 Cr ---------------------------------------------------------------------------

// The last pixel of an odd row stands for both of its pair.
void put_pair(const FromRgb& m, const uint8_t* first, const uint8_t* second, uint8_t* pair)
{
    const int red = first[0] + second[0], green = first[1] + second[1], blue = first[2] + second[2];
    pair[0] = luma_of(m, first);
    pair[1] = quantised(weighted(m.cb, red, green, blue), 16, 128);
    pair[2] = luma_of(m, second);
    pair[3] = quantised(weighted(m.cr, red, green, blue), 16, 128);
}

void row_to_422(const FromRgb& m, const uint8_t* src, uint8_t* dst, ptrdiff_t n)
{
    for (; n >= 2; n -= 2, src += 6, dst += 4) put_pair(m, src, src + 3, dst);
    if (n == 1) put_pair(m, src, src, dst);
}

void row_from_422(const ToRgb& m, const uint8_t* src, uint8_t* dst, ptrdiff_t n)
{
    for (; n >= 1; n -= 2, src += 4, dst += 6) {
        const SharedChroma chroma(m, src[1], src[3]);
        chroma.put_pixel(m, src[0], dst);
        if (n >= 2) chroma.put_pixel(m, src[2], dst + 3);
    }
}

// --- 4:2:0 ----------------------------------------------------------------------------------------

void row_from_420(const ToRgb& m, const uint8_t* y, const uint8_t* u, const uint8_t* v, uint8_t* dst, ptrdiff_t n)
{
    for (; n >= 1; n -= 2, y += 2, ++u, ++v, dst += 6) {
        const SharedChroma chroma(m, *u, *v);
        chroma.put_pixel(m, y[0], dst);
        if (n >= 2) chroma.put_pixel(m, y[1], dst + 3);
    }
}

}  // namespace

// --- Kernels --------------------------------------------------------------------------------------

Status RGBToYUV422_8u_C3C2R(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, Size roi, int standard)
{
    if (const Status bad = check_conversion(roi, standard, src, dst)) return bad;
    for (int y = 0; y < roi.height; ++y) {
        row_to_422(kFromRgb[standard], row_at(src, srcStep, y), row_at(dst, dstStep, y), roi.width);
    }
    return StatusOk;
}

Status YUV422ToRGB_8u_C2C3R(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, Size roi, int standard)
{
    if (const Status bad = check_conversion(roi, standard, src, dst)) return bad;
    for (int y = 0; y < roi.height; ++y) {
        row_from_422(kToRgb[standard], row_at(src, srcStep, y), row_at(dst, dstStep, y), roi.width);
    }
    return StatusOk;
}

Status YUV420ToRGB_8u_P3C3(const uint8_t* srcY, int srcYStep, const uint8_t* srcU, int srcUStep, const uint8_t* srcV,
                           int srcVStep, uint8_t* dst, int dstStep, Size roi, int standard)
{
    if (const Status bad = check_conversion(roi, standard, srcY, srcU, srcV, dst)) return bad;
    for (int y = 0; y < roi.height; ++y) {
        row_from_420(kToRgb[standard], row_at(srcY, srcYStep, y), row_at(srcU, srcUStep, y / 2), row_at(srcV, srcVStep, y / 2),
                     row_at(dst, dstStep, y), roi.width);
    }
    return StatusOk;
}

}  // namespace ORV_LEVEL
}  // namespace subsampled
}  // namespace orv
