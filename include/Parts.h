// Parts of a result: destinations that are computed piece by piece, each piece in memory of its own, and sums that are
// joined. C functions, for hosts of any language; the classes have the same for whole images.
#ifndef ORVANE_PARTS_H
#define ORVANE_PARTS_H

#include "Export.h"

extern "C" {

/// @name Parts of a destination
///
/// `dst` is the address of the part's first pixel, which is that in column dstX and row dstY of the destination;
/// dstWidth and dstHeight are the part's. Parts get the bytes that they have in the whole destination, whatever their
/// sizes and order. The source is a whole image, and stays as it is; source and part must not overlap. Pixels that show
/// nothing of the source keep their values, as those of the class do, and the smoothed edges of a zoom mix with them.
///
/// Resize: all of the source to all of a destination of wholeWidth x wholeHeight pixels; 0 stands for where the part
/// ends. Pixel centres are aligned. interpolation: 1 nearest, 2 linear, 4 and 6 cubic, 5 B-spline, 7 B = 1/2 and
/// C = 3/10, 8 area, 16 three lobes of a sinc. Bytes of several channels: nearest and cubic as ResizeNN and ResizeCubic
/// have them (nearest also 16 bits; cubic from 4 x 4 pixels on), area as Resize by zoom 1, where both sides are reduced
/// alike, else as WarpPerspective; floats as the latter two; bytes and 16 bits of one channel as ResizeSqrPixel.
///
/// Each call computes the weights of its own columns and rows. In bands of 64 rows that adds a few percent to most
/// resizes and a fifth to nearest pixels, but half a microsecond for each column of a band to interpolation 16, which
/// wants tall bands.
///
/// Zoom, Rotate, RotateCenter, WarpPerspective: as the class's Resize (of a destination of wholeWidth columns, 0 as
/// above), Rotate, RotateCenter and WarpPerspective with a source rectangle that is the image.
///
/// Checks: null pointer, a width or height below 1, then those of the methods; a part that ends beyond its whole; no
/// memory. What is refused is not written.
/// @{

/// dst = src, all of it to wholeWidth x wholeHeight pixels
ORVANE_API bool ORVANE_CALL orvaneResizePart_8u_C1(const unsigned char* src, int srcWidth, int srcHeight, int
    srcStep, unsigned char* dst, int dstStep, int dstX, int dstY, int dstWidth, int dstHeight, int wholeWidth, int
    wholeHeight, int interpolation);
/// dst = src, all of it to wholeWidth x wholeHeight pixels
ORVANE_API bool ORVANE_CALL orvaneResizePart_8u_C3(const unsigned char* src, int srcWidth, int srcHeight, int
    srcStep, unsigned char* dst, int dstStep, int dstX, int dstY, int dstWidth, int dstHeight, int wholeWidth, int
    wholeHeight, int interpolation);
/// dst = src, all of it to wholeWidth x wholeHeight pixels
ORVANE_API bool ORVANE_CALL orvaneResizePart_8u_C4(const unsigned char* src, int srcWidth, int srcHeight, int
    srcStep, unsigned char* dst, int dstStep, int dstX, int dstY, int dstWidth, int dstHeight, int wholeWidth, int
    wholeHeight, int interpolation);
/// dst = src, all of it to wholeWidth x wholeHeight pixels
ORVANE_API bool ORVANE_CALL orvaneResizePart_16u_C1(const unsigned short* src, int srcWidth, int srcHeight, int
    srcStep, unsigned short* dst, int dstStep, int dstX, int dstY, int dstWidth, int dstHeight, int wholeWidth, int
    wholeHeight, int interpolation);
/// dst = src, all of it to wholeWidth x wholeHeight pixels
ORVANE_API bool ORVANE_CALL orvaneResizePart_32f_C1(const float* src, int srcWidth, int srcHeight, int srcStep,
    float* dst, int dstStep, int dstX, int dstY, int dstWidth, int dstHeight, int wholeWidth, int wholeHeight, int
    interpolation);

/// dst = src zoomed around its centre and panned
ORVANE_API bool ORVANE_CALL orvaneZoomPart_8u_C3(const unsigned char* src, int srcWidth, int srcHeight, int srcStep,
    unsigned char* dst, int dstStep, int dstX, int dstY, int dstWidth, int dstHeight, int wholeWidth, float zoom,
    int panX, int panY, bool smooth);
/// dst = src zoomed around its centre and panned
ORVANE_API bool ORVANE_CALL orvaneZoomPart_8u_C4(const unsigned char* src, int srcWidth, int srcHeight, int srcStep,
    unsigned char* dst, int dstStep, int dstX, int dstY, int dstWidth, int dstHeight, int wholeWidth, float zoom,
    int panX, int panY, bool smooth);
/// dst = src zoomed around its centre and panned
ORVANE_API bool ORVANE_CALL orvaneZoomPart_16u_C1(const unsigned short* src, int srcWidth, int srcHeight, int
    srcStep, unsigned short* dst, int dstStep, int dstX, int dstY, int dstWidth, int dstHeight, int wholeWidth,
    float zoom, int panX, int panY, bool smooth);
/// dst = src zoomed around its centre and panned
ORVANE_API bool ORVANE_CALL orvaneZoomPart_32f_C1(const float* src, int srcWidth, int srcHeight, int srcStep, float*
    dst, int dstStep, int dstX, int dstY, int dstWidth, int dstHeight, int wholeWidth, float zoom, int panX, int
    panY, bool smooth);

/// dst(X, Y) = src(c px - s py, s px + c py), interpolated
ORVANE_API bool ORVANE_CALL orvaneRotatePart_8u_C1(const unsigned char* src, int srcWidth, int srcHeight, int
    srcStep, unsigned char* dst, int dstStep, int dstX, int dstY, int dstWidth, int dstHeight, double angle, double
    xShift, double yShift, int interpolation);
/// dst(X, Y) = src(c px - s py, s px + c py), interpolated
ORVANE_API bool ORVANE_CALL orvaneRotatePart_8u_C3(const unsigned char* src, int srcWidth, int srcHeight, int
    srcStep, unsigned char* dst, int dstStep, int dstX, int dstY, int dstWidth, int dstHeight, double angle, double
    xShift, double yShift, int interpolation);
/// dst(X, Y) = src(c px - s py, s px + c py), interpolated
ORVANE_API bool ORVANE_CALL orvaneRotatePart_8u_C4(const unsigned char* src, int srcWidth, int srcHeight, int
    srcStep, unsigned char* dst, int dstStep, int dstX, int dstY, int dstWidth, int dstHeight, double angle, double
    xShift, double yShift, int interpolation);
/// dst(X, Y) = src(c px - s py, s px + c py), interpolated
ORVANE_API bool ORVANE_CALL orvaneRotatePart_16u_C1(const unsigned short* src, int srcWidth, int srcHeight, int
    srcStep, unsigned short* dst, int dstStep, int dstX, int dstY, int dstWidth, int dstHeight, double angle, double
    xShift, double yShift, int interpolation);
/// dst(X, Y) = src(c px - s py, s px + c py), interpolated
ORVANE_API bool ORVANE_CALL orvaneRotatePart_32f_C1(const float* src, int srcWidth, int srcHeight, int srcStep,
    float* dst, int dstStep, int dstX, int dstY, int dstWidth, int dstHeight, double angle, double xShift, double
    yShift, int interpolation);

/// dst = src rotated about the source point (centerX, centerY), which stays
ORVANE_API bool ORVANE_CALL orvaneRotateCenterPart_8u_C3(const unsigned char* src, int srcWidth, int srcHeight, int
    srcStep, unsigned char* dst, int dstStep, int dstX, int dstY, int dstWidth, int dstHeight, double angle, double
    centerX, double centerY, int interpolation);
/// dst = src rotated about the source point (centerX, centerY), which stays
ORVANE_API bool ORVANE_CALL orvaneRotateCenterPart_8u_C4(const unsigned char* src, int srcWidth, int srcHeight, int
    srcStep, unsigned char* dst, int dstStep, int dstX, int dstY, int dstWidth, int dstHeight, double angle, double
    centerX, double centerY, int interpolation);
/// dst = src rotated about the source point (centerX, centerY), which stays
ORVANE_API bool ORVANE_CALL orvaneRotateCenterPart_16u_C1(const unsigned short* src, int srcWidth, int srcHeight,
    int srcStep, unsigned short* dst, int dstStep, int dstX, int dstY, int dstWidth, int dstHeight, double angle,
    double centerX, double centerY, int interpolation);
/// dst = src rotated about the source point (centerX, centerY), which stays
ORVANE_API bool ORVANE_CALL orvaneRotateCenterPart_32f_C1(const float* src, int srcWidth, int srcHeight, int
    srcStep, float* dst, int dstStep, int dstX, int dstY, int dstWidth, int dstHeight, double angle, double centerX,
    double centerY, int interpolation);

/// dst(X, Y) = src(the point that H takes to the pixel's centre), interpolated
ORVANE_API bool ORVANE_CALL orvaneWarpPerspectivePart_8u_C1(const unsigned char* src, int srcWidth, int srcHeight,
    int srcStep, unsigned char* dst, int dstStep, int dstX, int dstY, int dstWidth, int dstHeight, const double*
    coefficients, int interpolation);
/// dst(X, Y) = src(the point that H takes to the pixel's centre), interpolated
ORVANE_API bool ORVANE_CALL orvaneWarpPerspectivePart_8u_C3(const unsigned char* src, int srcWidth, int srcHeight,
    int srcStep, unsigned char* dst, int dstStep, int dstX, int dstY, int dstWidth, int dstHeight, const double*
    coefficients, int interpolation);
/// dst(X, Y) = src(the point that H takes to the pixel's centre), interpolated
ORVANE_API bool ORVANE_CALL orvaneWarpPerspectivePart_8u_C4(const unsigned char* src, int srcWidth, int srcHeight,
    int srcStep, unsigned char* dst, int dstStep, int dstX, int dstY, int dstWidth, int dstHeight, const double*
    coefficients, int interpolation);
/// dst(X, Y) = src(the point that H takes to the pixel's centre), interpolated
ORVANE_API bool ORVANE_CALL orvaneWarpPerspectivePart_16u_C1(const unsigned short* src, int srcWidth, int srcHeight,
    int srcStep, unsigned short* dst, int dstStep, int dstX, int dstY, int dstWidth, int dstHeight, const double*
    coefficients, int interpolation);
/// dst(X, Y) = src(the point that H takes to the pixel's centre), interpolated
ORVANE_API bool ORVANE_CALL orvaneWarpPerspectivePart_32f_C1(const float* src, int srcWidth, int srcHeight, int
    srcStep, float* dst, int dstStep, int dstX, int dstY, int dstWidth, int dstHeight, const double* coefficients,
    int interpolation);

/// @}

/// @name Sums that are joined
///
/// Exact in 64 bits, so that those of parts add up to those of the whole, and the deviation that Mean_StdDev of the
/// class has, from them: mean = sum / pixels, stdDev = sqrt(|squares / pixels - mean^2|). Totals beyond 2^64 wrap,
/// which 2^32 pixels of 65535 reach.
///
/// Checks: null pointer (either result of orvaneDeviation may be null), a width or height below 1, a step that is
/// shorter than a row; pixels of 0.
/// @{

/// sum = sum of src, squares = sum of src^2
ORVANE_API bool ORVANE_CALL orvaneSumSquares_8u_C1(const unsigned char* src, int srcStep, int width, int height,
    unsigned long long* sum, unsigned long long* squares);
/// sum = sum of src, squares = sum of src^2
ORVANE_API bool ORVANE_CALL orvaneSumSquares_16u_C1(const unsigned short* src, int srcStep, int width, int height,
    unsigned long long* sum, unsigned long long* squares);
/// mean = sum / pixels, stdDev = sqrt(|squares / pixels - mean^2|)
ORVANE_API bool ORVANE_CALL orvaneDeviation(unsigned long long pixels, unsigned long long sum, unsigned long long
    squares, double* mean, double* stdDev);
/// @}
}

#endif
