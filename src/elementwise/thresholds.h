// Thresholds of images and of vectors: the order in which elements are compared, what becomes of those beyond a limit,
// and how limits are read.
#pragma once

#include <cstdint>
#include <type_traits>
#include <utility>

#include "core/float_control.h"
#include "elementwise/rows.h"
#include "simd/long_words.h"

namespace orv {
inline namespace ORV_LEVEL {

// --- Order ----------------------------------------------------------------------------------------
//
// Elements are compared as signed integers. A flip of bits turns other orders into that one: of the top bit
// for unsigned ones, of all others for floats against a threshold whose sign bit is set.
//
// Floats are compared by their bits, which also puts NaNs in order: those of a threshold without a sign
// bit with the element's as signed integers, those of one with a sign bit as unsigned ones in reverse.
// Against positive thresholds all negative floats are less, against negative ones all positive floats
// are greater; -0 is less than +0.

template <class T> struct Order;
template <> struct Order<std::uint8_t> { using Bits = std::uint8_t; static constexpr Bits kFlip = 0x80; };
template <> struct Order<std::uint16_t> { using Bits = std::uint16_t; static constexpr Bits kFlip = 0x8000; };
template <> struct Order<int> { using Bits = std::int32_t; static constexpr Bits kFlip = 0; };
template <> struct Order<float> { using Bits = std::int32_t; static constexpr Bits kFlip = 0x7FFFFFFF; };
template <> struct Order<double> { using Bits = std::uint64_t; static constexpr Bits kFlip = 0x7FFFFFFFFFFFFFFF; };
template <class T> using BitsOf = typename Order<T>::Bits;

template <class T> ORV_INLINE bool needs_flip(BitsOf<T> threshold)
{
    if constexpr (simd::is_float<T>) return static_cast<std::make_signed_t<BitsOf<T>>>(threshold) < 0;
    else return Order<T>::kFlip != 0;
}
// The first two constants of a rule.
template <class T> ORV_INLINE BitsOf<T> flip_of(BitsOf<T> threshold)
{
    return needs_flip<T>(threshold) ? Order<T>::kFlip : BitsOf<T>{0};
}
template <class T> ORV_INLINE BitsOf<T> comparable(BitsOf<T> threshold)
{
    return static_cast<BitsOf<T>>(threshold ^ flip_of<T>(threshold));
}

// What follows is for a scalar X or a vector of them; both give the same operations. The lower and the higher one are
// those of the type's own order where it has one, unsigned or signed; of 64 bits, which are doubles', as exceeds().
template <class X> ORV_INLINE bool exceeds(X a, X b)
{
    using S = std::make_signed_t<X>;
    return static_cast<S>(a) > static_cast<S>(b);
}
template <class X> ORV_INLINE X pick(bool condition, X a, X b) { return condition ? a : b; }
template <class X> ORV_INLINE X lower(X a, X b) { return (sizeof(X) == 8 ? exceeds(b, a) : a < b) ? a : b; }
template <class X> ORV_INLINE X higher(X a, X b) { return (sizeof(X) == 8 ? exceeds(a, b) : a > b) ? a : b; }

template <class X, int N> ORV_INLINE simd::vec<X, N> exceeds(simd::vec<X, N> a, simd::vec<X, N> b)
{
    using S = std::make_signed_t<X>;
    if constexpr (sizeof(X) == 8) return greater_signed(a, b);
    else return simd::as<X>(greater(simd::as<S>(a), simd::as<S>(b)));
}
template <class X, int N> ORV_INLINE simd::vec<X, N> pick(simd::vec<X, N> mask, simd::vec<X, N> a, simd::vec<X, N> b)
{
    return select(mask, a, b);
}
template <class X, int N> ORV_INLINE simd::vec<X, N> lower(simd::vec<X, N> a, simd::vec<X, N> b)
{
    if constexpr (sizeof(X) == 8) return pick(exceeds(b, a), a, b);
    else return min(a, b);
}
template <class X, int N> ORV_INLINE simd::vec<X, N> higher(simd::vec<X, N> a, simd::vec<X, N> b)
{
    if constexpr (sizeof(X) == 8) return pick(exceeds(a, b), a, b);
    else return max(a, b);
}

// --- Rules ----------------------------------------------------------------------------------------
//
// What becomes of an element, from a few constants: flip, then thresholds (already flipped where they
// are compared with flipped elements) and values. Whether elements are flipped is known when a loop begins.

template <bool flips, class X>
ORV_INLINE X flipped(X pixel, X flip)
{
    if constexpr (flips) return static_cast<X>(pixel ^ flip);
    else return pixel;
}

// Beyond the threshold, the threshold. Constants: flip, threshold.
template <bool above, bool flips>
struct Limit {
    static constexpr int kConstants = 2;
    template <class X> static ORV_INLINE X apply(const X (&c)[kConstants], X pixel)
    {
        const X x = flipped<flips>(pixel, c[0]);
        return flipped<flips>(above ? lower(x, c[1]) : higher(x, c[1]), c[0]);
    }
};

// Beyond the threshold, a value. Constants: flip, threshold, value.
template <bool above, bool flips>
struct Replace {
    static constexpr int kConstants = 3;
    template <class X> static ORV_INLINE X apply(const X (&c)[kConstants], X pixel)
    {
        const X x = flipped<flips>(pixel, c[0]);
        return pick(above ? exceeds(x, c[1]) : exceeds(c[1], x), c[2], pixel);
    }
};

// Above one threshold a value, else below another one another value. Constants: flip, threshold and value
// of the upper limit, then those of the lower one.
template <bool flips_upper, bool flips_lower>
struct ReplaceBoth {
    static constexpr int kConstants = 6;
    template <class X> static ORV_INLINE X apply(const X (&c)[kConstants], X pixel)
    {
        const X kept = pick(exceeds(c[4], flipped<flips_lower>(pixel, c[3])), c[5], pixel);
        return pick(exceeds(flipped<flips_upper>(pixel, c[0]), c[1]), c[2], kept);
    }
};

// The same constants for every element.
template <class T, class Rule>
struct ForAll {
    T constant[Rule::kConstants];
    ORV_INLINE T one(T pixel) const { return Rule::apply(constant, pixel); }
    template <class V> ORV_INLINE V many(V pixels) const
    {
        return apply(pixels, std::make_index_sequence<Rule::kConstants>());
    }

private:
    template <class V, std::size_t... I> ORV_INLINE V apply(V pixels, std::index_sequence<I...>) const
    {
        const V vectors[] = {simd::splat<V>(constant[I])...};
        return Rule::apply(vectors, pixels);
    }
};

// --- Limits ---------------------------------------------------------------------------------------

// Elements and their limits are moved and compared as integers: a float that passed through the x87 would
// lose its signalling NaNs.
template <class T> ORV_INLINE BitsOf<T> bits(const T& a)
{
    BitsOf<T> word;
    __builtin_memcpy(&word, &a, sizeof(word));
    return word;
}
template <class T> ORV_INLINE const BitsOf<T>* bits(const T* p) { return reinterpret_cast<const BitsOf<T>*>(p); }
template <class T> ORV_INLINE BitsOf<T>* bits(T* p) { return reinterpret_cast<BitsOf<T>*>(p); }

// A loop is compiled with a flip and without: run() gets the condition as a type.
template <bool value> using Is = std::integral_constant<bool, value>;
template <class T, class Run>
ORV_INLINE void with_flip(BitsOf<T> threshold, Run run)
{
    if constexpr (!simd::is_float<T>) run(Is<Order<T>::kFlip != 0>());
    else if (needs_flip<T>(threshold)) run(Is<true>());
    else run(Is<false>());
}

// run() gets the operation on all elements: beyond a limit the limit itself, or a value; above one limit a value, else
// below another one another value.
template <bool above, class T, class Run>
ORV_INLINE void with_limit(BitsOf<T> limit, Run run)
{
    using Bits = BitsOf<T>;
    if constexpr (simd::is_float<T>) {
        with_flip<T>(limit, [&](auto flips) {
            run(ForAll<Bits, Limit<above, decltype(flips)::value>>{{flip_of<T>(limit), comparable<T>(limit)}});
        });
    } else {
        run(ForAll<Bits, Limit<above, false>>{{0, limit}});
    }
}
template <bool above, class T, class Run>
ORV_INLINE void with_value(BitsOf<T> limit, BitsOf<T> value, Run run)
{
    with_flip<T>(limit, [&](auto flips) {
        using Rule = Replace<above, decltype(flips)::value>;
        run(ForAll<BitsOf<T>, Rule>{{flip_of<T>(limit), comparable<T>(limit), value}});
    });
}
template <class T, class Run>
ORV_INLINE void with_values(BitsOf<T> lower, BitsOf<T> low_value, BitsOf<T> upper, BitsOf<T> high_value, Run run)
{
    with_flip<T>(upper, [&](auto upper_flips) {
        with_flip<T>(lower, [&](auto lower_flips) {
            using Rule = ReplaceBoth<decltype(upper_flips)::value, decltype(lower_flips)::value>;
            run(ForAll<BitsOf<T>, Rule>{{flip_of<T>(upper), comparable<T>(upper), high_value, flip_of<T>(lower),
                                         comparable<T>(lower), low_value}});
        });
    });
}

// Whether a threshold pair is the wrong way round is asked of the numbers, not of their bits.
template <class T>
ORV_INLINE bool wrong_order(const BitsOf<T>* lower, const BitsOf<T>* upper, int channels)
{
    const FloatControl control;
    bool wrong = false;
    const auto number = [](const BitsOf<T>* word) { return get(reinterpret_cast<const T*>(word)); };
    for (int c = 0; c < channels; ++c) wrong = wrong | (number(lower + c) > number(upper + c));
    return wrong;
}

}  // namespace ORV_LEVEL
}  // namespace orv
