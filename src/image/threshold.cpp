#include "image/threshold.h"

#include "core/checks.h"
#include "core/float_control.h"
#include "core/rows.h"

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

// --- Limits ---------------------------------------------------------------------------------------
//
// A pixel lies beyond a limit when (pixel ^ flip) > key as signed integers. The flip turns every order
// into that one: of unsigned values by the top bit, of the opposite direction by all bits.
//
// Floats are compared by their bits, which also puts NaNs in order: those of a threshold without a sign
// bit with the pixel's as signed integers, those of one with a sign bit as unsigned ones in reverse.
// Against positive thresholds all negative floats are less, against negative ones all positive floats
// are greater; -0 is less than +0.

template <class T> struct lanes;
template <> struct lanes<uint8_t> { using ordered = int8_t; };
template <> struct lanes<uint16_t> { using ordered = int16_t; };
template <> struct lanes<int32_t> { using ordered = int32_t; };

ORV_INLINE uint8_t ascending_flip(uint8_t) { return 0x80; }
ORV_INLINE uint16_t ascending_flip(uint16_t) { return 0x8000; }
ORV_INLINE int32_t ascending_flip(int32_t float_bits) { return float_bits < 0 ? 0x7FFFFFFF : 0; }

// X: a scalar T or a vector of them.
template <class T, class X>
struct Limit {
    X flip, key, value;
};

template <class T>
ORV_INLINE Limit<T, T> make_limit(T threshold, T value, bool greater)
{
    const T flip = static_cast<T>(greater ? ascending_flip(threshold) : ~ascending_flip(threshold));
    return {flip, static_cast<T>(threshold ^ flip), value};
}

template <class T>
ORV_INLINE T replaced(const Limit<T, T>& limit, T pixel, T otherwise)
{
    using S = typename lanes<T>::ordered;
    return static_cast<S>(pixel ^ limit.flip) > static_cast<S>(limit.key) ? limit.value : otherwise;
}
#if ORV_HAVE_VECTORS
template <class T, class R>
ORV_INLINE simd::vec<T, R> replaced(const Limit<T, simd::vec<T, R>>& limit, simd::vec<T, R> pixel, simd::vec<T, R> otherwise)
{
    using S = typename lanes<T>::ordered;
    return select(simd::as<T>(greater(simd::as<S>(pixel ^ limit.flip), simd::as<S>(limit.key))), limit.value, otherwise);
}
#endif

// One limit, or two of which the first counts where both are passed.
template <class T, class X, int Count>
struct Rule {
    Limit<T, X> limit[Count];
    ORV_INLINE X apply(X pixel) const
    {
        X result = pixel;
        for (int i = Count - 1; i >= 0; --i) result = replaced(limit[i], pixel, result);
        return result;
    }
};

// --- Loops ----------------------------------------------------------------------------------------

// The same rule for every element.
template <class T, int Count>
struct ForAll {
    Rule<T, T, Count> rule;
    ORV_INLINE T one(T pixel) const { return rule.apply(pixel); }
#if ORV_HAVE_VECTORS
    template <class V> ORV_INLINE V many(V pixels) const
    {
        Rule<T, V, Count> vectors;
        for (int i = 0; i < Count; ++i) {
            const Limit<T, T>& from = rule.limit[i];
            vectors.limit[i] = {simd::splat<V>(from.flip), simd::splat<V>(from.key), simd::splat<V>(from.value)};
        }
        return vectors.apply(pixels);
    }
#endif
};

// Three channels with a rule each: the vectors of a row repeat their limits every three vectors.
template <class T, int Count>
struct ForThree {
    Rule<T, T, Count> rule[3];
#if ORV_HAVE_VECTORS
    Pattern<T> flip[Count], key[Count], value[Count];

    ORV_INLINE explicit ForThree(const Rule<T, T, Count> (&rules)[3])
    {
        for (int c = 0; c < 3; ++c) rule[c] = rules[c];
        for (int i = 0; i < Count; ++i) {
            const Limit<T, T>&a = rules[0].limit[i], &b = rules[1].limit[i], &c = rules[2].limit[i];
            const T flips[3] = {a.flip, b.flip, c.flip}, keys[3] = {a.key, b.key, c.key}, values[3] = {a.value, b.value, c.value};
            flip[i] = make_pattern(flips, 3);
            key[i] = make_pattern(keys, 3);
            value[i] = make_pattern(values, 3);
        }
    }
    // For a vector whose first element belongs to channel `phase`.
    template <class V> ORV_INLINE V many(V pixels, ptrdiff_t phase) const
    {
        Rule<T, V, Count> vectors;
        for (int i = 0; i < Count; ++i) {
            vectors.limit[i] = {simd::load<V>(flip[i].row + phase), simd::load<V>(key[i].row + phase),
                                simd::load<V>(value[i].row + phase)};
        }
        return vectors.apply(pixels);
    }
#else
    explicit ForThree(const Rule<T, T, Count> (&rules)[3]) : rule{rules[0], rules[1], rules[2]} {}
#endif
};

#if ORV_HAVE_VECTORS
// A row of n >= V::N elements.
template <class V, class T, class Op>
ORV_INLINE void three_channel_vectors(const T* src, T* dst, ptrdiff_t n, const Op& op)
{
    const auto at = [&](ptrdiff_t i, ptrdiff_t phase) { return op.many(simd::load<V>(src + i), phase); };
    const V last = at(n - V::N, (n - V::N) % 3);
    ptrdiff_t i = 0;
    for (; i < n - 3 * V::N; i += 3 * V::N) {
        simd::store(dst + i, at(i, 0));
        simd::store(dst + i + V::N, at(i + V::N, V::N % 3));
        simd::store(dst + i + 2 * V::N, at(i + 2 * V::N, 2 * V::N % 3));
    }
    for (; i < n - V::N; i += V::N) simd::store(dst + i, at(i, i % 3));
    simd::store(dst + n - V::N, last);
}
#endif

