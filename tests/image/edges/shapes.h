// Thin lines that chains of neighbours have to follow, and images of them.
#pragma once

#include <set>
#include <utility>
#include <vector>

namespace test {

using Point = std::pair<int, int>;  // x, y
using Path = std::vector<Point>;

// What chains of eight-neighbours, all of which may be had, join to the seeds, themselves among them.
template <class MayBeHad>
std::set<Point> joined(const Path& seeds, MayBeHad may_be_had)
{
    std::set<Point> reached(seeds.begin(), seeds.end());
    for (Path edge = seeds, next; !edge.empty(); edge.swap(next), next.clear()) {
        for (const Point& p : edge) {
            for (int i = 0; i < 9; ++i) {
                const Point q = {p.first + i % 3 - 1, p.second + i / 3 - 1};
                if (may_be_had(q) && reached.insert(q).second) next.push_back(q);
            }
        }
    }
    return reached;
}

// Inward from the upper left corner; the windings lie `pitch` apart.
inline Path spiral(int width, int height, int pitch)
{
    Path path = {{0, 0}};
    int left = 0, top = 0, right = width - 1, bottom = height - 1, x = 0, y = 0;
    const auto go = [&](int to_x, int to_y) {
        while (x != to_x || y != to_y) {
            x += (to_x > x) - (to_x < x);
            y += (to_y > y) - (to_y < y);
            path.push_back({x, y});
        }
    };
    for (;;) {
        if (right - x < pitch) return path;
        go(right, y);
        top = y + pitch;
        if (bottom - y < pitch) return path;
        go(x, bottom);
        right = x - pitch;
        if (x - left < pitch) return path;
        go(left, y);
        bottom = y - pitch;
        if (y - top < pitch) return path;
        go(x, top);
        left = x + pitch;
    }
}

// Row after row, to and fro.
inline Path serpentine(int width, int height, int pitch)
{
    Path path;
    for (int y = 0; y < height; ++y) {
        const bool back = y / pitch % 2 != 0;
        for (int i = 0; i < (y % pitch == 0 ? width : 1); ++i) {
            const int end = y / pitch % 2 == 0 ? width - 1 : 0;
            path.push_back({y % pitch != 0 ? end : back ? width - 1 - i : i, y});
        }
    }
    return path;
}
inline Path turned(Path path)
{
    for (Point& p : path) std::swap(p.first, p.second);
    return path;
}

template <class T>
struct Grid {
    int width, height;
    std::vector<T> pixels;
    Grid(int w, int h, T value = T{})
        : width(w), height(h), pixels(static_cast<std::size_t>(w) * static_cast<std::size_t>(h), value)
    {
    }
    bool contains(int x, int y) const { return x >= 0 && x < width && y >= 0 && y < height; }
    T& at(int x, int y)
    {
        return pixels[static_cast<std::size_t>(y) * static_cast<std::size_t>(width) + static_cast<std::size_t>(x)];
    }
    T at(int x, int y) const { return const_cast<Grid*>(this)->at(x, y); }
    void draw(const Path& path, T value)
    {
        for (const Point& p : path) at(p.first, p.second) = value;
    }
};

}  // namespace test
