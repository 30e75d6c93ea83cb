// Integer arithmetic with scaling.
#include "facade/forms.h"
#include "image/arithmetic/integer_arithmetic.h"

using namespace orv;

SRC_SRC_DST(Add_8u_C1, orv_Add_8u_C1, unsigned char, unsigned char, ScaleFactor)
SRC_SRC_DST(Add_8u_C3, orv_Add_8u_C3, unsigned char, unsigned char, ScaleFactor)
SRC_SRC_DST(Add_8u_C4, orv_Add_8u_C4, unsigned char, unsigned char, ScaleFactor)
SRC_SRC_DST(Add_16u_C1, orv_Add_16u_C1, unsigned short, unsigned short, ScaleFactor)
SRC_SRC_DST(Add_16s_C1, orv_Add_16s_C1, short, short, ScaleFactor)

SRC_SRC_DST(Sub_8u_C1, orv_Sub_8u_C1, unsigned char, unsigned char, ScaleFactor)
SRC_SRC_DST(Sub_8u_C3, orv_Sub_8u_C3, unsigned char, unsigned char, ScaleFactor)
SRC_SRC_DST(Sub_8u_C4, orv_Sub_8u_C4, unsigned char, unsigned char, ScaleFactor)
SRC_SRC_DST(Sub_16u_C1, orv_Sub_16u_C1, unsigned short, unsigned short, ScaleFactor)
SRC_SRC_DST(Sub_16s_C1, orv_Sub_16s_C1, short, short, ScaleFactor)

SRC_SRC_DST(Mul_8u_C1, orv_Mul_8u_C1, unsigned char, unsigned char, ScaleFactor)
SRC_SRC_DST(Mul_8u_C3, orv_Mul_8u_C3, unsigned char, unsigned char, ScaleFactor)
SRC_SRC_DST(Mul_8u_C4, orv_Mul_8u_C4, unsigned char, unsigned char, ScaleFactor)
SRC_SRC_DST(Mul_16u_C1, orv_Mul_16u_C1, unsigned short, unsigned short, ScaleFactor)
SRC_SRC_DST(Mul_16s_C1, orv_Mul_16s_C1, short, short, ScaleFactor)

SRC_SRC_DST(Div_8u_C1, orv_Div_8u_C1, unsigned char, unsigned char, ScaleFactor)
SRC_SRC_DST(Div_8u_C3, orv_Div_8u_C3, unsigned char, unsigned char, ScaleFactor)
SRC_SRC_DST(Div_8u_C4, orv_Div_8u_C4, unsigned char, unsigned char, ScaleFactor)
SRC_SRC_DST(Div_16u_C1, orv_Div_16u_C1, unsigned short, unsigned short, ScaleFactor)
SRC_SRC_DST(Div_16s_C1, orv_Div_16s_C1, short, short, ScaleFactor)

SRC_SRCDST(Add_8u_C1I, orv_Add_8u_C1, unsigned char, 1, ScaleFactor)
SRC_SRCDST(Add_8u_C3I, orv_Add_8u_C3, unsigned char, 3, ScaleFactor)
SRC_SRCDST(Add_8u_C4I, orv_Add_8u_C4, unsigned char, 4, ScaleFactor)
SRC_SRCDST(Add_16u_C1I, orv_Add_16u_C1, unsigned short, 1, ScaleFactor)
SRC_SRCDST(Add_16s_C1I, orv_Add_16s_C1, short, 1, ScaleFactor)

SRC_SRCDST(Sub_8u_C1I, orv_Sub_8u_C1, unsigned char, 1, ScaleFactor)
SRC_SRCDST(Sub_8u_C3I, orv_Sub_8u_C3, unsigned char, 3, ScaleFactor)
SRC_SRCDST(Sub_8u_C4I, orv_Sub_8u_C4, unsigned char, 4, ScaleFactor)
SRC_SRCDST(Sub_16u_C1I, orv_Sub_16u_C1, unsigned short, 1, ScaleFactor)
SRC_SRCDST(Sub_16s_C1I, orv_Sub_16s_C1, short, 1, ScaleFactor)

SRC_SRCDST(Mul_8u_C1I, orv_Mul_8u_C1, unsigned char, 1, ScaleFactor)
SRC_SRCDST(Mul_8u_C3I, orv_Mul_8u_C3, unsigned char, 3, ScaleFactor)
SRC_SRCDST(Mul_8u_C4I, orv_Mul_8u_C4, unsigned char, 4, ScaleFactor)
SRC_SRCDST(Mul_16u_C1I, orv_Mul_16u_C1, unsigned short, 1, ScaleFactor)
SRC_SRCDST(Mul_16s_C1I, orv_Mul_16s_C1, short, 1, ScaleFactor)

SRC_SRCDST(Div_8u_C1I, steps_checked(orv_Div_8u_C1), unsigned char, 1, ScaleFactor)
SRC_SRCDST(Div_8u_C3I, steps_checked(orv_Div_8u_C3), unsigned char, 3, ScaleFactor)
SRC_SRCDST(Div_8u_C4I, steps_checked(orv_Div_8u_C4), unsigned char, 4, ScaleFactor)
SRC_SRCDST(Div_16u_C1I, orv_Div_16u_C1, unsigned short, 1, ScaleFactor)
SRC_SRCDST(Div_16s_C1I, steps_checked(orv_Div_16s_C1), short, 1, ScaleFactor)

