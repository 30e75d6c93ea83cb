// Gaussian elimination with partial pivoting, row by row.
//
// Decomposition: at step k the remaining element of column k with the largest absolute value becomes
// the pivot (the first of equal ones; a NaN counts as the largest), its whole row changes places with
// row k, and every later row loses l = a(i,k) / pivot times row k. Every element thus loses its
// products one after the other in the order of k, each step rounded, wherever and however wide the
// rows are worked on: dense, strided, buffered and vectorised forms give the same bits.
#include "linalg/elimination.h"

#include <cstdint>

#include "core/float_control.h"
#include "linalg/lane_decomposition.h"
#include "linalg/vector_rows.h"
#include "linalg/views.h"

namespace orv {
namespace elimination {
namespace ORV_LEVEL {
namespace {

using std::ptrdiff_t;

template <class T> struct BitsOf { using type = std::uint32_t; };
template <> struct BitsOf<double> { using type = std::uint64_t; };

// The absolute value as an integer that orders like it, with NaNs above infinity.
template <class T>
ORV_INLINE typename BitsOf<T>::type magnitude(const T* p)
{
    using B = typename BitsOf<T>::type;
    return get(reinterpret_cast<const B*>(p)) & (~B{0} >> 1);
}

// 2^-125: pivots below it end the decomposition and the substitution.
constexpr std::uint32_t kLeastPivot = 0x01000000;

// Up to this size matrices are worked on in dense buffers on the stack.
constexpr ptrdiff_t kBuffered = 32;

template <class T>
struct Buffer {
    alignas(32) T elements[kBuffered * kBuffered];
    // Rows are whole registers; what is behind the matrix may be computed with but is never used.
    static ORV_INLINE ptrdiff_t stride(ptrdiff_t n)
    {
        constexpr ptrdiff_t lanes = 32 / static_cast<ptrdiff_t>(sizeof(T));
        return (n + lanes - 1) / lanes * lanes;
    }
    ORV_INLINE View<T> view(ptrdiff_t n)
    {
        return {elements, stride(n) * static_cast<ptrdiff_t>(sizeof(T)), sizeof(T)};
    }
    static ORV_INLINE void clear(View<T> view, ptrdiff_t n)
    {
        for (ptrdiff_t i = 0; i < n * stride(n); ++i) view.base[i] = 0;
    }
};

template <class T>
ORV_INLINE void copy_square(View<const T> src, View<T> dst, ptrdiff_t n)
{
    copy_elements(src, dst, n, n);
}

// copy_square() where the two may share memory. False, and nothing written, when memory runs out.
ORV_INLINE bool move_square(View<const float> src, View<float> dst, ptrdiff_t n)
{
    if (src.base == dst.base && src.row == dst.row && src.column == dst.column) return true;
    if (!overlap(src, n, n, dst, n, n)) {
        copy_square(src, dst, n);
        return true;
    }
    Substitute<float> apart(n, n);
    const View<float> between = apart.view();
    if (between.base == nullptr) return false;
    copy_square(src, between, n);
    copy_square<float>({between.base, between.row, between.column}, dst, n);
    return true;
}

// Into a buffer: whole registers, zeros behind the matrix.
template <class T>
ORV_INLINE void fill_buffer(View<const T> src, View<T> buffer, ptrdiff_t n)
{
    if (kVectors && src.has_dense_rows()) {
        using V = simd::widest<T>;
        const ptrdiff_t stride = Buffer<T>::stride(n);
        for (ptrdiff_t i = 0; i < n; ++i) {
            const T* const from = src.at(i, 0);
            T* const to = buffer.at(i, 0);
            ptrdiff_t j = 0;
            for (; j + V::N <= n; j += V::N) simd::store(to + j, simd::load<V>(from + j));
            if (j < n) simd::store(to + j, simd::load_part<V>(from + j, static_cast<int>(n - j)));
            for (j += V::N; j < stride; j += V::N) simd::store(to + j, V{});
        }
        return;
    }
    Buffer<T>::clear(buffer, n);
    copy_square(src, buffer, n);
}

// --- Rows -------------------------------------------------------------------------------------------

// target -= factor * source over the columns from `first` up to n.
template <class T>
ORV_INLINE void subtract_row(View<T> m, ptrdiff_t target, T factor, ptrdiff_t source, ptrdiff_t first, ptrdiff_t n)
{
    if (kVectors && m.has_dense_rows()) {
        T* const to = m.at(target, first);
        const T* const from = m.at(source, first);
        const auto f = simd::splat<simd::widest<T>>(factor);
        for_vectors(n - first, to, [=](auto load) { return load(to) - f * load(from); });
        return;
    }
    for (ptrdiff_t j = first; j < n; ++j) {
        put(m.at(target, j), rounded(get(m.at(target, j)) - rounded(factor * get(m.at(source, j)))));
    }
}

// One step of the decomposition in a buffer: the factors of all later rows, and what those rows lose.
// Registers are loaded and stored whole; in the one where the remaining columns begin, a mask keeps the
// lanes before them, and the factor takes its place there without a store of its own.
template <class T>
ORV_INLINE void eliminate_in_buffer(View<T> m, ptrdiff_t k, ptrdiff_t n)
{
    using V = simd::widest<T>;
    const ptrdiff_t first = k / V::N * V::N, stride = Buffer<T>::stride(n);
    const V lane = simd::ascending<V>(), at = simd::splat<V>(static_cast<T>(k - first));
    const simd::mask_of<V> is_factor = equal(lane, at), is_later = greater(lane, at);
    const T pivot = get(m.at(k, k));
    const T* const source = m.at(k, first);
    const V head = simd::load<V>(source);
    for (ptrdiff_t i = k + 1; i < n; ++i) {
        T* const target = m.at(i, first);
        const T factor = get(target + (k - first)) / pivot;
        const V f = simd::splat<V>(factor);
        const V old = simd::load<V>(target);
        simd::store(target, select(is_later, old - f * head, select(is_factor, f, old)));
        for (ptrdiff_t j = V::N; j < stride - first; j += V::N) {
            simd::store(target + j, simd::load<V>(target + j) - f * simd::load<V>(source + j));
        }
    }
}

template <class T>
ORV_INLINE void exchange_rows(View<T> m, ptrdiff_t a, ptrdiff_t b, ptrdiff_t n)
{
    using B = typename BitsOf<T>::type;
    if (kVectors && m.has_dense_rows()) {
        T* const row_a = m.at(a, 0);
        T* const row_b = m.at(b, 0);
        using V = simd::widest<T>;
        ptrdiff_t j = 0;
        for (; j + V::N <= n; j += V::N) {
            const auto x = simd::load<V>(row_a + j), y = simd::load<V>(row_b + j);
            simd::store(row_a + j, y);
            simd::store(row_b + j, x);
        }
        if (j < n) {
            const int rest = static_cast<int>(n - j);
            const auto x = simd::load_part<V>(row_a + j, rest), y = simd::load_part<V>(row_b + j, rest);
            simd::store_part(row_a + j, y, rest);
            simd::store_part(row_b + j, x, rest);
        }
        return;
    }
    for (ptrdiff_t j = 0; j < n; ++j) {
        B* const p = reinterpret_cast<B*>(m.at(a, j));
        B* const q = reinterpret_cast<B*>(m.at(b, j));
        const B x = get(p), y = get(q);
        put(p, y);
        put(q, x);
    }
}

// --- Decomposition ----------------------------------------------------------------------------------

template <class T>
ORV_INLINE ptrdiff_t pivot_row(View<T> m, ptrdiff_t k, ptrdiff_t n)
{
    ptrdiff_t best_row = k;
    auto best = magnitude(m.at(k, k));
    for (ptrdiff_t i = k + 1; i < n; ++i) {
        const auto candidate = magnitude(m.at(i, k));
        const bool larger = candidate > best;
        best = larger ? candidate : best;
        best_row = larger ? i : best_row;
    }
    return best_row;
}

// Decomposes m in place, a Buffer's matrix or any; index(k) = row tells the pivots. accept(k) looks at the
// pivot in its place and ends the decomposition with false.
template <bool in_buffer, class T, class Accept>
ORV_INLINE bool decompose(View<T> m, ptrdiff_t n, int* index, Accept accept)
{
    const ptrdiff_t width = in_buffer ? Buffer<T>::stride(n) : n;
    for (ptrdiff_t k = 0; k < n; ++k) {
        const ptrdiff_t row = pivot_row(m, k, n);
        put(index + k, static_cast<int>(row));
        if (row != k) exchange_rows(m, row, k, width);
        if (!accept(k)) return false;
        if (kVectors && in_buffer) {
            eliminate_in_buffer(m, k, n);
            continue;
        }
        const T pivot = get(m.at(k, k));
        for (ptrdiff_t i = k + 1; i < n; ++i) {
            const T factor = rounded(get(m.at(i, k)) / pivot);
            put(m.at(i, k), factor);
            subtract_row(m, i, factor, k, k + 1, n);
        }
    }
    return true;
}

template <bool in_buffer>
ORV_INLINE bool decompose_for_substitution(View<float> m, ptrdiff_t n, int* index)
{
#if ORV_HAVE_INT256
    if (in_buffer && n > 3 && n <= 8) {
        return LaneDecomposition::run(m.base, static_cast<int>(n), index, static_cast<int>(kLeastPivot));
    }
#endif
    return decompose<in_buffer>(m, n, index, [m](ptrdiff_t k) { return magnitude(m.at(k, k)) >= kLeastPivot; });
}

// --- Inversion --------------------------------------------------------------------------------------
//
// The factors are those of a matrix that is off by some E, |E| <= e |L| |U| element by element. If the given matrix
// is singular, A v = 0 for some v, then L U v = E v, so |v| <= e |X| |L| |U| |v| for the inverse X of L U: the
// spectral radius of e |X| |L| |U| is 1 or more. A radius below 1 proves a matrix regular; any other is singular as
// far as its arithmetic can tell. The radius does not change when columns are scaled, nor when rows are, as long as
// the pivots stay the same.

template <class T> constexpr double kUnitRoundoff = 1.0 / (1 << 24);
template <> constexpr double kUnitRoundoff<double> = 1.0 / (1LL << 53);

// The bound e: n units of roundoff (N. Higham, "Accuracy and Stability of Numerical Algorithms", theorem 9.3). In
// larger matrices rounding errors mostly cancel and come nowhere near it, while it would refuse floats of a
// condition of 10^5; so it falls again there. (Two units are reached by one singular matrix of integers in 400,000
// of size 5, a quarter of one by one in 1,000 of size 12.)
template <class T>
ORV_INLINE double error_of_factors(ptrdiff_t n)
{
    const double size = static_cast<double>(n);
    return (n <= 8 ? size : n < 32 ? rounded(64 / size) : 2) * kUnitRoundoff<T>;
}

ORV_INLINE float absolute(float x) { return __builtin_fabsf(x); }
ORV_INLINE double absolute(double x) { return __builtin_fabs(x); }

// The sum of |m(i, j)| w(j) over the columns from `first` to before `last`.
template <class T>
ORV_INLINE double weighted_row(View<T> m, ptrdiff_t i, const double* w, ptrdiff_t first, ptrdiff_t last)
{
    double sums[4] = {0, 0, 0, 0};
    const auto add = [&](int r, ptrdiff_t j) __attribute__((always_inline)) {
        sums[r] = rounded(sums[r] + rounded(absolute(static_cast<double>(get(m.at(i, j)))) * w[j]));
    };
    ptrdiff_t j = first;
    for (; j + 4 <= last; j += 4) {
        for (int r = 0; r < 4; ++r) add(r, j + r);
    }
    for (int r = 0; r < 3 && j + r < last; ++r) add(r, j + r);
    return rounded(rounded(sums[0] + sums[1]) + rounded(sums[2] + sums[3]));
}

// w becomes |X| |L| |U| w; returns the largest ratio of a new element to the old one. t has n elements too.
template <class T>
ORV_INLINE double multiply_weights(View<T> lu, View<T> x, ptrdiff_t n, double* w, double* t)
{
    for (ptrdiff_t i = 0; i < n; ++i) t[i] = weighted_row(lu, i, w, i, n);
    for (ptrdiff_t i = n - 1; i > 0; --i) t[i] = rounded(t[i] + weighted_row(lu, i, t, 0, i));
    double largest = 0;
    for (ptrdiff_t i = 0; i < n; ++i) {
        const double next = weighted_row(x, i, t, 0, n), ratio = rounded(next / w[i]);
        if (!(ratio <= largest)) largest = ratio;
        if (ratio != ratio) return ratio;
        w[i] = next;
    }
    return largest;
}

// For any positive weights the largest ratio is no less than the radius (L. Collatz, H. Wielandt); from one
// multiplication to the next it comes down to it: three go all of the way. Weights are 2 n elements.
// NaNs and infinities, of the factors or of the inverse, are not regular.
template <class T>
__attribute__((noinline)) bool is_regular(View<T> lu, View<T> x, ptrdiff_t n, double* weights)
{
    const double error = error_of_factors<T>(n);
    for (ptrdiff_t i = 0; i < n; ++i) weights[i] = 1;
    for (int round = 0; round < 3; ++round) {
        if (rounded(multiply_weights(lu, x, n, weights, weights + n) * error) < 1) return true;
    }
    return false;
}

// A bound of the radius decides most cases: n times the largest sum of a column of |X|, times that of |U|, as no
// |l| is above 1. Its rounding errors are far below the factor of 2 that is kept in reserve. Sums run from the first
// row to the last at every level. A NaN anywhere shows in X.
template <class T>
ORV_INLINE T limit_of_sums(ptrdiff_t n)
{
    return rounded(static_cast<T>(0.5 / rounded(static_cast<double>(n) * error_of_factors<T>(n))));
}

#if ORV_HAVE_VECTORS
// The sums of |m(i, j)| over the rows of a matrix in a buffer, a register of columns from j on; rows end at the
// diagonal when `upper`.
template <bool upper, class T>
ORV_INLINE simd::widest<T> column_sums(View<T> m, ptrdiff_t j, ptrdiff_t n)
{
    using V = simd::widest<T>;
    const V lane = simd::ascending<V>();
    V sum = simd::zero<V>();
    for (ptrdiff_t i = 0; i < n && (!upper || i < j + V::N); ++i) {
        const V magnitudes = magnitude(simd::load<V>(m.at(i, j)));
        if (!upper || i <= j) sum += magnitudes;
        else sum += greater_equal(lane, simd::splat<V>(static_cast<T>(i - j))) & magnitudes;
    }
    return sum;
}

template <class T>
ORV_INLINE bool is_clearly_regular(View<T> lu, View<T> x, ptrdiff_t n)
{
    using V = simd::widest<T>;
    V largest = simd::zero<V>();
    for (ptrdiff_t j = 0; j < n; j += V::N) largest = max(column_sums<true>(lu, j, n), largest);
    T lanes[V::N], most = 0;
    simd::store(lanes, largest);
    for (const T lane : lanes) most = lane > most ? lane : most;
    const V factor = simd::splat<V>(most), limit = simd::splat<V>(limit_of_sums<T>(n));
    for (ptrdiff_t j = 0; j < n; j += V::N) {
        if (!all(less_equal(factor * column_sums<false>(x, j, n), limit))) return false;
    }
    return true;
}
#else
template <bool upper, class T>
ORV_INLINE T column_sum(View<T> m, ptrdiff_t j, ptrdiff_t n)
{
    T sum = 0;
    for (ptrdiff_t i = 0; i < (upper ? j + 1 : n); ++i) sum = rounded(sum + absolute(get(m.at(i, j))));
    return sum;
}
template <class T>
ORV_INLINE bool is_clearly_regular(View<T> lu, View<T> x, ptrdiff_t n)
{
    T most = 0;
    for (ptrdiff_t j = 0; j < n; ++j) {
        const T sum = column_sum<true>(lu, j, n);
        most = sum > most ? sum : most;
    }
    for (ptrdiff_t j = 0; j < n; ++j) {
        if (!(rounded(most * column_sum<false>(x, j, n)) <= limit_of_sums<T>(n))) return false;
    }
    return true;
}
#endif

template <class T>
ORV_INLINE bool is_regular_in_buffer(View<T> lu, View<T> x, ptrdiff_t n)
{
    if (is_clearly_regular(lu, x, n)) return true;
    double weights[2 * kBuffered];
    return is_regular(lu, x, n, weights);
}

// Rows of x from the factors: row k loses factor(k, j) times row j, for j from `from` on by `step`.
template <class T>
ORV_INLINE void eliminate_row(View<T> lu, View<T> x, ptrdiff_t k, ptrdiff_t from, ptrdiff_t count, ptrdiff_t step,
                              ptrdiff_t n, bool divide)
{
    const T pivot = get(lu.at(k, k));
    if (kVectors && x.has_dense_rows()) {
        using V = simd::widest<T>;
        const auto p = simd::splat<V>(pivot);
        T* const row = x.at(k, 0);
        ptrdiff_t c = 0;
        for (; c + 4 * V::N <= n; c += 4 * V::N) {
            V v[4];
            for (int r = 0; r < 4; ++r) v[r] = simd::load<V>(row + c + r * V::N);
            for (ptrdiff_t t = 0, j = from; t < count; ++t, j += step) {
                const auto f = simd::splat<V>(get(lu.at(k, j)));
                for (int r = 0; r < 4; ++r) v[r] -= f * simd::load<V>(x.at(j, c) + r * V::N);
            }
            for (int r = 0; r < 4; ++r) simd::store(row + c + r * V::N, divide ? v[r] / p : v[r]);
        }
        T* const tail = row + c;
        for_vectors(n - c, tail, [&](auto load) {
            auto v = load(tail);
            for (ptrdiff_t t = 0, j = from; t < count; ++t, j += step) {
                v -= simd::splat<V>(get(lu.at(k, j))) * load(x.at(j, c));
            }
            return divide ? v / p : v;
        });
        return;
    }
    for (ptrdiff_t c = 0; c < n; ++c) {
        T v = get(x.at(k, c));
        for (ptrdiff_t t = 0, j = from; t < count; ++t, j += step) {
            v = rounded(v - rounded(get(lu.at(k, j)) * get(x.at(j, c))));
        }
        put(x.at(k, c), divide ? rounded(v / pivot) : v);
    }
}

// x = inverse from the factors and x = P: L Y = P by rows downward, U X = Y by rows upward.
template <class T>
ORV_INLINE void solve(View<T> lu, View<T> x, ptrdiff_t n, ptrdiff_t width)
{
    for (ptrdiff_t k = 1; k < n; ++k) eliminate_row(lu, x, k, 0, k, 1, width, false);
    for (ptrdiff_t k = n - 1; k >= 0; --k) eliminate_row(lu, x, k, n - 1, n - 1 - k, -1, width, true);
}

// Decomposes a matrix, in a buffer or not, as far as pivots are not zero.
template <bool in_buffer, class T>
ORV_INLINE bool decompose_for_inversion(View<T> lu, ptrdiff_t n, int* index)
{
#if ORV_HAVE_INT256
    if constexpr (in_buffer && sizeof(T) == 4) {
        if (n <= 8) return LaneDecomposition::run(lu.base, static_cast<int>(n), index, 1);
    }
#endif
    return decompose<in_buffer>(lu, n, index, [lu](ptrdiff_t k) { return magnitude(lu.at(k, k)) != 0; });
}

#if ORV_HAVE_INT256
using EightFloats = simd::vec<float, 8>;
// solve() for eight rows of floats, which stay in registers.
template <int k, int j>
ORV_INLINE void lose(const float* lu, EightFloats (&x)[8])
{
    x[k] -= simd::splat_at<EightFloats>(lu + 8 * k + j) * x[j];
}
template <int k, int j = 0>
ORV_INLINE void solve_downward(const float* lu, EightFloats (&x)[8])
{
    if constexpr (j < k) {
        lose<k, j>(lu, x);
        solve_downward<k, j + 1>(lu, x);
    } else if constexpr (k < 7) {
        solve_downward<k + 1>(lu, x);
    }
}
template <int k, int j = 7>
ORV_INLINE void solve_upward(const float* lu, EightFloats (&x)[8])
{
    if constexpr (j > k) {
        lose<k, j>(lu, x);
        solve_upward<k, j - 1>(lu, x);
    } else {
        x[k] /= simd::splat_at<EightFloats>(lu + 9 * k);
        if constexpr (k > 0) solve_upward<k - 1>(lu, x);
    }
}

// is_clearly_regular() for them.
template <int k = 0>
ORV_INLINE void add_magnitudes(const float* lu, const EightFloats (&x)[8], EightFloats& u_sums, EightFloats& x_sums)
{
    if constexpr (k < 8) {
        const EightFloats row = simd::load<EightFloats>(lu + 8 * k), none = simd::zero<EightFloats>();
        u_sums += magnitude(simd::blended<(0xFF << k & 0xFF)>(none, row));
        x_sums += magnitude(x[k]);
        add_magnitudes<k + 1>(lu, x, u_sums, x_sums);
    }
}
ORV_INLINE bool is_clearly_regular(const float* lu, const EightFloats (&x)[8])
{
    EightFloats largest = simd::zero<EightFloats>(), x_sums = largest;
    add_magnitudes(lu, x, largest, x_sums);
    largest = simd::largest_lane(largest);
    return all(less_equal(largest * x_sums, limit_of_sums<float>(8)));
}

Status invert_8x8(View<const float> src, View<float> dst)
{
    alignas(32) float elements[64];
    int index[8], order[8];
    const View<float> lu = {elements, 8 * sizeof(float), sizeof(float)};
    fill_buffer(src, lu, 8);
    if (!LaneDecomposition::run(elements, 8, index, 1, order)) return StatusSingularMatrix;
    using Lanes = simd::vec<std::int32_t, 8>;
    const Lanes lanes = simd::ascending<Lanes>();
    EightFloats x[8];
    for (int k = 0; k < 8; ++k) {
        const Lanes one = equal(lanes, simd::splat<Lanes>(order[k]));
        x[k] = from_bits(simd::as<std::uint32_t>(one)) & simd::splat<EightFloats>(1);
    }
    solve_downward<1>(elements, x);
    solve_upward<7>(elements, x);
    if (!is_clearly_regular(elements, x)) {
        alignas(32) float inverse[64];
        double weights[16];
        for (int k = 0; k < 8; ++k) simd::store(inverse + 8 * k, x[k]);
        if (!is_regular(lu, {inverse, lu.row, lu.column}, 8, weights)) return StatusSingularMatrix;
    }
    if (dst.has_dense_rows()) {
        for (int k = 0; k < 8; ++k) simd::store(dst.at(k, 0), x[k]);
    } else {
        for (int k = 0; k < 8; ++k) simd::store(elements + 8 * k, x[k]);
        copy_square<float>({elements, lu.row, lu.column}, dst, 8);
    }
    return StatusOk;
}
#endif

template <class T>
Status invert_in_buffers(View<const T> src, View<T> dst, ptrdiff_t n)
{
    Buffer<T> factors, result;
    int index[kBuffered] = {};
    const View<T> lu = factors.view(n), x = result.view(n);
    fill_buffer(src, lu, n);
    if (!decompose_for_inversion<true>(lu, n, index)) return StatusSingularMatrix;
    Buffer<T>::clear(x, n);
    int row[kBuffered];
    for (int i = 0; i < n; ++i) row[i] = i;
    for (ptrdiff_t k = 0; k < n; ++k) {
        const int other = row[index[k]];
        row[index[k]] = row[k];
        row[k] = other;
        put(x.at(k, other), T{1});
    }
    solve(lu, x, n, Buffer<T>::stride(n));
    if (!is_regular_in_buffer(lu, x, n)) return StatusSingularMatrix;
    copy_square<T>({x.base, x.row, x.column}, dst, n);
    return StatusOk;
}

// The inverse is finished apart from dst: it may turn out that there is none.
template <class T>
Status invert_in_memory(View<const T> src, T* buffer, View<T> dst, ptrdiff_t n)
{
    Substitute<T> inverse(n, n);
    Substitute<double> weights(2, n);
    const View<T> x = inverse.view();
    if (any_null(x.base, weights.view().base)) return StatusNoMemory;
    const View<T> lu = {buffer, n * static_cast<ptrdiff_t>(sizeof(T)), sizeof(T)};
    int* const index = reinterpret_cast<int*>(buffer + n * n);
    copy_square(src, lu, n);
    if (!decompose_for_inversion<false>(lu, n, index)) return StatusSingularMatrix;
    for (ptrdiff_t i = 0; i < n; ++i) {
        for (ptrdiff_t j = 0; j < n; ++j) put(x.at(i, j), static_cast<T>(i == j));
    }
    for (ptrdiff_t k = 0; k < n; ++k) {
        if (get(index + k) != k) exchange_rows(x, get(index + k), k, n);
    }
    solve(lu, x, n, n);
    if (!is_regular(lu, x, n, weights.view().base)) return StatusSingularMatrix;
    copy_square<T>({x.base, x.row, x.column}, dst, n);
    return StatusOk;
}

template <class T>
Status invert_by_elimination(View<const T> src, T* buffer, View<T> dst, ptrdiff_t n)
{
#if ORV_HAVE_INT256
    if constexpr (sizeof(T) == 4) {
        if (n == 8) return invert_8x8(src, dst);
    }
#endif
    if (n <= kBuffered) return invert_in_buffers(src, dst, n);
    return invert_in_memory(src, buffer, dst, n);
}

// Floats up to 4x4 by cofactors in double: products of two floats are exact there, so the determinant
// and the cofactors are right to a few units of double precision, and nothing overflows. Singular
// means that the determinant is no more than its rounding error; a singular matrix is always found.

constexpr double kDeterminantError = 16.0 / (1LL << 53);

// True for NaNs as well.
ORV_INLINE bool is_nothing_but_error(double determinant, double magnitudes)
{
    return !(absolute(determinant) > kDeterminantError * magnitudes);
}

ORV_INLINE Status invert_2x2(const double (&a)[4][4], double (&x)[4][4])
{
    const double p = a[0][0] * a[1][1], q = a[0][1] * a[1][0];
    const double determinant = p - q;
    // Both products are exact: a sixteenth of the bound is enough, and no difference is lost below it.
    if (is_nothing_but_error(determinant, (absolute(p) + absolute(q)) / 16)) return StatusSingularMatrix;
    x[0][0] = a[1][1] / determinant;
    x[0][1] = -a[0][1] / determinant;
    x[1][0] = -a[1][0] / determinant;
    x[1][1] = a[0][0] / determinant;
    return StatusOk;
}

ORV_INLINE Status invert_3x3(const double (&a)[4][4], double (&x)[4][4])
{
    const double c00 = a[1][1] * a[2][2] - a[1][2] * a[2][1];
    const double c01 = a[1][2] * a[2][0] - a[1][0] * a[2][2];
    const double c02 = a[1][0] * a[2][1] - a[1][1] * a[2][0];
    const double t0 = a[0][0] * c00, t1 = a[0][1] * c01, t2 = a[0][2] * c02;
    const double determinant = t0 + t1 + t2;
    if (is_nothing_but_error(determinant, absolute(t0) + absolute(t1) + absolute(t2))) return StatusSingularMatrix;
    const double r = 1 / determinant;
    x[0][0] = c00 * r;
    x[1][0] = c01 * r;
    x[2][0] = c02 * r;
    x[0][1] = (a[0][2] * a[2][1] - a[0][1] * a[2][2]) * r;
    x[1][1] = (a[0][0] * a[2][2] - a[0][2] * a[2][0]) * r;
    x[2][1] = (a[0][1] * a[2][0] - a[0][0] * a[2][1]) * r;
    x[0][2] = (a[0][1] * a[1][2] - a[0][2] * a[1][1]) * r;
    x[1][2] = (a[0][2] * a[1][0] - a[0][0] * a[1][2]) * r;
    x[2][2] = (a[0][0] * a[1][1] - a[0][1] * a[1][0]) * r;
    return StatusOk;
}

// By the 2x2 minors of the upper and of the lower two rows (Laplace expansion).
ORV_INLINE Status invert_4x4(const double (&a)[4][4], double (&x)[4][4])
{
    double s[6], c[6];
    const auto minors = [](const double* p, const double* q, double* m) __attribute__((always_inline)) {
        m[0] = p[0] * q[1] - q[0] * p[1];
        m[1] = p[0] * q[2] - q[0] * p[2];
        m[2] = p[0] * q[3] - q[0] * p[3];
        m[3] = p[1] * q[2] - q[1] * p[2];
        m[4] = p[1] * q[3] - q[1] * p[3];
        m[5] = p[2] * q[3] - q[2] * p[3];
    };
    minors(a[0], a[1], s);
    minors(a[2], a[3], c);
    const double t0 = s[0] * c[5], t1 = s[1] * c[4], t2 = s[2] * c[3];
    const double t3 = s[3] * c[2], t4 = s[4] * c[1], t5 = s[5] * c[0];
    const double determinant = ((t0 - t1) + (t2 + t3)) + (t5 - t4);
    const double magnitudes = absolute(t0) + absolute(t1) + absolute(t2) + absolute(t3) + absolute(t4) + absolute(t5);
    if (is_nothing_but_error(determinant, magnitudes)) return StatusSingularMatrix;
    const double r = 1 / determinant;
    // Columns 0, 1 take the lower minors, columns 2, 3 the upper ones; row by row the same pattern.
    const auto column = [&](int j, const double* row, const double* m, double sign) __attribute__((always_inline)) {
        x[0][j] = (row[1] * m[5] - row[2] * m[4] + row[3] * m[3]) * sign;
        x[1][j] = (row[0] * m[5] - row[2] * m[2] + row[3] * m[1]) * -sign;
        x[2][j] = (row[0] * m[4] - row[1] * m[2] + row[3] * m[0]) * sign;
        x[3][j] = (row[0] * m[3] - row[1] * m[1] + row[2] * m[0]) * -sign;
    };
    column(0, a[1], c, r);
    column(1, a[0], c, -r);
    column(2, a[3], s, r);
    column(3, a[2], s, -r);
    return StatusOk;
}

template <int N, class Inverse>
ORV_INLINE Status invert_by_cofactors(View<const float> src, View<float> dst, Inverse inverse)
{
    double a[4][4], x[4][4];
    for (int i = 0; i < N; ++i) {
        for (int j = 0; j < N; ++j) a[i][j] = get(src.at(i, j));
    }
    if (const Status bad = inverse(a, x)) return bad;
    float narrowed[N * N];
    for (int k = 0; k < N * N; ++k) narrowed[k] = rounded(static_cast<float>(x[k / N][k % N]));
    std::uint32_t overflow = 0;  // the top bit, for infinities and NaNs alone
    for (int k = 0; k < N * N; ++k) overflow |= magnitude(narrowed + k) + (std::uint32_t{1} << 23);
    if ((overflow >> 31) != 0) return StatusSingularMatrix;
    for (int k = 0; k < N * N; ++k) put(dst.at(k / N, k % N), narrowed[k]);
    return StatusOk;
}

// False for anything but floats of sizes 2 to 4.
ORV_INLINE bool inverted_by_cofactors(View<const float> src, View<float> dst, int n, Status& status)
{
    if (n == 3) status = invert_by_cofactors<3>(src, dst, [](auto& a, auto& x) { return invert_3x3(a, x); });
    else if (n == 4) status = invert_by_cofactors<4>(src, dst, [](auto& a, auto& x) { return invert_4x4(a, x); });
    else if (n == 2) status = invert_by_cofactors<2>(src, dst, [](auto& a, auto& x) { return invert_2x2(a, x); });
    else return false;
    return true;
}
ORV_INLINE bool inverted_by_cofactors(View<const double>, View<double>, int, Status&) { return false; }

template <class T>
ORV_INLINE Status invert_number(const T* src, T* dst)
{
    const T a = get(src);
    if (!(absolute(a) > 2 * static_cast<T>(1.1754944e-38))) return StatusSingularMatrix;
    put(dst, rounded(1 / a));
    return StatusOk;
}

template <class T>
ORV_INLINE Status invert(const T* src, int srcStride1, int srcStride2, T* buffer, T* dst, int dstStride1,
                         int dstStride2, int n)
{
    if (any_null(src, buffer, dst)) return StatusNullPointer;
    if (n < 1) return StatusBadSize;
    if (any_bad_stride(sizeof(T), srcStride1, srcStride2, dstStride1, dstStride2)) return StatusBadStride;
    const FloatControl control;
    const View<const T> from = {src, srcStride1, srcStride2};
    const View<T> to = {dst, dstStride1, dstStride2};
    if (n == 1) return invert_number(src, dst);
    Status status = StatusOk;
    if (inverted_by_cofactors(from, to, n, status)) return status;
    return invert_by_elimination(from, buffer, to, n);
}

// --- Substitution -----------------------------------------------------------------------------------

// What the decomposition cannot have written: an index outside the remaining rows, a pivot below its bound.
ORV_INLINE bool are_factors(View<const float> lu, const int* index, int n)
{
    for (int k = 0; k < n; ++k) {
        const int row = get(index + k);
        if (row < k || row >= n || magnitude(lu.at(k, k)) < kLeastPivot) return false;
    }
    return true;
}

// Elements of x one by one; those that were found last are subtracted last, so that the next one waits
// for one product only. `fixed` is the size where it is known beforehand, else 0.
template <int fixed>
ORV_INLINE void substitute(View<const float> lu, const int* index, View<float> x, int size)
{
    const int n = fixed != 0 ? fixed : size;
    for (int k = 0; k < n; ++k) {
        const int row = get(index + k);
        const float value = get(x.at(0, row));
        put(x.at(0, row), get(x.at(0, k)));
        put(x.at(0, k), value);
    }
    for (int i = 1; i < n; ++i) {
        float sum = get(x.at(0, i));
        for (int j = 0; j < i; ++j) sum = rounded(sum - rounded(get(lu.at(i, j)) * get(x.at(0, j))));
        put(x.at(0, i), sum);
    }
    for (int i = n - 1; i >= 0; --i) {
        float sum = get(x.at(0, i));
        for (int j = n - 1; j > i; --j) sum = rounded(sum - rounded(get(lu.at(i, j)) * get(x.at(0, j))));
        put(x.at(0, i), rounded(sum / get(lu.at(i, i))));
    }
}

// The whole of it. The solution is kept apart from its sources, which it may share memory with, until it is done.
template <int fixed>
ORV_INLINE void substitute_apart(View<const float> lu, const int* index, View<const float> b, View<float> x,
                                 float* local, int n)
{
    if (fixed != 0) n = fixed;
    for (int i = 0; i < n; ++i) __builtin_memcpy(local + i, b.at(0, i), sizeof(float));
    substitute<fixed>(lu, index, {local, 0, sizeof(float)}, n);
    for (int i = 0; i < n; ++i) __builtin_memcpy(x.at(0, i), local + i, sizeof(float));
}

template <int fixed>
ORV_INLINE Status substitute_on_stack(View<const float> lu, const int* index, View<const float> b, View<float> x)
{
    float local[fixed];
    substitute_apart<fixed>(lu, index, b, x, local, fixed);
    return StatusOk;
}

// Out of line, so that the usual sizes do not set up its frame.
__attribute__((noinline)) Status substitute_any(View<const float> lu, const int* index, View<const float> b,
                                                View<float> x, int n)
{
    Substitute<float> apart(1, n);
    float* const local = apart.view().base;
    if (local == nullptr) return StatusNoMemory;
    substitute_apart<0>(lu, index, b, x, local, n);
    return StatusOk;
}

}  // namespace

// --- Kernels ----------------------------------------------------------------------------------------

Status LUDecomp_m_32f(const float* src, int srcStride1, int srcStride2, int* dstIndex, float* dst, int dstStride1,
                      int dstStride2, int widthHeight)
{
    if (any_null(src, dstIndex, dst)) return StatusNullPointer;
    if (widthHeight < 1) return StatusBadSize;
    if (any_bad_stride(sizeof(float), srcStride1, srcStride2, dstStride1, dstStride2)) return StatusBadStride;
    const FloatControl control;
    const ptrdiff_t n = widthHeight;
    const View<const float> from = {src, srcStride1, srcStride2};
    const View<float> to = {dst, dstStride1, dstStride2};
    if (n <= kBuffered) {
        Buffer<float> buffer;
        const View<float> lu = buffer.view(n);
        fill_buffer(from, lu, n);
        const bool complete = decompose_for_substitution<true>(lu, n, dstIndex);
        copy_square<float>({lu.base, lu.row, lu.column}, to, n);
        return complete ? StatusOk : StatusSingularMatrix;
    }
    if (!move_square(from, to, n)) return StatusNoMemory;
    return decompose_for_substitution<false>(to, n, dstIndex) ? StatusOk : StatusSingularMatrix;
}

Status LUBackSubst_mv_32f(const float* srcLU, int srcLUStride1, int srcLUStride2, const int* srcIndex,
                          const float* srcB, int srcBStride2, float* dstX, int dstXStride2, int widthHeight)
{
    if (any_null(srcLU, srcIndex, srcB, dstX)) return StatusNullPointer;
    if (widthHeight < 1) return StatusBadSize;
    if (any_bad_stride(sizeof(float), srcLUStride1, srcLUStride2, srcBStride2, dstXStride2)) return StatusBadStride;
    const FloatControl control;
    const View<const float> lu = {srcLU, srcLUStride1, srcLUStride2};
    if (!are_factors(lu, srcIndex, widthHeight)) return StatusSingularMatrix;
    const View<const float> b = {srcB, 0, srcBStride2};
    const View<float> x = {dstX, 0, dstXStride2};
    switch (widthHeight) {
        case 3: return substitute_on_stack<3>(lu, srcIndex, b, x);
        case 4: return substitute_on_stack<4>(lu, srcIndex, b, x);
        case 8: return substitute_on_stack<8>(lu, srcIndex, b, x);
        default: return substitute_any(lu, srcIndex, b, x, widthHeight);
    }
}

Status Invert_m_32f(const float* src, int srcStride1, int srcStride2, float* buffer, float* dst, int dstStride1,
                    int dstStride2, int widthHeight)
{
    return invert(src, srcStride1, srcStride2, buffer, dst, dstStride1, dstStride2, widthHeight);
}

Status Invert_m_64f(const double* src, int srcStride1, int srcStride2, double* buffer, double* dst, int dstStride1,
                    int dstStride2, int widthHeight)
{
    return invert(src, srcStride1, srcStride2, buffer, dst, dstStride1, dstStride2, widthHeight);
}

}  // namespace ORV_LEVEL
}  // namespace elimination
}  // namespace orv
