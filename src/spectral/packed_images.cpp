// A W x H float image holds the spectrum F[v][u] = conj(F[(H - v) % H][(W - u) % W]) of a real image: F[v][u] lies in
// columns 2u - 1 and 2u of row v for u from 1 to (W - 1) / 2. Column 0 holds F[v][0] down the column: row 0 the real
// F[0][0], rows 2v - 1 and 2v the two parts for v from 1 to (H - 1) / 2, for even H row H - 1 the real F[H / 2][0]. For
// even W column W - 1 holds F[v][W / 2] in the same way.
#include "spectral/packed_images.h"

#include <cstdint>

#include "core/checks.h"
#include "core/float_control.h"
#include "elementwise/complex_arithmetic.h"
#include "elementwise/magnitudes.h"
#include "math/arctangent.h"
#include "math/maps.h"
#include "simd/interleaved.h"

namespace orv {
namespace packed_images {
namespace ORV_LEVEL {
namespace {

using std::uint32_t;

constexpr uint32_t kSign = 0x80000000;

// Parts move as bits.
ORV_INLINE uint32_t word_at(const float* p) { return get(reinterpret_cast<const uint32_t*>(p)); }
ORV_INLINE void put_word(float* p, uint32_t bits) { put(reinterpret_cast<uint32_t*>(p), bits); }
ORV_INLINE void move(const float* from, float* to) { put_word(to, word_at(from)); }

ORV_INLINE const float* parts(const Complex32f* p) { return reinterpret_cast<const float*>(p); }
ORV_INLINE float* parts(Complex32f* p) { return reinterpret_cast<float*>(p); }

// How many values stand with both their parts in a row, or down one of the columns, and whether there is a real one
// behind them.
ORV_INLINE int pairs_of(int side) { return (side - 1) / 2; }
ORV_INLINE bool has_middle(int side) { return side % 2 == 0; }

// The row of the values that are conjugates of those of row v.
ORV_INLINE int mirrored_row(int v, Size roi) { return v == 0 ? 0 : roi.height - v; }

// use(packed column, u) for the columns that hold their values down the column.
template <class Use>
ORV_INLINE void for_columns(Size roi, Use use)
{
    use(0, 0);
    if (has_middle(roi.width)) use(roi.width - 1, roi.width / 2);
}

// --- Products -------------------------------------------------------------------------------------

struct Operands {
    const float *a, *b;
    float* dst;
    int a_step, b_step, dst_step;

