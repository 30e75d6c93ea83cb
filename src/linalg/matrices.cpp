#include "linalg/matrices.h"

#include <cstdint>

#include "core/float_control.h"
#include "linalg/vector_rows.h"
#include "linalg/views.h"
#include "simd/neighbours.h"

namespace orv {
namespace matrices {
namespace ORV_LEVEL {
namespace {

using std::ptrdiff_t;

// --- Element-wise ---------------------------------------------------------------------------------

struct Sum {
    template <class V> ORV_INLINE V operator()(V a, V b) const { return a + b; }
};
struct Difference {
    template <class V> ORV_INLINE V operator()(V a, V b) const { return a - b; }
};

// dst = op(a, b), element by element.
template <class T, class Op>
ORV_INLINE void elementwise(View<const T> a, View<const T> b, View<T> dst, ptrdiff_t width, ptrdiff_t height, Op op)
{
    if (kVectors && a.has_dense_rows() && b.has_dense_rows() && dst.has_dense_rows()) {
        const ptrdiff_t row_bytes = width * static_cast<ptrdiff_t>(sizeof(T));
        if (a.row == row_bytes && b.row == row_bytes && dst.row == row_bytes) {
            width *= height;
            height = 1;
        }
        for (ptrdiff_t i = 0; i < height; ++i) {
            const T* const row_a = a.at(i, 0);
            const T* const row_b = b.at(i, 0);
            for_vectors(width, dst.at(i, 0), [=](auto load) { return op(load(row_a), load(row_b)); });
        }
        return;
    }
    for (ptrdiff_t i = 0; i < height; ++i) {
        for (ptrdiff_t j = 0; j < width; ++j) put(dst.at(i, j), rounded(op(get(a.at(i, j)), get(b.at(i, j)))));
    }
}

template <class Op>
ORV_INLINE Status matrix_matrix(const float* src1, int src1Stride1, int src1Stride2, const float* src2,
                                int src2Stride1, int src2Stride2, float* dst, int dstStride1, int dstStride2,
                                int width, int height, Op op)
{
    if (const Status bad = check_image({width, height}, src1, src2, dst)) return bad;
    if (any_bad_stride(sizeof(float), src1Stride1, src1Stride2, src2Stride1, src2Stride2, dstStride1, dstStride2)) {
        return StatusBadStride;
    }
    const FloatControl control;
    elementwise<float>({src1, src1Stride1, src1Stride2}, {src2, src2Stride1, src2Stride2},
                       {dst, dstStride1, dstStride2}, width, height, op);
    return StatusOk;
}

// --- Products ---------------------------------------------------------------------------------------
//
// Every element is the sum of its products in the order of the inner index, each step rounded: rows
// and columns of the destination may be computed side by side, the inner index may not.

template <class T>
struct Product {
    View<const T> a, b;
    View<T> dst;
    ptrdiff_t rows, columns, inner;

