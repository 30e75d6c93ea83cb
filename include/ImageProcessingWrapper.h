// Two-dimensional image operations.
#ifndef ORVANE_IMAGE_PROCESSING_WRAPPER_H
#define ORVANE_IMAGE_PROCESSING_WRAPPER_H

#include "Complex32f.h"
#include "Export.h"

/// Image operations, one static method per operation and pixel type.
///
/// **Images.** An image is a pointer to the first (top-left) pixel of the region to process, followed
/// by its row step: the distance in bytes from the start of one row to the start of the next. Width
/// and height are in pixels and the same for all images of a call. Channels are interleaved. Pointers
/// need no alignment; steps need not be a multiple of anything. Where a family does not say that it
/// checks steps, zero and negative ones are legal and mean what they say.
///
/// **Names.** Operation, pixel type, layout, modifiers. Types: 8u, 16u (unsigned), 16s, 32s (signed),
/// 32f (float), 32fc (Complex32f). Layouts: C1, C3, C4 (that many channels), AC4 (four channels of which
/// the fourth, alpha, is left untouched in the destination). A trailing I works in place.
///
/// **Results.** A method returns true exactly when the operation completed without an error and
/// without a warning. An error (a null pointer, a size below 1, ...) writes nothing. A warning (a zero
/// divisor, ...) also gives false, but the destination has been written completely. Methods that
/// depart from this say so. Each family lists its checks in the order in which they run.
///
/// **Aliasing.** The destination of an element-wise operation may be exactly one of its sources: same
/// pointer, same step. Regions that overlap otherwise give unspecified pixels, though never an access
/// outside the regions.
///
/// **In place.** Methods that end in I take a temporary buffer from the heap. When memory runs out, or
/// when the region is larger than 2^31 - 1 bytes, they return false and write nothing.
///
/// **Threads.** The methods keep no state; calls on different buffers may run at the same time.
///
/// **Processors.** Seven variants of every operation exist, chosen when the library is loaded; all give
/// the same bits, on 32-bit and 64-bit systems. The caller's floating-point control words (rounding,
/// precision, flushing to zero) neither change a result nor are changed.
class ORVANE_API ImageProcessingWrapper {
public:
    /// Does nothing: the class has no state.
    ImageProcessingWrapper& operator=(const ImageProcessingWrapper& other);

    // --------------------------------------------------------------------------------------------
    // Buffers
    //
    // Rows of `width` pixels, each padded to a multiple of 64 bytes, on a 64-byte boundary; *step receives
    // the padded row size in bytes. The memory is not cleared. Null for a size below 1 (*step is then 0),
    // for a null `step`, and when memory runs out. Sizes are 32-bit products that nothing checks: stay
    // below 2^31 bytes. Release with Free().

    /// Allocates an image of 1 byte per pixel.
    static unsigned char* Malloc_8u_C1(int width, int height, int* step);
    /// Allocates an image of 3 bytes per pixel.
    static unsigned char* Malloc_8u_C3(int width, int height, int* step);
    /// Allocates an image of 4 bytes per pixel.
    static unsigned char* Malloc_8u_C4(int width, int height, int* step);
    /// Allocates an image of 4 bytes per pixel.
    static unsigned char* Malloc_8u_AC4(int width, int height, int* step);
    /// Allocates an image of 2 bytes per pixel.
    static unsigned short* Malloc_16u_C1(int width, int height, int* step);
    /// Allocates an image of 2 bytes per pixel.
    static short* Malloc_16s_C1(int width, int height, int* step);
    /// Allocates an image of 4 bytes per pixel.
    static int* Malloc_32s_C1(int width, int height, int* step);
    /// Allocates an image of 4 bytes per pixel.
    static float* Malloc_32f_C1(int width, int height, int* step);
    /// Allocates an image of 12 bytes per pixel.
    static float* Malloc_32f_C3(int width, int height, int* step);
    /// Allocates an image of 16 bytes per pixel.
    static float* Malloc_32f_C4(int width, int height, int* step);
    /// Allocates an image of 8 bytes per pixel.
    static Complex32f* Malloc_32fc_C1(int width, int height, int* step);
    /// Releases what a Malloc method returned; does nothing for null.
    static void Free(void* buffer);

    // --------------------------------------------------------------------------------------------
    // Copy and set
    //
    // Bits are moved as they are, also those of float NaNs.
    // Checks: null pointer, width or height below 1. Steps are not checked.

    /// dst = src
    static bool Copy_8u_C1(const unsigned char* src, int srcStep, unsigned char* dst, int dstStep,
                           int width, int height);
    /// dst = src
    static bool Copy_8u_C3(const unsigned char* src, int srcStep, unsigned char* dst, int dstStep,
                           int width, int height);
    /// dst = src
    static bool Copy_8u_C4(const unsigned char* src, int srcStep, unsigned char* dst, int dstStep,
                           int width, int height);
    /// dst = src
    static bool Copy_16u_C1(const unsigned short* src, int srcStep, unsigned short* dst, int dstStep,
                            int width, int height);
    /// dst = src
    static bool Copy_16s_C1(const short* src, int srcStep, short* dst, int dstStep, int width, int height);
    /// dst = src
    static bool Copy_32s_C1(const int* src, int srcStep, int* dst, int dstStep, int width, int height);
    /// dst = src
    static bool Copy_32f_C1(const float* src, int srcStep, float* dst, int dstStep, int width, int height);
    /// dst = src
    static bool Copy_32f_C3(const float* src, int srcStep, float* dst, int dstStep, int width, int height);
    /// dst = src
    static bool Copy_32f_C4(const float* src, int srcStep, float* dst, int dstStep, int width, int height);
    /// dst = src. Always true; nothing is copied for a null pointer or a size below 1.
    static bool Copy_32fc_C1(const Complex32f* src, int srcStep, Complex32f* dst, int dstStep, int width,
                             int height);

