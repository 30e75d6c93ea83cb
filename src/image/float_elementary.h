// Logarithm and exponential of float images.
#pragma once

#include "core/shapes.h"

namespace orv {

#define KERNEL(name, ...) extern "C" ORV_INTERNAL const Operation<__VA_ARGS__> orv_##name;
#include "image/float_elementary.inc"
#undef KERNEL

namespace float_elementary {
#define KERNEL(name, ...) __VA_ARGS__ name;
namespace px {
#include "image/float_elementary.inc"
}
namespace w7 {
#include "image/float_elementary.inc"
}
namespace g9 {
#include "image/float_elementary.inc"
}
namespace h9 {
#include "image/float_elementary.inc"
}
#undef KERNEL
namespace v8 = w7;
namespace s8 = w7;
namespace p8 = w7;
}  // namespace float_elementary

}  // namespace orv
