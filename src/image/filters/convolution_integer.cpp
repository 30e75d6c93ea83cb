// Convolution with integer weights. Sums are exact, so any way to form them gives the same result; the narrowest lanes
// that hold every sum of the call are taken, and kernels that are a column times a row take two passes.
#include "image/filters/convolution.h"

#include "image/filters/convolution_doubles.h"
#include "image/filters/convolution_factors.h"
#include "image/filters/convolution_pairs.h"
#include "image/filters/convolution_quotients.h"

namespace orv {
namespace convolution_integer {
namespace ORV_LEVEL {
namespace {

using std::int16_t;
using std::int32_t;
using std::int64_t;
using std::ptrdiff_t;
using std::uint16_t;
using std::uint64_t;
using std::uint8_t;

template <class From, class To>
using Job = Convolution<From, To, int>;

// --- Meaning --------------------------------------------------------------------------------------

// Sums stay below 2^63 in magnitude: 255 * 255 weights of 2^31 and pixels of 16 bits.
template <class From, class To>
To one(const Job<From, To>& job, int divisor, ptrdiff_t y, ptrdiff_t i)
{
    int64_t sum = 0;
    for (int r = 0; r < job.height; ++r) {
        const From* const row = job.source(y + r) + i;
        for (int c = 0; c < job.width; ++c) {
            sum += int64_t{get(job.weight(r, c))} * get(row + ptrdiff_t{c} * job.channels);
        }
    }
    return nearest_quotient<To>(sum, divisor);
}

template <class From, class To>
void convolve_plainly(const Job<From, To>& job, int divisor)
{
    for (ptrdiff_t y = 0; y < job.roi.height; ++y) {
        for (ptrdiff_t i = 0; i < job.elements(); ++i) put(job.result(y) + i, one(job, divisor, y, i));
    }
}
template <class From, class To>
Status plain(const Job<From, To>& job, int divisor)
{
    // Has no use for it, but is to run out of memory where the others do.
    return with_memory([](WorkingMemory& memory) { memory.take<char>(1); }, [&] { convolve_plainly(job, divisor); });
}

#if ORV_HAVE_VECTORS

// --- In pairs -------------------------------------------------------------------------------------

constexpr int kPairVectors = 4;  // of 32-bit sums in a block, or half as many of 16-bit ones
constexpr int kPairBlock = kPairVectors * WordPairs::Sums::N;
template <class Lanes> constexpr int vectors_of = kPairBlock / Lanes::Sums::N;
constexpr bool kBothRows = sizeof(void*) == 8;  // the sums of two rows need more registers than 32-bit code has

template <class Quotients, class To>
ORV_INLINE void store_quotients(To* to, const PairSums<WordPairs, kPairVectors>& sums, const Quotients& quotients)
{
    PairSums<WordPairs, kPairVectors> results;
#pragma GCC unroll 4
    for (int k = 0; k < kPairVectors; ++k) results[k] = quotients.many(sums[k]);
    store_packed(to, results);
}
#if ORV_HAVE_BYTE_SHUFFLE
template <class Quotients, class To>
ORV_INLINE void store_quotients(To* to, const PairSums<BytePairs, kPairVectors / 2>& sums, const Quotients& quotients)
{
    PairSums<BytePairs, kPairVectors / 2> results;
#pragma GCC unroll 2
    for (int k = 0; k < kPairVectors / 2; ++k) {
        if (Quotients::kNone) {
            results[k] = sums[k];
            continue;
        }
        const auto wide = simd::widen(sums[k]);
        results[k] = simd::narrow(simd::twice<WordPairs::Sums>{quotients.many(wide.lo), quotients.many(wide.hi)});
    }
    store_packed(to, results);
}
#endif

// The rows of pairs that a kernel spans, in a ring.
template <class Lanes>
struct PairRing {
    using Element = typename Lanes::Element;
    PairTaps kernel;
    ptrdiff_t span, stride;
    Element* ring;
    const Element** at;

