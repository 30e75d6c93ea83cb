// Fixed-kernel filters. The 3x3 and 5x5 methods of a kind share an operation and differ in a code.
//
// Families: filters_float, filters_integer.
#include "facade/forms.h"
#include "image/filters/filters.h"

using namespace orv;

SRC_DST(FilterLowpass3x3_8u_C1R, with(orv_FilterLowpass_8u_C1, mask_3x3), unsigned char, unsigned char)
SRC_DST(FilterLowpass5x5_8u_C1R, with(orv_FilterLowpass_8u_C1, mask_5x5), unsigned char, unsigned char)
SRC_DST(FilterLowpass3x3_8u_C3R, with(orv_FilterLowpass_8u_C3, mask_3x3), unsigned char, unsigned char)
SRC_DST(FilterLowpass5x5_8u_C3R, with(orv_FilterLowpass_8u_C3, mask_5x5), unsigned char, unsigned char)
SRC_DST(FilterLowpass3x3_16u_C1R, with(orv_FilterLowpass_16u_C1, mask_3x3), unsigned short, unsigned short)
SRC_DST(FilterLowpass5x5_16u_C1R, with(orv_FilterLowpass_16u_C1, mask_5x5), unsigned short, unsigned short)
SRC_DST(FilterLowpass3x3_32f_C1R, with(orv_FilterLowpass_32f_C1, mask_3x3), float, float)
SRC_DST(FilterLowpass5x5_32f_C1R, with(orv_FilterLowpass_32f_C1, mask_5x5), float, float)
SRC_DST(FilterLowpass3x3_32f_C3R, with(orv_FilterLowpass_32f_C3, mask_3x3), float, float)
SRC_DST(FilterLowpass5x5_32f_C3R, with(orv_FilterLowpass_32f_C3, mask_5x5), float, float)
SRC_DST(FilterHipass3x3_32f_C1R, with(orv_FilterHipass_32f_C1, mask_3x3), float, float)
SRC_DST(FilterHipass5x5_32f_C1R, with(orv_FilterHipass_32f_C1, mask_5x5), float, float)
SRC_DST(FilterLaplace3x3_32f_C1R, with(orv_FilterLaplace_32f_C1, mask_3x3), float, float)
SRC_DST(FilterLaplace5x5_32f_C1R, with(orv_FilterLaplace_32f_C1, mask_5x5), float, float)
SRC_DST(FilterSobelCross3x3_32f_C1R, with(orv_FilterSobelCross_32f_C1, mask_3x3), float, float)
SRC_DST(FilterSobelCross5x5_32f_C1R, with(orv_FilterSobelCross_32f_C1, mask_5x5), float, float)
SRC_DST(FilterGauss3x3_16u_C1R, with(orv_FilterGauss_16u_C1, mask_3x3), unsigned short, unsigned short)
SRC_DST(FilterGauss5x5_16u_C1R, with(orv_FilterGauss_16u_C1, mask_5x5), unsigned short, unsigned short)

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
