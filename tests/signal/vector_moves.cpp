// Vectors filled and moved, against loops over bytes.
#include <cstddef>
#include <vector>

#include "SignalProcessingWrapper.h"
#include "gmock/gmock.h"
#include "support/guarded_block.h"
#include "support/random.h"

namespace test {
namespace {

using W = SignalProcessingWrapper;

using Content = std::vector<unsigned char>;

Content random_bytes(std::size_t n)
{
    std::mt19937 generator = make_generator("vector moves");
    Content bytes(n);
    for (unsigned char& byte : bytes) byte = static_cast<unsigned char>(uniform(generator, 0, 255));
    return bytes;
}

std::size_t place(std::ptrdiff_t i) { return static_cast<std::size_t>(i); }

template <class T>
T* at(Content& bytes, std::ptrdiff_t offset) { return reinterpret_cast<T*>(bytes.data() + offset); }

const std::vector<int> kLengths = {1, 2, 3, 7, 8, 15, 16, 31, 33, 63, 64, 65, 127, 500, 4099};

TEST(VectorMoves, CopiesAsIfThroughATemporary)
{
    for (const int len : kLengths) {
        const std::ptrdiff_t bytes = 2 * std::ptrdiff_t{len}, begin = 300;
        for (const std::ptrdiff_t distance : {-256, -128, -127, -14, -2, -1, 0, 1, 2, 14, 128, 129, 256}) {
            Content memory = random_bytes(static_cast<std::size_t>(bytes) + 600), expected = memory;
            const Content before = memory;
            for (std::ptrdiff_t i = 0; i < bytes; ++i) expected[place(begin + distance + i)] = before[place(begin + i)];
            EXPECT_TRUE(
                W::Copy_16u(at<unsigned short>(memory, begin), at<unsigned short>(memory, begin + distance), len));
            EXPECT_EQ(memory, expected) << len << " elements moved by " << distance << " bytes";
        }
    }
}

TEST(VectorMoves, ZeroesNothingBeside)
{
    for (const int len : kLengths) {
        for (const std::ptrdiff_t begin : {64, 65, 66}) {
            Content memory = random_bytes(2 * static_cast<std::size_t>(len) + 200), expected = memory;
            for (std::ptrdiff_t i = 0; i < 2 * std::ptrdiff_t{len}; ++i) expected[place(begin + i)] = 0;
            EXPECT_TRUE(W::Zero_16u(at<unsigned short>(memory, begin), len));
            EXPECT_EQ(memory, expected) << len;
        }
    }
}

TEST(VectorMoves, ReadNothingBeyond)
{
    for (const bool at_end : {false, true}) {
        const GuardedBlock source(2 * 77, at_end), destination(2 * 77, at_end);
        for (int i = 0; i < 77; ++i) source.as<unsigned short>()[i] = static_cast<unsigned short>(i * 331);
        EXPECT_TRUE(W::Copy_16u(source.as<unsigned short>(), destination.as<unsigned short>(), 77));
        EXPECT_EQ(destination.as<unsigned short>()[76], 76 * 331);
        EXPECT_TRUE(W::Zero_16u(destination.as<unsigned short>(), 77));
        EXPECT_EQ(destination.as<unsigned short>()[76], 0);
    }
}

TEST(VectorMoves, TrueForWhatTheyLeaveAlone)
{
    unsigned short src[4] = {1, 2, 3, 4}, dst[4] = {5, 6, 7, 8};
    for (const int len : {0, -1, -2147483647 - 1}) {
        EXPECT_TRUE(W::Copy_16u(src, dst, len));
        EXPECT_TRUE(W::Zero_16u(dst, len));
    }
    EXPECT_TRUE(W::Copy_16u(nullptr, dst, 4));
    EXPECT_TRUE(W::Copy_16u(src, nullptr, 4));
    EXPECT_TRUE(W::Zero_16u(nullptr, 4));
    EXPECT_THAT(dst, testing::ElementsAre(5, 6, 7, 8));
    EXPECT_THAT(src, testing::ElementsAre(1, 2, 3, 4));
}

}  // namespace
}  // namespace test
