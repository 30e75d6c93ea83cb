// One call: where its pixels lie, what it makes, and what came of it.
#include <algorithm>
#include <climits>

#include "arguments.h"
#include "layout.h"
#include "numbers.h"

namespace orvane_python {
namespace {

class call_of : arguments
{
public:
    call_of(const operation& what, PyObject* const* objects, Py_ssize_t count, PyObject* names)
        : arguments(what, objects, count, names)
    {
    }

    py::object run()
    {
        form_ = &choose();
        fill_values();
        gather_sources();
        make_outputs();
        if (empty()) return result();
        if (op_.elementwise) lay_out_together();
        conclude(invoke(), op_.name.c_str(), [this](const char* name) { return name_of(name); });
        return result();
    }

private:
    // --- values -----------------------------------------------------------------------------------

    void fill_values()
    {
        for (std::size_t k = 0; k < form_->places.size(); ++k) {
            const place& p = form_->places[k];
            if (is_array(p)) {
                p.sized_by >= 0 ? make_array(p, slots_[k]) : fill_array(p, slots_[k]);
            } else if (!p.side.empty() && (p.argument < 0 || !given(given_[p.argument]))) {
                write_number(slots_[k].values, p.is.type, side_of(p));
            } else if (!is_operand(p) && p.argument >= 0) {
                fill_number(p, slots_[k]);
            }
        }
    }

    void fill_number(const place& p, slot& s)
    {
        const py::handle standard = op_.arguments[p.argument].standard;
        const py::handle object = given(given_[p.argument]) ? py::handle(given_[p.argument]) : standard;
        if (p.is.kind == role::code) return fill_code(p, s, object);
        if (const std::string why = write_numbers(s.values, p.is, object); !why.empty()) refuse(p.argument, why);
    }

    void fill_code(const place& p, slot& s, py::handle object)
    {
        const std::string name{py::str(object)};
        std::vector<std::string> names;
        for (const code_name* code = p.is.codes; code->name != nullptr; ++code) {
            if (name == code->name) return write_number(s.values, number_of<int>, code->value);
            names.push_back(std::string("'") + code->name + "'");
        }
        refuse(p.argument, "is '" + name + "'; " + op_.name + " takes " + listed(names));
    }

    int side_of(const place& p) const
    {
        const py::array& a = as_array(given_[p.sized_by]);
        if (a.ndim() != 2) refuse(p.sized_by, "has " + std::to_string(a.ndim()) + " dimensions where 2 are needed");
        const auto side = a.shape(p.side == "width" || p.side == "column" ? 1 : 0);
        return int(std::min<py::ssize_t>(side, INT_MAX)) / (p.side == "column" || p.side == "row" ? 2 : 1);
    }

    void make_array(const place& p, slot& s)
    {
        int length = 0;
        const parameter whole{role::number, false, number_of<int>, 1, nullptr};
        const std::string why = write_numbers(&length, whole, given_[p.sized_by]);
        if (!why.empty()) refuse(p.sized_by, why);
        if (length < 1 || length > INT_MAX - p.more) refuse(p.sized_by, "is " + std::to_string(length));
        made_.push_back(py::array(py::dtype(p.is.type), length + p.more));
        s.data = made_.back().mutable_data();
        s.width = length + p.more;
    }

    void fill_array(const place& p, slot& s)
    {
        const py::array& held = as_array(given_[p.argument]);
        py::array elements = packed(held, p.is.type);
        const bool changed = held.dtype().num() != p.is.type && !is_float(p.is.type);
        if (changed && !py::cast<bool>(elements.attr("__eq__")(held).attr("all")()))
            refuse(p.argument, "has values beyond " + type_name(p.is.type));
        if (p.is.kind == role::array && p.is.channels > 1 && elements.size() != p.is.channels) {
            refuse(p.argument, "has " + std::to_string(elements.size()) + " elements where " +
                                   std::to_string(p.is.channels) + " are needed");
        }
        s.data = elements.mutable_data();
        s.width = elements.size();
        packed_[p.argument] = std::move(elements);
    }

    // --- operands ---------------------------------------------------------------------------------

    const place& place_of(const operand& o) const { return form_->places[o.place]; }
    axes axes_of(const operand& o) const { return {o.array, place_of(o).is.channels > 1}; }

    operand& add(py::array a, std::size_t at)
    {
        operand& o = operands_[operands_count_++];
        o.place = int(at);
        o.pixel = int(a.itemsize()) * form_->places[at].is.channels;
        o.array = std::move(a);
        return o;
    }

