#include "image/statistics/sums.h"

#include <cstdint>
#include <cstring>
#include <limits>
#include <type_traits>

#include "core/checks.h"
#include "core/float_control.h"
#include "elementwise/integer_sums.h"

namespace orv {
namespace sums {
namespace ORV_LEVEL {
namespace {

using std::int16_t;
using std::int32_t;
using std::int64_t;
using std::ptrdiff_t;
using std::uint16_t;
using std::uint32_t;
using std::uint64_t;
using std::uint8_t;

#if ORV_HAVE_VECTORS
// Bytes of three or four channels. As 16-bit lanes a vector holds low + 256 high; adding up the lanes as
// they are and the high bytes alone leaves the low bytes as the difference, without masking them.
template <int Period>
struct ChannelBytes {
    using V = simd::widest<uint16_t>;
    static constexpr int kPeriod = Period;
    static constexpr int kRoom = 257;  // 257 * 255 fits 16 bits

    ORV_INLINE ChannelBytes()
    {
        for (int k = 0; k < Period; ++k) {
            both[k] = high[k] = nothing<V>();
            for (int b = 0; b < 4; ++b) byte[k][b] = nothing<Wide>();
        }
    }
    ORV_INLINE void step(const uint8_t* p)
    {
        for (int k = 0; k < Period; ++k) {
            const V v = simd::as<uint16_t>(simd::load<simd::widest<uint8_t>>(p + k * 2 * V::N));
            both[k] = both[k] + v;
            high[k] = high[k] + simd::upper(v);
        }
    }
    ORV_INLINE void make_room(Totals& totals, int channels)
    {
        widen();
        if (--room == 0) drain(totals, channels);
    }
    void take(Totals& totals, int channels)
    {
        widen();
        drain(totals, channels);
    }

private:
    ORV_INLINE void widen()
    {
        const Wide low_half = simd::splat<Wide>(65535);
        for (int k = 0; k < Period; ++k) {
            const Wide even = simd::as<uint32_t>(both[k] - (high[k] << simd::count(8)));
            const Wide odd = simd::as<uint32_t>(high[k]);
            byte[k][0] = byte[k][0] + (even & low_half);
            byte[k][1] = byte[k][1] + (odd & low_half);
            byte[k][2] = byte[k][2] + simd::upper(even);
            byte[k][3] = byte[k][3] + simd::upper(odd);
            both[k] = high[k] = nothing<V>();
        }
    }
    void drain(Totals& totals, int channels)
    {
        for (int k = 0; k < Period; ++k) {
            for (int b = 0; b < 4; ++b) {
                uint32_t lane[Wide::N];
                simd::store(lane, byte[k][b]);
                for (int i = 0; i < Wide::N; ++i) totals.sum[(2 * V::N * k + 4 * i + b) % channels] += lane[i];
                byte[k][b] = nothing<Wide>();
            }
        }
        room = kWideRoom;
    }

    using Wide = simd::widest<uint32_t>;
    static constexpr int kWideRoom = 65536;
    V both[Period], high[Period];
    Wide byte[Period][4];  // the sums of every fourth byte
    int room = kWideRoom;
};

struct SignedWords {
    using V = simd::widest<int16_t>;
    using Wide = simd::recast<int32_t, V>;
    static constexpr int kPeriod = 1;
    static constexpr int kRoom = 32767;  // 32767 * 65536 fits 31 bits
    Wide sum = nothing<Wide>();

    ORV_INLINE void step(const uint8_t* p)
    {
        const V v = simd::as<int16_t>(simd::load<simd::widest<uint8_t>>(p));
        sum = sum + simd::sum_of_products(v, simd::splat<V>(1));
    }
    ORV_INLINE void make_room(Totals& totals, int channels) { take(totals, channels); }
    ORV_INLINE void take(Totals& totals, int)
    {
        totals.sum[0] += sum_of_lanes(sum);
        sum = nothing<Wide>();
    }
};

struct ByteSquares {
    using V = simd::widest<uint8_t>;
    using Word = simd::widest<int16_t>;
    using Wide = simd::recast<uint32_t, V>;
    static constexpr int kPeriod = 1;
    static constexpr int kRoom = 16384;  // 16384 * 4 * 255^2 fits 32 bits
    simd::recast<uint64_t, V> sum = nothing<simd::recast<uint64_t, V>>();
    Wide squares = nothing<Wide>();

