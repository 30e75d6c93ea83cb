// Operations that exist in place only, where false may be a warning or a lack of memory.
#ifndef ORVANE_LAYER_IN_PLACE_HPP
#define ORVANE_LAYER_IN_PLACE_HPP

#include "../ImageProcessingWrapper.h"
#include "checks.hpp"

namespace orvane {
namespace detail {

inline unsigned bits_of(float value)
{
    unsigned bits;
    std::memcpy(&bits, &value, sizeof bits);
    return bits;
}

constexpr unsigned kNegativeNan = 0xFFC00000, kPositiveNan = 0x7FC00000, kInfinity = 0x7F800000;

constexpr bool root_keeps(unsigned bits)
{
    return bits == 0 || bits == 0x80000000 || bits == 0x3F800000 || bits == kInfinity || bits == kNegativeNan;
}
constexpr bool logarithm_keeps(unsigned bits)
{
    return bits == kInfinity || bits == kNegativeNan || bits == kPositiveNan;
}

// Whether anything was written shows in the first pixel that the operation does not keep, which is usually the first
// of all. An image of nothing but kept ones is as good as written.
inline status in_place(const char* operation, const view<float>& image, bool (*method)(float*, int, int, int),
                       bool (*keeps)(unsigned), reason warning)
{
    if (!alike(image)) return unlike<region>(operation, {{"image", image}});
    const float* changing = nullptr;
    for (int y = 0; y < image.height() && changing == nullptr; ++y) {
        for (int x = 0; x < image.width() && changing == nullptr; ++x) {
            if (!keeps(bits_of(image(x, y)))) changing = &image(x, y);
        }
    }
    const unsigned before = changing != nullptr ? bits_of(*changing) : 0;
    const bool done = method(image.data(), step(image), image.width(), image.height());
    const bool written = changing == nullptr || bits_of(*changing) != before;
    return answer(operation, done, written ? warning : reason::memory);
}

}  // namespace detail

/// image = sqrt(image)
inline status square_root(view<float> image)
{
    return detail::in_place("square_root", image, &ImageProcessingWrapper::Sqrt_32f_C1I, detail::root_keeps,
                            detail::reason::negative_root);
}

/// image = ln(image)
inline status logarithm(view<float> image)
{
    return detail::in_place("logarithm", image, &ImageProcessingWrapper::Ln_32f_C1I, detail::logarithm_keeps,
                            detail::reason::logarithm_of_no_positive);
}

}  // namespace orvane

#endif
