// Vectors that are set and copied, converted, and that rise evenly (families vector_fill, vector_moves,
// vector_conversions, vector_ramps), against the C library, OpenCV, VOLK and compiled loops: in the first cache, in the
// second, in memory.
#include <volk/volk.h>

#include <cmath>
#include <cstring>

#include "SignalProcessingWrapper.h"
#include "image/peers.h"

namespace {

using bench::Image;
using V = SignalProcessingWrapper;

const int kSides[] = {64, 256, 4096};

std::string length(int side) { return std::to_string(side * side); }

// Numbers of all sizes within 16 bits, for conversions of them.
template <class T>
std::shared_ptr<Image> vector(int side)
{
    return std::make_shared<Image>(side, static_cast<int>(sizeof(T)), [side](const Image& image) {
        unsigned noise = 1;
        for (int i = 0; i < side * side; ++i) {
            noise = noise * 1664525u + 1013904223u;
            image.as<T>()[i] = static_cast<T>(noise >> 8 & 65535) / 2;
        }
    });
}

// ours(dst, n), peer(dst, n)
template <class T, class Ours, class Peer>
void dst(const char* name, Ours ours, const char* who, Peer peer)
{
    for (const int side : kSides) {
        const int n = side * side;
        auto d = vector<T>(side);
        bench::add(name, length(side), "orvane", [=] { ours(d->template as<T>(), n); });
        bench::add(name, length(side), who, [=] { peer(d->template as<T>(), n); });
        bench::add(name, length(side), "limit", [=] { bench::limit({}, d.get()); });
    }
}

// ours(src, dst, n), peer(src, dst, n)
template <class From, class To, class Ours, class Peer>
void src_dst(const char* name, Ours ours, const char* who, Peer peer)
{
    for (const int side : kSides) {
        const int n = side * side;
        auto a = vector<From>(side);
        auto d = vector<To>(side);
        bench::add(name, length(side), "orvane", [=] { ours(a->template as<From>(), d->template as<To>(), n); });
        bench::add(name, length(side), who, [=] { peer(a->template as<From>(), d->template as<To>(), n); });
        bench::add(name, length(side), "limit", [=] { bench::limit({a.get()}, d.get()); });
    }
}

template <class T>
void copy(const T* a, T* d, int n)
{
    std::memcpy(d, a, sizeof(T) * static_cast<std::size_t>(n));
}
template <class T>
void clear(T* d, int n)
{
    std::memset(d, 0, sizeof(T) * static_cast<std::size_t>(n));
}

template <class T>
void opencv_set(T* d, int n)
{
    cv::Mat(1, n, cv::DataType<T>::type, d).setTo(7);
}
template <class From, class To>
void convert(const char* name, bool (*ours)(const From*, To*, int))
{
    src_dst<From, To>(name, ours, "opencv", [](const From* a, To* d, int n) {
        const cv::Mat from(1, n, cv::DataType<From>::type, const_cast<From*>(a));
        cv::Mat to(1, n, cv::DataType<To>::type, d);
        from.convertTo(to, to.depth());
    });
}
template <class From, class To, class Kernel>
void volk(const char* name, Kernel kernel)
{
    for (const int side : kSides) {
        auto a = vector<From>(side);
        auto d = vector<To>(side);
        bench::add(name, length(side), "volk", [=] {
            kernel(d->template as<To>(), a->template as<From>(), static_cast<unsigned>(side * side));
        });
    }
}
template <class T>
void slope_loop(T* d, int n)
{
    for (int i = 0; i < n; ++i) {
        const double v = 0.5 + 0.001 * i;
        d[i] = static_cast<T>(std::is_integral<T>::value ? std::nearbyint(v) : v);
    }
}
template <class T>
void rise(const char* name, bool (*ours)(double, double, T*, int), double other)
{
    dst<T>(name, [=](T* d, int n) { ours(0.5, other, d, n); }, "loop", slope_loop<T>);
}

#define CONVERT(name, From, To) convert<From, To>(#name, V::name);

using u8 = unsigned char;
using u16 = unsigned short;

const bool registered = [] {
    dst<u8>("Set_8u", [](auto* d, int n) { V::Set_8u(7, d, n); }, "opencv", opencv_set<u8>);
    dst<u16>("Set_16u", [](auto* d, int n) { V::Set_16u(7, d, n); }, "opencv", opencv_set<u16>);
    dst<float>("Set_32f", [](auto* d, int n) { V::Set_32f(7, d, n); }, "opencv", opencv_set<float>);
    dst<double>("Set_64f", [](auto* d, int n) { V::Set_64f(7, d, n); }, "opencv", opencv_set<double>);
    dst<u8>("Zero_8u", V::Zero_8u, "memset", clear<u8>);
    dst<double>("Zero_64f", V::Zero_64f, "memset", clear<double>);
    src_dst<u8, u8>("Copy_8u", V::Copy_8u, "memcpy", copy<u8>);
    src_dst<double, double>("Copy_64f", V::Copy_64f, "memcpy", copy<double>);
    CONVERT(Convert_8u16u, u8, u16)
    CONVERT(Convert_8u32s, u8, int)
    CONVERT(Convert_8u32f, u8, float)
    CONVERT(Convert_8u64f, u8, double)
    CONVERT(Convert_16u8u, u16, u8)
    CONVERT(Convert_16u32s, u16, int)
    CONVERT(Convert_16u32f, u16, float)
    CONVERT(Convert_16u64f, u16, double)
    CONVERT(Convert_32s8u, int, u8)
    CONVERT(Convert_32s16u, int, u16)
    CONVERT(Convert_32s32f, int, float)
    CONVERT(Convert_32s64f, int, double)
    CONVERT(Convert_32f8u, float, u8)
    CONVERT(Convert_32f16u, float, u16)
    CONVERT(Convert_32f32s, float, int)
    CONVERT(Convert_32f64f, float, double)
    CONVERT(Convert_64f8u, double, u8)
    CONVERT(Convert_64f16u, double, u16)
    CONVERT(Convert_64f32s, double, int)
    CONVERT(Convert_64f32f, double, float)
    CONVERT(Convert_16s32f, short, float)
    CONVERT(Convert_32f16s, float, short)
    volk<float, double>("Convert_32f64f", volk_32f_convert_64f);
    volk<double, float>("Convert_64f32f", volk_64f_convert_32f);
    volk<float, int>("Convert_32f32s",
                     [](int* d, const float* a, unsigned n) { volk_32f_s32f_convert_32i(d, a, 1, n); });
    volk<int, float>("Convert_32s32f",
                     [](float* d, const int* a, unsigned n) { volk_32i_s32f_convert_32f(d, a, 1, n); });
    volk<short, float>("Convert_16s32f",
                       [](float* d, const short* a, unsigned n) { volk_16i_s32f_convert_32f(d, a, 1, n); });
    volk<float, short>("Convert_32f16s",
                       [](short* d, const float* a, unsigned n) { volk_32f_s32f_convert_16i(d, a, 1, n); });
    rise("VectorSlope_8u", V::VectorSlope_8u, 0.001);
    rise("VectorSlope_16u", V::VectorSlope_16u, 0.001);
    rise("VectorSlope_32s", V::VectorSlope_32s, 0.001);
    rise("VectorSlope_32f", V::VectorSlope_32f, 0.001);
    rise("VectorSlope_64f", V::VectorSlope_64f, 0.001);
    rise("VectorRamp_8u", V::VectorRamp_8u, 250);
    rise("VectorRamp_16u", V::VectorRamp_16u, 250);
    rise("VectorRamp_32s", V::VectorRamp_32s, 250);
    rise("VectorRamp_32f", V::VectorRamp_32f, 250);
    rise("VectorRamp_64f", V::VectorRamp_64f, 250);
    return true;
}();

}  // namespace
