// Pixels fetched from computed places: rotation, perspective, maps.
//
// Doubles come by their addresses: whoever passes them on must not load them into an x87 register, where a
// signalling NaN traps before a kernel has masked anything.
#pragma once

#include "core/shapes.h"
#include "image/interpolation.h"

namespace orv {

template <class T>
using Rotating = Status(const T* src, Size srcSize, int srcStep, Rectangle srcRoi, T* dst, int dstStep,
                        Rectangle dstRoi, const double* angle, const double* xShift, const double* yShift,
                        int interpolation);

template <class T>
using RotatingAbout = Status(const T* src, Size srcSize, int srcStep, T* dst, int dstStep, Size dstSize,
                             const double* angle, const double* centerX, const double* centerY, int interpolation);

using RotationBound = Status(Rectangle srcRoi, const double* angle, const double* xShift, const double* yShift,
                             double* bound);

using RotationShift = Status(const double* centerX, const double* centerY, const double* angle, double* xShift,
                             double* yShift);

template <class T>
using Projecting = Status(const T* src, Size srcSize, int srcStep, Rectangle srcRoi, T* dst, int dstStep,
                          Rectangle dstRoi, const double* coefficients, int interpolation);

using ProjectionBound = Status(Rectangle srcRoi, const double* coefficients, double* bound);

template <class T>
using Remapping = Status(const T* src, Size srcSize, int srcStep, Rectangle srcRoi, const float* xMap, int xMapStep,
                         const float* yMap, int yMapStep, T* dst, int dstStep, Size dstSize, int interpolation);

#define KERNEL(name, ...) extern "C" ORV_INTERNAL const Operation<__VA_ARGS__> orv_##name;
#include "image/warp/warp.inc"
#undef KERNEL

}  // namespace orv
