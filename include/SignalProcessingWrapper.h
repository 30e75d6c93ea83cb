// One-dimensional vector operations.
#ifndef ORVANE_SIGNAL_PROCESSING_WRAPPER_H
#define ORVANE_SIGNAL_PROCESSING_WRAPPER_H

#include "Complex32f.h"
#include "Export.h"

/// Vector operations, one static method per operation and element type.
///
/// **Vectors.** A vector is a pointer to its first element and a length in elements; the length is the
/// same for all vectors of a call. Pointers need no alignment beyond that of the element type.
///
/// **Results.** As in ImageProcessingWrapper: true exactly when the operation completed without an
/// error and without a warning. Errors write nothing; warnings give false, but everything is written.
/// Methods that depart from this say so.
///
/// **Aliasing.** The vectors of copies may overlap in any way. In vector arithmetic, elementary functions, vector
/// spectra and windows a destination may be exactly one of its sources, same pointer and same element type; one that
/// begins elsewhere within a source is not supported in any of these families: what is then written depends on the
/// processor. Two destinations of a call share no memory.
///
/// **Threads, processors.** No state; all variants of an operation give the same bits.
class ORVANE_API SignalProcessingWrapper {
public:
    /// Does nothing: the class has no state.
    SignalProcessingWrapper& operator=(const SignalProcessingWrapper& other);

    // --------------------------------------------------------------------------------------------
    /// @name Buffers
    ///
    /// `len` elements on a 64-byte boundary, not cleared. Null for a length below 1 and when memory
    /// runs out. Sizes are 32-bit products that nothing checks: stay below 2^31 bytes. Release with
    /// Free().
    /// @{

    /// Allocates len elements of 1 byte.
    static unsigned char* ORVANE_CALL Malloc_8u(int len);
    /// Allocates len elements of 2 bytes.
    static unsigned short* ORVANE_CALL Malloc_16u(int len);
    /// Allocates len elements of 4 bytes.
    static int* ORVANE_CALL Malloc_32s(int len);
    /// Allocates len elements of 4 bytes.
    static float* ORVANE_CALL Malloc_32f(int len);
    /// Allocates len elements of 8 bytes.
    static double* ORVANE_CALL Malloc_64f(int len);
    /// Allocates len elements of 8 bytes.
    static Complex32f* ORVANE_CALL Malloc_32fc(int len);
    /// Releases what a Malloc method returned; does nothing for null.
    static void ORVANE_CALL Free(void* buffer);
    /// @}

    // --------------------------------------------------------------------------------------------
    /// @name Filling and moving
    ///
    /// Elements are moved as they are: of a NaN, too, every bit is kept. The vectors of a copy may overlap in any way:
    /// the destination receives what the source held before the call.
    ///
    /// Checks: null pointer, len below 1. Zero_16u and Copy_16u are always true: where the others refuse, these do
    /// nothing and say nothing.
    /// @{

    /// dst = value
    static bool ORVANE_CALL Set_8u(unsigned char value, unsigned char* dst, int len);
    /// dst = value
    static bool ORVANE_CALL Set_16u(unsigned short value, unsigned short* dst, int len);
    /// dst = value
    static bool ORVANE_CALL Set_32s(int value, int* dst, int len);
    /// dst = value
    static bool ORVANE_CALL Set_32f(float value, float* dst, int len);
    /// dst = value
    static bool ORVANE_CALL Set_64f(double value, double* dst, int len);
    /// dst = value
    static bool ORVANE_CALL Set_32fc(Complex32f value, Complex32f* dst, int len);

    /// dst = 0
    static bool ORVANE_CALL Zero_8u(unsigned char* dst, int len);
    /// dst = 0. Always true.
    static bool ORVANE_CALL Zero_16u(unsigned short* dst, int len);
    /// dst = 0
    static bool ORVANE_CALL Zero_32s(int* dst, int len);
    /// dst = 0
    static bool ORVANE_CALL Zero_32f(float* dst, int len);
    /// dst = 0
    static bool ORVANE_CALL Zero_64f(double* dst, int len);
    /// dst = 0
    static bool ORVANE_CALL Zero_32fc(Complex32f* dst, int len);

    /// dst = src
    static bool ORVANE_CALL Copy_8u(const unsigned char* src, unsigned char* dst, int len);
    /// dst = src. Always true.
    static bool ORVANE_CALL Copy_16u(const unsigned short* src, unsigned short* dst, int len);
    /// dst = src
    static bool ORVANE_CALL Copy_32s(const int* src, int* dst, int len);
    /// dst = src
    static bool ORVANE_CALL Copy_32f(const float* src, float* dst, int len);
    /// dst = src
    static bool ORVANE_CALL Copy_64f(const double* src, double* dst, int len);
    /// dst = src
    static bool ORVANE_CALL Copy_32fc(const Complex32f* src, Complex32f* dst, int len);
    /// @}

    // --------------------------------------------------------------------------------------------
    /// @name Conversion
    ///
    /// dst = src in another type of elements:
    ///
    ///   to a type that holds every value    exact
    ///   to narrower integers                saturated; negative values become 0 in unsigned types
    ///   32s to 32f, 64f to 32f              rounded to nearest, ties to even; beyond the range infinity, below it
    ///                                       subnormal numbers or 0
    ///   32f, 64f to integers                the nearest integer, ties to even, saturated; a NaN gives 0
    ///
    /// Between 32f and 64f a NaN keeps its sign and the upper bits of its payload, and becomes quiet.
    ///
    /// Signed 16-bit samples enter as 32f and leave so.
    ///
    /// dst may be exactly src where the elements of both have one size; other overlaps are not supported. Checks: null
    /// pointer, len below 1.
    /// @{

    /// dst = src, 8u to 16u
    static bool ORVANE_CALL Convert_8u16u(const unsigned char* src, unsigned short* dst, int len);
    /// dst = src, 8u to 32s
    static bool ORVANE_CALL Convert_8u32s(const unsigned char* src, int* dst, int len);
    /// dst = src, 8u to 32f
    static bool ORVANE_CALL Convert_8u32f(const unsigned char* src, float* dst, int len);
    /// dst = src, 8u to 64f
    static bool ORVANE_CALL Convert_8u64f(const unsigned char* src, double* dst, int len);
    /// dst = src, 16u to 8u
    static bool ORVANE_CALL Convert_16u8u(const unsigned short* src, unsigned char* dst, int len);
    /// dst = src, 16u to 32s
    static bool ORVANE_CALL Convert_16u32s(const unsigned short* src, int* dst, int len);
    /// dst = src, 16u to 32f
    static bool ORVANE_CALL Convert_16u32f(const unsigned short* src, float* dst, int len);
    /// dst = src, 16u to 64f
    static bool ORVANE_CALL Convert_16u64f(const unsigned short* src, double* dst, int len);
    /// dst = src, 32s to 8u
    static bool ORVANE_CALL Convert_32s8u(const int* src, unsigned char* dst, int len);
    /// dst = src, 32s to 16u
    static bool ORVANE_CALL Convert_32s16u(const int* src, unsigned short* dst, int len);
    /// dst = src, 32s to 32f
    static bool ORVANE_CALL Convert_32s32f(const int* src, float* dst, int len);
    /// dst = src, 32s to 64f
    static bool ORVANE_CALL Convert_32s64f(const int* src, double* dst, int len);
    /// dst = src, 32f to 8u
    static bool ORVANE_CALL Convert_32f8u(const float* src, unsigned char* dst, int len);
    /// dst = src, 32f to 16u
    static bool ORVANE_CALL Convert_32f16u(const float* src, unsigned short* dst, int len);
    /// dst = src, 32f to 32s
    static bool ORVANE_CALL Convert_32f32s(const float* src, int* dst, int len);
    /// dst = src, 32f to 64f
    static bool ORVANE_CALL Convert_32f64f(const float* src, double* dst, int len);
    /// dst = src, 64f to 8u
    static bool ORVANE_CALL Convert_64f8u(const double* src, unsigned char* dst, int len);
    /// dst = src, 64f to 16u
    static bool ORVANE_CALL Convert_64f16u(const double* src, unsigned short* dst, int len);
    /// dst = src, 64f to 32s
    static bool ORVANE_CALL Convert_64f32s(const double* src, int* dst, int len);
    /// dst = src, 64f to 32f
    static bool ORVANE_CALL Convert_64f32f(const double* src, float* dst, int len);
    /// dst = src, 16s to 32f
    static bool ORVANE_CALL Convert_16s32f(const short* src, float* dst, int len);
    /// dst = src, 32f to 16s
    static bool ORVANE_CALL Convert_32f16s(const float* src, short* dst, int len);
    /// @}

