// What the benchmarks of images share: OpenCV's view of ours.
#pragma once

#include <memory>
#include <opencv2/core.hpp>

#include "ImageProcessingWrapper.h"
#include "harness.h"

namespace bench {

using W = ImageProcessingWrapper;
using u8 = unsigned char;
using u16 = unsigned short;
using s16 = short;

// What OpenCV calls pixels of so many channels.
template <class T>
constexpr int pixels_of(int channels)
{
    constexpr int depth = sizeof(T) == 1 ? CV_8U : sizeof(T) == 4 ? CV_32F : T(-1) < 0 ? CV_16S : CV_16U;
    return CV_MAKETYPE(depth, channels);
}

inline cv::Mat mat(const Image& image, int type)
{
    return cv::Mat(image.height(), image.row_bytes() / static_cast<int>(CV_ELEM_SIZE(type)), type, image.as<void>(),
                   static_cast<std::size_t>(image.step()));
}

template <class T>
cv::Mat mat(const Image& image, int channels)
{
    return mat(image, pixels_of<T>(channels));
}

// Call overhead, L2-resident, beyond it. Pixels of several bytes need fewer for that.
inline std::initializer_list<int> sides(int type)
{
    static const std::initializer_list<int> small = {16, 256, 4096}, large = {16, 256, 2048};
    return CV_ELEM_SIZE(type) == 1 ? small : large;
}

inline std::shared_ptr<Image> make(int side, int type)
{
    return std::make_shared<Image>(side, static_cast<int>(CV_ELEM_SIZE(type)));
}

// Float images are filled with numbers, for OpenCV computes with them.
inline std::shared_ptr<Image> make_source(int side, int type)
{
    if (CV_MAT_DEPTH(type) != CV_32F) return make(side, type);
    return std::make_shared<Image>(side, static_cast<int>(CV_ELEM_SIZE(type)), [type](const Image& image) {
        cv::Mat m = mat(image, type);
        cv::randu(m, cv::Scalar::all(-100), cv::Scalar::all(100));
    });
}

// Constants of pixels with up to four channels.
inline const u8 values[4] = {3, 100, 200, 50};
inline const float limits[4] = {3, 50, -20, 7};

}  // namespace bench
