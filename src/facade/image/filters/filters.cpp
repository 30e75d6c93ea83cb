// Fixed-kernel filters. The 3x3 and 5x5 methods of a kind share an operation and differ in a code.
#include "image/filters/filters.h"

#include "ImageProcessingWrapper.h"

using namespace orv;

#define SRC_DST_MASK(name, operation, T, mask)                                                          \
    bool ImageProcessingWrapper::name(const T* src, int srcStep, T* dst, int dstStep, int width, int height) \
    {                                                                                                   \
        return orv_##operation(src, srcStep, dst, dstStep, {width, height}, mask) == StatusOk;          \
    }

SRC_DST_MASK(FilterLowpass3x3_8u_C3R, FilterLowpass_8u_C3, unsigned char, mask_3x3)
SRC_DST_MASK(FilterLowpass5x5_8u_C3R, FilterLowpass_8u_C3, unsigned char, mask_5x5)
SRC_DST_MASK(FilterLowpass3x3_16u_C1R, FilterLowpass_16u_C1, unsigned short, mask_3x3)
SRC_DST_MASK(FilterLowpass5x5_16u_C1R, FilterLowpass_16u_C1, unsigned short, mask_5x5)
SRC_DST_MASK(FilterLowpass3x3_32f_C1R, FilterLowpass_32f_C1, float, mask_3x3)
SRC_DST_MASK(FilterLowpass5x5_32f_C1R, FilterLowpass_32f_C1, float, mask_5x5)
SRC_DST_MASK(FilterLowpass3x3_32f_C3R, FilterLowpass_32f_C3, float, mask_3x3)
SRC_DST_MASK(FilterLowpass5x5_32f_C3R, FilterLowpass_32f_C3, float, mask_5x5)
SRC_DST_MASK(FilterHipass3x3_32f_C1R, FilterHipass_32f_C1, float, mask_3x3)
SRC_DST_MASK(FilterHipass5x5_32f_C1R, FilterHipass_32f_C1, float, mask_5x5)
SRC_DST_MASK(FilterLaplace3x3_32f_C1R, FilterLaplace_32f_C1, float, mask_3x3)
SRC_DST_MASK(FilterLaplace5x5_32f_C1R, FilterLaplace_32f_C1, float, mask_5x5)
SRC_DST_MASK(FilterSobelCross3x3_32f_C1R, FilterSobelCross_32f_C1, float, mask_3x3)
SRC_DST_MASK(FilterSobelCross5x5_32f_C1R, FilterSobelCross_32f_C1, float, mask_5x5)
SRC_DST_MASK(FilterGauss3x3_16u_C1R, FilterGauss_16u_C1, unsigned short, mask_3x3)
SRC_DST_MASK(FilterGauss5x5_16u_C1R, FilterGauss_16u_C1, unsigned short, mask_5x5)

#undef SRC_DST_MASK

// The forms that make their own border add its kind, and the value that the replicating ones do not use.

bool ImageProcessingWrapper::FilterLowpassBorder3x3_32f_C1R(const float* src, int srcStep, float* dst,
                                                            int dstStep, int width, int height,
                                                            unsigned char* buffer)
{
    return orv_FilterLowpassBorder_32f_C1(src, srcStep, dst, dstStep, {width, height}, mask_3x3,
                                          FilterBorder::replicate, 0.0f, buffer) == StatusOk;
}

bool ImageProcessingWrapper::FilterLowpassBorder5x5_32f_C1R(const float* src, int srcStep, float* dst,
                                                            int dstStep, int width, int height,
                                                            unsigned char* buffer)
{
    return orv_FilterLowpassBorder_32f_C1(src, srcStep, dst, dstStep, {width, height}, mask_5x5,
                                          FilterBorder::replicate, 0.0f, buffer) == StatusOk;
}

bool ImageProcessingWrapper::FilterLowpassBorderConst3x3_32f_C1R(const float* src, int srcStep, float* dst,
                                                                 int dstStep, int width, int height,
                                                                 float value, unsigned char* buffer)
{
    return orv_FilterLowpassBorder_32f_C1(src, srcStep, dst, dstStep, {width, height}, mask_3x3,
                                          FilterBorder::constant, value, buffer) == StatusOk;
}

bool ImageProcessingWrapper::FilterLowpassBorderConst5x5_32f_C1R(const float* src, int srcStep, float* dst,
                                                                 int dstStep, int width, int height,
                                                                 float value, unsigned char* buffer)
{
    return orv_FilterLowpassBorder_32f_C1(src, srcStep, dst, dstStep, {width, height}, mask_5x5,
                                          FilterBorder::constant, value, buffer) == StatusOk;
}

bool ImageProcessingWrapper::FilterLowpassGetBufferSize3x3_32f_C1R(int width, int height, int* size)
{
    return orv_FilterLowpassGetBufferSize_32f_C1({width, height}, mask_3x3, size) == StatusOk;
}

bool ImageProcessingWrapper::FilterLowpassGetBufferSize5x5_32f_C1R(int width, int height, int* size)
{
    return orv_FilterLowpassGetBufferSize_32f_C1({width, height}, mask_5x5, size) == StatusOk;
}
