// Float and complex arithmetic.
#include "image/arithmetic/float_arithmetic.h"

#include "ImageProcessingWrapper.h"
#include "facade/in_memory.h"
#include "facade/in_place.h"
#include "image/arithmetic/complex_arithmetic.h"

using namespace orv;

#define SRC_SRC_DST(name, operation)                                                                       \
    bool ImageProcessingWrapper::name(const float* src1, int src1Step, const float* src2, int src2Step,    \
                                      float* dst, int dstStep, int width, int height)                      \
    {                                                                                                      \
        return orv_##operation(src1, src1Step, src2, src2Step, dst, dstStep, {width, height}) == StatusOk; \
    }

// Run: in_place, or in_place_checked where the operation checks its steps.
#define SRC_SRCDST(name, operation, channels) SRC_SRCDST_BY(in_place, name, operation, channels)
#define SRC_SRCDST_BY(run, name, operation, channels)                                                               \
    bool ImageProcessingWrapper::name(const float* src, int srcStep, float* srcDst, int srcDstStep,                 \
                                      int width, int height)                                                        \
    {                                                                                                               \
        return run(srcDst, srcDstStep, width, height, channels, [=](const auto& tile) {                             \
                   return orv_##operation(src, srcStep, tile.src, tile.srcStep, tile.dst, tile.dstStep, tile.size); \
               }) == StatusOk;                                                                                      \
    }

// The constant forms: Value is float, or const float* for one value per channel.
#define SRC_VALUE_DST(name, Value)                                                                         \
    bool ImageProcessingWrapper::name(const float* src, int srcStep, Value value, float* dst, int dstStep, \
                                      int width, int height)                                               \
    {                                                                                                      \
        return orv_##name(src, srcStep, value, dst, dstStep, {width, height}) == StatusOk;                 \
    }

#define VALUE_SRCDST(name, operation, Value, channels) VALUE_SRCDST_BY(in_place, name, operation, Value, channels)
#define VALUE_SRCDST_BY(run, name, operation, Value, channels)                                               \
    bool ImageProcessingWrapper::name(Value value, float* srcDst, int srcDstStep, int width, int height)     \
    {                                                                                                        \
        return run(srcDst, srcDstStep, width, height, channels, [=](const auto& tile) {                      \
                   return orv_##operation(tile.src, tile.srcStep, value, tile.dst, tile.dstStep, tile.size); \
               }) == StatusOk;                                                                               \
    }

#define SRC_DST(name)                                                                                    \
    bool ImageProcessingWrapper::name(const float* src, int srcStep, float* dst, int dstStep, int width, \
                                      int height)                                                        \
    {                                                                                                    \
        return orv_##name(src, srcStep, dst, dstStep, {width, height}) == StatusOk;                      \
    }

#define SRCDST(name, operation, channels)                                                             \
    bool ImageProcessingWrapper::name(float* srcDst, int srcDstStep, int width, int height)           \
    {                                                                                                 \
        return in_place(srcDst, srcDstStep, width, height, channels, [=](const auto& tile) {          \
                   return orv_##operation(tile.src, tile.srcStep, tile.dst, tile.dstStep, tile.size); \
               }) == StatusOk;                                                                        \
    }

SRC_SRC_DST(Add_32f_C1, Add_32f_C1)
SRC_SRC_DST(Add_32f_C3, Add_32f_C3)
SRC_SRC_DST(Sub_32f_C1, Sub_32f_C1)
SRC_SRC_DST(Sub_32f_C3, Sub_32f_C3)
SRC_SRC_DST(Sub_32f_C3R, Sub_32f_C3)  // intended: the same under a second name
SRC_SRC_DST(Mul_32f_C1, Mul_32f_C1)
SRC_SRC_DST(Mul_32f_C3, Mul_32f_C3)
SRC_SRC_DST(Div_32f_C1, Div_32f_C1)
SRC_SRC_DST(Div_32f_C3, Div_32f_C3)

