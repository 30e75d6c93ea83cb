// Arithmetic of integers with scaling, of floats and of complex numbers.
#include <RandomNumberGenerator.h>

#include <algorithm>
#include <cmath>

#include "strips.h"

using W = ImageProcessingWrapper;

namespace {

// Light that falls off from the middle to the corners.
Picture falling_light(int width, int height)
{
    Picture light(width, height, 3);
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            const double dx = 2.0 * x / width - 1, dy = 2.0 * y / height - 1;
            std::fill_n(light.at(x, y), 3, static_cast<unsigned char>(255 - 90 * (dx * dx + dy * dy)));
        }
    }
    return light;
}

void show_integers(const Pictures& pictures, Page& page)
{
    page.family("ImageProcessingWrapper", "Integer arithmetic with scaling",
                "Exact results, multiplied by a power of two, rounded to the nearest integer and saturated.");
    const Picture& photo = pictures.photo;
    const int width = photo.width, height = photo.height;
    const Picture result(width, height, 3), mirrored = photo.copy();
    W::Mirror_8u_C3I(mirrored.data(), mirrored.step, width, height, 1);
    SHOW(page, result, "The mean of the photograph and its mirror image: the sum, halved by the scale factor 1",
         W::Add_8u_C3(photo.data(), photo.step, mirrored.data(), mirrored.step, result.data(), result.step, width,
                      height, 1));
    const Picture &left = pictures.left, &right = pictures.right;
    if (left.width == right.width && left.height == right.height) {
        const Picture apart(left.width, left.height, 3);
        page.show(left, "The left one of two pictures for two eyes");
        SHOW(page, apart, "The left picture minus the right one: near things, which are displaced most, stand out",
             W::Sub_8u_C3(right.data(), right.step, left.data(), left.step, apart.data(), apart.step, left.width,
                          left.height, -1));
    }
    static const unsigned char warm[3] = {160, 128, 96};
    SHOW(page, result, "Channels multiplied by 160, 128 and 96, and divided by 128: warmer light",
         W::MulC_8u_C3(photo.data(), photo.step, warm, result.data(), result.step, width, height, 7));
    const Picture light = falling_light(width, height), dimmed(width, height, 3);
    SHOW(
        page, dimmed, "Multiplied by a light that falls off to the corners, as a cheap lens does it",
        W::Mul_8u_C3(photo.data(), photo.step, light.data(), light.step, dimmed.data(), dimmed.step, width, height, 8));
    SHOW(page, result, "Divided by that light: the corners are back",
         W::Div_8u_C3(light.data(), light.step, dimmed.data(), dimmed.step, result.data(), result.step, width, height,
                      -8));
}

// Sixteen exposures of one scene, each with its own noise, summed as floats.
void show_averaging(const Picture& photo, Page& page)
{
    const int width = std::min(240, photo.width / 2), height = std::min(160, photo.height / 2);
    const Picture scene = part(grey(photo), photo.width / 4, photo.height / 4, width, height);
    RandomNumberGenerator random;
    random.Init(16);
    std::vector<double> noise(static_cast<std::size_t>(width));
    FloatPicture sum(width, height, 1), exposure(width, height, 1);
    for (int i = 0; i < 16; ++i) {
        W::Convert_8u32f_C1(scene.data(), scene.step, exposure.data(), exposure.step, width, height);
        for (int y = 0; y < height; ++y) {
            random.GenerateGaussian(width, noise.data(), 0, 40);
            for (int x = 0; x < width; ++x)
                *exposure.at(x, y) += static_cast<float>(noise[static_cast<std::size_t>(x)]);
        }
        W::Add_32f_C1I(exposure.data(), exposure.step, sum.data(), sum.step, width, height);
    }
    const FloatPicture mean(width, height, 1);
    SHOW(page, enlarged(beside(to_picture(exposure), to_picture(mean)), 2),
         "One of sixteen noisy exposures, and the mean of all: their sum, divided by 16",
         W::DivC_32f_C1(sum.data(), sum.step, 16, mean.data(), mean.step, width, height));
}

