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
constexpr double kTangent = 0x1.a827999fcef32p-2;  // of 22.5 degrees

// A bit for each lane that a mask has, and for each lane with its sign bit set.
template <class M>
ORV_INLINE uint32_t lanes(M mask)
{
    return simd::lanes_of(mask);
}
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

// Squares of gradients, and what they are compared with.
struct InDouble {
    using Element = double;
    using Many = Doubles;
    static ORV_INLINE Many of(Floats gradient) { return simd::to_double(gradient); }
    static ORV_INLINE Many threshold(double square) { return Many(square); }
};
// The same for gradients that are whole numbers up to 2896, as those of bytes are: their squares, and sums of two, are
// whole numbers below 2^24. Comparisons of one with the tangent of another have the same outcome as in double: there
// are few enough pairs to try.
struct InSingle {
    using Element = float;
    using Many = Floats;
    static ORV_INLINE Many of(Floats gradient) { return gradient; }
    static ORV_INLINE Many threshold(double square)
    {
        return Many(square < 0x1p24 ? static_cast<float>(static_cast<int>(square)) : 0x1p24f);
    }
};
constexpr float kMostWhole = 2896 / 8;  // of the pixels

// --- Directions -----------------------------------------------------------------------------------

// The lanes in whose direction the gradient points: eight directions in four pairs.
struct Directions {
    uint32_t across, down, falling;  // falling: from the upper left to the lower right

    template <class Many>
    ORV_INLINE Directions(Many gx, Many gy, uint32_t opposite_signs) : falling(~opposite_signs)
    {
        const Many a = magnitude(gx), b = magnitude(gy), tangent(static_cast<typename Many::lane>(kTangent));
        across = lanes(greater_equal(a * tangent, b));
        down = lanes(greater_equal(b * tangent, a));
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
        is_whole_ = kLanes > 1;
        derive(-1);
        derive(0);
        clear_magnitudes(-1);
        for (int y = 0; y <= roi_.height; ++y) {
            if (y < roi_.height) derive(y + 1);
            if (is_whole_) step<InSingle>(y, low, high, visit);
            else step<InDouble>(y, low, high, visit);
        }
    }

private:
    // A row's columns from -2 to n + 1; those outside the region are like the nearest inside. Moved as bits.
    void fetch(int y)
    {
        const int row = y < 0 ? 0 : y >= roi_.height ? roi_.height - 1 : y;
        const ptrdiff_t begin = x_ < 2 ? -x_ : -2, behind = roi_.width - x_ - n_, end = n_ + (behind < 2 ? behind : 2);
        auto* const to = reinterpret_cast<uint32_t*>(pixels_);
        __builtin_memcpy(to + begin, row_at(src_, step_, row) + x_ + begin,
                         static_cast<size_t>(end - begin) * sizeof(float));
        for (ptrdiff_t i = -2; i < begin; ++i) to[i] = to[begin];
        for (ptrdiff_t i = end; i < n_ + 2; ++i) to[i] = to[end - 1];
    }

    // The columns that have been fetched.
    bool fetched_are_whole() const
    {
        const Floats unit(0x1.8p23f);  // sums with it have no fraction
        simd::mask_of<Floats> whole = equal(unit, unit);
        for (int i = -kLanes; i < n_ + 2; i += kLanes) {
            const Floats pixels = simd::load<Floats>(pixels_ + i);
            whole = whole & equal((pixels + unit) - unit, pixels) & less_equal(magnitude(pixels), Floats(kMostWhole));
        }
        return all(whole);
    }

    // Differences and weighted sums along a row, from column -1 to n or, in whole vectors, from a little before it.
    void derive(int y)
    {
        fetch(y);
        if (is_whole_ && !fetched_are_whole()) go_on_in_double();
        float *const across = across_[y], *const down = down_[y];
        for (int i = -kLanes; i <= n_; i += kLanes) {
            const Floats left = simd::load<Floats>(pixels_ + i - 1), right = simd::load<Floats>(pixels_ + i + 1);
            const Floats middle = simd::load<Floats>(pixels_ + i);
            simd::store(across + i, right - left);
            simd::store(down + i, (left + right) + (middle + middle));
        }
    }

    template <class Element>
    ORV_INLINE Element* magnitudes(int y) const
    {
        return reinterpret_cast<Element*>(magnitudes_[y] - kPad) + kPad;
    }
    void clear_magnitudes(int y)
    {
        __builtin_memset(magnitudes_[y] - kPad, 0, static_cast<size_t>(magnitudes_.length) * sizeof(double));
    }
    // Magnitudes were floats so far.
    void go_on_in_double()
    {
        is_whole_ = false;
        for (int y = 0; y < 3; ++y) {
            for (int i = magnitudes_.length - kPad; i-- > -kPad;)
                magnitudes<double>(y)[i] = static_cast<double>(get(magnitudes<float>(y) + i));
        }
    }

    // The gradients of row y, and the candidates of the row above it.
    template <class Numbers, class Visit>
    void step(int y, double low, double high, Visit visit)
    {
        if (y < roi_.height) find_gradients<Numbers>(y);
        else clear_magnitudes(y);
        if (y > 0) find_candidates<Numbers>(y - 1, low, high, visit);
    }

