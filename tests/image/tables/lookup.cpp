// Lookup tables and palettes: entries that differ from their neighbours and from their index, next to pages that
// cannot be touched.
#include <numeric>

#include "image/tables/lookup.h"
#include "support/image_tests.h"

namespace test {
namespace {

using u32 = unsigned;

const int kWidths[] = {1, 2, 7, 8, 9, 16, 31, 32, 33, 63, 64, 65, 100, 300, 1000};

// The bits of the k-th entry of a table; every variety (0, 1, ...) is another table.
template <class T>
T entry(std::size_t k, unsigned variety = 0)
{
    const auto mixed = static_cast<u32>(k + 1) * (2654435761u + 2 * variety) + 77 * variety;
    if constexpr (std::is_same<T, float>::value) {
        float value;
        const u32 bits = k % 5 == 3 ? 0x7F800001 + mixed % 0x7FFFFF : mixed;  // signalling NaNs among them
        std::memcpy(&value, &bits, sizeof(value));
        return value;
    }
    return sizeof(T) == 1 ? static_cast<T>(167 * k + 91 + variety * 29) : static_cast<T>(mixed >> 7);
}

// A table whose last entry lies before a page that cannot be touched.
template <class T>
class Table {
public:
    explicit Table(std::size_t entries, unsigned variety = 0) : block_(entries * sizeof(T))
    {
        for (std::size_t k = 0; k < entries; ++k) {
            const T value = entry<T>(k, variety);
            std::memcpy(block_.as() + k * sizeof(T), &value, sizeof(T));
        }
    }
    const T* data() const { return block_.as<const T>(); }

private:
    GuardedBlock block_;
};

// Bits of an element, for which no two NaNs are the same.
template <class T>
u32 bits(T value)
{
    u32 all = 0;
    std::memcpy(&all, &value, sizeof(T));
    return all;
}

template <class S, class D>
void check_table(bool (*method)(const S*, int, const D*, D*, int, int, int))
{
    const std::size_t entries = std::size_t{1} << (8 * sizeof(S));
    const Table<D> table(entries);
    std::mt19937 g = make_generator("table");
    for (const int width : kWidths) {
        Image a = random_pixels<S>(width, 3, g), d = random_image(width * static_cast<int>(sizeof(D)), 3, g);
        const auto before = d.bytes();
        at_every_level([&] {
            ASSERT_TRUE(method(a.pixels<S>(), a.step(), table.data(), d.pixels<D>(), d.step(), width, 3));
            expect_pixels<D>(d, before, [&](int y, int i) { return entry<D>(element<S>(a, y, i)); });
        });
    }
    std::vector<S> all(entries);
    std::iota(all.begin(), all.end(), S{0});
    std::shuffle(all.begin(), all.end(), g);
    std::vector<D> got(entries);
    at_every_level([&] {
        std::fill(got.begin(), got.end(), D{});
        // Rows without gaps, from the last one upward.
        const int width = 64, height = static_cast<int>(entries) / width;
        const int up = -width * static_cast<int>(sizeof(S)), last = width * (height - 1);
        ASSERT_TRUE(method(all.data() + last, up, table.data(), got.data(), width * static_cast<int>(sizeof(D)), width,
                           height));
        for (std::size_t i = 0; i < entries; ++i) {
            const std::size_t row = i / 64, from = (static_cast<std::size_t>(height) - 1 - row) * 64 + i % 64;
            ASSERT_EQ(bits(got[i]), bits(entry<D>(all[from]))) << i;
        }
    });
}

TEST(Lookup, EveryValue)
{
    check_table(W::LUT_8u_C1);
    check_table(W::LUT_8u16u_C1);
    check_table(W::LUT_8u32f_C1);
    check_table(W::LUT_16u_C1);
    check_table(W::LUT_16u8u_C1);
    check_table(W::LUT_16u32f_C1);
}

TEST(Lookup, InPlace)
{
    const Table<u8> bytes(256);
    const Table<u16> words(65536);
    std::mt19937 g = make_generator("in place");
    for (const int width : kWidths) {
        Image a = random_pixels<u8>(width, 3, g), b = random_pixels<u16>(width, 3, g);
        const auto before_a = a.bytes(), before_b = b.bytes();
        at_every_level([&] {
            ASSERT_TRUE(W::LUT_8u_C1(a.pixels<u8>(), a.step(), bytes.data(), a.pixels<u8>(), a.step(), width, 3));
            expect_pixels<u8>(a, before_a, [&](int y, int i) { return entry<u8>(element<u8>(a, y, i)); });
            ASSERT_TRUE(W::LUT_16u_C1(b.pixels<u16>(), b.step(), words.data(), b.pixels<u16>(), b.step(), width, 3));
            expect_pixels<u16>(b, before_b, [&](int y, int i) { return entry<u16>(element<u16>(b, y, i)); });
        });
    }
}

TEST(Lookup, TablePerChannel)
{
    struct Row {
        int channels;
        bool (*method)(const u8*, int, const u8* const*, u8*, int, int, int);
    };
    std::mt19937 g = make_generator("channels");
    const Table<u8> tables[4] = {Table<u8>(256, 0), Table<u8>(256, 1), Table<u8>(256, 2), Table<u8>(256, 3)};
    const unsigned choices[][4] = {{0, 1, 2, 3}, {3, 1, 0, 2}, {2, 2, 2, 2}, {1, 1, 3, 1}, {0, 0, 0, 1}};
    for (const Row& row : {Row{3, W::LUT_8u_C3}, Row{4, W::LUT_8u_C4}}) {
        for (const int width : kWidths) {
            for (const auto& choice : choices) {
                const u8* pointers[4];
                for (int c = 0; c < 4; ++c) pointers[c] = tables[choice[c]].data();
                Image a = random_pixels<u8>(width * row.channels, 3, g), d = random_image(width * row.channels, 3, g);
                const auto before_a = a.bytes(), before = d.bytes();
                const auto want = [&](int y, int i) {
                    return entry<u8>(element<u8>(a, y, i), choice[i % row.channels]);
                };
                at_every_level([&] {
                    ASSERT_TRUE(row.method(a.pixels<u8>(), a.step(), pointers, d.pixels<u8>(), d.step(), width, 3));
                    expect_pixels<u8>(d, before, want);
                    ASSERT_TRUE(row.method(a.pixels<u8>(), a.step(), pointers, a.pixels<u8>(), a.step(), width, 3));
                    expect_pixels<u8>(a, before_a, want);
                });
            }
        }
    }
}

TEST(Lookup, Palettes)
{
    std::mt19937 g = make_generator("palettes");
    for (const int size : {1, 2, 4096, 65535, 65536}) {
        const Table<u32> palette(static_cast<std::size_t>(size));
        for (const int width : kWidths) {
            Image a = random_pixels<u16>(width, 3, g), d = random_image(4 * width, 3, g);
            // The last entry, one beyond it, and the far end.
            const u16 ends[3] = {static_cast<u16>(size - 1), static_cast<u16>(std::min(size, 65535)), 65535};
            std::memcpy(a.row(0), ends, static_cast<std::size_t>(std::min(width, 3)) * sizeof(u16));
            const auto before = d.bytes();
            at_every_level([&] {
                ASSERT_TRUE(W::LUTPalette_16u32u_C1R(a.pixels<u16>(), a.step(), palette.data(), size, d.pixels<u32>(),
                                                     d.step(), width, 3));
                expect_pixels<u32>(d, before, [&](int y, int i) {
                    return entry<u32>(static_cast<std::size_t>(std::min<int>(element<u16>(a, y, i), size - 1)));
                });
            });
        }
    }
}

TEST(Lookup, RefusalsWriteNothing)
{
    std::mt19937 g = make_generator("refusals");
    Image source(64, 2, {true, true, 0, 0}, g), image(64, 2, {true, false, 0, 0}, g);
    const auto before = image.bytes();
    const Table<u8> bytes(256);
    const Table<u32> palette(4);
    const u8* const s = source.pixels<u8>();
    u8* const d = image.pixels<u8>();
    const int step = image.step();
    const u8* tables[4] = {bytes.data(), bytes.data(), bytes.data(), bytes.data()};
    at_every_level([&] {
        const orv::Size good = {2, 2};
        for (const orv::Size bad :
             {orv::Size{0, 2}, orv::Size{2, 0}, orv::Size{-1, 2}, orv::Size{2, -2147483647 - 1}}) {
            EXPECT_EQ(orv::orv_LUT_8u_C1(s, step, bytes.data(), d, step, bad), -6);
            EXPECT_EQ(orv::orv_LUT_8u_C3(s, step, tables, d, step, bad), -6);
            EXPECT_EQ(orv::orv_LUT_8u_C4(nullptr, step, tables, d, step, bad), -8) << "pointers come first";
            EXPECT_EQ(orv::orv_LUTPalette_16u32u_C1R(source.pixels<u16>(), step, palette.data(), 0, image.pixels<u32>(),
                                                     step, bad),
                      -6);
            EXPECT_FALSE(W::LUT_16u32f_C1(source.pixels<u16>(), step, image.pixels<float>(), image.pixels<float>(),
                                          step, bad.width, bad.height));
        }
        for (const int size : {0, -1, 65537, 2147483647, -2147483647 - 1}) {
            EXPECT_EQ(orv::orv_LUTPalette_16u32u_C1R(source.pixels<u16>(), step, palette.data(), size,
                                                     image.pixels<u32>(), step, good),
                      -107);
        }
        EXPECT_EQ(orv::orv_LUT_8u_C1(nullptr, step, bytes.data(), d, step, good), -8);
        EXPECT_EQ(orv::orv_LUT_8u_C1(s, step, nullptr, d, step, good), -8);
        EXPECT_EQ(orv::orv_LUT_8u_C1(s, step, bytes.data(), nullptr, step, good), -8);
        EXPECT_EQ(orv::orv_LUT_8u_C4(s, step, nullptr, d, step, good), -8);
        for (int c = 0; c < 4; ++c) {
            const u8* some[4] = {bytes.data(), bytes.data(), bytes.data(), bytes.data()};
            some[c] = nullptr;
            EXPECT_EQ(orv::orv_LUT_8u_C4(s, step, some, d, step, {0, 0}), -8) << c;
            EXPECT_EQ(orv::orv_LUT_8u_C3(s, step, some, c < 3 ? d : nullptr, step, good), -8) << c;
        }
        EXPECT_FALSE(W::LUTPalette_16u32u_C1R(source.pixels<u16>(), step, nullptr, 4, image.pixels<u32>(), step, 2, 2));
        ASSERT_EQ(image.bytes(), before);
    });
}

}  // namespace
}  // namespace test
