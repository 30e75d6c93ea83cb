// Logarithm and exponential of floats, computed in double and rounded once: steps for the loops of
// core/maps.h.
#pragma once

#include "core/exponential.h"
#include "core/logarithm.h"
#include "core/maps.h"
#include "core/quick_log_exp.h"

namespace orv {
inline namespace ORV_LEVEL {

// The first warning that logarithms met, in the order of the elements.
class FirstLogWarning {
public:
    ORV_INLINE void note(LogEvents events)
    {
        const unsigned any = events.zeros | events.negatives;
        if (status_ != StatusOk || any == 0) return;
        const unsigned first = any & (0u - any);
        status_ = (events.zeros & first) != 0 ? StatusLogarithmOfZero : StatusLogarithmOfNegative;
    }
    ORV_INLINE Status status() const { return status_; }

private:
    Status status_ = StatusOk;
};

struct LnOfFloats {
    static constexpr int N = kQuickStep;
    FirstLogWarning warning;

    ORV_INLINE void step(const float* const* src, float* const* dst)
    {
        if (!quick_ln(src[0], dst[0])) in_double(src[0], dst[0]);
    }

private:
    ORV_IN_DOUBLE void in_double(const float* src, float* dst)
    {
        for (int i = 0; i < N; i += kFloats) {
            const floats x = load_floats(src + i);
            if (__builtin_expect(all_of(less(0.0f, x) & less(x, __builtin_inff())), 1)) {
                for (int k = i; k < i + kFloats; k += kDoubles) store(dst + k, ln_for_float(load_doubles(src + k)));
            } else {
                specials(src + i, dst + i);
            }
        }
    }
    __attribute__((noinline)) void specials(const float* src, float* dst)
    {
        for (int i = 0; i < kFloats; i += kDoubles) {
            const doubles x = load_doubles(src + i);
            LogEvents events;
            store(dst + i, ln_of_specials(x, ln_for_float(x), &events));
            warning.note(events);
        }
    }
};

// With to_zero, results below the normal floats are zero; else they are subnormal.
template <bool to_zero>
struct ExpOfFloats {
    static constexpr int N = kQuickStep;

    ORV_INLINE void step(const float* const* src, float* const* dst) const
    {
        if (!quick_exp(src[0], dst[0])) in_double(src[0], dst[0]);
    }

private:
    static ORV_IN_DOUBLE void in_double(const float* src, float* dst)
    {
        for (int i = 0; i < N; i += kFloats) {
            if (__builtin_expect(all_of(less(magnitude(load_floats(src + i)), 87.0f)), 1)) {
                for (int k = i; k < i + kFloats; k += kDoubles) store(dst + k, exp_for_float(load_doubles(src + k)));
            } else {
                specials(src + i, dst + i);
            }
        }
    }
    static __attribute__((noinline)) void specials(const float* src, float* dst)
    {
        for (int i = 0; i < kFloats; i += kDoubles) {
            const doubles x = load_doubles(src + i);
            doubles y = exp_for_float_anywhere(x);
            if (to_zero) y = and_not(less_equal(x, -87.3365478515625), y);
            store(dst + i, y);
        }
    }
};

}  // namespace ORV_LEVEL
}  // namespace orv
