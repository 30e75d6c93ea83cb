// Transforms of N = 2^order real samples, N >= 64, to and from the CCS layout.
//
// The samples are K = N / 16 lines as they stand in memory. In lane l, line r holds x[16r + l] as its
// real part and x[16r + 8 + l] as its imaginary part. So the lanes are the eight interleaved sequences
// x[8r' + l] of length 2K, even elements in the real parts and odd ones in the imaginary parts:
//
//   1. lines    complex transforms of length K in every lane          (line_fft.h)
//   2. split    real spectra B[k], k = 0 to K, of the lanes from Z[k] and Z[K-k], with
//               W = exp(-2 pi i / 2K):    2 B[k]   =       E + W^k O,    E = Z[k] + conj Z[K-k]
//                                         2 B[K-k] = conj (E - W^k O),  iO = Z[k] - conj Z[K-k]
//   3. join     butterflies of eight over the lanes, with W_N = exp(-2 pi i / N):
//               X[k + 2K m] = sum over l of  B_l[k] W_N^(lk) W_8^(lm)
//               For m >= 4 this lies in the upper half, so it gives X[2K (8-m) - k] by conjugation.
//               The twiddles are halved, which halves the 2 B.
//
// Only the third step mixes lanes; it runs on V::N values of k at a time, transposed on loading. k = K
// stands alone. The inverse takes the same steps backwards.
#pragma once

#include "spectral/line_fft.h"

