// Comparison to masks: the relation of each pair, worked out from integers.
#include "support/image_tests.h"

namespace test {
namespace {

enum Op { less, less_eq, eq, greater_eq, greater };

// -1, 0, 1, or 2 where there is no order.
template <class T>
int order(T a, T b)
{
    if constexpr (std::is_integral<T>::value) {
        return int{a} == int{b} ? 0 : int{a} < int{b} ? -1 : 1;
    } else {
        // From the bits: magnitudes order like integers, and both zeros are one number.
        long long key[2];
        const T value[2] = {a, b};
        for (int i = 0; i < 2; ++i) {
            int bits;
            std::memcpy(&bits, &value[i], sizeof(bits));
            const long long magnitude = bits & 0x7FFFFFFF;
            if (magnitude > 0x7F800000) return 2;
            key[i] = bits < 0 ? -magnitude : magnitude;
        }
        return key[0] == key[1] ? 0 : key[0] < key[1] ? -1 : 1;
    }
}

template <class T>
bool holds(Op op, T a, T b)
{
    const int o = order(a, b);
    if (o == 2) return false;
    switch (op) {
        case less: return o == -1;
        case less_eq: return o != 1;
        case eq: return o == 0;
        case greater_eq: return o != -1;
        default: return o == 1;
    }
}

template <class T>
using TwoImages = bool (*)(const T*, int, const T*, int, u8*, int, int, int);

template <class T, class WithConstant>
void check(const char* name, Op op, int channels, TwoImages<T> two, WithConstant with_constant)
{
    SCOPED_TRACE(name);
    std::mt19937 g = make_generator(name);
    for (const int width : {1, 2, 4, 8, 15, 16, 17, 31, 32, 33, 47, 48, 64, 65, 100, 333}) {
        const int height = uniform(g, 1, 3), n = width * channels;
        Image a = random_pixels<T>(n, height, g), b = random_pixels<T>(n, height, g);
        T values[4];
        for (T& v : values) v = element<T>(a, 0, uniform(g, 0, n - 1));
        // Mostly pixels with channels that agree: else three of them hardly ever hold.
        for (int y = 0; y < height; ++y) {
            for (int i = 0; i < n; ++i) {
                if (uniform(g, 0, 3) == 0) continue;
                const T value = uniform(g, 0, 1) != 0 ? values[i % channels] : element<T>(a, y, i);
                std::memcpy(b.row(y) + static_cast<std::size_t>(i) * sizeof(T), &value, sizeof(T));
                if (uniform(g, 0, 1) == 0) continue;
                std::memcpy(a.row(y) + static_cast<std::size_t>(i) * sizeof(T), &values[i % channels], sizeof(T));
            }
        }
        Image mask = random_image(width, height, g);
        const auto before = mask.bytes();
        const auto want = [&](auto right) {
            return [&a, right, op, channels](int y, int x) {
                bool all = true;
                for (int c = 0; c < channels; ++c)
                    all = all && holds(op, element<T>(a, y, x * channels + c), right(y, x, c));
                return static_cast<u8>(all ? 255 : 0);
            };
        };
        at_every_level([&] {
            ASSERT_TRUE(
                two(a.pixels<T>(), a.step(), b.pixels<T>(), b.step(), mask.pixels<u8>(), mask.step(), width, height));
            expect_pixels<u8>(mask, before,
                              want([&](int y, int x, int c) { return element<T>(b, y, x * channels + c); }));
            if constexpr (std::is_invocable<WithConstant, const T*, int, const T*, u8*, int, int, int>::value) {
                ASSERT_TRUE(
                    with_constant(a.pixels<T>(), a.step(), values, mask.pixels<u8>(), mask.step(), width, height));
            } else {
                ASSERT_TRUE(
                    with_constant(a.pixels<T>(), a.step(), values[0], mask.pixels<u8>(), mask.step(), width, height));
            }
            expect_pixels<u8>(mask, before, want([&](int, int, int c) { return values[c]; }));
        });
    }
}

TEST(Comparison, EveryRelationAndType)
{
    for (int round = 0; round < (options().brief ? 1 : 6); ++round) {
#define RELATION(op, Op, T, channels, type) \
    check<T>("Compare" #Op "_" #type, op, channels, W::Compare##Op##_##type, W::CompareC##Op##_##type##R)
#define ALL(T, channels, type)                      \
    RELATION(less, Less, T, channels, type);        \
    RELATION(less_eq, LessEq, T, channels, type);   \
    RELATION(eq, Eq, T, channels, type);            \
    RELATION(greater_eq, GreaterEq, T, channels, type); \
    RELATION(greater, Greater, T, channels, type)
        ALL(u8, 1, 8u_C1);
        ALL(u8, 3, 8u_C3);
        ALL(u8, 4, 8u_C4);
        ALL(u16, 1, 16u_C1);
        ALL(s16, 1, 16s_C1);
        ALL(float, 1, 32f_C1);
        ALL(float, 3, 32f_C3);
#undef ALL
#undef RELATION
    }
}

TEST(Comparison, EveryPairOf8u)
{
    const TwoImages<u8> methods[] = {W::CompareLess_8u_C1, W::CompareLessEq_8u_C1, W::CompareEq_8u_C1,
                                     W::CompareGreaterEq_8u_C1, W::CompareGreater_8u_C1};
    std::vector<u8> a(65536), b(65536), mask(65536), want(65536);
    for (std::size_t i = 0; i < 65536; ++i) {
        a[i] = static_cast<u8>(i >> 8);
        b[i] = static_cast<u8>(i);
    }
    for (int op = 0; op < 5; ++op) {
        for (std::size_t i = 0; i < 65536; ++i) want[i] = holds(static_cast<Op>(op), a[i], b[i]) ? 255 : 0;
        at_every_level([&] {
            ASSERT_TRUE(methods[op](a.data(), 256, b.data(), 256, mask.data(), 256, 256, 256));
            ASSERT_EQ(mask, want) << "relation " << op;
            // The destination may be a source.
            std::vector<u8> twice = b;
            ASSERT_TRUE(methods[op](a.data(), 256, twice.data(), 256, twice.data(), 256, 256, 256));
            ASSERT_EQ(twice, want) << "in place, relation " << op;
        });
    }
}

// The SSE control register; assembler, because the tests are compiled for processors without one.
unsigned control_register()
{
    unsigned value;
    __asm__ volatile("stmxcsr %0" : "=m"(value));
    return value;
}
void set_control_register(unsigned value) { __asm__ volatile("ldmxcsr %0" : : "m"(value)); }

// Denormals are numbers, also where the host has them flushed.
TEST(Comparison, SpecialFloats)
{
    const float tenth = 0.1f, next = std::nextafter(0.1f, 1.0f), nan = std::nanf(""), tiny = 1e-45f;
    const bool has_control = orv::orv_variant_index >= orv::level_w7;
    struct Row {
        float a, b;
        u8 less, less_eq, eq, greater_eq, greater;
    };
    for (const Row& row : {Row{tenth, tenth, 0, 255, 255, 255, 0}, Row{tenth, next, 255, 255, 0, 0, 0},
                           Row{-0.0f, 0.0f, 0, 255, 255, 255, 0}, Row{tiny, 0, 0, 0, 0, 255, 255},
                           Row{nan, 1, 0, 0, 0, 0, 0}, Row{1, nan, 0, 0, 0, 0, 0}, Row{nan, nan, 0, 0, 0, 0, 0}}) {
        at_every_level([&] {
            const unsigned control = has_control ? control_register() : 0, flushing = control | 0x8040;
            if (has_control) set_control_register(flushing);
            u8 mask[5] = {1, 1, 1, 1, 1};
            const bool done = W::CompareLess_32f_C1(&row.a, 4, &row.b, 4, mask, 1, 1, 1) &&
                              W::CompareLessEq_32f_C1(&row.a, 4, &row.b, 4, mask + 1, 1, 1, 1) &&
                              W::CompareCEq_32f_C1R(&row.a, 4, row.b, mask + 2, 1, 1, 1) &&
                              W::CompareCGreaterEq_32f_C1R(&row.a, 4, row.b, mask + 3, 1, 1, 1) &&
                              W::CompareGreater_32f_C1(&row.a, 4, &row.b, 4, mask + 4, 1, 1, 1);
            const unsigned after = has_control ? control_register() : flushing;
            if (has_control) set_control_register(control);
            EXPECT_TRUE(done);
            EXPECT_EQ(after & ~0x3Fu, flushing & ~0x3Fu);
            EXPECT_THAT(mask, testing::ElementsAre(row.less, row.less_eq, row.eq, row.greater_eq, row.greater))
                << row.a << ", " << row.b;
        });
    }
}

TEST(Comparison, RefusalsWriteNothing)
{
    const std::vector<u8> before(64, 77), src(64, 5);
    std::vector<u8> mask = before;
    const u8* const s = src.data();
    u8* const m = mask.data();
    const float f[8] = {};
    at_every_level([&] {
        for (const TwoImages<u8> method :
             {W::CompareLess_8u_C1, W::CompareLessEq_8u_C3, W::CompareEq_8u_C4, W::CompareGreater_8u_C3}) {
            EXPECT_FALSE(method(nullptr, 8, s, 8, m, 8, 2, 2));
            EXPECT_FALSE(method(s, 8, nullptr, 8, m, 8, 2, 2));
            EXPECT_FALSE(method(s, 8, s, 8, nullptr, 8, 2, 2));
            for (const int bad : {0, -8, INT_MIN}) {
                EXPECT_FALSE(method(s, bad, s, 8, m, 8, 2, 2));
                EXPECT_FALSE(method(s, 8, s, bad, m, 8, 2, 2));
                EXPECT_FALSE(method(s, 8, s, 8, m, bad, 2, 2));
                EXPECT_FALSE(method(s, 8, s, 8, m, 8, bad, 2));
                EXPECT_FALSE(method(s, 8, s, 8, m, 8, 2, bad));
            }
        }
        EXPECT_FALSE(W::CompareCEq_8u_C3R(s, 8, nullptr, m, 8, 2, 2));
        EXPECT_FALSE(W::CompareCEq_8u_C4R(nullptr, 8, s, m, 8, 2, 2));
        EXPECT_FALSE(W::CompareCLess_8u_C1R(s, 0, 1, m, 8, 2, 2));
        EXPECT_FALSE(W::CompareCGreater_32f_C3R(f, 16, nullptr, m, 8, 1, 1));
        EXPECT_FALSE(W::CompareGreaterEq_32f_C1(f, 16, f, 16, m, 0, 2, 2));
        ASSERT_EQ(mask, before);
    });
}

}  // namespace
}  // namespace test
