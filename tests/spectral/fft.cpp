// The transforms against long double, at every level; the same bits at all of them.
#include <cstring>
#include <iostream>
#include <vector>

#include "gmock/gmock.h"
#include "spectral/fft.h"
#include "support/dft.h"
#include "support/image.h"
#include "support/levels.h"

namespace test {
namespace {

using namespace orv;

std::vector<float> random_signal(std::size_t n, std::mt19937& g)
{
    std::vector<float> x(n);
    for (float& v : x) v = std::uniform_real_distribution<float>(-1, 1)(g);
    return x;
}

// A bound for the relative error that single precision with careful roots keeps at every length. Over
// a handful of values chance has its part.
double error_bound(int order) { return std::sqrt(std::max(order, 1)) * 0x1p-24 * (order < 5 ? 1.5 : 1); }

// Memory for a plan of exactly the reported sizes, at addresses that are not aligned.
class Memory {
public:
    explicit Memory(int bytes, std::size_t offset = 4)
        : owner_(static_cast<std::size_t>(bytes) + offset), offset_(offset)
    {
    }
    unsigned char* data() { return owner_.data() + offset_; }

private:
    std::vector<unsigned char> owner_;
    std::size_t offset_;
};

class Plan {
public:
    Plan(int order, int flag)
    {
        int spec, init, work;
        EXPECT_EQ(orv_fft_sizes(order, flag, 1, &spec, &init, &work), StatusOk);
        memory_.reset(new Memory(spec));
        work_.reset(new Memory(work));
        Memory temporary(init);
        EXPECT_EQ(orv_FftInit(&spec_, order, flag, 1, memory_->data(), init == 0 ? nullptr : temporary.data()),
                  StatusOk);
        needs_work_ = work != 0;
    }
    const FftSpec* spec() const { return spec_; }
    unsigned char* work() { return needs_work_ ? work_->data() : nullptr; }
    Status run(const float* src, float* dst) { return orv_FftForward_32f(src, dst, spec_, work()); }

private:
    std::unique_ptr<Memory> memory_, work_;
    FftSpec* spec_ = nullptr;
    bool needs_work_;
};

class Plan2 {
public:
    Plan2(int orderX, int orderY, int flag)
    {
        int spec, init, work;
        EXPECT_EQ(orv_fft2_sizes(orderX, orderY, flag, 0, &spec, &init, &work), StatusOk);
        memory_.reset(new Memory(spec));
        work_.reset(new Memory(work));
        Memory temporary(init);
        EXPECT_EQ(
            orv_Fft2Init(&spec_, orderX, orderY, flag, 0, memory_->data(), init == 0 ? nullptr : temporary.data()),
            StatusOk);
    }
    Status forward(const float* src, int srcStep, float* dst, int dstStep)
    {
        return orv_Fft2Forward_32f(src, srcStep, dst, dstStep, spec_, work_->data());
    }
    Status inverse(const float* src, int srcStep, float* dst, int dstStep)
    {
        return orv_Fft2Inverse_32f(src, srcStep, dst, dstStep, spec_, work_->data());
    }

private:
    std::unique_ptr<Memory> memory_, work_;
    Fft2Spec* spec_ = nullptr;
};

// --- Statuses -------------------------------------------------------------------------------------

TEST(Fft, SizesAndChecksInTheirOrder)
{
    struct Row {
        int order, flag;
        bool null;
        Status status;
    };
    const Row rows[] = {
        {-1, 3, true, StatusBadFftOrder}, {31, 3, true, StatusBadFftOrder},  {30, 3, true, StatusNullPointer},
        {29, 3, false, StatusBadFftFlag}, {29, 2, false, StatusBadFftOrder}, {30, 8, false, StatusBadFftOrder},
        {5, 0, false, StatusBadFftFlag},  {5, 16, false, StatusBadFftFlag},  {5, -1, false, StatusBadFftFlag},
        {5, 2, true, StatusNullPointer},  {28, 4, false, StatusOk}};
    for (const Row& row : rows) {
        SCOPED_TRACE(std::to_string(row.order) + " " + std::to_string(row.flag));
        int spec = -7, init = -7, work = -7;
        EXPECT_EQ(orv_fft_sizes(row.order, row.flag, 0, &spec, row.null ? nullptr : &init, &work), row.status);
        if (row.status != StatusOk) {
            EXPECT_THAT((std::vector<int>{spec, init, work}), testing::Each(-7));
            std::vector<unsigned char> memory(4096, 0xAB);
            FftSpec* record = reinterpret_cast<FftSpec*>(&memory);
            EXPECT_EQ(orv_FftInit(&record, row.order, row.flag, 0, row.null ? nullptr : memory.data(), memory.data()),
                      row.status);
            EXPECT_EQ(record, reinterpret_cast<FftSpec*>(&memory));
            EXPECT_THAT(memory, testing::Each(0xAB));
        }
    }
    for (int order = 0; order <= 28; ++order) {
        int spec, init, work;
        ASSERT_EQ(orv_fft_sizes(order, 2, 1, &spec, &init, &work), StatusOk);
        if (order <= 5) {
            EXPECT_THAT((std::vector<int>{spec, init, work}), testing::ElementsAre(152, 0, 0));
        }
        EXPECT_EQ(init > 0, order > 10);
        EXPECT_GT(spec, 0);
    }
    // The initialisation buffer is asked for only where its size is.
    std::vector<unsigned char> memory(1 << 20);
    FftSpec* record = nullptr;
    EXPECT_EQ(orv_FftInit(&record, 10, 2, 1, memory.data(), nullptr), StatusOk);
    EXPECT_EQ(orv_FftInit(&record, 11, 2, 1, memory.data(), nullptr), StatusNullPointer);
    EXPECT_EQ(orv_FftInit(nullptr, 5, 2, 1, memory.data(), nullptr), StatusNullPointer);

    int spec = -7, init = -7, work = -7;
    EXPECT_EQ(orv_fft2_sizes(0, 5, 2, 0, &spec, &init, &work), StatusBadFftOrder);
    EXPECT_EQ(orv_fft2_sizes(5, 31, 2, 0, &spec, &init, &work), StatusBadFftOrder);
    EXPECT_EQ(orv_fft2_sizes(5, 5, 2, 0, &spec, nullptr, &work), StatusNullPointer);
    EXPECT_EQ(orv_fft2_sizes(5, 5, 7, 0, &spec, &init, &work), StatusBadFftFlag);
    EXPECT_THAT((std::vector<int>{spec, init, work}), testing::Each(-7));
    // W H up to 2^28, W up to 2^26, H up to 2^24.
    for (int x = 1; x <= 29; ++x) {
        for (int y = 1; y <= 29; ++y) {
            const bool fits = x + y <= 28 && x <= 26 && y <= 24;
            const Status want = fits ? StatusOk : StatusBadFftOrder;
            EXPECT_EQ(orv_fft2_sizes(x, y, 2, 0, &spec, &init, &work), want) << x << " " << y;
        }
    }
}

TEST(Fft, RefusalsWriteNothing)
{
    Plan plan(7, 2);
    Plan2 plan2(3, 3, 2);
    std::vector<float> src(130, 1.0f), dst(130, 5.0f);
    EXPECT_EQ(orv_FftForward_32f(nullptr, dst.data(), plan.spec(), plan.work()), StatusNullPointer);
    EXPECT_EQ(orv_FftForward_32f(src.data(), nullptr, plan.spec(), plan.work()), StatusNullPointer);
    EXPECT_EQ(orv_FftForward_32f(src.data(), dst.data(), nullptr, plan.work()), StatusNullPointer);
    EXPECT_EQ(orv_FftForward_32f(src.data(), dst.data(), plan.spec(), nullptr), StatusNullPointer);
    alignas(64) unsigned char other[256] = {};
    EXPECT_EQ(orv_FftForward_32f(src.data(), dst.data(), reinterpret_cast<FftSpec*>(other), plan.work()),
              StatusBadFftRecord);
    EXPECT_EQ(plan2.forward(nullptr, 32, dst.data(), 32), StatusNullPointer);
    EXPECT_EQ(plan2.forward(src.data(), 0, dst.data(), 32), StatusBadStep);
    EXPECT_EQ(plan2.forward(src.data(), 32, dst.data(), -32), StatusBadStep);
    EXPECT_EQ(plan2.inverse(src.data(), 32, nullptr, 0), StatusNullPointer);
    EXPECT_EQ(plan2.inverse(src.data(), -1, dst.data(), 32), StatusBadStep);
    EXPECT_EQ(orv_Fft2Forward_32f(src.data(), 32, dst.data(), 32, reinterpret_cast<Fft2Spec*>(other), other),
              StatusBadFftRecord);
    EXPECT_THAT(dst, testing::Each(5.0f));
}

// --- One dimension --------------------------------------------------------------------------------

TEST(Fft, ForwardAgainstLongDoubleTheSameAtEveryLevel)
{
    auto g = make_generator("Fft");
    const int highest = options().brief ? 11 : 20;
    double worst = 0;
    for (int order = 0; order <= highest; ++order) {
        SCOPED_TRACE("order " + std::to_string(order));
        const std::size_t n = std::size_t{1} << order, written = order == 0 ? 2 : n + 2;
        const std::vector<float> x = random_signal(n, g);
        const std::vector<Wide> want = dft(std::vector<Wide>(x.begin(), x.end()));
        std::vector<float> first;
        at_every_level([&] {
            if (order > 16 && orv_variant_index != level_px && orv_variant_index != level_g9) return;
            Plan plan(order, 2);
            std::vector<float> out(written + 2, 77.0f);
            ASSERT_EQ(plan.run(x.data(), out.data()), StatusOk);
            EXPECT_EQ(out[written], 77.0f);
            EXPECT_EQ(out[1], 0.0f);
            EXPECT_EQ(out[written - 1], 0.0f);
            if (first.empty()) {
                first = out;
                Error error;
                for (std::size_t k = 0; 2 * k < written; ++k) error.add(Wide(out[2 * k], out[2 * k + 1]), want[k]);
                EXPECT_LE(error.relative(), error_bound(order));
                if (order >= 5) worst = std::max(worst, error.relative() / error_bound(order));
            } else {
                EXPECT_EQ(std::memcmp(out.data(), first.data(), out.size() * sizeof(float)), 0);
            }
            std::vector<float> in_place(x);
            in_place.resize(written);
            ASSERT_EQ(plan.run(in_place.data(), in_place.data()), StatusOk);
            EXPECT_EQ(std::memcmp(in_place.data(), first.data(), written * sizeof(float)), 0);
        });
    }
    std::cout << "largest relative error: " << worst << " x 2^-24 x sqrt(order)\n";
}

TEST(Fft, ImpulsesGiveEveryRoot)
{
    // One sample that is 1: each output is a root of unity, which shows a wrong table entry that
    // an error bound over random data would hide.
    for (const int order : {4, 5, 6, 7, 8, 9, 10, 11, 13}) {
        const std::size_t n = std::size_t{1} << order;
        at_every_level([&] {
            Plan plan(order, 8);
            for (const std::size_t at : {std::size_t{0}, std::size_t{1}, n / 2 + 1, n - 3}) {
                std::vector<float> x(n), out(n + 2);
                x[at] = 1;
                plan.run(x.data(), out.data());
                for (std::size_t k = 0; k <= n / 2; ++k) {
                    const Wide want = root(at * k, n);
                    ASSERT_NEAR(out[2 * k], static_cast<double>(want.real()), 3e-7) << order << " " << at << " " << k;
                    ASSERT_NEAR(out[2 * k + 1], static_cast<double>(want.imag()), 3e-7)
                        << order << " " << at << " " << k;
                }
            }
        });
    }
}

TEST(Fft, FlagsScaleTheResult)
{
    auto g = make_generator("FftFlags");
    for (const int order : {0, 3, 6, 9}) {
        const std::size_t n = std::size_t{1} << order, written = order == 0 ? 2 : n + 2;
        const std::vector<float> x = random_signal(n, g);
        std::vector<float> plain(written), scaled(written);
        Plan(order, 8).run(x.data(), plain.data());
        for (const int flag : {1, 2, 4}) {
            const double n_double = static_cast<double>(n);
            const float scale = static_cast<float>(flag == 1   ? 1.0 / n_double
                                                   : flag == 4 ? 1.0 / std::sqrt(n_double)
                                                               : 1.0);
            at_every_level([&] {
                Plan(order, flag).run(x.data(), scaled.data());
                for (std::size_t i = 0; i < written; ++i) {
                    const volatile float product = plain[i] * scale;
                    ASSERT_EQ(scaled[i], product) << order << " " << flag;
                }
            });
        }
    }
}

TEST(Fft, ReadsAndWritesItsArraysOnly)
{
    auto g = make_generator("FftFences");
    for (int order = 0; order <= 10; ++order) {
        const int n = 1 << order, written = order == 0 ? 2 : n + 2;
        for (const bool right : {false, true}) {
            Image src(4 * n, 1, {true, right, 0, 0}, g), dst(4 * written, 1, {true, right, 0, 0}, g);
            src.fill<float>(g, Fill::special);
            at_every_level([&] {
                Plan plan(order, 2);
                const auto before = src.bytes();
                ASSERT_EQ(plan.run(src.pixels<float>(), dst.pixels<float>()), StatusOk);
                EXPECT_EQ(src.bytes(), before);
                // Zero by symmetry whatever comes in.
                EXPECT_EQ(dst.pixels<float>()[1], 0.0f);
                EXPECT_EQ(dst.pixels<float>()[written - 1], 0.0f);
            });
        }
    }
}

TEST(Fft, ExpansionCopiesAndConjugates)
{
    at_every_level([] {
        for (int length = 1; length <= 9; ++length) {
            std::vector<std::uint32_t> src(static_cast<std::size_t>(length / 2 + 1) * 2),
                dst(2 * static_cast<std::size_t>(length) + 2, 99);
            for (std::size_t i = 0; i < src.size(); ++i)
                src[i] = static_cast<std::uint32_t>(0x7F800001u + i);  // signalling NaNs
            ASSERT_EQ(orv_ExpandCcs_32fc(reinterpret_cast<Complex32f*>(src.data()),
                                         reinterpret_cast<Complex32f*>(dst.data()), length),
                      StatusOk);
            for (int k = 0; k < length; ++k) {
                const bool mirrored = k > length / 2;
                const std::size_t from = 2 * static_cast<std::size_t>(mirrored ? length - k : k),
                                  to = 2 * static_cast<std::size_t>(k);
                EXPECT_EQ(dst[to], src[from]);
                EXPECT_EQ(dst[to + 1], src[from + 1] ^ (mirrored ? 0x80000000u : 0)) << length << " " << k;
            }
            EXPECT_EQ(dst[2 * static_cast<std::size_t>(length)], 99u);
        }
        Complex32f one[2] = {};
        EXPECT_EQ(orv_ExpandCcs_32fc(nullptr, one, 0), StatusNullPointer);
        EXPECT_EQ(orv_ExpandCcs_32fc(one, nullptr, 1), StatusNullPointer);
        EXPECT_EQ(orv_ExpandCcs_32fc(one, one, 0), StatusBadSize);
    });
}

// --- Two dimensions -------------------------------------------------------------------------------

// F[v][u] of a W x H image, rows first.
std::vector<std::vector<Wide>> dft2(const std::vector<float>& image, std::size_t width, std::size_t height)
{
    std::vector<std::vector<Wide>> f(height);
    for (std::size_t y = 0; y < height; ++y)
        f[y] = dft(std::vector<Wide>(image.begin() + static_cast<std::ptrdiff_t>(y * width),
                                     image.begin() + static_cast<std::ptrdiff_t>((y + 1) * width)));
    for (std::size_t u = 0; u < width; ++u) {
        std::vector<Wide> column(height);
        for (std::size_t v = 0; v < height; ++v) column[v] = f[v][u];
        column = dft(column);
        for (std::size_t v = 0; v < height; ++v) f[v][u] = column[v];
    }
    return f;
}

// RCPack2D by its table.
std::vector<float> packed(const std::vector<std::vector<Wide>>& f, long double factor)
{
    const std::size_t height = f.size(), width = f[0].size();
    std::vector<float> p(width * height);
    const auto put = [&](std::size_t row, std::size_t column, long double value) {
        p[row * width + column] = static_cast<float>(value * factor);
    };
    for (std::size_t v = 0; v < height; ++v) {
        for (std::size_t u = 1; u < width / 2; ++u) {
            put(v, 2 * u - 1, f[v][u].real());
            put(v, 2 * u, f[v][u].imag());
        }
    }
    for (const std::size_t u : {std::size_t{0}, width / 2}) {
        const std::size_t column = u == 0 ? 0 : width - 1;
        put(0, column, f[0][u].real());
        put(height - 1, column, f[height / 2][u].real());
        for (std::size_t v = 1; v < height / 2; ++v) {
            put(2 * v - 1, column, f[v][u].real());
            put(2 * v, column, f[v][u].imag());
        }
    }
    return p;
}

double relative_error(const float* got, const float* want, std::size_t n)
{
    Error error;
    for (std::size_t i = 0; i < n; ++i) error.add(Wide(got[i]), Wide(want[i]));
    return error.relative();
}

struct Shape {
    int x, y;
};

std::vector<Shape> shapes()
{
    std::vector<Shape> all;
    for (int x = 1; x <= 8; ++x) {
        for (int y = 1; y <= 5; ++y) all.push_back({x, y});
    }
    for (const Shape s : {Shape{1, 9}, {2, 12}, {9, 1}, {12, 2}, {4, 8}, {7, 7}, {8, 10}, {10, 8}}) {
        if (!options().brief) all.push_back(s);
    }
    return all;
}

TEST(Fft2, PackedSpectraAndBackTheSameAtEveryLevel)
{
    auto g = make_generator("Fft2");
    for (const Shape shape : shapes()) {
        SCOPED_TRACE(std::to_string(shape.x) + ", " + std::to_string(shape.y));
        const std::size_t width = std::size_t{1} << shape.x, height = std::size_t{1} << shape.y, n = width * height;
        const int step = static_cast<int>(width * sizeof(float));
        const std::vector<float> image = random_signal(n, g);
        const std::vector<float> want = packed(dft2(image, width, height), 1);
        const double bound = error_bound(shape.x + shape.y);
        std::vector<float> first, first_back;
        at_every_level([&] {
            Plan2 plan(shape.x, shape.y, 2);
            std::vector<float> spectrum(n), back(n);
            ASSERT_EQ(plan.forward(image.data(), step, spectrum.data(), step), StatusOk);
            ASSERT_EQ(plan.inverse(spectrum.data(), step, back.data(), step), StatusOk);
            if (first.empty()) {
                first = spectrum;
                first_back = back;
                EXPECT_LE(relative_error(spectrum.data(), want.data(), n), bound);
                EXPECT_LE(relative_error(back.data(), image.data(), n), 2 * bound);
            }
            ASSERT_EQ(std::memcmp(spectrum.data(), first.data(), n * sizeof(float)), 0);
            ASSERT_EQ(std::memcmp(back.data(), first_back.data(), n * sizeof(float)), 0);
            std::vector<float> same(image);
            plan.forward(same.data(), step, same.data(), step);
            ASSERT_EQ(std::memcmp(same.data(), first.data(), n * sizeof(float)), 0);
            plan.inverse(same.data(), step, same.data(), step);
            ASSERT_EQ(std::memcmp(same.data(), first_back.data(), n * sizeof(float)), 0);
        });
    }
}

TEST(Fft2, InverseOfOneFrequencyIsItsWave)
{
    // Independent of the forward transform: each packed value alone.
    for (const Shape shape : {Shape{3, 2}, {5, 3}, {7, 2}}) {
        const std::size_t width = std::size_t{1} << shape.x, height = std::size_t{1} << shape.y, n = width * height;
        const int step = static_cast<int>(width * sizeof(float));
        at_every_level([&] {
            Plan2 plan(shape.x, shape.y, 8);
            for (std::size_t at = 0; at < n; at += n > 64 ? 5 : 1) {
                std::vector<float> p(n), got(n);
                p[at] = 1;
                plan.inverse(p.data(), step, got.data(), step);
                // The spectrum of the result, as packed: n in one place.
                const std::vector<float> again = packed(dft2(got, width, height), 1.0L / static_cast<long double>(n));
                for (std::size_t i = 0; i < n; ++i) ASSERT_NEAR(again[i], i == at ? 1 : 0, 1e-6) << at << " " << i;
            }
        });
    }
}

// Results as large as floats are, of sums that are larger: they come out, in place too.
TEST(Fft2, LargeResultsDoNotOverflowOnTheirWay)
{
    auto g = make_generator("Fft2Large");
    for (const Shape shape : {Shape{1, 1}, {2, 3}, {3, 1}, {4, 4}, {6, 3}, {6, 6}, {7, 1}, {7, 5}, {9, 4}}) {
        SCOPED_TRACE(std::to_string(shape.x) + ", " + std::to_string(shape.y));
        const std::size_t width = std::size_t{1} << shape.x, height = std::size_t{1} << shape.y, n = width * height;
        const int step = static_cast<int>(width * sizeof(float));
        // Exactly 2^100 times as large as another image, so their transforms are, too: one that reaches 0.9 of the
        // largest float somewhere, and impulses, which are as large everywhere.
        std::vector<float> image = random_signal(n, g), small(n), plain(n), back(n), large(n), large_back(n);
        for (const int kind : {0, 1, 2}) {
            if (kind > 0) {
                image.assign(n, 0.0f);
                image[kind == 1 ? 0 : n - 3 % n] = 1;
            }
            Plan2 reference(shape.x, shape.y, 2);
            reference.forward(image.data(), step, plain.data(), step);
            float largest = 0;
            for (const float v : plain) largest = std::max(largest, std::fabs(v));
            const float factor = 0.9f * 0x1p28f / largest;
            for (std::size_t i = 0; i < n; ++i) small[i] = image[i] * factor;
            reference.forward(small.data(), step, plain.data(), step);
            reference.inverse(plain.data(), step, back.data(), step);
            at_every_level([&] {
                Plan2 plan(shape.x, shape.y, 2);
                const auto expect_scaled = [&](const std::vector<float>& got, const std::vector<float>& want) {
                    for (std::size_t i = 0; i < n; ++i) ASSERT_EQ(got[i], want[i] * 0x1p100f) << kind << " " << i;
                };
                for (std::size_t i = 0; i < n; ++i) large[i] = small[i] * 0x1p100f;
                std::vector<float> in_place(large);
                plan.forward(large.data(), step, large_back.data(), step);
                expect_scaled(large_back, plain);
                plan.forward(in_place.data(), step, in_place.data(), step);
                expect_scaled(in_place, plain);
                plan.inverse(large_back.data(), step, large.data(), step);
                expect_scaled(large, back);
                plan.inverse(in_place.data(), step, in_place.data(), step);
                expect_scaled(in_place, back);
            });
        }
    }
}

// What does not fit into a float is infinite, and nothing else is.
TEST(Fft2, OneResultTooLargeLeavesTheOthers)
{
    for (const Shape shape : {Shape{1, 2}, {5, 4}, {8, 3}}) {
        const std::size_t n = std::size_t{1} << (shape.x + shape.y);
        const int step = 4 << shape.x;
        at_every_level([&] {
            std::vector<float> image(n, 1e38f);
            Plan2(shape.x, shape.y, 2).forward(image.data(), step, image.data(), step);
            EXPECT_EQ(image[0], std::numeric_limits<float>::infinity());
            EXPECT_THAT(std::vector<float>(image.begin() + 1, image.end()), testing::Each(0.0f));
        });
    }
}

// Floats of the smallest kind keep their digits: nothing is scaled down on the way.
TEST(Fft2, SmallestNumbersStay)
{
    for (const Shape shape : {Shape{1, 2}, {5, 4}, {8, 3}}) {
        const std::size_t n = std::size_t{1} << (shape.x + shape.y);
        const int step = 4 << shape.x;
        at_every_level([&] {
            Plan2 plan(shape.x, shape.y, 2);
            std::vector<float> image(n), spectrum(n);
            image[0] = 0x1p-149f;
            plan.forward(image.data(), step, spectrum.data(), step);
            EXPECT_EQ(spectrum[0], 0x1p-149f);
            image.assign(n, 0x1p-149f);
            plan.forward(image.data(), step, spectrum.data(), step);
            EXPECT_EQ(spectrum[0], static_cast<float>(n) * 0x1p-149f);
            plan.inverse(spectrum.data(), step, spectrum.data(), step);
            EXPECT_EQ(spectrum, image);
        });
    }
}

#if defined(__SSE__)
// The host's record of an overflow neither slows its transforms nor is lost.
TEST(Fft2, HostsOverflowFlagStays)
{
    std::vector<float> image(64, 1.0f), spectrum(64);
    const unsigned host = __builtin_ia32_stmxcsr();
    at_every_level([&] {
        Plan2 plan(3, 3, 2);
        for (const unsigned flag : {0u, 8u}) {
            __builtin_ia32_ldmxcsr((host & ~0x3Fu) | flag);
            plan.forward(image.data(), 32, spectrum.data(), 32);
            plan.inverse(spectrum.data(), 32, spectrum.data(), 32);
            EXPECT_EQ(__builtin_ia32_stmxcsr() & 8u, flag);
        }
    });
    __builtin_ia32_ldmxcsr(host);
}
#endif

TEST(Fft2, FlagsScaleTheResults)
{
    auto g = make_generator("Fft2Flags");
    const std::size_t n = 32 * 8;
    const std::vector<float> image = random_signal(n, g);
    std::vector<float> plain(n), plain_inverse(n), scaled(n);
    Plan2(5, 3, 8).forward(image.data(), 128, plain.data(), 128);
    Plan2(5, 3, 8).inverse(image.data(), 128, plain_inverse.data(), 128);
    struct Row {
        int flag;
        double forward, inverse;
    };
    for (const Row row : {Row{1, 1.0 / 256, 1}, {2, 1, 1.0 / 256}, {4, 1.0 / 16, 1.0 / 16}}) {
        at_every_level([&] {
            Plan2 plan(5, 3, row.flag);
            plan.forward(image.data(), 128, scaled.data(), 128);
            for (std::size_t i = 0; i < n; ++i) ASSERT_EQ(scaled[i], static_cast<float>(plain[i] * row.forward));
            plan.inverse(image.data(), 128, scaled.data(), 128);
            for (std::size_t i = 0; i < n; ++i)
                ASSERT_EQ(scaled[i], static_cast<float>(plain_inverse[i] * row.inverse));
        });
    }
}

TEST(Fft2, TouchesItsBlockOnlyAtAnyStep)
{
    auto g = make_generator("Fft2Steps");
    for (int i = 0; i < 60; ++i) {
        const int x = uniform(g, 1, 7), y = uniform(g, 1, 5);
        const int row_bytes = 4 << x, height = 1 << y;
        Placement place = {};
        place.fenced = height <= FencedRows::kRows && i % 2 == 0;
        place.flush_right = i % 4 == 0;
        place.step = row_bytes + uniform(g, 0, 9);
        place.offset = uniform(g, 0, 5);
        Image src(row_bytes, height, place, g);
        place.step = row_bytes + uniform(g, 0, 9);
        place.offset = uniform(g, 0, 5);
        Image dst(row_bytes, height, place, g);
        src.fill<float>(g, Fill::uniform);
        const auto src_before = src.bytes(), dst_before = dst.bytes();
        at_every_level([&] {
            Plan2 plan(x, y, 2);
            for (const bool inverse : {false, true}) {
                dst.restore(dst_before);
                std::vector<float> in(static_cast<std::size_t>(row_bytes * height) / 4), out(in.size());
                for (int r = 0; r < height; ++r)
                    std::memcpy(in.data() + r * row_bytes / 4, src.row(r), static_cast<std::size_t>(row_bytes));
                if (inverse) {
                    plan.inverse(in.data(), row_bytes, out.data(), row_bytes);
                    plan.inverse(src.pixels<float>(), src.step(), dst.pixels<float>(), dst.step());
                } else {
                    plan.forward(in.data(), row_bytes, out.data(), row_bytes);
                    plan.forward(src.pixels<float>(), src.step(), dst.pixels<float>(), dst.step());
                }
                for (int r = 0; r < height; ++r) {
                    ASSERT_EQ(
                        std::memcmp(dst.row(r), out.data() + r * row_bytes / 4, static_cast<std::size_t>(row_bytes)),
                        0);
                }
                ASSERT_EQ(src.bytes(), src_before);
                // With the block put back as it was, every byte is as it was.
                auto after = dst.bytes();
                dst.restore(dst_before);
                std::vector<std::vector<unsigned char>> rows;
                for (int r = 0; r < height; ++r) rows.emplace_back(dst.row(r), dst.row(r) + row_bytes);
                dst.restore(after);
                for (int r = 0; r < height; ++r)
                    std::memcpy(dst.row(r), rows[static_cast<std::size_t>(r)].data(),
                                static_cast<std::size_t>(row_bytes));
                ASSERT_EQ(dst.bytes(), dst_before);
            }
        });
    }
}

}  // namespace
}  // namespace test
