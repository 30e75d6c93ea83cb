// Float and complex arithmetic.
#include "facade/forms.h"
#include "image/arithmetic/float_arithmetic.h"

#include "image/arithmetic/complex_arithmetic.h"

using namespace orv;

SRC_SRC_DST(Add_32f_C1, orv_Add_32f_C1, float, float)
SRC_SRC_DST(Add_32f_C3, orv_Add_32f_C3, float, float)
SRC_SRC_DST(Sub_32f_C1, orv_Sub_32f_C1, float, float)
SRC_SRC_DST(Sub_32f_C3, orv_Sub_32f_C3, float, float)
SRC_SRC_DST(Sub_32f_C3R, orv_Sub_32f_C3, float, float)  // intended: the same under a second name
SRC_SRC_DST(Mul_32f_C1, orv_Mul_32f_C1, float, float)
SRC_SRC_DST(Mul_32f_C3, orv_Mul_32f_C3, float, float)
SRC_SRC_DST(Div_32f_C1, orv_Div_32f_C1, float, float)
SRC_SRC_DST(Div_32f_C3, orv_Div_32f_C3, float, float)

SRC_SRCDST(Add_32f_C1I, orv_Add_32f_C1, float, 1)
SRC_SRCDST(Add_32f_C3I, orv_Add_32f_C3, float, 3)
SRC_SRCDST(Sub_32f_C1I, orv_Sub_32f_C1, float, 1)
SRC_SRCDST(Sub_32f_C3I, orv_Sub_32f_C3, float, 3)
SRC_SRCDST(Mul_32f_C1I, orv_Mul_32f_C1, float, 1)
SRC_SRCDST(Mul_32f_C3I, orv_Mul_32f_C3, float, 3)
SRC_SRCDST(Div_32f_C1I, steps_checked(orv_Div_32f_C1), float, 1)
SRC_SRCDST(Div_32f_C3I, steps_checked(orv_Div_32f_C3), float, 3)

SRC_VALUE_DST(AddC_32f_C1, orv_AddC_32f_C1, float, float, float)
SRC_VALUE_DST(AddC_32f_C3, orv_AddC_32f_C3, float, const float*, float)
SRC_VALUE_DST(SubC_32f_C1, orv_SubC_32f_C1, float, float, float)
SRC_VALUE_DST(SubC_32f_C3, orv_SubC_32f_C3, float, const float*, float)
SRC_VALUE_DST(MulC_32f_C1, orv_MulC_32f_C1, float, float, float)
SRC_VALUE_DST(MulC_32f_C3, orv_MulC_32f_C3, float, const float*, float)
SRC_VALUE_DST(DivC_32f_C1, orv_DivC_32f_C1, float, float, float)
SRC_VALUE_DST(DivC_32f_C3, orv_DivC_32f_C3, float, const float*, float)

VALUE_SRCDST(AddC_32f_C1I, orv_AddC_32f_C1, float, float, 1)
VALUE_SRCDST(AddC_32f_C3I, orv_AddC_32f_C3, const float*, float, 3)
VALUE_SRCDST(SubC_32f_C1I, orv_SubC_32f_C1, float, float, 1)
VALUE_SRCDST(SubC_32f_C3I, orv_SubC_32f_C3, const float*, float, 3)
VALUE_SRCDST(MulC_32f_C1I, orv_MulC_32f_C1, float, float, 1)
VALUE_SRCDST(MulC_32f_C3IR, orv_MulC_32f_C3, const float*, float, 3)
VALUE_SRCDST(DivC_32f_C1I, steps_checked(orv_DivC_32f_C1), float, float, 1)
VALUE_SRCDST(DivC_32f_C3I, steps_checked(orv_DivC_32f_C3), const float*, float, 3)

// Intended: this one has always been bound to another operation than the one it is named after, and hosts
// depend on what it computes. It subtracts; MulC_32f_C3IR multiplies.
VALUE_SRCDST(MulC_32f_C3I, orv_SubC_32f_C3, const float*, float, 3)

SRC_DST(Abs_32f_C1, orv_Abs_32f_C1, float, float)
SRC_DST(Abs_32f_C3, orv_Abs_32f_C3, float, float)
SRCDST(Abs_32f_C1I, orv_Abs_32f_C1, float, 1)
SRCDST(Abs_32f_C3I, orv_Abs_32f_C3, float, 3)

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
SRC_DST(MaxEvery_32f_C1I, orv_MaxEvery_32f_C1, float, float)
SRC_DST(MinEvery_32f_C1I, orv_MinEvery_32f_C1, float, float)

SRC_SRC_DST(AddProduct_16u32f_C1I, orv_AddProduct_16u32f_C1, unsigned short, float)

// --- Complex images -------------------------------------------------------------------------------
//
// Intended: all of these are true whatever the status, also when nothing was done.

SRC_SRC_DST(Add_32fc_C1, always_true(orv_Add_32fc_C1), Complex32f, Complex32f)
SRC_SRC_DST(Sub_32fc_C1, always_true(orv_Sub_32fc_C1), Complex32f, Complex32f)
SRC_SRC_DST(Mul_32fc_C1, always_true(orv_Mul_32fc_C1), Complex32f, Complex32f)
SRC_SRC_DST(Div_32fc_C1, always_true(orv_Div_32fc_C1), Complex32f, Complex32f)

SRC_SRCDST(Add_32fc_C1I, always_true(orv_Add_32fc_C1), Complex32f, 1)
SRC_SRCDST(Sub_32fc_C1I, always_true(orv_Sub_32fc_C1), Complex32f, 1)
SRC_SRCDST(Mul_32fc_C1I, always_true(orv_Mul_32fc_C1), Complex32f, 1)
SRC_SRCDST(Div_32fc_C1I, always_true(orv_Div_32fc_C1), Complex32f, 1)

SRC_VALUE_DST(AddC_32fc_C1, always_true(orv_AddC_32fc_C1), Complex32f, Complex32f, Complex32f)
SRC_VALUE_DST(SubC_32fc_C1, always_true(orv_SubC_32fc_C1), Complex32f, Complex32f, Complex32f)
SRC_VALUE_DST(MulC_32fc_C1, always_true(orv_MulC_32fc_C1), Complex32f, Complex32f, Complex32f)
SRC_VALUE_DST(DivC_32fc_C1, always_true(orv_DivC_32fc_C1), Complex32f, Complex32f, Complex32f)

VALUE_SRCDST(AddC_32fc_C1I, always_true(orv_AddC_32fc_C1), Complex32f, Complex32f, 1)
VALUE_SRCDST(SubC_32fc_C1I, always_true(orv_SubC_32fc_C1), Complex32f, Complex32f, 1)
VALUE_SRCDST(MulC_32fc_C1I, always_true(orv_MulC_32fc_C1), Complex32f, Complex32f, 1)
VALUE_SRCDST(DivC_32fc_C1I, always_true(orv_DivC_32fc_C1), Complex32f, Complex32f, 1)
