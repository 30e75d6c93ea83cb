// The colour standards as the tests know them: the integers of every component, and the real formulas.
#pragma once

#include <algorithm>
#include <array>

namespace test {

using Triple = std::array<int, 3>;

struct Standard {
    double kr, kb;
    bool full;
    int from[9];  // Y, Cb, Cr times R, G, B
    int to[6];    // luma, constant, red of Cr, green of Cb, green of Cr, blue of Cb
};

inline const Standard& standard(int code)
{
    static const Standard all[] = {
        {0.299,
         0.114,
         false,
         {8415, 16519, 3208, -4857, -9535, 14392, 14392, -12052, -2340},
         {19077, -1160, 26149, -6419, -13320, 33050}},
        {0.299,
         0.114,
         true,
         {9798, 19235, 3735, -5529, -10855, 16384, 16384, -13720, -2664},
         {16384, 32, 22970, -5638, -11700, 29032}},
        {0.2126,
         0.0722,
         false,
         {5983, 20127, 2032, -3298, -11094, 14392, 14392, -13072, -1320},
         {19077, -1160, 29372, -3494, -8731, 34610}},
        {0.2126,
         0.0722,
         true,
         {6966, 23436, 2366, -3754, -12630, 16384, 16384, -14882, -1502},
         {16384, 32, 25802, -3069, -7670, 30402}},
    };
    return all[code];
}

inline int clamped(int v) { return std::min(255, std::max(0, v)); }

// Rounded down, for divisors above 0.
constexpr int floor_div(int n, int by) { return n >= 0 ? n / by : -((-n + by - 1) / by); }

// Of `count` pixels whose components are added up.
inline int luma(const Standard& s, const Triple& rgb)
{
    const int sum = s.from[0] * rgb[0] + s.from[1] * rgb[1] + s.from[2] * rgb[2];
    return floor_div(sum + 16384, 32768) + (s.full ? 0 : 16);
}
inline int chroma(const Standard& s, int which, const Triple& sums, int count)
{
    const int* const row = s.from + 3 * which;
    const int sum = row[0] * sums[0] + row[1] * sums[1] + row[2] * sums[2];
    return clamped(floor_div(sum + 16384 * count, 32768 * count) + 128);
}
inline Triple to_ycc(const Standard& s, const Triple& rgb)
{
    return {luma(s, rgb), chroma(s, 1, rgb, 1), chroma(s, 2, rgb, 1)};
}

inline int product(int k, int x) { return floor_div(k * x + 128, 256); }
inline Triple to_rgb(const Standard& s, const Triple& ycc)
{
    const int y = product(s.to[0], ycc[0]) + s.to[1], u = ycc[1] - 128, v = ycc[2] - 128;
    return {clamped(floor_div(y + product(s.to[2], v), 64)),
            clamped(floor_div(y + product(s.to[3], u) + product(s.to[4], v), 64)),
            clamped(floor_div(y + product(s.to[5], u), 64))};
}

}  // namespace test
