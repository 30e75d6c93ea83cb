#include "spectral/random/random_numbers.h"

#include <cstdint>

#include "simd/lanes.h"
#include "math/logarithm.h"
#include "math/sine.h"

namespace orv {
namespace random_numbers {
namespace ORV_LEVEL {
namespace {

constexpr int kBlock = 512;  // values at a time: their words stay in the nearest cache

// The next n words. Between two wraps of either index the words that are read were written long ago, or
// will be overwritten later: 103 is more than a vector.
void draw(RandomStream* stream, std::uint32_t* words_out, int n)
{
    int oldest = stream->oldest, tap = stream->tap;
    while (n > 0) {
        const int ahead = oldest > tap ? oldest : tap;
        int run = RandomStream::kWords - ahead;
        if (run > n) run = n;
        std::uint32_t* const to = stream->word + oldest;
        const std::uint32_t* const from = stream->word + tap;
        int k = 0;
        for (; k + kFloats <= run; k += kFloats) {
            const ints next = load_ints(to + k) ^ load_ints(from + k);
            store(to + k, next);
            store(words_out + k, next);
        }
        for (; k < run; ++k) words_out[k] = to[k] ^= from[k];
        words_out += run;
        n -= run;
        oldest = (oldest + run) % RandomStream::kWords;
        tap = (tap + run) % RandomStream::kWords;
    }
    stream->oldest = oldest;
    stream->tap = tap;
}

// The low halves of the lanes as doubles.
ORV_INLINE doubles to_doubles(words w) { return from_bits(w | words(0x4330000000000000)) - 0x1p52; }

// The sine of 2 pi w / 2^32, an angle that is rounded to double first. Within 1.4 units in the last place of the
// exact sine, so within one of its rounded value.
ORV_INLINE doubles sine_of_fraction(doubles w)
{
    const doubles x = w * 0x1.921fb54442d18p-30;
    // The nearest multiple of 2^30: k quarter turns. Pi/2 as a double has 50 bits: its product with k is exact.
    const doubles shifted = w + 0x1.8p+82;
    const doubles k = shifted - 0x1.8p+82;
    const doubles first = minus_exact(x, k, 0x1.921fb54442d18p-30);
    const doubles second = k * 0x1.1a62633145c07p-84;
    const doubles r = first - second;
    const doubles low = (first - r) - second;
    const doubles z = r * r, zz = z * z;
    const doubles s = r + (sine_tail(r, z) + low);
    const doubles c = (doubles(1.0) - z * 0.5) + (zz * cosine_tail(z, zz) - r * low);
    const words quadrant = bits(shifted);
    const mask64 odd = less(from_bits(shifted_left<63>(quadrant) | bits(doubles(1.0))), 0.0);
    const words sign = shifted_left<62>(quadrant) & words(0x8000000000000000);
    return (s ^ (odd & (s ^ c))) ^ from_bits(sign);
}

// kDoubles values from twice as many words.
ORV_INLINE doubles gaussians(const std::uint32_t* pairs, doubles mean, doubles sigma)
{
    const words both = load_words(reinterpret_cast<const std::uint64_t*>(pairs));
    const doubles u1 = to_doubles(both & words(0xFFFFFFFF)) * 0x1p-32;
    doubles logarithm = ln(split(u1));
    const mask64 zero = equal(u1, 0.0);
    if (__builtin_expect(lanes_of(zero) != 0, 0)) {
        logarithm = select(zero, -0x1.74385446d71c3p+9, logarithm);  // ln 2^-1074
    }
    const doubles radius = sqrt(logarithm * -2.0);
    const doubles sine = sine_of_fraction(to_doubles(shifted_right<32>(both)));
    return radius * sigma * sine + mean;
}

}  // namespace

Status Gaussian_64f(RandomStream* stream, int n, double* r, double mean, double sigma)
{
    if (stream == nullptr) return StatusNoStream;
    if (n < 0) return StatusBadArguments;
    if (n == 0) return StatusOk;
    if (r == nullptr || !(sigma > 0)) return StatusBadArguments;
    const FloatControl control;
    std::uint32_t drawn[2 * kBlock];
    while (n > 0) {
        const int values = n < kBlock ? n : kBlock;
        draw(stream, drawn, 2 * values);
        int k = 0;
        for (; k + kDoubles <= values; k += kDoubles) store(r + k, gaussians(drawn + 2 * k, mean, sigma));
        if (k < values) {
            const std::size_t left = static_cast<std::size_t>(values - k);
            std::uint32_t pairs[2 * kDoubles];
            double rest[kDoubles];
            for (std::uint32_t& word : pairs) word = 1;
            __builtin_memcpy(pairs, drawn + 2 * k, left * 2 * sizeof(std::uint32_t));
            store(rest, gaussians(pairs, mean, sigma));
            __builtin_memcpy(r + k, rest, left * sizeof(double));
        }
        r += values;
        n -= values;
    }
    return StatusOk;
}

}  // namespace ORV_LEVEL
}  // namespace random_numbers
}  // namespace orv
