// Elementary functions of vectors.
#include "signal/elementary.h"

#include "SignalProcessingWrapper.h"
#include "facade/signal/in_place_vector.h"

using namespace orv;

#define SRC_DST(name, T) \
    bool SignalProcessingWrapper::name(const T* src, T* dst, int len) { return orv_##name(src, dst, len) == StatusOk; }

#define IN_PLACE(operation, T) \
    in_place_vector(srcDst, len, [](const T* copy, T* place, Length n) { return orv_##operation(copy, place, n.count); })
#define SRCDST(name, operation, T) \
    bool SignalProcessingWrapper::name(T* srcDst, int len) { return IN_PLACE(operation, T) == StatusOk; }

SRC_DST(Abs_32f, float)
SRC_DST(Exp_32f, float)
SRC_DST(Exp_64f, double)
SRC_DST(Ln_64f, double)
SRC_DST(Sqrt_64f, double)
SRC_DST(Sin_32f_A11, float)
SRC_DST(Cos_32f_A11, float)

SRCDST(Abs_32f_I, Abs_32f, float)
SRCDST(Ln_64f_I, Ln_64f, double)
SRCDST(Sqrt_64f_I, Sqrt_64f, double)

bool SignalProcessingWrapper::SinCos_32f_A11(const float* src, float* dstSin, float* dstCos, int len)
{
    return orv_SinCos_32f_A11(src, dstSin, dstCos, len) == StatusOk;
}

bool SignalProcessingWrapper::SinCos_64f_A50(const double* src, double* dstSin, double* dstCos, int len)
{
    return orv_SinCos_64f_A50(src, dstSin, dstCos, len) == StatusOk;
}

bool SignalProcessingWrapper::Atan2_32f_A24(const float* src1, const float* src2, float* dst, int len)
{
    return orv_Atan2_32f_A24(src1, src2, dst, len) == StatusOk;
}

bool SignalProcessingWrapper::Hypot_32f_A24(const float* src1, const float* src2, float* dst, int len)
{
    return orv_Hypot_32f_A24(src1, src2, dst, len) == StatusOk;
}

// The source could be const; that it is not is part of the method's name for the linker.
bool SignalProcessingWrapper::Floor_32f(float* src, float* dst, int len) { return orv_Floor_32f(src, dst, len) == StatusOk; }

// Intended: these two report nothing. A null pointer, a bad length or a lack of memory leaves the vector
// as it is, and the result is still true.
bool SignalProcessingWrapper::Exp_32f_I(float* srcDst, int len)
{
    IN_PLACE(Exp_32f, float);
    return true;
}

bool SignalProcessingWrapper::Exp_64f_I(double* srcDst, int len)
{
    IN_PLACE(Exp_64f, double);
    return true;
}

#undef SRC_DST
#undef IN_PLACE
#undef SRCDST
