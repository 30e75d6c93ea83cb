// Oracles in 113-bit arithmetic: wide enough that rounding its results to double or float is the one
// rounding that counts, on the x87 as well.
#pragma once

#include <cmath>
#include <cstdint>
#include <cstring>
#include <initializer_list>
#include <limits>

namespace test {

__extension__ typedef __float128 Quad;

template <class F> struct bits_type { using type = std::uint32_t; };
template <> struct bits_type<double> { using type = std::uint64_t; };
template <class F> using BitsOf = typename bits_type<F>::type;

template <class F>
BitsOf<F> bits_of(F value)
{
    BitsOf<F> bits;
    std::memcpy(&bits, &value, sizeof(F));
    return bits;
}
template <class F>
F from_bits(BitsOf<F> bits)
{
    F value;
    std::memcpy(&value, &bits, sizeof(F));
    return value;
}

template <class F> constexpr BitsOf<F> sign_bit = BitsOf<F>{1} << (8 * sizeof(F) - 1);
template <class F> constexpr BitsOf<F> quiet_bit = BitsOf<F>{1} << (sizeof(F) == 4 ? 22 : 51);
template <class F>
constexpr BitsOf<F> negative_nan = sizeof(F) == 4 ? BitsOf<F>{0xFFC00000u}
                                                  : static_cast<BitsOf<F>>(0xFFF8000000000000u);

template <class F>
bool is_nan(BitsOf<F> bits)
{
    return std::isnan(from_bits<F>(bits));
}

// Rounded to F; a NaN is the one with the sign bit.
template <class F>
BitsOf<F> rounded_bits(Quad value)
{
    if (value != value) return negative_nan<F>;
    volatile F stored = static_cast<F>(value);
    return bits_of<F>(stored);
}
// The same by way of double.
inline std::uint32_t rounded_twice(Quad value)
{
    if (value != value) return negative_nan<float>;
    volatile double first = static_cast<double>(value);
    volatile float second = static_cast<float>(first);
    return bits_of<float>(second);
}

enum FloatOp { float_add, float_sub, float_mul, float_div, float_divc };

// left Op right as the headers have it, in bits. float_divc: the product with the rounded reciprocal.
template <class F>
BitsOf<F> expected_float(FloatOp op, BitsOf<F> left, BitsOf<F> right)
{
    const F l = from_bits<F>(left), r = from_bits<F>(right);
    if (op == float_div && r == 0) {
        if (is_nan<F>(left) || l == 0) return negative_nan<F>;
        return (left & sign_bit<F>) | bits_of<F>(std::numeric_limits<F>::infinity());
    }
    if (is_nan<F>(left)) return left | quiet_bit<F>;
    if (is_nan<F>(right)) return right | quiet_bit<F>;
    const Quad x = l, y = r;
    switch (op) {
        case float_add: return rounded_bits<F>(x + y);
        case float_sub: return rounded_bits<F>(x - y);
        case float_mul: return rounded_bits<F>(x * y);
        case float_div: return rounded_bits<F>(x / y);
        default: {
            volatile double wide = static_cast<double>(Quad{1} / y);
            volatile F reciprocal = static_cast<F>(wide);
            return rounded_bits<F>(x * static_cast<Quad>(reciprocal));
        }
    }
}

// The double nearest to the root of a double.
inline double exact_root(double s)
{
    volatile double candidate = std::sqrt(s);
    double best = candidate;
    for (const double direction : {-HUGE_VAL, HUGE_VAL}) {
        volatile double other = std::nextafter(best, direction);
        // Nearer if the midpoint lies on this side of s.
        const Quad middle = (static_cast<Quad>(best) + static_cast<Quad>(other)) / 2;
        if (direction > 0 ? middle * middle < static_cast<Quad>(s) : middle * middle > static_cast<Quad>(s))
            return other;
    }
    return best;
}

// numerator / denominator times 2^-scaleFactor to the nearest integer, ties to even, saturated.
template <class T>
T expected_scaled(Quad numerator, Quad denominator, int scaleFactor)
{
    if (denominator == 0)
        return numerator > 0 ? std::numeric_limits<T>::max() : numerator < 0 ? std::numeric_limits<T>::min() : T{0};
    if (denominator < 0) return expected_scaled<T>(-numerator, -denominator, scaleFactor);
    for (int s = std::min(scaleFactor, 80); s > 0; --s) numerator /= 2;
    for (int s = std::max(scaleFactor, -80); s < 0; ++s) numerator *= 2;
    const Quad quotient = numerator / denominator;
    if (quotient > 1e12) return std::numeric_limits<T>::max();
    if (quotient < -1e12) return std::numeric_limits<T>::min();
    long long floor = static_cast<long long>(quotient);
    if (static_cast<Quad>(floor) * denominator > numerator) --floor;
    const Quad twice_over = 2 * (numerator - static_cast<Quad>(floor) * denominator);
    if (twice_over > denominator || (twice_over == denominator && floor % 2 != 0)) ++floor;
    if (floor > static_cast<long long>(std::numeric_limits<T>::max())) return std::numeric_limits<T>::max();
    if (floor < static_cast<long long>(std::numeric_limits<T>::min())) return std::numeric_limits<T>::min();
    return static_cast<T>(floor);
}

}  // namespace test
