// Statistics of vectors against their definitions, taken literally.
#include "SignalProcessingWrapper.h"
#include "support/double_steps.h"
#include "support/tests.h"

namespace test {
namespace {

using W = SignalProcessingWrapper;

template <class T>
std::uint64_t image(T value)
{
    std::uint64_t bits = 0;
    std::memcpy(&bits, &value, sizeof(T));
    return bits;
}
std::uint64_t image_of_result(double value) { return value == value ? image(value) : 0x7FF8000000000000u; }

// Every length up to a few vectors of the widest type, and some that fill blocks and stretches.
std::vector<int> lengths()
{
    std::vector<int> all = {1023, 4096, 4097, 9000};
    for (int n = 1; n <= 200; n += options().brief && n > 70 ? 13 : 1) all.push_back(n);
    return all;
}

template <class T>
std::vector<T> random_vector(int n, Fill kind, Generator& g)
{
    std::vector<T> v;
    for (int i = 0; i < n; ++i) v.push_back(random_value<T>(g, kind));
    return v;
}

// --- Integer sums -----------------------------------------------------------------------------------

template <class T>
using Reduction = bool (*)(const T*, int, double*);

template <class T>
void check_integer_sums(Reduction<T> sum, Reduction<T> mean)
{
    Generator g = make_generator("integer sums");
    for (const int n : lengths()) {
        for (const Fill kind : {Fill::uniform, Fill::near_low, Fill::near_high}) {
            const std::vector<T> v = random_vector<T>(n, kind, g);
            long long total = 0;
            for (const T x : v) total += x;
            const double want = static_cast<double>(total);
            at_every_level([&] {
                double got = -1, average = -1;
                ASSERT_TRUE(sum(v.data(), n, &got) && mean(v.data(), n, &average));
                ASSERT_EQ(got, want) << n;
                ASSERT_EQ(average, over(want, n)) << n;
            });
        }
    }
    // Enough of the outermost values to fill every accumulator.
    const int n = 3 * (1 << 20) + 7;
    for (const T extreme : {std::numeric_limits<T>::min(), std::numeric_limits<T>::max()}) {
        const std::vector<T> v(static_cast<std::size_t>(n), extreme);
        at_every_level([&] {
            double got = -1;
            ASSERT_TRUE(sum(v.data(), n, &got));
            ASSERT_EQ(got, static_cast<double>(n) * extreme);
        });
    }
}

TEST(VectorStatistics, IntegerSumsAreExact)
{
    check_integer_sums<u8>(W::Sum_8u, W::Mean_8u);
    check_integer_sums<u16>(W::Sum_16u, W::Mean_16u);
    check_integer_sums<int>(W::Sum_32s, W::Mean_32s);
}

// --- Float sums: the order, to the bit --------------------------------------------------------------

double sum_of_lanes(const std::vector<double>& terms)
{
    double sums[32] = {};
    for (std::size_t i = 0; i < terms.size(); ++i) sums[i % 32] = plus(sums[i % 32], terms[i]);
    for (int half = 16; half > 0; half /= 2) {
        for (int j = 0; j < half; ++j) sums[j] = plus(sums[j], sums[j + half]);
    }
    return sums[0];
}

template <class T, class Term>
double sum_of(const std::vector<T>& v, Term term)
{
    std::vector<double> terms;
    for (std::size_t i = 0; i < v.size(); ++i) terms.push_back(term(i));
    return sum_of_lanes(terms);
}

// Whatever shows an order: digits far apart, large terms that cancel, offsets, zeros of either sign, no numbers.
template <class T>
std::vector<T> telling_terms(int n, int kind, Generator& g)
{
    if (kind < 4) return random_vector<T>(n, static_cast<Fill>(kind), g);
    std::vector<T> v;
    for (int i = 0; i < n; ++i) {
        const double noise = normal(g, 1);
        v.push_back(static_cast<T>(kind == 4   ? std::ldexp(noise, uniform(g, -60, 60))
                                   : kind == 5 ? 1e7 + noise
                                   : kind == 6 ? std::ldexp(uniform(g, 0, 2) - 1, 53) + (sizeof(T) == 8)
                                               : -0.0));
    }
    return v;
}

struct Wanted {
    double sum, mean, deviation, product;
};
template <class T>
Wanted wanted(const std::vector<T>& a, const std::vector<T>& b)
{
    const double n = static_cast<double>(a.size());
    Wanted w = {};
    w.sum = sum_of(a, [&](std::size_t i) { return static_cast<double>(a[i]); });
    w.mean = over(w.sum, n);
    const double variance = over(sum_of(a, [&](std::size_t i) {
        const double distance = minus(static_cast<double>(a[i]), w.mean);
        return times(distance, distance);
    }), n);
    w.deviation = variance > 0 && variance <= std::numeric_limits<double>::max() ? exact_root(variance) : variance;
    w.product = sum_of(a, [&](std::size_t i) { return times(static_cast<double>(a[i]), static_cast<double>(b[i])); });
    return w;
}

void expect_results(const std::vector<float>& a, const std::vector<float>& b, const Wanted& want, bool fast)
{
    const int n = static_cast<int>(a.size());
    double sum, mean, deviation, both[2], product, alone[2];
    ASSERT_TRUE(W::Sum_32f(a.data(), n, &sum, fast) && W::Mean_32f(a.data(), n, &mean, fast));
    ASSERT_TRUE(W::StdDev_32f(a.data(), n, &deviation, fast) && W::MeanStdDev_32f(a.data(), n, both, both + 1, fast));
    ASSERT_TRUE(W::MeanStdDev_32f(a.data(), n, alone, nullptr, fast));
    ASSERT_TRUE(W::MeanStdDev_32f(a.data(), n, nullptr, alone + 1, fast));
    ASSERT_TRUE(W::MeanStdDev_32f(a.data(), n, nullptr, nullptr, fast));
    ASSERT_TRUE(W::DotProd_32f(a.data(), b.data(), n, &product));
    ASSERT_EQ(image(sum), image_of_result(want.sum));
    for (const double m : {mean, both[0], alone[0]}) ASSERT_EQ(image(m), image_of_result(want.mean));
    for (const double d : {deviation, both[1], alone[1]}) ASSERT_EQ(image(d), image_of_result(want.deviation));
    ASSERT_EQ(image(product), image_of_result(want.product));
}

void expect_results(const std::vector<double>& a, const std::vector<double>& b, const Wanted& want, bool)
{
    const int n = static_cast<int>(a.size());
    double sum, mean, product;
    ASSERT_TRUE(W::Sum_64f(a.data(), n, &sum) && W::Mean_64f(a.data(), n, &mean));
    ASSERT_TRUE(W::DotProd_64f(a.data(), b.data(), n, &product));
    ASSERT_EQ(image(sum), image_of_result(want.sum));
    ASSERT_EQ(image(mean), image_of_result(want.mean));
    ASSERT_EQ(image(product), image_of_result(want.product));
}

template <class T>
void check_order()
{
    Generator g = make_generator("order of sums");
    for (const int n : lengths()) {
        for (int kind = 0; kind < 8; ++kind) {
            if (n > 200 && kind % 2 == 0 && options().brief) continue;
            SCOPED_TRACE(std::to_string(n) + " elements of kind " + std::to_string(kind));
            const std::vector<T> a = telling_terms<T>(n, kind, g), b = telling_terms<T>(n, kind == 7 ? 4 : kind, g);
            const Wanted want = wanted(a, b);
            at_every_level([&] { expect_results(a, b, want, uniform(g, 0, 1) == 0); });
        }
    }
}

TEST(VectorStatistics, SumsKeepTheirOrder)
{
    check_order<float>();
    check_order<double>();
}

// A product that loses its last digits only when it is rounded, and one that is rounded where doubles end.
TEST(VectorStatistics, ProductsOfDoublesAreRounded)
{
    struct Case {
        double a[2], b[2];
    };
    const Case cases[] = {{{1 + 0x1p-30, -1}, {1 + 0x1p-30, 1 + 0x1p-29}},
                          {{0x1.fffffffffffffp-600, 0}, {0x1.0000000000001p-423, 0}},
                          {{0x1.8000000000001p-537, 0}, {0x1.5555555555555p-537, 0}}};
    for (const Case& c : cases) {
        std::vector<double> a(33), b(33);
        a[0] = c.a[0], a[32] = c.a[1], b[0] = c.b[0], b[32] = c.b[1];
        const double want = plus(times(a[0], b[0]), times(a[32], b[32]));
        at_every_level([&] {
            double got;
            ASSERT_TRUE(W::DotProd_64f(a.data(), b.data(), 33, &got));
            ASSERT_EQ(image(got), image(want));
        });
    }
}

TEST(VectorStatistics, HostsFloatControl)
{
    Generator g = make_generator("host control");
    const std::vector<float> a = telling_terms<float>(500, 4, g);
    const std::vector<double> b = telling_terms<double>(500, 4, g);
    const std::vector<float> tiny(70, std::numeric_limits<float>::denorm_min());
    expect_control_kept<double>(6, [&](double* r) {
        float least;
        r[5] = 0;
        return W::Sum_32f(a.data(), 500, r, true) && W::MeanStdDev_32f(a.data(), 500, r + 1, r + 2, false) &&
               W::DotProd_64f(b.data(), b.data(), 500, r + 3) && W::Mean_32f(tiny.data(), 70, r + 4, true) &&
               W::Min_32f(tiny.data(), 70, &least) && std::memcpy(r + 5, &least, sizeof(least)) != nullptr;
    });
}

// --- Extremes ---------------------------------------------------------------------------------------

template <class T>
struct ExtremeMethods {
    bool (*least)(const T*, int, T*);
    bool (*greatest)(const T*, int, T*);
    bool (*both)(const T*, int, T*, T*);
    bool (*first_least)(const T*, int, T*, int*);
    bool (*first_greatest)(const T*, int, T*, int*);
};

// The place of the definition; -1 if there are only NaNs.
template <class T, class Better>
int place_of(const std::vector<T>& v, Better better)
{
    int place = -1;
    for (std::size_t i = 0; i < v.size(); ++i) {
        const bool wins = place < 0 || better(v[i], v[static_cast<std::size_t>(place)]);
        if (v[i] == v[i] && wins) place = static_cast<int>(i);
    }
    return place;
}

template <class T>
void expect_extremes(const ExtremeMethods<T>& m, const std::vector<T>& v)
{
    const int n = static_cast<int>(v.size());
    const int low = place_of(v, [](T a, T b) { return a < b; }), high = place_of(v, [](T a, T b) { return a > b; });
    const std::uint64_t nan = sizeof(T) == 8 ? 0x7FF8000000000000u : 0x7FC00000u;
    const auto at = [&](int place) { return place < 0 ? nan : image(v[static_cast<std::size_t>(place)]); };
    const std::uint64_t lowest = at(low), highest = at(high);
    at_every_level([&] {
        T a, b, c, d, e, f;
        int first_low = -1, first_high = -1;
        ASSERT_TRUE(m.least(v.data(), n, &a) && m.greatest(v.data(), n, &b) && m.both(v.data(), n, &c, &d));
        ASSERT_TRUE(m.first_least(v.data(), n, &e, &first_low) && m.first_greatest(v.data(), n, &f, &first_high));
        for (const T* least : {&a, &c, &e}) ASSERT_EQ(image(*least), lowest) << n;
        for (const T* greatest : {&b, &d, &f}) ASSERT_EQ(image(*greatest), highest) << n;
        ASSERT_EQ(first_low, std::max(low, 0)) << n;
        ASSERT_EQ(first_high, std::max(high, 0)) << n;
    });
}

// All alike but for two elements.
template <class T>
std::vector<T> planted(int n, T common, int i, T first, int j, T second)
{
    std::vector<T> v(static_cast<std::size_t>(n), common);
    v[static_cast<std::size_t>(j)] = second;
    v[static_cast<std::size_t>(i)] = first;
    return v;
}

template <class T>
void check_extremes(const ExtremeMethods<T>& m)
{
    Generator g = make_generator("extremes");
    using L = std::numeric_limits<T>;
    for (const int n : lengths()) {
        for (int kind = 0; kind < 4; ++kind) expect_extremes(m, random_vector<T>(n, static_cast<Fill>(kind), g));
        for (int k = 0; k < 4; ++k) {
            const int i = uniform(g, 0, n - 1), j = uniform(g, 0, n - 1);
            expect_extremes(m, planted<T>(n, 100, i, static_cast<T>(99 + k), j, static_cast<T>(101 - k)));
            expect_extremes(m, planted<T>(n, 100, i, L::lowest(), j, L::max()));
        }
    }
    // Falling ones: each stretch has better ones than all before.
    std::vector<T> falling;
    for (int i = 0; i < 20000; ++i) falling.push_back(static_cast<T>((20000 - i) / (sizeof(T) == 1 ? 80 : 1)));
    expect_extremes(m, falling);
    std::reverse(falling.begin(), falling.end());
    expect_extremes(m, falling);
}

template <class T>
void check_zeros_and_nans(const ExtremeMethods<T>& m)
{
    const T nan = std::numeric_limits<T>::quiet_NaN(), inf = std::numeric_limits<T>::infinity(), zero = 0;
    const int n = 70;
    for (const T common : {T{1}, T{-1}, nan, inf, -inf}) {
        for (int i = 0; i < n; i += options().brief ? 7 : 1) {
            for (int j = 0; j < n; ++j) {
                expect_extremes(m, planted(n, common, i, zero, j, -zero));
                expect_extremes(m, planted(n, common, i, -zero, j, zero));
            }
            expect_extremes(m, planted(n, common, i, nan, n - 1 - i, -nan));
            expect_extremes(m, planted(n, common, i, inf, n - 1 - i, nan));
            expect_extremes(m, planted(n, common, i, -inf, n - 1 - i, nan));
        }
    }
    for (const int length : lengths()) {
        expect_extremes(m, std::vector<T>(static_cast<std::size_t>(length), -nan));
        expect_extremes(m, planted(length, nan, length - 1, inf, length - 1, inf));
    }
}

const ExtremeMethods<u8> kBytes = {W::Min_8u, W::Max_8u, W::MinMax_8u, W::MinIndx_8u, W::MaxIndx_8u};
const ExtremeMethods<u16> kWords = {W::Min_16u, W::Max_16u, W::MinMax_16u, W::MinIndx_16u, W::MaxIndx_16u};
const ExtremeMethods<int> kInts = {W::Min_32s, W::Max_32s, W::MinMax_32s, W::MinIndx_32s, W::MaxIndx_32s};
const ExtremeMethods<float> kFloats = {W::Min_32f, W::Max_32f, W::MinMax_32f, W::MinIndx_32f, W::MaxIndx_32f};
const ExtremeMethods<double> kDoubles = {W::Min_64f, W::Max_64f, W::MinMax_64f, W::MinIndx_64f, W::MaxIndx_64f};

TEST(VectorStatistics, ExtremesAndTheirPlaces)
{
    check_extremes(kBytes);
    check_extremes(kWords);
    check_extremes(kInts);
    check_extremes(kFloats);
    check_extremes(kDoubles);
}

TEST(VectorStatistics, ExtremesOfZerosAndNans)
{
    check_zeros_and_nans(kFloats);
    check_zeros_and_nans(kDoubles);
}

// --- Refusals ---------------------------------------------------------------------------------------

template <class T>
void check_refusals(const ExtremeMethods<T>& m)
{
    const T v[4] = {1, 2, 3, 4};
    T low = 7, high = 7;
    int place = 7;
    for (const int n : {0, -1, INT_MIN}) {
        EXPECT_FALSE(m.least(v, n, &low) || m.greatest(v, n, &low) || m.both(v, n, &low, &high));
        EXPECT_FALSE(m.first_least(v, n, &low, &place) || m.first_greatest(v, n, &low, &place));
    }
    EXPECT_FALSE(m.least(nullptr, 4, &low) || m.greatest(v, 4, nullptr));
    EXPECT_FALSE(m.both(v, 4, &low, nullptr) || m.both(v, 4, nullptr, &high) || m.both(nullptr, 4, &low, &high));
    EXPECT_FALSE(m.first_least(v, 4, &low, nullptr) || m.first_greatest(v, 4, nullptr, &place));
    EXPECT_TRUE(low == 7 && high == 7 && place == 7);
}

TEST(VectorStatistics, RefuseAndWriteNothing)
{
    const float a[4] = {1, 2, 3, 4};
    const double b[4] = {1, 2, 3, 4};
    at_every_level([&] {
        check_refusals(kBytes);
        check_refusals(kWords);
        check_refusals(kInts);
        check_refusals(kFloats);
        check_refusals(kDoubles);
        double r = 7, s = 7;
        for (const int n : {0, -1, INT_MIN}) {
            EXPECT_FALSE(W::Sum_32f(a, n, &r, true) || W::Mean_64f(b, n, &r) || W::StdDev_32f(a, n, &r, false));
            EXPECT_FALSE(W::MeanStdDev_32f(a, n, &r, &s, true) || W::MeanStdDev_32f(a, n, nullptr, nullptr, true));
            EXPECT_FALSE(W::DotProd_32f(a, a, n, &r) || W::DotProd_64f(b, b, n, &r));
        }
        EXPECT_FALSE(W::Sum_32f(nullptr, 4, &r, true) || W::Sum_64f(b, 4, nullptr));
        EXPECT_FALSE(W::StdDev_32f(a, 4, nullptr, true) || W::StdDev_32f(nullptr, 4, &r, true));
        EXPECT_FALSE(W::MeanStdDev_32f(nullptr, 4, &r, &s, true) || W::DotProd_32f(a, nullptr, 4, &r));
        EXPECT_FALSE(W::DotProd_64f(nullptr, b, 4, &r) || W::DotProd_64f(b, b, 4, nullptr));
        EXPECT_TRUE(r == 7 && s == 7);
    });
}

}  // namespace
}  // namespace test
