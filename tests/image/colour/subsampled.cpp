// 4:2:2 and 4:2:0: rows of every width, noise in all planes, and nothing beyond the last pair.
#include "image/colour/standards.h"
#include "image/colour/subsampled.h"
#include "support/image_tests.h"

namespace test {
namespace {

Triple pixel_at(Image& image, int y, int x)
{
    const u8* const p = image.row(y) + 3 * x;
    return {p[0], p[1], p[2]};
}
u8 byte(const Triple& t, int c) { return static_cast<u8>(t[static_cast<std::size_t>(c)]); }

// Bytes of the pair: Y0 Cb Y1 Cr.
u8 packed_byte(Image& rgb, const Standard& s, int y, int pair, int which, int width)
{
    const Triple first = pixel_at(rgb, y, 2 * pair), second = pixel_at(rgb, y, std::min(2 * pair + 1, width - 1));
    if (which % 2 == 0) return static_cast<u8>(luma(s, which == 0 ? first : second));
    return static_cast<u8>(
        chroma(s, which == 1 ? 1 : 2, {first[0] + second[0], first[1] + second[1], first[2] + second[2]}, 2));
}

// Noise, in some images the ends of the range only, where sums saturate, and in some pairs of equal primaries.
Image noise(int bytes, int height, std::mt19937& g)
{
    Image image = random_image(bytes, height, g);
    const int kind = uniform(g, 0, 3);
    for (int y = 0; kind < 2 && y < height; ++y) {
        u8* const row = image.row(y);
        for (int i = 0; i < bytes; ++i) {
            const bool high = kind == 1 && i % 6 >= 3 ? row[i - 3] != 0 : g() % 2 != 0;
            const auto off = static_cast<u8>(kind == 0 ? g() % 3 : 0);
            row[i] = static_cast<u8>(high ? 255 - off : off);
        }
    }
    return image;
}

template <class Check>
void for_every_width(const char* name, Check check)
{
    std::mt19937 g = make_generator(name);
    for (int width = 1; width <= (options().brief ? 35 : 140); ++width) {
        for (int code = 0; code < 4; ++code) {
            SCOPED_TRACE("width " + std::to_string(width) + ", standard " + std::to_string(code));
            check(width, uniform(g, 1, 5), code, g);
            if (testing::Test::HasFatalFailure()) return;
        }
    }
}

TEST(Subsampled, To422)
{
    for_every_width("to 422", [](int width, int height, int code, std::mt19937& g) {
        Image a = noise(3 * width, height, g), d = random_image(4 * ((width + 1) / 2), height, g);
        const auto before = d.bytes();
        at_every_level([&] {
            ASSERT_TRUE(
                W::RGBToYUV422_8u_C3C2R(a.pixels<u8>(), a.step(), d.pixels<u8>(), d.step(), width, height, code));
            expect_pixels<u8>(d, before,
                              [&](int y, int i) { return packed_byte(a, standard(code), y, i / 4, i % 4, width); });
        });
    });
}

TEST(Subsampled, From422)
{
    for_every_width("from 422", [](int width, int height, int code, std::mt19937& g) {
        Image a = noise(4 * ((width + 1) / 2), height, g), d = random_image(3 * width, height, g);
        const auto before = d.bytes();
        at_every_level([&] {
            ASSERT_TRUE(
                W::YUV422ToRGB_8u_C2C3R(a.pixels<u8>(), a.step(), d.pixels<u8>(), d.step(), width, height, code));
            expect_pixels<u8>(d, before, [&](int y, int i) {
                const int x = i / 3;
                const u8* const pair = a.row(y) + 4 * (x / 2);
                return byte(to_rgb(standard(code), {pair[x % 2 * 2], pair[1], pair[3]}), i % 3);
            });
        });
    });
}

TEST(Subsampled, From420)
{
    for_every_width("from 420", [](int width, int height, int code, std::mt19937& g) {
        const int half_width = (width + 1) / 2, half_height = (height + 1) / 2;
        Image luma = noise(width, height, g), u = noise(half_width, half_height, g),
              v = noise(half_width, half_height, g);
        Image d = random_image(3 * width, height, g);
        const auto before = d.bytes();
        at_every_level([&] {
            ASSERT_TRUE(W::YUV420ToRGB_8u_P3C3(luma.pixels<u8>(), luma.step(), u.pixels<u8>(), u.step(), v.pixels<u8>(),
                                               v.step(), d.pixels<u8>(), d.step(), width, height, code));
            expect_pixels<u8>(d, before, [&](int y, int i) {
                const int x = i / 3;
                return byte(to_rgb(standard(code), {luma.row(y)[x], u.row(y / 2)[x / 2], v.row(y / 2)[x / 2]}), i % 3);
            });
        });
    });
}

// Rows from the last one upward, and one row for all.
TEST(Subsampled, NegativeAndZeroSteps)
{
    std::mt19937 g = make_generator("steps");
    const int width = 45, height = 5;
    Image luma(width, height, {false, false, -60, 3}, g), u(23, 1, {false, false, 23, 1}, g),
        v(23, 3, {false, false, -40, 0}, g);
    Image d(3 * width, height, {false, false, -3 * width, 5}, g);
    const auto before = d.bytes();
    at_every_level([&] {
        ASSERT_TRUE(W::YUV420ToRGB_8u_P3C3(luma.pixels<u8>(), luma.step(), u.pixels<u8>(), 0, v.pixels<u8>(), v.step(),
                                           d.pixels<u8>(), d.step(), width, height, 2));
        expect_pixels<u8>(d, before, [&](int y, int i) {
            const int x = i / 3;
            return byte(to_rgb(standard(2), {luma.row(y)[x], u.row(0)[x / 2], v.row(y / 2)[x / 2]}), i % 3);
        });
    });
}

TEST(Subsampled, RefusalsWriteNothing)
{
    std::mt19937 g = make_generator("refusals");
    Image source(64, 2, {true, true, 0, 0}, g), image(64, 2, {true, false, 0, 0}, g);
    const auto before = image.bytes();
    const u8* const s = source.pixels<u8>();
    u8* const d = image.pixels<u8>();
    const int step = image.step();
    at_every_level([&] {
        for (const auto* const operation : {&orv::orv_RGBToYUV422_8u_C3C2R, &orv::orv_YUV422ToRGB_8u_C2C3R}) {
            EXPECT_EQ((*operation)(nullptr, step, d, step, {0, 2}, 9), -8);
            EXPECT_EQ((*operation)(s, step, nullptr, step, {2, 2}, 0), -8);
            EXPECT_EQ((*operation)(s, step, d, step, {2, 0}, 9), -6);
            EXPECT_EQ((*operation)(s, step, d, step, {2, 2}, 4), -302);
            EXPECT_EQ((*operation)(s, step, d, step, {2, 2}, -1), -302);
        }
        for (int missing = 0; missing < 4; ++missing) {
            const auto given = [&](int k) { return k == missing ? nullptr : s; };
            EXPECT_EQ(orv::orv_YUV420ToRGB_8u_P3C3(given(0), step, given(1), step, given(2), step,
                                                   missing == 3 ? nullptr : d, step, {0, 0}, 5),
                      -8);
        }
        EXPECT_EQ(orv::orv_YUV420ToRGB_8u_P3C3(s, step, s, step, s, step, d, step, {-5, 2}, 5), -6);
        EXPECT_EQ(orv::orv_YUV420ToRGB_8u_P3C3(s, step, s, step, s, step, d, step, {2, 2}, 5), -302);
        EXPECT_FALSE(W::YUV420ToRGB_8u_P3C3(s, step, s, step, s, step, d, step, 2, 2, -3));
        EXPECT_FALSE(W::RGBToYUV422_8u_C3C2R(s, step, d, step, 2, 2, 4));
        ASSERT_EQ(image.bytes(), before);
    });
}

}  // namespace
}  // namespace test
