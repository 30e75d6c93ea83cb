// Rows of a benchmark: operations of one shape beside OpenCV's and the limit. Types are OpenCV's.
#pragma once

#include "image/peers.h"

namespace bench {

template <class Ours, class Peer>
void two(const char* name, int from, int to, Ours ours, Peer peer)
{
    for (int side : sides(from)) {
        auto a = make_source(side, from), b = make_source(side, from), d = make(side, to);
        add(name, square(side), "orvane", [=] { ours(*a, *b, *d, side); });
        cv::Mat ma = mat(*a, from), mb = mat(*b, from), md = mat(*d, to);
        add(name, square(side), "opencv", [=]() mutable { peer(ma, mb, md); });
        add(name, square(side), "limit", [=] { limit({a.get(), b.get()}, d.get()); });
    }
}
template <class Ours, class Peer>
void one(const char* name, int from, int to, Ours ours, Peer peer)
{
    for (int side : sides(from)) {
        auto a = make_source(side, from), d = make(side, to);
        add(name, square(side), "orvane", [=] { ours(*a, *d, side); });
        cv::Mat ma = mat(*a, from), md = mat(*d, to);
        add(name, square(side), "opencv", [=]() mutable { peer(ma, md); });
        add(name, square(side), "limit", [=] { limit({a.get()}, d.get()); });
    }
}

}  // namespace bench

// Calls of such methods, with what stands between the source and the destination, or behind the size.
#define TWO(method, T, D)                                                                           \
    [](const Image& a, const Image& b, const Image& d, int n) {                                     \
        W::method(a.as<T>(), a.step(), b.as<T>(), b.step(), d.as<D>(), d.step(), n, n);             \
    }
#define WITH(method, T, D, ...)                                                                     \
    [](const Image& a, const Image& d, int n) {                                                     \
        W::method(a.as<T>(), a.step(), __VA_ARGS__, d.as<D>(), d.step(), n, n);                     \
    }
#define AFTER(method, T, ...)                                                                       \
    [](const Image& a, const Image& d, int n) {                                                     \
        W::method(a.as<T>(), a.step(), d.as<T>(), d.step(), n, n, __VA_ARGS__);                     \
    }
