// Vectors: arithmetic, elementary functions against exact values, and what a window does to a spectrum.
#include <FFTWrapper.h>
#include <SignalProcessingWrapper.h>

#include <algorithm>
#include <cmath>
#include <random>

#include "strips.h"

namespace {

using W = SignalProcessingWrapper;

constexpr int kPoints = 1 << 16;
constexpr double kPi = 3.14159265358979323846;

std::vector<float> ramp(double from, double to, int points = kPoints)
{
    std::vector<float> x;
    for (int i = 0; i < points; ++i) x.push_back(static_cast<float>(from + (to - from) * i / (points - 1)));
    return x;
}

std::vector<double> doubles(const std::vector<float>& x) { return {x.begin(), x.end()}; }

void show_memory(Page& page)
{
    page.family("SignalProcessingWrapper", "Buffers",
                "Vectors that begin on 64-byte boundaries: W::Malloc_32f(n) and its like, released by W::Free.");
    page.family("SignalProcessingWrapper", "Filling and moving",
                "Elements are moved as if through a temporary, also within one vector.");
    std::vector<unsigned short> v;
    for (int i = 0; i < 64; ++i) v.push_back(static_cast<unsigned short>(i < 32 ? 100 * i : 0));
    std::vector<unsigned short> moved = v;
    const Run run{"W::Copy_16u(&moved[0], &moved[16], 40)", 0, W::Copy_16u(&moved[0], &moved[16], 40)};
    page.show(Plot("element", "value", 0, 64, 0, 4000)
                  .curve({v.begin(), v.end()}, "#999999", "before")
                  .curve({moved.begin(), moved.end()}, "#3b76a8", "after"),
              "Forty elements, moved to the right by sixteen within their own vector", run);
}

void show_conversion(Page& page)
{
    page.family("SignalProcessingWrapper", "Conversion",
                "From one type of elements to another: rounded to the nearest, ties to even, saturated.");
    const int n = 640;
    std::vector<float> tone(n), back(n);
    std::vector<unsigned char> bytes(n);
    for (int i = 0; i < n; ++i) {
        const double t = 2 * kPi * i / n;
        tone[static_cast<std::size_t>(i)] = static_cast<float>(3 + 4.5 * std::sin(t));
    }
    SHOW(page,
         Plot("element", "value", 0, n, -2, 8)
             .curve(doubles(tone), "#999999", "32f")
             .curve(doubles(back), "#3b76a8", "8u"),
         "Floats as bytes: steps of whole numbers, and nothing below 0",
         W::Convert_32f8u(tone.data(), bytes.data(), n) && W::Convert_8u32f(bytes.data(), back.data(), n));
}

// How far values are from start + step i, in millionths.
std::vector<double> drift(const std::vector<double>& v, double start, double step)
{
    std::vector<double> errors;
    for (std::size_t i = 0; i < v.size(); i += 2000) {
        const long double exact = static_cast<long double>(start) + static_cast<long double>(step) * i;
        errors.push_back(static_cast<double>((v[i] - exact) * 1e6L));
    }
    return errors;
}

void show_ramps(Page& page)
{
    page.family("SignalProcessingWrapper", "Slopes and ramps",
                "Values at even distances, each from its own index, so that no error adds up.");
    const int n = 1000000;
    std::vector<double> slope(n), sums(n);
    double sum = 0;
    for (double& value : sums) {
        value = sum;
        sum += 0.1;
    }
    SHOW(page,
         Plot("thousand elements", "error (millionths)", 0, n / 1000, -0.5, 1.5)
             .curve(drift(sums, 0, 0.1), "#999999", "0.1 added again and again")
             .curve(drift(slope, 0, 0.1), "#3b76a8", "the slope"),
         "A million steps of 0.1", W::VectorSlope_64f(0, 0.1, slope.data(), n));
}

void show_vector_arithmetic(Page& page)
{
    page.family("SignalProcessingWrapper", "Vector arithmetic",
                "Sums, products and quotients of vectors and constants.");
    const int n = 640;
    const std::vector<float> t = ramp(0, 1, n), fade = ramp(1, 0, n);
    std::vector<float> low, high, sum(n), product(n);
    for (const float x : t) {
        low.push_back(static_cast<float>(std::sin(2 * kPi * 4 * x)));
        high.push_back(static_cast<float>(0.4 * std::sin(2 * kPi * 30 * x)));
    }
    Run run{
        "W::Add_32f(low.data(), high.data(), sum.data(), n) && W::Mul_32f(sum.data(), fade.data(), product.data(), n)"};
    run.microseconds = best_microseconds(
        [&] {
            return W::Add_32f(low.data(), high.data(), sum.data(), n) &&
                   W::Mul_32f(sum.data(), fade.data(), product.data(), n);
        },
        run.ok);
    page.show(Plot("time (s)", "amplitude", 0, 1, -1.6, 2.6)
                  .curve(doubles(sum), "#b9c6d3", "4 Hz and 30 Hz, added")
                  .curve(doubles(product), "#3b76a8", "times a ramp: faded out"),
              "Two tones, mixed and faded out", run);
}

// The greatest of each column's errors, in units of the last place of the exact value.
std::vector<double> errors(const std::vector<float>& result, const std::vector<long double>& exact)
{
    std::vector<double> worst(546, 0.0);
    for (std::size_t i = 0; i < result.size(); ++i) {
        int exponent;
        std::frexp(exact[i], &exponent);
        const long double unit = std::ldexp(1.0L, exponent - 24);
        double& column = worst[i * worst.size() / result.size()];
        column = std::max(column, static_cast<double>(std::fabs(result[i] - exact[i]) / unit));
    }
    return worst;
}

template <class Exact>
std::vector<long double> exact_of(const std::vector<float>& x, Exact exact)
{
    std::vector<long double> y;
    for (const float v : x) y.push_back(exact(static_cast<long double>(v)));
    return y;
}

// A tone that swells and fades in noise, with an outlier now and then.
std::vector<float> noisy_signal(int n)
{
    std::mt19937 generator(11);
    std::normal_distribution<double> noise(0, 0.15);
    std::vector<float> x;
    for (int i = 0; i < n; ++i) {
        const double t = static_cast<double>(i) / n, swell = std::sin(kPi * t);
        const double outlier = i % 211 == 97 ? (i % 2 == 0 ? 2.4 : -2.4) : 0;
        x.push_back(static_cast<float>(swell * std::sin(2 * kPi * 9 * t) + noise(generator) + outlier));
    }
    return x;
}

void show_statistics_of_vectors(Page& page)
{
    page.family("SignalProcessingWrapper", "Statistics of vectors",
                "Sums in one order for every processor, deviations in two passes, extremes and their places.");
    const int n = 1600, window = 64, places = n - window + 1;
    const std::vector<float> x = noisy_signal(n);
    std::vector<double> mean(places), low(places), high(places);
    Run run{"for each place: W::MeanStdDev_32f(&x[i], 64, &mean, &stdDev, true)"};
    run.microseconds = best_microseconds(
        [&] {
            bool ok = true;
            for (int i = 0; i < places; ++i) {
                const auto at = static_cast<std::size_t>(i);
                double deviation = 0;
                ok = W::MeanStdDev_32f(&x[at], window, &mean[at], &deviation, true) && ok;
                low[at] = mean[at] - deviation;
                high[at] = mean[at] + deviation;
            }
            return ok;
        },
        run.ok);
    std::vector<double> middle;
    for (int i = 0; i < places; ++i) middle.push_back(i + window / 2);
    page.show(Plot("sample", "value", 0, n, -3.2, 3.2)
                  .curve(doubles(x), "#cccccc", "signal")
                  .curve(middle, mean, "#3b76a8", "mean of 64 samples")
                  .curve(middle, low, "#c25b4e", "mean -+ standard deviation")
                  .curve(middle, high, "#c25b4e"),
              "A noisy signal and its running statistics", run);
    float least = 0, greatest = 0;
    int first = 0, second = 0;
    Run extremes{"W::MinIndx_32f(x.data(), n, &least, &first) && W::MaxIndx_32f(x.data(), n, &greatest, &second)"};
    extremes.ok = W::MinIndx_32f(x.data(), n, &least, &first) && W::MaxIndx_32f(x.data(), n, &greatest, &second);
    page.show(Plot("sample", "value", 0, n, -3.2, 3.2)
                  .curve(doubles(x), "#999999")
                  .points({static_cast<double>(first)}, {least}, "#3b76a8", "minimum")
                  .points({static_cast<double>(second)}, {greatest}, "#c25b4e", "maximum"),
              "Its extremes, and where they stand", extremes);
}

void show_thresholds_of_vectors(Page& page)
{
    page.family("SignalProcessingWrapper", "Thresholds of vectors",
                "What lies beyond a threshold becomes the threshold, or a value.");
    const int n = 1600;
    const std::vector<float> x = noisy_signal(n);
    std::vector<float> y(n), marked(n);
    Run run{"W::Threshold_LT_32f(x.data(), y.data(), n, -1.5f) && W::Threshold_GT_32f_I(y.data(), n, 1.5f)"};
    run.ok = W::Threshold_LT_32f(x.data(), y.data(), n, -1.5f) && W::Threshold_GT_32f_I(y.data(), n, 1.5f);
    page.show(Plot("sample", "value", 0, n, -3.2, 3.2)
                  .curve(doubles(x), "#c25b4e", "signal")
                  .curve(doubles(y), "#3b76a8", "clipped"),
              "Outliers, clipped at -1.5 and 1.5", run);
    SHOW(page, Plot("sample", "value", 0, n, -3.2, 3.2).curve(doubles(marked), "#3b76a8"),
         "What lies beyond -1 and 1, as -3 and 3",
         W::Threshold_LTValGTVal_32f(x.data(), marked.data(), n, -1, -3, 1, 3));
}

void show_errors(Page& page)
{
    page.family("SignalProcessingWrapper", "Elementary functions",
                "Exponential, logarithm, angles: their errors against exact values, the worst of 120 arguments at each "
                "place, in units of the last place. 0.5 is perfect rounding.");
    const std::vector<float> angle = ramp(-25, 25), exponent = ramp(-80, 80), ones(kPoints, 1.0f);
    std::vector<float> y(kPoints), cosine(kPoints);
    const auto sine = exact_of(angle, [](long double x) { return sinl(x); });
    const std::string unit = "error (units of the last place)";
    SHOW(page,
         Plot("x", unit, -80, 80, 0, 1)
             .columns(errors(y, exact_of(exponent, [](long double x) { return expl(x); })), "#c25b4e"),
         "exp(x), to half a unit", W::Exp_32f(exponent.data(), y.data(), kPoints));
    SHOW(page,
         Plot("x", unit, -25, 25, 0, 1)
             .columns(errors(y, exact_of(angle, [](long double x) { return atan2l(x, 1); })), "#c25b4e"),
         "atan(x)", W::Atan2_32f_A24(angle.data(), ones.data(), y.data(), kPoints));
    SHOW(page,
         Plot("x", unit, -25, 25, 0, 1)
             .columns(errors(y, exact_of(angle, [](long double x) { return hypotl(x, 1); })), "#c25b4e"),
         "The square root of x^2 + 1", W::Hypot_32f_A24(angle.data(), ones.data(), y.data(), kPoints));
    SHOW(page, Plot("x (radians)", unit, -25, 25, 0, 8192).columns(errors(y, sine), "#c25b4e"),
         "sin(x) in the cheap class of 11 bits, which are 8192 units", W::Sin_32f_A11(angle.data(), y.data(), kPoints));
    SHOW(page, Plot("x (radians)", unit, -25, 25, 0, 8192).columns(errors(y, sine), "#c25b4e"),
         "sin(x) together with its cosine, in the same class",
         W::SinCos_32f_A11(angle.data(), y.data(), cosine.data(), kPoints));
}

std::vector<double> decibels(const std::vector<float>& power, int count, double unit)
{
    std::vector<double> d;
    for (int i = 0; i < count; ++i) d.push_back(10 * std::log10(power[static_cast<std::size_t>(i)] * unit + 1e-12));
    return d;
}

void show_windows(Page& page)
{
    page.family("SignalProcessingWrapper", "Vector spectra and windows",
                "A window keeps the leakage of strong tones from weak ones.");
    const int n = 1024, bins = 158;
    std::vector<float> none(n, 1.0f), window(n), tones(n), plain(n), power(n);
    for (int i = 0; i < n; ++i) {
        const double t = 2 * kPi * i / n;
        tones[static_cast<std::size_t>(i)] = static_cast<float>(std::sin(60.5 * t) + 0.003 * std::sin(90 * t));
    }
    SHOW(page, Plot("sample", "weight", 0, n, 0, 1.1).curve(doubles(window), "#3b76a8"), "The Hamming window",
         W::WinHamming_32f(none.data(), window.data(), n));
    FFTWrapper fft(n);
    fft.PsdFFT(tones.data(), none.data(), plain.data(), n);
    fft.PsdFFT(tones.data(), window.data(), power.data(), n);
    page.show(Plot("periods in 1024 samples", "power (dB)", 0, bins, -100, 40)
                  .curve(decibels(plain, bins, 4.0 / n / n), "#999999", "without a window")
                  .curve(decibels(power, bins, 4.0 / n / n / 0.2916), "#3b76a8", "with the Hamming window"),
              "A tone of 60.5 periods, and one of 90 that is 50 dB weaker: without the window it is hidden");
}

// A sorted vector has each value in one stretch, as long as the value is frequent; the median in the middle.
void show_sorting(const Picture& photo, Page& page)
{
    page.family("SignalProcessingWrapper", "Sorting",
                "In place, numbers before NaNs, with or without the places that elements had.");
    const Picture one = grey(photo);
    std::vector<unsigned char> pixels, sorted;
    for (int y = 0; y < one.height; ++y) pixels.insert(pixels.end(), one.row(y), one.row(y) + one.width);
    const int n = static_cast<int>(pixels.size());
    Run run{"W::SortAscend_8u_I(sorted.data(), n)"};
    run.microseconds =
        best_microseconds([&] { return sorted = pixels, W::SortAscend_8u_I(sorted.data(), n); }, run.ok);
    std::vector<double> histogram;
    auto from = sorted.begin();
    for (int value = 0; value < 256; ++value) {
        const auto to = std::upper_bound(from, sorted.end(), value);
        histogram.push_back(static_cast<double>(to - from));
        from = to;
    }
    const double most = 1.05 * *std::max_element(histogram.begin(), histogram.end());
    const double median = sorted[sorted.size() / 2];
    page.show(Plot("brightness", "pixels", 0, 256, 0, most)
                  .columns(histogram, "#3b76a8")
                  .curve({median, median}, {0, most}, "#c25b4e", "median"),
              "A histogram by sorting: how far each brightness reaches (the time is that of a copy, too)", run);
}

}  // namespace

void show_vectors(const Pictures& pictures, Page& page)
{
    show_memory(page);
    show_conversion(page);
    show_ramps(page);
    show_vector_arithmetic(page);
    show_statistics_of_vectors(page);
    show_thresholds_of_vectors(page);
    show_errors(page);
    show_windows(page);
    show_sorting(pictures.photo, page);
}
