// Elements as integers that rise in the order asked for, and back.
//
// Falling numbers are rising complements. The NaNs, which stay behind the numbers, are complemented, too, and need
// nothing of their own: turned() has them at both ends, alike, and what is taken off wraps those of the lower end round
// to the upper one whichever they are.
#pragma once

#include <type_traits>

#include "core/checks.h"
#include "math/order.h"

namespace orv {
inline namespace ORV_LEVEL {

template <bool falling, class V>
ORV_INLINE V complemented_if(V v)
{
    if constexpr (falling) return ~v;
    else return v;
}

// Lane type: signed and as wide as the element for floats.
template <class T, bool falling, class V>
ORV_INLINE V key_of_element(V bits)
{
    if constexpr (!simd::is_float<T>) return complemented_if<falling>(bits);
    else return complemented_if<falling>(turned(bits)) - simd::splat<V>(kSignedNansOf<typename V::lane>);
}
template <class T, bool falling, class V>
ORV_INLINE V element_of_key(V key)
{
    if constexpr (!simd::is_float<T>) return complemented_if<falling>(key);
    else return turned(complemented_if<falling>(key + simd::splat<V>(kSignedNansOf<typename V::lane>)));
}

// One element as an unsigned key, of as many bits.
template <class T, bool falling>
struct Unsigned {
    using Word = simd::word_like<T>;
    using Lane = std::conditional_t<sizeof(T) == 8, simd::s64, std::conditional_t<sizeof(T) == 4, simd::s32, T>>;
    using One = simd::vec<Lane, 1>;
    // Turns the order of signed keys into that of unsigned ones.
    static constexpr Word kSign = sizeof(T) >= 4 ? static_cast<Word>(Word{1} << (8 * sizeof(T) - 1)) : Word{0};

    static ORV_INLINE Word key(const T* p)
    {
        const One bits = simd::load<One>(reinterpret_cast<const Lane*>(p));
        return static_cast<Word>(static_cast<Word>(key_of_element<T, falling>(bits).v) ^ kSign);
    }
    static ORV_INLINE void put_element(T* p, Word key)
    {
        const One signed_key = {static_cast<Lane>(key ^ kSign)};
        simd::store(reinterpret_cast<Lane*>(p), element_of_key<T, falling>(signed_key));
    }
};

// Looks at a few at a time, so that order costs little where it ends in the middle.
template <bool falling = false, class T>
ORV_INLINE bool is_sorted(const T* p, std::ptrdiff_t n)
{
    constexpr std::ptrdiff_t together = 64;
    for (std::ptrdiff_t i = 1; i < n; i += together) {
        const std::ptrdiff_t end = i + together < n ? i + together : n;
        bool wrong = false;
        for (std::ptrdiff_t k = i; k < end; ++k) {
            const T before = get(p + k - 1), after = get(p + k);
            wrong |= falling ? before < after : after < before;
        }
        if (wrong) return false;
    }
    return true;
}

}  // namespace ORV_LEVEL
}  // namespace orv
