// Smoothing by local statistics, against the formula with every rounding done by hand.
#include "image/filters/wiener.h"
#include "support/double_steps.h"
#include "support/framed_floats.h"
#include "support/image_tests.h"

namespace test {
namespace {

// --- Oracle ---------------------------------------------------------------------------------------

struct Mask {
    int width, height;
};
struct Local {
    double mean, variance;
};

Local local(const FramedFloats& s, int x, int y, Mask mask)
{
    double sum = 0, squares = 0;
    for (int i = -(mask.width / 2); i <= mask.width / 2; ++i) {
        double column = 0, column_squares = 0;
        for (int j = -(mask.height / 2); j <= mask.height / 2; ++j) {
            const double pixel = s.value(x + i, y + j), square = times(pixel, pixel);
            const bool first = j == -(mask.height / 2);
            column = first ? pixel : plus(column, pixel);
            column_squares = first ? square : plus(column_squares, square);
        }
        const bool first = i == -(mask.width / 2);
        sum = first ? column : plus(sum, column);
        squares = first ? column_squares : plus(squares, column_squares);
    }
    const double n = mask.width * mask.height, mean = over(sum, n);
    return {mean, minus(over(squares, n), times(mean, mean))};
}

std::uint32_t expected(double pixel, Local at, double noise)
{
    double result = at.mean;
    if (at.variance > noise) {
        result = plus(at.mean, times(minus(pixel, at.mean), over(minus(at.variance, noise), at.variance)));
    }
    return result != result ? 0xFFFFFFFFu : bits_of(single(result));
}

struct Expected {
    std::vector<Local> locals;
    double estimate = 0;

