#include <orvane.hpp>
#include <cstdio>

int main()
{
    const unsigned char a[4] = {200, 201, 203, 10}, b[4] = {100, 100, 100, 3};
    unsigned char sum[4], mean[4];
    orvane::add(a, b, sum).check();      // saturated; check() throws where nothing was written
    orvane::add(a, b, mean, 1).check();  // halved, ties to even
    for (int i = 0; i < 4; ++i) std::printf("%d + %d: %d, halved %d\n", a[i], b[i], sum[i], mean[i]);
    std::puts(orvane::add(a, b, {sum, 3}).message().c_str());
}
