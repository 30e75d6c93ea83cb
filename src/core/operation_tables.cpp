// The table of every operation: one kernel per level, in the order of the index.
#include "image/bitwise.h"
#include "image/border.h"
#include "image/comparison.h"
#include "image/complex_arithmetic.h"
#include "image/data_movement.h"
#include "image/extremes.h"
#include "image/filters.h"
#include "image/float_arithmetic.h"
#include "image/float_elementary.h"
#include "image/float_sums.h"
#include "image/histogram.h"
#include "image/integer_arithmetic.h"
#include "image/resample.h"
#include "image/resize_cubic.h"
#include "image/resize_linear.h"
#include "image/resize_nearest.h"
#include "image/resize_plan.h"
#include "image/sums.h"
#include "image/threshold.h"
#include "signal/elementary.h"
#include "signal/float_vectors.h"
#include "signal/integer_vectors.h"
#include "signal/spectra.h"
#include "signal/vector_moves.h"
#include "linalg/lapack_kernels.h"
#include "linalg/elimination.h"
#include "linalg/matrices.h"
#include "spectral/fft.h"
#include "spectral/random_numbers.h"

namespace orv {

#define TABLE(family, name, ...)                                                                  \
    extern "C" const Operation<__VA_ARGS__> orv_##name = {                                        \
        {family::px::name, family::w7::name, family::v8::name, family::s8::name, family::p8::name, \
         family::g9::name, family::h9::name}};

#define KERNEL(name, ...) TABLE(bitwise, name, __VA_ARGS__)
#include "image/bitwise.inc"
#undef KERNEL

#define KERNEL(name, ...) TABLE(border, name, __VA_ARGS__)
#include "image/border.inc"
#undef KERNEL

#define KERNEL(name, ...) TABLE(comparison, name, __VA_ARGS__)
#include "image/comparison.inc"
#undef KERNEL

#define KERNEL(name, ...) TABLE(complex_arithmetic, name, __VA_ARGS__)
#include "image/complex_arithmetic.inc"
#undef KERNEL

#define KERNEL(name, ...) TABLE(data_movement, name, __VA_ARGS__)
#include "image/data_movement.inc"
#undef KERNEL

#define KERNEL(name, ...) TABLE(extremes, name, __VA_ARGS__)
#include "image/extremes.inc"
#undef KERNEL

#define KERNEL(name, ...) TABLE(filters_float, name, __VA_ARGS__)
#include "image/filters_float.inc"
#undef KERNEL

#define KERNEL(name, ...) TABLE(filters_integer, name, __VA_ARGS__)
#include "image/filters_integer.inc"
#undef KERNEL

#define KERNEL(name, ...) TABLE(float_arithmetic, name, __VA_ARGS__)
#include "image/float_arithmetic.inc"
#undef KERNEL

#define KERNEL(name, ...) TABLE(float_elementary, name, __VA_ARGS__)
#include "image/float_elementary.inc"
#undef KERNEL

#define KERNEL(name, ...) TABLE(float_sums, name, __VA_ARGS__)
#include "image/float_sums.inc"
#undef KERNEL

#define KERNEL(name, ...) TABLE(histogram, name, __VA_ARGS__)
#include "image/histogram.inc"
#undef KERNEL

#define KERNEL(name, ...) TABLE(integer_arithmetic, name, __VA_ARGS__)
#include "image/integer_arithmetic.inc"
#undef KERNEL

#define KERNEL(name, ...) TABLE(resample, name, __VA_ARGS__)
#include "image/resample.inc"
#undef KERNEL

#define KERNEL(name, ...) TABLE(resize_cubic, name, __VA_ARGS__)
#include "image/resize_cubic.inc"
#undef KERNEL

#define KERNEL(name, ...) TABLE(resize_linear, name, __VA_ARGS__)
#include "image/resize_linear.inc"
#undef KERNEL

#define KERNEL(name, ...) TABLE(resize_nearest, name, __VA_ARGS__)
#include "image/resize_nearest.inc"
#undef KERNEL

#define KERNEL(name, ...) TABLE(resize_plan, name, __VA_ARGS__)
#include "image/resize_plan.inc"
#undef KERNEL

#define KERNEL(name, ...) TABLE(sums, name, __VA_ARGS__)
#include "image/sums.inc"
#undef KERNEL

#define KERNEL(name, ...) TABLE(threshold, name, __VA_ARGS__)
#include "image/threshold.inc"
#undef KERNEL

#define KERNEL(name, ...) TABLE(elementary, name, __VA_ARGS__)
#include "signal/elementary.inc"
#undef KERNEL

#define KERNEL(name, ...) TABLE(float_vectors, name, __VA_ARGS__)
#include "signal/float_vectors.inc"
#undef KERNEL

#define KERNEL(name, ...) TABLE(integer_vectors, name, __VA_ARGS__)
#include "signal/integer_vectors.inc"
#undef KERNEL

#define KERNEL(name, ...) TABLE(spectra, name, __VA_ARGS__)
#include "signal/spectra.inc"
#undef KERNEL

#define KERNEL(name, ...) TABLE(vector_moves, name, __VA_ARGS__)
#include "signal/vector_moves.inc"
#undef KERNEL

#define KERNEL(name, ...) TABLE(lapack_kernels, name, __VA_ARGS__)
#include "linalg/lapack_kernels.inc"
#undef KERNEL

#define KERNEL(name, ...) TABLE(elimination, name, __VA_ARGS__)
#include "linalg/elimination.inc"
#undef KERNEL

#define KERNEL(name, ...) TABLE(matrices, name, __VA_ARGS__)
#include "linalg/matrices.inc"
#undef KERNEL

#define KERNEL(name, ...) TABLE(fft, name, __VA_ARGS__)
#include "spectral/fft.inc"
#undef KERNEL

#define KERNEL(name, ...) TABLE(random_numbers, name, __VA_ARGS__)
#include "spectral/random_numbers.inc"
#undef KERNEL

}  // namespace orv
