// Small matrices: views with two steps, sums, products, elimination.
#ifndef ORVANE_LAYER_MATRICES_HPP
#define ORVANE_LAYER_MATRICES_HPP

#include "../ImageProcessingWrapper.h"
#include "../MatrixWrapper.h"
#include "requirements.hpp"

namespace orvane {

/// A matrix that something else owns: element (i, j) lies i row steps and j column steps, in bytes, behind the first.
template <class T>
class matrix
{
public:
    constexpr matrix() = default;
    /// Rows one behind the other.
    template <class U, std::enable_if_t<detail::seen_as<U, T>, int> = 0>
    constexpr matrix(U* data, int rows, int columns)
        : matrix(data, rows, columns, static_cast<std::ptrdiff_t>(sizeof(T)) * columns, sizeof(T))
    {
    }
    template <class U, std::enable_if_t<detail::seen_as<U, T>, int> = 0>
    constexpr matrix(U* data, int rows, int columns, std::ptrdiff_t row_step, std::ptrdiff_t column_step)
        : data_(data), row_step_(row_step), column_step_(column_step), rows_(rows), columns_(columns)
    {
    }
    template <class U, std::size_t Rows, std::size_t Columns, std::enable_if_t<detail::seen_as<U, T>, int> = 0>
    constexpr matrix(U (&elements)[Rows][Columns])
        : matrix(&elements[0][0], static_cast<int>(Rows), static_cast<int>(Columns))
    {
    }
    template <class U, std::enable_if_t<!std::is_same_v<U, T> && detail::seen_as<U, T>, int> = 0>
    constexpr matrix(const matrix<U>& m) : matrix(m.data(), m.rows(), m.columns(), m.row_step(), m.column_step())
    {
    }

