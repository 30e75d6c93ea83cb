// Box and Gauss filters on 8- and 16-bit pixels. Sums of integers are exact in any order, so column
// sums run from row to row, and rows are summed as it suits the vectors.
#include <cstdint>

#include "core/float_control.h"
#include "core/memory.h"
#include "elementwise/scaling.h"
#include "simd/pixels.h"
#include "simd/reductions.h"
#include "simd/vec.h"
#include "image/filters/filters_common.h"
#include "image/filters/strips.h"

namespace orv {
namespace filters_integer {
namespace ORV_LEVEL {
namespace {

using std::int16_t;
using std::int32_t;
using std::uint16_t;
using std::uint32_t;
using std::uint8_t;

constexpr int kIntegerStrip = 1024;

// Two rows of column sums, as long as a strip with its frame needs, each in two halves.
constexpr std::ptrdiff_t kHalfRow = kIntegerStrip / 2 + 16;
template <class T> constexpr int kColumnBytes = 4 * static_cast<int>(kHalfRow) * 2 * static_cast<int>(sizeof(T));

// --- Meaning --------------------------------------------------------------------------------------

// The mean of 9 or 25 pixels, rounded to nearest. (An odd number of pixels has no ties.)
template <int Radius>
struct Mean {
    static constexpr uint32_t kCount = (2 * Radius + 1) * (2 * Radius + 1);
    static constexpr ORV_INLINE uint32_t one(uint32_t sum) { return (sum + kCount / 2) / kCount; }
#if ORV_HAVE_VECTORS
    // Sums of bytes: the division is a multiplication by kFactor / 2^(16 + kShift).
    static constexpr uint32_t kShift = Radius == 1 ? 0 : 3;
    static constexpr uint32_t kFactor = (65536u << kShift) / kCount + 1;
    static constexpr bool multiplication_divides()
    {
        for (uint32_t sum = 0; sum <= 255 * kCount; ++sum) {
            if ((sum + kCount / 2) * kFactor >> (16 + kShift) != one(sum)) return false;
        }
        return true;
    }
    static constexpr int16_t kRoundingFactor = 32768 / kCount + 1;
    static constexpr bool rounding_multiplication_divides()
    {
        for (uint32_t sum = 0; sum <= 255 * kCount; ++sum) {
            if ((sum * kRoundingFactor + 16384) >> 15 != one(sum)) return false;
        }
        return true;
    }
    template <int N> static ORV_INLINE simd::vec<uint16_t, N> many(simd::vec<uint16_t, N> sum)
    {
        static_assert(Radius != 1 || rounding_multiplication_divides(), "the factor is too short");
        static_assert(multiplication_divides(), "the factor is too short");
        using V = simd::vec<uint16_t, N>;
#if ORV_HAVE_INT256
        // One instruction that rounds, where its 15 bits are enough.
        if constexpr (Radius == 1) {
            const auto factor = simd::splat<simd::vec<int16_t, N>>(kRoundingFactor);
            return simd::as<uint16_t>(simd::mul_rounded(simd::as<int16_t>(sum), factor));
        }
#endif
        const V q = simd::mul_high(sum + simd::splat<V>(kCount / 2), simd::splat<V>(static_cast<uint16_t>(kFactor)));
        if constexpr (kShift == 0) return q;
        return q >> simd::count(kShift);
    }
    // Sums of 16-bit pixels are floats without loss. The quotient is off by less than 0.01, and
    // no quotient is that close to a half: the nearest is 1 / 50 away.
    template <int N> static ORV_INLINE simd::vec<uint32_t, N> many(simd::vec<uint32_t, N> sum)
    {
        using F = simd::vec<float, N>;
        const F quotient = simd::to_float(simd::as<int32_t>(sum)) * simd::splat<F>(1.0f / kCount);
        return simd::as<uint32_t>(simd::round_to_int(quotient));
    }
#endif
};

// A sixteenth, rounded to nearest, ties to even.
struct Sixteenth {
    static ORV_INLINE uint32_t one(uint32_t sum) { return (sum + (sum >> 4 & 1) + 7) >> 4; }
    template <int N> static ORV_INLINE simd::vec<uint32_t, N> many(simd::vec<uint32_t, N> sum)
    {
        using V = simd::vec<uint32_t, N>;
        const simd::count four(4);
        return (sum + ((sum >> four) & simd::splat<V>(1)) + simd::splat<V>(7)) >> four;
    }
};

// One 571st in fixed point: rounded to nearest, as long as the quotient is a 16-bit number.
struct Part571 {
    static constexpr uint32_t kHalf = 286;
    static constexpr uint32_t kFactor = 7521834;  // 2^32 / 571
    static ORV_INLINE uint32_t one(uint32_t sum)
    {
        return static_cast<uint32_t>(std::uint64_t{sum + kHalf} * kFactor >> 32);
    }
    template <int N> static ORV_INLINE simd::vec<uint32_t, N> many(simd::vec<uint32_t, N> sum)
    {
        return simd::mul_high(sum + simd::splat<simd::vec<uint32_t, N>>(kHalf), kFactor);
    }
};

constexpr int kGauss5[3][3] = {{127, 52, 12}, {52, 31, 7}, {12, 7, 2}};  // by distance from the centre
constexpr int kGauss3[2][2] = {{4, 2}, {2, 1}};
constexpr int distance(int k) { return k < 0 ? -k : k; }

template <int Radius>
struct BoxWeights {
    static constexpr int kRadius = Radius;
    static constexpr uint32_t at(int, int) { return 1; }
};
struct Gauss3Weights {
    static constexpr int kRadius = 1;
    static constexpr uint32_t at(int x, int y) { return static_cast<uint32_t>(kGauss3[distance(y)][distance(x)]); }
};
struct Gauss5Weights {
    static constexpr int kRadius = 2;
    static constexpr uint32_t at(int x, int y) { return static_cast<uint32_t>(kGauss5[distance(y)][distance(x)]); }
};

// n results of one row whose centre is at s, from the definition.
template <class Weights, class Finish, class T>
void plain_row(const T* s, int srcStep, std::ptrdiff_t channels, T* dst, std::ptrdiff_t n)
{
    for (std::ptrdiff_t i = 0; i < n; ++i) {
        uint32_t sum = 0;
        for (int y = -Weights::kRadius; y <= Weights::kRadius; ++y) {
            const T* const row = row_at(s, srcStep, y) + i;
            for (int x = -Weights::kRadius; x <= Weights::kRadius; ++x) {
                sum += Weights::at(x, y) * get(row + channels * x);
            }
        }
        put(dst + i, static_cast<T>(Finish::one(sum)));
    }
}

#if ORV_HAVE_VECTORS
// --- Loops ----------------------------------------------------------------------------------------
//
// A vector of pixels is split into its even and its odd elements, which widens them without a shuffle,
// and so are the rows of column sums in memory: element j is even[j / 2] or odd[j / 2]. Rows end with a
// vector that overlaps its neighbour, and starts on an even element; if one is left, it is done alone.

template <class T>
struct Split {
    using W = wider_t<T>;
    using Pixels = simd::widest<T>;
    using V = simd::widest<W>;
    static constexpr int kBits = 8 * sizeof(T);
    V even, odd;

