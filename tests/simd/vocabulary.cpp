// Every operation of the vector vocabulary, at every width of every level, against its meaning on single numbers.
#include "vocabulary.h"

#include <cmath>
#include <functional>
#include <limits>
#include <map>
#include <type_traits>
#include <vector>

#include "core/features.h"
#include "gmock/gmock.h"
#include "support/emulators.h"
#include "support/exact.h"
#include "support/host_control.h"
#include "support/random.h"

namespace {

using namespace vocabulary;
using u8 = std::uint8_t;
using u16 = std::uint16_t;
using u32 = std::uint32_t;
using u64 = std::uint64_t;
using s16 = std::int16_t;
using s32 = std::int32_t;
using s64 = std::int64_t;

// --- Operands -------------------------------------------------------------------------------------

template <class T>
std::vector<T> special_values()
{
    using L = std::numeric_limits<T>;
    if constexpr (std::is_integral<T>::value) {
        std::vector<T> values;
        for (int bit = 0; bit < L::digits; ++bit) {
            for (int off = -1; off <= 1; ++off) values.push_back(static_cast<T>((u64{1} << bit) + static_cast<u64>(off)));
        }
        for (const T end : {L::min(), L::max()}) {
            values.push_back(end);
            values.push_back(static_cast<T>(end == L::max() ? end - T{1} : end + T{1}));
        }
        return values;
    } else {
        std::vector<T> values;
        for (const double v : {0.0, 0.5, 1.0, 1.5, 2.5, 3.0, 1.0 / 3, 254.5, 65535.5, 0x1p22 + 0.5, 0x1p23, 0x1p23 + 1, 0x1p24 - 1,
                               0x1p31 - 128, 0x1p31, 0x1p32, 0x1p51 + 0.5, 0x1p53, 1e30, 0x1p-126, 0x1p-140, 1e-30}) {
            values.push_back(static_cast<T>(v));
            values.push_back(static_cast<T>(-v));
        }
        for (const T v : {L::max(), L::min(), L::denorm_min(), L::infinity(), L::quiet_NaN()}) {
            values.push_back(v);
            values.push_back(-v);
        }
        return values;
    }
}

// A signalling NaN that passes through the x87 comes out quiet, in a test as well.
template <class T>
T quieted(T value)
{
    if constexpr (std::is_floating_point<T>::value) return std::isnan(value) ? std::numeric_limits<T>::quiet_NaN() : value;
    else return value;
}

template <class T>
struct Operands {
    std::vector<T> a, b, c;
    int count() const { return static_cast<int>(a.size()); }
};

// Every pair of special values with a third, and random ones; of bytes every pair.
template <class T>
const Operands<T>& operands()
{
    static const Operands<T> made = [] {
        Operands<T> o;
        std::mt19937 generator = test::make_generator("vocabulary");
        std::vector<T> values = special_values<T>();
        if (sizeof(T) == 1) {
            values.clear();
            for (int v = 0; v < 256; ++v) values.push_back(static_cast<T>(v));
        }
        const auto third = [&] { return values[generator() % values.size()]; };
        for (const T a : values) {
            for (const T b : values) {
                o.a.push_back(a);
                o.b.push_back(b);
                o.c.push_back(generator() % 4 == 0 ? a : third());
            }
        }
        for (int i = 0; i < 4096 || o.a.size() % 64 != 0; ++i) {
            for (std::vector<T>* v : {&o.a, &o.b, &o.c}) {
                v->push_back(quieted(test::random_value<T>(generator, i % 8 == 0 ? test::Fill::near_high : test::Fill::uniform)));
            }
        }
        return o;
    }();
    return made;
}

// --- Meanings -------------------------------------------------------------------------------------

// What a vector of `lanes` lanes gives: a, b and c point to its operands, the results go to r. Returns their number.
template <class T, class R> using Meaning = std::function<int(const T* a, const T* b, const T* c, R* r, int lanes)>;

// Where results need not be the same bit for bit: NaNs that arithmetic makes; and doubles near the end of the range
// that the x87 may round twice.
struct Match {
    bool any_nan, x87_rounds_twice;
};
constexpr Match exactly = {false, false}, any_nan = {true, false}, of_product = {true, true};

template <class T>
using BitsLike = std::conditional_t<sizeof(T) == 1, u8, std::conditional_t<sizeof(T) == 2, u16, std::conditional_t<sizeof(T) == 4, u32, u64>>>;
template <class T> BitsLike<T> raw(T value)
{
    BitsLike<T> bits;
    std::memcpy(&bits, &value, sizeof(T));
    return bits;
}
template <class T> T value_of(BitsLike<T> bits)
{
    T value;
    std::memcpy(&value, &bits, sizeof(T));
    return value;
}

template <class R>
bool matches(R expected, R result, Match match)
{
    if (raw(expected) == raw(result)) return true;
    if constexpr (std::is_floating_point<R>::value) {
        if (match.any_nan && std::isnan(expected) && std::isnan(result)) return true;
#if !defined(__SSE2__)
        if (match.x87_rounds_twice && !std::isnormal(expected)) return std::abs(expected - result) <= std::numeric_limits<R>::denorm_min();
#endif
    }
    return false;
}

struct Words {
    std::map<std::pair<std::string, Lane>, std::function<void(const Entry&)>> checks;

