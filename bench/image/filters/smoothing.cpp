// Gaussian filters against OpenCV's of the same size, sigma and border; it computes in single precision, ours in double
// with the promised roundings. The Wiener filter has no peer in C++: bench/RESULTS.md compares it with SciPy's.
#include <opencv2/imgproc.hpp>

#include "image/peers.h"

namespace {

using namespace bench;

const Image::Fill fill = floats_between(0, 256);

void gauss(int size)
{
    const std::string name = "FilterGaussBorder_32f_C1R " + std::to_string(size);
    const float sigma = 0.15f * static_cast<float>(size) + 0.35f;
    for (const int side : kSides) {
        const auto a = std::make_shared<Image>(side, 4, fill), d = std::make_shared<Image>(side, 4);
        add(name, square(side), "orvane", [=] {
            W::FilterGaussBorder_32f_C1R(a->as<float>(), a->step(), d->as<float>(), d->step(), side, side, size, sigma);
        });
        const cv::Mat ma = mat<float>(*a, 1);
        cv::Mat md = mat<float>(*d, 1);
        add(name, square(side), "opencv", [=]() mutable {
            static_cast<void>(a), static_cast<void>(d);
            cv::GaussianBlur(ma, md, cv::Size(size, size), sigma, sigma, cv::BORDER_REPLICATE);
        });
        add(name, square(side), "limit", [=] { limit({a.get()}, d.get()); });
    }
}

// With a variance given, and with one to be estimated, which takes the means and variances twice.
void wiener(int mask, double given)
{
    const std::string name = "FilterWiener_32f_C1 " + std::to_string(mask) + (given < 0 ? " estimated" : "");
    for (const int side : kSides) {
        const int radius = mask / 2;
        const auto a = std::make_shared<Image>(side + 2 * radius, 4, fill), d = std::make_shared<Image>(side, 4);
        float* const region = a->row<float>(radius) + radius;
        add(name, square(side), "orvane", [=] {
            double noise = given;
            W::FilterWiener_32f_C1(region, a->step(), d->as<float>(), d->step(), side, side, mask, mask, &noise);
        });
        add(name, square(side), "limit", [=] { limit({a.get()}, d.get()); });
    }
}

const bool registered = [] {
    for (const int size : {3, 5, 7, 15, 31}) gauss(size);
    for (const int mask : {3, 5, 7, 15}) wiener(mask, 1000), wiener(mask, -1);
    return true;
}();

}  // namespace
