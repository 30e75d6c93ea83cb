// Transforms of 1 to 32 real samples to the CCS layout, on single numbers: a complex
// transform of half the length, split as usual. They need no tables but the roots below.
#pragma once

#include "spectral/butterflies.h"
#include "spectral/fft_record.h"

namespace orv {
inline namespace ORV_LEVEL {
namespace {

// cos(2 pi k / 32) for k = 0 to 8
constexpr float kCosines32[] = {1.0f,         0.980785280f, 0.923879533f, 0.831469612f, 0.707106781f,
                                0.555570233f, 0.382683432f, 0.195090322f, 0.0f};

// exp(-2 pi i k / 32) for k = 0 to 16
ORV_INLINE Complex<One> root32(int k)
{
    if (k <= 8) return {{kCosines32[k]}, {-kCosines32[8 - k]}};
    return {{-kCosines32[16 - k]}, {-kCosines32[k - 8]}};
}

// n values that lie `stride` apart, n from 1 to 16.
template <int n>
struct SmallTransform {
    static void run(const Complex<One>* src, int stride, Complex<One>* dst)
    {
        constexpr int half = n / 2;
        SmallTransform<half>::run(src, 2 * stride, dst);
        SmallTransform<half>::run(src + stride, 2 * stride, dst + half);
        for (int k = 0; k < half; ++k) {
            const Complex<One> w = root32(k * (32 / n));
            const Complex<One> e = dst[k], o = dst[k + half] * w;
            dst[k] = e + o;
            dst[k + half] = e - o;
        }
    }
};
template <>
struct SmallTransform<1> {
    static void run(const Complex<One>* src, int, Complex<One>* dst) { dst[0] = src[0]; }
};

ORV_INLINE void small_transform(int order, const Complex<One>* src, Complex<One>* dst)
{
    switch (order) {
        case 0: SmallTransform<1>::run(src, 1, dst); break;
        case 1: SmallTransform<2>::run(src, 1, dst); break;
        case 2: SmallTransform<4>::run(src, 1, dst); break;
        case 3: SmallTransform<8>::run(src, 1, dst); break;
        default: SmallTransform<16>::run(src, 1, dst); break;
    }
}

inline void small_forward(int order, const float* src, float* dst)
{
    if (order == 0) {
        put(dst, simd::load<One>(src).v);
        put(dst + 1, 0.0f);
        return;
    }
    const int half = 1 << (order - 1);
    Complex<One> in[16], z[16];
    for (int i = 0; i < half; ++i) in[i] = Interleaved<One>::load(src + 2 * i);
    small_transform(order - 1, in, z);
    const One zero = {0.0f}, one_half = {0.5f};
    Interleaved<One>::store(dst, {z[0].re + z[0].im, zero});
    Interleaved<One>::store(dst + 2 * half, {z[0].re - z[0].im, zero});
    for (int k = 1; k < half; ++k) {
        const Complex<One> a = z[k], b = z[half - k];
        const Complex<One> e = {a.re + b.re, a.im - b.im}, o = {a.im + b.im, b.re - a.re};
        Interleaved<One>::store(dst + 2 * k, scaled_by(e + o * root32(k << (5 - order)), one_half));
    }
}

}  // namespace
}  // namespace ORV_LEVEL
}  // namespace orv
