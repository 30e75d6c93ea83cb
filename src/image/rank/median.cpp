// Medians: 3x3 and 5x5 by exchanges where there are vectors, all others by ranks.
#include "image/rank/median.h"

#include "core/checks.h"
#include "core/memory.h"
#include "core/sizes.h"
#include "image/rank/ranked_tile.h"
#include "image/rank/small_medians.h"

namespace orv {
namespace median {
namespace ORV_LEVEL {
namespace {

// --- By exchanges ---------------------------------------------------------------------------------

constexpr int kStrip = 512;

// Two rows of results at a time, of a strip of the image: keys of the rows that they need, then the sorted columns
// of either.
template <int side>
class SmallStrip {
public:
    static constexpr int kRadius = side / 2;
    static constexpr int kRows = side + 1;

    static ORV_INLINE std::ptrdiff_t row_elements(int width) { return (width + 2 * kRadius + 15) / 16 * 16; }
    static ORV_INLINE long long bytes(int width) { return (kRows + 2 * side) * 4LL * row_elements(width); }

    // `src` is the first pixel of the first window.
    ORV_INLINE SmallStrip(void* memory, const float* src, int srcStep, int width)
        : keys_(static_cast<Key*>(memory)),
          apart_(row_elements(width)),
          src_(bits_at(src)),
          srcStep_(srcStep),
          width_(width)
    {
    }

    template <class V>
    void run(float* dst, int dstStep, int height)
    {
        for (int y = 0; y < side - 1; ++y) {
            along<V>(width_ + 2 * kRadius, [=](std::ptrdiff_t x) { fetch<V>(y, y, x); });
        }
        for (int y = 0; y < height; y += 2) {
            // The last row may be alone; then its neighbour is not there to be read.
            const int second = y + 1 < height ? 1 : 0;
            along<V>(width_ + 2 * kRadius, [=](std::ptrdiff_t x) { sort_columns<V>(y, second, x); });
            medians<V>(sorted(0), bits_at(row_at(dst, dstStep, y)));
            if (second != 0) medians<V>(sorted(1), bits_at(row_at(dst, dstStep, y + 1)));
        }
    }

private:
    template <class V, class Do>
    static ORV_INLINE void along(std::ptrdiff_t n, Do at)
    {
        for (std::ptrdiff_t x = 0; x < n - V::N; x += V::N) at(x);
        at(n - V::N);
    }

    ORV_INLINE Key* keys(int y) const { return keys_ + apart_ * (y % kRows); }
    ORV_INLINE Key* sorted(int result) const { return keys_ + apart_ * (kRows + side * result); }

    // The keys of row y of the source, as those of row `as`.
    template <class V>
    ORV_INLINE V fetch(int y, int as, std::ptrdiff_t x) const
    {
        const V key = key_of(simd::load<V>(row_at(src_, srcStep_, y) + x));
        simd::store(keys(as) + x, key);
        return key;
    }

    // Of the columns at x, of the windows of results y and y + 1.
    template <class V>
    ORV_INLINE void sort_columns(int y, int second, std::ptrdiff_t x) const
    {
        V shared[side - 1];
        for (int i = 1; i < side - 1; ++i) shared[i - 1] = simd::load<V>(keys(y + i) + x);
        shared[side - 2] = fetch<V>(y + side - 1, y + side - 1, x);
        SmallMedian<side>::sort_shared(shared);
        store_with(shared, simd::load<V>(keys(y) + x), sorted(0) + x);
        store_with(shared, fetch<V>(y + side - 1 + second, y + side, x), sorted(1) + x);
    }
    template <class V>
    ORV_INLINE void store_with(const V (&shared)[side - 1], V key, Key* to) const
    {
        V column[side];
        for (int i = 0; i < side - 1; ++i) column[i] = shared[i];
        insert<side - 1>(column, key);
        for (int i = 0; i < side; ++i) simd::store(to + apart_ * i, column[i]);
    }

    template <class V>
    ORV_INLINE void medians(const Key* columns, Key* dst) const
    {
        along<V>(width_, [=](std::ptrdiff_t x) {
            simd::store(dst + x, bits_of_key(SmallMedian<side>::template of<V>(columns + x, apart_)));
        });
    }

