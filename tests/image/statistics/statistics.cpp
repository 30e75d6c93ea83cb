// Image statistics against their definitions, taken literally.
//
// Families: sums, float_sums, extremes, histogram.
#include "support/image_tests.h"

namespace test {
namespace {

// Oracles compute in double: on the x87 that takes DoublePrecision and a store after each step.
double stored(double value)
{
    volatile double in_memory = value;
    return in_memory;
}

template <class T>
std::uint64_t bits(T value)
{
    std::uint64_t b = 0;
    std::memcpy(&b, &value, sizeof(T));
    return b;
}

template <class R>
using Results = bool (*)(const R*, int, int, int, R*);
template <class T>
using Reals = bool (*)(const T*, int, int, int, double*);
template <class T>
using TwoResults = bool (*)(const T*, int, int, int, T*, T*);
template <class T>
using Position = bool (*)(const T*, int, int, int, T*, int*, int*);
template <class T>
using Histogram = bool (*)(const T*, int, int, int, int*, int*, int, int, int);

// A region as the definitions see it: pixels in raster order.
template <class T>
struct Region {
    int width, height, channels, step;
    std::vector<u8> memory;

    Region(int w, int h, int c, int padding)
        : width(w), height(h), channels(c), step(w * c * static_cast<int>(sizeof(T)) + padding)
    {
        memory.resize(static_cast<std::size_t>(step) * static_cast<std::size_t>(h));
    }
    const T* data() const { return reinterpret_cast<const T*>(memory.data()); }
    T at(int x, int y, int c = 0) const
    {
        T value;
        std::memcpy(&value, &memory[offset(x, y, c)], sizeof(T));
        return value;
    }
    void set(int x, int y, int c, T value) { std::memcpy(&memory[offset(x, y, c)], &value, sizeof(T)); }
    template <class Value>
    void fill(Value value)
    {
        for (int y = 0; y < height; ++y) {
            for (int x = 0; x < width; ++x) {
                for (int c = 0; c < channels; ++c) set(x, y, c, value());
            }
        }
    }
    template <class Visit>
    void each(int c, Visit visit) const
    {
        for (int y = 0; y < height; ++y) {
            for (int x = 0; x < width; ++x) visit(at(x, y, c), x, y);
        }
    }

private:
    std::size_t offset(int x, int y, int c) const
    {
        return static_cast<std::size_t>(step) * static_cast<std::size_t>(y) +
               static_cast<std::size_t>(x * channels + c) * sizeof(T);
    }
};

struct Shape {
    int width, height, padding;
};
// Rows shorter and longer than vectors, steps with and without gaps, blocks of every accumulator filled.
const Shape kShapes[] = {{1, 1, 0},   {3, 5, 1},    {15, 4, 0},   {33, 3, 3},   {64, 64, 0},
                         {97, 31, 7}, {256, 40, 0}, {1023, 5, 1}, {5000, 9, 0}, {70001, 2, 0}};

// --- Integer sums -----------------------------------------------------------------------------------

template <class T>
void check_sums(int channels, Reals<T> sum, Reals<T> mean)
{
    const DoublePrecision precision;
    std::mt19937 g = make_generator("sums");
    for (const Shape& s : kShapes) {
        for (const Fill kind : {Fill::uniform, Fill::near_low, Fill::near_high}) {
            Region<T> region(s.width, s.height, channels, s.padding);
            region.fill([&] { return random_value<T>(g, kind); });
            std::vector<double> want_sum, want_mean;
            for (int c = 0; c < channels; ++c) {
                long long total = 0;
                region.each(c, [&](T v, int, int) { total += v; });
                want_sum.push_back(static_cast<double>(total));
                want_mean.push_back(stored(static_cast<double>(total) / (static_cast<double>(s.width) * s.height)));
            }
            at_every_level([&] {
                std::vector<double> got(want_sum.size(), -1);
                ASSERT_TRUE(sum(region.data(), region.step, s.width, s.height, got.data()));
                ASSERT_EQ(got, want_sum) << s.width << " x " << s.height;
                ASSERT_TRUE(mean(region.data(), region.step, s.width, s.height, got.data()));
                ASSERT_EQ(got, want_mean);
            });
        }
    }
}

TEST(Statistics, IntegerSumsAndMeans)
{
    check_sums<u8>(1, W::Sum_8u_C1R, W::Mean_8u_C1R);
    check_sums<u8>(3, W::Sum_8u_C3R, W::Mean_8u_C3R);
    check_sums<u8>(4, W::Sum_8u_C4R, W::Mean_8u_C4R);
    check_sums<u16>(1, W::Sum_16u_C1R, W::Mean_16u_C1R);
    check_sums<s16>(1, W::Sum_16s_C1R, W::Mean_16s_C1R);
}

// Enough of the largest values to run over anything of 32 bits; one row read again and again.
TEST(Statistics, LargeSumsStayExact)
{
    const int width = 1 << 20, height = options().brief ? 3 : 70;
    const std::vector<u16> row(static_cast<std::size_t>(width), 65535);
    const std::vector<s16> low(static_cast<std::size_t>(width), -32768);
    const std::vector<u8> bytes(static_cast<std::size_t>(width), 255);
    const double n = static_cast<double>(width) * height;
    at_every_level([&] {
        double sum = 0, sums[4];
        EXPECT_TRUE(W::Sum_16u_C1R(row.data(), 0, width, height, &sum));
        EXPECT_EQ(sum, n * 65535);
        EXPECT_TRUE(W::Sum_16s_C1R(low.data(), 0, width, height, &sum));
        EXPECT_EQ(sum, n * -32768);
        EXPECT_TRUE(W::Sum_8u_C4R(bytes.data(), 0, width / 4, height, sums));
        EXPECT_THAT(sums, testing::Each(n / 4 * 255));
    });
}

template <class T>
void check_deviation(bool (*operation)(const T*, int, int, int, double*, double*))
{
    const DoublePrecision precision;
    std::mt19937 g = make_generator("deviation");
    for (const Shape& s : kShapes) {
        for (const Fill kind : {Fill::uniform, Fill::near_low, Fill::near_high}) {
            Region<T> region(s.width, s.height, 1, s.padding);
            region.fill([&] { return random_value<T>(g, kind); });
            std::uint64_t sum = 0, squares = 0;
            region.each(0, [&](T v, int, int) {
                sum += v;
                squares += std::uint64_t{v} * v;
            });
            const double n = static_cast<double>(s.width) * s.height;
            const double mean = stored(static_cast<double>(sum) / n),
                         mean_square = stored(static_cast<double>(squares) / n);
            const double variance = stored(mean_square - stored(mean * mean));
            const double deviation = stored(std::sqrt(std::fabs(variance)));
            at_every_level([&] {
                double m = -1, d = -1;
                ASSERT_TRUE(operation(region.data(), region.step, s.width, s.height, &m, &d));
                ASSERT_EQ(bits(m), bits(mean));
                ASSERT_EQ(bits(d), bits(deviation));
                double m2 = -1, d2 = -1;
                ASSERT_TRUE(operation(region.data(), region.step, s.width, s.height, &m2, nullptr));
                ASSERT_TRUE(operation(region.data(), region.step, s.width, s.height, nullptr, &d2));
                ASSERT_TRUE(operation(region.data(), region.step, s.width, s.height, nullptr, nullptr));
                ASSERT_EQ(bits(m), bits(m2));
                ASSERT_EQ(bits(d), bits(d2));
            });
        }
    }
    const T two[] = {0, 2}, same[] = {7, 7, 7};
    at_every_level([&] {
        double m, d;
        EXPECT_TRUE(operation(two, sizeof(two), 2, 1, &m, &d));
        EXPECT_EQ(m, 1);
        EXPECT_EQ(d, 1);
        EXPECT_TRUE(operation(same, sizeof(same), 3, 1, &m, &d));
        EXPECT_EQ(m, 7);
        EXPECT_EQ(d, 0);
        // Steps below a row, in bytes.
        const int row = 3 * static_cast<int>(sizeof(T));
        m = d = 5;
        for (const int step : {row - 1, 0, -row, INT_MIN}) EXPECT_FALSE(operation(same, step, 3, 1, &m, &d));
        EXPECT_FALSE(operation(nullptr, row, 3, 1, &m, &d));
        EXPECT_FALSE(operation(same, row, 0, 1, &m, &d));
        EXPECT_FALSE(operation(same, INT_MAX, INT_MAX, 0, &m, &d));
        EXPECT_FALSE(operation(same, INT_MAX / 2, INT_MAX, 1, &m, &d)) << "rows of 16 bits have 2^32 bytes";
        EXPECT_EQ(m, 5);
        EXPECT_EQ(d, 5);
    });
}

TEST(Statistics, MeanAndDeviation)
{
    check_deviation<u8>(W::Mean_StdDev_8u_C1R);
    check_deviation<u16>(W::Mean_StdDev_16u_C1R);
}

// --- Float sums: the order, to the bit ---------------------------------------------------------------

using FloatSum = bool (*)(const float*, int, int, int, double*, bool);

// Two running sums, of even and of odd columns, added in the end.
std::vector<double> ordered_sums(const Region<float>& region)
{
    std::vector<double> sums;
    for (int c = 0; c < region.channels; ++c) {
        double even = 0, odd = 0;
        region.each(c, [&](float v, int x, int) {
            (x % 2 == 0 ? even : odd) = stored((x % 2 == 0 ? even : odd) + static_cast<double>(v));
        });
        sums.push_back(stored(odd + even));
    }
    return sums;
}

TEST(Statistics, FloatSumsKeepTheirOrder)
{
    const DoublePrecision precision;
    std::mt19937 g = make_generator("float sums");
    const auto unit = [&] { return static_cast<double>(g()) / 4294967296.0; };
    std::vector<std::function<float()>> kinds = {
        [&] { return static_cast<float>(g() % 256); },                            // 8-bit data
        [&] { return static_cast<float>(g() % 65536) - 32768.f; },                // 16-bit data
        [&] { return static_cast<float>(g() % 256) / 255.f; },                    // scaled
        [&] { return static_cast<float>(unit()); },
        [&] { return static_cast<float>(unit() - 0.5); },
        [&] { return static_cast<float>(std::exp(20 * unit() - 10)); },           // many orders of magnitude
        [&] { return g() % 999 == 0 ? 1e-20f : static_cast<float>(g() % 9); },    // now and then far below
        [&] { return g() % 999 == 0 ? 0.5f : 65535.f; },
        [&] { return g() % 50 == 0 ? 3e38f : -3e38f; },
        [&] { return static_cast<float>(g() % 2) * 1e-45f; },                     // denormal
        [&] { return 0.f; },
        [&] { return -0.f; },
    };
    for (const Shape& s : kShapes) {
        for (std::size_t k = 0; k < kinds.size(); ++k) {
            for (const int channels : {1, 3}) {
                Region<float> region(s.width, s.height, channels, s.padding);
                region.fill(kinds[k]);
                // One stray value: the way of adding changes within the image.
                if (g() % 2 == 0)
                    region.set(static_cast<int>(g() % static_cast<unsigned>(s.width)),
                               static_cast<int>(g() % static_cast<unsigned>(s.height)), 0, kinds[g() % kinds.size()]());
                const std::vector<double> want = ordered_sums(region);
                const FloatSum sum = channels == 1 ? W::Sum_32f_C1R : W::Sum_32f_C3R,
                               mean = channels == 1 ? W::Mean_32f_C1R : W::Mean_32f_C3R;
                at_every_level([&] {
                    double got[3], means[3];
                    ASSERT_TRUE(sum(region.data(), region.step, s.width, s.height, got, g() % 2 == 0));
                    ASSERT_TRUE(mean(region.data(), region.step, s.width, s.height, means, g() % 2 == 0));
                    for (int c = 0; c < channels; ++c) {
                        ASSERT_EQ(bits(got[c]), bits(want[static_cast<std::size_t>(c)]))
                            << s.width << " x " << s.height << " kind " << k;
                        ASSERT_EQ(bits(means[c]), bits(stored(want[static_cast<std::size_t>(c)] /
                                                              (static_cast<double>(s.width) * s.height))));
                    }
                });
            }
        }
    }
}

// One bit below the grid of all others, anywhere, must be noticed; so must values that are no numbers.
TEST(Statistics, FloatSumsNoticeStrayValues)
{
    const DoublePrecision precision;
    std::mt19937 g = make_generator("stray values");
    const float inf = std::numeric_limits<float>::infinity(), nan = std::numeric_limits<float>::quiet_NaN();
    Region<float> region(1000, 20, 1, 0);
    region.fill([&] { return 65536.f * static_cast<float>(g() % 256); });
    for (int i = 0; i < (options().brief ? 5 : 60); ++i) {
        const int x = static_cast<int>(g() % 1000), y = static_cast<int>(g() % 20);
        const float before = region.at(x, y);
        for (const float stray : {std::ldexp(1.f, -20), std::ldexp(1.f, -30), std::ldexp(3.f, -29), inf, -inf, nan}) {
            region.set(x, y, 0, stray);
            const double want = ordered_sums(region)[0];
            at_every_level([&] {
                double got;
                ASSERT_TRUE(W::Sum_32f_C1R(region.data(), region.step, 1000, 20, &got, true));
                ASSERT_EQ(bits(got), stray != stray ? 0x7FF8000000000000u : bits(want)) << stray;
            });
        }
        region.set(x, y, 0, before);
    }
    // Infinities of both signs and NaNs of any kind: one NaN.
    for (const auto& pair :
         std::vector<std::vector<float>>{{inf, -inf}, {-nan, 1}, {std::numeric_limits<float>::signaling_NaN(), -nan}}) {
        at_every_level([&] {
            double got;
            ASSERT_TRUE(W::Sum_32f_C1R(pair.data(), 8, 2, 1, &got, false));
            ASSERT_EQ(bits(got), 0x7FF8000000000000u);
        });
    }
}

// A host's rounding mode and flushing to zero change no bit and stay; so does its record of what was inexact.
TEST(Statistics, HostsFloatControl)
{
#if defined(__SSE2__)
    std::mt19937 g = make_generator("host");
    Region<float> region(500, 9, 1, 0);
    region.fill([&] { return static_cast<float>(g() % 1000) * 1e-3f; });
    at_every_level([&] {
        double plain, other, mean, deviation, means[2];
        ASSERT_TRUE(W::Sum_32f_C1R(region.data(), region.step, 500, 9, &plain, false));
        ASSERT_TRUE(W::Mean_StdDev_8u_C1R(region.memory.data(), 501, 501, 7, &mean, &deviation));
        for (const unsigned mode : {0x1F80u, 0x1FA0u, 0x3F80u, 0x5F80u, 0x7F80u, 0x9FC0u}) {
            const unsigned host = __builtin_ia32_stmxcsr();
            __builtin_ia32_ldmxcsr(mode);
            const bool done = W::Sum_32f_C1R(region.data(), region.step, 500, 9, &other, false) &&
                              W::Mean_StdDev_8u_C1R(region.memory.data(), 501, 501, 7, means, means + 1);
            const unsigned after = __builtin_ia32_stmxcsr();
            __builtin_ia32_ldmxcsr(host);
            EXPECT_TRUE(done);
            EXPECT_EQ(after & ~0x3Fu, mode & ~0x3Fu);
            EXPECT_EQ(after & mode & 0x3Fu, mode & 0x3Fu);
            EXPECT_EQ(bits(plain), bits(other));
            EXPECT_EQ(bits(mean), bits(means[0]));
            EXPECT_EQ(bits(deviation), bits(means[1]));
        }
    });
#endif
}

// --- Extremes ---------------------------------------------------------------------------------------

// The definition: NaNs left out, the first of equals.
template <class T, class Better>
T extreme_of(const Region<T>& region, int c, Better better)
{
    bool any = false;
    T best = std::is_floating_point<T>::value ? std::numeric_limits<T>::quiet_NaN() : T{0};
    region.each(c, [&](T v, int, int) {
        if (v == v && (!any || better(v, best))) {
            best = v;
            any = true;
        }
    });
    return best;
}

template <class T>
void check_extremes(int channels, Results<T> min, Results<T> max, TwoResults<T> min_max)
{
    std::mt19937 g = make_generator("extremes");
    const auto less = [](T a, T b) { return a < b; };
    const auto greater = [](T a, T b) { return a > b; };
    for (const Shape& s : kShapes) {
        for (int kind = 0; kind < 8; ++kind) {
            Region<T> region(s.width, s.height, channels, s.padding);
            if (kind < 4) {
                region.fill([&] { return random_value<T>(g, static_cast<Fill>(kind)); });
            } else {
                // All alike but a few: each lane gets its turn to hold the extreme.
                const T value = kind == 7 && std::is_floating_point<T>::value ? std::numeric_limits<T>::quiet_NaN()
                                                                              : static_cast<T>(100 * (kind - 4));
                region.fill([&] { return value; });
                for (int i = 0; i < 3; ++i) {
                    region.set(static_cast<int>(g() % static_cast<unsigned>(s.width)),
                               static_cast<int>(g() % static_cast<unsigned>(s.height)),
                               static_cast<int>(g() % static_cast<unsigned>(channels)),
                               static_cast<T>(99 + static_cast<int>(g() % 3)));
                }
            }
            T low[4], high[4];
            for (int c = 0; c < channels; ++c) {
                low[c] = extreme_of(region, c, less);
                high[c] = extreme_of(region, c, greater);
            }
            at_every_level([&] {
                T got[4], got_high[4];
                if (min != nullptr) {
                    ASSERT_TRUE(min(region.data(), region.step, s.width, s.height, got));
                    for (int c = 0; c < channels; ++c)
                        ASSERT_EQ(bits(got[c]), bits(low[c])) << s.width << " x " << s.height << " kind " << kind;
                }
                if (max != nullptr) {
                    ASSERT_TRUE(max(region.data(), region.step, s.width, s.height, got));
                    for (int c = 0; c < channels; ++c)
                        ASSERT_EQ(bits(got[c]), bits(high[c])) << s.width << " x " << s.height << " kind " << kind;
                }
                ASSERT_TRUE(min_max(region.data(), region.step, s.width, s.height, got, got_high));
                for (int c = 0; c < channels; ++c) {
                    ASSERT_EQ(bits(got[c]), bits(low[c])) << s.width << " x " << s.height << " kind " << kind;
                    ASSERT_EQ(bits(got_high[c]), bits(high[c])) << s.width << " x " << s.height << " kind " << kind;
                }
            });
        }
    }
}

TEST(Statistics, Extremes)
{
    check_extremes<u8>(1, W::Min_8u_C1, W::Max_8u_C1, W::MinMax_8u_C1);
    check_extremes<u8>(3, W::Min_8u_C3, nullptr, W::MinMax_8u_C3);
    check_extremes<u8>(4, nullptr, W::Max_8u_C4, W::MinMax_8u_C4);
    check_extremes<u16>(1, W::Min_16u_C1, W::Max_16u_C1, W::MinMax_16u_C1);
    check_extremes<s16>(1, W::Min_16s_C1, W::Max_16s_C1, W::MinMax_16s_C1);
    check_extremes<float>(1, W::Min_32f_C1, W::Max_32f_C1, W::MinMax_32f_C1);
    check_extremes<float>(3, W::Min_32f_C3, W::Max_32f_C3, W::MinMax_32f_C3);
}

template <class T>
void check_positions(Position<T> min, Position<T> max)
{
    std::mt19937 g = make_generator("positions");
    for (const Shape& s : kShapes) {
        for (int kind = 0; kind < 6; ++kind) {
            Region<T> region(s.width, s.height, 1, s.padding);
            if (kind < 4) region.fill([&] { return random_value<T>(g, static_cast<Fill>(kind)); });
            else region.fill([&] { return static_cast<T>(g() % 500 == 0 ? 98 + g() % 5 : 100); });
            int low[3] = {-1, 0, 0}, high[3] = {-1, 0, 0};
            region.each(0, [&](T v, int x, int y) {
                if (low[0] < 0 || v < low[0]) low[0] = v, low[1] = x, low[2] = y;
                if (v > high[0]) high[0] = v, high[1] = x, high[2] = y;
            });
            at_every_level([&] {
                T value;
                int column, row;
                ASSERT_TRUE(min(region.data(), region.step, s.width, s.height, &value, &column, &row));
                ASSERT_THAT((std::vector<int>{value, column, row}), testing::ElementsAreArray(low))
                    << s.width << " x " << s.height << " kind " << kind;
                ASSERT_TRUE(max(region.data(), region.step, s.width, s.height, &value, &column, &row));
                ASSERT_THAT((std::vector<int>{value, column, row}), testing::ElementsAreArray(high))
                    << s.width << " x " << s.height << " kind " << kind;
            });
        }
    }
}

TEST(Statistics, Positions)
{
    check_positions<u8>(W::MinIndx_8u_C1R, W::MaxIndx_8u_C1R);
    check_positions<u16>(W::MinIndx_16u_C1R, W::MaxIndx_16u_C1R);
}

// --- Histograms -------------------------------------------------------------------------------------

struct Spread {
    int count, lower, upper;
};
const Spread kSpreads[] = {{257, 0, 256},
                           {4, 0, 10},
                           {2, 0, 256},
                           {65537, 0, 65536},
                           {2, INT_MIN, INT_MAX},
                           {300, INT_MIN, INT_MAX},
                           {2, INT_MAX, INT_MIN},
                           {300, INT_MAX, INT_MIN}, {257, 256, 0}, {7, 100, 80}, {20, 3, 3}, {100, 10, 40},
                           {5, -1000, 70}, {5, 200, 1000}, {9, -50, 0}, {9, 256, 300},
                           {9, 65536, 99999},
                           {1000, 17, 60017},
                           {1000, -7, 70000},
                           {40000, 100, 60000},
                           {3, 255, 256},
                           {65538, -1, 65536},
                           {2, 65535, 65536},
                           {30000, 5, 65000}};

template <class T>
void check_histogram(Histogram<T> operation)
{
    std::mt19937 g = make_generator("histogram");
    for (const Spread& spread : kSpreads) {
        for (const Shape& s : {Shape{1, 1, 0}, Shape{13, 3, 1}, Shape{64, 64, 0}, Shape{333, 17, 5}}) {
            Region<T> region(s.width, s.height, 1, s.padding);
            const Fill kind = static_cast<Fill>(g() % 4);
            const auto n = static_cast<std::size_t>(spread.count);
            std::vector<int> levels(n), bins(n - 1);
            const long long d = static_cast<long long>(spread.upper) - spread.lower, m = spread.count - 1;
            long long level = spread.lower;
            for (std::size_t k = 0; k < n; ++k) {
                levels[k] = static_cast<int>(level);
                level += d / m + (static_cast<long long>(k) < std::llabs(d % m) ? (d > 0) - (d < 0) : 0);
            }
            ASSERT_EQ(levels.back(), spread.upper);
            // Values next to levels, the last one above all, decide between two bins, and whether they count at all.
            region.fill([&] {
                const long long near = levels[g() % 4 == 0 ? n - 1 : g() % n] + static_cast<long long>(g() % 3) - 1;
                const bool fits = near >= 0 && near <= std::numeric_limits<T>::max();
                return fits && g() % 2 == 0 ? static_cast<T>(near) : random_value<T>(g, kind);
            });
            std::vector<int> of_value(65536);
            region.each(0, [&](T v, int, int) { ++of_value[v]; });
            for (std::size_t k = 0; k + 1 < n; ++k) {
                for (int v = std::max(levels[k], 0); v < std::min(levels[k + 1], 65536); ++v)
                    bins[k] += of_value[static_cast<std::size_t>(v)];
            }
            // All levels share one kernel.
            std::vector<int> got(n, -1), got_levels(n + 1, -1);
            ASSERT_TRUE(operation(region.data(), region.step, s.width, s.height, got.data(), got_levels.data(),
                                  spread.count, spread.lower, spread.upper));
            ASSERT_EQ(got_levels.back(), -1);
            ASSERT_EQ(got.back(), -1);
            got_levels.pop_back();
            got.pop_back();
            ASSERT_EQ(got_levels, levels);
            ASSERT_EQ(got, bins) << spread.count << " levels from " << spread.lower << " to " << spread.upper << ", "
                                 << s.width << " x " << s.height;
            // Without memory for its tables it counts more slowly.
            const AllocationFailure none_left(0);
            got.assign(n, -1);
            ASSERT_TRUE(operation(region.data(), region.step, s.width, s.height, got.data(), got_levels.data(),
                                  spread.count, spread.lower, spread.upper));
            ASSERT_EQ(got.back(), -1);
            got.pop_back();
            ASSERT_EQ(got, bins);
        }
    }
}

TEST(Statistics, Histograms)
{
    check_histogram<u8>(W::HistogramEven_8u_C1);
    check_histogram<u16>(W::HistogramEven_16u_C1);
}

// --- Refusals ---------------------------------------------------------------------------------------

template <class T, class R, class Call>
void check_refusals(Call call)
{
    const std::vector<T> pixels(64, T{3});
    R result[4] = {R(77), R(77), R(77), R(77)};
    EXPECT_FALSE(call(static_cast<const T*>(nullptr), 2, 2, result));
    EXPECT_FALSE(call(pixels.data(), 2, 2, static_cast<R*>(nullptr)));
    for (const int bad : {0, -1, INT_MIN}) {
        EXPECT_FALSE(call(pixels.data(), bad, 2, result));
        EXPECT_FALSE(call(pixels.data(), 2, bad, result));
    }
    EXPECT_THAT(result, testing::Each(R(77)));
    EXPECT_TRUE(call(pixels.data(), 2, 2, result));
}

TEST(Statistics, RefusalsWriteNothing)
{
#define REFUSALS(name, T, R) \
    check_refusals<T, R>([](const T* p, int w, int h, R* r) { return W::name(p, 16, w, h, r); });
#define HINTED(name) \
    check_refusals<float, double>( \
        [](const float* p, int w, int h, double* r) { return W::name(p, 32, w, h, r, true); });
#define EITHER(name, T)                                                                                         \
    check_refusals<T, T>([](const T* p, int w, int h, T* r) { T other[4]; return W::name(p, 16, w, h, r, other); }); \
    check_refusals<T, T>([](const T* p, int w, int h, T* r) { T other[4]; return W::name(p, 16, w, h, other, r); });
#define PLACED(name, T) \
    check_refusals<T, T>([](const T* p, int w, int h, T* r) { \
        int x, y; \
        return W::name(p, 16, w, h, r, &x, &y); \
    }); \
    check_refusals<T, int>([](const T* p, int w, int h, int* r) { \
        T v; \
        int y; \
        return W::name(p, 16, w, h, &v, r, &y); \
    }); \
    check_refusals<T, int>([](const T* p, int w, int h, int* r) { \
        T v; \
        int x; \
        return W::name(p, 16, w, h, &v, &x, r); \
    });
    at_every_level([] {
        REFUSALS(Sum_8u_C1R, u8, double) REFUSALS(Sum_8u_C3R, u8, double) REFUSALS(Sum_8u_C4R, u8, double)
        REFUSALS(Sum_16u_C1R, u16, double) REFUSALS(Sum_16s_C1R, s16, double)
        REFUSALS(Mean_8u_C1R, u8, double) REFUSALS(Mean_8u_C3R, u8, double) REFUSALS(Mean_8u_C4R, u8, double)
        REFUSALS(Mean_16u_C1R, u16, double) REFUSALS(Mean_16s_C1R, s16, double)
        HINTED(Sum_32f_C1R) HINTED(Sum_32f_C3R) HINTED(Mean_32f_C1R) HINTED(Mean_32f_C3R)
        REFUSALS(Min_8u_C1, u8, u8) REFUSALS(Min_8u_C3, u8, u8) REFUSALS(Min_16u_C1, u16, u16)
        REFUSALS(Min_16s_C1, s16, s16) REFUSALS(Min_32f_C1, float, float) REFUSALS(Min_32f_C3, float, float)
        REFUSALS(Max_8u_C1, u8, u8) REFUSALS(Max_8u_C4, u8, u8) REFUSALS(Max_16u_C1, u16, u16)
        REFUSALS(Max_16s_C1, s16, s16) REFUSALS(Max_32f_C1, float, float) REFUSALS(Max_32f_C3, float, float)
        EITHER(MinMax_8u_C1, u8) EITHER(MinMax_8u_C3, u8) EITHER(MinMax_8u_C4, u8) EITHER(MinMax_16u_C1, u16)
        EITHER(MinMax_16s_C1, s16) EITHER(MinMax_32f_C1, float) EITHER(MinMax_32f_C3, float)
        PLACED(MinIndx_8u_C1R, u8) PLACED(MinIndx_16u_C1R, u16) PLACED(MaxIndx_8u_C1R, u8) PLACED(MaxIndx_16u_C1R, u16)
    });
#undef REFUSALS
#undef HINTED
#undef EITHER
#undef PLACED

    const std::vector<u16> pixels(64, 3);
    std::vector<int> bins(9, 77), levels(9, 77);
    const auto refused = [&](const u16* p, int step, int w, int h, int* b, int* l, int n) {
        return !W::HistogramEven_16u_C1(p, step, w, h, b, l, n, 0, 9);
    };
    EXPECT_TRUE(refused(nullptr, 16, 4, 4, bins.data(), levels.data(), 9));
    EXPECT_TRUE(refused(pixels.data(), 16, 4, 4, nullptr, levels.data(), 9));
    EXPECT_TRUE(refused(pixels.data(), 16, 4, 4, bins.data(), nullptr, 9));
    for (const int bad : {0, -1, INT_MIN}) {
        EXPECT_TRUE(refused(pixels.data(), 16, bad, 4, bins.data(), levels.data(), 9));
        EXPECT_TRUE(refused(pixels.data(), 16, 4, bad, bins.data(), levels.data(), 9));
        EXPECT_TRUE(refused(pixels.data(), bad, 4, 4, bins.data(), levels.data(), 9));
    }
    EXPECT_TRUE(refused(pixels.data(), 7, 4, 4, bins.data(), levels.data(), 9)) << "a step shorter than a row";
    for (const int few : {1, 0, -5, INT_MIN})
        EXPECT_TRUE(refused(pixels.data(), 16, 4, 4, bins.data(), levels.data(), few));
    EXPECT_THAT(bins, testing::Each(77));
    EXPECT_THAT(levels, testing::Each(77));
}

}  // namespace
}  // namespace test
