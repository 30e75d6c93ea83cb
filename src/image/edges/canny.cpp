#include "image/edges/canny.h"

#include "core/checks.h"
#include "core/float_control.h"
#include "core/memory.h"
#include "image/edges/spreading.h"
#include "simd/conversion.h"
#include "simd/vec.h"

namespace orv {
namespace canny {
namespace ORV_LEVEL {
namespace {

using std::size_t;
using std::uint8_t;

// --- Numbers --------------------------------------------------------------------------------------

using Floats = simd::widest<float>;
// As many doubles; of the two lanes of a lone float's the first counts.
using Doubles = decltype(simd::to_double(Floats(0.0f)));
constexpr int kLanes = Floats::N;

// A bit for each lane that a mask has, and for each lane with its sign bit set.
template <class M>
ORV_INLINE uint32_t lanes(simd::twice<M> mask)
{
    if constexpr (M::N == 1) return simd::lanes_of(mask.lo);
    else return simd::lanes_of(mask.lo) | simd::lanes_of(mask.hi) << M::N;
}
template <class V>
ORV_INLINE uint32_t negative_lanes(V a)
{
    if constexpr (V::N == 1) return simd::bits(a).v >> 31;
    else return simd::lanes_of(a);
}

// --- Directions -----------------------------------------------------------------------------------

// The lanes in whose direction the gradient points: eight directions in four pairs.
struct Directions {
    uint32_t across, down, falling;  // falling: from the upper left to the lower right

    ORV_INLINE Directions(Floats gx, Floats gy)
    {
        const Doubles a = simd::to_double(simd::magnitude(gx)), b = simd::to_double(simd::magnitude(gy));
        const Doubles tangent(0x1.a827999fcef32p-2);  // of 22.5 degrees
        across = lanes(greater_equal(a * tangent, b));
        down = lanes(greater_equal(b * tangent, a));
        falling = ~negative_lanes(gx ^ gy);
    }
    ORV_INLINE uint32_t choose(uint32_t on_across, uint32_t on_down, uint32_t on_falling, uint32_t on_rising) const
    {
        const uint32_t diagonal = (falling & on_falling) | (~falling & on_rising);
        return (across & on_across) | (~across & ((down & on_down) | (~down & diagonal)));
    }
};

// --- Strips ---------------------------------------------------------------------------------------
//
// A region is worked on in strips of columns from top to bottom, so that what is kept of the last rows is small and
// stays in the nearest cache.

constexpr int kMostColumns = 512;
constexpr int kPad = 16;  // elements before and behind a row's columns, for neighbours and whole vectors

struct StripShape {
    int columns, length;  // a multiple of 64; elements in memory
    ORV_INLINE explicit StripShape(Size roi)
    {
        const int most = roi.height < 16 ? kWordPixels : kMostColumns;
        columns = roi.width < most ? roi.width : most;
        length = (columns + 2 * kPad + 15) / 16 * 16;
    }
    static constexpr int kFloatRows = 1 + 3 + 3 + 2 + 2, kDoubleRows = 3;
    ORV_INLINE long long bytes() const { return (4LL * kFloatRows + 8LL * kDoubleRows) * length; }
};

// Rows of the last few y, from -1 on.
template <class T, int count>
struct Ring {
    T* first;
    int length;
    ORV_INLINE T* operator[](int y) const { return first + (y + count) % count * length + kPad; }
};

class Strip {
public:
    // Takes its rows from the start of `memory`.
    Strip(const float* src, int step, Size roi, StripShape shape, double* memory) : src_(src), step_(step), roi_(roi)
    {
        __builtin_memset(memory, 0, static_cast<size_t>(shape.bytes()));
        magnitudes_ = {memory, shape.length};
        auto* const floats = reinterpret_cast<float*>(memory + shape.kDoubleRows * shape.length);
        const auto rows = [&](int n) { return floats + n * shape.length; };
        pixels_ = rows(0) + kPad;
        across_ = {rows(1), shape.length};
        down_ = {rows(4), shape.length};
        gx_ = {rows(7), shape.length};
        gy_ = {rows(9), shape.length};
    }

