// Quicksort on vectors: parts around pivots, in place, down to blocks that a network sorts.
//
// Each part knows the greatest value that can be in it. A pivot that is this value has only its equals on the upper
// side, which then are done: of d values that are all there is, each costs two passes at most. A part that was cut
// too often, which takes input made for it, is sorted by a heap: the time is N log N at worst. The shorter side is
// cut first, so as many sides wait as N has bits.
#pragma once

#include "math/bits.h"
#include "signal/sort_blocks.h"
#include "signal/sort_heap.h"

#if ORV_HAVE_INT256

namespace orv {
inline namespace ORV_LEVEL {

// --- Taking apart ---------------------------------------------------------------------------------

// What goes to the upper side: what is above the pivot, or the pivot's equals as well.
template <class V, bool equals>
struct Upper {
    V pivots;
    typename V::lane pivot;
    explicit ORV_INLINE Upper(typename V::lane value) : pivots(simd::splat<V>(value)), pivot(value) {}

    ORV_INLINE unsigned set(V v) const
    {
        constexpr unsigned all = (1u << V::N) - 1;
        if constexpr (equals) return simd::lanes_of(greater(pivots, v)) ^ all;
        else return simd::lanes_of(greater(v, pivots));
    }
    ORV_INLINE bool has(typename V::lane value) const { return equals ? value >= pivot : value > pivot; }
};

// What is yet to be taken apart lies between two gaps, whose elements are in registers. A vector goes to both gaps
// whole, with the lanes that belong there foremost; the others are overwritten later. So each gap must have room for
// a vector, which reading from where the gap is smaller sees to: the two together have room for eight.
template <class V, bool equals>
class Cut {
public:
    using T = typename V::lane;
    static constexpr std::ptrdiff_t kTogether = 4;

    // The place where the upper side starts. For n >= 8 V::N.
    static std::ptrdiff_t cut(T* p, std::ptrdiff_t n, T pivot)
    {
        const Upper<V, equals> upper(pivot);
        const std::ptrdiff_t whole = n - n % V::N;
        const std::ptrdiff_t at = Cut(p, whole).run(upper);
        return insert(p, at, whole, n, upper);
    }

private:
    static constexpr std::ptrdiff_t kRound = kTogether * V::N;

    ORV_INLINE Cut(T* p, std::ptrdiff_t n)
        : begin_(p), lower_(p), upper_(p + n), unread_(p + kRound), unread_end_(p + n - kRound)
    {
        ORV_ASSERT(n % V::N == 0 && n >= 2 * kRound);
    }

    ORV_INLINE std::ptrdiff_t run(const Upper<V, equals>& upper)
    {
        V first[kTogether], last[kTogether];
        load(first, begin_);
        load(last, unread_end_);
        while (unread_end_ - unread_ >= kRound) {
            V next[kTogether];
            load(next, take(kRound));
            for (const V& v : next) place(v, upper);
        }
        while (unread_ != unread_end_) place(simd::load<V>(take(V::N)), upper);
        for (const V& v : first) place(v, upper);
        for (const V& v : last) place(v, upper);
        return lower_ - begin_;
    }

    static ORV_INLINE void load(V (&to)[kTogether], const T* from)
    {
        unrolled<kTogether>([&](auto i) { to[i.v] = simd::load<V>(from + i.v * V::N); });
    }
    // From the side with the smaller gap, without a branch that nobody could foretell.
    ORV_INLINE const T* take(std::ptrdiff_t n)
    {
        const std::ptrdiff_t from_below = unread_ - lower_ <= upper_ - unread_end_ ? n : 0;
        const T* const from = from_below != 0 ? unread_ : unread_end_ - n;
        unread_ += from_below;
        unread_end_ -= n - from_below;
        return from;
    }
    ORV_INLINE void place(V v, const Upper<V, equals>& upper)
    {
        const unsigned set = upper.set(v);
        const V apart = simd::taken_apart(v, set);
        const int above = bits_set(set);
        simd::store(lower_, apart);
        simd::store(upper_ - V::N, apart);
        lower_ += V::N - above;
        upper_ -= above;
    }

    // The elements behind whole vectors.
    static ORV_INLINE std::ptrdiff_t insert(T* p, std::ptrdiff_t at, std::ptrdiff_t i, std::ptrdiff_t n,
                                            const Upper<V, equals>& upper)
    {
        for (; i < n; ++i) {
            const T moving = get(p + i);
            put(p + i, get(p + at));
            put(p + at, moving);
            at += upper.has(moving) ? 0 : 1;
        }
        return at;
    }

    T *const begin_, *lower_, *upper_, *unread_, *unread_end_;
};

// --- Pivots ---------------------------------------------------------------------------------------

// The median of the medians of eight columns, of eight vectors from all over the part.
template <class V>
ORV_INLINE typename V::lane pivot_of(const typename V::lane* p, std::ptrdiff_t n)
{
    V v[8];
    const std::ptrdiff_t apart = (n - V::N) / 7;
    unrolled<8>([&](auto i) { v[i.v] = simd::load<V>(p + i.v * apart); });
    sort_columns(v);
    typename V::lane medians[V::N];
    simd::store(medians, sorted_lanes(v[4]));
    return medians[V::N / 2];
}

// --- Parts ----------------------------------------------------------------------------------------

template <class T>
struct Part {
    T* p;
    std::ptrdiff_t n;
    T greatest;
    int cuts;  // how many are left until it goes to a heap
};

ORV_INLINE int most_cuts(std::ptrdiff_t n)
{
    int bits = 0;
    for (; n > 0; n /= 2) ++bits;
    return 2 * bits;
}

// Calls done(p, n) for each stretch that is sorted, while it is in the cache.
template <class V, class Done>
class PartSort {
public:
    using T = typename V::lane;

    // No element is above `greatest`.
    static void sort(T* p, std::ptrdiff_t n, T greatest, Done done)
    {
        // A side that waits is longer than all that is cut before it, so the next one has half as many at most.
        Part<T> waiting[8 * sizeof(std::ptrdiff_t)];
        int count = 0;
        Part<T> part = {p, n, greatest, most_cuts(n)};
        for (;;) {
            if (!is_finished(part, greatest, done)) {
                const Part<T> other = cut(part, done);
                if (other.n > 0) waiting[count++] = other;
                continue;
            }
            if (count == 0) return;
            part = waiting[--count];
        }
    }

private:
    static ORV_INLINE bool is_finished(const Part<T>& part, T highest, Done done)
    {
        if (part.n > kBlock<V> && part.cuts > 0) return false;
        const auto less = [](T a, T b) { return a < b; };
        if (part.n <= kFew) sort_by_insertion(part.p, part.n, less);
        else if (part.n <= kBlock<V>) sort_few<V>(part.p, part.n, highest);
        else sort_by_heap(part.p, part.n, less);
        done(part.p, part.n);
        return true;
    }

    // Leaves the shorter side in `part` and returns the longer one.
    static ORV_INLINE Part<T> cut(Part<T>& part, Done done)
    {
        const T pivot = pivot_of<V>(part.p, part.n);
        --part.cuts;
        if (!(pivot < part.greatest)) {
            const std::ptrdiff_t lower = Cut<V, true>::cut(part.p, part.n, pivot);
            done(part.p + lower, part.n - lower);
            part.n = lower;
            return {nullptr, 0, pivot, 0};
        }
        const std::ptrdiff_t lower = Cut<V, false>::cut(part.p, part.n, pivot);
        const Part<T> below = {part.p, lower, pivot, part.cuts};
        const Part<T> above = {part.p + lower, part.n - lower, part.greatest, part.cuts};
        part = below.n < above.n ? below : above;
        if (part.n == 0) {
            part = below;  // nothing is above the pivot: now it is known to be the greatest
            return {nullptr, 0, pivot, 0};
        }
        return below.n < above.n ? above : below;
    }
};

}  // namespace ORV_LEVEL
}  // namespace orv

#endif  // ORV_HAVE_INT256
