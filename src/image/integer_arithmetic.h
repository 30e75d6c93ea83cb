// Integer arithmetic with scaling: 8u with one, three and four channels, 16u and 16s with one.
#pragma once

#include "core/shapes.h"

namespace orv {

#define KERNEL(name, ...) extern "C" ORV_INTERNAL const Operation<__VA_ARGS__> orv_##name;
#include "image/integer_arithmetic.inc"
#undef KERNEL

namespace integer_arithmetic {
#define KERNEL(name, ...) __VA_ARGS__ name;
namespace px {
#include "image/integer_arithmetic.inc"
}
namespace w7 {
#include "image/integer_arithmetic.inc"
}
namespace p8 {
#include "image/integer_arithmetic.inc"
}
namespace h9 {
#include "image/integer_arithmetic.inc"
}
#undef KERNEL
namespace v8 = w7;
namespace s8 = w7;
namespace g9 = p8;
}  // namespace integer_arithmetic

}  // namespace orv
