// Spectra of pictures, as they are packed and as they are transformed.
#include <FFT2Wrapper.h>
#include <SignalProcessingWrapper.h>

#include <cmath>

#include "strips.h"

using W = ImageProcessingWrapper;

namespace {

// The largest square from the middle whose side is a power of two up to 512, as brightness.
FloatPicture square(const Picture& picture)
{
    int side = 512;
    while (side > picture.width || side > picture.height) side /= 2;
    return part(brightness(picture), (picture.width - side) / 2, (picture.height - side) / 2, side, side);
}

// With frequency 0 in the middle.
FloatPicture centred(const FloatPicture& f)
{
    FloatPicture c(f.width, f.height, 1);
    for (int y = 0; y < f.height; ++y) {
        for (int x = 0; x < f.width; ++x)
            *c.at(x, y) = *f.at((x + f.width / 2) % f.width, (y + f.height / 2) % f.height);
    }
    return c;
}

FloatPicture logarithm_of(const FloatPicture& f)
{
    FloatPicture l(f.width, f.height, 1);
    W::AddC_32f_C1(f.data(), f.step, 1, l.data(), l.step, f.width, f.height);
    W::Ln_32f_C1I(l.data(), l.step, l.width, l.height);
    return l;
}

FloatPicture transformed(const FloatPicture& image)
{
    FloatPicture packed(image.width, image.height, 1);
    FFT2Wrapper fft(image.width, image.height, false);
    fft.Forward(image.data(), image.step, packed.data(), packed.step, image.width, image.height);
    return packed;
}

FloatPicture back_from(const FloatPicture& packed)
{
    FloatPicture image(packed.width, packed.height, 1);
    FFT2Wrapper fft(packed.width, packed.height, false);
    fft.Inverse(packed.data(), packed.step, image.data(), image.step, packed.width, packed.height);
    return image;
}

// All values of a packed spectrum, also those that follow from others by symmetry.
ComplexPicture all_values(const FloatPicture& packed)
{
    ComplexPicture all(packed.width, packed.height, 1);
    W::PackToCplxExtend_32f32fc_C1R(packed.data(), packed.step, all.data(), all.step, all.width, all.height);
    return all;
}

// The picture that has the magnitudes of one spectrum and the phases of another.
FloatPicture mixture(const ComplexPicture& magnitudes, const ComplexPicture& phases)
{
    const int side = phases.width;
    FloatPicture size(side, side, 1), angle(side, side, 1), sine(side, 1, 1), cosine(side, 1, 1), packed(side, side, 1);
    W::Magnitude_32fc32f_C1R(magnitudes.data(), magnitudes.step, size.data(), size.step, side, side);
    W::Phase_32fc32f_C1R(phases.data(), phases.step, angle.data(), angle.step, side, side);
    ComplexPicture mixed(side, side, 1);
    for (int y = 0; y < side; ++y) {
        SignalProcessingWrapper::SinCos_32f_A11(angle.row(y), sine.data(), cosine.data(), side);
        for (int x = 0; x < side; ++x)
            *mixed.at(x, y) = {*size.at(x, y) * *cosine.at(x, 0), *size.at(x, y) * *sine.at(x, 0)};
    }
    W::CplxExtendToPack_32fc32f_C1R(mixed.data(), mixed.step, packed.data(), packed.step, side, side);
    return back_from(packed);
}

// Grey values that lie around the mean; what is far from it is black or white.
Picture around_the_mean(const FloatPicture& f)
{
    double mean = 0, squares = 0;
    W::Mean_32f_C1R(f.data(), f.step, f.width, f.height, &mean, false);
    for (int y = 0; y < f.height; ++y) {
        for (int x = 0; x < f.width; ++x) squares += (*f.at(x, y) - mean) * (*f.at(x, y) - mean);
    }
    const double reach = 2.5 * std::sqrt(squares / f.width / f.height);
    return to_picture(f, static_cast<float>(mean - reach), static_cast<float>(mean + reach));
}

// A picture blurred by a kernel, through the product of their spectra.
void show_product(const FloatPicture& image, Page& page)
{
    const int side = image.width;
    FloatPicture kernel(side, side, 1);
    int count = 0;
    for (int y = -12; y <= 12; ++y) {
        for (int x = -12; x <= 12; ++x) {
            const bool on_ring = std::fabs(std::hypot(x, y) - 11) < 0.7;
            if (on_ring) ++count, *kernel.at((x + side) % side, (y + side) % side) = 1;
        }
    }
    W::MulC_32f_C1(kernel.data(), kernel.step, 1 / static_cast<float>(count), kernel.data(), kernel.step, side, side);
    const FloatPicture a = transformed(image), b = transformed(kernel), product(side, side, 1);
    W::MulPack_32f_C1R(a.data(), a.step, b.data(), b.step, product.data(), product.step, side, side);
    SHOW(page, to_picture(back_from(product)), "Every point becomes a ring: the product with the spectrum of a ring",
         W::MulPack_32f_C1R(a.data(), a.step, b.data(), b.step, product.data(), product.step, side, side));
}

}  // namespace