    ORV_INLINE void lay_out(int rows, int columns, ptrdiff_t elements, WorkingMemory& memory)
    {
        span = rows / 2 + 1;
        stride = 2 * (elements + kPairBlock);
        kernel.taps = memory.take<PairTap>(span * columns);
        at = memory.take<const Element*>(span);
        ring = memory.take<Element>(span * stride);
    }
    ORV_INLINE Element* slot(ptrdiff_t pair) const { return ring + pair % span * stride; }
    ORV_INLINE void begin_at(ptrdiff_t pair) const
    {
        for (ptrdiff_t k = 0; k < span; ++k) at[k] = slot(pair + k);
    }
};

// Two results below each other; where there is only one, the lower place is the upper one's and is written first.
template <class Lanes, class Quotients, class To>
void pair_results(const PairRing<Lanes>& ring, To* upper, To* lower, ptrdiff_t n, const Quotients& quotients)
{
    constexpr int vectors = vectors_of<Lanes>;
    const auto block = [&](ptrdiff_t x, To* above, To* below) {
        PairSums<Lanes, vectors> first, second;
        if (kBothRows) {
            sum_pairs<Lanes, vectors>(ring.kernel, ring.at, x, first, second);
            store_quotients(below, second, quotients);
        } else {
            sum_pairs<Lanes, &PairTap::lower, vectors>(ring.kernel, ring.at, x, first);
            store_quotients(below, first, quotients);
            sum_pairs<Lanes, &PairTap::upper, vectors>(ring.kernel, ring.at, x, first);
        }
        store_quotients(above, first, quotients);
    };
    in_blocks<kPairBlock>(upper, lower, n, block);
}

// pair(a, b, n, to) makes a row of pairs from two rows of the source; n results are wanted of it.
template <class Lanes, class From, class To, class Quotients, class Pair>
void convolve_strip_in_pairs(const Job<From, To>& job, const PairRing<Lanes>& ring, ptrdiff_t x0, ptrdiff_t n,
                             const Quotients& quotients, Pair pair)
{
    const ptrdiff_t last = job.last_row();
    const auto source = [&](ptrdiff_t y) { return job.source(y < last ? y : last) + x0; };
    ptrdiff_t filled = 0;
    for (ptrdiff_t y = 0; y < job.roi.height; y += 2) {
        for (; filled < y / 2 + ring.span; ++filled) {
            pair(source(2 * filled), source(2 * filled + 1), n, ring.slot(filled));
        }
        ring.begin_at(y / 2);
        pair_results(ring, job.result(y) + x0, job.result(y + 1 < job.roi.height ? y + 1 : y) + x0, n, quotients);
    }
}

template <class Lanes, class From, class To, class Quotients, class Pair>
ORV_INLINE void convolve_strips_in_pairs(const Job<From, To>& job, const PairRing<Lanes>& ring,
                                         const Strips& strips, const Quotients& quotients, Pair pair)
{
    for (ptrdiff_t x = 0; x < strips.total; x += strips.width) {
        convolve_strip_in_pairs(job, ring, x, strips.columns_at(x), quotients, pair);
    }
}

template <class Lanes>
ORV_INLINE Strips pair_strips(ptrdiff_t elements, int rows)
{
    return convolution_strips(elements, (rows / 2 + 1) * 2 * static_cast<ptrdiff_t>(sizeof(typename Lanes::Element)));
}

// What unsigned words have been taken down by.
template <class From> constexpr int32_t kTakenDown = 0;
template <> constexpr int32_t kTakenDown<uint16_t> = 32768;

ORV_INLINE int32_t wrapped_product(int32_t a, int64_t b)
{
    return static_cast<int32_t>(static_cast<std::uint32_t>(a) * static_cast<std::uint32_t>(b));
}

// The whole kernel on pairs.
template <class Lanes, class From, class To, class Quotients>
Status in_pairs(const Job<From, To>& job, const Weights& weights, const Quotients& quotients)
{
    const Strips strips = pair_strips<Lanes>(job.elements(), job.height);
    PairRing<Lanes> ring;
    return with_memory(
        [&](WorkingMemory& memory) { ring.lay_out(job.height, job.width, strips.width + job.frame(), memory); },
        [&] {
            const auto weight = [&](int r, int c) { return r >= 0 && r < job.height ? get(job.weight(r, c)) : 0; };
            for (int k = 0; k < ring.span; ++k) {
                for (int c = 0; c < job.width; ++c) {
                    ring.kernel.template add<Lanes>(k, ptrdiff_t{c} * job.channels, weight(2 * k - 1, c),
                                                    weight(2 * k, c), weight(2 * k + 1, c));
                }
            }
            ring.kernel.bias = wrapped_product(kTakenDown<From>, weights.sum);
            convolve_strips_in_pairs(job, ring, strips, quotients,
                                     [&](const From* a, const From* b, ptrdiff_t n, typename Lanes::Element* to) {
                                         pair_up<Lanes>(a, b, to, n + job.frame());
                                     });
        });
}

// Sums of rows of bytes, as words: the source beside itself, one pixel on, in pairs.
template <class Lanes>
struct RowPass {
    using Element = typename Lanes::Element;
    PairTaps kernel;
    Element* neighbours;
    ptrdiff_t frame;
    int channels;

