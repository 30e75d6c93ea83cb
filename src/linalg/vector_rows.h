// Rows of matrices in vectors of the level, the last of them in part.
#pragma once

#include "core/checks.h"
#include "linalg/views.h"
#include "simd/partial.h"
#include "simd/shuffles.h"

namespace orv {
inline namespace ORV_LEVEL {

// Whether there is anything to gain: at the plain level everything goes element by element.
constexpr bool kVectors = ORV_HAVE_VECTORS != 0;

// A row of n elements: whole vectors, then the rest in part. compute(load) gives a vector of
// results, where load(p) stands for the vector's elements of a source whose row begins at p.
template <class T, class Compute>
ORV_INLINE void for_vectors(std::ptrdiff_t n, T* dst, Compute compute)
{
    using V = simd::widest<T>;
    std::ptrdiff_t i = 0;
    for (; i + V::N <= n; i += V::N) {
        simd::store(dst + i, compute([i](const T* p) { return simd::load<V>(p + i); }));
    }
    const int rest = static_cast<int>(n - i);
    if (rest > 0) {
        simd::store_part(dst + i, compute([i, rest](const T* p) { return simd::load_part<V>(p + i, rest); }), rest);
    }
}

template <class T>
ORV_INLINE void copy_elements(View<const T> src, View<T> dst, std::ptrdiff_t width, std::ptrdiff_t height)
{
    for (std::ptrdiff_t i = 0; i < height; ++i) {
        if (kVectors && src.has_dense_rows() && dst.has_dense_rows()) {
            const T* const row = src.at(i, 0);
            for_vectors(width, dst.at(i, 0), [row](auto load) { return load(row); });
            continue;
        }
        for (std::ptrdiff_t j = 0; j < width; ++j) __builtin_memcpy(dst.at(i, j), src.at(i, j), sizeof(T));
    }
}

}  // namespace ORV_LEVEL
}  // namespace orv
