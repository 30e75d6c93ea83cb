// The order in which floats are ranked and sorted, as an order of integers: numbers by value, -0 before +0; behind
// +infinity the NaNs without a sign by rising bits, then those with one by falling bits. Equal are equal bits only.
//
// A set sign turns the order of the other bits round. That puts the NaNs with a sign first; taking off what lies
// between them and -infinity wraps them round to the end.
#pragma once

#include "simd/vec.h"

namespace orv {
inline namespace ORV_LEVEL {

using Key = simd::s32;
// Keys are as wide as what they order: of floats, and of doubles.
template <class K> constexpr K kMagnitudeOf = static_cast<K>(~simd::word_like<K>{0} >> 1);
template <class K> constexpr K kSignedNansOf = static_cast<K>(sizeof(K) == 4 ? 0x007FFFFF : 0x000FFFFFFFFFFFFF);
constexpr Key kMagnitude = kMagnitudeOf<Key>;

template <class V>
ORV_INLINE V turned(V bits)
{
    using K = typename V::lane;
    return bits ^ (simd::shifted_right<8 * sizeof(K) - 1>(bits) & simd::splat<V>(kMagnitudeOf<K>));
}
template <class V>
ORV_INLINE V key_of(V bits)
{
    return turned(bits) - simd::splat<V>(kSignedNansOf<typename V::lane>);
}
template <class V>
ORV_INLINE V bits_of_key(V key)
{
    return turned(key + simd::splat<V>(kSignedNansOf<typename V::lane>));
}

// The lesser one first.
template <class V>
ORV_INLINE void exchange(V& less, V& more)
{
    const V least = simd::min(less, more);
    more = simd::max(less, more);
    less = least;
}

// Floats by their bits: they are moved, never computed with.
ORV_INLINE const Key* bits_at(const float* p) { return reinterpret_cast<const Key*>(p); }
ORV_INLINE Key* bits_at(float* p) { return reinterpret_cast<Key*>(p); }

}  // namespace ORV_LEVEL
}  // namespace orv
