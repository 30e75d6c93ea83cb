// Luma and chroma.
#include "facade/forms.h"
#include "image/colour/ycbcr.h"

using namespace orv;

SRC_DST(RGBToYCbCr_8u_C3, orv_RGBToYCbCr_8u_C3, unsigned char, unsigned char, int)
SRC_DST(RGBToYCbCr_8u_AC4, orv_RGBToYCbCr_8u_AC4, unsigned char, unsigned char, int)
SRC_DST(RGBToGray_8u_C3C1R, orv_RGBToGray_8u_C3C1, unsigned char, unsigned char, int)
SRC_DST(RGBToGray_8u_AC4C1R, orv_RGBToGray_8u_AC4C1, unsigned char, unsigned char, int)
SRC_DST(YCbCrToRGB_8u_C3, orv_YCbCrToRGB_8u_C3, unsigned char, unsigned char, int)
SRC_DST(YCbCrToRGB_8u_AC4, orv_YCbCrToRGB_8u_AC4, unsigned char, unsigned char, int)
