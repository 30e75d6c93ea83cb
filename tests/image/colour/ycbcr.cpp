// RGB to luma and chroma and back: all 2^24 pixels of every standard against integers, and these against the real
// formulas.
#include <cmath>
#include <set>

#include "ImageProcessingWrapper.h"
#include "image/colour/standards.h"
#include "image/colour/ycbcr.h"
#include "support/expected.h"
#include "support/levels.h"

namespace test {
namespace {

using W = ImageProcessingWrapper;
using u8 = unsigned char;

// How far a component is from its real value, and how often it is not the nearest integer.
struct Deviation {
    double worst = 0;
    long wrong[3] = {}, count = 0;

    void add(int component, int value, double real)
    {
        const double limited = std::min(255.0, std::max(0.0, real)), distance = std::abs(value - limited);
        worst = std::max(worst, distance);
        if (distance > 0.5 + 1e-9) ++wrong[component];
        if (component == 0) ++count;
    }
    double share() const
    {
        return static_cast<double>(*std::max_element(wrong, wrong + 3)) / static_cast<double>(count);
    }
};

struct Real {
    double kr, kb, black, s, t;
    explicit Real(const Standard& standard)
        : kr(standard.kr),
          kb(standard.kb),
          black(standard.full ? 0 : 16),
          s(standard.full ? 1 : 219 / 255.0),
          t(standard.full ? 1 : 224 / 255.0)
    {
    }
    void from_rgb(const Triple& rgb, const Triple& ycc, Deviation& d) const
    {
        const double l = kr * rgb[0] + (1 - kr - kb) * rgb[1] + kb * rgb[2];
        d.add(0, ycc[0], black + s * l);
        d.add(1, ycc[1], 128 + t * (rgb[2] - l) / (2 - 2 * kb));
        d.add(2, ycc[2], 128 + t * (rgb[0] - l) / (2 - 2 * kr));
    }
    void to_rgb(const Triple& ycc, const Triple& rgb, Deviation& d) const
    {
        const double l = (ycc[0] - black) / s, red = l + (ycc[2] - 128) * (2 - 2 * kr) / t,
                     blue = l + (ycc[1] - 128) * (2 - 2 * kb) / t;
        d.add(0, rgb[0], red);
        d.add(1, rgb[1], (l - kr * red - kb * blue) / (1 - kr - kb));
        d.add(2, rgb[2], blue);
    }
};

template <class Kernel>
std::set<Kernel*> built_variants(Kernel* const (&variants)[orv::kLevels])
{
    return {variants, variants + orv::orv_variant_index + 1};
}

class EveryPixel : public testing::TestWithParam<int> {};

TEST_P(EveryPixel, IsWhatTheIntegersSay)
{
    const int code = GetParam();
    const Standard& s = standard(code);
    const Real real(s);
    Deviation forth, back;
    std::vector<u8> src(3 << 16), ycc(src.size()), rgb(src.size()), got(src.size());
    for (int first = 0; first < 256; first += options().brief ? 51 : 1) {
        for (int i = 0; i < 65536; ++i) {
            const Triple pixel = {first, i >> 8, i & 255}, there = to_ycc(s, pixel), here = to_rgb(s, pixel);
            real.from_rgb(pixel, there, forth);
            real.to_rgb(pixel, here, back);
            const Triple round_trip = to_rgb(s, there);
            const int blue = std::abs(round_trip[2] - pixel[2]),
                      rest = std::max(std::abs(round_trip[0] - pixel[0]), std::abs(round_trip[1] - pixel[1]));
            if (rest > 1 || blue > (s.full ? 1 : 2))
                FAIL() << "there and back: " << first << " " << (i >> 8) << " " << (i & 255);
            for (std::size_t c = 0; c < 3; ++c) {
                const std::size_t at = static_cast<std::size_t>(3 * i) + c;
                src[at] = static_cast<u8>(pixel[c]);
                ycc[at] = static_cast<u8>(there[c]);
                rgb[at] = static_cast<u8>(here[c]);
            }
        }
        for (auto* const kernel : built_variants(orv::orv_RGBToYCbCr_8u_C3.variant)) {
            ASSERT_EQ(kernel(src.data(), 768, got.data(), 768, {256, 256}, code), orv::StatusOk);
            ASSERT_TRUE(got == ycc) << "to YCbCr, red " << first;
        }
        for (auto* const kernel : built_variants(orv::orv_RGBToGray_8u_C3C1.variant)) {
            ASSERT_EQ(kernel(src.data(), 768, got.data(), 256, {256, 256}, code), orv::StatusOk);
            for (std::size_t i = 0; i < 65536; ++i) ASSERT_EQ(got[i], ycc[3 * i]) << "grey, red " << first;
        }
        for (auto* const kernel : built_variants(orv::orv_YCbCrToRGB_8u_C3.variant)) {
            ASSERT_EQ(kernel(src.data(), 768, got.data(), 768, {256, 256}, code), orv::StatusOk);
            ASSERT_TRUE(got == rgb) << "to RGB, luma " << first;
        }
    }
    if (options().brief) return;
    EXPECT_LE(forth.worst, 0.505);
    EXPECT_LE(forth.share(), 0.0022);
    EXPECT_LE(back.worst, 0.533);
    EXPECT_LE(back.share(), 0.009);
}
INSTANTIATE_TEST_SUITE_P(YCbCr, EveryPixel, testing::Range(0, 4));

TEST(YCbCr, GreyBlackAndWhite)
{
    for (int code = 0; code < 4; ++code) {
        const bool full = standard(code).full;
        for (int i = 0; i < 256; ++i) {
            const u8 grey[3] = {static_cast<u8>(i), static_cast<u8>(i), static_cast<u8>(i)};
            u8 ycc[3], rgb[3];
            ASSERT_TRUE(W::RGBToYCbCr_8u_C3(grey, 3, ycc, 3, 1, 1, code));
            EXPECT_EQ(ycc[1], 128);
            EXPECT_EQ(ycc[2], 128);
            ASSERT_TRUE(W::YCbCrToRGB_8u_C3(ycc, 3, rgb, 3, 1, 1, code));
            EXPECT_EQ(rgb[0], rgb[1]);
            EXPECT_EQ(rgb[1], rgb[2]);
            EXPECT_TRUE(rgb[0] == i || !(full || i % 255 == 0)) << i;
            EXPECT_TRUE(i % 255 != 0 || ycc[0] == (full ? i : i == 0 ? 16 : 235)) << i;
        }
    }
}

// --- Rows of every width, alpha, in place ---------------------------------------------------------

struct Row {
    int channels;
    bool to_rgb;
    bool (*method)(const u8*, int, u8*, int, int, int, int);
};
const Row kRows[] = {{3, false, W::RGBToYCbCr_8u_C3},
                     {4, false, W::RGBToYCbCr_8u_AC4},
                     {3, true, W::YCbCrToRGB_8u_C3},
                     {4, true, W::YCbCrToRGB_8u_AC4}};

TEST(YCbCr, RowsOfEveryWidth)
{
    std::mt19937 g = make_generator("rows");
    for (const Row& row : kRows) {
        for (int width = 1; width <= 70; width += options().brief ? 7 : 1) {
            const int code = width % 4;
            Image a = random_pixels<u8>(width * row.channels, 3, g), d = random_image(width * row.channels, 3, g);
            const auto before_a = a.bytes(), before = d.bytes();
            std::vector<Triple> pixels;
            for (int i = 0; i < 3 * width; ++i) {
                const u8* const p = a.row(i / width) + i % width * row.channels;
                pixels.push_back(row.to_rgb ? to_rgb(standard(code), {p[0], p[1], p[2]})
                                            : to_ycc(standard(code), {p[0], p[1], p[2]}));
            }
            const auto want = [&](Image& image) {
                return [&](int y, int i) {
                    const int x = i / row.channels, c = i % row.channels;
                    if (c == 3) return element<u8>(image, y, i);
                    return static_cast<u8>(
                        pixels[static_cast<std::size_t>(y * width + x)][static_cast<std::size_t>(c)]);
                };
            };
            at_every_level([&] {
                ASSERT_TRUE(row.method(a.pixels<u8>(), a.step(), d.pixels<u8>(), d.step(), width, 3, code));
                expect_pixels<u8>(d, before, want(d));
                ASSERT_TRUE(row.method(a.pixels<u8>(), a.step(), a.pixels<u8>(), a.step(), width, 3, code));
                expect_pixels<u8>(a, before_a, want(a));
            });
        }
    }
}

TEST(YCbCr, GreyOfEveryWidth)
{
    std::mt19937 g = make_generator("grey");
    for (const int channels : {3, 4}) {
        for (int width = 1; width <= 70; width += options().brief ? 7 : 1) {
            const int code = width % 4;
            Image a = random_pixels<u8>(width * channels, 3, g), d = random_image(width, 3, g);
            const auto before = d.bytes();
            at_every_level([&] {
                ASSERT_TRUE((channels == 3 ? W::RGBToGray_8u_C3C1R : W::RGBToGray_8u_AC4C1R)(
                    a.pixels<u8>(), a.step(), d.pixels<u8>(), d.step(), width, 3, code));
                expect_pixels<u8>(d, before, [&](int y, int x) {
                    const u8* const p = a.row(y) + x * channels;
                    return static_cast<u8>(to_ycc(standard(code), {p[0], p[1], p[2]})[0]);
                });
            });
        }
    }
}

TEST(YCbCr, RefusalsWriteNothing)
{
    std::mt19937 g = make_generator("refusals");
    Image source(64, 2, {true, true, 0, 0}, g), image(64, 2, {true, false, 0, 0}, g);
    const auto before = image.bytes();
    const u8* const s = source.pixels<u8>();
    u8* const d = image.pixels<u8>();
    const int step = image.step();
    at_every_level([&] {
        for (const auto* const operation : {&orv::orv_RGBToYCbCr_8u_C3, &orv::orv_RGBToYCbCr_8u_AC4,
                                            &orv::orv_RGBToGray_8u_C3C1, &orv::orv_RGBToGray_8u_AC4C1,
                                            &orv::orv_YCbCrToRGB_8u_C3, &orv::orv_YCbCrToRGB_8u_AC4}) {
            EXPECT_EQ((*operation)(nullptr, step, d, step, {0, 2}, 9), -8);
            EXPECT_EQ((*operation)(s, step, nullptr, step, {2, 2}, 0), -8);
            EXPECT_EQ((*operation)(s, step, d, step, {0, 2}, 9), -6);
            EXPECT_EQ((*operation)(s, step, d, step, {2, -1}, 0), -6);
            for (const int code : {-1, 4, 2147483647, -2147483647 - 1})
                EXPECT_EQ((*operation)(s, step, d, step, {2, 2}, code), -302);
        }
        for (const Row& row : kRows) EXPECT_FALSE(row.method(s, step, d, step, 2, 2, 4));
        ASSERT_EQ(image.bytes(), before);
    });
}

}  // namespace
}  // namespace test
