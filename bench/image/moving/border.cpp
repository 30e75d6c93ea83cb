// Borders against OpenCV.
#include <opencv2/core.hpp>
#include <string>

#include "image/peers.h"

namespace bench {
namespace {

// A source with `border` pixels less on every side.
template <class Ours, class Peer>
void bordered(const std::string& name, int type, int border, Ours ours, Peer peer)
{
    for (int side : sides(type)) {
        const int inner = side - 2 * border;
        if (inner < 1) continue;
        auto a = make(inner, type), d = make(side, type);
        const std::string operation = name + " by " + std::to_string(border);
        add(operation, square(side), "orvane", [=] { ours(*a, *d, inner, side, border); });
        cv::Mat ma = mat(*a, type), md = mat(*d, type);
        add(operation, square(side), "opencv", [=]() mutable { peer(ma, md, border); });
        auto whole = make(side, type);
        add(operation, square(side), "limit", [=] { limit({whole.get()}, d.get()); });
    }
}

using Bordered = void (*)(const Image&, const Image&, int, int, int);

void register_borders(const std::string& layout, int type, Bordered constant, Bordered replicate)
{
    for (const int border : {1, 8}) {
        bordered("CopyConstBorder_" + layout, type, border, constant, [](cv::Mat& a, cv::Mat& d, int b) {
            cv::copyMakeBorder(a, d, b, b, b, b, cv::BORDER_CONSTANT, cv::Scalar(3, 100, 200, 50));
        });
        bordered("CopyReplicateBorder_" + layout, type, border, replicate,
                 [](cv::Mat& a, cv::Mat& d, int b) { cv::copyMakeBorder(a, d, b, b, b, b, cv::BORDER_REPLICATE); });
    }
}

const bool registered = [] {
#define BORDER(method, T, ...)                                                                               \
    [](const Image& a, const Image& d, int inner, int side, int b) {                                         \
        W::method(a.as<T>(), a.step(), inner, inner, d.as<T>(), d.step(), side, side, b, b __VA_ARGS__);     \
    }
#define BORDERS(layout, type, T, value) \
    register_borders(#layout, type, BORDER(CopyConstBorder_##layout, T, , value), \
                     BORDER(CopyReplicateBorder_##layout, T))
    BORDERS(8u_C1, CV_8UC1, u8, 3);
    BORDERS(8u_C3, CV_8UC3, u8, values);
    BORDERS(8u_C4, CV_8UC4, u8, values);
    BORDERS(16u_C1, CV_16UC1, u16, 3);
    BORDERS(32f_C1, CV_32FC1, float, 3);
    BORDERS(32f_C3, CV_32FC3, float, limits);
#undef BORDERS
#undef BORDER

    // In place, beside the out-of-place form.
    for (int side : {256, 2048}) {
        const char* const name = "CopyReplicateBorder_32f_C1I by 8";
        auto f = make_source(side, CV_32FC1), g = make(side, CV_32FC1);
        add(name, square(side), "orvane", [=] {
            W::CopyReplicateBorder_32f_C1I(g->as<float>(), g->step(), side - 16, side - 16, side, side, 8, 8);
        });
        add(name, square(side), "out-of-place", [=] {
            W::CopyReplicateBorder_32f_C1(f->as<float>(), f->step(), side - 16, side - 16, g->as<float>(), g->step(),
                                          side, side, 8, 8);
        });
    }
    return true;
}();

}  // namespace
}  // namespace bench
