#include "image/statistics/extremes.h"

#include <cstdint>
#include <cstring>
#include <limits>
#include <type_traits>

#include "core/checks.h"
#include "core/float_control.h"
#include "core/nan.h"
#include "elementwise/rows.h"
#include "image/statistics/copy_few.h"
#include "simd/reductions.h"

namespace orv {
namespace extremes {
namespace ORV_LEVEL {
namespace {

using std::int16_t;
using std::ptrdiff_t;
using std::uint16_t;
using std::uint32_t;
using std::uint8_t;

// What is looked for.
enum Wanted { least = 1, greatest = 2, both = 3 };

// Where a search starts, and where it can end.
template <class T>
struct Range {
    static constexpr T lowest = std::numeric_limits<T>::lowest();
    static constexpr T highest = std::numeric_limits<T>::max();
};
template <>
struct Range<float> {
    static constexpr float lowest = -std::numeric_limits<float>::infinity();
    static constexpr float highest = std::numeric_limits<float>::infinity();
};

template <class T>
struct Extremes {
    T low[4], high[4];

    Extremes()
    {
        for (int c = 0; c < 4; ++c) {
            low[c] = Range<T>::highest;
            high[c] = Range<T>::lowest;
        }
    }
    // Comparisons with a NaN do not hold: it is left out.
    template <Wanted wanted>
    ORV_INLINE void include(int channel, T value)
    {
        if ((wanted & least) != 0 && value < low[channel]) low[channel] = value;
        if ((wanted & greatest) != 0 && value > high[channel]) high[channel] = value;
    }
    template <Wanted wanted>
    void include_row(const T* row, ptrdiff_t n, int channels)
    {
        int channel = 0;
        for (ptrdiff_t i = 0; i < n; ++i) {
            include<wanted>(channel, get(row + i));
            if (++channel == channels) channel = 0;
        }
    }
    template <Wanted wanted>
    bool is_final(int channels) const
    {
        for (int c = 0; c < channels; ++c) {
            if ((wanted & least) != 0 && low[c] != Range<T>::lowest) return false;
            if ((wanted & greatest) != 0 && high[c] != Range<T>::highest) return false;
        }
        return true;
    }
};

// The extremes of the lanes of `kVectors` vectors side by side. That many hide the latency of the comparison,
// and three channels come round after them.
template <class T, Wanted wanted, int channels>
struct Lanes {
    using V = simd::widest<T>;
    static constexpr int kVectors = channels == 3 ? 3 : wanted == both || sizeof(void*) == 4 ? 4 : 8;
    static constexpr int kStep = kVectors * V::N;
    V low[kVectors], high[kVectors];

