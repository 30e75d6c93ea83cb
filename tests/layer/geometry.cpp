// What the layer makes of resizing, and small matrices.
#include <cmath>
#include <orvane.hpp>
#include <vector>

#include "gmock/gmock.h"
#include "support/allocations.h"

namespace {

using orvane::image;
using orvane::interpolation;
using orvane::matrix;

// A plane that rises by 8 a column and 5 a row: every interpolation but the nearest gives it back between its edges.
template <class T, int C>
image<T, C> slope(int width, int height)
{
    image<T, C> made(width, height);
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            for (int c = 0; c < C; ++c) made(x, y, c) = static_cast<T>(8 * x + 5 * y + c);
        }
    }
    return made;
}

template <class T, int C>
void expect_resized(interpolation how, int width, int height, double tolerance)
{
    const image<T, C> source = slope<T, C>(24, 12);
    image<T, C> made(width, height);
    const auto status = orvane::resize(source, made, how);
    ASSERT_TRUE(status) << status.message() << " code " << static_cast<int>(how);
    const double x_scale = 24.0 / width, y_scale = 12.0 / height;
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            const double u = (x + 0.5) * x_scale - 0.5, v = (y + 0.5) * y_scale - 0.5;
            if (how != interpolation::nearest && (u < 3 || u > 20 || v < 3 || v > 8)) continue;
            const double expected = how == interpolation::nearest
                                        ? source(static_cast<int>(std::floor(u + 0.5 - 1e-10)),
                                                 static_cast<int>(std::floor(v + 0.5 - 1e-10)), C - 1)
                                        : 8 * u + 5 * v + C - 1;
            ASSERT_NEAR(made(x, y, C - 1), expected, tolerance) << x << ' ' << y << " code " << static_cast<int>(how);
        }
    }
}

template <class T, int C>
void expect_resizes(double tolerance)
{
    for (const int code : {1, 2, 4, 5, 6, 7, 16}) {
        const auto how = static_cast<interpolation>(code);
        // Two of them do not keep slopes: the weights' first moments are not those of the distance.
        const bool keeps = how != interpolation::lanczos && how != interpolation::b05_c03;
        const double most = how == interpolation::nearest ? 0 : keeps ? tolerance : tolerance + 0.4;
        expect_resized<T, C>(how, 31, 17, most);
        expect_resized<T, C>(how, 12, 6, most);
        expect_resized<T, C>(how, 48, 24, most);
    }
    expect_resized<T, C>(interpolation::area, 12, 6, tolerance);
}

TEST(LayerResize, TypesAndInterpolations)
{
    expect_resizes<unsigned char, 1>(0.55);
    expect_resizes<unsigned char, 3>(0.55);
    expect_resizes<unsigned char, 4>(0.55);
    expect_resizes<unsigned short, 1>(0.55);
    expect_resizes<float, 1>(1e-3);
}

TEST(LayerResize, Refusals)
{
    image<unsigned char, 3> source(24, 12), made(12, 7), tiny(3, 3), half(12, 6);
    EXPECT_STREQ(orvane::resize(source, made, interpolation::area).argument(), "destination");
    EXPECT_STREQ(orvane::resize(source, made, interpolation{3}).argument(), "how");
    EXPECT_STREQ(orvane::resize({}, made, interpolation::linear).argument(), "source");
    EXPECT_STREQ(orvane::resize(source, {}, interpolation::linear).argument(), "destination");
    EXPECT_STREQ(orvane::resize(source, source.part(0, 0, 12, 6), interpolation::linear).argument(), "destination");
    EXPECT_TRUE(orvane::resize(tiny, made, interpolation::cubic)) << "the plan takes 4 x 4 and more";
    EXPECT_STREQ(orvane::resize(source, made, interpolation::linear, -1).argument(), "origin_x");
    EXPECT_STREQ(orvane::resize(source, made, interpolation::linear, 0, 0x7fffffff).argument(), "origin_y");
    EXPECT_STREQ(orvane::resize(source, made, interpolation::linear, 1, 0, 12).argument(), "whole_width");
    EXPECT_STREQ(orvane::resize(source, made, interpolation::linear, 0, 1, 0, 7).argument(), "whole_height");
    EXPECT_STREQ(orvane::zoom(source, made, 2, 0, 0, true, 5, 0, 16).argument(), "whole_width");
    EXPECT_STREQ(orvane::rotate(source, made, 30, 0, 0, interpolation::linear, 0, -1).argument(), "origin_y");
    EXPECT_TRUE(orvane::resize(source, tiny, interpolation::area, 9, 3, 12, 6)) << "the ratio is the whole's";
    EXPECT_STREQ(orvane::resize(source, tiny, interpolation::area, 9, 3, 12, 7).argument(), "destination");
    half(0, 0, 0) = 7;
    const test::AllocationFailure none(0);
    EXPECT_EQ(orvane::resize(source, half, interpolation::area).result(), orvane::outcome::out_of_memory);
    EXPECT_EQ(orvane::resize(source, half, interpolation::nearest).result(), orvane::outcome::out_of_memory);
    EXPECT_EQ(half(0, 0, 0), 7);
}

