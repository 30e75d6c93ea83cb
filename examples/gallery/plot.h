// Small drawings on pictures: curves and bars, scaled to fit.
#pragma once

#include <algorithm>
#include <vector>

#include "picture.h"

inline void paint(Picture& p, int x, int y, unsigned char r, unsigned char g, unsigned char b)
{
    if (x < 0 || y < 0 || x >= p.width || y >= p.height) return;
    unsigned char* const d = p.data() + y * p.step + 3 * x;
    d[0] = r, d[1] = g, d[2] = b;
}

// An empty sheet with a frame.
inline Picture sheet(int width, int height)
{
    Picture p(width, height, 3);
    static const unsigned char paper[3] = {252, 252, 250}, ink[3] = {200, 200, 200};
    ImageProcessingWrapper::Set_8u_C3(ink, p.data(), p.step, width, height);
    ImageProcessingWrapper::Set_8u_C3(paper, p.data() + p.step + 3, p.step, width - 2, height - 2);
    return p;
}

// The values as columns from the bottom, the largest one as high as the sheet.
inline void draw_columns(Picture& p, const std::vector<double>& values, unsigned char r, unsigned char g,
                         unsigned char b)
{
    const double most = *std::max_element(values.begin(), values.end());
    for (int x = 2; x < p.width - 2; ++x) {
        const double v =
            values[static_cast<std::size_t>(x - 2) * values.size() / static_cast<std::size_t>(p.width - 4)];
        const int top = p.height - 2 - static_cast<int>((p.height - 8) * v / (most > 0 ? most : 1));
        for (int y = top; y < p.height - 2; ++y) paint(p, x, y, r, g, b);
    }
}

// The values as a curve between `low` at the bottom and `high` at the top.
inline void draw_curve(Picture& p, const std::vector<double>& values, double low, double high, unsigned char r,
                       unsigned char g, unsigned char b)
{
    int before = -1;
    for (int x = 2; x < p.width - 2; ++x) {
        const double v =
            values[static_cast<std::size_t>(x - 2) * values.size() / static_cast<std::size_t>(p.width - 4)];
        const int y =
            std::clamp(p.height - 3 - static_cast<int>((p.height - 6) * (v - low) / (high - low)), 2, p.height - 3);
        for (int at = std::min(y, before < 0 ? y : before); at <= std::max(y, before); ++at) paint(p, x, at, r, g, b);
        paint(p, x, y, r, g, b);
        before = y;
    }
}
