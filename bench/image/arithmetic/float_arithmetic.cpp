// Float and complex images against OpenCV, VOLK and Eigen, row by row where the peer has no steps. The peers
// multiply and divide complex values in float, we in double.
//
// Families: float_arithmetic, complex_arithmetic; float_elementary is in bench/signal/elementary.cpp.
#include <volk/volk.h>

#include <Eigen/Core>
#include <complex>
#include <cstring>

#include "image/peers.h"

namespace {

using bench::Image;
using bench::mat;
using bench::W;
using Floats = Eigen::Map<Eigen::ArrayXf>;
using Complexes = Eigen::Map<Eigen::ArrayXcf>;

// Ordinary numbers between 1 and 2.
std::shared_ptr<Image> image(int side, int pixel_bytes)
{
    return std::make_shared<Image>(side, pixel_bytes, [](const Image& i) {
        for (int y = 0; y < i.height(); ++y) {
            auto* const row = i.row<unsigned>(y);
            for (int x = 0; x < i.row_bytes() / 4; ++x)
                row[x] = 0x3F800000u | static_cast<unsigned>(y * 7919 + x * 104729) * 2654435761u >> 9;
        }
    });
}

template <class Ours, class Cv, class Volk, class Eig>
void two_images(const char* name, int channels, Ours ours, Cv peer_cv, Volk peer_volk, Eig peer_eigen)
{
    for (int side : bench::kSides) {
        auto a = image(side, 4 * channels), b = image(side, 4 * channels), d = image(side, 4 * channels);
        bench::add(name, bench::square(side), "orvane", [=] {
            ours(a->as<float>(), a->step(), b->as<float>(), b->step(), d->as<float>(), d->step(), side, side);
        });
        if constexpr (!std::is_null_pointer<Cv>::value) {
            cv::Mat ma = mat<float>(*a, channels), mb = mat<float>(*b, channels), md = mat<float>(*d, channels);
            bench::add(name, bench::square(side), "opencv", [=]() mutable { peer_cv(ma, mb, md); });
        }
        const auto rows = [=](auto peer) {
            return [=] {
                for (int y = 0; y < side; ++y) {
                    const auto row = [y](const Image& i) { return i.row<float>(y); };
                    peer(row(*a), row(*b), row(*d), side * channels);
                }
            };
        };
        if constexpr (!std::is_null_pointer<Volk>::value)
            bench::add(name, bench::square(side), "volk", rows(peer_volk));
        bench::add(name, bench::square(side), "eigen",
                   rows([=](float* pa, float* pb, float* pd, int n) { peer_eigen(pa, pb, pd, n); }));
        bench::add(name, bench::square(side), "limit", [=] { bench::limit({a.get(), b.get()}, d.get()); });
    }
}

template <class Ours, class Cv, class Eig>
void one_image(const char* name, int channels, Ours ours, Cv peer_cv, Eig peer_eigen)
{
    for (int side : bench::kSides) {
        auto a = image(side, 4 * channels), d = image(side, 4 * channels);
        bench::add(name, bench::square(side), "orvane",
                   [=] { ours(a->as<float>(), a->step(), d->as<float>(), d->step(), side, side); });
        cv::Mat ma = mat<float>(*a, channels), md = mat<float>(*d, channels);
        bench::add(name, bench::square(side), "opencv", [=]() mutable { peer_cv(ma, md); });
        bench::add(name, bench::square(side), "eigen", [=] {
            for (int y = 0; y < side; ++y) {
                const auto row = [y](const Image& i) { return i.row<float>(y); };
                peer_eigen(row(*a), row(*d), side * channels);
            }
        });
        bench::add(name, bench::square(side), "limit", [=] { bench::limit({a.get()}, d.get()); });
    }
}

#define EIGEN(expression) \
    [](float* pa, float* pb, float* pd, int n) { \
        Floats a(pa, n), b(pb, n), d(pd, n); \
        d = expression; \
    }
#define EIGEN_COMPLEX(expression) \
    [](float* pa, float* pb, float* pd, int n) { \
        using C = std::complex<float>; \
        Complexes a(reinterpret_cast<C*>(pa), n / 2), b(reinterpret_cast<C*>(pb), n / 2), \
            d(reinterpret_cast<C*>(pd), n / 2); \
        d = expression; \
    }
#define EIGEN1(expression) [](float* pa, float* pd, int n) { Floats a(pa, n), d(pd, n); d = expression; }
#define CV(call) [](auto& a, auto& b, auto& d) { (void)b; call; }
#define CV1(call) [](auto& a, auto& d) { call; }
#define VOLK(kernel) [](float* a, float* b, float* d, int n) { kernel(d, b, a, static_cast<unsigned>(n)); }
#define VOLK_COMPLEX(kernel) \
    [](float* a, float* b, float* d, int n) { \
        kernel(reinterpret_cast<lv_32fc_t*>(d), reinterpret_cast<lv_32fc_t*>(b), reinterpret_cast<lv_32fc_t*>(a), \
               static_cast<unsigned>(n / 2)); \
    }
#define COMPLEX(name) \
    [](const float* a, int as, const float* b, int bs, float* d, int ds, int w, int h) { \
        W::name(reinterpret_cast<const Complex32f*>(a), as, reinterpret_cast<const Complex32f*>(b), bs, \
                reinterpret_cast<Complex32f*>(d), ds, w, h); \
    }

const bool registered = [] {
    two_images("Add_32f_C1", 1, W::Add_32f_C1, CV(cv::add(a, b, d)), VOLK(volk_32f_x2_add_32f), EIGEN(b + a));
    two_images("Sub_32f_C1", 1, W::Sub_32f_C1, CV(cv::subtract(b, a, d)), VOLK(volk_32f_x2_subtract_32f), EIGEN(b - a));
    two_images("Mul_32f_C1", 1, W::Mul_32f_C1, CV(cv::multiply(b, a, d)), VOLK(volk_32f_x2_multiply_32f), EIGEN(b * a));
    two_images("Mul_32f_C3", 3, W::Mul_32f_C3, CV(cv::multiply(b, a, d)), VOLK(volk_32f_x2_multiply_32f), EIGEN(b * a));
    two_images("Div_32f_C1", 1, W::Div_32f_C1, CV(cv::divide(b, a, d)), VOLK(volk_32f_x2_divide_32f), EIGEN(b / a));
    two_images("Add_32fc_C1", 2, COMPLEX(Add_32fc_C1), CV(cv::add(a, b, d)), nullptr, EIGEN_COMPLEX(b + a));
    two_images("Mul_32fc_C1", 2, COMPLEX(Mul_32fc_C1), nullptr, VOLK_COMPLEX(volk_32fc_x2_multiply_32fc),
               EIGEN_COMPLEX(b * a));
    two_images("Div_32fc_C1", 2, COMPLEX(Div_32fc_C1), nullptr, VOLK_COMPLEX(volk_32fc_x2_divide_32fc),
               EIGEN_COMPLEX(b / a));
    const auto every = [](const float* a, int as, const float*, int, float* d, int ds, int w, int h) {
        W::MaxEvery_32f_C1I(a, as, d, ds, w, h);
    };
    two_images("MaxEvery_32f_C1I", 1, every, CV(cv::max(a, d, d)), nullptr, EIGEN(a.max(d)));
    one_image("Abs_32f_C1", 1, W::Abs_32f_C1, CV1(d = cv::abs(a)), EIGEN1(a.abs()));
    one_image(
        "AddC_32f_C1", 1,
        [](const float* a, int as, float* d, int ds, int w, int h) { W::AddC_32f_C1(a, as, 1.5f, d, ds, w, h); },
        CV1(cv::add(a, 1.5, d)), EIGEN1(a + 1.5f));
    one_image(
        "DivC_32f_C1", 1,
        [](const float* a, int as, float* d, int ds, int w, int h) { W::DivC_32f_C1(a, as, 1.5f, d, ds, w, h); },
        CV1(cv::divide(a, 1.5, d)), EIGEN1(a / 1.5f));
    static const float values[3] = {1, 2, 3};
    one_image(
        "MulC_32f_C3", 3,
        [](const float* a, int as, float* d, int ds, int w, int h) { W::MulC_32f_C3(a, as, values, d, ds, w, h); },
        CV1(cv::multiply(a, cv::Scalar(1, 2, 3), d)), EIGEN1(a * 1.5f));
    one_image(
        "Sqrt_32f_C1I", 1, [](const float*, int, float* d, int ds, int w, int h) { W::Sqrt_32f_C1I(d, ds, w, h); },
        CV1(cv::sqrt(a, d)), EIGEN1(a.sqrt()));
    for (int side : bench::kSides) {
        auto a = image(side, 2), b = image(side, 2), d = image(side, 4);
        bench::add("AddProduct_16u32f_C1I", bench::square(side), "orvane", [=] {
            W::AddProduct_16u32f_C1I(a->as<unsigned short>(), a->step(), b->as<unsigned short>(), b->step(),
                                     d->as<float>(), d->step(), side, side);
        });
        bench::add("AddProduct_16u32f_C1I", bench::square(side), "limit", [=] {
            bench::limit({a.get(), b.get()}, d.get());
        });
    }
    for (int side : {256, 4096}) {
        auto a = image(side, 4), b = image(side, 4), d = image(side, 4);
        bench::add("Add_32f_C1I", bench::square(side), "orvane",
                   [=] { W::Add_32f_C1I(a->as<float>(), a->step(), b->as<float>(), b->step(), side, side); });
        bench::add("Add_32f_C1I", bench::square(side), "out-of-place", [=] {
            W::Add_32f_C1(a->as<float>(), a->step(), b->as<float>(), b->step(), d->as<float>(), d->step(), side, side);
        });
    }
    return true;
}();

}  // namespace
