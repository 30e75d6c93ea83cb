// Erosion and dilation of 3x3 pixels: the least (greatest) of each column, then of three columns side by side. Pixels
// outside the region take no part; a pixel that stands in for its missing neighbour is as good.
//
// Two rows of results are made at a time, from four rows: both need the middle two. In place the upper of these
// four has been overwritten and comes from a copy; all others are read before their places are written.
#include "image/rank/morphology.h"

#include <cstdint>

#include "core/checks.h"
#include "core/memory.h"
#include "core/sizes.h"
#include "math/order.h"
#include "simd/edges.h"
#include "simd/vec.h"

namespace orv {
namespace morphology {
namespace ORV_LEVEL {
namespace {

struct Least {
    template <class V> static ORV_INLINE V of(V a, V b) { return simd::min(a, b); }
};
struct Greatest {
    template <class V> static ORV_INLINE V of(V a, V b) { return simd::max(a, b); }
};

// What pixels are compared as: themselves, the keys of floats, or floats, which are in order as long as there are
// neither NaNs nor negative zeros among them. Floats are handed on by their bits.
template <class Extreme>
struct Themselves {
    template <class V> static ORV_INLINE V ranked(V pixels) { return pixels; }
    template <class V> static ORV_INLINE V pixels(V ranks) { return ranks; }
    template <class V> static ORV_INLINE V extreme(V a, V b) { return Extreme::of(a, b); }
};
template <class Extreme>
struct Keys : Themselves<Extreme> {
    template <class V> static ORV_INLINE V ranked(V bits) { return key_of(bits); }
    template <class V> static ORV_INLINE V pixels(V keys) { return bits_of_key(keys); }
};
#if ORV_HAVE_VECTORS
template <class V>
ORV_INLINE simd::floats_of<V> floats_of_bits(V bits)
{
    return simd::from_bits(simd::as<simd::u32>(bits));
}
template <class Extreme>
struct Floats : Themselves<Extreme> {
    template <class V>
    static ORV_INLINE V extreme(V a, V b)
    {
        return simd::as<Key>(simd::bits(Extreme::of(floats_of_bits(a), floats_of_bits(b))));
    }
};
#endif

// What `results` rows are made from: the row above them, they themselves, the row below. Nothing is missing: at
// the region's edge the row next to it is there twice.
template <class Lane, int results>
struct RowsAround {
    const Lane* row[results + 2];
    Lane* dst[results];
    Lane* kept;  // receives the last of the rows themselves, if not null
    std::ptrdiff_t n;
};

// --- Vectors --------------------------------------------------------------------------------------

#if ORV_HAVE_VECTORS
template <class V, class Values, int apart, int results>
class VectorRows {
public:
    using Lane = typename V::lane;

    static ORV_INLINE bool fit(std::ptrdiff_t n) { return n == V::N || n >= V::N + apart; }

    // A rest behind the full vectors belongs to a vector that ends with the row; that overlaps its neighbour, so it
    // is made first.
    template <bool keeps>
    static void run(const RowsAround<Lane, results>& r)
    {
        const std::ptrdiff_t rest = r.n % V::N, end = r.n - V::N, last = r.n - rest - V::N;
        Lane beyond[results][2 * V::N];
        Columns tail;
        V kept_tail;
        if (rest != 0) {
            tail = tail_of(r, end, beyond);
            if (keeps) kept_tail = simd::load<V>(r.row[results] + end);
        }
        Columns own = at(r, 0), left;
        for (int k = 0; k < results; ++k) left.v[k] = simd::from_below<apart>(own.v[k]);
        for (std::ptrdiff_t i = 0; i < last; i += V::N) {
            const Columns next = at(r, i + V::N);
            if (keeps) keep(r, i);
            for (int k = 0; k < results; ++k) {
                const simd::seam<V> border(own.v[k], next.v[k]);
                put(r, k, i, three(left.v[k], own.v[k], simd::moved_down<apart>(own.v[k], border)));
                left.v[k] = simd::moved_up<apart>(border, next.v[k]);
            }
            own = next;
        }
        if (keeps) keep(r, last);
        for (int k = 0; k < results; ++k) {
            V right = simd::from_above<apart>(own.v[k]);
            if (rest != 0)
                right =
                    simd::moved_down<apart>(own.v[k], simd::seam<V>(own.v[k], simd::load<V>(beyond[k] + V::N - rest)));
            put(r, k, last, three(left.v[k], own.v[k], right));
        }
        if (rest == 0) return;
        for (int k = 0; k < results; ++k) put(r, k, end, tail.v[k]);
        if (keeps) simd::store(r.kept + end, kept_tail);
    }

private:
    // Of every result row.
    struct Columns {
        V v[results];
    };

