// Operations and a chain of six in bands on one thread and on two: tables of the shortest of many runs.
// Usage: cores [SIDE [REPETITIONS]]     scripts/bench_cores.sh compiles it
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <tbb/parallel_for.h>
#include <tbb/task_arena.h>
#include <vector>

#include "../examples/cores/chain.hpp"

namespace {

using bytes = orvane::image<unsigned char, 1>;
using floats = orvane::image<float, 1>;
template <class T>
using source_of = orvane::view<const T, 1>;
template <class T>
using result_of = orvane::view<T, 1>;

// Memory of a thread that stays there from call to call, so that fresh pages are nobody's cost; `which` tells apart
// what is needed at a time.
template <class T, int which>
result_of<T> scratch(int width, int height)
{
    static thread_local orvane::image<T, 1> memory;
    if (memory.width() != width || memory.height() < height) memory = orvane::image<T, 1>(width, height);
    return memory.part(0, 0, width, height);
}

double seconds(const std::function<void()>& run)
{
    const auto start = std::chrono::steady_clock::now();
    run();
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

// The shortest times, in milliseconds, of runs that take turns.
std::vector<double> measure(int repetitions, const std::vector<std::function<void()>>& runs)
{
    std::vector<double> best(runs.size(), 1e30);
    for (int r = 0; r < repetitions; ++r) {
        for (std::size_t k = 0; k < runs.size(); ++k) best[k] = std::min(best[k], 1e3 * seconds(runs[k]));
    }
    return best;
}

// Threads that stay from call to call.
struct on_threads {
    tbb::task_arena* arena;

    template <class Task>
    void operator()(int tasks, const Task& task) const
    {
        arena->execute([&] { tbb::parallel_for(0, tasks, task); });
    }
};

on_threads threads(int count)
{
    static tbb::task_arena one(1), two(2);
    return {count == 1 ? &one : &two};
}

// run(source, result) on bands; where it reads round them, into memory of its own, of which the band is copied.
template <class S, class D, class Run>
void in_bands(int count, int rows, orvane::halo around, source_of<S> source, result_of<D> result, const Run& run)
{
    orvane::for_each_band(threads(count), source.height(), rows, [&](const orvane::band& band) {
        if (around == orvane::halo{}) return run(source_of<S>(band.of(source)), result_of<D>(band.of(result)));
        const orvane::rows_read read = band.reading(around);
        const result_of<D> made = scratch<D, 0>(source.width(), read.count);
        run(source_of<S>(read.of(source)), made);
        orvane::copy(band.inside(read).of(made), band.of(result)).check();
    });
}

template <class S, class D, class Run>
void row(const char* name, int repetitions, const orvane::rule& rule, const orvane::image<S, 1>& source,
         orvane::image<D, 1>& result, const Run& run)
{
    const auto best = measure(repetitions, {[&] { run(source_of<S>(source), result_of<D>(result)); },
                                            [&] { in_bands<S, D>(1, 128, rule.around, source, result, run); },
                                            [&] { in_bands<S, D>(2, 128, rule.around, source, result, run); }});
    std::printf("| %s | %.2f | %.2f | %.2f | %.2f | %.2f |\n", name, best[0], best[1], best[2], best[1] / best[2],
                best[0] / best[2]);
    std::fflush(stdout);
}

const int sharper[] = {0, -1, 0, -1, 5, -1, 0, -1, 0};

void restore_in_scratch(source_of<unsigned char> paper, result_of<unsigned char> result)
{
    const int width = paper.width(), height = paper.height();
    restore(paper, scratch<unsigned char, 1>(width, height), scratch<unsigned char, 2>(width, height),
            scratch<float, 1>(width, height), scratch<float, 2>(width, height), result);
}

void operations(int repetitions, const bytes& grey, const floats& light, bytes& grey_result, floats& light_result)
{
    namespace rules = orvane::rules;
    const auto replicate = orvane::edge::replicate;
    const auto five = orvane::mask::size5x5;
    std::vector<unsigned char> table(256);
    for (int k = 0; k < 256; ++k) table[static_cast<std::size_t>(k)] = static_cast<unsigned char>(k * k / 255);
    std::printf("| operation | whole, ms | bands, 1 thread | bands, 2 threads | 1 / 2 threads | whole / 2 threads |\n"
                "|---|---|---|---|---|---|\n");
    const auto bytes_row = [&](const char* name, const orvane::rule& rule, const auto& run) {
        row(name, repetitions, rule, grey, grey_result, run);
    };
    const auto floats_row = [&](const char* name, const orvane::rule& rule, const auto& run) {
        row(name, repetitions, rule, light, light_result, run);
    };
    bytes_row("copy 8u", rules::copy, [](auto s, auto d) { orvane::copy(s, d).check(); });
    bytes_row("multiply 8u by 160 / 2^7", rules::multiply,
              [](auto s, auto d) { orvane::multiply(s, 160, d, 7).check(); });
    bytes_row("lookup 8u", rules::lookup, [&](auto s, auto d) { orvane::lookup(s, table, d).check(); });
    bytes_row("lowpass 5x5 8u", rules::lowpass(five),
              [&](auto s, auto d) { orvane::lowpass(s, d, five, replicate).check(); });
    bytes_row("erode 8u", rules::erode, [](auto s, auto d) { orvane::erode(s, d).check(); });
    bytes_row("convolve 3x3 8u", rules::convolve(3, 3, 1, 1),
              [&](auto s, auto d) { orvane::convolve(s, d, sharper, 3, 3, 1, 1, 1, replicate).check(); });
    floats_row("divide 32f by 3", rules::divide, [](auto s, auto d) { orvane::divide(s, 3.f, d).check(); });
    floats_row("exponential 32f", rules::exponential, [](auto s, auto d) { orvane::exponential(s, d).check(); });
    floats_row("lowpass 5x5 32f", rules::lowpass(five),
               [&](auto s, auto d) { orvane::lowpass(s, d, five, replicate).check(); });
    floats_row("gauss 9 32f", rules::gauss(9), [](auto s, auto d) { orvane::gauss(s, d, 9, 2.f).check(); });
    floats_row("median 5x5 32f", rules::median(5, 5),
               [&](auto s, auto d) { orvane::median(s, d, 5, 5, replicate).check(); });
    bytes_row("**chain of six**", steps, [](auto s, auto d) { restore_in_scratch(s, d); });
}

void sizes_of_bands(int repetitions, const bytes& grey, bytes& result)
{
    std::vector<std::function<void()>> runs{[&] { restore_in_scratch(grey, result); }};
    const std::vector<int> heights{16, 32, 64, 128, 256, 512, 1024};
    for (const int rows : heights) {
        runs.push_back(
            [&, rows] { in_bands<unsigned char, unsigned char>(1, rows, around, grey, result, restore_in_scratch); });
    }
    const auto best = measure(repetitions, runs);
    std::printf("\n| rows in a band | chain, ms, one thread | whole / bands |\n|---|---|---|\n");
    std::printf("| the whole image | %.2f | |\n", best[0]);
    for (std::size_t k = 0; k < heights.size(); ++k) {
        std::printf("| %d | %.2f | %.2f |\n", heights[k], best[k + 1], best[0] / best[k + 1]);
    }
}

}  // namespace

int main(int count, char** words)
{
    const int side = count > 1 ? std::atoi(words[1]) : 4096, repetitions = count > 2 ? std::atoi(words[2]) : 20;
    bytes grey(side, side), grey_result(side, side);
    floats light(side, side), light_result(side, side);
    unsigned state = 1;
    for (int y = 0; y < side; ++y) {
        for (int x = 0; x < side; ++x) {
            state = state * 1664525 + 1013904223;
            grey(x, y) = static_cast<unsigned char>(state >> 24);
            light(x, y) = static_cast<float>(state >> 8) / 1048576;
        }
    }
    operations(repetitions, grey, light, grey_result, light_result);
    sizes_of_bands(repetitions, grey, grey_result);
}
