// Vectors sorted in place. Bytes are counted. Floats become integer keys and back. On vectors of 256 bits keys of 32
// bits and doubles are sorted by parts, without memory; else keys are sorted by digits, or by a heap where there is
// no memory, so that sorting never fails for it.
#pragma once

#include "core/float_control.h"
#include "core/memory.h"
#include "core/sizes.h"
#include "signal/sort_by_digits.h"
#include "signal/sort_by_parts.h"
#include "signal/sort_heap.h"
#include "signal/sort_keys.h"

namespace orv {
inline namespace ORV_LEVEL {

struct Rising {
    template <class T> ORV_INLINE bool operator()(T a, T b) const { return a < b; }
};

// Unsigned keys.
template <class Word>
void sort_keys(Word* keys, std::ptrdiff_t n)
{
    if (n <= kFew) return sort_by_insertion(keys, n, Rising());
    void* const spare = orv_allocate_checked(size_product(n, sizeof(Word)));
    if (spare == nullptr) return sort_by_heap(keys, n, Rising());
    sort_by_digits(keys, static_cast<Word*>(spare), n, 0, 8 * sizeof(Word));
    orv_release(spare);
}

// Signed keys of 32 bits. Calls done(p, n) for each stretch that is sorted.
template <class Done>
ORV_INLINE void sort_signed(Key* keys, std::ptrdiff_t n, Done done)
{
#if ORV_HAVE_INT256
    if (!is_sorted(keys, n)) return PartSort<simd::widest<Key>, Done>::sort(keys, n, kMagnitude, done);
#else
    auto* const words = reinterpret_cast<std::uint32_t*>(keys);
    constexpr std::uint32_t sign = 0x80000000;
    for (std::ptrdiff_t i = 0; i < n; ++i) words[i] ^= sign;
    sort_keys(words, n);
    for (std::ptrdiff_t i = 0; i < n; ++i) words[i] ^= sign;
#endif
    done(keys, n);
}

// --- Bytes and words ------------------------------------------------------------------------------

// How often each key is there; four counters for each, as equal neighbours would wait for each other.
struct ByteCounts {
    std::uint32_t of[256];

    template <bool falling>
    ORV_INLINE void count(const std::uint8_t* p, std::ptrdiff_t n)
    {
        std::uint32_t counts[4][256] = {};
        std::ptrdiff_t i = 0;
        for (; i + 4 <= n; i += 4) {
            for (int j = 0; j < 4; ++j) ++counts[j][p[i + j]];
        }
        for (; i < n; ++i) ++counts[0][p[i]];
        for (int k = 0; k < 256; ++k) {
            const int value = falling ? 255 - k : k;
            of[k] = counts[0][value] + counts[1][value] + counts[2][value] + counts[3][value];
        }
    }
    template <bool falling>
    ORV_INLINE void put_all(std::uint8_t* p) const
    {
        for (int k = 0; k < 256; ++k) {
            std::memset(p, falling ? 255 - k : k, of[k]);
            p += of[k];
        }
    }
};

// Few of them, as integers of 32 bits.
template <bool falling, class T>
ORV_INLINE bool sort_widened(T* p, std::ptrdiff_t n)
{
    constexpr std::ptrdiff_t few = sizeof(T) == 1 ? 256 : 1024;
    if (!ORV_HAVE_INT256 || n > few) return false;
    Key keys[few];
    for (std::ptrdiff_t i = 0; i < n; ++i) keys[i] = falling ? -p[i] : p[i];
    sort_signed(keys, n, [](Key*, std::ptrdiff_t) {});
    for (std::ptrdiff_t i = 0; i < n; ++i) p[i] = static_cast<T>(falling ? -keys[i] : keys[i]);
    return true;
}

template <bool falling>
void sort_elements(std::uint8_t* p, std::ptrdiff_t n)
{
    if (sort_widened<falling>(p, n) || is_sorted<falling>(p, n)) return;
    ByteCounts counts;
    counts.count<falling>(p, n);
    counts.put_all<falling>(p);
}

// Counting goes over all values that there could be.
constexpr std::ptrdiff_t kCounted = 1 << 17;

template <bool falling>
ORV_INLINE bool sort_by_counting(std::uint16_t* p, std::ptrdiff_t n)
{
    constexpr int values = 65536;
    auto* const counts = static_cast<std::uint32_t*>(orv_allocate(values * sizeof(std::uint32_t)));
    if (counts == nullptr) return false;
    std::memset(counts, 0, values * sizeof(std::uint32_t));
    for (std::ptrdiff_t i = 0; i < n; ++i) ++counts[p[i]];
    for (int k = 0; k < values; ++k) {
        const auto value = static_cast<std::uint16_t>(falling ? values - 1 - k : k);
        for (std::uint32_t count = counts[value]; count > 0; --count) *p++ = value;
    }
    orv_release(counts);
    return true;
}

template <bool falling>
void sort_elements(std::uint16_t* p, std::ptrdiff_t n)
{
    if (sort_widened<falling>(p, n) || is_sorted<falling>(p, n)) return;
    if (n >= kCounted && sort_by_counting<falling>(p, n)) return;
    const auto complement = [=] {
        for (std::ptrdiff_t i = 0; falling && i < n; ++i) p[i] = static_cast<std::uint16_t>(~p[i]);
    };
    complement();
    sort_keys(p, n);
    complement();
}

// --- 32 bits --------------------------------------------------------------------------------------

template <class Do>
ORV_INLINE void replace_each(Key* p, std::ptrdiff_t n, Do by)
{
    using V = simd::widest<Key>;
    using One = simd::vec<Key, 1>;
    std::ptrdiff_t i = 0;
    for (; i <= n - V::N; i += V::N) simd::store(p + i, by(simd::load<V>(p + i)));
    for (; i < n; ++i) simd::store(p + i, by(simd::load<One>(p + i)));
}

template <bool falling, class T>
ORV_INLINE void sort_32_bits(T* p, std::ptrdiff_t n)
{
    Key* const keys = reinterpret_cast<Key*>(p);
    if constexpr (simd::is_float<T> || falling) {
        replace_each(keys, n, [](auto v) { return key_of_element<T, falling>(v); });
        sort_signed(keys, n, [](Key* sorted, std::ptrdiff_t count) {
            replace_each(sorted, count, [](auto v) { return element_of_key<T, falling>(v); });
        });
    } else {
        sort_signed(keys, n, [](Key*, std::ptrdiff_t) {});
    }
}
template <bool falling>
void sort_elements(int* p, std::ptrdiff_t n)
{
    sort_32_bits<falling>(p, n);
}
template <bool falling>
void sort_elements(float* p, std::ptrdiff_t n)
{
    sort_32_bits<falling>(p, n);
}

// --- Doubles --------------------------------------------------------------------------------------

#if ORV_HAVE_INT256
// As numbers, which are compared by one instruction where integers of 64 bits take several. So NaNs go to the end
// first, and zeros, which are equal as numbers, get their signs at last: as many as had them. Falling numbers rise
// while their signs are changed. The keys of NaNs have 53 bits of their own: with another exponent they are numbers.
template <bool falling>
class Numbers {
public:
    static void sort(double* p, std::ptrdiff_t n)
    {
        const FloatControl control;
        const Numbers numbers(p, n);
        sort_doubles(p, numbers.count_, [](double* sorted, std::ptrdiff_t count) {
            if (falling) change_signs(sorted, count);
        });
        if (numbers.negative_zeros_ > 0) numbers.sign_zeros();
        sort_doubles(p + numbers.count_, n - numbers.count_, [](double* sorted, std::ptrdiff_t count) {
            for (std::ptrdiff_t i = 0; i < count; ++i) Keys::put_element(sorted + i, get(bits_of(sorted) + i) | kUpper);
        });
    }

private:
    using Bits = std::uint64_t;
    using Keys = Unsigned<double, falling>;
    static constexpr Bits kSign = Bits{1} << 63, kInfinity = Bits{0x7FF} << 52;
    // What the keys of all NaNs have in common, and what makes normal numbers of the rest.
    static constexpr Bits kUpper = ~Bits{0} << 53, kExponent = Bits{1} << 62;

    static ORV_INLINE Bits* bits_of(double* p) { return reinterpret_cast<Bits*>(p); }

    ORV_INLINE Numbers(double* p, std::ptrdiff_t n) : bits_(bits_of(p))
    {
        std::ptrdiff_t i = 0;
        while (i < n) {
            const Bits b = bits_[i];
            if ((b & ~kSign) > kInfinity) {
                const Bits key = Keys::key(p + i);
                bits_[i] = bits_[--n];
                bits_[n] = (key ^ kUpper) | kExponent;
                continue;
            }
            const Bits number = falling ? b ^ kSign : b;
            negative_zeros_ += number == kSign ? 1 : 0;
            bits_[i++] = number;
        }
        count_ = n;
    }

    template <class Done>
    static ORV_INLINE void sort_doubles(double* p, std::ptrdiff_t n, Done done)
    {
        if (is_sorted(p, n)) done(p, n);
        else PartSort<simd::widest<double>, Done>::sort(p, n, __builtin_inf(), done);
    }
    static ORV_INLINE void change_signs(double* p, std::ptrdiff_t n)
    {
        for (std::ptrdiff_t i = 0; i < n; ++i) bits_of(p)[i] ^= kSign;
    }

    // The first ones are those that come first in the order, -0 of rising and +0 of falling numbers.
    void sign_zeros() const
    {
        std::ptrdiff_t low = 0, high = count_;
        while (low < high) {
            const std::ptrdiff_t middle = low + (high - low) / 2;
            const bool is_before = ((bits_[middle] & kSign) != 0) != falling && (bits_[middle] & ~kSign) != 0;
            if (is_before) low = middle + 1;
            else high = middle;
        }
        for (std::ptrdiff_t i = low; i < count_ && (bits_[i] & ~kSign) == 0; ++i) {
            bits_[i] = (i - low < negative_zeros_) != falling ? kSign : 0;
        }
    }

    Bits* const bits_;
    std::ptrdiff_t count_, negative_zeros_ = 0;
};
#endif

template <bool falling>
void sort_elements(double* p, std::ptrdiff_t n)
{
#if ORV_HAVE_INT256
    Numbers<falling>::sort(p, n);
#else
    using Keys = Unsigned<double, falling>;
    auto* const keys = reinterpret_cast<std::uint64_t*>(p);
    for (std::ptrdiff_t i = 0; i < n; ++i) keys[i] = Keys::key(p + i);
    sort_keys(keys, n);
    for (std::ptrdiff_t i = 0; i < n; ++i) Keys::put_element(p + i, keys[i]);
#endif
}

}  // namespace ORV_LEVEL
}  // namespace orv
