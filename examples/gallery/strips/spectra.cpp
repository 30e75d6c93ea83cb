// Spectra of a sound and of the photograph, and noise.
#include <FFT2Wrapper.h>
#include <FFTWrapper.h>
#include <RandomNumberGenerator.h>
#include <SignalProcessingWrapper.h>

#include <cmath>
#include <cstring>
#include <fstream>
#include <iterator>

#include "plot.h"
#include "strips.h"
#include "text.h"

namespace {

constexpr double kPi = 3.14159265358979323846;

// The samples of a 16-bit WAV file, of its first channel; empty where there is none.
std::vector<float> read_sound(const std::string& path)
{
    std::ifstream file(path, std::ios::binary);
    const std::vector<char> bytes((std::istreambuf_iterator<char>(file)), std::istreambuf_iterator<char>());
    std::vector<float> samples;
    if (bytes.size() < 44 || std::memcmp(bytes.data(), "RIFF", 4) != 0) return samples;
    unsigned short channels = 1;
    for (std::size_t at = 12; at + 8 <= bytes.size();) {
        unsigned size;
        std::memcpy(&size, &bytes[at + 4], 4);
        if (std::memcmp(&bytes[at], "fmt ", 4) == 0) std::memcpy(&channels, &bytes[at + 10], 2);
        if (std::memcmp(&bytes[at], "data", 4) == 0) {
            for (std::size_t i = at + 8; i + 2 <= bytes.size(); i += 2u * channels) {
                short sample;
                std::memcpy(&sample, &bytes[i], 2);
                samples.push_back(sample);
            }
        }
        at += 8 + size + (size & 1);
    }
    return samples;
}

std::vector<float> hann(int n)
{
    std::vector<float> w;
    for (int i = 0; i < n; ++i) w.push_back(static_cast<float>(0.5 - 0.5 * std::cos(2 * kPi * i / n)));
    return w;
}

void show_sound(const std::string& path, Page& page)
{
    const int n = 1024, hop = 256;
    const std::vector<float> sound = read_sound(path), window = hann(n);
    const int blocks = (static_cast<int>(sound.size()) - n) / hop;
    if (blocks < 8) return;

    FFTWrapper fft(n);
    std::vector<float> power(n);
    const int rows = n / 4;
    std::vector<double> decibels, mean(static_cast<std::size_t>(rows), 0.0);
    for (int b = 0; b < blocks; ++b) {
        fft.PsdFFT(&sound[static_cast<std::size_t>(b * hop)], window.data(), power.data(), n);
        for (int k = 0; k < rows; ++k) {
            const double p = power[static_cast<std::size_t>(k)];
            decibels.push_back(10 * std::log10(p + 1e-6));
            mean[static_cast<std::size_t>(k)] += p / blocks;
        }
    }
    // 80 dB from black to white, the loudest being white.
    const double loudest = *std::max_element(decibels.begin(), decibels.end());
    Picture spectrogram(blocks, rows, 1);
    for (int b = 0; b < blocks; ++b) {
        for (int k = 0; k < rows; ++k) {
            const double shade = 255 * (1 + (decibels[static_cast<std::size_t>(b * rows + k)] - loudest) / 80);
            spectrogram.data()[(rows - 1 - k) * spectrogram.step + b] =
                static_cast<unsigned char>(shade < 0 ? 0 : shade);
        }
    }
    for (double& v : mean) v = 10 * std::log10(v + 1e-6);
    Picture plot = sheet(640, 360);
    draw_curve(plot, mean, *std::min_element(mean.begin(), mean.end()), *std::max_element(mean.begin(), mean.end()),
               160, 60, 40);
    SHOW(page, spectrogram, fft.PsdFFT(&sound[0], window.data(), power.data(), n));
    page.show(plot, "the mean of the power over all blocks, in decibels, up to a quarter of the sampling rate", 0,
              true);
}

// The magnitudes of a packed spectrum: row 0 and column 0 hold frequency 0; every other pair of columns is
// one complex column. Drawn for the frequencies it stores, logarithmically.
Picture magnitudes(const FloatPicture& packed)
{
    Picture p(packed.width / 2, packed.height, 1);
    const int step = packed.step / 4;
    for (int y = 0; y < packed.height; ++y) {
        const int from = (y + packed.height / 2) % packed.height;
        for (int x = 1; x < packed.width / 2; ++x) {
            const float re = packed.data()[from * step + 2 * x - 1], im = packed.data()[from * step + 2 * x];
            const double v = 22 * std::log(1 + 0.05 * std::hypot(re, im));
            p.data()[y * p.step + x] = static_cast<unsigned char>(v > 255 ? 255 : v);
        }
    }
    return p;
}

void show_image_spectrum(const Picture& photo, Page& page)
{
    const int side = 512;
    FloatPicture grey = brightness(photo), image(side, side, 1), spectrum(side, side, 1), back(side, side, 1);
    if (photo.width < side || photo.height < 2 * side) return;
    ImageProcessingWrapper::Copy_32f_C1(
        grey.data() + (photo.height - side) / 2 * (grey.step / 4) + (photo.width - side) / 2, grey.step, image.data(),
        image.step, side, side);
    FFT2Wrapper fft(side, side, false);
    fft.Forward(image.data(), image.step, spectrum.data(), spectrum.step, side, side);
    SHOW(page, magnitudes(spectrum),
         (fft.Forward(image.data(), image.step, spectrum.data(), spectrum.step, side, side), true));

    // A low-pass: what lies outside a disc of frequencies is set to 0.
    const int radius = 24, step = spectrum.step / 4;
    for (int y = 0; y < side; ++y) {
        const int fy = y <= side / 2 ? y : side - y;
        for (int x = 0; x < side; ++x) {
            const int fx = (x + 1) / 2;
            // In the first and the last column the rows are packed like a one-dimensional spectrum.
            const int row = x == 0 || x == side - 1 ? (y + 1) / 2 : fy;
            if (fx * fx + row * row > radius * radius) spectrum.data()[y * step + x] = 0;
        }
    }
    fft.Inverse(spectrum.data(), spectrum.step, back.data(), back.step, side, side);
    SHOW(page, to_picture(back),
         (fft.Inverse(spectrum.data(), spectrum.step, back.data(), back.step, side, side), true));
}

// All values of the spectrum of a picture whose sides are powers of two.
std::vector<Complex32f> all_values(FFT2Wrapper& fft, const FloatPicture& image)
{
    FloatPicture packed(image.width, image.height, 1);
    std::vector<Complex32f> all(static_cast<std::size_t>(image.width * image.height));
    fft.Forward(image.data(), image.step, packed.data(), packed.step, image.width, image.height);
    ImageProcessingWrapper::PackToCplxExtend_32f32fc_C1R(packed.data(), packed.step, all.data(), 8 * image.width,
                                                         image.width, image.height);
    return all;
}

// With frequency 0 in the middle.
FloatPicture centred(const FloatPicture& f)
{
    FloatPicture c(f.width, f.height, 1);
    for (int y = 0; y < f.height; ++y) {
        for (int x = 0; x < f.width; ++x) {
            c.data()[y * (c.step / 4) + x] =
                f.data()[(y + f.height / 2) % f.height * (f.step / 4) + (x + f.width / 2) % f.width];
        }
    }
    return c;
}

FloatPicture logarithm_of(const FloatPicture& f)
{
    FloatPicture l(f.width, f.height, 1);
    for (int y = 0; y < f.height; ++y) {
        for (int x = 0; x < f.width; ++x) l.data()[y * (l.step / 4) + x] = std::log(1 + f.data()[y * (f.step / 4) + x]);
    }
    return l;
}

// The picture that has the magnitudes of one spectrum and the phases of another.
FloatPicture mixture(FFT2Wrapper& fft, const std::vector<Complex32f>& magnitudes, const std::vector<Complex32f>& phases,
                     int side)
{
    const int n = side * side;
    std::vector<float> size(magnitudes.size()), angle(size), sine(size), cosine(size);
    ImageProcessingWrapper::Magnitude_32fc32f_C1R(magnitudes.data(), 8 * side, size.data(), 4 * side, side, side);
    ImageProcessingWrapper::Phase_32fc32f_C1R(phases.data(), 8 * side, angle.data(), 4 * side, side, side);
    SignalProcessingWrapper::SinCos_32f_A11(angle.data(), sine.data(), cosine.data(), n);
    std::vector<Complex32f> mixed(size.size());
    for (std::size_t i = 0; i < mixed.size(); ++i) mixed[i] = {size[i] * cosine[i], size[i] * sine[i]};
    FloatPicture packed(side, side, 1), back(side, side, 1);
    ImageProcessingWrapper::CplxExtendToPack_32fc32f_C1R(mixed.data(), 8 * side, packed.data(), packed.step, side,
                                                         side);
    fft.Inverse(packed.data(), packed.step, back.data(), back.step, side, side);
    return back;
}

// Grey values that lie around the mean; what is far from it is black or white.
Picture around_the_mean(const FloatPicture& f)
{
    double sum = 0, squares = 0;
    for (int y = 0; y < f.height; ++y) {
        for (int x = 0; x < f.width; ++x) {
            const double v = f.data()[y * (f.step / 4) + x];
            sum += v, squares += v * v;
        }
    }
    const double n = static_cast<double>(f.width) * f.height, mean = sum / n;
    const double reach = 2.5 * std::sqrt(squares / n - mean * mean);
    return to_picture(f, static_cast<float>(mean - reach), static_cast<float>(mean + reach));
}

// Magnitude and phase of the photograph's spectrum; and those of two pictures exchanged: it is the phase that shows.
void show_magnitude_and_phase(const Picture& photo, Page& page)
{
    const int side = 512;
    if (photo.width < side || photo.height < 2 * side) return;
    FloatPicture image(side, side, 1), packed(side, side, 1), result(side, side, 1);
    const FloatPicture grey = brightness(photo);
    const float* const part = grey.data() + photo.height / 4 * (grey.step / 4) + (photo.width - side);
    ImageProcessingWrapper::WinHamming_32f_C1R(part, grey.step, image.data(), image.step, side, side);
    page.show(to_picture(image), "WinHamming_32f_C1R: no edges where the picture ends", 0, true);
    FFT2Wrapper fft(side, side, false);
    fft.Forward(image.data(), image.step, packed.data(), packed.step, side, side);
    ImageProcessingWrapper::MagnitudePack_32f_C1R(packed.data(), packed.step, result.data(), result.step, side, side);
    SHOW(page, to_picture(logarithm_of(centred(result)), 4, 16),
         ImageProcessingWrapper::MagnitudePack_32f_C1R(packed.data(), packed.step, result.data(), result.step, side,
                                                       side));
    ImageProcessingWrapper::PhasePack_32f_C1R(packed.data(), packed.step, result.data(), result.step, side, side);
    SHOW(page, to_picture(centred(result), -3.2f, 3.2f),
         ImageProcessingWrapper::PhasePack_32f_C1R(packed.data(), packed.step, result.data(), result.step, side, side));

    Picture letters(side, side, 1);
    ImageProcessingWrapper::Set_8u_C1(230, letters.data(), letters.step, side, side);
    for (int line = 0; line < 5; ++line)
        write_text(letters, 40, 40 + 90 * line, 7, line % 2 == 0 ? "Phase shows" : "the forms");
    FloatPicture writing(side, side, 1);
    ImageProcessingWrapper::Convert_8u32f_C1(letters.data(), letters.step, writing.data(), writing.step, side, side);
    page.show(letters, "a second picture", 0, true);
    ImageProcessingWrapper::Copy_32f_C1(part, grey.step, image.data(), image.step, side, side);
    const auto of_photo = all_values(fft, image), of_writing = all_values(fft, writing);
    page.show(around_the_mean(mixture(fft, of_writing, of_photo, side)),
              "the magnitudes of the second picture, the phases of the photograph", 0, true);
    page.show(around_the_mean(mixture(fft, of_photo, of_writing, side)),
              "the magnitudes of the photograph, the phases of the second picture", 0, true);
}

void show_noise(const Picture& photo, Page& page)
{
    const int width = photo.width, height = photo.height, n = width * height;
    RandomNumberGenerator random;
    random.Init(250);
    std::vector<double> noise(static_cast<std::size_t>(n));
    random.GenerateGaussian(n, noise.data(), 0.0, 20.0);
    FloatPicture grey = brightness(photo);
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x)
            grey.data()[y * (grey.step / 4) + x] += static_cast<float>(
                noise[static_cast<std::size_t>(y) * static_cast<std::size_t>(width) + static_cast<std::size_t>(x)]);
    }
    SHOW(page, to_picture(grey), random.GenerateGaussian(n, noise.data(), 0.0, 20.0));
    std::vector<double> histogram(160, 0.0);
    for (const double v : noise) {
        const int bin = static_cast<int>(std::floor(v)) + 80;
        if (bin >= 0 && bin < 160) histogram[static_cast<std::size_t>(bin)] += 1;
    }
    Picture plot = sheet(640, 360);
    draw_columns(plot, histogram, 90, 140, 90);
    page.show(plot, "the histogram of that noise, deviation 20, from -80 to 80", 0, true);
}

}  // namespace

void show_spectra(const Picture& photo, const std::string& sound, Page& page)
{
    page.strip(
        "Spectra and noise",
        "Power of a spoken sound, block by block; the photograph's two-dimensional spectrum, and what is left of it "
        "when only the low frequencies stay; Gaussian noise added to the photograph.");
    show_sound(sound, page);
    show_image_spectrum(photo, page);
    show_magnitude_and_phase(photo, page);
    show_noise(photo, page);
}
