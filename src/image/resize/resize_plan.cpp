#include "image/resize/resize_plan.h"

#include <cstdint>

#include "core/float_control.h"
#include "image/resize/four_taps.h"
#include "image/resize/linear_rows.h"
#include "image/moving/pixel_moves.h"
#include "image/resize/pixel_rounding.h"
#include "image/resize/resize_layout.h"

namespace orv {
namespace resize_plan {
namespace ORV_LEVEL {
namespace {

// --- Layout ---------------------------------------------------------------------------------------

int floats_per_position(int interpolation)
{
    return interpolation == kResizeCubic ? 4 : interpolation == kResizeLinear ? 1 : 0;
}

template <class Visit>
void for_both_axes(ResizePlan& plan, Visit visit)
{
    visit(plan.x);
    visit(plan.y);
}

// Lays out the tables behind the head and returns the bytes that a block needs, wherever it starts.
std::int64_t lay_out(ResizePlan& plan)
{
    std::int64_t used = in_lines(sizeof(ResizePlan));
    const std::int64_t floats = floats_per_position(plan.interpolation);
    for_both_axes(plan, [&](ResizeAxis& axis) {
        axis.indices = used;
        used += in_lines(std::int64_t{4} * axis.destination);
        axis.weights = used;
        used += in_lines(4 * floats * axis.destination);
    });
    return used + 63;
}

Status check_sizes(Size source, Size destination)
{
    if (source.width < 0 || source.height < 0 || destination.width < 0 || destination.height < 0) return StatusBadSize;
    if (is_empty(source) || is_empty(destination)) return StatusNoOperation;
    return StatusOk;
}

// --- Tables ---------------------------------------------------------------------------------------

int common_divisor(int a, int b)
{
    while (b != 0) {
        const int rest = a % b;
        a = b;
        b = rest;
    }
    return a;
}

void set_lengths(ResizeAxis& axis, int source, int destination)
{
    axis.source = source;
    axis.destination = destination;
    const int divisor = common_divisor(source, destination);
    axis.reduced_source = source / divisor;
    axis.reduced_destination = destination / divisor;
    axis.before = axis.after = 0;
}

double scale_of(const ResizeAxis& axis)
{
    return static_cast<double>(axis.source) / static_cast<double>(axis.destination);
}

// Positions on an integer go to the pixel before it: a reduction by two takes the left pixel of each pair.
constexpr double kNearestBias = 1e-10;

void nearest_indices(const ResizeAxis& axis, int* __restrict indices)
{
    const double scale = scale_of(axis);
    const int last = axis.source - 1;
    for (int i = 0; i < axis.destination; ++i) {
        const int index = static_cast<int>((i + 0.5) * scale - kNearestBias);
        indices[i] = index < last ? index : last;
    }
}

// Pixel centres are aligned.
void positions(const ResizeAxis& axis, int* __restrict indices, float* __restrict fractions, int stride)
{
    const double scale = scale_of(axis);
    for (int i = 0; i < axis.destination; ++i) {
        const double u = (i + 0.5) * scale - 0.5;
        const int index = floor_of(u);
        indices[i] = index;
        fractions[std::ptrdiff_t{i} * stride] = static_cast<float>(u - index);
    }
}

// Taps reach from index - before_taps to index + after_taps.
void count_outside(ResizeAxis& axis, const int* indices, int before_taps, int after_taps)
{
    while (axis.before < axis.destination && indices[axis.before] < before_taps) ++axis.before;
    while (axis.after < axis.destination && indices[axis.destination - 1 - axis.after] + after_taps >= axis.source)
        ++axis.after;
}

ResizePlan* begin(void* block, Size source, Size destination, int interpolation)
{
    ResizePlan* const plan = static_cast<ResizePlan*>(first_line(block));
    plan->tag = 0;
    plan->interpolation = interpolation;
    set_lengths(plan->x, source.width, destination.width);
    set_lengths(plan->y, source.height, destination.height);
    lay_out(*plan);
    return plan;
}

int* indices_in(ResizePlan* plan, const ResizeAxis& axis) { return const_cast<int*>(indices_of(plan, axis)); }
float* weights_in(ResizePlan* plan, const ResizeAxis& axis) { return const_cast<float*>(weights_of(plan, axis)); }

}  // namespace

// --- Kernels --------------------------------------------------------------------------------------

Status ResizeGetSize(Size source, Size destination, int interpolation, int antialiasing, int* planSize,
                     int* initBufferSize)
{
    if (any_null(planSize, initBufferSize)) return StatusNullPointer;
    if (const Status bad = check_sizes(source, destination)) return bad;
    if (interpolation != kResizeNearest && interpolation != kResizeLinear && interpolation != kResizeCubic)
        return StatusBadInterpolation;
    if (antialiasing != 0) return StatusUnsupportedBorder;
    ResizePlan plan;
    plan.interpolation = interpolation;
    set_lengths(plan.x, source.width, destination.width);
    set_lengths(plan.y, source.height, destination.height);
    const std::int64_t bytes = lay_out(plan);
    if (bytes > INT32_MAX) return StatusBadSize;
    *planSize = static_cast<int>(bytes);
    // The cubic initialiser builds its tables in place; its buffer exists for the sake of the interface.
    *initBufferSize = interpolation == kResizeCubic ? 64 : 0;
    return StatusOk;
}

Status ResizeNearestInit(Size source, Size destination, void* plan)
{
    if (any_null(plan)) return StatusNullPointer;
    if (const Status bad = check_sizes(source, destination)) return bad;
    const FloatControl control;
    ResizePlan* const p = begin(plan, source, destination, kResizeNearest);
    nearest_indices(p->x, indices_in(p, p->x));
    nearest_indices(p->y, indices_in(p, p->y));
    p->tag = kResizePlanTag;
    return StatusOk;
}

Status ResizeLinearInit(Size source, Size destination, void* plan)
{
    if (any_null(plan)) return StatusNullPointer;
    if (const Status bad = check_sizes(source, destination)) return bad;
    const FloatControl control;
    ResizePlan* const p = begin(plan, source, destination, kResizeLinear);
    for_both_axes(*p, [p](ResizeAxis& axis) {
        positions(axis, indices_in(p, axis), weights_in(p, axis), 1);
        count_outside(axis, indices_in(p, axis), 0, 1);
    });
    p->tag = kResizePlanTag;
    return StatusOk;
}

Status ResizeCubicInit(Size source, Size destination, float B, float C, void* plan, void* initBuffer)
{
    if (any_null(plan, initBuffer)) return StatusNullPointer;
    if (const Status bad = check_sizes(source, destination)) return bad;
    if (source.width < 4 || source.height < 4) return StatusBadSize;
    const FloatControl control;
    ResizePlan* const p = begin(plan, source, destination, kResizeCubic);
    const CubicFamily family(static_cast<double>(B), static_cast<double>(C));
    for_both_axes(*p, [&](ResizeAxis& axis) {
        int* const indices = indices_in(p, axis);
        float* const weights = weights_in(p, axis);
        // The fraction, a float, stands where the first of its weights will.
        positions(axis, indices, weights, 4);
        for (std::ptrdiff_t i = 0; i < axis.destination; ++i)
            family.weights(static_cast<double>(weights[4 * i]), weights + 4 * i);
        count_outside(axis, indices, 1, 2);
    });
    p->tag = kResizePlanTag;
    return StatusOk;
}

Status ResizeGetBufferSize(const void* plan, Size destination, int channels, int* size)
{
    if (any_null(plan, static_cast<const void*>(size))) return StatusNullPointer;
    const ResizePlan& p = *plan_in(plan);
    if (p.tag != kResizePlanTag) return StatusBadPlan;
    if (is_empty(destination)) return StatusBadSize;
    if (channels != 1 && channels != 3 && channels != 4) return StatusBadChannels;
    const int width = destination.width < p.x.destination ? destination.width : p.x.destination;
    // Taps reach two pixels beyond the source on either side.
    const std::int64_t bytes = p.interpolation == kResizeNearest ? picker_bytes(width, channels)
                               : p.interpolation == kResizeLinear
                                   ? LinearBuffers(nullptr, width, p.x.source + std::int64_t{2}).bytes
                                   : four_taps_bytes(width, p.x.source + std::int64_t{4}, channels);
    if (bytes > INT32_MAX) return StatusBadSize;
    *size = static_cast<int>(bytes);
    return StatusOk;
}

// The middle of the destination less the centre, cut off toward zero. What no int can hold lies outside
// every destination, as do the offsets of NaNs.
Status ResizeCenterOffset(Size destination, const double& centerX, const double& centerY, int* offsetX, int* offsetY)
{
    if (any_null(offsetX, offsetY)) return StatusNullPointer;
    const FloatControl control;
    const auto offset = [](int length, const double& center) {
        if (!(center > -2147483648.0 && center < 2147483648.0)) return -1;
        const std::int64_t distance = std::int64_t{length / 2} - static_cast<int>(center);
        return distance < 0 || distance > INT32_MAX ? -1 : static_cast<int>(distance);
    };
    *offsetX = offset(destination.width, centerX);
    *offsetY = offset(destination.height, centerY);
    return StatusOk;
}

}  // namespace ORV_LEVEL
}  // namespace resize_plan
}  // namespace orv
