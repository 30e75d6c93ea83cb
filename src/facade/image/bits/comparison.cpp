// Comparison to masks. Each method names the relation that its kernel takes as a code.
#include "image/bits/comparison.h"

#include "ImageProcessingWrapper.h"

using namespace orv;

#define COMPARE(name, operation, T, relation)                                                                        \
    bool ImageProcessingWrapper::name(const T* src1, int src1Step, const T* src2, int src2Step,                      \
                                      unsigned char* dst, int dstStep, int width, int height)                        \
    {                                                                                                                \
        return orv_##operation(src1, src1Step, src2, src2Step, dst, dstStep, {width, height}, relation) == StatusOk; \
    }

// Value: T, or const T* for one value per channel.
#define COMPARE_CONSTANT(name, operation, T, Value, relation)                                                                         \
    bool ImageProcessingWrapper::name(const T* src, int srcStep, Value value, unsigned char* dst, int dstStep, int width, int height) \
    {                                                                                                                                 \
        return orv_##operation(src, srcStep, value, dst, dstStep, {width, height}, relation) == StatusOk;                             \
    }

COMPARE(CompareLess_8u_C1, Compare_8u_C1, unsigned char, relation_less)
COMPARE(CompareLessEq_8u_C1, Compare_8u_C1, unsigned char, relation_less_eq)
COMPARE(CompareEq_8u_C1, Compare_8u_C1, unsigned char, relation_eq)
COMPARE(CompareGreaterEq_8u_C1, Compare_8u_C1, unsigned char, relation_greater_eq)
COMPARE(CompareGreater_8u_C1, Compare_8u_C1, unsigned char, relation_greater)

COMPARE(CompareLess_8u_C3, Compare_8u_C3, unsigned char, relation_less)
COMPARE(CompareLessEq_8u_C3, Compare_8u_C3, unsigned char, relation_less_eq)
COMPARE(CompareEq_8u_C3, Compare_8u_C3, unsigned char, relation_eq)
COMPARE(CompareGreaterEq_8u_C3, Compare_8u_C3, unsigned char, relation_greater_eq)
COMPARE(CompareGreater_8u_C3, Compare_8u_C3, unsigned char, relation_greater)

COMPARE(CompareLess_8u_C4, Compare_8u_C4, unsigned char, relation_less)
COMPARE(CompareLessEq_8u_C4, Compare_8u_C4, unsigned char, relation_less_eq)
COMPARE(CompareEq_8u_C4, Compare_8u_C4, unsigned char, relation_eq)
COMPARE(CompareGreaterEq_8u_C4, Compare_8u_C4, unsigned char, relation_greater_eq)
COMPARE(CompareGreater_8u_C4, Compare_8u_C4, unsigned char, relation_greater)

COMPARE(CompareLess_16u_C1, Compare_16u_C1, unsigned short, relation_less)
COMPARE(CompareLessEq_16u_C1, Compare_16u_C1, unsigned short, relation_less_eq)
COMPARE(CompareEq_16u_C1, Compare_16u_C1, unsigned short, relation_eq)
COMPARE(CompareGreaterEq_16u_C1, Compare_16u_C1, unsigned short, relation_greater_eq)
COMPARE(CompareGreater_16u_C1, Compare_16u_C1, unsigned short, relation_greater)

COMPARE(CompareLess_16s_C1, Compare_16s_C1, short, relation_less)
COMPARE(CompareLessEq_16s_C1, Compare_16s_C1, short, relation_less_eq)
COMPARE(CompareEq_16s_C1, Compare_16s_C1, short, relation_eq)
COMPARE(CompareGreaterEq_16s_C1, Compare_16s_C1, short, relation_greater_eq)
COMPARE(CompareGreater_16s_C1, Compare_16s_C1, short, relation_greater)

COMPARE(CompareLess_32f_C1, Compare_32f_C1, float, relation_less)
COMPARE(CompareLessEq_32f_C1, Compare_32f_C1, float, relation_less_eq)
COMPARE(CompareEq_32f_C1, Compare_32f_C1, float, relation_eq)
COMPARE(CompareGreaterEq_32f_C1, Compare_32f_C1, float, relation_greater_eq)
COMPARE(CompareGreater_32f_C1, Compare_32f_C1, float, relation_greater)

COMPARE(CompareLess_32f_C3, Compare_32f_C3, float, relation_less)
COMPARE(CompareLessEq_32f_C3, Compare_32f_C3, float, relation_less_eq)
COMPARE(CompareEq_32f_C3, Compare_32f_C3, float, relation_eq)
COMPARE(CompareGreaterEq_32f_C3, Compare_32f_C3, float, relation_greater_eq)
COMPARE(CompareGreater_32f_C3, Compare_32f_C3, float, relation_greater)

