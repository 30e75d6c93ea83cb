// The order in which floats are ranked, as an order of integers: numbers by value, -0 before +0; behind +infinity
// the NaNs without a sign by rising bits, then those with one by falling bits. Equal are equal bits only.
//
// A set sign turns the order of the other bits round. That puts the NaNs with a sign first; taking off what lies
// between them and -infinity wraps them round to the end.
#pragma once

#include "simd/vec.h"

namespace orv {
inline namespace ORV_LEVEL {

using Key = simd::s32;
constexpr Key kMagnitude = 0x7FFFFFFF;
constexpr Key kSignedNans = 0x007FFFFF;

template <class V>
ORV_INLINE V turned(V bits)
{
    return bits ^ (simd::shifted_right<31>(bits) & simd::splat<V>(kMagnitude));
}
template <class V>
ORV_INLINE V key_of(V bits)
{
    return turned(bits) - simd::splat<V>(kSignedNans);
}
template <class V>
ORV_INLINE V bits_of_key(V key)
{
    return turned(key + simd::splat<V>(kSignedNans));
}

// Floats by their bits: they are moved, never computed with.
ORV_INLINE const Key* bits_at(const float* p) { return reinterpret_cast<const Key*>(p); }
ORV_INLINE Key* bits_at(float* p) { return reinterpret_cast<Key*>(p); }

}  // namespace ORV_LEVEL
}  // namespace orv
