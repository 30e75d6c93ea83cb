// Gaussian smoothing, against the formula with every rounding done by hand and against the exact weights.
#include "SignalProcessingWrapper.h"
#include "image/filters/gauss.h"
#include "support/double_steps.h"
#include "support/framed_floats.h"
#include "support/image_tests.h"

namespace test {
namespace {

// --- Oracle ---------------------------------------------------------------------------------------

// w[0] to w[r]. The exponential is that of vectors, at the plain level.
std::vector<double> weights(int r, float sigma)
{
    const int level = orv::orv_variant_index;
    orv::orv_variant_index = orv::level_px;
    std::vector<double> g(static_cast<std::size_t>(r) + 1), w(g);
    const double s = static_cast<double>(sigma), width = times(times(2, s), s);
    for (int i = 1; i <= r; ++i) g[static_cast<std::size_t>(i)] = over(-i * i, width);
    SignalProcessingWrapper::Exp_64f(g.data(), g.data(), r + 1);
    orv::orv_variant_index = level;
    const auto sum = [r](const std::vector<double>& v) {
        double total = v[static_cast<std::size_t>(r)];
        for (int i = r - 1; i > 0; --i) total = plus(total, v[static_cast<std::size_t>(i)]);
        return total;
    };
    w[0] = 1;
    if (r == 0) return w;
    const double whole = plus(1, 2 * sum(g));
    for (std::size_t i = 1; i < g.size(); ++i) w[i] = static_cast<double>(single(over(g[i], whole)));
    w[0] = static_cast<double>(single(minus(1, 2 * sum(w))));
    return w;
}

template <class At>
float weighted(const std::vector<double>& w, At at)
{
    const int r = static_cast<int>(w.size()) - 1;
    double sum = 0;
    bool first = true;
    for (int i = -r; i <= r; ++i) {
        const double weight = w[static_cast<std::size_t>(std::abs(i))];
        if (weight == 0) continue;
        const double product = times(weight, at(i));
        sum = first ? product : plus(sum, product);
        first = false;
    }
    return single(sum);
}

int clamped(int i, int n) { return std::min(std::max(i, 0), n - 1); }

std::vector<std::uint32_t> expected(const FramedFloats& s, int size, float sigma)
{
    const std::vector<double> w = weights(size / 2, sigma);
    const int width = s.width(), height = s.height();
    std::vector<float> rows;
    std::vector<std::uint32_t> result;
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x)
            rows.push_back(weighted(w, [&](int i) { return s.value(clamped(x + i, width), y); }));
    }
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            const float value = weighted(w, [&](int j) {
                return static_cast<double>(rows[static_cast<std::size_t>(clamped(y + j, height) * width + x)]);
            });
            result.push_back(std::isnan(value) ? 0xFFFFFFFFu : bits_of(value));
        }
    }
    return result;
}

bool filter(const FramedFloats& s, FramedFloats& d, int size, float sigma)
{
    return W::FilterGaussBorder_32f_C1R(s.pixels(), s.step(), d.pixels(), d.step(), s.width(), s.height(), size, sigma);
}

// --- Tests ----------------------------------------------------------------------------------------

