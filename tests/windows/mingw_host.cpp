// A host built by MinGW: links liborvane.dll.a and uses what has data, virtual tables or conventions of its own.
#include <cstdio>
#include <cstring>

#include "FFTWrapper.h"
#include "Image.h"
#include "ImageProcessingWrapper.h"
#include "SignalProcessingWrapper.h"

extern "C" {
__declspec(dllimport) int __stdcall px_ippsAtan2_32f_A24(const float* src1, const float* src2, float* dst, int len);
__declspec(dllimport) extern const float own_ipps_sExp_W7_ctab[3];
}

namespace {

int passed, failed;

void expect(bool ok, const char* what)
{
    if (ok) ++passed;
    else ++failed, std::printf("FAILED %s\n", what);
}

// A class of the host's own on top of the DLL's.
class Counted : public Orvane::ImageProcessing::Image {
public:
    explicit Counted(int* count) : count_(count) {}
    ~Counted() override { ++*count_; }

private:
    int* count_;
};

}  // namespace

int main()
{
    using Orvane::ImageProcessing::Image;
    const unsigned char a[4] = {200, 201, 203, 10};
    unsigned char d[4];
    expect(ImageProcessingWrapper::AddC_8u_C1(a, 4, 60, d, 4, 4, 1, 0) && d[3] == 70, "a method");
    expect(fnImageProcessingWrapper() == 42 && nImageProcessingWrapper == 0, "the free function and the variable");

    static_assert(sizeof(Image) == 36, "one layout for all hosts");
    Image* const one = new Image(640, 480, 1);
    Image other(*one);
    other = *one;
    expect(other.GetWidth() == 0 && other.GetData(1, 1) == nullptr, "an image");
    delete one;
    delete[] new Image[3];
    int count = 0;
    Image* const derived = new Counted(&count);
    delete derived;
    expect(count == 1, "a virtual destructor of the host's");

    const float x[3] = {1, 2.5f, 2}, y[3] = {1, 4, 0};
    float direct[3], method[3];
    SignalProcessingWrapper::Atan2_32f_A24(x, y, method, 3);
    expect(px_ippsAtan2_32f_A24(x, y, direct, 3) == 0 && std::memcmp(direct, method, sizeof(direct)) == 0,
           "an entry point");
    expect(own_ipps_sExp_W7_ctab[0] == 9.35f, "a table");

    FFTWrapper transform(8);
    float impulse[8] = {1}, window[8] = {1, 1, 1, 1, 1, 1, 1, 1}, power[8] = {};
    expect(transform.PsdFFT(impulse, window, power, 8) && power[7] > 0.9f, "an object");
    std::printf("%d passed, %d failed\n", passed, failed);
    return failed != 0;
}
