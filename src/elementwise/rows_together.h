// Rows and planes of operations on two sources that gain from seeing two vectors at once. They have, besides
// one() and many() as in rows.h,
//     template <class V> simd::twice<V> many(const V (&a)[2], const V (&b)[2])
// and say so by a member kTogether. All others take the ordinary way.
#pragma once

#include "elementwise/rows.h"

namespace orv {
inline namespace ORV_LEVEL {

template <class Op, class = void>
constexpr bool takes_two_together = false;
template <class Op>
constexpr bool takes_two_together<Op, decltype(void(Op::kTogether))> = true;

// The last vector comes first, as everywhere.
template <class V, class T, class Op>
ORV_INLINE void row_together(const T* a, const T* b, T* dst, std::ptrdiff_t n, Op& op)
{
    ORV_ASSERT(n >= V::N);
    const V last = op.many(simd::load<V>(a + n - V::N), simd::load<V>(b + n - V::N));
    std::ptrdiff_t i = 0;
    for (; i < n - 2 * V::N; i += 2 * V::N) {
        const V left[2] = {simd::in_register(simd::load<V>(a + i)), simd::in_register(simd::load<V>(a + i + V::N))};
        const V right[2] = {simd::in_register(simd::load<V>(b + i)), simd::in_register(simd::load<V>(b + i + V::N))};
        const simd::twice<V> both = op.many(left, right);
        simd::store(dst + i, both.lo);
        simd::store(dst + i + V::N, both.hi);
    }
    if (i < n - V::N) simd::store(dst + i, op.many(simd::load<V>(a + i), simd::load<V>(b + i)));
    simd::store(dst + n - V::N, last);
}

template <class T, class Op>
inline void plane_together(const T* src1, int src1Step, const T* src2, int src2Step, T* dst, int dstStep, Size roi,
                           int channels, Op& op)
{
#if ORV_HAVE_VECTORS
    using V = simd::widest<T>;
    const Rows rows(roi, channels, sizeof(T), src1Step, src2Step, dstStep);
    if constexpr (takes_two_together<Op>) {
        if (rows.n >= V::N) {
            Op local = op;
            for (int y = 0; y < rows.count; ++y) {
                row_together<V>(row_at(src1, src1Step, y), row_at(src2, src2Step, y), row_at(dst, dstStep, y), rows.n, local);
            }
            op = local;
            return;
        }
    }
#endif
    plane(src1, src1Step, src2, src2Step, dst, dstStep, roi, channels, op);
}

}  // namespace ORV_LEVEL
}  // namespace orv
