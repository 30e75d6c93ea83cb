// The loop of functions of vectors: whole steps, and a last one through small buffers.
//
// An operation has `static constexpr int N`, the elements of a step, and
//     void step(const T* const* src, T* const* dst)
// which reads N elements of every source before it writes any. Vectors may be in place.
#pragma once

#include "core/float_control.h"
#include "simd/lanes.h"

namespace orv {
inline namespace ORV_LEVEL {

template <int In, int Out, class T, class Op>
ORV_INLINE void map_vectors(std::ptrdiff_t n, const T* const (&sources)[In], T* const (&destinations)[Out], Op& op)
{
    ORV_ASSERT(n >= 0 && FloatControl::holds());
    const T* src[In];
    T* dst[Out];
    for (int k = 0; k < In; ++k) src[k] = sources[k];
    for (int k = 0; k < Out; ++k) dst[k] = destinations[k];
    std::ptrdiff_t left = n;
    for (; left >= Op::N; left -= Op::N) {
        op.step(src, dst);
        for (int k = 0; k < In; ++k) src[k] += Op::N;
        for (int k = 0; k < Out; ++k) dst[k] += Op::N;
    }
    if (left == 0) return;

    // The rest of a step is ones: an ordinary argument of every function.
    T in[In][Op::N], out[Out][Op::N];
    const T* in_rows[In];
    T* out_rows[Out];
    const std::size_t bytes = static_cast<std::size_t>(left) * sizeof(T);
    for (int k = 0; k < In; ++k) {
        for (int i = 0; i < Op::N; ++i) in[k][i] = 1;
        __builtin_memcpy(in[k], src[k], bytes);
        in_rows[k] = in[k];
    }
    for (int k = 0; k < Out; ++k) out_rows[k] = out[k];
    op.step(in_rows, out_rows);
    for (int k = 0; k < Out; ++k) __builtin_memcpy(dst[k], out[k], bytes);
}

}  // namespace ORV_LEVEL
}  // namespace orv
