// An operation of the package: Python's arguments, and the functions of the layer among which their types choose.
#pragma once

#include <pybind11/numpy.h>
#include <pybind11/pybind11.h>

#include <string>
#include <vector>

#include "errors.h"
#include "typed.h"

namespace orvane_python {

namespace py = pybind11;

// A row of the table that is generated.
struct operation_row {
    const char* module;     // "orvane", "orvane.linalg"
    const char* doc;        // begins with the signature, "add(a, b, out=None, *, scale=0)"
    bool elementwise;       // on parts of its operands, each for itself, it gives the same
    bool equal;             // operands are of one size
    const overload* first;  // all of its functions
    int count;
};

// Where a parameter of a function comes from. Words of overload::names, the layer's name first:
//   b                 Python's argument b
//   source=a          argument a
//   destination=out   the result, or `out`
//   image>out         likewise, with argument image copied there before; image=source>out: argument source
//   table[]           argument table, any list of numbers
//   levels[bins+1]    an array that is made with as many elements, behind the results
//   width=kernel.width, .height, .column, .row
//                     that side of argument kernel, or the middle of it, unless there is an argument of the first name
struct place {
    parameter is;
    std::string layer;
    int argument = -1, output = -1;
    int sized_by = -1, more = 0;  // argument and what is added
    std::string side;
};

constexpr int kNotTaken = -1, kLength = -2;

struct form {
    const overload* calls;
    std::vector<place> places;
    std::vector<int> place_of;  // of each argument, or what else becomes of it
    bool in_place = false;      // it has a source that the result is written over
};

struct argument {
    std::string name;
    py::str key;  // the name, interned
    bool required;
    py::object standard;
};

class operation
{
public:
    explicit operation(const operation_row& row);

    int find(const std::string& name) const;  // an argument's number, or -1

    std::string name;
    std::vector<argument> arguments;
    int positional = 0;
    std::vector<form> forms;
    int outputs = 0, out, dtype, shape;  // the last three are arguments
    bool elementwise, equal;
    bool flat;      // channels are as good as pixels
    bool measures;  // it has no array as result
    bool stores;    // it has no array but the result

    static constexpr int kMost = 12;  // arguments of an operation, parameters of a function

private:
    void read_signature(const std::string& signature);
    form read_form(const overload& calls);
    place read_word(const std::string& word, const parameter& is);
};

// The function that Python calls, with its operation as `self`.
PyObject* call(PyObject* self, PyObject* const* given, Py_ssize_t count, PyObject* names);

}  // namespace orvane_python