    // --------------------------------------------------------------------------------------------
    /// @name Slopes and ramps
    ///
    /// Values at even distances, computed in double, then converted to the type of the elements: 64f as they are, 32f
    /// rounded to nearest, integers to the nearest one with ties to even, saturated.
    ///
    /// Each element comes from its own index i = 0, 1, ... len - 1, which is exact, by one product and one sum, each
    /// rounded: no error adds up along the vector. Beyond the range of doubles a slope is infinite.
    ///
    /// A ramp is first + step i, where step = (last - first) / (len - 1) is rounded after the difference and after the
    /// quotient. Its ends are first and last themselves; one element is first. If the difference overflows, all
    /// between the ends are infinite.
    ///
    /// A NaN is 0xFFF8000000000000, as a float 0xFFC00000, as an integer 0.
    ///
    /// Checks: null pointer, len below 1.
    /// @{

    /// dst[i] = offset + slope i
    static bool ORVANE_CALL VectorSlope_8u(double offset, double slope, unsigned char* dst, int len);
    /// dst[i] = offset + slope i
    static bool ORVANE_CALL VectorSlope_16u(double offset, double slope, unsigned short* dst, int len);
    /// dst[i] = offset + slope i
    static bool ORVANE_CALL VectorSlope_32s(double offset, double slope, int* dst, int len);
    /// dst[i] = offset + slope i
    static bool ORVANE_CALL VectorSlope_32f(double offset, double slope, float* dst, int len);
    /// dst[i] = offset + slope i
    static bool ORVANE_CALL VectorSlope_64f(double offset, double slope, double* dst, int len);

    /// dst[i] = first + i (last - first) / (len - 1), from first to last
    static bool ORVANE_CALL VectorRamp_8u(double first, double last, unsigned char* dst, int len);
    /// dst[i] = first + i (last - first) / (len - 1), from first to last
    static bool ORVANE_CALL VectorRamp_16u(double first, double last, unsigned short* dst, int len);
    /// dst[i] = first + i (last - first) / (len - 1), from first to last
    static bool ORVANE_CALL VectorRamp_32s(double first, double last, int* dst, int len);
    /// dst[i] = first + i (last - first) / (len - 1), from first to last
    static bool ORVANE_CALL VectorRamp_32f(double first, double last, float* dst, int len);
    /// dst[i] = first + i (last - first) / (len - 1), from first to last
    static bool ORVANE_CALL VectorRamp_64f(double first, double last, double* dst, int len);
    /// @}

    // --------------------------------------------------------------------------------------------
    /// @name Vector arithmetic
    ///
    /// The second source is the left operand: src2 - src1, src2 / src1; in place, srcDst - src, srcDst / src.
    /// With constants the vector is the left operand, src - value; in the Rev forms the value is.
    ///
    /// Integers (8u, 16u, 32s): the exact result (for quotients the exact quotient) times 2^-scaleFactor, rounded
    /// to the nearest integer with ties to even, saturated to the type: scaled(x) below. Any scale factor is
    /// legal. An unsigned difference below 0 is 0 before it is scaled. Over a zero divisor a positive dividend
    /// gives the largest value of the type, a negative one the smallest, and 0 gives 0; the result is then
    /// false, but everything is written.
    /// DivCRev_16u has no scale factor and rounds in fixed point: q = floor(65536 value / src), the result is
    /// floor((q + 32767 + (2 if bit 16 of q is set, else 0)) / 65536).
    ///
    /// Floats (32f, 64f): IEEE results, rounded once. Of two NaNs the left operand's is the result; NaNs become
    /// quiet. Over a divisor of 0 or -0 a positive dividend gives infinity, a negative one -infinity, 0 and a
    /// NaN the NaN with the sign bit set (0xFFC00000, 0xFFF8000000000000); the result is then false, but
    /// everything is written. DivC multiplies by the reciprocal of the value, rounded once, so it may differ
    /// from a true quotient in the last place; a value of 0 is refused and nothing is written.
    /// AddProduct: the product and the sum in double, rounded to float once; NaNs are 0xFFC00000.
    ///
    /// Checks: null pointer, len below 1, then a float divisor value of 0.
    ///
    /// The destination may be exactly one of the sources; other overlaps are not supported. The I forms take a
    /// temporary from the heap; when memory runs out, or for vectors larger than 2^31 - 1 bytes, they write nothing
    /// and report a failure.
    ///
    /// The results of 18 I forms are inverted: true on failure (and after a warning), false on success. Three
    /// others are always true. Each says so below; hosts depend on it. The order of the arguments of the
    /// constant I forms differs, too.
    /// @{

