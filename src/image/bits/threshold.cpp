#include "image/bits/threshold.h"

#include <cstdint>
#include <type_traits>
#include <utility>

#include "core/checks.h"
#include "core/float_control.h"
#include "core/overlap.h"
#include "elementwise/rows.h"

namespace orv {
namespace threshold {
namespace ORV_LEVEL {
namespace {

using std::int16_t;
using std::int32_t;
using std::int8_t;
using std::ptrdiff_t;
using std::uint16_t;
using std::uint8_t;

// --- Order ----------------------------------------------------------------------------------------
//
// Pixels are compared as signed integers. A flip of bits turns other orders into that one: of the top bit
// for unsigned pixels, of all others for floats against a threshold whose sign bit is set.
//
// Floats are compared by their bits, which also puts NaNs in order: those of a threshold without a sign
// bit with the pixel's as signed integers, those of one with a sign bit as unsigned ones in reverse.
// Against positive thresholds all negative floats are less, against negative ones all positive floats
// are greater; -0 is less than +0.

template <class T> struct lanes;
template <> struct lanes<uint8_t> { using ordered = int8_t; static constexpr uint8_t kFlip = 0x80; };
template <> struct lanes<uint16_t> { using ordered = int16_t; static constexpr uint16_t kFlip = 0x8000; };
template <> struct lanes<int32_t> { using ordered = int32_t; static constexpr int32_t kFlip = 0x7FFFFFFF; };

ORV_INLINE bool needs_flip(uint8_t) { return true; }
ORV_INLINE bool needs_flip(uint16_t) { return true; }
ORV_INLINE bool needs_flip(int32_t threshold) { return threshold < 0; }

// What follows is for a scalar T or a vector of them; both give the same operations.
ORV_INLINE int32_t lower(int32_t a, int32_t b) { return a < b ? a : b; }
ORV_INLINE int32_t higher(int32_t a, int32_t b) { return a > b ? a : b; }
template <class T> ORV_INLINE bool exceeds(T a, T b)
{
    using S = typename lanes<T>::ordered;
    return static_cast<S>(a) > static_cast<S>(b);
}
template <class T> ORV_INLINE T pick(bool condition, T a, T b) { return condition ? a : b; }
template <int N> ORV_INLINE simd::vec<int32_t, N> lower(simd::vec<int32_t, N> a, simd::vec<int32_t, N> b)
{
    return min(a, b);
}
template <int N> ORV_INLINE simd::vec<int32_t, N> higher(simd::vec<int32_t, N> a, simd::vec<int32_t, N> b)
{
    return max(a, b);
}
template <class T, int N> ORV_INLINE simd::vec<T, N> exceeds(simd::vec<T, N> a, simd::vec<T, N> b)
{
    using S = typename lanes<T>::ordered;
    return simd::as<T>(greater(simd::as<S>(a), simd::as<S>(b)));
}
template <class T, int N> ORV_INLINE simd::vec<T, N> pick(simd::vec<T, N> mask, simd::vec<T, N> a, simd::vec<T, N> b)
{
    return select(mask, a, b);
}

// --- Rules ----------------------------------------------------------------------------------------
//
// What becomes of a pixel, from a few constants: flip, then thresholds (already flipped where they
// are compared with flipped pixels) and values. Whether pixels are flipped is known when a loop begins.

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

// The first two constants of a rule.
template <class T> ORV_INLINE T flip_of(T threshold) { return needs_flip(threshold) ? lanes<T>::kFlip : T(0); }
template <class T> ORV_INLINE T comparable(T threshold) { return static_cast<T>(threshold ^ flip_of(threshold)); }

// --- Loops ----------------------------------------------------------------------------------------

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

// Three channels with constants of their own, which the vectors of a row repeat every three vectors.
template <class T, class Rule>
struct ForThree {
    static constexpr int kConstants = Rule::kConstants;
    using Indices = std::make_index_sequence<kConstants>;
    T constant[kConstants][3];  // of each channel

