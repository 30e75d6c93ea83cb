// Thresholding. Each method names the operator that its kernel takes as a code.
//
// Intended: the kernels refuse all operators but less and greater, and so the methods for the other three
// return false for whatever they are given.
#include "image/bits/threshold.h"

#include "ImageProcessingWrapper.h"
#include "facade/in_place.h"

using namespace orv;

// Value: float, or const float* for one threshold per channel.
#define THRESHOLD(name, operation, Value, relation)                                                                                   \
    bool ImageProcessingWrapper::name(const float* src, int srcStep, float* dst, int dstStep, int width, int height, Value threshold) \
    {                                                                                                                                 \
        return orv_##operation(src, srcStep, dst, dstStep, {width, height}, relation, threshold) == StatusOk;                         \
    }

#define THRESHOLD_IN_PLACE(name, operation, Value, channels, relation)                                                     \
    bool ImageProcessingWrapper::name(float* srcDst, int srcDstStep, int width, int height, Value threshold)               \
    {                                                                                                                      \
        return in_place_checked(srcDst, srcDstStep, width, height, channels, [=](const auto& tile) {                       \
                   return orv_##operation(tile.src, tile.srcStep, tile.dst, tile.dstStep, tile.size, relation, threshold); \
               }) == StatusOk;                                                                                             \
    }

#define THRESHOLD_VALUE(name, operation, T, relation)                                                                \
    bool ImageProcessingWrapper::name(const T* src, int srcStep, T* dst, int dstStep, int width, int height,         \
                                      T threshold, T value)                                                          \
    {                                                                                                                \
        return orv_##operation(src, srcStep, dst, dstStep, {width, height}, relation, threshold, value) == StatusOk; \
    }

#define THRESHOLD_VALUE_IN_PLACE(name, operation, T, relation)                                                                    \
    bool ImageProcessingWrapper::name(T* srcDst, int srcDstStep, int width, int height, T threshold, T value)                     \
    {                                                                                                                             \
        return in_place_checked(srcDst, srcDstStep, width, height, 1, [=](const auto& tile) {                                     \
                   return orv_##operation(tile.src, tile.srcStep, tile.dst, tile.dstStep, tile.size, relation, threshold, value); \
               }) == StatusOk;                                                                                                    \
    }

#define THRESHOLD_BOTH(name, operation, Value)                                                                                       \
    bool ImageProcessingWrapper::name(const float* src, int srcStep, float* dst, int dstStep, int width, int height,                 \
                                      Value thresholdLT, Value valueLT, Value thresholdGT, Value valueGT)                            \
    {                                                                                                                                \
        return orv_##operation(src, srcStep, dst, dstStep, {width, height}, thresholdLT, valueLT, thresholdGT, valueGT) == StatusOk; \
    }

#define THRESHOLD_BOTH_IN_PLACE(name, operation, Value, channels)                                                                                               \
    bool ImageProcessingWrapper::name(float* srcDst, int srcDstStep, int width, int height, Value thresholdLT, Value valueLT, Value thresholdGT, Value valueGT) \
    {                                                                                                                                                           \
        return in_place_checked(srcDst, srcDstStep, width, height, channels, [=](const auto& tile) {                                                            \
                   return orv_##operation(tile.src, tile.srcStep, tile.dst, tile.dstStep, tile.size, thresholdLT, valueLT, thresholdGT, valueGT);               \
               }) == StatusOk;                                                                                                                                  \
    }

THRESHOLD(ThresholdLess_32f_C1R, Threshold_32f_C1, float, relation_less)
THRESHOLD(ThresholdLessEq_32f_C1R, Threshold_32f_C1, float, relation_less_eq)
THRESHOLD(ThresholdEq_32f_C1R, Threshold_32f_C1, float, relation_eq)
THRESHOLD(ThresholdGreaterEq_32f_C1R, Threshold_32f_C1, float, relation_greater_eq)
THRESHOLD(ThresholdGreater_32f_C1R, Threshold_32f_C1, float, relation_greater)

THRESHOLD(ThresholdLess_32f_C3R, Threshold_32f_C3, const float*, relation_less)
THRESHOLD(ThresholdLessEq_32f_C3R, Threshold_32f_C3, const float*, relation_less_eq)
THRESHOLD(ThresholdEq_32f_C3R, Threshold_32f_C3, const float*, relation_eq)
THRESHOLD(ThresholdGreaterEq_32f_C3R, Threshold_32f_C3, const float*, relation_greater_eq)
THRESHOLD(ThresholdGreater_32f_C3R, Threshold_32f_C3, const float*, relation_greater)

THRESHOLD_IN_PLACE(ThresholdLess_32f_C1IR, Threshold_32f_C1, float, 1, relation_less)
THRESHOLD_IN_PLACE(ThresholdLessEq_32f_C1IR, Threshold_32f_C1, float, 1, relation_less_eq)
THRESHOLD_IN_PLACE(ThresholdEq_32f_C1IR, Threshold_32f_C1, float, 1, relation_eq)
THRESHOLD_IN_PLACE(ThresholdGreaterEq_32f_C1IR, Threshold_32f_C1, float, 1, relation_greater_eq)
THRESHOLD_IN_PLACE(ThresholdGreater_32f_C1IR, Threshold_32f_C1, float, 1, relation_greater)

