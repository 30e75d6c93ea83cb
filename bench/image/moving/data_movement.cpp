// Copy, set, conversion, channel order, transposition and mirroring against OpenCV and memcpy.
#include <cstring>

#include "image/peers.h"

namespace {

using bench::Image;
using bench::mat;
using bench::u16;
using bench::u8;
using bench::W;

// One source, one destination: types are OpenCV's.
template <class Ours, class Peer>
void src_dst(const char* name, int from, int to, Ours ours, const char* who, Peer peer)
{
    for (int side : bench::kSides) {
        auto a = std::make_shared<Image>(side, static_cast<int>(CV_ELEM_SIZE(from)));
        auto d = std::make_shared<Image>(side, static_cast<int>(CV_ELEM_SIZE(to)));
        bench::add(name, bench::square(side), "orvane", [=] { ours(*a, *d, side); });
        cv::Mat ma = mat(*a, from), md = mat(*d, to);
        bench::add(name, bench::square(side), who, [=]() mutable { peer(ma, md); });
        bench::add(name, bench::square(side), "limit", [=] { bench::limit({a.get()}, d.get()); });
    }
}

template <class Ours, class Peer>
void set(const char* name, int type, Ours ours, Peer peer)
{
    for (int side : bench::kSides) {
        auto d = std::make_shared<Image>(side, static_cast<int>(CV_ELEM_SIZE(type)));
        bench::add(name, bench::square(side), "orvane", [=] { ours(*d, side); });
        cv::Mat md = mat(*d, type);
        bench::add(name, bench::square(side), "opencv", [=]() mutable { peer(md); });
        bench::add(name, bench::square(side), "limit", [=] { bench::limit({}, d.get()); });
    }
}

#define CALL(method, From, To) \
    [](const Image& a, const Image& d, int side) { \
        W::method(a.as<From>(), a.step(), d.as<To>(), d.step(), side, side); \
    }

// The methods work in place, so the peer may too; both start from the same image each time.
template <class T, class Ours, class Peer>
void mirror(const char* name, int type, Ours ours, Peer peer)
{
    src_dst(
        name, type, type, [=](const Image&, const Image& d, int side) { ours(d.as<T>(), d.step(), side, side); },
        "opencv", peer);
}

const bool registered = [] {
    const auto copy_rows = [](cv::Mat& a, cv::Mat& d) {
        for (int y = 0; y < a.rows; ++y)
            std::memcpy(d.ptr(y), a.ptr(y), static_cast<std::size_t>(a.cols) * a.elemSize());
    };
    src_dst("Copy_8u_C1", CV_8UC1, CV_8UC1, CALL(Copy_8u_C1, u8, u8), "memcpy", copy_rows);
    src_dst("Copy_8u_C3", CV_8UC3, CV_8UC3, CALL(Copy_8u_C3, u8, u8), "memcpy", copy_rows);
    src_dst("Copy_32f_C1", CV_32FC1, CV_32FC1, CALL(Copy_32f_C1, float, float), "memcpy", copy_rows);

    set("Set_8u_C1", CV_8UC1, [](const Image& d, int side) { W::Set_8u_C1(7, d.as<u8>(), d.step(), side, side); },
        [](cv::Mat& d) { d.setTo(7); });
    static const u8 three[3] = {1, 2, 3};
    set("Set_8u_C3", CV_8UC3, [](const Image& d, int side) { W::Set_8u_C3(three, d.as<u8>(), d.step(), side, side); },
        [](cv::Mat& d) { d.setTo(cv::Scalar(1, 2, 3)); });

    const auto convert = [](cv::Mat& a, cv::Mat& d) { a.convertTo(d, d.depth()); };
    src_dst("Convert_8u16u_C1", CV_8UC1, CV_16UC1, CALL(Convert_8u16u_C1, u8, u16), "opencv", convert);
    src_dst("Convert_8u32f_C1", CV_8UC1, CV_32FC1, CALL(Convert_8u32f_C1, u8, float), "opencv", convert);
    src_dst("Convert_8u32f_C3", CV_8UC3, CV_32FC3, CALL(Convert_8u32f_C3, u8, float), "opencv", convert);
    src_dst("Convert_16u32f_C1", CV_16UC1, CV_32FC1, CALL(Convert_16u32f_C1, u16, float), "opencv", convert);
    src_dst("Convert_32f16u_C1", CV_32FC1, CV_16UC1, CALL(Convert_32f16u_C1, float, u16), "opencv", convert);
    src_dst("Convert_32f8u_C3", CV_32FC3, CV_8UC3, CALL(Convert_32f8u_C3, float, u8), "opencv", convert);
    src_dst("Transpose_32f_C1R", CV_32FC1, CV_32FC1, CALL(Transpose_32f_C1R, float, float), "opencv",
            [](cv::Mat& a, cv::Mat& d) { cv::transpose(a, d); });

    static const int order[4] = {2, 1, 0, 3};
    src_dst(
        "SwapChannels_8u_C4IR", CV_8UC4, CV_8UC4,
        [](const Image&, const Image& d, int side) {
            W::SwapChannels_8u_C4IR(d.as<u8>(), d.step(), side, side, order);
        },
        "opencv",
        [](cv::Mat& a, cv::Mat& d) {
            cv::mixChannels(std::vector<cv::Mat>{a}, std::vector<cv::Mat>{d}, {0, 2, 1, 1, 2, 0, 3, 3});
        });
    src_dst(
        "SwapChannels_8u_C3IR", CV_8UC3, CV_8UC3,
        [](const Image&, const Image& d, int side) {
            W::SwapChannels_8u_C3IR(d.as<u8>(), d.step(), side, side, order);
        },
        "opencv",
        [](cv::Mat& a, cv::Mat& d) {
            cv::mixChannels(std::vector<cv::Mat>{a}, std::vector<cv::Mat>{d}, {0, 2, 1, 1, 2, 0});
        });

    for (int axis = 0; axis < 3; ++axis) {
        const std::string suffix = " axis " + std::to_string(axis);
        const int code = axis == 2 ? -1 : axis;
        const auto flip = [code](cv::Mat& a, cv::Mat& d) { cv::flip(a, d, code); };
        mirror<u8>(("Mirror_8u_C3I" + suffix).c_str(), CV_8UC3,
                   [axis](u8* p, int step, int w, int h) { W::Mirror_8u_C3I(p, step, w, h, axis); }, flip);
        mirror<u8>(("Mirror_8u_C4I" + suffix).c_str(), CV_8UC4,
                   [axis](u8* p, int step, int w, int h) { W::Mirror_8u_C4I(p, step, w, h, axis); }, flip);
        mirror<u16>(("Mirror_16u_C1I" + suffix).c_str(), CV_16UC1,
                    [axis](u16* p, int step, int w, int h) { W::Mirror_16u_C1I(p, step, w, h, axis); }, flip);
    }
    return true;
}();

}  // namespace
