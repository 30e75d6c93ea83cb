// Images that share memory: sources with destinations, rows of a destination with each other, arrays of
// constants with either. Rows are made from the top, each as if through a temporary, at every level.
#include <cstdint>
#include <cstring>
#include <functional>
#include <random>
#include <vector>

#include "ImageProcessingWrapper.h"
#include "gmock/gmock.h"
#include "support/emulators.h"
#include "support/allocations.h"
#include "support/levels.h"
#include "support/random.h"

namespace {

using namespace test;
using W = ImageProcessingWrapper;
using u8 = unsigned char;
using u16 = unsigned short;
using Bytes = std::vector<u8>;

// What any of the methods may take: two sources, constants, a destination.
struct Call {
    const u8* src1;
    int src1Step;
    const u8* src2;
    int src2Step;
    const u8* constants;
    u8* dst;
    int dstStep, width, height;
};

struct Method {
    const char* name;
    int src_bytes, dst_bytes;  // of a pixel
    std::function<bool(const Call&)> run;
};

template <class T> const T* from(const u8* p) { return reinterpret_cast<const T*>(p); }
template <class T> T* to(u8* p) { return reinterpret_cast<T*>(p); }
template <class T> T value(const u8* p)
{
    T v;
    std::memcpy(&v, p, sizeof(T));
    return v;
}

#define METHOD(name, From, To, channels, dst_channels, ...)                                                         \
    Method{#name, channels * int(sizeof(From)), dst_channels * int(sizeof(To)), [](const Call& c) {                 \
               [[maybe_unused]] const From* const src1 = from<From>(c.src1);                                        \
               [[maybe_unused]] const From* const src2 = from<From>(c.src2);                                        \
               [[maybe_unused]] const From* const values = from<From>(c.constants);                                 \
               To* const dst = to<To>(c.dst);                                                                       \
               return W::name(__VA_ARGS__);                                                                         \
           }}
#define IMAGE_TO(name, From, To, n) METHOD(name, From, To, n, n, src1, c.src1Step, dst, c.dstStep, c.width, c.height)
#define IMAGE(name, T, n) IMAGE_TO(name, T, T, n)
#define TWO_IMAGES(name, T, n) \
    METHOD(name, T, T, n, n, src1, c.src1Step, src2, c.src2Step, dst, c.dstStep, c.width, c.height)
#define TWO_SCALED(name, T, n) \
    METHOD(name, T, T, n, n, src1, c.src1Step, src2, c.src2Step, dst, c.dstStep, c.width, c.height, 1)
#define IN_PLACE_SCALED(name, T, n) METHOD(name, T, T, n, n, src1, c.src1Step, dst, c.dstStep, c.width, c.height, 1)
#define ONE_VALUE(name, T) \
    METHOD(name, T, T, 1, 1, src1, c.src1Step, value<T>(c.constants), dst, c.dstStep, c.width, c.height)
#define ONE_SCALED(name, T) \
    METHOD(name, T, T, 1, 1, src1, c.src1Step, value<T>(c.constants), dst, c.dstStep, c.width, c.height, 1)
#define VALUES(name, T, n) METHOD(name, T, T, n, n, src1, c.src1Step, values, dst, c.dstStep, c.width, c.height)
#define VALUES_SCALED(name, T, n) \
    METHOD(name, T, T, n, n, src1, c.src1Step, values, dst, c.dstStep, c.width, c.height, 1)
#define SET(name, T, n) METHOD(name, T, T, n, n, values, dst, c.dstStep, c.width, c.height)
#define COUNTS(name, n) \
    METHOD(name, u8, u8, n, n, src1, c.src1Step, from<unsigned>(c.constants), dst, c.dstStep, c.width, c.height)
#define MASK(name, T, n) \
    METHOD(name, T, u8, n, 1, src1, c.src1Step, src2, c.src2Step, dst, c.dstStep, c.width, c.height)
