// Two-dimensional Fourier transforms.
#ifndef ORVANE_FFT2_WRAPPER_H
#define ORVANE_FFT2_WRAPPER_H

#include "Export.h"

namespace orv {
struct Fft2Record;
}

/// Transforms of single-channel float images to packed spectra and back.
///
/// **Sizes.** A transform of a width x height image works on its top left W x H block, where W and H
/// are the largest powers of two not above width and height: a 100 x 60 image is transformed as
/// 64 x 32. The rest of the destination is not written. A transform is prepared for one size and kept until
/// a call names another. Width and height of at least 2 are needed; W is at most 2^26, H at most 2^24 and
/// W H at most 2^28: larger transforms would need more than 2 GiB of work memory.
///
/// **Packed spectrum.** For a real image F[v][u] = conj(F[(H-v) % H][(W-u) % W]), so W x H real numbers
/// hold it. Columns 2u-1 and 2u of row v are the real and imaginary part of F[v][u], for u = 1 to
/// W/2-1. Columns 0 and W-1 hold F[v][0] and F[v][W/2] down the column: row 0 the real value for v = 0,
/// rows 2v-1 and 2v the real and imaginary part for v = 1 to H/2-1, row H-1 the real value for v = H/2.
///
/// **Formula.** F[v][u] = sum over y, x of image[y][x] exp(-2 pi i (u x / W + v y / H)). The inverse has
/// the positive sign and is divided by W H, so that it undoes the forward transform.
///
/// **Steps** are distances between rows in bytes, at least 1. Source and destination may be the same
/// image.
///
/// **Accuracy.** Single precision; the relative error (root mean square) is below 2^-24 sqrt(log2(W H)).
/// A result that fits into a float comes out whatever its size, a larger one is infinite. All processors
/// give the same bits.
///
/// **Failures.** No method reports one: without a prepared transform (sizes below 2, no memory) and with
/// null pointers or steps below 1 nothing is written.
///
/// **Threads.** One object is used by one thread at a time; different objects are independent.
class ORVANE_API FFT2Wrapper {
public:
    /// An object that is not prepared. The flag is kept and has no effect.
    FFT2Wrapper(bool flag = false);
    /// An object after Init(width, height, flag).
    FFT2Wrapper(int width, int height, bool flag);
    FFT2Wrapper(const FFT2Wrapper&) = delete;
    /// Copies nothing: this object keeps its own transform.
    FFT2Wrapper& operator=(const FFT2Wrapper& other);
    /// Releases everything.
    ~FFT2Wrapper();

    /// Prepares for an image size; the flag is ignored. Changes nothing where a side is 1. Always true.
    bool Init(int width, int height, bool flag);

    /// dst = packed spectrum of src
    void Forward(const float* src, int srcStep, float* dst, int dstStep, int width, int height);
    /// srcDst = packed spectrum of a scratch image, not of srcDst: use the form above to transform an image in place.
    ///
    /// The scratch image has rows of log2 W floats at a step of a multiple of 64 bytes, and only the top
    /// left log2 W x log2 H samples of srcDst are copied to it; zeros follow. Hosts that were built on
    /// this form depend on it.
    void Forward(float* srcDst, int step, int width, int height);
    /// dst = image whose packed spectrum is src
    void Inverse(const float* src, int srcStep, float* dst, int dstStep, int width, int height);
    /// srcDst = image whose packed spectrum is srcDst
    void Inverse(float* srcDst, int step, int width, int height);

    /// Fills the first `size` bytes of the object with zeros; for use before a constructor runs on it.
    void __autoclassinit2(unsigned int size);

private:
    void Cleanup();

    bool flag_;
    int width_;   // of the prepared transform, as given
    int height_;
    orv::Fft2Record* record_;
};

#endif