    constexpr T* data() const { return data_; }
    constexpr int rows() const { return rows_; }
    constexpr int columns() const { return columns_; }
    constexpr std::ptrdiff_t row_step() const { return row_step_; }
    constexpr std::ptrdiff_t column_step() const { return column_step_; }
    T& operator()(int i, int j) const
    {
        return *reinterpret_cast<T*>(reinterpret_cast<detail::byte_like<T>*>(data_) + row_step_ * i + column_step_ * j);
    }
    /// Rows and columns exchanged, without moving an element.
    constexpr matrix transposed() const { return {data_, columns_, rows_, column_step_, row_step_}; }
    matrix part(int row, int column, int rows, int columns) const
    {
        if (data_ == nullptr || row < 0 || column < 0 || rows < 1 || columns < 1 || row > rows_ - rows ||
            column > columns_ - columns) {
            return {};
        }
        return {&(*this)(row, column), rows, columns, row_step_, column_step_};
    }

private:
    T* data_ = nullptr;
    std::ptrdiff_t row_step_ = 0, column_step_ = 0;
    int rows_ = 0, columns_ = 0;
};

namespace detail {

constexpr bool good_step(std::ptrdiff_t step, std::size_t element)
{
    return step > 0 && step <= 0x7fffffff && step % static_cast<std::ptrdiff_t>(element) == 0;
}

// A matrix by itself, and against the size that the others ask for.
template <class T>
status shaped(const char* operation, const char* name, const matrix<T>& m, int rows, int columns)
{
    if (m.data() == nullptr) return {operation, name, reason::null};
    if (m.rows() < 1 || m.columns() < 1) return {operation, name, reason::empty_matrix, m.rows(), m.columns()};
    for (const std::ptrdiff_t step : {m.row_step(), m.column_step()}) {
        if (!good_step(step, sizeof(T))) return {operation, name, reason::bad_stride, step, sizeof(T)};
    }
    if (m.rows() == rows && m.columns() == columns) return {};
    return {operation, name, reason::other_shape, m.rows(), m.columns(), rows, columns};
}
template <class T>
status shaped(const char* operation, const char* name, const matrix<T>& m)
{
    return shaped(operation, name, m, m.rows(), m.columns());
}

template <class T>
constexpr int row_step(const matrix<T>& m)
{
    return static_cast<int>(m.row_step());
}
template <class T>
constexpr int column_step(const matrix<T>& m)
{
    return static_cast<int>(m.column_step());
}

}  // namespace detail

/// destination = source
inline status copy(matrix<const float> source, matrix<float> destination)
{
    if (const status s = detail::shaped("copy", "source", source); !s) return s;
    if (const status s = detail::shaped("copy", "destination", destination, source.rows(), source.columns()); !s)
        return s;
    return detail::answer(
        "copy",
        ImageProcessingWrapper::Copy_ma_32f_SS(source.data(), sizeof(float), detail::row_step(source),
                                               detail::column_step(source), destination.data(), sizeof(float),
                                               detail::row_step(destination), detail::column_step(destination),
                                               source.columns(), source.rows(), 1),
        detail::reason::failed);
}

/// destination = a + b
inline status add(matrix<const float> a, matrix<const float> b, matrix<float> destination)
{
    if (const status s = detail::shaped("add", "a", a); !s) return s;
    if (const status s = detail::shaped("add", "b", b, a.rows(), a.columns()); !s) return s;
    if (const status s = detail::shaped("add", "destination", destination, a.rows(), a.columns()); !s) return s;
    return detail::answer(
        "add",
        MatrixWrapper::Add_mm_32f(a.data(), detail::row_step(a), detail::column_step(a), b.data(), detail::row_step(b),
                                  detail::column_step(b), destination.data(), detail::row_step(destination),
                                  detail::column_step(destination), a.columns(), a.rows()),
        detail::reason::failed);
}

/// destination = a - b
inline status subtract(matrix<const float> a, matrix<const float> b, matrix<float> destination)
{
    if (const status s = detail::shaped("subtract", "a", a); !s) return s;
    if (const status s = detail::shaped("subtract", "b", b, a.rows(), a.columns()); !s) return s;
    if (const status s = detail::shaped("subtract", "destination", destination, a.rows(), a.columns()); !s) return s;
    return detail::answer(
        "subtract",
        MatrixWrapper::Sub_mm_32f(a.data(), detail::row_step(a), detail::column_step(a), b.data(), detail::row_step(b),
                                  detail::column_step(b), destination.data(), detail::row_step(destination),
                                  detail::column_step(destination), a.columns(), a.rows()),
        detail::reason::failed);
}

/// destination = value * source
inline status multiply(matrix<const float> source, float value, matrix<float> destination)
{
    if (const status s = detail::shaped("multiply", "source", source); !s) return s;
    if (const status s = detail::shaped("multiply", "destination", destination, source.rows(), source.columns()); !s)
        return s;
    return detail::answer(
        "multiply",
        MatrixWrapper::Mul_mc_32f(source.data(), detail::row_step(source), detail::column_step(source), value,
                                  destination.data(), detail::row_step(destination), detail::column_step(destination),
                                  source.columns(), source.rows()),
        detail::reason::failed);
}

/// destination = a * b
inline status multiply(matrix<const float> a, matrix<const float> b, matrix<float> destination)
{
    if (const status s = detail::shaped("multiply", "a", a); !s) return s;
    if (const status s = detail::shaped("multiply", "b", b, a.columns(), b.columns()); !s) return s;
    if (const status s = detail::shaped("multiply", "destination", destination, a.rows(), b.columns()); !s) return s;
    return detail::answer(
        "multiply",
        MatrixWrapper::Mul_mm_32f(a.data(), detail::row_step(a), detail::column_step(a), a.columns(), a.rows(),
                                  b.data(), detail::row_step(b), detail::column_step(b), b.columns(), b.rows(),
                                  destination.data(), detail::row_step(destination), detail::column_step(destination)),
        detail::reason::memory);
}

/// destination = transpose(a) * b
inline status transpose_multiply(matrix<const double> a, matrix<const double> b, matrix<double> destination)
{
    constexpr const char* name = "transpose_multiply";
    if (const status s = detail::shaped(name, "a", a); !s) return s;
    if (const status s = detail::shaped(name, "b", b, a.rows(), b.columns()); !s) return s;
    if (const status s = detail::shaped(name, "destination", destination, a.columns(), b.columns()); !s) return s;
    return detail::answer(
        name,
        MatrixWrapper::Mul_tm_64f(a.data(), detail::row_step(a), detail::column_step(a), a.columns(), a.rows(),
                                  b.data(), detail::row_step(b), detail::column_step(b), b.columns(), b.rows(),
                                  destination.data(), detail::row_step(destination), detail::column_step(destination)),
        detail::reason::memory);
}

/// destination = a * x
inline status multiply(matrix<const double> a, span<const double> x, span<double> destination)
{
    if (const status s = detail::shaped("multiply", "a", a); !s) return s;
    if (const status s = detail::filled("multiply", "x", x, static_cast<std::size_t>(a.columns())); !s) return s;
    if (const status s = detail::filled("multiply", "destination", destination, static_cast<std::size_t>(a.rows())); !s)
        return s;
    return detail::answer(
        "multiply",
        MatrixWrapper::Mul_mv_64f(a.data(), detail::row_step(a), detail::column_step(a), a.columns(), a.rows(),
                                  x.data(), sizeof(double), detail::length(x), destination.data(), sizeof(double)),
        detail::reason::memory);
}

/// destination = transpose(a) * x
inline status transpose_multiply(matrix<const double> a, span<const double> x, span<double> destination)
{
    constexpr const char* name = "transpose_multiply";
    if (const status s = detail::shaped(name, "a", a); !s) return s;
    if (const status s = detail::filled(name, "x", x, static_cast<std::size_t>(a.rows())); !s) return s;
    if (const status s = detail::filled(name, "destination", destination, static_cast<std::size_t>(a.columns())); !s)
        return s;
    return detail::answer(
        name,
        MatrixWrapper::Mul_tv_64f(a.data(), detail::row_step(a), detail::column_step(a), a.columns(), a.rows(),
                                  x.data(), sizeof(double), detail::length(x), destination.data(), sizeof(double)),
        detail::reason::memory);
}

/// destination = transpose(source)
inline status transpose(matrix<const float> source, matrix<float> destination)
{
    if (const status s = detail::shaped("transpose", "source", source); !s) return s;
    if (const status s = detail::shaped("transpose", "destination", destination, source.columns(), source.rows()); !s)
        return s;
    return detail::answer(
        "transpose",
        MatrixWrapper::Transpose_m_32f(source.data(), detail::row_step(source), detail::column_step(source),
                                       source.columns(), source.rows(), destination.data(),
                                       detail::row_step(destination), detail::column_step(destination)),
        detail::reason::memory);
}

/// factors = L (below the diagonal, which is 1 and not stored) and U of the row-exchanged source; order says which rows
/// were exchanged
inline status lu_decompose(matrix<const float> source, span<int> order, matrix<float> factors)
{
    constexpr const char* name = "lu_decompose";
    if (const status s = detail::shaped(name, "source", source, source.columns(), source.columns()); !s) return s;
    if (const status s = detail::filled(name, "order", order, static_cast<std::size_t>(source.rows())); !s) return s;
    if (const status s = detail::shaped(name, "factors", factors, source.rows(), source.rows()); !s) return s;
    const bool done = MatrixWrapper::LUDecomp_m_32f(
        source.data(), detail::row_step(source), detail::column_step(source), order.data(), factors.data(),
        detail::row_step(factors), detail::column_step(factors), source.rows());
    return done ? status() : status(name, "source", detail::reason::singular_in_part);
}

/// Solves a * x = b with the factors and the order that lu_decompose made of a.
inline status lu_solve(matrix<const float> factors, span<const int> order, span<const float> b, span<float> x)
{
    constexpr const char* name = "lu_solve";
    if (const status s = detail::shaped(name, "factors", factors, factors.columns(), factors.columns()); !s) return s;
    const auto rows = static_cast<std::size_t>(factors.rows());
    if (const status s = detail::filled(name, "order", order, rows); !s) return s;
    if (const status s = detail::filled(name, "b", b, rows); !s) return s;
    if (const status s = detail::filled(name, "x", x, rows); !s) return s;
    return detail::answer(
        name,
        MatrixWrapper::LUBackSubst_mv_32f(factors.data(), detail::row_step(factors), detail::column_step(factors),
                                          const_cast<int*>(order.data()), b.data(), sizeof(float), x.data(),
                                          sizeof(float), factors.rows()),
        detail::reason::no_factors);
}

namespace detail {

template <class T>
status invert(const matrix<const T>& source, const matrix<T>& destination,
              bool (*method)(const T*, int, int, T*, int, int, int))
{
    if (const status s = shaped("invert", "source", source, source.columns(), source.columns()); !s) return s;
    if (const status s = shaped("invert", "destination", destination, source.rows(), source.rows()); !s) return s;
    const bool done = method(source.data(), row_step(source), column_step(source), destination.data(),
                             row_step(destination), column_step(destination), source.rows());
    return done ? status() : status("invert", "source", reason::singular);
}

}  // namespace detail

/// destination = inverse(source); a singular source is refused
inline status invert(matrix<const float> source, matrix<float> destination)
{
    return detail::invert<float>(source, destination, &MatrixWrapper::Invert_m_32f);
}
inline status invert(matrix<const double> source, matrix<double> destination)
{
    return detail::invert<double>(source, destination, &MatrixWrapper::Invert_m_64f);
}

/// destination = ones on the diagonal, zeros elsewhere
inline status identity(matrix<float> destination)
{
    if (const status s = detail::shaped("identity", "destination", destination); !s) return s;
    return detail::answer("identity",
                          MatrixWrapper::LoadIdentity_ma_32f(
                              destination.data(), sizeof(float), detail::row_step(destination),
                              detail::column_step(destination), destination.columns(), destination.rows(), 1),
                          detail::reason::failed);
}

}  // namespace orvane

#endif
