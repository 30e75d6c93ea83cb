"""Writes what the Python package is made of."""

import python_stubs
import python_table
from python_model import operations, read_enumerations


def write(table, include, folder, write_file):
    """table.cpp, and the stubs of the package."""
    enumerations = read_enumerations(include)
    all_operations = operations(table, include)
    write_file(folder / "table.cpp", python_table.source(all_operations, enumerations))
    modules = (("__init__", "orvane", python_stubs.MODULE), ("linalg", "orvane.linalg", python_stubs.LINALG))
    for file, module, more in modules:
        write_file(folder / "orvane" / f"{file}.pyi", python_stubs.stub(all_operations, module, enumerations, more))
