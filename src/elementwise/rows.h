// The loops that every element-wise family shares: rows, planes, and planes with a constant.
//
// An operation is an object with
//     T one(T a, T b)                   its meaning, on scalars (here with two sources)
//     template <class V> V many(V a, V b)   the same on vectors of any width
// and, if it needs some, state: counts, flags. At the plain level only one() exists to the loops. Loops
// work on a local copy of the operation: pixels that are stored might else be part of it, and its
// constants would be loaded again for every vector.
//
// A row of at least one vector runs as in full_vectors.h. Shorter rows run the same way on 128, 64 or 32 bits.
// Nothing outside the row is read or written.
#pragma once

#include <cstdint>

#include "core/checks.h"
#include "elementwise/full_vectors.h"
#include "simd/partial.h"
#include "simd/vec.h"

namespace orv {
inline namespace ORV_LEVEL {

template <class V, Pace pace_of_row, class T, class Compute>
ORV_INLINE void row_of_vectors(T* dst, std::ptrdiff_t n, Compute compute)
{
    const auto at = [&compute](std::ptrdiff_t i) __attribute__((always_inline)) { return compute.template at<V>(i); };
    const auto store = [dst](std::ptrdiff_t i, V v) __attribute__((always_inline)) { simd::store(dst + i, v); };
    full_vectors<V::N>(n, at, store, [&](std::ptrdiff_t end) __attribute__((always_inline)) {
        std::ptrdiff_t i = 0;
        if constexpr (pace_of_row != Pace::kOne) {
            for (; i < end - V::N; i += 2 * V::N) {
                const simd::twice<V> both = compute.template both<V>(i);
                store(i, both.lo);
                store(i + V::N, both.hi);
            }
        }
        for (; i < end; i += V::N) store(i, at(i));
    });
}

template <class T, class Compute>
ORV_INLINE void short_row(T* dst, std::ptrdiff_t n, Compute compute)
{
    using Half = simd::half<T>;
    constexpr int size = sizeof(T);
    if (n >= Half::N) {
        row_of_vectors<Half, Pace::kOne>(dst, n, compute);
    } else if (size == 8 || n * size >= 8) {
        simd::store_ends<Half, 8>(dst, n, compute.template ends<Half, 8>(n));
    } else if constexpr (size < 8) {
        if (size == 4 || n * size >= 4) {
            simd::store_ends<Half, 4>(dst, n, compute.template ends<Half, 4>(n));
        } else if constexpr (size < 4) {
            if (size == 2 || n == 1) return put(dst, compute.one(0));
            if constexpr (size == 1) {
                const T first = compute.one(0), second = compute.one(1), last = compute.one(n - 1);
                put(dst, first);
                put(dst + 1, second);
                put(dst + n - 1, last);
            }
        }
    }
}

// An operation with its operands exchanged: value - src, value / src.
template <class Op>
struct Reversed : Op {
    template <class T> ORV_INLINE T one(T a, T b) { return Op::one(b, a); }
    template <class V> ORV_INLINE V many(V a, V b) { return Op::many(b, a); }
};

// What a loop computes at a position, for one and for two sources.
template <class T, class Op>
struct FromOne {
    static constexpr Pace kPace = pace<Op>;
    const T* a;
    Op* op;
    ORV_INLINE T one(std::ptrdiff_t i) const { return op->one(get(a + i)); }
    template <class V> ORV_INLINE V at(std::ptrdiff_t i) const { return op->many(simd::load<V>(a + i)); }
    template <class V> ORV_INLINE simd::twice<V> both(std::ptrdiff_t i) const { return {at<V>(i), at<V>(i + V::N)}; }
    template <class V, int Bytes> ORV_INLINE V ends(std::ptrdiff_t n) const
    {
        return op->many(simd::load_ends<V, Bytes>(a, n));
    }
};

template <class T, class Op>
struct FromTwo {
    static constexpr Pace kPace = pace<Op>;
    const T* a;
    const T* b;
    Op* op;
    ORV_INLINE T one(std::ptrdiff_t i) const { return op->one(get(a + i), get(b + i)); }
    template <class V> ORV_INLINE V at(std::ptrdiff_t i) const
    {
        return op->many(simd::load<V>(a + i), simd::load<V>(b + i));
    }
    template <class V> ORV_INLINE simd::twice<V> both(std::ptrdiff_t i) const
    {
        if constexpr (kPace == Pace::kTogether) {
            const auto two = [i](const T* p, int k) __attribute__((always_inline)) {
                return simd::in_register(simd::load<V>(p + i + k * V::N));
            };
            const V left[2] = {two(a, 0), two(a, 1)}, right[2] = {two(b, 0), two(b, 1)};
            return op->many(left, right);
        } else {
            return {at<V>(i), at<V>(i + V::N)};
        }
    }
    template <class V, int Bytes> ORV_INLINE V ends(std::ptrdiff_t n) const
    {
        return op->many(simd::load_ends<V, Bytes>(a, n), simd::load_ends<V, Bytes>(b, n));
    }
};

// Rows of up to so many bytes are read before any of it is stored.
constexpr int kReadAtOnce = ORV_HAVE_VECTORS ? 16 : 0;

template <class T, class Compute>
ORV_INLINE void run_row(T* dst, std::ptrdiff_t n, Compute compute)
{
    using Wide = simd::widest<T>;
    if constexpr (!ORV_HAVE_VECTORS) {
        for (std::ptrdiff_t i = 0; i < n; ++i) put(dst + i, compute.one(i));
    } else if (n >= Wide::N) {
        row_of_vectors<Wide, pace<Compute>>(dst, n, compute);
    } else {
        short_row(dst, n, compute);
    }
}

// A region as rows of elements. Rows that follow each other without a gap become one long row:
// that is where small images spend their time.
struct Rows {
    std::ptrdiff_t n;  // elements in a row
    int count;

    ORV_INLINE Rows(Size roi, int channels) : n(static_cast<std::ptrdiff_t>(roi.width) * channels), count(roi.height) {}

    // For images whose elements all have `element_bytes`.
    template <class... Steps>
    ORV_INLINE Rows(Size roi, int channels, int element_bytes, Steps... steps) : Rows(roi, channels)
    {
        merge(((steps == n * element_bytes) && ...));
    }

    ORV_INLINE void merge(bool no_gaps)
    {
        constexpr std::int64_t limit = 0x8000000;  // keeps a merged row within 32 bits
        if (no_gaps && std::int64_t{n} * count <= limit) {
            n *= count;
            count = 1;
        }
    }
};

// Returns the operation with the state that it ends in.
template <class T, class Op>
inline Op plane(const T* src, int srcStep, T* dst, int dstStep, Size roi, int channels, Op op)
{
    const Rows rows(roi, channels, sizeof(T), srcStep, dstStep);
    for (int y = 0; y < rows.count; ++y) {
        run_row(row_at(dst, dstStep, y), rows.n, FromOne<T, Op>{row_at(src, srcStep, y), &op});
    }
    return op;
}

template <class T, class Op>
inline void plane(const T* src1, int src1Step, const T* src2, int src2Step, T* dst, int dstStep,
                  Size roi, int channels, Op& op)
{
    const Rows rows(roi, channels, sizeof(T), src1Step, src2Step, dstStep);
    Op local = op;
    for (int y = 0; y < rows.count; ++y) {
        run_row(row_at(dst, dstStep, y), rows.n,
                FromTwo<T, Op>{row_at(src1, src1Step, y), row_at(src2, src2Step, y), &local});
    }
    op = local;
}

// --- Constants ------------------------------------------------------------------------------------
//
// One, two or four constants of 1, 2 or 4 bytes, or one of 8, repeat in memory with a period that
// divides one vector; three repeat with one that divides three vectors. A row of constants in memory, a little longer
// than three vectors, serves as the first operand wherever a loop may start; long rows keep the three vectors in
// registers.

template <class T>
struct Pattern {
    static constexpr int kBytes = 160;  // three of the widest vectors and two more
    alignas(32) T row[kBytes / sizeof(T)];
    int period;  // in elements: 3, or 1 where every vector is the same

    // The element at a position of the endless row; a vector may be read from there.
    ORV_INLINE const T* at(std::ptrdiff_t i) const { return row + (period == 3 ? i % 3 : 0); }
};

#if ORV_HAVE_VECTORS
template <class Word>
ORV_INLINE simd::half<std::uint32_t> repeated(const void* word)
{
    Word bits;
    std::memcpy(&bits, word, sizeof(bits));
    return simd::as<std::uint32_t>(simd::splat<simd::half<Word>>(bits));
}
// One, two or four constants over 128 bits: the bits of them, whatever they mean.
template <class T>
ORV_INLINE simd::half<std::uint32_t> repeated(const T* values, int channels)
{
    if (channels == 1) return repeated<simd::word_like<T>>(values);
    if constexpr (sizeof(T) == 1) return repeated<std::uint32_t>(values);
    if (sizeof(T) < 4 || (sizeof(T) == 4 && channels == 2)) return repeated<std::uint64_t>(values);
    return simd::load<simd::half<std::uint32_t>>(reinterpret_cast<const std::uint32_t*>(values));
}

template <class T>
ORV_INLINE Pattern<T> make_pattern(const T* values, int channels)
{
    Pattern<T> pattern;
    if (channels != 3) {
        pattern.period = 1;
        const auto once = from_bits(simd::as<std::uint64_t>(repeated(values, channels)));
        // One store where registers are so wide: a load of this width would have to wait for two of them.
        simd::store(reinterpret_cast<double*>(pattern.row), of_parts(once, once));
        return pattern;
    }
    if constexpr (sizeof(T) <= 4) {
        constexpr int period = 12 / static_cast<int>(sizeof(T));  // the elements of three 32-bit words
        T elements[period];
        for (int i = 0; i < period; ++i) std::memcpy(elements + i, values + i % 3, sizeof(T));
        using Words = simd::half<std::uint32_t>;
        std::uint32_t w[3];
        std::memcpy(w, elements, sizeof(w));
        const Words vectors[3] = {simd::of_lanes(w[0], w[1], w[2], w[0]), simd::of_lanes(w[1], w[2], w[0], w[1]),
                                  simd::of_lanes(w[2], w[0], w[1], w[2])};
        pattern.period = 3;
        std::uint32_t* const row = reinterpret_cast<std::uint32_t*>(pattern.row);
        for (int i = 0; i < Pattern<T>::kBytes / 16; ++i) simd::store(row + i * Words::N, vectors[i % 3]);
    }
    return pattern;
}
#else
// The constants alone, of which the plain loops take each in its turn.
template <class T>
ORV_INLINE Pattern<T> make_pattern(const T* values, int channels)
{
    Pattern<T> pattern;
    __builtin_memcpy(pattern.row, values, sizeof(T) * static_cast<std::size_t>(channels));
    return pattern;
}
#endif

// A long row with the pattern in registers. Period is 1 or 3 vectors.
template <int Period, class T, class Op>
ORV_INLINE void pattern_row(const Pattern<T>& pattern, const T* src, T* dst, std::ptrdiff_t n, Op& op)
{
    using V = simd::widest<T>;
    const auto with = [=, &op](V constants, std::ptrdiff_t i) __attribute__((always_inline)) {
        return op.many(constants, simd::load<V>(src + i));
    };
    const auto store = [dst](std::ptrdiff_t i, V v) __attribute__((always_inline)) { simd::store(dst + i, v); };
    const auto at = [=, &pattern](std::ptrdiff_t i) __attribute__((always_inline)) {
        return with(simd::load<V>(pattern.at(i)), i);
    };
    full_vectors<V::N>(n, at, store, [=, &pattern](std::ptrdiff_t end) __attribute__((always_inline)) {
        std::ptrdiff_t i = 0;
        const V k0 = simd::load<V>(pattern.row);
        if (Period == 1) {
            for (; i < end; i += V::N) store(i, with(k0, i));
            return;
        }
        const V k1 = simd::load<V>(pattern.row + V::N), k2 = simd::load<V>(pattern.row + 2 * V::N);
        for (; i < end - 2 * V::N; i += 3 * V::N) {
            store(i, with(k0, i));
            store(i + V::N, with(k1, i + V::N));
            store(i + 2 * V::N, with(k2, i + 2 * V::N));
        }
        if (i < end) store(i, with(k0, i));
        i += V::N;
        if (i < end) store(i, with(k1, i));
    });
}

// dst = op(constant of the channel, src). There are 1 to 4 channels. The constants may lie in the destination,
// and are read before anything is stored.
template <class T, class Op>
inline void constant_plane(const T* values, const T* src, int srcStep, T* dst, int dstStep, Size roi,
                           int channels, Op& op)
{
    const Rows rows(roi, channels, sizeof(T), srcStep, dstStep);
    const Pattern<T> pattern = make_pattern(values, channels);
    if constexpr (ORV_HAVE_VECTORS) {
        Op local = op;
        for (int y = 0; y < rows.count; ++y) {
            const T* const s = row_at(src, srcStep, y);
            T* const d = row_at(dst, dstStep, y);
            if (rows.n < simd::widest<T>::N) {
                short_row(d, rows.n, FromTwo<T, Op>{pattern.row, s, &local});
            } else if (channels == 3) {
                pattern_row<3>(pattern, s, d, rows.n, local);
            } else {
                pattern_row<1>(pattern, s, d, rows.n, local);
            }
        }
        op = local;
    } else {
        for (int y = 0; y < rows.count; ++y) {
            const T* const s = row_at(src, srcStep, y);
            T* const d = row_at(dst, dstStep, y);
            int channel = 0;
            for (std::ptrdiff_t i = 0; i < rows.n; ++i) {
                put(d + i, op.one(pattern.row[channel], get(s + i)));
                if (++channel == channels) channel = 0;
            }
        }
    }
}

}  // namespace ORV_LEVEL
}  // namespace orv
