// Gaussian smoothing of any size.
#include "facade/forms.h"
#include "image/filters/gauss.h"

using namespace orv;

SRC_DST(FilterGaussBorder_32f_C1R, by_address(orv_FilterGaussBorder_32f_C1R), float, float, int, float)
