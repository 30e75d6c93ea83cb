// Thresholds of vectors.
#include "facade/forms.h"
#include "signal/thresholds.h"

using namespace orv;

// In place, the vector is source and destination: nothing is copied. (name, operation, T, ...)
#define VECTOR_ONTO_ITSELF(name, operation, ...)                                                          \
    bool SignalProcessingWrapper::name(FIRST(__VA_ARGS__)* srcDst, int len PARAMETERS(__VA_ARGS__))       \
    {                                                                                                     \
        return call(operation, srcDst, srcDst, Length{len} ARGUMENTS(__VA_ARGS__));                       \
    }

VECTOR_SRC_DST(Threshold_LT_8u, orv_Threshold_LT_8u, unsigned char, unsigned char, unsigned char)
VECTOR_ONTO_ITSELF(Threshold_LT_8u_I, orv_Threshold_LT_8u, unsigned char, unsigned char)
VECTOR_SRC_DST(Threshold_LT_16u, orv_Threshold_LT_16u, unsigned short, unsigned short, unsigned short)
VECTOR_ONTO_ITSELF(Threshold_LT_16u_I, orv_Threshold_LT_16u, unsigned short, unsigned short)
VECTOR_SRC_DST(Threshold_LT_32s, orv_Threshold_LT_32s, int, int, int)
VECTOR_ONTO_ITSELF(Threshold_LT_32s_I, orv_Threshold_LT_32s, int, int)
VECTOR_SRC_DST(Threshold_LT_32f, orv_Threshold_LT_32f, float, float, float)
VECTOR_ONTO_ITSELF(Threshold_LT_32f_I, orv_Threshold_LT_32f, float, float)
VECTOR_SRC_DST(Threshold_LT_64f, orv_Threshold_LT_64f, double, double, double)
VECTOR_ONTO_ITSELF(Threshold_LT_64f_I, orv_Threshold_LT_64f, double, double)

VECTOR_SRC_DST(Threshold_GT_8u, orv_Threshold_GT_8u, unsigned char, unsigned char, unsigned char)
VECTOR_ONTO_ITSELF(Threshold_GT_8u_I, orv_Threshold_GT_8u, unsigned char, unsigned char)
VECTOR_SRC_DST(Threshold_GT_16u, orv_Threshold_GT_16u, unsigned short, unsigned short, unsigned short)
VECTOR_ONTO_ITSELF(Threshold_GT_16u_I, orv_Threshold_GT_16u, unsigned short, unsigned short)
VECTOR_SRC_DST(Threshold_GT_32s, orv_Threshold_GT_32s, int, int, int)
VECTOR_ONTO_ITSELF(Threshold_GT_32s_I, orv_Threshold_GT_32s, int, int)
VECTOR_SRC_DST(Threshold_GT_32f, orv_Threshold_GT_32f, float, float, float)
VECTOR_ONTO_ITSELF(Threshold_GT_32f_I, orv_Threshold_GT_32f, float, float)
VECTOR_SRC_DST(Threshold_GT_64f, orv_Threshold_GT_64f, double, double, double)
VECTOR_ONTO_ITSELF(Threshold_GT_64f_I, orv_Threshold_GT_64f, double, double)

VECTOR_SRC_DST(Threshold_LTVal_8u, orv_Threshold_LTVal_8u, unsigned char, unsigned char, unsigned char, unsigned char)
VECTOR_ONTO_ITSELF(Threshold_LTVal_8u_I, orv_Threshold_LTVal_8u, unsigned char, unsigned char, unsigned char)
VECTOR_SRC_DST(Threshold_LTVal_16u, orv_Threshold_LTVal_16u, unsigned short, unsigned short, unsigned short,
               unsigned short)
