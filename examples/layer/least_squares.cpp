// A least-squares fit by the normal equations: a falling ball, its height measured once every 20 ms.
#include <cstdio>
#include <orvane/orvane.hpp>
#include <vector>

int main()
{
    constexpr int kPoints = 100;
    std::vector<double> heights(kPoints), design(3 * kPoints);
    orvane::gaussian(1)(heights, 0, 0.002).check();  // 2 mm of noise
    for (std::size_t k = 0; k < kPoints; ++k) {
        const double t = 0.02 * static_cast<double>(k);
        heights[k] += 20 + 1.5 * t - 4.905 * t * t;
        for (std::size_t power = 0; power < 3; ++power)
            design[3 * k + power] = power == 0 ? 1 : t * design[3 * k + power - 1];
    }
    const orvane::matrix<const double> a(design.data(), kPoints, 3);

    // (a' a) x = a' heights
    double normal[3][3];
    std::vector<double> right(3), fit(3), fitted(kPoints);
    orvane::transpose_multiply(a, a, normal).check();
    orvane::transpose_multiply(a, heights, right).check();
    orvane::invert(normal, normal).check();
    orvane::multiply(normal, right, fit).check();
    orvane::multiply(a, fit, fitted).check();

    double squares = 0;
    for (std::size_t k = 0; k < kPoints; ++k) squares += (heights[k] - fitted[k]) * (heights[k] - fitted[k]);
    std::printf("h(0) = %.2f m, v(0) = %.2f m/s, g = %.2f m/s^2\n", fit[0], fit[1], -2 * fit[2]);
    std::printf("variance of the rest: %.1f mm^2\n", 1e6 * squares / (kPoints - 3));

    const double singular[2][2] = {{1, 2}, {2, 4}};
    double inverse[2][2];
    std::puts(orvane::invert(singular, inverse).message().c_str());
}
