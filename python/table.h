// The operations that interface/python.py writes.
#pragma once

#include "operation.h"

namespace orvane_python {

struct operation_rows {
    const operation_row* first;
    int count;
    const operation_row* begin() const { return first; }
    const operation_row* end() const { return first + count; }
};
operation_rows table();

}  // namespace orvane_python
