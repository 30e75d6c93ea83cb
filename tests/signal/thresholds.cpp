// Thresholds of vectors against the order in the header: integers by value, floats by sign and magnitude.
#include "SignalProcessingWrapper.h"
#include "support/tests.h"

namespace test {
namespace {

using W = SignalProcessingWrapper;

template <class T>
struct Methods {
    bool (*below)(const T*, T*, int, T);
    bool (*below_in_place)(T*, int, T);
    bool (*above)(const T*, T*, int, T);
    bool (*above_in_place)(T*, int, T);
    bool (*below_value)(const T*, T*, int, T, T);
    bool (*below_value_in_place)(T*, int, T, T);
    bool (*above_value)(const T*, T*, int, T, T);
    bool (*above_value_in_place)(T*, int, T, T);
    bool (*both)(const T*, T*, int, T, T, T, T);
    bool (*both_in_place)(T*, int, T, T, T, T);
};

#define METHODS(type)                                                                                            \
    {                                                                                                            \
        W::Threshold_LT_##type, W::Threshold_LT_##type##_I, W::Threshold_GT_##type, W::Threshold_GT_##type##_I,  \
            W::Threshold_LTVal_##type, W::Threshold_LTVal_##type##_I, W::Threshold_GTVal_##type,                 \
            W::Threshold_GTVal_##type##_I, W::Threshold_LTValGTVal_##type, W::Threshold_LTValGTVal_##type##_I    \
    }
const Methods<u8> kBytes = METHODS(8u);
const Methods<u16> kWords = METHODS(16u);
const Methods<int> kInts = METHODS(32s);
const Methods<float> kFloats = METHODS(32f);
const Methods<double> kDoubles = METHODS(64f);
#undef METHODS

// Numbers and NaNs of one sign order by magnitude; the sign decides between the others.
template <class T>
bool is_above(T x, T t)
{
    if constexpr (std::is_floating_point<T>::value) {
        const auto a = bits_of(x), b = bits_of(t), sign = sign_bit<T>;
        if (((a ^ b) & sign) != 0) return (b & sign) != 0;
        return (a & sign) != 0 ? a < b : a > b;
    } else {
        return x > t;
    }
}

// Limits and values of a round. Not signalling: passing by value may change those.
template <class T>
struct Limits {
    T low, low_value, high, high_value;
};

template <class T>
using Vector = std::vector<T>;

// Everything that the ten methods give, each in a vector with something around it.
template <class T>
struct Outcome {
    static constexpr int kMargin = 70;
    Vector<T> memory;
    bool done;

