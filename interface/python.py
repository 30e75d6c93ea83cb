"""Writes what the Python package is made of."""

import python_rules
import python_stubs
import python_table
from python_model import operations, read_enumerations


def write(table, include, folder, write_file):
    """table.cpp, and what of the package follows from the table: rules and stubs."""
    enumerations = read_enumerations(include)
    all_operations = operations(table, include)
    write_file(folder / "table.cpp", python_table.source(all_operations, enumerations))
    write_file(folder / "orvane" / "_rules.py", python_rules.source(all_operations))
    modules = (("__init__", "orvane", python_stubs.MODULE), ("linalg", "orvane.linalg", python_stubs.LINALG))
    for file, module, more in modules:
        write_file(folder / "orvane" / f"{file}.pyi", python_stubs.stub(all_operations, module, enumerations, more))
