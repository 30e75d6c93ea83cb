// What a call through the typed layer costs more than the method that it makes: a few pixels, so that the call counts.
#include <orvane.hpp>

#include "harness.h"

namespace {

using W = ImageProcessingWrapper;
using S = SignalProcessingWrapper;

template <class Layer, class Method>
void pair(const char* name, const char* size, Layer layer, Method method)
{
    bench::add(name, size, "orvane", [=] { benchmark::DoNotOptimize(static_cast<bool>(layer())); });
    bench::add(name, size, "method", [=] { benchmark::DoNotOptimize(method()); });
}

const bool registered = [] {
    static orvane::image<unsigned char, 3> a(8, 1), b(8, 1), c(8, 1);
    static orvane::image<float> plane(16, 5), smooth(16, 5);
    static float x[8] = {}, y[8] = {}, z[8];
    const int step = static_cast<int>(a.step());
    pair("add 8u C3 of the layer", "8x1", [] { return orvane::add(a, b, c); },
         [=] { return W::Add_8u_C3(b.data(), step, a.data(), step, c.data(), step, 8, 1, 0); });
    pair("multiply 8u C3 of the layer", "8x1", [] { return orvane::multiply(a, {166, 166, 166}, c, 7); },
         [=] {
             const unsigned char values[3] = {166, 166, 166};
             return W::MulC_8u_C3(a.data(), step, values, c.data(), step, 8, 1, 7);
         });
    pair("add 32f of the layer", "8", [] { return orvane::add(x, y, z); }, [] { return S::Add_32f(y, x, z, 8); });
    static const auto from = plane.part(4, 2, 8, 1), to = smooth.part(4, 2, 8, 1);
    pair("lowpass 32f C1 of the layer", "8x1", [] { return orvane::lowpass(from, to, orvane::mask::size3x3); },
         [=] { return W::FilterLowpass3x3_32f_C1R(from.data(), step, to.data(), step, 8, 1); });
    return true;
}();

}  // namespace
