// The four-tap engine on 256-bit vectors. The bits are those of its meaning.
//
// 16-bit and float pixels: the same operations on four doubles at once.
//
// Bytes: in float, with fused multiplications. Weights of at most 1.25 in sum over bytes stay below 512 at
// every step, so each of the four operations of a row sum is off by at most 2^-16, each row sum by 2^-14,
// and the pixel by less than 1.25 * 2^-14 + 2^-14 < 2^-12.8. Pixels whose float lies nearer than kGuard
// > 2^-12.8 to the middle between two integers are computed once more, in double; everywhere else both
// round to the same integer. (The double sum itself is off by less than 2^-42, and the middle of two
// integers that it hits exactly lies in the guarded zone.) With weights that are multiples of 2^-7,
// every float operation is exact, and no pixel needs a guard.
//
// Included by four_taps.h where there are 256-bit integers.
#pragma once

#include <cstdint>
#include <climits>

#include "simd/conversion.h"
#include "simd/neighbours.h"
#include "simd/shuffles.h"

namespace orv {
inline namespace ORV_LEVEL {

// --- Doubles --------------------------------------------------------------------------------------

template <class T>
struct FourTapsOfDoubles {
    using V = simd::vec<double, 4>;
    const FourTapsJob<T>& job;
    FourTapsBuffers& buffers;

    // Four consecutive row sums: for each tap they lie within four consecutive pixels of the source, as long as the
    // image is not made smaller. The weights are those of each tap in turn.
    struct Block {
        int lane[8];  // halves of doubles
        double weights[4][4];
    };
    bool uses_blocks = false;

    ORV_INLINE std::ptrdiff_t block_count() const { return (std::ptrdiff_t{job.size.width} + 3) / 4; }
    ORV_INLINE Block* blocks() const { return reinterpret_cast<Block*>(buffers.tables); }
    ORV_INLINE double* column_weights() const { return reinterpret_cast<double*>(buffers.tables); }
    // Positions beyond the last one repeat it: their sums are never used.
    ORV_INLINE std::ptrdiff_t position(std::ptrdiff_t x) const { return x < job.size.width ? x : job.size.width - 1; }

    ORV_INLINE void prepare()
    {
        uses_blocks = make_blocks();
        if (uses_blocks) return;
        for (std::ptrdiff_t x = 0; x < job.size.width; ++x) {
            simd::store(column_weights() + 4 * x, simd::load_as<V>::from(job.columns.weights + 4 * x));
        }
    }

    ORV_INLINE bool make_blocks() const
    {
        for (std::ptrdiff_t b = 0; b < block_count(); ++b) {
            Block& block = blocks()[b];
            const int first = job.columns.index[4 * b];
            for (int lane = 0; lane < 4; ++lane) {
                const std::ptrdiff_t x = position(4 * b + lane);
                const int from = job.columns.index[x] - first;
                if (from > 3) return false;
                block.lane[2 * lane] = 2 * from;
                block.lane[2 * lane + 1] = 2 * from + 1;
                for (int k = 0; k < 4; ++k)
                    block.weights[k][lane] = static_cast<double>(job.columns.weights[4 * x + k]);
            }
        }
        return true;
    }

    ORV_INLINE void sum_row(int row, double* sums)
    {
        fetch_row<double, T, 1>(job, row, buffers.source);
        if (uses_blocks) sum_blocks(sums);
        else sum_pixels(sums);
    }

    // A pixel's product with a float is exact in double, so that fusing changes no bit.
    ORV_INLINE void sum_blocks(double* sums) const
    {
        const Block* const block = blocks();
        const double* const source = buffers.source - (job.first_column() + 1);
        const std::ptrdiff_t count = block_count();
        for (std::ptrdiff_t b = 0; b < count; ++b) {
            const auto lane = simd::load<simd::vec<simd::s32, 8>>(block[b].lane);
            const double* const t = source + job.columns.index[4 * b];
            const auto tap = [&](int k) { return permuted(simd::load<V>(t + k), lane); };
            const auto weight = [&](int k) { return simd::load<V>(block[b].weights[k]); };
            const V left = add_exact_product(tap(1), weight(1), tap(0) * weight(0));
            const V right = add_exact_product(tap(3), weight(3), tap(2) * weight(2));
            simd::store(sums + 4 * b, left + right);
        }
    }

    ORV_INLINE V taps(std::ptrdiff_t x) const
    {
        const double* const t = buffers.source + (std::ptrdiff_t{job.columns.index[x]} - 1 - job.first_column());
        return simd::load<V>(t) * simd::load<V>(column_weights() + 4 * x);
    }

    // The four products of a pixel stand in one vector, and four pixels are summed across their vectors.
    ORV_INLINE void sum_pixels(double* sums) const
    {
        const std::ptrdiff_t width = job.size.width;
        for (std::ptrdiff_t x = 0; x < width; x += 4) {
            const V a = neighbour_sums(taps(x), taps(position(x + 1)));
            const V b = neighbour_sums(taps(position(x + 2)), taps(position(x + 3)));
            simd::store(sums + x, sums_of_parts(a, b));
        }
    }

    struct Rows {
        V w0, w1, w2, w3;
        const double *s0, *s1, *s2, *s3;
        ORV_INLINE V at(std::ptrdiff_t i) const
        {
            const V a = simd::load<V>(s0 + i) * w0 + simd::load<V>(s1 + i) * w1;
            const V b = simd::load<V>(s2 + i) * w2 + simd::load<V>(s3 + i) * w3;
            return a + b;
        }
        // Eight pixels as they are stored. Sums stay below 2^17, so that integers are clamped.
        ORV_INLINE void eight(std::ptrdiff_t i, T* pixels) const { store_as(pixels, simd::twice<V>{at(i), at(i + 4)}); }
    };

    ORV_INLINE void join_rows(const double* const sums[4], int y, T* dst)
    {
        const float* const w = job.rows.weights + 4 * std::ptrdiff_t{y};
        const auto weight = [w](int k) { return simd::splat<V>(static_cast<double>(w[k])); };
        const Rows rows = {weight(0), weight(1), weight(2), weight(3), sums[0], sums[1], sums[2], sums[3]};
        const std::ptrdiff_t width = job.size.width;
        std::ptrdiff_t i = 0;
        for (; i + 8 <= width; i += 8) rows.eight(i, dst + i);
        if (i == width) return;
        T tail[8];
        rows.eight(i, tail);
        for (std::ptrdiff_t k = 0; i + k < width; ++k) put(dst + i + k, tail[k]);
    }
};

// --- Bytes ----------------------------------------------------------------------------------------

template <class T, int Channels>
struct FourTapsOfBytes {
    using V = simd::vec<float, 8>;
    using Bytes = simd::vec<T, 32>;
    const FourTapsJob<T>& job;
    FourTapsBuffers& buffers;

    // Eight consecutive samples of a row sum: for each tap they lie within eight consecutive samples of the
    // source, as long as the image is not made smaller.
    struct Block {
        int lane[8];
        float weights[4][8];
    };
    bool uses_blocks = false;
    bool exact = false;  // all weights are multiples of 2^-7

    ORV_INLINE std::ptrdiff_t samples() const { return std::ptrdiff_t{job.size.width} * Channels; }
    ORV_INLINE Block* blocks() const { return reinterpret_cast<Block*>(buffers.tables); }
    ORV_INLINE int* starts() const { return reinterpret_cast<int*>(blocks() + (samples() + 7) / 8); }
    ORV_INLINE float* source() const { return reinterpret_cast<float*>(buffers.source); }

    static ORV_INLINE bool are_coarse(const float* weights, std::ptrdiff_t positions)
    {
        using Four = simd::half<float>;
        const Four steps = simd::splat<Four>(128.f);
        Four fractions = simd::zero<Four>();
        for (std::ptrdiff_t i = 0; i < positions; ++i) {
            const Four scaled = simd::load<Four>(weights + 4 * i) * steps;
            fractions = fractions | not_equal(scaled, to_float(truncate(scaled)));
        }
        return !any(fractions);
    }

    ORV_INLINE void prepare()
    {
        exact = are_coarse(job.columns.weights, job.size.width) && are_coarse(job.rows.weights, job.size.height);
        uses_blocks = make_blocks();
    }

    ORV_INLINE bool make_blocks()
    {
        std::ptrdiff_t x = 0;
        int c = 0;
        const int first = job.first_column();
        for (std::ptrdiff_t i = 0; i < samples(); i += 8) {
            Block& block = blocks()[i / 8];
            int low = INT_MAX, high = 0;
            for (int lane = 0; lane < 8; ++lane) {
                const int from = (job.columns.index[x] - 1 - first) * Channels + c;
                block.lane[lane] = from;
                // A pixel that is repeated goes back to its first channel.
                if (from < low) low = from;
                if (from > high) high = from;
                for (int k = 0; k < 4; ++k) block.weights[k][lane] = job.columns.weights[4 * x + k];
                // Behind the last sample, it repeats.
                if (x == job.size.width - 1 && c == Channels - 1) continue;
                if (++c == Channels) {
                    c = 0;
                    ++x;
                }
            }
            if (high - low > 7) return false;
            for (int& from : block.lane) from -= low;
            starts()[i / 8] = low;
        }
        return true;
    }

    ORV_INLINE void sum_row(int row, double* to)
    {
        fetch_row<float, T, Channels>(job, row, source());
        float* const sums = reinterpret_cast<float*>(to);
        if (uses_blocks) {
            sum_blocks(sums);
        } else {
            sum_pixels(sums);
        }
    }

    ORV_INLINE void sum_blocks(float* sums) const
    {
        const std::ptrdiff_t count = (samples() + 7) / 8;
        const Block* const block = blocks();
        const int* const start = starts();
        const float* const from = source();
        for (std::ptrdiff_t b = 0; b < count; ++b) {
            const auto lane = simd::load<simd::vec<simd::s32, 8>>(block[b].lane);
            const float* const t = from + start[b];
            const auto tap = [&](int k) { return permuted(simd::load<V>(t + k * Channels), lane); };
            const auto weight = [&](int k) { return simd::load<V>(block[b].weights[k]); };
            V sum = tap(0) * weight(0);
            sum = fused(tap(1), weight(1), sum);
            sum = fused(tap(2), weight(2), sum);
            simd::store(sums + 8 * b, fused(tap(3), weight(3), sum));
        }
    }

    // A pixel at a time; the fourth lane of three channels is overwritten by the next pixel.
    ORV_INLINE void sum_pixels(float* sums) const
    {
        const int first = job.first_column();
        for (std::ptrdiff_t x = 0; x < job.size.width; ++x) {
            const float* const t = source() + (std::ptrdiff_t{job.columns.index[x]} - 1 - first) * Channels;
            const float* const w = job.columns.weights + 4 * x;
            using Pixel = simd::half<float>;
            const auto tap = [t](int k) { return simd::load<Pixel>(t + k * Channels); };
            const auto weight = [w](int k) { return simd::splat<Pixel>(w[k]); };
            Pixel sum = tap(0) * weight(0);
            sum = fused(tap(1), weight(1), sum);
            sum = fused(tap(2), weight(2), sum);
            simd::store(sums + x * Channels, fused(tap(3), weight(3), sum));
        }
    }

    // The sample in double, straight from the source.
    __attribute__((noinline)) T in_double(int y, std::ptrdiff_t sample) const
    {
        const std::ptrdiff_t x = sample / Channels, c = sample % Channels;
        double sums[4];
        for (int k = 0; k < 4; ++k) {
            const int row = job.rows_within.clamp(std::int64_t{job.rows.index[y]} - 1 + k);
            const T* const line = row_at(job.src, job.srcStep, row) + c;
            double t[4];
            for (int j = 0; j < 4; ++j) {
                const std::ptrdiff_t column = job.columns_within.clamp(std::int64_t{job.columns.index[x]} - 1 + j);
                t[j] = static_cast<double>(get(line + column * Channels));
            }
            sums[k] = weighted(t[0], t[1], t[2], t[3], job.columns.weights + 4 * x);
        }
        return to_pixel<T>(weighted(sums[0], sums[1], sums[2], sums[3], job.rows.weights + 4 * std::ptrdiff_t{y}));
    }

    struct Rows {
        V w0, w1, w2, w3;
        const float *s0, *s1, *s2, *s3;
        ORV_INLINE V at(std::ptrdiff_t i) const
        {
            V sum = simd::load<V>(s0 + i) * w0;
            sum = fused(simd::load<V>(s1 + i), w1, sum);
            sum = fused(simd::load<V>(s2 + i), w2, sum);
            return fused(simd::load<V>(s3 + i), w3, sum);
        }
    };

    // 32 samples without a guard.
    static ORV_INLINE Bytes exact_bytes(const Rows& rows, std::ptrdiff_t i)
    {
        return pack(round_to_int(rows.at(i)), round_to_int(rows.at(i + 8)), round_to_int(rows.at(i + 16)),
                    round_to_int(rows.at(i + 24)));
    }

    // Samples times 256, from which sixteen bits are kept: those nearest to a middle have 128 in the low byte.
    static constexpr float kGuard = 0.05f;  // in 1/256: 2^-12.3

    ORV_INLINE void join_rows(const double* const sums[4], int y, T* dst) const
    {
        const float* const w = job.rows.weights + 4 * std::ptrdiff_t{y};
        const float scale = exact ? 1.f : 256.f;
        const auto weight = [w, scale](int k) { return simd::splat<V>(scale * w[k]); };
        const Rows rows = {weight(0), weight(1), weight(2), weight(3),
                           reinterpret_cast<const float*>(sums[0]), reinterpret_cast<const float*>(sums[1]),
                           reinterpret_cast<const float*>(sums[2]), reinterpret_cast<const float*>(sums[3])};
        const std::ptrdiff_t n = samples();
        std::ptrdiff_t i = 0;
        for (; i + 32 <= n; i += 32) {
            simd::store(dst + i, exact ? exact_bytes(rows, i) : guarded_bytes(rows, i, y));
        }
        if (i == n) return;
        alignas(32) T tail[32];
        simd::store(tail, exact ? exact_bytes(rows, i) : guarded_bytes(rows, i, y));
        __builtin_memcpy(dst + i, tail, static_cast<std::size_t>(n - i));
    }

    static ORV_INLINE simd::vec<simd::u32, 8> rounded(V v) { return simd::as<simd::u32>(round_to_int(v)); }

    ORV_INLINE Bytes guarded_bytes(const Rows& rows, std::ptrdiff_t i, int y) const
    {
        using Words = simd::vec<simd::u16, 16>;
        using Pair = simd::twice<simd::vec<simd::u32, 8>>;
        const V v0 = rows.at(i), v1 = rows.at(i + 8), v2 = rows.at(i + 16), v3 = rows.at(i + 24);
        const Words a = narrow(Pair{rounded(v0), rounded(v1)}), b = narrow(Pair{rounded(v2), rounded(v3)});
        const Words low = simd::splat<Words>(255), middle = simd::splat<Words>(128);
        const Words near = equal(a & low, middle) | equal(b & low, middle);
        if (__builtin_expect(!none_set(near, near), 0)) return careful_bytes(v0, v1, v2, v3, i, y);
        const auto pixels = [=](Words v) { return simd::shifted_right<8>(add_saturate(v, middle)); };
        return narrowed_twice(narrow(simd::twice<Words>{pixels(a), pixels(b)}));
    }

    // Lanes within the guard of a middle.
    static ORV_INLINE unsigned doubtful(V v)
    {
        // The distance to the next lower integer, in 1/256.
        const V rest = v - floor(v * (1.f / 256)) * 256.f;
        return lanes_of(less(magnitude(rest - 128.f), kGuard));
    }
    static ORV_INLINE simd::vec<simd::s32, 8> nearest(V v) { return round_to_int(v * (1.f / 256)); }

    __attribute__((noinline)) Bytes careful_bytes(V v0, V v1, V v2, V v3, std::ptrdiff_t i, int y) const
    {
        const Bytes bytes = pack(nearest(v0), nearest(v1), nearest(v2), nearest(v3));
        unsigned doubts = doubtful(v0) | doubtful(v1) << 8 | doubtful(v2) << 16 | doubtful(v3) << 24;
        const std::ptrdiff_t left = samples() - i;
        if (left < 32) doubts &= (1u << left) - 1;
        if (doubts == 0) return bytes;
        alignas(32) T lanes[32];
        simd::store(lanes, bytes);
        for (; doubts != 0; doubts &= doubts - 1) {
            const int lane = __builtin_ctz(doubts);
            lanes[lane] = in_double(y, i + lane);
        }
        return simd::load<Bytes>(lanes);
    }
};

}  // namespace ORV_LEVEL
}  // namespace orv
