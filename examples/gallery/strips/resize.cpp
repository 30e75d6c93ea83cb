// Enlarging and reducing.
#include <cmath>

#include "strips.h"

using W = ImageProcessingWrapper;

namespace {

// A 16-bit picture of one channel.
struct WordPicture {
    int width, height, step = 0;
    std::shared_ptr<unsigned short> buffer;

    WordPicture(int w, int h) : width(w), height(h), buffer(W::Malloc_16u_C1(w, h, &step), W::Free) {}
    unsigned short& at(int x, int y) const { return buffer.get()[y * (step / 2) + x]; }
};

Picture to_picture(const WordPicture& words)
{
    Picture p(words.width, words.height, 1);
    for (int y = 0; y < p.height; ++y) {
        for (int x = 0; x < p.width; ++x) p.data()[y * p.step + x] = static_cast<unsigned char>(words.at(x, y) / 257);
    }
    return p;
}

WordPicture to_words(const FloatPicture& grey, int left, int top, int width, int height)
{
    WordPicture words(width, height);
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x)
            words.at(x, y) = static_cast<unsigned short>(257 * grey.data()[(top + y) * (grey.step / 4) + left + x]);
    }
    return words;
}

// Rings that become finer from the centre to the edge, where they are two pixels wide: whatever a reduction
// does not average shows up as rings that are not there.
WordPicture zone_plate(int side)
{
    WordPicture plate(side, side);
    const double pi = 3.14159265358979323846;
    for (int y = 0; y < side; ++y) {
        for (int x = 0; x < side; ++x) {
            const double dx = x - side / 2, dy = y - side / 2;
            plate.at(x, y) = static_cast<unsigned short>(32767.5 * (1 + std::cos(pi * (dx * dx + dy * dy) / side)));
        }
    }
    return plate;
}

// `source` at `factor` times its size through every interpolation of the resampler, one beside the other.
void show_interpolations(Page& page, const WordPicture& source, double factor)
{
    const struct {
        int code;
        const char* name;
    } interpolations[] = {{1, "nearest"}, {2, "linear"},  {4, "cubic"}, {5, "B-spline"}, {7, "cubic, B = 0.5, C = 0.3"},
                          {8, "area"},    {16, "Lanczos"}};
    const int width = static_cast<int>(source.width * factor), height = static_cast<int>(source.height * factor);
    for (const auto& interpolation : interpolations) {
        int size = 0;
        W::ResizeGetBufSize(0, 0, source.width, source.height, 0, 0, width, height, 1, interpolation.code, &size);
        int step = 0;
        const std::shared_ptr<unsigned char> work(W::Malloc_8u_C1(size, 1, &step), W::Free);
        const WordPicture result(width, height);
        bool ok = false;
        const double time = best_microseconds(
            [&] {
                return W::ResizeSqrPixel_16u_C1R(source.buffer.get(), source.width, source.height, source.step, 0, 0,
                                                 source.width, source.height, result.buffer.get(), result.step, 0, 0,
                                                 width, height, factor, factor, 0, 0, interpolation.code, work.get());
            },
            ok);
        page.show(to_picture(result), std::string("ResizeSqrPixel_16u_C1R, ") + interpolation.name, time, ok);
    }
}

}  // namespace

void show_resize(const Picture& photo, Page& page)
{
    const int w = 80, h = 53, left = photo.width * 4 / 5, top = photo.height * 2 / 5;
    const unsigned char* const piece = photo.data() + top * photo.step + 3 * left;
    page.strip("Enlarging", "A piece of the photograph, eight times as large: the nearest pixel, cubic and B-spline.");
    Picture large(8 * w, 8 * h, 3);
    SHOW(page, large, W::ResizeNN_8u_C3R(piece, w, h, photo.step, large.data(), large.step, 8 * w, 8 * h, 8, 8));
    SHOW(page, large, W::ResizeCubic_8u_C3R(piece, w, h, photo.step, large.data(), large.step, 8 * w, 8 * h, 8, 8));
    const float zoom = 1;  // the whole picture
    SHOW(page, large,
         W::Resize_8u_C3(piece, photo.step, w, h, large.data(), large.step, 8 * w, 8 * h, zoom, 0, 0, true));

    page.strip("Interpolations",
               "A smaller piece in 16 bits, four times as large, through every interpolation of the resampler.");
    const FloatPicture grey = brightness(photo);
    show_interpolations(page, to_words(grey, left, top, w, h), 4);

    page.strip("Reducing",
               "The photograph at a quarter of its size: the nearest pixel, cubic, the average of the area.");
    Picture small(photo.width / 4, photo.height / 4, 3);
    SHOW(page, small,
         W::ResizeNN_8u_C3R(photo.data(), photo.width, photo.height, photo.step, small.data(), small.step, small.width,
                            small.height, 0.25, 0.25));
    SHOW(page, small,
         W::ResizeCubic_8u_C3R(photo.data(), photo.width, photo.height, photo.step, small.data(), small.step,
                               small.width, small.height, 0.25, 0.25));
    SHOW(page, small,
         W::Resize_8u_C3(photo.data(), photo.step, photo.width, photo.height, small.data(), small.step, small.width,
                         small.height, zoom, 0, 0, false));

    page.strip(
        "Zone plate",
        "Fine rings at two fifths of their size. The average of the area alone filters before it reduces: the rings "
        "that the others show beside the middle are not in the picture.");
    show_interpolations(page, zone_plate(600), 0.4);
}
