// Rotation, perspective, remapping. Doubles are passed on by their addresses, unread.
#include "ImageProcessingWrapper.h"
#include "image/warp/warp.h"

using namespace orv;

#define ROTATE(name, T)                                                                                             \
    bool ImageProcessingWrapper::name(const T* src, int srcWidth, int srcHeight, int srcStep, int srcRoiX,          \
                                      int srcRoiY, int srcRoiWidth, int srcRoiHeight, T* dst, int dstStep,          \
                                      int dstRoiX, int dstRoiY, int dstRoiWidth, int dstRoiHeight, double angle,    \
                                      double xShift, double yShift, int interpolation)                              \
    {                                                                                                               \
        return orv_##name(src, {srcWidth, srcHeight}, srcStep, {srcRoiX, srcRoiY, srcRoiWidth, srcRoiHeight}, dst,  \
                          dstStep, {dstRoiX, dstRoiY, dstRoiWidth, dstRoiHeight}, &angle, &xShift, &yShift,         \
                          interpolation) == StatusOk;                                                               \
    }

ROTATE(Rotate_8u_C1, unsigned char)
ROTATE(Rotate_8u_C3, unsigned char)
ROTATE(Rotate_8u_C4, unsigned char)
ROTATE(Rotate_16u_C1, unsigned short)
ROTATE(Rotate_32f_C1, float)
#undef ROTATE

#define ALWAYS_TRUE_ROTATE(name, T)                                                                                 \
    bool ImageProcessingWrapper::name(const T* src, int srcWidth, int srcHeight, int srcStep, T* dst, int dstStep,  \
                                      int dstWidth, int dstHeight, double angle, double centerX, double centerY,    \
                                      int interpolation)                                                            \
    {                                                                                                               \
        orv_##name(src, {srcWidth, srcHeight}, srcStep, dst, dstStep, {dstWidth, dstHeight}, &angle, &centerX,      \
                   &centerY, interpolation);                                                                        \
        return true;                                                                                                \
    }

// Intended: true whatever happens.
ALWAYS_TRUE_ROTATE(RotateCenter_8u_C3, unsigned char)
ALWAYS_TRUE_ROTATE(RotateCenter_8u_C4, unsigned char)
ALWAYS_TRUE_ROTATE(RotateCenter_16u_C1, unsigned short)
ALWAYS_TRUE_ROTATE(RotateCenter_32f_C1, float)
#undef ALWAYS_TRUE_ROTATE

bool ImageProcessingWrapper::GetRotateBound(int srcRoiX, int srcRoiY, int srcRoiWidth, int srcRoiHeight, double angle,
                                            double xShift, double yShift, double* bound)
{
    return orv_GetRotateBound({srcRoiX, srcRoiY, srcRoiWidth, srcRoiHeight}, &angle, &xShift, &yShift, bound) == StatusOk;
}

bool ImageProcessingWrapper::GetRotateShift(double centerX, double centerY, double angle, double* xShift, double* yShift)
{
    return orv_GetRotateShift(&centerX, &centerY, &angle, xShift, yShift) == StatusOk;
}

#define WARP_PERSPECTIVE(name, T)                                                                                   \
    bool ImageProcessingWrapper::name(const T* src, int srcWidth, int srcHeight, int srcStep, int srcRoiX,          \
                                      int srcRoiY, int srcRoiWidth, int srcRoiHeight, T* dst, int dstStep,          \
                                      int dstRoiX, int dstRoiY, int dstRoiWidth, int dstRoiHeight,                  \
                                      const double* coefficients, int interpolation)                                \
    {                                                                                                               \
        return orv_##name(src, {srcWidth, srcHeight}, srcStep, {srcRoiX, srcRoiY, srcRoiWidth, srcRoiHeight}, dst,  \
                          dstStep, {dstRoiX, dstRoiY, dstRoiWidth, dstRoiHeight}, coefficients,                     \
                          interpolation) == StatusOk;                                                               \
    }

WARP_PERSPECTIVE(WarpPerspective_8u_C1, unsigned char)
WARP_PERSPECTIVE(WarpPerspective_8u_C3, unsigned char)
WARP_PERSPECTIVE(WarpPerspective_8u_C4, unsigned char)
WARP_PERSPECTIVE(WarpPerspective_16u_C1, unsigned short)
WARP_PERSPECTIVE(WarpPerspective_32f_C1, float)
#undef WARP_PERSPECTIVE

bool ImageProcessingWrapper::GetPerspectiveBound(int srcRoiX, int srcRoiY, int srcRoiWidth, int srcRoiHeight,
                                                 const double* coefficients, double* bound)
{
    return orv_GetPerspectiveBound({srcRoiX, srcRoiY, srcRoiWidth, srcRoiHeight}, coefficients, bound) == StatusOk;
}

#define REMAP(name, T)                                                                                              \
    bool ImageProcessingWrapper::name(const T* src, int srcWidth, int srcHeight, int srcStep, int srcRoiX,          \
                                      int srcRoiY, int srcRoiWidth, int srcRoiHeight, const float* xMap,            \
                                      int xMapStep, const float* yMap, int yMapStep, T* dst, int dstStep,           \
                                      int dstWidth, int dstHeight, int interpolation)                               \
    {                                                                                                               \
        return orv_##name(src, {srcWidth, srcHeight}, srcStep, {srcRoiX, srcRoiY, srcRoiWidth, srcRoiHeight}, xMap, \
                          xMapStep, yMap, yMapStep, dst, dstStep, {dstWidth, dstHeight}, interpolation) ==          \
               StatusOk;                                                                                            \
    }

REMAP(Remap_8u_C1, unsigned char)
REMAP(Remap_8u_C3, unsigned char)
REMAP(Remap_8u_C4, unsigned char)
REMAP(Remap_16u_C1, unsigned short)
REMAP(Remap_32f_C1, float)
#undef REMAP
