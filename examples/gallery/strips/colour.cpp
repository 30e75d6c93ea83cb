// Tables, curves, luma and chroma, colour matrices, composition.
#include <algorithm>
#include <cmath>

#include "strips.h"

using W = ImageProcessingWrapper;
using Byte = unsigned char;

namespace {

// Pixels of four bytes.
Picture with_alpha(const Picture& photo)
{
    Picture layer(photo.width, photo.height, 4);
    for (int y = 0; y < photo.height; ++y) {
        for (int x = 0; x < photo.width; ++x) {
            std::copy_n(photo.at(x, y), 3, layer.at(x, y));
            layer.at(x, y)[3] = 255;
        }
    }
    return layer;
}
Picture without_alpha(const Picture& layer)
{
    Picture p(layer.width, layer.height, 3);
    for (int y = 0; y < p.height; ++y) {
        for (int x = 0; x < p.width; ++x) std::copy_n(layer.at(x, y), 3, p.at(x, y));
    }
    return p;
}

// Discs of three colours with soft edges, one over the other.
Picture drawn_layer(int width, int height)
{
    Picture layer(width, height, 4);
    const Byte colours[3][3] = {{235, 60, 50}, {60, 200, 80}, {60, 90, 235}};
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            Byte* const p = layer.at(x, y);
            for (int k = 0; k < 3; ++k) {
                const double radius = 0.3 * height, cx = width * (0.3 + 0.2 * k), cy = height * (k == 1 ? 0.38 : 0.62);
                const double inside = (radius - std::hypot(x - cx, y - cy)) / (0.15 * radius);
                const auto alpha = static_cast<Byte>(200 * std::min(1.0, std::max(0.0, inside)));
                if (alpha > p[3]) {
                    std::copy_n(colours[k], 3, p);
                    p[3] = alpha;
                }
            }
        }
    }
    return layer;
}

// The table of a curve through points.
struct Curve {
    Byte table[256];

    Curve(const std::vector<Byte>& levels, const std::vector<Byte>& values)
    {
        Byte ramp[256];
        for (int i = 0; i < 256; ++i) ramp[i] = static_cast<Byte>(i);
        W::LUT_Linear_8u_C1(ramp, 256, levels.data(), values.data(), static_cast<int>(levels.size()), table, 256, 256,
                            1);
    }
    std::vector<double> values() const { return {table, table + 256}; }
};

void show_curves(const Picture& photo, Page& page)
{
    const int width = photo.width, height = photo.height;
    const Picture result(width, height, 3);
    const Curve contrast({20, 80, 170, 240}, {0, 55, 205, 255}), warm({20, 80, 170, 240}, {20, 105, 205, 255}),
        cool({20, 80, 170, 240}, {20, 60, 130, 220}), straight({0, 255}, {0, 255});
    page.show(Plot("before", "after", 0, 256, 0, 256)
                  .names_left()
                  .curve(contrast.values(), "#333333", "contrast, all channels")
                  .curve(warm.values(), "#c25b4e", "evening, red")
                  .curve(straight.values(), "#5a9a5a", "evening, green")
                  .curve(cool.values(), "#3b76a8", "evening, blue"),
              "Curves through four points each, as tables of 256 values");
    const Byte* const same[3] = {contrast.table, contrast.table, contrast.table};
    const Byte* const evening[3] = {warm.table, straight.table, cool.table};
    SHOW(page, result, "The curve of contrast",
         W::LUT_8u_C3(photo.data(), photo.step, same, result.data(), result.step, width, height));
    SHOW(page, result, "The curves of evening light",
         W::LUT_8u_C3(photo.data(), photo.step, evening, result.data(), result.step, width, height));
}

// Black, violet, red, yellow, white, by their bytes.
void show_palette(const Picture& photo, Page& page)
{
    const Picture bytes = grey(photo), heat(photo.width, photo.height, 4);
    const WordPicture words(photo.width, photo.height, 1);
    W::Convert_8u16u_C1(bytes.data(), bytes.step, words.data(), words.step, photo.width, photo.height);
    const std::vector<Byte> stops = {0, 85, 170, 225};
    const Curve red(stops, {0, 150, 255, 255}), green(stops, {0, 20, 120, 255}), blue(stops, {20, 130, 20, 220});
    unsigned palette[256];
    for (int i = 0; i < 256; ++i)
        palette[i] = 0xFF000000u | static_cast<unsigned>(blue.table[i]) << 16 |
                     static_cast<unsigned>(green.table[i]) << 8 | red.table[i];
    SHOW(page, without_alpha(heat), "Brightness through a palette of 256 colours",
         W::LUTPalette_16u32u_C1R(words.data(), words.step, palette, 256, reinterpret_cast<unsigned*>(heat.data()),
                                  heat.step, photo.width, photo.height));
    page.feature();
}