#define MASK_VALUE(name, T) \
    METHOD(name, T, u8, 1, 1, src1, c.src1Step, value<T>(c.constants), dst, c.dstStep, c.width, c.height)
#define MASK_VALUES(name, T, n) METHOD(name, T, u8, n, 1, src1, c.src1Step, values, dst, c.dstStep, c.width, c.height)

const Method kMethods[] = {
    IMAGE(Copy_8u_C1, u8, 1),
    IMAGE(Copy_8u_C3, u8, 3),
    IMAGE(Copy_16s_C1, short, 1),
    IMAGE(Copy_32f_C4, float, 4),
    IMAGE(Copy_32fc_C1, Complex32f, 1),
    IMAGE_TO(Convert_8u16u_C1, u8, u16, 1),
    IMAGE_TO(Convert_8u32f_C3, u8, float, 3),
    IMAGE_TO(Convert_16u32f_C1, u16, float, 1),
    IMAGE_TO(Convert_32f16u_C1, float, u16, 1),
    IMAGE_TO(Convert_32f8u_C3, float, u8, 3),
    SET(Set_8u_C3, u8, 3),
    SET(Set_8u_C4, u8, 4),
    SET(Set_32s_C3, int, 3),
    SET(Set_32s_C4, int, 4),
    SET(Set_32f_C3, float, 3),
    TWO_SCALED(Add_8u_C1, u8, 1),
    TWO_SCALED(Sub_16u_C1, u16, 1),
    TWO_SCALED(Mul_8u_C4, u8, 4),
    TWO_SCALED(Div_8u_C3, u8, 3),
    TWO_SCALED(Div_16u_C1, u16, 1),
    TWO_SCALED(Div_16s_C1, short, 1),
    IN_PLACE_SCALED(Sub_8u_C1I, u8, 1),
    IN_PLACE_SCALED(Mul_16s_C1I, short, 1),
    ONE_SCALED(AddC_8u_C1, u8),
    ONE_SCALED(MulC_16s_C1, short),
    VALUES_SCALED(SubC_8u_C3, u8, 3),
    VALUES_SCALED(MulC_8u_C4, u8, 4),
    VALUES_SCALED(DivC_8u_C3, u8, 3),
    TWO_IMAGES(Add_32f_C1, float, 1),
    TWO_IMAGES(Sub_32f_C3, float, 3),
    TWO_IMAGES(Div_32f_C1, float, 1),
    IMAGE(Mul_32f_C1I, float, 1),
    ONE_VALUE(AddC_32f_C1, float),
    VALUES(SubC_32f_C3, float, 3),
    VALUES(DivC_32f_C3, float, 3),
    IMAGE(Abs_32f_C3, float, 3),
    IMAGE(MaxEvery_32f_C1I, float, 1),
    IMAGE(Exp_32f_C1, float, 1),
    METHOD(AddProduct_16u32f_C1I, u16, float, 1, 1, src1, c.src1Step, src2, c.src2Step, dst, c.dstStep, c.width,
           c.height),
    TWO_IMAGES(Add_32fc_C1, Complex32f, 1),
    TWO_IMAGES(Mul_32fc_C1, Complex32f, 1),
    IMAGE(Div_32fc_C1I, Complex32f, 1),
    ONE_VALUE(MulC_32fc_C1, Complex32f),
    TWO_IMAGES(And_8u_C1, u8, 1),
    TWO_IMAGES(Xor_16u_C1, u16, 1),
    IMAGE(Or_8u_C3I, u8, 3),
    ONE_VALUE(OrC_32s_C1, int),
    VALUES(XorC_8u_C3, u8, 3),
    VALUES(AndC_8u_C4, u8, 4),
    IMAGE(Not_8u_C4, u8, 4),
    METHOD(RShiftC_16s_C1R, short, short, 1, 1, src1, c.src1Step, 3, dst, c.dstStep, c.width, c.height),
    COUNTS(LShiftC_8u_C3R, 3),
    COUNTS(RShiftC_8u_C4R, 4),
    MASK(CompareLess_8u_C1, u8, 1),
    MASK(CompareGreaterEq_8u_C3, u8, 3),
    MASK(CompareEq_16u_C1, u16, 1),
    MASK(CompareLess_32f_C3, float, 3),
    MASK_VALUE(CompareCGreater_16s_C1R, short),
    MASK_VALUES(CompareCLess_8u_C3R, u8, 3),
    MASK_VALUES(CompareCGreater_32f_C3R, float, 3),
    METHOD(ThresholdGreater_32f_C1R, float, float, 1, 1, src1, c.src1Step, dst, c.dstStep, c.width, c.height, 1.5f),
    METHOD(ThresholdLess_32f_C3R, float, float, 3, 3, src1, c.src1Step, dst, c.dstStep, c.width, c.height, values),
    METHOD(ThresholdLess_Val_8u_C1R, u8, u8, 1, 1, src1, c.src1Step, dst, c.dstStep, c.width, c.height, 100, 7),
    METHOD(Threshold_LTValGTVal_32f_C1R, float, float, 1, 1, src1, c.src1Step, dst, c.dstStep, c.width, c.height, -1, 2,
           1, 3),
    METHOD(Threshold_LTValGTVal_32f_C3R, float, float, 3, 3, src1, c.src1Step, dst, c.dstStep, c.width, c.height,
           values, values + 1, values, values + 2),
};

