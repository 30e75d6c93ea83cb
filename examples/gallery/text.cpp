#include "text.h"

#include <stb/stb_easy_font.h>

#include <algorithm>
#include <vector>

namespace {

struct Vertex {
    float x, y, z;
    unsigned char colour[4];
};

}  // namespace

// The font is made of rectangles, which arrive as four corners each.
void write_text(Picture& picture, int x, int y, int scale, const std::string& text)
{
    std::string letters = text;
    std::vector<Vertex> corners(text.size() * 80 + 4);
    const int count = stb_easy_font_print(0, 0, letters.data(), nullptr, corners.data(),
                                          static_cast<int>(corners.size() * sizeof(Vertex)));
    const int channels = picture.channels;
    for (int i = 0; i < count; ++i) {
        const Vertex &first = corners[static_cast<std::size_t>(4 * i)],
                     &last = corners[static_cast<std::size_t>(4 * i + 2)];
        const int left = x + static_cast<int>(first.x) * scale, top = y + static_cast<int>(first.y) * scale;
        const int right = std::min(x + static_cast<int>(last.x) * scale, picture.width),
                  bottom = std::min(y + static_cast<int>(last.y) * scale, picture.height);
        if (left >= right || top >= bottom) continue;
        ImageProcessingWrapper::Set_8u_C1(20, picture.data() + top * picture.step + channels * left, picture.step,
                                          channels * (right - left), bottom - top);
    }
}
