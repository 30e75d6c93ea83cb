#include "image/moving/data_movement.h"

#include <cstdint>
#include <cstring>
#include <limits>
#include <type_traits>

#include "core/checks.h"
#include "image/moving/copy_rows.h"
#include "core/float_control.h"
#include "core/overlap.h"
#include "elementwise/rows.h"
#include "simd/conversion.h"
#include "simd/partial.h"
#include "simd/shuffles.h"

namespace orv {
namespace data_movement {
namespace ORV_LEVEL {
namespace {

using std::int16_t;
using std::int32_t;
using std::uint16_t;
using std::uint32_t;
using std::uint8_t;

// Pixels that move as a whole. Alignment 1: an image may start anywhere.
template <int Bytes>
struct Pixel {
    uint8_t byte[Bytes];
};

// --- Copy and set ---------------------------------------------------------------------------------
//
// Bytes and bit patterns only: a float that passed through the x87 would lose its signalling NaNs.

template <class T, class Self>
ORV_INLINE Status copy(Self self, const T* src, int srcStep, T* dst, int dstStep, Size roi, int channels)
{
    if (const Status bad = check_image(roi, src, dst)) return bad;
    if (may_overlap<kReadAtOnce>(roi, channels, src, srcStep, dst, dstStep)) {
        return by_rows(self, channels, src, srcStep, dst, dstStep, roi);
    }
    const int pixel_bytes = channels * static_cast<int>(sizeof(T));
    const Rows rows(roi, pixel_bytes, 1, srcStep, dstStep);
    for (int y = 0; y < rows.count; ++y) {
        copy_row(reinterpret_cast<const uint8_t*>(row_at(src, srcStep, y)),
                 reinterpret_cast<uint8_t*>(row_at(dst, dstStep, y)), rows.n);
    }
    return StatusOk;
}

// The constant, whatever stands in the image.
struct Constant {
    template <class T> ORV_INLINE T one(T value, T) const { return value; }
    template <class V> ORV_INLINE V many(V value, V) const { return value; }
};

template <class T>
Status set(const T* values, T* dst, int dstStep, Size roi, int channels)
{
    if (const Status bad = check_image(roi, values, dst)) return bad;
    Constant op;
    constant_plane(values, dst, dstStep, dst, dstStep, roi, channels, op);
    return StatusOk;
}

// Floats are set by their bits.
Status set_bits(const float* values, float* dst, int dstStep, Size roi, int channels)
{
    if (const Status bad = check_image(roi, values, dst)) return bad;
    uint32_t words[4];
    std::memcpy(words, values, sizeof(float) * static_cast<std::size_t>(channels));
    return set(words, reinterpret_cast<uint32_t*>(dst), dstStep, roi, channels);
}

// --- Conversion -----------------------------------------------------------------------------------

// Rows of n elements, `many` lanes at a time and, at the end, once more over the last ones.
template <class From, class To, class Op>
ORV_INLINE void convert_row(const From* src, To* dst, std::ptrdiff_t n, Op op)
{
    std::ptrdiff_t i = 0;
    if constexpr (ORV_HAVE_VECTORS) {
        if (n >= Op::kLanes) {
            for (; i < n - Op::kLanes; i += Op::kLanes) simd::store(dst + i, op.many(src + i));
            simd::store(dst + n - Op::kLanes, op.many(src + n - Op::kLanes));
            return;
        }
        if (n >= Op::kFewLanes) {
            for (; i < n - Op::kFewLanes; i += Op::kFewLanes) simd::store(dst + i, op.few(src + i));
            simd::store(dst + n - Op::kFewLanes, op.few(src + n - Op::kFewLanes));
            return;
        }
    }
    for (; i < n; ++i) put(dst + i, op.one(get(src + i)));
}

template <class From, class To, class Op>
void convert(const From* src, int srcStep, To* dst, int dstStep, Size roi, int channels, Op op)
{
    Rows rows(roi, channels);
    rows.merge(srcStep == rows.n * static_cast<int>(sizeof(From)) && dstStep == rows.n * static_cast<int>(sizeof(To)));
    for (int y = 0; y < rows.count; ++y) convert_row(row_at(src, srcStep, y), row_at(dst, dstStep, y), rows.n, op);
}

template <class From, class To>
struct Widen {
    To one(From x) const { return static_cast<To>(x); }
    static constexpr int kLanes = simd::widest<To>::N;
    static constexpr int kFewLanes = simd::half<To>::N;
    ORV_INLINE auto many(const From* p) const { return simd::load_as<simd::widest<To>>::from(p); }
    ORV_INLINE auto few(const From* p) const { return simd::load_as<simd::half<To>>::from(p); }
};

template <class From, class To, class Self>
ORV_INLINE Status widen(Self self, const From* src, int srcStep, To* dst, int dstStep, Size roi, int channels)
{
    if (const Status bad = check_image(roi, src, dst)) return bad;
    if (may_overlap(roi, channels, src, srcStep, dst, dstStep)) {
        return by_rows(self, channels, src, srcStep, dst, dstStep, roi);
    }
    convert(src, srcStep, dst, dstStep, roi, channels, Widen<From, To>{});
    return StatusOk;
}

// Nearest integer of the type, ties to even; whatever lies outside saturates and a NaN gives 0.
template <class To>
struct Narrow {
    static constexpr int kMost = std::numeric_limits<To>::max();
    To one(float x) const
    {
        if (x >= static_cast<float>(kMost)) return static_cast<To>(kMost);
        if (!(x > 0)) return 0;
        // The fraction of a float is exact, also where the x87 rounds to 24 bits.
        const int whole = static_cast<int>(x);
        const float fraction = x - static_cast<float>(whole);
        const bool up = fraction > 0.5f || (fraction == 0.5f && (whole & 1) != 0);
        return static_cast<To>(whole + (up ? 1 : 0));
    }
    static constexpr int kPerVector = static_cast<int>(4 / sizeof(To));  // float vectors in one of To
    // Where the integers are narrower than the floats, as many lanes as theirs.
    using Many = simd::floats_of<simd::widest<int32_t>>;
    using Few = simd::floats_of<simd::half<int32_t>>;
    static constexpr int kLanes = kPerVector * Many::N;
    static constexpr int kFewLanes = kPerVector * Few::N;

