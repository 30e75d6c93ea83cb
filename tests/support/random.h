// Random pixels: uniform, near either end of the type, and special values.
#pragma once

#include <cmath>
#include <cstring>
#include <limits>
#include <type_traits>

#include "Complex32f.h"
#include "support/emulators.h"
#include "support/generator.h"

namespace test {

enum class Fill { uniform, near_low, near_high, special, kinds };

template <class T>
T random_value(Generator& generator, Fill fill)
{
    if constexpr (std::is_same<T, Complex32f>::value) {
        const float re = random_value<float>(generator, fill);
        return {re, random_value<float>(generator, fill)};
    } else if constexpr (std::is_floating_point<T>::value) {
        using L = std::numeric_limits<T>;
        if (!left_nan_wins() && fill >= Fill::near_high) {
            const T value =
                fill == Fill::special ? L::infinity() : static_cast<T>(std::ldexp(1.5, uniform(generator, -160, 127)));
            return uniform(generator, 0, 3) == 0 ? -L::quiet_NaN() : value;
        }
        switch (fill) {
            case Fill::uniform: return static_cast<T>(normal(generator, 300));
            case Fill::near_low: return static_cast<T>(uniform(generator, -4, 4)) / 2;
            case Fill::near_high: {  // any bit pattern
                unsigned char bytes[sizeof(T)];
                for (unsigned char& b : bytes) b = static_cast<unsigned char>(generator());
                T value;
                std::memcpy(&value, bytes, sizeof(T));
                return value;
            }
            default: {
                const T list[] = {0,
                                  -T{0},
                                  1,
                                  -1,
                                  T{0.5},
                                  T{-0.5},
                                  L::min(),
                                  -L::min(),
                                  L::denorm_min(),
                                  -L::denorm_min(),
                                  L::max(),
                                  L::lowest(),
                                  L::infinity(),
                                  -L::infinity(),
                                  L::quiet_NaN(),
                                  -L::quiet_NaN(),
                                  L::signaling_NaN(),
                                  T{254.5},
                                  T{255},
                                  T{65534.5},
                                  T{65535},
                                  T{1e9},
                                  T{-1e9},
                                  L::epsilon()};
                return list[uniform(generator, 0, sizeof(list) / sizeof(list[0]) - 1)];
            }
        }
    } else {
        using L = std::numeric_limits<T>;
        const auto word = static_cast<std::uint32_t>(generator());
        switch (fill) {
            case Fill::near_low: return static_cast<T>(L::min() + static_cast<T>(word % 4));
            case Fill::near_high: return static_cast<T>(L::max() - static_cast<T>(word % 4));
            case Fill::special: return word % 3 == 0 ? T{0} : static_cast<T>(word % 5 - 2 * (word % 2));
            default: return static_cast<T>(word);
        }
    }
}

}  // namespace test
