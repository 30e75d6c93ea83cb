// Lookups with a table for each channel.
#ifndef ORVANE_LAYER_TABLES_HPP
#define ORVANE_LAYER_TABLES_HPP

#include "../ImageProcessingWrapper.h"
#include "requirements.hpp"

namespace orvane {
namespace detail {

template <int Channels>
status lookup(const view<const unsigned char, Channels>& source, const span<const unsigned char> (&tables)[Channels],
              const view<unsigned char, Channels>& destination,
              bool (*method)(const unsigned char*, int, const unsigned char* const*, unsigned char*, int, int, int))
{
    if (!alike(source, destination))
        return unlike<region>("lookup", {{"source", source}, {"destination", destination}});
    const unsigned char* addresses[Channels];
    for (int c = 0; c < Channels; ++c) {
        if (const status s = filled("lookup", "tables", tables[c], values_of(source)); !s) return s;
        addresses[c] = tables[c].data();
    }
    const bool done = method(source.data(), step(source), addresses, destination.data(), step(destination),
                             source.width(), source.height());
    return answer("lookup", done, reason::memory);
}

}  // namespace detail

/// destination[c] = tables[c][source[c]]
inline status lookup(view<const unsigned char, 3> source, const span<const unsigned char> (&tables)[3],
                     view<unsigned char, 3> destination)
{
    return detail::lookup(source, tables, destination, &ImageProcessingWrapper::LUT_8u_C3);
}
inline status lookup(view<const unsigned char, 4> source, const span<const unsigned char> (&tables)[4],
                     view<unsigned char, 4> destination)
{
    return detail::lookup(source, tables, destination, &ImageProcessingWrapper::LUT_8u_C4);
}

}  // namespace orvane

#endif
