// The table of every operation: one kernel per level, in the order of the index.
#include "image/data_movement.h"
#include "image/integer_arithmetic.h"
#include "image/float_arithmetic.h"
#include "image/complex_arithmetic.h"
#include "signal/integer_vectors.h"
#include "signal/float_vectors.h"
#include "signal/spectra.h"

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

#define KERNEL(name, ...) TABLE(float_arithmetic, name, __VA_ARGS__)
#include "image/float_arithmetic.inc"
#undef KERNEL

#define KERNEL(name, ...) TABLE(complex_arithmetic, name, __VA_ARGS__)
#include "image/complex_arithmetic.inc"
#undef KERNEL

#define KERNEL(name, ...) TABLE(integer_vectors, name, __VA_ARGS__)
#include "signal/integer_vectors.inc"
#undef KERNEL

#define KERNEL(name, ...) TABLE(float_vectors, name, __VA_ARGS__)
#include "signal/float_vectors.inc"
#undef KERNEL

#define KERNEL(name, ...) TABLE(spectra, name, __VA_ARGS__)
#include "signal/spectra.inc"
#undef KERNEL

}  // namespace orv
