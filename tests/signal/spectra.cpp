// Packed spectra, magnitude, complex vectors from parts and the Hamming window.
#include "signal/spectra.h"

#include <climits>
#include <vector>

#include "SignalProcessingWrapper.h"
#include "gmock/gmock.h"
#include "support/allocations.h"
#include "support/exact.h"
#include "support/levels.h"
#include "support/random.h"

namespace test {
namespace {

using V = SignalProcessingWrapper;
using Words = std::vector<std::uint32_t>;

Words telling_floats(std::mt19937& g, int n)
{
    Words v(static_cast<std::size_t>(n));
    for (auto& x : v)
        x = bits_of(random_value<float>(g, static_cast<Fill>(uniform(g, 0, static_cast<int>(Fill::kinds) - 1))));
    return v;
}
const float* floats(const Words& v) { return reinterpret_cast<const float*>(v.data()); }
float* floats(Words& v) { return reinterpret_cast<float*>(v.data()); }

// Products of packed spectra, of b or of its conjugate.
Words expected_product(const Words& a, const Words& b, bool conjugate)
{
    const auto at = [](const Words& v, std::size_t i) { return static_cast<Quad>(from_bits<float>(v[i])); };
    Words d(a.size());
    d.front() = rounded_twice(at(a, 0) * at(b, 0));
    if (a.size() % 2 == 0) d.back() = rounded_twice(at(a, a.size() - 1) * at(b, b.size() - 1));
    for (std::size_t k = 1; k + 1 < a.size(); k += 2) {
        const Quad b_im = conjugate ? -at(b, k + 1) : at(b, k + 1);
        d[k] = rounded_twice(at(a, k) * at(b, k) - at(a, k + 1) * b_im);
        d[k + 1] = rounded_twice(at(a, k) * b_im + at(a, k + 1) * at(b, k));
    }
    return d;
}

TEST(Spectra, PackedProducts)
{
    std::mt19937 g = make_generator("MulPack");
    for (int n = 1; n <= 200; ++n) {
        const Words a = telling_floats(g, n), b = telling_floats(g, n);
        const Words want = expected_product(a, b, false), want_conjugate = expected_product(a, b, true);
        at_every_level([&] {
            Words got(a.size());
            ASSERT_TRUE(V::MulPack_32f(floats(a), floats(b), floats(got), n));
            for (std::size_t i = 0; i < got.size(); ++i) ASSERT_EQ(got[i], want[i]) << n << ", " << i;
            got = b;
            ASSERT_FALSE(V::MulPack_32f_I(floats(a), floats(got), n)) << "inverted";
            ASSERT_EQ(got, want);
            got = a;
            ASSERT_TRUE(V::MulPack_32f(floats(got), floats(b), floats(got), n)) << "destination is a source";
            ASSERT_EQ(got, want);
            got = b;
            ASSERT_TRUE(V::MulPackConj_32f_I(floats(a), floats(got), n));
            ASSERT_EQ(got, want_conjugate) << n;
        });
    }
}

TEST(Spectra, Magnitude)
{
    std::mt19937 g = make_generator("Magnitude");
    for (int n : {1, 2, 3, 7, 8, 9, 31, options().brief ? 300 : 30000}) {
        Words re = telling_floats(g, n), im = telling_floats(g, n), want(re.size());
        for (std::size_t i = 0; i < re.size(); ++i) {
            // Integers, too: their roots are often exact, or halfway.
            if (i % 3 == 0)
                re[i] = bits_of(static_cast<float>(uniform(g, -40000, 40000))),
                im[i] = bits_of(static_cast<float>(uniform(g, -9, 9)));
            const Quad x = from_bits<float>(re[i]), y = from_bits<float>(im[i]), s = x * x + y * y;
            volatile double sum = static_cast<double>(s);
            want[i] = s != s                        ? negative_nan<float>
                      : std::isinf(sum) || sum == 0 ? rounded_twice(s)
                                                    : rounded_twice(static_cast<Quad>(exact_root(sum)));
        }
        at_every_level([&] {
            Words got(re.size());
            ASSERT_TRUE(V::Magnitude_32f(floats(re), floats(im), floats(got), n));
            for (std::size_t i = 0; i < got.size(); ++i)
                ASSERT_EQ(got[i], want[i]) << std::hex << re[i] << ", " << im[i];
        });
    }
}

TEST(Spectra, RealToComplex)
{
    std::mt19937 g = make_generator("RealToCplx");
    for (int n = 1; n < 70; ++n) {
        const Words re = telling_floats(g, n), im = telling_floats(g, n);
        at_every_level([&] {
            for (int missing = 0; missing < 3; ++missing) {
                Words got(2 * re.size());
                ASSERT_TRUE(V::RealToCplx_32f(missing == 1 ? nullptr : floats(re), missing == 2 ? nullptr : floats(im),
                                              reinterpret_cast<Complex32f*>(got.data()), n));
                for (std::size_t i = 0; i < re.size(); ++i) {
                    ASSERT_EQ(got[2 * i], missing == 1 ? 0 : re[i]);
                    ASSERT_EQ(got[2 * i + 1], missing == 2 ? 0 : im[i]);
                }
            }
        });
    }
}

TEST(Spectra, HammingWindow)
{
    const double pi = 3.14159265358979323846;
    for (int n : {3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 31, 32, 33, 64, 127, 1000, 1001, 4096, 100000}) {
        // Signals that show the weight, rounded to float.
        const auto count = static_cast<std::size_t>(n);
        std::vector<float> ones(count, 1.f);
        at_every_level([&] {
            std::vector<float> window(count), place = ones;
            ASSERT_TRUE(V::WinHamming_32f(ones.data(), window.data(), n));
            for (int k = 0; k < n; ++k) {
                const double weight = 0.54 - 0.46 * std::cos(2 * pi * k / (n - 1));
                ASSERT_NEAR(window[static_cast<std::size_t>(k)], weight, 6e-8 + (n > 10000 ? 2e-8 : 0))
                    << n << ", " << k;
                ASSERT_EQ(window[static_cast<std::size_t>(k)], window[static_cast<std::size_t>(n - 1 - k)]);
            }
            if (n % 2 == 1) { ASSERT_EQ(window[count / 2], 1.f); }
            ASSERT_TRUE(V::WinHamming_32f_I(place.data(), n));
            ASSERT_EQ(place, window);
        });
    }
    at_every_level([] {
        float three[3] = {1, from_bits<float>(0x7F800001u), 2};
        EXPECT_TRUE(V::WinHamming_32f_I(three, 3));
        EXPECT_NEAR(three[0], 0.08, 1e-8);
        EXPECT_EQ(bits_of(three[1]), 0x7F800001u) << "the middle element is copied";
        EXPECT_NEAR(three[2], 0.16, 2e-8);
        float ends[4] = {from_bits<float>(0x7F800001u), 1, 1, from_bits<float>(0xFF812345u)};
        EXPECT_TRUE(V::WinHamming_32f_I(ends, 4));
        EXPECT_EQ(bits_of(ends[0]), 0x7FC00001u);
        EXPECT_EQ(bits_of(ends[3]), 0xFFC12345u);
    });
}

// The recurrence itself, to the bit, from a correctly rounded cosine.
TEST(Spectra, HammingRecurrence)
{
    const auto rounded = [](Quad x) {
        volatile double stored = static_cast<double>(x);
        return static_cast<Quad>(stored);
    };
    for (int n : {4, 6, 9, 10, 12, 16, 100, 1023, 5000}) {
        // cos by its series in 113 bits.
        volatile double angle = 6.283185307179586 / (n - 1);
        Quad term = 1, sum = 1;
        for (int i = 2; i < 60; i += 2)
            sum += term = -term * static_cast<Quad>(angle) * static_cast<Quad>(angle) / (i * (i - 1));
        const Quad c = rounded(sum),
                   s = static_cast<Quad>(exact_root(static_cast<double>(rounded(1 - rounded(c * c)))));
        Quad cosine = 1, sine = 0;
        std::vector<float> src(static_cast<std::size_t>(n), 12345.678f), want(src), got(src);
        for (int k = 0; k < n / 2; ++k) {
            const Quad weight = rounded(static_cast<Quad>(0.54) - rounded(static_cast<Quad>(0.46) * cosine));
            const auto low = static_cast<std::size_t>(k), high = static_cast<std::size_t>(n - 1 - k);
            want[low] = want[high] = from_bits<float>(rounded_twice(static_cast<Quad>(src[low]) * weight));
            const Quad next = rounded(rounded(c * cosine) - rounded(s * sine));
            sine = rounded(rounded(sine * c) + rounded(cosine * s));
            cosine = next;
        }
        at_every_level([&] {
            ASSERT_TRUE(V::WinHamming_32f(src.data(), got.data(), n));
            for (std::size_t i = 0; i < got.size(); ++i) ASSERT_EQ(got[i], want[i]) << n << ", " << i;
        });
    }
}

TEST(Spectra, RefusalsWriteNothing)
{
    const std::vector<float> before(16, 3.f);
    std::vector<float> data = before;
    std::vector<Complex32f> pairs(16);
    float* const d = data.data();
    const float* const s = before.data();
    at_every_level([&] {
        EXPECT_FALSE(V::MulPack_32f(nullptr, s, d, 4));
        EXPECT_FALSE(V::MulPack_32f(s, nullptr, d, 4));
        EXPECT_FALSE(V::MulPack_32f(s, s, nullptr, 4));
        EXPECT_FALSE(V::MulPack_32f(s, s, d, 0));
        EXPECT_TRUE(V::MulPack_32f_I(nullptr, d, 4)) << "inverted";
        EXPECT_TRUE(V::MulPack_32f_I(s, nullptr, 4));
        EXPECT_TRUE(V::MulPack_32f_I(s, d, -1));
        EXPECT_TRUE(V::MulPack_32f_I(s, d, INT_MAX));
        EXPECT_FALSE(V::MulPackConj_32f_I(nullptr, d, 4));
        EXPECT_FALSE(V::MulPackConj_32f_I(s, d, 0));
        EXPECT_FALSE(V::Magnitude_32f(nullptr, s, d, 4));
        EXPECT_FALSE(V::Magnitude_32f(s, nullptr, d, 4));
        EXPECT_FALSE(V::Magnitude_32f(s, s, d, INT_MIN));
        EXPECT_FALSE(V::RealToCplx_32f(nullptr, nullptr, pairs.data(), 4));
        EXPECT_FALSE(V::RealToCplx_32f(s, s, nullptr, 4));
        EXPECT_FALSE(V::RealToCplx_32f(s, nullptr, pairs.data(), 0));
        for (const int n : {2, 1, 0, -5}) {
            EXPECT_FALSE(V::WinHamming_32f(s, d, n));
            EXPECT_FALSE(V::WinHamming_32f_I(d, n));
        }
        EXPECT_FALSE(V::WinHamming_32f(nullptr, d, 4));
        EXPECT_FALSE(V::WinHamming_32f_I(nullptr, 4));
        EXPECT_EQ(orv::orv_WinHamming_32f(s, nullptr, {2}), orv::StatusNullPointer);
        EXPECT_EQ(orv::orv_WinHamming_32f(s, d, {2}), orv::StatusBadSize);
        const AllocationFailure none_left(0);
        EXPECT_TRUE(V::MulPack_32f_I(s, d, 4));
        EXPECT_FALSE(V::WinHamming_32f_I(d, 4));
        EXPECT_EQ(data, before);
    });
}

}  // namespace
}  // namespace test
