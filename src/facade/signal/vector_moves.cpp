// Vectors filled and moved.
#include "facade/forms.h"
#include "signal/vector_fill.h"
#include "signal/vector_moves.h"

using namespace orv;

#define SET(name, T)                                                \
    bool SignalProcessingWrapper::name(T value, T* dst, int len)    \
    {                                                               \
        return call(orv_##name, in_memory(value), dst, Count{len}); \
    }
SET(Set_8u, unsigned char)
SET(Set_16u, unsigned short)
SET(Set_32s, int)
SET(Set_32f, float)
SET(Set_64f, double)
SET(Set_32fc, Complex32f)
#undef SET

#define ZERO(name, operation, T)                         \
    bool SignalProcessingWrapper::name(T* dst, int len)  \
    {                                                    \
        return call(operation, dst, Count{len});         \
    }
// Intended: Zero_16u and Copy_16u are always true, whatever the status.
ZERO(Zero_8u, orv_Zero_8u, unsigned char)
ZERO(Zero_16u, always_true(orv_Zero_16u), unsigned short)
ZERO(Zero_32s, orv_Zero_32s, int)
ZERO(Zero_32f, orv_Zero_32f, float)
ZERO(Zero_64f, orv_Zero_64f, double)
ZERO(Zero_32fc, orv_Zero_32fc, Complex32f)
#undef ZERO

VECTOR_SRC_DST(Copy_8u, orv_Copy_8u, unsigned char, unsigned char)
VECTOR_SRC_DST(Copy_16u, always_true(orv_Copy_16u), unsigned short, unsigned short)
VECTOR_SRC_DST(Copy_32s, orv_Copy_32s, int, int)
VECTOR_SRC_DST(Copy_32f, orv_Copy_32f, float, float)
VECTOR_SRC_DST(Copy_64f, orv_Copy_64f, double, double)
VECTOR_SRC_DST(Copy_32fc, orv_Copy_32fc, Complex32f, Complex32f)