    template <std::size_t... I> ORV_INLINE T one_of(int channel, T pixel, std::index_sequence<I...>) const
    {
        const T c[] = {constant[I][channel]...};
        return Rule::apply(c, pixel);
    }
    ORV_INLINE T one(int channel, T pixel) const { return one_of(channel, pixel, Indices()); }
    // For a vector whose first element belongs to channel `phase`.
    template <class V, std::size_t... I>
    static ORV_INLINE V many(const Pattern<T> (&patterns)[kConstants], V pixels, ptrdiff_t phase,
                             std::index_sequence<I...>)
    {
        const V vectors[] = {simd::load<V>(patterns[I].row + phase)...};
        return Rule::apply(vectors, pixels);
    }
};

template <class V, class T, class At>
ORV_INLINE void three_channel_row(T* dst, ptrdiff_t n, At at)
{
    const auto store = [dst](ptrdiff_t i, V v) { simd::store(dst + i, v); };
    full_vectors<V::N>(n, [&](ptrdiff_t i) { return at(i, i % 3); }, store, [&](ptrdiff_t end) {
        ptrdiff_t i = 0;
        for (; i < end - 2 * V::N; i += 3 * V::N) {
            store(i, at(i, 0));
            store(i + V::N, at(i + V::N, V::N % 3));
            store(i + 2 * V::N, at(i + 2 * V::N, 2 * V::N % 3));
        }
        for (; i < end; i += V::N) store(i, at(i, i % 3));
    });
}

template <class T, class Rule>
void three_channel_plane(const T* src, int srcStep, T* dst, int dstStep, Size roi, const ForThree<T, Rule>& op)
{
    const Rows rows(roi, 3, sizeof(T), srcStep, dstStep);
    Pattern<T> patterns[Rule::kConstants];
    for (int k = 0; k < Rule::kConstants; ++k) patterns[k] = make_pattern(op.constant[k], 3);
    for (int y = 0; y < rows.count; ++y) {
        const T* const s = row_at(src, srcStep, y);
        T* const d = row_at(dst, dstStep, y);
        if constexpr (ORV_HAVE_VECTORS) {
            using Wide = simd::widest<T>;
            using Half = simd::half<T>;
            const auto at = [&](auto pixels, ptrdiff_t phase) {
                return op.many(patterns, pixels, phase, typename ForThree<T, Rule>::Indices());
            };
            if (rows.n >= Wide::N) {
                three_channel_row<Wide>(
                    d, rows.n, [&](ptrdiff_t i, ptrdiff_t phase) { return at(simd::load<Wide>(s + i), phase); });
                continue;
            }
            if (rows.n >= Half::N) {
                three_channel_row<Half>(
                    d, rows.n, [&](ptrdiff_t i, ptrdiff_t phase) { return at(simd::load<Half>(s + i), phase); });
                continue;
            }
        }
        for (ptrdiff_t i = 0; i < rows.n; i += 3) {
            for (int c = 0; c < 3; ++c) put(d + i + c, op.one(c, get(s + i + c)));
        }
    }
}

// --- Checks ---------------------------------------------------------------------------------------

// Operators other than less and greater are refused before anything else is looked at.
ORV_INLINE Status check(int relation, bool null, int srcStep, int dstStep, Size roi)
{
    if (relation != relation_less && relation != relation_greater) return StatusNotSupportedMode;
    if (null) return StatusNullPointer;
    if (is_empty(roi)) return StatusBadSize;
    if (any_below_one(srcStep, dstStep)) return StatusBadStep;
    return StatusOk;
}

// Pixels and their limits are moved and compared as integers: a float that passed through the x87 would
// lose its signalling NaNs.
ORV_INLINE uint8_t bits(uint8_t a) { return a; }
ORV_INLINE uint16_t bits(uint16_t a) { return a; }
ORV_INLINE int32_t bits(const float& a)
{
    int32_t word;
    __builtin_memcpy(&word, &a, sizeof(word));
    return word;
}
ORV_INLINE const uint8_t* bits(const uint8_t* p) { return p; }
ORV_INLINE const uint16_t* bits(const uint16_t* p) { return p; }
ORV_INLINE const int32_t* bits(const float* p) { return reinterpret_cast<const int32_t*>(p); }
ORV_INLINE uint8_t* bits(uint8_t* p) { return p; }
ORV_INLINE uint16_t* bits(uint16_t* p) { return p; }
ORV_INLINE int32_t* bits(float* p) { return reinterpret_cast<int32_t*>(p); }

// A loop is compiled for each direction, with flips and without: run() gets two conditions as types.
template <bool value> using Is = std::integral_constant<bool, value>;
template <class Run>
ORV_INLINE void with_conditions(bool first, bool second, Run run)
{
    if (first) {
        if (second) run(Is<true>(), Is<true>());
        else run(Is<true>(), Is<false>());
    } else {
        if (second) run(Is<false>(), Is<true>());
        else run(Is<false>(), Is<false>());
    }
}

template <class T, class Self>
ORV_INLINE Status replace(Self self, const T* src, int srcStep, T* dst, int dstStep, Size roi, int relation,
                          const T& threshold, const T& value)
{
    if (const Status bad = check(relation, any_null(src, dst), srcStep, dstStep, roi)) return bad;
    if (may_overlap<kReadAtOnce>(roi, 1, src, srcStep, dst, dstStep)) {
        return by_rows(self, 1, src, srcStep, dst, dstStep, roi, relation, threshold, value);
    }
    using Bits = decltype(bits(threshold));
    const Bits limit = bits(threshold);
    const auto run = [&](auto above, auto flips) {
        using Rule = Replace<decltype(above)::value, decltype(flips)::value>;
        const ForAll<Bits, Rule> op = {{flip_of(limit), comparable(limit), bits(value)}};
        plane(bits(src), srcStep, bits(dst), dstStep, roi, 1, op);
    };
    if constexpr (sizeof(T) == 4) {
        with_conditions(relation == relation_greater, needs_flip(limit), run);
    } else if (relation == relation_greater) {
        run(Is<true>(), Is<true>());
    } else {
        run(Is<false>(), Is<true>());
    }
    return StatusOk;
}

// Whether a threshold pair is the wrong way round is asked of the numbers, not of their bits.
ORV_INLINE bool wrong_order(const int32_t* lower, const int32_t* upper, int channels)
{
    const FloatControl control;
    bool wrong = false;
    const auto number = [](const int32_t* word) { return get(reinterpret_cast<const float*>(word)); };
    for (int c = 0; c < channels; ++c) wrong = wrong | (number(lower + c) > number(upper + c));
    return wrong;
}

// Three values as integers; is any of them a threshold that needs a flip?
ORV_INLINE bool load_channels(const float* values, int32_t (&words)[3])
{
    bool flips = false;
    for (int c = 0; c < 3; ++c) {
        words[c] = get(bits(values) + c);
        flips = flips | needs_flip(words[c]);
    }
    return flips;
}
#define CHANNELS(f, words) {f(words[0]), f(words[1]), f(words[2])}

}  // namespace

// --- Kernels --------------------------------------------------------------------------------------

Status Threshold_32f_C1(const float* src, int srcStep, float* dst, int dstStep, Size roi, int relation, float threshold)
{
    if (const Status bad = check(relation, any_null(src, dst), srcStep, dstStep, roi)) return bad;
    if (may_overlap<kReadAtOnce>(roi, 1, src, srcStep, dst, dstStep)) {
        return by_rows(Threshold_32f_C1, 1, src, srcStep, dst, dstStep, roi, relation, threshold);
    }
    const int32_t limit = bits(threshold);
    with_conditions(relation == relation_greater, needs_flip(limit), [&](auto above, auto flips) {
        const ForAll<int32_t, Limit<decltype(above)::value, decltype(flips)::value>> op = {
            {flip_of(limit), comparable(limit)}};
        plane(bits(src), srcStep, bits(dst), dstStep, roi, 1, op);
    });
    return StatusOk;
}

Status Threshold_32f_C3(const float* src, int srcStep, float* dst, int dstStep, Size roi, int relation,
                        const float* thresholds)
{
    if (const Status bad = check(relation, any_null(src, dst, thresholds), srcStep, dstStep, roi)) return bad;
    if (may_overlap(roi, 3, src, srcStep, dst, dstStep)) {
        return by_rows(Threshold_32f_C3, 3, src, srcStep, dst, dstStep, roi, relation, thresholds);
    }
    int32_t t[3];
    const bool flips = load_channels(thresholds, t);
    with_conditions(relation == relation_greater, flips, [&](auto above, auto any_flips) {
        const ForThree<int32_t, Limit<decltype(above)::value, decltype(any_flips)::value>> op = {
            {CHANNELS(flip_of, t), CHANNELS(comparable, t)}};
        three_channel_plane(bits(src), srcStep, bits(dst), dstStep, roi, op);
    });
    return StatusOk;
}

#define THRESHOLD_VALUE(name, T)                                                                          \
    Status name(const T* src, int srcStep, T* dst, int dstStep, Size roi, int relation, T threshold, T value) \
    {                                                                                                     \
        return replace(name, src, srcStep, dst, dstStep, roi, relation, threshold, value);            \
    }
THRESHOLD_VALUE(Threshold_Val_8u_C1, uint8_t)
THRESHOLD_VALUE(Threshold_Val_16u_C1, uint16_t)
THRESHOLD_VALUE(Threshold_Val_32f_C1, float)

Status Threshold_LTValGTVal_32f_C1(const float* src, int srcStep, float* dst, int dstStep, Size roi, float thresholdLT,
                                   float valueLT, float thresholdGT, float valueGT)
{
    if (const Status bad = check(relation_less, any_null(src, dst), srcStep, dstStep, roi)) return bad;
    if (may_overlap<kReadAtOnce>(roi, 1, src, srcStep, dst, dstStep)) {
        return by_rows(Threshold_LTValGTVal_32f_C1, 1, src, srcStep, dst, dstStep, roi, thresholdLT, valueLT,
                       thresholdGT, valueGT);
    }
    const int32_t lower = bits(thresholdLT), upper = bits(thresholdGT);
    if (wrong_order(&lower, &upper, 1)) return StatusBadThreshold;
    with_conditions(needs_flip(upper), needs_flip(lower), [&](auto upper_flips, auto lower_flips) {
        const ForAll<int32_t, ReplaceBoth<decltype(upper_flips)::value, decltype(lower_flips)::value>> op = {
            {flip_of(upper), comparable(upper), bits(valueGT), flip_of(lower), comparable(lower), bits(valueLT)}};
        plane(bits(src), srcStep, bits(dst), dstStep, roi, 1, op);
    });
    return StatusOk;
}

Status Threshold_LTValGTVal_32f_C3(const float* src, int srcStep, float* dst, int dstStep, Size roi,
                                   const float* thresholdLT, const float* valueLT, const float* thresholdGT,
                                   const float* valueGT)
{
    const bool null = any_null(src, dst, thresholdLT, valueLT) || any_null(thresholdGT, valueGT);
    if (const Status bad = check(relation_less, null, srcStep, dstStep, roi)) return bad;
    if (may_overlap(roi, 3, src, srcStep, dst, dstStep)) {
        return by_rows(Threshold_LTValGTVal_32f_C3, 3, src, srcStep, dst, dstStep, roi, thresholdLT, valueLT,
                       thresholdGT, valueGT);
    }
    int32_t lower[3], upper[3], low_value[3], high_value[3];
    const bool lower_flips = load_channels(thresholdLT, lower), upper_flips = load_channels(thresholdGT, upper);
    if (wrong_order(lower, upper, 3)) return StatusBadThreshold;
    load_channels(valueLT, low_value);
    load_channels(valueGT, high_value);
    with_conditions(upper_flips, lower_flips, [&](auto flips_upper, auto flips_lower) {
        const ForThree<int32_t, ReplaceBoth<decltype(flips_upper)::value, decltype(flips_lower)::value>> op = {
            {CHANNELS(flip_of, upper), CHANNELS(comparable, upper), CHANNELS(, high_value), CHANNELS(flip_of, lower),
             CHANNELS(comparable, lower), CHANNELS(, low_value)}};
        three_channel_plane(bits(src), srcStep, bits(dst), dstStep, roi, op);
    });
    return StatusOk;
}

#undef CHANNELS
#undef THRESHOLD_VALUE

}  // namespace ORV_LEVEL
}  // namespace threshold
}  // namespace orv