    ORV_INLINE Product transposed() const
    {
        return {b.transposed(), a.transposed(), dst.transposed(), columns, rows, inner};
    }
};

template <class T>
void product_by_elements(const Product<T>& p)
{
    for (ptrdiff_t i = 0; i < p.rows; ++i) {
        for (ptrdiff_t j = 0; j < p.columns; ++j) {
            T sum = rounded(get(p.a.at(i, 0)) * get(p.b.at(0, j)));
            for (ptrdiff_t k = 1; k < p.inner; ++k) {
                sum = rounded(sum + rounded(get(p.a.at(i, k)) * get(p.b.at(k, j))));
            }
            put(p.dst.at(i, j), sum);
        }
    }
}


// Rows x Columns registers of the destination from (i, j) on. The last register has `part` lanes, or all
// for 0; Inner is the inner size where it is known beforehand, else 0. Nothing is stored before all is
// computed.
template <class V, int Rows, int Columns, int Inner, class T>
ORV_INLINE void tile(const Product<T>& p, ptrdiff_t i, ptrdiff_t j, int part)
{
    V sum[Rows][Columns];
    const ptrdiff_t inner = Inner != 0 ? Inner : p.inner;
    View<const T> a = {p.a.at(i, 0), p.a.row, p.a.column}, b = {p.b.at(0, j), p.b.row, p.b.column};
    const View<T> dst = {p.dst.at(i, j), p.dst.row, p.dst.column};
    // Places of rows are kept: computed again in every step they would take ports from the arithmetic.
    ptrdiff_t row_at[Rows];
    for (int r = 0; r < Rows; ++r) {
        row_at[r] = r * a.row;
        if (r == 3 || r == 5) __asm__("" : "+r"(row_at[r]));
    }
    const auto step = [&](bool first) __attribute__((always_inline)) {
        V row[Columns];
        for (int c = 0; c < Columns; ++c) {
            const T* const from = b.base + c * V::N;
            row[c] = part != 0 && c == Columns - 1 ? simd::load_part<V>(from, part) : simd::load<V>(from);
            if (Rows > 1) row[c] = simd::in_register(row[c]);  // loaded once, not for every row
        }
        for (int r = 0; r < Rows; ++r) {
            const V x = simd::splat_at<V>(View<const T>{a.base, row_at[r], 0}.at(1, 0));
            for (int c = 0; c < Columns; ++c) sum[r][c] = first ? x * row[c] : sum[r][c] + x * row[c];
        }
        a.base = a.at(0, 1);
        b.base = b.at(1, 0);
    };
    step(true);
    for (ptrdiff_t k = inner; --k > 0;) step(false);
    for (int r = 0; r < Rows; ++r) {
        T* const row = dst.at(r, 0);
        for (int c = 0; c < Columns; ++c) {
            if (part != 0 && c == Columns - 1) simd::store_part(row + c * V::N, sum[r][c], part);
            else simd::store(row + c * V::N, sum[r][c]);
        }
    }
}

// A strip of the destination, Columns registers wide.
template <class V, int Columns, class T>
ORV_INLINE void strip(const Product<T>& p, ptrdiff_t j, int part)
{
    ptrdiff_t i = 0;
    for (; i + 4 <= p.rows; i += 4) tile<V, 4, Columns, 0>(p, i, j, part);
    for (; i + 2 <= p.rows; i += 2) tile<V, 2, Columns, 0>(p, i, j, part);
    if (i < p.rows) tile<V, 1, Columns, 0>(p, i, j, part);
}

// A destination of one row.
template <class V, class T>
ORV_INLINE void one_row(const Product<T>& p)
{
    ptrdiff_t j = 0;
    for (; j + 8 * V::N <= p.columns; j += 8 * V::N) tile<V, 1, 8, 0>(p, 0, j, 0);
    for (; j + 4 * V::N <= p.columns; j += 4 * V::N) tile<V, 1, 4, 0>(p, 0, j, 0);
    for (; j + 2 * V::N <= p.columns; j += 2 * V::N) tile<V, 1, 2, 0>(p, 0, j, 0);
    for (; j + V::N <= p.columns; j += V::N) tile<V, 1, 1, 0>(p, 0, j, 0);
    if (j < p.columns) tile<V, 1, 1, 0>(p, 0, j, static_cast<int>(p.columns - j));
}

template <class V, class T>
ORV_INLINE void strips(const Product<T>& p)
{
    if (p.rows == 1) return one_row<V>(p);
    ptrdiff_t j = 0;
    for (; j + 2 * V::N <= p.columns; j += 2 * V::N) strip<V, 2>(p, j, 0);
    for (; j + V::N <= p.columns; j += V::N) strip<V, 1>(p, j, 0);
    if (j < p.columns) strip<V, 1>(p, j, static_cast<int>(p.columns - j));
}

#if ORV_HAVE_FLOAT256
// Out of line, so that smaller products do not set up a frame for it.
__attribute__((noinline)) void product_8x8(const float* a, ptrdiff_t a_row, ptrdiff_t a_column, const float* b,
                                           ptrdiff_t b_row, float* dst, ptrdiff_t dst_row)
{
    ptrdiff_t inner = 8;
    __asm__("" : "+r"(inner));  // a loop: unrolled, all broadcasts would be made first and not fit into registers
    const Product<float> p = {
        {a, a_row, a_column}, {b, b_row, sizeof(float)}, {dst, dst_row, sizeof(float)}, 8, 8, inner};
    tile<simd::widest<float>, 8, 1, 0>(p, 0, 0, 0);
}

using TwoRows = simd::vec<float, 8>;  // of four elements
template <int k, class Splat>
ORV_INLINE void add_products(TwoRows (&sum)[2], const TwoRows (&a)[2], Splat b)
{
    if constexpr (k < 4) {
        const TwoRows row = b(k);
        sum[0] += simd::permuted<k, k, k, k>(a[0]) * row;
        sum[1] += simd::permuted<k, k, k, k>(a[1]) * row;
        add_products<k + 1>(sum, a, b);
    }
}
ORV_INLINE void product_4x4(View<const float> a, View<const float> b, View<float> dst)
{
    const auto b_row = [b](int k) __attribute__((always_inline)) { return simd::load_repeated<TwoRows>(b.at(k, 0)); };
    const TwoRows rows[2] = {simd::load_halves(a.at(0, 0), a.at(1, 0)), simd::load_halves(a.at(2, 0), a.at(3, 0))};
    TwoRows sum[2] = {simd::permuted<0, 0, 0, 0>(rows[0]) * b_row(0), simd::permuted<0, 0, 0, 0>(rows[1]) * b_row(0)};
    add_products<1>(sum, rows, b_row);
    for (int i = 0; i < 2; ++i) simd::store_halves(dst.at(2 * i, 0), dst.at(2 * i + 1, 0), sum[i]);
}
#endif

// The sizes that matter most; unlike the strips these may store over their sources.
template <class T>
ORV_INLINE bool product_of_usual_size(const Product<T>& p)
{
    if (p.rows != p.columns || p.rows != p.inner) return false;
    if (p.rows == 4) {
#if ORV_HAVE_FLOAT256
        if constexpr (sizeof(T) == 4) {
            if (p.a.has_dense_rows()) {
                product_4x4(p.a, p.b, p.dst);
                return true;
            }
        }
#endif
        if constexpr (sizeof(T) == 4) tile<simd::half<T>, 4, 1, 4>(p, 0, 0, 0);
        else tile<simd::widest<T>, 4, 4 / simd::widest<T>::N, 4>(p, 0, 0, 0);
        return true;
    }
    if (p.rows == 3) {
        if constexpr (sizeof(T) == 4) tile<simd::half<T>, 3, 1, 3>(p, 0, 0, 3);
        else
            tile<simd::widest<T>, 3, (simd::widest<T>::N + 2) / simd::widest<T>::N, 3>(p, 0, 0, 3 % simd::widest<T>::N);
        return true;
    }
#if ORV_HAVE_FLOAT256
    if constexpr (sizeof(T) == 4) {
        if (p.rows == 8) {
            product_8x8(p.a.base, p.a.row, p.a.column, p.b.base, p.b.row, p.dst.base, p.dst.row);
            return true;
        }
    }
#endif
    return false;
}

template <class T>
void product_by_vectors(const Product<T>& p)
{
    if (sizeof(T) == 4 && p.columns <= 4) strips<simd::half<T>>(p);
    else strips<simd::widest<T>>(p);
}

template <class T>
void product_apart(const Product<T>& p)
{
    if (kVectors && p.b.has_dense_rows() && p.dst.has_dense_rows()) return product_by_vectors(p);
    if (kVectors && p.a.has_dense_columns() && p.dst.has_dense_columns()) return product_by_vectors(p.transposed());
    product_by_elements(p);
}

template <class T>
ORV_INLINE bool touches_sources(const Product<T>& p)
{
    return overlap(p.dst, p.rows, p.columns, p.a, p.rows, p.inner) ||
           overlap(p.dst, p.rows, p.columns, p.b, p.inner, p.columns);
}

// Runs compute(dst) into memory of its own, then moves the result to dst.
template <class T, class Compute>
__attribute__((noinline)) Status by_substitute(View<T> dst, ptrdiff_t rows, ptrdiff_t columns, Compute compute)
{
    Substitute<T> substitute(rows, columns);
    const View<T> view = substitute.view();
    if (view.base == nullptr) return StatusNoMemory;
    compute(view);
    copy_elements<T>({view.base, view.row, view.column}, dst, columns, rows);
    return StatusOk;
}

template <class T>
__attribute__((noinline)) Status product_of_any_size(const Product<T>& p)
{
    if (touches_sources(p)) {
        return by_substitute(p.dst, p.rows, p.columns, [&p](View<T> dst) {
            Product<T> elsewhere = p;
            elsewhere.dst = dst;
            product_apart(elsewhere);
        });
    }
    product_apart(p);
    return StatusOk;
}

template <class T>
ORV_INLINE Status product(const Product<T>& p)
{
    const FloatControl control;
    if (kVectors && p.b.has_dense_rows() && p.dst.has_dense_rows() && product_of_usual_size(p)) return StatusOk;
    // A copy: those of usual size keep theirs in registers.
    const Product<T> any = {{p.a.base, p.a.row, p.a.column}, {p.b.base, p.b.row, p.b.column},
                            {p.dst.base, p.dst.row, p.dst.column}, p.rows, p.columns, p.inner};
    return product_of_any_size(any);
}

// --- Matrix times vector ----------------------------------------------------------------------------
//
// A row of the matrix lies along the sum, so four sums run side by side: the products of the columns
// 0, 4, 8... go to the first, 1, 5, 9... to the second; the total is (first + second) + (third +
// fourth). Sums start at +0.

template <class T>
ORV_INLINE T row_by_elements(View<const T> a, View<const T> v, ptrdiff_t i, ptrdiff_t n)
{
    T sum[4] = {0, 0, 0, 0};
    for (ptrdiff_t k = 0; k < n; ++k) {
        sum[k % 4] = rounded(sum[k % 4] + rounded(get(a.at(i, k)) * get(v.at(0, k))));
    }
    return rounded(rounded(sum[0] + sum[1]) + rounded(sum[2] + sum[3]));
}


#if ORV_HAVE_VECTORS

// Rows of a matrix, walked along side by side. Addresses that are computed in every step would take ports from
// the arithmetic: two pointers and the places of three rows beside each are kept.
template <int Rows>
struct RowsInStep {
    const double* base[2];
    ptrdiff_t place[4];

