// Sorts of unsigned words by their digits, the lowest first (H. H. Seward, 1954), and by counting. Stable.
#pragma once

#include <cstdint>
#include <cstring>

#include "core/checks.h"

namespace orv {
inline namespace ORV_LEVEL {

// Elements to where those of their digit go: move(i, place) for each i, where those with lesser digits and those before
// it with the same one have lesser places. False where all have one digit, and nothing is moved.
//
// Several stretches at a time, each with places of its own: equal digits one after the other wait for each other's
// place.
template <int bits, int stretches, class Digit, class Move>
ORV_INLINE bool distribute(std::ptrdiff_t n, Digit digit, Move move)
{
    constexpr int digits = 1 << bits;
    std::uint32_t places[stretches][digits] = {};
    const std::ptrdiff_t length = n / stretches;
    const auto for_each = [=](auto each) {
        for (std::ptrdiff_t i = 0; i < length; ++i) {
            for (int s = 0; s < stretches; ++s) each(i + s * length, s);
        }
        for (std::ptrdiff_t i = stretches * length; i < n; ++i) each(i, stretches - 1);
    };
    for_each([&](std::ptrdiff_t i, int s) { ++places[s][digit(i)]; });
    std::uint32_t equal = 0, place = 0;
    for (int s = 0; s < stretches; ++s) equal += places[s][digit(0)];
    if (equal == static_cast<std::uint32_t>(n)) return false;
    for (int d = 0; d < digits; ++d) {
        for (int s = 0; s < stretches; ++s) {
            const std::uint32_t count = places[s][d];
            places[s][d] = place;
            place += count;
        }
    }
    for_each([&](std::ptrdiff_t i, int s) { move(i, places[s][digit(i)]++); });
    return true;
}

template <int bits, int stretches, class Word>
bool sort_by_digit(const Word* from, Word* to, std::ptrdiff_t n, int shift)
{
    return distribute<bits, stretches>(
        n, [=](std::ptrdiff_t i) { return from[i] >> shift & ((1 << bits) - 1); },
        [=](std::ptrdiff_t i, std::uint32_t place) { to[place] = from[i]; });
}

// By the bits from `low` up to `high`; `spare` has room for as many words.
template <int bits, int stretches, class Word>
ORV_INLINE void sort_by_digits_of(Word* words, Word* spare, std::ptrdiff_t n, int low, int high)
{
    Word *from = words, *to = spare;
    for (int shift = low; shift < high; shift += bits) {
        if (!sort_by_digit<bits, stretches>(from, to, n, shift)) continue;
        Word* const sorted = to;
        to = from;
        from = sorted;
    }
    if (from != words) std::memcpy(words, from, static_cast<std::size_t>(n) * sizeof(Word));
}
template <class Word>
void sort_by_digits(Word* words, Word* spare, std::ptrdiff_t n, int low, int high)
{
    // Digits of 11 bits save passes, several stretches time, but both have more places to add up.
    if (n < 1024) sort_by_digits_of<8, 1>(words, spare, n, low, high);
    else if (n < 4096 || sizeof(Word) == 2) sort_by_digits_of<8, 2>(words, spare, n, low, high);
    else sort_by_digits_of<11, 2>(words, spare, n, low, high);
}

}  // namespace ORV_LEVEL
}  // namespace orv
