// Thresholds of vectors against OpenCV, Eigen and loops that the compiler makes vectors of, at 64, 4096 and
// 16 M elements.
//
// Families: thresholds.
#include <immintrin.h>

#include <Eigen/Core>
#include <opencv2/imgproc.hpp>

#include "SignalProcessingWrapper.h"
#include "signal/vectors.h"

namespace {

using V = SignalProcessingWrapper;
using u8 = unsigned char;
using u16 = unsigned short;

template <class T> using Array = Eigen::Map<Eigen::Array<T, Eigen::Dynamic, 1>>;

void limit(const char* a, char* d, long long bytes)
{
    for (long long i = 0; i < bytes; i += 32) {
        const __m256i v = _mm256_loadu_si256(reinterpret_cast<const __m256i*>(a + i));
        _mm256_storeu_si256(reinterpret_cast<__m256i*>(d + i), v);
    }
}

// The peers' calls get T's names of source, destination and limits.
template <class T, class Ours, class Cv, class Eig, class Loop>
void row(const char* name, Ours ours, Cv peer_cv, Eig peer_eigen, Loop peer_loop)
{
    for (const int n : bench::kLengths) {
        const auto a = bench::vector<T>(n), d = bench::vector<T>(n);
        T *const pa = a->template as<T>(), *const pd = d->template as<T>();
        const std::string size = std::to_string(n);
        bench::add(name, size, "orvane", [=, keep = a, other = d] { ours(pa, pd, n); });
        if constexpr (!std::is_null_pointer<Cv>::value) {
            const cv::Mat ma(1, n, bench::depth<T>, pa);
            cv::Mat md(1, n, bench::depth<T>, pd);
            bench::add(name, size, "opencv", [=]() mutable { peer_cv(ma, md); });
        }
        if constexpr (!std::is_null_pointer<Eig>::value) {
            bench::add(name, size, "eigen", [=] {
                Array<T> from(pa, n), to(pd, n);
                peer_eigen(from, to);
            });
        }
        bench::add(name, size, "loop", [=] {
            for (int i = 0; i < n; ++i) pd[i] = peer_loop(pa[i]);
            benchmark::ClobberMemory();
        });
        bench::add(name, size, "limit", [=] {
            limit(reinterpret_cast<const char*>(pa), reinterpret_cast<char*>(pd),
                  n * static_cast<long long>(sizeof(T)));
        });
    }
}

#define OURS(T, call) [](const T* a, T* d, int n) { V::call; }
#define CV(kind) [](const cv::Mat& a, cv::Mat& d) { cv::threshold(a, d, 100, 50, kind); }
#define EIGEN(expression) [](auto& a, auto& d) { d = expression; }
#define LOOP(T, expression) [](T x) { return static_cast<T>(expression); }

// All types: a limit from above, a value below a threshold, and both.
#define THRESHOLDS(type, T, cv_limit)                                                                          \
    row<T>("Threshold_GT_" #type, OURS(T, Threshold_GT_##type(a, d, n, 100)), cv_limit, EIGEN(a.min(T(100))),  \
           LOOP(T, x > 100 ? 100 : x));                                                                        \
    row<T>("Threshold_LTVal_" #type, OURS(T, Threshold_LTVal_##type(a, d, n, 100, 50)), nullptr,               \
           EIGEN((a < T(100)).select(T(50), a)), LOOP(T, x < 100 ? 50 : x));                                   \
    row<T>("Threshold_LTValGTVal_" #type, OURS(T, Threshold_LTValGTVal_##type(a, d, n, 50, 10, 100, 90)),      \
           nullptr, EIGEN((a > T(100)).select(T(90), (a < T(50)).select(T(10), a))),                           \
           LOOP(T, x > 100 ? 90 : x < 50 ? 10 : x));

const bool registered = [] {
    THRESHOLDS(8u, u8, CV(cv::THRESH_TRUNC))
    THRESHOLDS(16u, u16, CV(cv::THRESH_TRUNC))
    THRESHOLDS(32s, int, nullptr)
    THRESHOLDS(32f, float, CV(cv::THRESH_TRUNC))
    THRESHOLDS(64f, double, CV(cv::THRESH_TRUNC))
    return true;
}();

}  // namespace
