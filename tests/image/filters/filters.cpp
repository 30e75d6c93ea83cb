// Fixed-kernel filters against their definitions: integers exactly, floats with every rounding of the
// header done by hand.
//
// Families: filters_float, filters_integer.
#include <climits>
#include <cmath>
#include <functional>
#include <set>
#include <vector>

#include "ImageProcessingWrapper.h"
#include "gmock/gmock.h"
#include "image/filters/filters.h"
#include "support/allocations.h"
#include "support/double_steps.h"
#include "support/image.h"
#include "support/host_control.h"
#include "support/levels.h"
#include "support/random.h"

namespace test {
namespace {

using W = ImageProcessingWrapper;
using u8 = unsigned char;
using u16 = unsigned short;
using orv::Size;
using orv::Status;

// --- Oracle ---------------------------------------------------------------------------------------

template <class T>
using Source = std::function<T(int x, int y)>;  // one channel

float single_sum(double a, double b) { return single(plus(a, b)); }

double box_total(const Source<float>& s, int r, int x, int y)
{
    double total = 0;
    for (int j = -r; j <= r; ++j) {
        double row = s(x - r, y + j);
        for (int i = 1 - r; i <= r; ++i) row = plus(row, s(x + i, y + j));
        total = j == -r ? single(row) : plus(total, single(row));
    }
    return total;
}
template <int r> float lowpass(const Source<float>& s, int x, int y)
{
    return single(times(box_total(s, r, x, y), r == 1 ? 0.1111111f : 0.04f));
}
template <int r> float hipass(const Source<float>& s, int x, int y)
{
    return single(plus(times(r == 1 ? 9 : 25, s(x, y)), -box_total(s, r, x, y)));
}
float laplace5(const Source<float>& s, int x, int y)
{
    double p[5], q[5], both[5];
    for (int j = -2; j <= 2; ++j) {
        const double outer = plus(s(x - 2, y + j), s(x + 2, y + j)), centre = s(x, y + j);
        const double inner = times(3, plus(s(x - 1, y + j), s(x + 1, y + j)));
        const double first = plus(plus(outer, inner), times(4, centre)),
                     second = plus(times(6, centre), times(-3, outer));
        p[j + 2] = single(first);
        q[j + 2] = single(second);
        both[j + 2] = single(plus(first, second));
    }
    const double sum = plus(plus(q[1], -p[0]), times(2, both[2]));
    return single(plus(plus(sum, q[3]), -p[4]));
}
float cross3(const Source<float>& s, int x, int y)
{
    const auto d = [&](int row) { return single_sum(s(x - 1, row), -s(x + 1, row)); };
    return single_sum(d(y + 1), -d(y - 1));
}
float derivative5(float m2, float m1, float p1, float p2)
{
    const float inner = single_sum(m1, -p1);
    return single_sum(single_sum(m2, -p2), single_sum(inner, inner));
}
float cross5(const Source<float>& s, int x, int y)
{
    const auto column = [&](int c) { return derivative5(s(c, y + 2), s(c, y + 1), s(c, y - 1), s(c, y - 2)); };
    return derivative5(column(x - 2), column(x - 1), column(x + 1), column(x + 2));
}

template <class T, int r> T mean(const Source<T>& s, int x, int y)
{
    long long sum = 0, n = (2 * r + 1) * (2 * r + 1);
    for (int j = -r; j <= r; ++j) {
        for (int i = -r; i <= r; ++i) sum += s(x + i, y + j);
    }
    return static_cast<T>((2 * sum + n) / (2 * n));
}
const int kGauss3[9] = {1, 2, 1, 2, 4, 2, 1, 2, 1};
const int kGauss5[25] = {2, 7, 12, 7, 2, 7, 31, 52, 31, 7, 12, 52, 127, 52, 12, 7, 31, 52, 31, 7, 2, 7, 12, 7, 2};
template <int r> u16 gauss(const Source<u16>& s, int x, int y)
{
    long long sum = 0;
    const int* weight = r == 1 ? kGauss3 : kGauss5;
    for (int j = -r; j <= r; ++j) {
        for (int i = -r; i <= r; ++i) sum += *weight++ * s(x + i, y + j);
    }
    if (r == 2) return static_cast<u16>((sum + 286) * 7521834 >> 32);
    const long long whole = sum / 16, twice = 2 * (sum % 16);
    return static_cast<u16>(whole + (twice > 16 || (twice == 16 && whole % 2 != 0) ? 1 : 0));
}

// --- The filters ----------------------------------------------------------------------------------

template <class T>
struct FilterRow {
    const char* name;
    bool (*method)(const T*, int, T*, int, int, int);
    T (*expected)(const Source<T>&, int, int);
    int radius, channels;
};
const FilterRow<float> kFloatFilters[] = {
    {"Lowpass3x3_32f_C1R", W::FilterLowpass3x3_32f_C1R, lowpass<1>, 1, 1},
    {"Lowpass5x5_32f_C1R", W::FilterLowpass5x5_32f_C1R, lowpass<2>, 2, 1},
    {"Lowpass3x3_32f_C3R", W::FilterLowpass3x3_32f_C3R, lowpass<1>, 1, 3},
    {"Lowpass5x5_32f_C3R", W::FilterLowpass5x5_32f_C3R, lowpass<2>, 2, 3},
    {"Hipass3x3_32f_C1R", W::FilterHipass3x3_32f_C1R, hipass<1>, 1, 1},
    {"Hipass5x5_32f_C1R", W::FilterHipass5x5_32f_C1R, hipass<2>, 2, 1},
    {"Laplace3x3_32f_C1R", W::FilterLaplace3x3_32f_C1R, hipass<1>, 1, 1},
    {"Laplace5x5_32f_C1R", W::FilterLaplace5x5_32f_C1R, laplace5, 2, 1},
    {"SobelCross3x3_32f_C1R", W::FilterSobelCross3x3_32f_C1R, cross3, 1, 1},
    {"SobelCross5x5_32f_C1R", W::FilterSobelCross5x5_32f_C1R, cross5, 2, 1},
};
const FilterRow<u8> kByteFilters[] = {
    {"Lowpass3x3_8u_C1R", W::FilterLowpass3x3_8u_C1R, mean<u8, 1>, 1, 1},
    {"Lowpass5x5_8u_C1R", W::FilterLowpass5x5_8u_C1R, mean<u8, 2>, 2, 1},
    {"Lowpass3x3_8u_C3R", W::FilterLowpass3x3_8u_C3R, mean<u8, 1>, 1, 3},
    {"Lowpass5x5_8u_C3R", W::FilterLowpass5x5_8u_C3R, mean<u8, 2>, 2, 3},
};
const FilterRow<u16> kWordFilters[] = {
    {"Lowpass3x3_16u_C1R", W::FilterLowpass3x3_16u_C1R, mean<u16, 1>, 1, 1},
    {"Lowpass5x5_16u_C1R", W::FilterLowpass5x5_16u_C1R, mean<u16, 2>, 2, 1},
    {"Gauss3x3_16u_C1R", W::FilterGauss3x3_16u_C1R, gauss<1>, 1, 1},
    {"Gauss5x5_16u_C1R", W::FilterGauss5x5_16u_C1R, gauss<2>, 2, 1},
};

template <class Check>
void for_each_filter(Check check)
{
    for (const auto& f : kFloatFilters) check(f);
    for (const auto& f : kByteFilters) check(f);
    for (const auto& f : kWordFilters) check(f);
}

// The bits of a result; for all NaNs, those that the library writes.
template <class T> T raw(T value) { return value; }
std::uint32_t raw(float value)
{
    std::uint32_t bits;
    std::memcpy(&bits, &value, 4);
    return bits;
}
template <class T> T canonical(T value) { return value; }
std::uint32_t canonical(float value) { return std::isnan(value) ? 0xFFFFFFFFu : raw(value); }
template <class T> T bits_at(const unsigned char* p) { T v; std::memcpy(&v, p, sizeof(T)); return v; }

// A region in the middle of an image that is just the frame larger.
template <class T>
class Framed {
public:
    Framed(Size roi, int radius, int channels, Placement placement, std::mt19937& g)
        : image_((roi.width + 2 * radius) * channels * static_cast<int>(sizeof(T)), roi.height + 2 * radius, placement,
                 g),
          radius_(radius),
          channels_(channels)
    {
    }
    Image& image() { return image_; }
    int step() const { return image_.step(); }
    const T* region() { return reinterpret_cast<const T*>(image_.row(radius_)) + radius_ * channels_; }
    Source<T> channel(int c)
    {
        return [this, c](int x, int y) {
            return bits_at<T>(image_.row(y + radius_) + ((x + radius_) * channels_ + c) * static_cast<int>(sizeof(T)));
        };
    }

private:
    Image image_;
    int radius_, channels_;
};

// Floats are filled with whole numbers half of the time, as images from a camera would be: those take a way
// of their own until something else turns up, here perhaps in one place.
template <class T>
void fill_source(Framed<T>& src, Fill fill, std::mt19937& g)
{
    Image& image = src.image();
    image.template fill<T>(g, fill);
    if constexpr (std::is_same<T, float>::value) {
        if (uniform(g, 0, 1) == 0) return;
        const int most = uniform(g, 0, 1) == 0 ? 131072 : 255;
        const int n = image.row_bytes() / 4;
        const auto set = [&](int y, int i, float value) { std::memcpy(image.row(y) + 4 * i, &value, 4); };
        for (int y = 0; y < image.height(); ++y) {
            for (int i = 0; i < n; ++i) {
                set(y, i,
                    static_cast<float>(uniform(g, 0, 3) == 0 ? (uniform(g, 0, 1) * 2 - 1) * most
                                                             : uniform(g, -most, most)));
            }
        }
        const float odd_ones[] = {0.5f,  -0.0f,     131072.5f, 131073,    -131074, 16777216,
                                  1e20f, 0x1p-149f, INFINITY,  -INFINITY, NAN};
        if (uniform(g, 0, 2) != 0)
            set(uniform(g, 0, image.height() - 1), uniform(g, 0, n - 1), odd_ones[uniform(g, 0, 10)]);
    }
}

Placement random_placement(int row_bytes, int rows, std::size_t element, std::mt19937& g)
{
    Placement where = {};
    where.fenced = row_bytes <= FencedRows::kRowBytes && rows <= FencedRows::kRows && uniform(g, 0, 2) != 0;
    where.flush_right = uniform(g, 0, 1) != 0;
    where.step = row_bytes + uniform(g, 0, 1) * uniform(g, 0, 70);
    where.offset = uniform(g, 0, 7) * static_cast<int>(element);
    return where;
}

// Everything of the destination: the expected pixels and, around them, what was there before.
template <class T>
void expect_result(Image& dst, const std::vector<unsigned char>& before, const std::vector<T>& want,
                   const std::string& what)
{
    for (int y = 0; y < dst.height(); ++y) {
        const int n = dst.row_bytes() / static_cast<int>(sizeof(T));
        for (int i = 0; i < n; ++i) {
            const T got = bits_at<T>(dst.row(y) + i * static_cast<int>(sizeof(T)));
            const T wanted = want[static_cast<std::size_t>(y * n + i)];
            ASSERT_EQ(raw(got), canonical(wanted))
                << what << ": row " << y << ", element " << i << ", " << +got << " instead of " << +wanted;
        }
    }
    const std::vector<unsigned char> after = dst.bytes();
    dst.restore(before);
    for (int y = 0; y < dst.height(); ++y) std::memset(dst.row(y), 0, static_cast<std::size_t>(dst.row_bytes()));
    const std::vector<unsigned char> surroundings = dst.bytes();
    dst.restore(after);
    for (int y = 0; y < dst.height(); ++y) std::memset(dst.row(y), 0, static_cast<std::size_t>(dst.row_bytes()));
    ASSERT_EQ(dst.bytes(), surroundings) << what << ": wrote outside the region";
}

template <class T>
void check_filter(const FilterRow<T>& f, Size roi, Fill fill, std::mt19937& g)
{
    const std::string what = std::string(f.name) + " " + std::to_string(roi.width) + " x " + std::to_string(roi.height);
    const int row_bytes = roi.width * f.channels * static_cast<int>(sizeof(T));
    const int frame_bytes = 2 * f.radius * f.channels * static_cast<int>(sizeof(T));
    Framed<T> src(roi, f.radius, f.channels,
                  random_placement(row_bytes + frame_bytes, roi.height + 2 * f.radius, sizeof(T), g), g);
    fill_source(src, fill, g);
    Image dst(row_bytes, roi.height, random_placement(row_bytes, roi.height, sizeof(T), g), g);

    std::vector<T> want(static_cast<std::size_t>(roi.width * roi.height * f.channels));
    for (int c = 0; c < f.channels; ++c) {
        const Source<T> s = src.channel(c);
        for (int y = 0; y < roi.height; ++y) {
            for (int x = 0; x < roi.width; ++x) {
                want[static_cast<std::size_t>((y * roi.width + x) * f.channels + c)] = f.expected(s, x, y);
            }
        }
    }
    const auto source_before = src.image().bytes();
    const auto before = dst.bytes();
    at_every_level([&] {
        dst.restore(before);
        ASSERT_TRUE(f.method(src.region(), src.step(), dst.pixels<T>(), dst.step(), roi.width, roi.height)) << what;
        expect_result(dst, before, want, what);
        ASSERT_EQ(src.image().bytes(), source_before);
    });
}

TEST(Filters, Definition)
{
    std::mt19937 g = make_generator("filters");
    for_each_filter([&](const auto& f) {
        std::vector<Size> sizes;
        for (int width = 1; width <= 70; ++width) sizes.push_back({width, uniform(g, 1, 6)});
        for (int width : {86, 255, 256, 257, 341, 343, 512, 1025, 2049}) sizes.push_back({width, uniform(g, 1, 4)});
        sizes.push_back({3, 60});
        for (std::size_t i = options().brief ? 1 : 0; i < sizes.size(); i += options().brief ? 9 : 1) {
            check_filter(f, sizes[i], static_cast<Fill>(uniform(g, 0, static_cast<int>(Fill::kinds) - 1)), g);
            if (testing::Test::HasFatalFailure()) return;
        }
    });
}

// Integer sums around every place where the quotient changes, for the neighbourhood of one pixel.
TEST(Filters, EverySumOfThePlaceWhereQuotientsChange)
{
    const int width = 256;
    for (const auto& f : kWordFilters) {
        const int side = 2 * f.radius + 1, frame = 2 * f.radius;
        const std::string name = f.name;
        const bool is_mean = name[0] == 'L';
        const int total = is_mean ? side * side : f.radius == 1 ? 16 : 571;
        for (int base = 0; base < 65535; base += options().brief ? 997 : 97) {
            // One constant, and pixels under a weight of 1 or 2 that raise the sum bit by bit.
            std::vector<u16> src(static_cast<std::size_t>((width + frame) * side), static_cast<u16>(base));
            const auto row = [&](int j) { return src.data() + j * (width + frame); };
            for (int i = 0; i < width + frame; ++i)
                row(0)[i] = static_cast<u16>(std::min(65535, base + i * 7 % (total + 3)));
            std::vector<u16> want(width), got(width);
            const Source<u16> s = [&](int x, int y) { return row(y + f.radius)[x + f.radius]; };
            for (int x = 0; x < width; ++x) want[static_cast<std::size_t>(x)] = f.expected(s, x, 0);
            const int step = (width + frame) * 2;
            at_every_level([&] {
                ASSERT_TRUE(f.method(row(f.radius) + f.radius, step, got.data(), 2 * width, width, 1));
                ASSERT_EQ(got, want) << name << " around " << base;
            });
        }
    }
}

// --- What the header promises besides -------------------------------------------------------------

// A single 1 gives the kernel.
TEST(Filters, Kernels)
{
    const float ninth = 0.1111111f, part = 0.04f;
    const std::vector<std::vector<float>> kernels = {
        std::vector<float>(9, ninth),
        std::vector<float>(25, part),
        std::vector<float>(9, ninth),
        std::vector<float>(25, part),
        {-1, -1, -1, -1, 8, -1, -1, -1, -1},
        {-1, -1, -1, -1, -1, -1, -1, -1, -1, -1, -1, -1, 24, -1, -1, -1, -1, -1, -1, -1, -1, -1, -1, -1, -1},
        {-1, -1, -1, -1, 8, -1, -1, -1, -1},
        {-1, -3, -4, -3, -1, -3, 0, 6, 0, -3, -4, 6, 20, 6, -4, -3, 0, 6, 0, -3, -1, -3, -4, -3, -1},
        {-1, 0, 1, 0, 0, 0, 1, 0, -1},
        {-1, -2, 0, 2, 1, -2, -4, 0, 4, 2, 0, 0, 0, 0, 0, 2, 4, 0, -4, -2, 1, 2, 0, -2, -1}};
    for (std::size_t k = 0; k < kernels.size(); ++k) {
        const auto& f = kFloatFilters[k];
        const int side = 2 * f.radius + 1, extent = side + 2 * f.radius, c = f.channels;
        std::vector<float> src(static_cast<std::size_t>(extent * extent * c)),
            dst(static_cast<std::size_t>(side * side * c));
        for (int i = 0; i < c; ++i) src[static_cast<std::size_t>((2 * f.radius * extent + 2 * f.radius) * c + i)] = 1;
        at_every_level([&] {
            ASSERT_TRUE(f.method(&src[static_cast<std::size_t>((f.radius * extent + f.radius) * c)], extent * c * 4,
                                 dst.data(), side * c * 4, side, side));
            for (std::size_t i = 0; i < dst.size(); ++i) {
                ASSERT_EQ(dst[i], kernels[k][i / static_cast<std::size_t>(c)]) << f.name << " " << i;
            }
        });
    }
}

// Where pixels outgrow single precision together, but not with their weights.
TEST(Filters, LaplaceNextToOverflow)
{
    const float row[5] = {2.5e38f, 0, 1e38f, 0, 2.5e38f};
    for (const int width : {1, 9}) {
        const int stride = width + 4;
        std::vector<float> src(static_cast<std::size_t>(5 * stride));
        float* const middle = src.data() + 2 * stride;
        for (int i = 0; i < stride; ++i) middle[i] = row[i % 5];
        at_every_level([&] {
            std::vector<float> dst(static_cast<std::size_t>(width), 7.f);
            ASSERT_TRUE(W::FilterLaplace5x5_32f_C1R(middle + 2, stride * 4, dst.data(), width * 4, width, 1));
            EXPECT_NEAR(dst[0] / 1e38f, 0, 1e-5f);
        });
    }
}

TEST(Filters, TiesOfGauss3x3)
{
    for (const auto& row : {std::pair<int, int>{24, 2}, {40, 2}, {8, 0}, {56, 4}, {25, 2}, {39, 2}, {41, 3}}) {
        u16 src[9] = {};
        src[4] = static_cast<u16>(row.first / 4);
        src[0] = static_cast<u16>(row.first % 4);
        at_every_level([&] {
            u16 dst = 9999;
            ASSERT_TRUE(W::FilterGauss3x3_16u_C1R(src + 4, 6, &dst, 2, 1, 1));
            EXPECT_EQ(dst, row.second) << row.first;
        });
    }
}

// --- Border forms ---------------------------------------------------------------------------------

using Border = bool (*)(const float*, int, float*, int, int, int, unsigned char*);
using BorderConst = bool (*)(const float*, int, float*, int, int, int, float, unsigned char*);

void check_border(int radius, Size roi, std::mt19937& g)
{
    const Border replicate = radius == 1 ? W::FilterLowpassBorder3x3_32f_C1R : W::FilterLowpassBorder5x5_32f_C1R;
    const BorderConst constant =
        radius == 1 ? W::FilterLowpassBorderConst3x3_32f_C1R : W::FilterLowpassBorderConst5x5_32f_C1R;
    const auto query =
        radius == 1 ? W::FilterLowpassGetBufferSize3x3_32f_C1R : W::FilterLowpassGetBufferSize5x5_32f_C1R;
    const auto expected = radius == 1 ? lowpass<1> : lowpass<2>;
    const auto kind = static_cast<Fill>(uniform(g, 0, static_cast<int>(Fill::kinds) - 1));

    Framed<float> src(roi, 0, 1, random_placement(roi.width * 4, roi.height, 4, g), g);
    fill_source(src, kind, g);
    Image dst(roi.width * 4, roi.height, random_placement(roi.width * 4, roi.height, 4, g), g);
    const float value = random_value<float>(g, kind);
    const Source<float> inside = src.channel(0);
    const Source<float> replicated = [&](int x, int y) {
        return inside(std::min(std::max(x, 0), roi.width - 1), std::min(std::max(y, 0), roi.height - 1));
    };
    const Source<float> surrounded = [&](int x, int y) {
        return x < 0 || y < 0 || x >= roi.width || y >= roi.height ? value : inside(x, y);
    };
    std::vector<float> want_replicated, want_surrounded;
    for (int y = 0; y < roi.height; ++y) {
        for (int x = 0; x < roi.width; ++x) {
            want_replicated.push_back(expected(replicated, x, y));
            want_surrounded.push_back(expected(surrounded, x, y));
        }
    }
    const auto before = dst.bytes();
    at_every_level([&] {
        int size = 0;
        ASSERT_TRUE(query(roi.width, roi.height, &size));
        // The buffer is one long row that ends, or starts, where memory does.
        std::vector<unsigned char> plain(static_cast<std::size_t>(size + 64));
        std::unique_ptr<Image> fenced;
        unsigned char* buffer = plain.data() + uniform(g, 0, 63);
        if (size <= FencedRows::kRowBytes) {
            fenced.reset(new Image(size, 1, {true, uniform(g, 0, 1) != 0, 0, 0}, g));
            buffer = fenced->row(0);
        }
        ASSERT_TRUE(
            replicate(src.region(), src.step(), dst.pixels<float>(), dst.step(), roi.width, roi.height, buffer));
        expect_result(dst, before, want_replicated, "replicated");
        ASSERT_TRUE(
            constant(src.region(), src.step(), dst.pixels<float>(), dst.step(), roi.width, roi.height, value, buffer));
        expect_result(dst, before, want_surrounded, "constant");
    });
}

TEST(Filters, BorderForms)
{
    std::mt19937 g = make_generator("borders");
    for (int radius : {1, 2}) {
        for (int width : {1, 2, 3, 4, 5, 7, 8, 9, 16, 17, 23, 40, 255, 256, 257, 258, 300, 513, 769, 1500}) {
            for (int height : {1, 2, 3, 4, 5, 6}) {
                if (options().brief && (width + height) % 5 != 0) continue;
                check_border(radius, {width, height}, g);
                if (testing::Test::HasFatalFailure()) return;
            }
        }
    }
}

// --- Refusals -------------------------------------------------------------------------------------

TEST(Filters, RefusalsWriteNothing)
{
    for_each_filter([&](const auto& f) {
        auto* method = f.method;
        using T = std::decay_t<decltype(f.expected({}, 0, 0))>;
        std::vector<T> image(20 * 20 * 3, T{5}), out(20 * 20 * 3, T{7});
        const std::vector<T> before = out;
        const T* const s = &image[20 * 3 * 2 + 6];
        T* const d = out.data();
        const int step = 20 * 3 * static_cast<int>(sizeof(T));
        at_every_level([&] {
            EXPECT_FALSE(method(nullptr, step, d, step, 4, 4)) << f.name;
            EXPECT_FALSE(method(s, step, nullptr, step, 4, 4));
            for (int bad : {0, -1, INT_MIN}) {
                EXPECT_FALSE(method(s, step, d, step, bad, 4)) << f.name;
                EXPECT_FALSE(method(s, step, d, step, 4, bad));
                EXPECT_FALSE(method(s, bad, d, step, 4, 4));
                EXPECT_FALSE(method(s, step, d, bad, 4, 4));
            }
            EXPECT_EQ(out, before) << f.name;
        });
    });
}

// The first failing check decides: pointers, sizes, steps, mask.
template <class T>
void check_statuses(const orv::Operation<orv::SrcDstMask<T>>& operation)
{
    std::vector<T> image(20 * 20 * 3, T{5}), out(20 * 20 * 3, T{7});
    const std::vector<T> before = out;
    const T* const s = &image[20 * 3 * 2 + 6];
    T* const d = out.data();
    const int step = 20 * 3 * static_cast<int>(sizeof(T));
    at_every_level([&] {
        EXPECT_EQ(operation(nullptr, 0, d, step, {0, 1}, 3), orv::StatusNullPointer);
        EXPECT_EQ(operation(s, 0, nullptr, step, {0, 1}, 3), orv::StatusNullPointer);
        EXPECT_EQ(operation(s, 0, d, step, {0, 1}, 3), orv::StatusBadSize);
        EXPECT_EQ(operation(s, step, d, 0, {1, -1}, 3), orv::StatusBadSize);
        EXPECT_EQ(operation(s, 0, d, step, {1, 1}, 3), orv::StatusBadStep);
        EXPECT_EQ(operation(s, step, d, -4, {1, 1}, 3), orv::StatusBadStep);
        for (int mask : {0, 3, 5, 34, 53, 99, -33, INT_MAX, INT_MIN}) {
            EXPECT_EQ(operation(s, step, d, step, {1, 1}, mask), orv::StatusBadMaskSize);
        }
        EXPECT_EQ(out, before);
    });
}

void check_statuses(const orv::Operation<orv::SrcDstMaskBorder>& operation)
{
    const auto border = orv::FilterBorder::replicate;
    float s[1] = {1}, d[1] = {7};
    char buffer[1];
    at_every_level([&] {
        EXPECT_EQ(operation(nullptr, 0, d, 4, {0, 1}, 3, border, 0, buffer), orv::StatusNullPointer);
        EXPECT_EQ(operation(s, 0, nullptr, 4, {0, 1}, 3, border, 0, buffer), orv::StatusNullPointer);
        EXPECT_EQ(operation(s, 0, d, 4, {0, 1}, 3, border, 0, nullptr), orv::StatusNullPointer);
        EXPECT_EQ(operation(s, 0, d, 4, {0, 1}, 3, border, 0, buffer), orv::StatusBadSize);
        EXPECT_EQ(operation(s, 0, d, 4, {1, 1}, 3, border, 0, buffer), orv::StatusBadStep);
        EXPECT_EQ(operation(s, 4, d, 0, {1, 1}, 3, border, 0, buffer), orv::StatusBadStep);
        EXPECT_EQ(operation(s, 4, d, 4, {1, 1}, 3, border, 0, buffer), orv::StatusBadMaskSize);
        EXPECT_EQ(d[0], 7);
    });
}

void check_statuses(const orv::Operation<orv::BufferSizeOfMask>& operation)
{
    int size = 7;
    at_every_level([&] {
        EXPECT_EQ(operation({0, 1}, 3, nullptr), orv::StatusNullPointer);
        EXPECT_EQ(operation({0, 1}, 3, &size), orv::StatusBadSize);
        EXPECT_EQ(operation({1, -5}, 3, &size), orv::StatusBadSize);
        EXPECT_EQ(operation({1, 1}, 3, &size), orv::StatusBadMaskSize);
        EXPECT_EQ(size, 7);
    });
    ASSERT_EQ(operation({INT_MAX, INT_MAX}, 55, &size), orv::StatusOk);
    EXPECT_GT(size, 0);
}

TEST(Filters, OrderOfChecks)
{
#define KERNEL(name, ...) { SCOPED_TRACE(#name); check_statuses(orv::orv_##name); }
#include "image/filters/filters_float.inc"
#include "image/filters/filters_integer.inc"
#undef KERNEL
}

TEST(Filters, WithoutMemory)
{
    for_each_filter([&](const auto& f) {
        using T = std::decay_t<decltype(f.expected({}, 0, 0))>;
        std::vector<T> image(70 * 9 * 3, T{5}), out(64 * 4 * 3, T{7});
        const std::vector<T> before = out;
        const T* const s = &image[70 * 3 * 2 + 6];
        const int step = 70 * 3 * static_cast<int>(sizeof(T)), outStep = 64 * 3 * static_cast<int>(sizeof(T));
        std::set<bool> results;
        at_every_level([&] {
            out = before;
            bool done = false;
            {
                const AllocationFailure none_left(0);
                done = f.method(s, step, out.data(), outStep, 64, 4);
            }
            results.insert(done);
            if (!done) { EXPECT_EQ(out, before) << f.name; }
            const AllocationFailure enough(-1);
            EXPECT_TRUE(f.method(s, step, out.data(), outStep, 64, 4));
        });
        EXPECT_EQ(results.size(), 1u) << f.name << ": refused at some levels only";
        const std::string name = f.name;
        const bool needs_none = name == "SobelCross3x3_32f_C1R" || name == "Gauss5x5_16u_C1R";
        EXPECT_EQ(*results.begin(), needs_none) << name;
    });
}

// A host that rounds upwards, flushes denormals or computes in fewer bits gets the same pixels, and
// keeps its setting.
TEST(Filters, HostsFloatControl)
{
    std::mt19937 g = make_generator("control");
    for_each_filter([&](const auto& f) {
        SCOPED_TRACE(f.name);
        using T = std::decay_t<decltype(f.expected({}, 0, 0))>;
        std::vector<T> image(40 * 9 * 3);
        for (T& x : image) x = random_value<T>(g, Fill::uniform);
        const int step = 40 * 3 * static_cast<int>(sizeof(T)), outStep = 32 * 3 * static_cast<int>(sizeof(T));
        expect_control_kept<T>(32 * 4 * 3, [&](T* dst) {
            return f.method(&image[40 * 3 * 2 + 6], step, dst, outStep, 32, 4);
        });
    });
}

}  // namespace
}  // namespace test
