// Colour matrices.
#include "facade/forms.h"
#include "image/colour/twist.h"

using namespace orv;

SRC_VALUE_DST(ColorTwist32f_8u_C3, orv_ColorTwist32f_8u_C3, unsigned char, const float*, unsigned char)
SRC_VALUE_DST(ColorTwist32f_8u_AC4, orv_ColorTwist32f_8u_AC4, unsigned char, const float*, unsigned char)
SRC_VALUE_DST(ColorTwist32f_32f_C3, orv_ColorTwist32f_32f_C3, float, const float*, float)
