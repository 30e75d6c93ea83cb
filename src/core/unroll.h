// Loops over a few numbers that are to live in registers: unrolled.
#pragma once

#if defined(__clang__)
#define ORV_UNROLL _Pragma("unroll")
#else
#define ORV_UNROLL _Pragma("GCC unroll 8")
#endif