    static ORV_INLINE V row_at(const RowsAround<Lane, results>& r, int k, std::ptrdiff_t i)
    {
        return Values::ranked(simd::load<V>(r.row[k] + i));
    }
    static ORV_INLINE V three(V a, V b, V c) { return Values::extreme(Values::extreme(a, c), b); }
    static ORV_INLINE Columns at(const RowsAround<Lane, results>& r, std::ptrdiff_t i)
    {
        Columns c;
        const V shared = results == 1 ? row_at(r, 1, i) : Values::extreme(row_at(r, 1, i), row_at(r, 2, i));
        c.v[0] = Values::extreme(row_at(r, 0, i), results == 1 ? Values::extreme(shared, row_at(r, 2, i)) : shared);
        if (results == 2) c.v[results - 1] = Values::extreme(shared, row_at(r, results + 1, i));
        return c;
    }
    static ORV_INLINE void put(const RowsAround<Lane, results>& r, int k, std::ptrdiff_t i, V ranks)
    {
        simd::store(r.dst[k] + i, Values::pixels(ranks));
    }
    static ORV_INLINE void keep(const RowsAround<Lane, results>& r, std::ptrdiff_t i)
    {
        simd::store(r.kept + i, simd::load<V>(r.row[results] + i));
    }
    // The results at the end, and their columns with the last ones once more behind them.
    static ORV_INLINE Columns tail_of(const RowsAround<Lane, results>& r, std::ptrdiff_t end,
                                      Lane (&beyond)[results][2 * V::N])
    {
        const Columns own = at(r, end), left = at(r, end - apart);
        Columns tail;
        for (int k = 0; k < results; ++k) {
            simd::store(beyond[k] + apart, own.v[k]);
            simd::store(beyond[k], own.v[k]);
            tail.v[k] = three(left.v[k], own.v[k], simd::from_above<apart>(own.v[k]));
        }
        return tail;
    }
};
#endif

// --- Lone lanes -----------------------------------------------------------------------------------

// One row of results: its columns in a row of memory, then three of them side by side.
template <class Values, int apart, class Lane>
void run_lanes(const RowsAround<Lane, 1>& r, Lane* columns)
{
    using One = simd::vec<Lane, 1>;
    const auto ranked = [&](int k, std::ptrdiff_t i) { return Values::ranked(simd::load<One>(r.row[k] + i)); };
    for (std::ptrdiff_t i = 0; i < r.n; ++i) {
        simd::store(columns + i, Values::extreme(Values::extreme(ranked(0, i), ranked(1, i)), ranked(2, i)));
        simd::store(r.kept + i, simd::load<One>(r.row[1] + i));
    }
    for (std::ptrdiff_t i = 0; i < r.n; ++i) {
        const One own = simd::load<One>(columns + i);
        const One left = i < apart ? own : simd::load<One>(columns + i - apart);
        const One right = i + apart < r.n ? simd::load<One>(columns + i + apart) : own;
        simd::store(r.dst[0] + i, Values::pixels(Values::extreme(Values::extreme(left, right), own)));
    }
}

// --- Images ---------------------------------------------------------------------------------------

template <class Lane>
struct Plane {
    const Lane* src;
    int srcStep;
    Lane* dst;
    int dstStep;
    std::ptrdiff_t n;
    int height;
    Lane *kept, *columns;  // two rows of memory

    ORV_INLINE bool in_place() const { return src == dst; }
    // From row y on.
    template <int results>
    ORV_INLINE RowsAround<Lane, results> rows(int y, bool keeps) const
    {
        RowsAround<Lane, results> r;
        r.row[0] = y == 0 ? src : keeps ? kept : row_at(src, srcStep, y - 1);
        for (int k = 1; k < results + 2; ++k) r.row[k] = row_at(src, srcStep, y + k <= height ? y + k - 1 : height - 1);
        for (int k = 0; k < results; ++k) r.dst[k] = row_at(dst, dstStep, y + k);
        r.kept = kept;
        r.n = n;
        return r;
    }
};

#if ORV_HAVE_VECTORS
template <class Values>
struct Fixed {
    template <class V, class Lane> ORV_INLINE void begin(const Lane*, std::ptrdiff_t) {}
    template <class V, int apart, int results, class Lane>
    ORV_INLINE void run(const RowsAround<Lane, results>& r, bool keeps)
    {
        if (keeps) VectorRows<V, Values, apart, results>::template run<true>(r);
        else VectorRows<V, Values, apart, results>::template run<false>(r);
    }
};

// Rows without NaNs and negative zeros are compared as floats.
template <class Extreme>
class Quickest {
public:
    template <class V> ORV_INLINE void begin(const Key* row, std::ptrdiff_t n) { tame_ = are_tame<V>(row, row, n); }
    template <class V, int apart, int results>
    ORV_INLINE void run(const RowsAround<Key, results>& r, bool keeps)
    {
        const bool above = tame_;
        tame_ = are_tame<V>(r.row[results], r.row[results + 1], r.n);
        if (above && tame_) Fixed<Floats<Extreme>>().template run<V, apart>(r, keeps);
        else Fixed<Keys<Extreme>>().template run<V, apart>(r, keeps);
    }

private:
    template <class V>
    static bool are_tame(const Key* a, const Key* b, std::ptrdiff_t n)
    {
        V least = simd::zero<V>(), nan = least;
        for (std::ptrdiff_t i = 0;; i = i + 2 * V::N <= n ? i + V::N : n - V::N) {
            const V x = simd::load<V>(a + i), y = simd::load<V>(b + i);
            least = simd::min(least, simd::min(x, y));
            nan = nan | simd::as<Key>(simd::bits(simd::unordered(floats_of_bits(x), floats_of_bits(y))));
            if (i == n - V::N) break;
        }
        return !simd::any(nan | simd::equal(least, simd::splat<V>(INT32_MIN)));
    }

