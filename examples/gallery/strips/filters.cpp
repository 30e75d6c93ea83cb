// Filters with fixed kernels, smoothing with parameters, kernels of one's own. They read a frame of pixels around the
// region, so the region stays that far inside the image.
#include <RandomNumberGenerator.h>

#include <cmath>

#include "strips.h"

using W = ImageProcessingWrapper;

namespace {

void show_fixed(const Pictures& pictures, Page& page)
{
    page.family("ImageProcessingWrapper", "Fixed-kernel filters",
                "Means, and differences that are grey where nothing changes; 3 x 3 and 5 x 5 pixels. The pictures are "
                "details, twice as large.");
    const Picture& photo = pictures.cat;
    const int x = photo.width / 3, y = photo.height / 5, width = std::min(200, photo.width - x - 2),
              height = std::min(150, photo.height - y - 2);
    const Picture result(width, height, 3);
    page.show(enlarged(part(photo, x, y, width, height), 2), "A detail");
    SHOW(page, enlarged(result, 2), "The mean of 5 x 5 pixels",
         W::FilterLowpass5x5_8u_C3R(photo.at(x, y), photo.step, result.data(), result.step, width, height));
    const FloatPicture light = brightness(photo);
    const float* const region = light.at(x, y);
    const FloatPicture out(width, height, 1);
#define DETAIL(method, range, caption)                                 \
    SHOW(page, enlarged(to_picture(out, -(range), range), 2), caption, \
         W::method(region, light.step, out.data(), out.step, width, height))
    DETAIL(FilterHipass3x3_32f_C1R, 160, "High-pass, 3 x 3: the pixel against its neighbours");
    DETAIL(FilterHipass5x5_32f_C1R, 700, "High-pass, 5 x 5: coarser details, too");
    DETAIL(FilterLaplace5x5_32f_C1R, 500, "Laplace, 5 x 5: the second derivative");
    DETAIL(FilterSobelCross3x3_32f_C1R, 40, "Sobel's cross derivative, 3 x 3: corners and slanted lines");
    DETAIL(FilterSobelCross5x5_32f_C1R, 400, "Sobel's cross derivative, 5 x 5");
#undef DETAIL
}

void show_gauss(const Picture& photo, Page& page)
{
    const FloatPicture light = brightness(photo), smooth(photo.width, photo.height, 1);
    const int width = photo.width, height = photo.height;
    SHOW(page, to_picture(smooth), "Gaussian of deviation 3",
         W::FilterGaussBorder_32f_C1R(light.data(), light.step, smooth.data(), smooth.step, width, height, 19, 3.f));
    SHOW(page, to_picture(smooth), "Gaussian of deviation 12",
         W::FilterGaussBorder_32f_C1R(light.data(), light.step, smooth.data(), smooth.step, width, height, 73, 12.f));
}

// Noise of deviation 15, smoothed only where nothing stands out from it.
void show_wiener(const Picture& photo, Page& page)
{
    const FloatPicture light = brightness(photo);
    RandomNumberGenerator random;
    random.Init(7);
    std::vector<double> noise(static_cast<std::size_t>(photo.width));
    for (int y = 0; y < photo.height; ++y) {
        random.GenerateGaussian(photo.width, noise.data(), 0.0, 15.0);
        for (int x = 0; x < photo.width; ++x) *light.at(x, y) += static_cast<float>(noise[static_cast<std::size_t>(x)]);
    }
    const int x = photo.width / 3, y = photo.height / 6, width = std::min(180, photo.width - x - 4),
              height = std::min(180, photo.height - y - 4);
    const FloatPicture clean(width, height, 1);
    double variance = 15 * 15;
    SHOW(page, enlarged(beside(to_picture(part(light, x, y, width, height)), to_picture(clean)), 2),
         "Gaussian noise of deviation 15, and what Wiener's filter of 5 x 5 pixels leaves of it: edges stay",
         W::FilterWiener_32f_C1(light.at(x, y), light.step, clean.data(), clean.step, width, height, 5, 5, &variance));
}

// Light from the upper left on the brightness as if it were a height.
void show_relief(const Picture& photo, Page& page)
{
    const Picture bytes = grey(photo);
    const int width = photo.width - 4, height = photo.height - 4;
    static const int emboss[9] = {1, 1, 0, 1, 0, -1, 0, -1, -1};
    const Rows<short> slopes(width, height, 1);
    const auto picture = [&] {
        const FloatPicture relief(width, height, 1);
        for (int y = 0; y < height; ++y) {
            for (int x = 0; x < width; ++x) *relief.at(x, y) = *slopes.at(x, y);
        }
        return to_picture(relief, -200, 200);
    };
    SHOW(page, picture(), "Light from the upper left: the kernel 1 1 0 / 1 0 -1 / 0 -1 -1",
         W::Filter_8u16s_C1R(bytes.at(2, 2), bytes.step, slopes.data(), slopes.step, width, height, emboss, 3, 3, 1, 1,
                             1));
    page.feature();
}

void show_motion(const Picture& photo, Page& page)
{
    constexpr int reach = 10;
    const int width = photo.width - 2 * reach, height = photo.height - 2 * reach;
    int diagonal[(2 * reach + 1) * (2 * reach + 1)] = {};
    for (int i = 0; i <= 2 * reach; ++i) diagonal[i * (2 * reach + 1) + i] = 1;
    const Picture blurred(width, height, 3);
    SHOW(page, blurred, "A camera that moved to the lower right: 21 pixels of a diagonal, 21 x 21 weights",
         W::Filter_8u_C3R(photo.at(reach, reach), photo.step, blurred.data(), blurred.step, width, height, diagonal,
                          2 * reach + 1, 2 * reach + 1, reach, reach, 2 * reach + 1));
}

// A smooth derivative at 30 degrees to the rows.
void show_direction(const Picture& photo, Page& page)
{
    const FloatPicture light = brightness(photo);
    const int width = photo.width - 4, height = photo.height - 4;
    float across[25];
    const float c = std::cos(0.5235988f), s = std::sin(0.5235988f);
    for (int j = -2; j <= 2; ++j) {
        for (int i = -2; i <= 2; ++i) {
            const float u = c * static_cast<float>(i) + s * static_cast<float>(j);
            across[(j + 2) * 5 + i + 2] = u * std::exp(-static_cast<float>(i * i + j * j) / 2);
        }
    }
    const FloatPicture edges(width, height, 1);
    SHOW(page, to_picture(edges, -70, 70), "A smooth derivative in the direction of 30 degrees",
         W::Filter_32f_C1R(light.at(2, 2), light.step, edges.data(), edges.step, width, height, across, 5, 5, 2, 2));
}

}  // namespace

void show_filters(const Pictures& pictures, Page& page)
{
    show_fixed(pictures, page);
    page.family("ImageProcessingWrapper", "Smoothing filters with parameters",
                "Gaussians of any width, and a filter that smooths where there is nothing but noise.");
    show_gauss(pictures.photo, page);
    show_wiener(pictures.astronaut, page);
}

void show_convolution(const Pictures& pictures, Page& page)
{
    page.family("ImageProcessingWrapper", "Convolution", "Kernels of one's own, of integers or of floats.");
    show_relief(pictures.coins, page);
    show_motion(pictures.photo, page);
    show_direction(pictures.retina, page);
}
