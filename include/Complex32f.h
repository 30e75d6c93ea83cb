// A single-precision complex value, as complex images and spectra hold them.
#ifndef ORVANE_COMPLEX32F_H
#define ORVANE_COMPLEX32F_H

/// Real part, then imaginary part: 8 bytes, as in an interleaved complex buffer.
struct Complex32f {
    float re;  ///< real part
    float im;  ///< imaginary part
};

#endif