    template <class F> static ORV_INLINE auto rounded(const float* p)
    {
        // max() first: it turns a NaN into its second operand.
        const F bounded =
            simd::min(simd::max(simd::load<F>(p), simd::zero<F>()), simd::splat<F>(static_cast<float>(kMost)));
        return simd::round_to_int(bounded);
    }
    template <class F> static ORV_INLINE auto packed(const float* p)
    {
        if constexpr (kPerVector == 2) {
            return pack(rounded<F>(p), rounded<F>(p + F::N));
        } else {
            return pack(rounded<F>(p), rounded<F>(p + F::N), rounded<F>(p + 2 * F::N), rounded<F>(p + 3 * F::N));
        }
    }
    ORV_INLINE auto many(const float* p) const { return packed<Many>(p); }
    ORV_INLINE auto few(const float* p) const { return packed<Few>(p); }
};

template <class To, class Self>
ORV_INLINE Status narrow(Self self, const float* src, int srcStep, To* dst, int dstStep, Size roi, int channels)
{
    if (const Status bad = check_images(src, srcStep, dst, dstStep, roi)) return bad;
    if (may_overlap(roi, channels, src, srcStep, dst, dstStep)) {
        return by_rows(self, channels, src, srcStep, dst, dstStep, roi);
    }
    const FloatControl control;
    convert(src, srcStep, dst, dstStep, roi, channels, Narrow<To>{});
    return StatusOk;
}

// --- Three-channel pixels -------------------------------------------------------------------------
//
// Sixteen three-byte pixels fill three vectors. A reordering inside each pixel takes each byte of a
// vector from that vector or from a neighbour in the group; so does one of the pixels back to front,
// once the three vectors are taken back to front. Two groups at a time where vectors are twice as wide.

// Three vectors side by side. Members, not an array: an array would be kept in memory.
template <class V>
struct Group3 {
    static constexpr int N = V::N;  // pixels
    V first, second, third;
};

template <class Vector, bool mirrored>
struct Groups3 {
    using V = Vector;
    static constexpr int kPixels = V::N;

