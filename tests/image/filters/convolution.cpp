// Convolution against its definition: integers in wider arithmetic, floats in ordered sums with each rounding done
// by hand.
#include <climits>
#include <cmath>
#include <functional>
#include <vector>

#include "ImageProcessingWrapper.h"
#include "gmock/gmock.h"
#include "image/filters/convolution.h"
#include "support/allocations.h"
#include "support/exact.h"
#include "support/expected.h"
#include "support/guarded_block.h"
#include "support/host_control.h"
#include "support/levels.h"

namespace test {
namespace {

using W = ImageProcessingWrapper;
using u8 = unsigned char;
using u16 = unsigned short;

template <class Weight>
struct Kernel {
    int width, height, anchorX, anchorY;
    std::vector<Weight> weights;

    Weight at(int i, int j) const { return weights[static_cast<std::size_t>(j * width + i)]; }
    int right() const { return anchorX; }
    int left() const { return width - 1 - anchorX; }
    int below() const { return anchorY; }
    int above() const { return height - 1 - anchorY; }
};
template <class Weight>
Kernel<Weight> kernel_of(int width, int height, std::mt19937& g, const std::function<Weight(int i, int j)>& weight)
{
    Kernel<Weight> k = {width, height, uniform(g, 0, width - 1), uniform(g, 0, height - 1), {}};
    for (int j = 0; j < height; ++j) {
        for (int i = 0; i < width; ++i) k.weights.push_back(weight(i, j));
    }
    return k;
}

// --- Oracle ---------------------------------------------------------------------------------------

template <class T> using Source = std::function<T(int x, int y)>;

// The weights in two halves, whose sums are far from 2^63; a quadruple holds what they make together.
template <class To, class From>
To expected(const Source<From>& src, const Kernel<int>& k, int divisor, int x, int y)
{
    long long low = 0, high = 0;
    for (int j = 0; j < k.height; ++j) {
        for (int i = 0; i < k.width; ++i) {
            const long long weight = k.at(i, j), part = weight & 0xFFFF,
                            pixel = src(x + k.anchorX - i, y + k.anchorY - j);
            low += part * pixel;
            high += (weight - part) / 65536 * pixel;
        }
    }
    return expected_scaled<To>(static_cast<Quad>(high) * 65536 + static_cast<Quad>(low), divisor, 0);
}
// In bits. A quadruple holds a product exactly and has more than twice the digits of a double.
template <class From>
std::uint32_t expected(const Source<From>& src, const Kernel<float>& k, int x, int y)
{
    double sum = 0;
    bool first = true;
    for (int j = k.height - 1; j >= 0; --j) {
        for (int i = k.width - 1; i >= 0; --i) {
            if (k.at(i, j) == 0) continue;
            const Quad product =
                static_cast<Quad>(k.at(i, j)) * static_cast<Quad>(src(x + k.anchorX - i, y + k.anchorY - j));
            volatile double next = static_cast<double>(first ? product : static_cast<Quad>(sum) + product);
            sum = next;
            first = false;
        }
    }
    volatile float result = static_cast<float>(sum);
    const float value = result;
    return std::isnan(value) ? 0xFFFFFFFFu : bits_of(value);
}

// --- Methods --------------------------------------------------------------------------------------

template <class From_, class To_>
struct IntegerFilter {
    using From = From_;
    using To = To_;
    using Weight = int;
    const char* name;
    bool (*method)(const From*, int, To*, int, int, int, const int*, int, int, int, int, int);
    const orv::Operation<orv::IntegerConvolution<From, To>>* operation;
    int channels;

    bool call(const From* s, int ss, To* d, int ds, int w, int h, const Kernel<int>& k, int divisor) const
    {
        return method(s, ss, d, ds, w, h, k.weights.data(), k.width, k.height, k.anchorX, k.anchorY, divisor);
    }
    orv::Status status(const From* s, int ss, To* d, int ds, orv::Size roi, const int* k, int kw, int kh, int ax,
                       int ay) const
    {
        return (*operation)(s, ss, d, ds, roi, k, kw, kh, ax, ay, 0);
    }
};
template <class From_>
struct FloatFilter {
    using From = From_;
    using To = float;
    using Weight = float;
    const char* name;
    bool (*method)(const From*, int, float*, int, int, int, const float*, int, int, int, int);
    const orv::Operation<orv::FloatConvolution<From>>* operation;
    int channels;

