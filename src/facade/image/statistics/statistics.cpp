// Sums, means, deviations, extremes and histograms.
#include "ImageProcessingWrapper.h"
#include "image/statistics/extremes.h"
#include "image/statistics/float_sums.h"
#include "image/statistics/histogram.h"
#include "image/statistics/sums.h"

using namespace orv;

#define RESULTS(name, T, R, result)                                                                \
    bool ImageProcessingWrapper::name(const T* src, int srcStep, int width, int height, R* result) \
    {                                                                                              \
        return orv_##name(src, srcStep, {width, height}, result) == StatusOk;                      \
    }

#define RESULTS_WITH_HINT(name, result)                                                              \
    bool ImageProcessingWrapper::name(const float* src, int srcStep, int width, int height,          \
                                      double* result, bool fast)                                     \
    {                                                                                                \
        return orv_##name(src, srcStep, {width, height}, result, fast ? kHintFast : kHintAccurate) == \
               StatusOk;                                                                             \
    }

#define TWO_RESULTS(name, T, R, first, second)                                                        \
    bool ImageProcessingWrapper::name(const T* src, int srcStep, int width, int height, R* first, R* second) \
    {                                                                                                 \
        return orv_##name(src, srcStep, {width, height}, first, second) == StatusOk;                  \
    }

#define POSITION(name, T, value)                                                                  \
    bool ImageProcessingWrapper::name(const T* src, int srcStep, int width, int height, T* value, \
                                      int* column, int* row)                                      \
    {                                                                                             \
        return orv_##name(src, srcStep, {width, height}, value, column, row) == StatusOk;         \
    }

#define HISTOGRAM(name, T)                                                                              \
    bool ImageProcessingWrapper::name(const T* src, int srcStep, int width, int height, int* histogram, \
                                      int* levels, int levelCount, int lowerLevel, int upperLevel)      \
    {                                                                                                   \
        return orv_##name(src, srcStep, {width, height}, histogram, levels, levelCount, lowerLevel,     \
                          upperLevel) == StatusOk;                                                      \
    }

RESULTS(Sum_8u_C1R, unsigned char, double, sum)
RESULTS(Sum_8u_C3R, unsigned char, double, sum)
RESULTS(Sum_8u_C4R, unsigned char, double, sum)
RESULTS(Sum_16u_C1R, unsigned short, double, sum)
RESULTS(Sum_16s_C1R, short, double, sum)
RESULTS_WITH_HINT(Sum_32f_C1R, sum)
RESULTS_WITH_HINT(Sum_32f_C3R, sum)

RESULTS(Mean_8u_C1R, unsigned char, double, mean)
RESULTS(Mean_8u_C3R, unsigned char, double, mean)
RESULTS(Mean_8u_C4R, unsigned char, double, mean)
RESULTS(Mean_16u_C1R, unsigned short, double, mean)
RESULTS(Mean_16s_C1R, short, double, mean)
RESULTS_WITH_HINT(Mean_32f_C1R, mean)
RESULTS_WITH_HINT(Mean_32f_C3R, mean)

TWO_RESULTS(Mean_StdDev_8u_C1R, unsigned char, double, mean, stdDev)
TWO_RESULTS(Mean_StdDev_16u_C1R, unsigned short, double, mean, stdDev)

RESULTS(Min_8u_C1, unsigned char, unsigned char, minimum)
RESULTS(Min_8u_C3, unsigned char, unsigned char, minimum)
RESULTS(Min_16u_C1, unsigned short, unsigned short, minimum)
RESULTS(Min_16s_C1, short, short, minimum)
RESULTS(Min_32f_C1, float, float, minimum)
RESULTS(Min_32f_C3, float, float, minimum)

RESULTS(Max_8u_C1, unsigned char, unsigned char, maximum)
RESULTS(Max_8u_C4, unsigned char, unsigned char, maximum)
RESULTS(Max_16u_C1, unsigned short, unsigned short, maximum)
RESULTS(Max_16s_C1, short, short, maximum)
RESULTS(Max_32f_C1, float, float, maximum)
RESULTS(Max_32f_C3, float, float, maximum)

TWO_RESULTS(MinMax_8u_C1, unsigned char, unsigned char, minimum, maximum)
TWO_RESULTS(MinMax_8u_C3, unsigned char, unsigned char, minimum, maximum)
TWO_RESULTS(MinMax_8u_C4, unsigned char, unsigned char, minimum, maximum)
TWO_RESULTS(MinMax_16u_C1, unsigned short, unsigned short, minimum, maximum)
TWO_RESULTS(MinMax_16s_C1, short, short, minimum, maximum)
TWO_RESULTS(MinMax_32f_C1, float, float, minimum, maximum)
TWO_RESULTS(MinMax_32f_C3, float, float, minimum, maximum)

POSITION(MinIndx_8u_C1R, unsigned char, minimum)
POSITION(MinIndx_16u_C1R, unsigned short, minimum)
POSITION(MaxIndx_8u_C1R, unsigned char, maximum)
POSITION(MaxIndx_16u_C1R, unsigned short, maximum)

HISTOGRAM(HistogramEven_8u_C1, unsigned char)
HISTOGRAM(HistogramEven_16u_C1, unsigned short)

#undef RESULTS
#undef RESULTS_WITH_HINT
#undef TWO_RESULTS
#undef POSITION
#undef HISTOGRAM