    /// dst = value
    static bool Set_8u_C1(unsigned char value, unsigned char* dst, int dstStep, int width, int height);
    /// dst = value
    static bool Set_16u_C1(unsigned short value, unsigned short* dst, int dstStep, int width, int height);
    /// dst = value
    static bool Set_16s_C1(short value, short* dst, int dstStep, int width, int height);
    /// dst = value
    static bool Set_32s_C1(int value, int* dst, int dstStep, int width, int height);
    /// dst = value
    static bool Set_32f_C1(float value, float* dst, int dstStep, int width, int height);
    /// dst = values, one for each of the three channels
    static bool Set_8u_C3(const unsigned char* values, unsigned char* dst, int dstStep, int width,
                          int height);
    /// dst = values, one for each of the four channels
    static bool Set_8u_C4(const unsigned char* values, unsigned char* dst, int dstStep, int width,
                          int height);
    /// dst = values, one for each of the three channels
    static bool Set_32s_C3(const int* values, int* dst, int dstStep, int width, int height);
    /// dst = values, one for each of the four channels
    static bool Set_32s_C4(const int* values, int* dst, int dstStep, int width, int height);
    /// dst = values, one for each of the three channels
    static bool Set_32f_C3(const float* values, float* dst, int dstStep, int width, int height);
    /// dst = values, one for each of the four channels
    static bool Set_32f_C4(const float* values, float* dst, int dstStep, int width, int height);

    // --------------------------------------------------------------------------------------------
    // Conversion
    //
    // To a wider type: exact. Checks: null pointer, width or height below 1.
    // To a narrower type: the nearest integer, ties to even (0.5 gives 0, 1.5 and 2.5 give 2); values
    // beyond the range of the destination saturate, a NaN gives 0. Checks: null pointer, width or height
    // below 1, a step below 1.

    /// dst = src
    static bool Convert_8u16u_C1(const unsigned char* src, int srcStep, unsigned short* dst, int dstStep,
                                 int width, int height);
    /// dst = src
    static bool Convert_8u32f_C1(const unsigned char* src, int srcStep, float* dst, int dstStep, int width,
                                 int height);
    /// dst = src
    static bool Convert_8u32f_C3(const unsigned char* src, int srcStep, float* dst, int dstStep, int width,
                                 int height);
    /// dst = src
    static bool Convert_16u32f_C1(const unsigned short* src, int srcStep, float* dst, int dstStep,
                                  int width, int height);
    /// dst = round(src) in 0 ... 65535
    static bool Convert_32f16u_C1(const float* src, int srcStep, unsigned short* dst, int dstStep,
                                  int width, int height);
    /// dst = round(src) in 0 ... 255
    static bool Convert_32f8u_C3(const float* src, int srcStep, unsigned char* dst, int dstStep, int width,
                                 int height);

    // --------------------------------------------------------------------------------------------
    // Channel order
    //
    // Channel k of each pixel receives what channel order[k] held; indices may repeat.
    // Checks: null pointer, step below 1, width or height below 1, an index outside the channels (for three
    // channels index 3 is refused, too). The three-channel form works through a temporary, the four-channel
    // form directly.

    /// srcDst[k] = srcDst[order[k]], k = 0 ... 2
    static bool SwapChannels_8u_C3IR(unsigned char* srcDst, int srcDstStep, int width, int height,
                                     const int* order);
    /// srcDst[k] = srcDst[order[k]], k = 0 ... 3
    static bool SwapChannels_8u_C4IR(unsigned char* srcDst, int srcDstStep, int width, int height,
                                     const int* order);

    // --------------------------------------------------------------------------------------------
    // Transposition and mirroring
    //
    // Transposition: width and height are those of the source; the destination has height columns and
    // width rows. Source and destination may be the same buffer with the same step; other overlaps are not
    // supported. Checks: null pointer, width or height below 1.
    //
    // Mirroring, in place. axis 0: top and bottom exchanged; 1: left and right; 2: both. Pixels move as a
    // whole; the AC4 forms leave every alpha where it is. Checks: null pointer, width or height below 1, an
    // axis outside 0 ... 2, height below 2 for axes 0 and 2, width below 2 for axes 1 and 2: an image of one
    // row cannot be turned upside down.

    /// dst(x, y) = src(y, x)
    static bool Transpose_32f_C1R(const float* src, int srcStep, float* dst, int dstStep, int width,
                                  int height);
    /// srcDst mirrored about the axis
    static bool Mirror_16u_C1I(unsigned short* srcDst, int srcDstStep, int width, int height, int axis);
    /// srcDst mirrored about the axis
    static bool Mirror_8u_C3I(unsigned char* srcDst, int srcDstStep, int width, int height, int axis);
    /// srcDst mirrored about the axis
    static bool Mirror_8u_C4I(unsigned char* srcDst, int srcDstStep, int width, int height, int axis);
    /// srcDst with top and bottom exchanged
    static bool MirrorHorizontal_8u_C3I(unsigned char* srcDst, int srcDstStep, int width, int height);
    /// srcDst with top and bottom exchanged, alpha kept
    static bool MirrorHorizontal_8u_AC4IR(unsigned char* srcDst, int srcDstStep, int width, int height);
    /// srcDst with left and right exchanged, alpha kept
    static bool MirrorVertical_8u_AC4IR(unsigned char* srcDst, int srcDstStep, int width, int height);
    /// srcDst with both exchanged, alpha kept
    static bool MirrorBoth_8u_AC4IR(unsigned char* srcDst, int srcDstStep, int width, int height);