VECTOR_ONTO_ITSELF(Threshold_LTVal_16u_I, orv_Threshold_LTVal_16u, unsigned short, unsigned short, unsigned short)
VECTOR_SRC_DST(Threshold_LTVal_32s, orv_Threshold_LTVal_32s, int, int, int, int)
VECTOR_ONTO_ITSELF(Threshold_LTVal_32s_I, orv_Threshold_LTVal_32s, int, int, int)
VECTOR_SRC_DST(Threshold_LTVal_32f, orv_Threshold_LTVal_32f, float, float, float, float)
VECTOR_ONTO_ITSELF(Threshold_LTVal_32f_I, orv_Threshold_LTVal_32f, float, float, float)
VECTOR_SRC_DST(Threshold_LTVal_64f, orv_Threshold_LTVal_64f, double, double, double, double)
VECTOR_ONTO_ITSELF(Threshold_LTVal_64f_I, orv_Threshold_LTVal_64f, double, double, double)

VECTOR_SRC_DST(Threshold_GTVal_8u, orv_Threshold_GTVal_8u, unsigned char, unsigned char, unsigned char, unsigned char)
VECTOR_ONTO_ITSELF(Threshold_GTVal_8u_I, orv_Threshold_GTVal_8u, unsigned char, unsigned char, unsigned char)
VECTOR_SRC_DST(Threshold_GTVal_16u, orv_Threshold_GTVal_16u, unsigned short, unsigned short, unsigned short,
               unsigned short)
VECTOR_ONTO_ITSELF(Threshold_GTVal_16u_I, orv_Threshold_GTVal_16u, unsigned short, unsigned short, unsigned short)
VECTOR_SRC_DST(Threshold_GTVal_32s, orv_Threshold_GTVal_32s, int, int, int, int)
VECTOR_ONTO_ITSELF(Threshold_GTVal_32s_I, orv_Threshold_GTVal_32s, int, int, int)
VECTOR_SRC_DST(Threshold_GTVal_32f, orv_Threshold_GTVal_32f, float, float, float, float)
VECTOR_ONTO_ITSELF(Threshold_GTVal_32f_I, orv_Threshold_GTVal_32f, float, float, float)
VECTOR_SRC_DST(Threshold_GTVal_64f, orv_Threshold_GTVal_64f, double, double, double, double)
VECTOR_ONTO_ITSELF(Threshold_GTVal_64f_I, orv_Threshold_GTVal_64f, double, double, double)

VECTOR_SRC_DST(Threshold_LTValGTVal_8u, orv_Threshold_LTValGTVal_8u, unsigned char, unsigned char, unsigned char,
               unsigned char, unsigned char, unsigned char)
VECTOR_ONTO_ITSELF(Threshold_LTValGTVal_8u_I, orv_Threshold_LTValGTVal_8u, unsigned char, unsigned char,
                   unsigned char, unsigned char, unsigned char)
VECTOR_SRC_DST(Threshold_LTValGTVal_16u, orv_Threshold_LTValGTVal_16u, unsigned short, unsigned short,
               unsigned short, unsigned short, unsigned short, unsigned short)
VECTOR_ONTO_ITSELF(Threshold_LTValGTVal_16u_I, orv_Threshold_LTValGTVal_16u, unsigned short, unsigned short,
                   unsigned short, unsigned short, unsigned short)
VECTOR_SRC_DST(Threshold_LTValGTVal_32s, orv_Threshold_LTValGTVal_32s, int, int, int, int, int, int)
VECTOR_ONTO_ITSELF(Threshold_LTValGTVal_32s_I, orv_Threshold_LTValGTVal_32s, int, int, int, int, int)
VECTOR_SRC_DST(Threshold_LTValGTVal_32f, orv_Threshold_LTValGTVal_32f, float, float, float, float, float, float)
VECTOR_ONTO_ITSELF(Threshold_LTValGTVal_32f_I, orv_Threshold_LTValGTVal_32f, float, float, float, float, float)
VECTOR_SRC_DST(Threshold_LTValGTVal_64f, orv_Threshold_LTValGTVal_64f, double, double, double, double, double, double)
VECTOR_ONTO_ITSELF(Threshold_LTValGTVal_64f_I, orv_Threshold_LTValGTVal_64f, double, double, double, double, double)

#undef VECTOR_ONTO_ITSELF
