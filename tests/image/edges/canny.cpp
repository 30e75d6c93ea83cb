// Edges pixel by pixel from their definition: every number rounded once from an exact one, and a set of points that
// grows neighbour by neighbour.
#include "image/edges/canny.h"
#include "image/edges/memory.h"
#include "image/edges/shapes.h"
#include "support/image_tests.h"

namespace test {
namespace {

using Floats = Grid<float>;

constexpr float kInfinity = std::numeric_limits<float>::infinity();

// Stores keep an x87 from carrying more digits; a sum of two floats rounds to the same number from any wider format.
float add(float a, float b)
{
    volatile float sum = a + b;
    return sum;
}
float minus(float a, float b) { return add(a, -b); }
double to_double(Quad value)
{
    volatile double stored = static_cast<double>(value);
    return stored;
}

struct Gradient {
    float x, y;
    double m;
};

class Oracle {
public:
    Oracle(const Floats& p, float low, float high)
        : p_(p), low_(to_double(Quad{low} * low)), high_(to_double(Quad{high} * high))
    {
    }

    std::set<Point> edges() const
    {
        std::set<Point> candidates;
        Path strong;
        for (int y = 0; y < p_.height; ++y) {
            for (int x = 0; x < p_.width; ++x) {
                if (!is_candidate(x, y)) continue;
                candidates.insert({x, y});
                if (gradient(x, y).m > high_) strong.push_back({x, y});
            }
        }
        return joined(strong, [&](const Point& p) { return candidates.count(p) != 0; });
    }

private:
    float p(int x, int y) const
    {
        return p_.at(std::min(std::max(x, 0), p_.width - 1), std::min(std::max(y, 0), p_.height - 1));
    }
    float d(int x, int y) const { return minus(p(x + 1, y), p(x - 1, y)); }
    float s(int x, int y) const { return add(add(p(x - 1, y), p(x + 1, y)), add(p(x, y), p(x, y))); }
    Gradient gradient(int x, int y) const
    {
        if (!p_.contains(x, y)) return {0, 0, 0};
        const float gx = add(add(d(x, y - 1), d(x, y + 1)), add(d(x, y), d(x, y))),
                    gy = minus(s(x, y + 1), s(x, y - 1));
        const double m = to_double(Quad{gx} * gx + Quad{gy} * gy);
        return {gx, gy, m != m ? 0 : m};
    }
    bool is_candidate(int x, int y) const
    {
        const Gradient g = gradient(x, y);
        if (!(g.m > low_)) return false;
        const double t = 0.41421356237309503, a = std::fabs(static_cast<double>(g.x)),
                     b = std::fabs(static_cast<double>(g.y));
        Point to = {1, 0};
        if (b > to_double(Quad{t} * a))
            to = a <= to_double(Quad{t} * b)              ? Point(0, 1)
                 : std::signbit(g.x) == std::signbit(g.y) ? Point(1, 1)
                                                          : Point(-1, 1);
        return g.m > gradient(x - to.first, y - to.second).m && g.m >= gradient(x + to.first, y + to.second).m;
    }

