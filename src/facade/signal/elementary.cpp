// Elementary functions of vectors.
#include "facade/forms.h"
#include "signal/elementary.h"

using namespace orv;

VECTOR_SRC_DST(Abs_32f, orv_Abs_32f, float, float)
VECTOR_SRC_DST(Exp_32f, orv_Exp_32f, float, float)
VECTOR_SRC_DST(Exp_64f, orv_Exp_64f, double, double)
VECTOR_SRC_DST(Ln_64f, orv_Ln_64f, double, double)
VECTOR_SRC_DST(Sqrt_64f, orv_Sqrt_64f, double, double)
VECTOR_SRC_DST(Sin_32f_A11, orv_Sin_32f_A11, float, float)
VECTOR_SRC_DST(Cos_32f_A11, orv_Cos_32f_A11, float, float)

VECTOR_SRCDST(Abs_32f_I, orv_Abs_32f, float)
VECTOR_SRCDST(Ln_64f_I, orv_Ln_64f, double)
VECTOR_SRCDST(Sqrt_64f_I, orv_Sqrt_64f, double)

bool SignalProcessingWrapper::SinCos_32f_A11(const float* src, float* dstSin, float* dstCos, int len)
{
    return orv_SinCos_32f_A11(src, dstSin, dstCos, len) == StatusOk;
}

bool SignalProcessingWrapper::SinCos_64f_A50(const double* src, double* dstSin, double* dstCos, int len)
{
    return orv_SinCos_64f_A50(src, dstSin, dstCos, len) == StatusOk;
}

VECTOR_SRC_SRC_DST(Atan2_32f_A24, orv_Atan2_32f_A24, float, float)
VECTOR_SRC_SRC_DST(Hypot_32f_A24, orv_Hypot_32f_A24, float, float)

// The source could be const; that it is not is part of the method's name for the linker.
bool SignalProcessingWrapper::Floor_32f(float* src, float* dst, int len)
{
    return orv_Floor_32f(src, dst, len) == StatusOk;
}

// Intended: these two report nothing. A null pointer, a bad length or a lack of memory leaves the vector
// as it is, and the result is still true.
VECTOR_SRCDST(Exp_32f_I, always_true(orv_Exp_32f), float)
VECTOR_SRCDST(Exp_64f_I, always_true(orv_Exp_64f), double)
