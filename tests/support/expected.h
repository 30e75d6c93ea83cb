// Images in random places, and what a call must have left of them.
#pragma once

#include <cstring>
#include <functional>
#include <limits>

#include "gmock/gmock.h"
#include "support/image.h"

namespace test {

// Behind a fence, before one, or anywhere with padding, at any alignment.
inline Placement random_placement(int row_bytes, int height, std::mt19937& g)
{
    Placement where = {};
    where.fenced = row_bytes <= FencedRows::kRowBytes && height <= FencedRows::kRows && uniform(g, 0, 2) != 0;
    where.flush_right = uniform(g, 0, 2) != 0;
    where.step = row_bytes + (uniform(g, 0, 2) == 0 ? 0 : uniform(g, 0, 70));
    where.offset = uniform(g, 0, 7);
    return where;
}

inline Image random_image(int row_bytes, int height, std::mt19937& g)
{
    return Image(row_bytes, height, random_placement(row_bytes, height, g), g);
}

template <class T>
Image random_pixels(int elements, int height, std::mt19937& g)
{
    Image image = random_image(elements * static_cast<int>(sizeof(T)), height, g);
    image.fill<T>(g, static_cast<Fill>(uniform(g, 0, static_cast<int>(Fill::kinds) - 1)));
    return image;
}

template <class T>
T element(Image& image, int y, int i)
{
    T value;
    std::memcpy(&value, image.row(y) + static_cast<std::size_t>(i) * sizeof(T), sizeof(T));
    return value;
}

// The image holds value(y, i) in its rows, and around them what it held before; it is then put back.
template <class T, class Value>
void expect_pixels(Image& image, const std::vector<unsigned char>& before, Value value)
{
    const std::vector<unsigned char> actual = image.bytes();
    std::vector<T> got;
    const int n = image.row_bytes() / static_cast<int>(sizeof(T));
    for (int y = 0; y < image.height(); ++y) {
        for (int i = 0; i < n; ++i) got.push_back(element<T>(image, y, i));
    }
    image.restore(before);
    std::size_t at = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int i = 0; i < n; ++i, ++at) {
            const T want = value(y, i);
            ASSERT_EQ(std::memcmp(&got[at], &want, sizeof(T)), 0)
                << "row " << y << ", element " << i << " of " << n << ": " << +got[at] << " instead of " << +want;
            std::memcpy(image.row(y) + static_cast<std::size_t>(i) * sizeof(T), &want, sizeof(T));
        }
    }
    EXPECT_EQ(actual, image.bytes()) << "bytes around the image";
    image.restore(before);
}

}  // namespace test