    /// dst = scaled(src2 + src1)
    static bool ORVANE_CALL Add_8u(const unsigned char* src1, const unsigned char* src2, unsigned char* dst, int len,
                                   int scaleFactor);
    /// srcDst = scaled(srcDst + src)
    static bool ORVANE_CALL Add_8u_I(const unsigned char* src, unsigned char* srcDst, int len, int scaleFactor);
    /// dst = scaled(src2 - src1)
    static bool ORVANE_CALL Sub_8u(const unsigned char* src1, const unsigned char* src2, unsigned char* dst, int len,
                                   int scaleFactor);
    /// srcDst = scaled(srcDst - src)
    static bool ORVANE_CALL Sub_8u_I(const unsigned char* src, unsigned char* srcDst, int len, int scaleFactor);
    /// dst = scaled(src2 * src1)
    static bool ORVANE_CALL Mul_8u(const unsigned char* src1, const unsigned char* src2, unsigned char* dst, int len,
                                   int scaleFactor);
    /// srcDst = scaled(srcDst * src). Inverted: true on failure, false on success.
    static bool ORVANE_CALL Mul_8u_I(const unsigned char* src, unsigned char* srcDst, int len, int scaleFactor);
    /// dst = scaled(src2 / src1)
    static bool ORVANE_CALL Div_8u(const unsigned char* src1, const unsigned char* src2, unsigned char* dst, int len,
                                   int scaleFactor);
    /// srcDst = scaled(srcDst / src). Inverted: true on failure, false on success.
    static bool ORVANE_CALL Div_8u_I(const unsigned char* src, unsigned char* srcDst, int len, int scaleFactor);
    /// dst = scaled(src + value)
    static bool ORVANE_CALL AddC_8u(const unsigned char* src, unsigned char value, unsigned char* dst, int len,
                                    int scaleFactor);
    /// srcDst = scaled(srcDst + value)
    static bool ORVANE_CALL AddC_8u_I(unsigned char* srcDst, unsigned char value, int len, int scaleFactor);
    /// dst = scaled(src - value)
    static bool ORVANE_CALL SubC_8u(const unsigned char* src, unsigned char value, unsigned char* dst, int len,
                                    int scaleFactor);
    /// srcDst = scaled(srcDst - value). Inverted: true on failure, false on success.
    static bool ORVANE_CALL SubC_8u_I(unsigned char value, unsigned char* srcDst, int len, int scaleFactor);
    /// dst = scaled(value - src)
    static bool ORVANE_CALL SubCRev_8u(const unsigned char* src, unsigned char value, unsigned char* dst, int len,
                                       int scaleFactor);
    /// srcDst = scaled(value - srcDst)
    static bool ORVANE_CALL SubCRev_8u_I(unsigned char value, unsigned char* srcDst, int len, int scaleFactor);
    /// dst = scaled(src * value)
    static bool ORVANE_CALL MulC_8u(const unsigned char* src, unsigned char value, unsigned char* dst, int len,
                                    int scaleFactor);
    /// srcDst = scaled(srcDst * value). Inverted: true on failure, false on success.
    static bool ORVANE_CALL MulC_8u_I(unsigned char value, unsigned char* srcDst, int len, int scaleFactor);
    /// dst = scaled(src / value)
    static bool ORVANE_CALL DivC_8u(const unsigned char* src, unsigned char value, unsigned char* dst, int len,
                                    int scaleFactor);
    /// srcDst = scaled(srcDst / value). Inverted: true on failure, false on success.
    static bool ORVANE_CALL DivC_8u_I(unsigned char value, unsigned char* srcDst, int len, int scaleFactor);

    /// dst = scaled(src2 + src1)
    static bool ORVANE_CALL Add_16u(const unsigned short* src1, const unsigned short* src2, unsigned short* dst,
                                    int len, int scaleFactor);
    /// srcDst = scaled(srcDst + src). Inverted: true on failure, false on success.
    static bool ORVANE_CALL Add_16u_I(const unsigned short* src, unsigned short* srcDst, int len, int scaleFactor);
    /// dst = scaled(src2 - src1)
    static bool ORVANE_CALL Sub_16u(const unsigned short* src1, const unsigned short* src2, unsigned short* dst,
                                    int len, int scaleFactor);
    /// srcDst = scaled(srcDst - src). Inverted: true on failure, false on success.
    static bool ORVANE_CALL Sub_16u_I(const unsigned short* src, unsigned short* srcDst, int len, int scaleFactor);
    /// dst = scaled(src2 * src1)
    static bool ORVANE_CALL Mul_16u(const unsigned short* src1, const unsigned short* src2, unsigned short* dst,
                                    int len, int scaleFactor);
    /// srcDst = scaled(srcDst * src). Inverted: true on failure, false on success.
    static bool ORVANE_CALL Mul_16u_I(const unsigned short* src, unsigned short* srcDst, int len, int scaleFactor);
    /// dst = scaled(src2 / src1)
    static bool ORVANE_CALL Div_16u(const unsigned short* src1, const unsigned short* src2, unsigned short* dst,
                                    int len, int scaleFactor);
    /// srcDst = scaled(srcDst / src). Inverted: true on failure, false on success.
    static bool ORVANE_CALL Div_16u_I(const unsigned short* src, unsigned short* srcDst, int len, int scaleFactor);
    /// dst = scaled(src + value)
    static bool ORVANE_CALL AddC_16u(const unsigned short* src, unsigned short value, unsigned short* dst, int len,
                                     int scaleFactor);
    /// srcDst = scaled(srcDst + value). Inverted: true on failure, false on success.
    static bool ORVANE_CALL AddC_16u_I(unsigned short value, unsigned short* srcDst, int len, int scaleFactor);
    /// dst = scaled(src - value)
    static bool ORVANE_CALL SubC_16u(const unsigned short* src, unsigned short value, unsigned short* dst, int len,
                                     int scaleFactor);
    /// srcDst = scaled(srcDst - value). Inverted: true on failure, false on success.
    static bool ORVANE_CALL SubC_16u_I(unsigned short value, unsigned short* srcDst, int len, int scaleFactor);
    /// dst = scaled(value - src)
    static bool ORVANE_CALL SubCRev_16u(const unsigned short* src, unsigned short value, unsigned short* dst, int len,
                                        int scaleFactor);
    /// srcDst = scaled(value - srcDst)
    static bool ORVANE_CALL SubCRev_16u_I(unsigned short value, unsigned short* srcDst, int len, int scaleFactor);
    /// dst = scaled(src * value)
    static bool ORVANE_CALL MulC_16u(const unsigned short* src, unsigned short value, unsigned short* dst, int len,
                                     int scaleFactor);
    /// srcDst = scaled(srcDst * value). Inverted: true on failure, false on success.
    static bool ORVANE_CALL MulC_16u_I(unsigned short value, unsigned short* srcDst, int len, int scaleFactor);
    /// dst = scaled(src / value)
    static bool ORVANE_CALL DivC_16u(const unsigned short* src, unsigned short value, unsigned short* dst, int len,
                                     int scaleFactor);
    /// srcDst = scaled(srcDst / value). Inverted: true on failure, false on success.
    static bool ORVANE_CALL DivC_16u_I(unsigned short value, unsigned short* srcDst, int len, int scaleFactor);
    /// dst = value / src, rounded in fixed point, no scale factor
    static bool ORVANE_CALL DivCRev_16u(const unsigned short* src, unsigned short value, unsigned short* dst, int len);
    /// srcDst = value / srcDst, rounded in fixed point, no scale factor. Inverted: true on failure, false on success.
    static bool ORVANE_CALL DivCRev_16u_I(unsigned short value, unsigned short* srcDst, int len);

