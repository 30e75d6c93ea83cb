#include "image/colour/alpha.h"

#include "core/float_control.h"
#include "core/rows.h"

namespace orv {
namespace alpha {
namespace ORV_LEVEL {
namespace {

using std::ptrdiff_t;
using std::uint32_t;
using std::uint8_t;

// n / 255 to the nearest integer, for n <= 255^2; there are no halves.
ORV_INLINE uint32_t over_255(uint32_t n)
{
    const uint32_t m = n + 128;
    return (m + (m >> 8)) >> 8;
}
ORV_INLINE uint32_t smaller(uint32_t a, uint32_t b) { return a < b ? a : b; }

// Pixels of four bytes as words, the first channel lowest, alpha highest. a is the ground, b what lies upon it,
// `kept` what the destination held.
ORV_INLINE uint32_t channel(uint32_t pixel, int c) { return pixel >> (8 * c) & 255; }

struct OverOpaque {
    ORV_INLINE uint32_t one(uint32_t a, uint32_t b, uint32_t kept) const
    {
        const uint32_t alpha = channel(b, 3);
        uint32_t pixel = kept & 0xFF000000;
        for (int c = 0; c < 3; ++c) pixel |= over_255(alpha * channel(b, c) + (255 - alpha) * channel(a, c)) << (8 * c);
        return pixel;
    }
};

ORV_INLINE uint32_t premultiplied_over(uint32_t a, uint32_t b)
{
    uint32_t pixel = 0;
    for (int c = 0; c < 4; ++c) {
        const uint32_t below = over_255((255 - channel(b, 3)) * channel(a, c));
        pixel |= smaller(255, channel(b, c) + below) << (8 * c);
    }
    return pixel;
}
struct PremultipliedOverOpaque {
    ORV_INLINE uint32_t one(uint32_t a, uint32_t b, uint32_t kept) const
    {
        return (premultiplied_over(a, b) & 0xFFFFFF) | (kept & 0xFF000000);
    }
};
struct PremultipliedOver {
    ORV_INLINE uint32_t one(uint32_t a, uint32_t b, uint32_t) const { return premultiplied_over(a, b); }
};

// numerator / divisor to the nearest integer, ties to even.
ORV_INLINE uint32_t nearest_quotient(uint32_t numerator, uint32_t divisor)
{
    const uint32_t whole = numerator / divisor, twice_rest = 2 * (numerator % divisor);
    return whole + (twice_rest > divisor || (twice_rest == divisor && (whole & 1) != 0) ? 1 : 0);
}
struct Over {
    ORV_INLINE uint32_t one(uint32_t a, uint32_t b, uint32_t) const
    {
        const uint32_t upper = 255 * channel(b, 3), lower = (255 - channel(b, 3)) * channel(a, 3), sum = upper + lower;
        if (sum == 0) return 0;
        uint32_t pixel = over_255(sum) << 24;
        for (int c = 0; c < 3; ++c) pixel |= nearest_quotient(upper * channel(b, c) + lower * channel(a, c), sum) << (8 * c);
        return pixel;
    }
};

template <class Op>
Status compose(const uint8_t* src1, int src1Step, const uint8_t* src2, int src2Step, uint8_t* dst, int dstStep, Size roi)
{
    const Op op{};
    const Rows rows(roi, 1, 4, src1Step, src2Step, dstStep);
    for (int y = 0; y < rows.count; ++y) {
        const auto* const a = reinterpret_cast<const uint32_t*>(row_at(src1, src1Step, y));
        const auto* const b = reinterpret_cast<const uint32_t*>(row_at(src2, src2Step, y));
        auto* const d = reinterpret_cast<uint32_t*>(row_at(dst, dstStep, y));
        for (ptrdiff_t x = 0; x < rows.n; ++x) put(d + x, op.one(get(a + x), get(b + x), get(d + x)));
    }
    return StatusOk;
}

// Both by the same weights: those of a constant.
struct Blend {
    uint8_t alpha;
    ORV_INLINE uint8_t one(uint8_t a, uint8_t b) const
    {
        return static_cast<uint8_t>(over_255(uint32_t{alpha} * b + (255u - alpha) * a));
    }
};

}  // namespace

// --- Kernels --------------------------------------------------------------------------------------

Status AlphaComp_8u_AC4(const uint8_t* src1, int src1Step, const uint8_t* src2, int src2Step, uint8_t* dst, int dstStep,
                        Size roi, int premultiplied)
{
    if (const Status bad = check_image(roi, src1, src2, dst)) return bad;
    if (premultiplied == 0) return compose<OverOpaque>(src1, src1Step, src2, src2Step, dst, dstStep, roi);
    return compose<PremultipliedOverOpaque>(src1, src1Step, src2, src2Step, dst, dstStep, roi);
}

Status AlphaComp_8u_C4(const uint8_t* src1, int src1Step, const uint8_t* src2, int src2Step, uint8_t* dst, int dstStep,
                       Size roi, int premultiplied)
{
    if (const Status bad = check_image(roi, src1, src2, dst)) return bad;
    if (premultiplied == 0) return compose<Over>(src1, src1Step, src2, src2Step, dst, dstStep, roi);
    return compose<PremultipliedOver>(src1, src1Step, src2, src2Step, dst, dstStep, roi);
}

Status AlphaCompC_8u_C3R(const uint8_t* src1, int src1Step, const uint8_t* src2, int src2Step, uint8_t alpha, uint8_t* dst,
                         int dstStep, Size roi)
{
    if (const Status bad = check_image(roi, src1, src2, dst)) return bad;
    const Blend op = {alpha};
    const Rows rows(roi, 3, 1, src1Step, src2Step, dstStep);
    for (int y = 0; y < rows.count; ++y) {
        const uint8_t* const a = row_at(src1, src1Step, y);
        const uint8_t* const b = row_at(src2, src2Step, y);
        uint8_t* const d = row_at(dst, dstStep, y);
        for (ptrdiff_t i = 0; i < rows.n; ++i) d[i] = op.one(a[i], b[i]);
    }
    return StatusOk;
}

}  // namespace ORV_LEVEL
}  // namespace alpha
}  // namespace orv
