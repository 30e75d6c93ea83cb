// Luma and chroma against OpenCV and libyuv. OpenCV's YCrCb is standard 1 with the chroma exchanged; its and libyuv's
// 4:2:0 and 4:2:2 are standard 0. libyuv has ARGB only on the other side of 4:2:2.
//
// Families: ycbcr, subsampled.
#include <libyuv/convert_argb.h>
#include <libyuv/convert_from_argb.h>

#include <opencv2/imgproc.hpp>

#include "ImageProcessingWrapper.h"
#include "image/colour/peers.h"

namespace {

using bench::compare;
using bench::mat;
using bench::picture;
using bench::Picture;
using W = ImageProcessingWrapper;
using u8 = unsigned char;

void add_whole(int side)
{
    const Picture a = picture(side, 3), d = picture(side, 3), a4 = picture(side, 4), d4 = picture(side, 4);
    const cv::Mat from = mat(a, CV_8UC3), to = mat(d, CV_8UC3);
    compare(
        "RGBToYCbCr_8u_C3", side, a, d,
        [=] { W::RGBToYCbCr_8u_C3(a->as<u8>(), a->step(), d->as<u8>(), d->step(), side, side, 1); }, "opencv",
        [=]() mutable { cv::cvtColor(from, to, cv::COLOR_RGB2YCrCb); });
    compare(
        "YCbCrToRGB_8u_C3", side, a, d,
        [=] { W::YCbCrToRGB_8u_C3(a->as<u8>(), a->step(), d->as<u8>(), d->step(), side, side, 1); }, "opencv",
        [=]() mutable { cv::cvtColor(from, to, cv::COLOR_YCrCb2RGB); });
    const Picture grey = picture(side, 1);
    compare(
        "RGBToGray_8u_C3C1R", side, a, grey,
        [=] { W::RGBToGray_8u_C3C1R(a->as<u8>(), a->step(), grey->as<u8>(), grey->step(), side, side, 1); }, "opencv",
        [=, to = mat(grey, CV_8UC1)]() mutable { cv::cvtColor(from, to, cv::COLOR_RGB2GRAY); });
    compare("RGBToYCbCr_8u_AC4", side, a4, d4,
            [=] { W::RGBToYCbCr_8u_AC4(a4->as<u8>(), a4->step(), d4->as<u8>(), d4->step(), side, side, 1); });
    compare("YCbCrToRGB_8u_AC4", side, a4, d4,
            [=] { W::YCbCrToRGB_8u_AC4(a4->as<u8>(), a4->step(), d4->as<u8>(), d4->step(), side, side, 1); });
}

void add_422(int side)
{
    const Picture rgb = picture(side, 3), pairs = picture(side, 2), argb = picture(side, 4);
    const cv::Mat from = mat(pairs, CV_8UC2), to = mat(rgb, CV_8UC3);
    compare(
        "RGBToYUV422_8u_C3C2R", side, rgb, pairs,
        [=] { W::RGBToYUV422_8u_C3C2R(rgb->as<u8>(), rgb->step(), pairs->as<u8>(), pairs->step(), side, side, 0); },
        "libyuv",
        [=] { libyuv::ARGBToYUY2(argb->as<u8>(), argb->step(), pairs->as<u8>(), pairs->step(), side, side); });
    compare(
        "YUV422ToRGB_8u_C2C3R", side, pairs, rgb,
        [=] { W::YUV422ToRGB_8u_C2C3R(pairs->as<u8>(), pairs->step(), rgb->as<u8>(), rgb->step(), side, side, 0); },
        "libyuv",
        [=] { libyuv::YUY2ToARGB(pairs->as<u8>(), pairs->step(), argb->as<u8>(), argb->step(), side, side); });
    bench::add("YUV422ToRGB_8u_C2C3R", bench::square(side), "opencv",
               [=]() mutable { cv::cvtColor(from, to, cv::COLOR_YUV2RGB_YUY2); });
}

void add_420(int side)
{
    // The planes stand one below the other, as OpenCV wants them.
    const Picture planes = picture(side, 1, [](const bench::Image&) {}), rgb = picture(side, 3);
    const auto memory =
        std::make_shared<std::vector<u8>>(static_cast<std::size_t>(side) * static_cast<std::size_t>(side) * 3 / 2 + 64);
    for (std::size_t i = 0; i < memory->size(); ++i) (*memory)[i] = static_cast<u8>(i * 7 + i / 251);
    u8* const y = memory->data();
    u8* const u = y + side * side;
    u8* const v = u + side * side / 4;
    const cv::Mat from(side * 3 / 2, side, CV_8UC1, y), to = mat(rgb, CV_8UC3);
    compare(
        "YUV420ToRGB_8u_P3C3", side, planes, rgb,
        [=] {
            W::YUV420ToRGB_8u_P3C3(y, side, u, side / 2, v, side / 2, rgb->as<u8>(), rgb->step(), side, side,
                                   memory->empty() ? 1 : 0);
        },
        "libyuv",
        [=] { libyuv::I420ToRAW(y, side, u, side / 2, v, side / 2, rgb->as<u8>(), rgb->step(), side, side); });
    bench::add("YUV420ToRGB_8u_P3C3", bench::square(side), "opencv",
               [=]() mutable { cv::cvtColor(from, to, cv::COLOR_YUV2RGB_I420); });
}

const bool registered = [] {
    for (const int side : bench::kColourSides) {
        add_whole(side);
        add_422(side);
        add_420(side);
    }
    return true;
}();

}  // namespace