template <class T, int Count>
void three_channel_plane(const T* src, int srcStep, T* dst, int dstStep, Size roi, const ForThree<T, Count>& op)
{
    const Rows rows(roi, 3, sizeof(T), srcStep, dstStep);
    for (int y = 0; y < rows.count; ++y) {
        const T* const s = row_at(src, srcStep, y);
        T* const d = row_at(dst, dstStep, y);
#if ORV_HAVE_VECTORS
        if (rows.n >= simd::widest<T>::N) {
            three_channel_vectors<simd::widest<T>>(s, d, rows.n, op);
            continue;
        }
        if (rows.n >= simd::half<T>::N) {
            three_channel_vectors<simd::half<T>>(s, d, rows.n, op);
            continue;
        }
#endif
        for (ptrdiff_t i = 0; i < rows.n; i += 3) {
            for (int c = 0; c < 3; ++c) put(d + i + c, op.rule[c].apply(get(s + i + c)));
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

template <class T>
Status one_channel(const T* src, int srcStep, T* dst, int dstStep, Size roi, int relation, const T& threshold, const T& value)
{
    if (const Status bad = check(relation, any_null(src, dst), srcStep, dstStep, roi)) return bad;
    using Bits = decltype(bits(threshold));
    const ForAll<Bits, 1> op = {{{make_limit(bits(threshold), bits(value), relation == relation_greater)}}};
    plane(bits(src), srcStep, bits(dst), dstStep, roi, 1, op);
    return StatusOk;
}

// Whether a threshold pair is the wrong way round is asked of the numbers, not of their bits.
ORV_INLINE bool wrong_order(const float* lower, const float* upper, int channels)
{
    const FloatControl control;
    bool wrong = false;
    for (int c = 0; c < channels; ++c) wrong = wrong | (get(lower + c) > get(upper + c));
    return wrong;
}

ORV_INLINE Rule<int32_t, int32_t, 2> both_limits(const float& thresholdLT, const float& valueLT, const float& thresholdGT,
                                                 const float& valueGT)
{
    return {{make_limit(bits(thresholdGT), bits(valueGT), true), make_limit(bits(thresholdLT), bits(valueLT), false)}};
}

}  // namespace

// --- Kernels --------------------------------------------------------------------------------------

Status Threshold_32f_C1(const float* src, int srcStep, float* dst, int dstStep, Size roi, int relation, float threshold)
{
    return one_channel(src, srcStep, dst, dstStep, roi, relation, threshold, threshold);
}

Status Threshold_32f_C3(const float* src, int srcStep, float* dst, int dstStep, Size roi, int relation, const float* thresholds)
{
    if (const Status bad = check(relation, any_null(src, dst, thresholds), srcStep, dstStep, roi)) return bad;
    Rule<int32_t, int32_t, 1> rules[3];
    for (int c = 0; c < 3; ++c) {
        const int32_t threshold = get(bits(thresholds) + c);
        rules[c] = {{make_limit(threshold, threshold, relation == relation_greater)}};
    }
    three_channel_plane(bits(src), srcStep, bits(dst), dstStep, roi, ForThree<int32_t, 1>(rules));
    return StatusOk;
}

#define THRESHOLD_VALUE(name, T)                                                                          \
    Status name(const T* src, int srcStep, T* dst, int dstStep, Size roi, int relation, T threshold, T value) \
    {                                                                                                     \
        return one_channel(src, srcStep, dst, dstStep, roi, relation, threshold, value);                  \
    }
THRESHOLD_VALUE(Threshold_Val_8u_C1, uint8_t)
THRESHOLD_VALUE(Threshold_Val_16u_C1, uint16_t)
THRESHOLD_VALUE(Threshold_Val_32f_C1, float)

Status Threshold_LTValGTVal_32f_C1(const float* src, int srcStep, float* dst, int dstStep, Size roi, float thresholdLT,
                                   float valueLT, float thresholdGT, float valueGT)
{
    if (const Status bad = check(relation_less, any_null(src, dst), srcStep, dstStep, roi)) return bad;
    if (wrong_order(&thresholdLT, &thresholdGT, 1)) return StatusBadThreshold;
    const ForAll<int32_t, 2> op = {both_limits(thresholdLT, valueLT, thresholdGT, valueGT)};
    plane(bits(src), srcStep, bits(dst), dstStep, roi, 1, op);
    return StatusOk;
}

Status Threshold_LTValGTVal_32f_C3(const float* src, int srcStep, float* dst, int dstStep, Size roi, const float* thresholdLT,
                                   const float* valueLT, const float* thresholdGT, const float* valueGT)
{
    const bool null = any_null(src, dst, thresholdLT, valueLT) || any_null(thresholdGT, valueGT);
    if (const Status bad = check(relation_less, null, srcStep, dstStep, roi)) return bad;
    if (wrong_order(thresholdLT, thresholdGT, 3)) return StatusBadThreshold;
    Rule<int32_t, int32_t, 2> rules[3];
    for (int c = 0; c < 3; ++c) rules[c] = both_limits(thresholdLT[c], valueLT[c], thresholdGT[c], valueGT[c]);
    three_channel_plane(bits(src), srcStep, bits(dst), dstStep, roi, ForThree<int32_t, 2>(rules));
    return StatusOk;
}

}  // namespace ORV_LEVEL
}  // namespace threshold
}  // namespace orv
