// The shapes of element-wise kernels: a row of a family is one kernel, and its shape is named after its operands.
//
//     SHAPE(name, body, types..., channels, types of what follows the size...)
//
// as in facade/forms.h. The body gets the kernel itself, which by_rows() needs, the operands, what follows the size,
// and the channels, which it may take as an int or as Fixed<channels>; a single constant comes by its address, as
// several do. Only kernel sources include this: its macros end with them.
#pragma once

#include <type_traits>

#include "core/checks.h"
#include "core/parameters.h"

namespace orv {

template <int n>
using Fixed = std::integral_constant<int, n>;

}  // namespace orv

// (name, body, From, To, channels, ...)
#define ONE_IMAGE(name, body, From, To, ...)                                                                \
    Status name(const From* src, int srcStep, To* dst, int dstStep, Size roi PARAMETERS(__VA_ARGS__))       \
    {                                                                                                       \
        return body(name, src, srcStep, dst, dstStep, roi ARGUMENTS(__VA_ARGS__), CHANNELS(__VA_ARGS__));   \
    }

// (name, body, From, To, channels, ...)
#define TWO_IMAGES(name, body, From, To, ...)                                                               \
    Status name(const From* src1, int src1Step, const From* src2, int src2Step, To* dst, int dstStep,       \
                Size roi PARAMETERS(__VA_ARGS__))                                                           \
    {                                                                                                       \
        return body(name, src1, src1Step, src2, src2Step, dst, dstStep, roi ARGUMENTS(__VA_ARGS__),         \
                    CHANNELS(__VA_ARGS__));                                                                 \
    }

// (name, body, From, Value, To, channels, ...): the channels are one.
#define ONE_CONSTANT(name, body, From, Value, To, ...)                                                      \
    Status name(const From* src, int srcStep, Value value, To* dst, int dstStep,                            \
                Size roi PARAMETERS(__VA_ARGS__))                                                           \
    {                                                                                                       \
        return body(name, src, srcStep, &value, dst, dstStep, roi ARGUMENTS(__VA_ARGS__),                   \
                    CHANNELS(__VA_ARGS__));                                                                 \
    }
#define CONSTANT_PER_CHANNEL(name, body, From, Value, To, ...)                                              \
    Status name(const From* src, int srcStep, const Value* values, To* dst, int dstStep,                    \
                Size roi PARAMETERS(__VA_ARGS__))                                                           \
    {                                                                                                       \
        return body(name, src, srcStep, values, dst, dstStep, roi ARGUMENTS(__VA_ARGS__),                   \
                    CHANNELS(__VA_ARGS__));                                                                 \
    }
#define CHANNELS(...) Fixed<FIRST(__VA_ARGS__)>()

// (name, body, T, ...): vectors do not need the kernel itself, nor have they channels.
#define TWO_VECTORS(name, body, ...)                                                                        \
    Status name(const FIRST(__VA_ARGS__)* src1, const FIRST(__VA_ARGS__)* src2, FIRST(__VA_ARGS__)* dst,    \
                Length len PARAMETERS(__VA_ARGS__))                                                         \
    {                                                                                                       \
        return body(src1, src2, dst, len ARGUMENTS(__VA_ARGS__));                                           \
    }
#define VECTOR_AND_CONSTANT(name, body, ...)                                                                \
    Status name(const FIRST(__VA_ARGS__)* src, FIRST(__VA_ARGS__) value, FIRST(__VA_ARGS__)* dst,           \
                Length len PARAMETERS(__VA_ARGS__))                                                         \
    {                                                                                                       \
        return body(src, value, dst, len ARGUMENTS(__VA_ARGS__));                                           \
    }
