// Colour matrices and composition against OpenCV, libyuv (whose matrices have 6 bits, and whose blending shifts by 8)
// and compiled loops.
//
// Families: twist, alpha.
#include <libyuv/planar_functions.h>

#include <cmath>

#include "ImageProcessingWrapper.h"
#include "image/colour/peers.h"

namespace {

using bench::compare;
using bench::mat;
using bench::picture;
using bench::Picture;
using W = ImageProcessingWrapper;
using u8 = unsigned char;

const float kTwist[12] = {0.393f, 0.769f, 0.189f, 0, 0.349f, 0.686f, 0.168f, 0, 0.272f, 0.534f, 0.131f, 0};

void add_twist(int side)
{
    const cv::Mat matrix(3, 4, CV_32FC1, const_cast<float*>(kTwist));
    static const signed char small[16] = {8, 34, 17, 0, 11, 44, 22, 0, 12, 49, 25, 0, 0, 0, 0, 64};
    const Picture a = picture(side, 3), d = picture(side, 3), a4 = picture(side, 4), d4 = picture(side, 4),
                  f = picture(side, 12, bench::floats_between(0, 255)), g = picture(side, 12);
    const cv::Mat bytes = mat(a, CV_8UC3), to_bytes = mat(d, CV_8UC3), floats = mat(f, CV_32FC3),
                  to_floats = mat(g, CV_32FC3);
    compare(
        "ColorTwist32f_8u_C3", side, a, d,
        [=] { W::ColorTwist32f_8u_C3(a->as<u8>(), a->step(), kTwist, d->as<u8>(), d->step(), side, side); }, "opencv",
        [=]() mutable { cv::transform(bytes, to_bytes, matrix); });
    compare(
        "ColorTwist32f_8u_AC4", side, a4, d4,
        [=] { W::ColorTwist32f_8u_AC4(a4->as<u8>(), a4->step(), kTwist, d4->as<u8>(), d4->step(), side, side); },
        "libyuv",
        [=] { libyuv::ARGBColorMatrix(a4->as<u8>(), a4->step(), d4->as<u8>(), d4->step(), small, side, side); });
    compare(
        "ColorTwist32f_32f_C3", side, f, g,
        [=] { W::ColorTwist32f_32f_C3(f->as<float>(), f->step(), kTwist, g->as<float>(), g->step(), side, side); },
        "opencv", [=]() mutable { cv::transform(floats, to_floats, matrix); });
}

void over_loop(const Picture& a, const Picture& b, const Picture& d, int side)
{
    for (int y = 0; y < side; ++y) {
        const u8 *p = a->row<u8>(y), *q = b->row<u8>(y);
        u8* to = d->row<u8>(y);
        for (int x = 0; x < side; ++x, p += 4, q += 4, to += 4) {
            const int upper = 255 * q[3], lower = (255 - q[3]) * p[3], sum = upper + lower;
            for (int c = 0; c < 3; ++c)
                to[c] = static_cast<u8>(sum == 0 ? 0
                                                 : std::nearbyint(static_cast<float>(upper * q[c] + lower * p[c]) /
                                                                  static_cast<float>(sum)));
            to[3] = static_cast<u8>((sum + 127) / 255);
        }
    }
}

void add_alpha(int side)
{
    const Picture a = picture(side, 4), b = picture(side, 4), d = picture(side, 4), a3 = picture(side, 3),
                  b3 = picture(side, 3), d3 = picture(side, 3);
    for (const bool premultiplied : {false, true}) {
        const std::string kind = premultiplied ? " premultiplied" : "";
        bench::add("AlphaComp_8u_AC4" + kind, bench::square(side), "orvane", [=] {
            W::AlphaComp_8u_AC4(a->as<u8>(), a->step(), b->as<u8>(), b->step(), d->as<u8>(), d->step(), side, side,
                                premultiplied);
        });
        bench::add("AlphaComp_8u_C4" + kind, bench::square(side), "orvane", [=] {
            W::AlphaComp_8u_C4(a->as<u8>(), a->step(), b->as<u8>(), b->step(), d->as<u8>(), d->step(), side, side,
                               premultiplied);
        });
        for (const char* name : {"AlphaComp_8u_AC4", "AlphaComp_8u_C4"}) {
            bench::add(name + kind, bench::square(side), "limit", [=] { bench::limit({a.get(), b.get()}, d.get()); });
        }
    }
    bench::add("AlphaComp_8u_AC4 premultiplied", bench::square(side), "libyuv", [=] {
        libyuv::ARGBBlend(b->as<u8>(), b->step(), a->as<u8>(), a->step(), d->as<u8>(), d->step(), side, side);
    });
    bench::add("AlphaComp_8u_C4", bench::square(side), "loop", [=] { over_loop(a, b, d, side); });
    const cv::Mat ground = mat(a3, CV_8UC3), top = mat(b3, CV_8UC3), to = mat(d3, CV_8UC3);
    bench::add("AlphaCompC_8u_C3R", bench::square(side), "orvane", [=] {
        W::AlphaCompC_8u_C3R(a3->as<u8>(), a3->step(), b3->as<u8>(), b3->step(), 100, d3->as<u8>(), d3->step(), side,
                             side);
    });
    bench::add("AlphaCompC_8u_C3R", bench::square(side), "opencv",
               [=]() mutable { cv::addWeighted(top, 100 / 255.0, ground, 155 / 255.0, 0, to); });
    bench::add("AlphaCompC_8u_C3R", bench::square(side), "limit", [=] {
        bench::limit({a3.get(), b3.get()}, d3.get());
    });
}

const bool registered = [] {
    for (const int side : bench::kColourSides) {
        add_twist(side);
        add_alpha(side);
    }
    return true;
}();

}  // namespace
