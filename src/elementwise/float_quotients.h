// Rounded quotients of integers, ties to even, straight from floats: t = 2^-scaleFactor b / a.
//
// One division serves two vectors: 1 / (a0 a1), times a1 and times a0. With the product that follows that
// makes four roundings, so t is off by less than 2^-21.9 t, and `factor`, which carries a little more than
// 2^-scaleFactor, puts it above the exact quotient by up to 2^-20 of it. A quotient of 16-bit integers that is
// no tie lies at least 2^-17 t from every tie, and a tie has few digits: cutting t off after 19 bits restores
// ties and takes nothing else across one. Quotients scaled up keep that distance as long as b 2^-scaleFactor
// stays below 2^16 wherever the result has not saturated: those of 8 bits do.
#pragma once

#include <cstdint>

#include "elementwise/scaled_arithmetic.h"
#include "simd/conversion.h"
#include "simd/halves.h"
#include "simd/reductions.h"

namespace orv {
inline namespace ORV_LEVEL {

// What a quotient is multiplied by.
ORV_INLINE float quotient_factor(int scaleFactor)
{
    // From 18 down nothing reaches one half; from 16 up everything but 0 leaves 8 bits.
    const int exponent = scaleFactor > 18 ? 18 : scaleFactor < -16 ? -16 : scaleFactor;
    const std::int32_t bits = ((127 - exponent) << 23) + 4;  // 1 + 2^-21
    float factor;
    std::memcpy(&factor, &bits, sizeof(factor));
    return factor;
}

// t without the digits that only its errors reach.
template <class F>
ORV_INLINE F restored(F t)
{
    using Int = decltype(simd::bits(t));
    return simd::from_bits(simd::bits(t) & simd::splat<Int>(~31u));
}
template <class F>
ORV_INLINE auto nearest_integer(F t)
{
    return simd::round_to_int(restored(t));
}

// The quotients t of 16-bit lanes. What depends on the divisors alone comes first: a loop with a constant
// divisor forms it once.
template <class V>
ORV_INLINE auto raw_quotients(V divisor, V dividend, float factor)
{
    const auto a = simd::widen(divisor), b = simd::widen(dividend);
    using F = simd::floats_of<V>;
    const F a0 = simd::to_float(simd::as<std::int32_t>(a.lo)), a1 = simd::to_float(simd::as<std::int32_t>(a.hi));
    const F b0 = simd::to_float(simd::as<std::int32_t>(b.lo)), b1 = simd::to_float(simd::as<std::int32_t>(b.hi));
    const F both = simd::splat<F>(factor) / (a0 * a1);
    return simd::twice<F>{b0 * (both * a1), b1 * (both * a0)};
}

// 32-bit results as 16-bit lanes of the type of V, saturating.
template <class V, class Ints>
ORV_INLINE V narrow_to(Ints lo, Ints hi)
{
    auto q = simd::widen(V{});
    using Lane = typename decltype(q.lo)::lane;
    q.lo = simd::as<Lane>(lo);
    q.hi = simd::as<Lane>(hi);
    return simd::narrow(q);
}

template <class V>
ORV_INLINE V nearest_quotients(V divisor, V dividend, float factor)
{
    const auto t = raw_quotients(divisor, dividend, factor);
    return narrow_to<V>(nearest_integer(t.lo), nearest_integer(t.hi));
}

// Bytes: up to 65535 in 16-bit lanes before they are narrowed, so quotients scaled up need a bound.
template <bool up, int N>
ORV_INLINE simd::vec<std::uint8_t, N> nearest_quotients_of_bytes(simd::vec<std::uint8_t, N> divisor,
                                                                 simd::vec<std::uint8_t, N> dividend, float factor)
{
    const auto a = simd::widen(divisor), b = simd::widen(dividend);
    auto q = a;
    q.lo = nearest_quotients(a.lo, b.lo, factor);
    q.hi = nearest_quotients(a.hi, b.hi, factor);
    if (up) {
        const auto most = simd::splat<decltype(q.lo)>(255);
        q.lo = simd::min(q.lo, most);
        q.hi = simd::min(q.hi, most);
    }
    return simd::narrow(q);
}

// The same where every divisor is another: with the products of neighbours formed in integers, exactly, a
// quotient is 1 / (a0 a1) times (b0 a1), and half of the conversions are saved.
template <bool up, int N>
ORV_INLINE simd::vec<std::uint8_t, N> quotients_of_bytes(simd::vec<std::uint8_t, N> divisor,
                                                         simd::vec<std::uint8_t, N> dividend, float factor)
{
    using V = simd::vec<std::uint8_t, N>;
    using Words = simd::recast<std::uint16_t, V>;
    using Ints = simd::recast<std::int32_t, V>;
    using F = simd::floats_of<Ints>;
    const auto floats = [](Words v) {
        const auto w = simd::widen(v);
        return simd::twice<F>{simd::to_float(simd::as<std::int32_t>(w.lo)),
                              simd::to_float(simd::as<std::int32_t>(w.hi))};
    };
    const Words low = simd::splat<Words>(255);
    const Words a = simd::as<std::uint16_t>(divisor), b = simd::as<std::uint16_t>(dividend);
    const Words a0 = a & low, a1 = simd::upper(a);
    const simd::twice<F> products = floats(simd::mul_low(a0, a1));
    const simd::twice<F> both = {simd::splat<F>(factor) / products.lo, simd::splat<F>(factor) / products.hi};
    const auto quotients = [&](Words numerator) {
        const simd::twice<F> n = floats(numerator);
        const simd::twice<Ints> q = {nearest_integer(n.lo * both.lo), nearest_integer(n.hi * both.hi)};
        const Words w = simd::as<std::uint16_t>(simd::narrow(q));
        return up ? simd::min(w, low) : w;
    };
    const Words q0 = quotients(simd::mul_low(b & low, a1)), q1 = quotients(simd::mul_low(simd::upper(b), a0));
    return simd::as<std::uint8_t>(q0 | simd::raised(q1));
}

// Two vectors of 16-bit quotients at once, all divisors other than 0. Both kinds wait for the divider less
// than for everything around it; its work is begun first, since the rest can run beside it.
//
// Signed: products of neighbours again, by the instruction that multiplies and adds pairs.
template <int N>
ORV_INLINE simd::twice<simd::vec<std::int16_t, N>> quotients_of_two(const simd::vec<std::int16_t, N> (&a)[2],
                                                                    const simd::vec<std::int16_t, N> (&b)[2],
                                                                    float factor)
{
    using V = simd::vec<std::int16_t, N>;
    using Words = V;
    using Ints = simd::recast<std::int32_t, V>;
    using F = simd::floats_of<Ints>;
    // The odd lanes in the even ones, with 0 above them: (x0 x1) (y1 0) makes x0 y1.
    const auto odd = [](Words v) { return simd::as<std::int16_t>(simd::upper(simd::as<std::uint32_t>(v))); };
    const Words a1_first = odd(a[0]), a1_second = odd(a[1]);
    const F f = simd::splat<F>(factor);
    const F both_first = f / simd::to_float(simd::sum_of_products(a[0], a1_first));
    const F both_second = f / simd::to_float(simd::sum_of_products(a[1], a1_second));
    const auto quotients = [](Words n, Words by, F both) {
        return nearest_integer(simd::to_float(simd::sum_of_products(n, by)) * both);
    };
    const simd::twice<Ints> even = {quotients(b[0], a1_first, both_first), quotients(b[1], a1_second, both_second)};
    const simd::twice<Ints> odds = {quotients(a[0], odd(b[0]), both_first), quotients(a[1], odd(b[1]), both_second)};
    const simd::twice<Ints> mixed = simd::interleave(simd::narrow(even), simd::narrow(odds));
    return {simd::as<std::int16_t>(mixed.lo), simd::as<std::int16_t>(mixed.hi)};
}

// Unsigned: one vector as above, the other by two divisions, which need no correction; so the divider and the
// multipliers have the same amount of work. `scaled` says whether there is a scale factor.
template <bool scaled, int N>
ORV_INLINE simd::twice<simd::vec<std::uint16_t, N>> quotients_of_two(const simd::vec<std::uint16_t, N> (&a)[2],
                                                                     const simd::vec<std::uint16_t, N> (&b)[2],
                                                                     float factor)
{
    using V = simd::vec<std::uint16_t, N>;
    using Ints = simd::recast<std::int32_t, V>;
    using F = simd::floats_of<Ints>;
    const auto floats = [](auto v) { return simd::to_float(simd::as<std::int32_t>(v)); };
    const auto second = simd::widen(b[1]), by = simd::widen(a[1]);
    F t0 = floats(second.lo) / floats(by.lo), t1 = floats(second.hi) / floats(by.hi);
    if (scaled) {
        // Exactly 2^-scaleFactor: quotients that are rounded correctly need not be above the exact ones.
        const F power =
            simd::from_bits(simd::bits(simd::splat<F>(factor)) & simd::splat<simd::recast<std::uint32_t, F>>(~31u));
        t0 = t0 * power;
        t1 = t1 * power;
    }
    return {nearest_quotients(a[0], b[0], factor), narrow_to<V>(simd::round_to_int(t0), simd::round_to_int(t1))};
}

// The same in fixed point with 16 fraction bits. The two agree unless a quotient lies within 2^-16 of a tie
// without being one, which takes a divisor with its top bit set. There the result is 0, 1 or 2: it goes up to
// 1 where 65536 b >= 32769 a, and to 2 where 65536 (b - a) >= 32767 a, solved for integers.
template <class V>
ORV_INLINE V fixed_point_quotients(V divisor, V dividend)
{
    const V q = nearest_quotients(divisor, dividend, quotient_factor(0));
    const V top = simd::as<std::uint16_t>(simd::as<std::int16_t>(divisor) >> simd::count(15));
    if (!simd::any(top)) return q;
    const V one = simd::splat<V>(1);
    const V half = divisor >> simd::count(1);
    const V first = simd::min(simd::sub_saturate(dividend, divisor - half), one);
    const V second = simd::min(simd::sub_saturate(simd::sub_saturate(dividend, divisor), half - one), one);
    return simd::select(top, first + second, q);
}

}  // namespace ORV_LEVEL
}  // namespace orv
