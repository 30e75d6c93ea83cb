// The table of every operation: one kernel per level, in the order of the index.
#include "image/data_movement.h"
#include "image/extremes.h"
#include "image/float_sums.h"
#include "image/histogram.h"
#include "image/integer_arithmetic.h"
#include "image/sums.h"

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

#define KERNEL(name, ...) TABLE(sums, name, __VA_ARGS__)
#include "image/sums.inc"
#undef KERNEL

#define KERNEL(name, ...) TABLE(float_sums, name, __VA_ARGS__)
#include "image/float_sums.inc"
#undef KERNEL

#define KERNEL(name, ...) TABLE(extremes, name, __VA_ARGS__)
#include "image/extremes.inc"
#undef KERNEL

#define KERNEL(name, ...) TABLE(histogram, name, __VA_ARGS__)
#include "image/histogram.inc"
#undef KERNEL

}  // namespace orv
