// What a call is given, and which of an operation's functions takes it.
#pragma once

#include <optional>

#include "operation.h"

namespace orvane_python {

inline bool given(PyObject* object) { return object != nullptr && object != Py_None; }
inline const py::array& as_array(PyObject* const& object) { return reinterpret_cast<const py::array&>(object); }

inline bool is_operand(const place& p)
{
    return p.is.kind == role::image || p.is.kind == role::vector || p.is.kind == role::matrix;
}
inline bool is_float(int type) { return type == number_of<float> || type == number_of<double>; }
inline bool is_array(const place& p) { return p.is.kind == role::array || p.is.kind == role::tables; }

class arguments
{
protected:
    arguments(const operation& what, PyObject* const* objects, Py_ssize_t count, PyObject* names);

    const form& choose();
    [[noreturn]] void refuse(int argument, const std::string& why) const;

    const operation& op_;
    PyObject* given_[operation::kMost] = {};
    py::object held_[operation::kMost];  // arrays that were made of what was given
    PyObject* outputs_[2] = {};          // of `out`

private:
    void take_named(PyObject* const* values, PyObject* names);
    int named(PyObject* key) const;
    // Lists of numbers where an operation takes an array of any length.
    void take_arrays();
    void take_outputs();
    void check_output(PyObject* out) const;
    bool pixels_fit(const parameter& is, PyObject* object) const;
    // An array without axes is a number where the first argument is an array that has some.
    bool is_number_beside_array(PyObject* object) const;
    static bool array_fits(const parameter& is, const py::array& a);
    bool fits(const place& p, PyObject* object) const;
    // The first argument that a form does not take; as many as there are where it takes all.
    int unfit(const form& f) const;
    static int made_type(const form& f);
    // Why no form takes an argument, though some take all before it.
    [[noreturn]] void explain(int at) const;

    std::optional<int> wanted_type_;
};

}  // namespace orvane_python
