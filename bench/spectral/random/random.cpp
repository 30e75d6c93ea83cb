// Gaussian random numbers against OpenCV's generator (ziggurat on a multiply-with-carry stream).
//
// Family: random_numbers.
#include <opencv2/core.hpp>

#include "RandomNumberGenerator.h"
#include "harness.h"

namespace {

const bool registered = [] {
    for (const int n : {64, 4096, 1 << 20}) {
        auto r = std::make_shared<std::vector<double>>(static_cast<std::size_t>(n));
        auto ours = std::make_shared<RandomNumberGenerator>();
        ours->Init(1);
        bench::add("Gaussian_64f", std::to_string(n), "orvane", [=] { ours->GenerateGaussian(n, r->data(), 0, 1); });
        bench::add("Gaussian_64f", std::to_string(n), "opencv", [=] {
            cv::Mat row(1, n, CV_64F, r->data());
            cv::randn(row, 0, 1);
        });
    }
    return true;
}();

}  // namespace