    // --------------------------------------------------------------------------------------------
    // Integer arithmetic with scaling
    //
    // The exact integer result (for quotients: the exact quotient) is multiplied by 2^-scaleFactor, rounded
    // to the nearest integer with ties to even, and saturated to the pixel type. Any scale factor is legal.
    // scaled(x) below stands for that. An unsigned difference below 0 is 0 before it is scaled.
    //
    // The second source is the left operand: src2 - src1, src2 / src1; in place, srcDst - src, srcDst / src;
    // with constants, src - value, src / value. Constants of three and four channels are arrays, one value
    // for each channel in order.
    //
    // Division by zero gives false, but everything is written: over 0, a positive dividend gives the largest
    // value of the type, a negative one the smallest, and 0 gives 0, at any scale factor.
    //
    // Div_16u_C1 and Div_16u_C1I round in fixed point instead: q = floor(65536 src2 / (src1 2^scaleFactor)),
    // the result is floor((q + 32767 + (2 if bit 16 of q is set, else 0)) / 65536). Exact halves go to the
    // even neighbour; quotients that lie within 2^-16 of a half may go to either.
    //
    // Checks: null pointer (an array of constants included), width or height below 1; then, in Div_8u and
    // Div_16s of two images, a step below 1.
    //
    // Two methods do something else than their names say. Hosts depend on it, and so it stays:
    // AddC_8u_C1I multiplies, and DivC_16u_C1I subtracts.

