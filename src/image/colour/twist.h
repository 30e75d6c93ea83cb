// Colour matrices: every channel a weighted sum of all three.
#pragma once

#include "core/shapes.h"

namespace orv {

template <class T>
using SrcTwistDst = Status(const T* src, int srcStep, const float* twist, T* dst, int dstStep, Size roi);

#define KERNEL(name, ...) extern "C" ORV_INTERNAL const Operation<__VA_ARGS__> orv_##name;
#include "image/colour/twist.inc"
#undef KERNEL

namespace twist {
#define KERNEL(name, ...) __VA_ARGS__ name;
namespace px {
#include "image/colour/twist.inc"
}
namespace w7 {
#include "image/colour/twist.inc"
}
namespace v8 {
#include "image/colour/twist.inc"
}
namespace h9 {
#include "image/colour/twist.inc"
}
#undef KERNEL
namespace s8 = v8;
namespace p8 = v8;
namespace g9 = v8;
}  // namespace twist

}  // namespace orv