namespace orv {
inline namespace ORV_LEVEL {
namespace {

// The twiddles W_16^l / 2 of k = K, for l = 1 to 7.
constexpr float kLastTwiddles[] = {0.461939766f, -0.191341716f, 0.353553391f,  -0.353553391f, 0.191341716f,
                                   -0.461939766f, 0.0f,         -0.5f,         -0.191341716f, -0.461939766f,
                                   -0.353553391f, -0.353553391f, -0.461939766f, -0.191341716f};

// --- Transposition of V::N lines --------------------------------------------------------------------
//
// Part 0 of a line is its eight real parts, part 8 its imaginary parts. x[l] receives lane l of the
// lines, or gives it.

ORV_INLINE void load_lanes_of(One* x, const float* const* lines, int part)
{
    ORV_UNROLL
    for (int l = 0; l < kLanes; ++l) x[l] = simd::load<One>(lines[0] + part + l);
}
ORV_INLINE void store_lanes_of(const One* x, float* const* lines, int part)
{
    ORV_UNROLL
    for (int l = 0; l < kLanes; ++l) simd::store(lines[0] + part + l, x[l]);
}

#if ORV_HAVE_VECTORS
ORV_INLINE void load_lanes_of(simd::vec<float, 4>* x, const float* const* lines, int part)
{
    for (int l = 0; l < kLanes; l += 4) {
        ORV_UNROLL
        for (int i = 0; i < 4; ++i) x[l + i].v = simd::load<simd::vec<float, 4>>(lines[i] + part + l).v;
        transpose(x[l], x[l + 1], x[l + 2], x[l + 3]);
    }
}
ORV_INLINE void store_lanes_of(const simd::vec<float, 4>* x, float* const* lines, int part)
{
    for (int l = 0; l < kLanes; l += 4) {
        simd::vec<float, 4> a = x[l], b = x[l + 1], c = x[l + 2], d = x[l + 3];
        transpose(a, b, c, d);
        simd::store(lines[0] + part + l, a);
        simd::store(lines[1] + part + l, b);
        simd::store(lines[2] + part + l, c);
        simd::store(lines[3] + part + l, d);
    }
}
#endif

#if ORV_HAVE_FLOAT256
ORV_INLINE void load_lanes_of(simd::vec<float, 8>* x, const float* const* lines, int part)
{
    ORV_UNROLL
    for (int l = 0; l < kLanes; l += 4) {
        ORV_UNROLL
        for (int i = 0; i < 4; ++i) x[l + i].v = simd::load_halves(lines[i] + part + l, lines[i + 4] + part + l).v;
        transpose(x[l], x[l + 1], x[l + 2], x[l + 3]);
    }
}
ORV_INLINE void store_lanes_of(const simd::vec<float, 8>* x, float* const* lines, int part)
{
    ORV_UNROLL
    for (int l = 0; l < kLanes; l += 4) {
        simd::vec<float, 8> t[4] = {x[l], x[l + 1], x[l + 2], x[l + 3]};
        transpose(t[0], t[1], t[2], t[3]);
        ORV_UNROLL
        for (int i = 0; i < 4; ++i) simd::store_halves(lines[i] + part + l, lines[i + 4] + part + l, t[i]);
    }
}
#endif

// --- Split and its inverse --------------------------------------------------------------------------

// Z[k], Z[K-k] -> 2 B[k], 2 B[K-k], in place. The lines may be the same one, for k = K/2.
ORV_INLINE void split_pair(float* line, float* mirrored, const float* w)
{
    using V = Widest;
    for (int lane = 0; lane < kLanes; lane += V::N) {
        const Complex<V> a = load_line<V>(line + lane), b = load_line<V>(mirrored + lane);
        const Complex<V> e = {a.re + b.re, a.im - b.im};
        const Complex<V> o = {a.im + b.im, b.re - a.re};
        const Complex<V> t = o * splat_complex<V>(w);
        store_line(mirrored + lane, Complex<V>{e.re - t.re, t.im - e.im});
        store_line(line + lane, e + t);
    }
}
// Z[0] -> 2 B[0] in its place and 2 B[K], both real.
ORV_INLINE void split_first(float* line, float* last)
{
    using V = Widest;
    const V none = simd::splat<V>(0.0f);
    for (int lane = 0; lane < kLanes; lane += V::N) {
        const Complex<V> z = load_line<V>(line + lane);
        const V sum = z.re + z.im, difference = z.re - z.im;
        store_line(line + lane, Complex<V>{sum + sum, none});
        store_line(last + lane, Complex<V>{difference + difference, none});
    }
}

// B[k], B[K-k] -> Z[k], Z[K-k], in place.
ORV_INLINE void unsplit_pair(float* line, float* mirrored, const float* w)
{
    using V = Widest;
    for (int lane = 0; lane < kLanes; lane += V::N) {
        const Complex<V> a = load_line<V>(line + lane), b = load_line<V>(mirrored + lane);
        const Complex<V> e = {a.re + b.re, a.im - b.im};
        const Complex<V> d = times_conj({a.re - b.re, a.im + b.im}, splat_complex<V>(w));
        // t = i d
        store_line(mirrored + lane, Complex<V>{e.re + d.im, d.re - e.im});
        store_line(line + lane, Complex<V>{e.re - d.im, e.im + d.re});
    }
}
// B[0], B[K], both real -> Z[0].
ORV_INLINE void unsplit_first(float* line, const float* last)
{
    using V = Widest;
    for (int lane = 0; lane < kLanes; lane += V::N) {
        const V a = simd::load<V>(line + lane), b = simd::load<V>(last + lane);
        store_line(line + lane, Complex<V>{a + b, a - b});
    }
}

// --- Join and its inverse ---------------------------------------------------------------------------

// The butterflies at V::N values of k, whose lines are given; w holds the twiddles of eight values of
// k, of which these begin at `lane`.
template <class V>
ORV_INLINE void join_lines(const float* const* lines, const float* w, int lane, Complex<V>* x)
{
    V re[kLanes], im[kLanes];
    load_lanes_of(re, lines, 0);
    load_lanes_of(im, lines, 8);
    x[0] = scaled_by(Complex<V>{re[0], im[0]}, simd::splat<V>(0.5f));
    ORV_UNROLL
    for (int l = 1; l < kLanes; ++l) {
        x[l] = Complex<V>{re[l], im[l]} * load_line<V>(w + (l - 1) * kLineFloats + lane);
    }
    butterfly8<false>(x);
}

// Stores the results for k from `first` on; `stride` is 2K.
template <class V>
ORV_INLINE void store_joined(const Complex<V>* x, float* dst, std::ptrdiff_t first, std::ptrdiff_t stride)
{
    // For k = 0 the conjugates fall on the values that are stored after them: those stay.
    ORV_UNROLL
    for (int m = 4; m < kLanes; ++m) Interleaved<V>::store_mirrored(dst + 2 * (stride * (8 - m) - first), x[m]);
    ORV_UNROLL
    for (int m = 0; m < 4; ++m) Interleaved<V>::store(dst + 2 * (stride * m + first), x[m]);
}

// k = K from its eight real values.
inline void join_last(const float* values, float* dst, std::ptrdiff_t half_stride)
{
    Complex<One> x[kLanes];
    x[0] = {simd::splat<One>(0.5f) * simd::load<One>(values), {0.0f}};
    for (int l = 1; l < kLanes; ++l) {
        const Complex<One> w = splat_complex<One>(kLastTwiddles + 2 * (l - 1));
        x[l] = scaled_by(w, simd::load<One>(values + l));
    }
    butterfly8<false>(x);
    for (int m = 0; m < 4; ++m) Interleaved<One>::store(dst + 2 * half_stride * (2 * m + 1), x[m]);
}

// The spectrum at V::N values of k -> B / 2.
template <class V>
ORV_INLINE void unjoin(const float* src, const float* w, int lane, float* const* lines, std::ptrdiff_t first,
                       std::ptrdiff_t stride)
{
    Complex<V> x[kLanes];
    ORV_UNROLL
    for (int m = 0; m < 4; ++m) x[m] = Interleaved<V>::load(src + 2 * (stride * m + first));
    ORV_UNROLL
    for (int m = 4; m < kLanes; ++m) x[m] = Interleaved<V>::load_mirrored(src + 2 * (stride * (8 - m) - first));
    butterfly8<true>(x);
    x[0] = scaled_by(x[0], simd::splat<V>(0.5f));
    V re[kLanes], im[kLanes];
    re[0] = x[0].re;
    im[0] = x[0].im;
    ORV_UNROLL
    for (int l = 1; l < kLanes; ++l) {
        x[l] = times_conj(x[l], load_line<V>(w + (l - 1) * kLineFloats + lane));
        re[l] = x[l].re;
        im[l] = x[l].im;
    }
    store_lanes_of(re, lines, 0);
    store_lanes_of(im, lines, 8);
}

// The spectrum at K, 3K, 5K, 7K -> the eight real values B[K] / 2.
inline void unjoin_last(const float* src, float* values, std::ptrdiff_t half_stride)
{
    Complex<One> x[kLanes];
    for (int m = 0; m < 4; ++m) {
        x[m] = Interleaved<One>::load(src + 2 * half_stride * (2 * m + 1));
        x[7 - m] = {x[m].re, negated(x[m].im)};
    }
    butterfly8<true>(x);
    simd::store(values, simd::splat<One>(0.5f) * x[0].re);
    for (int l = 1; l < kLanes; ++l) {
        const Complex<One> w = splat_complex<One>(kLastTwiddles + 2 * (l - 1));
        simd::store(values + l, x[l].re * w.re + x[l].im * w.im);
    }
}

// --- Transforms -------------------------------------------------------------------------------------

// Eight values of k, from 8 * group on.
template <class Work>
ORV_INLINE void join_group(const RealPlan& plan, Work lines, std::ptrdiff_t group, float* dst, std::ptrdiff_t count)
{
    using V = Widest;
    const float* const w = plan.join + group * 7 * kLineFloats;
    for (int lane = 0; lane < kLanes; lane += V::N) {
        const float* at[V::N];
        ORV_UNROLL
        for (int i = 0; i < V::N; ++i) at[i] = lines(8 * group + lane + i);
        Complex<V> x[kLanes];
        join_lines<V>(at, w, lane, x);
        store_joined(x, dst, 8 * group + lane, 2 * count);
    }
}

// N = 64: four lines, so the only group has five values of k. The values of the three that pad it are
// stored with the others, where conjugates follow.
inline void forward_64(const RealPlan& plan, const float* src, float* dst)
{
    using V = Widest;
    alignas(64) float lines[kLanes][kLineFloats];
    __builtin_memset(lines[5], 0, 3 * sizeof(lines[5]));
    transform_lines<false>(plan.lines, src, lines[0]);
    split_first(lines[0], lines[4]);
    split_pair(lines[1], lines[3], plan.split + 2);
    split_pair(lines[2], lines[2], plan.split + 4);

    alignas(64) float conjugates[4][kLineFloats];
    for (int lane = 0; lane < kLanes; lane += V::N) {
        const float* at[V::N];
        ORV_UNROLL
        for (int i = 0; i < V::N; ++i) at[i] = lines[lane + i];
        Complex<V> x[kLanes];
        join_lines<V>(at, plan.join, lane, x);
        ORV_UNROLL
        for (int m = 0; m < 4; ++m) {
            Interleaved<V>::store(dst + 2 * (8 * m + lane), x[m]);
            store_line(conjugates[m] + lane, x[m + 4]);
        }
    }
    for (int m = 0; m < 4; ++m) {
        for (int k = 0; k < 4; k += Narrow::N) {
            Interleaved<Narrow>::store_mirrored(dst + 2 * (8 * (4 - m) - k), load_line<Narrow>(conjugates[m] + k));
        }
    }
    put(dst + 1, 0.0f);
    put(dst + 65, 0.0f);
}

inline void forward_real(const RealPlan& plan, const float* src, float* dst, float* work)
{
    const std::ptrdiff_t count = std::ptrdiff_t{1} << plan.lines.order;
    const int* const position = plan.lines.position;
    const auto line = [=](std::ptrdiff_t k) { return work + std::ptrdiff_t{position[k]} * kLineFloats; };

    transform_lines<false>(plan.lines, src, work);
    alignas(64) float last[kLineFloats];
    split_first(work, last);
    const std::ptrdiff_t groups = count / 8;
    std::ptrdiff_t k = 1;
    for (std::ptrdiff_t g = 0; g < (groups + 1) / 2; ++g) {
        // Both groups are complete once the pair that follows the lower one has been split.
        for (const std::ptrdiff_t end = 8 * g + 8 < count / 2 ? 8 * g + 8 : count / 2; k <= end; ++k) {
            split_pair(line(k), line(count - k), plan.split + 2 * k);
        }
        join_group(plan, line, g, dst, count);
        if (groups - 1 - g != g) join_group(plan, line, groups - 1 - g, dst, count);
    }
    join_last(last, dst, count);
    // Zero by symmetry, also where infinities and NaNs say otherwise.
    put(dst + 1, 0.0f);
    put(dst + 16 * count + 1, 0.0f);
}

template <class Work>
ORV_INLINE void unjoin_group(const RealPlan& plan, const float* src, std::ptrdiff_t group, Work lines,
                             std::ptrdiff_t count)
{
    using V = Widest;
    const float* const w = plan.join + group * 7 * kLineFloats;
    for (int lane = 0; lane < kLanes; lane += V::N) {
        float* at[V::N];
        ORV_UNROLL
        for (int i = 0; i < V::N; ++i) at[i] = lines(8 * group + lane + i);
        unjoin<V>(src, w, lane, at, 8 * group + lane, 2 * count);
    }
}

// dst = line * factor
ORV_INLINE void store_scaled(float* dst, const float* line, Widest factor)
{
    using V = Widest;
    for (int i = 0; i < kLineFloats; i += V::N) simd::store(dst + i, simd::load<V>(line + i) * factor);
}

// For N >= 128: `factor` times the sum over all k of X[k] exp(+2 pi i k n / N). Imaginary parts of X[0] and X[N/2]
// count as zero.
inline void inverse_real(const RealPlan& plan, const float* src, float* dst, float* work, float factor)
{
    const std::ptrdiff_t count = std::ptrdiff_t{1} << plan.lines.order;
    const auto line = [=](std::ptrdiff_t k) { return work + k * kLineFloats; };
    const Widest twice = simd::splat<Widest>(2 * factor);  // the lines hold halves
    alignas(64) float last[kLineFloats];

    for (std::ptrdiff_t g = 0; g < count / 8; ++g) unjoin_group(plan, src, g, line, count);
    unjoin_last(src, last, count);
    unsplit_first(work, last);
    for (std::ptrdiff_t k = 1; k <= count / 2; ++k) unsplit_pair(line(k), line(count - k), plan.split + 2 * k);
    transform_lines<true>(plan.lines, work, work);
    for (std::ptrdiff_t r = 0; r < count; ++r) {
        store_scaled(dst + r * kLineFloats, line(plan.lines.position[r]), twice);
    }
}

}  // namespace
}  // namespace ORV_LEVEL
}  // namespace orv
