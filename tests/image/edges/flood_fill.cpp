// Filled areas against a set of points that grows neighbour by neighbour.
#include "image/edges/flood_fill.h"
#include "image/edges/memory.h"
#include "image/edges/shapes.h"
#include "support/image_tests.h"

namespace test {
namespace {

using Bytes = Grid<u8>;

std::set<Point> area(const Bytes& picture, Point seed)
{
    const u8 value = picture.at(seed.first, seed.second);
    return joined({seed}, [&](const Point& p) {
        return picture.contains(p.first, p.second) && picture.at(p.first, p.second) == value;
    });
}

// All around the region has the seed's value, too.
void check(const Bytes& picture, Point seed, u8 value, Placement where = {false, false, 0, 5})
{
    Generator none;
    if (where.step == 0) where.step = picture.width + 70;
    Image image(picture.width, picture.height, where, none);
    const u8 old = picture.at(seed.first, seed.second);
    image.restore(std::vector<u8>(image.bytes().size(), old));
    for (int y = 0; y < picture.height; ++y) {
        for (int x = 0; x < picture.width; ++x) image.row(y)[x] = picture.at(x, y);
    }
    const std::set<Point> reached = old == value ? std::set<Point>() : area(picture, seed);
    const auto before = image.bytes();
    at_every_level([&] {
        int count = -1;
        ASSERT_TRUE(W::FloodFill_8Con_8u_C1IR(image.row(0), image.step(), picture.width, picture.height, seed.first,
                                              seed.second, value, &count));
        EXPECT_EQ(count, static_cast<int>(reached.size()));
        expect_pixels<u8>(image, before, [&](int y, int x) {
            return reached.count({x, y}) != 0 ? value : picture.at(x, y);
        });
    });
}

// Every pixel takes one of two values, or few take another.
Bytes noise(int width, int height, int percent, Generator& g)
{
    Bytes picture(width, height, 77);
    for (u8& p : picture.pixels) {
        if (uniform(g, 0, 99) < percent) p = static_cast<u8>(uniform(g, 78, 79));
    }
    return picture;
}

TEST(FloodFill, Noise)
{
    std::mt19937 g = make_generator("noise");
    for (int width = 1; width <= 600; width += width < 140 ? 1 : 41) {
        const int height = width < 20 ? uniform(g, 1, 150) : uniform(g, 1, 30);
        const Bytes picture = noise(width, height, uniform(g, 0, 80), g);
        check(picture, {uniform(g, 0, width - 1), uniform(g, 0, height - 1)}, static_cast<u8>(uniform(g, 75, 80)));
    }
}

TEST(FloodFill, RowsAtFences)
{
    std::mt19937 g = make_generator("fences");
    for (int i = 0; i < 150; ++i) {
        const int width = i < 130 ? i + 1 : uniform(g, 130, 3000), height = uniform(g, 1, 8);
        const Bytes picture = noise(width, height, uniform(g, 0, 50), g);
        check(picture, {uniform(g, 0, width - 1), uniform(g, 0, height - 1)}, 5, {true, i % 2 == 0, 0, 0});
    }
}

TEST(FloodFill, LinesAndChequers)
{
    const int sides[][2] = {{70, 50}, {257, 40}, {64, 64}, {5, 130}, {130, 5}, {600, 3}};
    for (const auto& side : sides) {
        const int width = side[0], height = side[1];
        for (const Path& path :
             {spiral(width, height, 2), serpentine(width, height, 2), turned(serpentine(height, width, 2))}) {
            Bytes lines(width, height, 9);
            lines.draw(path, 200);
            for (const Point& seed : {path.front(), path[path.size() / 2], path.back()}) check(lines, seed, 255);
            // What lies between the lines: one area by its corners, or several.
            Bytes between(width, height, 200);
            between.draw(path, 9);
            check(between, {width / 2, 1 % height}, 1);
        }
        Bytes chequer(width, height, 1), diagonals(width, height, 1), comb(width, height, 1);
        for (int y = 0; y < height; ++y) {
            for (int x = 0; x < width; ++x) {
                chequer.at(x, y) = static_cast<u8>((x + y) % 2);
                if ((x + y) % 6 == 0) diagonals.at(x, y) = 0;
                if (y == height - 1 || x % 2 == 0) comb.at(x, y) = 0;
            }
        }
        for (const Point& seed : {Point(0, 0), Point(width - 1, height - 1), Point(width / 2, height / 2)}) {
            check(chequer, seed, 7);
            check(comb, seed, 7);
        }
        check(diagonals, {0, 0}, 7);
    }
}

// Rows and columns of many words, and areas far away from the corner.
TEST(FloodFill, LongRegions)
{
    for (const int length : {8192, 8193, 20000}) {
        for (const bool tall : {false, true}) {
            const int width = tall ? 3 : length, height = tall ? length : 3;
            Bytes picture(width, height, 0);
            for (int i = 0; i < length; i += 2)
                picture.at(tall ? 1 : i, tall ? i : 1) = 3;  // leaves both sides and every other pixel
            check(picture, {width - 1, height - 1}, 1);
            Bytes line(width, height, 0);
            for (int i = 5; i < length; ++i) line.at(tall ? i / 9 % 3 : i, tall ? i : i / 9 % 3) = 3;
            check(line, tall ? Point(length / 2 / 9 % 3, length / 2) : Point(length / 2, length / 2 / 9 % 3), 1);
        }
    }
}

TEST(FloodFill, GuardsOfARegion)
{
    for (const bool at_end : {false, true}) {
        const GuardedBlock block(200 * 50, at_end);
        u8* const p = block.as();
        for (const int step : {200, 340}) {
            const int height = step == 200 ? 50 : 30, width = step == 200 ? 200 : 140;
            at_every_level([&] {
                std::memset(p, 4, 200 * 50);
                int count = 0;
                ASSERT_TRUE(W::FloodFill_8Con_8u_C1IR(p, step, width, height, width / 2, 20, 6, &count));
                EXPECT_EQ(count, width * height);
                ASSERT_TRUE(W::FloodFill_8Con_8u_C1IR(p, step, width, height, 0, 0, 6, nullptr)) << "nothing to do";
            });
        }
    }
}

TEST(FloodFill, ChecksInTheirOrder)
{
    std::mt19937 g = make_generator("checks");
    Image image = random_image(40, 6, g);
    std::memset(image.row(2), 8, 40);
    const auto before = image.bytes();
    const int step = image.step(), least = std::numeric_limits<int>::min(), most = std::numeric_limits<int>::max();
    struct Row { u8* pixels; int step; orv::Size roi; int x, y, status; };
    u8* const p = image.row(0);
    const Row rows[] = {
        {nullptr, 0, {0, 0}, -1, 9, -8},      {p, 0, {0, 6}, -1, 2, -6},
        {p, 0, {40, 0}, -1, 2, -6},           {p, 0, {least, least}, -1, 2, -6},
        {p, 0, {40, 6}, -1, 9, -14},          {p, least, {40, 6}, 40, 2, -14},
        {p, step, {40, 6}, -1, 2, -11},       {p, step, {40, 6}, 40, 2, -11},
        {p, step, {40, 6}, 3, -1, -11},       {p, step, {40, 6}, 3, 6, -11},
        {p, step, {40, 6}, most, least, -11}, {p, step, {40, 6}, 3, 2, -9},
        {p, step, {most, 6}, 3, 2, -9},       {p, step, {most, most}, 3, 2, -9},
    };
    at_every_level([&] {
        const AllocationFailure none(0);
        for (const Row& r : rows) {
            int count = 123;
            EXPECT_EQ(orv::orv_FloodFill_8Con_8u_C1IR(r.pixels, r.step, r.roi, r.x, r.y, 5, &count), r.status);
            EXPECT_FALSE(W::FloodFill_8Con_8u_C1IR(r.pixels, r.step, r.roi.width, r.roi.height, r.x, r.y, 5, nullptr));
            EXPECT_EQ(count, 123);
        }
        int count = 123;
        EXPECT_TRUE(W::FloodFill_8Con_8u_C1IR(p, step, 40, 6, 3, 2, 8, &count)) << "takes no memory";
        EXPECT_EQ(count, 0);
        EXPECT_EQ(image.bytes(), before);
    });
    at_every_level([&] {
        const AllocationFailure none(-1);
        EXPECT_FALSE(W::FloodFill_8Con_8u_C1IR(p, step, most, most, 3, 2, 5, nullptr)) << "more than there can be";
        EXPECT_EQ(image.bytes(), before);
    });
}

TEST(FloodFill, MemoryIsBounded)
{
    const int sides[][2] = {{1, 1},     {1, 5000}, {5000, 1}, {65, 3000}, {3000, 65},
                            {513, 513}, {1, 70},   {64, 64},  {8193, 20}};
    for (const auto& side : sides) {
        const int width = side[0], height = side[1];
        std::vector<u8> pixels(static_cast<std::size_t>(width * height));
        const MeasuredMemory memory;
        at_every_level([&] {
            std::fill(pixels.begin(), pixels.end(), u8{0});
            memory.start();
            ASSERT_TRUE(
                W::FloodFill_8Con_8u_C1IR(pixels.data(), width, width, height, width / 2, height / 2, 1, nullptr));
            EXPECT_LE(memory.bytes(), width * height / 4 + 64 * (width + height) + 4096) << width << " x " << height;
        });
    }
}

}  // namespace
}  // namespace test
