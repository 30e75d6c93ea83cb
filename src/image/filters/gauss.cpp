#include "image/filters/gauss.h"

#include <cstdint>

#include "core/memory.h"
#include "elementwise/float_arithmetic.h"
#include "image/filters/double_lanes.h"
#include "math/exponential.h"

namespace orv {
namespace gauss {
namespace ORV_LEVEL {
namespace {

constexpr int kMostTaps = kMostMaskSide;
constexpr int kMostRadius = kMostTaps / 2;

// Rows that are completed together: each row of sums that is read serves all of them.
constexpr int kTogether = 4;

// --- Weights --------------------------------------------------------------------------------------

// Those of the taps from the first to the last, of which the outermost ones that are 0 are left out.
struct Weights {
    int radius;

    ORV_INLINE int taps() const { return 2 * radius + 1; }
    template <class V>
    ORV_INLINE V tap(int i) const
    {
        return simd::load<V>(lanes_ + i * ManyDoubles::N);
    }
    void set_tap(int i, double weight) { store(lanes_ + i * ManyDoubles::N, ManyDoubles(weight)); }

private:
    // As often as a vector has lanes: one that loops keep for the next row is not spread again.
    double lanes_[kMostTaps * ManyDoubles::N];
};

// each(i) for i from 0 to n - 1; one copy for each i where n is known to be `fixed`.
template <int fixed, class Each>
ORV_INLINE void repeated(int n, Each each)
{
    if constexpr (fixed > 0) unrolled<fixed>(each);
    else for (int i = 0; i < n; ++i) each(i);
}

double single(double weight) { return static_cast<double>(rounded(static_cast<float>(weight))); }

// The centre's weight is what the others leave of 1, so that constants stay what they are.
void make_weights(int radius, double sigma, Weights& weights)
{
    double g[(kMostRadius + kDoubles) / kDoubles * kDoubles + kDoubles] = {};
    const double width = rounded(rounded(2 * sigma) * sigma);
    for (int i = 1; i <= radius; ++i) g[i] = rounded(-static_cast<double>(i * i) / width);
    for (int i = 0; i <= radius; i += kDoubles) store(g + i, exp_anywhere(load_doubles(g + i)));
    double half = radius > 0 ? g[radius] : 0;
    for (int i = radius - 1; i > 0; --i) half = rounded(half + g[i]);
    const double whole = rounded(1 + 2 * half);
    for (int i = 1; i <= radius; ++i) g[i] = single(rounded(g[i] / whole));
    double others = radius > 0 ? g[radius] : 0;
    for (int i = radius - 1; i > 0; --i) others = rounded(others + g[i]);
    g[0] = single(rounded(1 - 2 * others));
    while (radius > 0 && g[radius] == 0) --radius;
    weights.radius = radius;
    for (int i = 0; i <= radius; ++i) {
        weights.set_tap(radius - i, g[i]);
        weights.set_tap(radius + i, g[i]);
    }
}

// --- Sums -----------------------------------------------------------------------------------------

// The start of a sum: every number added to it is the sum.
constexpr double kNothing = -0.0;

// A source row in double, and as often as the taps reach beyond them its first and its last pixel.
void widen_with_ends(const float* src, std::ptrdiff_t width, std::ptrdiff_t radius, double* row)
{
    along_doubles<1>(width, [=](std::ptrdiff_t i, auto lanes, auto) __attribute__((always_inline)) {
        store(row + radius + i, widened<decltype(lanes)>(src + i));
    });
    for (std::ptrdiff_t i = 0; i < radius; ++i) {
        row[i] = row[radius];
        row[radius + width + i] = row[radius + width - 1];
    }
}

// The sums along a row, rounded to single. `fixed`: the number of taps, or 0 for any.
template <int fixed>
void sum_row(const double* row, std::ptrdiff_t width, const Weights& weights, double* sums)
{
    along_doubles<8>(width, [=, &weights](std::ptrdiff_t x, auto lanes, auto count) __attribute__((always_inline)) {
        using V = decltype(lanes);
        V sum[count.value];
        unrolled<count.value>([&](int k) __attribute__((always_inline)) { sum[k] = V(kNothing); });
        repeated<fixed>(weights.taps(), [&](int i) __attribute__((always_inline)) {
            const V weight = weights.template tap<V>(i);
            unrolled<count.value>([&](int k) __attribute__((always_inline)) {
                sum[k] = add_exact_product(simd::load<V>(row + x + i + k * V::N), weight, sum[k]);
            });
        });
        unrolled<count.value>([&](int k) __attribute__((always_inline)) {
            store(sums + x + k * V::N, to_single(sum[k]));
        });
    });
}

// Completes `results` rows of the destination from the rows of sums around them, the first one's first.
template <int results, int fixed>
void sum_columns(const double* const* rows, const Weights& weights, float* dst, int dstStep, std::ptrdiff_t width)
{
    const int taps = fixed > 0 ? fixed : weights.taps();
    along_doubles<2>(width, [=, &weights](std::ptrdiff_t x, auto lanes, auto count) __attribute__((always_inline)) {
        using V = decltype(lanes);
        V sum[results][count.value];
        unrolled<results>([&](int y) __attribute__((always_inline)) {
            unrolled<count.value>([&](int k) __attribute__((always_inline)) { sum[y][k] = V(kNothing); });
        });
        // Row j belongs to those results that have a tap for it: all of them but at both ends.
        const auto add_row = [&](int j, auto belongs) __attribute__((always_inline)) {
            V row[count.value];
            unrolled<count.value>([&](int k) __attribute__((always_inline)) {
                row[k] = simd::load<V>(rows[j] + x + k * V::N);
            });
            unrolled<results>([&](int y) __attribute__((always_inline)) {
                if (!belongs(j - y)) return;
                const V weight = weights.template tap<V>(j - y);
                unrolled<count.value>([&](int k) __attribute__((always_inline)) {
                    sum[y][k] = add_exact_product(row[k], weight, sum[y][k]);
                });
            });
        };
        const auto inside = [=](int tap) __attribute__((always_inline)) { return tap >= 0 && tap < taps; };
        const auto always = [](int) __attribute__((always_inline)) { return true; };
        if constexpr (fixed > 0) {
            unrolled<fixed + results - 1>([&](int j) __attribute__((always_inline)) { add_row(j, inside); });
        } else {
            int j = 0;
            for (; j < results - 1; ++j) add_row(j, inside);
            for (; j < taps; ++j) add_row(j, always);
            for (; j < taps + results - 1; ++j) add_row(j, inside);
        }
        unrolled<results>([&](int y) __attribute__((always_inline)) {
            unrolled<count.value>([&](int k) __attribute__((always_inline)) {
                store_result(row_at(dst, dstStep, y) + x + k * V::N, sum[y][k]);
            });
        });
    });
}

// --- The filter -----------------------------------------------------------------------------------

// The rows of sums that are needed at a time, and a source row in double. Rows lie an odd number of cache lines
// apart, so that they do not meet in the same places of the cache.
class Workspace {
public:
    Workspace(Size roi, int radius)
        : rows_(2 * radius + kTogether < roi.height ? 2 * radius + kTogether : roi.height),
          stride_(((roi.width + 2LL * radius + 7) / 8 | 1) * 8),
          memory_(orv_allocate_checked((rows_ + 1) * stride_ * static_cast<long long>(sizeof(double))))
    {
    }
    ~Workspace() { orv_release(memory_); }
    Workspace(const Workspace&) = delete;
    Workspace& operator=(const Workspace&) = delete;

