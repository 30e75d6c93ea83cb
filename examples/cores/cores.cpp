// A chain of operations on all cores: in bands, by the header's own threads and by oneTBB. The bytes are those of one
// call on the whole image. Usage: cores [WIDTH HEIGHT]
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <tbb/parallel_for.h>

#include "chain.hpp"

using picture = orvane::image<unsigned char, 1>;

picture draw(int width, int height)
{
    picture made(width, height);
    unsigned state = 1;
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            state = state * 1664525 + 1013904223;
            made(x, y) = static_cast<unsigned char>((x / 16 + y / 16) % 2 * 128 + (state >> 25));
        }
    }
    return made;
}

template <class Run>
bool same(const char* how, const picture& expected, const Run& run)
{
    picture made(expected.width(), expected.height());
    const auto start = std::chrono::steady_clock::now();
    run(made);
    const std::chrono::duration<double, std::milli> time = std::chrono::steady_clock::now() - start;
    bool equal = true;
    for (int y = 0; y < made.height(); ++y) {
        equal = equal && std::memcmp(made.row(y), expected.row(y), static_cast<std::size_t>(made.width())) == 0;
    }
    std::printf("%-32s %s, %.1f ms\n", how, equal ? "the same bytes" : "OTHER BYTES", time.count());
    return equal;
}

int main(int count, char** words)
{
    const picture scan = draw(count > 2 ? std::atoi(words[1]) : 6000, count > 2 ? std::atoi(words[2]) : 4000);
    picture whole(scan.width(), scan.height());
    restore(scan, whole);

    const auto tbb_tasks = [](int tasks, const auto& task) { tbb::parallel_for(0, tasks, task); };
    const bool equal[] = {
        same("the whole image, one thread:", whole, [&](picture& made) { restore(scan, made); }),
        same("bands, one thread:", whole, [&](picture& made) { restore_in_bands(orvane::one_by_one{}, scan, made); }),
        same("bands, a thread for each core:", whole,
             [&](picture& made) { restore_in_bands(orvane::threads{}, scan, made); }),
        same("bands, oneTBB:", whole, [&](picture& made) { restore_in_bands(tbb_tasks, scan, made); })};
    return !(equal[0] && equal[1] && equal[2] && equal[3]);
}
