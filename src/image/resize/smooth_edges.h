// Smoothed edges: destination pixels that the image of the source rectangle covers only in part keep their
// old value for the rest. Such pixels stand in the first and the last column and row at most.
#pragma once

#include <cstdint>

#include "core/checks.h"
#include "image/resize/square_axis.h"

namespace orv {
inline namespace ORV_LEVEL {

template <class T, int Channels>
class EdgeBlend {
public:
    static std::int64_t room(std::int64_t columns, std::int64_t rows) { return 2 * (columns + rows) * Channels; }

    // Keeps the pixels that are about to be written. `dst` is the first of them.
    EdgeBlend(const SquareAxis& x, const SquareAxis& y, T* dst, int dstStep, T* saved)
        : x_(x), y_(y), dst_(dst), step_(dstStep), saved_(saved)
    {
        visit([](T* pixel, T* old, double) {
            for (int c = 0; c < Channels; ++c) move(pixel + c, old + c);
        });
    }

    void blend() const
    {
        visit([](T* pixel, T* old, double part) {
            for (int c = 0; c < Channels; ++c) {
                const double before = static_cast<double>(get(old + c)), after = static_cast<double>(get(pixel + c));
                put(pixel + c, to_pixel<T>(before + (after - before) * part));
            }
        });
    }

private:
    static ORV_INLINE void move(const T* from, T* to) { __builtin_memcpy(to, from, sizeof(T)); }

    // Every pixel that is covered in part, once.
    template <class Visit>
    void visit(Visit visitor) const
    {
        T* old = saved_;
        const int columns = x_.count(), rows = y_.count();
        const auto visit_pixel = [&](int x, int y, double part) {
            if (part >= 1) return;
            visitor(row_at(dst_, step_, y) + std::ptrdiff_t{x} * Channels, old, part);
            old += Channels;
        };
        const auto visit_row = [&](int y) {
            const double part = y_.coverage(y_.begin + y);
            if (part >= 1) return visit_ends(y, 1, visit_pixel);
            visit_pixel(0, y, part * x_.coverage(x_.begin));
            for (int x = 1; x < columns - 1; ++x) visit_pixel(x, y, part);
            if (columns > 1) visit_pixel(columns - 1, y, part * x_.coverage(x_.end - 1));
        };
        visit_row(0);
        for (int y = 1; y < rows - 1; ++y) visit_ends(y, 1, visit_pixel);
        if (rows > 1) visit_row(rows - 1);
    }
    template <class VisitPixel>
    void visit_ends(int y, double part, VisitPixel& visit_pixel) const
    {
        visit_pixel(0, y, part * x_.coverage(x_.begin));
        if (x_.count() > 1) visit_pixel(x_.count() - 1, y, part * x_.coverage(x_.end - 1));
    }

    const SquareAxis& x_;
    const SquareAxis& y_;
    T* dst_;
    int step_;
    T* saved_;
};

}  // namespace ORV_LEVEL
}  // namespace orv
