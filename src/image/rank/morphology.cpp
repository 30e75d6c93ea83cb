// Erosion and dilation of 3x3 pixels: of each row the least (greatest) of neighbours side by side, then of three
// such rows. Pixels outside the region take no part; a pixel that stands in for its missing neighbour is as good.
//
// Two rows of these are kept, of the pixels' row and of the one above; the one below is made on the way. So a
// source row has been read when its place is written, and the destination may be the source.
#include "image/rank/morphology.h"

#include <cstdint>

#include "core/memory.h"
#include "core/sizes.h"
#include "image/rank/order.h"
#include "image/rank/rank_checks.h"
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

// What pixels are compared as.
template <class T>
struct Plain {
    using Lane = T;
    template <class V> static ORV_INLINE V ranked(V pixels) { return pixels; }
    template <class V> static ORV_INLINE V pixels(V ranks) { return ranks; }
};
struct Keys {
    using Lane = Key;
    template <class V> static ORV_INLINE V ranked(V bits) { return key_of(bits); }
    template <class V> static ORV_INLINE V pixels(V keys) { return bits_of_key(keys); }
};

// The least or greatest of three elements `apart` from each other.
template <class Extreme, class Values, int apart>
struct Across {
    using Lane = typename Values::Lane;

    template <class V>
    static ORV_INLINE V at(const Lane* p)
    {
        return Values::ranked(simd::load<V>(p));
    }
    template <class V, bool first = false, bool last = false>
    static ORV_INLINE V three(const Lane* p)
    {
        const V own = at<V>(p);
        V below, above;
        if constexpr (first) below = simd::from_below<apart>(own);
        else below = at<V>(p - apart);
        if constexpr (last) above = simd::from_above<apart>(own);
        else above = at<V>(p + apart);
        return Extreme::of(Extreme::of(below, above), own);
    }

    // put(i, three) for the n elements of a row; made(i, three) comes before anything is put for what overlaps.
    template <class V, class Make, class Put>
    static ORV_INLINE void vectors(const Lane* row, std::ptrdiff_t n, Make make, Put put)
    {
        if (n == V::N) return put(0, make(0, three<V, true, true>(row)));
        const std::ptrdiff_t end = n - V::N;
        const auto last = make(end, three<V, false, true>(row + end));
        // Vectors whose upper neighbours reach beyond the row: one that ends `apart` before it takes their place.
        const bool gap = end % V::N != 0 && end % V::N < apart;
        const std::ptrdiff_t before = end - apart;
        const auto filling = gap ? make(before, three<V>(row + before)) : last;
        put(0, make(0, three<V, true>(row)));
        for (std::ptrdiff_t i = V::N; i <= before; i += V::N) put(i, make(i, three<V>(row + i)));
        if (gap) put(before, filling);
        put(end, last);
    }

    template <class Make, class Put>
    static ORV_INLINE void lanes(const Lane* row, std::ptrdiff_t n, Make make, Put put)
    {
        using V = simd::vec<Lane, 1>;
        for (std::ptrdiff_t i = 0; i < n; ++i) {
            const V own = at<V>(row + i), below = i < apart ? own : at<V>(row + i - apart);
            const V above = i + apart < n ? at<V>(row + i + apart) : own;
            put(i, make(i, Extreme::of(Extreme::of(below, above), own)));
        }
    }

    template <class V>
    static ORV_INLINE bool fits(std::ptrdiff_t n)
    {
        return V::N > 1 && (n == V::N || n >= V::N + 2 * apart);
    }
    template <class Make, class Put>
    static ORV_INLINE void row(const Lane* p, std::ptrdiff_t n, Make make, Put put)
    {
        using Wide = simd::widest<Lane>;
        using Half = simd::half<Lane>;
        if constexpr (Half::N > 1) {
            if (fits<Wide>(n)) return vectors<Wide>(p, n, make, put);
            if (fits<Half>(n)) return vectors<Half>(p, n, make, put);
        }
        lanes(p, n, make, put);
    }
};

template <class V>
struct RowAndResult {
    V three, result;
};

template <class Extreme, class Values, int apart>
class Neighbourhood {
public:
    using Lane = typename Values::Lane;
    using Rows = Across<Extreme, Values, apart>;

