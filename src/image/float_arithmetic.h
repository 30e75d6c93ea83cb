// Float arithmetic: 32f with one and three channels.
#pragma once

#include "core/shapes.h"

namespace orv {

#define KERNEL(name, ...) extern "C" ORV_INTERNAL const Operation<__VA_ARGS__> orv_##name;
#include "image/float_arithmetic.inc"
#undef KERNEL

namespace float_arithmetic {
#define KERNEL(name, ...) __VA_ARGS__ name;
namespace px {
#include "image/float_arithmetic.inc"
}
namespace w7 {
#include "image/float_arithmetic.inc"
}
namespace g9 {
#include "image/float_arithmetic.inc"
}
#undef KERNEL
namespace v8 = w7;
namespace s8 = w7;
namespace p8 = w7;
namespace h9 = g9;
}  // namespace float_arithmetic

}  // namespace orv
