#include "signal/elementary.h"

#include <cstdint>

#include "core/checks.h"
#include "core/nan.h"
#include "math/arctangent.h"
#include "math/float_log_exp.h"
#include "math/maps.h"
#include "math/quick_hypotenuse.h"
#include "math/sine.h"
#include "math/angles_11_bits.h"
#include "math/log_exp_21_bits.h"

namespace orv {
namespace elementary {
namespace ORV_LEVEL {
namespace {

// --- Meaning --------------------------------------------------------------------------------------

// Bits only, so that NaNs lose their sign and nothing else.
struct AbsOfFloats {
    static constexpr int N = kFloats;
    ORV_INLINE void step(const float* const* src, float* const* dst) const
    {
        const ints x = load_ints(reinterpret_cast<const std::uint32_t*>(src[0]));
        store(reinterpret_cast<std::uint32_t*>(dst[0]), x & ints(0x7FFFFFFF));
    }
};

struct FloorOfFloats {
    static constexpr int N = kFloats;
    ORV_INLINE void step(const float* const* src, float* const* dst) const
    {
        store(dst[0], floor(load_floats(src[0])));
    }
};

struct SqrtOfDoubles {
    static constexpr int N = kDoubles;
    Status status = StatusOk;
    ORV_INLINE void step(const double* const* src, double* const* dst)
    {
        const doubles x = load_doubles(src[0]);
        const mask64 valid = less_equal(0.0, x);
        doubles y = sqrt(x);
        if (__builtin_expect(!all(valid), 0)) {
            y = select(valid, y, from_bits(words(kInvalidNan64)));
            status = StatusSqrtOfNegative;
        }
        store(dst[0], y);
    }
};

struct ExpOfDoubles {
    static constexpr int N = kDoubles;
    ORV_INLINE void step(const double* const* src, double* const* dst) const
    {
        const doubles x = load_doubles(src[0]);
        if (__builtin_expect(all(less(magnitude(x), kExpOrdinary)), 1)) return store(dst[0], exp(x));
        store(dst[0], exp_anywhere(x));
    }
};

struct LnOfDoubles {
    static constexpr int N = kDoubles;
    FirstLogWarning warning;
    ORV_INLINE void step(const double* const* src, double* const* dst)
    {
        const doubles x = load_doubles(src[0]);
        const mask64 ordinary = less_equal(0x1p-1022, x) & less(x, __builtin_inf());
        if (__builtin_expect(all(ordinary), 1)) return store(dst[0], ln(split(x)));
        LogEvents events;
        store(dst[0], ln_anywhere(x, &events));
        warning.note(events);
    }
};

struct SineCosineOfDoubles {
    static constexpr int N = kDoubles;
    ORV_INLINE void step(const double* const* src, double* const* dst) const
    {
        const doubles x = load_doubles(src[0]);
        const doubles size = magnitude(x);
        const bool ordinary = all(less_equal(size, kOrdinaryAngle));
        if (__builtin_expect(ordinary, 1)) return put(sine_and_cosine(reduce(size), x), dst);
        // NaNs have no sign.
        const doubles sign = select(less(size, __builtin_inf()), x, size);
        put(sine_and_cosine(reduce_anywhere(size), sign), dst);
    }

private:
    static ORV_INLINE void put(SineCosine both, double* const* dst)
    {
        store(dst[0], both.sine);
        store(dst[1], both.cosine);
    }
};

struct HypotOfFloat : QuickHypotenuse {
    static ORV_INLINE void in_double(const float* const* src, int at, float* dst)
    {
        const doubles a = load_doubles(src[0] + at), b = load_doubles(src[1] + at);
        const doubles sum = a * a + b * b;  // the squares are exact and far from overflow
        doubles y = sqrt(sum);
        if (__builtin_expect(!all(less(sum, __builtin_inf())), 0)) {
            // As C has it: infinity even beside a NaN.
            const doubles infinity = __builtin_inf();
            y = select(unordered(sum), from_bits(words(kPlainNan64)), y);
            y = select(equal(magnitude(a), infinity) | equal(magnitude(b), infinity), infinity, y);
        }
        store(dst, y);
    }
};

using HypotOfFloats = QuickSteps<HypotOfFloat>;

// --- Kernels --------------------------------------------------------------------------------------

template <int In, int Out, class T, class Op>
ORV_INLINE Status check_and_map(int len, const T* const (&src)[In], T* const (&dst)[Out], Op& op)
{
    for (int k = 0; k < In; ++k) {
        if (src[k] == nullptr) return StatusNullPointer;
    }
    for (int k = 0; k < Out; ++k) {
        if (dst[k] == nullptr) return StatusNullPointer;
    }
    if (len < 1) return StatusBadSize;
    const FloatControl control;
    Op local = op;
    map_vectors(len, src, dst, local);
    op = local;
    return StatusOk;
}

template <class Op, class T>
ORV_INLINE Status map_one(const T* src, T* dst, int len, Op op = Op())
{
    return check_and_map<1, 1, T>(len, {src}, {dst}, op);
}

template <class Op, class T>
ORV_INLINE Status map_logarithm(const T* src, T* dst, int len)
{
    Op op;
    const Status bad = check_and_map<1, 1, T>(len, {src}, {dst}, op);
    return bad != StatusOk ? bad : op.warning.status();
}

}  // namespace

Status Abs_32f(const float* src, float* dst, int len) { return map_one<AbsOfFloats>(src, dst, len); }
Status Floor_32f(const float* src, float* dst, int len) { return map_one<FloorOfFloats>(src, dst, len); }
Status Exp_32f(const float* src, float* dst, int len) { return map_one<ExpOfFloats<false>>(src, dst, len); }
Status Exp_32f_A21(const float* src, float* dst, int len) { return map_one<ShortExpOfFloats>(src, dst, len); }
Status Exp_64f(const double* src, double* dst, int len) { return map_one<ExpOfDoubles>(src, dst, len); }
Status Ln_32f_A21(const float* src, float* dst, int len) { return map_logarithm<ShortLnOfFloats>(src, dst, len); }
Status Ln_64f(const double* src, double* dst, int len) { return map_logarithm<LnOfDoubles>(src, dst, len); }
Status Sin_32f_A11(const float* src, float* dst, int len) { return map_one<OfAngles<Sine>>(src, dst, len); }
Status Cos_32f_A11(const float* src, float* dst, int len) { return map_one<OfAngles<Cosine>>(src, dst, len); }

Status Sqrt_64f(const double* src, double* dst, int len)
{
    SqrtOfDoubles op;
    const Status bad = check_and_map<1, 1, double>(len, {src}, {dst}, op);
    return bad != StatusOk ? bad : op.status;
}

Status SinCos_32f_A11(const float* src, float* dstSin, float* dstCos, int len)
{
    OfAngles<SineAndCosine> op;
    return check_and_map<1, 2, float>(len, {src}, {dstSin, dstCos}, op);
}

Status SinCos_64f_A50(const double* src, double* dstSin, double* dstCos, int len)
{
    SineCosineOfDoubles op;
    return check_and_map<1, 2, double>(len, {src}, {dstSin, dstCos}, op);
}

Status Atan2_32f_A24(const float* src1, const float* src2, float* dst, int len)
{
    Atan2OfFloats op;
    return check_and_map<2, 1, float>(len, {src1, src2}, {dst}, op);
}

Status Hypot_32f_A24(const float* src1, const float* src2, float* dst, int len)
{
    HypotOfFloats op;
    return check_and_map<2, 1, float>(len, {src1, src2}, {dst}, op);
}

}  // namespace ORV_LEVEL
}  // namespace elementary
}  // namespace orv
