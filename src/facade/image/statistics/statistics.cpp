// Sums, means, deviations, extremes and histograms.
#include "Parts.h"
#include "facade/forms.h"
#include "core/hints.h"
#include "image/statistics/extremes.h"
#include "image/statistics/float_sums.h"
#include "image/statistics/histogram.h"
#include "image/statistics/sums.h"

using namespace orv;

namespace {

// Methods choose between the two kinds of sums by a bool, kernels by a code.
template <class Inner>
struct Hinted {
    const Inner& operation;

    Status operator()(const float* src, int srcStep, Size size, double* results, bool fast) const
    {
        return operation(src, srcStep, size, results, fast ? kHintFast : kHintAccurate);
    }
};

template <class Inner>
Hinted<Inner> hinted(const Inner& operation)
{
    return {operation};
}

}  // namespace

SRC(Sum_8u_C1R, orv_Sum_8u_C1R, unsigned char, double*)
SRC(Sum_8u_C3R, orv_Sum_8u_C3R, unsigned char, double*)
SRC(Sum_8u_C4R, orv_Sum_8u_C4R, unsigned char, double*)
SRC(Sum_16u_C1R, orv_Sum_16u_C1R, unsigned short, double*)
SRC(Sum_16s_C1R, orv_Sum_16s_C1R, short, double*)
SRC(Sum_32f_C1R, hinted(orv_Sum_32f_C1R), float, double*, bool)
SRC(Sum_32f_C3R, hinted(orv_Sum_32f_C3R), float, double*, bool)

SRC(Mean_8u_C1R, orv_Mean_8u_C1R, unsigned char, double*)
SRC(Mean_8u_C3R, orv_Mean_8u_C3R, unsigned char, double*)
SRC(Mean_8u_C4R, orv_Mean_8u_C4R, unsigned char, double*)
SRC(Mean_16u_C1R, orv_Mean_16u_C1R, unsigned short, double*)
SRC(Mean_16s_C1R, orv_Mean_16s_C1R, short, double*)
SRC(Mean_32f_C1R, hinted(orv_Mean_32f_C1R), float, double*, bool)
SRC(Mean_32f_C3R, hinted(orv_Mean_32f_C3R), float, double*, bool)

SRC(Mean_StdDev_8u_C1R, orv_Mean_StdDev_8u_C1R, unsigned char, double*, double*)
SRC(Mean_StdDev_16u_C1R, orv_Mean_StdDev_16u_C1R, unsigned short, double*, double*)

SRC(Min_8u_C1, orv_Min_8u_C1, unsigned char, unsigned char*)
SRC(Min_8u_C3, orv_Min_8u_C3, unsigned char, unsigned char*)
SRC(Min_16u_C1, orv_Min_16u_C1, unsigned short, unsigned short*)
SRC(Min_16s_C1, orv_Min_16s_C1, short, short*)
SRC(Min_32f_C1, orv_Min_32f_C1, float, float*)
SRC(Min_32f_C3, orv_Min_32f_C3, float, float*)

SRC(Max_8u_C1, orv_Max_8u_C1, unsigned char, unsigned char*)
SRC(Max_8u_C4, orv_Max_8u_C4, unsigned char, unsigned char*)
SRC(Max_16u_C1, orv_Max_16u_C1, unsigned short, unsigned short*)
SRC(Max_16s_C1, orv_Max_16s_C1, short, short*)
SRC(Max_32f_C1, orv_Max_32f_C1, float, float*)
SRC(Max_32f_C3, orv_Max_32f_C3, float, float*)

SRC(MinMax_8u_C1, orv_MinMax_8u_C1, unsigned char, unsigned char*, unsigned char*)
SRC(MinMax_8u_C3, orv_MinMax_8u_C3, unsigned char, unsigned char*, unsigned char*)
SRC(MinMax_8u_C4, orv_MinMax_8u_C4, unsigned char, unsigned char*, unsigned char*)
SRC(MinMax_16u_C1, orv_MinMax_16u_C1, unsigned short, unsigned short*, unsigned short*)
SRC(MinMax_16s_C1, orv_MinMax_16s_C1, short, short*, short*)
SRC(MinMax_32f_C1, orv_MinMax_32f_C1, float, float*, float*)
SRC(MinMax_32f_C3, orv_MinMax_32f_C3, float, float*, float*)

SRC(MinIndx_8u_C1R, orv_MinIndx_8u_C1R, unsigned char, unsigned char*, int*, int*)
SRC(MinIndx_16u_C1R, orv_MinIndx_16u_C1R, unsigned short, unsigned short*, int*, int*)
SRC(MaxIndx_8u_C1R, orv_MaxIndx_8u_C1R, unsigned char, unsigned char*, int*, int*)
SRC(MaxIndx_16u_C1R, orv_MaxIndx_16u_C1R, unsigned short, unsigned short*, int*, int*)

SRC(HistogramEven_8u_C1, orv_HistogramEven_8u_C1, unsigned char, int*, int*, int, int, int)
SRC(HistogramEven_16u_C1, orv_HistogramEven_16u_C1, unsigned short, int*, int*, int, int, int)

#if ORV_C_FUNCTIONS
#define SUM_SQUARES(name, operation, T)                                                                         \
    bool orvane##name(const T* src, int srcStep, int width, int height, unsigned long long* sum,                \
                      unsigned long long* squares)                                                              \
    {                                                                                                           \
        return operation(src, srcStep, {width, height}, sum, squares) == StatusOk;                              \
    }
SUM_SQUARES(SumSquares_8u_C1, orv_SumSquares_8u_C1, unsigned char)
SUM_SQUARES(SumSquares_16u_C1, orv_SumSquares_16u_C1, unsigned short)
#undef SUM_SQUARES

bool orvaneDeviation(unsigned long long pixels, unsigned long long sum, unsigned long long squares, double* mean,
                     double* stdDev)
{
    return orv_Deviation(pixels, sum, squares, mean, stdDev) == StatusOk;
}
#endif