// Where things lie in the memory that they share.
struct Placement {
    int src1, src1Step, src2, src2Step, constants, dst, dstStep, width, height;
};

constexpr int kMiddle = 12000, kAll = 2 * kMiddle;

Call call_on(u8* memory, const Placement& p)
{
    return {memory + p.src1, p.src1Step, memory + p.src2, p.src2Step, memory + p.constants,
            memory + p.dst,  p.dstStep,  p.width,         p.height};
}

// A row is the method's result on a copy of everything, into memory of its own.
bool expected(const Method& method, const Placement& p, Bytes& memory)
{
    const Bytes before = memory;
    const std::size_t row_bytes = static_cast<std::size_t>(p.width * method.dst_bytes);
    bool good = true;
    for (int y = 0; y < p.height; ++y) {
        const Bytes now = memory;
        u8* const place = memory.data() + p.dst + y * p.dstStep;
        Bytes row(place, place + row_bytes);
        good &= method.run({now.data() + p.src1 + y * p.src1Step, p.src1Step, now.data() + p.src2 + y * p.src2Step,
                            p.src2Step, before.data() + p.constants, row.data(), p.dstStep, p.width, 1});
        std::memcpy(place, row.data(), row_bytes);
    }
    return good;
}

int pick(std::mt19937& g, std::initializer_list<int> values)
{
    return values.begin()[g() % values.size()];
}

// Rows packed, with gaps, or of different steps; first pixels less than two rows apart.
Placement random_placement(const Method& method, std::mt19937& g)
{
    Placement p = {};
    p.width = pick(g, {1, 2, 3, 5, 16, 17, 33, 70});
    p.height = 1 + static_cast<int>(g() % 5);
    const int src_row = p.width * method.src_bytes, dst_row = p.width * method.dst_bytes,
              row = std::max(src_row, dst_row);
    p.dstStep = dst_row + pick(g, {0, 0, 4, 7, 32});
    p.src1Step = pick(g, {src_row, src_row, p.dstStep, src_row + 8});
    p.src2Step = pick(g, {src_row, p.src1Step, p.dstStep, 2 * src_row});
    const auto near = [&](int place) {
        const int any = static_cast<int>(g() % static_cast<unsigned>(4 * row + 1)) - 2 * row;
        return place + pick(g, {0, row, -row, method.dst_bytes, -method.src_bytes, p.dstStep, -p.dstStep, any, any});
    };
    p.dst = kMiddle;
    p.src1 = near(p.dst);
    p.src2 = near(p.dst);
    p.constants = (p.dst + static_cast<int>(g() % static_cast<unsigned>(row + 8))) & ~3;
    return p;
}

