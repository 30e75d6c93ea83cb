// Sorts of unsigned words by their digits, the lowest first (H. H. Seward, 1954), and by counting. Stable.
#pragma once

#include <cstdint>
#include <cstring>

#include "core/checks.h"

namespace orv {
inline namespace ORV_LEVEL {

// Where the elements of each digit go: those with lesser digits and those before it with the same one have lesser
// places. Several stretches at a time, each with places of its own: equal digits one after the other wait for each
// other's place.
template <int bits, int stretches>
class Distribution {
public:
    static constexpr std::uint32_t kDigits = 1 << bits;

    // digit(i) of each of n elements.
    template <class Digit>
    ORV_INLINE Distribution(std::ptrdiff_t n, Digit digit) : n_(n), places_()
    {
        for_each([&](std::ptrdiff_t i, int s) { ++places_[s][digit(i)]; });
        std::uint32_t place = 0;
        for (std::uint32_t d = 0; d < kDigits; ++d) {
            const std::uint32_t first = place;
            for (int s = 0; s < stretches; ++s) {
                const std::uint32_t count = places_[s][d];
                places_[s][d] = place;
                place += count;
            }
            if (place - first == static_cast<std::uint32_t>(n)) is_single_ = true;
        }
    }

    // Whether all have one digit, so that nothing moves.
    bool is_single() const { return is_single_; }
    // Calls move(i, place) for each, once; then end(d) is the place behind those of digit d.
    template <class Digit, class Move>
    ORV_INLINE void move(Digit digit, Move move)
    {
        for_each([&](std::ptrdiff_t i, int s) { move(i, places_[s][digit(i)]++); });
    }
    std::uint32_t end(std::uint32_t d) const { return places_[stretches - 1][d]; }

private:
    template <class Each>
    ORV_INLINE void for_each(Each each) const
    {
        const std::ptrdiff_t length = n_ / stretches;
        for (std::ptrdiff_t i = 0; i < length; ++i) {
            for (int s = 0; s < stretches; ++s) each(i + s * length, s);
        }
        for (std::ptrdiff_t i = stretches * length; i < n_; ++i) each(i, stretches - 1);
    }

    const std::ptrdiff_t n_;
    bool is_single_ = false;
    std::uint32_t places_[stretches][kDigits];
};

// One digit, from `from` to `to`; false where nothing moves.
template <int bits, int stretches, class Word>
bool sort_by_digit(const Word* from, Word* to, std::ptrdiff_t n, int shift)
{
    const auto digit = [=](std::ptrdiff_t i) { return from[i] >> shift & ((1 << bits) - 1); };
    Distribution<bits, stretches> distribution(n, digit);
    if (distribution.is_single()) return false;
    distribution.move(digit, [=](std::ptrdiff_t i, std::uint32_t place) { to[place] = from[i]; });
    return true;
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
