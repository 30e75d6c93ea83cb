// Fixed-kernel filters. They read a frame of one or two pixels around the region, so the region stays
// that far inside the image.
#include <RandomNumberGenerator.h>

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
    show_smoothing(photo, page);
}
