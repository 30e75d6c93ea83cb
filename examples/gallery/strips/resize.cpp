// Enlarging and reducing.
#include <cmath>

#include "strips.h"

using W = ImageProcessingWrapper;

namespace {

Picture to_picture(const WordPicture& words)
{
    Picture p(words.width, words.height, 1);
    for (int y = 0; y < p.height; ++y) {
        for (int x = 0; x < p.width; ++x) *p.at(x, y) = static_cast<unsigned char>(*words.at(x, y) / 257);
    }
    return p;
}

WordPicture to_words(const Picture& bytes)
{
    WordPicture words(bytes.width, bytes.height, 1);
    for (int y = 0; y < bytes.height; ++y) {
        for (int x = 0; x < bytes.width; ++x) *words.at(x, y) = static_cast<unsigned short>(257 * *bytes.at(x, y));
    }
    return words;
}

// Rings that become finer from the centre to the edge, where they are two pixels wide: too fine for a smaller picture.
WordPicture zone_plate(int side)
{
    WordPicture plate(side, side, 1);
    const double pi = 3.14159265358979323846;
    for (int y = 0; y < side; ++y) {
        for (int x = 0; x < side; ++x) {
            const double dx = x - side / 2, dy = y - side / 2;
            *plate.at(x, y) = static_cast<unsigned short>(32767.5 * (1 + std::cos(pi * (dx * dx + dy * dy) / side)));
        }
    }
    return plate;
}

struct Interpolation {
    int code;
    const char* name;
};

// `source` at `factor` times its size, then each pixel `zoom` times as large.
std::vector<Picture> show_interpolations(Page& page, const WordPicture& source, double factor, int zoom,
                                         const std::vector<Interpolation>& interpolations)
{
    const int width = static_cast<int>(source.width * factor), height = static_cast<int>(source.height * factor);
    std::vector<Picture> results;
    for (const auto& interpolation : interpolations) {
        int size = 0, step = 0;
        W::ResizeGetBufSize(0, 0, source.width, source.height, 0, 0, width, height, 1, interpolation.code, &size);
        const std::shared_ptr<unsigned char> work(W::Malloc_8u_C1(size, 1, &step), W::Free);
        const WordPicture result(width, height, 1);
        SHOW(page, zoom > 1 ? enlarged(to_picture(result), zoom) : to_picture(result), interpolation.name,
             W::ResizeSqrPixel_16u_C1R(source.data(), source.width, source.height, source.step, 0, 0, source.width,
                                       source.height, result.data(), result.step, 0, 0, width, height, factor, factor,
                                       0, 0, interpolation.code, work.get()));
        results.push_back(to_picture(result));
    }
    return results;
}

// The detail that enlargements show: an eye of the astronaut, or the middle of what stands in for her.
Picture detail(const Pictures& pictures, int width, int height)
{
    const Picture& from = pictures.astronaut;
    return from.width == 512 && from.height == 512
               ? part(from, 183, 92, width, height)
               : part(from, from.width / 2 - width / 2, from.height / 2 - height / 2, width, height);
}

void show_plain(const Pictures& pictures, Page& page)
{
    page.family("ImageProcessingWrapper", "Resize",
                "The whole source to the whole destination. Here eyes, eight times as large, and a page at 0.4 of its "
                "size.");
    const int w = 72, h = 48, width = 8 * w, height = 8 * h;
    const Picture piece = detail(pictures, w, h), large(width, height, 3);
    SHOW(page, large, "Enlarged by the nearest pixel",
         W::ResizeNN_8u_C3R(piece.data(), w, h, piece.step, large.data(), large.step, width, height, 8, 8));
    SHOW(page, large, "Enlarged by cubic convolution",
         W::ResizeCubic_8u_C3R(piece.data(), w, h, piece.step, large.data(), large.step, width, height, 8, 8));
    const Picture& text = pictures.page;
    const Picture nearest(text.width * 2 / 5, text.height * 2 / 5, 3), cubic = nearest.copy();
    W::ResizeNN_8u_C3R(text.data(), text.width, text.height, text.step, nearest.data(), nearest.step, nearest.width,
                       nearest.height, 0.4, 0.4);
    SHOW(page,
         enlarged(beside(part(nearest, 0, 0, nearest.width / 2, nearest.height),
                         part(cubic, 0, 0, nearest.width / 2, nearest.height)),
                  4),
         "Print at 0.4 of its size, four times as large to see it: the nearest pixel, and cubic convolution",
         W::ResizeCubic_8u_C3R(text.data(), text.width, text.height, text.step, cubic.data(), cubic.step, cubic.width,
                               cubic.height, 0.4, 0.4));
}

}  // namespace

void show_resize(const Pictures& pictures, Page& page)
{
    show_plain(pictures, page);
    page.family("ImageProcessingWrapper", "Resize by factor and shift",
                "Interpolations, on a detail of 26 x 20 pixels that becomes ten times as large.");
    const Picture piece = part(grey(detail(pictures, 72, 48)), 7, 1, 26, 20);
    const std::vector<Picture> ways = show_interpolations(page, to_words(piece), 10, 1,
                                                          {{1, "Nearest: the pixels themselves"},
                                                           {2, "Linear"},
                                                           {4, "Cubic convolution"},
                                                           {5, "B-spline: the smoothest"},
                                                           {7, "Cubic with B = 0.5, C = 0.3"},
                                                           {16, "Lanczos: the sharpest"}});
    page.show(difference(ways[2], ways[4], 8), "How the two cubics differ, eight times as strong");
    page.show(difference(ways[2], ways[5], 8), "How cubic convolution and Lanczos differ, eight times as strong");
    page.section(
        "Reducing what is too fine",
        "A zone plate of 600 x 600 pixels, whose rings become two pixels fine at the edge, at 0.4 of its size. "
        "What does not average shows rings beside the middle that are not in the picture; the average of areas "
        "shows them much weaker.");
    page.show(part(to_picture(zone_plate(600)), 150, 150, 300, 300), "The middle of the zone plate");
    show_interpolations(page, zone_plate(600), 0.4, 2,
                        {{1, "Reduced by the nearest pixel"},
                         {2, "Reduced linearly"},
                         {4, "Reduced by cubic convolution"},
                         {16, "Reduced by Lanczos"},
                         {8, "Reduced by the average of areas"}});
}
