#include "image/statistics/float_sums.h"

#include <cstdint>
#include <cstring>
#include <limits>

#include "core/checks.h"
#include "core/float_control.h"
#include "core/nan.h"
#include "elementwise/rows.h"
#include "simd/conversion.h"

namespace orv {
namespace float_sums {
namespace ORV_LEVEL {
namespace {

using std::int64_t;
using std::ptrdiff_t;
using std::uint32_t;
using std::uint64_t;

// The running sums: element i of a row goes to sum[i % (2 channels)], so each channel has one for even and
// one for odd columns. Additions are made in this order, or where any order gives the same bits.
template <int channels>
struct RunningSums {
    static constexpr int kSums = 2 * channels;
    double sum[kSums] = {};
};

// Rows to be added up together: n elements each.
struct Band {
    const float* first;
    int step;
    int rows;
    ptrdiff_t n;
};

// In the order in which they stand.
template <int channels>
void add_in_order(const Band& band, RunningSums<channels>& sums)
{
    constexpr int kSums = 2 * channels;
    using V = simd::half<double>;
    constexpr int kVectors = kSums / V::N;
    V local[kVectors];
    for (int k = 0; k < kVectors; ++k) local[k] = simd::load<V>(sums.sum + k * V::N);
    for (int y = 0; y < band.rows; ++y) {
        const float* const row = row_at(band.first, band.step, y);
        ptrdiff_t i = 0;
        for (; i <= band.n - kSums; i += kSums) {
            for (int k = 0; k < kVectors; ++k) local[k] = local[k] + simd::load_as<V>::from(row + i + k * V::N);
        }
        if (i == band.n) continue;
        // A last even column.
        double stored[kSums];
        for (int k = 0; k < kVectors; ++k) simd::store(stored + k * V::N, local[k]);
        for (int s = 0; s < channels; ++s) stored[s] += static_cast<double>(get(row + i + s));
        for (int k = 0; k < kVectors; ++k) local[k] = simd::load<V>(stored + k * V::N);
    }
    for (int k = 0; k < kVectors; ++k) simd::store(sums.sum + k * V::N, local[k]);
}

#if ORV_HAVE_VECTORS
// --- Any order, where it gives the same bits --------------------------------------------------------
//
// Adding in one fixed order waits for every addition. But if the elements of a band and the running sums
// are all multiples of some q = 2^e, and no partial sum exceeds 2^53 q, then every addition is exact in any
// order, and the order does not matter.
//
// The proof costs next to nothing. An accumulator that starts as 1.5 * 2^52 q (in float: 1.5 * 2^23 q), and
// to which less than a third of that is added, holds exactly the multiples of q: each addition rounds unless
// the element is one. Whether any did, the processor has noted in its inexact flag. The magnitudes are
// bounded by the largest one, found before.
//
// Elements are first added up in float, which suits data that were integers of 8 or 16 bits; then in
// double, which suits nearly everything whose magnitudes are not too far apart; then in order.

// Accumulators.
struct Floats {
    using V = simd::widest<float>;
    static constexpr int N = V::N;
    V v;
    static ORV_INLINE Floats splat(float x) { return {simd::splat<V>(x)}; }
    ORV_INLINE void store(float* p) const { simd::store(p, v); }
    ORV_INLINE void add(const float* p) { v = v + simd::load<V>(p); }
    ORV_INLINE void keep_largest(const float* p) { v = simd::max(v, simd::magnitude(simd::load<V>(p))); }
    ORV_INLINE void keep_larger(Floats other) { v = simd::max(v, other.v); }
};
struct Doubles {
    using V = simd::widest<double>;
    static constexpr int N = V::N;
    V v;
    static ORV_INLINE Doubles splat(double x) { return {simd::splat<V>(x)}; }
    ORV_INLINE void store(double* p) const { simd::store(p, v); }
    ORV_INLINE void add(const float* p) { v = v + simd::load_as<V>::from(p); }
    ORV_INLINE void add(Doubles other) { v = v + other.v; }
};

// Whether an addition was rounded. The flags of the caller stay as they are. Additions must not move out of
// the watch, so their operands and results pass through fence().
class InexactWatch {
public:
    ORV_INLINE InexactWatch() : control_(_mm_getcsr()) { _mm_setcsr(control_ & ~kInexact); }
    ORV_INLINE ~InexactWatch() { _mm_setcsr(control_); }
    InexactWatch(const InexactWatch&) = delete;
    InexactWatch& operator=(const InexactWatch&) = delete;
    ORV_INLINE bool seen() const { return (_mm_getcsr() & kInexact) != 0; }

