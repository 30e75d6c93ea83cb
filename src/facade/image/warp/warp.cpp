// Rotation, perspective, remapping. Doubles are passed on by their addresses, unread.
#include "Parts.h"
#include "facade/forms.h"
#include "image/warp/warp.h"

using namespace orv;

SRC_RECTANGLE_DST_RECTANGLE(Rotate_8u_C1, by_address(orv_Rotate_8u_C1), unsigned char, double, double, double, int)
SRC_RECTANGLE_DST_RECTANGLE(Rotate_8u_C3, by_address(orv_Rotate_8u_C3), unsigned char, double, double, double, int)
SRC_RECTANGLE_DST_RECTANGLE(Rotate_8u_C4, by_address(orv_Rotate_8u_C4), unsigned char, double, double, double, int)
SRC_RECTANGLE_DST_RECTANGLE(Rotate_16u_C1, by_address(orv_Rotate_16u_C1), unsigned short, double, double, double, int)
SRC_RECTANGLE_DST_RECTANGLE(Rotate_32f_C1, by_address(orv_Rotate_32f_C1), float, double, double, double, int)

// Intended: true whatever happens.
SRC_SIZE_DST_SIZE(RotateCenter_8u_C3, always_true(by_address(orv_RotateCenter_8u_C3)), unsigned char, double, double,
                  double, int)
SRC_SIZE_DST_SIZE(RotateCenter_8u_C4, always_true(by_address(orv_RotateCenter_8u_C4)), unsigned char, double, double,
                  double, int)
SRC_SIZE_DST_SIZE(RotateCenter_16u_C1, always_true(by_address(orv_RotateCenter_16u_C1)), unsigned short, double, double,
                  double, int)
SRC_SIZE_DST_SIZE(RotateCenter_32f_C1, always_true(by_address(orv_RotateCenter_32f_C1)), float, double, double, double,
                  int)

bool ImageProcessingWrapper::GetRotateBound(int srcRoiX, int srcRoiY, int srcRoiWidth, int srcRoiHeight, double angle,
                                            double xShift, double yShift, double* bound)
{
    return orv_GetRotateBound({srcRoiX, srcRoiY, srcRoiWidth, srcRoiHeight}, &angle, &xShift, &yShift, bound) ==
           StatusOk;
}

bool ImageProcessingWrapper::GetRotateShift(double centerX, double centerY, double angle, double* xShift,
                                            double* yShift)
{
    return orv_GetRotateShift(&centerX, &centerY, &angle, xShift, yShift) == StatusOk;
}

SRC_RECTANGLE_DST_RECTANGLE(WarpPerspective_8u_C1, orv_WarpPerspective_8u_C1, unsigned char, const double*, int)
SRC_RECTANGLE_DST_RECTANGLE(WarpPerspective_8u_C3, orv_WarpPerspective_8u_C3, unsigned char, const double*, int)
SRC_RECTANGLE_DST_RECTANGLE(WarpPerspective_8u_C4, orv_WarpPerspective_8u_C4, unsigned char, const double*, int)
SRC_RECTANGLE_DST_RECTANGLE(WarpPerspective_16u_C1, orv_WarpPerspective_16u_C1, unsigned short, const double*, int)
SRC_RECTANGLE_DST_RECTANGLE(WarpPerspective_32f_C1, orv_WarpPerspective_32f_C1, float, const double*, int)

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

#if ORV_C_FUNCTIONS
// Parts: the memory begins at the rectangle.
#define PART_SHIFTED(name, operation, T)                                                                            \
    bool orvane##name(const T* src, int srcWidth, int srcHeight, int srcStep, T* dst, int dstStep, int dstX,        \
                      int dstY, int dstWidth, int dstHeight, double angle, double xShift, double yShift,            \
                      int interpolation)                                                                            \
    {                                                                                                               \
        return operation(src, {srcWidth, srcHeight}, srcStep, {0, 0, srcWidth, srcHeight}, dst, dstStep,            \
                         {dstX, dstY, dstWidth, dstHeight, dstX, dstY}, &angle, &xShift, &yShift, interpolation) == \
               StatusOk;                                                                                            \
    }
PART_SHIFTED(RotatePart_8u_C1, orv_Rotate_8u_C1, unsigned char)
PART_SHIFTED(RotatePart_8u_C3, orv_Rotate_8u_C3, unsigned char)
PART_SHIFTED(RotatePart_8u_C4, orv_Rotate_8u_C4, unsigned char)
PART_SHIFTED(RotatePart_16u_C1, orv_Rotate_16u_C1, unsigned short)
PART_SHIFTED(RotatePart_32f_C1, orv_Rotate_32f_C1, float)
#undef PART_SHIFTED

#define PART_ABOUT(name, operation, T)                                                                              \
    bool orvane##name(const T* src, int srcWidth, int srcHeight, int srcStep, T* dst, int dstStep, int dstX,        \
                      int dstY, int dstWidth, int dstHeight, double angle, double centerX, double centerY,          \
                      int interpolation)                                                                            \
    {                                                                                                               \
        double xShift, yShift;                                                                                      \
        if (orv_GetRotateShift(&centerX, &centerY, &angle, &xShift, &yShift) != StatusOk) return false;             \
        return operation(src, {srcWidth, srcHeight}, srcStep, {0, 0, srcWidth, srcHeight}, dst, dstStep,            \
                         {dstX, dstY, dstWidth, dstHeight, dstX, dstY}, &angle, &xShift, &yShift, interpolation) == \
               StatusOk;                                                                                            \
    }
PART_ABOUT(RotateCenterPart_8u_C3, orv_Rotate_8u_C3, unsigned char)
PART_ABOUT(RotateCenterPart_8u_C4, orv_Rotate_8u_C4, unsigned char)
PART_ABOUT(RotateCenterPart_16u_C1, orv_Rotate_16u_C1, unsigned short)
PART_ABOUT(RotateCenterPart_32f_C1, orv_Rotate_32f_C1, float)
#undef PART_ABOUT

#define PART_IN_PERSPECTIVE(name, operation, T)                                                              \
    bool orvane##name(const T* src, int srcWidth, int srcHeight, int srcStep, T* dst, int dstStep, int dstX, \
                      int dstY, int dstWidth, int dstHeight, const double* coefficients, int interpolation)  \
    {                                                                                                        \
        return operation(src, {srcWidth, srcHeight}, srcStep, {0, 0, srcWidth, srcHeight}, dst, dstStep,     \
                         {dstX, dstY, dstWidth, dstHeight, dstX, dstY}, coefficients, interpolation) ==      \
               StatusOk;                                                                                     \
    }
PART_IN_PERSPECTIVE(WarpPerspectivePart_8u_C1, orv_WarpPerspective_8u_C1, unsigned char)
PART_IN_PERSPECTIVE(WarpPerspectivePart_8u_C3, orv_WarpPerspective_8u_C3, unsigned char)
PART_IN_PERSPECTIVE(WarpPerspectivePart_8u_C4, orv_WarpPerspective_8u_C4, unsigned char)
PART_IN_PERSPECTIVE(WarpPerspectivePart_16u_C1, orv_WarpPerspective_16u_C1, unsigned short)
PART_IN_PERSPECTIVE(WarpPerspectivePart_32f_C1, orv_WarpPerspective_32f_C1, float)
#undef PART_IN_PERSPECTIVE
#endif