    /// dst = scaled(src2 + src1)
    static bool Add_8u_C1(const unsigned char* src1, int src1Step, const unsigned char* src2, int src2Step,
                          unsigned char* dst, int dstStep, int width, int height, int scaleFactor);
    /// srcDst = scaled(srcDst + src)
    static bool Add_8u_C1I(const unsigned char* src, int srcStep, unsigned char* srcDst, int srcDstStep,
                           int width, int height, int scaleFactor);
    /// dst = scaled(src2 + src1)
    static bool Add_8u_C3(const unsigned char* src1, int src1Step, const unsigned char* src2, int src2Step,
                          unsigned char* dst, int dstStep, int width, int height, int scaleFactor);
    /// srcDst = scaled(srcDst + src)
    static bool Add_8u_C3I(const unsigned char* src, int srcStep, unsigned char* srcDst, int srcDstStep,
                           int width, int height, int scaleFactor);
    /// dst = scaled(src2 + src1)
    static bool Add_8u_C4(const unsigned char* src1, int src1Step, const unsigned char* src2, int src2Step,
                          unsigned char* dst, int dstStep, int width, int height, int scaleFactor);
    /// srcDst = scaled(srcDst + src)
    static bool Add_8u_C4I(const unsigned char* src, int srcStep, unsigned char* srcDst, int srcDstStep,
                           int width, int height, int scaleFactor);
    /// dst = scaled(src2 + src1)
    static bool Add_16u_C1(const unsigned short* src1, int src1Step, const unsigned short* src2,
                           int src2Step, unsigned short* dst, int dstStep, int width, int height,
                           int scaleFactor);
    /// srcDst = scaled(srcDst + src)
    static bool Add_16u_C1I(const unsigned short* src, int srcStep, unsigned short* srcDst, int srcDstStep,
                            int width, int height, int scaleFactor);
    /// dst = scaled(src2 + src1)
    static bool Add_16s_C1(const short* src1, int src1Step, const short* src2, int src2Step, short* dst,
                           int dstStep, int width, int height, int scaleFactor);
    /// srcDst = scaled(srcDst + src)
    static bool Add_16s_C1I(const short* src, int srcStep, short* srcDst, int srcDstStep, int width,
                            int height, int scaleFactor);
    /// dst = scaled(src2 - src1)
    static bool Sub_8u_C1(const unsigned char* src1, int src1Step, const unsigned char* src2, int src2Step,
                          unsigned char* dst, int dstStep, int width, int height, int scaleFactor);
    /// srcDst = scaled(srcDst - src)
    static bool Sub_8u_C1I(const unsigned char* src, int srcStep, unsigned char* srcDst, int srcDstStep,
                           int width, int height, int scaleFactor);
    /// dst = scaled(src2 - src1)
    static bool Sub_8u_C3(const unsigned char* src1, int src1Step, const unsigned char* src2, int src2Step,
                          unsigned char* dst, int dstStep, int width, int height, int scaleFactor);
    /// srcDst = scaled(srcDst - src)
    static bool Sub_8u_C3I(const unsigned char* src, int srcStep, unsigned char* srcDst, int srcDstStep,
                           int width, int height, int scaleFactor);
    /// dst = scaled(src2 - src1)
    static bool Sub_8u_C4(const unsigned char* src1, int src1Step, const unsigned char* src2, int src2Step,
                          unsigned char* dst, int dstStep, int width, int height, int scaleFactor);
    /// srcDst = scaled(srcDst - src)
    static bool Sub_8u_C4I(const unsigned char* src, int srcStep, unsigned char* srcDst, int srcDstStep,
                           int width, int height, int scaleFactor);
    /// dst = scaled(src2 - src1)
    static bool Sub_16u_C1(const unsigned short* src1, int src1Step, const unsigned short* src2,
                           int src2Step, unsigned short* dst, int dstStep, int width, int height,
                           int scaleFactor);
    /// srcDst = scaled(srcDst - src)
    static bool Sub_16u_C1I(const unsigned short* src, int srcStep, unsigned short* srcDst, int srcDstStep,
                            int width, int height, int scaleFactor);
    /// dst = scaled(src2 - src1)
    static bool Sub_16s_C1(const short* src1, int src1Step, const short* src2, int src2Step, short* dst,
                           int dstStep, int width, int height, int scaleFactor);
    /// srcDst = scaled(srcDst - src)
    static bool Sub_16s_C1I(const short* src, int srcStep, short* srcDst, int srcDstStep, int width,
                            int height, int scaleFactor);
    /// dst = scaled(src2 * src1)
    static bool Mul_8u_C1(const unsigned char* src1, int src1Step, const unsigned char* src2, int src2Step,
                          unsigned char* dst, int dstStep, int width, int height, int scaleFactor);
    /// srcDst = scaled(srcDst * src)
    static bool Mul_8u_C1I(const unsigned char* src, int srcStep, unsigned char* srcDst, int srcDstStep,
                           int width, int height, int scaleFactor);
    /// dst = scaled(src2 * src1)
    static bool Mul_8u_C3(const unsigned char* src1, int src1Step, const unsigned char* src2, int src2Step,
                          unsigned char* dst, int dstStep, int width, int height, int scaleFactor);
    /// srcDst = scaled(srcDst * src)
    static bool Mul_8u_C3I(const unsigned char* src, int srcStep, unsigned char* srcDst, int srcDstStep,
                           int width, int height, int scaleFactor);
    /// dst = scaled(src2 * src1)
    static bool Mul_8u_C4(const unsigned char* src1, int src1Step, const unsigned char* src2, int src2Step,
                          unsigned char* dst, int dstStep, int width, int height, int scaleFactor);
    /// srcDst = scaled(srcDst * src)
    static bool Mul_8u_C4I(const unsigned char* src, int srcStep, unsigned char* srcDst, int srcDstStep,
                           int width, int height, int scaleFactor);
    /// dst = scaled(src2 * src1)
    static bool Mul_16u_C1(const unsigned short* src1, int src1Step, const unsigned short* src2,
                           int src2Step, unsigned short* dst, int dstStep, int width, int height,
                           int scaleFactor);
    /// srcDst = scaled(srcDst * src)
    static bool Mul_16u_C1I(const unsigned short* src, int srcStep, unsigned short* srcDst, int srcDstStep,
                            int width, int height, int scaleFactor);
    /// dst = scaled(src2 * src1)
    static bool Mul_16s_C1(const short* src1, int src1Step, const short* src2, int src2Step, short* dst,
                           int dstStep, int width, int height, int scaleFactor);
    /// srcDst = scaled(srcDst * src)
    static bool Mul_16s_C1I(const short* src, int srcStep, short* srcDst, int srcDstStep, int width,
                            int height, int scaleFactor);
    /// dst = scaled(src2 / src1)
    static bool Div_8u_C1(const unsigned char* src1, int src1Step, const unsigned char* src2, int src2Step,
                          unsigned char* dst, int dstStep, int width, int height, int scaleFactor);
    /// srcDst = scaled(srcDst / src)
    static bool Div_8u_C1I(const unsigned char* src, int srcStep, unsigned char* srcDst, int srcDstStep,
                           int width, int height, int scaleFactor);
    /// dst = scaled(src2 / src1)
    static bool Div_8u_C3(const unsigned char* src1, int src1Step, const unsigned char* src2, int src2Step,
                          unsigned char* dst, int dstStep, int width, int height, int scaleFactor);
    /// srcDst = scaled(srcDst / src)
    static bool Div_8u_C3I(const unsigned char* src, int srcStep, unsigned char* srcDst, int srcDstStep,
                           int width, int height, int scaleFactor);
    /// dst = scaled(src2 / src1)
    static bool Div_8u_C4(const unsigned char* src1, int src1Step, const unsigned char* src2, int src2Step,
                          unsigned char* dst, int dstStep, int width, int height, int scaleFactor);
    /// srcDst = scaled(srcDst / src)
    static bool Div_8u_C4I(const unsigned char* src, int srcStep, unsigned char* srcDst, int srcDstStep,
                           int width, int height, int scaleFactor);
    /// dst = scaled(src2 / src1), rounded in fixed point
    static bool Div_16u_C1(const unsigned short* src1, int src1Step, const unsigned short* src2,
                           int src2Step, unsigned short* dst, int dstStep, int width, int height,
                           int scaleFactor);
    /// srcDst = scaled(srcDst / src), rounded in fixed point
    static bool Div_16u_C1I(const unsigned short* src, int srcStep, unsigned short* srcDst, int srcDstStep,
                            int width, int height, int scaleFactor);
    /// dst = scaled(src2 / src1)
    static bool Div_16s_C1(const short* src1, int src1Step, const short* src2, int src2Step, short* dst,
                           int dstStep, int width, int height, int scaleFactor);
    /// srcDst = scaled(srcDst / src)
    static bool Div_16s_C1I(const short* src, int srcStep, short* srcDst, int srcDstStep, int width,
                            int height, int scaleFactor);
    /// dst = scaled(src + value)
    static bool AddC_8u_C1(const unsigned char* src, int srcStep, unsigned char value, unsigned char* dst,
                           int dstStep, int width, int height, int scaleFactor);
    /// srcDst = scaled(srcDst * value): multiplies, as MulC_8u_C1I does
    static bool AddC_8u_C1I(unsigned char value, unsigned char* srcDst, int srcDstStep, int width,
                            int height, int scaleFactor);
    /// dst = scaled(src + values)
    static bool AddC_8u_C3(const unsigned char* src, int srcStep, const unsigned char* values,
                           unsigned char* dst, int dstStep, int width, int height, int scaleFactor);
    /// srcDst = scaled(srcDst + values)
    static bool AddC_8u_C3I(const unsigned char* values, unsigned char* srcDst, int srcDstStep, int width,
                            int height, int scaleFactor);
    /// dst = scaled(src + values)
    static bool AddC_8u_C4(const unsigned char* src, int srcStep, const unsigned char* values,
                           unsigned char* dst, int dstStep, int width, int height, int scaleFactor);
    /// srcDst = scaled(srcDst + values)
    static bool AddC_8u_C4I(const unsigned char* values, unsigned char* srcDst, int srcDstStep, int width,
                            int height, int scaleFactor);
    /// dst = scaled(src + value)
    static bool AddC_16u_C1(const unsigned short* src, int srcStep, unsigned short value,
                            unsigned short* dst, int dstStep, int width, int height, int scaleFactor);
    /// srcDst = scaled(srcDst + value)
    static bool AddC_16u_C1I(unsigned short value, unsigned short* srcDst, int srcDstStep, int width,
                             int height, int scaleFactor);
    /// dst = scaled(src + value)
    static bool AddC_16s_C1(const short* src, int srcStep, short value, short* dst, int dstStep, int width,
                            int height, int scaleFactor);
    /// srcDst = scaled(srcDst + value)
    static bool AddC_16s_C1I(short value, short* srcDst, int srcDstStep, int width, int height,
                             int scaleFactor);
    /// dst = scaled(src - value)
    static bool SubC_8u_C1(const unsigned char* src, int srcStep, unsigned char value, unsigned char* dst,
                           int dstStep, int width, int height, int scaleFactor);
    /// srcDst = scaled(srcDst - value)
    static bool SubC_8u_C1I(unsigned char value, unsigned char* srcDst, int srcDstStep, int width,
                            int height, int scaleFactor);
    /// dst = scaled(src - values)
    static bool SubC_8u_C3(const unsigned char* src, int srcStep, const unsigned char* values,
                           unsigned char* dst, int dstStep, int width, int height, int scaleFactor);
    /// srcDst = scaled(srcDst - values)
    static bool SubC_8u_C3I(const unsigned char* values, unsigned char* srcDst, int srcDstStep, int width,
                            int height, int scaleFactor);
    /// dst = scaled(src - values)
    static bool SubC_8u_C4(const unsigned char* src, int srcStep, const unsigned char* values,
                           unsigned char* dst, int dstStep, int width, int height, int scaleFactor);
    /// srcDst = scaled(srcDst - values)
    static bool SubC_8u_C4I(const unsigned char* values, unsigned char* srcDst, int srcDstStep, int width,
                            int height, int scaleFactor);
    /// dst = scaled(src - value)
    static bool SubC_16u_C1(const unsigned short* src, int srcStep, unsigned short value,
                            unsigned short* dst, int dstStep, int width, int height, int scaleFactor);
    /// srcDst = scaled(srcDst - value)
    static bool SubC_16u_C1I(unsigned short value, unsigned short* srcDst, int srcDstStep, int width,
                             int height, int scaleFactor);
    /// dst = scaled(src - value)
    static bool SubC_16s_C1(const short* src, int srcStep, short value, short* dst, int dstStep, int width,
                            int height, int scaleFactor);
    /// srcDst = scaled(srcDst - value)
    static bool SubC_16s_C1I(short value, short* srcDst, int srcDstStep, int width, int height,
                             int scaleFactor);
    /// dst = scaled(src * value)
    static bool MulC_8u_C1(const unsigned char* src, int srcStep, unsigned char value, unsigned char* dst,
                           int dstStep, int width, int height, int scaleFactor);
    /// srcDst = scaled(srcDst * value)
    static bool MulC_8u_C1I(unsigned char value, unsigned char* srcDst, int srcDstStep, int width,
                            int height, int scaleFactor);
    /// dst = scaled(src * values)
    static bool MulC_8u_C3(const unsigned char* src, int srcStep, const unsigned char* values,
                           unsigned char* dst, int dstStep, int width, int height, int scaleFactor);
    /// srcDst = scaled(srcDst * values)
    static bool MulC_8u_C3I(const unsigned char* values, unsigned char* srcDst, int srcDstStep, int width,
                            int height, int scaleFactor);
    /// dst = scaled(src * values)
    static bool MulC_8u_C4(const unsigned char* src, int srcStep, const unsigned char* values,
                           unsigned char* dst, int dstStep, int width, int height, int scaleFactor);
    /// srcDst = scaled(srcDst * values)
    static bool MulC_8u_C4I(const unsigned char* values, unsigned char* srcDst, int srcDstStep, int width,
                            int height, int scaleFactor);
    /// dst = scaled(src * value)
    static bool MulC_16u_C1(const unsigned short* src, int srcStep, unsigned short value,
                            unsigned short* dst, int dstStep, int width, int height, int scaleFactor);
    /// srcDst = scaled(srcDst * value)
    static bool MulC_16u_C1I(unsigned short value, unsigned short* srcDst, int srcDstStep, int width,
                             int height, int scaleFactor);
    /// dst = scaled(src * value)
    static bool MulC_16s_C1(const short* src, int srcStep, short value, short* dst, int dstStep, int width,
                            int height, int scaleFactor);
    /// srcDst = scaled(srcDst * value)
    static bool MulC_16s_C1I(short value, short* srcDst, int srcDstStep, int width, int height,
                             int scaleFactor);
    /// dst = scaled(src / value)
    static bool DivC_8u_C1(const unsigned char* src, int srcStep, unsigned char value, unsigned char* dst,
                           int dstStep, int width, int height, int scaleFactor);
    /// srcDst = scaled(srcDst / value)
    static bool DivC_8u_C1I(unsigned char value, unsigned char* srcDst, int srcDstStep, int width,
                            int height, int scaleFactor);
    /// dst = scaled(src / values)
    static bool DivC_8u_C3(const unsigned char* src, int srcStep, const unsigned char* values,
                           unsigned char* dst, int dstStep, int width, int height, int scaleFactor);
    /// srcDst = scaled(srcDst / values)
    static bool DivC_8u_C3I(const unsigned char* values, unsigned char* srcDst, int srcDstStep, int width,
                            int height, int scaleFactor);
    /// dst = scaled(src / values)
    static bool DivC_8u_C4(const unsigned char* src, int srcStep, const unsigned char* values,
                           unsigned char* dst, int dstStep, int width, int height, int scaleFactor);
    /// srcDst = scaled(srcDst / values)
    static bool DivC_8u_C4I(const unsigned char* values, unsigned char* srcDst, int srcDstStep, int width,
                            int height, int scaleFactor);
    /// dst = scaled(src / value)
    static bool DivC_16u_C1(const unsigned short* src, int srcStep, unsigned short value,
                            unsigned short* dst, int dstStep, int width, int height, int scaleFactor);
    /// srcDst = scaled(srcDst - value): subtracts, as SubC_16u_C1I does
    static bool DivC_16u_C1I(unsigned short value, unsigned short* srcDst, int srcDstStep, int width,
                             int height, int scaleFactor);
    /// dst = scaled(src / value)
    static bool DivC_16s_C1(const short* src, int srcStep, short value, short* dst, int dstStep, int width,
                            int height, int scaleFactor);
    /// srcDst = scaled(srcDst / value)
    static bool DivC_16s_C1I(short value, short* srcDst, int srcDstStep, int width, int height,
                             int scaleFactor);

