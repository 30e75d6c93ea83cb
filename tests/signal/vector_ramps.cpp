// Slopes and ramps, against steps in 113 bits that are rounded to double one by one.
#include "SignalProcessingWrapper.h"
#include "support/double_steps.h"
#include "support/tests.h"

namespace test {
namespace {

using W = SignalProcessingWrapper;

template <class T>
struct Methods {
    const char* type;
    bool (*slope)(double offset, double slope, T* dst, int len);
    bool (*ramp)(double first, double last, T* dst, int len);
    using Element = T;
};
template <class Body>
void for_each_type(Body body)
{
    body(Methods<u8>{"8u", W::VectorSlope_8u, W::VectorRamp_8u});
    body(Methods<u16>{"16u", W::VectorSlope_16u, W::VectorRamp_16u});
    body(Methods<int>{"32s", W::VectorSlope_32s, W::VectorRamp_32s});
    body(Methods<float>{"32f", W::VectorSlope_32f, W::VectorRamp_32f});
    body(Methods<double>{"64f", W::VectorSlope_64f, W::VectorRamp_64f});
}

// --- What comes out -------------------------------------------------------------------------------

// By the rules of the element's type. As bytes: x87 registers would make NaNs other ones.
template <class T>
std::vector<u8> element(double v)
{
    std::vector<u8> bytes(sizeof(T));
    if constexpr (std::is_floating_point<T>::value) {
        const BitsOf<T> bits = rounded_bits<T>(static_cast<Quad>(v));
        std::memcpy(bytes.data(), &bits, sizeof(T));
    } else {
        using L = std::numeric_limits<T>;
        const long double nearest = std::nearbyint(static_cast<long double>(v));
        const long double bounded = std::min<long double>(L::max(), std::max<long double>(L::min(), nearest));
        const T value = v != v ? T{0} : static_cast<T>(bounded);
        std::memcpy(bytes.data(), &value, sizeof(T));
    }
    return bytes;
}
double slope_at(double offset, double slope, int i) { return plus(offset, times(slope, i)); }
double ramp_at(double first, double last, int i, int len)
{
    if (i == 0) return first;
    if (i == len - 1) return last;
    return plus(first, times(over(minus(last, first), len - 1), i));
}

// len elements and one behind them; `at(i)` is asked for at the places that `asked` picks.
template <class T, class Run, class At, class Asked>
void expect_vector(int len, Run run, At at, Asked asked)
{
    std::vector<T> dst(static_cast<std::size_t>(len) + 1, T{77});
    ASSERT_TRUE(run(dst.data()));
    for (int i = 0; i < len; ++i) {
        if (!asked(i)) continue;
        const std::vector<u8> wanted = element<T>(at(i));
        ASSERT_EQ(std::memcmp(&dst[static_cast<std::size_t>(i)], wanted.data(), sizeof(T)), 0)
            << "element " << i << " of " << len << ": " << +dst[static_cast<std::size_t>(i)] << " instead of " << at(i);
    }
    ASSERT_EQ(dst.back(), T{77});
}
bool everywhere(int) { return true; }

// --- Tests ----------------------------------------------------------------------------------------

constexpr double kInfinity = std::numeric_limits<double>::infinity(), kNan = std::numeric_limits<double>::quiet_NaN();

// Pairs of an offset and a slope, or of two ends. With 0.1 products are rounded (fused ones would differ); steps of a
// half tie; the last ones go beyond doubles, below the normal ones, or are no numbers.
const double kPairs[][2] = {
    {0, 1}, {0, 0.1}, {-3.7, 0.3}, {0.5, 0.5}, {-0.5, 0.5}, {254.75, -0.1}, {1e6, -1234.5678}, {0.1, 0}, {-0.0, 0},
    {-0.0, 1}, {5, 5}, {7, -7}, {2147483600.25, 1.75}, {-2147483600.25, -1.75}, {1e300, 1e307}, {-1.7e308, 1.7e308},
    {1e-310, 0x1p-1074}, {0x1p-1074, 0x1.8p-1070}, {0x1p-1022, -0x1.23456p-1025}, {0x1p-140, 0x1.234567p-149},
    {3e38, 1e36}, {kInfinity, 1}, {1, kInfinity}, {1, -kInfinity}, {kInfinity, -kInfinity}, {kInfinity, kInfinity},
    {kInfinity, -1e308}, {kNan, 1}, {1, kNan}, {kNan, -kNan}};

TEST(VectorRamps, EveryElementByItself)
{
    for_each_type([](auto m) {
        using T = typename decltype(m)::Element;
        at_every_level([&] {
            for (const auto& pair : kPairs) {
                const double a = pair[0], b = pair[1];
                for (const int len : {1, 2, 3, 4, 5, 7, 8, 9, 15, 16, 17, 31, 32, 33, 40, 64, 77, 300}) {
                    SCOPED_TRACE(std::string(m.type) + " " + std::to_string(a) + ", " + std::to_string(b));
                    expect_vector<T>(len, [&](T* dst) { return m.slope(a, b, dst, len); },
                                     [&](int i) { return slope_at(a, b, i); }, everywhere);
                    expect_vector<T>(len, [&](T* dst) { return m.ramp(a, b, dst, len); },
                                     [&](int i) { return ramp_at(a, b, i, len); }, everywhere);
                }
            }
        });
    });
}

// Sums of rounded steps would be far away by then.
TEST(VectorRamps, DoNotDrift)
{
    constexpr int kLong = 1 << 24;
    const auto some = [](int i) { return i % 99991 < 3 || i > kLong - 40; };
    expect_vector<double>(kLong, [](double* dst) { return W::VectorSlope_64f(0.3, 0.1, dst, kLong); },
                          [](int i) { return slope_at(0.3, 0.1, i); }, some);
    expect_vector<float>(kLong, [](float* dst) { return W::VectorRamp_32f(-1, 1e7, dst, kLong); },
                         [](int i) { return ramp_at(-1, 1e7, i, kLong); }, some);
}

TEST(VectorRamps, WhateverTheHostsControlWord)
{
    for_each_type([](auto m) {
        using T = typename decltype(m)::Element;
        for (const auto& pair : {std::pair{0.3, 0.1}, {1e-310, 0x1p-1074}, {0.1, 1e-320}}) {
            expect_control_kept<T>(99, [&](T* dst) { return m.slope(pair.first, pair.second, dst, 99); });
            expect_control_kept<T>(99, [&](T* dst) { return m.ramp(pair.first, pair.second, dst, 99); });
        }
    });
}

TEST(VectorRamps, LeaveAloneWhatTheyRefuse)
{
    for_each_type([](auto m) {
        typename decltype(m)::Element dst[2] = {7, 8};
        for (const auto method : {m.slope, m.ramp}) {
            EXPECT_FALSE(method(1, 2, nullptr, 2));
            for (const int len : {0, -1, INT_MIN}) EXPECT_FALSE(method(1, 2, dst, len));
        }
        EXPECT_THAT(dst, testing::ElementsAre(7, 8));
    });
}

}  // namespace
}  // namespace test