TEST(Gauss, FollowsTheFormula)
{
    std::mt19937 g = make_generator("Gauss");
    struct Case {
        int width, height, size;
        float sigma;
        Fill fill;
    };
    const Case cases[] = {
        {1, 1, 1, 1.0f, Fill::special},    {1, 1, 7, 2.0f, Fill::uniform},     {2, 3, 255, 40.0f, Fill::uniform},
        {70, 9, 1, 3.0f, Fill::special},   {33, 5, 3, 0.8f, Fill::uniform},    {64, 6, 3, 0.8f, Fill::special},
        {47, 11, 5, 1.0f, Fill::near_low}, {39, 13, 7, 1.4f, Fill::near_high}, {40, 21, 15, 2.5f, Fill::uniform},
        {90, 4, 31, 5.0f, Fill::uniform},  {1, 50, 31, 5.0f, Fill::near_high}, {50, 1, 31, 5.0f, Fill::special},
        {45, 10, 9, 0.3f, Fill::special},  {45, 10, 9, 1e-30f, Fill::special}, {45, 10, 9, 1e-45f, Fill::near_high},
        {20, 8, 5, 1e30f, Fill::uniform},  {300, 7, 5, 1.1f, Fill::near_high}, {36, 40, 33, 1.5f, Fill::uniform},
    };
    for (const Case& c : cases) {
        for (const int gap : {0, 5}) {
            const bool ends = gap != 0 || uniform(g, 0, 1) == 0;
            FramedFloats src(c.width, c.height, 0, 0, gap, ends);
            src.fill_at_random(g, c.fill);
            const auto want = expected(src, c.size, c.sigma);
            at_every_level([&] {
                FramedFloats dst(c.width, c.height, 0, 0, gap, !ends), place(c.width, c.height, 0, 0, gap, ends);
                place.fill([&](int x, int y) { return from_bits<float>(src.bits(x, y)); });
                for (int i = 0; i < c.width * c.height; ++i)
                    place.set_bits(i % c.width, i / c.width, src.bits(i % c.width, i / c.width));
                ASSERT_TRUE(filter(src, dst, c.size, c.sigma));
                ASSERT_TRUE(filter(place, place, c.size, c.sigma));
                for (int y = 0; y < c.height; ++y) {
                    for (int x = 0; x < c.width; ++x) {
                        const auto value = want[static_cast<std::size_t>(y * c.width + x)];
                        ASSERT_EQ(dst.bits(x, y), value)
                            << c.width << " x " << c.height << ", " << c.size << " at " << x << ", " << y;
                        ASSERT_EQ(place.bits(x, y), value) << "in place";
                    }
                }
            });
        }
    }
}

// The weights, shown by a single pixel, against those of long doubles; and their sum.
TEST(Gauss, HasTheWeightsOfAGaussian)
{
    at_every_level([] {
        for (const int r : {1, 2, 3, 7, 15, 60}) {
            for (const float sigma : {0.4f, 0.8f, 1.0f, 2.5f, 11.0f, 1e4f}) {
                FramedFloats src(4 * r + 1, 1), dst(4 * r + 1, 1);
                src.fill([=](int x, int) { return x == 2 * r ? 1.0f : 0.0f; });
                ASSERT_TRUE(filter(src, dst, 2 * r + 1, sigma));
                std::vector<long double> g;
                long double whole = 0;
                for (int i = -2 * r; i <= 2 * r; ++i) {
                    const long double s = static_cast<long double>(sigma);
                    g.push_back(std::abs(i) <= r ? std::exp(-static_cast<long double>(i) * i / (2 * s * s)) : 0);
                    whole += g.back();
                }
                double sum = 0;
                for (int i = 0; i <= 4 * r; ++i) {
                    ASSERT_NEAR(dst.value(i, 0), static_cast<double>(g[static_cast<std::size_t>(i)] / whole),
                                6 * 0x1p-24)
                        << r << ", " << sigma << " at " << i;
                    sum += dst.value(i, 0);
                }
                EXPECT_NEAR(sum, 1, 6 * 0x1p-24);
            }
        }
    });
}

TEST(Gauss, KeepsConstantsAndRamps)
{
    at_every_level([] {
        for (const int size : {1, 3, 5, 7, 9, 15, 31, 101, 255}) {
            for (const float sigma : {1e-45f, 1e-30f, 0.3f, 0.84f, 1.7f, 3.0f, 12.5f, 1e30f, 3e38f}) {
                FramedFloats src(41, 6), dst(41, 6);
                for (const float value : {255.0f, 0.1f, -1.0f / 3, 1e-44f, 3.4e38f, -65535.0f, 1e-20f, -0.0f}) {
                    src.fill([=](int, int) { return value; });
                    ASSERT_TRUE(filter(src, dst, size, sigma));
                    for (int i = 0; i < 246; ++i)
                        ASSERT_EQ(dst.bits(i % 41, i / 41), bits_of(value)) << value << ", " << size << ", " << sigma;
                }
                src.fill([](int x, int) { return static_cast<float>(3 * x - 50); });
                ASSERT_TRUE(filter(src, dst, size, sigma));
                for (int x = size / 2; x < 41 - size / 2; ++x)
                    ASSERT_NEAR(dst.value(x, 2), 3 * x - 50, 73 * 6 * 0x1p-24);
            }
        }
    });
}

