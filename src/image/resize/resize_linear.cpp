#include "image/resize/resize_linear.h"

#include <cstdint>
#include <climits>

#include "core/float_control.h"
#include "simd/conversion.h"
#include "simd/neighbours.h"
#include "simd/partial.h"
#include "image/resize/linear_rows.h"
#include "image/resize/pixel_rounding.h"
#include "image/resize/resize_layout.h"

namespace orv {
namespace resize_linear {
namespace ORV_LEVEL {
namespace {

using std::uint16_t;
using Four = simd::vec<double, 4>;

// The source row as doubles, from column `first` on; columns outside the limits repeat the nearest.
void fetch_line(const uint16_t* line, int first, std::ptrdiff_t span, int low, int high, double* out)
{
    std::ptrdiff_t i = 0;
    for (; i < span && first + i < low; ++i) out[i] = static_cast<double>(get(line + low));
    const std::int64_t to_edge = std::int64_t{high} - first + 1;
    const std::ptrdiff_t inner = to_edge < span ? static_cast<std::ptrdiff_t>(to_edge) : span;
#if ORV_HAVE_INT256
    for (; i + 4 <= inner; i += 4) {
        simd::store(out + i, simd::load_as<Four>::from(line + first + i));
    }
#endif
    for (; i < inner; ++i) out[i] = static_cast<double>(get(line + first + i));
    for (; i < span; ++i) out[i] = static_cast<double>(get(line + high));
}

// a + (b - a) f between neighbours of a row. The difference of two pixels times a float is exact in double.
void blend_columns(const double* row, const int* index, const float* fractions, int first, std::ptrdiff_t width,
                   double* out)
{
    std::ptrdiff_t x = 0;
#if ORV_HAVE_INT256
    const double* const at = row - first;
    for (; x + 4 <= width; x += 4) {
        const Four p02 = simd::load_halves(at + index[x], at + index[x + 2]);
        const Four p13 = simd::load_halves(at + index[x + 1], at + index[x + 3]);
        const Four a = even_of(p02, p13), b = odd_of(p02, p13);
        simd::store(out + x, a + (b - a) * simd::load_as<Four>::from(fractions + x));
    }
#endif
    for (; x < width; ++x) {
        const double a = row[index[x] - first], b = row[index[x] - first + 1];
        out[x] = a + (b - a) * static_cast<double>(fractions[x]);
    }
}

void blend_rows(const double* upper, const double* lower, double f, std::ptrdiff_t width, uint16_t* dst)
{
    std::ptrdiff_t x = 0;
#if ORV_HAVE_INT256
    // Between pixels of 16 bits lies nothing that would have to be clamped.
    const auto four = [&](std::ptrdiff_t i) {
        const Four a = simd::load<Four>(upper + i);
        return a + (simd::load<Four>(lower + i) - a) * f;
    };
    for (; x + 8 <= width; x += 8) simd::store_as(dst + x, simd::twice<Four>{four(x), four(x + 4)});
#endif
    for (; x < width; ++x) put(dst + x, to_pixel<uint16_t>(upper[x] + (lower[x] - upper[x]) * f));
}

}  // namespace

Status ResizeLinear_16u_C1(const uint16_t* src, int srcStep, uint16_t* dst, int dstStep, int x0, int y0, Size tile,
                           int border, const uint16_t*, const void* plan, void* buffer)
{
    ResizeTile part;
    if (const Status bad = check_resize(src, srcStep, dst, dstStep, x0, y0, tile, plan, buffer, kResizeLinear, &part))
        return bad;
    if (const Status bad = check_border(border)) return bad;
    const FloatControl control;
    const ResizePlan* const p = plan_in(plan);
    const bool replicate = (border & 7) == kBorderReplicate;
    const int low = replicate ? 0 : INT_MIN, right = replicate ? p->x.source - 1 : INT_MAX,
              bottom = replicate ? p->y.source - 1 : INT_MAX;
    const int* const columns = indices_of(p, p->x) + part.x0;
    const int* const rows = indices_of(p, p->y) + part.y0;
    const int first = columns[0];
    const std::ptrdiff_t span = std::ptrdiff_t{columns[part.size.width - 1]} + 2 - first;
    const LinearBuffers buffers(buffer, part.size.width, span);
    int held[2] = {0, 0};
    bool filled[2] = {false, false};
    const auto blended = [&](int row) {
        row = row < low ? low : row > bottom ? bottom : row;
        const int slot = row & 1;
        if (!filled[slot] || held[slot] != row) {
            fetch_line(row_at(src, srcStep, row), first, span, low, right, buffers.source);
            blend_columns(buffers.source, columns, weights_of(p, p->x) + part.x0, first, part.size.width,
                          buffers.rows[slot]);
            filled[slot] = true;
            held[slot] = row;
        }
        return buffers.rows[slot];
    };
    for (int y = 0; y < part.size.height; ++y) {
        const double* const upper = blended(rows[y]);
        const double* const lower = blended(rows[y] + 1);
        blend_rows(upper, lower, static_cast<double>(weights_of(p, p->y)[part.y0 + y]), part.size.width,
                   row_at(dst, dstStep, y));
    }
    return StatusOk;
}

}  // namespace ORV_LEVEL
}  // namespace resize_linear
}  // namespace orv
