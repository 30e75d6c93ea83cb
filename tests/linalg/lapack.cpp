// The LAPACK entry points: their results by residuals in long double, *info by the standard, and what they
// must not do to the process.
//
// Family: lapack_kernels.
#include <memory>

#include "MKLWrapper.h"
#include "support/matrix.h"
#include "support/process.h"
#include "support/tests.h"

namespace test {
namespace {

using M = MKLWrapper;
using Real = long double;

void gesvd(char ju, char jv, int m, int n, float* a, int lda, float* s, float* u, int ldu, float* vt, int ldvt,
           float* work, int lwork, int* info)
{
    M::Sgesvd(&ju, &jv, &m, &n, a, &lda, s, u, &ldu, vt, &ldvt, work, &lwork, info);
}
void gesvd(char ju, char jv, int m, int n, double* a, int lda, double* s, double* u, int ldu, double* vt, int ldvt,
           double* work, int lwork, int* info)
{
    M::Dgesvd(&ju, &jv, &m, &n, a, &lda, s, u, &ldu, vt, &ldvt, work, &lwork, info);
}

// Column-major storage with a leading dimension.
template <class T>
struct Columns {
    int rows, columns, ld;
    std::vector<T> v;
    Columns(int r, int c, int padding, T fill = T{77})
        : rows(r), columns(c), ld(r + padding), v(static_cast<std::size_t>(ld) * static_cast<std::size_t>(c) + 1, fill)
    {
    }
    T& operator()(int i, int j)
    {
        return v[static_cast<std::size_t>(j) * static_cast<std::size_t>(ld) + static_cast<std::size_t>(i)];
    }
    T operator()(int i, int j) const { return const_cast<Columns&>(*this)(i, j); }
    bool padding_is(T fill) const
    {
        for (int j = 0; j < columns; ++j) {
            for (int i = rows; i < ld; ++i) {
                if ((*this)(i, j) != fill) return false;
            }
        }
        return v.back() == fill;
    }
};

template <class T>
Columns<T> random_columns(int rows, int columns, int padding, std::mt19937& g)
{
    Columns<T> a(rows, columns, padding);
    for (int j = 0; j < columns; ++j) {
        for (int i = 0; i < rows; ++i) a(i, j) = random_value<T>(g, Fill::uniform);
    }
    return a;
}

// The largest |X' X - 1| over `count` columns, X(i, j) = get(i, j).
template <class Get>
Real departure_from_orthogonality(int length, int count, Get get)
{
    Real worst = 0;
    for (int a = 0; a < count; ++a) {
        for (int b = 0; b <= a; ++b) {
            Real sum = a == b ? -1 : 0;
            for (int i = 0; i < length; ++i) sum += Real{get(i, a)} * Real{get(i, b)};
            worst = std::max(worst, std::fabs(sum));
        }
    }
    return worst;
}

template <class T>
void check_svd(char ju, char jv, int m, int n, int padding, std::mt19937& g)
{
    SCOPED_TRACE(std::string("jobs ") + ju + jv + ", " + std::to_string(m) + " x " + std::to_string(n));
    const int k = std::min(m, n);
    const char JU = static_cast<char>(std::toupper(ju)), JV = static_cast<char>(std::toupper(jv));
    const Columns<T> original = random_columns<T>(m, n, padding, g);
    Columns<T> a = original;
    Columns<T> u(m, JU == 'A' ? m : k, padding), vt(JV == 'A' ? n : k, n, padding);
    std::vector<T> s(static_cast<std::size_t>(k)), work(1);
    int info = -99;
    gesvd(ju, jv, m, n, a.v.data(), a.ld, s.data(), u.v.data(), u.ld, vt.v.data(), vt.ld, work.data(), -1, &info);
    ASSERT_EQ(info, 0);
    ASSERT_EQ(a.v, original.v) << "the query has changed the matrix";
    const int least = std::max({1, 3 * k + std::max(m, n), 5 * k});
    ASSERT_GE(work[0], least);
    const int lwork = uniform(g, 0, 1) == 0 ? least : static_cast<int>(work[0]);
    work.assign(static_cast<std::size_t>(lwork), 0);
    gesvd(ju, jv, m, n, a.v.data(), a.ld, s.data(), u.v.data(), u.ld, vt.v.data(), vt.ld, work.data(), lwork, &info);
    ASSERT_EQ(info, 0);
    EXPECT_TRUE(a.padding_is(77) && u.padding_is(77) && vt.padding_is(77));

    const Real tolerance = 8 * Real{std::numeric_limits<T>::epsilon()} * std::max(m, n);
    for (int i = 0; i + 1 < k; ++i) EXPECT_GE(s[static_cast<std::size_t>(i)], s[static_cast<std::size_t>(i + 1)]);
    EXPECT_GE(s.back(), 0);
    // The sum of squares is the matrix's own, whatever else was asked for.
    Real squares = 0, values = 0;
    for (int j = 0; j < n; ++j) {
        for (int i = 0; i < m; ++i) squares += Real{original(i, j)} * Real{original(i, j)};
    }
    for (T v : s) values += Real{v} * Real{v};
    EXPECT_LE(std::fabs(squares - values), tolerance * squares);

    const auto left = [&](int i, int c) { return JU == 'O' ? a(i, c) : u(i, c); };
    const auto right = [&](int j, int r) { return JV == 'O' ? a(r, j) : vt(r, j); };
    if (JU != 'N') {
        EXPECT_LE(departure_from_orthogonality(m, JU == 'A' ? m : k, left), tolerance);
    }
    if (JV != 'N') {
        EXPECT_LE(departure_from_orthogonality(n, JV == 'A' ? n : k, right), tolerance);
    }
    if (JU == 'N' || JV == 'N') return;
    for (int i = 0; i < m; ++i) {
        for (int j = 0; j < n; ++j) {
            Real sum = -Real{original(i, j)};
            for (int r = 0; r < k; ++r)
                sum += Real{left(i, r)} * Real{s[static_cast<std::size_t>(r)]} * Real{right(j, r)};
            ASSERT_LE(std::fabs(sum), tolerance * s[0]) << i << ", " << j;
        }
    }
}

TEST(Lapack, SingularValues)
{
    std::mt19937 g = make_generator("gesvd");
    const int shapes[][2] = {{1, 1}, {2, 5}, {7, 3}, {6, 6}, {40, 9}, {9, 40}, {33, 33}, {90, 70}};
    const int highest = orv::orv_variant_index;
    at_every_level([&] {
        for (const auto& shape : shapes) {
            if (shape[0] > 40 && (options().brief || orv::orv_variant_index != highest)) continue;
            for (char ju : {'A', 'S', 'O', 'N', 'a', 'o'}) {
                for (char jv : {'A', 'S', 'O', 'N', 's', 'n'}) {
                    if (std::toupper(ju) == 'O' && std::toupper(jv) == 'O') continue;
                    check_svd<float>(ju, jv, shape[0], shape[1], uniform(g, 0, 3), g);
                    check_svd<double>(ju, jv, shape[0], shape[1], uniform(g, 0, 3), g);
                    if (HasFatalFailure()) return;
                }
            }
        }
    });
}

TEST(Lapack, LinearSystems)
{
    std::mt19937 g = make_generator("getrf");
    at_every_level([&] {
        for (int n : {1, 2, 3, 8, 31, 64, 65, 130, 200}) {
            if ((options().brief || orv::orv_variant_index % 3 != 0) && n > 65) continue;
            for (char trans : {'N', 'T', 'C', 'n', 't'}) {
                const int nrhs = uniform(g, 1, uniform(g, 0, 1) == 0 ? 3 : 40);
                const auto a = random_columns<float>(n, n, uniform(g, 0, 3), g),
                           b = random_columns<float>(n, nrhs, uniform(g, 0, 3), g);
                auto lu = a, x = b;
                std::vector<int> ipiv(static_cast<std::size_t>(n));
                int info = -99, size = n, lda = lu.ld, ldb = x.ld, columns = nrhs;
                M::Sgetrf(&size, &size, lu.v.data(), &lda, ipiv.data(), &info);
                ASSERT_EQ(info, 0);
                for (int i = 0; i < n; ++i) {
                    ASSERT_GE(ipiv[static_cast<std::size_t>(i)], i + 1);
                    ASSERT_LE(ipiv[static_cast<std::size_t>(i)], n);
                }
                info = -99;
                M::Sgetrs(&trans, &size, &columns, lu.v.data(), &lda, ipiv.data(), x.v.data(), &ldb, &info);
                ASSERT_EQ(info, 0);
                EXPECT_TRUE(lu.padding_is(77) && x.padding_is(77));
                Real norm = 0;
                for (int i = 0; i < n; ++i) {
                    for (int j = i; j < n; ++j) norm = std::max(norm, std::fabs(Real{lu(i, j)}));
                }
                for (int c = 0; c < nrhs; ++c) {
                    Real largest = 0;
                    for (int i = 0; i < n; ++i) largest = std::max(largest, std::fabs(Real{x(i, c)}));
                    for (int i = 0; i < n; ++i) {
                        Real sum = -Real{b(i, c)};
                        for (int j = 0; j < n; ++j)
                            sum += (std::toupper(trans) == 'N' ? Real{a(i, j)} : Real{a(j, i)}) * x(j, c);
                        ASSERT_LE(std::fabs(sum), 4.0L * n * n * std::numeric_limits<float>::epsilon() * norm * largest)
                            << n << trans;
                    }
                }
            }
        }
    });
}

TEST(Lapack, FactorsOfRectanglesAndSingularMatrices)
{
    std::mt19937 g = make_generator("singular");
    const int shapes[][3] = {{5, 5, 3},     {9, 4, 1},    {4, 9, 4},   {100, 100, 77},
                             {150, 70, 70}, {40, 90, 40}, {10, 30, 0}, {3, 3, 0}};
    for (const auto& shape : shapes) {
        int m = shape[0], n = shape[1], info = -99;
        auto a = random_columns<float>(m, n, 2, g);
        // The first column that depends on others: twice the one before it, or nothing at all.
        for (int i = 0; i < m && shape[2] > 0; ++i) a(i, shape[2] - 1) = 0;
        auto lu = a;
        std::vector<int> ipiv(static_cast<std::size_t>(std::min(m, n)));
        int lda = lu.ld;
        M::Sgetrf(&m, &n, lu.v.data(), &lda, ipiv.data(), &info);
        EXPECT_EQ(info, shape[2]);
        for (int k = 0; k < std::min(m, n); ++k) {
            for (int j = 0; j < n; ++j) std::swap(a(k, j), a(ipiv[static_cast<std::size_t>(k)] - 1, j));
        }
        for (int i = 0; i < m; ++i) {
            for (int j = 0; j < n; ++j) {
                Real sum = 0, magnitude = 0;
                for (int k = 0; k <= std::min({i, j, std::min(m, n) - 1}); ++k) {
                    const Real product = (k == i ? 1 : Real{lu(i, k)}) * lu(k, j);
                    sum += product;
                    magnitude += std::fabs(product);
                }
                ASSERT_LE(std::fabs(sum - a(i, j)), magnitude * n * std::numeric_limits<float>::epsilon())
                    << i << ", " << j;
            }
        }
    }
}

// --- NaNs and infinities ------------------------------------------------------------------------------

// The standard's recursive factorisation, on the rows and columns from `at` on: a search for the pivot that a NaN in
// the first place ends and that passes over NaNs elsewhere, and triangular solutions that pass over zeros.
struct Reference {
    Columns<float>& a;
    std::vector<int>& ipiv;

