// Image statistics against OpenCV. Integer images stay inside the range of their type: a search that meets its
// end stops, and would look faster than it is.
//
// Families: sums, float_sums, extremes, histogram.
#include <cmath>
#include <cstring>
#include <opencv2/core.hpp>
#include <opencv2/imgproc.hpp>
#include <random>

#include "ImageProcessingWrapper.h"
#include "harness.h"

namespace {

using bench::Image;
using W = ImageProcessingWrapper;
using u8 = unsigned char;
using u16 = unsigned short;
using s16 = short;

template <class T> constexpr int depth = std::is_floating_point<T>::value ? CV_32F
                                         : sizeof(T) == 1                 ? CV_8U
                                         : std::is_signed<T>::value       ? CV_16S
                                                                          : CV_16U;

// Noise, a constant, or floats made of 8-bit or 16-bit data, of those scaled, and of no such kind.
enum class Content { noise, constant, bytes, words, unit, wild };

template <class T>
T value_of(Content content, std::mt19937& g)
{
    std::normal_distribution<double> normal;
    const unsigned word = g();
    switch (content) {
        case Content::constant: return static_cast<T>(100);
        case Content::bytes: return static_cast<T>(word % 256);
        case Content::words: return static_cast<T>(word % 65536);
        case Content::unit: return static_cast<T>(static_cast<float>(word % 256) / 255.f);
        case Content::wild: return static_cast<T>(std::exp(10 * normal(g)));
        default:
            return static_cast<T>(sizeof(T) == 1
                                      ? 1 + word % 254
                                      : static_cast<int>(1 + word % 65534) - (std::is_signed<T>::value ? 32768 : 0));
    }
}

template <class T>
std::shared_ptr<Image> make_image(int side, int channels, Content content)
{
    return std::make_shared<Image>(side, channels * static_cast<int>(sizeof(T)), [content](const Image& image) {
        std::mt19937 g(2);
        std::vector<T> values(50021);
        for (T& value : values) value = value_of<T>(content, g);
        std::size_t i = 0;
        for (int y = 0; y < image.height(); ++y) {
            T* const row = image.row<T>(y);
            for (int x = 0; x < image.row_bytes() / static_cast<int>(sizeof(T)); ++x) {
                row[x] = values[i];
                if (++i == values.size()) i = 0;
            }
        }
    });
}

template <class T, class Ours, class Peer>
void statistic(const std::string& name, int channels, Content content, Ours ours, Peer peer)
{
    for (int side : bench::kSides) {
        const std::shared_ptr<Image> a = make_image<T>(side, channels, content);
        bench::add(name, bench::square(side), "orvane", [=] { ours(a->template as<T>(), a->step(), side); });
        cv::Mat m(side, side, CV_MAKETYPE(depth<T>, channels), a->template as<void>(),
                  static_cast<std::size_t>(a->step()));
        bench::add(name, bench::square(side), "opencv", [=] { peer(m); });
        bench::add(name, bench::square(side), "limit", [=] { bench::limit({a.get()}, nullptr); });
    }
}

const auto cv_sum = [](const cv::Mat& m) { benchmark::DoNotOptimize(cv::sum(m)); };
const auto cv_mean = [](const cv::Mat& m) { benchmark::DoNotOptimize(cv::mean(m)); };
const auto cv_deviation = [](const cv::Mat& m) {
    cv::Scalar mean, deviation;
    cv::meanStdDev(m, mean, deviation);
    benchmark::DoNotOptimize(mean);
};
const auto cv_min_max = [](const cv::Mat& m) {
    double low, high;
    cv::minMaxIdx(m.reshape(1), &low, &high);
    benchmark::DoNotOptimize(low);
};
const auto cv_position = [](const cv::Mat& m) {
    double low;
    cv::Point where;
    cv::minMaxLoc(m, &low, nullptr, &where);
    benchmark::DoNotOptimize(where);
};

template <class T>
void histogram(const std::string& name, Content content, int levels, int upper)
{
    auto bins = std::make_shared<std::vector<int>>(levels), at = std::make_shared<std::vector<int>>(levels);
    statistic<T>(
        name, 1, content,
        [=](const T* p, int step, int side) {
            if constexpr (sizeof(T) == 1)
                W::HistogramEven_8u_C1(p, step, side, side, bins->data(), at->data(), levels, 0, upper);
            else W::HistogramEven_16u_C1(p, step, side, side, bins->data(), at->data(), levels, 0, upper);
        },
        [=](const cv::Mat& m) {
            const int size = levels - 1, channel = 0;
            const float range[] = {0, static_cast<float>(upper)};
            const float* ranges = range;
            cv::Mat result;
            cv::calcHist(&m, 1, &channel, cv::Mat(), result, 1, &size, &ranges);
        });
}

const bool registered = [] {
    static double real[4], other[4];
#define REALS(name, T, channels, peer) \
    statistic<T>( \
        #name, channels, Content::noise, [](const T* p, int step, int side) { W::name(p, step, side, side, real); }, \
        peer)
    REALS(Sum_8u_C1R, u8, 1, cv_sum);
    REALS(Sum_8u_C3R, u8, 3, cv_sum);
    REALS(Sum_8u_C4R, u8, 4, cv_sum);
    REALS(Sum_16u_C1R, u16, 1, cv_sum);
    REALS(Sum_16s_C1R, s16, 1, cv_sum);
    REALS(Mean_8u_C1R, u8, 1, cv_mean);
#undef REALS
#define FLOATS(name, channels, content)                                                              \
    statistic<float>(#name " " #content, channels, Content::content,                                 \
                     [](const float* p, int step, int side) { W::name(p, step, side, side, real, true); }, cv_sum)
    FLOATS(Sum_32f_C1R, 1, bytes);
    FLOATS(Sum_32f_C1R, 1, words);
    FLOATS(Sum_32f_C1R, 1, unit);
    FLOATS(Sum_32f_C1R, 1, wild);
    FLOATS(Sum_32f_C3R, 3, bytes);
    FLOATS(Sum_32f_C3R, 3, unit);
    FLOATS(Sum_32f_C3R, 3, wild);
#undef FLOATS
#define DEVIATION(name, T) \
    statistic<T>( \
        #name, 1, Content::noise, [](const T* p, int step, int side) { W::name(p, step, side, side, real, other); }, \
        cv_deviation)
    DEVIATION(Mean_StdDev_8u_C1R, u8);
    DEVIATION(Mean_StdDev_16u_C1R, u16);
#undef DEVIATION
#define EXTREME(name, T, channels) \
    statistic<T>( \
        #name, channels, Content::noise, \
        [](const T* p, int step, int side) { \
            static T v[4]; \
            W::name(p, step, side, side, v); \
        }, \
        cv_min_max)
    EXTREME(Min_8u_C1, u8, 1);
    EXTREME(Min_8u_C3, u8, 3);
    EXTREME(Max_8u_C4, u8, 4);
    EXTREME(Max_16u_C1, u16, 1);
    EXTREME(Min_16s_C1, s16, 1);
    EXTREME(Min_32f_C1, float, 1);
#undef EXTREME
#define BOTH(name, T, channels) \
    statistic<T>( \
        #name, channels, Content::noise, \
        [](const T* p, int step, int side) { \
            static T v[4], w[4]; \
            W::name(p, step, side, side, v, w); \
        }, \
        cv_min_max)
    BOTH(MinMax_8u_C1, u8, 1);
    BOTH(MinMax_8u_C3, u8, 3);
    BOTH(MinMax_16u_C1, u16, 1);
    BOTH(MinMax_32f_C1, float, 1);
    BOTH(MinMax_32f_C3, float, 3);
#undef BOTH
#define PLACE(name, T) \
    statistic<T>( \
        #name, 1, Content::noise, \
        [](const T* p, int step, int side) { \
            T v; \
            int x, y; \
            W::name(p, step, side, side, &v, &x, &y); \
        }, \
        cv_position)
    PLACE(MinIndx_8u_C1R, u8);
    PLACE(MinIndx_16u_C1R, u16);
#undef PLACE
    histogram<u8>("HistogramEven_8u_C1 noise", Content::noise, 257, 256);
    histogram<u8>("HistogramEven_8u_C1 constant", Content::constant, 257, 256);
    histogram<u16>("HistogramEven_16u_C1 noise 256 bins", Content::noise, 257, 65536);
    histogram<u16>("HistogramEven_16u_C1 constant 256 bins", Content::constant, 257, 65536);
    histogram<u16>("HistogramEven_16u_C1 noise 65536 bins", Content::noise, 65537, 65536);
    histogram<u16>("HistogramEven_16u_C1 constant 65536 bins", Content::constant, 65537, 65536);
    return true;
}();

}  // namespace