    /// dst = scaled(src2 + src1)
    static bool ORVANE_CALL Add_32s(const int* src1, const int* src2, int* dst, int len, int scaleFactor);
    /// srcDst = scaled(srcDst + src)
    static bool ORVANE_CALL Add_32s_I(const int* src, int* srcDst, int len, int scaleFactor);
    /// dst = scaled(src2 - src1)
    static bool ORVANE_CALL Sub_32s(const int* src1, const int* src2, int* dst, int len, int scaleFactor);
    /// srcDst = scaled(srcDst - src). Inverted: true on failure, false on success.
    static bool ORVANE_CALL Sub_32s_I(const int* src, int* srcDst, int len, int scaleFactor);
    /// dst = scaled(src2 * src1)
    static bool ORVANE_CALL Mul_32s(const int* src1, const int* src2, int* dst, int len, int scaleFactor);
    /// srcDst = scaled(srcDst * src). Always true.
    static bool ORVANE_CALL Mul_32s_I(const int* src, int* srcDst, int len, int scaleFactor);
    /// dst = scaled(src2 / src1)
    static bool ORVANE_CALL Div_32s(const int* src1, const int* src2, int* dst, int len, int scaleFactor);
    /// srcDst = scaled(srcDst / src). Inverted: true on failure, false on success.
    static bool ORVANE_CALL Div_32s_I(const int* src, int* srcDst, int len, int scaleFactor);
    /// dst = scaled(src + value)
    static bool ORVANE_CALL AddC_32s(const int* src, int value, int* dst, int len, int scaleFactor);
    /// srcDst = scaled(srcDst + value). Inverted: true on failure, false on success.
    static bool ORVANE_CALL AddC_32s_I(int value, int* srcDst, int len, int scaleFactor);
    /// dst = scaled(src - value)
    static bool ORVANE_CALL SubC_32s(const int* src, int value, int* dst, int len, int scaleFactor);
    /// srcDst = scaled(srcDst - value). Inverted: true on failure, false on success.
    static bool ORVANE_CALL SubC_32s_I(int value, int* srcDst, int len, int scaleFactor);
    /// dst = scaled(value - src)
    static bool ORVANE_CALL SubCRev_32s(const int* src, int value, int* dst, int len, int scaleFactor);
    /// srcDst = scaled(value - srcDst)
    static bool ORVANE_CALL SubCRev_32s_I(int value, int* srcDst, int len, int scaleFactor);
    /// dst = scaled(src * value)
    static bool ORVANE_CALL MulC_32s(const int* src, int value, int* dst, int len, int scaleFactor);
    /// srcDst = scaled(srcDst * value). Always true.
    static bool ORVANE_CALL MulC_32s_I(int* srcDst, int value, int len, int scaleFactor);

    /// dst = src2 + src1
    static bool ORVANE_CALL Add_32f(const float* src1, const float* src2, float* dst, int len);
    /// srcDst = srcDst + src
    static bool ORVANE_CALL Add_32f_I(const float* src, float* srcDst, int len);
    /// dst = src2 - src1
    static bool ORVANE_CALL Sub_32f(const float* src1, const float* src2, float* dst, int len);
    /// srcDst = srcDst - src
    static bool ORVANE_CALL Sub_32f_I(const float* src, float* srcDst, int len);
    /// dst = src2 * src1
    static bool ORVANE_CALL Mul_32f(const float* src1, const float* src2, float* dst, int len);
    /// srcDst = srcDst * src
    static bool ORVANE_CALL Mul_32f_I(const float* src, float* srcDst, int len);
    /// dst = src2 / src1
    static bool ORVANE_CALL Div_32f(const float* src1, const float* src2, float* dst, int len);
    /// srcDst = srcDst / src. Always true.
    static bool ORVANE_CALL Div_32f_I(const float* src, float* srcDst, int len);
    /// dst = src + value
    static bool ORVANE_CALL AddC_32f(const float* src, float value, float* dst, int len);
    /// srcDst = srcDst + value
    static bool ORVANE_CALL AddC_32f_I(float* srcDst, float value, int len);
    /// dst = src - value
    static bool ORVANE_CALL SubC_32f(const float* src, float value, float* dst, int len);
    /// srcDst = srcDst - value
    static bool ORVANE_CALL SubC_32f_I(float* srcDst, float value, int len);
    /// dst = value - src
    static bool ORVANE_CALL SubCRev_32f(const float* src, float value, float* dst, int len);
    /// srcDst = value - srcDst
    static bool ORVANE_CALL SubCRev_32f_I(float value, float* srcDst, int len);
    /// dst = src * value
    static bool ORVANE_CALL MulC_32f(const float* src, float value, float* dst, int len);
    /// srcDst = srcDst * value
    static bool ORVANE_CALL MulC_32f_I(float* srcDst, float value, int len);
    /// dst = src * (1 / value)
    static bool ORVANE_CALL DivC_32f(const float* src, float value, float* dst, int len);
    /// srcDst = srcDst * (1 / value)
    static bool ORVANE_CALL DivC_32f_I(float* srcDst, float value, int len);
    /// dst = value / src
    static bool ORVANE_CALL DivCRev_32f(const float* src, float value, float* dst, int len);
    /// srcDst = value / srcDst
    static bool ORVANE_CALL DivCRev_32f_I(float* srcDst, float value, int len);

    /// dst = src2 + src1
    static bool ORVANE_CALL Add_64f(const double* src1, const double* src2, double* dst, int len);
    /// srcDst = srcDst + src
    static bool ORVANE_CALL Add_64f_I(const double* src, double* srcDst, int len);
    /// dst = src2 * src1
    static bool ORVANE_CALL Mul_64f(const double* src1, const double* src2, double* dst, int len);
    /// srcDst = srcDst * src
    static bool ORVANE_CALL Mul_64f_I(const double* src, double* srcDst, int len);
    /// dst = src2 / src1
    static bool ORVANE_CALL Div_64f(const double* src1, const double* src2, double* dst, int len);
    /// srcDst = srcDst / src
    static bool ORVANE_CALL Div_64f_I(const double* src, double* srcDst, int len);
    /// dst = src + value; a copy for a value of 0
    static bool ORVANE_CALL AddC_64f(const double* src, double value, double* dst, int len);
    /// srcDst = srcDst + value; a copy for a value of 0
    static bool ORVANE_CALL AddC_64f_I(double* srcDst, double value, int len);
    /// dst = src * value
    static bool ORVANE_CALL MulC_64f(const double* src, double value, double* dst, int len);
    /// srcDst = srcDst * value
    static bool ORVANE_CALL MulC_64f_I(double* srcDst, double value, int len);
    /// dst = src * (1 / value)
    static bool ORVANE_CALL DivC_64f(const double* src, double value, double* dst, int len);
    /// srcDst = srcDst * (1 / value)
    static bool ORVANE_CALL DivC_64f_I(double* srcDst, double value, int len);

    /// srcDst = srcDst + src1 * src2
    static bool ORVANE_CALL AddProduct_32f(const float* src1, const float* src2, float* srcDst, int len);
    /// srcDst = srcDst + src * value
    static bool ORVANE_CALL AddProductC_32f(const float* src, float value, float* srcDst, int len);
    /// @}

