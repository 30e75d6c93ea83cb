// The page that the gallery writes: strips of pictures, each with the call that made it and its time.
#pragma once

#include <chrono>
#include <string>

#include "picture.h"

class Page {
public:
    explicit Page(const std::string& folder);
    ~Page();  // writes index.html

    void strip(const std::string& title, const std::string& text);
    // `ok` is what the call returned.
    void show(const Picture& picture, const std::string& call, double microseconds, bool ok);

private:
    std::string folder_, html_;
    int pictures_ = 0;
};

// Runs a call a few times and keeps the shortest time. The call must give the same picture each time.
template <class Call>
double best_microseconds(Call call, bool& ok)
{
    double best = 1e30;
    for (int i = 0; i < 5; ++i) {
        const auto start = std::chrono::steady_clock::now();
        ok = call();
        const std::chrono::duration<double, std::micro> time = std::chrono::steady_clock::now() - start;
        if (time.count() < best) best = time.count();
    }
    return best;
}

// Shows `picture` after `call`, with the call's own text as the caption.
#define SHOW(page, picture, ...)                                                    \
    do {                                                                            \
        bool ok = false;                                                            \
        const double time = best_microseconds([&] { return __VA_ARGS__; }, ok);     \
        (page).show(picture, #__VA_ARGS__, time, ok);                               \
    } while (false)

// The same for calls in place: each time on a fresh copy, whose making is not timed.
#define SHOW_IN_PLACE(page, original, picture, ...)                                 \
    do {                                                                            \
        bool ok = false;                                                            \
        double time = 1e30;                                                         \
        Picture picture;                                                            \
        for (int i = 0; i < 5; ++i) {                                               \
            picture = (original).copy();                                            \
            const auto start = std::chrono::steady_clock::now();                    \
            ok = __VA_ARGS__;                                                       \
            const std::chrono::duration<double, std::micro> t = std::chrono::steady_clock::now() - start; \
            if (t.count() < time) time = t.count();                                 \
        }                                                                           \
        (page).show(picture, #__VA_ARGS__, time, ok);                               \
    } while (false)
