// Images in bands of rows: on all cores, and piece by piece where they do not fit the memory, with the same bytes.
//
// The library starts no threads; this header does, or has them from the caller. orvane::rules says for each operation
// how its images may be cut, chain() adds up the halos of operations that follow one another, for_each_band() runs the
// bands, and a band says which rows to read. For a chain of filters on `photo`, 128 rows at a time:
//
//     constexpr orvane::rule steps = orvane::chain(orvane::rules::lowpass(orvane::mask::size3x3), orvane::rules::add);
//     orvane::for_each_band(photo.height(), 128, [&](const orvane::band& b) {
//         const orvane::rows_read in = b.reading(steps.around);
//         orvane::image<unsigned char, 3> work(photo.width(), in.count);
//         orvane::lowpass(in.of(photo), work, orvane::mask::size3x3, orvane::edge::replicate).check();
//         orvane::add(work, 5, work).check();
//         orvane::copy(b.inside(in).of(work), b.of(result)).check();
//     });
//
// What is cut by its destination (orvane::cut::destination) takes the place of the band instead of a halo:
//
//     orvane::resize(photo, part, how, 0, b.first, result.width(), result.height()).check();
//
// It includes nothing but the standard library. C++17 or later; threads need -pthread on older systems.
#ifndef ORVANE_TILES_HPP
#define ORVANE_TILES_HPP

#include <algorithm>
#include <atomic>
#include <exception>
#include <mutex>
#include <stdexcept>
#include <system_error>
#include <thread>
#include <vector>

#include "layer/rules.hpp"

namespace orvane {

/// Rows of an image.
struct rows_read {
    int first = 0, count = 0;

    /// These rows of a view, or of anything else that has part(x, y, width, height).
    template <class View>
    auto of(View&& view) const
    {
        return view.part(0, first, view.width(), count);
    }
};

/// A band of an image of `height` rows.
struct band : rows_read {
    int height = 0;

    /// The rows that give the band's: with the halo, as far as the image goes.
    constexpr rows_read reading(halo around) const
    {
        const int above = first < around.top ? first : around.top;
        const int rest = height - first - count;
        return {first - above, above + count + (rest < around.bottom ? rest : around.bottom)};
    }
    /// Where the band lies within rows that were read for it.
    constexpr rows_read inside(rows_read read) const { return {first - read.first, count}; }
};

/// Band k of an image of `height` rows that is cut every `rows`.
constexpr band band_of(int height, int rows, int k)
{
    const int first = rows * k, rest = height - first;
    band b;
    b.first = first;
    b.count = rest < rows ? rest : rows;
    b.height = height;
    return b;
}

/// How many bands there are. Throws std::invalid_argument for rows below 1.
constexpr int bands_of(int height, int rows)
{
    if (rows < 1) throw std::invalid_argument("orvane: a band has at least one row");
    return height < 1 ? 0 : (height - 1) / rows + 1;
}

/// An executor: the tasks one after the other, in the caller's thread.
struct one_by_one {
    template <class Task>
    void operator()(int tasks, const Task& task) const
    {
        for (int k = 0; k < tasks; ++k) task(k);
    }
};

/// An executor: the tasks on `count` threads, or on as many as there are processors, of which the caller's is one.
/// Where the system refuses a thread, those that there are do the work.
struct threads {
    int count = 0;

    template <class Task>
    void operator()(int tasks, const Task& task) const
    {
        std::atomic<int> next{0};
        const auto work = [&] {
            for (int k = next++; k < tasks; k = next++) task(k);
        };
        const int wanted = count > 0 ? count : static_cast<int>(std::thread::hardware_concurrency());
        std::vector<std::thread> others;
        start(others, std::min(wanted, tasks) - 1, work);
        work();
        for (std::thread& other : others) other.join();
    }

private:
    template <class Work>
    static void start(std::vector<std::thread>& others, int number, const Work& work)
    {
        try {
            while (static_cast<int>(others.size()) < number) others.emplace_back(work);
        } catch (const std::system_error&) {
        } catch (const std::bad_alloc&) {
        }
    }
};

/// Calls body(band) for each band of `rows` rows of an image of `height` rows. The executor is any callable that runs
/// task(0) ... task(tasks - 1), in any order, and returns when all are done:
///
///     [](int tasks, const auto& task) { tbb::parallel_for(0, tasks, task); }             // oneTBB
///     [](int tasks, const auto& task) {                                                  // OpenMP
///     #pragma omp parallel for schedule(dynamic)
///         for (int k = 0; k < tasks; ++k) task(k);
///     }
///
/// What a body throws is thrown here when all that had begun are done; no exception passes through the executor. Bands
/// that had not begun are then left out.
template <class Executor, class Body>
void for_each_band(const Executor& executor, int height, int rows, const Body& body)
{
    std::exception_ptr thrown;
    std::mutex first;
    std::atomic<bool> stopped{false};
    executor(bands_of(height, rows), [&](int k) {
        if (stopped) return;
        try {
            body(band_of(height, rows, k));
        } catch (...) {
            const std::lock_guard<std::mutex> lock(first);
            if (!thrown) thrown = std::current_exception();
            stopped = true;
        }
    });
    if (thrown) std::rethrow_exception(thrown);
}

/// The same on all processors.
template <class Body>
void for_each_band(int height, int rows, const Body& body)
{
    for_each_band(threads{}, height, rows, body);
}

}  // namespace orvane

#endif
