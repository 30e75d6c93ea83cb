// Integer arithmetic against the definition: rational numbers, rounded by comparing remainders.
#include "support/image_tests.h"

namespace test {
namespace {

// --- Oracle ---------------------------------------------------------------------------------------

template <class T>
T clamp(long long v)
{
    return static_cast<T>(
        std::min<long long>(std::max<long long>(v, std::numeric_limits<T>::min()), std::numeric_limits<T>::max()));
}

// numerator / denominator to the nearest integer, ties to even; denominator > 0.
long long nearest_even(long long numerator, long long denominator)
{
    long long floor = numerator / denominator;
    if (floor * denominator > numerator) --floor;
    const long long twice_over = 2 * (numerator - floor * denominator);
    if (twice_over > denominator || (twice_over == denominator && floor % 2 != 0)) ++floor;
    return floor;
}

// Scale factors beyond +-36 act like +-36 on numbers below 2^33 over divisors below 2^17.
template <class T>
T scaled(long long numerator, long long denominator, int scaleFactor)
{
    if (denominator < 0) return scaled<T>(-numerator, -denominator, scaleFactor);
    for (int s = std::min(scaleFactor, 36); s > 0; --s) denominator *= 2;
    for (int s = std::max(scaleFactor, -36); s < 0; ++s) {
        numerator *= 2;
        // Far outside already: stop before the product overflows.
        if (std::llabs(numerator) > (1LL << 50)) break;
    }
    return clamp<T>(nearest_even(numerator, denominator));
}

enum Op { add, sub, mul, divide, divide_fixed };

// left Op right, as the header has it.
template <class T>
T expected(Op op, T left, T right, int scaleFactor)
{
    const long long l = left, r = right;
    switch (op) {
        case add: return scaled<T>(l + r, 1, scaleFactor);
        case sub: return scaled<T>(std::numeric_limits<T>::is_signed ? l - r : std::max(0LL, l - r), 1, scaleFactor);
        case mul: return scaled<T>(l * r, 1, scaleFactor);
        default: break;
    }
    if (r == 0) return l == 0 ? T{0} : l > 0 ? std::numeric_limits<T>::max() : std::numeric_limits<T>::min();
    if (op == divide) return scaled<T>(l, r, scaleFactor);
    // Fixed point with 16 fraction bits.
    if (scaleFactor > 16 || l == 0) return 0;
    if (scaleFactor < -31) return static_cast<T>(65535);
    unsigned long long q = static_cast<unsigned long long>(l) << 16;
    if (scaleFactor < 0) q = (q << -scaleFactor) / static_cast<unsigned long long>(r);
    else q /= static_cast<unsigned long long>(r) << scaleFactor;
    q += 32767 + ((q & 0x10000) != 0 ? 2 : 0);
    return static_cast<T>(std::min(q >> 16, 65535ULL));
}

// --- Every pair of 8-bit operands -----------------------------------------------------------------

template <class T>
using TwoImages = bool (*)(const T*, int, const T*, int, T*, int, int, int, int);
template <class T>
using InPlace = bool (*)(const T*, int, T*, int, int, int, int);
template <class T>
using OneConstant = bool (*)(const T*, int, T, T*, int, int, int, int);
template <class T>
using ConstantInPlace = bool (*)(T, T*, int, int, int, int);
template <class T>
using Constants = bool (*)(const T*, int, const T*, T*, int, int, int, int);
template <class T>
using ConstantsInPlace = bool (*)(const T*, T*, int, int, int, int);

std::vector<int> scale_factors()
{
    std::vector<int> all = {INT_MIN, -1000, -33, -32, -31, 31, 32, 33, 64, 1000, INT_MAX};
    for (int s = -18; s <= 19; ++s) all.push_back(s);
    return all;
}

TEST(IntegerArithmetic, EveryPairOf8u)
{
    struct Row {
        Op op;
        TwoImages<u8> two;
        InPlace<u8> in_place;
        OneConstant<u8> constant;
    };
    // AddC_8u_C1I is not here: it does not add.
    const Row rows[] = {{add, W::Add_8u_C1, W::Add_8u_C1I, W::AddC_8u_C1},
                        {sub, W::Sub_8u_C1, W::Sub_8u_C1I, W::SubC_8u_C1},
                        {mul, W::Mul_8u_C1, W::Mul_8u_C1I, W::MulC_8u_C1},
                        {divide, W::Div_8u_C1, W::Div_8u_C1I, W::DivC_8u_C1}};
    std::vector<u8> right(65536), left(65536), want(65536), got(65536);
    for (int i = 0; i < 65536; ++i) {
        right[static_cast<std::size_t>(i)] = static_cast<u8>(i >> 8);
        left[static_cast<std::size_t>(i)] = static_cast<u8>(i);
    }
    for (const Row& row : rows) {
        for (const int s : scale_factors()) {
            if (options().brief && s % 3 != 0) continue;
            for (std::size_t i = 0; i < 65536; ++i) want[i] = expected<u8>(row.op, left[i], right[i], s);
            const bool clean = row.op != divide;
            at_every_level([&] {
                ASSERT_EQ(row.two(right.data(), 256, left.data(), 256, got.data(), 256, 256, 256, s), clean)
                    << row.op << " " << s;
                ASSERT_EQ(got, want) << "operation " << row.op << " scale factor " << s;
                got = left;
                ASSERT_EQ(row.in_place(right.data(), 256, got.data(), 256, 256, 256, s), clean);
                ASSERT_EQ(got, want) << "in place, operation " << row.op << " scale factor " << s;
                for (int c = 0; c < 256; ++c) {
                    const std::size_t at = static_cast<std::size_t>(c) * 256;
                    ASSERT_EQ(row.constant(&left[at], 256, static_cast<u8>(c), &got[at], 256, 256, 1, s),
                              clean || c != 0);
                }
                ASSERT_EQ(got, want) << "constant, operation " << row.op << " scale factor " << s;
            });
        }
    }
}

// --- 16-bit operands: random ones, and those near where something changes --------------------------

template <class T>
std::vector<T> telling_values(std::mt19937& g, std::size_t n)
{
    using L = std::numeric_limits<T>;
    std::vector<T> v(n);
    for (T& x : v) {
        switch (uniform(g, 0, 4)) {
            case 0: x = static_cast<T>(L::min() + uniform(g, 0, 3)); break;
            case 1: x = static_cast<T>(L::max() - uniform(g, 0, 3)); break;
            case 2: x = static_cast<T>((1 << uniform(g, 0, 15)) + uniform(g, -1, 1)); break;
            case 3: x = static_cast<T>(uniform(g, -6, 6)); break;
            default: x = static_cast<T>(g());
        }
    }
    return v;
}

// Quotients at ties and right beside them, where the ways of rounding part.
template <class T>
void bring_near_ties(std::mt19937& g, std::vector<T>& left, const std::vector<T>& right, int scaleFactor)
{
    const long long unit = scaleFactor > 0 && scaleFactor < 18 ? 1LL << scaleFactor : 1;
    for (std::size_t i = 0; i < left.size(); i += 3) {
        left[i] = clamp<T>((2 * uniform(g, 0, 2) + 1) * unit * right[i] / 2 + uniform(g, -2, 2));
    }
}

template <class T>
void check_16_bit(const char* name, Op op, TwoImages<T> two, InPlace<T> in_place, OneConstant<T> constant,
                  ConstantInPlace<T> constant_in_place)
{
    SCOPED_TRACE(name);
    std::mt19937 g = make_generator(name);
    const int n = options().brief ? 500 : 20000;
    std::vector<T> want(static_cast<std::size_t>(n)), got(want);
    for (const int s : scale_factors()) {
        std::vector<T> left = telling_values<T>(g, want.size());
        const std::vector<T> right = telling_values<T>(g, want.size());
        if (op >= divide) bring_near_ties(g, left, right, s);
        const bool has_zero = std::find(right.begin(), right.end(), 0) != right.end();
        const bool clean = op < divide || !has_zero;
        for (std::size_t i = 0; i < want.size(); ++i) want[i] = expected<T>(op, left[i], right[i], s);
        // Constants divide exactly, in 16u as well.
        const Op constant_op = op == divide_fixed ? divide : op;
        const T values[] = {right[0], 0, 1, 3, static_cast<T>(65535), static_cast<T>(32768)};
        at_every_level([&] {
            const int bytes = n * static_cast<int>(sizeof(T));
            ASSERT_EQ(two(right.data(), bytes, left.data(), bytes, got.data(), bytes, n, 1, s), clean);
            for (std::size_t i = 0; i < want.size(); ++i)
                ASSERT_EQ(got[i], want[i]) << left[i] << ", " << right[i] << ", scale factor " << s;
            got = left;
            ASSERT_EQ(in_place(right.data(), bytes, got.data(), bytes, n, 1, s), clean);
            ASSERT_EQ(got, want);
            for (const T value : values) {
                const bool fine = op < divide || value != 0;
                ASSERT_EQ(constant(left.data(), bytes, value, got.data(), bytes, n, 1, s), fine);
                for (std::size_t i = 0; i < want.size(); ++i) {
                    ASSERT_EQ(got[i], expected<T>(constant_op, left[i], value, s))
                        << left[i] << ", constant " << value << ", scale factor " << s;
                }
                if (constant_in_place == nullptr) continue;
                std::vector<T> updated = left;
                ASSERT_EQ(constant_in_place(value, updated.data(), bytes, n, 1, s), fine);
                ASSERT_EQ(updated, got);
            }
        });
    }
}

TEST(IntegerArithmetic, SixteenBits)
{
    check_16_bit<u16>("Add_16u", add, W::Add_16u_C1, W::Add_16u_C1I, W::AddC_16u_C1, W::AddC_16u_C1I);
    check_16_bit<u16>("Sub_16u", sub, W::Sub_16u_C1, W::Sub_16u_C1I, W::SubC_16u_C1, W::SubC_16u_C1I);
    check_16_bit<u16>("Mul_16u", mul, W::Mul_16u_C1, W::Mul_16u_C1I, W::MulC_16u_C1, W::MulC_16u_C1I);
    check_16_bit<u16>("Div_16u", divide_fixed, W::Div_16u_C1, W::Div_16u_C1I, W::DivC_16u_C1, nullptr);
    check_16_bit<s16>("Add_16s", add, W::Add_16s_C1, W::Add_16s_C1I, W::AddC_16s_C1, W::AddC_16s_C1I);
    check_16_bit<s16>("Sub_16s", sub, W::Sub_16s_C1, W::Sub_16s_C1I, W::SubC_16s_C1, W::SubC_16s_C1I);
    check_16_bit<s16>("Mul_16s", mul, W::Mul_16s_C1, W::Mul_16s_C1I, W::MulC_16s_C1, W::MulC_16s_C1I);
    check_16_bit<s16>("Div_16s", divide, W::Div_16s_C1, W::Div_16s_C1I, W::DivC_16s_C1, W::DivC_16s_C1I);
}

// --- Channels -------------------------------------------------------------------------------------

TEST(IntegerArithmetic, ThreeAndFourChannels)
{
    struct Row {
        Op op;
        int channels;
        TwoImages<u8> two;
        InPlace<u8> in_place;
        Constants<u8> constants;
        ConstantsInPlace<u8> constants_in_place;
    };
#define ROW(op, name, c) {op, c, W::name##_8u_C##c, W::name##_8u_C##c##I, W::name##C_8u_C##c, W::name##C_8u_C##c##I}
    const Row rows[] = {ROW(add, Add, 3), ROW(add, Add, 4), ROW(sub, Sub, 3),    ROW(sub, Sub, 4),
                        ROW(mul, Mul, 3), ROW(mul, Mul, 4), ROW(divide, Div, 3), ROW(divide, Div, 4)};
#undef ROW
    std::mt19937 g = make_generator("channels");
    for (const Row& row : rows) {
        for (int width : {1, 2, 5, 11, 16, 33, 200, 6000}) {
            const int height = 3, step = width * row.channels + 5, s = uniform(g, -2, 3);
            std::vector<u8> left(static_cast<std::size_t>(step * height)), right(left);
            for (u8& x : left) x = static_cast<u8>(g());
            for (u8& x : right) x = static_cast<u8>(g() % 255 + 1);
            const u8 values[4] = {7, 200, 1, 13};
            std::vector<u8> want = left, want_constants = left;
            for (int y = 0; y < height; ++y) {
                for (int i = 0; i < width * row.channels; ++i) {
                    const auto at = static_cast<std::size_t>(y * step + i);
                    want[at] = expected<u8>(row.op, left[at], right[at], s);
                    want_constants[at] = expected<u8>(row.op, left[at], values[i % row.channels], s);
                }
            }
            at_every_level([&] {
                std::vector<u8> got = left;
                ASSERT_TRUE(row.two(right.data(), step, left.data(), step, got.data(), step, width, height, s));
                ASSERT_EQ(got, want);
                got = left;
                ASSERT_TRUE(row.in_place(right.data(), step, got.data(), step, width, height, s));
                ASSERT_EQ(got, want);
                got = left;
                ASSERT_TRUE(row.constants(left.data(), step, values, got.data(), step, width, height, s));
                ASSERT_EQ(got, want_constants) << width;
                got = left;
                ASSERT_TRUE(row.constants_in_place(values, got.data(), step, width, height, s));
                ASSERT_EQ(got, want_constants);
            });
        }
    }
}

// --- What the header promises besides -------------------------------------------------------------

TEST(IntegerArithmetic, BoundMethods)
{
    at_every_level([] {
        u8 pixels[3] = {1, 100, 200};
        EXPECT_TRUE(W::AddC_8u_C1I(2, pixels, 3, 3, 1, 0));
        EXPECT_THAT(pixels, testing::ElementsAre(2, 200, 255));
        u16 words[3] = {1, 100, 60000};
        EXPECT_TRUE(W::DivC_16u_C1I(3, words, 6, 3, 1, 0));
        EXPECT_THAT(words, testing::ElementsAre(0, 97, 59997));
        EXPECT_TRUE(W::DivC_16u_C1I(0, words, 6, 3, 1, 0)) << "subtracts, so 0 is no divisor";
    });
}

TEST(IntegerArithmetic, RefusalsWriteNothing)
{
    const std::vector<u8> before(64, 77);
    std::vector<u8> dst = before, src(64, 5);
    u8* const d = dst.data();
    const u8* const s = src.data();
    u8* const none = nullptr;
    at_every_level([&] {
        for (const auto two : {W::Add_8u_C1, W::Sub_8u_C1, W::Mul_8u_C1, W::Div_8u_C1, W::Add_8u_C3, W::Div_8u_C4}) {
            EXPECT_FALSE(two(none, 8, s, 8, d, 8, 2, 2, 0));
            EXPECT_FALSE(two(s, 8, none, 8, d, 8, 2, 2, 0));
            EXPECT_FALSE(two(s, 8, s, 8, none, 8, 2, 2, 0));
            for (const int bad : {0, -1, INT_MIN}) {
                EXPECT_FALSE(two(s, 8, s, 8, d, 8, bad, 2, 0));
                EXPECT_FALSE(two(s, 8, s, 8, d, 8, 2, bad, 0));
            }
        }
        // Steps: refused by these divisions, taken as they are by the rest.
        for (const auto division : {W::Div_8u_C1, W::Div_8u_C3, W::Div_8u_C4}) {
            EXPECT_FALSE(division(s, 0, s, 8, d, 8, 2, 2, 0));
            EXPECT_FALSE(division(s, 8, s, -1, d, 8, 2, 2, 0));
            EXPECT_FALSE(division(s, 8, s, 8, d, 0, 2, 2, 0));
        }
        EXPECT_FALSE(W::AddC_8u_C3(s, 8, nullptr, d, 8, 2, 2, 0));
        EXPECT_FALSE(W::AddC_8u_C3I(nullptr, d, 8, 2, 2, 0));
        EXPECT_FALSE(W::Add_8u_C1I(nullptr, 8, d, 8, 2, 2, 0));
        EXPECT_FALSE(W::Add_8u_C1I(s, 8, none, 8, 2, 2, 0));
        // A temporary of the image's size would not fit 32 bits.
        EXPECT_FALSE(W::Add_8u_C1I(s, 0, d, 0, 65600, 65536, 0));
        EXPECT_EQ(dst, before);
        u16 words[2] = {8, 9}, divisors[2] = {2, 3}, quotients[2];
        EXPECT_TRUE(W::Div_16u_C1(divisors, 0, words, -4, quotients, 0, 2, 1, 0)) << "16u does not check its steps";
    });
}

TEST(IntegerArithmetic, InPlaceWithoutMemory)
{
    std::vector<u8> image(300 * 50, 9);
    const std::vector<u8> before = image;
    {
        const AllocationFailure none_left(0);
        EXPECT_FALSE(W::Add_8u_C1I(image.data(), 300, image.data(), 300, 300, 50, 0));
        EXPECT_FALSE(W::MulC_8u_C1I(3, image.data(), 300, 300, 50, 0));
        EXPECT_EQ(image, before);
    }
    const AllocationFailure enough(-1);
    EXPECT_TRUE(W::MulC_8u_C1I(3, image.data(), 300, 300, 50, 0));
    EXPECT_THAT(image, testing::Each(27));
}

// Rows that overlap: every pixel comes from the image as it was before the call, as if the whole of it
// had been copied.
TEST(IntegerArithmetic, InPlaceOnOverlappingRows)
{
    at_every_level([] {
        std::vector<u8> row(20000, 3);
        EXPECT_TRUE(W::MulC_8u_C1I(2, row.data(), 0, 20000, 4, 0));
        EXPECT_THAT(row, testing::Each(6));
    });
}

// A host that rounds upwards or has other control bits set gets the same pixels, and keeps its bits.
TEST(IntegerArithmetic, HostsFloatControl)
{
    const u16 a[] = {1, 3, 7, 65535, 2, 9, 40000, 5}, b[] = {65535, 10, 50, 65535, 1, 27, 60000, 15};
    expect_control_kept<u16>(8, [&](u16* dst) { return W::Div_16u_C1(a, 16, b, 16, dst, 16, 8, 1, 1); });
}

}  // namespace
}  // namespace test