    ORV_INLINE Neighbourhood(void* memory, int row_bytes, std::ptrdiff_t n)
        : above_(static_cast<Lane*>(memory)), own_(row_at(above_, row_bytes, 1)), n_(n)
    {
    }

    void begin(const Lane* row)
    {
        Rows::row(row, n_, [](std::ptrdiff_t, auto three) __attribute__((always_inline)) { return three; },
                  [&](std::ptrdiff_t i, auto three) __attribute__((always_inline)) {
                      simd::store(above_ + i, three);
                      simd::store(own_ + i, three);
                  });
    }
    // The row above `below` is complete.
    void step(const Lane* below, Lane* dst)
    {
        Lane* const above = above_;
        Lane* const own = own_;
        Rows::row(below, n_, [=](std::ptrdiff_t i, auto three) __attribute__((always_inline)) {
                      using V = decltype(three);
                      const V two = Extreme::of(simd::load<V>(above + i), simd::load<V>(own + i));
                      return RowAndResult<V>{three, Values::pixels(Extreme::of(two, three))};
                  },
                  [=](std::ptrdiff_t i, auto both) __attribute__((always_inline)) {
                      simd::store(above + i, both.three);
                      simd::store(dst + i, both.result);
                  });
        above_ = own;
        own_ = above;
    }
    void finish(Lane* dst)
    {
        std::ptrdiff_t i = 0;
        using Wide = simd::widest<Lane>;
        for (; i + Wide::N <= n_; i += Wide::N) last_row<Wide>(i, dst);
        for (; i < n_; ++i) last_row<simd::vec<Lane, 1>>(i, dst);
    }

private:
    template <class V>
    ORV_INLINE void last_row(std::ptrdiff_t i, Lane* dst) const
    {
        simd::store(dst + i, Values::pixels(Extreme::of(simd::load<V>(above_ + i), simd::load<V>(own_ + i))));
    }

    Lane *above_, *own_;
    std::ptrdiff_t n_;
};

template <class Extreme, class Values, int apart>
Status run(const typename Values::Lane* src, int srcStep, typename Values::Lane* dst, int dstStep, Size roi)
{
    if (const Status bad = check_rank(src, srcStep, dst, dstStep, roi)) return bad;
    const long long elements = static_cast<long long>(roi.width) * apart;
    const long long row_bytes = padded_to_lines(size_product(elements, static_cast<int>(sizeof(*src))));
    void* const memory = orv_allocate_checked(size_product(2, row_bytes));
    if (memory == nullptr) return StatusNoMemory;
    Neighbourhood<Extreme, Values, apart> rows(memory, static_cast<int>(row_bytes), static_cast<std::ptrdiff_t>(elements));
    rows.begin(src);
    for (int y = 0; y + 1 < roi.height; ++y) rows.step(row_at(src, srcStep, y + 1), row_at(dst, dstStep, y));
    rows.finish(row_at(dst, dstStep, roi.height - 1));
    orv_release(memory);
    return StatusOk;
}

}  // namespace

// --- Kernels --------------------------------------------------------------------------------------

#define INTEGERS(type, T, channels)                                                                            \
    Status Erode3x3_##type##_C##channels(const T* src, int srcStep, T* dst, int dstStep, Size roi)             \
    {                                                                                                          \
        return run<Least, Plain<T>, channels>(src, srcStep, dst, dstStep, roi);                                \
    }                                                                                                          \
    Status Dilate3x3_##type##_C##channels(const T* src, int srcStep, T* dst, int dstStep, Size roi)            \
    {                                                                                                          \
        return run<Greatest, Plain<T>, channels>(src, srcStep, dst, dstStep, roi);                             \
    }
INTEGERS(8u, uint8_t, 1)
INTEGERS(8u, uint8_t, 3)
INTEGERS(8u, uint8_t, 4)
INTEGERS(16u, uint16_t, 1)
#undef INTEGERS

Status Erode3x3_32f_C1(const float* src, int srcStep, float* dst, int dstStep, Size roi)
{
    return run<Least, Keys, 1>(bits_at(src), srcStep, bits_at(dst), dstStep, roi);
}
Status Dilate3x3_32f_C1(const float* src, int srcStep, float* dst, int dstStep, Size roi)
{
    return run<Greatest, Keys, 1>(bits_at(src), srcStep, bits_at(dst), dstStep, roi);
}

}  // namespace ORV_LEVEL
}  // namespace morphology
}  // namespace orv