    ORV_INLINE void sum(const uint8_t* source, ptrdiff_t n, int16_t* to) const
    {
        const ptrdiff_t inner = n + frame - channels;
        pair_up<Lanes>(source, source + channels, neighbours, inner);
        pair_up<Lanes>(source + inner, static_cast<const uint8_t*>(nullptr), neighbours + 2 * inner, channels);
        constexpr int vectors = vectors_of<Lanes>;
        const Element* const rows[] = {neighbours};
        for (ptrdiff_t x = 0; x < n; x += kPairBlock) {
            PairSums<Lanes, vectors> sums;
            sum_pairs<Lanes, &PairTap::upper, vectors>(kernel, rows, x, sums);
            store_packed(to + x, sums);
        }
    }
};

// The kernel as a column times a row. Sums of rows are words, taken down by `middle` where that makes them fit.
template <class RowLanes, class To, class Quotients>
Status in_passes(const Job<uint8_t, To>& job, const Factors& factors, int32_t middle, const Quotients& quotients)
{
    const Strips strips = pair_strips<WordPairs>(job.elements(), job.height);
    PairRing<WordPairs> ring;
    RowPass<RowLanes> pass;
    int16_t *above = nullptr, *below = nullptr;
    const ptrdiff_t room = strips.width + kPairBlock;
    return with_memory(
        [&](WorkingMemory& memory) {
            ring.lay_out(job.height, 1, strips.width, memory);
            pass.kernel.taps = memory.take<PairTap>(job.width / 2 + 1);
            pass.neighbours = memory.take<typename RowLanes::Element>(2 * (room + job.frame()));
            above = memory.take<int16_t>(room);
            below = memory.take<int16_t>(room);
        },
        [&] {
            pass.frame = job.frame();
            pass.channels = job.channels;
            for (int c = 0; c < job.width; c += 2) {
                pass.kernel.template add<RowLanes>(0, ptrdiff_t{c} * job.channels, 0, factors.row[c],
                                                   c + 1 < job.width ? factors.row[c + 1] : 0);
            }
            pass.kernel.bias = -middle;
            int64_t total = 0;
            const auto weight = [&](int r) { return r >= 0 && r < job.height ? factors.column[r] : 0; };
            for (int k = 0; k < ring.span; ++k) {
                ring.kernel.template add<WordPairs>(k, 0, weight(2 * k - 1), weight(2 * k), weight(2 * k + 1));
                total += int64_t{weight(2 * k)} + weight(2 * k + 1);
            }
            ring.kernel.bias = wrapped_product(middle, total);
            convolve_strips_in_pairs(job, ring, strips, quotients,
                                     [&](const uint8_t* a, const uint8_t* b, ptrdiff_t n, int16_t* to) {
                                         pass.sum(a, n, above);
                                         pass.sum(b, n, below);
                                         pair_up<WordPairs>(above, below, to, n);
                                     });
        });
}

// --- In double ------------------------------------------------------------------------------------

template <class To>
struct QuotientStore {
    static constexpr int kVectors = 8, kTogether = sizeof(void*) == 8 ? 4 : 2;
    DoubleQuotients<To> quotients;