    // --------------------------------------------------------------------------------------------
    /// @name Elementary functions
    ///
    /// One result per element, rounded to the element type. A destination may be exactly one of the sources;
    /// other overlaps are not supported. Checks: null pointer, len below 1.
    ///
    /// Accuracy. u is a unit in the last place of the result; the figures are the largest errors found,
    /// over all floats for functions of one float, over random and hard arguments else.
    ///
    ///   Abs, Floor         exact
    ///   Sqrt_64f           correctly rounded
    ///   Exp_32f            0.5001 u: computed in double, rounded once
    ///   Exp_64f, Ln_64f    below 1 u
    ///   A11 functions      a relative error below 2^-11 (Sin and Cos: 2^-12.9; SinCos: 2^-11.04), also near
    ///                      their zeros and of subnormal angles
    ///   A24 functions      0.501 u
    ///   A50 functions      a relative error below 2^-50, for every finite angle
    ///
    /// Angles are in radians. All floats and doubles are reduced rightly, but angles beyond 800 (A11) and
    /// 131072 (A50) take several times longer, those beyond 25 (A11) a little.
    ///
    /// Special values. NaNs give the quiet NaN with its sign bit clear (Floor keeps the NaN's own bits and
    /// makes it quiet, Abs clears its sign and nothing else).
    ///
    ///   Exp_32f            infinity from 88.72284 on, subnormal results below -87.33655, 0 from -103.97 down
    ///   Exp_64f            infinity above 709.782712893384, subnormal results below -708.3964, 0 below -745.13
    ///   Ln_64f             +0: -infinity and false; anything with its sign bit set, -0 and NaNs, too: the NaN
    ///                      0xFFF8000000000000 and false; infinity: infinity
    ///   Sqrt_64f           -0: -0; negative numbers and all NaNs: the NaN 0xFFF8000000000000 and false
    ///   Sin, Cos, SinCos   infinities: NaN; sine of -0: -0
    ///   Atan2              as atan2() of C: in [-pi, pi], zeros and infinities by their signs
    ///   Hypot              infinity if either is infinite, even beside a NaN; no overflow before the result's
    ///   Floor              -0, infinities: themselves
    ///
    /// Exponentials raise no warning. Where a warning gives false, everything has been written.
    ///
    /// In place: through a temporary; false, and nothing is written, when memory runs out. Exp_32f_I and
    /// Exp_64f_I return true whatever happens.
    /// @{

    /// dst = |src|
    static bool ORVANE_CALL Abs_32f(const float* src, float* dst, int len);
    /// srcDst = |srcDst|
    static bool ORVANE_CALL Abs_32f_I(float* srcDst, int len);
    /// dst = e^src
    static bool ORVANE_CALL Exp_32f(const float* src, float* dst, int len);
    /// srcDst = e^srcDst; always true
    static bool ORVANE_CALL Exp_32f_I(float* srcDst, int len);
    /// dst = e^src
    static bool ORVANE_CALL Exp_64f(const double* src, double* dst, int len);
    /// srcDst = e^srcDst; always true
    static bool ORVANE_CALL Exp_64f_I(double* srcDst, int len);
    /// dst = ln(src)
    static bool ORVANE_CALL Ln_64f(const double* src, double* dst, int len);
    /// srcDst = ln(srcDst)
    static bool ORVANE_CALL Ln_64f_I(double* srcDst, int len);
    /// dst = sqrt(src)
    static bool ORVANE_CALL Sqrt_64f(const double* src, double* dst, int len);
    /// srcDst = sqrt(srcDst)
    static bool ORVANE_CALL Sqrt_64f_I(double* srcDst, int len);
    /// dst = sin(src), 11 bits
    static bool ORVANE_CALL Sin_32f_A11(const float* src, float* dst, int len);
    /// dst = cos(src), 11 bits
    static bool ORVANE_CALL Cos_32f_A11(const float* src, float* dst, int len);
    /// dstSin = sin(src), dstCos = cos(src), 11 bits
    static bool ORVANE_CALL SinCos_32f_A11(const float* src, float* dstSin, float* dstCos, int len);
    /// dstSin = sin(src), dstCos = cos(src), 50 bits
    static bool ORVANE_CALL SinCos_64f_A50(const double* src, double* dstSin, double* dstCos, int len);
    /// dst = the angle of the point (src2, src1): the arctangent of src1 / src2 in the right quadrant
    static bool ORVANE_CALL Atan2_32f_A24(const float* src1, const float* src2, float* dst, int len);
    /// dst = sqrt(src1^2 + src2^2)
    static bool ORVANE_CALL Hypot_32f_A24(const float* src1, const float* src2, float* dst, int len);
    /// dst = the largest integer that is not above src
    static bool ORVANE_CALL Floor_32f(float* src, float* dst, int len);
    /// @}

    // --------------------------------------------------------------------------------------------
    /// @name Vector spectra and windows
    ///
    /// Packed spectra: len reals hold the spectrum X of a real signal of len samples, as Re X[0], then Re X[k] and
    /// Im X[k] for k = 1, 2, ..., and, for even len, Re X[len / 2] at the end. Products are formed in double
    /// and rounded to float once, part by part.
    ///
    /// Magnitudes are formed in double (squares, sum, root) and rounded to float once.
    /// A part or a magnitude that is a NaN is always 0xFFC00000.
    ///
    /// Hamming window: weight k is 0.54 - 0.46 cos(2 pi k / (len - 1)), symmetric, 1 in the middle of an odd
    /// len. The cosines come from a rotation in double: with t = 2 pi / (len - 1), c = cos t and
    /// s = sqrt(1 - c^2), each step is (C, S) -> (c C - s S, c S + s C) from (1, 0). Its error grows with len
    /// (s loses digits for small t): below 1e-12 up to 1,000 elements, about 3e-7 for 2^20.
    ///
    /// The destination may be exactly one of the sources, that of RealToCplx_32f none; other overlaps are not
    /// supported.
    ///
    /// Checks: null pointer, len below 1 (below 3 for the window). The I forms with a temporary refuse when memory
    /// runs out.
    /// @{

    /// dst = src1 * src2, packed spectra
    static bool ORVANE_CALL MulPack_32f(const float* src1, const float* src2, float* dst, int len);
    /// srcDst = src * srcDst, packed spectra. Inverted: true on failure, false on success.
    static bool ORVANE_CALL MulPack_32f_I(const float* src, float* srcDst, int len);
    /// srcDst = src * conj(srcDst), packed spectra: the conjugate is that of the operand in place
    static bool ORVANE_CALL MulPackConj_32f_I(const float* src, float* srcDst, int len);
    /// dst = sqrt(re^2 + im^2)
    static bool ORVANE_CALL Magnitude_32f(const float* re, const float* im, float* dst, int len);
    /// dst = (re, im), bit by bit; one of re and im may be null, that part is then 0
    static bool ORVANE_CALL RealToCplx_32f(const float* re, const float* im, Complex32f* dst, int len);
    /// dst = src * Hamming window
    static bool ORVANE_CALL WinHamming_32f(const float* src, float* dst, int len);
    /// srcDst = srcDst * Hamming window
    static bool ORVANE_CALL WinHamming_32f_I(float* srcDst, int len);
    /// @}

    // --------------------------------------------------------------------------------------------
    /// @name Statistics of vectors
    ///
    /// Sums of integers are exact, and rounded to double once. Sums of floats and doubles, of products and of squared
    /// distances have one order at every level: 32 running sums, all from +0, to which element i is added in sum
    /// i mod 32; then sum j and sum j + 16 are added, j + 8, and so on to one, all in double. The error is at most
    /// `(len / 32 + 6) * 2^-53` times the sum of the magnitudes. `fast` changes nothing: both values give the same
    /// bits. A sum of zeros is +0; a result that is not a number is 0x7FF8000000000000.
    ///
    /// Means are the sum over len. Deviations are those of the population (divisor len), in two passes: first the mean,
    /// then the squares of what it leaves of each element, so that large offsets cost no digits. One element has none.
    /// Products of floats are exact before they are added, those of doubles are rounded.
    ///
    /// Extremes compare by value and leave NaNs out. Of equal elements, 0 and -0 among them, the first one counts: its
    /// bits are the result, and its place, counted from 0, the index. Of nothing but NaNs the extreme is 0x7FC00000
    /// (0x7FF8000000000000 of doubles) and the index 0.
    ///
    /// Checks: null pointer (in MeanStdDev_32f the results may be null, one or both, and are left out), len below 1.
    /// Results may lie in a source.
    /// @{