    template <class V>
    static ORV_INLINE void fence(V& vector)
    {
        __asm__ volatile("" : "+x"(vector.v) : : "memory");
    }

private:
    static constexpr unsigned kInexact = 0x20;
    unsigned control_;
};

// Powers of two, by their exponent.
ORV_INLINE double power(int e)
{
    const uint64_t bits = static_cast<uint64_t>(1023 + e) << 52;
    double value;
    std::memcpy(&value, &bits, sizeof(value));
    return value;
}
// The exponent of a positive finite number: value < 2^(exponent + 1).
ORV_INLINE int exponent_of(double value)
{
    ORV_ASSERT(value > 0 && value - value == 0);
    uint64_t bits;
    std::memcpy(&bits, &value, sizeof(bits));
    return static_cast<int>(bits >> 52) - 1023;
}

template <int channels>
class AnyOrder {
public:
    static constexpr int kSums = 2 * channels;
    // Accumulators hide the latency of the addition; with three channels they come round after three.
    static constexpr int kPeriod = channels == 3 ? 3 : 1;
    static constexpr int kVectors = (channels == 3 ? 3 : 4) * (sizeof(void*) == 8 ? 2 : 1);
    static constexpr int kShortStep = kPeriod * Floats::N;
    static constexpr int kHalves = Floats::N / Doubles::N;
    static constexpr int kStep = kVectors * Floats::N;
    static constexpr int kMostSteps = 64;  // of a band: 64 times 16 bits still fit the float's 22
    // The digits of a sum that its accumulator holds beside what it starts as; and where a band's sum ends, whose
    // elements are below 2^(e + 1): below 2^(e + kBandBits).
    static constexpr int kFloatDigits = 22, kDoubleDigits = 51, kBandBits = 7;

    // A row that is no longer than this stays within them.
    static constexpr ptrdiff_t kMostElements = ptrdiff_t{kMostSteps - kVectors / kPeriod} * kStep;

    // How often a row of n elements adds to one accumulator.
    static constexpr ptrdiff_t steps_of(ptrdiff_t n) { return n / kStep + (n % kStep + kShortStep - 1) / kShortStep; }

    void add(const Band& band, RunningSums<channels>& sums)
    {
        if (float_failed_ > 1 && double_failed_ > 1) {
            --float_failed_;
            --double_failed_;
            return add_in_order(band, sums);
        }
        const float found = largest_of(band);
        if (!(found <= std::numeric_limits<float>::max())) return add_in_order(band, sums);
        const float largest = found == 0 ? 1 : found;  // any bound will do for zeros
        const int e = exponent_of(static_cast<double>(largest));
        const ptrdiff_t steps = band.rows * steps_of(band.n);
        // 2^total bounds every partial sum: of the accumulators and of the running sums.
        double bound = power(e + 1) * static_cast<double>(steps * kStep);
        for (int s = 0; s < kSums; ++s) bound += sums.sum[s] < 0 ? -sums.sum[s] : sums.sum[s];
        if (bound < power(1000)) {
            const int total = exponent_of(bound) + 1;
            if (tried(float_failed_, [&] { return add_floats(band, e, total, sums); })) return;
            if (tried(double_failed_, [&] { return add_doubles(band, total, sums); })) return;
        }
        add_in_order(band, sums);
    }

private:
    // A way that failed is not tried on the next bands: they will be like this one.
    template <class Way>
    ORV_INLINE bool tried(int& failed, Way way)
    {
        constexpr int kPause = 16;
        if (failed > 0 && --failed > 0) return false;
        if (way()) return true;
        failed = kPause;
        return false;
    }