    Key* keys_;
    std::ptrdiff_t apart_;
    const Key* src_;
    int srcStep_, width_;
};

template <int side>
Status by_exchanges(const float* src, int srcStep, float* dst, int dstStep, Size roi)
{
    using Strip = SmallStrip<side>;
    using Wide = simd::widest<Key>;
    const int strips = (roi.width - 1) / kStrip + 1, most = (roi.width - 1) / strips + 1;
    void* const memory = orv_allocate_checked(Strip::bytes(most));
    if (memory == nullptr) return StatusNoMemory;
    const float* const first = row_at(src, srcStep, -Strip::kRadius) - Strip::kRadius;
    for (int x = 0; x < roi.width; x += most) {
        const int width = roi.width - x < most ? roi.width - x : most;
        Strip strip(memory, first + x, srcStep, width);
        if (width >= Wide::N) strip.template run<Wide>(dst + x, dstStep, roi.height);
        else strip.template run<simd::vec<Key, 1>>(dst + x, dstStep, roi.height);
    }
    orv_release(memory);
    return StatusOk;
}

// --- By ranks -------------------------------------------------------------------------------------

// Elements of a tile: what stays in a cache, more where a window is large, and no more than all tiles of a band of
// 16 rows would have.
ORV_INLINE std::ptrdiff_t most_elements(Size roi, int maskWidth, int maskHeight)
{
    constexpr long long cached = 32768, allocator = 8;
    const long long wanted = 4LL * maskWidth * maskHeight > cached ? 4LL * maskWidth * maskHeight : cached;
    const long long band = (static_cast<long long>(roi.width) + maskWidth) * (maskHeight + 16) - allocator;
    return static_cast<std::ptrdiff_t>(band < wanted ? band : wanted);
}

ORV_INLINE int least(int a, int b) { return a < b ? a : b; }

Status by_ranks(const float* src, int srcStep, float* dst, int dstStep, Size roi, int maskWidth, int maskHeight)
{
    const bool rightwards = maskHeight <= maskWidth;
    constexpr std::ptrdiff_t pixel = sizeof(float);
    const auto axes = [=](std::ptrdiff_t step) { return rightwards ? Axes{pixel, step} : Axes{step, pixel}; };
    const Axes from = axes(srcStep), to = axes(dstStep);
    const TileShape whole = rightwards ? TileShape{roi.width, roi.height, maskWidth, maskHeight}
                                       : TileShape{roi.height, roi.width, maskHeight, maskWidth};
    const TileShape tile = best_tile(whole, most_elements(roi, maskWidth, maskHeight));
    void* const memory = orv_allocate_checked(size_product(tile.elements(), RankedTile::kBytesPerElement));
    if (memory == nullptr) return StatusNoMemory;
    const float* const first = row_at(src, srcStep, -(maskHeight / 2)) - maskWidth / 2;
    for (int j = 0; j < whole.across; j += tile.across) {
        for (int i = 0; i < whole.along; i += tile.along) {
            TileShape part = tile;
            part.along = least(tile.along, whole.along - i);
            part.across = least(tile.across, whole.across - j);
            RankedTile(memory, part).run(from.at(first, i, j), from, to.at(dst, i, j), to);
        }
    }
    orv_release(memory);
    return StatusOk;
}

}  // namespace

// --- Kernels --------------------------------------------------------------------------------------

Status FilterMedian_32f_C1(const float* src, int srcStep, float* dst, int dstStep, Size roi, int maskWidth,
                           int maskHeight)
{
    if (const Status bad = check_images(src, srcStep, dst, dstStep, roi)) return bad;
    if (!is_mask_side(maskWidth) || !is_mask_side(maskHeight)) return StatusBadMaskSize;
    if constexpr (ORV_HAVE_VECTORS) {
        if (maskWidth == 3 && maskHeight == 3) return by_exchanges<3>(src, srcStep, dst, dstStep, roi);
        if (maskWidth == 5 && maskHeight == 5) return by_exchanges<5>(src, srcStep, dst, dstStep, roi);
    }
    return by_ranks(src, srcStep, dst, dstStep, roi, maskWidth, maskHeight);
}

}  // namespace ORV_LEVEL
}  // namespace median
}  // namespace orv