TEST(LayerGeometry, BoundsAndShifts)
{
    double bound[4], x, y;
    ASSERT_TRUE(orvane::rotate_bound(4, 2, 90, 0, 4, bound));
    EXPECT_THAT(bound, ::testing::ElementsAre(0, 0, 2, 4));
    ASSERT_TRUE(orvane::rotate_shift(2, 1, 180, x, y));
    EXPECT_EQ(x, 4);
    EXPECT_EQ(y, 2);
    const double twice[9] = {2, 0, 1, 0, 2, 0, 0, 0, 1};
    ASSERT_TRUE(orvane::perspective_bound(4, 2, twice, bound));
    EXPECT_THAT(bound, ::testing::ElementsAre(1, 0, 9, 4));
    EXPECT_STREQ(orvane::rotate_bound(0, 2, 0, 0, 0, bound).argument(), "width");
    EXPECT_STREQ(orvane::rotate_bound(1, 0, 0, 0, 0, bound).argument(), "height");
    EXPECT_STREQ(orvane::rotate_shift(0, 0, std::nan(""), x, y).argument(), "degrees");
    EXPECT_STREQ(orvane::perspective_bound(1, 0, twice, bound).argument(), "height");
}

TEST(LayerMatrices, Values)
{
    const float a[2][3] = {{1, 2, 3}, {4, 5, 6}}, b[3][2] = {{1, 0}, {0, 1}, {2, 2}};
    float product[2][2], turned[3][2], sum[2][3];
    orvane::multiply(a, b, product).check();
    EXPECT_THAT(std::vector<float>(&product[0][0], &product[0][0] + 4), ::testing::ElementsAre(7, 8, 16, 17));
    orvane::transpose(a, turned).check();
    EXPECT_EQ(turned[2][1], 6);
    orvane::copy(matrix<const float>(turned).transposed(), sum).check();
    EXPECT_THAT(std::vector<float>(&sum[0][0], &sum[0][0] + 6), ::testing::ElementsAre(1, 2, 3, 4, 5, 6));
    orvane::subtract(a, matrix<const float>(b).transposed(), sum).check();
    EXPECT_THAT(std::vector<float>(&sum[0][0], &sum[0][0] + 6), ::testing::ElementsAre(0, 2, 1, 4, 4, 4));
    orvane::add(a, a, sum).check();
    orvane::multiply(sum, 0.5F, sum).check();
    EXPECT_EQ(sum[1][2], 6);
    orvane::identity(matrix<float>(sum).part(0, 1, 2, 2)).check();
    EXPECT_THAT(std::vector<float>(&sum[0][0], &sum[0][0] + 6), ::testing::ElementsAre(1, 1, 0, 4, 0, 1));
}

TEST(LayerMatrices, LeastSquares)
{
    // y = 2 + 3 x through four points
    const double design[4][2] = {{1, 0}, {1, 1}, {1, 2}, {1, 3}};
    const std::vector<double> y = {2, 5, 8, 11};
    double normal[2][2];
    std::vector<double> right(2), fit(2), back(4);
    orvane::transpose_multiply(design, design, normal).check();
    orvane::transpose_multiply(design, y, right).check();
    orvane::invert(normal, normal).check();
    orvane::multiply(normal, right, fit).check();
    EXPECT_NEAR(fit[0], 2, 1e-12);
    EXPECT_NEAR(fit[1], 3, 1e-12);
    orvane::multiply(design, fit, back).check();
    EXPECT_NEAR(back[3], 11, 1e-12);
}

TEST(LayerMatrices, Elimination)
{
    const float a[2][2] = {{0, 2}, {4, 1}}, singular[2][2] = {{1, 2}, {2, 4}};
    float factors[2][2], inverse[2][2];
    int order[2];
    const std::vector<float> b = {4, 6};
    std::vector<float> x(2);
    orvane::lu_decompose(a, order, factors).check();
    orvane::lu_solve(factors, order, b, x).check();
    EXPECT_THAT(x, ::testing::ElementsAre(1, 2));
    orvane::invert(a, inverse).check();
    EXPECT_FLOAT_EQ(inverse[0][1], 0.25F);
    EXPECT_THROW(orvane::lu_decompose(singular, order, factors).check(), orvane::error);
    EXPECT_EQ(orvane::invert(singular, inverse).message(),
              "invert: source is singular, or memory ran out; nothing was written");
}

TEST(LayerMatrices, Refusals)
{
    float a[2][3] = {}, b[3][2] = {}, c[2][2] = {};
    double d[2][2] = {};
    std::vector<double> two(2), three(3);
    std::vector<float> single(2);
    int order[3] = {};
    const matrix<float> none, crooked(&a[0][0], 2, 3, 13, 4), backward(&a[0][0], 2, 3, -12, 4), empty(&a[0][0], 0, 3);
    const struct {
        orvane::status status;
        const char* argument;
    } rows[] = {
        {orvane::multiply(none, b, c), "a"},
        {orvane::multiply(a, a, c), "b"},
        {orvane::multiply(a, b, a), "destination"},
        {orvane::multiply(crooked, b, c), "a"},
        {orvane::multiply(backward, b, c), "a"},
        {orvane::multiply(empty, b, c), "a"},
        {orvane::add(a, b, a), "b"},
        {orvane::subtract(a, a, b), "destination"},
        {orvane::multiply(a, 1.0F, b), "destination"},
        {orvane::transpose(a, a), "destination"},
        {orvane::copy(none, a), "source"},
        {orvane::copy(a, b), "destination"},
        {orvane::multiply(d, three, two), "x"},
        {orvane::multiply(d, two, three), "destination"},
        {orvane::transpose_multiply(d, three, two), "x"},
        {orvane::lu_decompose(a, order, c), "source"},
        {orvane::lu_decompose(c, order, c), "order"},
        {orvane::lu_solve(c, {order, 2}, single, {}), "x"},
        {orvane::invert(a, c), "source"},
        {orvane::identity(none), "destination"},
    };
    for (const auto& r : rows) {
        EXPECT_STREQ(r.status.argument(), r.argument) << r.status.message();
        EXPECT_EQ(r.status.result(), orvane::outcome::refused);
    }
}

}  // namespace
