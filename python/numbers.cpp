#include "numbers.h"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <limits>

namespace orvane_python {
namespace {

// Calls with a value of the type that NumPy has under a number.
template <class Use>
auto with_type(int type, const Use& use)
{
    switch (type) {
        case number_of<bool>: return use(bool{});
        case number_of<unsigned char>: return use((unsigned char){});
        case number_of<short>: return use(short{});
        case number_of<unsigned short>: return use((unsigned short){});
        case number_of<int>: return use(int{});
        case number_of<unsigned>: return use(unsigned{});
        case number_of<unsigned long long>: return use(0ULL);
        case number_of<float>: return use(float{});
        case number_of<Complex32f>: return use(Complex32f{});
        default: return use(double{});
    }
}

std::string text_of(py::handle object) { return std::string(py::str(object)); }

bool failed()
{
    const bool any = PyErr_Occurred() != nullptr;
    PyErr_Clear();
    return any;
}

// A whole number: an integer, or a float that is one.
template <class T>
std::string write_whole(T& value, py::handle object)
{
    PyObject* const o = object.ptr();
    const bool whole_float = PyFloat_Check(o) && std::floor(PyFloat_AS_DOUBLE(o)) == PyFloat_AS_DOUBLE(o);
    const auto index = py::reinterpret_steal<py::object>(whole_float ? PyNumber_Long(o) : PyNumber_Index(o));
    if (failed()) return "is " + text_of(object) + ", no whole number";
    using Widest = std::conditional_t<(sizeof(T) > 4), unsigned long long, long long>;
    Widest whole = 0;
    if constexpr (std::is_unsigned_v<Widest>) {
        whole = PyLong_AsUnsignedLongLong(index.ptr());
    } else {
        whole = PyLong_AsLongLong(index.ptr());
    }
    value = static_cast<T>(whole);
    if (failed() || value != whole) return "is " + text_of(object) + ", beyond " + type_name(number_of<T>);
    return {};
}

template <class T>
std::string write_element(T& value, py::handle object)
{
    if constexpr (std::is_same_v<T, bool>) {
        const int truth = PyObject_IsTrue(object.ptr());
        value = truth == 1;
        return failed() ? "is neither true nor false" : "";
    } else if constexpr (std::is_integral_v<T>) {
        return write_whole(value, object);
    } else if constexpr (std::is_same_v<T, Complex32f>) {
        const Py_complex c = PyComplex_AsCComplex(object.ptr());
        value = {static_cast<float>(c.real), static_cast<float>(c.imag)};
        return failed() ? "is " + text_of(object) + ", no number" : "";
    } else {
        const double number = PyFloat_AsDouble(object.ptr());
        value = static_cast<T>(number);
        if (failed()) return "is " + text_of(object) + ", no number";
        const bool beyond = std::isinf(value) && !std::isinf(number);
        return beyond ? "is " + text_of(object) + ", beyond " + type_name(number_of<T>) : "";
    }
}

}  // namespace

std::string write_numbers(void* values, const parameter& is, py::handle object)
{
    return with_type(is.type, [&](auto kind) -> std::string {
        using T = decltype(kind);
        T* const to = static_cast<T*>(values);
        const bool single = count_numbers(object) == 0;
        for (int c = 0; c < is.channels; ++c) {
            if (single && c > 0) {
                to[c] = to[0];
                continue;
            }
            const auto all = py::reinterpret_borrow<py::object>(object);
            const py::object element = single ? all : py::object(all[py::int_(c)]);
            if (std::string why = write_element(to[c], element); !why.empty()) return why;
        }
        return {};
    });
}

void write_number(void* values, int type, double value)
{
    with_type(type, [&](auto kind) {
        if constexpr (!std::is_same_v<decltype(kind), Complex32f>) kind = static_cast<decltype(kind)>(value);
        std::memcpy(values, &kind, sizeof kind);
    });
}

py::object read_numbers(const void* values, const parameter& is)
{
    return with_type(is.type, [&](auto kind) -> py::object {
        using T = decltype(kind);
        const auto one = [&](int c) -> py::object {
            if constexpr (std::is_same_v<T, Complex32f>) {
                return py::none();
            } else {
                return py::cast(static_cast<const T*>(values)[c]);
            }
        };
        if (is.channels == 1) return one(0);
        py::tuple all(is.channels);
        for (int c = 0; c < is.channels; ++c) all[c] = one(c);
        return std::move(all);
    });
}

int count_numbers(py::handle object)
{
    PyObject* const o = object.ptr();
    if (PyLong_Check(o) || PyFloat_Check(o)) return 0;
    if (py::isinstance<py::array>(object)) {
        const auto a = py::reinterpret_borrow<py::array>(object);
        return a.ndim() == 0 ? 0 : a.ndim() == 1 ? int(a.shape(0)) : -1;
    }
    if (PyTuple_Check(o) || PyList_Check(o)) return int(PySequence_Size(o));
    return PyNumber_Check(o) != 0 || PyComplex_Check(o) ? 0 : -1;
}

std::string type_name(int type) { return std::string(py::str(py::dtype(type))); }

std::string shape_of(const py::array& a) { return text_of(a.attr("shape")); }

std::string described(py::handle object)
{
    if (!py::isinstance<py::array>(object)) {
        if (PyTuple_Check(object.ptr()) || PyList_Check(object.ptr()))
            return "a list of " + std::to_string(PySequence_Size(object.ptr()));
        return PyNumber_Check(object.ptr()) != 0 ? text_of(object)
                                                 : "of type " + text_of(py::type::handle_of(object).attr("__name__"));
    }
    const auto a = py::reinterpret_borrow<py::array>(object);
    const std::string type = text_of(a.dtype());
    const auto channels = a.ndim() < 3 ? 1 : a.shape(a.ndim() - 1);
    if (a.ndim() != 2 && a.ndim() != 3) return type + " of shape " + shape_of(a);
    return type + " with " + std::to_string(channels) + (channels == 1 ? " channel" : " channels");
}

std::string described(const parameter& is)
{
    if (is.kind == role::constant) return is.channels == 1 ? "a number" : std::to_string(is.channels) + " numbers";
    const bool number = is.kind == role::number || is.kind == role::result;
    if (number) return is.type == number_of<int> ? "a whole number" : "a number";
    const std::string type = type_name(is.type);
    const bool pixels = is.kind == role::image || is.kind == role::vector;
    return pixels ? type + " x" + std::to_string(is.channels) : type;
}

std::string listed(const std::vector<std::string>& all)
{
    std::string text;
    for (const std::string& one : all) text += (text.empty() ? "" : ", ") + one;
    return text;
}

void add_once(std::vector<std::string>& all, const std::string& one)
{
    if (std::find(all.begin(), all.end(), one) == all.end()) all.push_back(one);
}

}  // namespace orvane_python