    const Floats& p_;
    double low_, high_;
};

Image image_of(const Floats& picture, Placement where, Generator& g)
{
    Image image(4 * picture.width, picture.height, where, g);
    for (int y = 0; y < picture.height; ++y)
        std::memcpy(image.row(y), &picture.pixels[static_cast<std::size_t>(y * picture.width)],
                    static_cast<std::size_t>(4 * picture.width));
    return image;
}

// Returns the number of pixels on edges.
std::size_t check(const Floats& picture, float low, float high, Generator& g)
{
    const int width = picture.width, height = picture.height;
    Image from = image_of(picture, random_placement(4 * width, height, g), g), to = random_image(width, height, g);
    const std::set<Point> edges = Oracle(picture, low, high).edges();
    const auto source = from.bytes(), before = to.bytes();
    at_every_level([&] {
        ASSERT_TRUE(
            W::Canny_32f8u_C1(from.pixels<float>(), from.step(), to.row(0), to.step(), width, height, low, high));
        expect_pixels<u8>(to, before, [&](int y, int x) {
            return static_cast<u8>(edges.count({x, y}) != 0 ? 255 : 0);
        });
        EXPECT_EQ(from.bytes(), source);
    });
    return edges.size();
}

TEST(Canny, Noise)
{
    std::mt19937 g = make_generator("noise");
    for (int width = 1; width <= 560; width += width < 135 ? 1 : 47) {
        Floats picture(width, uniform(g, 1, width < 140 ? 24 : 9));
        const int kind = uniform(g, 0, 6);
        for (float& p : picture.pixels) {
            // Few levels (equal neighbours), bytes, numbers with all their digits, some of them tiny or huge, any at
            // all. Seldom one of another kind: rows before it are whole numbers.
            const float digits = static_cast<float>(normal(g, 50)), byte = static_cast<float>(uniform(g, 0, 255));
            switch (kind) {
                case 0: p = static_cast<float>(uniform(g, 0, 2)); break;
                case 1: p = byte; break;
                case 2: p = digits; break;
                case 3: p = std::ldexp(digits, -140); break;
                case 4: p = std::ldexp(digits, uniform(g, 110, 122)); break;
                case 5: p = random_value<float>(g, static_cast<Fill>(uniform(g, 0, 3))); break;
                default: p = uniform(g, 0, 400) != 0 ? byte : uniform(g, 0, 1) == 0 ? digits : 363;
            }
        }
        const float scale = kind == 3   ? 0x1p-140f
                            : kind == 4 ? 0x1p116f
                                        : 1,
                    low = kind == 0 ? static_cast<float>(uniform(g, 0, 6))
                                    : scale * static_cast<float>(uniform(g, 0, 300));
        check(picture, low, add(low, scale * static_cast<float>(uniform(g, 0, 200))), g);
    }
}

// Smooth areas have long chains, and neighbours in every direction.
Floats waves(int width, int height, float across, float down)
{
    Floats picture(width, height);
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            picture.at(x, y) = 100 * std::sin(across * static_cast<float>(x)) +
                               60 * std::cos(down * static_cast<float>(y) + across * static_cast<float>(x * x) / 50);
        }
    }
    return picture;
}

TEST(Canny, Waves)
{
    std::mt19937 g = make_generator("waves");
    const std::vector<int> few = {65, 300}, all = {40, 64, 65, 257, 300};
    for (const int width : options().brief ? few : all) {
        for (const float frequency : {0.1f, 0.3f, 0.7f}) {
            const Floats picture = waves(width, 50, frequency, 0.2f);
            for (const float low : {0.0f, 20.0f, 100.0f}) {
                check(picture, low, low + 60, g);
                check(picture, low, low, g);
            }
        }
    }
    const Floats picture = waves(70, 40, 0.2f, 0.3f);
    check(picture, 0, kInfinity, g);
    check(picture, kInfinity, kInfinity, g);
    check(picture, -0.0f, 0, g);
}

// A dim line with one bright end, before a background: its edges are one long chain.
TEST(Canny, Chains)
{
    std::mt19937 g = make_generator("chains");
    const int sides[][2] = {{70, 60}, {64, 130}, {300, 30}, {33, 64}};
    for (const auto& side : sides) {
        const int width = side[0], height = side[1];
        for (const Path& path :
             {spiral(width, height, 6), serpentine(width, height, 7), turned(serpentine(height, width, 7))}) {
            for (const std::size_t bright : {std::size_t{0}, path.size() / 2, path.size() - 1}) {
                Floats picture(width + 6, height + 6, 10);
                for (const Point& p : path) picture.at(p.first + 3, p.second + 3) = 20;
                picture.at(path[bright].first + 3, path[bright].second + 3) = 30;
                EXPECT_GE(check(picture, 8, 50, g), path.size());
                check(picture, 8, 1000, g);
            }
        }
    }
}

