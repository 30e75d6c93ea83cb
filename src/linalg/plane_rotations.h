// Sequences of plane rotations, each of which takes the result of the one before it as an operand: that
// operand stays in a register from the first rotation to the last.
#pragma once

#include "linalg/registers.h"

namespace orv {
inline namespace ORV_LEVEL {

// Rows i to i + Count registers (a single one may end at `rows`) of all columns.
template <int Count, class T>
ORV_INLINE void rotate_strip(std::ptrdiff_t i, std::ptrdiff_t rows, std::ptrdiff_t pairs, bool backward, const T* c,
                             const T* s, T* a, std::ptrdiff_t lda)
{
    using R = Register<T>;
    using V = typename R::V;
    const auto load = [=](std::ptrdiff_t column, int r) __attribute__((always_inline)) {
        return Count == 1 ? load_until(a + column * lda, i, rows) : R::load(a + column * lda + i + r * R::N);
    };
    const auto store = [=](std::ptrdiff_t column, int r, V v) __attribute__((always_inline)) {
        if (Count == 1) store_until(a + column * lda, i, rows, v);
        else R::store(a + column * lda + i + r * R::N, v);
    };
    V carried[Count];
    for (int r = 0; r < Count; ++r) carried[r] = load(backward ? pairs : 0, r);
    for (std::ptrdiff_t pair = 0; pair < pairs; ++pair) {
        const std::ptrdiff_t k = backward ? pairs - 1 - pair : pair;
        const V cosine = R::splat(c[k]), sine = R::splat(s[k]);
        for (int r = 0; r < Count; ++r) {
            if (backward) {
                const V u = load(k, r);
                store(k + 1, r, cosine * carried[r] - sine * u);
                carried[r] = cosine * u + sine * carried[r];
            } else {
                const V v = load(k + 1, r);
                store(k, r, cosine * carried[r] + sine * v);
                carried[r] = cosine * v - sine * carried[r];
            }
        }
    }
    for (int r = 0; r < Count; ++r) store(backward ? 0 : pairs, r, carried[r]);
}

template <class T>
ORV_INLINE void rotate_columns(std::ptrdiff_t rows, std::ptrdiff_t columns, bool backward, const T* c, const T* s, T* a,
                               std::ptrdiff_t lda)
{
    constexpr int kStrip = 4 * Register<T>::N;
    std::ptrdiff_t i = 0;
    for (; i + kStrip <= rows; i += kStrip) {
        if (backward) rotate_strip<4>(i, rows, columns - 1, true, c, s, a, lda);
        else rotate_strip<4>(i, rows, columns - 1, false, c, s, a, lda);
    }
    for (; i < rows; i += Register<T>::N) rotate_strip<1>(i, rows, columns - 1, backward, c, s, a, lda);
}

// Rows of as many columns as a register has lanes: a register holds one row of them.
template <class T>
class RowsOfColumns {
    using R = Register<T>;
    using V = typename R::V;
    static constexpr int N = R::N;

public:
    // Columns from j on. Behind the last one stand copies of it, which get the same values.
    RowsOfColumns(T* a, std::ptrdiff_t lda, std::ptrdiff_t j, std::ptrdiff_t columns)
    {
        for (int l = 0; l < N; ++l) column_[l] = a + (j + l < columns ? j + l : columns - 1) * lda;
    }

    void rotate_downward(std::ptrdiff_t pairs, const T* c, const T* s)
    {
        V rows[N], carried = row(0);
        std::ptrdiff_t k = 0;
        for (; k + N <= pairs; k += N) {
            for (int l = 0; l < N; ++l) rows[l] = R::load(column_[l] + k + 1);
            transpose(rows);
            for (int i = 0; i < N; ++i) rows[i] = down(R::splat(c[k + i]), R::splat(s[k + i]), carried, rows[i]);
            transpose(rows);
            for (int l = 0; l < N; ++l) R::store(column_[l] + k, rows[l]);
        }
        const int rest = static_cast<int>(pairs - k);
        if (rest > 0) {
            for (int l = 0; l < N; ++l) rows[l] = R::load_part(column_[l] + k + 1, rest);
            transpose(rows);
            for (int i = 0; i < rest; ++i) rows[i] = down(R::splat(c[k + i]), R::splat(s[k + i]), carried, rows[i]);
        }
        for (int i = rest; i < N; ++i) rows[i] = carried;
        store_rows(k, rest + 1, rows);
    }

    void rotate_upward(std::ptrdiff_t pairs, const T* c, const T* s)
    {
        V rows[N], carried = row(pairs);
        std::ptrdiff_t k = pairs;
        for (; k >= N; k -= N) {
            const std::ptrdiff_t top = k - N;
            for (int l = 0; l < N; ++l) rows[l] = R::load(column_[l] + top);
            transpose(rows);
            for (int i = N - 1; i >= 0; --i) rows[i] = up(R::splat(c[top + i]), R::splat(s[top + i]), carried, rows[i]);
            transpose(rows);
            for (int l = 0; l < N; ++l) R::store(column_[l] + top + 1, rows[l]);
        }
        const int rest = static_cast<int>(k);
        V last[N];
        if (rest > 0) {
            for (int l = 0; l < N; ++l) rows[l] = R::load_part(column_[l], rest);
            transpose(rows);
            for (int i = rest - 1; i >= 0; --i) last[i + 1] = up(R::splat(c[i]), R::splat(s[i]), carried, rows[i]);
        }
        for (int i = rest + 1; i < N; ++i) last[i] = carried;
        last[0] = carried;
        store_rows(0, rest + 1, last);
    }

private:
    V row(std::ptrdiff_t i) const
    {
        T lanes[N];
        for (int l = 0; l < N; ++l) lanes[l] = column_[l][i];
        return R::load(lanes);
    }
    void store_rows(std::ptrdiff_t first, int count, V (&rows)[N]) const
    {
        transpose(rows);
        for (int l = 0; l < N; ++l) {
            if (count == N) R::store(column_[l] + first, rows[l]);
            else R::store_part(column_[l] + first, rows[l], count);
        }
    }
    // What becomes of the upper row of a pair, the carried one, or of its lower row.
    static ORV_INLINE V down(V cosine, V sine, V& carried, V lower)
    {
        const V upper = cosine * carried + sine * lower;
        carried = cosine * lower - sine * carried;
        return upper;
    }
    static ORV_INLINE V up(V cosine, V sine, V& carried, V upper)
    {
        const V lower = cosine * carried - sine * upper;
        carried = cosine * upper + sine * carried;
        return lower;
    }

    T* column_[N];
};

template <class T>
ORV_INLINE void rotate_rows(std::ptrdiff_t rows, std::ptrdiff_t columns, bool backward, const T* c, const T* s, T* a,
                            std::ptrdiff_t lda)
{
    for (std::ptrdiff_t j = 0; j < columns; j += Register<T>::N) {
        RowsOfColumns<T> some(a, lda, j, columns);
        if (backward) some.rotate_upward(rows - 1, c, s);
        else some.rotate_downward(rows - 1, c, s);
    }
}

}  // namespace ORV_LEVEL
}  // namespace orv
