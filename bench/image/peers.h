// What the benchmarks of images share: OpenCV's view of ours, and rows of operations of one shape.
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

// Two sources, and one; types are OpenCV's.
template <class Ours, class Peer>
void two(const char* name, int from, int to, Ours ours, Peer peer)
{
    for (int side : sides(from)) {
        auto a = make_source(side, from), b = make_source(side, from), d = make(side, to);
        add(name, square(side), "orvane", [=] { ours(*a, *b, *d, side); });
        cv::Mat ma = mat(*a, from), mb = mat(*b, from), md = mat(*d, to);
        add(name, square(side), "opencv", [=]() mutable { peer(ma, mb, md); });
        add(name, square(side), "limit", [=] { limit({a.get(), b.get()}, d.get()); });
    }
}
template <class Ours, class Peer>
void one(const char* name, int from, int to, Ours ours, Peer peer)
{
    for (int side : sides(from)) {
        auto a = make_source(side, from), d = make(side, to);
        add(name, square(side), "orvane", [=] { ours(*a, *d, side); });
        cv::Mat ma = mat(*a, from), md = mat(*d, to);
        add(name, square(side), "opencv", [=]() mutable { peer(ma, md); });
        add(name, square(side), "limit", [=] { limit({a.get()}, d.get()); });
    }
}

// Calls of such methods, with what stands between the source and the destination, or behind the size.
#define TWO(method, T, D)                                                                           \
    [](const Image& a, const Image& b, const Image& d, int n) {                                     \
        W::method(a.as<T>(), a.step(), b.as<T>(), b.step(), d.as<D>(), d.step(), n, n);             \
    }
#define WITH(method, T, D, ...)                                                                     \
    [](const Image& a, const Image& d, int n) {                                                     \
        W::method(a.as<T>(), a.step(), __VA_ARGS__, d.as<D>(), d.step(), n, n);                     \
    }
#define AFTER(method, T, ...)                                                                       \
    [](const Image& a, const Image& d, int n) {                                                     \
        W::method(a.as<T>(), a.step(), d.as<T>(), d.step(), n, n, __VA_ARGS__);                     \
    }

// Constants of pixels with up to four channels.
inline const u8 values[4] = {3, 100, 200, 50};
inline const float limits[4] = {3, 50, -20, 7};

}  // namespace bench
