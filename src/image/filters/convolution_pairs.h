// Sums of integer products, two rows at a time. Rows 0 and 1, 2 and 3 ... of the source stand beside each other as one
// row of pairs, so that one instruction multiplies two elements by their weights and adds the products. The same pairs
// serve two rows of the result: the upper one with the weights of rows 0 and 1, 2 and 3 ... of the kernel; the lower
// one, that begins a row further down, with none and 0, 1 and 2 ...
#pragma once

#include "image/filters/convolution_job.h"
#include "simd/pair_products.h"

#if ORV_HAVE_VECTORS

namespace orv {
inline namespace ORV_LEVEL {

// --- Lanes ----------------------------------------------------------------------------------------

// Signed words, their products in 32 bits. Unsigned words are taken down by 2^15, which the sums know as a bias.
struct WordPairs {
    using Element = std::int16_t;
    using Pairs = simd::widest<std::int16_t>;
    using Sums = simd::widest<std::int32_t>;
    using Sum = std::int32_t;

    static ORV_INLINE std::int32_t weights(int first, int second)
    {
        return static_cast<std::int32_t>((static_cast<std::uint32_t>(first) & 0xFFFF) |
                                         static_cast<std::uint32_t>(second) << 16);
    }
    static ORV_INLINE Sums add_products(Sums sums, Pairs pairs, std::int32_t both)
    {
        return sums + simd::sum_of_products(pairs, simd::as<std::int16_t>(simd::splat<Sums>(both)));
    }
    static ORV_INLINE Pairs elements(const std::uint8_t* p)
    {
        return simd::as<std::int16_t>(simd::load_as<simd::widest<std::uint16_t>>::from(p));
    }
    static ORV_INLINE Pairs elements(const std::int16_t* p) { return simd::load<Pairs>(p); }
    static ORV_INLINE Pairs elements(const std::uint16_t* p)
    {
        return simd::load<Pairs>(reinterpret_cast<const std::int16_t*>(p)) ^ simd::splat<Pairs>(INT16_MIN);
    }
    static ORV_INLINE Element element(std::uint8_t x) { return x; }
    static ORV_INLINE Element element(std::int16_t x) { return x; }
    static ORV_INLINE Element element(std::uint16_t x) { return static_cast<Element>(x ^ 0x8000); }
};

#if ORV_HAVE_BYTE_SHUFFLE
// Unsigned bytes by signed weights, where no sum leaves 16 bits.
struct BytePairs {
    using Element = std::uint8_t;
    using Pairs = simd::widest<std::uint8_t>;
    using Sums = simd::widest<std::int16_t>;
    using Sum = std::int16_t;

    static ORV_INLINE std::int32_t weights(int first, int second)
    {
        return static_cast<std::int32_t>((static_cast<std::uint32_t>(first) & 0xFF) |
                                         (static_cast<std::uint32_t>(second) & 0xFF) << 8);
    }
    static ORV_INLINE Sums add_products(Sums sums, Pairs pairs, std::int32_t both)
    {
        return sums + simd::sum_of_products(pairs, simd::as<std::int8_t>(simd::splat<Sums>(static_cast<Sum>(both))));
    }
    static ORV_INLINE Pairs elements(const std::uint8_t* p) { return simd::load<Pairs>(p); }
    static ORV_INLINE Element element(std::uint8_t x) { return x; }
};
constexpr bool kHaveBytePairs = true;
#else
using BytePairs = WordPairs;
constexpr bool kHaveBytePairs = false;
#endif

// Rows a and b of n elements as one of pairs; without b its places hold zeros.
template <class Lanes, class T>
void pair_up(const T* a, const T* b, typename Lanes::Element* pairs, std::ptrdiff_t n)
{
    constexpr int N = Lanes::Pairs::N;
    std::ptrdiff_t i = 0;
    if (b != nullptr) {
        for (; i + N <= n; i += N)
            simd::store(pairs + 2 * i, simd::zipped(Lanes::elements(a + i), Lanes::elements(b + i)));
    }
    for (; i < n; ++i) {
        pairs[2 * i] = Lanes::element(get(a + i));
        pairs[2 * i + 1] = b != nullptr ? Lanes::element(get(b + i)) : typename Lanes::Element{0};
    }
}

// --- Taps -----------------------------------------------------------------------------------------

struct PairTap {
    int row;     // of pairs
    int offset;  // in elements of the source
    std::int32_t upper, lower;
};

struct PairTaps {
    PairTap* taps;
    int count = 0;
    std::int32_t bias = 0;  // what a sum starts with

    template <class Lanes>
    ORV_INLINE void add(int row, std::ptrdiff_t offset, int before, int first, int second)
    {
        if (before == 0 && first == 0 && second == 0) return;
        taps[count++] = {row, static_cast<int>(offset), Lanes::weights(first, second), Lanes::weights(before, first)};
    }
};

template <class Lanes, int vectors> using PairSums = typename Lanes::Sums[vectors];

// The sums of one row, `weights` of each tap being those of the upper or of the lower.
template <class Lanes, std::int32_t PairTap::*weights, int vectors>
ORV_INLINE void sum_pairs(const PairTaps& kernel, const typename Lanes::Element* const* rows, std::ptrdiff_t x,
                          PairSums<Lanes, vectors>& sums)
{
    using Sums = typename Lanes::Sums;
#pragma GCC unroll 4
    for (int k = 0; k < vectors; ++k) sums[k] = simd::splat<Sums>(static_cast<typename Lanes::Sum>(kernel.bias));
    const PairTap* const end = kernel.taps + kernel.count;
    for (const PairTap* tap = kernel.taps; tap != end; ++tap) {
        const auto* const p = rows[tap->row] + 2 * (x + tap->offset);
#pragma GCC unroll 4
        for (int k = 0; k < vectors; ++k) {
            sums[k] =
                Lanes::add_products(sums[k], simd::load<typename Lanes::Pairs>(p + 2 * k * Sums::N), tap->*weights);
        }
    }
}

// Both rows, from one load of the pairs.
template <class Lanes, int vectors>
ORV_INLINE void sum_pairs(const PairTaps& kernel, const typename Lanes::Element* const* rows, std::ptrdiff_t x,
                          PairSums<Lanes, vectors>& upper, PairSums<Lanes, vectors>& lower)
{
    using Sums = typename Lanes::Sums;
    const Sums bias = simd::splat<Sums>(static_cast<typename Lanes::Sum>(kernel.bias));
#pragma GCC unroll 4
    for (int k = 0; k < vectors; ++k) upper[k] = lower[k] = bias;
    const PairTap* const end = kernel.taps + kernel.count;
    for (const PairTap* tap = kernel.taps; tap != end; ++tap) {
        const auto* const p = rows[tap->row] + 2 * (x + tap->offset);
#pragma GCC unroll 4
        for (int k = 0; k < vectors; ++k) {
            const auto pairs = simd::load<typename Lanes::Pairs>(p + 2 * k * Sums::N);
            upper[k] = Lanes::add_products(upper[k], pairs, tap->upper);
            lower[k] = Lanes::add_products(lower[k], pairs, tap->lower);
        }
    }
}

}  // namespace ORV_LEVEL
}  // namespace orv

#endif  // ORV_HAVE_VECTORS
