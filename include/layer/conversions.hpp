// Conversions that no method makes by itself.
#ifndef ORVANE_LAYER_CONVERSIONS_HPP
#define ORVANE_LAYER_CONVERSIONS_HPP

#include "../ImageProcessingWrapper.h"
#include "requirements.hpp"

namespace orvane {
namespace detail {

// Of narrow images each pixel becomes three of its own.
inline bool convert_by_pixels(const view<const float>& source, const view<unsigned char>& destination)
{
    bool done = true;
    for (int y = 0; y < source.height(); ++y) {
        for (int x = 0; x < source.width(); ++x) {
            const float three[3] = {source(x, y), 0, 0};
            unsigned char converted[3] = {};
            done = ImageProcessingWrapper::Convert_32f8u_C3(three, sizeof three, converted, 3, 1, 1) && done;
            destination(x, y) = converted[0];
        }
    }
    return done;
}

// Three columns are a pixel of three channels; what is left of a row is done with its last three columns.
inline bool convert_by_triples(const view<const float>& source, const view<unsigned char>& destination)
{
    const auto convert = [&](int x, int triples) {
        return ImageProcessingWrapper::Convert_32f8u_C3(&source(x, 0), step(source), &destination(x, 0),
                                                        step(destination), triples, source.height());
    };
    const int width = source.width();
    return convert(0, width / 3) && (width % 3 == 0 || convert(width - 3, 1));
}

}  // namespace detail

/// The nearest integer, ties to even, clamped to 0 ... 255; a NaN gives 0.
inline status convert(view<const float, 1> source, view<unsigned char, 1> destination)
{
    if (!detail::alike(source, destination)) {
        return detail::unlike<detail::region>("convert", {{"source", source}, {"destination", destination}});
    }
    if (const status s = detail::apart("convert", "destination", destination, source); !s) return s;
    const bool done = source.width() < 3 ? detail::convert_by_pixels(source, destination)
                                         : detail::convert_by_triples(source, destination);
    return detail::answer("convert", done, detail::reason::failed);
}

}  // namespace orvane

#endif