COMPARE_CONSTANT(CompareCLess_8u_C1R, CompareC_8u_C1, unsigned char, unsigned char, relation_less)
COMPARE_CONSTANT(CompareCLessEq_8u_C1R, CompareC_8u_C1, unsigned char, unsigned char, relation_less_eq)
COMPARE_CONSTANT(CompareCEq_8u_C1R, CompareC_8u_C1, unsigned char, unsigned char, relation_eq)
COMPARE_CONSTANT(CompareCGreaterEq_8u_C1R, CompareC_8u_C1, unsigned char, unsigned char, relation_greater_eq)
COMPARE_CONSTANT(CompareCGreater_8u_C1R, CompareC_8u_C1, unsigned char, unsigned char, relation_greater)

COMPARE_CONSTANT(CompareCLess_8u_C3R, CompareC_8u_C3, unsigned char, const unsigned char*, relation_less)
COMPARE_CONSTANT(CompareCLessEq_8u_C3R, CompareC_8u_C3, unsigned char, const unsigned char*, relation_less_eq)
COMPARE_CONSTANT(CompareCEq_8u_C3R, CompareC_8u_C3, unsigned char, const unsigned char*, relation_eq)
COMPARE_CONSTANT(CompareCGreaterEq_8u_C3R, CompareC_8u_C3, unsigned char, const unsigned char*, relation_greater_eq)
COMPARE_CONSTANT(CompareCGreater_8u_C3R, CompareC_8u_C3, unsigned char, const unsigned char*, relation_greater)

COMPARE_CONSTANT(CompareCLess_8u_C4R, CompareC_8u_C4, unsigned char, const unsigned char*, relation_less)
COMPARE_CONSTANT(CompareCLessEq_8u_C4R, CompareC_8u_C4, unsigned char, const unsigned char*, relation_less_eq)
COMPARE_CONSTANT(CompareCEq_8u_C4R, CompareC_8u_C4, unsigned char, const unsigned char*, relation_eq)
COMPARE_CONSTANT(CompareCGreaterEq_8u_C4R, CompareC_8u_C4, unsigned char, const unsigned char*, relation_greater_eq)
COMPARE_CONSTANT(CompareCGreater_8u_C4R, CompareC_8u_C4, unsigned char, const unsigned char*, relation_greater)

COMPARE_CONSTANT(CompareCLess_16u_C1R, CompareC_16u_C1, unsigned short, unsigned short, relation_less)
COMPARE_CONSTANT(CompareCLessEq_16u_C1R, CompareC_16u_C1, unsigned short, unsigned short, relation_less_eq)
COMPARE_CONSTANT(CompareCEq_16u_C1R, CompareC_16u_C1, unsigned short, unsigned short, relation_eq)
COMPARE_CONSTANT(CompareCGreaterEq_16u_C1R, CompareC_16u_C1, unsigned short, unsigned short, relation_greater_eq)
COMPARE_CONSTANT(CompareCGreater_16u_C1R, CompareC_16u_C1, unsigned short, unsigned short, relation_greater)

COMPARE_CONSTANT(CompareCLess_16s_C1R, CompareC_16s_C1, short, short, relation_less)
COMPARE_CONSTANT(CompareCLessEq_16s_C1R, CompareC_16s_C1, short, short, relation_less_eq)
COMPARE_CONSTANT(CompareCEq_16s_C1R, CompareC_16s_C1, short, short, relation_eq)
COMPARE_CONSTANT(CompareCGreaterEq_16s_C1R, CompareC_16s_C1, short, short, relation_greater_eq)
COMPARE_CONSTANT(CompareCGreater_16s_C1R, CompareC_16s_C1, short, short, relation_greater)

COMPARE_CONSTANT(CompareCLess_32f_C1R, CompareC_32f_C1, float, float, relation_less)
COMPARE_CONSTANT(CompareCLessEq_32f_C1R, CompareC_32f_C1, float, float, relation_less_eq)
COMPARE_CONSTANT(CompareCEq_32f_C1R, CompareC_32f_C1, float, float, relation_eq)
COMPARE_CONSTANT(CompareCGreaterEq_32f_C1R, CompareC_32f_C1, float, float, relation_greater_eq)
COMPARE_CONSTANT(CompareCGreater_32f_C1R, CompareC_32f_C1, float, float, relation_greater)

COMPARE_CONSTANT(CompareCLess_32f_C3R, CompareC_32f_C3, float, const float*, relation_less)
COMPARE_CONSTANT(CompareCLessEq_32f_C3R, CompareC_32f_C3, float, const float*, relation_less_eq)
COMPARE_CONSTANT(CompareCEq_32f_C3R, CompareC_32f_C3, float, const float*, relation_eq)
COMPARE_CONSTANT(CompareCGreaterEq_32f_C3R, CompareC_32f_C3, float, const float*, relation_greater_eq)
COMPARE_CONSTANT(CompareCGreater_32f_C3R, CompareC_32f_C3, float, const float*, relation_greater)

#undef COMPARE
#undef COMPARE_CONSTANT
