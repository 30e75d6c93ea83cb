#include "image/tables/lookup.h"

#include "image/tables/byte_table.h"
#include "image/tables/lookup_rows.h"

namespace orv {
namespace lookup {
namespace ORV_LEVEL {
namespace {

using std::uint16_t;
using std::uint32_t;
using std::uint8_t;

template <class From, class To>
Status lookup(const From* src, int srcStep, const To* table, To* dst, int dstStep, Size roi)
{
    if (const Status bad = check_image(roi, src, table, dst)) return bad;
    lookup_plane(src, srcStep, table, dst, dstStep, roi);
    return StatusOk;
}

// Floats move as bits: one that passed through the x87 would lose its signalling NaNs.
template <class From>
Status lookup_float(const From* src, int srcStep, const float* table, float* dst, int dstStep, Size roi)
{
    return lookup(src, srcStep, reinterpret_cast<const uint32_t*>(table), reinterpret_cast<uint32_t*>(dst), dstStep,
                  roi);
}

// --- A table per channel --------------------------------------------------------------------------

// Eight elements hold whole pixels of four channels, 24 of three: the channel of an element is then a constant.
template <int Channels>
void channel_rows(const uint8_t* src, int srcStep, const uint8_t* const* tables, uint8_t* dst, int dstStep, Size roi)
{
    const uint8_t* table[Channels];
    for (int c = 0; c < Channels; ++c) table[c] = tables[c];
    const Rows rows = rows_between<uint8_t, uint8_t>(srcStep, dstStep, roi, Channels);
    constexpr int kStep = Channels == 3 ? 24 : 8;
    for (int y = 0; y < rows.count; ++y) {
        const uint8_t* s = row_at(src, srcStep, y);
        uint8_t* d = row_at(dst, dstStep, y);
        std::ptrdiff_t left = rows.n;
        for (; left >= kStep; left -= kStep) {
#pragma GCC unroll 3
            for (int part = 0; part < kStep; part += 8, s += 8, d += 8) {
                lookup_row(s, d, 8, [&](int i, std::size_t pixel) { return table[(part + i) % Channels][pixel]; });
            }
        }
        for (int i = 0; i < left; ++i) d[i] = table[i % Channels][s[i]];
    }
}

template <int Channels>
Status lookup_channels(const uint8_t* src, int srcStep, const uint8_t* const* tables, uint8_t* dst, int dstStep,
                       Size roi)
{
    if (any_null(src, tables, dst)) return StatusNullPointer;
    bool equal = true;
    for (int c = 0; c < Channels; ++c) {
        if (tables[c] == nullptr) return StatusNullPointer;
        equal &= tables[c] == tables[0];
    }
    if (is_empty(roi)) return StatusBadSize;
    if (equal) lookup_bytes(src, srcStep, tables[0], dst, dstStep, roi, Channels);
    else channel_rows<Channels>(src, srcStep, tables, dst, dstStep, roi);
    return StatusOk;
}

}  // namespace

// --- Kernels --------------------------------------------------------------------------------------

Status LUT_8u_C1(const uint8_t* src, int srcStep, const uint8_t* table, uint8_t* dst, int dstStep, Size roi)
{
    if (const Status bad = check_image(roi, src, table, dst)) return bad;
    lookup_bytes(src, srcStep, table, dst, dstStep, roi, 1);
    return StatusOk;
}
Status LUT_8u16u_C1(const uint8_t* src, int srcStep, const uint16_t* table, uint16_t* dst, int dstStep, Size roi)
{
    return lookup(src, srcStep, table, dst, dstStep, roi);
}
Status LUT_8u32f_C1(const uint8_t* src, int srcStep, const float* table, float* dst, int dstStep, Size roi)
{
    return lookup_float(src, srcStep, table, dst, dstStep, roi);
}
Status LUT_16u_C1(const uint16_t* src, int srcStep, const uint16_t* table, uint16_t* dst, int dstStep, Size roi)
{
    return lookup(src, srcStep, table, dst, dstStep, roi);
}
Status LUT_16u8u_C1(const uint16_t* src, int srcStep, const uint8_t* table, uint8_t* dst, int dstStep, Size roi)
{
    return lookup(src, srcStep, table, dst, dstStep, roi);
}
Status LUT_16u32f_C1(const uint16_t* src, int srcStep, const float* table, float* dst, int dstStep, Size roi)
{
    return lookup_float(src, srcStep, table, dst, dstStep, roi);
}
Status LUT_8u_C3(const uint8_t* src, int srcStep, const uint8_t* const* tables, uint8_t* dst, int dstStep, Size roi)
{
    return lookup_channels<3>(src, srcStep, tables, dst, dstStep, roi);
}
Status LUT_8u_C4(const uint8_t* src, int srcStep, const uint8_t* const* tables, uint8_t* dst, int dstStep, Size roi)
{
    return lookup_channels<4>(src, srcStep, tables, dst, dstStep, roi);
}

Status LUTPalette_16u32u_C1R(const uint16_t* src, int srcStep, const uint32_t* palette, int paletteSize, uint32_t* dst,
                             int dstStep, Size roi)
{
    if (const Status bad = check_image(roi, src, palette, dst)) return bad;
    if (paletteSize < 1 || paletteSize > 65536) return StatusBadLevelCount;
    const std::size_t last = static_cast<std::size_t>(paletteSize) - 1;
    const Rows rows = rows_between<uint16_t, uint32_t>(srcStep, dstStep, roi, 1);
    for (int y = 0; y < rows.count; ++y) {
        lookup_row(row_at(src, srcStep, y), row_at(dst, dstStep, y), rows.n,
                   [=](int, std::size_t pixel) { return get(palette + (pixel < last ? pixel : last)); });
    }
    return StatusOk;
}

}  // namespace ORV_LEVEL
}  // namespace lookup
}  // namespace orv