    static ORV_INLINE Split of(const T* p)
    {
        const V v = simd::as<W>(simd::load<Pixels>(p));
        return {v & simd::splat<V>(static_cast<W>((1u << kBits) - 1)), v >> simd::count(kBits)};
    }
    ORV_INLINE Pixels merged() const { return simd::as<T>(even | (odd << simd::count(kBits))); }
};

// Vectors of T cover the elements from 0 on; whatever is at an odd end is done by `single`.
template <class T, class Many, class Single>
ORV_INLINE void cover(std::ptrdiff_t n, Many many, Single single)
{
    constexpr int N = Split<T>::Pixels::N;
    ORV_ASSERT(n >= N);
    std::ptrdiff_t i = 0;
    for (; i <= n - N; i += N) many(i);
    if (i == n) return;
    many((n - N) & ~std::ptrdiff_t{1});
    if ((n & 1) != 0) single(n - 1);
}

template <class T>
struct SplitRow {
    using W = wider_t<T>;
    W* even;
    W* odd;

    ORV_INLINE Split<T> load(std::ptrdiff_t j) const
    {
        using V = typename Split<T>::V;
        return {simd::load<V>(even + (j >> 1)), simd::load<V>(odd + (j >> 1))};
    }
    ORV_INLINE void store(std::ptrdiff_t j, const Split<T>& s) const
    {
        simd::store(even + (j >> 1), s.even);
        simd::store(odd + (j >> 1), s.odd);
    }
    ORV_INLINE W& at(std::ptrdiff_t j) const { return ((j & 1) != 0 ? odd : even)[j >> 1]; }
    // The vector that has elements j, j + 2, ...; `offset` of j is known to the compiler.
    template <int offset> ORV_INLINE auto every_second(std::ptrdiff_t j) const
    {
        using V = typename Split<T>::V;
        return simd::load<V>((offset % 2 != 0 ? odd : even) + (j >> 1) + offset / 2);
    }
};

template <class T>
SplitRow<T> split_row(void* memory, int index)
{
    using W = wider_t<T>;
    W* const row = static_cast<W*>(memory) + 2 * kHalfRow * index;
    return {row, row + kHalfRow};
}

// after = before + the new row (- the old row).
template <bool subtract, class T>
void run_columns(const SplitRow<T>& before, const SplitRow<T>& after, const T* added, const T* dropped,
                 std::ptrdiff_t n)
{
    using W = wider_t<T>;
    cover<T>(n, [=](std::ptrdiff_t j) {
        Split<T> sum = before.load(j);
        const Split<T> a = Split<T>::of(added + j);
        sum = {sum.even + a.even, sum.odd + a.odd};
        if (subtract) {
            const Split<T> d = Split<T>::of(dropped + j);
            sum = {sum.even - d.even, sum.odd - d.odd};
        }
        after.store(j, sum);
    }, [=](std::ptrdiff_t j) {
        after.at(j) = static_cast<W>(before.at(j) + get(added + j) - (subtract ? get(dropped + j) : T{0}));
    });
}

// Adds elements k, k + Channels, ... to the sums of the even and, one further on, of the odd elements.
template <int Channels, int k, int last, class T>
ORV_INLINE void add_neighbours(const SplitRow<T>& columns, std::ptrdiff_t i, Split<T>& sum)
{
    if constexpr (k <= last) {
        sum = {sum.even + columns.template every_second<k>(i), sum.odd + columns.template every_second<k + 1>(i)};
        add_neighbours<Channels, k + Channels, last>(columns, i, sum);
    }
}

template <int Radius, int Channels, class T>
void box_row(const SplitRow<T>& columns, T* dst, std::ptrdiff_t n)
{
    using Finish = Mean<Radius>;
    cover<T>(n, [=](std::ptrdiff_t i) {
        Split<T> sum = columns.load(i);
        add_neighbours<Channels, Channels, 2 * Radius * Channels>(columns, i, sum);
        simd::store(dst + i, Split<T>{Finish::many(sum.even), Finish::many(sum.odd)}.merged());
    }, [=](std::ptrdiff_t i) {
        uint32_t sum = 0;
        for (int k = 0; k <= 2 * Radius; ++k) sum += columns.at(i + k * Channels);
        put(dst + i, static_cast<T>(Finish::one(sum)));
    });
}

// Of three rows it is quicker to add them anew. All bits are added first: what the odd elements gave to
// that comes off again.
template <class T>
void add_three_rows(const SplitRow<T>& columns, const T* above, const T* centre, const T* below, std::ptrdiff_t n)
{
    using W = wider_t<T>;
    using V = typename Split<T>::V;
    cover<T>(n, [=](std::ptrdiff_t j) {
        const auto words = [j](const T* row) { return simd::as<W>(simd::load<typename Split<T>::Pixels>(row + j)); };
        const simd::count bits(Split<T>::kBits);
        const V a = words(above), b = words(centre), c = words(below);
        const V odd = (a >> bits) + (b >> bits) + (c >> bits);
        columns.store(j, {a + b + c - (odd << bits), odd});
    }, [=](std::ptrdiff_t j) {
        columns.at(j) = static_cast<W>(get(above + j) + get(centre + j) + get(below + j));
    });
}

template <int Radius, int Channels, class T>
void box_strip(const T* src, int srcStep, T* dst, int dstStep, int height, std::ptrdiff_t n, void* memory)
{
    constexpr std::ptrdiff_t frame = Radius * Channels;
    const std::ptrdiff_t columns = n + 2 * frame;
    SplitRow<T> before = split_row<T>(memory, 0), after = split_row<T>(memory, 1);
    const T* const first = src - frame;
    if constexpr (Radius == 1) {
        for (int y = 0; y < height; ++y) {
            add_three_rows(after, row_at(first, srcStep, y - 1), row_at(first, srcStep, y),
                           row_at(first, srcStep, y + 1), columns);
            box_row<Radius, Channels>(after, row_at(dst, dstStep, y), n);
        }
        return;
    }
    for (std::ptrdiff_t j = 0; j < columns; ++j) before.at(j) = 0;
    for (int y = -Radius; y < height + Radius; ++y) {
        const T* const added = row_at(first, srcStep, y);
        if (y <= Radius) run_columns<false>(before, after, added, added, columns);
        else run_columns<true>(before, after, added, row_at(first, srcStep, y - 2 * Radius - 1), columns);
        if (y >= Radius) box_row<Radius, Channels>(after, row_at(dst, dstStep, y - Radius), n);
        const SplitRow<T> swapped = before;
        before = after;
        after = swapped;
    }
}

// --- Gauss ----------------------------------------------------------------------------------------

void gauss3_strip(const uint16_t* src, int srcStep, uint16_t* dst, int dstStep, int height, std::ptrdiff_t n,
                  void* memory)
{
    using S = Split<uint16_t>;
    const SplitRow<uint16_t> columns = split_row<uint16_t>(memory, 0);
    for (int y = 0; y < height; ++y) {
        const uint16_t* const above = row_at(src, srcStep, y - 1) - 1;
        const uint16_t* const centre = row_at(src, srcStep, y) - 1;
        const uint16_t* const below = row_at(src, srcStep, y + 1) - 1;
        cover<uint16_t>(n + 2, [=](std::ptrdiff_t j) {
            const S a = S::of(above + j), b = S::of(centre + j), c = S::of(below + j);
            columns.store(j, {a.even + b.even + (b.even + c.even), a.odd + b.odd + (b.odd + c.odd)});
        }, [=](std::ptrdiff_t j) {
            columns.at(j) = get(above + j) + 2u * get(centre + j) + get(below + j);
        });
        uint16_t* const d = row_at(dst, dstStep, y);
        cover<uint16_t>(
            n,
            [=](std::ptrdiff_t i) {
                const auto c0 = columns.every_second<0>(i), c1 = columns.every_second<1>(i);
                const auto c2 = columns.every_second<2>(i), c3 = columns.every_second<3>(i);
                const auto shared = c1 + c2;
                simd::store(d + i, S{Sixteenth::many(c0 + c1 + shared), Sixteenth::many(shared + c2 + c3)}.merged());
            },
            [=](std::ptrdiff_t i) {
                put(d + i,
                    static_cast<uint16_t>(Sixteenth::one(columns.at(i) + 2 * columns.at(i + 1) + columns.at(i + 2))));
            });
    }
}

// Products with neighbours in pairs. The instruction is one for signed numbers, so 32768 is taken off
// every pixel and put back into the sum.
class Gauss5 {
public:
    using S = Split<uint16_t>;
    using Pixels = S::Pixels;

