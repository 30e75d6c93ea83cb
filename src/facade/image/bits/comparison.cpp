// Comparison to masks. Each method names the relation that its kernel takes as a code.
#include "facade/forms.h"
#include "image/bits/comparison.h"

using namespace orv;

SRC_SRC_DST(CompareLess_8u_C1, with(orv_Compare_8u_C1, relation_less), unsigned char, unsigned char)
SRC_SRC_DST(CompareLessEq_8u_C1, with(orv_Compare_8u_C1, relation_less_eq), unsigned char, unsigned char)
SRC_SRC_DST(CompareEq_8u_C1, with(orv_Compare_8u_C1, relation_eq), unsigned char, unsigned char)
SRC_SRC_DST(CompareGreaterEq_8u_C1, with(orv_Compare_8u_C1, relation_greater_eq), unsigned char, unsigned char)
SRC_SRC_DST(CompareGreater_8u_C1, with(orv_Compare_8u_C1, relation_greater), unsigned char, unsigned char)

SRC_SRC_DST(CompareLess_8u_C3, with(orv_Compare_8u_C3, relation_less), unsigned char, unsigned char)
SRC_SRC_DST(CompareLessEq_8u_C3, with(orv_Compare_8u_C3, relation_less_eq), unsigned char, unsigned char)
SRC_SRC_DST(CompareEq_8u_C3, with(orv_Compare_8u_C3, relation_eq), unsigned char, unsigned char)
SRC_SRC_DST(CompareGreaterEq_8u_C3, with(orv_Compare_8u_C3, relation_greater_eq), unsigned char, unsigned char)
SRC_SRC_DST(CompareGreater_8u_C3, with(orv_Compare_8u_C3, relation_greater), unsigned char, unsigned char)

SRC_SRC_DST(CompareLess_8u_C4, with(orv_Compare_8u_C4, relation_less), unsigned char, unsigned char)
SRC_SRC_DST(CompareLessEq_8u_C4, with(orv_Compare_8u_C4, relation_less_eq), unsigned char, unsigned char)
SRC_SRC_DST(CompareEq_8u_C4, with(orv_Compare_8u_C4, relation_eq), unsigned char, unsigned char)
SRC_SRC_DST(CompareGreaterEq_8u_C4, with(orv_Compare_8u_C4, relation_greater_eq), unsigned char, unsigned char)
SRC_SRC_DST(CompareGreater_8u_C4, with(orv_Compare_8u_C4, relation_greater), unsigned char, unsigned char)

SRC_SRC_DST(CompareLess_16u_C1, with(orv_Compare_16u_C1, relation_less), unsigned short, unsigned char)
SRC_SRC_DST(CompareLessEq_16u_C1, with(orv_Compare_16u_C1, relation_less_eq), unsigned short, unsigned char)
SRC_SRC_DST(CompareEq_16u_C1, with(orv_Compare_16u_C1, relation_eq), unsigned short, unsigned char)
SRC_SRC_DST(CompareGreaterEq_16u_C1, with(orv_Compare_16u_C1, relation_greater_eq), unsigned short, unsigned char)
SRC_SRC_DST(CompareGreater_16u_C1, with(orv_Compare_16u_C1, relation_greater), unsigned short, unsigned char)

SRC_SRC_DST(CompareLess_16s_C1, with(orv_Compare_16s_C1, relation_less), short, unsigned char)
SRC_SRC_DST(CompareLessEq_16s_C1, with(orv_Compare_16s_C1, relation_less_eq), short, unsigned char)
SRC_SRC_DST(CompareEq_16s_C1, with(orv_Compare_16s_C1, relation_eq), short, unsigned char)
SRC_SRC_DST(CompareGreaterEq_16s_C1, with(orv_Compare_16s_C1, relation_greater_eq), short, unsigned char)
SRC_SRC_DST(CompareGreater_16s_C1, with(orv_Compare_16s_C1, relation_greater), short, unsigned char)

SRC_SRC_DST(CompareLess_32f_C1, with(orv_Compare_32f_C1, relation_less), float, unsigned char)
SRC_SRC_DST(CompareLessEq_32f_C1, with(orv_Compare_32f_C1, relation_less_eq), float, unsigned char)
SRC_SRC_DST(CompareEq_32f_C1, with(orv_Compare_32f_C1, relation_eq), float, unsigned char)
SRC_SRC_DST(CompareGreaterEq_32f_C1, with(orv_Compare_32f_C1, relation_greater_eq), float, unsigned char)
SRC_SRC_DST(CompareGreater_32f_C1, with(orv_Compare_32f_C1, relation_greater), float, unsigned char)

SRC_SRC_DST(CompareLess_32f_C3, with(orv_Compare_32f_C3, relation_less), float, unsigned char)
SRC_SRC_DST(CompareLessEq_32f_C3, with(orv_Compare_32f_C3, relation_less_eq), float, unsigned char)
SRC_SRC_DST(CompareEq_32f_C3, with(orv_Compare_32f_C3, relation_eq), float, unsigned char)
SRC_SRC_DST(CompareGreaterEq_32f_C3, with(orv_Compare_32f_C3, relation_greater_eq), float, unsigned char)
SRC_SRC_DST(CompareGreater_32f_C3, with(orv_Compare_32f_C3, relation_greater), float, unsigned char)

SRC_VALUE_DST(CompareCLess_8u_C1R, with(orv_CompareC_8u_C1, relation_less), unsigned char, unsigned char, unsigned char)
SRC_VALUE_DST(CompareCLessEq_8u_C1R, with(orv_CompareC_8u_C1, relation_less_eq),
              unsigned char, unsigned char, unsigned char)
