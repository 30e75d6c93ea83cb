// Power spectra, two-dimensional transforms, random numbers.
#include "objects.h"

#include <climits>
#include <mutex>
#include <optional>
#include <vector>

#include <orvane.hpp>

#include "layout.h"
#include "numbers.h"

namespace orvane_python {
namespace {

using floats = py::array_t<float, py::array::c_style>;


// The last few objects of a thread, by what they were prepared for: no two threads work on one.
template <class Object, class Key>
Object& prepared(const char* operation, const char* source, const Key& key)
{
    struct entry {
        Key key;
        Object object;
    };
    thread_local std::vector<entry> kept;
    constexpr std::size_t most = 4;
    for (entry& e : kept) {
        if (e.key == key) return e.object;
    }
    Object object;
    conclude(std::apply([&](auto... k) { return object.prepare(k...); }, key), operation,
             [=](const char*) { return source; });
    if (kept.size() == most) kept.erase(kept.begin());
    kept.push_back({key, std::move(object)});
    return kept.back().object;
}

orvane::lengths which(bool truncate) { return truncate ? orvane::lengths::truncate : orvane::lengths::exact; }

int checked_size(const char* operation, py::ssize_t size)
{
    if (size <= INT_MAX) return int(size);
    throw argument_error(std::string(operation) + ": more than 2^31 - 1 elements");
}

// The array that a caller gave, or a new one of the shape; what is not written in it is 0.
template <class T>
py::array output(const char* operation, const py::object& out, const std::vector<py::ssize_t>& shape)
{
    if (out.is_none()) {
        py::array_t<T> made(shape);
        std::fill_n(made.mutable_data(), made.size(), T{});
        return std::move(made);
    }
    const std::string lead = std::string(operation) + ": argument 'out' ";
    if (!py::isinstance<py::array_t<T>>(out)) throw argument_error(lead + "is no array of " + type_name(number_of<T>));
    py::array a = py::reinterpret_borrow<py::array>(out);
    if (!a.writeable()) throw argument_error(lead + "is read-only");
    if (!shape.empty() && (a.ndim() != py::ssize_t(shape.size()) || !std::equal(shape.begin(), shape.end(), a.shape())))
        throw argument_error(lead + "has the shape " + shape_of(a) + ", not that of the source");
    if (!is_packed(a)) throw argument_error(lead + "is not packed");
    return a;
}

template <class T>
orvane::span<T> elements(const py::array& a)
{
    return {static_cast<T*>(const_cast<void*>(a.data())), static_cast<std::size_t>(a.size())};
}

template <class T>
orvane::view<T> rows(const py::array& a)
{
    return {static_cast<T*>(const_cast<void*>(a.data())), int(a.shape(1)), int(a.shape(0)), a.strides(0)};
}

py::array psd(const py::object& signal, const py::object& window, const py::object& out, bool truncate)
{
    const floats samples = packed_argument<float>("psd", "signal", signal, 1);
    floats weights;
    if (window.is_none()) {
        weights = floats(samples.size());
        std::fill_n(weights.mutable_data(), weights.size(), 1.0F);
    } else {
        weights = packed_argument<float>("psd", "window", window, 1);
    }
    py::array power = output<float>("psd", out, {samples.size()});
    const auto length = std::make_tuple(checked_size("psd", samples.size()), which(truncate));
    auto& object = prepared<orvane::psd>("psd", "signal", length);
    const auto run = [&] {
        const py::gil_scoped_release unlocked;
        return object(elements<const float>(samples), elements<const float>(weights), elements<float>(power));
    };
    conclude(run(), "psd");
    return power;
}

using transform = orvane::status (orvane::fft2::*)(orvane::view<const float>, orvane::view<float>);

py::array transformed(const char* name, const char* argument, transform how, const py::object& source,
                      const py::object& out, bool truncate)
{
    const floats from = packed_argument<float>(name, argument, source, 2);
    py::array to = output<float>(name, out, {from.shape(0), from.shape(1)});
    checked_size(name, from.size());
    const auto size = std::make_tuple(int(from.shape(1)), int(from.shape(0)), which(truncate));
    auto& object = prepared<orvane::fft2>(name, argument, size);
    const auto run = [&] {
        const py::gil_scoped_release unlocked;
        return (object.*how)(rows<const float>(from), rows<float>(to));
    };
    conclude(run(), name);
    return to;
}

// A stream that threads may share: each call takes the next numbers.
class gaussian
{
public:
    explicit gaussian(int seed) : stream_(seed) {}

