// An operation: one kernel per processor level, reached by the index that start-up chose.
#pragma once

#include "core/status.h"

#if defined(_WIN32)
#define ORV_INTERNAL
#else
// Hidden on the declaration: otherwise each use would go through the global offset table.
#define ORV_INTERNAL __attribute__((visibility("hidden")))
#endif

namespace orv {

// Processor levels in the order of the tables.
enum Level : int { level_px, level_w7, level_v8, level_s8, level_p8, level_g9, level_h9, kLevels };

// A region of interest in pixels.
struct Size {
    int width;
    int height;
};

// The length of the vectors of a call, in elements. A type of its own: an int after a pointer is a step.
struct Length {
    int count;
};

extern "C" {
// The column that every call uses. Written once, by start-up.
extern ORV_INTERNAL int orv_variant_index;
}

template <class Signature>
struct Operation;

template <class... Args>
struct Operation<Status(Args...)> {
    using Kernel = Status(Args...);
    Kernel* variant[kLevels];

    Status operator()(Args... args) const { return variant[orv_variant_index](args...); }
};

}  // namespace orv
