// Gaussian random numbers: the words against a generator written from the recurrence, the values against
// long double, the sequence, the object's life, refusals, and the moments of the noise.
#include <climits>
#include <cmath>
#include <limits>
#include <vector>

#include "RandomNumberGenerator.h"
#include "gmock/gmock.h"
#include "spectral/random/random_numbers.h"
#include "support/allocations.h"
#include "support/exact_sine.h"
#include "support/host_control.h"
#include "support/levels.h"
#include "support/random.h"

namespace test {
namespace {

using Exact = long double;

// x[n] = x[n-250] xor x[n-147], as an endless row of words.
class Words {
public:
    explicit Words(int seed)
    {
        std::uint64_t x = static_cast<std::uint32_t>(seed);
        if (x == 0) x = 1;
        for (int k = 0; k < 250; ++k) row_.push_back(static_cast<std::uint32_t>(x = x * 69069 % 0x100000000));
        for (unsigned m = 0; m < 32; ++m) {
            std::uint32_t& word = row_[3 + 7 * m];
            for (unsigned bit = 31; bit > 31 - m; --bit) word &= ~(1u << bit);
            word |= 1u << (31 - m);
        }
    }
    std::uint32_t next()
    {
        row_.push_back(row_[row_.size() - 250] ^ row_[row_.size() - 147]);
        return row_.back();
    }

private:
    std::vector<std::uint32_t> row_;
};

// A value as Box and Muller have it, every step rounded to double as the header orders them. Each of the
// three functions may be an ulp off.
struct Want {
    double value, tolerance;
};
Want gaussian(std::uint32_t w1, std::uint32_t w2, double mean, double sigma)
{
    const double u1 = std::ldexp(double(w1), -32), u2 = std::ldexp(double(w2), -32);
    volatile double angle, scaled, product, sum;
    {
        const DoublePrecision precision;
        angle = u2 * 6.283185307179586;
    }
    const volatile double logarithm = w1 == 0 ? -744.4400719213812 : static_cast<double>(std::log(Exact{u1}));
    const volatile double radius = static_cast<double>(std::sqrt(Exact{-2 * logarithm}));
    const volatile double sine = static_cast<double>(exact_sine(Exact{angle}));
    const DoublePrecision precision;
    scaled = radius * sigma;
    product = scaled * sine;
    sum = product + mean;
    return {sum, (std::fabs(product) * 3.5 + std::fabs(sum)) * std::numeric_limits<double>::epsilon()};
}

TEST(Random, ValuesFromIndependentWords)
{
    for (const int seed : {1, 0, -1, INT_MIN, INT_MAX, 12345}) {
        Words words(seed);
        const int n = options().brief ? 600 : 20000;
        std::vector<Want> want;
        for (int k = 0; k < n; ++k) {
            const std::uint32_t first = words.next();
            want.push_back(gaussian(first, words.next(), 3, 2.5));
        }
        std::vector<double> first_level;
        at_every_level([&] {
            std::vector<double> got(want.size(), 99);
            RandomNumberGenerator generator;
            ASSERT_TRUE(generator.Init(seed));
            ASSERT_TRUE(generator.GenerateGaussian(n, got.data(), 3, 2.5));
            if (first_level.empty()) first_level = got;
            ASSERT_EQ(got, first_level) << "the bits of the plain variant";
            for (std::size_t k = 0; k < want.size(); ++k)
                ASSERT_NEAR(got[k], want[k].value, want[k].tolerance) << "value " << k << " of seed " << seed;
        });
    }
}

TEST(Random, AnySplitGivesTheSameSequence)
{
    std::mt19937 g = make_generator("split");
    std::vector<double> whole(5000), parts(5000);
    at_every_level([&] {
        RandomNumberGenerator a, b;
        a.Init(77);
        b.Init(77);
        ASSERT_TRUE(a.GenerateGaussian(5000, whole.data(), 0, 1));
        for (int at = 0; at < 5000;) {
            const int n = std::min(5000 - at, uniform(g, 0, 3) == 0 ? uniform(g, 0, 1400) : uniform(g, 0, 9));
            ASSERT_TRUE(b.GenerateGaussian(n, parts.data() + at, 0, 1));
            at += n;
        }
        ASSERT_EQ(parts, whole);
        b.Init(77);
        ASSERT_TRUE(b.GenerateGaussian(5000, parts.data(), 0, 1));
        ASSERT_EQ(parts, whole) << "Init starts anew";
    });
}

// A word of zero for the radius, wherever it falls in a vector, and the least and largest other words.
TEST(Random, RadiusOfZeroWord)
{
    for (int level = 0; level <= orv::orv_variant_index; ++level) {
        for (const std::uint32_t word : {0u, 1u, 0xFFFFFFFFu, 0x80000000u}) {
            for (int at = 0; at < 9; ++at) {
                orv::RandomStream* const stream = orv::orv_create_random_stream(5);
                Words words(5);
                std::vector<std::uint32_t> drawn;
                for (int k = 0; k < 18; ++k) drawn.push_back(words.next());
                drawn[static_cast<std::size_t>(2 * at)] = word;
                stream->word[2 * at] = stream->word[2 * at + orv::RandomStream::kTap] ^ word;
                double r[10] = {};
                r[9] = 1.5;
                ASSERT_EQ(orv::orv_Gaussian_64f.variant[level](stream, 9, r, 0, 1), orv::StatusOk);
                for (std::size_t k = 0; k < 9; ++k) {
                    const Want want = gaussian(drawn[2 * k], drawn[2 * k + 1], 0, 1);
                    ASSERT_NEAR(r[k], want.value, want.tolerance);
                }
                ASSERT_EQ(r[9], 1.5);
                orv::orv_delete_random_stream(stream);
            }
        }
    }
}

TEST(Random, SineNearMultiplesOfPi)
{
    // Angles around 0, pi/2, pi, 3 pi/2 and 2 pi: where a reduction shows its error.
    for (int level = 0; level <= orv::orv_variant_index; ++level) {
        for (std::uint32_t quarter = 0; quarter < 4; ++quarter) {
            for (int step = -5; step <= 5; ++step) {
                orv::RandomStream* const stream = orv::orv_create_random_stream(5);
                const std::uint32_t w1 = 0x12345678, w2 = (quarter << 30) + static_cast<std::uint32_t>(step);
                stream->word[0] = stream->word[103] ^ w1;
                stream->word[1] = stream->word[104] ^ w2;
                double r = 0;
                ASSERT_EQ(orv::orv_Gaussian_64f.variant[level](stream, 1, &r, 0, 1), orv::StatusOk);
                const Want want = gaussian(w1, w2, 0, 1);
                ASSERT_NEAR(r, want.value, want.tolerance) << w2;
                orv::orv_delete_random_stream(stream);
            }
        }
    }
}

TEST(Random, Refusals)
{
    at_every_level([] {
        const double nan = std::numeric_limits<double>::quiet_NaN();
        RandomNumberGenerator generator;
        double r[2] = {7, 7}, first[2];
        EXPECT_FALSE(generator.GenerateGaussian(2, r, 0, 1)) << "no stream";
        EXPECT_FALSE(generator.GenerateGaussian(0, r, 0, 1)) << "no stream";
        generator.Init(3);
        ASSERT_TRUE(generator.GenerateGaussian(2, first, 0, 1));
        generator.Init(3);
        EXPECT_FALSE(generator.GenerateGaussian(-1, r, 0, 1));
        EXPECT_FALSE(generator.GenerateGaussian(INT_MIN, r, 0, 1));
        EXPECT_FALSE(generator.GenerateGaussian(2, nullptr, 0, 1));
        for (const double sigma : {0.0, -0.0, -1.0, nan}) EXPECT_FALSE(generator.GenerateGaussian(2, r, 0, sigma));
        EXPECT_TRUE(generator.GenerateGaussian(0, nullptr, 0, -1))
            << "a count of 0 is done before the rest is looked at";
        EXPECT_THAT(r, testing::Each(7));
        ASSERT_TRUE(generator.GenerateGaussian(2, r, 0, 1));
        EXPECT_THAT(r, testing::ElementsAreArray(first)) << "refusals do not advance the stream";
        generator.Cleanup();
        generator.Cleanup();
        EXPECT_FALSE(generator.GenerateGaussian(2, r, 0, 1));
    });
}

TEST(Random, Life)
{
    double r[3], same[3];
    {
        const AllocationFailure count(-1);
        RandomNumberGenerator generator;
        for (int k = 0; k < 3; ++k) generator.Init(k);
        EXPECT_EQ(AllocationFailure::live(), 2) << "the cell and one stream";
    }
    {
        const AllocationFailure no_stream(1);
        RandomNumberGenerator generator;
        EXPECT_TRUE(generator.Init(1));
        EXPECT_FALSE(generator.GenerateGaussian(3, r, 0, 1));
    }
    {
        const AllocationFailure no_cell(0);
        RandomNumberGenerator generator;
        EXPECT_TRUE(generator.Init(1));
        EXPECT_FALSE(generator.GenerateGaussian(3, r, 0, 1));
        generator.Cleanup();
    }
    // Assignment shares the stream; the target's own cell is lost, so none is made here.
    alignas(RandomNumberGenerator) unsigned char storage[sizeof(RandomNumberGenerator)];
    for (unsigned char& byte : storage) byte = 0xEE;
    auto* const shared = reinterpret_cast<RandomNumberGenerator*>(storage);
    shared->__autoclassinit2(sizeof(storage));
    EXPECT_THAT(storage, testing::Each(0));
    RandomNumberGenerator owner, reference;
    owner.Init(9);
    reference.Init(9);
    EXPECT_EQ(&(*shared = owner), shared);
    ASSERT_TRUE(owner.GenerateGaussian(1, r, 0, 1));
    ASSERT_TRUE(shared->GenerateGaussian(2, r + 1, 0, 1));
    ASSERT_TRUE(reference.GenerateGaussian(3, same, 0, 1));
    EXPECT_THAT(r, testing::ElementsAreArray(same));
}

// Moments within five of their standard errors.
TEST(Random, Moments)
{
    const int n = options().brief ? 20000 : 1000000;
    std::vector<double> r(static_cast<std::size_t>(n));
    RandomNumberGenerator generator;
    generator.Init(2026);
    ASSERT_TRUE(generator.GenerateGaussian(n, r.data(), 10, 3));
    double sums[5] = {};
    for (const double value : r) {
        double power = 1;
        for (double& sum : sums) sum += power, power *= (value - 10) / 3;
    }
    const double root = std::sqrt(double(n));
    EXPECT_NEAR(sums[1] / n, 0, 5 / root);
    EXPECT_NEAR(sums[2] / n, 1, 5 * std::sqrt(2.0) / root);
    EXPECT_NEAR(sums[3] / n, 0, 5 * std::sqrt(15.0) / root);
    EXPECT_NEAR(sums[4] / n, 3, 5 * std::sqrt(96.0) / root);
}

}  // namespace
}  // namespace test
