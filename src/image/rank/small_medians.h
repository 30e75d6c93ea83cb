// Medians of 3x3 and 5x5 pixels by exchanges. A column is sorted once for all windows that it belongs to, and two
// rows of results share the sorting of the rows that both have.
//
// With sorted columns, sorting each of their rows (the least of every column, the second least ...) leaves the
// columns sorted. The element at (i, j) then has (i+1)(j+1) - 1 others not above it and (m-i)(m-j) - 1 not below,
// so few are left that may be the median, and of each row only these are sorted.
#pragma once

#include "math/order.h"

namespace orv {
inline namespace ORV_LEVEL {

template <class V>
ORV_INLINE void sort(V& a, V& b, V& c, V& d)
{
    exchange(a, b);
    exchange(c, d);
    exchange(a, c);
    exchange(b, d);
    exchange(b, c);
}
template <class V>
ORV_INLINE V median_of(V a, V b, V c)
{
    exchange(a, b);
    return simd::max(a, simd::min(b, c));
}
template <class V>
ORV_INLINE V median_of(V a, V b, V c, V d, V e)
{
    exchange(a, b);
    exchange(c, d);
    return median_of(e, simd::max(a, c), simd::min(b, d));
}

// Column(s) of `count` keys with one more: where it belongs, the others behind it.
template <int count, class V>
ORV_INLINE void insert(V (&sorted)[count + 1], V key)
{
    for (int i = 0; i < count; ++i) exchange(sorted[i], key);
    sorted[count] = key;
}

template <int side> struct SmallMedian;

template <>
struct SmallMedian<3> {
    template <class V>
    static ORV_INLINE void sort_shared(V (&k)[2])
    {
        exchange(k[0], k[1]);
    }
    // Of the windows whose first columns are at p; a column's keys are `apart`.
    template <class V>
    static ORV_INLINE V of(const Key* p, std::ptrdiff_t apart)
    {
        const auto at = [=](int i, int j) { return simd::load<V>(p + apart * i + j); };
        const V least = simd::max(simd::max(at(0, 0), at(0, 1)), at(0, 2));
        const V most = simd::min(simd::min(at(2, 0), at(2, 1)), at(2, 2));
        return median_of(least, median_of(at(1, 0), at(1, 1), at(1, 2)), most);
    }
};

template <>
struct SmallMedian<5> {
    template <class V>
    static ORV_INLINE void sort_shared(V (&k)[4])
    {
        sort(k[0], k[1], k[2], k[3]);
    }
    template <class V>
    static ORV_INLINE V of(const Key* p, std::ptrdiff_t apart)
    {
        // The greatest of the four below the diagonal that falls, and the least of the four above it; the five on
        // it. Below the former lie six elements at least, above the latter six.
        V least, most, diagonal[5];
        const auto at = [=](int i, int j) { return simd::load<V>(p + apart * i + j); };
        first_two<FromGreatest>(at(0, 0), at(0, 1), at(0, 2), at(0, 3), at(0, 4), diagonal[0], least);
        first_two<FromLeast>(at(4, 0), at(4, 1), at(4, 2), at(4, 3), at(4, 4), diagonal[4], most);
        V low, high;
        middle_three(at(2, 0), at(2, 1), at(2, 2), at(2, 3), at(2, 4), low, diagonal[2], high);
        least = simd::max(least, low);
        most = simd::min(most, high);
        first_three<FromGreatest>(at(1, 0), at(1, 1), at(1, 2), at(1, 3), at(1, 4), high, diagonal[1], low);
        least = simd::max(least, low);
        most = simd::min(most, high);
        first_three<FromLeast>(at(3, 0), at(3, 1), at(3, 2), at(3, 3), at(3, 4), low, diagonal[3], high);
        least = simd::max(least, low);
        most = simd::min(most, high);
        return median_of(least, median_of(diagonal[0], diagonal[1], diagonal[2], diagonal[3], diagonal[4]), most);
    }

private:
    // What comes first of two: the lesser one, or the greater one.
    struct FromLeast {
        template <class V> static ORV_INLINE V first(V a, V b) { return simd::min(a, b); }
        template <class V> static ORV_INLINE V last(V a, V b) { return simd::max(a, b); }
    };
    struct FromGreatest {
        template <class V> static ORV_INLINE V first(V a, V b) { return simd::max(a, b); }
        template <class V> static ORV_INLINE V last(V a, V b) { return simd::min(a, b); }
    };
    template <class Order, class V>
    static ORV_INLINE void arrange(V& a, V& b)
    {
        const V first = Order::first(a, b);
        b = Order::last(a, b);
        a = first;
    }
    template <class Order, class V>
    static ORV_INLINE void first_two(V a, V b, V c, V d, V e, V& first, V& second)
    {
        arrange<Order>(a, b);
        arrange<Order>(c, d);
        arrange<Order>(a, c);
        second = Order::first(Order::first(b, d), c);
        second = Order::first(second, Order::last(a, e));
        first = Order::first(a, e);
    }
    template <class Order, class V>
    static ORV_INLINE void first_three(V a, V b, V c, V d, V e, V& first, V& second, V& third)
    {
        arrange<Order>(a, b);
        arrange<Order>(c, d);
        arrange<Order>(a, c);  // a is the first of four
        V x = Order::first(b, d), y = c;
        arrange<Order>(y, x);  // y the second, x the third
        arrange<Order>(e, a);
        first = e;
        arrange<Order>(a, y);
        second = a;
        third = Order::first(x, y);
    }
    template <class V>
    static ORV_INLINE void middle_three(V a, V b, V c, V d, V e, V& low, V& middle, V& high)
    {
        sort(a, b, c, d);
        V key = simd::max(a, e);
        exchange(b, key);
        low = b;
        exchange(c, key);
        middle = c;
        high = simd::min(d, key);
    }
};

}  // namespace ORV_LEVEL
}  // namespace orv
