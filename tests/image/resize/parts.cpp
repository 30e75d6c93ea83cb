// Parts of destinations in memory of their own: the bytes of the class's whole ones, and nothing beside them.
#include "Parts.h"

#include "ImageProcessingWrapper.h"
#include "support/tests.h"

namespace test {
namespace {

using W = ImageProcessingWrapper;
using Bytes = std::vector<u8>;

constexpr Size kSource = {36, 24};
constexpr double kMap[9] = {1.3, 0.2, -3, -0.1, 1.1, 4, 0.001, 0.002, 1};

struct Call {
    const void* src;
    int srcStep;
    void* dst;
    int dstStep, x, y, width, height;
    Size whole;
    int code;  // interpolation, or whether a zoom is smooth
};

struct Row {
    const char* name;
    int pixel;  // bytes
    std::vector<int> codes;
    bool (*part)(const Call&);
    bool (*whole)(const Call&);  // the class's; without one, the part that is all
};

const std::vector<int> kCodes = {1, 2, 4, 5, 6, 7, 8, 16}, kWarps = {1, 2, 4, 5, 6, 7, 16};

#define SOURCE(T) static_cast<const T*>(c.src), kSource.width, kSource.height, c.srcStep
#define WHOLE_SOURCE(T) SOURCE(T), 0, 0, kSource.width, kSource.height
#define PART(T) static_cast<T*>(c.dst), c.dstStep, c.x, c.y, c.width, c.height
#define CALL(...) [](const Call& c) { return __VA_ARGS__; }
#define RESIZE(Type, T, pixel, codes, ...)                                                              \
    {"Resize " #Type, pixel, codes,                                                                     \
     CALL(orvaneResizePart_##Type(SOURCE(T), PART(T), c.whole.width, c.whole.height, c.code)), __VA_ARGS__}
#define BY_PLAN(method, T) \
    CALL(W::method(SOURCE(T), static_cast<T*>(c.dst), c.dstStep, c.whole.width, c.whole.height, 1, 1))
#define ZOOM(Type, T, pixel)                                                                                         \
    {"Zoom " #Type, pixel, {0, 1},                                                                                   \
     CALL(orvaneZoomPart_##Type(SOURCE(T), PART(T), c.whole.width, 1.25f, 3, -2, c.code != 0)),                      \
     CALL(W::Resize_##Type(static_cast<const T*>(c.src), c.srcStep, kSource.width, kSource.height,                   \
                           static_cast<T*>(c.dst), c.dstStep, c.width, c.height, 1.25f, 3, -2, c.code != 0))}
#define ROTATE(Type, T, pixel)                                                                    \
    {"Rotate " #Type, pixel, kWarps, CALL(orvaneRotatePart_##Type(SOURCE(T), PART(T), 31, 4, 17.5, c.code)), \
     CALL(W::Rotate_##Type(WHOLE_SOURCE(T), PART(T), 31, 4, 17.5, c.code))}
#define ROTATE_ABOUT(Type, T, pixel)                                                                       \
    {"RotateCenter " #Type, pixel, kWarps,                                                                 \
     CALL(orvaneRotateCenterPart_##Type(SOURCE(T), PART(T), 31, 17, 12.5, c.code)),                        \
     CALL(W::RotateCenter_##Type(SOURCE(T), static_cast<T*>(c.dst), c.dstStep, c.width, c.height, 31, 17,  \
                                 12.5, c.code))}
#define WARP(Type, T, pixel)                                                                                     \
    {"WarpPerspective " #Type, pixel, kWarps,                                                                    \
     CALL(orvaneWarpPerspectivePart_##Type(SOURCE(T), PART(T), kMap, c.code)),                                   \
     CALL(W::WarpPerspective_##Type(WHOLE_SOURCE(T), PART(T), kMap, c.code))}

const Row kRows[] = {
    RESIZE(8u_C1, u8, 1, kCodes, nullptr),
    RESIZE(8u_C3, u8, 3, kCodes, nullptr),
    RESIZE(8u_C4, u8, 4, kCodes, nullptr),
    RESIZE(16u_C1, u16, 2, kCodes, nullptr),
    RESIZE(32f_C1, float, 4, kCodes, nullptr),
    RESIZE(8u_C3, u8, 3, {1}, BY_PLAN(ResizeNN_8u_C3R, u8)),
    RESIZE(8u_C4, u8, 4, {6}, BY_PLAN(ResizeCubic_8u_C4R, u8)),
    RESIZE(16u_C1, u16, 2, {1}, BY_PLAN(ResizeNN_16u_C1R, u16)),
    ZOOM(8u_C3, u8, 3), ZOOM(8u_C4, u8, 4), ZOOM(16u_C1, u16, 2), ZOOM(32f_C1, float, 4),
    ROTATE(8u_C1, u8, 1), ROTATE(8u_C3, u8, 3), ROTATE(8u_C4, u8, 4), ROTATE(16u_C1, u16, 2), ROTATE(32f_C1, float, 4),
    ROTATE_ABOUT(8u_C3, u8, 3), ROTATE_ABOUT(8u_C4, u8, 4), ROTATE_ABOUT(16u_C1, u16, 2),
    ROTATE_ABOUT(32f_C1, float, 4),
    WARP(8u_C1, u8, 1), WARP(8u_C3, u8, 3), WARP(8u_C4, u8, 4), WARP(16u_C1, u16, 2), WARP(32f_C1, float, 4),
};

Bytes source_of(const Row& row)
{
    Bytes all(static_cast<std::size_t>(kSource.width * kSource.height * row.pixel));
    unsigned state = 5;
    for (u8& byte : all) byte = static_cast<u8>((state = state * 1664525u + 1013904223u) >> 24);
    for (std::size_t k = 3; std::strstr(row.name, "32f") != nullptr && k < all.size(); k += 4)
        all[k] = static_cast<u8>(all[k] % 2 == 0 ? 0x43 : 0xC3);  // no NaNs, which are compared elsewhere
    return all;
}

// A part in a block of its own, at whose end or begin there is a fence; what is there before counts, too.
void compute(const Row& row, const Bytes& src, Call call, bool fence_behind, Bytes& whole)
{
    const int bytes = call.width * row.pixel, whole_row = call.whole.width * row.pixel;
    const auto size = static_cast<std::size_t>(bytes);
    const GuardedBlock block(size * static_cast<std::size_t>(call.height), fence_behind);
    u8* const part = block.as();
    const auto in_whole = [&](int y) {
        return &whole[static_cast<std::size_t>((call.y + y) * whole_row + call.x * row.pixel)];
    };
    for (int y = 0; y < call.height; ++y) std::memcpy(part + y * bytes, in_whole(y), size);
    call.src = src.data();
    call.srcStep = kSource.width * row.pixel;
    call.dst = part;
    call.dstStep = bytes;
    EXPECT_TRUE(row.part(call)) << row.name;
    for (int y = 0; y < call.height; ++y) std::memcpy(in_whole(y), part + y * bytes, size);
}

TEST(Parts, GiveTheBytesOfTheWhole)
{
    for (const Row& row : kRows) {
        const Bytes src = source_of(row);
        for (const Size to : {Size{61, 43}, Size{18, 12}, Size{36, 24}}) {
            for (const int code : row.codes) {
                Bytes made(static_cast<std::size_t>(to.width * to.height * row.pixel), u8{0x42}), whole = made;
                Call call = {src.data(), kSource.width * row.pixel, whole.data(), to.width * row.pixel, 0, 0,
                             to.width,   to.height,                 to,           code};
                EXPECT_TRUE((row.whole != nullptr ? row.whole : row.part)(call)) << row.name;
                const int columns[] = {0, 1, 6, to.width - 3, to.width}, rows[] = {0, 5, to.height - 1, to.height};
                for (int k = 0; k < 12; ++k) {
                    const int x = columns[k % 4], y = rows[k / 4];
                    const int width = columns[k % 4 + 1] - x, height = rows[k / 4 + 1] - y;
                    compute(row, src, {nullptr, 0, nullptr, 0, x, y, width, height, to, code}, k % 2 == 0, made);
                }
                EXPECT_EQ(made, whole) << row.name << ", code " << code << ", to " << to.width;
            }
        }
    }
}

TEST(Parts, RefuseWhatIsWrongAndWriteNothing)
{
    for (const Row& row : kRows) {
        const Bytes src = source_of(row);
        const Bytes before(9 * 9 * 16, u8{0x42});
        Bytes dst = before;
        const Call right = {src.data(), kSource.width * row.pixel, dst.data(), 9 * row.pixel, 2, 3, 9, 9, {11, 12},
                            row.codes.back()};
        const bool resizes = std::strncmp(row.name, "R", 1) == 0 && std::strstr(row.name, "Resize") != nullptr;
        const auto refused = [&](const char* what, auto spoil) {
            Call call = right;
            spoil(call);
            EXPECT_FALSE(row.part(call)) << row.name << ", " << what;
            EXPECT_EQ(dst, before) << row.name << ", " << what;
        };
        refused("no source", [](Call& c) { c.src = nullptr; });
        refused("no destination", [](Call& c) { c.dst = nullptr; });
        refused("no columns", [](Call& c) { c.width = 0; });
        refused("no rows", [](Call& c) { c.height = -1; });
        if (std::strncmp(row.name, "Zoom", 4) != 0) refused("a code", [](Call& c) { c.code = 3; });
        if (resizes) {
            refused("left of the whole", [](Call& c) { c.x = -1; });
            refused("beyond the whole", [](Call& c) { c.whole.width = 10; });
            refused("beyond any whole", [](Call& c) { c.y = INT_MAX, c.whole.height = 0; });
        }
        int allocations = 0;
        for (bool done = false; !done && allocations < 9; ++allocations) {
            const AllocationFailure failure(allocations);
            done = row.part(right);
            EXPECT_TRUE(done || dst == before) << row.name << ", allocation " << allocations;
        }
        EXPECT_LT(allocations, 9) << row.name;
    }
}

template <class T>
void join_deviations(bool (*sums)(const T*, int, int, int, unsigned long long*, unsigned long long*),
                     bool (*direct)(const T*, int, int, int, double*, double*))
{
    constexpr int width = 301, height = 40, step = width * static_cast<int>(sizeof(T));
    for (const unsigned most : {1u, static_cast<unsigned>(std::numeric_limits<T>::max())}) {
        std::vector<T> image(width * height);
        unsigned state = most;
        for (T& v : image) v = static_cast<T>(most - (state = state * 1664525u + 1013904223u) % (most < 9 ? 2 : 9));
        unsigned long long total = 0, squares = 0, expected[2] = {};
        for (const T v : image) expected[0] += v, expected[1] += static_cast<unsigned long long>(v) * v;
        for (int y = 0, rows = 1; y < height; y += rows, rows = std::min(rows + 2, height - y)) {
            unsigned long long sum = 0, square = 0;
            EXPECT_TRUE(sums(&image[static_cast<std::size_t>(y * width)], step, width, rows, &sum, &square));
            total += sum;
            squares += square;
        }
        EXPECT_EQ(total, expected[0]);
        EXPECT_EQ(squares, expected[1]);
        double mean[2], deviation[2];
        EXPECT_TRUE(direct(image.data(), step, width, height, mean, deviation));
        EXPECT_TRUE(orvaneDeviation(width * height, total, squares, mean + 1, deviation + 1));
        EXPECT_EQ(mean[0], mean[1]);
        EXPECT_EQ(deviation[0], deviation[1]);
    }
    const T pixel = 5;
    unsigned long long none = 7;
    for (const auto& [src, at, w, h] : {std::tuple{&pixel, step, 1, 0}, {static_cast<const T*>(nullptr), step, 1, 1},
                                        {&pixel, static_cast<int>(sizeof(T)), 2, 1}})
        EXPECT_FALSE(sums(src, at, w, h, &none, &none));
    EXPECT_FALSE(sums(&pixel, step, 1, 1, nullptr, &none));
    EXPECT_EQ(none, 7u);
}

TEST(Parts, SumsOfSquaresJoinToTheDeviation)
{
    join_deviations<u8>(orvaneSumSquares_8u_C1, W::Mean_StdDev_8u_C1R);
    join_deviations<u16>(orvaneSumSquares_16u_C1, W::Mean_StdDev_16u_C1R);
    double mean = 9;
    EXPECT_FALSE(orvaneDeviation(0, 1, 1, &mean, nullptr));
    EXPECT_EQ(mean, 9);
    EXPECT_TRUE(orvaneDeviation(2, 6, 20, &mean, nullptr));
    EXPECT_EQ(mean, 3);
}

}  // namespace
}  // namespace test
