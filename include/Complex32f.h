// A single-precision complex value, as complex images and spectra hold them.
#ifndef ORVANE_COMPLEX32F_H
#define ORVANE_COMPLEX32F_H

/// Real part, then imaginary part: 8 bytes, as in an interleaved complex buffer.
///
/// Its layout is that of std::complex<float>, so a pointer to one may be cast to a pointer to the other by
/// reinterpret_cast; it is a plain structure, because the headers include nothing of the standard library, and passes
/// by value as two floats do, which std::complex does not everywhere.
struct Complex32f {
    float re;  ///< real part
    float im;  ///< imaginary part
};

#endif
