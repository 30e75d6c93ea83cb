// Border extension, pixel by pixel: the nearest pixel of the source, or the constant.
#include "support/image_tests.h"

namespace test {
namespace {

struct Sizes {
    int srcWidth, srcHeight, dstWidth, dstHeight, top, left;
};

Sizes random_sizes(std::mt19937& g)
{
    const auto border = [&g] { return uniform(g, 0, 3) == 0 ? 0 : uniform(g, 1, uniform(g, 0, 7) == 0 ? 90 : 20); };
    const int width = uniform(g, 0, 5) == 0 ? uniform(g, 60, 300) : uniform(g, 1, 40), height = uniform(g, 1, 2);
    const int top = uniform(g, 0, 1), left = border();
    return {width, height, left + width + border(), top + height + uniform(g, 0, 1), top, left};
}

// Elements are compared as integers of their size.
template <class T> using Word = typename std::conditional<sizeof(T) == 4, int, T>::type;

template <class T>
Word<T> nearest(Image& src, const Sizes& s, int channels, int y, int i)
{
    const int x = i / channels;
    const int sx = std::min(std::max(x - s.left, 0), s.srcWidth - 1),
              sy = std::min(std::max(y - s.top, 0), s.srcHeight - 1);
    return element<Word<T>>(src, sy, sx * channels + i % channels);
}

template <class T, class Constant, class Replicate>
void check(const char* name, int channels, Constant constant, Replicate replicate)
{
    SCOPED_TRACE(name);
    std::mt19937 g = make_generator(name);
    for (int round = 0; round < (options().brief ? 30 : 400); ++round) {
        const Sizes s = random_sizes(g);
        Image src = random_pixels<T>(s.srcWidth * channels, s.srcHeight, g),
              dst = random_pixels<T>(s.dstWidth * channels, s.dstHeight, g);
        const auto before = dst.bytes();
        T values[4];
        for (T& v : values) v = random_value<T>(g, static_cast<Fill>(uniform(g, 0, 1)));
        Word<T> words[4];
        std::memcpy(words, values, sizeof(words));
        at_every_level([&] {
            ASSERT_TRUE(replicate(src.pixels<T>(), src.step(), s.srcWidth, s.srcHeight, dst.pixels<T>(), dst.step(),
                                  s.dstWidth, s.dstHeight, s.top, s.left));
            expect_pixels<Word<T>>(dst, before, [&](int y, int i) { return nearest<T>(src, s, channels, y, i); });
            const auto argument = [&] {
                if constexpr (std::is_invocable<Constant, const T*, int, int, int, T*, int, int, int, int, int,
                                                const T*>::value) {
                    return static_cast<const T*>(values);
                } else {
                    return values[0];
                }
            }();
            ASSERT_TRUE(constant(src.pixels<T>(), src.step(), s.srcWidth, s.srcHeight, dst.pixels<T>(), dst.step(),
                                 s.dstWidth, s.dstHeight, s.top, s.left, argument));
            expect_pixels<Word<T>>(dst, before, [&](int y, int i) {
                const int x = i / channels - s.left, row = y - s.top;
                const bool inside = x >= 0 && x < s.srcWidth && row >= 0 && row < s.srcHeight;
                return inside ? nearest<T>(src, s, channels, y, i) : words[i % channels];
            });
        });
    }
}

TEST(Border, EveryTypeAndShape)
{
    check<u8>("8u_C1", 1, W::CopyConstBorder_8u_C1, W::CopyReplicateBorder_8u_C1);
    check<u8>("8u_C3", 3, W::CopyConstBorder_8u_C3, W::CopyReplicateBorder_8u_C3);
    check<u8>("8u_C4", 4, W::CopyConstBorder_8u_C4, W::CopyReplicateBorder_8u_C4);
    check<u16>("16u_C1", 1, W::CopyConstBorder_16u_C1, W::CopyReplicateBorder_16u_C1);
    check<float>("32f_C1", 1, W::CopyConstBorder_32f_C1, W::CopyReplicateBorder_32f_C1);
    check<float>("32f_C3", 3, W::CopyConstBorder_32f_C3, W::CopyReplicateBorder_32f_C3);
}

// The buffer is its own source, through the in-place method and through the other one.
template <class T, class InPlace, class Replicate>
void check_in_buffer(const char* name, InPlace in_place, Replicate replicate)
{
    SCOPED_TRACE(name);
    std::mt19937 g = make_generator(name);
    for (int round = 0; round < (options().brief ? 20 : 300); ++round) {
        const Sizes s = random_sizes(g);
        Image buffer = random_pixels<T>(s.dstWidth, s.dstHeight, g);
        const auto before = buffer.bytes();
        at_every_level([&] {
            T* const p = buffer.pixels<T>();
            const auto want = [&](int y, int i) { return nearest<T>(buffer, s, 1, y, i); };
            // Expected pixels are read from the buffer as it was, so they are collected first.
            std::vector<Word<T>> expected;
            for (int y = 0; y < s.dstHeight; ++y) {
                for (int i = 0; i < s.dstWidth; ++i) expected.push_back(want(y, i));
            }
            const auto collected = [&](int y, int i) { return expected[static_cast<std::size_t>(y * s.dstWidth + i)]; };
            ASSERT_TRUE(in_place(p, buffer.step(), s.srcWidth, s.srcHeight, s.dstWidth, s.dstHeight, s.top, s.left));
            expect_pixels<Word<T>>(buffer, before, collected);
            ASSERT_TRUE(replicate(p, buffer.step(), s.srcWidth, s.srcHeight, p, buffer.step(), s.dstWidth, s.dstHeight,
                                  s.top, s.left));
            expect_pixels<Word<T>>(buffer, before, collected);
            AllocationFailure no_memory(0);
            EXPECT_FALSE(in_place(p, buffer.step(), s.srcWidth, s.srcHeight, s.dstWidth, s.dstHeight, s.top, s.left));
            EXPECT_FALSE(replicate(p, buffer.step(), s.srcWidth, s.srcHeight, p, buffer.step(), s.dstWidth, s.dstHeight,
                                   s.top, s.left));
            EXPECT_EQ(buffer.bytes(), before);
        });
    }
}

TEST(Border, InBuffer)
{
    check_in_buffer<u8>("8u", W::CopyReplicateBorder_8u_C1I, W::CopyReplicateBorder_8u_C1);
    check_in_buffer<u16>("16u", W::CopyReplicateBorder_16u_C1I, W::CopyReplicateBorder_16u_C1);
    check_in_buffer<float>("32f", W::CopyReplicateBorder_32f_C1I, W::CopyReplicateBorder_32f_C1);
}

// One buffer, but rows of the source that lie closer together or further apart than those of the result.
TEST(Border, InBufferWithStepsOfTheirOwn)
{
    std::mt19937 g = make_generator("steps");
    for (int round = 0; round < 100; ++round) {
        const Sizes s = {uniform(g, 1, 12), uniform(g, 2, 6), 24, 12, uniform(g, 0, 6), uniform(g, 0, 12)};
        const int source_step = uniform(g, s.srcWidth, 40), step = uniform(g, 24, 30);
        std::vector<u8> buffer(30 * 12);
        for (u8& b : buffer) b = static_cast<u8>(g());
        std::vector<u8> copy = buffer, want = buffer;
        ASSERT_TRUE(W::CopyReplicateBorder_8u_C1(copy.data(), source_step, s.srcWidth, s.srcHeight, want.data(), step,
                                                 24, 12, s.top, s.left));
        at_every_level([&] {
            std::vector<u8> got = buffer;
            ASSERT_TRUE(W::CopyReplicateBorder_8u_C1(got.data(), source_step, s.srcWidth, s.srcHeight, got.data(), step,
                                                     24, 12, s.top, s.left));
            ASSERT_EQ(got, want) << source_step << " to " << step;
        });
    }
}

TEST(Border, RefusalsWriteNothing)
{
    const std::vector<u8> src(64, 5), before(256, 77);
    std::vector<u8> dst = before;
    const u8 values[4] = {};
    at_every_level([&] {
        const auto refuses = [&](const u8* s, int srcStep, int w, int h, u8* d, int dstStep, int W_, int H, int top,
                                 int left) {
            EXPECT_FALSE(W::CopyReplicateBorder_8u_C1(s, srcStep, w, h, d, dstStep, W_, H, top, left));
            EXPECT_FALSE(W::CopyReplicateBorder_8u_C3(s, srcStep, w, h, d, dstStep, W_, H, top, left));
            EXPECT_FALSE(W::CopyConstBorder_8u_C1(s, srcStep, w, h, d, dstStep, W_, H, top, left, 1));
            EXPECT_FALSE(W::CopyConstBorder_8u_C4(s, srcStep, w, h, d, dstStep, W_, H, top, left, values));
            if (s != nullptr && srcStep == 16) {
                EXPECT_FALSE(W::CopyReplicateBorder_8u_C1I(d, dstStep, w, h, W_, H, top, left));
            }
        };
        const u8* const s = src.data();
        u8* const d = dst.data();
        refuses(nullptr, 16, 2, 2, d, 16, 4, 4, 1, 1);
        refuses(s, 16, 2, 2, nullptr, 16, 4, 4, 1, 1);
        for (const int bad : {0, -1, INT_MIN}) {
            refuses(s, bad, 2, 2, d, 16, 4, 4, 1, 1);
            refuses(s, 16, 2, 2, d, bad, 4, 4, 1, 1);
            refuses(s, 16, bad, 2, d, 16, 4, 4, 1, 1);
            refuses(s, 16, 2, bad, d, 16, 4, 4, 1, 1);
            refuses(s, 16, 2, 2, d, 16, bad, 4, 1, 1);
            refuses(s, 16, 2, 2, d, 16, 4, bad, 1, 1);
        }
        refuses(s, 16, 2, 2, d, 16, 4, 4, -1, 1);
        refuses(s, 16, 2, 2, d, 16, 4, 4, 1, -1);
        refuses(s, 16, 2, 2, d, 16, 4, 4, 3, 1);
        refuses(s, 16, 2, 2, d, 16, 4, 4, 1, 3);
        // Sums that would wrap in 32 bits.
        refuses(s, 16, 2, 2, d, 16, 4, 4, 1, INT_MAX);
        refuses(s, 16, 2, 2, d, 16, 4, 4, INT_MAX, 1);
        refuses(s, 16, INT_MAX, 2, d, 16, 4, 4, 1, 2);
        refuses(s, 16, 2, INT_MAX, d, 16, 4, 4, INT_MAX, 1);
        EXPECT_FALSE(W::CopyConstBorder_8u_C3(s, 16, 2, 2, d, 16, 4, 4, 1, 1, nullptr));
        ASSERT_EQ(dst, before);
    });
}

}  // namespace
}  // namespace test
