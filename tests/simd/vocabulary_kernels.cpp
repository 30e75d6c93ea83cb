// The operations of the vector vocabulary, compiled for each level that has vectors of its own.
#include <type_traits>

#include "core/float_control.h"
#include "simd/conversion.h"
#include "simd/gathers.h"
#include "simd/halves.h"
#include "simd/interleaved.h"
#include "simd/lanes.h"
#include "simd/neighbours.h"
#include "simd/partial.h"
#include "simd/pixels.h"
#include "simd/positions.h"
#include "simd/reductions.h"
#include "simd/shuffles.h"
#include "simd/vec.h"
#include "vocabulary.h"

namespace vocabulary {
namespace ORV_LEVEL {
namespace {

using namespace orv::simd;

template <class T> using beside_floats = recast<T, widest<float>>;

template <class T> constexpr Lane lane_of = Lane::u8;
template <> constexpr Lane lane_of<u16> = Lane::u16;
template <> constexpr Lane lane_of<s16> = Lane::s16;
template <> constexpr Lane lane_of<u32> = Lane::u32;
template <> constexpr Lane lane_of<s32> = Lane::s32;
template <> constexpr Lane lane_of<u64> = Lane::u64;
template <> constexpr Lane lane_of<float> = Lane::f32;
template <> constexpr Lane lane_of<double> = Lane::f64;
using EightFloats = vec<float, 8>;
using FourDoubles = vec<double, 4>;

template <class Op, class V>
void run(const void* a, const void* b, const void* c, void* results, int n)
{
    using T = typename V::lane;
    const orv::FloatControl control;
    const auto at = [](const void* p, int i) { return load<V>(static_cast<const T*>(p) + i); };
    for (int i = 0; i < n; i += V::N) {
        const auto r = Op::of(at(a, i), at(b, i), at(c, i));
        using Vector = std::remove_const_t<decltype(r)>;
        store(static_cast<typename Vector::lane*>(results) + i / V::N * Vector::N, r);
    }
}

#define OPERATION(name, expression) \
    struct name { \
        template <class V> static ORV_INLINE auto of([[maybe_unused]] V a, [[maybe_unused]] V b, [[maybe_unused]] V c) \
        { \
            return expression; \
        } \
    };

OPERATION(Add, a + b)
OPERATION(Subtract, a - b)
OPERATION(Multiply, a * b)
OPERATION(Divide, a / b)
OPERATION(Root, sqrt(a))
OPERATION(AddOrdered, add_ordered(a, b))
OPERATION(MultiplyOrdered, mul_ordered(a, b))
OPERATION(AddSaturate, add_saturate(a, b))
OPERATION(SubtractSaturate, sub_saturate(a, b))
OPERATION(MultiplyLow, mul_low(a, b))
OPERATION(MultiplyHigh, mul_high(a, b))
OPERATION(Smaller, min(a, b))
OPERATION(Larger, max(a, b))
OPERATION(And, a & b)
OPERATION(Or, a | b)
OPERATION(Xor, a ^ b)
OPERATION(Not, ~a)
OPERATION(AndNot, and_not(a, b))
OPERATION(ShiftLeft, a << count(5))
OPERATION(ShiftRight, a >> count(5))
OPERATION(ShiftAllOut, a >> count(8 * sizeof(typename V::lane) - 1))

// Comparisons decide between two values, so what selects is tested as well.
OPERATION(Equal, select(equal(a, b), a, c))
OPERATION(Greater, select(greater(a, b), a, c))
OPERATION(GreaterEqual, select(greater_equal(a, b), a, c))
OPERATION(Unordered, select(unordered(a, b), a, c))
OPERATION(SelectBySign, select_by_sign(a, b, c))
OPERATION(BothHold, select(equal(a, b) & equal(a, c), a, c))
OPERATION(OneHolds, select(equal(a, b) | equal(a, c), a, b))
OPERATION(FirstFails, select(and_not(equal(a, b), equal(a, c)), a, b))
OPERATION(Any, splat<V>(static_cast<typename V::lane>(any(equal(a, b)) ? 1 : 0)))
OPERATION(All, splat<V>(static_cast<typename V::lane>(all(equal(a, b)) ? 1 : 0)))
OPERATION(OnesWhere, ones_where<V>(equal(a, b)))

OPERATION(Bits, bits(a))
OPERATION(FromBits, from_bits(a))
OPERATION(ToFloat, to_float(a))
OPERATION(ToFloatSigned, to_float_signed(a))
OPERATION(Less, select(less(a, b), a, c))
OPERATION(LessEqual, select(less_equal(a, b), a, c))
OPERATION(NotEqual, select(!equal(a, b), a, c))
OPERATION(LanesOf, splat<V>(static_cast<typename V::lane>(lanes_of(less(a, b)))))
OPERATION(MinusProduct, minus_exact(a, b, splat<V>(1)))
OPERATION(WithNumbers, max(a * 0.5f + 1.0f, 2.0f) - a)
OPERATION(ShiftedLeft, shifted_left<5>(a))
OPERATION(ShiftedRight, shifted_right<5>(a))
OPERATION(ShiftedRightSigned, shifted_right_signed<5>(a))
OPERATION(EvenTwice, even_twice(a))
OPERATION(OddTwice, odd_twice(a))
OPERATION(Exchanged, exchanged(a))
OPERATION(EvenOf, even_of(a, b))
OPERATION(OddOf, odd_of(a, b))
OPERATION(SplatTwo, a + splat_two<V>(1, 2))
OPERATION(ProductMinusPlus, product_minus_plus(a, splat<V>(1), c))
OPERATION(ProductPlusMinus, product_plus_minus(a, splat<V>(1), c))
#if ORV_HAVE_FUSED
OPERATION(Fused, fused(a, b, c))
OPERATION(FusedMinus, minus_product(c, a, b))
OPERATION(FusedLess, product_minus(a, b, c))
#endif
OPERATION(Truncate, truncate(a))
OPERATION(RoundToInt, round_to_int(a))
OPERATION(ThereAndBack, to_float(to_double(a)))
OPERATION(ThirdInDouble, round_to_int(to_double(a) * splat<decltype(to_double(a).lo)>(1.0 / 3)))
OPERATION(RoundedToSingle, to_float(to_single(to_double(a)) * splat<decltype(to_double(a).lo)>(1.0 / 3)))
struct ExactProduct {
    template <class V> static ORV_INLINE V of(V a, V b, V c)
    {
        const auto x = to_double(a), y = to_double(b), z = to_double(c);
        return to_float(
            decltype(to_double(a)){add_exact_product(x.lo, y.lo, z.lo), add_exact_product(x.hi, y.hi, z.hi)});
    }
};

OPERATION(WidenNarrow, narrow(widen(a)))
// Up to the largest number that narrow() takes.
OPERATION(NarrowSaturates, narrow(widen(a) << count(8 * sizeof(typename V::lane) - 1)))
OPERATION(InterleavedFirst,
          narrow(decltype(widen(a)){widen(a).lo & interleave(a, b).lo, widen(a).hi& interleave(a, b).hi}))
OPERATION(InterleavedSecond, narrow(decltype(widen(a)){upper(interleave(a, b).lo), upper(interleave(a, b).hi)}))
OPERATION(Average, average(a, b))
OPERATION(Magnitude, magnitude(a))
OPERATION(Halved, halved(a))
OPERATION(Raised, raised(a))
OPERATION(Upper, upper(a))
OPERATION(SumOfBytes, sum_of_bytes(a))
OPERATION(SumOfProducts, sum_of_products(a, b))
OPERATION(AddWide, add_wide(a, b))
OPERATION(ProductNarrowed, narrow(mul_wide(a, b)))
OPERATION(ProductScaledDown, narrow(scale_down(mul_wide(a, b), 31)))
OPERATION(InRegister, in_register(a))
OPERATION(PackTwo, pack(a & splat<V>(65535), b & splat<V>(65535)))
OPERATION(PackFour, pack(a & splat<V>(255), b & splat<V>(255), c & splat<V>(255), a & splat<V>(255)))
OPERATION(PackMasks, pack_masks(equal(a, b), equal(a, c)))
OPERATION(PackFourMasks, pack_masks(equal(a, b), equal(a, c), equal(b, c), equal(a, a)))
#if ORV_HAVE_BYTE_SHUFFLE
OPERATION(ShuffleBytes, shuffle_bytes(a, b))
#endif

OPERATION(Unlike, select(not_equal(a, b), a, c))
OPERATION(SignsOfLanes, splat<V>(static_cast<typename V::lane>(lanes_of(a))))
OPERATION(NoneSet, splat<V>(static_cast<typename V::lane>(none_set(a & splat<V>(3), b & splat<V>(6)) ? 1 : 0)))
OPERATION(Alternate, alternate(a, b))
OPERATION(MultiplyHighBy, mul_high(a, 3141592653u))
OPERATION(ProductWrapped, low_halves(mul_wide(a, b)))
OPERATION(ProductsFit, splat<V>(all_fit(beyond_lanes(mul_wide(a, b))) ? 1 : 0))
OPERATION(Compounded, ([&] { V r = a; r += b; r -= c; return r; }()))
OPERATION(Quotient, ([&] { V r = a; return r /= b; }()))

#if ORV_HAVE_VECTORS
OPERATION(Pairs, interleave(a, b))
OPERATION(Permuted, (permuted<2, 0, 3, 1>(a)))
OPERATION(Reversed, reversed(a))
OPERATION(ExchangedParts, exchanged_parts(a))
OPERATION(Blended, (blended<0x5A & ((1 << V::N) - 1)>(a, b)))
OPERATION(EvenLanes, even_lanes(a, b))
OPERATION(OddLanes, odd_lanes(a, b))
OPERATION(LowerHalves, lower_halves(a, b))
OPERATION(UpperHalves, upper_halves(a, b))
OPERATION(Joined, joined<5>(a, b))
OPERATION(SpreadTriples, spread_triples<0>(a))
OPERATION(SpreadLaterTriples, spread_triples<4>(a))
OPERATION(Rotated, rotated<3>(a))
OPERATION(Ascending, a + ascending<V>())
OPERATION(FourLanes, (of_lanes(first_lane(a), first_lane(b), first_lane(c), first_lane(a))))
OPERATION(EqualBytes, splat<V>(static_cast<u8>(equal_bytes(a, b) & 255)))

// Words on memory: `from` has V::N lanes, and so has `to`, of which those that are not written hold 0.
template <class Op, class V>
void run_in_memory(const void* a, const void*, const void*, void* results, int n)
{
    using T = typename V::lane;
    for (int i = 0; i < n; i += V::N) {
        T* const to = static_cast<T*>(results) + i;
        for (int k = 0; k < V::N; ++k) to[k] = 0;
        Op::template of<V>(static_cast<const T*>(a) + i, to, 1 + i / V::N % (V::N - 1));
    }
}
#define IN_MEMORY(name, statement) \
    struct name { \
        template <class V> \
        static ORV_INLINE void of([[maybe_unused]] const typename V::lane* from, \
                                  [[maybe_unused]] typename V::lane* to, [[maybe_unused]] int some) \
        { \
            statement; \
        } \
    };
IN_MEMORY(PartLoaded, store(to, load_part<V>(from, some)))
IN_MEMORY(PartStored, store_part(to, load<V>(from), some))
IN_MEMORY(Splat, store(to, splat_at<V>(from + 1)))
IN_MEMORY(LowerLoaded, store(to, load_lower<V>(from)))
IN_MEMORY(First4, store_first<4>(to, load<V>(from)))
IN_MEMORY(First8, store_first<8>(to, load<V>(from)))
IN_MEMORY(First12, store_first<12>(to, load<V>(from)))
IN_MEMORY(First16, store_first<16>(to, load<V>(from)))
IN_MEMORY(Last4, store_last<4>(to, load<V>(from)))
IN_MEMORY(Last8, store_last<8>(to, load<V>(from)))
IN_MEMORY(Repeated, store(to, load_repeated<V>(from)))
IN_MEMORY(PartsLoaded, store(to, load_parts<V, 12>(from)))
IN_MEMORY(PartsStored, store_parts<16>(to, load<V>(from)))
#define MEMORY(V, name, T) {#name, lane_of<T>, V::N, run_in_memory<name, V>}

// Three vectors of `a` become three.
template <class Op, class V>
void run_three(const void* a, const void*, const void*, void* results, int n)
{
    using T = typename V::lane;
    for (int i = 0; i + 3 * V::N <= n; i += 3 * V::N) {
        const T* const p = static_cast<const T*>(a) + i;
        T* const to = static_cast<T*>(results) + i;
        const three<V> r = Op::of(three<V>{load<V>(p), load<V>(p + V::N), load<V>(p + 2 * V::N)});
        store(to, r.a);
        store(to + V::N, r.b);
        store(to + 2 * V::N, r.c);
    }
}
#define ON_THREE(name, expression) \
    struct name { \
        template <class V> static ORV_INLINE three<V> of(three<V> p) { return expression; } \
    };
ON_THREE(InParts, in_parts(p))
ON_THREE(Separated, separated(p))
ON_THREE(SideBySide, side_by_side(p))
#define THREE(V, name, T) {#name, lane_of<T>, 3 * V::N, run_three<name, V>}

template <class V>
void run_square(const void* a, const void*, const void*, void* results, int n)
{
    using T = typename V::lane;
    for (int i = 0; i < n; i += V::N * V::N) {
        V row[V::N];
        for (int k = 0; k < V::N; ++k) row[k] = load<V>(static_cast<const T*>(a) + i + k * V::N);
        transpose(row);
        for (int k = 0; k < V::N; ++k) store(static_cast<T*>(results) + i + k * V::N, row[k]);
    }
}
#define SQUARE(V, T) {"Square", lane_of<T>, V::N * V::N, run_square<V>}

OPERATION(UnsignedInDouble, to_float(to_four_doubles(a)))
template <class V, class To>
void run_store_as(const void* a, const void*, const void*, void* results, int n)
{
    const orv::FloatControl control;
    for (int i = 0; i < n; i += V::N)
        store_as(static_cast<To*>(results) + i, load<V>(static_cast<const typename V::lane*>(a) + i));
}
#define STORED(V, name, T, To) {#name, lane_of<T>, V::N, run_store_as<V, To>}
#endif

#if ORV_HAVE_FLOAT256
OPERATION(LowerParts, lower_parts(a, b))
OPERATION(UpperParts, upper_parts(a, b))
OPERATION(SumsOfParts, sums_of_parts(a, b))
OPERATION(NeighbourSums, neighbour_sums(a, b))
OPERATION(Floor, floor(a))
OPERATION(PartsApart, of_parts(upper_part(a), lower_part(b)))
OPERATION(InSingle, to_single(a))
IN_MEMORY(HalvesLoaded, store(to, load_halves(from + V::N / 2, from)))
IN_MEMORY(HalvesStored, store_halves(to + V::N / 2, to, load<V>(from)))
#endif
#if ORV_HAVE_INT256
constexpr s32 kOrder[] = {7, 3, 0, 0, 6, 1, 2, 5};
OPERATION(MultiplyRounded, mul_rounded(a, b))
OPERATION(PermutedBy, permuted(a, load<vec<s32, 8>>(kOrder)))
OPERATION(HalvesPermutedBy, permuted(a, load<vec<s32, 8>>(kOrder)))
OPERATION(LargestLane, largest_lane(a))
OPERATION(OneNan, with_one_nan(a))
OPERATION(Narrowed, narrowed(a))
OPERATION(WeightedBytes, sum_of_products(a, as<s8>(b)))
OPERATION(WholePart, whole_part(a))
OPERATION(LowerProducts, mul_lower(a, b))
OPERATION(LowerDwords, lower_halves(a, b))
OPERATION(InWords, to_words(select(less(magnitude(a), splat<V>(0x1p40)), magnitude(a), splat<V>(3)), 16))
OPERATION(InSignedWords, to_signed_words(whole_part(select(less(magnitude(a), splat<V>(0x1p51)), a, splat<V>(-3)))))
#endif

// From narrower lanes in memory: a has them.
template <class V, class From>
void run_load_as(const void* a, const void*, const void*, void* results, int n)
{
    for (int i = 0; i < n; i += V::N) {
        store(static_cast<typename V::lane*>(results) + i, load_as<V>::from(static_cast<const From*>(a) + i));
    }
}
// Numbers of two parts: the first parts of V::N of them, then the second ones.
template <class V, bool mirrored>
void run_parts(const void* a, const void*, const void*, void* results, int n)
{
    for (int i = 0; i < n; i += 2 * V::N) {
        const float* const p = static_cast<const float*>(a) + i;
        const auto parts = mirrored ? interleaved<V>::load_mirrored(p + 2 * (V::N - 1)) : interleaved<V>::load(p);
        store(static_cast<float*>(results) + i, parts);
    }
}
// There and back.
template <class V, bool mirrored>
void run_parts_stored(const void* a, const void*, const void*, void* results, int n)
{
    for (int i = 0; i < n; i += 2 * V::N) {
        const float* const p = static_cast<const float*>(a) + i;
        float* const to = static_cast<float*>(results) + i;
        if (mirrored)
            interleaved<V>::store_mirrored(to + 2 * (V::N - 1), interleaved<V>::load_mirrored(p + 2 * (V::N - 1)));
        else interleaved<V>::store(to, interleaved<V>::load(p));
    }
}
#define PARTS(V) \
    {"Parts", Lane::f32, 2 * V::N, run_parts<V, false>}, {"PartsMirrored", Lane::f32, 2 * V::N, run_parts<V, true>}, \
        {"PartsStored", Lane::f32, 2 * V::N, run_parts_stored<V, false>}, \
    { \
        "PartsStored", Lane::f32, 2 * V::N, run_parts_stored<V, true> \
    }

#if ORV_HAVE_VECTORS
template <class V>
void run_transpose(const void* a, const void*, const void*, void* results, int n)
{
    for (int i = 0; i < n; i += 4 * V::N) {
        V row[4];
        for (int k = 0; k < 4; ++k) row[k] = load<V>(static_cast<const float*>(a) + i + k * V::N);
        transpose(row[0], row[1], row[2], row[3]);
        for (int k = 0; k < 4; ++k) store(static_cast<float*>(results) + i + k * V::N, row[k]);
    }
}
OPERATION(ReversedPairs, reversed_pairs(a))
#endif

// Rows of as many lanes as two ends may have between them: each comes out as it was.
template <class V, int Bytes>
void run_ends(const void* a, const void*, const void*, void* results, int n)
{
    using T = typename V::lane;
    constexpr int most = 2 * Bytes / static_cast<int>(sizeof(T));
    for (int i = 0; i < n; i += most) {
        const int length = most / 2 + i / most % (most / 2 + 1);
        const T* const from = static_cast<const T*>(a) + i;
        T* const to = static_cast<T*>(results) + i;
        for (int k = 0; k < most; ++k) to[k] = 0;
        store_ends<V, Bytes>(to, length, load_ends<V, Bytes>(from, length));
    }
}

#define AT(V, name, T) {#name, lane_of<T>, V::N, run<name, V>}
#define ONE(name, T) {#name, lane_of<T>, 1, run<name, vec<T, 1>>}
#define REGISTERS(name, T) \
    {#name, lane_of<T>, half<T>::N, run<name, half<T>>}, \
    { \
#name, lane_of < T>, widest < T> ::N, run < name, widest < T>> \
    }
#define SINGLE(name, T) ONE(name, T), REGISTERS(name, T)
#define ANY(name, T) SINGLE(name, T), {#name, lane_of<T>, 2 * widest<T>::N, run<name, twice<widest<T>>>}
#define INTEGERS(name) ANY(name, u8), ANY(name, u16), ANY(name, s16), ANY(name, u32), ANY(name, s32)
#define FLOATS(name) ANY(name, float), ANY(name, double)
// Integers as wide as the widest floats.
#define BESIDE(name, T) SINGLE(name, T), AT(beside_floats<T>, name, T)
#define SHIFTED(name) ANY(name, u16), ANY(name, s16), ANY(name, u32), ANY(name, s32)

const Entry all_entries[] = {
    INTEGERS(Add),
    FLOATS(Add),
    INTEGERS(Subtract),
    FLOATS(Subtract),
    FLOATS(Multiply),
    FLOATS(Divide),
    FLOATS(Root),
    FLOATS(AddOrdered),
    FLOATS(MultiplyOrdered),
    ANY(AddSaturate, u8),
    ANY(AddSaturate, u16),
    ANY(AddSaturate, s16),
    ANY(AddSaturate, s32),
    ANY(SubtractSaturate, u8),
    ANY(SubtractSaturate, u16),
    ANY(SubtractSaturate, s16),
    ANY(SubtractSaturate, s32),
    ANY(MultiplyLow, u16),
    ANY(MultiplyLow, s16),
    ANY(MultiplyLow, s32),
    ANY(MultiplyHigh, u16),
    ANY(MultiplyHigh, s16),
    INTEGERS(Smaller),
    FLOATS(Smaller),
    ANY(Larger, u8),
    ANY(Larger, u16),
    ANY(Larger, s16),
    ANY(Larger, s32),
    FLOATS(Larger),
    INTEGERS(And),
    FLOATS(And),
    INTEGERS(Or),
    FLOATS(Or),
    INTEGERS(Xor),
    FLOATS(Xor),
    INTEGERS(Not),
    INTEGERS(AndNot),
    FLOATS(AndNot),
    SHIFTED(ShiftLeft),
    SHIFTED(ShiftRight),
    SHIFTED(ShiftAllOut),
    INTEGERS(Equal),
    FLOATS(Equal),
    ANY(Greater, u8),
    ANY(Greater, u16),
    ANY(Greater, s16),
    ANY(Greater, s32),
    FLOATS(Greater),
    ANY(GreaterEqual, u8),
    ANY(GreaterEqual, u16),
    ANY(GreaterEqual, s16),
    FLOATS(GreaterEqual),
    FLOATS(Unordered),
    SINGLE(SelectBySign, s32),
    INTEGERS(BothHold),
    FLOATS(BothHold),
    INTEGERS(OneHolds),
    FLOATS(OneHolds),
    INTEGERS(FirstFails),
    FLOATS(FirstFails),
    INTEGERS(Any),
    FLOATS(Any),
    INTEGERS(All),
    FLOATS(All),
    SINGLE(OnesWhere, u8),
    SINGLE(OnesWhere, s32),
    SINGLE(ToFloat, s32),
    FLOATS(Magnitude),
    FLOATS(Less),
    SINGLE(LessEqual, float),
    SINGLE(LessEqual, double),
    SINGLE(NotEqual, float),
    SINGLE(NotEqual, double),
    SINGLE(LanesOf, float),
    SINGLE(LanesOf, double),
    SINGLE(MinusProduct, float),
    SINGLE(MinusProduct, double),
    FLOATS(WithNumbers),
    BESIDE(FromBits, u32),
    BESIDE(ToFloatSigned, u32),
    BESIDE(Add, u32),
    BESIDE(Subtract, u32),
    BESIDE(And, u32),
    BESIDE(Or, u32),
    BESIDE(Xor, u32),
    BESIDE(ShiftedLeft, u32),
    BESIDE(ShiftedRight, u32),
    BESIDE(ShiftedRightSigned, u32),
    BESIDE(Add, u64),
    BESIDE(Subtract, u64),
    BESIDE(And, u64),
    BESIDE(Or, u64),
    BESIDE(Xor, u64),
    BESIDE(FromBits, u64),
    BESIDE(ShiftedLeft, u64),
    BESIDE(ShiftedRight, u64),
    SINGLE(ShiftedLeft, u16),
    SINGLE(ShiftedRight, u16),
    SINGLE(ShiftedRight, s16),
    SINGLE(ShiftedLeft, s32),
    SINGLE(ShiftedRight, s32),
    SINGLE(EvenTwice, double),
    SINGLE(OddTwice, double),
    SINGLE(Exchanged, double),
    SINGLE(EvenOf, double),
    SINGLE(OddOf, double),
    SINGLE(SplatTwo, double),
    ONE(ProductMinusPlus, double),
    AT(widest<double>, ProductMinusPlus, double),
    ONE(ProductPlusMinus, double),
    AT(widest<double>, ProductPlusMinus, double),
#if ORV_HAVE_FUSED
    REGISTERS(Fused, double),
    REGISTERS(FusedMinus, double),
    REGISTERS(FusedLess, double),
    REGISTERS(Fused, float),
    {"Fused", Lane::f32, 16, run<Fused, twice<widest<float>>>},
#endif
    SINGLE(ThirdInDouble, s32),
    SINGLE(Bits, float),
    SINGLE(Bits, double),
    ONE(Truncate, float),
    ONE(RoundToInt, float),
    SINGLE(ThereAndBack, float),
    SINGLE(RoundedToSingle, float),
    SINGLE(ExactProduct, float),
    SINGLE(WidenNarrow, u8),
    SINGLE(WidenNarrow, u16),
    SINGLE(WidenNarrow, s16),
    SINGLE(NarrowSaturates, u8),
    SINGLE(NarrowSaturates, u16),
    SINGLE(NarrowSaturates, s16),
    SINGLE(InterleavedFirst, u8),
    SINGLE(InterleavedFirst, u16),
    SINGLE(InterleavedSecond, u8),
    SINGLE(InterleavedSecond, u16),
    SINGLE(Average, u8),
    SINGLE(Average, u16),
    SINGLE(Magnitude, s16),
    SINGLE(Halved, u16),
    SINGLE(Raised, u16),
    SINGLE(Upper, u16),
    SINGLE(Upper, u32),
    SINGLE(Upper, u64),
    SINGLE(AddWide, u64),
    SINGLE(SumOfBytes, u8),
    SINGLE(SumOfProducts, s16),
    SINGLE(ProductNarrowed, s32),
    SINGLE(ProductScaledDown, s32),
    SINGLE(InRegister, u8),
    PARTS(half<float>),
    PARTS(widest<float>),
    SINGLE(Unlike, float),
    SINGLE(Unlike, double),
    SINGLE(SignsOfLanes, s32),
    SINGLE(NoneSet, u8),
    SINGLE(NoneSet, u32),
    BESIDE(NoneSet, u32),
    SINGLE(MultiplyHighBy, u32),
    SINGLE(ProductWrapped, s32),
    SINGLE(ProductsFit, s32),
    SINGLE(Compounded, float),
    SINGLE(Compounded, double),
    SINGLE(Quotient, float),
#if ORV_HAVE_VECTORS
    {"Transpose", Lane::f32, 16, run_transpose<half<float>>},
    REGISTERS(Alternate, s16),
    REGISTERS(Alternate, s32),
    REGISTERS(Pairs, u32),
    REGISTERS(Permuted, s32),
    REGISTERS(Permuted, float),
    REGISTERS(Reversed, u16),
    REGISTERS(Reversed, u32),
    REGISTERS(ExchangedParts, u8),
    REGISTERS(Blended, float),
    REGISTERS(EvenLanes, s32),
    REGISTERS(OddLanes, s32),
    REGISTERS(LowerHalves, u16),
    REGISTERS(UpperHalves, u16),
    REGISTERS(Joined, u8),
    REGISTERS(SpreadTriples, u8),
    REGISTERS(SpreadLaterTriples, u8),
    AT(half<float>, Rotated, float),
    REGISTERS(Ascending, float),
    REGISTERS(Ascending, double),
    AT(half<u32>, FourLanes, u32),
    REGISTERS(EqualBytes, u8),
    MEMORY(half<float>, PartLoaded, float),
    MEMORY(half<float>, PartStored, float),
    MEMORY(half<double>, PartLoaded, double),
    MEMORY(half<double>, PartStored, double),
    MEMORY(widest<float>, PartLoaded, float),
    MEMORY(widest<float>, PartStored, float),
    MEMORY(widest<double>, PartLoaded, double),
    MEMORY(widest<double>, PartStored, double),
    MEMORY(half<float>, Splat, float),
    MEMORY(half<double>, Splat, double),
    MEMORY(widest<float>, Splat, float),
    MEMORY(widest<double>, Splat, double),
    MEMORY(half<u16>, LowerLoaded, u16),
    MEMORY(half<u8>, First4, u8),
    MEMORY(half<u8>, First8, u8),
    MEMORY(half<u8>, First12, u8),
    MEMORY(half<u8>, First16, u8),
    MEMORY(half<double>, First8, double),
    MEMORY(half<u8>, Last4, u8),
    MEMORY(half<u8>, Last8, u8),
    MEMORY(half<double>, Last8, double),
    MEMORY(half<u8>, Repeated, u8),
    MEMORY(widest<u8>, Repeated, u8),
    MEMORY(widest<float>, Repeated, float),
    MEMORY(half<u8>, PartsLoaded, u8),
    MEMORY(widest<u8>, PartsLoaded, u8),
    MEMORY(half<u8>, PartsStored, u8),
    MEMORY(widest<u8>, PartsStored, u8),
    THREE(half<u8>, InParts, u8),
    THREE(widest<u8>, InParts, u8),
    THREE(half<float>, Separated, float),
    THREE(half<float>, SideBySide, float),
    SQUARE(half<float>, float),
    SQUARE(half<double>, double),
    SQUARE(widest<float>, float),
    SQUARE(widest<double>, double),
    AT(half<u32>, UnsignedInDouble, u32),
#endif
#if ORV_HAVE_FLOAT256
    {"Transpose", Lane::f32, 32, run_transpose<vec<float, 8>>},
    AT(EightFloats, LowerParts, float),
    AT(FourDoubles, LowerParts, double),
    AT(EightFloats, UpperParts, float),
    AT(FourDoubles, UpperParts, double),
    AT(EightFloats, SumsOfParts, float),
    AT(FourDoubles, SumsOfParts, double),
    AT(FourDoubles, NeighbourSums, double),
    AT(EightFloats, Floor, float),
    AT(FourDoubles, PartsApart, double),
    AT(FourDoubles, InSingle, double),
    MEMORY(EightFloats, HalvesLoaded, float),
    MEMORY(FourDoubles, HalvesLoaded, double),
    MEMORY(EightFloats, HalvesStored, float),
#endif
#if ORV_HAVE_INT256
    AT(widest<float>, Rotated, float),
    AT(widest<s16>, MultiplyRounded, s16),
    AT(half<s16>, MultiplyRounded, s16),
    AT(widest<float>, PermutedBy, float),
    AT(widest<s32>, PermutedBy, s32),
    AT(widest<double>, HalvesPermutedBy, double),
    AT(widest<s32>, LargestLane, s32),
    AT(widest<float>, OneNan, float),
    AT(half<float>, OneNan, float),
    AT(widest<u16>, Narrowed, u16),
    AT(widest<u8>, WeightedBytes, u8),
    AT(widest<double>, WholePart, double),
    AT(widest<u64>, LowerProducts, u64),
    AT(widest<u64>, LowerDwords, u64),
    AT(widest<double>, InWords, double),
    AT(widest<double>, InSignedWords, double),
    THREE(widest<float>, Separated, float),
    THREE(widest<float>, SideBySide, float),
    STORED(widest<s32>, StoredInBytes, s32, u8),
    STORED(widest<s32>, StoredInWords, s32, u16),
    STORED(widest<double>, StoredInBytes, double, u8),
    STORED(widest<double>, StoredInWords, double, u16),
    STORED(widest<double>, StoredInFloats, double, float),
    STORED(twice<widest<double>>, StoredInWords, double, u16),
    STORED(twice<widest<double>>, StoredInFloats, double, float),
    {"LoadAsInt", Lane::u8, 1, run_load_as<widest<s32>, u8>},
    {"LoadAsInt", Lane::u16, 1, run_load_as<widest<s32>, u16>},
    {"LoadAsDouble", Lane::u8, 1, run_load_as<widest<double>, u8>},
    {"LoadAsDouble", Lane::u16, 1, run_load_as<widest<double>, u16>},
    {"LoadAsDouble", Lane::u8, 1, run_load_as<twice<widest<double>>, u8>},
    {"LoadAsDouble", Lane::u16, 1, run_load_as<twice<widest<double>>, u16>},
    {"LoadAsDouble", Lane::f32, 1, run_load_as<twice<widest<double>>, float>},
#endif
#if ORV_HAVE_VECTORS
    {"LoadAsDouble", Lane::f32, 1, run_load_as<half<double>, float>},
    {"LoadAsDouble", Lane::f32, 1, run_load_as<widest<double>, float>},
    {"LoadAsDouble", Lane::f32, 1, run_load_as<four_doubles, float>},
#endif
#if ORV_HAVE_VECTORS
    AT(floats_of<half<s32>>, Truncate, float),
    AT(floats_of<half<s32>>, RoundToInt, float),
    AT(floats_of<widest<s32>>, Truncate, float),
    AT(floats_of<widest<s32>>, RoundToInt, float),
    REGISTERS(Reversed, float),
    REGISTERS(ReversedPairs, float),
    REGISTERS(PackTwo, s32),
    REGISTERS(PackFour, s32),
    REGISTERS(PackMasks, s16),
    REGISTERS(PackFourMasks, s32),
    {"LoadAs", Lane::u8, 1, run_load_as<half<u16>, u8>},
    {"LoadAs", Lane::u8, 1, run_load_as<widest<u16>, u8>},
    {"LoadAsFloat", Lane::u8, 1, run_load_as<floats_of<half<s32>>, u8>},
    {"LoadAsFloat", Lane::u8, 1, run_load_as<floats_of<widest<s32>>, u8>},
    {"LoadAsFloat", Lane::u16, 1, run_load_as<floats_of<half<s32>>, u16>},
    {"LoadAsFloat", Lane::u16, 1, run_load_as<floats_of<widest<s32>>, u16>},
    {"Ends", Lane::u8, 16, run_ends<half<u8>, 8>},
    {"Ends", Lane::u8, 8, run_ends<half<u8>, 4>},
    {"Ends", Lane::u16, 8, run_ends<half<u16>, 8>},
    {"Ends", Lane::u16, 4, run_ends<half<u16>, 4>},
    {"Ends", Lane::f32, 4, run_ends<half<float>, 8>},
    {"Ends", Lane::f32, 2, run_ends<half<float>, 4>},
    {"Ends", Lane::f64, 2, run_ends<half<double>, 8>},
#endif
#if ORV_HAVE_BYTE_SHUFFLE
    REGISTERS(ShuffleBytes, u8),
#endif
};

}  // namespace

Entries entries() { return {all_entries, static_cast<int>(sizeof(all_entries) / sizeof(all_entries[0]))}; }

}  // namespace ORV_LEVEL
}  // namespace vocabulary
