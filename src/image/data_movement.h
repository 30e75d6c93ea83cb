// Copy, set, conversion, channel order, transposition and mirroring of images.
#pragma once

#include "Complex32f.h"
#include "core/shapes.h"

namespace orv {

#define KERNEL(name, ...) extern "C" ORV_INTERNAL const Operation<__VA_ARGS__> orv_##name;
#include "image/data_movement.inc"
#undef KERNEL

namespace data_movement {
#define KERNEL(name, ...) __VA_ARGS__ name;
namespace px {
#include "image/data_movement.inc"
}
namespace w7 {
#include "image/data_movement.inc"
}
namespace v8 {
#include "image/data_movement.inc"
}
namespace h9 {
#include "image/data_movement.inc"
}
#undef KERNEL

namespace s8 = v8;
namespace p8 = v8;
namespace g9 = v8;
}  // namespace data_movement

}  // namespace orv
