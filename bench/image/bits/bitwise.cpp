// Bitwise operations and shifts against OpenCV. It has no shifts: its columns there are the multiplication by a power
// of two that gives the same.
#include "image/rows.h"

namespace bench {
namespace {

const unsigned counts[4] = {1, 3, 2, 5};

const auto cv_and = [](auto& a, auto& b, auto& d) { cv::bitwise_and(a, b, d); };
const auto cv_and_constant = [](auto& a, auto& d) { cv::bitwise_and(a, cv::Scalar(3, 100, 200, 50), d); };
const auto cv_shift_left = [](auto& a, auto& d) { cv::multiply(a, 8, d); };
const auto cv_shift_right = [](auto& a, auto& d) { cv::multiply(a, 0.125, d); };

const bool registered = [] {
    two("And_8u_C1", CV_8UC1, CV_8UC1, TWO(And_8u_C1, u8, u8), cv_and);
    two("Xor_8u_C3", CV_8UC3, CV_8UC3, TWO(Xor_8u_C3, u8, u8), cv_and);
    two("Or_16u_C1", CV_16UC1, CV_16UC1, TWO(Or_16u_C1, u16, u16), cv_and);
    two("And_32s_C1", CV_32SC1, CV_32SC1, TWO(And_32s_C1, int, int), cv_and);
    one("AndC_8u_C1", CV_8UC1, CV_8UC1, WITH(AndC_8u_C1, u8, u8, 100), cv_and_constant);
    one("AndC_8u_C3", CV_8UC3, CV_8UC3, WITH(AndC_8u_C3, u8, u8, values), cv_and_constant);
    one("AndC_8u_C4", CV_8UC4, CV_8UC4, WITH(AndC_8u_C4, u8, u8, values), cv_and_constant);
    one("Not_8u_C1", CV_8UC1, CV_8UC1,
        [](const Image& a, const Image& d, int n) { W::Not_8u_C1(a.as<u8>(), a.step(), d.as<u8>(), d.step(), n, n); },
        [](auto& a, auto& d) { cv::bitwise_not(a, d); });
    one("LShiftC_8u_C1R", CV_8UC1, CV_8UC1, WITH(LShiftC_8u_C1R, u8, u8, 3), cv_shift_left);
    one("RShiftC_8u_C1R", CV_8UC1, CV_8UC1, WITH(RShiftC_8u_C1R, u8, u8, 3), cv_shift_right);
    one("LShiftC_8u_C3R", CV_8UC3, CV_8UC3, WITH(LShiftC_8u_C3R, u8, u8, counts), cv_shift_left);
    one("RShiftC_8u_C3R", CV_8UC3, CV_8UC3, WITH(RShiftC_8u_C3R, u8, u8, counts), cv_shift_right);
    one("RShiftC_8u_C4R", CV_8UC4, CV_8UC4, WITH(RShiftC_8u_C4R, u8, u8, counts), cv_shift_right);
    one("LShiftC_16u_C1R", CV_16UC1, CV_16UC1, WITH(LShiftC_16u_C1R, u16, u16, 3), cv_shift_left);
    one("RShiftC_16s_C1R", CV_16SC1, CV_16SC1, WITH(RShiftC_16s_C1R, s16, s16, 3), cv_shift_right);
    one("RShiftC_32s_C1R", CV_32SC1, CV_32SC1, WITH(RShiftC_32s_C1R, int, int, 3), cv_shift_right);

    // In place, beside the out-of-place form.
    for (int side : {256, 2048}) {
        auto a = make(side, CV_8UC1), e = make(side, CV_8UC1), d = make(side, CV_8UC1);
        add("And_8u_C1I", square(side), "orvane",
            [=] { W::And_8u_C1I(a->as<u8>(), a->step(), d->as<u8>(), d->step(), side, side); });
        add("And_8u_C1I", square(side), "out-of-place", [=] {
            W::And_8u_C1(a->as<u8>(), a->step(), e->as<u8>(), e->step(), d->as<u8>(), d->step(), side, side);
        });
    }
    static u8 pixel[2] = {1, 2};
    add("And_8u_C1", "1x1", "orvane", [] { W::And_8u_C1(pixel, 1, pixel, 1, pixel + 1, 1, 1, 1); });
    return true;
}();

}  // namespace
}  // namespace bench
