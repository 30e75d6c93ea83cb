// Small matrices and LAPACK against Eigen: sizes known at run time ("eigen") and, where it can, at compile
// time ("eigen-fixed"). Operands are packed and row-major, column-major for LAPACK; factorisations
// include copying the matrix in.
//
// Families: matrices, elimination, lapack_kernels.
#include <dlfcn.h>

#include <random>

#include "MKLWrapper.h"
#include "MatrixWrapper.h"
#include "harness.h"
#include "linalg/lapack.h"
#include "matrices_peers.h"

namespace {

using W = MatrixWrapper;

template <class T>
std::shared_ptr<std::vector<T>> noise(int n)
{
    auto v = std::make_shared<std::vector<T>>(static_cast<std::size_t>(n));
    std::mt19937 g(static_cast<unsigned>(n));
    for (T& x : *v) x = static_cast<T>(std::normal_distribution<double>()(g));
    return v;
}

void small(int n)
{
    auto a = noise<float>(n * n), b = noise<float>(n * n), d = noise<float>(n * n), lu = noise<float>(n * n),
         x = noise<float>(n);
    auto p = noise<double>(n * n), q = noise<double>(n * n), r = noise<double>(n * n), v = noise<double>(n),
         y = noise<double>(n);
    auto index = std::make_shared<std::vector<int>>(n);
    const int s = 4 * n, t = 8 * n;
    W::LUDecomp_m_32f(a->data(), s, 4, index->data(), lu->data(), s, 4, n);
    const std::string size = bench::square(n);
    bench::add("Add_mm_32f", size, "orvane",
               [=] { W::Add_mm_32f(a->data(), s, 4, b->data(), s, 4, d->data(), s, 4, n, n); });
    bench::add("Mul_mm_32f", size, "orvane",
               [=] { W::Mul_mm_32f(a->data(), s, 4, n, n, b->data(), s, 4, n, n, d->data(), s, 4); });
    bench::add("LUDecomp_m_32f", size, "orvane",
               [=] { W::LUDecomp_m_32f(a->data(), s, 4, index->data(), d->data(), s, 4, n); });
    bench::add("LUBackSubst_mv_32f", size, "orvane",
               [=] { W::LUBackSubst_mv_32f(lu->data(), s, 4, index->data(), a->data(), 4, x->data(), 4, n); });
    bench::add("Invert_m_32f", size, "orvane", [=] { W::Invert_m_32f(a->data(), s, 4, d->data(), s, 4, n); });
    bench::add("Invert_m_64f", size, "orvane", [=] { W::Invert_m_64f(p->data(), t, 8, r->data(), t, 8, n); });
    bench::add("Mul_tm_64f", size, "orvane",
               [=] { W::Mul_tm_64f(p->data(), t, 8, n, n, q->data(), t, 8, n, n, r->data(), t, 8); });
    bench::add("Mul_mv_64f", size, "orvane",
               [=] { W::Mul_mv_64f(p->data(), t, 8, n, n, v->data(), 8, n, y->data(), 8); });
    bench::add("Mul_tv_64f", size, "orvane",
               [=] { W::Mul_tv_64f(p->data(), t, 8, n, n, v->data(), 8, n, y->data(), 8); });
    bench::add("Transpose_m_32f", size, "orvane", [=] { W::Transpose_m_32f(a->data(), s, 4, n, n, d->data(), s, 4); });
    for (const bench::Peer& peer : bench::eigen_peers(n)) {
        const auto add = [&](const char* name, auto call) {
            if (call != nullptr) bench::add(name, size, peer.name, [=] { call(n, a->data(), b->data(), d->data()); });
        };
        const auto add_double = [&](const char* name, auto call) {
            if (call != nullptr) bench::add(name, size, peer.name, [=] { call(n, p->data(), q->data(), r->data()); });
        };
        add("Add_mm_32f", peer.sum);
        add("Mul_mm_32f", peer.product);
        add("LUDecomp_m_32f", peer.decompose);
        add("LUBackSubst_mv_32f", peer.substitute);
        add("Invert_m_32f", peer.invert);
        add("Transpose_m_32f", peer.transpose);
        add_double("Invert_m_64f", peer.invert_64f);
        add_double("Mul_tm_64f", peer.transposed_product_64f);
        add_double("Mul_mv_64f", peer.matrix_vector_64f);
        add_double("Mul_tv_64f", peer.transposed_vector_64f);
    }
}

// An OpenBLAS to compare with, if the machine has one: its library is opened here and shares nothing with ours.
void* openblas(const char* routine)
{
    static void* const library = dlopen("libopenblas.so.0", RTLD_NOW | RTLD_LOCAL);
    return library != nullptr ? dlsym(library, routine) : nullptr;
}

// Calls of a LAPACK routine, ours or another's: `lengths` are those of the character arguments, where it has them.
struct LinearSystem {
    int n;
    std::shared_ptr<std::vector<float>> a = noise<float>(n * n), b = noise<float>(n), d = noise<float>(n * n),
                                        x = noise<float>(n);
    std::shared_ptr<std::vector<int>> ipiv = std::make_shared<std::vector<int>>(n);

