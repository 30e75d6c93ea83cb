// Conversions of vectors, against long double and the layout of NaNs.
#include "SignalProcessingWrapper.h"
#include "support/tests.h"

namespace test {
namespace {

using W = SignalProcessingWrapper;

template <class S, class D>
struct Conversion {
    const char* name;
    bool (*convert)(const S* src, D* dst, int len);
    using From = S;
    using To = D;
};
#define CONVERSION(name, From, To) body(Conversion<From, To>{#name, W::name});
template <class Body>
void for_each_conversion(Body body)
{
    CONVERSION(Convert_8u16u, u8, u16)
    CONVERSION(Convert_8u32s, u8, int)
    CONVERSION(Convert_8u32f, u8, float)
    CONVERSION(Convert_8u64f, u8, double)
    CONVERSION(Convert_16u8u, u16, u8)
    CONVERSION(Convert_16u32s, u16, int)
    CONVERSION(Convert_16u32f, u16, float)
    CONVERSION(Convert_16u64f, u16, double)
    CONVERSION(Convert_32s8u, int, u8)
    CONVERSION(Convert_32s16u, int, u16)
    CONVERSION(Convert_32s32f, int, float)
    CONVERSION(Convert_32s64f, int, double)
    CONVERSION(Convert_32f8u, float, u8)
    CONVERSION(Convert_32f16u, float, u16)
    CONVERSION(Convert_32f32s, float, int)
    CONVERSION(Convert_32f64f, float, double)
    CONVERSION(Convert_64f8u, double, u8)
    CONVERSION(Convert_64f16u, double, u16)
    CONVERSION(Convert_64f32s, double, int)
    CONVERSION(Convert_64f32f, double, float)
    CONVERSION(Convert_16s32f, s16, float)
    CONVERSION(Convert_32f16s, float, s16)
}
#undef CONVERSION

// --- What goes in ---------------------------------------------------------------------------------

// Every value of the small types.
template <class T>
std::vector<T> integers()
{
    using L = std::numeric_limits<T>;
    std::vector<T> all;
    if (sizeof(T) <= 2) {
        for (int i = L::min(); i <= L::max(); ++i) all.push_back(static_cast<T>(i));
        return all;
    }
    for (const double bound : {0.0, 255.0, 32767.0, 65535.0, 0x1p24, 0x1p25, 0x1p30, 2147483644.0}) {
        for (int d = -3; d <= 3; ++d) {
            all.push_back(static_cast<T>(bound + d));
            all.push_back(static_cast<T>(-bound - d - 1));
        }
    }
    std::mt19937 generator = make_generator("integers to convert");
    for (int i = 0; i < 4000; ++i) {
        const int any = static_cast<int>(generator());
        all.push_back(static_cast<T>(any >> uniform(generator, 0, 31)));
    }
    return all;
}

// Halves, the ends of every type with their neighbours, the ends of floats, NaNs of all kinds, any bits.
template <class T>
std::vector<T> numbers()
{
    using L = std::numeric_limits<T>;
    using Bits = BitsOf<T>;
    std::vector<double> places = {3e9, 1e300, 0x1p-126, 0x1p-149, 0x1p-150, 0x1.8p-149, 0x1p-1022, 0x1p-1074,
                                  0x1.fffffep127, 0x1.ffffffp127, 0x1.fffffefffffffp127, 0x1.000001p0, 0x1.000003p0};
    for (double half = 0; half <= 3; half += 0.5) places.push_back(half);
    for (const double bound : {127.0, 255.0, 32767.0, 65535.0, 2147483647.0})
        for (double d = -1; d <= 2; d += 0.5) places.push_back(bound + d);
    std::vector<T> all = {L::infinity(), -L::infinity()};
    for (const double place : places) {
        for (const T at : {static_cast<T>(place), static_cast<T>(-place)}) {
            all.push_back(at);
            all.push_back(std::nextafter(at, L::infinity()));
            all.push_back(std::nextafter(at, -L::infinity()));
        }
    }
    std::vector<Bits> bits;
    for (const T value : all) bits.push_back(bits_of(value));
    const Bits infinity = bits_of(L::infinity()), digits = quiet_bit<T> * 2 - 1;
    for (const Bits sign : {Bits{0}, sign_bit<T>})
        for (const Bits payload : {Bits{1}, quiet_bit<T>, quiet_bit<T> | Bits{1}, quiet_bit<T> >> 1, digits})
            bits.push_back(sign | infinity | payload);
    std::mt19937 generator = make_generator("numbers to convert");
    for (int i = 0; i < 4000; ++i) {
        const Bits any = static_cast<Bits>(std::uint64_t{generator()} << 32 | generator());
        bits.push_back(i % 2 == 0 ? any : bits_of(static_cast<T>(normal(generator, std::ldexp(1, i % 34)))));
    }
    all.resize(bits.size());  // as bits: x87 registers make NaNs quiet
    std::memcpy(all.data(), bits.data(), bits.size() * sizeof(T));
    return all;
}

template <class T>
std::vector<T> sources()
{
    if constexpr (std::is_floating_point<T>::value) return numbers<T>();
    else return integers<T>();
}

// --- What comes out -------------------------------------------------------------------------------

template <class From, class To>
BitsOf<To> converted_nan(BitsOf<From> nan)
{
    constexpr int more = 29;  // digits of a double
    if constexpr (sizeof(From) == sizeof(To)) return nan;
    else if constexpr (sizeof(To) == 8)
        return (BitsOf<To>{nan} << 32 & sign_bit<To>) | bits_of(std::numeric_limits<To>::infinity()) | quiet_bit<To> |
               (BitsOf<To>{nan & 0x7FFFFF} << more);
    else
        return static_cast<BitsOf<To>>((nan >> 32 & sign_bit<To>) | 0x7FC00000u | (nan >> more & 0x7FFFFF));
}

// A long double has all numbers of all types, and one rounding gives the result.
template <class To, class From>
void expect_element(const From* src, To* result)
{
    const long double x = *src;
    if constexpr (std::is_floating_point<To>::value) {
        BitsOf<To> bits = rounded_bits<To>(x);
        if constexpr (std::is_floating_point<From>::value) {
            BitsOf<From> from;
            std::memcpy(&from, src, sizeof(From));
            if (is_nan<From>(from)) bits = converted_nan<From, To>(from);
        }
        std::memcpy(result, &bits, sizeof(To));
    } else {
        using L = std::numeric_limits<To>;
        const long double nearest = std::nearbyint(x), low = L::min(), high = L::max();
        *result = x != x ? To{0} : static_cast<To>(nearest < low ? low : nearest > high ? high : nearest);
    }
}
template <class To, class From>
std::vector<To> expected(const std::vector<From>& src)
{
    std::vector<To> all(src.size());
    for (std::size_t i = 0; i < src.size(); ++i) expect_element(&src[i], &all[i]);
    return all;
}

template <class T>
::testing::AssertionResult same_bits(const T* actual, const std::vector<T>& wanted, std::size_t first, std::size_t n)
{
    for (std::size_t i = 0; i < n; ++i) {
        if (std::memcmp(actual + i, &wanted[first + i], sizeof(T)) != 0)
            return ::testing::AssertionFailure() << "element " << i << " of " << n << ", source " << first + i << ": "
                                                 << +actual[i] << " instead of " << +wanted[first + i];
    }
    return ::testing::AssertionSuccess();
}

// --- Tests ----------------------------------------------------------------------------------------

// At once, and in pieces of all lengths, so that every value is met in the body and in the rest of a vector.
TEST(VectorConversions, EveryValueInEveryPlace)
{
    for_each_conversion([](auto c) {
        using From = typename decltype(c)::From;
        using To = typename decltype(c)::To;
        const std::vector<From> src = sources<From>();
        const std::vector<To> wanted = expected<To>(src);
        at_every_level([&] {
            std::vector<To> dst(src.size());
            ASSERT_TRUE(c.convert(src.data(), dst.data(), static_cast<int>(src.size())));
            ASSERT_TRUE(same_bits(dst.data(), wanted, 0, src.size())) << c.name;
            std::size_t first = 0;
            for (std::size_t len = 1; first + len < src.size(); first += len, len = len % 70 + 1) {
                std::fill_n(dst.begin(), len + 1, To{77});
                ASSERT_TRUE(c.convert(&src[first], dst.data(), static_cast<int>(len)));
                ASSERT_TRUE(same_bits(dst.data(), wanted, first, len)) << c.name;
                ASSERT_EQ(dst[len], To{77}) << c.name << ": written behind the end, " << len;
            }
        });
    });
}

TEST(VectorConversions, OntoThemselvesWhereElementsHaveOneSize)
{
    for_each_conversion([](auto c) {
        using From = typename decltype(c)::From;
        using To = typename decltype(c)::To;
        if constexpr (sizeof(From) == sizeof(To)) {
            std::vector<From> src = sources<From>();
            src.resize(200);
            const std::vector<To> wanted = expected<To>(src);
            at_every_level([&] {
                for (std::size_t len = 1; len <= 200; ++len) {
                    std::vector<From> both = src;
                    ASSERT_TRUE(c.convert(both.data(), reinterpret_cast<To*>(both.data()), static_cast<int>(len)));
                    std::vector<To> dst(len);
                    std::memcpy(dst.data(), both.data(), len * sizeof(To));
                    ASSERT_TRUE(same_bits(dst.data(), wanted, 0, len)) << c.name;
                }
            });
        }
    });
}

TEST(VectorConversions, WhateverTheHostsControlWord)
{
    for_each_conversion([](auto c) {
        using From = typename decltype(c)::From;
        const std::vector<From> src = sources<From>();
        expect_control_kept<typename decltype(c)::To>(300, [&](auto* dst) { return c.convert(src.data(), dst, 200); });
    });
}

TEST(VectorConversions, LeaveAloneWhatTheyRefuse)
{
    for_each_conversion([](auto c) {
        const typename decltype(c)::From src[2] = {};
        typename decltype(c)::To dst[2] = {7, 8};
        EXPECT_FALSE(c.convert(nullptr, dst, 1));
        EXPECT_FALSE(c.convert(src, nullptr, 1));
        for (const int len : {0, -1, INT_MIN}) EXPECT_FALSE(c.convert(src, dst, len));
        EXPECT_THAT(dst, testing::ElementsAre(7, 8));
    });
}

}  // namespace
}  // namespace test
