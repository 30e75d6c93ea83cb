// Bitwise operations and shifts.
#include "facade/forms.h"
#include "image/bits/bitwise.h"

using namespace orv;

SRC_SRC_DST(And_8u_C1, orv_And_8u_C1, unsigned char, unsigned char)
SRC_SRC_DST(And_8u_C3, orv_And_8u_C3, unsigned char, unsigned char)
SRC_SRC_DST(And_8u_C4, orv_And_8u_C4, unsigned char, unsigned char)
SRC_SRC_DST(And_16u_C1, orv_And_16u_C1, unsigned short, unsigned short)
SRC_SRC_DST(And_32s_C1, orv_And_32s_C1, int, int)

SRC_SRC_DST(Or_8u_C1, orv_Or_8u_C1, unsigned char, unsigned char)
SRC_SRC_DST(Or_8u_C3, orv_Or_8u_C3, unsigned char, unsigned char)
SRC_SRC_DST(Or_8u_C4, orv_Or_8u_C4, unsigned char, unsigned char)
SRC_SRC_DST(Or_16u_C1, orv_Or_16u_C1, unsigned short, unsigned short)
SRC_SRC_DST(Or_32s_C1, orv_Or_32s_C1, int, int)

SRC_SRC_DST(Xor_8u_C1, orv_Xor_8u_C1, unsigned char, unsigned char)
SRC_SRC_DST(Xor_8u_C3, orv_Xor_8u_C3, unsigned char, unsigned char)
SRC_SRC_DST(Xor_8u_C4, orv_Xor_8u_C4, unsigned char, unsigned char)
SRC_SRC_DST(Xor_16u_C1, orv_Xor_16u_C1, unsigned short, unsigned short)
SRC_SRC_DST(Xor_32s_C1, orv_Xor_32s_C1, int, int)

SRC_SRCDST(And_8u_C1I, steps_checked(orv_And_8u_C1), unsigned char, 1)
SRC_SRCDST(And_8u_C3I, steps_checked(orv_And_8u_C3), unsigned char, 3)
SRC_SRCDST(And_8u_C4I, steps_checked(orv_And_8u_C4), unsigned char, 4)
SRC_SRCDST(And_16u_C1I, steps_checked(orv_And_16u_C1), unsigned short, 1)
SRC_SRCDST(And_32s_C1I, steps_checked(orv_And_32s_C1), int, 1)

SRC_SRCDST(Or_8u_C1I, steps_checked(orv_Or_8u_C1), unsigned char, 1)
SRC_SRCDST(Or_8u_C3I, steps_checked(orv_Or_8u_C3), unsigned char, 3)
SRC_SRCDST(Or_8u_C4I, steps_checked(orv_Or_8u_C4), unsigned char, 4)
SRC_SRCDST(Or_16u_C1I, steps_checked(orv_Or_16u_C1), unsigned short, 1)
SRC_SRCDST(Or_32s_C1I, steps_checked(orv_Or_32s_C1), int, 1)

SRC_SRCDST(Xor_8u_C1I, steps_checked(orv_Xor_8u_C1), unsigned char, 1)
SRC_SRCDST(Xor_8u_C3I, steps_checked(orv_Xor_8u_C3), unsigned char, 3)
SRC_SRCDST(Xor_8u_C4I, steps_checked(orv_Xor_8u_C4), unsigned char, 4)
SRC_SRCDST(Xor_16u_C1I, steps_checked(orv_Xor_16u_C1), unsigned short, 1)
SRC_SRCDST(Xor_32s_C1I, steps_checked(orv_Xor_32s_C1), int, 1)

