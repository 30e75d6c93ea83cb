// Composition against fractions: every alpha, every colour above and below.
#include "image/colour/alpha.h"
#include "support/image_tests.h"

namespace test {
namespace {

// numerator / denominator to the nearest integer, halves to the even one.
int nearest(long long numerator, long long denominator)
{
    const long long whole = numerator / denominator, twice = 2 * (numerator - whole * denominator);
    return static_cast<int>(whole + (twice > denominator || (twice == denominator && whole % 2 != 0) ? 1 : 0));
}

struct Colour {
    int c, a;
};
int over_opaque(Colour ground, Colour top, bool premultiplied)
{
    if (premultiplied) return std::min(255, top.c + nearest((255 - top.a) * ground.c, 255));
    return nearest(top.a * top.c + (255 - top.a) * ground.c, 255);
}
int over(Colour ground, Colour top, bool premultiplied, bool is_alpha)
{
    if (premultiplied) return std::min(255, top.c + nearest((255 - top.a) * ground.c, 255));
    const int sum = 255 * top.a + (255 - top.a) * ground.a;
    if (is_alpha) return nearest(sum, 255);
    return sum == 0 ? 0 : nearest(255LL * top.a * top.c + (255 - top.a) * ground.a * ground.c, sum);
}

template <class Kernel>
std::set<Kernel*> built_variants(Kernel* const (&variants)[orv::kLevels])
{
    return {variants, variants + orv::orv_variant_index + 1};
}

TEST(Alpha, EveryAlphaOverOpaqueGround)
{
    // A row has every pair of colours, three channels with different ones; the ground's alpha and what lies in the
    // destination's are noise.
    std::mt19937 g = make_generator("every");
    std::vector<u8> ground(4 << 16), top(ground.size()), dst(ground.size()), want(ground.size());
    for (int alpha = 0; alpha < 256; alpha += options().brief ? 15 : 1) {
        for (const bool premultiplied : {false, true}) {
            for (std::size_t i = 0; i < ground.size(); i += 4) {
                const std::size_t pair = i / 4;
                const u8 above[3] = {static_cast<u8>(pair), static_cast<u8>(pair + 101), static_cast<u8>(pair * 7)};
                for (std::size_t c = 0; c < 3; ++c) {
                    ground[i + c] = static_cast<u8>((pair >> 8) + 50 * c);
                    top[i + c] = above[c];
                    want[i + c] = static_cast<u8>(over_opaque({ground[i + c], 0}, {above[c], alpha}, premultiplied));
                }
                ground[i + 3] = static_cast<u8>(g());
                top[i + 3] = static_cast<u8>(alpha);
                want[i + 3] = static_cast<u8>(pair * 13 + 5);
            }
            for (auto* const kernel : built_variants(orv::orv_AlphaComp_8u_AC4.variant)) {
                for (std::size_t i = 0; i < dst.size(); ++i) dst[i] = i % 4 == 3 ? want[i] : u8{0};
                ASSERT_EQ(kernel(ground.data(), 1024, top.data(), 1024, dst.data(), 1024, {256, 256}, premultiplied),
                          orv::StatusOk);
                ASSERT_TRUE(dst == want) << "alpha " << alpha << ", premultiplied " << premultiplied;
            }
        }
    }
}

// Alphas at and next to both ends, and anything; premultiplied pixels with colours above their alpha.
Image picture(int width, int channels, std::mt19937& g)
{
    Image image = random_image(width * channels, 3, g);
    if (channels != 4) return image;
    const u8 ends[] = {0, 1, 254, 255};
    for (int y = 0; y < 3; ++y) {
        for (int x = 0; x < width; ++x) {
            for (int c = 0; c < 4; ++c) {
                if (uniform(g, 0, 2) == 0) image.row(y)[4 * x + c] = ends[uniform(g, 0, 3)];
            }
        }
    }
    return image;
}

TEST(Alpha, Rows)
{
    struct Row {
        bool (*method)(const u8*, int, const u8*, int, u8*, int, int, int, bool);
        bool keeps_alpha;
    };
    std::mt19937 g = make_generator("rows");
    for (const Row& row : {Row{W::AlphaComp_8u_AC4, true}, Row{W::AlphaComp_8u_C4, false}}) {
        for (const bool premultiplied : {false, true}) {
            for (int width = 1; width <= 300; width += width < 40 ? 1 : 37) {
                Image ground = picture(width, 4, g), top = picture(width, 4, g), d = random_image(4 * width, 3, g);
                const auto before_ground = ground.bytes(), before_top = top.bytes(), before = d.bytes();
                std::vector<u8> results;
                for (int i = 0; i < 12 * width; ++i) {
                    const int at = i % (4 * width), y = i / (4 * width), c = i % 4;
                    const Colour low = {ground.row(y)[at], ground.row(y)[at - c + 3]},
                                 high = {top.row(y)[at], top.row(y)[at - c + 3]};
                    results.push_back(static_cast<u8>(row.keeps_alpha ? over_opaque(low, high, premultiplied)
                                                                      : over(low, high, premultiplied, c == 3)));
                }
                const auto want = [&](Image& image) {
                    return [&](int y, int i) {
                        return row.keeps_alpha && i % 4 == 3 ? element<u8>(image, y, i)
                                                             : results[static_cast<std::size_t>(y * 4 * width + i)];
                    };
                };
                at_every_level([&] {
                    const auto run = [&](Image& to) {
                        return row.method(ground.pixels<u8>(), ground.step(), top.pixels<u8>(), top.step(),
                                          to.pixels<u8>(), to.step(), width, 3, premultiplied);
                    };
                    ASSERT_TRUE(run(d));
                    expect_pixels<u8>(d, before, want(d));
                    ASSERT_TRUE(run(ground));
                    expect_pixels<u8>(ground, before_ground, want(ground));
                    ASSERT_TRUE(run(top));
                    expect_pixels<u8>(top, before_top, want(top));
                });
            }
        }
    }
}

// Every pair of alphas, colours at random: where quotients come next to halves.
TEST(Alpha, EveryPairOfAlphas)
{
    std::mt19937 g = make_generator("pairs");
    std::vector<u8> ground(4 << 16), top(ground.size()), dst(ground.size()), want(ground.size());
    for (int round = 0; round < (options().brief ? 2 : 12); ++round) {
        for (std::size_t i = 0; i < ground.size(); ++i) {
            const std::size_t pair = i / 4;
            const bool alpha = i % 4 == 3;
            ground[i] = alpha ? static_cast<u8>(pair) : static_cast<u8>(g());
            top[i] = alpha ? static_cast<u8>(pair >> 8) : static_cast<u8>(g());
        }
        for (std::size_t i = 0; i < ground.size(); ++i) {
            const std::size_t alpha = i | 3;
            want[i] = static_cast<u8>(over({ground[i], ground[alpha]}, {top[i], top[alpha]}, false, i == alpha));
        }
        for (auto* const kernel : built_variants(orv::orv_AlphaComp_8u_C4.variant)) {
            ASSERT_EQ(kernel(ground.data(), 1024, top.data(), 1024, dst.data(), 1024, {256, 256}, 0), orv::StatusOk);
            ASSERT_TRUE(dst == want);
        }
    }
}

TEST(Alpha, ConstantForAllPixels)
{
    std::mt19937 g = make_generator("constant");
    for (int alpha = 0; alpha < 256; ++alpha) {
        // Every pair of bytes is among 65536 of a row with 21846 pixels; rows of all lengths besides.
        const int width = alpha % 16 == 0 ? 21846 : uniform(g, 1, 60);
        Image ground(3 * width, 1, {false, false, 3 * width, 1}, g), top(3 * width, 1, {false, false, 3 * width, 0}, g);
        for (int i = 0; width > 60 && i < 65536; ++i) {
            ground.row(0)[i] = static_cast<u8>(i);
            top.row(0)[i] = static_cast<u8>(i >> 8);
        }
        Image d = random_image(3 * width, 1, g);
        const auto before_ground = ground.bytes(), before = d.bytes();
        const auto want = [&](int, int i) {
            return static_cast<u8>(nearest(alpha * top.row(0)[i] + (255 - alpha) * ground.row(0)[i], 255));
        };
        std::vector<u8> results;
        for (int i = 0; i < 3 * width; ++i) results.push_back(want(0, i));
        const auto kept = [&](int, int i) { return results[static_cast<std::size_t>(i)]; };
        at_every_level([&] {
            ASSERT_TRUE(W::AlphaCompC_8u_C3R(ground.pixels<u8>(), ground.step(), top.pixels<u8>(), top.step(),
                                             static_cast<u8>(alpha), d.pixels<u8>(), d.step(), width, 1));
            expect_pixels<u8>(d, before, kept);
            ASSERT_TRUE(W::AlphaCompC_8u_C3R(ground.pixels<u8>(), ground.step(), top.pixels<u8>(), top.step(),
                                             static_cast<u8>(alpha), ground.pixels<u8>(), ground.step(), width, 1));
            expect_pixels<u8>(ground, before_ground, kept);
        });
    }
}

TEST(Alpha, RefusalsWriteNothing)
{
    std::mt19937 g = make_generator("refusals");
    Image source(64, 2, {true, true, 0, 0}, g), image(64, 2, {true, false, 0, 0}, g);
    const auto before = image.bytes();
    const u8* const s = source.pixels<u8>();
    u8* const d = image.pixels<u8>();
    const int step = image.step();
    at_every_level([&] {
        for (int missing = 0; missing < 4; ++missing) {
            const u8* const a = missing == 0 ? nullptr : s;
            const u8* const b = missing == 1 ? nullptr : s;
            u8* const to = missing == 2 ? nullptr : d;
            const orv::Size roi = missing == 3 ? orv::Size{2, 0} : orv::Size{2, 2};
            const int status = missing == 3 ? -6 : -8;
            EXPECT_EQ(orv::orv_AlphaComp_8u_AC4(a, step, b, step, to, step, roi, 0), status);
            EXPECT_EQ(orv::orv_AlphaComp_8u_C4(a, step, b, step, to, step, roi, 1), status);
            EXPECT_EQ(orv::orv_AlphaCompC_8u_C3R(a, step, b, step, 7, to, step, roi), status);
            EXPECT_FALSE(W::AlphaComp_8u_AC4(a, step, b, step, to, step, roi.width, roi.height, true));
            EXPECT_FALSE(W::AlphaComp_8u_C4(a, step, b, step, to, step, roi.width, roi.height, false));
            EXPECT_FALSE(W::AlphaCompC_8u_C3R(a, step, b, step, 7, to, step, roi.width, roi.height));
        }
        ASSERT_EQ(image.bytes(), before);
    });
}

}  // namespace
}  // namespace test
