// Plans of the resizer: where each destination position lies in the source, and with which weights.
//
// A plan is a block of memory from the caller; what it holds begins at the first 64-byte boundary in it,
// with a tag that says that it has been initialised. The apply steps read plans, nothing else writes them.
// A plan depends neither on the element type nor on the number of channels.
#pragma once

#include "core/shapes.h"

namespace orv {

constexpr unsigned int kResizePlanTag = 0x4B617389;

// Interpolations of the resizer.
constexpr int kResizeNearest = 1;
constexpr int kResizeLinear = 2;
constexpr int kResizeCubic = 6;

// Borders of the apply steps.
constexpr int kBorderReplicate = 1;
constexpr int kBorderInMemory = 6;

// One axis of a plan. Tables are found by their distance in bytes from the head.
struct ResizeAxis {
    int source, destination;                  // lengths
    int reduced_source, reduced_destination;  // without their common divisor
    int before, after;                        // destination positions whose taps leave the source on each side
    // Source index per position: of the only tap (nearest), or of the last one at or before the position.
    long long indices;
    // Per position, linear: the fraction; cubic: four weights. Floats.
    long long weights;
};

struct ResizePlan {
    unsigned int tag;
    int interpolation;
    ResizeAxis x, y;
};

// The cubic of two parameters needs a buffer while it is prepared.
using PlanSize = Status(Size source, Size destination, int interpolation, int antialiasing, int* planSize,
                        int* initBufferSize);
using PlanInit = Status(Size source, Size destination, void* plan);
using PlanInitCubic = Status(Size source, Size destination, float B, float C, void* plan, void* initBuffer);
using PlanBufferSize = Status(const void* plan, Size destination, int channels, int* size);
// By reference: on the x87, copies would pass through its registers under the host's control word.
using CenterOffset = Status(Size destination, const double& centerX, const double& centerY, int* offsetX, int* offsetY);

// Apply steps: the destination's columns from x0 and rows from y0 on, to the place where dst points.
template <class T>
using ResizeApply = Status(const T* src, int srcStep, T* dst, int dstStep, int x0, int y0, Size tile, const void* plan,
                           void* buffer);

// With more than one tap. The border value exists for the sake of the interface: the borders that are
// supported need none.
template <class T>
using ResizeApplyBorder = Status(const T* src, int srcStep, T* dst, int dstStep, int x0, int y0, Size tile, int border,
                                 const T* borderValue, const void* plan, void* buffer);

#define KERNEL(name, ...) extern "C" ORV_INTERNAL const Operation<__VA_ARGS__> orv_##name;
#include "image/resize/resize_plan.inc"
#undef KERNEL

}  // namespace orv
