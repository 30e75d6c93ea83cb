// 2/pi with enough bits for the reduction of any finite double.
#pragma once

#include <cstdint>

#include "core/operation.h"

namespace orv {

extern "C" {

// The words after the point, the most significant first, behind two words of zeros.
extern ORV_INTERNAL const std::uint32_t orv_two_over_pi[42];

}  // extern "C"

}  // namespace orv