// Plateaus of the gradient, one to four pixels wide, in all directions, and thresholds at a magnitude and beside it.
TEST(Canny, EqualMagnitudesAndThresholds)
{
    std::mt19937 g = make_generator("equal");
    const int directions[][2] = {{1, 0}, {0, 1}, {1, 1}, {1, -1}, {-1, 0}, {0, -1}};
    for (const auto& to : directions) {
        for (int ramp = 1; ramp <= 4; ramp += options().brief ? 2 : 1) {
            Floats picture(36, 20);
            for (int y = 0; y < 20; ++y) {
                for (int x = 0; x < 36; ++x)
                    picture.at(x, y) =
                        static_cast<float>(8 * std::min(std::max(to[0] * (x - 18) + to[1] * (y - 10), 0), ramp));
            }
            for (const float height : {16.0f, 32.0f, 45.0f, 48.0f, 64.0f, 91.0f}) {
                for (const float low : {std::nextafter(height, 0.0f), height, std::nextafter(height, 1000.0f)}) {
                    check(picture, low, low, g);
                    check(picture, 0, low, g);
                }
            }
        }
    }
    // A step has four times its height at both its pixels, of which the earlier one is the edge.
    Floats step(6, 3, 0);
    for (int y = 0; y < 3; ++y) {
        for (int x = 3; x < 6; ++x) step.at(x, y) = 5;
    }
    u8 dst[18];
    ASSERT_TRUE(W::Canny_32f8u_C1(step.pixels.data(), 24, dst, 6, 6, 3, 19.99f, 19.99f));
    EXPECT_THAT(dst, testing::ElementsAre(0, 0, 255, 0, 0, 0, 0, 0, 255, 0, 0, 0, 0, 0, 255, 0, 0, 0));
    ASSERT_TRUE(W::Canny_32f8u_C1(step.pixels.data(), 24, dst, 6, 6, 3, 20, 20));
    EXPECT_THAT(dst, testing::Each(0));
}

TEST(Canny, SpecialPixels)
{
    std::mt19937 g = make_generator("special");
    const float most = std::numeric_limits<float>::max(),
                special[] = {kInfinity, -kInfinity, std::nanf(""), -std::nanf(""), most, -most, 0x1p-149f, -0.0f};
    for (const float a : special) {
        for (const float b : special) {
            Floats picture = waves(40, 20, 0.4f, 0.3f);
            for (const Point& p : {Point(5, 5), Point(20, 0), Point(39, 19), Point(21, 10)})
                picture.at(p.first, p.second) = a;
            for (const Point& p : {Point(6, 5), Point(0, 12), Point(20, 19), Point(21, 12)})
                picture.at(p.first, p.second) = b;
            check(picture, 10, 100, g);
            check(picture, 0, kInfinity, g);
        }
    }
}

TEST(Canny, GuardsOfARegion)
{
    Floats picture = waves(300, 20, 0.2f, 0.3f);
    for (const bool at_end : {false, true}) {
        for (const int width : {1, 2, 3, 7, 64, 255, 257, 300}) {
            const GuardedBlock source(static_cast<std::size_t>(4 * width * 20), at_end),
                target(static_cast<std::size_t>(width * 20), at_end);
            for (int y = 0; y < 20; ++y)
                std::memcpy(source.as<float>() + y * width, &picture.at(0, y), static_cast<std::size_t>(4 * width));
            at_every_level([&] {
                ASSERT_TRUE(W::Canny_32f8u_C1(source.as<float>(), 4 * width, target.as(), width, width, 20, 20, 60));
            });
        }
    }
}

