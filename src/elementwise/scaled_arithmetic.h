// Sums, differences and products of integers under the scaling rule: their meaning, on scalars and on
// vectors. Images and signal vectors compute with the same text.
#pragma once

#include <cstdint>

#include "elementwise/scaling.h"
#include "simd/halves.h"

namespace orv {
inline namespace ORV_LEVEL {

// a is the first source or the constant, b the second source or the image, as everywhere here: the
// second source is the left operand of the two operations that do not commute.
//
// exact()      the integer result, before scaling
// wide()       the same on lanes of twice the width
// saturated()  the result at scale factor 0, in the width of the pixels
// halved()     the result at scale factor 1, where that takes no wider lanes
// in_double()  the same on doubles, which hold sums of 32 bits exactly and products up to 2^53
// kBits        the magnitude of a result is at most 2^kBits; scaled down by more, all are 0

template <class T>
constexpr bool is_signed = std::numeric_limits<T>::is_signed;

// Half of a + b for unsigned lanes, ties to even. The average rounds up, so an odd sum must not have left an
// odd half.
template <class V>
ORV_INLINE V half_of_sum(V a, V b)
{
    a = simd::in_register(a);
    b = simd::in_register(b);
    const V up = simd::average(a, b);
    return up - (up & (a ^ b) & simd::splat<V>(1));
}

template <class T>
struct Sum {
    static constexpr int kBits = sizeof(T) == 1 ? 9 : 17;
    static std::int64_t exact(T a, T b) { return std::int64_t{b} + a; }
    template <class V> static ORV_INLINE auto wide(V a, V b)
    {
        auto wa = simd::widen(a);
        const auto wb = simd::widen(b);
        wa.lo = wa.lo + wb.lo;
        wa.hi = wa.hi + wb.hi;
        return wa;
    }
    template <class V> static ORV_INLINE V saturated(V a, V b) { return simd::add_saturate(a, b); }
    template <class V> static ORV_INLINE V halved(V a, V b)
    {
        if constexpr (is_signed<T>) {
            const V top = simd::splat<V>(std::numeric_limits<T>::min());
            return simd::as<T>(half_of_sum(simd::as<std::uint16_t>(a ^ top), simd::as<std::uint16_t>(b ^ top))) ^ top;
        } else {
            return half_of_sum(a, b);
        }
    }
    template <class D> static ORV_INLINE D in_double(D a, D b) { return b + a; }
};

template <class T>
struct Difference {
    static constexpr int kBits = sizeof(T) == 1 ? 8 : is_signed<T> ? 17 : 16;
    // A negative difference of unsigned pixels is 0 before it is scaled.
    static std::int64_t exact(T a, T b) { return is_signed<T> || b > a ? std::int64_t{b} - a : 0; }
    template <class V> static ORV_INLINE auto wide(V a, V b)
    {
        if constexpr (is_signed<T>) {
            auto wb = simd::widen(b);
            const auto wa = simd::widen(a);
            wb.lo = wb.lo - wa.lo;
            wb.hi = wb.hi - wa.hi;
            return wb;
        } else {
            return simd::widen(simd::sub_saturate(b, a));
        }
    }
    template <class V> static ORV_INLINE V saturated(V a, V b) { return simd::sub_saturate(b, a); }
    template <class V> static ORV_INLINE V halved(V a, V b)
    {
        if constexpr (is_signed<T>) {
            // The average of b + 2^15 and 2^15 - 1 - a is 2^15 more than half of the difference, rounded down.
            const V top = simd::splat<V>(std::numeric_limits<T>::min()),
                    rest = simd::splat<V>(std::numeric_limits<T>::max());
            a = simd::in_register(a);
            b = simd::in_register(b);
            const V down =
                simd::as<T>(simd::average(simd::as<std::uint16_t>(b ^ top), simd::as<std::uint16_t>(a ^ rest))) ^ top;
            return simd::add_saturate(down, down & (a ^ b) & simd::splat<V>(1));
        } else {
            return half_of_sum(simd::sub_saturate(b, a), simd::zero<V>());
        }
    }
    template <class D> static ORV_INLINE D in_double(D a, D b) { return b - a; }
};

template <class T>
struct Product {
    static constexpr int kBits = sizeof(T) == 1 ? 16 : is_signed<T> ? 31 : 32;
    static std::int64_t exact(T a, T b) { return std::int64_t{b} * a; }
    template <class V> static ORV_INLINE auto wide(V a, V b)
    {
        if constexpr (sizeof(T) == 1) {
            auto wa = simd::widen(a);
            const auto wb = simd::widen(b);
            wa.lo = simd::mul_low(wa.lo, wb.lo);
            wa.hi = simd::mul_low(wa.hi, wb.hi);
            return wa;
        } else {
            return simd::interleave(simd::mul_low(a, b), simd::mul_high(a, b));
        }
    }
    template <class V> static ORV_INLINE V saturated(V a, V b)
    {
        if constexpr (sizeof(T) == 1) {
            auto product = wide(a, b);
            const auto most = simd::splat<decltype(product.lo)>(255);
            product.lo = simd::min(product.lo, most);
            product.hi = simd::min(product.hi, most);
            return simd::narrow(product);
        } else if constexpr (is_signed<T>) {
            return simd::narrow(wide(a, b));
        } else {
            const V fits = simd::ones_where<V>(simd::equal(simd::mul_high(a, b), simd::zero<V>()));
            return simd::mul_low(a, b) | (fits ^ simd::splat<V>(0xFFFF));
        }
    }
    template <class D> static ORV_INLINE D in_double(D a, D b) { return b * a; }
};

// An operation at scale factor 0, and one with a step of the scaling rule.
template <class T, class Kind>
struct Saturated {
    T one(T a, T b) const { return saturate<T>(Kind::exact(a, b)); }
    template <class V> ORV_INLINE V many(V a, V b) const { return Kind::saturated(a, b); }
};

// The same at scale factor 1.
template <class T, class Kind>
struct Halved {
    T one(T a, T b) const { return scale<T>(Kind::exact(a, b), 1); }
    template <class V> ORV_INLINE V many(V a, V b) const { return Kind::halved(a, b); }
};
template <class Kind> constexpr bool can_halve = true;
template <class T> constexpr bool can_halve<Product<T>> = false;

template <class T, class Kind, class Step>
struct Scaled {
    int scaleFactor;
    Step step;
    T one(T a, T b) const { return scale<T>(Kind::exact(a, b), scaleFactor); }
    template <class V> ORV_INLINE V many(V a, V b) const
    {
        auto wide = Kind::wide(a, b);
        wide.lo = step(wide.lo);
        wide.hi = step(wide.hi);
        return simd::narrow(wide);
    }
};

// Every result is 0.
template <class T>
struct Nothing {
    T one(T, T) const { return 0; }
    template <class V> ORV_INLINE V many(V, V) const { return simd::zero<V>(); }
};

// Runs `loop` with the cheapest form of the operation that is exact for the scale factor.
template <class T, class Kind, class Loop>
ORV_INLINE void with_scaling(int scaleFactor, Loop loop)
{
    if (scaleFactor == 0) {
        loop(Saturated<T, Kind>{});
    } else if (scaleFactor > Kind::kBits) {
        loop(Nothing<T>{});
    } else if constexpr (!ORV_HAVE_VECTORS) {
        loop(Scaled<T, Kind, int>{scaleFactor, 0});
    } else if (scaleFactor < 0) {
        using W = wider_t<T>;
        constexpr int most = 8 * static_cast<int>(sizeof(T));
        const int up = scaleFactor < -most ? most : -scaleFactor;
        loop(Scaled<T, Kind, ScaleUp<T, W>>{scaleFactor, {up}});
    } else if (can_halve<Kind> && scaleFactor == 1) {
        if constexpr (can_halve<Kind>) loop(Halved<T, Kind>{});
    } else {
        using W = wider_t<T>;
        // Products of unsigned pixels leave too little room above them for the larger halves.
        constexpr int last_without_carry = Kind::kBits == 16 && sizeof(T) == 1 ? 9
                                         : Kind::kBits == 32                   ? 17
                                                                               : 32;
        if (scaleFactor <= last_without_carry) {
            loop(Scaled<T, Kind, ScaleDown<T, W>>{scaleFactor, {scaleFactor}});
        } else if constexpr (last_without_carry < 32) {
            loop(Scaled<T, Kind, ScaleDownCarry<T, W>>{scaleFactor, {scaleFactor}});
        }
    }
}

}  // namespace ORV_LEVEL
}  // namespace orv
