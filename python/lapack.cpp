// LAPACK on arrays: its matrices are columns, so everything is copied once.
#include "objects.h"

#include <algorithm>
#include <climits>
#include <type_traits>
#include <vector>

#include <MKLWrapper.h>

namespace orvane_python {
namespace {

template <class T>
using columns = py::array_t<T, py::array::f_style>;

template <class T>
columns<T> matrix(py::ssize_t rows, py::ssize_t count)
{
    return columns<T>({rows, count});
}

[[noreturn]] void refuse(const char* operation, const char* name, const std::string& why)
{
    throw argument_error(std::string(operation) + ": argument '" + name + "' " + why);
}

template <class T>
columns<T> copied(const char* operation, const char* name, const py::object& object)
{
    const auto a = packed_argument<T>(operation, name, object, 2);
    if (a.size() == 0 || a.size() > INT_MAX) refuse(operation, name, "is empty, or too large");
    return columns<T>(a.attr("copy")("F"));
}

template <class T, class... A>
void gesvd(A... arguments)
{
    if constexpr (std::is_same_v<T, float>) {
        MKLWrapper::Sgesvd(arguments...);
    } else {
        MKLWrapper::Dgesvd(arguments...);
    }
}

template <class T>
py::object svd_of(const py::object& source, bool full, bool vectors)
{
    columns<T> a = copied<T>("svd", "a", source);
    int m = int(a.shape(0)), n = int(a.shape(1)), least = std::min(m, n), info = 0;
    py::array_t<T> s(least);
    columns<T> u = matrix<T>(m, vectors ? (full ? m : least) : 1);
    columns<T> vt = matrix<T>(vectors ? (full ? n : least) : 1, n);
    int ldu = m, ldvt = int(vt.shape(0));
    char job = vectors ? (full ? 'A' : 'S') : 'N';
    {
        T *const pa = a.mutable_data(), *const ps = s.mutable_data(), *const pu = u.mutable_data(),
                 *const pv = vt.mutable_data();
        const py::gil_scoped_release unlocked;
        T best = 0;
        int length = -1;
        gesvd<T>(&job, &job, &m, &n, pa, &m, ps, pu, &ldu, pv, &ldvt, &best, &length, &info);
        length = int(best);
        std::vector<T> work(static_cast<std::size_t>(length));
        gesvd<T>(&job, &job, &m, &n, pa, &m, ps, pu, &ldu, pv, &ldvt, work.data(), &length, &info);
    }
    if (info != 0) refuse("svd", "a", "has values for which the iteration does not converge");
    if (!vectors) return std::move(s);
    return py::make_tuple(u, s, vt);
}

py::object svd(const py::object& a, bool full_matrices, bool compute_uv)
{
    return py::isinstance<py::array_t<double>>(a) ? svd_of<double>(a, full_matrices, compute_uv)
                                                  : svd_of<float>(a, full_matrices, compute_uv);
}

py::object getrf(const py::object& source)
{
    columns<float> a = copied<float>("getrf", "a", source);
    int m = int(a.shape(0)), n = int(a.shape(1)), info = 0;
    py::array_t<int> pivots(std::min(m, n));
    {
        float* const pa = a.mutable_data();
        int* const pp = pivots.mutable_data();
        const py::gil_scoped_release unlocked;
        MKLWrapper::Sgetrf(&m, &n, pa, &m, pp, &info);
        std::for_each(pp, pp + std::min(m, n), [](int& row) { --row; });
    }
    if (info > 0) {
        const std::string text = "getrf: element " + std::to_string(info - 1) + " of U's diagonal is 0";
        if (PyErr_WarnEx(PyExc_RuntimeWarning, text.c_str(), 1) != 0) throw py::error_already_set();
    }
    return py::make_tuple(a, pivots);
}

py::object getrs(const py::object& lu, const py::object& pivots, const py::object& b, bool transposed)
{
    columns<float> factors = copied<float>("getrs", "lu", lu);
    const auto rows = packed_argument<int>("getrs", "pivots", pivots, 1);
    int n = int(factors.shape(0)), info = 0;
    if (factors.shape(1) != n) refuse("getrs", "lu", "is not square");
    const auto others = [=](py::ssize_t count) {
        return "has " + std::to_string(count) + " rows, lu has " + std::to_string(n);
    };
    if (rows.size() != n) refuse("getrs", "pivots", others(rows.size()));
    std::vector<int> from_one(rows.data(), rows.data() + n);
    for (int& row : from_one) {
        if (row < 0 || row >= n) refuse("getrs", "pivots", "has a row that is outside of lu");
        ++row;
    }
    const bool single = py::isinstance<py::array>(b) && py::reinterpret_borrow<py::array>(b).ndim() == 1;
    columns<float> x = copied<float>("getrs", "b", single ? py::object(b.attr("reshape")(-1, 1)) : b);
    if (x.shape(0) != n) refuse("getrs", "b", others(x.shape(0)));
    int count = int(x.shape(1));
    char trans = transposed ? 'T' : 'N';
    {
        float *const pf = factors.mutable_data(), *const px = x.mutable_data();
        const py::gil_scoped_release unlocked;
        MKLWrapper::Sgetrs(&trans, &n, &count, pf, &n, from_one.data(), px, &n, &info);
    }
    if (single) return x.attr("reshape")(-1);
    return std::move(x);
}

constexpr const char* kSvd = R"(svd(a, full_matrices=True, compute_uv=True)
--

a = u @ diag(s) @ vt, with s falling: (u, s, vt), or s alone without compute_uv.

a: float32 or float64 (LAPACK's gesvd). Not full_matrices: only min(rows, columns) columns of u and
rows of vt.

Raises ArgumentError, which names the argument: also for infinities and NaNs.)";

constexpr const char* kGetrf = R"(getrf(a)
--

a = p @ l @ u: (lu, pivots), float32 and int32. Row k was exchanged with row pivots[k], from 0 on.

Raises ArgumentError, which names the argument. Warns (RuntimeWarning) where u is singular.)";

constexpr const char* kGetrs = R"(getrs(lu, pivots, b, transposed=False)
--

The x for which a @ x = b, or a.T @ x = b, with what getrf made of a. b has one column or several.

Raises ArgumentError, which names the argument.)";

}  // namespace

void add_lapack(py::module_& linalg)
{
    py::options options;
    options.disable_function_signatures();
    linalg.def("svd", &svd, kSvd, py::arg("a"), py::arg("full_matrices") = true, py::arg("compute_uv") = true);
    linalg.def("getrf", &getrf, kGetrf, py::arg("a"));
    linalg.def("getrs", &getrs, kGetrs, py::arg("lu"), py::arg("pivots"), py::arg("b"), py::arg("transposed") = false);
}

}  // namespace orvane_python
