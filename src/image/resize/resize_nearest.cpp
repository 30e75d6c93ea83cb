#include "image/resize/resize_nearest.h"

#include <cstdint>

#include "image/moving/pixel_moves.h"
#include "image/resize/resize_layout.h"

namespace orv {
namespace resize_nearest {
namespace ORV_LEVEL {
namespace {

template <class T, int Channels>
Status resize(const T* src, int srcStep, T* dst, int dstStep, int x0, int y0, Size tile, const void* plan, void* buffer)
{
    ResizeTile part;
    if (const Status bad = check_resize(src, srcStep, dst, dstStep, x0, y0, tile, plan, buffer, kResizeNearest, &part))
        return bad;
    const ResizePlan* const p = plan_in(plan);
    const int* const rows = indices_of(p, p->y) + part.y0;
    using Picker = PixelPicker<T, Channels>;
    Parts parts(buffer);
    const Picker picker(indices_of(p, p->x) + part.x0, part.size.width, p->x.source,
                        parts.take<typename Picker::Block>(Picker::block_count(part.size.width)));
    for (int y = 0; y < part.size.height; ++y) picker.pick(row_at(src, srcStep, rows[y]), row_at(dst, dstStep, y));
    return StatusOk;
}

}  // namespace

#define NEAREST(name, T, channels)                                                                              \
    Status name(const T* src, int srcStep, T* dst, int dstStep, int x0, int y0, Size tile, const void* plan,    \
                void* buffer)                                                                                   \
    {                                                                                                           \
        return resize<T, channels>(src, srcStep, dst, dstStep, x0, y0, tile, plan, buffer);                     \
    }

NEAREST(ResizeNearest_16u_C1, std::uint16_t, 1)
NEAREST(ResizeNearest_8u_C3, std::uint8_t, 3)
NEAREST(ResizeNearest_8u_C4, std::uint8_t, 4)

}  // namespace ORV_LEVEL
}  // namespace resize_nearest
}  // namespace orv
