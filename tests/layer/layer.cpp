// What the layer is made of: views, images, constants, statuses, frames.
#include <array>
#include <complex>
#include <cstring>
#include <orvane.hpp>
#include <set>
#include <vector>

#include "gmock/gmock.h"
#include "support/allocations.h"

namespace {

using orvane::edge;
using orvane::image;
using orvane::mask;
using orvane::outcome;
using orvane::view;

template <class T, int C>
image<T, C> noise(int width, int height, unsigned seed = 1)
{
    image<T, C> made(width, height);
    for (int y = 0; y < height; ++y) {
        for (int k = 0; k < width * C; ++k) {
            seed = seed * 1664525u + 1013904223u;
            made.row(y)[k] = static_cast<T>(seed >> 20);
        }
    }
    return made;
}

template <class T, int C>
bool same(const image<T, C>& a, const image<T, C>& b)
{
    for (int y = 0; y < a.height(); ++y) {
        if (std::memcmp(a.row(y), b.row(y), sizeof(T) * static_cast<std::size_t>(C * a.width())) != 0) return false;
    }
    return a.width() == b.width() && a.height() == b.height();
}

static_assert(std::is_trivially_copyable_v<orvane::status>);
static_assert(std::is_trivially_copyable_v<view<int, 3>>);
static_assert(!std::is_convertible_v<orvane::status, bool>);
static_assert(!std::is_copy_constructible_v<image<float>> && std::is_nothrow_move_constructible_v<image<float>>);
static_assert(!std::is_convertible_v<view<const int>, view<int>>);
static_assert(!std::is_convertible_v<view<int, 3>, view<int, 4>>);

TEST(LayerStatus, Messages)
{
    image<unsigned char, 3> photo(1920, 4), small(5, 4);
    const view<unsigned char, 3> crooked(photo.data(), 1920, 4, 1277), nothing;
    image<unsigned short> words(5, 4);
    const view<unsigned short> uneven(words.data(), 2, 2, 5);
    std::vector<float> five(5), six(6), none;
    double sum[3];
    const struct {
        orvane::status status;
        const char* argument;
        const char* message;
    } rows[] = {
        {orvane::add(crooked, photo, photo), "a",
         "add: a step 1277 is shorter than a row of 1920 pixels (5760 bytes); nothing was written"},
        {orvane::sum(nothing, sum), "source", "sum: source is null; nothing was written"},
        {orvane::add(uneven, uneven, uneven), "a",
         "add: a step 5 is no multiple of an element of 2 bytes; nothing was written"},
        {orvane::add(photo, photo, small), "destination",
         "add: destination is 5 x 4 where 1920 x 4 is needed; nothing was written"},
        {orvane::add(photo, {1, -1, 1}, photo), "value", "add: value -1 is outside 0 ... 255; nothing was written"},
        {orvane::add(five, six, five), "b", "add: b has 6 elements where 5 are needed; nothing was written"},
        {orvane::add(none, five, five), "a", "add: a is null; nothing was written"},
        {orvane::divide(five, 0, five), "value", "divide: value is 0, and it divides; nothing was written"},
        {orvane::lowpass(photo, photo, mask{4}), "size",
         "lowpass: size 4 is not one of those that this operation has; nothing was written"},
        {orvane::lowpass(small, small.part(0, 0, 5, 4), mask::size5x5), "source",
         "lowpass: source has a frame of 0 pixels where the operation reads 2 beyond it: pass a part of a larger "
         "image, "
         "or an edge; nothing was written"},
        {orvane::zoom(small, small, 1.0F), "destination", "zoom: destination overlaps a source; nothing was written"},
        {orvane::zoom(small, photo, -1.0F), "factor", "zoom: factor is not above 0; nothing was written"},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(row.status.message(), row.message);
        EXPECT_STREQ(row.status.argument(), row.argument);
        EXPECT_EQ(row.status.result(), outcome::refused);
        EXPECT_FALSE(row.status.written());
        EXPECT_THROW(row.status.check(), orvane::error);
    }
}

TEST(LayerStatus, WarningsAreWrittenAndDoNotThrow)
{
    const std::array<float, 2> dividends = {6, 1}, divisors = {2, 0};
    std::array<float, 2> quotients = {};
    const orvane::status s = orvane::divide(dividends, divisors, quotients);
    EXPECT_EQ(s.message(), "divide: a division by zero; everything was written");
    EXPECT_FALSE(s);
    EXPECT_TRUE(s.written());
    s.check();
    EXPECT_EQ(quotients[0], 3);
    std::vector<double> negative = {-1};
    EXPECT_EQ(orvane::square_root(negative, negative).result(), outcome::warned);
    std::vector<double> zero = {0};
    EXPECT_EQ(orvane::logarithm(zero, zero).result(), outcome::warned);
}

// The two operations in place whose false may be either: whatever the image holds that they keep.
TEST(LayerStatus, MemoryThatRunsOutIsABadAlloc)
{
    const float negative_nan = -std::numeric_limits<float>::quiet_NaN(),
                infinity = std::numeric_limits<float>::infinity();
    const struct {
        const char* name;
        orvane::status (*call)(view<float>);
        std::vector<float> kept;
        double given, result;
    } rows[] = {{"square_root", orvane::square_root, {0.0F, -0.0F, 1, infinity, negative_nan}, 9, 3},
                {"logarithm", orvane::logarithm, {infinity, negative_nan, -negative_nan}, 1, 0}};
    for (const auto& row : rows) {
        image<float> picture(4, 4);
        for (int k = 0; k < 15; ++k) picture(k % 4, k / 4) = row.kept[static_cast<std::size_t>(k) % row.kept.size()];
        picture(3, 3) = static_cast<float>(row.given);
        {
            const test::AllocationFailure none(0);
            const orvane::status s = row.call(picture);
            EXPECT_EQ(s.message(), std::string(row.name) + ": memory ran out; nothing was written");
            EXPECT_EQ(s.result(), outcome::out_of_memory);
            EXPECT_THROW(s.check(), std::bad_alloc);
            EXPECT_EQ(picture(3, 3), row.given);
        }
        EXPECT_EQ(row.call(picture).result(), outcome::warned);
        EXPECT_EQ(picture(3, 3), row.result);
        EXPECT_EQ(row.call(picture.part(0, 0, 4, 3)).result(), outcome::warned) << "nothing to be seen";
        EXPECT_STREQ(row.call({}).argument(), "image");
        picture(0, 0) = 1;
        EXPECT_TRUE(row.call(picture.part(0, 0, 1, 1)));
    }
}

// Where false would be a warning, a destination that needs memory is refused: nobody could tell the two apart.
TEST(LayerStatus, PartialOverlapOfAQuotient)
{
    image<float> picture(8, 8);
    EXPECT_STREQ(
        orvane::divide(picture.part(0, 0, 4, 4), picture.part(0, 4, 4, 4), picture.part(1, 0, 4, 4)).argument(),
        "destination");
    EXPECT_TRUE(orvane::divide(picture.part(0, 0, 4, 4), picture.part(0, 4, 4, 4), picture.part(4, 0, 4, 4)).written());
    EXPECT_TRUE(orvane::divide(picture, picture, picture).written());
}

TEST(LayerView, Parts)
{
    image<short, 3> picture = noise<short, 3>(20, 10);
    const auto part = picture.part(3, 2, 10, 5);
    EXPECT_EQ(part.data(), &picture(3, 2));
    EXPECT_EQ(part(1, 1, 2), picture(4, 3, 2));
    const auto inner = part.part(1, 1, 2, 2);
    EXPECT_EQ(inner.around().left, 4);
    EXPECT_EQ(inner.around().top, 3);
    EXPECT_EQ(inner.around().right, 20 - 4 - 2);
    EXPECT_EQ(inner.around().bottom, 10 - 3 - 2);
    for (const auto& outside :
         {picture.part(-1, 0, 2, 2), picture.part(0, -1, 2, 2), picture.part(19, 0, 2, 2), picture.part(0, 9, 2, 2),
          picture.part(0, 0, 0, 1), picture.part(2147483647, 0, 2, 2), picture.part(0, 0, 21, 1)}) {
        EXPECT_EQ(outside.data(), nullptr);
    }
    EXPECT_EQ(image<short>().part(0, 0, 1, 1).data(), nullptr);
    const view<const short, 3> read = part;  // keeps what lies around
    EXPECT_EQ(read.around().left, 3);
}

// Foreign images: functions or fields, with and without their channels.
struct Camera {
    unsigned short pixels[6] = {1, 2, 3, 4, 5, 6};
    unsigned short* data() { return pixels; }
    unsigned width() const { return 3; }
    unsigned height() const { return 2; }
    unsigned step() const { return 6; }
};
struct Frame {
    static constexpr int channels = 3;
    unsigned char* data;
    int width, height, step;
};

TEST(LayerView, Foreign)
{
    Camera camera;
    const view<const unsigned short> seen(camera);
    EXPECT_EQ(seen(2, 1), 6);
    static_assert(!std::is_convertible_v<Camera&, view<unsigned short>>, "channels that nobody told need a word");
    unsigned char bytes[12] = {};
    Frame frame{bytes, 2, 2, 6};
    EXPECT_TRUE(orvane::add(frame, {1, 2, 3}, frame));
    EXPECT_THAT(bytes, ::testing::ElementsAre(1, 2, 3, 1, 2, 3, 1, 2, 3, 1, 2, 3));
    static_assert(!std::is_convertible_v<Frame&, view<unsigned char, 4>>);
    static_assert(!std::is_convertible_v<const Camera&, view<unsigned short>>);
}

// What a view asks of a std::mdspan with strides, which this compiler's library may not have.
template <class T, std::size_t Rank>
class Mdspan
{
public:
    using index_type = int;
    struct extents_type {
        template <class... Sizes>
        extents_type(Sizes... n) : sizes{n...}
        {
        }
        std::array<int, Rank> sizes;
    };
    struct mapping_type {
        mapping_type(const extents_type& e, const std::array<int, Rank>& s) : extents(e.sizes), strides(s) {}
        std::array<int, Rank> extents, strides;
    };

