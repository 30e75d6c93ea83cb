// Where the pixels of arrays lie: the rows that the layer's views are made of.
#pragma once

#include <pybind11/numpy.h>

#include <algorithm>
#include <climits>

namespace orvane_python {

namespace py = pybind11;

// An array in the part of an operand.
struct operand {
    py::array array = py::reinterpret_steal<py::array>(py::handle());  // null: the default is an array, which costs
    int place = 0;                                                     // of the function's parameters
    int pixel = 0;                                                     // bytes
    std::ptrdiff_t step = 0;                                           // from row to row
    std::ptrdiff_t stride(int axis) const { return array.strides(axis); }
    void* data() const { return const_cast<void*>(array.data()); }
};

// The axes of pixels: those of an array, but for its channels.
struct axes {
    int count;
    const py::ssize_t* sizes;

    axes(const py::array& a, bool channels) : count(int(a.ndim()) - channels), sizes(a.shape()) {}
    bool operator==(const axes& other) const
    {
        return count == other.count && std::equal(sizes, sizes + count, other.sizes);
    }
};

struct plane {
    std::ptrdiff_t width = 1, rows = 1;
};

// Rows of one width for all operands: the last axes, as far as they lie side by side in each of them, and before them
// axes of one step. False where they do not lie like that.
inline bool rows_of(operand* operands, int count, const axes& d, plane& p)
{
    const auto each = [=](auto&& holds) { return std::all_of(operands, operands + count, holds); };
    const auto is_beside = [&](int axis) {
        return each([&](const operand& o) {
            return o.stride(axis) == p.width * o.pixel && d.sizes[axis] <= INT_MAX / (p.width * o.pixel);
        });
    };
    const auto is_below = [&](int axis) {
        return each([&](const operand& o) {
            return o.stride(axis) == p.rows * o.step && o.step >= p.width * o.pixel && o.step <= INT_MAX;
        });
    };
    p = {};
    int axis = d.count - 1;
    for (; axis >= 0 && (d.sizes[axis] == 1 || is_beside(axis)); --axis) p.width *= d.sizes[axis];
    for (operand* o = operands; o < operands + count; ++o) o->step = axis < 0 ? p.width * o->pixel : o->stride(axis);
    for (; axis >= 0; --axis) {
        if (d.sizes[axis] != 1 && !is_below(axis)) return false;
        p.rows *= d.sizes[axis];
    }
    return true;
}

// The rows of one image as it is.
inline bool image_of(operand& o, plane& p)
{
    const bool row_only = o.array.ndim() == 1;
    p = {o.array.shape(row_only ? 0 : 1), row_only ? 1 : o.array.shape(0)};
    o.step = p.rows > 1 ? o.stride(0) : p.width * o.pixel;
    return (p.width == 1 || o.stride(row_only ? 0 : 1) == o.pixel) && o.step >= p.width * o.pixel && o.step <= INT_MAX;
}

// The memory between an array's first byte and its last.
struct range {
    const char *begin, *end;

    explicit range(const py::array& a) : begin(static_cast<const char*>(a.data())), end(begin + a.itemsize())
    {
        for (py::ssize_t axis = 0; axis < a.ndim(); ++axis) {
            const std::ptrdiff_t reach = (a.shape(axis) - 1) * a.strides(axis);
            (reach < 0 ? begin : end) += reach;
        }
    }
    bool meets(const range& other) const { return begin < other.end && other.begin < end; }
};

inline bool same_place(const py::array& a, const py::array& b)
{
    return a.data() == b.data() && a.itemsize() == b.itemsize() && a.ndim() == b.ndim() &&
           std::equal(a.strides(), a.strides() + a.ndim(), b.strides());
}

// Elements as the processor has them.
inline bool native(const py::array& a)
{
    return (a.flags() & py::detail::npy_api::NPY_ARRAY_ALIGNED_) != 0 && a.dtype().byteorder() != '>';
}

inline bool is_packed(const py::array& a) { return (a.flags() & py::array::c_style) != 0; }

inline py::array packed(const py::array& a, int type)
{
    return py::array(a.attr("astype")(py::dtype(type), "C"));
}

}  // namespace orvane_python
