// Fixed-kernel filters. They read a frame of one or two pixels around the region, so the region stays
// that far inside the image.
#include <RandomNumberGenerator.h>

#include <cmath>
#include <vector>

#include "strips.h"

using W = ImageProcessingWrapper;

namespace {

// Gaussian smoothing, and noise of deviation 15 that is smoothed only where nothing stands out from it.
void show_smoothing(const Picture& photo, Page& page)
{
    const FloatPicture grey = brightness(photo);
    FloatPicture smooth(photo.width, photo.height, 1);
#define SMOOTH(size, sigma) \
    W::FilterGaussBorder_32f_C1R(grey.data(), grey.step, smooth.data(), smooth.step, photo.width, photo.height, size, \
                                 sigma); \
    SHOW(page, to_picture(smooth), \
         W::FilterGaussBorder_32f_C1R(grey.data(), grey.step, smooth.data(), smooth.step, photo.width, photo.height, \
                                      size, sigma))
    SMOOTH(7, 1);
    SMOOTH(25, 4);
    SMOOTH(97, 16);
#undef SMOOTH

    RandomNumberGenerator random;
    random.Init(7);
    std::vector<double> noise(static_cast<std::size_t>(photo.width));
    for (int y = 0; y < photo.height; ++y) {
        random.GenerateGaussian(photo.width, noise.data(), 0.0, 15.0);
        float* const row = grey.data() + y * (grey.step / 4);
        for (int x = 0; x < photo.width; ++x) row[x] += static_cast<float>(noise[static_cast<std::size_t>(x)]);
    }
    page.show(to_picture(grey), "Gaussian noise of deviation 15", 0, true);
    const int width = photo.width - 6, height = photo.height - 6;
    const float* const centre = grey.data() + 3 * (grey.step / 4) + 3;
    FloatPicture clean(width, height, 1);
    double variance = 15 * 15;
    W::FilterWiener_32f_C1(centre, grey.step, clean.data(), clean.step, width, height, 7, 7, &variance);
    SHOW(page, to_picture(clean),
         W::FilterWiener_32f_C1(centre, grey.step, clean.data(), clean.step, width, height, 7, 7, &variance));
}

// Kernels of one's own: light from the upper left on the brightness as if it were a height, and a smooth derivative at
// 30 degrees to the rows.
void show_convolution(const Picture& photo, Page& page)
{
    const int width = photo.width - 4, height = photo.height - 4;
    const FloatPicture grey = brightness(photo);
    const Picture bytes = to_picture(grey);
    const unsigned char* const centre = bytes.data() + 2 * bytes.step + 2;
    static const int emboss[9] = {1, 1, 0, 1, 0, -1, 0, -1, -1};
    int step = 0;
    short* const slopes = W::Malloc_16s_C1(width, height, &step);
    bool ok = false;
    const double time = best_microseconds(
        [&] { return W::Filter_8u16s_C1R(centre, bytes.step, slopes, step, width, height, emboss, 3, 3, 1, 1, 1); },
        ok);
    // On middle grey.
    FloatPicture relief(width, height, 1);
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) relief.data()[y * (relief.step / 4) + x] = slopes[y * (step / 2) + x];
    }
    W::Free(slopes);
    page.show(to_picture(relief, -200, 200), "Filter_8u16s_C1R, kernel 1 1 0 / 1 0 -1 / 0 -1 -1", time, ok);

    float across[25];
    const float c = std::cos(0.5235988f), s = std::sin(0.5235988f);
    for (int j = -2; j <= 2; ++j) {
        for (int i = -2; i <= 2; ++i) {
            const float u = c * static_cast<float>(i) + s * static_cast<float>(j);
            across[(j + 2) * 5 + i + 2] = u * std::exp(-static_cast<float>(i * i + j * j) / 2);
        }
    }
    const float* const inner = grey.data() + 2 * (grey.step / 4) + 2;
    FloatPicture edges(width, height, 1);
    W::Filter_32f_C1R(inner, grey.step, edges.data(), edges.step, width, height, across, 5, 5, 2, 2);
    SHOW(page, to_picture(edges, -150, 150),
         W::Filter_32f_C1R(inner, grey.step, edges.data(), edges.step, width, height, across, 5, 5, 2, 2));
}

}  // namespace

void show_filters(const Picture& photo, Page& page)
{
    const int width = photo.width - 4, height = photo.height - 4;
    page.strip(
        "Filters",
        "3x3 and 5x5 neighbourhoods, edges in grey, zero in the middle; Gaussians of three widths; noise removed.");
    Picture smooth(width, height, 3);
    const unsigned char* const inner = photo.data() + 2 * photo.step + 6;
    SHOW(page, smooth, W::FilterLowpass3x3_8u_C3R(inner, photo.step, smooth.data(), smooth.step, width, height));
    SHOW(page, smooth, W::FilterLowpass5x5_8u_C3R(inner, photo.step, smooth.data(), smooth.step, width, height));

    const FloatPicture grey = brightness(photo);
    const float* const centre = grey.data() + 2 * (grey.step / 4) + 2;
    FloatPicture edges(width, height, 1);
#define EDGES(method, range) \
    W::method(centre, grey.step, edges.data(), edges.step, width, height); \
    SHOW(page, to_picture(edges, -(range), range), \
         W::method(centre, grey.step, edges.data(), edges.step, width, height))
    EDGES(FilterHipass3x3_32f_C1R, 60);
    EDGES(FilterHipass5x5_32f_C1R, 300);
    EDGES(FilterLaplace3x3_32f_C1R, 60);
    EDGES(FilterLaplace5x5_32f_C1R, 200);
    EDGES(FilterSobelCross3x3_32f_C1R, 20);
    EDGES(FilterSobelCross5x5_32f_C1R, 150);
#undef EDGES
    show_convolution(photo, page);
    show_smoothing(photo, page);
}
