// Every operation of the vector vocabulary, at every width of every level, against its meaning on single numbers.
#include "vocabulary.h"

#include <array>
#include <cmath>
#include <cstring>
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
            for (int off = -1; off <= 1; ++off)
                values.push_back(static_cast<T>((u64{1} << bit) + static_cast<u64>(off)));
        }
        for (const T end : {L::min(), L::max()}) {
            values.push_back(end);
            values.push_back(static_cast<T>(end == L::max() ? end - T{1} : end + T{1}));
        }
        return values;
    } else {
        std::vector<T> values;
        for (const double v :
             {0.0,          0.5,          1.0,    1.5,        2.5,        3.0,          1.0 / 3, 254.5,
              65535.5,      0x1p22 + 0.5, 0x1p23, 0x1p23 + 1, 0x1p24 - 1, 0x1p31 - 128, 0x1p31,  0x1p32,
              0x1p51 + 0.5, 0x1p53,       1e30,   0x1p-126,   0x1p-140,   1e-30}) {
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
    if constexpr (std::is_floating_point<T>::value)
        return std::isnan(value) ? std::numeric_limits<T>::quiet_NaN() : value;
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
                v->push_back(quieted(
                    test::random_value<T>(generator, i % 8 == 0 ? test::Fill::near_high : test::Fill::uniform)));
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
using BitsLike =
    std::conditional_t<sizeof(T) == 1, u8,
                       std::conditional_t<sizeof(T) == 2, u16, std::conditional_t<sizeof(T) == 4, u32, u64>>>;
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
        if (match.x87_rounds_twice && !std::isnormal(expected))
            return std::abs(expected - result) <= std::numeric_limits<R>::denorm_min();
#endif
    }
    return false;
}

// One rounding of a b + c. MinGW's own rounds the product of doubles: here the sum of 113 bits is rounded to odd, so
// that nothing of what it leaves out is lost to the second rounding (S. Boldo, G. Melquiond, Emulation of FMA, 2008).
template <class F>
F fused(F a, F b, F c)
{
#ifdef _WIN32
    using test::Quad;
    const Quad product = static_cast<Quad>(a) * b, term = c;
    Quad sum = product + term;
    const Quad part = sum - product, left_out = (product - (sum - part)) + (term - part);
    std::uint64_t bits[2];
    std::memcpy(bits, &sum, sizeof(bits));
    if (left_out == left_out && left_out != 0 && bits[0] % 2 == 0) {
        if ((left_out < 0) == (sum < 0)) ++bits[0];
        else if (bits[0]-- == 0) --bits[1];
        std::memcpy(&sum, bits, sizeof(bits));
    }
    return static_cast<F>(sum);
#else
    return std::fma(a, b, c);
#endif
}

struct Words {
    std::map<std::pair<std::string, Lane>, std::function<void(const Entry&)>> checks;