// Bytes of small numbers too, so that comparisons and divisors of 0 occur.
Bytes random_memory(std::mt19937& g)
{
    Bytes memory(kAll);
    for (u8& b : memory) b = static_cast<u8>(g() % 4 == 0 ? g() % 3 : g());
    return memory;
}

void check(const Method& method, const Placement& p, const Bytes& memory)
{
    Bytes want = memory;
    const bool good = expected(method, p, want);
    at_every_level([&] {
        Bytes got = memory;
        EXPECT_EQ(method.run(call_on(got.data(), p)), good);
        ASSERT_TRUE(got == want) << method.name << " " << p.width << "x" << p.height << " src " << p.src1 - p.dst
                                 << " step " << p.src1Step << ", src2 " << p.src2 - p.dst << " step " << p.src2Step
                                 << ", dst step " << p.dstStep << ", constants " << p.constants - p.dst;
    });
}

TEST(Overlap, RowsFromTheTopEachThroughATemporary)
{
    if (!left_nan_wins()) GTEST_SKIP() << "this emulator chooses among NaNs differently from one level to the next";
    std::mt19937 g = make_generator("overlap");
    for (const Method& method : kMethods) {
        const Bytes memory = random_memory(g);
        for (int n = 0; n < 120; ++n) {
            check(method, random_placement(method, g), memory);
            ASSERT_FALSE(HasFatalFailure());
        }
    }
}

// Rows of the destination over each other, rows from the bottom up, all rows in one place.
TEST(Overlap, StepsOfAnyKind)
{
    std::mt19937 g = make_generator("overlap steps");
    const Bytes memory = random_memory(g);
    for (const char* name :
         {"Copy_8u_C1", "Copy_8u_C3", "Convert_8u16u_C1", "Add_8u_C1", "Sub_16u_C1", "AddC_8u_C1", "Add_32f_C1"}) {
        for (const Method& method : kMethods) {
            if (std::strcmp(method.name, name) != 0) continue;
            for (int n = 0; n < 150; ++n) {
                Placement p = random_placement(method, g);
                p.dstStep = pick(g, {0, 1, -1, -p.dstStep, p.dstStep / 2, p.dstStep});
                p.src1Step = pick(g, {0, p.src1Step, -p.src1Step, p.dstStep});
                check(method, p, memory);
                ASSERT_FALSE(HasFatalFailure());
            }
        }
    }
}

TEST(Overlap, ScrollingByOneRow)
{
    const Bytes before = {1, 2, 3, 4, 5, 6, 7, 8, 9};
    at_every_level([&] {
        Bytes up = before, down = before;
        EXPECT_TRUE(W::Copy_8u_C1(up.data() + 3, 3, up.data(), 3, 3, 2));
        EXPECT_THAT(up, testing::ElementsAre(4, 5, 6, 7, 8, 9, 7, 8, 9));
        EXPECT_TRUE(W::Copy_8u_C1(down.data(), 3, down.data() + 3, 3, 3, 2));
        EXPECT_THAT(down, testing::ElementsAre(1, 2, 3, 1, 2, 3, 1, 2, 3));
    });
}

// Only what shares bytes takes memory; without any, nothing is written.
TEST(Overlap, TakesMemoryForOneRow)
{
    Bytes image(64 * 8), halves(64 * 8);
    for (std::size_t i = 0; i < image.size(); ++i) image[i] = halves[i] = static_cast<u8>(i);
    const Bytes before = image;
    at_every_level([&] {
        const AllocationFailure none(0);
        EXPECT_TRUE(W::Copy_8u_C1(halves.data(), 64, halves.data() + 32, 64, 32, 8));
        EXPECT_TRUE(W::Copy_8u_C1(halves.data() + 64, 128, halves.data(), 128, 64, 4));
        EXPECT_TRUE(W::AddC_8u_C1(halves.data(), 64, 1, halves.data(), 64, 64, 8, 0));
        EXPECT_FALSE(W::Copy_8u_C1(image.data() + 1, 64, image.data(), 64, 32, 8));
        EXPECT_FALSE(W::Convert_8u16u_C1(image.data(), 64, reinterpret_cast<u16*>(image.data()), 64, 32, 8));
        ASSERT_EQ(image, before);
    });
}

