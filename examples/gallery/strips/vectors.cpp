// The elementary functions of vectors against exact values, and what a window does to a spectrum.
#include <FFTWrapper.h>
#include <SignalProcessingWrapper.h>

#include <cmath>

#include "plot.h"
#include "strips.h"

namespace {

using W = SignalProcessingWrapper;

constexpr int kPoints = 1 << 16;

std::vector<float> ramp(double from, double to)
{
    std::vector<float> x;
    for (int i = 0; i < kPoints; ++i) x.push_back(static_cast<float>(from + (to - from) * i / (kPoints - 1)));
    return x;
}

// The greatest of each column's errors, in units of the last place of the exact value.
std::vector<double> errors(const std::vector<float>& result, const std::vector<long double>& exact, int columns)
{
    std::vector<double> worst(static_cast<std::size_t>(columns), 0.0);
    for (std::size_t i = 0; i < result.size(); ++i) {
        int exponent;
        std::frexp(exact[i], &exponent);
        const long double unit = std::ldexp(1.0L, exponent - 24);
        const double error = static_cast<double>(std::fabs(result[i] - exact[i]) / unit);
        double& column = worst[i * worst.size() / result.size()];
        column = std::max(column, error);
    }
    return worst;
}

Picture error_plot(const std::vector<float>& result, const std::vector<long double>& exact, double top)
{
    Picture p = sheet(640, 200);
    draw_curve(p, errors(result, exact, p.width - 4), 0, top, 160, 60, 40);
    return p;
}

template <class Exact>
std::vector<long double> exact_of(const std::vector<float>& x, Exact exact)
{
    std::vector<long double> y;
    for (const float v : x) y.push_back(exact(static_cast<long double>(v)));
    return y;
}

void show_errors(Page& page)
{
    const std::vector<float> angle = ramp(-25, 25), exponent = ramp(-80, 80), ones(kPoints, 1.0f);
    std::vector<float> y(kPoints);
    const auto sine = exact_of(angle, [](long double x) { return sinl(x); });
    SHOW(page, error_plot(y, exact_of(exponent, [](long double x) { return expl(x); }), 1),
         W::Exp_32f(exponent.data(), y.data(), kPoints));
    SHOW(page, error_plot(y, exact_of(angle, [](long double x) { return atan2l(x, 1); }), 1),
         W::Atan2_32f_A24(angle.data(), ones.data(), y.data(), kPoints));
    SHOW(page, error_plot(y, exact_of(angle, [](long double x) { return hypotl(x, 1); }), 1),
         W::Hypot_32f_A24(angle.data(), ones.data(), y.data(), kPoints));
    SHOW(page, error_plot(y, sine, 8192), W::Sin_32f_A11(angle.data(), y.data(), kPoints));
    std::vector<float> cosine(kPoints);
    SHOW(page, error_plot(y, sine, 8192), W::SinCos_32f_A11(angle.data(), y.data(), cosine.data(), kPoints));
}

std::vector<double> decibels(const std::vector<float>& power, int count)
{
    std::vector<double> d;
    for (int i = 0; i < count; ++i) d.push_back(10 * std::log10(power[static_cast<std::size_t>(i)] + 1e-9));
    return d;
}

void show_windows(Page& page)
{
    const int n = 1024;
    const double pi = 3.14159265358979323846;
    std::vector<float> none(n, 1.0f), window(n), tones(n), power(n);
    for (int i = 0; i < n; ++i) {
        const double t = 2 * pi * i / n;
        tones[static_cast<std::size_t>(i)] = static_cast<float>(std::sin(60.5 * t) + 0.003 * std::sin(90 * t));
    }
    Picture shape = sheet(640, 200), spectra = sheet(640, 360);
    SHOW(page, (draw_curve(shape, std::vector<double>(window.begin(), window.end()), 0, 1.05, 60, 90, 160), shape),
         W::WinHamming_32f(none.data(), window.data(), n));
    FFTWrapper fft(n);
    fft.PsdFFT(tones.data(), none.data(), power.data(), n);
    draw_curve(spectra, decibels(power, 158), -40, 60, 190, 190, 190);
    fft.PsdFFT(tones.data(), window.data(), power.data(), n);
    draw_curve(spectra, decibels(power, 158), -40, 60, 60, 90, 160);
    SHOW(page, spectra, fft.PsdFFT(tones.data(), window.data(), power.data(), n));
}

}  // namespace

void show_vectors(Page& page)
{
    page.strip("Elementary functions and windows",
               "Errors against exact values, each column the worst of a hundred arguments, in units of the last place: "
               "the sheet is one unit high for "
               "exponential, arc tangent (from -25 to 25) and hypotenuse, half a unit being perfect rounding, and 2^13 "
               "units, 11 bits, for "
               "the sines of the cheap class, alone and together with the cosine. Below, the Hamming window, and a "
               "tone with one 50 dB weaker beside it: "
               "without the window (grey) the leakage of the first hides the second.");
    show_errors(page);
    show_windows(page);
}
