// Bands of rows: they cover an image, read what they need, and give the bytes of the whole on any executor.
#include <orvane.hpp>
#include <orvane_tiles.hpp>

#include <cstring>
#include <functional>

#include "support/tests.h"

namespace {

using namespace orvane;

using Executor = std::function<void(int, const std::function<void(int)>&)>;

// The last runs the tasks from behind.
const Executor kExecutors[] = {one_by_one{}, threads{}, threads{1}, threads{7},
                               [](int tasks, const auto& task) {
                                   while (tasks > 0) task(--tasks);
                               }};

TEST(Tiles, BandsCoverAnImageAndReadInsideIt)
{
    for (const int height : {1, 2, 7, 64, 65}) {
        for (const int rows : {1, 2, 7, 64, 100}) {
            for (const halo around : {halo{}, halo{9, 1, 9, 2}, halo{0, 200, 0, 70}}) {
                int next = 0;
                for_each_band(one_by_one{}, height, rows, [&](const band& b) {
                    EXPECT_EQ(b.first, next);
                    next += b.count;
                    const rows_read in = b.reading(around), own = b.inside(in);
                    EXPECT_EQ(in.first, std::max(0, b.first - around.top));
                    EXPECT_EQ(in.first + in.count, std::min(height, next + around.bottom));
                    EXPECT_EQ(in.first + own.first, b.first);
                    EXPECT_EQ(own.count, b.count);
                });
                EXPECT_EQ(next, height);
            }
        }
    }
    const band last = band_of(0x7fffffff, 0x40000000, 1);
    EXPECT_EQ(last.reading({0, 5, 0, 5}).count, 0x3fffffff + 5);
    EXPECT_EQ(bands_of(0, 5), 0);
    EXPECT_THROW(for_each_band(5, 0, [](const band&) {}), std::invalid_argument);
}

TEST(Tiles, ChainsAddHalosAndRefuseWhatIsNotCutByThem)
{
    constexpr rule steps = chain(rules::lowpass(mask::size5x5), rules::add, rules::convolve(5, 4, 1, 0), rules::erode);
    static_assert(steps.around == halo{2 + 3 + 1, 2 + 3 + 1, 2 + 1 + 1, 2 + 0 + 1});
    static_assert(chain(rules::copy, rules::yuv420_to_rgb).rows == 2);
    static_assert(rules::sum<short>.kind == cut::join && rules::sum<float>.kind == cut::whole);
    EXPECT_EQ(rules::wiener(3, 5, 1).around, (halo{1, 2, 1, 2}));
    for (const rule& r : {rules::transpose, rules::wiener(3, 5, -1), rules::remap, rules::histogram})
        EXPECT_THROW(chain(rules::add, r), std::invalid_argument);
}

void run_chain(view<const unsigned char, 3> source, view<unsigned char, 3> destination)
{
    image<unsigned char, 3> work(source.width(), source.height());
    lowpass(source, work, mask::size5x5, edge::replicate).check();
    add(work, {5, 6, 7}, work).check();
    erode(work, destination).check();
}

TEST(Tiles, ChainsInBandsGiveTheBytesOfTheWhole)
{
    image<unsigned char, 3> photo(67, 131), whole(67, 131);
    for (int y = 0; y < photo.height(); ++y) {
        for (int x = 0; x < 3 * photo.width(); ++x) photo.row(y)[x] = static_cast<unsigned char>(x * x * 7 + y * y * x);
    }
    run_chain(photo, whole);
    constexpr rule steps = chain(rules::lowpass(mask::size5x5), rules::add, rules::erode);
    const auto rows_that_differ = [&](const Executor& executor, halo around) {
        image<unsigned char, 3> result(67, 131);
        for_each_band(executor, photo.height(), 16, [&](const band& b) {
            const rows_read in = b.reading(around);
            image<unsigned char, 3> made(67, in.count);
            run_chain(in.of(photo), made);
            copy(b.inside(in).of(made), b.of(result)).check();
        });
        int rows = 0;
        for (int y = 0; y < result.height(); ++y) rows += std::memcmp(result.row(y), whole.row(y), 3 * 67) != 0;
        return rows;
    };
    for (const Executor& executor : kExecutors) EXPECT_EQ(rows_that_differ(executor, steps.around), 0);
    EXPECT_GT(rows_that_differ(threads{}, {0, 2, 0, 2}), 0);
}

TEST(Tiles, WhatABodyThrowsArrivesAndStopsTheRest)
{
    for (const Executor& executor : kExecutors) {
        std::atomic<int> begun{0};
        const auto body = [&](const band&) {
            ++begun;
            throw std::out_of_range("a band");
        };
        EXPECT_THROW(for_each_band(executor, 100, 1, body), std::out_of_range);
        EXPECT_LE(begun, 99);
    }
}

}  // namespace