TEST(Overlap, RefusalsAreTheSame)
{
    Bytes image(256, 1);
    const Bytes before = image;
    float* const floats = reinterpret_cast<float*>(image.data());
    const float zeros[3] = {0, 0, 0};
    at_every_level([&] {
        EXPECT_FALSE(W::Copy_8u_C1(image.data(), 16, image.data() + 1, 16, 0, 4));
        EXPECT_FALSE(W::Copy_8u_C1(image.data(), 16, image.data() + 1, 16, 8, -1));
        EXPECT_FALSE(W::And_8u_C1(image.data(), -16, image.data() + 1, 16, image.data() + 32, 16, 8, 2));
        EXPECT_FALSE(W::And_8u_C1(image.data(), 16, nullptr, 16, image.data() + 1, 16, 8, 2));
        EXPECT_FALSE(W::SubC_8u_C3(image.data(), 24, nullptr, image.data() + 1, 24, 8, 2, 0));
        EXPECT_FALSE(W::DivC_32f_C3(floats, 24, zeros, floats + 1, 24, 2, 2));
        EXPECT_FALSE(W::ThresholdEq_32f_C1R(floats, 24, floats + 1, 24, 2, 2, 1));
        ASSERT_EQ(image, before);
    });
}

// --- Constants ------------------------------------------------------------------------------------

TEST(Overlap, TheCornerPixelAsConstants)
{
    Bytes image(3 * 40 * 3);
    for (std::size_t i = 0; i < image.size(); ++i) image[i] = static_cast<u8>(50 + i % 100);
    Bytes want(image.size());
    for (std::size_t i = 0; i < image.size(); ++i) want[i] = static_cast<u8>(std::max(0, image[i] - image[i % 3]));
    at_every_level([&] {
        Bytes got = image;
        ASSERT_TRUE(W::SubC_8u_C3I(got.data(), got.data(), 120, 40, 3, 0));
        ASSERT_EQ(got, want);
    });
}

// The order of the channels, taken from the image that it changes: bytes 2 0 0 0, 1 0 0 0, 0 0 0 0.
TEST(Overlap, ChannelOrderInTheImage)
{
    const int order3[3] = {2, 1, 0}, order4[4] = {3, 2, 1, 0};
    for (const int width : {2, 4, 5, 21, 70}) {
        Bytes three(static_cast<std::size_t>(3 * width + 16)), four(static_cast<std::size_t>(4 * width + 16));
        for (std::size_t i = 0; i < three.size(); ++i) three[i] = static_cast<u8>(200 - i);
        for (std::size_t i = 0; i < four.size(); ++i) four[i] = static_cast<u8>(100 + i);
        std::memcpy(three.data(), order3, sizeof(order3));
        std::memcpy(four.data(), order4, sizeof(order4));
        Bytes want3 = three, want4 = four;
        const auto at = [](Bytes& pixels, int i) -> u8& { return pixels[static_cast<std::size_t>(i)]; };
        for (int i = 0; i < 3 * width; ++i) at(want3, i) = at(three, i - i % 3 + order3[i % 3]);
        for (int i = 0; i < 4 * width; ++i) at(want4, i) = at(four, i - i % 4 + order4[i % 4]);
        at_every_level([&] {
            Bytes got3 = three, got4 = four;
            ASSERT_TRUE(W::SwapChannels_8u_C3IR(got3.data(), 3 * width, width, 1, reinterpret_cast<int*>(got3.data())));
            ASSERT_EQ(got3, want3);
            ASSERT_TRUE(W::SwapChannels_8u_C4IR(got4.data(), 4 * width, width, 1, reinterpret_cast<int*>(got4.data())));
            ASSERT_EQ(got4, want4);
        });
    }
}

