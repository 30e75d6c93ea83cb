// Logarithm and exponential to 21 bits, in float. Special arguments are computed in double. The
// polynomials were fitted with Sollya's fpminimax.
#pragma once

#include <cstdint>

#include "math/float_log_exp.h"

namespace orv {
inline namespace ORV_LEVEL {

struct ShortExpOfFloats {
    static constexpr int N = kFloats;

    ORV_INLINE void step(const float* const* src, float* const* dst) const
    {
        const floats x = load_floats(src[0]);
        const floats shifted = x * 0x1.715476p+0f + kRoundFloat;
        const floats k = shifted - kRoundFloat;
        // ln2 in two parts; the product with the first, of 15 bits, is exact.
        const floats r = minus_exact(x, k, 0x1.62e4p-1f) - k * 0x1.7f7d1cp-20f;
        const floats rr = r * r;
        const floats p = (r * 8.33465345203876495361328125e-3f + 4.18990887701511383056640625e-2f) * rr +
                         (r * 0.16666878759860992431640625f + 0.4999913871288299560546875f);
        const floats y = (p * rr + r) + 1.0f;
        const floats result = from_bits(bits(y) + shifted_left<23>(bits(shifted)));
        const mask32 ordinary = less(magnitude(x), 87.0f);
        if (__builtin_expect(all(ordinary), 1)) return store(dst[0], result);
        float special[N];
        for (int i = 0; i < N; i += kDoubles) store(special + i, exp_for_float_anywhere(load_doubles(src[0] + i)));
        store(dst[0], select(ordinary, result, load_floats(special)));
    }
};

struct ShortLnOfFloats {
    static constexpr int N = kFloats;
    FirstLogWarning warning;

    ORV_INLINE void step(const float* const* src, float* const* dst)
    {
        const floats x = load_floats(src[0]);
        const std::uint32_t sqrt_half = 0x3F3504F3, one = 0x3F800000;
        const ints b = bits(x) + ints(one - sqrt_half);
        const floats k = to_float_signed(shifted_right<23>(b) - ints(127));
        const floats f = from_bits((b & ints(0x007FFFFF)) + ints(sqrt_half)) - 1.0f;
        const floats ff = f * f;
        const floats high = (ff * 8.75536426901817321777343750e-2f +
                             (f * -0.14337868988513946533203125f + 0.14922939240932464599609375f)) *
                                ff +
                            (f * -0.1656608283519744873046875f + 0.19961245357990264892578125f);
        const floats low = (f * -0.2500196993350982666015625f + 0.333339750766754150390625f) * ff +
                           (f * -0.49999988079071044921875f);
        const floats tail = (high * ff) * ff + low;
        const floats result = k * 0x1.62e43p-1f + (f * tail + f);
        const mask32 ordinary = less_equal(0x1p-126f, x) & less(x, __builtin_inff());
        if (__builtin_expect(all(ordinary), 1)) return store(dst[0], result);
        float special[N];
        for (int i = 0; i < N; i += kDoubles) {
            const doubles wide = load_doubles(src[0] + i);
            LogEvents events;
            store(special + i, ln_of_specials(wide, ln_for_float(wide), &events));
            warning.note(events);
        }
        store(dst[0], select(ordinary, result, load_floats(special)));
    }
};

}  // namespace ORV_LEVEL
}  // namespace orv
