// Thresholding. Each method names the operator that its kernel takes as a code.
//
// Intended: the kernels refuse all operators but less and greater, and so the methods for the other three
// return false for whatever they are given.
#include "facade/forms.h"
#include "image/bits/threshold.h"

using namespace orv;

namespace {

// The operator stands between the size and the limits.
template <class Inner>
struct When {
    const Inner& operation;
    Relation relation;

    template <class T, class... Limits>
    Status operator()(const T* src, int srcStep, T* dst, int dstStep, Size size, const Limits&... limits) const
    {
        return operation(src, srcStep, dst, dstStep, size, relation, limits...);
    }
};

template <class Inner>
When<Inner> when(const Inner& operation, Relation relation)
{
    return {operation, relation};
}

}  // namespace

SRC_DST(ThresholdLess_32f_C1R, when(orv_Threshold_32f_C1, relation_less), float, float, float)
SRC_DST(ThresholdLessEq_32f_C1R, when(orv_Threshold_32f_C1, relation_less_eq), float, float, float)
SRC_DST(ThresholdEq_32f_C1R, when(orv_Threshold_32f_C1, relation_eq), float, float, float)
SRC_DST(ThresholdGreaterEq_32f_C1R, when(orv_Threshold_32f_C1, relation_greater_eq), float, float, float)
SRC_DST(ThresholdGreater_32f_C1R, when(orv_Threshold_32f_C1, relation_greater), float, float, float)

SRC_DST(ThresholdLess_32f_C3R, when(orv_Threshold_32f_C3, relation_less), float, float, const float*)
SRC_DST(ThresholdLessEq_32f_C3R, when(orv_Threshold_32f_C3, relation_less_eq), float, float, const float*)
SRC_DST(ThresholdEq_32f_C3R, when(orv_Threshold_32f_C3, relation_eq), float, float, const float*)
SRC_DST(ThresholdGreaterEq_32f_C3R, when(orv_Threshold_32f_C3, relation_greater_eq), float, float, const float*)
SRC_DST(ThresholdGreater_32f_C3R, when(orv_Threshold_32f_C3, relation_greater), float, float, const float*)

SRCDST(ThresholdLess_32f_C1IR, steps_checked(when(orv_Threshold_32f_C1, relation_less)), float, 1, float)
SRCDST(ThresholdLessEq_32f_C1IR, steps_checked(when(orv_Threshold_32f_C1, relation_less_eq)), float, 1, float)
SRCDST(ThresholdEq_32f_C1IR, steps_checked(when(orv_Threshold_32f_C1, relation_eq)), float, 1, float)
SRCDST(ThresholdGreaterEq_32f_C1IR, steps_checked(when(orv_Threshold_32f_C1, relation_greater_eq)), float, 1, float)
SRCDST(ThresholdGreater_32f_C1IR, steps_checked(when(orv_Threshold_32f_C1, relation_greater)), float, 1, float)

SRCDST(ThresholdLess_32f_C3IR, steps_checked(when(orv_Threshold_32f_C3, relation_less)), float, 3, const float*)
SRCDST(ThresholdLessEq_32f_C3IR, steps_checked(when(orv_Threshold_32f_C3, relation_less_eq)), float, 3, const float*)
SRCDST(ThresholdEq_32f_C3IR, steps_checked(when(orv_Threshold_32f_C3, relation_eq)), float, 3, const float*)
SRCDST(ThresholdGreaterEq_32f_C3IR, steps_checked(when(orv_Threshold_32f_C3, relation_greater_eq)),
       float, 3, const float*)
SRCDST(ThresholdGreater_32f_C3IR, steps_checked(when(orv_Threshold_32f_C3, relation_greater)), float, 3, const float*)

SRC_DST(ThresholdLess_Val_32f_C1R, when(orv_Threshold_Val_32f_C1, relation_less), float, float, float, float)
SRC_DST(ThresholdLessEq_Val_32f_C1R, when(orv_Threshold_Val_32f_C1, relation_less_eq), float, float, float, float)
SRC_DST(ThresholdEq_Val_32f_C1R, when(orv_Threshold_Val_32f_C1, relation_eq), float, float, float, float)
SRC_DST(ThresholdGreaterEq_Val_32f_C1R, when(orv_Threshold_Val_32f_C1, relation_greater_eq), float, float, float, float)
SRC_DST(ThresholdGreater_Val_32f_C1R, when(orv_Threshold_Val_32f_C1, relation_greater), float, float, float, float)

