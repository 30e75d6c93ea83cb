#include "core/memory.h"

#include <cstdint>
#include "image/filters/filters_common.h"
#include "image/filters/filters_rows.h"

namespace orv {
namespace filters_float {
namespace ORV_LEVEL {
namespace {

// --- Meaning --------------------------------------------------------------------------------------

// The centre as many times as the kernel has elements, minus the sum of all.
template <int Radius>
struct Hipass : Box<Radius, 1> {
    static constexpr bool kUsesCentre = true;
    template <class D>
    ORV_INLINE D result(const D (&sums)[2 * Radius + 1][1], const float* centre) const
    {
        return times(doubles<D>::widen(centre), Radius == 1 ? 9.0 : 25.0) - this->total(sums);
    }
};

// The rows of the kernel are -p, q, 2r, q and -p, where p = 1 3 4 3 1, q = -3 0 6 0 -3 and r = p + q. Of each source
// row its three weighted sums are kept, not those of pixels at equal distance: where these outgrow single precision,
// the weighted sum may not. The factor of 3 rounds, so it is not fused with an addition.
struct Laplace5x5 {
    static constexpr int kRadius = 2;
    static constexpr int kApart = 1;
    static constexpr int kSums = 3;
    static constexpr bool kUsesCentre = false;

    template <class D>
    ORV_INLINE void sum_row(const float* s, D (&sums)[3]) const
    {
        const D centre = doubles<D>::widen(s);
        const D outer = doubles<D>::widen(s - 2) + doubles<D>::widen(s + 2);
        const D inner = times(doubles<D>::widen(s - 1) + doubles<D>::widen(s + 1), 3.0);
        const D p = exact_product_plus(centre, 4.0, outer + inner);
        const D q = exact_product_plus(centre, 6.0, times(outer, -3.0));
        sums[0] = to_single(p);
        sums[1] = to_single(q);
        sums[2] = to_single(p + q);
    }
    template <class D>
    ORV_INLINE D result(const D (&sums)[5][3], const float*) const
    {
        const D above = sums[1][1] - sums[0][0];
        return exact_product_plus(sums[2][2], 2.0, above) + sums[3][1] - sums[4][0];
    }
};

// --- Cross derivatives ----------------------------------------------------------------------------
//
// Differences of floats, so single precision throughout: where only two numbers meet, a double in
// between would not change the result.

void sobel_cross_3x3(const float* src, int srcStep, float* dst, int dstStep, Size roi)
{
    for (int y = 0; y < roi.height; ++y) {
        const float* const above = row_at(src, srcStep, y - 1);
        const float* const below = row_at(src, srcStep, y + 1);
        float* const d = row_at(dst, dstStep, y);
        along_row_of_floats(roi.width, [=](std::ptrdiff_t i, auto lanes) {
            using F = decltype(lanes);
            const auto difference = [i](const float* row) {
                return floats<F>::load(row + i - 1) - floats<F>::load(row + i + 1);
            };
            store_result(d + i, difference(below) - difference(above));
        });
    }
}

// The derivative 1 2 0 -2 -1 of four samples around a fifth, from left to right or from top to
// bottom.
template <class F>
ORV_INLINE F derivative(const float* m2, const float* m1, const float* p1, const float* p2)
{
    const F outer = floats<F>::load(m2) - floats<F>::load(p2);
    const F inner = floats<F>::load(m1) - floats<F>::load(p1);
    return outer + (inner + inner);
}

void sobel_cross_5x5(const float* src, int srcStep, float* dst, int dstStep, Size roi, float* columns)
{
    const Strips strips(roi.width, kFloatStrip);
    for (std::ptrdiff_t x = 0; x < strips.total; x += strips.width) {
        const std::ptrdiff_t n = strips.columns_at(x);
        for (int y = 0; y < roi.height; ++y) {
            const float* const m2 = row_at(src, srcStep, y - 2) + x - 2;
            const float* const m1 = row_at(src, srcStep, y - 1) + x - 2;
            const float* const p1 = row_at(src, srcStep, y + 1) + x - 2;
            const float* const p2 = row_at(src, srcStep, y + 2) + x - 2;
            float* const d = row_at(dst, dstStep, y) + x;
            // Downwards the other way round: that gives the sign of the 3x3 kernel.
            along_row_of_floats(n + 4, [=](std::ptrdiff_t i, auto lanes) {
                store_floats(columns + i, derivative<decltype(lanes)>(p2 + i, p1 + i, m1 + i, m2 + i));
            });
            along_row_of_floats(n, [=](std::ptrdiff_t i, auto lanes) {
                const float* const c = columns + i;
                store_result(d + i, derivative<decltype(lanes)>(c, c + 1, c + 3, c + 4));
            });
        }
    }
}

// --- Plain forms ----------------------------------------------------------------------------------

template <class Filter>
Status filter(Filter f, const float* src, int srcStep, float* dst, int dstStep, Size roi)
{
    void* const memory = orv_allocate(RowSums<Filter>::kBytes);
    if (memory == nullptr) return StatusNoMemory;
    const FloatControl control;
    const auto rows = [=](std::ptrdiff_t y, std::ptrdiff_t x, std::ptrdiff_t) { return row_at(src, srcStep, y) + x; };
    filter_strips(f, rows, dst, dstStep, roi, memory);
    orv_release(memory);
    return StatusOk;
}

template <class Filter3x3, class Filter5x5>
Status filter_of_mask(const float* src, int srcStep, float* dst, int dstStep, Size roi, int mask)
{
    if (const Status bad = check_filter(src, srcStep, dst, dstStep, roi, mask)) return bad;
    if (mask == mask_3x3) return filter(Filter3x3(), src, srcStep, dst, dstStep, roi);
    return filter(Filter5x5(), src, srcStep, dst, dstStep, roi);
}

// --- Border forms ---------------------------------------------------------------------------------
//
// All memory is the caller's buffer: that of a strip, and a source row with what lies left and right of it.

constexpr int kAlignment = 64;

template <int Radius>
constexpr int kBorderBufferBytes = kAlignment + RowSums<Lowpass<Radius, 1>>::kBytes +
                                   (kFloatStrip + 2 * Radius) * static_cast<int>(sizeof(float));

// Element x of a row of `width` that goes on at both sides. Moved as bits.
class ExtendedRows {
public:
    ExtendedRows(const float* src, int srcStep, Size roi, FilterBorder border, float value, int radius, void* row)
        : src_(src), step_(srcStep), roi_(roi), constant_(border == FilterBorder::constant), radius_(radius),
          row_(static_cast<std::uint32_t*>(row))
    {
        __builtin_memcpy(&value_, &value, sizeof(value_));
    }