    // Which bytes of the source vectors go to each vector of the result.
    V first_from_first, first_from_second;
    V second_from_first, second_from_second, second_from_third;
    V third_from_second, third_from_third;

    // from[b]: the byte of the 48-byte group that goes to byte b.
    ORV_INLINE explicit Groups3(const uint8_t* from)
        : first_from_first(picks(from, 0, 0)),
          first_from_second(picks(from, 0, 1)),
          second_from_first(picks(from, 1, 0)),
          second_from_second(picks(from, 1, 1)),
          second_from_third(picks(from, 1, 2)),
          third_from_second(picks(from, 2, 1)),
          third_from_third(picks(from, 2, 2))
    {
    }

    static V picks(const uint8_t* from, int to, int source)
    {
        uint8_t bytes[V::N];
        for (int b = 0; b < V::N; ++b) {
            const int byte = from[16 * to + (b & 15)];
            const int vector = mirrored ? 2 - byte / 16 : byte / 16;
            bytes[b] = static_cast<uint8_t>(vector == source ? byte & 15 : 0x80);
        }
        return simd::load<V>(bytes);
    }

    ORV_INLINE Group3<V> shuffled(Group3<V> g) const
    {
        using simd::shuffle_bytes;
        return {shuffle_bytes(g.first, first_from_first) | shuffle_bytes(g.second, first_from_second),
                shuffle_bytes(g.first, second_from_first) | shuffle_bytes(g.second, second_from_second) |
                    shuffle_bytes(g.third, second_from_third),
                shuffle_bytes(g.second, third_from_second) | shuffle_bytes(g.third, third_from_third)};
    }
};

// The groups of kPixels pixels from p on: one, or two whose vectors lie side by side.
template <class V>
ORV_INLINE Group3<V> load_group(const uint8_t* p)
{
    const auto load = [p](int at) { return simd::load_parts<V, 48>(p + at); };
    return {load(0), load(16), load(32)};
}
template <class V>
ORV_INLINE void store_group(uint8_t* p, Group3<V> g)
{
    simd::store_parts<48>(p, g.first);
    simd::store_parts<48>(p + 16, g.second);
    simd::store_parts<48>(p + 32, g.third);
}
// With its pixels in the order that `groups` has, which for mirrored ones starts from the other end.
template <class V, bool mirrored>
ORV_INLINE auto fetch_group(const Groups3<V, mirrored>& groups, const uint8_t* p)
{
    const Group3<V> g = load_group<V>(p);
    if (!mirrored) return groups.shuffled(g);
    return groups.shuffled(Group3<V>{exchanged_parts(g.third), exchanged_parts(g.second), exchanged_parts(g.first)});
}

// Rows of pixels, reordered within the pixels.
template <class V>
ORV_INLINE void reorder_groups(const Groups3<V, false>& groups, const uint8_t* src, uint8_t* dst, std::ptrdiff_t n)
{
    full_vectors<V::N>(
        n, [&](std::ptrdiff_t i) __attribute__((always_inline)) { return fetch_group(groups, src + 3 * i); },
        [=](std::ptrdiff_t i, Group3<V> group) __attribute__((always_inline)) { store_group(dst + 3 * i, group); });
}

// --- Channel order --------------------------------------------------------------------------------

template <int Channels>
ORV_INLINE Pixel<Channels> reordered(Pixel<Channels> p, const int* order)
{
    Pixel<Channels> r;
    for (int c = 0; c < Channels; ++c) r.byte[c] = p.byte[order[c]];
    return r;
}

struct Reorder4 {
    int order[4];
    uint8_t from[32];  // of the bytes of a vector

