#include "arguments.h"

#include <algorithm>

#include "layout.h"
#include "numbers.h"

namespace orvane_python {
namespace {

// NumPy's own types for numbers that nobody gave a type.
bool untyped(int type) { return type == 7 || type == 9 || type == number_of<double>; }

}  // namespace

arguments::arguments(const operation& what, PyObject* const* objects, Py_ssize_t count, PyObject* names) : op_(what)
{
    if (count > op_.positional) {
        throw argument_error(op_.name + " takes " + std::to_string(op_.positional) +
                             " arguments by position, not " + std::to_string(count));
    }
    std::copy(objects, objects + count, given_);
    if (names != nullptr) take_named(objects + count, names);
    for (std::size_t k = 0; k < op_.arguments.size(); ++k) {
        if (op_.arguments[k].required && int(k) != op_.shape && !given(given_[k])) refuse(int(k), "is missing");
    }
    take_arrays();
    take_outputs();
}

void arguments::refuse(int argument, const std::string& why) const
{
    throw argument_error(op_.name + ": argument '" + op_.arguments[argument].name + "' " + why);
}

void arguments::take_named(PyObject* const* values, PyObject* names)
{
    for (Py_ssize_t k = 0; k < PyTuple_GET_SIZE(names); ++k) {
        const int at = named(PyTuple_GET_ITEM(names, k));
        if (given_[at] != nullptr) refuse(at, "is given twice");
        given_[at] = values[k];
    }
}

int arguments::named(PyObject* key) const
{
    const auto is_it = [=](const argument& a) {
        return a.key.ptr() == key || PyUnicode_Compare(a.key.ptr(), key) == 0;
    };
    const auto found = std::find_if(op_.arguments.begin(), op_.arguments.end(), is_it);
    if (found != op_.arguments.end()) return int(found - op_.arguments.begin());
    throw argument_error(op_.name + " has no argument '" + std::string(py::str(py::handle(key))) + "'");
}

void arguments::take_arrays()
{
    for (const place& p : op_.forms[0].places) {
        if (!is_array(p) || p.argument < 0 || !given(given_[p.argument])) continue;
        held_[p.argument] = py::array::ensure(given_[p.argument]);
        if (!held_[p.argument]) refuse(p.argument, "is no array of numbers");
        given_[p.argument] = held_[p.argument].ptr();
    }
}

void arguments::take_outputs()
{
    if (op_.out < 0 || !given(given_[op_.out])) return;
    PyObject* const out = given_[op_.out];
    if (op_.outputs == 1) {
        outputs_[0] = out;
    } else if (PyTuple_Check(out) && PyTuple_GET_SIZE(out) == op_.outputs) {
        for (int k = 0; k < op_.outputs; ++k) outputs_[k] = PyTuple_GET_ITEM(out, k);
    } else {
        refuse(op_.out, "is no tuple of " + std::to_string(op_.outputs) + " arrays");
    }
    std::for_each(outputs_, outputs_ + op_.outputs, [this](PyObject* o) { check_output(o); });
}

void arguments::check_output(PyObject* out) const
{
    if (!py::isinstance<py::array>(out)) refuse(op_.out, "is " + described(out) + ", not an array");
    if (!as_array(out).writeable()) refuse(op_.out, "is read-only");
    if (!native(as_array(out))) refuse(op_.out, "is not aligned, or has another machine's order of bytes");
}

bool arguments::pixels_fit(const parameter& is, PyObject* object) const
{
    if (!py::isinstance<py::array>(object)) return false;
    const py::array& a = as_array(object);
    const auto dimensions = a.ndim();
    const auto last = dimensions > 0 ? a.shape(dimensions - 1) : 1;
    if (a.dtype().num() != is.type || (dimensions == 0 && is_number_beside_array(object))) return false;
    if (is.kind == role::matrix) return dimensions == 2;
    if (op_.elementwise) {
        if (is.channels > 1) return dimensions > 1 && last == is.channels;
        return op_.flat || dimensions < 3 || last < 2 || last > 4;
    }
    if (is.kind == role::vector) return dimensions == 1;
    if (is.channels > 1) return dimensions == 3 && last == is.channels;
    return dimensions == 2 || (dimensions == 1 && op_.measures);
}

bool arguments::is_number_beside_array(PyObject* object) const
{
    PyObject* const first = given_[0];
    return object != first && first != nullptr && py::isinstance<py::array>(first) && as_array(first).ndim() > 0;
}

bool arguments::array_fits(const parameter& is, const py::array& a)
{
    const int type = a.dtype().num();
    if (is.kind == role::tables && (a.ndim() != 2 || a.shape(0) != is.channels)) return false;
    return type == is.type || (untyped(type) && (is_float(is.type) || !is_float(type)));
}

bool arguments::fits(const place& p, PyObject* object) const
{
    if (is_operand(p)) return pixels_fit(p.is, object);
    if (is_array(p)) return array_fits(p.is, as_array(object));
    if (p.is.kind == role::code) return true;
    const int count = count_numbers(object);
    return count == 0 || (count == p.is.channels && p.is.kind != role::number);
}

int arguments::unfit(const form& f) const
{
    const int count = int(op_.arguments.size());
    for (int k = 0; k < count; ++k) {
        if (k == op_.out || k == op_.dtype || k == op_.shape) continue;
        const int at = f.place_of[k];
        if (at == kLength) continue;
        if (!given(given_[k])) {
            if (at >= 0 && op_.arguments[k].standard.is_none() && f.places[at].side.empty()) return k;
        } else if (at == kNotTaken || !fits(f.places[at], given_[k])) {
            return k;
        }
    }
    for (const place& p : f.places) {
        if (p.output < 0) continue;
        if (outputs_[p.output] != nullptr && !pixels_fit(p.is, outputs_[p.output])) return op_.out;
        if (wanted_type_ && p.is.type != *wanted_type_) return op_.dtype;
    }
    return count;
}

const form& arguments::choose()
{
    if (op_.dtype >= 0 && given(given_[op_.dtype]))
        wanted_type_ = py::dtype::from_args(py::reinterpret_borrow<py::object>(given_[op_.dtype])).num();
    const form* found = nullptr;
    int furthest = -1;
    for (const form& f : op_.forms) {
        const int at = unfit(f);
        furthest = std::max(furthest, at);
        if (at < int(op_.arguments.size())) continue;
        const bool is_clear = op_.dtype < 0 || wanted_type_ || outputs_[0] != nullptr;
        if (is_clear || made_type(f) == f.places[0].is.type) return f;
        if (found != nullptr && made_type(f) != made_type(*found)) refuse(op_.dtype, "is missing");
        found = &f;
    }
    if (found == nullptr) explain(furthest);
    return *found;
}

int arguments::made_type(const form& f)
{
    const auto is_made = [](const place& p) { return p.output >= 0; };
    return std::find_if(f.places.begin(), f.places.end(), is_made)->is.type;
}

void arguments::explain(int at) const
{
    PyObject* const object = at == op_.out ? outputs_[0] : given_[at];
    if (!given(object)) refuse(at, "is missing");
    std::vector<std::string> takes;
    for (const form& f : op_.forms) {
        if (unfit(f) < at) continue;
        for (const place& p : f.places) {
            const bool made = p.output >= 0 && (at == op_.out || at == op_.dtype);
            if (made || p.argument == at) add_once(takes, described(p.is));
        }
    }
    const std::string what = at == op_.dtype ? type_name(*wanted_type_) : described(object);
    if (takes.empty()) refuse(at, "is not taken with " + described(given_[0]));
    refuse(at, "is " + what + "; " + op_.name + " takes " + listed(takes));
}

}  // namespace orvane_python
