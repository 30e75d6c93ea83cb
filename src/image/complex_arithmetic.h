// Complex arithmetic: 32fc with one channel.
#pragma once

#include "core/shapes.h"
#include "Complex32f.h"

namespace orv {

#define KERNEL(name, ...) extern "C" ORV_INTERNAL const Operation<__VA_ARGS__> orv_##name;
#include "image/complex_arithmetic.inc"
#undef KERNEL

namespace complex_arithmetic {
#define KERNEL(name, ...) __VA_ARGS__ name;
namespace px {
#include "image/complex_arithmetic.inc"
}
namespace w7 {
#include "image/complex_arithmetic.inc"
}
namespace g9 {
#include "image/complex_arithmetic.inc"
}
namespace h9 {
#include "image/complex_arithmetic.inc"
}
#undef KERNEL
namespace v8 = w7;
namespace s8 = w7;
namespace p8 = w7;
}  // namespace complex_arithmetic

}  // namespace orv
