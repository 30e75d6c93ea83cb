#include "image/bits/bitwise.h"

#include <cstdint>

#include "core/checks.h"
#include "core/overlap.h"
#include "elementwise/forms.h"
#include "elementwise/rows.h"

namespace orv {
namespace bitwise {
namespace ORV_LEVEL {
namespace {

using std::int16_t;
using std::int32_t;
using std::uint16_t;
using std::uint32_t;
using std::uint64_t;
using std::uint8_t;

// --- Logic ----------------------------------------------------------------------------------------

struct And {
    template <class T> ORV_INLINE T one(T a, T b) const { return static_cast<T>(a & b); }
    template <class V> ORV_INLINE V many(V a, V b) const { return a & b; }
};
struct Or {
    template <class T> ORV_INLINE T one(T a, T b) const { return static_cast<T>(a | b); }
    template <class V> ORV_INLINE V many(V a, V b) const { return a | b; }
};
struct Xor {
    template <class T> ORV_INLINE T one(T a, T b) const { return static_cast<T>(a ^ b); }
    template <class V> ORV_INLINE V many(V a, V b) const { return a ^ b; }
};
struct Not {
    ORV_INLINE uint8_t one(uint8_t a) const { return static_cast<uint8_t>(~a); }
    template <class V> ORV_INLINE V many(V a) const { return ~a; }
};

// Bits know no pixel type: two images are combined byte by byte.
template <class Op, class T, class Self>
ORV_INLINE Status two_images(Self self, const T* src1, int src1Step, const T* src2, int src2Step, T* dst, int dstStep,
                             Size roi, int channels)
{
    if (const Status bad =
            check_steps_before_size(any_null(src1, src2, dst), any_below_one(src1Step, src2Step, dstStep), roi)) {
        return bad;
    }
    if (may_overlap<kReadAtOnce>(roi, channels, src1, src1Step, src2, src2Step, dst, dstStep)) {
        return by_rows(self, channels, src1, src1Step, src2, src2Step, dst, dstStep, roi);
    }
    Op op;
    plane(reinterpret_cast<const uint8_t*>(src1), src1Step, reinterpret_cast<const uint8_t*>(src2), src2Step,
          reinterpret_cast<uint8_t*>(dst), dstStep, roi, channels * static_cast<int>(sizeof(T)), op);
    return StatusOk;
}

template <class Op, class T, class Self>
ORV_INLINE Status with_constant(Self self, const T* src, int srcStep, const T* values, T* dst, int dstStep, Size roi,
                                int channels)
{
    if (const Status bad = check_steps_before_size(any_null(src, values, dst), any_below_one(srcStep, dstStep), roi))
        return bad;
    if (may_overlap<kReadAtOnce>(roi, channels, src, srcStep, dst, dstStep)) {
        return by_rows(self, channels, src, srcStep, values, dst, dstStep, roi);
    }
    Op op;
    constant_plane(values, src, srcStep, dst, dstStep, roi, channels, op);
    return StatusOk;
}

// --- Shifts ---------------------------------------------------------------------------------------
//
// Bits that leave the type are lost. Counts that would shift out everything are first brought to the
// smallest one that does: the width of the type, or one less where the sign is what remains.

template <class T>
ORV_INLINE int effective(unsigned count, int most)
{
    return count > static_cast<unsigned>(most) ? most : static_cast<int>(count);
}

template <class T>
struct Left {
    int bits;
    explicit ORV_INLINE Left(unsigned count) : bits(effective<T>(count, 8 * sizeof(T))) {}
    ORV_INLINE T one(T a) const { return static_cast<T>(static_cast<uint64_t>(a) << bits); }
    template <class V> ORV_INLINE V many(V a) const { return a << simd::count(bits); }
};

template <class T>
struct Right {
    static constexpr bool kSigned = T(-1) < T(0);
    int bits;
    explicit ORV_INLINE Right(unsigned count)
        : bits(effective<T>(count, 8 * static_cast<int>(sizeof(T)) - (kSigned ? 1 : 0)))
    {
    }
    ORV_INLINE T one(T a) const { return static_cast<T>(a >> bits); }
    template <class V> ORV_INLINE V many(V a) const { return a >> simd::count(bits); }
};

// Bytes are shifted in words; what comes over from the neighbour is cut off.
template <>
struct Left<uint8_t> {
    int bits;
    explicit ORV_INLINE Left(unsigned count) : bits(effective<uint8_t>(count, 8)) {}
    ORV_INLINE uint8_t one(uint8_t a) const { return static_cast<uint8_t>(a << bits); }
    template <class V> ORV_INLINE V many(V a) const
    {
        const V kept = simd::splat<V>(static_cast<uint8_t>(255 << bits));
        return simd::as<uint8_t>(simd::as<uint16_t>(a) << simd::count(bits)) & kept;
    }
};
template <>
struct Right<uint8_t> {
    int bits;
    explicit ORV_INLINE Right(unsigned count) : bits(effective<uint8_t>(count, 8)) {}
    ORV_INLINE uint8_t one(uint8_t a) const { return static_cast<uint8_t>(a >> bits); }
    template <class V> ORV_INLINE V many(V a) const
    {
        const V kept = simd::splat<V>(static_cast<uint8_t>(255 >> bits));
        return simd::as<uint8_t>(simd::as<uint16_t>(a) >> simd::count(bits)) & kept;
    }
};

// Channels with different counts. There is no shift by a vector of bytes or words, so the shifts are
// multiplications: to the left by 2^count, to the right by 2^(7-count) and then by seven bits. The
// factor is 0 for counts above 7.
template <template <class> class Shift>
struct ByFactor;
template <>
struct ByFactor<Left> {
    static ORV_INLINE uint8_t factor(unsigned count) { return static_cast<uint8_t>(count > 7 ? 0 : 1 << count); }
    ORV_INLINE uint8_t one(uint8_t k, uint8_t a) const { return static_cast<uint8_t>(a * k); }
    template <class V> ORV_INLINE V many(V k, V a) const
    {
        using Words = simd::recast<uint16_t, V>;
        const Words low = simd::splat<Words>(0x00FF);
        const Words factors = simd::as<uint16_t>(k), words = simd::as<uint16_t>(a);
        const Words even = mul_low(words, factors & low) & low;
        const Words odd = mul_low(and_not(low, words), factors >> simd::count(8));
        return simd::as<uint8_t>(even | odd);
    }
};
template <>
struct ByFactor<Right> {
    static ORV_INLINE uint8_t factor(unsigned count) { return static_cast<uint8_t>(count > 7 ? 0 : 128 >> count); }
    ORV_INLINE uint8_t one(uint8_t k, uint8_t a) const { return static_cast<uint8_t>(a * k >> 7); }
    template <class V> ORV_INLINE V many(V k, V a) const
    {
        using Words = simd::recast<uint16_t, V>;
        const simd::count byte(8), bit(1);
        const Words low = simd::splat<Words>(0x00FF);
        const Words factors = simd::as<uint16_t>(k), words = simd::as<uint16_t>(a);
        // Twice the factors, so that the result begins where a byte does.
        const Words even = mul_high(words << byte, (factors & low) << bit);
        const Words odd = and_not(low, mul_low(words >> byte, (factors >> byte) << bit));
        return simd::as<uint8_t>(even | odd);
    }
};

template <template <class> class Shift, class T, class Self>
ORV_INLINE Status shift(Self self, const T* src, int srcStep, const unsigned* count, T* dst, int dstStep, Size roi,
                        int channels)
{
    if (const Status bad = check_steps_before_size(any_null(src, dst), any_below_one(srcStep, dstStep), roi))
        return bad;
    if (may_overlap<kReadAtOnce>(roi, channels, src, srcStep, dst, dstStep)) {
        return by_rows(self, channels, src, srcStep, count, dst, dstStep, roi);
    }
    plane(src, srcStep, dst, dstStep, roi, channels, Shift<T>(*count));
    return StatusOk;
}

template <template <class> class Shift, class Self>
ORV_INLINE Status shift_channels(Self self, const uint8_t* src, int srcStep, const unsigned* counts, uint8_t* dst,
                                 int dstStep, Size roi, int channels)
{
    if (const Status bad = check_steps_before_size(any_null(src, counts, dst), any_below_one(srcStep, dstStep), roi))
        return bad;
    if (may_overlap<kReadAtOnce>(roi, channels, src, srcStep, dst, dstStep)) {
        return by_rows(self, channels, src, srcStep, counts, dst, dstStep, roi);
    }
    const unsigned first = get(counts);
    bool all_equal = true;
    uint8_t factors[4];
    for (int c = 0; c < channels; ++c) {
        const unsigned count = get(counts + c);
        factors[c] = ByFactor<Shift>::factor(count);
        if (count != first) all_equal = false;
    }
    if (all_equal) {
        plane(src, srcStep, dst, dstStep, roi, channels, Shift<uint8_t>(first));
        return StatusOk;
    }
    ByFactor<Shift> op;
    constant_plane(factors, src, srcStep, dst, dstStep, roi, channels, op);
    return StatusOk;
}

template <class Self>
ORV_INLINE Status complement(Self self, const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, Size roi,
                             int channels)
{
    if (const Status bad = check_steps_before_size(any_null(src, dst), any_below_one(srcStep, dstStep), roi))
        return bad;
    if (may_overlap<kReadAtOnce>(roi, channels, src, srcStep, dst, dstStep)) {
        return by_rows(self, channels, src, srcStep, dst, dstStep, roi);
    }
    plane(src, srcStep, dst, dstStep, roi, channels, Not());
    return StatusOk;
}

}  // namespace

// --- Kernels --------------------------------------------------------------------------------------

TWO_IMAGES(And_8u_C1, two_images<And>, uint8_t, uint8_t, 1)
TWO_IMAGES(And_8u_C3, two_images<And>, uint8_t, uint8_t, 3)
TWO_IMAGES(And_8u_C4, two_images<And>, uint8_t, uint8_t, 4)
TWO_IMAGES(And_16u_C1, two_images<And>, uint16_t, uint16_t, 1)
TWO_IMAGES(And_32s_C1, two_images<And>, int32_t, int32_t, 1)

TWO_IMAGES(Or_8u_C1, two_images<Or>, uint8_t, uint8_t, 1)
TWO_IMAGES(Or_8u_C3, two_images<Or>, uint8_t, uint8_t, 3)
TWO_IMAGES(Or_8u_C4, two_images<Or>, uint8_t, uint8_t, 4)
TWO_IMAGES(Or_16u_C1, two_images<Or>, uint16_t, uint16_t, 1)
TWO_IMAGES(Or_32s_C1, two_images<Or>, int32_t, int32_t, 1)

TWO_IMAGES(Xor_8u_C1, two_images<Xor>, uint8_t, uint8_t, 1)
TWO_IMAGES(Xor_8u_C3, two_images<Xor>, uint8_t, uint8_t, 3)
TWO_IMAGES(Xor_8u_C4, two_images<Xor>, uint8_t, uint8_t, 4)
TWO_IMAGES(Xor_16u_C1, two_images<Xor>, uint16_t, uint16_t, 1)
TWO_IMAGES(Xor_32s_C1, two_images<Xor>, int32_t, int32_t, 1)

ONE_CONSTANT(AndC_8u_C1, with_constant<And>, uint8_t, uint8_t, uint8_t, 1)
CONSTANT_PER_CHANNEL(AndC_8u_C3, with_constant<And>, uint8_t, uint8_t, uint8_t, 3)
CONSTANT_PER_CHANNEL(AndC_8u_C4, with_constant<And>, uint8_t, uint8_t, uint8_t, 4)
ONE_CONSTANT(AndC_16u_C1, with_constant<And>, uint16_t, uint16_t, uint16_t, 1)
ONE_CONSTANT(AndC_32s_C1, with_constant<And>, int32_t, int32_t, int32_t, 1)

ONE_CONSTANT(OrC_8u_C1, with_constant<Or>, uint8_t, uint8_t, uint8_t, 1)
CONSTANT_PER_CHANNEL(OrC_8u_C3, with_constant<Or>, uint8_t, uint8_t, uint8_t, 3)
CONSTANT_PER_CHANNEL(OrC_8u_C4, with_constant<Or>, uint8_t, uint8_t, uint8_t, 4)
ONE_CONSTANT(OrC_16u_C1, with_constant<Or>, uint16_t, uint16_t, uint16_t, 1)
ONE_CONSTANT(OrC_32s_C1, with_constant<Or>, int32_t, int32_t, int32_t, 1)

ONE_CONSTANT(XorC_8u_C1, with_constant<Xor>, uint8_t, uint8_t, uint8_t, 1)
CONSTANT_PER_CHANNEL(XorC_8u_C3, with_constant<Xor>, uint8_t, uint8_t, uint8_t, 3)
CONSTANT_PER_CHANNEL(XorC_8u_C4, with_constant<Xor>, uint8_t, uint8_t, uint8_t, 4)
ONE_CONSTANT(XorC_16u_C1, with_constant<Xor>, uint16_t, uint16_t, uint16_t, 1)
ONE_CONSTANT(XorC_32s_C1, with_constant<Xor>, int32_t, int32_t, int32_t, 1)

ONE_IMAGE(Not_8u_C1, complement, uint8_t, uint8_t, 1)
ONE_IMAGE(Not_8u_C3, complement, uint8_t, uint8_t, 3)
ONE_IMAGE(Not_8u_C4, complement, uint8_t, uint8_t, 4)

ONE_CONSTANT(LShiftC_8u_C1, shift<Left>, uint8_t, unsigned, uint8_t, 1)
CONSTANT_PER_CHANNEL(LShiftC_8u_C3, shift_channels<Left>, uint8_t, unsigned, uint8_t, 3)
CONSTANT_PER_CHANNEL(LShiftC_8u_C4, shift_channels<Left>, uint8_t, unsigned, uint8_t, 4)
ONE_CONSTANT(LShiftC_16u_C1, shift<Left>, uint16_t, unsigned, uint16_t, 1)
ONE_CONSTANT(LShiftC_32s_C1, shift<Left>, int32_t, unsigned, int32_t, 1)

ONE_CONSTANT(RShiftC_8u_C1, shift<Right>, uint8_t, unsigned, uint8_t, 1)
CONSTANT_PER_CHANNEL(RShiftC_8u_C3, shift_channels<Right>, uint8_t, unsigned, uint8_t, 3)
CONSTANT_PER_CHANNEL(RShiftC_8u_C4, shift_channels<Right>, uint8_t, unsigned, uint8_t, 4)
ONE_CONSTANT(RShiftC_16u_C1, shift<Right>, uint16_t, unsigned, uint16_t, 1)
ONE_CONSTANT(RShiftC_16s_C1, shift<Right>, int16_t, unsigned, int16_t, 1)
ONE_CONSTANT(RShiftC_32s_C1, shift<Right>, int32_t, unsigned, int32_t, 1)

}  // namespace ORV_LEVEL
}  // namespace bitwise
}  // namespace orv
