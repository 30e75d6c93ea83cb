// Resizing through plans, against the definition: every pixel from its own taps, in long double.
#include "image/resize/resize_cubic.h"
#include "image/resize/resize_linear.h"
#include "image/resize/resize_nearest.h"
#include "image/resize/resize_plan.h"
#include "support/image_tests.h"

namespace test {
namespace {

enum Method { nearest, linear, cubic };

template <class T>
using Plain = bool (*)(const T*, int, int, int, T*, int, int, int, double, double);
template <class T>
using Centred = bool (*)(const T*, int, int, int, T*, int, int, int, double, double, double, double);

// --- Oracle ---------------------------------------------------------------------------------------

// Where a destination position lies; volatile keeps the x87 of 32-bit builds to doubles.
struct Position {
    int index;
    float fraction;
};
Position position_of(Method method, int i, int source, int destination)
{
    volatile double scale = static_cast<double>(source) / destination;
    if (method == nearest) {
        volatile double at = (i + 0.5) * scale;
        at = at - 1e-10;
        return {at < 0 ? 0 : static_cast<int>(at), 0};
    }
    volatile double u = (i + 0.5) * scale;
    u = u - 0.5;
    const double below = std::floor(static_cast<double>(u));
    volatile float f = static_cast<float>(u - below);
    return {static_cast<int>(below), f};
}

float cubic_weight(double d)
{
    d = std::fabs(d);
    if (d < 1) return static_cast<float>(1.5 * d * d * d - 2.5 * d * d + 1);
    if (d < 2) return static_cast<float>(-0.5 * d * d * d + 2.5 * d * d - 4 * d + 2);
    return 0;
}

template <class T>
T nearest_even(long double v)
{
    const long double most = std::numeric_limits<T>::max();
    const long double below = std::floor(v);
    const long double rest = v - below;
    long double r = below;
    if (rest > 0.5L || (rest == 0.5L && std::fmod(below, 2.0L) != 0)) r += 1;
    return static_cast<T>(r < 0 ? 0 : r > most ? most : r);
}

// A scale such as 11/9 puts positions that ought to lie on a pixel a few units of the last place beside it, with
// weights of 1e-15: ties that are none, which the order of a sum in double decides. Such weights come from a
// cancellation, too: the x87 makes them of other sizes, and what they add up to may be nothing.
bool is_almost_a_tie(long double v, Position x, Position y)
{
    const auto beside = [](Position p) { return p.fraction > 0 && p.fraction < 1e-10f; };
    const long double distance = std::fabs(v - std::floor(v) - 0.5L);
    return distance < 1e-10L && (distance > 0 || beside(x) || beside(y));
}

template <class T>
struct Expected {
    T pixel;
    bool or_its_neighbour;
};

template <class T>
Expected<T> expected_pixel(Method method, Image& src, int srcWidth, int srcHeight, Size destination, int x, int y,
                           int channels, int c)
{
    const auto at = [&](int column, int row) {
        T value;
        column = std::min(std::max(column, 0), srcWidth - 1);
        row = std::min(std::max(row, 0), srcHeight - 1);
        std::memcpy(&value, src.row(row) + (column * channels + c) * static_cast<int>(sizeof(T)), sizeof(T));
        return static_cast<long double>(value);
    };
    const Position px = position_of(method, x, srcWidth, destination.width),
                   py = position_of(method, y, srcHeight, destination.height);
    if (method == nearest) return {static_cast<T>(at(px.index, py.index)), false};
    if (method == linear) {
        long double row[2];
        for (int k = 0; k < 2; ++k) {
            const long double a = at(px.index, py.index + k), b = at(px.index + 1, py.index + k);
            row[k] = a + (b - a) * px.fraction;
        }
        const long double v = row[0] + (row[1] - row[0]) * py.fraction;
        return {nearest_even<T>(v), is_almost_a_tie(v, px, py)};
    }
    long double sum = 0;
    for (int j = -1; j <= 2; ++j) {
        long double row = 0;
        for (int i = -1; i <= 2; ++i)
            row += at(px.index + i, py.index + j) * cubic_weight(static_cast<double>(px.fraction) - i);
        sum += row * cubic_weight(static_cast<double>(py.fraction) - j);
    }
    return {nearest_even<T>(sum), is_almost_a_tie(sum, px, py)};
}

template <class T>
void expect_pixels(Method method, Image& src, int srcWidth, int srcHeight, Image& dst, Size destination, Size written,
                   int x0, int y0, int channels)
{
    for (int y = 0; y < written.height; ++y) {
        for (int i = 0; i < written.width * channels; ++i) {
            T actual;
            std::memcpy(&actual, dst.row(y) + i * static_cast<int>(sizeof(T)), sizeof(T));
            const auto expected = expected_pixel<T>(method, src, srcWidth, srcHeight, destination, i / channels + x0,
                                                    y + y0, channels, i % channels);
            if (expected.or_its_neighbour && std::abs(int{actual} - int{expected.pixel}) == 1) continue;
            ASSERT_EQ(actual, expected.pixel)
                << srcWidth << "x" << srcHeight << " to " << destination.width << "x" << destination.height
                << ", column " << i / channels << ", row " << y << ", channel " << i % channels;
        }
    }
}

// --- Every operation against the oracle -----------------------------------------------------------

Image make_image(int row_bytes, int height, bool fenced, std::mt19937& g)
{
    Placement where = {};
    where.fenced = fenced && row_bytes <= FencedRows::kRowBytes && height <= FencedRows::kRows;
    where.flush_right = uniform(g, 0, 3) != 0;
    where.step = row_bytes + 2 * uniform(g, 0, 20);
    if (uniform(g, 0, 3) == 0) where.step = -where.step;
    where.offset = uniform(g, 0, 7);
    return Image(row_bytes, height, where, g);
}

// Images of a few levels meet ties; those of noise do not.
template <class T>
void paint(Image& image, std::mt19937& g)
{
    const int kind = uniform(g, 0, 3);
    if (kind < 2) return image.fill<T>(g, kind == 0 ? Fill::uniform : Fill::near_high);
    const T a = random_value<T>(g, Fill::uniform), b = random_value<T>(g, Fill::uniform);
    for (int y = 0; y < image.height(); ++y) {
        for (int i = 0; i + static_cast<int>(sizeof(T)) <= image.row_bytes(); i += static_cast<int>(sizeof(T))) {
            const T value = kind == 2 ? a : uniform(g, 0, 1) != 0 ? a : b;
            std::memcpy(image.row(y) + i, &value, sizeof(T));
        }
    }
}

std::vector<std::pair<Size, Size>> size_pairs(Method method, std::mt19937& g)
{
    const int least = method == cubic ? 4 : 1;
    std::vector<std::pair<Size, Size>> pairs = {
        {{4, 4}, {4, 4}},   {{4, 4}, {2, 2}},   {{8, 6}, {16, 12}},   {{4, 4}, {1, 1}},
        {{4, 4}, {70, 3}},  {{70, 4}, {3, 4}},  {{20, 4}, {40, 4}},   {{40, 4}, {20, 4}},
        {{90, 4}, {60, 4}}, {{60, 4}, {90, 4}}, {{33, 17}, {33, 17}}, {{50, 40}, {100, 80}},
    };
    for (int i = 0; i < (options().brief ? 10 : 60); ++i) {
        const bool flat = uniform(g, 0, 1) == 0;
        pairs.push_back({{uniform(g, least, 80), uniform(g, least, flat ? 4 : 30)},
                         {uniform(g, 1, 90), uniform(g, 1, flat ? 4 : 30)}});
    }
    return pairs;
}

template <class T>
void check_against_oracle(Method method, int channels, Plain<T> plain, Centred<T> centred)
{
    std::mt19937 g = make_generator("resize");
    const int pixel = channels * static_cast<int>(sizeof(T));
    for (const auto& pair : size_pairs(method, g)) {
        const auto& from = pair.first;
        const auto& to = pair.second;
        Image src = make_image(from.width * pixel, from.height, true, g),
              dst = make_image(to.width * pixel, to.height, true, g);
        paint<T>(src, g);
        const auto before = dst.bytes();
        std::vector<unsigned char> first;
        const int x0 = plain ? 0 : uniform(g, 0, to.width - 1), y0 = plain ? 0 : uniform(g, 0, to.height - 1);
        at_every_level([&] {
            dst.restore(before);
            // Factors are not read.
            const double factor = uniform(g, 0, 1) != 0 ? std::numeric_limits<double>::quiet_NaN() : -3;
            const bool done =
                plain ? plain(src.pixels<T>(), from.width, from.height, src.step(), dst.pixels<T>(), dst.step(),
                              to.width, to.height, factor, 0)
                      : centred(src.pixels<T>(), from.width, from.height, src.step(), dst.pixels<T>(), dst.step(),
                                to.width, to.height, factor, 0, to.width / 2 - x0 + (to.width / 2 > x0 ? 0.75 : 0),
                                to.height / 2 - y0 - (to.height / 2 < y0 ? 0.75 : 0));
            ASSERT_TRUE(done);
            if (first.empty()) {
                const Size written = {to.width - x0, to.height - y0};
                expect_pixels<T>(method, src, from.width, from.height, dst, to, written, x0, y0, channels);
                // What is not written keeps its bytes.
                first = dst.bytes();
                dst.restore(before);
                std::vector<std::vector<unsigned char>> rows;
                for (int y = 0; y < to.height; ++y) rows.emplace_back(dst.row(y), dst.row(y) + dst.row_bytes());
                dst.restore(first);
                for (int y = 0; y < to.height; ++y) {
                    const int kept = y < written.height ? written.width * pixel : 0;
                    ASSERT_TRUE(std::equal(rows[static_cast<std::size_t>(y)].begin() + kept,
                                           rows[static_cast<std::size_t>(y)].end(), dst.row(y) + kept));
                }
            } else {
                ASSERT_EQ(dst.bytes(), first);
            }
        });
        if (testing::Test::HasFatalFailure()) return;
    }
}

TEST(Resize, FollowsItsDefinition)
{
    check_against_oracle<u16>(nearest, 1, W::ResizeNN_16u_C1R, nullptr);
    check_against_oracle<u8>(nearest, 3, W::ResizeNN_8u_C3R, nullptr);
    check_against_oracle<u8>(nearest, 4, W::ResizeNN_8u_C4R, nullptr);
    check_against_oracle<u16>(cubic, 1, W::ResizeCubic_16u_C1R, nullptr);
    check_against_oracle<u8>(cubic, 3, W::ResizeCubic_8u_C3R, nullptr);
    check_against_oracle<u8>(cubic, 4, W::ResizeCubic_8u_C4R, nullptr);
}

TEST(Resize, CentredFormsStartAtTheOffset)
{
    check_against_oracle<u16>(linear, 1, nullptr, W::ResizeCenterNN_16u_C1R);
    check_against_oracle<u8>(nearest, 3, nullptr, W::ResizeCenterNN_8u_C3R);
    check_against_oracle<u8>(nearest, 4, nullptr, W::ResizeCenterNN_8u_C4R);
    check_against_oracle<u16>(cubic, 1, nullptr, W::ResizeCenterCubic_16u_C1R);
    check_against_oracle<u8>(cubic, 3, nullptr, W::ResizeCenterCubic_8u_C3R);
    check_against_oracle<u8>(cubic, 4, nullptr, W::ResizeCenterCubic_8u_C4R);
}

TEST(Resize, NearestPrefersTheLeftOfTwo)
{
    const u16 row[] = {10, 11, 12, 13};
    at_every_level([&] {
        u16 out[4] = {};
        ASSERT_TRUE(W::ResizeNN_16u_C1R(row, 4, 1, 8, out, 8, 2, 1, 0, 0));
        EXPECT_THAT(out, testing::ElementsAre(10, 12, 0, 0));
        ASSERT_TRUE(W::ResizeNN_16u_C1R(row, 2, 1, 8, out, 8, 4, 1, 0, 0));
        EXPECT_THAT(out, testing::ElementsAre(10, 10, 11, 11));
    });
}

// Enlarging twice puts sums exactly between integers: a checkerboard of 0 and 1, of 0 and 255.
TEST(Resize, CubicTiesGoToEven)
{
    std::mt19937 g = make_generator("ties");
    for (const int factor : {2, 4}) {
        for (const int high : {1, 2, 8, 16, 64, 128, 255}) {
            Image src(32 * 3, 32, {false, false, 96, 0}, g),
                dst(32 * 3 * factor, 32 * factor, {false, false, 96 * factor, 0}, g);
            for (int y = 0; y < 32; ++y) {
                for (int i = 0; i < 96; ++i) src.row(y)[i] = static_cast<u8>(uniform(g, 0, 1) * high);
            }
            at_every_level([&] {
                ASSERT_TRUE(W::ResizeCubic_8u_C3R(src.pixels<u8>(), 32, 32, 96, dst.pixels<u8>(), 96 * factor,
                                                  32 * factor, 32 * factor, 0, 0));
                expect_pixels<u8>(cubic, src, 32, 32, dst, {32 * factor, 32 * factor}, {32 * factor, 32 * factor}, 0, 0,
                                  3);
            });
        }
    }
}

// --- Refusals -------------------------------------------------------------------------------------

TEST(Resize, RefusalsWriteNothing)
{
    const double nan = std::numeric_limits<double>::quiet_NaN();
    std::vector<u8> src(64 * 8, 7);
    at_every_level([&] {
        std::vector<u8> dst(64 * 8, 9);
        const auto s = src.data();
        const auto d = dst.data();
        const auto s16 = reinterpret_cast<const u16*>(s);
        const auto d16 = reinterpret_cast<u16*>(d);
        const struct {
            const char* what;
            bool result;
        } calls[] = {
            {"null source", W::ResizeNN_8u_C3R(nullptr, 8, 8, 64, d, 64, 8, 8, 1, 1)},
            {"null destination", W::ResizeCubic_8u_C4R(s, 8, 8, 64, nullptr, 64, 8, 8, 1, 1)},
            {"width 0", W::ResizeNN_8u_C4R(s, 0, 8, 64, d, 64, 8, 8, 1, 1)},
            {"height below 0", W::ResizeNN_8u_C4R(s, 8, -1, 64, d, 64, 8, 8, 1, 1)},
            {"destination width 0", W::ResizeNN_16u_C1R(s16, 8, 8, 64, d16, 64, 0, 8, 1, 1)},
            {"destination height below 0", W::ResizeCubic_16u_C1R(s16, 8, 8, 64, d16, 64, 8, -5, 1, 1)},
            {"three columns", W::ResizeCubic_8u_C4R(s, 3, 8, 64, d, 64, 8, 8, 1, 1)},
            {"three rows", W::ResizeCubic_16u_C1R(s16, 8, 3, 64, d16, 64, 8, 8, 1, 1)},
            {"odd source step", W::ResizeNN_16u_C1R(s16, 8, 8, 63, d16, 64, 8, 8, 1, 1)},
            {"odd destination step", W::ResizeCubic_16u_C1R(s16, 8, 8, 64, d16, 63, 8, 8, 1, 1)},
            {"centre beyond the middle", W::ResizeCenterCubic_8u_C3R(s, 8, 8, 64, d, 64, 8, 8, 1, 1, 5, 4)},
            {"centre below the middle", W::ResizeCenterNN_8u_C3R(s, 8, 8, 64, d, 64, 8, 8, 1, 1, 4, 5.5)},
            {"offset of the whole width", W::ResizeCenterNN_16u_C1R(s16, 8, 8, 64, d16, 64, 8, 8, 1, 1, -4, 4)},
            {"offset of the whole height", W::ResizeCenterNN_8u_C4R(s, 8, 8, 64, d, 64, 8, 8, 1, 1, 4, -4.25)},
            {"centre not a number", W::ResizeCenterCubic_8u_C4R(s, 8, 8, 64, d, 64, 8, 8, 1, 1, nan, 4)},
            {"centre far off", W::ResizeCenterCubic_16u_C1R(s16, 8, 8, 64, d16, 64, 8, 8, 1, 1, 4, -1e300)},
            {"centre at infinity", W::ResizeCenterNN_8u_C4R(s, 8, 8, 64, d, 64, 8, 8, 1, 1, -HUGE_VAL, 4)},
            {"plan beyond 2^31 bytes", W::ResizeNN_8u_C4R(s, 8, 8, 64, d, 64, INT_MAX, 8, 1, 1)},
            {"buffer beyond 2^31 bytes", W::ResizeCubic_8u_C4R(s, INT_MAX, 8, 64, d, 64, 8, 8, 1, 1)},
        };
        for (const auto& call : calls) EXPECT_FALSE(call.result) << call.what;
        EXPECT_THAT(dst, testing::Each(9));
    });
}

// Centres that trap, or change, as soon as the host's environment meets them. Literals: no code of the test computes.
TEST(Resize, HostsFloatControl)
{
    static std::vector<u16> src(64), dst(64);
    std::mt19937 g = make_generator("control");
    for (u16& v : src) v = static_cast<u16>(g());
#define CENTRED(name, x, y) [] { return W::name(src.data(), 8, 8, 16, dst.data(), 16, 8, 8, 1.0, 1.0, x, y); }
    static const auto s = reinterpret_cast<const u8*>(src.data());
    static const auto d = reinterpret_cast<u8*>(dst.data());
#define CENTRED_BYTES(name, x, y) [] { return W::name(s, 4, 4, 16, d, 16, 4, 4, 1.0, 1.0, x, y); }
    const struct {
        const char* name;
        bool (*call)();
        bool expected;
    } calls[] = {
        {"denormal, linear", CENTRED(ResizeCenterNN_16u_C1R, 5e-324, -1e-310), true},
        {"denormal, cubic", CENTRED(ResizeCenterCubic_16u_C1R, 5e-324, 3.9999999999999996), true},
        {"denormal, nearest", CENTRED_BYTES(ResizeCenterNN_8u_C4R, 5e-324, 1.5), true},
        {"signalling", CENTRED_BYTES(ResizeCenterCubic_8u_C4R, __builtin_nans(""), 2.0), false},
        {"not a number", CENTRED_BYTES(ResizeCenterNN_8u_C3R, 2.0, __builtin_nan("")), false},
    };
#undef CENTRED
#undef CENTRED_BYTES
    expect_same_for_every_host(calls, dst);
}

TEST(Resize, RunsOutOfMemoryQuietly)
{
    std::vector<u16> src(256, 7), dst(256, 9);
    const auto s8 = reinterpret_cast<const u8*>(src.data());
    const auto d8 = reinterpret_cast<u8*>(dst.data());
    const auto run = [&](int kind) {
        switch (kind) {
            case 0: return W::ResizeNN_8u_C3R(s8, 4, 4, 16, d8, 16, 5, 5, 1, 1);
            case 1: return W::ResizeCenterNN_16u_C1R(src.data(), 4, 4, 16, dst.data(), 16, 5, 5, 1, 1, 2, 2);
            default: return W::ResizeCubic_16u_C1R(src.data(), 4, 4, 16, dst.data(), 16, 5, 5, 1, 1);
        }
    };
    for (int kind = 0; kind < 3; ++kind) {
        const int allocations = kind == 2 ? 3 : 2;
        for (int failing = 0; failing < allocations; ++failing) {
            const AllocationFailure failure(failing);
            EXPECT_FALSE(run(kind)) << kind << " " << failing;
            EXPECT_THAT(dst, testing::Each(9));
        }
        {
            const AllocationFailure failure(allocations);
            EXPECT_TRUE(run(kind)) << "more allocations than are tested";
        }
        std::fill(dst.begin(), dst.end(), u16{9});
    }
}

// --- Plans ----------------------------------------------------------------------------------------

struct PlanInGuard {
    GuardedBlock block, init;
    explicit PlanInGuard(int interpolation, Size from, Size to) : block(size(interpolation, from, to)), init(64)
    {
        const orv::Status status = interpolation == orv::kResizeNearest ? orv::orv_ResizeNearestInit(from, to, plan())
                                   : interpolation == orv::kResizeLinear
                                       ? orv::orv_ResizeLinearInit(from, to, plan())
                                       : orv::orv_ResizeCubicInit(from, to, 0.f, 0.5f, plan(), init.as());
        EXPECT_EQ(status, orv::StatusOk);
    }
    static std::size_t size(int interpolation, Size from, Size to)
    {
        int plan_size = 0, init_size = 0;
        EXPECT_EQ(orv::orv_ResizeGetSize(from, to, interpolation, 0, &plan_size, &init_size), orv::StatusOk);
        return static_cast<std::size_t>(plan_size);
    }
    void* plan() const { return block.as(); }
    std::size_t work_size(Size tile, int channels) const
    {
        int bytes = 0;
        EXPECT_EQ(orv::orv_ResizeGetBufferSize(plan(), tile, channels, &bytes), orv::StatusOk);
        return static_cast<std::size_t>(bytes);
    }
};

// Tiles make up the whole, from plans and buffers of exactly the sizes that were asked for.
TEST(ResizePlan, TilesJoinFromBuffersOfTheReportedSize)
{
    std::mt19937 g = make_generator("tiles");
    for (int i = 0; i < (options().brief ? 4 : 40); ++i) {
        const Size from = {uniform(g, 4, 60), uniform(g, 4, 20)}, to = {uniform(g, 2, 80), uniform(g, 2, 30)};
        std::vector<u8> src(static_cast<std::size_t>(from.width * from.height * 3)),
            whole(static_cast<std::size_t>(to.width * to.height * 3)), tiled(whole.size());
        for (u8& v : src) v = static_cast<u8>(g());
        const int x0 = uniform(g, 1, to.width - 1), y0 = uniform(g, 1, to.height - 1);
        at_every_level([&] {
            for (const int interpolation : {orv::kResizeNearest, orv::kResizeCubic}) {
                const PlanInGuard p(interpolation, from, to);
                EXPECT_EQ(
                    *reinterpret_cast<const unsigned*>((reinterpret_cast<std::uintptr_t>(p.plan()) + 63) / 64 * 64),
                    0x4B617389u);
                const auto apply = [&](int x, int y, Size tile, u8* dst) {
                    const GuardedBlock work(p.work_size(tile, 3));
                    return interpolation == orv::kResizeNearest
                               ? orv::orv_ResizeNearest_8u_C3(src.data(), from.width * 3, dst, to.width * 3, x, y, tile,
                                                              p.plan(), work.as())
                               : orv::orv_ResizeCubic_8u_C3(src.data(), from.width * 3, dst, to.width * 3, x, y, tile,
                                                            1, nullptr, p.plan(), work.as());
                };
                ASSERT_EQ(apply(0, 0, to, whole.data()), orv::StatusOk);
                for (const int y : {0, y0}) {
                    for (const int x : {0, x0}) {
                        const Size tile = {x == 0 ? x0 : to.width, y == 0 ? y0 : to.height};  // clipped
                        ASSERT_EQ(apply(x, y, tile, tiled.data() + (y * to.width + x) * 3), orv::StatusOk);
                    }
                }
                ASSERT_EQ(tiled, whole);
            }
        });
    }
}

TEST(ResizePlan, BordersInMemoryAreRead)
{
    std::mt19937 g = make_generator("memory");
    std::vector<u16> frame(20 * 20);
    for (u16& v : frame) v = static_cast<u16>(g());
    // A region of 12 x 12 within, resized with what surrounds it, is the middle of the frame, resized alike.
    at_every_level([&] {
        for (const int interpolation : {orv::kResizeLinear, orv::kResizeCubic}) {
            const PlanInGuard inner(interpolation, {12, 12}, {24, 24}), outer(interpolation, {20, 20}, {40, 40});
            std::vector<u16> small(24 * 24), large(40 * 40);
            const auto apply = interpolation == orv::kResizeLinear
                                   ? orv::orv_ResizeLinear_16u_C1.variant[orv::orv_variant_index]
                                   : orv::orv_ResizeCubic_16u_C1.variant[orv::orv_variant_index];
            const GuardedBlock small_work(inner.work_size({24, 24}, 1)), large_work(outer.work_size({40, 40}, 1));
            ASSERT_EQ(apply(frame.data() + 4 * 20 + 4, 40, small.data(), 48, 0, 0, {24, 24}, 6, nullptr, inner.plan(),
                            small_work.as()),
                      orv::StatusOk);
            ASSERT_EQ(
                apply(frame.data(), 40, large.data(), 80, 0, 0, {40, 40}, 1, nullptr, outer.plan(), large_work.as()),
                orv::StatusOk);
            for (int y = 0; y < 24; ++y) {
                for (int x = 0; x < 24; ++x)
                    ASSERT_EQ(small[static_cast<std::size_t>(y * 24 + x)],
                              large[static_cast<std::size_t>((y + 8) * 40 + x + 8)]);
            }
        }
    });
}

TEST(ResizePlan, StatusesComeInOrder)
{
    std::vector<u16> src(64, 1), dst(64, 9);
    at_every_level([&] {
        int plan_size = 0, init_size = 0;
        EXPECT_EQ(orv::orv_ResizeGetSize({0, 4}, {4, 4}, 1, 0, &plan_size, &init_size), 1);
        EXPECT_EQ(orv::orv_ResizeGetSize({4, 4}, {4, -4}, 1, 0, &plan_size, &init_size), -6);
        EXPECT_EQ(orv::orv_ResizeGetSize({0, 4}, {4, 4}, 1, 0, nullptr, &init_size), -8);
        EXPECT_EQ(orv::orv_ResizeNearestInit({4, 4}, {4, 4}, nullptr), -8);
        EXPECT_EQ(orv::orv_ResizeNearestInit({4, 0}, {4, 4}, src.data()), 1);
        const PlanInGuard cubic_plan(orv::kResizeCubic, {4, 4}, {8, 8});
        EXPECT_EQ(orv::orv_ResizeCubicInit({4, 4}, {4, 4}, 0, 0.5f, cubic_plan.plan(), nullptr), -8);
        EXPECT_EQ(orv::orv_ResizeCubicInit({3, 4}, {4, 4}, 0, 0.5f, cubic_plan.plan(), src.data()), -6);
        const GuardedBlock work(cubic_plan.work_size({8, 8}, 1));
        GuardedBlock blank(2048);
        const struct {
            const u16* src;
            int step, x0, width, border;
            const void* plan;
            int expected;
        } calls[] = {
            {nullptr, 15, 9, 0, 256, blank.as(), -8},          {src.data(), 15, 9, 0, 256, nullptr, -8},
            {src.data(), 15, 9, 0, 256, blank.as(), -17},      {src.data(), 15, 9, 0, 256, cubic_plan.plan(), -6},
            {src.data(), 15, 9, 8, 256, cubic_plan.plan(), -14}, {src.data(), 16, 8, 8, 256, cubic_plan.plan(), -11},
            {src.data(), 16, -1, 8, 256, cubic_plan.plan(), -11}, {src.data(), 16, 7, 8, 256, cubic_plan.plan(), -225},
            {src.data(), 16, 7, 8, 9, cubic_plan.plan(), -225}, {src.data(), 16, 7, 8, 2, cubic_plan.plan(), -9999},
            {src.data(), 16, 7, 8, 0, cubic_plan.plan(), -9999},
        };
        for (const auto& c : calls) {
            EXPECT_EQ(orv::orv_ResizeCubic_16u_C1(c.src, c.step, dst.data(), 16, c.x0, 0, {c.width, 8}, c.border,
                                                  nullptr, c.plan, work.as()),
                      c.expected);
        }
        EXPECT_THAT(dst, testing::Each(9));
    });
}

#if defined(__SSE__)
// Whatever the caller's rounding mode, results and mode stay the same.
TEST(Resize, IgnoresTheCallersRounding)
{
    std::mt19937 g = make_generator("mode");
    std::vector<u8> src(32 * 32 * 3);
    for (u8& v : src) v = static_cast<u8>(g());
    expect_control_kept<u8>(50 * 50 * 3, [&](u8* dst) {
        return W::ResizeCubic_8u_C3R(src.data(), 32, 32, 96, dst, 150, 50, 50, 1, 1);
    });
}
#endif

}  // namespace
}  // namespace test