    ORV_INLINE explicit Reorder4(const int* channels)
    {
        for (int c = 0; c < 4; ++c) order[c] = channels[c];
        if constexpr (!ORV_HAVE_BYTE_SHUFFLE) return;
        for (int b = 0; b < 32; ++b) from[b] = static_cast<uint8_t>((b & 12) + order[b & 3]);
    }
    ORV_INLINE Pixel<4> one(Pixel<4> p) const { return reordered(p, order); }
    template <class V> ORV_INLINE V many(V p) const
    {
        if constexpr (ORV_HAVE_BYTE_SHUFFLE) return simd::shuffle_bytes(p, simd::load<simd::recast<uint8_t, V>>(from));
        using Words = simd::recast<uint32_t, V>;
        const Words low_byte = simd::splat<Words>(255);
        Words r = simd::zero<Words>();
        for (int c = 0; c < 4; ++c) {
            const Words channel = (simd::as<uint32_t>(p) >> simd::count(8 * order[c])) & low_byte;
            r = r | (channel << simd::count(8 * c));
        }
        return simd::as<Pixel<4>>(r);
    }
};

// Steps are checked before the size here. Index 3 is refused for three channels as well: there is no
// such channel.
template <int Channels>
struct Order {
    int channel[Channels];
    bool null;
    explicit Order(const int* order) : null(order == nullptr)
    {
        if (!null) std::memcpy(channel, order, sizeof(channel));
    }
};

template <int Channels>
Status check_order(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, Size roi, const Order<Channels>& order)
{
    if (any_null(src, dst) || order.null) return StatusNullPointer;
    if (any_below_one(srcStep, dstStep)) return StatusBadStep;
    if (is_empty(roi)) return StatusBadSize;
    for (int c = 0; c < Channels; ++c) {
        if (order.channel[c] < 0 || order.channel[c] >= Channels) return StatusBadChannelOrder;
    }
    return StatusOk;
}

void reorder_row3(const uint8_t* src, uint8_t* dst, std::ptrdiff_t n, const int* order)
{
    auto* const d = reinterpret_cast<Pixel<3>*>(dst);
    const auto* const s = reinterpret_cast<const Pixel<3>*>(src);
    for (std::ptrdiff_t x = 0; x < n; ++x) d[x] = reordered(s[x], order);
}

void reorder3(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, Size roi, const int* order)
{
    if constexpr (ORV_HAVE_BYTE_SHUFFLE) {
        uint8_t from[48];
        for (int b = 0; b < 48; ++b) from[b] = static_cast<uint8_t>(b - b % 3 + order[b % 3]);
        const auto run = [&](auto groups) {
            for (int y = 0; y < roi.height; ++y) {
                reorder_groups(groups, row_at(src, srcStep, y), row_at(dst, dstStep, y), roi.width);
            }
        };
        using Wide = Groups3<simd::widest<uint8_t>, false>;
        using Half = Groups3<simd::half<uint8_t>, false>;
        if (roi.width >= Wide::kPixels) return run(Wide(from));
        if (roi.width >= Half::kPixels) return run(Half(from));
    }
    for (int y = 0; y < roi.height; ++y)
        reorder_row3(row_at(src, srcStep, y), row_at(dst, dstStep, y), roi.width, order);
}

// --- Mirror ---------------------------------------------------------------------------------------

// What is stored of a moved pixel: all of it, or all but the alpha of the destination.
struct WholePixel {
    template <class P> static ORV_INLINE P merge(P moved, const P*) { return moved; }
    template <class V> static ORV_INLINE V merge_many(V moved, const typename V::lane*) { return moved; }
};
struct AllButAlpha {
    static ORV_INLINE Pixel<4> merge(Pixel<4> moved, const Pixel<4>* old)
    {
        moved.byte[3] = old->byte[3];
        return moved;
    }
    template <class V> static ORV_INLINE V merge_many(V moved, const typename V::lane* old)
    {
        using Words = simd::recast<uint32_t, V>;
        const V alpha = simd::as<typename V::lane>(simd::splat<Words>(0xFF000000u));
        return (simd::load<V>(old) & alpha) | and_not(alpha, moved);
    }
};

// How pixels move: as they are or back to front, a vector or a single one at a time.
template <bool mirrored, class Keep, int Bytes>
struct PixelMoves {
    using P = Pixel<Bytes>;
    static constexpr bool kMirrored = mirrored, kByVectors = ORV_HAVE_VECTORS;

