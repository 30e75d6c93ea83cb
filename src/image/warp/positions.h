// Where destination pixels come from: up to 64 neighbours of a row at a time, their positions in the source, and
// which of them show a point of it at all.
#pragma once

#include <cstdint>
#include <type_traits>

#include "core/checks.h"
#include "core/float_control.h"
#include "core/nan.h"
#include "simd/number.h"
#include "simd/positions.h"
#include "image/warp/projection.h"
#include "image/warp/turn.h"

namespace orv {
inline namespace ORV_LEVEL {
namespace {

// Positions x >= left, x < right, likewise y.
struct Window {
    double left, top, right, bottom;

    ORV_INLINE bool holds(double x, double y) const { return x >= left && x < right && y >= top && y < bottom; }
};

// What an interpolation asks of positions.
struct Wanted {
    Window shown;  // of points
    Window
        inner;  // of what is returned, which lies within: all taps are pixels of the source, and may be read in one go
};

struct Chunk {
    static constexpr int kMost = 64;
    alignas(32) double x[kMost], y[kMost];
    std::uint64_t shown, inner;  // a bit per pixel
};

// Calls with the begin and the end of each run of set bits.
template <class Visit>
ORV_INLINE void for_each_run(std::uint64_t mask, Visit visit)
{
    while (mask != 0) {
        const int begin = __builtin_ctzll(mask);
        const std::uint64_t behind = ~(mask >> begin);
        const int end = behind == 0 ? 64 : begin + __builtin_ctzll(behind);
        visit(begin, end);
        if (end >= 64) return;
        mask &= ~std::uint64_t{0} << end;
    }
}

// A point of the source, and as an index.
template <class D>
struct Position {
    D x, y, column, row;
};
template <class D>
ORV_INLINE Position<D> point(D x, D y)
{
    return {x, y, x - of<D>(0.5), y - of<D>(0.5)};
}

// Whether all of some positions lie beyond the same side of a window.
struct Beyond {
    bool left = true, top = true, right = true, bottom = true;

    ORV_INLINE void meet(const Window& window, double x, double y)
    {
        left = left && x < window.left;
        top = top && y < window.top;
        right = right && x >= window.right;
        bottom = bottom && y >= window.bottom;
    }
    ORV_INLINE bool any() const { return left || top || right || bottom; }
};

// Destination pixels, the last ones included.
struct Area {
    double x[2], y[2];
};

// Of a map whose coordinates, for each column and each row, either never fall or never rise: what the four corners
// say holds for all that lies between.
template <class Map>
bool shows_nothing_between_corners(const Map& map, const Window& shown, const Area& area)
{
    Beyond beyond;
    for (const double y : area.y) {
        const typename Map::Row row = map.row(y);
        for (const double x : area.x) {
            const auto p = map.template at<double>(row, x, 0);
            beyond.meet(shown, p.x, p.y);
        }
    }
    return beyond.any();
}

// --- Maps -----------------------------------------------------------------------------------------

struct Rotation {
    static constexpr bool kMonotone = true;  // along a row, each coordinate either never falls or never rises
    Turn turn;
    double xShift, yShift;

    struct Row {
        double s_py, c_py;
    };
    ORV_INLINE Row row(double y) const
    {
        const double py = (y + 0.5) - yShift;
        return {turn.s * py, turn.c * py};
    }
    template <class D>
    ORV_INLINE Position<D> at(const Row& row, D x, std::int64_t) const
    {
        const D px = (x + of<D>(0.5)) - of<D>(xShift);
        return point(of<D>(turn.c) * px - of<D>(row.s_py), of<D>(turn.s) * px + of<D>(row.c_py));
    }
    bool shows_nothing(const Window& shown, const Area& area) const
    {
        return shows_nothing_between_corners(*this, shown, area);
    }
};

struct Affinity {
    static constexpr bool kMonotone = true;
    const double* m;

    struct Row {
        double x, y;
    };
    ORV_INLINE Row row(double y) const
    {
        const double centre = y + 0.5;
        return {m[1] * centre + m[2], m[4] * centre + m[5]};
    }
    template <class D>
    ORV_INLINE Position<D> at(const Row& row, D x, std::int64_t) const
    {
        const D centre = x + of<D>(0.5);
        return point(of<D>(m[0]) * centre + of<D>(row.x), of<D>(m[3]) * centre + of<D>(row.y));
    }
    bool shows_nothing(const Window& shown, const Area& area) const
    {
        return shows_nothing_between_corners(*this, shown, area);
    }
};

// What lies on the horizon or beyond has no point: NaNs.
ORV_INLINE double reciprocal_if_positive(double w) { return w > 0 ? 1 / w : from_bits_of(kPlainNan64); }
ORV_INLINE Doubles reciprocal_if_positive(Doubles w)
{
    const simd::mask_of<Doubles> in_front = greater(w, of<Doubles>(0));
    return select(in_front, of<Doubles>(1) / select(in_front, w, of<Doubles>(1)),
                  of<Doubles>(from_bits_of(kPlainNan64)));
}

struct Projection {
    static constexpr bool kMonotone = false;  // almost, but for roundings
    const double* m;

    struct Row {
        double x, y, w;
    };
    ORV_INLINE Row row(double y) const
    {
        const double centre = y + 0.5;
        return {m[1] * centre + m[2], m[4] * centre + m[5], m[7] * centre + m[8]};
    }
    template <class D>
    ORV_INLINE Position<D> at(const Row& row, D x, std::int64_t) const
    {
        const D centre = x + of<D>(0.5);
        const D r = reciprocal_if_positive(of<D>(m[6]) * centre + of<D>(row.w));
        return point((of<D>(m[0]) * centre + of<D>(row.x)) * r, (of<D>(m[3]) * centre + of<D>(row.y)) * r);
    }

    // Beyond a side where a linear function of the place, say m0 x + m1 y + m2 - left w, has one sign at all
    // corners, by more than what roundings make of it.
    bool shows_nothing(const Window& shown, const Area& area) const
    {
        const double magnitude[3] = {reach(m, area), reach(m + 3, area), reach(m + 6, area)};
        const double doubt_x = 0x1p-40 * (magnitude[0] + shown.right * magnitude[2]);
        const double doubt_y = 0x1p-40 * (magnitude[1] + shown.bottom * magnitude[2]);
        bool behind = true, left = true, top = true, right = true, bottom = true;
        for (const double y : area.y) {
            const Row r = row(y);
            for (const double x : area.x) {
                const double centre = x + 0.5, w = m[6] * centre + r.w;
                const double column = m[0] * centre + r.x, line = m[3] * centre + r.y;
                behind = behind && !(w > 0);
                left = left && column - shown.left * w < -doubt_x;
                top = top && line - shown.top * w < -doubt_y;
                right = right && column - shown.right * w > doubt_x;
                bottom = bottom && line - shown.bottom * w > doubt_y;
            }
        }
        return behind || left || top || right || bottom;
    }

private:
    // The largest sum of the magnitudes of the terms.
    static double reach(const double* terms, const Area& area)
    {
        const auto magnitude = [](double v) { return v < 0 ? -v : v; };
        return magnitude(terms[0]) * (area.x[1] + 1) + magnitude(terms[1]) * (area.y[1] + 1) + magnitude(terms[2]);
    }
};

ORV_INLINE void load_doubles(double& to, const float* p) { to = static_cast<double>(get(p)); }
ORV_INLINE void load_doubles(Doubles& to, const float* p) { to = simd::load_as<Doubles>::from(p); }

struct Maps {
    static constexpr bool kMonotone = false;
    const float *x, *y;
    int xStep, yStep;

    struct Row {
        const float *x, *y;
    };
    ORV_INLINE Row row(double y_position) const
    {
        const auto rows = static_cast<std::ptrdiff_t>(y_position);
        return {row_at(x, xStep, rows), row_at(y, yStep, rows)};
    }
    template <class D>
    ORV_INLINE Position<D> at(const Row& row, D, std::int64_t column) const
    {
        D tx, ty;
        load_doubles(tx, row.x + column);
        load_doubles(ty, row.y + column);
        return {tx + of<D>(0.5), ty + of<D>(0.5), tx, ty};
    }
    bool shows_nothing(const Window&, const Area&) const { return false; }
};

// --- Chunks ---------------------------------------------------------------------------------------

ORV_INLINE unsigned within(const Window& window, double x, double y) { return window.holds(x, y) ? 1 : 0; }
ORV_INLINE void put_lanes(double* to, double value) { *to = value; }
template <class D>
constexpr int lanes = 1;
template <class D>
ORV_INLINE D columns_from(double x);
template <>
ORV_INLINE double columns_from<double>(double x)
{
    return x;
}
template <>
constexpr int lanes<Doubles> = Doubles::N;
template <>
ORV_INLINE Doubles columns_from<Doubles>(double x)
{
    static const double ascending[] = {0, 1, 2, 3};
    return of<Doubles>(x) + simd::load<Doubles>(ascending);
}
ORV_INLINE simd::mask_of<Doubles> lanes_within(const Window& window, Doubles x, Doubles y)
{
    const auto columns = greater_equal(x, of<Doubles>(window.left)) & greater(of<Doubles>(window.right), x);
    const auto rows = greater_equal(y, of<Doubles>(window.top)) & greater(of<Doubles>(window.bottom), y);
    return columns & rows;
}
ORV_INLINE unsigned within(const Window& window, Doubles x, Doubles y)
{
    return simd::lanes_of(lanes_within(window, x, y));
}
ORV_INLINE void put_lanes(double* to, Doubles value) { simd::store(to, value); }

constexpr std::uint64_t first_bits(int count) { return ~std::uint64_t{0} >> (64 - count); }

// The pixels of a row from the column x on, which is `column` columns into the destination.
template <bool Points, class Map>
class ChunkFinder {
public:
    ORV_INLINE ChunkFinder(const Map& map, const Wanted& wanted, std::int64_t y)
        : map_(map), wanted_(wanted), row_(map.row(static_cast<double>(y)))
    {
    }

    ORV_INLINE void find(std::int64_t x, int count, Chunk& chunk) const
    {
        const auto first = static_cast<double>(x);
        chunk.shown = chunk.inner = 0;
        if (Map::kMonotone) {
            const Position<double> from = map_.template at<double>(row_, first, x),
                                   to = map_.template at<double>(row_, first + (count - 1), x);
            if (beyond(from, to)) return;
            if (is_inner(from) && is_inner(to)) {
                chunk.shown = chunk.inner = first_bits(count);
                return place_all(first, count, chunk);
            }
        }
        int k = 0;
        if constexpr (ORV_HAVE_VECTORS) {
            if (!Map::kMonotone && count == Chunk::kMost && all_inner(first, x, chunk)) {
                chunk.shown = chunk.inner = ~std::uint64_t{0};
                return;
            }
            k = test<Doubles>(first, x, k, count, chunk);
        }
        test<double>(first, x, k, count, chunk);
    }

private:
    // Both beyond the same side: so is all that lies between.
    ORV_INLINE bool beyond(const Position<double>& a, const Position<double>& b) const
    {
        Beyond both;
        both.meet(wanted_.shown, a.x, a.y);
        both.meet(wanted_.shown, b.x, b.y);
        return both.any();
    }
    ORV_INLINE bool is_inner(const Position<double>& p) const
    {
        return within(wanted_.inner, Points ? p.x : p.column, Points ? p.y : p.row) != 0;
    }
    template <class D>
    ORV_INLINE static void put(const Position<D>& p, int k, Chunk& chunk)
    {
        put_lanes(chunk.x + k, Points ? p.x : p.column);
        put_lanes(chunk.y + k, Points ? p.y : p.row);
    }
    // Whole vectors: there is room.
    ORV_INLINE void place_all(double first, int count, Chunk& chunk) const
    {
        using D = std::conditional_t<ORV_HAVE_VECTORS, Doubles, double>;
        for (int k = 0; k < count; k += lanes<D>)
            put(map_.template at<D>(row_, columns_from<D>(first + k), 0), k, chunk);
    }
    // Places a whole chunk as if all were inner, and says whether that was so: most often it is, and bits of single
    // pixels cost more than their positions.
    ORV_INLINE bool all_inner(double first, std::int64_t x, Chunk& chunk) const
    {
        for (int k = 0; k < Chunk::kMost; k += 16) {
            simd::mask_of<Doubles> all = equal(of<Doubles>(0), of<Doubles>(0));
            for (int n = k; n < k + 16; n += Doubles::N) {
                const Position<Doubles> p = map_.template at<Doubles>(row_, columns_from<Doubles>(first + n), x + n);
                put(p, n, chunk);
                all = all & lanes_within(wanted_.inner, Points ? p.x : p.column, Points ? p.y : p.row);
            }
            if (simd::lanes_of(all) != (1u << Doubles::N) - 1) return false;
        }
        return true;
    }
    // As far as whole steps go; returns how far.
    template <class D>
    ORV_INLINE int test(double first, std::int64_t x, int k, int count, Chunk& chunk) const
    {
        constexpr unsigned all = (1u << lanes<D>)-1;
        for (; k + lanes<D> <= count; k += lanes<D>) {
            const Position<D> p = map_.template at<D>(row_, columns_from<D>(first + k), x + k);
            put(p, k, chunk);
            const unsigned inner = within(wanted_.inner, Points ? p.x : p.column, Points ? p.y : p.row);
            const unsigned shown = inner == all ? all : within(wanted_.shown, p.x, p.y);
            chunk.inner |= std::uint64_t{inner} << k;
            chunk.shown |= std::uint64_t{shown} << k;
        }
        return k;
    }

    const Map& map_;
    const Wanted& wanted_;
    typename Map::Row row_;
};

}  // namespace
}  // namespace ORV_LEVEL
}  // namespace orv
