#include "image/colour/twist.h"

#include "core/float_control.h"
#include "core/nan.h"
#include "image/colour/pixel_rows.h"

namespace orv {
namespace twist {
namespace ORV_LEVEL {
namespace {

using std::ptrdiff_t;
using std::uint32_t;
using std::uint8_t;

// Three rows of three factors and a constant.
struct Twist {
    float row[3][4];

    explicit Twist(const float* twist) { __builtin_memcpy(row, twist, sizeof(row)); }
    // One rounding per operation, sums from the left.
    ORV_INLINE float channel(int c, const float (&p)[3]) const
    {
        const float first = rounded(rounded(row[c][0] * p[0]) + rounded(row[c][1] * p[1]));
        return rounded(rounded(first + rounded(row[c][2] * p[2])) + row[c][3]);
    }
    template <class V>
    ORV_INLINE V many(int c, V p0, V p1, V p2) const
    {
        using simd::splat;
        return ((splat<V>(row[c][0]) * p0 + splat<V>(row[c][1]) * p1) + splat<V>(row[c][2]) * p2) + splat<V>(row[c][3]);
    }
};

// The nearest byte, ties to even; a NaN gives 0.
ORV_INLINE uint8_t nearest_byte(float x)
{
    if (!(x > 0)) return 0;
    if (x >= 255) return 255;
    const int whole = static_cast<int>(x);
    const float fraction = x - static_cast<float>(whole);
    return static_cast<uint8_t>(whole + (fraction > 0.5f || (fraction == 0.5f && (whole & 1) != 0) ? 1 : 0));
}

#if ORV_HAVE_BYTE_SHUFFLE
template <class From, int Channel>
struct OneChannel {
    static constexpr int source(int b) { return b % 4 == 0 ? From::at(Channel, b / 4) : kNone; }
    static constexpr Picks picks = make_picks(source);
};
#endif

struct TwistBytes : Twist {
    using Twist::Twist;
#if ORV_HAVE_BYTE_SHUFFLE
    static constexpr int place(int channel, int pixel) { return 4 * channel + pixel; }
    // As its second operand a NaN passes the minimum, becomes the least integer, and that a 0.
    template <class V>
    ORV_INLINE Ints nearest(int c, V p0, V p1, V p2) const
    {
        return simd::round_to_int(simd::min(simd::splat<V>(255), Twist::many(c, p0, p1, p2)));
    }
    template <class From>
    ORV_INLINE Bytes many(Bytes pixels) const
    {
        const auto p0 = simd::to_float(simd::as<std::int32_t>(shuffled(pixels, OneChannel<From, 0>::picks)));
        const auto p1 = simd::to_float(simd::as<std::int32_t>(shuffled(pixels, OneChannel<From, 1>::picks)));
        const auto p2 = simd::to_float(simd::as<std::int32_t>(shuffled(pixels, OneChannel<From, 2>::picks)));
        return packed_channels(nearest(0, p0, p1, p2), nearest(1, p0, p1, p2), nearest(2, p0, p1, p2));
    }
#endif
    void one(const uint8_t* src, uint8_t* dst) const
    {
        const float p[3] = {static_cast<float>(src[0]), static_cast<float>(src[1]), static_cast<float>(src[2])};
        for (int c = 0; c < 3; ++c) dst[c] = nearest_byte(channel(c, p));
    }
};

struct TwistFloats : Twist {
    using Twist::Twist;
#if ORV_HAVE_VECTORS
    using Floats = simd::widest<float>;
    static constexpr int N = Floats::N;  // pixels of a block

    // All pixels are read before any is written.
    ORV_INLINE void block(const float* src, float* dst) const
    {
        const simd::three<Floats> pixels = {simd::load<Floats>(src), simd::load<Floats>(src + N),
                                            simd::load<Floats>(src + 2 * N)};
        const simd::three<Floats> p = simd::separated(pixels);
        Floats out[3] = {many(0, p.a, p.b, p.c), many(1, p.a, p.b, p.c), many(2, p.a, p.b, p.c)};
        const Floats no_number = simd::unordered(out[0], out[1]) | simd::unordered(out[2], out[2]);
        if (__builtin_expect(simd::any(no_number), false)) {
            for (Floats& channel : out)
                channel =
                    simd::select(simd::unordered(channel, channel), simd::splat<Floats>(__builtin_nanf("")), channel);
        }
        const simd::three<Floats> result = simd::side_by_side(simd::three<Floats>{out[0], out[1], out[2]});
        simd::store(dst, result.a);
        simd::store(dst + N, result.b);
        simd::store(dst + 2 * N, result.c);
    }
    ORV_INLINE void row_of_pixels(const float* src, float* dst, ptrdiff_t n) const
    {
        blocks_of_pixels<N, 3, 3>(src, dst, n, [&](const float* from, float* to) __attribute__((always_inline)) {
            block(from, to);
        });
    }
#else
    void row_of_pixels(const float* src, float* dst, ptrdiff_t n) const
    {
        for (; n > 0; --n, src += 3, dst += 3) one(src, dst);
    }
#endif
    void one(const float* src, float* dst) const
    {
        const float p[3] = {get(src), get(src + 1), get(src + 2)};
        for (int c = 0; c < 3; ++c) {
            const float value = channel(c, p);
            uint32_t bits;
            __builtin_memcpy(&bits, &value, sizeof(bits));
            if (value != value) bits = kPlainNan;
            put(reinterpret_cast<uint32_t*>(dst + c), bits);
        }
    }
};

template <int Channels>
Status twist_bytes(const uint8_t* src, int srcStep, const float* twist, uint8_t* dst, int dstStep, Size roi)
{
    if (const Status bad = check_image(roi, src, twist, dst)) return bad;
    const FloatControl control;
    pixel_plane<Channels>(src, srcStep, dst, dstStep, roi, TwistBytes(twist));
    return StatusOk;
}

}  // namespace

Status ColorTwist32f_8u_C3(const uint8_t* src, int srcStep, const float* twist, uint8_t* dst, int dstStep, Size roi)
{
    return twist_bytes<3>(src, srcStep, twist, dst, dstStep, roi);
}
Status ColorTwist32f_8u_AC4(const uint8_t* src, int srcStep, const float* twist, uint8_t* dst, int dstStep, Size roi)
{
    return twist_bytes<4>(src, srcStep, twist, dst, dstStep, roi);
}

Status ColorTwist32f_32f_C3(const float* src, int srcStep, const float* twist, float* dst, int dstStep, Size roi)
{
    if (const Status bad = check_image(roi, src, twist, dst)) return bad;
    const FloatControl control;
    const TwistFloats op(twist);
    const Rows rows(roi, 3, sizeof(float), srcStep, dstStep);
    for (int y = 0; y < rows.count; ++y) op.row_of_pixels(row_at(src, srcStep, y), row_at(dst, dstStep, y), rows.n / 3);
    return StatusOk;
}

}  // namespace ORV_LEVEL
}  // namespace twist
}  // namespace orv
