// Thresholding against the order in the header: of numbers, with -0 below +0, and of NaNs by sign.
#include "support/image_tests.h"

namespace test {
namespace {

// Floats as they lie in memory: signalling NaNs must come through.
struct Float {
    int bits;
    int operator+() const { return bits; }
};
Float stored(float x)
{
    Float f;
    std::memcpy(&f, &x, sizeof(f));
    return f;
}

bool above(u8 x, u8 t) { return x > t; }
bool above(u16 x, u16 t) { return x > t; }
bool above(Float x, Float t)
{
    // Numbers and NaNs of one sign order by magnitude; the sign decides between the others.
    const long long magnitude[2] = {x.bits & 0x7FFFFFFF, t.bits & 0x7FFFFFFF};
    const bool negative[2] = {x.bits < 0, t.bits < 0};
    if (negative[0] != negative[1]) return negative[1];
    return negative[0] ? magnitude[0] < magnitude[1] : magnitude[0] > magnitude[1];
}

template <class T>
T once(bool greater, T x, T threshold, T value)
{
    return (greater ? above(x, threshold) : above(threshold, x)) ? value : x;
}

template <class T> T to_value(T x) { return x; }
float to_value(Float x)
{
    float f;
    std::memcpy(&f, &x, sizeof(f));
    return f;
}

const int kWidths[] = {1, 2, 3, 4, 5, 7, 8, 9, 15, 16, 17, 31, 32, 33, 48, 70, 333};

template <class T> using Stored = typename std::conditional<std::is_same<T, float>::value, Float, T>::type;

// A pixel of the image, or something near it: thresholds that matter. No signalling NaNs, which passing
// by value may change.
template <class T>
Stored<T> telling(Image& image, std::mt19937& g)
{
    auto x = element<Stored<T>>(image, 0, uniform(g, 0, image.row_bytes() / static_cast<int>(sizeof(T)) - 1));
    if constexpr (std::is_same<T, float>::value) {
        static const float special[] = {0.0f, -0.0f, 1.0f, -1.0f, INFINITY, -INFINITY, 1e-45f, -1e-45f};
        if (uniform(g, 0, 3) == 0) return stored(special[uniform(g, 0, 7)]);
        if ((x.bits & 0x7FFFFFFF) > 0x7F800000) x.bits |= 0x400000;
    }
    return x;
}

template <class T, class Threshold, class InPlace>
void check_single(const char* name, bool greater, bool with_value, Threshold method, InPlace in_place)
{
    SCOPED_TRACE(name);
    using S = Stored<T>;
    std::mt19937 g = make_generator(name);
    for (int round = 0; round < (options().brief ? 1 : 8); ++round) {
        for (const int width : kWidths) {
            Image a = random_pixels<T>(width, 2, g), d = random_pixels<T>(width, 2, g);
            const auto before = d.bytes();
            const S t = telling<T>(a, g), v = with_value ? telling<T>(d, g) : t;
            const auto want = [&](Image& from) {
                return [&](int y, int i) { return once(greater, element<S>(from, y, i), t, v); };
            };
            at_every_level([&] {
                bool done;
                if constexpr (std::is_invocable<Threshold, const T*, int, T*, int, int, int, T, T>::value) {
                    done = method(a.pixels<T>(), a.step(), d.pixels<T>(), d.step(), width, 2, to_value(t), to_value(v));
                } else {
                    done = method(a.pixels<T>(), a.step(), d.pixels<T>(), d.step(), width, 2, to_value(t));
                }
                ASSERT_TRUE(done);
                expect_pixels<S>(d, before, want(a));
                if constexpr (std::is_invocable<InPlace, T*, int, int, int, T, T>::value) {
                    ASSERT_TRUE(in_place(d.pixels<T>(), d.step(), width, 2, to_value(t), to_value(v)));
                    expect_pixels<S>(d, before, want(d));
                } else if constexpr (std::is_invocable<InPlace, T*, int, int, int, T>::value) {
                    ASSERT_TRUE(in_place(d.pixels<T>(), d.step(), width, 2, to_value(t)));
                    expect_pixels<S>(d, before, want(d));
                }
            });
        }
    }
}

TEST(Threshold, OneThreshold)
{
    check_single<float>("Greater_32f", true, false, W::ThresholdGreater_32f_C1R, W::ThresholdGreater_32f_C1IR);
    check_single<float>("Less_32f", false, false, W::ThresholdLess_32f_C1R, W::ThresholdLess_32f_C1IR);
    check_single<float>("GT_32f", true, false, W::Threshold_GT_32f_C1, W::Threshold_GT_32f_C1I);
    check_single<float>("LT_32f", false, false, W::Threshold_LT_32f_C1, W::Threshold_LT_32f_C1I);
    check_single<float>("GTVal_32f", true, true, W::Threshold_GTVal_32f_C1, W::Threshold_GTVal_32f_C1I);
    check_single<float>("LTVal_32f", false, true, W::Threshold_LTVal_32f_C1, W::Threshold_LTVal_32f_C1I);
    check_single<float>("Greater_Val_32f", true, true, W::ThresholdGreater_Val_32f_C1R, nullptr);
    check_single<float>("Less_Val_32f", false, true, W::ThresholdLess_Val_32f_C1R, nullptr);
    check_single<u8>("Greater_Val_8u", true, true, W::ThresholdGreater_Val_8u_C1R, W::ThresholdGreater_Val_8u_C1IR);
    check_single<u8>("Less_Val_8u", false, true, W::ThresholdLess_Val_8u_C1R, W::ThresholdLess_Val_8u_C1IR);
    check_single<u16>("GTVal_16u", true, true, W::Threshold_GTVal_16u_C1, nullptr);
}

TEST(Threshold, ChannelsAndPairs)
{
    std::mt19937 g = make_generator("pairs");
    for (int round = 0; round < (options().brief ? 2 : 20); ++round) {
        for (const int width : kWidths) {
            for (const int channels : {1, 3}) {
                Image a = random_pixels<float>(width * channels, 2, g),
                      d = random_pixels<float>(width * channels, 2, g);
                const auto before = d.bytes();
                float tl[3], vl[3], tg[3], vg[3];
                bool ordered = true;
                for (int c = 0; c < 3; ++c) {
                    tl[c] = to_value(telling<float>(a, g));
                    tg[c] = to_value(telling<float>(a, g));
                    if (uniform(g, 0, 7) != 0 && tl[c] > tg[c]) std::swap(tl[c], tg[c]);
                    vl[c] = to_value(telling<float>(d, g));
                    vg[c] = to_value(telling<float>(d, g));
                    if (c < channels && tl[c] > tg[c]) ordered = false;
                }
                const auto pair = [&](Image& from) {
                    return [&](int y, int i) {
                        const Float x = element<Float>(from, y, i);
                        const int c = i % channels;
                        if (!ordered) return element<Float>(d, y, i);
                        return above(x, stored(tg[c])) ? stored(vg[c]) : once(false, x, stored(tl[c]), stored(vl[c]));
                    };
                };
                at_every_level([&] {
                    float *const p = d.pixels<float>(), *const q = a.pixels<float>();
                    bool done, done_in_place;
                    if (channels == 1)
                        done = W::Threshold_LTValGTVal_32f_C1R(q, a.step(), p, d.step(), width, 2, *tl, *vl, *tg, *vg);
                    else done = W::Threshold_LTValGTVal_32f_C3R(q, a.step(), p, d.step(), width, 2, tl, vl, tg, vg);
                    ASSERT_EQ(done, ordered);
                    expect_pixels<Float>(d, before, pair(a));
                    if (channels == 1)
                        done_in_place = W::Threshold_LTValGTVal_32f_C1IR(p, d.step(), width, 2, *tl, *vl, *tg, *vg);
                    else done_in_place = W::Threshold_LTValGTVal_32f_C3IR(p, d.step(), width, 2, tl, vl, tg, vg);
                    ASSERT_EQ(done_in_place, ordered);
                    expect_pixels<Float>(d, before, pair(d));
                    if (channels == 1) return;
                    for (const bool greater : {false, true}) {
                        const auto each = [&](Image& from) {
                            return [&, greater](int y, int i) {
                                return once(greater, element<Float>(from, y, i), stored(tg[i % 3]), stored(tg[i % 3]));
                            };
                        };
                        ASSERT_TRUE((greater ? W::ThresholdGreater_32f_C3R : W::ThresholdLess_32f_C3R)(
                            q, a.step(), p, d.step(), width, 2, tg));
                        expect_pixels<Float>(d, before, each(a));
                        ASSERT_TRUE((greater ? W::ThresholdGreater_32f_C3IR : W::ThresholdLess_32f_C3IR)(p, d.step(),
                                                                                                         width, 2, tg));
                        expect_pixels<Float>(d, before, each(d));
                    }
                });
            }
        }
    }
}

// The order by bits, spelled out.
TEST(Threshold, SpecialFloats)
{
    const float nan = std::nanf("");
    const float pixels[] = {-nan, -INFINITY, -1, -1e-45f, -0.0f, 0.0f, 1e-45f, 1, INFINITY, nan};  // ascending
    for (int t = 1; t < 9; ++t) {
        at_every_level([&] {
            float dst[10];
            ASSERT_TRUE(W::Threshold_GTVal_32f_C1(pixels, 40, dst, 40, 10, 1, pixels[t], 7));
            for (int i = 0; i < 10; ++i)
                EXPECT_EQ(stored(dst[i]).bits, stored(i > t ? 7.0f : pixels[i]).bits) << i << " above " << t;
            ASSERT_TRUE(W::Threshold_LTVal_32f_C1(pixels, 40, dst, 40, 10, 1, pixels[t], 7));
            for (int i = 0; i < 10; ++i)
                EXPECT_EQ(stored(dst[i]).bits, stored(i < t ? 7.0f : pixels[i]).bits) << i << " below " << t;
        });
    }
    // A signalling NaN among the arguments arrives as it is.
    const int signalling[3] = {0x7F800001, 0x7FA00000, -0x7FFFFF};
    float values[3], src[3] = {5, 5, 5}, dst[3], limits[3] = {1, 1, 1};
    std::memcpy(values, signalling, sizeof(values));
    at_every_level([&] {
        ASSERT_TRUE(W::Threshold_LTValGTVal_32f_C3R(src, 12, dst, 12, 1, 1, limits, limits, limits, values));
        EXPECT_EQ(std::memcmp(dst, values, sizeof(dst)), 0);
    });
}

TEST(Threshold, OtherOperatorsAreRefused)
{
    std::vector<float> src(16, 5), before(16, 77), dst = before;
    const std::vector<u8> bytes_before(16, 77);
    std::vector<u8> bytes = bytes_before;
    const float limits[3] = {1, 5, 9};
    at_every_level([&] {
#define REFUSED(Op)                                                                                             \
    EXPECT_FALSE(W::Threshold##Op##_32f_C1R(src.data(), 16, dst.data(), 16, 4, 4, 1));                          \
    EXPECT_FALSE(W::Threshold##Op##_32f_C1IR(dst.data(), 16, 4, 4, 1));                                         \
    EXPECT_FALSE(W::Threshold##Op##_32f_C3R(src.data(), 16, dst.data(), 16, 1, 4, limits));                     \
    EXPECT_FALSE(W::Threshold##Op##_32f_C3IR(dst.data(), 16, 1, 4, limits));                                    \
    EXPECT_FALSE(W::Threshold##Op##_Val_32f_C1R(src.data(), 16, dst.data(), 16, 4, 4, 1, 2));                   \
    EXPECT_FALSE(W::Threshold##Op##_Val_8u_C1R(bytes_before.data(), 4, bytes.data(), 4, 4, 4, 1, 2));           \
    EXPECT_FALSE(W::Threshold##Op##_Val_8u_C1IR(bytes.data(), 4, 4, 4, 1, 2))
        REFUSED(LessEq);
        REFUSED(Eq);
        REFUSED(GreaterEq);
#undef REFUSED
        ASSERT_EQ(dst, before);
        ASSERT_EQ(bytes, bytes_before);
    });
}

TEST(Threshold, RefusalsWriteNothing)
{
    std::mt19937 g = make_generator("refusals");
    Image source(12, 2, {true, true, 0, 0}, g), image(12, 2, {true, false, 0, 0}, g);
    const auto before = image.bytes();
    const float* const s = source.pixels<float>();
    float* const d = image.pixels<float>();
    const int step = image.step();
    const float low[3] = {1, 1, 1}, high[3] = {2, 2, 2}, mixed[3] = {2, 2, 0};
    float* const none = nullptr;
    at_every_level([&] {
        const auto refuses = [&](const float* from, int fromStep, float* to, int toStep, int width, int height) {
            EXPECT_FALSE(W::ThresholdLess_32f_C1R(from, fromStep, to, toStep, width, height, 1));
            EXPECT_FALSE(W::ThresholdGreater_32f_C3R(from, fromStep, to, toStep, width, height, low));
            EXPECT_FALSE(W::Threshold_GTVal_32f_C1(from, fromStep, to, toStep, width, height, 1, 2));
            EXPECT_FALSE(W::Threshold_LTValGTVal_32f_C1R(from, fromStep, to, toStep, width, height, 1, 1, 2, 2));
            EXPECT_FALSE(
                W::Threshold_LTValGTVal_32f_C3R(from, fromStep, to, toStep, width, height, low, low, high, high));
            if (from == nullptr || fromStep != step) return;
            EXPECT_FALSE(W::Threshold_LT_32f_C1I(to, toStep, width, height, 1));
            EXPECT_FALSE(W::ThresholdGreater_32f_C3IR(to, toStep, width, height, low));
            EXPECT_FALSE(W::Threshold_LTValGTVal_32f_C1IR(to, toStep, width, height, 1, 1, 2, 2));
        };
        refuses(nullptr, step, d, step, 1, 1);
        refuses(s, step, nullptr, step, 1, 1);
        for (const int bad : {0, -1, -step, INT_MIN}) {
            refuses(s, bad, d, step, 1, 2);
            refuses(s, step, d, bad, 1, 2);
            refuses(s, step, d, step, bad, 2);
            refuses(s, step, d, step, 1, bad);
        }
        EXPECT_FALSE(W::ThresholdGreater_32f_C3R(s, step, d, step, 1, 1, none));
        EXPECT_FALSE(W::ThresholdLess_32f_C3IR(d, step, 1, 1, none));
        EXPECT_FALSE(W::Threshold_LTValGTVal_32f_C3R(s, step, d, step, 1, 1, none, low, high, high));
        EXPECT_FALSE(W::Threshold_LTValGTVal_32f_C3R(s, step, d, step, 1, 1, low, none, high, high));
        EXPECT_FALSE(W::Threshold_LTValGTVal_32f_C3R(s, step, d, step, 1, 1, low, low, none, high));
        EXPECT_FALSE(W::Threshold_LTValGTVal_32f_C3IR(d, step, 1, 1, low, low, high, none));
        EXPECT_FALSE(W::Threshold_LTValGTVal_32f_C1R(s, step, d, step, 3, 2, 10, 0, 5, 0));
        EXPECT_FALSE(W::Threshold_LTValGTVal_32f_C3R(s, step, d, step, 1, 2, low, low, mixed, low)) << "third channel";
        EXPECT_FALSE(W::Threshold_LTValGTVal_32f_C3IR(d, step, 1, 2, low, low, mixed, low));
        {
            AllocationFailure no_memory(0);
            EXPECT_FALSE(W::Threshold_GT_32f_C1I(d, step, 3, 2, 0));
            EXPECT_FALSE(W::ThresholdLess_32f_C3IR(d, step, 1, 2, low));
            EXPECT_FALSE(W::Threshold_LTValGTVal_32f_C1IR(d, step, 3, 2, 0, 1, 0, 1));
        }
        ASSERT_EQ(image.bytes(), before);
        EXPECT_TRUE(W::Threshold_LTValGTVal_32f_C1IR(d, step, 3, 2, 5, 5, 5, 5)) << "equal thresholds";
        image.restore(before);
    });
}

}  // namespace
}  // namespace test
