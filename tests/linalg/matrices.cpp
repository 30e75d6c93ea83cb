// Small matrices: against sums in long double, and every level and storage against the plain variant on
// dense operands, to the bit.
#include "ImageProcessingWrapper.h"
#include "MatrixWrapper.h"
#include "linalg/elimination.h"
#include "linalg/matrices.h"
#include "support/matrix.h"
#include "support/tests.h"

namespace test {
namespace {

using W = MatrixWrapper;
using I = ImageProcessingWrapper;
using Real = long double;

template <class T> Real epsilon() { return std::numeric_limits<T>::epsilon(); }

template <class T>
Values<T> random_values(int rows, int columns, Fill fill, std::mt19937& g)
{
    Values<T> values(rows, columns);
    for (T& v : values.v) v = random_value<T>(g, fill);
    return values;
}

// NaNs are equal whatever their bits: which of two operands a NaN comes from is not promised.
template <class T>
bool same_bits(const Values<T>& a, const Values<T>& b)
{
    for (std::size_t i = 0; i < a.v.size(); ++i) {
        if (std::memcmp(&a.v[i], &b.v[i], sizeof(T)) != 0 && !(std::isnan(a.v[i]) && std::isnan(b.v[i]))) return false;
    }
    return a.v.size() == b.v.size();
}

// --- One description per operation ------------------------------------------------------------------
//
// Vectors are matrices of one row.

template <class T>
struct Operation {
    const char* name;
    // The shapes of the operands, from three random sizes.
    struct Shape { int a_rows, a_columns, b_rows, b_columns, d_rows, d_columns; };
    Shape (*shape)(int r, int c, int k);
    bool (*call)(Matrix<T>& a, Matrix<T>& b, Matrix<T>& d);
    // The exact element and the sum of the absolute values that went into it.
    struct Exact { Real value, magnitude; };
    Exact (*exact)(const Values<T>& a, const Values<T>& b, int i, int j);
};

using OpF = Operation<float>;
using OpD = Operation<double>;

template <class T, class Left, class Right>
typename Operation<T>::Exact sum_of_products(int n, Left left, Right right)
{
    typename Operation<T>::Exact e = {0, 0};
    for (int k = 0; k < n; ++k) {
        const Real product = Real{left(k)} * Real{right(k)};
        e.value += product;
        e.magnitude += std::fabs(product);
    }
    return e;
}

const OpF kFloatOperations[] = {
    {"Add_mm_32f", [](int r, int c, int) { return OpF::Shape{r, c, r, c, r, c}; },
     [](auto& a, auto& b, auto& d) {
         return W::Add_mm_32f(a.base(), a.s1(), a.s2(), b.base(), b.s1(), b.s2(), d.base(), d.s1(), d.s2(), d.columns(),
                              d.rows());
     },
     [](auto& a, auto& b, int i, int j) {
         return OpF::Exact{Real{a(i, j)} + Real{b(i, j)}, std::fabs(Real{a(i, j)}) + std::fabs(Real{b(i, j)})};
     }},
    {"Sub_mm_32f", [](int r, int c, int) { return OpF::Shape{r, c, r, c, r, c}; },
     [](auto& a, auto& b, auto& d) {
         return W::Sub_mm_32f(a.base(), a.s1(), a.s2(), b.base(), b.s1(), b.s2(), d.base(), d.s1(), d.s2(), d.columns(),
                              d.rows());
     },
     [](auto& a, auto& b, int i, int j) {
         return OpF::Exact{Real{a(i, j)} - Real{b(i, j)}, std::fabs(Real{a(i, j)}) + std::fabs(Real{b(i, j)})};
     }},
    {"Mul_mc_32f", [](int r, int c, int) { return OpF::Shape{r, c, 1, 1, r, c}; },
     [](auto& a, auto& b, auto& d) {
         return W::Mul_mc_32f(a.base(), a.s1(), a.s2(), *b.base(), d.base(), d.s1(), d.s2(), d.columns(), d.rows());
     },
     [](auto& a, auto& b, int i, int j) {
         const Real p = Real{a(i, j)} * Real{b(0, 0)};
         return OpF::Exact{p, std::fabs(p)};
     }},
    {"Mul_mm_32f", [](int r, int c, int k) { return OpF::Shape{r, k, k, c, r, c}; },
     [](auto& a, auto& b, auto& d) {
         return W::Mul_mm_32f(a.base(), a.s1(), a.s2(), a.columns(), a.rows(), b.base(), b.s1(), b.s2(), b.columns(),
                              b.rows(), d.base(), d.s1(), d.s2());
     },
     [](auto& a, auto& b, int i, int j) {
         return sum_of_products<float>(a.columns, [&](int k) { return a(i, k); }, [&](int k) { return b(k, j); });
     }},
    {"Mul_mm_32f", [](int r, int, int) { return OpF::Shape{r, r, r, r, r, r}; },
     [](auto& a, auto& b, auto& d) {
         return I::Mul_mm_32f(a.base(), a.s1(), a.s2(), a.columns(), a.rows(), b.base(), b.s1(), b.s2(), b.columns(),
                              b.rows(), d.base(), d.s1(), d.s2());
     },
     [](auto& a, auto& b, int i, int j) {
         return sum_of_products<float>(a.columns, [&](int k) { return a(i, k); }, [&](int k) { return b(k, j); });
     }},
    {"Transpose_m_32f", [](int r, int c, int) { return OpF::Shape{r, c, 1, 1, c, r}; },
     [](auto& a, auto&, auto& d) {
         return W::Transpose_m_32f(a.base(), a.s1(), a.s2(), a.columns(), a.rows(), d.base(), d.s1(), d.s2());
     },
     [](auto& a, auto&, int i, int j) { return OpF::Exact{a(j, i), 0}; }},
    {"Copy_ma_32f_SS", [](int r, int c, int) { return OpF::Shape{r, c, 1, 1, r, c}; },
     [](auto& a, auto&, auto& d) {
         return I::Copy_ma_32f_SS(a.base(), 4, a.s1(), a.s2(), d.base(), 4, d.s1(), d.s2(), d.columns(), d.rows(), 1);
     },
     [](auto& a, auto&, int i, int j) { return OpF::Exact{a(i, j), 0}; }},
    {"LoadIdentity_ma_32f", [](int r, int c, int) { return OpF::Shape{1, 1, 1, 1, r, c}; },
     [](auto&, auto&, auto& d) {
         return W::LoadIdentity_ma_32f(d.base(), 4, d.s1(), d.s2(), d.columns(), d.rows(), 1);
     },
     [](auto&, auto&, int i, int j) { return OpF::Exact{Real(i == j), 0}; }},
};

const OpD kDoubleOperations[] = {
    {"Mul_tm_64f", [](int r, int c, int k) { return OpD::Shape{k, r, k, c, r, c}; },
     [](auto& a, auto& b, auto& d) {
         return W::Mul_tm_64f(a.base(), a.s1(), a.s2(), a.columns(), a.rows(), b.base(), b.s1(), b.s2(), b.columns(),
                              b.rows(), d.base(), d.s1(), d.s2());
     },
     [](auto& a, auto& b, int i, int j) {
         return sum_of_products<double>(a.rows, [&](int k) { return a(k, i); }, [&](int k) { return b(k, j); });
     }},
    {"Mul_mv_64f", [](int r, int, int k) { return OpD::Shape{r, k, 1, k, 1, r}; },
     [](auto& a, auto& b, auto& d) {
         return W::Mul_mv_64f(a.base(), a.s1(), a.s2(), a.columns(), a.rows(), b.base(), b.s2(), b.columns(), d.base(),
                              d.s2());
     },
     [](auto& a, auto& b, int, int j) {
         return sum_of_products<double>(a.columns, [&](int k) { return a(j, k); }, [&](int k) { return b(0, k); });
     }},
    {"Mul_tv_64f", [](int r, int, int k) { return OpD::Shape{k, r, 1, k, 1, r}; },
     [](auto& a, auto& b, auto& d) {
         return W::Mul_tv_64f(a.base(), a.s1(), a.s2(), a.columns(), a.rows(), b.base(), b.s2(), b.columns(), d.base(),
                              d.s2());
     },
     [](auto& a, auto& b, int, int j) {
         return sum_of_products<double>(a.rows, [&](int k) { return a(k, j); }, [&](int k) { return b(0, k); });
     }},
};

Storage random_storage(std::mt19937& g)
{
    return static_cast<Storage>(uniform(g, 0, static_cast<int>(Storage::kinds) - 1));
}
int random_size(std::mt19937& g)
{
    return uniform(g, 0, 29) == 0 ? uniform(g, 33, 70) : uniform(g, 0, 2) == 0 ? uniform(g, 3, 8) : uniform(g, 1, 20);
}

template <class T>
void check_operation(const Operation<T>& op)
{
    std::mt19937 g = make_generator(op.name);
    for (int n = 0; n < (options().brief ? 40 : 400); ++n) {
        const auto s = n % 4 == 0 ? [&] { const int r = uniform(g, 1, 9); return op.shape(r, r, r); }()
                                  : op.shape(random_size(g), random_size(g), random_size(g));
        // Doubles without the extremes: the x87 rounds subnormal results twice.
        const Fill fill = sizeof(T) == 8 ? static_cast<Fill>(uniform(g, 0, 1)) : static_cast<Fill>(uniform(g, 0, 3));
        const auto a = random_values<T>(s.a_rows, s.a_columns, fill, g),
                   b = random_values<T>(s.b_rows, s.b_columns, fill, g);
        const Values<T> nothing(s.d_rows, s.d_columns);

        // The plain variant on dense operands against exact arithmetic...
        Matrix<T> da(a, Storage::dense, g), db(b, Storage::dense, g), dd(nothing, Storage::dense, g);
        const int highest = orv::orv_variant_index;
        orv::orv_variant_index = 0;
        const bool done = op.call(da, db, dd);
        orv::orv_variant_index = highest;
        ASSERT_TRUE(done) << op.name;
        const auto expected = dd.values();
        for (int i = 0; i < s.d_rows && fill <= Fill::near_low; ++i) {
            for (int j = 0; j < s.d_columns; ++j) {
                const auto exact = op.exact(a, b, i, j);
                const Real bound = exact.magnitude * epsilon<T>() * (0.51L * std::max(s.a_columns, s.a_rows) + 1);
                ASSERT_LE(std::fabs(Real{expected(i, j)} - exact.value), bound) << op.name << " at " << i << ", " << j;
            }
        }
        // ... and everything else against that.
        at_every_level([&] {
            Matrix<T> ma(a, random_storage(g), g), mb(b, random_storage(g), g), md(nothing, random_storage(g), g);
            ASSERT_TRUE(op.call(ma, mb, md)) << op.name;
            ASSERT_TRUE(same_bits(md.values(), expected))
                << op.name << " " << s.d_rows << " x " << s.d_columns << ", strides " << ma.s1() << " " << ma.s2()
                << ", " << mb.s1() << " " << mb.s2() << ", " << md.s1() << " " << md.s2();
            ASSERT_TRUE(ma.unchanged() && mb.unchanged() && md.surroundings_unchanged()) << op.name;
            // The destination in the place of a source.
            if (s.a_rows == s.d_rows && s.a_columns == s.d_columns) {
                ASSERT_TRUE(op.call(ma, mb, ma)) << op.name;
                ASSERT_TRUE(same_bits(ma.values(), expected)) << op.name << " onto the first operand";
            }
            ma.set(a);
            if (s.b_rows == s.d_rows && s.b_columns == s.d_columns) {
                ASSERT_TRUE(op.call(ma, mb, mb)) << op.name;
                ASSERT_TRUE(same_bits(mb.values(), expected)) << op.name << " onto the second operand";
            }
        });
        if (testing::Test::HasFatalFailure()) return;
    }
}

TEST(Matrices, SumsProductsAndMoves)
{
    for (const auto& op : kFloatOperations) check_operation(op);
    for (const auto& op : kDoubleOperations) check_operation(op);
}

TEST(Matrices, EveryOperationIsTested)
{
    std::set<std::string> tested;
    for (const auto& op : kFloatOperations) tested.insert(op.name);
    for (const auto& op : kDoubleOperations) tested.insert(op.name);
#define KERNEL(name, ...) EXPECT_EQ(tested.count(#name), 1U) << #name;
#include "linalg/matrices.inc"
#undef KERNEL
}

TEST(Matrices, OverlappingDestinations)
{
    // Products and transpositions may also share a part of a source's memory.
    std::mt19937 g = make_generator("overlap");
    at_every_level([&] {
        for (int n = 1; n < 40; n += n < 10 ? 1 : 7) {
            std::vector<float> memory(static_cast<std::size_t>(3 * n * n)), apart(static_cast<std::size_t>(n * n));
            for (float& v : memory) v = random_value<float>(g, Fill::uniform);
            const auto start = memory;
            const int s = 4 * n, e = 4;
            float* const src = memory.data() + n * n;
            for (int shift = -n; shift <= n; shift += n) {
                float* const dst = src + shift;
                memory = start;
                ASSERT_TRUE(W::Mul_mm_32f(src, s, e, n, n, src, s, e, n, n, apart.data(), s, e));
                ASSERT_TRUE(W::Mul_mm_32f(src, s, e, n, n, src, s, e, n, n, dst, s, e));
                ASSERT_EQ(std::memcmp(dst, apart.data(), apart.size() * 4), 0) << n << " shifted by " << shift;
                memory = start;
                ASSERT_TRUE(W::Transpose_m_32f(src, s, e, n, n, apart.data(), s, e));
                ASSERT_TRUE(W::Transpose_m_32f(src, s, e, n, n, dst, s, e));
                ASSERT_EQ(std::memcmp(dst, apart.data(), apart.size() * 4), 0) << n << " shifted by " << shift;
            }
        }
        // Too large for any memory, and on 32 bits for its addresses.
        float some[4] = {1, 2, 3, 4};
        for (const int n : {1 << 30, INT_MAX}) {
            EXPECT_FALSE(W::Mul_mm_32f(some, 4, 4, n, n, some, 4, 4, n, n, some, 4, 4));
            EXPECT_FALSE(W::Transpose_m_32f(some, 4, 4, n, n, some, 4, 4));
            EXPECT_FALSE(W::Transpose_m_32f(some, 4, INT_MAX - 3, n, n, some, INT_MAX - 3, 4));
        }
        EXPECT_THAT(some, testing::ElementsAre(1, 2, 3, 4));
        // 40 x 40 leaves the stack.
        std::vector<float> m(1600, 1.0F);
        const auto before = m;
        AllocationFailure none(0);
        EXPECT_FALSE(W::Mul_mm_32f(m.data(), 160, 4, 40, 40, m.data(), 160, 4, 40, 40, m.data(), 160, 4));
        EXPECT_FALSE(W::Transpose_m_32f(m.data(), 160, 4, 40, 40, m.data(), 160, 4));
        EXPECT_EQ(m, before);
    });
}

TEST(Matrices, ArraysOfMatrices)
{
    at_every_level([] {
        std::vector<float> m(100, 7.0F), want(100, 7.0F), copy(100, 9.0F), want_copy(100, 9.0F);
        for (int k = 0; k < 3; ++k) {
            for (int i = 0; i < 2; ++i) {
                for (int j = 0; j < 3; ++j) {
                    want[static_cast<std::size_t>(30 * k + 8 * i + 2 * j)] = i == j ? 1.0F : 0.0F;
                    want_copy[static_cast<std::size_t>(6 * k + i + 2 * j)] = i == j ? 1.0F : 0.0F;
                }
            }
        }
        ASSERT_TRUE(W::LoadIdentity_ma_32f(m.data(), 120, 32, 8, 3, 2, 3));
        EXPECT_EQ(m, want);
        ASSERT_TRUE(I::Copy_ma_32f_SS(m.data(), 120, 32, 8, copy.data(), 24, 4, 8, 3, 2, 3));
        EXPECT_EQ(copy, want_copy);
        // Signalling NaNs arrive as they left.
        const std::uint32_t bits = 0x7F812345;
        std::uint32_t moved = 0, transposed = 0;
        std::vector<float> source(20);
        for (float& f : source) std::memcpy(&f, &bits, 4);
        std::vector<float> target(20);
        ASSERT_TRUE(I::Copy_ma_32f_SS(source.data(), 4, 20, 4, target.data(), 4, 4, 16, 5, 4, 1));
        std::memcpy(&moved, &target[7], 4);
        ASSERT_TRUE(W::Transpose_m_32f(source.data(), 20, 4, 5, 4, target.data(), 16, 4));
        std::memcpy(&transposed, &target[19], 4);
        EXPECT_EQ(moved, bits);
        EXPECT_EQ(transposed, bits);
    });
}

// --- Elimination ------------------------------------------------------------------------------------

struct Factors {
    Values<float> lu;
    std::vector<int> index;
};

bool decompose(Matrix<float>& a, Factors& f, Matrix<float>& d)
{
    f.index.assign(static_cast<std::size_t>(a.rows()), -1);
    const bool done = W::LUDecomp_m_32f(a.base(), a.s1(), a.s2(), f.index.data(), d.base(), d.s1(), d.s2(), a.rows());
    f.lu = d.values();
    return done;
}

// P A = L U, to the rounding of its sums; multipliers of at most 1.
void check_factors(Values<float> a, const Factors& f)
{
    const int n = a.rows;
    for (int k = 0; k < n; ++k) {
        const int row = f.index[static_cast<std::size_t>(k)];
        ASSERT_TRUE(row >= k && row < n);
        for (int j = 0; j < n; ++j) std::swap(a(k, j), a(row, j));
    }
    for (int i = 0; i < n; ++i) {
        for (int j = 0; j < n; ++j) {
            Real sum = 0, magnitude = 0;
            for (int k = 0; k <= std::min(i, j); ++k) {
                const Real product = (k == i ? 1 : Real{f.lu(i, k)}) * Real{f.lu(k, j)};
                sum += product;
                magnitude += std::fabs(product);
            }
            ASSERT_LE(std::fabs(sum - a(i, j)), magnitude * epsilon<float>() * n) << i << ", " << j << " of " << n;
            if (j < i) {
                ASSERT_LE(std::fabs(f.lu(i, j)), 1.0F);
            }
        }
    }
}

TEST(Matrices, DecompositionAndSubstitution)
{
    std::mt19937 g = make_generator("LU");
    for (int c = 0; c < (options().brief ? 40 : 300); ++c) {
        const int n = c < 40 ? c + 1 : random_size(g);
        const auto a = random_values<float>(n, n, Fill::uniform, g), b = random_values<float>(1, n, Fill::uniform, g);
        const Values<float> nothing(n, n), no_vector(1, n);
        Factors plain = {nothing, {}}, f = {nothing, {}};
        Values<float> x = no_vector;
        {
            Matrix<float> da(a, Storage::dense, g), dd(nothing, Storage::dense, g), db(b, Storage::dense, g),
                dx(no_vector, Storage::dense, g);
            const int highest = orv::orv_variant_index;
            orv::orv_variant_index = 0;
            EXPECT_TRUE(decompose(da, plain, dd));
            EXPECT_TRUE(W::LUBackSubst_mv_32f(dd.base(), dd.s1(), dd.s2(), plain.index.data(), db.base(), db.s2(),
                                              dx.base(), dx.s2(), n));
            orv::orv_variant_index = highest;
            x = dx.values();
        }
        check_factors(a, plain);
        for (int i = 0; i < n; ++i) {
            Real residual = -Real{b(0, i)};
            for (int j = 0; j < n; ++j) residual += Real{a(i, j)} * Real{x(0, j)};
            Real bound = 0;  // |L| |U| |x|; |L| <= 1
            for (int k = 0; k < n; ++k) {
                for (int j = k; j < n; ++j) bound += std::fabs(Real{plain.lu(k, j)} * Real{x(0, j)});
            }
            ASSERT_LE(std::fabs(residual), 3 * n * epsilon<float>() * bound);
        }
        at_every_level([&] {
            Matrix<float> ma(a, random_storage(g), g), md(nothing, random_storage(g), g), mb(b, random_storage(g), g),
                mx(no_vector, random_storage(g), g);
            ASSERT_TRUE(decompose(ma, f, md));
            ASSERT_TRUE(same_bits(f.lu, plain.lu)) << n;
            ASSERT_EQ(f.index, plain.index);
            ASSERT_TRUE(ma.unchanged() && md.surroundings_unchanged());
            ASSERT_TRUE(decompose(ma, f, ma));
            ASSERT_TRUE(same_bits(f.lu, plain.lu)) << "in place";
            ASSERT_TRUE(W::LUBackSubst_mv_32f(md.base(), md.s1(), md.s2(), f.index.data(), mb.base(), mb.s2(),
                                              mx.base(), mx.s2(), n));
            ASSERT_TRUE(same_bits(mx.values(), x)) << n;
            ASSERT_TRUE(mb.unchanged() && mx.surroundings_unchanged());
            ASSERT_TRUE(W::LUBackSubst_mv_32f(md.base(), md.s1(), md.s2(), f.index.data(), mb.base(), mb.s2(),
                                              mb.base(), mb.s2(), n));
            ASSERT_TRUE(same_bits(mb.values(), x)) << "in place";
        });
        if (HasFatalFailure()) return;
    }
}

// Decompositions and substitutions onto memory of their sources, in sizes that do not fit into registers or small
// buffers: the same bits as apart.
TEST(Matrices, OverlappingElimination)
{
    std::mt19937 g = make_generator("overlapping elimination");
    at_every_level([&] {
        for (const int n : {7, 32, 33, 40}) {
            const int s = 4 * n, gap = 4 * (n + 1);
            struct { int from, s1, s2, to, d1, d2;
            } const cases[] = {{n, 4, s, n, s, 4},     {n, s, 4, n, 4, s},    {n, s, 4, 0, s, 4},
                               {n, s, 4, 2 * n, s, 4}, {n, s, 4, n, gap, 4},  {n, gap, 4, n, s, 4},
                               {n + 1, s, 4, n, s, 4}, {n, s, 4, n + 1, 4, s}};
            for (const auto& c : cases) {
                std::vector<float> memory(static_cast<std::size_t>(n * n + 4 * n)),
                    apart(static_cast<std::size_t>(n * n)), onto = apart;
                for (float& v : memory) v = random_value<float>(g, Fill::uniform);
                std::vector<int> index(static_cast<std::size_t>(n)), index_apart = index;
                ASSERT_TRUE(
                    W::LUDecomp_m_32f(memory.data() + c.from, c.s1, c.s2, index_apart.data(), apart.data(), s, 4, n));
                ASSERT_TRUE(W::LUDecomp_m_32f(memory.data() + c.from, c.s1, c.s2, index.data(), memory.data() + c.to,
                                              c.d1, c.d2, n));
                for (int i = 0; i < n * n; ++i)
                    onto[static_cast<std::size_t>(i)] =
                        memory[static_cast<std::size_t>(c.to + i / n * c.d1 / 4 + i % n * c.d2 / 4)];
                ASSERT_EQ(onto, apart) << n;
                ASSERT_EQ(index, index_apart);
            }
        }
        for (const int n : {8, 20, 300}) {
            const auto size = static_cast<std::size_t>(n);
            auto lu = random_values<float>(n, n, Fill::uniform, g);
            for (int i = 0; i < n; ++i) lu(i, i) += static_cast<float>(n);
            std::vector<int> index(size);
            ASSERT_TRUE(W::LUDecomp_m_32f(lu.v.data(), 4 * n, 4, index.data(), lu.v.data(), 4 * n, 4, n));
            struct {
                int from, b, to, x;
            } const cases[] = {{0, 4, 0, 8}, {0, 8, 0, 4}, {1, 4, 0, 4}, {0, 4, 1, 4}, {0, 12, 1, 8}};
            for (const auto& c : cases) {
                std::vector<float> memory(3 * size + 1), apart(size), onto(size);
                for (float& v : memory) v = random_value<float>(g, Fill::uniform);
                ASSERT_TRUE(W::LUBackSubst_mv_32f(lu.v.data(), 4 * n, 4, index.data(), memory.data() + c.from, c.b,
                                                  apart.data(), 4, n));
                ASSERT_TRUE(W::LUBackSubst_mv_32f(lu.v.data(), 4 * n, 4, index.data(), memory.data() + c.from, c.b,
                                                  memory.data() + c.to, c.x, n));
                for (std::size_t i = 0; i < size; ++i)
                    onto[i] = memory[static_cast<std::size_t>(c.to) + i * static_cast<std::size_t>(c.x) / 4];
                ASSERT_EQ(onto, apart) << n;
            }
            // Onto a row of the factors.
            std::vector<float> b(size), apart(size);
            for (float& v : b) v = random_value<float>(g, Fill::uniform);
            ASSERT_TRUE(W::LUBackSubst_mv_32f(lu.v.data(), 4 * n, 4, index.data(), b.data(), 4, apart.data(), 4, n));
            ASSERT_TRUE(W::LUBackSubst_mv_32f(lu.v.data(), 4 * n, 4, index.data(), b.data(), 4, &lu(n / 2, 0), 4, n));
            ASSERT_EQ(std::vector<float>(&lu(n / 2, 0), &lu(n / 2, 0) + n), apart) << n;
        }
        // Without memory nothing is written.
        std::vector<float> m(40 * 40 + 40), x(1100, 2.0F), unit(1100 * 1100);
        std::vector<int> index(1100);
        for (std::size_t i = 0; i < m.size(); ++i) m[i] = static_cast<float>(i % 41);
        for (std::size_t i = 0; i < 1100; ++i) index[i] = static_cast<int>(i), unit[1101 * i] = 1;
        const auto m_before = m, x_before = x;
        AllocationFailure none(0);
        EXPECT_FALSE(W::LUDecomp_m_32f(m.data(), 160, 4, index.data(), m.data() + 40, 160, 4, 40));
        EXPECT_FALSE(W::LUBackSubst_mv_32f(unit.data(), 4400, 4, index.data(), x.data(), 4, x.data(), 4, 1100));
        EXPECT_EQ(m, m_before);
        EXPECT_EQ(x, x_before);
        EXPECT_EQ(index[1], 1);
    });
}

// Few values: pivots that are equal, of which the first counts, and pivots that are zero, which end it.
TEST(Matrices, EqualAndMissingPivots)
{
    std::mt19937 g = make_generator("equal pivots");
    int complete = 0, singular = 0;
    for (int c = 0; c < 400; ++c) {
        const int n = uniform(g, 2, 10);
        Values<float> a(n, n), inverse(n, n);
        for (float& v : a.v) v = static_cast<float>(uniform(g, -1, 2));
        Factors plain = {a, {}}, f = plain;
        bool done = false, inverted = false;
        at_every_level([&] {
            Matrix<float> ma(a, random_storage(g), g), md(Values<float>(n, n), random_storage(g), g),
                mx(Values<float>(n, n), random_storage(g), g);
            const bool now_done = decompose(ma, f, md);
            const bool now_inverted = W::Invert_m_32f(ma.base(), ma.s1(), ma.s2(), mx.base(), mx.s1(), mx.s2(), n);
            if (orv::orv_variant_index == 0) {
                plain = f;
                done = now_done;
                inverted = now_inverted;
                inverse = mx.values();
            }
            ASSERT_EQ(now_done, done);
            ASSERT_EQ(f.index, plain.index);
            ASSERT_TRUE(same_bits(f.lu, plain.lu)) << n;
            ASSERT_EQ(now_inverted, inverted);
            ASSERT_TRUE(same_bits(mx.values(), inverse)) << n;
        });
        if (HasFatalFailure()) return;
        ++(done ? complete : singular);
        if (done) check_factors(a, plain);
    }
    EXPECT_GT(complete, 0);
    EXPECT_GT(singular, 0);
}

TEST(Matrices, Pivots)
{
    at_every_level([] {
        const float least = std::ldexp(1.0F, -125), below = std::nextafter(least, 0.0F);
        int index[3];
        float out[9], x[3];
        const float bound[] = {2, 0, 0, 1, least, 0, 0, 0, -least}, under[] = {2, 0, 0, 1, below, 0, 0, 0, 1};
        ASSERT_TRUE(W::LUDecomp_m_32f(bound, 12, 4, index, out, 12, 4, 3));
        const float ones[] = {1, 1, 1};
        EXPECT_TRUE(W::LUBackSubst_mv_32f(out, 12, 4, index, ones, 4, x, 4, 3));
        EXPECT_FALSE(W::LUDecomp_m_32f(under, 12, 4, index, out, 12, 4, 3));
        const float one[] = {below}, one_bound[] = {-least};
        EXPECT_FALSE(W::LUDecomp_m_32f(one, 4, 4, index, out, 4, 4, 1));
        EXPECT_TRUE(W::LUDecomp_m_32f(one_bound, 4, 4, index, out, 4, 4, 1));
        EXPECT_EQ(index[0], 0);
        const float zero_column[] = {1, 0, 3, 4, 0, 6, 7, 0, 9};
        EXPECT_FALSE(W::LUDecomp_m_32f(zero_column, 12, 4, index, out, 12, 4, 3));
        // Of equal pivots the uppermost; rows of the matrix as exchanged so far, counted from 0.
        const float equal[] = {1, 0, 0, -4, 1, 0, 4, 1, 2};
        ASSERT_TRUE(W::LUDecomp_m_32f(equal, 12, 4, index, out, 12, 4, 3));
        EXPECT_THAT(index, testing::ElementsAre(1, 2, 2));
        EXPECT_THAT(out, testing::ElementsAre(-4, 1, 0, -1, 2, 2, -0.25F, 0.125F, -0.25F));
        // Factors that no decomposition wrote.
        int beyond[] = {1, 3, 2}, behind[] = {1, 0, 2}, negative[] = {-1, 2, 2};
        x[0] = x[1] = x[2] = 5;
        for (int* bad : {beyond, behind, negative})
            EXPECT_FALSE(W::LUBackSubst_mv_32f(out, 12, 4, bad, ones, 4, x, 4, 3));
        out[8] = 0;
        EXPECT_FALSE(W::LUBackSubst_mv_32f(out, 12, 4, index, ones, 4, x, 4, 3));
        EXPECT_THAT(x, testing::Each(5.0F));
    });
}

template <class T>
using InvertCall = bool (*)(const T*, int, int, T*, int, int, int);

template <class T>
bool invert(InvertCall<T> call, Matrix<T>& a, Matrix<T>& x)
{
    return call(a.base(), a.s1(), a.s2(), x.base(), x.s1(), x.s2(), a.rows());
}

// |A| |inverse(A)| by Gauss-Jordan in long double, columns scaled to the same size before.
template <class T>
Real condition(const Values<T>& a)
{
    const int n = a.rows;
    Values<Real> m(n, 2 * n);
    Real norm = 0;
    for (int j = 0; j < n; ++j) {
        Real scale = 0;
        for (int i = 0; i < n; ++i) scale = std::max(scale, std::fabs(Real{a(i, j)}));
        for (int i = 0; i < n; ++i) m(i, j) = a(i, j) / scale;
        m(j, n + j) = 1;
    }
    for (int i = 0; i < n; ++i) {
        Real row = 0;
        for (int j = 0; j < n; ++j) row += std::fabs(m(i, j));
        norm = std::max(norm, row);
    }
    for (int k = 0; k < n; ++k) {
        int pivot = k;
        for (int i = k; i < n; ++i) pivot = std::fabs(m(i, k)) > std::fabs(m(pivot, k)) ? i : pivot;
        for (int j = 0; j < 2 * n; ++j) std::swap(m(k, j), m(pivot, j));
        for (int i = 0; i < n; ++i) {
            const Real factor = m(i, k) / m(k, k);
            for (int j = k; i != k && j < 2 * n; ++j) m(i, j) -= factor * m(k, j);
        }
    }
    Real worst = 0;
    for (int i = 0; i < n; ++i) {
        Real row = 0;
        for (int j = n; j < 2 * n; ++j) row += std::fabs(m(i, j) / m(i, i));
        worst = std::max(worst, row);
    }
    return worst * norm;
}

// |A X - 1| in units of n * epsilon * cond(A), in the norm of the largest row sum.
template <class T>
Real residual(const Values<T>& a, const Values<T>& x)
{
    const int n = a.rows;
    Real worst = 0, norm_a = 0, norm_x = 0;
    for (int i = 0; i < n; ++i) {
        Real row = 0, row_a = 0, row_x = 0;
        for (int j = 0; j < n; ++j) {
            Real sum = i == j ? -1 : 0;
            for (int k = 0; k < n; ++k) sum += Real{a(i, k)} * Real{x(k, j)};
            row += std::fabs(sum);
            row_a += std::fabs(Real{a(i, j)});
            row_x += std::fabs(Real{x(i, j)});
        }
        worst = std::max(worst, row);
        norm_a = std::max(norm_a, row_a);
        norm_x = std::max(norm_x, row_x);
    }
    return worst / (n * epsilon<T>() * norm_a * norm_x);
}

template <class T>
void check_inversion(InvertCall<T> call, const char* name)
{
    std::mt19937 g = make_generator(name);
    Real worst = 0;
    for (int c = 0; c < (options().brief ? 60 : 400); ++c) {
        const int n = c < 40 ? c + 1 : random_size(g);
        auto a = random_values<T>(n, n, Fill::uniform, g);
        if (c % 3 == 1) {
            // Rows that are nearly alike, rows of different size, columns of very different size.
            for (int i = n - 1; i > 0; i -= 3) {
                for (int j = 0; j < n; ++j) a(i, j) = a(i - 1, j) + a(i, j) / 64;
            }
            for (int i = 0; i < n; ++i) {
                const T row = static_cast<T>(std::ldexp(1.0, uniform(g, -3, 3))),
                        column = static_cast<T>(std::ldexp(1.0, uniform(g, -10, 10)));
                for (int j = 0; j < n; ++j) a(i, j) *= row;
                for (int j = 0; j < n; ++j) a(j, i) *= column;
            }
        }
        const Values<T> nothing(n, n);
        Values<T> x = nothing;
        {
            Matrix<T> da(a, Storage::dense, g), dx(nothing, Storage::dense, g);
            const int highest = orv::orv_variant_index;
            orv::orv_variant_index = 0;
            const bool inverted = invert(call, da, dx);
            orv::orv_variant_index = highest;
            // What passes for singular must be close to it.
            if (!inverted) {
                ASSERT_GT(condition(a) * epsilon<T>() * n, 0.1L) << n;
                continue;
            }
            x = dx.values();
        }
        worst = std::max(worst, residual(a, x));
        at_every_level([&] {
            Matrix<T> ma(a, random_storage(g), g), mx(nothing, random_storage(g), g);
            ASSERT_TRUE(invert(call, ma, mx));
            ASSERT_TRUE(same_bits(mx.values(), x)) << name << " " << n;
            ASSERT_TRUE(ma.unchanged() && mx.surroundings_unchanged());
            ASSERT_TRUE(invert(call, ma, ma));
            ASSERT_TRUE(same_bits(ma.values(), x)) << "in place " << n;
        });
        if (testing::Test::HasFatalFailure()) return;

        // Exactly singular: small integers whose last row is a sum of others.
        if (n == 1) continue;
        auto s = a;
        for (T& v : s.v) v = static_cast<T>(uniform(g, -9, 9));
        for (int j = 0; j < n; ++j) s(n - 1, j) = s(0, j) + (n > 2 ? s(1, j) : 0);
        Matrix<T> ms(s, random_storage(g), g), mx(nothing, random_storage(g), g);
        ASSERT_FALSE(invert(call, ms, mx)) << "a singular matrix of size " << n;
        ASSERT_TRUE(mx.unchanged());
    }
    EXPECT_LE(worst, 10) << name;
    testing::Test::RecordProperty(name, std::to_string(static_cast<double>(worst)));
    std::cout << name << ": residual at most " << worst << " n eps cond\n";
}

TEST(Matrices, Inversion)
{
    check_inversion<float>(W::Invert_m_32f, "Invert_m_32f");
    check_inversion<double>(W::Invert_m_64f, "Invert_m_64f");
}

// Integers, one row or column a combination of the others.
template <class T>
Values<T> random_singular(int n, std::mt19937& g)
{
    const int range = std::vector<int>{1, 2, 9, 100}[static_cast<std::size_t>(uniform(g, 0, 3))];
    Values<T> a(n, n), t(n, n);
    for (T& v : a.v) v = static_cast<T>(uniform(g, -range, range));
    const int last = uniform(g, 0, n - 1);
    for (int j = 0; j < n; ++j) a(last, j) = 0;
    for (int term = 0; term < n; ++term) {
        const int other = uniform(g, 0, n - 1);
        const T factor = static_cast<T>(uniform(g, -3, 3));
        for (int j = 0; other != last && j < n; ++j) a(last, j) += factor * a(other, j);
    }
    for (int i = 0; i < n; ++i) {
        for (int j = 0; j < n; ++j) t(i, j) = a(j, i);
    }
    return uniform(g, 0, 1) == 0 ? a : t;
}

// A matrix of the given condition: singular values between 1 and its inverse, turned from both sides by reflections.
template <class T>
Values<T> random_of_condition(int n, double condition, std::mt19937& g)
{
    Values<double> m(n, n);
    for (int i = 0; i < n; ++i) m(i, i) = i == 0 ? 1 : std::pow(condition, i == n - 1 ? -1 : -uniform(g, 0, 99) / 99.0);
    std::vector<double> v(static_cast<std::size_t>(n));
    const auto reflect = [&](auto element) {
        double square = 0;
        for (double& x : v) {
            x = std::normal_distribution<double>()(g);
            square += x * x;
        }
        for (int j = 0; j < n; ++j) {
            double along = 0;
            for (int i = 0; i < n; ++i) along += v[static_cast<std::size_t>(i)] * element(i, j);
            for (int i = 0; i < n; ++i) element(i, j) -= 2 * along / square * v[static_cast<std::size_t>(i)];
        }
    };
    for (int i = 0; i < n; ++i) {
        reflect([&](int r, int c) -> double& { return m(r, c); });
        reflect([&](int r, int c) -> double& { return m(c, r); });
    }
    Values<T> a(n, n);
    for (std::size_t i = 0; i < m.v.size(); ++i) a.v[i] = static_cast<T>(m.v[i]);
    return a;
}

template <class T>
void check_verdicts(InvertCall<T> call, double condition, std::vector<Values<T>> singular)
{
    std::mt19937 g = make_generator("verdicts");
    for (int c = 0; c < (options().brief ? 2000 : 20000); ++c)
        singular.push_back(random_singular<T>(uniform(g, 2, 12), g));
    const auto invert_dense = [&](const Values<T>& a, Values<T>& x) {
        const int n = a.rows, e = sizeof(T);
        return call(a.v.data(), n * e, e, x.v.data(), n * e, e, n);
    };
    const int highest = orv::orv_variant_index;
    for (std::size_t i = 0; i < singular.size(); ++i) {
        orv::orv_variant_index = static_cast<int>(i) % 8 == 7 ? highest : static_cast<int>(i) % (highest + 1);
        Values<T> x(singular[i].rows, singular[i].rows);
        ASSERT_FALSE(invert_dense(singular[i], x)) << "singular, " << x.rows;
        ASSERT_EQ(x.v, Values<T>(x.rows, x.rows).v);
        if (i % 8 == 0) {
            const auto regular = random_of_condition<T>(uniform(g, 2, 12), condition, g);
            Values<T> y(regular.rows, regular.rows);
            ASSERT_TRUE(invert_dense(regular, y)) << "regular, " << y.rows;
            ASSERT_LE(residual(regular, y), 10);
        }
    }
    orv::orv_variant_index = highest;
}

TEST(Matrices, SingularMatricesAreTold)
{
    Values<float> a(5, 5);
    a.v = {1, -1, 1, -1, -1, 0, -1, 1, -1, 0, -1, -2, 1, 0, -1, 0, 0, 0, -1, 0, -1, -1, 0, -1, -1};
    check_verdicts<float>(W::Invert_m_32f, 1e5, std::vector<Values<float>>(8, a));
    Values<double> b(5, 5);
    b.v = {1, -1, 0, -1, 0, 5, 3, -4, -1, 0, -1, -1, 1, 0, 0, 1, -1, -1, -1, 0, 0, -1, 0, 1, 1};
    check_verdicts<double>(W::Invert_m_64f, 1e12, std::vector<Values<double>>(8, b));
}

// Neither is an inverse that would hold an infinity returned, nor one of a matrix that is not finite.
template <class T>
void check_non_finite(InvertCall<T> call, T tiny)
{
    std::mt19937 g = make_generator("non-finite inverses");
    for (int n : {2, 3, 4, 5, 8, 9, 32, 33}) {
        auto overflowing = Values<T>(n, n);
        for (int i = 0; i < n; ++i) overflowing(i, i) = i == 0 ? tiny : T{1};
        std::vector<Values<T>> refused = {overflowing};
        for (int c = 0; c < 12; ++c) {
            refused.push_back(c % 2 == 0 ? random_values<T>(n, n, Fill::uniform, g) : overflowing);
            refused.back()(uniform(g, 0, n - 1), uniform(g, 0, n - 1)) = static_cast<T>(c % 3 == 0   ? NAN
                                                                                        : c % 3 == 1 ? INFINITY
                                                                                                     : -INFINITY);
        }
        for (const auto& a : refused) {
            Matrix<T> ma(a, Storage::dense, g), mx(Values<T>(n, n), random_storage(g), g);
            ASSERT_FALSE(invert(call, ma, mx)) << n;
            ASSERT_TRUE(mx.unchanged());
        }
    }
}

TEST(Matrices, InversesAreFinite)
{
    at_every_level([] {
        check_non_finite<float>(W::Invert_m_32f, 1e-39F);
        check_non_finite<double>(W::Invert_m_64f, 1e-309);
    });
}

TEST(Matrices, InversionOfSpecialMatrices)
{
    at_every_level([] {
        float f[1];
        double d[1];
        const float bound = 2 * std::numeric_limits<float>::min(), above = std::nextafter(bound, 1.0F);
        const float two[] = {2}, zero[] = {0}, nan[] = {std::nanf("")}, at[] = {-bound}, over[] = {-above};
        EXPECT_TRUE(W::Invert_m_32f(two, 4, 4, f, 4, 4, 1));
        EXPECT_EQ(f[0], 0.5F);
        for (const float* bad : {zero, nan, at}) EXPECT_FALSE(W::Invert_m_32f(bad, 4, 4, f, 4, 4, 1));
        EXPECT_EQ(f[0], 0.5F);
        EXPECT_TRUE(W::Invert_m_32f(over, 4, 4, f, 4, 4, 1));
        EXPECT_EQ(f[0], -1 / above);
        const double two_d[] = {2}, tiny[] = {1e-38}, nan_d[] = {std::nan("")};
        EXPECT_TRUE(W::Invert_m_64f(two_d, 8, 8, d, 8, 8, 1));
        EXPECT_EQ(d[0], 0.5);
        EXPECT_FALSE(W::Invert_m_64f(tiny, 8, 8, d, 8, 8, 1));
        EXPECT_FALSE(W::Invert_m_64f(nan_d, 8, 8, d, 8, 8, 1));

        // Ill-conditioned, but not singular.
        for (int n = 2; n <= 8; ++n) {
            double h[64], x[64];
            float hf[64], xf[64];
            for (int i = 0; i < n; ++i) {
                for (int j = 0; j < n; ++j) hf[i * n + j] = static_cast<float>(h[i * n + j] = 1.0 / (i + j + 1));
            }
            EXPECT_TRUE(W::Invert_m_64f(h, 8 * n, 8, x, 8 * n, 8, n)) << n;
            EXPECT_NEAR(x[0], n * n, 1e-2 * n) << "of the Hilbert matrix";
            if (n <= 5) {
                EXPECT_TRUE(W::Invert_m_32f(hf, 4 * n, 4, xf, 4 * n, 4, n)) << n;
            }
        }
        // Scaling makes no matrix singular.
        float scaled[25] = {}, x[25];
        for (int i = 0; i < 5; ++i) scaled[6 * i] = std::ldexp(1.0F, 20 * i - 60);
        ASSERT_TRUE(W::Invert_m_32f(scaled, 20, 4, x, 20, 4, 5));
        for (int i = 0; i < 5; ++i) EXPECT_EQ(x[6 * i], std::ldexp(1.0F, 60 - 20 * i));
        const float wide[] = {1e30F, 1, 1, 0, 1e-30F, 2, 0, 0, 1e10F},
                    too_wide[] = {1e30F, 1, 1, 0, 1e-30F, 2, 0, 0, 1e-20F};
        EXPECT_TRUE(W::Invert_m_32f(wide, 12, 4, x, 12, 4, 3));
        EXPECT_FALSE(W::Invert_m_32f(too_wide, 12, 4, x, 12, 4, 3)) << "has an element of -2e50";
    });
}

TEST(Matrices, InversionWithoutMemory)
{
    const float a[] = {2, 0, 0, 4};
    const double b[] = {2, 0, 0, 4};
    float x[4] = {9, 9, 9, 9};
    double y[4] = {9, 9, 9, 9};
    {
        AllocationFailure none(0);
        EXPECT_FALSE(W::Invert_m_32f(a, 8, 4, x, 8, 4, 2));
        EXPECT_FALSE(W::Invert_m_64f(b, 16, 8, y, 16, 8, 2));
    }
    // Large ones are finished apart from the destination, those of more than 512 rows are measured apart too.
    Values<float> large(513, 513), large_inverse(513, 513);
    for (int i = 0; i < 513; ++i) large(i, i) = 2;
    for (int failing = 0; failing < 3; ++failing) {
        AllocationFailure some(failing);
        EXPECT_FALSE(W::Invert_m_32f(large.v.data(), 2052, 4, large_inverse.v.data(), 2052, 4, 513)) << failing;
    }
    EXPECT_THAT(large_inverse.v, testing::Each(0.0F));
    EXPECT_THAT(x, testing::Each(9.0F));
    EXPECT_THAT(y, testing::Each(9.0));
}

// --- Refusals ---------------------------------------------------------------------------------------

TEST(Matrices, ChecksInOrder)
{
    // Each call violates one check and all that come after it.
    float a[16] = {}, b[16] = {}, d[16];
    double p[16] = {}, q[16] = {}, r[16];
    int index[4] = {0, 1, 2, 3};
    for (int i = 0; i < 16; ++i) d[i] = static_cast<float>(r[i] = 3);
    float* const no = nullptr;
    double* const none = nullptr;
    const Status null = orv::StatusNullPointer, size = orv::StatusBadSize, differ = orv::StatusSizesDiffer,
                 stride = orv::StatusBadStride, count = orv::StatusBadCount;
    for (int level = 0; level <= orv::orv_variant_index; ++level) {
#define AT(name) orv::orv_##name.variant[level]
        EXPECT_EQ(AT(Add_mm_32f)(no, 0, 0, b, 16, 4, d, 16, 4, 0, 0), null);
        EXPECT_EQ(AT(Sub_mm_32f)(a, 0, 0, no, 16, 4, d, 16, 4, 0, 0), null);
        EXPECT_EQ(AT(Add_mm_32f)(a, 0, 0, b, 16, 4, d, 16, 4, 0, 1), size);
        EXPECT_EQ(AT(Mul_mc_32f)(a, 0, 0, 2, no, 16, 4, 0, 1), null);
        EXPECT_EQ(AT(Mul_mc_32f)(a, 0, 0, 2, d, 16, 4, 1, -1), size);
        EXPECT_EQ(AT(Mul_mm_32f)(a, 0, 4, 0, 2, b, 16, 4, 2, 3, no, 16, 4), null);
        EXPECT_EQ(AT(Mul_mm_32f)(a, 0, 4, 2, 2, b, 16, 4, 0, 3, d, 16, 4), size);
        EXPECT_EQ(AT(Mul_mm_32f)(a, 0, 4, 2, 2, b, 16, 4, 2, 3, d, 16, 4), differ);
        EXPECT_EQ(AT(Mul_tm_64f)(p, 0, 4, 2, 2, none, 32, 8, 2, 3, r, 32, 8), null);
        EXPECT_EQ(AT(Mul_tm_64f)(p, 0, 4, 2, -2, q, 32, 8, 2, 3, r, 32, 8), size);
        EXPECT_EQ(AT(Mul_tm_64f)(p, 0, 4, 3, 2, q, 32, 8, 2, 3, r, 32, 8), differ);
        EXPECT_EQ(AT(Mul_mv_64f)(p, 0, 8, 0, 2, none, 8, 3, r, 8), null);
        EXPECT_EQ(AT(Mul_mv_64f)(p, 0, 8, 2, 2, q, 8, 0, r, 8), size);
        EXPECT_EQ(AT(Mul_mv_64f)(p, 0, 8, 2, 3, q, 8, 3, r, 8), differ);
        EXPECT_EQ(AT(Mul_tv_64f)(p, 0, 8, 0, 2, none, 8, 3, r, 8), null);
        EXPECT_EQ(AT(Mul_tv_64f)(p, 0, 8, 2, 0, q, 8, 3, r, 8), size);
        EXPECT_EQ(AT(Mul_tv_64f)(p, 0, 8, 3, 2, q, 8, 3, r, 8), differ);
        EXPECT_EQ(AT(Transpose_m_32f)(no, 0, 4, 0, 2, d, 16, 4), null);
        EXPECT_EQ(AT(Transpose_m_32f)(a, 0, 4, 0, 2, d, 16, 4), size);
        EXPECT_EQ(AT(LUDecomp_m_32f)(a, 0, 4, nullptr, d, 16, 4, 0), null);
        EXPECT_EQ(AT(LUDecomp_m_32f)(a, 0, 4, index, d, 16, 4, 0), size);
        EXPECT_EQ(AT(LUBackSubst_mv_32f)(a, 0, 4, nullptr, b, 4, d, 4, 0), null);
        EXPECT_EQ(AT(LUBackSubst_mv_32f)(a, 0, 4, index, b, 4, d, 4, -1), size);
        EXPECT_EQ(AT(Invert_m_32f)(a, 0, 4, nullptr, d, 16, 4, 0), null);
        EXPECT_EQ(AT(Invert_m_32f)(a, 0, 4, b, d, 16, 4, 0), size);
        EXPECT_EQ(AT(Invert_m_64f)(p, 0, 4, q, none, 16, 4, 0), null);
        EXPECT_EQ(AT(LoadIdentity_ma_32f)(no, 0, 4, 4, 0, 1, 0), null);
        EXPECT_EQ(AT(LoadIdentity_ma_32f)(d, 0, 4, 4, 0, 1, 0), size);
        EXPECT_EQ(AT(LoadIdentity_ma_32f)(d, 0, 4, 4, 1, 1, 0), count);
        EXPECT_EQ(AT(Copy_ma_32f_SS)(a, 0, 4, 4, no, 4, 4, 4, 0, 1, 0), null);
        EXPECT_EQ(AT(Copy_ma_32f_SS)(a, 0, 4, 4, d, 4, 4, 4, 1, 0, 0), size);
        EXPECT_EQ(AT(Copy_ma_32f_SS)(a, 0, 4, 4, d, 4, 4, 4, 1, 1, -1), count);
        // Every stride, each with every kind of bad value.
        for (int which = 0; which < 6; ++which) {
            for (const int bad : {0, -4, -8, 2, 6, 9, INT_MIN, INT_MIN + 8, INT_MAX}) {
                const auto s = [which, bad](int position, int good) { return position == which ? bad : good; };
                EXPECT_EQ(AT(Add_mm_32f)(a, s(0, 8), s(1, 4), b, s(2, 8), s(3, 4), d, s(4, 8), s(5, 4), 2, 2), stride);
                EXPECT_EQ(AT(Sub_mm_32f)(a, s(0, 8), s(1, 4), b, s(2, 8), s(3, 4), d, s(4, 8), s(5, 4), 2, 2), stride);
                EXPECT_EQ(AT(Mul_mm_32f)(a, s(0, 8), s(1, 4), 2, 2, b, s(2, 8), s(3, 4), 2, 2, d, s(4, 8), s(5, 4)),
                          stride);
                EXPECT_EQ(AT(Mul_tm_64f)(p, s(0, 16), s(1, 8), 2, 2, q, s(2, 16), s(3, 8), 2, 2, r, s(4, 16), s(5, 8)),
                          stride);
                if (which < 4) {
                    EXPECT_EQ(AT(Mul_mv_64f)(p, s(0, 16), s(1, 8), 2, 2, q, s(2, 8), 2, r, s(3, 8)), stride);
                }
                if (which < 4) {
                    EXPECT_EQ(AT(Mul_tv_64f)(p, s(0, 16), s(1, 8), 2, 2, q, s(2, 8), 2, r, s(3, 8)), stride);
                }
                if (which < 4) { EXPECT_EQ(AT(Mul_mc_32f)(a, s(0, 8), s(1, 4), 2, d, s(2, 8), s(3, 4), 2, 2), stride); }
                if (which < 4) {
                    EXPECT_EQ(AT(Transpose_m_32f)(a, s(0, 8), s(1, 4), 2, 2, d, s(2, 8), s(3, 4)), stride);
                }
                if (which < 4) {
                    EXPECT_EQ(AT(LUDecomp_m_32f)(a, s(0, 8), s(1, 4), index, d, s(2, 8), s(3, 4), 2), stride);
                }
                if (which < 4) {
                    EXPECT_EQ(AT(LUBackSubst_mv_32f)(a, s(0, 8), s(1, 4), index, b, s(2, 4), d, s(3, 4), 2), stride);
                }
                if (which < 4) { EXPECT_EQ(AT(Invert_m_32f)(a, s(0, 8), s(1, 4), b, d, s(2, 8), s(3, 4), 2), stride); }
                if (which < 4) {
                    EXPECT_EQ(AT(Invert_m_64f)(p, s(0, 16), s(1, 8), q, r, s(2, 16), s(3, 8), 2), stride);
                }
                if (which < 3) { EXPECT_EQ(AT(LoadIdentity_ma_32f)(d, s(0, 16), s(1, 8), s(2, 4), 2, 2, 1), stride); }
                EXPECT_EQ(AT(Copy_ma_32f_SS)(a, s(0, 16), s(1, 8), s(2, 4), d, s(3, 16), s(4, 8), s(5, 4), 2, 2, 1),
                          stride);
            }
        }
#undef AT
    }
    EXPECT_THAT(d, testing::Each(3.0F));
    EXPECT_THAT(r, testing::Each(3.0));
    EXPECT_THAT(index, testing::ElementsAre(0, 1, 2, 3));
    // A buffer whose size leaves 32 bits is a lack of memory, not a small buffer.
    for (const int n : {23170, 32768, 65535, 65536, INT_MAX, -1, INT_MIN}) {
        EXPECT_FALSE(W::Invert_m_32f(a, 16, 4, d, 16, 4, n)) << n;
        EXPECT_FALSE(W::Invert_m_64f(p, 16, 8, r, 16, 8, n)) << n;
    }
}

TEST(Matrices, TheCallersRoundingChangesNothing)
{
    std::mt19937 g = make_generator("rounding");
    const auto values = random_values<float>(8, 8, Fill::uniform, g);
    const float* const a = values.v.data();
    expect_control_kept<float>(200, [&](float* dst) {
        float* const lu = dst + 128;
        int index[8];
        return W::Mul_mm_32f(a, 32, 4, 8, 8, a, 32, 4, 8, 8, dst, 32, 4) &&
               W::Invert_m_32f(a, 32, 4, dst + 64, 32, 4, 8) && W::LUDecomp_m_32f(a, 32, 4, index, lu, 32, 4, 8) &&
               W::LUBackSubst_mv_32f(lu, 32, 4, index, a, 4, dst + 192, 4, 8);
    });
}

}  // namespace
}  // namespace test
