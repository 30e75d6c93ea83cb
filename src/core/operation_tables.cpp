// The table of every operation: one kernel per level, in the order of the index.
#include "image/data_movement.h"
#include "image/filters.h"
#include "image/integer_arithmetic.h"

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

#define KERNEL(name, ...) TABLE(filters_float, name, __VA_ARGS__)
#include "image/filters_float.inc"
#undef KERNEL

#define KERNEL(name, ...) TABLE(filters_integer, name, __VA_ARGS__)
#include "image/filters_integer.inc"
#undef KERNEL

}  // namespace orv
