// Status codes of the kernels: 0 success, negative an error, positive a warning.
#pragma once

namespace orv {

enum Status : int {
    StatusOk = 0,

    // Warnings: the output has been written.
    StatusSqrtOfNegative = 3,           // a square root met a negative number or a NaN
    StatusDivideByZero = 6,             // a division met one or more zero divisors
    StatusNotIntelProcessor = 20,       // start-up only: the processor is of another vendor
    StatusProcessorNotSupported = 36,   // start-up only: the processor cannot report its features

    // Errors: nothing has been written.
    StatusBadSize = -6,             // a width, height or length is below 1
    StatusNullPointer = -8,         // a required pointer is null
    StatusNoMemory = -9,            // a working buffer could not be allocated
    StatusDivideByZeroError = -10,  // division by a constant zero
    StatusBadStep = -14,            // a row step is below 1
    StatusBadMirrorAxis = -21,      // a mirror axis other than 0, 1 and 2
    StatusUnevenStep = -108,         // a row step is not a multiple of the element size
    StatusBadChannelOrder = -60,    // a channel index outside 0 to 3
};

}  // namespace orv
