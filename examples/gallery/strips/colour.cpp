// Tables, curves, luma and chroma, colour matrices, composition.
#include <algorithm>
#include <cmath>
#include <vector>

#include "strips.h"

using W = ImageProcessingWrapper;
using Byte = unsigned char;

namespace {

// A pixel of four bytes each.
struct Layer {
    int width, height, step = 0;
    std::shared_ptr<Byte> buffer;

    Layer(int w, int h) : width(w), height(h) { buffer.reset(W::Malloc_8u_C4(w, h, &step), W::Free); }
    Byte* data() const { return buffer.get(); }
    Byte* pixel(int x, int y) const { return data() + y * step + 4 * x; }
};

Layer with_alpha(const Picture& photo)
{
    Layer layer(photo.width, photo.height);
    for (int y = 0; y < photo.height; ++y) {
        for (int x = 0; x < photo.width; ++x) {
            std::copy_n(photo.data() + y * photo.step + 3 * x, 3, layer.pixel(x, y));
            layer.pixel(x, y)[3] = 255;
        }
    }
    return layer;
}
Picture without_alpha(const Layer& layer)
{
    Picture p(layer.width, layer.height, 3);
    for (int y = 0; y < p.height; ++y) {
        for (int x = 0; x < p.width; ++x) std::copy_n(layer.pixel(x, y), 3, p.data() + y * p.step + 3 * x);
    }
    return p;
}
Picture channel(const Picture& colour, int c)
{
    Picture p(colour.width, colour.height, 1);
    for (int y = 0; y < p.height; ++y) {
        for (int x = 0; x < p.width; ++x) p.data()[y * p.step + x] = colour.data()[y * colour.step + 3 * x + c];
    }
    return p;
}

// Discs of three colours with soft edges, one over the other.
Layer drawn_layer(int width, int height)
{
    Layer layer(width, height);
    const Byte colours[3][3] = {{235, 60, 50}, {60, 200, 80}, {60, 90, 235}};
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            Byte* const p = layer.pixel(x, y);
            std::fill_n(p, 4, Byte{0});
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

void show_curves(const Picture& photo, Page& page)
{
    const int width = photo.width, height = photo.height;
    Picture result(width, height, 3);
    Byte ramp[256], contrast[256], warm[256], cool[256];
    for (int i = 0; i < 256; ++i) ramp[i] = static_cast<Byte>(i);
    const Byte levels[4] = {20, 80, 170, 240}, steep[4] = {0, 55, 205, 255}, up[4] = {20, 105, 205, 255},
               down[4] = {20, 60, 130, 220};
    W::LUT_Linear_8u_C1(ramp, 256, levels, steep, 4, contrast, 256, 256, 1);
    W::LUT_Linear_8u_C1(ramp, 256, levels, up, 4, warm, 256, 256, 1);
    W::LUT_Linear_8u_C1(ramp, 256, levels, down, 4, cool, 256, 256, 1);
    const Byte* const same[3] = {contrast, contrast, contrast};
    const Byte* const evening[3] = {warm, ramp, cool};
    SHOW(page, result, W::LUT_8u_C3(photo.data(), photo.step, same, result.data(), result.step, width, height));
    SHOW(page, result, W::LUT_8u_C3(photo.data(), photo.step, evening, result.data(), result.step, width, height));
}

void show_palette(const Picture& photo, Page& page)
{
    const int width = photo.width, height = photo.height;
    std::vector<unsigned short> levels(static_cast<std::size_t>(width) * static_cast<std::size_t>(height));
    const Picture grey = to_picture(brightness(photo));
    W::Convert_8u16u_C1(grey.data(), grey.step, levels.data(), 2 * width, width, height);
    // Black, violet, red, yellow, white, by their bytes.
    const Byte stops[4] = {0, 85, 170, 225}, red[4] = {0, 150, 255, 255}, green[4] = {0, 20, 120, 255},
               blue[4] = {20, 130, 20, 220};
    Byte ramp[256], curves[3][256];
    for (int i = 0; i < 256; ++i) ramp[i] = static_cast<Byte>(i);
    W::LUT_Linear_8u_C1(ramp, 256, stops, red, 4, curves[0], 256, 256, 1);
    W::LUT_Linear_8u_C1(ramp, 256, stops, green, 4, curves[1], 256, 256, 1);
    W::LUT_Linear_8u_C1(ramp, 256, stops, blue, 4, curves[2], 256, 256, 1);
    unsigned palette[256];
    for (int i = 0; i < 256; ++i)
        palette[i] = 0xFF000000u | static_cast<unsigned>(curves[2][i]) << 16 |
                     static_cast<unsigned>(curves[1][i]) << 8 | curves[0][i];
    Layer heat(width, height);
    bool ok = false;
    const double time = best_microseconds(
        [&] {
            return W::LUTPalette_16u32u_C1R(levels.data(), 2 * width, palette, 256,
                                            reinterpret_cast<unsigned*>(heat.data()), heat.step, width, height);
        },
        ok);
    page.show(without_alpha(heat), "W::LUTPalette_16u32u_C1R(levels, ..., palette, 256, ...)", time, ok);
}

void show_luma_and_chroma(const Picture& photo, Page& page)
{
    const int width = photo.width, height = photo.height;
    Picture ycc(width, height, 3);
    bool ok = false;
    const double time = best_microseconds(
        [&] { return W::RGBToYCbCr_8u_C3(photo.data(), photo.step, ycc.data(), ycc.step, width, height, 1); }, ok);
    const char* const names[] = {"Y", "Cb", "Cr"};
    for (int c = 0; c < 3; ++c)
        page.show(channel(ycc, c), std::string("W::RGBToYCbCr_8u_C3(..., 1): ") + names[c], time, ok);
}

// A detail, there and back through 4:2:2, large enough to see single pixels.
void show_subsampling(const Picture& picture, Page& page)
{
    constexpr int kZoom = 12;
    const int w = std::min(picture.width, 64) & ~1, h = std::min(picture.height, 42), pair_step = 2 * w;
    const int x = picture.width * 44 / 100 - w / 2, y = picture.height * 48 / 100 - h / 2;
    const Byte* const from = picture.data() + y * picture.step + 3 * x;
    std::vector<Byte> pairs(static_cast<std::size_t>(pair_step) * static_cast<std::size_t>(h));
    Picture detail(w, h, 3), large(kZoom * w, kZoom * h, 3);
    W::RGBToYUV422_8u_C3C2R(from, picture.step, pairs.data(), pair_step, w, h, 1);
    bool ok = false;
    const double back = best_microseconds([&] {
        return W::YUV422ToRGB_8u_C2C3R(pairs.data(), pair_step, detail.data(), detail.step, w, h, 1);
    }, ok);
    W::ResizeNN_8u_C3R(from, w, h, picture.step, large.data(), large.step, large.width, large.height, kZoom, kZoom);
    page.show(large, "A detail of the composition, twelve times as large", 0, true);
    W::ResizeNN_8u_C3R(detail.data(), w, h, detail.step, large.data(), large.step, large.width, large.height, kZoom,
                       kZoom);
    page.show(large, "W::YUV422ToRGB_8u_C2C3R(...): two pixels share their chroma", back, ok);
}

void show_layer(const Picture& photo, Page& page)
{
    const int width = photo.width, height = photo.height;
    const Layer ground = with_alpha(photo), top = drawn_layer(width, height), composed = with_alpha(photo);
    bool ok = false;
    const double time = best_microseconds(
        [&] {
            return W::AlphaComp_8u_AC4(ground.data(), ground.step, top.data(), top.step, composed.data(), composed.step,
                                       width, height, false);
        },
        ok);
    const Picture seen = without_alpha(composed);
    page.show(seen, "W::AlphaComp_8u_AC4(photo, ..., layer, ..., false)", time, ok);
    show_subsampling(seen, page);
}

}  // namespace

void show_colour(const Picture& photo, Page& page)
{
    const int width = photo.width, height = photo.height;
    page.strip("Tables, curves, colour",
               "Curves through points become tables; luma and chroma follow a named standard; a layer is composed over "
               "the picture.");
    show_curves(photo, page);
    show_palette(photo, page);
    show_luma_and_chroma(photo, page);

    Picture result(width, height, 3);
    static const float sepia[12] = {0.393f, 0.769f, 0.189f, 0, 0.349f, 0.686f, 0.168f, 0, 0.272f, 0.534f, 0.131f, 0};
    SHOW(page, result,
         W::ColorTwist32f_8u_C3(photo.data(), photo.step, sepia, result.data(), result.step, width, height));

    show_layer(photo, page);
    const Picture mirrored = photo.copy();
    W::MirrorHorizontal_8u_C3I(mirrored.data(), mirrored.step, width, height);
    SHOW(page, result,
         W::AlphaCompC_8u_C3R(photo.data(), photo.step, mirrored.data(), mirrored.step, 100, result.data(), result.step,
                              width, height));
}
