// A host of the Microsoft ABI: links orvane.lib, calls methods, has images made, shared and destroyed.
// There are no Microsoft headers here, so it declares the little it needs of the C runtime.
#include "Image.h"
#include "ImageProcessingWrapper.h"
#include "SignalProcessingWrapper.h"

extern "C" {
__declspec(dllimport) int printf(const char* format, ...);
__declspec(dllimport) void* malloc(unsigned bytes);
__declspec(dllimport) void free(void* block);
__declspec(dllimport) void exit(int code);
int _fltused = 1;
}

void* operator new(unsigned bytes) { return malloc(bytes); }
void* operator new[](unsigned bytes) { return malloc(bytes); }
void operator delete(void* block) noexcept { free(block); }
void operator delete[](void* block) noexcept { free(block); }
void operator delete(void* block, unsigned) noexcept { free(block); }
void operator delete[](void* block, unsigned) noexcept { free(block); }

namespace {

int passed, failed;

void expect(bool ok, const char* what)
{
    if (ok) ++passed;
    else ++failed, printf("FAILED %s\n", what);
}

unsigned control_words()
{
    unsigned short x87;
    unsigned sse;
    __asm__ volatile("fnstcw %0" : "=m"(x87));
    __asm__ volatile("stmxcsr %0" : "=m"(sse));
    return x87 ^ (sse & 0xFFC0u) << 8;
}

using Orvane::ImageProcessing::Image;

}  // namespace

extern "C" void host_main()
{
    const unsigned before = control_words();
    const unsigned char a[4] = {200, 201, 203, 10}, b[4] = {100, 100, 0, 3}, value[3] = {1, 2, 3};
    unsigned char d[12] = {};
    expect(ImageProcessingWrapper::Add_8u_C1(a, 4, b, 4, d, 4, 4, 1, 1) && d[1] == 150, "two images");
    expect(ImageProcessingWrapper::AddC_8u_C1(a, 4, 60, d, 4, 4, 1, 0) && d[3] == 70, "a constant by value");
    expect(ImageProcessingWrapper::AddC_8u_C3(a, 4, value, d, 4, 1, 1, 0) && d[2] == 206, "constants by pointer");
    expect(!ImageProcessingWrapper::Div_8u_C1(b, 4, a, 4, d, 4, 4, 1, 0) && d[2] == 255, "a warning gives false");
    expect(ImageProcessingWrapper::MulC_8u_C1I(2, d, 4, 4, 1, 0), "in place");
    const float colour[3] = {1.5f, 2.5f, 70000.f};
    float pixels[3];
    expect(ImageProcessingWrapper::Set_32f_C3(colour, pixels, 12, 1, 1), "floats");
    unsigned short narrow[3];
    expect(ImageProcessingWrapper::Convert_32f16u_C1(pixels, 12, narrow, 6, 3, 1) && narrow[1] == 2 && narrow[2] == 65535, "narrowing");
    int step = 0;
    unsigned char* const buffer = ImageProcessingWrapper::Malloc_8u_C3(22, 2, &step);
    expect(buffer != nullptr && step == 128, "a buffer");
    ImageProcessingWrapper::Free(buffer);
    double* const vector = SignalProcessingWrapper::Malloc_64f(10);
    expect(vector != nullptr, "a vector");
    SignalProcessingWrapper::Free(vector);
    expect(fnImageProcessingWrapper() == 42 && nImageProcessingWrapper == 0, "the free function and the variable");

    expect(sizeof(Image) == 36, "the size of an image");
    Image* const one = new Image(640, 480, 1);
    Image* const other = new Image(*one);
    *other = *one;
    expect(other->GetWidth() == 0 && other->GetData(3, 2) == nullptr, "an image");
    delete one;
    delete other;
    delete[] new Image[3];
    expect(control_words() == before, "control words");
    printf("%d passed, %d failed\n", passed, failed);
    exit(failed);
}
