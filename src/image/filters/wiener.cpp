#include "image/filters/wiener.h"

#include <cstdint>

#include "core/memory.h"
#include "image/filters/double_lanes.h"

namespace orv {
namespace wiener {
namespace ORV_LEVEL {
namespace {

// --- Quotients ------------------------------------------------------------------------------------

// Quotients by the number of pixels, which is odd and below 2^16.
class PixelCount {
public:
    explicit ORV_INLINE PixelCount(int pixels) : count_(pixels), inverse_(rounded(1.0 / count_)) {}

    template <class V>
    ORV_INLINE V divide(V a) const
    {
        return a / V(count_);
    }
    // For finite numbers of which no digit is below the range of doubles. Both products with the quotient's
    // estimate are exact together with their sums, and what is left of a rounds like a / count itself: that is
    // further from the middle of two doubles than 2^-70 of itself, because no such middle times an odd number
    // is a double.
    template <class V>
    ORV_INLINE V divide_finite(V a) const
    {
#if ORV_HAVE_FUSED
        if constexpr (V::N > 1) {
            const V quotient = a * V(inverse_);
            return minus_product(quotient, product_minus(quotient, V(count_), a), V(inverse_));
        }
#endif
        return divide(a);
    }

private:
    double count_, inverse_;
};

// --- Means and variances --------------------------------------------------------------------------

// Columns that are done together. A multiple of the lanes that a row's variances are summed in.
constexpr int kSegment = 512;
constexpr int kMostFrame = kMostMaskSide - 1;
constexpr int kLanes = 32;

struct Workspace {
    double sums[kSegment + kMostFrame];     // of the columns' pixels
    double squares[kSegment + kMostFrame];  // of their squares
    double variances[kSegment];
    double lanes[kLanes];
};

struct Window {
    int width, height;
    PixelCount pixels;
};

// The sums of n columns, of which the first one starts at src.
void sum_columns(const float* src, int srcStep, int height, std::ptrdiff_t n, Workspace& work)
{
    along_doubles<4>(n, [&](std::ptrdiff_t i, auto lanes, auto count) __attribute__((always_inline)) {
        using V = decltype(lanes);
        V sums[count.value], squares[count.value];
        const float* row = src + i;
        unrolled<count.value>([&](int k) __attribute__((always_inline)) {
            sums[k] = widened<V>(row + k * V::N);
            squares[k] = sums[k] * sums[k];
        });
        for (int j = 1; j < height; ++j) {
            row = row_at(row, srcStep, 1);
            unrolled<count.value>([&](int k) __attribute__((always_inline)) {
                const V pixel = widened<V>(row + k * V::N);
                sums[k] = sums[k] + pixel;
                squares[k] = add_exact_product(pixel, pixel, squares[k]);
            });
        }
        unrolled<count.value>([&](int k) __attribute__((always_inline)) {
            store(work.sums + i + k * V::N, sums[k]);
            store(work.squares + i + k * V::N, squares[k]);
        });
    });
}

template <class V>
struct Statistics {
    V mean, variance;
};

template <class V>
ORV_INLINE Statistics<V> statistics(V sum, V square, const Window& window)
{
    // Finite squares have a finite sum.
    if (__builtin_expect(all(less(square, V(__builtin_inf()))), 1)) {
        const V mean = window.pixels.divide_finite(sum);
        return {mean, window.pixels.divide_finite(square) - mean * mean};
    }
    const V mean = window.pixels.divide(sum);
    return {mean, window.pixels.divide(square) - mean * mean};
}

// use(i, mean and variance of the window whose first column is the one with number i) for n windows.
template <class Use>
ORV_INLINE void along_windows(std::ptrdiff_t n, const Window& window, const Workspace& work, Use use)
{
    along_doubles<4>(n, [&](std::ptrdiff_t i, auto lanes, auto count) __attribute__((always_inline)) {
        using V = decltype(lanes);
        V sums[count.value], squares[count.value];
        const double *column = work.sums + i, *square = work.squares + i;
        unrolled<count.value>([&](int k) __attribute__((always_inline)) {
            sums[k] = simd::load<V>(column + k * V::N);
            squares[k] = simd::load<V>(square + k * V::N);
        });
        for (int j = 1; j < window.width; ++j) {
            unrolled<count.value>([&](int k) __attribute__((always_inline)) {
                sums[k] = sums[k] + simd::load<V>(column + j + k * V::N);
                squares[k] = squares[k] + simd::load<V>(square + j + k * V::N);
            });
        }
        unrolled<count.value>([&](int k) __attribute__((always_inline)) {
            use(i + k * V::N, statistics(sums[k], squares[k], window));
        });
    });
}

// The source's first pixel is the first one of the frame. each(y, x, n) for segments of n columns, the sums of
// whose columns stand in the workspace.
template <class Each>
ORV_INLINE void for_segments(const float* frame, int srcStep, Size roi, const Window& window, Workspace& work,
                             Each each)
{
    for (int y = 0; y < roi.height; ++y) {
        for (std::ptrdiff_t x = 0; x < roi.width; x += kSegment) {
            const std::ptrdiff_t n = roi.width - x < kSegment ? roi.width - x : kSegment;
            sum_columns(row_at(frame, srcStep, y) + x, srcStep, window.height, n + window.width - 1, work);
            each(y, x, n);
        }
    }
}

// --- The variance of the noise --------------------------------------------------------------------

void clear(double* p, std::ptrdiff_t n)
{
    for (std::ptrdiff_t i = 0; i < n; ++i) p[i] = 0;
}

// Adds n variances to the lanes; what stands behind them is overwritten by zeros, which add nothing.
void add_to_lanes(double* variances, std::ptrdiff_t n, double* lanes)
{
    const std::ptrdiff_t whole = (n + kLanes - 1) / kLanes * kLanes;
    clear(variances + n, whole - n);
    for (int j = 0; j < kLanes; j += ManyDoubles::N) {
        ManyDoubles sum = simd::load<ManyDoubles>(lanes + j);
        for (std::ptrdiff_t i = j; i < whole; i += kLanes) sum = sum + simd::load<ManyDoubles>(variances + i);
        store(lanes + j, sum);
    }
}

double sum_of_lanes(double* lanes)
{
    for (int half = kLanes / 2; half > 0; half /= 2) {
        for (int j = 0; j < half; ++j) lanes[j] = rounded(lanes[j] + lanes[j + half]);
    }
    return lanes[0];
}

// The mean of the local variances.
double estimate(const float* frame, int srcStep, Size roi, const Window& window, Workspace& work)
{
    double total = 0;
    using Index = std::ptrdiff_t;
    for_segments(frame, srcStep, roi, window, work, [&](int, Index x, Index n) __attribute__((always_inline)) {
        if (x == 0) clear(work.lanes, kLanes);
        along_windows(n, window, work, [&](Index i, auto local) __attribute__((always_inline)) {
            using V = decltype(local.mean);
            store(work.variances + i, select(less(V(0.0), local.variance), local.variance, V(0.0)));
        });
        add_to_lanes(work.variances, n, work.lanes);
        if (x + n == roi.width) total = rounded(total + sum_of_lanes(work.lanes));
    });
    return rounded(total / rounded(static_cast<double>(roi.width) * static_cast<double>(roi.height)));
}

// --- The filter -----------------------------------------------------------------------------------

template <class V>
ORV_INLINE V smoothed(V pixel, Statistics<V> local, V noise)
{
    const V kept = (local.variance - noise) / local.variance;
    return select(less(noise, local.variance), local.mean + (pixel - local.mean) * kept, local.mean);
}

void smooth(const float* src, const float* frame, int srcStep, float* dst, int dstStep, Size roi, const Window& window,
            double noise, Workspace& work)
{
    using Index = std::ptrdiff_t;
    for_segments(frame, srcStep, roi, window, work, [&](int y, Index x, Index n) __attribute__((always_inline)) {
        const float* const s = row_at(src, srcStep, y) + x;
        float* const d = row_at(dst, dstStep, y) + x;
        along_windows(n, window, work, [&](Index i, auto local) __attribute__((always_inline)) {
            using V = decltype(local.mean);
            store_result(d + i, smoothed(widened<V>(s + i), local, V(noise)));
        });
    });
}

}  // namespace

// --- Kernel ---------------------------------------------------------------------------------------

Status FilterWiener_32f_C1(const float* src, int srcStep, float* dst, int dstStep, Size roi, int maskWidth,
                           int maskHeight, double* noise)
{
    if (any_null(noise)) return StatusNullPointer;
    if (const Status bad = check_images(src, srcStep, dst, dstStep, roi)) return bad;
    if (!is_mask_side(maskWidth) || !is_mask_side(maskHeight)) return StatusBadMaskSize;
    const FloatControl control;
    double variance = get(noise);
    if (variance != variance) return StatusBadThreshold;
    auto* const work = static_cast<Workspace*>(orv_allocate(static_cast<int>(sizeof(Workspace))));
    if (work == nullptr) return StatusNoMemory;
    const Window window = {maskWidth, maskHeight, PixelCount(maskWidth * maskHeight)};
    const float* const frame = row_at(src, srcStep, -(maskHeight / 2)) - maskWidth / 2;
    if (variance < 0) {
        variance = estimate(frame, srcStep, roi, window, *work);
        put(noise, variance);
    }
    smooth(src, frame, srcStep, dst, dstStep, roi, window, variance, *work);
    orv_release(work);
    return StatusOk;
}

}  // namespace ORV_LEVEL
}  // namespace wiener
}  // namespace orv