// --- Transposition --------------------------------------------------------------------------------

TEST(Overlap, Transposition)
{
    std::mt19937 g = make_generator("overlap transpose");
    const std::vector<int> memory = [&] {
        std::vector<int> words(kAll);
        for (int& w : words) w = static_cast<int>(g());
        return words;
    }();
    for (int n = 0; n < 300; ++n) {
        const int width = pick(g, {1, 2, 5, 8, 19, 70}), height = pick(g, {1, 3, 4, 9, 16, 67});
        const int src_step = 4 * pick(g, {width, width + 3, height}),
                  dst_step = 4 * pick(g, {height, height, height + 5, 1, height / 2, -height});
        const int src = kMiddle, dst = src + static_cast<int>(g() % 301) - 150 + (n % 3 == 0 ? 4000 : 0);
        // One buffer with one step, in which no rows overlap, is transposed as a whole.
        const bool in_place = dst == src && dst_step == src_step && src_step >= 4 * std::max(width, height);
        std::vector<int> want = memory;
        for (int x = 0; x < width; ++x) {
            const std::vector<int> now = in_place ? memory : want;
            for (int y = 0; y < height; ++y)
                want.data()[dst + x * dst_step / 4 + y] = now.data()[src + y * src_step / 4 + x];
        }
        at_every_level([&] {
            std::vector<int> got = memory;
            ASSERT_TRUE(W::Transpose_32f_C1R(reinterpret_cast<float*>(got.data() + src), src_step,
                                             reinterpret_cast<float*>(got.data() + dst), dst_step, width, height));
            ASSERT_TRUE(got == want) << width << "x" << height << " steps " << src_step << " " << dst_step << ", dst "
                                     << dst - src;
        });
    }
}

// --- Borders --------------------------------------------------------------------------------------

struct Border {
    int src, srcStep, srcWidth, srcHeight, dst, dstStep, dstWidth, dstHeight, top, left;
};

struct BorderMethod {
    const char* name;
    int pixel_bytes;
    bool constant;
    std::function<bool(u8* memory, const Border&, const u8* value)> run;
};

#define BORDER(name, T, bytes, constant, ...)                                                                 \
    BorderMethod{#name, bytes, constant, [](u8* m, const Border& b, [[maybe_unused]] const u8* v) {           \
                     return W::name(from<T>(m + b.src), b.srcStep, b.srcWidth, b.srcHeight, to<T>(m + b.dst), \
                                    b.dstStep, b.dstWidth, b.dstHeight, b.top, __VA_ARGS__);                  \
                 }}
const BorderMethod kBorders[] = {
    BORDER(CopyReplicateBorder_8u_C1, u8, 1, false, b.left),
    BORDER(CopyReplicateBorder_8u_C3, u8, 3, false, b.left),
    BORDER(CopyReplicateBorder_16u_C1, u16, 2, false, b.left),
    BORDER(CopyReplicateBorder_32f_C1, float, 4, false, b.left),
    BORDER(CopyReplicateBorder_32f_C3, float, 12, false, b.left),
    BORDER(CopyConstBorder_8u_C1, u8, 1, true, b.left, v[0]),
    BORDER(CopyConstBorder_8u_C3, u8, 3, true, b.left, v),
    BORDER(CopyConstBorder_8u_C4, u8, 4, true, b.left, v),
    BORDER(CopyConstBorder_32f_C3, float, 12, true, b.left, from<float>(v)),
};

