// Statistics of vectors.
#include "facade/forms.h"
#include "signal/statistics.h"

using namespace orv;

namespace {

// Either kind of sum that the methods offer is the same one: there is one order of additions.
template <class Inner>
struct FastOrNot {
    const Inner& operation;

    Status operator()(const float* src, Length len, double* result, bool) const { return operation(src, len, result); }
    Status operator()(const float* src, Length len, double* first, double* second, bool) const
    {
        return operation(src, len, first, second);
    }
};

template <class Inner>
FastOrNot<Inner> fast_or_not(const Inner& operation)
{
    return {operation};
}

}  // namespace

// (name, operation, T, results...)
#define VECTOR(name, operation, ...)                                                                      \
    bool SignalProcessingWrapper::name(const FIRST(__VA_ARGS__)* src, int len PARAMETERS(__VA_ARGS__))    \
    {                                                                                                     \
        return call(operation, src, Length{len} ARGUMENTS(__VA_ARGS__));                                  \
    }
#define TWO_VECTORS(name, operation, ...)                                                                 \
    bool SignalProcessingWrapper::name(const FIRST(__VA_ARGS__)* src1, const FIRST(__VA_ARGS__)* src2,    \
                                       int len PARAMETERS(__VA_ARGS__))                                   \
    {                                                                                                     \
        return call(operation, src1, src2, Length{len} ARGUMENTS(__VA_ARGS__));                           \
    }

VECTOR(Sum_8u, orv_Sum_8u, unsigned char, double*)
VECTOR(Sum_16u, orv_Sum_16u, unsigned short, double*)
VECTOR(Sum_32s, orv_Sum_32s, int, double*)
VECTOR(Sum_32f, fast_or_not(orv_Sum_32f), float, double*, bool)
VECTOR(Sum_64f, orv_Sum_64f, double, double*)

VECTOR(Mean_8u, orv_Mean_8u, unsigned char, double*)
VECTOR(Mean_16u, orv_Mean_16u, unsigned short, double*)
VECTOR(Mean_32s, orv_Mean_32s, int, double*)
VECTOR(Mean_32f, fast_or_not(orv_Mean_32f), float, double*, bool)
VECTOR(Mean_64f, orv_Mean_64f, double, double*)

VECTOR(StdDev_32f, fast_or_not(orv_StdDev_32f), float, double*, bool)
VECTOR(MeanStdDev_32f, fast_or_not(orv_MeanStdDev_32f), float, double*, double*, bool)
TWO_VECTORS(DotProd_32f, orv_DotProd_32f, float, double*)
TWO_VECTORS(DotProd_64f, orv_DotProd_64f, double, double*)

VECTOR(Min_8u, orv_Min_8u, unsigned char, unsigned char*)
VECTOR(Min_16u, orv_Min_16u, unsigned short, unsigned short*)
VECTOR(Min_32s, orv_Min_32s, int, int*)
VECTOR(Min_32f, orv_Min_32f, float, float*)
VECTOR(Min_64f, orv_Min_64f, double, double*)

VECTOR(Max_8u, orv_Max_8u, unsigned char, unsigned char*)
VECTOR(Max_16u, orv_Max_16u, unsigned short, unsigned short*)
VECTOR(Max_32s, orv_Max_32s, int, int*)
VECTOR(Max_32f, orv_Max_32f, float, float*)
VECTOR(Max_64f, orv_Max_64f, double, double*)

VECTOR(MinMax_8u, orv_MinMax_8u, unsigned char, unsigned char*, unsigned char*)
VECTOR(MinMax_16u, orv_MinMax_16u, unsigned short, unsigned short*, unsigned short*)
VECTOR(MinMax_32s, orv_MinMax_32s, int, int*, int*)
VECTOR(MinMax_32f, orv_MinMax_32f, float, float*, float*)
VECTOR(MinMax_64f, orv_MinMax_64f, double, double*, double*)

VECTOR(MinIndx_8u, orv_MinIndx_8u, unsigned char, unsigned char*, int*)
VECTOR(MinIndx_16u, orv_MinIndx_16u, unsigned short, unsigned short*, int*)
VECTOR(MinIndx_32s, orv_MinIndx_32s, int, int*, int*)
VECTOR(MinIndx_32f, orv_MinIndx_32f, float, float*, int*)
VECTOR(MinIndx_64f, orv_MinIndx_64f, double, double*, int*)

VECTOR(MaxIndx_8u, orv_MaxIndx_8u, unsigned char, unsigned char*, int*)
VECTOR(MaxIndx_16u, orv_MaxIndx_16u, unsigned short, unsigned short*, int*)
VECTOR(MaxIndx_32s, orv_MaxIndx_32s, int, int*, int*)
VECTOR(MaxIndx_32f, orv_MaxIndx_32f, float, float*, int*)
VECTOR(MaxIndx_64f, orv_MaxIndx_64f, double, double*, int*)

#undef VECTOR
#undef TWO_VECTORS
