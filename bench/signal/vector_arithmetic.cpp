// Vectors against OpenCV, VOLK and Eigen, at 64, 4096 and 16 M elements.
//
// Families: float_vectors, integer_vectors, spectra. Those of vector_moves are moves of the C library.
#include <immintrin.h>
#include <volk/volk.h>

#include <Eigen/Core>
#include <opencv2/core.hpp>

#include "SignalProcessingWrapper.h"
#include "harness.h"
#include "signal/vectors.h"

namespace {

using bench::depth;
using bench::Image;
using bench::kLengths;
using bench::vector;
using V = SignalProcessingWrapper;
using u8 = unsigned char;
using u16 = unsigned short;

// As bench::limit, on one long row.
void limit(const char* a, const char* b, char* d, int n, int sources)
{
    for (int i = 0; i < n; i += 32) {
        __m256i v = _mm256_loadu_si256(reinterpret_cast<const __m256i*>(a + i));
        if (sources == 2) v = _mm256_or_si256(v, _mm256_loadu_si256(reinterpret_cast<const __m256i*>(b + i)));
        _mm256_storeu_si256(reinterpret_cast<__m256i*>(d + i), v);
    }
}

template <class T, class Ours, class Cv, class Eig, class Volk>
void two_vectors(const char* name, Ours ours, Cv peer_cv, Eig peer_eigen, Volk peer_volk, int sources = 2,
                 int factor = 1)
{
    using Array = Eigen::Map<Eigen::Array<T, Eigen::Dynamic, 1>>;
    for (int n : kLengths) {
        auto a = vector<T>(n), b = vector<T>(n, factor), d = vector<T>(n);
        const std::string size = std::to_string(n);
        bench::add(name, size, "orvane",
                   [=] { ours(a->template as<T>(), b->template as<T>(), d->template as<T>(), n); });
        if constexpr (!std::is_null_pointer<Cv>::value) {
            const auto mat = [n](const Image& i) { return cv::Mat(1, n, depth<T>, i.as<void>()); };
            cv::Mat ma = mat(*a), mb = mat(*b), md = mat(*d);
            bench::add(name, size, "opencv", [=]() mutable { peer_cv(ma, mb, md); });
        }
        if constexpr (!std::is_null_pointer<Eig>::value) {
            bench::add(name, size, "eigen", [=] {
                Array ea(a->template as<T>(), n), eb(b->template as<T>(), n), ed(d->template as<T>(), n);
                peer_eigen(ea, eb, ed);
            });
        }
        if constexpr (!std::is_null_pointer<Volk>::value) {
            bench::add(name, size, "volk", [=] {
                peer_volk(a->template as<T>(), b->template as<T>(), d->template as<T>(), static_cast<unsigned>(n));
            });
        }
        bench::add(name, size, "limit", [=] {
            limit(a->template as<char>(), b->template as<char>(), d->template as<char>(),
                  n * static_cast<int>(sizeof(T)), sources);
        });
    }
}

#define CV(call) [](auto& a, auto& b, auto& d) { (void)a; (void)b; call; }
#define EIGEN(expression) [](auto& a, auto& b, auto& d) { (void)a; (void)b; d = expression; }
#define VOLK(kernel) [](const auto* a, const auto* b, auto* d, unsigned n) { kernel(d, b, a, n); }
#define SCALED(T, name, s) [](const T* a, const T* b, T* d, int n) { V::name(a, b, d, n, s); }
#define SCALED_CONSTANT(T, name, s) [](const T* a, const T*, T* d, int n) { V::name(a, 3, d, n, s); }

const bool registered = [] {
    two_vectors<u8>("Add_8u sf0", SCALED(u8, Add_8u, 0), CV(cv::add(a, b, d)), nullptr, nullptr);
    two_vectors<u8>("Mul_8u sf4", SCALED(u8, Mul_8u, 4), CV(cv::multiply(a, b, d, 0.0625)), nullptr, nullptr);
    two_vectors<u8>("Div_8u sf0", SCALED(u8, Div_8u, 0), CV(cv::divide(b, a, d)), nullptr, nullptr);
    two_vectors<u16>("Add_16u sf0", SCALED(u16, Add_16u, 0), CV(cv::add(a, b, d)), nullptr, nullptr);
    two_vectors<u16>("Mul_16u sf4", SCALED(u16, Mul_16u, 4), CV(cv::multiply(a, b, d, 0.0625)), nullptr, nullptr);
    two_vectors<u16>("Div_16u sf0", SCALED(u16, Div_16u, 0), CV(cv::divide(b, a, d)), nullptr, nullptr);
    two_vectors<int>("Add_32s sf0", SCALED(int, Add_32s, 0), CV(cv::add(a, b, d)), nullptr, nullptr);
    two_vectors<int>("Add_32s sf1", SCALED(int, Add_32s, 1), CV(cv::addWeighted(a, 0.5, b, 0.5, 0, d)), nullptr,
                     nullptr);
    two_vectors<int>("Add_32s sf8", SCALED(int, Add_32s, 8), CV(cv::addWeighted(a, 1 / 256., b, 1 / 256., 0, d)),
                     nullptr, nullptr);
    two_vectors<int>("Mul_32s sf0", SCALED(int, Mul_32s, 0), CV(cv::multiply(a, b, d)), nullptr, nullptr);
    two_vectors<int>("Mul_32s sf8", SCALED(int, Mul_32s, 8), CV(cv::multiply(a, b, d, 1 / 256.0)), nullptr, nullptr);
    two_vectors<int>("Mul_32s sf31", SCALED(int, Mul_32s, 31), nullptr, nullptr, nullptr);
    two_vectors<int>("Div_32s sf0", SCALED(int, Div_32s, 0), CV(cv::divide(b, a, d)), nullptr, nullptr);
    two_vectors<int>("Div_32s sf0, large", SCALED(int, Div_32s, 0), CV(cv::divide(b, a, d)), nullptr, nullptr, 2,
                     8000009);
    two_vectors<int>("SubCRev_32s sf0", SCALED_CONSTANT(int, SubCRev_32s, 0), CV(cv::subtract(3, a, d)), nullptr,
                     nullptr, 1);
    two_vectors<float>("Add_32f", V::Add_32f, CV(cv::add(a, b, d)), EIGEN(b + a), VOLK(volk_32f_x2_add_32f));
    two_vectors<float>("Sub_32f", V::Sub_32f, CV(cv::subtract(b, a, d)), EIGEN(b - a), VOLK(volk_32f_x2_subtract_32f));
    two_vectors<float>("Mul_32f", V::Mul_32f, CV(cv::multiply(b, a, d)), EIGEN(b * a), VOLK(volk_32f_x2_multiply_32f));
    two_vectors<float>("Div_32f", V::Div_32f, CV(cv::divide(b, a, d)), EIGEN(b / a), VOLK(volk_32f_x2_divide_32f));
    two_vectors<float>("AddProduct_32f", V::AddProduct_32f, nullptr, EIGEN(d + a * b), nullptr);
    two_vectors<float>(
        "MulC_32f", [](const float* a, const float*, float* d, int n) { V::MulC_32f(a, 1.5f, d, n); },
        CV(cv::multiply(a, 1.5, d)), EIGEN(a * 1.5f), nullptr, 1);
    two_vectors<double>("Add_64f", V::Add_64f, CV(cv::add(a, b, d)), EIGEN(b + a), VOLK(volk_64f_x2_add_64f));
    two_vectors<double>("Div_64f", V::Div_64f, CV(cv::divide(b, a, d)), EIGEN(b / a), nullptr);
    two_vectors<float>("Magnitude_32f", V::Magnitude_32f, CV(cv::magnitude(a, b, d)), EIGEN((a * a + b * b).sqrt()),
                       nullptr);
    two_vectors<float>("MulPack_32f", V::MulPack_32f, CV(cv::mulSpectrums(a, b, d, cv::DFT_ROWS)), nullptr, nullptr);
    two_vectors<float>(
        "RealToCplx_32f, half as many",
        [](const float* a, const float* b, float* d, int n) {
            V::RealToCplx_32f(a, b, reinterpret_cast<Complex32f*>(d), n / 2);
        },
        nullptr, nullptr,
        [](const float* a, const float* b, float* d, unsigned n) {
            volk_32f_x2_interleave_32fc(reinterpret_cast<lv_32fc_t*>(d), a, b, n / 2);
        });
    two_vectors<float>(
        "WinHamming_32f", [](const float* a, const float*, float* d, int n) { V::WinHamming_32f(a, d, n); }, nullptr,
        nullptr, nullptr, 1);
    for (int n : kLengths) {
        auto a = vector<float>(n), b = vector<float>(n), d = vector<float>(n);
        bench::add("Mul_32f_I", std::to_string(n), "orvane", [=] { V::Mul_32f_I(a->as<float>(), d->as<float>(), n); });
        bench::add("Mul_32f_I", std::to_string(n), "out-of-place",
                   [=] { V::Mul_32f(a->as<float>(), b->as<float>(), d->as<float>(), n); });
    }
    return true;
}();

}  // namespace
