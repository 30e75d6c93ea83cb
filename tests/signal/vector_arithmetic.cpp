// Vector arithmetic against 113-bit arithmetic.
#include <climits>
#include <functional>
#include <vector>

#include "SignalProcessingWrapper.h"
#include "gmock/gmock.h"
#include "signal/float_vectors.h"
#include "signal/integer_vectors.h"
#include "support/allocations.h"
#include "support/exact.h"
#include "support/levels.h"
#include "support/random.h"

namespace test {
namespace {

using V = SignalProcessingWrapper;
using u8 = unsigned char;
using u16 = unsigned short;

// What the result of an in-place form means.
enum Result { normal, inverted, always };
bool result_of(Result rule, bool clean) { return rule == always || (rule == inverted ? !clean : clean); }

enum IntegerOp { add, sub, mul, divide, sub_reversed };

template <class T>
T expected(IntegerOp op, T left, T right, int scaleFactor)
{
    const Quad l = left, r = right;
    switch (op) {
        case add: return expected_scaled<T>(l + r, 1, scaleFactor);
        case sub:
            return expected_scaled<T>(std::numeric_limits<T>::is_signed || left > right ? l - r : 0, 1, scaleFactor);
        case sub_reversed: return expected(sub, right, left, scaleFactor);
        case mul: return expected_scaled<T>(l * r, 1, scaleFactor);
        default: return expected_scaled<T>(l, r, scaleFactor);
    }
}

template <class T>
std::vector<T> telling_integers(std::mt19937& g, std::size_t n)
{
    using L = std::numeric_limits<T>;
    constexpr int width = 8 * static_cast<int>(sizeof(T)) - (L::is_signed ? 1 : 0);
    std::vector<T> v(n);
    for (T& x : v) {
        const auto small = static_cast<T>(uniform(g, 0, 3));
        switch (uniform(g, 0, 5)) {
            case 0: x = static_cast<T>(L::min() + small); break;
            case 1: x = static_cast<T>(L::max() - small); break;
            case 2: x = static_cast<T>((1LL << uniform(g, 0, width - 1)) + uniform(g, -1, 1)); break;
            case 3: x = static_cast<T>(uniform(g, -6, 6)); break;
            case 4: x = static_cast<T>(g() >> uniform(g, 0, 31)); break;
            default: x = static_cast<T>(g());
        }
    }
    return v;
}

// The first pairs are those of the numbers at which something ends.
template <class T>
void pair_extremes(std::vector<T>& left, std::vector<T>& right)
{
    using L = std::numeric_limits<T>;
    const T ends[] = {
        L::min(), L::max(), static_cast<T>(L::min() + 1), static_cast<T>(L::max() - 1), static_cast<T>(L::max() / 2),
        1};
    std::size_t i = 0;
    for (const T l : ends) {
        for (const T r : ends) left[i] = l, right[i++] = r;
    }
}

std::vector<int> scale_factors()
{
    std::vector<int> all = {INT_MIN, -1000, -64, -63, -62, -61, -50, -40, 40, 50, 61, 62, 63, 64, 1000, INT_MAX};
    for (int s = -35; s <= 35; s += options().brief && (s < -2 || s > 2) ? 6 : 1) all.push_back(s);
    return all;
}

// The constant forms take the value first or second; here it always comes as (vector, value).
template <class T> using InPlaceValue = std::function<bool(T*, T, int, int)>;
template <class T>
InPlaceValue<T> order(bool (*f)(T*, T, int, int)) { return f; }
template <class T> InPlaceValue<T> order(bool (*f)(T, T*, int, int))
{
    return [f](T* p, T value, int n, int s) { return f(value, p, n, s); };
}

template <class T, class InPlaceConstant>
void check_integers(const char* name, IntegerOp op, bool (*two)(const T*, const T*, T*, int, int),
                    bool (*in_place)(const T*, T*, int, int), Result rule, bool (*constant)(const T*, T, T*, int, int),
                    InPlaceConstant constant_in_place, Result constant_rule)
{
    SCOPED_TRACE(name);
    std::mt19937 g = make_generator(name);
    const int n = options().brief ? 70 : 200;
    for (const int s : scale_factors()) {
        auto left = telling_integers<T>(g, static_cast<std::size_t>(n)), right = telling_integers<T>(g, left.size());
        pair_extremes(left, right);
        std::vector<T> want(left.size()), got(want), want_constant(want);
        const bool clean = op != divide || std::find(right.begin(), right.end(), 0) == right.end();
        for (std::size_t i = 0; i < want.size(); ++i) want[i] = expected<T>(op, left[i], right[i], s);
        const T values[] = {right[0], right[1], right.back(), 0};
        at_every_level([&] {
            if (two != nullptr) {
                ASSERT_EQ(two(right.data(), left.data(), got.data(), n, s), clean);
                for (std::size_t i = 0; i < want.size(); ++i)
                    ASSERT_EQ(+got[i], +want[i]) << +left[i] << ", " << +right[i] << ", scale factor " << s;
                got = left;
                ASSERT_EQ(in_place(right.data(), got.data(), n, s), result_of(rule, clean));
                ASSERT_EQ(got, want);
            }
            if (constant == nullptr) return;
            for (const T value : values) {
                const bool fine = op != divide || value != 0;
                for (std::size_t i = 0; i < want.size(); ++i) want_constant[i] = expected<T>(op, left[i], value, s);
                ASSERT_EQ(constant(left.data(), value, got.data(), n, s), fine);
                for (std::size_t i = 0; i < want.size(); ++i)
                    ASSERT_EQ(+got[i], +want_constant[i])
                        << +left[i] << ", constant " << +value << ", scale factor " << s;
                got = left;
                ASSERT_EQ(order<T>(constant_in_place)(got.data(), value, n, s), result_of(constant_rule, fine));
                ASSERT_EQ(got, want_constant);
            }
        });
    }
}

TEST(VectorArithmetic, Integers)
{
#define CHECK(T, op, name, suffix, rule, constant_rule) \
    check_integers<T>(#name "_" #suffix, op, V::name##_##suffix, V::name##_##suffix##_I, rule, V::name##C_##suffix, \
                      V::name##C_##suffix##_I, constant_rule)
#define CHECK_REVERSED(T, suffix) \
    check_integers<T>("SubCRev_" #suffix, sub_reversed, nullptr, nullptr, normal, V::SubCRev_##suffix, \
                      V::SubCRev_##suffix##_I, normal)
    CHECK(u8, add, Add, 8u, normal, normal);
    CHECK(u8, sub, Sub, 8u, normal, inverted);
    CHECK(u8, mul, Mul, 8u, inverted, inverted);
    CHECK(u8, divide, Div, 8u, inverted, inverted);
    CHECK(u16, add, Add, 16u, inverted, inverted);
    CHECK(u16, sub, Sub, 16u, inverted, inverted);
    CHECK(u16, mul, Mul, 16u, inverted, inverted);
    CHECK(u16, divide, Div, 16u, inverted, inverted);
    CHECK(int, add, Add, 32s, normal, inverted);
    CHECK(int, sub, Sub, 32s, inverted, inverted);
    CHECK(int, mul, Mul, 32s, always, always);
    CHECK_REVERSED(u8, 8u);
    CHECK_REVERSED(u16, 16u);
    CHECK_REVERSED(int, 32s);
#undef CHECK
#undef CHECK_REVERSED
    bool (*const none)(const int*, int, int*, int, int) = nullptr;
    check_integers<int>("Div_32s", divide, V::Div_32s, V::Div_32s_I, inverted, none, V::AddC_32s_I, normal);
}

TEST(VectorArithmetic, FixedPointQuotients)
{
    std::vector<u16> src(65536), got(65536), want(65536);
    for (int i = 0; i < 65536; ++i) src[static_cast<std::size_t>(i)] = static_cast<u16>(i);
    at_every_level([&] {
        for (const unsigned value : {0u, 1u, 2u, 3u, 5u, 7u, 255u, 32767u, 32768u, 50000u, 65534u, 65535u}) {
            for (std::size_t i = 0; i < 65536; ++i) {
                const unsigned long long q = i == 0 ? 0 : (static_cast<unsigned long long>(value) << 16) / i;
                want[i] = i == 0 ? static_cast<u16>(value == 0 ? 0 : 65535)
                                 : static_cast<u16>((q + 32767 + ((q >> 16 & 1) != 0 ? 2 : 0)) >> 16);
            }
            ASSERT_FALSE(V::DivCRev_16u(src.data(), static_cast<u16>(value), got.data(), 65536));
            ASSERT_EQ(got, want) << value;
            ASSERT_TRUE(V::DivCRev_16u(src.data() + 1, static_cast<u16>(value), got.data() + 1, 65535));
            got = src;
            ASSERT_TRUE(V::DivCRev_16u_I(static_cast<u16>(value), got.data(), 65536)) << "inverted, and 0 divides";
            ASSERT_EQ(got, want);
            u16 three = 3;
            ASSERT_FALSE(V::DivCRev_16u_I(static_cast<u16>(value), &three, 1)) << "inverted";
        }
    });
}

// --- Floats ---------------------------------------------------------------------------------------

template <class F> using FloatInPlace = std::function<bool(F*, F, int)>;
template <class F>
FloatInPlace<F> order(bool (*f)(F*, F, int)) { return f; }
template <class F>
FloatInPlace<F> order(bool (*f)(F, F*, int)) { return [f](F* p, F value, int n) { return f(value, p, n); }; }

template <class F>
std::vector<BitsOf<F>> telling_floats(std::mt19937& g, std::size_t n)
{
    std::vector<BitsOf<F>> v(n);
    for (auto& x : v) {
        x = bits_of(random_value<F>(g, static_cast<Fill>(uniform(g, 0, static_cast<int>(Fill::kinds) - 1))));
        // Near the ends of the range: products and quotients that become subnormal or overflow.
        if (uniform(g, 0, 3) == 0) {
            const int reach = sizeof(F) == 4 ? 75 : 538;
            x = bits_of(static_cast<F>(
                std::ldexp(1 + static_cast<double>(g()) / 4294967296.0,
                           uniform(g, 0, 1) == 0 ? uniform(g, -reach, -reach + 30) : uniform(g, reach - 30, reach))));
        }
    }
    return v;
}
template <class B> bool is_zero(B x) { return (x << 1) == 0; }

template <class F>
void check_floats(const char* name, FloatOp op, FloatOp constant_op, bool is_reversed,
                  bool (*two)(const F*, const F*, F*, int), bool (*in_place)(const F*, F*, int), Result rule,
                  bool (*constant)(const F*, F, F*, int), FloatInPlace<F> constant_in_place)
{
    SCOPED_TRACE(name);
    std::mt19937 g = make_generator(name);
    for (int repeat = 0; repeat < (options().brief ? 10 : 200); ++repeat) {
        const int n = repeat == 0 ? 5000 : uniform(g, 1, 70);
        const auto left = telling_floats<F>(g, static_cast<std::size_t>(n)), right = telling_floats<F>(g, left.size());
        auto value = telling_floats<F>(g, 1)[0];
        if (constant_op == float_divc && is_zero(value)) value = bits_of(F{3});
        std::vector<BitsOf<F>> want(left.size()), want_constant(left.size());
        bool has_zero = false, has_zero_source = false;
        for (std::size_t i = 0; i < want.size(); ++i) {
            want[i] = expected_float<F>(op, left[i], right[i]);
            want_constant[i] = is_reversed ? expected_float<F>(constant_op, value, left[i])
                                           : expected_float<F>(constant_op, left[i], value);
            if (op == float_add && sizeof(F) == 8 && is_zero(value)) want_constant[i] = left[i];  // AddC_64f copies
            has_zero |= is_zero(right[i]);
            has_zero_source |= is_zero(left[i]);
        }
        at_every_level([&] {
            auto got = left;
            const auto pointer = [](auto& v) { return reinterpret_cast<F*>(v.data()); };
            const auto source = [](auto& v) { return reinterpret_cast<const F*>(v.data()); };
            F plain_value;
            std::memcpy(&plain_value, &value, sizeof(F));
            if (two != nullptr) {
                const bool clean = op != float_div || !has_zero;
                ASSERT_EQ(two(source(right), source(left), pointer(got), n), clean);
                for (std::size_t i = 0; i < want.size(); ++i)
                    ASSERT_EQ(got[i], want[i]) << std::hex << left[i] << ", " << right[i];
                got = left;
                ASSERT_EQ(in_place(source(right), pointer(got), n), result_of(rule, clean));
                ASSERT_EQ(got, want);
            }
            if (constant == nullptr) return;
            const bool clean = constant_op != float_div || !has_zero_source;
            ASSERT_EQ(constant(source(left), plain_value, pointer(got), n), clean);
            for (std::size_t i = 0; i < want.size(); ++i)
                ASSERT_EQ(got[i], want_constant[i]) << std::hex << left[i] << ", constant " << value;
            got = left;
            ASSERT_EQ(constant_in_place(pointer(got), plain_value, n), clean);
            ASSERT_EQ(got, want_constant);
        });
    }
}

TEST(VectorArithmetic, Floats)
{
#define CHECK(F, op, constant_op, name, suffix, rule) \
    check_floats<F>(#name "_" #suffix, op, constant_op, false, V::name##_##suffix, V::name##_##suffix##_I, rule, \
                    V::name##C_##suffix, order<F>(V::name##C_##suffix##_I))
    CHECK(float, float_add, float_add, Add, 32f, normal);
    CHECK(float, float_sub, float_sub, Sub, 32f, normal);
    CHECK(float, float_mul, float_mul, Mul, 32f, normal);
    CHECK(float, float_div, float_divc, Div, 32f, always);
    CHECK(double, float_add, float_add, Add, 64f, normal);
    CHECK(double, float_mul, float_mul, Mul, 64f, normal);
    CHECK(double, float_div, float_divc, Div, 64f, normal);
#undef CHECK
    check_floats<float>("SubCRev_32f", float_sub, float_sub, true, nullptr, nullptr, normal, V::SubCRev_32f,
                        order<float>(V::SubCRev_32f_I));
    check_floats<float>("DivCRev_32f", float_div, float_div, true, nullptr, nullptr, normal, V::DivCRev_32f,
                        order<float>(V::DivCRev_32f_I));
}

TEST(VectorArithmetic, AccumulatedProducts)
{
    std::mt19937 g = make_generator("AddProduct_32f");
    for (int repeat = 0; repeat < (options().brief ? 10 : 200); ++repeat) {
        const int n = repeat == 0 ? 5000 : uniform(g, 1, 40);
        const auto a = telling_floats<float>(g, static_cast<std::size_t>(n)), b = telling_floats<float>(g, a.size()),
                   sum = telling_floats<float>(g, a.size());
        std::vector<std::uint32_t> want(a.size()), want_constant(a.size());
        for (std::size_t i = 0; i < want.size(); ++i) {
            const Quad x = from_bits<float>(a[i]), s = from_bits<float>(sum[i]);
            want[i] = rounded_twice(s + x * static_cast<Quad>(from_bits<float>(b[i])));
            want_constant[i] = rounded_twice(s + x * static_cast<Quad>(from_bits<float>(b[0])));
        }
        at_every_level([&] {
            const auto source = [](const auto& v) { return reinterpret_cast<const float*>(v.data()); };
            auto got = sum;
            ASSERT_TRUE(V::AddProduct_32f(source(a), source(b), reinterpret_cast<float*>(got.data()), n));
            for (std::size_t i = 0; i < want.size(); ++i)
                ASSERT_EQ(got[i], want[i]) << std::hex << a[i] << " " << b[i] << " " << sum[i];
            got = sum;
            ASSERT_TRUE(V::AddProductC_32f(source(a), *source(b), reinterpret_cast<float*>(got.data()), n));
            ASSERT_EQ(got, want_constant);
        });
    }
}

// --- Refusals: every method, by its shape -----------------------------------------------------------

template <class T> constexpr T seven = static_cast<T>(7);

// Calls `run(first, second, destination, length)` with every kind of bad argument; `vectors` is how many of the
// pointers it passes on.
template <class T, class Run>
void check_refusals(const char* name, Result rule, bool in_place, int vectors, Run run)
{
    SCOPED_TRACE(name);
    std::vector<T> a(40, seven<T>), d(40, seven<T>);
    const auto before = d;
    at_every_level([&] {
        const bool refused = result_of(rule, false);
        if (vectors > 2) { EXPECT_EQ(run(nullptr, a.data(), d.data(), 9), refused); }
        if (vectors > 1) { EXPECT_EQ(run(a.data(), nullptr, d.data(), 9), refused); }
        EXPECT_EQ(run(a.data(), a.data(), nullptr, 9), refused);
        for (const int n : {0, -1, INT_MIN}) EXPECT_EQ(run(a.data(), a.data(), d.data(), n), refused);
        if (in_place) {
            {
                const AllocationFailure none_left(0);
                EXPECT_EQ(run(a.data(), a.data(), d.data(), 9), refused);
            }
            const AllocationFailure limited(sizeof(T) > 1 ? -1 : 0);
            EXPECT_EQ(run(a.data(), a.data(), d.data(), INT_MAX), refused) << "a temporary that does not fit";
        }
        EXPECT_EQ(d, before);
        EXPECT_EQ(run(a.data(), a.data(), d.data(), 9), result_of(rule, true));
        d = before;
    });
}

template <class T>
void refusals(const char* name, Result rule, bool (*f)(const T*, const T*, T*, int, int))
{
    check_refusals<T>(name, rule, false, 3, [f](const T* a, const T* b, T* d, int n) { return f(a, b, d, n, 0); });
}
template <class T>
void refusals(const char* name, Result rule, bool (*f)(const T*, const T*, T*, int))
{
    check_refusals<T>(name, rule, false, 3, f);
}
template <class T>
void refusals(const char* name, Result rule, bool (*f)(const T*, T, T*, int, int))
{
    check_refusals<T>(name, rule, false, 2, [f](const T*, const T* b, T* d, int n) { return f(b, seven<T>, d, n, 0); });
}
template <class T>
void refusals(const char* name, Result rule, bool (*f)(const T*, T, T*, int))
{
    check_refusals<T>(name, rule, false, 2, [f](const T*, const T* b, T* d, int n) { return f(b, seven<T>, d, n); });
}
template <class T>
void refusals(const char* name, Result rule, bool (*f)(const T*, T*, int, int))
{
    check_refusals<T>(name, rule, true, 2, [f](const T*, const T* b, T* d, int n) { return f(b, d, n, 0); });
}
template <class T>
void refusals(const char* name, Result rule, bool (*f)(const T*, T*, int))
{
    check_refusals<T>(name, rule, true, 2, [f](const T*, const T* b, T* d, int n) { return f(b, d, n); });
}
template <class T>
void refusals(const char* name, Result rule, bool (*f)(T*, T, int, int))
{
    check_refusals<T>(name, rule, true, 1, [f](const T*, const T*, T* d, int n) { return f(d, seven<T>, n, 0); });
}
template <class T>
void refusals(const char* name, Result rule, bool (*f)(T, T*, int, int))
{
    check_refusals<T>(name, rule, true, 1, [f](const T*, const T*, T* d, int n) { return f(seven<T>, d, n, 0); });
}
template <class T>
void refusals(const char* name, Result rule, bool (*f)(T*, T, int))
{
    check_refusals<T>(name, rule, true, 1, [f](const T*, const T*, T* d, int n) { return f(d, seven<T>, n); });
}
template <class T>
void refusals(const char* name, Result rule, bool (*f)(T, T*, int))
{
    check_refusals<T>(name, rule, true, 1, [f](const T*, const T*, T* d, int n) { return f(seven<T>, d, n); });
}

TEST(VectorArithmetic, RefusalsOfEveryMethod)
{
#define PAIR(T, name, rule)                    \
    refusals<T>(#name, normal, V::name);       \
    refusals<T>(#name "_I", rule, V::name##_I)
    PAIR(u8, Add_8u, normal);
    PAIR(u8, Sub_8u, normal);
    PAIR(u8, Mul_8u, inverted);
    PAIR(u8, Div_8u, inverted);
    PAIR(u8, AddC_8u, normal);
    PAIR(u8, SubC_8u, inverted);
    PAIR(u8, SubCRev_8u, normal);
    PAIR(u8, MulC_8u, inverted);
    PAIR(u8, DivC_8u, inverted);
    PAIR(u16, Add_16u, inverted);
    PAIR(u16, Sub_16u, inverted);
    PAIR(u16, Mul_16u, inverted);
    PAIR(u16, Div_16u, inverted);
    PAIR(u16, AddC_16u, inverted);
    PAIR(u16, SubC_16u, inverted);
    PAIR(u16, SubCRev_16u, normal);
    PAIR(u16, MulC_16u, inverted);
    PAIR(u16, DivC_16u, inverted);
    PAIR(u16, DivCRev_16u, inverted);
    PAIR(int, Add_32s, normal);
    PAIR(int, Sub_32s, inverted);
    PAIR(int, Mul_32s, always);
    PAIR(int, Div_32s, inverted);
    PAIR(int, AddC_32s, inverted);
    PAIR(int, SubC_32s, inverted);
    PAIR(int, SubCRev_32s, normal);
    PAIR(int, MulC_32s, always);
    PAIR(float, Add_32f, normal);
    PAIR(float, Sub_32f, normal);
    PAIR(float, Mul_32f, normal);
    PAIR(float, Div_32f, always);
    PAIR(float, AddC_32f, normal);
    PAIR(float, SubC_32f, normal);
    PAIR(float, SubCRev_32f, normal);
    PAIR(float, MulC_32f, normal);
    PAIR(float, DivC_32f, normal);
    PAIR(float, DivCRev_32f, normal);
    PAIR(double, Add_64f, normal);
    PAIR(double, Mul_64f, normal);
    PAIR(double, Div_64f, normal);
    PAIR(double, AddC_64f, normal);
    PAIR(double, MulC_64f, normal);
    PAIR(double, DivC_64f, normal);
#undef PAIR
    refusals<float>("AddProduct_32f", normal, V::AddProduct_32f);
    refusals<float>("AddProductC_32f", normal, V::AddProductC_32f);
}

TEST(VectorArithmetic, ConstantDivisorOfZero)
{
    at_every_level([] {
        float f[3] = {1, 2, 3};
        double d[3] = {1, 2, 3};
        EXPECT_FALSE(V::DivC_32f(f, 0, f, 3));
        EXPECT_FALSE(V::DivC_32f_I(f, -0.f, 3));
        EXPECT_FALSE(V::DivC_64f(d, -0.0, d, 3));
        EXPECT_FALSE(V::DivC_64f_I(d, 0, 3));
        EXPECT_THAT(f, testing::ElementsAre(1, 2, 3));
        EXPECT_THAT(d, testing::ElementsAre(1, 2, 3));
        EXPECT_EQ(orv::orv_DivC_32f(f, 0, f, {0}), orv::StatusBadSize);
        EXPECT_EQ(orv::orv_DivC_32f(f, 0, f, {1}), orv::StatusDivideByZeroError);
        EXPECT_EQ(orv::orv_Div_32s(nullptr, nullptr, nullptr, {0}, 0), orv::StatusNullPointer);
    });
}

// Vectors of one quotient, so that no other one makes them leave the fast ways.
TEST(VectorArithmetic, QuotientsOfLargeNumbers)
{
    const int dividends[] = {INT_MIN, INT_MIN + 1, INT_MAX, INT_MAX - 1, 5 << 22, 16777219, -33554435, 1000000007};
    const int divisors[] = {1, -1, 2, -2, 3, 4, -6, 1 << 16, 33554432, INT_MAX, INT_MIN};
    at_every_level([&] {
        for (const int dividend : dividends) {
            for (const int divisor : divisors) {
                const std::vector<int> left(37, dividend), right(37, divisor);
                std::vector<int> got(37);
                ASSERT_TRUE(V::Div_32s(right.data(), left.data(), got.data(), 37, 0));
                const int want = expected<int>(divide, dividend, divisor, 0);
                ASSERT_THAT(got, testing::Each(want)) << dividend << " / " << divisor;
            }
        }
    });
}

// Longer than the temporary of the in-place forms.
TEST(VectorArithmetic, LongVectorsInPlace)
{
    at_every_level([] {
        const int n = 100003;
        std::vector<u8> bytes(static_cast<std::size_t>(n)), other(bytes);
        std::vector<double> numbers(bytes.size());
        for (std::size_t i = 0; i < bytes.size(); ++i)
            bytes[i] = static_cast<u8>(i % 100), other[i] = static_cast<u8>(i % 77),
            numbers[i] = static_cast<double>(i);
        other[90001] = 0;
        EXPECT_TRUE(V::Add_8u_I(other.data(), bytes.data(), n, 0));
        EXPECT_TRUE(V::AddC_64f_I(numbers.data(), 0.5, n));
        for (std::size_t i = 0; i < bytes.size(); ++i) {
            ASSERT_EQ(bytes[i], static_cast<u8>(i % 100 + other[i]));
            ASSERT_EQ(numbers[i], static_cast<double>(i) + 0.5);
        }
        EXPECT_TRUE(V::Div_8u_I(other.data(), bytes.data(), n, 0)) << "inverted: a divisor far into the vector is 0";
    });
}

}  // namespace
}  // namespace test
