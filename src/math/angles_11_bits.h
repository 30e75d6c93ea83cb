// Sine and cosine to 11 bits, in float.
//
// A multiple of pi (or pi/2) is subtracted in parts whose products with the multiple are exact: two up to 8 (or
// 16) of them, three up to 800 in magnitude. Beyond, angles are reduced in double.
//
// The polynomials have the least largest relative error that goes with a first coefficient so close to 1: subnormal
// sines are multiples of 2^-149, and what the coefficient takes off of them, rounded to one, can be twice as much.
// Those of the sine alone are off by 2^-13.02 for both kinds, those of the sine beside a cosine by 2^-11.05. The
// cosine's was fitted with Sollya's fpminimax.
#pragma once

#include <cstdint>

#include "math/maps.h"
#include "math/sine.h"

namespace orv {
inline namespace ORV_LEVEL {

constexpr float kFar = 800;

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
                const bool wrong =
                    (multiples == Multiples::even && n % 2 != 0) || (multiples == Multiples::odd && n % 2 == 0);
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

// sin(r) times the sign, for |r| <= pi/2, to 2^-13.02 of itself.
template <int sign>
ORV_INLINE floats sine_11_bits(floats r)
{
    const floats z = r * r;
    return r * ((z * (sign * 0x1.f3c51cp-8f) - sign * 0x1.540954p-3f) * z + sign * 0x1.fff822p-1f);
}

// An angle less k half turns (or quarter turns); n holds k as an integer, in its low bits, and for what
// is not near has bits set above those.
struct ReducedAngle {
    floats r, k;
    ints n;
};

// Two registers at a time, with one test for both. A Function shows for lanes of any size whether reduce_near()
// does for them, and cheaply whether it does for all of two registers; that it may deny at the bound.
template <class Function>
struct OfAngles {
    static constexpr int N = 2 * kFloats;

    ORV_INLINE void step(const float* const* src, float* const* dst) const
    {
        const floats x0 = load_floats(src[0]), x1 = load_floats(src[0] + kFloats);
        const ReducedAngle angle0 = Function::reduced(x0), angle1 = Function::reduced(x1);
        if (__builtin_expect(!Function::all_near(angle0.n, angle1.n), 0)) {
            // A copy, so that the loop may keep its pointers in registers.
            float* rows[Function::kOutputs];
            for (int k = 0; k < Function::kOutputs; ++k) rows[k] = dst[k];
            return anywhere(src[0], rows);
        }
        Function::put(angle0, dst, 0);
        Function::put(angle1, dst, kFloats);
    }

private:
    static __attribute__((noinline)) void anywhere(const float* src, float* const* dst)
    {
        const floats x0 = load_floats(src), x1 = load_floats(src + kFloats);
        const ReducedAngle angle0 = of_any(x0, src), angle1 = of_any(x1, src + kFloats);
        Function::put(angle0, dst, 0);
        Function::put(angle1, dst, kFloats);
    }
    static ORV_INLINE ReducedAngle of_any(floats x, const float* src)
    {
        ReducedAngle angle = Function::reduced(x);
        const mask32 near = less_equal(magnitude(angle.k), Function::kNear);
        angle.r =
            select(near, angle.r, reduce_middle(Function::kSigned ? x : magnitude(x), angle.k, Function::kHalfTurn));
        if (__builtin_expect(!all(less_equal(magnitude(x), kFar)), 0)) Function::replace_far(src, &angle);
        return angle;
    }
};

// x * factor + shift with one rounding, of a product that is below 2^22 in magnitude and a shift that rounds to
// integers. Where the processor does not fuse, a rounded product matters when it lies halfway; that is rare.
#if ORV_HAVE_FUSED
ORV_INLINE floats shifted_product(floats x, float factor, float shift) { return fused(x, factor, shift); }
#else
inline __attribute__((noinline)) floats shifted_from_halfway(floats x, float factor, float shift)
{
    float in[kFloats], out[kFloats];
    store(in, x);
    for (int i = 0; i < kFloats; ++i) {
        const float product = rounded(in[i] * factor);
        const double rest = double{in[i]} * factor - product;  // exact
        const float nearest = rounded(product + shift), turns = rounded(nearest - shift);
        const bool halfway = turns - product == 0.5f || product - turns == 0.5f;
        const float side = rest < 0 ? -0.5f : 0.5f;
        out[i] = halfway && rest != 0 ? rounded(shift + rounded(product + side)) : nearest;
    }
    return load_floats(out);
}
ORV_INLINE floats shifted_product(floats x, float factor, float shift)
{
    const floats product = x * factor, sum = product + shift;
    const mask32 halfway = equal(magnitude(product - (sum - shift)), 0.5f);
    if (__builtin_expect(lanes_of(halfway) != 0, 0)) return shifted_from_halfway(x, factor, shift);
    return sum;
}
#endif

// Rounds multiples to integers, with bits between kRoundFloat's and 2 near - 1 more for k from -near to near - 1.
template <int near> constexpr float kRoundShifted = kRoundFloat + near;
template <int near>
ORV_INLINE bool both_below(ints n0, ints n1)
{
    const ints base = bits(floats(kRoundFloat));
    return none_set((n0 ^ base) | (n1 ^ base), ints(~(2 * near - 1u)));
}

// x less the nearest multiple of half_turn pi, with inverse = 1 / (half_turn pi).
template <int near>
ORV_INLINE ReducedAngle reduced_to_nearest(floats x, float inverse, float half_turn)
{
    const floats shifted = shifted_product(x, inverse, kRoundShifted<near>);
    const floats k = shifted - kRoundShifted<near>;
    return {reduce_near(x, k, half_turn), k, bits(shifted)};
}

// For sine and cosine alone, which count half turns: even or odd multiples of a quarter turn.
template <Multiples multiples>
ORV_INLINE void replace_far_by_halves(const float* src, ReducedAngle* angle)
{
    const ints first(multiples == Multiples::odd ? 1 : 0);
    FarAngles far(angle->r, shifted_left<1>(angle->n) + first);
    far.replace<multiples>(src);
    angle->r = load_floats(far.r);
    angle->n = shifted_right<1>(load_ints(far.quadrant));
}

struct Sine {
    static constexpr int kOutputs = 1;
    static constexpr float kHalfTurn = 1;
    static constexpr int kNear = 8;
    static constexpr bool kSigned = true;

    static ORV_INLINE bool all_near(ints n0, ints n1) { return both_below<kNear>(n0, n1); }

    static ORV_INLINE ReducedAngle reduced(floats x)
    {
        return reduced_to_nearest<kNear>(x, 0x1.45f306p-2f, kHalfTurn);
    }
    static ORV_INLINE void put(const ReducedAngle& angle, float* const* dst, int at)
    {
        // Odd multiples of pi change the sign.
        store(dst[0] + at, sine_11_bits<1>(angle.r) ^ from_bits(sign_if<0>(angle.n)));
    }
    static void replace_far(const float* src, ReducedAngle* angle)
    {
        replace_far_by_halves<Multiples::even>(src, angle);
    }
};

struct Cosine {
    static constexpr int kOutputs = 1;
    static constexpr float kHalfTurn = 1;
    static constexpr int kNear = 8;
    static constexpr bool kSigned = false;

    // Whatever exceeds 2^23 + 7 has another bit.
    static ORV_INLINE bool all_near(ints n0, ints n1) { return none_set(n0 | n1, ints(~(0x4B000000u | (kNear - 1)))); }

    // |x| = (n + 1/2) pi + r: the cosine is -sin(r) for even n. The shift stands below a power of two, where
    // floats have halves, and its sums above, where they have none; hence the bound of what is shifted.
    static constexpr float kShift = 0x1p23f - 0.5f;
    static ORV_INLINE ReducedAngle reduced(floats x)
    {
        const floats size = magnitude(x);
        const floats shifted = shifted_product(max(0x1.9p+0f, size), 0x1.45f306p-2f, kShift);
        const floats k = shifted - kShift;
        return {reduce_near(size, k, kHalfTurn), k, bits(shifted)};
    }
    static ORV_INLINE void put(const ReducedAngle& angle, float* const* dst, int at)
    {
        store(dst[0] + at, sine_11_bits<-1>(angle.r) ^ from_bits(sign_if<0>(angle.n)));
    }
    static void replace_far(const float* src, ReducedAngle* angle)
    {
        replace_far_by_halves<Multiples::odd>(src, angle);
    }
};

struct SineAndCosine {
    static constexpr int kOutputs = 2;
    static constexpr float kHalfTurn = 0.5f;
    static constexpr int kNear = 16;
    static constexpr bool kSigned = true;

    static ORV_INLINE bool all_near(ints n0, ints n1) { return both_below<kNear>(n0, n1); }

    static ORV_INLINE ReducedAngle reduced(floats x)
    {
        return reduced_to_nearest<kNear>(x, 0x1.45f306p-1f, kHalfTurn);
    }
    // For |r| <= pi/4 the sine to 2^-11.05 of itself, the cosine to 2^-16.
    static ORV_INLINE void put(const ReducedAngle& angle, float* const* dst, int at)
    {
        const floats r = angle.r, z = r * r;
        const floats s = r * (z * -0x1.4b956ap-3f + 0x1.ffe112p-1f);
        const floats c = (z * 0x1.4b6c4cp-5f - 0x1.ffc112p-2f) * z + 1.0f;
        // Odd quadrants exchange the two and turn the sign of what was the sine; from the third on both turn.
        const ints odd = sign_if<0>(angle.n), turn = sign_if<1>(angle.n);
        const ints sine = bits(s) ^ odd, cosine = bits(c);
        const ints change = ((sine ^ cosine) & shifted_right_signed<31>(odd)) ^ turn;
        store(dst[0] + at, from_bits(sine ^ change));
        store(dst[1] + at, from_bits(cosine ^ change));
    }
    static void replace_far(const float* src, ReducedAngle* angle)
    {
        FarAngles far(angle->r, angle->n);
        far.replace<Multiples::any>(src);
        angle->r = load_floats(far.r);
        angle->n = load_ints(far.quadrant);
    }
};

}  // namespace ORV_LEVEL
}  // namespace orv