    bool tame_ = false;  // the two rows that were looked at last
};

template <class V, int apart, class Lane, class Way>
void vector_plane(const Plane<Lane>& p, Way way)
{
    const FloatControl control;
    const bool keeps = p.in_place();
    way.template begin<V>(p.src, p.n);
    int y = 0;
    for (; y + 1 < p.height; y += 2) way.template run<V, apart>(p.template rows<2>(y, keeps), keeps);
    if (y < p.height) way.template run<V, apart>(p.template rows<1>(y, keeps), keeps);
}
#endif

// By vectors of the widest kind that a row has room for, or lane by lane.
template <class Values, class Way, int apart, class Lane>
void plane(const Plane<Lane>& p)
{
#if ORV_HAVE_VECTORS
    using Wide = simd::widest<Lane>;
    using Half = simd::half<Lane>;
    if (VectorRows<Wide, Values, apart, 1>::fit(p.n)) return vector_plane<Wide, apart>(p, Way());
    if (VectorRows<Half, Values, apart, 1>::fit(p.n)) return vector_plane<Half, apart>(p, Way());
#endif
    for (int y = 0; y < p.height; ++y) run_lanes<Values, apart>(p.template rows<1>(y, true), p.columns);
}

// All calls take the memory that some need: whether one can fail does not hang on its destination.
template <class Values, class Way, int apart, class Lane>
Status run(const Lane* src, int srcStep, Lane* dst, int dstStep, Size roi)
{
    if (const Status bad = check_images(src, srcStep, dst, dstStep, roi)) return bad;
    const long long elements = static_cast<long long>(roi.width) * apart;
    const long long row_bytes = padded_to_lines(size_product(elements, static_cast<int>(sizeof(Lane))));
    void* const memory = orv_allocate_checked(size_product(2, row_bytes));
    if (memory == nullptr) return StatusNoMemory;
    Lane* const kept = static_cast<Lane*>(memory);
    plane<Values, Way, apart>(Plane<Lane>{src, srcStep, dst, dstStep, static_cast<std::ptrdiff_t>(elements), roi.height,
                                          kept, row_at(kept, static_cast<int>(row_bytes), 1)});
    orv_release(memory);
    return StatusOk;
}

#if ORV_HAVE_VECTORS
template <class Extreme> using IntegerWay = Fixed<Themselves<Extreme>>;
template <class Extreme> using FloatWay = Quickest<Extreme>;
#else
template <class Extreme> using IntegerWay = void;
template <class Extreme> using FloatWay = void;
#endif

template <class Extreme, int channels, class T>
Status integers(const T* src, int srcStep, T* dst, int dstStep, Size roi)
{
    return run<Themselves<Extreme>, IntegerWay<Extreme>, channels>(src, srcStep, dst, dstStep, roi);
}
template <class Extreme>
Status floats(const float* src, int srcStep, float* dst, int dstStep, Size roi)
{
    return run<Keys<Extreme>, FloatWay<Extreme>, 1>(bits_at(src), srcStep, bits_at(dst), dstStep, roi);
}

}  // namespace

// --- Kernels --------------------------------------------------------------------------------------

#define INTEGERS(type, T, channels)                                                                            \
    Status Erode3x3_##type##_C##channels(const T* src, int srcStep, T* dst, int dstStep, Size roi)             \
    {                                                                                                          \
        return integers<Least, channels>(src, srcStep, dst, dstStep, roi);                                \
    }                                                                                                          \
    Status Dilate3x3_##type##_C##channels(const T* src, int srcStep, T* dst, int dstStep, Size roi)            \
    {                                                                                                          \
        return integers<Greatest, channels>(src, srcStep, dst, dstStep, roi);                             \
    }
INTEGERS(8u, uint8_t, 1)
INTEGERS(8u, uint8_t, 3)
INTEGERS(8u, uint8_t, 4)
INTEGERS(16u, uint16_t, 1)
#undef INTEGERS

Status Erode3x3_32f_C1(const float* src, int srcStep, float* dst, int dstStep, Size roi)
{
    return floats<Least>(src, srcStep, dst, dstStep, roi);
}
Status Dilate3x3_32f_C1(const float* src, int srcStep, float* dst, int dstStep, Size roi)
{
    return floats<Greatest>(src, srcStep, dst, dstStep, roi);
}

}  // namespace ORV_LEVEL
}  // namespace morphology
}  // namespace orv
