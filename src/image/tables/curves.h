// Curves: straight lines between given points.
#pragma once

#include "core/shapes.h"

namespace orv {

template <class From, class To>
using SrcCurveDst = Status(const From* src, int srcStep, const From* levels, const To* values, int levelCount, To* dst,
                           int dstStep, Size roi);

#define KERNEL(name, ...) extern "C" ORV_INTERNAL const Operation<__VA_ARGS__> orv_##name;
#include "image/tables/curves.inc"
#undef KERNEL

}  // namespace orv