    py::array normal(const py::object& shape, double mean, double sigma, const py::object& out)
    {
        if (shape.is_none() && out.is_none()) throw argument_error("normal: argument 'shape' is missing");
        std::vector<py::ssize_t> sizes;
        if (py::isinstance<py::int_>(shape)) {
            sizes = {shape.cast<py::ssize_t>()};
        } else if (!shape.is_none()) {
            for (const py::handle side : shape) sizes.push_back(side.cast<py::ssize_t>());
        }
        for (const py::ssize_t side : sizes) {
            if (side < 0) throw argument_error("normal: argument 'shape' has a side below 0");
        }
        py::array numbers = output<double>("normal", out, sizes);
        checked_size("normal", numbers.size());
        if (numbers.size() > 0) conclude(fill(elements<double>(numbers), mean, sigma), "normal");
        return numbers;
    }

private:
    orvane::status fill(orvane::span<double> numbers, double mean, double sigma)
    {
        const py::gil_scoped_release unlocked;
        const std::lock_guard<std::mutex> alone(mutex_);
        return stream_(numbers, mean, sigma);
    }

    orvane::gaussian stream_;
    std::mutex mutex_;
};

constexpr const char* kPsd = R"(psd(signal, window=None, out=None, *, truncate=False)
--

Two-sided power spectrum |X[k]|**2 of window * (signal - its mean), not divided by anything.

signal: float32, 2**k samples; others are refused, or cut to the greatest 2**k with truncate,
and the bins from there on are 0.
window: float32, as many weights; all 1 where none is given.

Raises ArgumentError, which names the argument.)";

constexpr const char* kFft2 = R"(fft2(source, out=None, *, truncate=False)
--

Packed spectrum of a float32 image, as large as the image; packed_to_complex unfolds it.

source: height and width are powers of two from 2 on; others are refused, or the top left
part is transformed with truncate.

Raises ArgumentError, which names the argument.)";

constexpr const char* kIfft2 = R"(ifft2(spectrum, out=None, *, truncate=False)
--

The float32 image that has a packed spectrum: the inverse of fft2.

Raises ArgumentError, which names the argument.)";

constexpr const char* kGaussian = R"(Gaussian(seed)
--

A stream of normally distributed numbers: the same for a seed on every processor, however
it is cut into calls. Threads may share it.)";

constexpr const char* kNormal = R"(normal(self, shape=None, mean=0.0, sigma=1.0, *, out=None)
--

The next numbers of the stream: a float64 array of the shape, or out.

Raises ArgumentError where sigma is not above 0.)";

}  // namespace

void add_transforms(py::module_& module)
{
    py::options options;
    options.disable_function_signatures();
    const py::arg_v none_out("out", py::none());
    module.def("psd", &psd, kPsd, py::arg("signal"), py::arg("window") = py::none(), none_out, py::kw_only(),
               py::arg("truncate") = false);
    const auto forward = [](const py::object& source, const py::object& out, bool truncate) {
        return transformed("fft2", "source", &orvane::fft2::forward, source, out, truncate);
    };
    const auto inverse = [](const py::object& spectrum, const py::object& out, bool truncate) {
        return transformed("ifft2", "spectrum", &orvane::fft2::inverse, spectrum, out, truncate);
    };
    module.def("fft2", forward, kFft2, py::arg("source"), none_out, py::kw_only(), py::arg("truncate") = false);
    module.def("ifft2", inverse, kIfft2, py::arg("spectrum"), none_out, py::kw_only(), py::arg("truncate") = false);
}

void add_random(py::module_ random)
{
    py::options options;
    options.disable_function_signatures();
    py::class_<gaussian>(random, "Gaussian", kGaussian, py::metaclass(reinterpret_cast<PyObject*>(&PyType_Type)))
        .def(py::init<int>(), py::arg("seed"))
        .def("normal", &gaussian::normal, kNormal, py::arg("shape") = py::none(), py::arg("mean") = 0.0,
             py::arg("sigma") = 1.0, py::kw_only(), py::arg("out") = py::none());
}

}  // namespace orvane_python