    // Calls use(p, k) for all vectors of the band, k being the accumulator. Zeros fill up the last ones.
    template <class Use>
    static ORV_INLINE void for_each(const Band& band, Use use)
    {
        const ptrdiff_t main = band.n - band.n % kStep;
        for (int y = 0; y < band.rows; ++y) {
            const float* p = row_at(band.first, band.step, y);
            const float* const end = p + band.n;
            for (const float* const main_end = p + main; p != main_end; p += kStep) {
                for (int k = 0; k < kVectors; ++k) use(p + k * Floats::N, k);
            }
            for (; end - p >= kShortStep; p += kShortStep) {
                for (int k = 0; k < kPeriod; ++k) use(p + k * Floats::N, k);
            }
            if (p == end) continue;
            float padded[kShortStep] = {};
            for (int i = 0; p + i != end; ++i) std::memcpy(padded + i, p + i, sizeof(float));
            for (int k = 0; k < kPeriod; ++k) use(padded + k * Floats::N, k);
        }
    }

    // A NaN may be passed over or hide others: it stays in the sums, where it is seen.
    static float largest_of(const Band& band)
    {
        Floats largest[kVectors];
        for (int k = 0; k < kVectors; ++k) largest[k] = Floats::splat(0);
        for_each(band, [&](const float* p, int k) { largest[k].keep_largest(p); });
        float lane[Floats::N];
        for (int k = 1; k < kVectors; ++k) largest[0].keep_larger(largest[k]);
        largest[0].store(lane);
        float most = 0;
        for (int i = 0; i < Floats::N; ++i) most = lane[i] > most ? lane[i] : most;
        return most;
    }

    // Elements in float accumulators, multiples of q; the running sums must be multiples of 2^(total - kDoubleDigits),
    // and that the finer of the two.
    static bool add_floats(const Band& band, int e, int total, RunningSums<channels>& sums)
    {
        const int q = e + kBandBits - kFloatDigits;
        if (e < -100 || e > 100 || q < total - kDoubleDigits) return false;
        const float start = static_cast<float>(power(q + kFloatDigits) * 3);
        Floats lanes[kVectors];
        bool exact = true;
        {
            const InexactWatch watch;
            for (int k = 0; k < kVectors; ++k) {
                lanes[k] = Floats::splat(start);
                InexactWatch::fence(lanes[k].v);
            }
            for_each(band, [&](const float* p, int k) { lanes[k].add(p); });
            for (int k = 0; k < kVectors; ++k) InexactWatch::fence(lanes[k].v);
            exact = !watch.seen();
        }
        if (!exact) return false;
        Doubles joined[kPeriod * kHalves];
        for (Doubles& j : joined) j = Doubles::splat(-static_cast<double>(start) * (kVectors / kPeriod));
        for (int k = 0; k < kVectors; ++k) {
            float lane[Floats::N];
            lanes[k].store(lane);
            for (int h = 0; h < kHalves; ++h) joined[k % kPeriod * kHalves + h].add(lane + h * Doubles::N);
        }
        return add_exactly(joined, total, sums);
    }

    // The same in double: multiples of 2^(total - kDoubleDigits).
    static bool add_doubles(const Band& band, int total, RunningSums<channels>& sums)
    {
        const double start = power(total) * 3;
        Doubles lanes[kVectors * kHalves];
        bool exact = true;
        {
            const InexactWatch watch;
            for (int k = 0; k < kVectors * kHalves; ++k) {
                lanes[k] = Doubles::splat(start);
                InexactWatch::fence(lanes[k].v);
            }
            for_each(band, [&](const float* p, int k) {
                for (int h = 0; h < kHalves; ++h) lanes[k * kHalves + h].add(p + h * Doubles::N);
            });
            for (int k = 0; k < kVectors * kHalves; ++k) InexactWatch::fence(lanes[k].v);
            exact = !watch.seen();
        }
        if (!exact) return false;
        Doubles joined[kPeriod * kHalves];
        for (Doubles& j : joined) j = Doubles::splat(0);
        for (int k = 0; k < kVectors * kHalves; ++k) {
            lanes[k].add(Doubles::splat(-start));
            joined[k % (kPeriod * kHalves)].add(lanes[k]);
        }
        return add_exactly(joined, total, sums);
    }

