#include "image/bits/comparison.h"

#include <cstdint>

#include "core/checks.h"
#include "core/float_control.h"
#include "core/overlap.h"
#include "elementwise/forms.h"
#include "image/bits/mask_rows.h"

namespace orv {
namespace comparison {
namespace ORV_LEVEL {
namespace {

using std::int16_t;
using std::uint16_t;
using std::uint8_t;

// --- Tests ----------------------------------------------------------------------------------------
//
// Floats compare as IEEE 754 has it: false for a NaN, whatever the relation. So greater_eq is not the
// opposite of less, but it is less_eq with the operands exchanged.

struct Equal {
    template <class T> ORV_INLINE bool one(T a, T b) const { return a == b; }
    template <class V> ORV_INLINE V holds(V a, V b) const { return equal(a, b); }
    template <class V> ORV_INLINE V fails(V a, V b) const { return a ^ b; }
};
struct GreaterEqual {
    template <class T> ORV_INLINE bool one(T a, T b) const { return a >= b; }
    template <class V> ORV_INLINE V holds(V a, V b) const { return greater_equal(a, b); }
    template <class V> ORV_INLINE V fails(V a, V b) const { return sub_saturate(b, a); }
};
struct Greater {
    template <class T> ORV_INLINE bool one(T a, T b) const { return a > b; }
    template <class V> ORV_INLINE V holds(V a, V b) const { return greater(a, b); }
    template <class V> ORV_INLINE V fails(V a, V b) const { return greater_equal(b, a); }
};

template <class T, int Channels, class A, class B>
void compare(int relation, A a, B b, uint8_t* dst, int dstStep, Size roi)
{
    switch (relation) {
        case relation_less: return mask_plane<T, Channels>(Greater(), b, a, dst, dstStep, roi);
        case relation_less_eq: return mask_plane<T, Channels>(GreaterEqual(), b, a, dst, dstStep, roi);
        case relation_eq: return mask_plane<T, Channels>(Equal(), a, b, dst, dstStep, roi);
        case relation_greater_eq: return mask_plane<T, Channels>(GreaterEqual(), a, b, dst, dstStep, roi);
        case relation_greater: return mask_plane<T, Channels>(Greater(), a, b, dst, dstStep, roi);
        default: return;
    }
}

// Floats need the environment in which denormals are not zeros; integers do not wait for it.
template <class T> struct Environment { Environment() {} };
template <> struct Environment<float> { const FloatControl control; };

// What a constant is repeated as.
template <class T> struct word { using type = T; };
template <> struct word<float> { using type = std::int32_t; };

// Masks of other pixels than bytes have short rows that are stored element by element.
template <class T, int Channels>
constexpr int kAtOnce = sizeof(T) == 1 && Channels == 1 ? kReadAtOnce : 0;

template <class T, int Channels, class Self>
ORV_INLINE Status two_images(Self self, const T* src1, int src1Step, const T* src2, int src2Step, uint8_t* dst,
                             int dstStep, Size roi, int relation, Fixed<Channels>)
{
    const bool bad_steps = any_below_one(src1Step, src2Step, dstStep);
    if (const Status bad = check_steps_before_size(any_null(src1, src2, dst), bad_steps, roi)) return bad;
    const ChannelCounts counts(Channels, 1);
    if (may_overlap<kAtOnce<T, Channels>>(roi, counts, src1, src1Step, src2, src2Step, dst, dstStep)) {
        return by_rows(self, counts, src1, src1Step, src2, src2Step, dst, dstStep, roi, relation);
    }
    const Environment<T> environment;
    using Image = ImageOperand<T, Channels>;
    compare<T, Channels>(relation, Image{src1, src1Step}, Image{src2, src2Step}, dst, dstStep, roi);
    return StatusOk;
}

template <class T, int Channels, class Self>
ORV_INLINE Status with_constant(Self self, const T* src, int srcStep, const T* values, uint8_t* dst, int dstStep,
                                Size roi, int relation, Fixed<Channels>)
{
    const bool bad_steps = any_below_one(srcStep, dstStep);
    if (const Status bad = check_steps_before_size(any_null(src, values, dst), bad_steps, roi)) return bad;
    const ChannelCounts counts(Channels, 1);
    if (may_overlap<kAtOnce<T, Channels>>(roi, counts, src, srcStep, dst, dstStep)) {
        return by_rows(self, counts, src, srcStep, values, dst, dstStep, roi, relation);
    }
    const Environment<T> environment;
    const ImageOperand<T, Channels> image{src, srcStep};
    using Word = typename word<T>::type;
    Word words[Channels];
    __builtin_memcpy(words, values, sizeof(words));
    const Pattern<Word> pattern = make_pattern(words, Channels);
    const ConstantOperand<T, Channels> constants{reinterpret_cast<const T*>(pattern.row)};
    compare<T, Channels>(relation, image, constants, dst, dstStep, roi);
    return StatusOk;
}

}  // namespace

// --- Kernels --------------------------------------------------------------------------------------

TWO_IMAGES(Compare_8u_C1, two_images, uint8_t, uint8_t, 1, int)
TWO_IMAGES(Compare_8u_C3, two_images, uint8_t, uint8_t, 3, int)
TWO_IMAGES(Compare_8u_C4, two_images, uint8_t, uint8_t, 4, int)
TWO_IMAGES(Compare_16u_C1, two_images, uint16_t, uint8_t, 1, int)
TWO_IMAGES(Compare_16s_C1, two_images, int16_t, uint8_t, 1, int)
TWO_IMAGES(Compare_32f_C1, two_images, float, uint8_t, 1, int)
TWO_IMAGES(Compare_32f_C3, two_images, float, uint8_t, 3, int)

ONE_CONSTANT(CompareC_8u_C1, with_constant, uint8_t, uint8_t, uint8_t, 1, int)
CONSTANT_PER_CHANNEL(CompareC_8u_C3, with_constant, uint8_t, uint8_t, uint8_t, 3, int)
CONSTANT_PER_CHANNEL(CompareC_8u_C4, with_constant, uint8_t, uint8_t, uint8_t, 4, int)
ONE_CONSTANT(CompareC_16u_C1, with_constant, uint16_t, uint16_t, uint8_t, 1, int)
ONE_CONSTANT(CompareC_16s_C1, with_constant, int16_t, int16_t, uint8_t, 1, int)
ONE_CONSTANT(CompareC_32f_C1, with_constant, float, float, uint8_t, 1, int)
CONSTANT_PER_CHANNEL(CompareC_32f_C3, with_constant, float, float, uint8_t, 3, int)

}  // namespace ORV_LEVEL
}  // namespace comparison
}  // namespace orv
