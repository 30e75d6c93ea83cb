// Linear interpolation through a plan.
#pragma once

#include "image/resize_plan.h"

namespace orv {

#define KERNEL(name, ...) extern "C" ORV_INTERNAL const Operation<__VA_ARGS__> orv_##name;
#include "image/resize_linear.inc"
#undef KERNEL

namespace resize_linear {
#define KERNEL(name, ...) __VA_ARGS__ name;
namespace px {
#include "image/resize_linear.inc"
}
namespace w7 {
#include "image/resize_linear.inc"
}
namespace h9 {
#include "image/resize_linear.inc"
}
#undef KERNEL
namespace v8 = w7;
namespace s8 = w7;
namespace p8 = w7;
namespace g9 = w7;
}  // namespace resize_linear

}  // namespace orv
