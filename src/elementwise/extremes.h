// Least and greatest elements of images and of vectors, and where they stand.
#pragma once

#include <cstdint>
#include <limits>

#include "elementwise/copy_few.h"
#include "elementwise/rows.h"
#include "simd/reductions.h"

namespace orv {
inline namespace ORV_LEVEL {

// What is looked for.
enum Wanted { least = 1, greatest = 2, both = 3 };

// Where a search starts, and where it can end.
template <class T>
struct Range {
    using Limits = std::numeric_limits<T>;
    static constexpr T lowest = simd::is_float<T> ? -Limits::infinity() : Limits::lowest();
    static constexpr T highest = simd::is_float<T> ? Limits::infinity() : Limits::max();
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
    void include_row(const T* row, std::ptrdiff_t n, int channels)
    {
        int channel = 0;
        for (std::ptrdiff_t i = 0; i < n; ++i) {
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
    ORV_INLINE void include_row(const T* row, std::ptrdiff_t n)
    {
        Lanes local = *this;
        std::ptrdiff_t i = 0;
        for (; i <= n - kStep; i += kStep) local.step(row + i);
        if (i < n) local.step(row + n - kStep);
        *this = local;
    }
    // A row of n < kStep elements. With one channel, or four, lanes that the last vector shares with the one
    // before hold the same channel.
    ORV_INLINE void include_short_row(const T* row, std::ptrdiff_t n)
    {
        if (channels != 3 && n >= V::N) {
            for (std::ptrdiff_t i = 0; i <= n - V::N; i += V::N) include(0, simd::load<V>(row + i));
            include(0, simd::load<V>(row + n - V::N));
            return;
        }
        if constexpr (channels != 3 && !simd::is_float<T>) {
            constexpr int kSixteen = 16 / static_cast<int>(sizeof(T));
            if (n >= kSixteen) {
                include(0, simd::load_repeated<V>(row));
                include(0, simd::load_repeated<V>(row + n - kSixteen));
                return;
            }
        }
        // The row, repeated until it fills a step.
        constexpr std::ptrdiff_t kFull = channels == 3 ? kStep : V::N, kBytes = sizeof(T);
        T repeated[kFull];
        copy_few(repeated, row, n * kBytes);
        for (std::ptrdiff_t filled = n; filled < kFull; filled *= 2) {
            copy_few(repeated + filled, repeated, (filled < kFull - filled ? filled : kFull - filled) * kBytes);
        }
        for (int k = 0; k < kFull / V::N; ++k) include(k, simd::load<V>(repeated + k * V::N));
    }
    // May be false where it could be true: only time is lost.
    ORV_INLINE bool is_final() const
    {
        if (simd::is_float<T> || channels == 3) return false;
        if ((wanted & least) != 0 && !reached(low, Range<T>::lowest, [](V a, V b) { return simd::min(a, b); }))
            return false;
        if ((wanted & greatest) != 0 && !reached(high, Range<T>::highest, [](V a, V b) { return simd::max(a, b); }))
            return false;
        return true;
    }
    template <class Join>
    ORV_INLINE static bool reached(const V (&v)[kVectors], T end, Join join)
    {
        if constexpr (!simd::is_float<T>) {
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
        constexpr std::ptrdiff_t kChunk = 64 * L::kStep;
        L lanes;
        for (int y = 0; y < rows.count; ++y) {
            const T* row = row_at(src, srcStep, y);
            std::ptrdiff_t n = rows.n;
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
            if (!simd::is_float<T> && found.template is_final<wanted>(channels)) break;
        }
    }
    return found;
}

// --- Positions ------------------------------------------------------------------------------------
//
// Stretches of a row or a vector are searched for a better value than the best so far; the first one that had it
// is searched again for its place.

constexpr std::ptrdiff_t kStretch = 4096;

// Lanes that are equal as numbers: so many bits for each.
template <class V> constexpr int kLaneBits = simd::is_float<typename V::lane> ? 1 : sizeof(typename V::lane);
template <class V> constexpr unsigned kAllLanes = static_cast<unsigned>((std::uint64_t{1} << V::N * kLaneBits<V>) - 1);
template <class V>
ORV_INLINE unsigned equal_lanes(V a, V b)
{
    if constexpr (simd::is_float<typename V::lane>) return lanes_of(equal(a, b));
    else return simd::equal_bytes(a, b);
}

template <Wanted wanted, class T>
ORV_INLINE bool better(T a, T b)
{
    return wanted == least ? a < b : a > b;
}

// The best value of n elements, if it is better than `best`, which is no NaN. NaNs are left out.
template <Wanted wanted, class T>
ORV_INLINE T best_of(const T* p, std::ptrdiff_t n, T best)
{
    if constexpr (ORV_HAVE_VECTORS) {
        using V = simd::widest<T>;
        constexpr int kVectors = simd::is_float<T> && sizeof(void*) == 8 ? 8 : 4;
        if (n >= V::N) {
            // The first operand is the one that may be a NaN: then the second is kept.
            const auto join = [](V a, V b) { return wanted == least ? simd::min(a, b) : simd::max(a, b); };
            const V before = simd::splat<V>(best);
            V lanes[kVectors];
            for (V& lane : lanes) lane = before;
            std::ptrdiff_t i = 0;
            for (; i <= n - kVectors * V::N; i += kVectors * V::N) {
                for (int k = 0; k < kVectors; ++k) lanes[k] = join(simd::load<V>(p + i + k * V::N), lanes[k]);
            }
            for (; i <= n - V::N; i += V::N) lanes[0] = join(simd::load<V>(p + i), lanes[0]);
            lanes[1] = join(simd::load<V>(p + n - V::N), lanes[1]);
            V joined = lanes[0];
            for (int k = 1; k < kVectors; ++k) joined = join(joined, lanes[k]);
            if (equal_lanes(joined, before) == kAllLanes<V>) return best;
            T lane[V::N];
            simd::store(lane, joined);
            for (int k = 0; k < V::N; ++k) best = better<wanted>(lane[k], best) ? lane[k] : best;
            return best;
        }
    }
    for (std::ptrdiff_t i = 0; i < n; ++i) {
        const T value = get(p + i);
        if (better<wanted>(value, best)) best = value;
    }
    return best;
}

// The first element of n that equals `value`; n if none does.
template <class T>
ORV_INLINE std::ptrdiff_t index_of(const T* p, std::ptrdiff_t n, T value)
{
    std::ptrdiff_t i = 0;
    if constexpr (ORV_HAVE_VECTORS) {
        using V = simd::widest<T>;
        const V wanted = simd::splat<V>(value);
        for (; i <= n - V::N; i += V::N) {
            const unsigned mask = equal_lanes(simd::load<V>(p + i), wanted);
            if (mask != 0) return i + __builtin_ctz(mask) / kLaneBits<V>;
        }
    }
    while (i < n && get(p + i) != value) ++i;
    return i;
}

// The best value of a vector and the stretch that had it first: all of it where nothing is better than the start of
// the search.
template <class T>
struct Best {
    T value;
    const T* where;
    std::ptrdiff_t n;
};
template <Wanted wanted, class T>
Best<T> best_by_stretches(const T* src, std::ptrdiff_t n)
{
    constexpr T end = wanted == least ? Range<T>::lowest : Range<T>::highest;
    Best<T> best = {wanted == least ? Range<T>::highest : Range<T>::lowest, src, n};
    for (std::ptrdiff_t i = 0; i < n && best.value != end; i += kStretch) {
        const std::ptrdiff_t now = n - i < kStretch ? n - i : kStretch;
        const T found = best_of<wanted>(src + i, now, best.value);
        if (found != best.value) best = {found, src + i, now};
    }
    return best;
}

// The first of the best elements of a vector; n if it has nothing but NaNs.
template <Wanted wanted, class T>
std::ptrdiff_t place_of(const T* src, std::ptrdiff_t n)
{
    const Best<T> best = best_by_stretches<wanted>(src, n);
    const std::ptrdiff_t place = index_of(best.where, best.n, best.value);
    return place == best.n ? n : best.where - src + place;
}

}  // namespace ORV_LEVEL
}  // namespace orv