SRC_DST(ThresholdLess_Val_8u_C1R, when(orv_Threshold_Val_8u_C1, relation_less),
        unsigned char, unsigned char, unsigned char, unsigned char)
SRC_DST(ThresholdLessEq_Val_8u_C1R, when(orv_Threshold_Val_8u_C1, relation_less_eq),
        unsigned char, unsigned char, unsigned char, unsigned char)
SRC_DST(ThresholdEq_Val_8u_C1R, when(orv_Threshold_Val_8u_C1, relation_eq),
        unsigned char, unsigned char, unsigned char, unsigned char)
SRC_DST(ThresholdGreaterEq_Val_8u_C1R, when(orv_Threshold_Val_8u_C1, relation_greater_eq),
        unsigned char, unsigned char, unsigned char, unsigned char)
SRC_DST(ThresholdGreater_Val_8u_C1R, when(orv_Threshold_Val_8u_C1, relation_greater),
        unsigned char, unsigned char, unsigned char, unsigned char)

SRCDST(ThresholdLess_Val_8u_C1IR, steps_checked(when(orv_Threshold_Val_8u_C1, relation_less)),
       unsigned char, 1, unsigned char, unsigned char)
SRCDST(ThresholdLessEq_Val_8u_C1IR, steps_checked(when(orv_Threshold_Val_8u_C1, relation_less_eq)),
       unsigned char, 1, unsigned char, unsigned char)
SRCDST(ThresholdEq_Val_8u_C1IR, steps_checked(when(orv_Threshold_Val_8u_C1, relation_eq)),
       unsigned char, 1, unsigned char, unsigned char)
SRCDST(ThresholdGreaterEq_Val_8u_C1IR, steps_checked(when(orv_Threshold_Val_8u_C1, relation_greater_eq)),
       unsigned char, 1, unsigned char, unsigned char)
SRCDST(ThresholdGreater_Val_8u_C1IR, steps_checked(when(orv_Threshold_Val_8u_C1, relation_greater)),
       unsigned char, 1, unsigned char, unsigned char)

SRC_DST(Threshold_GT_32f_C1, when(orv_Threshold_32f_C1, relation_greater), float, float, float)
SRCDST(Threshold_GT_32f_C1I, steps_checked(when(orv_Threshold_32f_C1, relation_greater)), float, 1, float)
SRC_DST(Threshold_LT_32f_C1, when(orv_Threshold_32f_C1, relation_less), float, float, float)
SRCDST(Threshold_LT_32f_C1I, steps_checked(when(orv_Threshold_32f_C1, relation_less)), float, 1, float)
SRC_DST(Threshold_GTVal_32f_C1, when(orv_Threshold_Val_32f_C1, relation_greater), float, float, float, float)
SRCDST(Threshold_GTVal_32f_C1I, steps_checked(when(orv_Threshold_Val_32f_C1, relation_greater)), float, 1, float, float)
SRC_DST(Threshold_GTVal_16u_C1, when(orv_Threshold_Val_16u_C1, relation_greater),
        unsigned short, unsigned short, unsigned short, unsigned short)
SRC_DST(Threshold_LTVal_32f_C1, when(orv_Threshold_Val_32f_C1, relation_less), float, float, float, float)
SRCDST(Threshold_LTVal_32f_C1I, steps_checked(when(orv_Threshold_Val_32f_C1, relation_less)), float, 1, float, float)

SRC_DST(Threshold_LTValGTVal_32f_C1R, orv_Threshold_LTValGTVal_32f_C1, float, float, float, float, float, float)
SRCDST(Threshold_LTValGTVal_32f_C1IR, steps_checked(orv_Threshold_LTValGTVal_32f_C1),
       float, 1, float, float, float, float)
SRC_DST(Threshold_LTValGTVal_32f_C3R, orv_Threshold_LTValGTVal_32f_C3,
        float, float, const float*, const float*, const float*, const float*)
SRCDST(Threshold_LTValGTVal_32f_C3IR, steps_checked(orv_Threshold_LTValGTVal_32f_C3),
       float, 3, const float*, const float*, const float*, const float*)
