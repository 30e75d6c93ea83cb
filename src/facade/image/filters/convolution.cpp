// Convolution with a kernel of the caller's.
#include "facade/forms.h"
#include "image/filters/convolution.h"

using namespace orv;

// Behind the size: the kernel, its sides, its anchor, and the divisor of integers.
SRC_DST(Filter_8u_C1R, orv_Filter_8u_C1R, unsigned char, unsigned char, const int*, int, int, int, int, int)
SRC_DST(Filter_8u_C3R, orv_Filter_8u_C3R, unsigned char, unsigned char, const int*, int, int, int, int, int)
SRC_DST(Filter_8u_C4R, orv_Filter_8u_C4R, unsigned char, unsigned char, const int*, int, int, int, int, int)
SRC_DST(Filter_16u_C1R, orv_Filter_16u_C1R, unsigned short, unsigned short, const int*, int, int, int, int, int)
SRC_DST(Filter_16s_C1R, orv_Filter_16s_C1R, short, short, const int*, int, int, int, int, int)
SRC_DST(Filter_8u16s_C1R, orv_Filter_8u16s_C1R, unsigned char, short, const int*, int, int, int, int, int)
SRC_DST(Filter_32f_C1R, orv_Filter_32f_C1R, float, float, const float*, int, int, int, int)
SRC_DST(Filter_32f_C3R, orv_Filter_32f_C3R, float, float, const float*, int, int, int, int)
SRC_DST(Filter_8u32f_C1R, orv_Filter_8u32f_C1R, unsigned char, float, const float*, int, int, int, int)
SRC_DST(Filter_16u32f_C1R, orv_Filter_16u32f_C1R, unsigned short, float, const float*, int, int, int, int)
