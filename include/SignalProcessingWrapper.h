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

    // --------------------------------------------------------------------------------------------
    // Vector spectra and windows
    //

protected:
    /// Does nothing: the class has no instances.
    SignalProcessingWrapper(const SignalProcessingWrapper& other);
    ~SignalProcessingWrapper();
};

#endif