TEST(Gauss, NarrowAndWideLimits)
{
    std::mt19937 g = make_generator("GaussLimits");
    FramedFloats src(50, 20), dst(50, 20);
    src.fill_at_random(g, Fill::uniform);
    at_every_level([&] {
        ASSERT_TRUE(filter(src, dst, 9, 1e-30f));
        for (int i = 0; i < 1000; ++i)
            ASSERT_EQ(dst.bits(i % 50, i / 50), src.bits(i % 50, i / 50)) << "no neighbour has a weight";
        ASSERT_TRUE(filter(src, dst, 3, 1e30f));
        for (int i = 0; i < 1000; ++i) {
            const int x = i % 50, y = i / 50;
            double mean = 0;
            for (int k = 0; k < 9; ++k) mean += src.value(clamped(x + k % 3 - 1, 50), clamped(y + k / 3 - 1, 20)) / 9;
            ASSERT_NEAR(dst.value(x, y), mean, 2000 * 6 * 0x1p-24) << "all neighbours have the same";
        }
    });
}

TEST(Gauss, RefusalsWriteNothing)
{
    FramedFloats src(8, 8), dst(8, 8);
    dst.fill([](int, int) { return 7.0f; });
    const float* const s = src.pixels();
    float* const d = dst.pixels();
    struct Case {
        const float* src;
        int srcStep, dstStep, width, height, size;
        float sigma;
        orv::Status status;
    };
    using namespace orv;
    const float nan = std::nanf("");
    const Case cases[] = {
        {nullptr, 0, 0, 0, 0, 0, 0, StatusNullPointer},    {s, 0, 32, 0, 8, 4, 0, StatusBadSize},
        {s, 32, 32, 8, -1, 3, 1, StatusBadSize},           {s, 0, 32, 8, 8, 4, 0, StatusBadStep},
        {s, 32, -1, 8, 8, 3, 1, StatusBadStep},            {s, 32, 32, 8, 8, 4, 0, StatusBadMaskSize},
        {s, 32, 32, 8, 8, 257, 1, StatusBadMaskSize},      {s, 32, 32, 8, 8, -3, 1, StatusBadMaskSize},
        {s, 32, 32, 8, 8, 0, 1, StatusBadMaskSize},        {s, 32, 32, 8, 8, 3, 0, StatusBadFactor},
        {s, 32, 32, 8, 8, 3, -0.0f, StatusBadFactor},      {s, 32, 32, 8, 8, 3, -1, StatusBadFactor},
        {s, 32, 32, 8, 8, 3, HUGE_VALF, StatusBadFactor},  {s, 32, 32, 8, 8, 3, nan, StatusBadFactor},
        {s, 32, 32, 8, 8, 1, -nan, StatusBadFactor},       {s, 32, 32, 8, 8, 1, 1, StatusNoMemory},
        {s, 32, 32, 8, 8, 255, 1, StatusNoMemory},
    };
    at_every_level([&] {
        {
            const AllocationFailure none_left(0);
            for (const Case& c : cases) {
                EXPECT_EQ(orv_FilterGaussBorder_32f_C1R(c.src, c.srcStep, d, c.dstStep, {c.width, c.height}, c.size,
                                                        &c.sigma),
                          c.status);
                EXPECT_FALSE(
                    W::FilterGaussBorder_32f_C1R(c.src, c.srcStep, d, c.dstStep, c.width, c.height, c.size, c.sigma));
            }
            EXPECT_FALSE(W::FilterGaussBorder_32f_C1R(s, 32, nullptr, 32, 8, 8, 3, 1));
        }
        const float sigma = 1;
        EXPECT_EQ(orv_FilterGaussBorder_32f_C1R(s, 32, d, 32, {0x7FFFFFFF, 4}, 3, &sigma), StatusNoMemory)
            << "rows larger than any memory";
        for (int i = 0; i < 64; ++i) ASSERT_EQ(dst.value(i % 8, i / 8), 7);
    });
}

}  // namespace
}  // namespace test
