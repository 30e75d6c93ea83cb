// Float vectors: 32f, 64f.
#pragma once

#include "core/shapes.h"

namespace orv {

#define KERNEL(name, ...) extern "C" ORV_INTERNAL const Operation<__VA_ARGS__> orv_##name;
#include "signal/float_vectors.inc"
#undef KERNEL

namespace float_vectors {
#define KERNEL(name, ...) __VA_ARGS__ name;
namespace px {
#include "signal/float_vectors.inc"
}
namespace w7 {
#include "signal/float_vectors.inc"
}
namespace g9 {
#include "signal/float_vectors.inc"
}
namespace h9 {
#include "signal/float_vectors.inc"
}
#undef KERNEL
namespace v8 = w7;
namespace s8 = w7;
namespace p8 = w7;
}  // namespace float_vectors

}  // namespace orv
