#include <ImageProcessingWrapper.h>
#include <cstdio>

int main()
{
    const unsigned char a[4] = {200, 201, 203, 10}, b[4] = {100, 100, 100, 3};
    unsigned char sum[4], mean[4];
    ImageProcessingWrapper::Add_8u_C1(a, 4, b, 4, sum, 4, 4, 1, 0);   // saturated
    ImageProcessingWrapper::Add_8u_C1(a, 4, b, 4, mean, 4, 4, 1, 1);  // halved, ties to even
    for (int i = 0; i < 4; ++i) std::printf("%d + %d: %d, halved %d\n", a[i], b[i], sum[i], mean[i]);
}
