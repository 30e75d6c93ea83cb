// The two operations on small matrices that belong to the image class.
#include "ImageProcessingWrapper.h"
#include "linalg/matrices.h"

using namespace orv;

bool ImageProcessingWrapper::Mul_mm_32f(const float* src1, int src1Stride1, int src1Stride2, int src1Width,
                                        int src1Height, const float* src2, int src2Stride1, int src2Stride2,
                                        int src2Width, int src2Height, float* dst, int dstStride1, int dstStride2)
{
    return orv_Mul_mm_32f(src1, src1Stride1, src1Stride2, src1Width, src1Height, src2, src2Stride1, src2Stride2,
                          src2Width, src2Height, dst, dstStride1, dstStride2) == StatusOk;
}

bool ImageProcessingWrapper::Copy_ma_32f_SS(const float* src, int srcStride0, int srcStride1, int srcStride2,
                                            float* dst, int dstStride0, int dstStride1, int dstStride2, int width,
                                            int height, int count)
{
    return orv_Copy_ma_32f_SS(src, srcStride0, srcStride1, srcStride2, dst, dstStride0, dstStride1, dstStride2,
                              width, height, count) == StatusOk;
}
