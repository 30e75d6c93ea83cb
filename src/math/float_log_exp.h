// Logarithm and exponential of floats, computed in double and rounded once: steps for the loops of
// core/maps.h.
#pragma once

#include "math/exponential.h"
#include "math/logarithm.h"
#include "math/maps.h"
#include "math/quick_log_exp.h"

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

struct LnOfFloat : QuickLn {
    FirstLogWarning warning;

    ORV_INLINE void in_double(const float* const* src, int at, float* dst)
    {
        const doubles x = load_doubles(src[0] + at);
        const doubles y = ln_for_float(x);
        if (__builtin_expect(all(less(0.0, x) & less(x, __builtin_inf())), 1)) store(dst, y);
        else special(x, y, dst);
    }

private:
    __attribute__((noinline)) void special(doubles x, doubles y, float* dst)
    {
        LogEvents events;
        store(dst, ln_of_specials(x, y, &events));
        warning.note(events);
    }
};

// With to_zero, results below the normal floats are zero; else they are subnormal.
template <bool to_zero>
struct ExpOfFloat : QuickExp {
    static ORV_INLINE void in_double(const float* const* src, int at, float* dst)
    {
        const doubles x = load_doubles(src[0] + at);
        if (__builtin_expect(all(less(magnitude(x), 87.0)), 1)) store(dst, exp_for_float(x));
        else special(x, dst);
    }

private:
    static __attribute__((noinline)) void special(doubles x, float* dst)
    {
        doubles y = exp_for_float_anywhere(x);
        if (to_zero) y = and_not(less_equal(x, -87.3365478515625), y);
        store(dst, y);
    }
};

using LnOfFloats = QuickSteps<LnOfFloat>;
template <bool to_zero> using ExpOfFloats = QuickSteps<ExpOfFloat<to_zero>>;

}  // namespace ORV_LEVEL
}  // namespace orv
