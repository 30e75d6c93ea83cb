#include "image/tables/curves.h"

#include "core/float_control.h"
#include "core/memory.h"
#include "core/nan.h"
#include "image/tables/byte_table.h"
#include "image/tables/lookup_rows.h"
#include "simd/conversion.h"
#include "simd/gathers.h"

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

#if ORV_HAVE_INT256
// The values of a line, some at a time: those beyond its end belong to the next one, which comes later. Quotients of
// doubles below 2^34: halves are exact, and all others farther from them than the division's rounding.
template <class D>
void fill_line(const Line& line, D* table)
{
    using Doubles = simd::widest<double>;
    using Pair = simd::pair<Doubles>;
    static const double places[8] = {0, 1, 2, 3, 4, 5, 6, 7};
    Pair place;
    simd::load_to(place, places);
    const Doubles run = simd::splat<Doubles>(line.run),
                  base = simd::splat<Doubles>(static_cast<double>(line.first) * line.run);
    const Doubles rise = simd::splat<Doubles>(line.falls ? -static_cast<double>(line.rise) : line.rise);
    const auto eight_from = [&](uint32_t i) {
        const Doubles from = simd::splat<Doubles>(i);
        const auto quotient = [&](Doubles lane) { return (base + rise * (from + lane)) / run; };
        return simd::round_to_int(Pair{quotient(place.lo), quotient(place.hi)});
    };
    D* const to = table + line.start;
    if constexpr (sizeof(D) == 2) {
        for (uint32_t i = 0; i < line.run; i += 16) simd::store(to + i, simd::pack(eight_from(i), eight_from(i + 8)));
    } else {
        for (uint32_t i = 0; i < line.run; i += 32) {
            simd::store(to + i, simd::pack(eight_from(i), eight_from(i + 8), eight_from(i + 16), eight_from(i + 24)));
        }
    }
}
#else
template <class D>
void fill_line(const Line& line, D* table)
{
    for (uint32_t x = line.start; x < line.start + line.run; ++x) table[x] = static_cast<D>(line.at(x));
}
#endif

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

    // Every value of S, line by line: no search. Entries behind the table, up to kBeyond, may be written.
    static constexpr int kBeyond = 32;
    void fill(D* table) const
    {
        constexpr uint32_t count = uint32_t{1} << (8 * sizeof(S));
        const uint32_t first = get(levels), last = get(levels + n - 1);
        for (uint32_t x = 0; x < first; ++x) table[x] = get(values);
        for (ptrdiff_t k = 0; k < n - 1; ++k) {
            fill_line(line(k), table);
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

// A table of 65536 entries pays where there are a quarter as many pixels.
template <class D>
Status curve_of_words(const uint16_t* src, int srcStep, const uint16_t* levels, const D* values, int levelCount, D* dst,
                      int dstStep, Size roi)
{
    if (const Status bad = check_curve(src, levels, values, levelCount, dst, roi)) return bad;
    if (!ascend(levels, levelCount)) return StatusBadLevels;
    const Curve<uint16_t, D> curve = {levels, values, levelCount};
    constexpr int kEntries = 65536, kBytes = (kEntries + Curve<uint16_t, D>::kBeyond) * static_cast<int>(sizeof(D));
    const bool many = std::int64_t{roi.width} * roi.height >= kEntries / 4;
    D* const table = many ? static_cast<D*>(orv_allocate(kBytes)) : nullptr;
    if (table == nullptr) {
        curve_without_table(src, srcStep, curve, dst, dstStep, roi);
        return StatusOk;
    }
    const FloatControl control;
    curve.fill(table);
    lookup_plane(src, srcStep, table, dst, dstStep, roi);
    orv_release(table);
    return StatusOk;
}

// --- Floats ---------------------------------------------------------------------------------------

ORV_INLINE uint32_t bits_at(const float* p) { return get(reinterpret_cast<const uint32_t*>(p)); }
ORV_INLINE bool is_finite(uint32_t bits) { return (bits & 0x7F800000) != 0x7F800000; }

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

    double level(ptrdiff_t k) const { return static_cast<double>(get(levels + k)); }
    double value(ptrdiff_t k) const { return static_cast<double>(get(values + k)); }
    double slope(ptrdiff_t k) const
    {
        return rounded(rounded(value(k + 1) - value(k)) / rounded(level(k + 1) - level(k)));
    }

    // Bits in, bits out. In double the differences of floats neither overflow nor become subnormal, nor do
    // their quotients and products.
    ORV_INLINE uint32_t at(uint32_t bits) const
    {
        float x;
        __builtin_memcpy(&x, &bits, sizeof(x));
        if (x != x) return kPlainNan;
        if (x < get(levels)) return bits_at(values);
        if (x >= get(levels + n - 1)) return bits_at(values + n - 1);
        const ptrdiff_t k = segment_of(levels, n, x);
        const double above = rounded(slope(k) * rounded(static_cast<double>(x) - level(k)));
        const float result = rounded(static_cast<float>(rounded(value(k) + above)));
        uint32_t result_bits;
        __builtin_memcpy(&result_bits, &result, sizeof(result));
        return result_bits;
    }
};

void curve_row(const FloatCurve& curve, const float* src, float* dst, ptrdiff_t n)
{
    const auto* const from = reinterpret_cast<const uint32_t*>(src);
    auto* const to = reinterpret_cast<uint32_t*>(dst);
    for (ptrdiff_t x = 0; x < n; ++x) put(to + x, curve.at(get(from + x)));
}

#if ORV_HAVE_INT256
// The lines of a curve in tables of doubles, and eight pixels at a time.
class FloatLines {
public:
    static constexpr int kMost = 256;
    using Floats = simd::widest<float>;
    using Ints = simd::ints_of<Floats>;
    using Pair = simd::pair<simd::widest<double>>;

    explicit FloatLines(const FloatCurve& curve) : curve_(curve)
    {
        for (int k = 0; k < curve.n - 1; ++k) {
            start_[k] = curve.level(k);
            first_[k] = curve.value(k);
            slope_[k] = curve.slope(k);
        }
    }
    ORV_INLINE void row(const float* src, float* dst, ptrdiff_t n) const
    {
        constexpr int N = Floats::N;
        if (n < N) return curve_row(curve_, src, dst, n);
        full_vectors<N>(
            n, [=](ptrdiff_t i) { return at(simd::load<Floats>(src + i)); },
            [=](ptrdiff_t i, Floats v) { simd::store(dst + i, v); });
    }

private:
    ORV_INLINE Floats splat(const float* p) const { return simd::splat<Floats>(get(p)); }

    ORV_INLINE Floats at(Floats x) const
    {
        const Ints k = curve_.n <= 16 ? segment_by_counting(x) : segment_by_halving(x);
        const Pair above = simd::to_double(x) - simd::looked_up(start_, k), slope = simd::looked_up(slope_, k);
        const Floats value =
            simd::to_float(simd::looked_up(first_, k) + Pair{slope.lo * above.lo, slope.hi * above.hi});
        const float* const last_level = curve_.levels + curve_.n - 1;
        const Floats to_end =
            simd::select(simd::greater_equal(x, splat(last_level)), splat(curve_.values + curve_.n - 1), value);
        const Floats bounded = simd::select(simd::greater(splat(curve_.levels), x), splat(curve_.values), to_end);
        return simd::select(simd::unordered(x, x), simd::splat<Floats>(__builtin_nanf("")), bounded);
    }
    static ORV_INLINE Ints bits_of(simd::mask_of<Floats> mask)
    {
        return simd::as<std::int32_t>(simd::bits(simd::ones_where<Floats>(mask)));
    }

    // How many levels after the first and before the last are not above x.
    ORV_INLINE Ints segment_by_counting(Floats x) const
    {
        Ints k = simd::zero<Ints>();
        for (ptrdiff_t i = 1; i < curve_.n - 1; ++i) k = k - bits_of(simd::greater_equal(x, splat(curve_.levels + i)));
        return k;
    }
    ORV_INLINE Ints segment_by_halving(Floats x) const
    {
        Ints k = simd::zero<Ints>();
        for (int left = static_cast<int>(curve_.n) - 1; left > 1;) {
            const Ints half = simd::splat<Ints>(left / 2);
            const Floats level = simd::looked_up(curve_.levels, k + half);
            k = k + (half & bits_of(simd::greater_equal(x, level)));
            left -= left / 2;
        }
        return k;
    }

    FloatCurve curve_;
    double start_[kMost], first_[kMost], slope_[kMost];
};
#endif

void curve_of_floats(const float* src, int srcStep, const FloatCurve& curve, float* dst, int dstStep, Size roi)
{
#if ORV_HAVE_INT256
    // Slopes of all lines are as much work as some pixels.
    if (curve.n <= FloatLines::kMost && std::int64_t{roi.width} * roi.height >= curve.n) {
        const FloatLines lines(curve);
        const Rows rows(roi, 1, sizeof(float), srcStep, dstStep);
        for (int y = 0; y < rows.count; ++y) lines.row(row_at(src, srcStep, y), row_at(dst, dstStep, y), rows.n);
        return;
    }
#endif
    for (int y = 0; y < roi.height; ++y) curve_row(curve, row_at(src, srcStep, y), row_at(dst, dstStep, y), roi.width);
}

}  // namespace

