// A host of orvane.dll: which kernels run, a sum, and a refusal.
#include <ImageProcessingWrapper.h>
#include <orvane/Version.h>

#include <cstdio>

int main()
{
    const unsigned char a[4] = {200, 201, 203, 10}, b[4] = {100, 100, 100, 3};
    unsigned char sum[4];
    std::printf("orvane %s, level %s\n", orvaneVersionString(), orvaneLevel());
    if (!ImageProcessingWrapper::Add_8u_C1(a, 4, b, 4, sum, 4, 4, 1, 1)) return 1;
    std::printf("halved: %d %d %d %d\n", sum[0], sum[1], sum[2], sum[3]);
    const bool done = ImageProcessingWrapper::Add_8u_C1(a, 4, b, 4, nullptr, 4, 4, 1, 1);
    std::printf("into nothing: %s\n", done ? "done" : "refused");
}
