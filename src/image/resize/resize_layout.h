// Sizes and addresses inside plans and work buffers of the resizer.
#pragma once

#include <cstdint>

#include "core/assert.h"
#include "core/checks.h"
#include "image/resize/resize_plan.h"

namespace orv {
inline namespace ORV_LEVEL {

ORV_INLINE std::int64_t in_lines(std::int64_t bytes) { return (bytes + 63) & ~std::int64_t{63}; }

template <class T>
ORV_INLINE T* first_line(T* block)
{
    return reinterpret_cast<T*>((reinterpret_cast<std::uintptr_t>(block) + 63) & ~std::uintptr_t{63});
}

ORV_INLINE const ResizePlan* plan_in(const void* block) { return static_cast<const ResizePlan*>(first_line(block)); }

ORV_INLINE const int* indices_of(const ResizePlan* plan, const ResizeAxis& axis)
{
    return reinterpret_cast<const int*>(reinterpret_cast<const char*>(plan) + axis.indices);
}
ORV_INLINE const float* weights_of(const ResizePlan* plan, const ResizeAxis& axis)
{
    return reinterpret_cast<const float*>(reinterpret_cast<const char*>(plan) + axis.weights);
}

// Hands out consecutive parts of a work buffer, each on a line of its own. Given null, it measures: the
// same calls that use a buffer give its size.
class Parts {
public:
    ORV_INLINE explicit Parts(void* buffer) : base_(first_line(static_cast<char*>(buffer))) {}
    template <class T>
    ORV_INLINE T* take(std::int64_t count)
    {
        ORV_ASSERT(count >= 0);
        T* const part =
            reinterpret_cast<T*>(reinterpret_cast<std::uintptr_t>(base_) + static_cast<std::uintptr_t>(used_));
        used_ += in_lines(count * static_cast<std::int64_t>(sizeof(T)));
        return part;
    }
    // What a buffer needs, wherever it starts.
    ORV_INLINE std::int64_t bytes() const { return used_ + 63; }

private:
    char* base_;
    std::int64_t used_ = 0;
};

// The part of the destination that an apply step fills: it ends with the plan's destination.
struct ResizeTile {
    int x0, y0;
    Size size;
};

template <class T>
Status check_resize(const T* src, int srcStep, const T* dst, int dstStep, int x0, int y0, Size tile, const void* plan,
                    const void* buffer, int interpolation, ResizeTile* part)
{
    if (any_null(src, dst) || any_null(plan, buffer)) return StatusNullPointer;
    const ResizePlan& p = *plan_in(plan);
    if (p.tag != kResizePlanTag || p.interpolation != interpolation) return StatusBadPlan;
    if (is_empty(tile)) return StatusBadSize;
    if (srcStep % static_cast<int>(sizeof(T)) != 0 || dstStep % static_cast<int>(sizeof(T)) != 0) return StatusBadStep;
    if (x0 < 0 || y0 < 0 || x0 >= p.x.destination || y0 >= p.y.destination) return StatusBadOffset;
    part->x0 = x0;
    part->y0 = y0;
    part->size.width = tile.width < p.x.destination - x0 ? tile.width : p.x.destination - x0;
    part->size.height = tile.height < p.y.destination - y0 ? tile.height : p.y.destination - y0;
    return StatusOk;
}

// The border argument of the apply steps with more than one tap. The upper four bits are free.
ORV_INLINE Status check_border(int border)
{
    if ((border & ~0xF7) != 0) return StatusBadBorder;
    if ((border & 7) != kBorderReplicate && (border & 7) != kBorderInMemory) return StatusUnsupportedBorder;
    return StatusOk;
}

}  // namespace ORV_LEVEL
}  // namespace orv