    const float* operator()(std::ptrdiff_t y, std::ptrdiff_t x, std::ptrdiff_t n) const
    {
        const bool outside = y < 0 || y >= roi_.height;
        const std::ptrdiff_t inside_y = y < 0 ? 0 : y >= roi_.height ? roi_.height - 1 : y;
        const float* const source = row_at(src_, step_, inside_y);
        if (x >= radius_ && x + n + radius_ <= roi_.width && !(outside && constant_)) return source + x;

        const auto* const words = reinterpret_cast<const std::uint32_t*>(source);
        const std::ptrdiff_t first = x - radius_, total = n + 2 * radius_;
        if (outside && constant_) {
            for (std::ptrdiff_t i = 0; i < total; ++i) row_[i] = value_;
        } else {
            const std::ptrdiff_t begin = first < 0 ? -first : 0;
            const std::ptrdiff_t end = first + total > roi_.width ? roi_.width - first : total;
            const std::uint32_t left = constant_ ? value_ : get(words);
            const std::uint32_t right = constant_ ? value_ : get(words + roi_.width - 1);
            for (std::ptrdiff_t i = 0; i < begin; ++i) row_[i] = left;
            __builtin_memcpy(row_ + begin, words + first + begin,
                             static_cast<std::size_t>(end - begin) * sizeof(*row_));
            for (std::ptrdiff_t i = end; i < total; ++i) row_[i] = right;
        }
        return reinterpret_cast<const float*>(row_) + radius_;
    }

private:
    const float* src_;
    int step_;
    Size roi_;
    bool constant_;
    std::uint32_t value_;
    std::ptrdiff_t radius_;
    std::uint32_t* row_;
};

template <int Radius>
void lowpass_border(const float* src, int srcStep, float* dst, int dstStep, Size roi, FilterBorder border,
                    float value, void* buffer)
{
    const FloatControl control;
    const std::size_t misalignment = reinterpret_cast<std::size_t>(buffer) % kAlignment;
    auto* const memory = static_cast<unsigned char*>(buffer) + (kAlignment - misalignment) % kAlignment;
    void* const row = memory + RowSums<Lowpass<Radius, 1>>::kBytes;
    filter_strips(Lowpass<Radius, 1>(), ExtendedRows(src, srcStep, roi, border, value, Radius, row), dst, dstStep,
                  roi, memory);
}

}  // namespace

// --- Kernels --------------------------------------------------------------------------------------

#define FILTER(name, ...)                                                                            \
    Status name(const float* src, int srcStep, float* dst, int dstStep, Size roi, int mask)          \
    {                                                                                                \
        return filter_of_mask<__VA_ARGS__>(src, srcStep, dst, dstStep, roi, mask);                   \
    }
FILTER(FilterLowpass_32f_C1, Lowpass<1, 1>, Lowpass<2, 1>)
FILTER(FilterLowpass_32f_C3, Lowpass<1, 3>, Lowpass<2, 3>)
FILTER(FilterHipass_32f_C1, Hipass<1>, Hipass<2>)
// Intended: the 3x3 Laplacian is the 3x3 high-pass filter.
FILTER(FilterLaplace_32f_C1, Hipass<1>, Laplace5x5)

Status FilterSobelCross_32f_C1(const float* src, int srcStep, float* dst, int dstStep, Size roi, int mask)
{
    if (const Status bad = check_filter(src, srcStep, dst, dstStep, roi, mask)) return bad;
    void* columns = nullptr;
    if (mask == mask_5x5) {
        const int elements = static_cast<int>(Strips(roi.width, kFloatStrip).width + 4);
        columns = orv_allocate(elements * static_cast<int>(sizeof(float)));
        if (columns == nullptr) return StatusNoMemory;
    }
    const FloatControl control;
    if (mask == mask_3x3) sobel_cross_3x3(src, srcStep, dst, dstStep, roi);
    else sobel_cross_5x5(src, srcStep, dst, dstStep, roi, static_cast<float*>(columns));
    orv_release(columns);
    return StatusOk;
}

Status FilterLowpassBorder_32f_C1(const float* src, int srcStep, float* dst, int dstStep, Size roi, int mask,
                                  FilterBorder border, float value, void* buffer)
{
    if (buffer == nullptr) return StatusNullPointer;
    if (const Status bad = check_filter(src, srcStep, dst, dstStep, roi, mask)) return bad;
    if (mask == mask_3x3) lowpass_border<1>(src, srcStep, dst, dstStep, roi, border, value, buffer);
    else lowpass_border<2>(src, srcStep, dst, dstStep, roi, border, value, buffer);
    return StatusOk;
}

Status FilterLowpassGetBufferSize_32f_C1(Size roi, int mask, int* bytes)
{
    if (bytes == nullptr) return StatusNullPointer;
    if (is_empty(roi)) return StatusBadSize;
    if (mask != mask_3x3 && mask != mask_5x5) return StatusBadMaskSize;
    put(bytes, mask == mask_3x3 ? kBorderBufferBytes<1> : kBorderBufferBytes<2>);
    return StatusOk;
}

}  // namespace ORV_LEVEL
}  // namespace filters_float
}  // namespace orv