THRESHOLD_IN_PLACE(ThresholdLess_32f_C3IR, Threshold_32f_C3, const float*, 3, relation_less)
THRESHOLD_IN_PLACE(ThresholdLessEq_32f_C3IR, Threshold_32f_C3, const float*, 3, relation_less_eq)
THRESHOLD_IN_PLACE(ThresholdEq_32f_C3IR, Threshold_32f_C3, const float*, 3, relation_eq)
THRESHOLD_IN_PLACE(ThresholdGreaterEq_32f_C3IR, Threshold_32f_C3, const float*, 3, relation_greater_eq)
THRESHOLD_IN_PLACE(ThresholdGreater_32f_C3IR, Threshold_32f_C3, const float*, 3, relation_greater)

THRESHOLD_VALUE(ThresholdLess_Val_32f_C1R, Threshold_Val_32f_C1, float, relation_less)
THRESHOLD_VALUE(ThresholdLessEq_Val_32f_C1R, Threshold_Val_32f_C1, float, relation_less_eq)
THRESHOLD_VALUE(ThresholdEq_Val_32f_C1R, Threshold_Val_32f_C1, float, relation_eq)
THRESHOLD_VALUE(ThresholdGreaterEq_Val_32f_C1R, Threshold_Val_32f_C1, float, relation_greater_eq)
THRESHOLD_VALUE(ThresholdGreater_Val_32f_C1R, Threshold_Val_32f_C1, float, relation_greater)

THRESHOLD_VALUE(ThresholdLess_Val_8u_C1R, Threshold_Val_8u_C1, unsigned char, relation_less)
THRESHOLD_VALUE(ThresholdLessEq_Val_8u_C1R, Threshold_Val_8u_C1, unsigned char, relation_less_eq)
THRESHOLD_VALUE(ThresholdEq_Val_8u_C1R, Threshold_Val_8u_C1, unsigned char, relation_eq)
THRESHOLD_VALUE(ThresholdGreaterEq_Val_8u_C1R, Threshold_Val_8u_C1, unsigned char, relation_greater_eq)
THRESHOLD_VALUE(ThresholdGreater_Val_8u_C1R, Threshold_Val_8u_C1, unsigned char, relation_greater)

THRESHOLD_VALUE_IN_PLACE(ThresholdLess_Val_8u_C1IR, Threshold_Val_8u_C1, unsigned char, relation_less)
THRESHOLD_VALUE_IN_PLACE(ThresholdLessEq_Val_8u_C1IR, Threshold_Val_8u_C1, unsigned char, relation_less_eq)
THRESHOLD_VALUE_IN_PLACE(ThresholdEq_Val_8u_C1IR, Threshold_Val_8u_C1, unsigned char, relation_eq)
THRESHOLD_VALUE_IN_PLACE(ThresholdGreaterEq_Val_8u_C1IR, Threshold_Val_8u_C1, unsigned char, relation_greater_eq)
THRESHOLD_VALUE_IN_PLACE(ThresholdGreater_Val_8u_C1IR, Threshold_Val_8u_C1, unsigned char, relation_greater)

THRESHOLD(Threshold_GT_32f_C1, Threshold_32f_C1, float, relation_greater)
THRESHOLD_IN_PLACE(Threshold_GT_32f_C1I, Threshold_32f_C1, float, 1, relation_greater)
THRESHOLD(Threshold_LT_32f_C1, Threshold_32f_C1, float, relation_less)
THRESHOLD_IN_PLACE(Threshold_LT_32f_C1I, Threshold_32f_C1, float, 1, relation_less)
THRESHOLD_VALUE(Threshold_GTVal_32f_C1, Threshold_Val_32f_C1, float, relation_greater)
THRESHOLD_VALUE_IN_PLACE(Threshold_GTVal_32f_C1I, Threshold_Val_32f_C1, float, relation_greater)
THRESHOLD_VALUE(Threshold_GTVal_16u_C1, Threshold_Val_16u_C1, unsigned short, relation_greater)
THRESHOLD_VALUE(Threshold_LTVal_32f_C1, Threshold_Val_32f_C1, float, relation_less)
THRESHOLD_VALUE_IN_PLACE(Threshold_LTVal_32f_C1I, Threshold_Val_32f_C1, float, relation_less)

THRESHOLD_BOTH(Threshold_LTValGTVal_32f_C1R, Threshold_LTValGTVal_32f_C1, float)
THRESHOLD_BOTH_IN_PLACE(Threshold_LTValGTVal_32f_C1IR, Threshold_LTValGTVal_32f_C1, float, 1)
THRESHOLD_BOTH(Threshold_LTValGTVal_32f_C3R, Threshold_LTValGTVal_32f_C3, const float*)
THRESHOLD_BOTH_IN_PLACE(Threshold_LTValGTVal_32f_C3IR, Threshold_LTValGTVal_32f_C3, const float*, 3)

#undef THRESHOLD
#undef THRESHOLD_IN_PLACE
#undef THRESHOLD_VALUE
#undef THRESHOLD_VALUE_IN_PLACE
#undef THRESHOLD_BOTH
#undef THRESHOLD_BOTH_IN_PLACE
