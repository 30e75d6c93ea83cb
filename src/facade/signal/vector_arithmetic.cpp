// Vector arithmetic.
#include "SignalProcessingWrapper.h"
#include "facade/in_memory.h"
#include "facade/signal/in_place_vector.h"
#include "signal/float_vectors.h"
#include "signal/integer_vectors.h"

using namespace orv;

// What a method makes of the status.
static bool ok(Status status) { return status == StatusOk; }
static bool failed(Status status) { return status != StatusOk; }
static bool always(Status) { return true; }

#define SRC_SRC_DST(name, T)                                                                     \
    bool SignalProcessingWrapper::name(const T* src1, const T* src2, T* dst, int len)            \
    {                                                                                            \
        return ok(orv_##name(src1, src2, dst, {len}));                                           \
    }
#define SRC_SRC_DST_SCALED(name, T)                                                              \
    bool SignalProcessingWrapper::name(const T* src1, const T* src2, T* dst, int len, int scaleFactor) \
    {                                                                                            \
        return ok(orv_##name(src1, src2, dst, {len}, scaleFactor));                              \
    }
#define SRC_VALUE_DST(name, T)                                                                   \
    bool SignalProcessingWrapper::name(const T* src, T value, T* dst, int len)                   \
    {                                                                                            \
        return ok(orv_##name(src, value, dst, {len}));                                           \
    }
#define SRC_VALUE_DST_SCALED(name, T)                                                            \
    bool SignalProcessingWrapper::name(const T* src, T value, T* dst, int len, int scaleFactor)  \
    {                                                                                            \
        return ok(orv_##name(src, value, dst, {len}, scaleFactor));                              \
    }

// The in-place forms. With constants there are two orders of arguments.
#define SRC_SRCDST(name, operation, T, result)                                                   \
    bool SignalProcessingWrapper::name(const T* src, T* srcDst, int len)                         \
    {                                                                                            \
        return result(in_place_vector(srcDst, len, [=](const T* copy, T* place, Length n) { \
            return orv_##operation(src, copy, place, n);                            \
        }));                                                                                     \
    }
#define SRC_SRCDST_SCALED(name, operation, T, result)                                            \
    bool SignalProcessingWrapper::name(const T* src, T* srcDst, int len, int scaleFactor)        \
    {                                                                                            \
        return result(in_place_vector(srcDst, len, [=](const T* copy, T* place, Length n) { \
            return orv_##operation(src, copy, place, n, scaleFactor);               \
        }));                                                                                     \
    }
#define WITH_VALUE(operation, T, result)                                                         \
    const T& kept = in_memory(value);                                                            \
    return result(in_place_vector(srcDst, len, [=, &kept](const T* copy, T* place, Length n) {   \
        return orv_##operation(copy, kept, place, n);                                            \
    }));
#define WITH_VALUE_SCALED(operation, T, result)                                                  \
    return result(in_place_vector(srcDst, len, [=](const T* copy, T* place, Length n) {     \
        return orv_##operation(copy, value, place, n, scaleFactor);                              \
    }));
#define SRCDST_VALUE(name, operation, T, result) \
    bool SignalProcessingWrapper::name(T* srcDst, T value, int len) { WITH_VALUE(operation, T, result) }
#define VALUE_SRCDST(name, operation, T, result) \
    bool SignalProcessingWrapper::name(T value, T* srcDst, int len) { WITH_VALUE(operation, T, result) }
#define SRCDST_VALUE_SCALED(name, operation, T, result)                                          \
    bool SignalProcessingWrapper::name(T* srcDst, T value, int len, int scaleFactor)             \
    {                                                                                            \
        WITH_VALUE_SCALED(operation, T, result)                                                  \
    }
#define VALUE_SRCDST_SCALED(name, operation, T, result)                                          \
    bool SignalProcessingWrapper::name(T value, T* srcDst, int len, int scaleFactor)             \
    {                                                                                            \
        WITH_VALUE_SCALED(operation, T, result)                                                  \
    }

SRC_SRC_DST_SCALED(Add_8u, unsigned char)
SRC_SRC_DST_SCALED(Sub_8u, unsigned char)
SRC_SRC_DST_SCALED(Mul_8u, unsigned char)
SRC_SRC_DST_SCALED(Div_8u, unsigned char)
SRC_VALUE_DST_SCALED(AddC_8u, unsigned char)
SRC_VALUE_DST_SCALED(SubC_8u, unsigned char)
SRC_VALUE_DST_SCALED(SubCRev_8u, unsigned char)
SRC_VALUE_DST_SCALED(MulC_8u, unsigned char)
SRC_VALUE_DST_SCALED(DivC_8u, unsigned char)
SRC_SRC_DST_SCALED(Add_16u, unsigned short)
SRC_SRC_DST_SCALED(Sub_16u, unsigned short)
SRC_SRC_DST_SCALED(Mul_16u, unsigned short)
SRC_SRC_DST_SCALED(Div_16u, unsigned short)
SRC_VALUE_DST_SCALED(AddC_16u, unsigned short)
SRC_VALUE_DST_SCALED(SubC_16u, unsigned short)
SRC_VALUE_DST_SCALED(SubCRev_16u, unsigned short)
SRC_VALUE_DST_SCALED(MulC_16u, unsigned short)
SRC_VALUE_DST_SCALED(DivC_16u, unsigned short)
SRC_VALUE_DST(DivCRev_16u, unsigned short)
SRC_SRC_DST_SCALED(Add_32s, int)
SRC_SRC_DST_SCALED(Sub_32s, int)
SRC_SRC_DST_SCALED(Mul_32s, int)
SRC_SRC_DST_SCALED(Div_32s, int)
SRC_VALUE_DST_SCALED(AddC_32s, int)
SRC_VALUE_DST_SCALED(SubC_32s, int)
SRC_VALUE_DST_SCALED(SubCRev_32s, int)
SRC_VALUE_DST_SCALED(MulC_32s, int)
SRC_SRC_DST(Add_32f, float)
SRC_SRC_DST(Sub_32f, float)
SRC_SRC_DST(Mul_32f, float)
SRC_SRC_DST(Div_32f, float)
SRC_VALUE_DST(AddC_32f, float)
SRC_VALUE_DST(SubC_32f, float)
SRC_VALUE_DST(SubCRev_32f, float)
SRC_VALUE_DST(MulC_32f, float)
SRC_VALUE_DST(DivC_32f, float)
SRC_VALUE_DST(DivCRev_32f, float)
SRC_SRC_DST(Add_64f, double)
SRC_SRC_DST(Mul_64f, double)
SRC_SRC_DST(Div_64f, double)
SRC_VALUE_DST(AddC_64f, double)
SRC_VALUE_DST(MulC_64f, double)
SRC_VALUE_DST(DivC_64f, double)

SRC_SRCDST_SCALED(Add_8u_I, Add_8u, unsigned char, ok)
SRC_SRCDST_SCALED(Sub_8u_I, Sub_8u, unsigned char, ok)
SRCDST_VALUE_SCALED(AddC_8u_I, AddC_8u, unsigned char, ok)
VALUE_SRCDST_SCALED(SubCRev_8u_I, SubCRev_8u, unsigned char, ok)
VALUE_SRCDST_SCALED(SubCRev_16u_I, SubCRev_16u, unsigned short, ok)
SRC_SRCDST_SCALED(Add_32s_I, Add_32s, int, ok)
VALUE_SRCDST_SCALED(SubCRev_32s_I, SubCRev_32s, int, ok)
SRC_SRCDST(Add_32f_I, Add_32f, float, ok)
SRC_SRCDST(Sub_32f_I, Sub_32f, float, ok)
SRC_SRCDST(Mul_32f_I, Mul_32f, float, ok)
SRCDST_VALUE(AddC_32f_I, AddC_32f, float, ok)
SRCDST_VALUE(SubC_32f_I, SubC_32f, float, ok)
VALUE_SRCDST(SubCRev_32f_I, SubCRev_32f, float, ok)
SRCDST_VALUE(MulC_32f_I, MulC_32f, float, ok)
SRCDST_VALUE(DivC_32f_I, DivC_32f, float, ok)
SRCDST_VALUE(DivCRev_32f_I, DivCRev_32f, float, ok)
SRC_SRCDST(Add_64f_I, Add_64f, double, ok)
SRC_SRCDST(Mul_64f_I, Mul_64f, double, ok)
SRC_SRCDST(Div_64f_I, Div_64f, double, ok)
SRCDST_VALUE(AddC_64f_I, AddC_64f, double, ok)
SRCDST_VALUE(MulC_64f_I, MulC_64f, double, ok)
SRCDST_VALUE(DivC_64f_I, DivC_64f, double, ok)

// Intended: the results of these are inverted, true on failure and false on success. Hosts depend on it.
SRC_SRCDST_SCALED(Mul_8u_I, Mul_8u, unsigned char, failed)
SRC_SRCDST_SCALED(Div_8u_I, Div_8u, unsigned char, failed)
VALUE_SRCDST_SCALED(SubC_8u_I, SubC_8u, unsigned char, failed)
VALUE_SRCDST_SCALED(MulC_8u_I, MulC_8u, unsigned char, failed)
VALUE_SRCDST_SCALED(DivC_8u_I, DivC_8u, unsigned char, failed)
SRC_SRCDST_SCALED(Add_16u_I, Add_16u, unsigned short, failed)
SRC_SRCDST_SCALED(Sub_16u_I, Sub_16u, unsigned short, failed)
SRC_SRCDST_SCALED(Mul_16u_I, Mul_16u, unsigned short, failed)
SRC_SRCDST_SCALED(Div_16u_I, Div_16u, unsigned short, failed)
VALUE_SRCDST_SCALED(AddC_16u_I, AddC_16u, unsigned short, failed)
VALUE_SRCDST_SCALED(SubC_16u_I, SubC_16u, unsigned short, failed)
VALUE_SRCDST_SCALED(MulC_16u_I, MulC_16u, unsigned short, failed)
VALUE_SRCDST_SCALED(DivC_16u_I, DivC_16u, unsigned short, failed)
VALUE_SRCDST(DivCRev_16u_I, DivCRev_16u, unsigned short, failed)
SRC_SRCDST_SCALED(Sub_32s_I, Sub_32s, int, failed)
SRC_SRCDST_SCALED(Div_32s_I, Div_32s, int, failed)
VALUE_SRCDST_SCALED(AddC_32s_I, AddC_32s, int, failed)
VALUE_SRCDST_SCALED(SubC_32s_I, SubC_32s, int, failed)

// Intended: these never report a failure.
SRC_SRCDST_SCALED(Mul_32s_I, Mul_32s, int, always)
SRCDST_VALUE_SCALED(MulC_32s_I, MulC_32s, int, always)
SRC_SRCDST(Div_32f_I, Div_32f, float, always)

// In place without a temporary.
bool SignalProcessingWrapper::AddProduct_32f(const float* src1, const float* src2, float* srcDst, int len)
{
    return ok(orv_AddProduct_32f(src1, src2, srcDst, {len}));
}
bool SignalProcessingWrapper::AddProductC_32f(const float* src, float value, float* srcDst, int len)
{
    return ok(orv_AddProductC_32f(src, value, srcDst, {len}));
}

#undef SRC_SRC_DST
#undef SRC_SRC_DST_SCALED
#undef SRC_VALUE_DST
#undef SRC_VALUE_DST_SCALED
#undef SRC_SRCDST
#undef SRC_SRCDST_SCALED
#undef WITH_VALUE
#undef WITH_VALUE_SCALED
#undef SRCDST_VALUE
#undef VALUE_SRCDST
#undef SRCDST_VALUE_SCALED
#undef VALUE_SRCDST_SCALED
