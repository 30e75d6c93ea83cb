// Nearest neighbour through a plan.
#pragma once

#include "image/resize_plan.h"

namespace orv {

#define KERNEL(name, ...) extern "C" ORV_INTERNAL const Operation<__VA_ARGS__> orv_##name;
#include "image/resize_nearest.inc"
#undef KERNEL

namespace resize_nearest {
#define KERNEL(name, ...) __VA_ARGS__ name;
namespace px {
#include "image/resize_nearest.inc"
}
namespace v8 {
#include "image/resize_nearest.inc"
}
namespace h9 {
#include "image/resize_nearest.inc"
}
#undef KERNEL
namespace w7 = px;
namespace s8 = v8;
namespace p8 = v8;
namespace g9 = v8;
}  // namespace resize_nearest

}  // namespace orv
