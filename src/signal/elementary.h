// Elementary functions of vectors.
#pragma once

#include "core/shapes.h"

namespace orv {

#define KERNEL(name, ...) extern "C" ORV_INTERNAL const Operation<__VA_ARGS__> orv_##name;
#include "signal/elementary.inc"
#undef KERNEL

namespace elementary {
#define KERNEL(name, ...) __VA_ARGS__ name;
namespace px {
#include "signal/elementary.inc"
}
namespace w7 {
#include "signal/elementary.inc"
}
namespace g9 {
#include "signal/elementary.inc"
}
namespace h9 {
#include "signal/elementary.inc"
}
#undef KERNEL
namespace v8 = w7;
namespace s8 = w7;
namespace p8 = w7;
}  // namespace elementary

}  // namespace orv
