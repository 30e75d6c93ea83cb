// Curves through points against exact fractions, and in floats against arithmetic that rounds once per step.
#include <numeric>

#include "image/tables/curves.h"
#include "support/image_tests.h"

namespace test {
namespace {

template <class S, class D>
struct Points {
    std::vector<S> levels;
    std::vector<D> values;
    int count() const { return static_cast<int>(levels.size()); }
};

// The segment by a search from the left.
template <class S>
std::size_t segment(const std::vector<S>& levels, S x)
{
    std::size_t k = 0;
    while (k + 2 < levels.size() && levels[k + 1] <= x) ++k;
    return k;
}

// --- Integers: a fraction, rounded by comparing twice its rest with its denominator ---------------

template <class S, class D>
D exact_value(const Points<S, D>& p, S x)
{
    if (x < p.levels.front()) return p.values.front();
    if (x >= p.levels.back()) return p.values.back();
    const std::size_t k = segment(p.levels, x);
    const long long run = p.levels[k + 1] - p.levels[k],
                    numerator = static_cast<long long>(p.values[k]) * run +
                                static_cast<long long>(x - p.levels[k]) * (p.values[k + 1] - p.values[k]);
    long long whole = numerator / run;
    const long long twice = 2 * (numerator - whole * run);
    if (twice > run || (twice == run && whole % 2 != 0)) ++whole;
    return static_cast<D>(whole);
}

template <class S, class D>
Points<S, D> random_points(int count, std::mt19937& g)
{
    Points<S, D> p;
    std::vector<S> all(std::size_t{1} << (8 * sizeof(S)));
    std::iota(all.begin(), all.end(), S{0});
    std::shuffle(all.begin(), all.end(), g);
    p.levels.assign(all.begin(), all.begin() + count);
    std::sort(p.levels.begin(), p.levels.end());
    for (int k = 0; k < count; ++k) p.values.push_back(random_value<D>(g, static_cast<Fill>(uniform(g, 0, 2))));
    return p;
}

template <class S, class D>
std::vector<Points<S, D>> curves(std::mt19937& g)
{
    constexpr S most_s = std::numeric_limits<S>::max();
    constexpr D most = std::numeric_limits<D>::max();
    std::vector<Points<S, D>> all = {
        {{0, most_s}, {0, most}},                              // the identity, or its shortening
        {{0, most_s}, {most, 0}},                              // falling
        {{3, 4}, {0, most}},                                   // steep
        {{10, 12, 14, 16, 18}, {1, 2, 3, 4, 3}},               // halves on both parities, up and down
        {{100, 102, 104, 108}, {7, 6, 5, 3}},                  // the same
        {{0, 1, 2, 3, 4}, {9, 9, 200, 9, 9}},                  // equal values, adjacent levels
        {{static_cast<S>(most_s - 2), static_cast<S>(most_s - 1), most_s}, {5, most, 17}},
        {{1, static_cast<S>(most_s - 1)}, {0, most}},
    };
    for (const int count : {2, 3, 5, 8, 9, 17, 64, 200, 256}) all.push_back(random_points<S, D>(count, g));
    return all;
}

template <class S, class D>
void check_integers(const char* name, bool (*method)(const S*, int, const S*, const D*, int, D*, int, int, int))
{
    SCOPED_TRACE(name);
    std::mt19937 g = make_generator(name);
    const std::size_t entries = std::size_t{1} << (8 * sizeof(S));
    for (const Points<S, D>& p : curves<S, D>(g)) {
        // Points before a page that cannot be touched.
        GuardedBlock levels(p.levels.size() * sizeof(S)), values(p.values.size() * sizeof(D));
        std::memcpy(levels.as(), p.levels.data(), p.levels.size() * sizeof(S));
        std::memcpy(values.as(), p.values.data(), p.values.size() * sizeof(D));
        const auto run = [&](const S* s, int srcStep, D* d, int dstStep, int width, int height) {
            return method(s, srcStep, levels.as<S>(), values.as<D>(), p.count(), d, dstStep, width, height);
        };
        for (const int width : {1, 9, 37}) {
            Image a = random_pixels<S>(width, 2, g), d = random_image(width * static_cast<int>(sizeof(D)), 2, g);
            if (width == 37) {
                // Levels and what lies before them.
                for (int i = 0; i < width; ++i) {
                    const S x = static_cast<S>(p.levels[static_cast<std::size_t>(i / 2) % p.levels.size()] - i % 2);
                    std::memcpy(a.row(0) + static_cast<std::size_t>(i) * sizeof(S), &x, sizeof(S));
                }
            }
            const auto before = d.bytes();
            at_every_level([&] {
                ASSERT_TRUE(run(a.pixels<S>(), a.step(), d.pixels<D>(), d.step(), width, 2));
                expect_pixels<D>(d, before, [&](int y, int i) { return exact_value(p, element<S>(a, y, i)); });
            });
        }
        // Every value, often enough for a table to pay, and without the memory for one.
        std::vector<S> all(2 * entries);
        std::iota(all.begin(), all.end(), S{0});
        std::vector<D> want(all.size()), got(all.size());
        for (std::size_t i = 0; i < all.size(); ++i) want[i] = exact_value(p, all[i]);
        at_every_level([&] {
            for (const bool memory : {true, false}) {
                const AllocationFailure failure(memory ? -1 : 0);
                std::fill(got.begin(), got.end(), D{});
                const int width = static_cast<int>(entries);
                ASSERT_TRUE(run(all.data(), width * static_cast<int>(sizeof(S)), got.data(),
                                width * static_cast<int>(sizeof(D)), width, 2));
                ASSERT_EQ(got, want) << "memory " << memory;
            }
        });
    }
}

TEST(Curves, Integers)
{
    check_integers("8u", W::LUT_Linear_8u_C1);
    check_integers("16u", W::LUT_Linear_16u_C1);
    check_integers("16u8u", W::LUT_Linear_16u8u_C1);
}

// --- Floats ---------------------------------------------------------------------------------------

double to_double(Quad value)
{
    volatile double stored = static_cast<double>(value);
    return stored;
}

std::uint32_t float_value(const Points<float, float>& p, float x)
{
    if (std::isnan(x)) return 0x7FC00000;
    if (x < p.levels.front()) return bits_of(p.values.front());
    if (x >= p.levels.back()) return bits_of(p.values.back());
    const std::size_t k = segment(p.levels, x);
    const Quad start = p.levels[k], end = p.levels[k + 1], first = p.values[k], last = p.values[k + 1];
    const double slope = to_double(Quad{to_double(last - first)} / to_double(end - start));
    return rounded_bits<float>(to_double(first + Quad{to_double(Quad{slope} * to_double(Quad{x} - start))}));
}

TEST(Curves, Floats)
{
    std::mt19937 g = make_generator("floats");
    const float most = std::numeric_limits<float>::max(), least = std::numeric_limits<float>::denorm_min();
    std::vector<Points<float, float>> all = {
        {{0, 1}, {0, 1}},
        {{-1, 0, 1}, {-0.0f, 5, -0.0f}},
        {{-most, most}, {most, -most}},
        {{0, least, 2 * least}, {most, -most, most}},
        {{0, 1, 2, 3, 4, 5, 6, 7}, {0, 0.1f, 0.3f, 1e-30f, 1e30f, -7, -7, 0}},
        {{0, 1, 2, 3, 4, 5, 6, 7, 8}, {0, 0.1f, 0.3f, 1e-30f, 1e30f, -7, -7, 0, 1}},
    };
    for (const int count : {2, 3, 5, 7, 8, 9, 16, 17, 100, 1000}) {
        Points<float, float> p;
        for (int k = 0; k < count; ++k) {
            p.levels.push_back(random_value<float>(g, Fill::uniform));
            p.values.push_back(random_value<float>(g, Fill::uniform));
        }
        std::sort(p.levels.begin(), p.levels.end());
        p.levels.erase(std::unique(p.levels.begin(), p.levels.end()), p.levels.end());
        p.values.resize(p.levels.size());
        all.push_back(p);
    }
    for (const Points<float, float>& p : all) {
        for (const int width : {1, 3, 7, 8, 9, 16, 33, 400}) {
            Image a = random_pixels<float>(width, 2, g), d = random_image(4 * width, 2, g);
            if (width == 400) {
                for (int i = 0; i < width; ++i) {
                    // Levels, their neighbours, and points between two of them.
                    const std::size_t k = static_cast<std::size_t>(uniform(g, 0, p.count() - 1));
                    const float level = p.levels[k], next = p.levels[std::min(k + 1, p.levels.size() - 1)];
                    const float t = std::uniform_real_distribution<float>(0, 1)(g);
                    const float x = i % 4 == 0   ? level
                                    : i % 4 == 1 ? std::nextafter(level, -most)
                                    : i % 4 == 2 ? std::nextafter(level, most)
                                                 : level * (1 - t) + next * t;
                    std::memcpy(a.row(1) + 4 * i, &x, 4);
                }
            }
            const auto before = d.bytes(), before_a = a.bytes();
            const auto want = [&](int y, int i) { return float_value(p, element<float>(a, y, i)); };
            at_every_level([&] {
                ASSERT_TRUE(W::LUT_Linear_32f_C1(a.pixels<float>(), a.step(), p.levels.data(), p.values.data(),
                                                 p.count(), d.pixels<float>(), d.step(), width, 2));
                expect_pixels<std::uint32_t>(d, before, want);
                ASSERT_TRUE(W::LUT_Linear_32f_C1(a.pixels<float>(), a.step(), p.levels.data(), p.values.data(),
                                                 p.count(), a.pixels<float>(), a.step(), width, 2));
                expect_pixels<std::uint32_t>(a, before_a, want);
            });
        }
    }
}

// --- Refusals -------------------------------------------------------------------------------------

TEST(Curves, RefusalsWriteNothing)
{
    std::mt19937 g = make_generator("refusals");
    Image source(64, 2, {true, true, 0, 0}, g), image(64, 2, {true, false, 0, 0}, g);
    const auto before = image.bytes();
    const int step = image.step();
    const float infinity = std::numeric_limits<float>::infinity(), nan = std::numeric_limits<float>::quiet_NaN();
    const u8 b[4] = {1, 2, 2, 3};
    const u16 w[4] = {1, 5, 4, 6};
    const float f[4] = {1, 2, 3, 4};
    at_every_level([&] {
        const auto bytes = [&](const u8* l, const u8* v, int n, orv::Size roi) {
            return orv::orv_LUT_Linear_8u_C1(source.pixels<u8>(), step, l, v, n, image.pixels<u8>(), step, roi);
        };
        const auto words = [&](const u16* l, const u16* v, int n, orv::Size roi) {
            return orv::orv_LUT_Linear_16u_C1(source.pixels<u16>(), step, l, v, n, image.pixels<u16>(), step, roi);
        };
        const auto floats = [&](const float* l, const float* v, int n, orv::Size roi) {
            return orv::orv_LUT_Linear_32f_C1(source.pixels<float>(), step, l, v, n, image.pixels<float>(), step, roi);
        };
        EXPECT_EQ(bytes(nullptr, b, 1, {0, 0}), -8);
        EXPECT_EQ(bytes(b, nullptr, 2, {2, 2}), -8);
        EXPECT_EQ(bytes(b, b, 1, {0, 2}), -6);
        EXPECT_EQ(bytes(b, b, 1, {2, 2}), -107);
        EXPECT_EQ(bytes(b, b, -2147483647 - 1, {2, 2}), -107);
        EXPECT_EQ(bytes(b, b, 3, {2, 2}), -301) << "equal levels";
        EXPECT_EQ(bytes(b, b, 2147483647, {2, 2}), -301) << "more than there are values";
        EXPECT_EQ(words(w, w, 4, {2, 2}), -301) << "falling levels";
        EXPECT_EQ(orv::orv_LUT_Linear_16u8u_C1(source.pixels<u16>(), step, w, b, 3, image.pixels<u8>(), step, {2, 2}),
                  -301);
        for (const float bad : {infinity, -infinity, nan}) {
            for (int k = 0; k < 4; ++k) {
                float changed[4] = {1, 2, 3, 4};
                changed[k] = bad;
                EXPECT_EQ(floats(changed, f, 4, {2, 2}), -301) << k;
                EXPECT_EQ(floats(f, changed, 4, {2, 2}), -301) << k;
                EXPECT_EQ(floats(changed, changed, 1, {2, 2}), -107);
            }
        }
        const float equal[3] = {1, 1, 2}, zeros[2] = {-0.0f, 0.0f};
        EXPECT_EQ(floats(equal, f, 3, {2, 2}), -301);
        EXPECT_EQ(floats(zeros, f, 2, {2, 2}), -301);
        EXPECT_EQ(floats(f, nullptr, 2, {2, 2}), -8);
        EXPECT_FALSE(W::LUT_Linear_32f_C1(source.pixels<float>(), step, f, f, 4, nullptr, step, 2, 2));
        EXPECT_FALSE(W::LUT_Linear_16u_C1(nullptr, step, w, w, 2, image.pixels<u16>(), step, 2, 2));
        ASSERT_EQ(image.bytes(), before);
    });
}

}  // namespace
}  // namespace test