    ORV_INLINE void one(const P* from, P* to) const { *to = Keep::merge(*from, to); }
    using Wide = simd::widest<P>;
    using Half = simd::half<P>;

    template <class V> ORV_INLINE V fetch(const P* p) const
    {
        const V v = simd::load<V>(p);
        if constexpr (mirrored) return reversed(v);
        return v;
    }
    template <class V> ORV_INLINE void store(P* p, V v) const { simd::store(p, Keep::merge_many(v, p)); }
};

// Three-byte pixels back to front; a "vector" is a group.
struct MirroredPixels3 {
    using P = Pixel<3>;
    static constexpr bool kMirrored = true, kByVectors = ORV_HAVE_BYTE_SHUFFLE;

    ORV_INLINE void one(const P* from, P* to) const { *to = *from; }
#if ORV_HAVE_BYTE_SHUFFLE
    using Wide = Group3<simd::widest<uint8_t>>;
    using Half = Group3<simd::half<uint8_t>>;

    Groups3<simd::widest<uint8_t>, true> wide;
    Groups3<simd::half<uint8_t>, true> half;

    static const uint8_t* back_to_front()
    {
        static constexpr uint8_t from[48] = {45, 46, 47, 42, 43, 44, 39, 40, 41, 36, 37, 38, 33, 34, 35, 30,
                                             31, 32, 27, 28, 29, 24, 25, 26, 21, 22, 23, 18, 19, 20, 15, 16,
                                             17, 12, 13, 14, 9,  10, 11, 6,  7,  8,  3,  4,  5,  0,  1,  2};
        return from;
    }
    MirroredPixels3() : wide(back_to_front()), half(back_to_front()) {}