    /// sum = sum of src[i]
    static bool ORVANE_CALL Sum_8u(const unsigned char* src, int len, double* sum);
    /// sum = sum of src[i]
    static bool ORVANE_CALL Sum_16u(const unsigned short* src, int len, double* sum);
    /// sum = sum of src[i]
    static bool ORVANE_CALL Sum_32s(const int* src, int len, double* sum);
    /// sum = sum of src[i]
    static bool ORVANE_CALL Sum_32f(const float* src, int len, double* sum, bool fast);
    /// sum = sum of src[i]
    static bool ORVANE_CALL Sum_64f(const double* src, int len, double* sum);
    /// mean = (sum of src[i]) / len
    static bool ORVANE_CALL Mean_8u(const unsigned char* src, int len, double* mean);
    /// mean = (sum of src[i]) / len
    static bool ORVANE_CALL Mean_16u(const unsigned short* src, int len, double* mean);
    /// mean = (sum of src[i]) / len
    static bool ORVANE_CALL Mean_32s(const int* src, int len, double* mean);
    /// mean = (sum of src[i]) / len
    static bool ORVANE_CALL Mean_32f(const float* src, int len, double* mean, bool fast);
    /// mean = (sum of src[i]) / len
    static bool ORVANE_CALL Mean_64f(const double* src, int len, double* mean);
    /// stdDev = sqrt((sum of (src[i] - mean)^2) / len)
    static bool ORVANE_CALL StdDev_32f(const float* src, int len, double* stdDev, bool fast);
    /// mean = (sum of src[i]) / len, stdDev = sqrt((sum of (src[i] - mean)^2) / len)
    static bool ORVANE_CALL MeanStdDev_32f(const float* src, int len, double* mean, double* stdDev, bool fast);
    /// product = sum of src1[i] * src2[i]
    static bool ORVANE_CALL DotProd_32f(const float* src1, const float* src2, int len, double* product);
    /// product = sum of src1[i] * src2[i]
    static bool ORVANE_CALL DotProd_64f(const double* src1, const double* src2, int len, double* product);
    /// minimum = least of src[i]
    static bool ORVANE_CALL Min_8u(const unsigned char* src, int len, unsigned char* minimum);
    /// minimum = least of src[i]
    static bool ORVANE_CALL Min_16u(const unsigned short* src, int len, unsigned short* minimum);
    /// minimum = least of src[i]
    static bool ORVANE_CALL Min_32s(const int* src, int len, int* minimum);
    /// minimum = least of src[i]
    static bool ORVANE_CALL Min_32f(const float* src, int len, float* minimum);
    /// minimum = least of src[i]
    static bool ORVANE_CALL Min_64f(const double* src, int len, double* minimum);
    /// maximum = greatest of src[i]
    static bool ORVANE_CALL Max_8u(const unsigned char* src, int len, unsigned char* maximum);
    /// maximum = greatest of src[i]
    static bool ORVANE_CALL Max_16u(const unsigned short* src, int len, unsigned short* maximum);
    /// maximum = greatest of src[i]
    static bool ORVANE_CALL Max_32s(const int* src, int len, int* maximum);
    /// maximum = greatest of src[i]
    static bool ORVANE_CALL Max_32f(const float* src, int len, float* maximum);
    /// maximum = greatest of src[i]
    static bool ORVANE_CALL Max_64f(const double* src, int len, double* maximum);
    /// Least and greatest of src[i].
    static bool ORVANE_CALL MinMax_8u(const unsigned char* src, int len, unsigned char* minimum,
                                      unsigned char* maximum);
    /// Least and greatest of src[i].
    static bool ORVANE_CALL MinMax_16u(const unsigned short* src, int len, unsigned short* minimum,
                                       unsigned short* maximum);
    /// Least and greatest of src[i].
    static bool ORVANE_CALL MinMax_32s(const int* src, int len, int* minimum, int* maximum);
    /// Least and greatest of src[i].
    static bool ORVANE_CALL MinMax_32f(const float* src, int len, float* minimum, float* maximum);
    /// Least and greatest of src[i].
    static bool ORVANE_CALL MinMax_64f(const double* src, int len, double* minimum, double* maximum);
    /// minimum = least of src[i], index = the first place that has it
    static bool ORVANE_CALL MinIndx_8u(const unsigned char* src, int len, unsigned char* minimum, int* index);
    /// minimum = least of src[i], index = the first place that has it
    static bool ORVANE_CALL MinIndx_16u(const unsigned short* src, int len, unsigned short* minimum, int* index);
    /// minimum = least of src[i], index = the first place that has it
    static bool ORVANE_CALL MinIndx_32s(const int* src, int len, int* minimum, int* index);
    /// minimum = least of src[i], index = the first place that has it
    static bool ORVANE_CALL MinIndx_32f(const float* src, int len, float* minimum, int* index);
    /// minimum = least of src[i], index = the first place that has it
    static bool ORVANE_CALL MinIndx_64f(const double* src, int len, double* minimum, int* index);
    /// maximum = greatest of src[i], index = the first place that has it
    static bool ORVANE_CALL MaxIndx_8u(const unsigned char* src, int len, unsigned char* maximum, int* index);
    /// maximum = greatest of src[i], index = the first place that has it
    static bool ORVANE_CALL MaxIndx_16u(const unsigned short* src, int len, unsigned short* maximum, int* index);
    /// maximum = greatest of src[i], index = the first place that has it
    static bool ORVANE_CALL MaxIndx_32s(const int* src, int len, int* maximum, int* index);
    /// maximum = greatest of src[i], index = the first place that has it
    static bool ORVANE_CALL MaxIndx_32f(const float* src, int len, float* maximum, int* index);
    /// maximum = greatest of src[i], index = the first place that has it
    static bool ORVANE_CALL MaxIndx_64f(const double* src, int len, double* maximum, int* index);
    /// @}

    // --------------------------------------------------------------------------------------------
    /// @name Sorting
    ///
    /// A vector is put in order where it stands. Integers are ordered by value. Floats, too, with -0 before +0; behind
    /// +infinity come the NaNs, first those without a sign by rising bits (0x7F800001 first, 0x7FFFFFFF last), then
    /// those with one by falling bits (0xFFFFFFFF first). So two elements are equal only if all their bits are, and
    /// the result is unique: elements are moved bit by bit, signalling NaNs stay what they are.
    ///
    /// Descend puts numbers from the greatest to the least, +0 before -0. The NaNs are behind them again, in the
    /// reverse of their ascending order: a search for the greatest numbers need not step over them.
    ///
    /// Indx: `index[k]` receives the place, from 0, that srcDst[k] had before; equal elements keep the order of their
    /// places in both directions (the sort is stable), so the index is unique as well. Its contents do not matter
    /// before. It must not overlap srcDst.
    ///
    /// Checks: null pointer, len below 1, then memory. Those without an index never fail for lack of memory: 8u take
    /// none, nor do elements of 32 and 64 bits where the processor has vectors of 256 bits; the others take a second
    /// vector (16u: a table of 256 KB from 131072 elements on), and do without, many times slower, where there is
    /// none. Those with an index take 8 bytes an element, 16 on older processors (8u, and less than 257 elements:
    /// none); where these are not to be had or are more than 2^31 - 1 in all, they write nothing and give false.
    ///
    /// The time is N log N for any data, and neither order nor equal elements make it longer than random data do.
    /// @{

