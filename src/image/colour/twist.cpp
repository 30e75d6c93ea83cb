#include "image/colour/twist.h"

#include "core/float_control.h"
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

struct TwistBytes : Twist {
    using Twist::Twist;
    void one(const uint8_t* src, uint8_t* dst) const
    {
        const float p[3] = {static_cast<float>(src[0]), static_cast<float>(src[1]), static_cast<float>(src[2])};
        for (int c = 0; c < 3; ++c) dst[c] = nearest_byte(channel(c, p));
    }
};

struct TwistFloats : Twist {
    using Twist::Twist;
    void one(const float* src, float* dst) const
    {
        const float p[3] = {get(src), get(src + 1), get(src + 2)};
        for (int c = 0; c < 3; ++c) {
            const float value = channel(c, p);
            uint32_t bits;
            __builtin_memcpy(&bits, &value, sizeof(bits));
            if (value != value) bits = 0x7FC00000;
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
    for (int y = 0; y < rows.count; ++y) {
        const float* const s = row_at(src, srcStep, y);
        float* const d = row_at(dst, dstStep, y);
        for (ptrdiff_t i = 0; i < rows.n; i += 3) op.one(s + i, d + i);
    }
    return StatusOk;
}

}  // namespace ORV_LEVEL
}  // namespace twist
}  // namespace orv
