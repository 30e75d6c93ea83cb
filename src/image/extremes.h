// Least and greatest pixels of a region, and where they are.
#pragma once

#include "core/shapes.h"

namespace orv {

#define KERNEL(name, ...) extern "C" ORV_INTERNAL const Operation<__VA_ARGS__> orv_##name;
#include "image/extremes.inc"
#undef KERNEL

namespace extremes {
#define KERNEL(name, ...) __VA_ARGS__ name;
namespace px {
#include "image/extremes.inc"
}
namespace w7 {
#include "image/extremes.inc"
}
namespace p8 {
#include "image/extremes.inc"
}
namespace g9 {
#include "image/extremes.inc"
}
namespace h9 {
#include "image/extremes.inc"
}
#undef KERNEL
namespace v8 = w7;
namespace s8 = w7;
}  // namespace extremes

}  // namespace orv
