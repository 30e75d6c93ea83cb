// Sums, means and standard deviations of integer images.
#pragma once

#include "core/shapes.h"

namespace orv {

#define KERNEL(name, ...) extern "C" ORV_INTERNAL const Operation<__VA_ARGS__> orv_##name;
#include "image/sums.inc"
#undef KERNEL

namespace sums {
#define KERNEL(name, ...) __VA_ARGS__ name;
namespace px {
#include "image/sums.inc"
}
namespace w7 {
#include "image/sums.inc"
}
namespace h9 {
#include "image/sums.inc"
}
#undef KERNEL
namespace v8 = w7;
namespace s8 = w7;
namespace p8 = w7;
namespace g9 = w7;
}  // namespace sums

}  // namespace orv