    template <class T, class R>
    void add(const char* name, Lane lane, Meaning<T, R> meaning, Match match = exactly)
    {
        checks[{name, lane}] = [=](const Entry& entry) {
            const Operands<T>& o = operands<T>();
            const int n = o.count() / entry.lanes * entry.lanes;
            std::vector<R> got(static_cast<std::size_t>(4 * n)), expected(got.size());
            entry.run(o.a.data(), o.b.data(), o.c.data(), got.data(), n);
            int made = 0;
            for (int i = 0; i < n; i += entry.lanes) {
                const int first = made;
                made += meaning(&o.a.data()[i], &o.b.data()[i], &o.c.data()[i], &expected.data()[made], entry.lanes);
                for (int k = first; k < made; ++k) {
                    ASSERT_TRUE(matches(expected.data()[k], got.data()[k], match))
                        << name << " of " << entry.lanes << " lanes, of type " << static_cast<int>(lane)
                        << ": expected " << +expected.data()[k] << ", got " << +got.data()[k] << " in lane "
                        << k - first << " from "
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
            for (int i = 0; i < operands * lanes; ++i)
                r[i] = static_cast<R>(of(i / lanes, a[i % lanes], b[i % lanes], c[i % lanes]));
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
    words.each<T>("NarrowSaturates", lane,
                  [](T a, T, T) { return clamped<T>(s64{a} * (s64{1} << (8 * sizeof(T) - 1))); });
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
    words.each<F>("Unlike", lane, [](F a, F b, F c) { return a != b ? a : c; });
    words.each<F>(
        "Compounded", lane, [](F a, F b, F c) { return rounded<F>(Quad{rounded<F>(Quad{a} + b)} - c); }, any_nan);
    words.each<F>("Quotient", lane, [](F a, F b, F) { return rounded<F>(Quad{a} / b); }, of_product);
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
    words.each<F>("Fused", lane, [](F a, F b, F c) { return fused(a, b, c); }, any_nan);
    words.each<F>("FusedMinus", lane, [](F a, F b, F c) { return fused(-a, b, c); }, any_nan);
    words.each<F>("FusedLess", lane, [](F a, F b, F c) { return fused(a, b, -c); }, any_nan);
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
    neighbours("ProductMinusPlus",
               [](int k, const F* a, const F*, F c) { return rounded<F>(Quad{a[k]} + (k == 0 ? -Quad{c} : Quad{c})); });
    neighbours("ProductPlusMinus",
               [](int k, const F* a, const F*, F c) { return rounded<F>(Quad{a[k]} + (k == 0 ? Quad{c} : -Quad{c})); });
    words.each<F>("Unordered", lane, [](F a, F b, F c) { return std::isnan(a) || std::isnan(b) ? a : c; });
    words.each<F>("Root", lane, [](F a, F, F) {
        if (!(a > 0) || std::isinf(a)) return std::sqrt(a);
        return sizeof(F) == 4 ? rounded<F>(test::Quad{std::sqrt(static_cast<double>(a))})
                              : static_cast<F>(test::exact_root(static_cast<double>(a)));
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

// Lanes in other places: from(i, lanes) is where in a, and behind it in b, the result's lane i stands, or negative for
// 0.
template <class T, class From>
void add_move(Words& words, const char* name, Lane lane, From from)
{
    words.add<T, T>(name, lane, [from](const T* a, const T* b, const T*, T* r, int lanes) {
        for (int i = 0; i < lanes; ++i) {
            const int at = from(i, lanes);
            r[i] = at < 0 ? T{0} : at < lanes ? a[at] : b[at - lanes];
        }
        return lanes;
    }, any_nan);
}
// Likewise among the lanes of each 16 bytes; b stands behind them.
template <class T, class From>
void add_move_in_parts(Words& words, const char* name, Lane lane, From from)
{
    constexpr int part = 16 / static_cast<int>(sizeof(T));
    add_move<T>(words, name, lane, [from](int i, int lanes) {
        const int at = from(i % part), first = i - i % part;
        return at < 0 ? at : at < part ? first + at : lanes + first + at - part;
    });
}

template <class T>
void add_moves_of(Words& words, Lane lane)
{
    constexpr int part = 16 / static_cast<int>(sizeof(T));
    add_move<T>(words, "Reversed", lane, [](int i, int n) { return n - 1 - i; });
    add_move<T>(words, "Alternate", lane, [](int i, int n) { return i % 2 == 0 ? i : n + i; });
    add_move<T>(words, "ExchangedParts", lane, [](int i, int n) { return (i + (n > part ? part : 0)) % n; });
    add_move<T>(words, "LowerParts", lane, [](int i, int n) { return i < n / 2 ? i : n + i - n / 2; });
    add_move<T>(words, "UpperParts", lane, [](int i, int n) { return i < n / 2 ? n / 2 + i : n + i; });
    add_move<T>(words, "PartsApart", lane, [](int i, int n) { return i < n / 2 ? n / 2 + i : n + i - n / 2; });
    add_move<T>(words, "HalvesLoaded", lane, [](int i, int n) { return (i + n / 2) % n; });
    add_move<T>(words, "HalvesStored", lane, [](int i, int n) { return (i + n / 2) % n; });
    add_move<T>(words, "Repeated", lane, [](int i, int) { return i % part; });
    add_move<T>(words, "Splat", lane, [](int, int) { return 1; });
    const auto bytes_from = [&](const char* name, int first, int count) {
        constexpr int size = static_cast<int>(sizeof(T));
        add_move<T>(words, name, lane, [=](int i, int) { return i < count / size ? i + first / size : -1; });
    };
    bytes_from("LowerLoaded", 0, 8);
    bytes_from("First4", 0, 4);
    bytes_from("First8", 0, 8);
    bytes_from("First12", 0, 12);
    bytes_from("First16", 0, 16);
    bytes_from("Last4", 12, 4);
    bytes_from("Last8", 8, 8);
    // The first 1, 2 ... lanes, all but one at most.
    for (const char* const name : {"PartLoaded", "PartStored"}) {
        words.add<T, T>(name, lane, [](const T* a, const T*, const T*, T* r, int lanes) {
            const auto vector = static_cast<int>(a - operands<T>().a.data()) / lanes;
            for (int i = 0; i < lanes; ++i) r[i] = i < 1 + vector % (lanes - 1) ? a[i] : T{0};
            return lanes;
        }, any_nan);
    }
    add_move_in_parts<T>(words, "Permuted", lane, [](int i) {
        return std::array{2, 0, 3, 1}[static_cast<std::size_t>(i % 4)];
    });
    add_move_in_parts<T>(words, "EvenLanes", lane, [](int i) { return 2 * i; });
    add_move_in_parts<T>(words, "OddLanes", lane, [](int i) { return 2 * i + 1; });
    add_move_in_parts<T>(words, "LowerHalves", lane, [](int i) { return i < part / 2 ? i : part / 2 + i; });
    add_move_in_parts<T>(words, "UpperHalves", lane, [](int i) { return i < part / 2 ? part / 2 + i : part + i; });
    words.add<T, T>("Square", lane, [](const T* a, const T*, const T*, T* r, int lanes) {
        const int side = lanes == 4 ? 2 : lanes == 16 ? 4 : 8;
        for (int i = 0; i < lanes; ++i) r[i] = a[i % side * side + i / side];
        return lanes;
    }, any_nan);
}

void add_moves(Words& words)
{
    add_moves_of<u8>(words, Lane::u8);
    add_moves_of<u16>(words, Lane::u16);
    add_moves_of<s16>(words, Lane::s16);
    add_moves_of<u32>(words, Lane::u32);
    add_moves_of<s32>(words, Lane::s32);
    add_moves_of<float>(words, Lane::f32);
    add_moves_of<double>(words, Lane::f64);
    const int order[] = {7, 3, 0, 0, 6, 1, 2, 5};
    const auto by_order = [order](int i, int) { return order[i]; };
    add_move<s32>(words, "PermutedBy", Lane::s32, by_order);
    add_move<float>(words, "PermutedBy", Lane::f32, by_order);
    add_move<float>(words, "Blended", Lane::f32, [](int i, int n) { return 0x5A >> i & 1 ? n + i : i; });
    add_move<float>(words, "Rotated", Lane::f32, [](int i, int n) { return (i + 3) % n; });
    add_move_in_parts<u8>(words, "Joined", Lane::u8, [](int i) { return i + 5; });
    add_move_in_parts<u8>(words, "SpreadTriples", Lane::u8, [](int i) { return i % 4 == 3 ? -1 : i / 4 * 3 + i % 4; });
    add_move_in_parts<u8>(words, "SpreadLaterTriples", Lane::u8,
                          [](int i) { return i % 4 == 3 ? -1 : 4 + i / 4 * 3 + i % 4; });
    add_move<u8>(words, "PartsLoaded", Lane::u8, [](int i, int) { return i < 16 ? i : i - 4; });
    add_move<u8>(words, "PartsStored", Lane::u8, [](int i, int) { return i; });
    // Three vectors: the result's lower parts are the first half of the row.
    add_move<u8>(words, "InParts", Lane::u8, [](int i, int n) {
        const int vector = i / (n / 3), at = i % (n / 3);
        return n == 48 ? i : at < 16 ? 16 * vector + at : n / 2 + 16 * vector + at - 16;
    });
    // Channel c of pixel p: the pixels of each channel are in an order of their own, those of all in the same place.
    words.add<float, float>(
        "Separated", Lane::f32,
        [](const float* a, const float*, const float*, float* r, int lanes) {
            const int n = lanes / 3;
            const auto place = [n](int vector, int lane) { return (n * vector + lane) % 3; };
            for (int c = 0; c < 3; ++c) {
                for (int i = 0; i < n; ++i) {
                    const int from = (i + c) % n;
                    for (int vector = 0; vector < 3; ++vector) {
                        if (place(vector, from) == c) r[c * n + i] = a[vector * n + from];
                    }
                }
            }
            return lanes;
        },
        any_nan);
    words.add<float, float>(
        "SideBySide", Lane::f32,
        [](const float* a, const float*, const float*, float* r, int lanes) {
            const int n = lanes / 3;
            for (int k = 0; k < lanes; ++k) {
                const int c = k % 3, from = k % n;  // the channel's lane before its vector was rotated
                r[k] = a[c * n + (from + n - c) % n];
            }
            return lanes;
        },
        any_nan);
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

    add_moves(words);
    const auto ascending = [&](auto sample, Lane lane) {
        using F = decltype(sample);
        words.add<F, F>("Ascending", lane, [](const F* a, const F*, const F*, F* r, int lanes) {
            for (int i = 0; i < lanes; ++i) r[i] = rounded<F>(test::Quad{a[i]} + i);
            return lanes;
        }, any_nan);
    };
    ascending(float{}, Lane::f32);
    ascending(double{}, Lane::f64);
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
    words.each<u32, float>("ToFloatSigned", Lane::u32,
                           [](u32 a, u32, u32) { return static_cast<float>(static_cast<s32>(a)); });
    words.each<u32>("ShiftedRightSigned", Lane::u32, [](u32 a, u32, u32) { return static_cast<s32>(a) >> 5; });
    words.each<float, u32>("Bits", Lane::f32, [](float a, float, float) { return raw(a); });
    words.each<double, u64>("Bits", Lane::f64, [](double a, double, double) { return raw(a); });
    words.each<float, s32>("Truncate", Lane::f32,
                           [](float a, float, float) { return to_int(static_cast<double>(std::trunc(a))); });
    words.each<float, s32>("RoundToInt", Lane::f32,
                           [](float a, float, float) { return to_int(static_cast<double>(std::nearbyint(a))); });
    words.each<float>("ThereAndBack", Lane::f32, [](float a, float, float) { return a; }, any_nan);
    words.each<float>(
        "RoundedToSingle", Lane::f32,
        [](float a, float, float) { return rounded<float>(test::Quad{rounded<double>(test::Quad{a} * (1.0 / 3))}); },
        any_nan);
    words.each<float>(
        "ExactProduct", Lane::f32,
        [](float a, float b, float c) { return rounded<float>(test::Quad{rounded<double>(test::Quad{a} * b + c)}); },
        any_nan);

    const auto parts = [&](const char* name, auto from) {
        words.add<float, float>(name, Lane::f32,
                                [from](const float* a, const float*, const float*, float* r, int lanes) {
                                    for (int i = 0; i < lanes; ++i) r[i] = a[from(i, lanes)];
                                    return lanes;
                                });
    };
    parts("Parts", [](int i, int n) { return i < n / 2 ? 2 * i : 2 * (i - n / 2) + 1; });
    parts("PartsMirrored", [](int i, int n) { return i < n / 2 ? n - 2 - 2 * i : 2 * n - 1 - 2 * i; });
    parts("PartsStored", [](int i, int) { return i; });
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
        for (int i = 0; i < lanes; ++i)
            r[i / 2] = static_cast<s32>(static_cast<u32>(i % 2 == 0 ? 0 : r[i / 2]) + static_cast<u32>(a[i] * b[i]));
        return (lanes + 1) / 2;
    });
    words.each<u8, u16>("LoadAs", Lane::u8, [](u8 a, u8, u8) { return a; });
    words.each<u8, float>("LoadAsFloat", Lane::u8, [](u8 a, u8, u8) { return static_cast<float>(a); });
    words.each<u16, float>("LoadAsFloat", Lane::u16, [](u16 a, u16, u16) { return static_cast<float>(a); });
    words.each<u16, s32>("LoadAsInt", Lane::u16, [](u16 a, u16, u16) { return a; });
    words.each<u8, s32>("LoadAsInt", Lane::u8, [](u8 a, u8, u8) { return a; });
    words.each<u16, double>("LoadAsDouble", Lane::u16, [](u16 a, u16, u16) { return a; });
    words.each<u8, double>("LoadAsDouble", Lane::u8, [](u8 a, u8, u8) { return a; });
    words.each<float, double>(
        "LoadAsDouble", Lane::f32, [](float a, float, float) { return static_cast<double>(a); }, any_nan);
    words.each<u32, float>("UnsignedInDouble", Lane::u32, [](u32 a, u32, u32) { return static_cast<float>(a); });
    words.each<s32, u8>("StoredInBytes", Lane::s32, [](s32 a, s32, s32) { return clamped<u8>(a); });
    words.each<s32, u16>("StoredInWords", Lane::s32, [](s32 a, s32, s32) { return clamped<u16>(a); });
    words.each<double, u8>("StoredInBytes", Lane::f64,
                           [](double a, double, double) { return clamped<u8>(to_int(std::nearbyint(a))); });
    words.each<double, u16>("StoredInWords", Lane::f64,
                            [](double a, double, double) { return clamped<u16>(to_int(std::nearbyint(a))); });
    const float nan = value_of<float>(0x7FC00000);
    words.each<double, float>("StoredInFloats", Lane::f64, [nan](double a, double, double) {
        return std::isnan(a) ? nan : rounded<float>(test::Quad{a});
    });
    words.each<float>("OneNan", Lane::f32, [nan](float a, float, float) { return std::isnan(a) ? nan : a; });
    words.add<u16, u8>("Narrowed", Lane::u16, [](const u16* a, const u16*, const u16*, u8* r, int lanes) {
        for (int i = 0; i < lanes; ++i) r[i] = static_cast<u8>(clamped<u8>(static_cast<s16>(a[i])));
        return lanes;
    });
    words.add<u8, s16>("WeightedBytes", Lane::u8, [](const u8* a, const u8* b, const u8*, s16* r, int lanes) {
        for (int i = 0; i < lanes; i += 2)
            r[i / 2] = static_cast<s16>(
                clamped<s16>(a[i] * static_cast<signed char>(b[i]) + a[i + 1] * static_cast<signed char>(b[i + 1])));
        return lanes / 2;
    });
    words.add<u8, u8>("EqualBytes", Lane::u8, [](const u8* a, const u8* b, const u8*, u8* r, int lanes) {
        int bits = 0;
        for (int i = 0; i < 8; ++i) bits |= (a[i] == b[i] ? 1 : 0) << i;
        for (int i = 0; i < lanes; ++i) r[i] = static_cast<u8>(bits);
        return lanes;
    });
    words.each<s16>("MultiplyRounded", Lane::s16, [](s16 a, s16 b, s16) { return (a * b + 16384) >> 15; });
    words.each<u32>("MultiplyHighBy", Lane::u32, [](u32 a, u32, u32) { return u64{a} * 3141592653u >> 32; });
    words.each<u64>("LowerProducts", Lane::u64,
                    [](u64 a, u64 b, u64) { return s64{static_cast<s32>(a)} * static_cast<s32>(b); });
    words.add<u64, s32>("LowerDwords", Lane::u64, [](const u64* a, const u64* b, const u64*, s32* r, int lanes) {
        for (int i = 0; i < 2 * lanes; ++i) r[i] = static_cast<s32>(i < lanes ? a[i] : b[i - lanes]);
        return 2 * lanes;
    });
    words.add<u32, u64>("Pairs", Lane::u32, [](const u32* a, const u32* b, const u32*, u64* r, int lanes) {
        // The lower halves of all parts, then the upper ones.
        for (int i = 0; i < lanes; ++i) {
            const int at = i % (lanes / 2) / 2 * 4 + i / (lanes / 2) * 2 + i % 2;
            r[i] = a[at] | u64{b[at]} << 32;
        }
        return lanes;
    });
    words.add<u32, u32>("FourLanes", Lane::u32, [](const u32* a, const u32* b, const u32* c, u32* r, int lanes) {
        const u32 all[] = {a[0], b[0], c[0], a[0]};
        for (int i = 0; i < lanes; ++i) r[i] = all[i];
        return lanes;
    });
    words.each<s32>("ProductWrapped", Lane::s32, [](s32 a, s32 b, s32) { return static_cast<s32>(s64{a} * b); });
    words.add<s32, s32>("ProductsFit", Lane::s32, [](const s32* a, const s32* b, const s32*, s32* r, int lanes) {
        bool fit = true;
        for (int i = 0; i < lanes; ++i) fit = fit && s64{a[i]} * b[i] == clamped<s32>(s64{a[i]} * b[i]);
        for (int i = 0; i < lanes; ++i) r[i] = fit ? 1 : 0;
        return lanes;
    });
    words.add<s32, s32>("SignsOfLanes", Lane::s32, [](const s32* a, const s32*, const s32*, s32* r, int lanes) {
        int bits = 0;
        for (int i = 0; i < lanes; ++i) bits |= (a[i] < 0 ? 1 : 0) << i;
        for (int i = 0; i < lanes; ++i) r[i] = bits;
        return lanes;
    });
    const auto none_set = [&](auto sample, Lane lane) {
        using T = decltype(sample);
        words.add<T, T>("NoneSet", lane, [](const T* a, const T* b, const T*, T* r, int lanes) {
            bool none = true;
            for (int i = 0; i < lanes; ++i) none = none && (a[i] & b[i] & 2) == 0;
            for (int i = 0; i < lanes; ++i) r[i] = none ? 1 : 0;
            return lanes;
        });
    };
    none_set(u8{}, Lane::u8);
    none_set(u32{}, Lane::u32);
    const auto largest = [&](auto sample, Lane lane) {
        using T = decltype(sample);
        words.add<T, T>("LargestLane", lane, [](const T* a, const T*, const T*, T* r, int lanes) {
            T most = a[0];
            for (int i = 1; i < lanes; ++i) most = a[i] > most ? a[i] : most;
            for (int i = 0; i < lanes; ++i) r[i] = most;
            return lanes;
        });
    };
    largest(s32{}, Lane::s32);
    const auto sums_of_parts = [&](auto sample, Lane lane) {
        using F = decltype(sample);
        words.add<F, F>("SumsOfParts", lane, [](const F* a, const F* b, const F*, F* r, int lanes) {
            for (int i = 0; i < lanes; ++i) {
                const F* const p = i < lanes / 2 ? a + i : b + i - lanes / 2;
                r[i] = rounded<F>(test::Quad{p[0]} + p[lanes / 2]);
            }
            return lanes;
        }, any_nan);
    };
    sums_of_parts(float{}, Lane::f32);
    sums_of_parts(double{}, Lane::f64);
    words.add<double, double>(
        "NeighbourSums", Lane::f64,
        [](const double* a, const double* b, const double*, double* r, int lanes) {
            for (int i = 0; i < lanes; ++i)
                r[i] = rounded<double>(i % 2 == 0 ? test::Quad{a[i]} + a[i + 1] : test::Quad{b[i - 1]} + b[i]);
            return lanes;
        },
        any_nan);
    words.add<double, double>(
        "HalvesPermutedBy", Lane::f64,
        [](const double* a, const double*, const double*, double* r, int lanes) {
            const int order[] = {7, 3, 0, 0, 6, 1, 2, 5};
            u32 halves[8], permuted[8];
            std::memcpy(halves, a, sizeof(halves));
            for (int i = 0; i < 8; ++i) permuted[i] = halves[order[i]];
            std::memcpy(r, permuted, sizeof(permuted));
            return lanes;
        },
        any_nan);
    words.each<double>(
        "InSingle", Lane::f64,
        [](double a, double, double) { return static_cast<double>(rounded<float>(test::Quad{a})); }, any_nan);
    words.each<float>("Floor", Lane::f32, [](float a, float, float) { return std::floor(a); }, any_nan);
    words.each<double>("WholePart", Lane::f64, [](double a, double, double) { return std::trunc(a); }, any_nan);
    words.each<double, u64>("InWords", Lane::f64, [](double a, double, double) {
        const double size = std::abs(a);
        return static_cast<u64>(std::nearbyint((size < 0x1p40 ? size : 3.0) * 16));
    });
    words.each<double, u64>("InSignedWords", Lane::f64, [](double a, double, double) {
        return static_cast<u64>(static_cast<s64>(std::trunc(std::abs(a) < 0x1p51 ? a : -3.0)));
    });
    words.packed<s32, u16>("PackTwo", Lane::s32, 2,
                           [](int of, s32 a, s32 b, s32) { return (of == 0 ? a : b) & 65535; });
    words.packed<s32, u8>("PackFour", Lane::s32, 4, [](int of, s32 a, s32 b, s32 c) {
        return (of == 1 ? b : of == 2 ? c : a) & 255;
    });
    words.packed<s16, u8>("PackMasks", Lane::s16, 2,
                          [](int of, s16 a, s16 b, s16 c) { return a == (of == 0 ? b : c) ? 255 : 0; });
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
        ASSERT_NE(check, words.checks.end())
            << entry.name << " has no meaning for lane type " << static_cast<int>(entry.lane);
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
