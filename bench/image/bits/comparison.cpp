// Comparison to masks against OpenCV.
#include "image/rows.h"

namespace bench {
namespace {

const auto cv_greater = [](auto& a, auto& b, auto& d) { cv::compare(a, b, d, cv::CMP_GT); };
const auto cv_greater_constant = [](auto& a, auto& d) { cv::compare(a, 3, d, cv::CMP_GT); };
// OpenCV makes a mask per channel; its range test is the closest to one for all of them.
const auto cv_in_range = [](auto& a, auto& d) { cv::inRange(a, cv::Scalar(3, 100, 200, 50), cv::Scalar::all(255), d); };
const auto cv_in_range_images = [above = cv::Mat()](auto& a, auto& b, auto& d) mutable {
    if (above.size() != a.size() || above.type() != a.type()) above = cv::Mat(a.size(), a.type(), cv::Scalar::all(255));
    cv::inRange(a, b, above, d);
};

const bool registered = [] {
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
    static u8 pixel[2] = {1, 2};
    add("CompareLess_8u_C1", "1x1", "orvane", [] { W::CompareLess_8u_C1(pixel, 1, pixel, 1, pixel + 1, 1, 1, 1); });
    return true;
}();

}  // namespace
}  // namespace bench