    /// srcDst in ascending order
    static bool ORVANE_CALL SortAscend_8u_I(unsigned char* srcDst, int len);
    /// srcDst in ascending order
    static bool ORVANE_CALL SortAscend_16u_I(unsigned short* srcDst, int len);
    /// srcDst in ascending order
    static bool ORVANE_CALL SortAscend_32s_I(int* srcDst, int len);
    /// srcDst in ascending order
    static bool ORVANE_CALL SortAscend_32f_I(float* srcDst, int len);
    /// srcDst in ascending order
    static bool ORVANE_CALL SortAscend_64f_I(double* srcDst, int len);
    /// srcDst in descending order
    static bool ORVANE_CALL SortDescend_8u_I(unsigned char* srcDst, int len);
    /// srcDst in descending order
    static bool ORVANE_CALL SortDescend_16u_I(unsigned short* srcDst, int len);
    /// srcDst in descending order
    static bool ORVANE_CALL SortDescend_32s_I(int* srcDst, int len);
    /// srcDst in descending order
    static bool ORVANE_CALL SortDescend_32f_I(float* srcDst, int len);
    /// srcDst in descending order
    static bool ORVANE_CALL SortDescend_64f_I(double* srcDst, int len);
    /// srcDst in ascending order; index = the places its elements had
    static bool ORVANE_CALL SortIndxAscend_8u_I(unsigned char* srcDst, int* index, int len);
    /// srcDst in ascending order; index = the places its elements had
    static bool ORVANE_CALL SortIndxAscend_16u_I(unsigned short* srcDst, int* index, int len);
    /// srcDst in ascending order; index = the places its elements had
    static bool ORVANE_CALL SortIndxAscend_32s_I(int* srcDst, int* index, int len);
    /// srcDst in ascending order; index = the places its elements had
    static bool ORVANE_CALL SortIndxAscend_32f_I(float* srcDst, int* index, int len);
    /// srcDst in ascending order; index = the places its elements had
    static bool ORVANE_CALL SortIndxAscend_64f_I(double* srcDst, int* index, int len);
    /// srcDst in descending order; index = the places its elements had
    static bool ORVANE_CALL SortIndxDescend_8u_I(unsigned char* srcDst, int* index, int len);
    /// srcDst in descending order; index = the places its elements had
    static bool ORVANE_CALL SortIndxDescend_16u_I(unsigned short* srcDst, int* index, int len);
    /// srcDst in descending order; index = the places its elements had
    static bool ORVANE_CALL SortIndxDescend_32s_I(int* srcDst, int* index, int len);
    /// srcDst in descending order; index = the places its elements had
    static bool ORVANE_CALL SortIndxDescend_32f_I(float* srcDst, int* index, int len);
    /// srcDst in descending order; index = the places its elements had
    static bool ORVANE_CALL SortIndxDescend_64f_I(double* srcDst, int* index, int len);
    /// @}

    // --------------------------------------------------------------------------------------------
    /// @name Thresholds of vectors
    ///
    /// Elements equal to a threshold are kept. Integers compare by value. Floats and doubles compare by bits, as sign
    /// and magnitude, the order of the image's thresholds: -0 is below +0, a NaN with a clear sign bit above every
    /// number, one with a set sign bit below. Elements, thresholds and values are moved bit by bit.
    ///
    /// Checks: null pointer, len below 1; in LTValGTVal then a thresholdLT above thresholdGT, compared as numbers, so
    /// that a NaN passes.
    ///
    /// The destination may be exactly the source. The I forms take no memory.
    /// @{

