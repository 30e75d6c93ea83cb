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
/// **Threads, processors.** No state; all variants of an operation give the same bits.
class ORVANE_API SignalProcessingWrapper {
public:
    /// Does nothing: the class has no state.
    SignalProcessingWrapper& operator=(const SignalProcessingWrapper& other);

    // --------------------------------------------------------------------------------------------
    // Buffers
    //
    // `len` elements on a 64-byte boundary, not cleared. Null for a length below 1 and when memory
    // runs out. Sizes are 32-bit products that nothing checks: stay below 2^31 bytes. Release with
    // Free().

    /// Allocates len elements of 1 byte.
    static unsigned char* Malloc_8u(int len);
    /// Allocates len elements of 2 bytes.
    static unsigned short* Malloc_16u(int len);
    /// Allocates len elements of 4 bytes.
    static int* Malloc_32s(int len);
    /// Allocates len elements of 4 bytes.
    static float* Malloc_32f(int len);
    /// Allocates len elements of 8 bytes.
    static double* Malloc_64f(int len);
    /// Allocates len elements of 8 bytes.
    static Complex32f* Malloc_32fc(int len);
    /// Releases what a Malloc method returned; does nothing for null.
    static void Free(void* buffer);

    // --------------------------------------------------------------------------------------------
    // Vector arithmetic
    //

    // --------------------------------------------------------------------------------------------
    // Elementary functions
    //
    // One result per element, rounded to the element type. Sources and destinations may be the same
    // buffer; other overlaps are not supported. Checks: null pointer, len below 1.
    //
    // Accuracy. u is a unit in the last place of the result; the figures are the largest errors found,
    // over all floats for functions of one float, over random and hard arguments else.
    //   Abs, Floor         exact
    //   Sqrt_64f           correctly rounded
    //   Exp_32f            0.5001 u: computed in double, rounded once
    //   Exp_64f, Ln_64f    below 1 u
    //   A11 functions      a relative error below 2^-11 (sine and cosine: 2^-13); also near their zeros
    //   A24 functions      0.501 u
    //   A50 functions      a relative error below 2^-50, for every finite angle
    // Angles are in radians. All floats and doubles are reduced rightly, but angles beyond 800 (A11) and
    // 131072 (A50) take several times longer.
    //
    // Special values. NaNs give the quiet NaN with its sign bit clear (Floor keeps the NaN's own bits and
    // makes it quiet, Abs clears its sign and nothing else).
    //   Exp_32f            infinity from 88.72284 on, subnormal results below -87.33655, 0 from -103.97 down
    //   Exp_64f            infinity above 709.782712893384, subnormal results below -708.3964, 0 below -745.13
    //   Ln_64f             +0: -infinity and false; anything with its sign bit set, -0 and NaNs, too: the NaN
    //                      0xFFF8000000000000 and false; infinity: infinity
    //   Sqrt_64f           -0: -0; negative numbers and all NaNs: the NaN 0xFFF8000000000000 and false
    //   Sin, Cos, SinCos   infinities: NaN; sine of -0: -0
    //   Atan2              as atan2() of C: in [-pi, pi], zeros and infinities by their signs
    //   Hypot              infinity if either is infinite, even beside a NaN; no overflow before the result's
    //   Floor              -0, infinities: themselves
    // Exponentials raise no warning. Where a warning gives false, everything has been written.
    //
    // In place: through a temporary; false, and nothing is written, when memory runs out. Exp_32f_I and
    // Exp_64f_I return true whatever happens.

    /// dst = |src|
    static bool Abs_32f(const float* src, float* dst, int len);
    /// srcDst = |srcDst|
    static bool Abs_32f_I(float* srcDst, int len);
    /// dst = e^src
    static bool Exp_32f(const float* src, float* dst, int len);
    /// srcDst = e^srcDst; always true
    static bool Exp_32f_I(float* srcDst, int len);
    /// dst = e^src
    static bool Exp_64f(const double* src, double* dst, int len);
    /// srcDst = e^srcDst; always true
    static bool Exp_64f_I(double* srcDst, int len);
    /// dst = ln(src)
    static bool Ln_64f(const double* src, double* dst, int len);
    /// srcDst = ln(srcDst)
    static bool Ln_64f_I(double* srcDst, int len);
    /// dst = sqrt(src)
    static bool Sqrt_64f(const double* src, double* dst, int len);
    /// srcDst = sqrt(srcDst)
    static bool Sqrt_64f_I(double* srcDst, int len);
    /// dst = sin(src), 11 bits
    static bool Sin_32f_A11(const float* src, float* dst, int len);
    /// dst = cos(src), 11 bits
    static bool Cos_32f_A11(const float* src, float* dst, int len);
    /// dstSin = sin(src), dstCos = cos(src), 11 bits
    static bool SinCos_32f_A11(const float* src, float* dstSin, float* dstCos, int len);
    /// dstSin = sin(src), dstCos = cos(src), 50 bits
    static bool SinCos_64f_A50(const double* src, double* dstSin, double* dstCos, int len);
    /// dst = the angle of the point (src2, src1): the arctangent of src1 / src2 in the right quadrant
    static bool Atan2_32f_A24(const float* src1, const float* src2, float* dst, int len);
    /// dst = sqrt(src1^2 + src2^2)
    static bool Hypot_32f_A24(const float* src1, const float* src2, float* dst, int len);
    /// dst = the largest integer that is not above src
    static bool Floor_32f(float* src, float* dst, int len);

    // --------------------------------------------------------------------------------------------
    // Vector spectra and windows
    //

protected:
    /// Does nothing: the class has no instances.
    SignalProcessingWrapper(const SignalProcessingWrapper& other);
    ~SignalProcessingWrapper();
};

#endif
