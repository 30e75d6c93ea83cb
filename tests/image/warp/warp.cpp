// Rotation, perspective and remapping: every pixel against the oracle, at every level.
#include "image/warp/oracle.h"
#include "image/warp/warp.h"
#include "support/image_tests.h"

namespace test {
namespace {

using namespace warp;

constexpr int kCodes[] = {1, 2, 4, 5, 6, 7, 16};

// --- The methods by type and channels -------------------------------------------------------------

template <class T, int Channels>
struct Methods;
#define METHODS(T, channels, suffix)                                 \
    template <>                                                      \
    struct Methods<T, channels> {                                    \
        static constexpr auto rotate = W::Rotate_##suffix;           \
        static constexpr auto project = W::WarpPerspective_##suffix; \
        static constexpr auto remap = W::Remap_##suffix;             \
    };
METHODS(u8, 1, 8u_C1)
METHODS(u8, 3, 8u_C3)
METHODS(u8, 4, 8u_C4)
METHODS(u16, 1, 16u_C1)
METHODS(float, 1, 32f_C1)
#undef METHODS

template <class Check>
void for_each_type(Check check)
{
    check(u8{}, std::integral_constant<int, 1>());
    check(u8{}, std::integral_constant<int, 3>());
    check(u8{}, std::integral_constant<int, 4>());
    check(u16{}, std::integral_constant<int, 1>());
    check(float{}, std::integral_constant<int, 1>());
}

// --- A call ---------------------------------------------------------------------------------------

enum class Kind { rotation, perspective, maps };

struct Request {
    Kind kind;
    int srcWidth, srcHeight;
    Area from, to;  // maps: `to` starts at 0
    double angle, xShift, yShift;
    double h[9];
    Maps maps;
    int code;
};

// The destination pixel (0, 0) lies at dst, the source's at src, wherever that is.
template <class T, int Channels>
bool call(const Request& r, std::uintptr_t src, int srcStep, std::uintptr_t dst, int dstStep)
{
    using M = Methods<T, Channels>;
    const T* const s = reinterpret_cast<const T*>(src);
    T* const d = reinterpret_cast<T*>(dst);
    const Area &f = r.from, &t = r.to;
    switch (r.kind) {
        case Kind::rotation:
            return M::rotate(s, r.srcWidth, r.srcHeight, srcStep, f.x, f.y, f.width, f.height, d, dstStep, t.x, t.y,
                             t.width, t.height, r.angle, r.xShift, r.yShift, r.code);
        case Kind::perspective:
            return M::project(s, r.srcWidth, r.srcHeight, srcStep, f.x, f.y, f.width, f.height, d, dstStep, t.x, t.y,
                              t.width, t.height, r.h, r.code);
        default:
            return M::remap(s, r.srcWidth, r.srcHeight, srcStep, f.x, f.y, f.width, f.height, r.maps.x.data(),
                            4 * r.maps.width, r.maps.y.data(), 4 * r.maps.width, d, dstStep, t.width, t.height, r.code);
    }
}

template <class Geometry>
Shown shown(const Geometry& geometry, const Area& from, std::int64_t X, std::int64_t Y)
{
    Shown s = geometry.at(X, Y);
    s.exists = s.exists && s.sx >= from.x && s.sx < static_cast<double>(from.x) + from.width && s.sy >= from.y &&
               s.sy < static_cast<double>(from.y) + from.height;
    return s;
}

std::uintptr_t offset(std::int64_t rows, int step, std::int64_t columns, int pixel)
{
    return static_cast<std::uintptr_t>(rows) * static_cast<std::uintptr_t>(static_cast<std::intptr_t>(step)) +
           static_cast<std::uintptr_t>(columns) * static_cast<std::uintptr_t>(pixel);
}

// Floats by their bits: an x87 register changes those of some NaNs.
template <class T>
struct bits_of_pixel {
    using type = T;
};
template <>
struct bits_of_pixel<float> {
    using type = std::uint32_t;
};
template <class T>
typename bits_of_pixel<T>::type to_bits(T value)
{
    typename bits_of_pixel<T>::type bits;
    std::memcpy(&bits, &value, sizeof(T));
    return bits;
}

template <class T, int Channels, class Geometry>
void expect_oracle(const Request& r, const Geometry& geometry, Image& src, Image& dst)
{
    constexpr int pixel = Channels * static_cast<int>(sizeof(T));
    Pixels<T> pixels = {r.from, Channels, {}};
    for (int y = 0; y < r.from.height; ++y) {
        for (int x = 0; x < r.from.width * Channels; ++x) pixels.values.push_back(element<T>(src, y, x));
    }
    const auto source = reinterpret_cast<std::uintptr_t>(src.row(0)) - offset(r.from.y, src.step(), r.from.x, pixel);
    const auto destination = reinterpret_cast<std::uintptr_t>(dst.row(0)) - offset(r.to.y, dst.step(), r.to.x, pixel);
    const auto before = dst.bytes();
    std::vector<u8> first;
    at_every_level([&] {
        dst.restore(before);
        ASSERT_TRUE((call<T, Channels>(r, source, src.step(), destination, dst.step())));
        if (first.empty())
            first = dst.bytes();
        else
            ASSERT_EQ(dst.bytes(), first);
    });
    if (testing::Test::HasFatalFailure()) return;
    using Bits = typename bits_of_pixel<T>::type;
    const auto all_pixels = [&](const std::vector<u8>& bytes) {
        dst.restore(bytes);
        std::vector<Bits> all;
        for (int y = 0; y < r.to.height; ++y) {
            for (int x = 0; x < r.to.width * Channels; ++x) all.push_back(element<Bits>(dst, y, x));
        }
        return all;
    };
    const std::vector<Bits> old = all_pixels(before), now = all_pixels(first);
    expect_pixels<Bits>(dst, before, [&](int y, int x) -> Bits {
        const Shown at = shown(geometry, r.from, std::int64_t{r.to.x} + x / Channels, std::int64_t{r.to.y} + y);
        const auto k = static_cast<std::size_t>(y * r.to.width * Channels + x);
        if (!at.exists) return old[k];
        const int c = x % Channels;
        if (r.code == 1) {
            const int column = static_cast<int>(std::floor(at.sx) - r.from.x);
            const int row = static_cast<int>(std::floor(at.sy) - r.from.y);
            return element<Bits>(src, row, column * Channels + c);
        }
        const double di = std::floor(at.tx), dj = std::floor(at.ty);
        const auto i = static_cast<std::int64_t>(di), j = static_cast<std::int64_t>(dj);
        const double f = (D(at.tx) - D(di)).v, g = (D(at.ty) - D(dj)).v;
        if (r.code == 2) return to_bits(linear(pixels, i, j, f, g, c));
        if (r.code != 16) return to_bits(cubic(pixels, i, j, f, g, c, r.code));
        // Not to the bit.
        Real largest;
        const Real exact = lanczos(pixels, i, j, f, g, c, &largest);
        T actual;
        std::memcpy(&actual, &now[k], sizeof(T));
        return near_lanczos(actual, exact, largest) ? now[k] : to_bits(stored<T>(static_cast<double>(exact)));
    });
}

// --- Random calls ---------------------------------------------------------------------------------

template <class Container>
auto one_of(const Container& list, std::mt19937& g)
{
    return list[uniform(g, 0, static_cast<int>(sizeof(list) / sizeof(list[0])) - 1)];
}

// Where the middle of the source is to land: on the middle of the destination, but for a little.
double aim(int begin, int length, std::mt19937& g)
{
    static const double apart[] = {0, 0.5, 1 / 3.0, -2 / 3.0, 1, -3, 0.25, 1e-9, 7.123456789};
    return begin + 0.5 * length + one_of(apart, g);
}

void aim_rotation(Request& r, std::mt19937& g)
{
    static const double angles[] = {0,    90,       180,    270, 360,   -90,    45,   30,
                                    1e-9, 1e6 + 30, -133.7, 60,  1e300, 5e-324, 12.3, -0.0};
    r.angle = one_of(angles, g);
    const SineCosine turn(r.angle);
    const double x = r.from.x + 0.5 * r.from.width, y = r.from.y + 0.5 * r.from.height;
    r.xShift = aim(r.to.x, r.to.width, g) - (turn.c * x + turn.s * y);
    r.yShift = aim(r.to.y, r.to.height, g) - (turn.c * y - turn.s * x);
}

// A map whose middle is aimed like that of a rotation: scale, shear and perspective about it, then a factor.
void aim_perspective(Request& r, std::mt19937& g)
{
    const double x = r.from.x + 0.5 * r.from.width, y = r.from.y + 0.5 * r.from.height;
    const double X = aim(r.to.x, r.to.width, g), Y = aim(r.to.y, r.to.height, g);
    static const double scales[] = {1, -1, 2, 0.5, 1.37, 1.0 / 3};
    static const double shears[] = {0, 0, 0.25, -0.7, 1e-9};
    static const double bends[] = {0, 0, 0.002, -0.01, 0.06, 1e-320};
    const double a = one_of(scales, g), b = one_of(shears, g), c = one_of(shears, g), d = one_of(scales, g);
    const double p = one_of(bends, g), q = one_of(bends, g);
    const double w = 1 - p * x - q * y;
    const double rows[9] = {a + X * p, b + X * q, X * w - a * x - b * y, c + Y * p, d + Y * q, Y * w - c * x - d * y, p,
                            q,         w};
    static const double factors[] = {1, 1, -3, 1e-200, 1e250, 0.1};
    const double factor = one_of(factors, g);
    for (int i = 0; i < 9; ++i) r.h[i] = rows[i] * factor;
}

void make_maps(Request& r, std::mt19937& g)
{
    r.maps = {{}, {}, r.to.width};
    const int n = r.to.width * r.to.height;
    const float infinity = std::numeric_limits<float>::infinity();
    const auto coordinate = [&](int begin, int length, int at, double slope) {
        const auto edge = static_cast<float>(begin + length - 0.5), start = static_cast<float>(begin) - 0.5f;
        const float list[] = {start,
                              std::nextafter(start, infinity),
                              std::nextafter(start, -infinity),
                              edge,
                              std::nextafter(edge, infinity),
                              std::nextafter(edge, -infinity),
                              infinity,
                              -infinity,
                              std::numeric_limits<float>::quiet_NaN(),
                              3e9f,
                              -3e9f,
                              1e30f,
                              static_cast<float>(begin),
                              static_cast<float>(begin + length - 1),
                              -0.0f,
                              1e-45f,
                              -1e-45f};
        if (uniform(g, 0, 9) == 0) return one_of(list, g);
        return static_cast<float>(begin + length * slope * at);
    };
    const bool steep = uniform(g, 0, 1) != 0, whole = uniform(g, 0, 3) == 0;
    for (int i = 0; i < n; ++i) {
        const int X = i % r.to.width, Y = i / r.to.width;
        const float x = coordinate(r.from.x, r.from.width, steep ? Y : X, 1.05 / (steep ? r.to.height : r.to.width));
        const float y = coordinate(r.from.y, r.from.height, steep ? X : Y, 1.05 / (steep ? r.to.width : r.to.height));
        r.maps.x.push_back(whole ? std::floor(x) : x);
        r.maps.y.push_back(whole ? std::floor(y) : y);
    }
}

Request random_request(Kind kind, int code, bool flat, std::mt19937& g)
{
    Request r;
    r.kind = kind;
    r.code = code;
    r.from = {uniform(g, 0, 40), uniform(g, 0, 9), uniform(g, 1, uniform(g, 0, 1) != 0 ? 8 : 120),
              uniform(g, 1, flat ? 8 : 60)};
    r.srcWidth = r.from.x + r.from.width + uniform(g, 0, 5);
    r.srcHeight = r.from.y + r.from.height + uniform(g, 0, 5);
    r.to = {uniform(g, 0, 30), uniform(g, 0, 5), uniform(g, 1, uniform(g, 0, 1) != 0 ? 20 : 170),
            uniform(g, 1, flat ? 8 : 40)};
    if (uniform(g, 0, 7) == 0) {  // at the end of what an int counts
        r.from.x = INT_MAX - r.from.width;
        r.from.y = INT_MAX - r.from.height;
        r.srcWidth = r.srcHeight = INT_MAX;
    }
    if (uniform(g, 0, 7) == 0) {
        r.to.x = INT_MAX - uniform(g, 0, 60);
        r.to.y = INT_MAX - uniform(g, 0, 9);
    }
    if (kind == Kind::maps) r.to.x = r.to.y = 0;
    if (kind == Kind::rotation) aim_rotation(r, g);
    if (kind == Kind::perspective) aim_perspective(r, g);
    if (kind == Kind::maps) make_maps(r, g);
    return r;
}

template <class T, int Channels>
void check_random(Kind kind, int code, std::mt19937& g)
{
    constexpr int pixel = Channels * static_cast<int>(sizeof(T));
    const bool flat = uniform(g, 0, 1) != 0;
    const Request r = random_request(kind, code, flat, g);
    SCOPED_TRACE(testing::Message() << "code " << code << ", kind " << static_cast<int>(kind) << ", from " << r.from.x
                                    << " " << r.from.y << " " << r.from.width << " " << r.from.height << " to "
                                    << r.to.x << " " << r.to.y << " " << r.to.width << " " << r.to.height << ", angle "
                                    << r.angle << " shift " << r.xShift << " " << r.yShift);
    Image src = random_image(r.from.width * pixel, r.from.height, g),
          dst = random_image(r.to.width * pixel, r.to.height, g);
    src.fill<T>(g, static_cast<Fill>(uniform(g, 0, static_cast<int>(Fill::kinds) - 1)));
    if (kind == Kind::rotation) {
        expect_oracle<T, Channels>(r, Rotation{SineCosine(r.angle), r.xShift, r.yShift}, src, dst);
    } else if (kind == Kind::perspective) {
        const Perspective map(r.h, r.from);
        if (map.exists) expect_oracle<T, Channels>(r, map, src, dst);
    } else {
        expect_oracle<T, Channels>(r, r.maps, src, dst);
    }
}

// Only the bytes of the source rectangle can be touched in half of the calls.
TEST(Warp, EveryPixelFollowsItsDefinition)
{
    std::mt19937 g = make_generator("warp");
    for (int i = 0; i < (options().brief ? 2 : 25); ++i) {
        for (const Kind kind : {Kind::rotation, Kind::perspective, Kind::maps}) {
            for (const int code : kCodes) {
                for_each_type([&](auto t, auto channels) {
                    if (!testing::Test::HasFatalFailure()) check_random<decltype(t), channels>(kind, code, g);
                });
                if (testing::Test::HasFatalFailure()) return;
            }
        }
    }
}

// --- Tiles ----------------------------------------------------------------------------------------

TEST(Warp, TilesEqualTheWhole)
{
    std::mt19937 g = make_generator("tiles");
    for (int i = 0; i < (options().brief ? 3 : 40); ++i) {
        for_each_type([&](auto t, auto c) {
            using T = decltype(t);
            constexpr int channels = c, pixel = channels * static_cast<int>(sizeof(T));
            Request r = random_request(i % 2 == 0 ? Kind::rotation : Kind::perspective, one_of(kCodes, g), false, g);
            r.from = {0, 0, 60, 50};
            r.srcWidth = 60;
            r.srcHeight = 50;
            r.to = {0, 0, 170, 40};
            if (r.kind == Kind::rotation)
                aim_rotation(r, g);
            else
                aim_perspective(r, g);
            std::vector<T> src(60 * 50 * channels), whole(170 * 40 * channels), tiled;
            for (T& v : src) v = random_value<T>(g, Fill::uniform);
            tiled = whole;
            const auto address = [](const auto& v) { return reinterpret_cast<std::uintptr_t>(v.data()); };
            const bool done = call<T, channels>(r, address(src), 60 * pixel, address(whole), 170 * pixel);
            for (int y = 0; y < 40; y += 13) {
                for (int x = 0, width; x < 170; x += width) {
                    width = uniform(g, 1, 100);
                    Request tile = r;
                    tile.to = {x, y, std::min(width, 170 - x), std::min(13, 40 - y)};
                    ASSERT_EQ((call<T, channels>(tile, address(src), 60 * pixel, address(tiled), 170 * pixel)), done);
                }
            }
            ASSERT_EQ(std::memcmp(tiled.data(), whole.data(), whole.size() * sizeof(T)), 0);
        });
    }
}

// --- Moves that change nothing --------------------------------------------------------------------

// Quarter turns about the middle, mirrorings, whole shifts and the identity: pixels are moved.
TEST(Warp, MovesAreExact)
{
    std::mt19937 g = make_generator("moves");
    for_each_type([&](auto t, auto c) {
        using T = decltype(t);
        constexpr int channels = c, pixel = channels * static_cast<int>(sizeof(T));
        const int w = 90, h = 74;
        std::vector<T> src(static_cast<std::size_t>(w * h * channels));
        for (T& v : src) v = random_value<T>(g, Fill::uniform);
        const auto expect_moved = [&](Request r, auto from) {
            r.srcWidth = r.from.width = w;
            r.srcHeight = r.from.height = h;
            r.from.x = r.from.y = 0;
            r.to = {0, 0, w, h};
            std::vector<T> want(src.size(), T{7});
            for (int y = 0; y < h; ++y) {
                for (int x = 0; x < w; ++x) {
                    const std::pair<int, int> p = from(x, y);
                    if (p.first < 0 || p.first >= w || p.second < 0 || p.second >= h) continue;
                    std::copy_n(&src[static_cast<std::size_t>((p.second * w + p.first) * channels)], channels,
                                &want[static_cast<std::size_t>((y * w + x) * channels)]);
                }
            }
            for (const int code : {1, 2, 4, 6, 16}) {
                r.code = code;
                at_every_level([&] {
                    std::vector<T> dst(src.size(), T{7});
                    ASSERT_TRUE((call<T, channels>(r, reinterpret_cast<std::uintptr_t>(src.data()), w * pixel,
                                                   reinterpret_cast<std::uintptr_t>(dst.data()), w * pixel)));
                    const auto differs = std::mismatch(dst.begin(), dst.end(), want.begin()).first - dst.begin();
                    ASSERT_EQ(differs, static_cast<std::ptrdiff_t>(dst.size()))
                        << "code " << code << " at " << differs / channels % w << ", " << differs / channels / w;
                });
            }
        };
        using P = std::pair<int, int>;
        Request r = {};
        r.kind = Kind::rotation;
        for (const double turns : {0.0, -4.0, 1e9}) {
            const int dx = w / 2, dy = h / 2;
            r.angle = 90 + 360 * turns;
            ASSERT_TRUE(W::GetRotateShift(dx, dy, r.angle, &r.xShift, &r.yShift));
            expect_moved(r, [=](int x, int y) { return P(dx - 1 - (y - dy), dy + (x - dx)); });
            r.angle = 180 + 360 * turns;
            ASSERT_TRUE(W::GetRotateShift(dx, dy, r.angle, &r.xShift, &r.yShift));
            expect_moved(r, [=](int x, int y) { return P(w - 1 - x, h - 1 - y); });
            r.angle = 360 * turns;
            r.xShift = 5;
            r.yShift = -3;
            expect_moved(r, [](int x, int y) { return P(x - 5, y + 3); });
        }
        r.kind = Kind::perspective;
        const double mirrored[9] = {-5, 0, 5 * w, 0, 5, 0, 0, 0, 5}, identity[9] = {1, 0, 0, 0, 1, 0, 0, 0, 1};
        std::memcpy(r.h, mirrored, sizeof(r.h));
        expect_moved(r, [=](int x, int y) { return P(w - 1 - x, y); });
        std::memcpy(r.h, identity, sizeof(r.h));
        expect_moved(r, [](int x, int y) { return P(x, y); });
        r.kind = Kind::maps;
        r.maps.width = w;
        for (int i = 0; i < w * h; ++i) {
            r.maps.x.push_back(static_cast<float>(i % w));
            r.maps.y.push_back(static_cast<float>(h - 1 - i / w));
        }
        expect_moved(r, [=](int x, int y) { return P(x, h - 1 - y); });
    });
}

// What a pixel does not show does not reach it: whole positions beside NaNs and infinities.
TEST(Warp, SpecialNeighboursStayWhereTheyAre)
{
    const float infinity = std::numeric_limits<float>::infinity(), nan = std::numeric_limits<float>::quiet_NaN();
    const int n = 40;
    std::vector<float> src(n * n);
    for (int i = 0; i < n * n; ++i)
        src[static_cast<std::size_t>(i)] = i % 2 == (i / n) % 2 ? static_cast<float>(i)
                                           : i % 3 == 0         ? nan
                                           : i % 3 == 1         ? infinity
                                                                : -infinity;
    for (const int code : {2, 4, 6, 16}) {
        at_every_level([&] {
            std::vector<float> dst(src.size());
            ASSERT_TRUE(
                W::Rotate_32f_C1(src.data(), n, n, 4 * n, 0, 0, n, n, dst.data(), 4 * n, 0, 0, n, n, 180, n, n, code));
            for (int i = 0; i < n * n; ++i) {
                const float from = src[static_cast<std::size_t>(n * n - 1 - i)], to = dst[static_cast<std::size_t>(i)];
                if (std::isnan(from))
                    ASSERT_EQ(bits_of(to), 0x7FC00000u);
                else
                    ASSERT_EQ(from, to) << code;
            }
        });
    }
}

// A small picture somewhere in a destination of 2^62 pixels: found, and no row but its own is touched.
TEST(Warp, HugeDestinationsShowLittle)
{
    const std::vector<u8> src(64, 200);
    const auto far_away = static_cast<std::ptrdiff_t>(2000000000);
    const double h[9] = {1, 0, 2000000000.0, 0, 1, 1999999990.0, 0, 0, 1};
    const double bent[9] = {1, 0, 2000000000.0, 0, 1, 1999999990.0, 1e-12, 2e-12, 1};
    at_every_level([&] {
        for (const int way : {0, 1, 2}) {
            std::vector<u8> dst(40 * 40, 1);
            // The rows from 1999999980 on, and of them the columns from 1999999990 on.
            const auto first = reinterpret_cast<std::uintptr_t>(dst.data()) -
                               offset(far_away - 20, 40, far_away - 10, 1);
            u8* const d = reinterpret_cast<u8*>(first);
            const bool done =
                way == 0 ? W::Rotate_8u_C1(src.data(), 8, 8, 8, 0, 0, 8, 8, d, 40, 0, 0, INT_MAX, INT_MAX, 0, 2e9,
                                           2e9 - 10, 1)
                : way == 1
                    ? W::WarpPerspective_8u_C1(src.data(), 8, 8, 8, 0, 0, 8, 8, d, 40, 0, 0, INT_MAX, INT_MAX, h, 1)
                    : W::WarpPerspective_8u_C1(src.data(), 8, 8, 8, 0, 0, 8, 8, d, 40, 0, 0, INT_MAX, INT_MAX, bent, 1);
            ASSERT_TRUE(done);
            int shown = 0;
            for (const u8 v : dst) shown += v == 200 ? 1 : 0;
            EXPECT_EQ(shown, 64) << way;
        }
    });
}

// --- Centres and bounds ---------------------------------------------------------------------------

TEST(Warp, RotateCenterIsRotateWithItsShift)
{
    std::mt19937 g = make_generator("centre");
    std::vector<u16> src(50 * 40), a(70 * 60), b(a);
    for (u16& v : src) v = random_value<u16>(g, Fill::uniform);
    for (const int code : kCodes) {
        for (const double angle : {0.0, 33.0, 90.0, -271.5}) {
            double x, y;
            ASSERT_TRUE(W::GetRotateShift(21.25, 17.5, angle, &x, &y));
            ASSERT_TRUE(W::Rotate_16u_C1(src.data(), 50, 40, 100, 0, 0, 50, 40, a.data(), 140, 0, 0, 70, 60, angle, x,
                                         y, code));
            ASSERT_TRUE(
                W::RotateCenter_16u_C1(src.data(), 50, 40, 100, b.data(), 140, 70, 60, angle, 21.25, 17.5, code));
            ASSERT_EQ(a, b);
        }
    }
    // True whatever happens, and then nothing is written.
    b = a;
    const double nan = std::numeric_limits<double>::quiet_NaN();
    EXPECT_TRUE(W::RotateCenter_16u_C1(nullptr, 50, 40, 100, b.data(), 140, 70, 60, 30, 1, 1, 1));
    EXPECT_TRUE(W::RotateCenter_16u_C1(src.data(), 50, 0, 100, b.data(), 140, 70, 60, 30, 1, 1, 1));
    EXPECT_TRUE(W::RotateCenter_16u_C1(src.data(), 50, 40, 100, b.data(), 140, 70, 60, nan, 1, 1, 1));
    EXPECT_TRUE(W::RotateCenter_16u_C1(src.data(), 50, 40, 100, b.data(), 140, 70, 60, 135, 1.7e308, 1.7e308, 1));
    EXPECT_TRUE(W::RotateCenter_16u_C1(src.data(), 50, 40, 100, b.data(), 140, 70, 60, 30, 1, 1, 3));
    EXPECT_EQ(a, b);
}

TEST(Warp, BoundsAndShifts)
{
    for (const double angle : {0.0, 90.0, 180.0, -90.0, 45.0, 30.0, 1e6 + 30, 1e-9, 359.999}) {
        const SineCosine turn(angle);
        at_every_level([&] {
            double bound[4];
            ASSERT_TRUE(W::GetRotateBound(INT_MAX, -7, INT_MAX, 20, angle, 0.25, -1e10, bound));
            double least[2] = {HUGE_VAL, HUGE_VAL}, most[2] = {-HUGE_VAL, -HUGE_VAL};
            for (int corner = 0; corner < 4; ++corner) {
                const D x = 2147483647.0 * (1 + (corner & 1)), y = -7 + 10 * (corner & 2), c = turn.c, s = turn.s;
                const double at[2] = {((c * x + s * y) + D(0.25)).v, ((c * y - s * x) + D(-1e10)).v};
                for (int k = 0; k < 2; ++k) {
                    least[k] = std::fmin(least[k], at[k]);
                    most[k] = std::fmax(most[k], at[k]);
                }
            }
            EXPECT_THAT(bound, testing::ElementsAre(least[0], least[1], most[0], most[1]));
            double x, y;
            ASSERT_TRUE(W::GetRotateShift(-12.5, 1e100, angle, &x, &y));
            const D c = turn.c, s = turn.s, cx = -12.5, cy = 1e100;
            EXPECT_EQ(x, (cx - (c * cx + s * cy)).v);
            EXPECT_EQ(y, (cy - (c * cy - s * cx)).v);
            const double h[9] = {3e200, 0, 6e200, 0, -3e200, 0, 0, 1e199, 3e200};
            ASSERT_TRUE(W::GetPerspectiveBound(-10, 5, 20, 30, h, bound));
            EXPECT_THAT(bound, testing::ElementsAre(testing::DoubleNear(-8 / (1 + 5 / 30.0), 1e-12),
                                                    testing::DoubleNear(-35 / (1 + 35 / 30.0), 1e-12),
                                                    testing::DoubleNear(12 / (1 + 5 / 30.0), 1e-12),
                                                    testing::DoubleNear(-5 / (1 + 5 / 30.0), 1e-12)));
        });
    }
}

// Straight from the angle, in more digits: positions are where they ought to be.
TEST(Warp, AnglesAreAccurate)
{
    std::mt19937 g = make_generator("angles");
    const Real pi = 3.14159265358979323846264338327950288L;
    for (int i = 0; i < 1000; ++i) {
        const double angle = i % 3 == 0 ? uniform(g, -4000, 4000) / 8.0
                                        : std::ldexp(uniform(g, -1000000, 1000000), uniform(g, -60, 300));
        const Real turn = static_cast<Real>(std::fmod(angle, 360.0)) * pi / 180, c = std::cos(turn), s = std::sin(turn);
        const Real xs[] = {c, 2 * c, c + s, 2 * c + s};
        Real least = xs[0];
        for (const Real x : xs) least = std::fmin(least, x);
        at_every_level([&] {
            double bound[4];
            ASSERT_TRUE(W::GetRotateBound(1, 0, 1, 1, angle, 0, 0, bound));
            EXPECT_LE(std::fabs(static_cast<Real>(bound[0]) - least), 3 * 0x1.001p-33L) << angle;
        });
    }
    double x, y;
    for (const int turns : {0, 1, -7, 1000000}) {
        ASSERT_TRUE(W::GetRotateShift(1, 0, 30 + 360.0 * turns, &x, &y));
        EXPECT_EQ(y, 0.5);
        ASSERT_TRUE(W::GetRotateShift(1, 0, 60 + 360.0 * turns, &x, &y));
        EXPECT_EQ(x, 0.5);
    }
}

// --- Refusals -------------------------------------------------------------------------------------

TEST(Warp, RefusalsInOrder)
{
    using namespace orv;
    const double nan = std::numeric_limits<double>::quiet_NaN(), inf = std::numeric_limits<double>::infinity(),
                 zero = 0;
    std::vector<u8> src(64), dst(64, 9);
    u8 *const s = src.data(), *const d = dst.data();
    const float map[64] = {};
    const double identity[9] = {1, 0, 0, 0, 1, 0, 0, 0, 1}, none[9] = {}, bad[9] = {1, 0, 0, 0, 1, 0, 0, inf, 1};
    const double flat[9] = {1, 2, 0, 2, 4, 0, 0, 0, 1}, horizon[9] = {1, 0, 0, 0, 1, 0, 1, 0, -4},
                 tiny[9] = {1, 0, 0, 0, 1e-95, 0, 0, 0, 1};
    const orv::Rectangle all = {0, 0, 8, 8}, empty = {0, 0, 0, 8}, outside = {8, 0, 4, 4}, negative = {-5, -9, 5, 9};
    at_every_level([&] {
        const auto& rotate = orv_Rotate_8u_C1;
        EXPECT_EQ(rotate(nullptr, {0, 8}, 8, all, d, 8, all, &nan, &zero, &zero, 1), StatusNullPointer);
        EXPECT_EQ(rotate(s, {8, 8}, 8, all, nullptr, 8, empty, &zero, &zero, &zero, 1), StatusNullPointer);
        EXPECT_EQ(rotate(s, {8, 0}, 8, all, d, 8, all, &nan, &zero, &zero, 1), StatusBadSize);
        EXPECT_EQ(rotate(s, {8, 8}, 8, empty, d, 8, all, &nan, &zero, &zero, 1), StatusBadSize);
        EXPECT_EQ(rotate(s, {8, 8}, 8, outside, d, 8, all, &nan, &zero, &zero, 1), StatusBadSize);
        EXPECT_EQ(rotate(s, {8, 8}, 8, {-5, 0, 5, 8}, d, 8, all, &zero, &zero, &zero, 1), StatusBadSize);
        EXPECT_EQ(rotate(s, {8, 8}, 8, all, d, 8, negative, &nan, &zero, &zero, 1), StatusBadSize);
        EXPECT_EQ(rotate(s, {8, 8}, 8, all, d, 8, empty, &nan, &zero, &zero, 1), StatusBadSize);
        EXPECT_EQ(rotate(s, {8, 8}, 8, all, d, 8, all, &nan, &zero, &zero, 3), StatusNotFinite);
        EXPECT_EQ(rotate(s, {8, 8}, 8, all, d, 8, all, &zero, &inf, &zero, 3), StatusNotFinite);
        EXPECT_EQ(rotate(s, {8, 8}, 8, all, d, 8, all, &zero, &zero, &nan, 3), StatusNotFinite);
        for (const int code : {0, 3, 8, 9, 15, 17, -1, INT_MIN | 1, 0x40000001}) {
            EXPECT_EQ(rotate(s, {8, 8}, 8, all, d, 8, all, &zero, &zero, &zero, code), StatusBadInterpolation) << code;
            EXPECT_EQ(orv_WarpPerspective_8u_C1(s, {8, 8}, 8, all, d, 8, all, identity, code), StatusBadInterpolation)
                << code;
            EXPECT_EQ(orv_Remap_8u_C1(s, {8, 8}, 8, all, map, 32, map, 32, d, 8, {8, 8}, code), StatusBadInterpolation)
                << code;
        }
        const auto& project = orv_WarpPerspective_8u_C1;
        EXPECT_EQ(project(s, {8, 8}, 8, empty, d, 8, all, nullptr, 1), StatusNullPointer);
        EXPECT_EQ(project(s, {8, 8}, 8, outside, d, 8, all, bad, 1), StatusBadSize);
        EXPECT_EQ(project(s, {8, 8}, 8, all, d, 8, all, bad, 3), StatusNotFinite);
        for (const double* h : {none, flat, horizon, tiny})
            EXPECT_EQ(project(s, {8, 8}, 8, all, d, 8, all, h, 3), StatusSingularMatrix);
        const auto& remap = orv_Remap_8u_C1;
        EXPECT_EQ(remap(s, {8, 8}, 8, empty, nullptr, 32, map, 32, d, 8, {8, 8}, 1), StatusNullPointer);
        EXPECT_EQ(remap(s, {8, 8}, 8, all, map, 32, nullptr, 32, d, 8, {8, 0}, 1), StatusNullPointer);
        EXPECT_EQ(remap(s, {8, 8}, 8, outside, map, 32, map, 32, d, 8, {8, 8}, 3), StatusBadSize);
        EXPECT_EQ(remap(s, {8, 8}, 8, all, map, 32, map, 32, d, 8, {8, 0}, 3), StatusBadSize);
        double bound[4] = {5, 6, 7, 8};
        EXPECT_EQ(orv_GetRotateBound(empty, &nan, &zero, &zero, nullptr), StatusNullPointer);
        EXPECT_EQ(orv_GetRotateBound(empty, &nan, &zero, &zero, bound), StatusBadSize);
        EXPECT_EQ(orv_GetRotateBound(all, &zero, &nan, &zero, bound), StatusNotFinite);
        EXPECT_EQ(orv_GetRotateShift(&nan, &zero, &zero, bound, nullptr), StatusNullPointer);
        EXPECT_EQ(orv_GetRotateShift(&zero, &inf, &zero, bound, bound + 1), StatusNotFinite);
        const double huge = 1.7e308, half_right = 135;
        EXPECT_EQ(orv_GetRotateShift(&huge, &huge, &half_right, bound, bound + 1), StatusNotFinite);
        EXPECT_EQ(orv_GetPerspectiveBound(empty, nullptr, bound), StatusNullPointer);
        EXPECT_EQ(orv_GetPerspectiveBound(empty, bad, bound), StatusBadSize);
        EXPECT_EQ(orv_GetPerspectiveBound(all, bad, bound), StatusNotFinite);
        for (const double* h : {none, horizon}) EXPECT_EQ(orv_GetPerspectiveBound(all, h, bound), StatusUnbounded);
        EXPECT_THAT(bound, testing::ElementsAre(5, 6, 7, 8));
        EXPECT_THAT(dst, testing::Each(9));
    });
}

// --- Weights --------------------------------------------------------------------------------------

// A source that is 1 in one pixel shows the weights, all but the rounding of a float.
TEST(Warp, LanczosWeightsAreAccurate)
{
    std::mt19937 g = make_generator("lanczos");
    for (int i = 0; i < 2000; ++i) {
        const float f = i < 100   ? std::ldexp(1.f, -i) * 0.999f
                        : i < 120 ? 1 - std::ldexp(1.f, 100 - i - 4)
                                  : static_cast<float>(uniform(g, 1, 1 << 23)) / (1 << 23);
        const LanczosWeights exact(f);
        for (int k = 0; k < 6; ++k) {
            float src[6] = {}, y = 0, result;
            volatile float in_memory = 2 + f;
            const float x = in_memory;
            const Real rest = static_cast<Real>(static_cast<double>(x) - 2);
            const LanczosWeights placed(static_cast<double>(rest));
            src[k] = 1;
            ASSERT_TRUE(W::Remap_32f_C1(src, 6, 1, 24, 0, 0, 6, 1, &x, 4, &y, 4, &result, 4, 1, 1, 16));
            if (x >= 3) continue;
            ASSERT_LE(std::fabs(static_cast<Real>(result) - placed.w[k]), std::fabs(placed.w[k]) * 5.97e-8L + 0x1p-48L)
                << f << ", tap " << k;
        }
    }
}

// --- The host's settings --------------------------------------------------------------------------

TEST(Warp, HostsFloatControl)
{
    std::mt19937 g = make_generator("control");
    std::vector<float> pixels(40 * 30);
    for (float& v : pixels) v = random_value<float>(g, Fill::uniform);
    const float* const src = pixels.data();
    const double h[9] = {1, 0.1, 3, -0.2, 1.1, 8, 0.001, 0.002, 1};
    const std::vector<float> denormal(64 * 50, 1e-40f);
    const float* const map = denormal.data();
    for (const int code : kCodes) {
        SCOPED_TRACE(code);
        expect_control_kept<float>(64 * 50, [&](float* dst) {
            double bound[4];
            return W::Rotate_32f_C1(src, 40, 30, 160, 0, 0, 40, 30, dst, 256, 0, 0, 64, 25, 33.3, 5e-324, 20, code) &&
                   W::WarpPerspective_32f_C1(src, 40, 30, 160, 0, 0, 40, 30, dst, 256, 0, 25, 64, 20, h, code) &&
                   W::Remap_32f_C1(src, 40, 30, 160, 0, 0, 40, 30, map, 256, map, 256, dst + 45 * 64, 256, 64, 5,
                                   code) &&
                   W::GetRotateBound(1, 2, 3, 4, 5e-324, 6e-324, 7, bound);
        });
    }
}

}  // namespace
}  // namespace test
