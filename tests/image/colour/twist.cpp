// Colour matrices against sums in 113 bits that are rounded to float step by step.
#include <array>

#include "image/colour/twist.h"
#include "support/image_tests.h"

namespace test {
namespace {

using Matrix = std::array<float, 12>;

float rounded_once(Quad value)
{
    volatile float stored = static_cast<float>(value);
    return stored;
}
// Three products, then the sums from the left.
float twisted(const float* row, const float* p)
{
    float sum = rounded_once(Quad{row[0]} * p[0]);
    for (int k = 1; k < 3; ++k) sum = rounded_once(Quad{sum} + rounded_once(Quad{row[k]} * p[k]));
    return rounded_once(Quad{sum} + row[3]);
}
u8 to_byte(float value)
{
    if (!(value > 0)) return 0;
    return static_cast<u8>(std::min(255.0, std::nearbyint(std::min(300.0, static_cast<double>(value)))));
}

std::vector<Matrix> matrices(std::mt19937& g)
{
    using L = std::numeric_limits<float>;
    const float infinity = L::infinity(), nan = L::quiet_NaN(), most = L::max();
    std::vector<Matrix> all = {
        {1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0},                           // identity
        {0, 0, 1, 0, 1, 0, 0, 0, 0, 1, 0, 0},                           // a permutation
        {0.5f, 0, 0, 0, 0, 0.5f, 0, 1, 0, 0, -0.5f, 128},               // halves on both parities
        {0.25f, 0.25f, 0, 0.5f, 0, 0, 0, 255.5f, 0, 0, 0, 254.5f},      // sums that hit halves, and the upper end
        {0, 0, 0, nan, infinity, 0, 0, 0, 0, infinity, -infinity, 0},   // 0 times infinity, infinities of both signs
        {most, most, 0, 0, -most, most, 0, 7, 0, 0, 0, -infinity},      // overflow on the way
        {1e8f, -1e8f, 1, 0.25f, 1e8f, 1, -1e8f, 0.25f, 1, 1e8f, -1e8f, 0.25f},  // other orders give other bits
        {0.299f, 0.587f, 0.114f, 0, -0.1687f, -0.3313f, 0.5f, 128, 0.5f, -0.4187f, -0.0813f, 128},
        {L::denorm_min(), 0, 0, 0, 1e-40f, 1e-40f, -1e-40f, 0, 1e-3f, 0, 0, 0.49999997f},
    };
    for (int i = 0; i < 12; ++i) {
        Matrix m;
        for (float& v : m)
            v = i % 3 == 0 ? random_value<float>(g, Fill::uniform)
                           : std::uniform_real_distribution<float>(-1.5f, 1.5f)(g);
        all.push_back(m);
    }
    return all;
}

TEST(Twist, Bytes)
{
    struct Row {
        int channels;
        bool (*method)(const u8*, int, const float*, u8*, int, int, int);
    };
    std::mt19937 g = make_generator("bytes");
    for (const Matrix& m : matrices(g)) {
        for (const Row& row : {Row{3, W::ColorTwist32f_8u_C3}, Row{4, W::ColorTwist32f_8u_AC4}}) {
            for (const int width : {1, 2, 3, 4, 5, 7, 8, 9, 15, 16, 17, 31, 33, 47, 64, 200}) {
                Image a = random_image(width * row.channels, 2, g), d = random_image(width * row.channels, 2, g);
                const auto before_a = a.bytes(), before = d.bytes();
                std::vector<u8> results;
                for (int i = 0; i < 2 * width; ++i) {
                    const u8* const p = a.row(i / width) + i % width * row.channels;
                    const float pixel[3] = {static_cast<float>(p[0]), static_cast<float>(p[1]),
                                            static_cast<float>(p[2])};
                    for (int c = 0; c < 3; ++c) results.push_back(to_byte(twisted(m.data() + 4 * c, pixel)));
                }
                const auto want = [&](Image& image) {
                    return [&](int y, int i) {
                        const int x = i / row.channels, c = i % row.channels;
                        return c == 3 ? element<u8>(image, y, i)
                                      : results[static_cast<std::size_t>(3 * (y * width + x) + c)];
                    };
                };
                at_every_level([&] {
                    ASSERT_TRUE(row.method(a.pixels<u8>(), a.step(), m.data(), d.pixels<u8>(), d.step(), width, 2));
                    expect_pixels<u8>(d, before, want(d));
                    ASSERT_TRUE(row.method(a.pixels<u8>(), a.step(), m.data(), a.pixels<u8>(), a.step(), width, 2));
                    expect_pixels<u8>(a, before_a, want(a));
                });
            }
        }
    }
}

TEST(Twist, Floats)
{
    std::mt19937 g = make_generator("floats");
    for (const Matrix& m : matrices(g)) {
        for (const int width : {1, 2, 3, 4, 5, 7, 8, 9, 16, 17, 33, 100}) {
            Image a = random_pixels<float>(3 * width, 2, g), d = random_image(12 * width, 2, g);
            const auto before_a = a.bytes(), before = d.bytes();
            std::vector<std::uint32_t> results;
            for (int i = 0; i < 6 * width; ++i) {
                const int x = i / 3 % width;
                const float p[3] = {element<float>(a, i / (3 * width), 3 * x),
                                    element<float>(a, i / (3 * width), 3 * x + 1),
                                    element<float>(a, i / (3 * width), 3 * x + 2)};
                const float value = twisted(m.data() + 4 * (i % 3), p);
                results.push_back(std::isnan(value) ? 0x7FC00000 : bits_of(value));
            }
            const auto want = [&](int y, int i) { return results[static_cast<std::size_t>(y * 3 * width + i)]; };
            at_every_level([&] {
                ASSERT_TRUE(W::ColorTwist32f_32f_C3(a.pixels<float>(), a.step(), m.data(), d.pixels<float>(), d.step(),
                                                    width, 2));
                expect_pixels<std::uint32_t>(d, before, want);
                ASSERT_TRUE(W::ColorTwist32f_32f_C3(a.pixels<float>(), a.step(), m.data(), a.pixels<float>(), a.step(),
                                                    width, 2));
                expect_pixels<std::uint32_t>(a, before_a, want);
            });
        }
    }
}

TEST(Twist, RefusalsWriteNothing)
{
    std::mt19937 g = make_generator("refusals");
    Image source(64, 2, {true, true, 0, 0}, g), image(64, 2, {true, false, 0, 0}, g);
    const auto before = image.bytes();
    const Matrix m = {};
    const int step = image.step();
    at_every_level([&] {
        const auto run = [&](const orv::Operation<orv::SrcTwistDst<u8>>& operation, bool src, bool twist, bool dst,
                             orv::Size roi) {
            return operation(src ? source.pixels<u8>() : nullptr, step, twist ? m.data() : nullptr,
                             dst ? image.pixels<u8>() : nullptr, step, roi);
        };
        for (const auto* const operation : {&orv::orv_ColorTwist32f_8u_C3, &orv::orv_ColorTwist32f_8u_AC4}) {
            EXPECT_EQ(run(*operation, false, true, true, {0, 0}), -8);
            EXPECT_EQ(run(*operation, true, false, true, {2, 2}), -8);
            EXPECT_EQ(run(*operation, true, true, false, {2, 2}), -8);
            EXPECT_EQ(run(*operation, true, true, true, {0, 2}), -6);
            EXPECT_EQ(run(*operation, true, true, true, {2, -2}), -6);
        }
        EXPECT_FALSE(W::ColorTwist32f_32f_C3(source.pixels<float>(), step, nullptr, image.pixels<float>(), step, 2, 2));
        EXPECT_FALSE(
            W::ColorTwist32f_32f_C3(source.pixels<float>(), step, m.data(), image.pixels<float>(), step, 2, 0));
        ASSERT_EQ(image.bytes(), before);
    });
}

}  // namespace
}  // namespace test