    ORV_INLINE Operands at(int x, int y) const
    {
        return {row_at(a, a_step, y) + x, row_at(b, b_step, y) + x, row_at(dst, dst_step, y) + x,
                a_step, b_step, dst_step};
    }
};

// A value whose imaginary parts stand in the next row.
template <class Op>
ORV_INLINE void multiply_down(const Operands& p, Op op)
{
    const auto value = [](const float* at, int step) {
        return ComplexDouble{static_cast<double>(get(at)), static_cast<double>(get(row_at(at, step, 1)))};
    };
    const ComplexDouble product = op.one(value(p.a, p.a_step), value(p.b, p.b_step));
    put_word(p.dst, stored(product.re));
    put_word(row_at(p.dst, p.dst_step, 1), stored(product.im));
}

// The destination may be one of the sources: no part is read once it has been written.
template <class Op>
Status multiply(const Operands& images, Size roi)
{
    if (const Status bad = check_image(roi, images.a, images.b, images.dst)) return bad;
    if (any_below_one(images.a_step, images.b_step, images.dst_step)) return StatusBadStep;
    const FloatControl control;
    Op op;
    for (int y = 0; y < roi.height; ++y) {
        const Operands row = images.at(0, y);
        complex_row(ComplexVector{row.a + 1}, ComplexVector{row.b + 1}, row.dst + 1, pairs_of(roi.width), op);
        const bool real = y == 0 || (y == roi.height - 1 && has_middle(roi.height));
        for_columns(roi, [&](int x, int) {
            if (real) multiply_reals(row.a + x, row.b + x, row.dst + x);
            else if (y % 2 == 0) multiply_down(images.at(x, y - 1), op);
        });
    }
    return StatusOk;
}

// --- Magnitudes and phases ------------------------------------------------------------------------

// What is computed of each value, and what that of its conjugate is then, both for bits and for vectors of floats.
struct Magnitudes {
    static ORV_INLINE void of(const float* re, const float* im, float* result, std::ptrdiff_t n)
    {
        magnitudes(re, im, result, n);
    }
    static ORV_INLINE uint32_t mirrored(uint32_t value) { return value; }
    static ORV_INLINE floats mirrored(floats value) { return value; }
};

struct Phases {
    static ORV_INLINE void of(const float* re, const float* im, float* result, std::ptrdiff_t n)
    {
        Atan2OfFloats op;
        map_vectors<2, 1, float>(n, {im, re}, {result}, op);
    }
    // A NaN stays as it is.
    static ORV_INLINE uint32_t mirrored(uint32_t value) { return is_nan_bits<float>(value) ? value : value ^ kSign; }
    static ORV_INLINE floats mirrored(floats value)
    {
        return simd::select(simd::unordered(value, value), value, value ^ floats(-0.0f));
    }
};

constexpr int kAtOnce = 256;

// Parts apart from each other, and results.
struct Block {
    float re[kAtOnce], im[kAtOnce], results[kAtOnce];
};

ORV_INLINE std::ptrdiff_t block_length(std::ptrdiff_t left) { return left < kAtOnce ? left : kAtOnce; }

ORV_INLINE void separate(const float* src, Block& block, std::ptrdiff_t n)
{
    std::ptrdiff_t i = 0;
    if constexpr (ORV_HAVE_VECTORS) {
        for (; i + floats::N <= n; i += floats::N) {
            const simd::twice<floats> both = simd::interleaved<floats>::load(src + 2 * i);
            store(block.re + i, both.lo);
            store(block.im + i, both.hi);
        }
    }
    for (; i < n; ++i) {
        move(src + 2 * i, block.re + i);
        move(src + 2 * i + 1, block.im + i);
    }
}

// The results to dst, and to mirror, mirror - 1, ... those of the conjugates.
template <class Op>
ORV_INLINE void store_twice(const float* results, float* dst, float* mirror, std::ptrdiff_t n)
{
    std::ptrdiff_t i = 0;
    if constexpr (ORV_HAVE_VECTORS) {
        for (; i + floats::N <= n; i += floats::N) {
            const floats value = load_floats(results + i);
            store(dst + i, value);
            store(mirror - i - (floats::N - 1), simd::reversed(Op::mirrored(value)));
        }
    }
    for (; i < n; ++i) {
        put_word(dst + i, word_at(results + i));
        put_word(mirror - i, Op::mirrored(word_at(results + i)));
    }
}

// Of column x of the packed image, to column u.
template <class Op>
void column_results(const float* src, int srcStep, int x, float* dst, int dstStep, int u, int height, Block& block)
{
    const auto source = [=](int y) { return row_at(src, srcStep, y) + x; };
    const auto target = [=](int y) { return row_at(dst, dstStep, y) + u; };
    const auto real = [&](int from, int to) {
        move(source(from), block.re);
        put_word(block.im, 0);
        Op::of(block.re, block.im, block.results, 1);
        move(block.results, target(to));
    };
    real(0, 0);
    for (int v = 1; v <= pairs_of(height);) {
        const int n = static_cast<int>(block_length(pairs_of(height) - v + 1));
        for (int k = 0; k < n; ++k) {
            move(source(2 * (v + k) - 1), block.re + k);
            move(source(2 * (v + k)), block.im + k);
        }
        Op::of(block.re, block.im, block.results, n);
        for (int k = 0; k < n; ++k, ++v) {
            move(block.results + k, target(v));
            put_word(target(height - v), Op::mirrored(word_at(block.results + k)));
        }
    }
    if (has_middle(height)) real(height - 1, height / 2);
}

template <class Op>
Status results_of_packed(const float* src, int srcStep, float* dst, int dstStep, Size roi)
{
    if (const Status bad = check_images(src, srcStep, dst, dstStep, roi)) return bad;
    const FloatControl control;
    Block block;
    for (int v = 0; v < roi.height; ++v) {
        const float* const row = row_at(src, srcStep, v);
        float* const to = row_at(dst, dstStep, v);
        float* const mirror = row_at(dst, dstStep, mirrored_row(v, roi));
        for (std::ptrdiff_t u = 1; u <= pairs_of(roi.width); u += kAtOnce) {
            const std::ptrdiff_t n = block_length(pairs_of(roi.width) - u + 1);
            separate(row + 2 * u - 1, block, n);
            Op::of(block.re, block.im, block.results, n);
            store_twice<Op>(block.results, to + u, mirror + roi.width - u, n);
        }
    }
    for_columns(roi, [&](int x, int u) { column_results<Op>(src, srcStep, x, dst, dstStep, u, roi.height, block); });
    return StatusOk;
}

template <class Op>
Status results_of_complex(const Complex32f* src, int srcStep, float* dst, int dstStep, Size roi)
{
    if (const Status bad = check_images(src, srcStep, dst, dstStep, roi)) return bad;
    const FloatControl control;
    Block block;
    for (int y = 0; y < roi.height; ++y) {
        const float* const row = parts(row_at(src, srcStep, y));
        float* const to = row_at(dst, dstStep, y);
        for (std::ptrdiff_t x = 0; x < roi.width; x += kAtOnce) {
            const std::ptrdiff_t n = block_length(roi.width - x);
            separate(row + 2 * x, block, n);
            Op::of(block.re, block.im, to + x, n);
        }
    }
    return StatusOk;
}

// --- All values, and back ---------------------------------------------------------------------------

// n values to dst, and to mirror, mirror - 2, ... their conjugates.
ORV_INLINE void extend_row(const float* src, float* dst, float* mirror, std::ptrdiff_t n)
{
    std::ptrdiff_t i = 0;
    if constexpr (ORV_HAVE_VECTORS) {
        alignas(32) static const float signs[8] = {0.0f, -0.0f, 0.0f, -0.0f, 0.0f, -0.0f, 0.0f, -0.0f};
        const floats conjugate = load_floats(signs);
        constexpr int kValues = floats::N / 2;
        for (; i + kValues <= n; i += kValues) {
            const floats values = load_floats(src + 2 * i);
            store(dst + 2 * i, values);
            store(mirror - 2 * (i + kValues - 1), simd::reversed_pairs(values) ^ conjugate);
        }
    }
    for (; i < n; ++i) {
        const uint32_t re = word_at(src + 2 * i), im = word_at(src + 2 * i + 1);
        put_word(dst + 2 * i, re);
        put_word(dst + 2 * i + 1, im);
        put_word(mirror - 2 * i, re);
        put_word(mirror - 2 * i + 1, im ^ kSign);
    }
}

ORV_INLINE void put_value(float* to, uint32_t re, uint32_t im)
{
    put_word(to, re);
    put_word(to + 1, im);
}

void extend_column(const float* src, int srcStep, int x, Complex32f* dst, int dstStep, int u, int height)
{
    const auto source = [=](int y) { return word_at(row_at(src, srcStep, y) + x); };
    const auto target = [=](int y) { return parts(row_at(dst, dstStep, y) + u); };
    put_value(target(0), source(0), 0);
    for (int v = 1; v <= pairs_of(height); ++v) {
        const uint32_t re = source(2 * v - 1), im = source(2 * v);
        put_value(target(v), re, im);
        put_value(target(height - v), re, im ^ kSign);
    }
    if (has_middle(height)) put_value(target(height / 2), source(height - 1), 0);
}

void pack_column(const Complex32f* src, int srcStep, int u, float* dst, int dstStep, int x, int height)
{
    const auto source = [=](int y) { return parts(row_at(src, srcStep, y) + u); };
    const auto target = [=](int y) { return row_at(dst, dstStep, y) + x; };
    move(source(0), target(0));
    for (int v = 1; v <= pairs_of(height); ++v) {
        move(source(v), target(2 * v - 1));
        move(source(v) + 1, target(2 * v));
    }
    if (has_middle(height)) move(source(height / 2), target(height - 1));
}

}  // namespace

// --- Kernels --------------------------------------------------------------------------------------

Status MulPack_32f_C1R(const float* src1, int src1Step, const float* src2, int src2Step, float* dst, int dstStep,
                       Size roi)
{
    return multiply<ComplexProduct>({src1, src2, dst, src1Step, src2Step, dstStep}, roi);
}
Status MulPackConj_32f_C1R(const float* src1, int src1Step, const float* src2, int src2Step, float* dst, int dstStep,
                           Size roi)
{
    return multiply<ComplexProductConjugate>({src1, src2, dst, src1Step, src2Step, dstStep}, roi);
}

Status MagnitudePack_32f_C1R(const float* src, int srcStep, float* dst, int dstStep, Size roi)
{
    return results_of_packed<Magnitudes>(src, srcStep, dst, dstStep, roi);
}
Status PhasePack_32f_C1R(const float* src, int srcStep, float* dst, int dstStep, Size roi)
{
    return results_of_packed<Phases>(src, srcStep, dst, dstStep, roi);
}
Status Magnitude_32fc32f_C1R(const Complex32f* src, int srcStep, float* dst, int dstStep, Size roi)
{
    return results_of_complex<Magnitudes>(src, srcStep, dst, dstStep, roi);
}
Status Phase_32fc32f_C1R(const Complex32f* src, int srcStep, float* dst, int dstStep, Size roi)
{
    return results_of_complex<Phases>(src, srcStep, dst, dstStep, roi);
}

Status PackToCplxExtend_32f32fc_C1R(const float* src, int srcStep, Complex32f* dst, int dstStep, Size roi)
{
    if (const Status bad = check_images(src, srcStep, dst, dstStep, roi)) return bad;
    for (int v = 0; v < roi.height; ++v) {
        Complex32f* const mirror = row_at(dst, dstStep, mirrored_row(v, roi));
        extend_row(row_at(src, srcStep, v) + 1, parts(row_at(dst, dstStep, v) + 1), parts(mirror + roi.width - 1),
                   pairs_of(roi.width));
    }
    for_columns(roi, [=](int x, int u) { extend_column(src, srcStep, x, dst, dstStep, u, roi.height); });
    return StatusOk;
}

Status CplxExtendToPack_32fc32f_C1R(const Complex32f* src, int srcStep, float* dst, int dstStep, Size roi)
{
    if (const Status bad = check_images(src, srcStep, dst, dstStep, roi)) return bad;
    for (int v = 0; v < roi.height; ++v) {
        __builtin_memcpy(row_at(dst, dstStep, v) + 1, parts(row_at(src, srcStep, v) + 1),
                         static_cast<std::size_t>(pairs_of(roi.width)) * sizeof(Complex32f));
    }
    for_columns(roi, [=](int x, int u) { pack_column(src, srcStep, u, dst, dstStep, x, roi.height); });
    return StatusOk;
}

}  // namespace ORV_LEVEL
}  // namespace packed_images
}  // namespace orv