    /// dst = threshold where src is below it, else src
    static bool ORVANE_CALL Threshold_LT_8u(const unsigned char* src, unsigned char* dst, int len,
                                            unsigned char threshold);
    /// srcDst = threshold where srcDst is below it, else srcDst
    static bool ORVANE_CALL Threshold_LT_8u_I(unsigned char* srcDst, int len, unsigned char threshold);
    /// dst = threshold where src is below it, else src
    static bool ORVANE_CALL Threshold_LT_16u(const unsigned short* src, unsigned short* dst, int len,
                                             unsigned short threshold);
    /// srcDst = threshold where srcDst is below it, else srcDst
    static bool ORVANE_CALL Threshold_LT_16u_I(unsigned short* srcDst, int len, unsigned short threshold);
    /// dst = threshold where src is below it, else src
    static bool ORVANE_CALL Threshold_LT_32s(const int* src, int* dst, int len, int threshold);
    /// srcDst = threshold where srcDst is below it, else srcDst
    static bool ORVANE_CALL Threshold_LT_32s_I(int* srcDst, int len, int threshold);
    /// dst = threshold where src is below it, else src
    static bool ORVANE_CALL Threshold_LT_32f(const float* src, float* dst, int len, float threshold);
    /// srcDst = threshold where srcDst is below it, else srcDst
    static bool ORVANE_CALL Threshold_LT_32f_I(float* srcDst, int len, float threshold);
    /// dst = threshold where src is below it, else src
    static bool ORVANE_CALL Threshold_LT_64f(const double* src, double* dst, int len, double threshold);
    /// srcDst = threshold where srcDst is below it, else srcDst
    static bool ORVANE_CALL Threshold_LT_64f_I(double* srcDst, int len, double threshold);
    /// dst = threshold where src is above it, else src
    static bool ORVANE_CALL Threshold_GT_8u(const unsigned char* src, unsigned char* dst, int len,
                                            unsigned char threshold);
    /// srcDst = threshold where srcDst is above it, else srcDst
    static bool ORVANE_CALL Threshold_GT_8u_I(unsigned char* srcDst, int len, unsigned char threshold);
    /// dst = threshold where src is above it, else src
    static bool ORVANE_CALL Threshold_GT_16u(const unsigned short* src, unsigned short* dst, int len,
                                             unsigned short threshold);
    /// srcDst = threshold where srcDst is above it, else srcDst
    static bool ORVANE_CALL Threshold_GT_16u_I(unsigned short* srcDst, int len, unsigned short threshold);
    /// dst = threshold where src is above it, else src
    static bool ORVANE_CALL Threshold_GT_32s(const int* src, int* dst, int len, int threshold);
    /// srcDst = threshold where srcDst is above it, else srcDst
    static bool ORVANE_CALL Threshold_GT_32s_I(int* srcDst, int len, int threshold);
    /// dst = threshold where src is above it, else src
    static bool ORVANE_CALL Threshold_GT_32f(const float* src, float* dst, int len, float threshold);
    /// srcDst = threshold where srcDst is above it, else srcDst
    static bool ORVANE_CALL Threshold_GT_32f_I(float* srcDst, int len, float threshold);
    /// dst = threshold where src is above it, else src
    static bool ORVANE_CALL Threshold_GT_64f(const double* src, double* dst, int len, double threshold);
    /// srcDst = threshold where srcDst is above it, else srcDst
    static bool ORVANE_CALL Threshold_GT_64f_I(double* srcDst, int len, double threshold);
    /// dst = value where src is below threshold, else src
    static bool ORVANE_CALL Threshold_LTVal_8u(const unsigned char* src, unsigned char* dst, int len,
                                               unsigned char threshold, unsigned char value);
    /// srcDst = value where srcDst is below threshold, else srcDst
    static bool ORVANE_CALL Threshold_LTVal_8u_I(unsigned char* srcDst, int len, unsigned char threshold,
                                                 unsigned char value);
    /// dst = value where src is below threshold, else src
    static bool ORVANE_CALL Threshold_LTVal_16u(const unsigned short* src, unsigned short* dst, int len,
                                                unsigned short threshold, unsigned short value);
    /// srcDst = value where srcDst is below threshold, else srcDst
    static bool ORVANE_CALL Threshold_LTVal_16u_I(unsigned short* srcDst, int len, unsigned short threshold,
                                                  unsigned short value);
    /// dst = value where src is below threshold, else src
    static bool ORVANE_CALL Threshold_LTVal_32s(const int* src, int* dst, int len, int threshold, int value);
    /// srcDst = value where srcDst is below threshold, else srcDst
    static bool ORVANE_CALL Threshold_LTVal_32s_I(int* srcDst, int len, int threshold, int value);
    /// dst = value where src is below threshold, else src
    static bool ORVANE_CALL Threshold_LTVal_32f(const float* src, float* dst, int len, float threshold, float value);
    /// srcDst = value where srcDst is below threshold, else srcDst
    static bool ORVANE_CALL Threshold_LTVal_32f_I(float* srcDst, int len, float threshold, float value);
    /// dst = value where src is below threshold, else src
    static bool ORVANE_CALL Threshold_LTVal_64f(const double* src, double* dst, int len, double threshold,
                                                double value);
    /// srcDst = value where srcDst is below threshold, else srcDst
    static bool ORVANE_CALL Threshold_LTVal_64f_I(double* srcDst, int len, double threshold, double value);
    /// dst = value where src is above threshold, else src
    static bool ORVANE_CALL Threshold_GTVal_8u(const unsigned char* src, unsigned char* dst, int len,
                                               unsigned char threshold, unsigned char value);
    /// srcDst = value where srcDst is above threshold, else srcDst
    static bool ORVANE_CALL Threshold_GTVal_8u_I(unsigned char* srcDst, int len, unsigned char threshold,
                                                 unsigned char value);
    /// dst = value where src is above threshold, else src
    static bool ORVANE_CALL Threshold_GTVal_16u(const unsigned short* src, unsigned short* dst, int len,
                                                unsigned short threshold, unsigned short value);
    /// srcDst = value where srcDst is above threshold, else srcDst
    static bool ORVANE_CALL Threshold_GTVal_16u_I(unsigned short* srcDst, int len, unsigned short threshold,
                                                  unsigned short value);
    /// dst = value where src is above threshold, else src
    static bool ORVANE_CALL Threshold_GTVal_32s(const int* src, int* dst, int len, int threshold, int value);
    /// srcDst = value where srcDst is above threshold, else srcDst
    static bool ORVANE_CALL Threshold_GTVal_32s_I(int* srcDst, int len, int threshold, int value);
    /// dst = value where src is above threshold, else src
    static bool ORVANE_CALL Threshold_GTVal_32f(const float* src, float* dst, int len, float threshold, float value);
    /// srcDst = value where srcDst is above threshold, else srcDst
    static bool ORVANE_CALL Threshold_GTVal_32f_I(float* srcDst, int len, float threshold, float value);
    /// dst = value where src is above threshold, else src
    static bool ORVANE_CALL Threshold_GTVal_64f(const double* src, double* dst, int len, double threshold,
                                                double value);
    /// srcDst = value where srcDst is above threshold, else srcDst
    static bool ORVANE_CALL Threshold_GTVal_64f_I(double* srcDst, int len, double threshold, double value);
    /// dst = valueGT where src is above thresholdGT, else valueLT where it is below thresholdLT, else src
    static bool ORVANE_CALL Threshold_LTValGTVal_8u(const unsigned char* src, unsigned char* dst, int len,
                                                    unsigned char thresholdLT, unsigned char valueLT,
                                                    unsigned char thresholdGT, unsigned char valueGT);
    /// srcDst = valueGT where srcDst is above thresholdGT, else valueLT where it is below thresholdLT, else srcDst
    static bool ORVANE_CALL Threshold_LTValGTVal_8u_I(unsigned char* srcDst, int len, unsigned char thresholdLT,
                                                      unsigned char valueLT, unsigned char thresholdGT,
                                                      unsigned char valueGT);
    /// dst = valueGT where src is above thresholdGT, else valueLT where it is below thresholdLT, else src
    static bool ORVANE_CALL Threshold_LTValGTVal_16u(const unsigned short* src, unsigned short* dst, int len,
                                                     unsigned short thresholdLT, unsigned short valueLT,
                                                     unsigned short thresholdGT, unsigned short valueGT);
    /// srcDst = valueGT where srcDst is above thresholdGT, else valueLT where it is below thresholdLT, else srcDst
    static bool ORVANE_CALL Threshold_LTValGTVal_16u_I(unsigned short* srcDst, int len, unsigned short thresholdLT,
                                                       unsigned short valueLT, unsigned short thresholdGT,
                                                       unsigned short valueGT);
    /// dst = valueGT where src is above thresholdGT, else valueLT where it is below thresholdLT, else src
    static bool ORVANE_CALL Threshold_LTValGTVal_32s(const int* src, int* dst, int len, int thresholdLT, int valueLT,
                                                     int thresholdGT, int valueGT);
    /// srcDst = valueGT where srcDst is above thresholdGT, else valueLT where it is below thresholdLT, else srcDst
    static bool ORVANE_CALL Threshold_LTValGTVal_32s_I(int* srcDst, int len, int thresholdLT, int valueLT,
                                                       int thresholdGT, int valueGT);
    /// dst = valueGT where src is above thresholdGT, else valueLT where it is below thresholdLT, else src
    static bool ORVANE_CALL Threshold_LTValGTVal_32f(const float* src, float* dst, int len, float thresholdLT,
                                                     float valueLT, float thresholdGT, float valueGT);
    /// srcDst = valueGT where srcDst is above thresholdGT, else valueLT where it is below thresholdLT, else srcDst
    static bool ORVANE_CALL Threshold_LTValGTVal_32f_I(float* srcDst, int len, float thresholdLT, float valueLT,
                                                       float thresholdGT, float valueGT);
    /// dst = valueGT where src is above thresholdGT, else valueLT where it is below thresholdLT, else src
    static bool ORVANE_CALL Threshold_LTValGTVal_64f(const double* src, double* dst, int len, double thresholdLT,
                                                     double valueLT, double thresholdGT, double valueGT);
    /// srcDst = valueGT where srcDst is above thresholdGT, else valueLT where it is below thresholdLT, else srcDst
    static bool ORVANE_CALL Threshold_LTValGTVal_64f_I(double* srcDst, int len, double thresholdLT, double valueLT,
                                                       double thresholdGT, double valueGT);
    /// @}

protected:
    /// Does nothing: the class has no instances.
    SignalProcessingWrapper(const SignalProcessingWrapper& other);
    /// Does nothing, likewise.
    ~SignalProcessingWrapper();
};

#endif
