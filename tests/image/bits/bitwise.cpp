// Bitwise operations and shifts against their definition: bit by bit, and by halving and doubling.
#include "support/image_tests.h"

namespace test {
namespace {

const int kWidths[] = {1, 2, 3, 5, 7, 8, 11, 15, 16, 17, 31, 32, 33, 64, 97, 300, 1300};

// --- Oracle ---------------------------------------------------------------------------------------

template <class T>
T by_bits(char op, T a, T b)
{
    unsigned long long result = 0;
    for (unsigned bit = 0; bit < 8 * sizeof(T); ++bit) {
        const int x = static_cast<int>(static_cast<unsigned long long>(a) >> bit & 1);
        const int y = static_cast<int>(static_cast<unsigned long long>(b) >> bit & 1);
        const bool set = op == '&' ? x + y == 2 : op == '|' ? x + y > 0 : op == '~' ? x == 0 : x != y;
        if (set) result |= 1ULL << bit;
    }
    return static_cast<T>(result);
}

template <class T>
T by_steps(char op, T a, unsigned count)
{
    long long value = a;
    for (unsigned i = 0; i < std::min(count, 64u); ++i) {
        if (op == '<') value = static_cast<T>(value * 2);
        else value = (value - (value % 2 != 0 && value < 0 ? 1 : 0)) / 2;
    }
    return static_cast<T>(value);
}

// --- Logic ----------------------------------------------------------------------------------------

template <class T, class Two, class InPlace, class WithConstant, class ConstantInPlace>
void check_logic(const char* name, char op, int channels, Two two, InPlace in_place, WithConstant with_constant,
                 ConstantInPlace constant_in_place)
{
    SCOPED_TRACE(std::string(name) + " C" + std::to_string(channels) + ", bytes " + std::to_string(sizeof(T)));
    std::mt19937 g = make_generator(name);
    for (const int width : kWidths) {
        const int n = width * channels, height = uniform(g, 1, 3);
        Image a = random_pixels<T>(n, height, g), b = random_pixels<T>(n, height, g),
              d = random_pixels<T>(n, height, g);
        const auto before = d.bytes();
        T values[4];
        for (T& v : values) v = random_value<T>(g, Fill::uniform);
        at_every_level([&] {
            ASSERT_TRUE(two(a.pixels<T>(), a.step(), b.pixels<T>(), b.step(), d.pixels<T>(), d.step(), width, height));
            expect_pixels<T>(d, before,
                             [&](int y, int i) { return by_bits(op, element<T>(a, y, i), element<T>(b, y, i)); });
            ASSERT_TRUE(in_place(a.pixels<T>(), a.step(), d.pixels<T>(), d.step(), width, height));
            expect_pixels<T>(d, before,
                             [&](int y, int i) { return by_bits(op, element<T>(a, y, i), element<T>(d, y, i)); });
            const auto with = [&](Image& left) {
                return [&, op](int y, int i) { return by_bits(op, element<T>(left, y, i), values[i % channels]); };
            };
            if constexpr (std::is_invocable<WithConstant, const T*, int, const T*, T*, int, int, int>::value) {
                ASSERT_TRUE(with_constant(a.pixels<T>(), a.step(), values, d.pixels<T>(), d.step(), width, height));
                expect_pixels<T>(d, before, with(a));
                ASSERT_TRUE(constant_in_place(values, d.pixels<T>(), d.step(), width, height));
            } else {
                ASSERT_TRUE(with_constant(a.pixels<T>(), a.step(), values[0], d.pixels<T>(), d.step(), width, height));
                expect_pixels<T>(d, before, with(a));
                ASSERT_TRUE(constant_in_place(d.pixels<T>(), d.step(), values[0], width, height))
                    << "value after the step";
            }
            expect_pixels<T>(d, before, with(d));
        });
    }
}

TEST(Bitwise, Logic)
{
#define LOGIC(op, name, T, c, type) \
    check_logic<T>(#name, op, c, W::name##_##type, W::name##_##type##I, W::name##C_##type, W::name##C_##type##I)
#define ALL(op, name)                   \
    LOGIC(op, name, u8, 1, 8u_C1);      \
    LOGIC(op, name, u8, 3, 8u_C3);      \
    LOGIC(op, name, u8, 4, 8u_C4);      \
    LOGIC(op, name, u16, 1, 16u_C1);    \
    LOGIC(op, name, int, 1, 32s_C1)
    ALL('&', And);
    ALL('|', Or);
    ALL('^', Xor);
#undef ALL
#undef LOGIC
}

TEST(Bitwise, Not)
{
    std::mt19937 g = make_generator("not");
    struct Row {
        int channels;
        bool (*method)(const u8*, int, u8*, int, int, int);
        bool (*in_place)(u8*, int, int, int);
    };
    for (const Row& row : {Row{1, W::Not_8u_C1, W::Not_8u_C1I}, Row{3, W::Not_8u_C3, W::Not_8u_C3I},
                           Row{4, W::Not_8u_C4, W::Not_8u_C4I}}) {
        for (const int width : kWidths) {
            Image a = random_pixels<u8>(width * row.channels, 2, g), d = random_pixels<u8>(width * row.channels, 2, g);
            const auto before = d.bytes();
            at_every_level([&] {
                ASSERT_TRUE(row.method(a.pixels<u8>(), a.step(), d.pixels<u8>(), d.step(), width, 2));
                expect_pixels<u8>(d, before, [&](int y, int i) { return by_bits<u8>('~', element<u8>(a, y, i), 0); });
                ASSERT_TRUE(row.in_place(d.pixels<u8>(), d.step(), width, 2));
                expect_pixels<u8>(d, before, [&](int y, int i) { return by_bits<u8>('~', element<u8>(d, y, i), 0); });
            });
        }
    }
}

// --- Shifts ---------------------------------------------------------------------------------------

std::vector<unsigned> counts()
{
    std::vector<unsigned> all = {40, 63, 64, 255, 256, 65536, 0x7FFFFFFF, 0x80000000u, 0x80000001u, UINT_MAX};
    for (unsigned c = 0; c <= 33; ++c) all.push_back(c);
    return all;
}

template <class T>
void check_shift(char op, bool (*method)(const T*, int, unsigned, T*, int, int, int),
                 bool (*in_place)(unsigned, T*, int, int, int))
{
    SCOPED_TRACE(std::string(1, op) + " bytes " + std::to_string(sizeof(T)));
    std::mt19937 g = make_generator("shift");
    for (const unsigned count : counts()) {
        for (const int width : {1, 3, 9, 16, 35, 256}) {
            Image a = random_pixels<T>(width, 2, g), d = random_pixels<T>(width, 2, g);
            const auto before = d.bytes();
            at_every_level([&] {
                ASSERT_TRUE(method(a.pixels<T>(), a.step(), count, d.pixels<T>(), d.step(), width, 2));
                expect_pixels<T>(d, before, [&](int y, int i) { return by_steps(op, element<T>(a, y, i), count); });
                ASSERT_TRUE(in_place(count, d.pixels<T>(), d.step(), width, 2)) << count;
                expect_pixels<T>(d, before, [&](int y, int i) { return by_steps(op, element<T>(d, y, i), count); });
            });
        }
    }
}

TEST(Bitwise, ShiftsOfOneChannel)
{
    check_shift<u8>('<', W::LShiftC_8u_C1R, W::LShiftC_8u_C1IR);
    check_shift<u16>('<', W::LShiftC_16u_C1R, W::LShiftC_16u_C1IR);
    check_shift<int>('<', W::LShiftC_32s_C1R, W::LShiftC_32s_C1IR);
    check_shift<u8>('>', W::RShiftC_8u_C1R, W::RShiftC_8u_C1IR);
    check_shift<u16>('>', W::RShiftC_16u_C1R, W::RShiftC_16u_C1IR);
    check_shift<s16>('>', W::RShiftC_16s_C1R, W::RShiftC_16s_C1IR);
    check_shift<int>('>', W::RShiftC_32s_C1R, W::RShiftC_32s_C1IR);
}

TEST(Bitwise, ShiftsOfChannels)
{
    struct Row {
        char op;
        int channels;
        bool (*method)(const u8*, int, const unsigned*, u8*, int, int, int);
        bool (*in_place)(const unsigned*, u8*, int, int, int);
    };
    std::mt19937 g = make_generator("channels");
    for (const Row& row :
         {Row{'<', 3, W::LShiftC_8u_C3R, W::LShiftC_8u_C3IR}, Row{'<', 4, W::LShiftC_8u_C4R, W::LShiftC_8u_C4IR},
          Row{'>', 3, W::RShiftC_8u_C3R, W::RShiftC_8u_C3IR}, Row{'>', 4, W::RShiftC_8u_C4R, W::RShiftC_8u_C4IR}}) {
        for (int round = 0; round < (options().brief ? 10 : 200); ++round) {
            unsigned count[4];
            for (unsigned& c : count)
                c = uniform(g, 0, 5) != 0 ? static_cast<unsigned>(uniform(g, 0, 8)) : static_cast<unsigned>(g());
            if (round % 5 == 0) count[1] = count[2] = count[3] = count[0];
            const int width = uniform(g, 0, 3) == 0 ? uniform(g, 1, 400) : uniform(g, 1, 40);
            Image a = random_pixels<u8>(width * row.channels, 2, g), d = random_pixels<u8>(width * row.channels, 2, g);
            const auto before = d.bytes();
            at_every_level([&] {
                const auto want = [&](Image& from) {
                    return [&](int y, int i) {
                        return by_steps(row.op, element<u8>(from, y, i), count[i % row.channels]);
                    };
                };
                ASSERT_TRUE(row.method(a.pixels<u8>(), a.step(), count, d.pixels<u8>(), d.step(), width, 2));
                expect_pixels<u8>(d, before, want(a));
                ASSERT_TRUE(row.in_place(count, d.pixels<u8>(), d.step(), width, 2));
                expect_pixels<u8>(d, before, want(d));
            });
        }
    }
}

// --- Refusals -------------------------------------------------------------------------------------

TEST(Bitwise, RefusalsWriteNothing)
{
    std::mt19937 g = make_generator("refusals");
    // Behind a fence: rows that a bad step leads to cannot even be read.
    Image source(8, 2, {true, true, 0, 0}, g), image(8, 2, {true, false, 0, 0}, g);
    const auto before = image.bytes();
    const u8* const s = source.pixels<u8>();
    u8* const d = image.pixels<u8>();
    const int step = image.step();
    const unsigned counts[4] = {1, 2, 3, 4};
    const u8 values[4] = {};
    at_every_level([&] {
        struct Arguments {
            bool source, destination;
            int srcStep, dstStep, width, height;
        };
        for (const Arguments& a :
             {Arguments{false, true, step, step, 2, 2}, Arguments{true, false, step, step, 2, 2},
              Arguments{true, true, 0, step, 2, 2}, Arguments{true, true, -step, step, 2, 2},
              Arguments{true, true, step, 0, 2, 2}, Arguments{true, true, step, -step, 2, 2},
              Arguments{true, true, step, INT_MIN, 2, 2}, Arguments{true, true, step, step, 0, 2},
              Arguments{true, true, step, step, 2, 0}, Arguments{true, true, step, step, INT_MIN, 2},
              Arguments{true, true, step, step, 2, -1}}) {
            const u8* const src = a.source ? s : nullptr;
            u8* const dst = a.destination ? d : nullptr;
            EXPECT_FALSE(W::And_8u_C1(src, a.srcStep, s, step, dst, a.dstStep, a.width, a.height));
            EXPECT_FALSE(W::Or_8u_C3(s, step, src, a.srcStep, dst, a.dstStep, a.width, a.height));
            EXPECT_FALSE(W::Xor_8u_C4I(src, a.srcStep, dst, a.dstStep, a.width, a.height));
            EXPECT_FALSE(W::AndC_8u_C1(src, a.srcStep, 1, dst, a.dstStep, a.width, a.height));
            EXPECT_FALSE(W::XorC_8u_C3(src, a.srcStep, values, dst, a.dstStep, a.width, a.height));
            EXPECT_FALSE(W::Not_8u_C1(src, a.srcStep, dst, a.dstStep, a.width, a.height));
            EXPECT_FALSE(W::LShiftC_8u_C1R(src, a.srcStep, 1, dst, a.dstStep, a.width, a.height));
            EXPECT_FALSE(W::RShiftC_8u_C3R(src, a.srcStep, counts, dst, a.dstStep, a.width, a.height));
            if (a.source && a.srcStep == step) {
                EXPECT_FALSE(W::OrC_8u_C1I(dst, a.dstStep, 1, a.width, a.height));
                EXPECT_FALSE(W::OrC_8u_C4I(values, dst, a.dstStep, a.width, a.height));
                EXPECT_FALSE(W::Not_8u_C3I(dst, a.dstStep, a.width, a.height));
                EXPECT_FALSE(W::RShiftC_8u_C1IR(1, dst, a.dstStep, a.width, a.height));
                EXPECT_FALSE(W::LShiftC_8u_C4IR(counts, dst, a.dstStep, a.width, a.height));
            }
        }
        EXPECT_FALSE(W::AndC_8u_C3(s, step, nullptr, d, step, 2, 2));
        EXPECT_FALSE(W::AndC_8u_C3I(nullptr, d, step, 2, 2));
        EXPECT_FALSE(W::LShiftC_8u_C4R(s, step, nullptr, d, step, 2, 2));
        EXPECT_FALSE(W::RShiftC_8u_C3IR(nullptr, d, step, 2, 2));
        {
            AllocationFailure no_memory(0);
            EXPECT_FALSE(W::Not_8u_C1I(d, step, 2, 2));
            EXPECT_FALSE(W::And_8u_C1I(s, step, d, step, 2, 2));
            EXPECT_FALSE(W::AndC_8u_C1I(d, step, 0, 2, 2));
            EXPECT_FALSE(W::LShiftC_8u_C1IR(1, d, step, 2, 2));
        }
        ASSERT_EQ(image.bytes(), before);
    });
}

}  // namespace
}  // namespace test
