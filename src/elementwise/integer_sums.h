// Exact sums of integers, of images and of vectors.
#pragma once

#include <cstdint>

#include "core/float_control.h"
#include "elementwise/copy_few.h"
#include "elementwise/rows.h"
#include "simd/reductions.h"

namespace orv {
inline namespace ORV_LEVEL {

// Sums wrap in 64 bits, whatever the sign: an image would need 2^47 pixels to notice.
struct Totals {
    std::uint64_t sum[4];
    std::uint64_t squares;
};

#if ORV_HAVE_VECTORS
// --- Adding up vectors ----------------------------------------------------------------------------
//
// A way of adding up has
//     V                  the vector that it reads
//     kPeriod            how many of them make a step: 3 where channels come round after three
//     kRoom              how many steps its lanes hold
//     step(p)            adds a step
//     make_room(totals, channels), take(totals, channels)   move the lanes to wider ones, and to the totals
// Zeros behind the end of a row change nothing, so a rest is added as a step of its own.

template <class V>
ORV_INLINE std::uint64_t sum_of_lanes(V v)
{
    typename V::lane lane[V::N];
    simd::store(lane, v);
    std::uint64_t sum = 0;  // of signed lanes in two's complement
    for (int i = 0; i < V::N; ++i) sum += static_cast<std::uint64_t>(static_cast<std::int64_t>(lane[i]));
    return sum;
}

template <class V>
ORV_INLINE V nothing()
{
    return simd::as<typename V::lane>(simd::zero<simd::recast<std::uint32_t, V>>());
}

struct Bytes {
    using V = simd::widest<std::uint8_t>;
    using Wide = simd::recast<std::uint64_t, V>;
    static constexpr int kPeriod = 1;
    static constexpr int kRoom = 1 << 30;
    Wide sum = nothing<Wide>();

    ORV_INLINE void step(const std::uint8_t* p)
    {
        sum = simd::add_wide(sum, simd::sum_of_bytes(simd::load<V>(p)));
    }
    ORV_INLINE void make_room(Totals& totals, int channels) { take(totals, channels); }
    ORV_INLINE void take(Totals& totals, int)
    {
        totals.sum[0] += sum_of_lanes(sum);
        sum = nothing<Wide>();
    }
};

// 16-bit numbers in 32-bit lanes, which hold low + 65536 high: adding up the lanes as they are and the high halves
// alone leaves the low halves as the difference.
struct Words {
    using V = simd::widest<std::uint32_t>;
    static constexpr int kPeriod = 1;
    static constexpr int kRoom = 65536;
    V both = nothing<V>(), high = nothing<V>();

    ORV_INLINE void step(const std::uint8_t* p)
    {
        const V v = simd::as<std::uint32_t>(simd::load<simd::widest<std::uint8_t>>(p));
        both = both + v;
        high = high + simd::upper(v);
    }
    ORV_INLINE void make_room(Totals& totals, int channels) { take(totals, channels); }
    ORV_INLINE void take(Totals& totals, int)
    {
        totals.sum[0] += sum_of_lanes(both - (high << simd::count(16))) + sum_of_lanes(high);
        both = high = nothing<V>();
    }
};

// As above, with 32-bit numbers in 64-bit lanes. With the sign bit exchanged they are unsigned, and 2^31 more.
struct Ints {
    using V = simd::widest<std::uint64_t>;
    static constexpr int kPeriod = 1;
    static constexpr int kRoom = 1 << 30;
    V both = nothing<V>(), high = nothing<V>();
    std::uint64_t steps = 0;

    ORV_INLINE void step(const std::uint8_t* p)
    {
        const V bits = simd::as<std::uint64_t>(simd::load<simd::widest<std::uint8_t>>(p));
        const V v = bits ^ simd::splat<V>(0x8000000080000000);
        both = both + v;
        high = high + simd::upper(v);
        ++steps;
    }
    ORV_INLINE void make_room(Totals& totals, int channels) { take(totals, channels); }
    ORV_INLINE void take(Totals& totals, int)
    {
        const std::uint64_t highs = sum_of_lanes(high);
        totals.sum[0] += sum_of_lanes(both) - (highs << 32) + highs - (steps * (2 * V::N) << 31);
        both = high = nothing<V>();
        steps = 0;
    }
};

template <class Way, class T>
Totals add_up(const T* src, int srcStep, Size roi, int channels)
{
    constexpr int step_bytes = Way::kPeriod * static_cast<int>(sizeof(typename Way::V));
    const Rows rows(roi, channels, sizeof(T), srcStep);
    const std::ptrdiff_t n = rows.n * static_cast<std::ptrdiff_t>(sizeof(T));
    const int rest = static_cast<int>(n % step_bytes);
    Totals totals = {};
    Way way;
    std::ptrdiff_t room = Way::kRoom;
    const auto use_room = [&](std::ptrdiff_t steps) {
        room -= steps;
        if (room != 0) return;
        way.make_room(totals, channels);
        room = Way::kRoom;
    };
    for (int y = 0; y < rows.count; ++y) {
        const std::uint8_t* p = reinterpret_cast<const std::uint8_t*>(row_at(src, srcStep, y));
        for (std::ptrdiff_t steps = n / step_bytes; steps > 0;) {
            const std::ptrdiff_t now = steps < room ? steps : room;
            Way local = way;
            const std::uint8_t* const end = p + now * step_bytes;
            for (; end - p >= 4 * step_bytes; p += 4 * step_bytes) {
                local.step(p);
                local.step(p + step_bytes);
                local.step(p + 2 * step_bytes);
                local.step(p + 3 * step_bytes);
            }
            for (; p != end; p += step_bytes) local.step(p);
            way = local;
            steps -= now;
            use_room(now);
        }
        if (rest != 0) {
            alignas(32) std::uint8_t padded[step_bytes] = {};
            copy_few(padded, p, rest);
            way.step(padded);
            use_room(1);
        }
    }
    way.take(totals, channels);
    return totals;
}

#endif

// Rounded once, to the nearest.
inline double from_unsigned(std::uint64_t x)
{
    const double high = static_cast<double>(static_cast<std::uint32_t>(x >> 32)) * 4294967296.0;
    return rounded(high + static_cast<double>(static_cast<std::uint32_t>(x)));
}

inline double from_signed(std::uint64_t x) { return x >> 63 != 0 ? -from_unsigned(0 - x) : from_unsigned(x); }

}  // namespace ORV_LEVEL
}  // namespace orv
