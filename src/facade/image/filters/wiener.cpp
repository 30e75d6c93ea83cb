// Smoothing by local means and variances.
#include "facade/forms.h"
#include "image/filters/wiener.h"

using namespace orv;

SRC_DST(FilterWiener_32f_C1, orv_FilterWiener_32f_C1, float, float, int, int, double*)