void show_packed_spectra(const Pictures& pictures, Page& page)
{
    page.family("ImageProcessingWrapper", "Packed spectra and windows",
                "Spectra of pictures in the memory of the pictures: windows, magnitudes and phases, products.");
    const FloatPicture image = square(pictures.astronaut);
    const int side = image.width;
    const FloatPicture windowed(side, side, 1), result(side, side, 1);
    SHOW(page, to_picture(windowed), "Times a Hamming window: no edges where the picture ends",
         W::WinHamming_32f_C1R(image.data(), image.step, windowed.data(), windowed.step, side, side));
    const FloatPicture packed = transformed(windowed);
    SHOW(page, to_picture(logarithm_of(centred(result)), 4, 15),
         "Magnitudes of the spectrum, logarithmically, the mean in the middle; right is 256 periods a picture",
         W::MagnitudePack_32f_C1R(packed.data(), packed.step, result.data(), result.step, side, side));
    SHOW(page, to_picture(centred(result), -3.2f, 3.2f), "Its phases: black is -pi, white is pi",
         W::PhasePack_32f_C1R(packed.data(), packed.step, result.data(), result.step, side, side));
    show_product(image, page);

    FloatPicture other = square(pictures.retina);
    if (other.width < side) return;
    other = part(other, 0, 0, side, side);
    const ComplexPicture of_one = all_values(transformed(image)), of_other = all_values(transformed(other));
    page.show(around_the_mean(mixture(of_other, of_one)),
              "The magnitudes of a retina with the phases of the astronaut: it is the phases that show");
}

// Zero for frequencies outside a disc, or inside it.
FloatPicture kept(const FloatPicture& packed, int radius, bool inside)
{
    const int side = packed.width;
    FloatPicture out = packed.copy();
    for (int y = 0; y < side; ++y) {
        for (int x = 0; x < side; ++x) {
            const int u = (x + 1) / 2;
            // In the first and the last column the rows are packed like a one-dimensional spectrum.
            const int v = x == 0 || x == side - 1 ? (y + 1) / 2 : std::min(y, side - y);
            if ((u * u + v * v <= radius * radius) != inside) *out.at(x, y) = 0;
        }
    }
    return out;
}

void show_fft2(const Pictures& pictures, Page& page)
{
    page.family("FFT2Wrapper", "Two-dimensional transforms",
                "Pictures to spectra and back. Here frequencies are left out on the way.");
    const FloatPicture image = square(pictures.astronaut);
    const int side = image.width;
    FFT2Wrapper fft(side, side, false);
    const FloatPicture packed = transformed(image), low = kept(packed, side / 20, true),
                       high = kept(packed, side / 20, false), out(side, side, 1);
    SHOW(page, to_picture(out), "What is left of the picture when only the low frequencies stay: one in 400",
         (fft.Inverse(low.data(), low.step, out.data(), out.step, side, side), true));
    SHOW(page, to_picture(out, -60, 60), "And when only the others stay",
         (fft.Inverse(high.data(), high.step, out.data(), out.step, side, side), true));
}
