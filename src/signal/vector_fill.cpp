#include "signal/vector_fill.h"

#include <cstring>

#include "core/checks.h"
#include "elementwise/full_vectors.h"
#include "simd/vec.h"

namespace orv {
namespace vector_fill {
namespace ORV_LEVEL {
namespace {

template <class Word>
void fill(Word word, Word* dst, std::ptrdiff_t n)
{
    using V = simd::widest<Word>;
    const V all = simd::splat<V>(word);
    if (n >= V::N) {
        full_vectors<V::N>(
            n, [all](std::ptrdiff_t) __attribute__((always_inline)) { return all; },
            [dst](std::ptrdiff_t i, V v) __attribute__((always_inline)) { simd::store(dst + i, v); });
    } else {
        for (std::ptrdiff_t i = 0; i < n; ++i) put(dst + i, word);
    }
}

// By the bits: a float that passed through the x87 would lose its signalling NaNs.
template <class T>
Status set(const T& value, T* dst, Length len)
{
    if (const Status bad = check_vector(len, dst)) return bad;
    using Word = simd::word_like<T>;
    Word word;
    std::memcpy(&word, &value, sizeof(Word));
    fill(word, reinterpret_cast<Word*>(dst), len.count);
    return StatusOk;
}

}  // namespace

// --- Kernels --------------------------------------------------------------------------------------

#define SET(name, T) \
    Status name(const T& value, T* dst, Length len) { return set(value, dst, len); }
SET(Set_8u, unsigned char)
SET(Set_16u, unsigned short)
SET(Set_32s, int)
SET(Set_32f, float)
SET(Set_64f, double)
SET(Set_32fc, Complex32f)

}  // namespace ORV_LEVEL
}  // namespace vector_fill
}  // namespace orv
