// Sums and means of float images.
#pragma once

#include "core/shapes.h"

namespace orv {

// What callers may ask for. Both get the same sums: one order of additions serves all.
constexpr int kHintFast = 1;
constexpr int kHintAccurate = 2;

#define KERNEL(name, ...) extern "C" ORV_INTERNAL const Operation<__VA_ARGS__> orv_##name;
#include "image/float_sums.inc"
#undef KERNEL

namespace float_sums {
#define KERNEL(name, ...) __VA_ARGS__ name;
namespace px {
#include "image/float_sums.inc"
}
namespace w7 {
#include "image/float_sums.inc"
}
namespace g9 {
#include "image/float_sums.inc"
}
#undef KERNEL
namespace v8 = w7;
namespace s8 = w7;
namespace p8 = w7;
namespace h9 = g9;
}  // namespace float_sums

}  // namespace orv