SRC_SRCDST(Add_32f_C1I, Add_32f_C1, 1)
SRC_SRCDST(Add_32f_C3I, Add_32f_C3, 3)
SRC_SRCDST(Sub_32f_C1I, Sub_32f_C1, 1)
SRC_SRCDST(Sub_32f_C3I, Sub_32f_C3, 3)
SRC_SRCDST(Mul_32f_C1I, Mul_32f_C1, 1)
SRC_SRCDST(Mul_32f_C3I, Mul_32f_C3, 3)
SRC_SRCDST_BY(in_place_checked, Div_32f_C1I, Div_32f_C1, 1)
SRC_SRCDST_BY(in_place_checked, Div_32f_C3I, Div_32f_C3, 3)

SRC_VALUE_DST(AddC_32f_C1, float)
SRC_VALUE_DST(AddC_32f_C3, const float*)
SRC_VALUE_DST(SubC_32f_C1, float)
SRC_VALUE_DST(SubC_32f_C3, const float*)
SRC_VALUE_DST(MulC_32f_C1, float)
SRC_VALUE_DST(MulC_32f_C3, const float*)
SRC_VALUE_DST(DivC_32f_C1, float)
SRC_VALUE_DST(DivC_32f_C3, const float*)

VALUE_SRCDST(AddC_32f_C1I, AddC_32f_C1, float, 1)
VALUE_SRCDST(AddC_32f_C3I, AddC_32f_C3, const float*, 3)
VALUE_SRCDST(SubC_32f_C1I, SubC_32f_C1, float, 1)
VALUE_SRCDST(SubC_32f_C3I, SubC_32f_C3, const float*, 3)
VALUE_SRCDST(MulC_32f_C1I, MulC_32f_C1, float, 1)
VALUE_SRCDST(MulC_32f_C3IR, MulC_32f_C3, const float*, 3)
VALUE_SRCDST_BY(in_place_checked, DivC_32f_C1I, DivC_32f_C1, float, 1)
VALUE_SRCDST_BY(in_place_checked, DivC_32f_C3I, DivC_32f_C3, const float*, 3)

// Intended: this one has always been bound to another operation than the one it is named after, and hosts
// depend on what it computes. It subtracts; MulC_32f_C3IR multiplies.
VALUE_SRCDST(MulC_32f_C3I, SubC_32f_C3, const float*, 3)

SRC_DST(Abs_32f_C1)
SRC_DST(Abs_32f_C3)
SRCDST(Abs_32f_C1I, Abs_32f_C1, 1)
SRCDST(Abs_32f_C3I, Abs_32f_C3, 3)

// Intended: the operation rounds its steps down to whole elements, that of the copy it reads as well as
// that of the image it writes. Only with such steps are the two the same rows.
bool ImageProcessingWrapper::Sqrt_32f_C1I(float* srcDst, int srcDstStep, int width, int height)
{
    if (srcDstStep < 1) return false;  // the copy would follow such a step to rows that nobody meant
    const bool uneven = (srcDstStep & 3) != 0;
    return in_place(srcDst, srcDstStep, width, height, 1, [=](const auto& tile) {
               return orv_Sqrt_32f_C1(tile.src, tile.srcStep, srcDst, srcDstStep, tile.size);
           }, uneven) == StatusOk;
}

// In place without a temporary.
#define EXTREME(name, operation)                                                                    \
    bool ImageProcessingWrapper::name(const float* src, int srcStep, float* srcDst, int srcDstStep, \
                                      int width, int height)                                        \
    {                                                                                               \
        return orv_##operation(src, srcStep, srcDst, srcDstStep, {width, height}) == StatusOk;      \
    }
EXTREME(MaxEvery_32f_C1I, MaxEvery_32f_C1)
EXTREME(MinEvery_32f_C1I, MinEvery_32f_C1)

bool ImageProcessingWrapper::AddProduct_16u32f_C1I(const unsigned short* src1, int src1Step,
                                                   const unsigned short* src2, int src2Step, float* srcDst,
                                                   int srcDstStep, int width, int height)
{
    return orv_AddProduct_16u32f_C1(src1, src1Step, src2, src2Step, srcDst, srcDstStep, {width, height}) == StatusOk;
}