    template <class Call>
    Outcome(const Vector<T>& before, Call call) : memory(before.size() + 2 * kMargin, T{77})
    {
        std::memcpy(memory.data() + kMargin, before.data(), before.size() * sizeof(T));
        done = call(memory.data() + kMargin);
    }
};

template <class T, class Expected>
void expect_outcome(const Outcome<T>& outcome, const Vector<T>& src, Expected expected, const char* what)
{
    ASSERT_TRUE(outcome.done) << what;
    Vector<T> want(src.size() + 2 * Outcome<T>::kMargin, T{77});
    for (std::size_t i = 0; i < src.size(); ++i) {
        // Through memory, not by value: a signalling NaN stays one.
        const T& x = src[i];
        const T* const result = expected(x);
        std::memcpy(&want[i + Outcome<T>::kMargin], result != nullptr ? result : &x, sizeof(T));
    }
    ASSERT_EQ(std::memcmp(want.data(), outcome.memory.data(), want.size() * sizeof(T)), 0) << what;
}

template <class T>
void expect_thresholds(const Methods<T>& m, const Vector<T>& src, const Limits<T>& l)
{
    const int n = static_cast<int>(src.size());
    const Vector<T> other(src.size(), T{5});
    const auto below = [&](const T& x) { return is_above(l.low, x) ? &l.low : nullptr; };
    const auto above = [&](const T& x) { return is_above(x, l.high) ? &l.high : nullptr; };
    const auto below_value = [&](const T& x) { return is_above(l.low, x) ? &l.low_value : nullptr; };
    const auto above_value = [&](const T& x) { return is_above(x, l.high) ? &l.high_value : nullptr; };
    const auto both = [&](const T& x) { return is_above(x, l.high) ? &l.high_value : below_value(x); };
    const auto run = [&](auto call, auto in_place, auto expected, const char* what) {
        expect_outcome<T>({other, [&](T* dst) { return call(src.data(), dst); }}, src, expected, what);
        expect_outcome<T>({src, in_place}, src, expected, what);
    };
    run([&](const T* s, T* d) { return m.below(s, d, n, l.low); },
        [&](T* d) { return m.below_in_place(d, n, l.low); }, below, "below");
    run([&](const T* s, T* d) { return m.above(s, d, n, l.high); },
        [&](T* d) { return m.above_in_place(d, n, l.high); }, above, "above");
    run([&](const T* s, T* d) { return m.below_value(s, d, n, l.low, l.low_value); },
        [&](T* d) { return m.below_value_in_place(d, n, l.low, l.low_value); }, below_value, "below, a value");
    run([&](const T* s, T* d) { return m.above_value(s, d, n, l.high, l.high_value); },
        [&](T* d) { return m.above_value_in_place(d, n, l.high, l.high_value); }, above_value, "above, a value");
    const auto two = [&](const T* s, T* d) { return m.both(s, d, n, l.low, l.low_value, l.high, l.high_value); };
    const auto two_in_place = [&](T* d) {
        return m.both_in_place(d, n, l.low, l.low_value, l.high, l.high_value);
    };
    if (!(l.low > l.high)) return run(two, two_in_place, both, "both");
    const Outcome<T> refused(other, [&](T* d) { return two(src.data(), d); }), kept(src, two_in_place);
    ASSERT_FALSE(refused.done || kept.done);
    ASSERT_EQ(std::memcmp(refused.memory.data() + refused.kMargin, other.data(), other.size() * sizeof(T)), 0);
    ASSERT_EQ(std::memcmp(kept.memory.data() + kept.kMargin, src.data(), src.size() * sizeof(T)), 0);
}

// Values that limits are about.
template <class T>
Vector<T> special_values()
{
    using L = std::numeric_limits<T>;
    Vector<T> all = {0, 1, 2, L::max(), L::lowest(), static_cast<T>(-1), static_cast<T>(L::max() / 2 + 1)};
    if constexpr (std::is_floating_point<T>::value) {
        for (const T x : {L::infinity(), L::quiet_NaN(), L::denorm_min(), from_bits<T>(~sign_bit<T>)}) all.push_back(x);
        for (const T x : Vector<T>(all)) all.push_back(-x);
        all.push_back(L::epsilon());
    }
    return all;
}

template <class T>
T quiet(T x)
{
    if constexpr (!std::is_floating_point<T>::value) return x;
    else return x == x ? x : std::copysign(std::numeric_limits<T>::quiet_NaN(), x);
}

template <class T>
void check(const Methods<T>& m)
{
    Generator g = make_generator("thresholds");
    const Vector<T> special = special_values<T>();
    const auto one_of = [&](const Vector<T>& v) {
        return quiet(v[static_cast<std::size_t>(uniform(g, 0, static_cast<int>(v.size()) - 1))]);
    };
    for (const T low : special) {
        for (const T high : special) {
            const Limits<T> limits = {low, one_of(special), high, one_of(special)};
            at_every_level([&] { expect_thresholds(m, special, limits); });
        }
    }
    for (int n = 1; n < 1000; n += n < 140 ? (options().brief ? 9 : 1) : 173) {
        for (int kind = 0; kind < 4; ++kind) {
            Vector<T> v;
            for (int i = 0; i < n; ++i) v.push_back(random_value<T>(g, static_cast<Fill>(kind)));
            const Limits<T> limits = {one_of(v), one_of(special), uniform(g, 0, 1) == 0 ? one_of(v) : one_of(special),
                                      one_of(v)};
            at_every_level([&] { expect_thresholds(m, v, limits); });
        }
    }
}

TEST(VectorThresholds, ByTheirOrder)
{
    check(kBytes);
    check(kWords);
    check(kInts);
    check(kFloats);
    check(kDoubles);
}

template <class T>
void check_refusals(const Methods<T>& m)
{
    const T src[2] = {1, 9}, high = 5, low = 3;
    T dst[2] = {7, 7};
    for (const int n : {0, -1, INT_MIN}) {
        EXPECT_FALSE(m.below(src, dst, n, high) || m.above_in_place(dst, n, low));
        EXPECT_FALSE(m.below_value(src, dst, n, high, low) || m.both_in_place(dst, n, low, low, high, high));
    }
    EXPECT_FALSE(m.below(nullptr, dst, 2, high) || m.above(src, nullptr, 2, low) || m.below_in_place(nullptr, 2, low));
    EXPECT_FALSE(m.above_value(nullptr, dst, 2, low, low) || m.both(src, nullptr, 2, low, low, high, high));
    EXPECT_FALSE(m.both(src, dst, 2, high, low, low, high));
    EXPECT_TRUE(dst[0] == 7 && dst[1] == 7);
}

TEST(VectorThresholds, RefuseAndWriteNothing)
{
    at_every_level([&] {
        check_refusals(kBytes);
        check_refusals(kWords);
        check_refusals(kInts);
        check_refusals(kFloats);
        check_refusals(kDoubles);
    });
}

}  // namespace
}  // namespace test