    // --------------------------------------------------------------------------------------------
    // Float and complex arithmetic
    //
    // The second source is the left operand: src2 - src1, src2 / src1; in place, srcDst - src, srcDst / src;
    // with constants, src - value, src / value. Constants of three channels are arrays, one value for each
    // channel in order.
    //
    // Floats: IEEE results, rounded once. Of two NaNs the left operand's is the result; NaNs become quiet.
    // Division by 0 or -0 gives false, but everything is written: infinity for a positive dividend, -infinity
    // for a negative one, the NaN 0xFFC00000 for 0 and for a NaN. Division by a constant multiplies by its
    // reciprocal, rounded to float, so it may differ from a true quotient in the last place; a constant of 0
    // (in any channel) is refused and nothing is written.
    // Square root: of -0 it is -0; of a negative number or a NaN it is the NaN 0xFFC00000, and the result is
    // false with everything written. Its destination step is rounded down to a multiple of 4.
    // Absolute value: the sign bit cleared, also of NaNs. MaxEvery, MinEvery: where neither value is the larger
    // (smaller) one, and where either is a NaN, srcDst keeps its bits.
    // AddProduct: the product and the sum in double, rounded to float once.
    //
    // Complex values: sums and differences part by part, as floats. With src1 = a + bi and src2 = c + di
    //     product    re = ac - bd, im = ad + bc
    //     quotient   src2 / src1: m = aa + bb, r = 1 / m, re = (ac + bd) r, im = (ad - bc) r
    // in double, rounded to float once; a part that is a NaN is always 0xFFC00000, and so are both parts of a
    // quotient over 0. DivC by p + qi multiplies by (p r, -q r), r = 1 / (pp + qq), each rounded to float; for
    // a value of 0 nothing is written.
    // All complex methods return true, whatever happens; nothing is written where they cannot work.
    //
    // Checks: null pointer (an array of constants included), width or height below 1; then, in Div, DivC, Sqrt,
    // MaxEvery and MinEvery, a step below 1; then a constant divisor of 0. AddProduct: source steps below
    // 2 width or a destination step below 4 width, then source steps that are odd or a destination step
    // that is no multiple of 4.
    //
    // One method does something else than its name says. Hosts depend on it, and so it stays: MulC_32f_C3I
    // subtracts. MulC_32f_C3IR multiplies.