SRC_VALUE_DST(AddC_8u_C1, orv_AddC_8u_C1, unsigned char, unsigned char, unsigned char, ScaleFactor)
SRC_VALUE_DST(AddC_8u_C3, orv_AddC_8u_C3, unsigned char, const unsigned char*, unsigned char, ScaleFactor)
SRC_VALUE_DST(AddC_8u_C4, orv_AddC_8u_C4, unsigned char, const unsigned char*, unsigned char, ScaleFactor)
SRC_VALUE_DST(AddC_16u_C1, orv_AddC_16u_C1, unsigned short, unsigned short, unsigned short, ScaleFactor)
SRC_VALUE_DST(AddC_16s_C1, orv_AddC_16s_C1, short, short, short, ScaleFactor)

SRC_VALUE_DST(SubC_8u_C1, orv_SubC_8u_C1, unsigned char, unsigned char, unsigned char, ScaleFactor)
SRC_VALUE_DST(SubC_8u_C3, orv_SubC_8u_C3, unsigned char, const unsigned char*, unsigned char, ScaleFactor)
SRC_VALUE_DST(SubC_8u_C4, orv_SubC_8u_C4, unsigned char, const unsigned char*, unsigned char, ScaleFactor)
SRC_VALUE_DST(SubC_16u_C1, orv_SubC_16u_C1, unsigned short, unsigned short, unsigned short, ScaleFactor)
SRC_VALUE_DST(SubC_16s_C1, orv_SubC_16s_C1, short, short, short, ScaleFactor)

SRC_VALUE_DST(MulC_8u_C1, orv_MulC_8u_C1, unsigned char, unsigned char, unsigned char, ScaleFactor)
SRC_VALUE_DST(MulC_8u_C3, orv_MulC_8u_C3, unsigned char, const unsigned char*, unsigned char, ScaleFactor)
SRC_VALUE_DST(MulC_8u_C4, orv_MulC_8u_C4, unsigned char, const unsigned char*, unsigned char, ScaleFactor)
SRC_VALUE_DST(MulC_16u_C1, orv_MulC_16u_C1, unsigned short, unsigned short, unsigned short, ScaleFactor)
SRC_VALUE_DST(MulC_16s_C1, orv_MulC_16s_C1, short, short, short, ScaleFactor)

SRC_VALUE_DST(DivC_8u_C1, orv_DivC_8u_C1, unsigned char, unsigned char, unsigned char, ScaleFactor)
SRC_VALUE_DST(DivC_8u_C3, orv_DivC_8u_C3, unsigned char, const unsigned char*, unsigned char, ScaleFactor)
SRC_VALUE_DST(DivC_8u_C4, orv_DivC_8u_C4, unsigned char, const unsigned char*, unsigned char, ScaleFactor)
SRC_VALUE_DST(DivC_16u_C1, orv_DivC_16u_C1, unsigned short, unsigned short, unsigned short, ScaleFactor)
SRC_VALUE_DST(DivC_16s_C1, orv_DivC_16s_C1, short, short, short, ScaleFactor)

VALUE_SRCDST(AddC_8u_C3I, orv_AddC_8u_C3, const unsigned char*, unsigned char, 3, ScaleFactor)
VALUE_SRCDST(AddC_8u_C4I, orv_AddC_8u_C4, const unsigned char*, unsigned char, 4, ScaleFactor)
VALUE_SRCDST(AddC_16u_C1I, orv_AddC_16u_C1, unsigned short, unsigned short, 1, ScaleFactor)
VALUE_SRCDST(AddC_16s_C1I, orv_AddC_16s_C1, short, short, 1, ScaleFactor)

VALUE_SRCDST(SubC_8u_C1I, orv_SubC_8u_C1, unsigned char, unsigned char, 1, ScaleFactor)
VALUE_SRCDST(SubC_8u_C3I, orv_SubC_8u_C3, const unsigned char*, unsigned char, 3, ScaleFactor)
VALUE_SRCDST(SubC_8u_C4I, orv_SubC_8u_C4, const unsigned char*, unsigned char, 4, ScaleFactor)
VALUE_SRCDST(SubC_16u_C1I, orv_SubC_16u_C1, unsigned short, unsigned short, 1, ScaleFactor)
VALUE_SRCDST(SubC_16s_C1I, orv_SubC_16s_C1, short, short, 1, ScaleFactor)

VALUE_SRCDST(MulC_8u_C1I, orv_MulC_8u_C1, unsigned char, unsigned char, 1, ScaleFactor)
VALUE_SRCDST(MulC_8u_C3I, orv_MulC_8u_C3, const unsigned char*, unsigned char, 3, ScaleFactor)
VALUE_SRCDST(MulC_8u_C4I, orv_MulC_8u_C4, const unsigned char*, unsigned char, 4, ScaleFactor)
VALUE_SRCDST(MulC_16u_C1I, orv_MulC_16u_C1, unsigned short, unsigned short, 1, ScaleFactor)
VALUE_SRCDST(MulC_16s_C1I, orv_MulC_16s_C1, short, short, 1, ScaleFactor)

VALUE_SRCDST(DivC_8u_C1I, orv_DivC_8u_C1, unsigned char, unsigned char, 1, ScaleFactor)
VALUE_SRCDST(DivC_8u_C3I, orv_DivC_8u_C3, const unsigned char*, unsigned char, 3, ScaleFactor)
VALUE_SRCDST(DivC_8u_C4I, orv_DivC_8u_C4, const unsigned char*, unsigned char, 4, ScaleFactor)
VALUE_SRCDST(DivC_16s_C1I, orv_DivC_16s_C1, short, short, 1, ScaleFactor)

// Intended: these two have always been bound to another operation than the one they are named after,
// and hosts depend on what they compute. AddC_8u_C1I multiplies, DivC_16u_C1I subtracts.
VALUE_SRCDST(AddC_8u_C1I, orv_MulC_8u_C1, unsigned char, unsigned char, 1, ScaleFactor)
VALUE_SRCDST(DivC_16u_C1I, orv_SubC_16u_C1, unsigned short, unsigned short, 1, ScaleFactor)
