// Arithmetic with one rounding a step, whatever the registers hold: a quadruple has more than twice the digits of a
// double, so rounding to it first changes nothing. (Volatile, because compilers know that, too, and would take the
// shorter way through the registers.)
#pragma once

#include "support/exact.h"

namespace test {

inline double rounded_once(Quad exact)
{
    volatile Quad kept = exact;
    return static_cast<double>(kept);
}
inline double plus(double a, double b) { return rounded_once(static_cast<Quad>(a) + static_cast<Quad>(b)); }
inline double minus(double a, double b) { return rounded_once(static_cast<Quad>(a) - static_cast<Quad>(b)); }
inline double times(double a, double b) { return rounded_once(static_cast<Quad>(a) * static_cast<Quad>(b)); }
inline double over(double a, double b) { return rounded_once(static_cast<Quad>(a) / static_cast<Quad>(b)); }
inline float single(double a)
{
    volatile float f = static_cast<float>(a);
    return f;
}

}  // namespace test
