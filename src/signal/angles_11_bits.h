// Sine and cosine to 11 bits, in float.
//
// Up to 800 in magnitude a multiple of pi (or pi/2) is subtracted in three parts, of which the first two
// have exact products with the multiple; beyond, angles are reduced in double. The polynomials were
// fitted with Sollya's fpminimax.
#pragma once

#include <cstdint>

#include "core/maps.h"
#include "core/sine.h"

namespace orv {
inline namespace ORV_LEVEL {

ORV_INLINE bool all_near(floats x) { return all_of(less_equal(magnitude(x), 800.0f)); }

// What is left of kFloats angles beyond 800 or not finite, and the multiples that were taken off. The
// multiples are of pi/2 by `parity`: any of them, even ones only, odd ones only.
enum class Multiples { any, even, odd };
struct FarAngles {
    float r[kFloats];
    std::uint32_t quadrant[kFloats];
};

template <Multiples multiples>
__attribute__((noinline)) void replace_far(const float* src, FarAngles* angles)
{
    for (int i = 0; i < kFloats; i += kDoubles) {
        double r[kDoubles];
        std::uint64_t quadrant[kDoubles];
        const Angle angle = reduce_anywhere<false>(magnitude(load_doubles(src + i)));
        store(r, angle.r);
        store(quadrant, angle.quadrant);
        for (int lane = 0; lane < kDoubles; ++lane) {
            const std::uint32_t b = get(reinterpret_cast<const std::uint32_t*>(src + i + lane));
            if ((b & 0x7FFFFFFF) <= bit_cast<std::uint32_t>(800.0f)) continue;
            std::uint32_t n = static_cast<std::uint32_t>(quadrant[lane]);
            double rest = r[lane];
            const bool wrong = (multiples == Multiples::even && n % 2 != 0) || (multiples == Multiples::odd && n % 2 == 0);
            if (wrong) {
                const bool up = rest >= 0;
                n += up ? 1u : ~0u;
                rest = rounded(up ? rest - 0x1.921fb54442d18p+0 : rest + 0x1.921fb54442d18p+0);
            }
            const bool negative = b > 0x80000000 && b < 0xFF800000;  // NaNs have no sign
            angles->r[i + lane] = rounded(static_cast<float>(negative ? -rest : rest));
            angles->quadrant[i + lane] = negative ? 0 - n : n;
        }
    }
}

// sin(r) for |r| <= pi/2, to 2^-13 of itself.
ORV_INLINE floats sine_11_bits(floats r)
{
    const floats z = r * r;
    return r * ((z * 7.6014562509953975677490234375e-3f - 0.16595725715160369873046875f) * z + 0.99989116191864013671875f);
}

struct SineOfFloats {
    static constexpr int N = kFloats;

    ORV_INLINE void step(const float* const* src, float* const* dst) const
    {
        const floats x = load_floats(src[0]);
        const floats shifted = x * 0x1.45f306p-2f + kRoundFloat;
        const floats k = shifted - kRoundFloat;
        floats r = minus_exact(minus_exact(x, k, 0x1.921cp+1f), k, 0x1.daap-14f) - k * 0x1.10b462p-29f;
        ints half_turns = bits(shifted);
        if (__builtin_expect(!all_near(x), 0)) far(src[0], &r, &half_turns);
        // Odd multiples of pi change the sign.
        store(dst[0], sine_11_bits(r) ^ from_bits(shift_left<31>(half_turns)));
    }

private:
    static void far(const float* src, floats* r, ints* half_turns)
    {
        FarAngles angles;
        store(angles.r, *r);
        store(angles.quadrant, shift_left<1>(*half_turns));
        replace_far<Multiples::even>(src, &angles);
        *r = load_floats(angles.r);
        *half_turns = shift_right<1>(load_ints(angles.quadrant));
    }
};

struct CosineOfFloats {
    static constexpr int N = kFloats;

    ORV_INLINE void step(const float* const* src, float* const* dst) const
    {
        // x = (j + 1/2) pi + r: the cosine is -sin(r) for even j.
        const floats x = load_floats(src[0]);
        const floats shifted = (x * 0x1.45f306p-2f - 0.5f) + kRoundFloat;
        const floats h = (shifted - kRoundFloat) + 0.5f;
        floats r = minus_exact(minus_exact(x, h, 0x1.921cp+1f), h, 0x1.daap-14f) - h * 0x1.10b462p-29f;
        ints half_turns = bits(shifted);
        if (__builtin_expect(!all_near(x), 0)) far(src[0], &r, &half_turns);
        store(dst[0], sine_11_bits(r) ^ from_bits(shift_left<31>(half_turns + ints(1))));
    }

private:
    static void far(const float* src, floats* r, ints* half_turns)
    {
        FarAngles angles;
        store(angles.r, *r);
        store(angles.quadrant, shift_left<1>(*half_turns) + ints(1));
        replace_far<Multiples::odd>(src, &angles);
        *r = load_floats(angles.r);
        *half_turns = shift_right<1>(load_ints(angles.quadrant));
    }
};

struct SineCosineOfFloats {
    static constexpr int N = kFloats;

    ORV_INLINE void step(const float* const* src, float* const* dst) const
    {
        const floats x = load_floats(src[0]);
        const floats shifted = x * 0x1.45f306p-1f + kRoundFloat;
        const floats k = shifted - kRoundFloat;
        floats r = minus_exact(minus_exact(x, k, 0x1.921cp+0f), k, 0x1.daap-15f) - k * 0x1.10b462p-30f;
        ints quadrant = bits(shifted);
        if (__builtin_expect(!all_near(x), 0)) far(src[0], &r, &quadrant);
        const floats z = r * r;
        const floats s = r * ((z * 8.14990140497684478759765625e-3f - 0.16662381589412689208984375f) * z +
                              0.999998509883880615234375f);
        const floats c = ((z * -1.35896797291934490203857421875e-3f + 4.165558516979217529296875e-2f) * z -
                          0.4999988079071044921875f) * z + 1.0f;
        const floats one_or_minus = from_bits(shift_left<31>(quadrant) | bits(floats(1.0f)));
        const floats exchange = less(one_or_minus, 0.0f) & (s ^ c);
        const ints sign(0x80000000);
        store(dst[0], (s ^ exchange) ^ from_bits(shift_left<30>(quadrant) & sign));
        store(dst[1], (c ^ exchange) ^ from_bits(shift_left<30>(quadrant + ints(1)) & sign));
    }

private:
    static void far(const float* src, floats* r, ints* quadrant)
    {
        FarAngles angles;
        store(angles.r, *r);
        store(angles.quadrant, *quadrant);
        replace_far<Multiples::any>(src, &angles);
        *r = load_floats(angles.r);
        *quadrant = load_ints(angles.quadrant);
    }
};

}  // namespace ORV_LEVEL
}  // namespace orv