void show_luma_and_chroma(const Pictures& pictures, Page& page)
{
    page.family("ImageProcessingWrapper", "Luma and chroma",
                "Brightness apart from colour, by named standards; chroma may be shared by two pixels.");
    const Picture& photo = pictures.astronaut;
    const int width = photo.width, height = photo.height;
    const Picture ycc(width, height, 3);
    const char* const captions[] = {"Y: the brightness", "Cb: blue, against grey", "Cr: red, against grey"};
    for (int c = 0; c < 3; ++c) {
        SHOW(page, channel(ycc, c), captions[c],
             W::RGBToYCbCr_8u_C3(photo.data(), photo.step, ycc.data(), ycc.step, width, height, 1));
    }
    // Stripes of colours: what shared chroma costs.
    constexpr int w = 48, h = 32;
    Picture stripes(w, h, 3), back(w, h, 3);
    for (int y = 0; y < h; ++y) {
        for (int x = 0; x < w; ++x) {
            const bool on = (x + y) / 3 % 2 == 0;
            const Byte colours[2][3] = {{220, 40, 40}, {40, 90, 220}};
            std::copy_n(colours[on], 3, stripes.at(x, y));
        }
    }
    std::vector<Byte> pairs(static_cast<std::size_t>(2 * w * h));
    W::RGBToYUV422_8u_C3C2R(stripes.data(), stripes.step, pairs.data(), 2 * w, w, h, 1);
    SHOW(page, enlarged(beside(stripes, back), 8),
         "Slanted stripes, and the same there and back through 4:2:2, where two pixels share their chroma",
         W::YUV422ToRGB_8u_C2C3R(pairs.data(), 2 * w, back.data(), back.step, w, h, 1));
}

void show_matrices_of_colour(const Picture& photo, Page& page)
{
    page.family("ImageProcessingWrapper", "Colour matrices",
                "Each new channel is a weighted sum of the three old ones.");
    const Picture result(photo.width, photo.height, 3);
    static const float sepia[12] = {0.393f, 0.769f, 0.189f, 0, 0.349f, 0.686f, 0.168f, 0, 0.272f, 0.534f, 0.131f, 0};
    static const float vivid[12] = {1.96f, -0.82f, -0.14f, 0, -0.42f, 1.56f, -0.14f, 0, -0.42f, -0.82f, 2.24f, 0};
    SHOW(
        page, result, "Sepia",
        W::ColorTwist32f_8u_C3(photo.data(), photo.step, sepia, result.data(), result.step, photo.width, photo.height));
    SHOW(
        page, result, "Colours twice as far from grey",
        W::ColorTwist32f_8u_C3(photo.data(), photo.step, vivid, result.data(), result.step, photo.width, photo.height));
}

void show_composition(const Picture& photo, Page& page)
{
    page.family("ImageProcessingWrapper", "Composition", "Pictures with transparent parts, laid over others.");
    const int width = photo.width, height = photo.height;
    const Picture ground = with_alpha(photo), top = drawn_layer(width, height), composed = ground.copy();
    SHOW(page, without_alpha(composed), "Discs with soft edges over the photograph",
         W::AlphaComp_8u_AC4(ground.data(), ground.step, top.data(), top.step, composed.data(), composed.step, width,
                             height, false));
    const Picture mirrored = photo.copy(), result(width, height, 3);
    W::MirrorHorizontal_8u_C3I(mirrored.data(), mirrored.step, width, height);
    SHOW(page, result, "The photograph upside down, over itself, at 100 parts of 255",
         W::AlphaCompC_8u_C3R(photo.data(), photo.step, mirrored.data(), mirrored.step, 100, result.data(), result.step,
                              width, height));
}

}  // namespace

void show_colour(const Pictures& pictures, Page& page)
{
    page.family("ImageProcessingWrapper", "Lookup tables, curves and palettes",
                "A value for each value of a pixel: curves through points, palettes.");
    show_curves(pictures.photo, page);
    show_palette(pictures.photo, page);
    show_luma_and_chroma(pictures, page);
    show_matrices_of_colour(pictures.photo, page);
    show_composition(pictures.photo, page);
}
