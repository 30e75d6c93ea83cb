#include "image/colour/alpha.h"

#include "core/float_control.h"
#include "elementwise/rows.h"
#include "simd/pixels.h"

namespace orv {
namespace alpha {
namespace ORV_LEVEL {
namespace {

using std::ptrdiff_t;
using std::uint32_t;
using std::uint8_t;

// n / 255 to the nearest integer, for n <= 255^2; there are no halves.
ORV_INLINE uint32_t over_255(uint32_t n)
{
    const uint32_t m = n + 128;
    return (m + (m >> 8)) >> 8;
}
ORV_INLINE uint32_t smaller(uint32_t a, uint32_t b) { return a < b ? a : b; }

// Pixels of four bytes as words, the first channel lowest, alpha highest. a is the ground, b what lies upon it,
// `kept` what the destination held.
ORV_INLINE uint32_t channel(uint32_t pixel, int c) { return pixel >> (8 * c) & 255; }

// The same of 16-bit lanes; 257 / 2^16 does both steps. And 2^8 times it, with lower bits left to be cleared.
template <class U>
ORV_INLINE U lanes_over_255(U n)
{
    return simd::mul_high(n + simd::splat<U>(128), simd::splat<U>(257));
}
template <class U>
ORV_INLINE U raised_over_255(U n)
{
    const U m = n + simd::splat<U>(128);
    return m + simd::shifted_right<8>(m);
}

// Vectors of pixels as 16-bit lanes: the first and third channel, and the second and fourth.
template <class V> using LanesOf = simd::recast<std::uint16_t, V>;
template <class V> ORV_INLINE LanesOf<V> even_channels(V p)
{
    return simd::as<std::uint16_t>(p & simd::splat<V>(0x00FF00FF));
}
template <class V> ORV_INLINE LanesOf<V> odd_channels(V p)
{
    return simd::shifted_right<8>(simd::as<std::uint16_t>(p));
}
template <class V>
ORV_INLINE LanesOf<V> alphas(V p)
{
    const V alpha = simd::shifted_right<24>(p);
    return simd::as<std::uint16_t>(alpha | simd::shifted_left<16>(alpha));
}
template <class U> ORV_INLINE U rest_of(U alpha) { return alpha ^ simd::splat<U>(255); }
template <class V> ORV_INLINE V with_alpha_of(V colour, V kept)
{
    const V alpha = simd::splat<V>(0xFF000000);
    return simd::and_not(alpha, colour) | (kept & alpha);
}

struct OverOpaque {
    template <class V> ORV_INLINE V many(V a, V b, V kept) const
    {
        const auto alpha = alphas(b), rest = rest_of(alpha);
        const auto even = simd::mul_low(alpha, even_channels(b)) + simd::mul_low(rest, even_channels(a));
        const auto odd = simd::mul_low(alpha, odd_channels(b)) + simd::mul_low(rest, odd_channels(a));
        const V second = simd::as<uint32_t>(raised_over_255(odd)) & simd::splat<V>(0x0000FF00);
        return simd::as<uint32_t>(lanes_over_255(even)) | second | (kept & simd::splat<V>(0xFF000000));
    }
    ORV_INLINE uint32_t one(uint32_t a, uint32_t b, uint32_t kept) const
    {
        const uint32_t alpha = channel(b, 3);
        uint32_t pixel = kept & 0xFF000000;
        for (int c = 0; c < 3; ++c) pixel |= over_255(alpha * channel(b, c) + (255 - alpha) * channel(a, c)) << (8 * c);
        return pixel;
    }
};

ORV_INLINE uint32_t premultiplied_over(uint32_t a, uint32_t b)
{
    uint32_t pixel = 0;
    for (int c = 0; c < 4; ++c) {
        const uint32_t below = over_255((255 - channel(b, 3)) * channel(a, c));
        pixel |= smaller(255, channel(b, c) + below) << (8 * c);
    }
    return pixel;
}
template <class V>
ORV_INLINE V premultiplied_over_lanes(V a, V b)
{
    const auto rest = rest_of(alphas(b));
    const V even = simd::as<uint32_t>(lanes_over_255(simd::mul_low(rest, even_channels(a))));
    const V odd =
        simd::as<uint32_t>(raised_over_255(simd::mul_low(rest, odd_channels(a)))) & simd::splat<V>(0xFF00FF00);
    return simd::as<uint32_t>(simd::add_saturate(simd::as<uint8_t>(b), simd::as<uint8_t>(even | odd)));
}
struct PremultipliedOverOpaque {
    template <class V> ORV_INLINE V many(V a, V b, V kept) const
    {
        return with_alpha_of(premultiplied_over_lanes(a, b), kept);
    }
    ORV_INLINE uint32_t one(uint32_t a, uint32_t b, uint32_t kept) const
    {
        return (premultiplied_over(a, b) & 0xFFFFFF) | (kept & 0xFF000000);
    }
};
struct PremultipliedOver {
    template <class V> ORV_INLINE V many(V a, V b, V) const { return premultiplied_over_lanes(a, b); }
    ORV_INLINE uint32_t one(uint32_t a, uint32_t b, uint32_t) const { return premultiplied_over(a, b); }
};

// numerator / divisor to the nearest integer, ties to even.
ORV_INLINE uint32_t nearest_quotient(uint32_t numerator, uint32_t divisor)
{
    const uint32_t whole = numerator / divisor, twice_rest = 2 * (numerator % divisor);
    return whole + (twice_rest > divisor || (twice_rest == divisor && (whole & 1) != 0) ? 1 : 0);
}
struct Over {
    // In floats: products and sums stay below 2^24, so they are exact, and no quotient that is not a half itself comes
    // as near to one as the rounding of the division reaches.
    template <class V> ORV_INLINE V many(V a, V b, V) const
    {
        using F = simd::floats_of<V>;
        const F all = simd::splat<F>(255), top = numbers<3>(b);
        const F upper = top * all, lower = (all - top) * numbers<3>(a), sum = upper + lower;
        const F divisor = simd::max(sum, simd::splat<F>(1));
        // The upper byte of (m + m / 256) / 256, m a half more than the sum.
        const V m = simd::as<uint32_t>(simd::round_to_int(sum + simd::splat<F>(128)));
        V pixel = simd::shifted_left<16>(m + simd::shifted_right<8>(m)) & simd::splat<V>(0xFF000000);
        pixel =
            pixel | simd::as<uint32_t>(simd::round_to_int((upper * numbers<0>(b) + lower * numbers<0>(a)) / divisor));
        const V second =
            simd::as<uint32_t>(simd::round_to_int((upper * numbers<1>(b) + lower * numbers<1>(a)) / divisor));
        const V third =
            simd::as<uint32_t>(simd::round_to_int((upper * numbers<2>(b) + lower * numbers<2>(a)) / divisor));
        return pixel | simd::shifted_left<8>(second) | simd::shifted_left<16>(third);
    }
    template <int channel, class V>
    static ORV_INLINE simd::floats_of<V> numbers(V pixels)
    {
        const V lowest = channel == 0 ? pixels : simd::shifted_right<8 * channel>(pixels);
        return simd::to_float(simd::as<std::int32_t>(channel == 3 ? lowest : lowest & simd::splat<V>(255)));
    }
    ORV_INLINE uint32_t one(uint32_t a, uint32_t b, uint32_t) const
    {
        const uint32_t upper = 255 * channel(b, 3), lower = (255 - channel(b, 3)) * channel(a, 3), sum = upper + lower;
        if (sum == 0) return 0;
        uint32_t pixel = over_255(sum) << 24;
        for (int c = 0; c < 3; ++c)
            pixel |= nearest_quotient(upper * channel(b, c) + lower * channel(a, c), sum) << (8 * c);
        return pixel;
    }
};

// What the loops of rows compute at a position, from both sources and from what the destination holds.
template <class Op>
struct FromThree {
    const uint32_t* a;
    const uint32_t* b;
    const uint32_t* kept;
    ORV_INLINE uint32_t one(ptrdiff_t i) const { return Op().one(get(a + i), get(b + i), get(kept + i)); }
    template <class V> ORV_INLINE V at(ptrdiff_t i) const
    {
        return Op().many(simd::load<V>(a + i), simd::load<V>(b + i), simd::load<V>(kept + i));
    }
    template <class V, int Bytes> ORV_INLINE V ends(ptrdiff_t n) const
    {
        return Op().many(simd::load_ends<V, Bytes>(a, n), simd::load_ends<V, Bytes>(b, n),
                         simd::load_ends<V, Bytes>(kept, n));
    }
};

template <class Op>
Status compose(const uint8_t* src1, int src1Step, const uint8_t* src2, int src2Step, uint8_t* dst, int dstStep,
               Size roi)
{
    const FloatControl control;
    const Rows rows(roi, 1, 4, src1Step, src2Step, dstStep);
    for (int y = 0; y < rows.count; ++y) {
        auto* const d = reinterpret_cast<uint32_t*>(row_at(dst, dstStep, y));
        run_row(d, rows.n, FromThree<Op>{reinterpret_cast<const uint32_t*>(row_at(src1, src1Step, y)),
                                         reinterpret_cast<const uint32_t*>(row_at(src2, src2Step, y)), d});
    }
    return StatusOk;
}

// Both by the same weights: those of a constant.
struct Blend {
    uint8_t alpha;
    template <class V> ORV_INLINE V many(V a, V b) const
    {
        using U = LanesOf<V>;
        const U upper = simd::splat<U>(alpha), lower = simd::splat<U>(static_cast<std::uint16_t>(255 - alpha)),
                low_byte = simd::splat<U>(255);
        const U a2 = simd::as<std::uint16_t>(a), b2 = simd::as<std::uint16_t>(b);
        const U even = simd::mul_low(upper, b2 & low_byte) + simd::mul_low(lower, a2 & low_byte);
        const U odd =
            simd::mul_low(upper, simd::shifted_right<8>(b2)) + simd::mul_low(lower, simd::shifted_right<8>(a2));
        return simd::as<uint8_t>(lanes_over_255(even) | simd::and_not(low_byte, raised_over_255(odd)));
    }
    ORV_INLINE uint8_t one(uint8_t a, uint8_t b) const
    {
        return static_cast<uint8_t>(over_255(uint32_t{alpha} * b + (255u - alpha) * a));
    }
};

}  // namespace

// --- Kernels --------------------------------------------------------------------------------------

Status AlphaComp_8u_AC4(const uint8_t* src1, int src1Step, const uint8_t* src2, int src2Step, uint8_t* dst, int dstStep,
                        Size roi, int premultiplied)
{
    if (const Status bad = check_image(roi, src1, src2, dst)) return bad;
    if (premultiplied == 0) return compose<OverOpaque>(src1, src1Step, src2, src2Step, dst, dstStep, roi);
    return compose<PremultipliedOverOpaque>(src1, src1Step, src2, src2Step, dst, dstStep, roi);
}

Status AlphaComp_8u_C4(const uint8_t* src1, int src1Step, const uint8_t* src2, int src2Step, uint8_t* dst, int dstStep,
                       Size roi, int premultiplied)
{
    if (const Status bad = check_image(roi, src1, src2, dst)) return bad;
    if (premultiplied == 0) return compose<Over>(src1, src1Step, src2, src2Step, dst, dstStep, roi);
    return compose<PremultipliedOver>(src1, src1Step, src2, src2Step, dst, dstStep, roi);
}

Status AlphaCompC_8u_C3R(const uint8_t* src1, int src1Step, const uint8_t* src2, int src2Step, uint8_t alpha,
                         uint8_t* dst, int dstStep, Size roi)
{
    if (const Status bad = check_image(roi, src1, src2, dst)) return bad;
    Blend op = {alpha};
    plane(src1, src1Step, src2, src2Step, dst, dstStep, roi, 3, op);
    return StatusOk;
}

}  // namespace ORV_LEVEL
}  // namespace alpha
}  // namespace orv
