// Vectors filled and moved as they are. The C library's copy and fill choose by the processor themselves: one
// variant serves all levels.
#pragma once

#include "core/shapes.h"

namespace orv {

#define KERNEL(name, ...) extern "C" ORV_INTERNAL const Operation<__VA_ARGS__> orv_##name;
#include "signal/vector_moves.inc"
#undef KERNEL

namespace vector_moves {
#define KERNEL(name, ...) __VA_ARGS__ name;
namespace px {
#include "signal/vector_moves.inc"
}
#undef KERNEL
namespace w7 = px;
namespace v8 = px;
namespace s8 = px;
namespace p8 = px;
namespace g9 = px;
namespace h9 = px;
}  // namespace vector_moves

}  // namespace orv