// --- Kernels --------------------------------------------------------------------------------------

Status LUT_Linear_8u_C1(const uint8_t* src, int srcStep, const uint8_t* levels, const uint8_t* values, int levelCount,
                        uint8_t* dst, int dstStep, Size roi)
{
    if (const Status bad = check_curve(src, levels, values, levelCount, dst, roi)) return bad;
    if (!ascend(levels, levelCount)) return StatusBadLevels;
    const FloatControl control;
    using BytesCurve = Curve<uint8_t, uint8_t>;
    uint8_t table[256 + BytesCurve::kBeyond];
    BytesCurve{levels, values, levelCount}.fill(table);
    lookup_bytes(src, srcStep, table, dst, dstStep, roi, 1);
    return StatusOk;
}
Status LUT_Linear_16u_C1(const uint16_t* src, int srcStep, const uint16_t* levels, const uint16_t* values,
                         int levelCount, uint16_t* dst, int dstStep, Size roi)
{
    return curve_of_words(src, srcStep, levels, values, levelCount, dst, dstStep, roi);
}
Status LUT_Linear_16u8u_C1(const uint16_t* src, int srcStep, const uint16_t* levels, const uint8_t* values,
                           int levelCount, uint8_t* dst, int dstStep, Size roi)
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
    curve_of_floats(src, srcStep, {levels, values, levelCount}, dst, dstStep, roi);
    return StatusOk;
}

}  // namespace ORV_LEVEL
}  // namespace curves
}  // namespace orv
