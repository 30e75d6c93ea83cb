// Medians of any rectangle by ranks. The keys of a tile are numbered once, by sorting; a window is then a set of
// numbers, one bit for each, that slides along. The median's number is found from where the last one was: words of
// bits are counted up or down until the right one is reached. What a step costs depends on the side that
// enters and leaves, not on the keys: equal ones have numbers of their own.
//
// Windows slide along one axis of the image, "along", and move on by one "across" it, back and forth, so a window
// is built once for a tile. The shorter side of the window enters and leaves.
#pragma once

#include <cstdint>

#include "core/checks.h"
#include "math/bits.h"
#include "math/order.h"

#if defined(__BMI2__)
#include <immintrin.h>
#endif

namespace orv {
inline namespace ORV_LEVEL {

using Word = std::size_t;
constexpr unsigned kWordBits = 8 * sizeof(Word);

// --- Bits of a word -------------------------------------------------------------------------------

// Which bit has n set ones below it.
ORV_INLINE unsigned bit_after(Word w, unsigned n)
{
#if defined(__BMI2__) && defined(__x86_64__)
    return static_cast<unsigned>(__builtin_ctzll(_pdep_u64(Word{1} << n, w)));
#else
    unsigned at = 0;
    for (unsigned half = kWordBits / 2; half > 0; half /= 2) {
        const Word low = w & ((Word{1} << half) - 1);
        const auto count = static_cast<unsigned>(bits_set(low));
        if (count <= n) {
            n -= count;
            w >>= half;
            at += half;
        } else {
            w = low;
        }
    }
    return at;
#endif
}

// --- A window as a set of numbers -----------------------------------------------------------------

class RankedWindow {
public:
    ORV_INLINE RankedWindow(void* memory, std::ptrdiff_t numbers) : bits_(static_cast<Word*>(memory))
    {
        for (std::ptrdiff_t i = 0; i <= numbers / static_cast<std::ptrdiff_t>(kWordBits); ++i) bits_[i] = 0;
    }

    // Numbers that lie `apart` from each other.
    void add(const std::uint32_t* numbers, std::ptrdiff_t count, std::ptrdiff_t apart)
    {
        for (std::ptrdiff_t i = 0; i < count; ++i) below_ += flip(numbers[i * apart]);
    }
    void replace(const std::uint32_t* leaving, const std::uint32_t* entering, std::ptrdiff_t count,
                 std::ptrdiff_t apart)
    {
        int below = below_;
        for (std::ptrdiff_t i = 0; i < count; ++i) {
            below -= flip(leaving[i * apart]);
            below += flip(entering[i * apart]);
        }
        below_ = below;
    }

    // The number with `rank` lesser ones in the window.
    std::uint32_t number_of(int rank)
    {
        while (below_ > rank) below_ -= bits_set(bits_[--word_]);
        for (;;) {
            const int here = bits_set(bits_[word_]);
            if (below_ + here > rank) break;
            below_ += here;
            ++word_;
        }
        return word_ * kWordBits + bit_after(bits_[word_], static_cast<unsigned>(rank - below_));
    }

private:
    // Whether the number lies below the word that is counted up to.
    ORV_INLINE int flip(std::uint32_t number)
    {
        bits_[number / kWordBits] ^= Word{1} << number % kWordBits;
        return number / kWordBits < word_ ? 1 : 0;
    }

    Word* bits_;
    std::uint32_t word_ = 0;
    int below_ = 0;  // how many of the window's numbers lie in words before it
};

// --- Tiles ----------------------------------------------------------------------------------------

// An image seen from its axes: pixels along one, then across it.
struct Axes {
    std::ptrdiff_t along, across;  // bytes from a pixel to the next

    template <class T>
    ORV_INLINE T* at(T* p, std::ptrdiff_t i, std::ptrdiff_t j) const
    {
        return row_at(row_at(p, 1, along * i), 1, across * j);
    }
};

// Sizes in results, and of the window.
struct TileShape {
    int along, across, window_along, window_across;

    ORV_INLINE std::ptrdiff_t lines() const { return std::ptrdiff_t{along} + window_along - 1; }
    ORV_INLINE std::ptrdiff_t line() const { return std::ptrdiff_t{across} + window_across - 1; }
    ORV_INLINE std::ptrdiff_t elements() const { return lines() * line(); }
};

// How to cut an image of `whole` size into tiles of at most so many elements: with few elements for each result.
ORV_INLINE TileShape best_tile(TileShape whole, std::ptrdiff_t most)
{
    TileShape best = whole;
    long long best_yield = -1;
    for (int across = whole.across; across > 0; across -= 1 + across / 8) {
        TileShape tile = whole;
        tile.across = across;
        const std::ptrdiff_t along = most / tile.line() - (whole.window_along - 1);
        if (along < 1) continue;
        if (along < whole.along) tile.along = static_cast<int>(along);
        const long long yield = 1024LL * tile.along * tile.across / tile.elements();
        if (yield > best_yield) best = tile, best_yield = yield;
    }
    const auto evenly = [](int total, int part) {
        return total / ((total - 1) / part + 1) + (total % ((total - 1) / part + 1) != 0);
    };
    best.along = evenly(whole.along, best.along);
    best.across = evenly(whole.across, best.across);
    return best;
}

class RankedTile {
public:
    static constexpr int kBytesPerElement = 16;

    ORV_INLINE RankedTile(void* memory, TileShape shape)
        : shape_(shape), count_(shape.elements()), items_(static_cast<Item*>(memory)), others_(items_ + count_)
    {
    }

    // `src` is the first pixel of the first window.
    void run(const float* src, Axes from, float* dst, Axes to)
    {
        fetch(src, from);
        sort();
        number();
        RankedWindow window(items_, count_);
        for (int i = 0; i < shape_.window_along; ++i) window.add(numbers_ + shape_.line() * i, shape_.window_across, 1);
        int i = 0;
        for (int j = 0; j < shape_.across; ++j) {
            if (j > 0) slide_across(window, i, j - 1);
            if (j % 2 == 0) {
                for (put(window, dst, to, i, j); i < shape_.along - 1; put(window, dst, to, i, j)) {
                    slide_along(window, i, i + shape_.window_along, j);
                    ++i;
                }
            } else {
                for (put(window, dst, to, i, j); i > 0; put(window, dst, to, i, j)) {
                    --i;
                    slide_along(window, i + shape_.window_along, i, j);
                }
            }
        }
    }

private:
    // A key, as an unsigned number, above the place that it comes from.
    using Item = std::uint64_t;
    static constexpr Key kFlip = -kMagnitude - 1;

    // The elements of a line, which enter together, are far apart here: so are the numbers of equal keys among them.
    void fetch(const float* src, Axes from)
    {
        Item* item = items_;
        for (std::ptrdiff_t j = 0; j < shape_.line(); ++j) {
            for (std::ptrdiff_t i = 0; i < shape_.lines(); ++i) {
                const simd::vec<Key, 1> key = key_of(simd::load<simd::vec<Key, 1>>(bits_at(from.at(src, i, j))));
                const auto place = static_cast<std::uint32_t>(i * shape_.line() + j);
                *item++ = static_cast<Item>(static_cast<std::uint32_t>(key.v ^ kFlip)) << 32 | place;
            }
        }
    }

    // By bytes of the key, the lowest first. Leaves the result in items_.
    void sort()
    {
        for (int shift = 32; shift < 64; shift += 8) {
            std::uint32_t starts[256] = {};
            for (std::ptrdiff_t i = 0; i < count_; ++i) ++starts[items_[i] >> shift & 255];
            std::uint32_t start = 0;
            for (std::uint32_t& s : starts) {
                const std::uint32_t size = s;
                s = start;
                start += size;
            }
            for (std::ptrdiff_t i = 0; i < count_; ++i) others_[starts[items_[i] >> shift & 255]++] = items_[i];
            Item* const sorted = others_;
            others_ = items_;
            items_ = sorted;
        }
    }

    // The number of every place and the key of every number take the place of the other items.
    void number()
    {
        numbers_ = reinterpret_cast<std::uint32_t*>(others_);
        keys_ = numbers_ + count_;
        for (std::ptrdiff_t i = 0; i < count_; ++i) {
            numbers_[static_cast<std::uint32_t>(items_[i])] = static_cast<std::uint32_t>(i);
            keys_[i] = static_cast<std::uint32_t>(items_[i] >> 32);
        }
    }

    ORV_INLINE void slide_along(RankedWindow& window, int leaving, int entering, int j) const
    {
        const std::uint32_t* const p = numbers_ + j;
        window.replace(p + shape_.line() * leaving, p + shape_.line() * entering, shape_.window_across, 1);
    }
    ORV_INLINE void slide_across(RankedWindow& window, int i, int leaving) const
    {
        const std::uint32_t* const p = numbers_ + shape_.line() * i + leaving;
        window.replace(p, p + shape_.window_across, shape_.window_along, shape_.line());
    }
    ORV_INLINE void put(RankedWindow& window, float* dst, Axes to, int i, int j) const
    {
        const std::uint32_t number = window.number_of((shape_.window_along * shape_.window_across - 1) / 2);
        const simd::vec<Key, 1> key = {static_cast<Key>(keys_[number]) ^ kFlip};
        simd::store(bits_at(to.at(dst, i, j)), bits_of_key(key));
    }

    TileShape shape_;
    std::ptrdiff_t count_;
    Item *items_, *others_;
    std::uint32_t *numbers_ = nullptr, *keys_ = nullptr;
};

}  // namespace ORV_LEVEL
}  // namespace orv
