// Histograms over evenly spaced levels. Counting is scalar work: one variant serves all levels.
#pragma once

#include "core/shapes.h"

namespace orv {

#define KERNEL(name, ...) extern "C" ORV_INTERNAL const Operation<__VA_ARGS__> orv_##name;
#include "image/histogram.inc"
#undef KERNEL

namespace histogram {
#define KERNEL(name, ...) __VA_ARGS__ name;
namespace px {
#include "image/histogram.inc"
}
#undef KERNEL
namespace w7 = px;
namespace v8 = px;
namespace s8 = px;
namespace p8 = px;
namespace g9 = px;
namespace h9 = px;
}  // namespace histogram

}  // namespace orv