    template <class Getrf>
    void factor(Getrf* routine) const
    {
        int m = n, info;
        *d = *a;
        routine(&m, &m, d->data(), &m, ipiv->data(), &info);
    }
    template <class Getrs, class... Lengths>
    void solve(Getrs* routine, Lengths... lengths) const
    {
        int m = n, one = 1, info;
        char trans = 'N';
        *x = *b;
        routine(&trans, &m, &one, d->data(), &m, ipiv->data(), x->data(), &m, &info, lengths...);
    }
};

template <class T>
struct SingularValues {
    int n;
    std::shared_ptr<std::vector<T>> a = noise<T>(n * n), d = noise<T>(n * n), u = noise<T>(n * n), vt = noise<T>(n * n),
                                    s = noise<T>(n), work = noise<T>(100 * n);

    template <class Gesvd, class... Lengths>
    void decompose(Gesvd* routine, Lengths... lengths) const
    {
        int m = n, info, lwork = 100 * n;
        char job = 'A';
        *d = *a;
        routine(&job, &job, &m, &m, d->data(), &m, s->data(), u->data(), &m, vt->data(), &m, work->data(), &lwork,
                &info, lengths...);
    }
};

void linear_systems(int n)
{
    const LinearSystem system{n};
    const std::string size = bench::square(n);
    using Getrf = void(int*, int*, float*, int*, int*, int*);
    bench::add("Sgetrf", size, "orvane", [=] { system.factor(MKLWrapper::Sgetrf); });
    if (void* const f = openblas("sgetrf_"))
        bench::add("Sgetrf", size, "openblas", [=] { system.factor(reinterpret_cast<Getrf*>(f)); });
    bench::add("Sgetrf", size, "eigen", [=] { bench::eigen_factor(n, system.a->data(), system.d->data()); });
    bench::add("Sgetrs", size, "orvane", [=] { system.factor(MKLWrapper::Sgetrf), system.solve(MKLWrapper::Sgetrs); });
}

// What our entry points add to the routines that are linked in: the same calls through and without them.
void cost_of_entry(int n)
{
    const LinearSystem system{n};
    const SingularValues<float> values{n};
    const std::string size = bench::square(n);
    using Length = orv::FortranLength;
    bench::add("Sgetrf entry", size, "orvane", [=] { system.factor(MKLWrapper::Sgetrf); });
    bench::add("Sgetrf entry", size, "linked", [=] { system.factor(orv::orv_lapack_sgetrf); });
    bench::add("Sgetrs entry", size, "orvane", [=] { system.solve(MKLWrapper::Sgetrs); });
    bench::add("Sgetrs entry", size, "linked", [=] { system.solve(orv::orv_lapack_sgetrs, Length{1}); });
    bench::add("Sgesvd entry", size, "orvane", [=] { values.decompose(MKLWrapper::Sgesvd); });
    bench::add("Sgesvd entry", size, "linked", [=] { values.decompose(orv::orv_lapack_sgesvd, Length{1}, Length{1}); });
}

template <class T, class Routine>
void singular_values(const char* name, const char* symbol, int n, Routine* ours)
{
    const SingularValues<T> values{n};
    bench::add(name, bench::square(n), "orvane", [=] { values.decompose(ours); });
    if (void* const f = openblas(symbol))
        bench::add(name, bench::square(n), "openblas", [=] { values.decompose(reinterpret_cast<Routine*>(f)); });
}

const bool registered = [] {
    for (int n : {3, 4, 8, 32}) small(n);
    for (int n : {8, 32, 128, 512}) linear_systems(n);
    for (int n : {1, 8, 32, 128}) cost_of_entry(n);
    for (int n : {8, 32, 128}) {
        singular_values<float>("Sgesvd", "sgesvd_", n, MKLWrapper::Sgesvd);
        singular_values<double>("Dgesvd", "dgesvd_", n, MKLWrapper::Dgesvd);
    }
    return true;
}();

}  // namespace