    template <class T, class R>
    void add(const char* name, Lane lane, Meaning<T, R> meaning, Match match = exactly)
    {
        checks[{name, lane}] = [=](const Entry& entry) {
            const Operands<T>& o = operands<T>();
            const int n = o.count();
            std::vector<R> got(static_cast<std::size_t>(4 * n)), expected(got.size());
            entry.run(o.a.data(), o.b.data(), o.c.data(), got.data(), n);
            int made = 0;
            for (int i = 0; i < n; i += entry.lanes) {
                const int first = made;
                made += meaning(&o.a.data()[i], &o.b.data()[i], &o.c.data()[i], &expected.data()[made], entry.lanes);
                for (int k = first; k < made; ++k) {
                    ASSERT_TRUE(matches(expected.data()[k], got.data()[k], match))
                        << name << " of " << entry.lanes << " lanes, of type " << static_cast<int>(lane) << ": expected "
                        << +expected.data()[k] << ", got " << +got.data()[k] << " in lane " << k - first << " from "
                        << testing::PrintToString(std::vector<T>(&o.a.data()[i], &o.a.data()[i] + entry.lanes)) << ", "
                        << testing::PrintToString(std::vector<T>(&o.b.data()[i], &o.b.data()[i] + entry.lanes)) << ", "
                        << testing::PrintToString(std::vector<T>(&o.c.data()[i], &o.c.data()[i] + entry.lanes));
                }
            }
        };
    }

    // Lane by lane.
    template <class T, class R = T, class Of>
    void each(const char* name, Lane lane, Of of, Match match = exactly)
    {
        add<T, R>(name, lane, [of](const T* a, const T* b, const T* c, R* r, int lanes) {
            for (int i = 0; i < lanes; ++i) r[i] = static_cast<R>(of(a[i], b[i], c[i]));
            return lanes;
        }, match);
    }

