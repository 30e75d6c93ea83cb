// Status codes of the kernels: 0 success, negative an error, positive a warning.
#pragma once

namespace orv {

enum Status : int {
    StatusOk = 0,

    // Warnings: the output has been written.
    StatusNoOperation = 1,             // a size of 0: there is nothing to prepare
    StatusSqrtOfNegative = 3,          // a square root of a negative number or a NaN
    StatusDivideByZero = 6,            // a division met one or more zero divisors
    StatusLogarithmOfZero = 7,         // a logarithm of a zero of either sign
    StatusLogarithmOfNegative = 8,     // a logarithm of anything with its sign bit set
    StatusNotIntelProcessor = 20,      // start-up only: the processor is of another vendor
    StatusProcessorNotSupported = 36,  // start-up only: the processor cannot report its features

    // Errors: nothing has been written.
    StatusBadArguments = -3,          // of the random numbers: a count, an address or a deviation
    StatusNoStream = -5,              // random numbers without a stream
    StatusBadSize = -6,               // a width, height or length is below 1
    StatusNullPointer = -8,           // a required pointer is null
    StatusNoMemory = -9,              // a working buffer could not be allocated
    StatusDivideByZeroError = -10,    // division by a constant zero
    StatusBadOffset = -11,            // a destination offset outside the destination
    StatusBadStep = -14,              // a row step is below 1
    StatusBadFftOrder = -15,          // an order of a transform outside its range
    StatusBadFftFlag = -16,           // a normalisation flag other than 1, 2, 4 and 8
    StatusBadFftRecord = -17,         // memory that holds no specification record of this kind
    StatusBadPlan = -17,              // a block that holds no initialised plan
    StatusBadThreshold = -18,         // the lower of two thresholds is above the upper one
    StatusBadMirrorAxis = -21,        // a mirror axis other than 0, 1 and 2
    StatusBadInterpolation = -22,     // an unknown interpolation, or flags that exclude each other
    StatusBadFactor = -23,            // a resize factor that is not above 0
    StatusBadMaskSize = -33,          // a filter mask other than 3x3 and 5x5
    StatusBadChannels = -53,          // a number of channels other than 1, 3 and 4
    StatusBadChannelOrder = -60,      // a channel index outside 0 to 3
    StatusBadLevelCount = -107,       // a number of levels or palette entries outside its range
    StatusUnevenStep = -108,          // a row step is not a multiple of the element size
    StatusBadStride = -182,           // a matrix stride below 1 or not a multiple of the element size
    StatusSingularMatrix = -195,      // a matrix without an inverse
    StatusBadCount = -203,            // a number of matrices below 1
    StatusSizesDiffer = -204,         // inner sizes of a matrix product that differ
    StatusBadBorder = -225,           // a border argument with unknown bits
    StatusBadLevels = -301,           // levels of a curve that do not ascend or are not finite
    StatusBadColorStandard = -302,    // a colour standard other than 0 to 3
    StatusNotFinite = -303,           // an angle, shift, centre or matrix element that is not finite
    StatusUnbounded = -304,           // a bound that does not exist
    StatusUnsupportedBorder = -9999,  // a border (or anti-aliasing) that the resizer does not have
    StatusNotSupportedMode = -9999,   // an operator that the operation does not take
};

}  // namespace orv