    bool call(const From* s, int ss, float* d, int ds, int w, int h, const Kernel<float>& k, int) const
    {
        return method(s, ss, d, ds, w, h, k.weights.data(), k.width, k.height, k.anchorX, k.anchorY);
    }
    orv::Status status(const From* s, int ss, float* d, int ds, orv::Size roi, const float* k, int kw, int kh, int ax,
                       int ay) const
    {
        return (*operation)(s, ss, d, ds, roi, k, kw, kh, ax, ay);
    }
};
#define FILTER(Kind, name, channels, ...) Kind<__VA_ARGS__>{#name, W::name, &orv::orv_##name, channels}
template <class Check>
void for_each_integer_filter(Check check)
{
    check(FILTER(IntegerFilter, Filter_8u_C1R, 1, u8, u8));
    check(FILTER(IntegerFilter, Filter_8u_C3R, 3, u8, u8));
    check(FILTER(IntegerFilter, Filter_8u_C4R, 4, u8, u8));
    check(FILTER(IntegerFilter, Filter_16u_C1R, 1, u16, u16));
    check(FILTER(IntegerFilter, Filter_16s_C1R, 1, short, short));
    check(FILTER(IntegerFilter, Filter_8u16s_C1R, 1, u8, short));
}
template <class Check>
void for_each_float_filter(Check check)
{
    check(FILTER(FloatFilter, Filter_32f_C1R, 1, float));
    check(FILTER(FloatFilter, Filter_32f_C3R, 3, float));
    check(FILTER(FloatFilter, Filter_8u32f_C1R, 1, u8));
    check(FILTER(FloatFilter, Filter_16u32f_C1R, 1, u16));
}
#undef FILTER
template <class Check>
void for_each_filter(Check check)
{
    for_each_integer_filter(check);
    for_each_float_filter(check);
}

// A region inside an image that is just the frame larger, in a random place: behind or before pages that cannot be
// touched where it is small enough.
template <class T>
struct Framed {
    Image image;
    int left, above, channels;