    int column(int at, int m)
    {
        int p = at;
        for (int i = at + 1; i < at + m; ++i) p = std::fabs(a(i, at)) > std::fabs(a(p, at)) ? i : p;
        ipiv[static_cast<std::size_t>(at)] = p + 1;
        if (a(p, at) == 0) return 1;
        std::swap(a(at, at), a(p, at));
        for (int i = at + 1; i < at + m; ++i) a(i, at) /= a(at, at);
        return 0;
    }
    void exchange(int column, int first, int last)
    {
        for (int k = first; k < last; ++k) std::swap(a(k, column), a(ipiv[static_cast<std::size_t>(k)] - 1, column));
    }
    // The columns behind the first `left` ones, once those are factors.
    void update(int at, int m, int left, int n)
    {
        const int middle = at + left;
        for (int j = middle; j < at + n; ++j) {
            exchange(j, at, middle);
            for (int k = at; k < middle; ++k) {
                for (int i = k + 1; i < middle && a(k, j) != 0; ++i) a(i, j) -= a(k, j) * a(i, k);
            }
            for (int k = at; k < middle; ++k) {
                for (int i = middle; i < at + m; ++i) a(i, j) -= a(k, j) * a(i, k);
            }
        }
    }
    int by_blocks(int m, int n)
    {
        const int least = std::min(m, n);
        int info = 0;
        for (int at = 0; at < least; at += 64) {
            const int columns = std::min(64, least - at), zero = factor(at, m - at, columns);
            info = info == 0 && zero != 0 ? at + zero : info;
            for (int j = 0; j < at; ++j) exchange(j, at, at + columns);
            update(at, m - at, columns, n - at);
        }
        return info;
    }
    int factor(int at, int m, int n)
    {
        if (m == 1) {
            ipiv[static_cast<std::size_t>(at)] = at + 1;
            return a(at, at) == 0 ? 1 : 0;
        }
        if (n == 1) return column(at, m);
        const int left = std::min(m, n) / 2, middle = at + left, least = std::min(m, n);
        const int upper = factor(at, m, left);
        update(at, m, left, n);
        const int lower = factor(middle, m - left, n - left);
        for (int j = at; j < middle; ++j) exchange(j, middle, at + least);
        return upper != 0 ? upper : lower != 0 ? lower + left : 0;
    }
};

TEST(Lapack, NansSpreadAsTheStandardHasIt)
{
    std::mt19937 g = make_generator("NaNs in factors");
    at_every_level([&] {
        for (int c = 0; c < (options().brief ? 100 : 500); ++c) {
            // First a column that is zero but for a NaN, at its head or further down; then matrices with columns and
            // rows of zeros. (Zeros elsewhere would make pivots that are zero but for rounding.)
            const int least = c % 50 == 49 ? 65 : 1, most = c % 50 == 49 ? 140 : 24;
            int m = c < 3 ? 3 : uniform(g, least, most), n = c < 3 ? 3 : uniform(g, least, most), info = -99;
            Columns<float> a = random_columns<float>(m, n, 1, g);
            for (int j = 0; j < n; ++j) {
                const bool none = c < 3 ? j == 0 : uniform(g, 0, 5) == 0;
                for (int i = 0; none && i < m; ++i) a(i, j) = 0;
            }
            for (int i = 0; i < m && c >= 3; ++i) {
                const bool none = uniform(g, 0, 5) == 0;
                for (int j = 0; none && j < n; ++j) a(i, j) = 0;
            }
            for (int i = 0; i <= c % 3 && c >= 3; ++i)
                a(uniform(g, 0, m - 1), uniform(g, 0, n - 1)) = uniform(g, 0, 3) == 0 ? INFINITY : NAN;
            if (c < 3) a(c, 0) = NAN;
            auto lu = a;
            const auto size = static_cast<std::size_t>(std::min(m, n));
            std::vector<int> ipiv(size), expected_ipiv(size);
            const int expected = std::min(m, n) > 64 ? Reference{a, expected_ipiv}.by_blocks(m, n)
                                                     : Reference{a, expected_ipiv}.factor(0, m, n);
            int lda = lu.ld;
            M::Sgetrf(&m, &n, lu.v.data(), &lda, ipiv.data(), &info);
            ASSERT_EQ(info, expected) << m << " x " << n;
            ASSERT_EQ(ipiv, expected_ipiv);
            for (std::size_t i = 0; i < lu.v.size(); ++i) {
                ASSERT_EQ(std::isnan(lu.v[i]), std::isnan(a.v[i])) << i;
                ASSERT_EQ(std::isinf(lu.v[i]), std::isinf(a.v[i])) << i;
            }
            if (c > 0) continue;
            EXPECT_EQ(info, 0);
            EXPECT_EQ(ipiv[0], 1);
            float b[3] = {1, 2, 3};
            int columns = 1, ldb = 3;
            char trans = 'N';
            M::Sgetrs(&trans, &n, &columns, lu.v.data(), &lda, ipiv.data(), b, &ldb, &info);
            for (float x : b) EXPECT_TRUE(std::isnan(x));
        }
    });
}

// --- Arguments that are refused, and what the process sees of it -------------------------------------

TEST(Lapack, RefusesBadArguments)
{
    const int threads_before = count_threads();
    auto output = std::make_unique<CapturedOutput>();

    struct { char ju, jv; int m, n, lda, ldu, ldvt, lwork, info; } svd[] = {
        {'X', 'A', 3, 3, 3, 3, 3, 99, -1}, {'O', 'O', 3, 3, 3, 3, 3, 99, -2}, {'A', 'X', 3, 3, 3, 3, 3, 99, -2},
        {'A', 'A', -1, 3, 3, 3, 3, 99, -3}, {'A', 'A', 3, -1, 3, 3, 3, 99, -4}, {'A', 'A', 3, 3, 2, 3, 3, 99, -6},
        {'A', 'A', 3, 3, 3, 2, 3, 99, -9}, {'A', 'A', 3, 3, 3, 3, 2, 99, -11}, {'A', 'A', 3, 3, 3, 3, 3, 14, -13}};
    struct Result { int wanted, info; bool untouched; };
    std::vector<Result> results;
    for (const auto& c : svd) {
        std::vector<float> f(400, 5);
        std::vector<double> d(400, 5);
        Result rf = {c.info, -99, false}, rd = rf;
        gesvd(c.ju, c.jv, c.m, c.n, f.data(), c.lda, f.data() + 50, f.data() + 100, c.ldu, f.data() + 150, c.ldvt,
              f.data() + 200, c.lwork, &rf.info);
        gesvd(c.ju, c.jv, c.m, c.n, d.data(), c.lda, d.data() + 50, d.data() + 100, c.ldu, d.data() + 150, c.ldvt,
              d.data() + 200, c.lwork, &rd.info);
        // The workspace is the routine's own: it may note there how much it would need.
        f[200] = 5;
        d[200] = 5;
        rf.untouched = f == std::vector<float>(400, 5);
        rd.untouched = d == std::vector<double>(400, 5);
        results.push_back(rf);
        results.push_back(rd);
    }
    struct {
        int m, n, lda, info;
    } factor[] = {{-1, 3, 3, -1}, {3, -1, 3, -2}, {3, 3, 2, -4}, {0, 0, 0, -4}, {0, 3, 1, 0}};
    for (auto& c : factor) {
        std::vector<float> a(9, 5);
        int ipiv[3] = {7, 7, 7};
        Result r = {c.info, -99, false};
        M::Sgetrf(&c.m, &c.n, a.data(), &c.lda, ipiv, &r.info);
        r.untouched = a == std::vector<float>(9, 5) && ipiv[0] == 7;
        results.push_back(r);
    }
    struct { char trans; int n, nrhs, lda, ldb, info;
    } solve[] = {{'X', 3, 1, 3, 3, -1}, {'N', -1, 1, 3, 3, -2}, {'N', 3, -1, 3, 3, -3},
                 {'N', 3, 1, 2, 3, -5}, {'N', 3, 1, 3, 2, -8},  {'N', 0, 1, 1, 1, 0}};
    for (auto& c : solve) {
        std::vector<float> a(9, 5), b(3, 5);
        int ipiv[3] = {1, 2, 3};
        Result r = {c.info, -99, false};
        M::Sgetrs(&c.trans, &c.n, &c.nrhs, a.data(), &c.lda, ipiv, b.data(), &c.ldb, &r.info);
        r.untouched = b == std::vector<float>(3, 5);
        results.push_back(r);
    }

    const long printed = output->bytes();
    output.reset();
    EXPECT_EQ(printed, 0);
    EXPECT_EQ(count_threads(), threads_before);
    for (const Result& r : results) {
        EXPECT_EQ(r.info, r.wanted);
        EXPECT_TRUE(r.untouched) << r.wanted;
    }
}

TEST(Lapack, QueryWritesOnlyItsAnswer)
{
    std::vector<float> all(300, 5);
    int info = -99;
    gesvd('A', 'A', 6, 4, all.data(), 6, all.data() + 50, all.data() + 100, 6, all.data() + 150, 4, all.data() + 200,
          -1, &info);
    EXPECT_EQ(info, 0);
    EXPECT_GE(all[200], 5 * 4);
    all[200] = 5;
    EXPECT_EQ(all, std::vector<float>(300, 5));
}

// Infinities and NaNs anywhere: the iteration must end (this test would hang) and say that it has none.
TEST(Lapack, NonFiniteInputEnds)
{
    std::mt19937 g = make_generator("non-finite");
    for (int c = 0; c < 60; ++c) {
        const int m = uniform(g, 1, 24), n = uniform(g, 1, 24), k = std::min(m, n);
        auto a = random_columns<double>(m, n, 0, g);
        const double odd[] = {INFINITY, -INFINITY, std::nan(""), 1e308, 1e-310};
        for (int i = 0; i <= c % 4; ++i) a(uniform(g, 0, m - 1), uniform(g, 0, n - 1)) = odd[uniform(g, 0, 4)];
        Columns<float> f(m, n, 0);
        for (int j = 0; j < n; ++j) {
            for (int i = 0; i < m; ++i) f(i, j) = static_cast<float>(a(i, j));
        }
        std::vector<double> u(static_cast<std::size_t>(m * m)), vt(static_cast<std::size_t>(n * n)),
            s(static_cast<std::size_t>(k)), work(500);
        std::vector<float> uf(u.size()), vtf(vt.size()), sf(s.size()), workf(500);
        std::vector<int> ipiv(s.size());
        int info = -99, info_f = -99, rows = m, columns = n;
        const char job = "ASN"[c % 3];
        gesvd(job, job, m, n, a.v.data(), m, s.data(), u.data(), m, vt.data(), n, work.data(), 500, &info);
        auto copy = f;
        gesvd(job, job, m, n, copy.v.data(), m, sf.data(), uf.data(), m, vtf.data(), n, workf.data(), 500, &info_f);
        for (const int got : {info, info_f}) EXPECT_TRUE(got == 0 || got == k - 1) << got;
        for (int i = 0; i < k; ++i) {
            const auto at = static_cast<std::size_t>(i);
            EXPECT_TRUE(k == 1 || std::isfinite(s[at]) == (info == 0)) << i;
            EXPECT_TRUE(k == 1 || std::isfinite(sf[at]) == (info_f == 0)) << i;
        }
        M::Sgetrf(&rows, &columns, f.v.data(), &rows, ipiv.data(), &info);
        EXPECT_GE(info, 0);
        for (int i = 0; i < k; ++i)
            EXPECT_TRUE(ipiv[static_cast<std::size_t>(i)] > i && ipiv[static_cast<std::size_t>(i)] <= m);
    }
}

}  // namespace
}  // namespace test
