// Resampling by factor and shift, against the definition of each interpolation in long double; and the zoom.
#include <cmath>
#include <vector>

#include "ImageProcessingWrapper.h"
#include "gmock/gmock.h"
#include "image/resize/resample.h"
#include "support/allocations.h"
#include "support/guarded_block.h"
#include "support/host_control.h"
#include "support/image.h"
#include "support/levels.h"

namespace test {
namespace {

using W = ImageProcessingWrapper;
using u8 = unsigned char;
using u16 = unsigned short;
using orv::Rectangle;
using orv::Size;
using Real = long double;

constexpr int kSmooth = INT32_MIN;  // the top bit

template <class T> constexpr int channels_from(int wide) { return sizeof(T) == 1 ? wide : 1; }

template <class T>
const orv::Operation<orv::Resample<T>>& operation(int channels)
{
    if constexpr (sizeof(T) == 1)
        return channels == 1   ? orv::orv_ResizeSqrPixel_8u_C1
               : channels == 3 ? orv::orv_ResizeSqrPixel_8u_C3
                               : orv::orv_ResizeSqrPixel_8u_C4;
    else if constexpr (sizeof(T) == 2) return orv::orv_ResizeSqrPixel_16u_C1;
    else return orv::orv_ResizeSqrPixel_32f_C1;
}

// --- Oracle ---------------------------------------------------------------------------------------

Real mitchell(Real B, Real C, Real d)
{
    d = std::fabs(d);
    if (d < 1) return ((12 - 9 * B - 6 * C) * d * d * d + (-18 + 12 * B + 6 * C) * d * d + (6 - 2 * B)) / 6;
    if (d < 2)
        return ((-B - 6 * C) * d * d * d + (6 * B + 30 * C) * d * d + (-12 * B - 48 * C) * d + (8 * B + 24 * C)) / 6;
    return 0;
}

Real sinc(Real x)
{
    const Real y = x * 3.14159265358979323846264338327950288L;
    return x == 0 ? 1 : std::sin(y) / y;
}

Real kernel(int code, Real d)
{
    switch (code) {
        case 2: return std::fabs(d) < 1 ? 1 - std::fabs(d) : 0;
        case 5: return mitchell(1, 0, d);
        case 7: return mitchell(0.5L, 0.3L, d);
        case 16: return std::fabs(d) < 3 ? sinc(d) * sinc(d / 3) : 0;
        default: return mitchell(0, 0.5L, d);  // 4 and 6
    }
}

// One axis: source pixels and their weights for a destination position. Volatile keeps the x87 to doubles.
struct Axis {
    double factor, shift;
    int low, high;
    bool smooth;
    double source(double at) const
    {
        volatile double d = at - shift;
        d = d / factor;
        return d;
    }
    bool covers(int x) const
    {
        const Real part = coverage(x);
        return (source(x + 0.5) >= low && source(x + 0.5) < high + 1.0) || (smooth && part >= 1 / 1024.0L && part < 1);
    }
    std::vector<std::pair<int, Real>> taps(int code, int x) const
    {
        const double s = std::min(std::max<double>(source(x + 0.5), low), high + 1.0);
        if (code == 1) return {{std::min(static_cast<int>(std::floor(s)), high), 1}};
        std::vector<std::pair<int, Real>> all;
        if (code == 8) {
            const Real left = std::max<Real>(source(x), low), right = std::min<Real>(source(x + 1), high + 1);
            for (int k = static_cast<int>(std::floor(left)); k < right; ++k) {
                all.push_back({k, (std::min<Real>(k + 1, right) - std::max<Real>(k, left)) / (right - left)});
            }
            return all;
        }
        const Real t = s - 0.5L;
        Real sum = 0;
        for (int k = static_cast<int>(std::floor(t)) - 3; k <= static_cast<int>(std::floor(t)) + 4; ++k) {
            const Real w = kernel(code, t - k);
            sum += w;
            all.push_back({std::min(std::max(k, low), high), w});
        }
        if (code == 16) for (auto& tap : all) tap.second /= sum;
        return all;
    }
    Real coverage(int x) const
    {
        const Real part = std::min<Real>((high + 1.0L) * factor + shift, x + 1) -
                          std::max<Real>(low * static_cast<Real>(factor) + shift, x);
        return part < 1 - 1.0L / 1024 ? std::max<Real>(part, 0) : 1;
    }
};

template <class T>
Real value_at(Image& image, int column, int row, int channels, int c)
{
    T value;
    std::memcpy(&value, image.row(row) + (column * channels + c) * static_cast<int>(sizeof(T)), sizeof(T));
    return static_cast<Real>(value);
}

// Integers: the rounded value, give or take what weights of float precision can move near a tie.
template <class T>
bool agrees(T actual, Real exact)
{
    if (std::is_floating_point<T>::value) return std::fabs(static_cast<Real>(actual) - exact) <= 1e-3L;
    const Real clamped = std::min<Real>(std::max<Real>(exact, 0), static_cast<Real>(std::numeric_limits<T>::max()));
    return std::fabs(static_cast<Real>(actual) - clamped) <=
           0.5L + 2e-6L * static_cast<Real>(std::numeric_limits<T>::max());
}

// --- Every interpolation against the oracle -------------------------------------------------------

struct Request {
    Size source;
    Rectangle from, to;
    double xFactor, yFactor, xShift, yShift;
    int interpolation;
};

double random_factor(std::mt19937& g)
{
    static const double usual[] = {0.5, 1, 2, 3, 0.4, 0.25, 1 / 3.0};
    return uniform(g, 0, 1) != 0 ? usual[uniform(g, 0, 6)] : std::exp2(uniform(g, -300, 300) / 100.0);
}

Request random_request(std::mt19937& g, int code, bool flat)
{
    Request r;
    r.source = {uniform(g, 1, 60), uniform(g, 1, flat ? 4 : 30)};
    r.from.x = uniform(g, 0, r.source.width - 1);
    r.from.y = uniform(g, 0, r.source.height - 1);
    r.from.width = uniform(g, 1, r.source.width - r.from.x);
    r.from.height = uniform(g, 1, r.source.height - r.from.y);
    r.to = {uniform(g, 0, 5), uniform(g, 0, 2), uniform(g, 1, 70), uniform(g, 1, 4)};
    r.xFactor = random_factor(g);
    r.yFactor = uniform(g, 0, 1) != 0 ? r.xFactor : random_factor(g);
    // Mostly so that the image meets the destination.
    r.xShift = -r.from.x * r.xFactor + (uniform(g, 0, 1) != 0 ? uniform(g, -8, 24) / 8.0 : 0);
    r.yShift = -r.from.y * r.yFactor + (uniform(g, 0, 1) != 0 ? uniform(g, -8, 8) / 8.0 : 0);
    r.interpolation = code | (uniform(g, 0, 1) != 0 ? kSmooth : 0);
    return r;
}

std::size_t buffer_size(const Request& r, int channels)
{
    int size = 0;
    EXPECT_TRUE(W::ResizeGetBufSize(r.from.x, r.from.y, r.from.width, r.from.height, r.to.x, r.to.y, r.to.width,
                                    r.to.height, channels, r.interpolation, &size));
    return static_cast<std::size_t>(size);
}

// The source has only the rectangle's bytes, between fences; the buffer ends at one.
template <class T>
void check_interpolation(int code, int channels, std::mt19937& g)
{
    const bool flat = uniform(g, 0, 2) != 0;
    const Request r = random_request(g, code, flat);
    const int pixel = channels * static_cast<int>(sizeof(T));
    const bool fenced = r.from.height <= FencedRows::kRows;
    const Placement where = {fenced, uniform(g, 0, 1) != 0, r.from.width * pixel + uniform(g, 0, 9), uniform(g, 0, 3)};
    Image src(r.from.width * pixel, r.from.height, where, g);
    Image dst((r.to.x + r.to.width) * pixel, r.to.y + r.to.height,
              {false, false, (r.to.x + r.to.width) * pixel + uniform(g, 0, 9), uniform(g, 0, 3)}, g);
    for (Image* image : {&src, &dst}) {
        if (!std::is_floating_point<T>::value) image->fill<T>(g, static_cast<Fill>(uniform(g, 0, 2)));
        else image->fill<T>(g, Fill::uniform);
    }
    const auto before = dst.bytes();
    std::vector<std::vector<u8>> old_rows;
    for (int y = 0; y < dst.height(); ++y) old_rows.emplace_back(dst.row(y), dst.row(y) + dst.row_bytes());
    const auto address = reinterpret_cast<std::uintptr_t>(src.row(0)) -
                         static_cast<std::uintptr_t>(static_cast<std::ptrdiff_t>(r.from.x) * pixel) -
                         static_cast<std::uintptr_t>(static_cast<std::ptrdiff_t>(r.from.y) * src.step());
    std::vector<u8> first;
    at_every_level([&] {
        dst.restore(before);
        const GuardedBlock work(buffer_size(r, channels));
        const auto status = operation<T>(channels)(reinterpret_cast<const T*>(address), r.source, src.step(), r.from,
                                                   dst.pixels<T>(), dst.step(), r.to, r.xFactor, r.yFactor, r.xShift,
                                                   r.yShift, r.interpolation, work.as());
        ASSERT_EQ(status, orv::StatusOk);
        if (first.empty()) first = dst.bytes();
        else ASSERT_EQ(dst.bytes(), first);
    });
    const bool smooth = (r.interpolation & kSmooth) != 0;
    const Axis ax = {r.xFactor, r.xShift, r.from.x, r.from.x + r.from.width - 1, smooth};
    const Axis ay = {r.yFactor, r.yShift, r.from.y, r.from.y + r.from.height - 1, smooth};
    for (int y = 0; y < dst.height(); ++y) {
        for (int x = 0; x < r.to.x + r.to.width; ++x) {
            const bool written = x >= r.to.x && y >= r.to.y && ax.covers(x) && ay.covers(y);
            for (int c = 0; c < channels; ++c) {
                T was, is;
                std::memcpy(
                    &was,
                    old_rows[static_cast<std::size_t>(y)].data() + (x * channels + c) * static_cast<int>(sizeof(T)),
                    sizeof(T));
                std::memcpy(&is, dst.row(y) + (x * channels + c) * static_cast<int>(sizeof(T)), sizeof(T));
                if (!written) {
                    ASSERT_EQ(std::memcmp(&was, &is, sizeof(T)), 0) << x << " " << y;
                    continue;
                }
                Real sum = 0;
                for (const auto& ty : ay.taps(code, y)) {
                    for (const auto& tx : ax.taps(code, x))
                        sum += ty.second * tx.second *
                               value_at<T>(src, tx.first - r.from.x, ty.first - r.from.y, channels, c);
                }
                const Real part = smooth ? ax.coverage(x) * ay.coverage(y) : 1;
                if (part < 1) {
                    // The new value is rounded before it is mixed.
                    const Real old_value = static_cast<Real>(was);
                    const Real mixed =
                        old_value + (std::min<Real>(std::max<Real>(sum, std::numeric_limits<T>::lowest()),
                                                    std::numeric_limits<T>::max()) -
                                     old_value) *
                                        part;
                    ASSERT_LE(std::fabs(static_cast<Real>(is) - mixed), std::is_floating_point<T>::value ? 1e-3L : 1.2L)
                        << x << " " << y;
                    continue;
                }
                ASSERT_TRUE(agrees(is, sum))
                    << "code " << code << ", pixel " << x << ", " << y << ", channel " << c << ": "
                    << static_cast<double>(is) << " instead of " << static_cast<double>(sum) << "; factors "
                    << r.xFactor << ", " << r.yFactor << ", shifts " << r.xShift << ", " << r.yShift << ", source "
                    << r.from.x << " " << r.from.y << " " << r.from.width << " " << r.from.height;
            }
        }
    }
}

TEST(Resample, EveryInterpolationFollowsItsDefinition)
{
    std::mt19937 g = make_generator("resample");
    for (const int code : {1, 2, 4, 5, 6, 7, 8, 16}) {
        for (int i = 0; i < (options().brief ? 8 : 150); ++i) {
            check_interpolation<u8>(code, 1, g);
            check_interpolation<u8>(code, 3, g);
            check_interpolation<u8>(code, 4, g);
            check_interpolation<u16>(code, 1, g);
            check_interpolation<float>(code, 1, g);
            if (testing::Test::HasFatalFailure()) return;
        }
    }
}

// Two columns at a factor of 1.2 end at 2.4: the third pixel is covered by 0.4, its centre is not.
TEST(Resample, EdgesOfPixelsCoveredInPart)
{
    const std::vector<u16> src(4, 1000);
    std::vector<u8> work(1 << 16);
    for (const int code : {1, 2, 5, 7, 8, 16}) {
        for (const bool smooth : {false, true}) {
            at_every_level([&] {
                std::vector<u16> dst(16, 0);
                ASSERT_TRUE(W::ResizeSqrPixel_16u_C1R(src.data(), 2, 2, 4, 0, 0, 2, 2, dst.data(), 8, 0, 0, 4, 4, 1.2,
                                                      1.2, 0, 0, smooth ? code | kSmooth : code, work.data()));
                const u16 full = 1000, part = smooth ? 400 : 0, corner = smooth ? 160 : 0;
                EXPECT_EQ(dst, (std::vector<u16>{full, full, part, 0, full, full, part, 0, part, part, corner, 0, 0, 0,
                                                 0, 0}))
                    << code;
            });
        }
    }
}

// Special floats: the same bits at every level, and nearest neighbours as they are.
TEST(Resample, FloatsOfEveryKind)
{
    std::mt19937 g = make_generator("floats");
    for (int i = 0; i < (options().brief ? 10 : 200); ++i) {
        Image src(4 * 40, 6, {false, false, 160, 0}, g);
        src.fill<float>(g, i % 2 == 0 ? Fill::special : Fill::near_high);
        static const int codes[] = {1, 2, 4, 5, 7, 8, 16};
        const int code = codes[i % 7];
        const Request r = {{40, 6}, {0, 0, 40, 6}, {0, 0, 60, 9}, i % 3 == 0 ? 0.4 : 1.5, 1.5, 0, 0, code};
        const std::vector<float> blank(60 * 9, 3.f);
        std::vector<float> first, dst;
        at_every_level([&] {
            dst = blank;
            const GuardedBlock work(buffer_size(r, 1));
            ASSERT_EQ(orv::orv_ResizeSqrPixel_32f_C1(src.pixels<float>(), r.source, 160, r.from, dst.data(), 240, r.to,
                                                     r.xFactor, r.yFactor, 0, 0, code, work.as()),
                      orv::StatusOk);
            if (first.empty()) first = dst;
            else ASSERT_EQ(std::memcmp(first.data(), dst.data(), dst.size() * 4), 0) << "code " << code;
        });
        if (code == 1) {
            ASSERT_EQ(std::memcmp(first.data(), src.row(0) + (i % 3 == 0 ? 4 : 0), 4), 0);
        }
    }
}

// --- Arguments ------------------------------------------------------------------------------------

TEST(Resample, AnyDoubleIsSafe)
{
    const double any[] = {0,      -0.0, 1,     -1,  0.37,     1e-300,    5e-324,      1e300,
                          -1e300, 1e17, -1e17, 1e9, HUGE_VAL, -HUGE_VAL, std::nan("")};
    std::mt19937 g = make_generator("doubles");
    for (int i = 0; i < (options().brief ? 60 : 3000); ++i) {
        const auto pick = [&] { return any[uniform(g, 0, 14)]; };
        static const int codes[] = {1, 2, 4, 5, 6, 7, 8, 16};
        const Request r = {{9, 4}, {0, 0, 9, 4}, {0, 0, 12, 4}, pick(),
                           pick(), pick(),       pick(),        codes[i % 8] | (i % 3 == 0 ? kSmooth : 0)};
        Image src(9 * 2, 4, {true, true, 0, 0}, g), dst(12 * 2, 4, {true, i % 2 == 0, 0, 0}, g);
        const auto before = dst.bytes();
        std::vector<u8> first;
        at_every_level([&] {
            dst.restore(before);
            const GuardedBlock work(buffer_size(r, 1));
            const bool done = W::ResizeSqrPixel_16u_C1R(src.pixels<u16>(), 9, 4, src.step(), 0, 0, 9, 4,
                                                        dst.pixels<u16>(), dst.step(), 0, 0, 12, 4, r.xFactor,
                                                        r.yFactor, r.xShift, r.yShift, r.interpolation, work.as());
            ASSERT_EQ(done, r.xFactor > 0 && r.yFactor > 0);
            if (!done) {
                ASSERT_EQ(dst.bytes(), before);
            }
            if (first.empty()) first = dst.bytes();
            else
                ASSERT_EQ(dst.bytes(), first) << r.xFactor << " " << r.yFactor << " " << r.xShift << " " << r.yShift
                                              << " code " << r.interpolation;
        });
        if (testing::Test::HasFatalFailure()) return;
    }
}

// What the host does to NaNs, denormal numbers and roundings is not what the library does. The arguments are
// literals, so that no code of the test computes with them.
TEST(Resample, HostsFloatControl)
{
    static std::vector<u16> src(64), dst(64);
    static std::vector<u8> work(1 << 16);
    std::mt19937 g = make_generator("control");
    for (u16& v : src) v = static_cast<u16>(g());
    static const auto s = reinterpret_cast<const u8*>(src.data());
    static const auto d = reinterpret_cast<u8*>(dst.data());
#define RESAMPLED(...)                                                                                           \
    [] {                                                                                                         \
        return W::ResizeSqrPixel_16u_C1R(src.data(), 8, 8, 16, 0, 0, 8, 8, dst.data(), 16, 0, 0, 8, 8, __VA_ARGS__, \
                                         work.data());                                                           \
    }
#define ZOOMED(zoom, smooth) [] { return W::Resize_8u_C4(s, 16, 4, 8, d, 16, 4, 8, zoom, 1, 0, smooth); }
    const struct {
        const char* name;
        bool (*call)();
        bool expected;
    } calls[] = {
        {"factor not a number", RESAMPLED(__builtin_nan(""), 1.0, 0.0, 0.0, 1), false},
        {"signalling factor", RESAMPLED(1.0, __builtin_nans(""), 0.0, 0.0, 2), false},
        {"denormal factor", RESAMPLED(5e-324, 1.0, 0.0, 0.0, 8), true},
        {"denormal shifts", RESAMPLED(1.0, 1.0, 5e-324, -5e-324, 2), true},
        {"signalling shift", RESAMPLED(1.0, 1.0, __builtin_nans(""), 0.0, 2), true},
        {"smooth edges", RESAMPLED(0.7, 0.7, 0.3, 0.1, kSmooth | 8), true},
        {"lanczos", RESAMPLED(0.7, 1.3, 0.3, 0.1, 16), true},
        {"zoom not a number", ZOOMED(__builtin_nanf(""), true), true},
        {"signalling zoom", ZOOMED(__builtin_nansf(""), false), true},
        {"denormal zoom", ZOOMED(1e-45f, true), true},
        {"zoom", ZOOMED(1.7f, true), true},
    };
#undef RESAMPLED
#undef ZOOMED
    expect_same_for_every_host(calls, dst);
}

// Images as large as ints can count, of which only a corner exists: the pixels that a small image has in its place.
template <class T>
void check_far_corner(int code, int channels, std::mt19937& g)
{
    constexpr int most = INT32_MAX, width = 80, height = 24, to_width = 20, to_height = 6;
    const int pixel = channels * static_cast<int>(sizeof(T)), src_step = width * pixel, dst_step = to_width * pixel;
    std::vector<T> src(static_cast<std::size_t>(width * height * channels)),
        dst(static_cast<std::size_t>(to_width * to_height * channels));
    for (T& v : src) v = static_cast<T>(g() % 255);
    const std::vector<T> blank(dst.size(), T{9});
    const auto moved = [](T* p, std::int64_t bytes) {
        return reinterpret_cast<T*>(reinterpret_cast<std::uintptr_t>(p) - static_cast<std::uintptr_t>(bytes));
    };
    T* const far_src = moved(src.data(), std::int64_t{most - width} * pixel + std::int64_t{most - height} * src_step);
    T* const far_dst =
        moved(dst.data(), std::int64_t{most - to_width} * pixel + std::int64_t{most - to_height} * dst_step);
    const int left = most - width, top = most - height;
    const Rectangle sources[] = {{left, top, width, height}, {left, 0, width, most}, {0, 0, most, most}};
    const Rectangle to = {most - to_width, most - to_height, to_width, to_height};
    const GuardedBlock work(1 << 18);
    for (const double factor : {0.5, 1.0}) {
        // The image ends where the destination does, so taps beyond it are asked for.
        const auto shift = [=](double end, double of) { return end - of * factor; };
        dst = blank;
        ASSERT_EQ(operation<T>(channels)(src.data(), {width, height}, src_step, {0, 0, width, height}, dst.data(),
                                         dst_step, {0, 0, to_width, to_height}, factor, factor, shift(to_width, width),
                                         shift(to_height, height), code, work.as()),
                  orv::StatusOk);
        const std::vector<T> expected = dst;
        ASSERT_NE(expected, blank);
        // Tables count what the area average adds up and what lies side by side; rows of other interpolations do not.
        for (int i = 0; i < (code == 1 ? 3 : code == 8 ? 1 : 2); ++i) {
            dst = blank;
            ASSERT_EQ(operation<T>(channels)(far_src, {most, most}, src_step, sources[i], far_dst, dst_step, to, factor,
                                             factor, shift(most, most), shift(most, most), code, work.as()),
                      orv::StatusOk);
            ASSERT_EQ(dst, expected) << "code " << code << ", factor " << factor << ", source " << i;
        }
    }
}

TEST(Resample, FarCornersOfTheLargestImages)
{
    if (sizeof(void*) < 8) GTEST_SKIP() << "no such images with 32-bit addresses";
    std::mt19937 g = make_generator("far");
    for (const int code : {1, 2, 4, 5, 7, 8, 16, 1 | kSmooth, 5 | kSmooth}) {
        at_every_level([&] {
            check_far_corner<u8>(code, 1, g);
            check_far_corner<u8>(code, 3, g);
            check_far_corner<u8>(code, 4, g);
            check_far_corner<u16>(code, 1, g);
            check_far_corner<float>(code, 1, g);
        });
    }
}

// What is looked for in so many positions is found at once, also if it is not there.
TEST(Resample, ImagesFarFromTheDestination)
{
    const std::vector<u16> src(64, 1);
    std::vector<u16> dst(64, 9);
    u8 work[64];
    at_every_level([&] {
        for (const double shift : {-1e6, -9.0, 3e9}) {
            for (const int code : {1, 5, 8, 8 | kSmooth}) {
                EXPECT_TRUE(W::ResizeSqrPixel_16u_C1R(src.data(), 8, 8, 16, 0, 0, 8, 8, dst.data(), 16, 0, 0, INT32_MAX,
                                                      INT32_MAX, 1, 1, shift, shift, code, work));
            }
        }
        EXPECT_THAT(dst, testing::Each(9));
    });
}

TEST(Resample, BufferSizeChecksComeInOrder)
{
    const struct {
        Rectangle from, to;
        int channels, interpolation;
        bool null;
        int expected;
    } calls[] = {
        {{0, 0, 0, 4}, {0, 0, 4, 4}, 2, 3, true, -8},
        {{0, 0, 0, 4}, {0, 0, 4, 4}, 2, 3, false, -6},
        {{0, 0, 4, 4}, {0, 0, 4, -1}, 2, 3, false, -6},
        {{0, 0, 4, 4}, {0, 0, 4, 4}, 2, 3, false, -53},
        {{0, 0, 4, 4}, {0, 0, 4, 4}, 1, 3, false, -22},
        {{0, 0, 4, 4}, {0, 0, 4, 4}, 1, 0, false, -22},
        {{0, 0, 4, 4}, {0, 0, 4, 4}, 1, 9, false, -22},
        {{0, 0, 4, 4}, {0, 0, 4, 4}, 1, 32, false, -22},
        {{0, 0, 4, 4}, {0, 0, 4, 4}, 1, static_cast<int>(0xC0000001u), false, -22},
        {{0, 0, INT32_MAX, 4}, {0, 0, 4, 4}, 4, 16, false, -6},
        {{0, 0, 4, 4}, {0, 0, 4, INT32_MAX}, 4, 1, false, -6},
        {{-5, 900, 4, 4}, {0, 0, 4, 4}, 4, static_cast<int>(0x80000008u), false, 0},
        {{0, 0, 4, 4}, {0, 0, 4, 4}, 3, 0x40000010, false, 0},
    };
    at_every_level([&] {
        for (const auto& c : calls) {
            int size = -77;
            EXPECT_EQ(orv::orv_ResizeGetBufSize(c.from, c.to, c.channels, c.interpolation, c.null ? nullptr : &size),
                      c.expected);
            EXPECT_EQ(size == -77, c.expected != 0);
        }
    });
}

TEST(Resample, RefusalsWriteNothing)
{
    std::vector<u16> src(64, 1), dst(64, 9);
    std::vector<u8> work(1 << 20);
    const Rectangle all = {0, 0, 8, 8};
    const struct {
        const u16* src;
        Size size;
        Rectangle from, to;
        double factor;
        int code;
        void* work;
        int expected;
    } calls[] = {
        {nullptr, {0, 8}, all, all, 1, 1, work.data(), -8},
        {src.data(), {8, 8}, all, all, 1, 1, nullptr, -8},
        {src.data(), {8, 0}, all, all, 0, 3, work.data(), -6},
        {src.data(), {8, 8}, {0, 0, 8, 0}, all, 0, 3, work.data(), -6},
        {src.data(), {8, 8}, all, {0, 0, -8, 8}, 0, 3, work.data(), -6},
        {src.data(), {8, 8}, all, all, 0, 3, work.data(), -23},
        {src.data(), {8, 8}, all, all, 1, 3, work.data(), -22},
        {src.data(), {8, 8}, {8, 0, 8, 8}, all, 1, 1, work.data(), -6},
        {src.data(), {8, 8}, all, {-8, 0, 8, 8}, 1, 1, work.data(), -6},
    };
    at_every_level([&] {
        for (const auto& c : calls) {
            EXPECT_EQ(orv::orv_ResizeSqrPixel_16u_C1(c.src, c.size, 16, c.from, dst.data(), 16, c.to, c.factor, 1, 0, 0,
                                                     c.code, c.work),
                      c.expected);
        }
        EXPECT_THAT(dst, testing::Each(9));
        // What overlaps the source and the destination counts; the rest of the rectangles does not exist.
        std::vector<u16> out(64, 9);
        EXPECT_TRUE(W::ResizeSqrPixel_16u_C1R(src.data(), 8, 8, 16, -3, 6, 100, 100, out.data(), 16, -5, -5, 13, 13, 1,
                                              1, 0, 0, 1, work.data()));
        EXPECT_EQ(out[47], 9);
        EXPECT_EQ(out[48], 1);
    });
}

// --- Zoom and pan ---------------------------------------------------------------------------------

TEST(Zoom, MapsAsDocumented)
{
    const struct {
        Size source;
        int width;
        float zoom;
        int panX, panY;
        bool smooth;
        double factor, xShift, yShift;
        unsigned code;
    } calls[] = {
        {{8, 6}, 8, 1, 0, 0, false, 1, 0, 0, 1},
        {{8, 6}, 8, 1, 0, 0, true, 1, 0, 0, 0x80000005u},
        {{8, 6}, 4, 1, 1, 0, true, 0.5, -0.5, 0, 0x80000008u},
        {{8, 6}, 16, 2, 0, -1, true, 4, -8, -2, 0x80000005u},
        {{3, 3}, 1, 1, 0, 0, false, static_cast<double>(1.f / 3.f), 0, 0, 0x80000008u},
        {{100, 50}, 37, 0.5f, 0, 0,
         true,
         static_cast<double>(37.f / 100.f) * 0.5,
         50 * (static_cast<double>(37.f / 100.f) * 0.5),
         25 * (static_cast<double>(37.f / 100.f) * 0.5),
         0x80000008u},
    };
    at_every_level([&] {
        for (const auto& c : calls) {
            orv::SquareMapping m;
            ASSERT_EQ(orv::orv_ZoomMapping(c.source, c.width, c.zoom, c.panX, c.panY, c.smooth, &m), orv::StatusOk);
            EXPECT_EQ(m.factor, c.factor);
            EXPECT_EQ(m.xShift, c.xShift);
            EXPECT_EQ(m.yShift, c.yShift);
            EXPECT_EQ(static_cast<unsigned>(m.interpolation), c.code);
        }
    });
}

TEST(Zoom, IsTheResamplerWithItsMapping)
{
    std::mt19937 g = make_generator("zoom");
    for (int i = 0; i < (options().brief ? 10 : 100); ++i) {
        const int width = uniform(g, 4, 40), height = uniform(g, 4, 30), to_width = uniform(g, 4, 50),
                  to_height = uniform(g, 4, 40);
        std::vector<u16> src(static_cast<std::size_t>(width * height)),
            dst(static_cast<std::size_t>(to_width * to_height), 9), expected(dst);
        for (u16& v : src) v = static_cast<u16>(g());
        const float zoom = static_cast<float>(std::exp2(uniform(g, -20, 20) / 10.0));
        const int panX = uniform(g, -3, 3), panY = uniform(g, -3, 3);
        const bool smooth = uniform(g, 0, 1) != 0;
        orv::SquareMapping m;
        orv::orv_ZoomMapping({width, height}, to_width, zoom, panX, panY, smooth, &m);
        std::vector<u8> work(1 << 20);
        ASSERT_TRUE(W::ResizeSqrPixel_16u_C1R(src.data(), width, height, width * 2, 0, 0, width, height,
                                              expected.data(), to_width * 2, 0, 0, to_width, to_height, m.factor,
                                              m.factor, m.xShift, m.yShift, m.interpolation, work.data()));
        ASSERT_TRUE(W::Resize_16u_C1(src.data(), width * 2, width, height, dst.data(), to_width * 2, to_width,
                                     to_height, zoom, panX, panY, smooth));
        ASSERT_EQ(dst, expected);
    }
}

TEST(Zoom, IsTrueWhateverHappens)
{
    std::vector<float> src(64, 1.f), dst(64, 9.f);
    const auto s = reinterpret_cast<const u8*>(src.data());
    const auto d = reinterpret_cast<u8*>(dst.data());
    at_every_level([&] {
        EXPECT_TRUE(W::Resize_8u_C4(nullptr, 32, 8, 8, d, 32, 8, 8, 1, 0, 0, false));
        EXPECT_TRUE(W::Resize_8u_C3(s, 24, 8, 8, nullptr, 24, 8, 8, 1, 0, 0, false));
        EXPECT_TRUE(W::Resize_32f_C1(src.data(), 32, 0, 8, dst.data(), 32, 8, 8, 1, 0, 0, true));
        EXPECT_TRUE(W::Resize_32f_C1(src.data(), 32, 8, 8, dst.data(), 32, 8, -8, 1, 0, 0, true));
        for (const float zoom : {0.f, -0.f, -1.f, std::nanf(""), -HUGE_VALF}) {
            for (const bool smooth : {false, true})
                EXPECT_TRUE(W::Resize_32f_C1(src.data(), 32, 8, 8, dst.data(), 32, 8, 8, zoom, 0, 0, smooth));
        }
        {
            const AllocationFailure failure(0);
            EXPECT_TRUE(W::Resize_32f_C1(src.data(), 32, 8, 8, dst.data(), 32, 8, 8, 1, 0, 0, true));
        }
        EXPECT_THAT(dst, testing::Each(9.f));
        // The image may lie anywhere.
        for (const int pan : {INT32_MIN, -9, 9, INT32_MAX})
            EXPECT_TRUE(W::Resize_32f_C1(src.data(), 32, 8, 8, dst.data(), 32, 8, 8, 1, pan, pan, true));
        EXPECT_THAT(dst, testing::Each(9.f));
        EXPECT_TRUE(W::Resize_32f_C1(src.data(), 32, 8, 8, dst.data(), 32, 8, 8, 1, 0, 0, false));
        EXPECT_THAT(dst, testing::Each(1.f));
        dst.assign(64, 9.f);
    });
}

}  // namespace
}  // namespace test