    Expected(const FramedFloats& s, Mask mask)
    {
        for (int y = 0; y < s.height(); ++y) {
            double lanes[32] = {};
            for (int x = 0; x < s.width(); ++x) {
                locals.push_back(local(s, x, y, mask));
                if (locals.back().variance > 0) lanes[x % 32] = plus(lanes[x % 32], locals.back().variance);
            }
            for (int half = 16; half > 0; half /= 2) {
                for (int j = 0; j < half; ++j) lanes[j] = plus(lanes[j], lanes[j + half]);
            }
            estimate = plus(estimate, lanes[0]);
        }
        estimate = over(estimate, times(s.width(), s.height()));
    }
};

bool filter(const FramedFloats& s, FramedFloats& d, Mask mask, double* noise)
{
    return W::FilterWiener_32f_C1(s.pixels(), s.step(), d.pixels(), d.step(), s.width(), s.height(), mask.width,
                                  mask.height, noise);
}

// --- Tests ----------------------------------------------------------------------------------------

TEST(Wiener, FollowsTheFormula)
{
    std::mt19937 g = make_generator("Wiener");
    struct Case {
        int width, height;
        Mask mask;
        Fill fill;
    };
    const Case cases[] = {
        {1, 1, {1, 1}, Fill::uniform},   {1, 1, {3, 3}, Fill::uniform},    {5, 3, {3, 3}, Fill::near_high},
        {33, 4, {5, 3}, Fill::uniform},  {64, 3, {7, 7}, Fill::uniform},   {47, 9, {3, 5}, Fill::near_low},
        {40, 6, {3, 3}, Fill::special},  {31, 5, {1, 9}, Fill::uniform},   {31, 5, {9, 1}, Fill::special},
        {1, 40, {15, 3}, Fill::uniform}, {513, 2, {3, 3}, Fill::uniform},  {1100, 1, {5, 1}, Fill::near_low},
        {70, 1, {255, 1}, Fill::uniform}, {20, 2, {1, 255}, Fill::uniform}, {530, 1, {41, 3}, Fill::near_high},
    };
    for (const Case& c : cases) {
        for (const int gap : {0, 3}) {
            const bool ends = gap != 0 || uniform(g, 0, 1) == 0;
            FramedFloats src(c.width, c.height, c.mask.width / 2, c.mask.height / 2, gap, ends);
            src.fill_at_random(g, c.fill);
            const Expected want(src, c.mask);
            for (const double given : {-1.0, -0.0, want.locals[0].variance, 1000.0, HUGE_VAL}) {
                const double noise = given < 0 || given != given ? want.estimate : given;
                at_every_level([&] {
                    FramedFloats dst(c.width, c.height, 0, 0, gap, !ends);
                    double used = given != given ? -HUGE_VAL : given;
                    ASSERT_TRUE(filter(src, dst, c.mask, &used));
                    ASSERT_EQ(bits_of(used), bits_of(noise)) << "noise";
                    for (int y = 0; y < c.height; ++y) {
                        for (int x = 0; x < c.width; ++x) {
                            ASSERT_EQ(dst.bits(x, y),
                                      expected(src.value(x, y), want.locals[static_cast<std::size_t>(y * c.width + x)],
                                               noise))
                                << c.width << " x " << c.height << ", " << c.mask.width << " x " << c.mask.height
                                << " at " << x << ", " << y;
                        }
                    }
                });
            }
        }
    }
}

// The noise as statistics has it, and the two ends of the filter.
TEST(Wiener, LeavesPixelsOrTakesMeans)
{
    std::mt19937 g = make_generator("WienerEnds");
    const int w = 60, h = 40;
    FramedFloats src(w, h, 2, 1), dst(w, h);
    src.fill_at_random(g, Fill::uniform);
    long double total = 0;
    std::vector<float> means;
    for (int y = 0; y < h; ++y) {
        for (int x = 0; x < w; ++x) {
            long double sum = 0, deviations = 0;
            const auto each = [&](auto use) {
                for (int k = 0; k < 15; ++k) use(static_cast<long double>(src.value(x + k % 5 - 2, y + k / 5 - 1)));
            };
            each([&](long double p) { sum += p; });
            each([&](long double p) { deviations += (p - sum / 15) * (p - sum / 15); });
            total += deviations / 15;
            means.push_back(static_cast<float>(sum / 15));
        }
    }
    at_every_level([&] {
        double noise = -1, none = 0, all = HUGE_VAL;
        ASSERT_TRUE(filter(src, dst, {5, 3}, &noise));
        EXPECT_NEAR(noise / static_cast<double>(total / (w * h)), 1, 1e-13);
        ASSERT_TRUE(filter(src, dst, {5, 3}, &none));
        for (int i = 0; i < w * h; ++i) ASSERT_NEAR(dst.value(i % w, i / w), src.value(i % w, i / w), 1e-4);
        ASSERT_TRUE(filter(src, dst, {5, 3}, &all));
        for (int i = 0; i < w * h; ++i)
            ASSERT_NEAR(dst.value(i % w, i / w), static_cast<double>(means[static_cast<std::size_t>(i)]), 1e-4);
    });
}

TEST(Wiener, KeepsConstants)
{
    at_every_level([] {
        for (const float value : {0.0f, -0.0f, 255.0f, 0.1f, -1e-40f, 3e38f, -7e-20f, 16777215.0f, HUGE_VALF}) {
            FramedFloats src(50, 5, 3, 2), dst(50, 5);
            src.fill([=](int, int) { return value; });
            double noise = -1;
            ASSERT_TRUE(filter(src, dst, {7, 5}, &noise));
            for (int i = 0; i < 250; ++i) ASSERT_EQ(dst.bits(i % 50, i / 50), bits_of(value)) << value;
        }
    });
}

// A window gives the same bits wherever it lies.
TEST(Wiener, DependsOnTheWindowAlone)
{
    std::mt19937 g = make_generator("WienerPatch");
    FramedFloats src(1200, 12, 2, 2), dst(1200, 12);
    src.fill_at_random(g, Fill::uniform);
    const auto patch_at = [](int number) { return std::pair<int, int>{1 + 61 * number, number % 6}; };
    for (int number = 1; number < 19; ++number) {
        for (int i = 0; i < 25; ++i) {
            const auto from = patch_at(0), to = patch_at(number);
            src.set_bits(to.first + i % 5, to.second + i / 5, src.bits(from.first + i % 5, from.second + i / 5));
        }
    }
    at_every_level([&] {
        double noise = 500;
        ASSERT_TRUE(filter(src, dst, {5, 5}, &noise));
        for (int number = 1; number < 19; ++number) {
            const auto to = patch_at(number);
            ASSERT_EQ(dst.bits(to.first + 2, to.second + 2), dst.bits(3, 2)) << number;
        }
    });
}

TEST(Wiener, RefusalsWriteNothing)
{
    FramedFloats src(8, 8, 2, 2), dst(8, 8);
    src.fill([](int x, int y) { return static_cast<float>(x * y); });
    dst.fill([](int, int) { return 7.0f; });
    const float *const s = src.pixels();
    float* const d = dst.pixels();
    const double nan = std::nan("");
    struct Case {
        const float* src;
        int srcStep, dstStep, width, height, maskWidth, maskHeight;
        double noise;
        orv::Status status;
    };
    using namespace orv;
    const Case cases[] = {
        {nullptr, 0, 0, 0, 0, 0, 0, nan, StatusNullPointer}, {s, 0, 32, 0, 8, 4, 3, nan, StatusBadSize},
        {s, 32, 32, 8, -1, 3, 3, -1, StatusBadSize},         {s, 0, 32, 8, 8, 4, 3, nan, StatusBadStep},
        {s, 48, -32, 8, 8, 3, 3, -1, StatusBadStep},         {s, 48, 32, 8, 8, 2, 3, nan, StatusBadMaskSize},
        {s, 48, 32, 8, 8, 3, 257, -1, StatusBadMaskSize},    {s, 48, 32, 8, 8, -1, 3, -1, StatusBadMaskSize},
        {s, 48, 32, 8, 8, 3, 0, -1, StatusBadMaskSize},      {s, 48, 32, 8, 8, 3, 3, nan, StatusBadThreshold},
        {s, 48, 32, 8, 8, 3, 3, -nan, StatusBadThreshold},   {s, 48, 32, 8, 8, 3, 3, -1, StatusNoMemory},
    };
    at_every_level([&] {
        const AllocationFailure none_left(0);
        for (const Case& c : cases) {
            double noise = c.noise;
            EXPECT_EQ(orv_FilterWiener_32f_C1(c.src, c.srcStep, d, c.dstStep, {c.width, c.height}, c.maskWidth,
                                              c.maskHeight, &noise),
                      c.status);
            EXPECT_FALSE(W::FilterWiener_32f_C1(c.src, c.srcStep, d, c.dstStep, c.width, c.height, c.maskWidth,
                                                c.maskHeight, &noise));
            EXPECT_EQ(bits_of(noise), bits_of(c.noise));
        }
        double noise = -1;
        EXPECT_EQ(orv_FilterWiener_32f_C1(s, 48, nullptr, 32, {8, 8}, 3, 3, &noise), StatusNullPointer);
        EXPECT_EQ(orv_FilterWiener_32f_C1(s, 48, d, 32, {8, 8}, 3, 3, nullptr), StatusNullPointer);
        for (int i = 0; i < 64; ++i) ASSERT_EQ(dst.value(i % 8, i / 8), 7);
    });
}

}  // namespace
}  // namespace test