    bool is_there() const { return memory_ != nullptr; }
    double* source_row() const { return static_cast<double*>(memory_); }
    double* sums_of_row(int y) const { return source_row() + (1 + y % rows_) * static_cast<std::ptrdiff_t>(stride_); }

private:
    int rows_;
    long long stride_;
    void* memory_;
};

int clamped(long long y, Size roi) { return static_cast<int>(y < 0 ? 0 : y >= roi.height ? roi.height - 1 : y); }

// The destination may be the source: of no row is a pixel needed once the row's sums are there.
template <int fixed>
void smooth(const float* src, int srcStep, float* dst, int dstStep, Size roi, const Weights& weights,
            const Workspace& work)
{
    const int radius = weights.radius;
    int summed = 0;
    for (long long y = 0; y < roi.height; y += kTogether) {
        const int count = roi.height - y < kTogether ? static_cast<int>(roi.height - y) : kTogether;
        const double* rows[kMostTaps + kTogether];
        for (int j = 0; j < weights.taps() + count - 1; ++j) {
            const int row = clamped(y - radius + j, roi);
            for (; summed <= row; ++summed) {
                widen_with_ends(row_at(src, srcStep, summed), roi.width, radius, work.source_row());
                sum_row<fixed>(work.source_row(), roi.width, weights, work.sums_of_row(summed));
            }
            rows[j] = work.sums_of_row(row);
        }
        float* const to = row_at(dst, dstStep, static_cast<std::ptrdiff_t>(y));
        if (count == kTogether) {
            sum_columns<kTogether, fixed>(rows, weights, to, dstStep, roi.width);
            continue;
        }
        for (int k = 0; k < count; ++k) {
            sum_columns<1, fixed>(rows + k, weights, row_at(to, dstStep, k), dstStep, roi.width);
        }
    }
}

bool is_positive_and_finite(std::uint32_t bits) { return bits > 0 && bits < Bits<float>::kInfinity; }

}  // namespace

// --- Kernel ---------------------------------------------------------------------------------------

Status FilterGaussBorder_32f_C1R(const float* src, int srcStep, float* dst, int dstStep, Size roi, int kernelSize,
                                 const float* sigma)
{
    if (const Status bad = check_images(src, srcStep, dst, dstStep, roi)) return bad;
    if (!is_mask_side(kernelSize)) return StatusBadMaskSize;
    if (!is_positive_and_finite(get(reinterpret_cast<const std::uint32_t*>(sigma)))) return StatusBadFactor;
    const FloatControl control;
    Weights weights;
    make_weights(kernelSize / 2, static_cast<double>(get(sigma)), weights);
    const Workspace work(roi, weights.radius);
    if (!work.is_there()) return StatusNoMemory;
    switch (weights.taps()) {
        case 3: smooth<3>(src, srcStep, dst, dstStep, roi, weights, work); break;
        case 5: smooth<5>(src, srcStep, dst, dstStep, roi, weights, work); break;
        case 7: smooth<7>(src, srcStep, dst, dstStep, roi, weights, work); break;
        default: smooth<0>(src, srcStep, dst, dstStep, roi, weights, work);
    }
    return StatusOk;
}

}  // namespace ORV_LEVEL
}  // namespace gauss
}  // namespace orv
