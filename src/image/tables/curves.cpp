#include "image/tables/curves.h"

#include "core/float_control.h"
#include "core/memory.h"
#include "image/tables/byte_table.h"
#include "image/tables/lookup_rows.h"

namespace orv {
namespace curves {
namespace ORV_LEVEL {
namespace {

using std::int32_t;
using std::ptrdiff_t;
using std::uint16_t;
using std::uint32_t;
using std::uint8_t;

// The last level that is not above x, for x from the first level to below the last.
template <class S>
ORV_INLINE ptrdiff_t segment_of(const S* levels, ptrdiff_t n, S x)
{
    ptrdiff_t k = 0;
    for (ptrdiff_t left = n - 1; left > 1;) {
        const ptrdiff_t half = left / 2;
        if (get(levels + k + half) <= x) k += half;
        left -= half;
    }
    return k;
}

// --- Integers -------------------------------------------------------------------------------------

// One line: values are first + (or -) rise * (x - start) / run, to the nearest integer, ties to even.
struct Line {
    uint32_t start, run, first, rise;
    bool falls;

    // At the value itself nothing is left over; products stay below 2^32, doubled remainders below 2^17.
    ORV_INLINE uint32_t at(uint32_t x) const
    {
        const uint32_t product = (x - start) * rise;
        const uint32_t whole = product / run, twice_rest = 2 * (product % run);
        const uint32_t value = falls ? first - whole : first + whole;
        const uint32_t further = twice_rest > run || (twice_rest == run && (value & 1) != 0) ? 1 : 0;
        return falls ? value - further : value + further;
    }
};

template <class S, class D>
struct Curve {
    const S* levels;
    const D* values;
    ptrdiff_t n;

    ORV_INLINE Line line(ptrdiff_t k) const
    {
        const uint32_t start = get(levels + k), end = get(levels + k + 1);
        const uint32_t first = get(values + k), last = get(values + k + 1);
        return {start, end - start, first, first < last ? last - first : first - last, last < first};
    }
    ORV_INLINE D at(S x) const
    {
        if (x < get(levels)) return get(values);
        if (x >= get(levels + n - 1)) return get(values + n - 1);
        return static_cast<D>(line(segment_of(levels, n, x)).at(x));
    }

    // Every value of S. Line by line: no search.
    void fill(D* table) const
    {
        constexpr uint32_t count = uint32_t{1} << (8 * sizeof(S));
        const uint32_t first = get(levels), last = get(levels + n - 1);
        for (uint32_t x = 0; x < first; ++x) table[x] = get(values);
        for (ptrdiff_t k = 0; k < n - 1; ++k) {
            const Line part = line(k);
            for (uint32_t x = part.start; x < part.start + part.run; ++x) table[x] = static_cast<D>(part.at(x));
        }
        for (uint32_t x = last; x < count; ++x) table[x] = get(values + n - 1);
    }
};

// Levels of integers ascend within their range, so this ends before it could run past them.
template <class S>
bool ascend(const S* levels, ptrdiff_t n)
{
    for (ptrdiff_t k = 1; k < n; ++k) {
        if (!(get(levels + k - 1) < get(levels + k))) return false;
    }
    return true;
}

template <class S, class D>
Status check_curve(const S* src, const S* levels, const D* values, int levelCount, const D* dst, Size roi)
{
    if (const Status bad = check_image(roi, src, levels, values, dst)) return bad;
    return levelCount < 2 ? StatusBadLevelCount : StatusOk;
}

template <class S, class D>
void curve_without_table(const S* src, int srcStep, Curve<S, D> curve, D* dst, int dstStep, Size roi)
{
    for (int y = 0; y < roi.height; ++y) {
        const S* const s = row_at(src, srcStep, y);
        D* const d = row_at(dst, dstStep, y);
        for (ptrdiff_t x = 0; x < roi.width; ++x) put(d + x, curve.at(get(s + x)));
    }
}

// A table of 65536 entries pays where there are at least as many pixels.
template <class D>
Status curve_of_words(const uint16_t* src, int srcStep, const uint16_t* levels, const D* values, int levelCount, D* dst,
                      int dstStep, Size roi)
{
    if (const Status bad = check_curve(src, levels, values, levelCount, dst, roi)) return bad;
    if (!ascend(levels, levelCount)) return StatusBadLevels;
    const Curve<uint16_t, D> curve = {levels, values, levelCount};
    constexpr int kEntries = 65536;
    D* const table = std::int64_t{roi.width} * roi.height < kEntries
                         ? nullptr
                         : static_cast<D*>(orv_allocate(kEntries * static_cast<int>(sizeof(D))));
    if (table == nullptr) {
        curve_without_table(src, srcStep, curve, dst, dstStep, roi);
        return StatusOk;
    }
    curve.fill(table);
    lookup_plane(src, srcStep, table, dst, dstStep, roi);
    orv_release(table);
    return StatusOk;
}

// --- Floats ---------------------------------------------------------------------------------------

ORV_INLINE uint32_t bits_at(const float* p) { return get(reinterpret_cast<const uint32_t*>(p)); }
ORV_INLINE bool is_finite(uint32_t bits) { return (bits & 0x7F800000) != 0x7F800000; }
constexpr uint32_t kNan = 0x7FC00000;

bool all_finite(const float* p, ptrdiff_t n)
{
    for (ptrdiff_t k = 0; k < n; ++k) {
        if (!is_finite(bits_at(p + k))) return false;
    }
    return true;
}

struct FloatCurve {
    const float* levels;
    const float* values;
    ptrdiff_t n;

