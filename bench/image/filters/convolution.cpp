// Convolution against OpenCV's general filter, which takes the kernel turned and computes in single precision.
#include <opencv2/imgproc.hpp>
#include <vector>

#include "image/peers.h"

namespace {

using namespace bench;

// Weights of no structure, or a column times a row.
template <class Weight>
std::vector<Weight> weights(int side, bool product)
{
    std::vector<Weight> all;
    unsigned state = 7;
    for (int j = 0; j < side; ++j) {
        for (int i = 0; i < side; ++i) {
            state = state * 1664525u + 1013904223u;
            const int noise = static_cast<int>(state >> 24) - 128;
            all.push_back(static_cast<Weight>(product ? (1 + i % 3) * (1 + j % 2) : noise));
        }
    }
    return all;
}

template <class From, class To, class Weight, class Method>
void filter(const std::string& name, int channels, int kernel_side, bool product, Method method)
{
    const std::vector<Weight> kernel = weights<Weight>(kernel_side, product);
    int divisor = 0;
    for (const Weight w : kernel) divisor += static_cast<int>(w);
    if (divisor == 0) divisor = 1;
    cv::Mat turned(kernel_side, kernel_side, CV_32F);
    for (int i = 0; i < kernel_side * kernel_side; ++i) {
        const auto w = static_cast<float>(kernel[kernel.size() - 1 - static_cast<std::size_t>(i)]);
        const bool divided = std::is_same<Weight, int>::value;
        turned.at<float>(i / kernel_side, i % kernel_side) = divided ? w / static_cast<float>(divisor) : w;
    }
    const std::string row = name + " " + square(kernel_side) + (product ? " rank 1" : "");
    const int radius = kernel_side / 2;
    for (const int side : kSides) {
        const int extent = side + 2 * radius, pixel = channels * static_cast<int>(sizeof(From));
        const Image::Fill fill = std::is_same<From, float>::value ? floats_between(0, 256) : nullptr;
        auto a = std::make_shared<Image>(extent, pixel, fill);
        auto d = std::make_shared<Image>(side, channels * static_cast<int>(sizeof(To)));
        const From* const region = a->template row<From>(radius) + radius * channels;
        add(row, square(side), "orvane", [=] {
            method(region, a->step(), d->template as<To>(), d->step(), side, kernel.data(), kernel_side, divisor);
        });
        const cv::Mat ma = mat<From>(*a, channels)(cv::Rect(radius, radius, side, side));
        cv::Mat md = mat<To>(*d, channels);
        add(row, square(side), "opencv", [=]() mutable {
            static_cast<void>(a), static_cast<void>(d);
            cv::filter2D(ma, md, pixels_of<To>(1), turned);
        });
        add(row, square(side), "limit", [=] { limit({a.get()}, d.get()); });
    }
}

const bool registered = [] {
#define INTEGERS(name, From, To, channels)                                                                       \
    {                                                                                                            \
        const auto method = [](const From* s, int ss, To* d, int ds, int n, const int* k, int side, int divisor) { \
            W::name(s, ss, d, ds, n, n, k, side, side, side / 2, side / 2, divisor);                             \
        };                                                                                                       \
        for (const int side : {3, 5, 15}) filter<From, To, int>(#name, channels, side, false, method);           \
        for (const int side : {3, 7, 15}) filter<From, To, int>(#name, channels, side, true, method);            \
    }
    INTEGERS(Filter_8u_C1R, u8, u8, 1)
    INTEGERS(Filter_8u_C3R, u8, u8, 3)
    INTEGERS(Filter_16u_C1R, u16, u16, 1)
    INTEGERS(Filter_16s_C1R, short, short, 1)
    INTEGERS(Filter_8u16s_C1R, u8, short, 1)
#undef INTEGERS
#define FLOATS(name, From, channels)                                                                             \
    {                                                                                                            \
        const auto method = [](const From* s, int ss, float* d, int ds, int n, const float* k, int side, int) {  \
            W::name(s, ss, d, ds, n, n, k, side, side, side / 2, side / 2);                                      \
        };                                                                                                       \
        for (const int side : {3, 5, 7, 15}) filter<From, float, float>(#name, channels, side, false, method);   \
    }
    FLOATS(Filter_32f_C1R, float, 1)
    FLOATS(Filter_32f_C3R, float, 3)
    FLOATS(Filter_8u32f_C1R, u8, 1)
    FLOATS(Filter_16u32f_C1R, u16, 1)
#undef FLOATS
    return true;
}();

}  // namespace
