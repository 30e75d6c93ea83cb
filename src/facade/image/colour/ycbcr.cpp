// Luma and chroma.
#include "facade/forms.h"
#include "image/colour/ycbcr.h"

using namespace orv;

SRC_DST(RGBToYCbCr_8u_C3, orv_RGBToYCbCr_8u_C3, unsigned char, unsigned char, int)
SRC_DST(RGBToYCbCr_8u_AC4, orv_RGBToYCbCr_8u_AC4, unsigned char, unsigned char, int)
SRC_DST(YCbCrToRGB_8u_C3, orv_YCbCrToRGB_8u_C3, unsigned char, unsigned char, int)
SRC_DST(YCbCrToRGB_8u_AC4, orv_YCbCrToRGB_8u_AC4, unsigned char, unsigned char, int)
