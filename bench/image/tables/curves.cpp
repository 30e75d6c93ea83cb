// Curves against a compiled loop: a search from the left and a division for each pixel.
#include <cmath>
#include <vector>

#include "ImageProcessingWrapper.h"
#include "image/colour/peers.h"

namespace {

using bench::picture;
using bench::Picture;
using W = ImageProcessingWrapper;

template <class S, class D>
D point(const std::vector<S>& levels, const std::vector<D>& values, S x)
{
    if (!(x >= levels.front())) return values.front();
    if (x >= levels.back()) return values.back();
    std::size_t k = 0;
    while (levels[k + 1] <= x) ++k;
    const double run = static_cast<double>(levels[k + 1]) - static_cast<double>(levels[k]);
    const double rise = static_cast<double>(values[k + 1]) - static_cast<double>(values[k]);
    const double value =
        static_cast<double>(values[k]) + (static_cast<double>(x) - static_cast<double>(levels[k])) * rise / run;
    return static_cast<D>(std::is_integral<D>::value ? std::nearbyint(value) : value);
}

template <class S, class D>
void add_curve(const char* name, bool (*method)(const S*, int, const S*, const D*, int, D*, int, int, int),
               double most_level, double most)
{
    for (const int count : {4, 8, 32}) {
        std::vector<S> levels;
        std::vector<D> values;
        for (int k = 0; k < count; ++k) {
            levels.push_back(static_cast<S>(most_level * (k + 0.3) / count));
            values.push_back(static_cast<D>(most * std::sqrt((k + 0.5) / count)));
        }
        for (const int side : bench::kColourSides) {
            const bench::Image::Fill fill =
                std::is_same<S, float>::value ? bench::floats_between(0, static_cast<float>(most_level)) : nullptr;
            const Picture a = picture(side, sizeof(S), fill), d = picture(side, sizeof(D));
            const std::string title = std::string(name) + " " + std::to_string(count) + " levels";
            bench::compare(
                title, side, a, d,
                [=] {
                    method(a->as<S>(), a->step(), levels.data(), values.data(), count, d->as<D>(), d->step(), side,
                           side);
                },
                "loop",
                [=] {
                    for (int y = 0; y < side; ++y) {
                        for (int x = 0; x < side; ++x) d->row<D>(y)[x] = point(levels, values, a->row<S>(y)[x]);
                    }
                });
        }
    }
}

const bool registered = [] {
    add_curve("LUT_Linear_8u_C1", W::LUT_Linear_8u_C1, 255, 255);
    add_curve("LUT_Linear_16u_C1", W::LUT_Linear_16u_C1, 65535, 65535);
    add_curve("LUT_Linear_16u8u_C1", W::LUT_Linear_16u8u_C1, 65535, 255);
    add_curve("LUT_Linear_32f_C1", W::LUT_Linear_32f_C1, 1, 1);
    return true;
}();

}  // namespace
