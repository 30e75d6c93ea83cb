// Rank filters against OpenCV, which has medians of floats for 3x3 and 5x5 only. The others stand beside themselves on
// images whose pixels repeat, rise or are no numbers: their time is not to depend on these.
//
// Families: median, morphology.
#include <opencv2/imgproc.hpp>

#include <cmath>

#include "image/peers.h"

namespace {

using namespace bench;

const Image::Fill noise = floats_between(-1, 1), intensities = floats_between(0, 1);

void median(const std::string& contents, const Image::Fill& fill, int side, int mask_width, int mask_height, bool peer)
{
    const std::string name =
        "FilterMedian_32f_C1 " + std::to_string(mask_width) + "x" + std::to_string(mask_height) + contents;
    const int extent = side + mask_width - 1;
    const auto a = std::make_shared<Image>(extent, 4, fill), d = std::make_shared<Image>(extent, 4);
    const int x = mask_width / 2, y = mask_height / 2;
    add(name, square(side), "orvane", [=] {
        W::FilterMedian_32f_C1(a->row<float>(y) + x, a->step(), d->as<float>(), d->step(), side, side, mask_width,
                               mask_height);
    });
    if (!peer) return;
    const cv::Mat from(side, side, CV_32F, a->row<float>(y) + x, static_cast<std::size_t>(a->step()));
    cv::Mat to(side, side, CV_32F, d->as<void>(), static_cast<std::size_t>(d->step()));
    add(name, square(side), "opencv", [=]() mutable {
        static_cast<void>(a);
        static_cast<void>(d);
        cv::medianBlur(from, to, mask_width);
    });
}

template <class T>
using Apart = bool(const T*, int, T*, int, int, int);
template <class T>
using InPlace = bool(T*, int, int, int);

template <class T, class Peer>
void extremes(const std::string& name, int channels, Apart<T>* ours, InPlace<T>* in_place, Peer peer,
              const Image::Fill& fill = nullptr)
{
    for (const int side : kSides) {
        const auto a = std::make_shared<Image>(side, channels * static_cast<int>(sizeof(T)), fill);
        const auto d = std::make_shared<Image>(side, channels * static_cast<int>(sizeof(T)));
        const cv::Mat from = mat<T>(*a, channels);
        cv::Mat to = mat<T>(*d, channels);
        const std::string size = square(side);
        add(name, size, "orvane", [=] { ours(a->as<T>(), a->step(), d->as<T>(), d->step(), side, side); });
        add(name, size, "opencv", [=]() mutable { static_cast<void>(a); static_cast<void>(d); peer(from, to); });
        add(name, size, "limit", [=] { limit({a.get()}, d.get()); });
        add(name + "I", size, "orvane", [=] { in_place(d->as<T>(), d->step(), side, side); });
    }
}

const bool registered = [] {
    cv::setNumThreads(1);
    const auto constant = floats([](unsigned, int, int) { return 1.0f; });
    const auto rising =
        floats([](unsigned, int y, int x) { return static_cast<float>(y) * 4096 + static_cast<float>(x); });
    const auto nans =
        floats([](unsigned state, int, int) { return state >> 31 != 0 ? std::nanf("") : static_cast<float>(state); });
    const auto halves = floats([](unsigned state, int, int) { return state >> 31 != 0 ? 255.0f : 0.0f; });
    for (const int side : kSides) {
        median("", noise, side, 3, 3, true);
        median("", noise, side, 5, 5, true);
    }
    for (const int mask : {7, 9, 15, 31, 101, 255}) median("", noise, 256, mask, mask, false);
    median("", noise, 256, 255, 1, false);
    median("", noise, 256, 1, 255, false);
    for (const int mask : {3, 7, 31}) {
        median(" constant", constant, 256, mask, mask, false);
        median(" rising", rising, 256, mask, mask, false);
        median(" half NaN", nans, 256, mask, mask, false);
        median(" two values", halves, 256, mask, mask, false);
    }

    const auto erode = [](const cv::Mat& a, cv::Mat& d) { cv::erode(a, d, cv::Mat()); };
    const auto dilate = [](const cv::Mat& a, cv::Mat& d) { cv::dilate(a, d, cv::Mat()); };
#define BOTH(type, T, channels)                                                                              \
    extremes<T>("Erode3x3_" #type, channels, W::Erode3x3_##type, W::Erode3x3_##type##I, erode);              \
    extremes<T>("Dilate3x3_" #type, channels, W::Dilate3x3_##type, W::Dilate3x3_##type##I, dilate);
    BOTH(8u_C1, u8, 1)
    BOTH(8u_C3, u8, 3)
    BOTH(8u_C4, u8, 4)
    BOTH(16u_C1, u16, 1)
#undef BOTH
    extremes<float>("Erode3x3_32f_C1", 1, W::Erode3x3_32f_C1, W::Erode3x3_32f_C1I, erode, intensities);
    extremes<float>("Dilate3x3_32f_C1", 1, W::Dilate3x3_32f_C1, W::Dilate3x3_32f_C1I, dilate, intensities);
    extremes<float>("Erode3x3_32f_C1 signed", 1, W::Erode3x3_32f_C1, W::Erode3x3_32f_C1I, erode, noise);
    extremes<float>("Dilate3x3_32f_C1 signed", 1, W::Dilate3x3_32f_C1, W::Dilate3x3_32f_C1I, dilate, noise);
    return true;
}();

}  // namespace
