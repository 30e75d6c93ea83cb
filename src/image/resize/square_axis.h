// One axis of a square-pixel mapping: which destination positions lie in the source, where, and with which
// weights their taps count.
//
// The destination position X covers [X, X + 1); its centre comes from (X + 1/2 - shift) / factor in a source
// whose pixel k covers [k, k + 1). A position belongs to the image when its centre comes from the rectangle. Where
// edges are smoothed, it does so, too, when the image covers a part of it; the sample is then that of the rectangle's
// edge.
#pragma once

#include <cstdint>

#include "core/float_control.h"
#include "image/resize/four_taps.h"
#include "image/resize/pixel_rounding.h"
#include "image/resize/resample.h"

namespace orv {
inline namespace ORV_LEVEL {

// sin(pi y) for |y| <= 1, by the Taylor series of the sine up to the 21st power: below 2^-58 off at pi / 2.
ORV_INLINE double sine_of_pi(double y)
{
    const double magnitude = y < 0 ? -y : y;
    const double folded = magnitude > 0.5 ? 1 - magnitude : magnitude;
    const double x = folded * 3.14159265358979323846;
    const double q = x * x;
    double sum = 1;
    for (int k = 20; k >= 2; k -= 2) sum = 1 - sum * q / (k * (k + 1));
    return y < 0 ? -(x * sum) : x * sum;
}

// sinc(x) sinc(x / 3) times a constant, for |x| < 3.
ORV_INLINE double lanczos(double x)
{
    constexpr double pi = 3.14159265358979323846;
    if (x == 0) return pi * pi / 3;
    // The sine of pi x repeats.
    const double period = x < 0 ? -x : x;
    const double rest = period >= 2 ? period - 2 : period;
    const double sine = rest > 1 ? -sine_of_pi(2 - rest) : sine_of_pi(rest);
    return sine * sine_of_pi(period / 3) / (period * period);
}

struct SquareAxis {
    double factor, shift;
    int low, high;   // the source pixels of the rectangle
    bool smooth;     // whether edges are smoothed
    int begin, end;  // the destination positions that come from there

    ORV_INLINE double source_of(double position) const { return rounded(rounded(position - shift) / factor); }
    ORV_INLINE double centre(int position) const
    {
        const double s = source_of(position + 0.5);
        return s < low ? low : s > high + 1.0 ? high + 1.0 : s;
    }
    ORV_INLINE int pixel(int position) const
    {
        const int k = static_cast<int>(centre(position));
        return k < high ? k : high;
    }
    ORV_INLINE bool covers_part_of(int position) const
    {
        const double part = coverage(position);
        return part >= kLeastPart && part < 1;
    }

    // The first of the positions below `end_of_all` whose centre does not come from before `bound`. They ascend.
    ORV_INLINE int first_from(double bound, int first, int end_of_all) const
    {
        while (first < end_of_all) {
            const int middle = first + (end_of_all - first) / 2;
            if (source_of(middle + 0.5) >= bound) end_of_all = middle;
            else first = middle + 1;
        }
        return first;
    }

    // Finds begin and end among the positions from `first` to `last`.
    ORV_INLINE void find(int first, int last)
    {
        begin = first_from(low, first, last + 1);
        end = first_from(high + 1.0, begin, last + 1);
        if (!smooth) return;
        if (begin > first && covers_part_of(begin - 1)) --begin;
        if (end <= last && covers_part_of(end)) ++end;
    }

    ORV_INLINE int count() const { return end - begin; }

    // The float factor of a zoom does not place edges finer than this.
    static constexpr double kLeastPart = 1.0 / 1024;

    // How much of a position lies within the image of the rectangle.
    ORV_INLINE double coverage(int position) const
    {
        constexpr double whole = 1 - kLeastPart;
        const double left = low * factor + shift, right = (high + 1.0) * factor + shift;
        const double from = left > position ? left : position;
        const double to = right < position + 1.0 ? right : position + 1.0;
        const double part = rounded(to - from);
        return part < whole ? (part > 0 ? part : 0) : 1;  // whole, too, where infinities left no number
    }

    ORV_INLINE void nearest(int* index) const
    {
        for (int x = begin; x < end; ++x) *index++ = pixel(x);
    }

    ORV_INLINE void cubic(const CubicFamily& family, int* index, float* weights) const
    {
        for (int x = begin; x < end; ++x, weights += 4) {
            const double t = rounded(centre(x) - 0.5);
            *index = floor_of(t);
            family.weights(t - *index++, weights);
        }
    }
};

// Any number of taps per position. Taps outside the rectangle count for the pixel at its edge.
struct Taps {
    int* first;       // source index per position
    int* start;       // of its weights, and of those behind the last one
    double* weights;

    // Room for weights: areas meet at most in one pixel.
    static ORV_INLINE std::int64_t room(int interpolation, std::int64_t source, std::int64_t positions)
    {
        return interpolation == kSupersampling ? source + 2 * positions
                                               : (interpolation == kLanczos ? 6 : 2) * positions;
    }
    ORV_INLINE Taps(Parts& parts, int interpolation, std::int64_t source, std::int64_t positions)
        : first(parts.take<int>(positions)), start(parts.take<int>(positions + 1)),
          weights(parts.take<double>(room(interpolation, source, positions)))
    {
    }

    // `values` are those of the indices from i on; the sum of the weights becomes 1 where `normalised`.
    ORV_INLINE int put_taps(const SquareAxis& axis, std::int64_t i, const double* values, int count, bool normalised,
                            int position, int at)
    {
        double sum = 1;
        if (normalised) {
            sum = 0;
            for (int k = 0; k < count; ++k) sum = rounded(sum + values[k]);
        }
        const TapLimits limits = {axis.low, axis.high};
        first[position] = limits.clamp(i);
        start[position] = at;
        for (int k = 0; k < count; ++k) {
            const double weight = normalised ? rounded(values[k] / sum) : values[k];
            const int slot = at + (limits.clamp(i + k) - first[position]);
            const bool again = k > 0 && limits.clamp(i + k) == limits.clamp(i + k - 1);
            weights[slot] = again ? rounded(weights[slot] + weight) : weight;
        }
        return at + (limits.clamp(i + count - 1) - first[position]) + 1;
    }

    ORV_INLINE void linear(const SquareAxis& axis)
    {
        int at = 0;
        for (int x = axis.begin; x < axis.end; ++x) {
            const double t = rounded(axis.centre(x) - 0.5);
            const int i = floor_of(t);
            const double f = rounded(t - i);
            const double values[2] = {rounded(1 - f), f};
            at = put_taps(axis, i, values, f > 0 ? 2 : 1, false, x - axis.begin, at);
        }
        start[axis.count()] = at;
    }

    ORV_INLINE void lanczos_taps(const SquareAxis& axis)
    {
        int at = 0;
        for (int x = axis.begin; x < axis.end; ++x) {
            const double t = rounded(axis.centre(x) - 0.5);
            const int i = floor_of(t);
            const double f = rounded(t - i);
            double values[6];
            if (f > 0) {
                for (int k = 0; k < 6; ++k) values[k] = lanczos(f + 2 - k);
                at = put_taps(axis, std::int64_t{i} - 2, values, 6, true, x - axis.begin, at);
            } else {
                values[0] = 1;
                at = put_taps(axis, i, values, 1, false, x - axis.begin, at);
            }
        }
        start[axis.count()] = at;
    }

    // The area that the position covers, as far as it lies in the rectangle.
    ORV_INLINE void area(const SquareAxis& axis)
    {
        int at = 0;
        double to = axis.source_of(axis.begin);
        for (int x = axis.begin; x < axis.end; ++x) {
            const double from = to;
            to = axis.source_of(x + 1.0);
            const double left = from > axis.low ? from : axis.low, right = to < axis.high + 1.0 ? to : axis.high + 1.0;
            const double length = rounded(right - left);
            const int position = x - axis.begin;
            start[position] = at;
            if (!(length > 0)) {
                first[position] = axis.pixel(x);
                weights[at++] = 1;
                continue;
            }
            int k = static_cast<int>(left);
            first[position] = k;
            const double whole = rounded(1 / length);
            for (; k < right; ++k) {
                const double begin = k > left ? k : left, end = k + 1.0 < right ? k + 1.0 : right;
                const double part = rounded(end - begin);
                weights[at++] = part == 1 ? whole : rounded(part / length);
            }
        }
        start[axis.count()] = at;
    }

    // How many positions, from the first one on, are the mean of two pixels of their own.
    ORV_INLINE int halved(int positions) const
    {
        const auto is_half = [this](int x) {
            const bool has_two = start[x + 1] == 2 * x + 2 && first[x] == first[0] + 2 * x;
            return has_two && weights[2 * x] == 0.5 && weights[2 * x + 1] == 0.5;
        };
        int count = 0;
        while (count < positions && is_half(count)) ++count;
        return count;
    }

    ORV_INLINE void fill(const SquareAxis& axis, int interpolation)
    {
        if (interpolation == kSupersampling) area(axis);
        else if (interpolation == kLanczos) lanczos_taps(axis);
        else linear(axis);
    }
};

}  // namespace ORV_LEVEL
}  // namespace orv