    template <class Weight>
    Framed(orv::Size roi, const Kernel<Weight>& k, int pixel, std::mt19937& g)
        : image(random_pixels<T>((roi.width + k.width - 1) * pixel, roi.height + k.height - 1, g)), left(k.left()),
          above(k.above()), channels(pixel)
    {
    }
    const T* region() { return reinterpret_cast<const T*>(image.row(above)) + left * channels; }
    Source<T> channel(int c)
    {
        return [this, c](int x, int y) { return element<T>(image, y + above, (x + left) * channels + c); };
    }
};

template <class From, class To>
To expected_of(const IntegerFilter<From, To>&, const Source<From>& s, const Kernel<int>& k, int divisor, int x, int y)
{
    return expected<To>(s, k, divisor, x, y);
}
template <class From>
std::uint32_t expected_of(const FloatFilter<From>&, const Source<From>& s, const Kernel<float>& k, int, int x, int y)
{
    return expected(s, k, x, y);
}

template <class Filter>
void check_filter(const Filter& f, orv::Size roi, const Kernel<typename Filter::Weight>& k, int divisor,
                  std::mt19937& g)
{
    SCOPED_TRACE(std::string(f.name) + " " + std::to_string(roi.width) + " x " + std::to_string(roi.height) +
                 ", kernel " + std::to_string(k.width) + " x " + std::to_string(k.height) + ", divisor " +
                 std::to_string(divisor));
    using From = typename Filter::From;
    using To = typename Filter::To;
    Framed<From> src(roi, k, f.channels, g);
    Image dst = random_image(roi.width * f.channels * static_cast<int>(sizeof(To)), roi.height, g);
    using Bits = decltype(expected_of(f, src.channel(0), k, divisor, 0, 0));
    std::vector<Bits> want;
    for (int y = 0; y < roi.height; ++y) {
        for (int x = 0; x < roi.width; ++x) {
            for (int c = 0; c < f.channels; ++c) want.push_back(expected_of(f, src.channel(c), k, divisor, x, y));
        }
    }
    const auto source = src.image.bytes(), before = dst.bytes();
    const auto row = static_cast<std::size_t>(roi.width * f.channels);
    at_every_level([&] {
        ASSERT_TRUE(f.call(src.region(), src.image.step(), dst.template pixels<To>(), dst.step(), roi.width, roi.height,
                           k, divisor));
        expect_pixels<Bits>(dst, before, [&](int y, int i) {
            return want[static_cast<std::size_t>(y) * row + static_cast<std::size_t>(i)];
        });
        ASSERT_EQ(src.image.bytes(), source);
    });
}

orv::Size random_region(std::mt19937& g, int number)
{
    static const int wide[] = {128, 257, 300, 1100};
    if (number % 16 == 15) return {wide[number / 16 % 4], uniform(g, 1, 3)};
    return {1 + number % 70, uniform(g, 1, 6)};
}
const std::pair<int, int> kSides[] = {{1, 1}, {1, 5}, {5, 1}, {2, 3}, {4, 4},   {3, 3},  {5, 5},
                                      {3, 2}, {7, 7}, {6, 1}, {9, 4}, {15, 15}, {31, 2}, {1, 40}};

// --- Integers -------------------------------------------------------------------------------------

// Weights of every kind that sums have a way of their own for: from bytes to more than doubles hold.
Kernel<int> random_integer_kernel(int kind, int width, int height, std::mt19937& g)
{
    const auto vector = [&](int n, int most) {
        std::vector<int> v(static_cast<std::size_t>(n));
        for (int& x : v) x = uniform(g, -most, most);
        return v;
    };
    const bool product = kind >= 5;
    static const int row_sizes[] = {2, 20, 60000}, column_sizes[] = {3, 300, 30000};
    const std::vector<int> row = vector(width, row_sizes[kind % 3]),
                           column = vector(height, column_sizes[(kind + kind / 7) % 3]);
    const int small = std::max(1, 128 / (width * height));
    return kernel_of<int>(width, height, g, [&](int i, int j) {
        if (product) return row[static_cast<std::size_t>(i)] * column[static_cast<std::size_t>(j)];
        if (kind == 0) return uniform(g, 0, 2) == 0 ? 0 : uniform(g, -small, small);
        if (kind == 1) return uniform(g, -300, 300);
        if (kind == 2) return uniform(g, -60000, 60000);
        if (kind == 3) return uniform(g, INT_MIN, INT_MAX);
        return uniform(g, 0, 1) == 0 ? INT_MIN : INT_MAX;
    });
}
int random_divisor(const Kernel<int>& k, std::mt19937& g)
{
    static const int list[] = {1, -1, 2, -2, 3, 9, 10, -16, 256, 273, 1000, 65536, 1000003, INT_MAX, INT_MIN};
    long long sum = 0;
    for (const int w : k.weights) sum += std::abs(static_cast<long long>(w));
    const int number = uniform(g, 0, 29);
    return number < 15 ? list[number]
                       : static_cast<int>(std::min<long long>(std::max<long long>(sum / uniform(g, 1, 9), 1), INT_MAX));
}

TEST(Convolution, Integers)
{
    std::mt19937 g = make_generator("integers");
    for_each_integer_filter([&](const auto& f) {
        for (int number = 0; number < (options().brief ? 24 : 280) && !testing::Test::HasFatalFailure(); ++number) {
            const auto& side = kSides[number % 14];
            const Kernel<int> k = random_integer_kernel(number % 11, side.first, side.second, g);
            check_filter(f, random_region(g, number), k, random_divisor(k, g), g);
        }
    });
}

// Rows of bytes whose sums just fit words, or just do not.
TEST(Convolution, FactorsAtTheirBounds)
{
    std::mt19937 g = make_generator("factors");
    for (const int magnitudes : {127, 128, 129, 256, 257, 258}) {
        for (int shape = 0; shape < 12; ++shape) {
            const int negative = shape % 4 == 0 ? 0 : shape % 4 == 1 ? magnitudes : magnitudes / 2;
            const int row[5] = {1, -negative + 1, magnitudes - negative - 3, -1, 1};
            const auto weight = [&](int i, int j) { return row[i] * (j + 1) * (shape >= 8 ? 8191 : 1); };
            const Kernel<int> k = kernel_of<int>(5, 4, g, weight);
            check_filter(IntegerFilter<u8, u8>{"Filter_8u_C3R", W::Filter_8u_C3R, nullptr, 3}, {70, 3}, k, magnitudes,
                         g);
            check_filter(IntegerFilter<u8, short>{"Filter_8u16s_C1R", W::Filter_8u16s_C1R, nullptr, 1}, {70, 3}, k, 1,
                         g);
        }
    }
}

// Any weight can be the one that keeps a kernel from being a product.
TEST(Convolution, NearlyProducts)
{
    std::mt19937 g = make_generator("nearly");
    static const int row[] = {7, -5, 20, 11, -3};
    for (std::size_t place = 0; place < 20; ++place) {
        Kernel<int> k = kernel_of<int>(5, 4, g, [&](int i, int j) { return row[i] * (j + 1); });
        k.weights[place] += 1;
        check_filter(IntegerFilter<u8, short>{"Filter_8u16s_C1R", W::Filter_8u16s_C1R, nullptr, 1}, {70, 3}, k, 8, g);
    }
}

// White under positive weights reaches the bounds that random pixels hardly ever reach.
TEST(Convolution, WhiteRowsAtTheirBounds)
{
    const std::vector<u8> src(64 * 64, 255);
    for (const int magnitudes : {127, 128, 129, 256, 257, 258}) {
        for (const int sign : {1, -1}) {
            std::mt19937 g = make_generator("white");
            const auto weight = [=](int i, int j) { return sign * (j + 1) * (i == 2 ? magnitudes - 4 : 1); };
            const Kernel<int> k = kernel_of<int>(5, 4, g, weight);
            const Source<u8> s = [](int, int) { return u8{255}; };
            const short want = expected<short>(s, k, 64, 0, 0);
            at_every_level([&] {
                short dst[40] = {};
                ASSERT_TRUE(W::Filter_8u16s_C1R(src.data() + 64 * 8 + 8, 64, dst, 80, 40, 1, k.weights.data(), 5, 4,
                                                k.anchorX, k.anchorY, 64));
                EXPECT_THAT(dst, testing::Each(want)) << sign * magnitudes;
            });
        }
    }
}

// Sums at a tie and next to it, as large as each way of division takes them.
TEST(Convolution, QuotientsAtTies)
{
    std::mt19937 g = make_generator("ties");
    constexpr int n = 96;
    for (const int factor : {1, 7, 8, 9, 100, 30000, 40000, 1 << 20, INT_MAX - 2, INT_MIN}) {
        for (int round = 0; round < (options().brief ? 6 : 60); ++round) {
            // Each sum is factor * p + q; the largest one is about half of what the pixels allow.
            static const int divisors[] = {2, -2, 3, 601, 10, INT_MIN};
            const double most = 65535.0 * std::abs(static_cast<double>(factor));
            const int magnitude = static_cast<int>(std::min(most / 2, std::exp2(uniform(g, 0, 300) / 10.0)));
            const int divisor = round < 6 ? divisors[round] : std::max(1, magnitude) * (round % 2 == 0 ? 1 : -1);
            u16 src[2 * n];
            int weights[2] = {1, factor};  // turned: the first pixel meets the factor
            for (int x = 0; x < n; ++x) {
                const double tie =
                    std::min(65535.0, most / std::abs(static_cast<double>(divisor))) * uniform(g, 0, 1000) / 1000;
                const auto half =
                    static_cast<long long>((2 * std::floor(tie) + 1) * std::abs(static_cast<double>(divisor)) / 2) +
                    x % 5 - 2;
                const long long p =
                    std::min<long long>(65535, std::max<long long>(0, half / std::abs(static_cast<long long>(factor))));
                const long long q = factor < 0 ? 0 : half - p * factor;
                src[2 * x] = static_cast<u16>(p);
                src[2 * x + 1] = static_cast<u16>(std::min<long long>(65535, std::max<long long>(0, q)));
            }
            const Kernel<int> k = {2, 1, 0, 0, {weights[0], weights[1]}};
            at_every_level([&] {
                u16 dst[2 * n];
                ASSERT_TRUE(
                    W::Filter_16u_C1R(src + 1, 4 * n, dst, 4 * n, 2 * n - 1, 1, k.weights.data(), 2, 1, 0, 0, divisor));
                for (int x = 0; x < 2 * n - 1; ++x) {
                    const Source<u16> s = [&](int i, int) { return src[1 + i]; };
                    ASSERT_EQ(dst[x], expected<u16>(s, k, divisor, x, 0)) << factor << " / " << divisor << " at " << x;
                }
            });
        }
    }
}

// Every pixel of 16 bits, under divisors with ties.
TEST(Convolution, EveryPixel)
{
    std::vector<short> src(65536), dst(65536);
    for (int i = 0; i < 65536; ++i) src[static_cast<std::size_t>(i)] = static_cast<short>(i);
    for (const auto& c : {std::make_pair(1, 1), {1, 2}, {1, -2}, {-1, 6}, {3, 2}, {3, 10}, {8, -16}, {INT_MIN, 32768},
                          {INT_MIN, INT_MIN}}) {
        std::vector<short> want;
        for (const short pixel : src)
            want.push_back(expected_scaled<short>(static_cast<Quad>(c.first) * pixel, c.second, 0));
        at_every_level([&] {
            ASSERT_TRUE(W::Filter_16s_C1R(src.data(), 512, dst.data(), 512, 256, 256, &c.first, 1, 1, 0, 0, c.second));
            ASSERT_EQ(dst, want) << c.first << " / " << c.second;
        });
    }
}

// As many of the largest products as there can be.
TEST(Convolution, LargestSums)
{
    const std::vector<u16> src(257 * 256, 65535);
    for (const int weight : {INT_MIN, INT_MAX, 32767, 1}) {
        Kernel<int> k = {255, 255, 3, 250, std::vector<int>(255 * 255, weight)};
        const Source<u16> s = [&](int, int) { return u16{65535}; };
        for (const int divisor : {INT_MIN, INT_MAX, -65025, 65025, 1}) {
            const u16 want = expected<u16>(s, k, divisor, 0, 0);
            at_every_level([&] {
                u16 dst[6] = {};
                const u16* const first = src.data() + 257 * k.above() + k.left();
                ASSERT_TRUE(W::Filter_16u_C1R(first, 514, dst, 6, 3, 2, k.weights.data(), 255, 255, k.anchorX,
                                              k.anchorY, divisor));
                EXPECT_THAT(dst, testing::Each(want)) << weight << " by " << divisor;
            });
        }
    }
}

// --- Floats ---------------------------------------------------------------------------------------

TEST(Convolution, Floats)
{
    std::mt19937 g = make_generator("floats");
    for_each_float_filter([&](const auto& f) {
        for (int number = 0; number < (options().brief ? 15 : 280) && !testing::Test::HasFatalFailure(); ++number) {
            const auto& side = kSides[number % 14];
            const auto kind = static_cast<Fill>(number % 5 == 4 ? 1 : number % 4);
            const bool sparse = uniform(g, 0, 1) == 0;
            const Kernel<float> k = kernel_of<float>(side.first, side.second, g, [&](int, int) {
                if (sparse && uniform(g, 0, 2) == 0) return uniform(g, 0, 1) == 0 ? 0.0f : -0.0f;
                return number % 3 == 0 ? static_cast<float>(normal(g, 1)) : random_value<float>(g, kind);
            });
            check_filter(f, random_region(g, number), k, 0, g);
        }
    });
}

// What only the order of the sum, the taps that are left out and the sign of a zero show.
TEST(Convolution, OrderAndZeros)
{
    const float nan = NAN, big = 0x1p60f;
    struct {
        float src[3], kernel[3];
        std::uint32_t want;
    } const cases[] = {
        {{big, 1, -big}, {1, 1, 1}, bits_of(0.0f)},
        {{big, -big, 1}, {1, 1, 1}, bits_of(1.0f)},
        {{1, big, -big}, {1, 1, 1}, bits_of(0.0f)},
        {{nan, 1, 2}, {1, 10, 0.0f}, bits_of(12.0f)},
        {{1, 2, nan}, {-0.0f, 10, 1}, bits_of(21.0f)},
        {{1, INFINITY, 2}, {3, 0.0f, 1}, bits_of(7.0f)},
        {{1, nan, 2}, {1, 1, 1}, 0xFFFFFFFFu},
        {{INFINITY, 1, -INFINITY}, {1, 1, 1}, 0xFFFFFFFFu},
        {{1, 2, 3}, {1, nan, 1}, 0xFFFFFFFFu},
        {{nan, nan, nan}, {0.0f, -0.0f, 0.0f}, 0},
        {{-1, -1, -1}, {-0.0f, -0.0f, -0.0f}, 0},
        {{-0.0f, -0.0f, -0.0f}, {1, 1, 1}, 0x80000000u},
        {{0.0f, -0.0f, -0.0f}, {1, 1, 1}, 0},
        {{0.0f, 5, 5}, {0.0f, 0.0f, -2}, 0x80000000u},
        {{0x1p-149f, 1, 1}, {0.0f, 0.0f, 0.5f}, 0},
        {{0x1p-149f, 1, 1}, {0.0f, 0.0f, 0.75f}, 1},
        {{0x1.fffffep127f, 0x1.fffffep127f, 0x1.fffffep127f}, {1, -1, 1}, bits_of(0x1.fffffep127f)},
        {{0x1.fffffep127f, 0x1.fffffep127f, 0}, {0, 1, 1}, bits_of(static_cast<float>(INFINITY))},
    };
    for (const auto& c : cases) {
        for (const bool upright : {false, true}) {
            constexpr int n = 40;  // as many pixels as vectors hold, all with this neighbourhood
            std::vector<float> src;
            for (int j = 0; j < 3; ++j) {
                for (int i = 0; i < n; ++i) src.push_back(c.src[upright ? j : i % 3]);
            }
            at_every_level([&] {
                float dst[n];
                const int w = upright ? 1 : 3, h = upright ? 3 : 1, pixels = upright ? n : 1;
                const float* const first = upright ? src.data() + n : src.data() + 1;
                ASSERT_TRUE(W::Filter_32f_C1R(first, 4 * n, dst, 4 * n, pixels, 1, c.kernel, w, h, w / 2, h / 2));
                for (int x = 0; x < pixels; ++x)
                    ASSERT_EQ(bits_of(dst[x]), c.want) << &c - cases << (upright ? " upright" : "");
            });
        }
    }
}

// --- What the header promises besides -------------------------------------------------------------

// One pixel of 1 gives the kernel as it stands in memory, whatever its anchor.
template <class Filter>
void check_delta(const Filter& f)
{
    using From = typename Filter::From;
    using To = typename Filter::To;
    using Weight = typename Filter::Weight;
    std::mt19937 g = make_generator("delta");
    for (const std::pair<int, int>& side : {std::make_pair(1, 1), {1, 5}, {5, 1}, {2, 3}, {4, 4}}) {
        Kernel<Weight> k = kernel_of<Weight>(side.first, side.second, g,
                                             [&](int i, int j) { return static_cast<Weight>(1 + i + 5 * j); });
        const int w = k.width, h = k.height, wide = 3 * w - 2, high = 3 * h - 2, c = f.channels;
        std::vector<From> src(static_cast<std::size_t>(wide * high * c));
        const int x1 = wide / 2, y1 = high / 2;
        for (int i = 0; i < c; ++i) src[static_cast<std::size_t>((y1 * wide + x1) * c + i)] = 1;
        for (k.anchorY = 0; k.anchorY < h; ++k.anchorY) {
            for (k.anchorX = 0; k.anchorX < w; ++k.anchorX) {
                std::vector<To> dst(static_cast<std::size_t>(w * h * c));
                // The region where the kernel appears begins at the pixel, less the anchor.
                const From* const first = src.data() + ((y1 - k.anchorY) * wide + x1 - k.anchorX) * c;
                at_every_level([&] {
                    ASSERT_TRUE(f.call(first, wide * c * static_cast<int>(sizeof(From)), dst.data(),
                                       w * c * static_cast<int>(sizeof(To)), w, h, k, 1));
                    for (std::size_t i = 0; i < dst.size(); ++i) {
                        ASSERT_EQ(dst[i], static_cast<To>(k.weights[i / static_cast<std::size_t>(c)]))
                            << f.name << " " << w << " x " << h << " at " << i;
                    }
                });
            }
        }
    }
}
TEST(Convolution, DeltaGivesTheKernel)
{
    for_each_filter([](const auto& f) { check_delta(f); });
}

// The frame begins where memory does and ends where it ends, above and below as well.
TEST(Convolution, FrameBetweenGuards)
{
    std::mt19937 g = make_generator("guards");
    for_each_filter([&](const auto& f) {
        using From = typename std::decay_t<decltype(f)>::From;
        using To = typename std::decay_t<decltype(f)>::To;
        using Weight = typename std::decay_t<decltype(f)>::Weight;
        for (int number = 0; number < 40; ++number) {
            const bool product = number % 2 == 0;
            const Kernel<Weight> k = kernel_of<Weight>(uniform(g, 1, 17), uniform(g, 1, 40), g, [&](int i, int j) {
                return static_cast<Weight>(product ? (i + 1) * (number % 3 == 0 ? 1 : 1000) : uniform(g, 0, 3 + j));
            });
            const int width = uniform(g, 1, 70), height = uniform(g, 1, 5);
            const int row = (width + k.width - 1) * f.channels * static_cast<int>(sizeof(From)),
                      rows = height + k.height - 1;
            const GuardedBlock src(static_cast<std::size_t>(row * rows), number % 4 < 2);
            const auto* const first =
                reinterpret_cast<const From*>(src.template as<>() + k.above() * row) + k.left() * f.channels;
            std::vector<To> dst(static_cast<std::size_t>(width * height * f.channels));
            const int dst_row = width * f.channels * static_cast<int>(sizeof(To));
            at_every_level([&] { ASSERT_TRUE(f.call(first, row, dst.data(), dst_row, width, height, k, 7)); });
        }
    });
}

TEST(Convolution, OrderOfChecks)
{
    for_each_filter([](const auto& f) {
        using From = typename std::decay_t<decltype(f)>::From;
        using To = typename std::decay_t<decltype(f)>::To;
        using Weight = typename std::decay_t<decltype(f)>::Weight;
        const From src[4 * 3 * 3] = {};
        To dst[4] = {7, 7, 7, 7};
        const Weight k[9] = {1, 1, 1, 1, 1, 1, 1, 1, 1};
        const From* const s = src + 4 * 4;
        const bool divides = std::is_same<Weight, int>::value;  // by 0: the last check
        at_every_level([&] {
            SCOPED_TRACE(f.name);
            const AllocationFailure none_left(0);
            EXPECT_EQ(f.status(nullptr, 0, dst, 4, {0, 1}, k, 0, 3, 1, 1), orv::StatusNullPointer);
            EXPECT_EQ(f.status(s, 0, nullptr, 4, {0, 1}, k, 0, 3, 1, 1), orv::StatusNullPointer);
            EXPECT_EQ(f.status(s, 0, dst, 4, {0, 1}, nullptr, 0, 3, 1, 1), orv::StatusNullPointer);
            for (const int bad : {0, -1, INT_MIN}) {
                EXPECT_EQ(f.status(s, 0, dst, 4, {bad, 1}, k, 0, 3, 1, 1), orv::StatusBadSize);
                EXPECT_EQ(f.status(s, 0, dst, 4, {1, bad}, k, 0, 3, 1, 1), orv::StatusBadSize);
                EXPECT_EQ(f.status(s, bad, dst, 4, {1, 1}, k, 0, 3, 1, 1), orv::StatusBadStep);
                EXPECT_EQ(f.status(s, 12, dst, bad, {1, 1}, k, 0, 3, 1, 1), orv::StatusBadStep);
            }
            for (const int bad : {0, -1, 256, INT_MAX, INT_MIN}) {
                EXPECT_EQ(f.status(s, 12, dst, 4, {1, 1}, k, bad, 3, 0, 0), orv::StatusBadMaskSize);
                EXPECT_EQ(f.status(s, 12, dst, 4, {1, 1}, k, 3, bad, 0, 0), orv::StatusBadMaskSize);
            }
            for (const int bad : {-1, 3, INT_MAX, INT_MIN}) {
                EXPECT_EQ(f.status(s, 12, dst, 4, {1, 1}, k, 3, 3, bad, 0), orv::StatusBadMaskSize);
                EXPECT_EQ(f.status(s, 12, dst, 4, {1, 1}, k, 3, 3, 0, bad), orv::StatusBadMaskSize);
            }
            EXPECT_EQ(f.status(s, 12, dst, 4, {1, 1}, k, 3, 3, 1, 1),
                      divides ? orv::StatusDivideByZeroError : orv::StatusNoMemory);
            EXPECT_THAT(dst, testing::Each(7));
        });
    });
}

// Whatever the weights ask for is one block of the library's own memory.
TEST(Convolution, WithoutMemory)
{
    std::mt19937 g = make_generator("memory");
    for_each_filter([&](const auto& f) {
        using From = typename std::decay_t<decltype(f)>::From;
        using To = typename std::decay_t<decltype(f)>::To;
        using Weight = typename std::decay_t<decltype(f)>::Weight;
        for (int kind = 0; kind < 11; ++kind) {
            const Kernel<int> like = random_integer_kernel(kind, 5, 4, g);
            const Kernel<Weight> k =
                kernel_of<Weight>(5, 4, g, [&](int i, int j) { return static_cast<Weight>(like.at(i, j)); });
            const std::vector<From> src(40 * 12 * 4, From{5});
            const std::vector<To> before(32 * 4 * 4, To{7});
            std::vector<To> dst = before;
            const int step = 40 * 4 * static_cast<int>(sizeof(From)), dst_step = 32 * 4 * static_cast<int>(sizeof(To));
            const auto call = [&] { return f.call(&src[40 * 4 * 4 + 20], step, dst.data(), dst_step, 32, 4, k, 3); };
            at_every_level([&] {
                dst = before;
                {
                    const AllocationFailure none_left(0);
                    EXPECT_FALSE(call()) << f.name;
                }
                EXPECT_EQ(dst, before) << f.name;
                const AllocationFailure one_left(1);
                EXPECT_TRUE(call()) << f.name;
            });
        }
    });
}

// Hosts that round upwards, flush denormals, compute in fewer bits or have unmasked exceptions get the same pixels.
TEST(Convolution, HostsFloatControl)
{
    std::mt19937 g = make_generator("control");
    struct Call {
        const char* name;
        std::function<bool()> call;
        bool expected;
    };
    for_each_filter([&](const auto& f) {
        using From = typename std::decay_t<decltype(f)>::From;
        using To = typename std::decay_t<decltype(f)>::To;
        using Weight = typename std::decay_t<decltype(f)>::Weight;
        std::vector<From> src(32 * 12);
        std::vector<To> dst;
        std::vector<Call> calls;
        std::vector<Kernel<Weight>> kernels;
        for (From& x : src) x = random_value<From>(g, uniform(g, 0, 1) == 0 ? Fill::special : Fill::uniform);
        for (int kind = 0; kind < 11; ++kind) {
            const Kernel<int> like = random_integer_kernel(kind, 4, 3, g);
            kernels.push_back(kernel_of<Weight>(4, 3, g, [&](int i, int j) {
                return std::is_same<Weight, int>::value ? static_cast<Weight>(like.at(i, j))
                                                        : random_value<Weight>(g, Fill::special);
            }));
        }
        for (const Kernel<Weight>& k : kernels) {
            calls.push_back({f.name, [&] {
                                 return f.call(&src[32 * 3 + 12], 32 * static_cast<int>(sizeof(From)), dst.data(),
                                               12 * static_cast<int>(sizeof(To)), 12 / f.channels, 4, k, 6);
                             }, true});
        }
        using Word = std::conditional_t<sizeof(To) == 4, std::uint32_t, To>;
        std::vector<Word> words;
        for (Call& c : calls) {
            const auto inner = c.call;
            c.call = [&, inner] {
                dst.resize(64);
                std::memcpy(static_cast<void*>(dst.data()), words.data(), 64 * sizeof(To));
                const bool done = inner();
                std::memcpy(words.data(), dst.data(), 64 * sizeof(To));
                return done;
            };
        }
        expect_same_for_every_host(calls, words);
    });
}

// --- The counter ----------------------------------------------------------------------------------

TEST(CpuClocks, NeverFallAndCount)
{
    at_every_level([] {
        for (int i = 0; i < 1000; ++i) {
            const unsigned long long first = W::GetCpuClocks();
            ASSERT_LE(first, W::GetCpuClocks());
        }
        const auto clocks_of = [](int rounds) {
            unsigned long long least = ~0ull;
            for (int i = 0; i < 20; ++i) {
                const unsigned long long start = W::GetCpuClocks();
                volatile int sum = 0;
                for (int k = 0; k < rounds; ++k) sum = sum + k;
                least = std::min(least, W::GetCpuClocks() - start);
            }
            return least;
        };
        EXPECT_GT(clocks_of(100000), clocks_of(10000));
    });
}

}  // namespace
}  // namespace test
