// How a region may be cut into parts that give the same bytes as the whole.
#ifndef ORVANE_LAYER_CUTS_HPP
#define ORVANE_LAYER_CUTS_HPP

#include <stdexcept>

#include "codes.hpp"

namespace orvane {

/// What a part needs to give its part of the result.
enum class cut {
    point,        ///< itself
    frame,        ///< what lies round it, read where it lies: view::part() knows; a copied part is treated as by halo
    halo,         ///< to be larger by a halo, as far as the image goes; the result is cropped
    place,        ///< another place for its result: transposition, mirrors
    destination,  ///< the whole source: parts are the destination's
    join,         ///< to be joined with the others' results: sums are added, extremes compared
    whole         ///< all of the image
};

/// Pixels round a part.
struct halo {
    int left = 0, top = 0, right = 0, bottom = 0;
};
constexpr halo operator+(halo a, halo b)
{
    return {a.left + b.left, a.top + b.top, a.right + b.right, a.bottom + b.bottom};
}
constexpr bool operator==(halo a, halo b)
{
    return a.left == b.left && a.top == b.top && a.right == b.right && a.bottom == b.bottom;
}
constexpr bool operator!=(halo a, halo b) { return !(a == b); }

/// How regions of an operation are cut: at columns and rows that are multiples of these; 0 where parts are whole rows.
struct rule {
    cut kind = cut::whole;
    halo around{};
    int columns = 1, rows = 1;

    /// Whether the operation can stand in a chain that is cut once for all its steps.
    constexpr bool chains() const { return kind == cut::point || kind == cut::frame || kind == cut::halo; }
};

/// The rule of operations that follow one another: their halos add up. Throws std::invalid_argument where one of them
/// is not cut that way; in a constant that does not compile.
template <class... Rules>
constexpr rule chain(const Rules&... steps)
{
    rule all{cut::halo};
    for (const rule& step : {rule(steps)...}) {
        if (!step.chains()) throw std::invalid_argument("orvane::chain: a step is not cut by a halo");
        all.around = all.around + step.around;
        all.columns = all.columns > step.columns ? all.columns : step.columns;  // 1 or 2
        all.rows = all.rows > step.rows ? all.rows : step.rows;
    }
    return all;
}

namespace detail {

constexpr int half(mask size) { return static_cast<int>(size) / 2; }

}  // namespace detail
}  // namespace orvane

#endif
