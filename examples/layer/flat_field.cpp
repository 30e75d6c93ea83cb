// Flat-field correction of a 16-bit camera frame: (frame - dark) * mean(flat - dark) / (flat - dark), so that what the
// lens darkens and what the sensor adds by itself is gone.
#include <cstdio>
#include <orvane/orvane.hpp>

using words = orvane::image<unsigned short>;
using floats = orvane::image<float>;

constexpr int kWidth = 640, kHeight = 480;

// What a scene of one brightness gives: less towards the corners, on top of columns that differ in the dark.
words expose(int brightness)
{
    words frame(kWidth, kHeight);
    for (int y = 0; y < kHeight; ++y) {
        for (int x = 0; x < kWidth; ++x) {
            const int u = x - kWidth / 2, v = y - kHeight / 2, loss = (u * u + v * v) / 400;
            frame(x, y) = static_cast<unsigned short>(256 + x % 7 + brightness * (1000 - loss) / 1000);
        }
    }
    return frame;
}

floats without_dark(const words& frame, const words& dark)
{
    words difference(kWidth, kHeight);
    floats light(kWidth, kHeight);
    orvane::subtract(frame, dark, difference).check();
    orvane::convert(difference, light).check();
    return light;
}

void tell(const char* what, const words& frame)
{
    unsigned short least, greatest;
    orvane::minimum_maximum(frame, least, greatest).check();
    std::printf("%-10s %5d ... %5d\n", what, least, greatest);
}

int main()
{
    const words dark = expose(0), flat = expose(40000), frame = expose(25000);
    tell("dark", dark);
    tell("flat", flat);
    tell("frame", frame);

    const floats gain = without_dark(flat, dark);
    floats light = without_dark(frame, dark);
    double average;
    orvane::mean(gain, average).check();
    orvane::multiply(light, average, light).check();
    const orvane::status divided = orvane::divide(light, gain, light);
    if (!divided) std::puts(divided.message().c_str());  // a dead pixel of the flat: a warning, everything was written
    divided.check();

    words corrected(kWidth, kHeight);
    orvane::convert(light, corrected).check();
    tell("corrected", corrected);
}
