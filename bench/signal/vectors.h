// Vectors for benchmarks.
#pragma once

#include <opencv2/core.hpp>
#include <type_traits>

#include "harness.h"

namespace bench {

inline const int kLengths[] = {64, 4096, 1 << 24};

// A vector is an image of one column too many: rows of a square one follow each other. Element i is value(i).
template <class T, class Value>
std::shared_ptr<Image> vector_of(int length, Value value)
{
    const int side = length == 64 ? 8 : length == 4096 ? 64 : 4096;
    return std::make_shared<Image>(side, (side == 8 ? 8 : 1) * static_cast<int>(sizeof(T)),
                                   [length, value](const Image& image) {
                                       T* const p = image.as<T>();
                                       for (int i = 0; i < length; ++i) p[i] = static_cast<T>(value(i));
                                   });
}
template <class T>
std::shared_ptr<Image> vector(int length, int factor = 1)
{
    return vector_of<T>(length, [factor](int i) { return (1 + i * 7 % 250) * factor; });
}

// OpenCV's name of an element type.
template <class T>
constexpr int depth = sizeof(T) == 1                ? CV_8U
                      : sizeof(T) == 2              ? CV_16U
                      : std::is_same<T, int>::value ? CV_32S
                      : sizeof(T) == 4              ? CV_32F
                                                    : CV_64F;

}  // namespace bench
