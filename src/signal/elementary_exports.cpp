// The elementary functions of every level under names of their own, and the tables through which these
// entry points reach the kernels.
//
// A table has three implementations, one for each accuracy slot, and three relative costs. Every level has
// one implementation of a function, so all slots hold the same. s8 goes through the tables of v8; those of
// h9 are named S9. An entry point above the processor's level
// ends in an invalid instruction: choosing it is the caller's business.
#include "Export.h"
#include "signal_elementary_kernels.h"

// On 32-bit Windows entry points remove their arguments themselves.
#if defined(_WIN32) && !defined(_WIN64)
#define ENTRY_CALL __stdcall
#else
#define ENTRY_CALL
#endif

using namespace orv;

namespace {

using Float = VectorSrcDst<float>;
using FloatFloat = VectorSrcSrcDst<float>;
using FloatTwice = VectorSrcDstDst<float>;
using DoubleTwice = VectorSrcDstDst<double>;

enum Slot { slot_a21 = 0, slot_a50 = 0, slot_a24 = 1, slot_a11 = 2 };

}  // namespace

// --- Tables ---------------------------------------------------------------------------------------

// Costs are cycles per element at 4096 elements, measured; where hosts know a figure, that one.
#define TABLE(function, name, Kernel, TAG, level, ...)                                             \
    extern "C" ORVANE_API Kernel* const own_ipps_##function##_##TAG##_ttab[3];                     \
    extern "C" ORVANE_API const float own_ipps_##function##_##TAG##_ctab[3];                       \
    Kernel* const own_ipps_##function##_##TAG##_ttab[3] = {elementary::level::name, elementary::level::name, \
                                                           elementary::level::name};               \
    const float own_ipps_##function##_##TAG##_ctab[3] = {__VA_ARGS__};

#define SAME(cost) cost, cost, cost

// The levels from w7 to p8 share a kernel, so they share its cost.
#define VECTOR_TABLES(function, name, Kernel, cost_w7, cost_g9, cost_h9) \
    TABLE(function, name, Kernel, V8, v8, SAME(cost_w7))                 \
    TABLE(function, name, Kernel, P8, p8, SAME(cost_w7))                 \
    TABLE(function, name, Kernel, G9, g9, SAME(cost_g9))                 \
    TABLE(function, name, Kernel, S9, h9, SAME(cost_h9))

#define TABLES(function, name, Kernel, cost_px, cost_w7, cost_g9, cost_h9) \
    TABLE(function, name, Kernel, PX, px, SAME(cost_px))                   \
    TABLE(function, name, Kernel, W7, w7, SAME(cost_w7))                   \
    VECTOR_TABLES(function, name, Kernel, cost_w7, cost_g9, cost_h9)

TABLES(sAtan2, Atan2_32f_A24, FloatFloat, 658.68f, 11.3f, 7.1f, 4.0f)
TABLES(sCos, Cos_32f_A11, Float, 8.8f, 2.5f, 2.05f, 0.87f)
TABLES(sSin, Sin_32f_A11, Float, 8.1f, 2.3f, 1.5f, 0.75f)
TABLES(sSinCos, SinCos_32f_A11, FloatTwice, 10.7f, 3.3f, 2.6f, 1.2f)
TABLES(dSinCos, SinCos_64f_A50, DoubleTwice, 22.3f, 12.4f, 8.4f, 6.3f)
TABLES(sHypot, Hypot_32f_A24, FloatFloat, 6.0f, 3.0f, 3.0f, 1.65f)
TABLES(sFloor, Floor_32f, Float, 3.9f, 1.1f, 0.2f, 0.2f)
TABLE(sExp, Exp_32f_A21, Float, W7, w7, 9.35f, 11.23f, 7.2f)
VECTOR_TABLES(sExp, Exp_32f_A21, Float, 2.1f, 1.55f, 1.1f)
TABLE(sLn, Ln_32f_A21, Float, W7, w7, SAME(3.1f))
VECTOR_TABLES(sLn, Ln_32f_A21, Float, 3.1f, 2.0f, 1.6f)

#undef TABLE
#undef SAME
#undef VECTOR_TABLES
#undef TABLES

// --- Entry points ---------------------------------------------------------------------------------

#define ENTRY(level, TAG, function, name, slot, parameters, arguments)         \
    extern "C" ORVANE_API int ENTRY_CALL level##_ipps##name parameters;        \
    int ENTRY_CALL level##_ipps##name parameters { return own_ipps_##function##_##TAG##_ttab[slot] arguments; }

#define VECTOR_ENTRIES(function, name, slot, parameters, arguments) \
    ENTRY(w7, W7, function, name, slot, parameters, arguments)      \
    ENTRY(v8, V8, function, name, slot, parameters, arguments)      \
    ENTRY(s8, V8, function, name, slot, parameters, arguments)      \
    ENTRY(p8, P8, function, name, slot, parameters, arguments)      \
    ENTRY(g9, G9, function, name, slot, parameters, arguments)      \
    ENTRY(h9, S9, function, name, slot, parameters, arguments)

#define ENTRIES(function, name, slot, parameters, arguments)   \
    ENTRY(px, PX, function, name, slot, parameters, arguments) \
    VECTOR_ENTRIES(function, name, slot, parameters, arguments)

ENTRIES(sAtan2, Atan2_32f_A24, slot_a24, (const float* src1, const float* src2, float* dst, int len),
        (src1, src2, dst, len))
ENTRIES(sCos, Cos_32f_A11, slot_a11, (const float* src, float* dst, int len), (src, dst, len))
ENTRIES(sSin, Sin_32f_A11, slot_a11, (const float* src, float* dst, int len), (src, dst, len))
ENTRIES(sSinCos, SinCos_32f_A11, slot_a11, (const float* src, float* dstSin, float* dstCos, int len),
        (src, dstSin, dstCos, len))
ENTRIES(dSinCos, SinCos_64f_A50, slot_a50, (const double* src, double* dstSin, double* dstCos, int len),
        (src, dstSin, dstCos, len))
ENTRIES(sHypot, Hypot_32f_A24, slot_a24, (const float* src1, const float* src2, float* dst, int len),
        (src1, src2, dst, len))
ENTRIES(sFloor, Floor_32f, slot_a24, (const float* src, float* dst, int len), (src, dst, len))
VECTOR_ENTRIES(sExp, Exp_32f_A21, slot_a21, (const float* src, float* dst, int len), (src, dst, len))
VECTOR_ENTRIES(sLn, Ln_32f_A21, slot_a21, (const float* src, float* dst, int len), (src, dst, len))

#undef ENTRY_CALL
#undef ENTRY
#undef VECTOR_ENTRIES
#undef ENTRIES
