// Vectors filled and moved (families vector_fill and vector_moves), against loops over bytes.
#include "SignalProcessingWrapper.h"
#include "support/tests.h"

namespace test {
namespace {

using W = SignalProcessingWrapper;
using Content = std::vector<unsigned char>;

// The three methods of a type. Those of 16u that are always true say nothing when they refuse.
template <class T>
struct Methods {
    const char* type;
    bool (*set)(T value, T* dst, int len);
    bool (*zero)(T* dst, int len);
    bool (*copy)(const T* src, T* dst, int len);
    bool refused;
    using Element = T;
};

template <class Body>
void for_each_type(Body body)
{
    body(Methods<u8>{"8u", W::Set_8u, W::Zero_8u, W::Copy_8u, false});
    body(Methods<u16>{"16u", W::Set_16u, W::Zero_16u, W::Copy_16u, true});
    body(Methods<int>{"32s", W::Set_32s, W::Zero_32s, W::Copy_32s, false});
    body(Methods<float>{"32f", W::Set_32f, W::Zero_32f, W::Copy_32f, false});
    body(Methods<double>{"64f", W::Set_64f, W::Zero_64f, W::Copy_64f, false});
    body(Methods<Complex32f>{"32fc", W::Set_32fc, W::Zero_32fc, W::Copy_32fc, false});
}

Content random_bytes(std::ptrdiff_t n)
{
    std::mt19937 generator = make_generator("vector moves");
    Content bytes(static_cast<std::size_t>(n));
    for (unsigned char& byte : bytes) byte = static_cast<unsigned char>(uniform(generator, 0, 255));
    return bytes;
}

template <class T>
T* at(Content& bytes, std::ptrdiff_t offset) { return reinterpret_cast<T*>(bytes.data() + offset); }

const int kLengths[] = {1, 2, 3, 4, 5, 7, 8, 9, 15, 16, 17, 31, 32, 33, 63, 64, 65, 127, 500, 4099};
const int kDistances[] = {-128, -64, -63, -7, -1, 0, 1, 7, 64, 65, 128};

TEST(VectorMoves, CopiesAsIfThroughATemporary)
{
    for_each_type([](auto m) {
        using T = typename decltype(m)::Element;
        const std::ptrdiff_t size = sizeof(T), begin = 128 * size + 8;
        for (const int len : kLengths) {
            for (const int distance : kDistances) {
                Content memory = random_bytes((len + 2 * 140) * size), expected = memory;
                std::memmove(&expected[static_cast<std::size_t>(begin + distance * size)],
                             &memory[static_cast<std::size_t>(begin)], static_cast<std::size_t>(len * size));
                EXPECT_TRUE(m.copy(at<T>(memory, begin), at<T>(memory, begin + distance * size), len));
                EXPECT_EQ(memory, expected) << m.type << ": " << len << " elements moved by " << distance;
            }
        }
    });
}

// Random bytes give each byte its place.
const unsigned kSignalling = 0xFFA00001;  // a NaN that does not survive x87 registers
TEST(VectorMoves, SetsAndZeroesEveryBitAndNothingBeside)
{
    at_every_level([] {
        for_each_type([](auto m) {
            using T = typename decltype(m)::Element;
            constexpr int size = sizeof(T);
            for (const int len : kLengths) {
                for (int begin = 64; begin < 96; begin += 5) {
                    Content memory = random_bytes(len * size + 200), expected = memory;
                    T value;
                    std::memcpy(&value, memory.data(), size);
                    if constexpr (size == 4) std::memcpy(&value, &kSignalling, size);
                    for (int i = 0; i < len; ++i)
                        std::memcpy(&expected[static_cast<std::size_t>(begin + i * size)], &value, size);
                    EXPECT_TRUE(m.set(value, at<T>(memory, begin), len));
                    EXPECT_EQ(memory, expected) << m.type << ", " << len;
                    std::fill_n(&expected[static_cast<std::size_t>(begin)], len * size, u8{0});
                    EXPECT_TRUE(m.zero(at<T>(memory, begin), len));
                    EXPECT_EQ(memory, expected) << m.type << ", " << len;
                }
            }
        });
    });
}

TEST(VectorMoves, TouchNothingBeyond)
{
    for_each_type([](auto m) {
        using T = typename decltype(m)::Element;
        for (const int len : {1, 3, 77}) {
            for (const bool at_end : {false, true}) {
                const std::size_t bytes = static_cast<std::size_t>(len) * sizeof(T);
                const GuardedBlock source(bytes, at_end), destination(bytes, at_end);
                EXPECT_TRUE(m.set(T{}, source.as<T>(), len));
                EXPECT_TRUE(m.copy(source.as<T>(), destination.as<T>(), len));
                EXPECT_TRUE(m.zero(destination.as<T>(), len));
            }
        }
    });
}

TEST(VectorMoves, LeaveAloneWhatTheyRefuse)
{
    for_each_type([](auto m) {
        using T = typename decltype(m)::Element;
        const Content before = random_bytes(8 * sizeof(T));
        Content memory = before;
        T* const p = at<T>(memory, 0);
        for (const int len : {0, -1, INT_MIN}) {
            EXPECT_FALSE(m.set(T{}, p, len));
            EXPECT_EQ(m.zero(p, len), m.refused);
            EXPECT_EQ(m.copy(p, p + 4, len), m.refused);
        }
        EXPECT_FALSE(m.set(T{}, nullptr, 4));
        EXPECT_EQ(m.zero(nullptr, 4), m.refused);
        EXPECT_EQ(m.copy(nullptr, p, 4), m.refused);
        EXPECT_EQ(m.copy(p, nullptr, 4), m.refused);
        EXPECT_EQ(memory, before) << m.type;
    });
}

}  // namespace
}  // namespace test
