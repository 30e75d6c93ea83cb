// Vectors sorted with the places that their elements had: words of a key above a place, which are all different, so
// any way of sorting them is stable.
//
// A word is less than 2^61 with bit 62 on top: as the bits of a double it is a normal number, and doubles compare as
// their bits do. So words are sorted as doubles where that is faster. A key of 64 bits does not fit: its upper bits are
// sorted first, then its lower ones wherever the upper ones are equal.
#pragma once

#include "signal/sort_elements.h"

namespace orv {
inline namespace ORV_LEVEL {

using PlacedKey = std::uint64_t;

// --- Words ----------------------------------------------------------------------------------------

// How a word is made up.
class Placing {
public:
    static constexpr int kBits = 61;  // of a key and a place

    explicit ORV_INLINE Placing(std::ptrdiff_t n)
    {
        while ((n - 1) >> place_bits_ > 0) ++place_bits_;
    }
    ORV_INLINE PlacedKey word(std::uint64_t key, std::ptrdiff_t place) const
    {
        return kTop | key << place_bits_ | static_cast<PlacedKey>(place);
    }
    ORV_INLINE std::uint64_t key(PlacedKey word) const { return (word ^ kTop) >> place_bits_; }
    ORV_INLINE int place(PlacedKey word) const { return static_cast<int>(word & ((PlacedKey{1} << place_bits_) - 1)); }
    ORV_INLINE int place_bits() const { return place_bits_; }
    // For keys of 64 bits: how many of them do not fit.
    ORV_INLINE int lower_bits() const { return 64 - kBits + place_bits_; }

private:
    static constexpr PlacedKey kTop = PlacedKey{1} << 62;
    int place_bits_ = 0;
};

// Memory of words: on the stack for few.
class PlacedKeys {
public:
    explicit ORV_INLINE PlacedKeys(std::ptrdiff_t n)
        : heap_(n <= kHere ? nullptr : orv_allocate_checked(size_product(n, kBytes))),
          words_(n <= kHere ? here_ : static_cast<PlacedKey*>(heap_)),
          spare_(words_ + n)
    {
    }
    ORV_INLINE ~PlacedKeys() { orv_release(heap_); }
    PlacedKeys(const PlacedKeys&) = delete;
    PlacedKeys& operator=(const PlacedKeys&) = delete;

    ORV_INLINE bool exist() const { return words_ != nullptr; }
    ORV_INLINE PlacedKey* words() const { return words_; }

    // n words from `first` on, by key_bits above the place, which fell already where keys are equal.
    void sort(std::ptrdiff_t first, std::ptrdiff_t n, Placing placing, int key_bits) const
    {
        PlacedKey* const p = words_ + first;
        if (is_sorted(p, n)) return;
        if (n <= kFew) return sort_by_insertion(p, n, Rising());
#if ORV_HAVE_INT256
        static_cast<void>(placing), static_cast<void>(key_bits), static_cast<void>(spare_);  // places go with keys
        const FloatControl control;
        const auto done = [](double*, std::ptrdiff_t) {};
        PartSort<simd::widest<double>, decltype(done)>::sort(reinterpret_cast<double*>(p), n, __builtin_inf(), done);
#else
        sort_by_digits(p, spare_ + first, n, placing.place_bits(), placing.place_bits() + key_bits);
#endif
    }

private:
    static constexpr std::ptrdiff_t kHere = 256;
    static constexpr int kWords = ORV_HAVE_INT256 ? 1 : 2;
    static constexpr int kBytes = kWords * sizeof(PlacedKey);

    void* heap_;
    PlacedKey *words_, *spare_;
    PlacedKey here_[kHere * kWords];
};

// Of what is in order already.
ORV_INLINE void number_places(int* index, std::ptrdiff_t n)
{
    for (std::ptrdiff_t i = 0; i < n; ++i) index[i] = static_cast<int>(i);
}

// --- Keys that fit --------------------------------------------------------------------------------

template <bool falling, class T>
Status sort_placed(T* p, int* index, std::ptrdiff_t n)
{
    using Keys = Unsigned<T, falling>;
    const Placing placing(n);
    const PlacedKeys placed(n);
    if (!placed.exist()) return StatusNoMemory;
    PlacedKey* const words = placed.words();
    for (std::ptrdiff_t i = 0; i < n; ++i) words[i] = placing.word(Keys::key(p + i), i);
    placed.sort(0, n, placing, 8 * sizeof(T));
    for (std::ptrdiff_t i = 0; i < n; ++i) {
        index[i] = placing.place(words[i]);
        Keys::put_element(p + i, static_cast<typename Keys::Word>(placing.key(words[i])));
    }
    return StatusOk;
}

template <bool falling>
Status sort_with_places(std::uint8_t* p, int* index, std::ptrdiff_t n)
{
    using Keys = Unsigned<std::uint8_t, falling>;
    if (is_sorted<falling>(p, n)) return number_places(index, n), StatusOk;
    const auto key = [=](std::ptrdiff_t i) { return Keys::key(p + i); };
    Distribution<8, 2> bytes(n, key);
    bytes.move(key, [=](std::ptrdiff_t i, std::uint32_t place) { index[place] = static_cast<int>(i); });
    std::uint32_t place = 0;
    for (std::uint32_t k = 0; k < bytes.kDigits; ++k) {
        std::memset(p + place, static_cast<int>(falling ? 255 - k : k), bytes.end(k) - place);
        place = bytes.end(k);
    }
    return StatusOk;
}

// By two digits. What moves to the lower one's place is the key, too; the upper one's is the last.
template <bool falling>
Status sort_with_places(std::uint16_t* p, int* index, std::ptrdiff_t n)
{
    using Keys = Unsigned<std::uint16_t, falling>;
    constexpr std::ptrdiff_t few = 400;
    if (n < few) return sort_placed<falling>(p, index, n);
    const PlacedKeys placed(n);
    if (!placed.exist()) return StatusNoMemory;
    if (is_sorted<falling>(p, n)) return number_places(index, n), StatusOk;
    PlacedKey* const words = placed.words();
    const auto key = [=](std::ptrdiff_t i) { return PlacedKey{Keys::key(p + i)}; };
    const auto lower = [=](std::ptrdiff_t i) { return key(i) & 255; };
    Distribution<8, 2> by_lower(n, lower);
    by_lower.move(lower, [=](std::ptrdiff_t i, std::uint32_t place) {
        words[place] = key(i) << 32 | static_cast<PlacedKey>(i);
    });
    const auto upper = [=](std::ptrdiff_t i) { return words[i] >> 40; };
    Distribution<8, 2> by_upper(n, upper);
    by_upper.move(upper, [=](std::ptrdiff_t i, std::uint32_t place) {
        index[place] = static_cast<int>(words[i]);
        Keys::put_element(p + place, static_cast<std::uint16_t>(words[i] >> 32));
    });
    return StatusOk;
}

template <bool falling, class T>
Status sort_with_places(T* p, int* index, std::ptrdiff_t n)
{
    return sort_placed<falling>(p, index, n);
}

// --- Keys of 64 bits ------------------------------------------------------------------------------

template <bool falling>
class PlacedDoubles {
public:
    static Status sort(double* p, int* index, std::ptrdiff_t n)
    {
        const PlacedKeys placed(n);
        if (!placed.exist()) return StatusNoMemory;
        const PlacedDoubles d(p, placed, n);
        d.sort_upper(n);
        d.sort_lower(n);
        for (std::ptrdiff_t i = 0; i < n; ++i) index[i] = d.placing_.place(d.words_[i]);
        // What the words' memory holds now are the old elements.
        std::memcpy(static_cast<void*>(d.words_), p, static_cast<std::size_t>(n) * sizeof(double));
        for (std::ptrdiff_t i = 0; i < n; ++i) std::memcpy(p + i, d.words_ + index[i], sizeof(double));
        return StatusOk;
    }

private:
    using Keys = Unsigned<double, falling>;

    ORV_INLINE PlacedDoubles(const double* p, const PlacedKeys& placed, std::ptrdiff_t n)
        : p_(p), placed_(placed), words_(placed.words()), placing_(n)
    {
    }
    ORV_INLINE std::uint64_t key_at(PlacedKey word) const { return Keys::key(p_ + placing_.place(word)); }

    void sort_upper(std::ptrdiff_t n) const
    {
        const int lower = placing_.lower_bits();
        for (std::ptrdiff_t i = 0; i < n; ++i) words_[i] = placing_.word(Keys::key(p_ + i) >> lower, i);
        placed_.sort(0, n, placing_, 64 - lower);
    }
    void sort_lower(std::ptrdiff_t n) const
    {
        for (std::ptrdiff_t first = 0, end; first < n; first = end) {
            for (end = first + 1; end < n && placing_.key(words_[end]) == placing_.key(words_[first]);) ++end;
            if (end - first > 1) sort_equals(first, end - first);
        }
    }
    // Words with the same upper bits.
    void sort_equals(std::ptrdiff_t first, std::ptrdiff_t n) const
    {
        const auto less = [=](PlacedKey a, PlacedKey b) { return key_at(a) < key_at(b); };
        if (n <= kFew) return sort_by_insertion(words_ + first, n, less);
        const int lower = placing_.lower_bits();
        const std::uint64_t bits = (std::uint64_t{1} << lower) - 1;
        for (std::ptrdiff_t i = first; i < first + n; ++i) {
            words_[i] = placing_.word(key_at(words_[i]) & bits, placing_.place(words_[i]));
        }
        placed_.sort(first, n, placing_, lower);
    }

    const double* const p_;
    const PlacedKeys& placed_;
    PlacedKey* const words_;
    const Placing placing_;
};

template <bool falling>
Status sort_with_places(double* p, int* index, std::ptrdiff_t n)
{
    return PlacedDoubles<falling>::sort(p, index, n);
}

}  // namespace ORV_LEVEL
}  // namespace orv