// Rounding, flushing and traps of the host's do not show.
TEST(Canny, HostEnvironments)
{
    const Floats picture = waves(50, 20, 0.2f, 0.3f);
    u8 want[1000], dst[1000];
    Floats tiny = picture;
    for (float& p : tiny.pixels) p = std::ldexp(p, -146);
    const std::set<Point> edges = Oracle(tiny, 0, 0x1p-142f).edges();
    for (int i = 0; i < 1000; ++i) want[i] = edges.count({i % 50, i / 50}) != 0 ? 255 : 0;
    at_every_level([&] {
        for (const unsigned mode : HostControl::modes()) {
            const unsigned kept = HostControl::get();
            HostControl::set(mode);
            const bool done = W::Canny_32f8u_C1(tiny.pixels.data(), 200, dst, 50, 50, 20, 0, 0x1p-142f);
            const unsigned left = HostControl::get();
            HostControl::set(kept);
            EXPECT_TRUE(done);
            EXPECT_EQ(left, mode);
            EXPECT_EQ(std::memcmp(dst, want, 1000), 0) << mode;
        }
    });
}

TEST(Canny, ChecksInTheirOrder)
{
    std::mt19937 g = make_generator("checks");
    Image source = random_pixels<float>(30, 5, g), image = random_image(30, 5, g);
    const auto before = image.bytes();
    const float nan = std::nanf(""), *const s = source.pixels<float>();
    u8* const d = image.row(0);
    const int from = source.step(), to = image.step(), most = std::numeric_limits<int>::max();
    struct Row { const float* src; int srcStep; u8* dst; int dstStep; orv::Size roi; float low, high; int status; };
    const Row rows[] = {
        {nullptr, 0, d, 0, {0, 0}, 2, 1, -8},
        {s, 0, nullptr, 0, {0, 0}, 2, 1, -8},
        {s, 0, d, 0, {0, 5}, 2, 1, -6},
        {s, 0, d, 0, {30, 0}, 2, 1, -6},
        {s, 0, d, to, {30, 5}, 2, 1, -14},
        {s, from, d, 0, {30, 5}, 2, 1, -14},
        {s, from, d, -to, {30, 5}, 2, 1, -14},
        {s, from, d, to, {30, 5}, 2, 1, -18},
        {s, from, d, to, {30, 5}, -1, 1, -18},
        {s, from, d, to, {30, 5}, nan, 1, -18},
        {s, from, d, to, {30, 5}, 1, nan, -18},
        {s, from, d, to, {30, 5}, nan, nan, -18},
        {s, from, d, to, {30, 5}, -0x1p-149f, 1, -18},
        {s, from, d, to, {30, 5}, kInfinity, 1, -18},
        {s, from, d, to, {30, 5}, 1, 1, -9},
        {s, from, d, to, {most, most}, 0, 1, -9},
    };
    at_every_level([&] {
        const AllocationFailure none(0);
        for (const Row& r : rows) {
            EXPECT_EQ(orv::orv_Canny_32f8u_C1(r.src, r.srcStep, r.dst, r.dstStep, r.roi, &r.low, &r.high), r.status);
            EXPECT_FALSE(
                W::Canny_32f8u_C1(r.src, r.srcStep, r.dst, r.dstStep, r.roi.width, r.roi.height, r.low, r.high));
        }
        EXPECT_EQ(image.bytes(), before);
    });
    at_every_level([&] {
        // Each allocation fails in turn, until there is none left to fail.
        for (int failing = 0;; ++failing) {
            const AllocationFailure some(failing);
            if (W::Canny_32f8u_C1(s, from, d, to, 30, 5, 1, 2)) break;
            ASSERT_LT(failing, 10);
            EXPECT_EQ(image.bytes(), before);
        }
        image.restore(before);
    });
}

TEST(Canny, MemoryIsBounded)
{
    const int sides[][2] = {{640, 480}, {33, 400}, {5, 1000}, {1000, 5}, {4000, 1}, {257, 257}};
    for (const auto& side : sides) {
        const int width = side[0], height = side[1];
        const Floats picture = waves(width, height, 0.3f, 0.2f);
        std::vector<u8> to(static_cast<std::size_t>(width * height));
        const MeasuredMemory memory;
        at_every_level([&] {
            memory.start();
            ASSERT_TRUE(W::Canny_32f8u_C1(picture.pixels.data(), 4 * width, to.data(), width, width, height, 20, 60));
            EXPECT_LE(memory.bytes(), 10LL * width * height) << width << " x " << height;
        });
    }
}

}  // namespace
}  // namespace test
