// Products of packed spectra, magnitude, complex vectors from parts, windows.
#pragma once

#include "core/shapes.h"
#include "Complex32f.h"

namespace orv {

#define KERNEL(name, ...) extern "C" ORV_INTERNAL const Operation<__VA_ARGS__> orv_##name;
#include "signal/spectra.inc"
#undef KERNEL

}  // namespace orv
