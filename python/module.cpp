// The module: the operations of the generated table, the objects, and which library runs.
#include <memory>
#include <string>

#include "objects.h"
#include "operation.h"
#include "table.h"

namespace orvane_python {

PyObject* argument_error_type = nullptr;

namespace {

// Kept as long as the program runs: Python's functions point into it.
struct function {
    operation what;
    PyMethodDef method;

    explicit function(const operation_row& row)
        : what(row),
          method{what.name.c_str(), reinterpret_cast<PyCFunction>(reinterpret_cast<void (*)()>(&call)),
                 METH_FASTCALL | METH_KEYWORDS, row.doc}
    {
    }
};

// Functions that belong to a module are pickled by name, and help() tells nothing of a class: each has one of its own,
// whose state is its operation.
py::object owner_of(const operation& what)
{
    static PyModuleDef definition{PyModuleDef_HEAD_INIT, "orvane", nullptr, sizeof(const operation*),
                                  nullptr,               nullptr,  nullptr, nullptr, nullptr};
    const auto owner = py::reinterpret_steal<py::object>(PyModule_Create(&definition));
    if (!owner) throw py::error_already_set();
    *static_cast<const operation**>(PyModule_GetState(owner.ptr())) = &what;
    return owner;
}

void add(py::module_& module, const operation_row& row)
{
    auto* const kept = std::make_unique<function>(row).release();
    const py::object owner = owner_of(kept->what);
    const py::str name(row.module);
    const auto made = py::reinterpret_steal<py::object>(PyCFunction_NewEx(&kept->method, owner.ptr(), name.ptr()));
    if (!made) throw py::error_already_set();
    module.attr(kept->what.name.c_str()) = made;
}

// Both a TypeError and a ValueError.
py::object make_argument_error()
{
    const py::object bases = py::make_tuple(py::handle(PyExc_TypeError), py::handle(PyExc_ValueError));
    const char* const doc = "An argument that an operation does not take; nothing was written.";
    argument_error_type = PyErr_NewExceptionWithDoc("orvane.ArgumentError", doc, bases.ptr(), nullptr);
    if (argument_error_type == nullptr) throw py::error_already_set();
    return py::reinterpret_borrow<py::object>(argument_error_type);
}

}  // namespace

PYBIND11_MODULE(_core, module)
{
    module.attr("ArgumentError") = make_argument_error();
    py::register_exception_translator([](std::exception_ptr p) {
        try {
            std::rethrow_exception(p);
        } catch (const argument_error& e) {
            PyErr_SetString(argument_error_type, e.what());
        }
    });
    module.def("level", &orvane::level, "The processor level whose kernels run: 'px', 'w7', ... 'h9'.");
    module.attr("__version__") = orvane::version();
    py::module_ linalg = module.def_submodule("_linalg");
    for (const operation_row& row : table()) add(std::string(row.module) == "orvane" ? module : linalg, row);
    add_transforms(module);
    add_random(module.def_submodule("_random"));
    add_lapack(linalg);
}

}  // namespace orvane_python
