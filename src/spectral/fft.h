// Transforms of real data whose length is a power of two, and what the power spectrum adds to them.
//
// A transform is planned in three steps: ask for the sizes, build the record in memory of the caller
// (an initialisation buffer is needed only while building), then run any number of transforms with the
// record and a work buffer. Layouts: layouts.h. Forward transforms have the negative sign in the
// exponent. Every transform may run in place.
#pragma once

#include "Complex32f.h"
#include "core/operation.h"
#include "spectral/fft_record.h"

namespace orv {

using InitFft = Status(FftSpec** spec, int order, int flag, int hint, unsigned char* memory, unsigned char* initBuffer);
using InitFft2 = Status(Fft2Spec** spec, int orderX, int orderY, int flag, int hint, unsigned char* memory,
                        unsigned char* initBuffer);
using RunFft = Status(const float* src, float* dst, const FftSpec* spec, unsigned char* work);
using RunFft2 = Status(const float* src, int srcStep, float* dst, int dstStep, const Fft2Spec* spec,
                       unsigned char* work);
// The whole spectrum of `length` values from its first half, CCS.
using ExpandSpectrum = Status(const Complex32f* src, Complex32f* dst, int length);
// windowed = window * (signal - mean of signal)
using PrepareSignal = Status(const float* signal, const float* window, float* windowed, int length);
// out = squared magnitudes of a spectrum of 2^order values, given as CCS, then zeros up to `length`.
using SpectrumToPower = Status(const Complex32f* spectrum, float* out, int order, int length);

#define KERNEL(name, ...) extern "C" ORV_INTERNAL const Operation<__VA_ARGS__> orv_##name;
#include "spectral/fft.inc"
#undef KERNEL

extern "C" {
// Sizes in bytes of the record, the initialisation buffer and the work buffer, each with room for the
// alignment that is found inside it. Nothing is written when the status is not StatusOk.
Status orv_fft_sizes(int order, int flag, int hint, int* spec, int* initBuffer, int* work);
Status orv_fft2_sizes(int orderX, int orderY, int flag, int hint, int* spec, int* initBuffer, int* work);

// The order of the longest transform that `length` holds: the integer part of its binary logarithm; -1
// for lengths below 1.
int orv_fft_order(int length);
}

}  // namespace orv