    ORV_INLINE Gauss5()
    {
        for (int y = 0; y <= 2; ++y) {
            const int a = kGauss5[y][2], b = kGauss5[y][1], c = kGauss5[y][0];
            even_[y][0] = pairs(a, b);
            odd_[y][2] = pairs(b, a);
            even_[y][1] = pairs(c, b);
            odd_[y][1] = pairs(b, c);
            even_[y][2] = pairs(a, 0);
            odd_[y][0] = pairs(0, a);
        }
    }

    ORV_INLINE Pixels at(const uint16_t* s, int srcStep) const
    {
        constexpr uint32_t offset = 571u * 32768u;
        S sum = {simd::splat<S::V>(offset), simd::splat<S::V>(offset)};
        unrolled<5>([&](int j) __attribute__((always_inline)) {
            const uint16_t* const row = row_at(s, srcStep, j - 2) - 2;
            unrolled<3>([&](int k) __attribute__((always_inline)) {
                const Pixels pixels = simd::load<Pixels>(row + 2 * k) ^ simd::splat<Pixels>(32768);
                sum.even = sum.even + sums_of_pairs(pixels, even_[distance(j - 2)][k]);
                sum.odd = sum.odd + sums_of_pairs(pixels, odd_[distance(j - 2)][k]);
            });
        });
        return S{Part571::many(sum.even), Part571::many(sum.odd)}.merged();
    }

private:
    static ORV_INLINE S::V sums_of_pairs(Pixels a, Pixels weights)
    {
        return simd::as<uint32_t>(sum_of_products(simd::as<int16_t>(a), simd::as<int16_t>(weights)));
    }
    static ORV_INLINE Pixels pairs(int first, int second)
    {
        return simd::as<uint16_t>(
            simd::splat<S::V>(static_cast<uint32_t>(first) | static_cast<uint32_t>(second) << 16));
    }
    // By distance of the row: what the pixels from -2, from 0 and from 2 on count for the result at
    // the even one of a pair, and at the odd one.
    Pixels even_[3][3], odd_[3][3];
};

void gauss5_rows(const uint16_t* src, int srcStep, uint16_t* dst, int dstStep, Size roi)
{
    const Gauss5 gauss;
    constexpr int N = Gauss5::Pixels::N;
    for (int y = 0; y < roi.height; ++y) {
        const uint16_t* const s = row_at(src, srcStep, y);
        uint16_t* const d = row_at(dst, dstStep, y);
        std::ptrdiff_t i = 0;
        for (; i < roi.width - N; i += N) simd::store(d + i, gauss.at(s + i, srcStep));
        simd::store(d + roi.width - N, gauss.at(s + roi.width - N, srcStep));
    }
}
#endif

// `strip` does the strips that are no narrower than a vector.
template <class Weights, class Finish, class T, class Strip>
Status filter(const T* src, int srcStep, T* dst, int dstStep, Size roi, std::ptrdiff_t channels, Strip strip)
{
    // The plain variant has no use for it, but is to run out of memory where the others do.
    void* const memory = orv_allocate(kColumnBytes<T>);
    if (memory == nullptr) return StatusNoMemory;
#if ORV_HAVE_VECTORS
    const FloatControl control;
    const Strips strips(roi.width * channels, kIntegerStrip);
    for (std::ptrdiff_t x = 0; x < strips.total; x += strips.width) {
        const std::ptrdiff_t n = strips.columns_at(x);
        if (n >= simd::widest<T>::N) {
            strip(src + x, srcStep, dst + x, dstStep, roi.height, n, memory);
            continue;
        }
        for (int y = 0; y < roi.height; ++y) {
            plain_row<Weights, Finish>(row_at(src, srcStep, y) + x, srcStep, channels, row_at(dst, dstStep, y) + x, n);
        }
    }
#else
    static_cast<void>(strip);
    for (int y = 0; y < roi.height; ++y) {
        plain_row<Weights, Finish>(row_at(src, srcStep, y), srcStep, channels, row_at(dst, dstStep, y),
                                   roi.width * channels);
    }
#endif
    orv_release(memory);
    return StatusOk;
}

// The plain variant has no strips, so what does them is named here only.
#if ORV_HAVE_VECTORS
template <int Radius, int Channels, class T>
constexpr auto box_strips = box_strip<Radius, Channels, T>;
constexpr auto gauss3_strips = gauss3_strip;
#else
template <int Radius, int Channels, class T>
constexpr int box_strips = 0;
constexpr int gauss3_strips = 0;
#endif

template <int Channels, class T>
Status lowpass(const T* src, int srcStep, T* dst, int dstStep, Size roi, int mask)
{
    if (const Status bad = check_filter(src, srcStep, dst, dstStep, roi, mask)) return bad;
    if (mask == mask_3x3) {
        return filter<BoxWeights<1>, Mean<1>>(src, srcStep, dst, dstStep, roi, Channels, box_strips<1, Channels, T>);
    }
    return filter<BoxWeights<2>, Mean<2>>(src, srcStep, dst, dstStep, roi, Channels, box_strips<2, Channels, T>);
}

Status gauss5(const uint16_t* src, int srcStep, uint16_t* dst, int dstStep, Size roi)
{
#if ORV_HAVE_VECTORS
    if (roi.width >= Gauss5::Pixels::N) {
        gauss5_rows(src, srcStep, dst, dstStep, roi);
        return StatusOk;
    }
#endif
    for (int y = 0; y < roi.height; ++y) {
        plain_row<Gauss5Weights, Part571>(row_at(src, srcStep, y), srcStep, 1, row_at(dst, dstStep, y), roi.width);
    }
    return StatusOk;
}

}  // namespace

// --- Kernels --------------------------------------------------------------------------------------

Status FilterLowpass_8u_C1(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, Size roi, int mask)
{
    return lowpass<1>(src, srcStep, dst, dstStep, roi, mask);
}

Status FilterLowpass_8u_C3(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, Size roi, int mask)
{
    return lowpass<3>(src, srcStep, dst, dstStep, roi, mask);
}

Status FilterLowpass_16u_C1(const uint16_t* src, int srcStep, uint16_t* dst, int dstStep, Size roi, int mask)
{
    return lowpass<1>(src, srcStep, dst, dstStep, roi, mask);
}

Status FilterGauss_16u_C1(const uint16_t* src, int srcStep, uint16_t* dst, int dstStep, Size roi, int mask)
{
    if (const Status bad = check_filter(src, srcStep, dst, dstStep, roi, mask)) return bad;
    if (mask == mask_5x5) return gauss5(src, srcStep, dst, dstStep, roi);
    return filter<Gauss3Weights, Sixteenth>(src, srcStep, dst, dstStep, roi, 1, gauss3_strips);
}

}  // namespace ORV_LEVEL
}  // namespace filters_integer
}  // namespace orv
