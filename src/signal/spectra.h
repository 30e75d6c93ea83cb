// Products of packed spectra, magnitude, complex vectors from parts, windows.
#pragma once

#include "core/shapes.h"
#include "Complex32f.h"

namespace orv {

#define KERNEL(name, ...) extern "C" ORV_INTERNAL const Operation<__VA_ARGS__> orv_##name;
#include "signal/spectra.inc"
#undef KERNEL

namespace spectra {
#define KERNEL(name, ...) __VA_ARGS__ name;
namespace px {
#include "signal/spectra.inc"
}
namespace w7 {
#include "signal/spectra.inc"
}
namespace g9 {
#include "signal/spectra.inc"
}
namespace h9 {
#include "signal/spectra.inc"
}
#undef KERNEL
namespace v8 = w7;
namespace s8 = w7;
namespace p8 = w7;
}  // namespace spectra

}  // namespace orv
