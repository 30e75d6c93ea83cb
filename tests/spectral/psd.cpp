// The power spectrum object and the two-dimensional object: results, lifecycle, lack of memory.
#include <cstring>
#include <vector>

#include "FFT2Wrapper.h"
#include "FFTWrapper.h"
#include "gmock/gmock.h"
#include "spectral/fft.h"
#include "support/allocations.h"
#include "support/dft.h"
#include "support/image.h"
#include "support/levels.h"

namespace test {
namespace {

std::vector<float> random_floats(std::size_t n, std::mt19937& g, float low = -1, float high = 1)
{
    std::vector<float> x(n);
    for (float& v : x) v = std::uniform_real_distribution<float>(low, high)(g);
    return x;
}


// --- Power spectrum -------------------------------------------------------------------------------

std::vector<double> power_spectrum(const std::vector<float>& signal, const std::vector<float>& window)
{
    const std::size_t n = signal.size();
    double sum = 0;
    for (const float v : signal) sum += v;
    const float mean = static_cast<float>(sum / static_cast<double>(n));
    std::size_t used = 1;
    while (2 * used <= n) used *= 2;
    std::vector<Wide> x(used);
    for (std::size_t i = 0; i < used; ++i) {
        const volatile float centred = signal[i] - mean;
        const volatile float windowed = window[i] * centred;
        x[i] = static_cast<long double>(windowed);
    }
    x = dft(x);
    std::vector<double> power(n);
    for (std::size_t k = 0; k < used; ++k) power[k] = static_cast<double>(std::norm(x[k]));
    return power;
}

TEST(PowerSpectrum, AgainstLongDoubleTheSameAtEveryLevel)
{
    auto g = make_generator("PowerSpectrum");
    for (const int n : {1, 2, 3, 4, 5, 7, 8, 16, 31, 33, 64, 100, 127, 128, 129, 255, 256, 1000, 1024, 2049, 8192}) {
        SCOPED_TRACE("n = " + std::to_string(n));
        const std::size_t count = static_cast<std::size_t>(n);
        const std::vector<float> signal = random_floats(count, g, 2, 5), window = random_floats(count, g, 0, 1);
        const std::vector<double> want = power_spectrum(signal, window);
        double total = 0;
        for (const double p : want) total += p;
        std::vector<float> first;
        at_every_level([&] {
            FFTWrapper object(n);
            std::vector<float> out(count + 1, -1.0f);
            ASSERT_TRUE(object.PsdFFT(signal.data(), window.data(), out.data(), n));
            EXPECT_EQ(out[count], -1.0f);
            for (std::size_t k = 0; k < count; ++k) ASSERT_NEAR(out[k], want[k], 1e-6 * total + 1e-12) << k;
            if (first.empty()) first = out;
            EXPECT_EQ(std::memcmp(out.data(), first.data(), count * sizeof(float)), 0);
            // A second block does not see the first; in place of the signal.
            std::vector<float> in_place(signal);
            object.PsdFFT(window.data(), signal.data(), out.data(), n);
            object.PsdFFT(in_place.data(), window.data(), in_place.data(), n);
            EXPECT_EQ(std::memcmp(in_place.data(), first.data(), count * sizeof(float)), 0);
        });
    }
}

TEST(PowerSpectrum, KnownSpectra)
{
    at_every_level([] {
        const std::vector<float> ones(64, 1.0f);
        std::vector<float> signal(64), out(64, -1.0f);
        FFTWrapper object(64);
        for (const float c : {0.0f, 1.5f, -1e-3f, 3e38f, 0.1f}) {
            signal.assign(64, c);
            object.PsdFFT(signal.data(), signal.data(), out.data(), 64);
            EXPECT_THAT(out, testing::Each(0.0f)) << c;
        }
        for (std::size_t i = 0; i < 64; ++i)
            signal[i] = static_cast<float>(std::cos(2 * std::acos(-1.0) * 4 * static_cast<double>(i) / 64));
        object.PsdFFT(signal.data(), ones.data(), out.data(), 64);
        for (std::size_t k = 0; k < 64; ++k) EXPECT_NEAR(out[k], k == 4 || k == 60 ? 1024 : 0, 1e-3) << k;

        // The mean is taken over all 100 samples, the spectrum over the first 64.
        FFTWrapper longer(100);
        std::vector<float> step(100), window(100, 1.0f), result(100, -1.0f);
        for (std::size_t i = 64; i < 100; ++i) step[i] = 100;
        longer.PsdFFT(step.data(), window.data(), result.data(), 100);
        EXPECT_NEAR(result[0], 36.0 * 36.0 * 64 * 64, 36.0 * 36.0 * 64 * 64 * 1e-6);
        EXPECT_THAT(std::vector<float>(result.begin() + 64, result.end()), testing::Each(0.0f));
    });
}

TEST(PowerSpectrum, LargeMeansDoNotDrownTheSignal)
{
    // 1e6 + noise of 1: sums in single precision would be off by more than the noise.
    auto g = make_generator("LargeMeans");
    std::vector<float> signal = random_floats(4096, g);
    for (float& v : signal) v += 1e6f;
    const std::vector<float> window(4096, 1.0f);
    const std::vector<double> want = power_spectrum(signal, window);
    std::vector<float> out(4096);
    FFTWrapper(4096).PsdFFT(signal.data(), window.data(), out.data(), 4096);
    for (std::size_t k = 0; k < 4096; ++k) ASSERT_NEAR(out[k], want[k], 1e-4 * want[7] + 1e-4 * want[k] + 1) << k;
}

TEST(PowerSpectrum, WithoutPreparationNothingIsWritten)
{
    const std::vector<float> in(64, 1.0f);
    std::vector<float> out(64, 5.0f);
    const auto unchanged = [&](FFTWrapper& object, int n) {
        EXPECT_TRUE(object.PsdFFT(in.data(), in.data(), out.data(), n));
        EXPECT_THAT(out, testing::Each(5.0f));
    };
    FFTWrapper object;
    unchanged(object, 64);
    for (const int n : {0, -1, INT32_MIN, INT32_MAX, 1 << 29}) {
        EXPECT_TRUE(object.Init(n));
        unchanged(object, 64);
        unchanged(object, n == INT32_MAX || n == 1 << 29 ? 64 : n);
    }
    object.Init(32);
    for (const int n : {64, 33, 31, 0, -32}) unchanged(object, n);
    EXPECT_TRUE(object.PsdFFT(nullptr, in.data(), out.data(), 32));
    EXPECT_TRUE(object.PsdFFT(in.data(), nullptr, out.data(), 32));
    EXPECT_TRUE(object.PsdFFT(in.data(), in.data(), nullptr, 32));
    EXPECT_THAT(out, testing::Each(5.0f));
    object.PsdFFT(in.data(), in.data(), out.data(), 32);
    EXPECT_EQ(out[31], 0.0f);
    EXPECT_EQ(out[32], 5.0f);
    object.Cleanup();
    object.Cleanup();
    out.assign(64, 5.0f);
    unchanged(object, 32);
    object.Init(64);
    object.PsdFFT(in.data(), in.data(), out.data(), 64);
    EXPECT_THAT(out, testing::Each(0.0f));
}

TEST(PowerSpectrum, LackOfMemoryLeavesAnObjectThatCanBePreparedAgain)
{
    const std::vector<float> in(2048, 1.0f);
    for (int failing = 0; failing < 7; ++failing) {
        std::vector<float> out(2048, 5.0f);
        FFTWrapper object;
        {
            AllocationFailure failure(failing);
            object.Init(2048);
            const int prepared = AllocationFailure::live();
            EXPECT_EQ(prepared, failing < 5 ? 0 : 4) << failing;
            object.PsdFFT(in.data(), in.data(), out.data(), 2048);
            object.Cleanup();
        }
        EXPECT_THAT(out, testing::Each(failing < 5 ? 5.0f : 0.0f));
        object.Init(2048);
        object.PsdFFT(in.data(), in.data(), out.data(), 2048);
        EXPECT_THAT(out, testing::Each(0.0f));
    }
}

TEST(PowerSpectrum, AssignmentShares)
{
    alignas(FFTWrapper) unsigned char memory[sizeof(FFTWrapper)];
    std::memset(memory, 0xFF, sizeof(memory));
    reinterpret_cast<FFTWrapper*>(memory)->__autoclassinit2(sizeof(memory));
    EXPECT_THAT(memory, testing::Each(0));
    FFTWrapper* const lost = new (memory) FFTWrapper;
    FFTWrapper kept(64);
    std::vector<float> in(64, 1.0f), out(64, 5.0f);
    // What `lost` held would never be released: destroy it first, by hand.
    lost->~FFTWrapper();
    *lost = kept;
    lost->PsdFFT(in.data(), in.data(), out.data(), 64);
    EXPECT_THAT(out, testing::Each(0.0f));
    static_assert(sizeof(FFTWrapper) == sizeof(void*), "One pointer, hosts lay these out themselves");
}

TEST(PowerSpectrum, OrderOfEveryLength)
{
    for (int order = 0; order <= 30; ++order) {
        const int n = 1 << order;
        EXPECT_EQ(orv::orv_fft_order(n), order);
        EXPECT_EQ(orv::orv_fft_order(n - 1), order - 1);
        EXPECT_EQ(orv::orv_fft_order(n + (n - 1)), order);
    }
    EXPECT_EQ(orv::orv_fft_order(1000), 9);
    EXPECT_EQ(orv::orv_fft_order(-1), -1);
}

// --- Two dimensions -------------------------------------------------------------------------------

TEST(Fft2Object, TransformsTheTopLeftBlock)
{
    auto g = make_generator("Fft2Object");
    const int width = 100, height = 60;
    const std::vector<float> image = random_floats(6000, g);
    at_every_level([&] {
        FFT2Wrapper object;
        std::vector<float> spectrum(6000, 5.0f), back(6000, 5.0f), block(64 * 32), packed(64 * 32);
        object.Forward(image.data(), 400, spectrum.data(), 400, width, height);
        for (std::size_t y = 0; y < 32; ++y) std::copy_n(image.data() + 100 * y, 64, block.data() + 64 * y);
        FFT2Wrapper exact(64, 32, true);
        exact.Forward(block.data(), 256, packed.data(), 256, 64, 32);
        object.Inverse(spectrum.data(), 400, back.data(), 400, width, height);
        for (std::size_t y = 0; y < 60; ++y) {
            for (std::size_t x = 0; x < 100; ++x) {
                const bool inside = x < 64 && y < 32;
                ASSERT_EQ(spectrum[100 * y + x], inside ? packed[64 * y + x] : 5.0f);
                ASSERT_NEAR(back[100 * y + x], inside ? image[100 * y + x] : 5.0f, 1e-6);
            }
        }
        // In place: only the block is replaced.
        std::vector<float> same(spectrum);
        object.Inverse(same.data(), 400, width, height);
        EXPECT_EQ(same, back);
    });
}

TEST(Fft2Object, ConstantImage)
{
    at_every_level([] {
        std::vector<float> image(64, 3.0f);
        FFT2Wrapper object(8, 8, false);
        object.Forward(image.data(), 32, image.data(), 32, 8, 8);
        EXPECT_EQ(image[0], 192.0f);
        EXPECT_THAT(std::vector<float>(image.begin() + 1, image.end()), testing::Each(0.0f));
    });
}

TEST(Fft2Object, ForwardInPlaceTransformsItsScratchImage)
{
    auto g = make_generator("Fft2InPlace");
    struct Row {
        int width, height, orderX, orderY;
    };
    for (const Row row : {Row{64, 32, 6, 5}, {8, 8, 3, 3}, {100, 17, 6, 4}, {2, 2, 1, 1}, {300, 5, 8, 2}}) {
        const std::size_t width = static_cast<std::size_t>(row.width), height = static_cast<std::size_t>(row.height);
        const std::vector<float> image = random_floats(width * height, g);
        const std::size_t w = std::size_t{1} << row.orderX, h = std::size_t{1} << row.orderY;
        // Rows of 16 floats that hold the corner; the transform reads w floats from each.
        std::vector<float> scratch(16 * h + w);
        for (std::size_t y = 0; y < static_cast<std::size_t>(row.orderY); ++y) {
            std::copy_n(image.data() + width * y, row.orderX, scratch.data() + 16 * y);
        }
        const int step = 4 * row.width;
        at_every_level([&] {
            std::vector<float> want(image), got(image);
            FFT2Wrapper object;
            object.Forward(scratch.data(), 64, want.data(), step, row.width, row.height);
            FFT2Wrapper(row.width, row.height, false).Forward(got.data(), step, row.width, row.height);
            EXPECT_EQ(got, want);
        });
    }
}

TEST(Fft2Object, SizesWithoutOrderKeepTheHeldTransform)
{
    std::vector<float> image(64 * 4, 1.0f), out(64 * 4, 5.0f);
    const int step = 32;
    FFT2Wrapper object;
    for (const int side : {1, 0, -3}) {
        object.Forward(image.data(), step, out.data(), step, side, 8);
        object.Inverse(image.data(), step, out.data(), step, 8, side);
        object.Forward(out.data(), step, side, 8);
        object.Inverse(out.data(), step, 8, side);
        EXPECT_TRUE(object.Init(side, side, false));
    }
    EXPECT_THAT(out, testing::Each(5.0f));

    object.Init(8, 8, false);
    object.Forward(image.data(), step, out.data(), step, 1, 8);
    EXPECT_EQ(out[0], 64.0f);
    const std::vector<float> before(out);
    object.Forward(out.data(), step, 8, 1);
    object.Inverse(out.data(), step, 1, 8);
    object.Forward(nullptr, step, out.data(), step, 8, 8);
    object.Forward(image.data(), 0, out.data(), step, 8, 8);
    object.Inverse(image.data(), step, nullptr, step, 8, 8);
    object.Forward(nullptr, step, 8, 8);
    object.Forward(out.data(), -4, 8, 8);
    object.Inverse(nullptr, step, 8, 8);
    EXPECT_EQ(out, before);
    // Sizes that cannot be: the object is not prepared, and then again for a size that can.
    object.Forward(image.data(), step, out.data(), step, -8, 8);
    object.Forward(image.data(), step, out.data(), step, 1 << 20, 1 << 20);
    EXPECT_EQ(out, before);
    out[0] = 5.0f;
    object.Forward(image.data(), step, out.data(), step, 8, 8);
    EXPECT_EQ(out, before);
}

TEST(Fft2Object, AssignmentCopiesNothing)
{
    std::vector<float> image(64, 1.0f), out(64);
    FFT2Wrapper a(8, 8, false), b;
    a = b;
    b = a;
    a.Forward(image.data(), 32, out.data(), 32, 8, 8);
    EXPECT_EQ(out[0], 64.0f);
    out[0] = 5;
    b.Forward(image.data(), 32, out.data(), 32, 1, 1);
    EXPECT_EQ(out[0], 5.0f);
}

TEST(Fft2Object, LackOfMemoryWritesNothing)
{
    std::vector<float> image(2048 * 4, 1.0f);
    const int step = 2048 * 4;
    for (int failing = 0; failing < 5; ++failing) {
        std::vector<float> out(image.size(), 5.0f);
        FFT2Wrapper object(false);
        {
            AllocationFailure failure(failing);
            object.Forward(image.data(), step, out.data(), step, 2048, 4);
            EXPECT_EQ(out[0], failing < 3 ? 5.0f : 8192.0f);
            if (failing >= 3) {
                // The scratch image of the in-place form is the next allocation.
                out.assign(out.size(), 5.0f);
                object.Forward(out.data(), step, 2048, 4);
                EXPECT_EQ(out[0] == 5.0f, failing == 3);
            }
            // Releases what was prepared, and prepares nothing.
            object.Init(-5, 8, false);
        }
        object.Forward(image.data(), step, out.data(), step, 2048, 4);
        EXPECT_EQ(out[0], 8192.0f);
    }
}

}  // namespace
}  // namespace test