SRC_VALUE_DST(AndC_8u_C1, orv_AndC_8u_C1, unsigned char, unsigned char, unsigned char)
SRC_VALUE_DST(AndC_8u_C3, orv_AndC_8u_C3, unsigned char, const unsigned char*, unsigned char)
SRC_VALUE_DST(AndC_8u_C4, orv_AndC_8u_C4, unsigned char, const unsigned char*, unsigned char)
SRC_VALUE_DST(AndC_16u_C1, orv_AndC_16u_C1, unsigned short, unsigned short, unsigned short)
SRC_VALUE_DST(AndC_32s_C1, orv_AndC_32s_C1, int, int, int)

SRC_VALUE_DST(OrC_8u_C1, orv_OrC_8u_C1, unsigned char, unsigned char, unsigned char)
SRC_VALUE_DST(OrC_8u_C3, orv_OrC_8u_C3, unsigned char, const unsigned char*, unsigned char)
SRC_VALUE_DST(OrC_8u_C4, orv_OrC_8u_C4, unsigned char, const unsigned char*, unsigned char)
SRC_VALUE_DST(OrC_16u_C1, orv_OrC_16u_C1, unsigned short, unsigned short, unsigned short)
SRC_VALUE_DST(OrC_32s_C1, orv_OrC_32s_C1, int, int, int)

SRC_VALUE_DST(XorC_8u_C1, orv_XorC_8u_C1, unsigned char, unsigned char, unsigned char)
SRC_VALUE_DST(XorC_8u_C3, orv_XorC_8u_C3, unsigned char, const unsigned char*, unsigned char)
SRC_VALUE_DST(XorC_8u_C4, orv_XorC_8u_C4, unsigned char, const unsigned char*, unsigned char)
SRC_VALUE_DST(XorC_16u_C1, orv_XorC_16u_C1, unsigned short, unsigned short, unsigned short)
SRC_VALUE_DST(XorC_32s_C1, orv_XorC_32s_C1, int, int, int)

// One channel: the value follows the step, unlike in every other in-place form.
SRCDST_VALUE(AndC_8u_C1I, steps_checked(orv_AndC_8u_C1), unsigned char, unsigned char, 1)
SRCDST_VALUE(AndC_16u_C1I, steps_checked(orv_AndC_16u_C1), unsigned short, unsigned short, 1)
SRCDST_VALUE(AndC_32s_C1I, steps_checked(orv_AndC_32s_C1), int, int, 1)
SRCDST_VALUE(OrC_8u_C1I, steps_checked(orv_OrC_8u_C1), unsigned char, unsigned char, 1)
SRCDST_VALUE(OrC_16u_C1I, steps_checked(orv_OrC_16u_C1), unsigned short, unsigned short, 1)
SRCDST_VALUE(OrC_32s_C1I, steps_checked(orv_OrC_32s_C1), int, int, 1)
SRCDST_VALUE(XorC_8u_C1I, steps_checked(orv_XorC_8u_C1), unsigned char, unsigned char, 1)
SRCDST_VALUE(XorC_16u_C1I, steps_checked(orv_XorC_16u_C1), unsigned short, unsigned short, 1)
SRCDST_VALUE(XorC_32s_C1I, steps_checked(orv_XorC_32s_C1), int, int, 1)

VALUE_SRCDST(AndC_8u_C3I, steps_checked(orv_AndC_8u_C3), const unsigned char*, unsigned char, 3)
VALUE_SRCDST(AndC_8u_C4I, steps_checked(orv_AndC_8u_C4), const unsigned char*, unsigned char, 4)
VALUE_SRCDST(OrC_8u_C3I, steps_checked(orv_OrC_8u_C3), const unsigned char*, unsigned char, 3)
VALUE_SRCDST(OrC_8u_C4I, steps_checked(orv_OrC_8u_C4), const unsigned char*, unsigned char, 4)
VALUE_SRCDST(XorC_8u_C3I, steps_checked(orv_XorC_8u_C3), const unsigned char*, unsigned char, 3)
VALUE_SRCDST(XorC_8u_C4I, steps_checked(orv_XorC_8u_C4), const unsigned char*, unsigned char, 4)