    // visit(y, candidates, strong) for every row of n columns from x on, with words of pixels for each.
    template <class Visit>
    void run(ptrdiff_t x, int n, double low, double high, Visit visit)
    {
        x_ = x;
        n_ = n;
        derive(-1);
        derive(0);
        __builtin_memset(magnitudes_[-1] - kPad, 0, static_cast<size_t>(magnitudes_.length) * sizeof(double));
        for (int y = 0; y <= roi_.height; ++y) {
            if (y < roi_.height) {
                derive(y + 1);
                find_gradients(y);
            } else {
                __builtin_memset(magnitudes_[y] - kPad, 0, static_cast<size_t>(magnitudes_.length) * sizeof(double));
            }
            if (y > 0) find_candidates(y - 1, low, high, visit);
        }
    }

private:
    // A row's columns from -2 to n + 1; those outside the region are like the nearest inside. Moved as bits.
    void fetch(int y)
    {
        const int row = y < 0 ? 0 : y >= roi_.height ? roi_.height - 1 : y;
        const ptrdiff_t begin = x_ < 2 ? -x_ : -2, behind = roi_.width - x_ - n_, end = n_ + (behind < 2 ? behind : 2);
        auto* const to = reinterpret_cast<uint32_t*>(pixels_);
        __builtin_memcpy(to + begin, row_at(src_, step_, row) + x_ + begin, static_cast<size_t>(end - begin) * sizeof(float));
        for (ptrdiff_t i = -2; i < begin; ++i) to[i] = to[begin];
        for (ptrdiff_t i = end; i < n_ + 2; ++i) to[i] = to[end - 1];
    }

    // Differences and weighted sums along a row, from column -1 to n.
    void derive(int y)
    {
        fetch(y);
        float *const across = across_[y], *const down = down_[y];
        for (int i = -1; i <= n_; i += kLanes) {
            const Floats left = simd::load<Floats>(pixels_ + i - 1), right = simd::load<Floats>(pixels_ + i + 1);
            const Floats middle = simd::load<Floats>(pixels_ + i);
            simd::store(across + i, right - left);
            simd::store(down + i, (left + right) + (middle + middle));
        }
    }

    void find_gradients(int y)
    {
        const float *const above = across_[y - 1], *const beside = across_[y], *const below = across_[y + 1];
        const float *const upper = down_[y - 1], *const lower = down_[y + 1];
        float *const gx = gx_[y], *const gy = gy_[y];
        double* const magnitudes = magnitudes_[y];
        for (int i = -1; i <= n_; i += kLanes) {
            const Floats middle = simd::load<Floats>(beside + i);
            const Floats x = (simd::load<Floats>(above + i) + simd::load<Floats>(below + i)) + (middle + middle);
            const Floats y_part = simd::load<Floats>(lower + i) - simd::load<Floats>(upper + i);
            simd::store(gx + i, x);
            simd::store(gy + i, y_part);
            const Doubles a = simd::to_double(x), b = simd::to_double(y_part);
            // A NaN counts as 0: max gives its second operand for it.
            simd::store(magnitudes + i, max(a * a + b * b, Doubles(0.0)));
        }
        if (x_ == 0) magnitudes[-1] = 0;
        if (x_ + n_ == roi_.width) magnitudes[n_] = 0;
    }

    template <class Visit>
    void find_candidates(int y, double low, double high, Visit visit)
    {
        const int words = (n_ - 1) / kWordPixels + 1;
        uint64_t candidates[kMostColumns / kWordPixels] = {}, strong[kMostColumns / kWordPixels] = {};
        for (int i = 0; i < n_; i += kLanes) {
            const Doubles m = simd::load<Doubles>(magnitudes_[y] + i);
            if (lanes(greater(m, Doubles(low))) == 0) continue;
            const uint32_t found = lanes_on_crests(y, i, m) & lanes(greater(m, Doubles(low)));
            candidates[i / kWordPixels] |= uint64_t{found} << i % kWordPixels;
            strong[i / kWordPixels] |= uint64_t{found & lanes(greater(m, Doubles(high)))} << i % kWordPixels;
        }
        if (n_ % kWordPixels != 0) {
            candidates[words - 1] &= (uint64_t{1} << n_ % kWordPixels) - 1;
            strong[words - 1] &= candidates[words - 1];
        }
        visit(y, candidates, strong);
    }
    // Above the earlier of the two neighbours in the gradient's direction, and not below the later.
    ORV_INLINE uint32_t lanes_on_crests(int y, int i, Doubles m) const
    {
        const double *const above = magnitudes_[y - 1] + i, *const beside = magnitudes_[y] + i, *const below = magnitudes_[y + 1] + i;
        const auto between = [&](const double* earlier, const double* later) __attribute__((always_inline)) {
            return lanes(greater(m, simd::load<Doubles>(earlier))) & lanes(greater_equal(m, simd::load<Doubles>(later)));
        };
        const Directions to(simd::load<Floats>(gx_[y] + i), simd::load<Floats>(gy_[y] + i));
        return to.choose(between(beside - 1, beside + 1), between(above, below), between(above - 1, below + 1), between(above + 1, below - 1));
    }

