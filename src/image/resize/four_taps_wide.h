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

namespace orv {
inline namespace ORV_LEVEL {

// --- Doubles --------------------------------------------------------------------------------------

template <class T>
struct FourTapsOfDoubles {
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
            _mm256_store_pd(column_weights() + 4 * x, _mm256_cvtps_pd(_mm_loadu_ps(job.columns.weights + 4 * x)));
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
                for (int k = 0; k < 4; ++k) block.weights[k][lane] = static_cast<double>(job.columns.weights[4 * x + k]);
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
            const __m256i lane = _mm256_load_si256(reinterpret_cast<const __m256i*>(block[b].lane));
            const double* const t = source + job.columns.index[4 * b];
            const auto tap = [&](int k) {
                const __m256i pixels = _mm256_loadu_si256(reinterpret_cast<const __m256i*>(t + k));
                return _mm256_castsi256_pd(_mm256_permutevar8x32_epi32(pixels, lane));
            };
            const auto weight = [&](int k) { return _mm256_load_pd(block[b].weights[k]); };
            const __m256d left = _mm256_fmadd_pd(tap(1), weight(1), _mm256_mul_pd(tap(0), weight(0)));
            const __m256d right = _mm256_fmadd_pd(tap(3), weight(3), _mm256_mul_pd(tap(2), weight(2)));
            _mm256_store_pd(sums + 4 * b, _mm256_add_pd(left, right));
        }
    }

    ORV_INLINE __m256d taps(std::ptrdiff_t x) const
    {
        const double* const t = buffers.source + (std::ptrdiff_t{job.columns.index[x]} - 1 - job.first_column());
        return _mm256_mul_pd(_mm256_loadu_pd(t), _mm256_load_pd(column_weights() + 4 * x));
    }

    // The four products of a pixel stand in one vector, and four pixels are summed across their vectors.
    ORV_INLINE void sum_pixels(double* sums) const
    {
        const std::ptrdiff_t width = job.size.width;
        const auto pairs = [](__m256d a, __m256d b) {
            return _mm256_add_pd(_mm256_blend_pd(a, b, 0xA), _mm256_shuffle_pd(a, b, 0x5));
        };
        for (std::ptrdiff_t x = 0; x < width; x += 4) {
            const __m256d a = pairs(taps(x), taps(position(x + 1))), b = pairs(taps(position(x + 2)), taps(position(x + 3)));
            _mm256_store_pd(sums + x, _mm256_add_pd(_mm256_blend_pd(a, b, 0xC), _mm256_permute2f128_pd(a, b, 0x21)));
        }
    }

    struct Rows {
        __m256d w0, w1, w2, w3;
        const double *s0, *s1, *s2, *s3;
        ORV_INLINE __m256d at(std::ptrdiff_t i) const
        {
            const __m256d a = _mm256_add_pd(_mm256_mul_pd(_mm256_load_pd(s0 + i), w0), _mm256_mul_pd(_mm256_load_pd(s1 + i), w1));
            const __m256d b = _mm256_add_pd(_mm256_mul_pd(_mm256_load_pd(s2 + i), w2), _mm256_mul_pd(_mm256_load_pd(s3 + i), w3));
            return _mm256_add_pd(a, b);
        }
        // Eight pixels as they are stored. Sums stay below 2^17; the packing clamps them.
        ORV_INLINE void eight(std::ptrdiff_t i, std::uint16_t* pixels) const
        {
            const __m128i packed = _mm_packus_epi32(_mm256_cvtpd_epi32(at(i)), _mm256_cvtpd_epi32(at(i + 4)));
            _mm_storeu_si128(reinterpret_cast<__m128i*>(pixels), packed);
        }
        ORV_INLINE void eight(std::ptrdiff_t i, float* pixels) const
        {
            const __m256 both = _mm256_set_m128(_mm256_cvtpd_ps(at(i + 4)), _mm256_cvtpd_ps(at(i)));
            const __m256 nan = _mm256_castsi256_ps(_mm256_set1_epi32(0x7FC00000));
            _mm256_storeu_ps(pixels, _mm256_blendv_ps(both, nan, _mm256_cmp_ps(both, both, _CMP_UNORD_Q)));
        }
    };

