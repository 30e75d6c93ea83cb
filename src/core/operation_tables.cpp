// The table of every operation: one kernel per level, in the order of the index.
#include "image/bitwise.h"
#include "image/border.h"
#include "image/comparison.h"
#include "image/data_movement.h"
#include "image/integer_arithmetic.h"
#include "image/threshold.h"

namespace orv {

#define TABLE(family, name, ...)                                                                  \
    extern "C" const Operation<__VA_ARGS__> orv_##name = {                                        \
        {family::px::name, family::w7::name, family::v8::name, family::s8::name, family::p8::name, \
         family::g9::name, family::h9::name}};

#define KERNEL(name, ...) TABLE(data_movement, name, __VA_ARGS__)
#include "image/data_movement.inc"
#undef KERNEL

#define KERNEL(name, ...) TABLE(integer_arithmetic, name, __VA_ARGS__)
#include "image/integer_arithmetic.inc"
#undef KERNEL

#define KERNEL(name, ...) TABLE(bitwise, name, __VA_ARGS__)
#include "image/bitwise.inc"
#undef KERNEL

#define KERNEL(name, ...) TABLE(border, name, __VA_ARGS__)
#include "image/border.inc"
#undef KERNEL

#define KERNEL(name, ...) TABLE(comparison, name, __VA_ARGS__)
#include "image/comparison.inc"
#undef KERNEL

#define KERNEL(name, ...) TABLE(threshold, name, __VA_ARGS__)
#include "image/threshold.inc"
#undef KERNEL

}  // namespace orv
