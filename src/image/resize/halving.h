// Area averages at exactly one half: the sum of 2 x 2 pixels, divided by four. Integers in integers, ties to even:
// in double every step of it is exact. Floats in double, rows first; that the halves are taken at the end
// changes no bit, as a factor of two never does in double on floats.
#pragma once

#include <cstdint>
#include <type_traits>

#include "core/checks.h"
#include "simd/vec.h"
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
    static constexpr int kSource = Channels == 3 ? 12 : 16;  // bytes used of each 128-bit half
    static constexpr int kPixels = 4;                        // of the destination, per step
    static constexpr int kReads = Channels == 3 ? 28 : 32;   // bytes read from each row per step

    ORV_INLINE void step(const std::uint8_t* a, const std::uint8_t* b, std::uint8_t* dst) const
    {
        const __m256i ones = _mm256_set1_epi8(1);
        const __m256i sum = _mm256_add_epi16(_mm256_maddubs_epi16(_mm256_shuffle_epi8(load(a), pairs_), ones),
                                             _mm256_maddubs_epi16(_mm256_shuffle_epi8(load(b), pairs_), ones));
        const __m256i one = _mm256_set1_epi16(1);
        const __m256i odd = _mm256_and_si256(_mm256_srli_epi16(sum, 2), one);
        const __m256i mean = _mm256_srli_epi16(_mm256_add_epi16(_mm256_add_epi16(sum, one), odd), 2);
        const __m128i low = _mm256_castsi256_si128(mean), high = _mm256_extracti128_si256(mean, 1);
        if constexpr (Channels == 4) {
            _mm_storeu_si128(reinterpret_cast<__m128i*>(dst), _mm_packus_epi16(low, high));
        } else {
            // Six bytes of each half, behind each other.
            const __m128i bytes = _mm_shuffle_epi8(_mm_packus_epi16(low, high), _mm_setr_epi8(0, 1, 2, 3, 4, 5, 8, 9, 10, 11, 12, 13, -1, -1, -1, -1));
            _mm_storel_epi64(reinterpret_cast<__m128i*>(dst), bytes);
            const int rest = _mm_extract_epi32(bytes, 2);
            __builtin_memcpy(dst + 8, &rest, 4);
        }
    }

private:
    static ORV_INLINE __m256i load(const std::uint8_t* p)
    {
        if constexpr (Channels == 4) return _mm256_loadu_si256(reinterpret_cast<const __m256i*>(p));
        const __m128i low = _mm_loadu_si128(reinterpret_cast<const __m128i*>(p));
        return _mm256_inserti128_si256(_mm256_castsi128_si256(low), _mm_loadu_si128(reinterpret_cast<const __m128i*>(p + 12)), 1);
    }
    const __m256i pairs_ = Channels == 4
                               ? _mm256_setr_epi8(0, 4, 1, 5, 2, 6, 3, 7, 8, 12, 9, 13, 10, 14, 11, 15, 0, 4, 1, 5, 2, 6, 3, 7, 8, 12, 9, 13, 10, 14, 11, 15)
                               : _mm256_setr_epi8(0, 3, 1, 4, 2, 5, 6, 9, 7, 10, 8, 11, -1, -1, -1, -1, 0, 3, 1, 4, 2, 5, 6, 9, 7, 10, 8, 11, -1, -1, -1, -1);
};

struct HalveFloats {
    static constexpr int kPixels = 8;
    ORV_INLINE void step(const float* a, const float* b, float* dst) const
    {
        const __m128 low = four(a, b), high = four(a + 8, b + 8);
        if (__builtin_expect(_mm_movemask_ps(_mm_cmpunord_ps(low, high)) != 0, 0)) {
            store(dst, one_nan(low));
            store(dst + 4, one_nan(high));
            return;
        }
        store(dst, low);
        store(dst + 4, high);
    }

private:
    // Pixels 0, 2, 1, 3.
    static ORV_INLINE __m128 four(const float* a, const float* b)
    {
        const auto column_sums = [&](int i) { return _mm256_add_pd(_mm256_cvtps_pd(_mm_loadu_ps(a + i)), _mm256_cvtps_pd(_mm_loadu_ps(b + i))); };
        const __m256d left = column_sums(0), right = column_sums(4);
        const __m256d sums = _mm256_add_pd(_mm256_blend_pd(left, right, 0xA), _mm256_shuffle_pd(left, right, 0x5));
        return _mm256_cvtpd_ps(_mm256_mul_pd(sums, _mm256_set1_pd(0.25)));
    }
    static ORV_INLINE __m128 one_nan(__m128 v)
    {
        return _mm_blendv_ps(v, _mm_castsi128_ps(_mm_set1_epi32(0x7FC00000)), _mm_cmpunord_ps(v, v));
    }
    static ORV_INLINE void store(float* p, __m128 v) { _mm_storeu_ps(p, _mm_permute_ps(v, 0xD8)); }
};

struct HalveWords {
    static constexpr int kPixels = 8;
    ORV_INLINE void step(const std::uint16_t* a, const std::uint16_t* b, std::uint16_t* dst) const
    {
        // Multiply-and-add takes its operands for signed: each is 32768 too low.
        const __m256i top = _mm256_set1_epi16(-32768), ones = _mm256_set1_epi16(1), one = _mm256_set1_epi32(1);
        const auto pairs = [&](const std::uint16_t* p) {
            return _mm256_madd_epi16(_mm256_xor_si256(_mm256_loadu_si256(reinterpret_cast<const __m256i*>(p)), top), ones);
        };
        const __m256i sum = _mm256_add_epi32(_mm256_add_epi32(pairs(a), pairs(b)), _mm256_set1_epi32(4 * 32768));
        const __m256i odd = _mm256_and_si256(_mm256_srli_epi32(sum, 2), one);
        const __m256i mean = _mm256_srli_epi32(_mm256_add_epi32(_mm256_add_epi32(sum, one), odd), 2);
        _mm_storeu_si128(reinterpret_cast<__m128i*>(dst), _mm_packus_epi32(_mm256_castsi256_si128(mean), _mm256_extracti128_si256(mean, 1)));
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
        for (; 2 * x * Channels + halve.kReads <= bytes; x += halve.kPixels) halve.step(a + 2 * x * Channels, b + 2 * x * Channels, dst + x * Channels);
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
