// Sine and cosine with a right reduction of large angles, as oracles.
#pragma once

#include <cmath>

#if defined(_WIN32)
#include <quadmath.h>  // MinGW's own take the processor's sine, whose pi has 66 bits
#endif

namespace test {

inline long double exact_sine(long double x)
{
#if defined(_WIN32)
    return static_cast<long double>(sinq(x));
#else
    return std::sin(x);
#endif
}

inline long double exact_cosine(long double x)
{
#if defined(_WIN32)
    return static_cast<long double>(cosq(x));
#else
    return std::cos(x);
#endif
}

}  // namespace test
