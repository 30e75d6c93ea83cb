// Statistics of vectors against OpenCV, VOLK and Eigen, at 64, 4096 and 16 M elements. Integers stay inside the range
// of their type: a search that meets its end stops, and would look faster than it is. Eigen's sums of integers are
// those of the next wider type, as exact ones must be; its float sums are in single precision, as VOLK's are.
//
// Families: statistics.
#include <immintrin.h>
#include <volk/volk.h>

#include <Eigen/Core>

#include "SignalProcessingWrapper.h"
#include "signal/vectors.h"

namespace {

using V = SignalProcessingWrapper;
using u8 = unsigned char;
using u16 = unsigned short;

template <class T> using Array = Eigen::Map<const Eigen::Array<T, Eigen::Dynamic, 1>>;

// 24 random bits of a place.
int noise(int i)
{
    const unsigned word = (static_cast<unsigned>(i) + 1) * 2654435761u;
    return static_cast<int>((word ^ word >> 15) * 2246822519u >> 8);
}

// Loads of both vectors and nothing else.
void limit(const char* a, const char* b, long long bytes)
{
    __m256i sum = _mm256_setzero_si256(), other = sum;
    for (long long i = 0; i < bytes; i += 64) {
        sum = _mm256_or_si256(sum, _mm256_loadu_si256(reinterpret_cast<const __m256i*>(a + i)));
        other = _mm256_or_si256(other, _mm256_loadu_si256(reinterpret_cast<const __m256i*>(a + i + 32)));
        if (b == nullptr) continue;
        sum = _mm256_or_si256(sum, _mm256_loadu_si256(reinterpret_cast<const __m256i*>(b + i)));
        other = _mm256_or_si256(other, _mm256_loadu_si256(reinterpret_cast<const __m256i*>(b + i + 32)));
    }
    benchmark::DoNotOptimize(sum);
    benchmark::DoNotOptimize(other);
}

// Calls get the two vectors and their length, for OpenCV as matrices, for Eigen as arrays.
template <class T, class Ours, class Cv, class Eig, class Volk>
void row(const char* name, int sources, Ours ours, Cv peer_cv, Eig peer_eigen, Volk peer_volk)
{
    for (const int n : bench::kLengths) {
        const auto value = [](int i) {
            if (std::is_floating_point<T>::value) return noise(i) * 0x1p-12;
            return 1.0 + noise(i) % (sizeof(T) == 1 ? 254 : 65534);
        };
        const auto a = bench::vector_of<T>(n, value), b = bench::vector_of<T>(n, value);
        const T *const pa = a->template as<T>(), *const pb = b->template as<T>();
        const std::string size = std::to_string(n);
        bench::add(name, size, "orvane", [=, keep = a, other = b] { ours(pa, pb, n); });
        if constexpr (!std::is_null_pointer<Cv>::value) {
            const cv::Mat ma(1, n, bench::depth<T>, const_cast<T*>(pa)), mb(1, n, bench::depth<T>, const_cast<T*>(pb));
            bench::add(name, size, "opencv", [=] { peer_cv(ma, mb); });
        }
        if constexpr (!std::is_null_pointer<Eig>::value)
            bench::add(name, size, "eigen", [=] { peer_eigen(Array<T>(pa, n), Array<T>(pb, n)); });
        if constexpr (!std::is_null_pointer<Volk>::value)
            bench::add(name, size, "volk", [=] { peer_volk(pa, pb, static_cast<unsigned>(n)); });
        bench::add(name, size, "limit", [=] {
            limit(reinterpret_cast<const char*>(pa), sources == 2 ? reinterpret_cast<const char*>(pb) : nullptr,
                  n * static_cast<long long>(sizeof(T)));
        });
    }
}

double real[2];
float single[2];
std::uint32_t place;
int index_of_extreme;

#define OURS(T, call) [](const T* a, const T* b, int n) { (void)a; (void)b; benchmark::DoNotOptimize(call); }
#define CV(call) [](const cv::Mat& a, const cv::Mat& b) { (void)b; benchmark::DoNotOptimize(call); }
#define EIGEN(call) [](const auto& a, const auto& b) { (void)b; benchmark::DoNotOptimize(call); }
#define VOLK(...) [](auto* a, auto* b, unsigned n) { (void)b; __VA_ARGS__; }

double cv_extremes(const cv::Mat& m, bool with_place)
{
    double low, high;
    int where[2];
    cv::minMaxIdx(m, &low, &high, with_place ? where : nullptr);
    return low;
}
double cv_deviation(const cv::Mat& m)
{
    cv::Scalar mean, deviation;
    cv::meanStdDev(m, mean, deviation);
    return deviation[0];
}

template <class T, class Wide>
void integers(const char* sum_name, bool (*sum)(const T*, int, double*))
{
    row<T>(sum_name, 1, [=](const T* a, const T*, int n) { sum(a, n, real); }, CV(cv::sum(a)[0]),
           EIGEN(a.template cast<Wide>().sum()), nullptr);
}

template <class T>
void extremes(const std::string& type, bool (*least)(const T*, int, T*), bool (*both)(const T*, int, T*, T*),
              bool (*first)(const T*, int, T*, int*))
{
    static T values[2];
    const std::string names[] = {"Min_" + type, "MinMax_" + type, "MinIndx_" + type};
    row<T>(names[0].c_str(), 1, [=](const T* a, const T*, int n) { least(a, n, values); }, CV(cv_extremes(a, false)),
           EIGEN(a.minCoeff()), nullptr);
    row<T>(names[1].c_str(), 1, [=](const T* a, const T*, int n) { both(a, n, values, values + 1); },
           CV(cv_extremes(a, false)), EIGEN(a.minCoeff() + a.maxCoeff()), nullptr);
    const auto ours = [=](const T* a, const T*, int n) { first(a, n, values, &index_of_extreme); };
    const auto eigen = [](const auto& a, const auto&) {
        int where;
        benchmark::DoNotOptimize(a.minCoeff(&where));
        benchmark::DoNotOptimize(where);
    };
    if constexpr (std::is_same<T, float>::value) {
        row<T>(names[2].c_str(), 1, ours, CV(cv_extremes(a, true)), eigen, VOLK(volk_32f_index_min_32u(&place, a, n)));
    } else {
        row<T>(names[2].c_str(), 1, ours, CV(cv_extremes(a, true)), eigen, nullptr);
    }
}

const bool registered = [] {
    integers<u8, int>("Sum_8u", V::Sum_8u);
    integers<u16, long long>("Sum_16u", V::Sum_16u);
    integers<int, long long>("Sum_32s", V::Sum_32s);
    row<float>("Sum_32f", 1, OURS(float, V::Sum_32f(a, n, real, true)), CV(cv::sum(a)[0]), EIGEN(a.sum()),
               VOLK(volk_32f_accumulator_s32f(single, a, n)));
    row<double>("Sum_64f", 1, OURS(double, V::Sum_64f(a, n, real)), CV(cv::sum(a)[0]), EIGEN(a.sum()), nullptr);
    row<float>("MeanStdDev_32f", 1, OURS(float, V::MeanStdDev_32f(a, n, real, real + 1, true)), CV(cv_deviation(a)),
               nullptr, VOLK(volk_32f_stddev_and_mean_32f_x2(single, single + 1, a, n)));
    row<float>("DotProd_32f", 2, OURS(float, V::DotProd_32f(a, b, n, real)), CV(a.dot(b)), EIGEN((a * b).sum()),
               VOLK(volk_32f_x2_dot_prod_32f(single, a, b, n)));
    row<float>("DotProd_32f, VOLK's AVX2", 2, OURS(float, V::DotProd_32f(a, b, n, real)), nullptr, nullptr,
               VOLK(volk_32f_x2_dot_prod_32f_manual(single, a, b, n, "u_avx2_fma")));
    row<double>("DotProd_64f", 2, OURS(double, V::DotProd_64f(a, b, n, real)), CV(a.dot(b)), EIGEN((a * b).sum()),
                nullptr);
    extremes<u8>("8u", V::Min_8u, V::MinMax_8u, V::MinIndx_8u);
    extremes<u16>("16u", V::Min_16u, V::MinMax_16u, V::MinIndx_16u);
    extremes<int>("32s", V::Min_32s, V::MinMax_32s, V::MinIndx_32s);
    extremes<float>("32f", V::Min_32f, V::MinMax_32f, V::MinIndx_32f);
    extremes<double>("64f", V::Min_64f, V::MinMax_64f, V::MinIndx_64f);
    return true;
}();

}  // namespace
