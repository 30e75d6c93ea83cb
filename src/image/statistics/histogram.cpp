#include "image/statistics/histogram.h"

#include <cstdint>

#include <cstring>
#include <limits>

#include "core/checks.h"
#include "core/memory.h"

namespace orv {
namespace histogram {
namespace ORV_LEVEL {
namespace {

using std::int64_t;
using std::ptrdiff_t;
using std::uint16_t;
using std::uint32_t;
using std::uint64_t;
using std::uint8_t;

// --- Levels ---------------------------------------------------------------------------------------

// Levels that rise: `longer` steps of step + 1 from `lower` on, then steps of `step`.
struct Levels {
    int64_t lower, upper;
    int64_t bins, step, longer;

    Levels(int levelCount, int from, int to)
        : lower(from), upper(to), bins(levelCount - 1), step((upper - lower) / bins), longer((upper - lower) % bins)
    {
    }
    // The bin of a value from lower to upper - 1.
    int64_t bin_of(int64_t value) const
    {
        const int64_t above = value - lower;
        return above < longer * (step + 1) ? above / (step + 1) : (above - longer) / step;
    }
    int64_t level(int64_t k) const { return lower + k * step + (k < longer ? k : longer); }
};

// A negative distance is divided toward zero, and its rest spread with its own sign.
void write_levels(const Levels& l, int* levels)
{
    const int64_t extra = l.longer < 0 ? -1 : 1;
    const int64_t longer = l.longer * extra;
    int64_t level = l.lower;
    for (int64_t k = 0; k <= l.bins; ++k) {
        put(levels + k, static_cast<int>(level));
        level += l.step + (k < longer ? extra : 0);
    }
}

// --- Counting -------------------------------------------------------------------------------------
//
// Equal neighbours would wait for each other's count to be stored, so consecutive pixels count in
// different tables.

constexpr int kTables = 4;

ORV_INLINE void count_four(uint32_t* tables, ptrdiff_t size, uint32_t a, uint32_t b, uint32_t c, uint32_t d)
{
    ++tables[a];
    ++tables[size + b];
    ++tables[2 * size + c];
    ++tables[3 * size + d];
}

void count_row(const uint8_t* p, ptrdiff_t n, uint32_t (&tables)[kTables * 256])
{
    ptrdiff_t i = 0;
    for (; i + 8 <= n; i += 8) {
        // Two pixels at a time: a table access for each keeps the load ports busy enough.
        const uint16_t* const pairs = reinterpret_cast<const uint16_t*>(p + i);
        const uint32_t a = get(pairs), b = get(pairs + 1), c = get(pairs + 2), d = get(pairs + 3);
        count_four(tables, 256, a & 255, a >> 8, b & 255, b >> 8);
        count_four(tables, 256, c & 255, c >> 8, d & 255, d >> 8);
    }
    for (; i < n; ++i) ++tables[p[i]];
}

// Every value is counted; bins are then sums over their values.
void count(const uint8_t* src, int srcStep, Size roi, const Levels& l, int* histogram)
{
    uint32_t tables[kTables * 256] = {};
    for (int y = 0; y < roi.height; ++y) count_row(row_at(src, srcStep, y), roi.width, tables);
    if (l.lower >= 256 || l.upper <= 0) return;
    int value = static_cast<int>(l.lower < 0 ? 0 : l.lower);
    const int last = static_cast<int>(l.upper > 256 ? 256 : l.upper);
    for (int64_t k = l.bin_of(value); value < last; ++k) {
        const int64_t next = l.level(k + 1);
        uint32_t pixels = 0;
        for (; value < next && value < last; ++value) {
            pixels += tables[value] + tables[256 + value] + tables[512 + value] + tables[768 + value];
        }
        put(histogram + k, static_cast<int>(pixels));
    }
}

// 16-bit values have too many values for that: a table holds the place of each one's bin among the bins
// that can hold pixels; all other values share one place behind them.
struct Places {
    int64_t first_bin, bins;
    int first, last;  // the values that are counted: first to last - 1

