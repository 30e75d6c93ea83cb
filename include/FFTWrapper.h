// Power spectral density.
#ifndef ORVANE_FFT_WRAPPER_H
#define ORVANE_FFT_WRAPPER_H

#include "Export.h"

namespace orv {
struct PsdRecord;
}

/// Two-sided power spectra of blocks of real samples.
///
/// An object is prepared once for a length and then run on any number of blocks of that length:
/// nothing is planned or allocated in between.
///
/// **Lengths.** The transform uses the first 2^order samples of a block, where order is the integer
/// part of log2(n): all of them for a power of two, 64 of 100. n is below 2^28, so orders go up to 27.
///
/// **Units.** The powers are squared magnitudes of the unscaled transform. They are divided neither by
/// the length nor by the energy of the window, neither side is doubled and no logarithm is taken.
///
/// **Frequencies.** With N = 2^order samples taken fs times a second, bin k is the frequency k fs / N for k from 0
/// to N/2; beyond, it is the negative frequency (k - N) fs / N, which for real samples has the power of bin N - k.
///
/// **Densities.** out[k] / (fs * S), with S the sum of the squares of the first N values of `window`, is the power in
/// a band of 1 Hz (unit^2 / Hz), positive and negative frequencies apart. For the usual one-sided density double the
/// bins 1 to N/2 - 1. A sine of amplitude A at the frequency of a bin k > 0 shows out[k] = (A / 2)^2 times the square
/// of the window's sum.
///
/// **Accuracy.** Single precision; the relative error of the transform (root mean square) is below
/// 2^-24 sqrt(order). The mean is summed in double precision and rounded to float; squares are added
/// in double precision and rounded once. All processors give the same bits.
///
/// **Failures.** No method reports one. An object that could not be prepared, for lack of memory or
/// for a length below 1, is as one that never was.
///
/// **Threads.** One object is used by one thread at a time; different objects are independent.
class ORVANE_API FFTWrapper {
public:
    /// An object that is not prepared.
    FFTWrapper();
    /// An object after Init(n).
    FFTWrapper(int n);
    FFTWrapper(const FFTWrapper&) = delete;
    /// Shares the state of `other`; what this object held is lost, not released. Both destructors would
    /// release the shared state: keep only one of the objects to the end of its life.
    FFTWrapper& operator=(const FFTWrapper& other);
    /// Releases everything.
    ~FFTWrapper();

    /// Prepares for blocks of n samples, in place of whatever was prepared. Always true.
    bool Init(int n);
    /// out[k] = |X[k]|^2 for k = 0 to len-1, X the spectrum of window * (signal - mean of signal); bins from 2^order on
    /// are 0. Always true.
    ///
    /// `len` must be the length that was prepared. With another length, without preparation and with a
    /// null pointer nothing is written. `out` may be `signal` or `window`.
    bool PsdFFT(const float* signal, const float* window, float* out, int len);
    /// Releases the transform and the buffers; the object can be prepared again.
    void Cleanup();

    /// Fills the first `size` bytes of the object with zeros; for use before a constructor runs on it.
    void __autoclassinit2(unsigned int size);

private:
    orv::PsdRecord* record_;
};

#endif
