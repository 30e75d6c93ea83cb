// Elementary functions of vectors, logarithm and exponential of images: against long double, which has 11
// bits more than any result here; the plain variant against the others; special values and refusals.
#include <cfloat>
#include <climits>
#include <cmath>
#include <limits>
#include <set>
#include <vector>

#include "ImageProcessingWrapper.h"
#include "SignalProcessingWrapper.h"
#include "gmock/gmock.h"
#include "image/arithmetic/float_elementary.h"
#include "signal/elementary.h"
#include "support/allocations.h"
#include "support/exact_sine.h"
#include "support/host_control.h"
#include "support/image.h"
#include "support/levels.h"

namespace test {
namespace {

using W = SignalProcessingWrapper;
using I = ImageProcessingWrapper;
using orv::Status;
using Exact = long double;

constexpr float kInf = std::numeric_limits<float>::infinity();
constexpr double kInfinity = std::numeric_limits<double>::infinity();

std::uint32_t bits_of(float v) { std::uint32_t b; std::memcpy(&b, &v, 4); return b; }
std::uint64_t bits_of(double v) { std::uint64_t b; std::memcpy(&b, &v, 8); return b; }
float float_of(std::uint32_t b) { float v; std::memcpy(&v, &b, 4); return v; }
double double_of(std::uint64_t b) { double v; std::memcpy(&v, &b, 8); return v; }

// --- Variants -------------------------------------------------------------------------------------

// Some variants take another way to the same bits for all but results close to halfway between two floats:
// one result in some thousand, so this takes many.
TEST(Elementary, VariantsNearHalves)
{
    std::mt19937 g = make_generator("near halves");
    const int n = 1 << 12;
    std::vector<float> x(n), y(n), want(n), got(n);
    for (int round = 0; round < (options().brief ? 10 : 250); ++round) {
        const double size = round % 5 == 4 ? 100 : std::exp2(round % 5 * 2 - 2);
        for (std::size_t i = 0; i < x.size(); ++i) {
            x[i] = static_cast<float>(std::uniform_real_distribution<double>(-size, size)(g));
            switch (round % 3) {
                case 0: y[i] = static_cast<float>(uniform(g, -1000, 1000)); break;
                case 1: y[i] = std::ldexp(x[i], uniform(g, -5, 5)) * static_cast<float>(g()); break;
                default:  // where an arctangent's interval ends, and the digits of a number
                    x[i] = std::ldexp(static_cast<float>(2 - uniform(g, 1, 8000) * 0x1p-23), uniform(g, -3, 3));
                    y[i] = static_cast<float>(x[i] * ((2 * uniform(g, 0, 7) + 1) / 16.0) *
                                              (1 + uniform(g, -200, 200) * 1e-6));
            }
        }
        std::vector<float> positive(x);
        for (float& v : positive) v = std::fabs(v) + FLT_MIN;
        const auto compare = [&](const char* name, auto run) {
            run(0, want.data());
            for (int level = 1; level <= orv::orv_variant_index; ++level) {
                run(level, got.data());
                ASSERT_EQ(std::memcmp(want.data(), got.data(), sizeof(float) * static_cast<std::size_t>(n)), 0)
                    << name << " at level " << level;
            }
        };
        compare("Exp", [&](int level, float* dst) { orv::orv_Exp_32f.variant[level](x.data(), dst, n); });
        compare("Ln", [&](int level, float* dst) {
            orv::orv_Ln_32f_C1.variant[level](positive.data(), 4 * n, dst, 4 * n, {n, 1});
        });
        compare("Atan2",
                [&](int level, float* dst) { orv::orv_Atan2_32f_A24.variant[level](x.data(), y.data(), dst, n); });
        compare("Hypot",
                [&](int level, float* dst) { orv::orv_Hypot_32f_A24.variant[level](x.data(), y.data(), dst, n); });
        compare("Sin", [&](int level, float* dst) { orv::orv_Sin_32f_A11.variant[level](x.data(), dst, n); });
        compare("Cos", [&](int level, float* dst) { orv::orv_Cos_32f_A11.variant[level](x.data(), dst, n); });
    }
}

// --- Accuracy -------------------------------------------------------------------------------------

// The error in units in the last place of T at the exact value.
template <class T>
double ulps(Exact exact, T got)
{
    if (std::isnan(exact) || std::isinf(static_cast<T>(exact))) {
        const T want = static_cast<T>(exact);
        return (std::isnan(want) && std::isnan(got)) || want == got ? 0 : 1e9;
    }
    int exponent;
    std::frexp(exact, &exponent);
    exponent = std::max(exponent, std::numeric_limits<T>::min_exponent);
    return static_cast<double>(std::fabs(got - exact) /
                               std::ldexp(Exact{1}, exponent - std::numeric_limits<T>::digits));
}

template <class T>
double relative(Exact exact, T got)
{
    if (std::isnan(exact) || std::isnan(got)) return std::isnan(exact) == std::isnan(got) ? 0 : 1e9;
    if (exact == got) return 0;
    return static_cast<double>(std::fabs((got - exact) / exact));
}

// Every float in steps that meet all exponents and signs, or random doubles of magnitude 2^low ... 2^high.
std::vector<float> sample_of_floats()
{
    std::vector<float> x;
    for (std::uint64_t b = options().seed % 20011; b < 0x100000000; b += options().brief ? 800011 : 20011) {
        x.push_back(float_of(static_cast<std::uint32_t>(b)));
    }
    return x;
}
std::vector<double> sample_of_doubles(double low, double high, bool both_signs)
{
    std::mt19937 g = make_generator("sample");
    std::vector<double> x(options().brief ? 2000 : 60000);
    for (double& v : x) {
        v = std::exp2(std::uniform_real_distribution<double>(low, high)(g)) * (1 + std::ldexp(double(g()), -50));
        if (both_signs && g() % 2 != 0) v = -v;
    }
    return x;
}

template <class T, class Method, class Reference, class Metric>
void check_accuracy(const char* name, const std::vector<T>& x, Method method, Reference reference, Metric metric,
                    double bound)
{
    std::vector<T> y(x.size());
    method(x.data(), y.data(), static_cast<int>(x.size()));
    for (std::size_t i = 0; i < x.size(); ++i) {
        const Exact exact = reference(static_cast<Exact>(x[i]));
        ASSERT_LE(metric(exact, y[i]), bound) << name << " of " << x[i];
    }
}

TEST(Elementary, Accuracy)
{
    const std::vector<float> floats = sample_of_floats();
    std::vector<float> positive, moderate;
    for (const float v : floats) {
        if (v > 0) positive.push_back(v);
        if (std::fabs(v) < 87) moderate.push_back(v);
    }
    const auto sine = exact_sine;
    const auto cosine = exact_cosine;
    const auto exponential = [](Exact v) { return std::exp(v); };
    const auto logarithm = [](Exact v) { return std::log(v); };
    const double bits_11 = std::exp2(-12.9), both_bits_11 = std::exp2(-11.04), bits_21 = std::exp2(-22.3),
                 bits_50 = std::exp2(-51.2);
    check_accuracy("Exp_32f", floats, W::Exp_32f, exponential, ulps<float>, 0.5001);
    check_accuracy("Sin", floats, W::Sin_32f_A11, sine, relative<float>, bits_11);
    check_accuracy("Cos", floats, W::Cos_32f_A11, cosine, relative<float>, bits_11);
    check_accuracy("Exp A21", moderate, orv::orv_Exp_32f_A21, exponential, relative<float>, bits_21);
    check_accuracy("Ln A21", positive, orv::orv_Ln_32f_A21, logarithm, relative<float>, bits_21);
    check_accuracy(
        "Ln image", positive,
        [](const float* x, float* y, int n) { orv::orv_Ln_32f_C1(x, 4, y, 4, {n, 1}); },
        logarithm, ulps<float>, 0.5001);

    for (const double high : {1.0, 9.45, 9.54})
        check_accuracy("Exp_64f", sample_of_doubles(high - 9, high, true), W::Exp_64f, exponential, ulps<double>, 0.9);
    check_accuracy("Ln_64f", sample_of_doubles(-1070, 1024, false), W::Ln_64f, logarithm, ulps<double>, 0.95);
    check_accuracy("Ln_64f near 1", sample_of_doubles(-1, 1, false), W::Ln_64f, logarithm, ulps<double>, 0.95);
    check_accuracy("Ln_64f nearer to 1", sample_of_doubles(-0.001, 0.001, false), W::Ln_64f, logarithm, ulps<double>,
                   0.95);
    // Below 2^63 the oracles, too, have all the digits of an angle.
    for (const double high : {2.0, 17.0, 62.0}) {
        const std::vector<double> x = sample_of_doubles(high - 10, high, true);
        std::vector<double> other(x.size());
        check_accuracy(
            "sine A50", x, [&](const double* s, double* d, int n) { W::SinCos_64f_A50(s, d, other.data(), n); }, sine,
            relative<double>, bits_50);
        check_accuracy(
            "cosine A50", x, [&](const double* s, double* d, int n) { W::SinCos_64f_A50(s, other.data(), d, n); },
            cosine, relative<double>, bits_50);
    }
    std::vector<float> other(floats.size());
    check_accuracy(
        "sine A11", floats, [&](const float* s, float* d, int n) { W::SinCos_32f_A11(s, d, other.data(), n); }, sine,
        relative<float>, both_bits_11);
    check_accuracy(
        "cosine A11", floats, [&](const float* s, float* d, int n) { W::SinCos_32f_A11(s, other.data(), d, n); },
        cosine, relative<float>, both_bits_11);
}

// Floats next to the multiples of pi/4, where roots and the bounds between multiples lie.
TEST(Elementary, AnglesNextToMultiplesOfPi)
{
    std::vector<float> x;
    for (int multiple = -1100; multiple <= 1100; ++multiple) {
        const std::uint32_t middle = bits_of(static_cast<float>(multiple * 0.785398163397448309));
        for (std::uint32_t b = middle - 3; b != middle + 4; ++b) x.push_back(float_of(b));
    }
    const int n = static_cast<int>(x.size());
    std::vector<float> want[4], got[4];
    for (auto& v : want) v.resize(x.size());
    for (auto& v : got) v.resize(x.size());
    for (int level = 0; level <= orv::orv_variant_index; ++level) {
        std::vector<float>* const y = level == 0 ? want : got;
        orv::orv_Sin_32f_A11.variant[level](x.data(), y[0].data(), n);
        orv::orv_Cos_32f_A11.variant[level](x.data(), y[1].data(), n);
        orv::orv_SinCos_32f_A11.variant[level](x.data(), y[2].data(), y[3].data(), n);
        if (level == 0) continue;
        for (int k = 0; k < 4; ++k) {
            for (std::size_t i = 0; i < x.size(); ++i)
                ASSERT_EQ(bits_of(want[k][i]), bits_of(got[k][i])) << k << " of " << x[i] << " at level " << level;
        }
    }
    for (std::size_t i = 0; i < x.size(); ++i) {
        const Exact sine = exact_sine(Exact{x[i]}), cosine = exact_cosine(Exact{x[i]});
        ASSERT_LE(relative<float>(sine, want[0][i]), std::exp2(-12.9)) << x[i];
        ASSERT_LE(relative<float>(cosine, want[1][i]), std::exp2(-12.9)) << x[i];
        ASSERT_LE(relative<float>(sine, want[2][i]), std::exp2(-11.04)) << x[i];
        ASSERT_LE(relative<float>(cosine, want[3][i]), std::exp2(-11.04)) << x[i];
    }
}

// The sine of a subnormal angle is the angle, a multiple of 2^-149: what a coefficient takes off is rounded to one.
TEST(Elementary, SinesOfSubnormalAngles)
{
    std::vector<float> x;
    for (std::uint32_t b = 1; b < 0x00800000; b += b < 0x8000 || !options().brief ? 1 : 997) {
        x.push_back(float_of(b));
        x.push_back(float_of(b | 0x80000000));
    }
    std::vector<float> sine(x.size()), both(x.size()), cosine(x.size());
    const int n = static_cast<int>(x.size());
    at_every_level([&] {
        W::Sin_32f_A11(x.data(), sine.data(), n);
        W::SinCos_32f_A11(x.data(), both.data(), cosine.data(), n);
        for (std::size_t i = 0; i < x.size(); ++i) {
            ASSERT_LE(relative<float>(Exact{x[i]}, sine[i]), std::exp2(-13)) << x[i];
            ASSERT_LE(relative<float>(Exact{x[i]}, both[i]), std::exp2(-11.04)) << x[i];
        }
    });
}

// The hardest angles and the largest: exact values from a computation with 2000 digits.
TEST(Elementary, HardAngles)
{
    const struct { double x, sine, cosine; } rows[] = {
        {0x1.6ac5b262ca1ffp+849, 1.0, -0x1.14ae72e6ba22fp-61},
        {0x1.fffffffffffffp+1023, 0x1.452fc98b34e97p-8, -0x1.fffe62ecfab75p-1},
        {0x1p+1000, -0x1.460b8ae1c886ep-3, 0x1.f9785160c8815p-1},
    };
    at_every_level([&] {
        for (const auto& row : rows) {
            double s, c;
            ASSERT_TRUE(W::SinCos_64f_A50(&row.x, &s, &c, 1));
            EXPECT_LE(relative<double>(row.sine, s), std::exp2(-50)) << row.x;
            EXPECT_LE(relative<double>(row.cosine, c), std::exp2(-50)) << row.x;
        }
    });
}

TEST(Elementary, Atan2AndHypotAccuracy)
{
    std::mt19937 g = make_generator("atan2");
    std::vector<float> a(options().brief ? 5000 : 200000), b(a), angle(a), length(a);
    for (std::size_t i = 0; i < a.size(); ++i) {
        const Fill fill = i % 3 == 0 ? Fill::near_high : Fill::uniform;
        a[i] = random_value<float>(g, fill);
        b[i] = random_value<float>(g, fill);
        if (i % 5 == 0) a[i] *= std::ldexp(1.0f, uniform(g, -30, 30));
    }
    const int n = static_cast<int>(a.size());
    ASSERT_TRUE(W::Atan2_32f_A24(a.data(), b.data(), angle.data(), n));
    ASSERT_TRUE(W::Hypot_32f_A24(a.data(), b.data(), length.data(), n));
    for (std::size_t i = 0; i < a.size(); ++i) {
        ASSERT_LE(ulps<float>(std::atan2(Exact{a[i]}, Exact{b[i]}), angle[i]), 0.501) << a[i] << " " << b[i];
        ASSERT_LE(ulps<float>(std::hypot(Exact{a[i]}, Exact{b[i]}), length[i]), 0.501) << a[i] << " " << b[i];
    }
}

// --- Special values -------------------------------------------------------------------------------

// At every position of a vector whose other elements are ones.
template <class T, class Method>
void check_special(const char* name, Method method, T x, T want, bool clean = true)
{
    for (std::size_t at = 0; at < 19; ++at) {
        std::vector<T> src(19, T{1}), dst(19, T{77}), ones(19);
        ASSERT_TRUE(method(src.data(), ones.data(), 19));
        src[at] = x;
        ASSERT_EQ(method(src.data(), dst.data(), 19), clean) << name << " of " << x;
        ASSERT_EQ(bits_of(dst[at]), bits_of(want)) << name << " of " << x << " gives " << dst[at];
        dst[at] = ones[at];
        ASSERT_EQ(dst, ones) << name << " of " << x;
    }
}

TEST(Elementary, SpecialDoubles)
{
    const double plain_nan = double_of(0x7FF8000000000000), other_nan = double_of(0xFFF8000000000000);
    const double smallest = 4.9406564584124654e-324;
    at_every_level([&] {
        for (const double nan : {plain_nan, double_of(0x7FF0000000000001), double_of(0x7FFFFFFFFFFFFFFF)}) {
            check_special("exp", W::Exp_64f, nan, plain_nan);
            check_special("ln", W::Ln_64f, nan, plain_nan);
            check_special("sqrt", W::Sqrt_64f, nan, other_nan, false);
        }
        for (const double negative : {-1.0, -smallest, -kInfinity, other_nan, double_of(0xFFF0000000000001)}) {
            check_special("ln", W::Ln_64f, negative, other_nan, false);
            check_special("sqrt", W::Sqrt_64f, negative, other_nan, false);
        }
        check_special("exp", W::Exp_64f, other_nan, plain_nan);
        check_special("ln", W::Ln_64f, -0.0, other_nan, false);
        check_special("ln", W::Ln_64f, 0.0, -kInfinity, false);
        check_special("ln", W::Ln_64f, kInfinity, kInfinity);
        check_special("ln", W::Ln_64f, 1.0, 0.0);
        check_special("ln", W::Ln_64f, smallest, -0x1.74385446d71c3p+9);
        check_special("sqrt", W::Sqrt_64f, -0.0, -0.0);
        check_special("sqrt", W::Sqrt_64f, 4.0, 2.0);
        check_special("sqrt", W::Sqrt_64f, kInfinity, kInfinity);
        check_special("exp", W::Exp_64f, 0.0, 1.0);
        check_special("exp", W::Exp_64f, -0.0, 1.0);
        check_special("exp", W::Exp_64f, smallest, 1.0);
        check_special("exp", W::Exp_64f, kInfinity, kInfinity);
        check_special("exp", W::Exp_64f, -kInfinity, 0.0);
        check_special("exp", W::Exp_64f, 709.782712893384, 0x1.fffffffffff2ap+1023);
        check_special("exp", W::Exp_64f, 709.7827128933841, kInfinity);
        check_special("exp", W::Exp_64f, -745.1332191019411, smallest);
        check_special("exp", W::Exp_64f, -745.1332191019412, 0.0);
        for (const double bad : {kInfinity, -kInfinity, other_nan}) {
            double s, c;
            ASSERT_TRUE(W::SinCos_64f_A50(&bad, &s, &c, 1));
            EXPECT_EQ(bits_of(s), bits_of(plain_nan));
            EXPECT_EQ(bits_of(c), bits_of(plain_nan));
        }
        for (const double tiny : {0.0, -0.0, smallest, -1e-300}) {
            double s, c;
            ASSERT_TRUE(W::SinCos_64f_A50(&tiny, &s, &c, 1));
            EXPECT_EQ(bits_of(s), bits_of(tiny));
            EXPECT_EQ(c, 1.0);
        }
    });
}

TEST(Elementary, SpecialFloats)
{
    const float plain_nan = float_of(0x7FC00000), other_nan = float_of(0xFFC00000), signalling = float_of(0xFF800001);
    const auto floor = [](const float* s, float* d, int n) { return W::Floor_32f(const_cast<float*>(s), d, n); };
    at_every_level([&] {
        for (const float nan : {plain_nan, other_nan, signalling}) {
            check_special("exp", W::Exp_32f, nan, plain_nan);
            check_special("sin", W::Sin_32f_A11, nan, plain_nan);
            check_special("cos", W::Cos_32f_A11, nan, plain_nan);
            check_special("floor", floor, nan, float_of(bits_of(nan) | 0x00400000));
        }
        check_special("abs", W::Abs_32f, -0.0f, 0.0f);
        check_special("abs", W::Abs_32f, -kInf, kInf);
        check_special("exp", W::Exp_32f, kInf, kInf);
        check_special("exp", W::Exp_32f, -kInf, 0.0f);
        check_special("exp", W::Exp_32f, 88.72283172607421875f, 3.40279851902147610656e38f);
        check_special("exp", W::Exp_32f, 88.72283935546875f, kInf);
        check_special("exp", W::Exp_32f, -103.97207641601562f, 1.40129846e-45f);
        check_special("exp", W::Exp_32f, -103.972084045410f, 0.0f);
        for (const float bad : {kInf, -kInf}) {
            check_special("sin", W::Sin_32f_A11, bad, plain_nan);
            check_special("cos", W::Cos_32f_A11, bad, plain_nan);
        }
        check_special("sin", W::Sin_32f_A11, -0.0f, -0.0f);
        const float floors[][2] = {{-0.0f, -0.0f}, {-0.5f, -1}, {-1e-45f, -1}, {1e-45f, 0}, {0.99999994f, 0}, {-1, -1},
                                   {-1.5f, -2},
                                   {8388607.5f, 8388607},
                                   {-8388607.5f, -8388608},
                                   {8388609, 8388609},
                                   {-16777216, -16777216},
                                   {3e38f, 3e38f},
                                   {kInf, kInf},
                                   {-kInf, -kInf},
                                   {2147483648.0f, 2147483648.0f},
                                   {2.75f, 2}};
        for (const auto& f : floors) check_special("floor", floor, f[0], f[1]);
    });
}

TEST(Elementary, SpecialPairs)
{
    const float nan = float_of(0x7FC00000), pi = 3.14159274101257324f, tiny = 1e-45f;
    const struct { float y, x, angle, length;
    } rows[] = {
        {0.0f, 0.0f, 0.0f, 0},
        {-0.0f, 0.0f, -0.0f, 0},
        {0.0f, -0.0f, pi, 0},
        {-0.0f, -0.0f, -pi, 0},
        {0.0f, 1, 0.0f, 1},
        {-0.0f, -1, -pi, 1},
        {1, 0.0f, pi / 2, 1},
        {-1, -0.0f, -pi / 2, 1},
        {kInf, 1, pi / 2, kInf},
        {-kInf, -1, -pi / 2, kInf},
        {1, kInf, 0.0f, kInf},
        {-1, kInf, -0.0f, kInf},
        {1, -kInf, pi, kInf},
        {-1, -kInf, -pi, kInf},
        {kInf, kInf, pi / 4, kInf},
        {kInf, -kInf, 2.35619449019234493f, kInf},
        {-kInf, kInf, -pi / 4, kInf},
        {-kInf, -kInf, -2.35619449019234493f, kInf},
        {nan, 1, nan, nan},
        {1, -nan, nan, nan},
        {nan, kInf, nan, kInf},
        {-kInf, nan, nan, kInf},
        {tiny, tiny, pi / 4, tiny},
        {-tiny, FLT_MAX, -0.0f, FLT_MAX},
        {FLT_MAX, FLT_MAX, pi / 4, kInf},
        {FLT_MAX, -tiny, pi / 2, FLT_MAX},
        {3, -4, 2.49809154479650889f, 5},
        {3e30f, 4e30f, 0.643501102924346924f, 5e30f},
    };
    at_every_level([&] {
        for (const auto& row : rows) {
            const auto atan2 = [&](const float* s, float* d, int n) {
                std::vector<float> x(s, s + n);
                for (float& v : x) v = v == 1 ? 2 : row.x;
                if (row.y == 1) std::fill(x.begin(), x.end(), row.x);
                return W::Atan2_32f_A24(s, x.data(), d, n);
            };
            float angle, length;
            ASSERT_TRUE(W::Atan2_32f_A24(&row.y, &row.x, &angle, 1));
            EXPECT_EQ(bits_of(angle), bits_of(row.angle)) << "angle of " << row.y << " " << row.x << ": " << angle;
            ASSERT_TRUE(W::Hypot_32f_A24(&row.y, &row.x, &length, 1));
            EXPECT_EQ(bits_of(length), bits_of(row.length)) << "length of " << row.y << " " << row.x << ": " << length;
            if (row.y != 1 && bits_of(row.y) != bits_of(nan)) check_special("atan2", atan2, row.y, row.angle);
        }
    });
}

// Bits in and out: a float that passes through the x87 would lose its signalling NaN.
TEST(Elementary, AbsOfNans)
{
    at_every_level([] {
        std::uint32_t src[] = {0xFF800001, 0x7F800001, 0xFFFFFFFF, 0x80000000, 0xFF800000,
                               0x3F800000, 0xFF800002, 0x80000001, 0xBF800000},
                      dst[9];
        ASSERT_TRUE(W::Abs_32f(reinterpret_cast<float*>(src), reinterpret_cast<float*>(dst), 9));
        for (int i = 0; i < 9; ++i) EXPECT_EQ(dst[i], src[i] & 0x7FFFFFFF);
        ASSERT_TRUE(W::Abs_32f_I(reinterpret_cast<float*>(src), 9));
        EXPECT_THAT(src, testing::ElementsAreArray(dst));
    });
}

// --- Warnings, refusals, in-place forms -----------------------------------------------------------

TEST(Elementary, FirstWarningIsReported)
{
    for (int level = 0; level <= orv::orv_variant_index; ++level) {
        for (int at = 0; at < 40; at += 3) {
            for (int later = at + 1; later < 40; later += 2) {
                std::vector<double> x(40, 5.0), y(40);
                std::vector<float> xf(40, 5.0f), yf(40);
                const auto a = static_cast<std::size_t>(at), b = static_cast<std::size_t>(later);
                x[a] = 0, x[b] = -1, xf[a] = 0, xf[b] = -1;
                ASSERT_EQ(orv::orv_Ln_64f.variant[level](x.data(), y.data(), 40), orv::StatusLogarithmOfZero);
                ASSERT_EQ(orv::orv_Ln_32f_C1.variant[level](xf.data(), 40, yf.data(), 40, {10, 4}),
                          orv::StatusLogarithmOfZero);
                ASSERT_EQ(orv::orv_Ln_32f_A21.variant[level](xf.data(), yf.data(), 40), orv::StatusLogarithmOfZero);
                x[a] = -3, x[b] = 0, xf[a] = -0.0f, xf[b] = 0;
                ASSERT_EQ(orv::orv_Ln_64f.variant[level](x.data(), y.data(), 40), orv::StatusLogarithmOfNegative);
                ASSERT_EQ(orv::orv_Ln_32f_C1.variant[level](xf.data(), 40, yf.data(), 40, {10, 4}),
                          orv::StatusLogarithmOfNegative);
                ASSERT_EQ(orv::orv_Ln_32f_A21.variant[level](xf.data(), yf.data(), 40), orv::StatusLogarithmOfNegative);
                ASSERT_EQ(orv::orv_Sqrt_64f.variant[level](x.data(), y.data(), 40), orv::StatusSqrtOfNegative);
            }
        }
    }
}

TEST(Elementary, Refusals)
{
    std::vector<float> f(8, 2), keep_f(f);
    std::vector<double> d(8, 2), keep_d(d);
    float* const no_f = nullptr;
    double* const no_d = nullptr;
    at_every_level([&] {
        for (const auto one : {W::Abs_32f, W::Exp_32f, W::Sin_32f_A11, W::Cos_32f_A11}) {
            EXPECT_FALSE(one(no_f, f.data(), 8));
            EXPECT_FALSE(one(f.data(), no_f, 8));
            for (const int bad : {0, -1, INT_MIN}) EXPECT_FALSE(one(f.data(), f.data(), bad));
        }
        for (const auto one : {W::Exp_64f, W::Ln_64f, W::Sqrt_64f}) {
            EXPECT_FALSE(one(no_d, d.data(), 8));
            EXPECT_FALSE(one(d.data(), no_d, 8));
            for (const int bad : {0, -1, INT_MIN}) EXPECT_FALSE(one(d.data(), d.data(), bad));
        }
        for (const auto two : {W::Atan2_32f_A24, W::Hypot_32f_A24}) {
            EXPECT_FALSE(two(no_f, f.data(), f.data(), 8));
            EXPECT_FALSE(two(f.data(), no_f, f.data(), 8));
            EXPECT_FALSE(two(f.data(), f.data(), no_f, 8));
            EXPECT_FALSE(two(f.data(), f.data(), f.data(), 0));
        }
        EXPECT_FALSE(W::SinCos_32f_A11(no_f, f.data(), f.data(), 8));
        EXPECT_FALSE(W::SinCos_32f_A11(f.data(), no_f, f.data(), 8));
        EXPECT_FALSE(W::SinCos_32f_A11(f.data(), f.data(), no_f, 8));
        EXPECT_FALSE(W::SinCos_64f_A50(d.data(), no_d, d.data(), 8));
        EXPECT_FALSE(W::SinCos_64f_A50(d.data(), d.data(), d.data(), -5));
        EXPECT_FALSE(W::Floor_32f(no_f, f.data(), 8));
        EXPECT_FALSE(W::Floor_32f(f.data(), f.data(), 0));
        // Null goes before the length.
        EXPECT_EQ(orv::orv_Ln_64f(nullptr, d.data(), 0), orv::StatusNullPointer);
        EXPECT_EQ(orv::orv_Ln_64f(d.data(), d.data(), 0), orv::StatusBadSize);

        EXPECT_FALSE(W::Abs_32f_I(no_f, 8));
        EXPECT_FALSE(W::Ln_64f_I(d.data(), 0));
        EXPECT_FALSE(W::Sqrt_64f_I(no_d, 8));
        EXPECT_FALSE(W::Sqrt_64f_I(d.data(), INT_MAX)) << "no temporary is that large";
        EXPECT_TRUE(W::Exp_32f_I(no_f, 8));
        EXPECT_TRUE(W::Exp_64f_I(d.data(), -1));
        EXPECT_TRUE(W::Exp_64f_I(d.data(), INT_MAX));
        // Images: null, size, then steps.
        EXPECT_EQ(orv::orv_Ln_32f_C1(nullptr, 0, f.data(), 0, {0, 1}), orv::StatusNullPointer);
        EXPECT_EQ(orv::orv_Exp_32f_C1(f.data(), 0, f.data(), 16, {2, 0}), orv::StatusBadSize);
        EXPECT_EQ(orv::orv_Exp_32f_C1(f.data(), 0, f.data(), 16, {2, 2}), orv::StatusBadStep);
        EXPECT_EQ(orv::orv_Ln_32f_C1(f.data(), 16, f.data(), -16, {2, 2}), orv::StatusBadStep);
        EXPECT_FALSE(I::Ln_32f_C1I(f.data(), 0, 2, 2));
        EXPECT_FALSE(I::Ln_32f_C1I(no_f, 16, 2, 2));
        EXPECT_FALSE(I::Exp_32f_C1(f.data(), 16, f.data(), 16, 0, 2));
        EXPECT_EQ(f, keep_f);
        EXPECT_EQ(d, keep_d);
    });
}

TEST(Elementary, InPlace)
{
    std::mt19937 g = make_generator("in place");
    for (const int n : {1, 2, 5, 33, 5000}) {
        std::vector<double> x(static_cast<std::size_t>(n)), want(x), got(x);
        std::vector<float> xf(x.size()), want_f(xf), got_f(xf);
        for (std::size_t i = 0; i < x.size(); ++i)
            xf[i] = static_cast<float>(x[i] = std::uniform_real_distribution<double>(-3, 9)(g));
        x[0] = 4;
        const bool clean = n == 1;
        for (std::size_t i = 1; i < x.size() && !clean; i += 7) x[i] = -1;
        at_every_level([&] {
            W::Ln_64f(x.data(), want.data(), n);
            got = x;
            EXPECT_EQ(W::Ln_64f_I(got.data(), n), clean);
            EXPECT_EQ(std::memcmp(got.data(), want.data(), got.size() * 8), 0);
            W::Sqrt_64f(x.data(), want.data(), n);
            got = x;
            EXPECT_EQ(W::Sqrt_64f_I(got.data(), n), clean);
            EXPECT_EQ(std::memcmp(got.data(), want.data(), got.size() * 8), 0);
            W::Exp_64f(x.data(), want.data(), n);
            got = x;
            EXPECT_TRUE(W::Exp_64f_I(got.data(), n));
            EXPECT_EQ(got, want);
            W::Exp_32f(xf.data(), want_f.data(), n);
            got_f = xf;
            EXPECT_TRUE(W::Exp_32f_I(got_f.data(), n));
            EXPECT_EQ(got_f, want_f);
            W::Abs_32f(xf.data(), want_f.data(), n);
            got_f = xf;
            EXPECT_TRUE(W::Abs_32f_I(got_f.data(), n));
            EXPECT_EQ(got_f, want_f);
        });
    }
    std::vector<double> d(3000, 4);
    std::vector<float> f(3000, -2);
    const std::vector<double> keep_d = d;
    const std::vector<float> keep_f = f;
    const AllocationFailure none_left(0);
    EXPECT_FALSE(W::Sqrt_64f_I(d.data(), 3000));
    EXPECT_FALSE(W::Ln_64f_I(d.data(), 3000));
    EXPECT_FALSE(W::Abs_32f_I(f.data(), 3000));
    EXPECT_TRUE(W::Exp_32f_I(f.data(), 3000));
    EXPECT_TRUE(W::Exp_64f_I(d.data(), 3000));
    EXPECT_FALSE(I::Ln_32f_C1I(f.data(), 400, 100, 30));
    EXPECT_EQ(d, keep_d);
    EXPECT_EQ(f, keep_f);
}

// --- Images ---------------------------------------------------------------------------------------

TEST(Elementary, ImageLogarithmAndExponential)
{
    const float nan = float_of(0x7FC00000), other_nan = float_of(0xFFC00000);
    const struct { float x, exponential, logarithm; bool clean;
    } rows[] = {
        {0.0f, 1, -kInf, false},
        {-0.0f, 1, other_nan, false},
        {1, 2.71828174591064453f, 0.0f, true},
        {1e-39f, 1, -89.80081939697266f, true},
        {-1e-39f, 1, other_nan, false},
        {88.72283172607421875f, 3.40279851902147610656e38f, 4.4855170249938965f, true},
        {88.72283935546875f, kInf, 4.48551750f, true},
        {100, kInf, 4.60517025f, true},
        {-100, 0, other_nan, false},
        {-87.3365478515625f, 0, other_nan, false},
        {-87.33654022216796875f, 1.1754996757564519e-38f, other_nan, false},
        {kInf, kInf, kInf, true},
        {-kInf, 0, other_nan, false},
        {nan, nan, nan, true},
        {float_of(0xFFFFFFFF), nan, other_nan, false},
        {float_of(0x7F800001), nan, nan, true},
    };
    at_every_level([&] {
        for (const auto& row : rows) {
            for (std::size_t at = 0; at < 26; at += 5) {  // rows of 11 with a gap of 2
                std::vector<float> src(26, 1), dst(26, 77);
                src[at] = row.x;
                ASSERT_TRUE(I::Exp_32f_C1(src.data(), 52, dst.data(), 52, 11, 2));
                ASSERT_EQ(dst[11], 77);
                const bool inside = at % 13 < 11;
                ASSERT_EQ(bits_of(dst[at]), bits_of(inside ? row.exponential : 77)) << row.x << " " << dst[at];
                ASSERT_EQ(I::Ln_32f_C1I(src.data(), 52, 11, 2), row.clean || !inside) << row.x;
                ASSERT_EQ(bits_of(src[at]), bits_of(inside ? row.logarithm : row.x)) << row.x << " " << src[at];
                ASSERT_EQ(src[at == 3 ? 4 : 3], 0);
            }
        }
    });
}

// --- Entry points ---------------------------------------------------------------------------------

#if defined(_WIN32) && !defined(_WIN64)
#define ENTRY_CALL __stdcall
#else
#define ENTRY_CALL
#endif
#define DECLARE(level, name, ...) extern "C" int ENTRY_CALL level##_ipps##name(__VA_ARGS__);
#define DECLARE_SEVEN(name, ...) \
    DECLARE(px, name, __VA_ARGS__) \
    DECLARE(w7, name, __VA_ARGS__) DECLARE(v8, name, __VA_ARGS__) DECLARE(s8, name, __VA_ARGS__) \
        DECLARE(p8, name, __VA_ARGS__) DECLARE(g9, name, __VA_ARGS__) DECLARE(h9, name, __VA_ARGS__)
DECLARE_SEVEN(Atan2_32f_A24, const float*, const float*, float*, int)
DECLARE_SEVEN(Hypot_32f_A24, const float*, const float*, float*, int)
DECLARE_SEVEN(Cos_32f_A11, const float*, float*, int)
DECLARE_SEVEN(Sin_32f_A11, const float*, float*, int)
DECLARE_SEVEN(Floor_32f, const float*, float*, int)
DECLARE_SEVEN(Exp_32f_A21, const float*, float*, int)
DECLARE_SEVEN(Ln_32f_A21, const float*, float*, int)
DECLARE_SEVEN(SinCos_32f_A11, const float*, float*, float*, int)
DECLARE_SEVEN(SinCos_64f_A50, const double*, double*, double*, int)
extern "C" const float own_ipps_sExp_W7_ctab[3], own_ipps_sAtan2_PX_ctab[3];
extern "C" void* const own_ipps_sFloor_S9_ttab[3];

// The entry points of all levels that this processor has do what the operation does.
template <class T, class Entry, class Signature>
void check_entries(const std::vector<Entry*>& entries, const orv::Operation<Signature>& operation)
{
    const int skipped = orv::kLevels - static_cast<int>(entries.size());
    const T x[] = {T{0.5}, T{1.5}, T{20}}, y[] = {T{3}, T{0.25}, T{7}};
    for (int level = skipped; level <= orv::orv_variant_index; ++level) {
        T want[2][3] = {}, got[2][3] = {};
        Entry* const entry = entries[static_cast<std::size_t>(level - skipped)];
        if constexpr (std::is_invocable<Entry, const T*, T*, int>::value) {
            operation(x, want[0], 3);
            EXPECT_EQ(entry(x, got[0], 3), 0);
            EXPECT_EQ(entry(nullptr, got[0], 3), orv::StatusNullPointer);
        } else if constexpr (!std::is_invocable<Entry, const T*, const T*, T*, int>::value) {
            operation(x, want[0], want[1], 3);
            EXPECT_EQ(entry(x, got[0], got[1], 3), 0);
        } else {
            operation(x, y, want[0], 3);
            EXPECT_EQ(entry(x, y, got[0], 3), 0);
        }
        EXPECT_EQ(std::memcmp(got, want, sizeof(got)), 0) << "level " << level;
    }
}

TEST(Elementary, EntryPoints)
{
#define SIX(name) w7_ipps##name, v8_ipps##name, s8_ipps##name, p8_ipps##name, g9_ipps##name, h9_ipps##name
    check_entries<float, decltype(px_ippsAtan2_32f_A24)>({px_ippsAtan2_32f_A24, SIX(Atan2_32f_A24)},
                                                         orv::orv_Atan2_32f_A24);
    check_entries<float, decltype(px_ippsHypot_32f_A24)>({px_ippsHypot_32f_A24, SIX(Hypot_32f_A24)},
                                                         orv::orv_Hypot_32f_A24);
    check_entries<float, decltype(px_ippsCos_32f_A11)>({px_ippsCos_32f_A11, SIX(Cos_32f_A11)}, orv::orv_Cos_32f_A11);
    check_entries<float, decltype(px_ippsSin_32f_A11)>({px_ippsSin_32f_A11, SIX(Sin_32f_A11)}, orv::orv_Sin_32f_A11);
    check_entries<float, decltype(px_ippsFloor_32f)>({px_ippsFloor_32f, SIX(Floor_32f)}, orv::orv_Floor_32f);
    check_entries<float, decltype(px_ippsSinCos_32f_A11)>({px_ippsSinCos_32f_A11, SIX(SinCos_32f_A11)},
                                                          orv::orv_SinCos_32f_A11);
    check_entries<double, decltype(px_ippsSinCos_64f_A50)>({px_ippsSinCos_64f_A50, SIX(SinCos_64f_A50)},
                                                           orv::orv_SinCos_64f_A50);
    check_entries<float, decltype(w7_ippsExp_32f_A21)>({SIX(Exp_32f_A21)}, orv::orv_Exp_32f_A21);
    check_entries<float, decltype(w7_ippsLn_32f_A21)>({SIX(Ln_32f_A21)}, orv::orv_Ln_32f_A21);
#undef SIX
    EXPECT_THAT(own_ipps_sExp_W7_ctab, testing::ElementsAre(9.35f, 11.23f, 7.2f));
    EXPECT_THAT(own_ipps_sAtan2_PX_ctab, testing::Each(658.68f));
    EXPECT_THAT(own_ipps_sFloor_S9_ttab,
                testing::Each(reinterpret_cast<void*>(orv::orv_Floor_32f.variant[orv::level_h9])));
}

// A host that rounds elsewhere gets the same results, and keeps its control bits.
TEST(Elementary, HostsFloatControl)
{
    const float x[] = {-1.5f, 0.3f, 2, 7, 11, 1e-3f, 1, 4, 5};
    for (const auto one : {W::Exp_32f, W::Sin_32f_A11}) {
        expect_control_kept<float>(9, [&](float* dst) { return one(x, dst, 9); });
    }
}

}  // namespace
}  // namespace test
