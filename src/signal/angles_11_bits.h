// Sine and cosine to 11 bits, in float.
//
// A multiple of pi (or pi/2) is subtracted in parts whose products with the multiple are exact: two up to 25 in
// magnitude, three up to 800. Beyond, angles are reduced in double. The polynomials were fitted with
// Sollya's fpminimax.
#pragma once

#include <cstdint>

#include "core/maps.h"
#include "core/sine.h"

namespace orv {
inline namespace ORV_LEVEL {

constexpr float kNear = 25, kFar = 800;

// x - k half_turn pi, where half_turn is 1 or 1/2. Each lane in the way that its own size asks for, so that
// its neighbours do not matter.
ORV_INLINE floats reduce_near(floats x, floats k, float half_turn)
{
    return minus_exact(minus_exact(x, k, 0x1.921fap+1f * half_turn), k, 0x1.54442p-19f * half_turn);
}
ORV_INLINE floats reduce_middle(floats x, floats k, float half_turn)
{
    const floats first = minus_exact(x, k, 0x1.921cp+1f * half_turn);
    return minus_exact(first, k, 0x1.daap-14f * half_turn) - k * (0x1.10b462p-29f * half_turn);
}

// What is left of kFloats angles beyond kFar or not finite, and the multiples that were taken off. The
// multiples are of pi/2 by `parity`: any of them, even ones only, odd ones only.
enum class Multiples { any, even, odd };
struct FarAngles {
    float r[kFloats];
    std::uint32_t quadrant[kFloats];

    FarAngles(floats near_r, ints near_quadrant)
    {
        store(r, near_r);
        store(quadrant, near_quadrant);
    }
    template <Multiples multiples>
    __attribute__((noinline)) void replace(const float* src)
    {
        for (int i = 0; i < kFloats; i += kDoubles) {
            double rests[kDoubles];
            std::uint64_t quadrants[kDoubles];
            const Angle angle = reduce_anywhere(magnitude(load_doubles(src + i)));
            store(rests, angle.r);
            store(quadrants, angle.quadrant);
            for (int lane = 0; lane < kDoubles; ++lane) {
                const std::uint32_t b = get(reinterpret_cast<const std::uint32_t*>(src + i + lane));
                if ((b & 0x7FFFFFFF) <= bit_cast<std::uint32_t>(kFar)) continue;
                std::uint32_t n = static_cast<std::uint32_t>(quadrants[lane]);
                double rest = rests[lane];
                const bool wrong = (multiples == Multiples::even && n % 2 != 0) || (multiples == Multiples::odd && n % 2 == 0);
                if (wrong) {
                    const bool up = !(rest < 0);
                    n += up ? 1u : ~0u;
                    rest = rounded(up ? rest - 0x1.921fb54442d18p+0 : rest + 0x1.921fb54442d18p+0);
                }
                // Odd multiples are for the cosine, which has no sign, and NaNs have none.
                const bool negative = multiples != Multiples::odd && b > 0x80000000 && b < 0xFF800000;
                r[i + lane] = rounded(static_cast<float>(negative ? -rest : rest));
                quadrant[i + lane] = negative ? 0 - n : n;
            }
        }
    }
};

// sin(r) times the sign, for |r| <= pi/2, to 2^-13 of itself.
template <int sign>
ORV_INLINE floats sine_11_bits(floats r)
{
    const floats z = r * r;
    return r * ((z * (sign * 7.6014562509953975677490234375e-3f) - sign * 0.16595725715160369873046875f) * z +
                sign * 0.99989116191864013671875f);
}

// Two registers at a time, with one test for both: near() is where quick() is enough. NaNs are not near.
ORV_INLINE mask32 near(floats x) { return less_equal(magnitude(x), kNear); }

template <class Function>
struct OfAngles {
    static constexpr int N = 2 * kFloats;

    ORV_INLINE void step(const float* const* src, float* const* dst) const
    {
        const floats x0 = load_floats(src[0]), x1 = load_floats(src[0] + kFloats);
        if (__builtin_expect(!all_of(near(x0) & near(x1)), 0)) return anywhere(src[0], dst);
        Function::put(Function::reduced(x0), dst, 0);
        Function::put(Function::reduced(x1), dst, kFloats);
    }

private:
    static __attribute__((noinline)) void anywhere(const float* src, float* const* dst)
    {
        const floats x0 = load_floats(src), x1 = load_floats(src + kFloats);
        const typename Function::Reduced angle0 = of_any(x0, src), angle1 = of_any(x1, src + kFloats);
        Function::put(angle0, dst, 0);
        Function::put(angle1, dst, kFloats);
    }
    static ORV_INLINE typename Function::Reduced of_any(floats x, const float* src)
    {
        typename Function::Reduced angle = Function::reduced(x);
        angle.r = select(near(x), angle.r, reduce_middle(Function::kSigned ? x : magnitude(x), angle.k, Function::kHalfTurn));
        if (__builtin_expect(!all_of(less_equal(magnitude(x), kFar)), 0)) Function::replace_far(src, &angle);
        return angle;
    }
};

// An angle less k half turns (or quarter turns); n tells k as an integer, in its low bits.
struct ReducedAngle {
    floats r, k;
    ints n;
};

// For sine and cosine alone, which count half turns: even or odd multiples of a quarter turn.
template <Multiples multiples>
ORV_INLINE void replace_far_by_halves(const float* src, ReducedAngle* angle)
{
    const ints first(multiples == Multiples::odd ? 1 : 0);
    FarAngles far(angle->r, shift_left<1>(angle->n) + first);
    far.replace<multiples>(src);
    angle->r = load_floats(far.r);
    angle->n = shift_right<1>(load_ints(far.quadrant));
}

struct Sine {
    using Reduced = ReducedAngle;
    static constexpr float kHalfTurn = 1;
    static constexpr bool kSigned = true;

    static ORV_INLINE Reduced reduced(floats x)
    {
        const floats shifted = x * 0x1.45f306p-2f + kRoundFloat;
        const floats k = shifted - kRoundFloat;
        return {reduce_near(x, k, kHalfTurn), k, bits(shifted)};
    }
    static ORV_INLINE void put(const Reduced& angle, float* const* dst, int at)
    {
        // Odd multiples of pi change the sign.
        store(dst[0] + at, sine_11_bits<1>(angle.r) ^ from_bits(shift_left<31>(angle.n)));
    }
    static void replace_far(const float* src, Reduced* angle) { replace_far_by_halves<Multiples::even>(src, angle); }
};

struct Cosine {
    using Reduced = ReducedAngle;
    static constexpr float kHalfTurn = 1;
    static constexpr bool kSigned = false;

    // |x| = (n + 1/2) pi + r: the cosine is -sin(r) for even n.
    static ORV_INLINE Reduced reduced(floats x)
    {
        const floats size = magnitude(x);
        const ints n = truncated(size * 0x1.45f306p-2f);
        const floats k = to_floats(n) + 0.5f;
        return {reduce_near(size, k, kHalfTurn), k, n};
    }
    static ORV_INLINE void put(const Reduced& angle, float* const* dst, int at)
    {
        store(dst[0] + at, sine_11_bits<-1>(angle.r) ^ from_bits(shift_left<31>(angle.n)));
    }
    static void replace_far(const float* src, Reduced* angle) { replace_far_by_halves<Multiples::odd>(src, angle); }
};

struct SineAndCosine {
    using Reduced = ReducedAngle;
    static constexpr float kHalfTurn = 0.5f;
    static constexpr bool kSigned = true;

    static ORV_INLINE Reduced reduced(floats x)
    {
        const floats shifted = x * 0x1.45f306p-1f + kRoundFloat;
        const floats k = shifted - kRoundFloat;
        return {reduce_near(x, k, kHalfTurn), k, bits(shifted)};
    }
    // For |r| <= pi/4 the sine to 2^-11.2 of itself, the cosine to 2^-16.
    static ORV_INLINE void put(const Reduced& angle, float* const* dst, int at)
    {
        const floats r = angle.r, z = r * r;
        const floats s = r * (z * -0x1.4acf7ep-3f + 0x1.ffca54p-1f);
        const floats c = (z * 0x1.4b6c4cp-5f - 0x1.ffc112p-2f) * z + 1.0f;
        // Odd quadrants exchange the two and turn the sign of what was the sine; from the third on both turn.
        const ints odd = shift_left<31>(angle.n);
        const ints turn = shift_left<30>(angle.n) & ints(0x80000000);
        const ints sine = bits(s) ^ odd, cosine = bits(c);
        const ints change = ((sine ^ cosine) & shift_right_signed<31>(odd)) ^ turn;
        store(dst[0] + at, from_bits(sine ^ change));
        store(dst[1] + at, from_bits(cosine ^ change));
    }
    static void replace_far(const float* src, Reduced* angle)
    {
        FarAngles far(angle->r, angle->n);
        far.replace<Multiples::any>(src);
        angle->r = load_floats(far.r);
        angle->n = load_ints(far.quadrant);
    }
};

}  // namespace ORV_LEVEL
}  // namespace orv