    ORV_INLINE void store(To* to, const DoubleSums<kVectors>& sums) const
    {
        WordPairs::Sums results[kVectors / 2];
#pragma GCC unroll 4
        for (int k = 0; k < kVectors / 2; ++k) results[k] = quotients.many({sums[2 * k], sums[2 * k + 1]});
        store_packed(to, results);
    }
};

template <class From, class To>
Status in_doubles(const Job<From, To>& job, const Factors* factors, int divisor)
{
    const Strips strips = convolution_strips(job.elements(), std::ptrdiff_t{job.height} * 8);
    DoubleRows rows;
    rows.factored = factors != nullptr;
    return with_memory(
        [&](WorkingMemory& memory) { lay_out(job, rows, strips.width, memory); },
        [&] {
            const auto add = [&](int r, int c, int above, int below) {
                const int use = (above != 0 ? used_above : 0) | (below != 0 ? used_below : 0);
                rows.columns.add(use, r, ptrdiff_t{c} * job.channels, above, below);
            };
            for (int c = 0; factors != nullptr && c < job.width; ++c) {
                const int weight = factors->row[c];
                rows.rows.add(weight != 0 ? used_above : 0, 0, ptrdiff_t{c} * job.channels, weight, 0);
            }
            const auto weight = [&](int r, int c) {
                return r < 0 || r >= job.height ? 0 : factors != nullptr ? factors->column[r] : get(job.weight(r, c));
            };
            for (int r = 0; r <= job.height; ++r) {
                const int columns = factors != nullptr ? 1 : job.width;
                for (int c = 0; c < columns; ++c) add(r, c, weight(r, c), weight(r - 1, c));
            }
            convolve_strips(job, rows, strips, QuotientStore<To>{DoubleQuotients<To>(divisor)});
        });
}

// --- Which way ------------------------------------------------------------------------------------

enum Way { way_byte_pairs, way_word_pairs, way_byte_passes, way_word_passes, way_doubles, way_double_passes, ways };

template <class From> constexpr uint64_t kMostPixel = 255;
template <> constexpr uint64_t kMostPixel<uint16_t> = 65535;
template <> constexpr uint64_t kMostPixel<int16_t> = 32768;

// Steps of vectors for a block of results in two rows, roughly: multiplications and additions, and what it takes to
// prepare rows. A way that cannot do it costs too much.
template <class From>
Way cheapest(const Weights& weights, const Factors& factors, bool has_factors, int width, int height)
{
    constexpr bool bytes = sizeof(From) == 1;
    constexpr int impossible = INT32_MAX;
    constexpr uint64_t words = INT32_MAX - 65536;  // with room for the last step, which packs
    const bool fits_words = weights.fits(16) && weights.magnitudes * kMostPixel<From> <= words;
    const int taps = (height / 2 + 1) * width, row_taps = width / 2 + 1, column_taps = height / 2 + 1;
    int costs[ways];
    for (int& cost : costs) cost = impossible;
    if (kHaveBytePairs && bytes && weights.magnitudes <= 128 && weights.fits(8)) costs[way_byte_pairs] = 4 * taps;
    if (fits_words) costs[way_word_pairs] = 8 * taps;
    if (bytes && has_factors && weights.magnitudes * kMostPixel<From> <= words && factors.column_fits(16)) {
        if (kHaveBytePairs && factors.magnitudes <= 128 && factors.row_fits(8)) {
            costs[way_byte_passes] = 4 * row_taps + 8 * column_taps + 24;
        }
        if (factors.magnitudes <= 257) costs[way_word_passes] = 8 * row_taps + 8 * column_taps + 32;
    }
    costs[way_doubles] = 12 * width * height + 16;
    if (has_factors) costs[way_double_passes] = 12 * (width + height) + 60;
    int best = 0;
    for (int way = 1; way < ways; ++way) {
        if (costs[way] < costs[best]) best = way;
    }
    return static_cast<Way>(best);
}

template <class From, class To, class Quotients>
Status in_lanes(const Job<From, To>& job, Way way, const Weights& weights, const Factors& factors,
                const Quotients& quotients)
{
    if constexpr (sizeof(From) == 1) {
        // Sums of rows lie between those of the negative and of the positive weights.
        const int32_t middle = factors.magnitudes <= 128 ? 0 : 255 * factors.negative + 32768;
        if (way == way_byte_pairs) return in_pairs<BytePairs>(job, weights, quotients);
        if (way == way_byte_passes) return in_passes<BytePairs>(job, factors, middle, quotients);
        if (way == way_word_passes) return in_passes<WordPairs>(job, factors, middle, quotients);
    }
    return in_pairs<WordPairs>(job, weights, quotients);
}

template <class From, class To>
Status convolve(const Job<From, To>& job, int divisor)
{
    const Weights weights(job.kernel, job.width * job.height);
    const uint64_t most = weights.magnitudes * kMostPixel<From>;
    if (most > kMostForDoubles) return plain(job, divisor);
    const FloatControl control;
    Factors factors;
    const bool has_factors = job.width > 1 && job.height > 1 && factors.find(job);
    const Way way = cheapest<From>(weights, factors, has_factors, job.width, job.height);
    if (way == way_doubles) return in_doubles(job, nullptr, divisor);
    if (way == way_double_passes) return in_doubles(job, &factors, divisor);
    if (divisor == 1) return in_lanes(job, way, weights, factors, NoQuotients{});
    if (most <= kMostForFloats) return in_lanes(job, way, weights, factors, FloatQuotients(divisor));
    return in_lanes(job, way, weights, factors, WideQuotients(divisor));
}

#else

template <class From, class To>
Status convolve(const Job<From, To>& job, int divisor)
{
    return plain(job, divisor);
}

#endif

template <int channels, class From, class To>
Status filter(const From* src, int srcStep, To* dst, int dstStep, Size roi, const int* kernel, int width, int height,
              int anchorX, int anchorY, int divisor)
{
    const Status bad =
        check_convolution(src, srcStep, dst, dstStep, roi, kernel, width, height, anchorX, anchorY);
    if (bad) return bad;
    if (divisor == 0) return StatusDivideByZeroError;
    const Job<From, To> job(src, srcStep, dst, dstStep, roi, channels, kernel, width, height, anchorX, anchorY);
    return convolve(job, divisor);
}

}  // namespace

// --- Kernels --------------------------------------------------------------------------------------

#define FILTER(name, From, To, channels)                                                                          \
    Status name(const From* src, int srcStep, To* dst, int dstStep, Size roi, const int* kernel, int kernelWidth, \
                int kernelHeight, int anchorX, int anchorY, int divisor)                                          \
    {                                                                                                             \
        return filter<channels>(src, srcStep, dst, dstStep, roi, kernel, kernelWidth, kernelHeight, anchorX,      \
                                anchorY, divisor);                                                                \
    }
FILTER(Filter_8u_C1R, uint8_t, uint8_t, 1)
FILTER(Filter_8u_C3R, uint8_t, uint8_t, 3)
FILTER(Filter_8u_C4R, uint8_t, uint8_t, 4)
FILTER(Filter_16u_C1R, uint16_t, uint16_t, 1)
FILTER(Filter_16s_C1R, int16_t, int16_t, 1)
FILTER(Filter_8u16s_C1R, uint8_t, int16_t, 1)
#undef FILTER

}  // namespace ORV_LEVEL
}  // namespace convolution_integer
}  // namespace orv