// Faint things beside bright ones.
void show_logarithm(const Pictures& pictures, Page& page)
{
    const Picture sky = part(pictures.deep_field, 0, 0, std::min(600, pictures.deep_field.width),
                             std::min(400, pictures.deep_field.height));
    page.show(sky, "A field of distant galaxies, most of them faint");
    FloatPicture shifted(sky.width, sky.height, 1), back(sky.width, sky.height, 1);
    const FloatPicture light = brightness(sky);
    W::AddC_32f_C1(light.data(), light.step, 4, shifted.data(), shifted.step, sky.width, sky.height);
    SHOW_IN_PLACE(page, shifted, image, to_picture(image, std::log(7.f), std::log(150.f)),
                  "The logarithm of its brightness: the faint ones can be seen",
                  W::Ln_32f_C1I(image.data(), image.step, image.width, image.height));
    page.feature();
    FloatPicture stretched(sky.width, sky.height, 1);
    W::MulC_32f_C1(light.data(), light.step, 1 / 46.f, stretched.data(), stretched.step, sky.width, sky.height);
    SHOW(page, to_picture(back, 1, 255), "The exponential of its brightness: only the brightest are left",
         W::Exp_32f_C1(stretched.data(), stretched.step, back.data(), back.step, sky.width, sky.height));
}

// Colours by the angle of complex values, brightness by their magnitude.
Picture domain_colours(const ComplexPicture& values)
{
    Picture p(values.width, values.height, 3);
    for (int y = 0; y < p.height; ++y) {
        for (int x = 0; x < p.width; ++x) {
            const Complex32f v = *values.at(x, y);
            const double angle = std::atan2(v.im, v.re), size = std::log2(std::hypot(v.re, v.im) + 1e-9);
            const double shade = 150 + 90 * (size - std::floor(size));
            for (int c = 0; c < 3; ++c)
                p.at(x, y)[c] = static_cast<unsigned char>(shade * (0.62 + 0.38 * std::cos(angle - 2.0943951 * c)));
        }
    }
    return p;
}

// (z^3 - 1) / (z^2 + i), on the square from -2 to 2.
void show_complex(Page& page)
{
    const int n = 400;
    ComplexPicture z(n, n, 1), top(n, n, 1), bottom(n, n, 1), quotient(n, n, 1);
    for (int y = 0; y < n; ++y) {
        for (int x = 0; x < n; ++x)
            *z.at(x, y) = {4.f * static_cast<float>(x) / n - 2, 2 - 4.f * static_cast<float>(y) / n};
    }
    W::Mul_32fc_C1(z.data(), z.step, z.data(), z.step, bottom.data(), bottom.step, n, n);
    W::Mul_32fc_C1(bottom.data(), bottom.step, z.data(), z.step, top.data(), top.step, n, n);
    W::AddC_32fc_C1I({-1, 0}, top.data(), top.step, n, n);
    W::AddC_32fc_C1I({0, 1}, bottom.data(), bottom.step, n, n);
    SHOW(page, domain_colours(quotient),
         "(z^3 - 1) / (z^2 + i) on the square from -2 - 2i to 2 + 2i: the angle as hue, steps of brightness where the "
         "magnitude doubles; three zeros, two poles",
         W::Div_32fc_C1(bottom.data(), bottom.step, top.data(), top.step, quotient.data(), quotient.step, n, n));
    page.feature();
}

}  // namespace

void show_arithmetic(const Pictures& pictures, Page& page)
{
    show_integers(pictures, page);
    page.family("ImageProcessingWrapper", "Float and complex arithmetic",
                "Every result rounded once; products and quotients of complex numbers, logarithms and exponentials.");
    show_averaging(pictures.photo, page);
    show_logarithm(pictures, page);
    show_complex(page);
}
