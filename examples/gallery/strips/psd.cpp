// The power spectral density of a sound.
#include <FFTWrapper.h>

#include <algorithm>
#include <cmath>
#include <cstring>
#include <fstream>
#include <iterator>

#include "strips.h"

namespace {

constexpr double kPi = 3.14159265358979323846;

struct Sound {
    std::vector<float> samples;
    double rate = 48000;
};

// A chirp from 100 Hz to 10 kHz in two seconds.
Sound chirp()
{
    Sound sound;
    for (int i = 0; i < 96000; ++i) {
        const double t = i / sound.rate;
        sound.samples.push_back(static_cast<float>(8000 * std::sin(2 * kPi * (100 * t + 2475 * t * t))));
    }
    return sound;
}

// A 16-bit WAV file, its first channel; a chirp where there is none.
Sound read_sound(const std::string& path)
{
    std::ifstream file(path, std::ios::binary);
    const std::vector<char> bytes((std::istreambuf_iterator<char>(file)), std::istreambuf_iterator<char>());
    Sound sound;
    if (bytes.size() < 44 || std::memcmp(bytes.data(), "RIFF", 4) != 0) return chirp();
    unsigned short channels = 1;
    for (std::size_t at = 12; at + 8 <= bytes.size();) {
        unsigned size, rate;
        std::memcpy(&size, &bytes[at + 4], 4);
        if (std::memcmp(&bytes[at], "fmt ", 4) == 0) {
            std::memcpy(&channels, &bytes[at + 10], 2);
            std::memcpy(&rate, &bytes[at + 12], 4);
            sound.rate = rate;
        }
        if (std::memcmp(&bytes[at], "data", 4) == 0) {
            for (std::size_t i = at + 8; i + 2 <= bytes.size(); i += 2u * channels) {
                short sample;
                std::memcpy(&sample, &bytes[i], 2);
                sound.samples.push_back(sample);
            }
        }
        at += 8 + size + (size & 1);
    }
    return sound;
}

std::vector<float> hann(int n)
{
    std::vector<float> w;
    for (int i = 0; i < n; ++i) w.push_back(static_cast<float>(0.5 - 0.5 * std::cos(2 * kPi * i / n)));
    return w;
}

}  // namespace

void show_psd(const std::string& path, Page& page)
{
    const int n = 1024, hop = 256, bins = n / 4;
    const Sound sound = read_sound(path);
    const std::vector<float> window = hann(n);
    const int blocks = (static_cast<int>(sound.samples.size()) - n) / hop;
    if (blocks < 8) return;
    page.family("FFTWrapper", "Power spectral density",
                "The power of a sound at each frequency, block by block of 1024 samples.");
    // Powers as densities: by the sampling rate, the window's energy, both sides in one. Full scale is 32768.
    double energy = 0;
    for (const float w : window) energy += w * w;
    const double unit = 2 / (sound.rate * energy * 32768 * 32768);

    FFTWrapper fft(n);
    std::vector<float> power(n);
    std::vector<double> mean(static_cast<std::size_t>(bins), 0.0);
    Picture spectrogram(blocks, bins, 1);
    for (int b = 0; b < blocks; ++b) {
        fft.PsdFFT(&sound.samples[static_cast<std::size_t>(b * hop)], window.data(), power.data(), n);
        for (int k = 0; k < bins; ++k) {
            const double p = unit * power[static_cast<std::size_t>(k)], shade = (10 * std::log10(p + 1e-14) + 120) / 80;
            *spectrogram.at(b, bins - 1 - k) = static_cast<unsigned char>(255 * std::clamp(shade, 0.0, 1.0));
            mean[static_cast<std::size_t>(k)] += p / blocks;
        }
    }
    for (double& v : mean) v = 10 * std::log10(v + 1e-14);
    const double seconds = static_cast<double>(sound.samples.size()) / sound.rate, top = sound.rate / 4000;
    Run run{"fft.PsdFFT(&samples[b * hop], window.data(), power.data(), n)"};
    run.microseconds = best_microseconds(
        [&] { return fft.PsdFFT(sound.samples.data(), window.data(), power.data(), n), true; }, run.ok);
    page.show(Plot("time (s)", "frequency (kHz)", 0, seconds, 0, top).picture(png_of(spectrogram)),
              "Power over time and frequency: white is -40 dB of full scale squared per Hz, black -120 dB", run);
    page.show(Plot("frequency (kHz)", "density (dB / Hz)", 0, top, -130, -30).curve(mean, "#c25b4e"),
              "The mean over all blocks; 0 dB is the square of full scale, in one Hz");
}
