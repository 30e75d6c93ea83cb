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
/// **Names.** Operation, pixel type, layout, modifiers. Types: 8u, 16u (unsigned), 16s, 32s (signed), 32f
/// (float), 32fc (Complex32f). Layouts: C1, C3, C4 (that many channels), AC4 (four channels of which the
/// fourth, alpha, is left untouched in the destination). A trailing I works in place. A trailing R stands for
/// "region" and changes nothing: with or without it, a method works on the region that its pointers, steps and
/// sizes describe. Others: C after the operation takes a constant (AddC), _Val replaces by a value of the
/// caller's (thresholds), NN takes the nearest neighbour (resizing), SS says that source and destination both
/// lie at fixed distances in bytes, their strides (Copy_ma_32f_SS); Rev, in SignalProcessingWrapper, exchanges
/// the operands: the constant is the left one.
///
/// **Results.** A method returns true exactly when the operation completed without an error and
/// without a warning. An error (a null pointer, a size below 1, ...) writes nothing. A warning (a zero
/// divisor, ...) also gives false, but the destination has been written completely. Methods that
/// depart from this say so. Each family lists its checks in the order in which they run.
///
/// **Aliasing.** The destination of an operation on single pixels (copy, set, conversion, channel order,
/// arithmetic, bitwise operations, comparison, thresholding) may share memory with its sources in any way. Its
/// rows are made from the top, one after the other, each as if through a temporary: a row is computed
/// from what the rows before it have left. So a copy to one row further up scrolls, and one to one row further
/// down repeats the first row. Source and destination that are one image, same pointer and same step, or whose
/// rows lie beside each other, are as good as separate ones; others take one row of memory from the heap
/// and return false, with nothing written, when there is none. Arrays of constants are read once, before anything
/// is written, and may lie in an image. Resizing, filters and statistics are described below.
///
/// **In place.** Methods that end in I take a temporary buffer from the heap. When memory runs out, or for
/// a region whose rows, each padded to 64 bytes, exceed 2^31 - 1 bytes, they return false and write nothing.
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
    /// @name Buffers
    ///
    /// Rows of `width` pixels, each padded to a multiple of 64 bytes, on a 64-byte boundary; `*step` receives
    /// the padded row size in bytes. The memory is not cleared. Null for a size below 1 (`*step` is then 0),
    /// for a null `step`, and when memory runs out. Sizes are 32-bit products that nothing checks: stay
    /// below 2^31 bytes. Release with Free().
    /// @{

    /// Allocates an image of 1 byte per pixel.
    static unsigned char* ORVANE_CALL Malloc_8u_C1(int width, int height, int* step);
    /// Allocates an image of 3 bytes per pixel.
    static unsigned char* ORVANE_CALL Malloc_8u_C3(int width, int height, int* step);
    /// Allocates an image of 4 bytes per pixel.
    static unsigned char* ORVANE_CALL Malloc_8u_C4(int width, int height, int* step);
    /// Allocates an image of 4 bytes per pixel.
    static unsigned char* ORVANE_CALL Malloc_8u_AC4(int width, int height, int* step);
    /// Allocates an image of 2 bytes per pixel.
    static unsigned short* ORVANE_CALL Malloc_16u_C1(int width, int height, int* step);
    /// Allocates an image of 2 bytes per pixel.
    static short* ORVANE_CALL Malloc_16s_C1(int width, int height, int* step);
    /// Allocates an image of 4 bytes per pixel.
    static int* ORVANE_CALL Malloc_32s_C1(int width, int height, int* step);
    /// Allocates an image of 4 bytes per pixel.
    static float* ORVANE_CALL Malloc_32f_C1(int width, int height, int* step);
    /// Allocates an image of 12 bytes per pixel.
    static float* ORVANE_CALL Malloc_32f_C3(int width, int height, int* step);
    /// Allocates an image of 16 bytes per pixel.
    static float* ORVANE_CALL Malloc_32f_C4(int width, int height, int* step);
    /// Allocates an image of 8 bytes per pixel.
    static Complex32f* ORVANE_CALL Malloc_32fc_C1(int width, int height, int* step);
    /// Releases what a Malloc method returned; does nothing for null.
    static void ORVANE_CALL Free(void* buffer);
    /// @}

    // --------------------------------------------------------------------------------------------
    /// @name Copy and set
    ///
    /// Bits are moved as they are, also those of float NaNs.
    ///
    /// Checks: null pointer, width or height below 1. Steps are not checked.
    /// @{

    /// dst = src
    static bool ORVANE_CALL Copy_8u_C1(const unsigned char* src, int srcStep, unsigned char* dst, int dstStep,
                                       int width, int height);
    /// dst = src
    static bool ORVANE_CALL Copy_8u_C3(const unsigned char* src, int srcStep, unsigned char* dst, int dstStep,
                                       int width, int height);
    /// dst = src
    static bool ORVANE_CALL Copy_8u_C4(const unsigned char* src, int srcStep, unsigned char* dst, int dstStep,
                                       int width, int height);
    /// dst = src
    static bool ORVANE_CALL Copy_16u_C1(const unsigned short* src, int srcStep, unsigned short* dst, int dstStep,
                                        int width, int height);
    /// dst = src
    static bool ORVANE_CALL Copy_16s_C1(const short* src, int srcStep, short* dst, int dstStep, int width, int height);
    /// dst = src
    static bool ORVANE_CALL Copy_32s_C1(const int* src, int srcStep, int* dst, int dstStep, int width, int height);
    /// dst = src
    static bool ORVANE_CALL Copy_32f_C1(const float* src, int srcStep, float* dst, int dstStep, int width, int height);
    /// dst = src
    static bool ORVANE_CALL Copy_32f_C3(const float* src, int srcStep, float* dst, int dstStep, int width, int height);
    /// dst = src
    static bool ORVANE_CALL Copy_32f_C4(const float* src, int srcStep, float* dst, int dstStep, int width, int height);
    /// dst = src. Always true; nothing is copied for a null pointer or a size below 1.
    static bool ORVANE_CALL Copy_32fc_C1(const Complex32f* src, int srcStep, Complex32f* dst, int dstStep, int width,
                                         int height);

    /// dst = value
    static bool ORVANE_CALL Set_8u_C1(unsigned char value, unsigned char* dst, int dstStep, int width, int height);
    /// dst = value
    static bool ORVANE_CALL Set_16u_C1(unsigned short value, unsigned short* dst, int dstStep, int width, int height);
    /// dst = value
    static bool ORVANE_CALL Set_16s_C1(short value, short* dst, int dstStep, int width, int height);
    /// dst = value
    static bool ORVANE_CALL Set_32s_C1(int value, int* dst, int dstStep, int width, int height);
    /// dst = value
    static bool ORVANE_CALL Set_32f_C1(float value, float* dst, int dstStep, int width, int height);
    /// dst = values, one for each of the three channels
    static bool ORVANE_CALL Set_8u_C3(const unsigned char* values, unsigned char* dst, int dstStep, int width,
                                      int height);
    /// dst = values, one for each of the four channels
    static bool ORVANE_CALL Set_8u_C4(const unsigned char* values, unsigned char* dst, int dstStep, int width,
                                      int height);
    /// dst = values, one for each of the three channels
    static bool ORVANE_CALL Set_32s_C3(const int* values, int* dst, int dstStep, int width, int height);
    /// dst = values, one for each of the four channels
    static bool ORVANE_CALL Set_32s_C4(const int* values, int* dst, int dstStep, int width, int height);
    /// dst = values, one for each of the three channels
    static bool ORVANE_CALL Set_32f_C3(const float* values, float* dst, int dstStep, int width, int height);
    /// dst = values, one for each of the four channels
    static bool ORVANE_CALL Set_32f_C4(const float* values, float* dst, int dstStep, int width, int height);
    /// @}

    // --------------------------------------------------------------------------------------------
    /// @name Conversion
    ///
    /// To a wider type: exact. Checks: null pointer, width or height below 1.
    /// To a narrower type: the nearest integer, ties to even (0.5 gives 0, 1.5 and 2.5 give 2); values
    /// beyond the range of the destination saturate, a NaN gives 0. Checks: null pointer, width or height
    /// below 1, a step below 1.
    /// @{

    /// dst = src
    static bool ORVANE_CALL Convert_8u16u_C1(const unsigned char* src, int srcStep, unsigned short* dst, int dstStep,
                                             int width, int height);
    /// dst = src
    static bool ORVANE_CALL Convert_8u32f_C1(const unsigned char* src, int srcStep, float* dst, int dstStep, int width,
                                             int height);
    /// dst = src
    static bool ORVANE_CALL Convert_8u32f_C3(const unsigned char* src, int srcStep, float* dst, int dstStep, int width,
                                             int height);
    /// dst = src
    static bool ORVANE_CALL Convert_16u32f_C1(const unsigned short* src, int srcStep, float* dst, int dstStep,
                                              int width, int height);
    /// dst = round(src) in 0 ... 65535
    static bool ORVANE_CALL Convert_32f16u_C1(const float* src, int srcStep, unsigned short* dst, int dstStep,
                                              int width, int height);
    /// dst = round(src) in 0 ... 255
    static bool ORVANE_CALL Convert_32f8u_C3(const float* src, int srcStep, unsigned char* dst, int dstStep, int width,
                                             int height);
    /// @}

    // --------------------------------------------------------------------------------------------
    /// @name Channel order
    ///
    /// Channel k of each pixel receives what channel order[k] held; indices may repeat.
    ///
    /// Checks: null pointer, step below 1, width or height below 1, an index outside the channels (for three
    /// channels index 3 is refused, too). The three-channel form works through a temporary, the four-channel
    /// form directly.
    /// @{

    /// srcDst[k] = srcDst[order[k]], k = 0 ... 2
    static bool ORVANE_CALL SwapChannels_8u_C3IR(unsigned char* srcDst, int srcDstStep, int width, int height,
                                                 const int* order);
    /// srcDst[k] = srcDst[order[k]], k = 0 ... 3
    static bool ORVANE_CALL SwapChannels_8u_C4IR(unsigned char* srcDst, int srcDstStep, int width, int height,
                                                 const int* order);
    /// @}

    // --------------------------------------------------------------------------------------------
    /// @name Transposition and mirroring
    ///
    /// Transposition: width and height are those of the source; the destination has height columns and
    /// width rows. Source and destination may be the same buffer with the same step, in which rows of both shapes
    /// do not overlap; other overlaps transpose to one row of the destination after the other, from the top, each as
    /// if through a temporary. Checks: null pointer, width or height below 1.
    ///
    /// Mirroring, in place. axis 0: top and bottom exchanged; 1: left and right; 2: both. Pixels move as a
    /// whole; the AC4 forms leave every alpha where it is. Checks: null pointer, width or height below 1, an
    /// axis outside 0 ... 2, height below 2 for axes 0 and 2, width below 2 for axes 1 and 2: an image of one
    /// row cannot be turned upside down.
    /// @{

    /// dst(x, y) = src(y, x)
    static bool ORVANE_CALL Transpose_32f_C1R(const float* src, int srcStep, float* dst, int dstStep, int width,
                                              int height);
    /// srcDst mirrored about one of its axes
    static bool ORVANE_CALL Mirror_16u_C1I(unsigned short* srcDst, int srcDstStep, int width, int height, int axis);
    /// srcDst mirrored about one of its axes
    static bool ORVANE_CALL Mirror_8u_C3I(unsigned char* srcDst, int srcDstStep, int width, int height, int axis);
    /// srcDst mirrored about one of its axes
    static bool ORVANE_CALL Mirror_8u_C4I(unsigned char* srcDst, int srcDstStep, int width, int height, int axis);
    /// srcDst with top and bottom exchanged
    static bool ORVANE_CALL MirrorHorizontal_8u_C3I(unsigned char* srcDst, int srcDstStep, int width, int height);
    /// srcDst with top and bottom exchanged, alpha kept
    static bool ORVANE_CALL MirrorHorizontal_8u_AC4IR(unsigned char* srcDst, int srcDstStep, int width, int height);
    /// srcDst with left and right exchanged, alpha kept
    static bool ORVANE_CALL MirrorVertical_8u_AC4IR(unsigned char* srcDst, int srcDstStep, int width, int height);
    /// srcDst with both exchanged, alpha kept
    static bool ORVANE_CALL MirrorBoth_8u_AC4IR(unsigned char* srcDst, int srcDstStep, int width, int height);
    /// @}

    // --------------------------------------------------------------------------------------------
    /// @name Integer arithmetic with scaling
    ///
    /// The exact integer result (for quotients: the exact quotient) is multiplied by 2^-scaleFactor, rounded
    /// to the nearest integer with ties to even, and saturated to the pixel type. Any scale factor is legal.
    /// scaled(x) below stands for that. An unsigned difference below 0 is 0 before it is scaled.
    ///
    /// The second source is the left operand: src2 - src1, src2 / src1; in place, srcDst - src, srcDst / src;
    /// with constants, src - value, src / value. Constants of three and four channels are arrays, one value
    /// for each channel in order.
    ///
    /// Division by zero gives false, but everything is written: over 0, a positive dividend gives the largest
    /// value of the type, a negative one the smallest, and 0 gives 0, at any scale factor.
    ///
    /// Div_16u_C1 and Div_16u_C1I round in fixed point instead: q = floor(65536 src2 / (src1 2^scaleFactor)),
    /// the result is floor((q + 32767 + (2 if bit 16 of q is set, else 0)) / 65536). Exact halves go to the
    /// even neighbour; quotients that lie within 2^-16 of a half may go to either.
    ///
    /// Checks: null pointer (an array of constants included), width or height below 1; then, in Div_8u and
    /// Div_16s of two images, a step below 1.
    ///
    /// Two methods do something else than their names say. Hosts depend on it, and so it stays:
    /// AddC_8u_C1I multiplies, and DivC_16u_C1I subtracts.
    /// @{

    /// dst = scaled(src2 + src1)
    static bool ORVANE_CALL Add_8u_C1(const unsigned char* src1, int src1Step, const unsigned char* src2, int src2Step,
                                      unsigned char* dst, int dstStep, int width, int height, int scaleFactor);
    /// srcDst = scaled(srcDst + src)
    static bool ORVANE_CALL Add_8u_C1I(const unsigned char* src, int srcStep, unsigned char* srcDst, int srcDstStep,
                                       int width, int height, int scaleFactor);
    /// dst = scaled(src2 + src1)
    static bool ORVANE_CALL Add_8u_C3(const unsigned char* src1, int src1Step, const unsigned char* src2, int src2Step,
                                      unsigned char* dst, int dstStep, int width, int height, int scaleFactor);
    /// srcDst = scaled(srcDst + src)
    static bool ORVANE_CALL Add_8u_C3I(const unsigned char* src, int srcStep, unsigned char* srcDst, int srcDstStep,
                                       int width, int height, int scaleFactor);
    /// dst = scaled(src2 + src1)
    static bool ORVANE_CALL Add_8u_C4(const unsigned char* src1, int src1Step, const unsigned char* src2, int src2Step,
                                      unsigned char* dst, int dstStep, int width, int height, int scaleFactor);
    /// srcDst = scaled(srcDst + src)
    static bool ORVANE_CALL Add_8u_C4I(const unsigned char* src, int srcStep, unsigned char* srcDst, int srcDstStep,
                                       int width, int height, int scaleFactor);
    /// dst = scaled(src2 + src1)
    static bool ORVANE_CALL Add_16u_C1(const unsigned short* src1, int src1Step, const unsigned short* src2,
                                       int src2Step, unsigned short* dst, int dstStep, int width, int height,
                                       int scaleFactor);
    /// srcDst = scaled(srcDst + src)
    static bool ORVANE_CALL Add_16u_C1I(const unsigned short* src, int srcStep, unsigned short* srcDst, int srcDstStep,
                                        int width, int height, int scaleFactor);
    /// dst = scaled(src2 + src1)
    static bool ORVANE_CALL Add_16s_C1(const short* src1, int src1Step, const short* src2, int src2Step, short* dst,
                                       int dstStep, int width, int height, int scaleFactor);
    /// srcDst = scaled(srcDst + src)
    static bool ORVANE_CALL Add_16s_C1I(const short* src, int srcStep, short* srcDst, int srcDstStep, int width,
                                        int height, int scaleFactor);
    /// dst = scaled(src2 - src1)
    static bool ORVANE_CALL Sub_8u_C1(const unsigned char* src1, int src1Step, const unsigned char* src2, int src2Step,
                                      unsigned char* dst, int dstStep, int width, int height, int scaleFactor);
    /// srcDst = scaled(srcDst - src)
    static bool ORVANE_CALL Sub_8u_C1I(const unsigned char* src, int srcStep, unsigned char* srcDst, int srcDstStep,
                                       int width, int height, int scaleFactor);
    /// dst = scaled(src2 - src1)
    static bool ORVANE_CALL Sub_8u_C3(const unsigned char* src1, int src1Step, const unsigned char* src2, int src2Step,
                                      unsigned char* dst, int dstStep, int width, int height, int scaleFactor);
    /// srcDst = scaled(srcDst - src)
    static bool ORVANE_CALL Sub_8u_C3I(const unsigned char* src, int srcStep, unsigned char* srcDst, int srcDstStep,
                                       int width, int height, int scaleFactor);
    /// dst = scaled(src2 - src1)
    static bool ORVANE_CALL Sub_8u_C4(const unsigned char* src1, int src1Step, const unsigned char* src2, int src2Step,
                                      unsigned char* dst, int dstStep, int width, int height, int scaleFactor);
    /// srcDst = scaled(srcDst - src)
    static bool ORVANE_CALL Sub_8u_C4I(const unsigned char* src, int srcStep, unsigned char* srcDst, int srcDstStep,
                                       int width, int height, int scaleFactor);
    /// dst = scaled(src2 - src1)
    static bool ORVANE_CALL Sub_16u_C1(const unsigned short* src1, int src1Step, const unsigned short* src2,
                                       int src2Step, unsigned short* dst, int dstStep, int width, int height,
                                       int scaleFactor);
    /// srcDst = scaled(srcDst - src)
    static bool ORVANE_CALL Sub_16u_C1I(const unsigned short* src, int srcStep, unsigned short* srcDst, int srcDstStep,
                                        int width, int height, int scaleFactor);
    /// dst = scaled(src2 - src1)
    static bool ORVANE_CALL Sub_16s_C1(const short* src1, int src1Step, const short* src2, int src2Step, short* dst,
                                       int dstStep, int width, int height, int scaleFactor);
    /// srcDst = scaled(srcDst - src)
    static bool ORVANE_CALL Sub_16s_C1I(const short* src, int srcStep, short* srcDst, int srcDstStep, int width,
                                        int height, int scaleFactor);
    /// dst = scaled(src2 * src1)
    static bool ORVANE_CALL Mul_8u_C1(const unsigned char* src1, int src1Step, const unsigned char* src2, int src2Step,
                                      unsigned char* dst, int dstStep, int width, int height, int scaleFactor);
    /// srcDst = scaled(srcDst * src)
    static bool ORVANE_CALL Mul_8u_C1I(const unsigned char* src, int srcStep, unsigned char* srcDst, int srcDstStep,
                                       int width, int height, int scaleFactor);
    /// dst = scaled(src2 * src1)
    static bool ORVANE_CALL Mul_8u_C3(const unsigned char* src1, int src1Step, const unsigned char* src2, int src2Step,
                                      unsigned char* dst, int dstStep, int width, int height, int scaleFactor);
    /// srcDst = scaled(srcDst * src)
    static bool ORVANE_CALL Mul_8u_C3I(const unsigned char* src, int srcStep, unsigned char* srcDst, int srcDstStep,
                                       int width, int height, int scaleFactor);
    /// dst = scaled(src2 * src1)
    static bool ORVANE_CALL Mul_8u_C4(const unsigned char* src1, int src1Step, const unsigned char* src2, int src2Step,
                                      unsigned char* dst, int dstStep, int width, int height, int scaleFactor);
    /// srcDst = scaled(srcDst * src)
    static bool ORVANE_CALL Mul_8u_C4I(const unsigned char* src, int srcStep, unsigned char* srcDst, int srcDstStep,
                                       int width, int height, int scaleFactor);
    /// dst = scaled(src2 * src1)
    static bool ORVANE_CALL Mul_16u_C1(const unsigned short* src1, int src1Step, const unsigned short* src2,
                                       int src2Step, unsigned short* dst, int dstStep, int width, int height,
                                       int scaleFactor);
    /// srcDst = scaled(srcDst * src)
    static bool ORVANE_CALL Mul_16u_C1I(const unsigned short* src, int srcStep, unsigned short* srcDst, int srcDstStep,
                                        int width, int height, int scaleFactor);
    /// dst = scaled(src2 * src1)
    static bool ORVANE_CALL Mul_16s_C1(const short* src1, int src1Step, const short* src2, int src2Step, short* dst,
                                       int dstStep, int width, int height, int scaleFactor);
    /// srcDst = scaled(srcDst * src)
    static bool ORVANE_CALL Mul_16s_C1I(const short* src, int srcStep, short* srcDst, int srcDstStep, int width,
                                        int height, int scaleFactor);
    /// dst = scaled(src2 / src1)
    static bool ORVANE_CALL Div_8u_C1(const unsigned char* src1, int src1Step, const unsigned char* src2, int src2Step,
                                      unsigned char* dst, int dstStep, int width, int height, int scaleFactor);
    /// srcDst = scaled(srcDst / src)
    static bool ORVANE_CALL Div_8u_C1I(const unsigned char* src, int srcStep, unsigned char* srcDst, int srcDstStep,
                                       int width, int height, int scaleFactor);
    /// dst = scaled(src2 / src1)
    static bool ORVANE_CALL Div_8u_C3(const unsigned char* src1, int src1Step, const unsigned char* src2, int src2Step,
                                      unsigned char* dst, int dstStep, int width, int height, int scaleFactor);
    /// srcDst = scaled(srcDst / src)
    static bool ORVANE_CALL Div_8u_C3I(const unsigned char* src, int srcStep, unsigned char* srcDst, int srcDstStep,
                                       int width, int height, int scaleFactor);
    /// dst = scaled(src2 / src1)
    static bool ORVANE_CALL Div_8u_C4(const unsigned char* src1, int src1Step, const unsigned char* src2, int src2Step,
                                      unsigned char* dst, int dstStep, int width, int height, int scaleFactor);
    /// srcDst = scaled(srcDst / src)
    static bool ORVANE_CALL Div_8u_C4I(const unsigned char* src, int srcStep, unsigned char* srcDst, int srcDstStep,
                                       int width, int height, int scaleFactor);
    /// dst = scaled(src2 / src1), rounded in fixed point
    static bool ORVANE_CALL Div_16u_C1(const unsigned short* src1, int src1Step, const unsigned short* src2,
                                       int src2Step, unsigned short* dst, int dstStep, int width, int height,
                                       int scaleFactor);
    /// srcDst = scaled(srcDst / src), rounded in fixed point
    static bool ORVANE_CALL Div_16u_C1I(const unsigned short* src, int srcStep, unsigned short* srcDst, int srcDstStep,
                                        int width, int height, int scaleFactor);
    /// dst = scaled(src2 / src1)
    static bool ORVANE_CALL Div_16s_C1(const short* src1, int src1Step, const short* src2, int src2Step, short* dst,
                                       int dstStep, int width, int height, int scaleFactor);
    /// srcDst = scaled(srcDst / src)
    static bool ORVANE_CALL Div_16s_C1I(const short* src, int srcStep, short* srcDst, int srcDstStep, int width,
                                        int height, int scaleFactor);
    /// dst = scaled(src + value)
    static bool ORVANE_CALL AddC_8u_C1(const unsigned char* src, int srcStep, unsigned char value, unsigned char* dst,
                                       int dstStep, int width, int height, int scaleFactor);
    /// srcDst = scaled(srcDst * value): multiplies, as MulC_8u_C1I does
    static bool ORVANE_CALL AddC_8u_C1I(unsigned char value, unsigned char* srcDst, int srcDstStep, int width,
                                        int height, int scaleFactor);
    /// dst = scaled(src + values)
    static bool ORVANE_CALL AddC_8u_C3(const unsigned char* src, int srcStep, const unsigned char* values,
                                       unsigned char* dst, int dstStep, int width, int height, int scaleFactor);
    /// srcDst = scaled(srcDst + values)
    static bool ORVANE_CALL AddC_8u_C3I(const unsigned char* values, unsigned char* srcDst, int srcDstStep, int width,
                                        int height, int scaleFactor);
    /// dst = scaled(src + values)
    static bool ORVANE_CALL AddC_8u_C4(const unsigned char* src, int srcStep, const unsigned char* values,
                                       unsigned char* dst, int dstStep, int width, int height, int scaleFactor);
    /// srcDst = scaled(srcDst + values)
    static bool ORVANE_CALL AddC_8u_C4I(const unsigned char* values, unsigned char* srcDst, int srcDstStep, int width,
                                        int height, int scaleFactor);
    /// dst = scaled(src + value)
    static bool ORVANE_CALL AddC_16u_C1(const unsigned short* src, int srcStep, unsigned short value,
                                        unsigned short* dst, int dstStep, int width, int height, int scaleFactor);
    /// srcDst = scaled(srcDst + value)
    static bool ORVANE_CALL AddC_16u_C1I(unsigned short value, unsigned short* srcDst, int srcDstStep, int width,
                                         int height, int scaleFactor);
    /// dst = scaled(src + value)
    static bool ORVANE_CALL AddC_16s_C1(const short* src, int srcStep, short value, short* dst, int dstStep, int width,
                                        int height, int scaleFactor);
    /// srcDst = scaled(srcDst + value)
    static bool ORVANE_CALL AddC_16s_C1I(short value, short* srcDst, int srcDstStep, int width, int height,
                                         int scaleFactor);
    /// dst = scaled(src - value)
    static bool ORVANE_CALL SubC_8u_C1(const unsigned char* src, int srcStep, unsigned char value, unsigned char* dst,
                                       int dstStep, int width, int height, int scaleFactor);
    /// srcDst = scaled(srcDst - value)
    static bool ORVANE_CALL SubC_8u_C1I(unsigned char value, unsigned char* srcDst, int srcDstStep, int width,
                                        int height, int scaleFactor);
    /// dst = scaled(src - values)
    static bool ORVANE_CALL SubC_8u_C3(const unsigned char* src, int srcStep, const unsigned char* values,
                                       unsigned char* dst, int dstStep, int width, int height, int scaleFactor);
    /// srcDst = scaled(srcDst - values)
    static bool ORVANE_CALL SubC_8u_C3I(const unsigned char* values, unsigned char* srcDst, int srcDstStep, int width,
                                        int height, int scaleFactor);
    /// dst = scaled(src - values)
    static bool ORVANE_CALL SubC_8u_C4(const unsigned char* src, int srcStep, const unsigned char* values,
                                       unsigned char* dst, int dstStep, int width, int height, int scaleFactor);
    /// srcDst = scaled(srcDst - values)
    static bool ORVANE_CALL SubC_8u_C4I(const unsigned char* values, unsigned char* srcDst, int srcDstStep, int width,
                                        int height, int scaleFactor);
    /// dst = scaled(src - value)
    static bool ORVANE_CALL SubC_16u_C1(const unsigned short* src, int srcStep, unsigned short value,
                                        unsigned short* dst, int dstStep, int width, int height, int scaleFactor);
    /// srcDst = scaled(srcDst - value)
    static bool ORVANE_CALL SubC_16u_C1I(unsigned short value, unsigned short* srcDst, int srcDstStep, int width,
                                         int height, int scaleFactor);
    /// dst = scaled(src - value)
    static bool ORVANE_CALL SubC_16s_C1(const short* src, int srcStep, short value, short* dst, int dstStep, int width,
                                        int height, int scaleFactor);
    /// srcDst = scaled(srcDst - value)
    static bool ORVANE_CALL SubC_16s_C1I(short value, short* srcDst, int srcDstStep, int width, int height,
                                         int scaleFactor);
    /// dst = scaled(src * value)
    static bool ORVANE_CALL MulC_8u_C1(const unsigned char* src, int srcStep, unsigned char value, unsigned char* dst,
                                       int dstStep, int width, int height, int scaleFactor);
    /// srcDst = scaled(srcDst * value)
    static bool ORVANE_CALL MulC_8u_C1I(unsigned char value, unsigned char* srcDst, int srcDstStep, int width,
                                        int height, int scaleFactor);
    /// dst = scaled(src * values)
    static bool ORVANE_CALL MulC_8u_C3(const unsigned char* src, int srcStep, const unsigned char* values,
                                       unsigned char* dst, int dstStep, int width, int height, int scaleFactor);
    /// srcDst = scaled(srcDst * values)
    static bool ORVANE_CALL MulC_8u_C3I(const unsigned char* values, unsigned char* srcDst, int srcDstStep, int width,
                                        int height, int scaleFactor);
    /// dst = scaled(src * values)
    static bool ORVANE_CALL MulC_8u_C4(const unsigned char* src, int srcStep, const unsigned char* values,
                                       unsigned char* dst, int dstStep, int width, int height, int scaleFactor);
    /// srcDst = scaled(srcDst * values)
    static bool ORVANE_CALL MulC_8u_C4I(const unsigned char* values, unsigned char* srcDst, int srcDstStep, int width,
                                        int height, int scaleFactor);
    /// dst = scaled(src * value)
    static bool ORVANE_CALL MulC_16u_C1(const unsigned short* src, int srcStep, unsigned short value,
                                        unsigned short* dst, int dstStep, int width, int height, int scaleFactor);
    /// srcDst = scaled(srcDst * value)
    static bool ORVANE_CALL MulC_16u_C1I(unsigned short value, unsigned short* srcDst, int srcDstStep, int width,
                                         int height, int scaleFactor);
    /// dst = scaled(src * value)
    static bool ORVANE_CALL MulC_16s_C1(const short* src, int srcStep, short value, short* dst, int dstStep, int width,
                                        int height, int scaleFactor);
    /// srcDst = scaled(srcDst * value)
    static bool ORVANE_CALL MulC_16s_C1I(short value, short* srcDst, int srcDstStep, int width, int height,
                                         int scaleFactor);
    /// dst = scaled(src / value)
    static bool ORVANE_CALL DivC_8u_C1(const unsigned char* src, int srcStep, unsigned char value, unsigned char* dst,
                                       int dstStep, int width, int height, int scaleFactor);
    /// srcDst = scaled(srcDst / value)
    static bool ORVANE_CALL DivC_8u_C1I(unsigned char value, unsigned char* srcDst, int srcDstStep, int width,
                                        int height, int scaleFactor);
    /// dst = scaled(src / values)
    static bool ORVANE_CALL DivC_8u_C3(const unsigned char* src, int srcStep, const unsigned char* values,
                                       unsigned char* dst, int dstStep, int width, int height, int scaleFactor);
    /// srcDst = scaled(srcDst / values)
    static bool ORVANE_CALL DivC_8u_C3I(const unsigned char* values, unsigned char* srcDst, int srcDstStep, int width,
                                        int height, int scaleFactor);
    /// dst = scaled(src / values)
    static bool ORVANE_CALL DivC_8u_C4(const unsigned char* src, int srcStep, const unsigned char* values,
                                       unsigned char* dst, int dstStep, int width, int height, int scaleFactor);
    /// srcDst = scaled(srcDst / values)
    static bool ORVANE_CALL DivC_8u_C4I(const unsigned char* values, unsigned char* srcDst, int srcDstStep, int width,
                                        int height, int scaleFactor);
    /// dst = scaled(src / value)
    static bool ORVANE_CALL DivC_16u_C1(const unsigned short* src, int srcStep, unsigned short value,
                                        unsigned short* dst, int dstStep, int width, int height, int scaleFactor);
    /// srcDst = scaled(srcDst - value): subtracts, as SubC_16u_C1I does
    static bool ORVANE_CALL DivC_16u_C1I(unsigned short value, unsigned short* srcDst, int srcDstStep, int width,
                                         int height, int scaleFactor);
    /// dst = scaled(src / value)
    static bool ORVANE_CALL DivC_16s_C1(const short* src, int srcStep, short value, short* dst, int dstStep, int width,
                                        int height, int scaleFactor);
    /// srcDst = scaled(srcDst / value)
    static bool ORVANE_CALL DivC_16s_C1I(short value, short* srcDst, int srcDstStep, int width, int height,
                                         int scaleFactor);
    /// @}

    // --------------------------------------------------------------------------------------------
    /// @name Float and complex arithmetic
    ///
    /// The second source is the left operand: src2 - src1, src2 / src1; in place, srcDst - src, srcDst / src;
    /// with constants, src - value, src / value. Constants of three channels are arrays, one value for each
    /// channel in order.
    ///
    /// Floats: IEEE results, rounded once. Of two NaNs the left operand's is the result; NaNs become quiet.
    /// Division by 0 or -0 gives false, but everything is written: infinity for a positive dividend, -infinity
    /// for a negative one, the NaN 0xFFC00000 for 0 and for a NaN. Division by a constant multiplies by its
    /// reciprocal, rounded to float, so it may differ from a true quotient in the last place; a constant of 0
    /// (in any channel) is refused and nothing is written.
    /// Square root: of -0 it is -0; of a negative number or a NaN it is the NaN 0xFFC00000, and the result is
    /// false with everything written. Its destination step is rounded down to a multiple of 4.
    /// Absolute value: the sign bit cleared, also of NaNs. MaxEvery, MinEvery: where neither value is the larger
    /// (smaller) one, and where either is a NaN, srcDst keeps its bits.
    /// AddProduct: the product and the sum in double, rounded to float once.
    ///
    /// Complex values: sums and differences part by part, as floats. With src1 = a + bi and src2 = c + di
    ///
    ///     product    re = ac - bd, im = ad + bc
    ///     quotient   src2 / src1: m = aa + bb, r = 1 / m, re = (ac + bd) r, im = (ad - bc) r
    ///
    /// in double, rounded to float once; a part that is a NaN is always 0xFFC00000, and so are both parts of a
    /// quotient over 0. DivC by p + qi multiplies by (p r, -q r), r = 1 / (pp + qq), each rounded to float; for
    /// a value of 0 nothing is written.
    /// All complex methods return true, whatever happens; nothing is written where they cannot work.
    ///
    /// Checks: null pointer (an array of constants included), width or height below 1; then, in Div, DivC, Sqrt,
    /// MaxEvery and MinEvery, a step below 1; then a constant divisor of 0. AddProduct: source steps below
    /// 2 width or a destination step below 4 width, then source steps that are odd or a destination step
    /// that is no multiple of 4.
    ///
    /// One method does something else than its name says. Hosts depend on it, and so it stays: MulC_32f_C3I
    /// subtracts. MulC_32f_C3IR multiplies.
    /// @{

    /// dst = src2 + src1
    static bool ORVANE_CALL Add_32f_C1(const float* src1, int src1Step, const float* src2, int src2Step, float* dst,
                                       int dstStep, int width, int height);
    /// srcDst = srcDst + src
    static bool ORVANE_CALL Add_32f_C1I(const float* src, int srcStep, float* srcDst, int srcDstStep, int width,
                                        int height);
    /// dst = src2 + src1
    static bool ORVANE_CALL Add_32f_C3(const float* src1, int src1Step, const float* src2, int src2Step, float* dst,
                                       int dstStep, int width, int height);
    /// srcDst = srcDst + src
    static bool ORVANE_CALL Add_32f_C3I(const float* src, int srcStep, float* srcDst, int srcDstStep, int width,
                                        int height);
    /// dst = src2 + src1. Always true.
    static bool ORVANE_CALL Add_32fc_C1(const Complex32f* src1, int src1Step, const Complex32f* src2, int src2Step,
                                        Complex32f* dst, int dstStep, int width, int height);
    /// srcDst = srcDst + src. Always true.
    static bool ORVANE_CALL Add_32fc_C1I(const Complex32f* src, int srcStep, Complex32f* srcDst, int srcDstStep,
                                         int width, int height);
    /// dst = src2 - src1
    static bool ORVANE_CALL Sub_32f_C1(const float* src1, int src1Step, const float* src2, int src2Step, float* dst,
                                       int dstStep, int width, int height);
    /// srcDst = srcDst - src
    static bool ORVANE_CALL Sub_32f_C1I(const float* src, int srcStep, float* srcDst, int srcDstStep, int width,
                                        int height);
    /// dst = src2 - src1
    static bool ORVANE_CALL Sub_32f_C3(const float* src1, int src1Step, const float* src2, int src2Step, float* dst,
                                       int dstStep, int width, int height);
    /// dst = src2 - src1: the same as Sub_32f_C3
    static bool ORVANE_CALL Sub_32f_C3R(const float* src1, int src1Step, const float* src2, int src2Step, float* dst,
                                        int dstStep, int width, int height);
    /// srcDst = srcDst - src
    static bool ORVANE_CALL Sub_32f_C3I(const float* src, int srcStep, float* srcDst, int srcDstStep, int width,
                                        int height);
    /// dst = src2 - src1. Always true.
    static bool ORVANE_CALL Sub_32fc_C1(const Complex32f* src1, int src1Step, const Complex32f* src2, int src2Step,
                                        Complex32f* dst, int dstStep, int width, int height);
    /// srcDst = srcDst - src. Always true.
    static bool ORVANE_CALL Sub_32fc_C1I(const Complex32f* src, int srcStep, Complex32f* srcDst, int srcDstStep,
                                         int width, int height);
    /// dst = src2 * src1
    static bool ORVANE_CALL Mul_32f_C1(const float* src1, int src1Step, const float* src2, int src2Step, float* dst,
                                       int dstStep, int width, int height);
    /// srcDst = srcDst * src
    static bool ORVANE_CALL Mul_32f_C1I(const float* src, int srcStep, float* srcDst, int srcDstStep, int width,
                                        int height);
    /// dst = src2 * src1
    static bool ORVANE_CALL Mul_32f_C3(const float* src1, int src1Step, const float* src2, int src2Step, float* dst,
                                       int dstStep, int width, int height);
    /// srcDst = srcDst * src
    static bool ORVANE_CALL Mul_32f_C3I(const float* src, int srcStep, float* srcDst, int srcDstStep, int width,
                                        int height);
    /// dst = src2 * src1. Always true.
    static bool ORVANE_CALL Mul_32fc_C1(const Complex32f* src1, int src1Step, const Complex32f* src2, int src2Step,
                                        Complex32f* dst, int dstStep, int width, int height);
    /// srcDst = srcDst * src. Always true.
    static bool ORVANE_CALL Mul_32fc_C1I(const Complex32f* src, int srcStep, Complex32f* srcDst, int srcDstStep,
                                         int width, int height);
    /// dst = src2 / src1
    static bool ORVANE_CALL Div_32f_C1(const float* src1, int src1Step, const float* src2, int src2Step, float* dst,
                                       int dstStep, int width, int height);
    /// srcDst = srcDst / src
    static bool ORVANE_CALL Div_32f_C1I(const float* src, int srcStep, float* srcDst, int srcDstStep, int width,
                                        int height);
    /// dst = src2 / src1
    static bool ORVANE_CALL Div_32f_C3(const float* src1, int src1Step, const float* src2, int src2Step, float* dst,
                                       int dstStep, int width, int height);
    /// srcDst = srcDst / src
    static bool ORVANE_CALL Div_32f_C3I(const float* src, int srcStep, float* srcDst, int srcDstStep, int width,
                                        int height);
    /// dst = src2 / src1. Always true.
    static bool ORVANE_CALL Div_32fc_C1(const Complex32f* src1, int src1Step, const Complex32f* src2, int src2Step,
                                        Complex32f* dst, int dstStep, int width, int height);
    /// srcDst = srcDst / src. Always true.
    static bool ORVANE_CALL Div_32fc_C1I(const Complex32f* src, int srcStep, Complex32f* srcDst, int srcDstStep,
                                         int width, int height);
    /// dst = src + value
    static bool ORVANE_CALL AddC_32f_C1(const float* src, int srcStep, float value, float* dst, int dstStep, int width,
                                        int height);
    /// srcDst = srcDst + value
    static bool ORVANE_CALL AddC_32f_C1I(float value, float* srcDst, int srcDstStep, int width, int height);
    /// dst = src + values[channel]
    static bool ORVANE_CALL AddC_32f_C3(const float* src, int srcStep, const float* values, float* dst, int dstStep,
                                        int width, int height);
    /// srcDst = srcDst + values[channel]
    static bool ORVANE_CALL AddC_32f_C3I(const float* values, float* srcDst, int srcDstStep, int width, int height);
    /// dst = src + value. Always true.
    static bool ORVANE_CALL AddC_32fc_C1(const Complex32f* src, int srcStep, Complex32f value, Complex32f* dst,
                                         int dstStep, int width, int height);
    /// srcDst = srcDst + value. Always true.
    static bool ORVANE_CALL AddC_32fc_C1I(Complex32f value, Complex32f* srcDst, int srcDstStep, int width, int height);
    /// dst = src - value
    static bool ORVANE_CALL SubC_32f_C1(const float* src, int srcStep, float value, float* dst, int dstStep, int width,
                                        int height);
    /// srcDst = srcDst - value
    static bool ORVANE_CALL SubC_32f_C1I(float value, float* srcDst, int srcDstStep, int width, int height);
    /// dst = src - values[channel]
    static bool ORVANE_CALL SubC_32f_C3(const float* src, int srcStep, const float* values, float* dst, int dstStep,
                                        int width, int height);
    /// srcDst = srcDst - values[channel]
    static bool ORVANE_CALL SubC_32f_C3I(const float* values, float* srcDst, int srcDstStep, int width, int height);
    /// dst = src - value. Always true.
    static bool ORVANE_CALL SubC_32fc_C1(const Complex32f* src, int srcStep, Complex32f value, Complex32f* dst,
                                         int dstStep, int width, int height);
    /// srcDst = srcDst - value. Always true.
    static bool ORVANE_CALL SubC_32fc_C1I(Complex32f value, Complex32f* srcDst, int srcDstStep, int width, int height);
    /// dst = src * value
    static bool ORVANE_CALL MulC_32f_C1(const float* src, int srcStep, float value, float* dst, int dstStep, int width,
                                        int height);
    /// srcDst = srcDst * value
    static bool ORVANE_CALL MulC_32f_C1I(float value, float* srcDst, int srcDstStep, int width, int height);
    /// dst = src * values[channel]
    static bool ORVANE_CALL MulC_32f_C3(const float* src, int srcStep, const float* values, float* dst, int dstStep,
                                        int width, int height);
    /// srcDst = srcDst - values[channel]: it subtracts, on purpose
    static bool ORVANE_CALL MulC_32f_C3I(const float* values, float* srcDst, int srcDstStep, int width, int height);
    /// srcDst = srcDst * values[channel]
    static bool ORVANE_CALL MulC_32f_C3IR(const float* values, float* srcDst, int srcDstStep, int width, int height);
    /// dst = src * value. Always true.
    static bool ORVANE_CALL MulC_32fc_C1(const Complex32f* src, int srcStep, Complex32f value, Complex32f* dst,
                                         int dstStep, int width, int height);
    /// srcDst = srcDst * value. Always true.
    static bool ORVANE_CALL MulC_32fc_C1I(Complex32f value, Complex32f* srcDst, int srcDstStep, int width, int height);
    /// dst = src * (1 / value)
    static bool ORVANE_CALL DivC_32f_C1(const float* src, int srcStep, float value, float* dst, int dstStep, int width,
                                        int height);
    /// srcDst = srcDst * (1 / value)
    static bool ORVANE_CALL DivC_32f_C1I(float value, float* srcDst, int srcDstStep, int width, int height);
    /// dst = src * (1 / values[channel])
    static bool ORVANE_CALL DivC_32f_C3(const float* src, int srcStep, const float* values, float* dst, int dstStep,
                                        int width, int height);
    /// srcDst = srcDst * (1 / values[channel])
    static bool ORVANE_CALL DivC_32f_C3I(const float* values, float* srcDst, int srcDstStep, int width, int height);
    /// dst = src / value. Always true.
    static bool ORVANE_CALL DivC_32fc_C1(const Complex32f* src, int srcStep, Complex32f value, Complex32f* dst,
                                         int dstStep, int width, int height);
    /// srcDst = srcDst / value. Always true.
    static bool ORVANE_CALL DivC_32fc_C1I(Complex32f value, Complex32f* srcDst, int srcDstStep, int width, int height);
    /// dst = |src|
    static bool ORVANE_CALL Abs_32f_C1(const float* src, int srcStep, float* dst, int dstStep, int width, int height);
    /// srcDst = |srcDst|
    static bool ORVANE_CALL Abs_32f_C1I(float* srcDst, int srcDstStep, int width, int height);
    /// dst = |src|
    static bool ORVANE_CALL Abs_32f_C3(const float* src, int srcStep, float* dst, int dstStep, int width, int height);
    /// srcDst = |srcDst|
    static bool ORVANE_CALL Abs_32f_C3I(float* srcDst, int srcDstStep, int width, int height);
    /// srcDst = sqrt(srcDst)
    static bool ORVANE_CALL Sqrt_32f_C1I(float* srcDst, int srcDstStep, int width, int height);
    /// srcDst = max(src, srcDst), without a temporary
    static bool ORVANE_CALL MaxEvery_32f_C1I(const float* src, int srcStep, float* srcDst, int srcDstStep, int width,
                                             int height);
    /// srcDst = min(src, srcDst), without a temporary
    static bool ORVANE_CALL MinEvery_32f_C1I(const float* src, int srcStep, float* srcDst, int srcDstStep, int width,
                                             int height);
    /// srcDst = srcDst + src1 * src2, without a temporary
    static bool ORVANE_CALL AddProduct_16u32f_C1I(const unsigned short* src1, int src1Step, const unsigned short* src2,
                                                  int src2Step, float* srcDst, int srcDstStep, int width, int height);

    // Logarithm and exponential: computed in double and rounded once, at most 0.5001 units in the last
    // place (largest errors over all floats: docs/accuracy.md). Checks: null pointer, width or height below
    // 1, a step below 1.
    //
    // Logarithm: +0 gives -infinity and false; anything with its sign bit set (-0 and NaNs, too) gives the
    // NaN 0xFFC00000 and false; everything is written. Other NaNs give 0x7FC00000, infinity gives infinity.
    // Exponential: infinity from 88.72283935546875 on, 0 from -87.3365478515625 down, 1 for magnitudes below
    // 2^-126, the quiet NaN for NaNs; none of that is a warning.

    /// srcDst = ln(srcDst)
    static bool ORVANE_CALL Ln_32f_C1I(float* srcDst, int srcDstStep, int width, int height);
    /// dst = e^src
    static bool ORVANE_CALL Exp_32f_C1(const float* src, int srcStep, float* dst, int dstStep, int width, int height);
    /// @}

    // --------------------------------------------------------------------------------------------
    /// @name Bitwise operations and shifts
    ///
    /// Bits of each channel, without scaling or saturation. Constants and shift counts of three and four
    /// channels are arrays, one for each channel in order.
    ///
    /// Shifts: bits that leave the pixel type are lost. To the right, zeros come in for unsigned types and
    /// copies of the sign bit for 16s and 32s. Any count is legal: from the width of the type on, everything is
    /// shifted out, which leaves 0, or -1 of a negative pixel shifted to the right.
    ///
    /// The one-channel in-place forms of AndC, OrC and XorC take the value after the step, the others before the
    /// image.
    ///
    /// Checks: null pointer (an array of constants or counts included), a step below 1, width or height below 1.
    /// @{

    /// dst = src1 & src2
    static bool ORVANE_CALL And_8u_C1(const unsigned char* src1, int src1Step, const unsigned char* src2, int src2Step,
                                      unsigned char* dst, int dstStep, int width, int height);
    /// srcDst = srcDst & src
    static bool ORVANE_CALL And_8u_C1I(const unsigned char* src, int srcStep, unsigned char* srcDst, int srcDstStep,
                                       int width, int height);
    /// dst = src1 & src2
    static bool ORVANE_CALL And_8u_C3(const unsigned char* src1, int src1Step, const unsigned char* src2, int src2Step,
                                      unsigned char* dst, int dstStep, int width, int height);
    /// srcDst = srcDst & src
    static bool ORVANE_CALL And_8u_C3I(const unsigned char* src, int srcStep, unsigned char* srcDst, int srcDstStep,
                                       int width, int height);
    /// dst = src1 & src2
    static bool ORVANE_CALL And_8u_C4(const unsigned char* src1, int src1Step, const unsigned char* src2, int src2Step,
                                      unsigned char* dst, int dstStep, int width, int height);
    /// srcDst = srcDst & src
    static bool ORVANE_CALL And_8u_C4I(const unsigned char* src, int srcStep, unsigned char* srcDst, int srcDstStep,
                                       int width, int height);
    /// dst = src1 & src2
    static bool ORVANE_CALL And_16u_C1(const unsigned short* src1, int src1Step, const unsigned short* src2,
                                       int src2Step, unsigned short* dst, int dstStep, int width, int height);
    /// srcDst = srcDst & src
    static bool ORVANE_CALL And_16u_C1I(const unsigned short* src, int srcStep, unsigned short* srcDst, int srcDstStep,
                                        int width, int height);
    /// dst = src1 & src2
    static bool ORVANE_CALL And_32s_C1(const int* src1, int src1Step, const int* src2, int src2Step, int* dst,
                                       int dstStep, int width, int height);
    /// srcDst = srcDst & src
    static bool ORVANE_CALL And_32s_C1I(const int* src, int srcStep, int* srcDst, int srcDstStep, int width,
                                        int height);
    /// dst = src1 | src2
    static bool ORVANE_CALL Or_8u_C1(const unsigned char* src1, int src1Step, const unsigned char* src2, int src2Step,
                                     unsigned char* dst, int dstStep, int width, int height);
    /// srcDst = srcDst | src
    static bool ORVANE_CALL Or_8u_C1I(const unsigned char* src, int srcStep, unsigned char* srcDst, int srcDstStep,
                                      int width, int height);
    /// dst = src1 | src2
    static bool ORVANE_CALL Or_8u_C3(const unsigned char* src1, int src1Step, const unsigned char* src2, int src2Step,
                                     unsigned char* dst, int dstStep, int width, int height);
    /// srcDst = srcDst | src
    static bool ORVANE_CALL Or_8u_C3I(const unsigned char* src, int srcStep, unsigned char* srcDst, int srcDstStep,
                                      int width, int height);
    /// dst = src1 | src2
    static bool ORVANE_CALL Or_8u_C4(const unsigned char* src1, int src1Step, const unsigned char* src2, int src2Step,
                                     unsigned char* dst, int dstStep, int width, int height);
    /// srcDst = srcDst | src
    static bool ORVANE_CALL Or_8u_C4I(const unsigned char* src, int srcStep, unsigned char* srcDst, int srcDstStep,
                                      int width, int height);
    /// dst = src1 | src2
    static bool ORVANE_CALL Or_16u_C1(const unsigned short* src1, int src1Step, const unsigned short* src2,
                                      int src2Step, unsigned short* dst, int dstStep, int width, int height);
    /// srcDst = srcDst | src
    static bool ORVANE_CALL Or_16u_C1I(const unsigned short* src, int srcStep, unsigned short* srcDst, int srcDstStep,
                                       int width, int height);
    /// dst = src1 | src2
    static bool ORVANE_CALL Or_32s_C1(const int* src1, int src1Step, const int* src2, int src2Step, int* dst,
                                      int dstStep, int width, int height);
    /// srcDst = srcDst | src
    static bool ORVANE_CALL Or_32s_C1I(const int* src, int srcStep, int* srcDst, int srcDstStep, int width, int height);
    /// dst = src1 ^ src2
    static bool ORVANE_CALL Xor_8u_C1(const unsigned char* src1, int src1Step, const unsigned char* src2, int src2Step,
                                      unsigned char* dst, int dstStep, int width, int height);
    /// srcDst = srcDst ^ src
    static bool ORVANE_CALL Xor_8u_C1I(const unsigned char* src, int srcStep, unsigned char* srcDst, int srcDstStep,
                                       int width, int height);
    /// dst = src1 ^ src2
    static bool ORVANE_CALL Xor_8u_C3(const unsigned char* src1, int src1Step, const unsigned char* src2, int src2Step,
                                      unsigned char* dst, int dstStep, int width, int height);
    /// srcDst = srcDst ^ src
    static bool ORVANE_CALL Xor_8u_C3I(const unsigned char* src, int srcStep, unsigned char* srcDst, int srcDstStep,
                                       int width, int height);
    /// dst = src1 ^ src2
    static bool ORVANE_CALL Xor_8u_C4(const unsigned char* src1, int src1Step, const unsigned char* src2, int src2Step,
                                      unsigned char* dst, int dstStep, int width, int height);
    /// srcDst = srcDst ^ src
    static bool ORVANE_CALL Xor_8u_C4I(const unsigned char* src, int srcStep, unsigned char* srcDst, int srcDstStep,
                                       int width, int height);
    /// dst = src1 ^ src2
    static bool ORVANE_CALL Xor_16u_C1(const unsigned short* src1, int src1Step, const unsigned short* src2,
                                       int src2Step, unsigned short* dst, int dstStep, int width, int height);
    /// srcDst = srcDst ^ src
    static bool ORVANE_CALL Xor_16u_C1I(const unsigned short* src, int srcStep, unsigned short* srcDst, int srcDstStep,
                                        int width, int height);
    /// dst = src1 ^ src2
    static bool ORVANE_CALL Xor_32s_C1(const int* src1, int src1Step, const int* src2, int src2Step, int* dst,
                                       int dstStep, int width, int height);
    /// srcDst = srcDst ^ src
    static bool ORVANE_CALL Xor_32s_C1I(const int* src, int srcStep, int* srcDst, int srcDstStep, int width,
                                        int height);
    /// dst = src & value
    static bool ORVANE_CALL AndC_8u_C1(const unsigned char* src, int srcStep, unsigned char value, unsigned char* dst,
                                       int dstStep, int width, int height);
    /// srcDst = srcDst & value (the value follows the step)
    static bool ORVANE_CALL AndC_8u_C1I(unsigned char* srcDst, int srcDstStep, unsigned char value, int width,
                                        int height);
    /// dst = src & values
    static bool ORVANE_CALL AndC_8u_C3(const unsigned char* src, int srcStep, const unsigned char* values,
                                       unsigned char* dst, int dstStep, int width, int height);
    /// srcDst = srcDst & values
    static bool ORVANE_CALL AndC_8u_C3I(const unsigned char* values, unsigned char* srcDst, int srcDstStep, int width,
                                        int height);
    /// dst = src & values
    static bool ORVANE_CALL AndC_8u_C4(const unsigned char* src, int srcStep, const unsigned char* values,
                                       unsigned char* dst, int dstStep, int width, int height);
    /// srcDst = srcDst & values
    static bool ORVANE_CALL AndC_8u_C4I(const unsigned char* values, unsigned char* srcDst, int srcDstStep, int width,
                                        int height);
    /// dst = src & value
    static bool ORVANE_CALL AndC_16u_C1(const unsigned short* src, int srcStep, unsigned short value,
                                        unsigned short* dst, int dstStep, int width, int height);
    /// srcDst = srcDst & value (the value follows the step)
    static bool ORVANE_CALL AndC_16u_C1I(unsigned short* srcDst, int srcDstStep, unsigned short value, int width,
                                         int height);
    /// dst = src & value
    static bool ORVANE_CALL AndC_32s_C1(const int* src, int srcStep, int value, int* dst, int dstStep, int width,
                                        int height);
    /// srcDst = srcDst & value (the value follows the step)
    static bool ORVANE_CALL AndC_32s_C1I(int* srcDst, int srcDstStep, int value, int width, int height);
    /// dst = src | value
    static bool ORVANE_CALL OrC_8u_C1(const unsigned char* src, int srcStep, unsigned char value, unsigned char* dst,
                                      int dstStep, int width, int height);
    /// srcDst = srcDst | value (the value follows the step)
    static bool ORVANE_CALL OrC_8u_C1I(unsigned char* srcDst, int srcDstStep, unsigned char value, int width,
                                       int height);
    /// dst = src | values
    static bool ORVANE_CALL OrC_8u_C3(const unsigned char* src, int srcStep, const unsigned char* values,
                                      unsigned char* dst, int dstStep, int width, int height);
    /// srcDst = srcDst | values
    static bool ORVANE_CALL OrC_8u_C3I(const unsigned char* values, unsigned char* srcDst, int srcDstStep, int width,
                                       int height);
    /// dst = src | values
    static bool ORVANE_CALL OrC_8u_C4(const unsigned char* src, int srcStep, const unsigned char* values,
                                      unsigned char* dst, int dstStep, int width, int height);
    /// srcDst = srcDst | values
    static bool ORVANE_CALL OrC_8u_C4I(const unsigned char* values, unsigned char* srcDst, int srcDstStep, int width,
                                       int height);
    /// dst = src | value
    static bool ORVANE_CALL OrC_16u_C1(const unsigned short* src, int srcStep, unsigned short value,
                                       unsigned short* dst, int dstStep, int width, int height);
    /// srcDst = srcDst | value (the value follows the step)
    static bool ORVANE_CALL OrC_16u_C1I(unsigned short* srcDst, int srcDstStep, unsigned short value, int width,
                                        int height);
    /// dst = src | value
    static bool ORVANE_CALL OrC_32s_C1(const int* src, int srcStep, int value, int* dst, int dstStep, int width,
                                       int height);
    /// srcDst = srcDst | value (the value follows the step)
    static bool ORVANE_CALL OrC_32s_C1I(int* srcDst, int srcDstStep, int value, int width, int height);
    /// dst = src ^ value
    static bool ORVANE_CALL XorC_8u_C1(const unsigned char* src, int srcStep, unsigned char value, unsigned char* dst,
                                       int dstStep, int width, int height);
    /// srcDst = srcDst ^ value (the value follows the step)
    static bool ORVANE_CALL XorC_8u_C1I(unsigned char* srcDst, int srcDstStep, unsigned char value, int width,
                                        int height);
    /// dst = src ^ values
    static bool ORVANE_CALL XorC_8u_C3(const unsigned char* src, int srcStep, const unsigned char* values,
                                       unsigned char* dst, int dstStep, int width, int height);
    /// srcDst = srcDst ^ values
    static bool ORVANE_CALL XorC_8u_C3I(const unsigned char* values, unsigned char* srcDst, int srcDstStep, int width,
                                        int height);
    /// dst = src ^ values
    static bool ORVANE_CALL XorC_8u_C4(const unsigned char* src, int srcStep, const unsigned char* values,
                                       unsigned char* dst, int dstStep, int width, int height);
    /// srcDst = srcDst ^ values
    static bool ORVANE_CALL XorC_8u_C4I(const unsigned char* values, unsigned char* srcDst, int srcDstStep, int width,
                                        int height);
    /// dst = src ^ value
    static bool ORVANE_CALL XorC_16u_C1(const unsigned short* src, int srcStep, unsigned short value,
                                        unsigned short* dst, int dstStep, int width, int height);
    /// srcDst = srcDst ^ value (the value follows the step)
    static bool ORVANE_CALL XorC_16u_C1I(unsigned short* srcDst, int srcDstStep, unsigned short value, int width,
                                         int height);
    /// dst = src ^ value
    static bool ORVANE_CALL XorC_32s_C1(const int* src, int srcStep, int value, int* dst, int dstStep, int width,
                                        int height);
    /// srcDst = srcDst ^ value (the value follows the step)
    static bool ORVANE_CALL XorC_32s_C1I(int* srcDst, int srcDstStep, int value, int width, int height);
    /// dst = ~src
    static bool ORVANE_CALL Not_8u_C1(const unsigned char* src, int srcStep, unsigned char* dst, int dstStep,
                                      int width, int height);
    /// srcDst = ~srcDst
    static bool ORVANE_CALL Not_8u_C1I(unsigned char* srcDst, int srcDstStep, int width, int height);
    /// dst = ~src
    static bool ORVANE_CALL Not_8u_C3(const unsigned char* src, int srcStep, unsigned char* dst, int dstStep,
                                      int width, int height);
    /// srcDst = ~srcDst
    static bool ORVANE_CALL Not_8u_C3I(unsigned char* srcDst, int srcDstStep, int width, int height);
    /// dst = ~src
    static bool ORVANE_CALL Not_8u_C4(const unsigned char* src, int srcStep, unsigned char* dst, int dstStep,
                                      int width, int height);
    /// srcDst = ~srcDst
    static bool ORVANE_CALL Not_8u_C4I(unsigned char* srcDst, int srcDstStep, int width, int height);
    /// dst = src << count
    static bool ORVANE_CALL LShiftC_8u_C1R(const unsigned char* src, int srcStep, unsigned int count,
                                           unsigned char* dst, int dstStep, int width, int height);
    /// srcDst = srcDst << count
    static bool ORVANE_CALL LShiftC_8u_C1IR(unsigned int count, unsigned char* srcDst, int srcDstStep, int width,
                                            int height);
    /// dst = src << counts
    static bool ORVANE_CALL LShiftC_8u_C3R(const unsigned char* src, int srcStep, const unsigned int* counts,
                                           unsigned char* dst, int dstStep, int width, int height);
    /// srcDst = srcDst << counts
    static bool ORVANE_CALL LShiftC_8u_C3IR(const unsigned int* counts, unsigned char* srcDst, int srcDstStep,
                                            int width, int height);
    /// dst = src << counts
    static bool ORVANE_CALL LShiftC_8u_C4R(const unsigned char* src, int srcStep, const unsigned int* counts,
                                           unsigned char* dst, int dstStep, int width, int height);
    /// srcDst = srcDst << counts
    static bool ORVANE_CALL LShiftC_8u_C4IR(const unsigned int* counts, unsigned char* srcDst, int srcDstStep,
                                            int width, int height);
    /// dst = src << count
    static bool ORVANE_CALL LShiftC_16u_C1R(const unsigned short* src, int srcStep, unsigned int count,
                                            unsigned short* dst, int dstStep, int width, int height);
    /// srcDst = srcDst << count
    static bool ORVANE_CALL LShiftC_16u_C1IR(unsigned int count, unsigned short* srcDst, int srcDstStep, int width,
                                             int height);
    /// dst = src << count
    static bool ORVANE_CALL LShiftC_32s_C1R(const int* src, int srcStep, unsigned int count, int* dst, int dstStep,
                                            int width, int height);
    /// srcDst = srcDst << count
    static bool ORVANE_CALL LShiftC_32s_C1IR(unsigned int count, int* srcDst, int srcDstStep, int width, int height);
    /// dst = src >> count
    static bool ORVANE_CALL RShiftC_8u_C1R(const unsigned char* src, int srcStep, unsigned int count,
                                           unsigned char* dst, int dstStep, int width, int height);
    /// srcDst = srcDst >> count
    static bool ORVANE_CALL RShiftC_8u_C1IR(unsigned int count, unsigned char* srcDst, int srcDstStep, int width,
                                            int height);
    /// dst = src >> counts
    static bool ORVANE_CALL RShiftC_8u_C3R(const unsigned char* src, int srcStep, const unsigned int* counts,
                                           unsigned char* dst, int dstStep, int width, int height);
    /// srcDst = srcDst >> counts
    static bool ORVANE_CALL RShiftC_8u_C3IR(const unsigned int* counts, unsigned char* srcDst, int srcDstStep,
                                            int width, int height);
    /// dst = src >> counts
    static bool ORVANE_CALL RShiftC_8u_C4R(const unsigned char* src, int srcStep, const unsigned int* counts,
                                           unsigned char* dst, int dstStep, int width, int height);
    /// srcDst = srcDst >> counts
    static bool ORVANE_CALL RShiftC_8u_C4IR(const unsigned int* counts, unsigned char* srcDst, int srcDstStep,
                                            int width, int height);
    /// dst = src >> count
    static bool ORVANE_CALL RShiftC_16u_C1R(const unsigned short* src, int srcStep, unsigned int count,
                                            unsigned short* dst, int dstStep, int width, int height);
    /// srcDst = srcDst >> count
    static bool ORVANE_CALL RShiftC_16u_C1IR(unsigned int count, unsigned short* srcDst, int srcDstStep, int width,
                                             int height);
    /// dst = src >> count
    static bool ORVANE_CALL RShiftC_16s_C1R(const short* src, int srcStep, unsigned int count, short* dst, int dstStep,
                                            int width, int height);
    /// srcDst = srcDst >> count
    static bool ORVANE_CALL RShiftC_16s_C1IR(unsigned int count, short* srcDst, int srcDstStep, int width, int height);
    /// dst = src >> count
    static bool ORVANE_CALL RShiftC_32s_C1R(const int* src, int srcStep, unsigned int count, int* dst, int dstStep,
                                            int width, int height);
    /// srcDst = srcDst >> count
    static bool ORVANE_CALL RShiftC_32s_C1IR(unsigned int count, int* srcDst, int srcDstStep, int width, int height);
    /// @}

    // --------------------------------------------------------------------------------------------
    /// @name Comparison
    ///
    /// Masks of one byte per pixel: 255 where the relation holds, in every channel where there are several, and 0
    /// elsewhere. The first source is the left operand. With constants the image is the left operand; those of
    /// three and four channels are arrays, one value for each channel in order.
    ///
    /// Floats compare exactly and by IEEE 754: -0 equals +0, and a NaN gives 0 in every relation.
    ///
    /// Checks: null pointer (an array of constants included), a step below 1, width or height below 1.
    /// @{

    /// dst = 255 where src1 < src2, else 0
    static bool ORVANE_CALL CompareLess_8u_C1(const unsigned char* src1, int src1Step, const unsigned char* src2,
                                              int src2Step, unsigned char* dst, int dstStep, int width, int height);
    /// dst = 255 where src1 <= src2, else 0
    static bool ORVANE_CALL CompareLessEq_8u_C1(const unsigned char* src1, int src1Step, const unsigned char* src2,
                                                int src2Step, unsigned char* dst, int dstStep, int width, int height);
    /// dst = 255 where src1 == src2, else 0
    static bool ORVANE_CALL CompareEq_8u_C1(const unsigned char* src1, int src1Step, const unsigned char* src2,
                                            int src2Step, unsigned char* dst, int dstStep, int width, int height);
    /// dst = 255 where src1 >= src2, else 0
    static bool ORVANE_CALL CompareGreaterEq_8u_C1(const unsigned char* src1, int src1Step, const unsigned char* src2,
                                                   int src2Step, unsigned char* dst, int dstStep, int width,
                                                   int height);
    /// dst = 255 where src1 > src2, else 0
    static bool ORVANE_CALL CompareGreater_8u_C1(const unsigned char* src1, int src1Step, const unsigned char* src2,
                                                 int src2Step, unsigned char* dst, int dstStep, int width, int height);
    /// dst = 255 where src1 < src2 in every channel, else 0
    static bool ORVANE_CALL CompareLess_8u_C3(const unsigned char* src1, int src1Step, const unsigned char* src2,
                                              int src2Step, unsigned char* dst, int dstStep, int width, int height);
    /// dst = 255 where src1 <= src2 in every channel, else 0
    static bool ORVANE_CALL CompareLessEq_8u_C3(const unsigned char* src1, int src1Step, const unsigned char* src2,
                                                int src2Step, unsigned char* dst, int dstStep, int width, int height);
    /// dst = 255 where src1 == src2 in every channel, else 0
    static bool ORVANE_CALL CompareEq_8u_C3(const unsigned char* src1, int src1Step, const unsigned char* src2,
                                            int src2Step, unsigned char* dst, int dstStep, int width, int height);
    /// dst = 255 where src1 >= src2 in every channel, else 0
    static bool ORVANE_CALL CompareGreaterEq_8u_C3(const unsigned char* src1, int src1Step, const unsigned char* src2,
                                                   int src2Step, unsigned char* dst, int dstStep, int width,
                                                   int height);
    /// dst = 255 where src1 > src2 in every channel, else 0
    static bool ORVANE_CALL CompareGreater_8u_C3(const unsigned char* src1, int src1Step, const unsigned char* src2,
                                                 int src2Step, unsigned char* dst, int dstStep, int width, int height);
    /// dst = 255 where src1 < src2 in every channel, else 0
    static bool ORVANE_CALL CompareLess_8u_C4(const unsigned char* src1, int src1Step, const unsigned char* src2,
                                              int src2Step, unsigned char* dst, int dstStep, int width, int height);
    /// dst = 255 where src1 <= src2 in every channel, else 0
    static bool ORVANE_CALL CompareLessEq_8u_C4(const unsigned char* src1, int src1Step, const unsigned char* src2,
                                                int src2Step, unsigned char* dst, int dstStep, int width, int height);
    /// dst = 255 where src1 == src2 in every channel, else 0
    static bool ORVANE_CALL CompareEq_8u_C4(const unsigned char* src1, int src1Step, const unsigned char* src2,
                                            int src2Step, unsigned char* dst, int dstStep, int width, int height);
    /// dst = 255 where src1 >= src2 in every channel, else 0
    static bool ORVANE_CALL CompareGreaterEq_8u_C4(const unsigned char* src1, int src1Step, const unsigned char* src2,
                                                   int src2Step, unsigned char* dst, int dstStep, int width,
                                                   int height);
    /// dst = 255 where src1 > src2 in every channel, else 0
    static bool ORVANE_CALL CompareGreater_8u_C4(const unsigned char* src1, int src1Step, const unsigned char* src2,
                                                 int src2Step, unsigned char* dst, int dstStep, int width, int height);
    /// dst = 255 where src1 < src2, else 0
    static bool ORVANE_CALL CompareLess_16u_C1(const unsigned short* src1, int src1Step, const unsigned short* src2,
                                               int src2Step, unsigned char* dst, int dstStep, int width, int height);
    /// dst = 255 where src1 <= src2, else 0
    static bool ORVANE_CALL CompareLessEq_16u_C1(const unsigned short* src1, int src1Step, const unsigned short* src2,
                                                 int src2Step, unsigned char* dst, int dstStep, int width, int height);
    /// dst = 255 where src1 == src2, else 0
    static bool ORVANE_CALL CompareEq_16u_C1(const unsigned short* src1, int src1Step, const unsigned short* src2,
                                             int src2Step, unsigned char* dst, int dstStep, int width, int height);
    /// dst = 255 where src1 >= src2, else 0
    static bool ORVANE_CALL CompareGreaterEq_16u_C1(const unsigned short* src1, int src1Step,
                                                    const unsigned short* src2, int src2Step, unsigned char* dst,
                                                    int dstStep, int width, int height);
    /// dst = 255 where src1 > src2, else 0
    static bool ORVANE_CALL CompareGreater_16u_C1(const unsigned short* src1, int src1Step, const unsigned short* src2,
                                                  int src2Step, unsigned char* dst, int dstStep, int width, int height);
    /// dst = 255 where src1 < src2, else 0
    static bool ORVANE_CALL CompareLess_16s_C1(const short* src1, int src1Step, const short* src2, int src2Step,
                                               unsigned char* dst, int dstStep, int width, int height);
    /// dst = 255 where src1 <= src2, else 0
    static bool ORVANE_CALL CompareLessEq_16s_C1(const short* src1, int src1Step, const short* src2, int src2Step,
                                                 unsigned char* dst, int dstStep, int width, int height);
    /// dst = 255 where src1 == src2, else 0
    static bool ORVANE_CALL CompareEq_16s_C1(const short* src1, int src1Step, const short* src2, int src2Step,
                                             unsigned char* dst, int dstStep, int width, int height);
    /// dst = 255 where src1 >= src2, else 0
    static bool ORVANE_CALL CompareGreaterEq_16s_C1(const short* src1, int src1Step, const short* src2, int src2Step,
                                                    unsigned char* dst, int dstStep, int width, int height);
    /// dst = 255 where src1 > src2, else 0
    static bool ORVANE_CALL CompareGreater_16s_C1(const short* src1, int src1Step, const short* src2, int src2Step,
                                                  unsigned char* dst, int dstStep, int width, int height);
    /// dst = 255 where src1 < src2, else 0
    static bool ORVANE_CALL CompareLess_32f_C1(const float* src1, int src1Step, const float* src2, int src2Step,
                                               unsigned char* dst, int dstStep, int width, int height);
    /// dst = 255 where src1 <= src2, else 0
    static bool ORVANE_CALL CompareLessEq_32f_C1(const float* src1, int src1Step, const float* src2, int src2Step,
                                                 unsigned char* dst, int dstStep, int width, int height);
    /// dst = 255 where src1 == src2, else 0
    static bool ORVANE_CALL CompareEq_32f_C1(const float* src1, int src1Step, const float* src2, int src2Step,
                                             unsigned char* dst, int dstStep, int width, int height);
    /// dst = 255 where src1 >= src2, else 0
    static bool ORVANE_CALL CompareGreaterEq_32f_C1(const float* src1, int src1Step, const float* src2, int src2Step,
                                                    unsigned char* dst, int dstStep, int width, int height);
    /// dst = 255 where src1 > src2, else 0
    static bool ORVANE_CALL CompareGreater_32f_C1(const float* src1, int src1Step, const float* src2, int src2Step,
                                                  unsigned char* dst, int dstStep, int width, int height);
    /// dst = 255 where src1 < src2 in every channel, else 0
    static bool ORVANE_CALL CompareLess_32f_C3(const float* src1, int src1Step, const float* src2, int src2Step,
                                               unsigned char* dst, int dstStep, int width, int height);
    /// dst = 255 where src1 <= src2 in every channel, else 0
    static bool ORVANE_CALL CompareLessEq_32f_C3(const float* src1, int src1Step, const float* src2, int src2Step,
                                                 unsigned char* dst, int dstStep, int width, int height);
    /// dst = 255 where src1 == src2 in every channel, else 0
    static bool ORVANE_CALL CompareEq_32f_C3(const float* src1, int src1Step, const float* src2, int src2Step,
                                             unsigned char* dst, int dstStep, int width, int height);
    /// dst = 255 where src1 >= src2 in every channel, else 0
    static bool ORVANE_CALL CompareGreaterEq_32f_C3(const float* src1, int src1Step, const float* src2, int src2Step,
                                                    unsigned char* dst, int dstStep, int width, int height);
    /// dst = 255 where src1 > src2 in every channel, else 0
    static bool ORVANE_CALL CompareGreater_32f_C3(const float* src1, int src1Step, const float* src2, int src2Step,
                                                  unsigned char* dst, int dstStep, int width, int height);
    /// dst = 255 where src < value, else 0
    static bool ORVANE_CALL CompareCLess_8u_C1R(const unsigned char* src, int srcStep, unsigned char value,
                                                unsigned char* dst, int dstStep, int width, int height);
    /// dst = 255 where src <= value, else 0
    static bool ORVANE_CALL CompareCLessEq_8u_C1R(const unsigned char* src, int srcStep, unsigned char value,
                                                  unsigned char* dst, int dstStep, int width, int height);
    /// dst = 255 where src == value, else 0
    static bool ORVANE_CALL CompareCEq_8u_C1R(const unsigned char* src, int srcStep, unsigned char value,
                                              unsigned char* dst, int dstStep, int width, int height);
    /// dst = 255 where src >= value, else 0
    static bool ORVANE_CALL CompareCGreaterEq_8u_C1R(const unsigned char* src, int srcStep, unsigned char value,
                                                     unsigned char* dst, int dstStep, int width, int height);
    /// dst = 255 where src > value, else 0
    static bool ORVANE_CALL CompareCGreater_8u_C1R(const unsigned char* src, int srcStep, unsigned char value,
                                                   unsigned char* dst, int dstStep, int width, int height);
    /// dst = 255 where src < values in every channel, else 0
    static bool ORVANE_CALL CompareCLess_8u_C3R(const unsigned char* src, int srcStep, const unsigned char* values,
                                                unsigned char* dst, int dstStep, int width, int height);
    /// dst = 255 where src <= values in every channel, else 0
    static bool ORVANE_CALL CompareCLessEq_8u_C3R(const unsigned char* src, int srcStep, const unsigned char* values,
                                                  unsigned char* dst, int dstStep, int width, int height);
    /// dst = 255 where src == values in every channel, else 0
    static bool ORVANE_CALL CompareCEq_8u_C3R(const unsigned char* src, int srcStep, const unsigned char* values,
                                              unsigned char* dst, int dstStep, int width, int height);
    /// dst = 255 where src >= values in every channel, else 0
    static bool ORVANE_CALL CompareCGreaterEq_8u_C3R(const unsigned char* src, int srcStep,
                                                     const unsigned char* values, unsigned char* dst, int dstStep,
                                                     int width, int height);
    /// dst = 255 where src > values in every channel, else 0
    static bool ORVANE_CALL CompareCGreater_8u_C3R(const unsigned char* src, int srcStep, const unsigned char* values,
                                                   unsigned char* dst, int dstStep, int width, int height);
    /// dst = 255 where src < values in every channel, else 0
    static bool ORVANE_CALL CompareCLess_8u_C4R(const unsigned char* src, int srcStep, const unsigned char* values,
                                                unsigned char* dst, int dstStep, int width, int height);
    /// dst = 255 where src <= values in every channel, else 0
    static bool ORVANE_CALL CompareCLessEq_8u_C4R(const unsigned char* src, int srcStep, const unsigned char* values,
                                                  unsigned char* dst, int dstStep, int width, int height);
    /// dst = 255 where src == values in every channel, else 0
    static bool ORVANE_CALL CompareCEq_8u_C4R(const unsigned char* src, int srcStep, const unsigned char* values,
                                              unsigned char* dst, int dstStep, int width, int height);
    /// dst = 255 where src >= values in every channel, else 0
    static bool ORVANE_CALL CompareCGreaterEq_8u_C4R(const unsigned char* src, int srcStep,
                                                     const unsigned char* values, unsigned char* dst, int dstStep,
                                                     int width, int height);
    /// dst = 255 where src > values in every channel, else 0
    static bool ORVANE_CALL CompareCGreater_8u_C4R(const unsigned char* src, int srcStep, const unsigned char* values,
                                                   unsigned char* dst, int dstStep, int width, int height);
    /// dst = 255 where src < value, else 0
    static bool ORVANE_CALL CompareCLess_16u_C1R(const unsigned short* src, int srcStep, unsigned short value,
                                                 unsigned char* dst, int dstStep, int width, int height);
    /// dst = 255 where src <= value, else 0
    static bool ORVANE_CALL CompareCLessEq_16u_C1R(const unsigned short* src, int srcStep, unsigned short value,
                                                   unsigned char* dst, int dstStep, int width, int height);
    /// dst = 255 where src == value, else 0
    static bool ORVANE_CALL CompareCEq_16u_C1R(const unsigned short* src, int srcStep, unsigned short value,
                                               unsigned char* dst, int dstStep, int width, int height);
    /// dst = 255 where src >= value, else 0
    static bool ORVANE_CALL CompareCGreaterEq_16u_C1R(const unsigned short* src, int srcStep, unsigned short value,
                                                      unsigned char* dst, int dstStep, int width, int height);
    /// dst = 255 where src > value, else 0
    static bool ORVANE_CALL CompareCGreater_16u_C1R(const unsigned short* src, int srcStep, unsigned short value,
                                                    unsigned char* dst, int dstStep, int width, int height);
    /// dst = 255 where src < value, else 0
    static bool ORVANE_CALL CompareCLess_16s_C1R(const short* src, int srcStep, short value, unsigned char* dst,
                                                 int dstStep, int width, int height);
    /// dst = 255 where src <= value, else 0
    static bool ORVANE_CALL CompareCLessEq_16s_C1R(const short* src, int srcStep, short value, unsigned char* dst,
                                                   int dstStep, int width, int height);
    /// dst = 255 where src == value, else 0
    static bool ORVANE_CALL CompareCEq_16s_C1R(const short* src, int srcStep, short value, unsigned char* dst,
                                               int dstStep, int width, int height);
    /// dst = 255 where src >= value, else 0
    static bool ORVANE_CALL CompareCGreaterEq_16s_C1R(const short* src, int srcStep, short value, unsigned char* dst,
                                                      int dstStep, int width, int height);
    /// dst = 255 where src > value, else 0
    static bool ORVANE_CALL CompareCGreater_16s_C1R(const short* src, int srcStep, short value, unsigned char* dst,
                                                    int dstStep, int width, int height);
    /// dst = 255 where src < value, else 0
    static bool ORVANE_CALL CompareCLess_32f_C1R(const float* src, int srcStep, float value, unsigned char* dst,
                                                 int dstStep, int width, int height);
    /// dst = 255 where src <= value, else 0
    static bool ORVANE_CALL CompareCLessEq_32f_C1R(const float* src, int srcStep, float value, unsigned char* dst,
                                                   int dstStep, int width, int height);
    /// dst = 255 where src == value, else 0
    static bool ORVANE_CALL CompareCEq_32f_C1R(const float* src, int srcStep, float value, unsigned char* dst,
                                               int dstStep, int width, int height);
    /// dst = 255 where src >= value, else 0
    static bool ORVANE_CALL CompareCGreaterEq_32f_C1R(const float* src, int srcStep, float value, unsigned char* dst,
                                                      int dstStep, int width, int height);
    /// dst = 255 where src > value, else 0
    static bool ORVANE_CALL CompareCGreater_32f_C1R(const float* src, int srcStep, float value, unsigned char* dst,
                                                    int dstStep, int width, int height);
    /// dst = 255 where src < values in every channel, else 0
    static bool ORVANE_CALL CompareCLess_32f_C3R(const float* src, int srcStep, const float* values,
                                                 unsigned char* dst, int dstStep, int width, int height);
    /// dst = 255 where src <= values in every channel, else 0
    static bool ORVANE_CALL CompareCLessEq_32f_C3R(const float* src, int srcStep, const float* values,
                                                   unsigned char* dst, int dstStep, int width, int height);
    /// dst = 255 where src == values in every channel, else 0
    static bool ORVANE_CALL CompareCEq_32f_C3R(const float* src, int srcStep, const float* values, unsigned char* dst,
                                               int dstStep, int width, int height);
    /// dst = 255 where src >= values in every channel, else 0
    static bool ORVANE_CALL CompareCGreaterEq_32f_C3R(const float* src, int srcStep, const float* values,
                                                      unsigned char* dst, int dstStep, int width, int height);
    /// dst = 255 where src > values in every channel, else 0
    static bool ORVANE_CALL CompareCGreater_32f_C3R(const float* src, int srcStep, const float* values,
                                                    unsigned char* dst, int dstStep, int width, int height);
    /// @}

    // --------------------------------------------------------------------------------------------
    /// @name Thresholding
    ///
    /// Pixels on one side of a threshold are replaced by it, or by a value; those equal to it never are.
    /// Thresholds and values follow width and height; those of three channels are arrays, one for each channel
    /// in order.
    ///
    /// Floats are compared by their bits. For numbers this is the usual order, except that -0 is less than +0.
    /// A NaN counts by its sign bit: above every threshold where it is clear, below every one where it is set.
    /// Pixels that are kept, and values that replace them, are moved bit by bit.
    ///
    /// Only less and greater are supported. The methods for less or equal, equal, and greater or equal exist, but
    /// return false for any arguments and write nothing.
    ///
    /// Checks: the operator, null pointer (an array of thresholds or values included), width or height below 1,
    /// a step below 1; with two thresholds also a lower one above the upper one in any channel (as numbers).
    /// @{

    /// dst = src < threshold ? threshold : src
    static bool ORVANE_CALL ThresholdLess_32f_C1R(const float* src, int srcStep, float* dst, int dstStep, int width,
                                                  int height, float threshold);
    /// srcDst = srcDst < threshold ? threshold : srcDst
    static bool ORVANE_CALL ThresholdLess_32f_C1IR(float* srcDst, int srcDstStep, int width, int height,
                                                   float threshold);
    /// dst = src < thresholds ? thresholds : src, channel by channel
    static bool ORVANE_CALL ThresholdLess_32f_C3R(const float* src, int srcStep, float* dst, int dstStep, int width,
                                                  int height, const float* thresholds);
    /// srcDst = srcDst < thresholds ? thresholds : srcDst, channel by channel
    static bool ORVANE_CALL ThresholdLess_32f_C3IR(float* srcDst, int srcDstStep, int width, int height,
                                                   const float* thresholds);
    /// dst = src < threshold ? value : src
    static bool ORVANE_CALL ThresholdLess_Val_32f_C1R(const float* src, int srcStep, float* dst, int dstStep,
                                                      int width, int height, float threshold, float value);
    /// dst = src < threshold ? value : src
    static bool ORVANE_CALL ThresholdLess_Val_8u_C1R(const unsigned char* src, int srcStep, unsigned char* dst,
                                                     int dstStep, int width, int height, unsigned char threshold,
                                                     unsigned char value);
    /// srcDst = srcDst < threshold ? value : srcDst
    static bool ORVANE_CALL ThresholdLess_Val_8u_C1IR(unsigned char* srcDst, int srcDstStep, int width, int height,
                                                      unsigned char threshold, unsigned char value);
    /// Refused: false, nothing written
    static bool ORVANE_CALL ThresholdLessEq_32f_C1R(const float* src, int srcStep, float* dst, int dstStep, int width,
                                                    int height, float threshold);
    /// Refused: false, nothing written
    static bool ORVANE_CALL ThresholdLessEq_32f_C1IR(float* srcDst, int srcDstStep, int width, int height,
                                                     float threshold);
    /// Refused: false, nothing written
    static bool ORVANE_CALL ThresholdLessEq_32f_C3R(const float* src, int srcStep, float* dst, int dstStep, int width,
                                                    int height, const float* thresholds);
    /// Refused: false, nothing written
    static bool ORVANE_CALL ThresholdLessEq_32f_C3IR(float* srcDst, int srcDstStep, int width, int height,
                                                     const float* thresholds);
    /// Refused: false, nothing written
    static bool ORVANE_CALL ThresholdLessEq_Val_32f_C1R(const float* src, int srcStep, float* dst, int dstStep,
                                                        int width, int height, float threshold, float value);
    /// Refused: false, nothing written
    static bool ORVANE_CALL ThresholdLessEq_Val_8u_C1R(const unsigned char* src, int srcStep, unsigned char* dst,
                                                       int dstStep, int width, int height, unsigned char threshold,
                                                       unsigned char value);
    /// Refused: false, nothing written
    static bool ORVANE_CALL ThresholdLessEq_Val_8u_C1IR(unsigned char* srcDst, int srcDstStep, int width, int height,
                                                        unsigned char threshold, unsigned char value);
    /// Refused: false, nothing written
    static bool ORVANE_CALL ThresholdEq_32f_C1R(const float* src, int srcStep, float* dst, int dstStep, int width,
                                                int height, float threshold);
    /// Refused: false, nothing written
    static bool ORVANE_CALL ThresholdEq_32f_C1IR(float* srcDst, int srcDstStep, int width, int height, float threshold);
    /// Refused: false, nothing written
    static bool ORVANE_CALL ThresholdEq_32f_C3R(const float* src, int srcStep, float* dst, int dstStep, int width,
                                                int height, const float* thresholds);
    /// Refused: false, nothing written
    static bool ORVANE_CALL ThresholdEq_32f_C3IR(float* srcDst, int srcDstStep, int width, int height,
                                                 const float* thresholds);
    /// Refused: false, nothing written
    static bool ORVANE_CALL ThresholdEq_Val_32f_C1R(const float* src, int srcStep, float* dst, int dstStep, int width,
                                                    int height, float threshold, float value);
    /// Refused: false, nothing written
    static bool ORVANE_CALL ThresholdEq_Val_8u_C1R(const unsigned char* src, int srcStep, unsigned char* dst,
                                                   int dstStep, int width, int height, unsigned char threshold,
                                                   unsigned char value);
    /// Refused: false, nothing written
    static bool ORVANE_CALL ThresholdEq_Val_8u_C1IR(unsigned char* srcDst, int srcDstStep, int width, int height,
                                                    unsigned char threshold, unsigned char value);
    /// Refused: false, nothing written
    static bool ORVANE_CALL ThresholdGreaterEq_32f_C1R(const float* src, int srcStep, float* dst, int dstStep,
                                                       int width, int height, float threshold);
    /// Refused: false, nothing written
    static bool ORVANE_CALL ThresholdGreaterEq_32f_C1IR(float* srcDst, int srcDstStep, int width, int height,
                                                        float threshold);
    /// Refused: false, nothing written
    static bool ORVANE_CALL ThresholdGreaterEq_32f_C3R(const float* src, int srcStep, float* dst, int dstStep,
                                                       int width, int height, const float* thresholds);
    /// Refused: false, nothing written
    static bool ORVANE_CALL ThresholdGreaterEq_32f_C3IR(float* srcDst, int srcDstStep, int width, int height,
                                                        const float* thresholds);
    /// Refused: false, nothing written
    static bool ORVANE_CALL ThresholdGreaterEq_Val_32f_C1R(const float* src, int srcStep, float* dst, int dstStep,
                                                           int width, int height, float threshold, float value);
    /// Refused: false, nothing written
    static bool ORVANE_CALL ThresholdGreaterEq_Val_8u_C1R(const unsigned char* src, int srcStep, unsigned char* dst,
                                                          int dstStep, int width, int height, unsigned char threshold,
                                                          unsigned char value);
    /// Refused: false, nothing written
    static bool ORVANE_CALL ThresholdGreaterEq_Val_8u_C1IR(unsigned char* srcDst, int srcDstStep, int width,
                                                           int height, unsigned char threshold, unsigned char value);
    /// dst = src > threshold ? threshold : src
    static bool ORVANE_CALL ThresholdGreater_32f_C1R(const float* src, int srcStep, float* dst, int dstStep, int width,
                                                     int height, float threshold);
    /// srcDst = srcDst > threshold ? threshold : srcDst
    static bool ORVANE_CALL ThresholdGreater_32f_C1IR(float* srcDst, int srcDstStep, int width, int height,
                                                      float threshold);
    /// dst = src > thresholds ? thresholds : src, channel by channel
    static bool ORVANE_CALL ThresholdGreater_32f_C3R(const float* src, int srcStep, float* dst, int dstStep, int width,
                                                     int height, const float* thresholds);
    /// srcDst = srcDst > thresholds ? thresholds : srcDst, channel by channel
    static bool ORVANE_CALL ThresholdGreater_32f_C3IR(float* srcDst, int srcDstStep, int width, int height,
                                                      const float* thresholds);
    /// dst = src > threshold ? value : src
    static bool ORVANE_CALL ThresholdGreater_Val_32f_C1R(const float* src, int srcStep, float* dst, int dstStep,
                                                         int width, int height, float threshold, float value);
    /// dst = src > threshold ? value : src
    static bool ORVANE_CALL ThresholdGreater_Val_8u_C1R(const unsigned char* src, int srcStep, unsigned char* dst,
                                                        int dstStep, int width, int height, unsigned char threshold,
                                                        unsigned char value);
    /// srcDst = srcDst > threshold ? value : srcDst
    static bool ORVANE_CALL ThresholdGreater_Val_8u_C1IR(unsigned char* srcDst, int srcDstStep, int width, int height,
                                                         unsigned char threshold, unsigned char value);
    /// dst = src > threshold ? threshold : src
    static bool ORVANE_CALL Threshold_GT_32f_C1(const float* src, int srcStep, float* dst, int dstStep, int width,
                                                int height, float threshold);
    /// srcDst = srcDst > threshold ? threshold : srcDst
    static bool ORVANE_CALL Threshold_GT_32f_C1I(float* srcDst, int srcDstStep, int width, int height, float threshold);
    /// dst = src < threshold ? threshold : src
    static bool ORVANE_CALL Threshold_LT_32f_C1(const float* src, int srcStep, float* dst, int dstStep, int width,
                                                int height, float threshold);
    /// srcDst = srcDst < threshold ? threshold : srcDst
    static bool ORVANE_CALL Threshold_LT_32f_C1I(float* srcDst, int srcDstStep, int width, int height, float threshold);
    /// dst = src > threshold ? value : src
    static bool ORVANE_CALL Threshold_GTVal_32f_C1(const float* src, int srcStep, float* dst, int dstStep, int width,
                                                   int height, float threshold, float value);
    /// srcDst = srcDst > threshold ? value : srcDst
    static bool ORVANE_CALL Threshold_GTVal_32f_C1I(float* srcDst, int srcDstStep, int width, int height,
                                                    float threshold, float value);
    /// dst = src > threshold ? value : src
    static bool ORVANE_CALL Threshold_GTVal_16u_C1(const unsigned short* src, int srcStep, unsigned short* dst,
                                                   int dstStep, int width, int height, unsigned short threshold,
                                                   unsigned short value);
    /// dst = src < threshold ? value : src
    static bool ORVANE_CALL Threshold_LTVal_32f_C1(const float* src, int srcStep, float* dst, int dstStep, int width,
                                                   int height, float threshold, float value);
    /// srcDst = srcDst < threshold ? value : srcDst
    static bool ORVANE_CALL Threshold_LTVal_32f_C1I(float* srcDst, int srcDstStep, int width, int height,
                                                    float threshold, float value);
    /// dst = src > thresholdGT ? valueGT : src < thresholdLT ? valueLT : src
    static bool ORVANE_CALL Threshold_LTValGTVal_32f_C1R(const float* src, int srcStep, float* dst, int dstStep,
                                                         int width, int height, float thresholdLT, float valueLT,
                                                         float thresholdGT, float valueGT);
    /// srcDst = srcDst > thresholdGT ? valueGT : srcDst < thresholdLT ? valueLT : srcDst
    static bool ORVANE_CALL Threshold_LTValGTVal_32f_C1IR(float* srcDst, int srcDstStep, int width, int height,
                                                          float thresholdLT, float valueLT, float thresholdGT,
                                                          float valueGT);
    /// dst = src > thresholdGT ? valueGT : src < thresholdLT ? valueLT : src, channel by channel
    static bool ORVANE_CALL Threshold_LTValGTVal_32f_C3R(const float* src, int srcStep, float* dst, int dstStep,
                                                         int width, int height, const float* thresholdLT,
                                                         const float* valueLT, const float* thresholdGT,
                                                         const float* valueGT);
    /// srcDst = srcDst > thresholdGT ? valueGT : srcDst < thresholdLT ? valueLT : srcDst, channel by channel
    static bool ORVANE_CALL Threshold_LTValGTVal_32f_C3IR(float* srcDst, int srcDstStep, int width, int height,
                                                          const float* thresholdLT, const float* valueLT,
                                                          const float* thresholdGT, const float* valueGT);
    /// @}

    // --------------------------------------------------------------------------------------------
    /// @name Border extension
    ///
    /// Copies src into the larger dst, `top` rows down and `left` columns to the right, and fills what remains
    /// around it: with a constant, or with the nearest pixel of the edge. The borders on the right and at the
    /// bottom are what the sizes leave. Pixels move as a whole, and bit by bit. Constants of three and four
    /// channels are arrays, one value for each channel in order.
    ///
    /// In place, the source is the top left part of the buffer, and the result begins at the same first pixel.
    /// The other forms take src == dst as well, with the same result as from a copy of src. With any other overlap
    /// of src and dst, or of rows of dst, each row is made as if through a temporary: around a constant from the top
    /// to the bottom; with nearest pixels first the rows of the source, then those below, which repeat what then
    /// stands in the row above them that came from the source, then those at the top. All but separate images need
    /// a temporary, and return false and write nothing when there is no memory for it.
    ///
    /// Checks: null pointer (an array of constants included), a step below 1, then false for: a size below 1, top
    /// or left below 0, and dst narrower than left + srcWidth or lower than top + srcHeight.
    /// @{

    /// dst(x, y) = src(x - left, y - top), or value outside src
    static bool ORVANE_CALL CopyConstBorder_8u_C1(const unsigned char* src, int srcStep, int srcWidth, int srcHeight,
                                                  unsigned char* dst, int dstStep, int dstWidth, int dstHeight,
                                                  int top, int left, unsigned char value);
    /// dst(x, y) = src(x - left, y - top), or values outside src
    static bool ORVANE_CALL CopyConstBorder_8u_C3(const unsigned char* src, int srcStep, int srcWidth, int srcHeight,
                                                  unsigned char* dst, int dstStep, int dstWidth, int dstHeight,
                                                  int top, int left, const unsigned char* values);
    /// dst(x, y) = src(x - left, y - top), or values outside src
    static bool ORVANE_CALL CopyConstBorder_8u_C4(const unsigned char* src, int srcStep, int srcWidth, int srcHeight,
                                                  unsigned char* dst, int dstStep, int dstWidth, int dstHeight,
                                                  int top, int left, const unsigned char* values);
    /// dst(x, y) = src(x - left, y - top), or value outside src
    static bool ORVANE_CALL CopyConstBorder_16u_C1(const unsigned short* src, int srcStep, int srcWidth, int srcHeight,
                                                   unsigned short* dst, int dstStep, int dstWidth, int dstHeight,
                                                   int top, int left, unsigned short value);
    /// dst(x, y) = src(x - left, y - top), or value outside src
    static bool ORVANE_CALL CopyConstBorder_32f_C1(const float* src, int srcStep, int srcWidth, int srcHeight,
                                                   float* dst, int dstStep, int dstWidth, int dstHeight, int top,
                                                   int left, float value);
    /// dst(x, y) = src(x - left, y - top), or values outside src
    static bool ORVANE_CALL CopyConstBorder_32f_C3(const float* src, int srcStep, int srcWidth, int srcHeight,
                                                   float* dst, int dstStep, int dstWidth, int dstHeight, int top,
                                                   int left, const float* values);
    /// dst(x, y) = the pixel of src nearest to (x - left, y - top)
    static bool ORVANE_CALL CopyReplicateBorder_8u_C1(const unsigned char* src, int srcStep, int srcWidth,
                                                      int srcHeight, unsigned char* dst, int dstStep, int dstWidth,
                                                      int dstHeight, int top, int left);
    /// dst(x, y) = the pixel of src nearest to (x - left, y - top)
    static bool ORVANE_CALL CopyReplicateBorder_8u_C3(const unsigned char* src, int srcStep, int srcWidth,
                                                      int srcHeight, unsigned char* dst, int dstStep, int dstWidth,
                                                      int dstHeight, int top, int left);
    /// dst(x, y) = the pixel of src nearest to (x - left, y - top)
    static bool ORVANE_CALL CopyReplicateBorder_8u_C4(const unsigned char* src, int srcStep, int srcWidth,
                                                      int srcHeight, unsigned char* dst, int dstStep, int dstWidth,
                                                      int dstHeight, int top, int left);
    /// dst(x, y) = the pixel of src nearest to (x - left, y - top)
    static bool ORVANE_CALL CopyReplicateBorder_16u_C1(const unsigned short* src, int srcStep, int srcWidth,
                                                       int srcHeight, unsigned short* dst, int dstStep, int dstWidth,
                                                       int dstHeight, int top, int left);
    /// dst(x, y) = the pixel of src nearest to (x - left, y - top)
    static bool ORVANE_CALL CopyReplicateBorder_32f_C1(const float* src, int srcStep, int srcWidth, int srcHeight,
                                                       float* dst, int dstStep, int dstWidth, int dstHeight, int top,
                                                       int left);
    /// dst(x, y) = the pixel of src nearest to (x - left, y - top)
    static bool ORVANE_CALL CopyReplicateBorder_32f_C3(const float* src, int srcStep, int srcWidth, int srcHeight,
                                                       float* dst, int dstStep, int dstWidth, int dstHeight, int top,
                                                       int left);
    /// srcDst(x, y) = the pixel nearest to (x - left, y - top) of what srcDst held
    static bool ORVANE_CALL CopyReplicateBorder_8u_C1I(unsigned char* srcDst, int srcDstStep, int srcWidth,
                                                       int srcHeight, int dstWidth, int dstHeight, int top, int left);
    /// srcDst(x, y) = the pixel nearest to (x - left, y - top) of what srcDst held
    static bool ORVANE_CALL CopyReplicateBorder_16u_C1I(unsigned short* srcDst, int srcDstStep, int srcWidth,
                                                        int srcHeight, int dstWidth, int dstHeight, int top, int left);
    /// srcDst(x, y) = the pixel nearest to (x - left, y - top) of what srcDst held
    static bool ORVANE_CALL CopyReplicateBorder_32f_C1I(float* srcDst, int srcDstStep, int srcWidth, int srcHeight,
                                                        int dstWidth, int dstHeight, int top, int left);
    /// @}

    // --------------------------------------------------------------------------------------------
    /// @name Lookup tables, curves and palettes
    ///
    /// A table holds a value for every value of a source pixel: 256 entries for bytes, 65536 for words; with several
    /// channels there is a table for each, and pointers may repeat. Entries move bit by bit, also those of float NaNs.
    ///
    /// A curve is a line through points, levels[k] to values[k], with levelCount points and ascending levels. Below
    /// the first level it stays at the first value, from the last level on at the last one. Integers are the exact
    /// points of the line, rounded to the nearest integer, ties to even. Floats are computed in double, one rounding
    /// for each step: slope = (values[k + 1] - values[k]) / (levels[k + 1] - levels[k]), then
    /// values[k] + slope * (src - levels[k]), rounded to float; at a level that is its value (where the value is -0,
    /// perhaps +0), and a NaN gives the NaN 0x7FC00000. For several channels, run a curve over the ramp 0 ... 255 and
    /// take the result as a table.
    ///
    /// Tables, curves and palettes must not overlap the destination. Where source and destination have one type, dst
    /// may be src. The curves of 16-bit images take a temporary table from the heap; they do without it, to the same
    /// bits, when memory runs out.
    ///
    /// Checks: null pointer (the array of tables and each table in it, levels, values and palettes included), width
    /// or height below 1; then for curves fewer than two levels, levels that do not ascend, and floats that are not
    /// finite; for palettes a size outside 1 ... 65536.
    /// @{

    /// dst = table[src]
    static bool ORVANE_CALL LUT_8u_C1(const unsigned char* src, int srcStep, const unsigned char* table,
                                      unsigned char* dst, int dstStep, int width, int height);
    /// dst = table[src]
    static bool ORVANE_CALL LUT_8u16u_C1(const unsigned char* src, int srcStep, const unsigned short* table,
                                         unsigned short* dst, int dstStep, int width, int height);
    /// dst = table[src]
    static bool ORVANE_CALL LUT_8u32f_C1(const unsigned char* src, int srcStep, const float* table, float* dst,
                                         int dstStep, int width, int height);
    /// dst = table[src], 65536 entries
    static bool ORVANE_CALL LUT_16u_C1(const unsigned short* src, int srcStep, const unsigned short* table,
                                       unsigned short* dst, int dstStep, int width, int height);
    /// dst = table[src], 65536 entries
    static bool ORVANE_CALL LUT_16u8u_C1(const unsigned short* src, int srcStep, const unsigned char* table,
                                         unsigned char* dst, int dstStep, int width, int height);
    /// dst = table[src], 65536 entries
    static bool ORVANE_CALL LUT_16u32f_C1(const unsigned short* src, int srcStep, const float* table,
                                          float* dst, int dstStep, int width, int height);
    /// dst[c] = tables[c][src[c]], c = 0 ... 2
    static bool ORVANE_CALL LUT_8u_C3(const unsigned char* src, int srcStep, const unsigned char* const* tables,
                                      unsigned char* dst, int dstStep, int width, int height);
    /// dst[c] = tables[c][src[c]], c = 0 ... 3
    static bool ORVANE_CALL LUT_8u_C4(const unsigned char* src, int srcStep, const unsigned char* const* tables,
                                      unsigned char* dst, int dstStep, int width, int height);

    /// dst = the curve's value at src
    static bool ORVANE_CALL LUT_Linear_8u_C1(const unsigned char* src, int srcStep, const unsigned char* levels,
                                             const unsigned char* values, int levelCount, unsigned char* dst,
                                             int dstStep, int width, int height);
    /// dst = the curve's value at src
    static bool ORVANE_CALL LUT_Linear_16u_C1(const unsigned short* src, int srcStep,
                                              const unsigned short* levels, const unsigned short* values,
                                              int levelCount, unsigned short* dst, int dstStep, int width,
                                              int height);
    /// dst = the curve's value at src
    static bool ORVANE_CALL LUT_Linear_16u8u_C1(const unsigned short* src, int srcStep,
                                                const unsigned short* levels, const unsigned char* values,
                                                int levelCount, unsigned char* dst, int dstStep, int width,
                                                int height);
    /// dst = the curve's value at src
    static bool ORVANE_CALL LUT_Linear_32f_C1(const float* src, int srcStep, const float* levels,
                                              const float* values, int levelCount, float* dst, int dstStep,
                                              int width, int height);

    /// dst = palette[min(src, paletteSize - 1)]
    static bool ORVANE_CALL LUTPalette_16u32u_C1R(const unsigned short* src, int srcStep,
                                                  const unsigned int* palette, int paletteSize,
                                                  unsigned int* dst, int dstStep, int width, int height);
    /// @}

    // --------------------------------------------------------------------------------------------
    /// @name Luma and chroma
    ///
    /// Channel order is R, G, B and Y, Cb, Cr. U is Cb and V is Cr; there is no other "YUV" here. The last argument
    /// names the standard:
    ///
    ///     0  ITU-R BT.601, Y 16 ... 235, chroma 16 ... 240 (standard-definition video)
    ///     1  ITU-R BT.601, all 0 ... 255 (JPEG, ITU-T T.871)
    ///     2  ITU-R BT.709, Y 16 ... 235, chroma 16 ... 240 (high-definition video)
    ///     3  ITU-R BT.709, all 0 ... 255
    ///
    /// With Kr = 0.299, Kb = 0.114 (601) or Kr = 0.2126, Kb = 0.0722 (709), Kg = 1 - Kr - Kb and
    /// L = Kr R + Kg G + Kb B: Y = y0 + s L, Cb = 128 + t (B - L) / (2 - 2 Kb), Cr = 128 + t (R - L) / (2 - 2 Kr),
    /// where y0 = 16, s = 219 / 255, t = 224 / 255 in the standards 0 and 2, and y0 = 0, s = t = 1 in 1 and 3. Chroma
    /// 128 is grey.
    ///
    /// Accuracy, over all 2^24 pixels: from RGB within 0.505 of the formula's value, and its nearest integer but for at
    /// most 0.22 % of the values of a component; to RGB within 0.533, nearest but for at most 0.9 %. Grey has chroma
    /// 128 exactly, and comes back grey; there and back differs by at most 1 in full range and by at most 2 (blue; 1 in
    /// red and green) in video range. Results are clamped to 0 ... 255.
    ///
    /// 4:2:2 (C2): two pixels share a chroma sample and stand in four bytes, Y0 Cb Y1 Cr (YUY2, YUYV). A row is
    /// 4 ceil(width / 2) bytes, all of which are read or written. Of an odd width the last pair has no second pixel:
    /// reading ignores its Y, writing repeats the first one's. Chroma from RGB is that of the pair's mean, rounded
    /// once; the last pixel of an odd row counts twice. For other byte orders see a pair as a pixel of four channels
    /// in an image of half the width: SwapChannels_8u_C4IR with {1, 0, 3, 2} exchanges YUYV and UYVY, with
    /// {0, 3, 2, 1} YUYV and YVYU. For BGR, SwapChannels_8u_C3IR with {2, 1, 0}.
    ///
    /// 4:2:0 (P3): planes Y of width x height, U and V of ceil(width / 2) x ceil(height / 2); pixel (x, y) takes the
    /// chroma at (x / 2, y / 2), rounded down. Exchange U and V for YV12. Odd sizes are ordinary.
    ///
    /// RGBToGray is Y alone, of any standard: 1 is what most mean by the grey of a colour.
    ///
    /// AC4 keeps the destination's fourth channel. Where source and destination have as many channels, dst may be src.
    ///
    /// Checks: null pointer, width or height below 1, a standard other than 0 ... 3.
    /// @{

    /// dst = (Y, Cb, Cr) of src = (R, G, B)
    static bool ORVANE_CALL RGBToYCbCr_8u_C3(const unsigned char* src, int srcStep, unsigned char* dst,
                                             int dstStep, int width, int height, int standard);
    /// dst = (Y, Cb, Cr) of src = (R, G, B), alpha kept
    static bool ORVANE_CALL RGBToYCbCr_8u_AC4(const unsigned char* src, int srcStep, unsigned char* dst,
                                              int dstStep, int width, int height, int standard);
    /// dst = Y of src = (R, G, B)
    static bool ORVANE_CALL RGBToGray_8u_C3C1R(const unsigned char* src, int srcStep, unsigned char* dst,
                                               int dstStep, int width, int height, int standard);
    /// dst = Y of src = (R, G, B, whatever)
    static bool ORVANE_CALL RGBToGray_8u_AC4C1R(const unsigned char* src, int srcStep, unsigned char* dst,
                                                int dstStep, int width, int height, int standard);
    /// dst = (R, G, B) of src = (Y, Cb, Cr)
    static bool ORVANE_CALL YCbCrToRGB_8u_C3(const unsigned char* src, int srcStep, unsigned char* dst,
                                             int dstStep, int width, int height, int standard);
    /// dst = (R, G, B) of src = (Y, Cb, Cr), alpha kept
    static bool ORVANE_CALL YCbCrToRGB_8u_AC4(const unsigned char* src, int srcStep, unsigned char* dst,
                                              int dstStep, int width, int height, int standard);
    /// dst = 4:2:2 of src = (R, G, B)
    static bool ORVANE_CALL RGBToYUV422_8u_C3C2R(const unsigned char* src, int srcStep, unsigned char* dst,
                                                 int dstStep, int width, int height, int standard);
    /// dst = (R, G, B) of src in 4:2:2
    static bool ORVANE_CALL YUV422ToRGB_8u_C2C3R(const unsigned char* src, int srcStep, unsigned char* dst,
                                                 int dstStep, int width, int height, int standard);
    /// dst = (R, G, B) of three planes in 4:2:0
    static bool ORVANE_CALL YUV420ToRGB_8u_P3C3(const unsigned char* srcY, int srcYStep,
                                                const unsigned char* srcU, int srcUStep,
                                                const unsigned char* srcV, int srcVStep, unsigned char* dst,
                                                int dstStep, int width, int height, int standard);
    /// @}

    // --------------------------------------------------------------------------------------------
    /// @name Colour matrices
    ///
    /// twist holds three rows of four floats: three factors and a constant. Values are taken as they are, bytes as
    /// 0 ... 255. Computed in float, one rounding for each product and each sum, the sums from the left. Bytes: the
    /// nearest integer, ties to even, clamped to 0 ... 255; a NaN gives 0. Floats: a NaN is the NaN 0x7FC00000. Any
    /// twist is legal; it must not overlap the destination. AC4 keeps the destination's fourth channel.
    ///
    /// Checks: null pointer, width or height below 1.
    /// @{

    /// dst[c] = twist[4 c] src[0] + twist[4 c + 1] src[1] + twist[4 c + 2] src[2] + twist[4 c + 3], c = 0 ... 2
    static bool ORVANE_CALL ColorTwist32f_8u_C3(const unsigned char* src, int srcStep, const float* twist,
                                                unsigned char* dst, int dstStep, int width, int height);
    /// dst[c] = twist[4 c] src[0] + twist[4 c + 1] src[1] + twist[4 c + 2] src[2] + twist[4 c + 3], alpha kept
    static bool ORVANE_CALL ColorTwist32f_8u_AC4(const unsigned char* src, int srcStep, const float* twist,
                                                 unsigned char* dst, int dstStep, int width, int height);
    /// dst[c] = twist[4 c] src[0] + twist[4 c + 1] src[1] + twist[4 c + 2] src[2] + twist[4 c + 3], c = 0 ... 2
    static bool ORVANE_CALL ColorTwist32f_32f_C3(const float* src, int srcStep, const float* twist, float* dst,
                                                 int dstStep, int width, int height);
    /// @}

    // --------------------------------------------------------------------------------------------
    /// @name Composition
    ///
    /// src2 over src1 (T. Porter, T. Duff, "Compositing digital images", 1984): src1 is the ground, src2 what is laid
    /// upon it. The fourth channel, alpha, is opaque at 255. With colours c1, c2 and alphas a1, a2, and q(n) = n / 255
    /// to the nearest integer:
    ///
    ///     AC4: the ground is opaque, its alpha is not read, and the destination's alpha stays
    ///         q(a2 c2 + (255 - a2) c1);  premultiplied: min(255, c2 + q((255 - a2) c1))
    ///     C4: alpha counts and is written. A = 255 a2 + (255 - a2) a1, alpha = q(A),
    ///         colour = (255 a2 c2 + (255 - a2) a1 c1) / A to the nearest integer, ties to even; 0 if A = 0.
    ///         Premultiplied: min(255, c2 + q((255 - a2) c1)) for all four channels
    ///
    /// Composed over black in AC4 with dst = src2, a picture is premultiplied in place.
    ///
    /// Checks: null pointer, width or height below 1.
    /// @{

    /// dst = src2 over the opaque src1, alpha kept
    static bool ORVANE_CALL AlphaComp_8u_AC4(const unsigned char* src1, int src1Step, const unsigned char* src2,
                                             int src2Step, unsigned char* dst, int dstStep, int width,
                                             int height, bool premultiplied);
    /// dst = src2 over src1
    static bool ORVANE_CALL AlphaComp_8u_C4(const unsigned char* src1, int src1Step, const unsigned char* src2,
                                            int src2Step, unsigned char* dst, int dstStep, int width,
                                            int height, bool premultiplied);
    /// dst = q(alpha src2 + (255 - alpha) src1), channel by channel
    static bool ORVANE_CALL AlphaCompC_8u_C3R(const unsigned char* src1, int src1Step,
                                              const unsigned char* src2, int src2Step, unsigned char alpha,
                                              unsigned char* dst, int dstStep, int width, int height);
    /// @}

    // --------------------------------------------------------------------------------------------
    /// @name Resize
    ///
    /// A plan resizes the whole source to the whole destination: the scale is srcWidth / dstWidth and
    /// srcHeight / dstHeight, evaluated in double. xFactor and yFactor are accepted and never read. Mind the
    /// order of the arguments: the step of a source comes behind its size, that of a destination before it.
    ///
    /// Nearest: column i comes from source column floor((i + 0.5) scale - 1e-10), rows likewise. The bias
    /// makes a reduction by two take the left (upper) pixel of each pair.
    /// Linear and cubic: pixel centres are aligned; column i lies at u = (i + 0.5) scale - 0.5 with the fraction
    /// f = u - floor(u), a float. Pixels outside the source take the value of the nearest edge pixel.
    /// Linear: a + (b - a) f between neighbours in a row, then the same between the two rows, in double.
    /// Cubic: taps at the distances d = 1 + f, f, 1 - f, 2 - f with the weights 1.5 d^3 - 2.5 d^2 + 1 (d < 1)
    /// and -0.5 d^3 + 2.5 d^2 - 4 d + 2 (d < 2), computed in double and kept as floats (R. G. Keys, "Cubic
    /// convolution interpolation for digital image processing", 1981); sums of four columns, then of four
    /// rows, in double. Results are rounded to the nearest integer, ties to even, and clamped.
    ///
    /// Center forms: the destination's first pixel receives the pixel (x0, y0) of the resized image, where
    /// x0 = dstWidth / 2 - trunc(centerX) and y0 = dstHeight / 2 - trunc(centerY) (integer halves); the last x0
    /// columns and y0 rows of the destination keep their pixels. An offset that is negative, or not below the
    /// destination's size, is an error. ResizeCenterNN_16u_C1R interpolates linearly in spite of its name:
    /// hosts depend on it.
    ///
    /// False, with nothing written: a size that is 0 or negative, a cubic source below 4 x 4, a null pointer, an
    /// odd step of 16-bit pixels, an offset outside, no memory. Steps may be negative.
    /// Source and destination must not overlap.
    /// @{

    /// dst = the nearest pixel of src
    static bool ORVANE_CALL ResizeNN_16u_C1R(const unsigned short* src, int srcWidth, int srcHeight, int srcStep,
                                             unsigned short* dst, int dstStep, int dstWidth, int dstHeight,
                                             double xFactor, double yFactor);
    /// dst = the nearest pixel of src
    static bool ORVANE_CALL ResizeNN_8u_C3R(const unsigned char* src, int srcWidth, int srcHeight, int srcStep,
                                            unsigned char* dst, int dstStep, int dstWidth, int dstHeight,
                                            double xFactor, double yFactor);
    /// dst = the nearest pixel of src
    static bool ORVANE_CALL ResizeNN_8u_C4R(const unsigned char* src, int srcWidth, int srcHeight, int srcStep,
                                            unsigned char* dst, int dstStep, int dstWidth, int dstHeight,
                                            double xFactor, double yFactor);
    /// dst = src by cubic interpolation
    static bool ORVANE_CALL ResizeCubic_16u_C1R(const unsigned short* src, int srcWidth, int srcHeight, int srcStep,
                                                unsigned short* dst, int dstStep, int dstWidth, int dstHeight,
                                                double xFactor, double yFactor);
    /// dst = src by cubic interpolation
    static bool ORVANE_CALL ResizeCubic_8u_C3R(const unsigned char* src, int srcWidth, int srcHeight, int srcStep,
                                               unsigned char* dst, int dstStep, int dstWidth, int dstHeight,
                                               double xFactor, double yFactor);
    /// dst = src by cubic interpolation
    static bool ORVANE_CALL ResizeCubic_8u_C4R(const unsigned char* src, int srcWidth, int srcHeight, int srcStep,
                                               unsigned char* dst, int dstStep, int dstWidth, int dstHeight,
                                               double xFactor, double yFactor);
    /// dst = src by linear interpolation (not the nearest pixel), from the offset on
    static bool ORVANE_CALL ResizeCenterNN_16u_C1R(const unsigned short* src, int srcWidth, int srcHeight, int srcStep,
                                                   unsigned short* dst, int dstStep, int dstWidth, int dstHeight,
                                                   double xFactor, double yFactor, double centerX, double centerY);
    /// dst = the nearest pixel of src, from the offset on
    static bool ORVANE_CALL ResizeCenterNN_8u_C3R(const unsigned char* src, int srcWidth, int srcHeight, int srcStep,
                                                  unsigned char* dst, int dstStep, int dstWidth, int dstHeight,
                                                  double xFactor, double yFactor, double centerX, double centerY);
    /// dst = the nearest pixel of src, from the offset on
    static bool ORVANE_CALL ResizeCenterNN_8u_C4R(const unsigned char* src, int srcWidth, int srcHeight, int srcStep,
                                                  unsigned char* dst, int dstStep, int dstWidth, int dstHeight,
                                                  double xFactor, double yFactor, double centerX, double centerY);
    /// dst = src by cubic interpolation, from the offset on
    static bool ORVANE_CALL ResizeCenterCubic_16u_C1R(const unsigned short* src, int srcWidth, int srcHeight,
                                                      int srcStep, unsigned short* dst, int dstStep, int dstWidth,
                                                      int dstHeight, double xFactor, double yFactor, double centerX,
                                                      double centerY);
    /// dst = src by cubic interpolation, from the offset on
    static bool ORVANE_CALL ResizeCenterCubic_8u_C3R(const unsigned char* src, int srcWidth, int srcHeight,
                                                     int srcStep, unsigned char* dst, int dstStep, int dstWidth,
                                                     int dstHeight, double xFactor, double yFactor, double centerX,
                                                     double centerY);
    /// dst = src by cubic interpolation, from the offset on
    static bool ORVANE_CALL ResizeCenterCubic_8u_C4R(const unsigned char* src, int srcWidth, int srcHeight,
                                                     int srcStep, unsigned char* dst, int dstStep, int dstWidth,
                                                     int dstHeight, double xFactor, double yFactor, double centerX,
                                                     double centerY);
    /// @}

    // --------------------------------------------------------------------------------------------
    /// @name Resize by factor and shift
    ///
    /// The source point (x, y) lands on (xFactor x + xShift, yFactor y + yShift). Points and rectangles are
    /// relative to the first pixels of the images, to which src and dst point; pixel k covers [k, k + 1). The
    /// pixel X of dstRoi comes from s = (X + 1/2 - shift) / factor. Where s lies outside srcRoi, the pixel is left
    /// as it was, also if the image covers a part of it: of images side by side, one alone writes each pixel. With
    /// smooth edges (below) the image writes every pixel that it covers at all. Nothing outside srcRoi is read:
    /// taps beyond it take its edge pixels. Of srcRoi, the part in the source counts, of dstRoi the part without
    /// negative coordinates.
    ///
    /// Interpolation, with t = s - 1/2, the position among pixel centres:
    ///
    ///     1   nearest neighbour: pixel floor(s)
    ///     2   linear
    ///     4   cubic convolution with a = -1/2 (Keys, 1981)
    ///     5   cubic B-spline, no prefilter: B = 1, C = 0
    ///     6   Catmull-Rom: B = 0, C = 1/2, the same weights as 4
    ///     7   cubic with B = 1/2, C = 3/10
    ///     8   supersampling: the average over the area that the pixel covers in srcRoi, partial pixels counting
    ///         for their part; for reduction
    ///     16  Lanczos, three lobes: sinc(d) sinc(d / 3) for |d| < 3, the six weights divided by their sum
    ///
    /// 5 to 7 have the weights of D. P. Mitchell and A. N. Netravali, "Reconstruction filters in computer
    /// graphics", 1988; those of all cubics are kept as floats. But for 8, no code filters before a reduction.
    /// Sums are in double; integers are rounded to the nearest, ties to even, and clamped; a float NaN is stored as
    /// 0x7FC00000 (nearest: moved as it is).
    ///
    /// One of three flags may be added: 0x80000000 smooths the edges, 0x40000000 and 0x20000000 have no effect.
    /// Smooth edges: a pixel that the image of srcRoi covers only in part (from 1/1024 to 1023/1024 per axis)
    /// becomes old + (new - old) part; where its centre lies outside, s is the nearest edge of srcRoi.
    ///
    /// ResizeGetBufSize checks: null pointer, a width or height below 1, channels other than 1, 3 and 4, an
    /// unknown interpolation or two flags at once, 2^31 bytes or more. The size does for every factor and shift.
    /// ResizeSqrPixel checks: null pointer, a width or height below 1 (also of what counts of a rectangle), a
    /// factor that is not above 0, the interpolation. A call whose image lies outside dstRoi is true and
    /// writes nothing. Source and destination must not overlap.
    ///
    /// Zoom and pan: factor = (dstWidth / srcWidth) zoom in float, for both axes: the heights do not enter. The
    /// window of srcWidth / zoom source pixels is centred on the source's centre moved by (panX, panY):
    /// shift = -((srcLength 0.5 - (srcLength / zoom) 0.5) + pan) factor per axis, in double. A factor below 1 is
    /// supersampled with smooth edges; otherwise `smooth` chooses the B-spline with smooth edges over the
    /// nearest neighbour. The four methods are true whatever happens; what they cannot do (a null pointer, a
    /// size below 1, a zoom that is not above 0, no memory) leaves the destination as it was.
    /// @{

    /// Receives the size in bytes of the work buffer for resampling srcRoi into dstRoi
    static bool ORVANE_CALL ResizeGetBufSize(int srcRoiX, int srcRoiY, int srcRoiWidth, int srcRoiHeight, int dstRoiX,
                                             int dstRoiY, int dstRoiWidth, int dstRoiHeight, int channels,
                                             int interpolation, int* size);
    /// dst(X, Y) = src((X + 1/2 - xShift) / xFactor, (Y + 1/2 - yShift) / yFactor), interpolated
    static bool ORVANE_CALL ResizeSqrPixel_8u_C1R(const unsigned char* src, int srcWidth, int srcHeight, int srcStep,
                                                  int srcRoiX, int srcRoiY, int srcRoiWidth, int srcRoiHeight,
                                                  unsigned char* dst, int dstStep, int dstRoiX, int dstRoiY,
                                                  int dstRoiWidth, int dstRoiHeight, double xFactor, double yFactor,
                                                  double xShift, double yShift, int interpolation,
                                                  unsigned char* buffer);
    /// dst(X, Y) = src((X + 1/2 - xShift) / xFactor, (Y + 1/2 - yShift) / yFactor), interpolated
    static bool ORVANE_CALL ResizeSqrPixel_16u_C1R(const unsigned short* src, int srcWidth, int srcHeight, int srcStep,
                                                   int srcRoiX, int srcRoiY, int srcRoiWidth, int srcRoiHeight,
                                                   unsigned short* dst, int dstStep, int dstRoiX, int dstRoiY,
                                                   int dstRoiWidth, int dstRoiHeight, double xFactor, double yFactor,
                                                   double xShift, double yShift, int interpolation,
                                                   unsigned char* buffer);
    /// dst = src zoomed around its centre and panned; always true
    static bool ORVANE_CALL Resize_8u_C3(const unsigned char* src, int srcStep, int srcWidth, int srcHeight,
                                         unsigned char* dst, int dstStep, int dstWidth, int dstHeight, float zoom,
                                         int panX, int panY, bool smooth);
    /// dst = src zoomed around its centre and panned; always true
    static bool ORVANE_CALL Resize_8u_C4(const unsigned char* src, int srcStep, int srcWidth, int srcHeight,
                                         unsigned char* dst, int dstStep, int dstWidth, int dstHeight, float zoom,
                                         int panX, int panY, bool smooth);
    /// dst = src zoomed around its centre and panned; always true
    static bool ORVANE_CALL Resize_16u_C1(const unsigned short* src, int srcStep, int srcWidth, int srcHeight,
                                          unsigned short* dst, int dstStep, int dstWidth, int dstHeight, float zoom,
                                          int panX, int panY, bool smooth);
    /// dst = src zoomed around its centre and panned; always true
    static bool ORVANE_CALL Resize_32f_C1(const float* src, int srcStep, int srcWidth, int srcHeight, float* dst,
                                          int dstStep, int dstWidth, int dstHeight, float zoom, int panX, int panY,
                                          bool smooth);
    /// @}

    // --------------------------------------------------------------------------------------------
    /// @name Edges and filled areas
    ///
    /// Both make do with the region: nothing outside it is read or written. Checks: null pointer (count may be null),
    /// a width or height below 1, a step below 1, the thresholds or the seed, no memory. What is refused leaves
    /// everything as it was: all working memory is taken before anything is written.
    ///
    /// Canny_32f8u_C1 (J. Canny, "A computational approach to edge detection", 1986): dst = 255 on edges, 0 on all
    /// other pixels. Nothing is smoothed before. With p(x, y) = src, outside the region that of the nearest pixel
    /// inside, in single precision, each operation rounded:
    ///
    ///     d(y) = p(x + 1, y) - p(x - 1, y)                      gx = (d(y - 1) + d(y + 1)) + 2 d(y)
    ///     s(y) = (p(x - 1, y) + p(x + 1, y)) + 2 p(x, y)        gy = s(y + 1) - s(y - 1)
    ///     M = gx gx + gy gy in double; a NaN counts as 0, and M is 0 outside the region
    ///
    /// So the magnitude sqrt(M) is the true one, and a straight step of height h has 4 h at both its pixels.
    /// Of |gx| and |gy| the one that is at most 0.41421356237309503 (tan 22.5 degrees) times the other is left out of
    /// the direction (gy first); the neighbours are those to the left and right, above and below, else those at the
    /// upper left and lower right where gx and gy have the same sign, or at the upper right and lower left. A pixel is
    /// a candidate where M > lowThreshold^2, above M of the first of its two neighbours and not below M of the second
    /// (from the top, from the left): of two equal ones that point at each other the earlier stays.
    /// A candidate is strong where M > highThreshold^2. The edges are the candidates that a chain of candidates, each
    /// one of the eight neighbours of the next, joins to a strong one, itself among them: a set that no order of
    /// visits and no tiling changes. 0 <= lowThreshold <= highThreshold (a NaN is refused). dst must not overlap src.
    /// Working memory: at most 10 bytes a pixel, for images of some thousand pixels and more a quarter of a byte.
    ///
    /// FloodFill_8Con_8u_C1IR: all pixels that a chain of eight-neighbours of equal value, inside the region, joins to
    /// the seed become `value`. count receives the number of pixels that changed, at most 2^31 - 1: 0 where the seed
    /// has the value already; then nothing is done. Coordinates may be as large as an int; there is no recursion, and
    /// working memory is at most width height / 4 + 64 (width + height) + 4096 bytes. The time is proportional to the
    /// pixels of the rows that are touched.
    /// @{

    /// dst = 255 where src has an edge above lowThreshold that is joined to one above highThreshold, else 0
    static bool ORVANE_CALL Canny_32f8u_C1(const float* src, int srcStep, unsigned char* dst, int dstStep, int width,
                                           int height, float lowThreshold, float highThreshold);
    /// srcDst = value for the pixels that are joined to the seed by its own value; count = their number
    static bool ORVANE_CALL FloodFill_8Con_8u_C1IR(unsigned char* srcDst, int srcDstStep, int width, int height,
                                                   int seedX, int seedY, unsigned char value, int* count);
    /// @}

    // --------------------------------------------------------------------------------------------
    /// @name Rotation, perspective, remapping
    ///
    /// Each destination pixel shows the source at a computed place. One rule for rectangles, shifts, centres
    /// and matrices: a point is continuous, pixel (i, j) covers [i, i + 1) x [j, j + 1), its centre is (i +
    /// 1/2, j + 1/2); an image of width w ends at w, and its middle is w / 2. An index is a point minus 1/2 on
    /// each axis and counts pixel centres; only the maps of Remap hold indices.
    ///
    /// src and dst point to the first pixels of the images, rectangles are relative to them. Of srcRoi the part
    /// in the source counts, of dstRoi the part without negative coordinates. Steps may be zero or negative.
    /// For every pixel of dstRoi the point (sx, sy) that it shows is computed in double. The pixel is written
    /// exactly when srcRoiX <= sx < srcRoiX + srcRoiWidth and likewise for sy; all others keep their value.
    /// Nothing outside srcRoi is read: taps beyond it take its nearest pixel, so that edges are neither
    /// darkened nor smoothed. (A soft edge: surround the source by a transparent frame with
    /// CopyConstBorder_8u_C4, warp, compose.) sx and sy depend on the pixel and the arguments only: a
    /// destination computed in tiles equals the whole, byte for byte. Source and destination must not overlap.
    ///
    /// Rotate: degrees, counter-clockwise as seen on a screen (y runs down), and a shift in destination pixels.
    /// With the cosine c and the sine s of the angle, the source point (x, y) lands on
    /// (c x + s y + xShift, c y - s x + yShift). The angle is reduced modulo 360 exactly; c and s are rounded to
    /// multiples of 2^-32. With px = (X + 0.5) - xShift, py = (Y + 0.5) - yShift: sx = c px - s py, sy = s px + c py.
    /// GetRotateBound: bound[0...3] = left, top, right, bottom of the rotated rectangle. Pixels that Rotate writes lie
    /// in columns floor(left)...ceil(right) - 1, rows likewise; shifts of -left, -top more move the image to the
    /// origin. GetRotateShift: the shift that keeps the centre, a source point, where it is: xShift = centerX - (c
    /// centerX + s centerY), yShift = centerY - (c centerY - s centerX). RotateCenter rotates the whole source by that
    /// shift into the whole destination. It is true whatever happens; what it cannot do (see the checks of Rotate; a
    /// shift that is not finite) leaves the destination as it was.
    ///
    /// WarpPerspective: coefficients[0...8] are the rows of a matrix H; the source point (x, y) lands on
    /// (h0 x + h1 y + h2, h3 x + h4 y + h5) / (h6 x + h7 y + h8). Pixels at the horizon or beyond it, seen from the
    /// centre of what counts of srcRoi, keep their value. H is scaled by a power of two first (elements below
    /// 2^-300 of the largest count as 0), so it may have any size; H and a multiple of it, also a negative one,
    /// mean the same map.
    /// GetPerspectiveBound: bound of the transformed rectangle, as above; false where a corner lies on the
    /// horizon or corners lie on both sides of it.
    ///
    /// Remap: the maps have the size of the destination; its pixel (X, Y) shows the source index (xMap, yMap)
    /// there, so that xMap = X, yMap = Y copies. Maps may hold anything: NaNs, infinities and huge values lie
    /// outside.
    ///
    /// Interpolation, the codes of resizing by factor and shift; none filters before a reduction:
    ///
    ///     1   nearest neighbour: pixel (floor(sx), floor(sy)), moved as it is
    ///     2   linear: bytes with fractions in 1/16384 pixel and 1/128 between the columns; others in float
    ///     4   cubic convolution with a = -1/2 (Keys, 1981)
    ///     5   cubic B-spline, no prefilter: B = 1, C = 0
    ///     6   Catmull-Rom: B = 0, C = 1/2, the same weights as 4
    ///     7   cubic with B = 1/2, C = 3/10
    ///     16  Lanczos, three lobes: sinc(d) sinc(d / 3) for |d| < 3, the six weights divided by their sum
    ///
    /// 4 to 7 (D. P. Mitchell and A. N. Netravali, "Reconstruction filters in computer graphics", 1988) have
    /// weights kept as floats and sums in double, 16 both in double. Integers are rounded to the nearest, ties
    /// to even, and clamped; a float that is a NaN is stored as 0x7FC00000 (nearest: moved). Taps whose weight
    /// is 0 do not count, whatever they hold: NaNs and infinities stay in the pixels that show them.
    ///
    /// Accuracy. Multiples of 90 degrees, mirrorings, whole shifts and identities that put pixel centres on
    /// pixel centres move pixels unchanged under 1, 2, 4, 6 and 16 (a -0 may become +0). Positions of rotations
    /// are within 2^-33 (|px| + |py|) + 2^-30 pixels of exact ones for coordinates below 2^20. Values are
    /// within 0.52 (linear 8u, 16u), 0.501 (cubic and Lanczos; cubic 16u 0.53) of exact interpolation there,
    /// 32f linear within 2^-20 of the largest tap while no difference overflows.
    ///
    /// Checks: null pointer; a width or height below 1, also of what counts of a rectangle; an angle, shift or
    /// coefficient that is infinite or a NaN (of GetRotateShift also a result); a matrix without an inverse, or
    /// with the horizon through the centre of srcRoi; an unknown interpolation. Refused calls write nothing.
    /// (Rectangles of the queries are not clipped.) No method allocates.
    /// @{

    /// dst(X, Y) = src(c px - s py, s px + c py), interpolated
    static bool ORVANE_CALL Rotate_8u_C1(const unsigned char* src, int srcWidth, int srcHeight, int srcStep,
                                         int srcRoiX, int srcRoiY, int srcRoiWidth, int srcRoiHeight,
                                         unsigned char* dst, int dstStep, int dstRoiX, int dstRoiY,
                                         int dstRoiWidth, int dstRoiHeight, double angle, double xShift,
                                         double yShift, int interpolation);
    /// dst(X, Y) = src(c px - s py, s px + c py), interpolated
    static bool ORVANE_CALL Rotate_8u_C3(const unsigned char* src, int srcWidth, int srcHeight, int srcStep,
                                         int srcRoiX, int srcRoiY, int srcRoiWidth, int srcRoiHeight,
                                         unsigned char* dst, int dstStep, int dstRoiX, int dstRoiY,
                                         int dstRoiWidth, int dstRoiHeight, double angle, double xShift,
                                         double yShift, int interpolation);
    /// dst(X, Y) = src(c px - s py, s px + c py), interpolated
    static bool ORVANE_CALL Rotate_8u_C4(const unsigned char* src, int srcWidth, int srcHeight, int srcStep,
                                         int srcRoiX, int srcRoiY, int srcRoiWidth, int srcRoiHeight,
                                         unsigned char* dst, int dstStep, int dstRoiX, int dstRoiY,
                                         int dstRoiWidth, int dstRoiHeight, double angle, double xShift,
                                         double yShift, int interpolation);
    /// dst(X, Y) = src(c px - s py, s px + c py), interpolated
    static bool ORVANE_CALL Rotate_16u_C1(const unsigned short* src, int srcWidth, int srcHeight,
                                          int srcStep, int srcRoiX, int srcRoiY, int srcRoiWidth,
                                          int srcRoiHeight, unsigned short* dst, int dstStep, int dstRoiX,
                                          int dstRoiY, int dstRoiWidth, int dstRoiHeight, double angle,
                                          double xShift, double yShift, int interpolation);
    /// dst(X, Y) = src(c px - s py, s px + c py), interpolated
    static bool ORVANE_CALL Rotate_32f_C1(const float* src, int srcWidth, int srcHeight, int srcStep,
                                          int srcRoiX, int srcRoiY, int srcRoiWidth, int srcRoiHeight,
                                          float* dst, int dstStep, int dstRoiX, int dstRoiY,
                                          int dstRoiWidth, int dstRoiHeight, double angle, double xShift,
                                          double yShift, int interpolation);
    /// dst = src rotated about the source point (centerX, centerY), which stays; always true
    static bool ORVANE_CALL RotateCenter_8u_C3(const unsigned char* src, int srcWidth, int srcHeight,
                                               int srcStep, unsigned char* dst, int dstStep, int dstWidth,
                                               int dstHeight, double angle, double centerX, double centerY,
                                               int interpolation);
    /// dst = src rotated about the source point (centerX, centerY), which stays; always true
    static bool ORVANE_CALL RotateCenter_8u_C4(const unsigned char* src, int srcWidth, int srcHeight,
                                               int srcStep, unsigned char* dst, int dstStep, int dstWidth,
                                               int dstHeight, double angle, double centerX, double centerY,
                                               int interpolation);
    /// dst = src rotated about the source point (centerX, centerY), which stays; always true
    static bool ORVANE_CALL RotateCenter_16u_C1(const unsigned short* src, int srcWidth, int srcHeight,
                                                int srcStep, unsigned short* dst, int dstStep, int dstWidth,
                                                int dstHeight, double angle, double centerX, double centerY,
                                                int interpolation);
    /// dst = src rotated about the source point (centerX, centerY), which stays; always true
    static bool ORVANE_CALL RotateCenter_32f_C1(const float* src, int srcWidth, int srcHeight, int srcStep,
                                                float* dst, int dstStep, int dstWidth, int dstHeight,
                                                double angle, double centerX, double centerY,
                                                int interpolation);
    /// bound = left, top, right, bottom of (c x + s y + xShift, c y - s x + yShift) over the rectangle
    static bool ORVANE_CALL GetRotateBound(int srcRoiX, int srcRoiY, int srcRoiWidth, int srcRoiHeight,
                                           double angle, double xShift, double yShift, double* bound);
    /// (xShift, yShift) = center - rotated center
    static bool ORVANE_CALL GetRotateShift(double centerX, double centerY, double angle, double* xShift,
                                           double* yShift);
    /// dst(X, Y) = src(the point that H takes to the pixel's centre), interpolated
    static bool ORVANE_CALL WarpPerspective_8u_C1(const unsigned char* src, int srcWidth, int srcHeight,
                                                  int srcStep, int srcRoiX, int srcRoiY, int srcRoiWidth,
                                                  int srcRoiHeight, unsigned char* dst, int dstStep,
                                                  int dstRoiX, int dstRoiY, int dstRoiWidth,
                                                  int dstRoiHeight, const double* coefficients,
                                                  int interpolation);
    /// dst(X, Y) = src(the point that H takes to the pixel's centre), interpolated
    static bool ORVANE_CALL WarpPerspective_8u_C3(const unsigned char* src, int srcWidth, int srcHeight,
                                                  int srcStep, int srcRoiX, int srcRoiY, int srcRoiWidth,
                                                  int srcRoiHeight, unsigned char* dst, int dstStep,
                                                  int dstRoiX, int dstRoiY, int dstRoiWidth,
                                                  int dstRoiHeight, const double* coefficients,
                                                  int interpolation);
    /// dst(X, Y) = src(the point that H takes to the pixel's centre), interpolated
    static bool ORVANE_CALL WarpPerspective_8u_C4(const unsigned char* src, int srcWidth, int srcHeight,
                                                  int srcStep, int srcRoiX, int srcRoiY, int srcRoiWidth,
                                                  int srcRoiHeight, unsigned char* dst, int dstStep,
                                                  int dstRoiX, int dstRoiY, int dstRoiWidth,
                                                  int dstRoiHeight, const double* coefficients,
                                                  int interpolation);
    /// dst(X, Y) = src(the point that H takes to the pixel's centre), interpolated
    static bool ORVANE_CALL WarpPerspective_16u_C1(const unsigned short* src, int srcWidth, int srcHeight,
                                                   int srcStep, int srcRoiX, int srcRoiY, int srcRoiWidth,
                                                   int srcRoiHeight, unsigned short* dst, int dstStep,
                                                   int dstRoiX, int dstRoiY, int dstRoiWidth,
                                                   int dstRoiHeight, const double* coefficients,
                                                   int interpolation);
    /// dst(X, Y) = src(the point that H takes to the pixel's centre), interpolated
    static bool ORVANE_CALL WarpPerspective_32f_C1(const float* src, int srcWidth, int srcHeight,
                                                   int srcStep, int srcRoiX, int srcRoiY, int srcRoiWidth,
                                                   int srcRoiHeight, float* dst, int dstStep, int dstRoiX,
                                                   int dstRoiY, int dstRoiWidth, int dstRoiHeight,
                                                   const double* coefficients, int interpolation);
    /// bound = left, top, right, bottom of H applied to the rectangle
    static bool ORVANE_CALL GetPerspectiveBound(int srcRoiX, int srcRoiY, int srcRoiWidth, int srcRoiHeight,
                                                const double* coefficients, double* bound);
    /// dst(X, Y) = src at the index (xMap(X, Y), yMap(X, Y)), interpolated
    static bool ORVANE_CALL Remap_8u_C1(const unsigned char* src, int srcWidth, int srcHeight, int srcStep,
                                        int srcRoiX, int srcRoiY, int srcRoiWidth, int srcRoiHeight,
                                        const float* xMap, int xMapStep, const float* yMap, int yMapStep,
                                        unsigned char* dst, int dstStep, int dstWidth, int dstHeight,
                                        int interpolation);
    /// dst(X, Y) = src at the index (xMap(X, Y), yMap(X, Y)), interpolated
    static bool ORVANE_CALL Remap_8u_C3(const unsigned char* src, int srcWidth, int srcHeight, int srcStep,
                                        int srcRoiX, int srcRoiY, int srcRoiWidth, int srcRoiHeight,
                                        const float* xMap, int xMapStep, const float* yMap, int yMapStep,
                                        unsigned char* dst, int dstStep, int dstWidth, int dstHeight,
                                        int interpolation);
    /// dst(X, Y) = src at the index (xMap(X, Y), yMap(X, Y)), interpolated
    static bool ORVANE_CALL Remap_8u_C4(const unsigned char* src, int srcWidth, int srcHeight, int srcStep,
                                        int srcRoiX, int srcRoiY, int srcRoiWidth, int srcRoiHeight,
                                        const float* xMap, int xMapStep, const float* yMap, int yMapStep,
                                        unsigned char* dst, int dstStep, int dstWidth, int dstHeight,
                                        int interpolation);
    /// dst(X, Y) = src at the index (xMap(X, Y), yMap(X, Y)), interpolated
    static bool ORVANE_CALL Remap_16u_C1(const unsigned short* src, int srcWidth, int srcHeight,
                                         int srcStep, int srcRoiX, int srcRoiY, int srcRoiWidth,
                                         int srcRoiHeight, const float* xMap, int xMapStep,
                                         const float* yMap, int yMapStep, unsigned short* dst, int dstStep,
                                         int dstWidth, int dstHeight, int interpolation);
    /// dst(X, Y) = src at the index (xMap(X, Y), yMap(X, Y)), interpolated
    static bool ORVANE_CALL Remap_32f_C1(const float* src, int srcWidth, int srcHeight, int srcStep,
                                         int srcRoiX, int srcRoiY, int srcRoiWidth, int srcRoiHeight,
                                         const float* xMap, int xMapStep, const float* yMap, int yMapStep,
                                         float* dst, int dstStep, int dstWidth, int dstHeight,
                                         int interpolation);
    /// @}

    // --------------------------------------------------------------------------------------------
    /// @name Fixed-kernel filters
    ///
    /// Every pixel becomes a weighted sum of its 3x3 or 5x5 neighbourhood, each channel for itself. The
    /// plain forms read one (3x3) or two (5x5) pixels beyond the region on all four sides: those must be
    /// readable memory, reached with the same step. The border forms read the region only and make up what
    /// lies outside. The destination must not overlap the source or its frame.
    ///
    /// Kernels, from the top row down (all are the same turned by a half, so correlation and convolution agree):
    ///
    ///     Lowpass      weights 1. Integers: the mean, rounded to nearest (there are no ties). Floats: the sum
    ///                  times the single-precision constant 0.1111111 or 0.04, which is not quite 1/9 or 1/25.
    ///     Hipass       -1 everywhere, centre 8 (3x3) or 24 (5x5)
    ///     Laplace      3x3 as Hipass; 5x5
    ///                  -1 -3 -4 -3 -1 / -3 0 6 0 -3 / -4 6 20 6 -4 / -3 0 6 0 -3 / -1 -3 -4 -3 -1
    ///     SobelCross   3x3  -1 0 1 / 0 0 0 / 1 0 -1, the outer product of the central difference with itself;
    ///                  5x5  that of the smoothed difference -1 -2 0 2 1, with the same sign:
    ///                  -1 -2 0 2 1 / -2 -4 0 4 2 / 0 0 0 0 0 / 2 4 0 -4 -2 / 1 2 0 -2 -1
    ///     Gauss        3x3  1 2 1 / 2 4 2 / 1 2 1, by 16, ties to even;
    ///                  5x5  2 7 12 7 2 / 7 31 52 31 7 / 12 52 127 52 12 / 7 31 52 31 7 / 2 7 12 7 2, by 571
    ///
    /// Rounding of floats. Lowpass and Hipass: the sum of each row, from left to right, is formed in double
    /// and rounded to single; these are added from top to bottom in double, and the result is rounded
    /// once. Laplace 5x5: of each row three weighted sums are formed in double and rounded to single,
    /// p = (o + i) + 4c, q = 6c - 3o and p + q, where o = src(x-2) + src(x+2), i = 3 * (src(x-1) + src(x+1)) and
    /// c = src(x); the result is q(y-1) - p(y-2) + 2 * (p + q)(y) + q(y+1) - p(y+2), from left to right in double,
    /// rounded once. A row's sum beyond the range of floats is infinite. SobelCross: every difference and sum is
    /// rounded to single; 3x3 takes d(r, x) = src(x-1, r) - src(x+1, r) of the rows, then d(y+1) - d(y-1); 5x5
    /// takes (src(y+2) - src(y-2)) + 2 * (src(y+1) - src(y-1)) of the columns, then the same of these from
    /// x-2, x-1, x+1, x+2 with the sign turned. A result that is not a number has all bits set.
    ///
    /// `buffer` of the border forms has the size that FilterLowpassGetBufferSize reports for the region
    /// and mask, any alignment, and no meaning between calls. The other forms take working memory from
    /// the heap; when it runs out they return false and write nothing.
    ///
    /// Checks: null pointer, width or height below 1, a step below 1.
    /// @{

    /// dst = mean of 3x3 pixels, rounded to nearest
    static bool ORVANE_CALL FilterLowpass3x3_8u_C1R(const unsigned char* src, int srcStep, unsigned char* dst,
                                                    int dstStep, int width, int height);
    /// dst = mean of 5x5 pixels, rounded to nearest
    static bool ORVANE_CALL FilterLowpass5x5_8u_C1R(const unsigned char* src, int srcStep, unsigned char* dst,
                                                    int dstStep, int width, int height);
    /// dst = mean of 3x3 pixels, rounded to nearest
    static bool ORVANE_CALL FilterLowpass3x3_8u_C3R(const unsigned char* src, int srcStep, unsigned char* dst,
                                                    int dstStep, int width, int height);
    /// dst = mean of 5x5 pixels, rounded to nearest
    static bool ORVANE_CALL FilterLowpass5x5_8u_C3R(const unsigned char* src, int srcStep, unsigned char* dst,
                                                    int dstStep, int width, int height);
    /// dst = mean of 3x3 pixels, rounded to nearest
    static bool ORVANE_CALL FilterLowpass3x3_16u_C1R(const unsigned short* src, int srcStep, unsigned short* dst,
                                                     int dstStep, int width, int height);
    /// dst = mean of 5x5 pixels, rounded to nearest
    static bool ORVANE_CALL FilterLowpass5x5_16u_C1R(const unsigned short* src, int srcStep, unsigned short* dst,
                                                     int dstStep, int width, int height);
    /// dst = 0.1111111f * sum of 3x3 pixels
    static bool ORVANE_CALL FilterLowpass3x3_32f_C1R(const float* src, int srcStep, float* dst, int dstStep, int width,
                                                     int height);
    /// dst = 0.04f * sum of 5x5 pixels
    static bool ORVANE_CALL FilterLowpass5x5_32f_C1R(const float* src, int srcStep, float* dst, int dstStep, int width,
                                                     int height);
    /// dst = 0.1111111f * sum of 3x3 pixels
    static bool ORVANE_CALL FilterLowpass3x3_32f_C3R(const float* src, int srcStep, float* dst, int dstStep, int width,
                                                     int height);
    /// dst = 0.04f * sum of 5x5 pixels
    static bool ORVANE_CALL FilterLowpass5x5_32f_C3R(const float* src, int srcStep, float* dst, int dstStep, int width,
                                                     int height);
    /// dst = 9 * src - sum of 3x3 pixels
    static bool ORVANE_CALL FilterHipass3x3_32f_C1R(const float* src, int srcStep, float* dst, int dstStep, int width,
                                                    int height);
    /// dst = 25 * src - sum of 5x5 pixels
    static bool ORVANE_CALL FilterHipass5x5_32f_C1R(const float* src, int srcStep, float* dst, int dstStep, int width,
                                                    int height);
    /// dst = 9 * src - sum of 3x3 pixels: the same as FilterHipass3x3_32f_C1R
    static bool ORVANE_CALL FilterLaplace3x3_32f_C1R(const float* src, int srcStep, float* dst, int dstStep, int width,
                                                     int height);
    /// dst = 5x5 Laplacian, kernel above
    static bool ORVANE_CALL FilterLaplace5x5_32f_C1R(const float* src, int srcStep, float* dst, int dstStep, int width,
                                                     int height);
    /// dst = second cross derivative, 3x3 kernel above
    static bool ORVANE_CALL FilterSobelCross3x3_32f_C1R(const float* src, int srcStep, float* dst, int dstStep,
                                                        int width, int height);
    /// dst = second cross derivative, 5x5 kernel above
    static bool ORVANE_CALL FilterSobelCross5x5_32f_C1R(const float* src, int srcStep, float* dst, int dstStep,
                                                        int width, int height);
    /// dst = weighted sum of 3x3 pixels / 16, rounded to nearest, ties to even
    static bool ORVANE_CALL FilterGauss3x3_16u_C1R(const unsigned short* src, int srcStep, unsigned short* dst,
                                                   int dstStep, int width, int height);
    /// dst = weighted sum of 5x5 pixels / 571, rounded to nearest
    static bool ORVANE_CALL FilterGauss5x5_16u_C1R(const unsigned short* src, int srcStep, unsigned short* dst,
                                                   int dstStep, int width, int height);
    /// dst = 0.1111111f * sum of 3x3 pixels; pixels outside the image are the nearest ones of its edge
    static bool ORVANE_CALL FilterLowpassBorder3x3_32f_C1R(const float* src, int srcStep, float* dst, int dstStep,
                                                           int width, int height, unsigned char* buffer);
    /// dst = 0.04f * sum of 5x5 pixels; pixels outside the image are the nearest ones of its edge
    static bool ORVANE_CALL FilterLowpassBorder5x5_32f_C1R(const float* src, int srcStep, float* dst, int dstStep,
                                                           int width, int height, unsigned char* buffer);
    /// dst = 0.1111111f * sum of 3x3 pixels; pixels outside the image are `value`
    static bool ORVANE_CALL FilterLowpassBorderConst3x3_32f_C1R(const float* src, int srcStep, float* dst, int dstStep,
                                                                int width, int height, float value,
                                                                unsigned char* buffer);
    /// dst = 0.04f * sum of 5x5 pixels; pixels outside the image are `value`
    static bool ORVANE_CALL FilterLowpassBorderConst5x5_32f_C1R(const float* src, int srcStep, float* dst, int dstStep,
                                                                int width, int height, float value,
                                                                unsigned char* buffer);
    /// `*size` = bytes that `buffer` of the 3x3 border forms needs for a region of this size
    static bool ORVANE_CALL FilterLowpassGetBufferSize3x3_32f_C1R(int width, int height, int* size);
    /// `*size` = bytes that `buffer` of the 5x5 border forms needs for a region of this size
    static bool ORVANE_CALL FilterLowpassGetBufferSize5x5_32f_C1R(int width, int height, int* size);
    /// @}

    // --------------------------------------------------------------------------------------------
    /// @name Smoothing filters with parameters
    ///
    /// Of floats, computed in double, in the order given, each step rounded to double (products of two floats and
    /// squares of floats are exact), and rounded to float at the end. A result that is not a number has all bits
    /// set.
    ///
    /// FilterWiener, after J. S. Lim, Two-Dimensional Signal and Image Processing, 1990, section 9.2: the local mean
    /// where the local variance is that of the noise, the pixel where it is much larger. The window of a pixel
    /// has maskWidth x maskHeight = n pixels, both sides odd, from 1 to 255. Of each of its columns the pixels and
    /// their squares are summed, top to bottom, then these sums from left to right: s1 and s2. With the mean m = s1 /
    /// n, the variance v = s2 / n - m * m and the noise's variance nu
    ///
    ///     dst = m + (src - m) * ((v - nu) / v)  where v > nu, else m.
    ///
    /// `*noise` is nu and is left as it is; where it is below 0, nu is the mean of all local variances of the region
    /// (those that are not above 0 count as 0), and is stored there. It is the sum of rows, from the top; a row has
    /// 32 sums of every 32nd variance, and the second half of these is added to the first until one is left. No
    /// sum runs on from pixel to pixel: a result depends on its window alone. v is right to within
    /// 3 * (maskWidth + maskHeight) * 2^-53 of s2 / n, so variances that are smaller are rounding themselves. The
    /// filter reads (maskWidth - 1) / 2 columns and (maskHeight - 1) / 2 rows beyond the region on each side; the
    /// destination must not overlap the source or this frame. Time grows with maskWidth + maskHeight.
    ///
    /// FilterGaussBorder: kernelSize = 2 * r + 1 taps, from 1 to 255, in each direction; pixels outside the region
    /// are the nearest ones of its edge, and nothing outside is read. With g[i] = exp(-(i * i) / (2 * sigma * sigma)),
    /// the exponential of SignalProcessingWrapper::Exp_64f, h = g[r] + ... + g[1] in this order, the weights are
    /// w[i] = g[i] / (1 + 2 * h), rounded to float, and for the centre w[0] = 1 - 2 * (w[r] + ... + w[1]), rounded to
    /// float: a constant image comes out as it was. First the rows, from left to right, rounded to float, then the
    /// columns of these, from the top down. Weights of 0 leave their taps out. Results are within 6 * 2^-24 of the
    /// largest amount among the pixels that take part. The destination may be exactly the source. Working memory:
    /// 2 * r + 5 rows of doubles.
    ///
    /// Checks: null pointer (noise among them), width or height below 1, a step below 1; a mask side or size that is
    /// even or outside 1 to 255; a sigma that is not above 0 or not finite; a noise that is not a number; memory.
    /// @{

    /// dst = local mean + what stands out from it of more than the noise; see above
    static bool ORVANE_CALL FilterWiener_32f_C1(const float* src, int srcStep, float* dst, int dstStep, int width,
                                                int height, int maskWidth, int maskHeight, double* noise);
    /// dst = sum of w[|i|] * w[|j|] * src(x + i, y + j), |i|, |j| <= r, by rows and columns; see above
    static bool ORVANE_CALL FilterGaussBorder_32f_C1R(const float* src, int srcStep, float* dst, int dstStep,
                                                      int width, int height, int kernelSize, float sigma);
    /// @}

    // --------------------------------------------------------------------------------------------
    /// @name Rank filters
    ///
    /// The pixel of some rank among those around each pixel: pixels are moved bit by bit, never computed with. Integers
    /// are ranked by value, channels each for itself. Floats are ranked as numbers, -0 before +0; NaNs stand behind
    /// +infinity, first those with a clear sign bit by rising bits, then those with a set one by falling bits. So a
    /// result never depends on the places of pixels, and equal results have equal bits.
    ///
    /// Median. Of the n = maskWidth * maskHeight pixels around src(x, y) the one with (n - 1) / 2 before it in that
    /// order. Both sides are odd, from 1 to 255. NaNs are the last in order: fewer of them than half shift the rank,
    /// but are not the result. The source is read (maskWidth - 1) / 2 columns to the left and to the right of the
    /// region and (maskHeight - 1) / 2 rows above and below it, at the same step; for whole images make that frame with
    /// CopyReplicateBorder_32f_C1 or CopyConstBorder_32f_C1. The destination must not overlap the source or its frame.
    /// Time grows with the shorter side of the mask. Working memory: at most 16 (width + maskWidth)(maskHeight + 16)
    /// bytes.
    ///
    /// Erosion and dilation. The first (erosion) or last (dilation) in order of the 3x3 pixels around src(x, y) that
    /// lie inside the region. Pixels outside take no part, as if the edge were repeated: nothing outside the region is
    /// read, and objects at the border of an image are not eaten. Erosion of floats passes over NaNs unless all that
    /// take part are; dilation keeps them. The destination may be the source, with the same step; other overlaps are
    /// not allowed. Forms that end in I work in place. For an image in tiles, pass regions that are one pixel larger on
    /// each side and drop that rim. Working memory: two rows, in place, too.
    ///
    /// Steps shorter than a row are not refused: rows then overlap, and what they hold afterwards is left open.
    /// Working memory comes from the heap; when it runs out the methods return false and write nothing.
    /// Erode3x3_8u_C1, Erode3x3_8u_C1I, Dilate3x3_8u_C1 and Dilate3x3_8u_C1I return true always; with bad arguments or
    /// without memory they write nothing.
    ///
    /// Checks: null pointer; width or height below 1; a step below 1; a mask side outside 1 to 255 or even.
    /// @{

    /// dst = median of the maskWidth x maskHeight pixels around src
    static bool ORVANE_CALL FilterMedian_32f_C1(const float* src, int srcStep, float* dst, int dstStep, int width,
                                                int height, int maskWidth, int maskHeight);
    /// dst = first in order of the 3x3 pixels around src (always true)
    static bool ORVANE_CALL Erode3x3_8u_C1(const unsigned char* src, int srcStep, unsigned char* dst, int dstStep,
                                           int width, int height);
    /// srcDst = first in order of the 3x3 pixels around srcDst (always true)
    static bool ORVANE_CALL Erode3x3_8u_C1I(unsigned char* srcDst, int srcDstStep, int width, int height);
    /// dst = first in order of the 3x3 pixels around src, of each channel
    static bool ORVANE_CALL Erode3x3_8u_C3(const unsigned char* src, int srcStep, unsigned char* dst, int dstStep,
                                           int width, int height);
    /// srcDst = first in order of the 3x3 pixels around srcDst, of each channel
    static bool ORVANE_CALL Erode3x3_8u_C3I(unsigned char* srcDst, int srcDstStep, int width, int height);
    /// dst = first in order of the 3x3 pixels around src, of each channel
    static bool ORVANE_CALL Erode3x3_8u_C4(const unsigned char* src, int srcStep, unsigned char* dst, int dstStep,
                                           int width, int height);
    /// srcDst = first in order of the 3x3 pixels around srcDst, of each channel
    static bool ORVANE_CALL Erode3x3_8u_C4I(unsigned char* srcDst, int srcDstStep, int width, int height);
    /// dst = first in order of the 3x3 pixels around src
    static bool ORVANE_CALL Erode3x3_16u_C1(const unsigned short* src, int srcStep, unsigned short* dst, int dstStep,
                                            int width, int height);
    /// srcDst = first in order of the 3x3 pixels around srcDst
    static bool ORVANE_CALL Erode3x3_16u_C1I(unsigned short* srcDst, int srcDstStep, int width, int height);
    /// dst = first in order of the 3x3 pixels around src
    static bool ORVANE_CALL Erode3x3_32f_C1(const float* src, int srcStep, float* dst, int dstStep, int width,
                                            int height);
    /// srcDst = first in order of the 3x3 pixels around srcDst
    static bool ORVANE_CALL Erode3x3_32f_C1I(float* srcDst, int srcDstStep, int width, int height);
    /// dst = last in order of the 3x3 pixels around src (always true)
    static bool ORVANE_CALL Dilate3x3_8u_C1(const unsigned char* src, int srcStep, unsigned char* dst, int dstStep,
                                            int width, int height);
    /// srcDst = last in order of the 3x3 pixels around srcDst (always true)
    static bool ORVANE_CALL Dilate3x3_8u_C1I(unsigned char* srcDst, int srcDstStep, int width, int height);
    /// dst = last in order of the 3x3 pixels around src, of each channel
    static bool ORVANE_CALL Dilate3x3_8u_C3(const unsigned char* src, int srcStep, unsigned char* dst, int dstStep,
                                            int width, int height);
    /// srcDst = last in order of the 3x3 pixels around srcDst, of each channel
    static bool ORVANE_CALL Dilate3x3_8u_C3I(unsigned char* srcDst, int srcDstStep, int width, int height);
    /// dst = last in order of the 3x3 pixels around src, of each channel
    static bool ORVANE_CALL Dilate3x3_8u_C4(const unsigned char* src, int srcStep, unsigned char* dst, int dstStep,
                                            int width, int height);
    /// srcDst = last in order of the 3x3 pixels around srcDst, of each channel
    static bool ORVANE_CALL Dilate3x3_8u_C4I(unsigned char* srcDst, int srcDstStep, int width, int height);
    /// dst = last in order of the 3x3 pixels around src
    static bool ORVANE_CALL Dilate3x3_16u_C1(const unsigned short* src, int srcStep, unsigned short* dst, int dstStep,
                                             int width, int height);
    /// srcDst = last in order of the 3x3 pixels around srcDst
    static bool ORVANE_CALL Dilate3x3_16u_C1I(unsigned short* srcDst, int srcDstStep, int width, int height);
    /// dst = last in order of the 3x3 pixels around src
    static bool ORVANE_CALL Dilate3x3_32f_C1(const float* src, int srcStep, float* dst, int dstStep, int width,
                                             int height);
    /// srcDst = last in order of the 3x3 pixels around srcDst
    static bool ORVANE_CALL Dilate3x3_32f_C1I(float* srcDst, int srcDstStep, int width, int height);
    /// @}

    // --------------------------------------------------------------------------------------------
    /// @name Convolution
    ///
    /// The weighted sum of a neighbourhood, with weights of the caller's, for each channel (the fourth included):
    ///
    ///     sum(x, y) = sum over j = 0 ... kernelHeight - 1 and i = 0 ... kernelWidth - 1 of
    ///                 kernel[j * kernelWidth + i] * src(x + anchorX - i, y + anchorY - j)
    ///
    /// `kernel` is a packed array, top row first. This is a true convolution: the kernel is turned by a half, so that
    /// a single pixel of 1 on zeros becomes the kernel as it stands in memory, its element (anchorX, anchorY) on that
    /// pixel. For a correlation, which many libraries call a convolution, reverse the array and take the
    /// anchor (kernelWidth - 1 - anchorX, kernelHeight - 1 - anchorY).
    ///
    /// The source is read beyond the region: kernelWidth - 1 - anchorX pixels to its left, anchorX to its right,
    /// kernelHeight - 1 - anchorY rows above, anchorY below, also under weights of 0. Those must be readable
    /// memory, reached with the same step; CopyReplicateBorder_* and CopyConstBorder_* make such a frame round an
    /// image. The destination must not overlap the source, its frame or the kernel.
    ///
    /// Integer weights: dst = sum / divisor to the nearest integer, ties to even, saturated to the type. The sum is
    /// exact for any weights, divisors of either sign. Small weights are faster, and so are kernels that are a
    /// column times a row, which are found by themselves (box, binomial and Sobel kernels, say).
    ///
    /// Float weights: taps of weight +0 or -0 are left out, whatever lies under them. The others are taken in the
    /// order of the pixels that they meet, from the top row down, left to right, which is from the end of the kernel
    /// to its start. The sum starts as the first product; each further one is added in double; products of floats are
    /// exact there. In the end the sum is rounded to single, once. Without taps it is +0. A result that is not a number
    /// has all bits set. The error is at most half a unit in the last place plus taps * 2^-53 * sum |weight * pixel|.
    ///
    /// Working memory comes from the heap; when it runs out, false, and nothing is written.
    ///
    /// Checks: null pointer (the kernel's, too), width or height below 1, a step below 1; a side of the kernel
    /// outside 1 ... 255 or an anchor outside the kernel; a divisor of 0.
    /// @{

    /// dst = sum / divisor
    static bool ORVANE_CALL Filter_8u_C1R(const unsigned char* src, int srcStep, unsigned char* dst, int dstStep,
                                          int width, int height, const int* kernel, int kernelWidth, int kernelHeight,
                                          int anchorX, int anchorY, int divisor);
    /// dst = sum / divisor
    static bool ORVANE_CALL Filter_8u_C3R(const unsigned char* src, int srcStep, unsigned char* dst, int dstStep,
                                          int width, int height, const int* kernel, int kernelWidth, int kernelHeight,
                                          int anchorX, int anchorY, int divisor);
    /// dst = sum / divisor
    static bool ORVANE_CALL Filter_8u_C4R(const unsigned char* src, int srcStep, unsigned char* dst, int dstStep,
                                          int width, int height, const int* kernel, int kernelWidth, int kernelHeight,
                                          int anchorX, int anchorY, int divisor);
    /// dst = sum / divisor
    static bool ORVANE_CALL Filter_16u_C1R(const unsigned short* src, int srcStep, unsigned short* dst, int dstStep,
                                           int width, int height, const int* kernel, int kernelWidth, int kernelHeight,
                                           int anchorX, int anchorY, int divisor);
    /// dst = sum / divisor
    static bool ORVANE_CALL Filter_16s_C1R(const short* src, int srcStep, short* dst, int dstStep, int width,
                                           int height, const int* kernel, int kernelWidth, int kernelHeight,
                                           int anchorX, int anchorY, int divisor);
    /// dst = sum / divisor: derivatives keep their sign
    static bool ORVANE_CALL Filter_8u16s_C1R(const unsigned char* src, int srcStep, short* dst, int dstStep, int width,
                                             int height, const int* kernel, int kernelWidth, int kernelHeight,
                                             int anchorX, int anchorY, int divisor);
    /// dst = sum
    static bool ORVANE_CALL Filter_32f_C1R(const float* src, int srcStep, float* dst, int dstStep, int width,
                                           int height, const float* kernel, int kernelWidth, int kernelHeight,
                                           int anchorX, int anchorY);
    /// dst = sum
    static bool ORVANE_CALL Filter_32f_C3R(const float* src, int srcStep, float* dst, int dstStep, int width,
                                           int height, const float* kernel, int kernelWidth, int kernelHeight,
                                           int anchorX, int anchorY);
    /// dst = sum
    static bool ORVANE_CALL Filter_8u32f_C1R(const unsigned char* src, int srcStep, float* dst, int dstStep, int width,
                                             int height, const float* kernel, int kernelWidth, int kernelHeight,
                                             int anchorX, int anchorY);
    /// dst = sum
    static bool ORVANE_CALL Filter_16u32f_C1R(const unsigned short* src, int srcStep, float* dst, int dstStep,
                                              int width, int height, const float* kernel, int kernelWidth,
                                              int kernelHeight, int anchorX, int anchorY);
    /// @}

    // --------------------------------------------------------------------------------------------
    /// @name Statistics
    ///
    /// Values of a whole region. Three- and four-channel forms write one result for each channel, in order, to
    /// an array of 3 or 4 elements. Results are written only when the method succeeds.
    ///
    /// Sums and means of integer images are the exact sum, rounded once to double (exact below 2^53), and that
    /// sum divided by width * height. A standard deviation is that of the population (divisor n = width *
    /// height): sqrt(|sum of squares / n - mean^2|), in double; either of the two results may be null and is then
    /// left out.
    ///
    /// Sums of float images are added up in double in one fixed order, for each channel: pixels of even
    /// columns to one running sum, those of odd columns to a second, row by row from the top, and in the end
    /// both together. `fast` asks for speed (true) or accuracy (false); both give the same bits. A sum that
    /// is not a number is the quiet NaN 0x7FF8000000000000. Images whose values come from 8- or 16-bit data,
    /// also scaled by a constant, are summed two to five times as fast as others.
    ///
    /// Extremes. Searches stop early at the end of the type's range, which shows only in time. Positions are
    /// those of the first such pixel row by row, left to right, counted from 0. Float extremes leave out NaNs; a
    /// channel of nothing but NaNs gives the quiet NaN 0x7FC00000. Of -0 and +0, which compare equal, the first
    /// one met counts.
    ///
    /// Histograms. levels[0] = lowerLevel; with d = upperLevel - lowerLevel, m = levelCount - 1 and division
    /// toward zero, each next level lies d / m above the one before and the first |d % m| steps are one longer
    /// (away from 0), so that levels[m] = upperLevel. Any two levels are legal. histogram[k], k = 0 ... m - 1,
    /// counts the pixels with levels[k] <= pixel < levels[k + 1]: all 0 where the levels fall. `levels`
    /// receives levelCount elements, `histogram` one less.
    ///
    /// Checks: null pointer, width or height below 1. Steps are not checked but by Mean_StdDev and
    /// HistogramEven, which refuse a step below 1 or shorter than a row, in bytes; HistogramEven then refuses
    /// fewer than 2 levels.
    /// @{

    /// sum = sum of src
    static bool ORVANE_CALL Sum_8u_C1R(const unsigned char* src, int srcStep, int width, int height, double* sum);
    /// sum[c] = sum of src[c]
    static bool ORVANE_CALL Sum_8u_C3R(const unsigned char* src, int srcStep, int width, int height, double* sum);
    /// sum[c] = sum of src[c]
    static bool ORVANE_CALL Sum_8u_C4R(const unsigned char* src, int srcStep, int width, int height, double* sum);
    /// sum = sum of src
    static bool ORVANE_CALL Sum_16u_C1R(const unsigned short* src, int srcStep, int width, int height, double* sum);
    /// sum = sum of src
    static bool ORVANE_CALL Sum_16s_C1R(const short* src, int srcStep, int width, int height, double* sum);
    /// sum = sum of src
    static bool ORVANE_CALL Sum_32f_C1R(const float* src, int srcStep, int width, int height, double* sum, bool fast);
    /// sum[c] = sum of src[c]
    static bool ORVANE_CALL Sum_32f_C3R(const float* src, int srcStep, int width, int height, double* sum, bool fast);
    /// mean = sum of src / (width * height)
    static bool ORVANE_CALL Mean_8u_C1R(const unsigned char* src, int srcStep, int width, int height, double* mean);
    /// mean[c] = sum of src[c] / (width * height)
    static bool ORVANE_CALL Mean_8u_C3R(const unsigned char* src, int srcStep, int width, int height, double* mean);
    /// mean[c] = sum of src[c] / (width * height)
    static bool ORVANE_CALL Mean_8u_C4R(const unsigned char* src, int srcStep, int width, int height, double* mean);
    /// mean = sum of src / (width * height)
    static bool ORVANE_CALL Mean_16u_C1R(const unsigned short* src, int srcStep, int width, int height, double* mean);
    /// mean = sum of src / (width * height)
    static bool ORVANE_CALL Mean_16s_C1R(const short* src, int srcStep, int width, int height, double* mean);
    /// mean = sum of src / (width * height)
    static bool ORVANE_CALL Mean_32f_C1R(const float* src, int srcStep, int width, int height, double* mean, bool fast);
    /// mean[c] = sum of src[c] / (width * height)
    static bool ORVANE_CALL Mean_32f_C3R(const float* src, int srcStep, int width, int height, double* mean, bool fast);

    /// mean = sum of src / n, stdDev = sqrt(|sum of src^2 / n - mean^2|), n = width * height
    static bool ORVANE_CALL Mean_StdDev_8u_C1R(const unsigned char* src, int srcStep, int width, int height,
                                               double* mean, double* stdDev);
    /// mean = sum of src / n, stdDev = sqrt(|sum of src^2 / n - mean^2|), n = width * height
    static bool ORVANE_CALL Mean_StdDev_16u_C1R(const unsigned short* src, int srcStep, int width, int height,
                                                double* mean, double* stdDev);

    /// minimum = least of src
    static bool ORVANE_CALL Min_8u_C1(const unsigned char* src, int srcStep, int width, int height,
                                      unsigned char* minimum);
    /// minimum[c] = least of src[c]
    static bool ORVANE_CALL Min_8u_C3(const unsigned char* src, int srcStep, int width, int height,
                                      unsigned char* minimum);
    /// minimum = least of src
    static bool ORVANE_CALL Min_16u_C1(const unsigned short* src, int srcStep, int width, int height,
                                       unsigned short* minimum);
    /// minimum = least of src
    static bool ORVANE_CALL Min_16s_C1(const short* src, int srcStep, int width, int height, short* minimum);
    /// minimum = least of src
    static bool ORVANE_CALL Min_32f_C1(const float* src, int srcStep, int width, int height, float* minimum);
    /// minimum[c] = least of src[c]
    static bool ORVANE_CALL Min_32f_C3(const float* src, int srcStep, int width, int height, float* minimum);
    /// maximum = greatest of src
    static bool ORVANE_CALL Max_8u_C1(const unsigned char* src, int srcStep, int width, int height,
                                      unsigned char* maximum);
    /// maximum[c] = greatest of src[c]
    static bool ORVANE_CALL Max_8u_C4(const unsigned char* src, int srcStep, int width, int height,
                                      unsigned char* maximum);
    /// maximum = greatest of src
    static bool ORVANE_CALL Max_16u_C1(const unsigned short* src, int srcStep, int width, int height,
                                       unsigned short* maximum);
    /// maximum = greatest of src
    static bool ORVANE_CALL Max_16s_C1(const short* src, int srcStep, int width, int height, short* maximum);
    /// maximum = greatest of src
    static bool ORVANE_CALL Max_32f_C1(const float* src, int srcStep, int width, int height, float* maximum);
    /// maximum[c] = greatest of src[c]
    static bool ORVANE_CALL Max_32f_C3(const float* src, int srcStep, int width, int height, float* maximum);
    /// minimum = least, maximum = greatest of src
    static bool ORVANE_CALL MinMax_8u_C1(const unsigned char* src, int srcStep, int width, int height,
                                         unsigned char* minimum, unsigned char* maximum);
    /// minimum[c] = least, maximum[c] = greatest of src[c]
    static bool ORVANE_CALL MinMax_8u_C3(const unsigned char* src, int srcStep, int width, int height,
                                         unsigned char* minimum, unsigned char* maximum);
    /// minimum[c] = least, maximum[c] = greatest of src[c]
    static bool ORVANE_CALL MinMax_8u_C4(const unsigned char* src, int srcStep, int width, int height,
                                         unsigned char* minimum, unsigned char* maximum);
    /// minimum = least, maximum = greatest of src
    static bool ORVANE_CALL MinMax_16u_C1(const unsigned short* src, int srcStep, int width, int height,
                                          unsigned short* minimum, unsigned short* maximum);
    /// minimum = least, maximum = greatest of src
    static bool ORVANE_CALL MinMax_16s_C1(const short* src, int srcStep, int width, int height, short* minimum,
                                          short* maximum);
    /// minimum = least, maximum = greatest of src
    static bool ORVANE_CALL MinMax_32f_C1(const float* src, int srcStep, int width, int height, float* minimum,
                                          float* maximum);
    /// minimum[c] = least, maximum[c] = greatest of src[c]
    static bool ORVANE_CALL MinMax_32f_C3(const float* src, int srcStep, int width, int height, float* minimum,
                                          float* maximum);
    /// minimum = src(column, row), the first of the least pixels
    static bool ORVANE_CALL MinIndx_8u_C1R(const unsigned char* src, int srcStep, int width, int height,
                                           unsigned char* minimum, int* column, int* row);
    /// minimum = src(column, row), the first of the least pixels
    static bool ORVANE_CALL MinIndx_16u_C1R(const unsigned short* src, int srcStep, int width, int height,
                                            unsigned short* minimum, int* column, int* row);
    /// maximum = src(column, row), the first of the greatest pixels
    static bool ORVANE_CALL MaxIndx_8u_C1R(const unsigned char* src, int srcStep, int width, int height,
                                           unsigned char* maximum, int* column, int* row);
    /// maximum = src(column, row), the first of the greatest pixels
    static bool ORVANE_CALL MaxIndx_16u_C1R(const unsigned short* src, int srcStep, int width, int height,
                                            unsigned short* maximum, int* column, int* row);

    /// histogram[k] = number of pixels with levels[k] <= src < levels[k + 1]
    static bool ORVANE_CALL HistogramEven_8u_C1(const unsigned char* src, int srcStep, int width, int height,
                                                int* histogram, int* levels, int levelCount, int lowerLevel,
                                                int upperLevel);
    /// histogram[k] = number of pixels with levels[k] <= src < levels[k + 1]
    static bool ORVANE_CALL HistogramEven_16u_C1(const unsigned short* src, int srcStep, int width, int height,
                                                 int* histogram, int* levels, int levelCount, int lowerLevel,
                                                 int upperLevel);
    /// @}

    // --------------------------------------------------------------------------------------------
    /// @name Packed spectra and windows
    ///
    /// A width x height = W x H float image, any W and H from 1 on, holds the spectrum F[v][u] =
    /// conj(F[(H-v) % H][(W-u) % W]) of a real image, in the order that FFT2Wrapper writes: columns 2u-1 and 2u of row
    /// v are the real and the imaginary part of F[v][u] for u = 1 to (W-1)/2. Column 0 holds F[v][0] down the column:
    /// row 0 the real F[0][0], rows 2v-1 and 2v the two parts for v = 1 to (H-1)/2, for even H row H-1 the real
    /// F[H/2][0]. For even W column W-1 holds F[v][W/2] in the same way. The values with u in {0, W/2} and v in {0,
    /// H/2} are real by symmetry: their imaginary part is +0.
    ///
    /// Products are formed in double, in which products of two floats are exact, and rounded to float:
    ///
    ///     a b        re = a.re * b.re - a.im * b.im    im = a.re * b.im + a.im * b.re
    ///     a conj(b)  re = a.re * b.re + a.im * b.im    im = a.im * b.re - a.re * b.im
    ///
    /// and a * b where both are real. A part that is not a number is 0xFFC00000. The destination may be exactly one of
    /// the sources. A product with the spectrum of a kernel is a circular convolution, with its conjugate a circular
    /// correlation; frames of zeros make them plain ones.
    ///
    /// Magnitudes are sqrt(re * re + im * im) in double, rounded to float; 0xFFC00000 for what is not a number. Phases
    /// are the bits of SignalProcessingWrapper::Atan2_32f_A24 for (im, re), from -pi to pi; 0x7FC00000 for what is not
    /// a number. The Pack forms write all W x H of them; a value that is not stored has the imaginary part of its
    /// twin with the other sign. A negative real value has the phase +pi; zeros have that of their signs, 0 or pi.
    ///
    /// PackToCplxExtend writes all W x H values, CplxExtendToPack reads those that are stored (all rows of u = 1 to
    /// (W-1)/2; of u = 0 and W/2 the rows 0 to H/2) and drops the imaginary parts of real ones. Both move bits; of what
    /// is mirrored the imaginary part has the other sign, NaNs too. Packing what the other has written gives the same
    /// bits.
    ///
    /// Windows: dst = src * (wx(x) * wy(y)) in double, rounded to float, where wx and wy are the windows of width and
    /// height. They are symmetric, w[k] = w[N-1-k], not periodic. Hamming: 0.54 - 0.46 * cos(2 * pi * k / (N-1)),
    /// the weights of SignalProcessingWrapper::WinHamming_32f. Bartlett: 2 * k / (N-1) for k <= (N-1)/2, 0 at the ends.
    /// A NaN keeps its bits and becomes quiet; zero times infinity is 0xFFC00000. The destination may be exactly the
    /// source.
    ///
    /// Other overlaps are not supported. Checks: null pointer, width or height below 1 (windows: below 3), a step
    /// below 1; windows take working memory from the heap, and write nothing when it runs out.
    /// @{

    /// dst = src1 * src2, packed spectra
    static bool ORVANE_CALL MulPack_32f_C1R(const float* src1, int src1Step, const float* src2, int src2Step,
                                            float* dst, int dstStep, int width, int height);
    /// srcDst = src * srcDst, packed spectra
    static bool ORVANE_CALL MulPack_32f_C1IR(const float* src, int srcStep, float* srcDst, int srcDstStep, int width,
                                             int height);
    /// dst = src1 * conj(src2), packed spectra
    static bool ORVANE_CALL MulPackConj_32f_C1R(const float* src1, int src1Step, const float* src2, int src2Step,
                                                float* dst, int dstStep, int width, int height);
    /// srcDst = src * conj(srcDst), packed spectra: the conjugate of the operand in place
    static bool ORVANE_CALL MulPackConj_32f_C1IR(const float* src, int srcStep, float* srcDst, int srcDstStep,
                                                 int width, int height);
    /// dst(u, v) = |F[v][u]|, all W x H of them, of a packed spectrum
    static bool ORVANE_CALL MagnitudePack_32f_C1R(const float* src, int srcStep, float* dst, int dstStep, int width,
                                                  int height);
    /// dst(u, v) = angle of F[v][u], all W x H of them, of a packed spectrum
    static bool ORVANE_CALL PhasePack_32f_C1R(const float* src, int srcStep, float* dst, int dstStep, int width,
                                              int height);
    /// dst(u, v) = F[v][u], all W x H of them, of a packed spectrum
    static bool ORVANE_CALL PackToCplxExtend_32f32fc_C1R(const float* src, int srcStep, Complex32f* dst, int dstStep,
                                                         int width, int height);
    /// dst = the packed spectrum of which src has all W x H values
    static bool ORVANE_CALL CplxExtendToPack_32fc32f_C1R(const Complex32f* src, int srcStep, float* dst, int dstStep,
                                                         int width, int height);
    /// dst = |src|
    static bool ORVANE_CALL Magnitude_32fc32f_C1R(const Complex32f* src, int srcStep, float* dst, int dstStep,
                                                  int width, int height);
    /// dst = angle of src
    static bool ORVANE_CALL Phase_32fc32f_C1R(const Complex32f* src, int srcStep, float* dst, int dstStep, int width,
                                              int height);
    /// dst = src * (wx * wy), Hamming windows
    static bool ORVANE_CALL WinHamming_32f_C1R(const float* src, int srcStep, float* dst, int dstStep, int width,
                                               int height);
    /// dst = src * (wx * wy), Bartlett windows: triangles
    static bool ORVANE_CALL WinBartlett_32f_C1R(const float* src, int srcStep, float* dst, int dstStep, int width,
                                                int height);
    /// @}

    // --------------------------------------------------------------------------------------------
    /// @name Small matrices
    ///
    /// Two operations of the family that MatrixWrapper describes: strides in bytes, at least 1 and a
    /// multiple of 4. Checks: null pointer; a size, then a count, below 1; inner sizes that differ;
    /// strides. Copies move bits as they are, also those of NaNs.
    /// @{

    /// dst = src1 * src2: the same operation as MatrixWrapper::Mul_mm_32f
    static bool ORVANE_CALL Mul_mm_32f(const float* src1, int src1Stride1, int src1Stride2, int src1Width,
                                       int src1Height, const float* src2, int src2Stride1, int src2Stride2,
                                       int src2Width, int src2Height, float* dst, int dstStride1, int dstStride2);
    /// dst = src, for each of the `count` matrices, which lie stride0 bytes apart
    static bool ORVANE_CALL Copy_ma_32f_SS(const float* src, int srcStride0, int srcStride1, int srcStride2,
                                           float* dst, int dstStride0, int dstStride1, int dstStride2, int width,
                                           int height, int count);
    /// @}

    // --------------------------------------------------------------------------------------------
    /// @name Time
    ///
    /// The processor's time-stamp counter, read after all earlier instructions have completed. On current processors it
    /// counts at a constant rate of its own, not at that of the core, and another one on other machines: good
    /// for ratios of times on one machine. Values of one thread on one processor never fall; for others the operating
    /// system's clock is right.
    /// @{

    /// The counter's value; 0 on a processor without one
    static unsigned long long ORVANE_CALL GetCpuClocks();
    /// @}

private:
    /// The shifts of a zoom, as the methods of zoom and pan compute them
    static void ORVANE_CALL CalculateShift(int srcWidth, int srcHeight, int dstWidth, float zoom, int panX, int panY,
                                           double& xShift, double& yShift);

protected:
    /// Does nothing: the class has no instances.
    ImageProcessingWrapper(const ImageProcessingWrapper& other);
    /// Does nothing, likewise.
    ~ImageProcessingWrapper();
};

/// Returns 42.
ORVANE_API int ORVANE_CALL fnImageProcessingWrapper();

/// Starts as 0; the library neither reads nor writes it.
extern ORVANE_API int nImageProcessingWrapper;

#endif
