// Integer arithmetic against OpenCV. OpenCV scales through float and rounds it to nearest, even; its
// per-channel constants are Scalars.
#include "image/peers.h"

namespace {

using bench::Image;
using bench::mat;
using bench::s16;
using bench::u16;
using bench::u8;
using bench::W;

template <class T, class Ours, class Peer>
void two_images(const char* name, int channels, int scaleFactor, Ours ours, Peer peer)
{
    for (int side : bench::kSides) {
        auto a = std::make_shared<Image>(side, channels * static_cast<int>(sizeof(T)));
        auto b = std::make_shared<Image>(side, channels * static_cast<int>(sizeof(T)));
        auto d = std::make_shared<Image>(side, channels * static_cast<int>(sizeof(T)));
        const std::string operation = std::string(name) + " sf" + std::to_string(scaleFactor);
        const double scale = 1.0 / (1 << scaleFactor);
        bench::add(operation, bench::square(side), "orvane", [=] {
            ours(a->as<T>(), a->step(), b->as<T>(), b->step(), d->as<T>(), d->step(), side, side, scaleFactor);
        });
        cv::Mat ma = mat<T>(*a, channels), mb = mat<T>(*b, channels), md = mat<T>(*d, channels);
        bench::add(operation, bench::square(side), "opencv", [=]() mutable { peer(ma, mb, md, scale); });
        bench::add(operation, bench::square(side), "limit", [=] { bench::limit({a.get(), b.get()}, d.get()); });
    }
}

template <class T, class Ours, class Peer>
void constant(const char* name, int channels, int scaleFactor, Ours ours, Peer peer)
{
    static const T values[4] = {3, 7, 11, 2};
    for (int side : bench::kSides) {
        auto a = std::make_shared<Image>(side, channels * static_cast<int>(sizeof(T)));
        auto d = std::make_shared<Image>(side, channels * static_cast<int>(sizeof(T)));
        const std::string operation = std::string(name) + " sf" + std::to_string(scaleFactor);
        const double scale = 1.0 / (1 << scaleFactor);
        bench::add(operation, bench::square(side), "orvane", [=] {
            if constexpr (std::is_invocable<Ours, const T*, int, T, T*, int, int, int, int>::value) {
                ours(a->as<T>(), a->step(), values[0], d->as<T>(), d->step(), side, side, scaleFactor);
            } else {
                ours(a->as<T>(), a->step(), values, d->as<T>(), d->step(), side, side, scaleFactor);
            }
        });
        cv::Mat ma = mat<T>(*a, channels), md = mat<T>(*d, channels);
        const cv::Scalar s(3, 7, 11, 2);
        bench::add(operation, bench::square(side), "opencv", [=]() mutable { peer(ma, s, md, scale); });
        bench::add(operation, bench::square(side), "limit", [=] { bench::limit({a.get()}, d.get()); });
    }
}

// In place at two sizes, beside the out-of-place form.
template <class T, class InPlace, class OutOfPlace>
void in_place(const char* name, int channels, InPlace ours, OutOfPlace out_of_place)
{
    for (int side : {256, 8192}) {
        auto a = std::make_shared<Image>(side, channels * static_cast<int>(sizeof(T)));
        auto b = std::make_shared<Image>(side, channels * static_cast<int>(sizeof(T)));
        auto d = std::make_shared<Image>(side, channels * static_cast<int>(sizeof(T)));
        bench::add(name, bench::square(side), "orvane",
                   [=] { ours(a->as<T>(), a->step(), b->as<T>(), b->step(), side, side, 0); });
        bench::add(name, bench::square(side), "out-of-place", [=] {
            out_of_place(a->as<T>(), a->step(), b->as<T>(), b->step(), d->as<T>(), d->step(), side, side, 0);
        });
    }
}

const auto cv_add = [](auto& a, auto& b, auto& d, double scale) {
    if (scale == 1) cv::add(a, b, d);
    else cv::addWeighted(a, scale, b, scale, 0, d);
};
const auto cv_sub = [](auto& a, auto& b, auto& d, double scale) {
    if (scale == 1) cv::subtract(b, a, d);
    else cv::addWeighted(b, scale, a, -scale, 0, d);
};
const auto cv_mul = [](auto& a, auto& b, auto& d, double scale) { cv::multiply(a, b, d, scale); };
const auto cv_div = [](auto& a, auto& b, auto& d, double scale) { cv::divide(b, a, d, scale); };
const auto cv_add_constant = [](auto& a, auto& s, auto& d, double scale) {
    if (scale == 1) cv::add(a, s, d);
    else a.convertTo(d, -1, scale, s[0] * scale);
};
const auto cv_sub_constant = [](auto& a, auto& s, auto& d, double) { cv::subtract(a, s, d); };
const auto cv_mul_constant = [](auto& a, auto& s, auto& d, double scale) { cv::multiply(a, s, d, scale); };
const auto cv_div_constant = [](auto& a, auto& s, auto& d, double scale) { cv::divide(a, s, d, scale); };

const bool registered = [] {
#define TWO(name, T, channels, sf, peer) two_images<T>(#name, channels, sf, W::name, peer)
    TWO(Add_8u_C1, u8, 1, 0, cv_add);
    TWO(Add_8u_C3, u8, 3, 0, cv_add);
    TWO(Sub_8u_C1, u8, 1, 0, cv_sub);
    TWO(Sub_8u_C4, u8, 4, 0, cv_sub);
    TWO(Add_8u_C1, u8, 1, 1, cv_add);
    TWO(Sub_8u_C1, u8, 1, 1, cv_sub);
    TWO(Mul_8u_C1, u8, 1, 0, cv_mul);
    TWO(Mul_8u_C1, u8, 1, 8, cv_mul);
    TWO(Mul_8u_C3, u8, 3, 8, cv_mul);
    TWO(Div_8u_C1, u8, 1, 0, cv_div);
    TWO(Div_8u_C1, u8, 1, 2, cv_div);
    TWO(Div_8u_C4, u8, 4, 0, cv_div);
    TWO(Add_16u_C1, u16, 1, 0, cv_add);
    TWO(Add_16u_C1, u16, 1, 1, cv_add);
    TWO(Sub_16u_C1, u16, 1, 1, cv_sub);
    TWO(Mul_16u_C1, u16, 1, 0, cv_mul);
    TWO(Mul_16u_C1, u16, 1, 16, cv_mul);
    TWO(Div_16u_C1, u16, 1, 0, cv_div);
    TWO(Div_16u_C1, u16, 1, 3, cv_div);
    TWO(Add_16s_C1, s16, 1, 0, cv_add);
    TWO(Add_16s_C1, s16, 1, 1, cv_add);
    TWO(Sub_16s_C1, s16, 1, 0, cv_sub);
    TWO(Mul_16s_C1, s16, 1, 0, cv_mul);
    TWO(Mul_16s_C1, s16, 1, 16, cv_mul);
    TWO(Div_16s_C1, s16, 1, 0, cv_div);
#undef TWO
#define CONSTANT(name, T, channels, sf, peer) constant<T>(#name, channels, sf, W::name, peer)
    CONSTANT(AddC_8u_C1, u8, 1, 0, cv_add_constant);
    CONSTANT(AddC_8u_C3, u8, 3, 0, cv_add_constant);
    CONSTANT(AddC_8u_C4, u8, 4, 0, cv_add_constant);
    CONSTANT(AddC_8u_C1, u8, 1, 1, cv_add_constant);
    CONSTANT(SubC_8u_C3, u8, 3, 0, cv_sub_constant);
    CONSTANT(MulC_8u_C1, u8, 1, 4, cv_mul_constant);
    CONSTANT(MulC_8u_C3, u8, 3, 4, cv_mul_constant);
    CONSTANT(DivC_8u_C1, u8, 1, 0, cv_div_constant);
    CONSTANT(DivC_8u_C3, u8, 3, 0, cv_div_constant);
    CONSTANT(AddC_16u_C1, u16, 1, 0, cv_add_constant);
    CONSTANT(AddC_16u_C1, u16, 1, 1, cv_add_constant);
    CONSTANT(MulC_16u_C1, u16, 1, 4, cv_mul_constant);
    CONSTANT(DivC_16u_C1, u16, 1, 0, cv_div_constant);
    CONSTANT(AddC_16s_C1, s16, 1, 0, cv_add_constant);
    CONSTANT(MulC_16s_C1, s16, 1, 4, cv_mul_constant);
    CONSTANT(DivC_16s_C1, s16, 1, 0, cv_div_constant);
#undef CONSTANT
    in_place<u8>("Add_8u_C1I", 1, W::Add_8u_C1I, W::Add_8u_C1);
    in_place<u16>("Mul_16u_C1I", 1, W::Mul_16u_C1I, W::Mul_16u_C1);

    static u8 pixel[3] = {1, 2, 3};
    bench::add("Add_8u_C1 sf0", "1x1", "orvane", [] { W::Add_8u_C1(pixel, 1, pixel + 1, 1, pixel + 2, 1, 1, 1, 0); });
    bench::add("AddC_8u_C1 sf0", "1x1", "orvane", [] { W::AddC_8u_C1(pixel, 1, 3, pixel + 2, 1, 1, 1, 0); });
    bench::add("Div_8u_C1 sf0", "1x1", "orvane", [] { W::Div_8u_C1(pixel, 1, pixel + 1, 1, pixel + 2, 1, 1, 1, 0); });
    bench::add("Add_8u_C1I sf0", "1x1", "orvane", [] { W::Add_8u_C1I(pixel, 1, pixel + 2, 1, 1, 1, 0); });
    bench::add("Add_8u_C1 sf0", "refused", "orvane",
               [] { W::Add_8u_C1(nullptr, 1, pixel + 1, 1, pixel + 2, 1, 1, 1, 0); });
    return true;
}();

}  // namespace
