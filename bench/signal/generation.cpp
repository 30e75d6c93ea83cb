// Vectors that are set and copied (families vector_fill, vector_moves), against the C library and OpenCV: in the first
// cache, in the second, in memory.
#include <cstring>

#include "SignalProcessingWrapper.h"
#include "image/peers.h"

namespace {

using bench::Image;
using V = SignalProcessingWrapper;

const int kSides[] = {64, 256, 4096};

std::string length(int side) { return std::to_string(side * side); }

template <class T>
std::shared_ptr<Image> vector(int side)
{
    return std::make_shared<Image>(side, static_cast<int>(sizeof(T)));
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

const bool registered = [] {
    dst<unsigned char>("Set_8u", [](auto* d, int n) { V::Set_8u(7, d, n); }, "opencv", opencv_set<unsigned char>);
    dst<unsigned short>("Set_16u", [](auto* d, int n) { V::Set_16u(7, d, n); }, "opencv", opencv_set<unsigned short>);
    dst<float>("Set_32f", [](auto* d, int n) { V::Set_32f(7, d, n); }, "opencv", opencv_set<float>);
    dst<double>("Set_64f", [](auto* d, int n) { V::Set_64f(7, d, n); }, "opencv", opencv_set<double>);
    dst<unsigned char>("Zero_8u", V::Zero_8u, "memset", clear<unsigned char>);
    dst<double>("Zero_64f", V::Zero_64f, "memset", clear<double>);
    src_dst<unsigned char, unsigned char>("Copy_8u", V::Copy_8u, "memcpy", copy<unsigned char>);
    src_dst<double, double>("Copy_64f", V::Copy_64f, "memcpy", copy<double>);
    return true;
}();

}  // namespace
