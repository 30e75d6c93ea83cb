#include "image/statistics/extremes.h"

#include <cstdint>
#include <cstring>
#include <type_traits>

#include "core/checks.h"
#include "core/float_control.h"
#include "core/nan.h"
#include "elementwise/extremes.h"

namespace orv {
namespace extremes {
namespace ORV_LEVEL {
namespace {

using std::int16_t;
using std::ptrdiff_t;
using std::uint16_t;
using std::uint32_t;
using std::uint8_t;

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
