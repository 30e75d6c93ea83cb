// Logarithm and exponential of float images.
#include "facade/forms.h"
#include "image/arithmetic/float_elementary.h"

using namespace orv;

SRC_DST(Exp_32f_C1, orv_Exp_32f_C1, float, float)
SRCDST(Ln_32f_C1I, steps_checked(orv_Ln_32f_C1), float, 1)
