// Gaussian random numbers.
#include <RandomNumberGenerator.h>

#include <cmath>

#include "strips.h"

void show_random(const Pictures& pictures, Page& page)
{
    page.family("RandomNumberGenerator", "Random numbers",
                "Normally distributed values; the same seed gives the same ones on every processor.");
    const Picture& photo = pictures.photo;
    const int n = photo.width * photo.height, bins = 160;
    std::vector<double> noise(static_cast<std::size_t>(n));
    RandomNumberGenerator random;
    random.Init(250);
    random.GenerateGaussian(n, noise.data(), 0.0, 20.0);
    const FloatPicture light = brightness(photo);
    for (int y = 0; y < photo.height; ++y) {
        for (int x = 0; x < photo.width; ++x)
            *light.at(x, y) += static_cast<float>(noise[static_cast<std::size_t>(y * photo.width + x)]);
    }
    std::vector<double> histogram(bins, 0.0), density;
    for (const double v : noise) {
        const int bin = static_cast<int>(std::floor(v)) + bins / 2;
        if (bin >= 0 && bin < bins) histogram[static_cast<std::size_t>(bin)] += 1;
    }
    for (int i = 0; i < bins; ++i) {
        const double v = (i + 0.5 - bins / 2) / 20;
        density.push_back(n * std::exp(-v * v / 2) / 20 / std::sqrt(2 * 3.14159265358979323846));
    }
    Run run{"random.GenerateGaussian(n, noise.data(), 0.0, 20.0)"};
    run.microseconds = best_microseconds([&] { return random.GenerateGaussian(n, noise.data(), 0.0, 20.0); }, run.ok);
    page.show(Plot("value", "how often", -bins / 2, bins / 2, 0, 1.5 * density[bins / 2])
                  .columns(histogram, "#9cc29c", std::to_string(n) + " values")
                  .curve(density, "#333333", "the density they should have"),
              "Values of standard deviation 20, by whole numbers", run);
    page.show(to_picture(light), "Added to the photograph: the noise of a dark scene");
}
