// A host whose compiler takes another calling convention by default than the library's: /Gz or /Gv.
#include "FFTWrapper.h"
#include "Image.h"
#include "ImageProcessingWrapper.h"
#include "MKLWrapper.h"
#include "MatrixWrapper.h"
#include "SignalProcessingWrapper.h"
#include "runtime.h"

extern "C" int _fltused = 1;
void* __cdecl operator new(unsigned bytes) { return malloc(bytes); }
void __cdecl operator delete(void* block) noexcept { free(block); }
void __cdecl operator delete(void* block, unsigned) noexcept { free(block); }

int passed, failed;

extern "C" void __cdecl convention_main()
{
    const unsigned char a[4] = {200, 201, 203, 10};
    unsigned char d[4] = {};
    expect(ImageProcessingWrapper::AddC_8u_C1(a, 4, 60, d, 4, 4, 1, 0) && d[3] == 70, "an image");
    const Complex32f source = {1, 2};
    Complex32f sum = {};
    expect(ImageProcessingWrapper::AddC_32fc_C1(&source, 8, {10, 20}, &sum, 8, 1, 1) && sum.im == 22,
           "a structure by value");
    expect(fnImageProcessingWrapper() == 42, "the free function");
    double* const vector = SignalProcessingWrapper::Malloc_64f(10);
    vector[9] = 9;
    expect(SignalProcessingWrapper::MulC_64f_I(vector, 2.5, 10) && vector[9] == 22.5, "a vector");
    SignalProcessingWrapper::Free(vector);
    const float m[4] = {2, 0, 0, 4};
    float inverse[4];
    expect(MatrixWrapper::Invert_m_32f(m, 8, 4, inverse, 8, 4, 2) && inverse[3] == 0.25f, "a matrix");
    float lu[4] = {2, 0, 0, 4};
    int two = 2, pivots[2] = {}, info = 1;
    MKLWrapper::Sgetrf(&two, &two, lu, &two, pivots, &info);
    expect(info == 0 && pivots[1] == 2, "LAPACK");
    FFTWrapper transform;
    expect(transform.Init(8), "an object");
    Orvane::ImageProcessing::Image* const image = new Orvane::ImageProcessing::Image(1, 2, 3);
    expect(image->GetWidth() == 0, "an image container");
    delete image;
    printf("%d passed, %d failed\n", passed, failed);
    exit(failed != 0);
}
