// Area averages at exactly one half: the sum of 2 x 2 pixels, divided by four. Integers in integers, ties to even:
// in double every step of it is exact. Floats in double, rows first; that the halves are taken at the end
// changes no bit, as a factor of two never does in double on floats.
#pragma once

#include <cstdint>
#include <type_traits>

#include "core/checks.h"
#include "simd/conversion.h"
#include "simd/neighbours.h"
#include "simd/partial.h"
#include "simd/reductions.h"
#include "simd/shuffles.h"
#include "image/resize/pixel_rounding.h"

namespace orv {
inline namespace ORV_LEVEL {

ORV_INLINE int quarter(int sum) { return (sum + 1 + ((sum >> 2) & 1)) >> 2; }

ORV_INLINE float quarter(double sum) { return to_pixel<float>(sum * 0.25); }

#if ORV_HAVE_INT256
// Sums of a pixel and its right neighbour in one row, then of both rows; 16 bytes of the source make a block.
template <int Channels>
class HalveBytes {
public:
    static constexpr int kSource = Channels == 3 ? 12 : 16;  // bytes used of each part
    static constexpr int kPixels = Channels == 1 ? 16 : 4;   // of the destination, per step
    static constexpr int kReads = Channels == 3 ? 28 : 32;   // bytes read from each row per step

    ORV_INLINE void step(const std::uint8_t* a, const std::uint8_t* b, std::uint8_t* dst) const
    {
        const auto ones = simd::splat<simd::vec<simd::s8, 32>>(1);
        const Words sum = simd::as<simd::u16>(sum_of_products(pairs(a), ones) + sum_of_products(pairs(b), ones));
        const Words one = simd::splat<Words>(1), odd = simd::shifted_right<2>(sum) & one;
        const auto bytes = simd::narrowed(simd::shifted_right<2>(sum + one + odd));
        if constexpr (Channels != 3) {
            simd::store(dst, bytes);
        } else {
            // Six bytes of each half, behind each other.
            static const std::uint8_t used[16] = {0, 1, 2, 3, 4, 5, 8, 9, 10, 11, 12, 13, 0x80, 0x80, 0x80, 0x80};
            simd::store_first<12>(dst, shuffle_bytes(bytes, simd::load<simd::half<std::uint8_t>>(used)));
        }
    }

private:
    using Bytes = simd::vec<std::uint8_t, 32>;
    using Words = simd::vec<std::uint16_t, 16>;
    // A sample and that of the next pixel side by side.
    ORV_INLINE Bytes pairs(const std::uint8_t* p) const
    {
        if constexpr (Channels == 1) return simd::load<Bytes>(p);
        return shuffle_bytes(Channels == 4 ? simd::load<Bytes>(p) : simd::load_parts<Bytes, kSource>(p), pairs_);
    }
    static ORV_INLINE Bytes order()
    {
        static const std::uint8_t of_four[16] = {0, 4, 1, 5, 2, 6, 3, 7, 8, 12, 9, 13, 10, 14, 11, 15};
        static const std::uint8_t of_three[16] = {0, 3, 1, 4, 2, 5, 6, 9, 7, 10, 8, 11, 0x80, 0x80, 0x80, 0x80};
        return simd::load_repeated<Bytes>(Channels == 4 ? of_four : of_three);
    }
    const Bytes pairs_ = order();
};

struct HalveFloats {
    static constexpr int kPixels = 8;
    ORV_INLINE void step(const float* a, const float* b, float* dst) const
    {
        const Four low = four(a, b), high = four(a + 8, b + 8);
        if (__builtin_expect(any(unordered(low, high)), 0)) {
            store(dst, with_one_nan(low));
            store(dst + 4, with_one_nan(high));
            return;
        }
        store(dst, low);
        store(dst + 4, high);
    }

private:
    using Four = simd::half<float>;
    // Pixels 0, 2, 1, 3.
    static ORV_INLINE Four four(const float* a, const float* b)
    {
        using Sums = simd::vec<double, 4>;
        const auto column_sums = [&](int i) {
            return simd::load_as<Sums>::from(a + i) + simd::load_as<Sums>::from(b + i);
        };
        return to_float(neighbour_sums(column_sums(0), column_sums(4)) * 0.25);
    }
    static ORV_INLINE void store(float* p, Four v) { simd::store(p, simd::permuted<0, 2, 1, 3>(v)); }
};

struct HalveWords {
    static constexpr int kPixels = 8;
    ORV_INLINE void step(const std::uint16_t* a, const std::uint16_t* b, std::uint16_t* dst) const
    {
        // Multiply-and-add takes its operands for signed: each is 32768 too low.
        using Words = simd::vec<std::uint16_t, 16>;
        using Sums = simd::vec<std::int32_t, 8>;
        const auto ones = simd::splat<simd::vec<std::int16_t, 16>>(1);
        const auto pairs = [&](const std::uint16_t* p) {
            return sum_of_products(simd::as<std::int16_t>(simd::load<Words>(p) ^ simd::splat<Words>(0x8000)), ones);
        };
        const Sums sum = pairs(a) + pairs(b) + simd::splat<Sums>(4 * 32768), one = simd::splat<Sums>(1);
        const Sums odd = simd::shifted_right<2>(sum) & one;
        simd::store_as(dst, simd::shifted_right<2>(sum + one + odd));
    }
};
#endif

// `width` pixels of the destination from the rows a and b.
template <int Channels, class T>
ORV_INLINE void halve_row(const T* a, const T* b, T* dst, std::ptrdiff_t width)
{
    std::ptrdiff_t x = 0;
#if ORV_HAVE_INT256
    if constexpr (sizeof(T) == 1) {
        const HalveBytes<Channels> halve;
        const std::ptrdiff_t bytes = 2 * width * Channels;
        for (; 2 * x * Channels + halve.kReads <= bytes; x += halve.kPixels)
            halve.step(a + 2 * x * Channels, b + 2 * x * Channels, dst + x * Channels);
    } else {
        const std::conditional_t<sizeof(T) == 2, HalveWords, HalveFloats> halve;
        for (; x + halve.kPixels <= width; x += halve.kPixels) halve.step(a + 2 * x, b + 2 * x, dst + x);
    }
#endif
    for (; x < width; ++x) {
        for (int c = 0; c < Channels; ++c) {
            const std::ptrdiff_t left = 2 * x * Channels + c, right = left + Channels;
            using Sum = std::conditional_t<std::is_floating_point<T>::value, double, int>;
            const Sum sum = (Sum{get(a + left)} + Sum{get(b + left)}) + (Sum{get(a + right)} + Sum{get(b + right)});
            put(dst + x * Channels + c, static_cast<T>(quarter(sum)));
        }
    }
}

}  // namespace ORV_LEVEL
}  // namespace orv
