// Bitwise operations, shifts, comparison to masks, thresholding and borders against OpenCV. It has no
// shifts: its columns there are the multiplication by a power of two that gives the same.
#include <opencv2/core.hpp>
#include <opencv2/imgproc.hpp>

#include "ImageProcessingWrapper.h"
#include "harness.h"

namespace {

using bench::Image;
using W = ImageProcessingWrapper;
using u8 = unsigned char;
using u16 = unsigned short;
using s16 = short;

cv::Mat mat(const Image& image, int type)
{
    return cv::Mat(image.height(), image.row_bytes() / static_cast<int>(CV_ELEM_SIZE(type)), type, image.as<void>(),
                   static_cast<std::size_t>(image.step()));
}

// Call overhead, L2-resident, beyond it. Pixels of several bytes need fewer for that.
std::initializer_list<int> sides(int type)
{
    static const std::initializer_list<int> small = {16, 256, 4096}, large = {16, 256, 2048};
    return CV_ELEM_SIZE(type) == 1 ? small : large;
}

std::shared_ptr<Image> make(int side, int type) { return std::make_shared<Image>(side, static_cast<int>(CV_ELEM_SIZE(type))); }

// Float images are filled with numbers, for OpenCV computes with them.
std::shared_ptr<Image> make_source(int side, int type)
{
    if (CV_MAT_DEPTH(type) != CV_32F) return make(side, type);
    return std::make_shared<Image>(side, static_cast<int>(CV_ELEM_SIZE(type)), [type](const Image& image) {
        cv::Mat m = mat(image, type);
        cv::randu(m, cv::Scalar::all(-100), cv::Scalar::all(100));
    });
}

template <class Ours, class Peer>
void two(const char* name, int from, int to, Ours ours, Peer peer)
{
    for (int side : sides(from)) {
        auto a = make_source(side, from), b = make_source(side, from), d = make(side, to);
        bench::add(name, bench::square(side), "orvane", [=] { ours(*a, *b, *d, side); });
        cv::Mat ma = mat(*a, from), mb = mat(*b, from), md = mat(*d, to);
        bench::add(name, bench::square(side), "opencv", [=]() mutable { peer(ma, mb, md); });
        bench::add(name, bench::square(side), "limit", [=] { bench::limit({a.get(), b.get()}, d.get()); });
    }
}

template <class Ours, class Peer>
void one(const char* name, int from, int to, Ours ours, Peer peer)
{
    for (int side : sides(from)) {
        auto a = make_source(side, from), d = make(side, to);
        bench::add(name, bench::square(side), "orvane", [=] { ours(*a, *d, side); });
        cv::Mat ma = mat(*a, from), md = mat(*d, to);
        bench::add(name, bench::square(side), "opencv", [=]() mutable { peer(ma, md); });
        bench::add(name, bench::square(side), "limit", [=] { bench::limit({a.get()}, d.get()); });
    }
}

// A source with `border` pixels less on every side.
template <class Ours, class Peer>
void bordered(const char* name, int type, int border, Ours ours, Peer peer)
{
    for (int side : sides(type)) {
        const int inner = side - 2 * border;
        if (inner < 1) continue;
        auto a = make(inner, type), d = make(side, type);
        const std::string operation = std::string(name) + " by " + std::to_string(border);
        bench::add(operation, bench::square(side), "orvane", [=] { ours(*a, *d, inner, side, border); });
        cv::Mat ma = mat(*a, type), md = mat(*d, type);
        bench::add(operation, bench::square(side), "opencv", [=]() mutable { peer(ma, md, border); });
        auto whole = make(side, type);
        bench::add(operation, bench::square(side), "limit", [=] { bench::limit({whole.get()}, d.get()); });
    }
}

#define TWO(method, T, D) [](const Image& a, const Image& b, const Image& d, int n) { W::method(a.as<T>(), a.step(), b.as<T>(), b.step(), d.as<D>(), d.step(), n, n); }
#define WITH(method, T, D, ...) [](const Image& a, const Image& d, int n) { W::method(a.as<T>(), a.step(), __VA_ARGS__, d.as<D>(), d.step(), n, n); }
#define AFTER(method, T, ...) [](const Image& a, const Image& d, int n) { W::method(a.as<T>(), a.step(), d.as<T>(), d.step(), n, n, __VA_ARGS__); }
#define IN_PLACE(method, T, ...) [](const Image&, const Image& d, int n) { W::method(__VA_ARGS__, d.as<T>(), d.step(), n, n); }

const u8 values[4] = {3, 100, 200, 50};
const float limits[4] = {3, 50, -20, 7}, upper[4] = {30, 60, 20, 17};
const unsigned counts[4] = {1, 3, 2, 5};

const auto cv_and = [](auto& a, auto& b, auto& d) { cv::bitwise_and(a, b, d); };
const auto cv_and_constant = [](auto& a, auto& d) { cv::bitwise_and(a, cv::Scalar(3, 100, 200, 50), d); };
const auto cv_shift_left = [](auto& a, auto& d) { cv::multiply(a, 8, d); };
const auto cv_shift_right = [](auto& a, auto& d) { cv::multiply(a, 0.125, d); };
const auto cv_greater = [](auto& a, auto& b, auto& d) { cv::compare(a, b, d, cv::CMP_GT); };
const auto cv_greater_constant = [](auto& a, auto& d) { cv::compare(a, 3, d, cv::CMP_GT); };
// OpenCV makes a mask per channel; its range test is the closest to one for all of them.
const auto cv_in_range = [](auto& a, auto& d) { cv::inRange(a, cv::Scalar(3, 100, 200, 50), cv::Scalar::all(255), d); };
const auto cv_in_range_images = [above = cv::Mat()](auto& a, auto& b, auto& d) mutable {
    if (above.size() != a.size() || above.type() != a.type()) above = cv::Mat(a.size(), a.type(), cv::Scalar::all(255));
    cv::inRange(a, b, above, d);
};
const auto cv_threshold = [](auto& a, auto& d) { cv::threshold(a, d, 50, 0, cv::THRESH_TRUNC); };
const auto cv_threshold_zero = [](auto& a, auto& d) { cv::threshold(a, d, 50, 0, cv::THRESH_TOZERO_INV); };

void register_pixels()
{
    two("And_8u_C1", CV_8UC1, CV_8UC1, TWO(And_8u_C1, u8, u8), cv_and);
    two("Xor_8u_C3", CV_8UC3, CV_8UC3, TWO(Xor_8u_C3, u8, u8), cv_and);
    two("Or_16u_C1", CV_16UC1, CV_16UC1, TWO(Or_16u_C1, u16, u16), cv_and);
    two("And_32s_C1", CV_32SC1, CV_32SC1, TWO(And_32s_C1, int, int), cv_and);
    one("AndC_8u_C1", CV_8UC1, CV_8UC1, WITH(AndC_8u_C1, u8, u8, 100), cv_and_constant);
    one("AndC_8u_C3", CV_8UC3, CV_8UC3, WITH(AndC_8u_C3, u8, u8, values), cv_and_constant);
    one("AndC_8u_C4", CV_8UC4, CV_8UC4, WITH(AndC_8u_C4, u8, u8, values), cv_and_constant);
    one("Not_8u_C1", CV_8UC1, CV_8UC1, [](const Image& a, const Image& d, int n) { W::Not_8u_C1(a.as<u8>(), a.step(), d.as<u8>(), d.step(), n, n); },
        [](auto& a, auto& d) { cv::bitwise_not(a, d); });
    one("LShiftC_8u_C1R", CV_8UC1, CV_8UC1, WITH(LShiftC_8u_C1R, u8, u8, 3), cv_shift_left);
    one("RShiftC_8u_C1R", CV_8UC1, CV_8UC1, WITH(RShiftC_8u_C1R, u8, u8, 3), cv_shift_right);
    one("LShiftC_8u_C3R", CV_8UC3, CV_8UC3, WITH(LShiftC_8u_C3R, u8, u8, counts), cv_shift_left);
    one("RShiftC_8u_C3R", CV_8UC3, CV_8UC3, WITH(RShiftC_8u_C3R, u8, u8, counts), cv_shift_right);
    one("RShiftC_8u_C4R", CV_8UC4, CV_8UC4, WITH(RShiftC_8u_C4R, u8, u8, counts), cv_shift_right);
    one("LShiftC_16u_C1R", CV_16UC1, CV_16UC1, WITH(LShiftC_16u_C1R, u16, u16, 3), cv_shift_left);
    one("RShiftC_16s_C1R", CV_16SC1, CV_16SC1, WITH(RShiftC_16s_C1R, s16, s16, 3), cv_shift_right);
    one("RShiftC_32s_C1R", CV_32SC1, CV_32SC1, WITH(RShiftC_32s_C1R, int, int, 3), cv_shift_right);

    two("CompareGreater_8u_C1", CV_8UC1, CV_8UC1, TWO(CompareGreater_8u_C1, u8, u8), cv_greater);
    two("CompareGreater_16u_C1", CV_16UC1, CV_8UC1, TWO(CompareGreater_16u_C1, u16, u8), cv_greater);
    two("CompareGreater_16s_C1", CV_16SC1, CV_8UC1, TWO(CompareGreater_16s_C1, s16, u8), cv_greater);
    two("CompareGreater_32f_C1", CV_32FC1, CV_8UC1, TWO(CompareGreater_32f_C1, float, u8), cv_greater);
    two("CompareLess_8u_C3", CV_8UC3, CV_8UC1, TWO(CompareLess_8u_C3, u8, u8), cv_in_range_images);
    two("CompareGreaterEq_8u_C3", CV_8UC3, CV_8UC1, TWO(CompareGreaterEq_8u_C3, u8, u8), cv_in_range_images);
    two("CompareLess_8u_C4", CV_8UC4, CV_8UC1, TWO(CompareLess_8u_C4, u8, u8), cv_in_range_images);
    two("CompareEq_32f_C3", CV_32FC3, CV_8UC1, TWO(CompareEq_32f_C3, float, u8), cv_in_range_images);
    one("CompareCGreater_8u_C1R", CV_8UC1, CV_8UC1, WITH(CompareCGreater_8u_C1R, u8, u8, 3), cv_greater_constant);
    one("CompareCGreater_16u_C1R", CV_16UC1, CV_8UC1, WITH(CompareCGreater_16u_C1R, u16, u8, 3), cv_greater_constant);
    one("CompareCGreater_16s_C1R", CV_16SC1, CV_8UC1, WITH(CompareCGreater_16s_C1R, s16, u8, 3), cv_greater_constant);
    one("CompareCGreater_32f_C1R", CV_32FC1, CV_8UC1, WITH(CompareCGreater_32f_C1R, float, u8, 3), cv_greater_constant);
    one("CompareCGreaterEq_8u_C3R", CV_8UC3, CV_8UC1, WITH(CompareCGreaterEq_8u_C3R, u8, u8, values), cv_in_range);
    one("CompareCGreater_8u_C3R", CV_8UC3, CV_8UC1, WITH(CompareCGreater_8u_C3R, u8, u8, values), cv_in_range);
    one("CompareCGreaterEq_8u_C4R", CV_8UC4, CV_8UC1, WITH(CompareCGreaterEq_8u_C4R, u8, u8, values), cv_in_range);
    one("CompareCGreater_32f_C3R", CV_32FC3, CV_8UC1, WITH(CompareCGreater_32f_C3R, float, u8, limits), cv_in_range);

    one("ThresholdGreater_Val_8u_C1R", CV_8UC1, CV_8UC1, AFTER(ThresholdGreater_Val_8u_C1R, u8, 50, 0), cv_threshold_zero);
    one("Threshold_GTVal_16u_C1", CV_16UC1, CV_16UC1, AFTER(Threshold_GTVal_16u_C1, u16, 50, 0), cv_threshold_zero);
    one("Threshold_GT_32f_C1", CV_32FC1, CV_32FC1, AFTER(Threshold_GT_32f_C1, float, 50), cv_threshold);
    one("Threshold_GTVal_32f_C1", CV_32FC1, CV_32FC1, AFTER(Threshold_GTVal_32f_C1, float, 50, 0), cv_threshold_zero);
    one("ThresholdGreater_32f_C3R", CV_32FC3, CV_32FC3, AFTER(ThresholdGreater_32f_C3R, float, limits), cv_threshold);
    one("Threshold_LTValGTVal_32f_C1R", CV_32FC1, CV_32FC1, AFTER(Threshold_LTValGTVal_32f_C1R, float, 3, 1, 50, 2), cv_threshold);
    one("Threshold_LTValGTVal_32f_C3R", CV_32FC3, CV_32FC3, AFTER(Threshold_LTValGTVal_32f_C3R, float, limits, limits, upper, upper), cv_threshold);
}

void register_borders(const char* layout, int type, void (*constant)(const Image&, const Image&, int, int, int),
                      void (*replicate)(const Image&, const Image&, int, int, int))
{
    for (const int border : {1, 8}) {
        bordered((std::string("CopyConstBorder_") + layout).c_str(), type, border, constant, [](cv::Mat& a, cv::Mat& d, int b) {
            cv::copyMakeBorder(a, d, b, b, b, b, cv::BORDER_CONSTANT, cv::Scalar(3, 100, 200, 50));
        });
        bordered((std::string("CopyReplicateBorder_") + layout).c_str(), type, border, replicate,
                 [](cv::Mat& a, cv::Mat& d, int b) { cv::copyMakeBorder(a, d, b, b, b, b, cv::BORDER_REPLICATE); });
    }
}

const bool registered = [] {
    register_pixels();
#define BORDERS(layout, type, T, ...)                                                                                                   \
    register_borders(#layout, type,                                                                                                     \
        [](const Image& a, const Image& d, int inner, int side, int b) {                                                                \
            W::CopyConstBorder_##layout(a.as<T>(), a.step(), inner, inner, d.as<T>(), d.step(), side, side, b, b, __VA_ARGS__);         \
        },                                                                                                                              \
        [](const Image& a, const Image& d, int inner, int side, int b) {                                                                \
            W::CopyReplicateBorder_##layout(a.as<T>(), a.step(), inner, inner, d.as<T>(), d.step(), side, side, b, b);                  \
        })
    BORDERS(8u_C1, CV_8UC1, u8, 3);
    BORDERS(8u_C3, CV_8UC3, u8, values);
    BORDERS(8u_C4, CV_8UC4, u8, values);
    BORDERS(16u_C1, CV_16UC1, u16, 3);
    BORDERS(32f_C1, CV_32FC1, float, 3);
    BORDERS(32f_C3, CV_32FC3, float, limits);
#undef BORDERS

    // In place, beside the out-of-place form.
    for (int side : {256, 2048}) {
        auto a = make(side, CV_8UC1), e = make(side, CV_8UC1), d = make(side, CV_8UC1);
        auto f = make_source(side, CV_32FC1), g = make(side, CV_32FC1);
        bench::add("And_8u_C1I", bench::square(side), "orvane", [=] { W::And_8u_C1I(a->as<u8>(), a->step(), d->as<u8>(), d->step(), side, side); });
        bench::add("And_8u_C1I", bench::square(side), "out-of-place",
                   [=] { W::And_8u_C1(a->as<u8>(), a->step(), e->as<u8>(), e->step(), d->as<u8>(), d->step(), side, side); });
        bench::add("Threshold_GT_32f_C1I", bench::square(side), "orvane", [=] { W::Threshold_GT_32f_C1I(g->as<float>(), g->step(), side, side, 50); });
        bench::add("Threshold_GT_32f_C1I", bench::square(side), "out-of-place",
                   [=] { W::Threshold_GT_32f_C1(f->as<float>(), f->step(), g->as<float>(), g->step(), side, side, 50); });
        bench::add("CopyReplicateBorder_32f_C1I by 8", bench::square(side), "orvane",
                   [=] { W::CopyReplicateBorder_32f_C1I(g->as<float>(), g->step(), side - 16, side - 16, side, side, 8, 8); });
        bench::add("CopyReplicateBorder_32f_C1I by 8", bench::square(side), "out-of-place", [=] {
            W::CopyReplicateBorder_32f_C1(f->as<float>(), f->step(), side - 16, side - 16, g->as<float>(), g->step(), side, side, 8, 8);
        });
    }
    static u8 pixel[2] = {1, 2};
    bench::add("And_8u_C1", "1x1", "orvane", [] { W::And_8u_C1(pixel, 1, pixel, 1, pixel + 1, 1, 1, 1); });
    bench::add("CompareLess_8u_C1", "1x1", "orvane", [] { W::CompareLess_8u_C1(pixel, 1, pixel, 1, pixel + 1, 1, 1, 1); });
    bench::add("ThresholdLess_Val_8u_C1R", "1x1", "orvane", [] { W::ThresholdLess_Val_8u_C1R(pixel, 1, pixel + 1, 1, 1, 1, 3, 4); });
    return true;
}();

}  // namespace
