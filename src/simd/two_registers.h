// Two registers of floats side by side, for long formulas: the processor looks only so many operations ahead,
// and where each waits for the one before, two values in step keep it busy. For levels that fuse.
#pragma once

#include "simd/lanes.h"

#if ORV_HAVE_FUSED

namespace orv {
inline namespace ORV_LEVEL {

struct ints2 {
    ints a, b;
    ORV_INLINE ints2(ints x, ints y) : a(x), b(y) {}
    explicit ORV_INLINE ints2(std::uint32_t value) : a(value), b(value) {}
};
struct floats2 {
    floats a, b;
    ORV_INLINE floats2(floats x, floats y) : a(x), b(y) {}
    ORV_INLINE floats2(float value) : a(value), b(value) {}
};
struct mask2 {
    mask32 a, b;
};

#define ORV_OF_ONE(result, name, type) \
    ORV_INLINE result name(type x) { return {name(x.a), name(x.b)}; }
#define ORV_OF_TWO(result, name, type) \
    ORV_INLINE result name(type x, type y) { return {name(x.a, y.a), name(x.b, y.b)}; }
#define ORV_OF_THREE(result, name, type) \
    ORV_INLINE result name(type x, type y, type z) { return {name(x.a, y.a, z.a), name(x.b, y.b, z.b)}; }
ORV_OF_ONE(ints2, bits, floats2)
ORV_OF_ONE(ints2, bits, mask2)
ORV_OF_ONE(floats2, from_bits, ints2)
ORV_OF_ONE(floats2, to_floats, ints2)
ORV_OF_ONE(floats2, magnitude, floats2)
ORV_OF_ONE(floats2, reciprocal_estimate, floats2)
ORV_OF_ONE(floats2, reciprocal_root_estimate, floats2)
ORV_OF_ONE(floats2, sqrt, floats2)
ORV_OF_TWO(floats2, operator+, floats2)
ORV_OF_TWO(floats2, operator-, floats2)
ORV_OF_TWO(floats2, operator*, floats2)
ORV_OF_TWO(floats2, operator/, floats2)
ORV_OF_TWO(floats2, operator^, floats2)
ORV_OF_TWO(ints2, operator+, ints2)
ORV_OF_TWO(ints2, operator-, ints2)
ORV_OF_TWO(ints2, operator&, ints2)
ORV_OF_TWO(ints2, operator|, ints2)
ORV_OF_TWO(ints2, operator^, ints2)
ORV_OF_TWO(mask2, operator&, mask2)
ORV_OF_TWO(mask2, operator|, mask2)
ORV_OF_TWO(floats2, larger, floats2)
ORV_OF_TWO(floats2, smaller, floats2)
ORV_OF_TWO(mask2, less, floats2)
ORV_OF_TWO(mask2, equal, floats2)
ORV_OF_TWO(mask2, less_signed, ints2)
ORV_OF_THREE(floats2, fused, floats2)
ORV_OF_THREE(floats2, fused_minus, floats2)
ORV_OF_THREE(floats2, fused_less, floats2)
#undef ORV_OF_ONE
#undef ORV_OF_TWO
#undef ORV_OF_THREE
ORV_INLINE floats2 pick(const float (&table)[8], ints2 i) { return {pick(table, i.a), pick(table, i.b)}; }
ORV_INLINE floats2 pick_of_four(const float (&table)[4], ints2 i) { return {pick_of_four(table, i.a), pick_of_four(table, i.b)}; }
template <int n> ORV_INLINE ints2 shift_left(ints2 x) { return {shift_left<n>(x.a), shift_left<n>(x.b)}; }
template <int n> ORV_INLINE ints2 shift_right(ints2 x) { return {shift_right<n>(x.a), shift_right<n>(x.b)}; }
template <int n> ORV_INLINE ints2 shift_right_signed(ints2 x) { return {shift_right_signed<n>(x.a), shift_right_signed<n>(x.b)}; }
template <int bit> ORV_INLINE ints2 sign_if(ints2 x) { return {sign_if<bit>(x.a), sign_if<bit>(x.b)}; }
ORV_INLINE bool all_of(mask2 m) { return all_of(m.a & m.b); }

ORV_INLINE floats2 load_floats2(const float* p) { return {load_floats(p), load_floats(p + kFloats)}; }
ORV_INLINE void store(float* p, floats2 x)
{
    store(p, x.a);
    store(p + kFloats, x.b);
}

}  // namespace ORV_LEVEL
}  // namespace orv

#endif  // ORV_HAVE_FUSED