    /// dst = src2 + src1
    static bool Add_32f_C1(const float* src1, int src1Step, const float* src2, int src2Step, float* dst,
                           int dstStep, int width, int height);
    /// srcDst = srcDst + src
    static bool Add_32f_C1I(const float* src, int srcStep, float* srcDst, int srcDstStep, int width,
                            int height);
    /// dst = src2 + src1
    static bool Add_32f_C3(const float* src1, int src1Step, const float* src2, int src2Step, float* dst,
                           int dstStep, int width, int height);
    /// srcDst = srcDst + src
    static bool Add_32f_C3I(const float* src, int srcStep, float* srcDst, int srcDstStep, int width,
                            int height);
    /// dst = src2 + src1. Always true.
    static bool Add_32fc_C1(const Complex32f* src1, int src1Step, const Complex32f* src2, int src2Step,
                            Complex32f* dst, int dstStep, int width, int height);
    /// srcDst = srcDst + src. Always true.
    static bool Add_32fc_C1I(const Complex32f* src, int srcStep, Complex32f* srcDst, int srcDstStep,
                             int width, int height);
    /// dst = src2 - src1
    static bool Sub_32f_C1(const float* src1, int src1Step, const float* src2, int src2Step, float* dst,
                           int dstStep, int width, int height);
    /// srcDst = srcDst - src
    static bool Sub_32f_C1I(const float* src, int srcStep, float* srcDst, int srcDstStep, int width,
                            int height);
    /// dst = src2 - src1
    static bool Sub_32f_C3(const float* src1, int src1Step, const float* src2, int src2Step, float* dst,
                           int dstStep, int width, int height);
    /// dst = src2 - src1: the same as Sub_32f_C3
    static bool Sub_32f_C3R(const float* src1, int src1Step, const float* src2, int src2Step, float* dst,
                            int dstStep, int width, int height);
    /// srcDst = srcDst - src
    static bool Sub_32f_C3I(const float* src, int srcStep, float* srcDst, int srcDstStep, int width,
                            int height);
    /// dst = src2 - src1. Always true.
    static bool Sub_32fc_C1(const Complex32f* src1, int src1Step, const Complex32f* src2, int src2Step,
                            Complex32f* dst, int dstStep, int width, int height);
    /// srcDst = srcDst - src. Always true.
    static bool Sub_32fc_C1I(const Complex32f* src, int srcStep, Complex32f* srcDst, int srcDstStep,
                             int width, int height);
    /// dst = src2 * src1
    static bool Mul_32f_C1(const float* src1, int src1Step, const float* src2, int src2Step, float* dst,
                           int dstStep, int width, int height);
    /// srcDst = srcDst * src
    static bool Mul_32f_C1I(const float* src, int srcStep, float* srcDst, int srcDstStep, int width,
                            int height);
    /// dst = src2 * src1
    static bool Mul_32f_C3(const float* src1, int src1Step, const float* src2, int src2Step, float* dst,
                           int dstStep, int width, int height);
    /// srcDst = srcDst * src
    static bool Mul_32f_C3I(const float* src, int srcStep, float* srcDst, int srcDstStep, int width,
                            int height);
    /// dst = src2 * src1. Always true.
    static bool Mul_32fc_C1(const Complex32f* src1, int src1Step, const Complex32f* src2, int src2Step,
                            Complex32f* dst, int dstStep, int width, int height);
    /// srcDst = srcDst * src. Always true.
    static bool Mul_32fc_C1I(const Complex32f* src, int srcStep, Complex32f* srcDst, int srcDstStep,
                             int width, int height);
    /// dst = src2 / src1
    static bool Div_32f_C1(const float* src1, int src1Step, const float* src2, int src2Step, float* dst,
                           int dstStep, int width, int height);
    /// srcDst = srcDst / src
    static bool Div_32f_C1I(const float* src, int srcStep, float* srcDst, int srcDstStep, int width,
                            int height);
    /// dst = src2 / src1
    static bool Div_32f_C3(const float* src1, int src1Step, const float* src2, int src2Step, float* dst,
                           int dstStep, int width, int height);
    /// srcDst = srcDst / src
    static bool Div_32f_C3I(const float* src, int srcStep, float* srcDst, int srcDstStep, int width,
                            int height);
    /// dst = src2 / src1. Always true.
    static bool Div_32fc_C1(const Complex32f* src1, int src1Step, const Complex32f* src2, int src2Step,
                            Complex32f* dst, int dstStep, int width, int height);
    /// srcDst = srcDst / src. Always true.
    static bool Div_32fc_C1I(const Complex32f* src, int srcStep, Complex32f* srcDst, int srcDstStep,
                             int width, int height);
    /// dst = src + value
    static bool AddC_32f_C1(const float* src, int srcStep, float value, float* dst, int dstStep, int width,
                            int height);
    /// srcDst = srcDst + value
    static bool AddC_32f_C1I(float value, float* srcDst, int srcDstStep, int width, int height);
    /// dst = src + values[channel]
    static bool AddC_32f_C3(const float* src, int srcStep, const float* values, float* dst, int dstStep,
                            int width, int height);
    /// srcDst = srcDst + values[channel]
    static bool AddC_32f_C3I(const float* values, float* srcDst, int srcDstStep, int width, int height);
    /// dst = src + value. Always true.
    static bool AddC_32fc_C1(const Complex32f* src, int srcStep, Complex32f value, Complex32f* dst,
                             int dstStep, int width, int height);
    /// srcDst = srcDst + value. Always true.
    static bool AddC_32fc_C1I(Complex32f value, Complex32f* srcDst, int srcDstStep, int width, int height);
    /// dst = src - value
    static bool SubC_32f_C1(const float* src, int srcStep, float value, float* dst, int dstStep, int width,
                            int height);
    /// srcDst = srcDst - value
    static bool SubC_32f_C1I(float value, float* srcDst, int srcDstStep, int width, int height);
    /// dst = src - values[channel]
    static bool SubC_32f_C3(const float* src, int srcStep, const float* values, float* dst, int dstStep,
                            int width, int height);
    /// srcDst = srcDst - values[channel]
    static bool SubC_32f_C3I(const float* values, float* srcDst, int srcDstStep, int width, int height);
    /// dst = src - value. Always true.
    static bool SubC_32fc_C1(const Complex32f* src, int srcStep, Complex32f value, Complex32f* dst,
                             int dstStep, int width, int height);
    /// srcDst = srcDst - value. Always true.
    static bool SubC_32fc_C1I(Complex32f value, Complex32f* srcDst, int srcDstStep, int width, int height);
    /// dst = src * value
    static bool MulC_32f_C1(const float* src, int srcStep, float value, float* dst, int dstStep, int width,
                            int height);
    /// srcDst = srcDst * value
    static bool MulC_32f_C1I(float value, float* srcDst, int srcDstStep, int width, int height);
    /// dst = src * values[channel]
    static bool MulC_32f_C3(const float* src, int srcStep, const float* values, float* dst, int dstStep,
                            int width, int height);
    /// srcDst = srcDst - values[channel]: it subtracts, on purpose
    static bool MulC_32f_C3I(const float* values, float* srcDst, int srcDstStep, int width, int height);
    /// srcDst = srcDst * values[channel]
    static bool MulC_32f_C3IR(const float* values, float* srcDst, int srcDstStep, int width, int height);
    /// dst = src * value. Always true.
    static bool MulC_32fc_C1(const Complex32f* src, int srcStep, Complex32f value, Complex32f* dst,
                             int dstStep, int width, int height);
    /// srcDst = srcDst * value. Always true.
    static bool MulC_32fc_C1I(Complex32f value, Complex32f* srcDst, int srcDstStep, int width, int height);
    /// dst = src * (1 / value)
    static bool DivC_32f_C1(const float* src, int srcStep, float value, float* dst, int dstStep, int width,
                            int height);
    /// srcDst = srcDst * (1 / value)
    static bool DivC_32f_C1I(float value, float* srcDst, int srcDstStep, int width, int height);
    /// dst = src * (1 / values[channel])
    static bool DivC_32f_C3(const float* src, int srcStep, const float* values, float* dst, int dstStep,
                            int width, int height);
    /// srcDst = srcDst * (1 / values[channel])
    static bool DivC_32f_C3I(const float* values, float* srcDst, int srcDstStep, int width, int height);
    /// dst = src / value. Always true.
    static bool DivC_32fc_C1(const Complex32f* src, int srcStep, Complex32f value, Complex32f* dst,
                             int dstStep, int width, int height);
    /// srcDst = srcDst / value. Always true.
    static bool DivC_32fc_C1I(Complex32f value, Complex32f* srcDst, int srcDstStep, int width, int height);
    /// dst = |src|
    static bool Abs_32f_C1(const float* src, int srcStep, float* dst, int dstStep, int width, int height);
    /// srcDst = |srcDst|
    static bool Abs_32f_C1I(float* srcDst, int srcDstStep, int width, int height);
    /// dst = |src|
    static bool Abs_32f_C3(const float* src, int srcStep, float* dst, int dstStep, int width, int height);
    /// srcDst = |srcDst|
    static bool Abs_32f_C3I(float* srcDst, int srcDstStep, int width, int height);
    /// srcDst = sqrt(srcDst)
    static bool Sqrt_32f_C1I(float* srcDst, int srcDstStep, int width, int height);
    /// srcDst = max(src, srcDst), without a temporary
    static bool MaxEvery_32f_C1I(const float* src, int srcStep, float* srcDst, int srcDstStep, int width,
                                 int height);
    /// srcDst = min(src, srcDst), without a temporary
    static bool MinEvery_32f_C1I(const float* src, int srcStep, float* srcDst, int srcDstStep, int width,
                                 int height);
    /// srcDst = srcDst + src1 * src2, without a temporary
    static bool AddProduct_16u32f_C1I(const unsigned short* src1, int src1Step, const unsigned short* src2,
                                      int src2Step, float* srcDst, int srcDstStep, int width, int height);

    // --------------------------------------------------------------------------------------------
    // Bitwise operations and shifts
    //

    // --------------------------------------------------------------------------------------------
    // Comparison
    //

    // --------------------------------------------------------------------------------------------
    // Thresholding
    //

    // --------------------------------------------------------------------------------------------
    // Border extension
    //

    // --------------------------------------------------------------------------------------------
    // Resize
    //

    // --------------------------------------------------------------------------------------------
    // Fixed-kernel filters
    //

    // --------------------------------------------------------------------------------------------
    // Statistics
    //

    // --------------------------------------------------------------------------------------------
    // Small matrices
    //

protected:
    /// Does nothing: the class has no instances.
    ImageProcessingWrapper(const ImageProcessingWrapper& other);
    ~ImageProcessingWrapper();
};

/// Returns 42.
ORVANE_API int fnImageProcessingWrapper();

/// Starts as 0; the library neither reads nor writes it.
extern ORVANE_API int nImageProcessingWrapper;

#endif
