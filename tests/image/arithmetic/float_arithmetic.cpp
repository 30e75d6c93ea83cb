// Float and complex arithmetic of images against 113-bit arithmetic, bit by bit.
//
// Families: float_arithmetic, complex_arithmetic; float_elementary is in tests/signal/elementary.cpp.
#include "image/arithmetic/complex_arithmetic.h"
#include "image/arithmetic/float_arithmetic.h"
#include "support/image_tests.h"

namespace test {
namespace {

using Words = std::vector<std::uint32_t>;

const float* floats(const Words& v) { return reinterpret_cast<const float*>(v.data()); }
float* floats(Words& v) { return reinterpret_cast<float*>(v.data()); }
const Complex32f* complexes(const Words& v) { return reinterpret_cast<const Complex32f*>(v.data()); }
Complex32f* complexes(Words& v) { return reinterpret_cast<Complex32f*>(v.data()); }

// Every kind of value, next to every other.
Words telling_floats(std::mt19937& g, std::size_t n)
{
    Words v(n);
    for (auto& x : v)
        x = bits_of(random_value<float>(g, static_cast<Fill>(uniform(g, 0, static_cast<int>(Fill::kinds) - 1))));
    return v;
}
bool has_zero(const Words& v)
{
    return std::any_of(v.begin(), v.end(), [](std::uint32_t x) { return (x << 1) == 0; });
}

using TwoImages = bool (*)(const float*, int, const float*, int, float*, int, int, int);
using InPlace = bool (*)(const float*, int, float*, int, int, int);
using OneConstant = bool (*)(const float*, int, float, float*, int, int, int);
using ConstantInPlace = bool (*)(float, float*, int, int, int);
using Constants = bool (*)(const float*, int, const float*, float*, int, int, int);
using ConstantsInPlace = bool (*)(const float*, float*, int, int, int);

struct FloatRow {
    FloatOp op, constant_op;
    TwoImages two, two3;
    InPlace in_place, in_place3;
    OneConstant constant;
    ConstantInPlace constant_in_place;
    Constants constants;
    ConstantsInPlace constants_in_place;
};
#define ROW(op, constant_op, name, multiplying) \
    { \
        op, constant_op, W::name##_32f_C1, W::name##_32f_C3, W::name##_32f_C1I, W::name##_32f_C3I, W::name##C_32f_C1, \
            W::name##C_32f_C1I, W::name##C_32f_C3, multiplying \
    }
const FloatRow kFloatRows[] = {
    ROW(float_add, float_add, Add, W::AddC_32f_C3I), ROW(float_sub, float_sub, Sub, W::SubC_32f_C3I),
    ROW(float_mul, float_mul, Mul, W::MulC_32f_C3IR), ROW(float_div, float_divc, Div, W::DivC_32f_C3I)};
#undef ROW

TEST(FloatArithmetic, TwoImages)
{
    std::mt19937 g = make_generator("float images");
    const int width = options().brief ? 31 : 317, height = 21, step3 = 3 * 4 * width;
    for (const FloatRow& row : kFloatRows) {
        const auto n = static_cast<std::size_t>(3 * width * height);
        const Words left = telling_floats(g, n), right = telling_floats(g, n);
        Words want(n);
        for (std::size_t i = 0; i < n; ++i) want[i] = expected_float<float>(row.op, left[i], right[i]);
        const bool clean = row.op != float_div || !has_zero(right);
        at_every_level([&] {
            Words got(n), got3(n), place = left, place3 = left;
            ASSERT_EQ(row.two3(floats(right), step3, floats(left), step3, floats(got3), step3, width, height), clean);
            ASSERT_EQ(row.two(floats(right), step3, floats(left), step3, floats(got), step3, 3 * width, height), clean);
            ASSERT_EQ(row.in_place(floats(right), step3, floats(place), step3, 3 * width, height), clean);
            ASSERT_EQ(row.in_place3(floats(right), step3, floats(place3), step3, width, height), clean);
            for (std::size_t i = 0; i < n; ++i) {
                ASSERT_EQ(got[i], want[i]) << row.op << std::hex << ": " << left[i] << ", " << right[i];
            }
            ASSERT_EQ(got3, want);
            ASSERT_EQ(place, want);
            ASSERT_EQ(place3, want);
        });
    }
    at_every_level([] {
        const float a3[3] = {1, 2, 3}, b3[3] = {5, 7, 9};
        float d3[3];
        EXPECT_TRUE(W::Sub_32f_C3R(a3, 12, b3, 12, d3, 12, 1, 1));
        EXPECT_THAT(d3, testing::ElementsAre(4, 5, 6));
    });
}

TEST(FloatArithmetic, Constants)
{
    std::mt19937 g = make_generator("float constants");
    for (const FloatRow& row : kFloatRows) {
        for (int repeat = 0; repeat < (options().brief ? 5 : 60); ++repeat) {
            const int width = uniform(g, 1, 70), height = 2, step = 12 * width + 8;
            const auto n = static_cast<std::size_t>(step / 4 * height);
            const Words left = telling_floats(g, n);
            Words values = telling_floats(g, 3);
            if (row.op == float_div) for (auto& v : values) if ((v << 1) == 0) v = bits_of(3.f);
            Words want = left, want3 = left;
            for (std::size_t y = 0; y < 2; ++y) {
                for (std::size_t x = 0; x < static_cast<std::size_t>(3 * width); ++x) {
                    const std::size_t i = y * static_cast<std::size_t>(step / 4) + x;
                    want[i] = expected_float<float>(row.constant_op, left[i], values[0]);
                    want3[i] = expected_float<float>(row.constant_op, left[i], values[x % 3]);
                }
            }
            at_every_level([&] {
                Words got = left, place = left;
                ASSERT_TRUE(row.constant(floats(left), step, floats(values)[0], floats(got), step, 3 * width, height));
                ASSERT_EQ(got, want) << row.op << std::hex << " " << values[0];
                ASSERT_TRUE(row.constant_in_place(floats(values)[0], floats(place), step, 3 * width, height));
                ASSERT_EQ(place, want);
                got = place = left;
                ASSERT_TRUE(row.constants(floats(left), step, floats(values), floats(got), step, width, height));
                ASSERT_EQ(got, want3);
                ASSERT_TRUE(row.constants_in_place(floats(values), floats(place), step, width, height));
                ASSERT_EQ(place, want3);
            });
        }
    }
    at_every_level([] {
        const float twos[3] = {2, 2, 2};
        float pixels[6] = {1, 2, 3, 4, 5, 6};
        EXPECT_TRUE(W::MulC_32f_C3I(twos, pixels, 24, 2, 1));
        EXPECT_THAT(pixels, testing::ElementsAre(-1, 0, 1, 2, 3, 4)) << "bound to subtraction";
    });
}

TEST(FloatArithmetic, AbsoluteAndExtremes)
{
    std::mt19937 g = make_generator("abs");
    const std::size_t n = 3 * 401;
    const Words a = telling_floats(g, n), b = telling_floats(g, n);
    Words absolute(n), larger(n), smaller(n);
    for (std::size_t i = 0; i < n; ++i) {
        absolute[i] = a[i] & 0x7FFFFFFF;
        larger[i] = from_bits<float>(a[i]) > from_bits<float>(b[i]) ? a[i] : b[i];
        smaller[i] = from_bits<float>(a[i]) < from_bits<float>(b[i]) ? a[i] : b[i];
    }
    at_every_level([&] {
        Words got(n), got3(n), place = a, place3 = a, high = b, low = b;
        EXPECT_TRUE(W::Abs_32f_C1(floats(a), 4 * n, floats(got), 4 * n, n, 1));
        EXPECT_TRUE(W::Abs_32f_C3(floats(a), 4 * n, floats(got3), 4 * n, n / 3, 1));
        EXPECT_TRUE(W::Abs_32f_C1I(floats(place), 4 * n, n, 1));
        EXPECT_TRUE(W::Abs_32f_C3I(floats(place3), 4 * n, n / 3, 1));
        EXPECT_EQ(got, absolute);
        EXPECT_EQ(got3, absolute);
        EXPECT_EQ(place, absolute);
        EXPECT_EQ(place3, absolute);
        EXPECT_TRUE(W::MaxEvery_32f_C1I(floats(a), 4 * n, floats(high), 4 * n, n, 1));
        EXPECT_TRUE(W::MinEvery_32f_C1I(floats(a), 4 * n, floats(low), 4 * n, n, 1));
        EXPECT_EQ(high, larger);
        EXPECT_EQ(low, smaller);
    });
}

TEST(FloatArithmetic, SquareRoot)
{
    std::mt19937 g = make_generator("sqrt");
    const std::size_t n = options().brief ? 500 : 20000;
    Words values = telling_floats(g, n), roots(n);
    for (std::size_t i = 0; i < n; ++i) {
        const float x = from_bits<float>(values[i]);
        volatile float root = static_cast<float>(x >= 0 ? exact_root(static_cast<double>(x)) : 0);
        roots[i] = x == 0 ? values[i] : x > 0 ? bits_of<float>(root) : negative_nan<float>;
    }
    at_every_level([&] {
        Words got = values;
        EXPECT_FALSE(W::Sqrt_32f_C1I(floats(got), 4 * static_cast<int>(n), static_cast<int>(n), 1));
        EXPECT_EQ(got, roots);
        // One bad value anywhere makes it false, and all of them are written.
        for (std::size_t width = 1; width < 40; ++width) {
            for (std::size_t bad = 0; bad <= width; ++bad) {
                std::vector<float> row(width, 4.f);
                if (bad < width) row[bad] = -4.f;
                EXPECT_EQ(W::Sqrt_32f_C1I(row.data(), 400, static_cast<int>(width), 1), bad == width);
                for (std::size_t i = 0; i < width; ++i)
                    ASSERT_EQ(bits_of(row[i]), i == bad ? negative_nan<float> : bits_of(2.f));
            }
        }
        // An uneven step: what stands at it is read, the roots go to the multiple of 4 below it.
        std::vector<unsigned char> rows(64, 0);
        const float nine[2] = {9, 9}, sixteen[2] = {16, 16};
        std::memcpy(&rows[0], nine, 8);
        std::memcpy(&rows[11], sixteen, 8);
        EXPECT_TRUE(W::Sqrt_32f_C1I(reinterpret_cast<float*>(rows.data()), 11, 2, 2));
        float got_rows[4];
        std::memcpy(got_rows, rows.data(), 16);
        EXPECT_THAT(got_rows, testing::ElementsAre(3, 3, 4, 4));
    });
}

TEST(FloatArithmetic, AccumulatedProducts)
{
    std::mt19937 g = make_generator("AddProduct");
    const int width = 203, height = 7;
    const std::size_t row = width, n = row * static_cast<std::size_t>(height);
    std::vector<u16> a(n), b(n);
    for (auto* v : {&a, &b}) for (u16& x : *v) x = static_cast<u16>(uniform(g, 0, 3) == 0 ? 65535 - g() % 3 : g());
    Words sums = telling_floats(g, n), want(n);
    for (std::size_t i = 0; i < n; ++i) {
        // Some sums whose rounding by way of double differs from a direct one.
        if (i % 5 == 0)
            sums[i] =
                bits_of(std::ldexp(1.f + static_cast<float>(g() % 8) / 8388608.f, -25 - static_cast<int>(g() % 8)));
        // Whole rows of ordinary sums, and one whose sums lie next to ties by less than doubles tell.
        if (i >= 3 * row)
            sums[i] = g() % 9 == 0 ? 0 : (g() & 0x807FFFFF) | static_cast<unsigned>(uniform(g, 129, 177)) << 23;
        if (i >= 6 * row) {
            a[i] = 65535;
            b[i] = static_cast<u16>(0xFF83 - 256 * uniform(g, 0, 100));
            sums[i] = bits_of(3.0f) + static_cast<unsigned>(uniform(g, -1, 1));
        }
        want[i] = is_nan<float>(sums[i]) ? sums[i] | quiet_bit<float>
                                         : rounded_twice(static_cast<Quad>(from_bits<float>(sums[i])) +
                                                         static_cast<Quad>(a[i]) * static_cast<Quad>(b[i]));
    }
    at_every_level([&] {
        Words got = sums;
        EXPECT_TRUE(
            W::AddProduct_16u32f_C1I(a.data(), 2 * width, b.data(), 2 * width, floats(got), 4 * width, width, height));
        EXPECT_EQ(got, want);
        const auto& kernel = orv::orv_AddProduct_16u32f_C1;
        EXPECT_EQ(kernel(a.data(), 6, b.data(), 8, floats(got), 16, {4, 1}), orv::StatusBadStep);
        EXPECT_EQ(kernel(a.data(), 8, b.data(), 6, floats(got), 16, {4, 1}), orv::StatusBadStep);
        EXPECT_EQ(kernel(a.data(), 8, b.data(), 8, floats(got), 15, {4, 1}), orv::StatusBadStep);
        EXPECT_EQ(kernel(a.data(), 9, b.data(), 8, floats(got), 16, {4, 1}), orv::StatusUnevenStep);
        EXPECT_EQ(kernel(a.data(), 8, b.data(), 9, floats(got), 16, {4, 1}), orv::StatusUnevenStep);
        EXPECT_EQ(kernel(a.data(), 8, b.data(), 8, floats(got), 18, {4, 1}), orv::StatusUnevenStep);
        EXPECT_EQ(kernel(a.data(), 8, b.data(), 8, floats(got), 16, {INT_MAX, 1}), orv::StatusBadStep);
        EXPECT_EQ(got, want);
    });
}

// --- Complex --------------------------------------------------------------------------------------

struct Parts {
    std::uint32_t re, im;
};

Parts expected_complex(FloatOp op, const std::uint32_t* left, const std::uint32_t* right)
{
    if (op == float_add || op == float_sub) {
        return {expected_float<float>(op, left[0], right[0]), expected_float<float>(op, left[1], right[1])};
    }
    const Quad a = from_bits<float>(right[0]), b = from_bits<float>(right[1]);
    const Quad c = from_bits<float>(left[0]), d = from_bits<float>(left[1]);
    if (op == float_mul) return {rounded_twice(a * c - b * d), rounded_twice(a * d + b * c)};
    const auto in_double = [](Quad x) {
        volatile double stored = static_cast<double>(x);
        return static_cast<Quad>(stored);
    };
    const Quad m = in_double(a * a + b * b), r = in_double(1 / m);
    if (op == float_divc) {  // the left operand times the rounded inverse
        const std::uint32_t inverse[2] = {rounded_twice(a * r), rounded_twice(-b * r)};
        return expected_complex(float_mul, left, inverse);
    }
    if (m == 0) return {negative_nan<float>, negative_nan<float>};
    return {rounded_twice(in_double(a * c + b * d) * r), rounded_twice(in_double(a * d - b * c) * r)};
}

TEST(FloatArithmetic, Complex)
{
    struct Row {
        FloatOp op, constant_op;
        bool (*two)(const Complex32f*, int, const Complex32f*, int, Complex32f*, int, int, int);
        bool (*in_place)(const Complex32f*, int, Complex32f*, int, int, int);
        bool (*constant)(const Complex32f*, int, Complex32f, Complex32f*, int, int, int);
        bool (*constant_in_place)(Complex32f, Complex32f*, int, int, int);
    };
#define ROW(op, constant_op, name) \
    { \
        op, constant_op, W::name##_32fc_C1, W::name##_32fc_C1I, W::name##C_32fc_C1, W::name##C_32fc_C1I \
    }
    const Row rows[] = {ROW(float_add, float_add, Add), ROW(float_sub, float_sub, Sub), ROW(float_mul, float_mul, Mul),
                        ROW(float_div, float_divc, Div)};
#undef ROW
    std::mt19937 g = make_generator("complex");
    for (const Row& row : rows) {
        for (int repeat = 0; repeat < (options().brief ? 4 : 80); ++repeat) {
            const int width = repeat == 0 ? 3001 : uniform(g, 1, 21), height = 3, step = 8 * width;
            const auto n = static_cast<std::size_t>(2 * width * height);
            const Words left = telling_floats(g, n), right = telling_floats(g, n);
            Words value = telling_floats(g, 2), want(n), want_constant(n);
            if (row.op == float_div && has_zero({value[0]}) && has_zero({value[1]})) value[0] = bits_of(2.f);
            for (std::size_t i = 0; i < n; i += 2) {
                const Parts two = expected_complex(row.op, &left[i], &right[i]);
                const Parts one = expected_complex(row.constant_op, &left[i], value.data());
                want[i] = two.re, want[i + 1] = two.im;
                want_constant[i] = one.re, want_constant[i + 1] = one.im;
            }
            at_every_level([&] {
                Words got(n), place = left;
                ASSERT_TRUE(
                    row.two(complexes(right), step, complexes(left), step, complexes(got), step, width, height));
                for (std::size_t i = 0; i < n; ++i)
                    ASSERT_EQ(got[i], want[i]) << row.op << " " << i << std::hex << ": " << left[i & ~1u] << " "
                                               << left[i | 1] << ", " << right[i & ~1u] << " " << right[i | 1];
                ASSERT_TRUE(row.in_place(complexes(right), step, complexes(place), step, width, height));
                ASSERT_EQ(place, want);
                place = left;
                ASSERT_TRUE(
                    row.constant(complexes(left), step, complexes(value)[0], complexes(got), step, width, height));
                ASSERT_EQ(got, want_constant) << row.op;
                ASSERT_TRUE(row.constant_in_place(complexes(value)[0], complexes(place), step, width, height));
                ASSERT_EQ(place, want_constant);
                // True as well where nothing can be done.
                const Words before = place;
                ASSERT_TRUE(row.two(nullptr, step, complexes(left), step, complexes(place), step, width, height));
                ASSERT_TRUE(row.two(complexes(left), step, complexes(left), step, complexes(place), step, width, 0));
                ASSERT_TRUE(row.in_place(nullptr, step, complexes(place), step, width, height));
                ASSERT_TRUE(row.in_place(complexes(left), step, nullptr, step, width, height));
                ASSERT_TRUE(row.constant(complexes(left), step, {1, 2}, complexes(place), step, -1, height));
                ASSERT_TRUE(row.constant_in_place({1, 2}, nullptr, step, width, height));
                const AllocationFailure none_left(0);
                ASSERT_TRUE(row.in_place(complexes(left), step, complexes(place), step, width, height));
                ASSERT_TRUE(row.constant_in_place({1, 2}, complexes(place), step, width, height));
                ASSERT_EQ(place, before);
            });
        }
    }
    at_every_level([] {
        Complex32f pixels[2] = {{1, 2}, {3, 4}};
        EXPECT_TRUE(W::DivC_32fc_C1I({0, -0.f}, pixels, 16, 2, 1));
        EXPECT_EQ(pixels[1].im, 4) << "a constant of 0 writes nothing";
        EXPECT_EQ(orv::orv_DivC_32fc_C1(pixels, 16, {0, 0}, pixels, 16, {2, 1}), orv::StatusDivideByZeroError);
        const Complex32f zeros[2] = {{1, 0}, {0, 0}};
        EXPECT_EQ(orv::orv_Div_32fc_C1(zeros, 16, pixels, 16, pixels, 16, {2, 1}), orv::StatusDivideByZero);
    });
}

// --- Refusals -------------------------------------------------------------------------------------

TEST(FloatArithmetic, RefusalsInOrder)
{
    const std::vector<float> before(24, 7.f);
    std::vector<float> image = before;
    float* const d = image.data();
    const float* const s = before.data();
    const float zeros[3] = {1, -0.f, 1};
    at_every_level([&] {
        for (const FloatRow& row : kFloatRows) {
            for (const TwoImages two : {row.two, row.two3}) {
                EXPECT_FALSE(two(nullptr, 24, s, 24, d, 24, 2, 2));
                EXPECT_FALSE(two(s, 24, nullptr, 24, d, 24, 2, 2));
                EXPECT_FALSE(two(s, 24, s, 24, nullptr, 24, 2, 2));
                EXPECT_FALSE(two(s, 24, s, 24, d, 24, 0, 2));
                EXPECT_FALSE(two(s, 24, s, 24, d, 24, 2, INT_MIN));
            }
            EXPECT_FALSE(row.constants(s, 24, nullptr, d, 24, 2, 2));
            EXPECT_FALSE(row.constants_in_place(nullptr, d, 24, 2, 2));
            EXPECT_FALSE(row.in_place(nullptr, 24, d, 24, 2, 2));
            EXPECT_FALSE(row.in_place(s, 24, nullptr, 24, 2, 2));
            const AllocationFailure none_left(0);
            EXPECT_FALSE(row.in_place(s, 24, d, 24, 2, 2));
            EXPECT_FALSE(row.constant_in_place(2, d, 24, 2, 2));
        }
        EXPECT_FALSE(W::DivC_32f_C1(s, 24, 0.f, d, 24, 2, 2));
        EXPECT_FALSE(W::DivC_32f_C1I(-0.f, d, 24, 2, 2));
        EXPECT_FALSE(W::DivC_32f_C3I(zeros, d, 24, 2, 2));
        // The kernels tell which check came first.
        using namespace orv;
        EXPECT_EQ(orv_Div_32f_C1(nullptr, 0, s, 0, d, 0, {0, 0}), StatusNullPointer);
        EXPECT_EQ(orv_Div_32f_C1(s, 0, s, 0, d, 0, {0, 1}), StatusBadSize);
        EXPECT_EQ(orv_Div_32f_C3(s, 0, s, 24, d, 24, {1, 1}), StatusBadStep);
        EXPECT_EQ(orv_DivC_32f_C1(s, 24, 0, d, -1, {1, 1}), StatusBadStep);
        EXPECT_EQ(orv_DivC_32f_C3(s, 24, zeros, d, 24, {1, 1}), StatusDivideByZeroError);
        EXPECT_EQ(orv_Sqrt_32f_C1(s, 24, d, 0, {1, 1}), StatusBadStep);
        EXPECT_EQ(orv_MaxEvery_32f_C1(s, 24, d, 0, {1, 1}), StatusBadStep);
        EXPECT_EQ(orv_MinEvery_32f_C1(s, -4, d, 24, {1, 1}), StatusBadStep);
        EXPECT_EQ(image, before);
        EXPECT_EQ(orv_Add_32f_C1(s, 0, s, -4, d, 0, {1, 1}), StatusOk) << "steps are not checked here";
        image = before;
    });
}

// Whatever the host has set: results are the same and the settings are left alone.
TEST(FloatArithmetic, IndependentOfTheHostsEnvironment)
{
    std::mt19937 g = make_generator("environment");
    const Words a = telling_floats(g, 400), b = telling_floats(g, 400);
    for (const FloatRow& row : kFloatRows) {
        expect_control_kept<float>(400, [&](float* dst) {
            row.two(floats(a), 1600, floats(b), 1600, dst, 1600, 400, 1);
            return true;
        });
    }
}

}  // namespace
}  // namespace test
