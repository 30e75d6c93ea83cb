// Small matrices.
#include "MatrixWrapper.h"

#include "core/memory.h"
#include "linalg/elimination.h"
#include "linalg/matrices.h"

using namespace orv;

bool MatrixWrapper::Add_mm_32f(const float* src1, int src1Stride1, int src1Stride2, const float* src2,
                               int src2Stride1, int src2Stride2, float* dst, int dstStride1, int dstStride2,
                               int width, int height)
{
    return orv_Add_mm_32f(src1, src1Stride1, src1Stride2, src2, src2Stride1, src2Stride2, dst, dstStride1,
                          dstStride2, width, height) == StatusOk;
}

bool MatrixWrapper::Sub_mm_32f(const float* src1, int src1Stride1, int src1Stride2, const float* src2,
                               int src2Stride1, int src2Stride2, float* dst, int dstStride1, int dstStride2,
                               int width, int height)
{
    return orv_Sub_mm_32f(src1, src1Stride1, src1Stride2, src2, src2Stride1, src2Stride2, dst, dstStride1,
                          dstStride2, width, height) == StatusOk;
}

bool MatrixWrapper::Mul_mc_32f(const float* src, int srcStride1, int srcStride2, float value, float* dst,
                               int dstStride1, int dstStride2, int width, int height)
{
    return orv_Mul_mc_32f(src, srcStride1, srcStride2, value, dst, dstStride1, dstStride2, width, height) == StatusOk;
}

bool MatrixWrapper::Mul_mm_32f(const float* src1, int src1Stride1, int src1Stride2, int src1Width, int src1Height,
                               const float* src2, int src2Stride1, int src2Stride2, int src2Width, int src2Height,
                               float* dst, int dstStride1, int dstStride2)
{
    return orv_Mul_mm_32f(src1, src1Stride1, src1Stride2, src1Width, src1Height, src2, src2Stride1, src2Stride2,
                          src2Width, src2Height, dst, dstStride1, dstStride2) == StatusOk;
}

bool MatrixWrapper::Mul_tm_64f(const double* src1, int src1Stride1, int src1Stride2, int src1Width, int src1Height,
                               const double* src2, int src2Stride1, int src2Stride2, int src2Width, int src2Height,
                               double* dst, int dstStride1, int dstStride2)
{
    return orv_Mul_tm_64f(src1, src1Stride1, src1Stride2, src1Width, src1Height, src2, src2Stride1, src2Stride2,
                          src2Width, src2Height, dst, dstStride1, dstStride2) == StatusOk;
}

bool MatrixWrapper::Mul_mv_64f(const double* src1, int src1Stride1, int src1Stride2, int src1Width, int src1Height,
                               const double* src2, int src2Stride2, int src2Len, double* dst, int dstStride2)
{
    return orv_Mul_mv_64f(src1, src1Stride1, src1Stride2, src1Width, src1Height, src2, src2Stride2, src2Len, dst,
                          dstStride2) == StatusOk;
}

bool MatrixWrapper::Mul_tv_64f(const double* src1, int src1Stride1, int src1Stride2, int src1Width, int src1Height,
                               const double* src2, int src2Stride2, int src2Len, double* dst, int dstStride2)
{
    return orv_Mul_tv_64f(src1, src1Stride1, src1Stride2, src1Width, src1Height, src2, src2Stride2, src2Len, dst,
                          dstStride2) == StatusOk;
}

bool MatrixWrapper::Transpose_m_32f(const float* src, int srcStride1, int srcStride2, int width, int height,
                                    float* dst, int dstStride1, int dstStride2)
{
    return orv_Transpose_m_32f(src, srcStride1, srcStride2, width, height, dst, dstStride1, dstStride2) == StatusOk;
}

bool MatrixWrapper::LUDecomp_m_32f(const float* src, int srcStride1, int srcStride2, int* dstIndex, float* dst,
                                   int dstStride1, int dstStride2, int widthHeight)
{
    return orv_LUDecomp_m_32f(src, srcStride1, srcStride2, dstIndex, dst, dstStride1, dstStride2, widthHeight) ==
           StatusOk;
}

bool MatrixWrapper::LUBackSubst_mv_32f(const float* srcLU, int srcLUStride1, int srcLUStride2, int* srcIndex,
                                       const float* srcB, int srcBStride2, float* dstX, int dstXStride2,
                                       int widthHeight)
{
    return orv_LUBackSubst_mv_32f(srcLU, srcLUStride1, srcLUStride2, srcIndex, srcB, srcBStride2, dstX, dstXStride2,
                                  widthHeight) == StatusOk;
}

namespace {

// Not plain forwards: the inversions work in a buffer of n * (n + 1) elements, which is taken here. A
// buffer that cannot be had, also because its size leaves 32 bits, reaches the kernel as a null one.
template <class T, class Operation>
bool with_buffer(int n, Operation operation)
{
    constexpr int kLargest = sizeof(T) == 4 ? 23169 : 16383;  // whose buffer stays below 2^31 bytes
    void* const buffer = n >= 1 && n <= kLargest ? orv_allocate_vector(n * (n + 1), sizeof(T)) : nullptr;
    const Status status = operation(static_cast<T*>(buffer));
    orv_release(buffer);
    return status == StatusOk;
}

}  // namespace

bool MatrixWrapper::Invert_m_32f(const float* src, int srcStride1, int srcStride2, float* dst, int dstStride1,
                                 int dstStride2, int widthHeight)
{
    return with_buffer<float>(widthHeight, [=](float* buffer) {
        return orv_Invert_m_32f(src, srcStride1, srcStride2, buffer, dst, dstStride1, dstStride2, widthHeight);
    });
}

bool MatrixWrapper::Invert_m_64f(const double* src, int srcStride1, int srcStride2, double* dst, int dstStride1,
                                 int dstStride2, int widthHeight)
{
    return with_buffer<double>(widthHeight, [=](double* buffer) {
        return orv_Invert_m_64f(src, srcStride1, srcStride2, buffer, dst, dstStride1, dstStride2, widthHeight);
    });
}

bool MatrixWrapper::LoadIdentity_ma_32f(float* dst, int dstStride0, int dstStride1, int dstStride2, int width,
                                        int height, int count)
{
    return orv_LoadIdentity_ma_32f(dst, dstStride0, dstStride1, dstStride2, width, height, count) == StatusOk;
}