    ORV_INLINE void join_rows(const double* const sums[4], int y, T* dst)
    {
        const float* const w = job.rows.weights + 4 * std::ptrdiff_t{y};
        const Rows rows = {_mm256_set1_pd(static_cast<double>(w[0])), _mm256_set1_pd(static_cast<double>(w[1])),
                           _mm256_set1_pd(static_cast<double>(w[2])), _mm256_set1_pd(static_cast<double>(w[3])),
                           sums[0], sums[1], sums[2], sums[3]};
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
        const __m128 steps = _mm_set1_ps(128.f);
        __m128 fractions = _mm_setzero_ps();
        for (std::ptrdiff_t i = 0; i < positions; ++i) {
            const __m128 scaled = _mm_mul_ps(_mm_loadu_ps(weights + 4 * i), steps);
            fractions = _mm_or_ps(fractions, _mm_cmpneq_ps(scaled, _mm_cvtepi32_ps(_mm_cvttps_epi32(scaled))));
        }
        return _mm_movemask_ps(fractions) == 0;
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
            const __m256i lane = _mm256_load_si256(reinterpret_cast<const __m256i*>(block[b].lane));
            const float* const t = from + start[b];
            const auto tap = [&](int k) { return _mm256_permutevar8x32_ps(_mm256_loadu_ps(t + k * Channels), lane); };
            __m256 sum = _mm256_mul_ps(tap(0), _mm256_load_ps(block[b].weights[0]));
            sum = _mm256_fmadd_ps(tap(1), _mm256_load_ps(block[b].weights[1]), sum);
            sum = _mm256_fmadd_ps(tap(2), _mm256_load_ps(block[b].weights[2]), sum);
            sum = _mm256_fmadd_ps(tap(3), _mm256_load_ps(block[b].weights[3]), sum);
            _mm256_store_ps(sums + 8 * b, sum);
        }
    }

    // A pixel at a time; the fourth lane of three channels is overwritten by the next pixel.
    ORV_INLINE void sum_pixels(float* sums) const
    {
        const int first = job.first_column();
        for (std::ptrdiff_t x = 0; x < job.size.width; ++x) {
            const float* const t = source() + (std::ptrdiff_t{job.columns.index[x]} - 1 - first) * Channels;
            const float* const w = job.columns.weights + 4 * x;
            __m128 sum = _mm_mul_ps(_mm_loadu_ps(t), _mm_set1_ps(w[0]));
            sum = _mm_fmadd_ps(_mm_loadu_ps(t + Channels), _mm_set1_ps(w[1]), sum);
            sum = _mm_fmadd_ps(_mm_loadu_ps(t + 2 * Channels), _mm_set1_ps(w[2]), sum);
            sum = _mm_fmadd_ps(_mm_loadu_ps(t + 3 * Channels), _mm_set1_ps(w[3]), sum);
            _mm_storeu_ps(sums + x * Channels, sum);
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
        __m256 w0, w1, w2, w3;
        const float *s0, *s1, *s2, *s3;
        ORV_INLINE __m256 at(std::ptrdiff_t i) const
        {
            __m256 sum = _mm256_mul_ps(_mm256_load_ps(s0 + i), w0);
            sum = _mm256_fmadd_ps(_mm256_load_ps(s1 + i), w1, sum);
            sum = _mm256_fmadd_ps(_mm256_load_ps(s2 + i), w2, sum);
            return _mm256_fmadd_ps(_mm256_load_ps(s3 + i), w3, sum);
        }
    };

    static ORV_INLINE __m256i in_order(__m256i packed)
    {
        return _mm256_permutevar8x32_epi32(packed, _mm256_setr_epi32(0, 4, 1, 5, 2, 6, 3, 7));
    }

    // 32 samples without a guard.
    static ORV_INLINE __m256i exact_bytes(const Rows& rows, std::ptrdiff_t i)
    {
        const __m256i a = _mm256_packs_epi32(_mm256_cvtps_epi32(rows.at(i)), _mm256_cvtps_epi32(rows.at(i + 8)));
        const __m256i b = _mm256_packs_epi32(_mm256_cvtps_epi32(rows.at(i + 16)), _mm256_cvtps_epi32(rows.at(i + 24)));
        return in_order(_mm256_packus_epi16(a, b));
    }

    // Samples times 256, from which sixteen bits are kept: those nearest to a middle have 128 in the low byte.
    static constexpr float kGuard = 0.05f;  // in 1/256: 2^-12.3

    ORV_INLINE void join_rows(const double* const sums[4], int y, T* dst) const
    {
        const float* const w = job.rows.weights + 4 * std::ptrdiff_t{y};
        const float scale = exact ? 1.f : 256.f;
        const Rows rows = {_mm256_set1_ps(scale * w[0]), _mm256_set1_ps(scale * w[1]), _mm256_set1_ps(scale * w[2]), _mm256_set1_ps(scale * w[3]),
                           reinterpret_cast<const float*>(sums[0]), reinterpret_cast<const float*>(sums[1]),
                           reinterpret_cast<const float*>(sums[2]), reinterpret_cast<const float*>(sums[3])};
        const std::ptrdiff_t n = samples();
        std::ptrdiff_t i = 0;
        for (; i + 32 <= n; i += 32) {
            _mm256_storeu_si256(reinterpret_cast<__m256i*>(dst + i), exact ? exact_bytes(rows, i) : guarded_bytes(rows, i, y));
        }
        if (i == n) return;
        alignas(32) T tail[32];
        _mm256_store_si256(reinterpret_cast<__m256i*>(tail), exact ? exact_bytes(rows, i) : guarded_bytes(rows, i, y));
        __builtin_memcpy(dst + i, tail, static_cast<std::size_t>(n - i));
    }

    ORV_INLINE __m256i guarded_bytes(const Rows& rows, std::ptrdiff_t i, int y) const
    {
        const __m256 v0 = rows.at(i), v1 = rows.at(i + 8), v2 = rows.at(i + 16), v3 = rows.at(i + 24);
        const __m256i a = _mm256_packus_epi32(_mm256_cvtps_epi32(v0), _mm256_cvtps_epi32(v1));
        const __m256i b = _mm256_packus_epi32(_mm256_cvtps_epi32(v2), _mm256_cvtps_epi32(v3));
        const __m256i low = _mm256_set1_epi16(255), middle = _mm256_set1_epi16(128);
        const __m256i near = _mm256_or_si256(_mm256_cmpeq_epi16(_mm256_and_si256(a, low), middle),
                                             _mm256_cmpeq_epi16(_mm256_and_si256(b, low), middle));
        if (__builtin_expect(!_mm256_testz_si256(near, near), 0)) return careful_bytes(v0, v1, v2, v3, i, y);
        return in_order(_mm256_packus_epi16(_mm256_srli_epi16(_mm256_adds_epu16(a, middle), 8),
                                            _mm256_srli_epi16(_mm256_adds_epu16(b, middle), 8)));
    }

    // Lanes within the guard of a middle.
    static ORV_INLINE unsigned doubtful(__m256 v)
    {
        // The distance to the next lower integer, in 1/256.
        const __m256 pixel = _mm256_mul_ps(v, _mm256_set1_ps(1.f / 256));
        const __m256 rest = _mm256_sub_ps(v, _mm256_mul_ps(_mm256_floor_ps(pixel), _mm256_set1_ps(256.f)));
        const __m256 distance = _mm256_andnot_ps(_mm256_set1_ps(-0.f), _mm256_sub_ps(rest, _mm256_set1_ps(128.f)));
        return static_cast<unsigned>(_mm256_movemask_ps(_mm256_cmp_ps(distance, _mm256_set1_ps(kGuard), _CMP_LT_OQ)));
    }
    static ORV_INLINE __m256i nearest(__m256 v) { return _mm256_cvtps_epi32(_mm256_mul_ps(v, _mm256_set1_ps(1.f / 256))); }

    __attribute__((noinline)) __m256i careful_bytes(__m256 v0, __m256 v1, __m256 v2, __m256 v3, std::ptrdiff_t i, int y) const
    {
        __m256i bytes = in_order(_mm256_packus_epi16(_mm256_packs_epi32(nearest(v0), nearest(v1)), _mm256_packs_epi32(nearest(v2), nearest(v3))));
        unsigned doubts = doubtful(v0) | doubtful(v1) << 8 | doubtful(v2) << 16 | doubtful(v3) << 24;
        const std::ptrdiff_t left = samples() - i;
        if (left < 32) doubts &= (1u << left) - 1;
        if (doubts == 0) return bytes;
        alignas(32) T lanes[32];
        _mm256_store_si256(reinterpret_cast<__m256i*>(lanes), bytes);
        for (; doubts != 0; doubts &= doubts - 1) {
            const int lane = __builtin_ctz(doubts);
            lanes[lane] = in_double(y, i + lane);
        }
        return _mm256_load_si256(reinterpret_cast<const __m256i*>(lanes));
    }
};

}  // namespace ORV_LEVEL
}  // namespace orv
