// What is written by hand: transforms, random numbers, LAPACK.
#pragma once

#include <pybind11/numpy.h>

#include <string>

#include "errors.h"

namespace orvane_python {

namespace py = pybind11;

// Functions that are given their names and signatures by their docstrings, as the table's are.
void add_transforms(py::module_& module);
void add_random(py::module_ random);
void add_lapack(py::module_& linalg);

// An array of a type, packed; ArgumentError, which names it, for anything else.
template <class T>
py::array_t<T, py::array::c_style> packed_argument(const char* operation, const char* name, const py::object& object,
                                                   int dimensions)
{
    const auto refuse = [&](const std::string& why) {
        throw argument_error(std::string(operation) + ": argument '" + name + "' " + why);
    };
    if (!py::isinstance<py::array_t<T>>(object))
        refuse("is no array of " + std::string(py::str(py::dtype::of<T>())));
    const auto a = py::reinterpret_borrow<py::array>(object);
    if (a.ndim() != dimensions) {
        refuse("has " + std::to_string(a.ndim()) + " dimensions where " + std::to_string(dimensions) + " are needed");
    }
    return py::array_t<T, py::array::c_style>::ensure(a);
}

}  // namespace orvane_python