    // Bits in, bits out. In double the differences of floats neither overflow nor become subnormal, nor do
    // their quotients and products.
    ORV_INLINE uint32_t at(uint32_t bits) const
    {
        float x;
        __builtin_memcpy(&x, &bits, sizeof(x));
        if (x != x) return kNan;
        if (x < get(levels)) return bits_at(values);
        if (x >= get(levels + n - 1)) return bits_at(values + n - 1);
        const ptrdiff_t k = segment_of(levels, n, x);
        const double start = static_cast<double>(get(levels + k)), first = static_cast<double>(get(values + k));
        const double run = rounded(static_cast<double>(get(levels + k + 1)) - start);
        const double rise = rounded(static_cast<double>(get(values + k + 1)) - first);
        const double above = rounded(rounded(rise / run) * rounded(static_cast<double>(x) - start));
        const float result = rounded(static_cast<float>(rounded(first + above)));
        uint32_t result_bits;
        __builtin_memcpy(&result_bits, &result, sizeof(result));
        return result_bits;
    }
};

}  // namespace

// --- Kernels --------------------------------------------------------------------------------------

Status LUT_Linear_8u_C1(const uint8_t* src, int srcStep, const uint8_t* levels, const uint8_t* values, int levelCount,
                        uint8_t* dst, int dstStep, Size roi)
{
    if (const Status bad = check_curve(src, levels, values, levelCount, dst, roi)) return bad;
    if (!ascend(levels, levelCount)) return StatusBadLevels;
    uint8_t table[256];
    Curve<uint8_t, uint8_t>{levels, values, levelCount}.fill(table);
    lookup_bytes(src, srcStep, table, dst, dstStep, roi, 1);
    return StatusOk;
}
Status LUT_Linear_16u_C1(const uint16_t* src, int srcStep, const uint16_t* levels, const uint16_t* values, int levelCount,
                         uint16_t* dst, int dstStep, Size roi)
{
    return curve_of_words(src, srcStep, levels, values, levelCount, dst, dstStep, roi);
}
Status LUT_Linear_16u8u_C1(const uint16_t* src, int srcStep, const uint16_t* levels, const uint8_t* values, int levelCount,
                           uint8_t* dst, int dstStep, Size roi)
{
    return curve_of_words(src, srcStep, levels, values, levelCount, dst, dstStep, roi);
}
Status LUT_Linear_32f_C1(const float* src, int srcStep, const float* levels, const float* values, int levelCount,
                         float* dst, int dstStep, Size roi)
{
    if (const Status bad = check_curve(src, levels, values, levelCount, dst, roi)) return bad;
    if (!all_finite(levels, levelCount) || !all_finite(values, levelCount)) return StatusBadLevels;
    const FloatControl control;
    if (!ascend(levels, levelCount)) return StatusBadLevels;
    const FloatCurve curve = {levels, values, levelCount};
    for (int y = 0; y < roi.height; ++y) {
        const auto* const s = reinterpret_cast<const uint32_t*>(row_at(src, srcStep, y));
        auto* const d = reinterpret_cast<uint32_t*>(row_at(dst, dstStep, y));
        for (ptrdiff_t x = 0; x < roi.width; ++x) put(d + x, curve.at(get(s + x)));
    }
    return StatusOk;
}

}  // namespace ORV_LEVEL
}  // namespace curves
}  // namespace orv
