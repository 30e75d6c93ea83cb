// Packed spectra of images: products, magnitudes, phases, to complex images and back.
#pragma once

#include "Complex32f.h"
#include "core/shapes.h"

namespace orv {

#define KERNEL(name, ...) extern "C" ORV_INTERNAL const Operation<__VA_ARGS__> orv_##name;
#include "spectral/packed_images.inc"
#undef KERNEL

}  // namespace orv
