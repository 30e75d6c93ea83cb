#include "image/resize/resize_cubic.h"

#include <cstdint>
#include <climits>

#include "core/float_control.h"
#include "image/resize/four_taps.h"
#include "image/resize/resize_layout.h"

namespace orv {
namespace resize_cubic {
namespace ORV_LEVEL {
namespace {

template <class T, int Channels>
Status resize(const T* src, int srcStep, T* dst, int dstStep, int x0, int y0, Size tile, int border, const void* plan,
              void* buffer)
{
    ResizeTile part;
    if (const Status bad = check_resize(src, srcStep, dst, dstStep, x0, y0, tile, plan, buffer, kResizeCubic, &part))
        return bad;
    if (const Status bad = check_border(border)) return bad;
    const FloatControl control;
    const ResizePlan* const p = plan_in(plan);
    const bool replicate = (border & 7) == kBorderReplicate;
    const auto limits = [replicate](int length) {
        return replicate ? TapLimits{0, length - 1} : TapLimits{INT_MIN, INT_MAX};
    };
    const auto taps = [p](const ResizeAxis& axis, int offset) {
        return FourTaps{indices_of(p, axis) + offset, weights_of(p, axis) + std::ptrdiff_t{4} * offset};
    };
    const FourTapsJob<T> job = {
        src,     srcStep,  limits(p->x.source), limits(p->y.source), taps(p->x, part.x0), taps(p->y, part.y0), dst,
        dstStep, part.size};
    four_taps<Channels>(job, buffer);
    return StatusOk;
}

}  // namespace

#define CUBIC(name, T, channels)                                                                                \
    Status name(const T* src, int srcStep, T* dst, int dstStep, int x0, int y0, Size tile, int border,          \
                const T* /*borderValue*/, const void* plan, void* buffer)                                       \
    {                                                                                                           \
        return resize<T, channels>(src, srcStep, dst, dstStep, x0, y0, tile, border, plan, buffer);             \
    }

CUBIC(ResizeCubic_16u_C1, std::uint16_t, 1)
CUBIC(ResizeCubic_8u_C3, std::uint8_t, 3)
CUBIC(ResizeCubic_8u_C4, std::uint8_t, 4)

}  // namespace ORV_LEVEL
}  // namespace resize_cubic
}  // namespace orv