    Mdspan() : Mdspan(nullptr, mapping_type(extents_type(), {})) {}
    Mdspan(T* data, const mapping_type& mapping) : data_(data), mapping_(mapping) {}
    static constexpr std::size_t rank() { return Rank; }
    T* data_handle() const { return data_; }
    int extent(std::size_t r) const { return mapping_.extents[r]; }
    int stride(std::size_t r) const { return mapping_.strides[r]; }

private:
    T* data_;
    mapping_type mapping_;
};

TEST(LayerView, Mdspans)
{
    image<short> grey = noise<short, 1>(5, 4);
    image<short, 3> photo = noise<short, 3>(5, 4);
    const auto plane = view<short>(grey.part(1, 1, 3, 2)).as<Mdspan<short, 2>>();
    EXPECT_EQ(plane.data_handle(), &grey(1, 1));
    EXPECT_EQ(plane.extent(0), 2);
    EXPECT_EQ(plane.stride(0), 32);
    const view<const short> back = plane;
    EXPECT_EQ(back.width(), 3);
    EXPECT_EQ(back.height(), 2);
    EXPECT_EQ(back.step(), 64);

    const auto pixels = view<const short, 3>(photo).as<Mdspan<const short, 3>>();
    const view<const short, 3> seen = pixels;
    EXPECT_EQ(&seen(4, 3, 2), &photo(4, 3, 2));
    EXPECT_EQ((view<short>(grey.data(), 2, 2, 5).as<Mdspan<short, 2>>().data_handle()), nullptr);
    const Mdspan<short, 2> columns(grey.data(), {{4, 2}, {32, 2}});
    const Mdspan<short, 3> four(photo.data(), {{4, 2, 4}, {32, 4, 1}}), gaps(photo.data(), {{4, 2, 3}, {32, 4, 1}});
    EXPECT_EQ(view<short>(columns).data(), nullptr);
    EXPECT_EQ((view<short, 3>(four).data()), nullptr);
    EXPECT_EQ((view<short, 3>(gaps).data()), nullptr);
    static_assert(!std::is_convertible_v<Mdspan<short, 2>, view<short, 3>>);
    static_assert(!std::is_convertible_v<Mdspan<const short, 2>, view<short>>);
}

TEST(LayerView, Complex)
{
    image<std::complex<float>> picture(3, 2);
    ASSERT_TRUE(orvane::add(picture, std::complex<float>(1, 2), picture));
    EXPECT_EQ(picture(2, 1), std::complex<float>(1, 2));
}

TEST(LayerImage, Owns)
{
    image<unsigned char, 3> made(5, 3);
    EXPECT_EQ(made.step(), 64);
    EXPECT_EQ(reinterpret_cast<std::size_t>(made.data()) % 64, 0u);
    EXPECT_EQ(made(4, 2, 2), 0);
    made(4, 2, 2) = 7;
    image<unsigned char, 3> copy = made.clone();
    unsigned char* const address = made.data();
    image<unsigned char, 3> moved = std::move(made);
    EXPECT_EQ(moved.data(), address);
    EXPECT_EQ(made.data(), nullptr);
    EXPECT_EQ(made.width(), 0);
    copy(0, 0) = 1;
    EXPECT_EQ(moved(0, 0), 0);
    EXPECT_EQ(copy(4, 2, 2), 7);
    moved = image<unsigned char, 3>(2, 2);
    EXPECT_EQ(moved.width(), 2);
    EXPECT_THROW((image<int>(0, 1)), orvane::error);
    EXPECT_THROW((image<int>(1, -1)), orvane::error);
    EXPECT_THROW((image<double, 4>(2147483647, 1)), orvane::error);
    if (sizeof(void*) == 4) {
        EXPECT_THROW((image<int>(400000000, 2147483647)), std::bad_alloc);
    }
}

TEST(LayerConstants, Range)
{
    EXPECT_FALSE((orvane::constant<unsigned char, 1>(256)).held());
    EXPECT_FALSE((orvane::constant<unsigned char, 1>(-1)).held());
    EXPECT_TRUE((orvane::constant<unsigned char, 1>(255u)).held());
    EXPECT_FALSE((orvane::constant<int, 1>(3000000000u)).held());
    EXPECT_FALSE((orvane::constant<unsigned, 1>(-1)).held());
    EXPECT_EQ((orvane::constant<short, 1>(70000)).given(), 70000);
    EXPECT_TRUE((orvane::constant<float, 3>(1e300, 2, 3.5f)).held());
    const unsigned char values[3] = {1, 2, 3};
    EXPECT_EQ((orvane::constant<unsigned char, 3>(values)).data()[2], 3);
}

// The scale reaches the method, and the left operand stands left.
TEST(LayerCalls, ScaleAndOrder)
{
    image<unsigned char> a(1, 1), b(1, 1), result(1, 1);
    a(0, 0) = 200, b(0, 0) = 100;
    orvane::add(a, b, result, 1).check();
    EXPECT_EQ(result(0, 0), 150);
    orvane::subtract(b, a, result).check();
    EXPECT_EQ(result(0, 0), 0);
    std::vector<int> ten = {10};
    orvane::subtract_from(90, ten, ten, 3).check();
    EXPECT_EQ(ten[0], 10);
}

// Every pair of regions in a small block of memory, against the set of their bytes.
TEST(LayerChecks, Overlap)
{
    unsigned char block[64];
    const auto bytes = [](const view<unsigned char>& v) {
        std::set<const unsigned char*> all;
        for (int y = 0; y < v.height(); ++y) {
            for (int x = 0; x < v.width(); ++x) all.insert(&v(x, y));
        }
        return all;
    };
    const view<unsigned char> one(block + 24, 3, 3, 8);
    for (int start = 0; start < 44; ++start) {
        for (int width = 1; width <= 8; ++width) {
            const view<unsigned char> other(block + start, width, 3, 8);
            bool shared = false;
            for (const unsigned char* byte : bytes(other)) shared = shared || bytes(one).count(byte) != 0;
            EXPECT_EQ(orvane::detail::overlap(one, other), shared) << start << ' ' << width;
            EXPECT_EQ(orvane::detail::overlap(other, one), shared) << start << ' ' << width;
        }
    }
}

template <class T, int C>
void expect_edges(const orvane::constant<T, C>& value)
{
    const image<T, C> source = noise<T, C>(9, 200);
    image<T, C> framed(13, 204), expected(9, 200), made(9, 200), in_place = source.clone();
    for (const edge beyond : {edge::replicate, edge::constant}) {
        (beyond == edge::replicate ? orvane::extend_replicate(source, framed, 2, 2)
                                   : orvane::extend_constant(source, framed, 2, 2, value))
            .check();
        orvane::lowpass(framed.part(2, 2, 9, 200), expected, mask::size5x5).check();
        orvane::lowpass(source, made, mask::size5x5, beyond, value).check();
        EXPECT_TRUE(same(made, expected));
        orvane::copy(source, in_place).check();
        orvane::lowpass(in_place, in_place, mask::size5x5, beyond, value).check();
        EXPECT_TRUE(same(in_place, expected));
    }
}

// In bands, and through one frame in place.
TEST(LayerFrames, TallImages)
{
    expect_edges<unsigned char, 3>({7, 100, 200});
    expect_edges<unsigned short, 1>(1000);
    expect_edges<float, 1>(2.5);
    expect_edges<float, 3>({1, 2, 3});
    image<float> source(4, 4), result(4, 4);
    EXPECT_STREQ(orvane::lowpass(source, result, mask::size3x3, edge{7}).argument(), "beyond");
}

// A neighbourhood of more rows than a band has: several bands then reach beyond the image.
TEST(LayerFrames, TallNeighbourhoods)
{
    const image<float> source = noise<float, 1>(5, 300), kernel = noise<float, 1>(1, 255);
    image<float> framed(5, 554), expected(5, 300), made(5, 300);
    std::vector<float> weights;
    for (int y = 0; y < 255; ++y) weights.push_back(*kernel.part(0, y, 1, 1).data());
    orvane::extend_replicate(source, framed, 0, 84).check();
    orvane::convolve(framed.part(0, 84, 5, 300), expected, weights, 1, 255, 0, 170).check();
    orvane::convolve(source, made, weights, 1, 255, 0, 170, edge::replicate).check();
    EXPECT_TRUE(same(made, expected));
}

TEST(LayerCalls, ATableForEachChannel)
{
    std::vector<unsigned char> twice(256), half(256), none(256);
    for (std::size_t k = 0; k < 256; ++k) {
        twice[k] = static_cast<unsigned char>(2 * k);
        half[k] = static_cast<unsigned char>(k / 2);
    }
    unsigned char bytes[8] = {10, 20, 30, 40, 11, 21, 31, 41}, made[8];
    orvane::lookup({bytes, 2, 1, 6}, {twice, half, none}, {made, 2, 1, 6}).check();
    EXPECT_THAT(std::vector<int>(made, made + 6), ::testing::ElementsAre(20, 10, 0, 80, 5, 0));
    orvane::lookup({bytes, 2, 1, 8}, {twice, half, none, twice}, {made, 2, 1, 8}).check();
    EXPECT_THAT(std::vector<int>(made, made + 8), ::testing::ElementsAre(20, 10, 0, 80, 22, 10, 0, 82));
}

TEST(LayerCalls, Requirements)
{
    image<unsigned char, 3> photo(4, 4), row(4, 1), larger(6, 6);
    image<unsigned char> grey(4, 4);
    image<float> plane(4, 4), tall(3, 5);
    std::vector<unsigned char> table(256), short_table(255), levels = {0, 9, 9}, values = {1, 2, 3};
    std::vector<int> counts(4), edges(4);
    const float thresholds[2] = {1, 2};
    const double nan = std::numeric_limits<double>::quiet_NaN();
    const struct {
        orvane::status status;
        const char* argument;
    } rows[] = {
        {orvane::swap_channels(photo, {0, 3, 1}), "order"},
        {orvane::mirror(row, orvane::axis::horizontal), "image"},
        {orvane::mirror(photo, orvane::axis{3}), "about"},
        {orvane::transpose(plane, tall), "destination"},
        {orvane::extend_replicate(photo, larger, 3, 0), "left"},
        {orvane::extend_replicate(photo, larger, 0, -1), "top"},
        {orvane::lookup(grey, short_table, grey), "table"},
        {orvane::lookup(photo, {table, table, short_table}, photo), "tables"},
        {orvane::lookup(photo, {table, table, table}, larger), "destination"},
        {orvane::curve(grey, levels, values, grey), "levels"},
        {orvane::curve(grey, orvane::span<unsigned char>(levels).part(0, 2), values, grey), "values"},
        {orvane::histogram(grey, counts, edges, 0, 255), "counts"},
        {orvane::threshold_both(plane, plane, thresholds[1], 0, thresholds[0], 0), "lower"},
        {orvane::rotate(plane, tall, nan, 0, 0), "degrees"},
        {orvane::rotate(plane, tall, 0, 0, nan), "y_shift"},
        {orvane::rotate(plane, tall, 0, 0, 0, orvane::interpolation::area), "how"},
        {orvane::remap(plane, tall, plane, plane), "x_map"},
        {orvane::rgb_to_ycbcr(photo, photo, orvane::colour_standard{4}), "standard"},
        {orvane::rgb_to_ycbcr(photo, photo.part(0, 0, 4, 4).part(0, 0, 3, 4), orvane::colour_standard{0}),
         "destination"},
    };
    for (const auto& r : rows) {
        EXPECT_STREQ(r.status.argument(), r.argument) << r.status.message();
        EXPECT_EQ(r.status.result(), outcome::refused) << r.status.message();
    }
}

}  // namespace
