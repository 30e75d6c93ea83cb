#include "core/memory.h"
#include "image/filters_common.h"
#include "image/filters_pending.h"

namespace orv {
namespace filters_float {
namespace ORV_LEVEL {
namespace {

// --- Meaning --------------------------------------------------------------------------------------

// The centre as many times as the kernel has elements, minus the sum of all.
template <int Radius>
struct Hipass {
    static constexpr int kRadius = Radius;
    static constexpr bool kNeedsCentre = true;
    template <class D> ORV_INLINE D add_row(const float* s, std::ptrdiff_t c, D (&pending)[2 * Radius]) const
    {
        return add_box_row<D, Radius>(s, c, pending);
    }
    template <class D> ORV_INLINE D result(D sum, const float* centre) const
    {
        return doubles<D>::widen(centre) * (Radius == 1 ? 9.0 : 25.0) - sum;
    }
};

// The rows of the kernel are -p, 3q, 2p + 6q, 3q and -p, where p = 1 3 4 3 1 and q = -1 0 2 0 -1. What
// is rounded to single precision of each source row are the two sums of pixels at equal distance from
// the centre; everything else is in double.
struct Laplace5x5 {
    static constexpr int kRadius = 2;
    static constexpr bool kNeedsCentre = false;
    template <class D> ORV_INLINE D add_row(const float* s, std::ptrdiff_t c, D (&pending)[4]) const
    {
        const D outer = doubles<D>::float_sum(s - 2 * c, s + 2 * c);
        const D inner = doubles<D>::float_sum(s - c, s + c);
        const D centre = doubles<D>::widen(s);
        const D p = outer + inner * 3.0 + centre * 4.0;
        const D q3 = centre * 6.0 - outer * 3.0;
        const D complete = pending[3] - p;
        pending[3] = pending[2] + q3;
        pending[2] = pending[1] + (p + q3) * 2.0;
        pending[1] = q3 - pending[0];
        pending[0] = p;
        return complete;
    }
    template <class D> ORV_INLINE D result(D sum, const float*) const { return sum; }
};

// --- Cross derivatives ----------------------------------------------------------------------------
//
// Differences of floats, so single precision throughout: where only two numbers meet, a double in
// between would not change the result.

// compute(i, F) for i from 0 to n - 1, as many at a time as there are lanes; some perhaps twice.
template <class Compute>
ORV_INLINE void along_row(std::ptrdiff_t n, Compute compute)
{
    std::ptrdiff_t i = 0;
#if ORV_HAVE_VECTORS
    if (n >= Floats::N) {
        for (; i < n - Floats::N; i += Floats::N) compute(i, Floats());
        compute(n - Floats::N, Floats());
        return;
    }
#endif
    for (; i < n; ++i) compute(i, Single());
}

void sobel_cross_3x3(const float* src, int srcStep, float* dst, int dstStep, Size roi)
{
    for (int y = 0; y < roi.height; ++y) {
        const float* const above = row_at(src, srcStep, y - 1);
        const float* const below = row_at(src, srcStep, y + 1);
        float* const d = row_at(dst, dstStep, y);
        along_row(roi.width, [=](std::ptrdiff_t i, auto lanes) {
            using F = decltype(lanes);
            const auto difference = [i](const float* row) {
                return floats<F>::load(row + i - 1) - floats<F>::load(row + i + 1);
            };
            store_result(d + i, difference(below) - difference(above));
        });
    }
}

// The derivative 1 2 0 -2 -1 of samples that are `apart` elements from each other: of columns and of
// rows alike.
template <class F>
ORV_INLINE F derivative(const float* m2, const float* m1, const float* p1, const float* p2)
{
    const F outer = floats<F>::load(m2) - floats<F>::load(p2);
    const F inner = floats<F>::load(m1) - floats<F>::load(p1);
    return outer + (inner + inner);
}

void sobel_cross_5x5(const float* src, int srcStep, float* dst, int dstStep, Size roi, float* columns)
{
    const FloatStrips strips(roi.width);
    for (std::ptrdiff_t x = 0; x < strips.total; x += strips.width) {
        const std::ptrdiff_t n = strips.columns_at(x);
        for (int y = 0; y < roi.height; ++y) {
            const float* const m2 = row_at(src, srcStep, y - 2) + x - 2;
            const float* const m1 = row_at(src, srcStep, y - 1) + x - 2;
            const float* const p1 = row_at(src, srcStep, y + 1) + x - 2;
            const float* const p2 = row_at(src, srcStep, y + 2) + x - 2;
            float* const d = row_at(dst, dstStep, y) + x;
            // Downwards the other way round: that gives the sign of the 3x3 kernel.
            along_row(n + 4, [=](std::ptrdiff_t i, auto lanes) {
                store_floats(columns + i, derivative<decltype(lanes)>(p2 + i, p1 + i, m1 + i, m2 + i));
            });
            along_row(n, [=](std::ptrdiff_t i, auto lanes) {
                const float* const c = columns + i;
                store_result(d + i, derivative<decltype(lanes)>(c, c + 1, c + 3, c + 4));
            });
        }
    }
}

// --- Plain forms ----------------------------------------------------------------------------------

template <class Filter>
Status filter(Filter f, const float* src, int srcStep, float* dst, int dstStep, Size roi, int channels)
{
    const FloatStrips strips(std::ptrdiff_t{roi.width} * channels);
    void* const memory = orv_allocate(static_cast<int>(strips.width) * PendingSums<Filter::kRadius>::kBytes);
    if (memory == nullptr) return StatusNoMemory;
    const FloatControl control;
    const auto rows = [=](std::ptrdiff_t y, std::ptrdiff_t x, std::ptrdiff_t) { return row_at(src, srcStep, y) + x; };
    filter_strips(f, rows, dst, dstStep, roi, channels, memory);
    orv_release(memory);
    return StatusOk;
}

template <class Filter3x3, class Filter5x5>
Status filter_of_mask(const float* src, int srcStep, float* dst, int dstStep, Size roi, int mask, int channels)
{
    if (const Status bad = check_filter(src, srcStep, dst, dstStep, roi, mask)) return bad;
    if (mask == mask_3x3) return filter(Filter3x3(), src, srcStep, dst, dstStep, roi, channels);
    return filter(Filter5x5(), src, srcStep, dst, dstStep, roi, channels);
}

// --- Border forms ---------------------------------------------------------------------------------
//
// All memory is the caller's buffer: the sums, and a source row with what lies left and right of it.

constexpr int kAlignment = 64;

template <int Radius>
struct BorderBuffer {
    static constexpr int bytes(std::ptrdiff_t strip)
    {
        return kAlignment + static_cast<int>(strip) * PendingSums<Radius>::kBytes +
               (static_cast<int>(strip) + 2 * Radius) * static_cast<int>(sizeof(float));
    }
};

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
            __builtin_memcpy(row_ + begin, words + first + begin, static_cast<std::size_t>(end - begin) * sizeof(*row_));
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
    const FloatStrips strips(roi.width);
    const std::size_t misalignment = reinterpret_cast<std::size_t>(buffer) % kAlignment;
    auto* const sums = static_cast<unsigned char*>(buffer) + (kAlignment - misalignment) % kAlignment;
    void* const row = sums + strips.width * PendingSums<Radius>::kBytes;
    filter_strips(Lowpass<Radius>(), ExtendedRows(src, srcStep, roi, border, value, Radius, row), dst, dstStep,
                  roi, 1, sums);
}

}  // namespace

// --- Kernels --------------------------------------------------------------------------------------

#define FILTER(name, channels, ...)                                                                  \
    Status name(const float* src, int srcStep, float* dst, int dstStep, Size roi, int mask)          \
    {                                                                                                \
        return filter_of_mask<__VA_ARGS__>(src, srcStep, dst, dstStep, roi, mask, channels);         \
    }
FILTER(FilterLowpass_32f_C1, 1, Lowpass<1>, Lowpass<2>)
FILTER(FilterLowpass_32f_C3, 3, Lowpass<1>, Lowpass<2>)
FILTER(FilterHipass_32f_C1, 1, Hipass<1>, Hipass<2>)
// Intended: the 3x3 Laplacian is the 3x3 high-pass filter.
FILTER(FilterLaplace_32f_C1, 1, Hipass<1>, Laplace5x5)

Status FilterSobelCross_32f_C1(const float* src, int srcStep, float* dst, int dstStep, Size roi, int mask)
{
    if (const Status bad = check_filter(src, srcStep, dst, dstStep, roi, mask)) return bad;
    void* columns = nullptr;
    if (mask == mask_5x5) {
        columns = orv_allocate(static_cast<int>(FloatStrips(roi.width).width + 4) * static_cast<int>(sizeof(float)));
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
    const std::ptrdiff_t strip = FloatStrips(roi.width).width;
    const int size = mask == mask_3x3 ? BorderBuffer<1>::bytes(strip) : BorderBuffer<2>::bytes(strip);
    put(bytes, size);
    return StatusOk;
}

}  // namespace ORV_LEVEL
}  // namespace filters_float
}  // namespace orv
