// Windows of images: products of a window along the rows and one along the columns.
#pragma once

#include "core/shapes.h"

namespace orv {

#define KERNEL(name, ...) extern "C" ORV_INTERNAL const Operation<__VA_ARGS__> orv_##name;
#include "spectral/image_windows.inc"
#undef KERNEL

}  // namespace orv
