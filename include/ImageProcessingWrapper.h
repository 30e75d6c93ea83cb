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

    // --------------------------------------------------------------------------------------------
    // Bitwise operations and shifts
    //
    // Bits of each channel, without scaling or saturation. Constants and shift counts of three and four
    // channels are arrays, one for each channel in order.
    //
    // Shifts: bits that leave the pixel type are lost. To the right, zeros come in for unsigned types and
    // copies of the sign bit for 16s and 32s. Any count is legal: from the width of the type on, everything is
    // shifted out, which leaves 0, or -1 of a negative pixel shifted to the right.
    //
    // The one-channel in-place forms of AndC, OrC and XorC take the value after the step, the others before the
    // image.
    //
    // Checks: null pointer (an array of constants or counts included), a step below 1, width or height below 1.

    /// dst = src1 & src2
    static bool And_8u_C1(const unsigned char* src1, int src1Step, const unsigned char* src2, int src2Step,
                          unsigned char* dst, int dstStep, int width, int height);
    /// srcDst = srcDst & src
    static bool And_8u_C1I(const unsigned char* src, int srcStep, unsigned char* srcDst, int srcDstStep,
                           int width, int height);
    /// dst = src1 & src2
    static bool And_8u_C3(const unsigned char* src1, int src1Step, const unsigned char* src2, int src2Step,
                          unsigned char* dst, int dstStep, int width, int height);
    /// srcDst = srcDst & src
    static bool And_8u_C3I(const unsigned char* src, int srcStep, unsigned char* srcDst, int srcDstStep,
                           int width, int height);
    /// dst = src1 & src2
    static bool And_8u_C4(const unsigned char* src1, int src1Step, const unsigned char* src2, int src2Step,
                          unsigned char* dst, int dstStep, int width, int height);
    /// srcDst = srcDst & src
    static bool And_8u_C4I(const unsigned char* src, int srcStep, unsigned char* srcDst, int srcDstStep,
                           int width, int height);
    /// dst = src1 & src2
    static bool And_16u_C1(const unsigned short* src1, int src1Step, const unsigned short* src2,
                           int src2Step, unsigned short* dst, int dstStep, int width, int height);
    /// srcDst = srcDst & src
    static bool And_16u_C1I(const unsigned short* src, int srcStep, unsigned short* srcDst, int srcDstStep,
                            int width, int height);
    /// dst = src1 & src2
    static bool And_32s_C1(const int* src1, int src1Step, const int* src2, int src2Step, int* dst,
                           int dstStep, int width, int height);
    /// srcDst = srcDst & src
    static bool And_32s_C1I(const int* src, int srcStep, int* srcDst, int srcDstStep, int width,
                            int height);
    /// dst = src1 | src2
    static bool Or_8u_C1(const unsigned char* src1, int src1Step, const unsigned char* src2, int src2Step,
                         unsigned char* dst, int dstStep, int width, int height);
    /// srcDst = srcDst | src
    static bool Or_8u_C1I(const unsigned char* src, int srcStep, unsigned char* srcDst, int srcDstStep,
                          int width, int height);
    /// dst = src1 | src2
    static bool Or_8u_C3(const unsigned char* src1, int src1Step, const unsigned char* src2, int src2Step,
                         unsigned char* dst, int dstStep, int width, int height);
    /// srcDst = srcDst | src
    static bool Or_8u_C3I(const unsigned char* src, int srcStep, unsigned char* srcDst, int srcDstStep,
                          int width, int height);
    /// dst = src1 | src2
    static bool Or_8u_C4(const unsigned char* src1, int src1Step, const unsigned char* src2, int src2Step,
                         unsigned char* dst, int dstStep, int width, int height);
    /// srcDst = srcDst | src
    static bool Or_8u_C4I(const unsigned char* src, int srcStep, unsigned char* srcDst, int srcDstStep,
                          int width, int height);
    /// dst = src1 | src2
    static bool Or_16u_C1(const unsigned short* src1, int src1Step, const unsigned short* src2,
                          int src2Step, unsigned short* dst, int dstStep, int width, int height);
    /// srcDst = srcDst | src
    static bool Or_16u_C1I(const unsigned short* src, int srcStep, unsigned short* srcDst, int srcDstStep,
                           int width, int height);
    /// dst = src1 | src2
    static bool Or_32s_C1(const int* src1, int src1Step, const int* src2, int src2Step, int* dst,
                          int dstStep, int width, int height);
    /// srcDst = srcDst | src
    static bool Or_32s_C1I(const int* src, int srcStep, int* srcDst, int srcDstStep, int width,
                           int height);
    /// dst = src1 ^ src2
    static bool Xor_8u_C1(const unsigned char* src1, int src1Step, const unsigned char* src2, int src2Step,
                          unsigned char* dst, int dstStep, int width, int height);
    /// srcDst = srcDst ^ src
    static bool Xor_8u_C1I(const unsigned char* src, int srcStep, unsigned char* srcDst, int srcDstStep,
                           int width, int height);
    /// dst = src1 ^ src2
    static bool Xor_8u_C3(const unsigned char* src1, int src1Step, const unsigned char* src2, int src2Step,
                          unsigned char* dst, int dstStep, int width, int height);
    /// srcDst = srcDst ^ src
    static bool Xor_8u_C3I(const unsigned char* src, int srcStep, unsigned char* srcDst, int srcDstStep,
                           int width, int height);
    /// dst = src1 ^ src2
    static bool Xor_8u_C4(const unsigned char* src1, int src1Step, const unsigned char* src2, int src2Step,
                          unsigned char* dst, int dstStep, int width, int height);
    /// srcDst = srcDst ^ src
    static bool Xor_8u_C4I(const unsigned char* src, int srcStep, unsigned char* srcDst, int srcDstStep,
                           int width, int height);
    /// dst = src1 ^ src2
    static bool Xor_16u_C1(const unsigned short* src1, int src1Step, const unsigned short* src2,
                           int src2Step, unsigned short* dst, int dstStep, int width, int height);
    /// srcDst = srcDst ^ src
    static bool Xor_16u_C1I(const unsigned short* src, int srcStep, unsigned short* srcDst, int srcDstStep,
                            int width, int height);
    /// dst = src1 ^ src2
    static bool Xor_32s_C1(const int* src1, int src1Step, const int* src2, int src2Step, int* dst,
                           int dstStep, int width, int height);
    /// srcDst = srcDst ^ src
    static bool Xor_32s_C1I(const int* src, int srcStep, int* srcDst, int srcDstStep, int width,
                            int height);
    /// dst = src & value
    static bool AndC_8u_C1(const unsigned char* src, int srcStep, unsigned char value, unsigned char* dst,
                           int dstStep, int width, int height);
    /// srcDst = srcDst & value (the value follows the step)
    static bool AndC_8u_C1I(unsigned char* srcDst, int srcDstStep, unsigned char value, int width,
                            int height);
    /// dst = src & values
    static bool AndC_8u_C3(const unsigned char* src, int srcStep, const unsigned char* values,
                           unsigned char* dst, int dstStep, int width, int height);
    /// srcDst = srcDst & values
    static bool AndC_8u_C3I(const unsigned char* values, unsigned char* srcDst, int srcDstStep, int width,
                            int height);
    /// dst = src & values
    static bool AndC_8u_C4(const unsigned char* src, int srcStep, const unsigned char* values,
                           unsigned char* dst, int dstStep, int width, int height);
    /// srcDst = srcDst & values
    static bool AndC_8u_C4I(const unsigned char* values, unsigned char* srcDst, int srcDstStep, int width,
                            int height);
    /// dst = src & value
    static bool AndC_16u_C1(const unsigned short* src, int srcStep, unsigned short value,
                            unsigned short* dst, int dstStep, int width, int height);
    /// srcDst = srcDst & value (the value follows the step)
    static bool AndC_16u_C1I(unsigned short* srcDst, int srcDstStep, unsigned short value, int width,
                             int height);
    /// dst = src & value
    static bool AndC_32s_C1(const int* src, int srcStep, int value, int* dst, int dstStep, int width,
                            int height);
    /// srcDst = srcDst & value (the value follows the step)
    static bool AndC_32s_C1I(int* srcDst, int srcDstStep, int value, int width, int height);
    /// dst = src | value
    static bool OrC_8u_C1(const unsigned char* src, int srcStep, unsigned char value, unsigned char* dst,
                          int dstStep, int width, int height);
    /// srcDst = srcDst | value (the value follows the step)
    static bool OrC_8u_C1I(unsigned char* srcDst, int srcDstStep, unsigned char value, int width,
                           int height);
    /// dst = src | values
    static bool OrC_8u_C3(const unsigned char* src, int srcStep, const unsigned char* values,
                          unsigned char* dst, int dstStep, int width, int height);
    /// srcDst = srcDst | values
    static bool OrC_8u_C3I(const unsigned char* values, unsigned char* srcDst, int srcDstStep, int width,
                           int height);
    /// dst = src | values
    static bool OrC_8u_C4(const unsigned char* src, int srcStep, const unsigned char* values,
                          unsigned char* dst, int dstStep, int width, int height);
    /// srcDst = srcDst | values
    static bool OrC_8u_C4I(const unsigned char* values, unsigned char* srcDst, int srcDstStep, int width,
                           int height);
    /// dst = src | value
    static bool OrC_16u_C1(const unsigned short* src, int srcStep, unsigned short value,
                           unsigned short* dst, int dstStep, int width, int height);
    /// srcDst = srcDst | value (the value follows the step)
    static bool OrC_16u_C1I(unsigned short* srcDst, int srcDstStep, unsigned short value, int width,
                            int height);
    /// dst = src | value
    static bool OrC_32s_C1(const int* src, int srcStep, int value, int* dst, int dstStep, int width,
                           int height);
    /// srcDst = srcDst | value (the value follows the step)
    static bool OrC_32s_C1I(int* srcDst, int srcDstStep, int value, int width, int height);
    /// dst = src ^ value
    static bool XorC_8u_C1(const unsigned char* src, int srcStep, unsigned char value, unsigned char* dst,
                           int dstStep, int width, int height);
    /// srcDst = srcDst ^ value (the value follows the step)
    static bool XorC_8u_C1I(unsigned char* srcDst, int srcDstStep, unsigned char value, int width,
                            int height);
    /// dst = src ^ values
    static bool XorC_8u_C3(const unsigned char* src, int srcStep, const unsigned char* values,
                           unsigned char* dst, int dstStep, int width, int height);
    /// srcDst = srcDst ^ values
    static bool XorC_8u_C3I(const unsigned char* values, unsigned char* srcDst, int srcDstStep, int width,
                            int height);
    /// dst = src ^ values
    static bool XorC_8u_C4(const unsigned char* src, int srcStep, const unsigned char* values,
                           unsigned char* dst, int dstStep, int width, int height);
    /// srcDst = srcDst ^ values
    static bool XorC_8u_C4I(const unsigned char* values, unsigned char* srcDst, int srcDstStep, int width,
                            int height);
    /// dst = src ^ value
    static bool XorC_16u_C1(const unsigned short* src, int srcStep, unsigned short value,
                            unsigned short* dst, int dstStep, int width, int height);
    /// srcDst = srcDst ^ value (the value follows the step)
    static bool XorC_16u_C1I(unsigned short* srcDst, int srcDstStep, unsigned short value, int width,
                             int height);
    /// dst = src ^ value
    static bool XorC_32s_C1(const int* src, int srcStep, int value, int* dst, int dstStep, int width,
                            int height);
    /// srcDst = srcDst ^ value (the value follows the step)
    static bool XorC_32s_C1I(int* srcDst, int srcDstStep, int value, int width, int height);
    /// dst = ~src
    static bool Not_8u_C1(const unsigned char* src, int srcStep, unsigned char* dst, int dstStep,
                          int width, int height);
    /// srcDst = ~srcDst
    static bool Not_8u_C1I(unsigned char* srcDst, int srcDstStep, int width, int height);
    /// dst = ~src
    static bool Not_8u_C3(const unsigned char* src, int srcStep, unsigned char* dst, int dstStep,
                          int width, int height);
    /// srcDst = ~srcDst
    static bool Not_8u_C3I(unsigned char* srcDst, int srcDstStep, int width, int height);
    /// dst = ~src
    static bool Not_8u_C4(const unsigned char* src, int srcStep, unsigned char* dst, int dstStep,
                          int width, int height);
    /// srcDst = ~srcDst
    static bool Not_8u_C4I(unsigned char* srcDst, int srcDstStep, int width, int height);
    /// dst = src << count
    static bool LShiftC_8u_C1R(const unsigned char* src, int srcStep, unsigned int count,
                               unsigned char* dst, int dstStep, int width, int height);
    /// srcDst = srcDst << count
    static bool LShiftC_8u_C1IR(unsigned int count, unsigned char* srcDst, int srcDstStep, int width,
                                int height);
    /// dst = src << counts
    static bool LShiftC_8u_C3R(const unsigned char* src, int srcStep, const unsigned int* counts,
                               unsigned char* dst, int dstStep, int width, int height);
    /// srcDst = srcDst << counts
    static bool LShiftC_8u_C3IR(const unsigned int* counts, unsigned char* srcDst, int srcDstStep,
                                int width, int height);
    /// dst = src << counts
    static bool LShiftC_8u_C4R(const unsigned char* src, int srcStep, const unsigned int* counts,
                               unsigned char* dst, int dstStep, int width, int height);
    /// srcDst = srcDst << counts
    static bool LShiftC_8u_C4IR(const unsigned int* counts, unsigned char* srcDst, int srcDstStep,
                                int width, int height);
    /// dst = src << count
    static bool LShiftC_16u_C1R(const unsigned short* src, int srcStep, unsigned int count,
                                unsigned short* dst, int dstStep, int width, int height);
    /// srcDst = srcDst << count
    static bool LShiftC_16u_C1IR(unsigned int count, unsigned short* srcDst, int srcDstStep, int width,
                                 int height);
    /// dst = src << count
    static bool LShiftC_32s_C1R(const int* src, int srcStep, unsigned int count, int* dst, int dstStep,
                                int width, int height);
    /// srcDst = srcDst << count
    static bool LShiftC_32s_C1IR(unsigned int count, int* srcDst, int srcDstStep, int width, int height);
    /// dst = src >> count
    static bool RShiftC_8u_C1R(const unsigned char* src, int srcStep, unsigned int count,
                               unsigned char* dst, int dstStep, int width, int height);
    /// srcDst = srcDst >> count
    static bool RShiftC_8u_C1IR(unsigned int count, unsigned char* srcDst, int srcDstStep, int width,
                                int height);
    /// dst = src >> counts
    static bool RShiftC_8u_C3R(const unsigned char* src, int srcStep, const unsigned int* counts,
                               unsigned char* dst, int dstStep, int width, int height);
    /// srcDst = srcDst >> counts
    static bool RShiftC_8u_C3IR(const unsigned int* counts, unsigned char* srcDst, int srcDstStep,
                                int width, int height);
    /// dst = src >> counts
    static bool RShiftC_8u_C4R(const unsigned char* src, int srcStep, const unsigned int* counts,
                               unsigned char* dst, int dstStep, int width, int height);
    /// srcDst = srcDst >> counts
    static bool RShiftC_8u_C4IR(const unsigned int* counts, unsigned char* srcDst, int srcDstStep,
                                int width, int height);
    /// dst = src >> count
    static bool RShiftC_16u_C1R(const unsigned short* src, int srcStep, unsigned int count,
                                unsigned short* dst, int dstStep, int width, int height);
    /// srcDst = srcDst >> count
    static bool RShiftC_16u_C1IR(unsigned int count, unsigned short* srcDst, int srcDstStep, int width,
                                 int height);
    /// dst = src >> count
    static bool RShiftC_16s_C1R(const short* src, int srcStep, unsigned int count, short* dst, int dstStep,
                                int width, int height);
    /// srcDst = srcDst >> count
    static bool RShiftC_16s_C1IR(unsigned int count, short* srcDst, int srcDstStep, int width, int height);
    /// dst = src >> count
    static bool RShiftC_32s_C1R(const int* src, int srcStep, unsigned int count, int* dst, int dstStep,
                                int width, int height);
    /// srcDst = srcDst >> count
    static bool RShiftC_32s_C1IR(unsigned int count, int* srcDst, int srcDstStep, int width, int height);

    // --------------------------------------------------------------------------------------------
    // Comparison
    //
    // Masks of one byte per pixel: 255 where the relation holds, in every channel where there are several, and 0
    // elsewhere. The first source is the left operand. With constants the image is the left operand; those of
    // three and four channels are arrays, one value for each channel in order.
    //
    // Floats compare exactly and by IEEE 754: -0 equals +0, and a NaN gives 0 in every relation.
    //
    // Checks: null pointer (an array of constants included), a step below 1, width or height below 1.

    /// dst = 255 where src1 < src2, else 0
    static bool CompareLess_8u_C1(const unsigned char* src1, int src1Step, const unsigned char* src2,
                                  int src2Step, unsigned char* dst, int dstStep, int width, int height);
    /// dst = 255 where src1 <= src2, else 0
    static bool CompareLessEq_8u_C1(const unsigned char* src1, int src1Step, const unsigned char* src2,
                                    int src2Step, unsigned char* dst, int dstStep, int width, int height);
    /// dst = 255 where src1 == src2, else 0
    static bool CompareEq_8u_C1(const unsigned char* src1, int src1Step, const unsigned char* src2,
                                int src2Step, unsigned char* dst, int dstStep, int width, int height);
    /// dst = 255 where src1 >= src2, else 0
    static bool CompareGreaterEq_8u_C1(const unsigned char* src1, int src1Step, const unsigned char* src2,
                                       int src2Step, unsigned char* dst, int dstStep, int width,
                                       int height);
    /// dst = 255 where src1 > src2, else 0
    static bool CompareGreater_8u_C1(const unsigned char* src1, int src1Step, const unsigned char* src2,
                                     int src2Step, unsigned char* dst, int dstStep, int width, int height);
    /// dst = 255 where src1 < src2 in every channel, else 0
    static bool CompareLess_8u_C3(const unsigned char* src1, int src1Step, const unsigned char* src2,
                                  int src2Step, unsigned char* dst, int dstStep, int width, int height);
    /// dst = 255 where src1 <= src2 in every channel, else 0
    static bool CompareLessEq_8u_C3(const unsigned char* src1, int src1Step, const unsigned char* src2,
                                    int src2Step, unsigned char* dst, int dstStep, int width, int height);
    /// dst = 255 where src1 == src2 in every channel, else 0
    static bool CompareEq_8u_C3(const unsigned char* src1, int src1Step, const unsigned char* src2,
                                int src2Step, unsigned char* dst, int dstStep, int width, int height);
    /// dst = 255 where src1 >= src2 in every channel, else 0
    static bool CompareGreaterEq_8u_C3(const unsigned char* src1, int src1Step, const unsigned char* src2,
                                       int src2Step, unsigned char* dst, int dstStep, int width,
                                       int height);
    /// dst = 255 where src1 > src2 in every channel, else 0
    static bool CompareGreater_8u_C3(const unsigned char* src1, int src1Step, const unsigned char* src2,
                                     int src2Step, unsigned char* dst, int dstStep, int width, int height);
    /// dst = 255 where src1 < src2 in every channel, else 0
    static bool CompareLess_8u_C4(const unsigned char* src1, int src1Step, const unsigned char* src2,
                                  int src2Step, unsigned char* dst, int dstStep, int width, int height);
    /// dst = 255 where src1 <= src2 in every channel, else 0
    static bool CompareLessEq_8u_C4(const unsigned char* src1, int src1Step, const unsigned char* src2,
                                    int src2Step, unsigned char* dst, int dstStep, int width, int height);
    /// dst = 255 where src1 == src2 in every channel, else 0
    static bool CompareEq_8u_C4(const unsigned char* src1, int src1Step, const unsigned char* src2,
                                int src2Step, unsigned char* dst, int dstStep, int width, int height);
    /// dst = 255 where src1 >= src2 in every channel, else 0
    static bool CompareGreaterEq_8u_C4(const unsigned char* src1, int src1Step, const unsigned char* src2,
                                       int src2Step, unsigned char* dst, int dstStep, int width,
                                       int height);
    /// dst = 255 where src1 > src2 in every channel, else 0
    static bool CompareGreater_8u_C4(const unsigned char* src1, int src1Step, const unsigned char* src2,
                                     int src2Step, unsigned char* dst, int dstStep, int width, int height);
    /// dst = 255 where src1 < src2, else 0
    static bool CompareLess_16u_C1(const unsigned short* src1, int src1Step, const unsigned short* src2,
                                   int src2Step, unsigned char* dst, int dstStep, int width, int height);
    /// dst = 255 where src1 <= src2, else 0
    static bool CompareLessEq_16u_C1(const unsigned short* src1, int src1Step, const unsigned short* src2,
                                     int src2Step, unsigned char* dst, int dstStep, int width, int height);
    /// dst = 255 where src1 == src2, else 0
    static bool CompareEq_16u_C1(const unsigned short* src1, int src1Step, const unsigned short* src2,
                                 int src2Step, unsigned char* dst, int dstStep, int width, int height);
    /// dst = 255 where src1 >= src2, else 0
    static bool CompareGreaterEq_16u_C1(const unsigned short* src1, int src1Step,
                                        const unsigned short* src2, int src2Step, unsigned char* dst,
                                        int dstStep, int width, int height);
    /// dst = 255 where src1 > src2, else 0
    static bool CompareGreater_16u_C1(const unsigned short* src1, int src1Step, const unsigned short* src2,
                                      int src2Step, unsigned char* dst, int dstStep, int width,
                                      int height);
    /// dst = 255 where src1 < src2, else 0
    static bool CompareLess_16s_C1(const short* src1, int src1Step, const short* src2, int src2Step,
                                   unsigned char* dst, int dstStep, int width, int height);
    /// dst = 255 where src1 <= src2, else 0
    static bool CompareLessEq_16s_C1(const short* src1, int src1Step, const short* src2, int src2Step,
                                     unsigned char* dst, int dstStep, int width, int height);
    /// dst = 255 where src1 == src2, else 0
    static bool CompareEq_16s_C1(const short* src1, int src1Step, const short* src2, int src2Step,
                                 unsigned char* dst, int dstStep, int width, int height);
    /// dst = 255 where src1 >= src2, else 0
    static bool CompareGreaterEq_16s_C1(const short* src1, int src1Step, const short* src2, int src2Step,
                                        unsigned char* dst, int dstStep, int width, int height);
    /// dst = 255 where src1 > src2, else 0
    static bool CompareGreater_16s_C1(const short* src1, int src1Step, const short* src2, int src2Step,
                                      unsigned char* dst, int dstStep, int width, int height);
    /// dst = 255 where src1 < src2, else 0
    static bool CompareLess_32f_C1(const float* src1, int src1Step, const float* src2, int src2Step,
                                   unsigned char* dst, int dstStep, int width, int height);
    /// dst = 255 where src1 <= src2, else 0
    static bool CompareLessEq_32f_C1(const float* src1, int src1Step, const float* src2, int src2Step,
                                     unsigned char* dst, int dstStep, int width, int height);
    /// dst = 255 where src1 == src2, else 0
    static bool CompareEq_32f_C1(const float* src1, int src1Step, const float* src2, int src2Step,
                                 unsigned char* dst, int dstStep, int width, int height);
    /// dst = 255 where src1 >= src2, else 0
    static bool CompareGreaterEq_32f_C1(const float* src1, int src1Step, const float* src2, int src2Step,
                                        unsigned char* dst, int dstStep, int width, int height);
    /// dst = 255 where src1 > src2, else 0
    static bool CompareGreater_32f_C1(const float* src1, int src1Step, const float* src2, int src2Step,
                                      unsigned char* dst, int dstStep, int width, int height);
    /// dst = 255 where src1 < src2 in every channel, else 0
    static bool CompareLess_32f_C3(const float* src1, int src1Step, const float* src2, int src2Step,
                                   unsigned char* dst, int dstStep, int width, int height);
    /// dst = 255 where src1 <= src2 in every channel, else 0
    static bool CompareLessEq_32f_C3(const float* src1, int src1Step, const float* src2, int src2Step,
                                     unsigned char* dst, int dstStep, int width, int height);
    /// dst = 255 where src1 == src2 in every channel, else 0
    static bool CompareEq_32f_C3(const float* src1, int src1Step, const float* src2, int src2Step,
                                 unsigned char* dst, int dstStep, int width, int height);
    /// dst = 255 where src1 >= src2 in every channel, else 0
    static bool CompareGreaterEq_32f_C3(const float* src1, int src1Step, const float* src2, int src2Step,
                                        unsigned char* dst, int dstStep, int width, int height);
    /// dst = 255 where src1 > src2 in every channel, else 0
    static bool CompareGreater_32f_C3(const float* src1, int src1Step, const float* src2, int src2Step,
                                      unsigned char* dst, int dstStep, int width, int height);
    /// dst = 255 where src < value, else 0
    static bool CompareCLess_8u_C1R(const unsigned char* src, int srcStep, unsigned char value,
                                    unsigned char* dst, int dstStep, int width, int height);
    /// dst = 255 where src <= value, else 0
    static bool CompareCLessEq_8u_C1R(const unsigned char* src, int srcStep, unsigned char value,
                                      unsigned char* dst, int dstStep, int width, int height);
    /// dst = 255 where src == value, else 0
    static bool CompareCEq_8u_C1R(const unsigned char* src, int srcStep, unsigned char value,
                                  unsigned char* dst, int dstStep, int width, int height);
    /// dst = 255 where src >= value, else 0
    static bool CompareCGreaterEq_8u_C1R(const unsigned char* src, int srcStep, unsigned char value,
                                         unsigned char* dst, int dstStep, int width, int height);
    /// dst = 255 where src > value, else 0
    static bool CompareCGreater_8u_C1R(const unsigned char* src, int srcStep, unsigned char value,
                                       unsigned char* dst, int dstStep, int width, int height);
    /// dst = 255 where src < values in every channel, else 0
    static bool CompareCLess_8u_C3R(const unsigned char* src, int srcStep, const unsigned char* values,
                                    unsigned char* dst, int dstStep, int width, int height);
    /// dst = 255 where src <= values in every channel, else 0
    static bool CompareCLessEq_8u_C3R(const unsigned char* src, int srcStep, const unsigned char* values,
                                      unsigned char* dst, int dstStep, int width, int height);
    /// dst = 255 where src == values in every channel, else 0
    static bool CompareCEq_8u_C3R(const unsigned char* src, int srcStep, const unsigned char* values,
                                  unsigned char* dst, int dstStep, int width, int height);
    /// dst = 255 where src >= values in every channel, else 0
    static bool CompareCGreaterEq_8u_C3R(const unsigned char* src, int srcStep,
                                         const unsigned char* values, unsigned char* dst, int dstStep,
                                         int width, int height);
    /// dst = 255 where src > values in every channel, else 0
    static bool CompareCGreater_8u_C3R(const unsigned char* src, int srcStep, const unsigned char* values,
                                       unsigned char* dst, int dstStep, int width, int height);
    /// dst = 255 where src < values in every channel, else 0
    static bool CompareCLess_8u_C4R(const unsigned char* src, int srcStep, const unsigned char* values,
                                    unsigned char* dst, int dstStep, int width, int height);
    /// dst = 255 where src <= values in every channel, else 0
    static bool CompareCLessEq_8u_C4R(const unsigned char* src, int srcStep, const unsigned char* values,
                                      unsigned char* dst, int dstStep, int width, int height);
    /// dst = 255 where src == values in every channel, else 0
    static bool CompareCEq_8u_C4R(const unsigned char* src, int srcStep, const unsigned char* values,
                                  unsigned char* dst, int dstStep, int width, int height);
    /// dst = 255 where src >= values in every channel, else 0
    static bool CompareCGreaterEq_8u_C4R(const unsigned char* src, int srcStep,
                                         const unsigned char* values, unsigned char* dst, int dstStep,
                                         int width, int height);
    /// dst = 255 where src > values in every channel, else 0
    static bool CompareCGreater_8u_C4R(const unsigned char* src, int srcStep, const unsigned char* values,
                                       unsigned char* dst, int dstStep, int width, int height);
    /// dst = 255 where src < value, else 0
    static bool CompareCLess_16u_C1R(const unsigned short* src, int srcStep, unsigned short value,
                                     unsigned char* dst, int dstStep, int width, int height);
    /// dst = 255 where src <= value, else 0
    static bool CompareCLessEq_16u_C1R(const unsigned short* src, int srcStep, unsigned short value,
                                       unsigned char* dst, int dstStep, int width, int height);
    /// dst = 255 where src == value, else 0
    static bool CompareCEq_16u_C1R(const unsigned short* src, int srcStep, unsigned short value,
                                   unsigned char* dst, int dstStep, int width, int height);
    /// dst = 255 where src >= value, else 0
    static bool CompareCGreaterEq_16u_C1R(const unsigned short* src, int srcStep, unsigned short value,
                                          unsigned char* dst, int dstStep, int width, int height);
    /// dst = 255 where src > value, else 0
    static bool CompareCGreater_16u_C1R(const unsigned short* src, int srcStep, unsigned short value,
                                        unsigned char* dst, int dstStep, int width, int height);
    /// dst = 255 where src < value, else 0
    static bool CompareCLess_16s_C1R(const short* src, int srcStep, short value, unsigned char* dst,
                                     int dstStep, int width, int height);
    /// dst = 255 where src <= value, else 0
    static bool CompareCLessEq_16s_C1R(const short* src, int srcStep, short value, unsigned char* dst,
                                       int dstStep, int width, int height);
    /// dst = 255 where src == value, else 0
    static bool CompareCEq_16s_C1R(const short* src, int srcStep, short value, unsigned char* dst,
                                   int dstStep, int width, int height);
    /// dst = 255 where src >= value, else 0
    static bool CompareCGreaterEq_16s_C1R(const short* src, int srcStep, short value, unsigned char* dst,
                                          int dstStep, int width, int height);
    /// dst = 255 where src > value, else 0
    static bool CompareCGreater_16s_C1R(const short* src, int srcStep, short value, unsigned char* dst,
                                        int dstStep, int width, int height);
    /// dst = 255 where src < value, else 0
    static bool CompareCLess_32f_C1R(const float* src, int srcStep, float value, unsigned char* dst,
                                     int dstStep, int width, int height);
    /// dst = 255 where src <= value, else 0
    static bool CompareCLessEq_32f_C1R(const float* src, int srcStep, float value, unsigned char* dst,
                                       int dstStep, int width, int height);
    /// dst = 255 where src == value, else 0
    static bool CompareCEq_32f_C1R(const float* src, int srcStep, float value, unsigned char* dst,
                                   int dstStep, int width, int height);
    /// dst = 255 where src >= value, else 0
    static bool CompareCGreaterEq_32f_C1R(const float* src, int srcStep, float value, unsigned char* dst,
                                          int dstStep, int width, int height);
    /// dst = 255 where src > value, else 0
    static bool CompareCGreater_32f_C1R(const float* src, int srcStep, float value, unsigned char* dst,
                                        int dstStep, int width, int height);
    /// dst = 255 where src < values in every channel, else 0
    static bool CompareCLess_32f_C3R(const float* src, int srcStep, const float* values,
                                     unsigned char* dst, int dstStep, int width, int height);
    /// dst = 255 where src <= values in every channel, else 0
    static bool CompareCLessEq_32f_C3R(const float* src, int srcStep, const float* values,
                                       unsigned char* dst, int dstStep, int width, int height);
    /// dst = 255 where src == values in every channel, else 0
    static bool CompareCEq_32f_C3R(const float* src, int srcStep, const float* values, unsigned char* dst,
                                   int dstStep, int width, int height);
    /// dst = 255 where src >= values in every channel, else 0
    static bool CompareCGreaterEq_32f_C3R(const float* src, int srcStep, const float* values,
                                          unsigned char* dst, int dstStep, int width, int height);
    /// dst = 255 where src > values in every channel, else 0
    static bool CompareCGreater_32f_C3R(const float* src, int srcStep, const float* values,
                                        unsigned char* dst, int dstStep, int width, int height);

    // --------------------------------------------------------------------------------------------
    // Thresholding
    //
    // Pixels on one side of a threshold are replaced by it, or by a value; those equal to it never are.
    // Thresholds and values follow width and height; those of three channels are arrays, one for each channel
    // in order.
    //
    // Floats are compared by their bits. For numbers this is the usual order, except that -0 is less than +0.
    // A NaN counts by its sign bit: above every threshold where it is clear, below every one where it is set.
    // Pixels that are kept, and values that replace them, are moved bit by bit.
    //
    // Only less and greater are supported. The methods for less or equal, equal, and greater or equal exist, but
    // return false for any arguments and write nothing.
    //
    // Checks: the operator, null pointer (an array of thresholds or values included), width or height below 1,
    // a step below 1; with two thresholds also a lower one above the upper one in any channel (as numbers).

    /// dst = src < threshold ? threshold : src
    static bool ThresholdLess_32f_C1R(const float* src, int srcStep, float* dst, int dstStep, int width,
                                      int height, float threshold);
    /// srcDst = srcDst < threshold ? threshold : srcDst
    static bool ThresholdLess_32f_C1IR(float* srcDst, int srcDstStep, int width, int height,
                                       float threshold);
    /// dst = src < thresholds ? thresholds : src, channel by channel
    static bool ThresholdLess_32f_C3R(const float* src, int srcStep, float* dst, int dstStep, int width,
                                      int height, const float* thresholds);
    /// srcDst = srcDst < thresholds ? thresholds : srcDst, channel by channel
    static bool ThresholdLess_32f_C3IR(float* srcDst, int srcDstStep, int width, int height,
                                       const float* thresholds);
    /// dst = src < threshold ? value : src
    static bool ThresholdLess_Val_32f_C1R(const float* src, int srcStep, float* dst, int dstStep,
                                          int width, int height, float threshold, float value);
    /// dst = src < threshold ? value : src
    static bool ThresholdLess_Val_8u_C1R(const unsigned char* src, int srcStep, unsigned char* dst,
                                         int dstStep, int width, int height, unsigned char threshold,
                                         unsigned char value);
    /// srcDst = srcDst < threshold ? value : srcDst
    static bool ThresholdLess_Val_8u_C1IR(unsigned char* srcDst, int srcDstStep, int width, int height,
                                          unsigned char threshold, unsigned char value);
    /// Refused: false, nothing written
    static bool ThresholdLessEq_32f_C1R(const float* src, int srcStep, float* dst, int dstStep, int width,
                                        int height, float threshold);
    /// Refused: false, nothing written
    static bool ThresholdLessEq_32f_C1IR(float* srcDst, int srcDstStep, int width, int height,
                                         float threshold);
    /// Refused: false, nothing written
    static bool ThresholdLessEq_32f_C3R(const float* src, int srcStep, float* dst, int dstStep, int width,
                                        int height, const float* thresholds);
    /// Refused: false, nothing written
    static bool ThresholdLessEq_32f_C3IR(float* srcDst, int srcDstStep, int width, int height,
                                         const float* thresholds);
    /// Refused: false, nothing written
    static bool ThresholdLessEq_Val_32f_C1R(const float* src, int srcStep, float* dst, int dstStep,
                                            int width, int height, float threshold, float value);
    /// Refused: false, nothing written
    static bool ThresholdLessEq_Val_8u_C1R(const unsigned char* src, int srcStep, unsigned char* dst,
                                           int dstStep, int width, int height, unsigned char threshold,
                                           unsigned char value);
    /// Refused: false, nothing written
    static bool ThresholdLessEq_Val_8u_C1IR(unsigned char* srcDst, int srcDstStep, int width, int height,
                                            unsigned char threshold, unsigned char value);
    /// Refused: false, nothing written
    static bool ThresholdEq_32f_C1R(const float* src, int srcStep, float* dst, int dstStep, int width,
                                    int height, float threshold);
    /// Refused: false, nothing written
    static bool ThresholdEq_32f_C1IR(float* srcDst, int srcDstStep, int width, int height,
                                     float threshold);
    /// Refused: false, nothing written
    static bool ThresholdEq_32f_C3R(const float* src, int srcStep, float* dst, int dstStep, int width,
                                    int height, const float* thresholds);
    /// Refused: false, nothing written
    static bool ThresholdEq_32f_C3IR(float* srcDst, int srcDstStep, int width, int height,
                                     const float* thresholds);
    /// Refused: false, nothing written
    static bool ThresholdEq_Val_32f_C1R(const float* src, int srcStep, float* dst, int dstStep, int width,
                                        int height, float threshold, float value);
    /// Refused: false, nothing written
    static bool ThresholdEq_Val_8u_C1R(const unsigned char* src, int srcStep, unsigned char* dst,
                                       int dstStep, int width, int height, unsigned char threshold,
                                       unsigned char value);
    /// Refused: false, nothing written
    static bool ThresholdEq_Val_8u_C1IR(unsigned char* srcDst, int srcDstStep, int width, int height,
                                        unsigned char threshold, unsigned char value);
    /// Refused: false, nothing written
    static bool ThresholdGreaterEq_32f_C1R(const float* src, int srcStep, float* dst, int dstStep,
                                           int width, int height, float threshold);
    /// Refused: false, nothing written
    static bool ThresholdGreaterEq_32f_C1IR(float* srcDst, int srcDstStep, int width, int height,
                                            float threshold);
    /// Refused: false, nothing written
    static bool ThresholdGreaterEq_32f_C3R(const float* src, int srcStep, float* dst, int dstStep,
                                           int width, int height, const float* thresholds);
    /// Refused: false, nothing written
    static bool ThresholdGreaterEq_32f_C3IR(float* srcDst, int srcDstStep, int width, int height,
                                            const float* thresholds);
    /// Refused: false, nothing written
    static bool ThresholdGreaterEq_Val_32f_C1R(const float* src, int srcStep, float* dst, int dstStep,
                                               int width, int height, float threshold, float value);
    /// Refused: false, nothing written
    static bool ThresholdGreaterEq_Val_8u_C1R(const unsigned char* src, int srcStep, unsigned char* dst,
                                              int dstStep, int width, int height, unsigned char threshold,
                                              unsigned char value);
    /// Refused: false, nothing written
    static bool ThresholdGreaterEq_Val_8u_C1IR(unsigned char* srcDst, int srcDstStep, int width,
                                               int height, unsigned char threshold, unsigned char value);
    /// dst = src > threshold ? threshold : src
    static bool ThresholdGreater_32f_C1R(const float* src, int srcStep, float* dst, int dstStep, int width,
                                         int height, float threshold);
    /// srcDst = srcDst > threshold ? threshold : srcDst
    static bool ThresholdGreater_32f_C1IR(float* srcDst, int srcDstStep, int width, int height,
                                          float threshold);
    /// dst = src > thresholds ? thresholds : src, channel by channel
    static bool ThresholdGreater_32f_C3R(const float* src, int srcStep, float* dst, int dstStep, int width,
                                         int height, const float* thresholds);
    /// srcDst = srcDst > thresholds ? thresholds : srcDst, channel by channel
    static bool ThresholdGreater_32f_C3IR(float* srcDst, int srcDstStep, int width, int height,
                                          const float* thresholds);
    /// dst = src > threshold ? value : src
    static bool ThresholdGreater_Val_32f_C1R(const float* src, int srcStep, float* dst, int dstStep,
                                             int width, int height, float threshold, float value);
    /// dst = src > threshold ? value : src
    static bool ThresholdGreater_Val_8u_C1R(const unsigned char* src, int srcStep, unsigned char* dst,
                                            int dstStep, int width, int height, unsigned char threshold,
                                            unsigned char value);
    /// srcDst = srcDst > threshold ? value : srcDst
    static bool ThresholdGreater_Val_8u_C1IR(unsigned char* srcDst, int srcDstStep, int width, int height,
                                             unsigned char threshold, unsigned char value);
    /// dst = src > threshold ? threshold : src
    static bool Threshold_GT_32f_C1(const float* src, int srcStep, float* dst, int dstStep, int width,
                                    int height, float threshold);
    /// srcDst = srcDst > threshold ? threshold : srcDst
    static bool Threshold_GT_32f_C1I(float* srcDst, int srcDstStep, int width, int height,
                                     float threshold);
    /// dst = src < threshold ? threshold : src
    static bool Threshold_LT_32f_C1(const float* src, int srcStep, float* dst, int dstStep, int width,
                                    int height, float threshold);
    /// srcDst = srcDst < threshold ? threshold : srcDst
    static bool Threshold_LT_32f_C1I(float* srcDst, int srcDstStep, int width, int height,
                                     float threshold);
    /// dst = src > threshold ? value : src
    static bool Threshold_GTVal_32f_C1(const float* src, int srcStep, float* dst, int dstStep, int width,
                                       int height, float threshold, float value);
    /// srcDst = srcDst > threshold ? value : srcDst
    static bool Threshold_GTVal_32f_C1I(float* srcDst, int srcDstStep, int width, int height,
                                        float threshold, float value);
    /// dst = src > threshold ? value : src
    static bool Threshold_GTVal_16u_C1(const unsigned short* src, int srcStep, unsigned short* dst,
                                       int dstStep, int width, int height, unsigned short threshold,
                                       unsigned short value);
    /// dst = src < threshold ? value : src
    static bool Threshold_LTVal_32f_C1(const float* src, int srcStep, float* dst, int dstStep, int width,
                                       int height, float threshold, float value);
    /// srcDst = srcDst < threshold ? value : srcDst
    static bool Threshold_LTVal_32f_C1I(float* srcDst, int srcDstStep, int width, int height,
                                        float threshold, float value);
    /// dst = src > thresholdGT ? valueGT : src < thresholdLT ? valueLT : src
    static bool Threshold_LTValGTVal_32f_C1R(const float* src, int srcStep, float* dst, int dstStep,
                                             int width, int height, float thresholdLT, float valueLT,
                                             float thresholdGT, float valueGT);
    /// srcDst = srcDst > thresholdGT ? valueGT : srcDst < thresholdLT ? valueLT : srcDst
    static bool Threshold_LTValGTVal_32f_C1IR(float* srcDst, int srcDstStep, int width, int height,
                                              float thresholdLT, float valueLT, float thresholdGT,
                                              float valueGT);
    /// dst = src > thresholdGT ? valueGT : src < thresholdLT ? valueLT : src, channel by channel
    static bool Threshold_LTValGTVal_32f_C3R(const float* src, int srcStep, float* dst, int dstStep,
                                             int width, int height, const float* thresholdLT,
                                             const float* valueLT, const float* thresholdGT,
                                             const float* valueGT);
    /// srcDst = srcDst > thresholdGT ? valueGT : srcDst < thresholdLT ? valueLT : srcDst, channel by channel
    static bool Threshold_LTValGTVal_32f_C3IR(float* srcDst, int srcDstStep, int width, int height,
                                              const float* thresholdLT, const float* valueLT,
                                              const float* thresholdGT, const float* valueGT);

    // --------------------------------------------------------------------------------------------
    // Border extension
    //
    // Copies src into the larger dst, `top` rows down and `left` columns to the right, and fills what remains
    // around it: with a constant, or with the nearest pixel of the edge. The borders on the right and at the
    // bottom are what the sizes leave. Pixels move as a whole, and bit by bit. Constants of three and four
    // channels are arrays, one value for each channel in order.
    //
    // In place, the source is the top left part of the buffer, and the result begins at the same first pixel.
    // The other forms take src == dst as well, with the same result as from a copy of src; no other overlap is
    // supported. Both need a temporary, and return false and write nothing when there is no memory for it.
    //
    // Checks: null pointer (an array of constants included), a step below 1, then false for: a size below 1, top
    // or left below 0, and dst narrower than left + srcWidth or lower than top + srcHeight.

    /// dst(x, y) = src(x - left, y - top), or value outside src
    static bool CopyConstBorder_8u_C1(const unsigned char* src, int srcStep, int srcWidth, int srcHeight,
                                      unsigned char* dst, int dstStep, int dstWidth, int dstHeight,
                                      int top, int left, unsigned char value);
    /// dst(x, y) = src(x - left, y - top), or values outside src
    static bool CopyConstBorder_8u_C3(const unsigned char* src, int srcStep, int srcWidth, int srcHeight,
                                      unsigned char* dst, int dstStep, int dstWidth, int dstHeight,
                                      int top, int left, const unsigned char* values);
    /// dst(x, y) = src(x - left, y - top), or values outside src
    static bool CopyConstBorder_8u_C4(const unsigned char* src, int srcStep, int srcWidth, int srcHeight,
                                      unsigned char* dst, int dstStep, int dstWidth, int dstHeight,
                                      int top, int left, const unsigned char* values);
    /// dst(x, y) = src(x - left, y - top), or value outside src
    static bool CopyConstBorder_16u_C1(const unsigned short* src, int srcStep, int srcWidth, int srcHeight,
                                       unsigned short* dst, int dstStep, int dstWidth, int dstHeight,
                                       int top, int left, unsigned short value);
    /// dst(x, y) = src(x - left, y - top), or value outside src
    static bool CopyConstBorder_32f_C1(const float* src, int srcStep, int srcWidth, int srcHeight,
                                       float* dst, int dstStep, int dstWidth, int dstHeight, int top,
                                       int left, float value);
    /// dst(x, y) = src(x - left, y - top), or values outside src
    static bool CopyConstBorder_32f_C3(const float* src, int srcStep, int srcWidth, int srcHeight,
                                       float* dst, int dstStep, int dstWidth, int dstHeight, int top,
                                       int left, const float* values);
    /// dst(x, y) = the pixel of src nearest to (x - left, y - top)
    static bool CopyReplicateBorder_8u_C1(const unsigned char* src, int srcStep, int srcWidth,
                                          int srcHeight, unsigned char* dst, int dstStep, int dstWidth,
                                          int dstHeight, int top, int left);
    /// dst(x, y) = the pixel of src nearest to (x - left, y - top)
    static bool CopyReplicateBorder_8u_C3(const unsigned char* src, int srcStep, int srcWidth,
                                          int srcHeight, unsigned char* dst, int dstStep, int dstWidth,
                                          int dstHeight, int top, int left);
    /// dst(x, y) = the pixel of src nearest to (x - left, y - top)
    static bool CopyReplicateBorder_8u_C4(const unsigned char* src, int srcStep, int srcWidth,
                                          int srcHeight, unsigned char* dst, int dstStep, int dstWidth,
                                          int dstHeight, int top, int left);
    /// dst(x, y) = the pixel of src nearest to (x - left, y - top)
    static bool CopyReplicateBorder_16u_C1(const unsigned short* src, int srcStep, int srcWidth,
                                           int srcHeight, unsigned short* dst, int dstStep, int dstWidth,
                                           int dstHeight, int top, int left);
    /// dst(x, y) = the pixel of src nearest to (x - left, y - top)
    static bool CopyReplicateBorder_32f_C1(const float* src, int srcStep, int srcWidth, int srcHeight,
                                           float* dst, int dstStep, int dstWidth, int dstHeight, int top,
                                           int left);
    /// dst(x, y) = the pixel of src nearest to (x - left, y - top)
    static bool CopyReplicateBorder_32f_C3(const float* src, int srcStep, int srcWidth, int srcHeight,
                                           float* dst, int dstStep, int dstWidth, int dstHeight, int top,
                                           int left);
    /// srcDst(x, y) = the pixel nearest to (x - left, y - top) of what srcDst held
    static bool CopyReplicateBorder_8u_C1I(unsigned char* srcDst, int srcDstStep, int srcWidth,
                                           int srcHeight, int dstWidth, int dstHeight, int top, int left);
    /// srcDst(x, y) = the pixel nearest to (x - left, y - top) of what srcDst held
    static bool CopyReplicateBorder_16u_C1I(unsigned short* srcDst, int srcDstStep, int srcWidth,
                                            int srcHeight, int dstWidth, int dstHeight, int top, int left);
    /// srcDst(x, y) = the pixel nearest to (x - left, y - top) of what srcDst held
    static bool CopyReplicateBorder_32f_C1I(float* srcDst, int srcDstStep, int srcWidth, int srcHeight,
                                            int dstWidth, int dstHeight, int top, int left);

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
