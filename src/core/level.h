// The build that this translation unit is: one family of kernels at one level; lapack_calls.cpp names its own.
//
// Everything that a kernel source instantiates must live in a namespace of that build. The linker merges
// inline functions of equal names, and the copy that stays may have been compiled for AVX2, so that the program
// dies on an older processor, or with another family's optimisation and contraction of sums. ORV_LEVEL is
// <family>_<level>, which orvane_add_kernels sees to. Common helpers stand in `inline namespace ORV_LEVEL`, and
// kernel sources use no standard containers or algorithms.
#pragma once

#ifndef ORV_LEVEL
#error "Kernel sources are compiled with -DORV_LEVEL=<family>_<level>"
#endif

// Capabilities. Algorithms ask for these, never for a level.
#if defined(ORV_LEVEL_IS_px)
#define ORV_HAVE_VECTORS 0  // the plain variant: the scalar meaning of every operation
#else
#define ORV_HAVE_VECTORS 1
#endif
#if ORV_HAVE_VECTORS && defined(__SSSE3__)
#define ORV_HAVE_BYTE_SHUFFLE 1
#else
#define ORV_HAVE_BYTE_SHUFFLE 0
#endif
#if ORV_HAVE_VECTORS && defined(__SSE4_1__)
#define ORV_HAVE_SSE41 1
#else
#define ORV_HAVE_SSE41 0
#endif
#if ORV_HAVE_VECTORS && defined(__AVX__)
#define ORV_HAVE_FLOAT256 1
#else
#define ORV_HAVE_FLOAT256 0
#endif
#if ORV_HAVE_VECTORS && defined(__AVX2__)
#define ORV_HAVE_INT256 1
#else
#define ORV_HAVE_INT256 0
#endif

#if ORV_HAVE_VECTORS && defined(__FMA__)
#define ORV_HAVE_FUSED 1  // for use where fusing cannot change a bit
#else
#define ORV_HAVE_FUSED 0
#endif

// Building blocks of loops: inlined at -O0 as well, so that vectors never pass through memory calls.
#define ORV_INLINE inline __attribute__((always_inline))
