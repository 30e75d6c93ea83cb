// The page that the gallery writes: a section for each family of operations, with pictures and the calls that made
// them.
#pragma once

#include <chrono>
#include <set>
#include <string>
#include <vector>

#include "picture.h"
#include "plot.h"

// What a call took, and what it returned.
struct Run {
    std::string call;
    double microseconds = 0;  // 0: not measured
    bool ok = true;
};

class Page {
public:
    explicit Page(const std::string& folder);

    // A section about a family, by its class and its title in the header.
    void family(const std::string& owner, const std::string& title, const std::string& text);
    void section(const std::string& title, const std::string& text);  // one that is about no family
    void block(const std::string& html);                              // within the section
    // A picture with a caption, unless an equal one was shown before: those of a user's own may be grey, say.
    void show(const Picture& picture, const std::string& caption, const Run& run = {});
    void show(const Plot& plot, const std::string& caption, const Run& run = {});
    void feature();      // the last picture belongs to the strip that stands for the gallery
    void write() const;  // index.html, pictures.json, strip.jpg

private:
    bool is_new(const std::string& bytes);
    void figure(const std::string& file, const std::string& thumbnail, const std::string& caption, const Run& run);
    void begin(const std::string& title, const std::string& text, const std::string& link);

    std::string folder_, body_, contents_, json_, owner_, title_;
    std::set<std::string> seen_;  // digests of what was shown
    std::vector<Picture> featured_;
    Picture last_;
    int sections_ = 0, pictures_ = 0;
};

// Sixteen hexadecimal digits.
std::string digest(const void* data, std::size_t size);

// The shortest of five runs; of many more where one is too short for the clock.
template <class Call>
double best_microseconds(Call call, bool& ok)
{
    const auto run = [&](int times) {
        const auto start = std::chrono::steady_clock::now();
        for (int i = 0; i < times; ++i) ok = call();
        return std::chrono::duration<double, std::micro>(std::chrono::steady_clock::now() - start).count() / times;
    };
    double best = 1e30;
    for (int i = 0; i < 5; ++i) best = std::min(best, run(1));
    for (int i = 0; i < 5 && best < 5; ++i) best = std::min(best, run(1000));
    return best;
}

// Shows `picture`, which may be computed from the results, after a call, with the call's own text.
#define SHOW(page, picture, caption, ...)                                          \
    do {                                                                           \
        Run run{#__VA_ARGS__};                                                     \
        run.microseconds = best_microseconds([&] { return __VA_ARGS__; }, run.ok); \
        (page).show(picture, caption, run);                                        \
    } while (false)

// The same for calls in place: each time on a fresh copy, whose making is not timed.
#define SHOW_IN_PLACE(page, original, image, picture, caption, ...)                                          \
    do {                                                                                                     \
        Run run{#__VA_ARGS__, 1e30};                                                                         \
        auto image = (original).copy();                                                                      \
        for (int i = 0; i < 5; ++i) {                                                                        \
            image = (original).copy();                                                                       \
            const auto start = std::chrono::steady_clock::now();                                             \
            run.ok = __VA_ARGS__;                                                                            \
            const std::chrono::duration<double, std::micro> time = std::chrono::steady_clock::now() - start; \
            run.microseconds = std::min(run.microseconds, time.count());                                     \
        }                                                                                                    \
        (page).show(picture, caption, run);                                                                  \
    } while (false)