    template <class V> ORV_INLINE V fetch(const P* p) const
    {
        if constexpr (V::N == Wide::N) return fetch_group(wide, p->byte);
        else return fetch_group(half, p->byte);
    }
    template <class V> ORV_INLINE void store(P* p, V g) const { store_group(p->byte, g); }
#endif
};

template <class Moves>
ORV_INLINE void move_row(const Moves& moves, const typename Moves::P* src, typename Moves::P* dst, std::ptrdiff_t n)
{
    if constexpr (Moves::kByVectors) {
        const auto run = [&](auto sample) {
            using V = decltype(sample);
            for (std::ptrdiff_t i = 0; i < n - V::N; i += V::N) {
                moves.store(dst + i, moves.template fetch<V>(src + (Moves::kMirrored ? n - V::N - i : i)));
            }
            moves.store(dst + n - V::N, moves.template fetch<V>(src + (Moves::kMirrored ? 0 : n - V::N)));
        };
        if (n >= Moves::Wide::N) return run(typename Moves::Wide());
        if (n >= Moves::Half::N) return run(typename Moves::Half());
    }
    for (std::ptrdiff_t i = 0; i < n; ++i) moves.one(src + (Moves::kMirrored ? n - 1 - i : i), dst + i);
}

// Exchanges two rows, which may be one and the same where they are mirrored.
template <class Moves>
ORV_INLINE void exchange_rows(const Moves& moves, typename Moves::P* upper, typename Moves::P* lower, std::ptrdiff_t n)
{
    // In one row each exchange serves two places, so half the way is enough.
    const std::ptrdiff_t end = upper == lower ? (n + 1) / 2 : n;
    std::ptrdiff_t i = 0;
    if constexpr (Moves::kByVectors) {
        const auto run = [&](auto sample) {
            using V = decltype(sample);
            for (; i + V::N <= end; i += V::N) {
                auto* const a = upper + i;
                auto* const b = lower + (Moves::kMirrored ? n - V::N - i : i);
                const V from_upper = moves.template fetch<V>(a), from_lower = moves.template fetch<V>(b);
                moves.store(b, from_upper);
                moves.store(a, from_lower);
            }
        };
        run(typename Moves::Wide());
        run(typename Moves::Half());
    }
    for (; i < end; ++i) {
        auto* const a = upper + i;
        auto* const b = lower + (Moves::kMirrored ? n - 1 - i : i);
        const auto from_upper = *a;
        moves.one(b, a);
        moves.one(&from_upper, b);
    }
}

// Source and destination are separate images, or one and the same.
template <class Moves>
void mirror_rows(const void* src, int srcStep, void* dst, int dstStep, std::ptrdiff_t n, int height, bool upside_down)
{
    using P = typename Moves::P;
    const Moves moves;
    const P* const s = static_cast<const P*>(src);
    P* const d = static_cast<P*>(dst);
    if (s == d && srcStep == dstStep) {
        for (int y = 0; y < (upside_down ? (height + 1) / 2 : height); ++y) {
            P* const lower = row_at(d, dstStep, upside_down ? height - 1 - y : y);
            if (row_at(d, dstStep, y) != lower || Moves::kMirrored)
                exchange_rows(moves, row_at(d, dstStep, y), lower, n);
        }
    } else {
        for (int y = 0; y < height; ++y) {
            move_row(moves, row_at(s, srcStep, y), row_at(d, dstStep, upside_down ? height - 1 - y : y), n);
        }
    }
}

template <int Bytes, class Keep>
Status mirror(const void* src, int srcStep, void* dst, int dstStep, Size roi, int axis)
{
    if (const Status bad = check_image(roi, src, dst)) return bad;
    if (axis < 0 || axis > 2) return StatusBadMirrorAxis;
    const bool upside_down = axis != 1, left_right = axis != 0;
    // A single row has no top and bottom to exchange, a single column no left and right.
    if ((upside_down && roi.height < 2) || (left_right && roi.width < 2)) return StatusBadSize;

    if (left_right) {
        using Moves = typename std::conditional<Bytes == 3, MirroredPixels3, PixelMoves<true, Keep, Bytes>>::type;
        mirror_rows<Moves>(src, srcStep, dst, dstStep, roi.width, roi.height, upside_down);
    } else if constexpr (std::is_same<Keep, WholePixel>::value) {
        mirror_rows<PixelMoves<false, Keep, 1>>(src, srcStep, dst, dstStep, std::ptrdiff_t{roi.width} * Bytes,
                                                roi.height, true);
    } else {
        mirror_rows<PixelMoves<false, Keep, 4>>(src, srcStep, dst, dstStep, roi.width, roi.height, true);
    }
    return StatusOk;
}

// --- Transposition --------------------------------------------------------------------------------

using Word = Pixel<4>;  // a float as it lies in memory

ORV_INLINE void transpose_plain(const Word* src, int srcStep, Word* dst, int dstStep, int width, int height)
{
    for (int x = 0; x < width; ++x) {
        Word* const d = row_at(dst, dstStep, x);
        for (int y = 0; y < height; ++y) d[y] = row_at(src, srcStep, y)[x];
    }
}

#if ORV_HAVE_VECTORS
using WordsOfBlock = simd::recast<float, simd::widest<uint32_t>>;
constexpr int kBlock = WordsOfBlock::N;
// Four columns of the source. Where vectors have two parts, those of four rows and of the four below them lie side by
// side, so that columns come out in memory order, without a crossing of the parts.
ORV_INLINE void transpose_strip(const Word* src, int srcStep, Word* dst, int dstStep)
{
    using V = WordsOfBlock;
    const auto row = [=](int i) {
        const float* const p = reinterpret_cast<const float*>(row_at(src, srcStep, i));
        return simd::load_parts<V>(p, row_at(p, srcStep, 4));
    };
    const auto store_column = [=](int i, V v) { simd::store(reinterpret_cast<float*>(row_at(dst, dstStep, i)), v); };
    V r0 = row(0), r1 = row(1), r2 = row(2), r3 = row(3);
    transpose(r0, r1, r2, r3);
    store_column(0, r0);
    store_column(1, r1);
    store_column(2, r2);
    store_column(3, r3);
}
ORV_INLINE void transpose_block(const Word* src, int srcStep, Word* dst, int dstStep)
{
    transpose_strip(src, srcStep, dst, dstStep);
    if (kBlock == 8) transpose_strip(src + 4, srcStep, row_at(dst, dstStep, 4), dstStep);
}

// A tile that stays in the nearest cache on both sides.
void transpose_tile(const Word* src, int srcStep, Word* dst, int dstStep, int width, int height)
{
    const int whole_width = width & -kBlock, whole_height = height & -kBlock;
    for (int x = 0; x < whole_width; x += kBlock) {
        for (int y = 0; y < whole_height; y += kBlock) {
            transpose_block(row_at(src, srcStep, y) + x, srcStep, row_at(dst, dstStep, x) + y, dstStep);
        }
    }
    transpose_plain(row_at(src, srcStep, whole_height), srcStep, dst + whole_height, dstStep, whole_width,
                    height - whole_height);
    transpose_plain(src + whole_width, srcStep, row_at(dst, dstStep, whole_width), dstStep, width - whole_width,
                    height);
}
#else
void transpose_tile(const Word* src, int srcStep, Word* dst, int dstStep, int width, int height)
{
    transpose_plain(src, srcStep, dst, dstStep, width, height);
}
#endif

void transpose_tiles(const Word* src, int srcStep, Word* dst, int dstStep, int width, int height)
{
    constexpr int side = 64;
    for (int y = 0; y < height; y += side) {
        for (int x = 0; x < width; x += side) {
            transpose_tile(row_at(src, srcStep, y) + x, srcStep, row_at(dst, dstStep, x) + y, dstStep,
                           width - x < side ? width - x : side, height - y < side ? height - y : side);
        }
    }
}

ORV_INLINE bool rows_apart(int step, int words, int rows)
{
    return rows == 1 || (step < 0 ? -std::int64_t{step} : step) >= std::int64_t{4} * words;
}

// For rows that overlap.
Status transpose_by_rows(const Word* src, int srcStep, Word* dst, int dstStep, Size roi)
{
    return make_rows(area(dst, dstStep, {roi.height, roi.width}, 1), [&](int x, void* to) {
        transpose_plain(src + x, srcStep, static_cast<Word*>(to), 0, 1, roi.height);
        return StatusOk;
    });
}

// Source and destination start at the same place with the same step: the square that they share is
// exchanged about its diagonal, and what the longer side has beyond it moves to rows, or columns,
// that the source does not have.
void transpose_in_place(Word* image, int step, int width, int height)
{
    const int side = width < height ? width : height;
    for (int y = 0; y < side; ++y) {
        Word* const row = row_at(image, step, y);
        for (int x = 0; x < y; ++x) {
            Word* const other = row_at(image, step, x) + y;
            const Word moved = row[x];
            row[x] = *other;
            *other = moved;
        }
    }
    transpose_tiles(image + side, step, row_at(image, step, side), step, width - side, height);
    transpose_tiles(row_at(image, step, side), step, image + side, step, side, height - side);
}

}  // namespace

// --- Kernels --------------------------------------------------------------------------------------

#define COPY(name, T, channels)                                                     \
    Status name(const T* src, int srcStep, T* dst, int dstStep, Size roi)           \
    {                                                                               \
        return copy(name, src, srcStep, dst, dstStep, roi, channels);               \
    }
COPY(Copy_8u_C1, uint8_t, 1)
COPY(Copy_8u_C3, uint8_t, 3)
COPY(Copy_8u_C4, uint8_t, 4)
COPY(Copy_16u_C1, uint16_t, 1)
COPY(Copy_16s_C1, int16_t, 1)
COPY(Copy_32s_C1, int32_t, 1)
COPY(Copy_32f_C1, float, 1)
COPY(Copy_32f_C3, float, 3)
COPY(Copy_32f_C4, float, 4)
COPY(Copy_32fc_C1, Complex32f, 1)

#define SET_VALUE(name, T, set)                                                     \
    Status name(T value, T* dst, int dstStep, Size roi)                             \
    {                                                                               \
        return set(&value, dst, dstStep, roi, 1);                                   \
    }
#define SET_VALUES(name, T, channels, set)                                          \
    Status name(const T* values, T* dst, int dstStep, Size roi)                     \
    {                                                                               \
        return set(values, dst, dstStep, roi, channels);                            \
    }
SET_VALUE(Set_8u_C1, uint8_t, set)
SET_VALUE(Set_16u_C1, uint16_t, set)
SET_VALUE(Set_16s_C1, int16_t, set)
SET_VALUE(Set_32s_C1, int32_t, set)
SET_VALUE(Set_32f_C1, float, set_bits)
SET_VALUES(Set_8u_C3, uint8_t, 3, set)
SET_VALUES(Set_8u_C4, uint8_t, 4, set)
SET_VALUES(Set_32s_C3, int32_t, 3, set)
SET_VALUES(Set_32s_C4, int32_t, 4, set)
SET_VALUES(Set_32f_C3, float, 3, set_bits)
SET_VALUES(Set_32f_C4, float, 4, set_bits)

#define CONVERT(name, From, To, channels, convert)                                  \
    Status name(const From* src, int srcStep, To* dst, int dstStep, Size roi)       \
    {                                                                               \
        return convert(name, src, srcStep, dst, dstStep, roi, channels);            \
    }
CONVERT(Convert_8u16u_C1, uint8_t, uint16_t, 1, widen)
CONVERT(Convert_8u32f_C1, uint8_t, float, 1, widen)
CONVERT(Convert_8u32f_C3, uint8_t, float, 3, widen)
CONVERT(Convert_16u32f_C1, uint16_t, float, 1, widen)
CONVERT(Convert_32f16u_C1, float, uint16_t, 1, narrow)
CONVERT(Convert_32f8u_C3, float, uint8_t, 3, narrow)

Status SwapChannels_8u_C3(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, Size roi, const int* order)
{
    const Order<3> kept(order);
    if (const Status bad = check_order(src, srcStep, dst, dstStep, roi, kept)) return bad;
    reorder3(src, srcStep, dst, dstStep, roi, kept.channel);
    return StatusOk;
}

Status SwapChannels_8u_C4(const uint8_t* src, int srcStep, uint8_t* dst, int dstStep, Size roi, const int* order)
{
    const Order<4> kept(order);
    if (const Status bad = check_order(src, srcStep, dst, dstStep, roi, kept)) return bad;
    plane(reinterpret_cast<const Pixel<4>*>(src), srcStep, reinterpret_cast<Pixel<4>*>(dst), dstStep, roi, 1,
          Reorder4(kept.channel));
    return StatusOk;
}

Status Transpose_32f_C1(const float* src, int srcStep, float* dst, int dstStep, Size roi)
{
    if (const Status bad = check_image(roi, src, dst)) return bad;
    const auto* const s = reinterpret_cast<const Word*>(src);
    auto* const d = reinterpret_cast<Word*>(dst);
    const bool apart = rows_apart(dstStep, roi.height, roi.width);
    if (s == d && srcStep == dstStep && apart && rows_apart(srcStep, roi.width, roi.height)) {
        transpose_in_place(d, dstStep, roi.width, roi.height);
        return StatusOk;
    }
    if (!apart || overlap(area(s, srcStep, roi, 1), area(d, dstStep, {roi.height, roi.width}, 1))) {
        return transpose_by_rows(s, srcStep, d, dstStep, roi);
    }
    transpose_tiles(s, srcStep, d, dstStep, roi.width, roi.height);
    return StatusOk;
}

#define MIRROR(name, T, bytes, Keep)                                                \
    Status name(const T* src, int srcStep, T* dst, int dstStep, Size roi, int axis) \
    {                                                                               \
        return mirror<bytes, Keep>(src, srcStep, dst, dstStep, roi, axis);          \
    }
MIRROR(Mirror_16u_C1, uint16_t, 2, WholePixel)
MIRROR(Mirror_8u_C3, uint8_t, 3, WholePixel)
MIRROR(Mirror_8u_C4, uint8_t, 4, WholePixel)
MIRROR(Mirror_8u_AC4, uint8_t, 4, AllButAlpha)

}  // namespace ORV_LEVEL
}  // namespace data_movement
}  // namespace orv
