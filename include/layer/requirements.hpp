// What single operations ask of their arguments, and frames for those that read beyond their region.
#ifndef ORVANE_LAYER_REQUIREMENTS_HPP
#define ORVANE_LAYER_REQUIREMENTS_HPP

#include "../ImageProcessingWrapper.h"
#include "checks.hpp"
#include "cuts.hpp"

namespace orvane {
namespace detail {

inline status code(const char* operation, const char* name, int value, unsigned allowed)
{
    const bool known = value >= 0 && value < 32 && (allowed >> value & 1) != 0;
    return known ? status() : status(operation, name, reason::unknown_code, value);
}

inline status between(const char* operation, const char* name, long long value, long long least, long long greatest)
{
    return value >= least && value <= greatest ? status()
                                               : status(operation, name, reason::outside, value, least, greatest);
}

inline status sized(const char* operation, const char* name, const region& r, int width, int height)
{
    if (r.width == width && r.height == height) return {};
    return {operation, name, reason::other_size, r.width, r.height, width, height};
}

inline status above_zero(const char* operation, const char* name, double value)
{
    return value > 0 ? status() : status(operation, name, reason::not_above);
}

inline status finite(const char* operation, const char* name, double value)
{
    return value - value == 0 ? status() : status(operation, name, reason::not_finite);
}

// An array of a given length, or of one between two.
inline status filled(const char* operation, const char* name, const stretch& s, std::size_t least, std::size_t greatest)
{
    if (const status sound = unsound(operation, {name, s}); !sound) return sound;
    return between(operation, name, static_cast<long long>(s.size), static_cast<long long>(least),
                   static_cast<long long>(greatest));
}
inline status filled(const char* operation, const char* name, const stretch& s, std::size_t needed)
{
    if (s.data != nullptr && s.size == needed) return {};
    if (const status sound = unsound(operation, {name, s}); !sound) return sound;
    return {operation, name, reason::other_length, static_cast<long long>(s.size), static_cast<long long>(needed)};
}

// How many values a pixel may have: the length of a table for it.
template <class T, int Channels>
constexpr std::size_t values_of(const view<T, Channels>&)
{
    return std::size_t{1} << 8 * sizeof(T);
}

template <class T>
status rising(const char* operation, const char* name, span<const T> levels)
{
    if (const status s = filled(operation, name, levels, 2, 0x7fffffff); !s) return s;
    for (std::size_t k = 1; k < levels.size(); ++k) {
        if (!(levels[k - 1] < levels[k])) return {operation, name, reason::not_rising, static_cast<long long>(k)};
    }
    return {};
}

template <class T, int Channels>
status ordered(const char* operation, const constant<T, Channels>& lower, const constant<T, Channels>& upper)
{
    for (int c = 0; c < Channels; ++c) {
        if (lower.data()[c] > upper.data()[c]) return {operation, "lower", reason::above_upper};
    }
    return {};
}

// Integers saturate over 0, with a warning; floats are multiplied by a reciprocal, which 0 does not have.
template <class T, int Channels>
status divisor(const char* operation, const char* name, const constant<T, Channels>& value)
{
    if constexpr (std::is_floating_point_v<T>) {
        if (value.has_zero()) return {operation, name, reason::zero_divisor};
    }
    return {};
}
inline status divisor(const char* operation, const char* name, const constant<Complex32f, 1>& value)
{
    const bool zero = !(value.one().re < 0) && !(value.one().re > 0) && !(value.one().im < 0) && !(value.one().im > 0);
    return zero ? status(operation, name, reason::zero_divisor) : status();
}

template <int Channels>
status channels(const char* operation, const constant<int, Channels>& order)
{
    for (int c = 0; c < Channels; ++c) {
        if (const status s = between(operation, "order", order.data()[c], 0, Channels - 1); !s) return s;
    }
    return {};
}

inline status mirrored(const char* operation, const region& image, axis about)
{
    if (image.height < 2 && about != axis::vertical) return {operation, "image", reason::too_small, image.height};
    if (image.width < 2 && about != axis::horizontal) return {operation, "image", reason::too_small, image.width};
    return {};
}

// Room for a source within a destination.
inline status inside(const char* operation, const region& source, const region& destination, int left, int top)
{
    if (const status s = between(operation, "left", left, 0, static_cast<long long>(destination.width) - source.width);
        !s) {
        return s;
    }
    return between(operation, "top", top, 0, static_cast<long long>(destination.height) - source.height);
}

inline status apart(const char* operation, const char* name, const region& destination, const region& source)
{
    return overlap(destination, source) ? status(operation, name, reason::overlap) : status();
}

// A part of a destination: from `origin` on.
inline status placed(const char* operation, const char* name, int origin, int length)
{
    return between(operation, name, origin, 0, 0x7fffffffLL - length);
}

// Within a whole; 0 stands for where the part ends.
inline status placed(const char* operation, const char* name, int origin, int length, const char* whole_name, int whole)
{
    if (const status s = placed(operation, name, origin, length); !s) return s;
    return whole == 0 ? status() : between(operation, whole_name, whole, origin + length, 0x7fffffff);
}

// Areas of colours and of floats: both axes are reduced alike.
template <class T, int Channels>
status averaged(const view<const T, Channels>& source, const view<T, Channels>& destination, interpolation how,
                int origin_x, int origin_y, int whole_width, int whole_height)
{
    if (how != interpolation::area || (Channels == 1 && std::is_integral_v<T>)) return {};
    const long long width = whole_width != 0 ? whole_width : origin_x + destination.width();
    const long long height = whole_height != 0 ? whole_height : origin_y + destination.height();
    const bool alike = width * source.height() == height * source.width() && width < source.width();
    return alike ? status() : status("resize", "destination", reason::other_ratio);
}

// One image, or apart.
inline status whole(const char* operation, const char* name, const region& destination, const region& source)
{
    return overlap_in_part(destination, source) ? status(operation, name, reason::overlap) : status();
}

// The fixed filters as convolutions; the formulas are those of FilterHipass and the others.
inline const int* chosen_kernel(mask size, const int (&three)[9], const int (&five)[25])
{
    return size == mask::size3x3 ? three : five;
}
inline const int* highpass_kernel(mask size)
{
    static constexpr int three[] = {-1, -1, -1, -1, 8, -1, -1, -1, -1};
    static constexpr int five[] = {-1, -1, -1, -1, -1, -1, -1, -1, -1, -1, -1, -1, 24,
                                   -1, -1, -1, -1, -1, -1, -1, -1, -1, -1, -1, -1};
    return chosen_kernel(size, three, five);
}
inline const int* laplace_kernel(mask size)
{
    static constexpr int three[] = {-1, -1, -1, -1, 8, -1, -1, -1, -1};
    static constexpr int five[] = {-1, -3, -4, -3, -1, -3, 0,  6,  0,  -3, -4, 6, 20,
                                   6,  -4, -3, 0,  6,  0,  -3, -1, -3, -4, -3, -1};
    return chosen_kernel(size, three, five);
}
inline const int* cross_kernel(mask size)
{
    static constexpr int three[] = {-1, 0, 1, 0, 0, 0, 1, 0, -1};
    static constexpr int five[] = {-1, -2, 0, 2, 1, -2, -4, 0,  4,  2, 0,  0, 0,
                                   0,  0,  2, 4, 0, -4, -2, 1,  2,  0, -2, -1};
    return chosen_kernel(size, three, five);
}
inline const int* gauss_kernel(mask size)
{
    static constexpr int three[] = {1, 2, 1, 2, 4, 2, 1, 2, 1};
    static constexpr int five[] = {2,  7, 12, 7,  2,  7,  31, 52, 31, 7, 12, 52, 127,
                                   52, 12, 7, 31, 52, 31, 7,  2,  7,  12, 7, 2};
    return chosen_kernel(size, three, five);
}

inline status framed(const char* operation, const char* name, const frame& around, int left, int top, int right,
                     int bottom)
{
    if (readable(around, left, top, right, bottom)) return {};
    return unframed(operation, name, around, left, top, right, bottom);
}

// The shift that keeps a centre must be finite.
inline status turned(const char* operation, double center_x, double center_y, double degrees)
{
    double x, y;
    if (ImageProcessingWrapper::GetRotateShift(center_x, center_y, degrees, &x, &y)) return {};
    return {operation, "center_x", reason::not_finite};
}

struct sides {
    int left, top, right, bottom;
};

inline status odd(const char* operation, const char* name, int side)
{
    if (side >= 1 && side <= 255 && side % 2 == 1) return {};
    return {operation, name, reason::no_odd_side, side};
}

inline status number(const char* operation, const char* name, double value)
{
    return value == value ? status() : status(operation, name, reason::not_finite);
}

inline status nonzero(const char* operation, const char* name, int divisor)
{
    return divisor != 0 ? status() : status(operation, name, reason::zero_divisor);
}

inline status thresholds(const char* operation, float low, float high)
{
    if (!(low >= 0)) return {operation, "low", reason::below_zero};
    return high >= low ? status() : status(operation, "low", reason::above_upper);
}

// Bits are moved: what there is for words does for signed ones.
template <class T, int Channels>
status extend(edge beyond, const view<const T, Channels>& source, const view<T, Channels>& destination, int left,
              int top, const constant<T, Channels>& value)
{
    if constexpr (std::is_same_v<T, short>) {
        const auto words = [](auto v) {
            using word = std::conditional_t<std::is_const_v<typename decltype(v)::element_type>, const unsigned short,
                                            unsigned short>;
            return view<word, Channels>(reinterpret_cast<word*>(v.data()), v.width(), v.height(), v.step());
        };
        return extend(beyond, words(source), words(destination), left, top,
                      constant<unsigned short, Channels>(static_cast<unsigned short>(value.one())));
    } else {
        return beyond == edge::replicate ? extend_replicate(source, destination, left, top)
                                         : extend_constant(source, destination, left, top, value);
    }
}

constexpr bool all_rows = true;

// Runs an operation that reads beyond its region on bands of rows that are copied into a frame; overlapping images
// in one band.
template <class T, class D, int Channels, class Operation>
status with_frame(const char* operation, const view<const T, Channels>& source, const view<D, Channels>& destination,
                  const sides& more, bool whole, edge beyond, const constant<T, Channels>& value, const Operation& run)
{
    if (const status s = code(operation, "beyond", static_cast<int>(beyond), 3); !s) return s;
    const int width = source.width(), height = source.height();
    if (width > 0x7fffffff - more.left - more.right)
        return {operation, "source", reason::outside, width, 1, 0x7fffffff};
    const int rows = whole || overlap(source, destination) || height < 64 ? height : 64;
    image<T, Channels> framed;
    if (!framed.make(width + more.left + more.right, rows + more.top + more.bottom))
        return {operation, "", reason::memory};
    for (int y = 0; y < height; y += rows) {
        const int count = height - y < rows ? height - y : rows;
        const int first = y < more.top ? 0 : y - more.top,
                  last = height - y - count < more.bottom ? height : y + count + more.bottom;
        const view<T, Channels> band = framed.part(0, 0, framed.width(), count + more.top + more.bottom);
        const view<const T, Channels> rows_read = source.part(0, first, width, last - first);
        const int top = more.top - (y - first);
        const status copied = extend(beyond, rows_read, band, more.left, top, value);
        if (!copied) return {operation, "", reason::memory};
        const status s = run(band.part(more.left, more.top, width, count), destination.part(0, y, width, count));
        if (!s) return s;
    }
    return {};
}

template <class T, class D, int Channels, class Operation>
status with_frame(const char* operation, const view<const T, Channels>& source, const view<D, Channels>& destination,
                  const sides& more, edge beyond, const constant<T, Channels>& value, const Operation& run)
{
    return with_frame(operation, source, destination, more, false, beyond, value, run);
}

}  // namespace detail
}  // namespace orvane

#endif
