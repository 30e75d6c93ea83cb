// What the layer makes of bytes in one channel by way of other methods.
#include <cmath>
#include <limits>
#include <orvane.hpp>
#include <vector>

#include "gmock/gmock.h"

namespace {

using orvane::edge;
using orvane::image;
using orvane::mask;

image<unsigned char> noise(int width, int height)
{
    image<unsigned char> made(width, height);
    unsigned seed = 1;
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            seed = seed * 1664525u + 1013904223u;
            made(x, y) = static_cast<unsigned char>(seed >> 24);
        }
    }
    return made;
}

template <class T>
image<T> converted(const image<unsigned char>& source)
{
    image<T> made(source.width(), source.height());
    orvane::convert(source, made).check();
    return made;
}

template <class Result, class Wide, class Filter>
void expect_same(const char* name, Filter filter)
{
    const image<unsigned char> bytes = noise(23, 19);
    const image<Wide> wide = converted<Wide>(bytes);
    image<Result> made(23, 19);
    image<Wide> expected(23, 19);
    for (const mask size : {mask::size3x3, mask::size5x5}) {
        filter(bytes, made, size).check();
        filter(wide, expected, size).check();
        for (int y = 0; y < 19; ++y) {
            for (int x = 0; x < 23; ++x) ASSERT_EQ(made(x, y), expected(x, y)) << name << ' ' << x << ' ' << y;
        }
    }
}

#define FILTER(name)                                                     \
    [](const auto& source, auto& destination, mask size) {               \
        return orvane::name(source, destination, size, edge::replicate); \
    }

TEST(LayerBytes, FiltersAreThoseOfWiderTypes)
{
    expect_same<unsigned char, unsigned short>("lowpass", FILTER(lowpass));
    expect_same<unsigned char, unsigned short>("gauss", FILTER(gauss));
    expect_same<short, float>("highpass", FILTER(highpass));
    expect_same<short, float>("laplace", FILTER(laplace));
    expect_same<short, float>("sobel_cross", FILTER(sobel_cross));
}
#undef FILTER

TEST(LayerBytes, FromFloats)
{
    const std::vector<float> values = {0.5F, 1.5F, 2.5F, -1, 300, 254.5F, std::nanf(""), 7};
    const std::vector<int> bytes = {0, 2, 2, 0, 255, 254, 0, 7};
    for (int width = 1; width < 30; ++width) {
        image<float> source(width, 3);
        image<unsigned char> made(width + 2, 3);
        for (int k = 0; k < 3 * width; ++k) source(k % width, k / width) = values[static_cast<std::size_t>(k) % 8];
        orvane::convert(source, made.part(1, 0, width, 3)).check();
        for (int k = 0; k < 3 * width; ++k)
            ASSERT_EQ(made(1 + k % width, k / width), bytes[static_cast<std::size_t>(k) % 8]) << width << ' ' << k;
        for (int y = 0; y < 3; ++y) ASSERT_EQ(made(0, y) + made(width + 1, y), 0) << "beside the destination";
    }
    image<float> source(6, 2);
    image<unsigned char> made(5, 2);
    EXPECT_STREQ(orvane::convert(source, made).argument(), "destination");
    EXPECT_STREQ(orvane::convert({}, made).argument(), "source");
    const orvane::view<unsigned char> within(reinterpret_cast<unsigned char*>(source.data()), 6, 2, source.step());
    EXPECT_STREQ(orvane::convert(source, within).argument(), "destination");
}

}  // namespace