    explicit Places(const Levels& l)
    {
        first = static_cast<int>(l.lower < 0 ? 0 : l.lower);
        last = static_cast<int>(l.upper > 65536 ? 65536 : l.upper);
        first_bin = l.bin_of(first);
        bins = l.bin_of(last - 1) - first_bin + 1;
    }
};

// The places of values that lie in bins of one width, the first value being the first of bin `k`.
void fill_bins(uint16_t* place, int first, int last, int64_t k, int64_t width)
{
    constexpr int kWide = 16;
    if (width >= kWide) {
        for (int value = first; value < last; ++k) {
            const int end = width < last - value ? value + static_cast<int>(width) : last;
            for (const uint16_t bin = static_cast<uint16_t>(k); value < end; ++value) place[value] = bin;
        }
        return;
    }
    // Division by multiplication: exact, since the error of the factor times 2^16 stays below 1.
    const uint64_t factor = 0x100000000u / static_cast<uint64_t>(width) + 1;
    for (int value = first; value < last; ++value) {
        place[value] =
            static_cast<uint16_t>(static_cast<uint64_t>(k) + (static_cast<uint64_t>(value - first) * factor >> 32));
    }
}

void fill_places(const Levels& l, const Places& places, uint16_t* place)
{
    const uint16_t outside = static_cast<uint16_t>(places.bins);
    for (int value = 0; value < places.first; ++value) place[value] = outside;
    for (int value = places.last; value < 65536; ++value) place[value] = outside;
    // The first bin may begin below the first value.
    const int64_t start = l.level(places.first_bin + 1) < places.last ? l.level(places.first_bin + 1) : places.last;
    for (int value = places.first; value < start; ++value) place[value] = 0;
    const int64_t turn = l.lower + l.longer * (l.step + 1);  // bins are one shorter from here
    const int64_t middle = turn < start ? start : turn > places.last ? places.last : turn;
    fill_bins(place, static_cast<int>(start), static_cast<int>(middle), 1, l.step + 1);
    if (middle == places.last) return;
    const int64_t k = l.bin_of(middle) - places.first_bin;
    fill_bins(place, static_cast<int>(middle), places.last, k, l.step);
}

void count_row(const uint16_t* p, ptrdiff_t n, const uint16_t* place, uint32_t* tables, ptrdiff_t size)
{
    ptrdiff_t i = 0;
    for (; i + 4 <= n; i += 4) {
        count_four(tables, size, place[get(p + i)], place[get(p + i + 1)], place[get(p + i + 2)],
                   place[get(p + i + 3)]);
    }
    for (; i < n; ++i) ++tables[place[get(p + i)]];
}

// With many bins the table of places would only add to what the cache must hold: values are counted, and
// their counts added up.
void count_values(const uint16_t* src, int srcStep, Size roi, const Levels& l, const Places& places, uint32_t* table,
                  int* histogram)
{
    std::memset(table, 0, 65536 * sizeof(uint32_t));
    for (int y = 0; y < roi.height; ++y) {
        const uint16_t* const row = row_at(src, srcStep, y);
        int x = 0;
        for (; x + 4 <= roi.width; x += 4) {
            const uint32_t a = get(row + x), b = get(row + x + 1), c = get(row + x + 2), d = get(row + x + 3);
            // Among so many values neighbours are all alike, or hardly ever.
            if (((a ^ b) | (a ^ c) | (a ^ d)) == 0) table[a] += 4;
            else count_four(table, 0, a, b, c, d);
        }
        for (; x < roi.width; ++x) ++table[get(row + x)];
    }
    int value = places.first;
    int64_t next = l.level(places.first_bin + 1);
    for (int64_t k = places.first_bin; value < places.last; ++k) {
        uint32_t pixels = 0;
        for (; value < next && value < places.last; ++value) pixels += table[value];
        put(histogram + k, static_cast<int>(pixels));
        next += l.step + (k + 1 < l.longer ? 1 : 0);
    }
}

void count_directly(const uint16_t* src, int srcStep, Size roi, const Levels& l, int* histogram)
{
    for (int y = 0; y < roi.height; ++y) {
        const uint16_t* const row = row_at(src, srcStep, y);
        for (int x = 0; x < roi.width; ++x) {
            const int value = get(row + x);
            if (value < l.lower || value >= l.upper) continue;
            int* const bin = histogram + l.bin_of(value);
            put(bin, static_cast<int>(static_cast<uint32_t>(get(bin)) + 1));
        }
    }
}

void count(const uint16_t* src, int srcStep, Size roi, const Levels& l, int* histogram)
{
    if (l.lower >= 65536 || l.upper <= 0) return;
    const Places places(l);
    const int64_t pixels = int64_t{roi.width} * roi.height;
    const ptrdiff_t size = static_cast<ptrdiff_t>(places.bins) + 1;
    const bool many_bins = places.bins > 4096;
    const int64_t table_bytes = many_bins ? 65536 * 4 : int64_t{size} * kTables * 4;
    // Tables longer than the image cost more than they save.
    void* const memory =
        pixels < 2048 || pixels < places.bins / 4 ? nullptr : orv_allocate_checked(65536 * 2 + table_bytes);
    if (memory == nullptr) return count_directly(src, srcStep, roi, l, histogram);

    uint32_t* const tables = static_cast<uint32_t*>(memory);
    if (many_bins) {
        count_values(src, srcStep, roi, l, places, tables, histogram);
    } else {
        uint16_t* const place = reinterpret_cast<uint16_t*>(tables + size * kTables);
        std::memset(tables, 0, static_cast<std::size_t>(table_bytes));
        fill_places(l, places, place);
        for (int y = 0; y < roi.height; ++y) count_row(row_at(src, srcStep, y), roi.width, place, tables, size);
        for (ptrdiff_t k = 0; k < size - 1; ++k) {
            const uint32_t sum = tables[k] + tables[size + k] + tables[2 * size + k] + tables[3 * size + k];
            put(histogram + places.first_bin + k, static_cast<int>(sum));
        }
    }
    orv_release(memory);
}

template <class T>
Status even(const T* src, int srcStep, Size roi, int* histogram, int* levels, int levelCount, int lower, int upper)
{
    if (const Status bad = check_image(roi, src, histogram, levels)) return bad;
    if (srcStep < 1 || srcStep < int64_t{roi.width} * static_cast<int64_t>(sizeof(T))) return StatusBadStep;
    if (levelCount < 2) return StatusBadLevelCount;
    const Levels l(levelCount, lower, upper);
    write_levels(l, levels);
    std::memset(histogram, 0, static_cast<std::size_t>(l.bins) * sizeof(int));
    if (lower < upper) count(src, srcStep, roi, l, histogram);
    return StatusOk;
}

}  // namespace

Status HistogramEven_8u_C1(const uint8_t* src, int srcStep, Size roi, int* histogram, int* levels, int levelCount,
                           int lower, int upper)
{
    return even(src, srcStep, roi, histogram, levels, levelCount, lower, upper);
}

Status HistogramEven_16u_C1(const uint16_t* src, int srcStep, Size roi, int* histogram, int* levels, int levelCount,
                            int lower, int upper)
{
    return even(src, srcStep, roi, histogram, levels, levelCount, lower, upper);
}

}  // namespace ORV_LEVEL
}  // namespace histogram
}  // namespace orv
