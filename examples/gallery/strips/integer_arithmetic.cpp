// Sums, differences, products and quotients with scaling.
#include "strips.h"

using W = ImageProcessingWrapper;

void show_integer_arithmetic(const Picture& photo, Page& page)
{
    const int width = photo.width, height = photo.height;
    page.strip("Integer arithmetic", "Exact results, multiplied by 2^-scaleFactor, rounded half to even, saturated.");
    Picture result(width, height, 3);

    Picture mirrored = photo.copy();
    W::Mirror_8u_C3I(mirrored.data(), mirrored.step, width, height, 1);
    SHOW(page, result,
         W::Add_8u_C3(photo.data(), photo.step, mirrored.data(), mirrored.step, result.data(), result.step, width,
                      height, 1));
    SHOW(page, result,
         W::Sub_8u_C3(mirrored.data(), mirrored.step, photo.data(), photo.step, result.data(), result.step, width,
                      height, 0));
    SHOW(
        page, result,
        W::Mul_8u_C3(photo.data(), photo.step, photo.data(), photo.step, result.data(), result.step, width, height, 8));

    static const unsigned char warm[3] = {160, 128, 96};
    SHOW(page, result, W::MulC_8u_C3(photo.data(), photo.step, warm, result.data(), result.step, width, height, 7));
    static const unsigned char brighter[3] = {60, 60, 60};
    SHOW(page, result, W::AddC_8u_C3(photo.data(), photo.step, brighter, result.data(), result.step, width, height, 0));

    // What a blurred light does to a picture, and dividing by it undoes: light falls off to the sides.
    Picture light(width, height, 3), dimmed(width, height, 3);
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            const int dx = 2 * x - width, dy = 2 * y - height;
            const int fall =
                static_cast<int>(150LL * (static_cast<long long>(dx) * dx + static_cast<long long>(dy) * dy) /
                                 (static_cast<long long>(width) * width + static_cast<long long>(height) * height));
            for (int c = 0; c < 3; ++c)
                light.data()[y * light.step + 3 * x + c] = static_cast<unsigned char>(255 - fall);
        }
    }
    SHOW(
        page, dimmed,
        W::Mul_8u_C3(photo.data(), photo.step, light.data(), light.step, dimmed.data(), dimmed.step, width, height, 8));
    SHOW(page, result,
         W::Div_8u_C3(light.data(), light.step, dimmed.data(), dimmed.step, result.data(), result.step, width, height,
                      -8));
}
