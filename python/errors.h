// What goes wrong, as Python sees it.
#pragma once

#include <pybind11/pybind11.h>

#include <new>
#include <stdexcept>
#include <string>

#include <layer/status.hpp>

namespace orvane_python {

namespace py = pybind11;

// What is wrong with a call; Python sees orvane.ArgumentError.
struct argument_error : std::runtime_error {
    using std::runtime_error::runtime_error;
};

extern PyObject* argument_error_type;

inline const char* as_it_is(const char* name) { return name; }

// A status is nothing, a warning or an exception. `rename` tells Python's name of an argument.
template <class Rename = const char*(const char*)>
void conclude(const orvane::status& s, const std::string& operation, const Rename& rename = as_it_is)
{
    if (s) return;
    if (s.result() == orvane::outcome::out_of_memory) throw std::bad_alloc();
    const std::string message = s.message();
    const std::string text = operation + message.substr(message.find(": "));
    if (s.written()) {
        if (PyErr_WarnEx(PyExc_RuntimeWarning, text.c_str(), 1) != 0) throw py::error_already_set();
        return;
    }
    const std::string lead = operation + ": " + s.argument();
    const bool named = *s.argument() != 0 && text.compare(0, lead.size(), lead) == 0;
    if (!named) throw argument_error(text);
    throw argument_error(operation + ": argument '" + rename(s.argument()) + "'" + text.substr(lead.size()));
}

// Runs what may throw for a caller that wants null and Python's exception.
template <class Run>
PyObject* guarded(const Run& run)
{
    try {
        return run();
    } catch (const argument_error& e) {
        PyErr_SetString(argument_error_type, e.what());
    } catch (py::error_already_set& e) {
        e.restore();
    } catch (const std::bad_alloc&) {
        PyErr_NoMemory();
    } catch (const std::exception& e) {
        PyErr_SetString(PyExc_RuntimeError, e.what());
    }
    return nullptr;
}

}  // namespace orvane_python