    // What the lanes hold goes to the running sums if those, too, are multiples of 2^(total - kDoubleDigits). Not if
    // there was a NaN.
    static bool add_exactly(const Doubles (&lanes)[kPeriod * kHalves], int total, RunningSums<channels>& sums)
    {
        double lane[kShortStep];
        for (int k = 0; k < kPeriod * kHalves; ++k) lanes[k].store(lane + k * Doubles::N);
        double sum[kSums] = {};
        for (int i = 0; i < kShortStep; ++i) sum[i % kSums] += lane[i];
        const double grid = power(total) * 3;
        for (int s = 0; s < kSums; ++s) {
            if (sum[s] != sum[s] || rounded(grid + sums.sum[s]) - grid != sums.sum[s]) return false;
        }
        for (int s = 0; s < kSums; ++s) sums.sum[s] += sum[s];
        return true;
    }

    int float_failed_ = 0, double_failed_ = 0;
};
#endif

// --- The region -----------------------------------------------------------------------------------

template <int channels>
RunningSums<channels> sums_of(const float* src, int srcStep, Size roi)
{
    RunningSums<channels> sums;
    Rows rows(roi, channels);
    // Every row begins with an even column.
    if (roi.width % 2 == 0) rows = Rows(roi, channels, sizeof(float), srcStep);
#if ORV_HAVE_VECTORS
    using Way = AnyOrder<channels>;
    constexpr ptrdiff_t kMost = Way::kMostElements;
    Way way;
    if (rows.n > kMost) {
        for (int y = 0; y < rows.count; ++y) {
            const float* const row = row_at(src, srcStep, y);
            for (ptrdiff_t i = 0; i < rows.n; i += kMost) {
                way.add({row + i, 0, 1, rows.n - i < kMost ? rows.n - i : kMost}, sums);
            }
        }
        return sums;
    }
    const int rows_in_band = static_cast<int>(Way::kMostSteps / Way::steps_of(rows.n));
    for (int y = 0; y < rows.count;) {
        const int now = rows.count - y < rows_in_band ? rows.count - y : rows_in_band;
        way.add({row_at(src, srcStep, y), srcStep, now, rows.n}, sums);
        y += now;
    }
#else
    add_in_order({src, srcStep, rows.count, rows.n}, sums);
#endif
    return sums;
}

// Which NaN a sum of several becomes is a matter of the instructions: there is one for all.
double one_nan(double value)
{
    if (value == value) return value;
    std::memcpy(&value, &kPlainNan64, sizeof(value));
    return value;
}

enum class Result { sum, mean };

// The hint changes nothing: there is one order of additions.
template <Result wanted, int channels>
Status reduce(const float* src, int srcStep, Size roi, double* results)
{
    if (const Status bad = check_image(roi, src, results)) return bad;
    const FloatControl control;
    const RunningSums<channels> sums = sums_of<channels>(src, srcStep, roi);
    const double n = rounded(static_cast<double>(roi.width) * static_cast<double>(roi.height));
    for (int c = 0; c < channels; ++c) {
        const double sum = rounded(sums.sum[channels + c] + sums.sum[c]);
        put(results + c, one_nan(wanted == Result::mean ? rounded(sum / n) : sum));
    }
    return StatusOk;
}

}  // namespace

#define REDUCTION(name, ...) \
    Status name(const float* src, int srcStep, Size roi, double* results, int) \
    { \
        return __VA_ARGS__(src, srcStep, roi, results); \
    }

REDUCTION(Sum_32f_C1R, reduce<Result::sum, 1>)
REDUCTION(Sum_32f_C3R, reduce<Result::sum, 3>)
REDUCTION(Mean_32f_C1R, reduce<Result::mean, 1>)
REDUCTION(Mean_32f_C3R, reduce<Result::mean, 3>)

}  // namespace ORV_LEVEL
}  // namespace float_sums
}  // namespace orv