    void pack(operand& o) const { o.array = packed(o.array, place_of(o).is.type); }

    void gather_sources()
    {
        for (std::size_t k = 0; k < form_->places.size(); ++k) {
            const place& p = form_->places[k];
            if (!is_operand(p) || p.output >= 0) continue;
            operand& o = add(as_array(given_[p.argument]), k);
            if (!native(o.array) || overlaps_output(o.array)) pack(o);
            if (op_.equal) check_size(o);
            if (!op_.elementwise) lay_out(o);
        }
    }

    // Element by element a result may lie where a source does; else the source is copied.
    bool overlaps_output(const py::array& a) const
    {
        return std::any_of(outputs_, outputs_ + op_.outputs, [&](PyObject* const& out) {
            if (out == nullptr || (op_.elementwise && !form_->in_place && same_place(a, as_array(out)))) return false;
            return range(a).meets(range(as_array(out)));
        });
    }

    int argument_of(const operand& o) const { return place_of(o).output >= 0 ? op_.out : place_of(o).argument; }

    void check_size(const operand& o) const
    {
        const operand& first = operands_[0];
        if (axes_of(o) == axes_of(first)) return;
        refuse(argument_of(o), "has the shape " + shape_of(o.array) + ", " + op_.arguments[argument_of(first)].name +
                                   " has " + shape_of(first.array));
    }

    // --- results ----------------------------------------------------------------------------------

    void make_outputs()
    {
        for (std::size_t k = 0; k < form_->places.size(); ++k) {
            const place& p = form_->places[k];
            if (p.output < 0) continue;
            PyObject* const out = outputs_[p.output];
            if (out != nullptr && op_.shape >= 0) check_given_shape(as_array(out));
            operand& o = add(out == nullptr ? new_output(p) : as_array(out), k);
            results_[p.output] = o.array;
            if (op_.equal) check_size(o);
            if (out != nullptr && p.argument >= 0) copy_source(p, o.array);
            if (!op_.elementwise) lay_out(o);
        }
    }

    // What is read before it is written, or not written in part, begins as a copy; what shows a source at other places,
    // as zeros, because some pixels may show nothing of it.
    py::array new_output(const place& p) const
    {
        if (p.argument >= 0) return packed(as_array(given_[p.argument]), p.is.type);
        if (form_->calls->keeps_alpha) return packed(operands_[0].array, p.is.type);
        std::vector<py::ssize_t> sizes = new_sizes();
        if (p.is.kind == role::vector && !op_.elementwise) sizes = {sizes.back()};
        if (p.is.channels > 1) sizes.push_back(p.is.channels);
        if (op_.equal) return {py::dtype(p.is.type), std::move(sizes)};
        py::tuple shape(sizes.size());
        for (std::size_t k = 0; k < sizes.size(); ++k) shape[k] = sizes[k];
        return py::array(py::module_::import("numpy").attr("zeros")(shape, py::dtype(p.is.type)));
    }

    std::vector<py::ssize_t> new_sizes() const
    {
        if (op_.shape >= 0 && given(given_[op_.shape])) return given_sizes();
        if (op_.shape >= 0 && op_.arguments[op_.shape].required) refuse(op_.shape, "is missing");
        if (form_->calls->makes != nullptr) {
            const extent e = form_->calls->makes(slots_);
            return {e.height, e.width};
        }
        const axes a = axes_of(operands_[0]);
        return {a.sizes, a.sizes + a.count};
    }

    std::vector<py::ssize_t> given_sizes() const
    {
        try {
            const auto sizes = py::cast<std::pair<int, int>>(py::handle(given_[op_.shape]));
            if (sizes.first > 0 && sizes.second > 0) return {sizes.first, sizes.second};
        } catch (const py::cast_error&) {
        }
        refuse(op_.shape, "is no height and width");
    }

    void check_given_shape(const py::array& out) const
    {
        if (!given(given_[op_.shape])) return;
        const std::vector<py::ssize_t> sizes = given_sizes();
        if (out.shape(0) != sizes[0] || out.shape(1) != sizes[1])
            refuse(op_.out, "has the shape " + shape_of(out) + ", not the one that is asked for");
    }

    void copy_source(const place& p, const py::array& out) const
    {
        const py::array& source = as_array(given_[p.argument]);
        if (same_place(source, out)) return;
        if (source.ndim() != out.ndim() || !std::equal(source.shape(), source.shape() + source.ndim(), out.shape())) {
            refuse(op_.out, "has the shape " + shape_of(out) + ", " + op_.arguments[p.argument].name + " has " +
                                shape_of(source));
        }
        py::module_::import("numpy").attr("copyto")(out, source);
    }