    const float* src_;
    int step_;
    Size roi_;
    Ring<double, 3> magnitudes_;
    float* pixels_;
    Ring<float, 3> across_, down_;
    Ring<float, 2> gx_, gy_;
    ptrdiff_t x_ = 0;
    int n_ = 0;
};

// --- Hysteresis -----------------------------------------------------------------------------------

struct Prepared {
    ORV_INLINE void prepare(int, ptrdiff_t) const {}
};

// Eight bytes that are 255 where a byte has a bit, the lowest bit first.
ORV_INLINE uint64_t bytes_of_bits(uint64_t bits)
{
    const uint64_t one_each = (bits * 0x0101010101010101) & 0x8040201008040201;
    return ((one_each + 0x7F7F7F7F7F7F7F7F) >> 7 & 0x0101010101010101) * 255;
}
// Those of 64 pixels, or of the n that there are: 0 becomes 255, which becomes 0.
ORV_INLINE void invert_pixels(uint8_t* p, uint64_t pixels, ptrdiff_t n)
{
    if (n < kWordPixels) {
        for (; pixels != 0; pixels &= pixels - 1) p[lowest_bit(pixels)] ^= 255;
        return;
    }
    for (; pixels != 0; pixels >>= 8, p += 8) {
        auto* const eight = reinterpret_cast<uint64_t*>(p);
        put(eight, get(eight) ^ bytes_of_bits(pixels & 255));
    }
}

void find_edges(const float* src, int srcStep, uint8_t* dst, int dstStep, Size roi, double low, double high, double* memory)
{
    const BitRows rows(roi);
    const StripShape shape(roi);
    auto* const weak = reinterpret_cast<uint64_t*>(memory + shape.bytes() / 8);
    uint64_t* const fresh = weak + rows.words * rows.height;
    uint64_t* const waiting = fresh + rows.words * rows.height;
    auto* const marks = reinterpret_cast<uint32_t*>(waiting + rows.row_bits_bytes() / 8);
    __builtin_memset(waiting, 0, static_cast<size_t>(rows.row_bits_bytes() + rows.mark_bytes()));

    Prepared all;
    Spreading<Prepared> spreading(rows, weak, fresh, marks, waiting, all);
    Strip strip(src, srcStep, roi, shape, memory);
    for (ptrdiff_t x = 0; x < roi.width; x += shape.columns) {
        const int n = roi.width - x < shape.columns ? static_cast<int>(roi.width - x) : shape.columns;
        strip.run(x, n, low, high, [&](int y, const uint64_t* candidates, const uint64_t* strong) {
            uint8_t* const d = row_at(dst, dstStep, y) + x;
            __builtin_memset(d, 0, static_cast<size_t>(n));
            for (int i = 0; i * kWordPixels < n; ++i) {
                const ptrdiff_t word = x / kWordPixels + i;
                invert_pixels(d + i * kWordPixels, candidates[i], n - i * kWordPixels);
                weak[y * rows.words + word] = candidates[i] & ~strong[i];
                fresh[y * rows.words + word] = strong[i];
                if (strong[i] != 0) spreading.mark(y, word / kBlockWords);
            }
        });
    }
    spreading.run();
    for (int y = 0; y < roi.height; ++y) {
        for (ptrdiff_t word = 0; word < rows.words; ++word) {
            invert_pixels(row_at(dst, dstStep, y) + word * kWordPixels, weak[y * rows.words + word], roi.width - word * kWordPixels);
        }
    }
}

}  // namespace

// --- Kernel ---------------------------------------------------------------------------------------

Status Canny_32f8u_C1(const float* src, int srcStep, uint8_t* dst, int dstStep, Size roi, const float* lowThreshold,
                      const float* highThreshold)
{
    if (const Status bad = check_image(roi, src, dst)) return bad;
    if (any_below_one(srcStep, dstStep)) return StatusBadStep;
    const FloatControl control;
    const double low = static_cast<double>(*lowThreshold), high = static_cast<double>(*highThreshold);
    if (!(low >= 0 && low <= high)) return StatusBadThreshold;
    const BitRows rows(roi);
    const long long bytes = StripShape(roi).bytes() + 2 * rows.plane_bytes() + rows.row_bits_bytes() + rows.mark_bytes();
    void* const memory = orv_allocate_checked(bytes);
    if (memory == nullptr) return StatusNoMemory;
    find_edges(src, srcStep, dst, dstStep, roi, low * low, high * high, static_cast<double*>(memory));
    orv_release(memory);
    return StatusOk;
}

}  // namespace ORV_LEVEL
}  // namespace canny
}  // namespace orv
