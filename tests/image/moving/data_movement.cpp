// Copy, set, conversion, channel order, transposition and mirroring against plain loops.
#include <cfenv>

#include "support/image_tests.h"

namespace test {
namespace {

// Images with rows of odd padding, and the value an untouched byte keeps.
template <class T>
struct Plane {
    int width, height, channels, step;
    std::vector<u8> bytes;

    Plane(int w, int h, int c, std::mt19937& g)
        : width(w), height(h), channels(c), step(w * c * static_cast<int>(sizeof(T)) + 3 * static_cast<int>(sizeof(T)))
    {
        bytes.resize(static_cast<std::size_t>(step * height));
        for (u8& b : bytes) b = static_cast<u8>(g());
    }
    T* data() { return reinterpret_cast<T*>(bytes.data()); }
    T* pixel(int x, int y) { return reinterpret_cast<T*>(bytes.data() + y * step) + x * channels; }
};

const int kWidths[] = {1, 2, 3, 7, 15, 16, 17, 31, 32, 33, 48, 65, 300};

TEST(DataMovement, CopyKeepsEveryBitPattern)
{
    // 32-bit patterns of all kinds, signalling NaNs among them; the x87 would change those.
    std::vector<unsigned> src, dst;
    for (unsigned i = 0; i < 65536; ++i) src.push_back(i << 16 | (i * 2654435761u >> 20));
    src.push_back(0x7F800001u);
    src.push_back(0xFFBFFFFFu);
    const int n = static_cast<int>(src.size());
    at_every_level([&] {
        dst.assign(src.size(), 0);
        ASSERT_TRUE(W::Copy_32f_C1(reinterpret_cast<float*>(src.data()), 4 * n, reinterpret_cast<float*>(dst.data()),
                                   4 * n, n, 1));
        ASSERT_EQ(dst, src);
        dst.assign(src.size(), 0);
        ASSERT_TRUE(W::Copy_32fc_C1(reinterpret_cast<Complex32f*>(src.data()), 4 * n,
                                    reinterpret_cast<Complex32f*>(dst.data()), 4 * n, n / 2, 1));
        ASSERT_EQ(dst, src);
        const unsigned nan[3] = {0x7F800001u, 0xFF800001u, 0x7FC00000u};
        unsigned out[6];
        ASSERT_TRUE(W::Set_32f_C3(reinterpret_cast<const float*>(nan), reinterpret_cast<float*>(out), 24, 2, 1));
        EXPECT_THAT(out, testing::ElementsAre(nan[0], nan[1], nan[2], nan[0], nan[1], nan[2]));
    });
}

TEST(DataMovement, ComplexCopyIsAlwaysTrue)
{
    Complex32f a = {1, 2}, b = {3, 4};
    EXPECT_TRUE(W::Copy_32fc_C1(nullptr, 8, &b, 8, 1, 1));
    EXPECT_TRUE(W::Copy_32fc_C1(&a, 8, nullptr, 8, 1, 1));
    EXPECT_TRUE(W::Copy_32fc_C1(&a, 8, &b, 8, 1, 0));
    EXPECT_TRUE(W::Copy_32fc_C1(&a, 8, &b, 8, -1, 1));
    EXPECT_EQ(b.re, 3);
}

template <class T, class Call>
void check_set(int channels, Call call)
{
    std::mt19937 g = make_generator("set");
    for (const int width : kWidths) {
        Plane<T> plane(width, 3, channels, g), want = plane;
        const T values[4] = {static_cast<T>(3), static_cast<T>(-1), static_cast<T>(77), static_cast<T>(200)};
        for (int y = 0; y < 3; ++y) {
            for (int i = 0; i < width * channels; ++i) want.pixel(0, y)[i] = values[i % channels];
        }
        const auto before = plane.bytes;
        at_every_level([&] {
            plane.bytes = before;
            ASSERT_TRUE(call(values, plane.data(), plane.step, width, 3));
            ASSERT_EQ(plane.bytes, want.bytes) << width;
        });
    }
}

#define SET_ONE(name, T) \
    check_set<T>(1, [](const T* v, T* d, int step, int w, int h) { return W::name(v[0], d, step, w, h); })
#define SET_SEVERAL(name, T, channels) \
    check_set<T>(channels, [](const T* v, T* d, int step, int w, int h) { return W::name(v, d, step, w, h); })
TEST(DataMovement, Set)
{
    SET_ONE(Set_8u_C1, u8);
    SET_ONE(Set_16u_C1, u16);
    SET_ONE(Set_16s_C1, short);
    SET_ONE(Set_32s_C1, int);
    SET_ONE(Set_32f_C1, float);
    SET_SEVERAL(Set_8u_C3, u8, 3);
    SET_SEVERAL(Set_8u_C4, u8, 4);
    SET_SEVERAL(Set_32s_C3, int, 3);
    SET_SEVERAL(Set_32s_C4, int, 4);
    SET_SEVERAL(Set_32f_C3, float, 3);
    SET_SEVERAL(Set_32f_C4, float, 4);
}

TEST(DataMovement, WideningIsExact)
{
    std::vector<u8> bytes(300);
    std::vector<u16> words(65536), word_results(300);
    for (std::size_t i = 0; i < bytes.size(); ++i) bytes[i] = static_cast<u8>(i * 7);
    for (std::size_t i = 0; i < words.size(); ++i) words[i] = static_cast<u16>(i);
    std::vector<float> floats(65536);
    at_every_level([&] {
        ASSERT_TRUE(W::Convert_8u16u_C1(bytes.data(), 300, word_results.data(), 600, 300, 1));
        ASSERT_TRUE(W::Convert_8u32f_C3(bytes.data(), 300, floats.data(), 1200, 100, 1));
        for (std::size_t i = 0; i < 300; ++i) {
            ASSERT_EQ(word_results[i], bytes[i]);
            ASSERT_EQ(floats[i], static_cast<float>(bytes[i]));
        }
        ASSERT_TRUE(W::Convert_8u32f_C1(bytes.data(), 150, floats.data(), 600, 150, 2));
        for (std::size_t i = 0; i < 300; ++i) ASSERT_EQ(floats[i], static_cast<float>(bytes[i]));
        ASSERT_TRUE(W::Convert_16u32f_C1(words.data(), 512, floats.data(), 1024, 256, 256));
        for (std::size_t i = 0; i < 65536; ++i) ASSERT_EQ(floats[i], static_cast<float>(i));
    });
}

// The nearest integer of a float in long double arithmetic, which holds every half exactly.
int nearest(float x, int most)
{
    if (std::isnan(x) || x <= 0) return 0;
    if (x >= static_cast<float>(most)) return most;
    const long double whole = std::floor(static_cast<long double>(x)), over = x - whole;
    const bool up = over > 0.5L || (over == 0.5L && static_cast<int>(whole) % 2 == 1);
    return static_cast<int>(whole) + (up ? 1 : 0);
}

TEST(DataMovement, NarrowingRoundsHalfToEven)
{
    std::vector<float> x = {70000.f, -3.f,   0.5f, 1.5f,  2.5f,     65534.5f,  65535.f, 254.5f, 255.f,       254.49998f,
                            -0.f,    1e-40f, 3e9f, -3e9f, INFINITY, -INFINITY, NAN,     -NAN,   0.49999997f, 8388608.f};
    const unsigned just_above_half = 0x3F000001u;
    float f;
    std::memcpy(&f, &just_above_half, 4);
    x.push_back(f);
    std::mt19937 g = make_generator("narrowing");
    for (int i = 0; i < 3000; ++i) {
        x.push_back(static_cast<float>(uniform(g, 0, 140000)) / 2);
        x.push_back(std::nextafter(x.back(), uniform(g, 0, 1) == 0 ? 0.f : 1e9f));
        x.push_back(static_cast<float>(uniform(g, 0, 520)) / 2);
        x.push_back(random_value<float>(g, Fill::near_high));
    }
    while (x.size() % 3 != 0) x.push_back(0);
    const int n = static_cast<int>(x.size());
    std::vector<u16> words(x.size());
    std::vector<u8> bytes(x.size());
    at_every_level([&] {
        for (const int mode : {FE_TONEAREST, FE_UPWARD, FE_TOWARDZERO}) {  // the host's rounding does not matter
            std::fesetround(mode);
            const bool done = W::Convert_32f16u_C1(x.data(), 4 * n, words.data(), 2 * n, n, 1) &&
                              W::Convert_32f8u_C3(x.data(), 4 * n, bytes.data(), n, n / 3, 1);
            const int after = std::fegetround();
            std::fesetround(FE_TONEAREST);
            ASSERT_TRUE(done);
            ASSERT_EQ(after, mode);
            for (std::size_t i = 0; i < x.size(); ++i) {
                ASSERT_EQ(words[i], nearest(x[i], 65535)) << x[i];
                ASSERT_EQ(bytes[i], nearest(x[i], 255)) << x[i];
            }
        }
        EXPECT_FALSE(W::Convert_32f16u_C1(x.data(), 0, words.data(), 8, 1, 1)) << "steps are checked here";
        EXPECT_FALSE(W::Convert_32f8u_C3(x.data(), 12, bytes.data(), -3, 1, 1));
    });
}

TEST(DataMovement, SwapChannels)
{
    std::mt19937 g = make_generator("swap");
    for (const int channels : {3, 4}) {
        const auto swap = channels == 3 ? W::SwapChannels_8u_C3IR : W::SwapChannels_8u_C4IR;
        for (const int width : kWidths) {
            Plane<u8> plane(width, 2, channels, g), want = plane;
            const Plane<u8> before = plane;
            const int orders[][4] = {{2, 1, 0, 3}, {0, 0, 0, 0}, {1, 2, 0, 2}, {2, 2, 1, 0}};
            for (const auto& order : orders) {
                Plane<u8> source = before;
                for (int y = 0; y < 2; ++y) {
                    for (int x = 0; x < width; ++x) {
                        for (int c = 0; c < channels; ++c) want.pixel(x, y)[c] = source.pixel(x, y)[order[c]];
                    }
                }
                at_every_level([&] {
                    plane.bytes = before.bytes;
                    ASSERT_TRUE(swap(plane.data(), plane.step, width, 2, order));
                    ASSERT_EQ(plane.bytes, want.bytes) << width;
                });
            }
            plane.bytes = before.bytes;
            const int bad[][4] = {{0, -1, 0, 0}, {0, 1, 4, 0}, {channels, 0, 0, 0}};
            for (const auto& order : bad) EXPECT_FALSE(swap(plane.data(), plane.step, width, 2, order));
            const int fine[4] = {0, 1, 2, 2};
            EXPECT_FALSE(swap(plane.data(), 0, width, 2, fine));
            EXPECT_FALSE(swap(plane.data(), plane.step, width, 2, nullptr));
            EXPECT_FALSE(swap(nullptr, plane.step, width, 2, fine));
            EXPECT_FALSE(swap(plane.data(), plane.step, width, 0, fine));
            EXPECT_EQ(plane.bytes, before.bytes);
        }
    }
}

TEST(DataMovement, Transpose)
{
    std::mt19937 g = make_generator("transpose");
    for (const int width : {1, 3, 8, 13, 64, 70, 130}) {
        for (const int height : {1, 2, 8, 9, 65}) {
            Plane<float> src(width, height, 1, g), dst(height, width, 1, g);
            Plane<float> want = dst;
            const int side = std::max(width, height);
            Plane<float> square(side, side, 1, g);
            for (int y = 0; y < height; ++y) {
                for (int x = 0; x < width; ++x) std::memcpy(want.pixel(y, x), src.pixel(x, y), 4);
            }
            at_every_level([&] {
                ASSERT_TRUE(W::Transpose_32f_C1R(src.data(), src.step, dst.data(), dst.step, width, height));
                ASSERT_EQ(dst.bytes, want.bytes) << width << " x " << height;
                // In place, within a buffer that has room for both shapes.
                Plane<float> buffer = square;
                for (int y = 0; y < height; ++y)
                    std::memcpy(buffer.pixel(0, y), src.pixel(0, y), 4 * static_cast<std::size_t>(width));
                ASSERT_TRUE(
                    W::Transpose_32f_C1R(buffer.data(), buffer.step, buffer.data(), buffer.step, width, height));
                for (int x = 0; x < width; ++x) {
                    ASSERT_EQ(std::memcmp(buffer.pixel(0, x), want.pixel(0, x), 4 * static_cast<std::size_t>(height)),
                              0);
                }
            });
        }
    }
}

template <class T, class Call>
void check_mirror(int channels, bool keeps_alpha, int axis, Call call)
{
    std::mt19937 g = make_generator("mirror");
    for (const int width : kWidths) {
        for (const int height : {1, 2, 3, 5, 40}) {
            if (width == 300 && height == 40 && options().brief) continue;
            Plane<T> plane(width, height, channels, g), source = plane, want = plane;
            const bool refused = (axis != 1 && height < 2) || (axis != 0 && width < 2);
            for (int y = 0; y < height && !refused; ++y) {
                for (int x = 0; x < width; ++x) {
                    const int to_x = axis == 0 ? x : width - 1 - x, to_y = axis == 1 ? y : height - 1 - y;
                    std::memcpy(want.pixel(to_x, to_y), source.pixel(x, y),
                                sizeof(T) * static_cast<std::size_t>(keeps_alpha ? 3 : channels));
                }
            }
            at_every_level([&] {
                plane.bytes = source.bytes;
                ASSERT_EQ(call(plane.data(), plane.step, width, height), !refused) << width << " x " << height;
                ASSERT_EQ(plane.bytes, want.bytes) << width << " x " << height << " axis " << axis;
            });
            plane.bytes = source.bytes;
            const AllocationFailure none_left(0);
            EXPECT_FALSE(call(plane.data(), plane.step, width, height));
            EXPECT_EQ(plane.bytes, source.bytes);
        }
    }
}

TEST(DataMovement, Mirror)
{
    for (int axis = 0; axis < 3; ++axis) {
        check_mirror<u8>(3, false, axis,
                         [axis](u8* p, int step, int w, int h) { return W::Mirror_8u_C3I(p, step, w, h, axis); });
        check_mirror<u8>(4, false, axis,
                         [axis](u8* p, int step, int w, int h) { return W::Mirror_8u_C4I(p, step, w, h, axis); });
        check_mirror<u16>(1, false, axis,
                          [axis](u16* p, int step, int w, int h) { return W::Mirror_16u_C1I(p, step, w, h, axis); });
    }
    check_mirror<u8>(3, false, 0, W::MirrorHorizontal_8u_C3I);
    check_mirror<u8>(4, true, 0, W::MirrorHorizontal_8u_AC4IR);
    check_mirror<u8>(4, true, 1, W::MirrorVertical_8u_AC4IR);
    check_mirror<u8>(4, true, 2, W::MirrorBoth_8u_AC4IR);

    u16 pixels[4] = {1, 2, 3, 4};
    EXPECT_FALSE(W::Mirror_16u_C1I(pixels, 4, 2, 2, 3));
    EXPECT_FALSE(W::Mirror_16u_C1I(pixels, 4, 2, 2, -1));
    EXPECT_FALSE(W::Mirror_16u_C1I(nullptr, 4, 2, 2, 0));
    EXPECT_THAT(pixels, testing::ElementsAre(1, 2, 3, 4));
}

TEST(DataMovement, CopyAndSetRefuse)
{
    u8 a[4] = {1, 2, 3, 4}, b[4] = {5, 6, 7, 8};
    at_every_level([&] {
        EXPECT_FALSE(W::Copy_8u_C1(nullptr, 4, b, 4, 4, 1));
        EXPECT_FALSE(W::Copy_8u_C1(a, 4, nullptr, 4, 4, 1));
        EXPECT_FALSE(W::Copy_8u_C1(a, 4, b, 4, 0, 1));
        EXPECT_FALSE(W::Copy_8u_C1(a, 4, b, 4, 4, -1));
        EXPECT_FALSE(W::Set_8u_C1(9, nullptr, 4, 4, 1));
        EXPECT_FALSE(W::Set_8u_C1(9, b, 4, 0, 1));
        EXPECT_FALSE(W::Set_8u_C3(nullptr, b, 4, 1, 1));
        EXPECT_THAT(b, testing::ElementsAre(5, 6, 7, 8));
        EXPECT_TRUE(W::Copy_8u_C1(a + 3, -1, b, 1, 1, 4)) << "a negative step walks upwards";
        EXPECT_THAT(b, testing::ElementsAre(4, 3, 2, 1));
        EXPECT_TRUE(W::Copy_8u_C1(a, 0, b, 1, 1, 4));
        EXPECT_THAT(b, testing::ElementsAre(1, 1, 1, 1));
        const u8 back[4] = {5, 6, 7, 8};
        std::memcpy(b, back, 4);
    });
}

}  // namespace
}  // namespace test