    ORV_INLINE Lanes()
    {
        for (int k = 0; k < kVectors; ++k) {
            low[k] = simd::splat<V>(Range<T>::highest);
            high[k] = simd::splat<V>(Range<T>::lowest);
        }
    }
    ORV_INLINE void include(int k, V v)
    {
        // The first operand is the one that may be a NaN: then the second is kept.
        if ((wanted & least) != 0) low[k] = simd::min(v, low[k]);
        if ((wanted & greatest) != 0) high[k] = simd::max(v, high[k]);
    }
    ORV_INLINE void step(const T* p)
    {
        for (int k = 0; k < kVectors; ++k) include(k, simd::load<V>(p + k * V::N));
    }
    // n elements from kStep up, a whole number of pixels. The last ones are included twice: no matter here.
    ORV_INLINE void include_row(const T* row, ptrdiff_t n)
    {
        Lanes local = *this;
        ptrdiff_t i = 0;
        for (; i <= n - kStep; i += kStep) local.step(row + i);
        if (i < n) local.step(row + n - kStep);
        *this = local;
    }
    // A row of n < kStep elements. With one channel, or four, lanes that the last vector shares with the one
    // before hold the same channel.
    ORV_INLINE void include_short_row(const T* row, ptrdiff_t n)
    {
        if (channels != 3 && n >= V::N) {
            for (ptrdiff_t i = 0; i <= n - V::N; i += V::N) include(0, simd::load<V>(row + i));
            include(0, simd::load<V>(row + n - V::N));
            return;
        }
        if constexpr (channels != 3 && !std::is_same<T, float>::value) {
            constexpr int kSixteen = 16 / static_cast<int>(sizeof(T));
            if (n >= kSixteen) {
                include(0, simd::load_repeated<V>(row));
                include(0, simd::load_repeated<V>(row + n - kSixteen));
                return;
            }
        }
        // The row, repeated until it fills a step.
        constexpr ptrdiff_t kFull = channels == 3 ? kStep : V::N, kBytes = sizeof(T);
        T repeated[kFull];
        copy_few(repeated, row, n * kBytes);
        for (ptrdiff_t filled = n; filled < kFull; filled *= 2) {
            copy_few(repeated + filled, repeated, (filled < kFull - filled ? filled : kFull - filled) * kBytes);
        }
        for (int k = 0; k < kFull / V::N; ++k) include(k, simd::load<V>(repeated + k * V::N));
    }
    // May be false where it could be true: only time is lost.
    ORV_INLINE bool is_final() const
    {
        if (std::is_same<T, float>::value || channels == 3) return false;
        if ((wanted & least) != 0 && !reached(low, Range<T>::lowest, [](V a, V b) { return simd::min(a, b); }))
            return false;
        if ((wanted & greatest) != 0 && !reached(high, Range<T>::highest, [](V a, V b) { return simd::max(a, b); }))
            return false;
        return true;
    }
    template <class Join>
    ORV_INLINE static bool reached(const V (&v)[kVectors], T end, Join join)
    {
        if constexpr (!std::is_same<T, float>::value) {
            V joined = v[0];
            for (int k = 1; k < kVectors; ++k) joined = join(joined, v[k]);
            unsigned mask = simd::equal_bytes(joined, simd::splat<V>(end));
            if (channels == 1) return mask != 0;
            for (int bits = 16; bits >= channels; bits /= 2) mask |= mask >> bits;
            return (mask & ((1u << channels) - 1)) == (1u << channels) - 1;
        }
        return false;
    }
    void take(Extremes<T>& extremes) const
    {
        T lane[V::N];
        if (channels != 3 && (wanted & least) != 0) {
            V joined = low[0];
            for (int k = 1; k < kVectors; ++k) joined = simd::min(joined, low[k]);
            simd::store(lane, joined);
            for (int i = 0; i < V::N; ++i) extremes.template include<least>(i % channels, lane[i]);
        }
        if (channels != 3 && (wanted & greatest) != 0) {
            V joined = high[0];
            for (int k = 1; k < kVectors; ++k) joined = simd::max(joined, high[k]);
            simd::store(lane, joined);
            for (int i = 0; i < V::N; ++i) extremes.template include<greatest>(i % channels, lane[i]);
        }
        if (channels != 3) return;
        for (int k = 0; k < kVectors; ++k) {
            if ((wanted & least) != 0) {
                simd::store(lane, low[k]);
                for (int i = 0; i < V::N; ++i) extremes.template include<least>((k * V::N + i) % 3, lane[i]);
            }
            if ((wanted & greatest) != 0) {
                simd::store(lane, high[k]);
                for (int i = 0; i < V::N; ++i) extremes.template include<greatest>((k * V::N + i) % 3, lane[i]);
            }
        }
    }
};

// The extremes of the whole region. A search that has arrived at the end of the range stops within
// kChunk elements of there.
template <Wanted wanted, int channels, class T>
Extremes<T> find(const T* src, int srcStep, Size roi)
{
    Extremes<T> found;
    const Rows rows(roi, channels, sizeof(T), srcStep);
    if constexpr (ORV_HAVE_VECTORS) {
        using L = Lanes<T, wanted, channels>;
        constexpr ptrdiff_t kChunk = 64 * L::kStep;
        L lanes;
        for (int y = 0; y < rows.count; ++y) {
            const T* row = row_at(src, srcStep, y);
            ptrdiff_t n = rows.n;
            for (; n >= 2 * kChunk; n -= kChunk, row += kChunk) {
                lanes.include_row(row, kChunk);
                if (lanes.is_final()) break;
            }
            if (n >= L::kStep) lanes.include_row(row, n < 2 * kChunk ? n : kChunk);
            else lanes.include_short_row(row, n);
            if (lanes.is_final()) break;
        }
        lanes.take(found);
    } else {
        for (int y = 0; y < rows.count; ++y) {
            found.template include_row<wanted>(row_at(src, srcStep, y), rows.n, channels);
            if (!std::is_same<T, float>::value && found.template is_final<wanted>(channels)) break;
        }
    }
    return found;
}

// --- Floats: NaNs and signed zeros ------------------------------------------------------------------

uint32_t bits_of(const float* p) { return get(reinterpret_cast<const uint32_t*>(p)); }
bool is_nan(uint32_t bits) { return (bits & 0x7FFFFFFF) > 0x7F800000; }

// The bits of the first element of a channel that `wanted` accepts, else of a NaN.
template <class Wanted>
uint32_t first_bits(const float* src, int srcStep, Size roi, int channels, int channel, Wanted wanted)
{
    for (int y = 0; y < roi.height; ++y) {
        const float* const row = row_at(src, srcStep, y);
        for (ptrdiff_t i = channel; i < static_cast<ptrdiff_t>(roi.width) * channels; i += channels) {
            const uint32_t bits = bits_of(row + i);
            if (wanted(bits)) return bits;
        }
    }
    return kPlainNan;
}

// The extreme of a channel as it stands in the image: the first zero if it is one; and where nothing left
// the start of the search, there may have been nothing but NaNs.
void write_extreme(float value, float start, const float* src, int srcStep, Size roi, int channels, int channel,
                   float* result)
{
    uint32_t bits = bits_of(&value);
    if (value == start) {
        const uint32_t any = first_bits(src, srcStep, roi, channels, channel, [](uint32_t b) { return !is_nan(b); });
        if (is_nan(any)) bits = any;
    } else if ((bits & 0x7FFFFFFF) == 0) {
        bits = first_bits(src, srcStep, roi, channels, channel, [](uint32_t b) { return (b & 0x7FFFFFFF) == 0; });
    }
    put(reinterpret_cast<uint32_t*>(result), bits);
}

// --- Results --------------------------------------------------------------------------------------

template <Wanted wanted, int channels, class T>
ORV_INLINE void write_extremes(const T* src, int srcStep, Size roi, T* low, T* high)
{
    if constexpr (std::is_same<T, float>::value) {
        const FloatControl control;
        const Extremes<T> found = find<wanted, channels>(src, srcStep, roi);
        for (int c = 0; c < channels; ++c) {
            if ((wanted & least) != 0)
                write_extreme(found.low[c], Range<T>::highest, src, srcStep, roi, channels, c, low + c);
            if ((wanted & greatest) != 0)
                write_extreme(found.high[c], Range<T>::lowest, src, srcStep, roi, channels, c, high + c);
        }
    } else {
        const Extremes<T> found = find<wanted, channels>(src, srcStep, roi);
        for (int c = 0; c < channels; ++c) {
            if ((wanted & least) != 0) put(low + c, found.low[c]);
            if ((wanted & greatest) != 0) put(high + c, found.high[c]);
        }
    }
}

template <Wanted wanted, int channels, class T>
Status extreme(const T* src, int srcStep, Size roi, T* result)
{
    if (const Status bad = check_image(roi, src, result)) return bad;
    write_extremes<wanted, channels>(src, srcStep, roi, result, result);
    return StatusOk;
}

template <int channels, class T>
Status extremes(const T* src, int srcStep, Size roi, T* low, T* high)
{
    if (const Status bad = check_image(roi, src, low, high)) return bad;
    write_extremes<both, channels>(src, srcStep, roi, low, high);
    return StatusOk;
}

// --- Positions ------------------------------------------------------------------------------------
//
// Stretches of a row are searched for a better value than the best so far; the first one that had it is
// searched again for its place.

constexpr ptrdiff_t kStretch = 4096;

template <Wanted wanted, class T>
ORV_INLINE bool better(T a, T b)
{
    return wanted == least ? a < b : a > b;
}

// The best value of n elements, if it is better than `best`.
template <Wanted wanted, class T>
ORV_INLINE T best_of(const T* p, ptrdiff_t n, T best)
{
    if constexpr (ORV_HAVE_VECTORS) {
        using V = simd::widest<T>;
        constexpr int kVectors = 4;
        if (n >= V::N) {
            const auto join = [](V a, V b) { return wanted == least ? simd::min(a, b) : simd::max(a, b); };
            const V before = simd::splat<V>(best);
            V lanes[kVectors] = {before, before, before, before};
            ptrdiff_t i = 0;
            for (; i <= n - kVectors * V::N; i += kVectors * V::N) {
                for (int k = 0; k < kVectors; ++k) lanes[k] = join(lanes[k], simd::load<V>(p + i + k * V::N));
            }
            for (; i <= n - V::N; i += V::N) lanes[0] = join(lanes[0], simd::load<V>(p + i));
            lanes[1] = join(lanes[1], simd::load<V>(p + n - V::N));
            const V joined = join(join(lanes[0], lanes[1]), join(lanes[2], lanes[3]));
            if (simd::equal_bytes(joined, before) == simd::all_bytes<V>) return best;
            T lane[V::N];
            simd::store(lane, joined);
            for (int k = 0; k < V::N; ++k) best = better<wanted>(lane[k], best) ? lane[k] : best;
            return best;
        }
    }
    for (ptrdiff_t i = 0; i < n; ++i) {
        const T value = get(p + i);
        if (better<wanted>(value, best)) best = value;
    }
    return best;
}

// The first element of n that is `value`; there is one.
template <class T>
ORV_INLINE ptrdiff_t index_of(const T* p, ptrdiff_t n, T value)
{
    ptrdiff_t i = 0;
    if constexpr (ORV_HAVE_VECTORS) {
        using V = simd::widest<T>;
        const V wanted = simd::splat<V>(value);
        for (; i <= n - V::N; i += V::N) {
            const unsigned mask = simd::equal_bytes(simd::load<V>(p + i), wanted);
            if (mask != 0) return i + __builtin_ctz(mask) / static_cast<int>(sizeof(T));
        }
    }
    while (i < n - 1 && get(p + i) != value) ++i;
    return i;
}

template <Wanted wanted, class T>
Status position(const T* src, int srcStep, Size roi, T* result, int* column, int* row)
{
    if (const Status bad = check_image(roi, src, result, column, row)) return bad;
    const Rows rows(roi, 1, sizeof(T), srcStep);
    constexpr T end = wanted == least ? Range<T>::lowest : Range<T>::highest;
    T best = get(src);
    const T* where = src;  // the stretch that had it first
    ptrdiff_t where_n = 1, where_x = 0;
    int where_y = 0;
    for (int y = 0; y < rows.count && best != end; ++y) {
        const T* const start = row_at(src, srcStep, y);
        for (ptrdiff_t x = 0; x < rows.n && best != end; x += kStretch) {
            const ptrdiff_t n = rows.n - x < kStretch ? rows.n - x : kStretch;
            const T found = best_of<wanted>(start + x, n, best);
            if (found == best) continue;
            best = found;
            where = start + x;
            where_n = n;
            where_x = x;
            where_y = y;
        }
    }
    const ptrdiff_t x = where_x + index_of(where, where_n, best);
    // Rows without gaps were searched as one.
    const bool merged = rows.count != roi.height;
    put(result, best);
    put(column, static_cast<int>(merged ? x % roi.width : x));
    put(row, static_cast<int>(merged ? x / roi.width : where_y));
    return StatusOk;
}

}  // namespace

// --- Kernels --------------------------------------------------------------------------------------

#define ONE(name, T, wanted, channels) \
    Status name(const T* src, int srcStep, Size roi, T* results) \
    { \
        return extreme<wanted, channels>(src, srcStep, roi, results); \
    }
#define TWO(name, T, channels) \
    Status name(const T* src, int srcStep, Size roi, T* first, T* second) \
    { \
        return extremes<channels>(src, srcStep, roi, first, second); \
    }
#define POSITION(name, T, wanted)                                                             \
    Status name(const T* src, int srcStep, Size roi, T* value, int* column, int* row)         \
    {                                                                                         \
        return position<wanted>(src, srcStep, roi, value, column, row);                       \
    }

ONE(Min_8u_C1, uint8_t, least, 1)
ONE(Min_8u_C3, uint8_t, least, 3)
ONE(Min_16u_C1, uint16_t, least, 1)
ONE(Min_16s_C1, int16_t, least, 1)
ONE(Min_32f_C1, float, least, 1)
ONE(Min_32f_C3, float, least, 3)

ONE(Max_8u_C1, uint8_t, greatest, 1)
ONE(Max_8u_C4, uint8_t, greatest, 4)
ONE(Max_16u_C1, uint16_t, greatest, 1)
ONE(Max_16s_C1, int16_t, greatest, 1)
ONE(Max_32f_C1, float, greatest, 1)
ONE(Max_32f_C3, float, greatest, 3)

TWO(MinMax_8u_C1, uint8_t, 1)
TWO(MinMax_8u_C3, uint8_t, 3)
TWO(MinMax_8u_C4, uint8_t, 4)
TWO(MinMax_16u_C1, uint16_t, 1)
TWO(MinMax_16s_C1, int16_t, 1)
TWO(MinMax_32f_C1, float, 1)
TWO(MinMax_32f_C3, float, 3)

POSITION(MinIndx_8u_C1R, uint8_t, least)
POSITION(MinIndx_16u_C1R, uint16_t, least)
POSITION(MaxIndx_8u_C1R, uint8_t, greatest)
POSITION(MaxIndx_16u_C1R, uint16_t, greatest)

}  // namespace ORV_LEVEL
}  // namespace extremes
}  // namespace orv