// The rows of a bordered image in the order in which they are written: those around a constant from the top to
// the bottom, those of edges after the rows that they repeat.
Bytes bordered(const BorderMethod& method, const Border& b, Bytes memory, const Bytes& value)
{
    const int n = method.pixel_bytes, bottom = b.dstHeight - b.top - b.srcHeight;
    const Bytes source = memory;  // for one place of source and destination
    const auto put = [&](int y, const Bytes& row) {
        std::memcpy(memory.data() + b.dst + y * b.dstStep, row.data(), row.size());
    };
    const auto filled = [&] {
        Bytes row;
        for (int x = 0; x < b.dstWidth; ++x) row.insert(row.end(), value.begin(), value.begin() + n);
        return row;
    };
    const auto middle = [&](int y) {
        const Bytes& now = b.src == b.dst ? source : memory;
        Bytes row = filled();
        for (int x = 0; x < b.dstWidth; ++x) {
            const int column = x - b.left, nearest = std::min(std::max(column, 0), b.srcWidth - 1);
            if (method.constant && column != nearest) continue;
            std::memcpy(row.data() + x * n, now.data() + b.src + y * b.srcStep + nearest * n,
                        static_cast<std::size_t>(n));
        }
        return row;
    };
    const auto repeated = [&](int y) {
        const u8* const row = memory.data() + b.dst + y * b.dstStep;
        return Bytes(row, row + b.dstWidth * n);
    };
    if (method.constant) for (int y = 0; y < b.top; ++y) put(y, filled());
    for (int y = 0; y < b.srcHeight; ++y) put(b.top + y, middle(y));
    for (int y = 0; y < bottom; ++y)
        put(b.top + b.srcHeight + y, method.constant ? filled() : repeated(b.top + b.srcHeight - 1));
    if (!method.constant) for (int y = 0; y < b.top; ++y) put(y, repeated(b.top));
    return memory;
}

TEST(Overlap, Borders)
{
    std::mt19937 g = make_generator("overlap border");
    const Bytes memory = random_memory(g), value = {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12};
    for (const BorderMethod& method : kBorders) {
        for (int n = 0; n < 250; ++n) {
            Border b = {};
            b.srcWidth = pick(g, {1, 2, 5, 17, 40});
            b.srcHeight = 1 + static_cast<int>(g() % 4);
            b.top = static_cast<int>(g() % 4);
            b.left = static_cast<int>(g() % 5);
            b.dstWidth = b.left + b.srcWidth + static_cast<int>(g() % 4);
            b.dstHeight = b.top + b.srcHeight + static_cast<int>(g() % 4);
            const int row = b.dstWidth * method.pixel_bytes;
            b.dstStep = pick(g, {row, row + 12, 1, row / 2 + 1, method.pixel_bytes});
            b.srcStep = pick(g, {b.dstStep, b.srcWidth * method.pixel_bytes, row, 1});
            b.dst = kMiddle;
            const int any = static_cast<int>(g() % static_cast<unsigned>(4 * row + 1)) - 2 * row;
            b.src = b.dst + pick(g, {0, any, any, b.top * b.dstStep + b.left * method.pixel_bytes});
            const Bytes want = bordered(method, b, memory, value);
            at_every_level([&] {
                Bytes got = memory;
                EXPECT_TRUE(method.run(got.data(), b, value.data()));
                ASSERT_TRUE(got == want) << method.name << " " << b.srcWidth << "x" << b.srcHeight << " step "
                                         << b.srcStep << " to " << b.dstWidth << "x" << b.dstHeight << " step "
                                         << b.dstStep << " at " << b.top << ", " << b.left << ", src " << b.src - b.dst;
            });
            ASSERT_FALSE(HasFatalFailure());
        }
    }
}

// The copy of the source would have 2^63 bytes and more.
TEST(Overlap, BorderOfMoreThanAllMemory)
{
    Bytes buffer(65536, 3);
    const Bytes before = buffer;
    float* const floats = reinterpret_cast<float*>(buffer.data());
    at_every_level([&] {
        for (const int width : {2147483631, 1073741825}) {
            EXPECT_FALSE(W::CopyReplicateBorder_32f_C1I(floats, 4, width, 1136903107, width, 1136903107, 0, 0))
                << width;
        }
        ASSERT_EQ(buffer, before);
    });
}

}  // namespace
