#include "signal/vector_conversions.h"

#include "signal/element_types.h"

namespace orv {
namespace vector_conversions {
namespace ORV_LEVEL {
namespace {

using std::uint16_t;
using std::uint8_t;

// kElements of them; by way of groups where there is no shorter one.
template <class To, class From>
ORV_INLINE auto converted(const From* p)
{
    using Words = simd::widest<uint16_t>;
    const auto bounded = [](auto words) __attribute__((always_inline)) { return min(words, Words(uint16_t{255})); };
    if constexpr (std::is_same<From, uint8_t>::value && std::is_same<To, uint16_t>::value)
        return simd::load_as<simd::widest<To>>::from(p);
    else if constexpr (std::is_same<From, uint16_t>::value && std::is_same<To, uint8_t>::value)
        return pack_bytes(bounded(simd::load<Words>(p)), bounded(simd::load<Words>(p + Words::N)));
    else if constexpr (std::is_same<From, float>::value && std::is_same<To, double>::value)
        return simd::load_as<simd::twice<simd::recast<To, Integers>>>::from(p);
    else
        return elements_of<To>([p](int k) __attribute__((always_inline)) { return group_at(p + k * Integers::N); });
}

template <class To, class From>
void convert(const From* src, To* dst, std::ptrdiff_t n)
{
    if constexpr (!ORV_HAVE_VECTORS) {
        for (std::ptrdiff_t i = 0; i < n; ++i) put(dst + i, element_of<To>(get(src + i)));
    } else if (n >= kElements<To>) {
        full_vectors<kElements<To>>(
            n, [src](std::ptrdiff_t i) __attribute__((always_inline)) { return converted<To>(src + i); },
            [dst](std::ptrdiff_t i, auto v) __attribute__((always_inline)) { simd::store(dst + i, v); });
    } else {
        From few[kElements<To>] = {};
        To results[kElements<To>];
        __builtin_memcpy(few, src, static_cast<std::size_t>(n) * sizeof(From));
        simd::store(results, converted<To>(few));
        __builtin_memcpy(dst, results, static_cast<std::size_t>(n) * sizeof(To));
    }
}

template <class From, class To>
Status conversion(const From* src, To* dst, Length len)
{
    if (const Status bad = check_vector(len, src, dst)) return bad;
    if constexpr (simd::is_float<From> || simd::is_float<To>) {
        const FloatControl control;
        convert(src, dst, len.count);
    } else {
        convert(src, dst, len.count);
    }
    return StatusOk;
}

}  // namespace

// --- Kernels --------------------------------------------------------------------------------------

#define CONVERT(name, From, To) \
    Status name(const From* src, To* dst, Length len) { return conversion(src, dst, len); }
CONVERT(Convert_8u16u, unsigned char, unsigned short)
CONVERT(Convert_8u32s, unsigned char, int)
CONVERT(Convert_8u32f, unsigned char, float)
CONVERT(Convert_8u64f, unsigned char, double)
CONVERT(Convert_16u8u, unsigned short, unsigned char)
CONVERT(Convert_16u32s, unsigned short, int)
CONVERT(Convert_16u32f, unsigned short, float)
CONVERT(Convert_16u64f, unsigned short, double)
CONVERT(Convert_32s8u, int, unsigned char)
CONVERT(Convert_32s16u, int, unsigned short)
CONVERT(Convert_32s32f, int, float)
CONVERT(Convert_32s64f, int, double)
CONVERT(Convert_32f8u, float, unsigned char)
CONVERT(Convert_32f16u, float, unsigned short)
CONVERT(Convert_32f32s, float, int)
CONVERT(Convert_32f64f, float, double)
CONVERT(Convert_64f8u, double, unsigned char)
CONVERT(Convert_64f16u, double, unsigned short)
CONVERT(Convert_64f32s, double, int)
CONVERT(Convert_64f32f, double, float)
CONVERT(Convert_16s32f, short, float)
CONVERT(Convert_32f16s, float, short)

}  // namespace ORV_LEVEL
}  // namespace vector_conversions
}  // namespace orv