// --- Complex images -------------------------------------------------------------------------------
//
// Intended: all of these are true whatever the status, also when nothing was done.

#define COMPLEX_SRC_SRC_DST(name)                                                                        \
    bool ImageProcessingWrapper::name(const Complex32f* src1, int src1Step, const Complex32f* src2,      \
                                      int src2Step, Complex32f* dst, int dstStep, int width, int height) \
    {                                                                                                    \
        orv_##name(src1, src1Step, src2, src2Step, dst, dstStep, {width, height});                       \
        return true;                                                                                     \
    }

#define COMPLEX_SRC_SRCDST(name, operation)                                                                  \
    bool ImageProcessingWrapper::name(const Complex32f* src, int srcStep, Complex32f* srcDst,                \
                                      int srcDstStep, int width, int height)                                 \
    {                                                                                                        \
        in_place(srcDst, srcDstStep, width, height, 1, [=](const auto& tile) {                               \
            return orv_##operation(src, srcStep, tile.src, tile.srcStep, tile.dst, tile.dstStep, tile.size); \
        });                                                                                                  \
        return true;                                                                                         \
    }

#define COMPLEX_SRC_VALUE_DST(name)                                                         \
    bool ImageProcessingWrapper::name(const Complex32f* src, int srcStep, Complex32f value, \
                                      Complex32f* dst, int dstStep, int width, int height)  \
    {                                                                                       \
        orv_##name(src, srcStep, value, dst, dstStep, {width, height});                     \
        return true;                                                                        \
    }

#define COMPLEX_VALUE_SRCDST(name, operation)                                                          \
    bool ImageProcessingWrapper::name(Complex32f value, Complex32f* srcDst, int srcDstStep, int width, \
                                      int height)                                                      \
    {                                                                                                  \
        const Complex32f& kept = in_memory(value);                                                     \
        in_place(srcDst, srcDstStep, width, height, 1, [=, &kept](const auto& tile) {                  \
            return orv_##operation(tile.src, tile.srcStep, kept, tile.dst, tile.dstStep, tile.size);   \
        });                                                                                            \
        return true;                                                                                   \
    }

COMPLEX_SRC_SRC_DST(Add_32fc_C1)
COMPLEX_SRC_SRC_DST(Sub_32fc_C1)
COMPLEX_SRC_SRC_DST(Mul_32fc_C1)
COMPLEX_SRC_SRC_DST(Div_32fc_C1)

COMPLEX_SRC_SRCDST(Add_32fc_C1I, Add_32fc_C1)
COMPLEX_SRC_SRCDST(Sub_32fc_C1I, Sub_32fc_C1)
COMPLEX_SRC_SRCDST(Mul_32fc_C1I, Mul_32fc_C1)
COMPLEX_SRC_SRCDST(Div_32fc_C1I, Div_32fc_C1)

COMPLEX_SRC_VALUE_DST(AddC_32fc_C1)
COMPLEX_SRC_VALUE_DST(SubC_32fc_C1)
COMPLEX_SRC_VALUE_DST(MulC_32fc_C1)
COMPLEX_SRC_VALUE_DST(DivC_32fc_C1)

COMPLEX_VALUE_SRCDST(AddC_32fc_C1I, AddC_32fc_C1)
COMPLEX_VALUE_SRCDST(SubC_32fc_C1I, SubC_32fc_C1)
COMPLEX_VALUE_SRCDST(MulC_32fc_C1I, MulC_32fc_C1)
COMPLEX_VALUE_SRCDST(DivC_32fc_C1I, DivC_32fc_C1)

#undef SRC_SRC_DST
#undef SRC_SRCDST
#undef SRC_SRCDST_BY
#undef SRC_VALUE_DST
#undef VALUE_SRCDST
#undef VALUE_SRCDST_BY
#undef SRC_DST
#undef SRCDST
#undef EXTREME
#undef COMPLEX_SRC_SRC_DST
#undef COMPLEX_SRC_SRCDST
#undef COMPLEX_SRC_VALUE_DST
#undef COMPLEX_VALUE_SRCDST