SRC_DST(Not_8u_C1, orv_Not_8u_C1, unsigned char, unsigned char)
SRC_DST(Not_8u_C3, orv_Not_8u_C3, unsigned char, unsigned char)
SRC_DST(Not_8u_C4, orv_Not_8u_C4, unsigned char, unsigned char)
SRCDST(Not_8u_C1I, steps_checked(orv_Not_8u_C1), unsigned char, 1)
SRCDST(Not_8u_C3I, steps_checked(orv_Not_8u_C3), unsigned char, 3)
SRCDST(Not_8u_C4I, steps_checked(orv_Not_8u_C4), unsigned char, 4)

SRC_VALUE_DST(LShiftC_8u_C1R, orv_LShiftC_8u_C1, unsigned char, unsigned int, unsigned char)
SRC_VALUE_DST(LShiftC_8u_C3R, orv_LShiftC_8u_C3, unsigned char, const unsigned int*, unsigned char)
SRC_VALUE_DST(LShiftC_8u_C4R, orv_LShiftC_8u_C4, unsigned char, const unsigned int*, unsigned char)
SRC_VALUE_DST(LShiftC_16u_C1R, orv_LShiftC_16u_C1, unsigned short, unsigned int, unsigned short)
SRC_VALUE_DST(LShiftC_32s_C1R, orv_LShiftC_32s_C1, int, unsigned int, int)

SRC_VALUE_DST(RShiftC_8u_C1R, orv_RShiftC_8u_C1, unsigned char, unsigned int, unsigned char)
SRC_VALUE_DST(RShiftC_8u_C3R, orv_RShiftC_8u_C3, unsigned char, const unsigned int*, unsigned char)
SRC_VALUE_DST(RShiftC_8u_C4R, orv_RShiftC_8u_C4, unsigned char, const unsigned int*, unsigned char)
SRC_VALUE_DST(RShiftC_16u_C1R, orv_RShiftC_16u_C1, unsigned short, unsigned int, unsigned short)
SRC_VALUE_DST(RShiftC_16s_C1R, orv_RShiftC_16s_C1, short, unsigned int, short)
SRC_VALUE_DST(RShiftC_32s_C1R, orv_RShiftC_32s_C1, int, unsigned int, int)

VALUE_SRCDST(LShiftC_8u_C1IR, steps_checked(orv_LShiftC_8u_C1), unsigned int, unsigned char, 1)
VALUE_SRCDST(LShiftC_8u_C3IR, steps_checked(orv_LShiftC_8u_C3), const unsigned int*, unsigned char, 3)
VALUE_SRCDST(LShiftC_8u_C4IR, steps_checked(orv_LShiftC_8u_C4), const unsigned int*, unsigned char, 4)
VALUE_SRCDST(LShiftC_16u_C1IR, steps_checked(orv_LShiftC_16u_C1), unsigned int, unsigned short, 1)
VALUE_SRCDST(LShiftC_32s_C1IR, steps_checked(orv_LShiftC_32s_C1), unsigned int, int, 1)

VALUE_SRCDST(RShiftC_8u_C1IR, steps_checked(orv_RShiftC_8u_C1), unsigned int, unsigned char, 1)
VALUE_SRCDST(RShiftC_8u_C3IR, steps_checked(orv_RShiftC_8u_C3), const unsigned int*, unsigned char, 3)
VALUE_SRCDST(RShiftC_8u_C4IR, steps_checked(orv_RShiftC_8u_C4), const unsigned int*, unsigned char, 4)
VALUE_SRCDST(RShiftC_16u_C1IR, steps_checked(orv_RShiftC_16u_C1), unsigned int, unsigned short, 1)
VALUE_SRCDST(RShiftC_16s_C1IR, steps_checked(orv_RShiftC_16s_C1), unsigned int, short, 1)
VALUE_SRCDST(RShiftC_32s_C1IR, steps_checked(orv_RShiftC_32s_C1), unsigned int, int, 1)
