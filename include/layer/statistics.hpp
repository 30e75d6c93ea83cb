// What follows from joined sums.
#ifndef ORVANE_LAYER_STATISTICS_HPP
#define ORVANE_LAYER_STATISTICS_HPP

#include "../Parts.h"
#include "checks.hpp"

namespace orvane {

/// average = total / pixels, deviation = sqrt(|squares / pixels - average^2|): what mean_deviation() gives for an image
/// of so many pixels, from the sums of its parts, as sum_squares() has them
inline status deviation_of_sums(unsigned long long pixels, unsigned long long total, unsigned long long squares,
                                double& average, double& deviation)
{
    if (pixels == 0) return {"deviation_of_sums", "pixels", detail::reason::empty_image};
    return detail::answer("deviation_of_sums", orvaneDeviation(pixels, total, squares, &average, &deviation),
                          detail::reason::failed);
}

}  // namespace orvane

#endif
