// Packed spectra of images against direct transforms in long double, and bit by bit against their formulas.
#include "spectral/packed_images.h"

#include <algorithm>
#include <cmath>
#include <vector>

#include "FFT2Wrapper.h"
#include "ImageProcessingWrapper.h"
#include "SignalProcessingWrapper.h"
#include "gmock/gmock.h"
#include "spectral/image_windows.h"
#include "support/allocations.h"
#include "support/dft.h"
#include "support/double_steps.h"
#include "support/framed_floats.h"
#include "support/levels.h"

namespace test {
namespace {

using W = ImageProcessingWrapper;
using orv::Size;

constexpr std::uint32_t kSign = 0x80000000u;

// --- Oracle ---------------------------------------------------------------------------------------

// The transform of a real image by its definition, rows first.
struct Spectrum {
    Size size;
    std::vector<Wide> values;
    const Wide& at(int v, int u) const { return values[static_cast<std::size_t>(v * size.width + u)]; }
    Wide& at(int v, int u) { return values[static_cast<std::size_t>(v * size.width + u)]; }
};
using Signal = std::vector<long double>;

Spectrum transform(const Signal& image, Size size)
{
    const auto w = static_cast<std::size_t>(size.width), h = static_cast<std::size_t>(size.height);
    std::vector<Wide> rows(w * h);
    Spectrum f = {size, std::vector<Wide>(w * h)};
    for (std::size_t y = 0; y < h; ++y) {
        for (std::size_t u = 0; u < w; ++u) {
            for (std::size_t x = 0; x < w; ++x) rows[y * w + u] += image[y * w + x] * root(u * x, w);
        }
    }
    for (std::size_t v = 0; v < h; ++v) {
        for (std::size_t u = 0; u < w; ++u) {
            for (std::size_t y = 0; y < h; ++y) f.values[v * w + u] += rows[y * w + u] * root(v * y, h);
        }
    }
    return f;
}
Signal random_image(Generator& g, Size size)
{
    Signal image;
    for (int i = 0; i < size.width * size.height; ++i) image.push_back(static_cast<long double>(normal(g, 1)));
    return image;
}
double size_of(const Spectrum& f)
{
    long double most = 0;
    for (const Wide& x : f.values) most = std::max(most, std::abs(x));
    return static_cast<double>(most);
}

// Where the parts of F[v][u] stand; those of real values have no imaginary part.
struct Place {
    int re_x, re_y, im_x, im_y;
    bool real, mirrored;
};
Place place_of(int v, int u, Size s)
{
    const bool left = u == 0, middle = 2 * u == s.width;
    if (left || middle) {
        const int x = left ? 0 : s.width - 1;
        if (v == 0) return {x, 0, 0, 0, true, false};
        if (2 * v == s.height) return {x, s.height - 1, 0, 0, true, false};
        const bool below = 2 * v > s.height;
        const int stored = below ? s.height - v : v;
        return {x, 2 * stored - 1, x, 2 * stored, false, below};
    }
    if (2 * u < s.width) return {2 * u - 1, v, 2 * u, v, false, false};
    const int row = (s.height - v) % s.height, column = s.width - u;
    return {2 * column - 1, row, 2 * column, row, false, true};
}

struct Parts {
    std::uint32_t re, im;
};
Parts parts_at(const FramedFloats& packed, int v, int u)
{
    const Place p = place_of(v, u, {packed.width(), packed.height()});
    if (p.real) return {packed.bits(p.re_x, p.re_y), 0};
    return {packed.bits(p.re_x, p.re_y), packed.bits(p.im_x, p.im_y) ^ (p.mirrored ? kSign : 0)};
}
void pack(const Spectrum& f, FramedFloats& packed)
{
    for (int v = 0; v < f.size.height; ++v) {
        for (int u = 0; u < f.size.width; ++u) {
            const Place p = place_of(v, u, f.size);
            if (p.mirrored) continue;
            packed.set(p.re_x, p.re_y, static_cast<float>(f.at(v, u).real()));
            if (!p.real) packed.set(p.im_x, p.im_y, static_cast<float>(f.at(v, u).imag()));
        }
    }
}

std::vector<Size> small_sizes()
{
    std::vector<Size> all = {{16, 8}, {31, 4}, {32, 6}, {33, 5}, {64, 2}, {50, 7}};
    for (int w = 1; w <= 9; ++w) {
        for (int h = 1; h <= 9; ++h) all.push_back({w, h});
    }
    return all;
}
// Rows and columns that are done in blocks.
std::vector<Size> all_sizes()
{
    std::vector<Size> all = small_sizes();
    for (const Size s : {Size{70, 69}, Size{1100, 2}, Size{531, 3}, Size{3, 531}, Size{2, 1100}, Size{1, 64}})
        all.push_back(s);
    return all;
}

// --- Layout ---------------------------------------------------------------------------------------

// All values, packed again; magnitudes and phases.
bool extend_and_take_apart(const FramedFloats& packed, FramedFloats& all, FramedFloats& back, FramedFloats& magnitudes,
                           FramedFloats& phases)
{
    const int w = packed.width(), h = packed.height();
    auto* const complex = reinterpret_cast<Complex32f*>(all.pixels());
    return W::PackToCplxExtend_32f32fc_C1R(packed.pixels(), packed.step(), complex, all.step(), w, h) &&
           W::CplxExtendToPack_32fc32f_C1R(complex, all.step(), back.pixels(), back.step(), w, h) &&
           W::MagnitudePack_32f_C1R(packed.pixels(), packed.step(), magnitudes.pixels(), magnitudes.step(), w, h) &&
           W::PhasePack_32f_C1R(packed.pixels(), packed.step(), phases.pixels(), phases.step(), w, h);
}

// What every method makes of the spectrum of a known image.
TEST(PackedImages, FollowDirectTransforms)
{
    std::mt19937 g = make_generator("PackedImages");
    for (const Size s : small_sizes()) {
        const Spectrum f = transform(random_image(g, s), s);
        FramedFloats packed(s.width, s.height, 0, 0, 4 * uniform(g, 0, 1));
        pack(f, packed);
        const double tolerance = 1e-6 * size_of(f);
        at_every_level([&] {
            FramedFloats all(2 * s.width, s.height), magnitudes(s.width, s.height), phases(s.width, s.height),
                back(s.width, s.height);
            ASSERT_TRUE(extend_and_take_apart(packed, all, back, magnitudes, phases));
            for (int v = 0; v < s.height; ++v) {
                for (int u = 0; u < s.width; ++u) {
                    const Wide want = f.at(v, u);
                    ASSERT_NEAR(all.value(2 * u, v), static_cast<double>(want.real()), tolerance)
                        << s.width << " x " << s.height << ": " << v << ", " << u;
                    ASSERT_NEAR(all.value(2 * u + 1, v), static_cast<double>(want.imag()), tolerance)
                        << s.width << " x " << s.height << ": " << v << ", " << u;
                    ASSERT_NEAR(magnitudes.value(u, v), static_cast<double>(std::abs(want)), tolerance);
                    // Angles on either side of -pi are near to each other.
                    const long double turn = std::abs(std::polar(1.0L, static_cast<long double>(phases.value(u, v))) -
                                                      want / std::abs(want));
                    ASSERT_LE(static_cast<double>(turn * std::abs(want)), 2 * tolerance);
                    ASSERT_EQ(back.bits(u, v), packed.bits(u, v));
                }
            }
        });
    }
}

TEST(PackedImages, HaveTheLayoutOfTransforms)
{
    std::mt19937 g = make_generator("PackedFft2");
    const Size s = {32, 16};
    const Signal image = random_image(g, s);
    const Spectrum f = transform(image, s);
    FramedFloats src(s.width, s.height), packed(s.width, s.height), magnitudes(s.width, s.height);
    src.fill([&](int x, int y) { return static_cast<float>(image[static_cast<std::size_t>(y * s.width + x)]); });
    FFT2Wrapper fft(s.width, s.height, false);
    fft.Forward(src.pixels(), src.step(), packed.pixels(), packed.step(), s.width, s.height);
    ASSERT_TRUE(W::MagnitudePack_32f_C1R(packed.pixels(), packed.step(), magnitudes.pixels(), magnitudes.step(),
                                         s.width, s.height));
    for (int v = 0; v < s.height; ++v) {
        for (int u = 0; u < s.width; ++u)
            ASSERT_NEAR(magnitudes.value(u, v), static_cast<double>(std::abs(f.at(v, u))), 1e-6 * size_of(f));
    }
}

// --- Products -------------------------------------------------------------------------------------

TEST(PackedImages, ProductsAreConvolutionsAndCorrelations)
{
    std::mt19937 g = make_generator("PackedConvolution");
    for (const Size s : {Size{1, 1}, Size{2, 3}, Size{5, 4}, Size{8, 8}, Size{9, 7}, Size{24, 6}}) {
        const Signal a = random_image(g, s), b = random_image(g, s);
        Signal convolution(a.size()), correlation(a.size());
        const auto at = [s](int x, int y) {
            return static_cast<std::size_t>((y + s.height) % s.height * s.width + (x + s.width) % s.width);
        };
        for (int i = 0; i < s.width * s.height; ++i) {
            const int x = i % s.width, y = i / s.width;
            for (int k = 0; k < s.width * s.height; ++k) {
                const int dx = k % s.width, dy = k / s.width;
                convolution[at(x, y)] += a[at(x - dx, y - dy)] * b[at(dx, dy)];
                correlation[at(x, y)] += a[at(x + dx, y + dy)] * b[at(dx, dy)];
            }
        }
        FramedFloats first(s.width, s.height), second(s.width, s.height), product(s.width, s.height),
            want(s.width, s.height);
        pack(transform(a, s), first);
        pack(transform(b, s), second);
        at_every_level([&] {
            for (const bool conjugate : {false, true}) {
                const Spectrum f = transform(conjugate ? correlation : convolution, s);
                pack(f, want);
                auto* const multiply = conjugate ? W::MulPackConj_32f_C1R : W::MulPack_32f_C1R;
                ASSERT_TRUE(multiply(first.pixels(), first.step(), second.pixels(), second.step(), product.pixels(),
                                     product.step(), s.width, s.height));
                for (int i = 0; i < s.width * s.height; ++i) {
                    ASSERT_NEAR(product.value(i % s.width, i / s.width), want.value(i % s.width, i / s.width),
                                1e-6 * size_of(f))
                        << conjugate;
                }
            }
        });
    }
}

// Of values of all kinds, in all places that a destination may have.
TEST(PackedImages, ProductsFollowTheFormula)
{
    std::mt19937 g = make_generator("PackedProducts");
    for (const Size s : all_sizes()) {
        const int gap = uniform(g, 0, 3);
        FramedFloats a(s.width, s.height, 0, 0, gap), b(s.width, s.height, 0, 0, gap, false);
        a.fill_at_random(g, static_cast<Fill>(uniform(g, 0, 3)));
        b.fill_at_random(g, static_cast<Fill>(uniform(g, 0, 3)));
        for (const bool conjugate : {false, true}) {
            FramedFloats want(s.width, s.height);
            for (int v = 0; v < s.height; ++v) {
                for (int u = 0; u < s.width; ++u) {
                    const Place p = place_of(v, u, s);
                    if (p.mirrored) continue;
                    const Quad re1 = a.value(p.re_x, p.re_y), re2 = b.value(p.re_x, p.re_y);
                    if (p.real) {
                        want.set_bits(p.re_x, p.re_y, rounded_twice(re1 * re2));
                        continue;
                    }
                    const Quad im1 = a.value(p.im_x, p.im_y),
                               im2 = conjugate ? -b.value(p.im_x, p.im_y) : b.value(p.im_x, p.im_y);
                    want.set_bits(p.re_x, p.re_y, rounded_twice(re1 * re2 - im1 * im2));
                    want.set_bits(p.im_x, p.im_y, rounded_twice(re1 * im2 + im1 * re2));
                }
            }
            at_every_level([&] {
                FramedFloats apart(s.width, s.height), first(s.width, s.height), second(s.width, s.height, 0, 0, 1),
                    place(s.width, s.height);
                const auto copy = [](const FramedFloats& from, FramedFloats& to) {
                    for (int i = 0; i < from.width() * from.height(); ++i) {
                        to.set_bits(i % from.width(), i / from.width(), from.bits(i % from.width(), i / from.width()));
                    }
                };
                copy(a, first), copy(b, second), copy(b, place);
                auto* const multiply = conjugate ? W::MulPackConj_32f_C1R : W::MulPack_32f_C1R;
                auto* const in_place = conjugate ? W::MulPackConj_32f_C1IR : W::MulPack_32f_C1IR;
                ASSERT_TRUE(multiply(a.pixels(), a.step(), b.pixels(), b.step(), apart.pixels(), apart.step(), s.width,
                                     s.height));
                ASSERT_TRUE(multiply(first.pixels(), first.step(), b.pixels(), b.step(), first.pixels(), first.step(),
                                     s.width, s.height));
                ASSERT_TRUE(multiply(a.pixels(), a.step(), second.pixels(), second.step(), second.pixels(),
                                     second.step(), s.width, s.height));
                ASSERT_TRUE(in_place(a.pixels(), a.step(), place.pixels(), place.step(), s.width, s.height));
                for (const FramedFloats* got : {&apart, &first, &second, &place}) {
                    for (int i = 0; i < s.width * s.height; ++i) {
                        ASSERT_EQ(got->bits(i % s.width, i / s.width), want.bits(i % s.width, i / s.width))
                            << s.width << " x " << s.height << " at " << i << (conjugate ? ", conjugate" : "");
                    }
                }
            });
        }
    }
}

// --- Magnitudes, phases, extension, bit by bit --------------------------------------------------------

std::uint32_t magnitude(Parts p)
{
    const Quad x = from_bits<float>(p.re), y = from_bits<float>(p.im), s = x * x + y * y;
    volatile double sum = static_cast<double>(s);
    if (s != s) return negative_nan<float>;
    return std::isinf(sum) || sum == 0 ? rounded_twice(s) : rounded_twice(static_cast<Quad>(exact_root(sum)));
}
std::uint32_t phase(Parts p)
{
    const float re = from_bits<float>(p.re), im = from_bits<float>(p.im);
    float angle = 0;
    SignalProcessingWrapper::Atan2_32f_A24(&im, &re, &angle, 1);
    return bits_of(angle);
}

TEST(PackedImages, PartsOfAllKinds)
{
    std::mt19937 g = make_generator("PackedParts");
    for (const Size s : all_sizes()) {
        const int gap = uniform(g, 0, 3);
        FramedFloats packed(s.width, s.height, 0, 0, gap, uniform(g, 0, 1) == 0);
        packed.fill_at_random(g, static_cast<Fill>(uniform(g, 0, 3)));
        if (s.width > 2) packed.set_bits(2, 0, kSign);  // -0 becomes +0 in its mirror
        at_every_level([&] {
            FramedFloats all(2 * s.width, s.height, 0, 0, gap), magnitudes(s.width, s.height, 0, 0, gap, false),
                phases(s.width, s.height), back(s.width, s.height);
            FramedFloats magnitudes2(s.width, s.height), phases2(s.width, s.height, 0, 0, gap);
            auto* const complex = reinterpret_cast<Complex32f*>(all.pixels());
            ASSERT_TRUE(extend_and_take_apart(packed, all, back, magnitudes, phases));
            ASSERT_TRUE(W::Magnitude_32fc32f_C1R(complex, all.step(), magnitudes2.pixels(), magnitudes2.step(), s.width,
                                                 s.height));
            ASSERT_TRUE(W::Phase_32fc32f_C1R(complex, all.step(), phases2.pixels(), phases2.step(), s.width, s.height));
            for (int v = 0; v < s.height; ++v) {
                for (int u = 0; u < s.width; ++u) {
                    const Parts p = parts_at(packed, v, u);
                    SCOPED_TRACE(std::to_string(s.width) + " x " + std::to_string(s.height) + ": " + std::to_string(v) +
                                 ", " + std::to_string(u));
                    ASSERT_EQ(all.bits(2 * u, v), p.re);
                    ASSERT_EQ(all.bits(2 * u + 1, v), p.im);
                    ASSERT_EQ(back.bits(u, v), packed.bits(u, v));
                    ASSERT_EQ(magnitudes.bits(u, v), magnitude(p));
                    ASSERT_EQ(phases.bits(u, v), phase(p));
                    ASSERT_EQ(magnitudes2.bits(u, v), magnitude(p));
                    ASSERT_EQ(phases2.bits(u, v), phase(p));
                }
            }
        });
    }
}

TEST(PackedImages, PhasesOfRealValues)
{
    const std::uint32_t pi = 0x40490FDBu;
    const struct { std::uint32_t re, phase;
    } cases[] = {
        {0x3F800000, 0},          {0xBF800000, pi},        {0, 0}, {kSign, pi}, {0x7F800000, 0}, {0xFF800000, pi},
        {0x7F800001, 0x7FC00000}, {0xFFFFFFFF, 0x7FC00000}};
    at_every_level([&] {
        for (const auto& c : cases) {
            FramedFloats src(2, 2), dst(2, 2);
            for (int i = 0; i < 4; ++i) src.set_bits(i % 2, i / 2, c.re);
            ASSERT_TRUE(W::PhasePack_32f_C1R(src.pixels(), 8, dst.pixels(), 8, 2, 2));
            for (int i = 0; i < 4; ++i) ASSERT_EQ(dst.bits(i % 2, i / 2), c.phase) << std::hex << c.re;
        }
    });
}

// Imaginary parts of real values, and values that are not stored, are not looked at.
TEST(PackedImages, PackingReadsTheStoredHalf)
{
    std::mt19937 g = make_generator("Packing");
    for (const Size s : {Size{6, 6}, Size{7, 5}, Size{40, 12}, Size{1, 4}, Size{2, 3}}) {
        FramedFloats all(2 * s.width, s.height), packed(s.width, s.height);
        all.fill_at_random(g, Fill::near_high);
        at_every_level([&] {
            ASSERT_TRUE(W::CplxExtendToPack_32fc32f_C1R(reinterpret_cast<const Complex32f*>(all.pixels()), all.step(),
                                                        packed.pixels(), packed.step(), s.width, s.height));
            for (int v = 0; v < s.height; ++v) {
                for (int u = 0; u < s.width; ++u) {
                    const Place p = place_of(v, u, s);
                    if (p.mirrored) continue;
                    ASSERT_EQ(packed.bits(p.re_x, p.re_y), all.bits(2 * u, v));
                    if (!p.real) { ASSERT_EQ(packed.bits(p.im_x, p.im_y), all.bits(2 * u + 1, v)); }
                }
            }
        });
    }
}

// --- Windows --------------------------------------------------------------------------------------

std::vector<double> hamming(int n)
{
    // cos by its series in 113 bits.
    const Quad angle = over(6.283185307179586, n - 1);
    Quad term = 1, series = 1;
    for (int i = 2; i < 60; i += 2) series += term = -term * angle * angle / (i * (i - 1));
    const double c = rounded_once(series), q = exact_root(minus(1, times(c, c)));
    double cosine = 1, sine = 0;
    std::vector<double> weights(static_cast<std::size_t>(n), 1);
    for (int k = 0; k < n / 2; ++k) {
        weights[static_cast<std::size_t>(k)] = weights[static_cast<std::size_t>(n - 1 - k)] =
            minus(0.54, times(0.46, cosine));
        const double next = minus(times(c, cosine), times(q, sine));
        sine = plus(times(c, sine), times(q, cosine));
        cosine = next;
    }
    return weights;
}
std::vector<double> bartlett(int n)
{
    std::vector<double> weights(static_cast<std::size_t>(n));
    for (int k = 0; k <= (n - 1) / 2; ++k)
        weights[static_cast<std::size_t>(k)] = weights[static_cast<std::size_t>(n - 1 - k)] = over(2 * k, n - 1);
    return weights;
}

TEST(ImageWindows, FollowTheFormula)
{
    std::mt19937 g = make_generator("ImageWindows");
    for (const Size s :
         {Size{3, 3}, Size{4, 3}, Size{3, 4}, Size{9, 16}, Size{16, 9}, Size{33, 12}, Size{64, 5}, Size{301, 4}}) {
        for (const Fill fill : {Fill::uniform, Fill::special, Fill::near_high}) {
            const int gap = uniform(g, 0, 3);
            FramedFloats src(s.width, s.height, 0, 0, gap, uniform(g, 0, 1) == 0);
            src.fill_at_random(g, fill);
            for (const bool triangle : {false, true}) {
                const auto wx = triangle ? bartlett(s.width) : hamming(s.width),
                           wy = triangle ? bartlett(s.height) : hamming(s.height);
                auto* const apply = triangle ? W::WinBartlett_32f_C1R : W::WinHamming_32f_C1R;
                at_every_level([&] {
                    FramedFloats dst(s.width, s.height), place(s.width, s.height, 0, 0, gap), turned(s.height, s.width);
                    for (int i = 0; i < s.width * s.height; ++i) {
                        place.set_bits(i % s.width, i / s.width, src.bits(i % s.width, i / s.width));
                        turned.set_bits(i / s.width, i % s.width, src.bits(i % s.width, i / s.width));
                    }
                    ASSERT_TRUE(apply(src.pixels(), src.step(), dst.pixels(), dst.step(), s.width, s.height));
                    ASSERT_TRUE(apply(place.pixels(), place.step(), place.pixels(), place.step(), s.width, s.height));
                    ASSERT_TRUE(
                        apply(turned.pixels(), turned.step(), turned.pixels(), turned.step(), s.height, s.width));
                    for (int y = 0; y < s.height; ++y) {
                        for (int x = 0; x < s.width; ++x) {
                            const std::uint32_t pixel = src.bits(x, y);
                            const double product = times(src.value(x, y), times(wx[static_cast<std::size_t>(x)],
                                                                                wy[static_cast<std::size_t>(y)]));
                            const std::uint32_t want = is_nan<float>(pixel) ? pixel | quiet_bit<float>
                                                       : product != product ? negative_nan<float>
                                                                            : bits_of(single(product));
                            ASSERT_EQ(dst.bits(x, y), want) << s.width << " x " << s.height << " at " << x << ", " << y
                                                            << (triangle ? ", Bartlett" : ", Hamming");
                            ASSERT_EQ(place.bits(x, y), want);
                            ASSERT_EQ(turned.bits(y, x), want);
                        }
                    }
                });
            }
        }
    }
}

// --- Refusals -------------------------------------------------------------------------------------

TEST(PackedImages, RefusalsWriteNothing)
{
    using namespace orv;
    FramedFloats src(16, 8), dst(16, 8);
    src.fill([](int x, int y) { return static_cast<float>(x - y); });
    dst.fill([](int, int) { return 7.0f; });
    const float* const s = src.pixels();
    float* const d = dst.pixels();
    const auto* const cs = reinterpret_cast<const Complex32f*>(s);
    auto* const cd = reinterpret_cast<Complex32f*>(d);
    // Null pointers first, then sizes, then steps.
    const struct { bool no_src, no_dst; int srcStep, dstStep, width, height; Status status; } cases[] = {
        {true, false, 0, 64, 0, 4, StatusNullPointer}, {false, true, 64, 64, 4, 4, StatusNullPointer},
        {false, false, 0, 64, 0, 4, StatusBadSize},    {false, false, 64, 64, 4, -1, StatusBadSize},
        {false, false, 0, 64, 4, 4, StatusBadStep},    {false, false, 64, -64, 4, 4, StatusBadStep},
    };
    at_every_level([&] {
        for (const auto& c : cases) {
            const float* const from = c.no_src ? nullptr : s;
            float* const to = c.no_dst ? nullptr : d;
            const auto* const complex_from = c.no_src ? nullptr : cs;
            auto* const complex_to = c.no_dst ? nullptr : cd;
            const Size size = {c.width, c.height};
            for (const auto* operation : {&orv_MagnitudePack_32f_C1R, &orv_PhasePack_32f_C1R, &orv_WinHamming_32f_C1R,
                                          &orv_WinBartlett_32f_C1R}) {
                EXPECT_EQ((*operation)(from, c.srcStep, to, c.dstStep, size), c.status);
            }
            for (const auto* operation :
                 {&orv_CplxExtendToPack_32fc32f_C1R, &orv_Magnitude_32fc32f_C1R, &orv_Phase_32fc32f_C1R}) {
                EXPECT_EQ((*operation)(complex_from, c.srcStep, to, c.dstStep, size), c.status);
            }
            EXPECT_EQ(orv_PackToCplxExtend_32f32fc_C1R(from, c.srcStep, complex_to, c.dstStep, size), c.status);
            for (const auto* operation : {&orv_MulPack_32f_C1R, &orv_MulPackConj_32f_C1R}) {
                EXPECT_EQ((*operation)(from, c.srcStep, s, 64, to, c.dstStep, size), c.status);
                EXPECT_EQ((*operation)(s, 64, from, c.srcStep, to, c.dstStep, size), c.status);
            }
            EXPECT_FALSE(W::MulPack_32f_C1IR(from, c.srcStep, to, c.dstStep, c.width, c.height));
            EXPECT_FALSE(W::MulPackConj_32f_C1IR(from, c.srcStep, to, c.dstStep, c.width, c.height));
        }
        EXPECT_EQ(orv_WinHamming_32f_C1R(s, 0, d, 64, {2, 4}), StatusBadSize);
        EXPECT_EQ(orv_WinBartlett_32f_C1R(s, 64, d, 0, {4, 2}), StatusBadSize);
        EXPECT_EQ(orv_WinBartlett_32f_C1R(s, 64, d, 64, {0x7FFFFFFF, 3}), StatusNoMemory)
            << "weights larger than any memory";
        {
            const AllocationFailure none_left(0);
            EXPECT_EQ(orv_WinHamming_32f_C1R(s, 64, d, 64, {4, 4}), StatusNoMemory);
            EXPECT_FALSE(W::WinBartlett_32f_C1R(s, 64, d, 64, 4, 4));
        }
        for (int i = 0; i < 128; ++i) ASSERT_EQ(dst.value(i % 16, i / 16), 7);
        // The others need none.
        const AllocationFailure none_left(0);
        FramedFloats packed(16, 8), all(32, 8);
        auto* const complex = reinterpret_cast<Complex32f*>(all.pixels());
        EXPECT_TRUE(W::MulPack_32f_C1R(s, 64, s, 64, packed.pixels(), 64, 16, 8));
        EXPECT_TRUE(W::PackToCplxExtend_32f32fc_C1R(s, 64, complex, 128, 16, 8));
        EXPECT_TRUE(W::CplxExtendToPack_32fc32f_C1R(complex, 128, packed.pixels(), 64, 16, 8));
        EXPECT_TRUE(W::PhasePack_32f_C1R(s, 64, packed.pixels(), 64, 16, 8));
        EXPECT_TRUE(W::Magnitude_32fc32f_C1R(complex, 128, packed.pixels(), 64, 16, 8));
    });
}

}  // namespace
}  // namespace test