    ORV_INLINE void step(const uint8_t* p)
    {
        const V v = simd::load<V>(p);
        sum = simd::add_wide(sum, simd::sum_of_bytes(v));
        const Word low = simd::as<int16_t>(simd::as<uint16_t>(v) & simd::splat<simd::widest<uint16_t>>(255));
        const Word high = simd::as<int16_t>(simd::upper(simd::as<uint16_t>(v)));
        squares = squares + simd::as<uint32_t>(simd::sum_of_products(low, low) + simd::sum_of_products(high, high));
    }
    ORV_INLINE void make_room(Totals& totals, int channels) { take(totals, channels); }
    ORV_INLINE void take(Totals& totals, int)
    {
        totals.sum[0] += sum_of_lanes(sum);
        totals.squares += sum_of_lanes(squares);
        sum = nothing<decltype(sum)>();
        squares = nothing<Wide>();
    }
};

// With y = x - 32768: the products of signed words are at hand, and
// sum of x^2 = sum of y^2 + 65536 sum of y + 2^30 n, where n counts the zeros behind the rows as well.
struct WordSquares {
    using V = simd::widest<int16_t>;
    using Wide = simd::recast<int32_t, V>;
    using Widest = simd::recast<uint64_t, V>;
    static constexpr int kPeriod = 1;
    static constexpr int kRoom = 32767;
    Wide sum = nothing<Wide>();
    Widest both = nothing<Widest>(), high = nothing<Widest>();  // as 32-bit numbers in 64-bit lanes
    uint64_t steps = 0;

