#include "image/bits/threshold.h"

#include <cstdint>
#include <utility>

#include "core/checks.h"
#include "core/overlap.h"
#include "elementwise/thresholds.h"

namespace orv {
namespace threshold {
namespace ORV_LEVEL {
namespace {

using std::int32_t;
using std::ptrdiff_t;
using std::uint16_t;
using std::uint8_t;

// --- Loops ----------------------------------------------------------------------------------------

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

// A loop is compiled for each direction, with flips and without: run() gets both conditions as types.
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
    const auto run = [&](const auto& op) { plane(bits(src), srcStep, bits(dst), dstStep, roi, 1, op); };
    if (relation == relation_greater) with_value<true, T>(bits(threshold), bits(value), run);
    else with_value<false, T>(bits(threshold), bits(value), run);
    return StatusOk;
}

// Three values as integers; is any of them a threshold that needs a flip?
ORV_INLINE bool load_channels(const float* values, int32_t (&words)[3])
{
    bool flips = false;
    for (int c = 0; c < 3; ++c) {
        words[c] = get(bits(values) + c);
        flips = flips | needs_flip<float>(words[c]);
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
    const auto run = [&](const auto& op) { plane(bits(src), srcStep, bits(dst), dstStep, roi, 1, op); };
    if (relation == relation_greater) with_limit<true, float>(bits(threshold), run);
    else with_limit<false, float>(bits(threshold), run);
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
            {CHANNELS(flip_of<float>, t), CHANNELS(comparable<float>, t)}};
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
    if (wrong_order<float>(&lower, &upper, 1)) return StatusBadThreshold;
    with_values<float>(lower, bits(valueLT), upper, bits(valueGT), [&](const auto& op) {
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
    if (wrong_order<float>(lower, upper, 3)) return StatusBadThreshold;
    load_channels(valueLT, low_value);
    load_channels(valueGT, high_value);
    with_conditions(upper_flips, lower_flips, [&](auto flips_upper, auto flips_lower) {
        const ForThree<int32_t, ReplaceBoth<decltype(flips_upper)::value, decltype(flips_lower)::value>> op = {
            {CHANNELS(flip_of<float>, upper), CHANNELS(comparable<float>, upper), CHANNELS(, high_value),
             CHANNELS(flip_of<float>, lower), CHANNELS(comparable<float>, lower), CHANNELS(, low_value)}};
        three_channel_plane(bits(src), srcStep, bits(dst), dstStep, roi, op);
    });
    return StatusOk;
}

#undef CHANNELS
#undef THRESHOLD_VALUE

}  // namespace ORV_LEVEL
}  // namespace threshold
}  // namespace orv
