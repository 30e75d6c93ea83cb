// Integer vectors under the scaling rule: 8u, 16u, 32s.
#pragma once

#include "core/shapes.h"

namespace orv {

#define KERNEL(name, ...) extern "C" ORV_INTERNAL const Operation<__VA_ARGS__> orv_##name;
#include "signal/integer_vectors.inc"
#undef KERNEL

namespace integer_vectors {
#define KERNEL(name, ...) __VA_ARGS__ name;
namespace px {
#include "signal/integer_vectors.inc"
}
namespace w7 {
#include "signal/integer_vectors.inc"
}
namespace p8 {
#include "signal/integer_vectors.inc"
}
namespace h9 {
#include "signal/integer_vectors.inc"
}
#undef KERNEL
namespace v8 = w7;
namespace s8 = w7;
namespace g9 = p8;
}  // namespace integer_vectors

}  // namespace orv
