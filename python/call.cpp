// One call: which function the types choose, where its pixels lie, what it makes, and what came of it.
#include <algorithm>
#include <climits>
#include <optional>

#include "layout.h"
#include "numbers.h"
#include "operation.h"

namespace orvane_python {
namespace {

bool given(PyObject* object) { return object != nullptr && object != Py_None; }

const py::array& as_array(PyObject* const& object) { return reinterpret_cast<const py::array&>(object); }

// NumPy's own types for numbers that nobody gave a type, and those of floats.
bool untyped(int type) { return type == 7 || type == 9 || type == number_of<double>; }
bool is_float(int type) { return type == number_of<float> || type == number_of<double>; }

bool is_operand(const place& p)
{
    return p.is.kind == role::image || p.is.kind == role::vector || p.is.kind == role::matrix;
}

bool is_array(const place& p) { return p.is.kind == role::array || p.is.kind == role::tables; }

class call_of
{
public:
    call_of(const operation& what, PyObject* const* objects, Py_ssize_t count, PyObject* names) : op_(what)
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
    [[noreturn]] void refuse(int argument, const std::string& why) const
    {
        throw argument_error(op_.name + ": argument '" + op_.arguments[argument].name + "' " + why);
    }

    // --- arguments --------------------------------------------------------------------------------

    void take_named(PyObject* const* values, PyObject* names)
    {
        for (Py_ssize_t k = 0; k < PyTuple_GET_SIZE(names); ++k) {
            const int at = named(PyTuple_GET_ITEM(names, k));
            if (given_[at] != nullptr) refuse(at, "is given twice");
            given_[at] = values[k];
        }
    }

    int named(PyObject* key) const
    {
        const auto is_it = [=](const argument& a) {
            return a.key.ptr() == key || PyUnicode_Compare(a.key.ptr(), key) == 0;
        };
        const auto found = std::find_if(op_.arguments.begin(), op_.arguments.end(), is_it);
        if (found != op_.arguments.end()) return int(found - op_.arguments.begin());
        throw argument_error(op_.name + " has no argument '" + std::string(py::str(py::handle(key))) + "'");
    }

    // Lists of numbers where an operation takes an array of any length.
    void take_arrays()
    {
        for (const place& p : op_.forms[0].places) {
            if (!is_array(p) || p.argument < 0 || !given(given_[p.argument])) continue;
            held_[p.argument] = py::array::ensure(given_[p.argument]);
            if (!held_[p.argument]) refuse(p.argument, "is no array of numbers");
            given_[p.argument] = held_[p.argument].ptr();
        }
    }

    void take_outputs()
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

    void check_output(PyObject* out) const
    {
        if (!py::isinstance<py::array>(out)) refuse(op_.out, "is " + described(out) + ", not an array");
        if (!as_array(out).writeable()) refuse(op_.out, "is read-only");
        if (!native(as_array(out))) refuse(op_.out, "is not aligned, or has another machine's order of bytes");
    }

    // --- which function ---------------------------------------------------------------------------

    bool pixels_fit(const parameter& is, PyObject* object) const
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

    // An array without axes is a number where the first argument is an array that has some.
    bool is_number_beside_array(PyObject* object) const
    {
        PyObject* const first = given_[0];
        return object != first && first != nullptr && py::isinstance<py::array>(first) && as_array(first).ndim() > 0;
    }

    static bool array_fits(const parameter& is, const py::array& a)
    {
        const int type = a.dtype().num();
        if (is.kind == role::tables && (a.ndim() != 2 || a.shape(0) != is.channels)) return false;
        return type == is.type || (untyped(type) && (is_float(is.type) || !is_float(type)));
    }

    bool fits(const place& p, PyObject* object) const
    {
        if (is_operand(p)) return pixels_fit(p.is, object);
        if (is_array(p)) return array_fits(p.is, as_array(object));
        if (p.is.kind == role::code) return true;
        const int count = count_numbers(object);
        return count == 0 || (count == p.is.channels && p.is.kind != role::number);
    }

    // The first argument that a form does not take; as many as there are where it takes all.
    int unfit(const form& f) const
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

    const form& choose()
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

    static int made_type(const form& f)
    {
        const auto is_made = [](const place& p) { return p.output >= 0; };
        return std::find_if(f.places.begin(), f.places.end(), is_made)->is.type;
    }

    // Why no form takes an argument, though some take all before it.
    [[noreturn]] void explain(int at) const
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
        held_[p.argument] = std::move(elements);
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

    const operation& op_;
    PyObject* given_[operation::kMost] = {};
    py::object held_[operation::kMost];  // arrays that were made of what was given
    PyObject* outputs_[2] = {};          // of `out`
    py::object results_[2];
    std::vector<py::array> made_;
    std::optional<int> wanted_type_;
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
