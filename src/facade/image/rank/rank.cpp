// Rank filters. Erosion and dilation have one buffer as source and destination, so in place needs no copy.
#include "facade/forms.h"
#include "image/rank/median.h"
#include "image/rank/morphology.h"

using namespace orv;

SRC_DST(FilterMedian_32f_C1, orv_FilterMedian_32f_C1, float, float, int, int)

#define ONTO_ITSELF(name, operation, T)                                                              \
    bool ImageProcessingWrapper::name(T* srcDst, int srcDstStep, int width, int height)              \
    {                                                                                                \
        return call(operation, srcDst, srcDstStep, srcDst, srcDstStep, Size{width, height});         \
    }
#define BOTH(name, operation, T)       \
    SRC_DST(name, operation, T, T)     \
    ONTO_ITSELF(name##I, operation, T)

// Intended: true whatever happens.
BOTH(Erode3x3_8u_C1, always_true(orv_Erode3x3_8u_C1), unsigned char)
BOTH(Dilate3x3_8u_C1, always_true(orv_Dilate3x3_8u_C1), unsigned char)

BOTH(Erode3x3_8u_C3, orv_Erode3x3_8u_C3, unsigned char)
BOTH(Erode3x3_8u_C4, orv_Erode3x3_8u_C4, unsigned char)
BOTH(Erode3x3_16u_C1, orv_Erode3x3_16u_C1, unsigned short)
BOTH(Erode3x3_32f_C1, orv_Erode3x3_32f_C1, float)
BOTH(Dilate3x3_8u_C3, orv_Dilate3x3_8u_C3, unsigned char)
BOTH(Dilate3x3_8u_C4, orv_Dilate3x3_8u_C4, unsigned char)
BOTH(Dilate3x3_16u_C1, orv_Dilate3x3_16u_C1, unsigned short)
BOTH(Dilate3x3_32f_C1, orv_Dilate3x3_32f_C1, float)
#undef BOTH
#undef ONTO_ITSELF