SRC_VALUE_DST(CompareCEq_8u_C1R, with(orv_CompareC_8u_C1, relation_eq), unsigned char, unsigned char, unsigned char)
SRC_VALUE_DST(CompareCGreaterEq_8u_C1R, with(orv_CompareC_8u_C1, relation_greater_eq),
              unsigned char, unsigned char, unsigned char)
SRC_VALUE_DST(CompareCGreater_8u_C1R, with(orv_CompareC_8u_C1, relation_greater),
              unsigned char, unsigned char, unsigned char)

SRC_VALUE_DST(CompareCLess_8u_C3R, with(orv_CompareC_8u_C3, relation_less),
              unsigned char, const unsigned char*, unsigned char)
SRC_VALUE_DST(CompareCLessEq_8u_C3R, with(orv_CompareC_8u_C3, relation_less_eq),
              unsigned char, const unsigned char*, unsigned char)
SRC_VALUE_DST(CompareCEq_8u_C3R, with(orv_CompareC_8u_C3, relation_eq),
              unsigned char, const unsigned char*, unsigned char)
SRC_VALUE_DST(CompareCGreaterEq_8u_C3R, with(orv_CompareC_8u_C3, relation_greater_eq),
              unsigned char, const unsigned char*, unsigned char)
SRC_VALUE_DST(CompareCGreater_8u_C3R, with(orv_CompareC_8u_C3, relation_greater),
              unsigned char, const unsigned char*, unsigned char)

SRC_VALUE_DST(CompareCLess_8u_C4R, with(orv_CompareC_8u_C4, relation_less),
              unsigned char, const unsigned char*, unsigned char)
SRC_VALUE_DST(CompareCLessEq_8u_C4R, with(orv_CompareC_8u_C4, relation_less_eq),
              unsigned char, const unsigned char*, unsigned char)
SRC_VALUE_DST(CompareCEq_8u_C4R, with(orv_CompareC_8u_C4, relation_eq),
              unsigned char, const unsigned char*, unsigned char)
SRC_VALUE_DST(CompareCGreaterEq_8u_C4R, with(orv_CompareC_8u_C4, relation_greater_eq),
              unsigned char, const unsigned char*, unsigned char)
SRC_VALUE_DST(CompareCGreater_8u_C4R, with(orv_CompareC_8u_C4, relation_greater),
              unsigned char, const unsigned char*, unsigned char)

SRC_VALUE_DST(CompareCLess_16u_C1R, with(orv_CompareC_16u_C1, relation_less),
              unsigned short, unsigned short, unsigned char)
SRC_VALUE_DST(CompareCLessEq_16u_C1R, with(orv_CompareC_16u_C1, relation_less_eq),
              unsigned short, unsigned short, unsigned char)
SRC_VALUE_DST(CompareCEq_16u_C1R, with(orv_CompareC_16u_C1, relation_eq), unsigned short, unsigned short, unsigned char)
SRC_VALUE_DST(CompareCGreaterEq_16u_C1R, with(orv_CompareC_16u_C1, relation_greater_eq),
              unsigned short, unsigned short, unsigned char)
SRC_VALUE_DST(CompareCGreater_16u_C1R, with(orv_CompareC_16u_C1, relation_greater),
              unsigned short, unsigned short, unsigned char)

SRC_VALUE_DST(CompareCLess_16s_C1R, with(orv_CompareC_16s_C1, relation_less), short, short, unsigned char)
SRC_VALUE_DST(CompareCLessEq_16s_C1R, with(orv_CompareC_16s_C1, relation_less_eq), short, short, unsigned char)
SRC_VALUE_DST(CompareCEq_16s_C1R, with(orv_CompareC_16s_C1, relation_eq), short, short, unsigned char)
SRC_VALUE_DST(CompareCGreaterEq_16s_C1R, with(orv_CompareC_16s_C1, relation_greater_eq), short, short, unsigned char)
SRC_VALUE_DST(CompareCGreater_16s_C1R, with(orv_CompareC_16s_C1, relation_greater), short, short, unsigned char)

SRC_VALUE_DST(CompareCLess_32f_C1R, with(orv_CompareC_32f_C1, relation_less), float, float, unsigned char)
SRC_VALUE_DST(CompareCLessEq_32f_C1R, with(orv_CompareC_32f_C1, relation_less_eq), float, float, unsigned char)
SRC_VALUE_DST(CompareCEq_32f_C1R, with(orv_CompareC_32f_C1, relation_eq), float, float, unsigned char)
SRC_VALUE_DST(CompareCGreaterEq_32f_C1R, with(orv_CompareC_32f_C1, relation_greater_eq), float, float, unsigned char)
SRC_VALUE_DST(CompareCGreater_32f_C1R, with(orv_CompareC_32f_C1, relation_greater), float, float, unsigned char)

SRC_VALUE_DST(CompareCLess_32f_C3R, with(orv_CompareC_32f_C3, relation_less), float, const float*, unsigned char)
SRC_VALUE_DST(CompareCLessEq_32f_C3R, with(orv_CompareC_32f_C3, relation_less_eq), float, const float*, unsigned char)
SRC_VALUE_DST(CompareCEq_32f_C3R, with(orv_CompareC_32f_C3, relation_eq), float, const float*, unsigned char)
SRC_VALUE_DST(CompareCGreaterEq_32f_C3R, with(orv_CompareC_32f_C3, relation_greater_eq),
              float, const float*, unsigned char)
SRC_VALUE_DST(CompareCGreater_32f_C3R, with(orv_CompareC_32f_C3, relation_greater), float, const float*, unsigned char)
