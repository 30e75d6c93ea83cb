// Packed spectra of images and windows. OpenCV multiplies packed spectra, too; its magnitudes and phases are those of
// parts in images of their own, as many as we write, in single precision (phases to 0.3 degrees).
//
// Families: packed_images, image_windows.
#include "image/peers.h"

namespace {

using namespace bench;

const Image::Fill fill = floats_between(-128, 128);

// peer(first, second, destination)
template <class Ours, class Peer>
void two_images(const char* name, Ours ours, Peer peer, bool two_sources)
{
    for (const int side : kSides) {
        const auto a = std::make_shared<Image>(side, 4, fill), b = std::make_shared<Image>(side, 4, fill),
                   d = std::make_shared<Image>(side, 4);
        add(name, square(side), "orvane", [=] { ours(*a, *b, *d, side); });
        cv::Mat from = mat<float>(*a, 1), from2 = mat<float>(*b, 1), to = mat<float>(*d, 1);
        add(name, square(side), "opencv", [=]() mutable {
            static_cast<void>(a), static_cast<void>(b), static_cast<void>(d);
            peer(from, from2, to);
        });
        add(name, square(side), "limit", [=] {
            two_sources ? limit({a.get(), b.get()}, d.get()) : limit({a.get()}, d.get());
        });
    }
}

template <class From, class To, class Ours>
void alone(const char* name, Ours ours)
{
    for (const int side : kSides) {
        const auto a = std::make_shared<Image>(side, static_cast<int>(sizeof(From)), fill),
                   d = std::make_shared<Image>(side, static_cast<int>(sizeof(To)));
        add(name, square(side), "orvane",
                   [=] { ours(a->as<From>(), a->step(), d->as<To>(), d->step(), side, side); });
        add(name, square(side), "limit", [=] { limit({a.get()}, d.get()); });
    }
}

const bool registered = [] {
    const auto product = [](auto method) {
        return [method](Image& a, Image& b, Image& d, int side) {
            method(a.as<float>(), a.step(), b.as<float>(), b.step(), d.as<float>(), d.step(), side, side);
        };
    };
    const auto function = [](auto method) {
        return [method](Image& a, Image&, Image& d, int side) {
            method(a.as<float>(), a.step(), d.as<float>(), d.step(), side, side);
        };
    };
    two_images(
        "MulPack_32f_C1R", product(W::MulPack_32f_C1R),
        [](cv::Mat& a, cv::Mat& b, cv::Mat& d) { cv::mulSpectrums(a, b, d, 0); }, true);
    two_images(
        "MulPackConj_32f_C1R", product(W::MulPackConj_32f_C1R),
        [](cv::Mat& a, cv::Mat& b, cv::Mat& d) { cv::mulSpectrums(a, b, d, 0, true); }, true);
    two_images(
        "MagnitudePack_32f_C1R", function(W::MagnitudePack_32f_C1R),
        [](cv::Mat& a, cv::Mat& b, cv::Mat& d) { cv::magnitude(a, b, d); }, false);
    two_images(
        "PhasePack_32f_C1R", function(W::PhasePack_32f_C1R),
        [](cv::Mat& a, cv::Mat& b, cv::Mat& d) { cv::phase(a, b, d); }, false);
    // A window in an image of its own.
    const auto multiply = [](cv::Mat& a, cv::Mat& b, cv::Mat& d) { cv::multiply(a, b, d); };
    two_images("WinHamming_32f_C1R", function(W::WinHamming_32f_C1R), multiply, false);
    two_images("WinBartlett_32f_C1R", function(W::WinBartlett_32f_C1R), multiply, false);
    alone<Complex32f, float>("Magnitude_32fc32f_C1R", W::Magnitude_32fc32f_C1R);
    alone<Complex32f, float>("Phase_32fc32f_C1R", W::Phase_32fc32f_C1R);
    alone<float, Complex32f>("PackToCplxExtend_32f32fc_C1R", W::PackToCplxExtend_32f32fc_C1R);
    alone<Complex32f, float>("CplxExtendToPack_32fc32f_C1R", W::CplxExtendToPack_32fc32f_C1R);
    return true;
}();

}  // namespace
