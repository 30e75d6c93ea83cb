// Rank filters.
#include "facade/forms.h"
#include "image/rank/median.h"
#include "image/rank/morphology.h"

using namespace orv;

SRC_DST(FilterMedian_32f_C1, orv_FilterMedian_32f_C1, float, float, int, int)

// Intended: true whatever happens.
SRC_DST(Erode3x3_8u_C1, always_true(orv_Erode3x3_8u_C1), unsigned char, unsigned char)
SRC_DST(Dilate3x3_8u_C1, always_true(orv_Dilate3x3_8u_C1), unsigned char, unsigned char)
SRCDST(Erode3x3_8u_C1I, always_true(onto_itself(orv_Erode3x3_8u_C1)), unsigned char, 1)
SRCDST(Dilate3x3_8u_C1I, always_true(onto_itself(orv_Dilate3x3_8u_C1)), unsigned char, 1)

SRC_DST(Erode3x3_8u_C3, orv_Erode3x3_8u_C3, unsigned char, unsigned char)
SRC_DST(Erode3x3_8u_C4, orv_Erode3x3_8u_C4, unsigned char, unsigned char)
SRC_DST(Erode3x3_16u_C1, orv_Erode3x3_16u_C1, unsigned short, unsigned short)
SRC_DST(Erode3x3_32f_C1, orv_Erode3x3_32f_C1, float, float)
SRC_DST(Dilate3x3_8u_C3, orv_Dilate3x3_8u_C3, unsigned char, unsigned char)
SRC_DST(Dilate3x3_8u_C4, orv_Dilate3x3_8u_C4, unsigned char, unsigned char)
SRC_DST(Dilate3x3_16u_C1, orv_Dilate3x3_16u_C1, unsigned short, unsigned short)
SRC_DST(Dilate3x3_32f_C1, orv_Dilate3x3_32f_C1, float, float)
SRCDST(Erode3x3_8u_C3I, onto_itself(orv_Erode3x3_8u_C3), unsigned char, 3)
SRCDST(Erode3x3_8u_C4I, onto_itself(orv_Erode3x3_8u_C4), unsigned char, 4)
SRCDST(Erode3x3_16u_C1I, onto_itself(orv_Erode3x3_16u_C1), unsigned short, 1)
SRCDST(Erode3x3_32f_C1I, onto_itself(orv_Erode3x3_32f_C1), float, 1)
SRCDST(Dilate3x3_8u_C3I, onto_itself(orv_Dilate3x3_8u_C3), unsigned char, 3)
SRCDST(Dilate3x3_8u_C4I, onto_itself(orv_Dilate3x3_8u_C4), unsigned char, 4)
SRCDST(Dilate3x3_16u_C1I, onto_itself(orv_Dilate3x3_16u_C1), unsigned short, 1)
SRCDST(Dilate3x3_32f_C1I, onto_itself(orv_Dilate3x3_32f_C1), float, 1)