    ORV_INLINE RowsInStep(View<const double> a, ptrdiff_t i)
        : base{a.at(i, 0), a.at(Rows > 4 ? i + 4 : i, 0)}, place{0, a.row, 2 * a.row, 3 * a.row}
    {
        __asm__("" : "+r"(place[3]));
    }
    ORV_INLINE const double* row(int r) const { return View<const double>{base[r / 4], place[r % 4], 0}.at(1, 0); }
    ORV_INLINE void advance(int elements)
    {
        base[0] += elements;
        if (Rows > 4) base[1] += elements;
    }
};

// Four sums of a row, in the registers of the level.
template <int Rows>
struct FourSums {
    using V = simd::widest<double>;
    static constexpr int kRegisters = 4 / V::N;
    V sum[Rows + Rows % 2][kRegisters] = {};

    ORV_INLINE void add(const RowsInStep<Rows>& a, const double* v)
    {
        for (int c = 0; c < kRegisters; ++c) {
            const V x = simd::load<V>(v + c * V::N);
            for (int r = 0; r < Rows; ++r) sum[r][c] += simd::load<V>(a.row(r) + c * V::N) * x;
        }
    }
    ORV_INLINE void add_rest(const RowsInStep<Rows>& a, const double* v, int rest)
    {
        for (int c = 0; c < kRegisters && rest > 0; ++c, rest -= V::N) {
            const bool whole = rest >= V::N;
            const V x = whole ? simd::load<V>(v + c * V::N) : simd::load_part<V>(v + c * V::N, rest);
            for (int r = 0; r < Rows; ++r) {
                const double* const row = a.row(r) + c * V::N;
                sum[r][c] += (whole ? simd::load<V>(row) : simd::load_part<V>(row, rest)) * x;
            }
        }
    }
    // (first + second) + (third + fourth) of rows r and r + 1.
    ORV_INLINE simd::half<double> totals(int r) const
    {
        const auto pairs = [this, r](int c) __attribute__((always_inline)) {
            return even_of(sum[r][c], sum[r + 1][c]) + odd_of(sum[r][c], sum[r + 1][c]);
        };
#if ORV_HAVE_FLOAT256
        const V both = pairs(0);
        return lower_part(both) + upper_part(both);
#else
        return pairs(0) + pairs(1);
#endif
    }
};

template <int Rows>
ORV_INLINE void rows_times_vector(View<const double> a, const double* v, View<double> dst, ptrdiff_t i, ptrdiff_t n)
{
    FourSums<Rows> sums;
    RowsInStep<Rows> rows(a, i);
    ptrdiff_t left = n;
    for (; left >= 4; left -= 4, v += 4, rows.advance(4)) sums.add(rows, v);
    if (left > 0) sums.add_rest(rows, v, static_cast<int>(left));
    for (int r = 0; r < Rows; r += 2) {
        const simd::half<double> totals = sums.totals(r);
        simd::store_first<8>(dst.at(0, i + r), totals);
        if (r + 1 < Rows) simd::store_last<8>(dst.at(0, i + r + 1), totals);
    }
}


#endif

// dst = a * v, where a has `rows` rows of n elements; v and dst are rows.
ORV_INLINE void matrix_times_vector(View<const double> a, View<const double> v, View<double> dst, ptrdiff_t rows,
                                    ptrdiff_t n)
{
#if ORV_HAVE_VECTORS
    if (a.has_dense_rows() && v.has_dense_rows()) {
        ptrdiff_t i = 0;
        for (; i + 8 <= rows; i += 8) rows_times_vector<8>(a, v.base, dst, i, n);
        for (; i + 4 <= rows; i += 4) rows_times_vector<4>(a, v.base, dst, i, n);
        if (i + 3 == rows) rows_times_vector<3>(a, v.base, dst, i, n);
        else if (i + 2 == rows) rows_times_vector<2>(a, v.base, dst, i, n);
        else if (i < rows) rows_times_vector<1>(a, v.base, dst, i, n);
        return;
    }
#endif
    for (ptrdiff_t i = 0; i < rows; ++i) put(dst.at(0, i), row_by_elements(a, v, i, n));
}

// --- Moving and filling: floats as integers, so that every bit arrives ------------------------------

using Bits = std::uint32_t;

// A square of as many rows as a register has lanes.
template <class V>
ORV_INLINE void transpose_square(View<const float> src, View<float> dst)
{
    V v[V::N];
    for (int i = 0; i < V::N; ++i) v[i] = simd::load<V>(src.at(i, 0));
    transpose(v);
    for (int i = 0; i < V::N; ++i) simd::store(dst.at(i, 0), v[i]);
}

ORV_INLINE void transpose_by_elements(View<const Bits> src, View<Bits> dst, ptrdiff_t width, ptrdiff_t height)
{
    for (ptrdiff_t j = 0; j < width; ++j) {
        for (ptrdiff_t i = 0; i < height; ++i) put(dst.at(j, i), get(src.at(i, j)));
    }
}

ORV_INLINE void transpose_apart(View<const float> src, View<float> dst, ptrdiff_t width, ptrdiff_t height)
{
    const auto elements = [&](ptrdiff_t i, ptrdiff_t j, ptrdiff_t columns, ptrdiff_t rows) {
        transpose_by_elements({reinterpret_cast<const Bits*>(src.at(i, j)), src.row, src.column},
                              {reinterpret_cast<Bits*>(dst.at(j, i)), dst.row, dst.column}, columns, rows);
    };
    if (kVectors && src.has_dense_rows() && dst.has_dense_rows()) {
        const ptrdiff_t whole_rows = height & ~ptrdiff_t{3}, whole_columns = width & ~ptrdiff_t{3};
        constexpr ptrdiff_t wide = simd::widest<float>::N;
        const auto square = [&](auto pack, ptrdiff_t i, ptrdiff_t j) __attribute__((always_inline)) {
            transpose_square<decltype(pack)>({src.at(i, j), src.row, src.column}, {dst.at(j, i), dst.row, dst.column});
        };
        for (ptrdiff_t i = 0; i < whole_rows;) {
            const bool tall = i + wide <= whole_rows;
            ptrdiff_t j = 0;
            for (; tall && j + wide <= whole_columns; j += wide) square(simd::widest<float>(), i, j);
            const ptrdiff_t rows = tall ? wide : 4;
            for (; j < whole_columns; j += 4) {
                for (ptrdiff_t r = 0; r < rows; r += 4) square(simd::half<float>(), i + r, j);
            }
            i += rows;
        }
        if (whole_columns < width) elements(0, whole_columns, width - whole_columns, whole_rows);
        if (whole_rows < height) elements(whole_rows, 0, width, height - whole_rows);
        return;
    }
    elements(0, 0, width, height);
}

void identity(View<float> dst, ptrdiff_t width, ptrdiff_t height)
{
    constexpr Bits one = 0x3F800000;
    for (ptrdiff_t i = 0; i < height; ++i) {
        for (ptrdiff_t j = 0; j < width; ++j) put(reinterpret_cast<Bits*>(dst.at(i, j)), i == j ? one : Bits{0});
    }
}

}  // namespace

// --- Kernels ----------------------------------------------------------------------------------------

Status Add_mm_32f(const float* src1, int src1Stride1, int src1Stride2, const float* src2, int src2Stride1,
                  int src2Stride2, float* dst, int dstStride1, int dstStride2, int width, int height)
{
    return matrix_matrix(src1, src1Stride1, src1Stride2, src2, src2Stride1, src2Stride2, dst, dstStride1, dstStride2,
                         width, height, Sum());
}

// src1 - src2: the first operand is the minuend here, unlike in the subtractions of images and vectors.
Status Sub_mm_32f(const float* src1, int src1Stride1, int src1Stride2, const float* src2, int src2Stride1,
                  int src2Stride2, float* dst, int dstStride1, int dstStride2, int width, int height)
{
    return matrix_matrix(src1, src1Stride1, src1Stride2, src2, src2Stride1, src2Stride2, dst, dstStride1, dstStride2,
                         width, height, Difference());
}

Status Mul_mc_32f(const float* src, int srcStride1, int srcStride2, float value, float* dst, int dstStride1,
                  int dstStride2, int width, int height)
{
    if (const Status bad = check_image({width, height}, src, dst)) return bad;
    if (any_bad_stride(sizeof(float), srcStride1, srcStride2, dstStride1, dstStride2)) return StatusBadStride;
    const FloatControl control;
    const View<const float> a = {src, srcStride1, srcStride2};
    elementwise<float>(a, a, {dst, dstStride1, dstStride2}, width, height,
                       [value](auto element, auto) { return value * element; });
    return StatusOk;
}

Status Mul_mm_32f(const float* src1, int src1Stride1, int src1Stride2, int src1Width, int src1Height,
                  const float* src2, int src2Stride1, int src2Stride2, int src2Width, int src2Height, float* dst,
                  int dstStride1, int dstStride2)
{
    if (any_null(src1, src2, dst)) return StatusNullPointer;
    if (any_below_one(src1Width, src1Height, src2Width, src2Height)) return StatusBadSize;
    if (src1Width != src2Height) return StatusSizesDiffer;
    if (any_bad_stride(sizeof(float), src1Stride1, src1Stride2, src2Stride1, src2Stride2, dstStride1, dstStride2)) {
        return StatusBadStride;
    }
    return product<float>({{src1, src1Stride1, src1Stride2}, {src2, src2Stride1, src2Stride2},
                           {dst, dstStride1, dstStride2}, src1Height, src2Width, src1Width});
}

Status Mul_tm_64f(const double* src1, int src1Stride1, int src1Stride2, int src1Width, int src1Height,
                  const double* src2, int src2Stride1, int src2Stride2, int src2Width, int src2Height, double* dst,
                  int dstStride1, int dstStride2)
{
    if (any_null(src1, src2, dst)) return StatusNullPointer;
    if (any_below_one(src1Width, src1Height, src2Width, src2Height)) return StatusBadSize;
    if (src1Height != src2Height) return StatusSizesDiffer;
    if (any_bad_stride(sizeof(double), src1Stride1, src1Stride2, src2Stride1, src2Stride2, dstStride1, dstStride2)) {
        return StatusBadStride;
    }
    return product<double>({{src1, src1Stride2, src1Stride1}, {src2, src2Stride1, src2Stride2},
                            {dst, dstStride1, dstStride2}, src1Width, src2Width, src1Height});
}

Status Mul_mv_64f(const double* src1, int src1Stride1, int src1Stride2, int src1Width, int src1Height,
                  const double* src2, int src2Stride2, int src2Len, double* dst, int dstStride2)
{
    if (any_null(src1, src2, dst)) return StatusNullPointer;
    if (any_below_one(src1Width, src1Height, src2Len)) return StatusBadSize;
    if (src1Width != src2Len) return StatusSizesDiffer;
    if (any_bad_stride(sizeof(double), src1Stride1, src1Stride2, src2Stride2, dstStride2)) return StatusBadStride;

    const FloatControl control;
    const View<const double> a = {src1, src1Stride1, src1Stride2}, v = {src2, 0, src2Stride2};
    const View<double> x = {dst, 0, dstStride2};
    if (overlap(x, 1, src1Height, a, src1Height, src1Width) || overlap(x, 1, src1Height, v, 1, src2Len)) {
        return by_substitute(x, 1, src1Height,
                             [=](View<double> apart) { matrix_times_vector(a, v, apart, src1Height, src1Width); });
    }
    matrix_times_vector(a, v, x, src1Height, src1Width);
    return StatusOk;
}

// The vector as a matrix of one row: its product with the matrix runs along the rows.
Status Mul_tv_64f(const double* src1, int src1Stride1, int src1Stride2, int src1Width, int src1Height,
                  const double* src2, int src2Stride2, int src2Len, double* dst, int dstStride2)
{
    if (any_null(src1, src2, dst)) return StatusNullPointer;
    if (any_below_one(src1Width, src1Height, src2Len)) return StatusBadSize;
    if (src1Height != src2Len) return StatusSizesDiffer;
    if (any_bad_stride(sizeof(double), src1Stride1, src1Stride2, src2Stride2, dstStride2)) return StatusBadStride;
    const Product<double> p = {{src2, 0, src2Stride2}, {src1, src1Stride1, src1Stride2}, {dst, 0, dstStride2}, 1,
                               src1Width, src1Height};
    const FloatControl control;
    if (kVectors && p.b.has_dense_rows() && p.dst.has_dense_rows() && !touches_sources(p)) {
        one_row<simd::widest<double>>(p);
        return StatusOk;
    }
    return product_of_any_size(p);
}

Status Transpose_m_32f(const float* src, int srcStride1, int srcStride2, int width, int height, float* dst,
                       int dstStride1, int dstStride2)
{
    if (const Status bad = check_image({width, height}, src, dst)) return bad;
    if (any_bad_stride(sizeof(float), srcStride1, srcStride2, dstStride1, dstStride2)) return StatusBadStride;
    const View<const float> from = {src, srcStride1, srcStride2};
    const View<float> to = {dst, dstStride1, dstStride2};
    if (overlap(from, height, width, to, width, height)) {
        return by_substitute(to, width, height,
                             [=](View<float> apart) { transpose_apart(from, apart, width, height); });
    }
    transpose_apart(from, to, width, height);
    return StatusOk;
}

Status LoadIdentity_ma_32f(float* dst, int dstStride0, int dstStride1, int dstStride2, int width, int height, int count)
{
    if (const Status bad = check_image({width, height}, dst)) return bad;
    if (count < 1) return StatusBadCount;
    if (any_bad_stride(sizeof(float), dstStride0, dstStride1, dstStride2)) return StatusBadStride;
    for (int m = 0; m < count; ++m) identity({row_at(dst, dstStride0, m), dstStride1, dstStride2}, width, height);
    return StatusOk;
}

Status Copy_ma_32f_SS(const float* src, int srcStride0, int srcStride1, int srcStride2, float* dst, int dstStride0,
                      int dstStride1, int dstStride2, int width, int height, int count)
{
    if (const Status bad = check_image({width, height}, src, dst)) return bad;
    if (count < 1) return StatusBadCount;
    if (any_bad_stride(sizeof(float), srcStride0, srcStride1, srcStride2, dstStride0, dstStride1, dstStride2)) {
        return StatusBadStride;
    }
    for (int m = 0; m < count; ++m) {
        copy_elements<float>({row_at(src, srcStride0, m), srcStride1, srcStride2},
                             {row_at(dst, dstStride0, m), dstStride1, dstStride2}, width, height);
    }
    return StatusOk;
}

}  // namespace ORV_LEVEL
}  // namespace matrices
}  // namespace orv