    // Lanes of a, b, c and d in this order, each as `of` has it.
    template <class T, class R, class Of>
    void packed(const char* name, Lane lane, int operands, Of of)
    {
        add<T, R>(name, lane, [=](const T* a, const T* b, const T* c, R* r, int lanes) {
            for (int i = 0; i < operands * lanes; ++i) r[i] = static_cast<R>(of(i / lanes, a[i % lanes], b[i % lanes], c[i % lanes]));
            return operands * lanes;
        });
    }
};

template <class T> s64 clamped(s64 v)
{
    const s64 low = std::numeric_limits<T>::min(), high = std::numeric_limits<T>::max();
    return v < low ? low : v > high ? high : v;
}
// 2^-bits of a product, rounded half to even, by way of floor.
s64 scaled_down(s64 v, int bits)
{
    const s64 unit = s64{1} << bits, whole = v >> bits, rest = v - whole * unit;
    return whole + (2 * rest > unit || (2 * rest == unit && whole % 2 != 0) ? 1 : 0);
}

template <class T>
void add_integers(Words& words, Lane lane)
{
    const auto wide = [](T v) { return static_cast<u64>(v); };
    words.each<T>("Add", lane, [=](T a, T b, T) { return wide(a) + wide(b); });
    words.each<T>("Subtract", lane, [=](T a, T b, T) { return wide(a) - wide(b); });
    words.each<T>("AddSaturate", lane, [](T a, T b, T) { return clamped<T>(s64{a} + s64{b}); });
    words.each<T>("SubtractSaturate", lane, [](T a, T b, T) { return clamped<T>(s64{a} - s64{b}); });
    words.each<T>("MultiplyLow", lane, [=](T a, T b, T) { return wide(a) * wide(b); });
    words.each<T>("MultiplyHigh", lane, [](T a, T b, T) { return s64{a} * s64{b} >> 8 * sizeof(T); });
    words.each<T>("ShiftLeft", lane, [=](T a, T, T) { return wide(a) * 32; });
    words.each<T>("ShiftRight", lane, [](T a, T, T) { return s64{a} >> 5; });
    words.each<T>("ShiftAllOut", lane, [](T a, T, T) { return s64{a} >> (8 * sizeof(T) - 1); });
    words.each<T>("ShiftedLeft", lane, [=](T a, T, T) { return wide(a) * 32; });
    words.each<T>("ShiftedRight", lane, [](T a, T, T) { return s64{a} >> 5; });
    words.each<T>("Not", lane, [](T a, T, T) { return ~a; });
    words.each<T>("OnesWhere", lane, [](T a, T b, T) { return a == b ? -1 : 0; });
    words.each<T>("WidenNarrow", lane, [](T a, T, T) { return a; });
    words.each<T>("NarrowSaturates", lane, [](T a, T, T) { return clamped<T>(s64{a} * (s64{1} << (8 * sizeof(T) - 1))); });
    words.each<T>("InterleavedFirst", lane, [](T a, T, T) { return a; });
    words.each<T>("InterleavedSecond", lane, [](T, T b, T) { return b; });
    words.each<T>("Average", lane, [](T a, T b, T) { return (s64{a} + s64{b} + 1) / 2; });
    words.each<T>("Magnitude", lane, [](T a, T, T) { return a < 0 ? -s64{a} : s64{a}; });
    words.each<T>("Halved", lane, [](T a, T, T) { return a / 2; });
    words.each<T>("Raised", lane, [=](T a, T, T) { return wide(a) << 8; });
    words.each<T>("Upper", lane, [](T a, T, T) { return a >> 4 * sizeof(T); });
    words.each<T>("InRegister", lane, [](T a, T, T) { return a; });
    if constexpr (std::is_same<T, s32>::value) {
        words.each<T>("SelectBySign", lane, [](T a, T b, T c) { return a < 0 ? b : c; });
        words.each<T>("ProductNarrowed", lane, [](T a, T b, T) { return clamped<T>(s64{a} * b); });
        words.each<T>("ProductScaledDown", lane, [](T a, T b, T) { return clamped<T>(scaled_down(s64{a} * b, 31)); });
        words.each<T, float>("ToFloat", lane, [](T a, T, T) { return static_cast<float>(a); });
        words.each<T>("ThirdInDouble", lane, [](T a, T, T) {
            volatile double third = static_cast<double>(a) * (1.0 / 3);
            return std::nearbyint(third);
        });
    }
}

template <class T>
void add_any(Words& words, Lane lane)
{
    using B = BitsLike<T>;
    const auto bits = [](B v) { return value_of<T>(v); };
    words.each<T>("And", lane, [=](T a, T b, T) { return bits(static_cast<B>(raw(a) & raw(b))); }, any_nan);
    words.each<T>("Or", lane, [=](T a, T b, T) { return bits(static_cast<B>(raw(a) | raw(b))); }, any_nan);
    words.each<T>("Xor", lane, [=](T a, T b, T) { return bits(static_cast<B>(raw(a) ^ raw(b))); }, any_nan);
    words.each<T>("AndNot", lane, [=](T a, T b, T) { return bits(static_cast<B>(~raw(a) & raw(b))); }, any_nan);
    words.each<T>("Smaller", lane, [](T a, T b, T) { return a < b ? a : b; });
    words.each<T>("Larger", lane, [](T a, T b, T) { return a > b ? a : b; });
    words.each<T>("Equal", lane, [](T a, T b, T c) { return a == b ? a : c; });
    words.each<T>("Greater", lane, [](T a, T b, T c) { return a > b ? a : c; });
    words.each<T>("GreaterEqual", lane, [](T a, T b, T c) { return a >= b ? a : c; });
    words.each<T>("BothHold", lane, [](T a, T b, T c) { return a == b && a == c ? a : c; });
    words.each<T>("OneHolds", lane, [](T a, T b, T c) { return a == b || a == c ? a : b; });
    words.each<T>("FirstFails", lane, [](T a, T b, T c) { return a != b && a == c ? a : b; });
    words.add<T, T>("Any", lane, [](const T* a, const T* b, const T*, T* r, int lanes) {
        bool any = false;
        for (int i = 0; i < lanes; ++i) any = any || a[i] == b[i];
        for (int i = 0; i < lanes; ++i) r[i] = any ? T{1} : T{0};
        return lanes;
    });
    words.add<T, T>("All", lane, [](const T* a, const T* b, const T*, T* r, int lanes) {
        bool all = true;
        for (int i = 0; i < lanes; ++i) all = all && a[i] == b[i];
        for (int i = 0; i < lanes; ++i) r[i] = all ? T{1} : T{0};
        return lanes;
    });
    // Two ends of a row, the same number of lanes each, overlap or touch; what lies behind the row stays.
    words.add<T, T>("Ends", lane, [](const T* a, const T*, const T*, T* r, int lanes) {
        const auto row = static_cast<int>(a - operands<T>().a.data()) / lanes;
        const int length = lanes / 2 + row % (lanes / 2 + 1);
        for (int i = 0; i < lanes; ++i) r[i] = i < length ? a[i] : T{0};
        return lanes;
    });
}

// Not inlined: the compiler would form the operation in F itself, which the x87 rounds twice.
template <class F>
__attribute__((noinline)) F rounded(test::Quad value)
{
    volatile F stored = static_cast<F>(value);
    return stored;
}
template <class F>
void add_floats(Words& words, Lane lane)
{
    using test::Quad;
    const auto quiet = [](F v) { return value_of<F>(static_cast<BitsLike<F>>(raw(v) | test::quiet_bit<F>)); };
    words.each<F>("Add", lane, [](F a, F b, F) { return rounded<F>(Quad{a} + b); }, any_nan);
    words.each<F>("Subtract", lane, [](F a, F b, F) { return rounded<F>(Quad{a} - b); }, any_nan);
    words.each<F>("Multiply", lane, [](F a, F b, F) { return rounded<F>(Quad{a} * b); }, of_product);
    words.each<F>("Divide", lane, [](F a, F b, F) { return rounded<F>(Quad{a} / b); }, of_product);
    words.each<F>("Magnitude", lane, [](F a, F, F) { return std::abs(a); }, any_nan);
    words.each<F>("Less", lane, [](F a, F b, F c) { return a < b ? a : c; });
    words.each<F>("LessEqual", lane, [](F a, F b, F c) { return a <= b ? a : c; });
    words.each<F>("NotEqual", lane, [](F a, F b, F c) { return a == b ? c : a; });
    words.add<F, F>("LanesOf", lane, [](const F* a, const F* b, const F*, F* r, int lanes) {
        unsigned bits = 0;
        for (int i = 0; i < lanes; ++i) bits |= (a[i] < b[i] ? 1u : 0u) << i;
        for (int i = 0; i < lanes; ++i) r[i] = static_cast<F>(bits);
        return lanes;
    });
    words.each<F>("MinusProduct", lane, [](F a, F b, F) { return rounded<F>(Quad{a} - b); }, any_nan);
    words.each<F>("WithNumbers", lane, [](F a, F, F) {
        const F x = rounded<F>(Quad{rounded<F>(Quad{a} / 2)} + 1);
        return rounded<F>(Quad{x > 2 ? x : F{2}} - a);
    }, of_product);
    words.each<F>("Fused", lane, [](F a, F b, F c) { return std::fma(a, b, c); }, any_nan);
    words.each<F>("FusedMinus", lane, [](F a, F b, F c) { return std::fma(-a, b, c); }, any_nan);
    words.each<F>("FusedLess", lane, [](F a, F b, F c) { return std::fma(a, b, -c); }, any_nan);
    // Of lane i: which of its own, its neighbour's and the other operand's lanes it gets; a lone lane's are zeros.
    const auto neighbours = [&](const char* name, auto of) {
        words.add<F, F>(name, lane, [of](const F* a, const F* b, const F* c, F* r, int lanes) {
            const F nothing[2] = {};
            for (int i = 0; i < lanes; i += 2) {
                const F pair[2] = {a[i], lanes > 1 ? a[i + 1] : F{0}};
                const F* const other = lanes > 1 ? b + i : nothing;
                for (int k = 0; k < 2 && i + k < lanes; ++k) r[i + k] = of(k, pair, other, c[i + k]);
            }
            return lanes;
        }, any_nan);
    };
    neighbours("EvenTwice", [](int, const F* a, const F*, F) { return a[0]; });
    neighbours("OddTwice", [](int, const F* a, const F*, F) { return a[1]; });
    neighbours("Exchanged", [](int k, const F* a, const F*, F) { return a[1 - k]; });
    neighbours("EvenOf", [](int k, const F* a, const F* b, F) { return k == 0 ? a[0] : b[0]; });
    neighbours("OddOf", [](int k, const F* a, const F* b, F) { return k == 0 ? a[1] : b[1]; });
    neighbours("SplatTwo", [](int k, const F* a, const F*, F) { return rounded<F>(Quad{a[k]} + k + 1); });
    neighbours("ProductMinusPlus", [](int k, const F* a, const F*, F c) { return rounded<F>(Quad{a[k]} + (k == 0 ? -Quad{c} : Quad{c})); });
    neighbours("ProductPlusMinus", [](int k, const F* a, const F*, F c) { return rounded<F>(Quad{a[k]} + (k == 0 ? Quad{c} : -Quad{c})); });
    words.each<F>("Unordered", lane, [](F a, F b, F c) { return std::isnan(a) || std::isnan(b) ? a : c; });
    words.each<F>("Root", lane, [](F a, F, F) {
        if (!(a > 0) || std::isinf(a)) return std::sqrt(a);
        return sizeof(F) == 4 ? rounded<F>(test::Quad{std::sqrt(static_cast<double>(a))}) : static_cast<F>(test::exact_root(static_cast<double>(a)));
    }, any_nan);
    // Emulators may take the other NaN.
    const Match ordered = {!test::left_nan_wins(), true};
    const auto first_nan = [=](F a, F b, Quad r) {
        if (std::isnan(a) || std::isnan(b)) return quiet(std::isnan(a) ? a : b);
        return r != r ? value_of<F>(test::negative_nan<F>) : rounded<F>(r);
    };
    words.each<F>("AddOrdered", lane, [=](F a, F b, F) { return first_nan(a, b, Quad{a} + b); }, ordered);
    words.each<F>("MultiplyOrdered", lane, [=](F a, F b, F) { return first_nan(a, b, Quad{a} * b); }, ordered);
}

s32 to_int(double v) { return v > -0x1p31 && v < 0x1p31 ? static_cast<s32>(v) : INT32_MIN; }

Words make_words()
{
    Words words;
    add_integers<u8>(words, Lane::u8);
    add_integers<u16>(words, Lane::u16);
    add_integers<s16>(words, Lane::s16);
    add_integers<u32>(words, Lane::u32);
    add_integers<s32>(words, Lane::s32);
    add_any<u8>(words, Lane::u8);
    add_any<u16>(words, Lane::u16);
    add_any<s16>(words, Lane::s16);
    add_any<u32>(words, Lane::u32);
    add_any<s32>(words, Lane::s32);
    add_any<float>(words, Lane::f32);
    add_any<double>(words, Lane::f64);
    add_floats<float>(words, Lane::f32);
    add_floats<double>(words, Lane::f64);

    words.each<u64>("Upper", Lane::u64, [](u64 a, u64, u64) { return a >> 32; });
    words.each<u64>("AddWide", Lane::u64, [](u64 a, u64 b, u64) { return a + b; });
    words.each<u64>("Add", Lane::u64, [](u64 a, u64 b, u64) { return a + b; });
    words.each<u64>("Subtract", Lane::u64, [](u64 a, u64 b, u64) { return a - b; });
    words.each<u64>("And", Lane::u64, [](u64 a, u64 b, u64) { return a & b; });
    words.each<u64>("Or", Lane::u64, [](u64 a, u64 b, u64) { return a | b; });
    words.each<u64>("Xor", Lane::u64, [](u64 a, u64 b, u64) { return a ^ b; });
    words.each<u64>("ShiftedLeft", Lane::u64, [](u64 a, u64, u64) { return a * 32; });
    words.each<u64>("ShiftedRight", Lane::u64, [](u64 a, u64, u64) { return a / 32; });
    words.each<u64, double>("FromBits", Lane::u64, [](u64 a, u64, u64) { return value_of<double>(a); }, any_nan);
    words.each<u32, float>("FromBits", Lane::u32, [](u32 a, u32, u32) { return value_of<float>(a); }, any_nan);
    words.each<u32, float>("ToFloatSigned", Lane::u32, [](u32 a, u32, u32) { return static_cast<float>(static_cast<s32>(a)); });
    words.each<u32>("ShiftedRightSigned", Lane::u32, [](u32 a, u32, u32) { return static_cast<s32>(a) >> 5; });
    words.each<float, u32>("Bits", Lane::f32, [](float a, float, float) { return raw(a); });
    words.each<double, u64>("Bits", Lane::f64, [](double a, double, double) { return raw(a); });
    words.each<float, s32>("Truncate", Lane::f32, [](float a, float, float) { return to_int(static_cast<double>(std::trunc(a))); });
    words.each<float, s32>("RoundToInt", Lane::f32, [](float a, float, float) { return to_int(static_cast<double>(std::nearbyint(a))); });
    words.each<float>("ThereAndBack", Lane::f32, [](float a, float, float) { return a; }, any_nan);
    words.each<float>("RoundedToSingle", Lane::f32, [](float a, float, float) { return rounded<float>(test::Quad{rounded<double>(test::Quad{a} * (1.0 / 3))}); }, any_nan);
    words.each<float>("ExactProduct", Lane::f32, [](float a, float b, float c) { return rounded<float>(test::Quad{rounded<double>(test::Quad{a} * b + c)}); }, any_nan);

    const auto parts = [&](const char* name, auto from) {
        words.add<float, float>(name, Lane::f32, [from](const float* a, const float*, const float*, float* r, int lanes) {
            for (int i = 0; i < lanes; ++i) r[i] = a[from(i, lanes)];
            return lanes;
        });
    };
    parts("Parts", [](int i, int n) { return i < n / 2 ? 2 * i : 2 * (i - n / 2) + 1; });
    parts("PartsMirrored", [](int i, int n) { return i < n / 2 ? n - 2 - 2 * i : 2 * n - 1 - 2 * i; });
    parts("PartsStored", [](int i, int) { return i; });
    parts("Reversed", [](int i, int n) { return n - 1 - i; });
    parts("ReversedPairs", [](int i, int n) { return n - 2 - i / 2 * 2 + i % 2; });
    // Squares of four, one in every 16 bytes of the four vectors.
    parts("Transpose", [](int i, int n) {
        const int width = n / 4, row = i / width, column = i % width;
        return column % 4 * width + column / 4 * 4 + row;
    });
    words.add<u8, u64>("SumOfBytes", Lane::u8, [](const u8* a, const u8*, const u8*, u64* r, int lanes) {
        for (int i = 0; i < lanes; ++i) r[i / 8] = (i % 8 == 0 ? 0 : r[i / 8]) + a[i];
        return (lanes + 7) / 8;
    });
    words.add<s16, s32>("SumOfProducts", Lane::s16, [](const s16* a, const s16* b, const s16*, s32* r, int lanes) {
        for (int i = 0; i < lanes; ++i) r[i / 2] = static_cast<s32>(static_cast<u32>(i % 2 == 0 ? 0 : r[i / 2]) + static_cast<u32>(a[i] * b[i]));
        return (lanes + 1) / 2;
    });
    words.each<u8, u16>("LoadAs", Lane::u8, [](u8 a, u8, u8) { return a; });
    words.each<u8, float>("LoadAsFloat", Lane::u8, [](u8 a, u8, u8) { return static_cast<float>(a); });
    words.each<u16, float>("LoadAsFloat", Lane::u16, [](u16 a, u16, u16) { return static_cast<float>(a); });
    words.packed<s32, u16>("PackTwo", Lane::s32, 2, [](int of, s32 a, s32 b, s32) { return (of == 0 ? a : b) & 65535; });
    words.packed<s32, u8>("PackFour", Lane::s32, 4, [](int of, s32 a, s32 b, s32 c) { return (of == 1 ? b : of == 2 ? c : a) & 255; });
    words.packed<s16, u8>("PackMasks", Lane::s16, 2, [](int of, s16 a, s16 b, s16 c) { return a == (of == 0 ? b : c) ? 255 : 0; });
    words.packed<s32, u8>("PackFourMasks", Lane::s32, 4, [](int of, s32 a, s32 b, s32 c) {
        return of == 3 || (of == 2 ? b == c : a == (of == 0 ? b : c)) ? 255 : 0;
    });
    words.add<u8, u8>("ShuffleBytes", Lane::u8, [](const u8* a, const u8* b, const u8*, u8* r, int lanes) {
        for (int i = 0; i < lanes; ++i) r[i] = b[i] > 127 ? u8{0} : a[i / 16 * 16 + b[i] % 16];
        return lanes;
    });
    return words;
}

// --- Levels ---------------------------------------------------------------------------------------

void expect_meanings(Entries entries)
{
    static const Words words = make_words();
    for (int i = 0; i < entries.count; ++i) {
        const Entry& entry = entries.first[i];
        const auto check = words.checks.find({entry.name, entry.lane});
        ASSERT_NE(check, words.checks.end()) << entry.name << " has no meaning for lane type " << static_cast<int>(entry.lane);
        check->second(entry);
    }
}

TEST(Vocabulary, MeansTheSameAtEveryLevel)
{
    const test::DoublePrecision precision;  // the meanings are computed here
    const struct { int level; Entries (*entries)(); } levels[] = {
        {orv::level_px, px::entries}, {orv::level_w7, w7::entries}, {orv::level_v8, v8::entries},
        {orv::level_p8, p8::entries}, {orv::level_g9, g9::entries}, {orv::level_h9, h9::entries}};
    for (const auto& level : levels) {
        if (level.level > orv::orv_variant_index) continue;
        SCOPED_TRACE("level " + std::to_string(level.level));
        expect_meanings(level.entries());
    }
}

}  // namespace
