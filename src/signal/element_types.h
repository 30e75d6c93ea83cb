// From one type of elements to another: on scalars, and on groups of as many lanes as 32-bit integers have, which are
// integers, floats or doubles, whatever lies in memory.
//
// Real numbers become the nearest integers, ties to even, saturated to the type; a NaN gives 0. Between floats and
// doubles a NaN keeps its sign and the upper bits of its payload, as the processor has it, and becomes quiet.
#pragma once

#include <cstdint>
#include <limits>
#include <type_traits>

#include "core/checks.h"
#include "core/float_control.h"
#include "elementwise/full_vectors.h"
#include "simd/conversion.h"

namespace orv {
inline namespace ORV_LEVEL {

// --- Scalars --------------------------------------------------------------------------------------

template <class To>
ORV_INLINE To nearest_of(double x)
{
    using L = std::numeric_limits<To>;
    if (x >= static_cast<double>(L::max())) return L::max();
    if (x <= static_cast<double>(L::min())) return L::min();
    if (x != x) return 0;
    // What is cut off is exact, also where the x87 rounds to fewer bits.
    const std::int32_t whole = static_cast<std::int32_t>(x);
    const double rest = x - whole, size = rest < 0 ? -rest : rest;
    const bool away = size > 0.5 || (size == 0.5 && (whole & 1) != 0);
    return static_cast<To>(whole + (away ? (rest < 0 ? -1 : 1) : 0));
}

template <class To, class From>
ORV_INLINE To element_of(From x)
{
    using L = std::numeric_limits<To>;
    if constexpr (simd::is_float<To>) {
        return rounded(static_cast<To>(x));
    } else if constexpr (simd::is_float<From>) {
        return nearest_of<To>(static_cast<double>(x));
    } else {
        const std::int32_t value = x, low = L::min(), high = L::max();
        return static_cast<To>(value < low ? low : value > high ? high : value);
    }
}

// --- Groups ---------------------------------------------------------------------------------------

using Integers = simd::widest<std::int32_t>;
using Floats = simd::floats_of<Integers>;
using Doubles = simd::twice<simd::recast<double, Integers>>;

template <class T>
using GroupOf = std::conditional_t<std::is_same<T, double>::value, Doubles,
                                   std::conditional_t<std::is_same<T, float>::value, Floats, Integers>>;
template <class T>
ORV_INLINE auto group_at(const T* p)
{
    using Group = GroupOf<T>;
    if constexpr (std::is_same<T, typename Group::lane>::value) return simd::load<Group>(p);
    else return simd::load_as<Group>::from(p);
}

ORV_INLINE Doubles doubles_of(Integers x) { return to_double(x); }
ORV_INLINE Doubles doubles_of(Floats x) { return to_double(x); }
ORV_INLINE Doubles doubles_of(Doubles x) { return x; }
ORV_INLINE Floats floats_of(Integers x) { return to_float(x); }
ORV_INLINE Floats floats_of(Floats x) { return x; }
ORV_INLINE Floats floats_of(Doubles x) { return to_float(x); }

// Integers that packing saturates to To. Beyond their range, and for a NaN, the instruction gives the lowest one: so
// what is too large is bounded before it, and a NaN that must not become the lowest element is 0 by then. min() gives
// its second operand where that is a NaN.
template <class To, class V>
ORV_INLINE Integers integers_of(V x)
{
    if constexpr (std::is_signed<To>::value) x = x & equal(x, x);
    return round_to_int(min(V(static_cast<typename V::lane>(std::numeric_limits<To>::max())), x));
}
template <class To> ORV_INLINE Integers integers_of(Integers x) { return x; }
// Of 32 bits, the most is no float: what the instruction gives instead, the lowest, becomes it by its complement.
template <class V>
ORV_INLINE Integers integers_of_floats(V x)
{
    return round_to_int(x & equal(x, x)) ^ simd::as<std::int32_t>(bits(greater_equal(x, V(0x1p31f))));
}

// Elements of To, as many as fill a vector of 32-bit integers, or of To if that is wider. group(k) is the k-th group.
template <class To>
constexpr std::ptrdiff_t kElements = Integers::N * (sizeof(To) < 4 ? 4 / sizeof(To) : 1);

template <class To, class Group>
ORV_INLINE auto elements_of(Group group)
{
    using From = decltype(group(0));
    const auto integers = [&group](int k) __attribute__((always_inline)) {
        const Integers x = integers_of<To>(group(k));
        // Below SSE4.1 packing to unsigned words cannot take the lowest integers.
        return std::is_same<To, std::uint16_t>::value && !ORV_HAVE_SSE41 ? and_not(x >> simd::count(31), x) : x;
    };
    if constexpr (std::is_same<To, double>::value) return doubles_of(group(0));
    else if constexpr (std::is_same<To, float>::value) return floats_of(group(0));
    else if constexpr (std::is_same<To, std::int32_t>::value && std::is_same<From, Floats>::value)
        return integers_of_floats(group(0));
    else if constexpr (std::is_same<To, std::int32_t>::value) return integers_of<To>(group(0));
    else if constexpr (std::is_same<To, std::int16_t>::value) return pack_words(integers(0), integers(1));
    else if constexpr (std::is_same<To, std::uint16_t>::value) return pack(integers(0), integers(1));
    else return pack(integers(0), integers(1), integers(2), integers(3));
}

}  // namespace ORV_LEVEL
}  // namespace orv
