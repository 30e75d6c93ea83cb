// Copy, set, conversion, channel order, transposition and mirroring of images.
#pragma once

#include "Complex32f.h"
#include "core/shapes.h"

namespace orv {

#define KERNEL(name, ...) extern "C" ORV_INTERNAL const Operation<__VA_ARGS__> orv_##name;
#include "image/moving/data_movement.inc"
#undef KERNEL

}  // namespace orv
