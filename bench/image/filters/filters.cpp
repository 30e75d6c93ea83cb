// Fixed-kernel filters against OpenCV: box filters with its blur, the rest with its general filter.
// OpenCV's float filters compute in single precision, ours in double with the promised roundings.
//
// Families: filters_float, filters_integer.
#include <opencv2/imgproc.hpp>

#include "image/peers.h"

namespace {

using namespace bench;

// Noise as it comes for integers; floats from 0 to 256 with all their digits, or without a fraction.
enum class Floats { any, whole };
template <class T>
Image::Fill filled_with(Floats kind)
{
    if (!std::is_same<T, float>::value) return nullptr;
    if (kind == Floats::any) return floats_between(0, 256);
    return floats([](unsigned noise, int, int) { return static_cast<float>(noise >> 24); });
}

// The region of our filters lies inside a larger image, OpenCV's is a view of the same.
template <class T, class Ours, class Peer>
void filter(const char* name, int channels, int radius, Ours ours, Peer peer, Floats kind = Floats::any)
{
    for (int side : kSides) {
        const int pixel = channels * static_cast<int>(sizeof(T)), extent = side + 2 * radius;
        const std::shared_ptr<Image> a = std::make_shared<Image>(extent, pixel, filled_with<T>(kind));
        auto d = std::make_shared<Image>(side, pixel);
        T* const region = a->row<T>(radius) + radius * channels;
        add(name, square(side), "orvane",
                   [=] { ours(region, a->step(), d->as<T>(), d->step(), side, side); });
        const cv::Mat ma = mat<T>(*a, channels)(cv::Rect(radius, radius, side, side));
        cv::Mat md = mat<T>(*d, channels);
        add(name, square(side), "opencv", [=]() mutable {
            static_cast<void>(a);
            static_cast<void>(d);
            peer(ma, md);
        });
        add(name, square(side), "limit", [=] { limit({a.get()}, d.get()); });
    }
}

const auto box3 = [](const cv::Mat& a, cv::Mat& d) { cv::blur(a, d, cv::Size(3, 3)); };
const auto box5 = [](const cv::Mat& a, cv::Mat& d) { cv::blur(a, d, cv::Size(5, 5)); };
const auto gauss3 = [](const cv::Mat& a, cv::Mat& d) {
    static const cv::Mat k = (cv::Mat_<float>(1, 3) << 0.25f, 0.5f, 0.25f);
    cv::sepFilter2D(a, d, -1, k, k);
};
const auto gauss5 = [](const cv::Mat& a, cv::Mat& d) {
    static const cv::Mat k = (cv::Mat_<float>(5, 5) << 2, 7, 12, 7, 2, 7, 31, 52, 31, 7, 12, 52, 127, 52, 12, 7, 31, 52,
                              31, 7, 2, 7, 12, 7, 2) /
                             571;
    cv::filter2D(a, d, -1, k);
};
const auto hipass3 = [](const cv::Mat& a, cv::Mat& d) {
    static const cv::Mat k = (cv::Mat_<float>(3, 3) << -1, -1, -1, -1, 8, -1, -1, -1, -1);
    cv::filter2D(a, d, -1, k);
};
const auto hipass5 = [](const cv::Mat& a, cv::Mat& d) {
    static const cv::Mat k = [] { cv::Mat m(5, 5, CV_32F, cv::Scalar(-1)); m.at<float>(2, 2) = 24; return m; }();
    cv::filter2D(a, d, -1, k);
};
const auto laplace5 = [](const cv::Mat& a, cv::Mat& d) {
    static const cv::Mat k = (cv::Mat_<float>(5, 5) << -1, -3, -4, -3, -1, -3, 0, 6, 0, -3, -4, 6, 20, 6, -4, -3, 0, 6,
                              0, -3, -1, -3, -4, -3, -1);
    cv::filter2D(a, d, -1, k);
};
const auto cross3 = [](const cv::Mat& a, cv::Mat& d) {
    static const cv::Mat across = (cv::Mat_<float>(1, 3) << 1, 0, -1), down = (cv::Mat_<float>(1, 3) << -1, 0, 1);
    cv::sepFilter2D(a, d, -1, across, down);
};
const auto cross5 = [](const cv::Mat& a, cv::Mat& d) {
    static const cv::Mat across = (cv::Mat_<float>(1, 5) << 1, 2, 0, -2, -1),
                         down = (cv::Mat_<float>(1, 5) << -1, -2, 0, 2, 1);
    cv::sepFilter2D(a, d, -1, across, down);
};

const bool registered = [] {
#define FILTER(name, T, channels, radius, peer) filter<T>(#name, channels, radius, W::Filter##name, peer)
    FILTER(Lowpass3x3_8u_C1R, u8, 1, 1, box3);
    FILTER(Lowpass5x5_8u_C1R, u8, 1, 2, box5);
    FILTER(Lowpass3x3_8u_C3R, u8, 3, 1, box3);
    FILTER(Lowpass5x5_8u_C3R, u8, 3, 2, box5);
    FILTER(Lowpass3x3_16u_C1R, u16, 1, 1, box3);
    FILTER(Lowpass5x5_16u_C1R, u16, 1, 2, box5);
    FILTER(Gauss3x3_16u_C1R, u16, 1, 1, gauss3);
    FILTER(Gauss5x5_16u_C1R, u16, 1, 2, gauss5);
    FILTER(Lowpass3x3_32f_C1R, float, 1, 1, box3);
    FILTER(Lowpass5x5_32f_C1R, float, 1, 2, box5);
    FILTER(Lowpass3x3_32f_C3R, float, 3, 1, box3);
    FILTER(Lowpass5x5_32f_C3R, float, 3, 2, box5);
    FILTER(Hipass3x3_32f_C1R, float, 1, 1, hipass3);
    FILTER(Hipass5x5_32f_C1R, float, 1, 2, hipass5);
    FILTER(Laplace5x5_32f_C1R, float, 1, 2, laplace5);
    FILTER(SobelCross3x3_32f_C1R, float, 1, 1, cross3);
    FILTER(SobelCross5x5_32f_C1R, float, 1, 2, cross5);
#undef FILTER
#define FILTER(name, channels, radius, peer) \
    filter<float>(#name " whole", channels, radius, W::Filter##name, peer, Floats::whole)
    FILTER(Lowpass3x3_32f_C1R, 1, 1, box3);
    FILTER(Lowpass5x5_32f_C3R, 3, 2, box5);
    FILTER(Hipass3x3_32f_C1R, 1, 1, hipass3);
    FILTER(Hipass5x5_32f_C1R, 1, 2, hipass5);
    FILTER(Laplace5x5_32f_C1R, 1, 2, laplace5);
#undef FILTER
    // The border forms beside blur with a replicated border of its own.
    static std::vector<u8> work(1 << 20);
    const auto bordered = [](auto method) {
        return [method](const float* s, int sStep, float* d, int dStep, int w, int h) {
            return method(s, sStep, d, dStep, w, h, work.data());
        };
    };
    const auto replicated3 = [](const cv::Mat& a, cv::Mat& d) {
        cv::blur(a, d, cv::Size(3, 3), cv::Point(-1, -1), cv::BORDER_REPLICATE | cv::BORDER_ISOLATED);
    };
    const auto replicated5 = [](const cv::Mat& a, cv::Mat& d) {
        cv::blur(a, d, cv::Size(5, 5), cv::Point(-1, -1), cv::BORDER_REPLICATE | cv::BORDER_ISOLATED);
    };
    filter<float>("LowpassBorder3x3_32f_C1R", 1, 1, bordered(W::FilterLowpassBorder3x3_32f_C1R), replicated3);
    filter<float>("LowpassBorder5x5_32f_C1R", 1, 2, bordered(W::FilterLowpassBorder5x5_32f_C1R), replicated5);
    return true;
}();

}  // namespace
