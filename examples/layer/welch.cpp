// Welch's power spectral density in physical units: a tone of 2 V in noise of a known density, sampled at 48 kHz.
// P. D. Welch, "The use of fast Fourier transform for the estimation of power spectra", 1967.
#include <cmath>
#include <cstdio>
#include <orvane/orvane.hpp>
#include <vector>

constexpr int kBlock = 1024, kBlocks = 200, kHop = kBlock / 2;
constexpr double kRate = 48000, kTone = 6000, kAmplitude = 2, kNoise = 0.5;

std::vector<float> record()
{
    std::vector<double> noise(kHop * (kBlocks + 1));
    orvane::gaussian(1)(noise, 0, kNoise).check();
    std::vector<float> volts(noise.size());
    for (std::size_t k = 0; k < volts.size(); ++k) {
        const double turns = kTone * static_cast<double>(k) / kRate;
        volts[k] = static_cast<float>(kAmplitude * std::sin(2 * 3.14159265358979323846 * turns) + noise[k]);
    }
    return volts;
}

int main()
{
    const std::vector<float> signal = record(), ones(kBlock, 1.0F);
    std::vector<float> window(kBlock), power(kBlock), total(kBlock);
    orvane::hamming_window(ones, window).check();
    double gain = 0, squares = 0;
    for (const float w : window) gain += w, squares += static_cast<double>(w) * w;

    orvane::psd spectrum(kBlock);
    for (int b = 0; b < kBlocks; ++b) {
        const auto block = orvane::span<const float>(signal).part(static_cast<std::size_t>(b) * kHop, kBlock);
        spectrum(block, window, power).check();
        orvane::add(total, power, total).check();
    }
    // One-sided, in V^2 / Hz: twice |X|^2 over the rate and the squares of the window.
    orvane::multiply(total, 2 / (kBlocks * kRate * squares), total).check();

    std::size_t peak = 1;
    for (std::size_t k = 1; k < kBlock / 2; ++k) {
        if (total[k] > total[peak]) peak = k;
    }
    double floor = 0;
    for (std::size_t k = 300; k < 500; ++k) floor += total[k] / 200;
    const double in_bin = total[peak] * kRate * squares / (gain * gain);  // the power of a tone, in V^2

    std::printf("tone   %.0f Hz, %.2f V (%.2f V were there)\n", static_cast<double>(peak) * kRate / kBlock,
                std::sqrt(2 * in_bin), kAmplitude);
    std::printf("noise  %.2f uV^2/Hz (%.2f were there)\n", 1e6 * floor, 1e6 * 2 * kNoise * kNoise / kRate);
    std::puts(orvane::psd().prepare(1000).message().c_str());
}
