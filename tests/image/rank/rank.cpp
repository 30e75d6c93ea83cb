// Rank filters against their definitions: the pixels around each one sorted, by an order of its own.
#include "image/rank/median.h"
#include "image/rank/morphology.h"
#include "support/image_tests.h"

namespace test {
namespace {

// --- Oracle ---------------------------------------------------------------------------------------

// Floats by their bits: a signalling NaN that passes through the x87 is another one.
struct Pixel {
    std::uint32_t bits;
};
bool is_nan(Pixel p) { return test::is_nan<float>(p.bits); }
bool before(Pixel a, Pixel b)
{
    if (is_nan(a) || is_nan(b)) {
        if (!is_nan(a) || !is_nan(b)) return is_nan(b);
        const bool signed_a = a.bits >> 31 != 0, signed_b = b.bits >> 31 != 0;
        if (signed_a != signed_b) return signed_b;
        return signed_a ? a.bits > b.bits : a.bits < b.bits;
    }
    const float x = from_bits<float>(a.bits), y = from_bits<float>(b.bits);
    return x < y || (x == 0 && y == 0 && std::signbit(x) && !std::signbit(y));
}
template <class T> bool before(T a, T b) { return a < b; }

template <class T> struct Compared { using type = T; };
template <> struct Compared<float> { using type = Pixel; };
template <class T> using As = typename Compared<T>::type;

// --- Medians --------------------------------------------------------------------------------------

const std::uint32_t kNinePixels[] = {0xFFC00001, 0xFF800000, 0xBF800000, 0x80000000, 0,
                                     0x3F800000, 0x7F800000, 0x7FC00000, 0x7F800001};

enum class Contents { nine, few, all_bits, constant, rising, kinds };
std::uint32_t random_pixel(Contents contents, int at, std::mt19937& g)
{
    switch (contents) {
        case Contents::nine: return kNinePixels[uniform(g, 0, 8)];
        case Contents::few: return bits_of(static_cast<float>(uniform(g, -2, 2)));
        case Contents::all_bits: return static_cast<std::uint32_t>(g());
        case Contents::constant: return 0xFF812345;
        default: return bits_of(static_cast<float>(at));
    }
}

class Framed {
public:
    Framed(Size roi, Size mask, Contents contents, std::mt19937& g)
        : mask_(mask), image_(random_image((roi.width + mask.width - 1) * 4, roi.height + mask.height - 1, g))
    {
        int at = 0;
        for (int y = 0; y < image_.height(); ++y) {
            for (int i = 0; i < image_.row_bytes(); i += 4) {
                const std::uint32_t bits = random_pixel(contents, at++, g);
                std::memcpy(image_.row(y) + i, &bits, 4);
            }
        }
    }
    Image& image() { return image_; }
    const float* region()
    {
        return reinterpret_cast<const float*>(image_.row((mask_.height - 1) / 2) + (mask_.width - 1) / 2 * 4);
    }
    std::uint32_t median(int x, int y)
    {
        std::vector<Pixel> window;
        for (int j = 0; j < mask_.height; ++j) {
            for (int i = 0; i < mask_.width; ++i) window.push_back({element<std::uint32_t>(image_, y + j, x + i)});
        }
        const auto middle = window.begin() + static_cast<std::ptrdiff_t>((window.size() - 1) / 2);
        std::nth_element(window.begin(), middle, window.end(), [](Pixel a, Pixel b) { return before(a, b); });
        return middle->bits;
    }

private:
    Size mask_;
    Image image_;
};

void check_median(Size roi, Size mask, Contents contents, std::mt19937& g)
{
    SCOPED_TRACE(std::to_string(roi.width) + " x " + std::to_string(roi.height) + ", mask " +
                 std::to_string(mask.width) + " x " + std::to_string(mask.height));
    Framed src(roi, mask, contents, g);
    const auto source = src.image().bytes();
    std::vector<std::uint32_t> medians;
    for (int y = 0; y < roi.height; ++y) {
        for (int x = 0; x < roi.width; ++x) medians.push_back(src.median(x, y));
    }
    Image dst = random_image(roi.width * 4, roi.height, g);
    const auto surroundings = dst.bytes();
    at_every_level([&] {
        ASSERT_TRUE(W::FilterMedian_32f_C1(src.region(), src.image().step(), dst.pixels<float>(), dst.step(), roi.width,
                                           roi.height, mask.width, mask.height));
        expect_pixels<std::uint32_t>(
            dst, surroundings, [&](int y, int x) { return medians[static_cast<std::size_t>(y * roi.width + x)]; });
        EXPECT_EQ(src.image().bytes(), source);
    });
}

TEST(RankMedian, EqualsSortedWindows)
{
    auto g = make_generator("RankMedian");
    const Size masks[] = {{1, 1}, {1, 9}, {9, 1},   {3, 3},   {3, 5},   {5, 3},
                          {5, 5}, {7, 7}, {15, 15}, {255, 1}, {1, 255}, {25, 3}};
    for (const Size mask : masks) {
        for (int contents = 0; contents < static_cast<int>(Contents::kinds); ++contents) {
            for (const Size roi : {Size{1, 1}, Size{1, uniform(g, 2, 9)}, Size{uniform(g, 2, 40), 1},
                                   Size{uniform(g, 2, 33), uniform(g, 2, 9)}}) {
                check_median(roi, mask, static_cast<Contents>(contents), g);
            }
        }
    }
}

// Every width about those of vectors, and odd and even numbers of rows.
TEST(RankMedian, EqualsSortedWindowsAtAllSmallSizes)
{
    auto g = make_generator("RankMedian small");
    for (int width = 1; width <= 35; ++width) {
        for (const int side : {3, 5})
            check_median({width, uniform(g, 1, 6)}, {side, side}, static_cast<Contents>(uniform(g, 0, 2)), g);
    }
}

// More than a tile, and more than a strip.
TEST(RankMedian, EqualsSortedWindowsInLargeImages)
{
    auto g = make_generator("RankMedian large");
    check_median({100, 90}, {9, 7}, Contents::all_bits, g);
    check_median({90, 100}, {7, 9}, Contents::rising, g);
    check_median({60, 50}, {11, 11}, Contents::nine, g);
    check_median({1100, 5}, {3, 3}, Contents::all_bits, g);
    check_median({517, 4}, {5, 5}, Contents::few, g);
}

// Nine different pixels in all kinds of orders: the fifth of them.
TEST(RankMedian, OfNineIsTheFifth)
{
    auto g = make_generator("RankMedian nine");
    constexpr int tiles = 40;
    std::uint32_t rows[3][3 * tiles], medians[3 * tiles - 2];
    for (int t = 0; t < tiles; ++t) {
        std::uint32_t nine[9];
        std::copy(kNinePixels, kNinePixels + 9, nine);
        std::shuffle(nine, nine + 9, g);
        for (int i = 0; i < 9; ++i) rows[i / 3][3 * t + i % 3] = nine[i];
    }
    at_every_level([&] {
        ASSERT_TRUE(W::FilterMedian_32f_C1(reinterpret_cast<float*>(&rows[1][1]), sizeof(rows[0]),
                                           reinterpret_cast<float*>(medians), sizeof(medians), 3 * tiles - 2, 1, 3, 3));
        for (int t = 0; t < tiles; ++t) EXPECT_EQ(medians[3 * t], 0x3F800000u);
    });
}

// --- Erosion and dilation -------------------------------------------------------------------------

template <class T>
struct Method {
    const char* name;
    bool (*apart)(const T*, int, T*, int, int, int);
    bool (*in_place)(T*, int, int, int);
    const orv::Operation<orv::SrcDst<T>>& operation;
    int channels;
    bool greatest, always_true;
};
#define BOTH(T, type, channels, always_true) \
    {"Erode3x3_" #type, W::Erode3x3_##type, W::Erode3x3_##type##I, orv::orv_Erode3x3_##type, channels, false, \
     always_true}, \
    { \
        "Dilate3x3_" #type, W::Dilate3x3_##type, W::Dilate3x3_##type##I, orv::orv_Dilate3x3_##type, channels, true, \
            always_true \
    }
const Method<u8> kBytes[] = {BOTH(u8, 8u_C1, 1, true), BOTH(u8, 8u_C3, 3, false), BOTH(u8, 8u_C4, 4, false)};
const Method<u16> kWords[] = {BOTH(u16, 16u_C1, 1, false)};
const Method<float> kFloats[] = {BOTH(float, 32f_C1, 1, false)};
#undef BOTH

template <class Check>
void for_each_method(Check check)
{
    for (const auto& m : kBytes) check(m, u8());
    for (const auto& m : kWords) check(m, u16());
    for (const auto& m : kFloats) check(m, float());
}

template <class T>
std::vector<As<T>> extremes(const Method<T>& m, Image& image, Size roi)
{
    std::vector<As<T>> all;
    const int n = roi.width * m.channels;
    for (int y = 0; y < roi.height; ++y) {
        for (int i = 0; i < n; ++i) {
            As<T> best = element<As<T>>(image, y, i);
            for (int row = std::max(0, y - 1); row <= std::min(roi.height - 1, y + 1); ++row) {
                for (int k = i - m.channels; k <= i + m.channels; k += m.channels) {
                    if (k < 0 || k >= n) continue;
                    const As<T> other = element<As<T>>(image, row, k);
                    if (m.greatest ? before(best, other) : before(other, best)) best = other;
                }
            }
            all.push_back(best);
        }
    }
    return all;
}
std::uint32_t raw(Pixel p) { return p.bits; }
template <class T> T raw(T value) { return value; }

template <class T>
void check_extremes(const Method<T>& m, Size roi, std::mt19937& g)
{
    SCOPED_TRACE(m.name + (" " + std::to_string(roi.width)) + " x " + std::to_string(roi.height));
    const int n = roi.width * m.channels;
    Image src = random_pixels<T>(n, roi.height, g);
    if (sizeof(T) == 4 && uniform(g, 0, 3) != 0) {
        // All nine, or those that are numbers: zeros of both signs among them.
        const int margin = uniform(g, 0, 1), last = 8 - 2 * margin;
        for (int y = 0; y < roi.height; ++y) {
            for (int i = 0; i < n; ++i) std::memcpy(src.row(y) + 4 * i, &kNinePixels[uniform(g, margin, last)], 4);
        }
    }
    const auto expected = extremes(m, src, roi);
    const auto source = src.bytes();
    Image dst = random_image(src.row_bytes(), roi.height, g);
    const auto surroundings = dst.bytes();
    using Bits = decltype(raw(As<T>()));
    const auto value = [&](int y, int i) { return raw(expected[static_cast<std::size_t>(y * n + i)]); };
    at_every_level([&] {
        ASSERT_TRUE(m.apart(src.pixels<T>(), src.step(), dst.pixels<T>(), dst.step(), roi.width, roi.height));
        expect_pixels<Bits>(dst, surroundings, value);
        EXPECT_EQ(src.bytes(), source);
        ASSERT_TRUE(m.apart(src.pixels<T>(), src.step(), src.pixels<T>(), src.step(), roi.width, roi.height));
        expect_pixels<Bits>(src, source, value);
        ASSERT_TRUE(m.in_place(src.pixels<T>(), src.step(), roi.width, roi.height));
        expect_pixels<Bits>(src, source, value);
    });
}

TEST(Morphology, EqualsTheExtremesOfNeighbours)
{
    auto g = make_generator("Morphology");
    for_each_method([&](const auto& m, auto) {
        for (int width = 1; width <= 70; ++width) check_extremes(m, {width, uniform(g, 1, 7)}, g);
        for (int height = 1; height <= 9; ++height) check_extremes(m, {uniform(g, 1, 3), height}, g);
        check_extremes(m, {500, 3}, g);
    });
}

// --- Refusals -------------------------------------------------------------------------------------

// Arguments that are wrong from some check on; the first that fails gives the status.
struct Refusal {
    bool no_src, no_dst;
    Size roi;
    int srcStep, dstStep;
    Size mask;
    Status expected;
};
const Refusal kRefusals[] = {
    {true, false, {0, 0}, 0, 0, {2, 2}, orv::StatusNullPointer},
    {false, true, {0, 0}, 0, 0, {2, 2}, orv::StatusNullPointer},
    {false, false, {0, 4}, 0, 0, {2, 2}, orv::StatusBadSize},
    {false, false, {4, 0}, -1, 64, {2, 2}, orv::StatusBadSize},
    {false, false, {INT_MIN, 4}, 64, 64, {3, 3}, orv::StatusBadSize},
    {false, false, {4, 4}, 0, 64, {2, 2}, orv::StatusBadStep},
    {false, false, {4, 4}, 64, INT_MIN, {257, 3}, orv::StatusBadStep},
    {false, false, {4, 4}, 64, 64, {2, 3}, orv::StatusBadMaskSize},
    {false, false, {4, 4}, 64, 64, {3, 0}, orv::StatusBadMaskSize},
    {false, false, {4, 4}, 64, 64, {-3, 3}, orv::StatusBadMaskSize},
    {false, false, {4, 4}, 64, 64, {3, 257}, orv::StatusBadMaskSize},
    {false, false, {4, 4}, 64, 64, {3, INT_MAX}, orv::StatusBadMaskSize},
};

template <class T>
struct Buffer {
    std::vector<T> memory = std::vector<T>(4096, T{7});
    T* at(bool missing) { return missing ? nullptr : memory.data() + 2048; }
    void expect_kept() const { EXPECT_TRUE(memory == std::vector<T>(4096, T{7})); }
};

TEST(Morphology, RefusesInOrder)
{
    for_each_method([&](const auto& m, auto like) {
        using T = decltype(like);
        SCOPED_TRACE(m.name);
        Buffer<T> src, dst;
        for (const Refusal& r : kRefusals) {
            if (r.expected == orv::StatusBadMaskSize) continue;
            at_every_level([&] {
                EXPECT_EQ(m.operation(src.at(r.no_src), r.srcStep, dst.at(r.no_dst), r.dstStep, r.roi), r.expected);
                EXPECT_EQ(m.apart(src.at(r.no_src), r.srcStep, dst.at(r.no_dst), r.dstStep, r.roi.width, r.roi.height),
                          m.always_true);
                if (r.srcStep != 64) {
                    EXPECT_EQ(m.in_place(src.at(r.no_src), r.srcStep, r.roi.width, r.roi.height), m.always_true);
                }
                dst.expect_kept();
                src.expect_kept();
            });
        }
    });
}

TEST(RankMedian, RefusesInOrder)
{
    Buffer<float> src, dst;
    for (const Refusal& r : kRefusals) {
        at_every_level([&] {
            EXPECT_EQ(orv::orv_FilterMedian_32f_C1(src.at(r.no_src), r.srcStep, dst.at(r.no_dst), r.dstStep, r.roi,
                                                   r.mask.width, r.mask.height),
                      r.expected);
            EXPECT_FALSE(W::FilterMedian_32f_C1(src.at(r.no_src), r.srcStep, dst.at(r.no_dst), r.dstStep, r.roi.width,
                                                r.roi.height, r.mask.width, r.mask.height));
            dst.expect_kept();
        });
    }
}

// --- Memory ---------------------------------------------------------------------------------------

TEST(Morphology, WritesNothingWithoutMemory)
{
    for_each_method([&](const auto& m, auto like) {
        using T = decltype(like);
        SCOPED_TRACE(m.name);
        Buffer<T> src, dst;
        at_every_level([&] {
            const AllocationFailure failure(0);
            EXPECT_EQ(m.operation(src.at(false), 64, dst.at(false), 64, {4, 4}), orv::StatusNoMemory);
            EXPECT_EQ(m.apart(src.at(false), 64, dst.at(false), 64, 4, 4), m.always_true);
            EXPECT_EQ(m.in_place(src.at(false), 64, 4, 4), m.always_true);
            dst.expect_kept();
            src.expect_kept();
        });
        // Two rows of more than 2^31 bytes.
        EXPECT_EQ(m.operation(src.at(false), 64, dst.at(false), 64, {INT_MAX, 1}), orv::StatusNoMemory);
        dst.expect_kept();
    });
}

TEST(RankMedian, WritesNothingWithoutMemory)
{
    Buffer<float> src, dst;
    for (const Size mask : {Size{3, 3}, Size{5, 5}, Size{7, 3}, Size{3, 7}}) {
        at_every_level([&] {
            const AllocationFailure failure(0);
            EXPECT_EQ(
                orv::orv_FilterMedian_32f_C1(src.at(false), 64, dst.at(false), 64, {4, 4}, mask.width, mask.height),
                orv::StatusNoMemory);
            dst.expect_kept();
        });
        // One allocation is all that it takes.
        const AllocationFailure failure(1);
        EXPECT_TRUE(W::FilterMedian_32f_C1(src.at(false), 64, dst.at(false), 64, 4, 4, mask.width, mask.height));
    }
}

// What a call asks for, the allocator's own part included.
template <class Call>
long long bytes_taken(Call call)
{
    static long long bytes;
    bytes = 0;
    orv::orv_memory_functions.allocate = [](std::size_t size) -> void* {
        bytes += static_cast<long long>(size);
        return std::malloc(size);
    };
    call();
    orv::orv_memory_functions.allocate = std::malloc;
    return bytes;
}

TEST(RankMedian, TakesNoMoreMemoryThanPromised)
{
    for (const Size roi : {Size{1, 1}, Size{3, 200}, Size{8, 8}, Size{600, 5}, Size{40, 40}}) {
        for (const Size mask : {Size{1, 1}, Size{3, 3}, Size{5, 5}, Size{1, 3}, Size{31, 5}, Size{5, 31}, Size{255, 1},
                                Size{1, 255}, Size{61, 61}}) {
            auto g = make_generator("memory");
            Framed src(roi, mask, Contents::few, g);
            Image dst = random_image(roi.width * 4, roi.height, g);
            at_every_level([&] {
                const long long taken = bytes_taken([&] {
                    W::FilterMedian_32f_C1(src.region(), src.image().step(), dst.pixels<float>(), dst.step(), roi.width,
                                           roi.height, mask.width, mask.height);
                });
                EXPECT_LE(taken, 16LL * (roi.width + mask.width) * (mask.height + 16))
                    << roi.width << " x " << roi.height << ", " << mask.width << " x " << mask.height;
                EXPECT_GT(taken, 0);
            });
        }
    }
}

TEST(Morphology, TakesTwoRowsOfMemory)
{
    for_each_method([&](const auto& m, auto like) {
        using T = decltype(like);
        const int width = 1000, row = width * m.channels * static_cast<int>(sizeof(T)), padded = (row + 63) / 64 * 64;
        auto g = make_generator("memory");
        Image image = random_pixels<T>(width * m.channels, 20, g);
        at_every_level([&] {
            EXPECT_LE(bytes_taken([&] { m.in_place(image.pixels<T>(), image.step(), width, 20); }),
                      2 * padded + 64 + 8);
        });
    });
}

}  // namespace
}  // namespace test
