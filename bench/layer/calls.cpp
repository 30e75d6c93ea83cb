// What a call through the typed layer costs more than the method that it makes: a few pixels, so that the call counts.
#include <orvane.hpp>

#include "harness.h"

namespace {

using W = ImageProcessingWrapper;
using S = SignalProcessingWrapper;

template <class Layer, class Method>
void pair(const char* name, const char* size, Layer layer, Method method)
{
    bench::add(name, size, "orvane", layer);
    bench::add(name, size, "method", method);
}

const bool registered = [] {
    static orvane::image<unsigned char, 3> a(8, 1), b(8, 1), c(8, 1);
    static orvane::image<float> plane(16, 5), smooth(16, 5);
    static float x[8] = {}, y[8] = {}, z[8];
    const int step = static_cast<int>(a.step());
    pair("add 8u C3 of the layer", "8x1", [] { benchmark::DoNotOptimize(orvane::add(a, b, c)); },
         [=] { benchmark::DoNotOptimize(W::Add_8u_C3(b.data(), step, a.data(), step, c.data(), step, 8, 1, 0)); });
    pair("multiply 8u C3 of the layer", "8x1",
         [] { benchmark::DoNotOptimize(orvane::multiply(a, {166, 166, 166}, c, 7)); },
         [=] {
             const unsigned char values[3] = {166, 166, 166};
             benchmark::DoNotOptimize(W::MulC_8u_C3(a.data(), step, values, c.data(), step, 8, 1, 7));
         });
    pair("add 32f of the layer", "8", [] { benchmark::DoNotOptimize(orvane::add(x, y, z)); },
         [] { benchmark::DoNotOptimize(S::Add_32f(y, x, z, 8)); });
    pair("lowpass 32f C1 of the layer", "8x1",
         [] {
             const auto part = plane.part(4, 2, 8, 1);
             benchmark::DoNotOptimize(orvane::lowpass(part, smooth.part(4, 2, 8, 1), orvane::mask::size3x3));
         },
         [] {
             benchmark::DoNotOptimize(W::FilterLowpass3x3_32f_C1R(&plane(4, 2), 64, &smooth(4, 2), 64, 8, 1));
         });
    return true;
}();

}  // namespace
