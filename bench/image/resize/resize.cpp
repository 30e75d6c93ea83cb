// Resizing against OpenCV, libyuv and zimg. Sizes are those of the destination. Ours prepares its plan inside
// the call, as libyuv does; zimg's graph and nothing of OpenCV's is prepared beforehand. The peers compute
// 8 and 16 bits in fixed point or float.
//
// Families: resize_plan, resize_nearest, resize_linear, resize_cubic, resample.
#include <libyuv/scale_argb.h>
#include <libyuv/scale.h>
#include <zimg.h>

#include <opencv2/imgproc.hpp>

#include "image/peers.h"

namespace {

using bench::Image;
using bench::mat;
using bench::u16;
using bench::u8;
using bench::W;

struct Scale {
    const char* name;
    int numerator, denominator;  // of the source's side over the destination's
};
const Scale kUp = {"up 1.6", 5, 8}, kDouble = {"double", 1, 2}, kDown = {"down 1.6", 8, 5}, kHalf = {"half", 2, 1},
            kArea = {"down 2.5", 5, 2};

template <class T>
struct Pair {
    std::shared_ptr<Image> src, dst;
    int from, to;
    Pair(Scale scale, int side, int channels)
        : src(std::make_shared<Image>(side * scale.numerator / scale.denominator,
                                      channels * static_cast<int>(sizeof(T)))),
          dst(std::make_shared<Image>(side, channels * static_cast<int>(sizeof(T)))),
          from(side * scale.numerator / scale.denominator),
          to(side)
    {
    }
};

// One zimg graph per image: a single plane.
void zimg_peer(const std::string& operation, const std::string& size, const Pair<u16>& p, zimg_resample_filter_e filter)
{
    zimg_image_format from, to;
    zimg_image_format_default(&from, ZIMG_API_VERSION);
    zimg_image_format_default(&to, ZIMG_API_VERSION);
    from.width = from.height = static_cast<unsigned>(p.from);
    to.width = to.height = static_cast<unsigned>(p.to);
    from.pixel_type = to.pixel_type = ZIMG_PIXEL_WORD;
    from.depth = to.depth = 16;
    from.color_family = to.color_family = ZIMG_COLOR_GREY;
    from.pixel_range = to.pixel_range = ZIMG_RANGE_FULL;
    zimg_graph_builder_params params;
    zimg_graph_builder_params_default(&params, ZIMG_API_VERSION);
    params.resample_filter = filter;
    params.cpu_type = ZIMG_CPU_X86_AVX2;  // no AVX-512: our highest level has none either
    params.filter_param_a = 0;
    params.filter_param_b = 0.5;
    zimg_filter_graph* const graph = zimg_filter_graph_build(&from, &to, &params);
    if (graph == nullptr) return;
    std::size_t bytes = 0;
    zimg_filter_graph_get_tmp_size(graph, &bytes);
    void* const tmp = std::aligned_alloc(64, (bytes + 63) / 64 * 64);
    bench::add(operation, size, "zimg", [=] {
        zimg_image_buffer_const in = {ZIMG_API_VERSION, {}};
        zimg_image_buffer out = {ZIMG_API_VERSION, {}};
        in.plane[0] = {p.src->as<u16>(), p.src->step(), ZIMG_BUFFER_MAX};
        out.plane[0] = {p.dst->as<u16>(), p.dst->step(), ZIMG_BUFFER_MAX};
        zimg_filter_graph_process(graph, &in, &out, tmp, nullptr, nullptr, nullptr, nullptr);
    });
}

template <class T, class Ours>
void row(const char* name, Scale scale, int channels, int interpolation, Ours ours)
{
    for (int side : {16, 256, 1024}) {
        const Pair<T> p(scale, side, channels);
        const std::string operation = std::string(name) + " " + scale.name, size = bench::square(side);
        bench::add(operation, size, "orvane", [=] { ours(p); });
        cv::Mat from = mat<T>(*p.src, channels), to = mat<T>(*p.dst, channels);
        bench::add(operation, size, "opencv", [=]() mutable { cv::resize(from, to, to.size(), 0, 0, interpolation); });
        if (sizeof(T) == 1 && channels == 4 && interpolation != cv::INTER_CUBIC) {
            const auto mode = interpolation == cv::INTER_NEAREST ? libyuv::kFilterNone
                              : interpolation == cv::INTER_AREA  ? libyuv::kFilterBox
                                                                 : libyuv::kFilterBilinear;
            bench::add(operation, size, "libyuv", [=] {
                libyuv::ARGBScale(p.src->template as<u8>(), p.src->step(), p.from, p.from, p.dst->template as<u8>(),
                                  p.dst->step(), p.to, p.to, mode);
            });
        }
        if (sizeof(T) == 2) {
            const auto mode = interpolation == cv::INTER_NEAREST ? libyuv::kFilterNone
                              : interpolation == cv::INTER_AREA  ? libyuv::kFilterBox
                                                                 : libyuv::kFilterBilinear;
            if (interpolation != cv::INTER_CUBIC) {
                bench::add(operation, size, "libyuv", [=] {
                    libyuv::ScalePlane_16(p.src->template as<u16>(), p.src->step() / 2, p.from, p.from,
                                          p.dst->template as<u16>(), p.dst->step() / 2, p.to, p.to, mode);
                });
            }
            if constexpr (sizeof(T) == 2) {
                if (interpolation == cv::INTER_LINEAR && p.to >= p.from)
                    zimg_peer(operation, size, p, ZIMG_RESIZE_BILINEAR);
                if (interpolation == cv::INTER_CUBIC && p.to >= p.from)
                    zimg_peer(operation, size, p, ZIMG_RESIZE_BICUBIC);
            }
        }
        bench::add(operation, size, "limit", [=] { bench::limit({p.src.get()}, p.dst.get()); });
    }
}

template <class T, class Method>
auto plain(Method method)
{
    return [method](const Pair<T>& p) {
        method(p.src->template as<T>(), p.from, p.from, p.src->step(), p.dst->template as<T>(), p.dst->step(), p.to,
               p.to, 1, 1);
    };
}

template <class T, class Method>
auto zoom(Method method, bool smooth)
{
    return [method, smooth](const Pair<T>& p) {
        method(p.src->template as<T>(), p.src->step(), p.from, p.from, p.dst->template as<T>(), p.dst->step(), p.to,
               p.to, 1.f, 0, 0, smooth);
    };
}

auto square(int code)
{
    static std::vector<u8> work(1 << 20);
    return [code](const Pair<u8>& p) {
        const double factor = static_cast<double>(p.to) / p.from;
        W::ResizeSqrPixel_8u_C1R(p.src->as<u8>(), p.from, p.from, p.src->step(), 0, 0, p.from, p.from, p.dst->as<u8>(),
                                 p.dst->step(), 0, 0, p.to, p.to, factor, factor, 0, 0, code, work.data());
    };
}

const bool registered = [] {
    for (const Scale& scale : {kUp, kDouble, kDown}) {
        row<u8>("ResizeNN_8u_C3R", scale, 3, cv::INTER_NEAREST, plain<u8>(W::ResizeNN_8u_C3R));
        row<u8>("ResizeNN_8u_C4R", scale, 4, cv::INTER_NEAREST, plain<u8>(W::ResizeNN_8u_C4R));
        row<u8>("ResizeSqrPixel_8u_C1R nearest", scale, 1, cv::INTER_NEAREST, square(1));
        row<u8>("ResizeSqrPixel_8u_C1R linear", scale, 1, cv::INTER_LINEAR, square(2));
        row<u8>("ResizeSqrPixel_8u_C1R cubic", scale, 1, cv::INTER_CUBIC, square(4));
        row<u16>("ResizeNN_16u_C1R", scale, 1, cv::INTER_NEAREST, plain<u16>(W::ResizeNN_16u_C1R));
        row<u16>("ResizeCenterNN_16u_C1R (linear)", scale, 1, cv::INTER_LINEAR, [](const Pair<u16>& p) {
            W::ResizeCenterNN_16u_C1R(p.src->as<u16>(), p.from, p.from, p.src->step(), p.dst->as<u16>(), p.dst->step(),
                                      p.to, p.to, 1, 1, p.to / 2, p.to / 2);
        });
        row<u8>("ResizeCubic_8u_C3R", scale, 3, cv::INTER_CUBIC, plain<u8>(W::ResizeCubic_8u_C3R));
        row<u8>("ResizeCubic_8u_C4R", scale, 4, cv::INTER_CUBIC, plain<u8>(W::ResizeCubic_8u_C4R));
        row<u16>("ResizeCubic_16u_C1R", scale, 1, cv::INTER_CUBIC, plain<u16>(W::ResizeCubic_16u_C1R));
    }
    for (const Scale& scale : {kHalf, kArea}) {
        row<u8>("Resize_8u_C3 area", scale, 3, cv::INTER_AREA, zoom<u8>(W::Resize_8u_C3, false));
        row<u8>("Resize_8u_C4 area", scale, 4, cv::INTER_AREA, zoom<u8>(W::Resize_8u_C4, false));
        row<u8>("ResizeSqrPixel_8u_C1R area", scale, 1, cv::INTER_AREA, square(8));
        row<u16>("Resize_16u_C1 area", scale, 1, cv::INTER_AREA, zoom<u16>(W::Resize_16u_C1, false));
        row<float>("Resize_32f_C1 area", scale, 1, cv::INTER_AREA, zoom<float>(W::Resize_32f_C1, false));
    }
    row<u8>("Resize_8u_C3 smooth", kUp, 3, cv::INTER_CUBIC, zoom<u8>(W::Resize_8u_C3, true));
    row<u8>("Resize_8u_C4 smooth", kUp, 4, cv::INTER_CUBIC, zoom<u8>(W::Resize_8u_C4, true));
    row<u16>("Resize_16u_C1 smooth", kUp, 1, cv::INTER_CUBIC, zoom<u16>(W::Resize_16u_C1, true));
    row<float>("Resize_32f_C1 smooth", kUp, 1, cv::INTER_CUBIC, zoom<float>(W::Resize_32f_C1, true));
    return true;
}();

}  // namespace
