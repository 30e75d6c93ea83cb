// Thresholding against OpenCV.
#include <opencv2/imgproc.hpp>

#include "image/rows.h"

namespace bench {
namespace {

const float upper[4] = {30, 60, 20, 17};

const auto cv_threshold = [](auto& a, auto& d) { cv::threshold(a, d, 50, 0, cv::THRESH_TRUNC); };
const auto cv_threshold_zero = [](auto& a, auto& d) { cv::threshold(a, d, 50, 0, cv::THRESH_TOZERO_INV); };

const bool registered = [] {
    one("ThresholdGreater_Val_8u_C1R", CV_8UC1, CV_8UC1, AFTER(ThresholdGreater_Val_8u_C1R, u8, 50, 0),
        cv_threshold_zero);
    one("Threshold_GTVal_16u_C1", CV_16UC1, CV_16UC1, AFTER(Threshold_GTVal_16u_C1, u16, 50, 0), cv_threshold_zero);
    one("Threshold_GT_32f_C1", CV_32FC1, CV_32FC1, AFTER(Threshold_GT_32f_C1, float, 50), cv_threshold);
    one("Threshold_GTVal_32f_C1", CV_32FC1, CV_32FC1, AFTER(Threshold_GTVal_32f_C1, float, 50, 0), cv_threshold_zero);
    one("ThresholdGreater_32f_C3R", CV_32FC3, CV_32FC3, AFTER(ThresholdGreater_32f_C3R, float, limits), cv_threshold);
    one("Threshold_LTValGTVal_32f_C1R", CV_32FC1, CV_32FC1, AFTER(Threshold_LTValGTVal_32f_C1R, float, 3, 1, 50, 2),
        cv_threshold);
    one("Threshold_LTValGTVal_32f_C3R", CV_32FC3, CV_32FC3,
        AFTER(Threshold_LTValGTVal_32f_C3R, float, limits, limits, upper, upper), cv_threshold);

    // In place, beside the out-of-place form.
    for (int side : {256, 2048}) {
        auto f = make_source(side, CV_32FC1), g = make(side, CV_32FC1);
        add("Threshold_GT_32f_C1I", square(side), "orvane",
            [=] { W::Threshold_GT_32f_C1I(g->as<float>(), g->step(), side, side, 50); });
        add("Threshold_GT_32f_C1I", square(side), "out-of-place",
            [=] { W::Threshold_GT_32f_C1(f->as<float>(), f->step(), g->as<float>(), g->step(), side, side, 50); });
    }
    static u8 pixel[2] = {1, 2};
    add("ThresholdLess_Val_8u_C1R", "1x1", "orvane",
        [] { W::ThresholdLess_Val_8u_C1R(pixel, 1, pixel + 1, 1, 1, 1, 3, 4); });
    return true;
}();

}  // namespace
}  // namespace bench
