// Objects of the layer, and which library runs.
#include <cmath>
#include <orvane.hpp>
#include <string>
#include <vector>

#include "core/operation.h"
#include "gmock/gmock.h"
#include "support/allocations.h"

namespace {

using orvane::image;
using orvane::lengths;
using orvane::outcome;

TEST(LayerLibrary, VersionAndLevel)
{
    EXPECT_STREQ(orvane::version(), ORVANE_VERSION_STRING);
    EXPECT_EQ(orvane::version_number(), ORVANE_VERSION);
    const std::string names[] = {"px", "w7", "v8", "s8", "p8", "g9", "h9"};
    EXPECT_EQ(orvane::level(), names[orv::orv_variant_index]);
}

TEST(LayerPsd, Sine)
{
    orvane::psd made(64);
    orvane::psd spectrum = std::move(made);
    EXPECT_EQ(made.length(), 0);
    std::vector<float> signal(64), window(64, 1.0F), power(64);
    for (std::size_t k = 0; k < 64; ++k) signal[k] = std::sin(static_cast<float>(k) * 0.5890486F) + 3;  // 6 periods
    spectrum(signal, window, power).check();
    EXPECT_NEAR(power[6], 32 * 32, 0.1);
    EXPECT_NEAR(power[58], 32 * 32, 0.1);
    EXPECT_NEAR(power[7], 0, 0.01);
    EXPECT_NEAR(power[0], 0, 0.01);
    EXPECT_STREQ(spectrum(signal, window, orvane::span<float>(power).part(0, 63)).argument(), "power");
    EXPECT_STREQ(spectrum(signal, {}, power).argument(), "window");
    EXPECT_EQ(made(signal, window, power).message(), "psd: nothing was prepared; nothing was written");
}

TEST(LayerPsd, Lengths)
{
    orvane::psd spectrum;
    EXPECT_EQ(spectrum.prepare(1000).message(),
              "psd: length 1000 is no power of two; 512 would be transformed; nothing was written");
    EXPECT_TRUE(spectrum.prepare(1000, lengths::truncate));
    EXPECT_EQ(spectrum.length(), 1000);
    EXPECT_TRUE(spectrum.prepare(1));
    EXPECT_STREQ(spectrum.prepare(0).argument(), "length");
    EXPECT_THROW(orvane::psd(1000), orvane::error);
    const test::AllocationFailure none(0);
    ++test::AllocationFailure::live();  // the record, which always comes and is not counted then
    EXPECT_EQ(spectrum.prepare(1024).result(), outcome::out_of_memory);
    EXPECT_EQ(spectrum.length(), 1) << "what was prepared stays";
}

TEST(LayerFft2, ThereAndBack)
{
    orvane::fft2 transform(16, 8);
    image<float> source(16, 8), spectrum(16, 8), back(16, 8);
    float sum = 0;
    for (int k = 0; k < 128; ++k) sum += source(k % 16, k / 16) = static_cast<float>(k * k % 37);
    transform.forward(source, spectrum).check();
    EXPECT_NEAR(spectrum(0, 0), sum, 1e-3);
    transform.inverse(spectrum, back).check();
    for (int k = 0; k < 128; ++k) EXPECT_NEAR(back(k % 16, k / 16), source(k % 16, k / 16), 1e-4);
    image<float> narrow(15, 8);
    EXPECT_STREQ(transform.forward(narrow, spectrum).argument(), "source");
    EXPECT_STREQ(transform.forward(source, narrow).argument(), "spectrum");
    EXPECT_STREQ(transform.inverse(spectrum, {}).argument(), "destination");
    EXPECT_STREQ(orvane::fft2().forward(source, spectrum).argument(), "size");
    orvane::fft2 other;
    EXPECT_STREQ(other.prepare(16, 9).argument(), "height");
    EXPECT_STREQ(other.prepare(1, 8).argument(), "width");
    EXPECT_TRUE(other.prepare(15, 9, lengths::truncate));
    const test::AllocationFailure none(0);
    ++test::AllocationFailure::live();  // the record, which always comes and is not counted then
    EXPECT_EQ(other.prepare(16, 8).result(), outcome::out_of_memory);
}

TEST(LayerGaussian, StreamsAndSeeds)
{
    orvane::gaussian one(5), two(5);
    std::vector<double> a(10), b(10);
    one(a, 3, 2).check();
    two(orvane::span<double>(b).part(0, 4), 3, 2).check();
    two(orvane::span<double>(b).part(4, 6), 3, 2).check();
    EXPECT_EQ(a, b);
    EXPECT_STREQ(one(a, 0, 0).argument(), "sigma");
    EXPECT_STREQ(one({}, 0, 1).argument(), "numbers");
    const test::AllocationFailure none(0);
    EXPECT_THROW(orvane::gaussian(5), std::bad_alloc);
}

}  // namespace
