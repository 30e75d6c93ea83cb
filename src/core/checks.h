// Argument checks of the kernels, in the order in which they run: pointers, sizes, steps.
#pragma once

#include <cstddef>

#include "core/level.h"
#include "core/operation.h"

namespace orv {
inline namespace ORV_LEVEL {

template <class... Pointers>
ORV_INLINE bool any_null(const Pointers*... pointers)
{
    return ((pointers == nullptr) || ...);
}

ORV_INLINE bool is_empty(Size roi) { return roi.width < 1 || roi.height < 1; }

template <class... Steps>
ORV_INLINE bool any_below_one(Steps... steps)
{
    return ((steps < 1) || ...);
}

// Pointers, then sizes: what most operations check, and all that they check.
template <class... Pointers>
ORV_INLINE Status check_image(Size roi, const Pointers*... pointers)
{
    if (any_null(pointers...)) return StatusNullPointer;
    if (is_empty(roi)) return StatusBadSize;
    return StatusOk;
}

// A source and a destination: pointers, sizes, steps.
template <class From, class To>
ORV_INLINE Status check_images(const From* src, int srcStep, const To* dst, int dstStep, Size roi)
{
    if (const Status bad = check_image(roi, src, dst)) return bad;
    return any_below_one(srcStep, dstStep) ? StatusBadStep : StatusOk;
}

// The order of the operations that check steps before sizes: pointers, steps, sizes.
ORV_INLINE Status check_steps_before_size(bool null, bool step_below_one, Size roi)
{
    if (null) return StatusNullPointer;
    if (step_below_one) return StatusBadStep;
    if (is_empty(roi)) return StatusBadSize;
    return StatusOk;
}

// The same for vectors.
template <class... Pointers>
ORV_INLINE Status check_vector(Length len, const Pointers*... pointers)
{
    if (any_null(pointers...)) return StatusNullPointer;
    if (len.count < 1) return StatusBadSize;
    return StatusOk;
}

// Sides of masks, which are odd, and the longest one of masks and kernels.
constexpr int kMostMaskSide = 255;
ORV_INLINE bool is_mask_side(int side) { return side >= 1 && side <= kMostMaskSide && side % 2 == 1; }

// The row that lies `rows` steps below p. Steps may be zero or negative, so this is signed and as
// wide as a pointer.
template <class T>
ORV_INLINE T* row_at(T* p, int step, std::ptrdiff_t rows)
{
    return reinterpret_cast<T*>(reinterpret_cast<std::size_t>(p) + static_cast<std::size_t>(step * rows));
}

// One element. Odd steps put 16- and 32-bit elements on any address, so elements are not dereferenced.
template <class T>
ORV_INLINE T get(const T* p)
{
    T value;
    __builtin_memcpy(&value, p, sizeof(T));
    return value;
}
template <class T>
ORV_INLINE void put(T* p, T value)
{
    __builtin_memcpy(p, &value, sizeof(T));
}

}  // namespace ORV_LEVEL
}  // namespace orv
