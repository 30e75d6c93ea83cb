// Powers of two in steps of 1/256, shared by the exponentials of all levels.
#pragma once

#include <cstdint>

#include "core/operation.h"

namespace orv {

extern "C" {

// The bits of 2^(j/256), rounded to double, less j << 44: adding k << 44, for any k that is j modulo
// 256, then gives the bits of 2^(k/256) without taking k apart.
extern ORV_INTERNAL const std::uint64_t orv_exp2_scale[256];

// What the rounding left off: (2^(j/256) - scale) / scale.
extern ORV_INTERNAL const double orv_exp2_tail[256];

}  // extern "C"

}  // namespace orv
