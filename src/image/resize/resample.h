// Resampling by explicit factors and shifts: the source point (x, y) lands on
// (xFactor x + xShift, yFactor y + yShift).
#pragma once

#include "core/shapes.h"
#include "image/interpolation.h"

namespace orv {

// What an interpolation code may be combined with.
constexpr unsigned kFlags = 0xE0000000u;
constexpr unsigned kSmoothEdges = 0x80000000u;

// What a zoom comes to.
struct SquareMapping {
    double factor;  // of both axes
    double xShift, yShift;
    int interpolation;
};

using ResampleBufferSize = Status(Rectangle srcRoi, Rectangle dstRoi, int channels, int interpolation, int* size);

// Floating-point arguments come by reference: on the x87, copies would pass through its registers under the host's
// control word.
using Zoom = Status(Size source, int dstWidth, const float& zoom, int panX, int panY, bool smooth,
                    SquareMapping* mapping);

// All of the source to all of the destination: the rows of a matrix, as of a perspective without one.
using MappingOfWhole = Status(Size source, Size destination, int interpolation, double* coefficients);

template <class T>
using Resample = Status(const T* src, Size srcSize, int srcStep, Rectangle srcRoi, T* dst, int dstStep,
                        Rectangle dstRoi, const double& xFactor, const double& yFactor, const double& xShift,
                        const double& yShift, int interpolation, void* buffer);

#define KERNEL(name, ...) extern "C" ORV_INTERNAL const Operation<__VA_ARGS__> orv_##name;
#include "image/resize/resample.inc"
#undef KERNEL

}  // namespace orv