    ORV_INLINE void step(const uint8_t* p)
    {
        const V x = simd::as<int16_t>(simd::load<simd::widest<uint8_t>>(p));
        const V y = x ^ simd::splat<V>(std::numeric_limits<int16_t>::min());
        sum = sum + simd::sum_of_products(y, simd::splat<V>(1));
        // Two products add up to at most 2^31: the lanes are unsigned.
        const Widest squares = simd::as<uint64_t>(simd::sum_of_products(y, y));
        both = simd::add_wide(both, squares);
        high = simd::add_wide(high, simd::upper(squares));
        ++steps;
    }
    ORV_INLINE void make_room(Totals& totals, int channels) { take(totals, channels); }
    ORV_INLINE void take(Totals& totals, int)
    {
        const uint64_t n = steps * V::N;
        const uint64_t sum_y = sum_of_lanes(sum), highs = sum_of_lanes(high);
        totals.sum[0] += sum_y + (n << 15);
        totals.squares += sum_of_lanes(both) - (highs << 32) + highs + (sum_y << 16) + (n << 30);
        sum = nothing<Wide>();
        both = high = nothing<Widest>();
        steps = 0;
    }
};

template <class T>
Totals sums_of(const T* src, int srcStep, Size roi, int channels)
{
    if constexpr (sizeof(T) == 1) {
        if (channels == 3) return add_up<ChannelBytes<3>>(src, srcStep, roi, channels);
        if (channels == 4) return add_up<ChannelBytes<1>>(src, srcStep, roi, channels);
        return add_up<Bytes>(src, srcStep, roi, channels);
    } else if constexpr (std::is_signed<T>::value) {
        return add_up<SignedWords>(src, srcStep, roi, channels);
    } else {
        return add_up<Words>(src, srcStep, roi, channels);
    }
}

template <class T>
Totals squares_of(const T* src, int srcStep, Size roi)
{
    if constexpr (sizeof(T) == 1) return add_up<ByteSquares>(src, srcStep, roi, 1);
    else return add_up<WordSquares>(src, srcStep, roi, 1);
}
#else
template <class T>
Totals squares_of(const T* src, int srcStep, Size roi, int channels = 1)
{
    Totals totals = {};
    const ptrdiff_t n = static_cast<ptrdiff_t>(roi.width) * channels;
    for (int y = 0; y < roi.height; ++y) {
        const T* const row = row_at(src, srcStep, y);
        int channel = 0;
        for (ptrdiff_t i = 0; i < n; ++i) {
            const int64_t x = get(row + i);
            totals.sum[channel] += static_cast<uint64_t>(x);
            totals.squares += static_cast<uint64_t>(x * x);
            if (++channel == channels) channel = 0;
        }
    }
    return totals;
}

template <class T>
Totals sums_of(const T* src, int srcStep, Size roi, int channels)
{
    return squares_of(src, srcStep, roi, channels);
}
#endif

// --- Results --------------------------------------------------------------------------------------

double pixels_of(Size roi) { return rounded(static_cast<double>(roi.width) * static_cast<double>(roi.height)); }

template <class T>
Status sum(const T* src, int srcStep, Size roi, double* result, int channels)
{
    if (const Status bad = check_image(roi, src, result)) return bad;
    const FloatControl control;
    const Totals totals = sums_of(src, srcStep, roi, channels);
    for (int c = 0; c < channels; ++c) put(result + c, from_signed(totals.sum[c]));
    return StatusOk;
}

template <class T>
Status mean(const T* src, int srcStep, Size roi, double* result, int channels)
{
    if (const Status bad = check_image(roi, src, result)) return bad;
    const FloatControl control;
    const Totals totals = sums_of(src, srcStep, roi, channels);
    for (int c = 0; c < channels; ++c) put(result + c, rounded(from_signed(totals.sum[c]) / pixels_of(roi)));
    return StatusOk;
}

void put_deviation(double n, uint64_t sum, uint64_t squares, double* mean, double* deviation)
{
    ORV_ASSERT(FloatControl::holds());
    const double m = rounded(from_unsigned(sum) / n);
    const double mean_of_squares = rounded(from_unsigned(squares) / n);
    const double variance = rounded(mean_of_squares - rounded(m * m));
    if (mean != nullptr) put(mean, m);
    if (deviation != nullptr) put(deviation, rounded(__builtin_sqrt(variance < 0 ? -variance : variance)));
}

template <class T>
Status check_rows(const T* src, int srcStep, Size roi)
{
    if (const Status bad = check_image(roi, src)) return bad;
    const bool holds = srcStep >= static_cast<int64_t>(roi.width) * static_cast<int64_t>(sizeof(T));
    return holds ? StatusOk : StatusBadStep;
}

template <class T>
Status mean_deviation(const T* src, int srcStep, Size roi, double* mean, double* deviation)
{
    if (const Status bad = check_rows(src, srcStep, roi)) return bad;
    const FloatControl control;
    const Totals totals = squares_of(src, srcStep, roi);
    put_deviation(pixels_of(roi), totals.sum[0], totals.squares, mean, deviation);
    return StatusOk;
}

template <class T>
Status sum_squares(const T* src, int srcStep, Size roi, unsigned long long* sum, unsigned long long* squares)
{
    if (any_null(sum, squares)) return StatusNullPointer;
    if (const Status bad = check_rows(src, srcStep, roi)) return bad;
    const Totals totals = squares_of(src, srcStep, roi);
    *sum = totals.sum[0];
    *squares = totals.squares;
    return StatusOk;
}

}  // namespace

// --- Kernels --------------------------------------------------------------------------------------

#define RESULTS(name, T, channels, ...) \
    Status name(const T* src, int srcStep, Size roi, double* results) \
    { \
        return __VA_ARGS__(src, srcStep, roi, results, channels); \
    }
#define SUM_SQUARES(name, T) \
    Status name(const T* src, int srcStep, Size roi, unsigned long long* sum, unsigned long long* squares) \
    { \
        return sum_squares(src, srcStep, roi, sum, squares); \
    }
#define MEAN_AND_DEVIATION(name, T) \
    Status name(const T* src, int srcStep, Size roi, double* first, double* second) \
    { \
        return mean_deviation(src, srcStep, roi, first, second); \
    }

RESULTS(Sum_8u_C1R, uint8_t, 1, sum)
RESULTS(Sum_8u_C3R, uint8_t, 3, sum)
RESULTS(Sum_8u_C4R, uint8_t, 4, sum)
RESULTS(Sum_16u_C1R, uint16_t, 1, sum)
RESULTS(Sum_16s_C1R, int16_t, 1, sum)

RESULTS(Mean_8u_C1R, uint8_t, 1, mean)
RESULTS(Mean_8u_C3R, uint8_t, 3, mean)
RESULTS(Mean_8u_C4R, uint8_t, 4, mean)
RESULTS(Mean_16u_C1R, uint16_t, 1, mean)
RESULTS(Mean_16s_C1R, int16_t, 1, mean)

MEAN_AND_DEVIATION(Mean_StdDev_8u_C1R, uint8_t)
MEAN_AND_DEVIATION(Mean_StdDev_16u_C1R, uint16_t)

SUM_SQUARES(SumSquares_8u_C1, uint8_t)
SUM_SQUARES(SumSquares_16u_C1, uint16_t)

Status Deviation(unsigned long long pixels, unsigned long long sum, unsigned long long squares, double* mean,
                 double* deviation)
{
    if (pixels < 1) return StatusBadSize;
    const FloatControl control;
    put_deviation(from_unsigned(pixels), sum, squares, mean, deviation);
    return StatusOk;
}

}  // namespace ORV_LEVEL
}  // namespace sums
}  // namespace orv
