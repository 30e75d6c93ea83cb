// The least and the greatest of 3x3 pixels. The destination may be the source.
#pragma once

#include "core/shapes.h"

namespace orv {

#define KERNEL(name, ...) extern "C" ORV_INTERNAL const Operation<__VA_ARGS__> orv_##name;
#include "image/rank/morphology.inc"
#undef KERNEL

}  // namespace orv
