// Python's numbers as elements, and types and shapes in words.
#pragma once

#include <pybind11/numpy.h>

#include <string>
#include <vector>

#include "typed.h"

namespace orvane_python {

namespace py = pybind11;

// Fills a constant, a number or a result that is read, too; says what is wrong with the object, or nothing.
std::string write_numbers(void* values, const parameter& is, py::handle object);
void write_number(void* values, int type, double value);
py::object read_numbers(const void* values, const parameter& is);

// How many numbers an object has: 0 for a single one, -1 where it is neither one nor a list of them.
int count_numbers(py::handle object);

std::string type_name(int type);
std::string described(py::handle object);        // "int16 with 3 channels"
std::string described(const parameter& is);      // "int16 x3", "3 numbers"
std::string shape_of(const py::array& a);        // "(480, 640)"
std::string listed(const std::vector<std::string>& all);
void add_once(std::vector<std::string>& all, const std::string& one);

}  // namespace orvane_python