    template <class Numbers>
    void find_gradients(int y)
    {
        using Many = typename Numbers::Many;
        const float *const above = across_[y - 1], *const beside = across_[y], *const below = across_[y + 1];
        const float *const upper = down_[y - 1], *const lower = down_[y + 1];
        float *const gx = gx_[y], *const gy = gy_[y];
        auto* const squares = magnitudes<typename Numbers::Element>(y);
        for (int i = -kLanes; i <= n_; i += kLanes) {
            const Floats middle = simd::load<Floats>(beside + i);
            const Floats x = (simd::load<Floats>(above + i) + simd::load<Floats>(below + i)) + (middle + middle);
            const Floats y_part = simd::load<Floats>(lower + i) - simd::load<Floats>(upper + i);
            simd::store(gx + i, x);
            simd::store(gy + i, y_part);
            const Many a = Numbers::of(x), b = Numbers::of(y_part);
            // A NaN counts as 0: max gives its second operand for it.
            simd::store(squares + i, max(a * a + b * b, Many(0)));
        }
        if (x_ == 0) squares[-1] = 0;
        if (x_ + n_ == roi_.width) squares[n_] = 0;
    }

    template <class Numbers, class Visit>
    void find_candidates(int y, double low, double high, Visit visit)
    {
        using Many = typename Numbers::Many;
        const Many above_low = Numbers::threshold(low), above_high = Numbers::threshold(high);
        uint64_t candidates[kMostColumns / kWordPixels] = {}, strong[kMostColumns / kWordPixels] = {};
        for (int i = 0; i < n_; i += kLanes) {
            const Many m = simd::load<Many>(magnitudes<typename Numbers::Element>(y) + i);
            const uint32_t any = lanes(greater(m, above_low));
            if (any == 0) continue;
            const uint32_t found = lanes_on_crests<Numbers>(y, i, m) & any;
            candidates[i / kWordPixels] |= uint64_t{found} << i % kWordPixels;
            strong[i / kWordPixels] |= uint64_t{found & lanes(greater(m, above_high))} << i % kWordPixels;
        }
        if (n_ % kWordPixels != 0) {
            candidates[n_ / kWordPixels] &= (uint64_t{1} << n_ % kWordPixels) - 1;
            strong[n_ / kWordPixels] &= candidates[n_ / kWordPixels];
        }
        visit(y, candidates, strong);
    }
    // Above the earlier of the two neighbours in the gradient's direction, and not below the later.
    template <class Numbers>
    ORV_INLINE uint32_t lanes_on_crests(int y, int i, typename Numbers::Many m) const
    {
        using Many = typename Numbers::Many;
        using Element = typename Numbers::Element;
        const Element *const above = magnitudes<Element>(y - 1) + i, *const beside = magnitudes<Element>(y) + i,
                             *const below = magnitudes<Element>(y + 1) + i;
        const auto between = [&](const Element* earlier, const Element* later) __attribute__((always_inline)) {
            return lanes(greater(m, simd::load<Many>(earlier))) & lanes(greater_equal(m, simd::load<Many>(later)));
        };
        const Floats gx = simd::load<Floats>(gx_[y] + i), gy = simd::load<Floats>(gy_[y] + i);
        const Directions to(Numbers::of(gx), Numbers::of(gy), negative_lanes(gx ^ gy));
        return to.choose(between(beside - 1, beside + 1), between(above, below), between(above - 1, below + 1),
                         between(above + 1, below - 1));
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
    bool is_whole_ = false;  // so far the strip's pixels are whole numbers, and its magnitudes floats
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

void find_edges(const float* src, int srcStep, uint8_t* dst, int dstStep, Size roi, double low, double high,
                double* memory)
{
    const BitRows rows(roi);
    const StripShape shape(roi);
    const SpreadingMemory planes(rows, memory + shape.bytes() / 8);
    uint64_t* const weak = planes.free;  // candidates that no strong one has reached

    Prepared all;
    Spreading<Prepared> spreading(rows, planes, all);
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
                planes.fresh[y * rows.words + word] = strong[i];
                if (strong[i] != 0) spreading.mark(y, word / kBlockWords);
            }
        });
    }
    spreading.run();
    for (int y = 0; y < roi.height; ++y) {
        for (ptrdiff_t word = 0; word < rows.words; ++word) {
            invert_pixels(row_at(dst, dstStep, y) + word * kWordPixels, weak[y * rows.words + word],
                          roi.width - word * kWordPixels);
        }
    }
}

}  // namespace

// --- Kernel ---------------------------------------------------------------------------------------

Status Canny_32f8u_C1(const float* src, int srcStep, uint8_t* dst, int dstStep, Size roi, const float* lowThreshold,
                      const float* highThreshold)
{
    if (const Status bad = check_images(src, srcStep, dst, dstStep, roi)) return bad;
    const FloatControl control;
    const double low = static_cast<double>(*lowThreshold), high = static_cast<double>(*highThreshold);
    if (!(low >= 0 && low <= high)) return StatusBadThreshold;
    void* const memory = orv_allocate_checked(StripShape(roi).bytes() + SpreadingMemory::bytes(BitRows(roi)));
    if (memory == nullptr) return StatusNoMemory;
    find_edges(src, srcStep, dst, dstStep, roi, low * low, high * high, static_cast<double*>(memory));
    orv_release(memory);
    return StatusOk;
}

}  // namespace ORV_LEVEL
}  // namespace canny
}  // namespace orv
