// Rotation, perspective and remapping against OpenCV, which has fractions of 1/32 pixel. Sides are those of source and
// destination; the rotation is by 30 degrees about the middle.
#include <opencv2/imgproc.hpp>

#include <cmath>

#include "image/peers.h"

namespace {

using bench::Image;
using bench::mat;
using bench::u16;
using bench::u8;
using bench::W;

constexpr double kAngle = 30;
constexpr double kPerspective[9] = {1, 0.12, -10, -0.05, 1.1, 5, 0.05, -0.08, 1};  // the last row per side

const struct {
    const char* name;
    int ours, opencv;
} kInterpolations[] = {{"nearest", 1, cv::INTER_NEAREST},
                       {"linear", 2, cv::INTER_LINEAR},
                       {"cubic", 4, cv::INTER_CUBIC},
                       {"Lanczos", 16, cv::INTER_LANCZOS4}};

// A lens that bends towards its edge.
void fill_map(const Image& map, int side, bool columns)
{
    for (int y = 0; y < side; ++y) {
        for (int x = 0; x < side; ++x) {
            const double dx = (x - side / 2.0) / side, dy = (y - side / 2.0) / side,
                         bend = 1 + 0.1 * (dx * dx + dy * dy);
            map.row<float>(y)[x] = static_cast<float>(side / 2.0 + side * bend * (columns ? dx : dy));
        }
    }
}

// Floats are grey values: noise of bits would hold subnormals, which are slow in the peer's float arithmetic.
template <class T>
Image::Fill grey_values()
{
    if (!std::is_same<T, float>::value) return nullptr;
    return bench::floats_between(0, 255);
}

struct Set {
    int side;
    std::shared_ptr<Image> src, dst, xMap, yMap;
    double xShift = 0, yShift = 0, h[9];
    Set(int length, int pixel, const Image::Fill& fill)
        : side(length),
          src(std::make_shared<Image>(length, pixel, fill)),
          dst(std::make_shared<Image>(length, pixel)),
          xMap(std::make_shared<Image>(length, 4, [=](const Image& m) { fill_map(m, length, true); })),
          yMap(std::make_shared<Image>(length, 4, [=](const Image& m) { fill_map(m, length, false); }))
    {
        W::GetRotateShift(side / 2.0, side / 2.0, kAngle, &xShift, &yShift);
        for (int i = 0; i < 9; ++i) h[i] = i == 6 || i == 7 ? kPerspective[i] / side : kPerspective[i];
    }
    cv::Mat affine() const
    {
        const double a = kAngle * CV_PI / 180, c = std::cos(a), s = std::sin(a), m = side / 2.0;
        return (cv::Mat_<double>(2, 3) << c, -s, m - c * m + s * m, s, c, m - s * m - c * m);
    }
};

template <class T, class Rotate, class Project, class Remap>
void rows(const char* suffix, int channels, Rotate rotate, Project project, Remap remap)
{
    for (const auto& way : kInterpolations) {
        for (const int side : {256, 2236}) {
            const Set s(side, channels * static_cast<int>(sizeof(T)), grey_values<T>());
            const std::string size = bench::square(side);
            const int code = way.ours, type = bench::pixels_of<T>(channels), peer = way.opencv;
            const cv::Mat from = mat(*s.src, type), xMap = mat(*s.xMap, CV_32F),
                          yMap = mat(*s.yMap, CV_32F);
            cv::Mat to = mat(*s.dst, type);
            const auto name = [&](const char* method) { return std::string(method) + suffix + " " + way.name; };
            bench::add(name("Rotate_"), size, "orvane", [=] {
                rotate(s.src->template as<T>(), side, side, s.src->step(), 0, 0, side, side, s.dst->template as<T>(),
                       s.dst->step(), 0, 0, side, side, kAngle, s.xShift, s.yShift, code);
            });
            bench::add(name("Rotate_"), size, "opencv", [=]() mutable {
                cv::warpAffine(from, to, s.affine(), to.size(), peer | cv::WARP_INVERSE_MAP, cv::BORDER_TRANSPARENT);
            });
            bench::add(name("WarpPerspective_"), size, "orvane", [=] {
                project(s.src->template as<T>(), side, side, s.src->step(), 0, 0, side, side, s.dst->template as<T>(),
                        s.dst->step(), 0, 0, side, side, s.h, code);
            });
            bench::add(name("WarpPerspective_"), size, "opencv", [=]() mutable {
                cv::warpPerspective(from, to, cv::Mat(3, 3, CV_64F, const_cast<double*>(s.h)), to.size(), peer,
                                    cv::BORDER_TRANSPARENT);
            });
            bench::add(name("Remap_"), size, "orvane", [=] {
                remap(s.src->template as<T>(), side, side, s.src->step(), 0, 0, side, side,
                      s.xMap->template as<float>(), s.xMap->step(), s.yMap->template as<float>(), s.yMap->step(),
                      s.dst->template as<T>(), s.dst->step(), side, side, code);
            });
            bench::add(name("Remap_"), size, "opencv",
                       [=]() mutable { cv::remap(from, to, xMap, yMap, peer, cv::BORDER_TRANSPARENT); });
        }
    }
}

const bool registered = [] {
    cv::setNumThreads(1);
    rows<u8>("8u_C1", 1, W::Rotate_8u_C1, W::WarpPerspective_8u_C1, W::Remap_8u_C1);
    rows<u8>("8u_C3", 3, W::Rotate_8u_C3, W::WarpPerspective_8u_C3, W::Remap_8u_C3);
    rows<u8>("8u_C4", 4, W::Rotate_8u_C4, W::WarpPerspective_8u_C4, W::Remap_8u_C4);
    rows<u16>("16u_C1", 1, W::Rotate_16u_C1, W::WarpPerspective_16u_C1, W::Remap_16u_C1);
    rows<float>("32f_C1", 1, W::Rotate_32f_C1, W::WarpPerspective_32f_C1, W::Remap_32f_C1);
    return true;
}();

}  // namespace