    // --- where pixels lie -------------------------------------------------------------------------

    void unpacked(operand& o) const
    {
        if (place_of(o).output >= 0) refuse(op_.out, "does not lie in rows of packed pixels, from the top down");
        pack(o);
    }

    void lay_out(operand& o)
    {
        slot& s = slots_[o.place];
        plane p;
        if (place_of(o).is.kind == role::matrix) {
            if (o.stride(0) < o.pixel || o.stride(1) < o.pixel) unpacked(o);
            p = {o.array.shape(1), o.array.shape(0)};
            o.step = o.stride(0);
            s.column_step = o.stride(1);
        } else if (!image_of(o, p) && o.array.size() > 0) {
            unpacked(o);
            image_of(o, p);
        }
        fill(o, p);
    }

    void fill(const operand& o, const plane& p)
    {
        if (p.width > INT_MAX || p.rows > INT_MAX) refuse(argument_of(o), "has more than 2^31 - 1 rows or columns");
        slot& s = slots_[o.place];
        s.data = o.data();
        s.step = o.step;
        s.width = p.width;
        s.height = p.rows;
    }

    // Element by element all operands are cut alike; a source that does not allow it is copied.
    void lay_out_together()
    {
        plane p;
        if (!together(p) || p.width == 1) {
            for (operand* o = operands_; o < operands_ + operands_count_; ++o) {
                plane own;
                const bool is_output = place_of(*o).output >= 0;
                if (is_output ? !rows_of(o, 1, axes_of(*o), own) : !is_packed(o->array)) unpacked(*o);
            }
            together(p);
        }
        for (operand* o = operands_; o < operands_ + operands_count_; ++o) fill(*o, p);
    }

    bool together(plane& p) { return rows_of(operands_, operands_count_, axes_of(operands_[0]), p); }

    // --- the call ---------------------------------------------------------------------------------

    bool empty() const { return op_.elementwise && operands_[0].array.size() == 0; }

    orvane::status invoke()
    {
        const py::gil_scoped_release unlocked;
        return op_.elementwise && place_of(operands_[0]).is.kind == role::vector ? invoke_rows()
                                                                                : form_->calls->run(slots_);
    }

    // Functions of vectors take a row at a time.
    orvane::status invoke_rows()
    {
        orvane::status all;
        for (std::ptrdiff_t rows = slots_[operands_[0].place].height; rows > 0; --rows) {
            const orvane::status s = form_->calls->run(slots_);
            if (!s) all = s;
            if (!s.written()) break;
            for (int k = 0; k < operands_count_; ++k) {
                slot& moved = slots_[operands_[k].place];
                moved.data = static_cast<char*>(moved.data) + moved.step;
            }
        }
        return all;
    }

    std::string name_of(const std::string& in_layer) const
    {
        for (const place& p : form_->places) {
            if (p.layer != in_layer) continue;
            if (p.output >= 0 && p.argument < 0) return op_.arguments[op_.out].name;
            if (p.argument >= 0) return op_.arguments[p.argument].name;
        }
        return in_layer;
    }

    py::object result()
    {
        std::vector<py::object> all(results_, results_ + op_.outputs);
        std::size_t made = 0;
        for (std::size_t k = 0; k < form_->places.size(); ++k) {
            const place& p = form_->places[k];
            if (p.is.kind == role::result) all.push_back(read_numbers(slots_[k].values, p.is));
            if (p.sized_by >= 0 && p.side.empty()) all.push_back(made_[made++]);
        }
        if (all.size() == 1) return all[0];
        py::tuple together(all.size());
        for (std::size_t k = 0; k < all.size(); ++k) together[k] = all[k];
        return std::move(together);
    }

    py::object results_[2];
    py::object packed_[operation::kMost];  // arrays of numbers as the functions take them
    std::vector<py::array> made_;
    const form* form_ = nullptr;
    operand operands_[6];
    int operands_count_ = 0;
    slot slots_[operation::kMost];
};

}  // namespace

PyObject* call(PyObject* self, PyObject* const* objects, Py_ssize_t count, PyObject* names)
{
    return guarded([&] {
        const auto& what = **static_cast<const operation**>(PyModule_GetState(self));
        return call_of(what, objects, count, names).run().release().ptr();
    });
}

}  // namespace orvane_python
